// The device database that is shipped: every record complete and plausible, and every device of the
// Eprommer read and programmed on the simulated board.
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Lesen.h"
#include "programmer/Lockmenu.h"
#include "programmer/Loeschen.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"
#include "programmer/Specifications.h"
#include "support/scripted_platform.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace varnholt {
namespace {

using Typ_Groessen = std::map<std::string, std::int32_t>;

// What each type addresses at most, by the address lines that its sequences drive.
// clang-format off
const Typ_Groessen R_Typen = {
    {"27C64", 8192},    {"27C128", 16384},  {"27C256", 32768},  {"27C512", 65536},
    {"27C010", 131072}, {"27C020", 262144}, {"27C040", 524288}, {"27C080", 524288},
    {"87C257", 32768},
    {"27SF256", 32768}, {"27SF010", 131072}, {"27SF020", 262144},
    {"28C64", 8192},    {"28C256", 32768},  {"28C010", 131072}, {"28C040", 524288},
    {"28F010", 131072}, {"28F020", 262144},
    {"29C256", 32768},  {"29C040", 524288},
    {"89C1051", 1024},  {"89C2051", 2048},  {"89C4051", 4096},
    {"89C51", 4096},    {"89C52", 8192},    {"89C55", 20480},   {"89C55WD", 20480},
    {"89S53", 12288},   {"89S8252", 8192},  {"89F54", 16384},   {"89F58", 32768},
};

const Typ_Groessen P_Typen = {
    {"27C64", 8192},    {"27C128", 16384},  {"27C256", 32768},  {"27C512", 65536},
    {"27C010", 131072}, {"27C020", 262144}, {"27C040", 524288}, {"27C080", 524288},
    {"87C257", 32768},
    {"27SF256", 32768}, {"27SF010", 131072}, {"27SF020", 262144},
    {"28C64", 8192},    {"28C256", 32768},  {"28C010", 131072}, {"28C040", 524288},
    {"28F010", 131072}, {"28F020", 262144}, {"28F040", 524288}, {"28F080", 524288},
    {"29C256", 32768},  {"29C010", 131072}, {"29C020", 262144}, {"29C040", 524288},
    {"89C1051", 1024},  {"89C2051", 2048},  {"89C4051", 4096},
    {"89C51", 4096},    {"89C52", 8192},    {"89C55", 20480},   {"89C55WD", 20480},
    {"89S53", 12288},   {"89S8252", 8192},  {"89F54", 16384},   {"89F58", 32768},
};

const std::set<std::string> E_Typen = {"UV",   "28C",   "28F",   "29C",    "27SF",
                                       "89CI", "89CII", "89SII", "89CIIWD"};
const std::set<std::string> L_Typen = {"89CI", "89CII", "89SII", "89CIIWD"};
// Microcontrollers whose code memory is no power of two.
const std::set<std::string> Krumme_Groessen = {"89C55", "89C55WD", "89S53"};

const std::vector<std::string> Verlangte = {
    "27C64", "27C128", "27C256", "27C512", "27C010", "27C020", "27C040", "27C080", "87C257",
    "28C16", "28C64", "28C256", "28C010", "28C040", "M28C256", "AT28C256", "PT28C020",
    "28F256", "28F512", "28F010", "28F020", "28F040", "28F080",
    "29C256", "29C512", "29C010", "29C020", "29C040",
    "27SF256", "27SF512", "27SF010", "27SF020",
    "48Z02", "48Z08", "48Z12", "48Z18", "48Z35", "48T02", "48T08", "48T12", "48T18", "48T35",
    "89C1051", "89C2051", "89C4051",
    "89C51", "89C52", "89C55", "89C55WD", "89S53", "89S8252", "89F54", "89F58",
};
// clang-format on

bool Beginnt_Mit_Einem(const std::string& Text, std::initializer_list<std::string_view> Anfaenge)
{
    return std::any_of(
        Anfaenge.begin(), Anfaenge.end(), [&](std::string_view a) { return Text.starts_with(a); });
}

class Spec_Ini : public test::Welt {
protected:
    Spec_Ini()
    {
        Programm_Pfad = VARNHOLT_DATA "/";
        Spec_Lesen();
    }
    ~Spec_Ini() override { Plattform_Zuruecksetzen(); }

