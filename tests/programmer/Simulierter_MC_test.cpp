// The simulated microcontrollers and their two boards, edge by edge.
#include "core/settings.h"
#include "programmer/MC_Signale.h"
#include "programmer/MC_Welt.h"
#include "programmer/Signale.h"

#include <rapidcheck.h>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

class Simulierter_MC_Test : public MC_Welt {
protected:
    void Daten(std::initializer_list<int> Werte)
    {
        for (const int w : Werte)
            Daten_Senden(w);
    }
    void Takten(int n, int Hoch, int Tief)
    {
        for (int i = 0; i < n; ++i)
            Daten({Hoch, Tief});
    }
    void Vergehen(std::int64_t Mikrosekunden) { Board().Wartet(Mikrosekunden); }
    // The byte on the lines, by two status reads.
    int Lesen_II()
    {
        const int g = Tessel2_Gerade_Bits(Status_Lesen());
        Daten_Senden(197);
        const int u = Tessel2_Ungerade_Bits(Status_Lesen());
        Daten_Senden(69);
        return g + u;
    }
    int Lesen_I()
    {
        Daten_Senden(73);
        const int u = Tessel1_Ungerade_Bits(Status_Lesen());
        Daten_Senden(201);
        const int g = Tessel1_Gerade_Bits(Status_Lesen());
        Daten_Senden(73);
        return g + u;
    }
    // Shifts a byte into the 74HC595 and onto the bus; the other lines are those of Ruhe.
    void Laden(std::uint8_t Wert, int Ruhe)
    {
        for (int i = 7; i >= 0; --i) {
            const int b = (Wert >> i & 1) * 128;
            Daten({Ruhe + 64 + b, Ruhe + 96 + b});
        }
        Daten({Ruhe, Ruhe + 64, Ruhe});
    }
    bool Bereit_II() { return (Status_Lesen() & Bereit_Tessel2) != 0; }
    bool Bereit_I() { return (Status_Lesen() & Bereit_Tessel1) != 0; }
};

// ---- Tessel2 ----

class Tessel2_Board_Test : public Simulierter_MC_Test {
protected:
    void SetUp() override { Einsetzen("89C51", {1, 2, 3, 4, 5, 6, 7, 8}); }
    void Brennen_Stellen()
    {
        Steuerung_Senden(11);
        Steuerung_Senden(5);
        Daten({85});
    }
    // A write with the byte on the bus, broken off after that time.
    void Schreiben(std::uint8_t Wert, int v, std::int64_t Zeit)
    {
        Laden(Wert, 20 + v);
        Daten({16 + v, 84});
        Vergehen(Zeit);
    }
};

TEST_F(Tessel2_Board_Test, the_board_decodes_what_the_595_holds_for_every_byte)
{
    for (int w = 0; w < 256; ++w) {
        Laden(static_cast<std::uint8_t>(w), 20);
        EXPECT_EQ(Board().Speicher_595(), w);
        EXPECT_EQ(Board().Bus(), w);
        const int g = Tessel2_Gerade_Bits(Status_Lesen());
        Daten({148});
        EXPECT_EQ(g + Tessel2_Ungerade_Bits(Status_Lesen()), w);
    }
}

TEST_F(Tessel2_Board_Test, the_counter_steps_on_the_rising_edge_of_D3)
{
    Daten({69});
    Steuerung_Senden(11);
    Steuerung_Senden(7);
    for (int a = 0; a < 8; ++a) {
        EXPECT_EQ(Baustein().Zaehler_Stand(), a);
        EXPECT_EQ(Lesen_II(), a + 1);
        Daten({77});
        EXPECT_EQ(Baustein().Zaehler_Stand(), a + 1);
        Daten({77, 69});
    }
}

TEST_F(Tessel2_Board_Test, the_counter_runs_over_and_the_part_repeats_itself)
{
    Daten({69});
    Steuerung_Senden(11);
    Steuerung_Senden(7);
    Takten(8, 77, 69);
    EXPECT_EQ(Lesen_II(), 1);
    Takten(65536 - 8 + 2, 77, 69);
    EXPECT_EQ(Baustein().Zaehler_Stand(), 2);
    EXPECT_EQ(Lesen_II(), 3);
}

