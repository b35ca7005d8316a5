// Showing an assembler error: which line of the editor it is, and the selection there.
#pragma once

#include "core/platform.h"

#include <string_view>

namespace varnholt {

// Shows the pending texts for the row in work: selects the failing line in the editor, then a box.
// reads: Fehlertext, Zeilen_Index, Include_Liste, Edit   sets: Assembler_Fehler, Fehler_Zeile
void Fehlermeldung_Zeigen();

// What is selected of a line (from 0): from its first character to the last one ahead of a comment.
// A line behind the end counts as the last one.
Textstelle_T Fehler_Bereich(std::string_view Text, int Zeile);

// What is selected of a line by itself: behind its leading blanks up to the last character ahead of
// a comment; empty for a line without code.
Textstelle_T Code_Stelle(std::string_view Zeile);

} // namespace varnholt
