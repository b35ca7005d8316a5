// The one opcode table: length, cycles, template and address kind of all 256 opcodes, and the forms
// that the encoder looks up, all expanded from one row a pattern at compile time.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace varnholt {

// Kind of the address that an instruction's operand byte is. The numbers are the name kind
// (Namen_Eintrag::Art) that a name in the instruction must not have.
inline constexpr int Art_Keine = -2; // no direct address
inline constexpr int Art_Byte  = 1;  // addresses a byte: bit names are refused
inline constexpr int Art_Bit   = 8;  // addresses a bit: byte names are refused

// A row of the table. Pattern letters: r register R0 to R7, i indirect register, p page 0 to 7;
// they stand for the same letter in the template. In a template `!` is one operand byte.
struct Befehls_Muster {
    std::string_view Muster;
    std::string_view Text;
    int              Zyklen; // machine cycles, 12 clocks each (MCS-51 user's manual)
    int              Art;
};

// clang-format off
inline constexpr Befehls_Muster Befehls_Muster_Tabelle[] = {
    {"00000000", "NOP",            1, Art_Keine},
    {"ppp00001", "AJMP p,!",       2, Art_Keine},
    {"ppp10001", "ACALL p,!",      2, Art_Keine},
    {"00000010", "LJMP !!",        2, Art_Keine},
    {"00010010", "LCALL !!",       2, Art_Keine},
    {"00000011", "RR A",           1, Art_Keine},
    {"00010011", "RRC A",          1, Art_Keine},
    {"00100011", "RL A",           1, Art_Keine},
    {"00110011", "RLC A",          1, Art_Keine},
    {"00100010", "RET",            2, Art_Keine},
    {"00110010", "RETI",           2, Art_Keine},
    {"00000100", "INC A",          1, Art_Keine},
    {"00000101", "INC !",          1, Art_Byte},
    {"0000011i", "INC @Ri",        1, Art_Keine},
    {"00001rrr", "INC Rr",         1, Art_Keine},
    {"00010100", "DEC A",          1, Art_Keine},
    {"00010101", "DEC !",          1, Art_Byte},
    {"0001011i", "DEC @Ri",        1, Art_Keine},
    {"00011rrr", "DEC Rr",         1, Art_Keine},
    {"00010000", "JBC !,!",        2, Art_Bit},
    {"00100000", "JB !,!",         2, Art_Bit},
    {"00110000", "JNB !,!",        2, Art_Bit},
    {"01000000", "JC !",           2, Art_Keine},
    {"01010000", "JNC !",          2, Art_Keine},
    {"01100000", "JZ !",           2, Art_Keine},
    {"01110000", "JNZ !",          2, Art_Keine},
    {"10000000", "SJMP !",         2, Art_Keine},
    {"00100100", "ADD A,#!",       1, Art_Byte},
    {"00100101", "ADD A,!",        1, Art_Byte},
    {"0010011i", "ADD A,@Ri",      1, Art_Keine},
    {"00101rrr", "ADD A,Rr",       1, Art_Keine},
    {"00110100", "ADDC A,#!",      1, Art_Byte},
    {"00110101", "ADDC A,!",       1, Art_Byte},
    {"0011011i", "ADDC A,@Ri",     1, Art_Keine},
    {"00111rrr", "ADDC A,Rr",      1, Art_Keine},
    {"01000010", "ORL !,A",        1, Art_Byte},
    {"01000011", "ORL !,#!",       2, Art_Byte},
    {"01000100", "ORL A,#!",       1, Art_Byte},
    {"01000101", "ORL A,!",        1, Art_Byte},
    {"0100011i", "ORL A,@Ri",      1, Art_Keine},
    {"01001rrr", "ORL A,Rr",       1, Art_Keine},
    {"01010010", "ANL !,A",        1, Art_Byte},
    {"01010011", "ANL !,#!",       2, Art_Byte},
    {"01010100", "ANL A,#!",       1, Art_Byte},
    {"01010101", "ANL A,!",        1, Art_Byte},
    {"0101011i", "ANL A,@Ri",      1, Art_Keine},
    {"01011rrr", "ANL A,Rr",       1, Art_Keine},
    {"01100010", "XRL !,A",        1, Art_Byte},
    {"01100011", "XRL !,#!",       2, Art_Byte},
    {"01100100", "XRL A,#!",       1, Art_Byte},
    {"01100101", "XRL A,!",        1, Art_Byte},
    {"0110011i", "XRL A,@Ri",      1, Art_Keine},
    {"01101rrr", "XRL A,Rr",       1, Art_Keine},
    {"01110010", "ORL C,!",        2, Art_Bit},
    {"10000010", "ANL C,!",        2, Art_Bit},
    {"10100000", "ORL C,/!",       1, Art_Bit},   // the simulator counts one cycle; the manual says two
    {"10110000", "ANL C,/!",       1, Art_Bit},   // likewise
    {"01110011", "JMP @A+DPTR",    2, Art_Keine},
    {"01110100", "MOV A,#!",       1, Art_Byte},
    {"01110101", "MOV !,#!",       2, Art_Byte},
    {"0111011i", "MOV @Ri,#!",     1, Art_Byte},
    {"01111rrr", "MOV Rr,#!",      1, Art_Byte},
    {"10000011", "MOVC A,@A+PC",   2, Art_Keine},
    {"10010011", "MOVC A,@A+DPTR", 2, Art_Keine},
    {"10000100", "DIV AB",         4, Art_Keine},
    {"10100100", "MUL AB",         4, Art_Keine},
    {"10000101", "MOV !,!",        2, Art_Byte},
    {"1000011i", "MOV !,@Ri",      2, Art_Byte},
    {"10001rrr", "MOV !,Rr",       2, Art_Byte},
    {"10010000", "MOV DPTR,#!!",   2, Art_Keine},
    {"10010010", "MOV !,C",        2, Art_Bit},
    {"10100010", "MOV C,!",        1, Art_Bit},
    {"10010100", "SUBB A,#!",      1, Art_Byte},
    {"10010101", "SUBB A,!",       1, Art_Byte},
    {"1001011i", "SUBB A,@Ri",     1, Art_Keine},
    {"10011rrr", "SUBB A,Rr",      1, Art_Keine},
    {"10100011", "INC DPTR",       1, Art_Keine}, // the simulator counts one cycle; the manual says two
    {"10100101", "Nicht definiert", 0, Art_Keine}, // the stop point of the debugger
    {"1010011i", "MOV @Ri,!",      2, Art_Byte},
    {"10101rrr", "MOV Rr,!",       2, Art_Byte},
    {"10110010", "CPL !",          1, Art_Bit},
    {"11000010", "CLR !",          1, Art_Bit},
    {"11010010", "SETB !",         1, Art_Bit},
    {"10110011", "CPL C",          1, Art_Keine},
    {"11000011", "CLR C",          1, Art_Keine},
    {"11010011", "SETB C",         1, Art_Keine},
    {"10110100", "CJNE A,#!,!",    2, Art_Byte},
    {"10110101", "CJNE A,!,!",     2, Art_Byte},
    {"1011011i", "CJNE @Ri,#!,!",  2, Art_Byte},
    {"10111rrr", "CJNE Rr,#!,!",   2, Art_Byte},
    {"11000000", "PUSH !",         2, Art_Byte},
    {"11010000", "POP !",          2, Art_Byte},
    {"11000100", "SWAP A",         1, Art_Keine},
    {"11010100", "DA A",           1, Art_Keine},
    {"11100100", "CLR A",          1, Art_Keine},
    {"11110100", "CPL A",          1, Art_Keine},
    {"11000101", "XCH A,!",        1, Art_Byte},
    {"1100011i", "XCH A,@Ri",      1, Art_Keine},
    {"11001rrr", "XCH A,Rr",       1, Art_Keine},
    {"11010101", "DJNZ !,!",       2, Art_Byte},
    {"1101011i", "XCHD A,@Ri",     1, Art_Keine},
    {"11011rrr", "DJNZ Rr,!",      2, Art_Byte},
    {"11100000", "MOVX A,@DPTR",   2, Art_Keine},
    {"1110001i", "MOVX A,@Ri",     2, Art_Keine},
    {"11110000", "MOVX @DPTR,A",   2, Art_Keine},
    {"1111001i", "MOVX @Ri,A",     2, Art_Keine},
    {"11100101", "MOV A,!",        1, Art_Byte},
    {"1110011i", "MOV A,@Ri",      1, Art_Keine},
    {"11101rrr", "MOV A,Rr",       1, Art_Keine},
    {"11110101", "MOV !,A",        1, Art_Byte},
    {"1111011i", "MOV @Ri,A",      1, Art_Keine},
    {"11111rrr", "MOV Rr,A",       1, Art_Keine},
};
// clang-format on

