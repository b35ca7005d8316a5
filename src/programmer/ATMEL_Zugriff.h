// The routines of the Tessel1 board for the 20-pin parts 89C1051, 89C2051 and 89C4051: check, read,
// program, erase, lock.
//
// Data register, beside the chain of 74HC595 and 74HC157 on D7, D6 and D5: D3 = 1 reads, 0 puts the
// programming voltage on; D2 resets the address counter of the target; D1 clocks it on its rising
// edge; D0 is the programming pulse, active low.
#pragma once

#include <string_view>

namespace varnholt {

// True for the read and program types that these routines serve.
constexpr bool Typ_Auf_Tessel1(std::string_view Typ)
{
    return Typ == "89C1051" || Typ == "89C2051" || Typ == "89C4051";
}

// Proves the board's data path and, with C_IC, that a live part is in the socket; nothing with
// C_Brenner off. Asks until both hold or the user gives up, which leaves Antwort at 2.
// reads: C_Brenner, C_IC   sets: Antwort
void MC_Pruefen();

// Reads addresses 0 to size - 1 into Hex_Puffer, which the caller has sized; Antwort is 2 when
// given up.   sets: Hex_Puffer, Adresse_Zaehler, Antwort, Abbruch
void Tessel1_Lesen();

// Programs the part by the fields of the dialog and closes it; then, with C_IC_nach_B, compares.
// reads: Brennmenue, Hex_Daten, C_IC_bei_B, C_IC_nach_B, No_FF, Abbruch
// sets: Brenn_Ergebnis, Antwort, Abbruch, the groups Durchlauf and Brennlauf, CheckIC
void Tessel1_Brennen();

// Erases the whole part, its lock bits with it.   sets: Antwort (always 1)
void Tessel1_Löschen();

// Programs lock bit Stufe, 1 or 2.
void Tessel1_Sperren(int Stufe);

} // namespace varnholt
