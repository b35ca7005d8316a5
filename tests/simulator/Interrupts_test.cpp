// External lines and interrupts: who is taken, when, and what an entry does.
#include "simulator/Maschinen_Welt.h"
#include "simulator/Sim_Ansichten.h"

#include <array>

namespace varnholt::test {
namespace {

struct Quelle_T {
    std::string_view Name;
    int              Register; // of the request
    int              Bit;
    int              Freigabe; // bit of IE and IP
    int              Vektor;
    bool             Loescht; // the entry clears the request
};
constexpr std::array Quellen{Quelle_T{"external 0", SFR::TCON, 1, 0, 3, true},
                             Quelle_T{"timer 0", SFR::TCON, 5, 1, 11, true},
                             Quelle_T{"external 1", SFR::TCON, 3, 2, 19, true},
                             Quelle_T{"timer 1", SFR::TCON, 7, 3, 27, true},
                             Quelle_T{"timer 2", SFR::T2CON, 7, 5, 43, false}};

class Interrupts : public Maschinen_Welt {
protected:
    Interrupts()
    {
        Hex_Daten.fill(0);
        Sim_PC     = 0x1234;
        R(SFR::P3) = 0xFF;
        R(SFR::P1) = 0xFF;
        Bit_Zu(SFR::IE, 7, true);
        Peripherie_Takt(0);
    }
    static void Anfordern(const Quelle_T& q) { Bit_Zu(q.Register, q.Bit, true); }
    static void Freigeben(const Quelle_T& q) { Bit_Zu(SFR::IE, q.Freigabe, true); }
    static void Stufe(const Quelle_T& q, bool Hoch) { Bit_Zu(SFR::IP, q.Freigabe, Hoch); }
    static bool Angefordert(const Quelle_T& q) { return Bit(q.Register, q.Bit) == 1; }
    // Asks and allows.
    static void Stellen(const Quelle_T& q, bool Hoch = false)
    {
        Anfordern(q);
        Freigeben(q);
        Stufe(q, Hoch);
    }
    static void Zurueck() // RETI
    {
        Hex_Daten[static_cast<std::size_t>(Sim_PC)] = 0x32;
        Schritte(1);
    }
    // Lines of INT0 and INT1.
    static void Leitung(int i, bool Hoch) { Bit_Zu(SFR::P3, 2 + i, Hoch); }
    static int  IE_Flagge(int i) { return Bit(SFR::TCON, 1 + 2 * i); }
    static void IT(int i, bool Flanke) { Bit_Zu(SFR::TCON, 2 * i, Flanke); }
};

// --- entry ---

TEST_F(Interrupts, each_source_enters_at_its_vector)
{
    for (const Quelle_T& q : Quellen) {
        R(SFR::TCON) = R(SFR::T2CON) = 0;
        R(SFR::IE)                   = 0x80;
        R(SFR::SP)                   = 7;
        Sim_PC                       = 0xABCD;
        Sim_Prio                     = -1;
        Sim_Zyklen                   = 100;
        Stellen(q);
        Interrupts_Pruefen();
        EXPECT_EQ(Sim_PC, q.Vektor) << q.Name;
        EXPECT_EQ(Sim_Prio, 0) << q.Name;
        EXPECT_EQ(Sim_Zyklen, 103) << q.Name;
        EXPECT_EQ(R(SFR::SP), 9) << q.Name;
        EXPECT_EQ(R(8), 0xCD) << q.Name;
        EXPECT_EQ(R(9), 0xAB) << q.Name;
        EXPECT_EQ(Angefordert(q), !q.Loescht) << q.Name;
    }
}

TEST_F(Interrupts, an_entry_clears_only_its_own_request)
{
    for (const Quelle_T& q : Quellen) {
        R(SFR::TCON)  = 0xAA;
        R(SFR::T2CON) = 0xC0;
        R(SFR::IE)    = 0x80;
        Sim_Prio      = -1;
        Freigeben(q);
        Interrupts_Pruefen();
        EXPECT_EQ(R(SFR::TCON), q.Loescht ? 0xAA & ~(1 << q.Bit) : 0xAA) << q.Name;
        EXPECT_EQ(R(SFR::T2CON), 0xC0) << q.Name;
    }
}

TEST_F(Interrupts, without_EA_nothing_enters)
{
    for (const Quelle_T& q : Quellen)
        Stellen(q, true);
    Bit_Zu(SFR::IE, 7, false);
    Schritte(5);
    EXPECT_EQ(Sim_PC, 0x1239);
    EXPECT_EQ(Sim_Prio, -1);
}

TEST_F(Interrupts, without_its_enable_bit_a_source_does_not_enter)
{
    for (const Quelle_T& q : Quellen) {
        R(SFR::IE)   = 0xFF;
        R(SFR::TCON) = R(SFR::T2CON) = 0;
        Bit_Zu(SFR::IE, q.Freigabe, false);
        Anfordern(q);
        Interrupts_Pruefen();
        EXPECT_EQ(Sim_PC, 0x1234) << q.Name;
    }
}

TEST_F(Interrupts, a_source_enters_when_its_priority_is_above_the_one_in_service)
{
    for (const Quelle_T& q : Quellen)
        for (int In_Arbeit = -1; In_Arbeit <= 1; ++In_Arbeit)
            for (const bool Hoch : {false, true}) {
                R(SFR::TCON) = R(SFR::T2CON) = 0;
                R(SFR::IE)                   = 0x80;
                Sim_PC                       = 0x1234;
                Sim_Prio                     = static_cast<std::int16_t>(In_Arbeit);
                Stellen(q, Hoch);
                Interrupts_Pruefen();
                const bool Ja = int{Hoch} > In_Arbeit;
                EXPECT_EQ(Sim_PC, Ja ? q.Vektor : 0x1234) << q.Name << In_Arbeit << Hoch;
                EXPECT_EQ(Sim_Prio, Ja ? int{Hoch} : In_Arbeit) << q.Name << In_Arbeit << Hoch;
                EXPECT_EQ(Angefordert(q), !Ja || !q.Loescht) << q.Name << In_Arbeit << Hoch;
            }
}

TEST_F(Interrupts, only_the_priority_bit_of_the_source_counts)
{
    for (const Quelle_T& q : Quellen) {
        R(SFR::TCON) = R(SFR::T2CON) = 0;
        R(SFR::IE)                   = 0x80;
        Sim_PC                       = 0x1234;
        Sim_Prio                     = 0;
        Stellen(q);
        R(SFR::IP) = static_cast<std::uint8_t>(~(1 << q.Freigabe));
        Interrupts_Pruefen();
        EXPECT_EQ(Sim_PC, 0x1234) << q.Name;
    }
}

TEST_F(Interrupts, sources_of_one_priority_enter_in_their_order)
{
    for (const Quelle_T& q : Quellen)
        Stellen(q);
    for (const Quelle_T& q : Quellen) {
        Interrupts_Pruefen();
        EXPECT_EQ(Sim_PC, q.Vektor) << q.Name;
        Sim_Prio = -1;
    }
}

TEST_F(Interrupts, the_order_goes_before_the_priority)
{
    Stellen(Quellen[0], false);
    Stellen(Quellen[1], true);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(Sim_Prio, 0);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 11);
    EXPECT_EQ(Sim_Prio, 1);
    EXPECT_EQ(R(10), 4);
    EXPECT_EQ(R(11), 0);
}

TEST_F(Interrupts, one_call_takes_one_source_at_most)
{
    for (const Quelle_T& q : Quellen)
        Stellen(q, q.Vektor > 3);
    Interrupts_Pruefen();
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(R(SFR::SP), 9);
    EXPECT_TRUE(Angefordert(Quellen[1]));
}

TEST_F(Interrupts, there_is_none_of_the_serial_port)
{
    R(SFR::IE) = 0x90;
    R(SFR::IP) = 0x10;
    R(0x98)    = 0x03;
    Schritte(20);
    EXPECT_EQ(Sim_PC, 0x1248);
    EXPECT_EQ(Sim_Prio, -1);
}

TEST_F(Interrupts, there_is_none_of_EXF2)
{
    R(SFR::IE)    = 0xFF;
    R(SFR::IP)    = 0xFF;
    R(SFR::T2CON) = 0x40;
    Schritte(20);
    EXPECT_EQ(Sim_PC, 0x1248);
}

// --- entry within a run ---

TEST_F(Interrupts, an_overflow_enters_behind_the_instruction_that_made_it)
{
    R(SFR::TMOD) = 0x01;
    R(SFR::TCON) = 0x10;
    R(SFR::TH0) = R(SFR::TL0) = 0xFF;
    Freigeben(Quellen[1]);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 11);
    EXPECT_EQ(R(8), 0x35);
    EXPECT_EQ(R(9), 0x12);
    EXPECT_EQ(Sim_Zyklen, 4);
    EXPECT_EQ(R(SFR::TL0), 3); // the entry's own ticks
}

