// The events of the source editor. What becomes of a finished line stands in
// Quelltext_Bearbeiten.cpp.
#include "editors/Quelltext.h"

#include "core/captions.h"
#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Einfaerben.h"
#include "editors/Quelltext_Sperre.h"

#include <algorithm>
#include <string>

namespace varnholt {
namespace {

bool Ist_Befehlstaste(const Taste_T& Taste) { return Taste.Strg && !Taste.Alt; }

// Whether a key can change the text; AltGr counts as Ctrl and Alt, and types.
bool Ist_Schreibtaste(const Taste_T& Taste)
{
    if (Taste.Code == Taste_Rueck || Taste.Code == Taste_Tab || Taste.Code == Taste_Enter ||
        Taste.Code == Taste_Entfernen)
        return true;
    return Taste.Zeichen != 0 && !Ist_Befehlstaste(Taste);
}

// The very first key of a document secures the state before it. While there is something to redo,
// keys that only move or command leave the ring alone: the Ctrl of the next Ctrl+Y would otherwise
// take a snapshot, and with it the steps to be redone. In a session, whose text is locked and whose
// commands are off, no key changes anything.
void Erste_Taste_Sichern(const Taste_T& Taste)
{
    const bool Aendert = Ist_Schreibtaste(Taste) && !Debugger_Aktiv;
    if (Redo_Moeglich() && !Aendert)
        return;
    Undo_Taste = true;
    if (Undo_Begonnen)
        return;
    Undo_Begonnen = true;
    Undo_Schritt_speichern();
    Undo_Oben = Undo_Index;
}

void Geaendert_Zeigen()
{
    Text_Aktuell = false;
    if (Datei_Geaendert)
        return;
    Datei_Geaendert = true;
    Editor_Titel(Fenster_Edit, true);
}

// The commands of the keys; true when Taste was one of them.
bool Befehl_Ausfuehren(const Taste_T& Taste)
{
    if (!Ist_Befehlstaste(Taste) || Taste.Umschalt)
        return false;
    switch (Taste.Code) {
    case 'V':
        MNU_Einfügen_Click();
        return true;
    case 'X':
        MNU_Ausschneiden_Click();
        return true;
    case 'Z':
        MNU_Undo_Click();
        return true;
    default:
        return false;
    }
}

// Del with a selection.
bool Auswahl_Entfernen(const Taste_T& Taste)
{
    const bool Nur_Entfernen =
        Taste.Code == Taste_Entfernen && !Taste.Umschalt && !Taste.Strg && !Taste.Alt;
    if (!Nur_Entfernen || Plattform.Edit->Auswahl().Laenge == 0)
        return false;
    const bool Marken = Plattform.Edit->Auswahl_Text().find(':') != std::string::npos;
    Zeile_Merken();
    Plattform.Edit->Auswahl_Ersetzen("");
    Text_Change();
    if (Marken)
        Sprungmarken_Fuellen();
    return true;
}

// Leading blanks and tabs of the line that holds Stelle.
std::string Einzug_Bei(std::int64_t Stelle)
{
    std::string            Puffer;
    const std::string_view Text   = Plattform.Edit->Text_Ansicht(Puffer);
    const std::int64_t     Anfang = Zeile_von_Position(Plattform.Edit->Zeile_Von(Stelle));
    const std::string_view Zeile  = Text.substr(static_cast<std::size_t>(Anfang));
    return std::string(Zeile.substr(0, Zeile.find_first_not_of(" \t")));
}

// What was just inserted before the caret is plain text, also behind a comment.
void Eingefuegtes_Schwaerzen(std::size_t Laenge)
{
    const Edit_Ruhe    Ruhe;
    const auto         n      = static_cast<std::int64_t>(Laenge);
    const Farbstelle_T Stelle = {Plattform.Edit->Auswahl().Anfang - n, n, Farbe_Text};
    Plattform.Edit->Faerben({&Stelle, 1});
    Plattform.Edit->Auswahl_Faerben(Farbe_Text);
}

} // namespace

bool Text_KeyDown(const Taste_T& Taste)
{
    Erste_Taste_Sichern(Taste);
    if (Debugger_Aktiv)
        return Taste.Code == Taste_Enter; // the text is locked
    return Befehl_Ausfuehren(Taste) || Auswahl_Entfernen(Taste);
}

void Text_Ohne_Taste()
{
    Taste_T Taste;
    Taste.Zeichen = ' '; // as if it had been typed
    Erste_Taste_Sichern(Taste);
}

// The old line counts as changed even when only its end went: it is handled once the caret's move
// is reported.
bool Text_KeyPress_Enter()
{
    if (Debugger_Aktiv)
        return true;
    const std::string Neu = std::string(CRLF) + Einzug_Bei(Plattform.Edit->Auswahl().Anfang);
    Zeile_Merken();
    Plattform.Edit->Auswahl_Ersetzen(Neu);
    Text_Change();
    Eingefuegtes_Schwaerzen(Neu.size());
    return true;
}

// Handles no line: that may show a box, and the control is in the middle of the change.
void Text_Change()
{
    if (Text_Sperre)
        return;
    Zeile_Merken();
    Geaendert_Zeigen();
}

void Text_SelChange() { Zeile_Bearbeiten(); }

void Edit_Activate()
{
    Aktives_Fenster                     = Fenster_Edit;
    Menue("MNU_deb_Vorbereitung").Aktiv = true;
    Werkzeug(23).Aktiv                  = true;
    Umschalter_Beschriften(Modus_MC);
}

void Edit_Deactivate() { Fenster_Merken(Fenster_Edit); }

std::int64_t Zeile_von_Position(std::int64_t Zeile)
{
    std::int64_t Von = 0;
    std::int64_t Bis = Plattform.Edit->Laenge();
    while (Von < Bis) {
        const std::int64_t Mitte = Von + (Bis - Von) / 2;
        if (Plattform.Edit->Zeile_Von(Mitte) < Zeile)
            Von = Mitte + 1;
        else
            Bis = Mitte;
    }
    return Von;
}

} // namespace varnholt
