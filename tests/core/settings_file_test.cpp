// The settings file: 142 lines by position, the further settings behind them, and whatever else may
// stand in a file of that name.
#include "core/settings_file.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "editors/Hilfe.h"
#include "programmer/Geraete.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> In_Zeilen(const std::string& Text)
{
    std::vector<std::string> Liste;
    std::istringstream       Strom(Text);
    for (std::string z; std::getline(Strom, z);) {
        EXPECT_TRUE(z.ends_with('\r')) << z;
        z.pop_back();
        Liste.push_back(z);
    }
    return Liste;
}

std::string Zu_Text(const std::vector<std::string>& Liste, const char* Ende = "\r\n")
{
    std::string Text;
    for (const std::string& z : Liste)
        Text += z + Ende;
    return Text;
}

// A complete file in which every line differs from the start value.
std::vector<std::string> Volle_Datei()
{
    std::vector<std::string> z{"D", "/home/u/Projekte", "/a.asm", "/b.hex", "/c.bin"};
    for (int i = 0; i < 100; ++i)
        z.push_back(i % 5 == 0 ? " 0 " : " " + std::to_string(1000 + i) + " ");
    z[5] = "-1 "; // Hexedit visible
    for (const char* Wert :
         {" 17 ",      "-1",     "-1",   "-1",     "-1",   "-1",   " 632 ", "Mono E",
          "BOLD",      "ITALIC", " 11 ", "Sans S", "True", "True", " 9.5 ", "Serif N",
          "True",      "True",   " 14 ", "-1",     "0",    "-1",   "-1",    "-1",
          "-1",        "-1",     "-1",   "-1",     "-1",   " 2 ",  " 31 ",  " 49 ",
          " 1122867 ", " 11 ",   " 7 ",  "-1",     "-1"})
        z.emplace_back(Wert);
    return z;
}

class Einstellungen : public Welt {
protected:
    Einstellungen() { Programm_Pfad = Eigener.Name(""); }
    fs::path Datei() const { return Ordner / "Varnholt.ini"; }
    void     Ablegen(const std::string& Text) const
    {
        std::ofstream(Datei(), std::ios::binary) << Text;
    }
    std::string Inhalt() const
    {
        std::ifstream Strom(Datei(), std::ios::binary);
        return {std::istreambuf_iterator<char>(Strom), {}};
    }
    // Reads the full file with one line (from 1) replaced.
    static int Mit_Zeile(int Nummer, const std::string& Wert)
    {
        auto z                                  = Volle_Datei();
        z[static_cast<std::size_t>(Nummer - 1)] = Wert;
        return Einstellungen_Lesen(Zu_Text(z));
    }
    static std::string Geschriebene_Zeile(int Nummer)
    {
        return In_Zeilen(Einstellungen_Schreiben())[static_cast<std::size_t>(Nummer - 1)];
    }

    Arbeitsordner   Eigener{};
    const fs::path& Ordner = Eigener.Pfad;
};

// --- the lines by position ---

TEST_F(Einstellungen, a_full_file_is_read_without_complaint_and_written_back_the_same)
{
    const auto z = Volle_Datei();
    ASSERT_EQ(z.size(), 142u);
    EXPECT_EQ(Einstellungen_Lesen(Zu_Text(z)), 0);
    auto Geschrieben = In_Zeilen(Einstellungen_Schreiben());
    ASSERT_GE(Geschrieben.size(), 142u);
    Geschrieben.resize(142);
    EXPECT_EQ(Geschrieben, z);
}

TEST_F(Einstellungen, texts_stand_in_lines_1_to_5)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    EXPECT_EQ(Sprache, "D");
    EXPECT_EQ(Start_Verzeichnis, "/home/u/Projekte");
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{"/a.asm", "/b.hex", "/c.bin"}));
}

