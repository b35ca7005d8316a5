// What an instruction costs, booked in one go. Private to the interpreter.
#pragma once

#include "language/Befehle.h"

#include <cstdint>

namespace varnholt {

// Ticks that are left, machine cycles and instructions of a short stretch, in one number, so that
// an instruction changes all three at once.
class Konto_T {
public:
    static constexpr std::int32_t Takte_Hoechstens = 1022; // no count may run into the next one

    constexpr explicit Konto_T(std::int32_t Takte) : Stand(std::int64_t{Takte} << Takte_Ab) {}

    template <int Opcode> constexpr void Buchen()
    {
        Stand += 1 + (Befehl_Zyklen(Opcode) << Zyklen_Ab) - (Befehl_Laenge(Opcode) << Takte_Ab);
    }
    constexpr void Aufbrauchen() { Stand &= (1 << Takte_Ab) - 1; } // no ticks are left

    constexpr bool         Verbraucht() const { return Stand < 0; }
    constexpr std::int32_t Takte() const { return static_cast<std::int32_t>(Stand >> Takte_Ab); }
    constexpr std::int32_t Zyklen() const { return (Stand >> Zyklen_Ab) & 0xFFF; }
    constexpr std::int32_t Befehle() const { return Stand & 0x3FF; }

private:
    static constexpr int Zyklen_Ab = 10; // bit; instructions stand below
    static constexpr int Takte_Ab  = 22; // bit, up to the sign

    std::int64_t Stand;
};

} // namespace varnholt
