// Cuts the bytes of an RTF file into its marks.
#include "files/Rtf_Zerleger.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr bool Buchstabe(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool Ziffer(char c) { return c >= '0' && c <= '9'; }

constexpr int Hex_Ziffer(char c)
{
    if (Ziffer(c))
        return c - '0';
    const char Klein = static_cast<char>(c | 0x20);
    return Klein >= 'a' && Klein <= 'f' ? Klein - 'a' + 10 : -1;
}

} // namespace

Rtf_Marke_T Rtf_Zerleger::Naechste()
{
    Ort = std::min(Bytes.find_first_not_of(std::string_view("\r\n\0", 3), Ort), Bytes.size());
    if (Ort == Bytes.size())
        return {};
    switch (Bytes[Ort]) {
    case '{':
        ++Ort;
        return {Rtf_Marke_T::Gruppe_Auf};
    case '}':
        ++Ort;
        return {Rtf_Marke_T::Gruppe_Zu};
    case '\\':
        ++Ort;
        return Mit_Backslash();
    default:
        break;
    }
    const std::size_t Von = Ort;
    Ort = std::min(Bytes.find_first_of(std::string_view("{}\\\r\n\0", 6), Ort), Bytes.size());
    return {Rtf_Marke_T::Text, Bytes.substr(Von, Ort - Von)};
}

Rtf_Marke_T Rtf_Zerleger::Mit_Backslash()
{
    if (Ort == Bytes.size())
        return {};
    const char c = Bytes[Ort];
    if (Buchstabe(c))
        return Wort();
    ++Ort;
    if (c == '\'')
        return Hexadezimal();
    if (c == '\r' && Ort < Bytes.size() && Bytes[Ort] == '\n')
        ++Ort;
    return {Rtf_Marke_T::Symbol, {}, c};
}

// \'hh; without two digits nothing stands there.
Rtf_Marke_T Rtf_Zerleger::Hexadezimal()
{
    const int Hoch = Ort < Bytes.size() ? Hex_Ziffer(Bytes[Ort]) : -1;
    const int Tief = Ort + 1 < Bytes.size() ? Hex_Ziffer(Bytes[Ort + 1]) : -1;
    if (Hoch < 0 || Tief < 0)
        return {Rtf_Marke_T::Symbol, {}, '\''};
    Ort += 2;
    return {Rtf_Marke_T::Byte, {}, static_cast<char>(16 * Hoch + Tief)};
}

Rtf_Marke_T Rtf_Zerleger::Wort()
{
    constexpr std::string_view Roh = "bin"; // that many bytes of anything follow
    const std::size_t          Von = Ort;
    while (Ort < Bytes.size() && Buchstabe(Bytes[Ort]))
        ++Ort;
    Rtf_Marke_T Marke{Rtf_Marke_T::Wort, Bytes.substr(Von, Ort - Von)};
    Marke.Mit_Zahl = Zahl_Lesen(Marke.Zahl);
    if (Ort < Bytes.size() && Bytes[Ort] == ' ')
        ++Ort;
    if (Marke.Inhalt == Roh && Marke.Zahl > 0)
        Ort += std::min(static_cast<std::size_t>(Marke.Zahl), Bytes.size() - Ort);
    return Marke;
}

// The number behind a word, drawn into 31 bits.
bool Rtf_Zerleger::Zahl_Lesen(std::int32_t& Zahl)
{
    constexpr std::int64_t Hoechstens = 0x7FFFFFFF;
    const bool             Minus      = Ort < Bytes.size() && Bytes[Ort] == '-';
    std::size_t            i          = Ort + (Minus ? 1 : 0);
    if (i >= Bytes.size() || !Ziffer(Bytes[i]))
        return false;
    std::int64_t Wert = 0;
    for (; i < Bytes.size() && Ziffer(Bytes[i]); ++i)
        Wert = std::min(10 * Wert + (Bytes[i] - '0'), Hoechstens);
    Ort  = i;
    Zahl = static_cast<std::int32_t>(Minus ? -Wert : Wert);
    return true;
}

} // namespace varnholt
