// The colours of the source text.
#include "editors/Einfaerben.h"

#include "core/commands.h"
#include "core/shared_state.h"
#include "editors/Quelltext.h"
#include "simulator/Sitzung.h"
#include "support/scripted_platform.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>

namespace varnholt::test {
namespace {

// One letter a character: m jumpmark, k comment, . plain text, ? anything else.
std::string Farbbild(const Textfeld& Feld)
{
    std::string Bild;
    for (std::int64_t i = 0; i < Feld.Laenge(); ++i) {
        const std::int32_t f = Feld.Farbe_An(i);
        Bild.push_back(f == 0 ? '.' : f == 0xDD1111 ? 'm' : f == 0x119911 ? 'k' : '?');
    }
    return Bild;
}

// The colours by three passes over the text, character by character: each sign is judged by the
// double quotes between its line's start and itself.
class Drei_Durchgaenge {
public:
    explicit Drei_Durchgaenge(const std::string& Vorlage) : Text(Vorlage), Bild(Vorlage.size(), '.')
    {
        Kommentare(';');
        Kommentare('\'');
        for (std::size_t i = 0; i < Text.size(); ++i)
            if (Text[i] == ':' && !In_Zeichenkette(i) && Bild[i] != 'k' && !Datenwort(i))
                std::fill(At(Anfang(i)), At(i + 1), 'm');
    }
    const std::string& Ergebnis() const { return Bild; }

private:
    std::string::iterator At(std::size_t i)
    {
        return Bild.begin() + static_cast<std::ptrdiff_t>(i);
    }
    std::size_t Anfang(std::size_t i) const
    {
        while (i > 0 && Text[i - 1] != '\n')
            --i;
        return i;
    }
    std::size_t Ende(std::size_t i) const { return std::min(Text.find("\r\n", i), Text.size()); }
    bool        In_Zeichenkette(std::size_t i) const
    {
        const std::string Davor = Text.substr(Anfang(i), i - Anfang(i));
        return std::count(Davor.begin(), Davor.end(), '"') % 2 == 1;
    }
    bool Datenwort(std::size_t i) const
    {
        std::size_t a = Anfang(i);
        while (a < i && (Text[a] == ' ' || Text[a] == '\t'))
            ++a;
        std::string Wort = Text.substr(a, i - a);
        std::transform(Wort.begin(), Wort.end(), Wort.begin(), [](char c) {
            return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
        });
        return Wort == "DB" || Wort == "DW" || Wort == "HEX" || Wort == "DEZ" || Wort == "ASC";
    }
    void Kommentare(char Zeichen)
    {
        for (std::size_t i = 0; i < Text.size(); ++i)
            if (Text[i] == Zeichen && !In_Zeichenkette(i))
                std::fill(At(i), At(Ende(i)), 'k');
    }

