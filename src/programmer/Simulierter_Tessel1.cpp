// The Tessel1 board as a port driver, with a 20-pin microcontroller in its socket.
#include "programmer/Simulierter_Tessel1.h"

namespace varnholt {
namespace {

// Data register.
constexpr unsigned Puls         = 1; // active low
constexpr unsigned Adress_Takt  = 2;
constexpr unsigned Ruecksetzung = 4;
constexpr unsigned Lesen        = 8;

// Shortest pulses, microseconds, by the data sheets (AT89C2051).
constexpr std::int64_t Schreib_Puls = 1;
constexpr std::int64_t Loesch_Puls  = 10000;

constexpr unsigned Status_Ruhe = 0x07; // these lines don't exist

enum Betriebsart_T : std::uint8_t { Sperrbit_1 = 4, Schreiben = 5, Code = 7, Sperrbit_2 = 8 };

} // namespace

bool Simulierter_Tessel1::Mit_12V() const { return !Daten_Bit(Lesen) && !Daten_Bit(Ruecksetzung); }

void Simulierter_Tessel1::Daten_Folgen(std::uint8_t Vorher)
{
    const unsigned Steigend = Daten & ~unsigned{Vorher};
    if (Daten_Bit(Ruecksetzung))
        Im_Sockel->Zaehler_Ruecksetzen(Vergangen());
    else if (Steigend & Adress_Takt)
        Im_Sockel->Takt(Vergangen());
    if (Puls_Laeuft && (Daten_Bit(Puls) || !Mit_12V()))
        Puls_Beenden();
    else if (!Puls_Laeuft && (Vorher & Puls) != 0 && !Daten_Bit(Puls) && Mit_12V())
        Puls_Beginnen();
}

// Another mode ends whatever the part was at.
void Simulierter_Tessel1::Steuerung_Folgen(std::uint8_t Vorher)
{
    if (Steuerung == Vorher)
        return;
    Puls_Laeuft = false;
    Im_Sockel->Schreiben_Beenden(Vergangen());
}

void Simulierter_Tessel1::Puls_Beginnen()
{
    Puls_Laeuft = true;
    Puls_Beginn = Vergangen();
}

void Simulierter_Tessel1::Puls_Beenden()
{
    Puls_Laeuft              = false;
    const std::int64_t Dauer = Vergangen() - Puls_Beginn;
    if (Dauer < Schreib_Puls)
        return;
    if (Steuerung == Schreiben && Ausgaenge_595())
        Im_Sockel->Schreiben_Beginnen(Bus(), Vergangen());
    else if (Steuerung == Sperrbit_1 || Steuerung == Sperrbit_2)
        Im_Sockel->Sperren(Steuerung == Sperrbit_1 ? 1 : 2);
    else if (Steuerung == Im_Sockel->Art.Steuerung_Loeschen)
        Im_Sockel->Loeschen(Dauer, Loesch_Puls);
}

std::uint8_t Simulierter_Tessel1::Getrieben() const
{
    if (!Daten_Bit(Lesen) || Daten_Bit(Ruecksetzung))
        return 0xFF;
    if (Steuerung == Code)
        return Im_Sockel->Code();
    return Steuerung == Schreiben ? Kennung() : std::uint8_t{0xFF};
}

// S7 is the ready line; S6 to S3 are data bits 3, 1, 5 and 7, by the select those below them.
std::uint8_t Simulierter_Tessel1::Status_Von(unsigned Leitungen, bool Auswahl, bool Bereit) const
{
    const unsigned b = Auswahl ? Leitungen : Leitungen >> 1;
    return static_cast<std::uint8_t>((Bereit ? 128u : 0u) | (b & 4u) << 4 | (b & 1u) << 5 |
                                     (b & 16u) | (b & 64u) >> 3 | Status_Ruhe);
}

} // namespace varnholt