TEST_F(Tessel2_Board_Test, a_size_that_is_no_power_of_two_leaves_a_gap_of_FFh)
{
    Einsetzen("89C55", Bytes_T(20, 0x33));
    Daten({69});
    Steuerung_Senden(11);
    Steuerung_Senden(7);
    Takten(19, 77, 69);
    EXPECT_EQ(Lesen_II(), 0x33);
    Takten(1, 77, 69);
    EXPECT_EQ(Lesen_II(), 0xFF);
    Takten(12, 77, 69);
    EXPECT_EQ(Lesen_II(), 0x33);
}

TEST_F(Tessel2_Board_Test, control_11_and_a_change_from_it_reset_the_counter_and_nothing_else_does)
{
    for (int Von = 0; Von < 16; ++Von)
        for (int Nach = 0; Nach < 16; ++Nach) {
            Steuerung_Senden(Von);
            Takten(3, 77, 69);
            Steuerung_Senden(Nach);
            EXPECT_EQ(Baustein().Zaehler_Stand() == 0, Von == 11 || Nach == 11) << Von << Nach;
        }
}

TEST_F(Tessel2_Board_Test, the_signature_stands_in_the_mode_11_at_its_counter_values)
{
    Daten({69});
    Steuerung_Senden(11);
    EXPECT_EQ(Lesen_II(), 0x1E);
    Takten(1, 77, 69);
    EXPECT_EQ(Lesen_II(), 0x51);
    Takten(1, 77, 69);
    EXPECT_EQ(Lesen_II(), 0xFF);
    Baustein().Spannung = 5;
    EXPECT_EQ(Lesen_II(), 5);
    Takten(1, 77, 69);
    EXPECT_EQ(Lesen_II(), 0xFF);
}

TEST_F(Tessel2_Board_Test, the_part_drives_only_while_it_is_read)
{
    Daten({69});
    Steuerung_Senden(11);
    Steuerung_Senden(7);
    EXPECT_EQ(Board().Bus(), 1);
    for (const int Daten_Byte : {69 + 16, 69 - 4}) { // programming voltage on, strobe low
        Daten({Daten_Byte});
        EXPECT_EQ(Board().Bus(), 0xFF) << Daten_Byte;
    }
    Daten({69});
    for (const int Art : {0, 4, 5, 8, 10, 12, 14}) {
        Steuerung_Senden(Art);
        EXPECT_EQ(Board().Bus(), 0xFF) << Art;
    }
}

TEST_F(Tessel2_Board_Test, a_write_needs_its_time_before_the_next_clock)
{
    Einsetzen("89C51", Bytes_T(8, 0xFF)); // nine tenths of 100 + 1000 us
    Brennen_Stellen();
    Schreiben(0x42, 0, 989);
    Takten(1, 93, 85);
    EXPECT_EQ(Inhalt()[0], 0xFF);
    Schreiben(0x43, 0, 990);
    Takten(1, 93, 85);
    EXPECT_EQ(Inhalt()[1], 0x43);
}

TEST_F(Tessel2_Board_Test, the_ready_line_goes_down_for_the_time_of_a_write)
{
    Einsetzen("89C51", Bytes_T(8, 0xFF));
    Brennen_Stellen();
    EXPECT_TRUE(Bereit_II());
    Schreiben(0x42, 0, 0);
    EXPECT_FALSE(Bereit_II());
    Vergehen(989);
    EXPECT_FALSE(Bereit_II());
    Vergehen(1);
    EXPECT_TRUE(Bereit_II());
    EXPECT_EQ(Inhalt()[0], 0x42);
}

TEST_F(Tessel2_Board_Test, the_wrong_voltage_programs_nothing)
{
    for (const int Spannung : {12, 5})
        for (const int v : {0, 1}) {
            Einsetzen("89C51", Bytes_T(8, 0xFF));
            Baustein().Spannung = Spannung;
            Brennen_Stellen();
            Schreiben(0x42, v, 2000);
            Takten(1, 93, 85);
            EXPECT_EQ(Inhalt()[0] == 0x42, (Spannung == 5) == (v == 1)) << Spannung << v;
        }
}

