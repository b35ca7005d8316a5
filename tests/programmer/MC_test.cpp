// The microcontrollers from image to cell and back: every part, ranges, options, faults, cancel.
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Lesen.h"
#include "programmer/Loeschen.h"
#include "programmer/MC_Signale.h"
#include "programmer/MC_Welt.h"

#include "core/commands.h"

#include <algorithm>
#include <random>
#include <rapidcheck.h>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

const Bytes_T Vier{0x12, 0xFF, 0x00, 0xA5};

class MC_Test : public MC_Welt {
protected:
    // A part whose image is these bytes.
    void Mit_Bild(std::string_view Name, std::int32_t Bytes, const Bytes_T& Bild)
    {
        Einsetzen(Name, Bytes);
        Bild_Fuellen(Bild);
        Spur();
    }
    void Fuellen(std::uint32_t Saat)
    {
        std::mt19937 Zufall(Saat);
        std::generate(
            Inhalt().begin(), Inhalt().end(), [&] { return static_cast<std::uint8_t>(Zufall()); });
        Hex_Puffer.assign(Hex_Daten.size(), 0);
    }
    void Brennen_Hier(const std::function<void()>& Aendern = {})
    {
        Box.Meldungen.clear();
        Brennen(Aendern);
    }
};

// ---- each part end to end ----

struct Teil_T {
    const char*  Name;
    std::int32_t Bytes;
};

class Teil_Test : public MC_Test, public ::testing::WithParamInterface<Teil_T> {
protected:
    void SetUp() override
    {
        Einsetzen(GetParam().Name, GetParam().Bytes).P_Timing = 50;
        Anschliessen();
        Ohne_Aufzeichnung();
    }
};

TEST_P(Teil_Test, a_random_image_is_programmed_verified_and_compared)
{
    Bild_Zufaellig(GetParam().Bytes, 3);
    C_IC_nach_B = true;
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_TRUE(CheckIC.Offen);
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Ergebnis,
              "The IC data is equivalent to the editor data in the whole area of the ic.");
    EXPECT_TRUE(Box.Meldungen.empty()) << Letzte_Meldung();
    EXPECT_FALSE(Brennmenue.Offen);
}

TEST_P(Teil_Test, the_menu_command_reads_every_byte_into_the_image)
{
    Fuellen(7);
    Modus = Modus_Hex;
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_TRUE(std::all_of(
        Hex_Daten.begin() + GetParam().Bytes, Hex_Daten.end(), [](auto b) { return b == 0xFF; }));
}

TEST_P(Teil_Test, the_erase_command_clears_everything_and_shows_the_state)
{
    Fuellen(9);
    Baustein().Sperren(2);
    MNU_IC_Löschen_Click();
    EXPECT_TRUE(std::all_of(Inhalt().begin(), Inhalt().end(), [](auto b) { return b == 0xFF; }));
    EXPECT_EQ(Stufe(), 0);
    EXPECT_TRUE(CheckIC.Offen);
    EXPECT_EQ(CheckIC.Zustand_IC, "Clear");
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

TEST_P(Teil_Test, the_dialog_erases_a_written_part_first)
{
    Fuellen(11);
    Bild_Zufaellig(GetParam().Bytes, 12);
    C_IC_nach_B = true;
    C_IC_vor_B  = true;
    Modus       = Modus_Hex;
    MNU_IC_Brennen_Click();
    EXPECT_TRUE(Brennmenue.Löschen);
    Brennen_Click();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
    EXPECT_TRUE(CheckIC.Gleich);
}

TEST_P(Teil_Test, a_written_part_can_not_be_written_over)
{
    std::fill(Inhalt().begin(), Inhalt().end(), std::uint8_t{0});
    Bild_Fuellen({0xFE, 0xFE});
    C_IC_nach_B = true;
    Brennen_Hier();
    EXPECT_EQ(Inhalt()[0], 0);
    EXPECT_NE(Brenn_Ergebnis == Brenn_Ausgang::Fehler, CheckIC.Offen && !CheckIC.Gleich)
        << "the Tessel2 finds it while programming, the Tessel1 by the comparison";
}

TEST_P(Teil_Test, a_locked_part_ignores_programming_from_mode_2_on)
{
    Baustein().Sperren(1);
    EXPECT_EQ(Stufe(), 2);
    Bild_Fuellen(Vier);
    C_IC_nach_B = true;
    Brennen_Hier();
    EXPECT_FALSE(Brenn_Ergebnis == Brenn_Ausgang::Fertig && CheckIC.Gleich);
    EXPECT_EQ(Inhalt()[0], 0xFF);
}

TEST_P(Teil_Test, a_locked_part_reads_in_mode_2_and_shows_FFh_from_mode_3_on)
{
    Fuellen(13);
    const Bytes_T Vorher = Inhalt();
    Baustein().Sperren(1);
    Baustein_Lesen();
    EXPECT_EQ(Gelesen(Vorher.size()), Vorher);
    Baustein().Sperren(2);
    Baustein_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok) << "its signature can still be read";
    EXPECT_EQ(Gelesen(Vorher.size()), Bytes_T(Vorher.size(), 0xFF));
    EXPECT_EQ(Inhalt(), Vorher);
}

