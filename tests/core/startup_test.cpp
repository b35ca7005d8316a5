// The start of the program: its stages, the two dialogs of a first start, and what can be missing.
#include "core/startup.h"

#include "core/commands.h"
#include "core/instance.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/version.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "files/Datei_Zustand.h"
#include "files/Dateien_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Specifications.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <stdlib.h>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

const std::string Geraete_Text = "NAME: 27C64\r\n_GROUP:0\r\n_BYTES:8192\r\n_R-TYP:27C64\r\n"
                                 "_P-TYP:27C64\r\n_E-TYP:UV\r\n_PROGRAMMER:1\r\nEND\r\n"
                                 "NAME: 89C51\r\n_GROUP:0\r\n_BYTES:4096\r\n_R-TYP:8951\r\n"
                                 "_P-TYP:8951\r\n_E-TYP:8951\r\n_L-TYP:8951\r\n_PROGRAMMER:2\r\n"
                                 "END\r\n";

class Start_Test : public Welt {
protected:
    Start_Test()
    {
        setenv("VARNHOLT_HOME", Ordner.Pfad.c_str(), 1);
        Ordner.Anlegen("Spec.ini", Geraete_Text);
        Erststart_Werte();
        Start_Verzeichnis = Ordner.Pfad.string();
        Port_Art          = "sim";
        In_Modus(Modus_MC);
    }
    ~Start_Test() override { unsetenv("VARNHOLT_HOME"); }

    // The settings file as a run in that mode leaves it.
    static void In_Modus(int Neuer)
    {
        const bool Hex                                   = Neuer == Modus_Hex;
        Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar) = Hex ? -1 : 0;
        Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar)    = Hex ? 0 : -1;
    }
    // Writes the settings as they stand and starts the program.
    void Starten()
    {
        Ordner.Anlegen("Varnholt.ini", Einstellungen_Schreiben());
        Erststart_Werte(); // what the run before knew is gone
        Modus = Modus_MC;
        Init();
    }
    // The name of a file in the folder, which is made.
    std::string Datei(const std::string& Name, const std::string& Bytes = "") const
    {
        return Ordner.Anlegen(Name, Bytes);
    }
    bool Gezeigt(const std::string& Zeile) const
    {
        return std::count(Fenster.Protokoll.begin(), Fenster.Protokoll.end(), Zeile) > 0;
    }
    bool        Beendet_Normal() const { return !Init_Laeuft && Gezeigt("Entladen Start"); }
    static bool Bild_Besteht_Aus(std::uint8_t Wert)
    {
        return std::all_of(
            Hex_Daten.begin(), Hex_Daten.end(), [&](std::uint8_t b) { return b == Wert; });
    }

    Arbeitsordner Ordner{};
};

// --- the splash ---

TEST_F(Start_Test, the_splash_tells_the_version_and_a_point_for_each_later_stage)
{
    Starten();
    const std::string Zeile = "Version " + std::string(Programm_Version) + "  Initialisierung.";
    EXPECT_EQ(Fenster.Start_Texte,
              (std::vector<std::string>{Zeile, Zeile + ".", Zeile + "..", Zeile + "..."}));
}

TEST_F(Start_Test, the_version_has_three_numbers)
{
    EXPECT_EQ(std::count(Programm_Version.begin(), Programm_Version.end(), '.'), 2);
}

TEST_F(Start_Test, the_splash_stays_at_least_three_seconds)
{
    const double Anfang = Ereignisse.Uhrzeit;
    Starten();
    EXPECT_GE(Ereignisse.Uhrzeit - Anfang, 3);
    EXPECT_GT(Ereignisse.Runden, 1); // the windows breathe meanwhile
    EXPECT_TRUE(Beendet_Normal());
}

TEST_F(Start_Test, a_slow_start_doesnt_wait_on_top)
{
    Ereignisse.Je_Blick = 4;
    Starten();
    EXPECT_EQ(Ereignisse.Runden, 1); // the one before the splash goes
}

TEST_F(Start_Test, midnight_during_the_splash_doesnt_hang_it)
{
    Ereignisse.Uhrzeit   = 86399;
    Ereignisse.Bei_Runde = [&](int) {
        if (Ereignisse.Uhrzeit >= 86400)
            Ereignisse.Uhrzeit -= 86400;
    };
    Starten();
    EXPECT_TRUE(Beendet_Normal());
    EXPECT_GE(Ereignisse.Uhrzeit, 2);
    EXPECT_LT(Ereignisse.Uhrzeit, 10);
}

