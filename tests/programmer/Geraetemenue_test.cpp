// Choosing a device in the menu: the check of the board's version, the tick, the caption, the
// commands that follow, and what the form `Jumper` shows.
#include "programmer/Geraetemenue.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Board_Ansicht.h"
#include "programmer/Geraete.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"
#include "programmer/Specifications.h"
#include "support/scripted_platform.h"

#include <algorithm>

namespace varnholt::test {
namespace {

class Geraetemenue_Test : public Welt {
protected:
    Geraetemenue_Test()
    {
        Setzen(0, "27C256", 1, "27C256", "UV");
        Setzen(1, "27C080", 1, "27C080", "UV");
        Setzen(30, "28C64", 1, "28C64", "28C");
        Setzen(60, "89C2051", 2, "89C2051", "89CI").L_Typ = "89CI";
        Setzen(90, "89C52", 3, "89C52", "89CII").L_Typ    = "89CII";
        Setzen(91, "89F54", 3, "89F54", "89CII");
        Setzen(92, "89C55WD", 3, "89C55WD", "89CIIWD").M_Jumper1 = 1;
        Geraete_Tabelle[0].E_Jumper                              = {3, 2, 1, 1, 2};
        Geraete_Tabelle[0].Menue_Name                            = "27C256 (X)";
        Geraete.Gruppen_Belegt[0]                                = 2;
        Geraete.Gruppen_Belegt[1]                                = 1;
        Geraete.Gruppen_Belegt[2]                                = 1;
        Geraete.Gruppen_Belegt[3]                                = 3;
        Eprommer_Version                                         = 31;
        Tessel2_Version                                          = 12;
    }
    static Geraet_T&
    Setzen(int Nummer, const char* Name, int Board, const char* P_Typ, const char* E_Typ)
    {
        Geraet_T& g  = Geraete_Tabelle[static_cast<std::size_t>(Nummer)];
        g            = {};
        g.Name       = Name;
        g.P_Typ      = P_Typ;
        g.R_Typ      = P_Typ;
        g.E_Typ      = E_Typ;
        g.Programmer = Board;
        g.Bytes      = 4096;
        return g;
    }
    long Gezeigt(const std::string& Zeile) const
    {
        return std::count(Fenster.Protokoll.begin(), Fenster.Protokoll.end(), Zeile);
    }
    void Nichts_Gewaehlt() const
    {
        EXPECT_EQ(IC_Nummer, -1);
        EXPECT_EQ(Geraetemenue.Haken, -1);
        EXPECT_EQ(MNU_IC_Titel(), Sprache == "D" ? "Brenner" : "Programmer");
        EXPECT_FALSE(Menue("MNU_IC_Löschen").Aktiv);
        EXPECT_FALSE(Menue("MNU_IC_LockBits").Aktiv);
    }
};

TEST_F(Geraetemenue_Test, an_entry_selects_the_device_by_group_and_position)
{
    MNU_IC_Typ_Click(1, 0);
    EXPECT_EQ(IC_Nummer, 30);
    EXPECT_EQ(Geraetemenue.Haken, 30);
    MNU_IC_Typ_Click(3, 0);
    EXPECT_EQ(IC_Nummer, 90);
    EXPECT_EQ(Geraetemenue.Haken, 90);
}

TEST_F(Geraetemenue_Test, the_caption_of_the_menu_names_the_device_in_both_languages)
{
    MNU_IC_Typ_Click(0, 0);
    EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer (27C256 (X))");
    Sprache = "D";
    MNU_IC_Typ_Click(2, 0);
    EXPECT_EQ(Menue("MNU_IC").Titel, "Brenner (89C2051)");
}

TEST_F(Geraetemenue_Test, an_entry_that_does_not_exist_changes_nothing)
{
    MNU_IC_Typ_Click(0, 0);
    for (const auto& [g, p] : {std::pair{-1, 0}, {20, 0}, {0, -1}, {0, 2}, {4, 0}, {1, 1}})
        MNU_IC_Typ_Click(g, p);
    EXPECT_EQ(IC_Nummer, 0);
    EXPECT_EQ(Geraetemenue.Haken, 0);
}

TEST_F(Geraetemenue_Test, erase_and_lock_follow_the_types_of_the_device)
{
    struct Zeile_T {
        int  Gruppe, Platz;
        bool Loeschen, Sperren;
    };
    for (const Zeile_T& z : {Zeile_T{0, 0, false, false},
                             {1, 0, true, false},
                             {2, 0, true, true},
                             {3, 0, true, true},
                             {3, 1, true, false}}) {
        MNU_IC_Typ_Click(z.Gruppe, z.Platz);
        EXPECT_EQ(Menue("MNU_IC_Löschen").Aktiv, z.Loeschen) << z.Gruppe;
        EXPECT_EQ(Menue("MNU_IC_LockBits").Aktiv, z.Sperren) << z.Gruppe;
    }
}

TEST_F(Geraetemenue_Test, a_refused_device_leaves_nothing_selected_and_takes_the_marks_off)
{
    for (const char* In : {"E", "D"}) {
        Sprache         = In;
        Tessel2_Version = 12;
        MNU_IC_Typ_Click(3, 0);
        ASSERT_EQ(Geraetemenue.Haken, 90);
        Tessel2_Version = 11;
        MNU_IC_Typ_Click(3, 1);
        EXPECT_TRUE(Abbruch);
        Nichts_Gewaehlt();
        EXPECT_EQ(Menue("MNU_IC").Titel, Sprache == "D" ? "Brenner" : "Programmer");
    }
}

TEST_F(Geraetemenue_Test, the_version_of_the_tessel2_board_is_asked_ahead_of_the_check)
{
    Tessel2_Version      = 0;
    Fenster.Bei_Formular = [this](Formular f) {
        ASSERT_EQ(f, Formular::F_Wahl_Tessel2_Version);
        EXPECT_TRUE(Box.Meldungen.empty());
        Wahl_Tessel2_Version_Click(0);
    };
    MNU_IC_Typ_Click(3, 2); // needs 1.1
    EXPECT_EQ(Gezeigt("Zeigen Wahl_Tessel2_Version"), 1);
    EXPECT_EQ(Letzte_Meldung(),
              "The Tessel2 programmer layout version 1.1 (or higher) is necessary to program these "
              "special flash mc!");
    Nichts_Gewaehlt();
    MNU_IC_Typ_Click(3, 0); // is known now
    EXPECT_EQ(Gezeigt("Zeigen Wahl_Tessel2_Version"), 1);
    EXPECT_EQ(IC_Nummer, 90);
}

TEST_F(Geraetemenue_Test, the_form_of_the_tessel2_version_finishes_the_selection)
{
    Tessel2_Version      = 0;
    Fenster.Bei_Formular = [](Formular) { Wahl_Tessel2_Version_Click(2); };
    MNU_IC_Typ_Click(3, 2);
    EXPECT_EQ(IC_Nummer, 92);
    EXPECT_EQ(Geraetemenue.Haken, 92);
    EXPECT_EQ(Letzte_Meldung(), "Please insert jumper J1 if it's not already inserted.");
}

TEST_F(Geraetemenue_Test, without_a_tessel2_version_the_choice_from_before_stays)
{
    Tessel2_Version = 0;
    MNU_IC_Typ_Click(3, 0);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_EQ(Geraetemenue.Haken, -1);
    MNU_IC_Typ_Click(1, 0);
    MNU_IC_Typ_Click(3, 0);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(IC_Nummer, 30);
    EXPECT_EQ(Geraetemenue.Haken, 30);
    EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer (28C64)");
    EXPECT_TRUE(Menue("MNU_IC_Löschen").Aktiv);
    EXPECT_EQ(Gezeigt("Zeigen Wahl_Tessel2_Version"), 2);
}

TEST_F(Geraetemenue_Test, the_other_boards_need_no_tessel2_version)
{
    Tessel2_Version = 0;
    MNU_IC_Typ_Click(0, 0);
    MNU_IC_Typ_Click(2, 0);
    EXPECT_EQ(Gezeigt("Zeigen Wahl_Tessel2_Version"), 0);
    EXPECT_EQ(IC_Nummer, 60);
}

TEST_F(Geraetemenue_Test, the_jumpers_follow_the_choice_on_the_eprommer_only)
{
    MNU_IC_Typ_Click(0, 0);
    EXPECT_EQ(Gezeigt("Zeigen Jumper"), 1);
    MNU_IC_Typ_Click(2, 0);
    MNU_IC_Typ_Click(3, 0);
    EXPECT_EQ(Gezeigt("Zeigen Jumper"), 1);
}

TEST_F(Geraetemenue_Test, the_eprommer_version_is_asked_of_a_device_already_selected)
{
    Eprommer_Version     = 0;
    Fenster.Bei_Formular = [](Formular f) {
        EXPECT_EQ(IC_Nummer, 0);
        if (f == Formular::F_Wahl_Eprommer_Version)
            Wahl_Eprommer_Version_Click(0);
    };
    MNU_IC_Typ_Click(0, 0);
    EXPECT_EQ(Fenster.Protokoll,
              (std::vector<std::string>{"Zeigen Wahl_Eprommer_Version", "Zeigen Jumper"}));
    EXPECT_EQ(Jumper.Version, 30);
    EXPECT_EQ(Geraetemenue.Haken, 0);
}

TEST_F(Geraetemenue_Test, an_eprommer_version_that_stays_unknown_keeps_the_device)
{
    Eprommer_Version = 0;
    MNU_IC_Typ_Click(0, 0);
    EXPECT_EQ(IC_Nummer, 0);
    EXPECT_EQ(Jumper.Version, 32) << "the newest";
    EXPECT_EQ(Eprommer_Version, 0) << "asked again next time";
}

TEST_F(Geraetemenue_Test, the_check_can_be_run_again_for_the_selected_device)
{
    MNU_Typ_Check();
    EXPECT_EQ(IC_Nummer, -1);
    MNU_IC_Typ_Click(3, 1);
    Tessel2_Version = 10;
    MNU_Typ_Check();
    Nichts_Gewaehlt();
}

TEST_F(Geraetemenue_Test, a_simulated_board_changes_with_the_device)
{
    Port_Art = Art_Simuliert;
    MNU_IC_Typ_Click(0, 0);
    EXPECT_EQ(Board_Ansehen().Board, "Eprommer");
    MNU_IC_Typ_Click(3, 0);
    EXPECT_EQ(Board_Ansehen().Board, "Tessel2");
    MNU_IC_Typ_Click(2, 0);
    EXPECT_EQ(Board_Ansehen().Board, "Tessel1");
}

// --- versions ---

TEST_F(Geraetemenue_Test, the_version_forms_can_be_opened_at_any_time)
{
    MNU_Hardware_Version_Click();
    MNU_Tessel2_Hardware_Version_Click();
    EXPECT_EQ(
        Fenster.Protokoll,
        (std::vector<std::string>{"Zeigen Wahl_Eprommer_Version", "Zeigen Wahl_Tessel2_Version"}));
}

TEST_F(Geraetemenue_Test, a_new_version_of_the_tessel2_board_is_checked_against_the_device)
{
    int Knopf            = 1;
    Fenster.Bei_Formular = [&Knopf](Formular f) {
        if (f == Formular::F_Wahl_Tessel2_Version)
            Wahl_Tessel2_Version_Click(Knopf);
    };
    MNU_IC_Typ_Click(3, 1); // 89F54
    Box.Meldungen.clear();
    MNU_Tessel2_Hardware_Version_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "The Tessel2 programmer layout version 1.2 (or higher) is necessary to program these "
              "special flash mc!");
    Nichts_Gewaehlt();
    MNU_IC_Typ_Click(3, 2); // 89C55WD
    Knopf = 2;
    MNU_Tessel2_Hardware_Version_Click();
    EXPECT_EQ(Letzte_Meldung(), "Please insert jumper J1 if it's not already inserted.");
    EXPECT_EQ(IC_Nummer, 92);
    EXPECT_EQ(Geraetemenue.Haken, 92);
    Knopf = 0;
    MNU_Tessel2_Hardware_Version_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "The Tessel2 programmer layout version 1.1 (or higher) is necessary to program these "
              "special flash mc!");
    Nichts_Gewaehlt();
}

