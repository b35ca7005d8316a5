// The normal form of a source line.
#pragma once

#include "language/Quell_Stueck.h"

namespace varnholt {

// Cuts the comment, turns tabs into blanks, strips and collapses blanks and takes those around
// commas away; text in double quotes stays as it is.
void Zeile_Normieren(Quell_Stueck& Text);

} // namespace varnholt
