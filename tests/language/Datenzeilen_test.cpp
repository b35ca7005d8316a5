// Data lines and directives: HEX, DEZ, ASC, DB, DW, fixed addresses, ORG, END, STOP.
#include "language/Meldungs_Texte.h"
#include "language/Opcode_Tafel.h"

#include <rapidcheck/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

const Text_Paar Hex_Feld{
    "Bitte verwenden Sie bei Hex-Datenfelder nur die Werte 00 bis FF und trennen "
    "Sie diese durch ein Komma oder Leerzeichen !",
    "Please use within hex fields only the values 00 till FF and seperate them "
    "with a comma or a spacesign!"};
const Text_Paar Dez_Feld{
    "Bitte verwenden Sie bei Dez-Datenfelder nur die Werte 0 bis 255 und trennen "
    "Sie diese durch ein Komma oder Leerzeichen !",
    "Please use within dez fields only the values 0 till 255 and seperate them "
    "with a comma or a spacesign!"};
const Text_Paar DB_Feld{
    "Bitte verwenden Sie bei DB-Datenfeldern nur die Werte 0 bis 255 und trennen "
    "Sie diese durch ein Komma oder Leerzeichen !",
    "Please use within db data fields only the values 0 till 255 and seperate "
    "them with a comma or a spacesign!"};
const Text_Paar DW_Feld{
    "Bitte verwenden Sie bei DW-Datenfeldern nur die Werte 0 bis 65535 und trennen "
    "Sie diese durch ein Komma oder Leerzeichen !",
    "Please use within dw data fields only the values 0 till 65535 and seperate "
    "them with a comma or a spacesign!"};
const Text_Paar Feste_Adresse{
    "Bitte verwenden Sie innerhalb von festen Sprunglabeln nur Werte von 0 "
    "bis 65535 !",
    "Please use within fixed jumplabel only values between 0 and 65535 !"};

class Daten_Welt : public Assembler_Welt {
protected:
    void Erwarte(const std::vector<std::pair<std::string, std::string>>& Faelle)
    {
        for (const auto& [Text, Ergebnis] : Faelle)
            EXPECT_EQ(Assembliere(Text), Ergebnis) << Text;
    }
    void Erwarte_Fehler_Je(const std::vector<std::string>& Texte, const Text_Paar& Meldung)
    {
        for (const std::string& t : Texte)
            Erwarte_Fehler(t, Meldung.D, Meldung.E);
    }
    std::string Ab(int Adresse, const std::string& Text, int Anzahl)
    {
        const std::string Ergebnis = Assembliere(Text);
        return Assembler_Fehler == 0 ? Hex_Text(Adresse, Adresse + Anzahl) : Ergebnis;
    }
};

// --- HEX ----------------------------------------------------------------------------------------

TEST_F(Daten_Welt, takes_hexadecimal_values_apart_by_commas_and_blanks)
{
    Erwarte({{"HEX: 12,AB FF", "12 AB FF"},
             {"HEX:12", "12"},
             {"hex: ab,cd", "AB CD"},
             {"HEX: 0 , 00  ,0FF", "00 00 FF"},
             {"HEX: 12h 0FFh H", "12 FF 00"},
             {"HEX:", ""},
             {"HEX: 5,", "05"},
             {"HEX: ,5", "00 05"},
             {"HEX: 5,,,6", "05 06"},
             {"HEX: 1 ; comment", "01"},
             {"X: HEX: 12", "12"}});
}

TEST_F(Daten_Welt, reads_HEX_as_hexadecimal_in_both_readings_of_numbers)
{
    EXPECT_EQ(Assembliere("HEX: 10\nDB 10"), "10 0A");
    Zahlendeutung = true;
    EXPECT_EQ(Assembliere("HEX: 10\nDB 10"), "10 10");
}

TEST_F(Daten_Welt, refuses_what_is_no_hexadecimal_byte)
{
    Erwarte_Fehler_Je({"HEX: 100",
                       "HEX: G",
                       "HEX: 1,2,300",
                       "HEX: -1",
                       "HEX: \"A\"",
                       "HEX: $10",
                       "HEX: FFFFFFFFFFFF",
                       "HEX: P1"},
                      Hex_Feld);
}

