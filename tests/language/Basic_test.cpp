// The structured statements byte for byte: IF as a block and on one line, ELSE, FOR and NEXT,
// assignments, and how deep they nest.
#include "language/Meldungs_Texte.h"
#include "language/Opcode_Tafel.h"

#include <rapidcheck/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

const Text_Paar END_IF_Ohne_IF{"END IF ohne IF...THEN !", "END IF without IF...THEN !"};
const Text_Paar Zu_Gross{
    "Der Wert des Bytes kann nicht größer als 255 werden! Wählen Sie einen Wert "
    "zwischen 00 und FE oder %00 und %254.",
    "The value of a byte can't be higher than 255. Please choose a value between "
    "00 and FE or between %00 and %254."};
const Text_Paar Zu_Klein{
    "Der Wert des Bytes kann nicht kleiner als 0 werden! Wählen Sie einen Wert "
    "zwischen 01 und FF oder %01 und %255.",
    "The value of a byte can't be lower than 0. Please choose a value between 01 "
    "and FF or between %01 and %255."};
const Text_Paar FOR_Rueckwaerts{
    "Der erste Wert der For...To Anweisung muss kleiner als der zweite Wert sein.",
    "The first value of the For...To Instruction must be lower than the second value."};
const Text_Paar NEXT_Ohne_FOR{"NEXT ohne FOR...TO !", "NEXT without FOR...TO !"};
const Text_Paar IF_Offen{"If ... Then ohne End IF !", "If ... Then without End If!"};
const Text_Paar Zu_Tief{"Zu viele verschachtelte IF oder FOR Anweisungen !",
                        "Too many nested IF or FOR instructions !"};
const Text_Paar FOR_Offen{"For ohne Next !", "For without Next !"};

// One IF: `v` a value, `d` and `e` direct addresses, `b` a bit, `n` a register; B8+n and E8+n are
// the opcodes of the register. `hi lo` is the address behind the block, `r` the skip over the tail.
struct IF_Fall {
    const char* Text;
    const char* Block;
    const char* Zeile;
    int         Zusatz; // bytes behind the skip's own distance
};

