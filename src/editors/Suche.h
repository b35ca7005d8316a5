// The form `Suche` as a model: text search and replace in the source editor. It stays open beside
// the text; a window shows the fields and forwards the events. The commands that open it and search
// on are in core/commands.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

// What the form's controls show. Holds from one opening to the next.
inline struct Suche_Form_T {
    std::string   Suchbegriff{};           // UTF-8
    std::string   Ersetzen_durch{};        // UTF-8
    bool          Check1          = false; // whole words only
    bool          Check2          = false; // upper and lower case are told apart
    bool          Check3          = false; // the lower half: replace
    std::int32_t  Such_Pos        = 0; // result of the last find, -1: none. 0 also: none made yet
    std::int32_t  Such_Letzte     = 0; // the last accepted hit; 0 if there was none
    bool          Fokus_Suchen_OK = false; // where the focus is to go: button, else Suchbegriff
    std::uint64_t Fokus_Stand     = 0;     // grows with each such wish
} Suche_Form;

inline constinit auto& Such_Pos    = Suche_Form.Such_Pos;
inline constinit auto& Such_Letzte = Suche_Form.Such_Letzte;

// The state as at program start.
inline void Suche_Zuruecksetzen() { Suche_Form = {}; }

namespace Suche {

// Caption of a control, and of the form ("Suche"), in the interface language; UTF-8.
std::string_view Text(std::string_view Name);

// Whether replacing is offered at all: not in a debugger session, nor beside the image.
[[nodiscard]] bool Ersetzen_Angeboten();
// Whether the two replace buttons can be pressed: it is, and Check3 is ticked.
[[nodiscard]] bool Ersetzen_Aktiv();

// --- the events of the controls; each change sets Such_Letzte to 0 ---

void Suchbegriff_Change(std::string Neuer);
void Suchbegriff_Enter(); // the focus goes to the button, which is pressed
void Ersetzen_durch_Change(std::string Neuer);
void Ersetzen_durch_KeyPress(); // ticks Check3
void Check1_Click(bool Gesetzt);
void Check2_Click(bool Gesetzt);
void Check3_Click(bool Gesetzt);

// The next hit behind the start of the selection is selected, past the end of the text the first
// one. A message when there is none, unless there had been one before.
// reads: Edit   sets: the selection of Edit, Such_Pos, Such_Letzte
void Suchen_OK_Click();
// Replaces the selection if it is a hit, and searches on. Nothing after a search in vain.
// sets: Edit, the ring of snapshots, Datei_Geaendert, Text_Veraendert, and as Suchen_OK_Click
void B_Ersetzen_Click();
// Replaces every hit of the text as it stands, in one step of the undo ring, and tells how many.
// Only a line with a hit gets new colours; the caret comes behind the last replacement.
// sets: Edit, the ring, Datei_Geaendert, Text_Veraendert, Sprungmarken, Such_Pos, Such_Letzte
void B_AlleErsetzen_Click();
void Suchen_Abbrechen_Click(); // hides the form

} // namespace Suche
} // namespace varnholt
