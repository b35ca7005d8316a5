// The instruction set as the tests know it: a table of their own, so that a slip in the program's
// table shows. In a text `!` is an operand byte and `*` the running number of the row's opcodes.
#pragma once

#include "language/Assembler_Hilfe.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

struct Tafel_Zeile {
    int              Opcode;  // of the first
    int              Anzahl;  // opcodes in the row
    int              Schritt; // from one to the next
    std::string_view Text;
    int              Laenge; // bytes
    int              Art;    // -2 no address, 1 byte address, 8 bit address
};

// clang-format off
inline constexpr Tafel_Zeile Opcode_Zeilen[] = {
    {0x00, 1, 1, "NOP", 1, -2},
    {0x01, 8, 0x20, "AJMP *,!", 2, -2},
    {0x11, 8, 0x20, "ACALL *,!", 2, -2},
    {0x02, 1, 1, "LJMP !!", 3, -2},
    {0x12, 1, 1, "LCALL !!", 3, -2},
    {0x03, 1, 1, "RR A", 1, -2},
    {0x13, 1, 1, "RRC A", 1, -2},
    {0x23, 1, 1, "RL A", 1, -2},
    {0x33, 1, 1, "RLC A", 1, -2},
    {0x22, 1, 1, "RET", 1, -2},
    {0x32, 1, 1, "RETI", 1, -2},
    {0x04, 1, 1, "INC A", 1, -2},
    {0x05, 1, 1, "INC !", 2, 1},
    {0x06, 2, 1, "INC @R*", 1, -2},
    {0x08, 8, 1, "INC R*", 1, -2},
    {0x14, 1, 1, "DEC A", 1, -2},
    {0x15, 1, 1, "DEC !", 2, 1},
    {0x16, 2, 1, "DEC @R*", 1, -2},
    {0x18, 8, 1, "DEC R*", 1, -2},
    {0x10, 1, 1, "JBC !,!", 3, 8},
    {0x20, 1, 1, "JB !,!", 3, 8},
    {0x30, 1, 1, "JNB !,!", 3, 8},
    {0x40, 1, 1, "JC !", 2, -2},
    {0x50, 1, 1, "JNC !", 2, -2},
    {0x60, 1, 1, "JZ !", 2, -2},
    {0x70, 1, 1, "JNZ !", 2, -2},
    {0x80, 1, 1, "SJMP !", 2, -2},
    {0x24, 1, 1, "ADD A,#!", 2, 1},
    {0x25, 1, 1, "ADD A,!", 2, 1},
    {0x26, 2, 1, "ADD A,@R*", 1, -2},
    {0x28, 8, 1, "ADD A,R*", 1, -2},
    {0x34, 1, 1, "ADDC A,#!", 2, 1},
    {0x35, 1, 1, "ADDC A,!", 2, 1},
    {0x36, 2, 1, "ADDC A,@R*", 1, -2},
    {0x38, 8, 1, "ADDC A,R*", 1, -2},
    {0x42, 1, 1, "ORL !,A", 2, 1},
    {0x43, 1, 1, "ORL !,#!", 3, 1},
    {0x44, 1, 1, "ORL A,#!", 2, 1},
    {0x45, 1, 1, "ORL A,!", 2, 1},
    {0x46, 2, 1, "ORL A,@R*", 1, -2},
    {0x48, 8, 1, "ORL A,R*", 1, -2},
    {0x52, 1, 1, "ANL !,A", 2, 1},
    {0x53, 1, 1, "ANL !,#!", 3, 1},
    {0x54, 1, 1, "ANL A,#!", 2, 1},
    {0x55, 1, 1, "ANL A,!", 2, 1},
    {0x56, 2, 1, "ANL A,@R*", 1, -2},
    {0x58, 8, 1, "ANL A,R*", 1, -2},
    {0x62, 1, 1, "XRL !,A", 2, 1},
    {0x63, 1, 1, "XRL !,#!", 3, 1},
    {0x64, 1, 1, "XRL A,#!", 2, 1},
    {0x65, 1, 1, "XRL A,!", 2, 1},
    {0x66, 2, 1, "XRL A,@R*", 1, -2},
    {0x68, 8, 1, "XRL A,R*", 1, -2},
    {0x72, 1, 1, "ORL C,!", 2, 8},
    {0x82, 1, 1, "ANL C,!", 2, 8},
    {0xA0, 1, 1, "ORL C,/!", 2, 8},
    {0xB0, 1, 1, "ANL C,/!", 2, 8},
    {0x73, 1, 1, "JMP @A+DPTR", 1, -2},
    {0x74, 1, 1, "MOV A,#!", 2, 1},
    {0x75, 1, 1, "MOV !,#!", 3, 1},
    {0x76, 2, 1, "MOV @R*,#!", 2, 1},
    {0x78, 8, 1, "MOV R*,#!", 2, 1},
    {0x83, 1, 1, "MOVC A,@A+PC", 1, -2},
    {0x93, 1, 1, "MOVC A,@A+DPTR", 1, -2},
    {0x84, 1, 1, "DIV AB", 1, -2},
    {0xA4, 1, 1, "MUL AB", 1, -2},
    {0x85, 1, 1, "MOV !,!", 3, 1},
    {0x86, 2, 1, "MOV !,@R*", 2, 1},
    {0x88, 8, 1, "MOV !,R*", 2, 1},
    {0x90, 1, 1, "MOV DPTR,#!!", 3, -2},
    {0x92, 1, 1, "MOV !,C", 2, 8},
    {0xA2, 1, 1, "MOV C,!", 2, 8},
    {0x94, 1, 1, "SUBB A,#!", 2, 1},
    {0x95, 1, 1, "SUBB A,!", 2, 1},
    {0x96, 2, 1, "SUBB A,@R*", 1, -2},
    {0x98, 8, 1, "SUBB A,R*", 1, -2},
    {0xA3, 1, 1, "INC DPTR", 1, -2},
    {0xA5, 1, 1, "Nicht definiert", 1, -2},
    {0xA6, 2, 1, "MOV @R*,!", 2, 1},
    {0xA8, 8, 1, "MOV R*,!", 2, 1},
    {0xB2, 1, 1, "CPL !", 2, 8},
    {0xC2, 1, 1, "CLR !", 2, 8},
    {0xD2, 1, 1, "SETB !", 2, 8},
    {0xB3, 1, 1, "CPL C", 1, -2},
    {0xC3, 1, 1, "CLR C", 1, -2},
    {0xD3, 1, 1, "SETB C", 1, -2},
    {0xB4, 1, 1, "CJNE A,#!,!", 3, 1},
    {0xB5, 1, 1, "CJNE A,!,!", 3, 1},
    {0xB6, 2, 1, "CJNE @R*,#!,!", 3, 1},
    {0xB8, 8, 1, "CJNE R*,#!,!", 3, 1},
    {0xC0, 1, 1, "PUSH !", 2, 1},
    {0xD0, 1, 1, "POP !", 2, 1},
    {0xC4, 1, 1, "SWAP A", 1, -2},
    {0xD4, 1, 1, "DA A", 1, -2},
    {0xE4, 1, 1, "CLR A", 1, -2},
    {0xF4, 1, 1, "CPL A", 1, -2},
    {0xC5, 1, 1, "XCH A,!", 2, 1},
    {0xC6, 2, 1, "XCH A,@R*", 1, -2},
    {0xC8, 8, 1, "XCH A,R*", 1, -2},
    {0xD5, 1, 1, "DJNZ !,!", 3, 1},
    {0xD6, 2, 1, "XCHD A,@R*", 1, -2},
    {0xD8, 8, 1, "DJNZ R*,!", 2, 1},
    {0xE0, 1, 1, "MOVX A,@DPTR", 1, -2},
    {0xE2, 2, 1, "MOVX A,@R*", 1, -2},
    {0xF0, 1, 1, "MOVX @DPTR,A", 1, -2},
    {0xF2, 2, 1, "MOVX @R*,A", 1, -2},
    {0xE5, 1, 1, "MOV A,!", 2, 1},
    {0xE6, 2, 1, "MOV A,@R*", 1, -2},
    {0xE8, 8, 1, "MOV A,R*", 1, -2},
    {0xF5, 1, 1, "MOV !,A", 2, 1},
    {0xF6, 2, 1, "MOV @R*,A", 1, -2},
    {0xF8, 8, 1, "MOV R*,A", 1, -2},
};
// clang-format on