TEST_F(Geraetemenue_Test, a_version_that_stays_or_is_of_another_board_is_not_checked)
{
    Fenster.Bei_Formular = [](Formular f) {
        if (f == Formular::F_Wahl_Tessel2_Version)
            Wahl_Tessel2_Version_Click(2);
    };
    MNU_IC_Typ_Click(3, 2);
    Box.Meldungen.clear();
    MNU_Tessel2_Hardware_Version_Click();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(IC_Nummer, 92);
    for (const int Gruppe : {0, 2}) {
        MNU_IC_Typ_Click(Gruppe, 0);
        const long Vorher = Gezeigt("Zeigen Jumper");
        Tessel2_Version   = 10;
        MNU_Tessel2_Hardware_Version_Click();
        EXPECT_EQ(IC_Nummer, 30 * Gruppe);
        EXPECT_EQ(Gezeigt("Zeigen Jumper"), Vorher);
    }
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Geraetemenue_Test, the_check_leaves_the_part_in_the_simulated_socket)
{
    Port_Art = Art_Simuliert;
    for (const int Gruppe : {0, 3}) {
        MNU_IC_Typ_Click(Gruppe, 0);
        dynamic_cast<Simuliertes_Board&>(*Plattform.Port).Baustein()->Inhalt[0] = 0x12;
        MNU_Typ_Check();
        EXPECT_EQ(Board_Ansehen().Bytes.substr(0, 5), "12 FF");
    }
}

