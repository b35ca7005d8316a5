// The operand scan: moves every value of a line into Wert_Liste and leaves the comparison form.
#pragma once

#include <cstdint>

namespace varnholt {

// reads: Diese_Zeile().Text, Zeile_Gross, Zahlendeutung, Namen_Tabelle, Marken
// sets: Zeile_Gross, Wert_Liste, Wert_Anzahl, Name_Eins, Name_Zwei, Bit_Eins, Bit_Zwei
void Operanden_Lesen();

// Offset byte from addresses; out of reach is an error that ends the run.
std::int32_t Relativ_Berechnen(std::int32_t Adresse, std::int32_t Ziel, int Laenge);

} // namespace varnholt