TEST_F(Daten_Welt, knows_no_names_in_HEX)
{
    Erwarte({{"FOO EQU 5\nHEX: FOO", Hex_Feld.E}, {"AB EQU 5\nHEX: AB", "AB"}});
}

// --- DEZ ----------------------------------------------------------------------------------------

TEST_F(Daten_Welt, takes_decimal_values_apart_by_commas_and_blanks)
{
    Erwarte({{"DEZ: 12,255 0", "0C FF 00"},
             {"DEZ:12", "0C"},
             {"dez: 1 , 2", "01 02"},
             {"DEZ: ,5", "00 05"},
             {"DEZ:", ""},
             {"DEZ: 007", "07"}});
}

TEST_F(Daten_Welt, takes_the_longest_numeric_beginning_of_a_decimal_value)
{
    Erwarte({{"DEZ: 12abc", "0C"},
             {"DEZ: abc", "00"},
             {"DEZ: 10h", "0A"},
             {"DEZ: +5", "05"},
             {"DEZ: -0", "00"},
             {"DEZ: 1E2", "64"},
             {"DEZ: 1e+2", "64"},
             {"DEZ: 2550E-1", "FF"},
             {"DEZ: 1E", "01"},
             {"DEZ: 1.2.3", "01"},
             {"DEZ: .6", "01"},
             {"DEZ: .", "00"},
             {"DEZ: -", "00"}});
}

TEST_F(Daten_Welt, rounds_decimal_values_with_halves_to_the_even_one)
{
    Erwarte({{"DEZ: 0.5 1.5 2.5 3.5", "00 02 02 04"},
             {"DEZ: 0.4 0.6 2.51", "00 01 03"},
             {"DEZ: 254.5", "FE"},
             {"DEZ: 255.4", "FF"},
             {"DEZ: -0.5", "00"},
             {"DEZ: 255.5", Dez_Feld.E},
             {"DEZ: -0.51", Dez_Feld.E}});
}

TEST_F(Daten_Welt, refuses_what_is_no_decimal_byte)
{
    Erwarte_Fehler_Je({"DEZ: 256",
                       "DEZ: -1",
                       "DEZ: 1,2,300",
                       "DEZ: 99999998",
                       "DEZ: 99999999",
                       "DEZ: 999999999999999999999",
                       "DEZ: 1E400",
                       "DEZ: -1E400"},
                      Dez_Feld);
}

TEST_F(Daten_Welt, reads_DEZ_as_decimal_in_both_readings_of_numbers)
{
    Zahlendeutung = true;
    EXPECT_EQ(Assembliere("DEZ: 10\nDB 10"), "0A 10");
}

TEST_F(Daten_Welt, leaves_the_bytes_ahead_of_a_wrong_value)
{
    for (const auto& [Text, Bytes] : {std::pair{"DEZ: 254,256", "FE FF"},
                                      {"HEX: 12,34,100", "12 34"},
                                      {"DB 1,256,2", "01 FF"},
                                      {"DW 1234h,65536", "12 34"}}) {
        Laufen(Text);
        EXPECT_EQ(Assembler_Fehler, 1) << Text;
        EXPECT_EQ(Hex_Text(0, 2), Bytes) << Text;
    }
}

// --- ASC ----------------------------------------------------------------------------------------

TEST_F(Daten_Welt, takes_the_characters_of_a_line)
{
    Erwarte({{"ASC: Hello", "48 65 6C 6C 6F"},
             {"ASC:Hello", "48 65 6C 6C 6F"},
             {"asc: aB", "61 42"},
             {"ASC:  x", "78"},
             {"ASC: a b", "61 20 62"},
             {"ASC: a  b", "61 20 62"},
             {"ASC: a , b", "61 2C 62"},
             {"ASC: \"a;b\"", "22 61 3B 62 22"},
             {"ASC: \"a  b\"", "22 61 20 20 62 22"},
             {"ASC: \"\t\"", "22 09 22"},
             {"ASC: a\tb", "61 20 62"},
             {"ASC: a;b", "61"},
             {"ASC: a'b", "61"},
             {"ASC:", ""},
             {"ASC: 12h", "31 32 68"},
             {"ASC: \xE4\x80\xFF", "E4 80 FF"},
             {"L: ASC: x", "78"}});
}

// --- DB and DW
// ------------------------------------------------------------------------------------

