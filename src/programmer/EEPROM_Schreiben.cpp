// Writing byte-wide EEPROMs and battery-backed RAMs: one byte at a time, a write strobe, then a
// wait until the device has stored it.
#include "programmer/EEPROM_Schreiben.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Brennrahmen.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

constexpr int Unbekannt = 0xFFFF; // no byte: the 74HC595 has to be loaded

bool Ist_28C040() { return Gewaehltes_Geraet().P_Typ == "28C040"; }
bool Ist_RAM() { return Gewaehltes_Geraet().Name.starts_with("48"); }

// ---- Preparation ----

void Lauf_Einrichten()
{
    const Geraet_T& g = Gewaehltes_Geraet();
    No_FF             = Bereich_Des_Dialogs().Ohne_FF;
    Brenn_Bereich_Setzen();
    Alt_Byte = Unbekannt;
    Bank     = 0;
    Adj_512  = 0;
    Adj_257  = Ist_28C040() ? 1 : 0;
    C2_Art   = C2_Regel_Von(g.R_Typ, g.P_Typ, false);
}

// From here on address bit 18 is on. Asked at every address, also while addresses are passed over.
void Bank_Waehlen()
{
    if (Adresse_Zaehler == Bank_Grenze && Ist_28C040())
        Bank = 1;
}

// Counts up to the first address of the range. A RAM is written from its beginning.
void Untere_Uebergehen()
{
    if (Brennmenue.DAT00 || Ist_RAM())
        return;
    while (Adresse_Zaehler < Ab_Adresse) {
        Daten_Senden(94);
        ++Adresse_Zaehler;
        Daten_Senden(90);
        Bank_Waehlen();
    }
}

Folge Vorbereiten()
{
    Brenn_Dialog_Oeffnen();
    Zaehler_Ruecksetzen_Brennen();
    Lauf_Einrichten();
    Untere_Uebergehen();
    if (Gewaehltes_Geraet().P_Typ == "28C64")
        Zaehler_Takten_Lesen(Versatz_28C64, 0);
    return Brennlauf_Beginnen();
}

// ---- One address ----

bool Byte_Angekommen(std::uint8_t Wert)
{
    Byte_Schieben(Wert, 90 + Bank);
    Warte_Mikrosekunden(Lese_Zeit());
    return Byte_Auf_Bus(Wert);
}

// Nothing to do when the 74HC595 holds the byte already, as it does in a run of equal ones.
Folge Laden(const Zelle_T& z)
{
    if (z.Soll == Alt_Byte)
        return Folge::Weiter;
    for (int Ladung = 0; Ladung < Lade_Versuche; ++Ladung)
        if (Byte_Angekommen(z.Soll)) {
            Alt_Byte = z.Soll;
            return Folge::Weiter;
        }
    return Eprommer_Fehler_Melden(Text_Bus_Fehler(z));
}

// The write time counts from the strobe; showing the progress is part of it.
Folge Schreiben()
{
    const int Ruhe = 27 + Brenn_Korrektur() + Bank;
    Daten_Senden(Ruhe);
    Daten_Senden(18 + Bank);
    Puls_Anfang = Maschinenzeit();
    if (Brenn_Runde() == Folge::Abgebrochen)
        return Folge::Abgebrochen;
    Warte_Mikrosekunden(Lese_Zeit());
    Daten_Senden(Ruhe);
    Puls_Abwarten(Puls_Breite);
    if (!Ist_28C040())
        Daten_Senden(75);
    Daten_Senden(75 - Lese_Korrektur());
    return Folge::Weiter;
}

Folge Nachlesen(const Zelle_T& z)
{
    if (!C_IC_bei_B || Adresse_Zaehler < Ab_Adresse)
        return Folge::Weiter;
    const std::uint8_t Gelesen = Bus_Lesen(Lese_Zeit(), 203 - Lese_Korrektur());
    if (Gelesen == z.Soll) {
        Versuch = 1;
        return Folge::Weiter;
    }
    Naechster_Versuch();
    Alt_Byte    = Unbekannt;
    Puls_Breite = Gewaehltes_Geraet().P_Timing;
    if (Versuch > Puls_Versuche)
        return Eprommer_Fehler_Melden(Text_Zellen_Fehler(z, Gelesen));
    return Folge::Weiter;
}

Folge Byte_Schreiben(const Zelle_T& z)
{
    Folge f = Laden(z);
    if (f == Folge::Weiter)
        f = Schreiben();
    return f == Folge::Weiter ? Nachlesen(z) : f;
}

void Weiterzaehlen()
{
    Daten_Senden(94);
    Daten_Senden(90);
    ++Adresse_Zaehler;
    if (Adresse_Zaehler % Block_Groesse == 0 && Ohne_Zaehler_14(Gewaehltes_Geraet().P_Typ))
        Zaehler_Takten_Lesen(Block_Groesse, 0);
}

// One pass of the main loop: an attempt at one address, and the step to the next when it took.
Folge Adresse_Bearbeiten()
{
    if (Versuch == 1)
        ++Versuch_Statistik[1];
    Hoch_Bits_Setzen();
    Bank_Waehlen();
    const Zelle_T z = Zelle_Bestimmen();
    Folge         f = Folge::Weiter;
    if (!No_FF || z.Soll != 0xFF)
        f = Byte_Schreiben(z);
    if (f == Folge::Weiter && Versuch == 1)
        Weiterzaehlen();
    return f;
}

Folge Bereich_Schreiben()
{
    Folge f = Vorbereiten();
    while (f == Folge::Weiter && Adresse_Zaehler <= Bis_Adresse)
        f = Adresse_Bearbeiten();
    return f;
}

} // namespace

void EEPROM_Schreiben()
{
    const bool  No_FF_Vorher = No_FF;
    const Folge f            = Bereich_Schreiben();
    No_FF                    = No_FF_Vorher;
    Brennlauf_Beenden(f, 90);
}

} // namespace varnholt
