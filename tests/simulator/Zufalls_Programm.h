// Programs and states for a machine by chance, the same for the same number on every computer: bent
// so that timers run, interrupts enter and registers are touched in all ways.
#pragma once

#include "core/settings.h"
#include "core/shared_state.h"
#include "simulator/Debug.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace varnholt::test {

class Zufall {
public:
    explicit Zufall(std::uint64_t Nummer) : Stand(Nummer * 0x9E3779B97F4A7C15U + 1) {}

    int Unter(int n) { return static_cast<int>(Naechste() % static_cast<std::uint64_t>(n)); }
    int Von_Bis(int a, int b) { return a + Unter(b - a + 1); }
    std::uint8_t                Byte() { return static_cast<std::uint8_t>(Naechste()); }
    bool                        Prozent(int p) { return Unter(100) < p; }
    template <class Reihe> auto Aus(const Reihe& r)
    {
        return r[Naechste() % static_cast<std::uint64_t>(std::size(r))];
    }

private:
    std::uint64_t Naechste() // SplitMix64
    {
        std::uint64_t z = (Stand += 0x9E3779B97F4A7C15U);
        z               = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
        z               = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
        return (z ^ (z >> 31)) >> 8;
    }
    std::uint64_t Stand;
};

// What a kind of program leans to, in percent.
struct Neigung_T {
    int Register; // a direct or bit operand is one of the registers that the hardware looks at
    int Wahllos;  // an instruction is any of the 256, else one of the kind's own
    int Stapel;   // SP starts among the registers
    int Nah;      // a jump stays near
    int Schritte; // most instructions in one piece
    std::string_view Eigene; // opcodes of the kind, as hexadecimal text
};

// clang-format off
inline constexpr Neigung_T Wild   {50, 60, 30, 60,   60, "75 75 43 53 63 05 15 C5 F5 E5 85 C0 D0 C2 D2 92 A2 B2 10 20 30 32 22 12 D5 B5 8A AA 86 A6"};
inline constexpr Neigung_T Ruhig  { 1,  5,  2, 90, 1500, "24 28 29 3A 9B C3 E5 F5 E6 F7 08 1A 4C 54 65 A4 84 D4 C4 CD D6 23 33 E4 78 7B D8 DB DD B4 BC 60 70 40 50 A3 E0 F0 93 00"};
inline constexpr Neigung_T Lauernd{60, 10,  5, 90,  300, "20 30 10 E5 A2 72 B0 C2 D2 25 B5 85 AA D5 C5 00 D8 74 80 05 15 75"};
inline constexpr Neigung_T Gestapelt{40, 20, 80, 70, 80, "C0 C0 C0 D0 D0 D0 22 32 11 51 12 75 05 15 D5 E5 F5 30 20 24 74 00"};
// clang-format on

class Zufalls_Programm {
public:
    Zufalls_Programm(std::uint64_t Nummer, const Neigung_T& Neigung) : z(Nummer), n(Neigung) {}

    // A program in Hex_Daten, 64 KiB of it, and a start state in Maschine and O_MOV_ZQ.
    void Aufstellen()
    {
        Programm_Schreiben();
        for (const int Vektor : {3, 11, 19, 27, 43})
            if (z.Prozent(75))
                Unterbrechung_Schreiben(Vektor);
        O_MOV_ZQ = z.Prozent(50);
        Speicher_Fuellen();
        Register_Fuellen();
        Zeitgeber_Fuellen();
    }

    int Stueck() { return z.Von_Bis(z.Prozent(20) ? 0 : 1, z.Prozent(30) ? 3 : n.Schritte); }

private:
    Zufall    z;
    Neigung_T n;

    // clang-format off
    static constexpr std::array<int, 21> Register{SFR::SP, SFR::DPL, SFR::DPH, SFR::TCON, SFR::TMOD, SFR::TL0, SFR::TL1,
        SFR::TH0, SFR::TH1, SFR::P1, SFR::IE, SFR::P3, SFR::IP, SFR::T2CON, SFR::RCAP2L, SFR::RCAP2H, SFR::TL2, SFR::TH2,
        SFR::PSW, SFR::ACC, SFR::B};
    static constexpr std::array<int, 9> Bit_Register{SFR::TCON, SFR::P1, SFR::IE, SFR::P3, SFR::IP, SFR::T2CON, SFR::PSW,
        SFR::ACC, SFR::B};
    // clang-format on

    static std::uint8_t B(int Wert) { return static_cast<std::uint8_t>(Wert); }

    // Kinds of the operands of an opcode: d direct, b bit, r relative, # any byte.
    static std::string_view Operanden(int Opcode)
    {
        constexpr std::array<std::string_view, 16> Spalte_0{
            "", "br", "br", "br", "r", "r", "r", "r", "r", "##", "b", "b", "d", "d", "", ""};
        constexpr std::array<std::string_view, 16> Spalte_2{
            "##", "##", "", "", "d", "d", "d", "b", "b", "b", "b", "b", "b", "b", "", ""};
        constexpr std::array<std::string_view, 16> Spalte_4{
            "", "", "#", "#", "#", "#", "#", "#", "", "#", "", "", "#r", "", "", ""};
        constexpr std::array<std::string_view, 16> Spalte_5{
            "d", "d", "d", "d", "d", "d", "d", "d#", "dd", "d", "", "dr", "d", "dr", "d", "d"};
        constexpr std::array<std::string_view, 16> Spalte_8{
            "", "", "", "", "", "", "", "#", "d", "", "d", "#r", "", "r", "", ""};
        const auto Zeile = static_cast<std::size_t>(Opcode / 16);
        switch (Opcode % 16) {
        case 0:
            return Spalte_0[Zeile];
        case 1:
            return "#";
        case 2:
            return Spalte_2[Zeile];
        case 3:
            return Zeile >= 4 && Zeile <= 6 ? "d#" : "";
        case 4:
            return Spalte_4[Zeile];
        case 5:
            return Spalte_5[Zeile];
        case 6:
        case 7:
            return Zeile == 0xD ? "" : Spalte_8[Zeile];
        default:
            return Spalte_8[Zeile];
        }
    }

