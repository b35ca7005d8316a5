// Captions of a form's controls, as a table of the form.
#pragma once

#include "core/shared_state.h"

#include <span>
#include <string_view>

namespace varnholt {

// A control by its name, and its caption in both languages, UTF-8.
struct Form_Text_T {
    std::string_view Name{};
    std::string_view D{};
    std::string_view E{};
};

// The caption in the interface language, in English while that is none of the two; empty for a name
// without one.
inline std::string_view Form_Text(std::span<const Form_Text_T> Tabelle, std::string_view Name)
{
    for (const Form_Text_T& t : Tabelle)
        if (t.Name == Name)
            return Sprache == "D" ? t.D : t.E;
    return {};
}

} // namespace varnholt
