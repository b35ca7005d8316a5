// The rules of the code image, and the state as at program start.
#include "core/shared_state.h"

#include <algorithm>
#include <cstring>

namespace varnholt {

void Bild_Loeschen()
{
    Hex_Groesse = Bild_Groesse;
    Hex_Daten.fill(0xFF);
}

std::int32_t Erstes_Byte()
{
    for (std::int32_t a = 0; a < Hex_Groesse; ++a)
        if (Hex_Daten[static_cast<std::size_t>(a)] != 0xFF)
            return a;
    return 0;
}

std::int32_t Letztes_Byte()
{
    for (std::int32_t a = Hex_Groesse - 1; a >= 0; --a)
        if (Hex_Daten[static_cast<std::size_t>(a)] != 0xFF)
            return a;
    return -1;
}

void Gemeinsames_Zuruecksetzen()
{
    Dokument = {};
    Bild.Hex_Puffer.clear();
    Bild.Hex_Zeiger = 0;
    Bild_Loeschen();
}

} // namespace varnholt