TEST_F(Einstellungen, the_window_table_stands_column_by_column_window_by_window_field_by_field)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    EXPECT_EQ(Fenster_Wert(0, 1, Feld::Sichtbar), -1); // line 6
    EXPECT_EQ(Fenster_Wert(0, 1, Feld::Oben), 1001);   // line 7
    EXPECT_EQ(Fenster_Wert(0, 1, Feld::Breite), 1004);
    EXPECT_EQ(Fenster_Wert(0, 2, Feld::Oben), 1006);
    EXPECT_EQ(Fenster_Wert(0, 10, Feld::Breite), 1049);
    EXPECT_EQ(Fenster_Wert(1, 1, Feld::Oben), 1051);
    EXPECT_EQ(Fenster_Wert(1, 10, Feld::Links), 1097);
    EXPECT_EQ(Fenster_Wert(1, 10, Feld::Breite), 1099); // line 105
}

struct Flaggen_Zeile {
    int         Nummer;
    bool*       Wert;
    const char* Name;
};
const Flaggen_Zeile Flaggen[] = {
    {107, &C_Brenner, "C_Brenner"},
    {108, &C_IC, "C_IC"},
    {109, &C_IC_vor_B, "C_IC_vor_B"},
    {110, &C_IC_nach_B, "C_IC_nach_B"},
    {111, &C_IC_bei_B, "C_IC_bei_B"},
    {125, &Lade_Letzte, "Lade_Letzte"},
    {127, &Zahlendeutung, "Zahlendeutung"},
    {128, &No_FF, "No_FF"},
    {129, &C_Erstelle_Listfile, "C_Erstelle_Listfile"},
    {130, &C_keine_TAB_SM, "C_keine_TAB_SM"},
    {131, &C_keine_US_SM, "C_keine_US_SM"},
    {132, &O_MOV_ZQ, "O_MOV_ZQ"},
    {133, &C_Auto_Binfile, "C_Auto_Binfile"},
    {134, &C_Auto_Hexfile, "C_Auto_Hexfile"},
    {141, &Autosave_Zeitlich, "Autosave_Zeitlich"},
    {142, &Autosave_Assemblieren, "Autosave_Assemblieren"},
};

TEST_F(Einstellungen, each_flag_has_its_line_and_no_other)
{
    for (const Flaggen_Zeile& f : Flaggen) {
        Mit_Zeile(f.Nummer, "0");
        for (const Flaggen_Zeile& g : Flaggen)
            EXPECT_EQ(*g.Wert, &g != &f) << f.Name << " clears " << g.Name;
        EXPECT_EQ(Geschriebene_Zeile(f.Nummer), "0") << f.Name;
        *f.Wert = true;
        EXPECT_EQ(Geschriebene_Zeile(f.Nummer), "-1") << f.Name;
    }
}

TEST_F(Einstellungen, a_truth_value_is_false_as_0_and_true_as_anything_else)
{
    const std::pair<const char*, bool> Faelle[] = {
        {"0", false},
        {" 0 ", false},
        {"-1", true},
        {"1", true},
        {"x", true},
        {"False", true},
        {"00", true},
        {"", true},
    };
    for (const auto& [Text, Wahr] : Faelle) {
        EXPECT_EQ(Mit_Zeile(125, Text), 0);
        EXPECT_EQ(Lade_Letzte, Wahr) << "'" << Text << "'";
    }
}

TEST_F(Einstellungen, numbers_have_their_lines)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    EXPECT_EQ(IC_Nummer, 17);
    EXPECT_EQ(Port_Basis, 632);
    EXPECT_EQ(O_Automatik_Bef, 2);
    EXPECT_EQ(Eprommer_Version, 31);
    EXPECT_EQ(Undo_Max, 49);
    EXPECT_EQ(Hintergrund_Farbe, 0x112233);
    EXPECT_EQ(Tessel2_Version, 11);
    EXPECT_EQ(Autosave_Nummer, 7);
}

TEST_F(Einstellungen, fonts_have_their_lines)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    EXPECT_EQ(Schriften[Schrift_Edit], (Schrift_T{"Mono E", true, true, 11}));
    EXPECT_EQ(Schriften[Schrift_Spr], (Schrift_T{"Sans S", true, true, 9.5}));
    EXPECT_EQ(Schriften[Schrift_Notiz], (Schrift_T{"Serif N", true, true, 14}));
}

