// The normal form of a source line.
#pragma once

#include "language/Text_Ablage.h"

#include <string_view>

namespace varnholt {

// The line without its comment, tabs turned into blanks, blanks stripped, collapsed and taken away
// beside commas; text in double quotes stays as it is. The result lies in the store.
Quell_Stueck Zeile_Normieren(std::string_view Zeile, Text_Ablage& Ablage);

} // namespace varnholt
