// The hex page: the four texts, the bar, resize, activation.
#include "Hex_Welt.h"

#include "core/menu.h"

#include <iomanip>
#include <sstream>

namespace varnholt::test {
namespace {

class Hexanzeige : public Hex_Welt {};

std::string Zahl(int Wert, int Stellen, bool Hex)
{
    std::ostringstream s;
    s << std::setfill('0') << std::uppercase << (Hex ? std::hex : std::dec) << std::setw(Stellen)
      << Wert;
    return s.str();
}

TEST_F(Hexanzeige, a_row_has_48_characters_in_hex_18_in_ascii_and_8_in_the_address_columns)
{
    Bytes_Setzen(0, {0x41, 0x00, 0xAB});
    Seite(0, 0);
    EXPECT_EQ(Hex_Feld, "41 00 AB FF FF FF FF FF FF FF FF FF FF FF FF FF ");
    EXPECT_EQ(AscII_Feld, "A.\xAB" + std::string(13, '\xFF') + "\r\n");
    EXPECT_EQ(Adr_D, "000000\r\n");
    EXPECT_EQ(Adr_H, "000000\r\n");
}

TEST_F(Hexanzeige, rows_0_to_R_are_shown)
{
    Seite(0, 9);
    EXPECT_EQ(Hex_Feld.size(), 480u);
    EXPECT_EQ(AscII_Feld.size(), 180u);
    EXPECT_EQ(Adr_D.size(), 80u);
    EXPECT_EQ(Adr_H.size(), 80u);
}

TEST_F(Hexanzeige, each_byte_stands_at_the_offset_of_its_row_and_column)
{
    for (int a = 0; a < 160; ++a)
        Byte(0x1230 + a) = static_cast<std::uint8_t>(a + 33);
    Seite(0x123, 9);
    for (int r = 0; r < 10; ++r)
        for (int c = 0; c < 16; ++c) {
            const int Wert = Byte(0x1230 + 16 * r + c);
            EXPECT_EQ(Hex_Feld.substr(static_cast<std::size_t>(48 * r + 3 * c), 3),
                      Zahl(Wert, 2, true) + " ");
            EXPECT_EQ(AscII_Feld[static_cast<std::size_t>(18 * r + c)], static_cast<char>(Wert));
        }
}

TEST_F(Hexanzeige, addresses_have_leading_zeros_and_upper_case_digits)
{
    Seite(0x7ABC, 1);
    EXPECT_EQ(Adr_D, "502720\r\n502736\r\n");
    EXPECT_EQ(Adr_H, "07ABC0\r\n07ABD0\r\n");
    EXPECT_EQ(Hex_Zeiger, 0x7ABC0);
}

TEST_F(Hexanzeige, rows_at_or_beyond_the_end_of_the_image_are_left_out)
{
    Seite(32760, 30);
    EXPECT_EQ(Hex_Feld.size(), 8u * 48);
    EXPECT_EQ(Adr_H.substr(Adr_H.size() - 8), "07FFF0\r\n");
    Hexedit.Scroll_Max = 32768;
    Seite(32768, 5);
    EXPECT_TRUE(Hex_Feld.empty() && AscII_Feld.empty() && Adr_D.empty() && Adr_H.empty());
}

TEST_F(Hexanzeige, a_window_without_height_shows_no_row)
{
    Hexedit_Resize(0);
    EXPECT_EQ(Hexedit.R, -1);
    EXPECT_TRUE(Hex_Feld.empty());
}

TEST_F(Hexanzeige, eight_and_one_values_show_as_a_point_and_all_others_as_their_character)
{
    for (int i = 0; i < 256; ++i)
        Byte(i) = static_cast<std::uint8_t>(i);
    Seite(0, 15);
    const std::vector<int> Punkte{0, 2, 9, 10, 11, 12, 13, 18, 32};
    for (int i = 0; i < 256; ++i) {
        const bool Punkt = std::find(Punkte.begin(), Punkte.end(), i) != Punkte.end();
        EXPECT_EQ(AscII_Feld[static_cast<std::size_t>(18 * (i / 16) + i % 16)],
                  Punkt ? '.' : static_cast<char>(i))
            << i;
    }
}

TEST_F(Hexanzeige, values_18_and_32_show_as_a_point_and_value_1_as_its_control_character)
{
    Bytes_Setzen(0, {18, 32, 1});
    Hex_Anzeige();
    EXPECT_EQ(AscII_Feld.substr(0, 3), "..\x01");
}

TEST_F(Hexanzeige, during_start_up_nothing_is_built)
{
    Byte(0)          = 0x11;
    const auto Stand = Ansichten.Hex_Stand;
    const int  Runde = Ereignisse.Runden;
    Init_Laeuft      = true;
    Hex_Anzeige();
    EXPECT_EQ(Hex_Feld.substr(0, 2), "FF");
    EXPECT_EQ(Ansichten.Hex_Stand, Stand);
    EXPECT_EQ(Ereignisse.Runden, Runde);
}

TEST_F(Hexanzeige, the_event_loop_gets_one_turn_and_the_views_are_told)
{
    const auto Stand = Ansichten.Hex_Stand;
    const int  Runde = Ereignisse.Runden;
    Hex_Anzeige();
    EXPECT_GT(Ansichten.Hex_Stand, Stand);
    EXPECT_EQ(Ereignisse.Runden, Runde + 1);
}

TEST_F(Hexanzeige, a_scroll_event_of_that_turn_shows_its_page_without_a_further_turn)
{
    Ereignisse.Bei_Runde = [](int) { Scroll_Setzen(Hexedit.Scroll + 7); };
    const int Runde      = Ereignisse.Runden;
    Hex_Anzeige();
    EXPECT_EQ(Ereignisse.Runden, Runde + 1);
    EXPECT_EQ(Adr_D.substr(0, 6), "000112");
    Hex_Anzeige(); // and the guard is down again
    EXPECT_EQ(Ereignisse.Runden, Runde + 2);
}

TEST_F(Hexanzeige, markings_are_drawn_into_a_page_that_became_shorter)
{
    Hex_Caret(470, 5);
    Seite(0, 1);
    EXPECT_LE(Hexedit.Hex_Auswahl.Ende(), 96);
    EXPECT_LE(Hexedit.AscII_Auswahl.Ende(), 36);
    EXPECT_GE(Hexedit.Hex_Auswahl.Anfang, 0);
}

// --- bar and window ---

TEST_F(Hexanzeige, a_window_resized_by_the_user_has_maximum_32760)
{
    for (const int Hoehe : {0, 30, 160, 400, 2000}) {
        Hexedit_Resize(Hoehe);
        EXPECT_EQ(Hexedit.Scroll_Max, 32760) << Hoehe;
    }
}

TEST_F(Hexanzeige, at_start_and_after_a_partial_load_the_maximum_is_32768_less_R)
{
    Init_Laeuft = true;
    Hexedit_Resize(400); // 400 / 16 - 1.5 = 23.5
    EXPECT_EQ(Hexedit.R, 23);
    EXPECT_EQ(Hexedit.Scroll_Max, 32768 - 23);
    Init_Laeuft = false;
    Hexedit_Resize(400);
    EXPECT_EQ(Hexedit.Scroll_Max, 32760);
    Scroll_Einrichten();
    EXPECT_EQ(Hexedit.Scroll_Max, 32768 - 23);
}

TEST_F(Hexanzeige, the_number_of_rows_is_the_height_by_16_less_one_and_a_half_cut)
{
    const std::vector<std::pair<int, int>> Faelle{
        {0, -1}, {8, -1}, {9, 0}, {24, 0}, {39, 0}, {40, 1}, {400, 23}, {407, 23}, {408, 24}};
    for (const auto& [Hoehe, R] : Faelle) {
        Hexedit_Resize(Hoehe);
        EXPECT_EQ(Hexedit.R, R) << Hoehe;
    }
    Hexedit_Resize(-5);
    EXPECT_EQ(Hexedit.R, -1);
    Hexedit_Resize(1 << 30);
    EXPECT_EQ(Hexedit.R, R_Hoechstens);
}

TEST_F(Hexanzeige, all_rows_fit_into_the_height_whatever_a_rows_height_is)
{
    for (const int Zeile : {16, 17, 18, 21, 32})
        for (int Hoehe = 3 * Zeile; Hoehe < 900; Hoehe += 7) {
            Hexedit_Resize(Hoehe, Zeile);
            EXPECT_LE((Hexedit.R + 1) * Zeile, Hoehe);
            EXPECT_GT((Hexedit.R + 3) * Zeile, Hoehe);
        }
}

TEST_F(Hexanzeige, a_resize_draws_the_bar_into_its_new_range_and_shows_the_page)
{
    Hexedit.Scroll_Max = 32768 - 3;
    Hexedit.Scroll     = 32765;
    Hexedit_Resize(400);
    EXPECT_EQ(Hexedit.Scroll, 32760);
    EXPECT_EQ(Hex_Feld.size(), 8u * 48);
}

TEST_F(Hexanzeige, the_bar_is_held_between_0_and_its_maximum)
{
    Scroll_Setzen(-1);
    EXPECT_EQ(Hexedit.Scroll, 0);
    Scroll_Setzen(32760);
    EXPECT_EQ(Hexedit.Scroll, 32760);
    Scroll_Setzen(32761);
    EXPECT_EQ(Hexedit.Scroll, 32760);
    EXPECT_EQ(Adr_H.substr(0, 6), "07FF80");
}

TEST_F(Hexanzeige, scrolling_leaves_a_caret_of_one_byte_so_that_nothing_unseen_is_marked)
{
    Hex_Caret(3, 14);
    Scroll_Setzen(100);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{3, 2}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{1, 1}));
}