TEST_F(Tessel2_Board_Test, a_strobe_without_voltage_mode_or_byte_programs_nothing)
{
    Einsetzen("89C51", Bytes_T(8, 0xFF));
    Brennen_Stellen();
    Laden(0x42, 20);
    Daten({4, 0, 4}); // without D4
    Vergehen(2000);
    Daten({84, 80, 84}); // the 74HC595 off the bus
    Vergehen(2000);
    Steuerung_Senden(7);
    Daten({20, 16, 84});
    Vergehen(2000);
    Takten(1, 93, 85);
    EXPECT_EQ(Inhalt(), Bytes_T(8, 0xFF));
}

TEST_F(Tessel2_Board_Test, bits_only_go_from_1_to_0)
{
    Einsetzen("89C51", Bytes_T(8, 0x0F));
    Brennen_Stellen();
    Schreiben(0xF3, 0, 2000);
    Takten(1, 93, 85);
    EXPECT_EQ(Inhalt()[0], 0x03);
}

struct Loesch_Fall {
    const char* Name;
    int         Steuerung;
    int         Dauer; // microseconds that are just enough
};

class Loesch_Test : public Simulierter_MC_Test,
                    public ::testing::WithParamInterface<Loesch_Fall> {};

TEST_P(Loesch_Test, an_erase_needs_mode_voltages_and_time)
{
    const auto [Name, Art, Genug] = GetParam();
    for (int c = 0; c < 16; ++c)
        for (const int d : {80, 81, 64, 84})
            for (const int Zeit : {Genug - 1, Genug}) {
                Einsetzen(Name, Bytes_T(4, 0));
                Baustein().Sperren(3);
                Daten({85});
                Steuerung_Senden(c);
                Daten({d});
                Vergehen(Zeit);
                Daten({85});
                const bool Soll = c == Art && d == 80 && Zeit == Genug;
                EXPECT_EQ(Inhalt() == Bytes_T(4, 0xFF), Soll) << c << ' ' << d << ' ' << Zeit;
                EXPECT_EQ(Stufe(), Soll ? 0 : 4);
            }
}

INSTANTIATE_TEST_SUITE_P(Parts,
                         Loesch_Test,
                         ::testing::Values(Loesch_Fall{"89C51", 10, 10000},
                                           Loesch_Fall{"89S53", 10, 10000},
                                           Loesch_Fall{"89C55WD", 10, 500},
                                           Loesch_Fall{"89F54", 12, 10000},
                                           Loesch_Fall{"89F58", 12, 10000}),
                         [](const auto& i) { return std::string(i.param.Name); });

TEST_F(Tessel2_Board_Test, another_mode_in_the_middle_of_an_erase_ends_it)
{
    Einsetzen("89C51", Bytes_T(4, 0));
    Daten({85});
    Steuerung_Senden(10);
    Daten({80});
    Vergehen(9000);
    Steuerung_Senden(7);
    Steuerung_Senden(10);
    Vergehen(9000);
    Daten({85});
    EXPECT_EQ(Inhalt(), Bytes_T(4, 0));
}

TEST_F(Tessel2_Board_Test, the_lock_pulse_sets_the_bit_of_the_mode_it_began_in)
{
    const int Art[] = {4, 8, 14};
    for (int Bit = 1; Bit <= 3; ++Bit) {
        Einsetzen("89C51", Bytes_T(4, 0));
        Daten({69});
        Steuerung_Senden(Art[Bit - 1]);
        Daten({1});
        Vergehen(50000);
        Steuerung_Senden(14);
        Daten({69});
        EXPECT_EQ(Stufe(), Bit + 1);
    }
}

TEST_F(Tessel2_Board_Test, a_mode_that_comes_with_the_strobe_low_begins_no_lock_pulse)
{
    Daten({0});
    Steuerung_Senden(4);
    Vergehen(50000);
    Daten({69});
    EXPECT_EQ(Stufe(), 0);
}

