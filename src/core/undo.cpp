// Undo and redo by whole snapshots of the source text, in a ring of files.
#include "core/undo.h"

#include "core/captions.h"
#include "core/commands.h"
#include "core/instance.h"
#include "core/menu.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo_file.h"
#include "core/windows.h"

#include <algorithm>
#include <filesystem>
#include <string>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

constexpr int Kein_Undo = -1;

// The settings file may hold any number.
int Hoechster_Platz() { return std::clamp(Undo_Max, Kein_Undo, Undo_Hoechstens); }

int Naechster(int Platz) { return Platz >= Hoechster_Platz() ? 0 : Platz + 1; }
int Voriger(int Platz) { return Platz <= 0 ? Hoechster_Platz() : Platz - 1; }

fs::path Ordner() { return Pfad_Aus_Text(Programm_Pfad) / Undo_Ordner; }

fs::path Platz_Datei(int Platz) { return Ordner() / ("Undo " + std::to_string(Platz) + ".rtf"); }

void Undo_Schalten(bool Aktiv)
{
    Menue("MNU_Undo").Aktiv = Aktiv;
    Werkzeug(14).Aktiv      = Aktiv;
}

void Redo_Schalten(bool Aktiv)
{
    Menue("MNU_Redo").Aktiv = Aktiv;
    Werkzeug(15).Aktiv      = Aktiv;
}

// Keeps the editor from drawing while a step is put back.
struct Zeichenpause {
    Zeichenpause() { Plattform.Edit->Zeichnen_Anhalten(true); }
    ~Zeichenpause() { Plattform.Edit->Zeichnen_Anhalten(false); }
    Zeichenpause(const Zeichenpause&)            = delete;
    Zeichenpause& operator=(const Zeichenpause&) = delete;
};

// The option may have shrunk the ring: counters beyond its end are brought back into it.
void Ring_Einpassen()
{
    if (Undo_Index > Hoechster_Platz())
        Undo_Ring_Neu();
    Undo_Ende = std::min(Undo_Ende, Hoechster_Platz());
}

bool Aufnahme_Machen(int Platz)
{
    const Textfeld& Edit = *Plattform.Edit;
    return Aufnahme_Schreiben(Platz_Datei(Platz),
                              {Edit.Text_UTF8(), Edit.Farben({0, Edit.Laenge()})});
}

void Ansicht_Merken(int Platz)
{
    const auto         i       = static_cast<std::size_t>(Platz);
    const Textstelle_T Auswahl = Plattform.Edit->Auswahl();
    Undo.Undo_Zeile[i]         = Plattform.Edit->Erste_Zeile();
    Undo.Undo_SelStart[i]      = Auswahl.Anfang;
    Undo.Undo_SelLength[i]     = Auswahl.Laenge;
}

void Aufnahme_Fehlt_Melden()
{
    if (Undo.Fehler_Gemeldet)
        return;
    Undo.Fehler_Gemeldet = true;
    Plattform.Box->Hinweisen(In_Sprache(
        {"Rückgängig ist nicht möglich: " + Ordner().string() + " ist nicht beschreibbar.",
         "Undo isn't possible: " + Ordner().string() + " can't be written."}));
}

// Whether Sekunden have passed since Autosave_Zeit, or midnight has.
bool Autosave_Faellig()
{
    constexpr double Abstand = 60;
    const double     s       = Plattform.Ereignisse->Sekunden() - Autosave_Zeit;
    return Autosave_Zeitlich && (s < 0 || s >= Abstand);
}

// One step into the ring; false, with a notice, when it can't be written.
bool Schritt_Aufnehmen()
{
    if (Autosave_Faellig())
        Autosave_Speichern();
    if (!Aufnahme_Machen(Undo_Index)) {
        Aufnahme_Fehlt_Melden();
        return false;
    }
    Undo.Fehler_Gemeldet = false;
    Ansicht_Merken(Undo_Index);
    if (Undo_Ende == Undo_Index)
        Undo_Ende = Naechster(Undo_Ende); // the oldest step is given up
    Undo_Index = Naechster(Undo_Index);
    Undo_Schalten(!Debugger_Aktiv); // a session keeps its text, and gives the button back
    Redo_Schalten(false);
    return true;
}

// The line comes to the top because the caret comes from below it.
void Ansicht_Herstellen(int Platz)
{
    Textfeld&  Edit = *Plattform.Edit;
    const auto i    = static_cast<std::size_t>(Platz);
    Edit.Auswaehlen(Edit.Laenge(), 0);
    Edit.Auswaehlen(Edit.Zeile(Undo.Undo_Zeile[i]).Anfang, 0);
    Edit.Auswaehlen(Undo.Undo_SelStart[i], Undo.Undo_SelLength[i]);
}

