// Digit pairs into the image. Two plain digits go by table, everything else by the general reader.
#include "files/Hexpaare.h"

#include "language/HexDez.h"

#include <algorithm>

namespace varnholt {
namespace {

// Value of a digit; 80h and above for any other character, so that one test serves a pair.
constexpr std::array<std::uint8_t, 256> Ziffer_Tabelle = [] {
    std::array<std::uint8_t, 256> t{};
    t.fill(0x80);
    for (std::size_t i = 0; i < 16; ++i) {
        t[static_cast<std::uint8_t>("0123456789ABCDEF"[i])] = static_cast<std::uint8_t>(i);
        t[static_cast<std::uint8_t>("0123456789abcdef"[i])] = static_cast<std::uint8_t>(i);
    }
    return t;
}();

int Paar_Wert(std::string_view Ziffern, std::size_t Stelle)
{
    if (Stelle + 2 > Ziffern.size())
        return Hex_zu_Wert(Ziffern.substr(std::min(Stelle, Ziffern.size())));
    const std::uint8_t Hoch    = Ziffer_Tabelle[static_cast<std::uint8_t>(Ziffern[Stelle])];
    const std::uint8_t Niedrig = Ziffer_Tabelle[static_cast<std::uint8_t>(Ziffern[Stelle + 1])];
    if (((Hoch | Niedrig) & 0x80) == 0)
        return 16 * Hoch + Niedrig;
    return Hex_zu_Wert(Ziffern.substr(Stelle, 2));
}

} // namespace

void Paare_Speichern(std::string_view        Ziffern,
                     std::int32_t            Anzahl,
                     std::int32_t            Adresse,
                     std::span<std::uint8_t> Speicher)
{
    const std::int64_t Ende = std::min<std::int64_t>(std::int64_t{Adresse} + Anzahl,
                                                     static_cast<std::int64_t>(Speicher.size()));
    for (std::int64_t a = std::max(Adresse, 0); a < Ende; ++a) {
        const int Wert = Paar_Wert(Ziffern, static_cast<std::size_t>(2 * (a - Adresse)));
        if (Wert >= 0)
            Speicher[static_cast<std::size_t>(a)] = static_cast<std::uint8_t>(Wert);
    }
}

} // namespace varnholt
