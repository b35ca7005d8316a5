// The whole program as at its start. A new state group gets its line here.
#include "core/reset.h"

#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/views.h"
#include "files/Datei_Zustand.h"
#include "language/Assembler_Zustand.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Geraete.h"

namespace varnholt {

void Alles_Zuruecksetzen()
{
    Gemeinsames_Zuruecksetzen();
    Optionen_Zuruecksetzen();
    Ansichten = {};
    Assembler_Zuruecksetzen();
    Dateien_Zuruecksetzen();
    Geraete_Zuruecksetzen();
    Brenner_Zuruecksetzen();
    Plattform_Zuruecksetzen();
}

} // namespace varnholt
