// The operand scan: which values a line has, in which order, and what form it leaves.
#include "core/codepage.h"
#include "language/Assembler_Hilfe.h"
#include "language/Meldungs_Texte.h"
#include "language/Namen.h"
#include "language/Operanden.h"

#include <rapidcheck/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

const Text_Paar Zu_Hoch{"Wert ist zu hoch !", "Value is to high !"};
const Text_Paar Zuviele_Zahlen{"Zuviele Zahlenangaben in einer Zeile !",
                               "Too much values in one line !"};
const Text_Paar Zuviele_Zeichen{"Zuviele ASCII-Zeichen in einer Zeile !",
                                "Too much ASCII-signs in one line !"};

class Operanden_Welt : public Assembler_Welt {
protected:
    Operanden_Welt() { Name("P1", 0x90); }

    static void Name(const std::string& Text, std::int32_t Wert)
    {
        Namen_Eintrag Eintrag;
        Eintrag.Name   = Text;
        Eintrag.Wert   = Wert;
        Eintrag.Laenge = static_cast<int>(Text.size());
        Name_Anfuegen(Eintrag);
    }

    // Scans one line in its normal form: the form that is left, a bar, the values.
    static std::string Scan(std::string_view Text)
    {
        Quell_Zeilen.assign(1, {});
        Zeilen_Index       = 0;
        Diese_Zeile().Text = Zeilen_Texte.Ablegen(Text);
        Zeile_Gross        = Gross(Text);
        try {
            Operanden_Lesen();
        } catch (const Assembler_Ende&) {
            return Fehlertext.E;
        }
        std::string Ergebnis = Zeile_Gross + " |";
        for (int i = 1; i <= Wert_Anzahl; ++i)
            Ergebnis += ' ' + std::to_string(Wert_Nr(i));
        return Ergebnis;
    }

    // Value of an expression, or the message.
    std::string Wert_Von(const std::string& Ausdruck)
    {
        const std::string Meldung = Assembliere("X EQU " + Ausdruck);
        return Assembler_Fehler == 1 ? Meldung : std::to_string(Namen_Tabelle.back().Wert);
    }

    void Erwarte(std::string_view Text, const Text_Paar& Meldung)
    {
        Erwarte_Fehler(Text, Meldung.D, Meldung.E);
    }
};

std::string Liste(int Anzahl, std::string_view Stueck)
{
    std::string Text;
    for (int i = 0; i < Anzahl; ++i)
        Text += (i == 0 ? "" : ",") + std::string{Stueck};
    return Text;
}

// --- what is a value, and what stays -------------------------------------------------------------

struct Scan_Fall {
    const char* Zeile;
    const char* Form_Und_Werte;
};

void PrintTo(const Scan_Fall& Fall, std::ostream* Aus) { *Aus << Fall.Zeile; }

class Operanden_Scan : public Operanden_Welt, public ::testing::WithParamInterface<Scan_Fall> {};

TEST_P(Operanden_Scan, leaves_the_form_and_takes_the_values)
{
    EXPECT_EQ(Scan(GetParam().Zeile), GetParam().Form_Und_Werte);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Trennzeichen, Operanden_Scan, ::testing::Values(
    Scan_Fall{"MOV A,#12h",         "MOVA,# | 18"},
    Scan_Fall{"mov a,#12H",         "MOVA,# | 18"},
    Scan_Fall{"MOV A,12",           "MOVA, | 12"},
    Scan_Fall{"JB P1.2,LOOP",       "JB,LOOP | 146"},
    Scan_Fall{"MOV R3,P1",          "MOVR3, | 144"},
    Scan_Fall{"DB 1,2 3",           "DB, | 1 2 3"},
    Scan_Fall{"DB:5",               "DB: | 5"},
    Scan_Fall{"DB 5:6",             "DB5:6 |"},
    Scan_Fall{"DB 5#6",             "DB# | 5 6"},
    Scan_Fall{"DB 5,",              "DB, | 5"},
    Scan_Fall{"DB ,5",              "DB, | 5"},
    Scan_Fall{"DB",                 "DB |"},
    Scan_Fall{"DB5",                "DB5 |"},
    Scan_Fall{"5",                  "5 |"},
    Scan_Fall{"5 6",                "5 | 6"},
    Scan_Fall{"FOO BAR",            "FOOBAR |"},
    Scan_Fall{"DB 5)6",             "DB)6 | 5"},
    Scan_Fall{"DB 5;6",             "DB5;6 |"},
    Scan_Fall{"ANL C,/20h",         "ANLC,/ | 32"},
    Scan_Fall{"MOV DPTR,#NAME+5",   "MOVDPTR,#NAME+ | 5"},
    Scan_Fall{"MOV DPTR,#NAME-5",   "MOVDPTR,#NAME- | 5"}));

