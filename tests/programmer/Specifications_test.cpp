// The parser of the device database and the selection of a device.
#include "language/Val.h"
#include "programmer/Specifications.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "support/scripted_platform.h"

#include <rapidcheck/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {
namespace {

class Spec_Welt : public test::Welt {
protected:
    static const Geraet_T& Geraet(int Nummer)
    {
        return Geraete_Tabelle.at(static_cast<std::size_t>(Nummer));
    }
    static const std::string& Menue(int Nummer)
    {
        return Geraete.Menue_Texte.at(static_cast<std::size_t>(Nummer));
    }
    static std::int32_t Groesse(int Nummer)
    {
        return IC_Groesse.at(static_cast<std::size_t>(Nummer + 1));
    }
    // A device that needs no record.
    static Geraet_T& Setzen(int Nummer, const std::string& Name)
    {
        Geraet_T& g = Geraete_Tabelle.at(static_cast<std::size_t>(Nummer));
        g.Name      = Name;
        return g;
    }
    std::vector<std::string> Texte() const
    {
        std::vector<std::string> Alle;
        for (const Meldung_T& m : Box.Meldungen)
            Alle.push_back(m.Text);
        return Alle;
    }
};

std::string Satz(const std::string& Name, const std::string& Zeilen)
{
    return "NAME: " + Name + "\r\n" + Zeilen + "END\r\n";
}

std::string Viele(int Anzahl, int Gruppe)
{
    std::string Text;
    for (int i = 0; i < Anzahl; ++i)
        Text += Satz("D" + std::to_string(i), "_GROUP:" + std::to_string(Gruppe) + "\r\n");
    return Text;
}

const std::string Voller_Satz = "NAME: X1\r\n_GROUP:2\r\n_MENU-NAME:The X1\r\n_BYTES:32768\r\n"
                                "_R-TYP:27C256\r\n_P-TYP:27C512\r\n_E-TYP:UV\r\n_L-TYP:89SII\r\n"
                                "_R-TIMING:10\r\n_P-TIMING:100\r\n_PAGEBYTES:64\r\n"
                                "_E-JUMPER0:1\r\n_E-JUMPER1:2\r\n_E-JUMPER2:3\r\n_E-JUMPER3:1\r\n"
                                "_E-JUMPER4:2\r\n_M-JUMPER1:1\r\n_PROGRAMMER:3\r\nEND\r\n";

void Fuenf_Jumper_Erwarten(const Geraet_T& g)
{
    EXPECT_EQ(g.E_Jumper, (std::array<int, 5>{1, 2, 3, 1, 2}));
}

void Typen_Erwarten(const Geraet_T& g)
{
    EXPECT_EQ(g.R_Typ, "27C256");
    EXPECT_EQ(g.P_Typ, "27C512");
    EXPECT_EQ(g.E_Typ, "UV");
    EXPECT_EQ(g.L_Typ, "89SII");
}

void Zahlen_Erwarten(const Geraet_T& g)
{
    EXPECT_EQ(g.Bytes, 32768);
    EXPECT_EQ(g.R_Timing, 10);
    EXPECT_EQ(g.P_Timing, 100);
    EXPECT_EQ(g.Seiten_Bytes, 64);
    EXPECT_EQ(g.M_Jumper1, 1);
    EXPECT_EQ(g.Programmer, 3);
}

// --- Keys ---

TEST_F(Spec_Welt, Every_key_of_a_record_fills_its_field)
{
    Spec_Auswerten(Voller_Satz);
    EXPECT_EQ(Geraet(60).Name, "X1");
    EXPECT_EQ(Geraet(60).Menue_Name, "THE X1");
    Typen_Erwarten(Geraet(60));
    Zahlen_Erwarten(Geraet(60));
    Fuenf_Jumper_Erwarten(Geraet(60));
    EXPECT_EQ(Groesse(60), 32768);
}

TEST_F(Spec_Welt, A_record_that_says_nothing_leaves_its_fields_empty_or_zero)
{
    Spec_Auswerten(Satz("BARE", "_GROUP:0\r\n"));
    EXPECT_EQ(Geraet(0).Name, "BARE");
    EXPECT_EQ(Geraet(0).Menue_Name, "");
    EXPECT_EQ(Geraet(0).R_Typ + Geraet(0).P_Typ + Geraet(0).E_Typ + Geraet(0).L_Typ, "");
    EXPECT_EQ(Geraet(0).Bytes, 0);
    EXPECT_EQ(Geraet(0).E_Jumper, (std::array<int, 5>{}));
    EXPECT_EQ(Groesse(0), 0);
}

TEST_F(Spec_Welt, Keys_and_values_are_read_without_regard_to_case)
{
    Spec_Auswerten("name: m28c256\n_group:1\n_r-typ:28c256\n_e-jumper3:2\nend\n");
    EXPECT_EQ(Geraet(30).Name, "M28C256");
    EXPECT_EQ(Geraet(30).R_Typ, "28C256");
    EXPECT_EQ(Geraet(30).E_Jumper[3], 2);
}

TEST_F(Spec_Welt, Letters_above_7Fh_get_upper_case_by_Windows_1252_and_are_kept_as_UTF_8)
{
    Spec_Auswerten("NAME: ger\xE4t\x9A\r\n_GROUP:0\r\n_R-TYP:\xFF\r\nEND\r\n");
    EXPECT_EQ(Geraet(0).Name, "GERÄTŠ");
    EXPECT_EQ(Menue(0), "GERÄTŠ");
    EXPECT_EQ(Geraet(0).R_Typ, "Ÿ");
    EXPECT_EQ(Geraet_Suchen("gerätš"), 0);
}

TEST_F(Spec_Welt, A_blank_behind_the_colon_belongs_to_a_text_value)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_R-TYP: 27C64 \r\n_MENU-NAME: A B\r\n"));
    EXPECT_EQ(Geraet(0).R_Typ, " 27C64 ");
    EXPECT_EQ(Geraet(0).Menue_Name, " A B");
}

