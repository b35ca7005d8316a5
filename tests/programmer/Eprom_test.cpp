// The EPROM routine: its bytes, each device from image to cell, its faults, and its cancel.
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Eprom_zugriff.h"

#include <algorithm>
#include <limits>

namespace varnholt::test {
namespace {

class Eprom_Test : public Brenner_Welt {
protected:
    void SetUp() override { Einsetzen("27C256", 4, {0x12, 0xFF, 0x00, 0xA5}); }
    void
    Einsetzen(std::string_view Typ, std::int32_t Bytes, const std::vector<std::uint8_t>& Bild_Bytes)
    {
        Geraet(Typ, Bytes);
        Board_Anschliessen();
        Bild_Fuellen(Bild_Bytes);
        C_IC_nach_B = false;
        Spur();
    }
    // Lengths of the busy waits that aren't settling times: the pulses, in order.
    std::vector<int> Pulse()
    {
        std::vector<int>   Dauern;
        std::istringstream Zeilen(Spur());
        for (std::string z; std::getline(Zeilen, z);)
            if (z.starts_with("U ") && z != "U 7" && z != "U 14")
                Dauern.push_back(std::stoi(z.substr(2)));
        return Dauern;
    }
};

// ---- the bytes of the routine ----

struct Spur_Fall {
    const char*               Spur;
    const char*               Typ;
    std::vector<std::uint8_t> Bild;
    void (*Aendern)(Simulierter_Eprommer& Board, Skript_Ereignisse& Ereignisse);
};

void Nichts(Simulierter_Eprommer&, Skript_Ereignisse&) {}

class Brenn_Spur_Test : public Eprom_Test, public ::testing::WithParamInterface<Spur_Fall> {};

TEST_P(Brenn_Spur_Test, a_run_sends_exactly_these_bytes)
{
    const Spur_Fall& f = GetParam();
    Einsetzen(f.Typ, 4, f.Bild);
    Brennen([&] { f.Aendern(Board(), Ereignisse); });
    EXPECT_EQ(Spur(), Erwartete_Spur(f.Spur));
    EXPECT_EQ(Board().Buskonflikte(), 0);
}

const std::vector<std::uint8_t> Vier{0x12, 0xFF, 0x00, 0xA5};
const std::vector<std::uint8_t> Acht{1, 2, 3, 4, 5, 6, 7, 8};

// The editor's first N bytes go to the device from address 0, by that split.
template <Splitting Wahl> void Gesplittet(Simulierter_Eprommer&, Skript_Ereignisse&)
{
    ED_LBA_D_Change("3");
    Splitting_Waehlen(Wahl);
}

const Spur_Fall Spur_Faelle[] = {
    {"brennen_27C256", "27C256", Vier, Nichts},
    {"brennen_27C512", "27C512", Vier, Nichts},
    {"brennen_87C257", "87C257", Vier, Nichts},
    {"brennen_27C010", "27C010", Vier, Nichts},
    {"brennen_27C040", "27C040", Vier, Nichts},
    {"brennen_mit_FF", "27C256", Vier, [](auto&, auto&) { No_FF = false; }},
    {"brennen_ohne_nachlesen", "27C256", Vier, [](auto&, auto&) { C_IC_bei_B = false; }},
    {"brennen_ab_2", "27C256", {1, 2}, [](auto&, auto&) { BR_EBA_D_Change("2"); }},
    {"brennen_ab_2_27C512", "27C512", {1, 2}, [](auto&, auto&) { BR_EBA_D_Change("2"); }},
    {"brennen_DAT00",
     "27C256",
     {1, 2},
     [](auto&, auto&) {
         BR_EBA_D_Change("2");
         Brennmenue.DAT00 = true;
     }},
    {"brennen_ungerade", "27C256", Acht, Gesplittet<Splitting::Ungerade>},
    {"brennen_gerade", "27C256", Acht, Gesplittet<Splitting::Gerade>},
    {"brennen_schwache_zelle_3",
     "27C256",
     Vier,
     [](auto& b, auto&) { b.Baustein()->Schwache_Zelle(2, 3); }},
    {"brennen_schwache_zelle_10",
     "27C256",
     Vier,
     [](auto& b, auto&) { b.Baustein()->Schwache_Zelle(2, 10); }},
    {"brennen_tote_zelle",
     "27C256",
     Vier,
     [](auto& b, auto&) { b.Baustein()->Tote_Zelle(2, 0xFF); }},
    {"brennen_tote_zelle_27C512",
     "27C512",
     Vier,
     [](auto& b, auto&) { b.Baustein()->Tote_Zelle(2, 0xFF); }},
    {"brennen_klemmendes_bit", "27C256", Vier, [](auto& b, auto&) { b.Fehler.Klemmt_Auf_0 = 2; }},
    {"brennen_abbruch_vorher", "27C256", Vier, [](auto&, auto&) { Abbruch = true; }},
    // The first turn of the event loop is that of the preparation, then each pulse has one.
    {"brennen_abbruch_im_puls",
     "27C256",
     Vier,
     [](auto&, auto& e) { e.Bei_Runde = [](int n) { Abbruch = n == 3; }; }},
    {"brennen_abbruch_27C512",
     "27C512",
     Vier,
     [](auto&, auto& e) { e.Bei_Runde = [](int n) { Abbruch = n == 2; }; }},
};

INSTANTIATE_TEST_SUITE_P(Runs,
                         Brenn_Spur_Test,
                         ::testing::ValuesIn(Spur_Faelle),
                         [](const auto& i) { return std::string(i.param.Spur); });

// ---- each device end to end ----

struct Baustein_Fall {
    const char*  Name;
    std::int32_t Bytes;
    const char*  R;
    const char*  P;
    int          Pulszeit;
};

class Brenn_Typ_Test : public Brenner_Welt, public ::testing::WithParamInterface<Baustein_Fall> {
protected:
    void SetUp() override
    {
        const Baustein_Fall& f                     = GetParam();
        Geraet(f.Name, f.Bytes, f.R, f.P).P_Timing = f.Pulszeit;
        Board_Anschliessen();
        Plattform.Port = &Board(); // a record of a whole device is too long
        Porttreiber_OK = true;
        Bild_Zufaellig(f.Bytes);
    }
};

TEST_P(Brenn_Typ_Test, a_random_image_is_programmed_verified_and_compared)
{
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Ergebnis,
              "The IC data is equivalent to the editor data in the whole area of the ic.");
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Board().Buskonflikte(), 0);
    EXPECT_EQ(Versuch_Statistik[1], GetParam().Bytes) << "one attempt for each";
}

