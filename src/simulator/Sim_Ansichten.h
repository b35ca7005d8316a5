// What the three memory views and the control panel show. A view shows what it was told, not the
// memory itself: at full speed it is told nothing. The windows read this and compare the counter.
#pragma once

#include "simulator/Debug.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// One row of `F_SIM_SFR`: a register that a processor file declared.
struct SFR_Zeile {
    std::int32_t Adresse = 0;
    std::string  Name{}; // Windows-1252, upper case
};

inline struct Sim_Ansichten_T {
    std::uint64_t Stand = 0; // counts changes of anything below
    // The values shown, by index of Sim_RAM and Sim_XRAM.
    std::array<std::uint8_t, Sim_RAM_Groesse>  RAM{};  // `F_SIM_RAM`; 128 to 255 unused
    std::array<std::uint8_t, Sim_RAM_Groesse>  SFR{};  // `F_SIM_SFR`
    std::array<std::uint8_t, Sim_XRAM_Groesse> XRAM{}; // `F_SIM_EXRAM`
    // The same as they stood when the last command began: what differs is marked.
    std::array<std::uint8_t, Sim_RAM_Groesse>  RAM_Zuvor{};
    std::array<std::uint8_t, Sim_RAM_Groesse>  SFR_Zuvor{};
    std::array<std::uint8_t, Sim_XRAM_Groesse> XRAM_Zuvor{};
    std::array<std::string, 256>               RAM_Namen{};  // column 1 of `F_SIM_RAM`, by row - 1
    std::vector<SFR_Zeile>                     SFR_Zeilen{}; // in the order of Namen_Tabelle
    std::uint64_t                              Aufbau = 0;   // counts builds of rows and names
    std::uint64_t Erste_Zelle                         = 0;   // counts requests to go to the first
    std::string   L_Adr{};                                   // of the panel: "00000 / 00000h"
    std::string   L_Zyklen{};
} Sim_Ansichten;

// The state as at program start.
void Sim_Ansichten_Zuruecksetzen();

// --- rows and names (Sim_Ansichten.cpp) ---

void Sim_Aufbauen();          // rows and static cells of all three views, by Namen_Tabelle
void Sim_Alles_Zeigen();      // every value, in all three views
void Aenderungen_Vergessen(); // a command begins: what is shown now is the base of the marks

// --- one cell. Nothing while a program runs at full speed. ---

void Sim_Zelle_Zeigen_RAM(int Index);   // index of Sim_RAM; 128 to 255 is ignored
void Sim_Zelle_Zeigen_SFR(int Index);   // 208 moves the names R0 to R7 with the bank
void Sim_Zelle_Zeigen_EXRAM(int Index); // index of Sim_XRAM

// --- edits. Text as the user typed it. ---

enum class Sicht { RAM, SFR, EXRAM };

// Enter in the hex field or the bit field of the strip; Adresse is the strip's address field.
void Hex_Uebernehmen(Sicht Welche, std::string_view Adresse, std::string_view Hex);
void Bits_Uebernehmen(Sicht Welche, std::string_view Adresse, std::string_view Bits);
// A click on a bit cell of the RAM or SFR grid: column 3 (bit 7) to 10 (bit 0).
void Bit_Umschalten(Sicht Welche, std::string_view Adresse, int Spalte);

// --- the panel (Sim_Control.cpp) ---

// Both counters, only while `MNU_CONTROL` is ticked.   sets: Sim_Ansichten.L_Adr, L_Zyklen
void        Zyklen_Anzeigen();
std::string Zaehler_Text(std::int32_t Wert); // "70000 / 11170h"
void        Check1_Click(bool An);           // sets: Debug_Verzoegerung
void        Check2_Click(bool An);           // sets: Debug_Vollgas; unchecked: views up to date
void        B_Reset_Zyklen_Click();

} // namespace varnholt