TEST_F(Geraetemenue_Test, the_check_shows_the_jumpers_of_a_device_of_the_eprommer)
{
    MNU_IC_Typ_Click(0, 0);
    MNU_Typ_Check();
    EXPECT_EQ(Gezeigt("Zeigen Jumper"), 2);
}

TEST_F(Geraetemenue_Test, jumpers_on_show_follow_a_new_version_of_the_eprommer)
{
    int Knopf            = 2;
    Fenster.Bei_Formular = [&Knopf](Formular f) {
        if (f == Formular::F_Wahl_Eprommer_Version)
            Wahl_Eprommer_Version_Click(Knopf);
    };
    MNU_IC_Typ_Click(0, 0);
    ASSERT_TRUE(Fenster.Formular_Sichtbar(Formular::F_Jumper));
    MNU_Hardware_Version_Click();
    EXPECT_EQ(Jumper.Version, 32);
    EXPECT_EQ(Jumper.Titel, "Jumper settings 27C256 (X)");
    MNU_IC_Typ_Click(2, 0); // has no jumpers
    Knopf = 0;
    MNU_Hardware_Version_Click();
    EXPECT_EQ(Jumper.Titel, "Jumper settings 27C256 (X)");
    MNU_IC_Typ_Click(0, 0);
    Fenster.Formular_Entladen(Formular::F_Jumper);
    Knopf             = 1;
    const long Vorher = Gezeigt("Zeigen Jumper");
    MNU_Hardware_Version_Click();
    EXPECT_EQ(Gezeigt("Zeigen Jumper"), Vorher);
}

