// The dialog `Optionen` as a model: what the controls show, what they store, and what Cancel
// leaves.
#include "core/options.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Sprungmarken.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Echte_Uhr.h"
#include "programmer/Port_Einrichtung.h"
#include "support/Beschriftungen.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

// A port that notes what it is asked to enable.
class Skript_Port : public Echte_Uhr {
public:
    int KS_openDriver() override { return 0; }
    int KS_enableIoRange(std::int32_t Adresse, int Anzahl) override
    {
        Freigegeben.emplace_back(Adresse, Anzahl);
        return Ergebnis;
    }
    void         KS_outpb(std::int32_t, std::uint8_t) override {}
    std::uint8_t KS_inpb(std::int32_t) override { return 0xFF; }

    std::vector<std::pair<std::int32_t, int>> Freigegeben{};
    int                                       Ergebnis = 0;
};

class Optionen_Welt : public Welt {
protected:
    Optionen_Welt()
    {
        Port_Art       = "sim";
        Plattform.Port = &Port;
    }
    ~Optionen_Welt() override
    {
        Plattform.Port = &Port; // the driver that a test set up goes
        Port_Einrichtung_Zuruecksetzen();
    }
    Skript_Port Port{};
};

// --- form load ---

TEST_F(Optionen_Welt, each_check_box_shows_its_flag)
{
    for (std::size_t i = 0; i < Haken_Tabelle.size(); ++i) {
        for (const Haken_Eintrag_T& e : Haken_Tabelle)
            *e.Wert = false;
        *Haken_Tabelle[i].Wert = true;
        Optionen_Laden();
        for (std::size_t k = 0; k < Haken_Tabelle.size(); ++k)
            EXPECT_EQ(Optionen_Form.Haken[k], i == k) << Haken_Tabelle[k].Name;
    }
}

TEST_F(Optionen_Welt, the_check_boxes_stand_for_these_flags)
{
    const std::pair<const char*, bool*> Soll[] = {
        {"C_Brenner", &C_Brenner},
        {"C_IC", &C_IC},
        {"C_IC_vor_B", &C_IC_vor_B},
        {"C_IC_bei_B", &C_IC_bei_B},
        {"C_IC_nach_B", &C_IC_nach_B},
        {"No_FF", &No_FF},
        {"Lade_Letzte", &Lade_Letzte},
        {"C_keine_TAB_SM", &C_keine_TAB_SM},
        {"C_keine_US_SM", &C_keine_US_SM},
        {"C_Erstelle_Listfile", &C_Erstelle_Listfile},
        {"C_Auto_Binfile", &C_Auto_Binfile},
        {"C_Auto_Hexfile", &C_Auto_Hexfile},
        {"C_Autosave_Ass", &Autosave_Assemblieren},
        {"C_Autosave_timed", &Autosave_Zeitlich},
    };
    ASSERT_EQ(std::size(Soll), Haken_Tabelle.size());
    for (std::size_t i = 0; i < Haken_Tabelle.size(); ++i) {
        EXPECT_EQ(Haken_Tabelle[i].Name, Soll[i].first);
        EXPECT_EQ(Haken_Tabelle[i].Wert, Soll[i].second);
    }
    EXPECT_EQ(Haken_Platz("C_IC"), 1u);
    EXPECT_EQ(Haken_Platz("gibt_es_nicht"), Haken_Tabelle.size());
}

TEST_F(Optionen_Welt, the_port_is_shown_in_hexadecimal_with_a_trailing_h)
{
    for (const auto& [Wert, Text] :
         {std::pair{888, "378h"}, {632, "278h"}, {0xBCD8, "BCD8h"}, {0, "0h"}, {-1, "FFFFFFFFh"}}) {
        Port_Basis = Wert;
        Optionen_Laden();
        EXPECT_EQ(Optionen_Form.T_Portadr, Text);
    }
}

TEST_F(Optionen_Welt, the_undo_steps_are_one_more_than_the_highest_slot)
{
    for (const auto& [Wert, Text] : {std::pair{99, "100"}, {-1, "0"}, {0, "1"}, {998, "999"}}) {
        Undo_Max = Wert;
        Optionen_Laden();
        EXPECT_EQ(Optionen_Form.T_Undo_Max, Text);
    }
}

TEST_F(Optionen_Welt, the_option_groups_colour_and_samples_show_their_settings)
{
    O_Automatik_Bef               = 2;
    Zahlendeutung                 = true;
    O_MOV_ZQ                      = false;
    Hintergrund_Farbe             = 0x123456;
    Schriften[Schrift_Notiz].Name = "Serif";
    Optionen_Laden();
    EXPECT_EQ(Optionen_Form.O_Automatik_Bef, 2);
    EXPECT_EQ(Optionen_Form.Zahlendeutung, 1);
    EXPECT_EQ(Optionen_Form.O_MOV_ZQ, 1);
    EXPECT_EQ(Optionen_Form.Farbe, 0x123456);
    EXPECT_EQ(Optionen_Form.Probe, Schriften);
}

