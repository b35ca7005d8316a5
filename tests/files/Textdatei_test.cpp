// Encodings and line ends of source texts: recognition, round trips, and what survives an edit.
#include "files/Textdatei.h"

#include "core/codepage.h"
#include "files/Zeilenabgleich.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

using namespace std::string_literals;

const std::string BOM = "\xEF\xBB\xBF";

std::string Geladen(const std::string& Bytes) { return Text_Entschluesseln(Bytes).Text; }
Kodierung   Erkannt(const std::string& Bytes) { return Text_Entschluesseln(Bytes).Zeichensatz; }

// The whole text, with every character of the file.
std::string Ganz(const std::string& Bytes) { return Ganzer_Text(Text_Entschluesseln(Bytes)); }

std::string Ersetzt_In(std::string Text, const std::string& Alt, const std::string& Neu)
{
    const std::size_t i = Text.find(Alt);
    EXPECT_NE(i, std::string::npos) << "the text lacks " << Alt;
    if (i != std::string::npos)
        Text.replace(i, Alt.size(), Neu);
    return Text;
}

// Loads Bytes, replaces Alt by Neu (UTF-8) in the text, and saves.
std::string Ersetzt(const std::string& Bytes, const std::string& Alt, const std::string& Neu)
{
    const Textdatei_T Datei = Text_Entschluesseln(Bytes);
    return Text_Verschluesseln(Ersetzt_In(Ganzer_Text(Datei), Alt, Neu), Datei);
}

// The same in a control that shows `?` for what Windows-1252 lacks.
std::string Arm_Ersetzt(const std::string& Bytes, const std::string& Alt, const std::string& Neu)
{
    Textdatei_T Datei = Text_Entschluesseln(Bytes);
    Datei.Gezeigt     = Nach_UTF8(Datei.Text);
    return Text_Verschluesseln(Ersetzt_In(Datei.Gezeigt, Alt, Neu), Datei);
}

TEST(Zeichensatz, pure_ASCII_counts_as_UTF8) { EXPECT_EQ(Erkannt("MOV A,#1\n"), Kodierung::UTF8); }
TEST(Zeichensatz, an_empty_file_counts_as_UTF8) { EXPECT_EQ(Erkannt(""), Kodierung::UTF8); }
TEST(Zeichensatz, well_formed_sequences_are_UTF8)
{
    EXPECT_EQ(Erkannt("; \xC3\xA4"), Kodierung::UTF8);
}
TEST(Zeichensatz, a_byte_order_mark_is_noted_and_is_no_text)
{
    EXPECT_EQ(Erkannt(BOM + "NOP"), Kodierung::UTF8_mit_BOM);
    EXPECT_EQ(Geladen(BOM + "NOP"), "NOP");
}
TEST(Zeichensatz, a_byte_order_mark_alone_is_an_empty_text)
{
    EXPECT_EQ(Erkannt(BOM), Kodierung::UTF8_mit_BOM);
    EXPECT_EQ(Geladen(BOM), "");
}
TEST(Zeichensatz, a_lone_byte_above_7F_is_Windows_1252)
{
    EXPECT_EQ(Erkannt("; \xE4 \n"), Kodierung::Windows_1252);
    EXPECT_EQ(Geladen("; \xE4"), "; \xE4");
}
TEST(Zeichensatz, malformed_UTF8_is_Windows_1252_as_a_whole)
{
    for (const std::string& Fehler :
         {"\xC0\x80"s, "\xED\xA0\x80"s, "\xF5\x80\x80\x80"s, "\xC3"s, "\x80"s}) {
        const std::string Bytes = "\xC3\xA4 " + Fehler;
        EXPECT_EQ(Erkannt(Bytes), Kodierung::Windows_1252);
        EXPECT_EQ(Geladen(Bytes), Bytes);
    }
}
TEST(Zeichensatz, a_mark_before_malformed_text_is_three_characters)
{
    EXPECT_EQ(Erkannt(BOM + "\xFF"), Kodierung::Windows_1252);
    EXPECT_EQ(Geladen(BOM + "\xFF"), BOM + "\xFF");
}
TEST(Zeichensatz, UTF8_becomes_one_byte_a_character)
{
    EXPECT_EQ(Geladen("\xC3\xA4\xC3\x96\xE2\x82\xAC"), "\xE4\xD6\x80");
}
TEST(Zeichensatz, a_character_outside_Windows_1252_is_a_question_mark)
{
    EXPECT_EQ(Geladen("; \xE4\xB8\xAD\xF0\x9F\x98\x80!"),
              "; ?"
              "?!");
}
TEST(Zeichensatz, the_whole_text_is_kept_beside_where_Windows_1252_lacks_a_character)
{
    EXPECT_EQ(Ganz("; \xE4\xB8\xAD\n"), "; \xE4\xB8\xAD\r\n");
    EXPECT_EQ(Text_Entschluesseln("; \xC3\xA4?\n").Text_UTF8, "");
    EXPECT_EQ(Text_Entschluesseln("; \xE4?\n").Text_UTF8, "");
    EXPECT_EQ(Ganz("; \xE4\n"), "; \xC3\xA4\r\n");
}
TEST(Zeichensatz, a_NUL_is_a_character_like_any_other) { EXPECT_EQ(Geladen("a\0b"s), "a\0b"s); }