TEST_F(Spec_Welt, A_name_loses_one_blank_at_either_end_and_no_more)
{
    Spec_Auswerten("NAME:  A  \r\n_GROUP:0\r\nEND\r\nNAME:B\r\n_GROUP:0\r\nEND\r\n");
    EXPECT_EQ(Geraet(0).Name, " A ");
    EXPECT_EQ(Geraet(1).Name, "B");
}

TEST_F(Spec_Welt, Jumper_keys_other_than_0_to_4_are_ignored)
{
    Spec_Auswerten(Satz("A",
                        "_GROUP:0\r\n_E-JUMPER5:1\r\n_E-JUMPER:2\r\n_E-JUMPER04:3\r\n"
                        "_E-JUMPER/:1\r\n_E-JUMPER\r\n_E-JUMPER1\r\n_M-JUMPER2:1\r\n"));
    EXPECT_EQ(Geraet(0).E_Jumper, (std::array<int, 5>{}));
    EXPECT_EQ(Geraet(0).M_Jumper1, 0);
}

TEST_F(Spec_Welt, Unknown_lines_and_keys_behind_a_blank_are_ignored_in_a_record)
{
    Spec_Auswerten(
        Satz("A", "_GROUP:0\r\n; _BYTES:1\r\n _BYTES:2\r\n\r\n_COLOUR:3\r\nBYTES:4\r\n"));
    EXPECT_EQ(Geraet(0).Bytes, 0);
    EXPECT_TRUE(Box.Hinweise.empty());
}

TEST_F(Spec_Welt, The_last_of_two_equal_keys_holds)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_BYTES:1\r\n_BYTES:2\r\n_R-TYP:27\r\n_R-TYP:28\r\n"));
    EXPECT_EQ(Geraet(0).Bytes, 2);
    EXPECT_EQ(Geraet(0).R_Typ, "28");
}

TEST_F(Spec_Welt, CR_LF_and_LF_and_CR_end_a_line_and_the_last_may_have_none)
{
    Spec_Auswerten("NAME: A\r_GROUP:0\n_BYTES:1\r\nEND\rNAME: B\n_GROUP:0\r_BYTES:7");
    EXPECT_EQ(Geraet(0).Bytes, 1);
    EXPECT_EQ(Geraet(1).Bytes, 7);
}

// --- Numbers ---

struct Zahl_T {
    std::string_view Text;
    std::int32_t     Wert;
};

class Zahlen : public ::testing::TestWithParam<Zahl_T> {};

TEST_P(Zahlen, Val_reads_what_a_text_begins_with)
{
    EXPECT_EQ(Val(GetParam().Text), GetParam().Wert);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Spec, Zahlen, ::testing::Values(
    Zahl_T{"", 0}, Zahl_T{"   ", 0}, Zahl_T{"X", 0}, Zahl_T{"-", 0}, Zahl_T{"+", 0}, Zahl_T{"--1", 0},
    Zahl_T{"0", 0}, Zahl_T{"7", 7}, Zahl_T{" \t 7", 7}, Zahl_T{"+7", 7}, Zahl_T{"-7", -7},
    Zahl_T{"12us", 12}, Zahl_T{"12.9", 13}, Zahl_T{"2.5", 2}, Zahl_T{"3.5", 4}, Zahl_T{"2.5E2", 250}, Zahl_T{"1D2", 100},
    Zahl_T{"&H40", 64}, Zahl_T{"&h1f us", 31}, Zahl_T{"&O17", 15}, Zahl_T{"&HFFFFFFFFF", 2147483647}, Zahl_T{"&H", 0},
    Zahl_T{"32 768", 32768}, Zahl_T{"0012", 12}, Zahl_T{"1:", 1}, Zahl_T{"- 1", -1},
    Zahl_T{"32767", 32767}, Zahl_T{"32768", 32768}, Zahl_T{"70000", 70000},
    Zahl_T{"2147483647", 2147483647}, Zahl_T{"2147483648", 2147483647},
    Zahl_T{"-2147483648", -2147483647 - 1}, Zahl_T{"-2147483649", -2147483647 - 1},
    Zahl_T{"99999999999999999999999999999999", 2147483647},
    Zahl_T{"-99999999999999999999999999999999", -2147483647 - 1}));
// clang-format on

RC_GTEST_PROP(Val_Eigenschaft, Val_takes_back_what_a_number_prints, (std::int32_t n))
{
    RC_ASSERT(Val(" " + std::to_string(n) + " us") == n);
}

TEST_F(Spec_Welt, A_number_beyond_16_bits_is_kept)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_P-TIMING:100000\r\n_R-TIMING:99999999999\r\n"));
    EXPECT_EQ(Geraet(0).P_Timing, 100000);
    EXPECT_EQ(Geraet(0).R_Timing, 2147483647);
}