TEST_F(Optionen_Welt, the_command_loads_the_form_and_shows_it)
{
    Optionen_Form.T_Undo_Max = "7";
    bool Gezeigt             = false;
    Fenster.Bei_Formular     = [&](Formular f) {
        Gezeigt = f == Formular::Optionen;
        EXPECT_EQ(Optionen_Form.T_Undo_Max, "100");
    };
    MNU_Optionen_Click();
    EXPECT_TRUE(Gezeigt);
}

// --- events of the controls ---

TEST_F(Optionen_Welt, the_undo_steps_are_held_within_0_and_999_while_typing)
{
    for (const auto& [Getippt, Text] : {std::pair{"100", "100"},
                                        {"0", "0"},
                                        {"-1", "0"},
                                        {"-", "0"},
                                        {"999", "999"},
                                        {"1000", "999"},
                                        {"99999999999999999999", "999"},
                                        {"", "0"},
                                        {"05", "5"},
                                        {"12x", "12"},
                                        {"x", "0"},
                                        {" 7 ", "7"}}) {
        Optionen_Form.T_Undo_Max = Getippt;
        T_Undo_Max_Change();
        EXPECT_EQ(Optionen_Form.T_Undo_Max, Text) << "'" << Getippt << "'";
    }
}

TEST_F(Optionen_Welt, a_chosen_font_shows_on_its_sample_only)
{
    Optionen_Laden();
    const Schrift_T Neu{"Mono", true, false, 12};
    Dialog.Schriften            = {Neu};
    Schriften[Schrift_Spr].Name = "bisher";
    Optionen_Laden();
    Schrift_Click(Schrift_Spr);
    EXPECT_EQ(Dialog.Schrift_Gefragt, std::vector<Schrift_T>{(Schrift_T{"bisher"})});
    EXPECT_EQ(Optionen_Form.Probe[Schrift_Spr], Neu);
    EXPECT_EQ(Optionen_Form.Probe[Schrift_Edit], Schrift_T{});
    EXPECT_EQ(Schriften[Schrift_Spr].Name, "bisher");
    EXPECT_EQ(Fenster.Zu(Fenster_Spr).Schrift, Schrift_T{});
}

TEST_F(Optionen_Welt, a_cancelled_font_dialog_leaves_the_sample)
{
    Schriften[Schrift_Edit].Name = "bisher";
    Optionen_Laden();
    Schrift_Click(Schrift_Edit);
    EXPECT_EQ(Optionen_Form.Probe[Schrift_Edit].Name, "bisher");
}

TEST_F(Optionen_Welt, a_chosen_colour_shows_at_once_and_is_not_yet_kept)
{
    Optionen_Laden();
    Dialog.Farben = {0x112233};
    Farbe_Click();
    EXPECT_EQ(Dialog.Farbe_Gefragt, std::vector<std::int32_t>{0xFFFFFF});
    EXPECT_EQ(Fenster.Hintergruende, std::vector<std::int32_t>{0x112233});
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    Farbe_Click(); // cancelled
    EXPECT_EQ(Dialog.Farbe_Gefragt.back(), 0x112233);
    EXPECT_EQ(Fenster.Hintergruende.size(), 1u);
}

// --- apply ---

TEST_F(Optionen_Welt, applying_stores_each_check_box_in_its_flag)
{
    for (std::size_t i = 0; i < Haken_Tabelle.size(); ++i) {
        Optionen_Laden();
        Optionen_Form.Haken    = {};
        Optionen_Form.Haken[i] = true;
        B_Üb_Click();
        for (std::size_t k = 0; k < Haken_Tabelle.size(); ++k)
            EXPECT_EQ(*Haken_Tabelle[k].Wert, i == k) << Haken_Tabelle[k].Name;
    }
}

TEST_F(Optionen_Welt, applying_stores_the_option_groups)
{
    Optionen_Laden();
    for (int i = 0; i < 3; ++i) {
        Optionen_Form.O_Automatik_Bef = i;
        Optionen_Form.Zahlendeutung   = i % 2;
        Optionen_Form.O_MOV_ZQ        = i % 2;
        B_Üb_Click();
        EXPECT_EQ(O_Automatik_Bef, i);
        EXPECT_EQ(Zahlendeutung, i == 1);
        EXPECT_EQ(O_MOV_ZQ, i != 1);
    }
}

