// Looking for a term in a text, and the text that the replacements make.
#include "editors/Textsuche.h"

#include "Such_Welt.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

using Treffer_T = std::vector<std::int64_t>;

class Textsuche_Test : public Such_Welt {
protected:
    Treffer_T
    Alle(const std::string& Text, const std::string& Begriff, bool Wort = false, bool Fall = false)
    {
        Im_Editor(Text);
        return Alle_Treffer(Feld, {Begriff, Wort, Fall});
    }
};

TEST_F(Textsuche_Test, hits_dont_overlap)
{
    EXPECT_EQ(Alle("aaaaa", "aa"), (Treffer_T{0, 2}));
    EXPECT_EQ(Alle("abababa", "aba"), (Treffer_T{0, 4}));
}
TEST_F(Textsuche_Test, a_partial_match_hides_no_hit)
{
    EXPECT_EQ(Alle("aaab", "aab"), (Treffer_T{1}));
    EXPECT_EQ(Alle("abcabcabd", "abcabd"), (Treffer_T{3}));
}
TEST_F(Textsuche_Test, an_empty_term_and_an_empty_text_have_no_hits)
{
    EXPECT_EQ(Alle("abc", ""), Treffer_T{});
    EXPECT_EQ(Alle("", "a"), Treffer_T{});
    EXPECT_EQ(Alle("ab", "abc"), Treffer_T{});
}
TEST_F(Textsuche_Test, the_search_begins_at_the_place_given_and_knows_places_outside)
{
    Im_Editor("abab");
    EXPECT_EQ(Erster_Treffer(Feld, {"ab"}, 0), 0);
    EXPECT_EQ(Erster_Treffer(Feld, {"ab"}, 1), 2);
    EXPECT_EQ(Erster_Treffer(Feld, {"ab"}, 2), 2);
    EXPECT_EQ(Erster_Treffer(Feld, {"ab"}, 3), -1);
    EXPECT_EQ(Erster_Treffer(Feld, {"ab"}, 1000), -1);
    EXPECT_EQ(Erster_Treffer(Feld, {"ab"}, -5), 0);
}
TEST_F(Textsuche_Test, case_counts_only_when_it_is_asked_for_and_umlauts_have_one)
{
    EXPECT_EQ(Alle("mov MOV Mov", "moV"), (Treffer_T{0, 4, 8}));
    EXPECT_EQ(Alle("mov MOV Mov", "MOV", false, true), (Treffer_T{4}));
    EXPECT_EQ(Alle("ÄÖÜ äöü ŠŒŽŸ šœžÿ", "äöü"), (Treffer_T{0, 4}));
    EXPECT_EQ(Alle("ŠŒŽŸ šœžÿ", "šœžÿ"), (Treffer_T{0, 5}));
    EXPECT_EQ(Alle("ä Ä", "Ä", false, true), (Treffer_T{2}));
    EXPECT_EQ(Alle("ß ss SS", "ß"), (Treffer_T{0}));
}
TEST_F(Textsuche_Test, a_whole_word_has_no_word_going_on_across_its_ends)
{
    EXPECT_EQ(Alle("P1 P10 _P1 P1_ XP1 P1", "P1", true), (Treffer_T{0, 19}));
    EXPECT_EQ(Alle("@A+DPTR,A", "A", true), (Treffer_T{1, 8}));
    EXPECT_EQ(Alle("Zähl zähler Zahl", "zähl", true), (Treffer_T{0}));
    EXPECT_EQ(Alle("xäx ä äx", "ä", true), (Treffer_T{4}));
    EXPECT_EQ(Alle("a€b ×a÷ ša", "a", true), (Treffer_T{0, 5}));
}
TEST_F(Textsuche_Test, an_end_that_is_no_word_character_needs_no_gap)
{
    EXPECT_EQ(Alle("Start:MOV A,#10h", ":", true), (Treffer_T{5}));
    EXPECT_EQ(Alle("MOV A,#10h", "#10", true), Treffer_T{});
    EXPECT_EQ(Alle("MOV A,#10", "#10", true), (Treffer_T{6}));
}
TEST_F(Textsuche_Test, a_rejected_word_doesnt_hide_the_one_behind_it)
{
    EXPECT_EQ(Alle("xab ab", "ab", true), (Treffer_T{4}));
    EXPECT_EQ(Alle("xaa aa aax", "aa", true), (Treffer_T{4}));
    EXPECT_EQ(Alle("xa-a-a", "a-a", true), (Treffer_T{3}));
}
TEST_F(Textsuche_Test, line_ends_are_two_characters_and_a_term_may_hold_them)
{
    EXPECT_EQ(Alle("a\r\nb\r\na\r\nb", "a\r\nb"), (Treffer_T{0, 6}));
    EXPECT_EQ(Alle("a\r\nb", "b"), (Treffer_T{3}));
}
TEST_F(Textsuche_Test, a_question_mark_is_not_the_characters_that_the_code_page_lacks)
{
    EXPECT_EQ(Alle("a → b ? 😀 ?", "?"), (Treffer_T{6, 11}));
    EXPECT_EQ(Alle("a → b ← c →", "→"), (Treffer_T{2, 10}));
    EXPECT_EQ(Alle("x 😀😃😀", "😀"), (Treffer_T{2, 6}));
    EXPECT_EQ(Alle("→MOV →mov", "→Mov"), (Treffer_T{0, 5}));
    EXPECT_EQ(Alle("→MOV →mov", "→mov", false, true), (Treffer_T{5}));
    EXPECT_EQ(Alle("Ä?ä ä?Ä", "ä?ä"), (Treffer_T{0, 4}));
    EXPECT_EQ(Alle("a?b →?", "?", true), (Treffer_T{1, 5}));
    EXPECT_EQ(Alle("ab→cd ab", "ab", true), (Treffer_T{0, 6}));
}
TEST_F(Textsuche_Test, characters_count_as_the_control_counts_them)
{
    EXPECT_EQ(Zeichen_Anzahl(""), 0);
    EXPECT_EQ(Zeichen_Anzahl("aä€→"), 4);
    EXPECT_EQ(Zeichen_Anzahl("😀x"), 3);
    EXPECT_EQ(Zeichen_Anzahl("a\r\n"), 3);
}
TEST_F(Textsuche_Test, broken_utf8_is_read_to_its_end)
{
    for (const std::string Text : {"\xF0", "a\xE2\x82", "\xC3", "\x80\x80", "\xFF\xFF?"}) {
        EXPECT_GE(Zeichen_Anzahl(Text), 1);
        EXPECT_EQ(Alle("abc?", Text + "??"), Treffer_T{});
        EXPECT_EQ(Mit_Ersetzungen(Text, {}, 1, "x"), Text);
    }
}
TEST_F(Textsuche_Test, equal_texts_differ_in_case_only)
{
    EXPECT_TRUE(Gleicher_Text("Mov ä →", "mOV Ä →"));
    EXPECT_TRUE(Gleicher_Text("", ""));
    EXPECT_FALSE(Gleicher_Text("a", "aa"));
    EXPECT_FALSE(Gleicher_Text("→", "?"));
    EXPECT_FALSE(Gleicher_Text("→", "←"));
}

