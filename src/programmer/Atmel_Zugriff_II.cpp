// The routines of the Tessel2 board for the 40-pin parts: signature, read, erase.
#include "programmer/Atmel_Zugriff_II.h"

#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Lesen.h"
#include "programmer/MC_Signale.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

constexpr std::uint8_t Kennung_Atmel = 30; // 1Eh
constexpr std::uint8_t Kennung_5V    = 5;

const std::string& Name() { return Gewaehltes_Geraet().Name; }
bool               Ist_89S() { return Name() == "89S53" || Name() == "89S8252"; }
bool               Ist_WD() { return Name() == "89C55WD"; }
bool               Ist_89F() { return Name() == "89F54" || Name() == "89F58"; }

// ---- Signature ----

void Lese_Takte(int Anzahl) { Takten_II(Anzahl, 77 + Ruhe_Korrektur, 69 + Ruhe_Korrektur); }

std::uint8_t Kennungs_Byte() { return Status_Byte_II(197 + Ruhe_Korrektur); }

std::string Typ_Text(std::uint8_t Kennung)
{
    const std::string_view Typ = Typ_Mit_Kennung(Kennung);
    return Typ.empty() ? In_Sprache({"unbekanntes IC", "unknown IC"}) : std::string(Typ);
}

// The counter to 0, and from there to the first signature byte.
void Kennung_Anfahren()
{
    Daten_Senden(69 + Ruhe_Korrektur);
    Steuerung_Senden(11);
    Daten_Senden(69 + Ruhe_Korrektur);
    if (Ist_WD())
        Lese_Takte(47);
}

void Kennung_Weiter()
{
    if (Ist_WD())
        Lese_Takte(255);
    Lese_Takte(1);
}

void Spannung_Lesen()
{
    Kennung_Weiter();
    Prog_Spannung = Kennungs_Byte() == Kennung_5V ? 5 : 12;
}

// One reading; true when it has to be made again.
bool Kennung_Erfragt(std::string& Typ)
{
    Kennung_Anfahren();
    const bool Atmel   = Kennungs_Byte() == Kennung_Atmel;
    Kennung_Hersteller = Atmel ? "ATMEL" : "";
    if (!Atmel && C_IC) {
        Daten_Senden(Ruhe_Byte_II);
        return MC_Nochmal_Suchen();
    }
    Kennung_Weiter();
    Typ = Typ_Text(Kennungs_Byte());
    if (!Ist_89S())
        Spannung_Lesen();
    Kennung_Gelesen = true;
    return false;
}

// ---- Read ----

// The byte, and the clocks to the next one.
std::uint8_t Byte_Lesen()
{
    Warte_Mikrosekunden(Lese_Zeit());
    const int Gerade = Tessel2_Gerade_Bits(Status_Lesen());
    Daten_Senden(197 + Ruhe_Korrektur);
    Warte_Mikrosekunden(Lese_Zeit());
    const int Ungerade = Tessel2_Ungerade_Bits(Status_Lesen());
    Lese_Takte(1);
    Lese_Takte(Sprung_Beim_Lesen(Name(), Adresse_Zaehler));
    return static_cast<std::uint8_t>(Gerade + Ungerade);
}

// ---- Erase ----

void Ausschalten_Lassen()
{
    const std::string Text = "Please power the device down and up again!";
    Melden({Text, Text});
}

void Loesch_Puls_WD(int v)
{
    Daten_Senden(v + 80);
    Plattform.Port->Sleep(1);
    Daten_Senden(v + 84);
    Plattform.Port->Sleep(200);
    Ausschalten_Lassen();
}

} // namespace

void Takten_II(int Anzahl, int Hoch, int Tief)
{
    for (int i = 0; i < Anzahl; ++i) {
        Daten_Senden(Hoch);
        Daten_Senden(Tief);
    }
}

std::uint8_t Status_Byte_II(int Auswahl)
{
    const int Gerade = Tessel2_Gerade_Bits(Status_Lesen());
    Daten_Senden(Auswahl);
    return static_cast<std::uint8_t>(Gerade + Tessel2_Ungerade_Bits(Status_Lesen()));
}

void MC2_Kennung_Lesen(std::string& Typ)
{
    Antwort        = Antwort_Ok;
    Ruhe_Korrektur = Ist_89S() ? -1 : 0;
    while (Kennung_Erfragt(Typ)) {
    }
}

void Tessel2_Lesen()
{
    std::string Typ;
    MC2_Kennung_Lesen(Typ);
    if (Antwort == Antwort_Abbrechen)
        return;
    Daten_Senden(69 + Ruhe_Korrektur);
    Steuerung_Senden(7);
    Daten_Senden(69 + Ruhe_Korrektur);
    Lese_Takte(Sprung_Vor_Null(Name()));
    Lese_Dialog_Oeffnen();
    Plattform.Status->ProgBar(1);
    if (!Abbruch && MC_Alle_Adressen_Lesen(Byte_Lesen))
        return Lesen_Beenden(Ruhe_Byte_II);
    Daten_Senden(Ruhe_Byte_II);
    Lesen_Aufgeben();
}

void Tessel2_Löschen()
{
    std::string Typ;
    MC2_Kennung_Lesen(Typ);
    if (Antwort == Antwort_Abbrechen)
        return;
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Daten_Senden(85 + Ruhe_Korrektur);
    Plattform.Port->Sleep(200);
    Steuerung_Senden(Ist_89F() ? 12 : 10);
    Plattform.Port->Sleep(200);
    Daten_Senden(Prog_Spannung == 12 ? 80 : 81);
    Plattform.Port->Sleep(1200);
    Daten_Senden(85);
}

void Tessel2_Löschen_WD()
{
    std::string Typ;
    MC2_Kennung_Lesen(Typ);
    if (Antwort == Antwort_Abbrechen)
        return;
    const int v = Prog_Spannung != 12 ? 1 : 0;
    Daten_Senden(85);
    Steuerung_Senden(10);
    Daten_Senden(84 + v);
    Plattform.Port->Sleep(100);
    Loesch_Puls_WD(v);
    Loesch_Puls_WD(v);
    Daten_Senden(85);
}

} // namespace varnholt
