// What a programming run would do to the device, worked out beforehand: how many bytes are written
// and how many change, whether bits would have to rise without an erase, what of the image has no
// place in the device.
#pragma once

#include "core/messages.h"
#include "programmer/Brennbereich.h"

#include <cstdint>
#include <span>

namespace varnholt {

// What the run and the device are like beside the range.
struct Brenn_Umstaende {
    bool Loescht       = false; // the whole device is erased before
    bool Hebt_Bits     = false; // a write takes bits from 0 to 1 too
    bool Sieht_FF_Nach = false; // a cell whose FFh is passed over is still checked
};

struct Brenn_Vorschau {
    std::int32_t Geschrieben = 0; // device bytes that are written
    std::int32_t Geaendert   = 0; // device bytes that are others after the erase and the run
    std::int32_t Ansteigend  = 0; // bytes that don't take, since a bit would have to go from 0 to 1
    std::int32_t Ausserhalb  = 0; // image bytes other than FFh that have no place in the device;
                                  // with a split, of its half only
};

// Baustein is the device as it was read, empty when it wasn't: nothing changes or rises then.
Brenn_Vorschau Vorschau_Rechnen(std::span<const std::uint8_t> Baustein,
                                std::span<const std::uint8_t> Editor,
                                const Brenn_Bereich&          Bereich,
                                const Brenn_Umstaende&        Umstaende);

// The circumstances of a run as the dialog stands.
// reads: Brennmenue, C_IC_bei_B, the device's record
Brenn_Umstaende Umstaende_Des_Dialogs();

// The dialog's own words for what would happen.
// reads: Brennmenue, Hex_Puffer, Hex_Daten, No_FF, C_IC_bei_B, the device's record
Text_Paar Vorschau_Text();

} // namespace varnholt