INSTANTIATE_TEST_SUITE_P(Devices,
                         Brenn_Typ_Test,
                         ::testing::Values(Baustein_Fall{"27C64", 8192, "27C64", "27C64", 100},
                                           Baustein_Fall{"27C128", 16384, "27C128", "27C128", 100},
                                           Baustein_Fall{"27C256", 32768, "27C256", "27C256", 100},
                                           Baustein_Fall{"27C512", 65536, "27C512", "27C512", 100},
                                           Baustein_Fall{"27C010", 131072, "27C010", "27C010", 100},
                                           Baustein_Fall{"27C020", 262144, "27C020", "27C020", 100},
                                           Baustein_Fall{"27C040", 524288, "27C040", "27C040", 100},
                                           Baustein_Fall{"27C080", 524288, "27C080", "27C080", 50},
                                           Baustein_Fall{"87C257", 32768, "87C257", "87C257", 100},
                                           Baustein_Fall{"27SF256", 32768, "27C256", "27SF256", 20},
                                           Baustein_Fall{"27SF512", 65536, "27C512", "27C512", 20},
                                           Baustein_Fall{"27SF010", 131072, "27C010", "27C010", 20},
                                           Baustein_Fall{"27SF020", 262144, "27C020", "27C020", 20},
                                           Baustein_Fall{
                                               "27SF010p", 131072, "27SF010", "27SF010", 20},
                                           Baustein_Fall{"2764A", 8192, "27C64", "27C64", 1000}),
                         [](const auto& i) { return std::string(i.param.Name); });

// ---- ranges, split, fill ----

