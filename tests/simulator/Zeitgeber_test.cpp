// Parity, timers 0 to 2 and the levels of the pins: one peripheral pass at a time.
#include "simulator/Maschinen_Welt.h"

#include <array>

namespace varnholt::test {
namespace {

class Zeitgeber : public Maschinen_Welt {
protected:
    // Registers and bits of timer i (0 or 1).
    static std::uint8_t& TL(int i) { return R(SFR::TL0 + i); }
    static std::uint8_t& TH(int i) { return R(SFR::TH0 + i); }
    static int           TF(int i) { return Bit(SFR::TCON, 5 + 2 * i); }
    static void          TR(int i, bool An = true) { Bit_Zu(SFR::TCON, 4 + 2 * i, An); }
    static void          Gate(int i, bool An = true) { Bit_Zu(SFR::TMOD, 3 + 4 * i, An); }
    static void          CT(int i, bool An = true) { Bit_Zu(SFR::TMOD, 2 + 4 * i, An); }
    static void          Zaehlpin(int i, bool Hoch) { Bit_Zu(SFR::P3, 4 + i, Hoch); }
    static void          INT(int i, bool Hoch) { Bit_Zu(SFR::P3, 2 + i, Hoch); }
    static void          Modus_Setzen(int i, int m)
    {
        Bit_Zu(SFR::TMOD, 4 * i, (m & 1) != 0);
        Bit_Zu(SFR::TMOD, 4 * i + 1, (m & 2) != 0);
    }

    // Everything of the timers off, timer i on in that mode with that counter.
    static void Stellen(int i, int m, int Hoch, int Tief)
    {
        Sim_RAM.fill(0);
        Sim_Pins = {};
        TR(i);
        Modus_Setzen(i, m);
        TH(i) = static_cast<std::uint8_t>(Hoch);
        TL(i) = static_cast<std::uint8_t>(Tief);
    }
    // Counter and flag of timer 0 or 1: `TH TL TF`.
    static std::string Stand(int i)
    {
        return Hex_Zahl(TH(i)) + " " + Hex_Zahl(TL(i)) + " " + std::to_string(TF(i));
    }
    static std::string Nach(int i, int m, int Hoch, int Tief, int n)
    {
        Stellen(i, m, Hoch, Tief);
        Peripherie_Takt(n);
        return Stand(i);
    }
    // A falling edge on the count pin of timer i, passed with n ticks.
    static void Flanke(int i, int n)
    {
        Zaehlpin(i, true);
        Peripherie_Takt(n);
        Zaehlpin(i, false);
        Peripherie_Takt(n);
    }
};

TEST_F(Zeitgeber, the_parity_is_1_for_an_odd_number_of_ones)
{
    for (int a = 0; a < 256; ++a)
        for (const int psw : {0x00, 0x01, 0xFE, 0xFF}) {
            R(SFR::ACC) = static_cast<std::uint8_t>(a);
            R(SFR::PSW) = static_cast<std::uint8_t>(psw);
            Paritaet_Setzen();
            int Einsen = 0;
            for (int n = 0; n < 8; ++n)
                Einsen += a >> n & 1;
            EXPECT_EQ(R(SFR::PSW), (psw & 0xFE) | Einsen % 2) << a;
        }
}

TEST_F(Zeitgeber, a_direct_write_to_the_parity_is_overwritten_at_once)
{
    Mache("75 D0 FF");
    EXPECT_EQ(R(SFR::PSW), 0xFE);
    R(SFR::ACC) = 0x10;
    Mache("C2 D0");
    EXPECT_EQ(Bit(SFR::PSW, 0), 1);
}

// --- timers 0 and 1 ---

TEST_F(Zeitgeber, without_TR_a_timer_stands_in_every_mode)
{
    for (int i = 0; i < 2; ++i)
        for (int m = 0; m < 4; ++m) {
            Stellen(i, m, 0xFF, 0xFF);
            TR(i, false);
            Peripherie_Takt(3);
            EXPECT_EQ(Stand(i), "FF FF 0") << i << m;
        }
}

TEST_F(Zeitgeber, mode_0_carries_at_32)
{
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Nach(i, 0, 0x12, 30, 1), "12 1F 0");
        EXPECT_EQ(Nach(i, 0, 0x12, 31, 1), "13 00 0");
        EXPECT_EQ(Nach(i, 0, 0x12, 31, 3), "13 02 0");
        EXPECT_EQ(Nach(i, 0, 0xFF, 31, 2), "00 01 1");
        EXPECT_EQ(Nach(i, 0, 0xFF, 28, 3), "FF 1F 0");
    }
}

