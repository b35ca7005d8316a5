// Colouring of source lines and of the whole text.
#include "editors/Einfaerben.h"
#include "simulator/Sitzung.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "editors/Quelltext.h"
#include "editors/Quelltext_Sperre.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace varnholt {
namespace {

// The colon behind one of these belongs to a data line. The assembler reads them in either case.
constexpr std::array<std::string_view, 5> Daten_Worte = {"DB", "DW", "HEX", "DEZ", "ASC"};

bool Ist_Datenwort(std::string_view Wort)
{
    return Wort.size() <= 3 && std::any_of(Daten_Worte.begin(), Daten_Worte.end(), [&](auto w) {
               return Gleich_Ohne_Fall(Wort, w);
           });
}

// Calls Je_Marke with the place of each ":" that ends a jumpmark and with the jumpmark's name; the
// result is where the comment begins.
template <class Besuch> std::size_t Marken_Durchlaufen(std::string_view Zeile, Besuch&& Je_Marke)
{
    const std::size_t Erstes = std::min(Zeile.find_first_not_of(" \t"), Zeile.size());
    return Code_Durchlaufen(Zeile, [&](std::size_t i) {
        if (Zeile[i] != ':')
            return;
        const std::string_view Name = Zeile.substr(Erstes, i - Erstes);
        if (!Ist_Datenwort(Name))
            Je_Marke(i, Name);
    });
}

// The text can't be typed into while it is coloured: the places would no longer be right.
struct Schreibschutz {
    Schreibschutz() { Plattform.Edit->Sperren(true); }
    ~Schreibschutz() { Plattform.Edit->Sperren(Debugger_Aktiv); }
    Schreibschutz(const Schreibschutz&)            = delete;
    Schreibschutz& operator=(const Schreibschutz&) = delete;
};

void Fortschritt_Zeigen(std::size_t Prozent)
{
    const std::string Text = In_Sprache(
        {" Einfärben der Kommentare und Sprungmarken... ", " Colorizing the instructions... "});
    Plattform.Status->Text(Text + std::to_string(Prozent) + "%");
}

// End of the slice that begins at Anfang: behind the line in which the next whole per cent is
// reached.
std::size_t Scheibe_Ende(std::string_view Text, std::size_t Anfang)
{
    const std::size_t Prozent = Anfang * 100 / Text.size();
    const std::size_t Ziel    = std::max((Prozent + 1) * Text.size() / 100, Anfang + 1);
    const std::size_t LF      = Text.find('\n', Ziel - 1);
    return LF == std::string_view::npos ? Text.size() : LF + 1;
}

void Scheibe_Faerben(std::string_view Text, std::size_t Anfang, std::size_t Ende)
{
    std::vector<Farbstelle_T> Stellen;
    Zeilen_Faerben(
        Text.substr(Anfang, Ende - Anfang), static_cast<std::int64_t>(Anfang), false, Stellen);
    const Edit_Ruhe Ruhe;
    Plattform.Edit->Faerben(Stellen);
}

// A turn of the event loop; false: the colouring was stopped, or another text came meanwhile.
bool Weiter_Nach_Runde(std::uint64_t Lauf, std::size_t Laenge)
{
    Plattform.Ereignisse->Eine_Runde();
    return !std::exchange(Debug_Stop, false) && Einfaerben.Lauf == Lauf &&
           Plattform.Edit->Laenge() == static_cast<std::int64_t>(Laenge);
}

} // namespace

std::vector<std::string_view> Marken_Namen(std::string_view Zeile)
{
    std::vector<std::string_view> Namen;
    Marken_Durchlaufen(Zeile, [&](std::size_t, std::string_view Name) { Namen.push_back(Name); });
    return Namen;
}

Zeilen_Teile_T Zeile_Teilen(std::string_view Zeile)
{
    Zeilen_Teile_T Teile;
    Teile.Kommentar =
        Marken_Durchlaufen(Zeile, [&](std::size_t i, std::string_view) { Teile.Marke = i + 1; });
    return Teile;
}

void Zeile_Faerben(std::string_view           Zeile,
                   std::int64_t               Anfang,
                   bool                       Mit_Text,
                   std::vector<Farbstelle_T>& Stellen)
{
    const Zeilen_Teile_T Teile   = Zeile_Teilen(Zeile);
    const auto           Anfügen = [&](std::size_t Von, std::size_t Bis, std::int32_t Farbe) {
        if (Bis > Von)
            Stellen.push_back({Anfang + static_cast<std::int64_t>(Von),
                               static_cast<std::int64_t>(Bis - Von),
                               Farbe});
    };
    Anfügen(0, Teile.Marke, Farbe_Marke);
    if (Mit_Text)
        Anfügen(Teile.Marke, Teile.Kommentar, Farbe_Text);
    Anfügen(Teile.Kommentar, Zeile.size(), Farbe_Kommentar);
}

void Zeilen_Faerben(std::string_view           Stueck,
                    std::int64_t               Anfang,
                    bool                       Mit_Text,
                    std::vector<Farbstelle_T>& Stellen)
{
    for (std::size_t i = 0; i < Stueck.size();) {
        const std::size_t      LF    = std::min(Stueck.find('\n', i), Stueck.size());
        const std::string_view Zeile = Stueck.substr(i, LF - i);
        const bool             CR    = !Zeile.empty() && Zeile.back() == '\r';
        Zeile_Faerben(Zeile.substr(0, Zeile.size() - (CR ? 1 : 0)),
                      Anfang + static_cast<std::int64_t>(i),
                      Mit_Text,
                      Stellen);
        i = LF + 1;
    }
}

void Zeilen_Einfaerben(std::int64_t Erste, std::int64_t Letzte)
{
    const std::int64_t Von = std::max<std::int64_t>(Erste, 0);
    const std::int64_t Bis = std::min(Letzte, Plattform.Edit->Zeilen_Anzahl() - 1);
    if (Von > Bis)
        return;
    const auto         Anfang = static_cast<std::size_t>(Plattform.Edit->Zeile(Von).Anfang);
    const Textstelle_T Ende   = Plattform.Edit->Zeile(Bis);
    const auto         Laenge = static_cast<std::size_t>(Ende.Anfang + Ende.Laenge) - Anfang;

    std::string               Puffer;
    std::vector<Farbstelle_T> Stellen;
    Zeilen_Faerben(Plattform.Edit->Text_Ansicht(Puffer).substr(Anfang, Laenge),
                   static_cast<std::int64_t>(Anfang),
                   true,
                   Stellen);
    const Edit_Ruhe Ruhe;
    Plattform.Edit->Faerben(Stellen);
}

// The text is copied: the event loop runs between two slices, and whatever happens there must not
// pull it away.
void Edit_Einfaerben()
{
    if (!Plattform.Edit->Wird_Gezeigt())
        return;
    const std::string   Text = Plattform.Edit->Text();
    const std::uint64_t Lauf = ++Einfaerben.Lauf;
    const Schreibschutz Schutz;
    for (std::size_t Anfang = 0; Anfang < Text.size();) {
        const std::size_t Ende = Scheibe_Ende(Text, Anfang);
        Scheibe_Faerben(Text, Anfang, Ende);
        Fortschritt_Zeigen(Ende * 100 / Text.size());
        if (!Weiter_Nach_Runde(Lauf, Text.size()))
            return;
        Anfang = Ende;
    }
}

} // namespace varnholt