TEST_P(Teil_Test, a_cancel_at_any_percent_of_a_read_ends_it)
{
    Fuellen(15);
    for (int Runde = 1; Runde <= 100; Runde += 9) {
        Ereignisse.Runden    = 0;
        Ereignisse.Bei_Runde = [&](int n) { Abbruch = n == Runde; };
        Baustein_Lesen();
        EXPECT_EQ(Antwort, Antwort_Abbrechen) << Runde;
        EXPECT_FALSE(Abbruch);
        EXPECT_FALSE(Status.Offen);
        EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
        EXPECT_EQ(Prozent_Jetzt, Runde);
    }
}

INSTANTIATE_TEST_SUITE_P(Parts,
                         Teil_Test,
                         ::testing::Values(Teil_T{"89C1051", 1024},
                                           Teil_T{"89C2051", 2048},
                                           Teil_T{"89C4051", 4096},
                                           Teil_T{"89C51", 4096},
                                           Teil_T{"89C52", 8192},
                                           Teil_T{"89C55", 20480},
                                           Teil_T{"89C55WD", 20480},
                                           Teil_T{"89S53", 12288},
                                           Teil_T{"89S8252", 8192},
                                           Teil_T{"89F54", 16384},
                                           Teil_T{"89F58", 32768}),
                         [](const auto& i) { return std::string(i.param.Name); });

// ---- both boards ----

class Beide_Test : public MC_Test, public ::testing::WithParamInterface<const char*> {
protected:
    void Mit(std::int32_t Bytes, const Bytes_T& Bild) { Mit_Bild(GetParam(), Bytes, Bild); }
};

TEST_P(Beide_Test, a_cancel_at_any_percent_of_a_run_ends_it_without_a_message)
{
    for (int Runde = 1; Runde <= 101; ++Runde) {
        Mit(101, Bytes_T(101, 0x55));
        C_IC_nach_B          = true;
        Ereignisse.Runden    = 0;
        Ereignisse.Bei_Runde = [&](int n) { Abbruch = n == Runde; };
        Brennen_Hier();
        ASSERT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen) << Runde;
        EXPECT_EQ(Antwort, Antwort_Abbrechen);
        EXPECT_FALSE(Abbruch);
        EXPECT_FALSE(Status.Offen);
        EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
        EXPECT_FALSE(Brennmenue.Offen);
        EXPECT_FALSE(CheckIC.Offen);
        EXPECT_TRUE(Box.Meldungen.empty());
        const auto Geschrieben = std::count(Inhalt().begin(), Inhalt().end(), 0x55);
        EXPECT_EQ(Geschrieben, std::max(0, Runde - 1)) << "half programmed";
    }
}

