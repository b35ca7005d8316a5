// Writing 28F flash memories through their command register, and the commands that their erase
// shares with it.
#pragma once

#include "programmer/Brenner_Zustand.h"

#include <cstdint>
#include <string_view>

namespace varnholt {

// What C2 carries for a 28F device while it is written, erased and scanned: its write line rests
// high, or its highest address bit.
constexpr C2_Regel Flash_C2_Regel(std::string_view P_Typ)
{
    if (P_Typ == "28F010" || P_Typ == "28F020")
        return C2_Regel::Eins;
    return P_Typ == "28F040" || P_Typ == "28F080" ? C2_Regel::Adr_18 : C2_Regel::Null;
}

// Shifts Wert into the 74HC595 and leaves it on the bus with the programming supply on.
void Flash_Byte_Laden(std::uint8_t Wert);
// Gives up whatever command the device is in: FFh, written twice.   reads: Hoch_Bits
void Flash_Befehl_Ruecksetzen();

// Writes the device by the fields of the dialog and closes it; then, with C_IC_nach_B, compares.
// reads: Brennmenue, Hex_Daten, C_IC_bei_B, C_IC_nach_B, No_FF, the device's record, Abbruch
// sets: Brenn_Ergebnis, Antwort, Abbruch, the groups Signale, Durchlauf and Brennlauf, CheckIC
void Flash_Schreiben();

} // namespace varnholt
