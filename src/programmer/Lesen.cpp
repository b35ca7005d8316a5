// Reading a memory device on the Eprommer, and the menu command that reads a device into the image.
#include "programmer/Lesen.h"

#include "core/captions.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/session.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Signale.h"

#include <algorithm>
#include <fmt/format.h>

namespace varnholt {
namespace {

constexpr std::string_view Lese_Text_D  = " wird gelesen...";
constexpr std::string_view Lese_Text_E  = " Reading ";
constexpr std::string_view Pruef_Text_D = " - Daten werden überprüft...";
constexpr std::string_view Pruef_Text_E = " Verify data ";

bool Hat_Bank(std::string_view P_Typ) { return P_Typ == "28C040" || P_Typ == "29C040"; }

// What holds for all addresses of one read.
struct Lesung_T {
    std::int32_t Bytes       = 0;
    std::int32_t Seite       = 0; // bytes of a page, 0 when no page is to be passed over
    bool         Mit_Bank    = false;
    bool         Mit_Blöcken = false;
};

Lesung_T Lesung_Einrichten()
{
    const Geraet_T& g = Gewaehltes_Geraet();
    Adj_257           = g.R_Typ == "87C257" || Hat_Bank(g.P_Typ) ? 1 : 0;
    Bank              = 0;
    C2_Art            = C2_Regel_Von(g.R_Typ, g.P_Typ, true);
    const auto Puffer = static_cast<std::int32_t>(Hex_Puffer.size());
    return {std::min(Nutzbare_Bytes(g), Puffer),
            Pruef_Modus ? std::clamp(g.Seiten_Bytes, 0, Bild_Groesse) : 0,
            Hat_Bank(g.P_Typ),
            Ohne_Zaehler_14(g.R_Typ)};
}

std::string_view Vorgang_D() { return Pruef_Modus ? Pruef_Text_D : Lese_Text_D; }
std::string_view Vorgang_E() { return Pruef_Modus ? Pruef_Text_E : Lese_Text_E; }

Text_Paar Anfangs_Text()
{
    const std::string Name = IC_Menue_Name();
    return {fmt::format("{}{}", Name, Vorgang_D()), fmt::format("{}{}", Name, Vorgang_E())};
}

Text_Paar Prozent_Text(int Wert)
{
    const std::string Name = IC_Menue_Name();
    return {fmt::format("{} {} {}%", Name, Vorgang_D(), Wert),
            fmt::format("{}{}... {}%", Name, Vorgang_E(), Wert)};
}

void Dialog_Schliessen()
{
    Plattform.Status->Schliessen();
    Fenster_Freigeben();
}

bool Seite_Erledigt(std::int32_t Seite)
{
    const auto Nummer = static_cast<std::size_t>(Adresse_Zaehler / Seite);
    return Nummer < Seiten_Liste.size() && Seiten_Liste[Nummer] != 0;
}

void Seiten_Uebergehen(const Lesung_T& l)
{
    while (l.Seite > 0 && Adresse_Zaehler < l.Bytes && Seite_Erledigt(l.Seite)) {
        Zaehler_Takten_Lesen(l.Seite, Lese_Korrektur());
        Adresse_Zaehler += l.Seite;
        if (Adresse_Zaehler == Bank_Grenze && l.Mit_Bank)
            Bank = 1;
    }
}

// Reads the byte that the counters point at; the closing 79 is the first half of the counter step.
std::uint8_t Byte_Lesen()
{
    Daten_Senden(75 - Lese_Korrektur());
    const std::uint8_t Wert = Bus_Lesen(Lese_Zeit(), 203 - Lese_Korrektur());
    Daten_Senden(75 - Lese_Korrektur());
    Daten_Senden(79 - Lese_Korrektur());
    return Wert;
}

// One pass of the loop; false when the user gave up.
bool Adresse_Lesen(const Lesung_T& l)
{
    if (Adresse_Zaehler == Bank_Grenze && l.Mit_Bank)
        Bank = 1;
    Hoch_Bits_Setzen();
    Lese_Fortschritt_Zeigen(l.Bytes);
    if (Abbruch) {
        Daten_Senden(74);
        return false;
    }
    Hex_Puffer[static_cast<std::size_t>(Adresse_Zaehler)] = Byte_Lesen();
    if ((Adresse_Zaehler + 1) % Block_Groesse == 0 && l.Mit_Blöcken)
        Zaehler_Takten_Lesen(Block_Groesse, 0);
    return true;
}

bool Alle_Adressen_Lesen(const Lesung_T& l)
{
    if (Gewaehltes_Geraet().R_Typ == "28C64")
        Zaehler_Takten_Lesen(Versatz_28C64, 0);
    Prozent_Gezeigt = 0;
    for (Adresse_Zaehler = 0;; ++Adresse_Zaehler) {
        Seiten_Uebergehen(l);
        if (Adresse_Zaehler >= l.Bytes)
            return true;
        if (!Adresse_Lesen(l))
            return false;
    }
}

// The question about unsaved work: true when the command may go on.
bool Ungesichertes_Freigegeben()
{
    if (!Datei_Geaendert)
        return true;
    Antwort = Antwort_Abbrechen;
    Melden({"Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?", "Save changes first?"},
           {},
           Knoepfe::Ja_Nein_Abbrechen,
           Symbol::Frage);
    if (Antwort == Antwort_Ja)
        MNU_Save_Click();
    return Antwort == Antwort_Nein;
}

void Puffer_Ins_Bild()
{
    Bild_Loeschen();
    const auto Bytes = Nutzbare_Bytes(Gewaehltes_Geraet());
    std::copy_n(Hex_Puffer.begin(), Bytes, Hex_Daten.begin());
    Hex_Puffer = {};
}

void Dokument_Ohne_Namen()
{
    Datei_Name.clear();
    Editor_Titel_Ohne_Namen(Fenster_Edit);
    Editor_Titel_Ohne_Namen(Fenster_Hexedit);
}

void Ansichten_Nach_Lesen()
{
    if (Modus == Modus_Hex)
        Plattform.Edit->Text_Setzen({});
    Hex_Anzeige();
    Text_Aktuell    = false;
    Text_Veraendert = false;
    Datei_Geaendert = false;
}

} // namespace

void Lese_Dialog_Oeffnen()
{
    if (!Pruef_Modus) {
        Fenster_Sperren();
        Plattform.Status->Oeffnen();
    }
    Plattform.Status->Text(In_Sprache(Anfangs_Text()));
}

void Lese_Fortschritt_Zeigen(std::int32_t Bytes)
{
    Prozent_Jetzt = Bytes > 1 ? static_cast<int>(100LL * Adresse_Zaehler / (Bytes - 1)) : 0;
    if (Prozent_Jetzt <= Prozent_Gezeigt)
        return;
    Prozent_Gezeigt = Prozent_Jetzt = std::min(Prozent_Jetzt, 100);
    Plattform.Status->Text(In_Sprache(Prozent_Text(Prozent_Jetzt)));
    Plattform.Status->ProgBar(Prozent_Jetzt);
    Plattform.Ereignisse->Eine_Runde();
}

void Lesen_Aufgeben()
{
    Abbruch = false;
    Antwort = Antwort_Abbrechen;
    Dialog_Schliessen();
}

void Lesen_Beenden(int Ruhe_Byte)
{
    Daten_Senden(Ruhe_Byte);
    Plattform.Status->ProgBar(100);
    const Text_Paar Hinweis{"   Es sind mehrere Durchläufe erforderlich, bitte nicht abbrechen.",
                            "   More than one passes are neccessary. Please don't abort this."};
    Plattform.Status->Text(In_Sprache(Prozent_Text(100)) +
                           (Pruef_Modus ? In_Sprache(Hinweis) : std::string{}));
    if (Pruef_Modus)
        return;
    Plattform.Port->Sleep(75);
    Dialog_Schliessen();
}

Lese_Weg Lese_Weg_Von(std::string_view R_Typ, int Board)
{
    for (const std::string_view Familie : {"27", "28", "29", "87"})
        if (R_Typ.starts_with(Familie))
            return Lese_Weg::Eprommer;
    if (Board == Board_Nr_Tessel2)
        return Lese_Weg::Tessel2;
    return Typ_Auf_Tessel1(R_Typ) ? Lese_Weg::Tessel1 : Lese_Weg::Keiner;
}

bool Lesen_Bedient()
{
    const Geraet_T& Geraet = Gewaehltes_Geraet();
    return Lese_Weg_Von(Geraet.R_Typ, Geraet.Programmer) != Lese_Weg::Keiner;
}

void Speicher_Lesen()
{
    Antwort = Antwort_Ok;
    Adj_257 = 0;
    if (!Gewaehltes_Geraet().R_Typ.starts_with("29") && !Pruef_Modus)
        Brenner_Pruefen();
    if (Antwort == Antwort_Abbrechen)
        return;
    const Lesung_T Lesung = Lesung_Einrichten();
    Lese_Dialog_Oeffnen();
    Zaehler_Ruecksetzen_Lesen();
    Plattform.Status->ProgBar(1);
    if (Abbruch || !Alle_Adressen_Lesen(Lesung))
        Lesen_Aufgeben();
    else
        Lesen_Beenden(74);
}

void Baustein_Lesen()
{
    const Geraet_T& Geraet = Gewaehltes_Geraet();
    switch (Lese_Weg_Von(Geraet.R_Typ, Geraet.Programmer)) {
    case Lese_Weg::Eprommer:
        return Speicher_Lesen();
    case Lese_Weg::Tessel1:
        return Tessel1_Lesen();
    case Lese_Weg::Tessel2:
        return Tessel2_Lesen();
    case Lese_Weg::Keiner:
        Antwort = Antwort_Abbrechen;
    }
}

// The device replaces the image.
// reads: Datei_Geaendert, Modus   sets: Hex_Daten, Datei_Name, Datei_Geaendert, Text_Aktuell,
// Antwort
void MNU_IC_Lesen_Click()
{
    Abbruch = false; // of whatever was given up before: this read would end at once
    Sitzung_Beenden();
    if (!Porttreiber_Bereit() || !Baustein_Gewaehlt() || !Ungesichertes_Freigegeben())
        return;
    if (!Lesen_Bedient()) { // no routine for its type: the image stays as it is
        Antwort = Antwort_Abbrechen;
        return;
    }
    Dokument_Ohne_Namen();
    Hex_Puffer.assign(Hex_Daten.size(), 0xFF);
    Baustein_Lesen();
    Puffer_Ins_Bild();
    Ansichten_Nach_Lesen();
}

} // namespace varnholt