TEST_F(Interrupts, an_entry_passes_3_ticks_to_all_timers)
{
    Stellen(Quellen[0]);
    R(SFR::TCON) |= 0x50;
    R(SFR::TMOD)  = 0x11;
    R(SFR::T2CON) = 0x04;
    Interrupts_Pruefen();
    EXPECT_EQ(R(SFR::TL0), 3);
    EXPECT_EQ(R(SFR::TL1), 3);
    EXPECT_EQ(R(SFR::TL2), 3);
}

TEST_F(Interrupts, an_entry_counts_no_edge_twice)
{
    R(SFR::TMOD) = 0x05;
    R(SFR::TCON) = 0x10;
    Stellen(Quellen[2]);
    Mache("C2 B4");
    EXPECT_EQ(Sim_PC, 19);
    EXPECT_EQ(R(SFR::TL0), 1);
}

TEST_F(Interrupts, a_flag_that_the_program_sets_counts)
{
    for (const Quelle_T& q : Quellen) {
        R(SFR::TCON) = R(SFR::T2CON) = 0;
        R(SFR::IE)                   = 0x80;
        Sim_PC                       = 0x2000;
        Sim_Prio                     = -1;
        Freigeben(q);
        Mache("D2 " + Hex_Zahl(q.Register + q.Bit));
        EXPECT_EQ(Sim_PC, q.Vektor) << q.Name;
    }
}