INSTANTIATE_TEST_SUITE_P(Klammern, Operanden_Scan, ::testing::Values(
    Scan_Fall{"JMP (1234h)",        "JMP() | 4660"},
    Scan_Fall{"(100h):",            "(): | 256"},
    Scan_Fall{"(100h):NOP",         "():NOP | 256"},
    Scan_Fall{"SJMP (FOO)",         "SJMP(FOO) |"},
    Scan_Fall{"DB ((5)",            "DB((5) |"},
    Scan_Fall{"DB (5",              "DB( | 5"},
    Scan_Fall{"DB (5))",             "DB()) | 5"},
    Scan_Fall{"DB ()",              "DB() | 0"},
    Scan_Fall{"DB 1+(2)",           "DB() | 3"},
    Scan_Fall{"DB 1+2(3)",          "DB2(3) | 1"},
    Scan_Fall{"CJNE A,#1,(5)",      "CJNEA,#,() | 1 5"}));

INSTANTIATE_TEST_SUITE_P(Ausdruecke, Operanden_Scan, ::testing::Values(
    Scan_Fall{"MOV A,#1+2",         "MOVA,# | 3"},
    Scan_Fall{"MOV A,#-1",          "MOVA,#- | 1"},
    Scan_Fall{"DB 2+3*4",           "DB | 20"},
    Scan_Fall{"DB 10-3-2",          "DB | 5"},
    Scan_Fall{"DB 1-3",             "DB | -2"},
    Scan_Fall{"DB 1 + 2",           "DB | 3"},
    Scan_Fall{"DB 1+ 2",            "DB | 3"},
    Scan_Fall{"DB 1 +2",            "DB | 3"},
    Scan_Fall{"DB 1+2 3",           "DB | 6"},
    Scan_Fall{"DB 1+2,3",           "DB, | 3 3"},
    Scan_Fall{"DB 1+#2",            "DB# | 1 2"},
    Scan_Fall{"DB 1+2:3",           "DB2:3 | 1"},
    Scan_Fall{"DB \"A\"+1:3",        "DB1:3 | 65"},
    Scan_Fall{"DB \"A\":3",          "DB: | 65 3"},
    Scan_Fall{"DB 1+-2",            "DB | -1"},
    Scan_Fall{"DB 1+",              "DB | 1"},
    Scan_Fall{"DB 1+FOO",           "DBFOO | 1"},
    Scan_Fall{"DB 1+FOO+2",         "DBFOO | 3"},
    Scan_Fall{"DB FOO+1",           "DBFOO+ | 1"},
    Scan_Fall{"DB -5",              "DB- | 5"},
    Scan_Fall{"DB +5",              "DB+ | 5"},
    Scan_Fall{"DB *5",              "DB* | 5"},
    Scan_Fall{"DB ^5",              "DB^ | 5"},
    Scan_Fall{"DB 7,-5",            "DB, | 2"},
    Scan_Fall{"DB P1+1",            "DB | 145"},
    Scan_Fall{"DB 1+P1.1",          "DB | 146"},
    Scan_Fall{"DB 10h/3*3",         "DB | 15"},
    Scan_Fall{"DB 2^3^2",           "DB | 64"}));

