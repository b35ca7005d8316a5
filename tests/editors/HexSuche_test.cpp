// The form `HexSuche`: patterns, the scan, and how a hit is shown.
#include "editors/HexSuche.h"

#include "Hex_Welt.h"
#include "core/codepage.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

class HexSuche_Test : public Hex_Welt {
protected:
    // Looks for hexadecimal values, or for characters.
    static void Suchen(const std::string& Begriff, bool ASCII = false)
    {
        if (HexSuche_Form.O_ASCII != ASCII)
            ASCII ? HexSuche::O_ASCII_Click() : HexSuche::O_Hex_Click();
        if (HexSuche_Form.Suchbegriff != Begriff)
            HexSuche::Suchbegriff_Change(Begriff);
        HexSuche::Suchen_OK_Click();
    }
    // Address of the first byte that is marked.
    static std::int32_t Markiert()
    {
        return Adresse_Von(Byte_An(Hex_Mass, Hexedit.Hex_Auswahl.Anfang));
    }
    static void Zeichen_Setzen(std::int32_t Adresse, std::string_view Text)
    {
        for (const char c : Text)
            Byte(Adresse++) = static_cast<std::uint8_t>(c);
    }
};

using Bytes_T = std::vector<std::uint8_t>;

// --- captions ---

TEST_F(HexSuche_Test, every_control_has_its_caption_in_both_languages)
{
    const std::vector<std::array<const char*, 3>> Soll = {
        {"HexSuche", "Hex-/ASCII-Editor Suche", "Hex-/ASCII-Editor Search"},
        {"Suchen_OK", "Suchen", "Search"},
        {"Suchen_Abbrechen", "Abbrechen", "Abort"},
        {"O_Hex", "Suche im Hex-Editor", "Search within hex-editor"},
        {"O_ASCII", "Suche im ASCII-Editor ", "Search within ascii-editor"},
        {"InfoText",
         "Bei Eingabe eines Suchstrings von mehreren Hex-Werten trennen Sie diese bitte durch ein "
         "Freizeichen.",
         "Seperate multiple hex values with any sign (Example: 0A FF 55 30)."},
        {"no such control", "", ""},
    };
    for (const auto& [Name, D, E] : Soll) {
        Sprache = "D";
        EXPECT_EQ(HexSuche::Text(Name), D);
        Sprache = "E";
        EXPECT_EQ(HexSuche::Text(Name), E);
    }
}

// --- the pattern ---

TEST_F(HexSuche_Test, pairs_stand_three_characters_apart_whatever_is_between)
{
    for (const char* Text : {"0A FF", "0A-FF", "0A,FF", "0AxFF", "0A FF "})
        EXPECT_EQ(Hex_Muster(Text), (Bytes_T{0x0A, 0xFF})) << Text;
    EXPECT_EQ(Hex_Muster("00 01 7F 80"), (Bytes_T{0, 1, 0x7F, 0x80}));
}
TEST_F(HexSuche_Test, the_number_of_pairs_follows_from_the_length)
{
    EXPECT_EQ(Hex_Muster("A"), (Bytes_T{0xAA}));
    EXPECT_EQ(Hex_Muster("0A"), (Bytes_T{0x0A}));
    EXPECT_EQ(Hex_Muster("0A "), (Bytes_T{0x0A}));
    EXPECT_EQ(Hex_Muster("0AFF"), (Bytes_T{0x0A})); // what is over doesn't count
    EXPECT_EQ(Hex_Muster("0A FF 5"), (Bytes_T{0x0A, 0xFF}));
    EXPECT_EQ(Hex_Muster("0A FF 55"), (Bytes_T{0x0A, 0xFF, 0x55}));
}
TEST_F(HexSuche_Test, a_digit_with_a_blank_behind_it_is_its_value)
{
    EXPECT_EQ(Hex_Muster("5  0A"), (Bytes_T{5, 0x0A}));
}
TEST_F(HexSuche_Test, a_pair_that_is_no_value_makes_no_pattern)
{
    for (const char* Text : {"0G", "ff", " F", "G", "", "0A fF", "0A  1 22", "\xC4\xC4"})
        EXPECT_EQ(Hex_Muster(Text), std::nullopt) << Text;
}

// --- the scan ---

