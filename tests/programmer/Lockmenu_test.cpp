// The form `Lockmenu`: its options, what each mode writes, and what the part then does.
#include "programmer/Lockmenu.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Lesen.h"
#include "programmer/Loeschen.h"
#include "programmer/MC_Welt.h"

#include <algorithm>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

class Lockmenu_Test : public MC_Welt {
protected:
    // Opens the form, chooses the mode and presses OK.
    void Sperren(int Schutz_Modus)
    {
        MNU_IC_LockBits_Click();
        ASSERT_TRUE(Lockmenu.Offen);
        Lockmenu_Option_Click(Schutz_Modus);
        Lockmenu_Command1_Click();
    }
};

TEST_F(Lockmenu_Test, the_captions_come_in_both_languages)
{
    Einsetzen("89C51", 4);
    MNU_IC_LockBits_Click();
    EXPECT_EQ(Lockmenu.Option[0], "Mode 1: No program lock features");
    EXPECT_EQ(Lockmenu.Option[1], "Mode 2: Programming of the flash memory is disabled");
    EXPECT_EQ(Lockmenu.Option[2], "Mode 3: Same as above, but verify is also disabled");
    EXPECT_EQ(Lockmenu.Option[3],
              "Mode 4: Same as above, but external execution is also disabled (not at "
              "AT89C1051/2051/4051)");
    EXPECT_EQ(Lockmenu.Label1,
              "Please note: After setting a protection mode 2-4, you can also reset it with a "
              "complete clear of the flash memory.");
    EXPECT_EQ(Lockmenu.Command1, "OK");
    EXPECT_EQ(Lockmenu.Command2, "Abort");
    Sprache = "D";
    MNU_IC_LockBits_Click();
    EXPECT_EQ(Lockmenu.Option[0], "Modus 1: Keine Protections Bits gesetzt.");
    EXPECT_EQ(Lockmenu.Option[1], "Modus 2: Flash Speicher Programmierschutz");
    EXPECT_EQ(Lockmenu.Option[2], "Modus 3: Flash Speicher Lese und Programmierschutz");
    EXPECT_EQ(Lockmenu.Option[3],
              "Modus 4: Externe Zugriffe abgeschaltet, Flash Speicher Lese und "
              "Programmiersschutz (nicht bei 89C1051/2051/4051)");
    EXPECT_TRUE(Lockmenu.Label1.starts_with(
        "Bitte beachten Sie, das Sie den Schutzmodus nachher nur noch erhöhen oder nur durch ein "
        "Löschen des kompletten Flash Speichers zurücksetzen können."));
    EXPECT_EQ(Lockmenu.Command2, "Abbrechen");
}

TEST_F(Lockmenu_Test, the_form_is_shown_and_unloaded)
{
    Einsetzen("89C51", 4);
    MNU_IC_LockBits_Click();
    EXPECT_TRUE(Fenster.Formular_Sichtbar(Formular::F_Lockmenu));
    Lockmenu_Command2_Click();
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_Lockmenu));
    EXPECT_FALSE(Lockmenu.Offen);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Spur(), "") << "cancel writes nothing";
}

TEST_F(Lockmenu_Test, without_a_port_driver_or_a_device_a_box_tells_so)
{
    Einsetzen("89C51", 4);
    Porttreiber_OK = false;
    MNU_IC_LockBits_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Portdriver has not been loaded sucessfully. Parallelport access not possible.");
    Porttreiber_OK = true;
    IC_Nummer      = -1;
    MNU_IC_LockBits_Click();
    EXPECT_EQ(Letzte_Meldung(), "Please choose first a IC in the menu 'IC' -> 'Choose type'.");
    Sprache = "D";
    MNU_IC_LockBits_Click();
    EXPECT_EQ(Letzte_Meldung(), "Bitte wählen Sie zuerst ein IC im Menü 'IC' -> 'Typ Wählen' aus.");
    EXPECT_FALSE(Lockmenu.Offen);
    EXPECT_EQ(Spur(), "");
}