// clang-format off
const IF_Fall IF_Faelle[] = {
    {"IF A=#v THEN", "B4 v 02 80 03 02 hi lo", "B4 v r", 0},
    {"IF A<>#v THEN", "B4 v 03 02 hi lo", "B4 v 02 80 r", 0},
    {"IF A<#v THEN", "C0 E0 C3 94 v D0 E0 40 03 02 hi lo", "C0 E0 C3 94 v D0 E0 50 r", 0},
    {"IF A>#v THEN", "C0 E0 C3 94 w D0 E0 50 03 02 hi lo", "C0 E0 C3 94 w D0 E0 40 r", 0},
    {"IF A=d THEN", "B5 d 02 80 03 02 hi lo", "B5 d r", 0},
    {"IF A<>d THEN", "B5 d 03 02 hi lo", "B5 d 02 80 r", 0},
    {"IF A<d THEN", "C0 E0 C3 95 d D0 E0 40 03 02 hi lo", "C0 E0 C3 95 d D0 E0 50 r", 0},
    {"IF A>d THEN", "C0 E0 D3 95 d D0 E0 50 03 02 hi lo", "C0 E0 D3 95 d D0 E0 40 r", 0},
    {"IF Rn=#v THEN", "B8+n v 02 80 03 02 hi lo", "B8+n v r", 0},
    {"IF Rn<>#v THEN", "B8+n v 03 02 hi lo", "B8+n v 02 80 r", 0},
    {"IF Rn<#v THEN", "C0 E0 C3 E8+n 94 v D0 E0 40 03 02 hi lo", "C0 E0 C3 E8+n 94 v D0 E0 50 r", 0},
    {"IF Rn>#v THEN", "C0 E0 C3 E8+n 94 w D0 E0 50 03 02 hi lo", "C0 E0 C3 E8+n 94 w D0 E0 40 r", 0},
    {"IF Rn=d THEN", "C0 E0 E8+n B5 d 04 D0 E0 80 05 D0 E0 02 hi lo", "C0 E0 E8+n B5 d 04 D0 E0 80 04 D0 E0 80 r", 0},
    {"IF Rn<>d THEN", "C0 E0 E8+n B5 d 05 D0 E0 02 hi lo D0 E0", "C0 E0 E8+n B5 d 04 D0 E0 80 r D0 E0", 2},
    {"IF Rn<d THEN", "C0 E0 E8+n C3 95 d D0 E0 40 03 02 hi lo", "C0 E0 E8+n C3 95 d D0 E0 50 r", 0},
    {"IF Rn>d THEN", "C0 E0 E8+n D3 95 d D0 E0 50 03 02 hi lo", "C0 E0 E8+n D3 95 d D0 E0 40 r", 0},
    {"IF d=#v THEN", "C0 E0 E5 d B4 v 04 D0 E0 80 05 D0 E0 02 hi lo", "C0 E0 E5 d B4 v 04 D0 E0 80 04 D0 E0 80 r", 0},
    {"IF d<>#v THEN", "C0 E0 E5 d B4 v 05 D0 E0 02 hi lo D0 E0", "C0 E0 E5 d B4 v 04 D0 E0 80 r D0 E0", 2},
    {"IF d<#v THEN", "C0 E0 E5 d C3 94 v D0 E0 40 03 02 hi lo", "C0 E0 E5 d C3 94 v D0 E0 50 r", 0},
    {"IF d>#v THEN", "C0 E0 E5 d C3 94 w D0 E0 50 03 02 hi lo", "C0 E0 E5 d C3 94 w D0 E0 40 r", 0},
    {"IF d=e THEN", "C0 E0 E5 d B5 e 04 D0 E0 80 05 D0 E0 02 hi lo", "C0 E0 E5 d B5 e 04 D0 E0 80 04 D0 E0 80 r", 0},
    {"IF d<>e THEN", "C0 E0 E5 d B5 e 05 D0 E0 02 hi lo D0 E0", "C0 E0 E5 d B5 e 04 D0 E0 80 r D0 E0", 2},
    {"IF d<e THEN", "C0 E0 E5 d C3 95 e D0 E0 40 03 02 hi lo", "C0 E0 E5 d C3 95 e D0 E0 50 r", 0},
    {"IF d>e THEN", "C0 E0 E5 d D3 95 e D0 E0 50 03 02 hi lo", "C0 E0 E5 d D3 95 e D0 E0 40 r", 0},
    {"IF BIT b THEN", "30 b 02 80 03 02 hi lo", "30 b r", 0},
    {"IF NOT BIT b THEN", "20 b 02 80 03 02 hi lo", "20 b r", 0},
    {"IF BIT C THEN", "50 02 80 03 02 hi lo", "50 r", 0},
    {"IF NOT BIT C THEN", "40 02 80 03 02 hi lo", "40 r", 0},
};
// clang-format on

// What stands for the letters of a row.
struct Werte_T {
    int v = 0x12, d = 0x34, e = 0x56, b = 0x78, n = 0;
};

std::string Quelltext(const char* Text, const Werte_T& w)
{
    std::istringstream Ein{Text};
    std::string        Ergebnis;
    for (std::string Wort; Ein >> Wort;) {
        Wort = Ersetzt(Wort, "Rn", "R" + std::to_string(w.n));
        Wort = Ersetzt(Wort, "#v", "#" + std::to_string(w.v));
        Wort = Ersetzt(Wort, "e", "0" + Hex2(w.e) + "h");
        Wort = Ersetzt(Wort, "d", "0" + Hex2(w.d) + "h");
        Wort = Wort == "b" ? "0" + Hex2(w.b) + "h" : Wort;
        Ergebnis += (Ergebnis.empty() ? "" : " ") + Wort;
    }
    return Ergebnis;
}

// The bytes of a row with `hi lo` and `r` filled in.
std::string Bytes_Text(const char* Muster, const Werte_T& w, int Adresse, int Sprung)
{
    const std::pair<const char*, std::string> Namen_Werte[] = {
        {"v", Hex2(w.v)},
        {"w", Hex2(w.v + 1)},
        {"d", Hex2(w.d)},
        {"e", Hex2(w.e)},
        {"b", Hex2(w.b)},
        {"r", Hex2(Sprung)},
        {"hi", Hex2(Adresse / 256)},
        {"lo", Hex2(Adresse)},
        {"B8+n", Hex2(0xB8 + w.n)},
        {"E8+n", Hex2(0xE8 + w.n)},
    };
    std::istringstream Ein{Muster};
    std::string        Ergebnis;
    for (std::string Wort; Ein >> Wort;) {
        for (const auto& [Name, Wert] : Namen_Werte)
            if (Wort == Name) {
                Wort = Wert;
                break;
            }
        Ergebnis += (Ergebnis.empty() ? "" : " ") + Wort;
    }
    return Ergebnis;
}

