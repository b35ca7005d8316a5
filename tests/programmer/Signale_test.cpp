// The signal protocol: status decoding, address bits, the single byte sequences, the connection
// check.
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Lesen.h"
#include "programmer/Signale.h"

namespace varnholt::test {
namespace {

class Signale_Test : public Brenner_Welt {
protected:
    void SetUp() override
    {
        Geraet("27C256", 4);
        Board_Anschliessen();
    }
    // The values that went to the data register, since the last call.
    std::vector<int> Daten()
    {
        std::vector<int>   Werte;
        std::istringstream Zeilen(Spur());
        for (std::string z; std::getline(Zeilen, z);)
            if (z.starts_with("W D "))
                Werte.push_back(std::stoi(z.substr(4), nullptr, 16));
        return Werte;
    }
};

TEST_F(Signale_Test, every_status_byte_decodes_by_its_four_lines)
{
    for (int s = 0; s < 256; ++s) {
        int Gerade = 0;
        if (s < 128)
            Gerade += 1; // S7 is inverted
        Gerade += s % 128 >= 64 ? 4 : 0;
        Gerade += s % 64 >= 32 ? 16 : 0;
        Gerade += s % 32 >= 16 ? 64 : 0;
        EXPECT_EQ(Gerade_Bits(static_cast<std::uint8_t>(s)), Gerade) << s;
        EXPECT_EQ(Ungerade_Bits(static_cast<std::uint8_t>(s)), 2 * Gerade) << s;
    }
}

TEST_F(Signale_Test, every_byte_comes_back_through_both_chips)
{
    for (int w = 0; w < 256; ++w) {
        Byte_Laden(static_cast<std::uint8_t>(w));
        EXPECT_EQ(Board().Speicher_595(), w);
        EXPECT_TRUE(Byte_Auf_Bus(static_cast<std::uint8_t>(w)));
        Byte_Laden(static_cast<std::uint8_t>(w));
        EXPECT_FALSE(Byte_Auf_Bus(static_cast<std::uint8_t>(w + 1)));
    }
}

TEST_F(Signale_Test, the_bits_of_a_byte_are_0_or_128_with_bit_7_last)
{
    for (int w = 0; w < 256; ++w)
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_EQ(Bits_Von(static_cast<std::uint8_t>(w))[i], (w >> i & 1) * 128);
}

TEST_F(Signale_Test, the_address_bits_above_15_are_told_by_C3_C0_and_C2)
{
    for (std::int32_t a = 0; a < 0x80000; a += 0x2000) {
        const int h  = a / 65536;
        const int h2 = h / 2;
        const int C3 = h == 1 || h == 3 || h == 5 || h == 7 ? 0 : 8;
        const int C0 = h2 == 1 || h2 == 3 ? 0 : 1;
        EXPECT_EQ(Hoch_Bits_Von(a, C2_Regel::Null), C3 + C0) << a;
        EXPECT_EQ(Hoch_Bits_Von(a, C2_Regel::Eins), C3 + C0 + 4) << a;
        EXPECT_EQ(Hoch_Bits_Von(a, C2_Regel::Adr_18), C3 + C0 + (a >= 0x40000 ? 4 : 0)) << a;
        EXPECT_EQ(Hoch_Bits_Von(a, C2_Regel::Adr_15), C3 + C0 + ((a & 0x8000) != 0 ? 4 : 0)) << a;
    }
}

TEST_F(Signale_Test, what_C2_carries_follows_from_program_or_read_type)
{
    const struct {
        const char* R;
        const char* P;
        C2_Regel    Lesen;
        C2_Regel    Brennen;
    } Faelle[] = {
        {"27C040", "x", C2_Regel::Adr_18, C2_Regel::Adr_18},
        {"x", "27C040", C2_Regel::Adr_18, C2_Regel::Adr_18},
        {"27C080", "x", C2_Regel::Adr_18, C2_Regel::Adr_18},
        {"27C040", "28F040", C2_Regel::Adr_18, C2_Regel::Adr_18},
        {"27C010", "x", C2_Regel::Eins, C2_Regel::Eins},
        {"x", "27C020", C2_Regel::Eins, C2_Regel::Eins},
        {"29C040", "29C010", C2_Regel::Eins, C2_Regel::Null},
        {"28C010", "28C010", C2_Regel::Adr_15, C2_Regel::Adr_15},
        {"28C040", "28C040", C2_Regel::Adr_15, C2_Regel::Adr_15},
        {"27C64", "27C64", C2_Regel::Null, C2_Regel::Null},
        {"27C512", "27C512", C2_Regel::Null, C2_Regel::Null},
        {"29C010", "29C010", C2_Regel::Null, C2_Regel::Null},
        {"28F010", "28F010", C2_Regel::Null, C2_Regel::Null},
        {"28F040", "28F040", C2_Regel::Null, C2_Regel::Null},
    };
    for (const auto& f : Faelle) {
        EXPECT_EQ(C2_Regel_Von(f.R, f.P, true), f.Lesen) << f.R << " " << f.P;
        EXPECT_EQ(C2_Regel_Von(f.R, f.P, false), f.Brennen) << f.R << " " << f.P;
    }
}

TEST_F(Signale_Test, the_counters_are_reset_for_programming_and_for_reading)
{
    Spur();
    Zaehler_Ruecksetzen_Brennen();
    EXPECT_EQ(Spur(), "W D 5A\nW C 09\nM 1\nW C 0B\nM 1\n");
    Zaehler_Ruecksetzen_Lesen();
    EXPECT_EQ(Spur(), "W D 4A\nW C 0D\nM 1\nW C 0F\nM 1\n");
}

TEST_F(Signale_Test, a_counter_step_of_programming_takes_both_corrections)
{
    Zaehler_Ruecksetzen_Brennen();
    Daten();
    Zaehler_Schritt_Brennen();
    EXPECT_EQ(Daten(), (std::vector<int>{91, 95, 91}));
    Adj_512 = -1;
    Zaehler_Schritt_Brennen();
    EXPECT_EQ(Daten(), (std::vector<int>{90, 94, 90}));
    Adj_512 = 0;
    Adj_257 = 1;
    Zaehler_Schritt_Brennen();
    EXPECT_EQ(Daten(), (std::vector<int>{90, 94, 90}));
    EXPECT_EQ(Board().Zaehler_Stand(), 3);
}

TEST_F(Signale_Test, skipped_steps_end_with_a_plain_75)
{
    Daten();
    Zaehler_Takten_Lesen(2, 2);
    EXPECT_EQ(Daten(), (std::vector<int>{73, 77, 73, 77, 75}));
    Zaehler_Takten_Lesen(0, 0);
    EXPECT_EQ(Daten(), (std::vector<int>{75}));
}

TEST_F(Signale_Test, a_value_without_room_in_a_byte_is_taken_modulo_256)
{
    Daten();
    Daten_Senden(256 + 27);
    Daten_Senden(-1);
    EXPECT_EQ(Daten(), (std::vector<int>{27, 255}));
}

// ---- connection check ----

TEST_F(Signale_Test, the_low_bits_of_the_check_follow_from_the_types_and_the_later_test_wins)
{
    EXPECT_EQ(Pruef_Bits("27C64", "27C64"), 1);
    EXPECT_EQ(Pruef_Bits("87C257", "87C257"), 1);
    EXPECT_EQ(Pruef_Bits("28C64", "28C64"), 3);
    EXPECT_EQ(Pruef_Bits("28F010", "28F010"), 3);
    EXPECT_EQ(Pruef_Bits("27C256", "27SF256"), 2);
    EXPECT_EQ(Pruef_Bits("28C64", "27SF256"), 2);
    EXPECT_EQ(Pruef_Bits("27C512", "27C512"), 2);
    EXPECT_EQ(Pruef_Bits("27C512X", "28C64"), 2);
}

TEST_F(Signale_Test, with_the_option_off_the_check_touches_nothing)
{
    C_Brenner = false;
    Spur();
    Brenner_Pruefen();
    EXPECT_EQ(Spur(), "");
}

TEST_F(Signale_Test, a_board_with_power_passes_without_a_question)
{
    Antwort = Antwort_Ok;
    Brenner_Pruefen();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Antwort, Antwort_Ok);
}

TEST_F(Signale_Test, floating_lines_fail_whether_they_read_as_00h_or_FFh)
{
    Board().Fehler.Tot = true;
    for (const int Status_Wert : {0x80, 0x7F}) {
        Board().Fehler.Tot_Status = static_cast<std::uint8_t>(Status_Wert);
        Box.Meldungen.clear();
        Antwort = Antwort_Ok;
        Brenner_Pruefen();
        EXPECT_EQ(Box.Meldungen.size(), 1u);
        EXPECT_EQ(Antwort, Antwort_Abbrechen);
    }
}

TEST_F(Signale_Test, a_failed_check_asks_in_both_languages)
{
    Board().Fehler.Tot = true;
    Brenner_Pruefen();
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Please check the power supply and the connection to the programmer!");
    EXPECT_EQ(Box.Meldungen[0].Titel, "Attention !");
    EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ok_Abbrechen);
    Sprache = "D";
    Brenner_Pruefen();
    EXPECT_EQ(Box.Meldungen[1].Text,
              "Bitte überprüfen Sie ob der Brenner richtig angeschlossen und eingeschaltet ist !");
    EXPECT_EQ(Box.Meldungen[1].Titel, "Achtung !");
}

