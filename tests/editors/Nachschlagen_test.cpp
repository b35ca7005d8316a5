// The reference windows' tables: loading, messages, sorting, the hex editor's wish; the form
// `Hilfe`.
#include "editors/Nachschlagen.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/menu.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Hilfe.h"
#include "files/Rtf.h"
#include "language/Nachschlage_Texte.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <stdlib.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

const std::string Bef_Fehler   = "Die Datei Befehle.dok ist nicht vorhanden oder fehlerhaft !";
const std::string Basic_Fehler = "Die Datei Basic.dok ist nicht vorhanden oder fehlerhaft !";

class Nachschlage_Welt : public Welt {
protected:
    Nachschlage_Welt()
    {
        Programm_Pfad = Ordner.Name("");
        Sprache       = "D";
    }

    static void Anlegen(const std::string& Name, const std::string& Text)
    {
        std::ofstream(Programm_Pfad + Name, std::ios::binary) << Text;
    }
    // A file of that many numbered lines.
    static std::string Zeilen(int Anzahl, const char* Ende = "\r\n")
    {
        std::string Text;
        for (int i = 0; i < Anzahl; ++i)
            Text += "z" + std::to_string(i) + Ende;
        return Text;
    }
    static const Tafel_Zeile_T& Bef_Zeile(std::size_t n) { return Nachschlagen.Bef.Zeilen.at(n); }

    Arbeitsordner Ordner{};
};

// --- loading `Bef` -------------------------------------------------------------------------------

TEST_F(Nachschlage_Welt, the_shipped_table_fills_the_grid)
{
    Anlegen("befehle.dok", Befehle_Dok());
    Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
    ASSERT_EQ(Nachschlagen.Bef.Zeilen.size(), 256u);
    EXPECT_EQ(Bef_Zeile(0), (Tafel_Zeile_T{"00", "NOP", "1", "1"}));
    EXPECT_EQ(Bef_Zeile(0x75), (Tafel_Zeile_T{"75", "MOV direct,#data", "3", "2"}));
    EXPECT_EQ(Bef_Zeile(255), (Tafel_Zeile_T{"FF", "MOV R7,A", "1", "1"}));
}
TEST_F(Nachschlage_Welt, a_file_of_fewer_than_1024_lines_gives_the_message_and_keeps_what_was_read)
{
    Anlegen("befehle.dok", Zeilen(1023));
    Bef_Laden();
    EXPECT_EQ(Letzte_Meldung(), Bef_Fehler);
    ASSERT_EQ(Nachschlagen.Bef.Zeilen.size(), 256u);
    EXPECT_EQ(Bef_Zeile(254), (Tafel_Zeile_T{"z1016", "z1017", "z1018", "z1019"}));
    EXPECT_EQ(Bef_Zeile(255), (Tafel_Zeile_T{"z1020", "z1021", "z1022", ""}));
}
TEST_F(Nachschlage_Welt, a_file_of_1024_lines_or_more_is_whole)
{
    for (const int n : {1024, 1025, 2000}) {
        Anlegen("befehle.dok", Zeilen(n));
        Bef_Laden();
        EXPECT_TRUE(Box.Meldungen.empty()) << n;
        EXPECT_EQ(Nachschlagen.Bef.Zeilen.size(), 256u) << n;
        EXPECT_EQ(Bef_Zeile(255)[3], "z1023") << n;
    }
}
TEST_F(Nachschlage_Welt, the_last_line_needs_no_end)
{
    std::string Text = Zeilen(1024);
    Anlegen("befehle.dok", Text.substr(0, Text.size() - 2));
    Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Nachschlage_Welt, a_missing_line_shifts_all_cells_behind_it)
{
    std::string Text = Befehle_Dok();
    Text.erase(Text.find("NOP\r\n"), 5);
    Anlegen("befehle.dok", Text);
    Bef_Laden();
    EXPECT_EQ(Letzte_Meldung(), Bef_Fehler);
    EXPECT_EQ(Bef_Zeile(0), (Tafel_Zeile_T{"00", "1", "1", "01"}));
}
TEST_F(Nachschlage_Welt, lines_may_end_in_LF_and_hold_umlauts_in_either_encoding)
{
    Anlegen("befehle.dok", "L\xC3\xB6\n" + Zeilen(1023, "\n"));
    Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Bef_Zeile(0)[0], "L\xF6");
    Anlegen("befehle.dok", "L\xF6\n" + Zeilen(1023, "\n"));
    Bef_Laden();
    EXPECT_EQ(Bef_Zeile(0)[0], "L\xF6");
}
TEST_F(Nachschlage_Welt, a_missing_file_gives_the_message_in_German_and_none_in_another_language)
{
    Bef_Laden();
    EXPECT_EQ(Letzte_Meldung(), Bef_Fehler);
    EXPECT_EQ(Nachschlagen.Bef.Zeilen, std::vector<Tafel_Zeile_T>(256));
    Basic_Bef_Laden();
    EXPECT_EQ(Letzte_Meldung(), Basic_Fehler);
    EXPECT_TRUE(Nachschlagen.Basic_Bef.Zeilen.empty());
    Box.Meldungen.clear();
    for (const char* s : {"E", "", "F"}) {
        Sprache = s;
        Bef_Laden();
        Basic_Bef_Laden();
        EXPECT_TRUE(Box.Meldungen.empty()) << s;
    }
}
TEST_F(Nachschlage_Welt, the_file_is_found_whatever_the_case_of_its_name)
{
    Anlegen("Befehle.DOK", Befehle_Dok());
    Anlegen("BASIC.dok", Basic_Dok());
    Bef_Laden();
    Basic_Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Nachschlage_Welt, a_folder_or_a_file_of_any_bytes_is_no_harm)
{
    fs::create_directory(Programm_Pfad + "befehle.dok");
    Bef_Laden();
    EXPECT_EQ(Letzte_Meldung(), Bef_Fehler);
    Anlegen("basic.dok", std::string(3'000'000, '\xFF'));
    Basic_Bef_Laden();
    ASSERT_EQ(Nachschlagen.Basic_Bef.Zeilen.size(), 1u);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Zeilen[0][0].size(), Zelle_Hoechstens);
    EXPECT_EQ(Letzte_Meldung(), Basic_Fehler);
    Anlegen("basic.dok", std::string(3'000'000, '\n'));
    Basic_Bef_Laden();
    EXPECT_LE(Nachschlagen.Basic_Bef.Zeilen.size(), Dok_Hoechstens);
}

