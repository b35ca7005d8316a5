// Mouse and focus in the hex editor, and the two panes' markings as images of each other.
#include "Hex_Welt.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

class Hexmaus : public Hex_Welt {
protected:
    static Markierung_T Hex_Nach_Loslassen(Markierung_T M)
    {
        Hexedit.Hex_Auswahl = M;
        Hex_Feld_MouseUp();
        return Hexedit.Hex_Auswahl;
    }
    static Markierung_T AscII_Nach_Loslassen(Markierung_T M)
    {
        Hexedit.AscII_Auswahl = M;
        AscII_Feld_MouseUp();
        return Hexedit.AscII_Auswahl;
    }
};

// --- the panes as images of each other ---

TEST_F(Hexmaus, one_byte_shows_as_a_pair_of_digits_and_a_character_in_every_cell)
{
    for (int r = 0; r < 10; ++r)
        for (int c = 0; c < 16; ++c) {
            Hexedit.Hex_Auswahl = {48 * r + 3 * c, 2};
            Markiere_ASCII();
            EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18 * r + c, 1}));
            Hexedit.Hex_Auswahl = {0, 0};
            Markiere_Hex();
            EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 * r + 3 * c, 2}));
        }
}

TEST_F(Hexmaus, a_single_digit_and_a_blank_stand_for_their_byte)
{
    for (const int d : {0, 1, 2}) {
        Hexedit.Hex_Auswahl = {48 + 9 + d, 1};
        Markiere_ASCII();
        EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18 + 3, 1}));
    }
}

TEST_F(Hexmaus, a_marking_over_two_rows_takes_the_line_break_in)
{
    Hexedit.Hex_Auswahl = {45, 5}; // last byte of a row, first of the next
    Markiere_ASCII();
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{15, 4}));
    Markiere_Hex();
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{45, 5}));
}

TEST_F(Hexmaus, the_two_ways_are_inverse_over_all_markings)
{
    for (int a = 0; a < 160; ++a)
        for (int e = a + 1; e <= 160; ++e) {
            const Markierung_T Hex   = {3 * a, 3 * (e - a) - 1};
            const Markierung_T AscII = {
                a / 16 * 18 + a % 16, (e - 1) / 16 * 18 + (e - 1) % 16 + 1 - a / 16 * 18 - a % 16};
            Hexedit.Hex_Auswahl = Hex;
            Markiere_ASCII();
            ASSERT_EQ(Hexedit.AscII_Auswahl, AscII) << a << " " << e;
            Markiere_Hex();
            ASSERT_EQ(Hexedit.Hex_Auswahl, Hex) << a << " " << e;
        }
}

TEST_F(Hexmaus, a_marking_beyond_the_page_is_drawn_in)
{
    Hex_Markieren({-3, 8});
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{0, 5}));
    Hex_Markieren({474, 5000});
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18 * 9 + 14, 2}));
    AscII_Markieren({9999, 3});
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{477, 2}));
}

// --- mouse ---

TEST_F(Hexmaus, mouse_down_clears_the_other_panes_marking)
{
    Hex_Caret(3, 5);
    Hex_Feld_MouseDown();
    EXPECT_EQ(Hexedit.AscII_Auswahl.Laenge, 0);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{3, 5}));
    Hex_Caret(3, 5);
    AscII_Feld_MouseDown();
    EXPECT_EQ(Hexedit.Hex_Auswahl.Laenge, 0);
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{1, 2}));
}

TEST_F(Hexmaus, in_the_characters_a_caret_at_the_very_end_moves_back_onto_the_last_byte)
{
    EXPECT_EQ(AscII_Nach_Loslassen({180, 0}), (Markierung_T{177, 1}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{477, 2}));
}

TEST_F(Hexmaus, in_the_characters_a_start_on_column_16_moves_back_one)
{
    EXPECT_EQ(AscII_Nach_Loslassen({18 + 16, 0}), (Markierung_T{18 + 15, 1}));
    EXPECT_EQ(AscII_Nach_Loslassen({18 + 16, 4}), (Markierung_T{18 + 15, 5}));
}

TEST_F(Hexmaus, in_the_characters_an_end_on_a_line_break_is_drawn_in)
{
    EXPECT_EQ(AscII_Nach_Loslassen({10, 7}), (Markierung_T{10, 6}));
    EXPECT_EQ(AscII_Nach_Loslassen({10, 8}), (Markierung_T{10, 6}));
    EXPECT_EQ(AscII_Nach_Loslassen({10, 9}), (Markierung_T{10, 9}));
}

TEST_F(Hexmaus, in_the_characters_an_empty_marking_becomes_one_character)
{
    EXPECT_EQ(AscII_Nach_Loslassen({20, 0}), (Markierung_T{20, 1}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 6, 2}));
}

