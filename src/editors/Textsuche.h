// Looking for a term in the text of a control, and putting another text in the places of its hits.
// Calculations only: nothing is selected and nothing changed here.
#pragma once

#include "core/platform.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// What is looked for. Characters that Windows-1252 lacks are told apart, too.
//
// A hit is a whole word when no word goes on across one of its ends: the character there and its
// neighbour outside aren't both letters, digits or "_". So "P1" isn't found in "P10" and "_P1",
// and "#10" isn't in "#10h", but "A" is in "@A+DPTR", and ":" behind every jumpmark.
struct Such_Auftrag_T {
    std::string Begriff{}; // UTF-8, lines ended by CR LF; an empty one has no hits
    bool        Ganzes_Wort           = false;
    bool        Gross_Kleinschreibung = false; // else by the pairs of Windows-1252
};

// The same text in either case; characters that Windows-1252 lacks have only one.
bool Gleicher_Text(std::string_view a_UTF8, std::string_view b_UTF8);

// Number of characters of a text as the positions of a control count them.
std::int64_t Zeichen_Anzahl(std::string_view Text_UTF8);

// Position of the first hit at or behind Von; -1 for none. Time is linear in the text.
std::int64_t Erster_Treffer(const Textfeld& Feld, const Such_Auftrag_T& Auftrag, std::int64_t Von);
// All hits, ascending; the next one is looked for behind the end of the last.
std::vector<std::int64_t> Alle_Treffer(const Textfeld& Feld, const Such_Auftrag_T& Auftrag);

// The text with Neu in the place of each hit; Laenge is that of the term in characters.
std::string Mit_Ersetzungen(std::string_view              Text_UTF8,
                            std::span<const std::int64_t> Treffer,
                            std::int64_t                  Laenge,
                            std::string_view              Neu_UTF8);

// A run of whole lines that hold hits, before and after the replacement: from the start of the
// first line to the end of the last one, its line end left out.
struct Treffer_Zeilen_T {
    Textstelle_T Alt{};
    Textstelle_T Neu{};
    bool         operator==(const Treffer_Zeilen_T&) const = default;
};
// The lines of Alter_Text (Windows-1252) with hits, when each hit goes from Laenge to Laenge_Neu
// characters. Ascending; no two touch the same line.
std::vector<Treffer_Zeilen_T> Treffer_Zeilen(std::string_view              Alter_Text,
                                             std::span<const std::int64_t> Treffer,
                                             std::int64_t                  Laenge,
                                             std::int64_t                  Laenge_Neu);

} // namespace varnholt
