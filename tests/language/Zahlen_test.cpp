// Numbers: every rule of the number syntax under both options, the two readers of hexadecimal text,
// and the offset of a short jump.
#include "language/Assembler_Hilfe.h"
#include "language/HexDez.h"
#include "language/Meldungs_Texte.h"
#include "language/Namen.h"
#include "language/Operanden.h"
#include "language/Zahlen.h"

#include <rapidcheck/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {
namespace {

const std::string Zu_Hoch_D      = "Wert ist zu hoch !";
const std::string Zu_Hoch_E      = "Value is to high !";
const std::string Nur_Nullen_D   = "Binäre Zahlen dürfen nur Nullen und Einsen enthalten!";
const std::string Nur_Nullen_E   = "Binary numbers must consist only of 0 and 1!";
const std::string Kein_Wert      = "kein Wert";
constexpr bool    Dezimal_Option = false;
constexpr bool    Hex_Option     = true;

// --- the rules by hand ---------------------------------------------------------------------------

// What a token means, told a second time and differently: over text, rule by rule.
std::string Ziffern_Wert(const std::string& Ziffern, std::uint64_t Basis, std::uint64_t Grenze)
{
    std::uint64_t Wert = 0;
    for (const char c : Ziffern) {
        const auto Ziffer =
            static_cast<std::uint64_t>(std::string_view{"0123456789ABCDEF"}.find(c));
        Wert = std::min(Basis * Wert + Ziffer, Grenze + 1);
    }
    return Wert > Grenze ? Zu_Hoch_E : std::to_string(Wert);
}

bool Nur_Aus(const std::string& Text, const char* Zeichen)
{
    return Text.find_first_not_of(Zeichen) == std::string::npos;
}

std::string Ohne(const std::string& Text, char Zeichen)
{
    std::string Rest;
    for (const char c : Text)
        if (c != Zeichen)
            Rest += c;
    return Rest;
}

std::string Binaer_Wert(const std::string& Ziffern)
{
    return Ziffern.size() > 31 ? Zu_Hoch_E : Ziffern_Wert(Ziffern, 2, 0x7FFFFFFF);
}

std::string Hexadezimal_Wert(const std::string& Token)
{
    std::string Ziffern = Token.front() == '$' ? Token.substr(1) : Token;
    if (!Ziffern.empty() && Ziffern.back() == 'H')
        Ziffern.pop_back();
    Ziffern = Ohne(Ziffern, 'H');
    return Nur_Aus(Ziffern, "0123456789ABCDEF") ? Ziffern_Wert(Ziffern, 16, 99999999) : Kein_Wert;
}

std::string Unmarkiert_Wert(const std::string& Token, bool Hexadezimal)
{
    const std::string Ziffern = Ohne(Token, Hexadezimal ? 'H' : 'D');
    if (!Nur_Aus(Ziffern, Hexadezimal ? "0123456789ABCDEF" : "0123456789"))
        return Kein_Wert;
    if (!Hexadezimal)
        return Ziffern_Wert(Ziffern, 10, 99999999);
    const std::string Wert = Ziffern_Wert(Ziffern, 16, 99999999);
    return Wert == Zu_Hoch_E ? "100000000" : Wert;
}

std::string Erwarteter_Wert(const std::string& Token, bool Hexadezimal)
{
    const std::string Rest = Token.substr(1);
    const std::string Kopf = Token.substr(0, Token.size() - 1);
    if (Token.front() == '%')
        return Nur_Aus(Rest, "0123456789") ? Ziffern_Wert(Rest, 10, 99999999) : Kein_Wert;
    if (Token.front() == '!')
        return Nur_Aus(Rest, "01") ? Binaer_Wert(Rest) : Nur_Nullen_E;
    if (Token.back() == 'B' && (!Hexadezimal || Token.size() == 9) && Nur_Aus(Kopf, "01"))
        return Binaer_Wert(Kopf);
    if (Token.front() == '$' || Token.back() == 'H')
        return Hexadezimal_Wert(Token);
    return Unmarkiert_Wert(Token, Hexadezimal);
}

// --- the rules in the assembler ------------------------------------------------------------------

class Zahlen_Welt : public Assembler_Welt {
protected:
    // The value of a number text as the assembler sees it, `kein Wert`, or the message.
    std::string Wert_Von(const std::string& Zahl, bool Hexadezimal)
    {
        Zahlendeutung             = Hexadezimal;
        const std::string Meldung = Assembliere("X EQU " + Zahl);
        if (Meldung == Ohne_Prozessor.E)
            return Kein_Wert;
        if (Assembler_Fehler == 1)
            return Meldung;
        return Namen_Tabelle.empty() ? "kein Name" : std::to_string(Namen_Tabelle.back().Wert);
    }
};

struct Zahl_Fall {
    std::string Zahl{};
    std::string Dezimal{};     // numbers without a mark are decimal
    std::string Hexadezimal{}; // numbers without a mark are hexadecimal
};

void PrintTo(const Zahl_Fall& Fall, std::ostream* Aus) { *Aus << Fall.Zahl; }

class Zahlen_Tabelle : public Zahlen_Welt, public ::testing::WithParamInterface<Zahl_Fall> {};

TEST_P(Zahlen_Tabelle, reads_a_number_text_by_the_first_rule_that_applies)
{
    EXPECT_EQ(Wert_Von(GetParam().Zahl, Dezimal_Option), GetParam().Dezimal);
    EXPECT_EQ(Wert_Von(GetParam().Zahl, Hex_Option), GetParam().Hexadezimal);
}

const std::string Einsen_30(30, '1');
const std::string Einsen_31(31, '1');
const std::string Einsen_32(32, '1');

// clang-format off
INSTANTIATE_TEST_SUITE_P(Unmarkiert, Zahlen_Tabelle, ::testing::Values(
    Zahl_Fall{"10",         "10",       "16"},
    Zahl_Fall{"0",          "0",        "0"},
    Zahl_Fall{"255",        "255",      "597"},
    Zahl_Fall{"007",        "7",        "7"},
    Zahl_Fall{"255D",       "255",      "9565"},
    Zahl_Fall{"5D",         "5",        "93"},
    Zahl_Fall{"D5",         "5",        "213"},
    Zahl_Fall{"1D2",        "12",       "466"},
    Zahl_Fall{"D1D2D",      "12",       "859437"},
    Zahl_Fall{"D",          "0",        "13"},
    Zahl_Fall{"DD",         "0",        "221"},
    Zahl_Fall{"FF",         Kein_Wert,  "255"},
    Zahl_Fall{"F",          Kein_Wert,  "15"},
    Zahl_Fall{"ff",         Kein_Wert,  "255"},
    Zahl_Fall{"12E",        Kein_Wert,  "302"},
    Zahl_Fall{"12G",        Kein_Wert,  Kein_Wert},
    Zahl_Fall{"G",          Kein_Wert,  Kein_Wert},
    Zahl_Fall{"1_0",        Kein_Wert,  Kein_Wert},
    Zahl_Fall{"1H2",        Kein_Wert,  "18"},
    Zahl_Fall{"H12",        Kein_Wert,  "18"},
    Zahl_Fall{"99999999",   "99999999", "100000000"},
    Zahl_Fall{"100000000",  Zu_Hoch_E,  "100000000"},
    Zahl_Fall{"099999999",  "99999999", "100000000"},
    Zahl_Fall{"D99999999",  "99999999", "100000000"},
    Zahl_Fall{"100000000D", Zu_Hoch_E,  "100000000"},
    Zahl_Fall{"4294967297", Zu_Hoch_E,  "100000000"},
    Zahl_Fall{"18446744073709551617", Zu_Hoch_E, "100000000"},
    Zahl_Fall{"100000000X", Kein_Wert,  Kein_Wert},
    Zahl_Fall{"5F5E0FF",    Kein_Wert,  "99999999"},
    Zahl_Fall{"5F5E100",    Kein_Wert,  "100000000"},
    Zahl_Fall{"5F5E101",    Kein_Wert,  "100000000"},
    Zahl_Fall{"FFFFFFFFFFFFFFFFF", Kein_Wert, "100000000"}));

INSTANTIATE_TEST_SUITE_P(Prozent, Zahlen_Tabelle, ::testing::Values(
    Zahl_Fall{"%10",         "10",       "10"},
    Zahl_Fall{"%255",        "255",      "255"},
    Zahl_Fall{"%0",          "0",        "0"},
    Zahl_Fall{"%99999999",   "99999999", "99999999"},
    Zahl_Fall{"%100000000",  Zu_Hoch_E,  Zu_Hoch_E},
    Zahl_Fall{"%18446744073709551617", Zu_Hoch_E, Zu_Hoch_E},
    Zahl_Fall{"%100000000X", Kein_Wert,  Kein_Wert},
    Zahl_Fall{"%5D",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"%FF",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"%10H",        Kein_Wert,  Kein_Wert},
    Zahl_Fall{"%10B",        Kein_Wert,  Kein_Wert},
    Zahl_Fall{"%%5",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"5%",          Kein_Wert,  Kein_Wert}));

INSTANTIATE_TEST_SUITE_P(Ausrufezeichen, Zahlen_Tabelle, ::testing::Values(
    Zahl_Fall{"!10",             "2",          "2"},
    Zahl_Fall{"!1010",           "10",         "10"},
    Zahl_Fall{"!0",              "0",          "0"},
    Zahl_Fall{"!1111111111111111", "65535",    "65535"},
    Zahl_Fall{"!12",             Nur_Nullen_E, Nur_Nullen_E},
    Zahl_Fall{"!10B",            Nur_Nullen_E, Nur_Nullen_E},
    Zahl_Fall{"!FF",             Nur_Nullen_E, Nur_Nullen_E},
    Zahl_Fall{"!!",              Nur_Nullen_E, Nur_Nullen_E},
    Zahl_Fall{"!10H",            Nur_Nullen_E, Nur_Nullen_E},
    Zahl_Fall{"!" + Einsen_30,   "1073741823", "1073741823"},
    Zahl_Fall{"!" + Einsen_31,   "2147483647", "2147483647"},
    Zahl_Fall{"!" + Einsen_32,   Zu_Hoch_E,    Zu_Hoch_E},
    Zahl_Fall{"!0" + Einsen_31,  Zu_Hoch_E,    Zu_Hoch_E}));

INSTANTIATE_TEST_SUITE_P(Binaer_mit_B, Zahlen_Tabelle, ::testing::Values(
    Zahl_Fall{"10B",           "2",          "267"},
    Zahl_Fall{"1000B",         "8",          "65547"},
    Zahl_Fall{"B",             "0",          "11"},
    Zahl_Fall{"0B",            "0",          "11"},
    Zahl_Fall{"11111111B",     "255",        "255"},
    Zahl_Fall{"1111111B",      "127",        "100000000"},
    Zahl_Fall{"000000001B",    "1",          "27"},
    Zahl_Fall{"00000001B",     "1",          "1"},
    Zahl_Fall{"0000001B",      "1",          "27"},
    Zahl_Fall{"00000002B",     Kein_Wert,    "43"},
    Zahl_Fall{"12B",           Kein_Wert,    "299"},
    Zahl_Fall{"1B0B",          Kein_Wert,    "6923"},
    Zahl_Fall{"D1B",           Kein_Wert,    "3355"},
    Zahl_Fall{"10b",           "2",          "267"},
    Zahl_Fall{Einsen_31 + "B", "2147483647", "100000000"},
    Zahl_Fall{Einsen_32 + "B", Zu_Hoch_E,    "100000000"}));

INSTANTIATE_TEST_SUITE_P(Hexadezimal_markiert, Zahlen_Tabelle, ::testing::Values(
    Zahl_Fall{"10H",        "16",       "16"},
    Zahl_Fall{"$10",        "16",       "16"},
    Zahl_Fall{"$10H",       "16",       "16"},
    Zahl_Fall{"$FF",        "255",      "255"},
    Zahl_Fall{"$ff",        "255",      "255"},
    Zahl_Fall{"FFH",        "255",      "255"},
    Zahl_Fall{"ffh",        "255",      "255"},
    Zahl_Fall{"0FFh",       "255",      "255"},
    Zahl_Fall{"H",          "0",        "0"},
    Zahl_Fall{"HH",         "0",        "0"},
    Zahl_Fall{"$H",         "0",        "0"},
    Zahl_Fall{"$1H2",       "18",       "18"},
    Zahl_Fall{"1H2H",       "18",       "18"},
    Zahl_Fall{"$10B",       "267",      "267"},
    Zahl_Fall{"$10D",       "269",      "269"},
    Zahl_Fall{"$0000001B",  "27",       "27"},
    Zahl_Fall{"$G",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"$$",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"GH",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"5$",         Kein_Wert,  Kein_Wert},
    Zahl_Fall{"5F5E0FFH",   "99999999", "99999999"},
    Zahl_Fall{"5F5E100H",   Zu_Hoch_E,  Zu_Hoch_E},
    Zahl_Fall{"$5F5E0FF",   "99999999", "99999999"},
    Zahl_Fall{"$5F5E100",   Zu_Hoch_E,  Zu_Hoch_E},
    Zahl_Fall{"$5F5E101",   Zu_Hoch_E,  Zu_Hoch_E},
    Zahl_Fall{"$FFFFFFFFFFFFFFFFF", Zu_Hoch_E, Zu_Hoch_E},
    Zahl_Fall{"0FFFFFFFFFFFFFFFFFH", Zu_Hoch_E, Zu_Hoch_E},
    Zahl_Fall{"$FFFFFFFFFFFFFFFFFG", Kein_Wert, Kein_Wert}));
// clang-format on

TEST_F(Zahlen_Welt, A_and_C_alone_are_never_numbers)
{
    EXPECT_EQ(Wert_Von("A", Hex_Option), Kein_Wert);
    EXPECT_EQ(Wert_Von("C", Hex_Option), Kein_Wert);
    EXPECT_EQ(Wert_Von("A", Dezimal_Option), Kein_Wert);
    EXPECT_EQ(Wert_Von("C", Dezimal_Option), Kein_Wert);
    EXPECT_EQ(Wert_Von("AA", Hex_Option), "170");
    EXPECT_EQ(Wert_Von("0C", Hex_Option), "12");
}

TEST_F(Zahlen_Welt, a_name_wins_over_a_number_in_any_case)
{
    EXPECT_EQ(Assembliere("10 EQU 5\nDB 10\nDB 11\n"), "05 0B");
    EXPECT_EQ(Assembliere("10H EQU 5\nDB 10h\nDB 11h\n"), "05 11");
    EXPECT_EQ(Assembliere("!12 EQU 5\nDB !12\n"), "05");
    Zahlendeutung = Hex_Option;
    EXPECT_EQ(Assembliere("Ff EQU 5\nDB fF\nDB FE\n"), "05 FE");
}

TEST_F(Zahlen_Welt, a_value_that_is_too_high_is_told_in_both_languages)
{
    Erwarte_Fehler("X EQU 100000000", Zu_Hoch_D, Zu_Hoch_E);
    Erwarte_Fehler("X EQU %100000000", Zu_Hoch_D, Zu_Hoch_E);
    Erwarte_Fehler("X EQU $5F5E100", Zu_Hoch_D, Zu_Hoch_E);
    Erwarte_Fehler("X EQU !" + Einsen_32, Zu_Hoch_D, Zu_Hoch_E);
    Erwarte_Fehler("X EQU " + Einsen_32 + "B", Zu_Hoch_D, Zu_Hoch_E);
}

TEST_F(Zahlen_Welt, a_wrong_binary_digit_is_told_in_both_languages)
{
    Erwarte_Fehler("X EQU !102", Nur_Nullen_D, Nur_Nullen_E);
    Erwarte_Fehler("MOV A,#!1x", Nur_Nullen_D, Nur_Nullen_E);
}

// --- random number texts -------------------------------------------------------------------------

rc::Gen<std::string> Zahlentext()
{
    const auto Stueck = [](const char* Zeichen, int Laengstes) {
        return rc::gen::resize(
            Laengstes, rc::gen::container<std::string>(rc::gen::elementOf(std::string{Zeichen})));
    };
    const auto Kopf  = rc::gen::element<std::string>("", "", "", "%", "!", "$");
    const auto Rumpf = rc::gen::oneOf(Stueck("01", 40),
                                      Stueck("0123456789", 14),
                                      Stueck("0123456789ABCDEF", 12),
                                      Stueck("01234567890123456789ABCDEFH", 12),
                                      Stueck("0123456789DBHG", 9));
    const auto Ende  = rc::gen::element<std::string>("", "", "", "H", "B", "D", "BH", "HB");
    return rc::gen::suchThat(
        rc::gen::map(rc::gen::tuple(Kopf, Rumpf, Ende),
                     [](const std::tuple<std::string, std::string, std::string>& t) {
                         return std::get<0>(t) + std::get<1>(t) + std::get<2>(t);
                     }),
        [](const std::string& t) {
            return !t.empty() && t != "$" && t != "!" && t != "%" && t != "A" && t != "C";
        });
}

std::string Als_Text(const Zahl_Ergebnis& Ergebnis)
{
    switch (Ergebnis.Art) {
    case Zahl_Ergebnis::Kein_Wert:
        return Kein_Wert;
    case Zahl_Ergebnis::Wert_Da:
        return std::to_string(Ergebnis.Wert);
    case Zahl_Ergebnis::Zu_Hoch:
        return Zu_Hoch_E;
    case Zahl_Ergebnis::Binaer_Falsch:
        return Nur_Nullen_E;
    }
    return {};
}

RC_GTEST_PROP(Zahlen, mean_what_an_independent_reading_of_the_rules_says, (bool Hexadezimal))
{
    for (int i = 0; i < 20; ++i) {
        const std::string Token = *Zahlentext();
        RC_ASSERT(Als_Text(Zahl_Lesen(Token, Hexadezimal)) == Erwarteter_Wert(Token, Hexadezimal));
    }
}

RC_GTEST_FIXTURE_PROP(Zahlen_Welt, random_numbers_mean_the_same_in_a_program, (bool Hexadezimal))
{
    const std::string Token = *Zahlentext();
    // A suffix of a point and a digit belongs to names; it doesn't occur here.
    RC_ASSERT(Wert_Von(Token, Hexadezimal) == Erwarteter_Wert(Token, Hexadezimal));
}

// --- the readers of hexadecimal text -------------------------------------------------------------

int Ziffer_Von(int c, bool Auch_Klein)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return Auch_Klein && c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

TEST(Hex_zu_Wert, reads_every_single_character)
{
    for (int c = 0; c < 256; ++c) {
        const std::string Text(1, static_cast<char>(c));
        const int         Wert = c == 'H' || c == 'h' ? 0 : Ziffer_Von(c, true);
        EXPECT_EQ(Hex_zu_Wert(Text), Wert) << c;
    }
}

TEST(Hex_zu_Wert, reads_every_pair_of_digits_in_any_case)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEFabcdef";
    for (const char a : Ziffern)
        for (const char b : Ziffern)
            EXPECT_EQ(Hex_zu_Wert(std::string{a, b}),
                      16 * Ziffer_Von(a, true) + Ziffer_Von(b, true));
}