TEST(Zeilenenden, each_kind_ends_a_line)
{
    EXPECT_EQ(Geladen("a\nb\n"), "a\r\nb\r\n");
    EXPECT_EQ(Geladen("a\rb\r"), "a\r\nb\r\n");
    EXPECT_EQ(Geladen("a\r\nb\r\n"), "a\r\nb\r\n");
}
TEST(Zeilenenden, mixed_ones_end_a_line_each)
{
    EXPECT_EQ(Geladen("a\n\r\nb\r\r\nc\n\rd"), "a\r\n\r\nb\r\n\r\nc\r\n\r\nd");
}
TEST(Zeilenenden, the_last_line_stays_unended) { EXPECT_EQ(Geladen("a\nb"), "a\r\nb"); }
TEST(Zeilenenden, the_most_frequent_one_is_noted)
{
    EXPECT_EQ(Text_Entschluesseln("a\nb\nc\r\n").Ende, Zeilenende::LF);
    EXPECT_EQ(Text_Entschluesseln("a\rb\rc\n").Ende, Zeilenende::CR);
    EXPECT_EQ(Text_Entschluesseln("a\r\nb\r\nc\n").Ende, Zeilenende::CR_LF);
}
TEST(Zeilenenden, a_text_without_one_gets_CR_LF)
{
    EXPECT_EQ(Text_Entschluesseln("NOP").Ende, Zeilenende::CR_LF);
}

