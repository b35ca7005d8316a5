// The simulated EEPROMs, RAMs and flash memories: each by itself, and edge by edge in the socket of
// the board.
#include "programmer/Brenner_Welt.h"
#include "programmer/Simulierte_EEPROMs.h"
#include "programmer/Simuliertes_Flash.h"

#include <filesystem>

#include <unistd.h>

namespace varnholt::test {
namespace {

// ---- byte by byte ----

Simuliertes_EEPROM Bytes_EEPROM() { return {8, {1, 0, 900, false}}; }

TEST(EEPROM_Test, a_strobe_stores_its_byte_both_ways)
{
    auto e = Bytes_EEPROM();
    e.Schreiben(3, 0x0F, 0, 10);
    e.Zeit(1000);
    EXPECT_EQ(e.Ausgabe(3), 0x0F);
    e.Schreiben(3, 0xF0, 1000, 1010);
    e.Zeit(2000);
    EXPECT_EQ(e.Ausgabe(3), 0xF0) << "no erase is needed";
    EXPECT_EQ(e.Ausgabe(2), 0xFF);
}

TEST(EEPROM_Test, while_it_stores_it_answers_with_its_status)
{
    auto e = Bytes_EEPROM();
    e.Schreiben(3, 0x95, 0, 10);
    for (const std::int64_t t : {10, 500, 899}) {
        e.Zeit(t);
        EXPECT_EQ(e.Ausgabe(3) & 0x80, 0) << "bit 7 is inverted";
        const int Vorher = e.Ausgabe(3);
        e.Ausgabe_Beginnen();
        EXPECT_EQ(e.Ausgabe(3) ^ Vorher, 0x40) << "bit 6 changes";
    }
    e.Zeit(900);
    EXPECT_EQ(e.Ausgabe(3), 0x95);
}

TEST(EEPROM_Test, while_it_stores_it_takes_no_byte)
{
    auto e = Bytes_EEPROM();
    e.Schreiben(3, 0x11, 0, 10);
    e.Schreiben(4, 0x22, 880, 890);
    e.Zeit(5000);
    EXPECT_EQ(e.Ausgabe(4), 0xFF);
    e.Schreiben(4, 0x22, 5000, 5010);
    e.Zeit(6000);
    EXPECT_EQ(e.Ausgabe(4), 0x22);
}

TEST(EEPROM_Test, a_RAM_has_no_write_time)
{
    Simuliertes_EEPROM r(8, {});
    r.Schreiben(3, 0x11, 5, 5);
    r.Schreiben(3, 0x22, 5, 5);
    EXPECT_EQ(r.Ausgabe(3), 0x22);
}

TEST(EEPROM_Test, a_weak_cell_takes_at_its_nth_write_and_a_dead_bit_stays_as_it_is)
{
    Simuliertes_EEPROM e(8, {});
    e.Schwache_Zelle(1, 3);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(e.Ausgabe(1), 0xFF) << i;
        e.Schreiben(1, 0x10, 0, 0);
    }
    EXPECT_EQ(e.Ausgabe(1), 0x10);
    e.Inhalt[2] = 0x0F;
    e.Tote_Zelle(2, 0x11);
    e.Schreiben(2, 0xF0, 0, 0);
    EXPECT_EQ(e.Ausgabe(2), 0xE1);
}

TEST(EEPROM_Test, twelve_volts_clear_it_when_they_last)
{
    Simuliertes_EEPROM e(8, {1, 0, 900, false});
    e.Inhalt[1] = 0;
    EXPECT_TRUE(e.Loeschpuls(8999));
    EXPECT_EQ(e.Inhalt[1], 0);
    EXPECT_TRUE(e.Loeschpuls(9000));
    EXPECT_EQ(e.Inhalt[1], 0xFF);
    e.Inhalt[1]     = 0;
    e.Loesch_Faktor = 2;
    e.Loeschpuls(17999);
    EXPECT_EQ(e.Inhalt[1], 0);
    e.Loeschpuls(18000);
    EXPECT_EQ(e.Inhalt[1], 0xFF);
}

TEST(EEPROM_Test, addresses_without_a_cell_take_nothing)
{
    Simuliertes_EEPROM e(5, {});
    e.Schreiben(6, 0, 0, 0);
    EXPECT_EQ(e.Ausgabe(6), 0xFF);
    e.Schreiben(8 + 2, 0x12, 0, 0);
    EXPECT_EQ(e.Ausgabe(2), 0x12) << "lines above the device don't reach it";
    Simuliertes_EEPROM Leer(0, {0, -1, -1, true});
    Leer.Schreiben(0, 0, 0, 0);
    Leer.Fertigstellen();
    EXPECT_EQ(Leer.Ausgabe(0), 0xFF);
}

// ---- pages ----

// Pages of four bytes, a load window of 150 and a write time of 900 microseconds.
Simuliertes_EEPROM Seiten(bool Ganze) { return {16, {4, 150, 900, Ganze}}; }

TEST(Seiten_Test, bytes_that_follow_within_the_window_are_stored_together)
{
    auto s = Seiten(true);
    for (std::uint32_t i = 0; i < 4; ++i)
        s.Schreiben(4 + i, static_cast<std::uint8_t>(i + 1), 100 * i, 100 * i);
    s.Zeit(300 + 150);
    EXPECT_EQ(s.Inhalt[4], 0xFF) << "the window is still open";
    s.Zeit(300 + 151);
    EXPECT_EQ(s.Inhalt[4], 1);
    EXPECT_NE(s.Ausgabe(7), 4) << "busy";
    s.Zeit(300 + 150 + 899);
    EXPECT_NE(s.Ausgabe(7), 4);
    s.Zeit(300 + 150 + 900);
    EXPECT_EQ(s.Ausgabe(7), 4);
}

TEST(Seiten_Test, a_byte_that_comes_too_late_is_lost)
{
    auto s = Seiten(true);
    s.Schreiben(4, 1, 0, 0);
    s.Schreiben(5, 2, 151, 151);
    s.Zeit(100000);
    EXPECT_EQ(s.Inhalt[4], 1);
    EXPECT_EQ(s.Inhalt[5], 0xFF);
    auto t = Seiten(true);
    t.Schreiben(4, 1, 0, 0);
    t.Schreiben(5, 2, 150, 150);
    t.Zeit(100000);
    EXPECT_EQ(t.Inhalt[5], 2);
}

TEST(Seiten_Test, bytes_that_were_not_loaded_are_erased_in_a_flash_memory_and_stay_in_an_EEPROM)
{
    for (const bool Ganze : {false, true}) {
        auto s = Seiten(Ganze);
        std::fill(s.Inhalt.begin(), s.Inhalt.end(), std::uint8_t{0x33});
        s.Schreiben(5, 0xAA, 0, 0);
        s.Zeit(100000);
        const std::uint8_t u = Ganze ? 0xFF : 0x33;
        EXPECT_EQ(s.Inhalt,
                  (std::vector<std::uint8_t>{0x33,
                                             0x33,
                                             0x33,
                                             0x33,
                                             u,
                                             0xAA,
                                             u,
                                             u,
                                             0x33,
                                             0x33,
                                             0x33,
                                             0x33,
                                             0x33,
                                             0x33,
                                             0x33,
                                             0x33}));
    }
}

TEST(Seiten_Test, the_last_address_tells_the_page)
{
    auto s = Seiten(true);
    s.Schreiben(1, 0x11, 0, 0);
    s.Schreiben(8 + 2, 0x22, 10, 10);
    s.Zeit(100000);
    EXPECT_EQ(s.Inhalt[1], 0xFF);
    EXPECT_EQ(s.Inhalt[9], 0x11);
    EXPECT_EQ(s.Inhalt[10], 0x22);
}

TEST(Seiten_Test, while_bytes_are_loaded_the_status_is_that_of_the_last_one)
{
    auto s = Seiten(true);
    s.Schreiben(0, 0x80, 0, 0);
    s.Zeit(10);
    EXPECT_EQ(s.Ausgabe(0) & 0x80, 0);
    s.Schreiben(1, 0x7F, 20, 20);
    EXPECT_EQ(s.Ausgabe(0) & 0x80, 0x80);
}

TEST(Seiten_Test, left_alone_it_comes_to_an_end)
{
    auto s = Seiten(true);
    s.Schreiben(0, 0x42, 0, 0);
    s.Fertigstellen();
    EXPECT_EQ(s.Ausgabe(0), 0x42);
}

TEST(Seiten_Test, a_bad_page_loses_its_next_writes_and_a_slow_device_takes_longer)
{
    auto s = Seiten(true);
    s.Schlechte_Seite(0, 2);
    std::int64_t t = 0;
    for (int i = 1; i <= 3; ++i) {
        s.Schreiben(0, 0x42, t, t);
        s.Schreiben(4, 0x17, t, t); // another page tells nothing of it
        t += 10000;
        s.Zeit(t);
        s.Schreiben(0, 0x42, t, t);
        t += 10000;
        s.Zeit(t);
        EXPECT_EQ(s.Ausgabe(0), i == 3 ? 0x42 : 0xFF) << i;
    }
    auto l      = Seiten(true);
    l.Traegheit = 2;
    l.Schreiben(0, 0x42, 0, 0);
    l.Zeit(150 + 1799);
    EXPECT_NE(l.Ausgabe(0), 0x42);
    l.Zeit(150 + 1800);
    EXPECT_EQ(l.Ausgabe(0), 0x42);
}

// ---- 28F ----

class Flash_Baustein_Test : public ::testing::Test {
protected:
    Flash_Baustein_Test() { f.Versorgung(true, 0); }
    // A command, or the byte behind one, after a wait.
    void Befehl(int Wert, std::uint32_t Adresse = 0, std::int64_t Wartet = 0)
    {
        t += Wartet;
        f.Schreiben(Adresse, static_cast<std::uint8_t>(Wert), t, t);
    }
    void Loeschen(std::int64_t Dauer)
    {
        Befehl(0x20);
        Befehl(0x20);
        Befehl(0xA0, 0, Dauer);
    }