TEST_F(Hexanzeige, activation_takes_the_clipboard_the_tooltip_and_the_debugger_entries)
{
    for (const auto& [s, Text] :
         {std::pair{"D", "Disassemblieren"}, std::pair{"E", "Disassemble"}}) {
        Sprache                             = s;
        Aktives_Fenster                     = 2;
        Menue("MNU_deb_Vorbereitung").Aktiv = true;
        Werkzeug(23).Aktiv                  = true;
        Hexedit_Activate();
        EXPECT_EQ(Aktives_Fenster, 1);
        EXPECT_EQ(Werkzeug(21).Hinweis, Text);
        EXPECT_FALSE(Menue("MNU_deb_Vorbereitung").Aktiv);
        EXPECT_FALSE(Werkzeug(23).Aktiv);
    }
    Sprache = "X"; // no such language: the tooltip stays
    Hexedit_Activate();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemble");
}

TEST_F(Hexanzeige, deactivation_records_the_windows_place_in_column_0)
{
    Fenster.Zu(Fenster_Hexedit).Lage = {11, 22, 333, 444};
    Hexedit_Deactivate();
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Oben), 11);
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Breite), 444);
}

TEST_F(Hexanzeige, the_labels_are_empty_at_start)
{
    for (const auto& Text : Hexedit.Label)
        EXPECT_TRUE(Text.empty());
}