INSTANTIATE_TEST_SUITE_P(Zeichenketten, Operanden_Scan, ::testing::Values(
    Scan_Fall{"DB \"Abc\"",         "DB | 65 98 99"},
    Scan_Fall{"db \"aB\"",          "DB | 97 66"},
    Scan_Fall{"DB \"a,b c\"",       "DB | 97 44 98 32 99"},
    Scan_Fall{"DB \"+-*/^#():=\"",  "DB | 43 45 42 47 94 35 40 41 58 61"},
    Scan_Fall{"DB \"\"",            "DB |"},
    Scan_Fall{"DB \"\",5",          "DB, | 5"},
    Scan_Fall{"DB \"OK\",13,10",    "DB,, | 79 75 13 10"},
    Scan_Fall{"DB 1,\"A\",2",       "DB,, | 1 65 2"},
    Scan_Fall{"DB \"A\" \"B\"",     "DB | 65 66"},
    Scan_Fall{"DB \"AB\"5",         "DB5 | 65 66"},
    Scan_Fall{"DB \"A\"+1",         "DB | 66"},
    Scan_Fall{"DB 1+\"A\"",         "DB | 1 65"},
    Scan_Fall{"DB:\"A\"",           "DB: | 65"},
    Scan_Fall{"DB\"A\"",            "DB\"A\" |"},
    Scan_Fall{"DB \"AB",            "DB\"AB |"},
    Scan_Fall{"DB 5,\"AB",          "DB,\"AB | 5"},
    Scan_Fall{"DB \"\xE4\xC4\xFF\"", "DB | 228 196 255"},
    Scan_Fall{"DB \"a\tb\"",        "DB | 97 9 98"}));

INSTANTIATE_TEST_SUITE_P(LOW_und_HIGH, Operanden_Scan, ::testing::Values(
    Scan_Fall{"DB LOW(1234h)",      "DB | 52"},
    Scan_Fall{"DB HIGH(1234h)",     "DB | 18"},
    Scan_Fall{"DB low(1234h),high(1234h)", "DB, | 52 18"},
    Scan_Fall{"DB LOW(255),LOW(256),HIGH(255),HIGH(256)", "DB,,, | 255 0 0 1"},
    Scan_Fall{"DB LOW(65536),HIGH(65536)", "DB, | 0 256"},
    Scan_Fall{"DB HIGH(99999999)",  "DB | 390624"},
    Scan_Fall{"DB LOW(P1)",         "DB | 144"},
    Scan_Fall{"DB 100h+LOW(1234h)", "DB | 308"},
    Scan_Fall{"DB LOW(1234h)+1",    "DB | 53"},
    Scan_Fall{"DB (LOW(1234h))",    "DB() | 52"},
    Scan_Fall{"DB LOW(1+2)",        "DBLOW(1+) | 2"},
    Scan_Fall{"DB LOW(1234h",       "DBLOW(1234H |"},
    Scan_Fall{"DB LOW 1234h",       "DBLOW | 4660"},
    Scan_Fall{"DB LOW()",           "DB | 0"},
    Scan_Fall{"DB LOW(FOO)",        "DBFOO |"},
    Scan_Fall{"DB LOW(FOO),5",      "DBFOO,5 |"},
    Scan_Fall{"DB LOW(FOO),5,6,7,8",  "DBFOO,5,6,, | 7 8"},
    Scan_Fall{"DB HIGH(FOO),5,6,7,8", "DBFOO,5,6,7, | 8"}));

INSTANTIATE_TEST_SUITE_P(Gleichheit_und_Vergleich, Operanden_Scan, ::testing::Values(
    Scan_Fall{"30h=#5",             "=# | 48 5"},
    Scan_Fall{"30h = #5",           "=# | 48 5"},
    Scan_Fall{"P1=A",               "=A | 144"},
    Scan_Fall{"A=P1",               "A= | 144"},
    Scan_Fall{"R0=#5",              "R0=# | 5"},
    Scan_Fall{"A=R0",               "A=R0 |"},
    Scan_Fall{"30h=31h",            "= | 48 49"},
    Scan_Fall{"P1=P1+1",            "= | 144 145"},
    Scan_Fall{"IF 30h=#2 THEN",     "IF=#THEN | 48 2"},
    Scan_Fall{"IF 30h<#2 THEN",     "IF<#THEN | 48 2"},
    Scan_Fall{"IF 30h>#2 THEN",     "IF>#THEN | 48 2"},
    Scan_Fall{"IF 30h<>#2 THEN",    "IF<>#THEN | 48 2"},
    Scan_Fall{"IF 30h=31h THEN",    "IF=THEN | 48 49"},
    Scan_Fall{"IF A<5 THEN",        "IFA<THEN | 5"},
    Scan_Fall{"IF R3<>#5 THEN",     "IFR3<>#THEN | 5"},
    Scan_Fall{"IF BIT P1.0 THEN",   "IFBITTHEN | 144"},
    Scan_Fall{"FOR 30h=#1 TO #9",   "FOR=#TO# | 48 1 9"}));

