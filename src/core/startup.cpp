// The start of the program, from the first look at the settings to the first idle moment. It is
// entered up to three times: by the main window, and at a first start again by its two dialogs.
#include "core/startup.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/data_folder.h"
#include "core/instance.h"
#include "core/menu.h"
#include "core/messages.h"
#include "core/options.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/version.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Nachschlagen.h"
#include "files/Datei_Zustand.h"
#include "files/Dateizugriff.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Geraetemenue.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Special.h"
#include "programmer/Specifications.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

bool Vorhanden(const std::string& Pfad)
{
    std::error_code Fehler;
    return !Pfad.empty() && fs::exists(Pfad, Fehler);
}

fs::path Programm_Ordner() { return Pfad_Aus_Text(Programm_Pfad); }

void L_Init_Zeigen(std::string_view Zusatz)
{
    Startlauf.L_Init += Zusatz;
    Plattform.Fenster->Start_Text(Startlauf.L_Init);
}

// --- before the settings ---

void Bild_Anlegen()
{
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Bild_Loeschen();
}

void Fenster_Vorbereiten()
{
    Init_Laeuft               = true;
    Startlauf.Groessen_Sperre = true;
    Programm_Pfad             = Programm_Pfad_Bestimmen();
    Hexedit.Scroll_Max        = Scroll_Max_Am_Anfang(Hexedit.R);
    Hexedit.Label             = {};
}

void Start_Bild_Zeigen()
{
    Plattform.Fenster->Formular_Zeigen(Formular::Start);
    Startlauf.L_Init.clear();
    L_Init_Zeigen("Version " + std::string(Programm_Version) + "  Initialisierung.");
    Startlauf.Start_Zeit = Plattform.Ereignisse->Sekunden();
}

// --- the settings ---

// Written once in a run, though a first start comes here twice.
void Quelltext_Verknuepfen()
{
    if (Startlauf.Dateityp_Verknuepft)
        return;
    Startlauf.Dateityp_Verknuepft = true;
    Plattform.Umgebung->Dateityp_Verknuepfen(
        {"Quelmark Varnholt 5", Programm_Pfad + "Varnholt.exe", "Quelmark.Document", "asm"});
}

void Sprache_Erfragen()
{
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    Plattform.Fenster->Formular_Zeigen(Formular::Erststart);
    Modus = Modus_MC;
    Plattform.Fenster->Formular_Entladen(Formular::Start);
    Quelltext_Verknuepfen();
}

// The example that a first start opens; empty when none is there.
std::string Beispiel_Suchen()
{
    constexpr std::array<std::string_view, 2> Deutsche  = {R"(beispiele\einführung-1.asm)",
                                                           "einführung-1.asm"};
    constexpr std::array<std::string_view, 2> Englische = {R"(samples\Introduction.asm)",
                                                           "Introduction.asm"};
    for (const std::string_view Name : Sprache == "D" ? Deutsche : Englische)
        if (const auto Datei = Datei_Suchen(Programm_Ordner(), Name))
            return Datei->string();
    return {};
}

void Modus_Erfragen()
{
    Erststart_Werte();
    Modus           = Modus_MC;
    Erststart_Aktiv = true;
    Letzte_Datei[0] = Beispiel_Suchen();
    IC_Titel_Zeigen();
    Quelltext_Verknuepfen();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    Plattform.Fenster->Formular_Zeigen(Formular::Abfrage_Modus);
}

void Einstellungen_Holen()
{
    Einstellungen_Laden();
    Modus           = Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar) == -1 ? Modus_Hex : Modus_MC;
    Erststart_Aktiv = false;
}

// True when the settings are there; false when a dialog carries on. An answer that couldn't be
// written isn't asked for again.
bool Einstellungen_Bereit(Einstellungs_Lage Lage)
{
    if (Lage == Einstellungs_Lage::Vollstaendig) {
        Einstellungen_Holen();
        return true;
    }
    if (Lage == Einstellungs_Lage::Fehlt && !Startlauf.Sprache_Gewaehlt)
        Sprache_Erfragen();
    else
        Modus_Erfragen();
    return false;
}

// Makes the main window of a mode the visible one.
void Hauptfenster_Waehlen(int Neuer)
{
    Modus                                            = Neuer;
    const bool Hex                                   = Neuer == Modus_Hex;
    Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar) = Hex ? std::int16_t{-1} : std::int16_t{0};
    Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar)    = Hex ? std::int16_t{0} : std::int16_t{-1};
}

void Nach_Abfrage_Modus()
{
    Modus_Gewaehlt = false;
    Hauptfenster_Waehlen(Modus);
    Plattform.Fenster->Formular_Entladen(Formular::Abfrage_Modus);
}

// The stages up to the settings; true when the start goes on.
bool Bis_Zu_Den_Einstellungen()
{
    if (Modus_Gewaehlt) {
        Nach_Abfrage_Modus();
        return true;
    }
    Bild_Anlegen();
    Fenster_Vorbereiten();
    const Einstellungs_Lage Lage = Einstellungen_Pruefen();
    Start_Bild_Zeigen();
    return Einstellungen_Bereit(Lage);
}