TEST_F(Zeitgeber, mode_0_takes_32_off_once_when_the_low_byte_stands_above)
{
    EXPECT_EQ(Nach(0, 0, 0x12, 0xFF, 3), "13 E2 0");
    EXPECT_EQ(Nach(1, 0, 0x12, 0x40, 1), "13 21 0");
    EXPECT_EQ(Nach(1, 0, 0xFF, 0x40, 1), "00 21 1");
}

TEST_F(Zeitgeber, mode_1_carries_at_256)
{
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Nach(i, 1, 0x12, 0xFE, 1), "12 FF 0");
        EXPECT_EQ(Nach(i, 1, 0x12, 0xFF, 1), "13 00 0");
        EXPECT_EQ(Nach(i, 1, 0x12, 0xFE, 3), "13 01 0");
        EXPECT_EQ(Nach(i, 1, 0xFF, 0xFE, 3), "00 01 1");
        EXPECT_EQ(Nach(i, 1, 0xFF, 0xFC, 3), "FF FF 0");
    }
}

TEST_F(Zeitgeber, mode_2_reloads_and_drops_ticks_beyond_the_overflow)
{
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Nach(i, 2, 0xFD, 0xFF, 3), "FD FD 1");
        EXPECT_EQ(Nach(i, 2, 0xFD, 0xFF, 1), "FD FD 1");
        EXPECT_EQ(Nach(i, 2, 0x10, 0xFC, 3), "10 FF 0");
        EXPECT_EQ(Nach(i, 2, 0xFF, 0xFF, 2), "FF FF 1");
    }
}

TEST_F(Zeitgeber, an_overflow_leaves_the_rest_of_TCON_alone_and_a_pass_clears_no_flag)
{
    for (int i = 0; i < 2; ++i) {
        Stellen(i, 1, 0xFF, 0xFF);
        R(SFR::TCON) = static_cast<std::uint8_t>(0x5F);
        Peripherie_Takt(1);
        EXPECT_EQ(R(SFR::TCON), 0x5F | 0x20 << 2 * i);
        TR(i, false);
        Peripherie_Takt(3);
        EXPECT_EQ(TF(i), 1);
    }
}

TEST_F(Zeitgeber, timer_1_in_mode_3_stands_still)
{
    EXPECT_EQ(Nach(1, 3, 0xFF, 0xFF, 3), "FF FF 0");
    Gate(1);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand(1), "FF FF 0");
}

TEST_F(Zeitgeber, with_its_gate_set_a_timer_stands_in_modes_0_to_2_whatever_the_line)
{
    for (int i = 0; i < 2; ++i)
        for (int m = 0; m < 3; ++m)
            for (const bool Hoch : {false, true}) {
                Stellen(i, m, 0xFF, 0xFF);
                Gate(i);
                INT(i, Hoch);
                Peripherie_Takt(3);
                EXPECT_EQ(Stand(i), "FF FF 0") << i << m << Hoch;
            }
}

TEST_F(Zeitgeber, timers_count_the_bytes_of_an_instruction_and_not_its_cycles)
{
    Stellen(0, 1, 0, 0);
    Mache("00");
    EXPECT_EQ(TL(0), 1);
    Mache("A4");
    EXPECT_EQ(TL(0), 2);
    Mache("78 00");
    EXPECT_EQ(TL(0), 4);
    Mache("75 30 00");
    EXPECT_EQ(TL(0), 7);
    Mache("22");
    EXPECT_EQ(TL(0), 8);
    EXPECT_EQ(Sim_Zyklen, 1 + 4 + 1 + 2 + 2);
}