TEST(Textdatei, a_changed_line_is_written_in_the_encoding_of_the_file)
{
    EXPECT_EQ(Ersetzt("; \xE4\nNOP\n", "NOP", "; \xC3\xB6"), "; \xE4\n; \xF6\n");
    EXPECT_EQ(Ersetzt("; \xC3\xA4\nNOP\n", "NOP", "; \xC3\xB6"), "; \xC3\xA4\n; \xC3\xB6\n");
    EXPECT_EQ(Ersetzt(BOM + "NOP\n", "NOP", "; \xC3\xB6"), BOM + "; \xC3\xB6\n");
}
TEST(Textdatei, a_new_line_gets_the_usual_line_end)
{
    EXPECT_EQ(Ersetzt("a\nb\n", "b", "b\r\nc"), "a\nb\nc\n");
    EXPECT_EQ(Ersetzt("a\rb\r", "b", "b\r\nc"), "a\rb\rc\r");
    EXPECT_EQ(Ersetzt("a\r\nb\r\n", "b", "b\r\nc"), "a\r\nb\r\nc\r\n");
}
TEST(Textdatei, unchanged_lines_keep_their_own_line_ends)
{
    EXPECT_EQ(Ersetzt("a\nb\r\nc\rd\n", "d", "x"), "a\nb\r\nc\rx\n");
}
TEST(Textdatei, an_outside_character_survives_edits_of_other_lines)
{
    const std::string Fremd = "; \xE4\xB8\xAD\n";
    EXPECT_EQ(Ersetzt("A\n" + Fremd + "B\n", "A", "X"), "X\n" + Fremd + "B\n");
    EXPECT_EQ(Ersetzt("A\n" + Fremd + "B\n", "B", "X"), "A\n" + Fremd + "X\n");
}
TEST(Textdatei, an_outside_character_survives_insertion_and_deletion_of_lines)
{
    const std::string Fremd = "; \xE4\xB8\xAD\n";
    EXPECT_EQ(Ersetzt("A\n" + Fremd + "B\n", "A\r\n", "A\r\nN\r\nM\r\n"),
              "A\nN\nM\n" + Fremd + "B\n");
    EXPECT_EQ(Ersetzt("A\n" + Fremd + "B\n", "A\r\n", ""), Fremd + "B\n");
    EXPECT_EQ(Ersetzt("A\n" + Fremd + "B\n", "B\r\n", ""), "A\n" + Fremd);
}
TEST(Textdatei, outside_characters_of_equal_looking_lines_are_told_apart_by_their_neighbours)
{
    const std::string Bytes = "A\n; \xE4\xB8\xAD\nB\n; \xE6\x96\x87\nC\n";
    EXPECT_EQ(Arm_Ersetzt(Bytes, "A\r\n; ?\r\n", ""), "B\n; \xE6\x96\x87\nC\n");
    EXPECT_EQ(Arm_Ersetzt(Bytes, "B\r\n; ?\r\nC", "C"), "A\n; \xE4\xB8\xAD\nC\n");
}
TEST(Textdatei, a_moved_line_keeps_its_outside_characters)
{
    const std::string Bytes = "; \xE4\xB8\xAD\nA\nB\nC\n";
    EXPECT_EQ(Arm_Ersetzt(Bytes, "; ?\r\nA\r\nB\r\nC\r\n", "A\r\nB\r\nC\r\n; ?\r\n"),
              "A\nB\nC\n; \xE4\xB8\xAD\n");
}
TEST(Textdatei, a_control_without_an_outside_character_loses_it_only_on_the_edited_line)
{
    EXPECT_EQ(Arm_Ersetzt("; \xE4\xB8\xAD\n; \xE6\x96\x87!\n", "?!", "?!!"),
              "; \xE4\xB8\xAD\n; ?!!\n");
}
TEST(Textdatei, an_edited_line_keeps_its_outside_characters)
{
    EXPECT_EQ(Ersetzt("; \xE4\xB8\xAD!\n", "!", " \xC3\xA4"), "; \xE4\xB8\xAD \xC3\xA4\n");
}
TEST(Textdatei, a_question_mark_in_place_of_an_outside_character_is_a_change)
{
    EXPECT_EQ(Ersetzt("; \xE4\xB8\xAD\n", "\xE4\xB8\xAD", "?"), "; ?\n");
}
TEST(Textdatei, an_outside_character_makes_a_Windows_1252_file_UTF8)
{
    EXPECT_EQ(Ersetzt("; \xE4\rNOP\rRET\r", "NOP", "; \xE4\xB8\xAD"),
              "; \xC3\xA4\r; \xE4\xB8\xAD\rRET\r");
}
TEST(Textdatei, a_file_that_became_UTF8_stays_so)
{
    const Textdatei_T Alt   = Text_Entschluesseln("; \xE4\nNOP\n");
    std::string       Bytes = Text_Verschluesseln("; \xC3\xA4\r\n; \xE4\xB8\xAD\r\n", Alt);
    const Textdatei_T Neu   = Gespeicherte_Textdatei(Bytes, Alt);
    EXPECT_EQ(Text_Verschluesseln("; \xC3\xA4\r\nNOP\r\n", Neu), "; \xC3\xA4\nNOP\n");
}
TEST(Textdatei, an_outside_character_makes_a_new_file_UTF8)
{
    Textdatei_T Neu;
    Neu.Zeichensatz = Kodierung::Windows_1252;
    EXPECT_EQ(Text_Verschluesseln("; \xC3\xA4\r\n", Neu), "; \xE4\r\n");
    EXPECT_EQ(Text_Verschluesseln("; \xE4\xB8\xAD\xC3\xA4\r\n", Neu), "; \xE4\xB8\xAD\xC3\xA4\r\n");
}
TEST(Textdatei, the_bytes_without_a_character_survive_in_Windows_1252)
{
    EXPECT_EQ(Ersetzt("\x81\x8D\x8F\x90\x9D\nA\n", "A", "B"), "\x81\x8D\x8F\x90\x9D\nB\n");
}
TEST(Textdatei, a_control_with_other_lines_than_the_file_gets_its_text_written_as_it_stands)
{
    Textdatei_T Datei = Text_Entschluesseln("a\nb\n");
    Datei.Gezeigt     = "a\r\n\r\nb\r\n";
    EXPECT_EQ(Text_Verschluesseln("a\r\n\r\nc\r\n", Datei), "a\n\nc\n");
    EXPECT_EQ(Text_Verschluesseln(Datei.Gezeigt, Datei), "a\nb\n");
}
TEST(Textdatei, a_line_that_becomes_the_last_loses_its_end_and_gains_it_back)
{
    EXPECT_EQ(Ersetzt("a\nb\nc", "\r\nc", ""), "a\nb");
    EXPECT_EQ(Ersetzt("a\nb", "b", "b\r\nc"), "a\nb\nc");
}
TEST(Textdatei, an_empty_line_after_a_CR_does_not_melt_into_it)
{
    const std::string Neu = Ersetzt("a\rb\nc\nd\n", "b", "");
    EXPECT_EQ(Geladen(Neu), "a\r\n\r\nc\r\nd\r\n");
}
TEST(Textdatei, emptying_a_text_keeps_only_the_mark)
{
    EXPECT_EQ(Text_Verschluesseln("", Text_Entschluesseln("NOP\n")), "");
    EXPECT_EQ(Text_Verschluesseln("", Text_Entschluesseln(BOM + "NOP\n")), BOM);
}
TEST(Textdatei, Windows_1252_that_would_read_as_UTF8_is_written_as_UTF8)
{
    // Without its last line the file would read as "ä" instead of two characters.
    const std::string Neu = Ersetzt("\xC3\xA4\n\xFF", "\r\n\xC3\xBF", "");
    EXPECT_EQ(Neu, "\xC3\x83\xC2\xA4");
    EXPECT_EQ(Geladen(Neu), "\xC3\xA4");
}
TEST(Textdatei, an_inner_mark_that_comes_to_the_beginning_stays_a_character)
{
    const std::string Neu = Ersetzt("a\n" + BOM + "b\n", "a\r\n", "");
    EXPECT_EQ(Ganz(Neu), BOM + "b\r\n");
}
TEST(Textdatei, after_a_save_without_high_characters_the_encoding_is_kept_for_the_next)
{
    const Textdatei_T Alt = Text_Entschluesseln("; \xE4\n");
    const Textdatei_T Neu = Gespeicherte_Textdatei(Text_Verschluesseln("NOP\r\n", Alt), Alt);
    EXPECT_EQ(Text_Verschluesseln("; \xC3\xA4\r\n", Neu), "; \xE4\n");
}
TEST(Textdatei, after_a_save_without_a_line_end_the_usual_one_is_kept_for_the_next)
{
    const Textdatei_T Alt = Text_Entschluesseln("a\nb\n");
    const Textdatei_T Neu = Gespeicherte_Textdatei(Text_Verschluesseln("a", Alt), Alt);
    EXPECT_EQ(Text_Verschluesseln("a\r\nb\r\n", Neu), "a\nb\n");
}