TEST_F(Spec_Welt, A_size_up_to_the_image_is_kept)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_BYTES:524288\r\n") +
                   Satz("B", "_GROUP:0\r\n_BYTES:0\r\n"));
    EXPECT_EQ(Geraet(0).Bytes, 524288);
    EXPECT_EQ(Geraet(1).Bytes, 0);
    EXPECT_TRUE(Box.Hinweise.empty());
}

TEST_F(Spec_Welt, A_size_beyond_the_image_is_bounded_with_a_notice)
{
    Spec_Auswerten(Satz("BIG", "_GROUP:0\r\n_BYTES:524289\r\n"));
    EXPECT_EQ(Geraet(0).Bytes, 524288);
    EXPECT_EQ(Groesse(0), 524288);
    ASSERT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Box.Hinweise[0], "Spec.ini: device 'BIG' can't have 524289 bytes, taken as 524288.");
}

TEST_F(Spec_Welt, A_size_below_zero_is_bounded_with_a_notice)
{
    Sprache = "D";
    Spec_Auswerten(Satz("NEG", "_GROUP:0\r\n_BYTES:-1\r\n"));
    EXPECT_EQ(Geraet(0).Bytes, 0);
    ASSERT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Box.Hinweise[0],
              "Spec.ini: Das Bauteil 'NEG' kann keine -1 Bytes haben, angenommen: 0.");
}

// --- Groups ---

TEST_F(Spec_Welt, A_group_line_names_the_menu_of_its_group)
{
    Spec_Auswerten("GROUP_NAME#0 Eprom\r\nGROUP_NAME#9 nine\r\nGROUP_NAME#10 ten\r\n"
                   "GROUP_NAME#19 last\r\n");
    EXPECT_EQ(Geraete.Gruppen_Namen[0], "EPROM");
    EXPECT_EQ(Geraete.Gruppen_Namen[9], "NINE");
    EXPECT_EQ(Geraete.Gruppen_Namen[10], "TEN");
    EXPECT_EQ(Geraete.Gruppen_Namen[19], "LAST");
}

TEST_F(Spec_Welt, Any_other_group_number_names_the_last_group)
{
    Spec_Auswerten("GROUP_NAME#20 twenty\r\n");
    EXPECT_EQ(Geraete.Gruppen_Namen[19], "TWENTY");
    Spec_Auswerten("GROUP_NAME#99 high\r\n");
    EXPECT_EQ(Geraete.Gruppen_Namen[19], "HIGH");
    Spec_Auswerten("GROUP_NAME#-1low\r\n"); // 13 characters go with a number below 10
    EXPECT_EQ(Geraete.Gruppen_Namen[19], "LOW");
}

TEST_F(Spec_Welt, A_group_name_drops_13_or_14_characters_and_one_blank_at_either_end)
{
    Spec_Auswerten("GROUP_NAME#1:  A  \r\nGROUP_NAME#12= B \r\nGROUP_NAME#03 C\r\n");
    EXPECT_EQ(Geraete.Gruppen_Namen[1], " A ");
    EXPECT_EQ(Geraete.Gruppen_Namen[12], "B");
    EXPECT_EQ(Geraete.Gruppen_Namen[3], "C");
}

TEST_F(Spec_Welt, A_group_line_that_ends_early_gives_an_empty_name)
{
    for (const char* Zeile : {"GROUP_NAME#", "GROUP_NAME#1", "GROUP_NAME#12", "GROUP_NAME#12 "})
        Spec_Auswerten(Zeile);
    for (const std::string& Name : Geraete.Gruppen_Namen)
        EXPECT_EQ(Name, "");
}

TEST_F(Spec_Welt, Group_and_record_lines_are_recognised_at_the_start_of_the_line_only)
{
    Spec_Auswerten(" GROUP_NAME#1 A\r\n;GROUP_NAME#1 A\r\n NAME: A\r\n_GROUP:0\r\nEND\r\n");
    EXPECT_EQ(Geraete.Gruppen_Namen[1], "");
    EXPECT_EQ(Geraet(0).Name, "");
}

TEST_F(Spec_Welt, Inside_a_record_group_lines_and_name_lines_mean_nothing)
{
    Spec_Auswerten("NAME: A\r\n_GROUP:0\r\nGROUP_NAME#1 G\r\nNAME: B\r\n_BYTES:5\r\nEND\r\n");
    EXPECT_EQ(Geraete.Gruppen_Namen[1], "");
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(0).Bytes, 5);
}

TEST_F(Spec_Welt, Keys_outside_a_record_mean_nothing)
{
    Spec_Auswerten("_GROUP:0\r\n_BYTES:5\r\nEND\r\n" + Satz("A", "_GROUP:0\r\n") + "_BYTES:6\r\n");
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(0).Bytes, 0);
    EXPECT_EQ(Geraet(1).Name, "");
}

TEST_F(Spec_Welt, Any_line_that_begins_with_END_ends_the_record)
{
    Spec_Auswerten("NAME: A\r\n_GROUP:0\r\nendless\r\n_BYTES:5\r\nGROUP_NAME#1 G\r\n");
    EXPECT_EQ(Geraet(0).Bytes, 0);
    EXPECT_EQ(Geraete.Gruppen_Namen[1], "G");
}

// --- Places in the table ---

TEST_F(Spec_Welt, The_device_number_is_group_times_30_plus_position)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n") + Satz("B", "_GROUP:19\r\n") +
                   Satz("C", "_GROUP:0\r\n") + Satz("D", "_GROUP:19\r\n"));
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(1).Name, "C");
    EXPECT_EQ(Geraet(570).Name, "B");
    EXPECT_EQ(Geraet(571).Name, "D");
    EXPECT_EQ(Geraete.Gruppen_Belegt[0], 2);
    EXPECT_EQ(Geraete.Gruppen_Belegt[19], 2);
}