TEST_P(Beide_Test, a_run_after_a_cancelled_one_completes_the_part)
{
    Mit(8, {1, 2, 3, 4, 5, 6, 7, 8});
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 4; };
    Brennen_Hier();
    Ereignisse.Bei_Runde = {};
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), (Bytes_T{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_P(Beide_Test, progress_is_shown_in_both_languages)
{
    Mit(101, Bytes_T(101, 0x55));
    const std::string Name = GetParam();
    Brennen_Hier();
    EXPECT_EQ(Status.Texte.front(), Name + " Programming ");
    EXPECT_EQ(Status.Texte[1], Name + " Programming ... 1%");
    EXPECT_EQ(Status.Texte.back(), Name + " Programming ... 100%");
    EXPECT_EQ(Status.Texte.size(), 101u);
    EXPECT_EQ(Status.Balken.front(), 1);
    EXPECT_EQ(Status.Balken.back(), 100);
    Sprache = "D";
    Status.Texte.clear();
    Baustein_Lesen();
    EXPECT_EQ(Status.Texte.front(), Name + " wird gelesen...");
    EXPECT_EQ(Status.Texte[1], Name + "  wird gelesen... 1%");
    EXPECT_EQ(Status.Texte.back(), Name + "  wird gelesen... 100%");
    Status.Texte.clear();
    Brennen_Hier();
    EXPECT_EQ(Status.Texte.front(), Name + " wird gebrannt...");
    EXPECT_EQ(Status.Texte.back(), Name + " wird gebrannt... 100%");
}

TEST_P(Beide_Test, an_editor_below_its_start_is_00h_and_one_behind_the_image_FFh)
{
    Mit(8, {1, 2, 3});
    Brennen_Hier([] { ED_EBA_D_Change("-2"); });
    EXPECT_EQ(Inhalt(), (Bytes_T{0, 0, 1, 2, 3, 0xFF, 0xFF, 0xFF}));
    Mit(8, {});
    Hex_Daten[524287] = 0x42;
    Brennen_Hier([] {
        ED_LBA_D_Change("524290");
        ED_EBA_D_Change("524286");
    });
    EXPECT_EQ(Inhalt(), (Bytes_T{0xFF, 0x42, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST_P(Beide_Test, two_parts_with_a_split_share_the_image)
{
    for (const Splitting Wahl : {Splitting::Gerade, Splitting::Ungerade}) {
        Mit(64, {});
        Bild_Zufaellig(128);
        C_IC_nach_B = true;
        Brennen_Hier([&] { Splitting_Waehlen(Wahl); });
        for (std::size_t a = 0; a < 64; ++a)
            ASSERT_EQ(Inhalt()[a], Hex_Daten[2 * a + (Wahl == Splitting::Ungerade ? 1 : 0)]);
        EXPECT_TRUE(CheckIC.Gleich);
    }
}

TEST_P(Beide_Test, with_DAT00_everything_below_the_range_is_00h_even_where_the_editor_has_bytes)
{
    Mit(8, {10, 11, 12, 13});
    Brennen_Hier([] {
        ED_EBA_D_Change("2");
        BR_EBA_D_Change("3");
        Brennmenue.DAT00 = true;
    });
    EXPECT_EQ(Inhalt(), (Bytes_T{0, 0, 0, 12, 13, 0xFF, 0xFF, 0xFF}));
}

TEST_P(Beide_Test, random_ranges_go_to_their_place_and_nothing_else_is_touched)
{
    rc::check([&] {
        const int Ab  = *rc::gen::inRange(0, 60);
        const int Von = *rc::gen::inRange(0, 100);
        const int n   = *rc::gen::inRange(1, 64 - Ab + 1);
        Mit(64, {});
        Bild_Zufaellig(200, static_cast<std::uint32_t>(Ab * 7 + Von));
        Brennen_Hier([&] {
            BR_EBA_D_Change(std::to_string(Ab));
            ED_LBA_D_Change(std::to_string(Von + n - 1));
            ED_EBA_D_Change(std::to_string(Von));
        });
        RC_ASSERT(Brenn_Ergebnis == Brenn_Ausgang::Fertig);
        Bytes_T Erwartet(64, 0xFF);
        std::copy_n(Hex_Daten.begin() + Von, n, Erwartet.begin() + Ab);
        RC_ASSERT(Inhalt() == Erwartet);
    });
}

TEST_P(Beide_Test, with_No_FF_a_byte_of_FFh_is_not_written)
{
    Mit(4, Vier);
    Brennen_Hier();
    const std::size_t Ohne = Datenbytes().size();
    Mit(4, Vier);
    No_FF = false;
    Brennen_Hier();
    EXPECT_GT(Datenbytes().size(), Ohne + 15);
    EXPECT_EQ(Inhalt(), Vier);
}

TEST_P(Beide_Test, a_part_of_one_byte_or_none_ends_well)
{
    for (const std::int32_t Bytes : {0, 1}) {
        Mit(Bytes, {0x42});
        Hex_Puffer.assign(Hex_Daten.size(), 0);
        Baustein_Lesen();
        EXPECT_EQ(Antwort, Antwort_Ok);
        Brennen_Hier();
        EXPECT_TRUE(Box.Meldungen.empty());
        EXPECT_EQ(Inhalt(), Bytes_T(static_cast<std::size_t>(Bytes), 0x42));
    }
}

TEST_P(Beide_Test, a_buffer_smaller_than_the_part_is_filled_and_no_more)
{
    Mit(64, {});
    Hex_Puffer.assign(10, 1);
    Baustein_Lesen();
    EXPECT_EQ(Hex_Puffer, Bytes_T(10, 0xFF));
}

TEST_P(Beide_Test, nothing_in_the_image_changes)
{
    Mit(16, {1, 2, 3, 4, 5});
    const auto Vorher = Hex_Daten;
    Brennen_Hier();
    EXPECT_TRUE(Hex_Daten == Vorher);
}

TEST_P(Beide_Test, with_C_IC_bei_B_off_a_missing_target_is_not_noticed)
{
    Mit(4, Vier);
    C_IC                          = false;
    C_IC_bei_B                    = false;
    Board().Fehler.Baustein_Stumm = true;
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Inhalt(), Bytes_T(4, 0xFF));
}

TEST_P(Beide_Test, a_dead_board_is_found_whatever_its_lines_read_as)
{
    for (const int s : {0x00, 0x7F, 0x80, 0xF0, 0xFF}) {
        Mit(4, Vier);
        Box.Meldungen.clear();
        Board().Fehler.Tot        = true;
        Board().Fehler.Tot_Status = static_cast<std::uint8_t>(s);
        Baustein_Lesen();
        EXPECT_EQ(Antwort, Antwort_Abbrechen) << s;
        EXPECT_EQ(Box.Meldungen.size(), 1u) << s;
    }
}

TEST_P(Beide_Test, an_empty_socket_is_asked_about)
{
    Mit(4, Vier);
    Board().Im_Sockel.reset();
    Baustein_Lesen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_EQ(Letzte_Meldung(), "There is no AT89C... insert, or it is defect!");
}

TEST_P(Beide_Test, the_question_about_the_part_comes_in_both_languages)
{
    Mit(4, Vier);
    Board().Fehler.Falsche_Kennung = true;
    Baustein_Lesen();
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "Attention !");
    EXPECT_EQ(Box.Meldungen[0].Text, "There is no AT89C... insert, or it is defect!");
    EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ok_Abbrechen);
    Sprache = "D";
    Baustein_Lesen();
    EXPECT_EQ(Box.Meldungen[1].Titel, "Achtung !");
    EXPECT_EQ(Box.Meldungen[1].Text, "Es ist kein AT89C... eingesetzt oder er ist defekt!");
}

TEST_P(Beide_Test, the_question_is_put_until_the_part_is_there)
{
    Mit(4, {});
    Inhalt()                       = Vier;
    Board().Fehler.Falsche_Kennung = true;
    Box.Antworten                  = {Antwort_Ok, Antwort_Ok, Antwort_Ok};
    Hex_Puffer.assign(Hex_Daten.size(), 0);
    int Fragen = 0;
    // Each question is one more look of the user at the socket; the third time the part is right.
    struct Zaehlende_Box : Skript_Box {
        std::function<void()> Bei_Frage{};
        int                   Zeigen(const Meldung_T& Meldung) override
        {
            Bei_Frage();
            return Skript_Box::Zeigen(Meldung);
        }
    } Zaehlende;
    Zaehlende.Antworten = {Antwort_Ok, Antwort_Ok, Antwort_Ok};
    Zaehlende.Bei_Frage = [&] { Board().Fehler.Falsche_Kennung = ++Fragen < 3; };
    Plattform.Box       = &Zaehlende;
    Baustein_Lesen();
    EXPECT_EQ(Fragen, 3);
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_EQ(Gelesen(4), Vier);
}

TEST_P(Beide_Test, in_a_language_without_boxes_a_missing_part_ends_the_read)
{
    Mit(4, Vier);
    Sprache                        = "X";
    Board().Fehler.Falsche_Kennung = true;
    Baustein_Lesen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
}

TEST_P(Beide_Test, huge_and_senseless_timings_end_well)
{
    for (const int Zeit : {0, -3, 2147483647}) {
        Mit(4, Vier);
        Geraete_Tabelle[0].P_Timing = Zeit;
        Geraete_Tabelle[0].R_Timing = Zeit;
        Anschliessen();
        Brennen_Hier();
        EXPECT_NE(Brenn_Ergebnis, Brenn_Ausgang::Keiner) << Zeit;
    }
}

INSTANTIATE_TEST_SUITE_P(Boards,
                         Beide_Test,
                         ::testing::Values("89C2051", "89C51", "89S53", "89F58"),
                         [](const auto& i) { return std::string(i.param); });

// ---- Tessel1 ----

TEST_F(MC_Test, a_missing_tessel1_board_is_told_in_both_languages)
{
    Mit_Bild("89C2051", 4, Vier);
    Board().Fehler.Tot = true;
    Tessel1_Lesen();
    EXPECT_EQ(Letzte_Meldung(),
              "Please check the power supply and the connection to the programmer!");
    Sprache = "D";
    Tessel1_Lesen();
    EXPECT_EQ(Letzte_Meldung(),
              "Bitte überprüfen Sie ob der Brenner richtig angeschlossen und eingeschaltet ist !");
    EXPECT_EQ(Box.Meldungen.back().Titel, "Achtung !");
}

// The pattern is 55h, the signature 1Eh: a line that sticks where both have it does no harm yet.
TEST_F(MC_Test, a_stuck_line_of_the_tessel1_is_found_where_pattern_or_signature_contradict_it)
{
    for (int Bit = 0; Bit < 8; ++Bit)
        for (const bool Hoch : {false, true}) {
            Mit_Bild("89C2051", 4, Vier);
            Box.Meldungen.clear();
            const auto m = static_cast<std::uint8_t>(1 << Bit);
            Hoch ? Board().Fehler.Klemmt_Auf_1 = m : Board().Fehler.Klemmt_Auf_0 = m;
            Tessel1_Lesen();
            const bool Schadet = Hoch ? (0x55 & 0x1E & m) == 0 : ((0x55 | 0x1E) & m) != 0;
            EXPECT_EQ(Antwort == Antwort_Abbrechen, Schadet) << Bit << Hoch;
        }
}

TEST_F(MC_Test, with_both_checks_off_a_missing_board_reads_as_its_lines)
{
    Mit_Bild("89C2051", 4, Vier);
    C_Brenner = false;
    Board().Im_Sockel.reset();
    Hex_Puffer.assign(4, 0);
    Tessel1_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_EQ(Hex_Puffer, Bytes_T(4, 0xFF));
}

TEST_F(MC_Test, with_C_Brenner_off_the_tessel1_asks_for_no_signature_either)
{
    Mit_Bild("89C2051", 4, Vier);
    C_Brenner                      = false;
    Board().Fehler.Falsche_Kennung = true;
    Tessel1_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(MC_Test, the_tessel1_programs_to_the_last_address_of_the_dialog_whatever_No_FF_says)
{
    Mit_Bild("89C2051", 8, {1, 2, 3});
    No_FF = false;
    Brennen_Hier();
    EXPECT_EQ(Bis_Adresse, 2);
}

class Bereit_Test : public MC_Test, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override
    {
        Mit_Bild(GetParam(), 4, Vier);
        Ohne_Aufzeichnung();
        Board().Fehler.Bereit_Klemmt = true;
    }
};

TEST_P(Bereit_Test, a_ready_line_that_does_not_come_is_told_after_a_second_in_both_languages)
{
    const std::int64_t Vorher = Board().Vergangen();
    Brennen_Hier();
    const std::int64_t Dauer = Board().Vergangen() - Vorher;
    EXPECT_GT(Dauer, 1000000);
    EXPECT_LT(Dauer, 1100000);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "The MC doesn´t response. Please check the MC und the device!");
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Kritisch);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Brennmenue.Offen);
    Sprache = "D";
    Brennen_Hier();
    EXPECT_EQ(Letzte_Meldung(),
              "Der MC reagiert nicht. Bitte überprüfen Sie den MC und das Gerät!");
}