TEST_F(Zeitgeber, the_instruction_that_starts_or_sets_a_timer_counts_itself)
{
    Stellen(0, 1, 0, 0);
    TR(0, false);
    Mache("D2 8C");
    EXPECT_EQ(TL(0), 2);
    Mache("75 8A 40");
    EXPECT_EQ(TL(0), 0x43);
    Mache("C2 8C");
    EXPECT_EQ(TL(0), 0x43);
    Mache("E5 8A");
    EXPECT_EQ(R(SFR::ACC), 0x43);
}

TEST_F(Zeitgeber, an_instruction_reads_the_counter_before_its_own_ticks)
{
    Stellen(1, 1, 0x00, 0xFE);
    Mache("E5 8B");
    EXPECT_EQ(R(SFR::ACC), 0xFE);
    EXPECT_EQ(Stand(1), "01 00 0");
}

TEST_F(Zeitgeber, both_timers_run_beside_each_other)
{
    Stellen(0, 1, 0x00, 0x10);
    R(SFR::TCON) = 0x50;
    R(SFR::TMOD) = 0x21;
    TH(1)        = 0x80;
    TL(1)        = 0xFF;
    Peripherie_Takt(2);
    EXPECT_EQ(Stand(0), "00 12 0");
    EXPECT_EQ(Stand(1), "80 80 1");
}

// --- counting pins ---

TEST_F(Zeitgeber, a_falling_edge_counts_one_whatever_the_ticks)
{
    for (int i = 0; i < 2; ++i)
        for (int m = 0; m < 3; ++m) {
            Stellen(i, m, 0x10, 0x05);
            CT(i);
            Flanke(i, 3);
            EXPECT_EQ(Stand(i), "10 06 0") << i << m;
        }
}

TEST_F(Zeitgeber, levels_and_rising_edges_count_nothing)
{
    for (int i = 0; i < 2; ++i) {
        Stellen(i, 1, 0x10, 0x05);
        CT(i);
        for (const bool Hoch : {false, false, true, true}) {
            Zaehlpin(i, Hoch);
            Peripherie_Takt(3);
        }
        EXPECT_EQ(Stand(i), "10 05 0");
        Zaehlpin(i, false);
        Peripherie_Takt(3);
        Peripherie_Takt(3);
        EXPECT_EQ(Stand(i), "10 06 0");
    }
}

TEST_F(Zeitgeber, each_timer_counts_at_its_own_pin)
{
    for (int i = 0; i < 2; ++i) {
        Stellen(i, 1, 0x10, 0x05);
        CT(i);
        Flanke(1 - i, 1);
        EXPECT_EQ(Stand(i), "10 05 0");
    }
}

TEST_F(Zeitgeber, an_edge_overflows_a_counter)
{
    for (int i = 0; i < 2; ++i) {
        Stellen(i, 1, 0xFF, 0xFF);
        CT(i);
        Flanke(i, 3);
        EXPECT_EQ(Stand(i), "00 00 1");
        Stellen(i, 2, 0x77, 0xFF);
        CT(i);
        Flanke(i, 3);
        EXPECT_EQ(Stand(i), "77 77 1");
    }
}

TEST_F(Zeitgeber, an_edge_is_lost_while_TR_or_the_gate_forbids)
{
    for (int i = 0; i < 2; ++i) {
        Stellen(i, 1, 0x10, 0x05);
        CT(i);
        TR(i, false);
        Flanke(i, 1);
        TR(i);
        Peripherie_Takt(1);
        Gate(i);
        Flanke(i, 1);
        Gate(i, false);
        Peripherie_Takt(1);
        EXPECT_EQ(Stand(i), "10 05 0");
    }
}

TEST_F(Zeitgeber, a_program_that_takes_P3_4_from_1_to_0_counts_one_tick)
{
    Stellen(0, 1, 0, 0);
    CT(0);
    R(SFR::P3) = 0xFF;
    Mache("00");
    Mache("C2 B4");
    EXPECT_EQ(Stand(0), "00 01 0");
    Mache("D2 B4");
    Mache("B2 B4");
    EXPECT_EQ(Stand(0), "00 02 0");
}

