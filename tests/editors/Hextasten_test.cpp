// The keys of the hex editor's two panes: every key with every branch.
#include "Hex_Welt.h"

#include <cctype>

namespace varnholt::test {
namespace {

class Hextasten : public Hex_Welt {
protected:
    // One movement in the character pane: from row, offset to row, offset.
    void AscII_Geht(int Code, Ort_T Von, Ort_T Nach, int R = 9)
    {
        Seite(Von.Scroll, R);
        AscII_Caret(Von.Stelle, 3);
        EXPECT_TRUE(AscII_Feld_KeyDown(Taste(Code)));
        EXPECT_EQ(Hexedit.Scroll, Nach.Scroll) << Code << " from " << Von.Stelle;
        EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{Nach.Stelle, 1})) << Code;
        const int Byte = Nach.Stelle / 18 * 16 + Nach.Stelle % 18;
        EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{3 * Byte, 2})) << "Markiere_Hex";
        EXPECT_EQ(Adr_D.substr(0, 6), std::to_string(1000000 + 16 * Nach.Scroll).substr(1));
    }
    // The same in the digit pane.
    void Hex_Geht(int Code, Ort_T Von, Ort_T Nach, int R = 9)
    {
        Seite(Von.Scroll, R);
        Hex_Caret(Von.Stelle, 5);
        EXPECT_TRUE(Hex_Feld_KeyDown(Taste(Code)));
        EXPECT_EQ(Hexedit.Scroll, Nach.Scroll) << Code << " from " << Von.Stelle;
        EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{Nach.Stelle, 1})) << Code;
        const int Byte = Nach.Stelle / 3;
        EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{Byte / 16 * 18 + Byte % 16, 1}));
    }
};

// --- movement in the character pane ---

TEST_F(Hextasten, home_and_end_go_to_the_ends_of_the_row)
{
    AscII_Geht(Taste_Pos1, {5, 18 + 7}, {5, 18});
    AscII_Geht(Taste_Pos1, {5, 18}, {5, 18});
    AscII_Geht(Taste_Ende, {5, 18 + 7}, {5, 18 + 15});
    AscII_Geht(Taste_Ende, {5, 18 + 15}, {5, 18 + 15});
}

TEST_F(Hextasten, page_up_goes_16_rows_from_row_17_on)
{
    AscII_Geht(Taste_Bild_Auf, {17, 40}, {1, 40});
    AscII_Geht(Taste_Bild_Auf, {100, 40}, {84, 40});
}

TEST_F(Hextasten, page_up_from_row_16_or_less_goes_to_row_0_with_the_caret_in_the_first_row)
{
    AscII_Geht(Taste_Bild_Auf, {16, 40}, {0, 4});
    AscII_Geht(Taste_Bild_Auf, {5, 18 * 9 + 15}, {0, 15});
    AscII_Geht(Taste_Bild_Auf, {0, 40}, {0, 4});
}

TEST_F(Hextasten, page_down_goes_18_rows_below_the_last_18)
{
    AscII_Geht(Taste_Bild_Ab, {0, 40}, {18, 40});
    AscII_Geht(Taste_Bild_Ab, {32760 - 19, 40}, {32759, 40});
}

TEST_F(Hextasten, page_down_near_the_end_goes_to_the_maximum_and_the_last_row)
{
    AscII_Geht(Taste_Bild_Ab, {32760 - 18, 4}, {32760, 18 * 7 + 15}); // 10 rows become 8: behind it
    AscII_Geht(Taste_Bild_Ab, {32760 - 18, 4}, {32760, 18 * 5 + 4}, 5); // six rows stay six
    AscII_Geht(Taste_Bild_Ab, {32760, 4}, {32760, 18 * 7 + 4});
    AscII_Geht(Taste_Bild_Ab, {32760, 18 * 7 + 4}, {32760, 18 * 7 + 4});
}