TEST_F(Interrupts, external_0_goes_before_timer_0_which_waits_for_RETI)
{
    Stellen(Quellen[0]);
    Stellen(Quellen[1]);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 3);
    Schritte(3);
    EXPECT_EQ(Sim_PC, 6);
    EXPECT_TRUE(Angefordert(Quellen[1]));
    Zurueck();
    EXPECT_EQ(Sim_PC, 11);
    EXPECT_EQ(R(8), 0x35);
    EXPECT_EQ(R(9), 0x12);
}

TEST_F(Interrupts, RETI_of_a_high_level_leaves_nothing_in_service)
{
    Stellen(Quellen[0]);
    Schritte(1);
    EXPECT_EQ(Sim_Prio, 0);
    Stellen(Quellen[1], true);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 11);
    EXPECT_EQ(Sim_Prio, 1);
    Zurueck();
    EXPECT_EQ(Sim_Prio, -1);
    EXPECT_EQ(Sim_PC, 4); // within the routine of low level, which any request may enter now
    Stellen(Quellen[3]);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 27);
    EXPECT_EQ(Sim_Prio, 0);
}

TEST_F(Interrupts, RET_does_not_end_a_service)
{
    Stellen(Quellen[0]);
    Schritte(1);
    Mache("22");
    EXPECT_EQ(Sim_PC, 0x1235);
    EXPECT_EQ(Sim_Prio, 0);
    Anfordern(Quellen[0]);
    Schritte(3);
    EXPECT_EQ(Sim_PC, 0x1238);
}

TEST_F(Interrupts, TF2_stays_set_and_enters_again_at_RETI)
{
    Stellen(Quellen[4]);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 43);
    Zurueck();
    EXPECT_EQ(Sim_PC, 43);
    EXPECT_EQ(R(8), 0x35);
    Mache("C2 CF");
    Zurueck();
    EXPECT_EQ(Sim_PC, 0x1235);
    EXPECT_EQ(Sim_Prio, -1);
}