TEST_P(Bereit_Test, the_target_is_not_left_in_programming_mode)
{
    Anschliessen();
    Board().Fehler.Bereit_Klemmt = true;
    Brennen_Hier();
    EXPECT_EQ(Datenbytes().back(), std::string_view(GetParam()) == "89C2051" ? 73 : 69);
}

TEST_P(Bereit_Test, with_C_IC_bei_B_off_nobody_looks_at_it)
{
    C_IC_bei_B = false;
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), Vier);
}

TEST_P(Bereit_Test, midnight_does_not_end_the_second_early_nor_make_it_a_day)
{
    // A port whose seconds clock begins anew at 86400.
    struct Mitternacht : Aufzeichnung {
        using Aufzeichnung::Aufzeichnung;
        double Sekunden_seit_Mitternacht() override
        {
            const double s = Aufzeichnung::Sekunden_seit_Mitternacht() + 86399.5;
            return s >= 86400 ? s - 86400 : s;
        }
    };
    std::ostringstream Zeilen;
    Mitternacht        Port(Board(), Zeilen);
    Plattform.Port            = &Port;
    const std::int64_t Vorher = Board().Vergangen();
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_GT(Board().Vergangen() - Vorher, 1000000);
    EXPECT_LT(Board().Vergangen() - Vorher, 1100000);
}