TEST_F(Tessel2_Board_Test, the_three_lock_sequences_differ)
{
    // The sequence of each lock type on a part of another one sets nothing.
    const auto CII = [&] {
        Steuerung_Senden(4);
        Daten({1});
        Vergehen(50000);
        Steuerung_Senden(14);
    };
    const auto WD = [&] {
        Steuerung_Senden(4);
        Daten({20, 4});
        Vergehen(50000);
        Daten({21});
        Steuerung_Senden(14);
    };
    const std::pair<const char*, std::function<void()>> Folgen[] = {{"89C51", CII},
                                                                    {"89C55WD", WD}};
    for (const char* Name : {"89C51", "89C55WD", "89S53"})
        for (const auto& [Fuer, Folge] : Folgen) {
            Einsetzen(Name, Bytes_T(4, 0));
            Daten({69});
            Folge();
            Daten({69});
            EXPECT_EQ(Stufe(), std::string_view(Name) == Fuer ? 2 : 0) << Name << Fuer;
        }
}

TEST_F(Tessel2_Board_Test, an_89S_part_takes_the_eight_bits_behind_the_strobe)
{
    for (int Bits = 0; Bits < 256; ++Bits) {
        Einsetzen("89S53", Bytes_T(4, 0));
        Steuerung_Senden(14);
        Daten({4, 68, 4, 0});
        for (int i = 7; i >= 0; --i) {
            const int b = (Bits >> i & 1) * 128;
            Daten({68 + b, 100 + b});
        }
        Daten({69});
        EXPECT_EQ(Stufe(),
                  (Bits & 4) == 0   ? 4
                  : (Bits & 2) == 0 ? 3
                  : (Bits & 1) == 0 ? 2
                                    : 0)
            << Bits;
    }
}

TEST_F(Tessel2_Board_Test, seven_bits_are_no_lock_write)
{
    Einsetzen("89S53", Bytes_T(4, 0));
    Steuerung_Senden(14);
    Daten({4, 68, 4, 0});
    for (int i = 0; i < 7; ++i)
        Daten({68, 100});
    Daten({69});
    EXPECT_EQ(Stufe(), 0);
}

TEST_F(Tessel2_Board_Test, the_lock_level_only_rises)
{
    Baustein().Sperren(3);
    Baustein().Sperren(1);
    EXPECT_EQ(Stufe(), 4);
}

TEST_F(Tessel2_Board_Test, any_level_byte_of_a_file_is_bounded)
{
    for (int n = 0; n < 256; ++n) {
        Einsetzen("89S53", Bytes_T(4, 0x33));
        Baustein().Zellen.Sperr_Stufe = n;
        const int Gesetzt             = std::clamp(n - 1, 0, 3);
        EXPECT_EQ(Baustein().Sperrbits(), 0xFF & ~((1 << Gesetzt) - 1)) << n;
        EXPECT_EQ(Baustein().Code(), n >= 3 ? 0xFF : 0x33) << n;
    }
}

TEST_F(Tessel2_Board_Test, a_part_taken_out_leaves_an_open_bus_and_no_ready_line)
{
    Board().Im_Sockel.reset();
    Daten({69});
    Steuerung_Senden(11);
    EXPECT_EQ(Lesen_II(), 0xFF);
    EXPECT_FALSE(Bereit_II());
    EXPECT_EQ(Board().Baustein(), nullptr);
    Board().Im_Sockel = Simulierter_MC(Geraete_Tabelle[0], 1);
    EXPECT_EQ(Lesen_II(), 0x1E);
    EXPECT_TRUE(Bereit_II());
}

TEST_F(Tessel2_Board_Test, a_silent_part_neither_answers_nor_takes_anything)
{
    Board().Fehler.Baustein_Stumm = true;
    Brennen_Stellen();
    Schreiben(0, 0, 5000);
    Takten(1, 93, 85);
    EXPECT_FALSE(Bereit_II());
    EXPECT_EQ(Inhalt()[0], 1);
    EXPECT_EQ(Baustein().Zaehler_Stand(), 0);
}