TEST_F(Einstellungen, NORMAL_and_False_clear_a_style)
{
    for (const auto& [Nummer, Wort] : {std::pair{114, "NORMAL"},
                                       {115, "NORMAL"},
                                       {118, "False"},
                                       {119, "False"},
                                       {122, "False"},
                                       {123, "False"}}) {
        EXPECT_EQ(Mit_Zeile(Nummer, Wort), 0);
        int Gesetzt = 0;
        for (const Schrift_T& s : Schriften)
            Gesetzt += s.Fett + s.Kursiv;
        EXPECT_EQ(Gesetzt, 5) << Nummer;
        EXPECT_EQ(Geschriebene_Zeile(Nummer), Wort);
    }
}

TEST_F(Einstellungen, the_reserved_line_is_always_written_as_0)
{
    EXPECT_EQ(Mit_Zeile(126, "-1"), 0);
    EXPECT_EQ(Geschriebene_Zeile(126), "0");
}

TEST_F(Einstellungen, blanks_around_numbers_and_words_are_skipped)
{
    EXPECT_EQ(Mit_Zeile(112, "   888\t"), 0);
    EXPECT_EQ(Port_Basis, 888);
    EXPECT_EQ(Mit_Zeile(112, "278"), 0);
    EXPECT_EQ(Port_Basis, 278);
    EXPECT_EQ(Mit_Zeile(114, " NORMAL "), 0);
    EXPECT_FALSE(Schriften[Schrift_Edit].Fett);
    EXPECT_EQ(Mit_Zeile(120, "  8.25  "), 0);
    EXPECT_EQ(Schriften[Schrift_Spr].Groesse, 8.25);
}

TEST_F(Einstellungen, lines_may_end_in_LF_alone_and_the_last_one_in_nothing)
{
    std::string Text = Zu_Text(Volle_Datei(), "\n");
    Text.pop_back();
    EXPECT_EQ(Einstellungen_Lesen(Text), 0);
    EXPECT_TRUE(Autosave_Assemblieren);
    EXPECT_EQ(Letzte_Datei[2], "/c.bin");
}

// --- short files and old ones ---

TEST_F(Einstellungen, a_file_that_ends_after_line_105_leaves_the_remaining_flags_false)
{
    auto z = Volle_Datei();
    z.resize(105);
    EXPECT_EQ(Einstellungen_Lesen(Zu_Text(z)), 142 - 105);
    for (const Flaggen_Zeile& f : Flaggen)
        EXPECT_FALSE(*f.Wert) << f.Name;
    EXPECT_EQ(Port_Basis, 0);
    EXPECT_EQ(Schriften[Schrift_Edit], Schrift_T{});
    EXPECT_EQ(Fenster_Wert(1, 10, Feld::Breite), 1099);
}

TEST_F(Einstellungen, an_empty_file_leaves_everything_at_0_and_shows_the_editor)
{
    EXPECT_EQ(Einstellungen_Lesen(""), 142);
    EXPECT_EQ(Sprache, "E");
    EXPECT_EQ(Start_Verzeichnis, "");
    EXPECT_EQ(IC_Nummer, 0);
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), 0);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), -1);
}

TEST_F(Einstellungen, exactly_one_main_window_is_visible_after_reading)
{
    for (const auto& [Hex, Edit_Feld] : {std::pair{"-1", "-1"}, {"0", "0"}, {"5", "-1"}}) {
        auto z = Volle_Datei();
        z[5]   = Hex;
        z[60]  = Edit_Feld; // column 2, window 2
        Einstellungen_Lesen(Zu_Text(z));
        const bool Hex_Da = std::string(Hex) == "-1";
        EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), Hex_Da ? -1 : 0);
        EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), Hex_Da ? 0 : -1);
    }
}

TEST_F(Einstellungen, a_background_of_0_sets_Undo_Max_to_100_and_white)
{
    EXPECT_EQ(Mit_Zeile(138, " 0 "), 0);
    EXPECT_EQ(Undo_Max, 100);
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    EXPECT_EQ(Mit_Zeile(138, " 1 "), 0);
    EXPECT_EQ(Undo_Max, 49);
    EXPECT_EQ(Hintergrund_Farbe, 1);
}