INSTANTIATE_TEST_SUITE_P(Parts,
                         Bereit_Test,
                         ::testing::Values("89C2051", "89C55WD", "89F54", "89F58"),
                         [](const auto& i) { return std::string(i.param); });

TEST_F(MC_Test, the_other_parts_of_the_tessel2_get_a_millisecond_instead_of_the_ready_line)
{
    Mit_Bild("89C51", 4, Vier);
    Board().Fehler.Bereit_Klemmt = true;
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), Vier);
}

TEST_F(MC_Test, the_tessel1_polls_until_the_part_is_ready)
{
    Mit_Bild("89C2051", 2, {1, 2});
    Board().Im_Sockel = Simulierter_MC(Geraete_Tabelle[0], 900000);
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), (Bytes_T{1, 2}));
}

// ---- Tessel2 ----

TEST_F(MC_Test, the_second_signature_byte_names_the_type)
{
    const std::pair<int, const char*> Typen[] = {
        {81, "89C51"}, {82, "89C52"}, {83, "89S53"}, {85, "89C55"}, {114, "89S8252"}};
    for (int k = 0; k < 256; ++k) {
        Einsetzen("89C51", 4);
        Baustein().Art.Kennung[1] = static_cast<std::uint8_t>(k);
        const auto* p             = std::find_if(
            std::begin(Typen), std::end(Typen), [k](const auto& t) { return t.first == k; });
        const bool  Bekannt = p != std::end(Typen);
        std::string Typ;
        MC2_Kennung_Lesen(Typ);
        EXPECT_EQ(Typ, Bekannt ? p->second : "unknown IC") << k;
        EXPECT_EQ(Kennung_Hersteller, "ATMEL");
        Sprache = "D";
        MC2_Kennung_Lesen(Typ);
        EXPECT_EQ(Typ, Bekannt ? p->second : "unbekanntes IC") << k;
        Sprache = "E";
    }
}

