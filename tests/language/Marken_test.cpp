// Labels: how they are found in a line, and how the two patching sweeps put their addresses in
// place.
#include "language/Meldungs_Texte.h"
#include "language/Opcode_Tafel.h"

#include <rapidcheck/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

class Marken_Welt : public Assembler_Welt {
protected:
    void Erwarte(const std::vector<std::pair<std::string, std::string>>& Faelle)
    {
        for (const auto& [Text, Ergebnis] : Faelle)
            EXPECT_EQ(Assembliere(Text), Ergebnis) << Text;
    }
    static std::string Marke(std::size_t Zeile)
    {
        return std::string{Quell_Zeilen.at(Zeile).Marke.Ansicht()};
    }
    // Assembles and gives the bytes from an address on.
    std::string Ab(int Adresse, const std::string& Text, int Anzahl)
    {
        const std::string Ergebnis = Assembliere(Text);
        return Assembler_Fehler == 0 ? Hex_Text(Adresse, Adresse + Anzahl) : Ergebnis;
    }
};

// --- finding ----------------------------------------------------------------------------------

TEST_F(Marken_Welt, cuts_a_label_and_one_blank_from_its_line)
{
    Laufen("Loop: nop\nx:RET\nalone:\n  last :\n");
    EXPECT_EQ(Letzte_Meldung(), Marken_Zeichen.E);
    Laufen("Loop: nop\nx:RET\nalone:\n");
    EXPECT_EQ(Marke(0), "LOOP:");
    EXPECT_EQ(Zeilen_Text(0), "nop");
    EXPECT_EQ(Marke(1), "X:");
    EXPECT_EQ(Zeilen_Text(1), "RET");
    EXPECT_EQ(Marke(2), "ALONE:");
    EXPECT_EQ(Zeilen_Text(2), "");
}

TEST_F(Marken_Welt, refuses_each_forbidden_character_in_a_label)
{
    for (const char* Text : {"A B: NOP",
                             "A\\B: NOP",
                             "A/B: NOP",
                             "A<B: NOP",
                             "A>B: NOP",
                             "A=B: NOP",
                             "X\"A;B\"Y: NOP",
                             "IF A=#5: NOP",
                             "NOP X:"})
        Erwarte_Fehler(Text, Marken_Zeichen.D, Marken_Zeichen.E);
}

TEST_F(Marken_Welt, allows_every_other_character_in_a_label)
{
    for (const char* Name :
         {"1",    "123", "_X",  "X.Y", "X-Y", "X+Y", "X,Y", "#X",    "@X",   "$X", "%",
          "X(Y)", "NOP", "MOV", "A",   "R0",  "C",   "DBX", "ASCII", "HEXE", "P1", "\xC4\xD6"})
        EXPECT_EQ(Assembliere(std::string(Name) + ": NOP"), "00") << Name;
}

TEST_F(Marken_Welt, may_call_a_label_like_a_number_a_mnemonic_or_a_register)
{
    for (const char* Name : {"1", "5", "NOP", "MOV", "A", "C", "R0", "DBX", "100h"})
        Erwarte({{std::string(Name) + ": SJMP " + Name, "80 FE"},
                 {"NOP\n" + std::string(Name) + ": LJMP " + Name, "00 02 00 01"}});
}

TEST_F(Marken_Welt, takes_no_label_from_a_data_line)
{
    Erwarte({{"DB: 5", "05"},
             {"DW: 5", "00 05"},
             {"HEX: 5", "05"},
             {"DEZ: 5", "05"},
             {"ASC: a:b", "61 3A 62"},
             {"db:\"a:b\"", "61 3A 62"},
             {"asc:X: NOP", "58 3A 20 4E 4F 50"}});
    Laufen("DB: 5\nASC: X: Y");
    EXPECT_EQ(Marke(0), "");
    EXPECT_EQ(Marke(1), "");
}

TEST_F(Marken_Welt, takes_no_colon_in_quotes_for_a_label)
{
    Erwarte({{"DB \"a:b\"", "61 3A 62"}, {"X: DB \"a:b\"", "61 3A 62"}});
}

