// Numbers in the text fields of the dialogs.
#pragma once

#include <cstdint>
#include <string>

namespace varnholt {

// A value as the hexadecimal fields show it: upper case, no leading zeros; a negative one as its 32
// bits.
std::string Feld_Hex(std::int64_t Wert);

} // namespace varnholt
