// Text search and replace in the source editor, and the two search commands of the menu.
#include "editors/Suche.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Einfaerben.h"
#include "editors/Form_Texte.h"
#include "editors/HexSuche.h"
#include "editors/Quelltext.h"
#include "editors/Quelltext_Sperre.h"
#include "editors/Textsuche.h"
#include "files/Dateizugriff.h"
#include "files/Textdatei.h"

#include <limits>
#include <span>
#include <utility>
#include <vector>

namespace varnholt {
namespace Suche {
namespace {

constexpr std::int32_t Nicht_Gefunden = -1;

// clang-format off
constexpr Form_Text_T Texte[] = {
    {"Suche",           "Suchen / Ersetzen",                 "Search / Replace"},
    {"Label1",          "Suchen nach...",                    "Search for..."},
    {"Check1",          "Nur ganzes Wort suchen",            "Search for a whole word"},
    {"Check2",          "Groß-/Kleinschreibung beachten",    "Case sensitivity"},
    {"Check3",          "Ersetzen durch",                    "Replace with"},
    {"Suchen_OK",       "Suchen",                            "Search"},
    {"Suchen_Abbrechen", "Abbrechen",                        "Abort"},
    {"B_Ersetzen",      "Ersetzen",                          "Replace"},
    {"B_AlleErsetzen",  "Alle ersetzen",                     "Replace all"},
};
// clang-format on

Such_Auftrag_T Auftrag()
{
    return {Mit_CR_LF(Suche_Form.Suchbegriff), Suche_Form.Check1, Suche_Form.Check2};
}

void Fokus_Wuenschen(bool Suchen_OK)
{
    Suche_Form.Fokus_Suchen_OK = Suchen_OK;
    ++Suche_Form.Fokus_Stand;
}

// --- messages ---

// The form and the control panel are in nobody's way while it lives.
class Beiseite {
public:
    Beiseite() : Panel(Plattform.Fenster->Sichtbar(Fenster_CONTROL))
    {
        Plattform.Fenster->Formular_Entladen(Formular::F_Suche);
        if (Panel)
            Plattform.Fenster->Sichtbar_Setzen(Fenster_CONTROL, false);
    }
    ~Beiseite()
    {
        if (Panel && Debugger_Aktiv)
            Plattform.Fenster->Sichtbar_Setzen(Fenster_CONTROL, true);
        Plattform.Fenster->Formular_Zeigen(Formular::F_Suche);
    }
    Beiseite(const Beiseite&)            = delete;
    Beiseite& operator=(const Beiseite&) = delete;

private:
    bool Panel;
};

void Nicht_Gefunden_Melden() { Melden({"Nicht gefunden!", "Not found!"}); }

// The place of the last replacement decides, not their number: a single one at the start of the
// text is told as none.
void Ersetzungen_Melden(std::size_t Anzahl)
{
    if (Such_Letzte == 0)
        return Nicht_Gefunden_Melden();
    const std::string n = std::to_string(Anzahl);
    Melden({"Der Suchbegriff wurde " + n + " mal gefunden und ersetzt!",
            "The search string was found and replaced " + n + " times!"});
}

// --- search ---

// Selects the next hit, behind the end of the text the first one.
void Treffer_Auswaehlen(const Such_Auftrag_T& Gesucht)
{
    const Edit_Ruhe Ruhe; // no line is left by this
    Textfeld&       Edit   = *Plattform.Edit;
    std::int64_t    Stelle = Erster_Treffer(Edit, Gesucht, Edit.Auswahl().Anfang + 1);
    if (Stelle < 0)
        Stelle = Erster_Treffer(Edit, Gesucht, 0);
    if (Stelle >= 0)
        Edit.Auswaehlen(Stelle, Zeichen_Anzahl(Gesucht.Begriff));
    Such_Pos = static_cast<std::int32_t>(Stelle);
}

// --- replace ---

// The text as it is becomes a step of the ring, which Undo brings back.
void Schritt_Sichern()
{
    Undo_Schritt_speichern();
    Undo_Oben  = Undo_Index;
    Undo_Taste = true; // as a key does: Undo keeps what the command is about to make
}

bool Auswahl_Ist_Treffer()
{
    const std::string Begriff = Auftrag().Begriff;
    return !Begriff.empty() && Gleicher_Text(Plattform.Edit->Auswahl_Text_UTF8(), Begriff);
}

void Auswahl_Austauschen()
{
    Schritt_Sichern();
    Zeile_Merken();
    {
        const Edit_Ruhe Ruhe;
        Plattform.Edit->Auswahl_Ersetzen_UTF8(Mit_CR_LF(Suche_Form.Ersetzen_durch));
    }
    Text_Change();
}

// The colours of the new text: lines without a hit keep theirs.
std::vector<Farbstelle_T> Farben_Danach(std::span<const Farbstelle_T>     Alte,
                                        std::span<const Treffer_Zeilen_T> Zeilen,
                                        std::string_view                  Neuer_Text)
{
    std::vector<Farbstelle_T> Neue;
    std::int64_t              Verschiebung = 0;
    auto                      a            = Alte.begin();
    const auto                Mitnehmen    = [&](std::int64_t Bis) {
        for (; a != Alte.end() && a->Anfang < Bis; ++a)
            Neue.push_back({a->Anfang + Verschiebung, a->Laenge, a->Farbe});
    };
    for (const auto& [Alt, Neu] : Zeilen) {
        Mitnehmen(Alt.Anfang);
        while (a != Alte.end() && a->Anfang < Alt.Anfang + Alt.Laenge)
            ++a;
        Zeilen_Faerben(Neuer_Text.substr(static_cast<std::size_t>(Neu.Anfang),
                                         static_cast<std::size_t>(Neu.Laenge)),
                       Neu.Anfang,
                       false,
                       Neue);
        Verschiebung = Neu.Anfang + Neu.Laenge - Alt.Anfang - Alt.Laenge;
    }
    Mitnehmen(std::numeric_limits<std::int64_t>::max());
    return Neue;
}

// False, with a notice, when the new text could be longer than any source may be.
bool Laenge_Erlaubt(std::size_t Bisher, std::size_t Dazu)
{
    if (Dazu == 0 || Bisher + Dazu <= Quelltext_Hoechstens)
        return true;
    Plattform.Box->Hinweisen(In_Sprache({"Der Text würde zu lang. Es wurde nichts ersetzt.",
                                         "The text would be too long. Nothing was replaced."}));
    return false;
}

// The whole text is exchanged at once. The caret comes behind the last replacement.
void Alle_Austauschen(const Such_Auftrag_T& Gesucht, std::span<const std::int64_t> Treffer)
{
    Textfeld&          Edit       = *Plattform.Edit;
    const std::string  Neuer      = Mit_CR_LF(Suche_Form.Ersetzen_durch);
    const std::int64_t Laenge     = Zeichen_Anzahl(Gesucht.Begriff);
    const std::int64_t Laenge_Neu = Zeichen_Anzahl(Neuer);
    std::string        Puffer;

    const std::string Bisher = Edit.Text_UTF8();
    const auto Zeilen = Treffer_Zeilen(Edit.Text_Ansicht(Puffer), Treffer, Laenge, Laenge_Neu);
    const auto Farben = Edit.Farben({0, Edit.Laenge()});
    Such_Letzte       = static_cast<std::int32_t>(
        Treffer.back() + (Laenge_Neu - Laenge) * (static_cast<std::int64_t>(Treffer.size()) - 1));
    Schritt_Sichern();
    {
        const Edit_Ruhe Ruhe;
        Edit.Text_Setzen_UTF8(Mit_Ersetzungen(Bisher, Treffer, Laenge, Neuer));
        Edit.Faerben(Farben_Danach(Farben, Zeilen, Edit.Text_Ansicht(Puffer)));
        Edit.Auswaehlen(Such_Letzte + Laenge_Neu, 0);
    }
    Text_Change();
    Sprungmarken_Fuellen();
}

// Characters that the replacements add at most.
std::size_t Zuwachs(std::size_t Anzahl, std::string_view Begriff)
{
    const std::size_t Neu = Mit_CR_LF(Suche_Form.Ersetzen_durch).size();
    const auto        Alt = static_cast<std::size_t>(Zeichen_Anzahl(Begriff));
    return Neu > Alt ? Anzahl * (Neu - Alt) : 0;
}

// A change of what is looked for, or of how: the next search is a first one.
template <class T> void Aendern(T& Feld, T Neues)
{
    Feld        = std::move(Neues);
    Such_Letzte = 0;
}

} // namespace

std::string_view Text(std::string_view Name) { return Form_Text(Texte, Name); }

// Beside the image the text isn't seen, and must not get out of step with what was made of it.
bool Ersetzen_Angeboten() { return !Debugger_Aktiv && Modus == Modus_MC; }

bool Ersetzen_Aktiv() { return Suche_Form.Check3 && Ersetzen_Angeboten(); }

void Suchbegriff_Change(std::string Neuer) { Aendern(Suche_Form.Suchbegriff, std::move(Neuer)); }

void Suchbegriff_Enter()
{
    Fokus_Wuenschen(true);
    Suchen_OK_Click();
}

void Ersetzen_durch_Change(std::string Neuer)
{
    Aendern(Suche_Form.Ersetzen_durch, std::move(Neuer));
}

void Ersetzen_durch_KeyPress()
{
    if (!Suche_Form.Check3)
        Check3_Click(true);
}

void Check1_Click(bool Gesetzt) { Aendern(Suche_Form.Check1, Gesetzt); }
void Check2_Click(bool Gesetzt) { Aendern(Suche_Form.Check2, Gesetzt); }
void Check3_Click(bool Gesetzt) { Aendern(Suche_Form.Check3, Gesetzt); }

void Suchen_OK_Click()
{
    const Such_Auftrag_T Gesucht = Auftrag();
    if (Gesucht.Begriff.empty())
        return Fokus_Wuenschen(false);
    Treffer_Auswaehlen(Gesucht);
    if (Such_Pos != Nicht_Gefunden) {
        Such_Letzte = Such_Pos;
        return;
    }
    const Beiseite Weg;
    if (Such_Letzte == 0)
        Nicht_Gefunden_Melden();
}

// A search that has just failed isn't made again as long as nothing was replaced.
void B_Ersetzen_Click()
{
    if (Such_Pos == Nicht_Gefunden || !Ersetzen_Angeboten())
        return;
    if (Such_Pos == 0)
        Suchen_OK_Click();
    const bool Treffer = Auswahl_Ist_Treffer();
    if (Treffer)
        Auswahl_Austauschen();
    if (Treffer || Such_Pos != Nicht_Gefunden)
        Suchen_OK_Click();
}

void B_AlleErsetzen_Click()
{
    if (!Ersetzen_Angeboten())
        return;
    const Such_Auftrag_T Gesucht = Auftrag();
    const auto           Treffer = Alle_Treffer(*Plattform.Edit, Gesucht);
    Such_Letzte                  = 0;
    Such_Pos                     = Nicht_Gefunden;
    if (!Laenge_Erlaubt(Plattform.Edit->Text_UTF8().size(),
                        Zuwachs(Treffer.size(), Gesucht.Begriff)))
        return;
    if (!Treffer.empty())
        Alle_Austauschen(Gesucht, Treffer);
    const Beiseite Weg;
    Ersetzungen_Melden(Treffer.size());
}

void Suchen_Abbrechen_Click() { Plattform.Fenster->Formular_Entladen(Formular::F_Suche); }

} // namespace Suche

void MNU_Suche_Click()
{
    if (Modus == Modus_Hex)
        return HexSuche::Zeigen();
    Suche::Fokus_Wuenschen(false);
    Plattform.Fenster->Formular_Zeigen(Formular::F_Suche);
}

void MNU_Weitersuchen_Click()
{
    const bool Hex = Modus == Modus_Hex;
    if (!Plattform.Fenster->Formular_Sichtbar(Hex ? Formular::F_HexSuche : Formular::F_Suche))
        return;
    if (Hex)
        HexSuche::Suchen_OK_Click();
    else
        Suche::Suchen_OK_Click();
}

} // namespace varnholt