INSTANTIATE_TEST_SUITE_P(THEN_beendet_den_Kopf, Operanden_Scan, ::testing::Values(
    Scan_Fall{"IF A=#5 THEN MOV A,#6",  "IFA=#THENMOVA,#6 | 5"},
    Scan_Fall{"IF A=#5 THEN 30h=#6",    "IFA=#THEN30H=#6 | 5"},
    Scan_Fall{"if a=#5 then mov a,#6",  "IFA=#THENMOVA,#6 | 5"},
    Scan_Fall{"IF A=#5 FOO 7",          "IFA=#FOO | 5 7"}));

INSTANTIATE_TEST_SUITE_P(Sonderbare_Stuecke, Operanden_Scan, ::testing::Values(
    Scan_Fall{"DB !",               "DB |"},
    Scan_Fall{"DB %",               "DB |"},
    Scan_Fall{"DB 5,%",             "DB, | 5"},
    Scan_Fall{"MOV A,#!",           "MOVA,# |"},
    Scan_Fall{"DB 12.5",            "DB.5 | 12"},
    Scan_Fall{"DB .5",              "DB.5 | 0"},
    Scan_Fall{"DB FOO.5",           "DBFOO.5 |"},
    Scan_Fall{"DB 12.A",            "DB12.A |"},
    Scan_Fall{"DB D",               "DB | 0"},
    Scan_Fall{"DB B",               "DB | 0"},
    Scan_Fall{"DB H",               "DB | 0"},
    Scan_Fall{"DB A",               "DBA |"},
    Scan_Fall{"DB C",               "DBC |"},
    Scan_Fall{"MOV C,5",            "MOVC, | 5"},
    Scan_Fall{"MUL AB",             "MULAB |"}));
// clang-format on

TEST_F(Operanden_Welt, letters_are_numbers_under_the_hexadecimal_option_but_never_A_and_C)
{
    Zahlendeutung = true;
    EXPECT_EQ(Scan("DB A,B,C,D,E,F"), "DBA,,C,,, | 11 13 14 15");
    EXPECT_EQ(Scan("MUL AB"), "MUL | 171");
    EXPECT_EQ(Scan("MOV C,20"), "MOVC, | 32");
    EXPECT_EQ(Assembliere("MUL AB"), "A4");
}

TEST_F(Operanden_Welt, the_first_word_is_an_operand_wherever_a_sign_of_equality_stands)
{
    EXPECT_EQ(Assembliere("DB \"=\""), "3D");
    Zahlendeutung = true; // now DB is a number
    EXPECT_EQ(Scan("DB \"=\""), " | 219 61");
    EXPECT_EQ(Scan("DB \"-\""), "DB | 45");
}

TEST_F(Operanden_Welt, a_lone_mark_leaves_a_line_that_takes_the_value_of_the_line_before)
{
    EXPECT_EQ(Assembliere("MOV A,#5\nMOV A,#!\nMOV A,#%"), "74 05 74 05 74 05");
}

TEST_F(Operanden_Welt, the_dollar_sign_is_the_address_and_marks_it_as_one)
{
    Adress_Zaehler = 0x1234;
    EXPECT_EQ(Scan("SJMP $"), "SJMP() | 4660");
    EXPECT_EQ(Scan("DB $+5"), "DB() | 4665");
    EXPECT_EQ(Scan("DB 5+$"), "DB() | 4665");
    EXPECT_EQ(Scan("DB $-$"), "DB()() | 0");
    EXPECT_EQ(Scan("DB $,$"), "DB(),() | 4660 4660");
    EXPECT_EQ(Scan("JB P1.0,$"), "JB,() | 144 4660");
    EXPECT_EQ(Scan("DB LOW($)"), "DB() | 52");
    EXPECT_EQ(Scan("DB \"$\""), "DB | 36");
}