TEST(Start_Uhr, seconds_pass_across_midnight_too)
{
    EXPECT_EQ(Vergangen(10, 10), 0);
    EXPECT_EQ(Vergangen(10, 13), 3);
    EXPECT_EQ(Vergangen(86399.5, 0.5), 1);
}

TEST_F(Start_Test, the_cursor_is_busy_during_the_start_and_free_afterwards)
{
    bool Beschaeftigt    = false;
    Ereignisse.Bei_Runde = [&](int Runde) {
        if (Runde == 1)
            Beschaeftigt = Ereignisse.Zeiger_Wartet;
    };
    Starten();
    EXPECT_TRUE(Beschaeftigt);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

// --- a normal start ---

TEST_F(Start_Test, the_start_ends_with_the_windows_on_show_and_the_splash_gone)
{
    Starten();
    EXPECT_FALSE(Init_Laeuft);
    EXPECT_FALSE(Erststart_Aktiv);
    EXPECT_FALSE(Startlauf.Groessen_Sperre);
    EXPECT_EQ(Fenster.Protokoll.front(), "Zeigen Start");
    EXPECT_EQ(Fenster.Protokoll.back(), "Entladen Start");
    EXPECT_EQ(Programm_Pfad, Ordner.Name(""));
}

TEST_F(Start_Test, windows_are_shown_in_order_from_the_column_of_the_mode)
{
    for (const int n : {Fenster_Bef, Fenster_Notiz})
        Fenster_Wert(1, n, Feld::Sichtbar) = -1;
    for (const int n : {Fenster_Basic, Fenster_Spr})
        Fenster_Wert(0, n, Feld::Sichtbar) = -1; // of the other mode
    Starten();
    const std::vector<std::string> Erwartet = {"Sichtbar 3 1",
                                               "Sichtbar 4 0",
                                               "Sichtbar 5 0",
                                               "Sichtbar 2 1",
                                               "Sichtbar 6 1",
                                               "Sichtbar 1 0",
                                               "Hintergrund"};
    EXPECT_NE(
        std::search(
            Fenster.Protokoll.begin(), Fenster.Protokoll.end(), Erwartet.begin(), Erwartet.end()),
        Fenster.Protokoll.end());
}

TEST_F(Start_Test, the_background_colour_of_the_settings_is_applied)
{
    Hintergrund_Farbe = 0xC0FFEE;
    Starten();
    ASSERT_FALSE(Fenster.Hintergruende.empty());
    EXPECT_EQ(Fenster.Hintergruende.back(), 0xC0FFEE);
}

TEST_F(Start_Test, hex_editor_mode_starts_with_an_erased_image_on_show)
{
    In_Modus(Modus_Hex);
    Starten();
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_TRUE(Bild_Besteht_Aus(0xFF));
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_FALSE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
    EXPECT_FALSE(Menue("MNU_deb_Vorbereitung").Aktiv);
    EXPECT_FALSE(Edit.Hat_Fokus);
}

TEST_F(Start_Test, the_hex_page_begins_at_the_top_with_empty_labels)
{
    Hexedit.Label = {"1", "2", "3", "4"};
    Hexedit.R     = 30;
    Init();
    EXPECT_EQ(Hexedit.Scroll_Max, 32768 - 30);
    EXPECT_EQ(Hexedit.Label, (std::array<std::string, 4>{}));
}

TEST_F(Start_Test, mc_editor_mode_starts_with_the_focus_in_the_editor)
{
    Menue("MNU_Debugger_Stoppunkt").Aktiv = false;
    Starten();
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_TRUE(Edit.Hat_Fokus);
    EXPECT_TRUE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Edit));
}

TEST_F(Start_Test, the_captions_are_those_of_the_language)
{
    Sprache = "D";
    Starten();
    EXPECT_EQ(Menue("MNU_Datei").Titel, "Datei");
    Sprache = "E";
    Starten();
    EXPECT_EQ(Menue("MNU_Datei").Titel, "File");
}