TEST_F(Marken_Welt, takes_no_label_from_a_fixed_address)
{
    EXPECT_EQ(Ab(0x100, "(100h): NOP", 1), "00");
    EXPECT_EQ(Marke(0), "");
    Erwarte_Fehler("(100h): X: NOP", Marken_Zeichen.D, Marken_Zeichen.E);
}

TEST_F(Marken_Welt, takes_one_label_from_a_line)
{
    EXPECT_EQ(Assembliere("X: Y: NOP"), Ohne_Prozessor.E);
    EXPECT_EQ(Marke(0), "X:");
    EXPECT_EQ(Zeilen_Text(0), "Y: NOP");
}

TEST_F(Marken_Welt, refuses_a_label_twice_without_regard_to_case)
{
    for (const char* Text :
         {"Loop: NOP\nLOOP: NOP", "x:\n\n\nX:", "X: NOP\nEND\nX: NOP", "\xE4: NOP\n\xC4: NOP"})
        Erwarte_Fehler(Text, Marke_Doppelt.D, Marke_Doppelt.E);
}

TEST_F(Marken_Welt, refuses_a_label_twice_over_all_files)
{
    const Arbeitsordner Ordner;
    Ordner.Anlegen("x.inc", "X: NOP\r\n");
    Datei_Name = (Ordner.Pfad / "a.asm").string();
    EXPECT_EQ(Assembliere("INCLUDE x.inc\nSJMP X"), "00 80 FD");
    EXPECT_EQ(Assembliere("X: NOP\nINCLUDE x.inc"),
              "Error in the include file!: " + Marke_Doppelt.E);
    EXPECT_EQ(Assembliere("INCLUDE x.inc\nX: NOP"), Marke_Doppelt.E);
    Sprache = "D";
    EXPECT_EQ(Assembliere("INCLUDE x.inc\nINCLUDE x.inc"),
              "Fehler in der einzubindenden Datei: " + Marke_Doppelt.D);
}

TEST_F(Marken_Welt, shows_the_second_of_two_equal_labels)
{
    Laufen("X: NOP\nNOP\nX: RET\n");
    EXPECT_EQ(Auswahl(), "X: RET");
}

// --- addresses --------------------------------------------------------------------------------

TEST_F(Marken_Welt, gives_a_label_alone_the_address_of_the_next_code)
{
    Erwarte({{"NOP\nX:\n\n; nothing\nRET\nLJMP X", "00 22 02 00 01"},
             {"X:\nY: SJMP X", "80 FE"},
             {"SJMP X\nNOP\nX:", "80 01 00"}});
}

TEST_F(Marken_Welt, gives_a_label_the_address_of_its_rows_first_byte)
{
    Erwarte({{"X: DB 1,2\nLJMP X", "01 02 02 00 00"},
             {"NOP\nX: MOV A,#5\nLJMP X", "00 74 05 02 00 01"}});
    EXPECT_EQ(Ab(0, "LJMP X\nX: (100h): NOP", 3), "02 01 00");
    EXPECT_EQ(Ab(0, "LJMP X\nX: ORG 100h\nNOP", 3), "02 00 03");
    EXPECT_EQ(Ab(0, "LJMP X\nORG 100h\nX: NOP", 3), "02 01 00");
}

TEST_F(Marken_Welt, gives_a_label_behind_END_the_address_0)
{
    EXPECT_EQ(Assembliere("NOP\nLJMP X\nEND\nX: NOP"), "00 02 00 00");
}

TEST_F(Marken_Welt, puts_high_and_low_byte_into_far_jumps_and_the_pointer)
{
    for (const auto& [Text, Opcode] : {std::pair{"LJMP x", "02"},
                                       {"JMP x", "02"},
                                       {"LCALL x", "12"},
                                       {"CALL x", "12"},
                                       {"MOV DPTR,#x", "90"}}) {
        const std::string t = Text, o = Opcode;
        EXPECT_EQ(Ab(0, t + "\nORG 1234h\nX: NOP", 3), o + " 12 34");
        EXPECT_EQ(Ab(0, t + "\nORG 65535\nX: NOP", 3), o + " FF FF");
        EXPECT_EQ(Ab(0x200, "X: NOP\nORG 200h\n" + t, 3), o + " 00 00");
    }
}

