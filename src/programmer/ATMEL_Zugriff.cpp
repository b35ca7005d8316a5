// The routines of the Tessel1 board for the 20-pin parts 89C1051, 89C2051 and 89C4051: check, read,
// program, erase, lock.
#include "programmer/ATMEL_Zugriff.h"

#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Lesen.h"
#include "programmer/MC_Signale.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

constexpr int          Ruhe_Byte    = 73; // data register between two operations
constexpr std::uint8_t Pruef_Muster = 0x55;
constexpr std::uint8_t Kennung_Lebt = 0x1E; // first signature byte of every part

// ---- Signals ----

// The target's counter to 0, the lines that choose its mode, and a first data byte.
void Betriebsart(int Steuerung, int Daten)
{
    Daten_Senden(77);
    Daten_Senden(73);
    Steuerung_Senden(Steuerung);
    Daten_Senden(Daten);
}

// Two status reads, each after the settling time; Auswahl turns to the even data bits.
std::uint8_t Byte_Holen(int Auswahl)
{
    Warte_Mikrosekunden(Lese_Zeit());
    const int Ungerade = Tessel1_Ungerade_Bits(Status_Lesen());
    Daten_Senden(Auswahl);
    Warte_Mikrosekunden(Lese_Zeit());
    return static_cast<std::uint8_t>(Ungerade + Tessel1_Gerade_Bits(Status_Lesen()));
}

// ---- Check ----

bool Board_Antwortet()
{
    Betriebsart(9, Ruhe_Byte);
    for (int i = 0; i < 8; ++i) {
        const int b = i % 2 == 1 ? 128 : 0;
        Daten_Senden(69 + b);
        Daten_Senden(101 + b);
        Daten_Senden(69 + b);
    }
    for (const int Daten : {5, 69, 5, 9})
        Daten_Senden(Daten);
    const std::uint8_t Gelesen = Byte_Holen(137);
    Daten_Senden(Ruhe_Byte);
    return Gelesen == Pruef_Muster;
}

bool Baustein_Lebt()
{
    Betriebsart(5, Ruhe_Byte);
    return Byte_Holen(201) == Kennung_Lebt;
}

// One pass of the check; true when it is to be made again.
bool Mangel_Erfragt()
{
    if (!Board_Antwortet())
        return Board_Nochmal_Pruefen();
    if (!C_IC || Baustein_Lebt())
        return false;
    Daten_Senden(Ruhe_Byte);
    return MC_Nochmal_Suchen();
}

// ---- Read ----

std::uint8_t Byte_Lesen()
{
    Daten_Senden(73);
    const std::uint8_t Wert = Byte_Holen(201);
    for (const int Daten : {73, 75}) { // the rising edge of D1 is the step to the next address
        Daten_Senden(Daten);
        Warte_Mikrosekunden(Lese_Zeit());
    }
    return Wert;
}

// ---- Program ----

Folge Bereit_Abwarten()
{
    if (C_IC_bei_B)
        return Bereit_Geworden(Bereit_Tessel1) ? Folge::Weiter : Nicht_Bereit_Melden();
    Status_Lesen();
    Warte_Mikrosekunden(2000);
    return Folge::Weiter;
}

void Byte_Schieben(std::uint8_t Wert)
{
    Schiebe_Bits = Bits_Von(Wert);
    for (std::size_t i = 8; i-- > 0;) {
        Daten_Senden(65 + Schiebe_Bits[i]);
        Daten_Senden(97 + Schiebe_Bits[i]);
        Daten_Senden(65 + Schiebe_Bits[i]);
    }
    for (const int Daten : {1, 65, 1})
        Daten_Senden(Daten);
}

Folge Byte_Schreiben(std::uint8_t Wert)
{
    Byte_Schieben(Wert);
    for (const int Daten : {0, 1}) {
        Daten_Senden(Daten);
        Warte_Mikrosekunden(Gewaehltes_Geraet().P_Timing);
    }
    Daten_Senden(8);
    Daten_Senden(9);
    return Bereit_Abwarten();
}

Folge Adresse_Bearbeiten()
{
    Folge f = MC_Fortschritt();
    if (f != Folge::Weiter)
        return f;
    const Zelle_T z = MC_Zelle_Bestimmen();
    if (MC_Zu_Schreiben(z))
        f = Byte_Schreiben(z.Soll);
    if (f != Folge::Weiter)
        return f;
    for (const int Daten : {65, 67, 65})
        Daten_Senden(Daten);
    ++Adresse_Zaehler;
    return f;
}

} // namespace

void MC_Pruefen()
{
    if (!C_Brenner)
        return;
    while (Mangel_Erfragt()) {
    }
}

void Tessel1_Lesen()
{
    Antwort = Antwort_Ok;
    MC_Pruefen();
    if (Antwort == Antwort_Abbrechen)
        return;
    Betriebsart(7, Ruhe_Byte);
    Lese_Dialog_Oeffnen();
    Plattform.Status->ProgBar(1);
    if (!Abbruch && MC_Alle_Adressen_Lesen(Byte_Lesen))
        return Lesen_Beenden(Ruhe_Byte);
    Daten_Senden(Ruhe_Byte);
    Lesen_Aufgeben();
}

void Tessel1_Brennen()
{
    Betriebsart(5, 65);
    Brenn_Bereich_Setzen();
    Folge f = MC_Brennen_Beginnen();
    while (f == Folge::Weiter && Adresse_Zaehler <= Bis_Adresse)
        f = Adresse_Bearbeiten();
    if (f == Folge::Fehler)
        Daten_Senden(Ruhe_Byte);
    Brennlauf_Beenden(f, Ruhe_Byte);
}

void Tessel1_Löschen()
{
    Antwort = Antwort_Ok;
    for (const int Daten : {77, 73, 65})
        Daten_Senden(Daten);
    Steuerung_Senden(10);
    Daten_Senden(64);
    Warte_Sekunden(0.1);
    Daten_Senden(65);
}

void Tessel1_Sperren(int Stufe)
{
    Steuerung_Senden(Stufe == 1 ? 4 : 8);
    for (const int Daten : {77, 73, 65, 64})
        Daten_Senden(Daten);
    Warte_Sekunden(0.1);
    Daten_Senden(65);
}

} // namespace varnholt