TEST_F(Start_Test, a_language_that_is_none_stays_silent_and_has_english_captions)
{
    Sprache = "X";
    Starten();
    EXPECT_EQ(Sprache, "X");
    EXPECT_EQ(Menue("MNU_Datei").Titel, "File");
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Beendet_Normal());
}

TEST_F(Start_Test, leftovers_of_a_debugger_session_are_ended)
{
    Debugger_Aktiv = true;
    Starten();
    EXPECT_FALSE(Debugger_Aktiv);
    EXPECT_FALSE(Menue("MNU_deb_Starten").Aktiv);
    EXPECT_FALSE(Werkzeug(24).Aktiv);
}

TEST_F(Start_Test, the_file_dialog_opens_in_the_folder_of_the_settings)
{
    Start_Verzeichnis = "/some/folder";
    Starten();
    EXPECT_EQ(Dialog_Verzeichnis, "/some/folder");
}

TEST_F(Start_Test, a_damaged_settings_file_starts_the_program_with_a_notice)
{
    Ordner.Anlegen("Varnholt.ini", std::string(3000, '\0'));
    Init();
    EXPECT_TRUE(Beendet_Normal());
    EXPECT_FALSE(Box.Hinweise.empty());
}

TEST_F(Start_Test, a_folder_in_the_place_of_the_settings_file_starts_the_program)
{
    fs::create_directory(Ordner.Pfad / "Varnholt.ini");
    Init();
    EXPECT_TRUE(Beendet_Normal());
    EXPECT_EQ(Start_Verzeichnis, Ordner.Name("Beispiele"));
}

// --- recent files and command line ---

struct Liste_Fall {
    const char* Vorhanden; // which of a, b, c exist
    const char* Danach;    // what stands in the three places, - for an empty one
};

class Letzte_Dateien_Test : public Start_Test, public ::testing::WithParamInterface<Liste_Fall> {};

TEST_P(Letzte_Dateien_Test, vanished_files_are_dropped_from_the_front)
{
    Lade_Letzte = false;
    for (const char c : std::string("abc")) {
        const std::string Name                             = std::string(1, c) + ".bin";
        Letzte_Datei.at(static_cast<std::size_t>(c - 'a')) = Ordner.Name(Name);
        if (std::string(GetParam().Vorhanden).find(c) != std::string::npos)
            Datei(Name);
    }
    Starten();
    std::string Danach;
    for (const std::string& Name : Letzte_Datei)
        Danach += Name.empty() ? "-" : fs::path(Name).stem().string();
    EXPECT_EQ(Danach, GetParam().Danach);
    EXPECT_TRUE(Box.Meldungen.empty());
}

INSTANTIATE_TEST_SUITE_P(Lists,
                         Letzte_Dateien_Test,
                         ::testing::Values(Liste_Fall{"abc", "abc"},
                                           Liste_Fall{"ac", "abc"}, // only the front is looked at
                                           Liste_Fall{"bc", "bc-"},
                                           Liste_Fall{"b", "bc-"},
                                           Liste_Fall{"c", "c--"},
                                           Liste_Fall{"", "---"}));

TEST_F(Start_Test, a_hex_file_on_the_command_line_is_loaded_in_hex_editor_mode)
{
    Startlauf.Kommandozeile = Datei("x.HEX", ":0100000042BD\r\n:00000001FF\r\n");
    Letzte_Datei            = {Datei("a.asm"), Datei("b.asm"), Datei("c.asm")};
    const auto Vorher       = Letzte_Datei;
    Starten();
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Hex_Daten[0], 0x42);
    EXPECT_EQ(Datei_Name, Startlauf.Kommandozeile);
    EXPECT_EQ(Letzte_Datei[0], Startlauf.Kommandozeile);
    EXPECT_EQ(Letzte_Datei[1], Vorher[0]);
    EXPECT_EQ(Letzte_Datei[2], Vorher[1]);
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
}

TEST_F(Start_Test, without_loading_the_last_file_the_command_line_only_changes_list_and_window)
{
    Lade_Letzte             = false;
    Startlauf.Kommandozeile = Datei("x.hex", ":0100000042BD\r\n:00000001FF\r\n");
    Starten();
    EXPECT_TRUE(Bild_Besteht_Aus(0xFF));
    EXPECT_EQ(Datei_Name, "");
    EXPECT_EQ(Letzte_Datei[0], Startlauf.Kommandozeile);
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
}