// --- values out of range ---

struct Bereich {
    int                                               Nummer;
    std::int32_t*                                     Wert;
    std::vector<std::pair<const char*, std::int32_t>> Faelle;
};

TEST_F(Einstellungen, numbers_are_drawn_into_their_range)
{
    const Bereich Bereiche[] = {
        {106,
         &IC_Nummer,
         {{"-1", -1}, {"-2", -1}, {"620", 620}, {"621", 620}, {"99999999999999999999", 620}}},
        {112,
         &Port_Basis,
         {{"-1", -1}, {"-2", -1}, {"100000000", 100000000}, {"4000000000", 100000000}}},
        {135, &O_Automatik_Bef, {{"0", 0}, {"-1", 0}, {"2", 2}, {"3", 2}}},
        {137,
         &Undo_Max,
         {{"-1", -1},
          {"-2", -1},
          {"0", 0},
          {"998", 998},
          {"999", 998},
          {"-99999999999999999999", -1}}},
        {140, &Autosave_Nummer, {{"0", 0}, {"-1", 0}, {"19", 19}, {"20", 19}}},
    };
    for (const Bereich& b : Bereiche)
        for (const auto& [Text, Soll] : b.Faelle) {
            EXPECT_EQ(Mit_Zeile(b.Nummer, Text), 0);
            EXPECT_EQ(*b.Wert, Soll) << b.Nummer << ": " << Text;
        }
}

TEST_F(Einstellungen, what_is_no_number_leaves_the_start_value_and_counts_as_damage)
{
    for (const char* Text : {"", "abc", "12abc", "1 2", "0x10", "1.5", "-", "+5"}) {
        EXPECT_EQ(Mit_Zeile(112, Text), 1) << Text;
        EXPECT_EQ(Port_Basis, 0) << Text;
    }
}

TEST_F(Einstellungen, only_known_hardware_versions_are_taken)
{
    for (const auto& [Text, Soll] : {std::pair{"30", 30}, {"31", 31}, {"32", 32}, {"0", 0}}) {
        EXPECT_EQ(Mit_Zeile(136, Text), 0);
        EXPECT_EQ(Eprommer_Version, Soll);
    }
    for (const auto& [Text, Soll] : {std::pair{"10", 10}, {"11", 11}, {"12", 12}, {"0", 0}}) {
        EXPECT_EQ(Mit_Zeile(139, Text), 0);
        EXPECT_EQ(Tessel2_Version, Soll);
    }
    for (const char* Text : {"1", "29", "33", "-1", "x"}) {
        EXPECT_EQ(Mit_Zeile(136, Text), 1);
        EXPECT_EQ(Eprommer_Version, 0) << Text;
        EXPECT_EQ(Mit_Zeile(139, Text), 1);
        EXPECT_EQ(Tessel2_Version, 0) << Text;
    }
}

TEST_F(Einstellungen, table_entries_have_16_bits)
{
    EXPECT_EQ(Mit_Zeile(7, "32767"), 0);
    EXPECT_EQ(Fenster_Wert(0, 1, Feld::Oben), 32767);
    EXPECT_EQ(Mit_Zeile(7, "-32768"), 0);
    EXPECT_EQ(Fenster_Wert(0, 1, Feld::Oben), -32768);
    for (const char* Text : {"32768", "-32769", "x"}) {
        EXPECT_EQ(Mit_Zeile(7, Text), 1);
        EXPECT_EQ(Fenster_Wert(0, 1, Feld::Oben), 0) << Text;
    }
}

TEST_F(Einstellungen, a_font_size_is_taken_from_0_to_200)
{
    for (const auto& [Text, Soll] : {std::pair{"0", 0.0}, {"200", 200.0}, {"-0", 0.0}, {"", 0.0}}) {
        EXPECT_EQ(Mit_Zeile(116, Text), 0) << Text;
        EXPECT_EQ(Schriften[Schrift_Edit].Groesse, Soll) << Text;
    }
    for (const char* Text : {"200.5", "-1", "1e300", "1e999", "nan", "inf", "gross"}) {
        EXPECT_EQ(Mit_Zeile(116, Text), 1) << Text;
        EXPECT_EQ(Schriften[Schrift_Edit].Groesse, 0) << Text;
    }
}

