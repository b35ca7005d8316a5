// A debugger session and its end. What starts one is still to come.
#pragma once

namespace varnholt {

// Ends a session when one is on.   reads: Debugger_Aktiv   sets: as Debug_Beenden
void Sitzung_Beenden();

} // namespace varnholt
