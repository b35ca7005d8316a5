// Runs of the program beside each other. Another run is played by locks of the test's own.
#include "core/instance.h"
#include "core/shared_state.h"
#include "files/Dateien_Welt.h"

#include <filesystem>
#include <string>

namespace varnholt::test {
namespace {

namespace fs   = std::filesystem;
using Ergebnis = Datei_Sperre::Ergebnis;

class Instanz_Test : public Welt {
protected:
    Instanz_Test() { Programm_Pfad = Ordner.Name(""); }

    fs::path Sperr_Datei(const std::string& In = "") const
    {
        return Ordner.Pfad / In / "Varnholt.lock";
    }

    Arbeitsordner Ordner{};
};

TEST_F(Instanz_Test, a_lock_holds_others_off_until_it_is_given_back)
{
    Datei_Sperre Eine, Andere;
    EXPECT_EQ(Eine.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    EXPECT_TRUE(Eine.Gehalten());
    EXPECT_EQ(Andere.Nehmen(Sperr_Datei()), Ergebnis::Vergeben);
    EXPECT_FALSE(Andere.Gehalten());
    Eine.Loesen();
    EXPECT_EQ(Andere.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
}

TEST_F(Instanz_Test, a_lock_goes_with_its_object_and_moves_with_it)
{
    Datei_Sperre Andere;
    {
        Datei_Sperre Eine;
        ASSERT_EQ(Eine.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
        const Datei_Sperre Umgezogen(std::move(Eine));
        EXPECT_TRUE(Umgezogen.Gehalten());
        EXPECT_EQ(Andere.Nehmen(Sperr_Datei()), Ergebnis::Vergeben);
    }
    EXPECT_EQ(Andere.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
}

TEST_F(Instanz_Test, a_lock_in_a_folder_that_is_not_there_is_impossible)
{
    Datei_Sperre Eine;
    EXPECT_EQ(Eine.Nehmen(Sperr_Datei("none")), Ergebnis::Unmoeglich);
    EXPECT_EQ(Eine.Nehmen(Ordner.Pfad), Ergebnis::Unmoeglich); // a folder is no lock file
}

TEST_F(Instanz_Test, the_first_run_gets_undo_and_the_crash_marker)
{
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo");
    EXPECT_TRUE(Instanz.Marke_Gehoert);
    EXPECT_EQ(Datei_Sperre().Nehmen(Sperr_Datei()), Ergebnis::Vergeben);
}

TEST_F(Instanz_Test, a_second_run_gets_a_folder_of_its_own_and_no_marker)
{
    Datei_Sperre Erste;
    ASSERT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo-2");
    EXPECT_FALSE(Instanz.Marke_Gehoert);
    EXPECT_FALSE(Marke_Beanspruchen());
    EXPECT_TRUE(fs::is_directory(Ordner.Pfad / "Undo-2"));
}

TEST_F(Instanz_Test, a_third_run_gets_a_third_folder)
{
    Datei_Sperre Erste, Zweite;
    ASSERT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    fs::create_directory(Ordner.Pfad / "Undo-2");
    ASSERT_EQ(Zweite.Nehmen(Sperr_Datei("Undo-2")), Ergebnis::Genommen);
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo-3");
}

TEST_F(Instanz_Test, a_folder_that_a_crashed_run_left_behind_is_used_again)
{
    Datei_Sperre Erste;
    ASSERT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    fs::create_directory(Ordner.Pfad / "Undo-2");
    Ordner.Anlegen("Undo-2/Undo 0.rtf", "old");
    Ordner.Anlegen("Undo-2/Varnholt.lock", "");
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo-2");
}

TEST_F(Instanz_Test, a_second_run_without_a_folder_of_its_own_uses_nobodys)
{
    Datei_Sperre Erste;
    ASSERT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    for (int i = 2; i <= 99; ++i)
        Ordner.Anlegen("Undo-" + std::to_string(i), "a file where the folder should be");
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo-0");
}

TEST_F(Instanz_Test, signing_in_twice_changes_nothing)
{
    Instanz_Anmelden();
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo");
    EXPECT_TRUE(Instanz.Marke_Gehoert);
}

TEST_F(Instanz_Test, the_marker_is_taken_over_when_its_owner_has_ended)
{
    Datei_Sperre Erste;
    ASSERT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    Instanz_Anmelden();
    Erste.Loesen();
    EXPECT_TRUE(Marke_Beanspruchen());
    EXPECT_EQ(Undo_Ordner, "Undo-2"); // its snapshots stay where they are
    EXPECT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Vergeben);
}

TEST_F(Instanz_Test, where_nothing_can_be_locked_it_is_as_if_alone)
{
    Programm_Pfad = Ordner.Name("none/");
    Instanz_Anmelden();
    EXPECT_EQ(Undo_Ordner, "Undo");
    EXPECT_TRUE(Instanz.Marke_Gehoert);
}

TEST_F(Instanz_Test, the_end_removes_a_folder_of_its_own)
{
    Datei_Sperre Erste;
    ASSERT_EQ(Erste.Nehmen(Sperr_Datei()), Ergebnis::Genommen);
    Instanz_Anmelden();
    Ordner.Anlegen("Undo-2/Undo 0.rtf", "");
    Instanz_Abmelden();
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "Undo-2"));
    EXPECT_EQ(Undo_Ordner, "Undo");
}

TEST_F(Instanz_Test, the_end_keeps_the_folder_undo_and_gives_the_lock_back)
{
    fs::create_directory(Ordner.Pfad / "Undo");
    Instanz_Anmelden();
    Instanz_Abmelden();
    EXPECT_TRUE(fs::is_directory(Ordner.Pfad / "Undo"));
    EXPECT_EQ(Datei_Sperre().Nehmen(Sperr_Datei()), Ergebnis::Genommen);
}

} // namespace
} // namespace varnholt::test
