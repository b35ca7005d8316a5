// The form `Hilfe`: a help text of a page or two. (The handbook in HTML is another thing.)
#pragma once

#include "core/platform.h"
#include "core/rich_text.h"

#include <string>
#include <string_view>

namespace varnholt {

inline constexpr std::size_t Hilfe_Hoechstens = 1u << 20; // bytes of the help file

// What the form shows.
inline struct Hilfe_Form_T {
    std::string  Titel{}; // UTF-8
    Reich_Text_T Text{};
} Hilfe_Form;

inline void Hilfe_Zuruecksetzen() { Hilfe_Form = {}; }

// The load of the form, at each showing. Layout_Text is the German text that its layout holds, as
// RTF. In English help.rtf of the program's folder takes its place; where that can't be opened, the
// form stays as it is.
// reads: Sprache, Programm_Pfad   sets: Hilfe_Form
void Hilfe_Load(std::string_view Layout_Text);

// Where the form stands on the screen; without a size before its first showing.
// reads: Fenster_Tabelle
Lage_T Hilfe_Lage();
// It was moved, or its size was changed.   sets: Fenster_Tabelle
void Hilfe_Merken(const Lage_T& Neue);

} // namespace varnholt
