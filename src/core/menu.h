// The menu and the tool bar of the main window: one table each, and the state of every entry. The
// windows build the real ones from the tables and follow the state; what an entry runs stands in
// menu_commands.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

// One entry, in the order of the menu. An empty Eltern is the menu bar.
struct Menue_Eintrag_T {
    std::string_view Name{};
    std::string_view Eltern{};
    std::string_view D{}; // captions; empty for a separator and for entries that get theirs at run
    std::string_view E{}; // time
    std::string_view Kuerzel{}; // in Qt's notation: "Ctrl+N"
    constexpr bool   Trennlinie() const { return Name.starts_with("MNU_Leer"); }
};

// clang-format off
inline constexpr auto Menue_Tabelle = std::to_array<Menue_Eintrag_T>({
    {"MNU_Datei",                 "",               "Datei",                           "File",                          ""},
    {"MNU_Neu",                   "MNU_Datei",      "Neue Datei",                      "New",                           "Ctrl+N"},
    {"MNU_Load",                  "MNU_Datei",      "Öffnen",                          "Open",                          "Ctrl+L"},
    {"MNU_Load_Autosave",         "MNU_Datei",      "Öffnen einer Autosave Datei",     "Open Autosave File",            ""},
    {"MNU_Importdata",            "MNU_Datei",      "Daten importieren",               "Data import",                   ""},
    {"MNU_Leer1",                 "MNU_Datei",      "", "", ""},
    {"MNU_Save",                  "MNU_Datei",      "Speichern",                       "Save",                          "Ctrl+S"},
    {"MNU_SaveAs",                "MNU_Datei",      "Speichern unter",                 "Save As",                       ""},
    {"MNU_Leer2",                 "MNU_Datei",      "", "", ""},
    {"MNU_vergleiche_hexdaten",   "MNU_Datei",      "Vergleiche Hexdaten",             "Compare Hexdata",               ""},
    {"MNU_Leer4",                 "MNU_Datei",      "", "", ""},
    {"MNU_PrinterConfig",         "MNU_Datei",      "Drucker einrichten",              "Printer Setup",                 ""},
    {"MNU_PrintDialog",           "MNU_Datei",      "Drucken",                         "Print",                         "Ctrl+P"},
    {"MNU_Leer3",                 "MNU_Datei",      "", "", ""},
    {"MNU_Datei1",                "MNU_Datei",      "", "", ""},
    {"MNU_Datei2",                "MNU_Datei",      "", "", ""},
    {"MNU_Datei3",                "MNU_Datei",      "", "", ""},
    {"MNU_Leer5",                 "MNU_Datei",      "", "", ""},
    {"MNU_Ende",                  "MNU_Datei",      "Beenden",                         "Exit",                          "Ctrl+Q"},

    {"MNU_Bearbeiten",            "",               "Bearbeiten",                      "Edit",                          ""},
    {"MNU_Undo",                  "MNU_Bearbeiten", "Rückgängig",                      "Undo",                          "Ctrl+Z"},
    {"MNU_Redo",                  "MNU_Bearbeiten", "Wiederholen",                     "Redo",                          "Ctrl+Y"},
    {"MNU_Leer6",                 "MNU_Bearbeiten", "", "", ""},
    {"MNU_Ausschneiden",          "MNU_Bearbeiten", "Markiertes Auschneiden",          "Cut marked",                    "Ctrl+X"},
    {"MNU_Kopieren",              "MNU_Bearbeiten", "Markiertes Kopieren",             "Copy marked",                   "Ctrl+C"},
    {"MNU_Einfügen",              "MNU_Bearbeiten", "Markiertes Einfügen",             "Paste marked",                  "Ctrl+V"},
    {"MNU_Löschen",               "MNU_Bearbeiten", "Markiertes Löschen",              "Delete marked",                 "Del"},
    {"MNU_Leer79",                "MNU_Bearbeiten", "", "", ""},
    {"MNU_Ber_Kopieren",          "MNU_Bearbeiten", "Bereich Kopieren",                "Copy area",                     ""},
    {"MNU_Ber_setzen",            "MNU_Bearbeiten", "Bereich Setzen",                  "Set area",                      ""},
    {"MNU_Ber_entfernen",         "MNU_Bearbeiten", "Bereich Entfernen",               "Remove area",                   ""},
    {"MNU_Leer81",                "MNU_Bearbeiten", "", "", ""},
    {"MNU_Adresse_direkt",        "MNU_Bearbeiten", "Adresse direkt anspringen",       "Go to address",                 "Ctrl+D"},
    {"MNU_ErsteAdresse",          "MNU_Bearbeiten", "Springe zum ersten Byte <> FFh",  "Go to the first byte <> FFh",   ""},
    {"MNU_LetzteAdresse",         "MNU_Bearbeiten", "Springe zum letzten Byte <> FFh", "Go to the last byte <> FFh",    ""},
    {"MNU_Leer7",                 "MNU_Bearbeiten", "", "", ""},
    {"MNU_Suche",                 "MNU_Bearbeiten", "Suchen / Ersetzen",               "Search / Replace",              "Ctrl+F"},
    {"MNU_Weitersuchen",          "MNU_Bearbeiten", "Weitersuchen",                    "Find next",                     "F3"},
    {"MNU_Leer8",                 "MNU_Bearbeiten", "", "", ""},
    {"MNU_Debugger_Stoppunkt",    "MNU_Bearbeiten", "Debugger Stoppunkt setzen",       "Insert Debugger Stop Point",    ""},
    {"MNU_Leer9",                 "MNU_Bearbeiten", "", "", ""},
    {"MNU_Optionen",              "MNU_Bearbeiten", "Optionen",                        "Options",                       ""},

    {"MNU_IC",                    "",               "Brenner",                         "Programmer",                    ""},
    {"MNU_IC_Lesen",              "MNU_IC",         "IC Lesen",                        "Read IC",                       "Ctrl+R"},
    {"MNU_IC_Brennen",            "MNU_IC",         "IC Brennen",                      "Program IC",                    "Ctrl+B"},
    {"MNU_IC_Löschen",            "MNU_IC",         "IC Löschen",                      "Erase IC",                      "Ctrl+E"},
    {"MNU_IC_Prüfen",             "MNU_IC",         "IC Prüfen / Daten vergleichen",   "Check IC / Compare data",       "Ctrl+I"},
    {"MNU_IC_LockBits",           "MNU_IC",         "Lockbits setzen",                 "Set lock bits",                 "Ctrl+G"},
    {"MNU_TimeKeeper_Special",    "MNU_IC",         "TimeKeeper Spezial",              "TimeKeeper special",            ""},
    {"MNU_TimeKeeper_ReadTime",   "MNU_TimeKeeper_Special", "Uhrzeit lesen",           "Read time",                     ""},
    {"MNU_TimeKeeper_WriteTime",  "MNU_TimeKeeper_Special", "Uhrzeit setzen",          "Set time",                      ""},
    {"MNU_TimeKeeper_Start",      "MNU_TimeKeeper_Special", "Uhr starten",             "Start clock",                   ""},
    {"MNU_TimeKeeper_Stop",       "MNU_TimeKeeper_Special", "Uhr anhalten",            "Stop clock",                    ""},
    {"MNU_Leer10",                "MNU_IC",         "", "", ""},
    {"MNU_IC_Typ",                "MNU_IC",         "IC wählen",                       "Choose IC",                     ""},
    {"MNU_Leer11",                "MNU_IC",         "", "", ""},
    {"MNU_Hardware_Version",      "MNU_IC",         "Eprommer Hardware Version",       "Eprommer Hardware Version",     ""},
    {"MNU_Tessel2_Hardware_Version", "MNU_IC",      "Tessel2 programmer Hardware Version", "Tessel2 programmer Hardware Version", ""},

    {"MNU_Ansicht",               "",               "Ansicht",                         "View",                          ""},
    {"MNU_MC",                    "MNU_Ansicht",    "MC-Editor",                       "MC-Editor",                     "Shift+F1"},
    {"MNU_Hex",                   "MNU_Ansicht",    "Hex-Editor",                      "Hex-Editor",                    "Shift+F2"},
    {"MNU_Leer12",                "MNU_Ansicht",    "", "", ""},
    {"MNU_Bef",                   "MNU_Ansicht",    "MCS-51 Befehle",                  "MCS-51 instructions",           "Shift+F3"},
    {"MNU_Basic",                 "MNU_Ansicht",    "Basic Befehle",                   "Basic instructions",            "Shift+F4"},
    {"MNU_Spr",                   "MNU_Ansicht",    "Sprungmarken",                    "Jumpmarks",                     "Shift+F5"},
    {"MNU_Not",                   "MNU_Ansicht",    "Notizen",                         "Notes",                         "Shift+F6"},
    {"MNU_CONTROL",               "MNU_Ansicht",    "Debugger: CONTROL",               "Debugger: CONTROL",             "Shift+F7"},
    {"MNU_RAM",                   "MNU_Ansicht",    "Debugger: RAM",                   "Debugger: RAM",                 "Shift+F8"},
    {"MNU_SFR",                   "MNU_Ansicht",    "Debugger: SFR",                   "Debugger: SFR",                 "Shift+F9"},
    {"MNU_EXRAM",                 "MNU_Ansicht",    "Debugger: EXRAM",                 "Debugger: EXRAM",               "Shift+F11"},
    {"MNU_Leer13",                "MNU_Ansicht",    "", "", ""},
    {"MNU_G_Einstellung",         "MNU_Ansicht",    "Fenster Grundeinstellung",        "Window standard apportionment", ""},

    {"MNU_Debugger",              "",               "Debugger",                        "Debugger",                      ""},
    {"MNU_deb_Vorbereitung",      "MNU_Debugger",   "Daten vorbereiten",               "Prepare debugger data",         "F4"},
    {"MNU_Leer14",                "MNU_Debugger",   "", "", ""},
    {"MNU_deb_Starten",           "MNU_Debugger",   "Starten",                         "Start execution",               "F5"},
    {"MNU_deb_up",                "MNU_Debugger",   "Schritt nach oben (ohne auszuführen)",  "Step upwards (without execution)",   "F6"},
    {"MNU_deb_down",              "MNU_Debugger",   "Schritt nach unten (ohne auszuführen)", "Step downwards (without execution)", "F7"},
    {"MNU_deb_Einzelschritt",     "MNU_Debugger",   "Einzelschritt ausführen",         "Single step execution",         "F8"},
    {"MNU_jump_cursor",           "MNU_Debugger",   "Springe zum Cursor",              "Jump to cursor",                "F9"},
    {"MNU_Leer15",                "MNU_Debugger",   "", "", ""},
    {"MNU_deb_reset_adr",         "MNU_Debugger",   "Reset Programmadresse",           "Reset program address",         "F11"},
    {"MNU_deb_reset",             "MNU_Debugger",   "Reset RAM/SFR/EXRAM",             "Reset RAM/SFR/EXRAM",           "F12"},
    {"MNU_Leer16",                "MNU_Debugger",   "", "", ""},
    {"MNU_deb_beenden",           "MNU_Debugger",   "Debuggermodus beenden",           "Quit debugger mode",            ""},

    {"MNU_Service",               "",               "Service",                         "Service",                       ""},
    {"MNU_S_Quelmark",            "MNU_Service",    "Quelmark Homepage",               "Quelmark homepage",             ""},
    {"MNU_S_Update",              "MNU_Service",    "Software Updates",                "Software updates",              ""},
    {"MNU_S_Forum",               "MNU_Service",    "Diskussionsforum",                "Discussion board",              ""},
    {"MNU_S_Mail",                "MNU_Service",    "E-Mail an Quelmark",              "Email to Quelmark",             ""},
    {"MNU_Leer17",                "MNU_Service",    "", "", ""},
    {"MNU_S_Bücher",              "MNU_Service",    "Buch-Schnellsuche",               "Book-Quickfinder",              ""},
    {"MNU_HW_TEST",               "MNU_Service",    "Hardware Test",                   "Hardware test",                 ""},
    {"MNU_Eprommer_Test",         "MNU_HW_TEST",    "Eprommer",                        "Eprommer",                      ""},
    {"MNU_Tessel2_Test",          "MNU_HW_TEST",    "Tessel2 programmer",              "Tessel2 programmer",            ""},
    {"MNU_Q",                     "MNU_Service",    "Sprache / Language",              "Language / Sprache",            ""},
    {"MNU_Deutsch",               "MNU_Q",          "Deutsch / German",                "German / Deutsch",              ""},
    {"MNU_Englisch",              "MNU_Q",          "Englisch / English",              "English / Englisch",            ""},
    {"MNU_Leer18",                "MNU_Service",    "", "", ""},
    {"MNU_EEprommer",             "MNU_Service",    "Eprommer",                        "Eprommer",                      ""},
    {"MNU_Leer19",                "MNU_Service",    "", "", ""},
    {"MNU_Info",                  "MNU_Service",    "Info",                            "About",                         ""},

    {"MNU_Help",                  "",               "Hilfe",                           "Help",                          "F1"},
});