TEST_F(Hexmaus, in_the_digits_a_start_on_the_blank_moves_to_the_next_byte)
{
    EXPECT_EQ(Hex_Nach_Loslassen({5, 3}), (Markierung_T{6, 2}));
    EXPECT_EQ(Hex_Nach_Loslassen({5, 0}), (Markierung_T{6, 2}));
    EXPECT_EQ(Hex_Nach_Loslassen({47, 0}), (Markierung_T{48, 2}));
    EXPECT_EQ(Hex_Nach_Loslassen({479, 0}), (Markierung_T{477, 2})); // there is no next one
}

TEST_F(Hexmaus, in_the_digits_a_start_on_the_second_digit_moves_to_the_first)
{
    EXPECT_EQ(Hex_Nach_Loslassen({4, 4}), (Markierung_T{3, 5}));
    EXPECT_EQ(Hex_Nach_Loslassen({4, 0}), (Markierung_T{3, 2}));
}

TEST_F(Hexmaus, in_the_digits_an_end_on_the_first_digit_takes_in_the_second)
{
    EXPECT_EQ(Hex_Nach_Loslassen({3, 4}), (Markierung_T{3, 5}));
    EXPECT_EQ(Hex_Nach_Loslassen({3, 1}), (Markierung_T{3, 2}));
}

TEST_F(Hexmaus, in_the_digits_an_end_on_the_blank_is_drawn_in)
{
    EXPECT_EQ(Hex_Nach_Loslassen({3, 3}), (Markierung_T{3, 2}));
    EXPECT_EQ(Hex_Nach_Loslassen({3, 6}), (Markierung_T{3, 5}));
}

TEST_F(Hexmaus, mouse_up_in_the_digits_marks_the_same_bytes_as_characters)
{
    Hex_Nach_Loslassen({46, 4});
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{45, 5}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{15, 4}));
}

RC_GTEST_FIXTURE_PROP(Hexmaus, after_mouse_up_any_marking_lies_on_whole_bytes_of_the_page, ())
{
    Seite(*rc::gen::inRange(0, 32761), *rc::gen::inRange(-1, 40));
    const auto Wild = [] {
        return Markierung_T{*rc::gen::inRange(-50, 2200), *rc::gen::inRange(-20, 2200)};
    };
    const bool Hex = *rc::gen::arbitrary<bool>();
    if (Hex)
        Hex_Nach_Loslassen(Wild());
    else
        AscII_Nach_Loslassen(Wild());
    const Markierung_T H = Hexedit.Hex_Auswahl;
    const Markierung_T A = Hexedit.AscII_Auswahl;
    if (Hex_Feld.empty()) {
        RC_ASSERT(H.Laenge == 0 && A.Laenge == 0);
        return;
    }
    RC_ASSERT(H.Anfang >= 0 && H.Ende() <= static_cast<int>(Hex_Feld.size()));
    RC_ASSERT(A.Anfang >= 0 && A.Ende() <= static_cast<int>(AscII_Feld.size()) - 2);
    RC_ASSERT(H.Anfang % 3 == 0 && H.Laenge % 3 == 2);
    RC_ASSERT(A.Anfang % 18 < 16 && (A.Ende() - 1) % 18 < 16);
    RC_ASSERT(H.Anfang / 3 == A.Anfang / 18 * 16 + A.Anfang % 18);
    RC_ASSERT((H.Ende() - 1) / 3 == (A.Ende() - 1) / 18 * 16 + (A.Ende() - 1) % 18);
}

// --- click ---

TEST_F(Hexmaus, a_click_marks_the_pair_of_digits)
{
    Hexedit.Hex_Auswahl = {49, 0};
    Hex_Feld_Click();
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48, 2}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18, 1}));
}

TEST_F(Hexmaus, a_click_selects_the_bytes_opcode_in_the_visible_instruction_window)
{
    Fenster.Zu(Fenster_Bef).Sichtbar = true;
    for (const int Wert : {0, 0x74, 255}) {
        Byte(5 * 16 + 2)    = static_cast<std::uint8_t>(Wert);
        const auto Stand    = Hexedit.Bef_Stand;
        Hexedit.Hex_Auswahl = {6, 2};
        Seite(5, 9);
        Hex_Feld_Click();
        EXPECT_EQ(Hexedit.Bef_Zeile, Wert + 1);
        EXPECT_EQ(Hexedit.Bef_Stand, Stand + 1);
    }
}

TEST_F(Hexmaus, a_click_leaves_a_hidden_instruction_window_alone)
{
    Hex_Feld_Click();
    EXPECT_EQ(Hexedit.Bef_Zeile, 0);
    EXPECT_EQ(Hexedit.Bef_Stand, 0u);
}

TEST_F(Hexmaus, the_active_field_follows_the_focus)
{
    EXPECT_EQ(Hex_Aktives_Feld, 0);
    Hex_Feld_GotFocus();
    EXPECT_EQ(Hex_Aktives_Feld, 1);
    AscII_Feld_GotFocus();
    EXPECT_EQ(Hex_Aktives_Feld, 2);
}

} // namespace
} // namespace varnholt::test