int Byte_Anzahl(const std::string& Bytes) { return static_cast<int>(Bytes.size() + 1) / 3; }

// Machine instructions in bytes written as text.
int Befehle_In(const std::string& Bytes)
{
    const auto Laengen = Opcode_Laengen();
    int        Anzahl  = 0;
    for (std::size_t i = 0; i < Bytes.size(); ++Anzahl)
        i += 3 * static_cast<std::size_t>(Laengen.at(std::stoul(Bytes.substr(i, 2), nullptr, 16)));
    return Anzahl;
}

class Basic_Welt : public Assembler_Welt {
protected:
    void Erwarte(const std::vector<std::pair<std::string, std::string>>& Faelle)
    {
        for (const auto& [Text, Ergebnis] : Faelle)
            EXPECT_EQ(Assembliere(Text), Ergebnis) << Text;
    }
    std::string Ab(int Adresse, const std::string& Text)
    {
        const std::string Ergebnis = Assembliere(Text);
        return Assembler_Fehler == 0 ? Hex_Text(Adresse, Code_Ende) : Ergebnis;
    }

    void Block_Pruefen(const IF_Fall& f, const Werte_T& w, int Start)
    {
        const std::string Text   = Quelltext(f.Text, w);
        const int         Laenge = Byte_Anzahl(Bytes_Text(f.Block, w, 0, 0));
        const std::string Soll   = Bytes_Text(f.Block, w, Start + Laenge + 1, 0);
        const std::string Kopf   = "ORG " + std::to_string(Start) + "\n";
        EXPECT_EQ(Ab(Start, Kopf + Text + "\nNOP\nEND IF\nRET"), Soll + " 00 22") << Text;
        EXPECT_EQ(Befehl_Zaehler, Befehle_In(Soll) + 2) << Text;
        const std::string Sonst = Bytes_Text(f.Block, w, Start + Laenge + 4, 0);
        EXPECT_EQ(Ab(Start, Kopf + Text + "\nNOP\nELSE\nINC A\nENDIF"),
                  Sonst + " 00 02 " + Hoch_Tief(Start + Laenge + 5) + " 04")
            << Text;
    }
    void Zeile_Pruefen(const IF_Fall& f, const Werte_T& w, int Start)
    {
        for (const auto& [Rest, Bytes] : {std::pair{"INC R0", "08"},
                                          {"MOV A,#5", "74 05"},
                                          {"LJMP (1234h)", "02 12 34"},
                                          {"PUSHA", "C0 E0"},
                                          {"A=R3", "EB"}}) {
            const std::string Text = Quelltext(f.Text, w) + " " + Rest;
            const std::string Soll =
                Bytes_Text(f.Zeile, w, 0, Byte_Anzahl(Bytes) + f.Zusatz) + " " + Bytes;
            EXPECT_EQ(Ab(Start, "ORG " + std::to_string(Start) + "\n" + Text + "\nRET"),
                      Soll + " 22")
                << Text;
            EXPECT_EQ(Befehl_Zaehler, Befehle_In(Soll) + 1) << Text;
        }
    }
};

// --- IF -----------------------------------------------------------------------------------------

TEST_F(Basic_Welt, expands_each_IF_of_a_block_byte_for_byte)
{
    for (const IF_Fall& f : IF_Faelle)
        for (const int n : {0, 1, 2, 3, 4, 5, 6, 7})
            for (const int Start : {0, 0x12F8}) {
                if (n > 0 && std::string(f.Text).find("Rn") == std::string::npos)
                    continue;
                Block_Pruefen(f, {0x12, 0x34, 0x56, 0x78, n}, Start);
            }
}

TEST_F(Basic_Welt, expands_each_IF_of_one_line_byte_for_byte)
{
    for (const IF_Fall& f : IF_Faelle)
        for (const int n : {0, 1, 2, 3, 4, 5, 6, 7}) {
            if (n > 0 && std::string(f.Text).find("Rn") == std::string::npos)
                continue;
            Zeile_Pruefen(f, {0x12, 0x34, 0x56, 0x78, n}, 0x12F8);
        }
}

