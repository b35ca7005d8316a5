// The Tessel2 board as a port driver, with a 40-pin microcontroller in its socket.
#include "programmer/Simulierter_Tessel2.h"

namespace varnholt {
namespace {

// Data register.
constexpr unsigned Spannung_5V  = 1;
constexpr unsigned Strobe       = 4; // active low
constexpr unsigned Adress_Takt  = 8;
constexpr unsigned Brennen      = 16;
constexpr unsigned Schiebe_Takt = 32;

// Shortest pulses, microseconds: the data sheets ask for 10 ms at the erase of most parts, and for
// far less at an 89C55WD, which times its erase by itself.
constexpr std::int64_t Loesch_Dauer    = 10000;
constexpr std::int64_t Loesch_Dauer_WD = 500;
constexpr std::int64_t Sperr_Dauer     = 100;

constexpr unsigned Status_Ruhe = 0x07; // these lines don't exist

enum Betriebsart_T : std::uint8_t {
    Sperrbit_1 = 4,
    Schreiben  = 5,
    Code       = 7,
    Sperrbit_2 = 8, // the lock state of an 89S part, when nothing is written
    Kennungen  = 11,
    Sperren_WD = 12, // the lock state of an 89C55WD
    Sperrbit_3 = 14
};

} // namespace

void Simulierter_Tessel2::Daten_Folgen(std::uint8_t Vorher)
{
    if (Daten_Bit(Adress_Takt) && (Vorher & Adress_Takt) == 0)
        Im_Sockel->Takt(Vergangen());
    Schreiben_Verfolgen(Vorher);
    Loeschen_Verfolgen();
    if (Im_Sockel->Sperre == Sperr_Art::SII)
        Sperren_SII_Verfolgen(Vorher);
    else
        Sperren_Verfolgen(false);
}

// Another mode ends whatever the part was at. The counter stands at 0 while the signature is shown.
void Simulierter_Tessel2::Steuerung_Folgen(std::uint8_t Vorher)
{
    if (Steuerung == Kennungen || Vorher == Kennungen)
        Im_Sockel->Zaehler_Ruecksetzen(Vergangen());
    if (Steuerung == Vorher)
        return;
    Im_Sockel->Schreiben_Beenden(Vergangen());
    Loesch_Puls = {};
    SII_Bereit  = false;
    Sperren_Verfolgen(true);
}

bool Simulierter_Tessel2::Spannung_Stimmt() const
{
    return Daten_Bit(Spannung_5V) == (Im_Sockel->Spannung == 5);
}

void Simulierter_Tessel2::Schreiben_Verfolgen(std::uint8_t Vorher)
{
    const bool Fallend = (Vorher & Strobe) != 0 && !Daten_Bit(Strobe);
    if (Fallend && Steuerung == Schreiben && Daten_Bit(Brennen) && Ausgaenge_595() &&
        Spannung_Stimmt())
        Im_Sockel->Schreiben_Beginnen(Bus(), Vergangen());
}

// Follows the level of a pulse: its length once it is over, else -1.
std::int64_t Simulierter_Tessel2::Puls_Zu_Ende(Puls_T& Puls, bool Pegel) const
{
    const bool War_Da = Puls.Laeuft;
    if (Pegel && !War_Da)
        Puls = {true, Vergangen()};
    if (Pegel || !War_Da)
        return -1;
    Puls.Laeuft = false;
    return Vergangen() - Puls.Beginn;
}

bool Simulierter_Tessel2::Loesch_Pegel() const
{
    return Steuerung == Im_Sockel->Art.Steuerung_Loeschen && Daten_Bit(Brennen) &&
           !Daten_Bit(Strobe) && Spannung_Stimmt();
}

void Simulierter_Tessel2::Loeschen_Verfolgen()
{
    const std::int64_t Dauer = Puls_Zu_Ende(Loesch_Puls, Loesch_Pegel());
    const bool         WD    = Im_Sockel->Sperre == Sperr_Art::CIIWD;
    if (Dauer >= 0)
        Im_Sockel->Loeschen(Dauer, WD ? Loesch_Dauer_WD : Loesch_Dauer);
}

// The lock bit that the mode chooses, 0 for none.
int Simulierter_Tessel2::Sperrbit() const
{
    switch (Steuerung) {
    case Sperrbit_1:
        return 1;
    case Sperrbit_2:
        return 2;
    case Sperrbit_3:
        return 3;
    default:
        return 0;
    }
}

// Most parts take the strobe itself as the pulse, an 89C55WD the pause of the programming voltage;
// either voltage will do.
bool Simulierter_Tessel2::Sperr_Pegel() const
{
    const bool WD = Im_Sockel->Sperre == Sperr_Art::CIIWD;
    return Ausgaenge_595() && !Daten_Bit(Brennen) && Daten_Bit(Strobe) == WD;
}

// A pulse belongs to the mode that it began in, and begins with a data byte only.
void Simulierter_Tessel2::Sperren_Verfolgen(bool Neue_Betriebsart)
{
    if (!Sperr_Puls.Laeuft)
        Sperr_Bit = Sperrbit();
    const bool Pegel = Sperr_Pegel() && Sperr_Bit != 0 && !Neue_Betriebsart;
    if (Puls_Zu_Ende(Sperr_Puls, Pegel) >= Sperr_Dauer)
        Im_Sockel->Sperren(Sperr_Bit);
}

// After the strobe at 0 eight bits come in, a 0 for each lock bit; the byte with D0 = 1 ends them.
void Simulierter_Tessel2::Sperren_SII_Verfolgen(std::uint8_t Vorher)
{
    if (Steuerung != Sperrbit_3)
        return;
    if (!Daten_Bit(Strobe) && !Daten_Bit(Brennen) && Ausgaenge_595()) {
        SII_Bereit = true;
        SII_Bits   = 0;
    }
    if (Daten_Bit(Schiebe_Takt) && (Vorher & Schiebe_Takt) == 0)
        ++SII_Bits;
    if (!SII_Bereit || SII_Bits != 8 || !Daten_Bit(Spannung_5V))
        return;
    SII_Bereit = false;
    for (int Bit = 1; Bit <= 3; ++Bit)
        if ((Schiebe >> (Bit - 1) & 1) == 0)
            Im_Sockel->Sperren(Bit);
}

std::uint8_t Simulierter_Tessel2::Getrieben() const
{
    if (Daten_Bit(Brennen) || !Daten_Bit(Strobe))
        return 0xFF;
    switch (Steuerung) {
    case Code:
        return Im_Sockel->Code();
    case Kennungen:
        return Kennung();
    case Sperrbit_2:
        return Im_Sockel->Sperre == Sperr_Art::SII ? Im_Sockel->Sperrbits() : std::uint8_t{0xFF};
    case Sperren_WD:
        return Im_Sockel->Sperre == Sperr_Art::CIIWD ? Im_Sockel->Sperrbits() : std::uint8_t{0xFF};
    default:
        return 0xFF;
    }
}

// S7, inverted, to S3 without S4 are data bits 2, 4, 0 and 6, by the select those above them; S4 is
// the ready line.
std::uint8_t Simulierter_Tessel2::Status_Von(unsigned Leitungen, bool Auswahl, bool Bereit) const
{
    const unsigned b = Auswahl ? Leitungen >> 1 : Leitungen;
    return static_cast<std::uint8_t>((~b & 4u) << 5 | (b & 16u) << 2 | (b & 1u) << 5 |
                                     (Bereit ? 16u : 0u) | (b & 64u) >> 3 | Status_Ruhe);
}

} // namespace varnholt
