// Windows-1252: the code page of all document text inside the logic, one byte a character.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// Upper case by the pairs of Windows-1252 (ä Ä, ÿ Ÿ, š Š, œ Œ, ž Ž; ß, the division and the
// multiplication sign have no partner).
char        Gross_Zeichen(char Zeichen);
std::string Gross(std::string_view Text);
// The same into a buffer that is used again; its old contents go.
void Gross_In(std::string_view Text, std::string& Ziel);
// Equal without regard to case.
bool Gleich_Ohne_Fall(std::string_view a, std::string_view b);
// Text begins with Anfang, which is in upper case, without regard to the text's case.
bool Beginnt_Ohne_Fall(std::string_view Text, std::string_view Anfang_Gross);

// Well-formed UTF-8 (no overlong forms, no surrogates, nothing above 10FFFFh).
bool Ist_UTF8(std::string_view Text);
// From UTF-8; a character outside Windows-1252 becomes `?`, and so does each byte of a malformed sequence.
std::string Aus_UTF8(std::string_view Text);
// To UTF-8; the five bytes without a character (81h, 8Dh, 8Fh, 90h, 9Dh) become the C1 controls
// of the same number, and come back by Aus_UTF8.
std::string Nach_UTF8(std::string_view Text);

} // namespace varnholt
