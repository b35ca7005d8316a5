// Writing 28F flash memories: each byte is a set-up command, the byte, and a command that shows the
// cell for the check.
#include "programmer/Flash_Schreiben.h"

#include "core/settings.h"
#include "programmer/Baustein.h"
#include "programmer/Brennrahmen.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

constexpr std::uint8_t Befehl_Schreiben   = 0x40;
constexpr std::uint8_t Befehl_Nachlesen   = 0xC0;
constexpr std::uint8_t Befehl_Ruecksetzen = 0xFF;

constexpr int Schreib_Leitung = 4; // C2

Folge Vorbereiten()
{
    Brenn_Dialog_Oeffnen();
    Zaehler_Ruecksetzen_Brennen();
    Brenn_Bereich_Setzen();
    Adj_512 = 0;
    Adj_257 = 0;
    Bank    = 0;
    C2_Art  = Flash_C2_Regel(Gewaehltes_Geraet().P_Typ);
    Daten_Senden(91);
    Adressen_Uebergehen();
    return Brennlauf_Beginnen();
}

bool Byte_Angekommen(std::uint8_t Wert)
{
    Flash_Byte_Laden(Wert);
    return Bus_Lesen(2 * Lese_Zeit(), 153) == Wert;
}

// A byte into the device's command register. z tells the address for the error message.
Folge An_Register(std::uint8_t Wert, const Zelle_T& z)
{
    int Ladung = 0;
    while (!Byte_Angekommen(Wert))
        if (++Ladung == Lade_Versuche)
            return Eprommer_Fehler_Melden(Text_Bus_Fehler({z.Editor_Adresse, Wert}));
    Daten_Senden(25);
    Warte_Mikrosekunden(Lese_Zeit());
    Steuerung_Senden((Hoch_Bits + 2) & ~Schreib_Leitung);
    Warte_Mikrosekunden(Lese_Zeit());
    Steuerung_Senden(Hoch_Bits + 2);
    return Folge::Weiter;
}

Folge Byte_Schreiben(const Zelle_T& z)
{
    if (An_Register(Befehl_Schreiben, z) != Folge::Weiter ||
        An_Register(z.Soll, z) != Folge::Weiter)
        return Folge::Fehler;
    Puls_Anfang = Maschinenzeit();
    if (Brenn_Runde() == Folge::Abgebrochen)
        return Folge::Abgebrochen;
    Puls_Abwarten(Puls_Breite);
    return Folge::Weiter;
}

Folge Fehlversuch(const Zelle_T& z, std::uint8_t Gelesen)
{
    Naechster_Versuch();
    Flash_Befehl_Ruecksetzen();
    if (Versuch > Puls_Versuche)
        return Eprommer_Fehler_Melden(Text_Zellen_Fehler(z, Gelesen));
    return Folge::Weiter;
}

Folge Nachlesen(const Zelle_T& z)
{
    if (!C_IC_bei_B || Adresse_Zaehler < Ab_Adresse)
        return Folge::Weiter;
    if (An_Register(Befehl_Nachlesen, z) != Folge::Weiter)
        return Folge::Fehler;
    Daten_Senden(89);
    Daten_Senden(73);
    const std::uint8_t Gelesen = Bus_Lesen(2 * Lese_Zeit(), 201);
    if (Gelesen != z.Soll)
        return Fehlversuch(z, Gelesen);
    Versuch     = 1;
    Puls_Breite = Gewaehltes_Geraet().P_Timing;
    return Folge::Weiter;
}

} // namespace

void Flash_Byte_Laden(std::uint8_t Wert) { Byte_Schieben(Wert, 89); }

void Flash_Befehl_Ruecksetzen()
{
    Flash_Byte_Laden(Befehl_Ruecksetzen);
    for (int i = 0; i < 2; ++i) {
        Steuerung_Senden(2);
        Steuerung_Senden(Hoch_Bits + 2);
    }
}

void Flash_Schreiben()
{
    Folge f = Vorbereiten();
    while (f == Folge::Weiter && Adresse_Zaehler <= Bis_Adresse)
        f = Eprommer_Adresse_Bearbeiten(Byte_Schreiben, Nachlesen);
    Brennlauf_Beenden(f, 90);
}

} // namespace varnholt