// --- files and folders ---

void Kommandozeile_Uebernehmen()
{
    std::error_code Fehler;
    const fs::path  Datei(Startlauf.Kommandozeile);
    Startlauf.Datei_Gegeben =
        !Datei.empty() && fs::exists(Datei, Fehler) && !fs::is_directory(Datei, Fehler);
    if (!Startlauf.Datei_Gegeben)
        return;
    std::rotate(Letzte_Datei.begin(), Letzte_Datei.end() - 1, Letzte_Datei.end());
    Letzte_Datei[0] = fs::absolute(Datei, Fehler).string();
}

// The mode that a file opens in, by its last three characters; 0 when it follows the settings. The
// list is deliberately short of what the loader knows.
int Startmodus_Fuer(std::string_view Name)
{
    struct Art_T {
        std::string_view Endung;
        int              Startmodus;
    };
    constexpr auto    Arten  = std::to_array<Art_T>({{"DAT", Modus_Hex},
                                                     {"BIN", Modus_Hex},
                                                     {"_51", Modus_Hex},
                                                     {"HEX", Modus_Hex},
                                                     {"IHX", Modus_Hex},
                                                     {"ASM", Modus_MC},
                                                     {"TXT", Modus_MC}});
    const std::string Letzte = Aus_UTF8(Name);
    if (Letzte.size() <= 3)
        return 0;
    const std::string Endung = Gross(std::string_view(Letzte).substr(Letzte.size() - 3));
    const auto*       p      = std::find_if(
        Arten.begin(), Arten.end(), [&](const Art_T& a) { return a.Endung == Endung; });
    return p != Arten.end() ? p->Startmodus : 0;
}

void Startmodus_Bestimmen()
{
    const int Neuer = Startmodus_Fuer(Letzte_Datei[0]);
    if (Neuer != 0 && (Startlauf.Datei_Gegeben || Lade_Letzte))
        Hauptfenster_Waehlen(Neuer);
}

void Verzeichnis_Bestimmen()
{
    if (Start_Verzeichnis == Erststart_Marke)
        Start_Verzeichnis = Pfad_Suchen(Programm_Ordner(), "Beispiele").string();
    Dialog_Verzeichnis = Start_Verzeichnis;
}

// --- captions, devices, windows ---

// A language that is none keeps its silence, and shows the captions of the language that the
// program has without settings.
void Beschriften()
{
    const std::string Gelesen = Sprache;
    if (Sprache == "D")
        Sprache_Deutsch();
    else
        Sprache_Englisch();
    Sprache       = Gelesen;
    IC_Groesse[0] = Bild_Groesse;
}

bool Geraet_Bekannt()
{
    return IC_Nummer >= 0 && IC_Nummer < Geraete_Anzahl &&
           !Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].Name.empty();
}

void Geraete_Einlesen()
{
    Spec_Lesen();
    const bool Bekannt = Geraet_Bekannt();
    IC_Nummer          = Bekannt ? IC_Nummer : -1;
    Geraetemenue.Haken = IC_Nummer;
    IC_Titel_Zeigen();
    if (!Bekannt)
        return;
    IC_Befehle_Schalten();
}

// The image is empty until the first load or New fills it.
void Fenster_Anlegen()
{
    Hex_Groesse = Bild_Groesse;
    Hex_Daten.fill(0);
    Schriften_Anwenden();
    Startlauf.Groessen_Sperre = false;
}

void Port_Oeffnen()
{
    Port_Einrichten();
    Porttreiber_Laden();
}

// --- folders and the crash marker ---

void Ordner_Anlegen(const std::string& Name)
{
    std::error_code Fehler;
    const fs::path  Ordner = Programm_Ordner() / Name;
    if (fs::is_directory(Ordner, Fehler) || fs::create_directory(Ordner, Fehler))
        return;
    const std::string Grund = Fehler ? Fehler.message() : "";
    Plattform.Box->Hinweisen(
        In_Sprache({"Der Ordner " + Ordner.string() + " konnte nicht angelegt werden: " + Grund,
                    "The folder " + Ordner.string() + " could not be created: " + Grund}));
}

// The question has no English counterpart: there it counts as answered with No.
bool Autosave_Gewuenscht()
{
    if (Sprache != "D")
        return false;
    Melden({"Die Software wurde beim letzten Aufruf nicht korrekt beendet. Sollte dieses durch "
            "einen Fehler geschehen sein, können Sie die letzten automatisch abgespeicherten "
            "Dateien unter dem Verzeichnis " +
                (Programm_Ordner() / "Autosave" / "").string() +
                " wieder einladen. Soll nun die letzte automatisch abgespeicherte Datei wieder "
                "eingeladen werden?",
            ""},
           {},
           Knoepfe::Ja_Nein,
           Symbol::Frage);
    return Antwort == Antwort_Ja;
}

