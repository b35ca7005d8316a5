// What becomes of a finished line of source text: the case of its keywords and the blanks round its
// operators. Pure calculation.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// Values of O_Automatik_Bef.
inline constexpr int Fall_Gross       = 0; // "MOV"
inline constexpr int Fall_Erster      = 1; // "Mov"
inline constexpr int Fall_Wie_Getippt = 2;

// A keyword in the case asked for; empty for a word that is none and for Fall_Wie_Getippt.
std::string Schluesselwort(std::string_view Wort, int Fall);

// The line with its keywords in the case asked for; jumpmarks, strings and the comment stay.
std::string Worte_Angleichen(std::string_view Zeile, int Fall);

// A line with its operators set off, and before which characters of the old line a blank went in
// (ascending; the line's length: behind its last character).
struct Abgesetzt_T {
    std::string              Text{};
    std::vector<std::size_t> Leerzeichen_Vor{};
};

// "><" becomes "<>", and a blank goes round each "=", "<", ">" and "<>" where there is neither
// blank nor tab nor the line's end. Jumpmarks, strings and the comment stay.
Abgesetzt_T Operatoren_Absetzen(std::string_view Zeile);

// One replacement in a text: Laenge characters from Anfang on.
struct Ersetzung_T {
    std::size_t Anfang = 0;
    std::size_t Laenge = 0;
    std::string Neu{};
    bool        operator==(const Ersetzung_T&) const = default;
};

// The replacements that turn Alt into Neu.Text, ascending. Neighbours are one where no "?" lies
// between: a "?" may stand for a character that only the control knows, and must not be written.
std::vector<Ersetzung_T> Ersetzungen_Bilden(std::string_view Alt, const Abgesetzt_T& Neu);

} // namespace varnholt
