// Which text becomes which bytes: the fixed forms, the comparison forms with their range checks,
// and every opcode of a table of the tests' own.
#include "language/Befehle.h"
#include "language/Meldungs_Texte.h"
#include "language/Opcode_Tafel.h"

#include <rapidcheck/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

// A source text and the bytes that it gives.
struct Fall_T {
    std::string Text{};
    std::string Bytes{};
};

class Kodierer_Welt : public Assembler_Welt {
protected:
    void Erwarte(const std::vector<Fall_T>& Faelle)
    {
        for (const Fall_T& f : Faelle)
            EXPECT_EQ(Assembliere(f.Text), f.Bytes) << f.Text;
    }
    void Erwarte_Alle(const std::vector<std::string>& Texte, const std::string& Ergebnis)
    {
        for (const std::string& t : Texte)
            EXPECT_EQ(Assembliere(t), Ergebnis) << t;
    }
    // Each text is refused for a value that is no byte, and taken with the highest byte.
    void Erwarte_Byte_Pruefung(const std::vector<std::string>& Muster)
    {
        for (const std::string& m : Muster) {
            EXPECT_EQ(Assembliere(Ersetzt(m, "?", "256")), Byte_Bereich().E) << m;
            EXPECT_EQ(Assembliere(Ersetzt(m, "?", "99999999")), Byte_Bereich().E) << m;
            for (const char* Grenze : {"0", "255"}) {
                Laufen(Ersetzt(m, "?", Grenze));
                EXPECT_EQ(Assembler_Fehler, 0) << m << Letzte_Meldung();
            }
        }
    }
};

// --- the opcode table -----------------------------------------------------------------------

// The text of an opcode with numbers for its operands, and its bytes.
Fall_T Mit_Zahlen(const Tafel_Eintrag& e, int a, int b)
{
    std::string Bytes = Hex2(e.Opcode);
    if (const auto p = e.Text.find("!!"); p != std::string::npos) {
        const std::string Wort    = "0" + Hex2(a) + Hex2(b) + "h";
        const bool        Klammer = e.Opcode != 0x90; // a jump takes a number in brackets only
        return {Ersetzt(e.Text, "!!", Klammer ? "(" + Wort + ")" : Wort),
                Bytes + " " + Hex2(a) + " " + Hex2(b)};
    }
    std::string Text = e.Text;
    if (const auto p = Text.find('!'); p != std::string::npos) {
        Text.replace(p, 1, "0" + Hex2(a) + "h");
        Bytes += " " + Hex2(e.Opcode == 0x85 ? b : a);
    }
    if (const auto p = Text.find('!'); p != std::string::npos) {
        Text.replace(p, 1, "0" + Hex2(b) + "h");
        Bytes += " " + Hex2(e.Opcode == 0x85 ? a : b);
    }
    return {Text, Bytes};
}

bool Schreibbar(const Tafel_Eintrag& e) { return e.Opcode != 0xA5; }

TEST(Opcode_Tafel_Test, holds_each_of_the_256_opcodes_once)
{
    std::set<int> Gesehen;
    for (const Tafel_Eintrag& e : Opcode_Tafel())
        EXPECT_TRUE(Gesehen.insert(e.Opcode).second) << std::hex << e.Opcode;
    EXPECT_EQ(Gesehen.size(), 256U);
}

TEST(Opcode_Tafel_Test, agrees_with_the_program_in_text_length_and_kind)
{
    for (const Tafel_Eintrag& e : Opcode_Tafel()) {
        const auto Opcode = static_cast<std::uint8_t>(e.Opcode);
        EXPECT_EQ(Befehl_Text(Opcode), e.Text) << std::hex << e.Opcode;
        EXPECT_EQ(Befehl_Laenge(Opcode), e.Laenge) << std::hex << e.Opcode;
        EXPECT_EQ(Befehl_Art(Opcode), e.Art) << std::hex << e.Opcode;
    }
}

TEST_F(Kodierer_Welt, takes_every_opcode_with_numbers_in_both_readings_of_numbers)
{
    for (const bool Hexadezimal : {false, true}) {
        Zahlendeutung = Hexadezimal;
        for (const Tafel_Eintrag& e : Opcode_Tafel())
            if (Schreibbar(e))
                for (const auto& [a, b] : {std::pair{0, 0xFF}, {0xFF, 0}, {0x12, 0xAB}}) {
                    const Fall_T f = Mit_Zahlen(e, a, b);
                    EXPECT_EQ(Assembliere(f.Text), f.Bytes) << f.Text;
                    EXPECT_EQ(Befehl_Zaehler, 1) << f.Text;
                }
    }
}