TEST_F(Eprom_Test, a_range_goes_to_its_place_and_nothing_below_it_is_touched)
{
    Einsetzen("27C256", 64, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    Brennen([] {
        ED_EBA_D_Change("3");
        ED_LBA_D_Change("6");
        BR_EBA_D_Change("32");
    });
    std::vector<std::uint8_t> Erwartet(64, 0xFF);
    std::copy_n(Hex_Daten.begin() + 3, 4, Erwartet.begin() + 32);
    EXPECT_EQ(Inhalt(), Erwartet);
    EXPECT_EQ(Versatz, 29);
    EXPECT_EQ(Ab_Adresse, 32);
    EXPECT_EQ(Bis_Adresse, 35);
}

TEST_F(Eprom_Test, with_DAT00_everything_below_the_range_becomes_00h)
{
    Einsetzen("27C256", 64, {1, 2});
    Brennen([] {
        BR_EBA_D_Change("10");
        Brennmenue.DAT00 = true;
    });
    std::vector<std::uint8_t> Erwartet(64, 0xFF);
    std::fill_n(Erwartet.begin(), 10, std::uint8_t{0});
    Erwartet[10] = 1;
    Erwartet[11] = 2;
    EXPECT_EQ(Inhalt(), Erwartet);
}

TEST_F(Eprom_Test, the_00h_fill_is_not_verified)
{
    Einsetzen("27C256", 64, {1, 2});
    Board().Baustein()->Tote_Zelle(3, 0xFF);
    Brennen([] {
        BR_EBA_D_Change("10");
        Brennmenue.DAT00 = true;
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt()[3], 0xFF);
}

TEST_F(Eprom_Test, with_DAT00_the_editor_gives_the_bytes_where_it_has_some)
{
    Einsetzen("27C256", 16, {10, 11, 12, 13, 14, 15, 16, 17});
    Brennen([] {
        ED_EBA_D_Change("6");
        BR_EBA_D_Change("2");
        Brennmenue.DAT00 = true;
    });
    EXPECT_EQ(Inhalt()[0], 14);
    EXPECT_EQ(Inhalt()[1], 15);
    EXPECT_EQ(Inhalt()[2], 16);
    EXPECT_EQ(Inhalt()[3], 17);
}

TEST_F(Eprom_Test, an_editor_below_its_start_is_00h_and_No_FF_does_not_skip_that)
{
    Einsetzen("27C256", 8, {1, 2, 3});
    Brennen([] { ED_EBA_D_Change("-2"); }); // device address 0 takes editor address -2
    EXPECT_EQ(Inhalt(), (std::vector<std::uint8_t>{0, 0, 1, 2, 3, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
}

TEST_F(Eprom_Test, behind_the_image_the_editor_counts_as_FFh)
{
    Einsetzen("27C256", 8, {});
    Hex_Daten[524287] = 0x42;
    Brennen([] {
        ED_LBA_D_Change("524290");
        ED_EBA_D_Change("524286");
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(),
              (std::vector<std::uint8_t>{0xFF, 0x42, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST_F(Eprom_Test, two_devices_with_a_split_share_the_image)
{
    for (const Splitting Wahl : {Splitting::Gerade, Splitting::Ungerade}) {
        Einsetzen("27C256", 512, {});
        Bild_Zufaellig(1024);
        C_IC_nach_B = true;
        Brennen([&] { Splitting_Waehlen(Wahl); });
        for (std::size_t a = 0; a < 512; ++a)
            ASSERT_EQ(Inhalt()[a], Hex_Daten[2 * a + (Wahl == Splitting::Ungerade ? 1 : 0)]);
        EXPECT_EQ(CheckIC.Ergebnis,
                  "The IC data is equivalent to the splittet editor data "
                  "(odd/even) in the whole area of the ic.");
    }
}

TEST_F(Eprom_Test, with_No_FF_off_the_run_goes_to_the_end_of_the_device)
{
    Einsetzen("27C256", 8, {1, 2});
    No_FF = false;
    Brennen();
    EXPECT_EQ(Bis_Adresse, 7);
    EXPECT_EQ(Pulse().size(), 8u);
    EXPECT_EQ(Inhalt()[1], 2);
    EXPECT_EQ(Inhalt()[7], 0xFF);
}

TEST_F(Eprom_Test, with_No_FF_on_a_byte_of_FFh_gets_no_pulse)
{
    Brennen();
    EXPECT_EQ(Pulse().size(), 3u);
}

TEST_F(Eprom_Test, a_cell_that_should_be_blank_and_is_not_ends_in_the_error)
{
    Inhalt()[1] = 0x7F;
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_EQ(Letzte_Meldung(), "Error while programming address 1(dec) / 1(hex) !");
    EXPECT_EQ(Pulse(), (std::vector<int>{100})) << "only the byte before got a pulse";
}

// ---- weak and dead cells ----

class Schwache_Zelle_Test : public Eprom_Test, public ::testing::WithParamInterface<int> {};

TEST_P(Schwache_Zelle_Test,
       a_cell_that_takes_at_this_attempt_is_programmed_and_its_neighbours_stay_quick)
{
    const int n = GetParam();
    Board().Baustein()->Schwache_Zelle(2, n);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), Vier);
    const int        t[] = {0, 100, 100, 1000, 1000, 1000, 1000, 1000, 10000, 20000, 20000};
    std::vector<int> Erwartet{100};
    for (int i = 1; i <= n; ++i)
        Erwartet.push_back(t[i]);
    Erwartet.push_back(100);
    EXPECT_EQ(Pulse(), Erwartet);
    EXPECT_EQ(Versuch_Statistik[static_cast<std::size_t>(n)], n == 1 ? 4 : 1);
    EXPECT_EQ(Versuch_Statistik[1], n == 1 ? 4 : 3);
}

INSTANTIATE_TEST_SUITE_P(Attempts, Schwache_Zelle_Test, ::testing::Range(1, 11));

TEST_F(Eprom_Test, a_cell_that_needs_long_pulses_takes_when_they_have_grown)
{
    Board().Baustein()->Schwache_Zelle(0, 1, 60.0); // sixty times the threshold of 90
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Pulse().size(), 2u + 8u); // 2 * 100 + 5 * 1000 = 5200, then 10000
}

TEST_F(Eprom_Test, a_dead_cell_is_reported_in_both_languages_after_ten_pulses)
{
    Einsetzen("27C256", 512, {});
    Hex_Daten[300] = 0xA5;
    Board().Baustein()->Tote_Zelle(300, 0x0A);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_EQ(Versuch, 11);
    EXPECT_EQ(Pulse().size(), 10u);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "Warning");
    EXPECT_EQ(Box.Meldungen[0].Text, "Error while programming address 300(dec) / 12C(hex) !");
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Kritisch);
    Sprache = "D";
    Brennen();
    EXPECT_EQ(Box.Meldungen[1].Titel, "Warnung");
    EXPECT_EQ(Box.Meldungen[1].Text,
              "Fehler beim Brennen der Adresse 300(dez) / 12C(hex) !\r\nDiese Adresse sollte auf "
              "'A5'(hex) gebrannt werden, sie bleibt aber auf 'AF'(hex)!");
}

TEST_F(Eprom_Test, after_an_error_the_dialogs_close_and_nothing_is_compared)
{
    C_IC_nach_B = true;
    Board().Baustein()->Tote_Zelle(0, 0xFF);
    Brennen();
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_FALSE(CheckIC.Offen);
    EXPECT_EQ(Antwort, Antwort_Ok) << "the answer of the error box";
    EXPECT_TRUE(Spur().ends_with("W D 5B\n"));
}

TEST_F(Eprom_Test, the_address_in_the_error_is_that_of_the_editor)
{
    Board().Baustein()->Tote_Zelle(3, 0xFF);
    Einsetzen("27C256", 16, {9, 9, 9, 9});
    Board().Baustein()->Tote_Zelle(10, 0xFF);
    Brennen([] { BR_EBA_D_Change("8"); });
    EXPECT_EQ(Letzte_Meldung(), "Error while programming address 2(dec) / 2(hex) !");
}

TEST_F(Eprom_Test, a_silent_device_fails_at_the_first_byte_that_is_not_FFh)
{
    Board().Fehler.Baustein_Stumm = true;
    Sprache                       = "D";
    Brennen();
    EXPECT_EQ(Letzte_Meldung(),
              "Fehler beim Brennen der Adresse 0(dez) / 0(hex) !\r\nDiese Adresse sollte auf "
              "'12'(hex) gebrannt werden, sie bleibt aber auf 'FF'(hex)!");
}

// ---- faults of the board ----

TEST_F(Eprom_Test, a_stuck_line_is_reported_in_both_languages_after_ten_loads)
{
    Einsetzen("27C256", 64, {});
    Hex_Daten[20]               = 0x0A;
    Board().Fehler.Klemmt_Auf_0 = 0x02;
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    // The blank cells ahead of it read wrong first.
    EXPECT_EQ(Letzte_Meldung(), "Error while programming address 0(dec) / 0(hex) !");
    C_IC_bei_B = false;
    Brennen();
    EXPECT_EQ(Letzte_Meldung(),
              "Error while programming address 20(dec) / 14(hex) !\r\nCan't send data 'A'(hex) to "
              "the 74HC595 or can't read it back with 74HC157. Please check your hardware!");
    Sprache = "D";
    Brennen();
    EXPECT_EQ(
        Letzte_Meldung(),
        "Fehler beim Brennen der Adresse 20(dez) / 14(hex) !\r\nDie Übermittlung der Daten "
        "'A'(hex) an den 74HC595 funktionierte nicht oder die Daten konnten nicht vom 74HC157 "
        "korrekt eingelesen werden! Bitte überprüfen Sie die Hardware!");
    EXPECT_EQ(Box.Meldungen.back().Titel, "Warnung");
    EXPECT_EQ(Box.Meldungen.back().Bild, Symbol::Kritisch);
}

TEST_F(Eprom_Test, each_stuck_line_is_found_whichever_way_it_sticks)
{
    for (int Bit = 0; Bit < 8; ++Bit) {
        const auto m = static_cast<std::uint8_t>(1 << Bit);
        for (const bool Hoch : {false, true}) {
            Einsetzen("27C256", 4, {static_cast<std::uint8_t>(Hoch ? 0x00 : 0xFE | m)});
            if (!Hoch && Bit == 0)
                Hex_Daten[0] = 0x01;
            Hoch ? Board().Fehler.Klemmt_Auf_1 = m : Board().Fehler.Klemmt_Auf_0 = m;
            Brennen();
            EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler) << Bit << Hoch;
            EXPECT_NE(Letzte_Meldung().find("74HC595"), std::string::npos) << Bit << Hoch;
        }
    }
}

TEST_F(Eprom_Test, a_dead_board_is_found_whatever_its_lines_read_as)
{
    for (const int s : {0x80, 0x7F, 0x00, 0xF0}) {
        Board().Fehler.Tot        = true;
        Board().Fehler.Tot_Status = static_cast<std::uint8_t>(s);
        Brennen();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler) << s;
    }
}

TEST_F(Eprom_Test, without_verification_a_dead_cell_is_found_by_the_comparison_only)
{
    Board().Baustein()->Tote_Zelle(2, 0xFF);
    C_IC_bei_B  = false;
    C_IC_nach_B = true;
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_FALSE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Erste_Abweichung, 2);
}

TEST_F(Eprom_Test, with_C_IC_bei_B_off_each_byte_gets_exactly_one_pulse)
{
    C_IC_bei_B = false;
    Board().Baustein()->Schwache_Zelle(0, 3);
    Brennen();
    EXPECT_EQ(Pulse(), (std::vector<int>{100, 100, 100}));
}

TEST_F(Eprom_Test, a_pulse_time_beyond_16_bits_and_one_of_0_end_well)
{
    Geraete_Tabelle[0].P_Timing = 2147483647;
    Board_Anschliessen();
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    for (const int Zeit : {0, -3}) {
        Geraete_Tabelle[0].P_Timing = Zeit;
        Board_Anschliessen();
        Brennen();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Zeit;
    }
}

TEST_F(Eprom_Test, a_dead_cell_with_a_huge_pulse_time_ends_too)
{
    Geraete_Tabelle[0].P_Timing = 2147483647;
    Board_Anschliessen();
    Board().Baustein()->Tote_Zelle(0, 0xFF);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
}

TEST_F(Eprom_Test, a_wrap_of_the_clock_ends_a_pulse_instead_of_hanging_it)
{
    Board().Uhr_Stellen(0x7FFFFFFF - 200);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), Vier);
}

