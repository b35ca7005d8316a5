// The code pages of RTF files, byte by byte.
#pragma once

namespace varnholt {

inline constexpr int Codeseite_1252 = 1252;
inline constexpr int Codeseite_UTF8 = 65001;

// The character of a byte in that code page; FFFDh where the page has none, or isn't known.
char32_t Zeichen_Aus_Codeseite(int Nummer, char Byte);
// The code page of a font by its number behind \fcharset; Sonst for a number that isn't known.
int Codeseite_Des_Schriftsatzes(int Kennzahl, int Sonst);
// Whether the byte begins a character of two bytes: in the East Asian code pages, whose characters
// aren't known here; the two become one FFFDh.
bool Doppelbyte_Anfang(int Nummer, char Byte);

} // namespace varnholt
