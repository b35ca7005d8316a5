// What the MC editor does to the undo steps while a user types, without an editor.
#pragma once

#include "core/text_memory.h"
#include "core/undo.h"

#include <string>
#include <utility>

namespace varnholt::test {

// A key that changes the text.
inline void Tippen_In(Speicher_Text& Feld, const std::string& Neuer)
{
    Undo_Taste = true;
    if (!std::exchange(Undo_Begonnen, true)) {
        Undo_Schritt_speichern();
        Undo_Oben = Undo_Index;
    }
    Feld.Text_Setzen(Neuer);
    Text_Veraendert = true;
}

// The caret leaves the line.
inline void Zeile_Verlassen()
{
    if (!std::exchange(Text_Veraendert, false))
        return;
    Undo_Schritt_speichern();
    Undo_Oben = Undo_Index;
}

} // namespace varnholt::test