TEST_F(Spec_Welt, A_group_holds_30_devices_and_the_next_is_left_out_with_a_notice)
{
    Spec_Auswerten(Viele(31, 0) + Satz("N", "_GROUP:1\r\n"));
    EXPECT_EQ(Geraet(29).Name, "D29");
    EXPECT_EQ(Geraet(30).Name, "N");
    EXPECT_EQ(Geraete.Gruppen_Belegt[0], 30);
    ASSERT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Box.Hinweise[0], "Spec.ini: device 'D30' was left out: group 0 is full.");
}

TEST_F(Spec_Welt, A_full_last_group_takes_no_further_device)
{
    Sprache = "D";
    Spec_Auswerten(Viele(31, 19));
    EXPECT_EQ(Geraet(599).Name, "D29");
    EXPECT_EQ(Geraet(600).Name, "");
    ASSERT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Box.Hinweise[0],
              "Spec.ini: Das Bauteil 'D30' wurde ausgelassen: Die Gruppe 19 ist voll.");
}

TEST_F(Spec_Welt, A_group_outside_0_to_19_drops_the_record_with_a_notice)
{
    Spec_Auswerten(Satz("OLD", "_GROUP:0\r\n_BYTES:1\r\n") +
                   Satz("X", "_GROUP:20\r\n_BYTES:5\r\n_MENU-NAME:M\r\n_EQUALS:NO\r\n"));
    EXPECT_EQ(Geraet(0).Name, "OLD");
    EXPECT_EQ(Geraet(0).Bytes, 1);
    EXPECT_EQ(Menue(0), "OLD");
    EXPECT_EQ(Geraet(600).Name, "");
    ASSERT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Box.Hinweise[0], "Spec.ini: device 'X' was left out: there is no group 20.");
}

TEST_F(Spec_Welt, A_group_below_zero_drops_the_record_with_a_German_notice)
{
    Sprache = "D";
    Spec_Auswerten(Satz("X", "_GROUP:-1\r\n_BYTES:5\r\n"));
    EXPECT_EQ(Geraet(0).Bytes, 0);
    ASSERT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Box.Hinweise[0],
              "Spec.ini: Das Bauteil 'X' wurde ausgelassen: Es gibt keine Gruppe -1.");
}

TEST_F(Spec_Welt, The_record_behind_a_dropped_one_is_read_as_usual)
{
    Spec_Auswerten(Satz("X", "_GROUP:77\r\n_BYTES:5\r\n") + Satz("A", "_GROUP:0\r\n_BYTES:9\r\n"));
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(0).Bytes, 9);
}

TEST_F(Spec_Welt, Notices_end_after_ten_with_a_word_on_the_rest)
{
    Spec_Auswerten(Viele(1000, 20));
    ASSERT_EQ(Box.Hinweise.size(), 11U);
    EXPECT_EQ(Box.Hinweise.back(), "Spec.ini: further notices are not shown.");
    Box.Hinweise.clear();
    Sprache = "D";
    Spec_Auswerten(Viele(10, 20));
    EXPECT_EQ(Box.Hinweise.size(), 10U);
    Box.Hinweise.clear();
    Spec_Auswerten(Viele(11, 20));
    EXPECT_EQ(Box.Hinweise.back(), "Spec.ini: weitere Hinweise werden nicht gezeigt.");
}

TEST_F(Spec_Welt, A_record_without_a_group_writes_over_the_last_number)
{
    Spec_Auswerten(Satz("A", "_GROUP:3\r\n_BYTES:5\r\n_R-TYP:27\r\n") +
                   Satz("B", "_BYTES:6\r\n_MENU-NAME:BB\r\n"));
    EXPECT_EQ(Geraet(90).Name, "A");
    EXPECT_EQ(Geraet(90).Bytes, 6);
    EXPECT_EQ(Geraet(90).R_Typ, "27");
    EXPECT_EQ(Geraet(90).Menue_Name, "BB");
    EXPECT_EQ(Menue(90), "BB");
    EXPECT_EQ(Geraete.Gruppen_Belegt[3], 1);
}

TEST_F(Spec_Welt, A_first_record_without_a_group_writes_to_number_0)
{
    Spec_Auswerten(Satz("A", "_MENU-NAME:M\r\n_BYTES:6\r\n"));
    EXPECT_EQ(Geraet(0).Name, "");
    EXPECT_EQ(Geraet(0).Menue_Name, "M");
    EXPECT_EQ(Geraet(0).Bytes, 6);
    EXPECT_EQ(Menue(0), "");
    EXPECT_EQ(Geraete.Gruppen_Belegt[0], 0);
}

// --- Menu ---

TEST_F(Spec_Welt, The_menu_shows_the_name_where_there_is_no_menu_name)
{
    Spec_Auswerten(Satz("27C64", "_GROUP:0\r\n"));
    EXPECT_EQ(Menue(0), "27C64");
    IC_Nummer = 0;
    EXPECT_EQ(IC_Menue_Name(), "27C64");
    EXPECT_EQ(Geraet(0).Menue_Name, "");
}