TEST_F(Marken_Welt, reads_a_bracket_that_is_no_number_of_this_reading_as_hexadecimal)
{
    Erwarte({{"LJMP (FFFF)", "02 FF FF"},
             {"JMP (1AB)", "02 01 AB"},
             {"CALL (abcd)", "12 AB CD"},
             {"LCALL (FF)", "12 00 FF"},
             {"MOV DPTR,#(FFFF)", "90 FF FF"},
             {"LJMP (FFFF", "02 0F FF"}});
}

TEST_F(Marken_Welt, refuses_a_bracket_that_is_no_number)
{
    for (const char* Text :
         {"LJMP (GGGG)", "CALL (X)", "JMP (1X)", "MOV DPTR,#(FOO)", "X: LJMP (X)"})
        Erwarte_Fehler(Text, Klammer_Falsch.D, Klammer_Falsch.E);
}

TEST_F(Marken_Welt, misses_a_label_that_stands_nowhere)
{
    for (const char* Text : {"LJMP X",
                             "JMP X",
                             "LCALL X",
                             "CALL X",
                             "MOV DPTR,#X",
                             "MOV DPTR,#X+1",
                             "AJMP X",
                             "ACALL X",
                             "SJMP X",
                             "JZ X",
                             "JNZ X",
                             "JC X",
                             "JNC X",
                             "DJNZ R0,X",
                             "DJNZ 5,X",
                             "DJNZ A,X",
                             "JB 5,X",
                             "JNB 5,X",
                             "JBC 5,X",
                             "CJNE A,#5,X",
                             "CJNE A,5,X",
                             "CJNE @R0,#5,X",
                             "CJNE R0,#5,X",
                             "AJMP (FFFF)",
                             "SJMP (FFFF)",
                             "SJMP FOO\nFOO EQU 5",
                             "SJMP X\nY: NOP\nXX: NOP"})
        Erwarte_Fehler(Text, Marke_Fehlt.D, Marke_Fehlt.E);
}

TEST_F(Marken_Welt, shows_the_row_of_the_reference)
{
    Laufen("NOP\n  LJMP X ; far\nNOP\n");
    EXPECT_EQ(Auswahl(), "LJMP X");
    Laufen("NOP\nY: SJMP X\nNOP\n");
    EXPECT_EQ(Auswahl(), "Y: SJMP X");
    Laufen("NOP\nSJMP X\nORG 300\nX: NOP\n");
    EXPECT_EQ(Auswahl(), "SJMP X");
}

TEST_F(Marken_Welt, patches_far_jumps_of_all_rows_before_relative_ones)
{
    Laufen("SJMP A1\nLJMP B1\n");
    EXPECT_EQ(Auswahl(), "LJMP B1");
}

TEST_F(Marken_Welt, leaves_the_bytes_of_an_open_jump_at_FF_after_an_error)
{
    Laufen("LJMP X\nSJMP Y");
    EXPECT_EQ(Hex_Text(0, 6), "02 FF FF 80 FF FF");
    EXPECT_EQ(Code_Ende, 5);
}

// --- pages ------------------------------------------------------------------------------------

TEST_F(Marken_Welt, puts_the_page_into_the_opcode_of_AJMP_and_ACALL)
{
    for (int Seite = 0; Seite < 8; ++Seite) {
        const std::string Ziel = "\nORG " + std::to_string(Seite * 256 + 0x34) + "\nX: NOP";
        EXPECT_EQ(Ab(0, "AJMP X" + Ziel, 2), Hex2(0x01 + 0x20 * Seite) + " 34");
        EXPECT_EQ(Ab(0, "ACALL X" + Ziel, 2), Hex2(0x11 + 0x20 * Seite) + " 34");
    }
}

