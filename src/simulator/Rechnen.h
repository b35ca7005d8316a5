// What the arithmetic of the simulated machine yields, as functions of their operands. Some flags
// are not those of a real chip: they are what this machine has always shown.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace varnholt {

// Result of an addition or subtraction: a byte, and the flags as they stand in PSW.
struct Rechen_Ergebnis {
    std::uint8_t Wert    = 0;
    std::uint8_t Flaggen = 0; // CY, AC, OV in their places, others 0
    bool         operator==(const Rechen_Ergebnis&) const = default;
};

inline constexpr std::uint8_t PSW_CY = 0x80;
inline constexpr std::uint8_t PSW_AC = 0x40;
inline constexpr std::uint8_t PSW_RS = 0x18; // both bank bits
inline constexpr std::uint8_t PSW_OV = 0x04;
inline constexpr std::uint8_t PSW_P  = 0x01;

inline constexpr std::uint8_t Rechen_Flaggen = PSW_CY | PSW_AC | PSW_OV;

constexpr unsigned Bit_Von(unsigned Wert, int Nummer) { return (Wert >> Nummer) & 1U; }

constexpr Rechen_Ergebnis Ergebnis_Bilden(unsigned Wert, unsigned CY, unsigned AC, unsigned OV)
{
    return {static_cast<std::uint8_t>(Wert),
            static_cast<std::uint8_t>(CY << 7 | AC << 6 | OV << 2)};
}

// a is the accumulator, b up to 256: the carry has already joined it. AC and OV are judged from the
// first operand and the sum alone.
constexpr Rechen_Ergebnis Addieren(unsigned a, unsigned b)
{
    const unsigned s  = a + b;
    const unsigned CY = s >> 8;
    const unsigned AC = Bit_Von(a & ~s, 3);
    const unsigned OV = (Bit_Von(a, 6) ^ CY) & Bit_Von(~s, 6);
    return Ergebnis_Bilden(s, CY, AC, OV);
}

// OV is set whenever bit 6 of the accumulator was clear, and is the borrow otherwise.
constexpr Rechen_Ergebnis Subtrahieren(unsigned a, unsigned b)
{
    const unsigned d  = a - b;
    const unsigned CY = Bit_Von(d, 8);
    const unsigned AC = Bit_Von(~a & d, 3);
    const unsigned OV = Bit_Von(~a, 6) | CY;
    return Ergebnis_Bilden(d, CY, AC, OV);
}

constexpr std::uint8_t Logik_UND(unsigned a, unsigned b)
{
    return static_cast<std::uint8_t>(a & b);
}
constexpr std::uint8_t Logik_ODER(unsigned a, unsigned b)
{
    return static_cast<std::uint8_t>(a | b);
}
constexpr std::uint8_t Logik_XOR(unsigned a, unsigned b)
{
    return static_cast<std::uint8_t>(a ^ b);
}

// Decimal adjustment of x with the carries as they are; CY is set at times, never cleared.
constexpr Rechen_Ergebnis Dezimal_Angleichen(unsigned x, bool CY, bool AC)
{
    if ((x & 15U) > 9 || AC)
        x += 6;
    CY = CY || x > 255;
    x &= 255U;
    if ((x >> 4) > 9 || CY)
        x += 96;
    CY = CY || x > 255;
    return {static_cast<std::uint8_t>(x), CY ? PSW_CY : std::uint8_t{0}};
}

// Target of a relative jump: basis and a signed offset byte. Not wrapped.
constexpr std::int32_t Relativ_Ziel(std::int32_t Basis, std::uint8_t Operand)
{
    return Basis + static_cast<std::int8_t>(Operand);
}

// 1 when the byte has an odd number of ones.
constexpr std::uint8_t Paritaet(std::uint8_t Wert)
{
    return static_cast<std::uint8_t>(std::popcount(Wert) & 1);
}

static_assert(Addieren(0x01, 0x0F) == Rechen_Ergebnis{0x10, 0});
static_assert(Addieren(0x01, 0x7F) == Rechen_Ergebnis{0x80, 0});
static_assert(Subtrahieren(0x05, 0) == Rechen_Ergebnis{0x05, PSW_OV});
static_assert(Relativ_Ziel(0x102, 0xFE) == 0x100);

} // namespace varnholt
