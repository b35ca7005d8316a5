// Saving: contents, notes, bookkeeping. The formats stand in files of their own.
#include "files/Speichern.h"

#include "core/captions.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "files/Dat.h"
#include "files/Datei_Zustand.h"
#include "files/Dateimeldungen.h"
#include "files/Dateinamen.h"
#include "files/Intel_Hex.h"
#include "files/Motorola_S.h"
#include "files/Notizen.h"
#include "files/Rohdaten.h"

#include <filesystem>
#include <span>

namespace varnholt {
namespace {

std::span<const std::uint8_t> Eigentliches_Bild()
{
    return std::span(Hex_Daten).first(static_cast<std::size_t>(Bild_Groesse));
}

void Quelle_Speichern() { Textdatei_Speichern(Datei_Name, *Plattform.Edit, Quell_Datei); }

void Intel_Hex_Sichern(std::span<const std::uint8_t> Benutzt)
{
    if (Benutzt.size() <= Intel_Hex_Hoechstens) {
        Datei_Sichern(Datei_Name, Intel_Hex_Schreiben(Benutzt));
        return;
    }
    Melden(
        {"Intel Hex Dateien können maximal 32768 Byte aufnehmen, Ihre Datei kann daher nicht als "
         "Intel Hex Datei gesichert werden!",
         "Intel-Hex Files can't be larger than 32768 Byte !"});
    Datei_Fehler = Dateifehler::Abgelehnt;
}

void Nach_Typ_Speichern(std::span<const std::uint8_t> Benutzt)
{
    switch (Typ_Beim_Speichern(Datei_Name)) {
    case Dateityp::Quelltext:
    case Dateityp::Rohdaten:
        Datei_Sichern(Datei_Name, Rohdaten_Schreiben(Benutzt));
        break;
    case Dateityp::Dat:
        Datei_Sichern(Datei_Name, Dat_Schreiben(Benutzt));
        break;
    case Dateityp::Intel_Hex:
        Intel_Hex_Sichern(Benutzt);
        break;
    case Dateityp::Motorola_S:
        Datei_Sichern(Datei_Name, Motorola_S_Schreiben(Eigentliches_Bild()));
        break;
    }
}

void Bild_Speichern() { Nach_Typ_Speichern(Benutzter_Teil(Eigentliches_Bild())); }

// During an assembly the image is saved while the source stays on display.
void Hauptfenster_Fokus()
{
    if (Modus == Modus_MC)
        Plattform.Edit->Fokus();
    else if (Plattform.Fenster->Sichtbar(Fenster_Hexedit))
        Plattform.Fenster->Fokus(Fenster_Hexedit);
}

// Also of a document whose notes could not be written the star stays: this comes behind them.
void Speichern_Verbuchen()
{
    if (!Vergleich_Laeuft)
        Editor_Titel(Modus == Modus_MC ? Fenster_Edit : Fenster_Hexedit, false);
    if (!Dialog_Name.empty())
        Dialog_Verzeichnis = std::filesystem::path(Dialog_Name).parent_path().string();
    Letzte_Dateien();
    Datei_Geaendert = false;
    Plattform.Status->Schliessen();
    Hauptfenster_Fokus();
}

} // namespace

void Datei_Speichern()
{
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Datei_Fehler = Dateifehler::Keiner;
    if (Modus == Modus_MC)
        Quelle_Speichern();
    else
        Bild_Speichern();
    if (Datei_Fehler == Dateifehler::Keiner)
        Notiz_Speichern();
    if (Datei_Fehler == Dateifehler::Keiner)
        Speichern_Verbuchen();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    ++Dateien.Vorgang;
}

} // namespace varnholt
