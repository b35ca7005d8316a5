// The end of the program: the question about unsaved changes, the settings, and what a run leaves
// behind.
#include "core/commands.h"
#include "core/instance.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "core/undo.h"
#include "core/windows.h"
#include "files/Datei_Zustand.h"
#include "files/Dateikommandos.h"

#include <filesystem>
#include <utility>

namespace varnholt {
namespace {

enum class Folge { Weiter, Sofort_Beenden, Bleiben };

// What becomes of unsaved changes. A save that failed or was cancelled keeps the program.
Folge Aenderungen_Erledigen()
{
    const int Wahl = Speichern_Erfragen();
    if (Wahl == Antwort_Nein)
        return Folge::Weiter;
    if (Wahl != Antwort_Ja)
        return Folge::Bleiben;
    MNU_Save_Click();
    return Datei_Geaendert ? Folge::Bleiben : Folge::Sofort_Beenden;
}

void Verzeichnis_Merken()
{
    const std::string Ordner = std::filesystem::path(Dialog_Name).parent_path().string();
    if (!Ordner.empty())
        Start_Verzeichnis = Ordner;
    else if (!Dialog_Verzeichnis.empty())
        Start_Verzeichnis = Dialog_Verzeichnis;
}

// True when the settings are written, or the user does without them. A start that was given up in
// its dialogs has none.
bool Einstellungen_Erledigen()
{
    std::string Grund;
    if (!Startlauf.Einstellungen_Gelten)
        return true;
    Verzeichnis_Merken();
    if (Einstellungen_Sichern(Grund))
        return true;
    Antwort = Antwort_Ja;
    Melden({"Die Einstellungen konnten nicht gespeichert werden: " + Grund + std::string(CRLF) +
                "Trotzdem beenden?",
            "The settings could not be saved: " + Grund + std::string(CRLF) + "Quit anyway?"},
           {},
           Knoepfe::Ja_Nein,
           Symbol::Warnung);
    return Antwort == Antwort_Ja;
}

void Dateien_Aufraeumen()
{
    Undo_Dateien_Loeschen();
    std::error_code Fehler;
    if (Marke_Beanspruchen())
        std::filesystem::remove(Pfad_Aus_Text(Programm_Pfad) / "startup", Fehler);
    Instanz_Abmelden();
}

} // namespace

bool Ende_Erfragen()
{
    const Folge Wunsch = Aenderungen_Erledigen();
    if (Wunsch != Folge::Weiter)
        return Wunsch == Folge::Sofort_Beenden;
    Alle_Fenster_Merken();
    if (!Einstellungen_Erledigen())
        return false;
    Hex_Puffer = {};
    if (Startlauf.Einstellungen_Gelten) // a start that was given up has nothing to clear away
        Dateien_Aufraeumen();
    Plattform.Fenster->Formular_Entladen(Formular::Start);
    Datei_Geaendert = false;
    for (const Formular Suchform : {Formular::F_Suche, Formular::F_HexSuche})
        Plattform.Fenster->Formular_Entladen(Suchform);
    return true;
}

void MNU_Ende_Click()
{
    if (Ende_Erfragen())
        Plattform.Fenster->Programm_Beenden();
}

} // namespace varnholt