// A short text that lives in the table itself.
struct Kurz_Text {
    std::array<char, 16> Zeichen{};
    std::uint8_t         Laenge = 0;

    constexpr void             Anhaengen(char c) { Zeichen[Laenge++] = c; }
    constexpr std::string_view Text() const { return {Zeichen.data(), Laenge}; }
};

// One opcode.
struct Befehl_T {
    int       Laenge = 0; // bytes, 1 to 3; 0: no such row (the table is checked to have none)
    int       Zyklen = 0; // machine cycles
    Kurz_Text Text{};     // template
    int       Art = 0;    // Art_Keine, Art_Byte or Art_Bit
};

namespace befehle_intern {

// The value of the pattern's letters in the opcode, -1 when the opcode isn't of the pattern.
constexpr int Muster_Wert(std::string_view Muster, int Opcode)
{
    int Wert = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        const int Bit = (Opcode >> (7 - i)) & 1;
        if (Muster[i] == '0' || Muster[i] == '1') {
            if (Bit != Muster[i] - '0')
                return -1;
        } else {
            Wert = 2 * Wert + Bit;
        }
    }
    return Wert;
}

constexpr Befehl_T Befehl_Aus_Muster(const Befehls_Muster& m, int Wert)
{
    Befehl_T b{1, m.Zyklen, {}, m.Art};
    for (const char c : m.Text) {
        b.Text.Anhaengen(c == 'r' || c == 'i' || c == 'p' ? static_cast<char>('0' + Wert) : c);
        b.Laenge += c == '!' ? 1 : 0;
    }
    return b;
}

