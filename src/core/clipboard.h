// What the clipboard commands remember beside the clipboard of the system.
#pragma once

#include "core/rich_text.h"

#include <string>

namespace varnholt {

// The text that was copied last, to be used with its look while the clipboard still holds it.
inline struct Ablage_T {
    std::string  Gemerkter_Text{}; // UTF-8, lines ended by CR LF
    Reich_Text_T Gemerktes{};      // the same with the look of its characters
} Ablage;

} // namespace varnholt
