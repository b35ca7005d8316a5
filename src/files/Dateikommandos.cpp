// The commands of the file menu: what is asked before a document is given up, which file or name is
// chosen, and what runs then. Loading, saving and comparing themselves stand beside.
#include "files/Dateikommandos.h"

#include "core/captions.h"
#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/messages.h"
#include "core/session.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Quelltext_Sperre.h"
#include "files/Datei_Zustand.h"
#include "files/Dateinamen.h"
#include "files/Laden.h"
#include "files/Speichern.h"

#include <string>

namespace varnholt {
namespace {

constexpr int Filter_Quelle = 1;
constexpr int Filter_Binaer = 2;
constexpr int Filter_Alle   = 6;
constexpr int Filter_Bleibt = 0; // the one of the dialog before

int Filter_Des_Modus() { return Modus == Modus_Hex ? Filter_Binaer : Filter_Quelle; }

// Before another document comes: ends a session and asks for unsaved changes. On Yes Sichern runs,
// and the user has to give the command again.
bool Dokument_Freigeben(void (*Sichern)())
{
    Sitzung_Beenden();
    if (Vergleich_Laeuft)
        return true;
    const int Wahl = Speichern_Erfragen();
    if (Wahl == Antwort_Ja)
        Sichern();
    return Wahl == Antwort_Nein;
}

bool Zum_Laden_Freigeben(void (*Sichern)())
{
    if (!Dokument_Freigeben(Sichern))
        return false;
    if (!Vergleich_Laeuft)
        Datei_Geaendert = false;
    return true;
}

// Opens the file dialog; the name that was chosen is Dialog_Name. False when it was cancelled.
bool Datei_Waehlen(Dateiwahl_T Wahl)
{
    if (Wahl.Filter_Nummer == Filter_Bleibt)
        Wahl.Filter_Nummer = Dialog_Filter;
    Wahl.Filter = Datei_Filter;
    if (Wahl.Verzeichnis.empty())
        Wahl.Verzeichnis = Dialog_Verzeichnis;
    Plattform.Dialog->Datei_Waehlen(Wahl);
    Dialog_Filter = Wahl.Filter_Nummer;
    Dialog_Name   = Wahl.Name;
    return !Dialog_Name.empty();
}

bool Zum_Laden_Waehlen()
{
    Dateiwahl_T Wahl;
    Wahl.Filter_Nummer = Filter_Des_Modus();
    return Datei_Waehlen(Wahl);
}

void Gewaehlte_Datei_Laden()
{
    Plattform.Ereignisse->Eine_Runde();
    Datei_Laden();
}

// The newest file of the autosave series; empty without one.
std::string Neueste_Autosave_Datei(const std::string& Ordner)
{
    const int Anzahl = Autosave_Vorhanden();
    return Anzahl == 0 ? std::string{} : Ordner + "autosave" + std::to_string(Anzahl - 1) + ".asm";
}

// A copy of the name: the question may save, which moves the recent files.
void Letzte_Datei_Laden(std::size_t Platz)
{
    Datei_Vorgegeben_Laden(std::string(Letzte_Datei[Platz]));
}

void Texte_Leeren()
{
    const Edit_Ruhe Ruhe;
    Plattform.Edit->Text_Setzen({});
    Plattform.Notiz->Text_Setzen({});
    Quell_Datei = {};
    Notiz_Datei = {};
}

void Leeres_Dokument()
{
    Texte_Leeren();
    Datei_Name.clear();
    Text_Aktuell = true;
    Bild_Loeschen();
    Hex_Anzeige();
    Sprungmarken_Fuellen();
}

} // namespace

void Datei_Vorgegeben_Laden(const std::string& Pfad)
{
    if (Pfad.empty() || !Zum_Laden_Freigeben(MNU_SaveAs_Click))
        return;
    Dialog_Name = Pfad;
    Datei_Laden();
}

int Speichern_Erfragen()
{
    if (!Datei_Geaendert)
        return Antwort_Nein;
    Antwort = Antwort_Abbrechen; // where no language shows the question nothing is given up
    Melden({"Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?", "Save changes first?"},
           {},
           Knoepfe::Ja_Nein_Abbrechen,
           Symbol::Frage);
    return Antwort;
}

void MNU_Neu_Click()
{
    if (!Dokument_Freigeben(MNU_Save_Click))
        return;
    Leeres_Dokument();
    Undo_Zuruecksetzen();
    Datei_Geaendert = false;
    Titel_Gespeichert();
}

void MNU_Load_Click()
{
    if (Zum_Laden_Freigeben(MNU_Save_Click) && Zum_Laden_Waehlen())
        Gewaehlte_Datei_Laden();
}

void MNU_Load_Autosave_Click()
{
    if (!Zum_Laden_Freigeben(MNU_Save_Click))
        return;
    Dateiwahl_T Wahl;
    Wahl.Filter_Nummer = Filter_Alle;
    Wahl.Verzeichnis   = Programm_Pfad + "Autosave/";
    Wahl.Name          = Neueste_Autosave_Datei(Wahl.Verzeichnis);
    if (Datei_Waehlen(Wahl))
        Gewaehlte_Datei_Laden();
}

void MNU_Importdata_Click()
{
    if (!Zum_Laden_Freigeben(MNU_Save_Click) || !Zum_Laden_Waehlen())
        return;
    if (const auto Adresse = Import_Adresse_Erfragen())
        Datei_Importieren(*Adresse);
}

// Notes that were changed have marked both editors. (An assembly saves its image without this: the
// source isn't saved by that.)
void MNU_Save_Click()
{
    if (Name_Zu_Erfragen(Datei_Name, Modus))
        return MNU_SaveAs_Click();
    Datei_Speichern();
    if (Datei_Fehler == Dateifehler::Keiner)
        Titel_Nach_Speichern();
}

void MNU_SaveAs_Click()
{
    const Speicher_Vorschlag Vorschlag = Vorschlag_Fuer(Datei_Name, Modus);
    Datei_Name                         = Vorschlag.Name;
    Dateiwahl_T Wahl;
    Wahl.Filter_Nummer = Vorschlag.Filter;
    Wahl.Name          = Vorschlag.Name;
    Wahl.Speichern     = true;
    if (!Datei_Waehlen(Wahl))
        return;
    Datei_Name = Name_Aus_Dialog(Dialog_Name);
    Plattform.Ereignisse->Eine_Runde();
    MNU_Save_Click();
}

void MNU_vergleiche_hexdaten_Click() { Hexdaten_Vergleichen(MNU_Load_Click); }

void MNU_Datei1_Click() { Letzte_Datei_Laden(0); }
void MNU_Datei2_Click() { Letzte_Datei_Laden(1); }
void MNU_Datei3_Click() { Letzte_Datei_Laden(2); }

} // namespace varnholt
