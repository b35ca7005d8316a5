// State of the microcontroller routines: what the last signature told. Written by
// Atmel_Zugriff_II.cpp, read by it and by the lock routines.
#pragma once

#include <string>

namespace varnholt {

// Holds from one signature to the next.
inline struct Mikrocontroller_T {
    int         Prog_Spannung   = 12; // programming voltage, 5 or 12; 89S parts don't tell theirs
    bool        Kennung_Gelesen = false; // false: no signature yet, so no voltage is known
    int         Ruhe_Korrektur  = 0; // -1 for 89S53 and 89S8252: D0 of their standing bytes is 0
    std::string Kennung_Hersteller = {}; // the maker by the first byte; empty when unknown
} Mikrocontroller;

inline constinit auto& Prog_Spannung      = Mikrocontroller.Prog_Spannung;
inline constinit auto& Kennung_Gelesen    = Mikrocontroller.Kennung_Gelesen;
inline constinit auto& Ruhe_Korrektur     = Mikrocontroller.Ruhe_Korrektur;
inline constinit auto& Kennung_Hersteller = Mikrocontroller.Kennung_Hersteller;

} // namespace varnholt
