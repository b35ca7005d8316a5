// The mode change: what is assembled or disassembled, what becomes visible, and what stays.
#include "core/commands.h"

#include "core/menu.h"
#include "core/session.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Quelltext.h"
#include "files/Datei_Zustand.h"
#include "language/Assembler_Zustand.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <filesystem>
#include <stdlib.h>

namespace varnholt::test {
namespace {

class Modus_Welt : public Welt {
protected:
    Modus_Welt() { In_Modus_Wechseln(Modus_MC); }

    void Im_Hex_Editor()
    {
        In_Modus_Wechseln(Modus_Hex);
        Ereignisse.Titel_Texte.clear();
    }
    bool Titel_Gesetzt(const std::string& Text) const
    {
        return std::count(Ereignisse.Titel_Texte.begin(), Ereignisse.Titel_Texte.end(), Text) > 0;
    }
    void Nur_Hex_Sichtbar(bool Hex) const
    {
        EXPECT_EQ(Modus, Hex ? Modus_Hex : Modus_MC);
        EXPECT_EQ(Fenster.Sichtbar(Fenster_Hexedit), Hex);
        EXPECT_EQ(Fenster.Sichtbar(Fenster_Edit), !Hex);
        EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), Hex ? -1 : 0);
        EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), Hex ? 0 : -1);
        EXPECT_EQ(Menue("MNU_Hex").Haken, Hex);
        EXPECT_EQ(Menue("MNU_MC").Haken, !Hex);
    }
};

// --- to the hex editor ---------------------------------------------------------------------------

TEST_F(Modus_Welt, the_text_is_assembled_on_the_way_to_the_Hex_Editor)
{
    Edit.Inhalt = "NOP\r\nRET\r\n";
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(true);
    EXPECT_EQ(Hex_Daten[0], 0x00);
    EXPECT_EQ(Hex_Daten[1], 0x22);
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_TRUE(Titel_Gesetzt("1:Hex-Editor (*)"));
    EXPECT_TRUE(Quell_Zeilen.empty());
    EXPECT_EQ(Edit.Inhalt, "NOP\r\nRET\r\n");
}
TEST_F(Modus_Welt, an_empty_editor_is_not_assembled_and_leaves_the_image_alone)
{
    Hex_Daten[3] = 7;
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(true);
    EXPECT_EQ(Hex_Daten[3], 7);
    EXPECT_FALSE(Titel_Gesetzt("1:Hex-Editor (*)"));
}
TEST_F(Modus_Welt, a_text_in_step_with_the_image_is_not_assembled_again)
{
    Edit.Inhalt  = "NOP\r\n";
    Hex_Daten[0] = 7;
    Text_Aktuell = true;
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(true);
    EXPECT_EQ(Hex_Daten[0], 7);
}
TEST_F(Modus_Welt, an_assembly_error_keeps_the_MC_Editor)
{
    Edit.Inhalt = "LJMP nowhere\r\n";
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(false);
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_FALSE(Box.Meldungen.empty());
    EXPECT_TRUE(Quell_Zeilen.empty());
}
TEST_F(Modus_Welt, an_error_of_an_earlier_assembly_keeps_the_mode_once)
{
    Assembler_Fehler = 1;
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(false);
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(true);
}
TEST_F(Modus_Welt, a_session_is_ended_on_the_way_to_the_Hex_Editor)
{
    Debugger_Aktiv = true;
    Edit.Gesperrt  = true;
    Ansicht_umschalten();
    EXPECT_FALSE(Debugger_Aktiv);
    EXPECT_FALSE(Edit.Gesperrt);
    Nur_Hex_Sichtbar(true);
}
TEST_F(Modus_Welt, the_undo_state_is_cleared_on_the_way_to_the_Hex_Editor)
{
    Undo_Max      = 9;
    Undo_Index    = 5;
    Undo_Begonnen = true;
    Ansicht_umschalten();
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_EQ(Undo_Ende, 9);
    EXPECT_EQ(Undo_Oben, 1);
    EXPECT_FALSE(Undo_Begonnen);
    EXPECT_FALSE(Menue("MNU_Undo").Aktiv || Menue("MNU_Redo").Aktiv);
    EXPECT_FALSE(Werkzeug(14).Aktiv || Werkzeug(15).Aktiv);
}
TEST_F(Modus_Welt, the_ring_counters_start_anew_even_when_the_mode_stays)
{
    Undo_Max    = 9;
    Undo_Index  = 5;
    Undo_Oben   = 7;
    Edit.Inhalt = "LJMP nowhere\r\n";
    Ansicht_umschalten();
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_EQ(Undo_Ende, 9);
    EXPECT_EQ(Undo_Oben, 1);
}
TEST_F(Modus_Welt, behind_an_assembly_error_the_next_key_secures_the_text_anew)
{
    const Arbeitsordner Ordner;
    std::filesystem::create_directory(Ordner.Pfad / "Undo");
    Programm_Pfad   = Ordner.Name("");
    Aktives_Fenster = Fenster_Edit;
    Undo_Max        = 9;
    Undo_Begonnen   = true; // there was typing before
    Edit.Inhalt     = "LJMP nowhere\r\n";
    Undo_Schritt_speichern();
    Ansicht_umschalten();
    ASSERT_EQ(Modus, Modus_MC);
    EXPECT_FALSE(Menue("MNU_Undo").Aktiv); // the ring holds nothing any more
    Taste_T Taste;
    Taste.Code = Taste.Zeichen = 'X';
    Text_KeyDown(Taste);
    Edit.Inhalt = "XLJMP nowhere\r\n";
    Text_Change();
    MNU_Undo_Click();
    EXPECT_EQ(Edit.Inhalt, "LJMP nowhere\r\n");
}
TEST_F(Modus_Welt, an_autosave_precedes_the_assembly_when_it_is_wanted)
{
    const Arbeitsordner Ordner;
    std::filesystem::create_directory(Ordner.Pfad / "Autosave");
    Programm_Pfad = Ordner.Name("");
    Edit.Inhalt   = "NOP\r\n";
    for (const bool Gewuenscht : {false, true}) {
        Autosave_Assemblieren = Gewuenscht;
        In_Modus_Wechseln(Modus_MC);
        Ansicht_umschalten();
        EXPECT_EQ(std::filesystem::exists(Ordner.Pfad / "Autosave/autosave0.asm"), Gewuenscht);
    }
}
TEST_F(Modus_Welt, the_hex_page_is_drawn_on_the_way_to_the_Hex_Editor)
{
    const auto Bisher = Ansichten.Hex_Stand;
    Ansicht_umschalten();
    EXPECT_GT(Ansichten.Hex_Stand, Bisher);
}