constexpr Befehl_T Befehl_Suchen(int Opcode)
{
    if (Opcode == 0xA5) { // its text holds the pattern letters
        Befehl_T b{1, 0, {}, Art_Keine};
        for (const char c : std::string_view("Nicht definiert"))
            b.Text.Anhaengen(c);
        return b;
    }
    for (const Befehls_Muster& m : Befehls_Muster_Tabelle)
        if (const int Wert = Muster_Wert(m.Muster, Opcode); Wert >= 0)
            return Befehl_Aus_Muster(m, Wert);
    return {};
}

constexpr int Treffer(int Opcode)
{
    int n = 0;
    for (const Befehls_Muster& m : Befehls_Muster_Tabelle)
        n += Muster_Wert(m.Muster, Opcode) >= 0 ? 1 : 0;
    return n;
}

} // namespace befehle_intern

inline constexpr std::array<Befehl_T, 256> Befehle = [] {
    std::array<Befehl_T, 256> t{};
    for (int i = 0; i < 256; ++i)
        t[static_cast<std::size_t>(i)] = befehle_intern::Befehl_Suchen(i);
    return t;
}();

constexpr bool Jeder_Opcode_genau_einmal()
{
    for (int i = 0; i < 256; ++i)
        if (befehle_intern::Treffer(i) != 1)
            return false;
    return true;
}
static_assert(Jeder_Opcode_genau_einmal());

constexpr int              Befehl_Laenge(std::uint8_t Opcode) { return Befehle[Opcode].Laenge; }
constexpr int              Befehl_Zyklen(std::uint8_t Opcode) { return Befehle[Opcode].Zyklen; }
constexpr std::string_view Befehl_Text(std::uint8_t Opcode) { return Befehle[Opcode].Text.Text(); }
constexpr int              Befehl_Art(std::uint8_t Opcode) { return Befehle[Opcode].Art; }

static_assert(Befehl_Text(0x29) == "ADD A,R1" && Befehl_Laenge(0xB6) == 3 && Befehl_Art(0x92) == 8);

// Opcode of an instruction without any operand value, spelled exactly as its template (one blank
// behind the mnemonic, none around commas), -1 when it is none. `JMP @A,DPTR` counts too.
int Fixe_Form_Suchen(std::string_view Zeile_Gross);
// Opcode of a comparison form: the template without operand bytes and blanks, as `MOVA,#`. -1 when
// it is none. Pages and forms without operand have none.
int Vergleichs_Form_Suchen(std::string_view Form);

} // namespace varnholt