TEST_F(Start_Test, a_command_line_that_names_a_missing_file_is_ignored)
{
    Startlauf.Kommandozeile = Ordner.Name("none.hex");
    Letzte_Datei[0]         = Datei("a.asm", "NOP\r\n");
    const auto Vorher       = Letzte_Datei;
    Starten();
    EXPECT_EQ(Letzte_Datei, Vorher);
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Start_Test, a_command_line_that_names_a_folder_is_ignored)
{
    Startlauf.Kommandozeile = Ordner.Pfad.string();
    Starten();
    EXPECT_EQ(Letzte_Datei[0], "");
}

TEST_F(Start_Test, the_whole_command_line_is_one_path)
{
    Startlauf.Kommandozeile = Datei("two words.asm", "NOP\r\n");
    Starten();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
}

TEST_F(Start_Test, a_relative_command_line_becomes_a_full_path)
{
    Datei("a.asm", "NOP\r\n");
    const fs::path Vorher = fs::current_path();
    fs::current_path(Ordner.Pfad);
    Startlauf.Kommandozeile = "a.asm";
    Starten();
    fs::current_path(Vorher);
    EXPECT_EQ(fs::path(Letzte_Datei[0]), fs::canonical(Ordner.Pfad) / "a.asm");
}

struct Endung_Fall {
    const char* Name;
    int         Modus_Vorher;
    int         Modus_Danach;
};

class Startmodus_Test : public Start_Test, public ::testing::WithParamInterface<Endung_Fall> {};

// Nothing is loaded, so that only the table of extensions decides.
TEST_P(Startmodus_Test, the_extension_of_the_given_file_decides_the_window)
{
    Lade_Letzte = false;
    In_Modus(GetParam().Modus_Vorher);
    Startlauf.Kommandozeile = Datei(GetParam().Name);
    Starten();
    EXPECT_EQ(Modus, GetParam().Modus_Danach);
    EXPECT_EQ(Fenster.Sichtbar(Fenster_Hexedit), GetParam().Modus_Danach == Modus_Hex);
    EXPECT_EQ(Fenster.Sichtbar(Fenster_Edit), GetParam().Modus_Danach == Modus_MC);
}

INSTANTIATE_TEST_SUITE_P(Extensions,
                         Startmodus_Test,
                         ::testing::Values(Endung_Fall{"a.dat", Modus_MC, Modus_Hex},
                                           Endung_Fall{"a.Bin", Modus_MC, Modus_Hex},
                                           Endung_Fall{"a._51", Modus_MC, Modus_Hex},
                                           Endung_Fall{"a.hex", Modus_MC, Modus_Hex},
                                           Endung_Fall{"a.IHX", Modus_MC, Modus_Hex},
                                           Endung_Fall{"a.asm", Modus_Hex, Modus_MC},
                                           Endung_Fall{"a.TXT", Modus_Hex, Modus_MC},
                                           Endung_Fall{"a.mhx", Modus_MC, Modus_MC},
                                           Endung_Fall{"a.mhx", Modus_Hex, Modus_Hex},
                                           Endung_Fall{"a.a51", Modus_Hex, Modus_Hex},
                                           Endung_Fall{"a.a51", Modus_MC, Modus_MC}));

TEST_F(Start_Test, the_last_file_decides_the_mode_only_when_it_is_loaded)
{
    Letzte_Datei[0] = Datei("a.hex", ":00000001FF\r\n");
    Lade_Letzte     = false;
    Starten();
    EXPECT_EQ(Modus, Modus_MC);
    Lade_Letzte     = true;
    Letzte_Datei[0] = Ordner.Name("a.hex");
    Starten();
    EXPECT_EQ(Modus, Modus_Hex);
}

TEST_F(Start_Test, the_last_file_is_loaded)
{
    Letzte_Datei[0] = Datei("a.asm", "NOP\r\n");
    Starten();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
    EXPECT_EQ(Datei_Name, Letzte_Datei[0]);
}

TEST_F(Start_Test, without_a_last_file_the_document_is_new)
{
    Edit.Inhalt = "left over";
    Starten();
    EXPECT_EQ(Edit.Inhalt, "");
    EXPECT_EQ(Datei_Name, "");
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_FALSE(Datei_Geaendert);
}

// --- devices and port ---

