// Redraw and lock requests to the windows. The views compare counters and draw when they find time.
#include "core/views.h"
#include "core/commands.h"
#include "core/platform.h"

namespace varnholt {

void Hex_Anzeige() { ++Ansichten.Hex_Stand; }
void Fenster_Anordnen() { ++Ansichten.Anordnung_Stand; }
void Fenster_Sperren() { Plattform.Ereignisse->Fenster_Sperren(true); }
void Fenster_Freigeben() { Plattform.Ereignisse->Fenster_Sperren(false); }

} // namespace varnholt