RC_GTEST_FIXTURE_PROP(Basic_Welt, expands_each_IF_with_random_values, ())
{
    const IF_Fall& f = IF_Faelle[*rc::gen::inRange<std::size_t>(0, std::size(IF_Faelle))];
    Werte_T        w;
    w.v = *rc::gen::inRange(1, 255);
    w.d = *rc::gen::inRange(0, 256);
    w.e = *rc::gen::inRange(0, 256);
    w.b = *rc::gen::inRange(0, 256);
    w.n = *rc::gen::inRange(0, 8);
    Block_Pruefen(f, w, *rc::gen::inRange(0, 30000));
    Zeile_Pruefen(f, w, *rc::gen::inRange(0, 30000));
}

TEST_F(Basic_Welt, takes_statements_in_any_case_and_spacing)
{
    Erwarte({{"if a = #5 then\nnop\nend if", "B4 05 02 80 03 02 00 09 00"},
             {"IF  A <> #5  THEN\nENDIF", "B4 05 03 02 00 06"},
             {"If Not Bit 5 Then inc r0", "20 05 01 08"},
             {"IF A=#5 THEN  inc r0", "B4 05 01 08"}});
}

TEST_F(Basic_Welt, takes_names_and_bits_in_an_IF)
{
    Erwarte({{"P1 DATA 90h\nIF BIT P1.3 THEN NOP", "30 93 01 00"},
             {"P1 DATA 90h\nIF A=P1 THEN NOP", "B5 90 01 00"},
             {"X EQU 5\nIF A=#X+1 THEN NOP", "B4 06 01 00"},
             {"IF BIT A.7 THEN NOP", "30 E7 01 00"},
             {"B5X BIT 5\nIF A=B5X THEN NOP", "B5 05 01 00"}});
}

TEST_F(Basic_Welt, skips_the_length_of_the_tail)
{
    EXPECT_EQ(Assembliere("IF A=#5 THEN INC R0"), "B4 05 01 08");
    EXPECT_EQ(Assembliere("IF A=#5 THEN LJMP X\nX:"), "B4 05 03 02 00 06");
    EXPECT_EQ(Quell_Zeilen.at(0).Versatz, 3);
    EXPECT_EQ(Quell_Zeilen.at(0).Adresse, 0);
    EXPECT_EQ(Zeilen_Text(0), "LJMP X");
}

TEST_F(Basic_Welt, leaves_the_tail_in_upper_case)
{
    EXPECT_EQ(Assembliere("if a=#5 then db \"ab\""), "B4 05 00 41 42");
    EXPECT_EQ(Zeilen_Text(0), "DB \"AB\"");
}

TEST_F(Basic_Welt, skips_nothing_when_the_tail_is_no_instruction)
{
    Erwarte({{"IF A=#5 THEN DB 1,2\nNOP", "B4 05 00 01 02 00"},
             {"IF A=#5 THEN HEX 12", Ohne_Prozessor.E},
             {"IF A=#5 THEN HEX: 12", Marken_Zeichen.E},
             {"IF A=#5 THEN X EQU 7\nDB X", "B4 05 00 07"},
             {"IF A=#5 THEN STOP\nNOP", "B4 05 00 00"},
             {"IF A=#5 THEN ORG 5\nNOP", "B4 05 00 FF FF 00"},
             {"IF R0<>5 THEN DB 1", "C0 E0 E8 B5 05 04 D0 E0 80 02 D0 E0 01"}});
    EXPECT_EQ(Assembliere("IF A=#5 THEN DB 1\nNOP\nEND IF"), END_IF_Ohne_IF.E);
}

TEST_F(Basic_Welt, counts_a_STOP_of_the_debugger_as_a_tail)
{
    Debugger_Aktiv = true;
    EXPECT_EQ(Assembliere("IF A=#5 THEN STOP"), "B4 05 01 A5");
}

TEST_F(Basic_Welt, tells_register_and_memory_apart)
{
    Erwarte({{"IF R1=#2 THEN\nEND IF", "B9 02 02 80 03 02 00 08"},
             {"IF 30h=#2 THEN\nEND IF", "C0 E0 E5 30 B4 02 04 D0 E0 80 05 D0 E0 02 00 10"},
             {"IF R8=#2 THEN\nEND IF", Ohne_Prozessor.E},
             {"IF B=#2 THEN\nEND IF", "C0 E0 E5 00 B4 02 04 D0 E0 80 05 D0 E0 02 00 10"}});
}