TEST_F(Geraetemenue_Test, each_button_of_the_version_forms_stores_its_number)
{
    for (int i = 0; i < 3; ++i) {
        Wahl_Eprommer_Version_Click(i);
        EXPECT_EQ(Eprommer_Version, 30 + i);
        Wahl_Tessel2_Version_Click(i);
        EXPECT_EQ(Tessel2_Version, 10 + i);
    }
}

TEST_F(Geraetemenue_Test, the_version_forms_have_their_texts_in_both_languages)
{
    const Versions_Wahl& e = Wahl_Eprommer_Version();
    EXPECT_EQ(e.Frage.D,
              "Welche Version des Quelmark Eprommers nutzen Sie? (Die Versionsnummer können Sie "
              "auf der Platine finden)");
    EXPECT_EQ(e.Frage.E,
              "Which version of the Quelmark eprommer do you use? (You can find the version number "
              "on the layout)");
    EXPECT_EQ(e.Texte[0].D, "Version 3.0 oder älter");
    EXPECT_EQ(e.Texte[0].E, "Version 3.0 or older");
    EXPECT_EQ(e.Texte[1].D, "Version 3.1");
    EXPECT_EQ(e.Texte[2].E, "Version 3.2");
    const Versions_Wahl& t = Wahl_Tessel2_Version();
    EXPECT_EQ(t.Frage.D,
              "Welche Version des Tessel2 programmer nutzen Sie? (Die Versionsnummer können Sie "
              "auf der Platine finden)");
    EXPECT_EQ(t.Frage.E,
              "Which version of the Quelmark Tessel2 programmer do you use? (You can find the "
              "version number on the layout)");
    EXPECT_EQ(t.Texte[0].D, "Version 1.0");
    EXPECT_EQ(t.Texte[1].E, "Version 1.1");
    EXPECT_EQ(t.Texte[2].D, "Version 1.2");
}