// --- timer 0 in mode 3 ---

TEST_F(Zeitgeber, mode_3_splits_timer_0_in_two)
{
    Stellen(0, 3, 0x20, 0x10);
    TR(1);
    Modus_Setzen(1, 3);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand(0), "23 13 0");
    EXPECT_EQ(TF(1), 0);
}

TEST_F(Zeitgeber, in_mode_3_TL0_sets_TF0_and_TH0_sets_TF1)
{
    Stellen(0, 3, 0x20, 0xFE);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand(0), "20 01 1");
    EXPECT_EQ(TF(1), 0);
    Stellen(0, 3, 0xFE, 0x10);
    TR(1);
    Modus_Setzen(1, 3);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand(0), "01 13 0");
    EXPECT_EQ(TF(1), 1);
    Stellen(0, 3, 0xFC, 0xFC);
    TR(1);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand(0), "FF FF 0");
}

TEST_F(Zeitgeber, in_mode_3_TL0_runs_by_TR0_and_TH0_by_TR1)
{
    Stellen(0, 3, 0x20, 0x10);
    Peripherie_Takt(1);
    EXPECT_EQ(Stand(0), "20 11 0");
    TR(0, false);
    TR(1);
    Peripherie_Takt(1);
    EXPECT_EQ(Stand(0), "21 11 0");
}

TEST_F(Zeitgeber, in_mode_3_a_gate_lets_its_half_run_while_its_line_is_high)
{
    for (const bool Hoch : {false, true}) {
        Stellen(0, 3, 0x20, 0x10);
        TR(1);
        Gate(0);
        INT(0, Hoch);
        Peripherie_Takt(1);
        EXPECT_EQ(Stand(0), Hoch ? "21 11 0" : "21 10 0");
        Stellen(0, 3, 0x20, 0x10);
        TR(1);
        Gate(1);
        INT(1, Hoch);
        Peripherie_Takt(1);
        EXPECT_EQ(Stand(0), Hoch ? "21 11 0" : "20 11 0");
    }
}

TEST_F(Zeitgeber, with_timer_0_in_mode_3_timer_1_counts_without_TR1_and_whatever_its_gate)
{
    for (const bool Mit_Gate : {false, true})
        for (const bool Mit_TR : {false, true}) {
            Stellen(0, 3, 0x20, 0x10);
            Modus_Setzen(1, 1);
            Gate(1, Mit_Gate);
            TR(1, Mit_TR);
            TL(1) = 0xFF;
            TH(1) = 0xFF;
            Peripherie_Takt(2);
            EXPECT_EQ(Stand(1), "00 01 1");
            EXPECT_EQ(Stand(0), Mit_TR && !Mit_Gate ? "22 12 0" : "20 12 0");
        }
}

TEST_F(Zeitgeber, with_timer_0_in_mode_3_timer_1_counts_by_its_own_mode)
{
    const std::array<std::string, 4> Soll{"00 00 1", "81 00 0", "80 80 1", "80 FF 0"};
    for (int m = 0; m < 4; ++m) {
        Stellen(0, 3, 0x20, 0x10);
        Modus_Setzen(1, m);
        TL(1) = m == 0 ? 31 : 0xFF;
        TH(1) = m == 0 ? 0xFF : 0x80;
        Peripherie_Takt(1);
        EXPECT_EQ(Stand(1), Soll.at(static_cast<std::size_t>(m))) << m;
    }
}

TEST_F(Zeitgeber, with_both_timers_in_mode_3_timer_1_stands_and_TH0_counts_by_TR1)
{
    Stellen(0, 3, 0xFF, 0x10);
    Modus_Setzen(1, 3);
    TR(1);
    TL(1) = TH(1) = 0xFF;
    Peripherie_Takt(1);
    EXPECT_EQ(Stand(1), "FF FF 1");
    EXPECT_EQ(Stand(0), "00 11 0");
}

