// The commands: routines without arguments that read the shared state and may run each other across
// the subsystems. Each block is named after the source file that holds it.
#pragma once

namespace varnholt {

// core/recent_files.cpp
// reads: Datei_Name   sets: Letzte_Datei
void Letzte_Dateien();

// core/views.cpp: redraw requests; counters that the windows compare.
void Hex_Anzeige();
void Fenster_Anordnen();
void Fenster_Sperren();
void Fenster_Freigeben();

// language/Ass_zu_Hex.cpp
// reads: Edit, Debugger_Aktiv, options   sets: Hex_Daten, Quell_Zeilen, Namen_Tabelle, Code_Ende,
// and Text_Aktuell or Assembler_Fehler
void Assemblieren();

// files/Laden.cpp and files/Speichern.cpp
// reads: Dialog_Name, Modus, Import_*, Vergleich_Laeuft   sets: Hex_Daten or Edit, Datei_Name, ...
void Datei_Laden();
// reads: Datei_Name, Modus, Hex_Daten or Edit   sets: Letzte_Datei, Datei_Geaendert
void Datei_Speichern();

// programmer/Geraetewahl.cpp
// Drops the device selection.   sets: IC_Nummer
void IC_Typ_Löschen();

} // namespace varnholt
