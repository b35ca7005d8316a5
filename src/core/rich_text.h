// A text with the look of its characters: what the notes and the help text are made of, whatever
// control shows them and whatever file keeps them (files/Rtf).
#pragma once

#include "core/platform.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// Look of characters. What is not set is the window's own.
struct Zeichen_Bild_T {
    std::string  Schrift{};         // family (UTF-8); empty: the window's
    int          Halbpunkte    = 0; // size in half points; 0: the window's
    std::int32_t Farbe         = 0; // blue byte first; 0: ordinary text
    bool         Fett          = false;
    bool         Kursiv        = false;
    bool         Unterstrichen = false;
    bool         operator==(const Zeichen_Bild_T&) const = default;
};

// Characters of one look. No line end is among them.
struct Text_Stueck_T {
    std::string    Text{}; // UTF-8
    Zeichen_Bild_T Bild{};
    bool           operator==(const Text_Stueck_T&) const = default;
};

enum class Bund { Links, Mitte, Rechts, Block };

// Look of a paragraph; lengths in twips (1440 to the inch).
struct Absatz_Bild_T {
    Bund Ausrichtung                            = Bund::Links;
    int  Einzug                                 = 0; // of all lines, from the left
    int  Erste_Zeile                            = 0; // of the first one, beside that
    int  Davor                                  = 0; // space above and below
    int  Danach                                 = 0;
    bool operator==(const Absatz_Bild_T&) const = default;
};

struct Absatz_T {
    std::vector<Text_Stueck_T> Stuecke{};
    Absatz_Bild_T              Bild{};
    bool                       operator==(const Absatz_T&) const = default;
};

// A text; its paragraphs are the lines of a text control. Without a paragraph it is empty, as it is
// with one that has no characters.
struct Reich_Text_T {
    std::vector<Absatz_T> Absaetze{};
    bool                  operator==(const Reich_Text_T&) const = default;
};

// Puts characters to the end of a paragraph; equal neighbours become one piece.
void Anfuegen(Absatz_T& Absatz, std::string_view Text, const Zeichen_Bild_T& Bild);

// The characters alone, paragraphs separated by CR LF.
std::string Reiner_Text(const Reich_Text_T& Text);
// Its colours as a text control has them: positions from its beginning, ascending.
std::vector<Farbstelle_T> Farben_Von(const Reich_Text_T& Text);
// A text (UTF-8, lines separated by CR LF) of which nothing is known but its colours.
Reich_Text_T Reich_Aus(std::string_view UTF8, std::span<const Farbstelle_T> Farben);

} // namespace varnholt
