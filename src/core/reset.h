// The whole program as at its start: every state group of every subsystem and the silent world.
#pragma once

namespace varnholt {

// sets: every state group
void Alles_Zuruecksetzen();

} // namespace varnholt