TEST_F(Lockmenu_Test, mode_4_can_not_be_chosen_for_the_20_pin_parts)
{
    for (const char* Name : {"89C1051", "89C2051", "89C4051"}) {
        Einsetzen(Name, 4);
        MNU_IC_LockBits_Click();
        EXPECT_FALSE(Lockmenu.Option4_Aktiv);
        EXPECT_FALSE(Schutz_Modus_4_Moeglich());
        Lockmenu_Option_Click(3);
        Lockmenu_Option_Click(4);
        EXPECT_EQ(Lockmenu.Schutz_Modus, 3);
    }
    for (const char* Name : {"89C51", "89S53", "89C55WD", "89F58"}) {
        Einsetzen(Name, 4);
        MNU_IC_LockBits_Click();
        EXPECT_TRUE(Lockmenu.Option4_Aktiv) << Name;
        EXPECT_TRUE(Schutz_Modus_4_Moeglich());
    }
}

TEST_F(Lockmenu_Test, an_option_that_does_not_exist_is_no_choice)
{
    Einsetzen("89C51", 4);
    MNU_IC_LockBits_Click();
    for (const int n : {0, 5, -1}) {
        Lockmenu_Option_Click(n);
        EXPECT_EQ(Lockmenu.Schutz_Modus, 1);
    }
}

TEST_F(Lockmenu_Test, only_the_parts_that_tell_their_state_are_asked_when_the_form_opens)
{
    for (const char* Name : {"89C51", "89C52", "89C55", "89F54", "89F58", "89C2051"}) {
        Einsetzen(Name, 4);
        Baustein().Sperren(1);
        MNU_IC_LockBits_Click();
        EXPECT_EQ(Spur(), "") << Name;
        EXPECT_EQ(Lockmenu.Schutz_Modus, 1);
    }
    for (const char* Name : {"89S53", "89S8252", "89C55WD"})
        for (int Bit = 0; Bit <= 3; ++Bit) {
            Einsetzen(Name, 4);
            if (Bit > 0)
                Baustein().Sperren(Bit);
            MNU_IC_LockBits_Click();
            EXPECT_EQ(Lockmenu.Schutz_Modus, Bit + 1) << Name;
        }
}

TEST_F(Lockmenu_Test, a_signature_that_is_given_up_leaves_the_form_closed_and_writes_nothing)
{
    Einsetzen("89S53", 4);
    Board().Fehler.Falsche_Kennung = true;
    MNU_IC_LockBits_Click();
    EXPECT_FALSE(Lockmenu.Offen);
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_Lockmenu));
    EXPECT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Stufe(), 0);
}

TEST_F(Lockmenu_Test, the_end_is_told_in_both_languages)
{
    Einsetzen("89C51", 4);
    Sperren(2);
    EXPECT_EQ(Letzte_Meldung(), "Protection mode bit(s) programmed!");
    EXPECT_FALSE(Lockmenu.Offen);
    Sprache = "D";
    Sperren(2);
    EXPECT_EQ(Letzte_Meldung(), "Protection Mode Bit(s) gesetzt!");
}

TEST_F(Lockmenu_Test, each_mode_writes_its_levels_one_after_the_other)
{
    struct Fall_T {
        const char *Name, *Spur;
        int         Hoechster;
    };
    const Fall_T Faelle[] = {{"89C51", "t2_sperren_CII_", 4}, {"89C2051", "t1_sperren_", 3}};
    for (const Fall_T& f : Faelle) {
        std::string Erwartet;
        for (int m = 1; m <= f.Hoechster; ++m) {
            Einsetzen(f.Name, 4);
            Sperren(m);
            if (m > 1)
                Erwartet += Erwartete_Spur(f.Spur + std::to_string(m - 1));
            EXPECT_EQ(Spur(), Erwartet) << f.Name << m;
            EXPECT_EQ(Stufe(), m == 1 ? 0 : m);
        }
    }
}

class Sperr_Test : public Lockmenu_Test, public ::testing::WithParamInterface<const char*> {
protected:
    static constexpr std::int32_t Bytes = 64;
    bool Ist_20_Pin() const { return std::string_view(GetParam()).ends_with("051"); }
};