TEST_F(Operanden_Welt, the_dollar_sign_in_instructions)
{
    EXPECT_EQ(Assembliere("NOP\nSJMP $"), "00 80 FE");
    EXPECT_EQ(Assembliere("NOP\nSJMP $+5"), "00 80 03");
    EXPECT_EQ(Assembliere("NOP\nLJMP $+3"), "00 02 00 04");
    EXPECT_EQ(Assembliere("NOP\nCJNE A,#1,$"), "00 B4 01 FD");
    EXPECT_EQ(Assembliere("NOP\nDJNZ R3,$"), "00 DB FE");
}

TEST_F(Operanden_Welt, a_dollar_sign_at_the_end_of_a_data_line_is_an_offset)
{
    EXPECT_EQ(Assembliere("NOP\nDB $"), "00 FE");
    EXPECT_EQ(Assembliere("NOP\nDB $,$"), "00 01 FD");
    EXPECT_EQ(Assembliere("NOP\nDB $,5"), "00 01 05");
}

TEST_F(Operanden_Welt, the_scan_ends_two_characters_behind_the_length_that_the_line_had)
{
    EXPECT_EQ(Scan("DB $,$,5"), "DB(),(),5 | 0 0"); // each $ has become two characters
    EXPECT_EQ(Scan("DB $,$,5 "), "DB(),(), | 0 0 5");
    EXPECT_EQ(Assembliere("NOP\nDB $,$,$"), "00 01 01");
}

TEST_F(Operanden_Welt, brackets_make_an_address_and_a_bare_number_is_the_offset)
{
    EXPECT_EQ(Assembliere("SJMP 5"), "80 05");
    EXPECT_EQ(Assembliere("SJMP (5)"), "80 03");
    EXPECT_EQ(Assembliere("LJMP (1234h)"), "02 12 34");
    EXPECT_EQ(Assembliere("LJMP 1234h"), Ohne_Prozessor.E);
}

TEST_F(Operanden_Welt, the_names_used_on_a_line_are_noted_with_their_bit_suffix)
{
    Name("BYTE", 0x25);
    Scan("MOV P1,BYTE.3");
    EXPECT_EQ(Name_Eins, 0);
    EXPECT_EQ(Name_Zwei, 1);
    EXPECT_FALSE(Bit_Eins);
    EXPECT_TRUE(Bit_Zwei);
    EXPECT_EQ(Wert_Nr(2), 43);
    Scan("MOV A,#5");
    EXPECT_EQ(Name_Eins, -1);
    EXPECT_EQ(Name_Zwei, -1);
    EXPECT_FALSE(Bit_Zwei);
}

// --- calculating ---------------------------------------------------------------------------------

TEST_F(Operanden_Welt, a_division_rounds_to_the_nearest_and_halves_to_the_even_number)
{
    for (int a = 0; a <= 30; ++a)
        for (int b = 1; b <= 8; ++b) {
            const int  Ganze   = a / b;
            const int  Doppelt = 2 * (a % b);
            const bool Auf     = Doppelt > b || (Doppelt == b && Ganze % 2 == 1);
            const int  Soll    = Ganze + (Auf ? 1 : 0);
            const auto Bruch   = std::to_string(a) + "/" + std::to_string(b);
            EXPECT_EQ(Scan("DB " + Bruch), "DB | " + std::to_string(Soll)) << Bruch;
            EXPECT_EQ(Scan("DB 0-" + Bruch), "DB | " + std::to_string(-Soll)) << Bruch;
        }
}

TEST_F(Operanden_Welt, large_quotients_are_exact)
{
    EXPECT_EQ(Scan("DB 65536*32767/2"), "DB | 1073709056");
    EXPECT_EQ(Scan("DB 99999999/1"), "DB | 99999999");
    EXPECT_EQ(Scan("DB 99999999/2"), "DB | 50000000");
    EXPECT_EQ(Scan("DB 99999997/2"), "DB | 49999998");
}

