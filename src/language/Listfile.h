// The list file: its rows during the emitting sweep, and its text.
#pragma once

#include "language/Assembler_Zustand.h"

#include <string>
#include <string_view>

namespace varnholt {

// Records the row in work before its text is looked at. All steps do nothing without
// C_Erstelle_Listfile. reads: Diese_Zeile()   sets: Listen_Zeilen
void Listen_Zeile_Aufnehmen();
// The kind of the row last recorded.
void Listen_Art_Setzen(Listen_Zeile::Art_T Art);
// The row last recorded emitted nothing although it is a code row.
void Listen_Ohne_Bytes();
// The row last recorded is a fixed address: its head, at the new address.
void Listen_Adresse_Fest(std::string Kopf);

// The whole list as text (Windows-1252, CR LF).   reads: Listen_Zeilen, Hex_Daten
std::string Listen_Text();
// Name of the list file: Listen_Name, else the source's path with the extension .L51, else
// TEMP.L51.
std::string Listen_Pfad();
// Writes the list file; a failure is told and noted.   sets: Listen_Zeilen, Datei_Fehler
void Listfile_Schreiben();

} // namespace varnholt
