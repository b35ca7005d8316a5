// The reference windows `Bef` and `Basic_Bef`: their tables, read from files of the program's
// folder, and what a click does to them. A window shows this state; nothing of it goes into the
// source. Owner: editors/Nachschlagen.cpp.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

inline constexpr int         Bef_Spalten_Anzahl   = 4;
inline constexpr int         Basic_Spalten_Anzahl = 3;
inline constexpr std::size_t Bef_Zeilen_Anzahl    = 256;      // whatever the file holds
inline constexpr std::size_t Dok_Hoechstens       = 1u << 20; // bytes that are read of a file
inline constexpr std::size_t Zelle_Hoechstens     = 200;      // characters of a cell

// A data row; texts are Windows-1252. The table of the statements leaves the last cell empty.
using Tafel_Zeile_T = std::array<std::string, Bef_Spalten_Anzahl>;

struct Tafel_T {
    std::vector<Tafel_Zeile_T> Zeilen{};        // without the header row
    int                        Gewaehlt   = -1; // row that is selected, from 0; -1 none
    bool                       Geladen    = false;
    std::uint64_t              Stand      = 0; // grows when the rows change
    std::uint64_t              Wahl_Stand = 0; // grows when the selection changes by itself
};

inline struct Nachschlagen_T {
    Tafel_T       Bef{};
    Tafel_T       Basic_Bef{};
    std::uint64_t Wunsch_Erfuellt = 0; // the wish of the hex editor that Bef has followed
} Nachschlagen;

// The state as at program start.
inline void Nachschlagen_Zuruecksetzen() { Nachschlagen = {}; }

// The load of a form: reads befehle.dok, or basic.dok. A file that is missing or ends early keeps
// the rows read so far, with a message in German.
// reads: Programm_Pfad   sets: Nachschlagen
void Bef_Laden();
void Basic_Bef_Laden();
// Loads the table of that window (Fenster_Bef, Fenster_Basic) before it is shown first; does
// nothing for other windows.
void Nachschlagen_Bereitstellen(int Fenster);

// A click into the grid of `Bef`: row 0 is the header, which sorts by that column, as texts, in
// ascending order and ignoring case. Any other row is selected.
// sets: Nachschlagen.Bef
void Bef_Feld_Click(int Zeile, int Spalte);
// A click into the grid of `Basic_Bef`: selects the row.
void Basic_Bef_Feld_Click(int Zeile);
// Selects the row of the opcode that was clicked in the hex editor, once for each click.
// reads: Hexedit   sets: Nachschlagen.Bef
void Bef_Nachfuehren();

// Opcode of a row of `Bef`, -1 where the row doesn't begin with one.
int Bef_Opcode(const Tafel_Zeile_T& Zeile);

// The longest text of a column among all rows (no header); the first one of several.
std::string_view Laengster_Text(const Tafel_T& Tafel, int Spalte);

} // namespace varnholt