    Simuliertes_28F f{8, 9};
    std::int64_t    t = 0;
};

TEST_F(Flash_Baustein_Test, a_byte_is_programmed_until_the_next_command)
{
    Befehl(0x40);
    Befehl(0x12, 3);
    EXPECT_EQ(f.Ausgabe(3), 0xFF) << "nothing valid yet";
    Befehl(0xC0, 5, 9);
    EXPECT_EQ(f.Ausgabe(3), 0x12);
    EXPECT_EQ(f.Ausgabe(5), 0xFF) << "the address of the byte counts, not of the command";
    Befehl(0x40);
    Befehl(0xEF, 3);
    Befehl(0xC0, 3, 9);
    EXPECT_EQ(f.Ausgabe(3), 0x02) << "bits go to 0 only";
}

TEST_F(Flash_Baustein_Test, a_short_pulse_sums_up_with_the_next)
{
    for (int i = 0; i < 2; ++i) {
        Befehl(0x40);
        Befehl(0x00, 3);
        Befehl(0xC0, 3, i == 0 ? 4 : 5);
        EXPECT_EQ(f.Ausgabe(3), i == 0 ? 0xFF : 0x00);
    }
}

TEST_F(Flash_Baustein_Test, without_its_supply_it_only_reads)
{
    f.Versorgung(false, 0);
    Befehl(0x40);
    Befehl(0x12, 3);
    Befehl(0xC0, 3, 100);
    EXPECT_EQ(f.Ausgabe(3), 0xFF);
}

TEST_F(Flash_Baustein_Test, the_end_of_the_supply_ends_what_it_does)
{
    Befehl(0x40);
    Befehl(0x12, 3);
    f.Versorgung(false, 9);
    EXPECT_EQ(f.Ausgabe(3), 0x12);
    f.Versorgung(true, 20);
    Befehl(0x34, 4, 100);
    Befehl(0xC0, 4, 100);
    EXPECT_EQ(f.Ausgabe(4), 0xFF) << "no set-up command stands any more";
}

TEST_F(Flash_Baustein_Test, a_byte_without_a_set_up_command_programs_nothing)
{
    Befehl(0x12, 3);
    Befehl(0x34, 3, 100);
    Befehl(0xC0, 3, 100);
    EXPECT_EQ(f.Ausgabe(3), 0xFF);
}

TEST_F(Flash_Baustein_Test, FFh_twice_gives_up_a_set_up_command)
{
    f.Inhalt[3] = 0x55;
    Befehl(0x40);
    Befehl(0xFF, 3);
    Befehl(0xFF, 3, 100);
    Befehl(0x00, 3);
    Befehl(0x00, 3, 100);
    EXPECT_EQ(f.Ausgabe(3), 0x55);
    Befehl(0x20);
    Befehl(0xFF);
    Befehl(0x20, 0, 1000000);
    Befehl(0xFF);
    Befehl(0xFF);
    EXPECT_EQ(f.Ausgabe(3), 0x55) << "one erase command erases nothing";
}

TEST_F(Flash_Baustein_Test, erase_times_sum_up_until_the_device_is_blank)
{
    f.Inhalt[3] = 0;
    Loeschen(20000);
    Loeschen(20000);
    EXPECT_EQ(f.Ausgabe(3), 0);
    Loeschen(9999);
    EXPECT_EQ(f.Ausgabe(3), 0);
    Loeschen(1);
    EXPECT_EQ(f.Ausgabe(3), 0xFF);
}

TEST_F(Flash_Baustein_Test, programming_in_between_takes_the_erase_time_back)
{
    f.Inhalt[3] = 0;
    Loeschen(49999);
    Befehl(0x40);
    Befehl(0x00, 4);
    Befehl(0xC0, 4, 9);
    Loeschen(49999);
    EXPECT_EQ(f.Ausgabe(3), 0);
    f.Loesch_Faktor = 2;
    Loeschen(50000);
    EXPECT_EQ(f.Ausgabe(3), 0) << "a tired device takes longer";
    Loeschen(1);
    EXPECT_EQ(f.Ausgabe(3), 0xFF);
}

TEST_F(Flash_Baustein_Test, an_erased_cell_needs_its_whole_pulse_again)
{
    f.Schwache_Zelle(3, 2);
    for (int i = 0; i < 2; ++i) {
        for (int n = 1; n <= 2; ++n) {
            Befehl(0x40);
            Befehl(0x00, 3);
            Befehl(0xC0, 3, 9);
            EXPECT_EQ(f.Ausgabe(3), n == 1 ? 0xFF : 0x00) << i;
        }
        Loeschen(60000);
    }
}

TEST(SF27_Test, only_a_long_pulse_is_an_erase)
{
    Simuliertes_27SF s(8, 18);
    s.Inhalt[1] = 0;
    EXPECT_FALSE(s.Loeschpuls(4000));
    EXPECT_FALSE(s.Loeschpuls(89999));
    EXPECT_EQ(s.Inhalt[1], 0);
    EXPECT_TRUE(s.Loeschpuls(90000));
    EXPECT_EQ(s.Inhalt[1], 0xFF);
    s.Inhalt[1]     = 0;
    s.Loesch_Faktor = 10;
    EXPECT_TRUE(s.Loeschpuls(700000));
    EXPECT_EQ(s.Inhalt[1], 0);
}

TEST(Eprom_Loesch_Test, an_eprom_knows_no_electrical_erase_but_light)
{
    Simulierter_Baustein e(8, 90);
    e.Inhalt[1] = 0;
    EXPECT_FALSE(e.Loeschpuls(1000000));
    EXPECT_EQ(e.Inhalt[1], 0);
    e.Loeschen();
    EXPECT_EQ(e.Inhalt[1], 0xFF);
}

// ---- in the socket ----

constexpr std::int32_t Basis = 888;

class Sockel_Test : public Brenner_Welt {
protected:
    Simulierter_Eprommer& Neu(std::string_view R_Typ,
                              std::string_view P_Typ,
                              std::int32_t     Bytes,
                              std::int32_t     Seite = 0,
                              std::string_view E_Typ = "")
    {
        Geraet_T& g    = Geraet(P_Typ, Bytes, R_Typ, P_Typ);
        g.Seiten_Bytes = Seite;
        g.E_Typ        = E_Typ;
        g.P_Timing     = P_Typ.starts_with("28F") ? 10 : 1000;
        Brett          = Simuliertes_Board_Fuer(0);
        auto& b        = dynamic_cast<Simulierter_Eprommer&>(*Brett);
        b.KS_enableIoRange(Basis, 3);
        D(b, {90});
        C(b, {9, 11});
        return b;
    }
    static void D(Simulierter_Eprommer& b, std::initializer_list<int> Werte)
    {
        for (const int w : Werte)
            b.KS_outpb(Basis, static_cast<std::uint8_t>(w));
    }
    static void C(Simulierter_Eprommer& b, std::initializer_list<int> Werte)
    {
        for (const int w : Werte)
            b.KS_outpb(Basis + 2, static_cast<std::uint8_t>(w));
    }
    static void Laden(Simulierter_Eprommer& b, int Wert, int Grund = 90)
    {
        for (int i = 7; i >= 0; --i)
            D(b, {Grund + (Wert >> i & 1) * 128, Grund + 32 + (Wert >> i & 1) * 128});
        D(b, {Grund - 64, Grund, Grund - 64});
    }
    static std::vector<std::uint8_t>& Zellen(Simulierter_Eprommer& b)
    {
        return b.Baustein()->Inhalt;
    }
    static int Lesen(Simulierter_Eprommer& b)
    {
        D(b, {75});
        b.KS_inpb(Basis + 1);
        return b.Bus();
    }