    static void Alle(const std::function<void(int, const Geraet_T&)>& Tun)
    {
        for (int i = 0; i < Geraete_Anzahl; ++i) {
            const Geraet_T& g = Geraete_Tabelle.at(static_cast<std::size_t>(i));
            if (g.Name.empty())
                continue;
            SCOPED_TRACE(g.Name);
            Tun(i, g);
        }
    }
    static const Geraet_T& Mit_Namen(const std::string& Name)
    {
        return Geraete_Tabelle.at(static_cast<std::size_t>(Geraet_Suchen(Name)));
    }
};

TEST_F(Spec_Ini, The_file_is_read_without_a_notice)
{
    EXPECT_TRUE(Box.Hinweise.empty());
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Spec_Ini, Every_family_is_there)
{
    for (const std::string& Name : Verlangte)
        EXPECT_NE(Geraet_Suchen(Name), -1) << Name;
}

TEST_F(Spec_Ini, Names_are_unique_and_none_is_an_error)
{
    std::set<std::string> Namen;
    Alle([&](int, const Geraet_T& g) {
        EXPECT_TRUE(Namen.insert(g.Name).second);
        EXPECT_NE(g.Name, "Error in Spec.ini");
    });
    EXPECT_GE(Namen.size(), Verlangte.size());
}

TEST_F(Spec_Ini, Every_record_of_the_file_is_in_the_table)
{
    std::ifstream Datei(VARNHOLT_DATA "/Spec.ini");
    int           Saetze = 0;
    for (std::string Zeile; std::getline(Datei, Zeile);)
        Saetze += Zeile.starts_with("NAME:");
    int Geraete_Gezaehlt = 0;
    Alle([&](int, const Geraet_T&) { ++Geraete_Gezaehlt; });
    EXPECT_EQ(Geraete_Gezaehlt, Saetze);
}

// A value that doesn't reach the table, for a slip in its key, would go unseen otherwise.
TEST_F(Spec_Ini, Every_line_of_the_file_is_a_comment_or_a_known_key)
{
    std::ifstream Datei(VARNHOLT_DATA "/Spec.ini");
    for (std::string Zeile; std::getline(Datei, Zeile);)
        EXPECT_TRUE(
            Zeile.empty() || Zeile == "END" ||
            Beginnt_Mit_Einem(
                Zeile, {";",           "NAME: ",      "GROUP_NAME#", "_GROUP:",     "_EQUALS:",
                        "_MENU-NAME:", "_BYTES:",     "_R-TYP:",     "_P-TYP:",     "_E-TYP:",
                        "_L-TYP:",     "_R-TIMING:",  "_P-TIMING:",  "_PAGEBYTES:", "_E-JUMPER0:",
                        "_E-JUMPER1:", "_E-JUMPER2:", "_E-JUMPER3:", "_E-JUMPER4:", "_M-JUMPER1:",
                        "_PROGRAMMER:"}))
            << Zeile;
}

TEST_F(Spec_Ini, Every_used_group_has_a_name_and_at_most_30_devices)
{
    for (std::size_t i = 0; i < Geraete.Gruppen_Belegt.size(); ++i) {
        EXPECT_LE(Geraete.Gruppen_Belegt[i], 30);
        EXPECT_EQ(Geraete.Gruppen_Belegt[i] > 0, !Geraete.Gruppen_Namen[i].empty()) << i;
    }
}

TEST_F(Spec_Ini, Every_device_has_a_menu_entry_without_a_blank_at_its_ends)
{
    Alle([](int i, const Geraet_T& g) {
        const std::string& Text = Geraete.Menue_Texte.at(static_cast<std::size_t>(i));
        EXPECT_EQ(Text, g.Menue_Name.empty() ? g.Name : g.Menue_Name);
        EXPECT_NE(Text.front(), ' ');
        EXPECT_NE(Text.back(), ' ');
    });
}

TEST_F(Spec_Ini, Sizes_are_powers_of_two_within_what_the_types_address)
{
    Alle([](int, const Geraet_T& g) {
        ASSERT_GT(g.Bytes, 0);
        EXPECT_TRUE(std::has_single_bit(static_cast<std::uint32_t>(g.Bytes)) ||
                    Krumme_Groessen.contains(g.Name));
        ASSERT_TRUE(R_Typen.contains(g.R_Typ)) << g.R_Typ;
        ASSERT_TRUE(P_Typen.contains(g.P_Typ)) << g.P_Typ;
        EXPECT_LE(g.Bytes, R_Typen.at(g.R_Typ));
        EXPECT_LE(g.Bytes, P_Typen.at(g.P_Typ));
    });
}

TEST_F(Spec_Ini, Sizes_follow_from_the_names)
{
    // clang-format off
    const std::map<std::string, int> Kilobyte = {
        {"27C64", 8}, {"27C128", 16}, {"27C256", 32}, {"27C512", 64}, {"27C010", 128},
        {"27C020", 256}, {"27C040", 512}, {"27C080", 512}, {"87C257", 32},
        {"28C16", 2}, {"28C64", 8}, {"28C256", 32}, {"28C010", 128}, {"28C040", 512},
        {"M28C256", 32}, {"AT28C256", 32}, {"PT28C020", 256},
        {"28F256", 32}, {"28F512", 64}, {"28F010", 128}, {"28F020", 256}, {"28F040", 512}, {"28F080", 512},
        {"29C256", 32}, {"29C512", 64}, {"29C010", 128}, {"29C020", 256}, {"29C040", 512},
        {"27SF256", 32}, {"27SF512", 64}, {"27SF010", 128}, {"27SF020", 256},
        {"48Z02", 2}, {"48T02", 2}, {"48Z12", 2}, {"48T12", 2}, {"48Z08", 8}, {"48T08", 8},
        {"48Z18", 8}, {"48T18", 8}, {"48Z35", 32}, {"48T35", 32},
        {"89C1051", 1}, {"89C2051", 2}, {"89C4051", 4}, {"89C51", 4}, {"89C52", 8}, {"89C55", 20},
        {"89C55WD", 20}, {"89S53", 12}, {"89S8252", 8}, {"89F54", 16}, {"89F58", 32},
    };
    // clang-format on
    for (const std::string& Name : Verlangte)
        EXPECT_EQ(Mit_Namen(Name).Bytes, Kilobyte.at(Name) * 1024) << Name;
}

TEST_F(Spec_Ini, Erase_and_lock_types_are_known_and_fit_the_program_type)
{
    Alle([](int, const Geraet_T& g) {
        EXPECT_TRUE(E_Typen.contains(g.E_Typ)) << g.E_Typ;
        const bool MC = g.P_Typ.starts_with("89");
        EXPECT_EQ(MC, L_Typen.contains(g.L_Typ)) << g.L_Typ;
        EXPECT_EQ(MC, g.E_Typ.starts_with("89"));
        EXPECT_TRUE(MC || g.L_Typ.empty());
        EXPECT_EQ(g.P_Typ.starts_with("28F"), g.E_Typ == "28F");
        EXPECT_EQ(Beginnt_Mit_Einem(g.P_Typ, {"27", "87"}), g.E_Typ == "UV" || g.E_Typ == "27SF");
    });
}

struct Zeit_T {
    std::string_view E_Typ, P_Typ; // beginnings
    std::int32_t     Von, Bis;     // of the program timing, microseconds
};

// clang-format off
constexpr Zeit_T Zeiten[] = {
    {"UV",   "",    50,   1000},
    {"27SF", "",    20,   20},    // byte program time
    {"",     "28F", 10,   10},
    {"",     "29C", 10000, 10000}, // write cycle of a sector
    {"28C",  "28C", 1000, 10000},
    {"29C",  "28C", 1,    10000}, // RAM to slow EEPROM
    {"89",   "",    10,   1500},
};
// clang-format on

TEST_F(Spec_Ini, Timings_are_those_of_the_family)
{
    Alle([](int, const Geraet_T& g) {
        EXPECT_TRUE(g.R_Timing >= 10 && g.R_Timing <= 20); // two of them precede a 28F verify
        const auto* Zeile =
            std::find_if(std::begin(Zeiten), std::end(Zeiten), [&](const Zeit_T& z) {
                return g.E_Typ.starts_with(z.E_Typ) && g.P_Typ.starts_with(z.P_Typ);
            });
        ASSERT_NE(Zeile, std::end(Zeiten));
        EXPECT_TRUE(g.P_Timing >= Zeile->Von && g.P_Timing <= Zeile->Bis) << g.P_Timing;
    });
}

TEST_F(Spec_Ini, Only_page_devices_have_a_page_size_and_it_divides_the_device)
{
    Alle([](int, const Geraet_T& g) {
        EXPECT_EQ(g.Seiten_Bytes != 0, g.P_Typ.starts_with("29C"));
        if (g.Seiten_Bytes == 0)
            return;
        EXPECT_TRUE(g.Seiten_Bytes >= 64 && g.Seiten_Bytes <= 512);
        EXPECT_EQ(g.Bytes % g.Seiten_Bytes, 0);
    });
}

TEST_F(Spec_Ini, Boards_and_jumpers_belong_together)
{
    Alle([](int, const Geraet_T& g) {
        ASSERT_TRUE(g.Programmer >= 1 && g.Programmer <= 3);
        EXPECT_EQ(g.Programmer == 1, Beginnt_Mit_Einem(g.R_Typ, {"27", "28", "29", "87"}));
        EXPECT_EQ(g.Programmer == 2, Beginnt_Mit_Einem(g.R_Typ, {"89C1051", "89C2051", "89C4051"}));
        for (const int Stellung : g.E_Jumper)
            EXPECT_TRUE(g.Programmer == 1 ? Stellung >= 1 && Stellung <= 3 : Stellung == 0);
        EXPECT_TRUE(g.M_Jumper1 == 0 || (g.M_Jumper1 == 1 && g.Programmer == 3));
    });
}

TEST_F(Spec_Ini, The_types_agree_with_the_supply_and_strobe_jumpers)
{
    Alle([](int, const Geraet_T& g) {
        if (g.Programmer != 1)
            return;
        // Programming supply at the output enable: pin 24; at pin 1 of a 28-pin device: pin 3.
        EXPECT_EQ(g.E_Jumper[2] == 2, g.P_Typ == "27C512" || g.P_Typ == "27C080");
        EXPECT_EQ(g.E_Jumper[1] == 2,
                  Beginnt_Mit_Einem(g.P_Typ, {"27C64", "27C128", "27C256", "87C257", "27SF256"}));
        // Bit 18 by D0, and the strobe at pin 29.
        EXPECT_EQ(g.E_Jumper[0] == 2, g.P_Typ == "28C040" || g.P_Typ == "29C040");
        EXPECT_EQ(g.E_Jumper[3] == 2, Beginnt_Mit_Einem(g.P_Typ, {"27C64", "27C128", "28C"}));
        // 28- and 24-pin devices have no line at pin 30.
        EXPECT_TRUE(g.E_Jumper[4] == 1 || g.Bytes <= 65536);
    });
}

TEST_F(Spec_Ini, The_older_EPROMs_have_longer_pulses_than_the_newer)
{
    EXPECT_EQ(Mit_Namen("27C256").P_Timing, 100);
    EXPECT_EQ(Mit_Namen("27256").P_Timing, 1000);
    EXPECT_EQ(Mit_Namen("27256").P_Typ, "27C256");
}

TEST_F(Spec_Ini, Only_the_parts_that_need_it_ask_for_jumper_J1)
{
    Alle([](int, const Geraet_T& g) { EXPECT_EQ(g.M_Jumper1 == 1, g.Name == "89C55WD"); });
}

TEST_F(Spec_Ini, Every_device_can_be_selected_with_the_newest_boards)
{
    Alle([](int i, const Geraet_T&) {
        IC_Waehlen(i);
        EXPECT_EQ(IC_Nummer, i);
        EXPECT_FALSE(Abbruch);
    });
}

// --- On the simulated board ---

// One device for each way that the sequences go.
class Spec_Ini_Board : public Spec_Ini {
protected:
    Spec_Ini_Board() { C_IC_vor_B = C_IC_nach_B = false; }

