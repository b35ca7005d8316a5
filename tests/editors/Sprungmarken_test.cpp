// The jumpmark list.
#include "editors/Sprungmarken.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "support/scripted_platform.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

using Namen = std::vector<std::string>;

class Sprungmarken_Test : public Welt {
protected:
    Sprungmarken_Test()
    {
        Fenster.Zu(Fenster_Spr).Sichtbar = true;
        C_keine_TAB_SM                   = false;
        C_keine_US_SM                    = false;
    }
    Namen Gefunden(const std::string& Text)
    {
        Edit.Text_Setzen(Text);
        Sprungmarken_Fuellen();
        return Sprungmarken_Liste;
    }
};

TEST_F(Sprungmarken_Test, A_line_with_a_mark_and_an_instruction_lists_the_mark_alone)
{
    EXPECT_EQ(Gefunden("Start: MOV A,#1\r\nNOP\r\nEnde: RET"), (Namen{"Start", "Ende"}));
    EXPECT_EQ(Sprungmarken_Anzahl, 2);
    EXPECT_EQ(Sprungmarken.Liste, (Namen{"Start", "Ende"}));
}

TEST_F(Sprungmarken_Test, A_mark_with_a_data_string_that_holds_a_colon_is_listed_once)
{
    EXPECT_EQ(Gefunden("Text: DB 'a:b'"), Namen{"Text"});
    EXPECT_EQ(Gefunden("Text: DB \"a:b\""), Namen{"Text"});
    EXPECT_EQ(Gefunden("Text: NOP ; a:b"), Namen{"Text"});
}

TEST_F(Sprungmarken_Test, A_colon_behind_a_closed_string_is_no_mark_either)
{
    EXPECT_EQ(Gefunden("DB \"a\" Name:"), Namen{});
}

TEST_F(Sprungmarken_Test, A_second_colon_of_a_line_makes_a_second_entry_from_the_start_of_the_line)
{
    EXPECT_EQ(Gefunden("One: Two: NOP"), (Namen{"One", "One: Two"}));
}

TEST_F(Sprungmarken_Test, Data_words_at_the_end_of_the_candidate_are_no_marks_in_either_case)
{
    EXPECT_EQ(Gefunden("HEX: 1\r\nDEZ: 1\r\nASC: 1\r\nDB: 1\r\nDW: 1"), Namen{});
    EXPECT_EQ(Gefunden("hex: 1\r\n\tdez: 1\r\n asc: 1\r\ndb: 1\r\nDw: 1"), Namen{});
    EXPECT_EQ(Gefunden("Mark: DB: 1\r\nMyhex: NOP"), Namen{"Mark"});
}

TEST_F(Sprungmarken_Test, A_data_word_that_does_not_end_the_candidate_is_a_mark)
{
    EXPECT_EQ(Gefunden("DBX: NOP\r\nDB : NOP\r\nEX: NOP"), (Namen{"DBX", "DB ", "EX"}));
}

TEST_F(Sprungmarken_Test, Leading_blanks_and_tabs_are_stripped_when_indented_marks_count)
{
    EXPECT_EQ(Gefunden(" \tLoop: NOP"), Namen{"Loop"});
}

TEST_F(Sprungmarken_Test, With_the_tab_option_an_indented_mark_is_not_listed)
{
    C_keine_TAB_SM = true;
    EXPECT_EQ(Gefunden("\tOne: NOP\r\n Two: NOP\r\nThree: NOP"), Namen{"Three"});
    EXPECT_EQ(Sprungmarken.Liste, Namen{"Three"});
}

TEST_F(Sprungmarken_Test, With_the_underscore_option_a_mark_counts_but_is_not_shown)
{
    C_keine_US_SM = true;
    EXPECT_EQ(Gefunden("_One: NOP\r\nT_wo: NOP\r\n\t_Three: NOP"),
              (Namen{"_One", "T_wo", "_Three"}));
    EXPECT_EQ(Sprungmarken.Liste, Namen{"T_wo"});
    EXPECT_EQ(Sprungmarken_Anzahl, 3);
}

TEST_F(Sprungmarken_Test, Without_the_underscore_option_such_a_mark_is_shown)
{
    Gefunden("_One: NOP");
    EXPECT_EQ(Sprungmarken.Liste, Namen{"_One"});
}

TEST_F(Sprungmarken_Test, Marks_that_are_all_left_out_leave_an_empty_window)
{
    C_keine_US_SM = true;
    Gefunden("_One: NOP");
    EXPECT_EQ(Sprungmarken.Liste, Namen{});
}

TEST_F(Sprungmarken_Test, A_text_without_marks_says_so_in_both_languages)
{
    Gefunden("NOP");
    EXPECT_EQ(Sprungmarken.Liste, Namen{"No jumpmarks"});
    EXPECT_EQ(Sprungmarken_Anzahl, 0);
    Sprache = "D";
    Gefunden("");
    EXPECT_EQ(Sprungmarken.Liste, Namen{"Keine Sprungmarken"});
}

TEST_F(Sprungmarken_Test, A_window_that_is_opened_later_finds_its_list)
{
    Fenster.Zu(Fenster_Spr).Sichtbar = false;
    EXPECT_EQ(Gefunden("One: NOP"), Namen{"One"});
    EXPECT_EQ(Sprungmarken.Liste, Namen{"One"});
}

TEST_F(Sprungmarken_Test, The_counter_grows_when_the_window_list_changed_and_only_then)
{
    Gefunden("One: NOP");
    EXPECT_EQ(Sprungmarken.Liste_Stand, 1u);
    Gefunden("One: NOP\r\nNOP");
    EXPECT_EQ(Sprungmarken.Liste_Stand, 1u);
    Gefunden("Two: NOP");
    EXPECT_EQ(Sprungmarken.Liste_Stand, 2u);
}