TEST_F(Eprom_Test, the_simulated_time_of_a_run_is_counted)
{
    const std::int64_t Vorher = Board().Vergangen();
    Brennen();
    const std::int64_t Dauer = Board().Vergangen() - Vorher;
    // three pulses, 3 * (14 + 7) for loads, 4 * (14 + 7) for checks, 2 ms reset, 100 ms end
    EXPECT_GE(Dauer, 300 + 7 * 21 + 102000);
    EXPECT_LE(Dauer, 300 + 7 * 21 + 102000 + 100);
}

// ---- start, progress, cancel ----

TEST_F(Eprom_Test, progress_is_shown_in_both_languages)
{
    Einsetzen("27C256", 101, std::vector<std::uint8_t>(101, 0x55));
    Brennen();
    EXPECT_EQ(Status.Texte.front(), "27C256 Programming ");
    EXPECT_EQ(Status.Texte[1], "27C256 Programming ... 1%");
    EXPECT_EQ(Status.Texte.back(), "27C256 Programming ... 100%");
    EXPECT_EQ(Status.Texte.size(), 101u);
    EXPECT_EQ(Status.Balken.front(), 1);
    EXPECT_EQ(Status.Balken.back(), 100);
    Sprache                       = "D";
    Geraete_Tabelle[0].Menue_Name = "Mein EPROM";
    Status.Texte.clear();
    Brennen();
    EXPECT_EQ(Status.Texte.front(), "Mein EPROM wird gebrannt...");
    EXPECT_EQ(Status.Texte[1], "Mein EPROM wird gebrannt... 1%");
    EXPECT_EQ(Status.Texte.back(), "Mein EPROM wird gebrannt... 100%");
}

