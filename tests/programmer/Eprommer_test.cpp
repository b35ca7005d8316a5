// The simulated Eprommer, chip by chip and edge by edge, and the cells of its devices.
#include "programmer/Brenner_Welt.h"

namespace varnholt::test {
namespace {

constexpr std::int32_t Basis = 888;

class Eprommer_Test : public Brenner_Welt {
protected:
    // A board with a device whose cells need 90 microseconds, its counters counting from 0.
    Simulierter_Eprommer& Neu(std::string_view Typ, std::int32_t Bytes = 64)
    {
        Geraet(Typ, Bytes);
        Brett = Simuliertes_Board_Fuer(0);
        return Ruhe(dynamic_cast<Simulierter_Eprommer&>(*Brett));
    }
    static Simulierter_Eprommer& Ruhe(Simulierter_Eprommer& b)
    {
        b.KS_enableIoRange(Basis, 3);
        b.KS_outpb(Basis, 90);
        b.KS_outpb(Basis + 2, 9);
        b.KS_outpb(Basis + 2, 11);
        return b;
    }
    static void D(Simulierter_Eprommer& b, std::initializer_list<int> Werte)
    {
        for (const int w : Werte)
            b.KS_outpb(Basis, static_cast<std::uint8_t>(w));
    }
    static void C(Simulierter_Eprommer& b, int Wert)
    {
        b.KS_outpb(Basis + 2, static_cast<std::uint8_t>(Wert));
    }
    // Puts a byte into the 74HC595 with the outputs off.
    static void Laden(Simulierter_Eprommer& b, int Wert)
    {
        for (int i = 7; i >= 0; --i)
            D(b, {91 + (Wert >> i & 1) * 128, 123 + (Wert >> i & 1) * 128});
        D(b, {27, 91});
    }
    static std::vector<std::uint8_t>& Zellen(Simulierter_Eprommer& b)
    {
        return b.Baustein()->Inhalt;
    }