// --- loading `Basic_Bef` -------------------------------------------------------------------------

TEST_F(Nachschlage_Welt, two_groups_give_two_rows_below_the_header)
{
    Anlegen("basic.dok", Zeilen(6));
    Basic_Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
    ASSERT_EQ(Nachschlagen.Basic_Bef.Zeilen.size() + 1, 3u); // with the header
    EXPECT_EQ(Nachschlagen.Basic_Bef.Zeilen[1], (Tafel_Zeile_T{"z3", "z4", "z5", ""}));
}
TEST_F(Nachschlage_Welt, a_group_that_is_not_whole_gives_the_message_and_stays)
{
    Anlegen("basic.dok", Zeilen(7));
    Basic_Bef_Laden();
    EXPECT_EQ(Letzte_Meldung(), Basic_Fehler);
    ASSERT_EQ(Nachschlagen.Basic_Bef.Zeilen.size(), 3u);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Zeilen[2], (Tafel_Zeile_T{"z6", "", "", ""}));
}
TEST_F(Nachschlage_Welt, an_empty_file_of_statements_is_no_failure)
{
    Anlegen("basic.dok", "");
    Basic_Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Nachschlagen.Basic_Bef.Zeilen.empty());
}
TEST_F(Nachschlage_Welt, the_shipped_statements_load)
{
    Anlegen("basic.dok", Basic_Dok());
    Basic_Bef_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Nachschlagen.Basic_Bef.Zeilen.size(), Alle_Anweisungen().size());
    EXPECT_EQ(Nachschlagen.Basic_Bef.Zeilen[0], (Tafel_Zeile_T{"IF A=#v THEN", "8", "4", ""}));
}

// --- first use -----------------------------------------------------------------------------------

