// What the routines of both microcontroller boards share: the status bytes of the two boards, the
// byte that an address is about, the walk of a read, the ready line, and the question about a
// missing part.
#pragma once

#include "programmer/Brennrahmen.h"

#include <cstdint>

namespace varnholt {

// ---- Calculations: four data bits of a status byte ----

// Tessel1, read with D7 = 0: bits 1, 3, 5, 7.
constexpr int Tessel1_Ungerade_Bits(std::uint8_t Status)
{
    return (Status & 64 ? 8 : 0) + (Status & 32 ? 2 : 0) + (Status & 16 ? 32 : 0) +
           (Status & 8 ? 128 : 0);
}
// Tessel1, read with D7 = 1: bits 0, 2, 4, 6.
constexpr int Tessel1_Gerade_Bits(std::uint8_t Status) { return Tessel1_Ungerade_Bits(Status) / 2; }
static_assert(Tessel1_Ungerade_Bits(0x78) == 0xAA && Tessel1_Ungerade_Bits(0x87) == 0);
static_assert(Tessel1_Gerade_Bits(0x78) == 0x55);

// Tessel2, read with D7 = 0: bits 0, 2, 4, 6. S7 comes inverted, S4 is the ready line.
constexpr int Tessel2_Gerade_Bits(std::uint8_t Status)
{
    return (Status & 128 ? 0 : 4) + (Status & 64 ? 16 : 0) + (Status & 32 ? 1 : 0) +
           (Status & 8 ? 64 : 0);
}
// Tessel2, read with D7 = 1: bits 1, 3, 5, 7.
constexpr int Tessel2_Ungerade_Bits(std::uint8_t Status) { return 2 * Tessel2_Gerade_Bits(Status); }
static_assert(Tessel2_Gerade_Bits(0x68) == 0x55 && Tessel2_Gerade_Bits(0x97) == 0);

inline constexpr std::uint8_t Bereit_Tessel1 = 128; // S7
inline constexpr std::uint8_t Bereit_Tessel2 = 16;  // S4

// ---- Steps ----

// The byte of the current address; below Ab_Adresse it is 00h.
// reads: Adresse_Zaehler, Ab_Adresse, Versatz, Brennmenue, Hex_Daten
Zelle_T MC_Zelle_Bestimmen();
// False where the target is only clocked: below Ab_Adresse without DAT00, and for an FFh that the
// option No_FF passes over.
[[nodiscard]] bool MC_Zu_Schreiben(const Zelle_T& Zelle);

// Reads every address of the part into Hex_Puffer, as far as the caller sized it. Byte_Lesen gives
// the byte of the current address and leaves the target at the next. False when the user gave up.
// reads: the device's size, Abbruch   sets: Hex_Puffer, Adresse_Zaehler, Prozent_Gezeigt
[[nodiscard]] bool MC_Alle_Adressen_Lesen(std::uint8_t (*Byte_Lesen)());

// Beginning of a run behind its port bytes: dialog, event loop, counters.
// sets: Prozent_Gezeigt, Versuch_Statistik
Folge MC_Brennen_Beginnen();
// Shows a percentage that grew and lets the user interface breathe; Abgebrochen when the user gave
// up.
Folge MC_Fortschritt();

// Reads the status until the line is up; false after a second without it.
[[nodiscard]] bool Bereit_Geworden(std::uint8_t Leitung);
// "Der MC reagiert nicht": the message of a ready line that didn't come; always Folge::Fehler.
Folge Nicht_Bereit_Melden();

// The question about a part that gives no signature: true when it is to be tried again.
// sets: Antwort
[[nodiscard]] bool MC_Nochmal_Suchen();

} // namespace varnholt