TEST_F(MC_Test, only_a_third_signature_byte_of_5_means_5_V)
{
    for (int k = 0; k < 256; ++k) {
        Einsetzen("89C52", 4);
        Baustein().Art.Kennung[2] = static_cast<std::uint8_t>(k);
        std::string Typ;
        MC2_Kennung_Lesen(Typ);
        EXPECT_EQ(Prog_Spannung, k == 5 ? 5 : 12) << k;
    }
}

TEST_F(MC_Test, the_89S_parts_keep_the_voltage_of_the_signature_before)
{
    EXPECT_EQ(Prog_Spannung, 12);
    std::string Typ;
    Einsetzen("89C51", 4);
    Baustein().Spannung = 5;
    MC2_Kennung_Lesen(Typ);
    EXPECT_EQ(Prog_Spannung, 5);
    EXPECT_EQ(Ruhe_Korrektur, 0);
    for (const char* Name : {"89S53", "89S8252"}) {
        Einsetzen(Name, 4);
        MC2_Kennung_Lesen(Typ);
        EXPECT_EQ(Typ, Name);
        EXPECT_EQ(Prog_Spannung, 5);
        EXPECT_EQ(Ruhe_Korrektur, -1);
    }
}

TEST_F(MC_Test, an_unknown_signature_goes_on_with_12_V)
{
    Einsetzen("89C51", 4);
    Baustein().Art.Kennung = {30, 0, 0};
    Prog_Spannung          = 5;
    std::string Typ;
    MC2_Kennung_Lesen(Typ);
    EXPECT_EQ(Prog_Spannung, 12);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(MC_Test, the_maker_is_known_by_the_first_byte_only)
{
    Einsetzen("89C51", 4);
    Board().Fehler.Falsche_Kennung = true;
    std::string Typ                = "?";
    MC2_Kennung_Lesen(Typ);
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_EQ(Kennung_Hersteller, "");
    EXPECT_FALSE(Kennung_Gelesen);
    EXPECT_EQ(Typ, "?");
}

TEST_F(MC_Test, a_5_V_part_has_D0_set_in_its_programming_bytes_and_a_12_V_part_clear)
{
    for (const int v : {12, 5}) {
        Mit_Bild("89C51", 1, {0x42});
        Baustein().Spannung = v;
        Brennen_Hier();
        EXPECT_EQ(Inhalt()[0], 0x42);
        const std::vector<int> b = Datenbytes();
        // The same pulse for both: strobe low, then the byte with everything at rest.
        const int        d = v == 5 ? 1 : 0;
        std::vector<int> Puls{20 + d, 16 + d, 84};
        EXPECT_NE(std::search(b.begin(), b.end(), Puls.begin(), Puls.end()), b.end()) << v;
    }
}

TEST_F(MC_Test, a_read_of_an_89C55WD_takes_at_least_16383_clocks_more_than_it_has_bytes)
{
    Einsetzen("89C55WD", 20480);
    Hex_Puffer.assign(20480, 0);
    Tessel2_Lesen();
    const std::vector<int> b      = Datenbytes();
    int                    Clocks = 0;
    for (std::size_t i = 1; i < b.size(); ++i)
        Clocks += (b[i] & 8) != 0 && (b[i - 1] & 8) == 0;
    EXPECT_GE(Clocks, 16383 + 20480);
    EXPECT_EQ(Clocks, 47 + 256 + 256 + 16383 + 20480 + 16383);
}

TEST_F(MC_Test, a_weak_cell_is_written_again_until_it_takes)
{
    for (int n = 1; n <= 10; ++n) {
        Mit_Bild("89C51", 4, Vier);
        Board().Baustein()->Schwache_Zelle(2, n);
        Brennen_Hier();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << n;
        EXPECT_EQ(Inhalt(), Vier);
        EXPECT_EQ(Versuch_Statistik[static_cast<std::size_t>(n)], n == 1 ? 4 : 1);
        EXPECT_EQ(Versuch, 1);
    }
}

TEST_F(MC_Test, a_dead_cell_is_reported_in_both_languages_at_the_eleventh_attempt)
{
    Mit_Bild("89C51", 400, {});
    Hex_Daten[300] = 0xA5;
    Board().Baustein()->Tote_Zelle(300, 0x0A);
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_EQ(Versuch, 11);
    EXPECT_EQ(Letzte_Meldung(), "Error while programming address 300(dec) / 12C(hex) !");
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen.back().Titel, "Warning");
    EXPECT_EQ(Box.Meldungen.back().Bild, Symbol::Kritisch);
    EXPECT_EQ(Datenbytes().back(), 69);
    Sprache = "D";
    Brennen_Hier();
    EXPECT_EQ(Box.Meldungen.back().Titel, "Warnung");
    EXPECT_EQ(Letzte_Meldung(),
              "Fehler beim Brennen der Adresse 300(dez) / 12C(hex) !\r\nDiese Adresse sollte auf "
              "'A5'(hex) gebrannt werden, sie bleibt aber auf 'AF'(hex)!");
}