// One button of the tool bar. Positions that stand in no row are gaps.
struct Werkzeug_Eintrag_T {
    int              Position = 0; // 1 to 28
    std::string_view Schluessel{}; // what a click dispatches on
    std::string_view Menue{};      // the menu entry that it runs; empty: Ansicht_umschalten
    std::string_view D{};          // tooltips
    std::string_view E{};
};

inline constexpr int Werkzeug_Umschalten = 21;
inline constexpr int Werkzeug_Starten    = 24;
inline constexpr int Werkzeug_Plaetze    = 28;

inline constexpr auto Werkzeug_Tabelle = std::to_array<Werkzeug_Eintrag_T>({
    { 2, "Neu",           "MNU_Neu",               "Neue Datei",                            "New"},
    { 4, "Laden",         "MNU_Load",              "Datei Laden",                           "Load"},
    { 5, "Speichern",     "MNU_Save",              "Speichern",                             "Save"},
    { 7, "Drucken",       "MNU_PrintDialog",       "Drucken",                               "Print"},
    { 9, "Ausschneiden",  "MNU_Ausschneiden",      "Ausschneiden",                          "Cut"},
    {10, "Kopieren",      "MNU_Kopieren",          "Kopieren",                              "Copy"},
    {11, "Einfügen",      "MNU_Einfügen",          "Einfügen",                              "Paste"},
    {12, "Suchen",        "MNU_Suche",             "Suchen/Ersetzen",                       "Search/Replace"},
    {14, "Undo",          "MNU_Undo",              "Rückgängig",                            "Undo"},
    {15, "Redo",          "MNU_Redo",              "Wiederholen",                           "Redo"},
    {17, "EPLesen",       "MNU_IC_Lesen",          "IC Lesen",                              "Read IC"},
    {18, "EPBrennen",     "MNU_IC_Brennen",        "IC Brennen",                            "Program IC"},
    {19, "EPPruefen",     "MNU_IC_Prüfen",         "IC Prüfen / Daten vergleichen",         "Check IC / Compare data"},
    {21, "Umschalten",    "",                      "Assemblieren",                          "Assemble"},
    {23, "Assemblieren",  "MNU_deb_Vorbereitung",  "Daten für den Debugger vorbereiten",    "Prepare debugger data"},
    {24, "Starten",       "MNU_deb_Starten",       "Starten",                               "Start execution"},
    {25, "Einzelschritt", "MNU_deb_Einzelschritt", "Einzelschritt ausführen",               "Single step execution"},
    {26, "Scroll_up",     "MNU_deb_up",            "Schritt nach oben (ohne auszuführen)",  "Step upwards (without execution)"},
    {27, "Scroll_down",   "MNU_deb_down",          "Schritt nach unten (ohne auszuführen)", "Step downwards (without execution)"},
    {28, "Beenden",       "MNU_deb_beenden",       "Debuggermodus beenden",                 "Quit debugger mode"},
});
// clang-format on