TEST_F(Optionen_Welt, applying_gives_the_windows_their_fonts_and_places)
{
    Optionen_Laden();
    Optionen_Form.Probe = {Schrift_T{"A"}, Schrift_T{"B"}, Schrift_T{"C"}};
    B_Üb_Click();
    EXPECT_EQ(Fenster.Zu(Fenster_Edit).Schrift.Name, "A");
    EXPECT_EQ(Fenster.Zu(Fenster_Spr).Schrift.Name, "B");
    EXPECT_EQ(Fenster.Zu(Fenster_Notiz).Schrift.Name, "C");
    EXPECT_EQ(Schriften, Optionen_Form.Probe);
    EXPECT_EQ(Ansichten.Anordnung_Stand, 1u);
}

TEST_F(Optionen_Welt, applying_enables_eight_ports_from_the_address)
{
    Optionen_Laden();
    Optionen_Form.T_Portadr = "278h";
    Port.Ergebnis           = 5;
    B_Üb_Click();
    EXPECT_EQ(Port_Basis, 0x278);
    EXPECT_EQ(Port.Freigegeben, (std::vector<std::pair<std::int32_t, int>>{{0x278, 8}}));
    EXPECT_EQ(Treiber_Ergebnis, 5);
    EXPECT_TRUE(Box.Hinweise.empty());
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Optionen_Welt, an_address_that_can_not_be_read_goes_to_the_driver_as_minus_1)
{
    Optionen_Laden();
    for (const char* s : {"E", "D"}) {
        Sprache                 = s;
        Optionen_Form.T_Portadr = "LPT1";
        B_Üb_Click();
    }
    EXPECT_EQ(Port_Basis, -1);
    EXPECT_EQ(Port.Freigegeben.back(), (std::pair<std::int32_t, int>{-1, 8}));
    EXPECT_EQ(
        Box.Hinweise,
        (std::vector<std::string>{"Invalid port address: LPT1", "Ungültige Portadresse: LPT1"}));
}

TEST_F(Optionen_Welt, an_address_without_room_for_eight_ports_is_told)
{
    Optionen_Laden();
    Optionen_Form.T_Portadr = "FFF8h";
    B_Üb_Click();
    EXPECT_TRUE(Box.Hinweise.empty());
    for (const char* Text : {"FFF9", "0", ""}) {
        Box.Hinweise.clear();
        Optionen_Form.T_Portadr = Text;
        B_Üb_Click();
        EXPECT_EQ(Box.Hinweise.size(), 1u) << Text;
    }
}

TEST_F(Optionen_Welt, the_undo_steps_are_stored_less_one_and_a_ring_of_another_size_begins_anew)
{
    Optionen_Laden();
    Undo_Index = 60;
    B_Üb_Click(); // the same size
    EXPECT_EQ(Undo_Max, 99);
    EXPECT_EQ(Undo_Index, 60);
    Optionen_Form.T_Undo_Max = "10";
    B_Üb_Click();
    EXPECT_EQ(Undo_Max, 9);
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_EQ(Undo_Ende, 9);
    Optionen_Form.T_Undo_Max = "0";
    B_Üb_Click();
    EXPECT_EQ(Undo_Max, -1);
}

TEST_F(Optionen_Welt, applying_keeps_the_colour_and_rebuilds_the_jumpmarks)
{
    Edit.Inhalt = "Eins:\r\n\tZwei:\r\n";
    Optionen_Laden();
    Optionen_Form.Farbe                                = 0x445566;
    Optionen_Form.Haken[Haken_Platz("C_keine_TAB_SM")] = false;
    B_Üb_Click();
    EXPECT_EQ(Hintergrund_Farbe, 0x445566);
    EXPECT_EQ(Sprungmarken_Anzahl, 2);
    Optionen_Form.Haken[Haken_Platz("C_keine_TAB_SM")] = true;
    B_Üb_Click();
    EXPECT_EQ(Sprungmarken_Anzahl, 1);
}

TEST_F(Optionen_Welt, OK_applies_and_closes)
{
    Optionen_Laden();
    Optionen_Form.T_Undo_Max = "50";
    B_OK_Click();
    EXPECT_EQ(Undo_Max, 49);
    EXPECT_EQ(Fenster.Protokoll.back(), "Entladen Optionen");
}

TEST_F(Optionen_Welt, Accept_does_not_close)
{
    Optionen_Laden();
    B_Üb_Click();
    for (const std::string& z : Fenster.Protokoll)
        EXPECT_NE(z, "Entladen Optionen");
}