    std::unique_ptr<Simuliertes_Board> Brett{};
};

TEST_F(Sockel_Test, a_28C256_takes_the_byte_when_its_write_line_rises)
{
    Simulierter_Eprommer& b = Neu("28C256", "28C256", 64);
    Laden(b, 0x5A);
    D(b, {27, 18});
    EXPECT_EQ(Zellen(b)[0], 0xFF);
    D(b, {27});
    EXPECT_EQ(Zellen(b)[0], 0x5A);
}

TEST_F(Sockel_Test, the_address_is_that_of_the_falling_write_line)
{
    Simulierter_Eprommer& b = Neu("28C256", "28C256", 64);
    Laden(b, 0x5A);
    D(b, {27, 18, 18 + 4, 18, 27}); // the counters move on in between
    EXPECT_EQ(Zellen(b)[0], 0x5A);
    EXPECT_EQ(Zellen(b)[1], 0xFF);
}

TEST_F(Sockel_Test, with_its_outputs_on_an_EEPROM_takes_nothing)
{
    Simulierter_Eprommer& b = Neu("28C256", "28C256", 64);
    Laden(b, 0x5A);
    D(b, {27 - 16, 18 - 16, 27 - 16});
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_F(Sockel_Test, outputs_that_go_on_break_a_write_off)
{
    Simulierter_Eprommer& b = Neu("28C256", "28C256", 64);
    Laden(b, 0x5A);
    D(b, {27, 18, 18 - 16, 74});
    EXPECT_EQ(Zellen(b)[0], 0xFF);
}

TEST_F(Sockel_Test, a_silent_device_and_a_dead_board_take_nothing)
{
    for (const bool Tot : {false, true}) {
        Simulierter_Eprommer& b                        = Neu("28C256", "28C256", 64);
        (Tot ? b.Fehler.Tot : b.Fehler.Baustein_Stumm) = true;
        Laden(b, 0x5A);
        D(b, {27, 18, 27});
        EXPECT_EQ(Zellen(b)[0], 0xFF);
    }
}

TEST_F(Sockel_Test, a_stuck_line_is_written_as_it_is_stuck)
{
    Simulierter_Eprommer& b = Neu("28C256", "28C256", 64);
    b.Fehler.Klemmt_Auf_0   = 0x02;
    b.Fehler.Klemmt_Auf_1   = 0x01;
    Laden(b, 0x5A);
    D(b, {27, 18, 27});
    EXPECT_EQ(Zellen(b)[0], 0x59);
}

TEST_F(Sockel_Test, a_28C64_is_written_only_where_counter_bit_13_is_high)
{
    Simulierter_Eprommer& b = Neu("28C64", "28C64", 8192);
    Laden(b, 0x5A);
    D(b, {27, 18, 27});
    EXPECT_EQ(Zellen(b)[0], 0xFF);
    for (int i = 0; i < 8192; ++i)
        D(b, {79, 75});
    Laden(b, 0x5A);
    D(b, {27, 18, 27});
    EXPECT_EQ(Zellen(b)[0], 0x5A);
}

TEST_F(Sockel_Test, D0_is_the_highest_address_line_of_a_28C040)
{
    Simulierter_Eprommer& b = Neu("28C040", "28C040", 0x80000);
    Laden(b, 0x5A);
    D(b, {27, 19, 27});
    EXPECT_EQ(Zellen(b)[0], 0xFF);
    EXPECT_EQ(Zellen(b)[0x40000], 0x5A);
}

TEST_F(Sockel_Test, the_clear_needs_twelve_volts_and_its_write_line_low_for_a_while)
{
    const auto Versuchen =
        [this](std::string_view E_Typ, std::initializer_list<int> Bytes, std::int64_t Dauer) {
            Simulierter_Eprommer& b = Neu("28C256", "28C256", 64, 0, E_Typ);
            Zellen(b)[5]            = 0;
            for (const int w : Bytes) {
                D(b, {w});
                b.Wartet(Dauer);
            }
            D(b, {74});
            return Zellen(b)[5] == 0xFF;
        };
    EXPECT_TRUE(Versuchen("28C", {8, 0, 9}, 100000));
    EXPECT_FALSE(Versuchen("28C", {8, 0, 9}, 5000)) << "too short";
    EXPECT_FALSE(Versuchen("28C", {8, 8, 9}, 100000)) << "without the strobe";
    EXPECT_FALSE(Versuchen("28C", {10, 2, 10}, 100000)) << "without the voltage";
    EXPECT_FALSE(Versuchen("29C", {8, 0, 9}, 100000)) << "a device without a clear";
}

TEST_F(Sockel_Test, the_larger_29C_devices_have_their_write_line_at_C2)
{
    for (const auto& [R, P] : {std::pair{"29C040", "29C010"},
                               {"29C010", "29C010"},
                               {"29C020", "29C020"},
                               {"29C040", "29C040"}}) {
        Simulierter_Eprommer& b = Neu(R, P, 64, 8);
        C(b, {15});
        b.Wartet(100000); // what the strobe of the reset had loaded
        b.Baustein()->Fertigstellen();
        Laden(b, 0x5A);
        C(b, {11, 15});
        b.Baustein()->Zeit(b.Vergangen() + 100000);
        EXPECT_EQ(Zellen(b)[0], 0x5A) << R << P;
        Simulierter_Eprommer& s = Neu(R, P, 64, 8);
        Laden(s, 0x5A);
        D(s, {19, 26});
        s.Baustein()->Fertigstellen();
        EXPECT_EQ(Zellen(s)[0], 0xFF) << "D3 is no strobe of it";
    }
}

TEST_F(Sockel_Test, the_small_29C_has_its_write_line_at_D3)
{
    Simulierter_Eprommer& b = Neu("29C256", "29C256", 64, 8);
    Laden(b, 0x5A);
    D(b, {19, 26});
    b.Baustein()->Fertigstellen();
    EXPECT_EQ(Zellen(b)[0], 0x5A);
}

TEST_F(Sockel_Test, the_bus_keeps_its_level_for_a_few_microseconds_behind_a_counter_step)
{
    Simulierter_Eprommer& b = Neu("29C040", "29C010", 64, 8);
    C(b, {15});
    b.Baustein()->Fertigstellen();
    Laden(b, 0x5A);
    C(b, {11, 15});
    D(b, {90, 94, 90});
    C(b, {11, 15}); // strobed with the outputs of the 74HC595 off
    b.Baustein()->Fertigstellen();
    EXPECT_EQ(Zellen(b)[0], 0x5A);
    EXPECT_EQ(Zellen(b)[1], 0x5A);
    Laden(b, 0x33);
    D(b, {90, 94, 90});
    b.Wartet(1000000);
    C(b, {11, 15});
    b.Baustein()->Fertigstellen();
    EXPECT_EQ(Zellen(b)[2], 0xFF) << "by then the resistors have pulled it up";
}

TEST_F(Sockel_Test, data_polling_goes_over_the_status_register)
{
    Simulierter_Eprommer& b = Neu("29C256", "29C256", 64, 8);
    Laden(b, 0x80);
    D(b, {19, 26, 90, 202});
    EXPECT_EQ(b.KS_inpb(Basis + 1) & 0x10, 0) << "bit 7 comes at S4";
    b.Wartet(150 + 900 + 1);
    EXPECT_EQ(b.KS_inpb(Basis + 1) & 0x10, 0x10);
}

TEST_F(Sockel_Test, bit_6_changes_with_each_read_of_a_busy_device)
{
    Simulierter_Eprommer& b = Neu("28C256", "28C256", 64);
    Laden(b, 0x5A);
    D(b, {27, 18, 27});
    const int Erstes = Lesen(b);
    D(b, {90});
    EXPECT_EQ(Lesen(b) ^ Erstes, 0x40);
    b.Wartet(1000);
    EXPECT_EQ(Lesen(b), 0x5A);
}

TEST_F(Sockel_Test, a_28F_takes_commands_with_its_supply_only)
{
    for (const int Grund : {89, 90}) { // with 12 V, and without
        Simulierter_Eprommer& b = Neu("28F010", "28F010", 64);
        C(b, {15});
        for (const int Wert : {0x40, 0x5A}) {
            Laden(b, Wert, Grund);
            C(b, {11, 15});
        }
        b.Wartet(10);
        D(b, {91});
        EXPECT_EQ(Zellen(b)[0], Grund == 89 ? 0x5A : 0xFF);
    }
}

TEST_F(Sockel_Test, a_device_that_comes_back_to_life_knows_its_supply_and_is_not_cleared)
{
    Simulierter_Eprommer& b = Neu("28F010", "28F010", 64);
    b.Fehler.Baustein_Stumm = true;
    D(b, {89}); // the supply comes while nobody listens
    b.Fehler.Baustein_Stumm = false;
    C(b, {15});
    for (const int Wert : {0x40, 0x5A}) {
        Laden(b, Wert, 89);
        C(b, {11, 15});
    }
    b.Wartet(10);
    D(b, {91});
    EXPECT_EQ(Zellen(b)[0], 0x5A);
    Simulierter_Eprommer& e = Neu("28C256", "28C256", 64, 0, "28C");
    Zellen(e)[0]            = 0;
    e.Wartet(100000);
    e.Fehler.Baustein_Stumm = true;
    D(e, {8, 0});
    e.Wartet(1000);
    e.Fehler.Baustein_Stumm = false;
    D(e, {9, 74});
    EXPECT_EQ(Zellen(e)[0], 0);
}

TEST_F(Sockel_Test, what_is_in_progress_is_finished_before_the_socket_is_saved)
{
    Simulierter_Eprommer& b = Neu("29C256", "29C256", 8, 8);
    Laden(b, 0x5A);
    D(b, {19, 26});
    const auto Datei = std::filesystem::temp_directory_path() /
                       ("varnholt-sockel-" + std::to_string(getpid()) + ".bin");
    EXPECT_EQ(Sockel_Speichern(b, Datei).E, "");
    EXPECT_EQ(Zellen(b)[0], 0x5A);
    std::filesystem::remove(Datei);
}

TEST_F(Sockel_Test, each_family_gets_its_own_kind_of_device)
{
    EXPECT_NE(dynamic_cast<Simuliertes_EEPROM*>(Neu("28C256", "28C256", 64).Baustein()), nullptr);
    EXPECT_NE(dynamic_cast<Simuliertes_EEPROM*>(Neu("29C256", "29C256", 64, 8).Baustein()),
              nullptr);
    EXPECT_NE(dynamic_cast<Simuliertes_28F*>(Neu("28F010", "28F010", 64).Baustein()), nullptr);
    EXPECT_NE(dynamic_cast<Simuliertes_27SF*>(Neu("27C512", "27C512", 64, 0, "27SF").Baustein()),
              nullptr);
}

} // namespace
} // namespace varnholt::test