// The parts whose counter is longer than their memory: every address is met once.
TEST_F(Tessel2_Board_Test, the_windows_of_the_long_counters_hold_every_address_once)
{
    const std::pair<const char*, std::int32_t> Teile[] = {
        {"89C55WD", 20480}, {"89F54", 20480}, {"89F58", 32768}};
    for (const auto& [Name, Bytes] : Teile) {
        Einsetzen(Name, Bytes);
        for (std::int32_t a = 0; a < Bytes; ++a)
            Inhalt()[static_cast<std::size_t>(a)] = static_cast<std::uint8_t>(a % 251);
        int Getroffen = 0;
        for (int z = 0; z < 65536; ++z) {
            Getroffen += Baustein().Code() != 0xFF;
            Baustein().Takt(0);
        }
        EXPECT_GE(Getroffen, Bytes) << Name;
        EXPECT_EQ(Baustein().Zaehler_Stand(), 0);
    }
}

TEST_F(Tessel2_Board_Test, a_device_of_another_name_takes_the_signature_of_what_it_is_read_as)
{
    Einsetzen("MEIN51", 4);
    Geraete_Tabelle[0].R_Typ = "89C52";
    Anschliessen();
    EXPECT_EQ(Baustein().Art.Kennung[1], 0x52);
    Geraete_Tabelle[0].R_Typ = "89X";
    Anschliessen();
    EXPECT_EQ(Baustein().Art.Kennung[0], 0x1E);
    EXPECT_EQ(Baustein().Art.Kennung[1], 0xFF);
}

TEST_F(Tessel2_Board_Test, other_addresses_and_any_bytes_are_no_harm)
{
    rc::check([&](const std::vector<std::pair<std::uint8_t, std::uint8_t>>& Zugriffe) {
        for (const char* Name : {"89C51", "89S53", "89C55WD", "89C2051"}) {
            Einsetzen(Name, Bytes_T(16, 0x5A));
            for (const auto& [Wohin, Wert] : Zugriffe) {
                Board().KS_outpb(Port_Basis + Wohin % 4, Wert);
                Board().Wartet(Wert);
                Board().KS_inpb(Port_Basis + Wohin % 4);
            }
            RC_ASSERT(Inhalt().size() == 16u);
            RC_ASSERT(Stufe() >= 0 && Stufe() <= 4);
        }
    });
}

// ---- Tessel1 ----

class Tessel1_Board_Test : public Simulierter_MC_Test {
protected:
    void SetUp() override { Einsetzen("89C2051", {1, 2, 3, 4, 5, 6, 7, 8}); }
    void Schreiben(std::uint8_t Wert, std::int64_t Puls)
    {
        Laden(Wert, 1);
        Daten({0});
        Vergehen(Puls);
        Daten({1});
    }
};

TEST_F(Tessel1_Board_Test, the_board_decodes_what_the_595_holds_for_every_byte)
{
    for (int w = 0; w < 256; ++w) {
        Laden(static_cast<std::uint8_t>(w), 1);
        const int u = Tessel1_Ungerade_Bits(Status_Lesen());
        Daten({129});
        EXPECT_EQ(u + Tessel1_Gerade_Bits(Status_Lesen()), w);
    }
}

TEST_F(Tessel1_Board_Test, D2_resets_the_counter_and_the_rising_edge_of_D1_steps_it)
{
    Daten({77, 73});
    Steuerung_Senden(7);
    for (int a = 0; a < 8; ++a) {
        EXPECT_EQ(Lesen_I(), a + 1);
        Daten({75});
        EXPECT_EQ(Baustein().Zaehler_Stand(), a + 1);
        Daten({75, 73});
    }
    EXPECT_EQ(Lesen_I(), 1) << "it runs over";
    Daten({77});
    EXPECT_EQ(Baustein().Zaehler_Stand(), 0);
    Daten({79, 77, 79});
    EXPECT_EQ(Baustein().Zaehler_Stand(), 0) << "held by the reset";
}

