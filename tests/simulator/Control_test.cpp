// The control panel: both counters and the two switches.
#include "simulator/Sitzung_Welt.h"

#include <limits>
#include <utility>

namespace varnholt::test {
namespace {

class Control_Test : public Sitzung_Welt {
protected:
    // A session with the panel on the screen.
    void Mit_Tafel(std::string_view Zeilen)
    {
        ASSERT_TRUE(Programm(Zeilen));
        if (!Menue("MNU_CONTROL").Haken)
            MNU_CONTROL_Click();
    }
};

TEST_F(Control_Test, Both_numbers_have_at_least_five_digits)
{
    EXPECT_EQ(Zaehler_Text(0), "00000 / 00000h");
    EXPECT_EQ(Zaehler_Text(9), "00009 / 00009h");
    EXPECT_EQ(Zaehler_Text(10), "00010 / 0000Ah");
    EXPECT_EQ(Zaehler_Text(65535), "65535 / 0FFFFh");
    EXPECT_EQ(Zaehler_Text(65536), "65536 / 10000h");
    EXPECT_EQ(Zaehler_Text(70000), "70000 / 11170h");
}

TEST_F(Control_Test, A_larger_count_widens_the_field)
{
    EXPECT_EQ(Zaehler_Text(99999), "99999 / 1869Fh");
    EXPECT_EQ(Zaehler_Text(100000), "100000 / 186A0h");
    EXPECT_EQ(Zaehler_Text(1048575), "1048575 / FFFFFh");
    EXPECT_EQ(Zaehler_Text(1048576), "1048576 / 100000h");
    EXPECT_EQ(Zaehler_Text(std::numeric_limits<std::int32_t>::max()), "2147483647 / 7FFFFFFFh");
}

TEST_F(Control_Test, A_negative_number_loses_its_sign_in_decimal)
{
    EXPECT_EQ(Zaehler_Text(-1), "00001 / FFFFFFFFh");
    EXPECT_EQ(Zaehler_Text(std::numeric_limits<std::int32_t>::min()), "2147483648 / 80000000h");
}

TEST_F(Control_Test, A_session_begins_at_zero)
{
    Fenster_Wert(1, Fenster_CONTROL, Feld::Sichtbar) = -1;
    ASSERT_TRUE(Programm("INC A\nSTOP\n"));
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00000 / 00000h");
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00000 / 00000h");
}

TEST_F(Control_Test, The_counters_follow_each_step)
{
    Mit_Tafel("MOV DPTR,#1\nLJMP LAST\nORG 0ABCDh\nLAST: INC A\nSTOP\n");
    Debug_Schritt();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00003 / 00003h");
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00002 / 00002h");
    Debug_Schritt();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "43981 / 0ABCDh");
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00004 / 00004h");
}

TEST_F(Control_Test, The_counters_rest_while_the_panel_is_not_ticked)
{
    ASSERT_TRUE(Programm("INC A\nINC A\nSTOP\n"));
    const auto Stand = Sim_Ansichten.Stand;
    Zyklen_Anzeigen();
    EXPECT_EQ(Sim_Ansichten.Stand, Stand);
    Debug_Schritt();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "");
    MNU_CONTROL_Click();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00001 / 00001h") << "up to date when it comes";
    MNU_CONTROL_Click();
    Debug_Schritt();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00001 / 00001h");
    Fenster_Umschalten(Fenster_CONTROL);
    Zyklen_Anzeigen();
    EXPECT_GT(Sim_Ansichten.Stand, Stand);
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00002 / 00002h");
}

TEST_F(Control_Test, The_close_box_hides_the_panel_and_clears_its_tick)
{
    Mit_Tafel("INC A\nINC A\nSTOP\n");
    Fenster_Geschlossen(Fenster_CONTROL);
    EXPECT_FALSE(Menue("MNU_CONTROL").Haken);
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_CONTROL));
    Debug_Schritt();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00000 / 00000h");
    Debug_Start_Stop();
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_CONTROL)) << "a run shows it again";
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00002 / 00002h");
}

TEST_F(Control_Test, The_cycle_counter_can_be_put_to_zero)
{
    Mit_Tafel("INC A\nINC A\nSTOP\n");
    Debug_Schritt();
    const auto RAM = Sim_RAM;
    B_Reset_Zyklen_Click();
    EXPECT_EQ(Sim_Zyklen, 0);
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00000 / 00000h");
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00001 / 00001h");
    EXPECT_EQ(Sim_RAM, RAM);
    Debug_Schritt();
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00001 / 00001h");
}

TEST_F(Control_Test, Both_switches_begin_unchecked_and_outlast_a_session)
{
    EXPECT_FALSE(Debug_Verzoegerung);
    EXPECT_FALSE(Debug_Vollgas);
    Mit_Tafel("STOP\n");
    EXPECT_FALSE(Debug_Verzoegerung);
    EXPECT_FALSE(Debug_Vollgas);
    Check1_Click(true);
    Check2_Click(true);
    Debug_Beenden();
    Mit_Tafel("STOP\n");
    EXPECT_TRUE(Debug_Verzoegerung);
    EXPECT_TRUE(Debug_Vollgas);
    Check1_Click(false);
    EXPECT_FALSE(Debug_Verzoegerung);
    EXPECT_TRUE(Debug_Vollgas);
    Check2_Click(false);
    EXPECT_FALSE(Debug_Vollgas);
}

TEST_F(Control_Test, Clearing_the_full_speed_box_brings_the_views_up_to_date_at_once)
{
    Mit_Tafel("MOV 30h,#1\nMOV B,#2\nLOOP: SJMP LOOP\n");
    Check2_Click(true);
    In_Runde(1, [] {
        EXPECT_EQ(Sim_Ansichten.RAM[0x30], 255);
        EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00000 / 00000h") << "not shown while it runs";
        Check2_Click(false);
        EXPECT_TRUE(Debug_Laeuft);
        EXPECT_EQ(Sim_Ansichten.RAM[0x30], 1);
        EXPECT_EQ(Sim_Ansichten.SFR[SFR::B], 2);
        Debug_Start_Stop();
    });
    Debug_Start_Stop();
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, Zaehler_Text(Sim_Zyklen));
}

TEST_F(Control_Test, Checking_the_full_speed_box_leaves_the_views_as_they_are)
{
    Mit_Tafel("STOP\n");
    Byte(0x30) = 1;
    Check2_Click(true);
    EXPECT_EQ(Sim_Ansichten.RAM[0x30], 255);
    Check2_Click(false);
    EXPECT_EQ(Sim_Ansichten.RAM[0x30], 1);
}

TEST_F(Control_Test, The_counter_of_a_run_goes_beyond_five_digits)
{
    Mit_Tafel("MOV R6,#250\nL1: MOV R7,#250\nL2: DJNZ R7,L2\nDJNZ R6,L1\nSTOP\n");
    Check2_Click(true);
    Debug_Start_Stop();
    const std::int32_t Zyklen = 1 + 250 * (1 + 250 * 2 + 2); // 125751
    EXPECT_EQ(Sim_Zyklen, Zyklen);
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, "125751 / 1EB37h");
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00008 / 00008h");
}

} // namespace
} // namespace varnholt::test