TEST_F(Daten_Welt, takes_values_strings_and_expressions_in_DB)
{
    Erwarte({{"DB 1,2,3", "01 02 03"},
             {"DB 1 2 3", "01 02 03"},
             {"DB: 5", "05"},
             {"DB:5", "05"},
             {"DB \"OK\",13,10", "4F 4B 0D 0A"},
             {"DB \"a,b;c\"", "61 2C 62 3B 63"},
             {"DB 2*8", "10"},
             {"DB 255,0", "FF 00"},
             {"X EQU 7\nDB X,X+1", "07 08"},
             {"DB LOW(1234h),HIGH(1234h)", "34 12"}});
}

TEST_F(Daten_Welt, takes_any_word_that_begins_with_DB_or_DW)
{
    Erwarte({{"DBX 5", "05"}, {"DBYTE 5,6", "05 06"}, {"DWX 5", "00 05"}, {"DWORD 1", "00 01"}});
}

TEST_F(Daten_Welt, drops_what_is_no_value_in_DB_and_DW)
{
    Erwarte({{"DB FOO", ""},
             {"DB", ""},
             {"DB 1,FOO,2", "01 02"},
             {"L: DW L", ""},
             {"DW FOO,5", "00 05"},
             {"DB 5 ' \"x\"", "05"}});
}

TEST_F(Daten_Welt, takes_words_with_the_high_byte_first)
{
    Erwarte({{"DW 1234h", "12 34"},
             {"DW 5,65535,0", "00 05 FF FF 00 00"},
             {"DW \"AB\"", "00 41 00 42"},
             {"DW: 1", "00 01"}});
}

// A value in brackets at the end of a line is an address, and becomes an offset in data lines too.
TEST_F(Daten_Welt, turns_a_closing_address_into_an_offset)
{
    Erwarte({{"DB $", "FE"},
             {"DB 1\nDB $,$", "01 01 FD"},
             {"DB (5)", "03"},
             {"DB (5),6", "05 06"},
             {"NOP\nDW $", "00 00 FE"},
             {"NOP\nX EQU $\nDB X", "00 FE"},
             {"DB (130)", Zu_Weit.E}});
    EXPECT_EQ(Ab(3, "ORG $+5\nRET", 1), "22");
    EXPECT_EQ(Assembliere("(100h): SJMP (180h)"), Zu_Weit.E);
}

TEST_F(Daten_Welt, refuses_values_beyond_byte_and_word)
{
    Erwarte_Fehler_Je({"DB 256", "DB 1,2,256", "DB 99999999", "DBX 300", "DB 1-2"}, DB_Feld);
    Erwarte_Fehler_Je({"DW 65536", "DW 1,99999999", "DWX 70000", "DW 1-2"}, DW_Feld);
}

TEST_F(Daten_Welt, counts_no_data_line_as_an_instruction)
{
    EXPECT_EQ(Assembliere("NOP\nDB 1\nDW 1\nHEX: 1\nDEZ: 1\nASC: 1\nX EQU 1\nRET"),
              "00 01 00 01 01 01 31 22");
    EXPECT_EQ(Befehl_Zaehler, 2);
}

TEST_F(Daten_Welt, stores_a_label_and_then_the_data)
{
    EXPECT_EQ(Assembliere("MOV DPTR,#TABLE\nTABLE: DB 1,2"), "90 00 03 01 02");
}

RC_GTEST_FIXTURE_PROP(Daten_Welt, gives_random_values_back_in_every_way_to_write_them, ())
{
    const auto Werte =
        *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 256)));
    std::string DB = "DB ", Hex = "HEX: ", Dez = "DEZ: ", DW = "DW ", Soll, Soll_Worte;
    for (const int w : Werte) {
        const char* Trenner = Soll.empty() ? "" : *rc::gen::element(",", " ", " , ", ", ");
        DB += Trenner + std::to_string(w);
        Hex += Trenner + Hex2(w);
        Dez += Trenner + std::to_string(w);
        DW += Trenner + std::string("0") + Hex2(w) + Hex2(255 - w) + "h";
        Soll += (Soll.empty() ? "" : " ") + Hex2(w);
        Soll_Worte += (Soll_Worte.empty() ? "" : " ") + Hex2(w) + " " + Hex2(255 - w);
    }
    RC_ASSERT(Assembliere(DB) == Soll);
    RC_ASSERT(Assembliere(Hex) == Soll);
    RC_ASSERT(Assembliere(Dez) == Soll);
    RC_ASSERT(Assembliere(DW) == Soll_Worte);
}