TEST_F(Hextasten, page_down_onto_a_shorter_page_takes_the_last_byte)
{
    AscII_Geht(Taste_Bild_Ab, {32740, 18 * 28}, {32758, 18 * 9 + 15}, 29);
}

TEST_F(Hextasten, left_goes_one_back_and_from_column_0_to_column_15_of_the_row_before)
{
    AscII_Geht(Taste_Links, {5, 0}, {5, 0});
    AscII_Geht(Taste_Links, {5, 1}, {5, 0});
    AscII_Geht(Taste_Links, {5, 18}, {5, 15});
    AscII_Geht(Taste_Links, {5, 33}, {5, 32});
}

TEST_F(Hextasten, right_goes_one_on_and_from_column_15_to_column_0_of_the_next_row)
{
    AscII_Geht(Taste_Rechts, {5, 0}, {5, 1});
    AscII_Geht(Taste_Rechts, {5, 15}, {5, 18});
    AscII_Geht(Taste_Rechts, {5, 18 * 9 + 14}, {5, 18 * 9 + 15});
    AscII_Geht(Taste_Rechts, {5, 18 * 9 + 15}, {5, 18 * 9 + 15}); // end of the page
}

TEST_F(Hextasten, up_moves_a_row_and_scrolls_in_the_first_one)
{
    AscII_Geht(Taste_Auf, {5, 18 + 3}, {5, 3});
    AscII_Geht(Taste_Auf, {5, 15}, {4, 15});
    AscII_Geht(Taste_Auf, {0, 15}, {0, 15});
    AscII_Geht(Taste_Auf, {0, 18}, {0, 0});
}

TEST_F(Hextasten, down_moves_a_row_and_scrolls_in_the_last_one)
{
    AscII_Geht(Taste_Ab, {5, 3}, {5, 21});
    AscII_Geht(Taste_Ab, {5, 18 * 9 + 3}, {6, 18 * 9 + 3});
    AscII_Geht(Taste_Ab, {32760, 18 * 7}, {32760, 18 * 7}); // maximum and last row
    AscII_Geht(Taste_Ab, {32760, 18 * 6}, {32760, 18 * 7});
}

TEST_F(Hextasten, down_in_the_images_last_row_scrolls_and_stays_on_its_byte)
{
    AscII_Geht(Taste_Ab, {32758, 18 * 9 + 3}, {32759, 18 * 8 + 3});
}

// --- movement in the digit pane ---

TEST_F(Hextasten, hex_home_and_end_go_to_the_first_digit_of_the_rows_first_and_last_byte)
{
    Hex_Geht(Taste_Pos1, {5, 48 + 7}, {5, 48});
    Hex_Geht(Taste_Ende, {5, 48 + 7}, {5, 48 + 45});
    Hex_Geht(Taste_Ende, {5, 48 + 46}, {5, 48 + 45});
}

TEST_F(Hextasten, hex_left_and_right_go_by_digits_and_step_over_the_blank)
{
    Hex_Geht(Taste_Rechts, {5, 0}, {5, 1});
    Hex_Geht(Taste_Rechts, {5, 1}, {5, 3});
    Hex_Geht(Taste_Rechts, {5, 46}, {5, 48});
    Hex_Geht(Taste_Links, {5, 0}, {5, 0});
    Hex_Geht(Taste_Links, {5, 1}, {5, 0});
    Hex_Geht(Taste_Links, {5, 3}, {5, 1});
    Hex_Geht(Taste_Links, {5, 48}, {5, 46});
}

TEST_F(Hextasten, hex_right_reaches_the_very_last_digit_and_no_further)
{
    Hex_Geht(Taste_Rechts, {5, 477}, {5, 478});
    Hex_Geht(Taste_Rechts, {5, 478}, {5, 478});
}