TEST_F(Signale_Test, ok_repeats_the_whole_check)
{
    Board().Fehler.Tot = true;
    Box.Antworten      = {Antwort_Ok};
    Spur();
    Brenner_Pruefen();
    EXPECT_EQ(Spur(), Erwartete_Spur("pruefen_ohne_board"));
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}

TEST_F(Signale_Test, where_no_box_can_appear_a_failed_check_gives_up)
{
    Sprache            = "";
    Board().Fehler.Tot = true;
    Antwort            = Antwort_Ok;
    Brenner_Pruefen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
}

struct Pruef_Fall {
    const char* Spur;
    const char* R;
    const char* P;
};

class Pruef_Test : public Brenner_Welt, public ::testing::WithParamInterface<Pruef_Fall> {};

TEST_P(Pruef_Test, the_check_sends_exactly_these_bytes)
{
    Geraet("X", 4, GetParam().R, GetParam().P);
    Board_Anschliessen();
    Spur();
    Brenner_Pruefen();
    EXPECT_EQ(Spur(), Erwartete_Spur(GetParam().Spur));
    EXPECT_EQ(Inhalt(), std::vector<std::uint8_t>(4, 0xFF)) << "the check must program nothing";
    EXPECT_EQ(Board().Buskonflikte(), 0);
}

