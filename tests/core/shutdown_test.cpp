// The end of the program: questions, settings, and what a run leaves behind.
#include "core/commands.h"
#include "core/instance.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "core/undo.h"
#include "core/windows.h"
#include "files/Datei_Zustand.h"
#include "files/Dateien_Welt.h"

#include <filesystem>
#include <string>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Ende_Test : public Welt {
protected:
    Ende_Test()
    {
        Programm_Pfad = Ordner.Name("");
        Modus         = Modus_MC;
        fs::create_directory(Ordner.Pfad / "Undo");
        Startlauf.Einstellungen_Gelten = true;
        Start_Verzeichnis              = "/before";
        Instanz_Anmelden();
    }
    // A changed document with a name, and the answer to the question about it.
    void Geaendert(int Antwort_Darauf)
    {
        Datei_Name = Dialog_Name = Ordner.Name("a.asm");
        Edit.Inhalt              = "NOP\r\n";
        Datei_Geaendert          = true;
        Box.Antworten.push_back(Antwort_Darauf);
    }
    std::string Zweite_Zeile() const
    {
        const std::string Text   = Bytes_Von(Ordner.Name("Varnholt.ini"));
        const std::size_t Anfang = Text.find("\r\n") + 2;
        return Text.substr(Anfang, Text.find("\r\n", Anfang) - Anfang);
    }
    bool Geschrieben() const { return fs::exists(Ordner.Pfad / "Varnholt.ini"); }

    Arbeitsordner Ordner{};
};

TEST_F(Ende_Test, an_unchanged_document_is_not_asked_about)
{
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Geschrieben());
}

TEST_F(Ende_Test, the_question_about_changes_stands_in_both_languages)
{
    Geaendert(Antwort_Abbrechen);
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_EQ(Letzte_Meldung(), "Save changes first?");
    Sprache = "D";
    Geaendert(Antwort_Abbrechen);
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_EQ(Letzte_Meldung(), "Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?");
    EXPECT_EQ(Box.Meldungen.back().Tasten, Knoepfe::Ja_Nein_Abbrechen);
}

TEST_F(Ende_Test, cancel_refuses_the_end_and_does_nothing_else)
{
    Ordner.Anlegen("startup", "x");
    Ordner.Anlegen("Undo/Undo 0.rtf", "x");
    Geaendert(Antwort_Abbrechen);
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_FALSE(Geschrieben());
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "startup"));
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "Undo" / "Undo 0.rtf"));
    EXPECT_TRUE(Fenster.Protokoll.empty());
}

TEST_F(Ende_Test, yes_saves_the_file_and_loses_the_settings_of_this_run)
{
    Ordner.Anlegen("startup", "x");
    Geaendert(Antwort_Ja);
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_EQ(Bytes_Von(Ordner.Name("a.asm")), "NOP\r\n");
    EXPECT_FALSE(Geschrieben());
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "startup"));
}

TEST_F(Ende_Test, a_save_that_fails_keeps_the_program)
{
    Geaendert(Antwort_Ja);
    Datei_Name = Dialog_Name = Ordner.Name("none/a.asm");
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Ende_Test, a_save_dialog_that_is_cancelled_keeps_the_program)
{
    Geaendert(Antwort_Ja);
    Datei_Name = Dialog_Name = "";
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Ende_Test, no_gives_the_changes_up_and_writes_the_settings)
{
    Geaendert(Antwort_Nein);
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "a.asm"));
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_TRUE(Geschrieben());
}

TEST_F(Ende_Test, changes_that_no_language_can_ask_about_keep_the_program)
{
    Sprache = "X";
    Antwort = Antwort_Nein; // of an earlier box
    Geaendert(Antwort_Nein);
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Ende_Test, the_windows_places_are_kept)
{
    Fenster.Zu(Fenster_Edit).Lage = {11, 22, 333, 444};
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Oben), 11);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Links), 22);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Hoehe), 333);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Breite), 444);
}

TEST_F(Ende_Test, the_folder_of_the_last_dialog_is_kept)
{
    Dialog_Verzeichnis = "/initial";
    Dialog_Name        = "/chosen/a.asm";
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_EQ(Zweite_Zeile(), "/chosen");
}

