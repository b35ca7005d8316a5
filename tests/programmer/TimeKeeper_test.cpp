// The clock of the 48T memories: its registers, the command that shows it, and the simulated one.
#include "programmer/TimeKeeper.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Lesen.h"
#include "programmer/Simulierte_48T.h"

#include <algorithm>
#include <rapidcheck.h>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

constexpr std::int64_t Eine_Sekunde = 1000000; // microseconds

// The registers in the order of the box, as they lie at the end of a device of eight bytes.
Bytes_T Register(std::uint8_t Jahr,
                 std::uint8_t Monat,
                 std::uint8_t Tag,
                 std::uint8_t Wochentag,
                 std::uint8_t Stunde,
                 std::uint8_t Minute,
                 std::uint8_t Sekunde,
                 std::uint8_t Kontrolle = 0)
{
    return {Kontrolle, Sekunde, Minute, Stunde, Wochentag, Tag, Monat, Jahr};
}

TEST(Uhrzeit, each_register_is_read_with_the_bits_that_it_has)
{
    for (int b = 0; b < 256; ++b) {
        const auto      w     = static_cast<std::uint8_t>(b);
        const int       Einer = b & 15;
        const Uhrzeit_T z     = Uhrzeit_Von(Register(w, w, w, w, w, w, w));
        EXPECT_EQ(z.Jahr, (b >> 4) * 10 + Einer);
        EXPECT_EQ(z.Monat, (b >> 4 & 1) * 10 + Einer);
        EXPECT_EQ(z.Tag, (b >> 4 & 3) * 10 + Einer);
        EXPECT_EQ(z.Wochentag, b);
        EXPECT_EQ(z.Stunde, (b >> 4 & 3) * 10 + Einer);
        EXPECT_EQ(z.Minute, (b >> 4 & 7) * 10 + Einer);
        EXPECT_EQ(z.Sekunde, (b >> 4 & 7) * 10 + Einer);
    }
}

TEST(Uhrzeit, the_registers_lie_at_the_end_of_a_device_of_any_size)
{
    Bytes_T       d(2048, 0x99);
    const Bytes_T r = Register(0x24, 0x12, 0x31, 3, 0x23, 0x59, 0x58);
    std::copy(r.begin(), r.end(), d.end() - 8);
    EXPECT_EQ(Uhrzeit_Von(d), (Uhrzeit_T{24, 12, 31, 3, 23, 59, 58}));
}

TEST(Uhrzeit, a_device_at_FFh_throughout_shows_165_for_the_year)
{
    const Uhrzeit_T z = Uhrzeit_Von(Bytes_T(64, 0xFF));
    EXPECT_EQ(z, (Uhrzeit_T{165, 25, 45, 255, 45, 85, 85}));
    EXPECT_TRUE(Uhrzeit_Text(z).E.starts_with("Year: 165\r\n"));
}

TEST(Uhrzeit, registers_that_are_not_there_count_as_0)
{
    EXPECT_EQ(Uhrzeit_Von({}), Uhrzeit_T{});
    EXPECT_EQ(Uhrzeit_Von(Bytes_T{0x24}).Jahr, 24);
}

class TimeKeeper_Test : public Brenner_Welt {
protected:
    Geraet_T& Einsetzen(std::string_view Name, std::int32_t Bytes, const Bytes_T& Uhr)
    {
        const bool Gross = Bytes > 8192;
        Geraet_T&  g = Geraet(Name, Bytes, Gross ? "28C256" : "28C64", Gross ? "28C256" : "28C64");
        g.E_Typ      = "29C";
        g.P_Timing   = 1;
        Board_Anschliessen();
        std::copy(Uhr.begin(), Uhr.end(), Inhalt().end() - 8);
        return g;
    }
};

TEST_F(TimeKeeper_Test, the_box_shows_seven_lines_in_both_languages)
{
    Einsetzen("48T08", 8192, Register(0x24, 0x03, 0x09, 5, 0x07, 0x08, 0x01));
    Geraete_Tabelle[0].Menue_Name = "Meine Uhr";
    MNU_TimeKeeper_ReadTime_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Data on Meine Uhr:\r\nYear: 24\r\nMonth: 03\r\nDay: 09\r\nWeekday: 05\r\n"
              "Hour: 07\r\nMinute: 08\r\nSecond: 01");
    Sprache = "D";
    MNU_TimeKeeper_ReadTime_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Daten auf dem Meine Uhr:\r\nJahr: 24\r\nMonat: 03\r\nTag: 09\r\nWochentag: 05\r\n"
              "Stunde: 07\r\nMinute: 08\r\nSekunde: 01");
    EXPECT_TRUE(Hex_Puffer.empty());
}

