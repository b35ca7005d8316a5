// Cuts the bytes of an RTF file into its marks: braces, control words, control symbols, characters.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

struct Rtf_Marke_T {
    enum Art_T {
        Ende,
        Gruppe_Auf,
        Gruppe_Zu,
        Text,   // characters as they stand, in Inhalt
        Byte,   // one byte written as \'hh, in Zeichen
        Wort,   // a control word without its backslash in Inhalt, its number in Zahl
        Symbol, // a backslash and one character that is no letter, in Zeichen
    } Art = Ende;
    std::string_view Inhalt{};
    char             Zeichen  = 0;
    std::int32_t     Zahl     = 0;
    bool             Mit_Zahl = false;
};

class Rtf_Zerleger {
public:
    explicit Rtf_Zerleger(std::string_view Alle_Bytes) : Bytes(Alle_Bytes) {}
    Rtf_Marke_T Naechste();

private:
    Rtf_Marke_T Mit_Backslash();
    Rtf_Marke_T Wort();
    Rtf_Marke_T Hexadezimal();
    bool        Zahl_Lesen(std::int32_t& Zahl);

    std::string_view Bytes;
    std::size_t      Ort = 0;
};

} // namespace varnholt
