// The EPROM routine: programs every device whose program type begins 27C, 87C or 27SF, one byte at
// a time, with a pulse that grows until the byte takes.
#pragma once

namespace varnholt {

// Factor by which the pulse grows when attempt Nummer begins: 10 at 3, 10 at 8, 2 at 9.
constexpr int Puls_Faktor(int Nummer)
{
    if (Nummer == 3 || Nummer == 8)
        return 10;
    return Nummer == 9 ? 2 : 1;
}

// Programs the device by the fields of the dialog and closes it; then, with C_IC_nach_B, compares.
// reads: Brennmenue, Hex_Daten, C_IC_bei_B, C_IC_nach_B, No_FF, the device's record, Abbruch
// sets: Brenn_Ergebnis, Antwort, Abbruch, the groups Signale, Durchlauf and Brennlauf, CheckIC
void Eprom_Brennen();

} // namespace varnholt
