// The encoder: which comparison form becomes which bytes.
#pragma once

namespace varnholt {

// An instruction without any value, spelled as its template.   True: the line is done.
// reads: Zeile_Gross   sets: Hex_Daten, Befehls_Laenge
bool Fixe_Form_Versuchen();

// The comparison forms, in the order in which they take a line.   True: the line is done.
// reads: Zeile_Gross, Wert_Liste, O_MOV_ZQ   sets: Hex_Daten, Befehls_Laenge, Offen, Zusatz of the
// row
bool Form_Versuchen();

// The line that nothing took: an ERR token of the statement translator or an unknown instruction.
[[noreturn]] void Unbekannte_Zeile_Melden();

} // namespace varnholt
