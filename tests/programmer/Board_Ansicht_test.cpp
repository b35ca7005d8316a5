// Looking at the simulated board and handling it: what is told of the part, each fault, new parts,
// light, files.
#include "programmer/Board_Ansicht.h"

#include "core/checksum.h"
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Geraete.h"
#include "programmer/Lesen.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"
#include "support/scripted_platform.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Board_Ansicht_Test : public Welt {
protected:
    Board_Ansicht_Test() { fs::create_directories(Ordner); }
    ~Board_Ansicht_Test() override
    {
        fs::remove_all(Ordner);
        Plattform_Zuruecksetzen();
    }
    static void Eprommer() { Einsetzen("27C256", 1, "UV", 32768); }
    static void Tessel2() { Einsetzen("89C52", 3, "89CII", 8192); }
    static void Einsetzen(const char* Typ, int Brett, const char* E_Typ, std::int32_t Bytes)
    {
        Geraet_T& g  = Geraete_Tabelle[0];
        g            = {};
        g.Name       = Typ;
        g.R_Typ      = Typ;
        g.P_Typ      = Typ;
        g.E_Typ      = E_Typ;
        g.Programmer = Brett;
        g.Bytes      = Bytes;
        IC_Nummer    = 0;
        Port_Art     = Art_Simuliert;
        Port_Einrichten();
        Porttreiber_Laden();
    }
    static std::vector<std::uint8_t>& Inhalt()
    {
        return dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein()->Inhalt;
    }
    fs::path Ordner = fs::temp_directory_path() / ("varnholt-ba-" + std::to_string(getpid()));
};

TEST_F(Board_Ansicht_Test, without_a_simulated_port_there_is_nothing_to_see_and_to_do)
{
    EXPECT_FALSE(Board_Ansehen().Simuliert);
    Board_Neuer_Baustein();
    Board_UV_Loeschen();
    Board_Stoeren(Board_Stoerung::Kein_Strom, true);
    EXPECT_FALSE(Board_Gestoert(Board_Stoerung::Kein_Strom));
    EXPECT_FALSE(Board_Tote_Zelle(0));
    EXPECT_EQ(Board_Laden("x").E, "");
    EXPECT_EQ(Board_Sichern("x").E, "");
    EXPECT_FALSE(fs::exists("x"));
}

TEST_F(Board_Ansicht_Test, an_empty_part_is_told_in_both_languages)
{
    Eprommer();
    Board_Bild b = Board_Ansehen();
    EXPECT_TRUE(b.Simuliert);
    EXPECT_TRUE(b.Hat_Baustein);
    EXPECT_TRUE(b.UV_Loeschbar);
    EXPECT_FALSE(b.Ist_MC);
    EXPECT_EQ(b.Board, "Eprommer");
    EXPECT_EQ(b.Baustein, "27C256, 32768 bytes");
    EXPECT_EQ(b.Benutzt, "empty, all FFh");
    EXPECT_EQ(b.Bytes, "FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF");
    EXPECT_EQ(b.Lage, "");
    Sprache = "D";
    b       = Board_Ansehen();
    EXPECT_EQ(b.Baustein, "27C256, 32768 Bytes");
    EXPECT_EQ(b.Benutzt, "leer, alles FFh");
}

TEST_F(Board_Ansicht_Test, contents_are_told_by_first_bytes_used_range_and_checksum)
{
    Eprommer();
    Inhalt()[2]      = 0x0A;
    Inhalt()[0x7FFF] = 0;
    Board_Bild b     = Board_Ansehen();
    EXPECT_EQ(b.Bytes, "FF FF 0A FF FF FF FF FF FF FF FF FF FF FF FF FF");
    EXPECT_EQ(b.Benutzt, "2h - 7FFFh");
    EXPECT_EQ(b.Pruefsumme, fmt::format("{:08X}", CRC_32(Inhalt())));
    Inhalt()[0x7FFF] = 0xFF;
    EXPECT_EQ(Board_Ansehen().Benutzt, "2h - 2h");
    Inhalt() = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
    b        = Board_Ansehen();
    EXPECT_EQ(b.Pruefsumme, "CBF43926") << "the check value of this checksum";
    EXPECT_EQ(b.Bytes, "31 32 33 34 35 36 37 38 39");
}