TEST_F(Nachschlage_Welt, a_table_is_read_before_its_window_is_shown_first_and_then_no_more)
{
    Modus = Modus_MC;
    Anlegen("befehle.dok", Befehle_Dok());
    Anlegen("basic.dok", Basic_Dok());
    MNU_Not_Click();
    EXPECT_FALSE(Nachschlagen.Bef.Geladen || Nachschlagen.Basic_Bef.Geladen);
    MNU_Bef_Click();
    EXPECT_TRUE(Nachschlagen.Bef.Geladen);
    EXPECT_FALSE(Nachschlagen.Basic_Bef.Geladen);
    MNU_Basic_Click();
    EXPECT_TRUE(Nachschlagen.Basic_Bef.Geladen);
    EXPECT_EQ(Bef_Zeile(0)[1], "NOP");
    Anlegen("befehle.dok", Zeilen(3));
    MNU_Bef_Click();
    MNU_Bef_Click();
    EXPECT_EQ(Bef_Zeile(0)[1], "NOP");
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Nachschlage_Welt, the_menu_entries_toggle_window_tick_and_table)
{
    Modus = Modus_MC;
    struct Fall_T {
        void (*Befehl)();
        Menue_Zustand_T* Eintrag;
        int              Nummer;
    };
    for (const Fall_T& f : {Fall_T{MNU_Bef_Click, &Menue("MNU_Bef"), Fenster_Bef},
                            Fall_T{MNU_Basic_Click, &Menue("MNU_Basic"), Fenster_Basic}})
        for (const int m : {Modus_Hex, Modus_MC}) {
            Modus = m;
            for (const bool An : {true, false}) {
                f.Befehl();
                EXPECT_EQ(Fenster.Zu(f.Nummer).Sichtbar, An) << f.Nummer;
                EXPECT_EQ(f.Eintrag->Haken, An) << f.Nummer;
                EXPECT_EQ(Fenster_Wert(m - 1, f.Nummer, Feld::Sichtbar), An ? -1 : 0) << f.Nummer;
            }
        }
}
TEST_F(Nachschlage_Welt, a_window_that_the_arrangement_shows_has_its_table)
{
    Modus = Modus_MC;
    Anlegen("befehle.dok", Befehle_Dok());
    Fenster_Wert(1, Fenster_Bef, Feld::Sichtbar) = -1;
    Fenster_Anordnen();
    EXPECT_TRUE(Nachschlagen.Bef.Geladen);
    EXPECT_FALSE(Nachschlagen.Basic_Bef.Geladen);
}
TEST_F(Nachschlage_Welt, their_menu_entries_are_enabled)
{
    EXPECT_TRUE(Menue_Bereit(Menue_Platz("MNU_Bef")));
    EXPECT_TRUE(Menue_Bereit(Menue_Platz("MNU_Basic")));
}

// --- clicks --------------------------------------------------------------------------------------

class Bef_Tafel : public Nachschlage_Welt {
protected:
    Bef_Tafel()
    {
        Anlegen("befehle.dok", Befehle_Dok());
        Bef_Laden();
        Edit.Inhalt = "source";
    }
    static std::vector<std::string> Spalte(std::size_t s)
    {
        std::vector<std::string> Texte;
        for (const Tafel_Zeile_T& z : Nachschlagen.Bef.Zeilen)
            Texte.push_back(z[s]);
        return Texte;
    }
};