TEST_F(Kodierer_Welt, takes_every_opcode_in_lower_case_with_blanks_and_tabs)
{
    for (const Tafel_Eintrag& e : Opcode_Tafel()) {
        if (!Schreibbar(e))
            continue;
        Fall_T f = Mit_Zahlen(e, 0x5A, 0xA5);
        for (char& c : f.Text)
            c = static_cast<char>(std::tolower(c));
        f.Text = "\t  " + Ersetzt(Ersetzt(f.Text, " ", " \t "), ",", "  , ") + " \t ; as typed";
        EXPECT_EQ(Assembliere(f.Text), f.Bytes) << f.Text;
    }
}

TEST_F(Kodierer_Welt, refuses_the_template_of_the_undefined_opcode)
{
    EXPECT_EQ(Assembliere("Nicht definiert"), Ohne_Prozessor.E);
}

// --- fixed forms ----------------------------------------------------------------------------

// clang-format off
const std::vector<Fall_T> Feste_Formen = {
    {"MOV A,@R0", "E6"}, {"MOV A,@R1", "E7"},
    {"MOVX A,@DPTR", "E0"}, {"MOVX A,@R0", "E2"}, {"MOVX A,@R1", "E3"},
    {"MOVX @DPTR,A", "F0"}, {"MOVX @R0,A", "F2"}, {"MOVX @R1,A", "F3"},
    {"MOV @R0,A", "F6"}, {"MOV @R1,A", "F7"},
    {"MOVC A,@A+PC", "83"}, {"MOVC A,@A+DPTR", "93"},
    {"INC A", "04"}, {"INC @R0", "06"}, {"INC @R1", "07"}, {"INC DPTR", "A3"},
    {"DEC A", "14"}, {"DEC @R0", "16"}, {"DEC @R1", "17"},
    {"ADD A,@R0", "26"}, {"ADD A,@R1", "27"},
    {"ADDC A,@R0", "36"}, {"ADDC A,@R1", "37"},
    {"ORL A,@R0", "46"}, {"ORL A,@R1", "47"},
    {"ANL A,@R0", "56"}, {"ANL A,@R1", "57"},
    {"XRL A,@R0", "66"}, {"XRL A,@R1", "67"},
    {"SUBB A,@R0", "96"}, {"SUBB A,@R1", "97"},
    {"XCH A,@R0", "C6"}, {"XCH A,@R1", "C7"},
    {"XCHD A,@R0", "D6"}, {"XCHD A,@R1", "D7"},
    {"RR A", "03"}, {"RRC A", "13"}, {"RET", "22"}, {"RL A", "23"}, {"RETI", "32"}, {"RLC A", "33"},
    {"CPL C", "B3"}, {"CLR C", "C3"}, {"CLR A", "E4"}, {"CPL A", "F4"},
    {"SWAP A", "C4"}, {"SETB C", "D3"}, {"DIV AB", "84"}, {"DA A", "D4"}, {"NOP", "00"},
    {"JMP @A,DPTR", "73"}, {"JMP @A+DPTR", "73"},
    {"MUL AB", "A4"},
};
// Forms over R0 to R7: the text with `*` for the number, and the opcode of R0.
const struct { const char* Text; int Opcode; } Feste_Register_Formen[] = {
    {"MOV A,R*", 0xE8}, {"MOV R*,A", 0xF8}, {"INC R*", 0x08}, {"DEC R*", 0x18}, {"ADD A,R*", 0x28},
    {"ADDC A,R*", 0x38}, {"ORL A,R*", 0x48}, {"ANL A,R*", 0x58}, {"XRL A,R*", 0x68},
    {"SUBB A,R*", 0x98}, {"XCH A,R*", 0xC8},
};
// clang-format on

TEST_F(Kodierer_Welt, takes_each_fixed_form) { Erwarte(Feste_Formen); }

TEST_F(Kodierer_Welt, takes_each_fixed_form_of_each_register)
{
    for (const auto& [Text, Opcode] : Feste_Register_Formen)
        for (int n = 0; n < 8; ++n)
            EXPECT_EQ(Assembliere(Ersetzt(Text, "*", std::to_string(n))), Hex2(Opcode + n)) << Text;
}