    std::unique_ptr<Simuliertes_Board> Brett{};
};

// ---- 74HC595 ----

TEST_F(Eprommer_Test, the_shift_register_shifts_on_the_rising_edge_of_D5_only)
{
    Simulierter_Eprommer& b = Neu("27C64");
    D(b, {64 + 128, 64 + 128 + 32, 64 + 32, 64, 64 + 128 + 32, 64 + 128 + 32});
    D(b, {0, 64}); // storage clock
    EXPECT_EQ(b.Speicher_595(), 0x03);
}

TEST_F(Eprommer_Test, the_outputs_follow_the_shift_register_only_with_a_rising_edge_of_D6)
{
    Simulierter_Eprommer& b = Neu("27C64");
    Laden(b, 0x5A);
    EXPECT_EQ(b.Speicher_595(), 0x5A);
    D(b, {91 + 128, 123 + 128});
    EXPECT_EQ(b.Speicher_595(), 0x5A);
    D(b, {27, 91});
    EXPECT_EQ(b.Speicher_595(), 0xB5);
}

TEST_F(Eprommer_Test, the_outputs_drive_the_bus_while_D6_is_0)
{
    Simulierter_Eprommer& b = Neu("27C64");
    Laden(b, 0x5A);
    D(b, {27});
    EXPECT_EQ(b.Bus(), 0x5A);
    D(b, {91});
    EXPECT_EQ(b.Bus(), 0xFF);
}

TEST_F(Eprommer_Test, clocked_together_the_storage_is_one_shift_behind)
{
    Simulierter_Eprommer& b = Neu("27C64");
    Laden(b, 0);
    D(b, {0, 128 + 64 + 32});
    EXPECT_EQ(b.Speicher_595(), 0x00);
    D(b, {0, 64});
    EXPECT_EQ(b.Speicher_595(), 0x01);
}

// ---- 74HC157 ----

TEST_F(Eprommer_Test, the_multiplexer_shows_even_bits_with_D7_at_0_and_odd_ones_with_1)
{
    Simulierter_Eprommer& b = Neu("27C64");
    for (int w = 0; w < 256; ++w) {
        Laden(b, w);
        D(b, {27});
        const int Gerade = b.KS_inpb(Basis + 1);
        D(b, {155});
        const int Ungerade = b.KS_inpb(Basis + 1);
        EXPECT_EQ(Gerade >> 4, (w & 1 ? 0 : 8) | (w & 4 ? 4 : 0) | (w & 16 ? 2 : 0) | (w >> 6 & 1));
        EXPECT_EQ(Ungerade >> 4,
                  (w & 2 ? 0 : 8) | (w & 8 ? 4 : 0) | (w & 32 ? 2 : 0) | (w >> 7 & 1));
    }
}

TEST_F(Eprommer_Test, only_the_status_register_can_be_read)
{
    Simulierter_Eprommer& b = Neu("27C64");
    EXPECT_EQ(b.KS_inpb(Basis), 0xFF);
    EXPECT_EQ(b.KS_inpb(Basis + 2), 0xFF);
}

TEST_F(Eprommer_Test, writes_to_other_addresses_reach_nothing)
{
    Simulierter_Eprommer& b = Neu("27C64");
    const std::int64_t    n = b.Schreibzugriffe();
    b.KS_outpb(Basis + 1, 0);
    b.KS_outpb(Basis + 3, 0);
    b.KS_outpb(-5, 0);
    EXPECT_EQ(b.Schreibzugriffe(), n);
}

// ---- 74HC393 ----

TEST_F(Eprommer_Test, the_counters_count_on_the_falling_edge_of_D2)
{
    Simulierter_Eprommer& b = Neu("27C64");
    D(b, {94});
    EXPECT_EQ(b.Zaehler_Stand(), 0);
    D(b, {94, 90});
    EXPECT_EQ(b.Zaehler_Stand(), 1);
    D(b, {90, 94, 90, 95, 91});
    EXPECT_EQ(b.Zaehler_Stand(), 3);
}

TEST_F(Eprommer_Test, C1_written_0_resets_and_holds_the_counters)
{
    Simulierter_Eprommer& b = Neu("27C64");
    D(b, {94, 90, 94, 90});
    C(b, 9);
    EXPECT_EQ(b.Zaehler_Stand(), 0);
    D(b, {94, 90});
    EXPECT_EQ(b.Zaehler_Stand(), 0);
    C(b, 11);
    D(b, {94, 90});
    EXPECT_EQ(b.Zaehler_Stand(), 1);
}

TEST_F(Eprommer_Test, the_counters_have_16_bits)
{
    Simulierter_Eprommer& b = Neu("27C64");
    for (int i = 0; i < 65535; ++i)
        D(b, {94, 90});
    EXPECT_EQ(b.Zaehler_Stand(), 0xFFFF);
    D(b, {94, 90});
    EXPECT_EQ(b.Zaehler_Stand(), 0);
}

// ---- wiring ----

TEST_F(Eprommer_Test, the_upper_address_lines_are_C3_C0_inverted_and_C2)
{
    Simulierter_Eprommer&               b        = Neu("27C040", 524288);
    const std::pair<int, std::uint32_t> Faelle[] = {{9 + 2, 0},
                                                    {1 + 2, 0x10000},
                                                    {8 + 2, 0x20000},
                                                    {0 + 2, 0x30000},
                                                    {9 + 4 + 2, 0x40000},
                                                    {0 + 4 + 2, 0x70000}};
    for (const auto& [Steuerung, Adresse] : Faelle) {
        C(b, Steuerung);
        EXPECT_EQ(b.Baustein_Adresse(), Adresse);
    }
}

TEST_F(Eprommer_Test, a_device_with_its_strobe_at_C2_has_no_address_line_there)
{
    Simulierter_Eprommer& b = Neu("27C020", 262144);
    C(b, 9 + 4 + 2);
    EXPECT_EQ(b.Baustein_Adresse(), 0u);
}

TEST_F(Eprommer_Test, the_512_kbyte_flash_has_D0_as_its_highest_address_line)
{
    Simulierter_Eprommer& b = Neu("29C040", 524288);
    D(b, {74});
    EXPECT_EQ(b.Baustein_Adresse(), 0u);
    D(b, {73});
    EXPECT_EQ(b.Baustein_Adresse(), 0x40000u);
}

TEST_F(Eprommer_Test, counter_bit_15_is_the_line_A14_of_a_28C256)
{
    Simulierter_Eprommer& b = Neu("28C256", 32768);
    for (int i = 0; i < 0x4000; ++i)
        D(b, {94, 90});
    EXPECT_EQ(b.Baustein_Adresse() & 0x7FFF, 0u);
    for (int i = 0; i < 0x4000; ++i)
        D(b, {94, 90});
    EXPECT_EQ(b.Baustein_Adresse() & 0x7FFF, 0x4000u);
}

TEST_F(Eprommer_Test, a_28C64_answers_only_where_counter_bit_13_is_high)
{
    Simulierter_Eprommer& b = Neu("28C64", 8192);
    Zellen(b)[0]            = 0x12;
    D(b, {75});
    EXPECT_EQ(b.Bus(), 0xFF);
    for (int i = 0; i < 0x2000; ++i)
        D(b, {79, 75});
    EXPECT_EQ(b.Bus(), 0x12);
}

TEST_F(Eprommer_Test, the_latch_of_the_87C257_holds_the_address_while_its_supply_pin_is_low)
{
    Simulierter_Eprommer& b = Neu("87C257", 32768);
    D(b, {90, 94, 90}); // 5 V: open
    EXPECT_EQ(b.Baustein_Adresse() & 0x7FFF, 1u);
    D(b, {91, 95, 91}); // 0 V: the counters move on, the device stays
    EXPECT_EQ(b.Zaehler_Stand(), 2);
    EXPECT_EQ(b.Baustein_Adresse() & 0x7FFF, 1u);
    D(b, {90});
    EXPECT_EQ(b.Baustein_Adresse() & 0x7FFF, 2u);
}

TEST_F(Eprommer_Test, a_27C512_reads_with_its_supply_pin_at_0_V_only)
{
    Simulierter_Eprommer& b = Neu("27C512");
    Zellen(b)[0]            = 0x12;
    D(b, {75});
    EXPECT_EQ(b.Bus(), 0x12);
    D(b, {74});
    EXPECT_EQ(b.Bus(), 0xFF);
}

TEST_F(Eprommer_Test, a_device_outputs_while_D4_is_0)
{
    for (const char* Typ : {"27C64", "27C256", "27C040", "28C256", "28F010", "29C256"}) {
        Simulierter_Eprommer& b = Neu(Typ);
        Zellen(b)[0]            = 0x34;
        D(b, {75});
        EXPECT_EQ(b.Bus(), 0x34) << Typ;
        D(b, {91});
        EXPECT_EQ(b.Bus(), 0xFF) << Typ;
    }
}

// ---- programming ----

// The pulse of each family by the bytes of its routine.
struct Puls_Fall {
    const char* Typ;
    int         F;      // correction of the bytes
    bool        Mit_C2; // the pulse goes out on C2 too
};

class Puls_Test : public Eprommer_Test, public ::testing::WithParamInterface<Puls_Fall> {
protected:
    int                   F() const { return GetParam().F; }
    Simulierter_Eprommer& Geladen()
    {
        Simulierter_Eprommer& b = Neu(GetParam().Typ);
        C(b, 9 + 4 + 2);
        Laden(b, 0xA5);
        D(b, {27 + F()});
        return b;
    }
    void Beginnen(Simulierter_Eprommer& b, bool Versorgung = true, bool Strobe = true) const
    {
        if (Versorgung)
            D(b, {25 + F()});
        if (Strobe)
            D(b, {(Versorgung ? 17 : 19) + F()});
        if (Strobe && GetParam().Mit_C2)
            C(b, 9 + 2);
    }
    void Enden(Simulierter_Eprommer& b) const
    {
        C(b, 9 + 4 + 2);
        D(b, {27 + F(), 91 + F()});
    }
};

TEST_P(Puls_Test, the_sequence_programs_the_addressed_cell)
{
    Simulierter_Eprommer& b = Geladen();
    Beginnen(b);
    b.Wartet(90);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xA5);
    EXPECT_EQ(Zellen(b)[1], 0xFF);
}

TEST_P(Puls_Test, a_pulse_below_the_threshold_programs_nothing_but_counts)
{
    Simulierter_Eprommer& b = Geladen();
    Beginnen(b);
    b.Wartet(89);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xFF);
    D(b, {27 + F()});
    Beginnen(b);
    b.Wartet(1);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xA5);
}

