// The ring of snapshots behind Undo and Redo, and the autosave series.
#pragma once

#include <array>
#include <cstdint>

namespace varnholt {

inline constexpr int Undo_Hoechstens = 998; // highest slot number that can be chosen
inline constexpr int Autosave_Anzahl = 20;  // files 0 to 19

// The ring. Valid for one document. Written by undo.cpp, and by the editor where noted.
inline struct Undo_T {
    int  Undo_Index    = 0;     // slot to be written next; after an Undo the slot on display
    int  Undo_Ende     = 0;     // slot that Undo must not reach
    int  Undo_Oben     = 1;     // slot that Redo must not pass (editor, clipboard commands)
    bool Undo_Taste    = false; // a key went down in the editor since the last Undo (editor)
    bool Undo_Begonnen = false; // the document's first snapshot exists (editor)
    std::array<std::int64_t, 1001> Undo_Zeile{};     // first visible line, by slot
    std::array<std::int64_t, 1001> Undo_SelStart{};  // caret position
    std::array<std::int64_t, 1001> Undo_SelLength{}; // selection length
    double Autosave_Zeit   = 0;     // seconds since midnight of the last autosave; set at start-up
    bool   Fehler_Gemeldet = false; // the user knows that snapshots can't be written
} Undo;

inline constinit auto& Undo_Index    = Undo.Undo_Index;
inline constinit auto& Undo_Ende     = Undo.Undo_Ende;
inline constinit auto& Undo_Oben     = Undo.Undo_Oben;
inline constinit auto& Undo_Taste    = Undo.Undo_Taste;
inline constinit auto& Undo_Begonnen = Undo.Undo_Begonnen;
inline constinit auto& Autosave_Zeit = Undo.Autosave_Zeit;

// Takes a snapshot of the text with its colours and its view; an autosave when it is due. A
// snapshot that can't be written changes no counter and gives one notice. reads: Edit, Undo_Max,
// Autosave_Zeitlich   sets: the ring, menu, tool bar
void Undo_Schritt_speichern();
// The counters of a new document; MNU_Undo, MNU_Redo and buttons 14 and 15 off.
// reads: Undo_Max   sets: the ring, Text_Veraendert, menu, tool bar
void Undo_Zuruecksetzen();
// The same for the document in work, when the number of steps changes or a change of the mode
// begins: a changed line stays one.
void Undo_Ring_Neu();
// Steps lie ahead of the position in the ring, also while the text is locked.
[[nodiscard]] bool Redo_Moeglich();
// Undo and Redo in menu and tool bar: by the ring's position, or all off while the text is locked.
void Undo_Knoepfe_Stellen();
void Undo_Knoepfe_Sperren();
// Saves the text to the next file of the series and writes the crash marker.
// reads: Edit, Programm_Pfad   sets: Autosave_Nummer, Autosave_Zeit
void Autosave_Speichern();
// Removes all files of the ring, as at the regular end. reads: Programm_Pfad
void Undo_Dateien_Loeschen();
// Number of autosave files without a gap from 0 on, at most 20.   reads: Programm_Pfad
int Autosave_Vorhanden();

} // namespace varnholt
