// Which board a device gets, and the socket that is kept in a file.
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Simulierter_Tessel1.h"
#include "programmer/Simulierter_Tessel2.h"

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Boards_Test : public Brenner_Welt {
protected:
    Boards_Test()
    {
        Geraet("27C64", 16);
        Brett = Simuliertes_Board_Fuer(0);
        fs::create_directories(Ordner);
    }
    ~Boards_Test() override { fs::remove_all(Ordner); }

    void Schreiben(const std::string& Bytes) const
    {
        std::ofstream(Datei, std::ios::binary) << Bytes;
    }
    std::string Gelesen() const
    {
        std::ifstream     Quelle(Datei, std::ios::binary);
        std::stringstream Text;
        Text << Quelle.rdbuf();
        return Text.str();
    }

    fs::path Ordner = fs::temp_directory_path() / ("varnholt-boards-" + std::to_string(getpid()));
    fs::path Datei  = Ordner / "chip.bin";
    std::unique_ptr<Simuliertes_Board> Brett{};
};

TEST_F(Boards_Test, an_eprommer_device_gets_an_eprommer_with_an_erased_device)
{
    ASSERT_NE(Brett, nullptr);
    EXPECT_EQ(Brett->Baustein()->Inhalt, std::vector<std::uint8_t>(16, 0xFF));
    EXPECT_EQ(Brett->Baustein()->Sperr_Stufe, 0);
}

TEST_F(Boards_Test, board_3_is_the_tessel2_and_any_other_but_1_the_tessel1)
{
    for (const int Board_Nummer : {0, 2, 3, 99}) {
        Geraet("89C51", 16).Programmer = Board_Nummer;
        const auto b                   = Simuliertes_Board_Fuer(0);
        ASSERT_NE(b, nullptr);
        EXPECT_EQ(dynamic_cast<Simulierter_Tessel2*>(b.get()) != nullptr, Board_Nummer == 3);
        EXPECT_EQ(dynamic_cast<Simulierter_Tessel1*>(b.get()) != nullptr, Board_Nummer != 3);
        EXPECT_EQ(b->Baustein()->Inhalt, std::vector<std::uint8_t>(16, 0xFF));
    }
}

TEST_F(Boards_Test, a_number_without_a_device_gives_no_board)
{
    EXPECT_EQ(Simuliertes_Board_Fuer(5), nullptr);
    EXPECT_EQ(Simuliertes_Board_Fuer(-2), nullptr);
    EXPECT_EQ(Simuliertes_Board_Fuer(Geraete_Anzahl), nullptr);
}

TEST_F(Boards_Test, without_a_device_the_socket_of_the_eprommer_is_empty)
{
    const auto Leer = Simuliertes_Board_Fuer(-1);
    ASSERT_NE(Leer, nullptr);
    EXPECT_EQ(Leer->Baustein(), nullptr);
    EXPECT_EQ(Sockel_Laden(*Leer, Datei).E, "");
    EXPECT_EQ(Sockel_Speichern(*Leer, Datei).E, "");
    EXPECT_FALSE(fs::exists(Datei));
}

TEST_F(Boards_Test, a_device_of_any_size_makes_a_bounded_board)
{
    for (const std::int32_t Bytes : {0, -1, 1, 3, 2147483647}) {
        Geraet("27C64", Bytes);
        const auto b = Simuliertes_Board_Fuer(0);
        ASSERT_NE(b, nullptr);
        EXPECT_LE(b->Baustein()->Inhalt.size(), 524288u);
    }
}

TEST_F(Boards_Test, a_cell_needs_nine_tenths_of_the_nominal_pulse)
{
    Simulierter_Baustein& b = *Brett->Baustein();
    b.Puls(0, 0, 89);
    EXPECT_EQ(b.Inhalt[0], 0xFF);
    b.Puls(1, 0, 90);
    EXPECT_EQ(b.Inhalt[1], 0x00);
}

TEST_F(Boards_Test, a_missing_file_is_an_erased_device)
{
    const Text_Paar t = Sockel_Laden(*Brett, Datei);
    EXPECT_EQ(t.D + t.E, "");
    EXPECT_EQ(Brett->Baustein()->Inhalt[0], 0xFF);
}