TEST(Hex_zu_Wert, is_0_for_the_empty_text) { EXPECT_EQ(Hex_zu_Wert(""), 0); }

TEST(Hex_zu_Wert, passes_over_an_H_wherever_it_stands)
{
    EXPECT_EQ(Hex_zu_Wert("1H2"), 0x12);
    EXPECT_EQ(Hex_zu_Wert("h12"), 0x12);
    EXPECT_EQ(Hex_zu_Wert("12H"), 0x12);
    EXPECT_EQ(Hex_zu_Wert("HHH"), 0);
}

TEST(Hex_zu_Wert, gives_minus_1_for_any_other_character_wherever_it_stands)
{
    for (const char* Text : {"G", "1G", "G1", " 1", "1 ", "-1", "0x10", "$10", "1.0", "12\xE4"})
        EXPECT_EQ(Hex_zu_Wert(Text), -1) << Text;
}

TEST(Hex_zu_Wert, clamps_at_100000000)
{
    EXPECT_EQ(Hex_zu_Wert("5F5E0FF"), 99999999);
    EXPECT_EQ(Hex_zu_Wert("5F5E100"), 100000000);
    EXPECT_EQ(Hex_zu_Wert("5F5E101"), 100000000);
    EXPECT_EQ(Hex_zu_Wert("7FFFFFFF"), 100000000);
    EXPECT_EQ(Hex_zu_Wert("FFFFFFFF"), 100000000);
    EXPECT_EQ(Hex_zu_Wert(std::string(100000, 'F')), 100000000);
    EXPECT_EQ(Hex_zu_Wert(std::string(100000, '0') + "1"), 1);
    EXPECT_EQ(Hex_zu_Wert(std::string(1000, 'F') + "G"), -1);
    EXPECT_EQ(Hex_zu_Wert("5F5E100H00000"), 100000000);
}