TEST_F(MC_Test, a_stuck_line_is_reported_in_both_languages_after_ten_loads)
{
    Mit_Bild("89C51", 64, {});
    Hex_Daten[20]               = 0x0A;
    Board().Fehler.Klemmt_Auf_0 = 0x02;
    C_IC = C_IC_bei_B = false;
    Brennen_Hier();
    EXPECT_EQ(Letzte_Meldung(),
              "Error while programming address 20(dec) / 14(hex) !\r\nCan't send data 'A'(hex) to "
              "the 74HC595 or can't read it back with 74HC157. Please check your hardware!");
    Sprache = "D";
    Brennen_Hier();
    EXPECT_EQ(
        Letzte_Meldung(),
        "Fehler beim Brennen der Adresse 20(dez) / 14(hex) !\r\nDie Übermittlung der Daten "
        "'A'(hex) an den 74HC595 funktionierte nicht oder die Daten konnten nicht vom 74HC157 "
        "korrekt eingelesen werden! Bitte überprüfen Sie die Hardware!");
    EXPECT_EQ(Box.Meldungen.back().Bild, Symbol::Kritisch);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
}

TEST_F(MC_Test, with_No_FF_a_cell_that_should_be_blank_and_is_not_ends_in_the_error)
{
    Mit_Bild("89C51", 4, Vier);
    Inhalt()[1] = 0x7F;
    Brennen_Hier();
    EXPECT_EQ(Letzte_Meldung(), "Error while programming address 1(dec) / 1(hex) !");
    Mit_Bild("89C51", 4, Vier);
    Inhalt()[1] = 0x7F;
    C_IC_bei_B  = false;
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
}