TEST_F(Marken_Welt, counts_the_block_from_the_next_instruction)
{
    EXPECT_EQ(Ab(0x7FD, "ORG 7FDh\nAJMP X\nORG 7FFh\nX: NOP", 2), "E1 FF");
    EXPECT_EQ(Ab(0x7FE, "ORG 7FEh\nAJMP X\nX: NOP", 2), "01 00");
    EXPECT_EQ(Ab(0x7FE, "ORG 7FEh\nACALL X\nORG 0FFFh\nX: NOP", 2), "F1 FF");
    for (const char* Text : {"ORG 7FDh\nAJMP X\nORG 800h\nX: NOP",
                             "X: NOP\nORG 7FEh\nAJMP X",
                             "AJMP X\nORG 800h\nX: NOP",
                             "ACALL X\nORG 65535\nX: NOP",
                             "X: NOP\nORG 800h\nACALL X"})
        Erwarte_Fehler(Text, Seite_Verlassen.D, Seite_Verlassen.E);
}

RC_GTEST_FIXTURE_PROP(Marken_Welt, jumps_within_a_block_of_2_k_at_any_place, ())
{
    const int Von = *rc::gen::inRange(0, 0xFFF0);
    const int Ziel =
        *rc::gen::oneOf(rc::gen::inRange(0, 0x10000),
                        rc::gen::inRange((Von + 2) & ~0x7FF, ((Von + 2) & ~0x7FF) + 0x800));
    const bool        Ruf  = *rc::gen::arbitrary<bool>();
    const std::string Text = "ORG " + std::to_string(Von) + "\n" + (Ruf ? "ACALL" : "AJMP") +
                             " X\nORG " + std::to_string(Ziel) + "\nX:";
    const std::string Soll =
        ((Von + 2) >> 11) != (Ziel >> 11)
            ? Seite_Verlassen.E
            : Hex2(((Ziel >> 8) & 7) * 32 + (Ruf ? 0x11 : 0x01)) + " " + Hex2(Ziel);
    RC_ASSERT(Ab(Von, Text, 2) == Soll);
}

// --- relative jumps ---------------------------------------------------------------------------

// Every relative jump to the label X: its text, its bytes without the offset.
const std::vector<std::pair<std::string, std::string>> Relative = {
    {"SJMP X", "80"},
    {"JZ X", "60"},
    {"JNZ X", "70"},
    {"JC X", "40"},
    {"JNC X", "50"},
    {"DJNZ R0,X", "D8"},
    {"DJNZ R1,X", "D9"},
    {"DJNZ R2,X", "DA"},
    {"DJNZ R3,X", "DB"},
    {"DJNZ R4,X", "DC"},
    {"DJNZ R5,X", "DD"},
    {"DJNZ R6,X", "DE"},
    {"DJNZ R7,X", "DF"},
    {"DJNZ 30h,X", "D5 30"},
    {"DJNZ A,X", "D5 E0"},
    {"CJNE A,#12h,X", "B4 12"},
    {"CJNE A,30h,X", "B5 30"},
    {"CJNE @R0,#12h,X", "B6 12"},
    {"CJNE @R1,#12h,X", "B7 12"},
    {"CJNE R0,#12h,X", "B8 12"},
    {"CJNE R7,#12h,X", "BF 12"},
    {"JB 5,X", "20 05"},
    {"JNB 5,X", "30 05"},
    {"JBC 5,X", "10 05"},
};

std::string Soll_Sprung(const std::string& Kopf, int Weite)
{
    if (Weite > 129 || Weite < -126)
        return Zu_Weit.E;
    const int Laenge = Kopf.size() == 2 ? 2 : 3;
    return Kopf + " " + Hex2((Weite - Laenge) & 0xFF);
}

TEST_F(Marken_Welt, reaches_from_minus_126_to_129_in_each_relative_jump)
{
    for (const auto& [Text, Kopf] : Relative) {
        const int Laenge = Kopf.size() == 2 ? 2 : 3;
        for (const int Weite : {Laenge, 50, 128, 129, 130, 300}) {
            const std::string Vor = Text + "\nORG " + std::to_string(Weite) + "\nX:";
            EXPECT_EQ(Ab(0, Vor, Laenge), Soll_Sprung(Kopf, Weite)) << Vor;
        }
        for (const int Weite : {0, 1, 125, 126, 127, 300}) {
            const std::string Rueck = "X:\nORG " + std::to_string(Weite) + "\n" + Text;
            EXPECT_EQ(Ab(Weite, Rueck, Laenge), Soll_Sprung(Kopf, -Weite)) << Rueck;
        }
    }
}

