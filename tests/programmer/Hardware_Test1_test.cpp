// The automatic test of the Eprommer.
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Hardware_Test1.h"
#include "programmer/Special.h"

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Hardware_Test1_Test : public Brenner_Welt {
protected:
    void SetUp() override
    {
        IC_Nummer = -1;
        Board_Anschliessen();
        fs::create_directories(Ordner);
        Programm_Pfad = (Ordner / "").string();
        Spur();
    }
    void TearDown() override { fs::remove_all(Ordner); }

    std::string Datei_Text() const
    {
        std::ifstream     Quelle(Ordner / "AutoTest_failed.txt", std::ios::binary);
        std::stringstream Text;
        Text << Quelle.rdbuf();
        return Text.str();
    }

    fs::path Ordner = fs::temp_directory_path() / ("varnholt-test1-" + std::to_string(getpid()));
};

// The bytes of one value, as they are to go over the port of a sound board.
std::string Wert_Spur(int w)
{
    std::string s;
    const auto  Hex = [](int v) {
        const char* z = "0123456789ABCDEF";
        return std::string{z[v >> 4 & 15], z[v & 15]};
    };
    const auto Zeile        = [&](int v) { s += "W D " + Hex(v) + "\n"; };
    const auto Status_Zeile = [&](int b) {
        s +=
            "R S " +
            Hex((b & 1 ? 0 : 128) + (b & 4 ? 64 : 0) + (b & 16 ? 32 : 0) + (b & 64 ? 16 : 0) + 15) +
            "\n";
    };
    for (int i = 7; i >= 0; --i) {
        const int b = (w >> i & 1) * 128;
        Zeile(91 + b);
        Zeile(123 + b);
    }
    for (const int v : {27, 91, 27, 27})
        Zeile(v);
    s += "U 0\n";
    Status_Zeile(w);
    Zeile(155);
    s += "U 0\n";
    Status_Zeile(w >> 1);
    return s;
}

TEST_F(Hardware_Test1_Test, all_256_values_go_upward_through_both_chips)
{
    EXPECT_EQ(Test1_Durchfuehren().Fehler, 0);
    std::string Erwartet = "W C 09\nM 1\nW C 0B\nM 1\n";
    for (int w = 0; w < 256; ++w)
        Erwartet += Wert_Spur(w);
    EXPECT_EQ(Spur(), Erwartet);
}

TEST_F(Hardware_Test1_Test, the_settling_time_is_that_of_the_device_in_use)
{
    Geraete_Tabelle[Test_Baustein].R_Timing = 3;
    Eprommer_Test1();
    const std::string s = Spur();
    EXPECT_NE(s.find("U 6\n"), std::string::npos);
    EXPECT_NE(s.find("U 3\n"), std::string::npos);
}

TEST_F(Hardware_Test1_Test, a_sound_board_is_told_in_both_languages)
{
    Box.Antworten = {Antwort_Ok, Antwort_Abbrechen};
    EXPECT_EQ(Eprommer_Test1().Fehler, 0);
    EXPECT_EQ(Antwort, Antwort_Ok) << "goes on to the next test";
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "TEST 1 OKAY!");
    EXPECT_TRUE(Box.Meldungen[0].Text.starts_with(
        "Just in this moment, a automatic test was finished sucessfully."));
    Sprache = "D";
    Eprommer_Test1();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_EQ(Box.Meldungen[1].Titel, "TEST 1 OKAY!");
    EXPECT_TRUE(Box.Meldungen[1].Text.starts_with(
        "Soeben wurde ein automatischer Testlauf durchgeführt, bei dem 256 Bytes durch den 74HC595 "
        "und den 74HC157 geschoben und wieder eingelesen wurden. Alle Daten wurden wieder richtig "
        "eingelesen, "));
    EXPECT_FALSE(fs::exists(Ordner / "AutoTest_failed.txt"));
}

TEST_F(Hardware_Test1_Test, a_faulty_board_is_told_in_both_languages)
{
    Board().Fehler.Klemmt_Auf_0 = 1;
    Eprommer_Test1();
    EXPECT_EQ(Box.Meldungen[0].Titel, "TEST 1 Failed!");
    EXPECT_TRUE(
        Box.Meldungen[0].Text.starts_with("Just in this moment, a automatic test has failed!"));
    EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ok_Abbrechen);
    Sprache = "D";
    Eprommer_Test1();
    EXPECT_EQ(Box.Meldungen[1].Titel, "TEST 1 FAILED!");
    EXPECT_TRUE(Box.Meldungen[1].Text.ends_with(
        "Die Daten konnten nicht korrekt eingelesen werden, es werden nun weitere Tests gemacht um "
        "das Problem einzukreisen."));
}

