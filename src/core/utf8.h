// Counting in UTF-8 texts without decoding them.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

// A byte behind the first one of its character.
constexpr bool Ist_Folgebyte(char Byte)
{
    return (static_cast<unsigned char>(Byte) & 0xC0) == 0x80;
}

// Number of characters.
constexpr std::int64_t Zeichen_Im(std::string_view Text)
{
    std::int64_t n = 0;
    for (const char c : Text)
        n += Ist_Folgebyte(c) ? 0 : 1;
    return n;
}
static_assert(Zeichen_Im("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80") == 4); // a, ä, €, a face

// Positions of a text control that a character takes, by the first byte of its UTF-8: two beyond
// 16 bits, one else, none for the bytes behind the first.
constexpr int Stellen_Von(char Byte)
{
    return static_cast<unsigned char>(Byte) >= 0xF0 ? 2 : Ist_Folgebyte(Byte) ? 0 : 1;
}

constexpr std::int64_t Stellen_Im(std::string_view Text)
{
    std::int64_t n = 0;
    for (const char c : Text)
        n += Stellen_Von(c);
    return n;
}
static_assert(Stellen_Im("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80") == 5); // a, ä, €, a face
static_assert(Stellen_Im("") == 0);

} // namespace varnholt