TEST_F(Interrupts, an_address_above_65535_is_pushed_modulo_65536)
{
    Stellen(Quellen[0]);
    Sim_PC = 0xFFFF;
    Schritte(1);
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(R(8), 0x00);
    EXPECT_EQ(R(9), 0x00);
    Zurueck();
    EXPECT_EQ(Sim_PC, 0);
    Stellen(Quellen[0]);
    Sim_PC = 0xFFFE;
    Mache("80 12");
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(R(8), 0x12);
    EXPECT_EQ(R(9), 0x00);
}

TEST_F(Interrupts, an_entry_goes_before_the_end_of_a_run_below_0)
{
    Stellen(Quellen[0]);
    Sim_PC = 0;
    Mache("80 80");
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(Befehl_Ausfuehren().Befehle, 1);
}

TEST_F(Interrupts, the_stack_of_an_entry_lies_among_the_registers_too)
{
    Stellen(Quellen[0]);
    R(SFR::SP) = 0x80;
    Interrupts_Pruefen();
    EXPECT_EQ(R(SFR::SP), 0x35); // 34h landed on SP
    EXPECT_EQ(R(0x35), 0x12);
    Sim_Prio   = -1;
    R(SFR::SP) = 0xFE;
    Stellen(Quellen[1]);
    Sim_PC = 0x5678;
    Interrupts_Pruefen();
    EXPECT_EQ(R(0xFF), 0x78);
    EXPECT_EQ(R(0x00), 0x56);
    EXPECT_EQ(R(SFR::SP), 0);
}

TEST_F(Interrupts, the_stack_of_an_entry_does_not_reach_upper_RAM)
{
    Stellen(Quellen[0]);
    R(SFR::SP) = 0x7F;
    R(256) = R(257) = 0x11;
    Interrupts_Pruefen();
    EXPECT_EQ(R(128), 0x34);
    EXPECT_EQ(R(256), 0x11);
}

TEST_F(Interrupts, parity_follows_an_entry_that_pushes_onto_ACC_or_PSW_one_instruction_later)
{
    Stellen(Quellen[0]);
    R(SFR::SP) = 0xDE;
    Sim_PC     = 0x7000; // the high byte goes to ACC
    Schritte(1);
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(R(0xDF), 0x01);
    EXPECT_EQ(R(SFR::ACC), 0x70);
    EXPECT_EQ(Bit(SFR::PSW, 0), 0);
    Mache("A2 D0");
    EXPECT_EQ(CY(), 0); // the instruction saw the old parity
    EXPECT_EQ(Bit(SFR::PSW, 0), 1);

    Sim_Prio = -1;
    Stellen(Quellen[0]);
    R(SFR::ACC) = 0;
    R(SFR::SP)  = 0xCF;
    Sim_PC      = 0x2000;
    Schritte(1);
    EXPECT_EQ(R(SFR::PSW), 0x01);
    Mache("A2 D0");
    EXPECT_EQ(CY(), 1);
    EXPECT_EQ(Bit(SFR::PSW, 0), 0);
}

TEST_F(Interrupts, full_speed_sees_the_parity_behind_such_an_entry_in_the_same_way)
{
    Stellen(Quellen[0]);
    R(SFR::SP) = 0xDE;
    Sim_PC     = 0x7000;
    Code(3, "A2 D0 92 00");
    R(0x20) = 0xFF;
    Vollgas_Laufen(3);
    EXPECT_EQ(R(0x20), 0xFE);
    EXPECT_EQ(Bit(SFR::PSW, 0), 1);
}

// --- external lines ---

TEST_F(Interrupts, a_low_line_asks_again_at_every_pass)
{
    for (int i = 0; i < 2; ++i) {
        Bit_Zu(SFR::IE, 2 * i, true);
        Leitung(i, false);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 1);
        Bit_Zu(SFR::TCON, 1 + 2 * i, false);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 1);
        Bit_Zu(SFR::TCON, 1 + 2 * i, false);
        Leitung(i, true);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 0);
    }
}

TEST_F(Interrupts, a_request_of_a_level_stays_when_the_line_goes_high)
{
    for (int i = 0; i < 2; ++i) {
        Bit_Zu(SFR::IE, 2 * i, true);
        Leitung(i, false);
        Peripherie_Takt(1);
        Leitung(i, true);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 1);
    }
}