TEST_F(Bef_Tafel, a_click_on_the_header_sorts_by_that_column)
{
    for (int s = 0; s < Bef_Spalten_Anzahl; ++s) {
        auto Erwartet = Spalte(static_cast<std::size_t>(s));
        std::sort(Erwartet.begin(), Erwartet.end(), [](const auto& a, const auto& b) {
            return Gross(a) < Gross(b);
        });
        const auto Stand = Nachschlagen.Bef.Stand;
        Bef_Feld_Click(0, s);
        EXPECT_EQ(Spalte(static_cast<std::size_t>(s)), Erwartet) << s;
        EXPECT_GT(Nachschlagen.Bef.Stand, Stand) << s;
    }
}
TEST_F(Bef_Tafel, numbers_are_sorted_as_texts_and_case_is_ignored)
{
    auto& Zeilen_Hier = Nachschlagen.Bef.Zeilen;
    Zeilen_Hier       = {
              {"1", "b", "10", ""}, {"2", "A", "9", ""}, {"3", "B", "1", ""}, {"4", "\xE4", "", ""}};
    Bef_Feld_Click(0, 2);
    EXPECT_EQ(Spalte(2), (std::vector<std::string>{"", "1", "10", "9"}));
    Bef_Feld_Click(0, 0);
    Bef_Feld_Click(0, 1);
    EXPECT_EQ(Spalte(1),
              (std::vector<std::string>{"A", "b", "B", "\xE4"})); // equal ones keep their order
}
TEST_F(Bef_Tafel, rows_stay_whole_when_they_are_sorted)
{
    const auto Vorher = Nachschlagen.Bef.Zeilen;
    Bef_Feld_Click(0, 1);
    Bef_Feld_Click(0, 3);
    auto Nachher = Nachschlagen.Bef.Zeilen;
    EXPECT_NE(Nachher, Vorher);
    std::sort(Nachher.begin(), Nachher.end());
    EXPECT_EQ(Nachher, Vorher);
}
TEST_F(Bef_Tafel, a_click_on_a_data_row_selects_it_and_neither_sorts_nor_inserts)
{
    const auto Vorher = Nachschlagen.Bef.Zeilen;
    Bef_Feld_Click(0x25, 1);
    EXPECT_EQ(Nachschlagen.Bef.Zeilen, Vorher);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 0x24);
    EXPECT_EQ(Edit.Inhalt, "source");
    EXPECT_EQ(Ablage.Inhalt, "");
}
TEST_F(Bef_Tafel, clicks_beside_the_table_do_nothing)
{
    const auto Vorher = Nachschlagen.Bef.Zeilen;
    for (const auto& [Zeile, s] : {std::pair{257, 0}, {-1, 0}, {0, 4}, {0, -1}})
        Bef_Feld_Click(Zeile, s);
    EXPECT_EQ(Nachschlagen.Bef.Zeilen, Vorher);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, -1);
    Bef_Feld_Click(256, 0);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 255);
}
TEST_F(Bef_Tafel, the_selected_instruction_stays_selected_when_the_rows_are_sorted)
{
    Bef_Feld_Click(0x75, 0);
    const auto Wahl = Nachschlagen.Bef.Wahl_Stand;
    Bef_Feld_Click(0, 1);
    EXPECT_EQ(Bef_Zeile(static_cast<std::size_t>(Nachschlagen.Bef.Gewaehlt))[0], "74");
    EXPECT_GT(Nachschlagen.Bef.Wahl_Stand, Wahl);
}
TEST_F(Bef_Tafel, a_click_into_the_statements_only_selects)
{
    Anlegen("basic.dok", Zeilen(6));
    Basic_Bef_Laden();
    const auto Vorher = Nachschlagen.Basic_Bef.Zeilen;
    Basic_Bef_Feld_Click(0);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Gewaehlt, -1);
    Basic_Bef_Feld_Click(2);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Gewaehlt, 1);
    Basic_Bef_Feld_Click(3);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Gewaehlt, 1);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Zeilen, Vorher);
}

// --- the hex editor's wish -----------------------------------------------------------------------

void Wuenschen(int Byte)
{
    Hexedit.Bef_Zeile = Byte + 1;
    ++Hexedit.Bef_Stand;
    Bef_Nachfuehren();
}

TEST_F(Bef_Tafel, the_byte_clicked_in_the_hex_editor_selects_its_row)
{
    for (const int b : {0, 0x74, 0xA5, 0xFF}) {
        Wuenschen(b);
        EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, b);
    }
}
TEST_F(Bef_Tafel, the_row_is_found_after_sorting_too)
{
    Bef_Feld_Click(0, 1);
    for (int b = 0; b < 256; ++b) {
        Wuenschen(b);
        EXPECT_EQ(Bef_Opcode(Bef_Zeile(static_cast<std::size_t>(Nachschlagen.Bef.Gewaehlt))), b);
    }
}
TEST_F(Bef_Tafel, a_wish_is_followed_once)
{
    Wuenschen(0x10);
    Bef_Feld_Click(5, 0);
    Bef_Nachfuehren();
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 4);
}
TEST_F(Bef_Tafel, a_table_without_opcodes_is_counted_row_by_row)
{
    Anlegen("befehle.dok", Zeilen(1024));
    Bef_Laden();
    Wuenschen(0x30);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 0x30);
}
TEST_F(Nachschlage_Welt, a_wish_to_a_table_that_is_not_loaded_waits)
{
    Wuenschen(0x30);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, -1);
    Anlegen("befehle.dok", Befehle_Dok());
    Bef_Laden();
    Bef_Nachfuehren();
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 0x30);
}

