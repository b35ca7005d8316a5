// The commands: routines without arguments that read the shared state and may run each other across
// the subsystems. Each block is named after the source file that holds it.
#pragma once

#include <string>

namespace varnholt {

// core/recent_files.cpp
// reads: Datei_Name   sets: Letzte_Datei, menu
void Letzte_Dateien();
// Shows the recent files as menu entries.   reads: Letzte_Datei   sets: menu
void Letzte_Dateien_Zeigen();
// Drops a first place whose file is gone, up to three times.   sets: Letzte_Datei
void Letzte_Dateien_Bereinigen();

// core/windows.cpp
// reads: Fenster_Tabelle, Modus, Init_Laeuft, Debugger_Aktiv   sets: menu, windows
void Fenster_Anordnen();
void Fenster_Sperren();
void Fenster_Freigeben();
void MNU_G_Einstellung_Click();
void MNU_Bef_Click();
void MNU_Basic_Click();
void MNU_Spr_Click();
void MNU_Not_Click();
void MNU_CONTROL_Click(); // the windows of the simulator: while a session is on
void MNU_RAM_Click();
void MNU_SFR_Click();
void MNU_EXRAM_Click();

// core/interface_texts.cpp
// Every caption of the main window and of the windows that stay open.   sets: Sprache, menu, ...
void Sprache_Deutsch();
void Sprache_Englisch();

// core/startup.cpp, first_start.cpp, shutdown.cpp
void Init();
void Erststart_Command1_Click(); // reads: Erststart_Englisch
void Abfrage_Modus_Button_Mode_1_Click();
void Abfrage_Modus_Button_Mode_2_Click();
void MNU_Ende_Click();
// The close query of the main window; true: the program may go (and everything is written).
bool Ende_Erfragen();

// core/mode_change.cpp
void Ansicht_umschalten();
void MNU_MC_Click();
void MNU_Hex_Click();
// Brings Modus to that mode and shows its window, without assembling or disassembling.
void In_Modus_Wechseln(int Neuer);

// core/session.cpp: ends a debugger session; what belongs to one is disabled. The other commands of
// a session stand in simulator/Sitzung.h.
void Debug_Beenden();

// core/undo.cpp
void MNU_Undo_Click();
void MNU_Redo_Click();

// core/clipboard.cpp: routed by Aktives_Fenster.
void MNU_Ausschneiden_Click();
void MNU_Kopieren_Click();
void MNU_Einfügen_Click();
void MNU_Löschen_Click();

// core/web.cpp
void CallWebSite(const std::string& url);
void MNU_S_Quelmark_Click();
void MNU_S_Update_Click();
void MNU_S_Forum_Click();
void MNU_S_Bücher_Click();
void MNU_S_Mail_Click();
void MNU_Help_Click();
void MNU_Info_Click();

// core/options.cpp
void MNU_Optionen_Click();

// language/Hex_zu_Ass.cpp
// Puts the image as source text into Edit; false when the user gave up.
// reads: Hex_Daten   sets: Edit, Text_Aktuell
bool Disassemblieren();

// language/Ass_zu_Hex.cpp
// reads: Edit, Debugger_Aktiv, options   sets: Hex_Daten, Quell_Zeilen, Namen_Tabelle, Code_Ende,
// and Text_Aktuell or Assembler_Fehler
void Assemblieren();

// files/Laden.cpp and files/Speichern.cpp
// reads: Dialog_Name, Modus, Import_*, Vergleich_Laeuft   sets: Hex_Daten or Edit, Datei_Name, ...
void Datei_Laden();
// reads: Datei_Name, Modus, Hex_Daten or Edit   sets: Letzte_Datei, Datei_Geaendert
void Datei_Speichern();

// files/Dateikommandos.cpp
void MNU_Neu_Click();
void MNU_Load_Click();
void MNU_Load_Autosave_Click();
void MNU_Importdata_Click();
void MNU_Save_Click();
void MNU_SaveAs_Click();
void MNU_vergleiche_hexdaten_Click();
void MNU_Datei1_Click();
void MNU_Datei2_Click();
void MNU_Datei3_Click();

// editors/Hexanzeige.cpp and editors/Hexspruenge.cpp
// Builds the hex page from the image.   reads: Hex_Daten, Init_Laeuft   sets: Hexedit, Ansichten
void Hex_Anzeige();
void MNU_Adresse_direkt_Click();
void MNU_ErsteAdresse_Click();
void MNU_LetzteAdresse_Click();

// editors/Einfaerben.cpp and editors/Sprungmarken.cpp
// reads: Edit   sets: the colours of Edit
void Edit_Einfaerben();
// reads: Edit, C_keine_TAB_SM, C_keine_US_SM   sets: Sprungmarken
void Sprungmarken_Fuellen();

// editors/Suche.cpp and editors/HexSuche.cpp: routed by Modus.
void MNU_Suche_Click();
void MNU_Weitersuchen_Click();

// editors/Bereiche.cpp
void MNU_Ber_Kopieren_Click();
void MNU_Ber_setzen_Click();
void MNU_Ber_entfernen_Click();

// files/Drucken.cpp
void MNU_PrinterConfig_Click();
void MNU_PrintDialog_Click();

// programmer: the commands of the menu MNU_IC
void MNU_IC_Lesen_Click();
void MNU_IC_Brennen_Click();
void MNU_IC_Löschen_Click();
void MNU_IC_Prüfen_Click();
void MNU_IC_LockBits_Click();
void MNU_TimeKeeper_ReadTime_Click();
void MNU_TimeKeeper_WriteTime_Click();
void MNU_TimeKeeper_Start_Click();
void MNU_TimeKeeper_Stop_Click();
void MNU_Hardware_Version_Click();
void MNU_Tessel2_Hardware_Version_Click();
void MNU_Eprommer_Test_Click();
void MNU_Tessel2_Test_Click();
void MNU_EEprommer_Click(); // the simulated board
void MNU_Typ_Check();

// programmer/Geraetewahl.cpp
// Drops the device selection.   sets: IC_Nummer, menu
void IC_Typ_Löschen();

} // namespace varnholt
