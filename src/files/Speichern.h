// Saving the document, and comparing the image with a file.
#pragma once

#include <cstdint>
#include <optional>

namespace varnholt {

// files/Speichern.cpp
// Saves the document under Datei_Name: in MC-Editor mode the text of `Edit` in the encoding that it
// was loaded with, else the image in the format of the extension; and the notes. When anything
// can't be written the user gets a notice, the old file stands and the document stays changed.
// reads: Datei_Name, Modus, Hex_Daten or Edit, Notiz, Dialog_Name, Vergleich_Laeuft
// sets: Quell_Datei, Dialog_Verzeichnis, Letzte_Datei, Datei_Geaendert, Datei_Fehler
void Datei_Speichern();

// files/Vergleichen.cpp
// Compares the image with a file, which Laden brings into the image (by itself the file
// Dialog_Name) and which is taken out again, and shows the verdict. Nothing loaded compares the
// image with itself. The first address that differs, empty when none below 524288 does. A file that
// couldn't be read gets no verdict; Datei_Fehler is that of the load.
// reads: Dialog_Name, Hex_Daten   sets: Hex_Puffer, Datei_Fehler
std::optional<std::int32_t> Hexdaten_Vergleichen(void (*Laden)());
std::optional<std::int32_t> Hexdaten_Vergleichen();

} // namespace varnholt
