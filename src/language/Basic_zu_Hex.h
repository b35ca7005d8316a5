// The structured layer: IF, ELSE, END IF, FOR, NEXT and assignments.
#pragma once

namespace varnholt {

// What became of a line.
enum class Basic_Ergebnis {
    Keines, // goes on to the encoder; Zeile_Gross may have been rewritten to an instruction form
    Fehler, // Zeile_Gross holds an ERR token
    Byte,   // one instruction byte is placed, Befehls_Laenge is 1
    Fertig  // all bytes are placed and Adress_Zaehler is advanced
};

// Translates the line in work when it is a statement.
// reads: Zeile_Gross, Wert_Liste, Wert_Anzahl, O_MOV_ZQ
// sets: Hex_Daten, Adress_Zaehler, Befehl_Zaehler, the open structures, the row's Text and Versatz
Basic_Ergebnis Basic_Uebersetzen();

// The tail of a one-line IF is through: its skip becomes Laenge + Inline_Zusatz.
void Inline_IF_Schliessen(int Laenge);

} // namespace varnholt
