// Programming on the Tessel2 board: each byte is loaded and proved on the bus, written by the part
// itself, and read back.
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/MC_Signale.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

constexpr int Steuerung_Brennen = 5;

// D0 of the programming bytes.
int Spannungs_Bit() { return Prog_Spannung == 5 ? 1 : 0; }

// These tell by their ready line when a byte is done; the others get a fixed time.
bool Meldet_Bereit()
{
    const std::string& Name = Gewaehltes_Geraet().Name;
    return Name == "89C55WD" || Name == "89F54" || Name == "89F58";
}

void Brenn_Takte(int Anzahl) { Takten_II(Anzahl, 93 + Ruhe_Korrektur, 85 + Ruhe_Korrektur); }

void Target_Einrichten()
{
    Daten_Senden(85 + Ruhe_Korrektur);
    Steuerung_Senden(Steuerung_Brennen);
    Brenn_Takte(Sprung_Vor_Null(Gewaehltes_Geraet().Name));
}

void Byte_Schieben(std::uint8_t Wert)
{
    const int v  = Spannungs_Bit();
    Schiebe_Bits = Bits_Von(Wert);
    for (std::size_t i = 8; i-- > 0;) {
        Daten_Senden(85 + Ruhe_Korrektur + Schiebe_Bits[i]);
        Daten_Senden(117 + Ruhe_Korrektur + Schiebe_Bits[i]);
    }
    Daten_Senden(20 + v);
    Daten_Senden(84 + v);
    Daten_Senden(20 + v);
}

bool Byte_Steht_An(std::uint8_t Wert)
{
    Warte_Mikrosekunden(2 * Lese_Zeit());
    const int Gerade = Tessel2_Gerade_Bits(Status_Lesen());
    Daten_Senden(148 + Spannungs_Bit());
    Warte_Mikrosekunden(Lese_Zeit());
    return Gerade + Tessel2_Ungerade_Bits(Status_Lesen()) == Wert;
}

Folge Laden_Und_Pruefen(const Zelle_T& z)
{
    for (int Ladung = 0; Ladung < Lade_Versuche; ++Ladung) {
        Byte_Schieben(z.Soll);
        if (Byte_Steht_An(z.Soll))
            return Folge::Weiter;
    }
    Daten_Senden(Ruhe_Byte_II);
    return Brenn_Fehler_Melden(Text_Bus_Fehler(z));
}

Folge Bereit_Abwarten()
{
    Plattform.Port->Sleep(1);
    if (!C_IC_bei_B) {
        Status_Lesen();
        Plattform.Port->Sleep(2);
        return Folge::Weiter;
    }
    if (Bereit_Geworden(Bereit_Tessel2))
        return Folge::Weiter;
    Daten_Senden(Ruhe_Byte_II);
    return Nicht_Bereit_Melden();
}

Folge Byte_Schreiben()
{
    const int v = Spannungs_Bit();
    Daten_Senden(20 + v);
    Daten_Senden(16 + v);
    Daten_Senden(84);
    Warte_Mikrosekunden(Gewaehltes_Geraet().P_Timing);
    Daten_Senden(85 + Ruhe_Korrektur);
    if (Meldet_Bereit())
        return Bereit_Abwarten();
    Warte_Millisekunde();
    return Folge::Weiter;
}

std::uint8_t Byte_Nachlesen()
{
    Daten_Senden(69 + Ruhe_Korrektur);
    Steuerung_Senden(7);
    Warte_Mikrosekunden(Lese_Zeit());
    return Status_Byte_II(197 + Ruhe_Korrektur);
}

Folge Fehlversuch(const Zelle_T& z, std::uint8_t Gelesen)
{
    Naechster_Versuch();
    if (Versuch <= Puls_Versuche)
        return Folge::Weiter;
    Daten_Senden(Ruhe_Byte_II);
    return Brenn_Fehler_Melden(Text_Zellen_Fehler(z, Gelesen));
}

// Control goes back to programming before anything else is loaded.
Folge Nachlesen(const Zelle_T& z)
{
    if (!C_IC_bei_B || Adresse_Zaehler < Ab_Adresse)
        return Folge::Weiter;
    const std::uint8_t Gelesen = Byte_Nachlesen();
    if (Gelesen != z.Soll)
        Daten_Senden(5);
    Steuerung_Senden(Steuerung_Brennen);
    if (Gelesen != z.Soll)
        return Fehlversuch(z, Gelesen);
    Versuch = 1;
    return Folge::Weiter;
}

void Zur_Naechsten_Adresse()
{
    Daten_Senden(85 + Ruhe_Korrektur);
    Brenn_Takte(1);
    Brenn_Takte(Sprung_Beim_Brennen(Gewaehltes_Geraet().Name, Adresse_Zaehler));
    ++Adresse_Zaehler;
}

Folge Laden_Und_Schreiben(const Zelle_T& z)
{
    const Folge Geladen = Laden_Und_Pruefen(z);
    return Geladen == Folge::Weiter ? Byte_Schreiben() : Geladen;
}

// One pass of the main loop: an attempt at one address, and the step to the next when it took.
Folge Adresse_Bearbeiten()
{
    Folge f = MC_Fortschritt();
    if (f != Folge::Weiter)
        return f;
    if (Versuch == 1)
        ++Versuch_Statistik[1];
    const Zelle_T z = MC_Zelle_Bestimmen();
    if (MC_Zu_Schreiben(z))
        f = Laden_Und_Schreiben(z);
    if (f == Folge::Weiter)
        f = Nachlesen(z);
    if (f == Folge::Weiter && Versuch == 1)
        Zur_Naechsten_Adresse();
    return f;
}

} // namespace

void Tessel2_Brennen()
{
    std::string Typ;
    MC2_Kennung_Lesen(Typ);
    if (Antwort == Antwort_Abbrechen) {
        Brenn_Ergebnis   = Brenn_Ausgang::Abgebrochen;
        Brennmenue.Offen = false;
        return;
    }
    Target_Einrichten();
    Brenn_Bereich_Setzen();
    Folge f = MC_Brennen_Beginnen();
    while (f == Folge::Weiter && Adresse_Zaehler <= Bis_Adresse)
        f = Adresse_Bearbeiten();
    Brennlauf_Beenden(f, Ruhe_Byte_II);
}

} // namespace varnholt