TEST_F(Board_Ansicht_Test, without_a_device_the_socket_is_empty)
{
    IC_Nummer = -1;
    Port_Art  = Art_Simuliert;
    Port_Einrichten();
    const Board_Bild b = Board_Ansehen();
    EXPECT_TRUE(b.Simuliert);
    EXPECT_FALSE(b.Hat_Baustein);
    EXPECT_EQ(b.Lage, "The socket is empty.");
    EXPECT_FALSE(Board_Tote_Zelle(0));
    Board_UV_Loeschen();
}

TEST_F(Board_Ansicht_Test, a_microcontroller_board_is_named_and_not_erased_by_light)
{
    Tessel2();
    EXPECT_EQ(Board_Ansehen().Board, "Tessel2");
    EXPECT_TRUE(Board_Ansehen().Ist_MC);
    EXPECT_FALSE(Board_Ansehen().UV_Loeschbar);
    Einsetzen("89C2051", 2, "89CI", 2048);
    EXPECT_EQ(Board_Ansehen().Board, "Tessel1");
}

TEST_F(Board_Ansicht_Test, each_fault_goes_on_and_off_alone_and_says_why)
{
    struct Zeile_T {
        Board_Stoerung Welche;
        const char *   D, *E;
    };
    const Zeile_T Zeilen[] = {
        {Board_Stoerung::Kein_Strom, "Das Board hat keinen Strom.", "The board has no power."},
        {Board_Stoerung::Sockel_Leer, "Der Sockel ist leer.", "The socket is empty."},
        {Board_Stoerung::D0_Auf_0, "Eine Datenleitung hängt fest.", "A data line is stuck."},
        {Board_Stoerung::D7_Auf_1, "Eine Datenleitung hängt fest.", "A data line is stuck."},
        {Board_Stoerung::Nicht_Bereit,
         "Die Bereit-Leitung bleibt aus.",
         "The ready line never comes."},
        {Board_Stoerung::Falsche_Kennung,
         "Das IC gibt eine falsche Signatur: es wird nicht erkannt.",
         "The IC gives a wrong signature: it isn't recognised."}};
    Tessel2();
    for (const Zeile_T& z : Zeilen) {
        Board_Stoeren(z.Welche, true);
        for (int i = 0; i < Board_Stoerungen; ++i)
            EXPECT_EQ(Board_Gestoert(static_cast<Board_Stoerung>(i)),
                      static_cast<Board_Stoerung>(i) == z.Welche);
        Sprache = "E";
        EXPECT_EQ(Board_Ansehen().Lage, z.E);
        Sprache = "D";
        EXPECT_EQ(Board_Ansehen().Lage, z.D);
        Board_Stoeren(z.Welche, false);
        EXPECT_FALSE(Board_Gestoert(z.Welche));
        EXPECT_EQ(Board_Ansehen().Lage, "");
    }
}

TEST_F(Board_Ansicht_Test, the_eprommer_has_no_faults_of_a_microcontroller)
{
    Eprommer();
    for (const auto s : {Board_Stoerung::Nicht_Bereit, Board_Stoerung::Falsche_Kennung}) {
        Board_Stoeren(s, true);
        EXPECT_FALSE(Board_Gestoert(s));
    }
    EXPECT_EQ(Board_Ansehen().Lage, "");
}

TEST_F(Board_Ansicht_Test, a_locked_part_tells_why_it_cannot_be_read)
{
    Tessel2();
    auto* Baustein        = dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein();
    Baustein->Sperr_Stufe = 2;
    EXPECT_EQ(Board_Ansehen().Lage, "");
    Baustein->Sperr_Stufe = 3;
    EXPECT_EQ(Board_Ansehen().Lage,
              "The lock level prevents reading: the IC shows FFh everywhere.");
    Sprache = "D";
    EXPECT_EQ(Board_Ansehen().Lage,
              "Die Sperrstufe verhindert das Lesen: das IC zeigt überall FFh.");
}

