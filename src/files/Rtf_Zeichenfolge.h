// Puts characters together out of what RTF writes them as: bytes of a code page, UTF-8 bytes,
// halves of a surrogate pair.
#pragma once

#include "files/Rtf_Zeichensatz.h"

#include <string>

namespace varnholt {

inline constexpr char32_t Kein_Zeichen_Da = 0xFFFD; // stands for what can't be read

// Appends a character as UTF-8; FFFDh for one that is none.
void UTF8_Anfuegen(std::string& Ziel, char32_t Zeichen);

class Rtf_Zeichenfolge {
public:
    explicit Rtf_Zeichenfolge(std::string& Wohin) : Ziel(Wohin) {}

    // One byte of a text in that code page; with two-byte characters the first one waits.
    void Byte(int Codeseite, char Neues);
    // A unit of UTF-16, as \u gives it, or a whole character.
    void Einheit(char32_t Neue);
    // Nothing more belongs to what waits.
    void Schliessen();

private:
    void UTF8_Byte(char Neues);

    std::string& Ziel;
    char32_t     Hohe_Haelfte = 0; // of a surrogate pair
    bool         Halbes       = false;
    std::string  Folge{}; // UTF-8 bytes of a character in work
};

} // namespace varnholt
