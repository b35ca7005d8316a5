// The state that all subsystems share: the code image and the current document.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

inline constexpr std::string_view CRLF         = "\r\n"; // line break of all generated text
inline constexpr std::int32_t     Bild_Groesse = 524288; // bytes of the image proper (512 KiB)

inline constexpr int Modus_Hex = 1; // Hex-Editor mode: the image is the document
inline constexpr int Modus_MC  = 2; // MC-Editor mode: the source text is the document

// The code image. It has no stored length: who needs the extent searches for bytes other than FFh.
inline struct Bild_T {
    // Erased state is FFh. Element 524288 exists because the upper bound equals Hex_Groesse; it
    // is filled and compared, but never shown or saved.
    std::array<std::uint8_t, Bild_Groesse + 1> Hex_Daten{};
    // Second image: what a device read, the backup during a compare with a file, a copied area.
    std::vector<std::uint8_t> Hex_Puffer{};
    std::int32_t              Hex_Groesse = Bild_Groesse; // image limit, always 524288
    std::int32_t              Hex_Zeiger  = 0;            // scratch address between two steps
} Bild;

inline constinit auto& Hex_Daten   = Bild.Hex_Daten;
inline constinit auto& Hex_Puffer  = Bild.Hex_Puffer;
inline constinit auto& Hex_Groesse = Bild.Hex_Groesse;
inline constinit auto& Hex_Zeiger  = Bild.Hex_Zeiger;

// The current document and the mode. Holds for the whole run.
inline struct Dokument_T {
    int                        Modus   = Modus_MC; // Modus_Hex or Modus_MC
    std::string                Sprache = "E";      // "D" or "E"; any other value silences messages
    std::string                Datei_Name{};       // full path (UTF-8), empty when there is none
    std::array<std::string, 3> Letzte_Datei{};     // recent files, newest first
    std::string                Start_Verzeichnis = "Erststart"; // where file dialogs open
    std::string  Programm_Pfad{};          // folder of the program's files, ends in a separator
    bool         Datei_Geaendert  = false; // unsaved changes
    bool         Text_Aktuell     = false; // source text and image are in step
    bool         Text_Veraendert  = false; // text changed since the last undo snapshot
    bool         Text_Sperre      = false; // the editor ignores its change events
    bool         Debugger_Aktiv   = false; // a debugger session is on
    bool         Init_Laeuft      = false; // start-up in progress
    bool         Vergleich_Laeuft = false; // a load runs only to compare
    bool         Import_Laeuft    = false; // a load runs as a data import ...
    std::int32_t Import_Adresse   = 0;     // ... at this address, 0 to 524288
    int          Aktives_Fenster  = 0;     // 1 Hexedit, 2 Edit, 5 Spr, 6 Notiz, 9 F_SIM_EXRAM
    int          Assembler_Fehler = 0;     // 1: the last assembly stopped with an error
    bool         Abbruch          = false; // cancel button of the status dialog
    int          Antwort          = 0;     // answer of the last message box
} Dokument;

inline constinit auto& Modus             = Dokument.Modus;
inline constinit auto& Sprache           = Dokument.Sprache;
inline constinit auto& Datei_Name        = Dokument.Datei_Name;
inline constinit auto& Quell_Pfad        = Dokument.Datei_Name; // the same path, seen as a source
inline constinit auto& Letzte_Datei      = Dokument.Letzte_Datei;
inline constinit auto& Start_Verzeichnis = Dokument.Start_Verzeichnis;
inline constinit auto& Programm_Pfad     = Dokument.Programm_Pfad;
inline constinit auto& Datei_Geaendert   = Dokument.Datei_Geaendert;
inline constinit auto& Text_Aktuell      = Dokument.Text_Aktuell;
inline constinit auto& Text_Veraendert   = Dokument.Text_Veraendert;
inline constinit auto& Text_Sperre       = Dokument.Text_Sperre;
inline constinit auto& Debugger_Aktiv    = Dokument.Debugger_Aktiv;
inline constinit auto& Init_Laeuft       = Dokument.Init_Laeuft;
inline constinit auto& Vergleich_Laeuft  = Dokument.Vergleich_Laeuft;
inline constinit auto& Import_Laeuft     = Dokument.Import_Laeuft;
inline constinit auto& Import_Adresse    = Dokument.Import_Adresse;
inline constinit auto& Aktives_Fenster   = Dokument.Aktives_Fenster;
inline constinit auto& Assembler_Fehler  = Dokument.Assembler_Fehler;
inline constinit auto& Abbruch           = Dokument.Abbruch;
inline constinit auto& Antwort           = Dokument.Antwort;

// Erases the image: every byte, element 524288 included, becomes FFh.
// sets: Hex_Daten, Hex_Groesse
void Bild_Loeschen();

// First address whose byte isn't FFh; 0 when the whole image is FFh.
std::int32_t Erstes_Byte();
// Last address below 524288 whose byte isn't FFh; -1 when the whole image is FFh.
std::int32_t Letztes_Byte();

// The state as at program start, with an erased image.
void Gemeinsames_Zuruecksetzen();

} // namespace varnholt
