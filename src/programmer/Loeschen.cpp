// Erasing a device: which routine its erase type asks for, the erases of the devices of the
// Eprommer, and the menu command.
#include "programmer/Loeschen.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/session.h"
#include "core/shared_state.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/CheckIC.h"
#include "programmer/Flash_Schreiben.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace varnholt {
namespace {

constexpr double Draht_Zeit  = 0.7; // seconds: the supply of a 27SF erase
constexpr double Loesch_Zeit = 0.1; // seconds: each step of a 28C erase

struct Loesch_Weg_T {
    std::string_view E_Typ;
    void (*Routine)();
};

constexpr Loesch_Weg_T Loesch_Wege[] = {
    {"89CI", Tessel1_Löschen},
    {"89CII", Tessel2_Löschen},
    {"89SII", Tessel2_Löschen},
    {"89CIIWD", Tessel2_Löschen_WD},
    {"28C", Loeschen_28C},
    {"28F", Loeschen_28F},
    {"27SF", Loeschen_27SF},
};

auto Loesch_Routine() -> void (*)()
{
    for (const Loesch_Weg_T& w : Loesch_Wege)
        if (Gewaehltes_Geraet().E_Typ == w.E_Typ)
            return w.Routine;
    return nullptr;
}

// That of the programming dialog: the Tessel2 erases any type, and no other board its parts.
auto Routine_Vor_Brennen() -> void (*)()
{
    const Geraet_T& g = Gewaehltes_Geraet();
    if (g.E_Typ == "89CI")
        return Tessel1_Löschen;
    if (g.Programmer == Board_Nr_Tessel2)
        return g.E_Typ == "89CIIWD" ? Tessel2_Löschen_WD : Tessel2_Löschen;
    return g.E_Typ.starts_with("89") ? nullptr : Loesch_Routine();
}

void Daten_Fuer(double Sekunden, int Wert)
{
    Daten_Senden(Wert);
    Warte_Sekunden(Sekunden);
}

void Steuerung_Fuer(double Sekunden, int Wert)
{
    Steuerung_Senden(Wert);
    Warte_Sekunden(Sekunden);
}

// ---- 27SF ----

// The pin that carries address bit 9, as the user counts it on the device.
int Draht_Pin()
{
    const std::string_view Name = Gewaehltes_Geraet().Name;
    return Name == "27SF256" || Name == "27SF512" ? 24 : 26;
}

// True when the wire was moved. Cancel is the answer where no box can appear.
bool Draht_Umstecken()
{
    const int p = Draht_Pin();
    Antwort     = Antwort_Abbrechen;
    Melden(
        {fmt::format(
             "Bitte trennen Sie jetzt die Verbindung zwischen dem 'IC2 74HC393 Pin 4' und dem "
             "Eprom Pin {0} (das ist der zehnte Pin von unten auf der rechten Seite des Eproms). "
             "Bitte verbinden Sie danach den Pin  {0} des Eproms mit dem Pin 1 der Brennfassung "
             "(das ist der 16.te Pin von unten auf der linken Seite der Brennfassung). Klicken Sie "
             "erst auf Ok wenn dies geschehen ist.{1}Bilder dazu finden Sie bei den häufigen "
             "Fragen zur Bauanleitung im Internet.",
             p,
             CRLF),
         fmt::format(
             "Please remove the connection between the 'IC2 74HC393 pin 4' and the eprom pin {0} "
             "(this is the tenth pin on the right side of the eprom, counted from below). After "
             "you have removed the connection, please connect the eprom pin {0} with pin 1 of the "
             "programmer socket (this is the 16. pin on the left side of the programmer socket, "
             "counted from below). Please click on ok when you have done it.",
             p)},
        {},
        Knoepfe::Ok_Abbrechen,
        Symbol::Frage);
    return Antwort != Antwort_Abbrechen;
}

void Draht_Zurueckstecken()
{
    const int p = Draht_Pin();
    Melden({fmt::format("Nun können Sie den Pin {0} des Eproms wieder von den Pin 1 der "
                        "Brennfassung trennen und auf den Pin 4 des IC2 (74HC393) legen. Klicken "
                        "Sie erst auf Ok wenn dies geschehen ist.",
                        p),
            fmt::format("Now remove the connection between pin {0} of the eprom to the pin 1 of "
                        "the programmer socket and connect the pin {0} of the eprom with the 'IC2 "
                        "74HC393 pin 4' again. Please click on ok when you have done it.",
                        p)});
}

// ---- 28F ----

// The erase command twice; the second one starts the erase, which the supply ends.
void Flash_Loeschpuls()
{
    Steuerung_Senden(15);
    Flash_Byte_Laden(0x20);
    for (int i = 0; i < 2; ++i) {
        Steuerung_Senden(2);
        Steuerung_Senden(6);
        Plattform.Port->Sleep(20);
    }
    Steuerung_Senden(15);
    Daten_Senden(74);
}

std::uint8_t Byte_Lesen()
{
    Hoch_Bits_Setzen();
    Daten_Senden(75);
    return Bus_Lesen(Lese_Zeit(), 203);
}

// Reads up to the first byte that isn't blank; true when there is none.
bool Flash_Leer()
{
    Daten_Senden(90);
    Zaehler_Ruecksetzen_Lesen();
    const std::int32_t Bytes = Nutzbare_Bytes(Gewaehltes_Geraet());
    for (Adresse_Zaehler = 0; Adresse_Zaehler < Bytes; ++Adresse_Zaehler) {
        const std::uint8_t Wert                               = Byte_Lesen();
        Hex_Puffer[static_cast<std::size_t>(Adresse_Zaehler)] = Wert;
        if (Wert != 0xFF)
            return false;
        Daten_Senden(75);
        Daten_Senden(79);
    }
    return true;
}

void Flash_Einrichten()
{
    const Geraet_T& g     = Gewaehltes_Geraet();
    const auto      Bytes = static_cast<std::size_t>(Nutzbare_Bytes(g));
    Hex_Puffer.resize(std::max(Hex_Puffer.size(), Bytes));
    Adj_512   = 0;
    Adj_257   = 0;
    Bank      = 0;
    C2_Art    = Flash_C2_Regel(g.P_Typ);
    Hoch_Bits = Hoch_Bits_Von(0, C2_Art);
}

bool Flash_Runde()
{
    Hoch_Bits = Hoch_Bits_Von(0, C2_Art);
    Flash_Befehl_Ruecksetzen();
    Flash_Loeschpuls();
    return Flash_Leer();
}

void Flash_Nicht_Gelöscht()
{
    const std::string Name = IC_Menue_Name();
    Melden({Name + " konnte nicht gelöscht werden! Bitte überprüfen Sie die Hardware und das Flash "
                   "Eprom",
            "Can't erase " + Name + "! Please check the hardware and the flash eprom!"},
           {"Warnung", "Warning"},
           Knoepfe::Ok,
           Symbol::Kritisch);
    Abbruch = true;
}

// ---- the command ----

// The message of a device that the command doesn't erase; false for the others.
bool Nur_Gemeldet()
{
    const Geraet_T& g = Gewaehltes_Geraet();
    if (g.E_Typ == "29C")
        Melden({"Das Löschen dieser Bausteine ist nicht erforderlich, da auch beschriebene "
                "Bausteine einfach übergebrannt werden können.",
                "The erasing of this memory ic is not necessary because it can be over programmed "
                "without erasing them before."});
    else if (g.Name == "PT28C020")
        Melden({"Das Löschen dieser Bausteine ist derzeit noch nicht möglich.",
                "The erasing of this memory ic is not possible at the moment."});
    else
        return false;
    return true;
}

} // namespace