TEST_F(Hextasten, hex_movement_never_rests_on_a_blank)
{
    Seite(3, 9);
    Hex_Caret(0);
    for (int i = 0; i < 319; ++i) {
        const int Vorher = Hex_Anfang();
        Hex_Feld_KeyDown(Taste(Taste_Rechts));
        EXPECT_NE(Hex_Anfang() % 3, 2);
        EXPECT_GT(Hex_Anfang(), Vorher);
    }
    EXPECT_EQ(Hex_Anfang(), 478);
}

TEST_F(Hextasten, hex_page_and_row_keys_work_as_in_the_other_pane)
{
    Hex_Geht(Taste_Bild_Auf, {17, 100}, {1, 100});
    Hex_Geht(Taste_Bild_Auf, {16, 100}, {0, 4});
    Hex_Geht(Taste_Bild_Ab, {0, 100}, {18, 100});
    Hex_Geht(Taste_Bild_Ab, {32742, 4}, {32760, 48 * 7 + 45});
    Hex_Geht(Taste_Bild_Ab, {32742, 4}, {32760, 48 * 5 + 4}, 5);
    Hex_Geht(Taste_Auf, {5, 46}, {4, 46});
    Hex_Geht(Taste_Auf, {5, 48}, {5, 0});
    Hex_Geht(Taste_Auf, {0, 46}, {0, 46});
    Hex_Geht(Taste_Ab, {5, 46}, {5, 94});
    Hex_Geht(Taste_Ab, {5, 48 * 9 + 1}, {6, 48 * 9 + 1});
    Hex_Geht(Taste_Ab, {32758, 48 * 9 + 1}, {32759, 48 * 8 + 1});
    Hex_Geht(Taste_Ab, {32760, 48 * 7}, {32760, 48 * 7});
}

TEST_F(Hextasten, movement_asks_nothing_and_changes_nothing)
{
    Aus_Quelltext();
    for (int Code = Taste_Bild_Auf; Code <= Taste_Ab; ++Code) {
        EXPECT_TRUE(AscII_Feld_KeyDown(Taste(Code)));
        EXPECT_TRUE(Hex_Feld_KeyDown(Taste(Code)));
    }
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_FALSE(Datei_Geaendert);
}

// --- typing characters ---

TEST_F(Hextasten, a_typed_character_goes_to_the_image_and_to_both_fields)
{
    Seite(5, 9);
    AscII_Caret(18 + 2);
    AscII_Tippen("A");
    EXPECT_EQ(Byte(16 * 5 + 18), 'A');
    EXPECT_EQ(Hex_Feld.substr(48 + 6, 3), "41 ");
    EXPECT_EQ(AscII_Feld[20], 'A');
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{21, 1}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 9, 2}));
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Hextasten, a_typed_blank_stands_as_typed_until_the_next_redraw)
{
    AscII_Caret(0);
    AscII_Tippen(" ");
    EXPECT_EQ(AscII_Feld[0], ' ');
    EXPECT_EQ(Hex_Feld.substr(0, 2), "20");
    Hex_Anzeige();
    EXPECT_EQ(AscII_Feld[0], '.');
}

TEST_F(Hextasten, typing_in_column_15_goes_on_in_the_next_row)
{
    AscII_Caret(15);
    AscII_Tippen("ab");
    EXPECT_EQ(Byte(15), 'a');
    EXPECT_EQ(Byte(16), 'b');
    EXPECT_EQ(AscII_Anfang(), 19);
}

TEST_F(Hextasten, typing_at_the_end_of_the_page_brings_in_the_next_row)
{
    Seite(5, 9);
    AscII_Caret(18 * 9 + 15);
    AscII_Tippen("xy");
    EXPECT_EQ(Hexedit.Scroll, 6);
    EXPECT_EQ(Byte(16 * 15 - 1), 'x');
    EXPECT_EQ(Byte(16 * 15), 'y');
    EXPECT_EQ(AscII_Anfang(), 18 * 9 + 1);
}

