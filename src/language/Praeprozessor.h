// Macros, included files and the blocks of #IF DEBUGGING.
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

// Expands every `#define` ... `#end def` of a text with CR LF line ends. Ends the run on a block
// without end, without name or on one line, and on a macro whose expansion doesn't come to an end.
void Makros_Einsetzen(std::string& Text);
// Some `#define` stands in the text.
bool Hat_Makros(std::string_view Text);

// Puts the file that the row in work names in the place of the row, which then is the file's first.
// reads: Quell_Pfad, Programm_Pfad   sets: Quell_Zeilen, Include_Liste, Zeilen_Index (one back)
void Include_Lesen();
// Whether the row in work is an INCLUDE with a name.
bool Ist_Include();

// #IF DEBUGGING and #IF NOT DEBUGGING.   True: the row in work is done.
// reads: Zeile_Gross, Debugger_Aktiv   sets: Text and Adresse of the rows of a false block,
// Zeilen_Index
bool Bedingung_Versuchen();

} // namespace varnholt