TEST_F(MC_Test, the_00h_fill_is_not_verified)
{
    Mit_Bild("89C51", 16, {1, 2});
    Board().Baustein()->Tote_Zelle(3, 0xFF);
    Brennen_Hier([] {
        BR_EBA_D_Change("10");
        Brennmenue.DAT00 = true;
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt()[3], 0xFF);
    EXPECT_EQ(Inhalt()[4], 0x00);
}

TEST_F(MC_Test, with_No_FF_off_the_tessel2_goes_to_the_end_of_the_part)
{
    Mit_Bild("89C51", 8, {1, 2});
    No_FF = false;
    Brennen_Hier();
    EXPECT_EQ(Bis_Adresse, 7);
    EXPECT_EQ(Inhalt(), (Bytes_T{1, 2, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST_F(MC_Test, a_signature_that_is_given_up_closes_the_dialog_and_touches_nothing)
{
    Mit_Bild("89C51", 4, Vier);
    Board().Fehler.Falsche_Kennung = true;
    Brennen_Hier();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_EQ(Inhalt(), Bytes_T(4, 0xFF));
}

TEST_F(MC_Test, an_erase_first_that_is_given_up_ends_the_whole_command)
{
    Mit_Bild("89C51", 4, Vier);
    Inhalt()                       = Bytes_T(4, 0);
    Board().Fehler.Falsche_Kennung = true;
    Brennen_Hier([] { Brennmenue.Löschen = true; });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Inhalt(), Bytes_T(4, 0));
}

TEST_F(MC_Test, an_erase_command_that_is_given_up_shows_no_state)
{
    Mit_Bild("89C51", 4, Vier);
    Board().Fehler.Falsche_Kennung = true;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_FALSE(CheckIC.Offen);
}

TEST_F(MC_Test, the_dialogs_erase_takes_any_type_on_the_tessel2)
{
    for (const char* E : {"89CII", "89SII", "89X", ""}) {
        Mit_Bild("89C51", 4, Vier);
        Inhalt()                 = Bytes_T(4, 0);
        Geraete_Tabelle[0].E_Typ = E;
        Brennen_Hier([] { Brennmenue.Löschen = true; });
        EXPECT_EQ(Inhalt(), Vier) << E;
    }
}

TEST_F(MC_Test, the_erase_of_an_89C55WD_asks_twice_for_the_supply_in_one_language)
{
    for (const char* s : {"E", "D"}) {
        Mit_Bild("89C55WD", 4, Vier);
        Sprache = s;
        Box.Meldungen.clear();
        Tessel2_Löschen_WD();
        ASSERT_EQ(Box.Meldungen.size(), 2u);
        for (const Meldung_T& m : Box.Meldungen)
            EXPECT_EQ(m.Text, "Please power the device down and up again!");
    }
}

TEST_F(MC_Test, the_hourglass_is_up_while_a_part_is_erased)
{
    Mit_Bild("89C51", 4, Vier);
    Tessel2_Löschen();
    EXPECT_TRUE(Ereignisse.Zeiger_Wartet);
    MNU_IC_Löschen_Click();
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

TEST_F(MC_Test, a_slow_erase_leaves_the_part_as_it_was)
{
    for (const char* Name : {"89C2051", "89C51", "89C55WD"}) {
        Einsetzen(Name, Bytes_T(4, 0));
        Baustein().Zellen.Loesch_Faktor = 1000;
        Baustein_Löschen();
        EXPECT_EQ(Inhalt(), Bytes_T(4, 0)) << Name;
    }
}

// ---- calculations ----

TEST(MC_Rechnungen, the_status_bytes_of_both_boards_carry_every_data_byte)
{
    // Bit by bit: status bit, board, select, data bit, and whether it comes inverted.
    struct Leitung_T {
        int  Status, Tessel1_0, Tessel1_1, Tessel2_0, Tessel2_1;
        bool Umgekehrt;
    };
    const Leitung_T Leitungen[] = {{7, -1, -1, 2, 3, true},
                                   {6, 3, 2, 4, 5, false},
                                   {5, 1, 0, 0, 1, false},
                                   {4, 5, 4, -1, -1, false},
                                   {3, 7, 6, 6, 7, false}};
    for (int s = 0; s < 256; ++s) {
        int t1[2] = {0, 0};
        int t2[2] = {0, 0};
        for (const Leitung_T& l : Leitungen) {
            const int w = s >> l.Status & 1;
            if (l.Tessel1_0 >= 0) {
                t1[0] |= w << l.Tessel1_0;
                t1[1] |= w << l.Tessel1_1;
            }
            if (l.Tessel2_0 >= 0) {
                t2[0] |= (w ^ (l.Umgekehrt ? 1 : 0)) << l.Tessel2_0;
                t2[1] |= (w ^ (l.Umgekehrt ? 1 : 0)) << l.Tessel2_1;
            }
        }
        const auto b = static_cast<std::uint8_t>(s);
        EXPECT_EQ(Tessel1_Ungerade_Bits(b), t1[0]) << s;
        EXPECT_EQ(Tessel1_Gerade_Bits(b), t1[1]) << s;
        EXPECT_EQ(Tessel2_Gerade_Bits(b), t2[0]) << s;
        EXPECT_EQ(Tessel2_Ungerade_Bits(b), t2[1]) << s;
    }
}

TEST(MC_Rechnungen, the_sweeps_are_where_they_are_told)
{
    for (std::int32_t a = 0; a < 65536; ++a) {
        const bool Block = a == 16383;
        EXPECT_EQ(Sprung_Beim_Lesen("89C55WD", a), Block ? 16383 : 0);
        EXPECT_EQ(Sprung_Beim_Lesen("89F58", a), Block || a == 32767 ? 16383 : 0);
        EXPECT_EQ(Sprung_Beim_Lesen("89F54", a), Block ? 45055 : 0);
        EXPECT_EQ(Sprung_Beim_Lesen("89C55", a), 0);
        EXPECT_EQ(Sprung_Beim_Brennen("89C55WD", a), Block ? 16383 : 0);
        EXPECT_EQ(Sprung_Beim_Brennen("89F58", a), Block ? 16383 : 0);
        EXPECT_EQ(Sprung_Beim_Brennen("89F54", a), Block ? 45055 : 0);
        EXPECT_EQ(Sprung_Beim_Brennen("89S53", a), 0);
    }
    EXPECT_EQ(Sprung_Vor_Null("89C55WD"), 16383);
    EXPECT_EQ(Sprung_Vor_Null("89C55"), 0);
}

TEST(MC_Rechnungen, the_lock_level_is_the_highest_bit_that_is_0)
{
    for (int b = 0; b < 256; ++b) {
        const int Erwartet = (b & 4) == 0 ? 3 : (b & 2) == 0 ? 2 : (b & 1) == 0 ? 1 : 0;
        EXPECT_EQ(Stufe_In_Sperrbits(static_cast<std::uint8_t>(b)), Erwartet) << b;
    }
}

} // namespace
} // namespace varnholt::test