TEST_F(TimeKeeper_Test, every_size_is_read_at_its_end)
{
    for (const std::int32_t Bytes : {2048, 8192, 32768}) {
        Einsetzen("48T", Bytes, Register(0x99, 0x12, 0x31, 7, 0x12, 0x34, 0x56));
        EXPECT_EQ(TimeKeeper_Lesen(), (Uhrzeit_T{99, 12, 31, 7, 12, 34, 56})) << Bytes;
    }
}

TEST_F(TimeKeeper_Test, without_a_port_driver_or_a_device_a_box_tells_so)
{
    Einsetzen("48T08", 8192, {});
    Porttreiber_OK = false;
    MNU_TimeKeeper_ReadTime_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Portdriver has not been loaded sucessfully. Parallelport access not possible.");
    Porttreiber_OK = true;
    IC_Nummer      = -1;
    MNU_TimeKeeper_ReadTime_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Please choose first a IC in the menu 'Programmer' -> 'Choose IC'.");
}

TEST_F(TimeKeeper_Test, after_an_abort_the_box_shows_what_was_read)
{
    Einsetzen("48T08", 8192, Register(0x24, 0x03, 0x09, 5, 0x07, 0x08, 0x01));
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 50; };
    MNU_TimeKeeper_ReadTime_Click();
    EXPECT_EQ(Antwort, Antwort_Ok) << "of the box";
    EXPECT_TRUE(Letzte_Meldung().find("Year: 00") != std::string::npos);
}

TEST_F(TimeKeeper_Test, a_device_without_a_clock_shows_its_last_bytes_and_a_tiny_one_zeros)
{
    Einsetzen("48Z08", 8192, Register(0x12, 0x34, 0x56, 0x78, 0x12, 0x34, 0x56));
    EXPECT_EQ(TimeKeeper_Lesen().Jahr, 12);
    Geraete_Tabelle[0].Bytes = 0;
    EXPECT_EQ(TimeKeeper_Lesen(), Uhrzeit_T{});
}

TEST_F(TimeKeeper_Test, setting_starting_and_stopping_touch_nothing)
{
    Einsetzen("48T08", 8192, {});
    Spur();
    for (const auto Befehl :
         {MNU_TimeKeeper_WriteTime_Click, MNU_TimeKeeper_Start_Click, MNU_TimeKeeper_Stop_Click}) {
        Befehl();
        EXPECT_EQ(Spur(), "");
        EXPECT_TRUE(Box.Meldungen.empty());
        EXPECT_EQ(Box.Hinweise.size(), 1u);
        Box.Hinweise.clear();
    }
}

// ---- the simulated clock ----

class Uhr_48T_Test : public ::testing::Test {
protected:
    void Stellen(const Bytes_T& r)
    {
        Uhr.Zeit(Jetzt);
        std::copy(r.begin(), r.end(), Uhr.Inhalt.end() - 8);
    }
    void Vergehen(std::int64_t Sekunden)
    {
        Jetzt += Sekunden * Eine_Sekunde;
        Uhr.Zeit(Jetzt);
    }
    Bytes_T Steht() { return {Uhr.Inhalt.end() - 8, Uhr.Inhalt.end()}; }

    Simulierte_48T Uhr{2048};
    std::int64_t   Jetzt = 0;
};

TEST_F(Uhr_48T_Test, an_erased_device_stands_still_at_FFh)
{
    Vergehen(1000);
    EXPECT_EQ(Uhr.Inhalt, Bytes_T(2048, 0xFF));
}

struct Schritt_T {
    Bytes_T Vorher, Nachher;
};

