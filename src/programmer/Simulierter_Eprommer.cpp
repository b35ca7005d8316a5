// The Eprommer as a port driver: its 74HC595, 74HC157 and 74HC393 chips, its supply selection and
// the device in its socket, moved by every edge that a routine writes.
#include "programmer/Simulierter_Eprommer.h"

#include <utility>

namespace varnholt {
namespace {

// Data register.
constexpr unsigned Zaehl_Takt    = 4;
constexpr unsigned Schiebe_Takt  = 32;
constexpr unsigned Speicher_Takt = 64; // and outputs off while it is 1
constexpr unsigned Seriell       = 128;
// Control register, as written.
constexpr unsigned Zaehler_Frei = 2;

constexpr std::uint8_t Offener_Bus = 0xFF; // pull-up resistors
// Microseconds for which the lines keep their level by their capacitance, before the resistors have
// pulled them up. A strobe that directly follows a counter step still finds the byte on them.
constexpr std::int64_t Halte_Zeit  = 5;
constexpr unsigned     Status_Ruhe = 0x0F; // S3 open, the bits below it don't exist

// The multiplexer's four lines as the status register shows them; S7 is inverted by the port.
constexpr std::uint8_t Status_Von(unsigned Bus, bool Ungerade)
{
    const unsigned b = Ungerade ? Bus >> 1 : Bus;
    return static_cast<std::uint8_t>((~b & 1u) << 7 | (b & 4u) << 4 | (b & 16u) << 1 |
                                     (b & 64u) >> 2 | Status_Ruhe);
}
static_assert(Status_Von(0x00, false) == 0x8F && Status_Von(0x55, false) == 0x7F);
static_assert(Status_Von(0x55, true) == 0x8F && Status_Von(0xAA, true) == 0x7F);

} // namespace

Simulierter_Eprommer::Simulierter_Eprommer(const Verdrahtung_T&                  Sockel,
                                           std::unique_ptr<Simulierter_Baustein> Eingesteckt)
    : Verdrahtung(Sockel), Im_Sockel(std::move(Eingesteckt)),
      Mit_Schreibleitung(!Hat_Eprom_Zellen(Sockel))
{
    for (unsigned s = 0; s < 16; ++s)
        for (unsigned d = 0; d < 256; ++d)
            Pegel_Tabelle[s][d] =
                Pegel_Von(Verdrahtung, static_cast<std::uint8_t>(d), static_cast<std::uint8_t>(s));
    Versorgung_Folgen();
}

int Simulierter_Eprommer::KS_enableIoRange(std::int32_t Adresse, int)
{
    Basis = Adresse;
    return 0;
}

std::string Simulierter_Eprommer::KS_getErrorStringEx(int) { return "simulated board"; }

std::uint32_t Simulierter_Eprommer::Baustein_Adresse() const
{
    return Pegel().Durchlaessig ? Adresse_Jetzt() : Gehalten;
}

std::uint8_t Simulierter_Eprommer::Bus() const
{
    unsigned Wert = Offener_Bus;
    if ((Daten & Speicher_Takt) == 0)
        Wert &= Speicher;
    if (Baustein_Aktiv() && Pegel().Treibt && Angewaehlt())
        Wert &= Im_Sockel->Ausgabe(Baustein_Adresse());
    return Mit_Fehlern(Wert);
}

std::uint8_t Simulierter_Eprommer::Bus_Beim_Schreiben() const
{
    return Vergangen() - Ladung_Zeit <= Halte_Zeit ? Ladung : Mit_Fehlern(Offener_Bus);
}

// Notes the level of driven lines when they are about to be left alone, and at the end of a write.
void Simulierter_Eprommer::Ladung_Merken(const Pegel_T& Danach, std::uint8_t Daten_Danach)
{
    const bool Getrieben = (Daten & Speicher_Takt) == 0 || Pegel().Treibt;
    const bool Bleibt    = (Daten_Danach & Speicher_Takt) == 0 || Danach.Treibt;
    if (!Getrieben || (Bleibt && !Pegel().Schreibt))
        return;
    Ladung      = Bus();
    Ladung_Zeit = Vergangen();
}

void Simulierter_Eprommer::KS_outpb(std::int32_t Adresse, std::uint8_t Wert)
{
    if (Adresse == Basis)
        Daten_Schreiben(Wert);
    else if (Adresse - std::int64_t{Basis} == 2)
        Steuerung_Schreiben(Wert);
}

std::uint8_t Simulierter_Eprommer::KS_inpb(std::int32_t Adresse)
{
    if (Adresse - std::int64_t{Basis} != 1)
        return 0xFF;
    if (Mit_Schreibleitung)
        Im_Sockel->Zeit(Vergangen());
    return Fehler.Tot ? Fehler.Tot_Status : Status_Von(Bus(), (Daten & Seriell) != 0);
}

void Simulierter_Eprommer::Daten_Schreiben(std::uint8_t Wert)
{
    const unsigned Steigend = Wert & ~unsigned{Daten};
    const unsigned Fallend  = Daten & ~unsigned{Wert};
    if (Verdrahtung.Latch && Pegel().Durchlaessig)
        Gehalten = Adresse_Jetzt();
    const Pegel_T Vorher = Pegel();
    if (Mit_Schreibleitung)
        Ladung_Merken(Pegel_Tabelle[Steuerung & 15u][Wert], Wert);
    Daten = Wert;
    if (Steigend & Speicher_Takt) // before the shift: clocked together, the storage lags by one
        Speicher = Schiebe;
    if (Steigend & Schiebe_Takt)
        Schiebe = static_cast<std::uint8_t>(Schiebe << 1 | Wert >> 7);
    if ((Fallend & Zaehl_Takt) && (Steuerung & Zaehler_Frei))
        ++Zaehler;
    Pegel_Folgen(Vorher);
}

void Simulierter_Eprommer::Steuerung_Schreiben(std::uint8_t Wert)
{
    const Pegel_T Vorher = Pegel();
    if (Mit_Schreibleitung)
        Ladung_Merken(Pegel_Tabelle[Wert & 15u][Daten], Daten);
    Steuerung = Wert & 15u;
    if ((Steuerung & Zaehler_Frei) == 0)
        Zaehler = 0;
    Pegel_Folgen(Vorher);
}

// Begins and ends pulses and strobes, and counts two drivers on the bus.
void Simulierter_Eprommer::Pegel_Folgen(const Pegel_T& Vorher)
{
    ++Geschrieben;
    const Pegel_T& Jetzt = Pegel();
    if (Jetzt.Treibt && (Daten & Speicher_Takt) == 0)
        ++Konflikte;
    if (Mit_Schreibleitung && Vorher != Jetzt)
        Schreib_Flanken(Vorher);
    if (!Puls_Laeuft && !Jetzt.Puls)
        return;
    if (Puls_Laeuft)
        Puls_Beenden();
    if (Jetzt.Puls && Baustein_Aktiv() && !Fehler.Tot) {
        Puls_Laeuft  = true;
        Puls_Beginn  = Vergangen();
        Puls_Adresse = Baustein_Adresse();
        Puls_Bus     = Bus();
    }
}

// A 27SF with the wire of its erase in place sees 12 V at address bit 9 too.
void Simulierter_Eprommer::Puls_Beenden()
{
    const std::int64_t Dauer = Vergangen() - Puls_Beginn;
    if (Fehler.Draht_Vergessen || !Im_Sockel->Loeschpuls(Dauer))
        Im_Sockel->Puls(Puls_Adresse, Puls_Bus, Dauer);
    Puls_Laeuft = false;
}

void Simulierter_Eprommer::Schreib_Flanken(const Pegel_T& Vorher)
{
    if (!Baustein_Aktiv() || Fehler.Tot) {
        Schreib_Gilt  = false;
        Loesch_Beginn = Vergangen();
        return;
    }
    Im_Sockel->Zeit(Vergangen());
    Versorgung_Folgen();
    if (Pegel().Treibt && !Vorher.Treibt)
        Im_Sockel->Ausgabe_Beginnen();
    Schreib_Strobe_Folgen(Vorher);
    Loeschpuls_Folgen(Vorher);
}

void Simulierter_Eprommer::Versorgung_Folgen()
{
    if (!Mit_Schreibleitung || Versorgt == Pegel().Versorgt)
        return;
    Versorgt = Pegel().Versorgt;
    Im_Sockel->Versorgung(Versorgt, Vergangen());
}

// The address counts when the write line falls, the byte when it rises. Outputs that go on
// meanwhile break the cycle off.
void Simulierter_Eprommer::Schreib_Strobe_Folgen(const Pegel_T& Vorher)
{
    if (Vorher.Schreibt && !Pegel().Schreibt) {
        if (Schreib_Gilt && !Pegel().Strobe)
            Im_Sockel->Schreiben(
                Schreib_Adresse, Bus_Beim_Schreiben(), Schreib_Beginn, Vergangen());
        Schreib_Gilt = false;
    }
    if (Pegel().Schreibt && !Vorher.Schreibt) {
        Schreib_Gilt    = Angewaehlt();
        Schreib_Adresse = Baustein_Adresse();
        Schreib_Beginn  = Vergangen();
    }
}

void Simulierter_Eprommer::Loeschpuls_Folgen(const Pegel_T& Vorher)
{
    if (Pegel().Loescht && !Vorher.Loescht)
        Loesch_Beginn = Vergangen();
    if (Vorher.Loescht && !Pegel().Loescht)
        Im_Sockel->Loeschpuls(Vergangen() - Loesch_Beginn);
}

} // namespace varnholt