TEST_F(Hextasten, typing_at_the_end_of_the_page_stays_where_the_bar_is_at_its_maximum)
{
    Seite(32760, 3); // rows 32760 to 32763 only
    AscII_Caret(18 * 3 + 15);
    AscII_Tippen("xy");
    EXPECT_EQ(Hexedit.Scroll, 32760);
    EXPECT_EQ(AscII_Anfang(), 18 * 3 + 15);
    EXPECT_EQ(Byte(32764 * 16 - 1), 'y');
}

TEST_F(Hextasten, typing_in_the_last_byte_of_the_image_keeps_the_caret_in_place)
{
    for (const auto& [Zeile, R] :
         {std::pair{32760, 9}, std::pair{32750, 30}, std::pair{32758, 9}}) {
        Seite(Zeile, R);
        const int Letzte = (32768 - Zeile) * 18 - 3;
        AscII_Caret(Letzte);
        AscII_Tippen("pq");
        EXPECT_EQ(Byte(0x7FFFF), 'q');
        EXPECT_EQ(Byte(0x80000), 0xFF);
        EXPECT_EQ(Hexedit.Scroll, Zeile);
        EXPECT_EQ(AscII_Anfang(), Letzte);
    }
}

TEST_F(Hextasten, typing_over_several_marked_bytes_takes_them_out_first)
{
    Bytes_Setzen(0, {1, 2, 3, 4, 5, 6});
    Seite(0, 9);
    AscII_Caret(1, 3);
    AscII_Tippen("Z");
    EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{1, 'Z', 6, 0xFF}));
    EXPECT_EQ(AscII_Anfang(), 2);
}

TEST_F(Hextasten, any_other_key_in_the_character_pane_asks_and_a_refusal_drops_it)
{
    Aus_Quelltext();
    Box.Antworten = {Antwort_Nein};
    EXPECT_TRUE(AscII_Feld_KeyDown(Zeichen_Taste('A')));
    EXPECT_FALSE(Abbruch);
    EXPECT_EQ(Byte(0), 0xFF);
    Box.Antworten = {Antwort_Ja};
    EXPECT_FALSE(AscII_Feld_KeyDown(Zeichen_Taste('A')));
    EXPECT_TRUE(Edit.Inhalt.empty());
}

TEST_F(Hextasten, enter_backspace_and_escape_do_nothing_in_the_character_pane)
{
    Aus_Quelltext();
    for (const int Code : {Taste_Enter, Taste_Rueck, Taste_Escape})
        EXPECT_TRUE(AscII_Feld_KeyDown(Taste(Code)));
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Hextasten, a_key_that_is_only_held_down_does_nothing)
{
    Aus_Quelltext();
    for (const int Code : {Taste_Strg, Taste_Umschalt, Taste_Alt}) {
        EXPECT_FALSE(Hex_Feld_KeyDown(Taste(Code)));
        EXPECT_FALSE(AscII_Feld_KeyDown(Taste(Code)));
    }
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_FALSE(Datei_Geaendert);
}

// --- typing digits ---

TEST_F(Hextasten, a_byte_is_typed_as_two_digits_from_left_to_right)
{
    Seite(5, 9);
    Hex_Caret(48 + 6);
    Hex_Eintippen("4");
    EXPECT_EQ(Byte(16 * 5 + 18), 0x4F);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 7, 1}));
    Hex_Eintippen("1");
    EXPECT_EQ(Byte(16 * 5 + 18), 0x41);
    EXPECT_EQ(Hex_Feld.substr(48 + 6, 3), "41 ");
    EXPECT_EQ(AscII_Feld[20], 'A');
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 9, 1}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{21, 1}));
}

TEST_F(Hextasten, every_value_can_be_typed_in_upper_and_lower_case)
{
    for (int Wert = 0; Wert < 256; ++Wert)
        for (const char* Ziffern : {"0123456789ABCDEF", "0123456789abcdef"}) {
            Hex_Caret(0);
            Hex_Eintippen({Ziffern[Wert / 16], Ziffern[Wert % 16]});
            EXPECT_EQ(Byte(0), Wert);
            EXPECT_EQ(AscII_Feld[0], Zeichen_Von(static_cast<std::uint8_t>(Wert)));
        }
}