TEST_P(Puls_Test, without_the_programming_supply_nothing_is_programmed)
{
    Simulierter_Eprommer& b = Geladen();
    Beginnen(b, false, true);
    b.Wartet(1000);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_P(Puls_Test, without_the_strobe_nothing_is_programmed)
{
    Simulierter_Eprommer& b = Geladen();
    Beginnen(b, true, false);
    b.Wartet(1000);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_P(Puls_Test, with_the_bus_left_open_nothing_is_programmed)
{
    Simulierter_Eprommer& b = Geladen();
    D(b, {91 + F(), 64 + 25 + F(), 64 + 17 + F()});
    C(b, 9 + 2);
    b.Wartet(1000);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_P(Puls_Test, a_silent_device_takes_no_pulse_and_gives_no_answer)
{
    Simulierter_Eprommer& b = Geladen();
    b.Fehler.Baustein_Stumm = true;
    Zellen(b)[1]            = 0;
    Beginnen(b);
    b.Wartet(1000);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xFF);
    D(b, {95 + F(), 91 + F(), 75});
    EXPECT_EQ(b.Bus(), 0xFF);
}

TEST_P(Puls_Test, a_stuck_line_is_programmed_as_it_is_stuck)
{
    Simulierter_Eprommer& b = Geladen();
    b.Fehler.Klemmt_Auf_0   = 0x01;
    b.Fehler.Klemmt_Auf_1   = 0x02;
    Beginnen(b);
    b.Wartet(100);
    Enden(b);
    EXPECT_EQ(Zellen(b)[0], 0xA6);
}

INSTANTIATE_TEST_SUITE_P(Families,
                         Puls_Test,
                         ::testing::Values(Puls_Fall{"27C64", 0, false},
                                           Puls_Fall{"27C128", 0, false},
                                           Puls_Fall{"27C256", 0, false},
                                           Puls_Fall{"27C512", -1, false},
                                           Puls_Fall{"27C010", 0, true},
                                           Puls_Fall{"27C020", 0, true},
                                           Puls_Fall{"27C040", 0, false},
                                           Puls_Fall{"27C080", 0, false},
                                           Puls_Fall{"87C257", -1, false},
                                           Puls_Fall{"27SF256", 0, false},
                                           Puls_Fall{"27SF512", 0, false},
                                           Puls_Fall{"27SF010", 0, true}),
                         [](const auto& i) { return std::string(i.param.Typ); });

TEST_F(Eprommer_Test, with_the_outputs_of_the_device_on_nothing_is_programmed)
{
    for (const char* Typ : {"27C64", "27C128", "27C256", "27C040", "27SF256"}) {
        Simulierter_Eprommer& b = Neu(Typ);
        Laden(b, 0x00);
        D(b, {27, 25, 17 - 16});
        b.Wartet(1000);
        EXPECT_GT(b.Buskonflikte(), 0) << Typ;
        D(b, {27, 91});
        EXPECT_EQ(Zellen(b)[0], 0xFF) << Typ;
    }
}

TEST_F(Eprommer_Test, the_strobe_of_a_27C010_at_D3_alone_programs_nothing)
{
    Simulierter_Eprommer& b = Neu("27C010");
    C(b, 9 + 4 + 2);
    Laden(b, 0x00);
    D(b, {27, 25, 17});
    b.Wartet(1000);
    D(b, {27, 91});
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_F(Eprommer_Test, other_families_do_not_take_the_pulse_of_the_eproms)
{
    for (const char* Typ : {"28F010", "29C010"}) {
        Simulierter_Eprommer& b = Neu(Typ);
        Laden(b, 0x00);
        D(b, {27, 25, 17});
        C(b, 11);
        b.Wartet(1000);
        D(b, {27, 91});
        EXPECT_EQ(Zellen(b)[0], 0xFF) << Typ;
    }
}

TEST_F(Eprommer_Test, a_dead_board_gives_its_floating_lines_and_no_pulse)
{
    Simulierter_Eprommer& b = Neu("27C64");
    b.Fehler.Tot            = true;
    Laden(b, 0x00);
    D(b, {27, 25, 17});
    b.Wartet(1000);
    D(b, {27});
    EXPECT_EQ(b.KS_inpb(Basis + 1), 0x7F);
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_F(Eprommer_Test, an_empty_socket_reads_FFh)
{
    Simulierter_Eprommer b;
    Ruhe(b);
    D(b, {75});
    EXPECT_EQ(b.Bus(), 0xFF);
    EXPECT_EQ(b.Baustein(), nullptr);
    Laden(b, 0x5A);
    D(b, {27, 25, 17, 27});
    EXPECT_EQ(b.Bus(), 0x5A);
}

// ---- cells ----

TEST(Baustein_Test, a_bit_goes_from_1_to_0_only)
{
    Simulierter_Baustein b(4, 90);
    b.Puls(0, 0x0F, 100);
    b.Puls(0, 0xF0, 100);
    EXPECT_EQ(b.Inhalt[0], 0x00);
    b.Puls(0, 0xFF, 100000);
    EXPECT_EQ(b.Inhalt[0], 0x00);
}

TEST(Baustein_Test, the_pulses_of_a_bit_sum_up)
{
    Simulierter_Baustein b(4, 90);
    b.Puls(0, 0xFE, 45);
    b.Puls(0, 0xFC, 45); // bit 0 has 90, bit 1 has 45
    EXPECT_EQ(b.Inhalt[0], 0xFE);
    b.Puls(0, 0xFD, 45);
    EXPECT_EQ(b.Inhalt[0], 0xFC);
}

TEST(Baustein_Test, a_weak_cell_needs_its_number_of_pulses_and_its_time)
{
    Simulierter_Baustein b(4, 90);
    b.Schwache_Zelle(1, 3);
    b.Puls(1, 0, 1000);
    b.Puls(1, 0, 1000);
    EXPECT_EQ(b.Inhalt[1], 0xFF);
    b.Puls(1, 0, 1000);
    EXPECT_EQ(b.Inhalt[1], 0x00);
    b.Schwache_Zelle(2, 1, 10.0);
    b.Puls(2, 0, 899);
    EXPECT_EQ(b.Inhalt[2], 0xFF);
    b.Puls(2, 0, 1);
    EXPECT_EQ(b.Inhalt[2], 0x00);
    b.Puls(3, 0, 90);
    EXPECT_EQ(b.Inhalt[3], 0x00) << "its neighbour is sound";
}

TEST(Baustein_Test, the_dead_bits_of_a_cell_stay_1)
{
    Simulierter_Baustein b(4, 90);
    b.Tote_Zelle(1, 0x81);
    for (int i = 0; i < 20; ++i)
        b.Puls(1, 0x00, 1000000);
    EXPECT_EQ(b.Inhalt[1], 0x81);
}

TEST(Baustein_Test, lines_above_the_device_do_not_reach_it_and_gaps_read_FFh)
{
    Simulierter_Baustein b(8, 1);
    b.Puls(8 + 3, 0x12, 10);
    EXPECT_EQ(b.Lesen(3), 0x12);
    EXPECT_EQ(b.Lesen(0x10003), 0x12);
    Simulierter_Baustein Krumm(5, 1); // takes three address lines
    Krumm.Puls(6, 0, 10);
    EXPECT_EQ(Krumm.Lesen(6), 0xFF);
    EXPECT_EQ(Krumm.Inhalt, std::vector<std::uint8_t>(5, 0xFF));
}

TEST(Baustein_Test, a_device_without_cells_or_without_a_pulse_time_does_no_harm)
{
    Simulierter_Baustein Leer(0, 90);
    Leer.Puls(0, 0, 100);
    EXPECT_EQ(Leer.Lesen(0), 0xFF);
    Simulierter_Baustein Negativ(-5, -1);
    EXPECT_EQ(Negativ.Lesen(7), 0xFF);
    Simulierter_Baustein Schnell(2, 0);
    Schnell.Puls(0, 0, 0);
    EXPECT_EQ(Schnell.Inhalt[0], 0xFF) << "no pulse is no pulse";
    Schnell.Puls(0, 0, 1);
    EXPECT_EQ(Schnell.Inhalt[0], 0x00);
}

} // namespace
} // namespace varnholt::test
