// The jumpmark list of the source text, and the way from an entry to its place.
#include "editors/Sprungmarken.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "editors/Einfaerben.h"
#include "editors/Quelltext_Sperre.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace varnholt {
namespace {

// A colon behind one of these is part of a data statement, whatever stands before it.
constexpr std::array<std::string_view, 5> Daten_Enden = {"HEX", "DEZ", "ASC", "DB", "DW"};

constexpr std::string_view Keine_Marken_D = "Keine Sprungmarken";
constexpr std::string_view Keine_Marken_E = "No jumpmarks";

bool Endet_Mit_Datenwort(std::string_view Text)
{
    return std::any_of(Daten_Enden.begin(), Daten_Enden.end(), [&](std::string_view Wort) {
        return Text.size() >= Wort.size() &&
               Beginnt_Ohne_Fall(Text.substr(Text.size() - Wort.size()), Wort);
    });
}

// The mark that the text from the line's start to a ":" stands for.
std::optional<std::string_view> Marke_Aus(std::string_view Text)
{
    const bool Eingerueckt = !Text.empty() && Ist_Leerraum(Text.front());
    if (Endet_Mit_Datenwort(Text) || (C_keine_TAB_SM && Eingerueckt))
        return std::nullopt;
    Text.remove_prefix(std::min(Text.find_first_not_of(" \t"), Text.size()));
    return Text;
}

constexpr bool Beendet_Suche(char Zeichen)
{
    return Zeichen == ';' || Zeichen == '\'' || Zeichen == '"';
}

// Appends the marks of a line. A quote or a comment sign ends the search: each later ":" lies in a
// string or in a comment.
void Zeile_Durchsuchen(std::string_view Zeile, std::vector<std::string>& Marken)
{
    const auto Ende = std::find_if(Zeile.begin(), Zeile.end(), Beendet_Suche);
    Zeile           = Zeile.substr(0, static_cast<std::size_t>(Ende - Zeile.begin()));
    for (std::size_t i = Zeile.find(':'); i < Zeile.size(); i = Zeile.find(':', i + 1)) {
        if (i > Marke_Hoechstens || Marken.size() >= Marken_Hoechstens)
            return;
        if (const auto Marke = Marke_Aus(Zeile.substr(0, i)))
            Marken.emplace_back(*Marke);
    }
}

std::vector<std::string> Marken_Suchen(std::string_view Text)
{
    std::vector<std::string> Marken;
    for (std::size_t i = 0; i < Text.size();) {
        const std::size_t      LF    = std::min(Text.find('\n', i), Text.size());
        const std::string_view Zeile = Text.substr(i, LF - i);
        if (Zeile.find(':') != std::string_view::npos)
            Zeile_Durchsuchen(Zeile, Marken);
        i = LF + 1;
    }
    return Marken;
}

// Whether the options leave a mark out of the window.
bool Ausgeblendet(std::string_view Marke)
{
    for (const char Zeichen : Marke) {
        if ((Zeichen == '_' && C_keine_US_SM) || (Zeichen == '\t' && C_keine_TAB_SM))
            return true;
        if (!Ist_Leerraum(Zeichen))
            break;
    }
    return false;
}

std::vector<std::string> Liste_Bilden(const std::vector<std::string>& Marken)
{
    if (Marken.empty())
        return {In_Sprache({std::string(Keine_Marken_D), std::string(Keine_Marken_E)})};
    std::vector<std::string> Eintraege;
    std::copy_if(Marken.begin(),
                 Marken.end(),
                 std::back_inserter(Eintraege),
                 [](const std::string& Marke) { return !Ausgeblendet(Marke); });
    return Eintraege;
}

void Liste_Erneuern()
{
    std::vector<std::string> Neue = Liste_Bilden(Sprungmarken_Liste);
    if (Neue == Sprungmarken.Liste)
        return;
    Sprungmarken.Liste = std::move(Neue);
    ++Sprungmarken.Liste_Stand;
}

// First place of a mark at the text's start or behind a line end, a blank or a tab.
std::optional<std::size_t> Marke_Finden(std::string_view Text, std::string_view Marke)
{
    constexpr std::string_view Davor = "\r\n \t";
    for (std::size_t i = Text.find(Marke); i != std::string_view::npos;
         i             = Text.find(Marke, i + Marke.size()))
        if (i == 0 || Davor.find(Text[i - 1]) != std::string_view::npos)
            return i;
    return std::nullopt;
}

void Marke_Auswaehlen(std::string_view Marke)
{
    const Edit_Ruhe Ruhe;
    Plattform.Edit->Auswaehlen(0, 0);
    std::string Puffer;
    if (const auto Stelle = Marke_Finden(Plattform.Edit->Text_Ansicht(Puffer), Marke))
        Plattform.Edit->Auswaehlen(static_cast<std::int64_t>(*Stelle),
                                   static_cast<std::int64_t>(Marke.size()));
}

} // namespace

void Sprungmarken_Fuellen()
{
    std::string Puffer;
    Sprungmarken_Liste  = Marken_Suchen(Plattform.Edit->Text_Ansicht(Puffer));
    Sprungmarken_Anzahl = static_cast<int>(Sprungmarken_Liste.size());
    Liste_Erneuern();
}

void Spr_Liste_Click(int Eintrag)
{
    if (Eintrag < 0 || static_cast<std::size_t>(Eintrag) >= Sprungmarken.Liste.size())
        return;
    const std::string Marke = Sprungmarken.Liste[static_cast<std::size_t>(Eintrag)];
    if (Marke == Keine_Marken_D || Marke == Keine_Marken_E)
        return;
    Marke_Auswaehlen(Marke);
    Plattform.Edit->Fokus();
}

} // namespace varnholt