TEST_F(Einstellungen, a_colour_outside_24_bits_is_white)
{
    for (const char* Text : {"16777216", "-1", "x"}) {
        EXPECT_EQ(Mit_Zeile(138, Text), 1);
        EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF) << Text;
    }
    EXPECT_EQ(Mit_Zeile(138, "16777215"), 0);
    EXPECT_EQ(Undo_Max, 49);
}

TEST_F(Einstellungen, a_text_of_4096_bytes_is_taken_and_a_longer_one_is_not)
{
    EXPECT_EQ(Mit_Zeile(3, std::string(4096, 'x')), 0);
    EXPECT_EQ(Letzte_Datei[0].size(), 4096u);
    EXPECT_EQ(Mit_Zeile(3, std::string(4097, 'x')), 1);
    EXPECT_EQ(Letzte_Datei[0], "");
}

TEST_F(Einstellungen, a_text_with_control_characters_is_not_taken)
{
    EXPECT_EQ(Mit_Zeile(3, std::string("/a\0b", 4)), 1);
    EXPECT_EQ(Letzte_Datei[0], "");
    EXPECT_EQ(Mit_Zeile(3, "/a\tb"), 1);
    EXPECT_EQ(Letzte_Datei[0], "");
}

TEST_F(Einstellungen, a_language_other_than_D_and_E_stays_as_it_is)
{
    EXPECT_EQ(Mit_Zeile(1, "Klingonisch"), 0);
    EXPECT_EQ(Sprache, "Klingonisch");
}

TEST_F(Einstellungen, a_path_with_a_line_end_does_not_move_the_lines_behind_it)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    Letzte_Datei[1] = "/mit\nUmbruch.asm";
    Einstellungen_Lesen(Einstellungen_Schreiben());
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{"/a.asm", "", "/c.bin"}));
    EXPECT_EQ(Port_Basis, 632);
}

// --- settings of our own ---

TEST_F(Einstellungen, a_file_of_142_lines_is_complete)
{
    EXPECT_EQ(Einstellungen_Lesen(Zu_Text(Volle_Datei())), 0);
    EXPECT_EQ(Port_Art, "");
    EXPECT_EQ(Zoom, 100);
}

TEST_F(Einstellungen, further_settings_follow_by_name)
{
    const std::string Text = Zu_Text(Volle_Datei());
    EXPECT_EQ(Einstellungen_Lesen(Text + "Zoom=150\r\nPort_Art=ppdev:/dev/parport0\r\n"), 0);
    EXPECT_EQ(Port_Art, "ppdev:/dev/parport0");
    EXPECT_EQ(Zoom, 150);
    EXPECT_EQ(Geschriebene_Zeile(143), "Port_Art=ppdev:/dev/parport0");
    EXPECT_EQ(Geschriebene_Zeile(144), "Zoom= 150 ");
}

TEST_F(Einstellungen, the_zoom_is_drawn_into_its_range)
{
    const std::string Text = Zu_Text(Volle_Datei());
    for (const auto& [Zeile, Soll] :
         {std::pair{"Zoom=0", 25}, {"Zoom=401", 400}, {"Zoom=x", 100}}) {
        Einstellungen_Lesen(Text + Zeile);
        EXPECT_EQ(Zoom, Soll) << Zeile;
    }
}

TEST_F(Einstellungen, the_place_of_the_help_window_comes_back)
{
    const std::string Text = Zu_Text(Volle_Datei());
    EXPECT_EQ(Einstellungen_Lesen(Text + "Hilfe=-5 70 400 300\r\n"), 0);
    EXPECT_EQ(Hilfe_Lage(), (Lage_T{-5, 70, 400, 300}));
    EXPECT_EQ(Geschriebene_Zeile(146), "Hilfe=-5 70 400 300");
    EXPECT_EQ(Einstellungen_Lesen(Text + "Hilfe=\r\n"), 0);
    EXPECT_EQ(Hilfe_Lage(), Lage_T{});
    EXPECT_EQ(Geschriebene_Zeile(146), "Hilfe=");
    EXPECT_EQ(Einstellungen_Lesen(Text + "Hilfe=99999 -99999 1 1\r\n"), 0);
    EXPECT_EQ(Hilfe_Lage(), (Lage_T{32767, -32768, 1, 1}));
    for (const char* Schlecht : {"1 2 3", "a", "1 2 3 x", "99999999999 1 1 1", "1;2;3;4"}) {
        EXPECT_EQ(Einstellungen_Lesen(Text + "Hilfe=" + Schlecht + "\r\n"), 1) << Schlecht;
        EXPECT_EQ(Hilfe_Lage(), Lage_T{}) << Schlecht;
    }
}

