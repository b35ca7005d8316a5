// Rich text and what a control of plain text makes of it.
#include "core/rich_text.h"

#include "core/codepage.h"
#include "support/scripted_platform.h"

#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace varnholt::test {
namespace {

Zeichen_Bild_T In_Farbe(std::int32_t Farbe)
{
    Zeichen_Bild_T b;
    b.Farbe = Farbe;
    return b;
}

TEST(Reicher_Text, equal_neighbours_become_one_piece_and_nothing_becomes_none)
{
    Absatz_T a;
    Anfuegen(a, "a", {});
    Anfuegen(a, "", In_Farbe(7));
    Anfuegen(a, "b", {});
    Anfuegen(a, "c", In_Farbe(7));
    EXPECT_EQ(a.Stuecke, (std::vector<Text_Stueck_T>{{"ab", {}}, {"c", In_Farbe(7)}}));
}
TEST(Reicher_Text, its_characters_alone_are_lines_separated_by_CR_LF)
{
    EXPECT_EQ(Reiner_Text({}), "");
    EXPECT_EQ(Reiner_Text({{{}}}), "");
    EXPECT_EQ(Reiner_Text({{{}, {{{"a", {}}, {"b", In_Farbe(1)}}, {}}, {}}}), "\r\nab\r\n");
}
TEST(Reicher_Text, colours_and_characters_make_the_text_again)
{
    const std::vector<Farbstelle_T> Farben = {{1, 2, 5}, {4, 1, 6}, {8, 3, 7}};
    const auto                      t      = Reich_Aus("abcde\r\n\xC3\xA4"
                                                       "bcd",
                             Farben);
    ASSERT_EQ(t.Absaetze.size(), 2u);
    EXPECT_EQ(t.Absaetze[0].Stuecke,
              (std::vector<Text_Stueck_T>{
                  {"a", {}}, {"bc", In_Farbe(5)}, {"d", {}}, {"e", In_Farbe(6)}}));
    EXPECT_EQ(t.Absaetze[1].Stuecke,
              (std::vector<Text_Stueck_T>{{"\xC3\xA4", {}}, {"bcd", In_Farbe(7)}}));
    EXPECT_EQ(Farben_Von(t), Farben);
}
TEST(Reicher_Text, a_character_beyond_16_bits_has_two_positions)
{
    const auto t = Reich_Aus("\xF0\x9F\x98\x80x", std::vector<Farbstelle_T>{{2, 1, 5}});
    EXPECT_EQ(t.Absaetze.at(0).Stuecke,
              (std::vector<Text_Stueck_T>{{"\xF0\x9F\x98\x80", {}}, {"x", In_Farbe(5)}}));
    EXPECT_EQ(Farben_Von(t), (std::vector<Farbstelle_T>{{2, 1, 5}}));
}
TEST(Reicher_Text, an_empty_text_is_one_empty_paragraph)
{
    EXPECT_EQ(Reich_Aus("", {}).Absaetze.size(), 1u);
    EXPECT_EQ(Reich_Aus("\r\n", {}).Absaetze.size(), 2u);
}

// --- a control of plain text ---------------------------------------------------------------------

class Schlichtes_Feld : public Welt {
protected:
    Schlichtes_Feld()
    {
        Edit.Text_Setzen("red\r\n\xE4 black");
        const Farbstelle_T Rot{0, 3, 0xFF};
        Edit.Faerben({&Rot, 1});
    }
};

TEST_F(Schlichtes_Feld, gives_its_text_and_colours)
{
    const auto t = Edit.Reicher_Text();
    EXPECT_EQ(t, (Reich_Text_T{{{{{"red", In_Farbe(0xFF)}}, {}}, {{{"\xC3\xA4 black", {}}}, {}}}}));
    Edit.Auswaehlen(1, 5);
    EXPECT_EQ(Edit.Auswahl_Reich(),
              (Reich_Text_T{{{{{"ed", In_Farbe(0xFF)}}, {}}, {{{"\xC3\xA4", {}}}, {}}}}));
}
TEST_F(Schlichtes_Feld, takes_text_and_colours_and_no_other_look)
{
    Zeichen_Bild_T Fett = In_Farbe(9);
    Fett.Fett           = true;
    Edit.Reich_Setzen({{{{{"a", {}}, {"b", Fett}}, {}}, {{{"c", {}}}, {Bund::Mitte, 1, 2, 3, 4}}}});
    EXPECT_EQ(Edit.Inhalt, "ab\r\nc");
    EXPECT_EQ(Edit.Farben({0, 5}), (std::vector<Farbstelle_T>{{1, 1, 9}}));
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{0, 0}));
}
TEST_F(Schlichtes_Feld, puts_it_in_place_of_the_selection)
{
    Edit.Auswaehlen(1, 1);
    Edit.Auswahl_Ersetzen_Reich({{{{{"x", {}}, {"y", In_Farbe(9)}}, {}}}});
    EXPECT_EQ(Edit.Inhalt, "rxyd\r\n\xE4 black");
    EXPECT_EQ(Edit.Farben({0, 20}),
              (std::vector<Farbstelle_T>{{0, 1, 0xFF}, {2, 1, 9}, {3, 1, 0xFF}}));
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{3, 0}));
}

RC_GTEST_PROP(Reicher_Text,
              a_plain_control_gives_back_what_it_took,
              (std::vector<std::uint8_t> Zeichen))
{
    Speicher_Text Feld_A;
    Speicher_Text Feld_B;
    for (const std::uint8_t z : Zeichen) {
        Feld_A.Auswaehlen(Feld_A.Laenge(), 0);
        Feld_A.Auswahl_Ersetzen(z % 5 == 0 ? "\r\n"
                                           : std::string(1, static_cast<char>('a' + z % 20)));
        const Farbstelle_T f{Feld_A.Laenge() - 1, 1, z % 3};
        Feld_A.Faerben({&f, 1});
    }
    Feld_B.Reich_Setzen(Feld_A.Reicher_Text());
    RC_ASSERT(Feld_A.Inhalt == Feld_B.Inhalt);
    RC_ASSERT(Feld_A.Farben({0, Feld_A.Laenge()}) == Feld_B.Farben({0, Feld_B.Laenge()}));
    RC_ASSERT(Feld_A.Reicher_Text() == Feld_B.Reicher_Text());
}

} // namespace
} // namespace varnholt::test