    std::string Text;
    std::string Bild;
};

class Einfaerben_Test : public Welt {
protected:
    std::string Gefaerbt(const std::string& Text)
    {
        Edit.Text_Setzen(Text);
        Edit_Einfaerben();
        return Farbbild(Edit);
    }
};

TEST_F(Einfaerben_Test, A_comment_reaches_from_its_sign_to_the_end_of_the_line)
{
    EXPECT_EQ(Gefaerbt("NOP ; x:\r\nNOP ' y"), "....kkkk......kkk");
}

TEST_F(Einfaerben_Test, A_jumpmark_reaches_from_the_start_of_the_line_through_the_colon)
{
    EXPECT_EQ(Gefaerbt(" Loop: NOP"), "mmmmmm....");
}

TEST_F(Einfaerben_Test, Of_two_colons_the_second_ends_the_jumpmark_colour)
{
    EXPECT_EQ(Gefaerbt("One: Two: NOP"), "mmmmmmmmm....");
}

TEST_F(Einfaerben_Test, Data_words_before_a_colon_are_no_jumpmarks)
{
    for (const char* Wort : {"DB", "DW", "HEX", "DEZ", "ASC", "db", "Hex"})
        EXPECT_EQ(Gefaerbt(std::string("\t") + Wort + ": 1").find('m'), std::string::npos) << Wort;
}

TEST_F(Einfaerben_Test, A_name_that_only_ends_in_a_data_word_is_a_jumpmark)
{
    EXPECT_EQ(Gefaerbt("ADB: 1"), "mmmm..");
    EXPECT_EQ(Gefaerbt("DB : 1"), "mmmm..");
}

TEST_F(Einfaerben_Test, Signs_between_double_quotes_have_no_colour)
{
    EXPECT_EQ(Gefaerbt("DB \";':\",1"), std::string(10, '.'));
}

TEST_F(Einfaerben_Test, A_semicolon_between_single_quotes_begins_no_second_comment_but_lies_in_one)
{
    EXPECT_EQ(Gefaerbt("MOV A,#';'"), ".......kkk");
}

TEST_F(Einfaerben_Test, An_open_double_quote_ends_with_its_line)
{
    EXPECT_EQ(Gefaerbt("DB \"a;\r\n;b"), "........kk");
}

RC_GTEST_FIXTURE_PROP(Einfaerben_Test, The_one_pass_gives_what_the_three_passes_give, ())
{
    const auto Zeichen = rc::gen::element(
        '"', ';', '\'', ':', 'D', 'B', 'd', 'b', 'H', 'E', 'X', 'x', ' ', '\t', '\n');
    std::string Text;
    for (const char c : *rc::gen::container<std::string>(Zeichen))
        Text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    RC_ASSERT(Gefaerbt(Text) == Drei_Durchgaenge(Text).Ergebnis());
}

RC_GTEST_FIXTURE_PROP(Einfaerben_Test,
                      Colouring_some_lines_gives_what_colouring_the_whole_text_gives,
                      ())
{
    const auto  Zeichen = rc::gen::element('"', ';', '\'', ':', 'D', 'B', ' ', '\n');
    std::string Text;
    for (const char c : *rc::gen::container<std::string>(Zeichen))
        Text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    Edit.Text_Setzen(Text);
    const Farbstelle_T Alles{0, Edit.Laenge(), 0x123456};
    Edit.Faerben({&Alles, 1});
    Zeilen_Einfaerben(0, Edit.Zeilen_Anzahl() - 1);
    std::string Bild = Farbbild(Edit);
    for (std::size_t i = 0; i < Text.size(); ++i)
        if (Text[i] == '\r' || Text[i] == '\n')
            Bild[i] = '.';
    RC_ASSERT(Bild == Drei_Durchgaenge(Text).Ergebnis());
}

TEST_F(Einfaerben_Test, Colouring_some_lines_leaves_the_others_and_the_selection_alone)
{
    Edit.Text_Setzen(";a\r\n;b\r\n;c\r\n;d");
    Edit.Auswaehlen(1, 2);
    Zeilen_Einfaerben(1, 2);
    EXPECT_EQ(Farbbild(Edit), "....kk..kk....");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{1, 2}));
    EXPECT_FALSE(Text_Sperre);
}

TEST_F(Einfaerben_Test, Lines_outside_the_text_are_left_out)
{
    Edit.Text_Setzen(";a\r\n;b");
    Zeilen_Einfaerben(5, 9);
    Zeilen_Einfaerben(1, 0);
    Zeilen_Einfaerben(-7, -1);
    EXPECT_EQ(Farbbild(Edit), "......");
    Zeilen_Einfaerben(-3, 7);
    EXPECT_EQ(Farbbild(Edit), "kk..kk");
}

class Fortschritt_Test : public Einfaerben_Test {
protected:
    Fortschritt_Test()
    {
        for (int i = 0; i < 1000; ++i)
            Text += "NOP ;x\r\n";
    }
    std::string Text{};
};

TEST_F(Fortschritt_Test, The_progress_is_shown_at_each_whole_per_cent_in_English)
{
    Gefaerbt(Text);
    ASSERT_EQ(Status.Texte.size(), 100u);
    EXPECT_EQ(Status.Texte.front(), " Colorizing the instructions... 1%");
    EXPECT_EQ(Status.Texte[56], " Colorizing the instructions... 57%");
    EXPECT_EQ(Status.Texte.back(), " Colorizing the instructions... 100%");
}

