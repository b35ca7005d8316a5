// Writing devices by pages: a page is loaded with quick strobes, the device then stores it by
// itself; what didn't take is found by reading the pages and written again.
#include "programmer/Seiten_Schreiben.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Val.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Brennrahmen.h"
#include "programmer/CheckIC.h"
#include "programmer/Lesen.h"
#include "programmer/Signale.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int          Unbekannt       = 0xFFFF; // no byte: the 74HC595 has to be loaded
constexpr int          Schreib_Leitung = 4;      // C2
constexpr double       Abfrage_Frist   = 0.02;   // seconds for the end of a page's write time
constexpr std::int32_t Zusatz_Seite    = 256;   // 16 KB into a device with pages of 64 bytes, where
constexpr std::int32_t Zusatz_Schritte = 16383; // these steps pass over counter bit 14

constexpr char Offen    = 0; // in Seiten_Liste: still to be read and written
constexpr char Bewiesen = -1;

// The pages of one run, and where the counters of the board stand.
struct Seiten_T {
    std::int32_t Erste  = 0;
    std::int32_t Letzte = 0;
    std::int64_t Stand  = 0;
};

// ---- Preparation ----

Seiten_T Lauf_Einrichten()
{
    const Geraet_T&     g = Gewaehltes_Geraet();
    const Brenn_Bereich b = Bereich_Des_Dialogs();
    Brenn_Bereich_Setzen();
    Alt_Byte       = Unbekannt;
    Seiten_Groesse = std::clamp(g.Seiten_Bytes, 1, Bild_Groesse);
    Puls_an_C2     = g.P_Typ == "29C010" || g.P_Typ == "29C020" || g.P_Typ == "29C040";
    Bank           = 0;
    Adj_512        = 0;
    Adj_257        = 0;
    return {b.Erste / Seiten_Groesse, b.Letzte < 0 ? -1 : b.Letzte / Seiten_Groesse, 0};
}

// ---- One page ----

void Zaehler_Schritt()
{
    Daten_Senden(90 + Bank);
    Daten_Senden(94 + Bank);
    Daten_Senden(90 + Bank);
}

void Zaehler_Stellen(std::int32_t Ziel, std::int64_t& Stand)
{
    if (Stand > Ziel) {
        Steuerung_Senden(9);
        Plattform.Port->Sleep(1);
        Steuerung_Senden(11);
        Plattform.Port->Sleep(1);
        Stand = 0;
    }
    for (; Stand < Ziel; ++Stand) {
        Daten_Senden(90 + Bank);
        Daten_Senden(94 + Bank);
    }
    Daten_Senden(90 + Bank);
}

// These two devices see counter bit 15 in the place of bit 14.
void Zusatz_Zaehlen(std::int64_t& Stand)
{
    const std::string& Name = Gewaehltes_Geraet().Name;
    if (Name != "M28C256" && Name != "AT28C256")
        return;
    Daten_Senden(90);
    for (int i = 0; i < Zusatz_Schritte; ++i) {
        Daten_Senden(94);
        ++Stand;
        Daten_Senden(90);
    }
}

void Strobe_Geben()
{
    if (Puls_an_C2) {
        Steuerung_Senden((Hoch_Bits + 2) & ~Schreib_Leitung);
        Steuerung_Senden(Hoch_Bits + 2);
    } else {
        Daten_Senden(19);
        Daten_Senden(26);
    }
}

// One byte into the page buffer. The bus isn't checked: the device's load window is short.
void Byte_In_Seite()
{
    const Zelle_T z = Zelle_Bestimmen();
    Hoch_Bits_Setzen();
    if (z.Soll != Alt_Byte)
        Byte_Schieben(z.Soll, 90 + Bank);
    Alt_Byte = z.Soll;
    Strobe_Geben();
}

void Seite_Laden(std::int32_t Anfang, std::int64_t& Stand)
{
    C2_Art                  = Puls_an_C2 ? C2_Regel::Eins : C2_Regel::Null;
    const std::int32_t Ende = Anfang + Seiten_Groesse;
    for (Adresse_Zaehler = Anfang; Adresse_Zaehler < Ende; ++Adresse_Zaehler) {
        Byte_In_Seite();
        if (Adresse_Zaehler + 1 == Ende)
            return;
        Zaehler_Schritt();
        ++Stand;
    }
}