TEST_F(Optionen_Welt, Cancel_puts_the_colour_back_and_changes_no_setting)
{
    Optionen_Laden();
    Dialog.Farben = {0x112233};
    Farbe_Click();
    Optionen_Form.T_Undo_Max = "5";
    Optionen_Form.T_Portadr  = "278h";
    Optionen_Form.Haken.fill(false);
    Optionen_Form.Zahlendeutung = 1;
    B_Ab_Click();
    EXPECT_EQ(Fenster.Hintergruende, (std::vector<std::int32_t>{0x112233, 0xFFFFFF}));
    EXPECT_EQ(Fenster.Protokoll.back(), "Entladen Optionen");
    EXPECT_EQ(Undo_Max, 99);
    EXPECT_EQ(Port_Basis, 888);
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    EXPECT_TRUE(C_Brenner && Lade_Letzte);
    EXPECT_FALSE(Zahlendeutung);
    EXPECT_TRUE(Port.Freigegeben.empty());
}

TEST_F(Optionen_Welt, Cancel_after_Accept_keeps_the_accepted_colour)
{
    Optionen_Laden();
    Dialog.Farben = {0x112233, 0x445566};
    Farbe_Click();
    B_Üb_Click();
    Farbe_Click();
    B_Ab_Click();
    EXPECT_EQ(Fenster.Hintergruende.back(), 0x112233);
    EXPECT_EQ(Hintergrund_Farbe, 0x112233);
}

// --- kind of port ---

TEST_F(Optionen_Welt, the_kind_of_port_is_shown)
{
    using enum Port_Wahl_T;
    struct Fall {
        const char* Wert;
        Port_Wahl_T Art;
        const char* Geraet;
    };
    for (const Fall& f : {Fall{"", Simuliert, "/dev/parport0"},
                          {"sim", Simuliert, "/dev/parport0"},
                          {"Unfug", Simuliert, "/dev/parport0"},
                          {"io", Direkt, "/dev/parport0"},
                          {"ppdev:/dev/parport3", Ppdev, "/dev/parport3"}}) {
        Port_Art = f.Wert;
        Optionen_Laden();
        EXPECT_EQ(Optionen_Form.Port_Art, f.Art) << f.Wert;
        EXPECT_EQ(Optionen_Form.T_Geraet, f.Geraet) << f.Wert;
    }
}

TEST_F(Optionen_Welt, the_kind_of_port_is_stored)
{
    Optionen_Laden();
    Optionen_Form.Port_Art = Port_Wahl_T::Ppdev;
    Optionen_Form.T_Geraet = "/dev/parport1";
    B_Üb_Click();
    EXPECT_EQ(Port_Art, "ppdev:/dev/parport1");
    Optionen_Form.T_Geraet = "";
    B_Üb_Click();
    EXPECT_EQ(Port_Art, "ppdev:/dev/parport0");
    Optionen_Form.Port_Art = Port_Wahl_T::Direkt;
    B_Üb_Click();
    EXPECT_EQ(Port_Art, "io");
    Optionen_Form.Port_Art = Port_Wahl_T::Simuliert;
    B_Üb_Click();
    EXPECT_EQ(Port_Art, "sim");
}

TEST_F(Optionen_Welt, another_kind_of_port_starts_its_driver)
{
    Port_Art = "io";
    Optionen_Laden();
    Optionen_Form.Port_Art = Port_Wahl_T::Simuliert;
    B_Üb_Click();
    EXPECT_NE(Plattform.Port, &Port);
    EXPECT_TRUE(Porttreiber_OK);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Optionen_Welt, a_chosen_port_that_can_not_be_opened_brings_the_message_of_the_start)
{
    Porttreiber_OK = true;
    Optionen_Laden();
    Optionen_Form.Port_Art = Port_Wahl_T::Ppdev;
    Optionen_Form.T_Geraet = "/dev/gibt-es-nicht";
    B_Üb_Click();
    EXPECT_FALSE(Porttreiber_OK);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_TRUE(Letzte_Meldung().starts_with("Portdriver has not been loaded sucessfully."));
}

TEST_F(Optionen_Welt, the_same_kind_of_port_keeps_its_driver)
{
    Optionen_Laden();
    B_Üb_Click();
    EXPECT_EQ(Plattform.Port, &Port);
}

// --- captions ---

TEST_F(Optionen_Welt, every_control_has_its_caption_in_both_languages)
{
    for (const Options_Beschriftung& f : Options_Texte) {
        Sprache = "D";
        EXPECT_EQ(Optionen_Text(f.Name), f.D) << f.Name;
        Sprache = "E";
        EXPECT_EQ(Optionen_Text(f.Name), f.E) << f.Name;
    }
}

TEST_F(Optionen_Welt, without_a_valid_language_the_captions_are_English)
{
    Sprache = "?";
    EXPECT_EQ(Optionen_Text("B_Ab"), "Cancel");
}

TEST_F(Optionen_Welt, a_name_without_a_caption_has_an_empty_one)
{
    EXPECT_EQ(Optionen_Text("gibt_es_nicht"), "");
}

} // namespace
} // namespace varnholt::test
