// Reading a memory device on the Eprommer, and the frame of every read.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

// The routine that reads a device, by its read type and its board.
enum class Lese_Weg { Eprommer, Tessel1, Tessel2, Keiner };
Lese_Weg Lese_Weg_Von(std::string_view R_Typ, int Board);
// True when there is a routine that reads the selected device.
[[nodiscard]] bool Lesen_Bedient();

// The Eprommer's read routine: addresses 0 to size - 1 into Hex_Puffer, which the caller has sized.
// In Pruef_Modus only the pages with the flag 0. Antwort is 1 at the end, 2 when given up.
// reads: the device's record, Pruef_Modus, Seiten_Liste, Abbruch
// sets: Hex_Puffer, Adresse_Zaehler, Adj_257, Bank, Hoch_Bits, Antwort, Abbruch
void Speicher_Lesen();
// Reads the selected device by the routine of its type; Antwort is 2 where there is none.
void Baustein_Lesen();

// ---- The frame of every read, also of the microcontrollers' ----

void Lese_Dialog_Oeffnen();
// A percentage that grew is shown, and the user interface breathes.   reads: Adresse_Zaehler
void Lese_Fortschritt_Zeigen(std::int32_t Bytes);
// Given up: clears Abbruch, tells the caller by Antwort, closes the dialog.
void Lesen_Aufgeben();
// Read to the end: the data register comes to rest at Ruhe_Byte, the dialog shows 100 % and closes.
void Lesen_Beenden(int Ruhe_Byte);

} // namespace varnholt