TEST_F(Eprom_Test, a_device_of_one_byte_has_no_percent_and_is_programmed)
{
    Einsetzen("27C256", 1, {0x42});
    Brennen();
    EXPECT_EQ(Inhalt()[0], 0x42);
    EXPECT_EQ(Status.Texte.size(), 1u);
}

TEST_F(Eprom_Test, the_event_loop_turns_in_each_pulse)
{
    Brennen();
    EXPECT_EQ(Ereignisse.Runden, 1 + 3);
}

TEST_F(Eprom_Test, a_cancel_at_any_pulse_ends_the_run_without_a_message)
{
    for (int Runde = 1; Runde <= 4; ++Runde) {
        Einsetzen("27C256", 4, Vier);
        C_IC_nach_B          = true;
        Ereignisse.Runden    = 0;
        Ereignisse.Bei_Runde = [&](int n) { Abbruch = n == Runde; };
        Brennen();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
        EXPECT_EQ(Antwort, Antwort_Abbrechen);
        EXPECT_FALSE(Abbruch);
        EXPECT_FALSE(Status.Offen);
        EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
        EXPECT_FALSE(Brennmenue.Offen);
        EXPECT_FALSE(CheckIC.Offen);
        EXPECT_TRUE(Box.Meldungen.empty());
        EXPECT_TRUE(Spur().ends_with("W D 5A\n")) << Runde;
        EXPECT_EQ(Inhalt()[3], 0xFF) << "half programmed at most";
    }
}

