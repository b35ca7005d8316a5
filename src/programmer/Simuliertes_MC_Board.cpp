// What the two simulated microcontroller boards share: the port registers, the 74HC595 and 74HC157,
// the data bus and the faults.
#include "programmer/Simuliertes_MC_Board.h"

namespace varnholt {
namespace {

constexpr unsigned     Schiebe_Takt  = 32;
constexpr unsigned     Speicher_Takt = 64; // and outputs off while it is 1
constexpr unsigned     Seriell       = 128;
constexpr std::uint8_t Offener_Bus   = 0xFF; // pull-up resistors

} // namespace

int Simuliertes_MC_Board::KS_enableIoRange(std::int32_t Adresse, int)
{
    Basis = Adresse;
    return 0;
}

std::string Simuliertes_MC_Board::KS_getErrorStringEx(int) { return "simulated board"; }

void Simuliertes_MC_Board::KS_outpb(std::int32_t Adresse, std::uint8_t Wert)
{
    if (Adresse == Basis)
        Daten_Schreiben(Wert);
    else if (Adresse - std::int64_t{Basis} == 2)
        Steuerung_Schreiben(Wert);
}

std::uint8_t Simuliertes_MC_Board::KS_inpb(std::int32_t Adresse)
{
    if (Adresse - std::int64_t{Basis} != 1)
        return 0xFF;
    if (Fehler.Tot)
        return Fehler.Tot_Status;
    return Status_Von(Bus(), (Daten & Seriell) != 0, Bereit());
}

void Simuliertes_MC_Board::Daten_Schreiben(std::uint8_t Wert)
{
    ++Geschrieben;
    const std::uint8_t Vorher   = Daten;
    const unsigned     Steigend = Wert & ~unsigned{Vorher};
    Daten                       = Wert;
    if (Steigend & Speicher_Takt) // before the shift: clocked together, the storage lags by one
        Speicher = Schiebe;
    if (Steigend & Schiebe_Takt)
        Schiebe = static_cast<std::uint8_t>(Schiebe << 1 | Wert >> 7);
    if (Baustein_Aktiv())
        Daten_Folgen(Vorher);
}

void Simuliertes_MC_Board::Steuerung_Schreiben(std::uint8_t Wert)
{
    ++Geschrieben;
    const std::uint8_t Vorher = Steuerung;
    Steuerung                 = Wert & 15u;
    if (Baustein_Aktiv())
        Steuerung_Folgen(Vorher);
}

// The data pins of the part reach the bus only while the 74HC595 is off it.
std::uint8_t Simuliertes_MC_Board::Bus() const
{
    unsigned Wert = Offener_Bus;
    if (Ausgaenge_595())
        Wert = Speicher;
    else if (Baustein_Aktiv())
        Wert = Getrieben();
    return static_cast<std::uint8_t>((Wert & ~unsigned{Fehler.Klemmt_Auf_0}) | Fehler.Klemmt_Auf_1);
}

bool Simuliertes_MC_Board::Bereit()
{
    return Baustein_Aktiv() && !Fehler.Bereit_Klemmt && Im_Sockel->Bereit(Vergangen());
}

} // namespace varnholt