TEST_F(Start_Test, the_device_of_the_settings_stands_in_the_menu)
{
    IC_Nummer = 0;
    Starten();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer (27C64)");
    EXPECT_FALSE(Menue("MNU_IC_Löschen").Aktiv);
    EXPECT_FALSE(Menue("MNU_IC_LockBits").Aktiv);
    EXPECT_EQ(IC_Groesse[0], 524288);
}

TEST_F(Start_Test, a_device_that_can_be_erased_and_locked_enables_both_commands)
{
    Sprache                        = "D";
    IC_Nummer                      = 1;
    Menue("MNU_IC_Löschen").Aktiv  = false;
    Menue("MNU_IC_LockBits").Aktiv = false;
    Starten();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Brenner (89C51)");
    EXPECT_TRUE(Menue("MNU_IC_Löschen").Aktiv);
    EXPECT_TRUE(Menue("MNU_IC_LockBits").Aktiv);
}

TEST_F(Start_Test, a_device_number_without_a_device_selects_none)
{
    for (const int Nummer : {2, 620}) {
        IC_Nummer = Nummer;
        Starten();
        EXPECT_EQ(IC_Nummer, -1);
        EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer");
    }
}

TEST_F(Start_Test, a_missing_device_database_doesnt_stop_the_start)
{
    fs::remove(Ordner.Pfad / "Spec.ini");
    IC_Nummer = 0;
    Starten();
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_TRUE(Beendet_Normal());
}

TEST_F(Start_Test, the_simulated_port_is_open_after_the_start)
{
    Starten();
    EXPECT_TRUE(Porttreiber_OK);
    EXPECT_EQ(Port_Beschreibung(), "Simulated");
}

TEST_F(Start_Test, a_port_that_cannot_be_opened_is_told_and_the_start_goes_on)
{
    Port_Art = "ppdev:" + Ordner.Name("none");
    Starten();
    EXPECT_TRUE(Letzte_Meldung().starts_with("Portdriver has not been loaded sucessfully."));
    EXPECT_FALSE(Porttreiber_OK);
    EXPECT_TRUE(Beendet_Normal());
}

// --- folders and the crash marker ---

TEST_F(Start_Test, the_folders_undo_and_autosave_are_made)
{
    Starten();
    EXPECT_TRUE(fs::is_directory(Ordner.Pfad / "Undo"));
    EXPECT_TRUE(fs::is_directory(Ordner.Pfad / "Autosave"));
}

TEST_F(Start_Test, what_a_killed_run_left_of_its_writes_is_cleared_away)
{
    const pid_t Kind = ::fork();
    if (Kind == 0)
        ::_exit(0);
    ::waitpid(Kind, nullptr, 0);
    const std::string Rest  = ".varnholt-" + std::to_string(Kind) + "-0";
    const std::string Eines = ".varnholt-" + std::to_string(::getpid()) + "-99";
    for (const char* Wo : {"", "Autosave/"}) {
        Datei(Wo + Rest, "half");
        Datei(Wo + Eines, "being written");
    }
    Starten();
    for (const char* Wo : {"", "Autosave/"}) {
        EXPECT_FALSE(fs::exists(Ordner.Pfad / (Wo + Rest)));
        EXPECT_TRUE(fs::exists(Ordner.Pfad / (Wo + Eines)));
    }
}