TEST_P(Sperr_Test, every_mode_takes_effect_and_an_erase_clears_it)
{
    const Bytes_T Inhalt_Vorher(Bytes, 0x3C);
    for (int m = 1; m <= (Ist_20_Pin() ? 3 : 4); ++m) {
        Einsetzen(GetParam(), Inhalt_Vorher);
        Sperren(m);
        EXPECT_EQ(Stufe(), m == 1 ? 0 : m);
        Baustein_Lesen();
        EXPECT_EQ(Gelesen(Bytes), m >= 3 ? Bytes_T(Bytes, 0xFF) : Inhalt_Vorher) << m;
        Bild_Fuellen({0x30});
        Brennen();
        EXPECT_EQ(Inhalt()[0], m >= 2 ? 0x3C : 0x30) << m;
        Baustein_Löschen();
        EXPECT_EQ(Stufe(), 0);
        EXPECT_EQ(Inhalt(), Bytes_T(Bytes, 0xFF));
        Brennen();
        EXPECT_EQ(Inhalt()[0], 0x30) << m;
    }
}

TEST_P(Sperr_Test, a_5_V_part_is_locked_too)
{
    const int Hoechster = Ist_20_Pin() ? 3 : 4;
    Einsetzen(GetParam(), Bytes);
    Baustein().Spannung = 5;
    Sperren(Hoechster);
    EXPECT_EQ(Stufe(), Hoechster);
}

TEST_P(Sperr_Test, mode_1_on_a_locked_part_does_nothing)
{
    Einsetzen(GetParam(), Bytes);
    Baustein().Sperren(2);
    Sperren(1);
    EXPECT_EQ(Stufe(), 3);
    EXPECT_EQ(Letzte_Meldung(), "Protection mode bit(s) programmed!");
}

TEST_P(Sperr_Test, a_mode_below_the_present_one_does_not_lower_it)
{
    Einsetzen(GetParam(), Bytes);
    Sperren(3);
    Sperren(2);
    EXPECT_EQ(Stufe(), 3);
}

INSTANTIATE_TEST_SUITE_P(Parts,
                         Sperr_Test,
                         ::testing::Values("89C1051",
                                           "89C2051",
                                           "89C4051",
                                           "89C51",
                                           "89C52",
                                           "89C55",
                                           "89C55WD",
                                           "89S53",
                                           "89S8252",
                                           "89F54",
                                           "89F58"),
                         [](const auto& i) { return std::string(i.param); });

TEST_F(Lockmenu_Test, the_voltage_of_the_lock_write_is_that_of_the_last_signature)
{
    // A read before gives the signature; without one the lock write goes by 5 V.
    struct Fall_T {
        bool Lesen;
        int  Spannung, v;
    };
    for (const Fall_T& f : {Fall_T{false, 12, 1}, Fall_T{true, 12, 0}, Fall_T{true, 5, 1}}) {
        Brenner_Zuruecksetzen();
        Einsetzen("89C51", Bytes_T(4, 0));
        Baustein().Spannung = f.Spannung;
        if (f.Lesen)
            Baustein_Lesen();
        Spur();
        Sperren(2);
        EXPECT_EQ(Datenbytes(), (std::vector<int>{f.v, 69}));
    }
}

TEST_F(Lockmenu_Test, a_device_of_another_name_is_locked_by_its_board)
{
    struct Fall_T {
        int         Board;
        const char* Spur;
    };
    for (const Fall_T& f : {Fall_T{3, "t2_sperren_CII_1"}, Fall_T{2, "t1_sperren_1"}}) {
        Einsetzen("89X", 4).Programmer = f.Board;
        Geraete_Tabelle[0].L_Typ       = "89X";
        Anschliessen();
        Sperren(2);
        EXPECT_EQ(Spur(), Erwartete_Spur(f.Spur));
    }
    Geraete_Tabelle[0].Programmer = 1;
    Sperren(2);
    EXPECT_EQ(Spur(), "") << "the Eprommer has no routine for it";
}

} // namespace
} // namespace varnholt::test