// --- the form `Jumper` ---

TEST_F(Geraetemenue_Test, the_jumpers_of_the_record_are_shown_under_the_menu_name)
{
    MNU_IC_Typ_Click(0, 0);
    EXPECT_EQ(Jumper.Titel, "Jumper settings 27C256 (X)");
    EXPECT_EQ(Jumper.Stellung, (std::array<int, 5>{3, 2, 1, 1, 2}));
    EXPECT_TRUE(Jumper.Hinweis.empty());
    Sprache = "D";
    MNU_IC_Typ_Click(1, 0);
    EXPECT_EQ(Jumper.Titel, "Jumper Einstellungen 28C64");
}

TEST_F(Geraetemenue_Test, the_newest_board_has_one_jumper_less_on_its_picture)
{
    for (const int v : {30, 31, 32}) {
        Eprommer_Version = v;
        MNU_IC_Typ_Click(0, 0);
        EXPECT_EQ(Jumper.Version, v);
        EXPECT_EQ(Jumper.Ohne_Null, v == 32);
    }
}

TEST_F(Geraetemenue_Test, the_jumper_that_the_note_speaks_of_is_on_the_picture)
{
    for (const int v : {30, 31, 32}) {
        Eprommer_Version = v;
        MNU_IC_Typ_Click(0, 1);
        EXPECT_FALSE(Jumper.Ohne_Null) << v;
    }
    MNU_IC_Typ_Click(0, 0);
    EXPECT_TRUE(Jumper.Ohne_Null) << "with another device it is left out again";
}

TEST_F(Geraetemenue_Test, the_8_megabit_part_has_a_note_for_each_version_in_both_languages)
{
    for (const int v : {30, 31}) {
        Eprommer_Version = v;
        Sprache          = "D";
        MNU_IC_Typ_Click(0, 1);
        EXPECT_EQ(
            Jumper.Hinweis,
            "ACHTUNG: Zugriff auf 8MBit Eprom's in Layout Version 3.0 und 3.1 nur mit Adapter "
            "möglich!");
        Sprache = "E";
        MNU_IC_Typ_Click(0, 1);
        EXPECT_EQ(Jumper.Hinweis,
                  "PLEASE NOTE: 8 MBit eprom's access in hardware version 3.0 and 3.1 only with "
                  "adapter!");
    }
    Eprommer_Version = 32;
    MNU_IC_Typ_Click(0, 1);
    EXPECT_EQ(Jumper.Hinweis,
              "PLEASE NOTE: To access the lower 4MB area remove jumper 0, to access the higher 4MB "
              "area set jumper 0 in the lower position!");
    Sprache = "D";
    MNU_IC_Typ_Click(0, 1);
    EXPECT_EQ(Jumper.Hinweis,
              "ACHTUNG: Für den Zugriff auf den unteren 4MB Bereich Jumper 0 entfernen, für den "
              "oberen Bereich Jumper 0 unten einsetzen!");
    MNU_IC_Typ_Click(0, 0);
    EXPECT_TRUE(Jumper.Hinweis.empty()) << "of the device before";
}

TEST_F(Geraetemenue_Test, the_sets_of_the_hardware_tests_have_positions_1_to_3)
{
    for (int n = 610; n <= 612; ++n) {
        IC_Nummer = n;
        Jumper_Anzeige();
        EXPECT_EQ(Jumper.Titel, "Jumper settings ");
        for (const int s : Jumper.Stellung)
            EXPECT_TRUE(s >= 1 && s <= 3);
    }
    IC_Nummer = 610;
    Jumper_Anzeige();
    EXPECT_EQ(Jumper.Stellung, (std::array<int, 5>{1, 1, 2, 1, 1}));
}

TEST_F(Geraetemenue_Test, without_a_device_there_are_no_jumpers_to_show)
{
    for (const int n : {-1, 621, 30000}) {
        IC_Nummer = n;
        Jumper_Anzeige();
    }
    IC_Nummer = -1;
    EXPECT_TRUE(Fenster.Protokoll.empty());
}

} // namespace
} // namespace varnholt::test
