// Reading and writing with a word to the user when it fails.
#pragma once

#include "core/platform.h"
#include "files/Textdatei.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// The bytes of a file; empty, after a notice of the reason, when it can't be read or is longer.
std::optional<std::string> Ganze_Datei_Lesen(const std::string& Name, std::uintmax_t Hoechstens);
// The first bytes of a file of any length; empty, after a notice, when it can't be read.
std::optional<Datei_Anfang_T> Dateianfang_Lesen(const std::string& Name, std::uintmax_t Hoechstens);

// Writes a file; false, after a notice of the reason, when it failed.
// sets: Datei_Fehler on a failure
bool Datei_Sichern(const std::string& Name, std::string_view Bytes);
// The same for the text of a control, in the encoding of Vorlage, or of a new file where Vorlage
// has no bytes; Vorlage then is the file as written.
bool Textdatei_Speichern(const std::string& Name, const Textfeld& Feld, Textdatei_T& Vorlage);
// Puts the text of a loaded file into a control. It is taken out of Datei.
void In_Textfeld_Geben(Textdatei_T& Datei, Textfeld& Feld);

} // namespace varnholt
