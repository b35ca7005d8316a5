// Reading a memory device on the Eprommer, and the menu command that reads a device into the image.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

// The routine that reads a device, by its read type and its board.
enum class Lese_Weg { Eprommer, Tessel1, Tessel2, Keiner };
Lese_Weg Lese_Weg_Von(std::string_view R_Typ, int Board);
// True when the selected device can be read: the two microcontroller boards aren't served yet.
[[nodiscard]] bool Lesen_Bedient();

// The Eprommer's read routine: addresses 0 to size - 1 into Hex_Puffer, which the caller has sized.
// In Pruef_Modus only the pages with the flag 0. Antwort is 1 at the end, 2 when given up.
// reads: the device's record, Pruef_Modus, Seiten_Liste, Abbruch
// sets: Hex_Puffer, Adresse_Zaehler, Adj_257, Bank, Hoch_Bits, Antwort, Abbruch
void Speicher_Lesen();
// Reads the selected device by its own routine; Antwort is 2 where none is served.
void Baustein_Lesen();

// The device replaces the image.
// reads: Datei_Geaendert, Modus   sets: Hex_Daten, Datei_Name, Datei_Geaendert, Text_Aktuell,
// Antwort
void MNU_IC_Lesen_Click();

} // namespace varnholt