TEST_F(Marken_Welt, ends_a_relative_jump_of_129_at_127_or_126)
{
    EXPECT_EQ(Ab(0, "SJMP X\nORG 129\nX:", 2), "80 7F");
    EXPECT_EQ(Ab(0, "JB 5,X\nORG 129\nX:", 3), "20 05 7E");
    EXPECT_EQ(Ab(126, "X:\nORG 126\nSJMP X", 2), "80 80");
    EXPECT_EQ(Ab(126, "X:\nORG 126\nJB 5,X", 3), "20 05 7F");
}

TEST_F(Marken_Welt, tells_a_relative_jump_that_is_too_far)
{
    Erwarte_Fehler("SJMP X\nORG 130\nX:", Zu_Weit.D, Zu_Weit.E);
    Erwarte_Fehler("X:\nORG 127\nCJNE A,#5,X", Zu_Weit.D, Zu_Weit.E);
}

RC_GTEST_FIXTURE_PROP(Marken_Welt, reaches_a_label_at_any_distance_from_any_place, ())
{
    const auto& [Befehl, Kopf] = Relative[*rc::gen::inRange<std::size_t>(0, Relative.size())];
    const int         Von      = *rc::gen::inRange(200, 65000);
    const int         Weite    = *rc::gen::inRange(-140, 145);
    const int         Laenge   = Kopf.size() == 2 ? 2 : 3;
    const std::string Text     = "ORG " + std::to_string(Von) + "\n" + Befehl + "\nORG " +
                             std::to_string(Von + Weite) + "\nX:";
    RC_ASSERT(Ab(Von, Text, Laenge) == Soll_Sprung(Kopf, Weite));
}

// A program of jumps, each to a random label that it can reach.
RC_GTEST_FIXTURE_PROP(Marken_Welt, patches_every_jump_of_a_random_program, ())
{
    const int        Anzahl = *rc::gen::inRange(2, 40); // three bytes each, so all are in reach
    std::vector<int> Ziele;
    std::string      Text, Soll;
    for (int i = 0; i < Anzahl; ++i) {
        const int Ziel = *rc::gen::inRange(0, Anzahl);
        Text += "L" + std::to_string(i) + ": ";
        Soll += Soll.empty() ? "" : " ";
        if (*rc::gen::arbitrary<bool>()) {
            Text += "LJMP l" + std::to_string(Ziel) + "\n";
            Soll += "02 " + Hoch_Tief(3 * Ziel);
        } else {
            Text += "JNB 7Fh,l" + std::to_string(Ziel) + "\n";
            Soll += "30 7F " + Hex2((3 * (Ziel - i) - 3) & 0xFF);
        }
    }
    RC_ASSERT(Assembliere(Text) == Soll);
}

TEST_F(Marken_Welt, finds_the_instruction_behind_the_head_of_a_one_line_IF)
{
    Erwarte({{"IF A=#5 THEN LJMP X\nX: RET", "B4 05 03 02 00 06 22"},
             {"IF A=#5 THEN SJMP X\nNOP\nX: RET", "B4 05 02 80 01 00 22"},
             {"IF A=#5 THEN AJMP X\nX: RET", "B4 05 02 01 05 22"},
             {"IF R1<>30h THEN JB 5,X\nX:", "C0 E0 E9 B5 30 04 D0 E0 80 05 D0 E0 20 05 00"}});
}

TEST_F(Marken_Welt, leads_a_jump_in_a_one_line_IF_to_its_own_label_to_itself)
{
    Erwarte({{"X: IF A=#5 THEN LJMP X", "B4 05 03 02 00 03"},
             {"X: IF A=#5 THEN SJMP X", "B4 05 02 80 FE"},
             {"X: IF A=#5 THEN LJMP X\nLJMP X", "B4 05 03 02 00 03 02 00 00"}});
}

} // namespace
} // namespace varnholt::test