TEST_F(Basic_Welt, refuses_a_test_that_can_never_be_true)
{
    for (const char* Links : {"A", "R0", "R7", "30h"})
        for (const char* Rest : {"", " INC R0"}) {
            const std::string IF = std::string("IF ") + Links;
            Erwarte_Fehler(IF + ">#255 THEN" + Rest, Zu_Gross.D, Zu_Gross.E);
            Erwarte_Fehler(IF + "<#0 THEN" + Rest, Zu_Klein.D, Zu_Klein.E);
        }
}

TEST_F(Basic_Welt, takes_the_last_test_that_can_be_true)
{
    Erwarte({{"IF A>#254 THEN NOP", "C0 E0 C3 94 FF D0 E0 40 01 00"},
             {"IF A<#1 THEN NOP", "C0 E0 C3 94 01 D0 E0 50 01 00"},
             {"IF R2>#254 THEN NOP", "C0 E0 C3 EA 94 FF D0 E0 40 01 00"},
             {"IF 5>#254 THEN NOP", "C0 E0 E5 05 C3 94 FF D0 E0 40 01 00"},
             {"IF A>#0 THEN NOP", "C0 E0 C3 94 01 D0 E0 40 01 00"},
             {"IF A<#255 THEN NOP", "C0 E0 C3 94 FF D0 E0 50 01 00"},
             {"IF A>255 THEN NOP", "C0 E0 D3 95 FF D0 E0 40 01 00"},
             {"IF A<0 THEN NOP", "C0 E0 C3 95 00 D0 E0 50 01 00"}});
}

TEST_F(Basic_Welt, checks_a_single_value_of_an_IF_as_a_byte)
{
    for (const char* Text : {"IF A=#256 THEN",
                             "IF A<>#256 THEN NOP",
                             "IF A>256 THEN",
                             "IF R1=#300 THEN",
                             "IF R1<256 THEN",
                             "IF BIT 256 THEN",
                             "IF NOT BIT 256 THEN NOP"})
        Erwarte_Fehler(Text, Byte_Bereich().D, Byte_Bereich().E);
    Erwarte({{"IF A=#255 THEN NOP", "B4 FF 01 00"}, {"IF A=#0 THEN NOP", "B4 00 01 00"}});
}

TEST_F(Basic_Welt, knows_no_other_IF)
{
    for (const char* Text : {"IF A=#5",
                             "IF A=>#5 THEN",
                             "IF #5=A THEN",
                             "IF A=R0 THEN",
                             "IF A THEN",
                             "IF 5 THEN",
                             "IF",
                             "IF DPTR=#5 THEN"})
        EXPECT_EQ(Assembliere(Text), Ohne_Prozessor.E) << Text;
}

// --- ELSE and END IF
// ------------------------------------------------------------------------------

TEST_F(Basic_Welt, refuses_END_IF_without_IF)
{
    for (const char* Text :
         {"END IF", "ENDIF", "IF A=#5 THEN\nEND IF\nEND IF", "IF A=#5 THEN NOP\nEND IF"})
        Erwarte_Fehler(Text, END_IF_Ohne_IF.D, END_IF_Ohne_IF.E);
}

TEST_F(Basic_Welt, patches_address_0_at_ELSE_without_IF)
{
    EXPECT_EQ(Assembliere("NOP\nRET\nRETI\nELSE"), "00 06 32 02 FF FF");
    EXPECT_EQ(Assembliere("NOP\nRET\nRETI\nELSE"), "00 06 32 02 FF FF") << "second run";
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Basic_Welt, jumps_from_ELSE_to_END_IF)
{
    Erwarte({{"IF A<>#5 THEN\nNOP\nELSE\nRET\nEND IF", "B4 05 03 02 00 0A 00 02 00 0B 22"},
             {"IF A<>#5 THEN\nELSE\nEND IF", "B4 05 03 02 00 09 02 00 09"},
             {"IF A<>#5 THEN\nELSE\nNOP\nELSE\nRET\nEND IF",
              "B4 05 03 02 00 09 02 00 0D 00 02 00 0E 22"}});
    EXPECT_EQ(Befehl_Zaehler, 4); // CJNE, LJMP, NOP, RET; an ELSE doesn't count
}

TEST_F(Basic_Welt, nests_blocks)
{
    EXPECT_EQ(Assembliere("IF A<>#1 THEN\nIF BIT C THEN\nNOP\nELSE\nRET\nEND IF\nEND IF"),
              "B4 01 03 02 00 12 50 02 80 03 02 00 11 00 02 00 12 22");
    EXPECT_EQ(Assembliere("IF A<>#1 THEN\nIF A=#2 THEN NOP\nEND IF\nRET"),
              "B4 01 03 02 00 0A B4 02 01 00 22");
}