INSTANTIATE_TEST_SUITE_P(Types,
                         Pruef_Test,
                         ::testing::Values(Pruef_Fall{"pruefen_27C256", "27C256", "27C256"},
                                           Pruef_Fall{"pruefen_28C256", "28C256", "28C256"},
                                           Pruef_Fall{"pruefen_27SF256", "27C256", "27SF256"},
                                           Pruef_Fall{"pruefen_27C512", "27C512", "27C512"},
                                           Pruef_Fall{"pruefen_87C257", "87C257", "87C257"}),
                         [](const auto& i) { return std::string(i.param.Spur); });

TEST_F(Signale_Test, the_check_programs_no_device_whose_supply_it_raises)
{
    for (const char* Typ : {"27C64",
                            "27C128",
                            "27C256",
                            "27C512",
                            "27C010",
                            "27C020",
                            "27C040",
                            "27C080",
                            "87C257",
                            "27SF256"}) {
        Geraet(Typ, 64);
        Board_Anschliessen();
        for (int i = 0; i < 50; ++i)
            Brenner_Pruefen();
        EXPECT_EQ(Inhalt(), std::vector<std::uint8_t>(64, 0xFF)) << Typ;
    }
}

TEST_F(Signale_Test, the_hardware_version_changes_no_byte)
{
    std::vector<std::string> Spuren;
    for (const int Version : {0, 30, 31, 32}) {
        Eprommer_Version = Version;
        Board_Anschliessen();
        Hex_Puffer.assign(4, 0);
        Spur();
        Speicher_Lesen();
        Spuren.push_back(Spur());
    }
    EXPECT_NE(Spuren[0], "");
    for (const std::string& s : Spuren)
        EXPECT_EQ(s, Spuren[0]);
}

} // namespace
} // namespace varnholt::test