TEST_F(Hardware_Test1_Test, each_stuck_bit_is_counted_at_its_place_once_a_value)
{
    for (int Bit = 0; Bit < 8; ++Bit) {
        Board().Fehler              = {};
        Board().Fehler.Klemmt_Auf_1 = static_cast<std::uint8_t>(1 << Bit);
        const Test1_Ergebnis e      = Test1_Durchfuehren();
        EXPECT_EQ(e.Fehler, 128) << "two mismatches on one value count one error";
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(e.Bit_Fehler[static_cast<std::size_t>(i)], i == Bit ? 128 : 0);
    }
}

TEST_F(Hardware_Test1_Test, a_value_that_is_right_at_the_second_try_is_no_error)
{
    // The line sticks during the first read of the first value only.
    class Wackler : public Simulierter_Eprommer {
    public:
        std::uint8_t KS_inpb(std::int32_t Adresse) override
        {
            const std::uint8_t s = Simulierter_Eprommer::KS_inpb(Adresse);
            return ++Lesungen == 1 ? static_cast<std::uint8_t>(s ^ 0x40) : s;
        }
        int Lesungen = 0;
    } Port;
    Plattform.Port = &Port;
    Porttreiber_Laden();
    EXPECT_EQ(Test1_Durchfuehren().Fehler, 0);
    EXPECT_EQ(Port.Lesungen, 2 * 257);
}

TEST_F(Hardware_Test1_Test, the_file_lists_the_wrong_values_and_the_errors_of_each_bit)
{
    Test1_Ergebnis e;
    e.Fehler        = 1;
    e.Bit_Fehler[2] = 1;
    e.Werte         = "SOLL:4 IST: 0\r\n";
    EXPECT_TRUE(Test1_Datei_Schreiben(e));
    std::string Erwartet = "SOLL:4 IST: 0\r\n";
    for (int i = 0; i < 8; ++i)
        Erwartet += "Anzahl der Bitfehler in Bit " + std::to_string(i) + ": " +
                    (i == 2 ? "1" : "0") + "\r\n";
    EXPECT_EQ(Datei_Text(), Erwartet);
}

TEST_F(Hardware_Test1_Test, the_file_is_written_new_on_each_failing_run)
{
    Board().Fehler.Klemmt_Auf_0 = 1;
    Eprommer_Test1();
    const std::string Erster = Datei_Text();
    EXPECT_TRUE(Erster.starts_with("SOLL:1 IST: 0\r\nSOLL:3 IST: 2\r\n"));
    Board().Fehler              = {};
    Board().Fehler.Klemmt_Auf_0 = 2;
    Eprommer_Test1();
    EXPECT_TRUE(Datei_Text().starts_with("SOLL:2 IST: 0\r\nSOLL:3 IST: 1\r\n"));
    EXPECT_EQ(Datei_Text().size() > 0 && Datei_Text() != Erster, true);
}

TEST_F(Hardware_Test1_Test, a_folder_that_cannot_be_written_gives_a_notice)
{
    Programm_Pfad               = (Ordner / "gone" / "").string();
    Board().Fehler.Klemmt_Auf_0 = 1;
    EXPECT_GT(Eprommer_Test1().Fehler, 0);
    ASSERT_EQ(Box.Hinweise.size(), 1u);
    EXPECT_NE(Box.Hinweise[0].find("The file can't be written"), std::string::npos);
}

TEST_F(Hardware_Test1_Test, the_device_selection_is_the_same_afterwards)
{
    for (const int Nummer : {-1, 0, 33}) {
        IC_Nummer = Nummer;
        Eprommer_Test1();
        EXPECT_EQ(IC_Nummer, Nummer);
    }
}

TEST_F(Hardware_Test1_Test, a_dead_board_fails_every_value_but_one)
{
    Board().Fehler.Tot     = true; // reads FFh
    const Test1_Ergebnis e = Test1_Durchfuehren();
    EXPECT_EQ(e.Fehler, 255);
    for (const int n : e.Bit_Fehler)
        EXPECT_EQ(n, 128);
}

TEST_F(Hardware_Test1_Test, the_corrections_of_an_earlier_run_are_cleared)
{
    Adj_512 = -1;
    Adj_257 = 1;
    EXPECT_EQ(Test1_Durchfuehren().Fehler, 0);
    EXPECT_EQ(Adj_512, 0);
    EXPECT_EQ(Adj_257, 0);
}

} // namespace
} // namespace varnholt::test