TEST_F(Start_Test, beside_another_run_nothing_is_cleared_away)
{
    Datei_Sperre Anderer;
    ASSERT_EQ(Anderer.Nehmen(Ordner.Pfad / "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    const pid_t Kind = ::fork();
    if (Kind == 0)
        ::_exit(0);
    ::waitpid(Kind, nullptr, 0); // here its number is gone; elsewhere it may be a living one
    const std::string Rest = Datei(".varnholt-" + std::to_string(Kind) + "-0", "being written");
    Starten();
    EXPECT_TRUE(fs::exists(Rest));
}

TEST_F(Start_Test, a_folder_that_cannot_be_made_is_told_and_the_start_goes_on)
{
    Datei("Undo");
    Datei("Autosave");
    Starten();
    ASSERT_EQ(Box.Hinweise.size(), 2u);
    EXPECT_TRUE(Box.Hinweise[0].starts_with("The folder " + Ordner.Name("Undo") +
                                            " could not be created: "));
    EXPECT_TRUE(Beendet_Normal());
    Sprache = "D";
    Starten();
    EXPECT_TRUE(Box.Hinweise[3].starts_with("Der Ordner " + Ordner.Name("Autosave") +
                                            " konnte nicht angelegt werden: "));
}

TEST_F(Start_Test, the_autosave_clock_starts_with_the_program)
{
    Ereignisse.Uhrzeit = 5000;
    Starten();
    EXPECT_GT(Autosave_Zeit, 5000);
    EXPECT_LT(Autosave_Zeit, Ereignisse.Uhrzeit);
}

TEST_F(Start_Test, after_a_crash_german_asks_for_the_last_autosave_file)
{
    Sprache = "D";
    Datei("startup", Datei("saved.asm", "RET\r\n") + "\r\n");
    Box.Antworten   = {Antwort_Ja};
    Letzte_Datei[0] = Datei("a.asm", "NOP\r\n");
    Starten();
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Die Software wurde beim letzten Aufruf nicht korrekt beendet. Sollte dieses durch "
              "einen Fehler geschehen sein, können Sie die letzten automatisch abgespeicherten "
              "Dateien unter dem Verzeichnis " +
                  Ordner.Name("Autosave/") +
                  " wieder einladen. Soll nun die letzte automatisch abgespeicherte Datei wieder "
                  "eingeladen werden?");
    EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ja_Nein);
    EXPECT_EQ(Letzte_Datei[0], Ordner.Name("saved.asm"));
    EXPECT_EQ(Edit.Inhalt, "RET\r\n");
}

TEST_F(Start_Test, after_a_crash_no_leaves_the_recent_files_alone)
{
    Sprache = "D";
    Datei("startup", Datei("saved.asm", "RET\r\n"));
    Box.Antworten   = {Antwort_Nein};
    Letzte_Datei[0] = Datei("a.asm", "NOP\r\n");
    Starten();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
}

TEST_F(Start_Test, after_a_crash_a_saved_file_that_is_gone_leaves_the_recent_files_alone)
{
    Sprache = "D";
    for (const std::string& Inhalt :
         {Ordner.Name("gone.asm") + "\r\n", std::string{}, std::string(100000, 'x')}) {
        Datei("startup", Inhalt);
        Box.Antworten   = {Antwort_Ja};
        Letzte_Datei[0] = Datei("a.asm", "NOP\r\n");
        Starten();
        EXPECT_EQ(Letzte_Datei[0], Ordner.Name("a.asm"));
    }
}

TEST_F(Start_Test, after_a_crash_english_asks_nothing_and_the_marker_stays)
{
    Datei("startup", Datei("saved.asm", "RET\r\n"));
    Starten();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Edit.Inhalt, "");
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "startup"));
}

TEST_F(Start_Test, with_nothing_loaded_at_start_a_restored_file_only_stands_in_the_list)
{
    Sprache     = "D";
    Lade_Letzte = false;
    Datei("startup", Datei("saved.asm", "RET\r\n"));
    Box.Antworten = {Antwort_Ja};
    Starten();
    EXPECT_EQ(Letzte_Datei[0], Ordner.Name("saved.asm"));
    EXPECT_EQ(Edit.Inhalt, "");
}

TEST_F(Start_Test, the_marker_of_a_run_that_still_goes_on_asks_nothing)
{
    Sprache = "D";
    Datei("startup", Datei("saved.asm", "RET\r\n"));
    Datei_Sperre Andere;
    ASSERT_EQ(Andere.Nehmen(Ordner.Pfad / "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    Starten();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Undo_Ordner, "Undo-2");
    EXPECT_TRUE(fs::is_directory(Ordner.Pfad / "Undo-2"));
}

// --- the first start ---

TEST_F(Start_Test, without_a_settings_file_the_language_is_asked_first)
{
    Init();
    EXPECT_EQ(Fenster.Protokoll,
              (std::vector<std::string>{"Zeigen Start", "Zeigen Erststart", "Entladen Start"}));
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_TRUE(Init_Laeuft);
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "Varnholt.ini"));
}