TEST_F(Hextasten, other_characters_are_dropped_silently_but_consumed)
{
    Hex_Caret(3, 5);
    for (int c = 0; c < 256; ++c) {
        const auto z = static_cast<char>(c);
        if (std::isxdigit(c) && c < 128)
            continue;
        Taste_T t;
        t.Zeichen = z;
        EXPECT_TRUE(Hex_Feld_KeyDown(t)) << c;
    }
    EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{255, 255, 255, 255}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{3, 1}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{1, 1}));
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Hextasten, a_caret_on_the_blank_moves_on_to_the_next_byte_first)
{
    Hexedit.Hex_Auswahl = {2, 1};
    Hex_Eintippen("5");
    EXPECT_EQ(Bytes_Ab(0, 2), (std::vector<int>{0xFF, 0x5F}));
    EXPECT_EQ(Hex_Anfang(), 4);
}

TEST_F(Hextasten, the_last_digit_of_a_page_brings_in_the_next_row)
{
    Seite(5, 9);
    Hex_Caret(478);
    Hex_Eintippen("12");
    EXPECT_EQ(Hexedit.Scroll, 6);
    EXPECT_EQ(Byte(16 * 15 - 1), 0xF1);
    EXPECT_EQ(Byte(16 * 15), 0x2F);
    EXPECT_EQ(Hex_Anfang(), 48 * 9 + 1);
}

TEST_F(Hextasten, the_last_digit_stays_at_the_maximum_and_at_the_end_of_the_image)
{
    for (const auto& [Zeile, R] :
         {std::pair{32760, 3}, std::pair{32760, 9}, std::pair{32750, 30}}) {
        Seite(Zeile, R);
        const int Ende = static_cast<int>(Hex_Feld.size());
        Hex_Caret(Ende - 3);
        Hex_Eintippen("345");
        EXPECT_EQ(Hexedit.Scroll, Zeile);
        EXPECT_EQ(Hex_Anfang(), Ende - 2);
        EXPECT_EQ(Byte(16 * (Zeile + Ende / 48) - 1), 0x35);
        EXPECT_EQ(Byte(0x80000), 0xFF);
    }
}

TEST_F(Hextasten, the_first_edit_in_the_digits_asks_no_leaves_the_byte_yes_goes_on)
{
    Aus_Quelltext();
    Box.Antworten = {Antwort_Nein, Antwort_Ja};
    Hex_Eintippen("1");
    EXPECT_EQ(Byte(0), 0xFF);
    EXPECT_FALSE(Abbruch);
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
    Hex_Eintippen("1");
    EXPECT_EQ(Byte(0), 0x1F);
    EXPECT_TRUE(Edit.Inhalt.empty());
    EXPECT_TRUE(Datei_Name.empty());
    Hex_Eintippen("2");
    EXPECT_EQ(Byte(0), 0x12);
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}

TEST_F(Hextasten, enter_in_the_digit_pane_counts_as_an_edit_that_types_nothing)
{
    Aus_Quelltext();
    Box.Antworten = {Antwort_Ja};
    EXPECT_TRUE(Hex_Feld_KeyDown(Taste(Taste_Enter)));
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Byte(0), 0xFF);
}

// --- clipboard keys, in both panes ---

class Ablage_Tasten : public Hex_Welt, public ::testing::WithParamInterface<int> {
protected:
    Ablage_Tasten()
    {
        Bytes_Setzen(0, {'A', 'B', 'C', 'D', 'E'});
        Seite(0, 9);
        AscII_Caret(1, 2);
        Hex_Aktives_Feld = GetParam();
    }
    bool Druecken(const Taste_T& t)
    {
        return GetParam() == Feld_Hex ? Hex_Feld_KeyDown(t) : AscII_Feld_KeyDown(t);
    }
    std::string Kopie() const { return GetParam() == Feld_Hex ? "42 43" : "BC"; }
};

