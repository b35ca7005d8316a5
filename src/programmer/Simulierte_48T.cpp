// A battery-backed RAM with a clock: its last eight bytes are the clock's registers, which go on by
// the time of the simulated board.
#include "programmer/Simulierte_48T.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr std::int64_t Sekunde_Dauer        = 1000000; // microseconds
constexpr std::int64_t Rueckstand_Hoechster = 86400;
constexpr std::int32_t Register_Anzahl      = 8;
constexpr std::uint8_t Stopp                = 0x80; // of the second
constexpr std::uint8_t Schreibt             = 0x80; // of the control byte
constexpr std::uint8_t Liest                = 0x40;

constexpr int          Von_BCD(std::uint8_t Wert) { return (Wert >> 4) * 10 + (Wert & 15); }
constexpr std::uint8_t Nach_BCD(int Wert)
{
    return static_cast<std::uint8_t>(Wert / 10 % 10 * 16 + Wert % 10);
}
static_assert(Von_BCD(0x59) == 59 && Nach_BCD(59) == 0x59);

} // namespace

Simulierte_48T::Simulierte_48T(std::int32_t Groesse)
    : Simuliertes_EEPROM(std::max(Groesse, Register_Anzahl), Speicher_Art_T{1, 0, 0, false})
{
}

std::uint8_t& Simulierte_48T::Register(Register_T Welches)
{
    return Inhalt[Inhalt.size() - Welches];
}

void Simulierte_48T::Zeit(std::int64_t Jetzt)
{
    Simuliertes_EEPROM::Zeit(Jetzt);
    const std::int64_t Sekunden = (Jetzt - Voll) / Sekunde_Dauer;
    Voll += Sekunden * Sekunde_Dauer;
    if ((Register(Sekunde) & Stopp) == 0)
        Rueckstand =
            std::min(Rueckstand + std::max<std::int64_t>(Sekunden, 0), Rueckstand_Hoechster);
    Aufholen();
}

void Simulierte_48T::Aufholen()
{
    const std::uint8_t Steht = Register(Kontrolle) & (Schreibt | Liest);
    if (Steht & Schreibt)
        Rueckstand = 0;
    if (Steht != 0)
        return;
    for (; Rueckstand > 0; --Rueckstand)
        Eine_Sekunde();
}

// True when the register begins anew, so that the next one goes on too.
bool Simulierte_48T::Weiterzaehlen(Register_T Welches, int Erster, int Letzter)
{
    const int  Wert   = Von_BCD(Register(Welches));
    const bool Um     = Wert >= Letzter;
    Register(Welches) = Nach_BCD(Um ? Erster : Wert + 1);
    return Um;
}

int Simulierte_48T::Monats_Laenge()
{
    const int m = Von_BCD(Register(Monat));
    if (m == 2)
        return Von_BCD(Register(Jahr)) % 4 == 0 ? 29 : 28;
    return m == 4 || m == 6 || m == 9 || m == 11 ? 30 : 31;
}

void Simulierte_48T::Eine_Sekunde()
{
    if (!Weiterzaehlen(Sekunde, 0, 59) || !Weiterzaehlen(Minute, 0, 59) ||
        !Weiterzaehlen(Stunde, 0, 23))
        return;
    Weiterzaehlen(Wochentag, 1, 7);
    if (Weiterzaehlen(Tag, 1, Monats_Laenge()) && Weiterzaehlen(Monat, 1, 12))
        Weiterzaehlen(Jahr, 0, 99);
}

} // namespace varnholt
