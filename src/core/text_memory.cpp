// A text control that only remembers. It is slow for long texts with many colours, and needn't be
// faster.
#include "core/text_memory.h"

#include "core/codepage.h"

#include <algorithm>

namespace varnholt {
namespace {

std::size_t Als_Index(std::int64_t n) { return static_cast<std::size_t>(n); }

// Line ends have no colour: what is typed at the start of a line is ordinary text.
bool Zeilen_Ende(char Zeichen) { return Zeichen == '\r' || Zeichen == '\n'; }

} // namespace

void Speicher_Text::Text_Setzen(std::string Neuer)
{
    Inhalt = std::move(Neuer);
    Zeichen_Farbe.clear();
    Auswaehlen(0, 0);
}

std::string Speicher_Text::Text_UTF8() const { return Nach_UTF8(Inhalt); }

void Speicher_Text::Text_Setzen_UTF8(std::string_view Neuer) { Text_Setzen(Aus_UTF8(Neuer)); }

Textstelle_T Speicher_Text::Im_Text(Textstelle_T Stelle) const
{
    const std::int64_t Anfang = std::clamp<std::int64_t>(Stelle.Anfang, 0, Laenge());
    return {Anfang, std::clamp<std::int64_t>(Stelle.Laenge, 0, Laenge() - Anfang)};
}

void Speicher_Text::Farben_Angleichen() const { Zeichen_Farbe.resize(Inhalt.size(), 0); }

Textstelle_T Speicher_Text::Auswahl() const { return Im_Text({Auswahl_Anfang, Auswahl_Laenge}); }

std::string Speicher_Text::Auswahl_Text() const
{
    const Textstelle_T a = Auswahl();
    return Inhalt.substr(Als_Index(a.Anfang), Als_Index(a.Laenge));
}

void Speicher_Text::Auswahl_Ersetzen(std::string_view Neuer)
{
    Farben_Angleichen();
    const Textstelle_T a      = Auswahl();
    const std::int32_t Farbe  = Farbe_An(a.Laenge > 0 ? a.Anfang : a.Anfang - 1);
    const auto         Beginn = Zeichen_Farbe.begin() + a.Anfang;
    Inhalt.replace(Als_Index(a.Anfang), Als_Index(a.Laenge), Neuer);
    Zeichen_Farbe.insert(Zeichen_Farbe.erase(Beginn, Beginn + a.Laenge), Neuer.size(), 0);
    const Farbstelle_T Eingesetzt{a.Anfang, static_cast<std::int64_t>(Neuer.size()), Farbe};
    Faerben({&Eingesetzt, 1});
    Auswaehlen(a.Anfang + Eingesetzt.Laenge, 0);
}

void Speicher_Text::Ersetzen(Textstelle_T Stueck, std::string_view Neuer)
{
    const Textstelle_T Alt      = Auswahl();
    const Textstelle_T s        = Im_Text(Stueck);
    const auto         Dazu     = static_cast<std::int64_t>(Neuer.size()) - s.Laenge;
    const auto         Versetzt = [&](std::int64_t Ort) {
        return Ort >= s.Anfang + s.Laenge ? Ort + Dazu : Ort;
    };
    Auswaehlen(s.Anfang, s.Laenge);
    Auswahl_Ersetzen(Neuer);
    const std::int64_t Anfang = Versetzt(Alt.Anfang);
    Auswaehlen(Anfang, Versetzt(Alt.Anfang + Alt.Laenge) - Anfang);
}

void Speicher_Text::Auswahl_Faerben(std::int32_t Farbe)
{
    const Textstelle_T a = Auswahl();
    const Farbstelle_T f{a.Anfang, a.Laenge, Farbe};
    Faerben({&f, 1});
}

void Speicher_Text::Faerben(std::span<const Farbstelle_T> Stellen)
{
    Farben_Angleichen();
    for (const Farbstelle_T& f : Stellen) {
        const Textstelle_T s = Im_Text({f.Anfang, f.Laenge});
        for (std::int64_t i = s.Anfang; i < s.Anfang + s.Laenge; ++i)
            Zeichen_Farbe[Als_Index(i)] = Zeilen_Ende(Inhalt[Als_Index(i)]) ? 0 : f.Farbe;
    }
}

std::int32_t Speicher_Text::Farbe_An(std::int64_t Stelle) const
{
    const bool Bekannt = Stelle >= 0 && Als_Index(Stelle) < Zeichen_Farbe.size();
    return Bekannt ? Zeichen_Farbe[Als_Index(Stelle)] : 0;
}

std::vector<Farbstelle_T> Speicher_Text::Farben(Textstelle_T Stueck) const
{
    std::vector<Farbstelle_T> Liste;
    const Textstelle_T        s = Im_Text(Stueck);
    for (std::int64_t i = s.Anfang; i < s.Anfang + s.Laenge; ++i) {
        const std::int32_t Farbe = Farbe_An(i);
        if (Farbe == 0)
            continue;
        if (!Liste.empty() && Liste.back().Farbe == Farbe &&
            Liste.back().Anfang + Liste.back().Laenge == i)
            ++Liste.back().Laenge;
        else
            Liste.push_back({i, 1, Farbe});
    }
    return Liste;
}

std::int64_t Speicher_Text::Zeile_Von(std::int64_t Stelle) const
{
    return std::count(Inhalt.begin(), Inhalt.begin() + Im_Text({Stelle, 0}).Anfang, '\n');
}

Textstelle_T Speicher_Text::Zeile(std::int64_t Nummer) const
{
    std::size_t Anfang = 0;
    for (std::int64_t i = 0; i < Nummer; ++i) {
        const std::size_t LF = Inhalt.find('\n', Anfang);
        if (LF == std::string::npos)
            return {Laenge(), 0};
        Anfang = LF + 1;
    }
    const std::size_t Ende = std::min(Inhalt.find("\r\n", Anfang), Inhalt.size());
    return {static_cast<std::int64_t>(Anfang), static_cast<std::int64_t>(Ende - Anfang)};
}

std::int64_t Speicher_Text::Zeilen_Anzahl() const
{
    return 1 + std::count(Inhalt.begin(), Inhalt.end(), '\n');
}

} // namespace varnholt