// --- the question before an edit ---

TEST_F(Hexanzeige, the_first_edit_of_an_image_with_a_source_asks_in_both_languages)
{
    for (const auto& [s, Titel, Text] :
         {std::tuple{"D",
                     "Achtung!",
                     "Durch Veränderung im HexEditor können die Kommentare und Formatierungen im "
                     "Texteditor verloren gehen!\r\nMöchten Sie die Daten im Hex-Editor trotzdem "
                     "bearbeiten?"},
          std::tuple{
              "E",
              "Please note:",
              "If you change something in the hex editor all comments in the text editor "
              "will be lost!\r\nDo you want to change the data in the hex-editor anyway?"}}) {
        Sprache = s;
        Aus_Quelltext();
        Box.Antworten = {Antwort_Nein};
        Änderung();
        EXPECT_EQ(Box.Meldungen.back().Titel, Titel);
        EXPECT_EQ(Box.Meldungen.back().Text, Text);
        EXPECT_EQ(Box.Meldungen.back().Tasten, Knoepfe::Ja_Nein_Abbrechen);
    }
}

TEST_F(Hexanzeige, no_and_cancel_refuse_the_edit_and_leave_everything)
{
    for (const int Nein : {Antwort_Nein, Antwort_Abbrechen}) {
        Aus_Quelltext();
        Abbruch       = false;
        Box.Antworten = {Nein};
        Änderung();
        EXPECT_TRUE(Abbruch);
        EXPECT_TRUE(Text_Aktuell);
        EXPECT_FALSE(Datei_Geaendert);
        EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
        EXPECT_EQ(Datei_Name, "/tmp/a.asm");
        EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
    }
}

TEST_F(Hexanzeige, yes_empties_the_editor_and_the_name_and_marks_the_image_as_changed)
{
    Aus_Quelltext();
    Box.Antworten = {Antwort_Ja};
    Änderung();
    EXPECT_FALSE(Abbruch);
    EXPECT_TRUE(Edit.Inhalt.empty());
    EXPECT_TRUE(Datei_Name.empty());
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"1:Hex-Editor (*)"});
    Änderung(); // and it isn't asked again
    EXPECT_EQ(Box.Meldungen.size(), 1u);
}

TEST_F(Hexanzeige, without_a_source_text_an_edit_goes_through_and_sets_the_caption)
{
    Text_Aktuell = true;
    Datei_Name   = "/tmp/a.bin";
    Änderung();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_EQ(Datei_Name, "/tmp/a.bin");
    EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"1:Hex-Editor (*)/tmp/a.bin"});
}

TEST_F(Hexanzeige, a_source_that_is_not_in_step_is_no_reason_to_ask)
{
    Aus_Quelltext();
    Text_Aktuell = false;
    Änderung();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
}

TEST_F(Hexanzeige, without_a_valid_language_the_source_text_is_not_given_up)
{
    Aus_Quelltext();
    Sprache = "X";
    Antwort = Antwort_Ja;
    EXPECT_FALSE(Änderung_Erlaubt());
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
}

TEST_F(Hexanzeige, an_old_abort_is_no_refusal)
{
    Abbruch = true;
    EXPECT_TRUE(Änderung_Erlaubt());
}

} // namespace
} // namespace varnholt::test