TEST_F(Fortschritt_Test, The_progress_is_shown_in_German)
{
    Sprache = "D";
    Gefaerbt("NOP");
    EXPECT_EQ(Status.Texte,
              std::vector<std::string>{" Einfärben der Kommentare und Sprungmarken... 100%"});
}

TEST_F(Fortschritt_Test, Without_a_language_the_text_is_the_English_one)
{
    Sprache = "X"; // from a damaged settings file
    EXPECT_EQ(Gefaerbt(";x"), "kk");
    ASSERT_FALSE(Status.Texte.empty());
    EXPECT_TRUE(Status.Texte.back().starts_with(" Colorizing the instructions... "));
}

TEST_F(Fortschritt_Test, The_event_loop_turns_at_each_slice)
{
    Gefaerbt(Text);
    EXPECT_EQ(Ereignisse.Runden, 100);
}

TEST_F(Fortschritt_Test, A_stop_ends_the_colouring_at_once_and_is_cleared)
{
    Ereignisse.Bei_Runde   = [](int Runde) { Debug_Stop = Runde == 10; };
    const std::string Bild = Gefaerbt(Text);
    EXPECT_EQ(std::count(Bild.begin(), Bild.end(), 'k'), 2 * 100);
    EXPECT_FALSE(Debug_Stop);
    EXPECT_EQ(Ereignisse.Runden, 10);
}

TEST_F(Fortschritt_Test, An_empty_text_is_done_without_a_word)
{
    Gefaerbt("");
    EXPECT_TRUE(Status.Texte.empty());
    EXPECT_EQ(Ereignisse.Runden, 0);
}

TEST_F(Fortschritt_Test, The_text_is_locked_while_it_is_coloured_and_free_afterwards)
{
    bool Gesperrt        = true;
    bool Ruhe            = false;
    Ereignisse.Bei_Runde = [&](int) {
        Gesperrt = Gesperrt && Edit.Gesperrt;
        Ruhe     = Ruhe || Text_Sperre;
    };
    Gefaerbt(Text);
    EXPECT_TRUE(Gesperrt);
    EXPECT_FALSE(Ruhe);
    EXPECT_FALSE(Edit.Gesperrt);
    EXPECT_FALSE(Edit.Zeichnen_Steht);
}

TEST_F(Fortschritt_Test, During_a_debugger_session_the_text_stays_locked)
{
    Debugger_Aktiv = true;
    Gefaerbt(Text);
    EXPECT_TRUE(Edit.Gesperrt);
}

TEST_F(Fortschritt_Test, A_shorter_text_that_comes_meanwhile_ends_the_colouring)
{
    Ereignisse.Bei_Runde = [&](int Runde) {
        if (Runde == 3)
            Edit.Text_Setzen("NOP ;neu");
    };
    EXPECT_EQ(Gefaerbt(Text), "........");
    EXPECT_EQ(Ereignisse.Runden, 3);
}

TEST_F(Fortschritt_Test, A_colouring_begun_meanwhile_takes_the_place_of_the_first)
{
    Ereignisse.Bei_Runde = [&](int Runde) {
        if (Runde == 3) {
            std::string Anderer = Text;
            std::replace(Anderer.begin(), Anderer.end(), ';', ' ');
            Edit.Text_Setzen(Anderer);
            Edit_Einfaerben();
        }
    };
    EXPECT_EQ(Gefaerbt(Text).find('k'), std::string::npos);
    EXPECT_EQ(Ereignisse.Runden, 103);
}

TEST_F(Fortschritt_Test, A_line_of_a_megabyte_is_coloured_in_one_slice)
{
    const std::string Bild = Gefaerbt(std::string(1 << 20, ':') + ";");
    EXPECT_EQ(Bild, std::string(1 << 20, 'm') + "k");
    EXPECT_EQ(Ereignisse.Runden, 1);
}

} // namespace
} // namespace varnholt::test
