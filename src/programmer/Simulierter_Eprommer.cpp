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

Simulierter_Eprommer::Simulierter_Eprommer(const Verdrahtung_T& Sockel,
                                           Simulierter_Baustein Eingesteckt)
    : Verdrahtung(Sockel), Im_Sockel(std::move(Eingesteckt))
{
    for (unsigned s = 0; s < 16; ++s)
        for (unsigned d = 0; d < 256; ++d)
            Pegel_Tabelle[s][d] =
                Pegel_Von(Verdrahtung, static_cast<std::uint8_t>(d), static_cast<std::uint8_t>(s));
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
    const bool Angewaehlt = !Verdrahtung.A13_Waehlt || (Zaehler & 0x2000u) != 0;
    if (Baustein_Aktiv() && Pegel().Treibt && Angewaehlt)
        Wert &= Im_Sockel->Lesen(Baustein_Adresse());
    return static_cast<std::uint8_t>((Wert & ~unsigned{Fehler.Klemmt_Auf_0}) | Fehler.Klemmt_Auf_1);
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
    return Fehler.Tot ? Fehler.Tot_Status : Status_Von(Bus(), (Daten & Seriell) != 0);
}

void Simulierter_Eprommer::Daten_Schreiben(std::uint8_t Wert)
{
    const unsigned Steigend = Wert & ~unsigned{Daten};
    const unsigned Fallend  = Daten & ~unsigned{Wert};
    if (Verdrahtung.Latch && Pegel().Durchlaessig)
        Gehalten = Adresse_Jetzt();
    Daten = Wert;
    if (Steigend & Speicher_Takt) // before the shift: clocked together, the storage lags by one
        Speicher = Schiebe;
    if (Steigend & Schiebe_Takt)
        Schiebe = static_cast<std::uint8_t>(Schiebe << 1 | Wert >> 7);
    if ((Fallend & Zaehl_Takt) && (Steuerung & Zaehler_Frei))
        ++Zaehler;
    Pegel_Folgen();
}

void Simulierter_Eprommer::Steuerung_Schreiben(std::uint8_t Wert)
{
    Steuerung = Wert & 15u;
    if ((Steuerung & Zaehler_Frei) == 0)
        Zaehler = 0;
    Pegel_Folgen();
}

// Begins and ends the programming pulse, and counts two drivers on the bus.
void Simulierter_Eprommer::Pegel_Folgen()
{
    ++Geschrieben;
    const Pegel_T& Jetzt = Pegel();
    if (Jetzt.Treibt && (Daten & Speicher_Takt) == 0)
        ++Konflikte;
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

void Simulierter_Eprommer::Puls_Beenden()
{
    Im_Sockel->Puls(Puls_Adresse, Puls_Bus, Vergangen() - Puls_Beginn);
    Puls_Laeuft = false;
}

} // namespace varnholt
