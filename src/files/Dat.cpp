// DAT, in both directions.
#include "files/Dat.h"

#include "core/shared_state.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace varnholt {
namespace {

constexpr std::int64_t     Lauf_Marke = 999;       // opens a run; larger than any byte
constexpr std::int64_t     Sehr_Gross = 1LL << 31; // larger numbers count as this
constexpr std::string_view Leerraum   = " \t";

// The next item, without blanks around it; Rest moves behind its separator.
std::string_view Posten_Holen(std::string_view& Rest)
{
    const std::size_t Ende   = std::min(Rest.find_first_of(",\r\n"), Rest.size());
    std::string_view  Posten = Rest.substr(0, Ende);
    Rest.remove_prefix(std::min(Ende + 1, Rest.size()));
    Posten.remove_prefix(std::min(Posten.find_first_not_of(Leerraum), Posten.size()));
    return Posten.substr(0, Posten.find_last_not_of(Leerraum) + 1);
}

std::int64_t Gerundet(double Zahl)
{
    constexpr auto Grenze = static_cast<double>(Sehr_Gross);
    return static_cast<std::int64_t>(std::nearbyint(std::clamp(Zahl, -Grenze, Grenze)));
}

// A decimal number with sign, point and exponent, halves to the even one; empty for anything else.
std::optional<std::int64_t> Zahl_Lesen(std::string_view Posten)
{
    const bool Negativ = Posten.starts_with('-');
    if (Negativ || Posten.starts_with('+'))
        Posten.remove_prefix(1);
    const std::size_t Erste = Posten.starts_with('.') ? 1 : 0;
    if (Erste >= Posten.size() || Posten[Erste] < '0' || Posten[Erste] > '9')
        return std::nullopt; // from_chars would take a second sign, and words such as "inf"
    double Wert          = 0;
    const auto [p, Lage] = std::from_chars(Posten.data(), Posten.data() + Posten.size(), Wert);
    if (p != Posten.data() + Posten.size())
        return std::nullopt;
    if (Lage == std::errc::result_out_of_range)
        Wert = Posten.find('-') == std::string_view::npos ? static_cast<double>(Sehr_Gross) : 0;
    return Gerundet(Negativ ? -Wert : Wert);
}

// Stores runs one behind another. A single byte is a run of one.
class Schreiber {
public:
    Schreiber(std::int64_t Anfang, std::span<std::uint8_t> Ziel) : Adresse(Anfang), Speicher(Ziel)
    {
    }

    void Lauf(std::int64_t Anzahl, std::int64_t Wert)
    {
        const std::int64_t Groesse = std::ssize(Speicher);
        const std::int64_t Ende    = Adresse + std::max<std::int64_t>(Anzahl, 0);
        if (Wert >= 0 && Wert <= 255 && Adresse < Groesse)
            std::fill(Speicher.begin() + Adresse,
                      Speicher.begin() + std::min(Ende, Groesse),
                      static_cast<std::uint8_t>(Wert));
        Adresse = Ende;
    }

private:
    std::int64_t            Adresse;
    std::span<std::uint8_t> Speicher;
};

// The next number of the file, comments and words passed over; empty at the end.
std::optional<std::int64_t> Naechste_Zahl(std::string_view& Rest)
{
    while (!Rest.empty())
        if (const auto Zahl = Zahl_Lesen(Posten_Holen(Rest)))
            return Zahl;
    return std::nullopt;
}

void Zeile_Anhaengen(std::string& Ziel, std::size_t Zahl)
{
    char       Ziffern[20];
    const auto Ende = std::to_chars(std::begin(Ziffern), std::end(Ziffern), Zahl).ptr;
    Ziel.append(Ziffern, Ende).append(CRLF);
}

} // namespace

void Dat_Lesen(std::string_view Text, std::int32_t Adresse, std::span<std::uint8_t> Speicher)
{
    Schreiber Ziel(Adresse, Speicher);
    while (const auto Zahl = Naechste_Zahl(Text)) {
        if (*Zahl < 256) {
            Ziel.Lauf(1, *Zahl);
        } else if (*Zahl == Lauf_Marke) {
            const auto Anzahl = Naechste_Zahl(Text);
            const auto Wert   = Naechste_Zahl(Text);
            if (Anzahl && Wert)
                Ziel.Lauf(*Anzahl, *Wert);
        }
    }
}

std::string Dat_Schreiben(std::span<const std::uint8_t> Benutzt)
{
    std::string Ziel;
    for (auto p = Benutzt.begin(); p != Benutzt.end();) {
        const auto e = std::find_if(p, Benutzt.end(), [&](std::uint8_t b) { return b != *p; });
        if (e - p > 1) {
            Zeile_Anhaengen(Ziel, static_cast<std::size_t>(Lauf_Marke));
            Zeile_Anhaengen(Ziel, static_cast<std::size_t>(e - p));
        }
        Zeile_Anhaengen(Ziel, *p);
        p = e;
    }
    return Ziel;
}

} // namespace varnholt