bool Abfrage_Frist_Um(double Anfang)
{
    const double Jetzt = Plattform.Port->Sekunden_seit_Mitternacht();
    return Jetzt < Anfang || Jetzt - Anfang > Abfrage_Frist; // midnight ends it too
}

// Waits for the device's own write. That it didn't come to an end is found when the page is read.
void Seite_Abwarten()
{
    Plattform.Port->Sleep(Seiten_Pause(Gewaehltes_Geraet().P_Timing));
    const double Anfang = Plattform.Port->Sekunden_seit_Mitternacht();
    Daten_Senden(90 + Bank);
    Daten_Senden(202 + Bank);
    while ((Ungerade_Bits(Status_Lesen()) & 0x80) != (Alt_Byte & 0x80) &&
           !Abfrage_Frist_Um(Anfang)) {
    }
}

// Writes one page; Stand is where the counters stand, Mit_Zusatz asks for the steps of
// Zusatz_Zaehlen.
void Seite_Schreiben(std::int32_t Nummer, std::int64_t& Stand, bool Mit_Zusatz)
{
    const std::int32_t Anfang = Nummer * Seiten_Groesse;
    Bank = Gewaehltes_Geraet().P_Typ == "29C040" && Anfang >= Bank_Grenze ? 1 : 0;
    Daten_Senden(90 + Bank);
    Zaehler_Stellen(Anfang, Stand);
    if (Mit_Zusatz)
        Zusatz_Zaehlen(Stand);
    Seite_Laden(Anfang, Stand);
    Seite_Abwarten();
    Zaehler_Schritt();
    ++Stand;
}

// ---- Progress ----

Folge Runde(std::int32_t Seite, std::int32_t Letzte, const Text_Paar& Vorgang)
{
    Prozent_Jetzt = Letzte > 0 ? static_cast<int>(100LL * Seite / Letzte) : 0;
    if (Prozent_Jetzt > Prozent_Gezeigt) {
        Prozent_Gezeigt = Prozent_Jetzt;
        Plattform.Status->Text(In_Sprache({fmt::format("{}{}%", Vorgang.D, Prozent_Jetzt),
                                           fmt::format("{}{}%", Vorgang.E, Prozent_Jetzt)}));
        Plattform.Status->ProgBar(Prozent_Jetzt);
    }
    Plattform.Ereignisse->Eine_Runde();
    return Abbruch ? Folge::Abgebrochen : Folge::Weiter;
}

// ---- First pass ----

Folge Alle_Schreiben(Seiten_T& s)
{
    const std::string Name = IC_Menue_Name();
    for (std::int32_t i = s.Erste; i <= s.Letzte; ++i) {
        Seite_Schreiben(i, s.Stand, i == Zusatz_Seite);
        if (Runde(i, s.Letzte, {Name + " wird gebrannt... ", Name + " Programming ... "}) !=
            Folge::Weiter)
            return Folge::Abgebrochen;
    }
    return Folge::Weiter;
}

// ---- Verification ----

char& Marke(std::int32_t Seite) { return Seiten_Liste[static_cast<std::size_t>(Seite)]; }

void Liste_Anlegen()
{
    const std::int32_t Bytes = Nutzbare_Bytes(Gewaehltes_Geraet());
    Seiten_Liste.assign(static_cast<std::size_t>((Bytes + Seiten_Groesse - 1) / Seiten_Groesse),
                        Offen);
    Hex_Puffer.resize(std::max(Hex_Puffer.size(), static_cast<std::size_t>(Bytes)));
}

// Reads the pages that are open; false when the user gave up.
bool Offene_Lesen()
{
    Antwort     = Antwort_Ok;
    Pruef_Modus = true;
    Speicher_Lesen();
    Pruef_Modus = false;
    return Antwort != Antwort_Abbrechen;
}

bool Seite_Stimmt(std::int32_t Nummer)
{
    const std::int32_t Bytes = Nutzbare_Bytes(Gewaehltes_Geraet());
    const std::int32_t Ende  = std::min((Nummer + 1) * Seiten_Groesse, Bytes);
    for (Adresse_Zaehler = Nummer * Seiten_Groesse; Adresse_Zaehler < Ende; ++Adresse_Zaehler)
        if (Hex_Puffer[static_cast<std::size_t>(Adresse_Zaehler)] != Zelle_Bestimmen().Soll)
            return false;
    return true;
}