// --- to the MC editor ----------------------------------------------------------------------------

TEST_F(Modus_Welt, text_in_step_with_the_image_is_kept_on_the_way_back)
{
    Edit.Inhalt = "NOP ; comment\r\n";
    Ansicht_umschalten();
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(false);
    EXPECT_EQ(Edit.Inhalt, "NOP ; comment\r\n");
    EXPECT_FALSE(Titel_Gesetzt("2:MC-Editor (*)"));
}
TEST_F(Modus_Welt, a_changed_image_replaces_the_text_by_a_disassembly)
{
    Edit.Inhalt          = "NOP ; comment\r\n";
    Quell_Datei.Original = "NOP ; comment\n";
    Im_Hex_Editor();
    Hex_Daten[0] = 0;
    Text_Aktuell = false;
    Ansicht_umschalten();
    Nur_Hex_Sichtbar(false);
    EXPECT_EQ(Edit.Inhalt.find("comment"), std::string::npos);
    EXPECT_TRUE(Titel_Gesetzt("2:MC-Editor (*)"));
    EXPECT_EQ(Quell_Datei.Original, "");
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Modus_Welt, the_way_to_the_MC_Editor_activates_it)
{
    Im_Hex_Editor();
    Aktives_Fenster = Fenster_Hexedit;
    Text_Aktuell    = true;
    Ansicht_umschalten();
    EXPECT_EQ(Aktives_Fenster, Fenster_Edit);
    EXPECT_TRUE(Menue("MNU_deb_Vorbereitung").Aktiv);
    EXPECT_TRUE(Werkzeug(23).Aktiv);
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemble");
}

// --- the switch itself ---------------------------------------------------------------------------

TEST_F(Modus_Welt, the_switch_applies_the_mode_table)
{
    In_Modus_Wechseln(Modus_Hex);
    EXPECT_TRUE(Menue("MNU_vergleiche_hexdaten").Aktiv);
    EXPECT_FALSE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
    EXPECT_TRUE(Menue("MNU_Importdata").Sichtbar && Menue("MNU_Leer79").Sichtbar);
    EXPECT_FALSE(Menue("MNU_Load_Autosave").Sichtbar);
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemble");
    In_Modus_Wechseln(Modus_MC);
    EXPECT_FALSE(Menue("MNU_vergleiche_hexdaten").Aktiv);
    EXPECT_TRUE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
    EXPECT_FALSE(Menue("MNU_Importdata").Sichtbar || Menue("MNU_Leer79").Sichtbar);
    EXPECT_TRUE(Menue("MNU_Load_Autosave").Sichtbar);
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemble");
}
TEST_F(Modus_Welt, during_start_up_no_window_is_shown_but_the_other_one_is_hidden)
{
    Init_Laeuft = true;
    In_Modus_Wechseln(Modus_Hex);
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), -1);
    In_Modus_Wechseln(Modus_MC);
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), -1);
}
TEST_F(Modus_Welt, the_switch_arranges_the_windows)
{
    const auto Bisher = Ansichten.Anordnung_Stand;
    In_Modus_Wechseln(Modus_Hex);
    EXPECT_EQ(Ansichten.Anordnung_Stand, Bisher + 1);
}

