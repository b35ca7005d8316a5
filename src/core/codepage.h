// Windows-1252: the code page of all document text inside the logic, one byte a character.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

namespace codepage_intern {

inline constexpr std::array<char, 256> Gross_Tabelle = [] {
    std::array<char, 256> t{};
    for (int i = 0; i < 256; ++i) {
        int g = i;
        if ((i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7))
            g = i - 32;
        else if (i == 0x9A || i == 0x9C || i == 0x9E)
            g = i - 16;
        else if (i == 0xFF)
            g = 0x9F;
        t[static_cast<std::size_t>(i)] = static_cast<char>(static_cast<std::uint8_t>(g));
    }
    return t;
}();

} // namespace codepage_intern

// Upper case by the pairs of Windows-1252 (ä Ä, ÿ Ÿ, š Š, œ Œ, ž Ž; ß, the division and the
// multiplication sign have no partner).
inline char Gross_Zeichen(char Zeichen)
{
    return codepage_intern::Gross_Tabelle[static_cast<std::uint8_t>(Zeichen)];
}
std::string Gross(std::string_view Text);
// The same into a buffer that is used again; its old contents go.
void Gross_In(std::string_view Text, std::string& Ziel);
// Equal without regard to case.
bool Gleich_Ohne_Fall(std::string_view a, std::string_view b);
// Text begins with Anfang, which is in upper case, without regard to the text's case.
inline bool Beginnt_Ohne_Fall(std::string_view Text, std::string_view Anfang_Gross)
{
    if (Text.size() < Anfang_Gross.size())
        return false;
    for (std::size_t i = 0; i < Anfang_Gross.size(); ++i)
        if (Gross_Zeichen(Text[i]) != Anfang_Gross[i])
            return false;
    return true;
}

// One character: its Unicode number (below FFFFh), and its byte; `?` for one that the code page
// doesn't have. The five bytes without a character are the C1 controls of their number.
char16_t Zeichen_Aus_1252(char Zeichen);
char     Zeichen_Nach_1252(char32_t Zeichen);

// Well-formed UTF-8 (no overlong forms, no surrogates, nothing above 10FFFFh).
bool Ist_UTF8(std::string_view Text);
// From UTF-8; a character outside Windows-1252 becomes `?`, and so does each byte of a malformed
// sequence.
std::string Aus_UTF8(std::string_view Text);
// To UTF-8; the five bytes without a character (81h, 8Dh, 8Fh, 90h, 9Dh) become the C1 controls
// of the same number, and come back by Aus_UTF8.
std::string Nach_UTF8(std::string_view Text);

} // namespace varnholt
