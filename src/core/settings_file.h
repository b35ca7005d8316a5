// The settings file `Varnholt.ini`: a list of values whose meaning is their position, 142 of them,
// followed by further settings as lines of the form "Name=Wert". Start-up reads it, the regular end
// writes it, and nothing in between touches it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

inline constexpr int              Einstellungs_Zeilen      = 142;
inline constexpr std::uintmax_t   Einstellungen_Hoechstens = 1u << 20;    // bytes that are taken
inline constexpr std::string_view Erststart_Marke          = "Erststart"; // second line

// What start-up finds.
enum class Einstellungs_Lage { Fehlt, Erststart, Vollstaendig };

// Looks for the file and takes its first line, the language; every file whose second line isn't
// "Erststart" is Vollstaendig, one that can't be read included.
// reads: Programm_Pfad   sets: Sprache
Einstellungs_Lage Einstellungen_Pruefen();

// Reads the whole file and says by a notice when it is damaged or can't be read; in the latter case
// the settings keep the values of a first start.   reads: Programm_Pfad   sets: as below
void Einstellungen_Laden();
// Takes the settings from the text of a file. Every value begins with 0, false or empty and keeps
// that when its line is missing or can't be used; values out of range are drawn in. Exactly one of
// `Hexedit` and `Edit` is visible afterwards. The result counts the lines that were missing or of
// no use.
// sets: Sprache, Start_Verzeichnis, Letzte_Datei, Fenster_Tabelle, IC_Nummer, all of settings.h
int Einstellungen_Lesen(std::string_view Text);

// The text of the file. A text that holds a line end can't be kept and becomes empty.
// reads: what Einstellungen_Lesen sets
std::string Einstellungen_Schreiben();
// Writes the file; false when that fails and the old file stands. Grund, in the interface language,
// then tells why.   reads: Programm_Pfad and what Einstellungen_Schreiben reads
[[nodiscard]] bool Einstellungen_Sichern(std::string& Grund);

// The file of two lines that the language dialog leaves; false, with a notice, when that fails.
// reads: Sprache, Programm_Pfad
bool Erststart_Datei_Schreiben();
// The values of a first start: the options, no recent file, no device, an empty window table.
// Sprache stays.   sets: as Einstellungen_Lesen
void Erststart_Werte();

} // namespace varnholt
