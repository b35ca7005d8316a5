// The EPROM routine: programs every device whose program type begins 27C, 87C or 27SF, one byte at
// a time, with a pulse that grows until the byte takes.
#include "programmer/Eprom_zugriff.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Val.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Feldwert.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

enum class Folge { Weiter, Abgebrochen, Fehler };

// The byte that the current address is about.
struct Zelle_T {
    std::int64_t Editor_Adresse = 0; // its index in the image, may lie outside
    std::uint8_t Soll           = 0; // what the device has to hold
};

// Below the editor's start 00h, behind the image FFh, which leaves a cell as it is.
Zelle_T Zelle_Bestimmen()
{
    Zelle_T z;
    z.Editor_Adresse = Bild_Adresse(
        Adresse_Zaehler, Versatz, Brennmenue.O_Odd_Splitting, Brennmenue.O_Even_Splitting);
    if (z.Editor_Adresse >= static_cast<std::int64_t>(Hex_Daten.size()))
        z.Soll = 0xFF;
    else if (z.Editor_Adresse >= 0)
        z.Soll = Hex_Daten[static_cast<std::size_t>(z.Editor_Adresse)];
    return z;
}

// ---- Preparation ----

void Dialog_Oeffnen()
{
    const std::string Name = IC_Menue_Name();
    Fenster_Sperren();
    Plattform.Status->Oeffnen();
    Plattform.Status->Text(In_Sprache({Name + " wird gebrannt...", Name + " Programming "}));
}

void Lauf_Einrichten()
{
    const Geraet_T& g = Gewaehltes_Geraet();
    Adresse_Zaehler   = 0;
    Versuch           = 1;
    Ab_Adresse        = Val(Brennmenue.BR_EBA_D);
    Versatz           = std::int64_t{Ab_Adresse} - Val(Brennmenue.ED_EBA_D);
    Bis_Adresse       = No_FF ? Val(Brennmenue.BR_LBA_D) : Nutzbare_Bytes(g) - 1;
    Bis_Adresse       = std::min(Bis_Adresse, Nutzbare_Bytes(g) - 1);
    Puls_an_C2        = g.P_Typ == "27C010" || g.P_Typ == "27C020";
    Adj_512           = g.P_Typ == "27C512" ? -1 : 0;
    Adj_257           = g.P_Typ == "87C257" ? 1 : 0;
    C2_Art            = C2_Regel_Von(g.R_Typ, g.P_Typ, false);
    Daten_Senden(91);
}

// Counts up to the first programmed address with the plain bytes: nothing below it is touched.
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

void Zaehlwerke_Stellen()
{
    Versuch_Statistik.fill(0);
    Puls_Breite     = Gewaehltes_Geraet().P_Timing;
    Prozent_Gezeigt = 0;
}

Folge Vorbereiten()
{
    Dialog_Oeffnen();
    Zaehler_Ruecksetzen_Brennen();
    Lauf_Einrichten();
    Adressen_Uebergehen();
    Plattform.Status->ProgBar(1);
    Plattform.Ereignisse->Eine_Runde();
    if (Abbruch)
        return Folge::Abgebrochen;
    Zaehlwerke_Stellen();
    return Folge::Weiter;
}

// ---- Messages ----

// The run ends at the byte that failed; the data register keeps the bytes of the loop.
Folge Fehler_Melden(const Text_Paar& Text)
{
    Daten_Senden(91 + Brenn_Korrektur());
    Melden(Text, {"Warnung", "Warning"}, Knoepfe::Ok, Symbol::Kritisch);
    return Folge::Fehler;
}

Text_Paar Fehler_An_Adresse(std::int64_t e)
{
    return {fmt::format("Fehler beim Brennen der Adresse {}(dez) / {}(hex) !", e, Feld_Hex(e)),
            fmt::format("Error while programming address {}(dec) / {}(hex) !", e, Feld_Hex(e))};
}

Text_Paar Text_Bus_Fehler(const Zelle_T& z)
{
    const Text_Paar Anfang = Fehler_An_Adresse(z.Editor_Adresse);
    return {fmt::format("{}{}Die Übermittlung der Daten '{:X}'(hex) an den 74HC595 funktionierte "
                        "nicht oder die Daten konnten nicht vom 74HC157 korrekt eingelesen werden! "
                        "Bitte überprüfen Sie die Hardware!",
                        Anfang.D,
                        CRLF,
                        z.Soll),
            fmt::format("{}{}Can't send data '{:X}'(hex) to the 74HC595 or can't read it back with "
                        "74HC157. Please check your hardware!",
                        Anfang.E,
                        CRLF,
                        z.Soll)};
}

Text_Paar Text_Zellen_Fehler(const Zelle_T& z, std::uint8_t Gelesen)
{
    const Text_Paar Anfang = Fehler_An_Adresse(z.Editor_Adresse);
    return {fmt::format("{}{}Diese Adresse sollte auf '{:X}'(hex) gebrannt werden, sie bleibt aber "
                        "auf '{:X}'(hex)!",
                        Anfang.D,
                        CRLF,
                        z.Soll,
                        Gelesen),
            Anfang.E};
}

// ---- One address ----

Folge Laden_Und_Pruefen(const Zelle_T& z)
{
    for (int Ladung = 0; Ladung < Lade_Versuche; ++Ladung) {
        Byte_Laden(z.Soll);
        if (Byte_Auf_Bus(z.Soll))
            return Folge::Weiter;
    }
    return Fehler_Melden(Text_Bus_Fehler(z));
}