// Puts a slot on display. A missing or damaged one leaves the text as it is, with a notice.
void Platz_Zeigen(int Platz)
{
    const auto Aufnahme = Aufnahme_Lesen(Platz_Datei(Platz));
    if (!Aufnahme) {
        Plattform.Box->Hinweisen(
            In_Sprache({"Der Schritt " + std::to_string(Platz) + " fehlt und wird übersprungen.",
                        "Step " + std::to_string(Platz) + " is missing and is skipped."}));
        return;
    }
    Plattform.Edit->Text_Setzen_UTF8(Aufnahme->Text);
    Plattform.Edit->Faerben(Aufnahme->Farben);
    Ansicht_Herstellen(Platz);
    Datei_Geaendert = true; // another text than the one that was saved
    Editor_Titel(Fenster_Edit, true);
    Sprungmarken_Fuellen();
}

// The text on display becomes the newest step, so that Redo brings it back. False when it can't be
// written: then it must stay on display.
bool Jetzigen_Text_Aufnehmen(int Platz)
{
    Undo_Index = Naechster(Platz);
    if (!Schritt_Aufnehmen())
        return false;
    Undo_Oben  = Naechster(Undo_Oben);
    Undo_Index = Voriger(Voriger(Undo_Index));
    Undo_Taste = false;
    return true;
}

void Schritt_Zurueck()
{
    Undo_Index = Voriger(Undo_Index);
    if (Undo_Index == Undo_Ende) {
        Undo_Index = Naechster(Undo_Index);
        return Undo_Schalten(false);
    }
    Text_Aktuell = false;
    Text_Sperre  = true;
    if (!Undo_Taste || Jetzigen_Text_Aufnehmen(Undo_Index)) {
        Platz_Zeigen(Undo_Index);
        Text_Veraendert = false;
        Redo_Schalten(true);
        if (Voriger(Undo_Index) == Undo_Ende)
            Undo_Schalten(false);
    }
    Text_Sperre = false;
}

void Schritt_Vor()
{
    Undo_Index = Naechster(Undo_Index);
    if (Undo_Index == Undo_Oben) {
        Undo_Index = Voriger(Undo_Index);
        return Redo_Schalten(false);
    }
    Text_Sperre  = true;
    Text_Aktuell = false;
    Platz_Zeigen(Undo_Index);
    Text_Sperre     = false;
    Text_Veraendert = false;
    if (Naechster(Undo_Index) == Undo_Oben)
        Redo_Schalten(false);
    Undo_Schalten(true);
    Undo_Begonnen = false;
}

} // namespace

void Undo_Schritt_speichern()
{
    if (Hoechster_Platz() == Kein_Undo)
        return;
    Ring_Einpassen();
    Schritt_Aufnehmen();
}

void Undo_Zuruecksetzen()
{
    Undo_Ring_Neu();
    Text_Veraendert = false;
}

void Undo_Ring_Neu()
{
    Undo_Ende     = Hoechster_Platz();
    Undo_Index    = 0;
    Undo_Oben     = 1;
    Undo_Begonnen = false;
    Undo_Schalten(false);
    Redo_Schalten(false);
}

bool Redo_Moeglich()
{
    // A ring of one place has nothing ahead: what lies in it is from an earlier document.
    return Hoechster_Platz() > 0 && Undo_Index != Undo_Oben && Naechster(Undo_Index) != Undo_Oben;
}

void Undo_Knoepfe_Stellen()
{
    const bool Ring = Hoechster_Platz() != Kein_Undo;
    Undo_Schalten(Ring && Voriger(Undo_Index) != Undo_Ende);
    Redo_Schalten(Redo_Moeglich());
}

void Undo_Knoepfe_Sperren()
{
    Undo_Schalten(false);
    Redo_Schalten(false);
}

void MNU_Undo_Click()
{
    const Zeichenpause Pause;
    if (Hoechster_Platz() == Kein_Undo)
        return Undo_Schalten(false);
    Ring_Einpassen();
    Schritt_Zurueck();
}

void MNU_Redo_Click()
{
    if (Hoechster_Platz() == Kein_Undo)
        return Redo_Schalten(false);
    const Zeichenpause Pause;
    Ring_Einpassen();
    Schritt_Vor();
}

void Undo_Dateien_Loeschen()
{
    std::error_code       Fehler;
    std::vector<fs::path> Dateien;
    for (fs::directory_iterator i(Ordner(), Fehler), Ende; !Fehler && i != Ende;
         i.increment(Fehler))
        if (i->path().filename().string().starts_with("Undo "))
            Dateien.push_back(i->path());
    for (const fs::path& Datei : Dateien)
        fs::remove(Datei, Fehler);
}

} // namespace varnholt
