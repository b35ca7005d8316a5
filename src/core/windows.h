// The child windows: their numbers, the window table that keeps their layout for each mode, and the
// standard arrangement.
#pragma once

#include "core/platform.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace varnholt {

inline constexpr int Fenster_Hexedit = 1;
inline constexpr int Fenster_Edit    = 2;
inline constexpr int Fenster_Bef     = 3;
inline constexpr int Fenster_Basic   = 4;
inline constexpr int Fenster_Spr     = 5;
inline constexpr int Fenster_Notiz   = 6;
inline constexpr int Fenster_RAM     = 7;
inline constexpr int Fenster_SFR     = 8;
inline constexpr int Fenster_EXRAM   = 9;
inline constexpr int Fenster_CONTROL = 10;
inline constexpr int Fenster_Anzahl  = 10;
inline constexpr int Fenster_Hilfe   = 11; // the form `Hilfe`: its place alone, in column 0

// Fields of a window's line.
enum class Feld { Sichtbar, Oben, Links, Hoehe, Breite };
inline constexpr int Felder_Gespeichert = 5;

// By mode column (0 Hex-Editor, 1 MC-Editor), window 1 to 12 (0 unused) and field 0 to 6. Of these
// only windows 1 to 11 and fields 0 to 4 are used. Field 0 is -1 or 0.
inline struct Fenster_T {
    std::array<std::array<std::array<std::int16_t, 7>, 13>, 2> Fenster_Tabelle{};
} Fensterlage;

inline constinit auto& Fenster_Tabelle = Fensterlage.Fenster_Tabelle;

inline std::int16_t& Fenster_Wert(int Spalte, int Nummer, Feld f)
{
    return Fenster_Tabelle[static_cast<std::size_t>(Spalte)][static_cast<std::size_t>(Nummer)]
                          [static_cast<std::size_t>(f)];
}

// Column of the table that holds the window's line in that mode: always 0 for `Hexedit`, always 1
// for `Edit`, the mode's for all others.
constexpr int Fenster_Spalte(int Nummer, int Modus_Jetzt)
{
    return Nummer == Fenster_Hexedit ? 0 : Nummer == Fenster_Edit ? 1 : Modus_Jetzt - 1;
}

// The standard layout of a mode for main and side windows inside that area, in the units of
// Flaeche; index is the window number. Main window 65 % (MC-Editor) or 72 % (Hex-Editor) of the
// width.
std::array<Lage_T, Fenster_Anzahl + 1> Grund_Anordnung(const Lage_T& Flaeche, int Modus_Jetzt);

// Applies Fenster_Tabelle: ticks, visibility, places.   (Fenster_Anordnen of core/commands.h)

// Keeps a window's place in the table, as it does when it loses the focus. Not during start-up.
// reads: Init_Laeuft, Modus   sets: Fenster_Tabelle
void Fenster_Merken(int Nummer);
// The same for all ten windows, as at the end of the program.
void Alle_Fenster_Merken();
// The user closed a side window: it is hidden and its menu entry loses its tick.
// sets: Fenster_Tabelle, menu
void Fenster_Geschlossen(int Nummer);

// The line of a side window in the current mode: toggled by its menu entry.
// reads: Modus   sets: Fenster_Tabelle, menu
void Fenster_Umschalten(int Nummer);

// Shows the windows of a session that are ticked for the mode. When one of them opens, a window
// that fills the screen makes room; else everything stays where the user has put it.
// sets: Fenster_Tabelle, menu, windows
void Sitzungsfenster_Zeigen();

// What each mode changes in menu and tool bar (ticks, visible and enabled entries, tooltip of
// button 21). reads: Modus   sets: menu, tool bar
void Modus_Tabelle_Anwenden();

} // namespace varnholt
