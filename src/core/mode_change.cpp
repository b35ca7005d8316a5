// The mode change: assembles or disassembles what is not in step, and brings the other main window
// to the front.
#include "core/captions.h"
#include "core/commands.h"
#include "core/menu.h"
#include "core/platform.h"
#include "core/session.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Quelltext.h"
#include "files/Datei_Zustand.h"
#include "language/Assembler_Zustand.h"

#include <utility>

namespace varnholt {
namespace {

void Hauptfenster_Zeigen(int Nummer, bool Gezeigt)
{
    Fenster_Wert(Fenster_Spalte(Nummer, Modus), Nummer, Feld::Sichtbar) = Gezeigt ? -1 : 0;
    if (!Gezeigt || !Init_Laeuft)
        Plattform.Fenster->Sichtbar_Setzen(Nummer, Gezeigt);
}

// The image as text, when it is newer than the text; false when the user gave up.
bool Text_Erneuern()
{
    if (Text_Aktuell)
        return true;
    if (!Disassemblieren())
        return false;
    Quell_Datei = {}; // no file stands behind the new text
    Editor_Titel_Ohne_Namen(Fenster_Edit);
    return true;
}

// The text as image, when it is newer than the image; false when it has an error, which is then on
// display.
bool Bild_Erneuern()
{
    if (Plattform.Edit->Laenge() > 0 && !Text_Aktuell) {
        Assemblieren();
        Quellzeilen_Loeschen();
        Editor_Titel_Ohne_Namen(Fenster_Hexedit);
    }
    return std::exchange(Assembler_Fehler, 0) != 1;
}

void In_MC_Editor()
{
    if (!Text_Erneuern())
        return;
    In_Modus_Wechseln(Modus_MC);
    Edit_Activate();
}

void In_Hex_Editor()
{
    Sitzung_Beenden();
    if (Autosave_Assemblieren)
        Autosave_Speichern();
    if (!Bild_Erneuern())
        return;
    In_Modus_Wechseln(Modus_Hex);
    Hex_Anzeige();
    Undo_Zuruecksetzen();
}

} // namespace

void In_Modus_Wechseln(int Neuer)
{
    // The new window first: the one that it takes the focus from keeps its place, and that belongs
    // to the old mode.
    Hauptfenster_Zeigen(Neuer == Modus_Hex ? Fenster_Hexedit : Fenster_Edit, true);
    Modus = Neuer;
    Hauptfenster_Zeigen(Neuer == Modus_Hex ? Fenster_Edit : Fenster_Hexedit, false);
    Modus_Tabelle_Anwenden();
    Fenster_Anordnen();
    if (!Init_Laeuft)
        Plattform.Fenster->Fokus(Modus == Modus_Hex ? Fenster_Hexedit : Fenster_Edit);
}

void Ansicht_umschalten()
{
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Undo_Ring_Neu(); // whatever comes of it: the next key secures the text as it stands then
    if (Modus == Modus_Hex)
        In_MC_Editor();
    else
        In_Hex_Editor();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
}

void MNU_MC_Click()
{
    if (!Plattform.Fenster->Sichtbar(Fenster_Edit))
        Ansicht_umschalten();
}

void MNU_Hex_Click()
{
    Sitzung_Beenden();
    if (!Plattform.Fenster->Sichtbar(Fenster_Hexedit))
        Ansicht_umschalten();
    if (Plattform.Fenster->Sichtbar(Fenster_Hexedit))
        Plattform.Fenster->Fokus(Fenster_Hexedit);
}

} // namespace varnholt