TEST_F(Tessel1_Board_Test, the_signature_stands_in_the_mode_5_while_it_is_read)
{
    const std::pair<const char*, int> Teile[] = {
        {"89C1051", 0x11}, {"89C2051", 0x21}, {"89C4051", 0x41}};
    for (const auto& [Name, Typ] : Teile) {
        Einsetzen(Name, Bytes_T(4, 0));
        Daten({77, 73});
        Steuerung_Senden(5);
        EXPECT_EQ(Lesen_I(), 0x1E);
        Daten({75, 73});
        EXPECT_EQ(Lesen_I(), Typ);
        Daten({65});
        EXPECT_EQ(Board().Bus(), 0xFF) << "not with the programming voltage on";
    }
}

TEST_F(Tessel1_Board_Test, a_write_begins_when_the_pulse_ends_and_takes_its_time)
{
    Einsetzen("89C2051", Bytes_T(8, 0xFF));
    Daten({77, 73});
    Steuerung_Senden(5);
    Daten({65});
    EXPECT_TRUE(Bereit_I());
    Schreiben(0x42, 100);
    EXPECT_FALSE(Bereit_I());
    Daten({8, 9});
    Vergehen(199);
    EXPECT_FALSE(Bereit_I());
    Vergehen(1);
    EXPECT_TRUE(Bereit_I());
    EXPECT_EQ(Inhalt()[0], 0x42);
    Daten({65, 67, 65});
    EXPECT_EQ(Baustein().Zaehler_Stand(), 1);
}

TEST_F(Tessel1_Board_Test, a_clock_before_the_write_is_over_breaks_it_off)
{
    Einsetzen("89C2051", Bytes_T(8, 0xFF));
    Daten({77, 73});
    Steuerung_Senden(5);
    Daten({65});
    Schreiben(0x42, 100);
    Vergehen(199);
    Daten({65, 67, 65});
    EXPECT_EQ(Inhalt()[0], 0xFF);
    EXPECT_TRUE(Bereit_I());
}

TEST_F(Tessel1_Board_Test, a_pulse_without_voltage_mode_length_or_byte_programs_nothing)
{
    Einsetzen("89C2051", Bytes_T(8, 0xFF));
    Daten({77, 73});
    Steuerung_Senden(5);
    Laden(0x42, 9); // 5 V
    Daten({8, 9});
    Vergehen(5000);
    Laden(0x42, 5); // in reset
    Daten({4, 5});
    Vergehen(5000);
    Daten({65, 64}); // the 74HC595 off the bus
    Vergehen(100);
    Daten({65});
    Vergehen(5000);
    Schreiben(0x42, 0); // no length
    Vergehen(5000);
    Steuerung_Senden(7);
    Schreiben(0x42, 100);
    Vergehen(5000);
    Daten({73});
    EXPECT_EQ(Inhalt(), Bytes_T(8, 0xFF));
}

TEST_F(Tessel1_Board_Test, an_erase_and_a_lock_need_mode_voltage_and_time)
{
    for (int c = 0; c < 16; ++c)
        for (const int Zeit : {0, 1, 9999, 10000}) {
            Einsetzen("89C2051", Bytes_T(4, 0));
            Daten({77, 73, 65});
            Steuerung_Senden(c);
            Daten({64});
            Vergehen(Zeit);
            Daten({65});
            EXPECT_EQ(Inhalt() == Bytes_T(4, 0xFF), c == 10 && Zeit == 10000) << c << ' ' << Zeit;
            const int Erwartet = Zeit == 0 ? 0 : c == 4 ? 2 : c == 8 ? 3 : 0;
            EXPECT_EQ(Stufe(), Erwartet) << c << ' ' << Zeit;
        }
}

TEST_F(Tessel1_Board_Test, the_port_answers_only_at_its_registers)
{
    EXPECT_EQ(Board().KS_inpb(Port_Basis), 0xFF);
    EXPECT_EQ(Board().KS_inpb(Port_Basis + 2), 0xFF);
    EXPECT_EQ(Board().KS_openDriver(), 0);
    EXPECT_EQ(Board().KS_getErrorStringEx(1), "simulated board");
    const auto Vorher = Board().Schreibzugriffe();
    Board().KS_outpb(Port_Basis + 1, 1);
    Board().KS_outpb(Port_Basis + 3, 1);
    EXPECT_EQ(Board().Schreibzugriffe(), Vorher);
}

} // namespace
} // namespace varnholt::test
