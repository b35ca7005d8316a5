// Data lines and directives: HEX:, DEZ:, ASC:, DB, DW, fixed addresses, ORG, STOP, END.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace varnholt {

// HEX:, DEZ:, ASC: and CONST, taken from the line as typed.   True: the line is done.
// reads: Zeile_Gross, row's Text   sets: Hex_Daten, Adress_Zaehler, Namen_Tabelle, list row's kind
bool Datenzeile_Versuchen();

// What the comparison form still may be when no instruction took it.   True: the line is done.
// reads: Zeile_Gross, Wert_Liste, Debugger_Aktiv
// sets: Hex_Daten, Adress_Zaehler, Befehls_Laenge, Namen_Tabelle, the row's Text, Ende_Erreicht
bool Anweisung_Versuchen();

// Value of a text of DEZ: by its longest numeric beginning (sign, digits, point, E exponent), to
// the nearest integer, halves to the even one; 0 for text with none, at most 99999999.
std::int32_t Dez_Wert(std::string_view Text);

} // namespace varnholt