TEST(Tafel, an_opcode_is_two_digits)
{
    EXPECT_EQ(Bef_Opcode({"7F", "", "", ""}), 0x7F);
    EXPECT_EQ(Bef_Opcode({"7f", "", "", ""}), 0x7F);
    for (const char* Text : {"", "7", "7FF", "zz", "z0"})
        EXPECT_EQ(Bef_Opcode({Text, "", "", ""}), -1) << Text;
}
TEST(Tafel, the_longest_text_of_a_column)
{
    Tafel_T Tafel;
    EXPECT_EQ(Laengster_Text(Tafel, 0), "");
    Tafel.Zeilen = {{"a", "1", "", ""}, {"bcd", "22", "", ""}, {"efg", "3", "", ""}};
    EXPECT_EQ(Laengster_Text(Tafel, 0), "bcd");
    EXPECT_EQ(Laengster_Text(Tafel, 1), "22");
    EXPECT_EQ(Laengster_Text(Tafel, 3), "");
}

RC_GTEST_PROP(Tafel,
              sorting_keeps_the_rows_and_orders_them,
              (std::vector<std::uint8_t> Zahlen, bool Zweite))
{
    Nachschlagen_Zuruecksetzen();
    for (const std::uint8_t z : Zahlen)
        Nachschlagen.Bef.Zeilen.push_back({std::to_string(z), std::to_string(z % 7), "", ""});
    auto      Vorher = Nachschlagen.Bef.Zeilen;
    const int s      = Zweite ? 1 : 0;
    Bef_Feld_Click(0, s);
    auto Nachher = Nachschlagen.Bef.Zeilen;
    RC_ASSERT(std::is_sorted(Nachher.begin(), Nachher.end(), [s](const auto& a, const auto& b) {
        return a[static_cast<std::size_t>(s)] < b[static_cast<std::size_t>(s)];
    }));
    std::sort(Vorher.begin(), Vorher.end());
    std::sort(Nachher.begin(), Nachher.end());
    RC_ASSERT(Vorher == Nachher);
    Nachschlagen_Zuruecksetzen();
}

// --- the form `Hilfe` ----------------------------------------------------------------------------

class Hilfe_Welt : public Nachschlage_Welt {
protected:
    static std::string Text() { return Reiner_Text(Hilfe_Form.Text); }
    const char*        Layout = "{\\rtf1 \\'dcbersicht}";
};

TEST_F(Hilfe_Welt, in_German_it_shows_the_text_of_its_layout)
{
    Anlegen("help.rtf", "{\\rtf1 overview}");
    Hilfe_Load(Layout);
    EXPECT_EQ(Hilfe_Form.Titel, "Hilfe");
    EXPECT_EQ(Text(),
              "\xC3\x9C"
              "bersicht");
}
TEST_F(Hilfe_Welt, in_English_it_shows_the_file)
{
    Sprache = "E";
    Anlegen("help.rtf", "{\\rtf1 over{\\b view}}");
    Hilfe_Load(Layout);
    EXPECT_EQ(Hilfe_Form.Titel, "Help");
    EXPECT_EQ(Text(), "overview");
    EXPECT_TRUE(Hilfe_Form.Text.Absaetze.at(0).Stuecke.at(1).Bild.Fett);
}
TEST_F(Hilfe_Welt, without_the_file_it_stays_as_it_is)
{
    Sprache = "E";
    Hilfe_Load(Layout);
    EXPECT_EQ(Hilfe_Form.Titel, "Hilfe"); // as the layout has it
    Anlegen("help.rtf", "{\\rtf1 overview}");
    Hilfe_Load(Layout);
    EXPECT_EQ(Hilfe_Form.Titel, "Help");
    fs::remove(Programm_Pfad + "help.rtf");
    Hilfe_Load(Layout);
    EXPECT_EQ(Text(), "overview");
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Hilfe_Welt, a_change_of_language_shows_at_the_next_showing)
{
    Anlegen("help.rtf", "{\\rtf1 overview}");
    for (const auto& [s, Titel] : {std::pair{"D", "Hilfe"}, {"E", "Help"}, {"D", "Hilfe"}}) {
        Sprache = s;
        Hilfe_Load(Layout);
        EXPECT_EQ(Hilfe_Form.Titel, Titel);
    }
}

