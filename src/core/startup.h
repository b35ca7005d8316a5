// State and texts of the program's start, and the label of the splash. The start itself is `Init`
// (core/commands.h).
#pragma once

#include "core/interface_texts.h"

#include <string>

namespace varnholt {

inline struct Startlauf_T {
    std::string Kommandozeile{}; // the whole command line, taken as one path (UTF-8); set by main
    std::string L_Init{};        // text of the splash's label
    double      Start_Zeit         = 0;     // seconds since midnight at which the splash was shown
    bool        Modus_Gewaehlt     = false; // Init is being entered again from the mode dialog
    bool        Erststart_Aktiv    = false; // the values of a first start were applied in this run
    bool        Erststart_Englisch = false; // `Englisch` is chosen in the language dialog (windows)
    bool        Sprache_Gewaehlt   = false; // the language dialog was answered in this run
    bool        Dateityp_Verknuepft  = false; // the file association was written in this run
    bool        Groessen_Sperre      = false; // the resize handlers of the child windows keep quiet
    bool        Datei_Gegeben        = false; // the command line names a file
    bool        Einstellungen_Gelten = false; // settings are read or chosen: the end writes them
} Startlauf;

inline constinit auto& Modus_Gewaehlt     = Startlauf.Modus_Gewaehlt;
inline constinit auto& Erststart_Aktiv    = Startlauf.Erststart_Aktiv;
inline constinit auto& Erststart_Englisch = Startlauf.Erststart_Englisch;

// The texts of the form `Abfrage_Modus`, in the manner of Fester_Text.
struct Abfrage_Modus_Texte_T {
    Festes_Paar Titel;
    Festes_Paar Frage;
    Festes_Paar Button_Mode_1;
    Festes_Paar Button_Mode_2;
};
inline constexpr Abfrage_Modus_Texte_T Abfrage_Modus_Texte = {
    {"Erststart", "First start"},
    {"Bitte wählen Sie, in welchem Modus die Software gestartet werden soll:",
     "Please choose the mode of the software:"},
    {"Hex/ASCII Editor\r\n(zum Lesen, Brennen, Editieren und Kopieren von Speicherbausteinen)",
     "Hex/ASCII Editor\r\n(to read, write, check and copy memory ic's)"},
    {"MC-Editor Modus\r\n(zum Programmieren von Mikrocontroller Programmen)",
     "MC-Editor Modus\r\n(to program microcontroller applications)"},
};

// Seconds from Anfang to Jetzt, both since midnight; across midnight too. 0 to 86400.
constexpr double Vergangen(double Anfang, double Jetzt)
{
    constexpr double Tag = 86400;
    return Jetzt >= Anfang ? Jetzt - Anfang : Jetzt - Anfang + Tag;
}
static_assert(Vergangen(10, 12.5) == 2.5 && Vergangen(86399, 1) == 2);

} // namespace varnholt