TEST(Neue_Textdatei, takes_UTF8_from_the_locale)
{
    EXPECT_EQ(Kodierung_Nach_Locale("de_DE.UTF-8"), Kodierung::UTF8);
    EXPECT_EQ(Kodierung_Nach_Locale("C.utf8"), Kodierung::UTF8);
}
TEST(Neue_Textdatei, is_Windows_1252_in_any_other_locale)
{
    for (const char* Name : {"C", "POSIX", "de_DE", "de_DE.ISO-8859-1", ""})
        EXPECT_EQ(Kodierung_Nach_Locale(Name), Kodierung::Windows_1252) << Name;
}

// Sets an environment variable and puts it back.
class Umgebung {
public:
    Umgebung(const char* Variable, const char* Wert) : Name(Variable)
    {
        if (const char* Alt = std::getenv(Name))
            Bisher = Alt;
        setenv(Name, Wert, 1);
    }
    Umgebung(const Umgebung&)            = delete;
    Umgebung& operator=(const Umgebung&) = delete;
    ~Umgebung() { setenv(Name, Bisher.c_str(), 1); }

private:
    const char* Name;
    std::string Bisher{};
};

TEST(Neue_Textdatei, asks_LC_ALL_before_LC_CTYPE_before_LANG)
{
    const Umgebung Lang("LANG", "C");
    const Umgebung Ctype("LC_CTYPE", "C.UTF-8");
    {
        const Umgebung All("LC_ALL", "C");
        EXPECT_EQ(Neue_Textdatei().Zeichensatz, Kodierung::Windows_1252);
    }
    const Umgebung All("LC_ALL", ""); // an empty variable counts as not set
    EXPECT_EQ(Neue_Textdatei().Zeichensatz, Kodierung::UTF8);
}
TEST(Neue_Textdatei, has_CR_LF_line_ends)
{
    EXPECT_EQ(Text_Verschluesseln("a\r\nb\r\n", Neue_Textdatei()), "a\r\nb\r\n");
}

