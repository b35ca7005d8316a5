// The colours of the source text: what of a line is a jumpmark, what a comment. Edit_Einfaerben
// (core/commands.h) colours the whole text.
#pragma once

#include "core/platform.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace varnholt {

inline constexpr std::int32_t Farbe_Text      = 0;
inline constexpr std::int32_t Farbe_Marke     = 0xDD1111; // line start through the ":"
inline constexpr std::int32_t Farbe_Kommentar = 0x119911; // from ";" or "'" to the line's end

inline struct Einfaerben_T {
    std::uint64_t Lauf = 0; // number of the last colouring begun
} Einfaerben;

// The state as at program start.
inline void Einfaerben_Zuruecksetzen() { Einfaerben = {}; }

// How a line divides: Marke characters of jumpmark (":" included, 0: none), then plain text, then
// from Kommentar on the comment (the line's length: none).
struct Zeilen_Teile_T {
    std::size_t Marke                                   = 0;
    std::size_t Kommentar                               = 0;
    bool        operator==(const Zeilen_Teile_T&) const = default;
};

constexpr bool Ist_Leerraum(char Zeichen) { return Zeichen == ' ' || Zeichen == '\t'; }

// Calls Je_Zeichen with the place of each character that is neither in a string (double quotes
// only) nor in a comment; the result is where the comment begins, or the line's length.
template <class Besuch>
constexpr std::size_t Code_Durchlaufen(std::string_view Zeile, Besuch&& Je_Zeichen)
{
    bool In_Zeichenkette = false;
    for (std::size_t i = 0; i < Zeile.size(); ++i) {
        if (Zeile[i] == '"')
            In_Zeichenkette = !In_Zeichenkette;
        if (In_Zeichenkette)
            continue;
        if (Zeile[i] == ';' || Zeile[i] == '\'')
            return i;
        Je_Zeichen(i);
    }
    return Zeile.size();
}

// The jumpmark names of a line, without leading blanks and tabs: each reaches from the line's first
// character to a ":" outside strings and comments that doesn't belong to a data word.
std::vector<std::string_view> Marken_Namen(std::string_view Zeile);
Zeilen_Teile_T                Zeile_Teilen(std::string_view Zeile);

// Appends the colours of a line that begins at Anfang, ascending; Mit_Text: plain text as well.
void Zeile_Faerben(std::string_view           Zeile,
                   std::int64_t               Anfang,
                   bool                       Mit_Text,
                   std::vector<Farbstelle_T>& Stellen);
// The same for the lines of a piece of text.
void Zeilen_Faerben(std::string_view           Stueck,
                    std::int64_t               Anfang,
                    bool                       Mit_Text,
                    std::vector<Farbstelle_T>& Stellen);

} // namespace varnholt
