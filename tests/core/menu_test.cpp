// Menu and tool bar: the tables as the user meets them, and what a click runs.
#include "core/menu.h"

#include "core/commands.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "files/Datei_Zustand.h"
#include "simulator/Debug.h"
#include "support/scripted_platform.h"

#include <map>
#include <set>

namespace varnholt::test {
namespace {

using Namen = std::vector<std::string>;

// The entries below a menu in order; every separator reads "-" unless it has a name of its own.
Namen Unter(std::string_view Eltern)
{
    Namen Liste;
    for (const Menue_Eintrag_T& e : Menue_Tabelle)
        if (e.Eltern == Eltern)
            Liste.emplace_back(e.Trennlinie() && e.Name != "MNU_Leer3" && e.Name != "MNU_Leer79" &&
                                       e.Name != "MNU_Leer81"
                                   ? "-"
                                   : e.Name);
    return Liste;
}

std::size_t Platz(std::string_view Name) { return Menue_Platz(Name); }

TEST(Menue_Tabelle, the_menu_bar_stands_in_its_order)
{
    EXPECT_EQ(Unter(""),
              (Namen{"MNU_Datei",
                     "MNU_Bearbeiten",
                     "MNU_IC",
                     "MNU_Ansicht",
                     "MNU_Debugger",
                     "MNU_Service",
                     "MNU_Help"}));
}
TEST(Menue_Tabelle, the_file_menu_stands_in_its_order)
{
    EXPECT_EQ(Unter("MNU_Datei"),
              (Namen{"MNU_Neu",
                     "MNU_Load",
                     "MNU_Load_Autosave",
                     "MNU_Importdata",
                     "-",
                     "MNU_Save",
                     "MNU_SaveAs",
                     "-",
                     "MNU_vergleiche_hexdaten",
                     "-",
                     "MNU_PrinterConfig",
                     "MNU_PrintDialog",
                     "MNU_Leer3",
                     "MNU_Datei1",
                     "MNU_Datei2",
                     "MNU_Datei3",
                     "-",
                     "MNU_Ende"}));
}
TEST(Menue_Tabelle, the_edit_menu_stands_in_its_order)
{
    EXPECT_EQ(Unter("MNU_Bearbeiten"),
              (Namen{"MNU_Undo",
                     "MNU_Redo",
                     "-",
                     "MNU_Ausschneiden",
                     "MNU_Kopieren",
                     "MNU_Einfügen",
                     "MNU_Löschen",
                     "MNU_Leer79",
                     "MNU_Ber_Kopieren",
                     "MNU_Ber_setzen",
                     "MNU_Ber_entfernen",
                     "MNU_Leer81",
                     "MNU_Adresse_direkt",
                     "MNU_ErsteAdresse",
                     "MNU_LetzteAdresse",
                     "-",
                     "MNU_Suche",
                     "MNU_Weitersuchen",
                     "-",
                     "MNU_Debugger_Stoppunkt",
                     "-",
                     "MNU_Optionen"}));
}
TEST(Menue_Tabelle, the_view_menu_stands_in_its_order)
{
    EXPECT_EQ(Unter("MNU_Ansicht"),
              (Namen{"MNU_MC",
                     "MNU_Hex",
                     "-",
                     "MNU_Bef",
                     "MNU_Basic",
                     "MNU_Spr",
                     "MNU_Not",
                     "MNU_CONTROL",
                     "MNU_RAM",
                     "MNU_SFR",
                     "MNU_EXRAM",
                     "-",
                     "MNU_G_Einstellung"}));
}
TEST(Menue_Tabelle, the_service_menu_stands_in_its_order)
{
    EXPECT_EQ(Unter("MNU_Service"),
              (Namen{"MNU_S_Quelmark",
                     "MNU_S_Update",
                     "MNU_S_Forum",
                     "MNU_S_Mail",
                     "-",
                     "MNU_S_Bücher",
                     "MNU_HW_TEST",
                     "MNU_Q",
                     "-",
                     "MNU_EEprommer",
                     "-",
                     "MNU_Info"}));
    EXPECT_EQ(Unter("MNU_Q"), (Namen{"MNU_Deutsch", "MNU_Englisch"}));
}
TEST(Menue_Tabelle, programmer_and_debugger_have_their_commands)
{
    const Namen IC = Unter("MNU_IC");
    for (const char* Name : {"MNU_IC_Lesen",
                             "MNU_IC_Brennen",
                             "MNU_IC_Prüfen",
                             "MNU_IC_Löschen",
                             "MNU_IC_LockBits",
                             "MNU_IC_Typ",
                             "MNU_Tessel2_Hardware_Version"})
        EXPECT_EQ(std::count(IC.begin(), IC.end(), Name), 1) << Name;
    const Namen Debugger = Unter("MNU_Debugger");
    for (const char* Name : {"MNU_deb_Vorbereitung",
                             "MNU_deb_Starten",
                             "MNU_deb_up",
                             "MNU_deb_down",
                             "MNU_deb_Einzelschritt",
                             "MNU_jump_cursor",
                             "MNU_deb_reset_adr",
                             "MNU_deb_reset",
                             "MNU_deb_beenden"})
        EXPECT_EQ(std::count(Debugger.begin(), Debugger.end(), Name), 1) << Name;
}
TEST(Menue_Tabelle, a_parent_stands_before_its_entries)
{
    for (std::size_t i = 0; i < Menue_Anzahl; ++i)
        if (!Menue_Tabelle[i].Eltern.empty()) {
            EXPECT_LT(Platz(Menue_Tabelle[i].Eltern), i) << Menue_Tabelle[i].Name;
        }
}
TEST(Menue_Tabelle, no_name_stands_twice)
{
    std::set<std::string_view> Alle;
    for (const Menue_Eintrag_T& e : Menue_Tabelle)
        EXPECT_TRUE(Alle.insert(e.Name).second) << e.Name;
}

const std::map<std::string, std::string> Kuerzel = {
    {"MNU_Neu", "Ctrl+N"},
    {"MNU_Load", "Ctrl+L"},
    {"MNU_Save", "Ctrl+S"},
    {"MNU_PrintDialog", "Ctrl+P"},
    {"MNU_Ende", "Ctrl+Q"},
    {"MNU_Undo", "Ctrl+Z"},
    {"MNU_Redo", "Ctrl+Y"},
    {"MNU_Ausschneiden", "Ctrl+X"},
    {"MNU_Kopieren", "Ctrl+C"},
    {"MNU_Einfügen", "Ctrl+V"},
    {"MNU_Löschen", "Del"},
    {"MNU_Adresse_direkt", "Ctrl+D"},
    {"MNU_Suche", "Ctrl+F"},
    {"MNU_Weitersuchen", "F3"},
    {"MNU_IC_Lesen", "Ctrl+R"},
    {"MNU_IC_Brennen", "Ctrl+B"},
    {"MNU_IC_Prüfen", "Ctrl+I"},
    {"MNU_IC_Löschen", "Ctrl+E"},
    {"MNU_IC_LockBits", "Ctrl+G"},
    {"MNU_Help", "F1"},
    {"MNU_MC", "Shift+F1"},
    {"MNU_Hex", "Shift+F2"},
    {"MNU_Bef", "Shift+F3"},
    {"MNU_Basic", "Shift+F4"},
    {"MNU_Spr", "Shift+F5"},
    {"MNU_Not", "Shift+F6"},
    {"MNU_CONTROL", "Shift+F7"},
    {"MNU_RAM", "Shift+F8"},
    {"MNU_SFR", "Shift+F9"},
    {"MNU_EXRAM", "Shift+F11"},
    {"MNU_deb_Vorbereitung", "F4"},
    {"MNU_deb_Starten", "F5"},
    {"MNU_deb_up", "F6"},
    {"MNU_deb_down", "F7"},
    {"MNU_deb_Einzelschritt", "F8"},
    {"MNU_jump_cursor", "F9"},
    {"MNU_deb_reset_adr", "F11"},
    {"MNU_deb_reset", "F12"},
};

TEST(Menue_Tabelle, every_entry_has_its_shortcut_and_the_others_have_none)
{
    for (const Menue_Eintrag_T& e : Menue_Tabelle) {
        const auto p = Kuerzel.find(std::string(e.Name));
        EXPECT_EQ(e.Kuerzel, p == Kuerzel.end() ? "" : p->second) << e.Name;
    }
}
TEST(Menue_Tabelle, no_shortcut_stands_twice)
{
    std::set<std::string_view> Alle;
    std::size_t                Anzahl = 0;
    for (const Menue_Eintrag_T& e : Menue_Tabelle)
        if (!e.Kuerzel.empty()) {
            ++Anzahl;
            EXPECT_TRUE(Alle.insert(e.Kuerzel).second) << e.Kuerzel;
        }
    EXPECT_EQ(Anzahl, Kuerzel.size());
}

struct Knopf_Soll {
    int         Position;
    std::string Schluessel, Menue;
};

TEST(Werkzeug_Tabelle, the_buttons_stand_at_their_positions_with_key_and_command)
{
    const std::vector<Knopf_Soll> Soll = {
        {2, "Neu", "MNU_Neu"},
        {4, "Laden", "MNU_Load"},
        {5, "Speichern", "MNU_Save"},
        {7, "Drucken", "MNU_PrintDialog"},
        {9, "Ausschneiden", "MNU_Ausschneiden"},
        {10, "Kopieren", "MNU_Kopieren"},
        {11, "Einfügen", "MNU_Einfügen"},
        {12, "Suchen", "MNU_Suche"},
        {14, "Undo", "MNU_Undo"},
        {15, "Redo", "MNU_Redo"},
        {17, "EPLesen", "MNU_IC_Lesen"},
        {18, "EPBrennen", "MNU_IC_Brennen"},
        {19, "EPPruefen", "MNU_IC_Prüfen"},
        {21, "Umschalten", ""},
        {23, "Assemblieren", "MNU_deb_Vorbereitung"},
        {24, "Starten", "MNU_deb_Starten"},
        {25, "Einzelschritt", "MNU_deb_Einzelschritt"},
        {26, "Scroll_up", "MNU_deb_up"},
        {27, "Scroll_down", "MNU_deb_down"},
        {28, "Beenden", "MNU_deb_beenden"},
    };
    ASSERT_EQ(Werkzeug_Tabelle.size(), Soll.size());
    for (std::size_t i = 0; i < Soll.size(); ++i) {
        EXPECT_EQ(Werkzeug_Tabelle[i].Position, Soll[i].Position);
        EXPECT_EQ(Werkzeug_Tabelle[i].Schluessel, Soll[i].Schluessel);
        EXPECT_EQ(Werkzeug_Tabelle[i].Menue, Soll[i].Menue);
    }
}

class Menue_Welt : public Welt {
protected:
    static void Klicken(std::string_view Name) { Menue_Ausfuehren(Platz(Name)); }
};

TEST_F(Menue_Welt, an_entry_runs_its_command)
{
    Klicken("MNU_Deutsch");
    EXPECT_EQ(Sprache, "D");
    Klicken("MNU_Englisch");
    EXPECT_EQ(Sprache, "E");
    Klicken("MNU_Info");
    EXPECT_EQ(Box.Meldungen.size(), 1u);
}
TEST_F(Menue_Welt, every_command_of_the_file_menu_asks_or_opens_what_it_should)
{
    Klicken("MNU_Load");
    Klicken("MNU_Load_Autosave");
    Klicken("MNU_Importdata");
    Klicken("MNU_Save");
    Klicken("MNU_SaveAs");
    ASSERT_EQ(Dialog.Gefragt.size(), 5u);
    EXPECT_FALSE(Dialog.Gefragt[2].Speichern);
    EXPECT_TRUE(Dialog.Gefragt[3].Speichern);
    EXPECT_EQ(Dialog.Gefragt[1].Filter_Nummer, 6);
    Klicken("MNU_vergleiche_hexdaten");
    EXPECT_EQ(Dialog.Gefragt.size(), 6u);
    EXPECT_EQ(Letzte_Meldung(), "The data of the file is the same as the data of the editor !");
}
TEST_F(Menue_Welt, each_recent_file_entry_loads_its_own_file)
{
    Letzte_Datei = {"/gone/1.bin", "/gone/2.bin", "/gone/3.bin"};
    for (const char* Nummer : {"1", "2", "3"}) {
        Klicken(std::string("MNU_Datei") + Nummer);
        EXPECT_EQ(Dialog_Name, std::string("/gone/") + Nummer + ".bin");
    }
}
TEST_F(Menue_Welt, each_web_entry_opens_another_page)
{
    for (const char* Name :
         {"MNU_S_Quelmark", "MNU_S_Update", "MNU_S_Forum", "MNU_S_Bücher", "MNU_S_Mail"})
        Klicken(Name);
    EXPECT_EQ(std::set(Umgebung.Orte.begin(), Umgebung.Orte.end()).size(), 5u);
}
TEST_F(Menue_Welt, the_clipboard_entries_act_on_the_active_window)
{
    Aktives_Fenster = Fenster_Notiz;
    Notiz.Inhalt    = "abc";
    Notiz.Auswaehlen(0, 1);
    Klicken("MNU_Kopieren");
    EXPECT_EQ(Ablage.Inhalt, "a");
    Klicken("MNU_Einfügen");
    Klicken("MNU_Einfügen");
    EXPECT_EQ(Notiz.Inhalt, "aabc");
    Notiz.Auswaehlen(1, 2);
    Klicken("MNU_Ausschneiden");
    EXPECT_EQ(Ablage.Inhalt, "ab");
    Notiz.Auswaehlen(0, 2);
    Klicken("MNU_Löschen");
    EXPECT_EQ(Notiz.Inhalt, "");
}
TEST_F(Menue_Welt, a_disabled_entry_does_nothing)
{
    Menue("MNU_Info").Aktiv = false;
    Klicken("MNU_Info");
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_FALSE(Menue_Bereit(Platz("MNU_Info")));
}
TEST_F(Menue_Welt, a_hidden_entry_does_nothing)
{
    Menue("MNU_Info").Sichtbar = false;
    Klicken("MNU_Info");
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Menue_Welt, every_entry_has_a_command_or_opens_a_menu)
{
    for (std::size_t i = 0; i < Menue_Anzahl; ++i)
        EXPECT_EQ(Menue_Hat_Befehl(i), !Menue_Tabelle[i].Trennlinie()) << Menue_Tabelle[i].Name;
}
TEST_F(Menue_Welt, all_other_entries_are_ready)
{
    for (const char* Name : {"MNU_Neu",
                             "MNU_Load",
                             "MNU_Load_Autosave",
                             "MNU_Importdata",
                             "MNU_Save",
                             "MNU_SaveAs",
                             "MNU_vergleiche_hexdaten",
                             "MNU_Datei1",
                             "MNU_Datei2",
                             "MNU_Datei3",
                             "MNU_Ende",
                             "MNU_Undo",
                             "MNU_Redo",
                             "MNU_Ausschneiden",
                             "MNU_Kopieren",
                             "MNU_Einfügen",
                             "MNU_Löschen",
                             "MNU_Adresse_direkt",
                             "MNU_ErsteAdresse",
                             "MNU_LetzteAdresse",
                             "MNU_Optionen",
                             "MNU_MC",
                             "MNU_Hex",
                             "MNU_Spr",
                             "MNU_Not",
                             "MNU_G_Einstellung",
                             "MNU_S_Quelmark",
                             "MNU_S_Update",
                             "MNU_S_Forum",
                             "MNU_S_Mail",
                             "MNU_S_Bücher",
                             "MNU_Deutsch",
                             "MNU_Englisch",
                             "MNU_CONTROL",
                             "MNU_RAM",
                             "MNU_SFR",
                             "MNU_EXRAM",
                             "MNU_deb_Vorbereitung",
                             "MNU_deb_Starten",
                             "MNU_deb_up",
                             "MNU_deb_down",
                             "MNU_deb_Einzelschritt",
                             "MNU_jump_cursor",
                             "MNU_deb_reset_adr",
                             "MNU_deb_reset",
                             "MNU_deb_beenden",
                             "MNU_Debugger_Stoppunkt",
                             "MNU_Info",
                             "MNU_Help"})
        EXPECT_TRUE(Menue_Bereit(Platz(Name))) << Name;
}
TEST_F(Menue_Welt, a_menu_is_ready_while_it_has_entries)
{
    for (const char* Name : {"MNU_Datei", "MNU_IC", "MNU_HW_TEST", "MNU_Q"}) {
        EXPECT_TRUE(Menue_Bereit(Platz(Name))) << Name;
        Klicken(Name); // opens in the window; there is nothing to run
    }
}
TEST_F(Menue_Welt, a_separator_is_never_ready)
{
    EXPECT_FALSE(Menue_Bereit(Platz("MNU_Leer3")));
    EXPECT_FALSE(Menue_Bereit(Menue_Anzahl));
    Menue_Ausfuehren(Menue_Anzahl);
}

TEST_F(Menue_Welt, a_button_runs_the_command_of_its_key)
{
    Werkzeug_Ausfuehren("Laden");
    EXPECT_EQ(Dialog.Gefragt.size(), 1u);
    Werkzeug_Ausfuehren("Speichern");
    ASSERT_EQ(Dialog.Gefragt.size(), 2u);
    EXPECT_TRUE(Dialog.Gefragt[1].Speichern);
}
TEST_F(Menue_Welt, the_mode_button_changes_the_mode)
{
    Modus = Modus_MC;
    Werkzeug_Ausfuehren("Umschalten");
    EXPECT_EQ(Modus, Modus_Hex);
}
TEST_F(Menue_Welt, an_unknown_key_does_nothing)
{
    for (const char* Schluessel : {"EPCheck", "reset", "neu", "", "MNU_Neu"})
        Werkzeug_Ausfuehren(Schluessel);
    EXPECT_TRUE(Box.Meldungen.empty() && Dialog.Gefragt.empty() && Ereignisse.Titel_Texte.empty());
}
TEST_F(Menue_Welt, a_button_is_ready_with_its_state_and_its_command)
{
    EXPECT_TRUE(Werkzeug_Bereit(14));
    Werkzeug(14).Aktiv = false;
    EXPECT_FALSE(Werkzeug_Bereit(14));
    EXPECT_TRUE(Werkzeug_Bereit(Werkzeug_Umschalten));
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle)
        EXPECT_EQ(Werkzeug_Bereit(w.Position), Werkzeug(w.Position).Aktiv) << w.Position;
    for (const int Luecke : {0, 1, 3, 29, -1})
        EXPECT_FALSE(Werkzeug_Bereit(Luecke)) << Luecke;
}
TEST_F(Menue_Welt, the_key_Reset_resets_the_memories_and_has_no_button)
{
    Sim_RAM.fill(1);
    Sim_XRAM.fill(1);
    Sim_Prio = 3;
    Werkzeug_Ausfuehren("Reset");
    EXPECT_EQ(Sim_RAM[0], 255);
    EXPECT_EQ(Sim_XRAM[65535], 255);
    EXPECT_EQ(Sim_Prio, -1);
    Sim_RAM.fill(1);
    Menue("MNU_deb_reset").Aktiv = false;
    Werkzeug_Ausfuehren("Reset");
    EXPECT_EQ(Sim_RAM[0], 1);
}
TEST_F(Menue_Welt, during_a_run_only_what_leaves_text_image_and_mode_alone_may_come)
{
    for (const char* Name : {"MNU_deb_Starten",
                             "MNU_deb_beenden",
                             "MNU_deb_reset",
                             "MNU_CONTROL",
                             "MNU_EXRAM",
                             "MNU_Save",
                             "MNU_Deutsch",
                             "MNU_Debugger_Stoppunkt"})
        EXPECT_TRUE(Menue_Im_Lauf(Platz(Name))) << Name;
    for (const char* Name : {"MNU_Neu",
                             "MNU_Load",
                             "MNU_Datei1",
                             "MNU_Ende",
                             "MNU_Undo",
                             "MNU_MC",
                             "MNU_Hex",
                             "MNU_Optionen",
                             "MNU_Leer3",
                             "MNU_Datei"})
        EXPECT_FALSE(Menue_Im_Lauf(Platz(Name))) << Name;
    EXPECT_FALSE(Menue_Im_Lauf(Menue_Anzahl));
    EXPECT_TRUE(Werkzeug_Im_Lauf("Starten"));
    EXPECT_TRUE(Werkzeug_Im_Lauf("Beenden"));
    EXPECT_FALSE(Werkzeug_Im_Lauf("Neu"));
    EXPECT_FALSE(Werkzeug_Im_Lauf("Umschalten"));
    EXPECT_FALSE(Werkzeug_Im_Lauf("nobody"));
}
TEST_F(Menue_Welt, a_disabled_button_does_nothing)
{
    Werkzeug(4).Aktiv = false;
    Werkzeug_Ausfuehren("Laden");
    EXPECT_TRUE(Dialog.Gefragt.empty());
}

} // namespace
} // namespace varnholt::test
