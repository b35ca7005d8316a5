// The simulated board as a thing to look at and to handle: what sits in its socket, what that
// holds, and the faults that can be switched on. For a user without a board, and for who wants to
// show one that fails.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <string>

namespace varnholt {

// What can be switched on and off: faults, and the make of the part.
enum class Board_Stoerung {
    Kein_Strom,      // the board has no supply
    Sockel_Leer,     // the part is taken out
    D0_Auf_0,        // data line D0 is stuck low
    D7_Auf_1,        // data line D7 is stuck high
    Nicht_Bereit,    // the ready line of a microcontroller never comes
    Falsche_Kennung, // a microcontroller gives a wrong signature
    Nicht_Loeschbar, // no erase takes, however long
    Langsam,         // an EEPROM or a page takes Langsam_Faktor times as long to be stored
    Draht_Vergessen, // the wire for the erase of a 27SF isn't moved when the program asks
    Fuenf_Volt       // no fault: the microcontroller is the one for 5 V programming
};
inline constexpr int    Board_Stoerungen = 10;
inline constexpr double Langsam_Faktor   = 20;
inline constexpr int    Schwache_Pulse   = 5; // attempts that a weak cell needs

// What the window shows. All texts in the interface language, UTF-8.
struct Board_Bild {
    bool        Simuliert = false; // the port is a simulated one: there is something to see
    std::string Board{};           // "Eprommer"
    std::string Baustein{};        // the part and its size
    std::string Bytes{};           // the first 16, hexadecimal
    std::string Benutzt{};         // first and last address with other than FFh
    std::string Pruefsumme{};      // CRC-32 of all bytes, as zlib has it
    std::string Stellen{};         // how many cells and pages were made to fail
    std::string Lage{};            // why it can't be used now; empty when it can
    bool        Hat_Baustein = false;
    bool        UV_Loeschbar = false;
    bool        Ist_MC       = false;
    bool        Hat_Seiten   = false; // it is written by pages
};
// reads: Port_Einrichtung, IC_Nummer
Board_Bild Board_Ansehen();

// The device in the socket knows this one; to be switched on or off it has to.
bool Board_Stoerung_Moeglich(Board_Stoerung Welche);
bool Board_Gestoert(Board_Stoerung Welche);
void Board_Stoeren(Board_Stoerung Welche, bool An);

// A new, erased part of the same kind comes into the socket; all faults are off.
void Board_Neuer_Baustein();
// All bytes to FFh, as under UV light.
void Board_UV_Loeschen();
// Faults at an address of the part; false when it has none such. A cell that doesn't take any more,
// one that takes at the attempt number Schwache_Pulse, and the page of that address, which isn't
// stored any more.
bool Board_Tote_Zelle(std::int32_t Adresse);
bool Board_Schwache_Zelle(std::int32_t Adresse);
bool Board_Schlechte_Seite(std::int32_t Adresse);
// The part's contents from a file and into one; the text tells what is wrong, empty when nothing
// is.
Text_Paar Board_Laden(const std::string& Datei);
Text_Paar Board_Sichern(const std::string& Datei);

} // namespace varnholt