    std::uint8_t Operand(char Art)
    {
        switch (Art) {
        case 'd':
            return z.Prozent(n.Register) ? B(z.Aus(Register))
                   : z.Prozent(60)       ? B(z.Unter(128))
                                         : z.Byte();
        case 'b':
            return z.Prozent(n.Register) ? B(z.Aus(Bit_Register) + z.Unter(8))
                   : z.Prozent(60)       ? B(z.Unter(128))
                                         : z.Byte();
        case 'r':
            return z.Prozent(n.Nah) ? B(z.Von_Bis(-14, 12)) : z.Byte();
        default:
            return z.Byte();
        }
    }

    int Opcode()
    {
        if (z.Prozent(n.Wahllos)) {
            const int Irgendeiner = z.Byte();
            return Irgendeiner == Stoppunkt_Opcode && z.Prozent(80) ? 0 : Irgendeiner;
        }
        const auto Stelle = static_cast<std::size_t>(z.Unter(int(n.Eigene.size() + 1) / 3) * 3);
        const auto Ziffer = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
        return Ziffer(n.Eigene[Stelle]) * 16 + Ziffer(n.Eigene[Stelle + 1]);
    }

    // A page of instructions, again and again up to the end of the code and beyond it.
    void Programm_Schreiben()
    {
        std::array<std::uint8_t, 1024> Seite{};
        std::size_t                    Ort = 0;
        while (Ort < Seite.size() - 3) {
            const int Op = Opcode();
            Seite[Ort++] = B(Op);
            for (const char Art : Operanden(Op))
                Seite[Ort++] = Operand(Art);
        }
        for (std::size_t i = 0; i <= 64; ++i)
            std::memcpy(Hex_Daten.data() + i * Seite.size(), Seite.data(), Seite.size());
    }

    void Unterbrechung_Schreiben(int Vektor)
    {
        constexpr std::array<std::string_view, 6> Muster{"\x32",
                                                         "\xC2\xCF\x32",
                                                         "\x05\x30\x32",
                                                         "\xC0\xE0\xD0\xE0\x32",
                                                         "\xC0\xD0\x05\x08\xD0\xD0\x32",
                                                         "\x75\x8C\xF0\x75\x8A\xE0\x32"};
        const std::string_view                    Eines = z.Aus(Muster);
        std::memcpy(Hex_Daten.data() + Vektor, Eines.data(), Eines.size());
    }

    void Speicher_Fuellen()
    {
        for (auto& Byte : Sim_RAM)
            Byte = z.Byte();
        for (int i = 0; i < 300; ++i)
            Sim_XRAM[static_cast<std::size_t>(z.Unter(65536))] = z.Byte();
        Sim_PC     = z.Prozent(20)   ? z.Von_Bis(0xFFE0, 0xFFFF)
                     : z.Prozent(30) ? z.Unter(64)
                                     : z.Unter(65536);
        Sim_Zyklen = z.Prozent(10) ? INT32_MAX - z.Unter(200) : z.Unter(100000);
        Sim_Prio   = static_cast<std::int16_t>(z.Prozent(60) ? -1 : z.Unter(2));
        for (auto& Pin : Sim_Pins)
            Pin = static_cast<std::int16_t>(z.Unter(2));
    }

    static std::uint8_t& R(int Index) { return Sim_RAM[static_cast<std::size_t>(Index)]; }

    void Register_Fuellen()
    {
        constexpr std::array<int, 14> Orte{
            0x7E, 0x7F, 0x80, 0x81, 0x82, 0x87, 0x88, 0x89, 0xA7, 0xC7, 0xCD, 0xCF, 0xDF, 0xFF};
        R(SFR::SP) = z.Prozent(n.Stapel) ? B(z.Aus(Orte) + z.Unter(6) - 2) : B(z.Von_Bis(7, 0x60));
        if (z.Prozent(50))
            R(SFR::PSW) &= 0x1F;
        if (z.Prozent(70))
            R(SFR::IE) |= 0x80;
        if (z.Prozent(50))
            R(SFR::P1) |= 3;
        if (z.Prozent(50))
            R(SFR::P3) |= 0x0C;
    }

    void Zeitgeber_Fuellen()
    {
        if (z.Prozent(60))
            R(SFR::TCON) |= 0x50;
        if (z.Prozent(60))
            R(SFR::TCON) &= 0x55;
        if (z.Prozent(60))
            R(SFR::TMOD) &= 0x33;
        if (z.Prozent(60))
            R(SFR::T2CON) = B((R(SFR::T2CON) & 0x4D) | 4);
        for (const int Zaehler : {SFR::TL0, SFR::TH0, SFR::TL1, SFR::TH1, SFR::TL2, SFR::TH2})
            if (z.Prozent(40))
                R(Zaehler) = B(z.Von_Bis(0xF8, 0xFF));
    }
};

} // namespace varnholt::test