TEST_F(Einstellungen, unknown_settings_are_kept_in_their_order)
{
    const std::string Text = Zu_Text(Volle_Datei());
    EXPECT_EQ(Einstellungen_Lesen(Text + "Neues=1\r\nZoom=150\r\nAnderes=a=b\r\n"), 0);
    EXPECT_EQ(Geschriebene_Zeile(147), "Neues=1");
    EXPECT_EQ(Geschriebene_Zeile(148), "Anderes=a=b");
}

TEST_F(Einstellungen, lines_behind_that_are_no_settings_go)
{
    const std::string Text = Zu_Text(Volle_Datei());
    EXPECT_EQ(Einstellungen_Lesen(Text + "Unfug\r\n=3\r\n\r\n" + std::string(5000, 'n') + "=1\r\n"),
              3);
    EXPECT_EQ(In_Zeilen(Einstellungen_Schreiben()).size(), 146u);
}

TEST_F(Einstellungen, at_most_100_unknown_settings_are_kept)
{
    std::string Text = Zu_Text(Volle_Datei());
    for (int i = 0; i < 101; ++i)
        Text += "Neu" + std::to_string(i) + "=1\r\n";
    Einstellungen_Lesen(Text);
    EXPECT_EQ(Fremde_Zeilen.size(), 100u);
    EXPECT_EQ(Fremde_Zeilen.back(), "Neu99=1");
}

// --- the file ---

TEST_F(Einstellungen, the_first_start_has_its_values)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    Erststart_Werte();
    EXPECT_EQ(Sprache, "D");
    EXPECT_EQ(Start_Verzeichnis, "Erststart");
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{}));
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_EQ(Port_Basis, 888);
    EXPECT_EQ(Undo_Max, 99);
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    EXPECT_TRUE(C_Brenner && Lade_Letzte && No_FF && C_keine_TAB_SM && O_MOV_ZQ);
    EXPECT_TRUE(Autosave_Zeitlich);
    EXPECT_FALSE(Zahlendeutung || C_keine_US_SM || Autosave_Assemblieren);
    EXPECT_EQ(Fenster_Wert(0, 1, Feld::Sichtbar), 0);
    EXPECT_EQ(Schriften[Schrift_Edit], Schrift_T{});
}

TEST_F(Einstellungen, without_a_file_the_language_stays)
{
    EXPECT_EQ(Einstellungen_Pruefen(), Einstellungs_Lage::Fehlt);
    EXPECT_EQ(Sprache, "E");
}

TEST_F(Einstellungen, the_file_of_two_lines_is_that_of_a_first_start)
{
    Sprache = "D";
    EXPECT_TRUE(Erststart_Datei_Schreiben());
    EXPECT_EQ(Inhalt(), "D\r\nErststart\r\n");
    Sprache = "E";
    EXPECT_EQ(Einstellungen_Pruefen(), Einstellungs_Lage::Erststart);
    EXPECT_EQ(Sprache, "D");
}

TEST_F(Einstellungen, a_file_with_another_second_line_is_complete)
{
    for (const char* Text : {"D\n/home\n", "D\nerststart\n", "D\n", "D\n\nErststart\n"}) {
        Ablegen(Text);
        Sprache = "E";
        EXPECT_EQ(Einstellungen_Pruefen(), Einstellungs_Lage::Vollstaendig) << Text;
        EXPECT_EQ(Sprache, "D");
    }
    Ablegen("");
    EXPECT_EQ(Einstellungen_Pruefen(), Einstellungs_Lage::Vollstaendig);
}

