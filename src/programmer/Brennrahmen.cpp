// The frame of a programming run, the same for all routines: the byte that an address is about, the
// progress dialog, the counted attempts, the error messages and the ways in which a run ends.
#include "programmer/Brennrahmen.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Feldwert.h"
#include "programmer/Signale.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

Text_Paar Fehler_An_Adresse(std::int64_t e)
{
    return {fmt::format("Fehler beim Brennen der Adresse {}(dez) / {}(hex) !", e, Feld_Hex(e)),
            fmt::format("Error while programming address {}(dec) / {}(hex) !", e, Feld_Hex(e))};
}

void Fertig_Beenden(int Ruhe_Byte)
{
    if (Ruhe_Byte != Ohne_Ruhe_Byte)
        Daten_Senden(Ruhe_Byte);
    Plattform.Status->ProgBar(100);
    Plattform.Port->Sleep(100);
    Brenn_Dialog_Schliessen();
    Brenn_Ergebnis = Brenn_Ausgang::Fertig;
    if (C_IC_nach_B)
        CheckIC_Start(Brennmenue.O_Odd_Splitting, Brennmenue.O_Even_Splitting);
}

void Abgebrochen_Beenden(int Ruhe_Byte)
{
    Daten_Senden(Ruhe_Byte);
    Abbruch = false;
    Antwort = Antwort_Abbrechen;
    Brenn_Dialog_Schliessen();
    Brenn_Ergebnis = Brenn_Ausgang::Abgebrochen;
}

void Fehler_Beenden()
{
    Brenn_Dialog_Schliessen();
    Brenn_Ergebnis = Brenn_Ausgang::Fehler;
}

} // namespace

Zelle_T Zelle_Bestimmen()
{
    Zelle_T z;
    z.Editor_Adresse = Bild_Adresse(
        Adresse_Zaehler, Versatz, Brennmenue.O_Odd_Splitting, Brennmenue.O_Even_Splitting);
    z.Soll = Bild_Byte(Hex_Daten, z.Editor_Adresse);
    return z;
}

void Brenn_Bereich_Setzen()
{
    const Brenn_Bereich b = Bereich_Des_Dialogs();
    Adresse_Zaehler       = 0;
    Versuch               = 1;
    Ab_Adresse            = b.Ab;
    Versatz               = b.Abstand;
    Bis_Adresse           = b.Bis;
}

void Brenn_Dialog_Oeffnen()
{
    const std::string Name = IC_Menue_Name();
    Fenster_Sperren();
    Plattform.Status->Oeffnen();
    Plattform.Status->Text(In_Sprache({Name + " wird gebrannt...", Name + " Programming "}));
}

void Brenn_Dialog_Schliessen()
{
    Plattform.Status->Schliessen();
    Fenster_Freigeben();
}

bool Brenn_Fortschritt_Zeigen(std::int32_t Letzte)
{
    Prozent_Jetzt = Letzte > 0 ? static_cast<int>(100LL * Adresse_Zaehler / Letzte) : 0;
    if (Prozent_Jetzt <= Prozent_Gezeigt)
        return false;
    Prozent_Gezeigt        = Prozent_Jetzt;
    const std::string Name = IC_Menue_Name();
    Plattform.Status->Text(
        In_Sprache({fmt::format("{} wird gebrannt... {}%", Name, Prozent_Jetzt),
                    fmt::format("{} Programming ... {}%", Name, Prozent_Jetzt)}));
    Plattform.Status->ProgBar(std::min(Prozent_Jetzt, 100));
    return true;
}

void Adressen_Uebergehen()
{
    if (Brennmenue.DAT00)
        return;
    while (Adresse_Zaehler < Ab_Adresse) {
        Daten_Senden(95);
        ++Adresse_Zaehler;
        Daten_Senden(91);
    }
}

Folge Brennlauf_Beginnen()
{
    Plattform.Status->ProgBar(1);
    Plattform.Ereignisse->Eine_Runde();
    if (Abbruch)
        return Folge::Abgebrochen;
    Versuch_Statistik.fill(0);
    Puls_Breite     = Gewaehltes_Geraet().P_Timing;
    Prozent_Gezeigt = 0;
    return Folge::Weiter;
}

Folge Brenn_Runde()
{
    Brenn_Fortschritt_Zeigen(Bis_Adresse);
    Plattform.Ereignisse->Eine_Runde();
    return Abbruch ? Folge::Abgebrochen : Folge::Weiter;
}

Folge Eprommer_Adresse_Bearbeiten(Folge (*Schreiben)(const Zelle_T&),
                                  Folge (*Nachlesen)(const Zelle_T&))
{
    if (Versuch == 1)
        ++Versuch_Statistik[1];
    const Zelle_T z = Zelle_Bestimmen();
    Hoch_Bits_Setzen();
    Folge f = Folge::Weiter;
    if (No_FF && z.Soll == 0xFF)
        Daten_Senden(75 - Adj_257);
    else
        f = Schreiben(z);
    if (f == Folge::Weiter)
        f = Nachlesen(z);
    if (f != Folge::Weiter || Versuch != 1)
        return f;
    Zaehler_Schritt_Brennen();
    ++Adresse_Zaehler;
    return f;
}

void Naechster_Versuch()
{
    --Versuch_Statistik[static_cast<std::size_t>(Versuch)];
    ++Versuch;
    ++Versuch_Statistik[static_cast<std::size_t>(Versuch)];
}

Folge Eprommer_Fehler_Melden(const Text_Paar& Text)
{
    Daten_Senden(91 + Brenn_Korrektur());
    return Brenn_Fehler_Melden(Text);
}

Folge Brenn_Fehler_Melden(const Text_Paar& Text)
{
    Melden(Text, {"Warnung", "Warning"}, Knoepfe::Ok, Symbol::Kritisch);
    return Folge::Fehler;
}

Text_Paar Text_Bus_Fehler(const Zelle_T& Zelle)
{
    const Text_Paar Anfang = Fehler_An_Adresse(Zelle.Editor_Adresse);
    return {fmt::format("{}{}Die Übermittlung der Daten '{:X}'(hex) an den 74HC595 funktionierte "
                        "nicht oder die Daten konnten nicht vom 74HC157 korrekt eingelesen werden! "
                        "Bitte überprüfen Sie die Hardware!",
                        Anfang.D,
                        CRLF,
                        Zelle.Soll),
            fmt::format("{}{}Can't send data '{:X}'(hex) to the 74HC595 or can't read it back with "
                        "74HC157. Please check your hardware!",
                        Anfang.E,
                        CRLF,
                        Zelle.Soll)};
}

Text_Paar Text_Zellen_Fehler(const Zelle_T& Zelle, std::uint8_t Gelesen)
{
    const Text_Paar Anfang = Fehler_An_Adresse(Zelle.Editor_Adresse);
    return {fmt::format("{}{}Diese Adresse sollte auf '{:X}'(hex) gebrannt werden, sie bleibt aber "
                        "auf '{:X}'(hex)!",
                        Anfang.D,
                        CRLF,
                        Zelle.Soll,
                        Gelesen),
            Anfang.E};
}

void Brennlauf_Beenden(Folge f, int Ruhe_Byte)
{
    if (f == Folge::Weiter)
        Fertig_Beenden(Ruhe_Byte);
    else if (f == Folge::Abgebrochen)
        Abgebrochen_Beenden(Ruhe_Byte);
    else
        Fehler_Beenden();
    Brennmenue.Offen = false;
}

} // namespace varnholt
