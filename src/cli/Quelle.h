// What several commands do with files: load a source and assemble it, load and save images.
#pragma once

#include <cstdint>
#include <string>

namespace varnholt {

// Loads a source text (`-` is standard input) into `Edit`; the result is a Status_T value.
int Quelle_Laden(const std::string& Name);
// Assembles it. On an error prints `Name:LINE: error: TEXT` and answers false.
[[nodiscard]] bool Quelle_Assemblieren(const std::string& Name, bool Debug);
// Assembles it as the debugger does, with the rows that its line search needs; the errors likewise.
// A program without a processor file gets its message.
[[nodiscard]] bool Quelle_Vorbereiten(const std::string& Name);
// Loads an image by its extension as in Hex-Editor mode; the result is a Status_T value.
int Bild_Laden_Von(const std::string& Name);
// The same as an import at that address, over what is there.
int Bild_Importieren_Von(const std::string& Name, std::int32_t Adresse);
// An image is not saved over a source: Status_Falsch, with the error, for a name with a source
// extension.
int Bildname_Pruefen(const std::string& Name);
// Saves the image in the format of the name's extension; the result is a Status_T value.
int Bild_Speichern_Unter(const std::string& Name);
// The file is a source where an image is loaded (.asm, .a51).
bool Ist_Quelle(const std::string& Name);
// The name has a source extension (.asm, .a51, .txt).
bool Hat_Quell_Endung(const std::string& Name);

} // namespace varnholt