TEST_F(Zeitgeber, in_mode_3_a_half_that_counts_waits_for_the_edge_of_its_pin)
{
    Stellen(0, 3, 0x20, 0x10);
    TR(1);
    CT(0);
    CT(1);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand(0), "20 10 0");
    Flanke(0, 3);
    EXPECT_EQ(Stand(0), "20 11 0");
    Flanke(1, 3);
    EXPECT_EQ(Stand(0), "21 11 0");
    EXPECT_EQ(Stand(1), "00 01 0");
}

TEST_F(Zeitgeber, with_timer_0_in_mode_3_timer_1_counts_edges_without_TR1)
{
    Stellen(0, 3, 0x20, 0x10);
    TR(0, false);
    Modus_Setzen(1, 1);
    CT(1);
    Flanke(1, 3);
    EXPECT_EQ(Stand(1), "00 01 0");
    EXPECT_EQ(Stand(0), "20 10 0");
}

// --- pins ---

TEST_F(Zeitgeber, a_pass_keeps_the_levels_of_six_pins)
{
    const std::array<std::pair<int, int>, 6> Orte{
        {{SFR::P3, 4}, {SFR::P3, 5}, {SFR::P1, 0}, {SFR::P1, 1}, {SFR::P3, 2}, {SFR::P3, 3}}};
    for (std::size_t i = 0; i < Orte.size(); ++i)
        for (const bool Mit_EA : {false, true}) {
            Sim_RAM.fill(0);
            Bit_Zu(SFR::IE, 7, Mit_EA);
            R(Orte.at(i).first) = static_cast<std::uint8_t>(1 << Orte.at(i).second);
            Peripherie_Takt(1);
            std::array<std::int16_t, 6> Soll{};
            Soll.at(i) = 1;
            EXPECT_EQ(Sim_Pins, Soll) << i;
            R(Orte.at(i).first) = static_cast<std::uint8_t>(~(1 << Orte.at(i).second));
            Peripherie_Takt(1);
            EXPECT_EQ(Sim_Pins.at(i), 0) << i;
        }
}

TEST_F(Zeitgeber, pins_that_stood_low_over_a_reset_make_no_edge)
{
    Stellen(0, 1, 0, 0);
    CT(0);
    R(SFR::P3) = 0;
    Peripherie_Takt(1);
    Reset_SFR();
    R(SFR::TCON) = 0x10;
    R(SFR::TMOD) = 0x05;
    TL(0)        = 0;
    Peripherie_Takt(1);
    EXPECT_EQ(TL(0), 0);
    R(SFR::P3) = 0xEF;
    Peripherie_Takt(1);
    EXPECT_EQ(TL(0), 1);
}

// --- timer 2 ---

class Zeitgeber_2 : public Zeitgeber {
protected:
    // T2CON with TR2 and these further bits, counter and reload value.
    static void Stellen_2(int T2CON, int Zaehler, int RCAP2)
    {
        Sim_RAM.fill(0);
        Sim_Pins       = {};
        R(SFR::T2CON)  = static_cast<std::uint8_t>(T2CON | 4);
        R(SFR::TH2)    = static_cast<std::uint8_t>(Zaehler / 256);
        R(SFR::TL2)    = static_cast<std::uint8_t>(Zaehler % 256);
        R(SFR::RCAP2H) = static_cast<std::uint8_t>(RCAP2 / 256);
        R(SFR::RCAP2L) = static_cast<std::uint8_t>(RCAP2 % 256);
    }
    // `counter reload TF2 EXF2`
    static std::string Stand_2()
    {
        return Hex_Zahl(R(SFR::TH2)) + Hex_Zahl(R(SFR::TL2)) + " " + Hex_Zahl(R(SFR::RCAP2H)) +
               Hex_Zahl(R(SFR::RCAP2L)) + " " + std::to_string(Bit(SFR::T2CON, 7)) +
               std::to_string(Bit(SFR::T2CON, 6));
    }
    static std::string Nach_2(int T2CON, int Zaehler, int RCAP2, int n)
    {
        Stellen_2(T2CON, Zaehler, RCAP2);
        Peripherie_Takt(n);
        return Stand_2();
    }
    // The next pass sees a falling edge at that pin of P1.
    static void Flanke_P1(int Pin)
    {
        Sim_Pins.at(static_cast<std::size_t>(2 + Pin)) = 1;
        Bit_Zu(SFR::P1, Pin, false);
    }

