// The state of the data files: what the file dialog holds, how the loaded texts were written, and
// how the last load or save ended. Owner: files/; the programs read it to choose an exit status.
#pragma once

#include "core/rich_text.h"
#include "files/Textdatei.h"

#include <cstdint>
#include <string>

namespace varnholt {

// Outcome of the last load or save, beside the message that the user saw.
enum class Dateifehler {
    Keiner,
    Nicht_Gefunden,  // no such file
    Lesefehler,      // the file is there but can't be read, or is too large
    Schreibfehler,   // not written, or its notes were not; the old file stands
    Abgelehnt,       // the format can't hold the image, or a source stood against the image
    Teilladen_Offen, // the question which half of a long file to load was not answered
};

// The file behind the notes.
struct Notizdatei_T {
    std::string  RTF{};     // its bytes, where they are rich text
    Reich_Text_T Gezeigt{}; // the notes as the control gave them back that took the file
    std::string  Zu_Lang{}; // name of a file that couldn't be read to its end: it stays as it is
};

inline struct Dateien_T {
    std::string   Dialog_Name{}; // the file dialog's FileName (UTF-8); what Datei_Laden loads
    std::string   Dialog_Verzeichnis{}; // the file dialog's initial directory (UTF-8)
    int           Dialog_Filter = 1;    // the file dialog's filter index, from 1
    Textdatei_T   Quell_Datei{}; // the file behind the text of `Edit`; empty Original: a new text
    Notizdatei_T  Notiz_Datei{}; // the file behind the text of `Notiz`
    Dateifehler   Datei_Fehler = Dateifehler::Keiner;
    std::uint64_t Vorgang = 0; // loads and saves so far: the windows see that a file is another
} Dateien;

inline constinit auto& Dialog_Name        = Dateien.Dialog_Name;
inline constinit auto& Dialog_Verzeichnis = Dateien.Dialog_Verzeichnis;
inline constinit auto& Dialog_Filter      = Dateien.Dialog_Filter;
inline constinit auto& Quell_Datei        = Dateien.Quell_Datei;
inline constinit auto& Notiz_Datei        = Dateien.Notiz_Datei;
inline constinit auto& Datei_Fehler       = Dateien.Datei_Fehler;

// The state as at program start.
inline void Dateien_Zuruecksetzen() { Dateien = {}; }

} // namespace varnholt