TEST_F(Einstellungen, what_was_saved_is_loaded)
{
    Einstellungen_Lesen(Zu_Text(Volle_Datei()));
    std::string Grund;
    EXPECT_TRUE(Einstellungen_Sichern(Grund));
    Optionen_Zuruecksetzen();
    Fensterlage = {};
    Einstellungen_Laden();
    EXPECT_EQ(Undo_Max, 49);
    EXPECT_EQ(Fenster_Wert(1, 10, Feld::Breite), 1099);
    EXPECT_TRUE(Box.Hinweise.empty());
}

TEST_F(Einstellungen, a_failed_save_keeps_the_old_file_and_tells_the_reason)
{
    fs::create_directory(Datei());
    std::string Grund;
    EXPECT_FALSE(Einstellungen_Sichern(Grund));
    EXPECT_EQ(Grund, "it is a folder");
    EXPECT_TRUE(fs::is_directory(Datei()));
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Einstellungen, a_language_that_can_not_be_kept_is_told_in_both_languages)
{
    fs::create_directory(Datei());
    EXPECT_FALSE(Erststart_Datei_Schreiben());
    Sprache = "D";
    EXPECT_FALSE(Erststart_Datei_Schreiben());
    EXPECT_EQ(Box.Hinweise,
              (std::vector<std::string>{
                  "Varnholt.ini could not be written: it is a folder",
                  "Varnholt.ini konnte nicht geschrieben werden: das ist ein Ordner"}));
}

TEST_F(Einstellungen, a_file_that_can_not_be_read_leaves_the_values_of_a_first_start)
{
    fs::create_directory(Datei());
    EXPECT_EQ(Einstellungen_Pruefen(), Einstellungs_Lage::Vollstaendig);
    Undo_Max = 5;
    Einstellungen_Laden();
    EXPECT_EQ(Undo_Max, 99);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), -1);
    Sprache = "D";
    Einstellungen_Laden();
    ASSERT_EQ(Box.Hinweise.size(), 2u);
    EXPECT_TRUE(Box.Hinweise[0].starts_with("Varnholt.ini could not be read: "));
    EXPECT_TRUE(Box.Hinweise[1].starts_with("Varnholt.ini konnte nicht gelesen werden: "));
}

TEST_F(Einstellungen, a_damaged_file_is_told_in_both_languages)
{
    Ablegen("E\n/home\n");
    Einstellungen_Laden();
    Ablegen("D\n/home\n");
    Einstellungen_Laden();
    EXPECT_EQ(Box.Hinweise,
              (std::vector<std::string>{
                  "Varnholt.ini is damaged: 140 lines are missing or of no use.",
                  "Varnholt.ini ist beschädigt: 140 Zeilen fehlen oder sind unbrauchbar."}));
}

TEST_F(Einstellungen, of_a_huge_file_1_MiB_is_taken)
{
    Ablegen(Zu_Text(Volle_Datei()) + "Neues=1\r\n" + std::string(3u << 20, 'x'));
    EXPECT_EQ(Einstellungen_Pruefen(), Einstellungs_Lage::Vollstaendig);
    Einstellungen_Laden();
    EXPECT_EQ(Undo_Max, 49);
    EXPECT_EQ(Fremde_Zeilen, std::vector<std::string>{"Neues=1"});
    EXPECT_LT(Einstellungen_Schreiben().size(), Einstellungen_Hoechstens);
}

TEST_F(Einstellungen, binary_junk_ends_in_values_within_their_ranges)
{
    std::string Text;
    for (unsigned i = 0, z = 12345; i < 100000; ++i, z = z * 1103515245 + 12345)
        Text += static_cast<char>(z >> 16 & 0xFF);
    Einstellungen_Lesen(Text);
    EXPECT_GE(Undo_Max, -1);
    EXPECT_LE(Undo_Max, 998);
    const std::string Eins = Einstellungen_Schreiben();
    Einstellungen_Lesen(Eins);
    EXPECT_EQ(Einstellungen_Schreiben(), Eins);
}

} // namespace
} // namespace varnholt::test