TEST_F(Spec_Welt, A_menu_name_is_written_over_the_entry_of_its_device)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n") + Satz("B", "_GROUP:0\r\n_MENU-NAME:b (x)\r\n") +
                   Satz("C", "_GROUP:0\r\n"));
    EXPECT_EQ(Menue(0), "A");
    EXPECT_EQ(Menue(1), "B (X)");
    EXPECT_EQ(Menue(2), "C");
    EXPECT_EQ(Geraete.Gruppen_Belegt[0], 3);
    IC_Nummer = 1;
    EXPECT_EQ(IC_Menue_Name(), "B (X)");
}

TEST_F(Spec_Welt, Without_a_selection_there_is_no_menu_name)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n"));
    EXPECT_EQ(IC_Menue_Name(), "");
    IC_Nummer = Geraete_Anzahl;
    EXPECT_EQ(IC_Menue_Name(), "");
}

TEST_F(Spec_Welt, A_device_in_test_keeps_its_mark_in_the_menu_only)
{
    Spec_Auswerten(Satz("28C17 [Test Phase]", "_GROUP:0\r\n"));
    EXPECT_EQ(Geraet(0).Name, "28C17");
    EXPECT_EQ(Menue(0), "28C17 [TEST PHASE]");
}

TEST_F(Spec_Welt, A_device_in_test_can_be_selected_like_any_other)
{
    Spec_Auswerten(Satz("28C17 [TEST PHASE]", "_GROUP:0\r\n_PROGRAMMER:1\r\n"));
    IC_Waehlen(Geraet_Suchen("28c17"));
    EXPECT_EQ(IC_Nummer, 0);
}

TEST_F(Spec_Welt, The_mark_is_cut_with_the_character_ahead_of_it_and_only_at_the_end)
{
    Spec_Auswerten(Satz("AB[TEST PHASE]", "_GROUP:0\r\n") + Satz("[TEST PHASE]", "_GROUP:0\r\n") +
                   Satz("[TEST PHASE] C", "_GROUP:0\r\n"));
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(1).Name, "");
    EXPECT_EQ(Menue(1), "[TEST PHASE]");
    EXPECT_EQ(Geraet(2).Name, "[TEST PHASE] C");
}

// --- _EQUALS: ---

TEST_F(Spec_Welt, A_copy_takes_everything_but_the_names_from_its_model)
{
    Spec_Auswerten(Voller_Satz + Satz("X2", "_GROUP:4\r\n_EQUALS:X1\r\n"));
    EXPECT_EQ(Geraet(120).Name, "X2");
    EXPECT_EQ(Geraet(120).Menue_Name, "");
    EXPECT_EQ(Menue(120), "X2");
    Typen_Erwarten(Geraet(120));
    Zahlen_Erwarten(Geraet(120));
    Fuenf_Jumper_Erwarten(Geraet(120));
    EXPECT_EQ(Groesse(120), 32768);
}

TEST_F(Spec_Welt, A_copy_keeps_its_own_menu_name)
{
    Spec_Auswerten(Voller_Satz + Satz("X2", "_GROUP:4\r\n_MENU-NAME:Mine\r\n_EQUALS:X1\r\n"));
    EXPECT_EQ(Geraet(120).Menue_Name, "MINE");
    EXPECT_EQ(Menue(120), "MINE");
}

TEST_F(Spec_Welt, A_key_behind_the_copy_changes_the_copy_only)
{
    Spec_Auswerten(Voller_Satz + Satz("X2", "_GROUP:4\r\n_EQUALS:X1\r\n_BYTES:16\r\n"));
    EXPECT_EQ(Geraet(120).Bytes, 16);
    EXPECT_EQ(Geraet(60).Bytes, 32768);
    EXPECT_EQ(Groesse(60), 32768);
}

TEST_F(Spec_Welt, A_model_in_test_is_found_under_its_bare_name)
{
    Spec_Auswerten(Satz("A [TEST PHASE]", "_GROUP:0\r\n_BYTES:8\r\n") +
                   Satz("B", "_GROUP:0\r\n_EQUALS:A\r\n") +
                   Satz("C", "_GROUP:0\r\n_EQUALS:A [TEST PHASE]\r\n"));
    EXPECT_EQ(Geraet(1).Bytes, 8);
    EXPECT_EQ(Geraet(2).Name, "Error in Spec.ini");
}

TEST_F(Spec_Welt, The_first_of_two_models_of_one_name_wins)
{
    Spec_Auswerten(Satz("M", "_GROUP:5\r\n_BYTES:1\r\n") + Satz("M", "_GROUP:2\r\n_BYTES:2\r\n") +
                   Satz("C", "_GROUP:7\r\n_EQUALS:M\r\n"));
    EXPECT_EQ(Geraet(210).Bytes, 2); // by device number, not by place in the file
}

TEST_F(Spec_Welt, An_unknown_model_turns_the_name_into_an_error)
{
    Spec_Auswerten(Satz("C", "_GROUP:0\r\n_EQUALS:M\r\n_BYTES:7\r\n"));
    EXPECT_EQ(Geraet(0).Name, "Error in Spec.ini");
    EXPECT_EQ(Menue(0), "C");
    EXPECT_EQ(Geraet(0).Bytes, 7);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Box.Hinweise.empty());
}

TEST_F(Spec_Welt, A_model_further_down_or_behind_a_blank_is_unknown)
{
    Spec_Auswerten(Satz("C", "_GROUP:0\r\n_EQUALS:M\r\n") + Satz("M", "_GROUP:0\r\n") +
                   Satz("D", "_GROUP:0\r\n_EQUALS: M\r\n"));
    EXPECT_EQ(Geraet(0).Name, "Error in Spec.ini");
    EXPECT_EQ(Geraet(2).Name, "Error in Spec.ini");
}