// The two texts as they are shipped.
TEST(Hilfe_Texte, are_rich_text_of_a_page_or_two_in_both_languages)
{
    for (const char* Name : {"help.rtf", "hilfe.rtf"}) {
        std::ifstream     Datei(std::string(VARNHOLT_DATA) + "/" + Name, std::ios::binary);
        const std::string Bytes{std::istreambuf_iterator<char>(Datei), {}};
        EXPECT_TRUE(Ist_Rtf(Bytes)) << Name;
        const auto        Ergebnis = Rtf_Lesen(Bytes);
        const std::string Text     = Reiner_Text(Ergebnis.Text);
        EXPECT_FALSE(Ergebnis.Zu_Lang) << Name;
        EXPECT_GT(Text.size(), 3000u) << Name;
        EXPECT_LT(Text.size(), 8000u) << Name;
        EXPECT_EQ(Text.find("\xEF\xBF\xBD"), std::string::npos) << Name;
        EXPECT_EQ(Rtf_Normal(Ergebnis.Text), Ergebnis.Text) << Name;
    }
}
// The keys that the texts name are those of the menu.
TEST(Hilfe_Texte, name_the_keys_of_the_menu)
{
    const auto Lies = [](const char* Name) {
        std::ifstream     Datei(std::string(VARNHOLT_DATA) + "/" + Name, std::ios::binary);
        const std::string Bytes{std::istreambuf_iterator<char>(Datei), {}};
        return Reiner_Text(Rtf_Lesen(Bytes).Text);
    };
    const std::string D = Lies("hilfe.rtf");
    const std::string E = Lies("help.rtf");
    for (const char* Name : {"MNU_MC",
                             "MNU_Hex",
                             "MNU_Bef",
                             "MNU_Basic",
                             "MNU_Not",
                             "MNU_Save",
                             "MNU_Suche",
                             "MNU_Weitersuchen",
                             "MNU_Undo",
                             "MNU_Redo",
                             "MNU_deb_Vorbereitung",
                             "MNU_deb_Starten",
                             "MNU_deb_up",
                             "MNU_deb_down",
                             "MNU_deb_Einzelschritt",
                             "MNU_jump_cursor",
                             "MNU_deb_reset_adr",
                             "MNU_deb_reset",
                             "MNU_Adresse_direkt",
                             "MNU_IC_Lesen",
                             "MNU_IC_Brennen",
                             "MNU_IC_Prüfen",
                             "MNU_IC_Löschen",
                             "MNU_Help"}) {
        const std::string Taste(Menue_Tabelle.at(Menue_Platz(Name)).Kuerzel);
        EXPECT_NE(E.find(Taste), std::string::npos) << Name;
        std::string Deutsch = Taste;
        for (const auto& [Alt, Neu] :
             {std::pair{"Ctrl", "Strg"}, {"Shift", "Umschalt"}, {"Del", "Entf"}})
            if (Deutsch.starts_with(Alt))
                Deutsch.replace(0, std::string(Alt).size(), Neu);
        EXPECT_NE(D.find(Deutsch), std::string::npos) << Name;
    }
    for (const char* Name :
         {"MNU_Bef", "MNU_Basic", "MNU_Not", "MNU_Spr", "MNU_G_Einstellung", "MNU_Neu"}) {
        const auto& e = Menue_Tabelle.at(Menue_Platz(Name));
        EXPECT_NE(D.find(e.D), std::string::npos) << e.D;
        EXPECT_NE(E.find(e.E), std::string::npos) << e.E;
    }
}

} // namespace
} // namespace varnholt::test
