// Choosing the port of the desktop program.
#include "programmer/Port_Einrichtung.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Dateien_Welt.h"
#include "programmer/Geraete.h"
#include "programmer/Port_direkt.h"
#include "programmer/Port_ppdev.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Simulierter_Tessel2.h"
#include "programmer/Special.h"

#include <string>
#include <vector>

namespace varnholt::test {
namespace {

class Port_Einrichtung_Test : public Welt {
protected:
    // Device number 0 on that board, selected.
    static void Geraet(int Board)
    {
        Geraet_T& g  = Geraete_Tabelle[0];
        g.Name       = "27C64";
        g.Bytes      = 8192;
        g.R_Typ      = "27C64";
        g.P_Typ      = "27C64";
        g.Programmer = Board;
        IC_Nummer    = 0;
    }
    static Simuliertes_Board* Board() { return dynamic_cast<Simuliertes_Board*>(Plattform.Port); }

    Arbeitsordner Ordner{};
};

TEST_F(Port_Einrichtung_Test, sim_gives_a_board_with_the_selected_device)
{
    Geraet(1);
    Port_Art = "sim";
    Port_Einrichten();
    ASSERT_NE(Board(), nullptr);
    ASSERT_NE(Board()->Baustein(), nullptr);
    EXPECT_EQ(Board()->Baustein()->Inhalt.size(), 8192u);
}

TEST_F(Port_Einrichtung_Test, sim_without_a_device_gives_an_empty_socket)
{
    Port_Art = "sim";
    Port_Einrichten();
    ASSERT_NE(Board(), nullptr);
    EXPECT_EQ(Board()->Baustein(), nullptr);
}

TEST_F(Port_Einrichtung_Test, a_microcontroller_gives_its_own_board)
{
    Geraet(3);
    Port_Art = "sim";
    Port_Einrichten();
    EXPECT_NE(dynamic_cast<Simulierter_Tessel2*>(Plattform.Port), nullptr);
}

TEST_F(Port_Einrichtung_Test, a_number_without_a_device_gives_an_empty_socket)
{
    IC_Nummer = 5;
    Port_Art  = "sim";
    Port_Einrichten();
    ASSERT_NE(Board(), nullptr);
    EXPECT_EQ(Board()->Baustein(), nullptr);
}

TEST_F(Port_Einrichtung_Test, ppdev_gives_the_kernels_port_of_that_path)
{
    Port_Art = "ppdev:" + Ordner.Name("parport7");
    Port_Einrichten();
    ASSERT_NE(dynamic_cast<Port_ppdev*>(Plattform.Port), nullptr);
    EXPECT_TRUE(Plattform.Port->KS_getErrorStringEx(2).starts_with(Ordner.Name("parport7") + ": "));
}

TEST_F(Port_Einrichtung_Test, io_gives_the_registers_themselves)
{
    Port_Art = "io";
    Port_Einrichten();
    EXPECT_NE(dynamic_cast<Port_direkt*>(Plattform.Port), nullptr);
}

TEST_F(Port_Einrichtung_Test, a_port_that_cannot_be_opened_gives_the_drivers_message)
{
    Port_Art = "ppdev:" + Ordner.Name("none");
    Port_Einrichten();
    Porttreiber_Laden();
    EXPECT_TRUE(Letzte_Meldung().starts_with("Portdriver has not been loaded sucessfully."));
}

TEST_F(Port_Einrichtung_Test, a_simulated_port_opens_without_a_message)
{
    Port_Art = "sim";
    Port_Einrichten();
    Porttreiber_Laden();
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Port_Einrichtung_Test, the_first_port_that_can_be_opened_is_taken)
{
    const std::vector<std::string> Namen = {
        Ordner.Name("none"), Ordner.Anlegen("parport1", ""), Ordner.Anlegen("parport2", "")};
    EXPECT_EQ(Port_Art_Suchen(Namen), "ppdev:" + Namen[1]);
}

TEST_F(Port_Einrichtung_Test, where_no_port_answers_it_is_simulated)
{
    EXPECT_EQ(Port_Art_Suchen({}), "sim");
    const std::vector<std::string> Namen = {Ordner.Name("none"), Ordner.Pfad.string()};
    EXPECT_EQ(Port_Art_Suchen(Namen), "sim"); // a folder can't be written
}

TEST_F(Port_Einrichtung_Test, a_choice_that_is_none_is_decided_and_kept)
{
    for (const char* Art : {"", "ppdev:", "usb", "SIM"}) {
        Port_Art = Art;
        Port_Einrichten();
        EXPECT_TRUE(Port_Art == "sim" || Port_Art.starts_with("ppdev:/dev/parport")) << Art;
        EXPECT_FALSE(Port_Beschreibung().empty()) << Art;
    }
}

TEST_F(Port_Einrichtung_Test, another_choice_replaces_the_driver)
{
    Port_Art = "sim";
    Port_Einrichten();
    Port_Art = "io";
    Port_Einrichten();
    EXPECT_EQ(Plattform.Port, Port_Einrichtung.Treiber.get());
    EXPECT_EQ(Board(), nullptr);
}

TEST_F(Port_Einrichtung_Test, the_port_is_named_in_both_languages)
{
    Port_Art = "sim";
    EXPECT_EQ(Port_Beschreibung(), "Simulated");
    Sprache = "D";
    EXPECT_EQ(Port_Beschreibung(), "Simuliert");
    Port_Art = "ppdev:/dev/parport0";
    EXPECT_EQ(Port_Beschreibung(), "/dev/parport0");
    Port_Art   = "io";
    Port_Basis = 888;
    EXPECT_EQ(Port_Beschreibung(), "378h");
}

} // namespace
} // namespace varnholt::test