TEST_F(Uhr_48T_Test, every_register_carries_into_the_next)
{
    const Schritt_T Schritte[] = {
        {Register(0x24, 1, 1, 1, 0, 0, 0x08), Register(0x24, 1, 1, 1, 0, 0, 0x09)},
        {Register(0x24, 1, 1, 1, 0, 0, 0x09), Register(0x24, 1, 1, 1, 0, 0, 0x10)},
        {Register(0x24, 1, 1, 1, 0, 0x09, 0x59), Register(0x24, 1, 1, 1, 0, 0x10, 0)},
        {Register(0x24, 1, 1, 1, 0x19, 0x59, 0x59), Register(0x24, 1, 1, 1, 0x20, 0, 0)},
        {Register(0x24, 1, 1, 1, 0x23, 0x59, 0x59), Register(0x24, 1, 2, 2, 0, 0, 0)},
        {Register(0x24, 1, 0x09, 7, 0x23, 0x59, 0x59), Register(0x24, 1, 0x10, 1, 0, 0, 0)},
        {Register(0x24, 1, 0x31, 3, 0x23, 0x59, 0x59), Register(0x24, 2, 1, 4, 0, 0, 0)},
        {Register(0x24, 2, 0x28, 3, 0x23, 0x59, 0x59), Register(0x24, 2, 0x29, 4, 0, 0, 0)},
        {Register(0x24, 2, 0x29, 3, 0x23, 0x59, 0x59), Register(0x24, 3, 1, 4, 0, 0, 0)},
        {Register(0x23, 2, 0x28, 3, 0x23, 0x59, 0x59), Register(0x23, 3, 1, 4, 0, 0, 0)},
        {Register(0x24, 4, 0x30, 3, 0x23, 0x59, 0x59), Register(0x24, 5, 1, 4, 0, 0, 0)},
        {Register(0x24, 0x11, 0x30, 3, 0x23, 0x59, 0x59), Register(0x24, 0x12, 1, 4, 0, 0, 0)},
        {Register(0x24, 0x12, 0x31, 3, 0x23, 0x59, 0x59), Register(0x25, 1, 1, 4, 0, 0, 0)},
        {Register(0x99, 0x12, 0x31, 3, 0x23, 0x59, 0x59), Register(0, 1, 1, 4, 0, 0, 0)},
    };
    for (const Schritt_T& s : Schritte) {
        Stellen(s.Vorher);
        Vergehen(1);
        EXPECT_EQ(Steht(), s.Nachher);
    }
}

TEST_F(Uhr_48T_Test, the_stop_bit_holds_it)
{
    Stellen(Register(0x24, 1, 1, 1, 0, 0, 0x85));
    Vergehen(100);
    EXPECT_EQ(Steht(), Register(0x24, 1, 1, 1, 0, 0, 0x85));
    Stellen(Register(0x24, 1, 1, 1, 0, 0, 0x05));
    Vergehen(2);
    EXPECT_EQ(Steht(), Register(0x24, 1, 1, 1, 0, 0, 0x07));
}

TEST_F(Uhr_48T_Test, the_read_bit_lets_it_catch_up_and_the_write_bit_does_not)
{
    Stellen(Register(0x24, 1, 1, 1, 0, 0, 0, 0x40));
    Vergehen(10);
    EXPECT_EQ(Steht(), Register(0x24, 1, 1, 1, 0, 0, 0, 0x40));
    Uhr.Inhalt[2048 - 8] = 0;
    Vergehen(1);
    EXPECT_EQ(Steht(), Register(0x24, 1, 1, 1, 0, 0, 0x11));
    Stellen(Register(0x24, 1, 1, 1, 0, 0, 0, 0x80));
    Vergehen(10);
    Uhr.Inhalt[2048 - 8] = 0;
    Vergehen(1);
    EXPECT_EQ(Steht(), Register(0x24, 1, 1, 1, 0, 0, 1));
}

TEST_F(Uhr_48T_Test, parts_of_a_second_add_up)
{
    Stellen(Register(0x24, 1, 1, 1, 0, 0, 0));
    for (int i = 0; i < 25; ++i) {
        Jetzt += 100000;
        Uhr.Zeit(Jetzt);
    }
    EXPECT_EQ(Steht(), Register(0x24, 1, 1, 1, 0, 0, 2));
}

TEST_F(Uhr_48T_Test, any_registers_and_any_times_end_well)
{
    rc::check([](const std::array<std::uint8_t, 8>& r, const std::vector<std::uint32_t>& Zeiten) {
        Simulierte_48T u(64);
        std::copy(r.begin(), r.end(), u.Inhalt.end() - 8);
        for (const std::uint32_t t : Zeiten)
            u.Zeit(std::int64_t{t} * 1000);
        RC_ASSERT(u.Inhalt.size() == 64u);
    });
}

TEST_F(Uhr_48T_Test, a_device_smaller_than_its_registers_has_room_for_them)
{
    for (const std::int32_t n : {-1, 0, 1, 7, 8}) {
        Simulierte_48T u(n);
        u.Zeit(Eine_Sekunde);
        EXPECT_EQ(u.Inhalt.size(), 8u);
    }
}

TEST_F(TimeKeeper_Test, the_clock_goes_on_while_the_board_is_used)
{
    Einsetzen("48T08", 8192, Register(0x24, 0x03, 0x09, 5, 0x07, 0x08, 0x01));
    Plattform.Port->Sleep(3000);
    EXPECT_EQ(TimeKeeper_Lesen().Sekunde, 4);
}

} // namespace
} // namespace varnholt::test
