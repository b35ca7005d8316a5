// Start of the port driver and the waits.
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Lesen.h"
#include "programmer/Special.h"

namespace varnholt::test {
namespace {

class Special_Test : public Brenner_Welt {
protected:
    Special_Test() { Plattform.Port = &Port; }
    Skript_Port Port{};
};

TEST_F(Special_Test, the_driver_is_opened_calibrated_and_given_three_registers)
{
    Porttreiber_Laden();
    EXPECT_EQ(Port.Rufe, (std::vector<std::string>{"open", "calibrate", "enable 888 3"}));
    EXPECT_TRUE(Porttreiber_OK);
    EXPECT_EQ(Eichwert, 77u);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Special_Test, the_port_base_of_the_options_is_unlocked)
{
    Port_Basis = 0x278;
    Porttreiber_Laden();
    EXPECT_EQ(Port.Rufe.back(), "enable 632 3");
}

TEST_F(Special_Test, a_result_below_zero_is_success)
{
    Port.Oeffnen_Ergebnis = Port.Eich_Ergebnis = Port.Bereich_Ergebnis = -5;
    Porttreiber_Laden();
    EXPECT_TRUE(Porttreiber_OK);
}

TEST_F(Special_Test, a_driver_that_cannot_be_opened_is_told_in_english)
{
    Port.Oeffnen_Ergebnis = 0x1F;
    Porttreiber_Laden();
    EXPECT_FALSE(Porttreiber_OK);
    EXPECT_EQ(Port.Rufe, (std::vector<std::string>{"open"}));
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "Kithara port driver");
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Portdriver has not been loaded sucessfully.\r\nERROR = &H1F ('no driver')");
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Warnung);
}

TEST_F(Special_Test, a_driver_that_cannot_be_opened_is_told_in_german)
{
    Sprache               = "D";
    Port.Oeffnen_Ergebnis = 2;
    Porttreiber_Laden();
    EXPECT_EQ(Letzte_Meldung(),
              "Die Porttreiber konnten nicht geladen werden!\r\nERROR = &H2 ('no driver')");
}

TEST_F(Special_Test, a_clock_that_cannot_be_calibrated_leaves_no_driver)
{
    Port.Eich_Ergebnis = 3;
    Porttreiber_Laden();
    EXPECT_FALSE(Porttreiber_OK);
    EXPECT_EQ(Port.Rufe.size(), 3u);
    EXPECT_NE(Letzte_Meldung().find("&H3 "), std::string::npos);
}

TEST_F(Special_Test, a_refused_port_range_leaves_no_driver)
{
    Port.Bereich_Ergebnis = 4;
    Porttreiber_Laden();
    EXPECT_FALSE(Porttreiber_OK);
    EXPECT_EQ(Treiber_Ergebnis, 4);
    EXPECT_NE(Letzte_Meldung().find("&H4 "), std::string::npos);
}

TEST_F(Special_Test, the_drivers_text_ends_at_its_zero_and_at_255_characters)
{
    Port.Fehlertext = std::string("short\0rest", 10);
    Porttreiber_Fehler(1, "T", {"d", "e"});
    EXPECT_EQ(Letzte_Meldung(), "e\r\nERROR = &H1 ('short')");
    Port.Fehlertext = std::string(300, 'x');
    Porttreiber_Fehler(1, "T", {"d", "e"});
    EXPECT_EQ(Letzte_Meldung(), "e\r\nERROR = &H1 ('" + std::string(255, 'x') + "')");
}

TEST_F(Special_Test, a_wait_of_0_looks_twice_at_least_and_ends_on_the_first_other_stamp)
{
    Port.Stempel_Liste = {50, 50, 50, 51, 52};
    Warte_Mikrosekunden(0);
    EXPECT_EQ(Port.Blicke, 4);
    EXPECT_EQ(Stempel_Anfang, 50);
    EXPECT_EQ(Stempel_Jetzt, 51);
}

TEST_F(Special_Test, a_wait_of_0_ends_at_the_second_look_when_that_differs)
{
    Port.Stempel_Liste = {50, 51};
    Warte_Mikrosekunden(0);
    EXPECT_EQ(Port.Blicke, 2);
}

TEST_F(Special_Test, a_wait_lasts_longer_than_asked_never_shorter)
{
    Port.Stempel_Liste = {100, 105, 110, 111};
    Warte_Mikrosekunden(10);
    EXPECT_EQ(Stempel_Jetzt, 111);
    EXPECT_EQ(Port.Rufe, (std::vector<std::string>{"waits 10"}));
}