TEST_F(HexSuche_Test, the_scan_doesnt_step_back)
{
    const auto In = [](std::string_view Daten, std::string_view Muster, int Von = 0) {
        return Hex_Treffer(
            Bytes_T(Daten.begin(), Daten.end()), Bytes_T(Muster.begin(), Muster.end()), Von);
    };
    EXPECT_EQ(In("AAAB", "AAB"), -1);
    EXPECT_EQ(In("AAAB", "AAB", 1), 1);
    EXPECT_EQ(In("AAB", "AAB"), 0);
    EXPECT_EQ(In("AAxAAB", "AAB"), 3);
    EXPECT_EQ(In("AAAAAB", "AAB"), 3);
    EXPECT_EQ(In("ABABC", "ABC"), -1); // the A that ends the first attempt isn't tried
    EXPECT_EQ(In("AB ABC", "ABC"), 3);
    EXPECT_EQ(In("xyz", "xyz"), 0);
    EXPECT_EQ(In("xy", "xyz"), -1);
    EXPECT_EQ(In("xyz", "z"), 2);
    EXPECT_EQ(In("xyz", ""), -1);
    EXPECT_EQ(In("xyz", "x", 1), -1);
    EXPECT_EQ(In("xyz", "x", 99), -1);
    EXPECT_EQ(In("xyz", "x", -99), 0);
    EXPECT_EQ(In("", "x"), -1);
}

// The scan as it is told: a counter k that goes on with a match and back to 1 without one.
std::int32_t Wie_Erzaehlt(const Bytes_T& Daten, const Bytes_T& Muster, std::size_t Von)
{
    std::size_t k = 1;
    for (std::size_t A = Von; A < Daten.size(); ++A) {
        k = Daten[A] == Muster[k - 1] ? k + 1 : 1;
        if (k == Muster.size() + 1)
            return static_cast<std::int32_t>(A + 1 - Muster.size());
    }
    return -1;
}
RC_GTEST_PROP(HexSuche_Zufall, finds_what_the_scan_by_a_counter_finds, ())
{
    const auto Wenige = rc::gen::inRange<std::uint8_t>(0, 3);
    const auto Daten  = *rc::gen::container<Bytes_T>(Wenige);
    const auto Muster = *rc::gen::nonEmpty(rc::gen::resize(4, rc::gen::container<Bytes_T>(Wenige)));
    const auto Von    = *rc::gen::inRange<std::size_t>(0, Daten.size() + 1);
    RC_ASSERT(Hex_Treffer(Daten, Muster, static_cast<std::int32_t>(Von)) ==
              Wie_Erzaehlt(Daten, Muster, Von));
}

// --- search ---