TEST_F(Basic_Welt, reports_an_open_IF_at_its_line)
{
    Erwarte_Fehler("NOP\nIF A=#5 THEN\nNOP\n", IF_Offen.D, IF_Offen.E);
    EXPECT_EQ(Auswahl(), "IF A=#5 THEN");
    EXPECT_EQ(Assembliere("IF A<>#5 THEN\nNOP\nEND"), "B4 05 03 02 FF FF 00");
}

TEST_F(Basic_Welt, reaches_the_end_of_a_block_of_any_size)
{
    EXPECT_EQ(Assembliere("IF BIT C THEN\nORG 3000h\nEND IF").substr(0, 20),
              "50 02 80 03 02 30 00");
}

TEST_F(Basic_Welt, patches_blocks_above_32767)
{
    EXPECT_EQ(Ab(0x9000, "ORG 9000h\nIF BIT C THEN\nNOP\nEND IF"), "50 02 80 03 02 90 08 00");
    EXPECT_EQ(Ab(0x9000, "ORG 9000h\nIF BIT C THEN NOP"), "50 01 00");
    EXPECT_EQ(Ab(0x9000, "ORG 9000h\nFOR A=#1 TO #2\nNEXT"), "74 01 B4 02 03 04 80 04 04 02 90 02");
}

TEST_F(Basic_Welt, tells_the_range_of_addresses_for_an_IF_beyond_65535)
{
    // The operand of the jump over the block stands five bytes behind the first one.
    EXPECT_EQ(Ab(0xFFF8, "ORG 0FFF8h\nIF BIT C THEN\nEND IF"), "50 02 80 03 02 FF FF");
    for (const char* Text : {"ORG 0FFF9h\nIF BIT C THEN\nEND IF",
                             "ORG 0FFF8h\nIF BIT C THEN\nNOP\nEND IF",
                             "ORG 0FFFBh\nIF BIT C THEN\nEND IF",
                             "ORG 10000h\nIF BIT C THEN\nEND IF",
                             "ORG 0FFFFh\nIF BIT C THEN NOP",
                             "ORG 0FFF5h\nIF BIT C THEN\nNOP\nELSE\nEND IF",
                             "ORG 0FFF8h\nIF BIT C THEN\nELSE\nEND IF"})
        Erwarte_Fehler(Text, Wort_Bereich().D, Wort_Bereich().E);
    EXPECT_EQ(Ab(0xFFFE, "ORG 0FFFEh\nIF BIT C THEN NOP"), "50 01 00");
    EXPECT_EQ(Ab(0xFFF5, "ORG 0FFF5h\nIF BIT C THEN\nELSE\nEND IF"),
              "50 02 80 03 02 FF FF 02 FF FF");
}

TEST_F(Basic_Welt, takes_no_IF_as_the_tail_of_an_IF)
{
    Erwarte_Fehler("IF A=#5 THEN IF A=#6 THEN NOP",
                   "IF kann nicht hinter THEN stehen !",
                   "IF can't stand behind THEN !");
    EXPECT_EQ(Assembliere("IF A=#5 THEN IF BIT C THEN\nEND IF"), Letzte_Meldung());
    EXPECT_EQ(Assembler_Fehler, 1);
}

TEST_F(Basic_Welt, nests_100_IFs_and_no_more)
{
    const auto Tief = [](int n) {
        std::string Text;
        for (int i = 0; i < n; ++i)
            Text += "IF BIT C THEN\n";
        for (int i = 0; i < n; ++i)
            Text += "END IF\n";
        return Text;
    };
    EXPECT_EQ(Byte_Anzahl(Assembliere(Tief(100))), 700);
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Hex_Text(0, 7), "50 02 80 03 02 02 BC");
    Erwarte_Fehler(Tief(101), Zu_Tief.D, Zu_Tief.E);
}

// --- FOR and NEXT
// -----------------------------------------------------------------------------------

TEST_F(Basic_Welt, expands_FOR_and_NEXT_of_the_accumulator)
{
    EXPECT_EQ(Assembliere("FOR A=#3 TO #10\nNOP\nNEXT"), "74 03 00 B4 0A 03 04 80 04 04 02 00 02");
    EXPECT_EQ(Befehl_Zaehler, 2);
}

