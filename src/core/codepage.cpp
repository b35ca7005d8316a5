// Windows-1252: the code page of all document text inside the logic, one byte a character.
#include "core/codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace varnholt {
namespace {

// Unicode of the bytes 80h to 9Fh; the others are themselves. Source: the code page table of the
// Unicode consortium; the five unassigned bytes map to the C1 control of their number.
constexpr std::array<char32_t, 32> Unicode_ab_80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint8_t Byte(char c) { return static_cast<std::uint8_t>(c); }

// Length of the sequence that begins at i, 0 when it is malformed; its character in Zeichen.
int Sequenz(std::string_view t, std::size_t i, char32_t& Zeichen)
{
    const std::uint8_t b = Byte(t[i]);
    const int          n = b < 0x80                ? 1
                           : b >= 0xC2 && b < 0xE0 ? 2
                           : b >= 0xE0 && b < 0xF0 ? 3
                           : b >= 0xF0 && b < 0xF5 ? 4
                                                   : 0;
    if (n == 0 || i + static_cast<std::size_t>(n) > t.size())
        return 0;
    Zeichen = n == 1 ? b : b & (0xFFu >> (n + 1));
    for (int k = 1; k < n; ++k) {
        const std::uint8_t f = Byte(t[i + static_cast<std::size_t>(k)]);
        if ((f & 0xC0) != 0x80)
            return 0;
        Zeichen = (Zeichen << 6) | (f & 0x3Fu);
    }
    const bool zu_lang = (n == 3 && Zeichen < 0x800) || (n == 4 && Zeichen < 0x10000);
    const bool ersatz  = Zeichen >= 0xD800 && Zeichen < 0xE000;
    return zu_lang || ersatz || Zeichen > 0x10FFFF ? 0 : n;
}

void Anhaengen_UTF8(std::string& Ziel, char32_t z)
{
    const auto Folge = [](char32_t v) { return static_cast<char>(static_cast<std::uint8_t>(v)); };
    if (z < 0x80) {
        Ziel += Folge(z);
    } else if (z < 0x800) {
        Ziel += Folge(0xC0 | (z >> 6));
        Ziel += Folge(0x80 | (z & 0x3F));
    } else {
        Ziel += Folge(0xE0 | (z >> 12));
        Ziel += Folge(0x80 | ((z >> 6) & 0x3F));
        Ziel += Folge(0x80 | (z & 0x3F));
    }
}

} // namespace

char16_t Zeichen_Aus_1252(char Zeichen)
{
    const std::uint8_t b = Byte(Zeichen);
    return b >= 0x80 && b < 0xA0 ? static_cast<char16_t>(Unicode_ab_80[b - 0x80u]) : char16_t{b};
}

char Zeichen_Nach_1252(char32_t z)
{
    if (z < 0x80 || (z >= 0xA0 && z < 0x100))
        return static_cast<char>(static_cast<std::uint8_t>(z));
    const auto p = std::find(Unicode_ab_80.begin(), Unicode_ab_80.end(), z);
    if (p == Unicode_ab_80.end())
        return '?';
    return static_cast<char>(static_cast<std::uint8_t>(0x80 + (p - Unicode_ab_80.begin())));
}

void Gross_In(std::string_view Text, std::string& Ziel)
{
    Ziel.resize(Text.size());
    std::transform(Text.begin(), Text.end(), Ziel.begin(), Gross_Zeichen);
}

std::string Gross(std::string_view Text)
{
    std::string Ziel;
    Gross_In(Text, Ziel);
    return Ziel;
}

bool Gleich_Ohne_Fall(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return Gross_Zeichen(x) == Gross_Zeichen(y);
    });
}

bool Ist_UTF8(std::string_view Text)
{
    for (std::size_t i = 0; i < Text.size();) {
        char32_t  z = 0;
        const int n = Sequenz(Text, i, z);
        if (n == 0)
            return false;
        i += static_cast<std::size_t>(n);
    }
    return true;
}

std::string Aus_UTF8(std::string_view Text)
{
    std::string Ziel;
    Ziel.reserve(Text.size());
    for (std::size_t i = 0; i < Text.size();) {
        char32_t  z = 0;
        const int n = Sequenz(Text, i, z);
        Ziel += n == 0 ? '?' : Zeichen_Nach_1252(z);
        i += n == 0 ? 1 : static_cast<std::size_t>(n);
    }
    return Ziel;
}

std::string Nach_UTF8(std::string_view Text)
{
    std::string Ziel;
    Ziel.reserve(Text.size() + Text.size() / 8);
    for (const char c : Text) {
        const std::uint8_t b = Byte(c);
        Anhaengen_UTF8(Ziel, b >= 0x80 && b < 0xA0 ? Unicode_ab_80[b - 0x80u] : b);
    }
    return Ziel;
}

} // namespace varnholt
