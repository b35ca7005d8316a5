// The form `Lockmenu` as a model: the protection mode of a microcontroller is chosen and written.
#pragma once

#include <array>
#include <string>

namespace varnholt {

inline constexpr int Schutz_Modi = 4; // protection modes 1 to 4

// The fields. Written by the handlers below; a window shows them and forwards its events.
inline struct Lockmenu_T {
    bool Offen        = false;
    int  Schutz_Modus = 1;                         // the option that is on, Option1 to Option4
    std::array<std::string, Schutz_Modi> Option{}; // captions of Option1 to Option4
    bool                                 Option4_Aktiv = true; // the 20-pin parts have no mode 4
    std::string                          Label1{};             // the warning
    std::string                          Command1{};           // OK
    std::string                          Command2{};           // cancel
} Lockmenu;

// False for the 20-pin parts.   reads: the device's name
[[nodiscard]] bool Schutz_Modus_4_Moeglich();

// Opens the form; with a part that tells its lock state the mode of that is on. Without a device a
// box tells so, and a signature that is given up leaves the form closed.
// reads: IC_Nummer, the device's name and types   sets: Lockmenu, Antwort
void Lockmenu_Oeffnen();

// An option button; a disabled one can't be chosen.   sets: Lockmenu
void Lockmenu_Option_Click(int Nummer);
// OK: writes the levels up to the mode and tells so; mode 1 writes nothing.
// reads: Lockmenu, the device's name and board   sets: Lockmenu, Antwort
void Lockmenu_Command1_Click();
// Cancel.   sets: Lockmenu
void Lockmenu_Command2_Click();

} // namespace varnholt