// --- fixed addresses and ORG
// ------------------------------------------------------------------------

TEST_F(Daten_Welt, sets_the_address_and_goes_on_with_the_rest_of_the_line)
{
    EXPECT_EQ(Ab(0x100, "(100h): NOP\nLJMP $", 4), "00 02 01 01");
    EXPECT_EQ(Code_Ende, 0x104);
    EXPECT_EQ(Befehl_Zaehler, 2);
    EXPECT_EQ(Zeilen_Text(0), "NOP");
    EXPECT_EQ(Quell_Zeilen.at(0).Adresse, 0x100);
    EXPECT_EQ(Ab(10, "(10):RET", 1), "22");
    EXPECT_EQ(Ab(0x200, "(100h):(200h): NOP", 1), "00");
    EXPECT_EQ(Ab(0x13, "X EQU 13h\n(X): RETI", 1), "32");
    EXPECT_EQ(Ab(0x20, "(10h+10h): DB 7", 1), "07");
}

TEST_F(Daten_Welt, sets_the_address_on_a_line_with_nothing_behind_it)
{
    EXPECT_EQ(Ab(0x100, "(100h):\nNOP", 1), "00");
    EXPECT_EQ(Code_Ende, 0x101);
}

TEST_F(Daten_Welt, takes_fixed_addresses_up_to_65535)
{
    EXPECT_EQ(Ab(65535, "(65535): NOP", 1), "00");
    Erwarte_Fehler_Je({"(65536): NOP", "(99999999):", "(10000h): NOP"}, Feste_Adresse);
    EXPECT_EQ(Assembliere("(FOO): NOP"), Ohne_Prozessor.E);
}

TEST_F(Daten_Welt, sets_the_address_by_ORG)
{
    EXPECT_EQ(Ab(0x100, "ORG 100h\nNOP", 1), "00");
    EXPECT_EQ(Ab(0, "NOP\nRET\nORG 0\nINC A", 2), "04 22");
    EXPECT_EQ(Code_Ende, 1);
    EXPECT_EQ(Ab(0x10, "DB 10h\nORG\nRET", 1), "22");
    EXPECT_EQ(Assembliere("ORG LABEL"), Ohne_Prozessor.E);
}

TEST_F(Daten_Welt, keeps_FF_between_two_addresses)
{
    EXPECT_EQ(Assembliere("NOP\nORG 4\nRET"), "00 FF FF FF 22");
    EXPECT_EQ(Assembliere("ORG 3"), "FF FF FF");
}

TEST_F(Daten_Welt, does_not_check_the_range_of_ORG)
{
    EXPECT_EQ(Ab(0x7FFFF, "ORG 7FFFFh\nDB 5", 1), "05");
    EXPECT_EQ(Code_Ende, 0x80000);
}

// --- END, STOP
// ----------------------------------------------------------------------------------------

TEST_F(Daten_Welt, ends_at_END_and_ENDE)
{
    for (const char* Wort : {"END", "ENDE", "end", "END 5", "X: END"}) {
        EXPECT_EQ(Assembliere("NOP\n" + std::string(Wort) + "\nwhat is this\nRET"), "00") << Wort;
        EXPECT_EQ(Zeilen_Text(1), "") << Wort;
        EXPECT_EQ(Zeilen_Text(2), "what is this") << Wort;
    }
    EXPECT_EQ(Assembliere("NOP\nENDING"), Ohne_Prozessor.E);
}

TEST_F(Daten_Welt, emits_STOP_for_the_debugger_only)
{
    EXPECT_EQ(Assembliere("NOP\nSTOP\nRET"), "00 22");
    EXPECT_EQ(Befehl_Zaehler, 2);
    EXPECT_EQ(Zeilen_Text(1), "");
    Debugger_Aktiv = true;
    EXPECT_EQ(Assembliere("NOP\nstop\nRET"), "00 A5 22");
    EXPECT_EQ(Befehl_Zaehler, 3);
    EXPECT_EQ(Zeilen_Text(1), "stop");
}

} // namespace
} // namespace varnholt::test