inline constexpr std::size_t Menue_Anzahl = Menue_Tabelle.size();

// Place of an entry in the table; Menue_Anzahl when there is none of that name.
constexpr std::size_t Menue_Platz(std::string_view Name)
{
    const auto* p = std::find_if(Menue_Tabelle.begin(),
                                 Menue_Tabelle.end(),
                                 [&](const Menue_Eintrag_T& e) { return e.Name == Name; });
    return static_cast<std::size_t>(p - Menue_Tabelle.begin());
}

// The name of an entry, checked when the program is compiled.
struct Menue_Name {
    std::size_t Platz;
    consteval Menue_Name(const char* Name) : Platz(Menue_Platz(Name))
    {
        if (Platz == Menue_Anzahl)
            throw "no such menu entry"; // ends the compilation
    }
};

struct Menue_Zustand_T {
    std::string Titel{}; // caption (UTF-8)
    bool        Aktiv                                    = true;
    bool        Sichtbar                                 = true;
    bool        Haken                                    = false;
    bool        operator==(const Menue_Zustand_T&) const = default;
};

struct Werkzeug_Zustand_T {
    std::string Hinweis{}; // tooltip (UTF-8)
    bool        Aktiv                                       = true;
    bool        operator==(const Werkzeug_Zustand_T&) const = default;
};