TEST_F(Kodierer_Welt, knows_no_further_register)
{
    for (const auto& [Text, Opcode] : Feste_Register_Formen)
        EXPECT_EQ(Assembliere(Ersetzt(Text, "*", "8")), Ohne_Prozessor.E) << Text << Opcode;
    Erwarte_Alle({"MOV A,@R2", "MOVX A,@R2", "XCHD A,@R2", "XCHD A,R0", "INC @R2"},
                 Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, normalises_a_line_before_it_is_compared)
{
    Erwarte({{"mov a , r0", "E8"}, {"  Mov\tA ,\tR0  ; copy", "E8"}, {"nop ' comment", "00"}});
}

TEST_F(Kodierer_Welt, refuses_a_fixed_form_in_another_spelling)
{
    Erwarte_Alle({"MOVA,R0",
                  "INCA",
                  "INCR0",
                  "DIVAB",
                  "MULAB",
                  "MUL A,B",
                  "RETX",
                  "RET I",
                  "NOP NOP",
                  "MOVC A,@A + DPTR",
                  "CLR A C"},
                 Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, lets_no_name_touch_a_fixed_form)
{
    EXPECT_EQ(Assembliere("R0 EQU 5\nA EQU 6\nMOV A,R0\nINC A"), "E8 04");
}

// --- steps 2 to 5: push, far jumps, pointer ---------------------------------------------------

TEST_F(Kodierer_Welt, takes_PUSHA_and_POPA_without_a_value_only)
{
    Erwarte({{"PUSHA", "C0 E0"}, {"POPA", "D0 E0"}, {"pusha", "C0 E0"}});
    Erwarte_Alle({"PUSHA 5", "POPA 5"}, Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, takes_far_jumps_to_a_number_in_brackets)
{
    Erwarte({{"JMP (100h)", "02 01 00"},
             {"LJMP (100h)", "02 01 00"},
             {"CALL (1234h)", "12 12 34"},
             {"LCALL (1234h)", "12 12 34"},
             {"LJMP (65535)", "02 FF FF"},
             {"LJMP (0)", "02 00 00"},
             {"LJMP $", "02 00 00"},
             {"NOP\nCALL $", "00 12 00 01"},
             {"LJMP (100h+5)", "02 01 05"},
             {"X EQU 1234h\nLJMP (X)", "02 12 34"}});
}

TEST_F(Kodierer_Welt, refuses_a_far_jump_to_a_number_without_brackets)
{
    Erwarte_Alle(
        {"JMP 100h", "LJMP 100h", "CALL 100h", "LCALL 100h", "AJMP 100h", "ACALL 100h", "LJMP 1,2"},
        Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, checks_far_addresses_as_words)
{
    for (const char* Text : {"JMP (65536)",
                             "LJMP (65536)",
                             "CALL (65536)",
                             "LCALL (10000h)",
                             "MOV DPTR,#65536",
                             "MOV DPTR,#(65536)"})
        Erwarte_Fehler(Text, Wort_Bereich().D, Wort_Bereich().E);
    Zahlendeutung = true;
    Erwarte_Fehler("LJMP (10000)", Wort_Bereich(true).D, Wort_Bereich(true).E);
}

TEST_F(Kodierer_Welt, loads_the_data_pointer)
{
    Erwarte({{"MOV DPTR,#1234h", "90 12 34"},
             {"MOV DPTR,#(1234h)", "90 12 34"},
             {"MOV DPTR,#65535", "90 FF FF"},
             {"MOV DPTR,#5", "90 00 05"},
             {"NOP\nMOV DPTR,#$", "00 90 00 01"},
             {"MOV DPTR,#2+3", "90 00 05"},
             {"MOV DPTR,#X\nX: NOP", "90 00 03 00"},
             {"MOV DPTR,#X+5\nX: NOP", "90 00 08 00"},
             {"MOV DPTR,#X-2\nX: NOP", "90 00 01 00"},
             {"MOV DPTR,#X+200h\nX: NOP", "90 02 03 00"},
             {"MOV DPTR,#X+300\nX: NOP", "90 01 2F 00"},
             {"MOV DPTR,#X-3\nX: NOP", "90 00 00 00"},
             {"MOV DPTR,#-5", "90 FF FF"}}); // an addend without a label: nothing to patch
    Erwarte_Alle({"MOV DPTR,#X*2\nX:", "MOV DPTR,5", "MOV DPTR,#1,2"}, Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, refuses_an_addend_that_leads_below_address_0)
{
    Erwarte_Fehler("MOV DPTR,#X-4\nX: NOP", Ziel_Ungueltig.D, Ziel_Ungueltig.E);
    Erwarte_Fehler("X: MOV DPTR,#X-1", Ziel_Ungueltig.D, Ziel_Ungueltig.E);
}

// --- step 4: two values, three bytes ---------------------------------------------------------

// Forms that take two values, with their opcode; the second is an offset or an address in brackets.
// clang-format off
const std::vector<Fall_T> Zwei_Werte = {
    {"CJNE A,#?,", "B4"}, {"CJNE A,?,", "B5"}, {"CJNE @R0,#?,", "B6"}, {"CJNE @R1,#?,", "B7"},
    {"CJNE R0,#?,", "B8"}, {"CJNE R1,#?,", "B9"}, {"CJNE R2,#?,", "BA"}, {"CJNE R3,#?,", "BB"},
    {"CJNE R4,#?,", "BC"}, {"CJNE R5,#?,", "BD"}, {"CJNE R6,#?,", "BE"}, {"CJNE R7,#?,", "BF"},
    {"JBC ?,", "10"}, {"JB ?,", "20"}, {"JNB ?,", "30"}, {"DJNZ ?,", "D5"},
};
// clang-format on

TEST_F(Kodierer_Welt, takes_offset_address_and_label_in_each_form_of_two_values)
{
    for (const auto& [Muster, Opcode] : Zwei_Werte) {
        const std::string Text = Ersetzt(Muster, "?", "34h");
        Erwarte({{Text + "56h", Opcode + " 34 56"},
                 {Text + "0", Opcode + " 34 00"},
                 {Text + "$", Opcode + " 34 FD"},
                 {Text + "(5)", Opcode + " 34 02"},
                 {Text + "(129)", Opcode + " 34 7E"},
                 {Text + "X\nNOP\nX: RET", Opcode + " 34 01 00 22"},
                 {"X: NOP\n" + Text + "x", "00 " + Opcode + " 34 FC"}});
    }
}

TEST_F(Kodierer_Welt, checks_both_values_of_a_form_of_two_values_as_bytes)
{
    for (const Fall_T& f : Zwei_Werte)
        Erwarte_Byte_Pruefung({f.Text + "5", Ersetzt(f.Text, "?", "5") + "?", f.Text + "X\nX:"});
}

TEST_F(Kodierer_Welt, refuses_an_address_in_brackets_that_is_too_far_in_each_form)
{
    for (const Fall_T& f : Zwei_Werte)
        EXPECT_EQ(Assembliere(Ersetzt(f.Text, "?", "5") + "(130)"), Zu_Weit.E) << f.Text;
    for (const char* Text : {"SJMP (130)",
                             "JZ (130)",
                             "JNZ (130)",
                             "JC (130)",
                             "JNC (130)",
                             "DJNZ R0,(130)",
                             "ORG 200h\nSJMP (181h)"})
        EXPECT_EQ(Assembliere(Text), Zu_Weit.E) << Text;
    Erwarte_Fehler("SJMP (130)", Zu_Weit.D, Zu_Weit.E);
    Erwarte_Fehler("JB 5,(130)", Zu_Weit.D, Zu_Weit.E);
}

TEST_F(Kodierer_Welt, wraps_a_three_byte_jump_of_minus_126_to_127)
{
    EXPECT_EQ(Assembliere("ORG 126\nCJNE A,#1,(0)").substr(126 * 3), "B4 01 7F");
    EXPECT_EQ(Assembliere("ORG 127\nCJNE A,#1,(0)"), Zu_Weit.E);
}

TEST_F(Kodierer_Welt, takes_the_accumulator_in_DJNZ)
{
    Erwarte({{"LOOP: DJNZ A,LOOP", "D5 E0 FD"},
             {"DJNZ A,X\nNOP\nX:", "D5 E0 01 00"},
             {"DJNZ A,$", "D5 E0 FF"}, // only a label sets the offset
             {"DJNZ A,5", "D5 E0 FF"}});
}

TEST_F(Kodierer_Welt, knows_no_form_for_registers_beyond_seven)
{
    Erwarte_Alle({"CJNE R8,#5,3", "CJNE @R2,#5,3", "CJNE R0,5,3", "DJNZ R8,5", "DJNZ @R0,5"},
                 Ohne_Prozessor.E);
}

// --- steps 6, 7, 9, 10: two bytes ------------------------------------------------------------

// clang-format off
const std::vector<Fall_T> Ein_Wert = {
    // MOV
    {"MOV A,#?", "74"}, {"MOV A,?", "E5"}, {"MOV @R0,#?", "76"}, {"MOV @R1,#?", "77"},
    {"MOV @R0,?", "A6"}, {"MOV @R1,?", "A7"}, {"MOV ?,@R0", "86"}, {"MOV ?,@R1", "87"},
    {"MOV C,?", "A2"}, {"MOV ?,C", "92"}, {"MOV ?,A", "F5"},
    {"MOV R0,#?", "78"}, {"MOV R1,#?", "79"}, {"MOV R2,#?", "7A"}, {"MOV R3,#?", "7B"},
    {"MOV R4,#?", "7C"}, {"MOV R5,#?", "7D"}, {"MOV R6,#?", "7E"}, {"MOV R7,#?", "7F"},
    {"MOV R0,?", "A8"}, {"MOV R1,?", "A9"}, {"MOV R2,?", "AA"}, {"MOV R3,?", "AB"},
    {"MOV R4,?", "AC"}, {"MOV R5,?", "AD"}, {"MOV R6,?", "AE"}, {"MOV R7,?", "AF"},
    {"MOV ?,R0", "88"}, {"MOV ?,R1", "89"}, {"MOV ?,R2", "8A"}, {"MOV ?,R3", "8B"},
    {"MOV ?,R4", "8C"}, {"MOV ?,R5", "8D"}, {"MOV ?,R6", "8E"}, {"MOV ?,R7", "8F"},
    // ADD, ORL, ANL
    {"ADD A,#?", "24"}, {"ADD A,?", "25"}, {"ADDC A,#?", "34"}, {"ADDC A,?", "35"},
    {"ORL A,#?", "44"}, {"ORL A,?", "45"}, {"ORL C,/?", "A0"}, {"ORL C,?", "72"}, {"ORL ?,A", "42"},
    {"ANL A,#?", "54"}, {"ANL A,?", "55"}, {"ANL C,/?", "B0"}, {"ANL C,?", "82"}, {"ANL ?,A", "52"},
    // DJNZ, XRL
    {"DJNZ R0,?", "D8"}, {"DJNZ R1,?", "D9"}, {"DJNZ R2,?", "DA"}, {"DJNZ R3,?", "DB"},
    {"DJNZ R4,?", "DC"}, {"DJNZ R5,?", "DD"}, {"DJNZ R6,?", "DE"}, {"DJNZ R7,?", "DF"},
    {"XRL A,#?", "64"}, {"XRL A,?", "65"}, {"XRL ?,A", "62"},
    // exact forms
    {"INC ?", "05"}, {"DEC ?", "15"}, {"CPL ?", "B2"}, {"SETB ?", "D2"}, {"CLR ?", "C2"},
    {"SUBB A,#?", "94"}, {"SUBB A,?", "95"}, {"XCH A,?", "C5"}, {"PUSH ?", "C0"}, {"POP ?", "D0"},
    {"SJMP ?", "80"}, {"JZ ?", "60"}, {"JNZ ?", "70"}, {"JC ?", "40"}, {"JNC ?", "50"},
};
// clang-format on

TEST_F(Kodierer_Welt, takes_one_value_in_each_form_of_two_bytes)
{
    for (const auto& [Muster, Opcode] : Ein_Wert)
        for (const auto& [Zahl, Byte] :
             {std::pair{"0", "00"}, {"255", "FF"}, {"12h", "12"}, {"!101", "05"}, {"%7", "07"}})
            EXPECT_EQ(Assembliere(Ersetzt(Muster, "?", Zahl)), Opcode + " " + Byte) << Muster;
}

TEST_F(Kodierer_Welt, checks_the_value_of_each_form_of_two_bytes)
{
    for (const Fall_T& f : Ein_Wert)
        Erwarte_Byte_Pruefung({f.Text});
    Erwarte_Fehler("MOV A,#256", Byte_Bereich().D, Byte_Bereich().E);
    Zahlendeutung = true;
    Erwarte_Fehler("MOV A,#100", Byte_Bereich(true).D, Byte_Bereich(true).E);
}

TEST_F(Kodierer_Welt, checks_a_group_before_it_looks_at_the_form)
{
    for (const char* Text : {"FOO EQU 5\nMOV FOO,#300",
                             "MOV QQ,#300",
                             "MOV DPTR,70000",
                             "MOVC A,#300",
                             "MOVX A,300",
                             "ADD Q,#300",
                             "ADDFOO 300",
                             "ORL Q,#300",
                             "ANL Q,#300",
                             "XRL Q,#300",
                             "DJNZ R9,300",
                             "CJNE Q,#300,5",
                             "CJNE Q,#5,300",
                             "CJNE Q,#300,X"})
        EXPECT_EQ(Assembliere(Text), Byte_Bereich().E) << Text;
    for (const char* Text : {"SUBB Q,#300", "INC Q,300", "PUSH Q,300", "FOO 300"})
        EXPECT_EQ(Assembliere(Text), Ohne_Prozessor.E) << Text;
}

TEST_F(Kodierer_Welt, uses_the_first_value_of_several_in_a_form_of_two_bytes)
{
    Erwarte({{"MOV A,#1 2", "74 01"},
             {"MOV A,1 2", "E5 01"},
             {"ADD A,#1 2 3", "24 01"},
             {"DJNZ R0,1 2", "D8 01"},
             {"XRL A,1 2", "65 01"},
             {"PUSH 1 2", "C0 01"},
             {"SJMP 5 6", "80 05"}});
}

// A word keeps its form when the value is left out, and takes the value of the line before.
TEST_F(Kodierer_Welt, takes_the_value_of_the_last_line_when_a_form_has_none)
{
    Erwarte({{"DB 12h\nMOV A,#", "12 74 12"},
             {"DB 12h\nMOV A,", "12 E5 12"},
             {"DB 12h\nADD A,#", "12 24 12"},
             {"DB 12h\nORL C,/", "12 A0 12"},
             {"DB 12h\nXRL A,", "12 65 12"},
             {"DB 12h\nDJNZ R5,", "12 DD 12"},
             {"DB 12h\nPUSH", "12 C0 12"},
             {"DB 12h\nSETB", "12 D2 12"},
             {"DB 12h\nSJMP", "12 80 12"},
             {"DB 12h\nJZ", "12 60 12"},
             {"DB 12h,34h\nINC", "12 34 05 12"},
             {"DB 12h\nMOV A,R0\nINC", "12 E8 05 12"},
             {"INC", "05 00"}});
}

TEST_F(Kodierer_Welt, checks_no_range_for_a_value_of_the_last_line)
{
    Laufen("DW 300\nMOV A,#");
    EXPECT_EQ(Assembler_Fehler, 0) << Letzte_Meldung();
    EXPECT_EQ(Hex_Text(2, 3), "74");
}

TEST_F(Kodierer_Welt, reads_empty_brackets_of_a_far_jump_as_address_0)
{
    Erwarte({{"DB 5\nLJMP ()", "05 02 00 00"}, {"DB 5\nCALL ()", "05 12 00 00"}});
}

// --- jumps by offset, address and label -------------------------------------------------------

TEST_F(Kodierer_Welt, takes_a_plain_number_as_the_offset_itself)
{
    Erwarte({{"SJMP 5", "80 05"}, {"JZ 254", "60 FE"}, {"JNC 0", "50 00"}, {"DJNZ R2,9", "DA 09"}});
}

TEST_F(Kodierer_Welt, takes_the_dollar_sign_as_an_address)
{
    Erwarte({{"SJMP $", "80 FE"},
             {"DJNZ R3,$", "DB FE"},
             {"CJNE A,#1,$", "B4 01 FD"},
             {"P1 DATA 90h\nJB P1.0,$", "20 90 FD"},
             {"JNZ $", "70 FE"},
             {"NOP\nNOP\nJC $", "00 00 40 FE"}});
}

TEST_F(Kodierer_Welt, takes_an_address_in_brackets_in_each_relative_form)
{
    for (const auto& [Befehl, Opcode] : {std::pair{"SJMP", "80"},
                                         {"JZ", "60"},
                                         {"JNZ", "70"},
                                         {"JC", "40"},
                                         {"JNC", "50"},
                                         {"DJNZ R7,", "DF"}}) {
        const std::string Kopf = std::string(Befehl) + " ", Code = Opcode;
        Erwarte({{Kopf + "(0)", Code + " FE"},
                 {Kopf + "(2)", Code + " 00"},
                 {Kopf + "(129)", Code + " 7F"},
                 {Kopf + "(1+2)", Code + " 01"}});
        EXPECT_EQ(Assembliere("ORG 126\n" + Kopf + "(0)").substr(126 * 3), Code + " 80");
        EXPECT_EQ(Assembliere("ORG 127\n" + Kopf + "(0)"), Zu_Weit.E);
    }
}

// Words that need no blank before a label, with the bytes of a jump to the label behind them.
TEST_F(Kodierer_Welt, takes_each_jump_to_a_label_with_and_without_a_blank)
{
    for (const auto& [Wort, Bytes] : {std::pair{"SJMP", "80 00"},
                                      {"AJMP", "01 02"},
                                      {"ACALL", "11 02"},
                                      {"JZ", "60 00"},
                                      {"JNZ", "70 00"},
                                      {"JC", "40 00"},
                                      {"JNC", "50 00"},
                                      {"LJMP", "02 00 03"},
                                      {"JMP", "02 00 03"},
                                      {"LCALL", "12 00 03"},
                                      {"CALL", "12 00 03"}}) {
        const std::string w = Wort;
        Erwarte({{w + " FOO\nFOO:", Bytes}, {w + "FOO\nfoo:", Bytes}, {w + "  foo\nFOO:", Bytes}});
    }
    for (int n = 0; n < 8; ++n)
        EXPECT_EQ(Assembliere("DJNZ R" + std::to_string(n) + ",FOO\nFOO:"), Hex2(0xD8 + n) + " 00");
}

TEST_F(Kodierer_Welt, takes_any_text_that_begins_like_a_jump_as_a_jump)
{
    Erwarte_Fehler("JZFOO", Marke_Fehlt.D, Marke_Fehlt.E);
    Erwarte_Alle({"JCFOO", "JMPER", "CALLER", "SJMPS", "AJMPER", "JNCX", "JMP A", "JMP @ A+DPTR"},
                 Marke_Fehlt.E);
}

TEST_F(Kodierer_Welt, leaves_a_jump_without_any_target_open)
{
    Erwarte({{"LCALL", "12 FF FF"},
             {"CALL", "12 FF FF"},
             {"LJMP", "02 FF FF"},
             {"JMP", "02 FF FF"},
             {"AJMP", "01 FF"},
             {"ACALL", "11 FF"}});
}

TEST_F(Kodierer_Welt, never_shortens_a_far_jump)
{
    Erwarte({{"X: JMP X", "02 00 00"}, {"X: CALL X", "12 00 00"}});
}

// --- step 11: pages ---------------------------------------------------------------------------

TEST_F(Kodierer_Welt, takes_a_page_and_a_low_byte)
{
    for (int Seite = 0; Seite < 8; ++Seite) {
        const std::string s = std::to_string(Seite);
        Erwarte({{"ACALL " + s + ",12h", Hex2(0x11 + 0x20 * Seite) + " 12"},
                 {"AJMP " + s + ",255", Hex2(0x01 + 0x20 * Seite) + " FF"}});
    }
    EXPECT_EQ(Assembliere("ACALL 3,12h"), "71 12");
}

TEST_F(Kodierer_Welt, takes_any_page_above_seven_as_seven_for_AJMP_but_not_for_ACALL)
{
    Erwarte({{"AJMP 8,5", "E1 05"}, {"AJMP 255,5", "E1 05"}});
    Erwarte_Alle({"ACALL 8,5", "ACALL 255,5"}, Ohne_Prozessor.E);
    Erwarte_Alle({"AJMP 256,5", "ACALL 256,5"}, Byte_Bereich().E);
}

TEST_F(Kodierer_Welt, ends_a_low_byte_above_255_with_the_message_of_the_byte_range)
{
    Erwarte_Fehler("AJMP 1,256", Byte_Bereich().D, Byte_Bereich().E);
    Erwarte_Fehler("ACALL 1,256", Byte_Bereich().D, Byte_Bereich().E);
}

TEST_F(Kodierer_Welt, takes_exactly_two_values_for_a_page_jump)
{
    Erwarte_Alle({"AJMP 1", "ACALL 1", "AJMP 1,2 3", "ACALL 1,2 3"}, Ohne_Prozessor.E);
    EXPECT_EQ(Assembliere("DB 1,2\nAJMP ,"), Marke_Fehlt.E);
}

// --- steps 14 and 15 --------------------------------------------------------------------------

TEST_F(Kodierer_Welt, takes_address_and_constant)
{
    Erwarte({{"ORL 30h,#5", "43 30 05"},
             {"ANL 30h,#5", "53 30 05"},
             {"XRL 30h,#5", "63 30 05"},
             {"MOV 30h,#5", "75 30 05"},
             {"MOV 255,#255", "75 FF FF"}});
    for (const char* Wort : {"ORL ", "ANL ", "XRL ", "MOV "})
        Erwarte_Byte_Pruefung({std::string(Wort) + "?,#5", std::string(Wort) + "5,#?"});
}

TEST_F(Kodierer_Welt, moves_from_address_to_address_in_the_order_of_the_option)
{
    EXPECT_EQ(Assembliere("MOV 30h,40h"), "85 40 30");
    O_MOV_ZQ = false;
    EXPECT_EQ(Assembliere("MOV 30h,40h"), "85 30 40");
    Erwarte({{"MOV 30h,#40h", "75 30 40"}, {"MOV A,30h", "E5 30"}});
}

TEST_F(Kodierer_Welt, checks_both_addresses_of_a_move)
{
    for (const bool Ziel_Zuerst : {true, false}) {
        O_MOV_ZQ = Ziel_Zuerst;
        Erwarte_Byte_Pruefung({"MOV ?,5", "MOV 5,?"});
    }
}

TEST_F(Kodierer_Welt, takes_no_third_value_for_address_and_constant)
{
    Erwarte_Alle({"ORL 1,#2 3", "MOV 1,2 3", "ANL 1,2", "XRL 1,2", "ORL 1,2"}, Ohne_Prozessor.E);
}

// --- unknown lines, error tokens --------------------------------------------------------------

TEST_F(Kodierer_Welt, distinguishes_a_constant_from_an_address)
{
    Erwarte({{"MOV A,#5", "74 05"},
             {"MOV A,5", "E5 05"},
             {"ANL C,/20h", "B0 20"},
             {"ORL C,/20h", "A0 20"}});
    Erwarte_Alle({"MOV A,#-5", "MOV #5,A", "INC #5", "PUSH #5", "SETB #5"}, Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, hints_at_the_processor_file_on_an_unknown_line)
{
    Erwarte_Fehler("FOO", Ohne_Prozessor.D, Ohne_Prozessor.E);
    Erwarte_Fehler("NOP\nMOV A,P1", Ohne_Prozessor.D, Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, says_unknown_instruction_when_a_processor_file_is_included)
{
    Programm_Pfad = std::string(VARNHOLT_DATA) + "/";
    Erwarte_Fehler("Include 8051.mc\nFOO", Unbekannter_Befehl.D, Unbekannter_Befehl.E);
    EXPECT_EQ(Assembliere("Include 8051.mc\nMOV A,P1"), "E5 90");
}

TEST_F(Kodierer_Welt, hints_at_the_processor_file_when_only_other_files_are_included)
{
    const Arbeitsordner Ordner;
    Ordner.Anlegen("defs.inc", "X EQU 5\r\n");
    Datei_Name = (Ordner.Pfad / "a.asm").string();
    Erwarte_Fehler("INCLUDE defs.inc\nFOO", Ohne_Prozessor.D, Ohne_Prozessor.E);
}

TEST_F(Kodierer_Welt, has_a_message_for_each_error_token)
{
    const std::pair<const char*, Text_Paar> Token[] = {
        {"ERR2",
         {"ACALL Befehle müssen als Sprungziel einen Wert zwischen 00 und FF oder %00 und %255 "
          "haben !",
          "ACALL instructions must have a jumptarget between 00 and FF or %00 and %255 !"}},
        {"ERR3",
         {"AJMP Befehle müssen als Sprungziel einen Wert zwischen 00 und FF oder %00 und %255 "
          "haben !",
          "AJMP instructions must have a jumptarget between 00 and FF or %00 and %255 !"}},
        {"ERR4", {"END IF ohne IF...THEN !", "END IF without IF...THEN !"}},
        {"ERR5",
         {"Der Wert des Bytes kann nicht größer als 255 werden! Wählen Sie einen Wert zwischen 00 "
          "und FE oder %00 und %254.",
          "The value of a byte can't be higher than 255. Please choose a value between 00 and FE "
          "or between %00 and %254."}},
        {"ERR6",
         {"Der Wert des Bytes kann nicht kleiner als 0 werden! Wählen Sie einen Wert zwischen 01 "
          "und FF oder %01 und %255.",
          "The value of a byte can't be lower than 0. Please choose a value between 01 and FF or "
          "between %01 and %255."}},
        {"ERR8",
         {"Der erste Wert der For...To Anweisung muss kleiner als der zweite Wert sein.",
          "The first value of the For...To Instruction must be lower than the second value."}},
        {"ERR9", {"NEXT ohne FOR...TO !", "NEXT without FOR...TO !"}},
        {"ERR10",
         {"Bitte nutzen Sie bei der EQU Anweisung einen der folgenden Beispiel-Strukturen:\r\nNAME "
          "EQU FF oder NAME EQU PORT1",
          "Please use for the EQU instruction one of the following example structures:\r\nNAME EQU "
          "FF or NAME EQU PORT1"}},
    };
    for (const auto& [Text, Meldung] : Token)
        Erwarte_Fehler(Text, Meldung.D, Meldung.E);
    Erwarte_Fehler("err2", Token[0].second.D, Token[0].second.E);
    Erwarte_Alle({"ERR7", "ERR1", "ERR11"}, Ohne_Prozessor.E);
}

// --- random programs --------------------------------------------------------------------------

// Random instructions with random numbers, and the bytes that they are.
Fall_T Zufalls_Programm(int Laenge)
{
    Fall_T     Programm;
    const auto Tafel = Opcode_Tafel();
    for (int i = 0; i < Laenge; ++i) {
        const auto&  e = Tafel[*rc::gen::inRange<std::size_t>(0, Tafel.size())];
        const Fall_T f = Mit_Zahlen(e, *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256));
        if (!Schreibbar(e))
            continue;
        Programm.Text += f.Text + "\n";
        Programm.Bytes += (Programm.Bytes.empty() ? "" : " ") + f.Bytes;
    }
    return Programm;
}

RC_GTEST_FIXTURE_PROP(Kodierer_Welt, assembles_random_instructions_to_exactly_their_bytes, ())
{
    Zahlendeutung  = *rc::gen::arbitrary<bool>();
    const Fall_T f = Zufalls_Programm(*rc::gen::inRange(1, 60));
    RC_ASSERT(Assembliere(f.Text) == f.Bytes);
    RC_ASSERT(Befehl_Zaehler == std::count(f.Text.begin(), f.Text.end(), '\n'));
}

} // namespace
} // namespace varnholt::test