// The path in the crash marker: its first line.
std::string Marke_Lesen(const fs::path& Marke)
{
    constexpr std::uintmax_t Pfad_Hoechstens = 4096;
    std::string              Grund;
    const auto               Anfang = Datei_Anfang_Lesen(Marke, Pfad_Hoechstens, Grund);
    return Anfang ? Anfang->Bytes.substr(0, Anfang->Bytes.find_first_of("\r\n")) : std::string{};
}

// A marker of a run that still goes on says nothing.
void Absturz_Pruefen()
{
    std::error_code Fehler;
    const fs::path  Marke = Programm_Ordner() / "startup";
    if (!Instanz.Marke_Gehoert || !fs::exists(Marke, Fehler) || !Autosave_Gewuenscht())
        return;
    const std::string Datei = Marke_Lesen(Marke);
    if (!Vorhanden(Datei))
        return;
    Letzte_Datei[0] = Datei;
    Letzte_Dateien_Zeigen();
}

void Ordner_Pruefen()
{
    Instanz_Anmelden();
    // Two runs that begin together don't clear away side by side. One that goes on beside this one
    // is known by its process.
    if (Instanz.Marken_Sperre.Gehalten())
        Reste_Entfernen(Programm_Ordner());
    Ordner_Anlegen(Undo_Ordner);
    Ordner_Anlegen("Autosave");
    Absturz_Pruefen();
    Autosave_Zeit = Plattform.Ereignisse->Sekunden();
}

// --- document and windows ---

void Erstes_Dokument()
{
    if (Letzte_Datei[0].empty() || !Lade_Letzte)
        return MNU_Neu_Click();
    Dialog_Name = Letzte_Datei[0];
    Datei_Laden();
    if (Datei_Fehler == Dateifehler::Lesefehler || Datei_Fehler == Dateifehler::Nicht_Gefunden)
        MNU_Neu_Click(); // an image that nothing has filled isn't an erased one
    Plattform.Ereignisse->Mauszeiger_Warten(true);
}

// The first layout comes from the size of the screen.
void Erste_Anordnung()
{
    if (!Erststart_Aktiv)
        return;
    Init_Laeuft = false;
    Plattform.Fenster->Bildschirm_Fuellen();
    MNU_G_Einstellung_Click();
}

// The splash stays three seconds, however fast the rest was.
void Start_Bild_Abwarten()
{
    constexpr double Standzeit = 3;
    constexpr double Schritt   = 0.02;
    L_Init_Zeigen(".");
    while (Vergangen(Startlauf.Start_Zeit, Plattform.Ereignisse->Sekunden()) < Standzeit) {
        Plattform.Ereignisse->Eine_Runde();
        Plattform.Ereignisse->Pause(Schritt);
    }
    L_Init_Zeigen(".");
}

void Fenster_Zeigen()
{
    for (const int Nummer :
         {Fenster_Bef, Fenster_Basic, Fenster_Spr, Fenster_Edit, Fenster_Notiz, Fenster_Hexedit}) {
        const bool Sichtbar =
            Fenster_Wert(Fenster_Spalte(Nummer, Modus), Nummer, Feld::Sichtbar) == -1;
        if (Sichtbar)
            Nachschlagen_Bereitstellen(Nummer);
        Plattform.Fenster->Sichtbar_Setzen(Nummer, Sichtbar);
    }
    Plattform.Fenster->Hintergrund(Hintergrund_Farbe);
}

void Init_Abschliessen()
{
    Init_Laeuft = false;
    if (Modus == Modus_Hex)
        Hex_Anzeige();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    L_Init_Zeigen(".");
}

void Start_Bild_Schliessen()
{
    Leitungen_Ruhen();
    Plattform.Ereignisse->Eine_Runde();
    Plattform.Fenster->Formular_Entladen(Formular::Start);
}

void Modus_Antreten()
{
    Modus_Tabelle_Anwenden();
    Menue("MNU_Debugger_Stoppunkt").Aktiv = Modus == Modus_MC;
    if (Modus == Modus_MC)
        return Plattform.Edit->Fokus();
    Menue("MNU_deb_Vorbereitung").Aktiv = false;
}

} // namespace

void Init()
{
    if (!Bis_Zu_Den_Einstellungen())
        return; // a dialog carries on
    Startlauf.Einstellungen_Gelten = true;
    Debug_Beenden();
    Kommandozeile_Uebernehmen();
    Startmodus_Bestimmen();
    Verzeichnis_Bestimmen();
    Letzte_Dateien_Bereinigen();
    Letzte_Dateien_Zeigen();
    Beschriften();
    Geraete_Einlesen();
    Fenster_Anlegen();
    Port_Oeffnen();
    Ordner_Pruefen();
    Erstes_Dokument();
    Erste_Anordnung();
    Fenster_Anordnen();
    Start_Bild_Abwarten();
    Fenster_Zeigen();
    Init_Abschliessen();
    Start_Bild_Schliessen();
    Modus_Antreten();
}

} // namespace varnholt
