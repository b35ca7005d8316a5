// The device table, filled once from Spec.ini, and the selected device.
#include "programmer/Geraete.h"

namespace varnholt {

std::string IC_Menue_Name()
{
    if (IC_Nummer < 0 || IC_Nummer >= Geraete_Anzahl)
        return {};
    const Geraet_T& Geraet = Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)];
    return Geraet.Menue_Name.empty() ? Geraet.Name : Geraet.Menue_Name;
}

void Geraete_Zuruecksetzen() { Geraete = {}; }

} // namespace varnholt