TEST_F(Basic_Welt, expands_FOR_and_NEXT_of_each_register)
{
    for (int n = 0; n < 8; ++n)
        EXPECT_EQ(Assembliere("FOR R" + std::to_string(n) + "=#0 TO #255\nNOP\nNEXT"),
                  Hex2(0x78 + n) + " 00 00 " + Hex2(0xB8 + n) + " FF 03 " + Hex2(0x08 + n) +
                      " 80 04 " + Hex2(0x08 + n) + " 02 00 02");
    EXPECT_EQ(Assembliere("FOR R8=#0 TO #5\nNEXT"), Ohne_Prozessor.E);
}

TEST_F(Basic_Welt, expands_FOR_and_NEXT_of_a_byte_in_memory)
{
    EXPECT_EQ(Assembliere("FOR 30h=#1 TO #5\nNOP\nNEXT"),
              "75 30 01 00 C0 E0 E5 30 B4 05 06 D0 E0 05 30 80 07 D0 E0 05 30 02 00 03");
    EXPECT_EQ(Assembliere("FOR 255=#0 TO #255\nNEXT"),
              "75 FF 00 C0 E0 E5 FF B4 FF 06 D0 E0 05 FF 80 07 D0 E0 05 FF 02 00 03");
}

TEST_F(Basic_Welt, puts_the_address_of_the_body_into_NEXT)
{
    EXPECT_EQ(Ab(0x12FF, "ORG 12FFh\nFOR A=#0 TO #1\nNEXT"), "74 00 B4 01 03 04 80 04 04 02 13 01");
}

TEST_F(Basic_Welt, ignores_what_stands_behind_NEXT)
{
    for (const char* Text : {"NEXT", "next", "NEXT A", "NEXT R1", "NEXTFOO", "NEXT 5"})
        EXPECT_EQ(Assembliere(std::string("FOR A=#3 TO #10\n") + Text),
                  "74 03 B4 0A 03 04 80 04 04 02 00 02")
            << Text;
}

TEST_F(Basic_Welt, nests_loops_of_each_kind)
{
    EXPECT_EQ(Assembliere("FOR A=#0 TO #1\nFOR R1=#2 TO #3\nFOR 5=#4 TO #6\nNEXT\nNEXT\nNEXT"),
              "74 00 79 02 75 05 04 "
              "C0 E0 E5 05 B4 06 06 D0 E0 05 05 80 07 D0 E0 05 05 02 00 07 "
              "B9 03 03 09 80 04 09 02 00 04 "
              "B4 01 03 04 80 04 04 02 00 02");
}

TEST_F(Basic_Welt, takes_equal_ends_and_refuses_a_loop_backwards)
{
    EXPECT_EQ(Assembliere("FOR A=#3 TO #3\nNEXT"), "74 03 B4 03 03 04 80 04 04 02 00 02");
    for (const char* Text : {"FOR A=#4 TO #3\nNEXT", "FOR R0=#255 TO #0\nNEXT"})
        Erwarte_Fehler(Text, FOR_Rueckwaerts.D, FOR_Rueckwaerts.E);
}

TEST_F(Basic_Welt, checks_the_values_of_FOR_and_IF_before_it_looks_at_the_form)
{
    EXPECT_EQ(Assembliere("FOR Q=#4 TO #3"), FOR_Rueckwaerts.E);
    EXPECT_EQ(Assembliere("FOR Q=#256 TO #3"), Byte_Bereich().E);
    EXPECT_EQ(Assembliere("FOR Q=#3 TO #256"), Byte_Bereich().E);
    EXPECT_EQ(Assembliere("IF Q=#256 THEN"), Byte_Bereich().E);
}

TEST_F(Basic_Welt, checks_the_values_of_FOR_as_bytes)
{
    for (const char* Text : {"FOR A=#256 TO #300",
                             "FOR A=#0 TO #256",
                             "FOR R0=#0 TO #256",
                             "FOR R0=#300 TO #1",
                             "FOR 256=#1 TO #2",
                             "FOR 5=#256 TO #257",
                             "FOR 5=#1 TO #256"})
        Erwarte_Fehler(Text, Byte_Bereich().D, Byte_Bereich().E);
}