TEST_F(Boards_Test, contents_are_kept_as_raw_bytes)
{
    Brett->Baustein()->Inhalt[3] = 0x42;
    EXPECT_EQ(Sockel_Speichern(*Brett, Datei).E, "");
    std::string Erwartet(16, '\xFF');
    Erwartet[3] = 0x42;
    EXPECT_EQ(Gelesen(), Erwartet);
    const auto Zweites = Simuliertes_Board_Fuer(0);
    EXPECT_EQ(Sockel_Laden(*Zweites, Datei).E, "");
    EXPECT_EQ(Zweites->Baustein()->Inhalt, Brett->Baustein()->Inhalt);
}

TEST_F(Boards_Test, a_lock_level_above_0_is_one_further_byte)
{
    Brett->Baustein()->Sperr_Stufe = 2;
    Sockel_Speichern(*Brett, Datei);
    EXPECT_EQ(Gelesen(), std::string(16, '\xFF') + '\x02');
    const auto Zweites = Simuliertes_Board_Fuer(0);
    EXPECT_EQ(Sockel_Laden(*Zweites, Datei).E, "");
    EXPECT_EQ(Zweites->Baustein()->Sperr_Stufe, 2);
}

TEST_F(Boards_Test, a_further_byte_that_is_no_lock_level_makes_the_file_one_of_another_size)
{
    for (const int Stufe : {0, 1, 4, 5, 255}) {
        Schreiben(std::string(16, 'x') + static_cast<char>(Stufe));
        EXPECT_EQ(Sockel_Laden(*Brett, Datei).E.empty(), Stufe <= 4) << Stufe;
    }
    EXPECT_EQ(Brett->Baustein()->Sperr_Stufe, 4);
}

TEST_F(Boards_Test, a_page_that_is_still_being_loaded_does_not_go_over_new_contents)
{
    Geraet("29C256", 16, "29C256", "29C256").Seiten_Bytes = 4;
    Brett                                                 = Simuliertes_Board_Fuer(0);
    Simulierter_Baustein& b                               = *Brett->Baustein();
    b.Schreiben(5, 0x33, 0, 1);
    Schreiben(std::string(16, 'x'));
    EXPECT_EQ(Sockel_Laden(*Brett, Datei).E, "");
    b.Zeit(1000000);
    EXPECT_EQ(b.Inhalt, std::vector<std::uint8_t>(16, 'x'));
}

TEST_F(Boards_Test, new_contents_begin_with_cells_that_got_no_pulse_yet)
{
    Simulierter_Baustein& b = *Brett->Baustein();
    b.Schwache_Zelle(3, 2);
    b.Puls(3, 0, 100);
    Schreiben(std::string(16, '\xFF'));
    EXPECT_EQ(Sockel_Laden(*Brett, Datei).E, "");
    b.Puls(3, 0, 100);
    EXPECT_EQ(b.Inhalt[3], 0xFF) << "still a weak cell, and the pulse of before doesn't count";
    b.Puls(3, 0, 100);
    EXPECT_EQ(b.Inhalt[3], 0x00);
}

TEST_F(Boards_Test, a_file_of_another_size_is_refused_in_both_languages)
{
    for (const std::size_t n :
         {std::size_t{0}, std::size_t{15}, std::size_t{18}, std::size_t{100000}}) {
        Schreiben(std::string(n, 'x'));
        const Text_Paar t = Sockel_Laden(*Brett, Datei);
        EXPECT_EQ(t.D,
                  Datei.string() + ": Die Datei hat nicht die Größe des Bausteins (16 Bytes).");
        EXPECT_EQ(t.E,
                  Datei.string() + ": The file doesn't have the size of the device (16 bytes).");
    }
    EXPECT_EQ(Brett->Baustein()->Inhalt[0], 0xFF);
}

TEST_F(Boards_Test, a_folder_in_place_of_the_file_cannot_be_read)
{
    const Text_Paar t = Sockel_Laden(*Brett, Ordner);
    EXPECT_EQ(t.D, Ordner.string() + ": Die Datei kann nicht gelesen werden.");
    EXPECT_EQ(t.E, Ordner.string() + ": The file can't be read.");
}

TEST_F(Boards_Test, a_folder_that_is_gone_cannot_be_written_to)
{
    const fs::path  Weg = Ordner / "gone" / "chip.bin";
    const Text_Paar t   = Sockel_Speichern(*Brett, Weg);
    EXPECT_TRUE(t.D.starts_with(Weg.string() + ": Die Datei kann nicht geschrieben werden: "));
    EXPECT_TRUE(t.E.starts_with(Weg.string() + ": The file can't be written: "));
}

} // namespace
} // namespace varnholt::test