void Loeschen_27SF()
{
    Antwort = Antwort_Ok;
    Brenner_Pruefen();
    if (Antwort == Antwort_Abbrechen)
        return;
    Daten_Fuer(Draht_Zeit, 91);
    if (!Draht_Umstecken())
        return;
    Daten_Senden(89);
    Daten_Fuer(Draht_Zeit, 81);
    Daten_Senden(90);
    Draht_Zurueckstecken();
}

void Loeschen_28C()
{
    Antwort = Antwort_Ok;
    Brenner_Pruefen();
    if (Antwort == Antwort_Abbrechen)
        return;
    if (Gewaehltes_Geraet().Name == "PT28C020") {
        Steuerung_Senden(15);
        Daten_Fuer(Loesch_Zeit, 16);
        Steuerung_Fuer(Loesch_Zeit, 11);
        Steuerung_Fuer(Loesch_Zeit, 15);
    } else {
        for (const int Wert : {8, 0, 9})
            Daten_Fuer(Loesch_Zeit, Wert);
    }
    Daten_Senden(74);
}

void Loeschen_28F()
{
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Flash_Einrichten();
    for (int Versuche = 0; Versuche < Flash_Loesch_Versuche; ++Versuche)
        if (Flash_Runde())
            return;
    Flash_Nicht_Gelöscht();
}

void Baustein_Löschen()
{
    if (const auto Routine = Loesch_Routine())
        Routine();
}

void Vor_Brennen_Löschen()
{
    if (const auto Routine = Routine_Vor_Brennen())
        Routine();
}

bool Vor_Brennen_Loeschbar() { return Routine_Vor_Brennen() != nullptr; }

// Erases, and shows the state of the device. Devices that need no erase, or can't have one, get
// their message instead.
// reads: Porttreiber_OK, IC_Nummer   sets: Antwort, CheckIC, Hex_Puffer
void MNU_IC_Löschen_Click()
{
    Abbruch = false;
    Sitzung_Beenden();
    if (!Porttreiber_Bereit() || !Baustein_Gewaehlt() || Nur_Gemeldet() ||
        Loesch_Routine() == nullptr)
        return;
    Antwort = Antwort_Ok;
    Baustein_Löschen();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    Plattform.Ereignisse->Ton();
    if (Antwort != Antwort_Abbrechen)
        CheckIC_Start(false, false);
}

} // namespace varnholt