TEST_F(Basic_Welt, refuses_NEXT_without_FOR)
{
    Erwarte_Fehler("NEXT", NEXT_Ohne_FOR.D, NEXT_Ohne_FOR.E);
    Erwarte_Fehler("FOR A=#1 TO #2\nNEXT\nNEXT", NEXT_Ohne_FOR.D, NEXT_Ohne_FOR.E);
}

TEST_F(Basic_Welt, reports_an_open_FOR_at_its_line)
{
    Erwarte_Fehler("NOP\nFOR R1=#1 TO #5\nNOP\n", FOR_Offen.D, FOR_Offen.E);
    EXPECT_EQ(Auswahl(), "FOR R1=#1 TO #5");
    EXPECT_EQ(Assembliere("IF BIT C THEN\nFOR A=#1 TO #2\n"), IF_Offen.E);
    EXPECT_EQ(Assembliere("FOR A=#1 TO #2\nEND"), "74 01");
}

TEST_F(Basic_Welt, nests_100_FORs_and_no_more)
{
    const auto Tief = [](int n) {
        std::string Text;
        for (int i = 0; i < n; ++i)
            Text += "FOR R1=#1 TO #2\n";
        for (int i = 0; i < n; ++i)
            Text += "NEXT\n";
        return Text;
    };
    EXPECT_EQ(Byte_Anzahl(Assembliere(Tief(100))), 1200);
    Erwarte_Fehler(Tief(101), Zu_Tief.D, Zu_Tief.E);
}

TEST_F(Basic_Welt, forgets_open_structures_at_the_next_run)
{
    Laufen("IF BIT C THEN\nFOR A=#1 TO #2");
    EXPECT_EQ(Assembliere("NOP"), "00");
    EXPECT_EQ(Assembliere("END IF"), END_IF_Ohne_IF.E);
    EXPECT_EQ(Assembliere("NEXT"), NEXT_Ohne_FOR.E);
    EXPECT_EQ(Assembliere("NOP"), "00");
}

TEST_F(Basic_Welt, forgets_an_open_one_line_IF_at_the_next_run)
{
    EXPECT_EQ(Assembliere("NOP\nIF A=#5 THEN FOO"), Ohne_Prozessor.E);
    EXPECT_EQ(Assembliere("INC R0\nRET"), "08 22");
}

// --- assignments
// ------------------------------------------------------------------------------------

TEST_F(Basic_Welt, gives_the_left_side_the_value_of_the_right_in_both_orders)
{
    for (const bool Ziel_Zuerst : {true, false}) {
        O_MOV_ZQ = Ziel_Zuerst;
        Erwarte({{"30h=40h", "85 40 30"}, {"30h = 40h", "85 40 30"}});
        EXPECT_EQ(Assembliere("30h=256"), Byte_Bereich().E);
        EXPECT_EQ(Assembliere("256=30h"), Byte_Bereich().E);
    }
}

TEST_F(Basic_Welt, translates_assignments_of_one_value)
{
    Erwarte({{"30h=A", "F5 30"},
             {"P1 DATA 90h\nP1 = A", "F5 90"},
             {"A=30h", "E5 30"},
             {"A = #30h", "74 30"},
             {"a=#5", "74 05"},
             {"A=256", Byte_Bereich().E},
             {"30h=#5", Ohne_Prozessor.E},
             {"P1 DATA 90h\nP1 = #5", Ohne_Prozessor.E},
             {"A=A", Ohne_Prozessor.E},
             {"=", Ohne_Prozessor.E},
             {"R8=#5", Ohne_Prozessor.E},
             {"DPTR=#5", Ohne_Prozessor.E}});
    for (int n = 0; n < 8; ++n) {
        const std::string R = "R" + std::to_string(n);
        Erwarte({{R + "=#5", Hex2(0x78 + n) + " 05"}, {R + " = 30h", Hex2(0xA8 + n) + " 30"}});
    }
}

TEST_F(Basic_Welt, translates_assignments_between_accumulator_and_register)
{
    for (int n = 0; n < 8; ++n) {
        const std::string R = "R" + std::to_string(n);
        Erwarte(
            {{R + "=A", Hex2(0xF8 + n)}, {"A=" + R, Hex2(0xE8 + n)}, {"a = " + R, Hex2(0xE8 + n)}});
        EXPECT_EQ(Befehl_Zaehler, 1);
    }
    Erwarte({{"A=R8", Ohne_Prozessor.E}, {"R0=R1", Ohne_Prozessor.E}});
}

} // namespace
} // namespace varnholt::test