TEST_F(Spec_Welt, The_name_of_a_faulty_record_is_no_model)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_EQUALS:M\r\n_BYTES:3\r\n") +
                   Satz("B", "_GROUP:0\r\n_EQUALS:Error in Spec.ini\r\n"));
    EXPECT_EQ(Geraet(1).Name, "Error in Spec.ini");
    EXPECT_EQ(Geraet(1).Bytes, 0);
    EXPECT_EQ(Geraet_Suchen("ERROR IN SPEC.INI"), 0); // but it can be named
}

TEST_F(Spec_Welt, A_copy_of_itself_changes_nothing)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_BYTES:3\r\n_EQUALS:A\r\n"));
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(0).Bytes, 3);
}

// --- Reading ---

TEST_F(Spec_Welt, A_second_reading_begins_with_an_empty_table_and_keeps_the_selection)
{
    Spec_Auswerten(Viele(3, 0) + "GROUP_NAME#0 G\r\n");
    IC_Nummer = 2;
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n"));
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_EQ(Geraet(1).Name, "");
    EXPECT_EQ(Menue(1), "");
    EXPECT_EQ(Geraete.Gruppen_Namen[0], "");
    EXPECT_EQ(Geraete.Gruppen_Belegt[0], 1);
    EXPECT_EQ(IC_Nummer, 2);
}

TEST_F(Spec_Welt, The_size_without_a_device_is_the_whole_image)
{
    Spec_Auswerten(Voller_Satz);
    EXPECT_EQ(IC_Groesse_Gewaehlt(), 524288);
    IC_Nummer = 60;
    EXPECT_EQ(IC_Groesse_Gewaehlt(), 32768);
}

TEST_F(Spec_Welt, A_line_is_cut_behind_1000_characters)
{
    Spec_Auswerten("NAME:" + std::string(5000, 'a') + "\r\n_GROUP:0\r\nEND\r\n");
    EXPECT_EQ(Geraet(0).Name, std::string(995, 'A'));
}

TEST_F(Spec_Welt, Many_copies_of_a_huge_value_stay_small)
{
    Spec_Auswerten(Satz("M", "_GROUP:0\r\n_R-TYP:" + std::string(3'000'000, 'x') + "\r\n") +
                   Satz("C", "_GROUP:1\r\n_EQUALS:M\r\n"));
    EXPECT_EQ(Geraet(30).R_Typ.size(), 1000U - 7U);
}

RC_GTEST_PROP(Spec_Eigenschaft, Any_lines_leave_a_sound_table, ())
{
    Geraete_Zuruecksetzen();
    const auto Zeilen = *rc::gen::container<std::vector<std::string>>(
        rc::gen::element<std::string>("NAME: A",
                                      "NAME: B [TEST PHASE]",
                                      "NAME:",
                                      "END",
                                      "_GROUP:0",
                                      "_GROUP:19",
                                      "_GROUP:20",
                                      "_GROUP:-3",
                                      "_EQUALS:A",
                                      "_EQUALS:",
                                      "_MENU-NAME:X",
                                      "_BYTES:99999999",
                                      "_E-JUMPER4:3",
                                      "_R-TYP:27",
                                      "GROUP_NAME#99 Q",
                                      "GROUP_NAME#",
                                      "x",
                                      ""));
    std::string Text;
    for (const std::string& Zeile : Zeilen)
        Text += Zeile + "\r\n";
    Spec_Auswerten(Text);
    for (const int n : Geraete.Gruppen_Belegt)
        RC_ASSERT(n >= 0 && n <= Gruppen_Plaetze);
    for (std::size_t i = 0; i < Geraete_Tabelle.size(); ++i)
        RC_ASSERT(IC_Groesse[i + 1] == Geraete_Tabelle[i].Bytes);
    for (std::size_t i = 600; i < Geraete_Tabelle.size(); ++i)
        RC_ASSERT(Geraete_Tabelle[i].Name.empty());
    Geraete_Zuruecksetzen();
}

// --- The file ---

class Spec_Datei : public Spec_Welt {
protected:
    Spec_Datei()
        : Ordner(std::filesystem::path(::testing::TempDir()) /
                 ("spec_" +
                  std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())))
    {
        std::filesystem::create_directories(Ordner);
        Programm_Pfad = Ordner.string() + "/";
    }
    ~Spec_Datei() override
    {
        std::error_code Egal;
        std::filesystem::remove_all(Ordner, Egal);
    }
    void Schreiben(std::string_view Bytes) const
    {
        std::ofstream(Ordner / "Spec.ini", std::ios::binary) << Bytes;
    }
    std::filesystem::path Ordner;
};

const std::string Fehlt_Text = "Die Datei Spec.ini ist nicht vorhanden oder fehlerhaft !";

TEST_F(Spec_Datei, The_file_beside_the_program_is_read)
{
    Schreiben(Voller_Satz);
    Spec_Lesen();
    EXPECT_EQ(Geraet(60).Name, "X1");
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Spec_Datei, The_file_may_be_UTF_8_or_Windows_1252)
{
    Schreiben("NAME: ÄÖ\n_GROUP:0\nEND\n");
    Spec_Lesen();
    EXPECT_EQ(Geraet(0).Name, "ÄÖ");
    Schreiben("NAME: \xE4\xF6\n_GROUP:0\nEND\n");
    Spec_Lesen();
    EXPECT_EQ(Geraet(0).Name, "ÄÖ");
    Schreiben("\xEF\xBB\xBFNAME: B\n_GROUP:0\nEND\n");
    Spec_Lesen();
    EXPECT_EQ(Geraet(0).Name, "B");
}

