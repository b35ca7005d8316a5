// A piece of the source text. The texts themselves are kept once, whole, by the assembler's state;
// a row only points into them, and its piece can be shortened and rewritten in place.
#pragma once

#include "core/codepage.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

class Quell_Stueck {
public:
    Quell_Stueck() = default;
    Quell_Stueck(char* Anfang, std::size_t Laenge) : Zeichen(Anfang), Anzahl(Laenge) {}

    std::string_view Ansicht() const { return {Zeichen, Anzahl}; }
    operator std::string_view() const { return Ansicht(); } // read like any other text

    std::size_t size() const { return Anzahl; }
    bool        empty() const { return Anzahl == 0; }
    char&       operator[](std::size_t i) const { return Zeichen[i]; }

    void Leeren() { Anzahl = 0; }
    void Kuerzen_Auf(std::size_t Laenge) { Anzahl = std::min(Anzahl, Laenge); }
    void Vorn_Abnehmen(std::size_t n)
    {
        Zeichen += std::min(n, Anzahl);
        Anzahl -= std::min(n, Anzahl);
    }
    // The first n characters as a piece of their own.
    Quell_Stueck Vorderes(std::size_t n) const { return {Zeichen, std::min(n, Anzahl)}; }

private:
    char*       Zeichen = nullptr;
    std::size_t Anzahl  = 0;
};

// Upper case in place.
inline void Gross_Am_Ort(Quell_Stueck Text)
{
    for (std::size_t i = 0; i < Text.size(); ++i)
        Text[i] = Gross_Zeichen(Text[i]);
}

} // namespace varnholt
