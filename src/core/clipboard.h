// What the clipboard commands remember beside the clipboard of the system.
#pragma once

#include "core/platform.h"

#include <string>
#include <vector>

namespace varnholt {

// The text that was copied last, with its colours, to be used while the clipboard still holds it.
inline struct Ablage_T {
    std::string               Gemerkter_Text{};  // UTF-8, lines ended by CR LF
    std::vector<Farbstelle_T> Gemerkte_Farben{}; // from the beginning of the text on, ascending
} Ablage;

} // namespace varnholt
