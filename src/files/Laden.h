// Loading: the one routine that brings a file into the workbench, and the question of an import.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// files/Laden.cpp
// Loads the file Dialog_Name into the image or into `Edit`, by its extension, and changes the mode
// to fit it. The outcome beside the messages is in Datei_Fehler. A file that can't be read changes
// nothing; one that isn't there changes Datei_Name only.
// reads: Dialog_Name, Modus, Import_Laeuft, Import_Adresse, Vergleich_Laeuft, Init_Laeuft
// sets: Hex_Daten or Edit, Notiz, Modus, Datei_Name, Dialog_Verzeichnis, Letzte_Datei,
// Text_Aktuell, Text_Veraendert, Datei_Geaendert, IC_Nummer, Datei_Fehler, the undo ring, menu
void Datei_Laden();
// True when the file Dialog_Name is there; a message tells that it isn't.   sets: Datei_Fehler
[[nodiscard]] bool Datei_Gefunden();

// files/Import.cpp
// The address that the user typed: hexadecimal with a trailing h or H, else decimal as far as it
// goes. Any number, -1 for hexadecimal text that is none; not yet held against the image.
std::int32_t Import_Adresse_Lesen(std::string_view Eingabe);
// Asks for the load address of an import; empty when nothing was typed or, after a message, when it
// is outside 0 to Hex_Groesse.
std::optional<std::int32_t> Import_Adresse_Erfragen();
// Loads the file Dialog_Name as an import at that address, 0 to Hex_Groesse.
// sets: as Datei_Laden; Import_Laeuft only meanwhile
void Datei_Importieren(std::int32_t Adresse);

} // namespace varnholt