TEST_F(Ende_Test, without_a_chosen_name_the_initial_folder_is_kept)
{
    Dialog_Verzeichnis = "/initial";
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_EQ(Zweite_Zeile(), "/initial");
}

TEST_F(Ende_Test, without_a_dialog_the_folder_of_the_settings_stays)
{
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_EQ(Zweite_Zeile(), "/before");
}

TEST_F(Ende_Test, the_crash_marker_and_the_snapshots_are_removed)
{
    Ordner.Anlegen("startup", "x");
    Ordner.Anlegen("Undo/Undo 0.rtf", "x");
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "startup"));
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad / "Undo"));
    // the splash and the search forms go last
    ASSERT_GE(Fenster.Protokoll.size(), 3u);
    EXPECT_EQ(std::vector(Fenster.Protokoll.end() - 3, Fenster.Protokoll.end()),
              (std::vector<std::string>{"Entladen Start", "Entladen Suche", "Entladen HexSuche"}));
}

TEST_F(Ende_Test, a_second_run_leaves_the_marker_of_the_first_alone)
{
    Instanz_Zuruecksetzen();
    Datei_Sperre Erste;
    ASSERT_EQ(Erste.Nehmen(Ordner.Pfad / "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    Instanz_Anmelden();
    Ordner.Anlegen("startup", "x");
    Ordner.Anlegen("Undo/Undo 0.rtf", "x");
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "startup"));
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "Undo" / "Undo 0.rtf"));
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "Undo-2"));
}

TEST_F(Ende_Test, settings_that_cannot_be_written_are_told_with_the_reason)
{
    for (const char* Deutsch_Oder_Englisch : {"D", "E"}) {
        Sprache       = Deutsch_Oder_Englisch;
        Programm_Pfad = Ordner.Name("none/");
        Box.Antworten = {Antwort_Nein};
        EXPECT_FALSE(Ende_Erfragen());
        const std::string Text = Letzte_Meldung();
        EXPECT_TRUE(Text.starts_with(Sprache == "D"
                                         ? "Die Einstellungen konnten nicht gespeichert werden: "
                                         : "The settings could not be saved: "));
        EXPECT_TRUE(Text.ends_with(Sprache == "D" ? "\r\nTrotzdem beenden?" : "\r\nQuit anyway?"));
        EXPECT_EQ(Box.Meldungen.back().Tasten, Knoepfe::Ja_Nein);
    }
}

TEST_F(Ende_Test, the_user_may_end_without_the_settings)
{
    Programm_Pfad = Ordner.Name("none/");
    Box.Antworten = {Antwort_Ja};
    EXPECT_TRUE(Ende_Erfragen());
}

TEST_F(Ende_Test, staying_because_of_the_settings_keeps_snapshots_and_marker)
{
    fs::create_directory(Ordner.Pfad / "Varnholt.ini"); // nothing can be renamed over it
    Ordner.Anlegen("Varnholt.ini/x", "");
    Ordner.Anlegen("startup", "x");
    Ordner.Anlegen("Undo/Undo 0.rtf", "x");
    Box.Antworten = {Antwort_Nein};
    EXPECT_FALSE(Ende_Erfragen());
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "startup"));
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "Undo" / "Undo 0.rtf"));
}

TEST_F(Ende_Test, a_start_given_up_in_its_dialogs_writes_no_settings)
{
    Startlauf.Einstellungen_Gelten = false;
    EXPECT_TRUE(Ende_Erfragen());
    EXPECT_FALSE(Geschrieben());
}

TEST_F(Ende_Test, the_menu_entry_ends_the_program)
{
    MNU_Ende_Click();
    EXPECT_TRUE(Fenster.Beendet);
}

TEST_F(Ende_Test, the_menu_entry_obeys_a_refusal)
{
    Geaendert(Antwort_Abbrechen);
    MNU_Ende_Click();
    EXPECT_FALSE(Fenster.Beendet);
}

} // namespace
} // namespace varnholt::test
