// The EPROM routine: programs every device whose program type begins 27C, 87C or 27SF, one byte at
// a time, with a pulse that grows until the byte takes.
#pragma once

#include <cstdint>

namespace varnholt {

inline constexpr int Lade_Versuche = 10; // loads of a byte that never reaches the bus
inline constexpr int Puls_Versuche = 10; // pulses for a byte that never takes

// Factor by which the pulse grows when attempt Nummer begins: 10 at 3, 10 at 8, 2 at 9.
constexpr int Puls_Faktor(int Nummer)
{
    if (Nummer == 3 || Nummer == 8)
        return 10;
    return Nummer == 9 ? 2 : 1;
}

// Image index for an IC address: with a split every second byte, from the odd or the even ones.
constexpr std::int64_t
Bild_Adresse(std::int64_t Adresse, std::int64_t Abstand, bool Ungerade, bool Gerade)
{
    const std::int64_t e = Adresse - Abstand;
    if (Ungerade)
        return 2 * e + 1;
    return Gerade ? 2 * e : e;
}
static_assert(Bild_Adresse(5, 3, false, false) == 2 && Bild_Adresse(5, 3, true, false) == 5);
static_assert(Bild_Adresse(5, 3, false, true) == 4 && Bild_Adresse(0, 1, true, false) == -1);

// Programs the device by the fields of the dialog and closes it; then, with C_IC_nach_B, compares.
// reads: Brennmenue, Hex_Daten, C_IC_bei_B, C_IC_nach_B, No_FF, the device's record, Abbruch
// sets: Brenn_Ergebnis, Antwort, Abbruch, the groups Signale, Durchlauf and Brennlauf, CheckIC
void Eprom_Brennen();

} // namespace varnholt
