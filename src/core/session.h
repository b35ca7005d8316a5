// The end of a debugger session, and what a session switches on and off. simulator/Sitzung.h has
// the rest.
#pragma once

namespace varnholt {

// Ends a session when one is on.   reads: Debugger_Aktiv   sets: as Debug_Beenden
void Sitzung_Beenden();

// Menu entries and buttons that only a session has.   sets: menu, tool bar
void Sitzung_Schalten(bool Aktiv);

} // namespace varnholt