// --- the menu commands ---------------------------------------------------------------------------

TEST_F(Modus_Welt, MNU_MC_does_nothing_while_the_editor_is_visible)
{
    const auto Bisher = Ansichten.Anordnung_Stand;
    MNU_MC_Click();
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Ansichten.Anordnung_Stand, Bisher);
}
TEST_F(Modus_Welt, MNU_MC_switches_from_the_Hex_Editor)
{
    Im_Hex_Editor();
    Text_Aktuell = true;
    MNU_MC_Click();
    Nur_Hex_Sichtbar(false);
}
TEST_F(Modus_Welt, MNU_Hex_switches_and_gives_the_focus)
{
    MNU_Hex_Click();
    Nur_Hex_Sichtbar(true);
    EXPECT_EQ(Fenster.Protokoll.back(), "Fokus 1");
}
TEST_F(Modus_Welt, MNU_Hex_only_gives_the_focus_while_the_hex_editor_is_visible)
{
    Im_Hex_Editor();
    Fenster.Protokoll.clear();
    MNU_Hex_Click();
    EXPECT_EQ(Fenster.Protokoll, (std::vector<std::string>{"Fokus 1"}));
}
TEST_F(Modus_Welt, MNU_Hex_gives_no_focus_when_the_switch_failed)
{
    Edit.Inhalt = "LJMP nowhere\r\n";
    Fenster.Protokoll.clear();
    MNU_Hex_Click();
    Nur_Hex_Sichtbar(false);
    EXPECT_EQ(std::count(Fenster.Protokoll.begin(), Fenster.Protokoll.end(), "Fokus 1"), 0);
}
TEST_F(Modus_Welt, MNU_Hex_ends_a_session)
{
    Im_Hex_Editor();
    Debugger_Aktiv = true;
    MNU_Hex_Click();
    EXPECT_FALSE(Debugger_Aktiv);
}

// --- the end of a session ------------------------------------------------------------------------

TEST_F(Modus_Welt, the_end_of_a_session_disables_and_hides_what_belongs_to_it)
{
    for (const int Nummer : {7, 8, 9, 10})
        Fenster.Zu(Nummer).Sichtbar = true;
    Undo_Zuruecksetzen();
    Debugger_Aktiv = Edit.Gesperrt = true;
    Debug_Beenden();
    EXPECT_FALSE(Debugger_Aktiv || Edit.Gesperrt);
    for (const char* Name : {"MNU_deb_Starten",
                             "MNU_deb_up",
                             "MNU_deb_down",
                             "MNU_deb_Einzelschritt",
                             "MNU_deb_reset_adr",
                             "MNU_deb_reset",
                             "MNU_deb_beenden",
                             "MNU_jump_cursor"})
        EXPECT_FALSE(Menues.Eintraege.at(Menue_Platz(Name)).Aktiv) << Name;
    for (int Knopf = 1; Knopf <= Werkzeug_Plaetze; ++Knopf)
        if (Knopf != 23 && Knopf != 14 && Knopf != 15) {
            EXPECT_EQ(Werkzeug(Knopf).Aktiv, Knopf < 24) << Knopf;
        }
    EXPECT_FALSE(Werkzeug(14).Aktiv || Werkzeug(15).Aktiv); // nothing to undo
    for (const int Nummer : {7, 8, 9, 10})
        EXPECT_FALSE(Fenster.Sichtbar(Nummer));
    EXPECT_TRUE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
}
TEST_F(Modus_Welt, without_a_session_there_is_nothing_to_end)
{
    Edit.Gesperrt = true;
    Sitzung_Beenden();
    EXPECT_TRUE(Edit.Gesperrt);
    Debugger_Aktiv = true;
    Sitzung_Beenden();
    EXPECT_FALSE(Edit.Gesperrt);
}

} // namespace
} // namespace varnholt::test
