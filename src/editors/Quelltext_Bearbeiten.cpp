// The handling of a finished line of source text.
//
// Which line that is: a control reports a move of the caret at each typed character, too, and a
// line is not to be rewritten under the user's hands. So Text_Change keeps the number of the line
// that was changed, and it is handled when the selection no longer touches it. Lines that came or
// went since shift the number: they always do so at the caret.
#include "core/codepage.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "editors/Einfaerben.h"
#include "editors/Quelltext.h"
#include "editors/Quelltext_Sperre.h"
#include "editors/Quelltext_Zeile.h"
#include "editors/Sprungmarken.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace varnholt {
namespace {

// More single replacements than this in one line would keep the user waiting; the line then stays
// as typed. Only a line with very many "?" has so many.
constexpr std::size_t Ersetzungen_Hoechstens = 100;

constexpr std::size_t Marke_Mindestens = 3;

// Number of a line after Dazu lines came (or went, below 0) with the caret now in Schreibzeile.
constexpr std::int64_t
Zeile_Danach(std::int64_t Zeile, std::int64_t Dazu, std::int64_t Schreibzeile)
{
    if (Dazu >= 0)
        return Zeile > Schreibzeile - Dazu ? Zeile + Dazu : Zeile;
    return Zeile > Schreibzeile ? std::max(Schreibzeile, Zeile + Dazu) : Zeile;
}
static_assert(Zeile_Danach(5, 1, 6) == 5);  // Enter in line 5
static_assert(Zeile_Danach(5, -1, 4) == 4); // line 5 joined to line 4
static_assert(Zeile_Danach(5, -1, 5) == 5); // line 6 joined to line 5
static_assert(Zeile_Danach(5, 2, 3) == 7);  // two lines came above

// Brings the numbers of the changed lines up to date, the caret being in Schreibzeile.
void Nummern_Nachfuehren(std::int64_t Schreibzeile)
{
    const std::int64_t Anzahl = Plattform.Edit->Zeilen_Anzahl();
    const std::int64_t Dazu   = Anzahl - Zeilen_In_Arbeit.Zeilen_Dabei;
    for (std::int64_t& Zeile : Zeilen_In_Arbeit.Geaenderte_Zeilen)
        Zeile = std::min(Zeile_Danach(Zeile, Dazu, Schreibzeile), Anzahl - 1);
    Zeilen_In_Arbeit.Zeilen_Dabei = Anzahl;
}

void Nummer_Dazu(std::int64_t Zeile)
{
    auto& Zeilen = Zeilen_In_Arbeit.Geaenderte_Zeilen;
    if (std::find(Zeilen.begin(), Zeilen.end(), Zeile) == Zeilen.end())
        Zeilen.push_back(Zeile);
}

// Takes the changed lines that the selection doesn't touch any more out of the list.
std::vector<std::int64_t> Verlassene_Zeilen()
{
    const Textstelle_T Auswahl = Plattform.Edit->Auswahl();
    const std::int64_t Erste   = Plattform.Edit->Zeile_Von(Auswahl.Anfang);
    const std::int64_t Letzte  = Plattform.Edit->Zeile_Von(Auswahl.Anfang + Auswahl.Laenge);
    auto&              Zeilen  = Zeilen_In_Arbeit.Geaenderte_Zeilen;
    Nummern_Nachfuehren(Erste);
    if (Zeilen.empty())
        Zeilen = {Erste};
    const auto Ab = std::stable_partition(
        Zeilen.begin(), Zeilen.end(), [&](std::int64_t z) { return z >= Erste && z <= Letzte; });
    std::vector<std::int64_t> Verlassen(Ab, Zeilen.end());
    Zeilen.erase(Ab, Zeilen.end());
    return Verlassen;
}

std::string_view Zeilen_Text(Textstelle_T Stelle, std::string& Puffer)
{
    return Plattform.Edit->Text_Ansicht(Puffer).substr(static_cast<std::size_t>(Stelle.Anfang),
                                                       static_cast<std::size_t>(Stelle.Laenge));
}

// From the last one on, so that the places before it stay right.
void Ersetzungen_Schreiben(std::int64_t Anfang, std::vector<Ersetzung_T> Liste)
{
    std::reverse(Liste.begin(), Liste.end());
    for (const Ersetzung_T& e : Liste) {
        Plattform.Edit->Ersetzen(
            {Anfang + static_cast<std::int64_t>(e.Anfang), static_cast<std::int64_t>(e.Laenge)},
            e.Neu);
    }
}

// Rewrites a line; the selection, which doesn't touch it, stays at its characters.
// Result: the line as it now stands.
std::string Zeile_Umschreiben(Textstelle_T Stelle)
{
    std::string              Puffer;
    std::string              Alt(Zeilen_Text(Stelle, Puffer));
    Abgesetzt_T              Neu = Operatoren_Absetzen(Worte_Angleichen(Alt, O_Automatik_Bef));
    std::vector<Ersetzung_T> Ersetzungen = Ersetzungen_Bilden(Alt, Neu);
    if (Ersetzungen.empty() || Ersetzungen.size() > Ersetzungen_Hoechstens)
        return Alt;
    Ersetzungen_Schreiben(Stelle.Anfang, std::move(Ersetzungen));
    return std::move(Neu.Text);
}

bool Mehrfach_Vergeben(std::string_view Name)
{
    return Name.size() >= Marke_Mindestens && Name.size() <= Marke_Hoechstens &&
           std::count_if(Sprungmarken_Liste.begin(),
                         Sprungmarken_Liste.end(),
                         [&](const std::string& Marke) { return Gleich_Ohne_Fall(Marke, Name); }) >=
               2;
}

// Tells the user of names that are too short or taken, each fault once for a line. The text stays.
void Marken_Pruefen(const std::vector<std::string_view>& Namen)
{
    if (std::any_of(Namen.begin(), Namen.end(), [](auto n) { return n.size() < Marke_Mindestens; }))
        Melden({"Sprungmarken müssen mindestens drei Zeichen haben!",
                "Jumpmarks must be have at least three signs!"},
               {},
               Knoepfe::Ok,
               Symbol::Kritisch);
    if (std::any_of(Namen.begin(), Namen.end(), Mehrfach_Vergeben))
        Melden(
            {"Diese Bezeichnung haben Sie bereits für einen Sprunglabel genutzt. Bitte wählen Sie "
             "eine andere Bezeichnung!",
             "You have already use this name for a jumpmark. Please choose another name!"});
}

// The colours are those of the line as rewritten: no rewriting touches jumpmark or comment. The
// list is made anew before the check, since the line's own mark counts, too, and whether or not
// there is a ":" now: there may have been one.
void Zeile_Ausarbeiten(std::int64_t Nummer)
{
    const Textstelle_T Stelle = Plattform.Edit->Zeile(Nummer);
    std::string        Zeile;
    {
        const Edit_Ruhe           Ruhe;
        std::vector<Farbstelle_T> Farben;
        Zeile = Zeile_Umschreiben(Stelle);
        Zeile_Faerben(Zeile, Stelle.Anfang, true, Farben);
        Plattform.Edit->Faerben(Farben);
    }
    Sprungmarken_Fuellen();
    Marken_Pruefen(Marken_Namen(Zeile));
}

} // namespace

void Zeile_Merken()
{
    const std::int64_t Zeile = Plattform.Edit->Zeile_Von(Plattform.Edit->Auswahl().Anfang);
    if (!Text_Veraendert)
        Zeilen_In_Arbeit.Geaenderte_Zeilen.clear();
    Text_Veraendert = true;
    Nummern_Nachfuehren(Zeile);
    Nummer_Dazu(Zeile);
}

void Zeile_Bearbeiten()
{
    if (Text_Sperre || Debugger_Aktiv)
        return;
    if (!Text_Veraendert)
        return Zeilen_In_Arbeit.Geaenderte_Zeilen.clear();
    const std::vector<std::int64_t> Verlassen = Verlassene_Zeilen();
    if (Verlassen.empty())
        return;
    Text_Veraendert = !Zeilen_In_Arbeit.Geaenderte_Zeilen.empty();
    Undo_Schritt_speichern();
    Undo_Oben = Undo_Index;
    for (const std::int64_t Zeile : Verlassen)
        Zeile_Ausarbeiten(Zeile);
}

} // namespace varnholt
