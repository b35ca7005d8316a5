// Intel-HEX, in both directions.
#include "files/Intel_Hex.h"

#include "core/shared_state.h"
#include "files/Hexpaare.h"
#include "files/Zeilenleser.h"
#include "language/HexDez.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace varnholt {
namespace {

constexpr std::string_view Endesatz     = ":00000001FF";
constexpr std::size_t      Satz_Laenge  = 16; // data bytes of a full record
constexpr std::size_t      Daten_Stelle = 10; // first character of the data, counted from 1

// Two's complement of the sum of address bytes, length and data.
std::uint8_t Pruefsumme(std::size_t Adresse, std::span<const std::uint8_t> Daten)
{
    std::size_t Summe = Adresse / 256 + Adresse % 256 + Daten.size();
    for (const std::uint8_t b : Daten)
        Summe += b;
    return static_cast<std::uint8_t>(256 - Summe % 256);
}

void Satz_Anhaengen(std::string& Ziel, std::size_t Adresse, std::span<const std::uint8_t> Daten)
{
    std::array<char, 1 + 2 * (4 + Satz_Laenge + 1)> Satz{};
    char*                                           z = Satz.data();
    *z++                                              = ':';
    Paar_Schreiben(z, static_cast<std::uint8_t>(Daten.size()));
    Paar_Schreiben(z, static_cast<std::uint8_t>(Adresse / 256));
    Paar_Schreiben(z, static_cast<std::uint8_t>(Adresse % 256));
    Paar_Schreiben(z, 0); // record type: data
    for (const std::uint8_t b : Daten)
        Paar_Schreiben(z, b);
    Paar_Schreiben(z, Pruefsumme(Adresse, Daten));
    Ziel.append(Satz.data(), z).append(CRLF);
}

} // namespace

void Intel_Hex_Lesen(std::string_view Text, std::int32_t Versatz, std::span<std::uint8_t> Speicher)
{
    Zeilenleser Leser(Text);
    for (Textzeile_T z; Leser.Weiter(z) && z.Inhalt != Endesatz;)
        Paare_Speichern(Feld(z.Inhalt, Daten_Stelle, std::string_view::npos),
                        Hex_zu_Wert(Feld(z.Inhalt, 2, 2)),
                        Hex_zu_Wert(Feld(z.Inhalt, 4, 4)) + Versatz,
                        Speicher);
}

std::string Intel_Hex_Schreiben(std::span<const std::uint8_t> Benutzt)
{
    assert(Benutzt.size() <= Intel_Hex_Hoechstens);
    std::string Ziel;
    const auto  Erstes =
        std::find_if(Benutzt.begin(), Benutzt.end(), [](std::uint8_t b) { return b != 0xFF; });
    for (auto a = static_cast<std::size_t>(Erstes - Benutzt.begin()); a < Benutzt.size();
         a += Satz_Laenge)
        Satz_Anhaengen(Ziel, a, Benutzt.subspan(a, std::min(Satz_Laenge, Benutzt.size() - a)));
    return Ziel.append(Endesatz).append(CRLF);
}

} // namespace varnholt