// --- what the replacements make ---

TEST_F(Textsuche_Test, a_replacement_may_be_shorter_longer_or_nothing)
{
    const Treffer_T t = {0, 2, 5};
    EXPECT_EQ(Mit_Ersetzungen("a.a..a", t, 1, "xyz"), "xyz.xyz..xyz");
    EXPECT_EQ(Mit_Ersetzungen("a.a..a", t, 1, ""), "...");
    EXPECT_EQ(Mit_Ersetzungen("→.→", Treffer_T{0, 2}, 1, "ä"), "ä.ä");
    EXPECT_EQ(Mit_Ersetzungen("😀.😀", Treffer_T{0, 3}, 2, "a"), "a.a");
    EXPECT_EQ(Mit_Ersetzungen("abc", {}, 1, "x"), "abc");
}
TEST_F(Textsuche_Test, lines_with_hits_are_told_as_runs)
{
    const std::string Text = "a a\r\nb\r\nxax\r\n\r\na";
    const Treffer_T   t    = {0, 2, 9, 15};
    EXPECT_EQ(
        Treffer_Zeilen(Text, t, 1, 3),
        (std::vector<Treffer_Zeilen_T>{{{0, 3}, {0, 7}}, {{8, 3}, {12, 5}}, {{15, 1}, {21, 3}}}));
    EXPECT_EQ(
        Treffer_Zeilen(Text, t, 1, 0),
        (std::vector<Treffer_Zeilen_T>{{{0, 3}, {0, 1}}, {{8, 3}, {6, 2}}, {{15, 1}, {12, 0}}}));
    EXPECT_TRUE(Treffer_Zeilen(Text, {}, 1, 3).empty());
}
TEST_F(Textsuche_Test, a_hit_over_a_line_end_joins_its_lines)
{
    EXPECT_EQ(Treffer_Zeilen("ab\r\ncd\r\nef", Treffer_T{2}, 2, 1),
              (std::vector<Treffer_Zeilen_T>{{{0, 6}, {0, 5}}}));
    EXPECT_EQ(Treffer_Zeilen("ab\r\ncd\r\nef", Treffer_T{2, 6}, 2, 0),
              (std::vector<Treffer_Zeilen_T>{{{0, 10}, {0, 6}}}));
}

