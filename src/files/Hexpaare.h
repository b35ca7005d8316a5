// Digit pairs of the hexadecimal formats, by table: from a record into the image and from the image
// into a record.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace varnholt {

// Characters of a line from Stelle on, counted from 1; fewer, or none, where the line ends before.
constexpr std::string_view Feld(std::string_view Zeile, std::size_t Stelle, std::size_t Anzahl)
{
    return Zeile.size() < Stelle ? std::string_view{} : Zeile.substr(Stelle - 1, Anzahl);
}
static_assert(Feld(":10", 2, 4) == "10" && Feld(":10", 4, 2).empty());

// Stores Anzahl digit pairs of Ziffern from Adresse upward. A pair behind the end of Ziffern is 0;
// one with a wrong character leaves its byte as it is; what lies outside the image is passed over.
void Paare_Speichern(std::string_view        Ziffern,
                     std::int32_t            Anzahl,
                     std::int32_t            Adresse,
                     std::span<std::uint8_t> Speicher);

inline constexpr std::array<std::array<char, 2>, 256> Paar_Tabelle = [] {
    std::array<std::array<char, 2>, 256> t{};
    for (std::size_t i = 0; i < 256; ++i)
        t[i] = {"0123456789ABCDEF"[i / 16], "0123456789ABCDEF"[i % 16]};
    return t;
}();

// Writes a byte as two upper-case digits and moves behind them.
inline void Paar_Schreiben(char*& Ziel, std::uint8_t Byte)
{
    *Ziel++ = Paar_Tabelle[Byte][0];
    *Ziel++ = Paar_Tabelle[Byte][1];
}

} // namespace varnholt