TEST_F(Operanden_Welt, a_power_is_rounded_in_the_same_way)
{
    EXPECT_EQ(Scan("DB 2^0"), "DB | 1");
    EXPECT_EQ(Scan("DB 0^0"), "DB | 1");
    EXPECT_EQ(Scan("DB 0^5"), "DB | 0");
    EXPECT_EQ(Scan("DB 7^9"), "DB | 40353607");
    EXPECT_EQ(Scan("DB 0-3^3"), "DB | -27");
    EXPECT_EQ(Scan("DB 1^99999999"), "DB | 1");
}

TEST_F(Operanden_Welt, a_division_by_zero_is_a_value_that_is_too_high)
{
    Erwarte("DB 5/0", Zu_Hoch);
    Erwarte("DB 0/0", Zu_Hoch);
    Erwarte("DB 5/0*0", Zu_Hoch);
}

TEST_F(Operanden_Welt, results_reach_to_both_ends_of_32_bits)
{
    EXPECT_EQ(Wert_Von("65536*32767"), "2147418112");
    EXPECT_EQ(Wert_Von("46340*46340"), "2147395600");
    EXPECT_EQ(Wert_Von("99999999*21+47483668"), "2147483647");
    EXPECT_EQ(Wert_Von("0-99999999*21-47483669"), "-2147483648");
    EXPECT_EQ(Wert_Von("0-65536*32768"), "-2147483648");
    EXPECT_EQ(Wert_Von("2^30"), "1073741824");
    EXPECT_EQ(Wert_Von("0-2^31"), "-2147483648");
}

TEST_F(Operanden_Welt, results_beyond_32_bits_are_too_high)
{
    for (const char* Ausdruck : {"65536*32768",
                                 "46341*46341",
                                 "99999999*21+47483669",
                                 "0-99999999*21-47483670",
                                 "0-65536*32768-1",
                                 "2^31",
                                 "0-2^32",
                                 "10^10",
                                 "99999999^99999999",
                                 "99999999*99999999*99999999"})
        Erwarte("X EQU " + std::string{Ausdruck}, Zu_Hoch);
}

// --- limits --------------------------------------------------------------------------------------

TEST_F(Operanden_Welt, five_hundred_values_are_the_most_of_a_line)
{
    EXPECT_EQ(Assembliere("DB " + Liste(500, "1")).size(), 500U * 3 - 1);
    EXPECT_EQ(Code_Ende, 500);
    Erwarte("DB " + Liste(501, "1"), Zuviele_Zahlen);
}

TEST_F(Operanden_Welt, five_hundred_characters_are_the_most_of_a_line)
{
    Assembliere("DB \"" + std::string(500, 'x') + "\"");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 500);
    Erwarte("DB \"" + std::string(501, 'x') + "\"", Zuviele_Zeichen);
    Erwarte("DB \"" + std::string(100000, 'x') + "\"", Zuviele_Zeichen);
}

TEST_F(Operanden_Welt, numbers_and_characters_count_together)
{
    const std::string Zeichen(499, 'x');
    EXPECT_NE(Assembliere("DB \"" + Zeichen + "\",1"), Zuviele_Zahlen.E);
    EXPECT_EQ(Code_Ende, 500);
    Erwarte("DB \"" + Zeichen + "\",1,1", Zuviele_Zahlen);
    Erwarte("DB " + Liste(499, "1") + ",\"xy\"", Zuviele_Zeichen);
}

TEST_F(Operanden_Welt, the_value_that_would_join_the_last_of_five_hundred_is_one_too_much)
{
    Assembliere("DB " + Liste(499, "1") + "+1");
    EXPECT_EQ(Assembler_Fehler, 0);
    Erwarte("DB " + Liste(500, "1") + "+1", Zuviele_Zahlen);
}

TEST_F(Operanden_Welt, a_byte_goes_from_0_to_255)
{
    EXPECT_EQ(Assembliere("MOV A,#0\nMOV A,#255"), "74 00 74 FF");
    EXPECT_EQ(Assembliere("MOV A,#LOW(65535)\nMOV A,#HIGH(65535)"), "74 FF 74 FF");
    for (const bool Hexadezimal : {false, true}) {
        Zahlendeutung = Hexadezimal;
        Erwarte("MOV A,#%256", Byte_Bereich(Hexadezimal));
        Erwarte("MOV A,#0-%1", Byte_Bereich(Hexadezimal));
        Erwarte("MOV A,#HIGH(%65536)", Byte_Bereich(Hexadezimal));
    }
}

