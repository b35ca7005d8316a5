// The real-time clock of the 48T memories: its registers, and the commands of the menu
// `TimeKeeper Spezial`, which core/commands.h declares.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <span>
#include <string>

namespace varnholt {

// Date and time as the registers hold them; no digit is checked, so that a year may be 0 to 165.
struct Uhrzeit_T {
    int Jahr = 0, Monat = 0, Tag = 0;
    int Wochentag = 0; // as stored, 0 to 255
    int Stunde = 0, Minute = 0, Sekunde = 0;

    bool operator==(const Uhrzeit_T&) const = default;
};

// The clock at the end of a device's contents; registers that aren't there count as 0.
Uhrzeit_T Uhrzeit_Von(std::span<const std::uint8_t> Inhalt);
// The seven lines of the box, each value with two digits at least.
Text_Paar Uhrzeit_Text(const Uhrzeit_T& Zeit);

// Reads the whole device for its clock; after an abort it is what was read so far.
// reads: the device's record   sets: Hex_Puffer (freed), Antwort
Uhrzeit_T TimeKeeper_Lesen();

} // namespace varnholt