    static constexpr int Fangen = 1, Zaehlen = 2, EXEN2 = 8, TCLK = 16, RCLK = 32;
};

TEST_F(Zeitgeber_2, stands_without_TR2)
{
    for (int Bits = 0; Bits < 64; ++Bits) {
        Stellen_2(Bits, 0xFFFF, 0x1234);
        Bit_Zu(SFR::T2CON, 2, false);
        Flanke_P1(0);
        Flanke_P1(1);
        Peripherie_Takt(3);
        EXPECT_EQ(Stand_2(), "FFFF 1234 00") << Bits;
    }
}

TEST_F(Zeitgeber_2, reloads_at_its_overflow_and_drops_the_ticks_beyond)
{
    EXPECT_EQ(Nach_2(0, 0x12FE, 0xABCD, 1), "12FF ABCD 00");
    EXPECT_EQ(Nach_2(0, 0x12FE, 0xABCD, 2), "1300 ABCD 00");
    EXPECT_EQ(Nach_2(0, 0xFFFC, 0xABCD, 3), "FFFF ABCD 00");
    EXPECT_EQ(Nach_2(0, 0xFFFD, 0xABCD, 3), "ABCD ABCD 10");
    EXPECT_EQ(Nach_2(0, 0xFFFF, 0xABCD, 3), "ABCD ABCD 10");
    EXPECT_EQ(Nach_2(EXEN2, 0xFFFF, 0xABCD, 3), "ABCD ABCD 10");
}

TEST_F(Zeitgeber_2, overflows_to_0_when_it_captures)
{
    EXPECT_EQ(Nach_2(Fangen, 0x12FE, 0xABCD, 3), "1301 ABCD 00");
    EXPECT_EQ(Nach_2(Fangen, 0xFFFC, 0xABCD, 3), "FFFF ABCD 00");
    EXPECT_EQ(Nach_2(Fangen, 0xFFFE, 0xABCD, 3), "0001 ABCD 10");
}

TEST_F(Zeitgeber_2, a_falling_edge_at_P1_1_reloads_when_EXEN2_allows)
{
    for (const int Bits : {0, EXEN2}) {
        Stellen_2(Bits, 0x1234, 0xABCD);
        Flanke_P1(1);
        Peripherie_Takt(1);
        EXPECT_EQ(Stand_2(), Bits == 0 ? "1235 ABCD 00" : "ABCD ABCD 01");
    }
}

TEST_F(Zeitgeber_2, a_falling_edge_at_P1_1_captures_the_counter_with_its_ticks)
{
    for (const int Bits : {0, EXEN2}) {
        Stellen_2(Fangen | Bits, 0x12FF, 0xABCD);
        Flanke_P1(1);
        Peripherie_Takt(2);
        EXPECT_EQ(Stand_2(), Bits == 0 ? "1301 ABCD 00" : "1301 1301 01");
    }
}

TEST_F(Zeitgeber_2, an_overflow_and_an_edge_in_one_pass_set_both_flags)
{
    Stellen_2(EXEN2, 0xFFFF, 0xABCD);
    Flanke_P1(1);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand_2(), "ABCD ABCD 11");
    Stellen_2(Fangen | EXEN2, 0xFFFF, 0xABCD);
    Flanke_P1(1);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand_2(), "0002 0002 11");
}

TEST_F(Zeitgeber_2, levels_and_rising_edges_at_P1_1_do_nothing)
{
    for (const int Art : {0, Fangen}) {
        Stellen_2(Art | EXEN2, 0x1234, 0xABCD);
        for (const int P1 : {0, 2, 2, 0xFF}) {
            R(SFR::P1) = static_cast<std::uint8_t>(P1);
            Peripherie_Takt(1);
        }
        EXPECT_EQ(Stand_2(), "1238 ABCD 00");
        R(SFR::P1) = 0xFD;
        Peripherie_Takt(1);
        EXPECT_EQ(Stand_2(), Art == 0 ? "ABCD ABCD 01" : "1239 1239 01");
    }
}