TEST_F(Special_Test, a_wrap_of_the_low_word_ends_a_wait_early)
{
    Port.Stempel_Liste = {0x7FFFFFF0, 0x80000001};
    Warte_Mikrosekunden(1000000);
    EXPECT_EQ(Port.Blicke, 2);
}

TEST_F(Special_Test, only_the_low_word_of_the_stamps_counts)
{
    Port.Stempel_Liste = {0x100000005, 0x300000006, 0x500000008};
    Warte_Mikrosekunden(2);
    EXPECT_EQ(Port.Blicke, 3);
}

TEST_F(Special_Test, a_millisecond_is_a_thousand_microseconds)
{
    Warte_Millisekunde();
    EXPECT_EQ(Port.Rufe, (std::vector<std::string>{"waits 1000"}));
    EXPECT_EQ(Stempel_Jetzt - Stempel_Anfang, 1001);
}

TEST_F(Special_Test, seconds_are_over_when_the_clock_is_at_their_end)
{
    Port.Sekunden_Liste = {10.0, 10.5, 10.69, 10.75};
    Warte_Sekunden(0.7);
    EXPECT_EQ(Port.Blicke, 4);
}

TEST_F(Special_Test, seconds_do_not_know_midnight)
{
    Port.Sekunden_Liste = {86399.95, 0.0, 500.0, 86399.0, 86400.1};
    Warte_Sekunden(0.1);
    EXPECT_EQ(Port.Blicke, 5);
}

TEST_F(Special_Test, a_pulse_is_timed_from_its_own_stamp)
{
    Puls_Anfang        = 1000;
    Port.Stempel_Liste = {1050, 1100, 1101};
    Puls_Abwarten(100);
    EXPECT_EQ(Puls_Jetzt, 1101);
    EXPECT_EQ(Port.Rufe, (std::vector<std::string>{"waits 100"}));
}

TEST_F(Special_Test, on_a_simulated_board_waits_end_at_their_length_and_are_counted)
{
    Geraet("27C64", 8);
    Simulierter_Eprommer& b = Board_Anschliessen();
    Warte_Mikrosekunden(1000000000); // as no test could wait; beyond the low word too
    EXPECT_GE(b.Vergangen(), 1000000000);
    const std::int64_t Vorher = b.Vergangen();
    Warte_Sekunden(0.7);
    EXPECT_GE(b.Vergangen() - Vorher, 700000);
    EXPECT_LE(b.Vergangen() - Vorher, 700010);
    Plattform.Port->Sleep(75);
    EXPECT_GE(b.Vergangen() - Vorher, 775000);
}

struct Kommando {
    const char* Name;
    void (*Lauf)();
};

class Waechter_Test : public Special_Test, public ::testing::WithParamInterface<Kommando> {
protected:
    Waechter_Test() { Modus = Modus_Hex; }
};

TEST_P(Waechter_Test, without_a_driver_a_device_command_only_says_so)
{
    for (const auto& [Kuerzel, Text] :
         {std::pair{"D",
                    "Porttreiber wurden nicht korrekt geladen. Parallelportzugriff nicht "
                    "möglich."},
          std::pair{"E",
                    "Portdriver has not been loaded sucessfully. Parallelport access not "
                    "possible."}}) {
        Sprache = Kuerzel;
        Box.Meldungen.clear();
        GetParam().Lauf();
        ASSERT_EQ(Box.Meldungen.size(), 1u);
        EXPECT_EQ(Letzte_Meldung(), Text);
    }
    EXPECT_TRUE(Port.Rufe.empty());
    EXPECT_FALSE(Status.Geoeffnet);
    EXPECT_FALSE(Brennmenue.Offen);
}

TEST_P(Waechter_Test, without_a_device_a_device_command_only_says_so)
{
    Porttreiber_OK = true;
    for (const auto& [Kuerzel, Text] :
         {std::pair{"D", "Bitte wählen Sie zuerst ein IC im Menü 'Brenner' -> 'IC Wählen' aus."},
          std::pair{"E", "Please choose first a IC in the menu 'Programmer' -> 'Choose IC'."}}) {
        Sprache = Kuerzel;
        GetParam().Lauf();
        EXPECT_EQ(Letzte_Meldung(), Text);
    }
    EXPECT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_TRUE(Port.Rufe.empty());
}

INSTANTIATE_TEST_SUITE_P(Commands,
                         Waechter_Test,
                         ::testing::Values(Kommando{"Brennen", MNU_IC_Brennen_Click},
                                           Kommando{"Lesen", MNU_IC_Lesen_Click},
                                           Kommando{"Pruefen", MNU_IC_Prüfen_Click}),
                         [](const auto& i) { return i.param.Name; });

} // namespace
} // namespace varnholt::test
