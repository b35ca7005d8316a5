// Readers of hexadecimal text.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

inline constexpr std::int32_t Hex_Obergrenze = 100000000; // larger values count as this

// Value of hexadecimal text in any case; an H is passed over wherever it stands. -1 on any other
// character, 0 for the empty text; values above 100000000 become 100000000.
constexpr std::int32_t Hex_zu_Wert(std::string_view Text)
{
    std::int64_t Wert = 0;
    for (const char c : Text) {
        if (c == 'H' || c == 'h')
            continue;
        int Ziffer = c - '0';
        if (Ziffer < 0 || Ziffer > 9) {
            Ziffer = (c | 0x20) - 'a' + 10;
            if (Ziffer < 10 || Ziffer > 15)
                return -1;
        }
        // Beyond the limit only the further characters' validity matters any more.
        Wert = 16 * Wert + Ziffer > Hex_Obergrenze ? std::int64_t{Hex_Obergrenze} + 1
                                                   : 16 * Wert + Ziffer;
    }
    return Wert > Hex_Obergrenze ? Hex_Obergrenze : static_cast<std::int32_t>(Wert);
}
static_assert(Hex_zu_Wert("1H2") == 0x12 && Hex_zu_Wert("h") == 0 && Hex_zu_Wert("g") == -1);
static_assert(Hex_zu_Wert("FFFFFFFFFFFFFFFFFFFF") == Hex_Obergrenze);

// Value of a digit pair, looking at the first and the last character only; a blank in the last
// place leaves the first alone. -1 on any other character, lower case included, and for the empty
// text.
constexpr std::int32_t Hexpaar_zu_Wert(std::string_view Text)
{
    const auto Ziffer = [](char c) {
        if (c >= '0' && c <= '9')
            return c - '0';
        return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
    };
    if (Text.empty() || Ziffer(Text.front()) < 0)
        return -1;
    if (Text.back() == ' ')
        return Ziffer(Text.front());
    return Ziffer(Text.back()) < 0 ? -1 : 16 * Ziffer(Text.front()) + Ziffer(Text.back());
}
static_assert(Hexpaar_zu_Wert("A") == 0xAA && Hexpaar_zu_Wert("5 ") == 5);

} // namespace varnholt