TEST_F(Sprungmarken_Test, Filling_the_list_moves_nothing_in_the_editor)
{
    Edit.Text_Setzen("One: NOP");
    Edit.Auswaehlen(2, 3);
    Sprungmarken_Fuellen();
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{2, 3}));
    EXPECT_FALSE(Text_Sperre);
}

TEST_F(Sprungmarken_Test, A_line_of_colons_gives_names_of_bounded_length)
{
    const Namen Marken = Gefunden(std::string(1 << 20, ':'));
    ASSERT_EQ(Marken.size(), Marke_Hoechstens + 1);
    EXPECT_EQ(Marken.back().size(), Marke_Hoechstens);
}

TEST_F(Sprungmarken_Test, A_file_of_colons_gives_a_bounded_number_of_names)
{
    std::string Text;
    for (std::size_t i = 0; i <= Marken_Hoechstens; ++i)
        Text += "a:\r\n";
    EXPECT_EQ(Gefunden(Text).size(), Marken_Hoechstens);
}

RC_GTEST_FIXTURE_PROP(Sprungmarken_Test, The_list_is_that_of_a_scan_back_from_each_colon, ())
{
    const auto Zeichen = rc::gen::element(':', 'D', 'B', 'w', 'x', '"', ';', '\'', ' ', '\t', '\n');
    std::string Text;
    for (const char c : *rc::gen::container<std::string>(Zeichen))
        Text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    C_keine_TAB_SM = *rc::gen::arbitrary<bool>();

    Namen Erwartet;
    for (std::size_t p = Text.find(':'); p != std::string::npos; p = Text.find(':', p + 1)) {
        std::size_t a    = p;
        bool        Gilt = true;
        for (; Gilt && a > 0 && Text[a - 1] != '\n'; --a)
            Gilt = std::string(";'\"").find(Text[a - 1]) == std::string::npos;
        std::string Name = Text.substr(a, p - a);
        std::string Gross;
        for (const char c : Name)
            Gross += static_cast<char>(std::toupper(c));
        if (!Gilt || Gross.ends_with("DB") || Gross.ends_with("DW"))
            continue;
        const std::size_t Rest = std::min(Name.find_first_not_of(" \t"), Name.size());
        if (Rest == 0 || !C_keine_TAB_SM)
            Erwartet.push_back(Name.substr(Rest));
    }
    RC_ASSERT(Gefunden(Text) == Erwartet);
}

class Sprungmarken_Klick_Test : public Sprungmarken_Test {
protected:
    // Clicks on the entry of that name.
    void Klicken(const std::string& Text, const std::string& Name)
    {
        Gefunden(Text);
        const auto& l = Sprungmarken.Liste;
        const auto  i = std::find(l.begin(), l.end(), Name);
        ASSERT_NE(i, l.end());
        Edit.Auswaehlen(1, 1);
        Spr_Liste_Click(static_cast<int>(i - l.begin()));
    }
};

TEST_F(Sprungmarken_Klick_Test, A_click_selects_the_mark_and_gives_the_editor_the_focus)
{
    Klicken("One: NOP\r\nTwo: NOP", "Two");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{10, 3}));
    EXPECT_TRUE(Edit.Hat_Fokus);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_FALSE(Edit.Zeichnen_Steht);
}

TEST_F(Sprungmarken_Klick_Test, A_mark_at_the_very_start_is_found)
{
    Klicken("One: NOP\r\nTwo: NOP", "One");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{0, 3}));
}

TEST_F(Sprungmarken_Klick_Test, A_name_inside_another_word_is_passed_over)
{
    Klicken("XTwo: NOP\r\n,Two\r\nTwo: NOP", "Two");
    EXPECT_EQ(Edit.Auswahl().Anfang, 17);
}

TEST_F(Sprungmarken_Klick_Test, An_indented_mark_is_found_behind_blank_and_tab)
{
    Klicken("NOP\r\n Two: NOP", "Two");
    EXPECT_EQ(Edit.Auswahl().Anfang, 6);
    Klicken("NOP\r\n\tTwo: NOP", "Two");
    EXPECT_EQ(Edit.Auswahl().Anfang, 6);
}

TEST_F(Sprungmarken_Klick_Test, The_first_word_of_that_name_is_taken)
{
    Klicken("SJMP Two\r\nTwo: NOP", "Two");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{5, 3}));
}

TEST_F(Sprungmarken_Klick_Test, A_mark_that_is_gone_leaves_the_caret_at_the_start)
{
    Gefunden("One: NOP");
    Edit.Text_Setzen("NOP");
    Edit.Auswaehlen(2, 1);
    Spr_Liste_Click(0);
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{0, 0}));
    EXPECT_TRUE(Edit.Hat_Fokus);
}

TEST_F(Sprungmarken_Klick_Test, A_click_on_the_entry_that_there_are_none_does_nothing)
{
    Klicken("No jumpmarks here", "No jumpmarks");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{1, 1}));
    EXPECT_FALSE(Edit.Hat_Fokus);
    Sprache = "D";
    Klicken("Keine Sprungmarken hier", "Keine Sprungmarken");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{1, 1}));
}

TEST_F(Sprungmarken_Klick_Test, A_number_outside_the_list_does_nothing)
{
    Gefunden("One: NOP");
    Edit.Auswaehlen(2, 1);
    Spr_Liste_Click(-1);
    Spr_Liste_Click(1);
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{2, 1}));
}

} // namespace
} // namespace varnholt::test