// --- random texts ---

// As slow as it can be, and not to be doubted.
Treffer_T Einfach_Gesucht(const std::string& Text, const std::string& Begriff, bool Wort, bool Fall)
{
    const auto Ist_Wort = [](char c) { return std::string("abAB1_").find(c) != std::string::npos; };
    const auto Passt    = [&](std::size_t i) {
        for (std::size_t k = 0; k < Begriff.size(); ++k)
            if (Fall ? Text[i + k] != Begriff[k]
                        : std::toupper(Text[i + k]) != std::toupper(Begriff[k]))
                return false;
        const std::size_t e = i + Begriff.size();
        return !Wort || !((i > 0 && Ist_Wort(Text[i]) && Ist_Wort(Text[i - 1])) ||
                          (e < Text.size() && Ist_Wort(Text[e]) && Ist_Wort(Text[e - 1])));
    };
    Treffer_T Alle;
    for (std::size_t i = 0; !Begriff.empty() && i + Begriff.size() <= Text.size();)
        if (Passt(i)) {
            Alle.push_back(static_cast<std::int64_t>(i));
            i += Begriff.size();
        } else {
            ++i;
        }
    return Alle;
}

RC_GTEST_FIXTURE_PROP(Textsuche_Test, finds_what_the_plain_way_finds, ())
{
    const auto Zeichen = rc::gen::elementOf(std::string("abAB1_ ?.\n"));
    const auto Text    = *rc::gen::container<std::string>(Zeichen);
    const auto Begriff = *rc::gen::resize(
        4, rc::gen::container<std::string>(rc::gen::elementOf(std::string("abA_ ?"))));
    const bool Wort = *rc::gen::arbitrary<bool>();
    const bool Fall = *rc::gen::arbitrary<bool>();
    const auto Hier = Alle(Text, Begriff, Wort, Fall);
    RC_ASSERT(Hier == Einfach_Gesucht(Text, Begriff, Wort, Fall));
    RC_ASSERT(Erster_Treffer(Feld, {Begriff, Wort, Fall}, 0) == (Hier.empty() ? -1 : Hier[0]));
}

RC_GTEST_FIXTURE_PROP(Textsuche_Test, the_replaced_text_is_that_of_single_replacements, ())
{
    std::string Text = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("abc ")));
    const auto  Neu  = *rc::gen::resize(
        3, rc::gen::container<std::string>(rc::gen::elementOf(std::string("abx"))));
    const auto Gefunden   = Alle(Text, "ab");
    const auto Auf_Einmal = Mit_Ersetzungen(Text, Gefunden, 2, Neu);
    for (auto t = Gefunden.rbegin(); t != Gefunden.rend(); ++t)
        Text.replace(static_cast<std::size_t>(*t), 2, Neu);
    RC_ASSERT(Auf_Einmal == Text);
}

} // namespace
} // namespace varnholt::test
