// What a programming run would do to the device, worked out beforehand: how many bytes change,
// whether bits would have to rise without an erase, what of the image has no place in the device.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <span>

namespace varnholt {

// Where the bytes of a run come from and go to.
struct Brenn_Bereich {
    std::int32_t IC_Erste     = 0;  // device address of the image byte Editor_Erste
    std::int32_t IC_Letzte    = -1; // last device address to be written
    std::int32_t Anfang       = 0;  // first one: 0 or IC_Erste
    std::int64_t Nullen_Bis   = 0;  // what is written below this one is 00h
    std::int32_t Editor_Erste = 0;
    int          Schritt      = 1; // 2 with a split
    int          Versatz      = 0; // 1 with the odd split
};

struct Brenn_Vorschau {
    std::int32_t Geschrieben = 0; // device bytes in the range
    std::int32_t Geaendert   = 0; // of these: other than now; 0 when the device wasn't read
    std::int32_t Ansteigend  = 0; // of these: with a bit that has to go from 0 to 1
    std::int32_t Ausserhalb  = 0; // image bytes other than FFh that have no place in the device
};

// Baustein is the device as it was read, empty when it wasn't. With No_FF_Dabei an FFh is passed
// over.
Brenn_Vorschau Vorschau_Rechnen(std::span<const std::uint8_t> Baustein,
                                std::span<const std::uint8_t> Editor,
                                const Brenn_Bereich&          Bereich,
                                bool                          No_FF_Dabei);

// The range that a run would take from the dialog's fields as they stand.
// reads: Brennmenue, No_FF, the device's record
Brenn_Bereich Bereich_Des_Dialogs();

// The dialog's own words for what would happen.   reads: Brennmenue, Hex_Puffer, Hex_Daten, No_FF
Text_Paar Vorschau_Text();

} // namespace varnholt