TEST_F(Eprom_Test, a_cancel_in_the_middle_of_retries_ends_the_run)
{
    Board().Baustein()->Tote_Zelle(0, 0xFF);
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 6; };
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_EQ(Versuch, 5);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Eprom_Test, a_run_after_a_cancelled_one_completes_the_device)
{
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 3; };
    Brennen();
    Ereignisse.Bei_Runde = {};
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), Vier);
}

TEST_F(Eprom_Test, nothing_in_the_image_changes)
{
    const auto Vorher = Hex_Daten;
    Brennen();
    EXPECT_TRUE(Hex_Daten == Vorher);
}

TEST_F(Eprom_Test, with_C_IC_nach_B_off_no_comparison_opens)
{
    Brennen();
    EXPECT_FALSE(CheckIC.Offen);
    C_IC_nach_B = true;
    Brennen();
    EXPECT_TRUE(CheckIC.Offen);
    EXPECT_FALSE(Brennmenue.Offen);
}

TEST_F(Eprom_Test, a_negative_first_address_is_no_skip)
{
    Brennen([] { BR_EBA_D_Change("-1"); });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
}

TEST_F(Eprom_Test, the_growth_of_the_pulse_is_10_at_3_and_8_and_2_at_9)
{
    for (int n = 1; n <= 11; ++n)
        EXPECT_EQ(Puls_Faktor(n), n == 3 || n == 8 ? 10 : n == 9 ? 2 : 1) << n;
}

} // namespace
} // namespace varnholt::test