// One opcode of the table.
struct Tafel_Eintrag {
    int         Opcode = 0;
    std::string Text{};
    int         Laenge = 0;
    int         Art    = 0;
};

inline std::string Ersetzt(std::string_view Text, std::string_view Alt, std::string_view Neu)
{
    std::string Ergebnis{Text};
    for (std::size_t p = 0; (p = Ergebnis.find(Alt, p)) != std::string::npos; p += Neu.size())
        Ergebnis.replace(p, Alt.size(), Neu);
    return Ergebnis;
}

// All opcodes in the order of the rows.
inline std::vector<Tafel_Eintrag> Opcode_Tafel()
{
    std::vector<Tafel_Eintrag> Tafel;
    for (const Tafel_Zeile& z : Opcode_Zeilen)
        for (int i = 0; i < z.Anzahl; ++i)
            Tafel.push_back({z.Opcode + i * z.Schritt,
                             Ersetzt(z.Text, "*", std::to_string(i)),
                             z.Laenge,
                             z.Art});
    return Tafel;
}

// Lengths by opcode.
inline std::array<int, 256> Opcode_Laengen()
{
    std::array<int, 256> Laengen{};
    for (const Tafel_Eintrag& e : Opcode_Tafel())
        Laengen.at(static_cast<std::size_t>(e.Opcode)) = e.Laenge;
    return Laengen;
}

// Two upper-case digits.
inline std::string Hex2(int Wert)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    const auto                 w       = static_cast<unsigned>(Wert);
    return {Ziffern[(w >> 4) & 15], Ziffern[w & 15]};
}

// The high byte and the low byte: `12 34`.
inline std::string Hoch_Tief(int Wert) { return Hex2(Wert / 256) + " " + Hex2(Wert); }

} // namespace varnholt::test