TEST(Zeilenabgleich, gives_no_old_line_twice)
{
    const auto Zuordnung = Zeilen_Zuordnen({"x"}, {"x", "x"});
    EXPECT_EQ(Zuordnung, (std::vector<std::size_t>{0, Keine_Zeile}));
}
TEST(Zeilenabgleich, gives_no_old_line_twice_among_moved_ones)
{
    EXPECT_EQ(Zeilen_Zuordnen({"a", "x", "b"}, {"x", "c", "x"}),
              (std::vector<std::size_t>{1, Keine_Zeile, Keine_Zeile}));
}
TEST(Zeilenabgleich, prefers_the_equal_line_beside_the_same_neighbours)
{
    EXPECT_EQ(Zeilen_Zuordnen({"K", "x", "A", "x", "B", "E"}, {"N", "A", "x", "B", "M"}),
              (std::vector<std::size_t>{Keine_Zeile, 2, 3, 4, Keine_Zeile}));
}
TEST(Zeilenabgleich, finds_lines_between_changed_ones_by_those_that_stand_once)
{
    const auto Zuordnung = Zeilen_Zuordnen({"a", "", "b", "", "c"}, {"X", "", "b", "", "Y"});
    EXPECT_EQ(Zuordnung, (std::vector<std::size_t>{Keine_Zeile, 1, 2, 3, Keine_Zeile}));
}
TEST(Zeilenabgleich, of_empty_texts_is_empty)
{
    EXPECT_TRUE(Zeilen_Zuordnen({}, {}).empty());
    EXPECT_TRUE(Zeilen_Zuordnen({"a"}, {}).empty());
    EXPECT_EQ(Zeilen_Zuordnen({}, {"a"}), std::vector<std::size_t>{Keine_Zeile});
}