TEST_F(Interrupts, an_edge_asks_once)
{
    for (int i = 0; i < 2; ++i) {
        Bit_Zu(SFR::IE, 2 * i, true);
        IT(i, true);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 0);
        Leitung(i, false);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 1);
        Bit_Zu(SFR::TCON, 1 + 2 * i, false);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 0);
        Leitung(i, true);
        Peripherie_Takt(1);
        EXPECT_EQ(IE_Flagge(i), 0);
    }
}

TEST_F(Interrupts, a_line_asks_only_for_its_own_flag)
{
    for (int i = 0; i < 2; ++i) {
        R(SFR::TCON) = 0;
        R(SFR::P3)   = 0xFF;
        R(SFR::IE)   = 0x85;
        Leitung(i, false);
        Peripherie_Takt(1);
        EXPECT_EQ(R(SFR::TCON), i == 0 ? 0x02 : 0x08);
    }
}

TEST_F(Interrupts, a_line_without_its_enable_bit_is_not_looked_at)
{
    R(SFR::IE) = 0xFA;
    for (int i = 0; i < 2; ++i)
        for (const bool Flanke : {false, true}) {
            IT(i, Flanke);
            Leitung(i, true);
            Peripherie_Takt(1);
            Leitung(i, false);
            Peripherie_Takt(1);
            EXPECT_EQ(IE_Flagge(i), 0);
        }
}

TEST_F(Interrupts, an_edge_while_EA_is_off_is_lost)
{
    R(SFR::IE)   = 0x01;
    R(SFR::TCON) = 0x01;
    Mache("C2 B2");
    EXPECT_EQ(IE_Flagge(0), 0);
    Mache("D2 AF");
    Schritte(3);
    EXPECT_EQ(IE_Flagge(0), 0);
    EXPECT_EQ(Sim_Prio, -1);
}

TEST_F(Interrupts, a_low_line_enters_again_at_once_after_each_RETI)
{
    R(SFR::IE) = 0x81;
    Leitung(0, false);
    Schritte(1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Sim_PC, 3);
        EXPECT_EQ(R(8), 0x35);
        Schritte(2);
        EXPECT_EQ(Sim_PC, 5);
        EXPECT_EQ(IE_Flagge(0), 1);
        Zurueck();
    }
    Leitung(0, true);
    Zurueck(); // the flag of the last pass is still there
    EXPECT_EQ(Sim_PC, 3);
    Zurueck();
    EXPECT_EQ(Sim_PC, 0x1235);
}

TEST_F(Interrupts, the_entry_of_a_level_sets_its_request_again)
{
    R(SFR::IE) = 0x81;
    Leitung(0, false);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(IE_Flagge(0), 1);
}

TEST_F(Interrupts, the_entry_of_an_edge_leaves_its_request_clear)
{
    R(SFR::IE)   = 0x81;
    R(SFR::TCON) = 0x01;
    Mache("C2 B2");
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(IE_Flagge(0), 0);
    Zurueck();
    EXPECT_EQ(Sim_PC, 0x1236);
}

TEST_F(Interrupts, an_edit_of_P3_by_the_user_is_an_edge_at_the_next_pass)
{
    R(SFR::IE)   = 0x84;
    R(SFR::TCON) = 0x04;
    Schritte(1);
    Hex_Uebernehmen(Sicht::SFR, "B0", "F7");
    EXPECT_EQ(IE_Flagge(1), 0);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 19);
}

TEST_F(Interrupts, lines_that_stood_low_over_a_reset_make_no_edge)
{
    R(SFR::P3) = 0;
    Peripherie_Takt(1);
    Reset_SFR(); // without names every register is FFh
    R(SFR::TCON)  = 0x05;
    R(SFR::T2CON) = 0;
    Peripherie_Takt(1);
    EXPECT_EQ(R(SFR::TCON), 0x05);
    EXPECT_EQ(Sim_Pins, (std::array<std::int16_t, 6>{1, 1, 1, 1, 1, 1}));
}

} // namespace
} // namespace varnholt::test
