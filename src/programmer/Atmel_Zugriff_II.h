// The routines of the Tessel2 board for the 40-pin parts: signature, read, erase. Programming and
// the lock bits stand in Atmel_II_Brennen.cpp and Atmel_II_Sperren.cpp.
//
// Data register, beside the chain of 74HC595 and 74HC157 on D7, D6 and D5: D4 = 1 programs, 0
// reads; D3 clocks the address counter of the target; D2 is the write strobe, active low; D0 is 1
// for a part with 5 V programming and at rest, where the 89S parts want a 0 (`Ruhe_Korrektur`).
#pragma once

#include "programmer/MC_Zustand.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

inline constexpr int Ruhe_Byte_II = 69; // data register between two operations

// ---- Calculations ----

// Clocks behind the byte at Adresse: the counters of some parts are longer than their memory, and
// the next block lies a sweep further.
constexpr int Sprung_Beim_Lesen(std::string_view Name, std::int32_t Adresse)
{
    const bool Block = Adresse == 16383;
    if (Name == "89F54")
        return Block ? 45055 : 0;
    if (Name == "89F58")
        return Block || Adresse == 32767 ? 16383 : 0;
    return Name == "89C55WD" && Block ? 16383 : 0;
}
constexpr int Sprung_Beim_Brennen(std::string_view Name, std::int32_t Adresse)
{
    return Adresse == 16383 ? Sprung_Beim_Lesen(Name, Adresse) : 0;
}
// Clocks ahead of address 0.
constexpr int Sprung_Vor_Null(std::string_view Name) { return Name == "89C55WD" ? 16383 : 0; }

// The type by the second signature byte; empty for an unknown one.
constexpr std::string_view Typ_Mit_Kennung(std::uint8_t Wert)
{
    switch (Wert) {
    case 81:
        return "89C51";
    case 82:
        return "89C52";
    case 83:
        return "89S53";
    case 85:
        return "89C55";
    case 114:
        return "89S8252";
    default:
        return {};
    }
}

// The level in the lock bits as they are read: bits 0 to 2, a 0 where the bit is locked. 0 to 3.
constexpr int Stufe_In_Sperrbits(std::uint8_t Bits)
{
    if ((Bits & 4) == 0)
        return 3;
    if ((Bits & 2) == 0)
        return 2;
    return (Bits & 1) == 0 ? 1 : 0;
}
static_assert(Stufe_In_Sperrbits(0xFF) == 0 && Stufe_In_Sperrbits(0xFE) == 1);
static_assert(Stufe_In_Sperrbits(0xFC) == 2 && Stufe_In_Sperrbits(0xF8) == 3);

// The same as the 89SII parts take it.
constexpr std::uint8_t Sperrbits_Fuer(int Stufe)
{
    return static_cast<std::uint8_t>(0xFF & ~((1 << Stufe) - 1));
}
static_assert(Stufe_In_Sperrbits(Sperrbits_Fuer(1)) == 1 && Sperrbits_Fuer(3) == 0xF8);

// ---- Signals ----

// Anzahl pulses of D3: data := Hoch, Tief.
void Takten_II(int Anzahl, int Hoch, int Tief);
// Two status reads without a wait, even data bits then odd ones by Auswahl.
std::uint8_t Status_Byte_II(int Auswahl);

// ---- Steps ----

// Reads the signature. With C_IC a part that doesn't answer as one is asked about; a question that
// is cancelled leaves Antwort at 2, else it is 1. Typ is the type found, in the interface language
// where it is unknown.
// reads: C_IC, the device's name
// sets: Typ, Prog_Spannung, Kennung_Gelesen, Ruhe_Korrektur, Kennung_Hersteller, Antwort
void MC2_Kennung_Lesen(std::string& Typ);

// Reads addresses 0 to size - 1 into Hex_Puffer, which the caller has sized; Antwort is 2 when
// given up.   sets: Hex_Puffer, Adresse_Zaehler, Antwort, Abbruch, and as MC2_Kennung_Lesen
void Tessel2_Lesen();

// Programs the part by the fields of the dialog and closes it; then, with C_IC_nach_B, compares.
// reads: Brennmenue, Hex_Daten, C_IC_bei_B, C_IC_nach_B, No_FF, Abbruch
// sets: Brenn_Ergebnis, Antwort, Abbruch, the groups Durchlauf and Brennlauf, CheckIC
void Tessel2_Brennen();

// Erase the whole part, its lock bits with it: most parts, and those of the type 89CIIWD, which ask
// for the supply to be switched off and on. Antwort is 2 when the signature was given up. The
// hourglass stays: the caller takes it off.
void Tessel2_Löschen();
void Tessel2_Löschen_WD();

// Programs lock bit Stufe, 1 to 3, by the device's lock type.
// reads: Prog_Spannung, Kennung_Gelesen   sets: Schiebe_Bits
void Tessel2_Sperren(int Stufe);
// The level that is set, 0 to 3; Antwort is 2 when the signature was given up.
[[nodiscard]] int Tessel2_Sperrstufe_Lesen();

} // namespace varnholt
