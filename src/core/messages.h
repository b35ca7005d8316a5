// Messages in both languages, chosen by `Sprache` at the point of use.
#pragma once

#include "core/platform.h"

#include <string>
#include <string_view>

namespace varnholt {

// A text in German and in English, UTF-8.
struct Text_Paar {
    std::string D{};
    std::string E{};
};

// The text of the interface language; the English one when `Sprache` is neither "D" nor "E" (from a
// damaged settings file): captions and notices are better in English than empty.
std::string In_Sprache(const Text_Paar& Text);

// Shows a message box and keeps its result in `Antwort`. With a `Sprache` that is neither "D" nor
// "E" no box appears and `Antwort` stays.
// reads: Sprache   sets: Antwort
void Melden(const Text_Paar& Text,
            const Text_Paar& Titel   = {},
            Knoepfe          Tasten  = Knoepfe::Ok,
            Symbol           Zeichen = Symbol::Hinweis);

} // namespace varnholt