TEST_F(Operanden_Welt, a_word_goes_from_0_to_65535)
{
    EXPECT_EQ(Assembliere("LJMP (0)\nLCALL (65535)"), "02 00 00 12 FF FF");
    EXPECT_EQ(Assembliere("MOV DPTR,#65535"), "90 FF FF");
    for (const bool Hexadezimal : {false, true}) {
        Zahlendeutung = Hexadezimal;
        Erwarte("LJMP (%65536)", Wort_Bereich(Hexadezimal));
        Erwarte("MOV DPTR,#%65536", Wort_Bereich(Hexadezimal));
        Erwarte("MOV DPTR,#0-%1", Wort_Bereich(Hexadezimal));
    }
}

TEST_F(Operanden_Welt, a_jumpmark_is_no_value)
{
    Erwarte("TABLE: NOP\nMOV A,#LOW(TABLE)", Ohne_Prozessor);
    EXPECT_EQ(Assembliere("TABLE EQU 1234h\nMOV A,#LOW(TABLE)\nMOV A,#HIGH(TABLE)"), "74 34 74 12");
}

// --- the target of a jump ------------------------------------------------------------------------

// Behind a NOP at 0 that has the label 10: a jump to 10 is a jump to the NOP.
constexpr std::pair<const char*, const char*> Spruenge[] = {
    {"JB 20h,", "20 20 FC"},
    {"JBC 20h,", "10 20 FC"},
    {"JNB 20h,", "30 20 FC"},
    {"CJNE A,#5,", "B4 05 FC"},
    {"CJNE A,5,", "B5 05 FC"},
    {"CJNE R1,#5,", "B9 05 FC"},
    {"CJNE @R1,#5,", "B7 05 FC"},
    {"DJNZ 30h,", "D5 30 FC"},
    {"DJNZ R3,", "DB FD"},
    {"JC ", "40 FD"},
    {"JNC ", "50 FD"},
    {"JNZ ", "70 FD"},
    {"JZ ", "60 FD"},
    {"SJMP ", "80 FD"},
    {"JMP ", "02 00 00"},
    {"LJMP ", "02 00 00"},
    {"LCALL ", "12 00 00"},
    {"CALL ", "12 00 00"},
    {"AJMP ", "01 00"},
    {"ACALL ", "11 00"},
};

TEST_F(Operanden_Welt, a_label_comes_before_a_number_in_the_place_of_a_jump_target)
{
    for (const bool Hexadezimal : {false, true}) {
        Zahlendeutung = Hexadezimal;
        for (const auto& [Kopf, Bytes] : Spruenge) {
            const std::string Zeile = std::string{Kopf} + "10";
            EXPECT_EQ(Assembliere("10: NOP\n" + Zeile), "00 " + std::string{Bytes}) << Zeile;
        }
    }
}

TEST_F(Operanden_Welt, a_label_of_letters_comes_before_a_hexadecimal_number)
{
    Zahlendeutung = true;
    for (const auto& [Kopf, Bytes] : Spruenge) {
        const std::string Zeile = std::string{Kopf} + "ff";
        EXPECT_EQ(Assembliere("FF: NOP\n" + Zeile), "00 " + std::string{Bytes}) << Zeile;
    }
}

TEST_F(Operanden_Welt, a_label_below_the_jump_and_one_in_the_hexadecimal_range_count_as_well)
{
    Zahlendeutung = true;
    EXPECT_EQ(Assembliere("SJMP FF\nFF: NOP"), "80 00 00");
    EXPECT_EQ(Assembliere("SJMP FE\nFF: NOP"), "80 FE 00");
}