// State of menu and tool bar. Holds for the whole run; written by the commands.
inline struct Menues_T {
    std::array<Menue_Zustand_T, Menue_Anzahl>            Eintraege{};
    std::array<Werkzeug_Zustand_T, Werkzeug_Plaetze + 1> Knoepfe{}; // by position; 0 is unused
} Menues;

inline Menue_Zustand_T&    Menue(Menue_Name Name) { return Menues.Eintraege[Name.Platz]; }
inline Werkzeug_Zustand_T& Werkzeug(int Position)
{
    return Menues.Knoepfe[static_cast<std::size_t>(Position)];
}

// --- menu_commands.cpp ---

// True when a click on the entry runs a command or opens a menu; a separator has neither.
bool Menue_Hat_Befehl(std::size_t Platz);
// Whether a click on it does something: it is enabled and has a command.
bool Menue_Bereit(std::size_t Platz);
bool Werkzeug_Bereit(int Position);
// What a click or a shortcut does; nothing for an entry that isn't ready or isn't visible.
void Menue_Ausfuehren(std::size_t Platz);
// The click handler of the tool bar, by key; an unknown key does nothing.
void Werkzeug_Ausfuehren(std::string_view Schluessel);
// Whether that may happen while the debugger runs a program; else it waits for the end of the run.
bool Menue_Im_Lauf(std::size_t Platz);
bool Werkzeug_Im_Lauf(std::string_view Schluessel);

} // namespace varnholt
