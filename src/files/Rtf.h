// Rich text files (RTF): the notes and the help text. Reads what other programs write, as far as it
// is characters, their look and paragraphs; pictures, tables' frames and the like are left out.
#pragma once

#include "core/rich_text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

// A file may hold anything; what becomes of it is bounded by these.
struct Rtf_Grenzen_T {
    std::size_t Zeichen  = 16u << 20; // bytes of UTF-8
    std::size_t Absaetze = 250'000;
    std::size_t Stuecke  = 500'000;
};

// Sizes of characters in half points, and lengths of paragraphs in twips, are drawn into these.
inline constexpr int Rtf_Halbpunkte_Mindestens = 2;
inline constexpr int Rtf_Halbpunkte_Hoechstens = 400;
inline constexpr int Rtf_Twips_Hoechstens      = 31'680; // 22 inches

struct Rtf_Ergebnis_T {
    Reich_Text_T Text{};          // at least one paragraph
    bool         Zu_Lang = false; // reading ended at one of the limits
};

// Whether the bytes are RTF by their beginning.
bool Ist_Rtf(std::string_view Bytes);

// Reads any bytes. Unknown words are skipped; a file that ends early gives what it has up to there.
Rtf_Ergebnis_T Rtf_Lesen(std::string_view Bytes, const Rtf_Grenzen_T& Grenzen = {});

// Writes a text as RTF in ASCII, lines ended by CR LF. Rtf_Lesen gives the same text again, once
// Rtf_Normal has brought it into a form that a file can hold.
std::string Rtf_Schreiben(const Reich_Text_T& Text);

// The text as a file holds it: characters that are none and line ends within a paragraph replaced,
// control characters dropped, sizes and lengths drawn into their limits, equal neighbours joined,
// at least one paragraph.
Reich_Text_T Rtf_Normal(const Reich_Text_T& Text);

} // namespace varnholt