TEST_F(Operanden_Welt, elsewhere_on_the_line_a_number_comes_before_a_label)
{
    EXPECT_EQ(Assembliere("10: NOP\nMOV A,#10"), "00 74 0A");
    EXPECT_EQ(Assembliere("10: NOP\nCJNE A,10,10"), "00 B5 0A FC");
    EXPECT_EQ(Assembliere("10: NOP\nJB 10,10"), "00 20 0A FC");
    EXPECT_EQ(Assembliere("10: NOP\nDJNZ 10,10"), "00 D5 0A FC");
    EXPECT_EQ(Assembliere("10: NOP\nLJMP (10)"), "00 02 00 0A");
}

TEST_F(Operanden_Welt, a_name_in_the_place_of_a_jump_target_comes_behind_a_label)
{
    EXPECT_EQ(Assembliere("X EQU 7\nNOP\nSJMP X"), "00 80 07");
    EXPECT_EQ(Assembliere("X EQU 7\nX: NOP\nSJMP X"), "00 80 FD");
}

// --- random lines --------------------------------------------------------------------------------

rc::Gen<std::string> Wirre_Zeile()
{
    const auto Stueck = rc::gen::element<std::string>(",",
                                                      " ",
                                                      " ",
                                                      "#",
                                                      "+",
                                                      "-",
                                                      "*",
                                                      "/",
                                                      "^",
                                                      ":",
                                                      "(",
                                                      ")",
                                                      "=",
                                                      "<",
                                                      ">",
                                                      "<>",
                                                      "\"",
                                                      "!",
                                                      "%",
                                                      "$",
                                                      ".",
                                                      ".5",
                                                      "@",
                                                      "()",
                                                      "LOW(",
                                                      "HIGH(",
                                                      "IF ",
                                                      " THEN",
                                                      " THEN ",
                                                      "FOR ",
                                                      " TO ",
                                                      "NEXT",
                                                      "ELSE",
                                                      "END IF",
                                                      "MOV ",
                                                      "DB ",
                                                      "DW ",
                                                      "JB ",
                                                      "CJNE ",
                                                      "DJNZ ",
                                                      "SJMP ",
                                                      "LJMP ",
                                                      "AJMP ",
                                                      "ORG ",
                                                      "EQU ",
                                                      " DATA ",
                                                      " BIT ",
                                                      "CONST ",
                                                      "HEX:",
                                                      "DEZ:",
                                                      "ASC:",
                                                      "A",
                                                      "C",
                                                      "R0",
                                                      "DPTR",
                                                      "ACC",
                                                      "X",
                                                      "X:",
                                                      "10",
                                                      "0FFh",
                                                      "%255",
                                                      "$12",
                                                      "!101",
                                                      "101B",
                                                      "99999999",
                                                      "65536",
                                                      "STOP",
                                                      "PUSHA",
                                                      "\x80",
                                                      "\xE4",
                                                      "\x1D",
                                                      ";",
                                                      "'",
                                                      "\t",
                                                      "\n",
                                                      "\n");
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(Stueck),
                        [](const std::vector<std::string>& Stuecke) {
                            std::string Text;
                            for (const std::string& s : Stuecke)
                                Text += s;
                            return Text;
                        });
}

RC_GTEST_FIXTURE_PROP(Operanden_Welt, any_mix_of_pieces_ends_in_a_clear_result, (bool Hexadezimal))
{
    Zahlendeutung = Hexadezimal;
    for (int i = 0; i < 10; ++i) {
        const std::string Text = *Wirre_Zeile();
        Laufen(Text);
        RC_ASSERT(Text_Aktuell == (Assembler_Fehler == 0));
        RC_ASSERT(Assembler_Fehler == 0 || Box.Meldungen.size() == 1U);
        RC_ASSERT(Assembler_Fehler == 0 || !Letzte_Meldung().empty());
        RC_ASSERT(!Status.Offen);
        RC_ASSERT(!Ereignisse.Zeiger_Wartet);
    }
}

RC_GTEST_FIXTURE_PROP(Operanden_Welt, the_scan_of_any_bytes_ends, (const std::string& Bytes))
{
    const std::string Ergebnis = Scan("DB " + Bytes); // a row without text is never scanned
    RC_ASSERT(!Ergebnis.empty());
    RC_ASSERT(Wert_Anzahl >= 0);
    RC_ASSERT(Wert_Anzahl <= 500);
}

} // namespace
} // namespace varnholt::test
