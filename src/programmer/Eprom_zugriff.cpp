// The EPROM routine: programs every device whose program type begins 27C, 87C or 27SF, one byte at
// a time, with a pulse that grows until the byte takes.
#include "programmer/Eprom_zugriff.h"

#include "core/settings.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Brennrahmen.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

// ---- Preparation ----

void Lauf_Einrichten()
{
    const Geraet_T& g = Gewaehltes_Geraet();
    Brenn_Bereich_Setzen();
    Puls_an_C2 = g.P_Typ == "27C010" || g.P_Typ == "27C020";
    Adj_512    = g.P_Typ == "27C512" ? -1 : 0;
    Adj_257    = g.P_Typ == "87C257" ? 1 : 0;
    C2_Art     = C2_Regel_Von(g.R_Typ, g.P_Typ, false);
    Daten_Senden(91);
}

Folge Vorbereiten()
{
    Brenn_Dialog_Oeffnen();
    Zaehler_Ruecksetzen_Brennen();
    Lauf_Einrichten();
    Adressen_Uebergehen();
    return Brennlauf_Beginnen();
}

// ---- One address ----

Folge Laden_Und_Pruefen(const Zelle_T& z)
{
    for (int Ladung = 0; Ladung < Lade_Versuche; ++Ladung) {
        Byte_Laden(z.Soll);
        if (Byte_Auf_Bus(z.Soll))
            return Folge::Weiter;
    }
    return Eprommer_Fehler_Melden(Text_Bus_Fehler(z));
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
    if (Brenn_Runde() == Folge::Abgebrochen)
        return Folge::Abgebrochen;
    Puls_Abwarten(Puls_Breite);
    Puls_Enden();
    return Folge::Weiter;
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
    Puls_Breite *= Puls_Faktor(Versuch);
    return Versuch > Puls_Versuche ? Eprommer_Fehler_Melden(Text_Zellen_Fehler(z, Gelesen))
                                   : Folge::Weiter;
}

Folge Laden_Und_Brennen(const Zelle_T& z)
{
    const Folge Geladen = Laden_Und_Pruefen(z);
    return Geladen == Folge::Weiter ? Puls_Geben() : Geladen;
}

Folge Hauptschleife()
{
    Folge f = Folge::Weiter;
    while (f == Folge::Weiter && Adresse_Zaehler <= Bis_Adresse)
        f = Eprommer_Adresse_Bearbeiten(Laden_Und_Brennen, Nachlesen);
    return f;
}

} // namespace

void Eprom_Brennen()
{
    Folge f = Vorbereiten();
    if (f == Folge::Weiter)
        f = Hauptschleife();
    Brennlauf_Beenden(f, 90);
}

} // namespace varnholt