// Marks the pages that were read; number of bad ones. In the first pass that is every page of the
// range, and those outside it count as good.
std::int32_t Gelesene_Vergleichen(const Seiten_T& s, bool Erster_Durchgang)
{
    const auto Gelesen = Seiten_Liste;
    if (Erster_Durchgang)
        std::fill(Seiten_Liste.begin(), Seiten_Liste.end(), Bewiesen);
    std::int32_t Schlechte = 0;
    for (std::int32_t i = s.Erste; i <= s.Letzte; ++i) {
        if (Gelesen[static_cast<std::size_t>(i)] != Offen)
            continue;
        Marke(i) = Seite_Stimmt(i) ? Bewiesen : Offen;
        Schlechte += Marke(i) == Offen ? 1 : 0;
    }
    return Schlechte;
}

Folge Keine_Gut_Melden()
{
    const std::string Name = IC_Menue_Name();
    return Brenn_Fehler_Melden({Name +
                                    " konnte nicht programmiert werden! Bitte überprüfen Sie die "
                                    "Hardware und das Flash Eprom!",
                                Name + " can't be programmed successfully! Please check your "
                                       "hardware and the flash eprom!"});
}

Folge Sektor_Melden(const Seiten_T& s)
{
    std::int32_t i = s.Erste;
    while (Marke(i) != Offen)
        ++i;
    return Brenn_Fehler_Melden(
        {fmt::format("Der Sektor Nummer {} lässt sich nicht fehlerfrei programmieren! Bitte "
                     "überprüfen Sie die Hardware und das Flash Eprom!",
                     i),
         fmt::format("Sector number {} can't be programmed successfully! Please check your "
                     "hardware and the flash eprom!",
                     i)});
}

Folge Schlechte_Schreiben(Seiten_T& s, std::int32_t Anzahl)
{
    const std::string Name = IC_Menue_Name();
    const Text_Paar   Vorgang{fmt::format("{} {} Sektoren werden überarbeitet... ", Name, Anzahl),
                            fmt::format("{} Reprogram {} sectors... ", Name, Anzahl)};
    Prozent_Gezeigt = 0;
    for (std::int32_t i = s.Erste; i <= s.Letzte; ++i) {
        if (Marke(i) != Offen)
            continue;
        Seite_Schreiben(i, s.Stand, false);
        if (Runde(i, s.Letzte, Vorgang) != Folge::Weiter)
            return Folge::Abgebrochen;
    }
    return Folge::Weiter;
}

// Reads, compares and rewrites until every page is proved. Pages rewritten in the last pass aren't.
Folge Beweisen(Seiten_T& s)
{
    Liste_Anlegen();
    const std::int32_t Alle = s.Letzte - s.Erste + 1;
    for (int Durchgang = 0; Durchgang < Seiten_Durchgaenge; ++Durchgang) {
        if (!Offene_Lesen())
            return Folge::Abgebrochen;
        const std::int32_t Schlechte = Gelesene_Vergleichen(s, Durchgang == 0);
        if (Schlechte == 0)
            return Folge::Weiter;
        if (Schlechte == Alle)
            return Keine_Gut_Melden();
        if (Schlechte_Schreiben(s, Schlechte) != Folge::Weiter)
            return Folge::Abgebrochen;
    }
    return Sektor_Melden(s);
}

// Bewiesen_Alle: pages were written, and the device holds them.
Folge Bereich_Schreiben(bool& Bewiesen_Alle)
{
    Brenn_Dialog_Oeffnen();
    Daten_Senden(90);
    Zaehler_Ruecksetzen_Brennen();
    Seiten_T s = Lauf_Einrichten();
    Folge    f = Brennlauf_Beginnen();
    if (f == Folge::Weiter)
        f = Alle_Schreiben(s);
    if (f == Folge::Weiter)
        f = Beweisen(s);
    Bewiesen_Alle = f == Folge::Weiter && s.Erste <= s.Letzte;
    return f;
}

} // namespace

void Seiten_Schreiben()
{
    const Folge f = Bereich_Schreiben(CheckIC.Seiten_Bewiesen);
    Brennlauf_Beenden(f, f == Folge::Abgebrochen ? 74 : Ohne_Ruhe_Byte);
    CheckIC.Seiten_Bewiesen = false; // the proof is this run's: a later comparison reads anew
}

} // namespace varnholt