TEST(Hexpaar_zu_Wert, reads_every_pair_of_characters)
{
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            const int         Erste  = Ziffer_Von(a, false);
            const int         Letzte = Ziffer_Von(b, false);
            const std::string Text{static_cast<char>(a), static_cast<char>(b)};
            int               Wert = -1;
            if (Erste >= 0 && b == ' ')
                Wert = Erste;
            else if (Erste >= 0 && Letzte >= 0)
                Wert = 16 * Erste + Letzte;
            ASSERT_EQ(Hexpaar_zu_Wert(Text), Wert) << a << ' ' << b;
        }
}

TEST(Hexpaar_zu_Wert, takes_a_single_character_for_the_first_and_the_last)
{
    for (int c = 0; c < 256; ++c) {
        const int Ziffer = Ziffer_Von(c, false);
        EXPECT_EQ(Hexpaar_zu_Wert(std::string(1, static_cast<char>(c))),
                  Ziffer < 0 ? -1 : 17 * Ziffer)
            << c;
    }
}

TEST(Hexpaar_zu_Wert, looks_only_at_the_first_and_the_last_character)
{
    EXPECT_EQ(Hexpaar_zu_Wert("1xyz2"), 0x12);
    EXPECT_EQ(Hexpaar_zu_Wert("F? "), 0x0F);
    EXPECT_EQ(Hexpaar_zu_Wert("g00"), -1);
    EXPECT_EQ(Hexpaar_zu_Wert(""), -1);
}