// Bytes that are rich in line ends and in the borders of UTF-8.
rc::Gen<std::string> Beliebige_Bytes()
{
    const auto Stueck = rc::gen::oneOf(
        rc::gen::element("\r"s, "\n"s, "\r\n"s, "\0"s, "?"s, ""s, " "s, "NOP"s),
        rc::gen::element(
            "\xC3\xA4"s, "\xE2\x82\xAC"s, "\xE4\xB8\xAD"s, "\xEF\xBB\xBF"s, "\xC2\x81"s),
        rc::gen::map(rc::gen::arbitrary<char>(), [](char c) { return std::string(1, c); }));
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(Stueck),
                        [](const std::vector<std::string>& Stuecke) {
                            std::string Ganzes;
                            for (const std::string& s : Stuecke)
                                Ganzes += s;
                            return Ganzes;
                        });
}

RC_GTEST_PROP(Textdatei_Eigenschaft, loaded_and_saved_unchanged_is_the_same_to_the_byte, ())
{
    const std::string Bytes = *Beliebige_Bytes();
    const Textdatei_T Datei = Text_Entschluesseln(Bytes);
    RC_ASSERT(Text_Verschluesseln(Ganzer_Text(Datei), Datei) == Bytes);
}

// A text as a control holds it: UTF-8, every line ended by CR LF.
std::string Ein_Text() { return Ganz(*Beliebige_Bytes()); }

RC_GTEST_PROP(Textdatei_Eigenschaft, any_edited_text_reads_back_as_it_was_saved, ())
{
    const Textdatei_T Datei = Text_Entschluesseln(*Beliebige_Bytes());
    const std::string Alt   = Ganzer_Text(Datei);
    const auto        Von   = *rc::gen::inRange<std::size_t>(0, Alt.size() + 1);
    std::string       Text  = Alt.substr(0, Alt.rfind("\r\n", Von) + 1); // whole characters
    Text                    = Ganz(Text + Ein_Text() + (*rc::gen::arbitrary<bool>() ? Alt : ""));
    RC_ASSERT(Ganz(Text_Verschluesseln(Text, Datei)) == Text);
}

// Lines that occur once, with and without characters outside Windows-1252.
std::vector<std::string> Verschiedene_Zeilen(int Anzahl)
{
    std::vector<std::string> Zeilen;
    for (int i = 0; i < Anzahl; ++i)
        Zeilen.push_back(std::to_string(i) + (i % 2 == 0 ? " \xE4\xB8\xAD" : " plain"));
    return Zeilen;
}

RC_GTEST_PROP(Textdatei_Eigenschaft, lines_left_alone_keep_their_bytes_wherever_others_change, ())
{
    const auto  Zeilen = Verschiedene_Zeilen(*rc::gen::inRange(1, 30));
    std::string Bytes, Text, Soll;
    for (const std::string& z : Zeilen) {
        Bytes += z + "\n";
        switch (*rc::gen::inRange(0, 4)) {
        case 0:
            break; // deleted
        case 1:    // edited
            Text += "edited\r\n";
            Soll += "edited\n";
            break;
        case 2: // one inserted before it
            Text += "new\r\n";
            Soll += "new\n";
            [[fallthrough]];
        default:
            Text += z + "\r\n";
            Soll += z + "\n";
        }
    }
    RC_ASSERT(Text_Verschluesseln(Text, Text_Entschluesseln(Bytes)) == Soll);
}

TEST(Textdatei, a_long_text_of_equal_lines_is_matched_without_delay)
{
    std::string Bytes;
    for (int i = 0; i < 200000; ++i)
        Bytes += i % 3 == 0 ? "\n" : "NOP\n";
    const std::string Neu = Ersetzt(Bytes, "NOP", "; X");
    EXPECT_EQ(Neu.size(), Bytes.size());
}

} // namespace
} // namespace varnholt::test