TEST_F(Board_Ansicht_Test, a_part_taken_out_reads_as_nothing_and_comes_back_as_it_was)
{
    Eprommer();
    Inhalt()[0] = 0x12;
    Board_Stoeren(Board_Stoerung::Sockel_Leer, true);
    EXPECT_FALSE(Board_Ansehen().Hat_Baustein);
    EXPECT_EQ(Board_Ansehen().Bytes, "");
    Hex_Puffer.assign(32768, 0);
    Antwort = Antwort_Ok;
    Baustein_Lesen();
    EXPECT_EQ(Hex_Puffer[0], 0xFF);
    Board_Stoeren(Board_Stoerung::Sockel_Leer, false);
    Antwort = Antwort_Ok;
    Baustein_Lesen();
    EXPECT_EQ(Hex_Puffer[0], 0x12);
}

TEST_F(Board_Ansicht_Test, a_new_part_is_erased_and_takes_all_faults_with_it)
{
    Tessel2();
    Inhalt()[0] = 0;
    for (int i = 0; i < Board_Stoerungen; ++i)
        Board_Stoeren(static_cast<Board_Stoerung>(i), true);
    Board_Neuer_Baustein();
    for (int i = 0; i < Board_Stoerungen; ++i)
        EXPECT_FALSE(Board_Gestoert(static_cast<Board_Stoerung>(i)));
    EXPECT_EQ(Board_Ansehen().Benutzt, "empty, all FFh");
    EXPECT_TRUE(Porttreiber_OK);
}

TEST_F(Board_Ansicht_Test, light_erases_every_byte)
{
    Eprommer();
    Inhalt().assign(32768, 0);
    Board_UV_Loeschen();
    EXPECT_EQ(Board_Ansehen().Benutzt, "empty, all FFh");
}

TEST_F(Board_Ansicht_Test, a_dead_cell_has_to_lie_in_the_part)
{
    Eprommer();
    EXPECT_TRUE(Board_Tote_Zelle(0));
    EXPECT_TRUE(Board_Tote_Zelle(32767));
    EXPECT_FALSE(Board_Tote_Zelle(32768));
    EXPECT_FALSE(Board_Tote_Zelle(-1));
    auto* b = dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein();
    b->Puls(0, 0, 1000000);
    b->Puls(1, 0, 1000000);
    EXPECT_EQ(Inhalt()[0], 0xFF);
    EXPECT_EQ(Inhalt()[1], 0);
}

TEST_F(Board_Ansicht_Test, contents_go_into_a_file_and_come_back)
{
    Eprommer();
    for (std::size_t i = 0; i < Inhalt().size(); ++i)
        Inhalt()[i] = static_cast<std::uint8_t>(i * 7 >> 3);
    const auto        Vorher = Inhalt();
    const std::string Datei  = (Ordner / "chip.bin").string();
    EXPECT_EQ(Board_Sichern(Datei).E, "");
    EXPECT_EQ(fs::file_size(Datei), 32768u);
    Board_Neuer_Baustein();
    EXPECT_NE(Inhalt(), Vorher);
    EXPECT_EQ(Board_Laden(Datei).E, "");
    EXPECT_EQ(Inhalt(), Vorher);
}

TEST_F(Board_Ansicht_Test, a_file_that_does_not_fit_is_told_and_leaves_the_part)
{
    Eprommer();
    Inhalt()[0] = 0x34;
    for (const std::size_t n : {std::size_t{0}, std::size_t{100}, std::size_t{32770}}) {
        std::ofstream(Ordner / "bad.bin", std::ios::binary) << std::string(n, 'x');
        const Text_Paar t = Board_Laden((Ordner / "bad.bin").string());
        EXPECT_FALSE(t.E.empty()) << n;
        EXPECT_FALSE(t.D.empty()) << n;
        EXPECT_EQ(Inhalt()[0], 0x34);
    }
    EXPECT_FALSE(Board_Laden(Ordner.string()).E.empty()) << "a folder";
    EXPECT_FALSE(Board_Sichern((Ordner / "gone" / "x.bin").string()).E.empty());
}

TEST_F(Board_Ansicht_Test, the_command_opens_the_window)
{
    MNU_EEprommer_Click();
    EXPECT_EQ(Fenster.Protokoll, (std::vector<std::string>{"Zeigen Board"}));
}

} // namespace
} // namespace varnholt::test
