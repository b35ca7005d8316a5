// When the peripherals have nothing to do but count: how long that lasts, and how to make up for it
// in one go. Whoever runs fast asks this instead of passing over them after each instruction.
#pragma once

#include <array>
#include <cstdint>

namespace varnholt {

// What an access to a direct address asks for while the peripherals lag behind and the interpreter
// keeps ACC and PSW at hand.
inline constexpr std::uint8_t Beim_Lesen     = 1; // the value has to be brought up to date
inline constexpr std::uint8_t Beim_Schreiben = 2; // somebody has to be told of the change

extern const std::array<std::uint8_t, 256> Besonderheit; // by address

// How many ticks may pass in which no flag changes, no interrupt enters and no pin is looked at:
// timers that run count on below their overflow. 0 when the next pass may do more.
std::int32_t Ruhe_Takte();

// Counts the running timers on by that many ticks, at most what Ruhe_Takte answered.
void Zeitgeber_Vorstellen(std::int32_t Takte);

// Everything that follows an instruction of that length, in order.
struct Durchgang_Ergebnis {
    std::int32_t  PC     = 0;
    std::uint32_t Zyklen = 0;
    bool          Fest_P = false; // an interrupt pushed onto PSW or ACC: parity follows one later
};
template <bool Mit_Anzeige>
Durchgang_Ergebnis Durchgang(int Laenge, std::int32_t PC, std::uint32_t Zyklen);

} // namespace varnholt
