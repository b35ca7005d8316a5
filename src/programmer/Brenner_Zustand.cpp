// The programmer's state as at program start.
#include "programmer/Brenner_Zustand.h"

#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"

namespace varnholt {

void Brenner_Zuruecksetzen()
{
    Port_Zustand = {};
    Signale      = {};
    Durchlauf    = {};
    Brennlauf    = {};
    Brennmenue   = {};
    CheckIC      = {};
}

} // namespace varnholt
