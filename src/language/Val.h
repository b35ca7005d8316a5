// The run-time's number reader, as the dialogs' fields, the device database and the import use it.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

// The number that a text begins with: blanks and tabs are passed over wherever they stand; sign,
// point and exponent (E or D) count, and so do &H and &O for hexadecimal and octal digits; 0 for a
// text without one. Rounded to a whole number, halves to the even one, and held within 32 bits.
std::int32_t Val(std::string_view Text);

} // namespace varnholt
