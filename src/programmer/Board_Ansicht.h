// The simulated board as a thing to look at and to handle: what sits in its socket, what that
// holds, and the faults that can be switched on. For a user without a board, and for who wants to
// show one that fails.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <string>

namespace varnholt {

// Faults on demand.
enum class Board_Stoerung {
    Kein_Strom,     // the board has no supply
    Sockel_Leer,    // the part is taken out
    D0_Auf_0,       // data line D0 is stuck low
    D7_Auf_1,       // data line D7 is stuck high
    Nicht_Bereit,   // the ready line of a microcontroller never comes
    Falsche_Kennung // a microcontroller gives a wrong signature
};
inline constexpr int Board_Stoerungen = 6;

// What the window shows. All texts in the interface language, UTF-8.
struct Board_Bild {
    bool        Simuliert = false; // the port is a simulated one: there is something to see
    std::string Board{};           // "Eprommer"
    std::string Baustein{};        // the part and its size
    std::string Bytes{};           // the first 16, hexadecimal
    std::string Benutzt{};         // first and last address with other than FFh
    std::string Pruefsumme{};      // CRC-32 of all bytes, as zlib has it
    std::string Lage{};            // why it can't be used now; empty when it can
    bool        Hat_Baustein = false;
    bool        UV_Loeschbar = false;
    bool        Ist_MC       = false;
};
// reads: Port_Einrichtung, IC_Nummer
Board_Bild Board_Ansehen();

bool Board_Gestoert(Board_Stoerung Welche);
void Board_Stoeren(Board_Stoerung Welche, bool An);

// A new, erased part of the same kind comes into the socket; all faults are off.
void Board_Neuer_Baustein();
// All bytes to FFh, as under UV light.
void Board_UV_Loeschen();
// A cell that never goes to 0, at that address of the part; false when there is none.
bool Board_Tote_Zelle(std::int32_t Adresse);
// The part's contents from a file and into one; the text tells what is wrong, empty when nothing
// is.
Text_Paar Board_Laden(const std::string& Datei);
Text_Paar Board_Sichern(const std::string& Datei);

} // namespace varnholt
