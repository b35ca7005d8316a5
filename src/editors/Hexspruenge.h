// Jumps in the hex editor. The commands themselves are in core/commands.h.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

// The address that a user typed: hexadecimal with an h behind it, else decimal. -1 when it is
// none; large ones become 100000000.
std::int32_t Adresse_Aus_Eingabe(std::string_view Text);

} // namespace varnholt