TEST_F(Spec_Datei, A_missing_file_is_told_in_German)
{
    Sprache = "D";
    Spec_Lesen();
    ASSERT_EQ(Box.Meldungen.size(), 1U);
    EXPECT_EQ(Letzte_Meldung(), Fehlt_Text);
    EXPECT_EQ(Geraet(0).Name, "");
}

TEST_F(Spec_Datei, A_missing_file_is_not_told_in_English)
{
    Spec_Lesen();
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Spec_Datei, A_folder_of_that_name_is_an_unreadable_file)
{
    Sprache = "D";
    std::filesystem::create_directory(Ordner / "Spec.ini");
    Spec_Lesen();
    EXPECT_EQ(Letzte_Meldung(), Fehlt_Text);
}

TEST_F(Spec_Datei, A_file_of_4_MiB_is_read_and_a_larger_one_is_not)
{
    Sprache          = "D";
    std::string Text = Satz("A", "_GROUP:0\r\n");
    Text.resize(std::size_t{4} << 20, '\n');
    Schreiben(Text);
    Spec_Lesen();
    EXPECT_EQ(Geraet(0).Name, "A");
    EXPECT_TRUE(Box.Meldungen.empty());
    Schreiben(Text + "\n");
    Spec_Lesen();
    EXPECT_EQ(Letzte_Meldung(), Fehlt_Text);
    EXPECT_EQ(Geraet(0).Name, "");
}

TEST_F(Spec_Datei, An_empty_file_gives_an_empty_table_and_no_message)
{
    Sprache = "D";
    Schreiben("");
    Spec_Lesen();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Geraet(0).Name, "");
}

// --- Finding ---

TEST_F(Spec_Welt, A_device_is_found_by_its_name_in_any_case)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n") +
                   Satz("at28c64b", "_GROUP:7\r\n_MENU-NAME:Other\r\n"));
    EXPECT_EQ(Geraet_Suchen("AT28C64B"), 210);
    EXPECT_EQ(Geraet_Suchen("at28C64b"), 210);
    EXPECT_EQ(Geraet_Suchen("AT28C64"), -1);
    EXPECT_EQ(Geraet_Suchen("OTHER"), -1);
}

TEST_F(Spec_Welt, An_empty_name_finds_no_device)
{
    EXPECT_EQ(Geraet_Suchen(""), -1);
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n"));
    EXPECT_EQ(Geraet_Suchen(""), -1);
}

// --- Selecting ---

TEST_F(Spec_Welt, A_device_of_the_Eprommer_is_selected_without_a_word)
{
    Setzen(60, "X1").Programmer = 1;
    Abbruch                     = true;
    IC_Waehlen(60);
    EXPECT_EQ(IC_Nummer, 60);
    EXPECT_FALSE(Abbruch);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Spec_Welt, A_device_of_the_Tessel1_board_is_selected_whatever_the_versions)
{
    Geraet_T& g     = Setzen(5, "89C2051");
    g.Programmer    = 2;
    g.P_Typ         = "89F54";
    g.M_Jumper1     = 1;
    Tessel2_Version = 10;
    IC_Waehlen(5);
    EXPECT_EQ(IC_Nummer, 5);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Spec_Welt, A_number_without_a_device_leaves_nothing_selected)
{
    Setzen(3, "A");
    for (const int Nummer : {-2, -1, 0, 2, 4, 620, 621, 100000}) {
        IC_Waehlen(3);
        IC_Waehlen(Nummer);
        EXPECT_EQ(IC_Nummer, -1) << Nummer;
        EXPECT_TRUE(Abbruch) << Nummer;
    }
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Spec_Welt, Dropping_the_selection_leaves_no_device)
{
    IC_Nummer = 7;
    IC_Typ_Löschen();
    EXPECT_EQ(IC_Nummer, -1);
}

struct Version_T {
    const char* P_Typ;
    int         J1;
    int         Version;
    // What is shown: 0 nothing, 1.2 needed, 1.1 needed, insert J1, take J1 out.
    enum Text_T { Nichts, Braucht_12, Braucht_11, J1_Ein, J1_Aus } Text;
};

class Tessel2_Versionen : public Spec_Welt, public ::testing::WithParamInterface<Version_T> {
protected:
    void Waehlen(const char* In_Sprache)
    {
        Sprache         = In_Sprache;
        Geraet_T& g     = Setzen(9, "MC");
        g.Programmer    = 3;
        g.P_Typ         = GetParam().P_Typ;
        g.M_Jumper1     = GetParam().J1;
        Tessel2_Version = GetParam().Version;
        IC_Waehlen(9);
    }
    static std::vector<std::string> Erwartet(const std::array<const char*, 4>& Alle)
    {
        if (GetParam().Text == Version_T::Nichts)
            return {};
        return {Alle.at(static_cast<std::size_t>(GetParam().Text) - 1)};
    }
    static bool Abgelehnt()
    {
        return GetParam().Text == Version_T::Braucht_12 || GetParam().Text == Version_T::Braucht_11;
    }
};