void Puls_Beginnen()
{
    const int F = Brenn_Korrektur();
    Daten_Senden(27 + F);
    Daten_Senden(25 + F);
    Daten_Senden(17 + F);
    if (Puls_an_C2)
        Steuerung_Senden(2 + (Hoch_Bits & (8 + 1)));
    Puls_Anfang = Maschinenzeit();
}

void Fortschritt_Zeigen()
{
    Prozent_Jetzt = Bis_Adresse > 0 ? static_cast<int>(100LL * Adresse_Zaehler / Bis_Adresse) : 0;
    if (Prozent_Jetzt <= Prozent_Gezeigt)
        return;
    Prozent_Gezeigt        = Prozent_Jetzt;
    const std::string Name = IC_Menue_Name();
    Plattform.Status->Text(
        In_Sprache({fmt::format("{} wird gebrannt... {}%", Name, Prozent_Jetzt),
                    fmt::format("{} Programming ... {}%", Name, Prozent_Jetzt)}));
    Plattform.Status->ProgBar(std::min(Prozent_Jetzt, 100));
}

void Puls_Enden()
{
    const int F = Brenn_Korrektur();
    if (Puls_an_C2)
        Steuerung_Senden(Hoch_Bits + 2);
    Daten_Senden(27 + F);
    Daten_Senden(91 + F);
    Daten_Senden(75 - Adj_257);
}

// The progress is part of the pulse: its length has a floor in it and no ceiling.
Folge Puls_Geben()
{
    Puls_Beginnen();
    Fortschritt_Zeigen();
    Plattform.Ereignisse->Eine_Runde();
    if (Abbruch)
        return Folge::Abgebrochen;
    Puls_Abwarten(Puls_Breite);
    Puls_Enden();
    return Folge::Weiter;
}

void Naechster_Versuch()
{
    --Versuch_Statistik[static_cast<std::size_t>(Versuch)];
    ++Versuch;
    ++Versuch_Statistik[static_cast<std::size_t>(Versuch)];
    Puls_Breite *= Puls_Faktor(Versuch);
}

void Adresse_Gelungen()
{
    Versuch     = 1;
    Puls_Breite = Gewaehltes_Geraet().P_Timing;
}

Folge Nachlesen(const Zelle_T& z)
{
    if (!C_IC_bei_B || Adresse_Zaehler < Ab_Adresse)
        return Folge::Weiter;
    const std::uint8_t Gelesen = Bus_Lesen(2 * Lese_Zeit(), 203 - Adj_257);
    if (Gelesen == z.Soll) {
        Adresse_Gelungen();
        return Folge::Weiter;
    }
    Naechster_Versuch();
    return Versuch > Puls_Versuche ? Fehler_Melden(Text_Zellen_Fehler(z, Gelesen)) : Folge::Weiter;
}

Folge Laden_Und_Brennen(const Zelle_T& z)
{
    const Folge Geladen = Laden_Und_Pruefen(z);
    return Geladen == Folge::Weiter ? Puls_Geben() : Geladen;
}

// One pass of the main loop: an attempt at one address, and the step to the next when it took.
Folge Adresse_Bearbeiten()
{
    if (Versuch == 1)
        ++Versuch_Statistik[1];
    const Zelle_T z = Zelle_Bestimmen();
    Hoch_Bits_Setzen();
    Folge f = Folge::Weiter;
    if (No_FF && z.Soll == 0xFF)
        Daten_Senden(75 - Adj_257);
    else
        f = Laden_Und_Brennen(z);
    if (f == Folge::Weiter)
        f = Nachlesen(z);
    if (f != Folge::Weiter || Versuch != 1)
        return f;
    Zaehler_Schritt_Brennen();
    ++Adresse_Zaehler;
    return f;
}

Folge Hauptschleife()
{
    Folge f = Folge::Weiter;
    while (f == Folge::Weiter && Adresse_Zaehler <= Bis_Adresse)
        f = Adresse_Bearbeiten();
    return f;
}

// ---- End ----

void Dialog_Schliessen()
{
    Plattform.Status->Schliessen();
    Fenster_Freigeben();
}

void Fertig_Beenden()
{
    Daten_Senden(90);
    Plattform.Status->ProgBar(100);
    Plattform.Port->Sleep(100);
    Dialog_Schliessen();
    Brenn_Ergebnis = Brenn_Ausgang::Fertig;
    if (C_IC_nach_B)
        CheckIC_Start(Brennmenue.O_Odd_Splitting, Brennmenue.O_Even_Splitting);
}

void Abgebrochen_Beenden()
{
    Daten_Senden(90);
    Abbruch = false;
    Antwort = Antwort_Abbrechen;
    Dialog_Schliessen();
    Brenn_Ergebnis = Brenn_Ausgang::Abgebrochen;
}

void Fehler_Beenden()
{
    Dialog_Schliessen();
    Brenn_Ergebnis = Brenn_Ausgang::Fehler;
}

} // namespace

void Eprom_Brennen()
{
    Folge f = Vorbereiten();
    if (f == Folge::Weiter)
        f = Hauptschleife();
    if (f == Folge::Weiter)
        Fertig_Beenden();
    else if (f == Folge::Abgebrochen)
        Abgebrochen_Beenden();
    else
        Fehler_Beenden();
    Brennmenue.Offen = false;
}

} // namespace varnholt
