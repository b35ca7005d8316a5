// Writing devices by pages: every device whose program type begins 29C.
#pragma once

#include <cstdint>

namespace varnholt {

inline constexpr int Seiten_Durchgaenge = 10; // passes of verifying and rewriting, at most

// Milliseconds that Sleep gets for a write time in microseconds; halves go to the even one.
constexpr int Seiten_Pause(std::int32_t Mikrosekunden)
{
    if (Mikrosekunden <= 0)
        return 0;
    const int Ganze = Mikrosekunden / 1000;
    const int Rest  = Mikrosekunden % 1000;
    return Ganze + (Rest > 500 || (Rest == 500 && Ganze % 2 == 1) ? 1 : 0);
}
static_assert(Seiten_Pause(10000) == 10 && Seiten_Pause(499) == 0 && Seiten_Pause(501) == 1);
static_assert(Seiten_Pause(-5000) == 0);
static_assert(Seiten_Pause(500) == 0 && Seiten_Pause(1500) == 2 && Seiten_Pause(2500) == 2);

// Writes the pages of the dialog's range, reads them back, and writes those that differ once more,
// up to ten times; closes the dialog and, with C_IC_nach_B, compares without a further read.
// reads: Brennmenue, Hex_Daten, C_IC_nach_B, No_FF, the device's record, Abbruch
// sets: Hex_Puffer, Brenn_Ergebnis, Antwort, Abbruch, CheckIC, the groups Signale, Durchlauf and
// Brennlauf
void Seiten_Schreiben();

} // namespace varnholt