TEST_F(Start_Test, the_language_dialog_writes_two_lines_and_the_mode_is_asked)
{
    for (const bool Englisch : {false, true}) {
        fs::remove(Ordner.Pfad / "Varnholt.ini");
        Init();
        Fenster.Protokoll.clear();
        Erststart_Englisch = Englisch;
        Erststart_Command1_Click();
        EXPECT_EQ(Sprache, Englisch ? "E" : "D");
        EXPECT_EQ(Bytes_Von(Ordner.Name("Varnholt.ini")), Sprache + "\r\nErststart\r\n");
        EXPECT_EQ(Fenster.Protokoll,
                  (std::vector<std::string>{
                      "Zeigen Start", "Zeigen Abfrage_Modus", "Entladen Erststart"}));
        EXPECT_TRUE(Erststart_Aktiv);
        Startlauf = {};
    }
}

TEST_F(Start_Test, a_language_that_cannot_be_written_isnt_asked_for_again)
{
    Init();
    fs::remove_all(Ordner.Pfad);
    Fenster.Protokoll.clear();
    Erststart_Englisch = true;
    Erststart_Command1_Click();
    EXPECT_TRUE(Gezeigt("Zeigen Abfrage_Modus"));
    EXPECT_FALSE(Gezeigt("Zeigen Erststart"));
    EXPECT_FALSE(Box.Hinweise.empty());
    Abfrage_Modus_Button_Mode_2_Click();
    EXPECT_TRUE(Beendet_Normal());
}

TEST_F(Start_Test, two_lines_of_settings_show_only_the_mode_dialog)
{
    Datei("Varnholt.ini", "D\r\nErststart\r\n");
    Init();
    EXPECT_EQ(Fenster.Protokoll,
              (std::vector<std::string>{"Zeigen Start", "Zeigen Abfrage_Modus"}));
    EXPECT_EQ(Sprache, "D");
    EXPECT_EQ(Menue("MNU_IC").Titel, "Brenner");
    EXPECT_EQ(IC_Nummer, -1);
}

struct Beispiel_Fall {
    const char* Sprache;
    const char* Name;
};

class Beispiel_Test : public Start_Test, public ::testing::WithParamInterface<Beispiel_Fall> {};

TEST_P(Beispiel_Test, the_example_is_the_first_recent_file)
{
    fs::create_directories(Ordner.Pfad / fs::path(GetParam().Name).parent_path());
    const std::string Beispiel = Datei(GetParam().Name, "; example\r\n");
    Datei("Varnholt.ini", std::string(GetParam().Sprache) + "\r\nErststart\r\n");
    Init();
    EXPECT_EQ(Letzte_Datei[0], Beispiel);
    Abfrage_Modus_Button_Mode_2_Click();
    EXPECT_EQ(Edit.Inhalt, "; example\r\n");
    EXPECT_EQ(Modus, Modus_MC);
}

INSTANTIATE_TEST_SUITE_P(Places,
                         Beispiel_Test,
                         ::testing::Values(Beispiel_Fall{"D", "beispiele/einführung-1.asm"},
                                           Beispiel_Fall{"D", "einführung-1.asm"},
                                           Beispiel_Fall{"D", "Beispiele/Einführung-1.ASM"},
                                           Beispiel_Fall{"E", "samples/Introduction.asm"},
                                           Beispiel_Fall{"E", "Introduction.asm"}));

TEST_F(Start_Test, the_folder_of_the_examples_comes_before_the_program_folder)
{
    fs::create_directory(Ordner.Pfad / "samples");
    Datei("Introduction.asm", "outer\r\n");
    const std::string Innere = Datei("samples/Introduction.asm", "inner\r\n");
    Datei("Varnholt.ini", "E\r\nErststart\r\n");
    Init();
    EXPECT_EQ(Letzte_Datei[0], Innere);
}

TEST_F(Start_Test, mode_1_starts_with_an_erased_image_and_no_file)
{
    Datei("Introduction.asm", "NOP\r\n");
    Datei("Varnholt.ini", "E\r\nErststart\r\n");
    Init();
    Abfrage_Modus_Button_Mode_1_Click();
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Datei_Name, "");
    EXPECT_EQ(Letzte_Datei[0], "");
    EXPECT_TRUE(Bild_Besteht_Aus(0xFF));
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
    EXPECT_TRUE(Beendet_Normal());
}

