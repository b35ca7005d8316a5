// Every caption of the menu, the tool bar and the options in both languages.
#pragma once

#include <string_view>

namespace varnholt::test {

struct Beschriftung {
    const char* Name;
    const char* D;
    const char* E;
    const char* In(std::string_view s) const { return s == "D" ? D : E; }
};

// A button of the tool bar, by its number and by the name of its action behind "Toolbar_".
struct Werkzeug_Beschriftung {
    int         Nummer;
    const char* Name;
    const char* D;
    const char* E;
    const char* In(std::string_view s) const { return s == "D" ? D : E; }
};

// How a caption of the options is shown: on the button itself, as the title of a group, in a label
// beside the control; window and tab titles are others.
enum class Options_Art { Knopf, Gruppe, Schild, Andere };

// Name is that of the text, Feld that of the control which it belongs to.
struct Options_Beschriftung {
    const char* Name;
    const char* Feld;
    Options_Art Art;
    const char* D;
    const char* E;
    const char* In(std::string_view s) const { return s == "D" ? D : E; }
};

// clang-format off
inline constexpr Beschriftung Menue_Texte[] = {
    {"MNU_Datei", "Datei", "File"},
    {"MNU_Neu", "Neue Datei", "New"},
    {"MNU_Load", "Öffnen", "Open"},
    {"MNU_Load_Autosave", "Öffnen einer Autosave Datei", "Open Autosave File"},
    {"MNU_Importdata", "Daten importieren", "Data import"},
    {"MNU_Save", "Speichern", "Save"},
    {"MNU_SaveAs", "Speichern unter", "Save As"},
    {"MNU_vergleiche_hexdaten", "Vergleiche Hexdaten", "Compare Hexdata"},
    {"MNU_PrintDialog", "Drucken", "Print"},
    {"MNU_PrinterConfig", "Drucker einrichten", "Printer Setup"},
    {"MNU_Ende", "Beenden", "Exit"},
    {"MNU_Bearbeiten", "Bearbeiten", "Edit"},
    {"MNU_Ausschneiden", "Markiertes Auschneiden", "Cut marked"},
    {"MNU_Kopieren", "Markiertes Kopieren", "Copy marked"},
    {"MNU_Einfügen", "Markiertes Einfügen", "Paste marked"},
    {"MNU_Löschen", "Markiertes Löschen", "Delete marked"},
    {"MNU_Ber_Kopieren", "Bereich Kopieren", "Copy area"},
    {"MNU_Ber_setzen", "Bereich Setzen", "Set area"},
    {"MNU_Ber_entfernen", "Bereich Entfernen", "Remove area"},
    {"MNU_Adresse_direkt", "Adresse direkt anspringen", "Go to address"},
    {"MNU_ErsteAdresse", "Springe zum ersten Byte <> FFh", "Go to the first byte <> FFh"},
    {"MNU_LetzteAdresse", "Springe zum letzten Byte <> FFh", "Go to the last byte <> FFh"},
    {"MNU_Debugger_Stoppunkt", "Debugger Stoppunkt setzen", "Insert Debugger Stop Point"},
    {"MNU_Undo", "Rückgängig", "Undo"},
    {"MNU_Redo", "Wiederholen", "Redo"},
    {"MNU_Suche", "Suchen / Ersetzen", "Search / Replace"},
    {"MNU_IC_Lesen", "IC Lesen", "Read IC"},
    {"MNU_IC_Brennen", "IC Brennen", "Program IC"},
    {"MNU_IC_Löschen", "IC Löschen", "Erase IC"},
    {"MNU_IC_Prüfen", "IC Prüfen / Daten vergleichen", "Check IC / Compare data"},
    {"MNU_IC_Typ", "IC wählen", "Choose IC"},
    {"MNU_Tessel2_Hardware_Version", "Tessel2 programmer Hardware Version", "Tessel2 programmer Hardware Version"},
    {"MNU_Ansicht", "Ansicht", "View"},
    {"MNU_Bef", "MCS-51 Befehle", "MCS-51 instructions"},
    {"MNU_Basic", "Basic Befehle", "Basic instructions"},
    {"MNU_Not", "Notizen", "Notes"},
    {"MNU_Spr", "Sprungmarken", "Jumpmarks"},
    {"MNU_G_Einstellung", "Fenster Grundeinstellung", "Window standard apportionment"},
    {"MNU_deb_Vorbereitung", "Daten vorbereiten", "Prepare debugger data"},
    {"MNU_deb_Starten", "Starten", "Start execution"},
    {"MNU_deb_Einzelschritt", "Einzelschritt ausführen", "Single step execution"},
    {"MNU_deb_up", "Schritt nach oben (ohne auszuführen)", "Step upwards (without execution)"},
    {"MNU_deb_down", "Schritt nach unten (ohne auszuführen)", "Step downwards (without execution)"},
    {"MNU_deb_reset_adr", "Reset Programmadresse", "Reset program address"},
    {"MNU_deb_reset", "Reset RAM/SFR/EXRAM", "Reset RAM/SFR/EXRAM"},
    {"MNU_deb_beenden", "Debuggermodus beenden", "Quit debugger mode"},
    {"MNU_jump_cursor", "Springe zum Cursor", "Jump to cursor"},
    {"MNU_Optionen", "Optionen", "Options"},
    {"MNU_Help", "Hilfe", "Help"},
    {"MNU_Service", "Service", "Service"},
    {"MNU_S_Quelmark", "Quelmark Homepage", "Quelmark homepage"},
    {"MNU_S_Update", "Software Updates", "Software updates"},
    {"MNU_S_Forum", "Diskussionsforum", "Discussion board"},
    {"MNU_S_Mail", "E-Mail an Quelmark", "Email to Quelmark"},
    {"MNU_S_Bücher", "Buch-Schnellsuche", "Book-Quickfinder"},
    {"MNU_Deutsch", "Deutsch / German", "German / Deutsch"},
    {"MNU_Englisch", "Englisch / English", "English / Englisch"},
    {"MNU_IC", "Brenner", "Programmer"},
};

inline constexpr Werkzeug_Beschriftung Werkzeug_Texte[] = {
    {2, "Neu", "Neue Datei", "New"},
    {4, "Laden", "Datei Laden", "Load"},
    {5, "Speichern", "Speichern", "Save"},
    {7, "Drucken", "Drucken", "Print"},
    {9, "Ausschneiden", "Ausschneiden", "Cut"},
    {10, "Kopieren", "Kopieren", "Copy"},
    {11, "Einfügen", "Einfügen", "Paste"},
    {12, "Suchen", "Suchen/Ersetzen", "Search/Replace"},
    {14, "Undo", "Rückgängig", "Undo"},
    {15, "Redo", "Wiederholen", "Redo"},
    {17, "EPLesen", "IC Lesen", "Read IC"},
    {18, "EPBrennen", "IC Brennen", "Program IC"},
    {19, "EPPruefen", "IC Prüfen / Daten vergleichen", "Check IC / Compare data"},
    {21, "Umschalten", "Assemblieren", "Assemble"},
    {23, "Assemblieren", "Daten für den Debugger vorbereiten", "Prepare debugger data"},
    {24, "Starten", "Starten", "Start execution"},
    {25, "Einzelschritt", "Einzelschritt ausführen", "Single step execution"},
    {26, "Scroll_up", "Schritt nach oben (ohne auszuführen)", "Step upwards (without execution)"},
    {27, "Scroll_down", "Schritt nach unten (ohne auszuführen)", "Step downwards (without execution)"},
    {28, "Beenden", "Debuggermodus beenden", "Quit debugger mode"},
};

inline constexpr Options_Beschriftung Options_Texte[] = {
    {"Optionen", "Optionen", Options_Art::Andere, "Optionen", "Options"},
    {"SSTab_1", "SSTab_1", Options_Art::Andere, "Oberfläche", "Surface"},
    {"SSTab_2", "SSTab_2", Options_Art::Andere, "Programmiergerät", "Programmer"},
    {"B_OK", "B_OK", Options_Art::Knopf, "OK", "OK"},
    {"B_Üb", "B_Üb", Options_Art::Knopf, "Übernehmen", "Accept"},
    {"B_Ab", "B_Ab", Options_Art::Knopf, "Abbrechen", "Cancel"},
    {"T_Portadr", "T_Portadr", Options_Art::Schild, "Parallelport Adresse (Standart LPT1: 378h / LPT2: 278h)", "Parallelport address (standard LPT1: 378h / LPT2: 278h)"},
    {"Schrift_1", "Schrift_1", Options_Art::Schild, "Schrifteinstellung MC-Editor Fenster:", "Font settings MC-Editor window:"},
    {"Schrift_2", "Schrift_2", Options_Art::Schild, "Schrifteinstellung Sprungmarken Fenster:", "Font settings Jumpmarks:"},
    {"Schrift_3", "Schrift_3", Options_Art::Schild, "Schrifteinstellung Notizen Fenster:", "Font settings Notes window:"},
    {"C_Brenner", "C_Brenner", Options_Art::Knopf, "Programmiergerät vor dem Zugriff auf Funktion überprüfen", "Check programmer before access"},
    {"C_IC", "C_IC", Options_Art::Knopf, "Eingesetzten MC vor dem Zugriff überprüfen (Nur beim Tessel programmer)", "Check MC before access (only Tessel programmer)"},
    {"C_IC_vor_B", "C_IC_vor_B", Options_Art::Knopf, "Lese die Daten des IC vor dem Anzeigen des Brenndialogs", "Read IC data before the programming dialog opens"},
    {"C_IC_bei_B", "C_IC_bei_B", Options_Art::Knopf, "Überprüfe Daten des IC's während des Brennens", "Check the data on the IC during programming"},
    {"C_IC_nach_B", "C_IC_nach_B", Options_Art::Knopf, "Überprüfe Daten des IC's nach dem Brennen", "Check the data on the IC after programming"},
    {"No_FF", "No_FF", Options_Art::Knopf, "Beim Brennvorgang keine FF's brennen", "Program no 'FF' on IC"},
    {"Farbe_Text", "Farbe", Options_Art::Schild, "Hintergrundfarbe MC-Editor  Fenster und Zusatzfenster", "Set background color for mc-editor and additionally windows"},
    {"Farbe", "Farbe", Options_Art::Knopf, "Ändern", "Change"},
    {"Lade_Letzte", "Lade_Letzte", Options_Art::Knopf, "Lade beim Programmstart die zuletzt bearbeitete Datei automatisch ein", "Load at program-start automatically the last used file into the editor."},
    {"T_Undo_Max", "T_Undo_Max", Options_Art::Schild, "Schritte bei der 'Rückgängig' / 'Wiederholen' Funktion", "possibly steps at undo/redo function"},
    {"C_keine_TAB_SM", "C_keine_TAB_SM", Options_Art::Knopf, "Zeige keine Sprungmarken mit vorgestellten Tabs im SM-Fenster", "If there is a tab sign before a jump mark, don't display the jumpmark in the jumpmarks window"},
    {"C_keine_US_SM", "C_keine_US_SM", Options_Art::Knopf, "Zeige keine Sprungmarken mit vorgestellten Unterstrich '_' im SM-Fenster", "If there is a underline sign '_' before a jump mark, don't display the jumpmark in the jumpmarks window"},
    {"C_Erstelle_Listfile", "C_Erstelle_Listfile", Options_Art::Knopf, "Erstelle automatisch Listfile beim Assemblieren (dateiname.l51)", "When assembling routine finished, create and save a list file under filename.l51"},
    {"C_Auto_Binfile", "C_Auto_Binfile", Options_Art::Knopf, "Erstelle automatisch Binärfile beim Assemblieren (dateiname.bin)", "When assembling routine finished, save automatically a binary file under filename.bin"},
    {"C_Auto_Hexfile", "C_Auto_Hexfile", Options_Art::Knopf, "Erstelle automatisch Hexfile beim Assemblieren (dateiname.hex)", "When assembling routine finished, save automatically a hex file under filename.hex"},
    {"C_Autosave_Ass", "C_Autosave_Ass", Options_Art::Knopf, "AutoSave: Vor dem Assemblieren eine Kopie des Programmes speichern", "AutoSave: Bevor the assembler starts, save a copy of the program"},
    {"C_Autosave_timed", "C_Autosave_timed", Options_Art::Knopf, "AutoSave: Nach 6 Minuten Arbeit eine Kopie des Programmes speichern", "AutoSave: Save every 6 minutes a copy of the program"},
    {"O_Automatik_Bef", "O_Automatik_Bef", Options_Art::Gruppe, "Erkannte Befehle und Bezeichnungen im MC-Editor:", "Change text of identified instructions in the mc-editor:"},
    {"O_Automatik_Bef_1", "O_Automatik_Bef_1", Options_Art::Knopf, "Komplett grossschreiben 'MOV'", "All signs capitalized 'MOV'"},
    {"O_Automatik_Bef_2", "O_Automatik_Bef_2", Options_Art::Knopf, "Erster Buchstabe gross, Rest klein 'Mov'", "First sign capitalized, rest in lower case 'Mov'"},
    {"O_Automatik_Bef_3", "O_Automatik_Bef_3", Options_Art::Knopf, "So lassen, wie sie eingetippt werden 'mov'", "Don't change the text 'mov'"},
    {"Zahlendeutung", "Zahlendeutung", Options_Art::Gruppe, "Deute Zahlenangaben ohne Kennung als:", "Interpret values without additional trailing as:"},
    {"Zahlendeutung_1", "Zahlendeutung_1", Options_Art::Knopf, "Dezimalzahlen (standard)", "Decimal values (standard)"},
    {"Zahlendeutung_2", "Zahlendeutung_2", Options_Art::Knopf, "Hexadezimalzahlen", "Hexadecimal values"},
    {"O_MOV_ZQ", "O_MOV_ZQ", Options_Art::Gruppe, "Sondereinstellung für den Befehl MOV direct, direct:", "Special sequencing for 'MOV direct, direct:'"},
    {"O_MOV_ZQ_1", "O_MOV_ZQ_1", Options_Art::Knopf, "Erst Ziel, dann Quelle (MOV Ziel, Quelle) (standard)", " MOV destination, source (standard)"},
    {"O_MOV_ZQ_2", "O_MOV_ZQ_2", Options_Art::Knopf, "Erst Quelle, dann Ziel (MOV Quelle, Ziel)", " MOV source, destination"},
};
// clang-format on

} // namespace varnholt::test
