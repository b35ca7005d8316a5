// Counters of changes. A view remembers the count it has drawn and redraws when it differs.
#pragma once

#include <cstdint>

namespace varnholt {

inline struct Ansichten_T {
    std::uint64_t Hex_Stand       = 0; // the image or its page changed
    std::uint64_t Anordnung_Stand = 0; // Fenster_Tabelle is to be applied
} Ansichten;

} // namespace varnholt