    static void Jeder_Weg(const std::function<void(int, const Geraet_T&)>& Tun)
    {
        std::set<std::tuple<std::string, std::string, std::int32_t, std::int32_t>> Gesehen;
        Alle([&](int i, const Geraet_T& g) {
            if (g.Programmer == 1 &&
                Gesehen.insert({g.R_Typ, g.P_Typ, g.Bytes, g.Seiten_Bytes}).second)
                Tun(i, g);
        });
    }
    void Einstecken(int Nummer)
    {
        Board          = Simuliertes_Board_Fuer(Nummer);
        Plattform.Port = Board.get();
        Porttreiber_Laden();
        IC_Nummer = Nummer;
    }
    std::vector<std::uint8_t>& Inhalt() const { return Board->Baustein()->Inhalt; }

    std::mt19937                       Zufall{1}; // the same bytes in every run
    std::unique_ptr<Simuliertes_Board> Board;
};

TEST_F(Spec_Ini_Board, Every_memory_device_reads_what_it_holds)
{
    Jeder_Weg([&](int Nummer, const Geraet_T& g) {
        Einstecken(Nummer);
        std::generate(
            Inhalt().begin(), Inhalt().end(), [&] { return static_cast<std::uint8_t>(Zufall()); });
        Hex_Puffer.assign(static_cast<std::size_t>(g.Bytes), 0);
        Speicher_Lesen();
        EXPECT_EQ(Antwort, Antwort_Ok);
        EXPECT_TRUE(Hex_Puffer == Inhalt());
        EXPECT_TRUE(Box.Meldungen.empty());
    });
}

// Bytes at both ends and on either side of every 8 Kbyte boundary; the rest is erased.
void Bild_Fuellen(std::int32_t Bytes, std::mt19937& Zufall)
{
    Bild_Loeschen();
    for (std::int32_t a = 0; a < Bytes; ++a)
        if (a % 8192 < 8 || a % 8192 >= 8192 - 8 || a < 64 || a >= Bytes - 64)
            Hex_Daten.at(static_cast<std::size_t>(a)) = static_cast<std::uint8_t>(Zufall());
}

TEST_F(Spec_Ini_Board, Every_device_with_an_EPROM_type_is_programmed_and_verified)
{
    int Wege = 0;
    Jeder_Weg([&](int Nummer, const Geraet_T& g) {
        if (!Beginnt_Mit_Einem(g.P_Typ, {"27", "87"}))
            return;
        ++Wege;
        Einstecken(Nummer);
        Bild_Fuellen(g.Bytes, Zufall);
        Brennmenue_Oeffnen();
        Brennmenue.Löschen = false; // it is erased
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
        EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    });
    EXPECT_EQ(Wege, 12);
}

// The routines of the other families. A 28F040 or 28F080 can't be programmed on the board: its
// strobe is its highest address line.
TEST_F(Spec_Ini_Board, Every_other_memory_device_is_programmed_and_verified)
{
    int Wege = 0;
    Jeder_Weg([&](int Nummer, const Geraet_T& g) {
        if (Beginnt_Mit_Einem(g.P_Typ, {"27", "87", "28F040", "28F080"}))
            return;
        ++Wege;
        Einstecken(Nummer);
        Bild_Fuellen(g.Bytes, Zufall);
        C_IC_vor_B = true; // so that FFh bytes of an erased EEPROM needn't be written
        Brennmenue_Oeffnen();
        ED_LBA_D_Change(std::to_string(g.Bytes - 1));
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
        EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
        EXPECT_TRUE(Box.Meldungen.empty());
    });
    EXPECT_EQ(Wege, 16);
}

TEST_F(Spec_Ini_Board, Every_device_with_an_electrical_erase_is_erased)
{
    Alle([&](int Nummer, const Geraet_T& g) {
        if (g.Programmer != 1 || !Loeschen_Moeglich(g) || g.E_Typ == "29C" || g.Bytes > 65536)
            return;
        Einstecken(Nummer);
        std::generate(
            Inhalt().begin(), Inhalt().end(), [&] { return static_cast<std::uint8_t>(Zufall()); });
        Box.Antworten = {Antwort_Ok, Antwort_Ok};
        Baustein_Löschen();
        EXPECT_EQ(Inhalt(), std::vector<std::uint8_t>(Inhalt().size(), 0xFF));
        EXPECT_FALSE(Abbruch);
    });
}

TEST_F(Spec_Ini_Board, Every_microcontroller_is_programmed_locked_and_erased_with_its_timings)
{
    int Teile = 0;
    Alle([&](int Nummer, const Geraet_T& g) {
        if (g.Programmer == 1)
            return;
        ++Teile;
        Einstecken(Nummer);
        Bild_Fuellen(g.Bytes, Zufall);
        Brennmenue_Oeffnen();
        Brennmenue.Löschen = false;
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
        EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
        Lockmenu_Oeffnen();
        Lockmenu_Option_Click(3);
        Lockmenu_Command1_Click();
        EXPECT_EQ(Board->Baustein()->Sperr_Stufe, 3);
        Baustein_Löschen();
        EXPECT_EQ(Board->Baustein()->Sperr_Stufe, 0);
        EXPECT_EQ(std::count(Inhalt().begin(), Inhalt().end(), 0xFF), g.Bytes);
    });
    EXPECT_EQ(Teile, 11);
}

} // namespace
} // namespace varnholt
