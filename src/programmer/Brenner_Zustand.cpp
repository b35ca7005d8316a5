// The programmer's state as at program start.
#include "programmer/Brenner_Zustand.h"

#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Lockmenu.h"
#include "programmer/MC_Zustand.h"

namespace varnholt {

void Brenner_Zuruecksetzen()
{
    Port_Zustand    = {};
    Signale         = {};
    Durchlauf       = {};
    Brennlauf       = {};
    Brennmenue      = {};
    CheckIC         = {};
    Lockmenu        = {};
    Mikrocontroller = {};
}

} // namespace varnholt
