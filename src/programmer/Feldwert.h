// Numbers in the text fields of the dialogs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

// The number that a text begins with, as the decimal fields read it: blanks and tabs are passed
// over wherever they stand; sign, point and exponent (E or D) count; 0 for a text without one.
// Rounded to a whole number, halves to the even one, and held within 32 bits.
std::int32_t Feld_Wert(std::string_view Text);

// A value as the hexadecimal fields show it: upper case, no leading zeros; a negative one as its 32
// bits.
std::string Feld_Hex(std::int64_t Wert);

} // namespace varnholt