TEST_F(Zeitgeber_2, with_RCLK_or_TCLK_it_does_nothing)
{
    for (const int Takt : {RCLK, TCLK, RCLK | TCLK})
        for (const int Bits : {0, Fangen, Zaehlen}) {
            Stellen_2(Takt | Bits | EXEN2, 0xFFFF, 0xABCD);
            Flanke_P1(0);
            Flanke_P1(1);
            Peripherie_Takt(3);
            EXPECT_EQ(Stand_2(), "FFFF ABCD 00") << Takt << Bits;
        }
}

TEST_F(Zeitgeber_2, counts_falling_edges_at_P1_0_by_one)
{
    for (const int Art : {0, Fangen}) {
        Stellen_2(Zaehlen | Art, 0x1234, 0xABCD);
        for (const int P1 : {0, 1, 1, 0, 0, 0xFF}) {
            R(SFR::P1) = static_cast<std::uint8_t>(P1);
            Peripherie_Takt(3);
        }
        EXPECT_EQ(Stand_2(), "1235 ABCD 00");
    }
}

TEST_F(Zeitgeber_2, an_edge_at_P1_0_overflows_it)
{
    Stellen_2(Zaehlen, 0xFFFF, 0xABCD);
    Flanke_P1(0);
    Peripherie_Takt(3);
    EXPECT_EQ(Stand_2(), "ABCD ABCD 10");
}

TEST_F(Zeitgeber_2, without_an_edge_at_P1_0_a_counter_looks_at_P1_1_neither)
{
    Stellen_2(Zaehlen | EXEN2, 0x1234, 0xABCD);
    Flanke_P1(1);
    Peripherie_Takt(1);
    EXPECT_EQ(Stand_2(), "1234 ABCD 00");
    Flanke_P1(0);
    Flanke_P1(1);
    Peripherie_Takt(1);
    EXPECT_EQ(Stand_2(), "ABCD ABCD 01");
}

TEST_F(Zeitgeber_2, takes_the_ticks_that_timer_1_left)
{
    Stellen_2(0, 0x1000, 0);
    Peripherie_Takt(3); // timer 1 off
    EXPECT_EQ(R(SFR::TL2), 3);
    TR(1);
    CT(1);
    Peripherie_Takt(3); // timer 1 waits for an edge
    EXPECT_EQ(R(SFR::TL2), 6);
    Flanke(1, 3); // 3 without the edge, 1 with it
    EXPECT_EQ(R(SFR::TL2), 10);
    Gate(1); // it sees the edge, though it doesn't count it
    Flanke(1, 3);
    EXPECT_EQ(R(SFR::TL2), 14);
    TR(1, false);
    Flanke(1, 3);
    EXPECT_EQ(R(SFR::TL2), 20);
    Modus_Setzen(0, 3);
    Flanke(1, 3);
    EXPECT_EQ(R(SFR::TL2), 24);
}

TEST_F(Zeitgeber_2, an_edge_of_timer_0_does_not_touch_its_ticks)
{
    Stellen_2(0, 0x1000, 0);
    TR(0);
    CT(0);
    Flanke(0, 3);
    EXPECT_EQ(R(SFR::TL2), 6);
}

TEST_F(Zeitgeber_2, follows_the_bytes_of_instructions)
{
    Stellen_2(0, 0xFFFB, 0xFFF0);
    Mache("00");
    Mache("75 30 00");
    EXPECT_EQ(Stand_2(), "FFFF FFF0 00");
    Mache("78 00");
    EXPECT_EQ(Stand_2(), "FFF0 FFF0 10");
    Mache("C2 CF");
    EXPECT_EQ(Stand_2(), "FFF2 FFF0 00");
}

// --- what has no hardware behind it ---

TEST_F(Zeitgeber, serial_port_and_power_control_are_plain_bytes)
{
    for (const int Ort : {0x87, 0x98, 0x99, 0xC9, 0xA0, 0x80}) {
        Mache("75 " + Hex_Zahl(Ort) + " FF");
        Schritte(50);
        EXPECT_EQ(R(Ort), 0xFF) << Ort;
    }
}

} // namespace
} // namespace varnholt::test
