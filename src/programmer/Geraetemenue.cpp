// The menu step of the device database, and what the form `Jumper` shows.
#include "programmer/Geraetemenue.h"
#include "programmer/Baustein.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Geraete.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Special.h"
#include "programmer/Specifications.h"

namespace varnholt {
namespace {

constexpr Versions_Wahl Eprommer_Wahl{
    {"Welche Version des Quelmark Eprommers nutzen Sie? (Die Versionsnummer können Sie auf der "
     "Platine finden)",
     "Which version of the Quelmark eprommer do you use? (You can find the version number on the "
     "layout)"},
    {{{"Version 3.0 oder älter", "Version 3.0 or older"},
      {"Version 3.1", "Version 3.1"},
      {"Version 3.2", "Version 3.2"}}},
    {30, 31, 32}};

constexpr Versions_Wahl Tessel2_Wahl{
    {"Welche Version des Tessel2 programmer nutzen Sie? (Die Versionsnummer können Sie auf der "
     "Platine finden)",
     "Which version of the Quelmark Tessel2 programmer do you use? (You can find the version "
     "number on the layout)"},
    {{{"Version 1.0", "Version 1.0"},
      {"Version 1.1", "Version 1.1"},
      {"Version 1.2", "Version 1.2"}}},
    {10, 11, 12}};

void Auswahl_Abnehmen()
{
    Geraetemenue.Haken = -1;
    IC_Typ_Löschen();
    IC_Befehle_Schalten();
}

// The simulated board is that of the device, with a part of its kind in the socket.
void Simuliertes_Board_Wechseln()
{
    if (Port_Art != Art_Simuliert)
        return;
    Port_Neu_Oeffnen();
}

// The check needs the version of this board; without an answer the choice from before stays.
bool Version_Bekannt(int Board) { return Board != Board_Nr_Tessel2 || Tessel2_Version_Erfragen(); }

// The jumpers follow the version of the board, and that of the newest where it stays unknown.
void Jumper_Zeigen()
{
    static_cast<void>(Eprommer_Version_Erfragen());
    Jumper_Anzeige();
}

// The device against its board, and its entry in the menu; false where the board can't serve it.
bool Auswahl_Pruefen(int Nummer)
{
    IC_Waehlen(Nummer);
    if (Abbruch) {
        Auswahl_Abnehmen();
        return false;
    }
    Geraetemenue.Haken = Nummer;
    IC_Titel_Zeigen();
    IC_Befehle_Schalten();
    return true;
}

int Board_Nr() { return Gewaehltes_Geraet().Programmer; }

} // namespace

void Geraetemenue_Zuruecksetzen()
{
    Geraetemenue = {};
    Jumper       = {};
}

void IC_Befehle_Schalten()
{
    const bool Gewaehlt            = IC_Nummer >= 0;
    Menue("MNU_IC_Löschen").Aktiv  = Gewaehlt && Loeschen_Moeglich(Gewaehltes_Geraet());
    Menue("MNU_IC_LockBits").Aktiv = Gewaehlt && Sperren_Moeglich(Gewaehltes_Geraet());
}

const Versions_Wahl& Wahl_Eprommer_Version() { return Eprommer_Wahl; }
const Versions_Wahl& Wahl_Tessel2_Version() { return Tessel2_Wahl; }

void Wahl_Eprommer_Version_Click(int Knopf)
{
    Eprommer_Version = Eprommer_Wahl.Werte[static_cast<std::size_t>(Knopf)];
}

void Wahl_Tessel2_Version_Click(int Knopf)
{
    Tessel2_Version = Tessel2_Wahl.Werte[static_cast<std::size_t>(Knopf)];
}

bool Eprommer_Version_Erfragen()
{
    if (Eprommer_Version == 0)
        Plattform.Fenster->Formular_Zeigen(Formular::F_Wahl_Eprommer_Version);
    return Eprommer_Version != 0;
}

bool Tessel2_Version_Erfragen()
{
    if (Tessel2_Version == 0)
        Plattform.Fenster->Formular_Zeigen(Formular::F_Wahl_Tessel2_Version);
    return Tessel2_Version != 0;
}

// Jumpers that are on show become those of the new version.
void MNU_Hardware_Version_Click()
{
    const int Bisher = Eprommer_Version;
    Plattform.Fenster->Formular_Zeigen(Formular::F_Wahl_Eprommer_Version);
    if (Eprommer_Version != Bisher && Board_Nr() == Board_Nr_Eprommer &&
        Plattform.Fenster->Formular_Sichtbar(Formular::F_Jumper))
        Jumper_Anzeige();
}

// The new version may be too old for the device, or the first one with jumper J1.
void MNU_Tessel2_Hardware_Version_Click()
{
    const int Bisher = Tessel2_Version;
    Plattform.Fenster->Formular_Zeigen(Formular::F_Wahl_Tessel2_Version);
    if (Tessel2_Version != Bisher && Board_Nr() == Board_Nr_Tessel2)
        MNU_Typ_Check();
}

void MNU_IC_Typ_Click(int Gruppe, int Platz)
{
    const int Nummer = Gruppen_Plaetze * Gruppe + Platz;
    if (Gruppe < 0 || Gruppe >= Gruppen_Anzahl || Platz < 0 ||
        Platz >= Geraete.Gruppen_Belegt[static_cast<std::size_t>(Gruppe)])
        return;
    if (!Version_Bekannt(Geraet_Mit_Nummer(Nummer).Programmer) || !Auswahl_Pruefen(Nummer))
        return;
    Simuliertes_Board_Wechseln();
    if (Board_Nr() == Board_Nr_Eprommer)
        Jumper_Zeigen();
}

// The part in the simulated socket stays: it is the same device.
void MNU_Typ_Check()
{
    if (IC_Nummer < 0 || !Version_Bekannt(Board_Nr()) || !Auswahl_Pruefen(IC_Nummer))
        return;
    if (Board_Nr() == Board_Nr_Eprommer)
        Jumper_Zeigen();
}

// --- the form `Jumper` ---

namespace {

// Sets of the hardware tests, by device number from 610 on: the counters' outputs and the lines of
// the socket are to be seen without a supply on them.
constexpr std::array<std::array<int, Jumper_Anzahl>, 3> Test_Stellungen = {
    {{1, 1, 2, 1, 1}, {1, 2, 2, 1, 1}, {2, 1, 2, 2, 1}}};

bool Ist_Test() { return IC_Nummer >= Erster_Test_Baustein && IC_Nummer <= Letzter_Test_Baustein; }

Text_Paar Hinweis_27C080()
{
    if (Eprommer_Version_Gueltig() == 32)
        return {
            "ACHTUNG: Für den Zugriff auf den unteren 4MB Bereich Jumper 0 entfernen, für den "
            "oberen Bereich Jumper 0 unten einsetzen!",
            "PLEASE NOTE: To access the lower 4MB area remove jumper 0, to access the higher 4MB "
            "area set jumper 0 in the lower position!"};
    return {
        "ACHTUNG: Zugriff auf 8MBit Eprom's in Layout Version 3.0 und 3.1 nur mit Adapter möglich!",
        "PLEASE NOTE: 8 MBit eprom's access in hardware version 3.0 and 3.1 only with adapter!"};
}

} // namespace

void Jumper_Anzeige()
{
    if (IC_Nummer < 0 || IC_Nummer >= Geraete_Anzahl)
        return;
    Jumper.Titel   = In_Sprache({"Jumper Einstellungen ", "Jumper settings "});
    Jumper.Version = Eprommer_Version_Gueltig();
    Jumper.Hinweis.clear();
    if (Ist_Test()) {
        Jumper.Stellung =
            Test_Stellungen[static_cast<std::size_t>(IC_Nummer - Erster_Test_Baustein)];
    } else {
        Jumper.Titel += IC_Menue_Name();
        Jumper.Stellung = Gewaehltes_Geraet().E_Jumper;
        if (Gewaehltes_Geraet().P_Typ == "27C080")
            Jumper.Hinweis = In_Sprache(Hinweis_27C080());
    }
    // On the newest layout jumper 0 is there for the parts of the note alone.
    Jumper.Ohne_Null = Jumper.Version == 32 && Jumper.Hinweis.empty();
    ++Jumper.Stand;
    Plattform.Fenster->Formular_Zeigen(Formular::F_Jumper);
}

} // namespace varnholt