TEST_F(Start_Test, the_mode_dialog_skips_the_stages_up_to_the_settings)
{
    Datei("Varnholt.ini", "E\r\nErststart\r\n");
    Init();
    Fenster.Protokoll.clear();
    Abfrage_Modus_Button_Mode_2_Click();
    EXPECT_FALSE(Modus_Gewaehlt);
    EXPECT_EQ(Fenster.Protokoll.front(), "Entladen Abfrage_Modus");
    EXPECT_FALSE(Gezeigt("Zeigen Start"));
    EXPECT_EQ(Bytes_Von(Ordner.Name("Varnholt.ini")), "E\r\nErststart\r\n");
}

TEST_F(Start_Test, a_first_start_fills_the_screen_and_arranges_the_windows_from_its_size)
{
    Datei("Varnholt.ini", "E\r\nErststart\r\n");
    Init();
    Abfrage_Modus_Button_Mode_2_Click();
    const auto Gefuellt =
        std::find(Fenster.Protokoll.begin(), Fenster.Protokoll.end(), "Bildschirm_Fuellen");
    ASSERT_NE(Gefuellt, Fenster.Protokoll.end());
    EXPECT_TRUE(std::any_of(Gefuellt, Fenster.Protokoll.end(), [](const std::string& Zeile) {
        return Zeile.starts_with("Lage 2 ");
    }));
    EXPECT_GT(Fenster_Wert(1, Fenster_Edit, Feld::Breite), 0);
}

TEST_F(Start_Test, a_later_start_leaves_the_layout_alone)
{
    Fenster_Wert(1, Fenster_Edit, Feld::Breite) = 777;
    Fenster_Wert(1, Fenster_Edit, Feld::Hoehe)  = 555;
    Starten();
    EXPECT_FALSE(Gezeigt("Bildschirm_Fuellen"));
    EXPECT_EQ(Fenster.Lage(Fenster_Edit).Breite, 777);
}

TEST_F(Start_Test, the_first_start_opens_dialogs_in_the_folder_of_the_examples)
{
    fs::create_directory(Ordner.Pfad / "beispiele");
    Datei("Varnholt.ini", "E\r\nErststart\r\n");
    Init();
    Abfrage_Modus_Button_Mode_1_Click();
    EXPECT_EQ(Dialog_Verzeichnis, Ordner.Name("beispiele"));
    EXPECT_EQ(Start_Verzeichnis, Ordner.Name("beispiele"));
}

TEST_F(Start_Test, the_file_association_is_written_once_at_a_first_start)
{
    Init();
    Erststart_Command1_Click();
    Abfrage_Modus_Button_Mode_2_Click();
    ASSERT_EQ(Umgebung.Typen.size(), 1u);
    EXPECT_EQ(Umgebung.Typen[0].Beschreibung, "Quelmark Varnholt 5");
    EXPECT_EQ(Umgebung.Typen[0].Befehl, Ordner.Name("Varnholt.exe"));
    EXPECT_EQ(Umgebung.Typen[0].Klasse, "Quelmark.Document");
    EXPECT_EQ(Umgebung.Typen[0].Endung, "asm");
}

TEST_F(Start_Test, a_later_start_writes_no_file_association)
{
    Starten();
    EXPECT_TRUE(Umgebung.Typen.empty());
}

TEST(Abfrage_Modus_Texte_Test, the_mode_dialog_has_its_texts_in_both_languages)
{
    const Abfrage_Modus_Texte_T& t = Abfrage_Modus_Texte;
    EXPECT_EQ(t.Titel.D, "Erststart");
    EXPECT_EQ(t.Titel.E, "First start");
    EXPECT_EQ(t.Frage.D, "Bitte wählen Sie, in welchem Modus die Software gestartet werden soll:");
    EXPECT_EQ(t.Frage.E, "Please choose the mode of the software:");
    EXPECT_EQ(t.Button_Mode_1.D,
              "Hex/ASCII Editor\r\n(zum Lesen, Brennen, Editieren und Kopieren von "
              "Speicherbausteinen)");
    EXPECT_EQ(t.Button_Mode_1.E,
              "Hex/ASCII Editor\r\n(to read, write, check and copy memory ic's)");
    EXPECT_EQ(t.Button_Mode_2.D,
              "MC-Editor Modus\r\n(zum Programmieren von Mikrocontroller Programmen)");
    EXPECT_EQ(t.Button_Mode_2.E, "MC-Editor Modus\r\n(to program microcontroller applications)");
}

} // namespace
} // namespace varnholt::test
