// The normal form of a line, against the steps told one by one: comment and tabs, blanks at both
// ends, runs of blanks, blanks beside commas.
#include "language/Zeile_Normieren.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace varnholt {
namespace {

std::string Normal(std::string_view Zeile)
{
    Text_Ablage Ablage;
    return std::string(Zeile_Normieren(Zeile, Ablage).Ansicht());
}

std::string Ohne_Kommentar(std::string s)
{
    bool Zitat = false;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '"')
            Zitat = !Zitat;
        else if (!Zitat && (s[i] == ';' || s[i] == '\''))
            return s.substr(0, i);
        else if (!Zitat && s[i] == '\t')
            s[i] = ' ';
    }
    return s;
}

std::string Ohne_Rand(const std::string& s)
{
    const std::size_t a = s.find_first_not_of(' ');
    return a == std::string::npos ? std::string{} : s.substr(a, s.find_last_not_of(' ') + 1 - a);
}

// Takes out what Weg tells, outside quotes, from the second character on, in one forward walk.
template <class T> std::string Gang(std::string s, T Weg)
{
    bool Zitat = false;
    for (std::size_t i = 1; i < s.size(); ++i) {
        if (s[i] == '"')
            Zitat = !Zitat;
        if (!Zitat)
            Weg(s, i);
    }
    return s;
}

std::string Schritt_Fuer_Schritt(const std::string& Zeile)
{
    std::string s = Ohne_Rand(Ohne_Kommentar(Zeile));
    s             = Gang(s, [](std::string& t, std::size_t i) {
        while (t[i] == ' ' && i + 1 < t.size() && t[i + 1] == ' ')
            t.erase(i + 1, 1);
    });
    return Gang(s, [](std::string& t, std::size_t i) {
        if (t.compare(i, 2, " ,") == 0)
            t.erase(i, 1);
        if (t.compare(i, 2, ", ") == 0)
            t.erase(i + 1, 1);
    });
}

TEST(Zeile_Normieren, blanks_and_tabs_collapse_and_go_beside_commas)
{
    EXPECT_EQ(Normal("\tmov   a ,\t r0  ; comment"), "mov a,r0");
    EXPECT_EQ(Normal("A , B"), "A,B");
    EXPECT_EQ(Normal("  ; only"), "");
    EXPECT_EQ(Normal(""), "");
}

TEST(Zeile_Normieren, text_in_quotes_stays)
{
    EXPECT_EQ(Normal("DB \"a  ; ,\tb\" , 1"), "DB \"a  ; ,\tb\",1");
    EXPECT_EQ(Normal("DB \"open  ; x"), "DB \"open  ; x");
}

TEST(Zeile_Normieren, a_quote_that_is_the_first_character_is_not_seen_by_the_blanks)
{
    EXPECT_EQ(Normal("\"a  b\"  c"), "\"a b\"  c");
}

RC_GTEST_PROP(Zeile_Normieren, one_walk_gives_what_the_single_steps_give, ())
{
    const auto Zeile =
        *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab \t,,  \"\"'; 1")));
    RC_ASSERT(Normal(Zeile) == Schritt_Fuer_Schritt(Zeile));
}

} // namespace
} // namespace varnholt
