// Source texts as files: encoding and line ends are noted on loading and used again on saving, so
// that a file loaded and saved unchanged is the same to the byte.
#pragma once

#include "files/Dateizugriff.h"

#include <string>
#include <string_view>

namespace varnholt {

enum class Kodierung { Windows_1252, UTF8, UTF8_mit_BOM };
enum class Zeilenende { CR_LF, LF, CR };

// A loaded source text.
struct Textdatei_T {
    // Windows-1252, every line ended by CR LF as far as the file ends it. May be moved into the
    // editor: what is needed of it later is made again from the original bytes.
    std::string Text{};
    std::string Text_UTF8{}; // the same in UTF-8, only where Windows-1252 lacks a character of it
    std::string Original{};  // the bytes of the file as they were; empty for a new text
    // The text as the control gave it back that took it (UTF-8), where that isn't the file's: a
    // control may lack some characters.
    std::string Gezeigt{};
    Kodierung   Zeichensatz = Kodierung::UTF8;
    Zeilenende  Ende        = Zeilenende::CR_LF; // the one that most lines have
};

// The text of a file's bytes: UTF-8 with or without a byte order mark (pure ASCII is UTF-8),
// anything else Windows-1252. CR LF, LF and CR end a line, also mixed. In Text a character outside
// Windows-1252 is `?`.
Textdatei_T Text_Entschluesseln(std::string Bytes);
// The whole text in UTF-8, as long as the file's texts haven't been taken out.
std::string Ganzer_Text(const Textdatei_T& Datei);
// The bytes for Text (UTF-8, lines ended by CR LF): the original bytes for an unchanged text; lines
// that stand unchanged keep their original bytes. A Windows-1252 file becomes UTF-8 when Text holds
// another character. The bytes always read back as Text.
std::string Text_Verschluesseln(std::string_view Text, const Textdatei_T& Vorlage);
// The file that these bytes, written for Vorlage, have become. Encoding and line ends stay where
// the bytes don't show them, so that a later save uses them again.
Textdatei_T Gespeicherte_Textdatei(std::string Bytes, const Textdatei_T& Vorlage);

// How a new file is written: UTF-8 where the locale of that name (`de_DE.UTF-8`) is, else
// Windows-1252.
Kodierung Kodierung_Nach_Locale(std::string_view Locale);
// The template of a new file: the encoding of the user's locale (environment), lines end in CR LF.
Textdatei_T Neue_Textdatei();

// Text with every line ended by CR LF, whatever ended it before.
std::string Mit_CR_LF(std::string_view Text);

} // namespace varnholt