// --- the offset of a short jump ------------------------------------------------------------------

constexpr int Ausser_Reichweite = -1;

int Relativ(std::int32_t Adresse, std::int32_t Ziel, int Laenge)
{
    try {
        return Relativ_Berechnen(Adresse, Ziel, Laenge);
    } catch (const Assembler_Ende&) {
        return Ausser_Reichweite;
    }
}

TEST_F(Zahlen_Welt, the_offset_of_a_short_jump_is_right_at_every_distance)
{
    for (const int Laenge : {2, 3})
        for (int Weite = -400; Weite <= 400; ++Weite) {
            const bool Reicht = Weite >= -126 && Weite <= 129;
            const int  Soll   = Reicht ? (Weite - Laenge + 256) % 256 : Ausser_Reichweite;
            EXPECT_EQ(Relativ(1000, 1000 + Weite, Laenge), Soll) << Weite << ' ' << Laenge;
        }
}

TEST_F(Zahlen_Welt, a_three_byte_jump_126_bytes_back_wraps_to_127)
{
    EXPECT_EQ(Relativ(126, 0, 3), 127);
    EXPECT_EQ(Assembliere("ORG 126\nJB 0,(0)"), Hex_Text(0, 126) + " 20 00 7F");
}

TEST_F(Zahlen_Welt, addresses_at_the_ends_of_the_range_make_no_overflow)
{
    EXPECT_EQ(Relativ(0, 2147483647, 2), Ausser_Reichweite);
    EXPECT_EQ(Relativ(99999999, 0, 2), Ausser_Reichweite);
    EXPECT_EQ(Relativ(2147483647, -2147483647 - 1, 2), Ausser_Reichweite);
    EXPECT_EQ(Relativ(-2147483647 - 1, 2147483647, 3), Ausser_Reichweite);
}

TEST_F(Zahlen_Welt, a_jump_out_of_reach_is_told_in_both_languages)
{
    const std::string D = "Sprungziel liegt außerhalb des -128/+127 Byte Rahmen!";
    const std::string E = "Jump-target is out of -128/+127 Byte frame!";
    Erwarte_Fehler("SJMP (130)", D, E);
    Erwarte_Fehler("ORG 127\nSJMP (0)", D, E);
    Erwarte_Fehler("JB 0,(130)", D, E);
    Erwarte_Fehler("ORG 127\nCJNE A,#1,(0)", D, E);
    EXPECT_EQ(Assembliere("SJMP (129)"), "80 7F");
    EXPECT_EQ(Assembliere("JB 0,(129)"), "20 00 7E");
    EXPECT_EQ(Assembliere("ORG 126\nSJMP (0)").substr(126 * 3), "80 80");
}

} // namespace
} // namespace varnholt::test