TEST_P(Ablage_Tasten, ctrl_c_copies_and_asks_nothing)
{
    Aus_Quelltext();
    EXPECT_TRUE(Druecken(Strg('C')));
    EXPECT_EQ(Ablage.Inhalt, Kopie());
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_P(Ablage_Tasten, ctrl_x_copies_and_deletes)
{
    EXPECT_TRUE(Druecken(Strg('X')));
    EXPECT_EQ(Ablage.Inhalt, Kopie());
    EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{'A', 'D', 'E', 0xFF}));
}

TEST_P(Ablage_Tasten, delete_takes_the_marked_bytes_out)
{
    EXPECT_TRUE(Druecken(Taste(Taste_Entfernen)));
    EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{'A', 'D', 'E', 0xFF}));
    EXPECT_TRUE(Ablage.Inhalt.empty());
}

TEST_P(Ablage_Tasten, shift_and_delete_is_no_delete)
{
    Taste_T t  = Taste(Taste_Entfernen);
    t.Umschalt = true;
    Druecken(t);
    EXPECT_EQ(Bytes_Ab(0, 5), (std::vector<int>{'A', 'B', 'C', 'D', 'E'}));
}

TEST_P(Ablage_Tasten, ctrl_v_pastes)
{
    Ablage.Inhalt = GetParam() == Feld_Hex ? "31 32 33" : "123";
    EXPECT_TRUE(Druecken(Strg('V')));
    EXPECT_EQ(Bytes_Ab(0, 7), (std::vector<int>{'A', '1', '2', '3', 'D', 'E', 0xFF}));
}

TEST_P(Ablage_Tasten, a_refusal_leaves_image_and_clipboard)
{
    Ablage.Inhalt = "31";
    for (const Taste_T& t : {Strg('X'), Strg('V'), Taste(Taste_Entfernen)}) {
        Aus_Quelltext();
        Box.Antworten = {Antwort_Abbrechen};
        EXPECT_TRUE(Druecken(t));
        EXPECT_EQ(Bytes_Ab(0, 5), (std::vector<int>{'A', 'B', 'C', 'D', 'E'}));
        EXPECT_EQ(Ablage.Inhalt, "31");
        EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
    }
    EXPECT_EQ(Box.Meldungen.size(), 3u);
}

TEST_P(Ablage_Tasten, the_question_comes_once_for_one_key)
{
    for (const Taste_T& t : {Strg('X'), Strg('V'), Taste(Taste_Entfernen)}) {
        Aus_Quelltext();
        Box.Meldungen.clear();
        Box.Antworten = {Antwort_Ja};
        Druecken(t);
        EXPECT_EQ(Box.Meldungen.size(), 1u);
    }
}

INSTANTIATE_TEST_SUITE_P(Beide_Felder, Ablage_Tasten, ::testing::Values(Feld_Hex, Feld_AscII));

// --- pages without rows ---

TEST_F(Hextasten, on_a_page_without_rows_every_key_is_harmless)
{
    Hexedit_Resize(0);
    for (int Code = 0; Code < 256; ++Code) {
        Taste_T t = Taste(Code);
        t.Zeichen = static_cast<char>(Code);
        Hex_Feld_KeyDown(t);
        if (!AscII_Feld_KeyDown(t))
            AscII_Feld_KeyPress(t.Zeichen);
        Hex_Feld_KeyDown(Strg(t.Zeichen));
    }
    Hex_Feld_MouseUp();
    AscII_Feld_MouseUp();
    Hex_Feld_Click();
    EXPECT_EQ(Letztes_Byte(), -1);
    Hexedit_Resize(400);
    EXPECT_EQ(Hex_Feld.size(), 24u * 48);
}

} // namespace
} // namespace varnholt::test
