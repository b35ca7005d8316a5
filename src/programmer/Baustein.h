// The selected device as its routines see it, and the guards in front of every device command.
#pragma once

#include "core/shared_state.h"
#include "programmer/Geraete.h"

#include <algorithm>
#include <cstdint>

namespace varnholt {

inline constexpr int Board_Nr_Eprommer = 1;
inline constexpr int Board_Nr_Tessel2  = 3;

// The record of a device number; an empty record for a number that is none.
const Geraet_T& Geraet_Mit_Nummer(int Nummer);
// The record of the selected device; an empty one without a selection.
inline const Geraet_T& Gewaehltes_Geraet() { return Geraet_Mit_Nummer(IC_Nummer); }

// The device's bytes as far as an image can hold them, 0 to 524288.
constexpr std::int32_t Nutzbare_Bytes(const Geraet_T& Geraet)
{
    return std::clamp(Geraet.Bytes, 0, Bild_Groesse);
}

// Guards: true when the command may go on, else a box has told why not.
// reads: Porttreiber_OK, IC_Nummer   sets: Antwort
[[nodiscard]] bool Porttreiber_Bereit();
[[nodiscard]] bool Baustein_Gewaehlt();

} // namespace varnholt
