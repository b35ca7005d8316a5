// Labels: found in the preparing sweep, put in place by the two patching sweeps.
#pragma once

#include <cstdint>

namespace varnholt {

// Looks for a label at the head of the row in work and cuts it into Marke.
// reads: Diese_Zeile().Text   sets: Marke, Text, Marken; ends the run on a doubled or malformed one
void Marke_Abtrennen();

// Stores a 16-bit jump target, the high byte at Adresse; one that has no room in 16 bits is an
// error.
void Sprungziel_Setzen(std::int32_t Adresse, std::int32_t Ziel);

// Fills the open targets: first 16-bit and page targets, then relative ones.
// reads: Quell_Zeilen, Marken   sets: Hex_Daten, Offene_Ziele
void Lange_Ziele_Einsetzen();
void Kurze_Ziele_Einsetzen();

} // namespace varnholt
