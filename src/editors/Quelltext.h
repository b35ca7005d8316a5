// The source editor: what its window calls at each key and each change, and the handling of a line
// that the user has finished.
#pragma once

#include "core/keys.h"

#include <cstdint>
#include <vector>

namespace varnholt {

// The lines under the user's hands. Holds while Text_Veraendert is set.
inline struct Quelltext_T {
    // Their numbers from 0: the one with the caret, and those that the caret left by the change
    // itself, as by Enter. None: not known, the caret's line.
    std::vector<std::int64_t> Geaenderte_Zeilen{};
    std::int64_t              Zeilen_Dabei = 0; // lines of the text when the numbers were right
} Zeilen_In_Arbeit;

// The state as at program start.
inline void Quelltext_Zuruecksetzen() { Zeilen_In_Arbeit = {}; }

// --- Quelltext.cpp ---

// A key went down in the editor; true: it is done with, the control must not see it.
// reads: Debugger_Aktiv, Edit   sets: Undo_Taste, Undo_Begonnen, Undo_Oben, Edit, Datei_Geaendert
bool Text_KeyDown(const Taste_T& Taste);
// Text is about to come in without a key: dropped, from an input method.   sets: as the first key
void Text_Ohne_Taste();
// Enter is typed: a new line with the indent of the old one. True: the control must not see it.
// reads: Debugger_Aktiv   sets: Edit, Text_Veraendert, Datei_Geaendert
bool Text_KeyPress_Enter();
// The user changed the text. Not while Text_Sperre.
// sets: Text_Veraendert, Zeilen_In_Arbeit, Datei_Geaendert, Text_Aktuell, caption
void Text_Change();
// Caret or selection moved, for whatever reason (Zeile_Bearbeiten).
void Text_SelChange();
// The window became the active one.   reads: Sprache   sets: Aktives_Fenster, menu, tool bar
void Edit_Activate();
// The window lost that place.   sets: Fenster_Tabelle
void Edit_Deactivate();

// First position of a line (from 0); the text's length behind the last one.
std::int64_t Zeile_von_Position(std::int64_t Zeile);

// --- Quelltext_Bearbeiten.cpp ---

// Handles each changed line that the caret has left: snapshot, case of the keywords, blanks round
// the operators, colours, check of its jumpmarks, jumpmark list. Caret and selection stay at the
// characters where they were. Cheap when there is nothing to handle.
// reads: Text_Sperre, Text_Veraendert, Debugger_Aktiv, O_Automatik_Bef
// sets: Text_Veraendert, Zeilen_In_Arbeit, Undo_Oben, Edit, Sprungmarken
void Zeile_Bearbeiten();
// The line with the start of the selection is a changed one.   sets: Text_Veraendert,
// Zeilen_In_Arbeit
void Zeile_Merken();

// --- Einfaerben.cpp ---

// Colours the lines Erste to Letzte (from 0; what lies outside the text is left out).
void Zeilen_Einfaerben(std::int64_t Erste, std::int64_t Letzte);

} // namespace varnholt