TEST_P(Tessel2_Versionen, The_English_texts_are_shown_by_version_and_jumper)
{
    Waehlen("E");
    EXPECT_EQ(Texte(),
              Erwartet({"The Tessel2 programmer layout version 1.2 (or higher) is necessary to "
                        "program these special flash mc!",
                        "The Tessel2 programmer layout version 1.1 (or higher) is necessary to "
                        "program these special flash mc!",
                        "Please insert jumper J1 if it's not already inserted.",
                        "Please take jumper J1 out if it's inserted."}));
}

TEST_P(Tessel2_Versionen, The_German_texts_are_shown_by_version_and_jumper)
{
    Waehlen("D");
    EXPECT_EQ(
        Texte(),
        Erwartet(
            {"Um diesen speziellen Flash MC zu programmieren ist die Layout Version 1.2 (oder "
             "höher) des Tessel2 programmer notwendig!",
             "Um diesen speziellen Flash MC zu programmieren ist die Layout Version 1.1 (oder "
             "höher) des Tessel2 programmer notwendig!",
             "Bitte setzen Sie den Jumper J1 ein, falls dieser noch nicht eingesetzt sein sollte!",
             "Bitte entnehmen Sie den Jumper J1, falls dieser noch stecken sollte"}));
}

TEST_P(Tessel2_Versionen, A_refused_device_is_not_selected_and_the_menu_is_as_without_one)
{
    IC_Nummer = 4;
    Waehlen("E");
    EXPECT_EQ(IC_Nummer, Abgelehnt() ? -1 : 9);
    EXPECT_EQ(Abbruch, Abgelehnt());
    EXPECT_EQ(MNU_IC_Titel(), Abgelehnt() ? "Programmer" : "Programmer (MC)");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Spec, Tessel2_Versionen, ::testing::Values(
    Version_T{"89C51",   0, 10, Version_T::Nichts},     // J1 doesn't exist there
    Version_T{"89C51",   0, 11, Version_T::J1_Aus},
    Version_T{"89C51",   0, 12, Version_T::J1_Aus},
    Version_T{"89C51",   2, 12, Version_T::J1_Aus},     // only 1 means inserted
    Version_T{"89C55WD", 1, 10, Version_T::Braucht_11},
    Version_T{"89C55WD", 2, 10, Version_T::Braucht_11},
    Version_T{"89C55WD", 1, 11, Version_T::J1_Ein},
    Version_T{"89C55WD", 1, 12, Version_T::J1_Ein},
    Version_T{"89F54",   0, 10, Version_T::Braucht_12},
    Version_T{"89F54",   1, 10, Version_T::Braucht_12},
    Version_T{"89F54",   0, 11, Version_T::Braucht_12},
    Version_T{"89F54",   0, 12, Version_T::J1_Aus},
    Version_T{"89F58",   1, 12, Version_T::J1_Ein},
    Version_T{"X89F",    0, 11, Version_T::J1_Aus},
    Version_T{"89F54",   0,  0, Version_T::J1_Aus},     // not chosen: taken as the newest
    Version_T{"89C55WD", 1,  0, Version_T::J1_Ein}));
// clang-format on

TEST_F(Spec_Welt, Versions_that_were_not_chosen_are_the_newest)
{
    EXPECT_EQ(Eprommer_Version_Gueltig(), 32);
    EXPECT_EQ(Tessel2_Version_Gueltig(), 12);
    Eprommer_Version = 30;
    Tessel2_Version  = 11;
    EXPECT_EQ(Eprommer_Version_Gueltig(), 30);
    EXPECT_EQ(Tessel2_Version_Gueltig(), 11);
}

TEST_F(Spec_Welt, The_menu_caption_tells_the_device_in_both_languages)
{
    Spec_Auswerten(Satz("A", "_GROUP:0\r\n_MENU-NAME:MA\r\n_PROGRAMMER:1\r\n") +
                   Satz("B", "_GROUP:0\r\n_PROGRAMMER:1\r\n"));
    EXPECT_EQ(MNU_IC_Titel(), "Programmer");
    IC_Waehlen(0);
    EXPECT_EQ(MNU_IC_Titel(), "Programmer (MA)");
    Sprache = "D";
    EXPECT_EQ(MNU_IC_Titel(), "Brenner (MA)");
    IC_Waehlen(1);
    EXPECT_EQ(MNU_IC_Titel(), "Brenner (B)");
    IC_Typ_Löschen();
    EXPECT_EQ(MNU_IC_Titel(), "Brenner");
}

TEST_F(Spec_Welt, The_erase_command_serves_the_erase_types_that_can_be_erased)
{
    Geraet_T g;
    for (const char* Typ :
         {"89", "89CI", "89CIIWD", "28F", "28F1", "29C", "28C", "27SF", "27SF010"}) {
        g.E_Typ = Typ;
        EXPECT_TRUE(Loeschen_Moeglich(g)) << Typ;
    }
    for (const char* Typ : {"", "UV", "27C", "28", "29", "8", "X89", "27S"}) {
        g.E_Typ = Typ;
        EXPECT_FALSE(Loeschen_Moeglich(g)) << Typ;
    }
}

TEST_F(Spec_Welt, The_lock_command_needs_a_lock_type_and_a_microcontroller)
{
    Geraet_T g;
    g.P_Typ = "89C51";
    EXPECT_FALSE(Sperren_Moeglich(g));
    g.L_Typ = "89CII";
    EXPECT_TRUE(Sperren_Moeglich(g));
    g.P_Typ = "27C64";
    EXPECT_FALSE(Sperren_Moeglich(g));
}

} // namespace
} // namespace varnholt