TEST_F(HexSuche_Test, FF_in_an_erased_image_is_found_at_0_then_1_then_2)
{
    for (const int Adresse : {0, 1, 2}) {
        Suchen("FF");
        EXPECT_EQ(Markiert(), Adresse);
        EXPECT_EQ(Such_Start, Adresse + 1);
        EXPECT_EQ(Hexedit.Hex_Auswahl.Laenge, 2);
    }
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(HexSuche_Test, a_hit_at_0_marks_the_first_byte_of_the_page)
{
    Byte(0) = 0x12;
    Byte(1) = 0x34;
    Seite(100, 9);
    Suchen("12 34");
    EXPECT_EQ(Hexedit.Scroll, 0);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{0, 5}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{0, 2}));
    EXPECT_EQ(Such_Start, 1);
}
TEST_F(HexSuche_Test, the_row_of_the_byte_ahead_of_the_hit_becomes_the_first_one)
{
    struct Fall_T {
        std::int32_t Adresse;
        int          Zeile;
        int          Stelle;
    };
    for (const auto& [Adresse, Zeile, Stelle] : {Fall_T{1, 0, 3},
                                                 Fall_T{15, 0, 45},
                                                 Fall_T{16, 0, 48},
                                                 Fall_T{17, 1, 3},
                                                 Fall_T{0x1234, 0x123, 12},
                                                 Fall_T{0x1230, 0x122, 48}}) {
        Bild_Loeschen();
        Byte(Adresse) = 0x5A;
        Suchen("");
        Suchen("5A");
        EXPECT_EQ(Hexedit.Scroll, Zeile) << Adresse;
        EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{Stelle, 2})) << Adresse;
        EXPECT_EQ(Such_Start, Adresse + 1);
    }
}
TEST_F(HexSuche_Test, behind_the_last_page_the_marking_goes_down_instead_of_the_page)
{
    Hexedit.Scroll_Max = 32758; // the page of ten rows ends with the image
    Byte(0x7FFE5)      = 0x5A;  // row 32766
    Suchen("5A");
    EXPECT_EQ(Hexedit.Scroll, 32758);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{8 * 48 + 15, 2}));
    EXPECT_EQ(Markiert(), 0x7FFE5);
    Bild_Loeschen();
    Byte(32758 * 16 + 1) = 0x5A; // the row of the bar's end itself
    HexSuche::Suchbegriff_Change("5A");
    Suchen("5A");
    EXPECT_EQ(Hexedit.Scroll, 32758);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{3, 2}));
}
TEST_F(HexSuche_Test, a_sequence_that_ends_at_the_last_byte_is_found)
{
    Byte(0x7FFFE) = 0x12;
    Byte(0x7FFFF) = 0x34;
    Suchen("12 34");
    EXPECT_EQ(Markiert(), 0x7FFFE);
    EXPECT_EQ(Such_Start, 0x7FFFF);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(HexSuche_Test, the_element_behind_the_image_belongs_to_the_search)
{
    Byte(0x7FFFF)      = 0x12;
    Byte(Bild_Groesse) = 0x34;
    Suchen("12 34");
    EXPECT_EQ(Such_Start, 0x80000);
    EXPECT_EQ(Markiert(), 0x7FFFF);
    Suchen("34");
    EXPECT_EQ(Such_Start, 0x80001);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_LE(Hexedit.Hex_Auswahl.Ende(), static_cast<int>(Hex_Feld.size()));
    Suchen("34");
    EXPECT_EQ(Letzte_Meldung(), "No others found !");
}
TEST_F(HexSuche_Test, a_search_in_vain_from_0_is_told_in_both_languages)
{
    for (const auto& [Wahl, Text] :
         {std::pair{"D", "Nicht gefunden!"}, std::pair{"E", "Not found!"}}) {
        Sprache = Wahl;
        Suchen("00");
        EXPECT_EQ(Letzte_Meldung(), Text);
        EXPECT_EQ(Such_Start, 0);
    }
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}
TEST_F(HexSuche_Test, after_no_others_found_the_next_search_starts_from_0_again)
{
    Byte(0x40) = 0x5A;
    for (const auto& [Wahl, Text] :
         {std::pair{"D", "Keine weiteren gefunden !"}, std::pair{"E", "No others found !"}}) {
        Sprache = Wahl;
        Suchen("5A");
        EXPECT_EQ(Markiert(), 0x40);
        const Markierung_T Vorher = Hexedit.Hex_Auswahl;
        Suchen("5A");
        EXPECT_EQ(Letzte_Meldung(), Text);
        EXPECT_EQ(Such_Start, 0);
        EXPECT_EQ(Hexedit.Hex_Auswahl, Vorher);
    }
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}
TEST_F(HexSuche_Test, overlapping_hits_are_found_one_by_one)
{
    Bytes_Setzen(0x20, {1, 1, 1, 1});
    std::vector<int> Gefunden;
    for (int i = 0; i < 3; ++i) {
        Suchen("01 01");
        Gefunden.push_back(Markiert());
    }
    EXPECT_EQ(Gefunden, (std::vector<int>{0x20, 0x21, 0x22}));
    Suchen("01 01");
    EXPECT_EQ(Letzte_Meldung(), "No others found !");
}
TEST_F(HexSuche_Test, a_partial_match_hides_the_hit_inside_it)
{
    Zeichen_Setzen(0x10, "AAAB");
    Suchen("AAB", true);
    EXPECT_EQ(Letzte_Meldung(), "Not found!");
}
TEST_F(HexSuche_Test, characters_are_looked_for_by_their_code)
{
    Zeichen_Setzen(0x30, "Z\xE4hler 1\x80");
    Suchen("Zähler 1€", true);
    EXPECT_EQ(Markiert(), 0x30);
    EXPECT_EQ(Hexedit.AscII_Auswahl.Laenge, 9);
    Suchen("zähler", true); // case counts
    EXPECT_EQ(Letzte_Meldung(), "Not found!");
}
TEST_F(HexSuche_Test, one_digit_is_looked_for_as_a_pair_of_it)
{
    Byte(0x0A) = 0x0A;
    Byte(0x50) = 0xAA;
    Suchen("A");
    EXPECT_EQ(Markiert(), 0x50);
    EXPECT_EQ(Hexedit.Hex_Auswahl.Laenge, 2);
}
TEST_F(HexSuche_Test, a_wrong_character_is_told_in_both_languages_and_the_place_stays)
{
    Such_Start = 0;
    Suchen("FF");
    HexSuche_Form.Suchbegriff = "0G";
    Hex_Puffer                = {1, 2, 3};
    Sprache                   = "D";
    HexSuche::Suchen_OK_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Ungültiges Zeichen im Hex-Suchtext! Dieser kann nur die Werte 00-FF annehmen.");
    Sprache = "E";
    HexSuche::Suchen_OK_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Invalid sign in the hex search text detected! The hex search text can only contain "
              "values between 00 and FF.");
    EXPECT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Such_Start, 1);
    EXPECT_EQ(Hex_Puffer, (Bytes_T{1, 2, 3}));
}
TEST_F(HexSuche_Test, as_characters_any_text_is_a_pattern)
{
    Suchen("0G", true);
    EXPECT_EQ(Letzte_Meldung(), "Not found!");
}
TEST_F(HexSuche_Test, the_second_image_holds_the_pattern_from_1_on)
{
    Suchen("12 34 56");
    EXPECT_EQ(Hex_Puffer.size(), 4u);
    EXPECT_EQ(Bytes_T(Hex_Puffer.begin() + 1, Hex_Puffer.end()), (Bytes_T{0x12, 0x34, 0x56}));
}
TEST_F(HexSuche_Test, nothing_of_the_image_is_changed)
{
    Byte(7)           = 0x5A;
    const auto Vorher = Hex_Daten;
    Text_Aktuell      = true;
    Suchen("5A FF");
    Suchen("5A FF");
    Suchen("xx");
    EXPECT_TRUE(Hex_Daten == Vorher);
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_FALSE(Datei_Geaendert);
}
TEST_F(HexSuche_Test, an_empty_term_closes_the_form_and_shows_the_main_window)
{
    MNU_Suche_Click();
    Such_Start = 7;
    Suchen("");
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_HexSuche));
    EXPECT_EQ(Fenster.Protokoll.back(), "Fokus 1");
    EXPECT_EQ(Such_Start, 0);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(HexSuche_Test, a_changed_term_an_opened_form_and_abort_begin_at_0_again)
{
    Such_Start = 7;
    HexSuche::Suchbegriff_Change("x");
    EXPECT_EQ(Such_Start, 0);
    Such_Start = 7;
    MNU_Suche_Click();
    EXPECT_EQ(Such_Start, 0);
    Such_Start = 7;
    MNU_Suche_Click(); // it is open
    EXPECT_EQ(Such_Start, 7);
    HexSuche::Suchen_Abbrechen_Click();
    EXPECT_EQ(Such_Start, 0);
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_HexSuche));
}
TEST_F(HexSuche_Test, enter_and_F3_in_the_term_search_and_other_keys_dont)
{
    Byte(3) = Byte(5) = 0x5A;
    HexSuche::Suchbegriff_Change("5A");
    HexSuche::Suchbegriff_KeyPress(13);
    EXPECT_EQ(Such_Start, 4);
    HexSuche::Suchbegriff_KeyPress(114);
    EXPECT_EQ(Such_Start, 6);
    for (const int Taste : {0, 27, 65, 113, 115})
        HexSuche::Suchbegriff_KeyPress(Taste);
    EXPECT_EQ(Such_Start, 6);
}
TEST_F(HexSuche_Test, find_next_searches_while_the_form_is_seen)
{
    Byte(3) = Byte(5) = 0x5A;
    HexSuche::Suchbegriff_Change("5A");
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Such_Start, 0);
    MNU_Suche_Click();
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Such_Start, 4);
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Such_Start, 6);
}
TEST_F(HexSuche_Test, a_marking_longer_than_the_page_ends_with_it)
{
    Suchen(std::string(1000, 'x'), true);
    EXPECT_EQ(Letzte_Meldung(), "Not found!");
    for (int i = 0; i < 1000; ++i)
        Byte(0x100 + i) = 'x';
    Suchen(std::string(1000, 'x'), true);
    EXPECT_EQ(Markiert(), 0x100);
    EXPECT_LE(Hexedit.Hex_Auswahl.Ende(), static_cast<int>(Hex_Feld.size()));
}
TEST_F(HexSuche_Test, a_window_without_a_row_can_be_searched)
{
    Seite(0, -1);
    Byte(0x123) = 0x5A;
    Suchen("5A");
    EXPECT_EQ(Such_Start, 0x124);
    EXPECT_EQ(Hexedit.Scroll, 0x12);
}

RC_GTEST_FIXTURE_PROP(HexSuche_Test, any_text_ends_in_a_hit_or_a_message, ())
{
    Box.Meldungen.clear();
    Bild_Loeschen();
    const auto Text = *rc::gen::arbitrary<std::string>();
    HexSuche_Form   = {};
    HexSuche::Suchbegriff_Change(Nach_UTF8(Text));
    if (*rc::gen::arbitrary<bool>())
        HexSuche::O_ASCII_Click();
    HexSuche::Suchen_OK_Click();
    RC_ASSERT(Text.empty() || (Such_Start > 0) == Box.Meldungen.empty());
}

} // namespace
} // namespace varnholt::test
