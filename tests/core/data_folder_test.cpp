// The data folder: what is filled in and what isn't, and which leftovers go.
#include "core/data_folder.h"

#include "support/Arbeitsordner.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// Every file below a folder with its bytes, by its name inside; links by where they lead.
std::map<std::string, std::string> Baum(const fs::path& Ordner)
{
    std::map<std::string, std::string> Alles;
    for (const auto& e : fs::recursive_directory_iterator(Ordner)) {
        const std::string Name = fs::relative(e.path(), Ordner).string();
        if (e.is_symlink())
            Alles[Name] = "-> " + fs::read_symlink(e.path()).string();
        else if (e.is_regular_file())
            Alles[Name] = Bytes_Von(e.path());
    }
    return Alles;
}

// --- filling up ----------------------------------------------------------------------------------

class Ergaenzen : public ::testing::Test {
protected:
    Ergaenzen()
    {
        for (const char* Name : {"Spec.ini",
                                 "befehle.dok",
                                 "Help/Help-Index.htm",
                                 "Help/images/one.png",
                                 "mc/8051.mc",
                                 "mc/8052.mc",
                                 "images/j_1.jpg",
                                 "samples/one.asm",
                                 "samples/two.asm",
                                 "samples/parts/three.asm",
                                 "beispiele/eins.asm"})
            Vorlage.Anlegen(Name, std::string("new ") + Name);
    }
    void Anwenden() const { Ordner_Ergaenzen(Vorlage.Pfad, Ordner.Pfad); }

    Arbeitsordner Vorlage{};
    Arbeitsordner Ordner{};
};

TEST_F(Ergaenzen, an_empty_folder_gets_everything)
{
    Anwenden();
    EXPECT_EQ(Baum(Ordner.Pfad), Baum(Vorlage.Pfad));
}
TEST_F(Ergaenzen, a_folder_of_an_older_version_gets_what_it_lacks)
{
    Ordner.Anlegen("Spec.ini", "old");
    Ordner.Anlegen("mc/8051.mc", "changed by the user");
    Ordner.Anlegen("Help/images/one.png", "old picture");
    Anwenden();
    auto Soll                   = Baum(Vorlage.Pfad);
    Soll["Spec.ini"]            = "old";
    Soll["mc/8051.mc"]          = "changed by the user";
    Soll["Help/images/one.png"] = "old picture";
    EXPECT_EQ(Baum(Ordner.Pfad), Soll);
}
TEST_F(Ergaenzen, a_sample_that_the_user_deleted_stays_away)
{
    Ordner.Anlegen("samples/own.asm", "own");
    fs::create_directory(Ordner.Pfad / "beispiele");
    Anwenden();
    EXPECT_EQ(Baum(Ordner.Pfad / "samples"),
              (std::map<std::string, std::string>{{"own.asm", "own"}}));
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad / "beispiele"));
}
TEST_F(Ergaenzen, a_folder_of_samples_that_is_absent_comes_as_a_whole)
{
    Ordner.Anlegen("Spec.ini", "old");
    Anwenden();
    EXPECT_EQ(Baum(Ordner.Pfad / "samples"), Baum(Vorlage.Pfad / "samples"));
}
TEST_F(Ergaenzen, what_the_user_has_besides_stays)
{
    Ordner.Anlegen("Varnholt.ini", "E");
    Ordner.Anlegen("Autosave/autosave0.asm", "NOP");
    Ordner.Anlegen("mc/own.mc", "own");
    Anwenden();
    auto Soll                      = Baum(Vorlage.Pfad);
    Soll["Varnholt.ini"]           = "E";
    Soll["Autosave/autosave0.asm"] = "NOP";
    Soll["mc/own.mc"]              = "own";
    EXPECT_EQ(Baum(Ordner.Pfad), Soll);
}
TEST_F(Ergaenzen, a_second_time_changes_nothing)
{
    Anwenden();
    Ordner.Anlegen("befehle.dok", "of the user");
    const auto Vorher = Baum(Ordner.Pfad);
    Anwenden();
    EXPECT_EQ(Baum(Ordner.Pfad), Vorher);
}
TEST_F(Ergaenzen, a_link_is_the_users_own_arrangement)
{
    const Arbeitsordner Anderswo;
    fs::create_symlink(Anderswo.Pfad, Ordner.Pfad / "mc");
    fs::create_symlink("nowhere", Ordner.Pfad / "befehle.dok");
    Anwenden();
    EXPECT_TRUE(fs::is_empty(Anderswo.Pfad));
    EXPECT_EQ(Baum(Ordner.Pfad)["befehle.dok"], "-> nowhere");
}
TEST_F(Ergaenzen, a_file_where_a_folder_should_be_stays)
{
    Ordner.Anlegen("Help", "a file");
    Ordner.Anlegen("Spec.ini/x", "in a folder");
    Anwenden();
    EXPECT_EQ(Bytes_Von(Ordner.Pfad / "Help"), "a file");
    EXPECT_EQ(Baum(Ordner.Pfad / "Spec.ini").size(), 1u);
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "mc/8052.mc"));
}
TEST_F(Ergaenzen, a_folder_that_is_not_there_is_no_harm)
{
    Ordner_Ergaenzen(Vorlage.Pfad / "none", Ordner.Pfad);
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad));
    Ordner_Ergaenzen(Vorlage.Pfad, Ordner.Pfad / "none");
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad));
}
TEST_F(Ergaenzen, nothing_temporary_is_left)
{
    Anwenden();
    for (const auto& [Name, Bytes] : Baum(Ordner.Pfad))
        EXPECT_EQ(Name.find(".varnholt-"), std::string::npos) << Name;
}
TEST_F(Ergaenzen, a_leftover_of_an_equal_process_number_does_no_harm)
{
    const std::string Rest = ".varnholt-" + std::to_string(::getpid()) + "-0";
    for (const bool Als_Ordner : {false, true}) {
        const Arbeitsordner Neuer;
        Neuer.Anlegen(Als_Ordner ? Rest + "/old/file" : Rest, "left by a killed run");
        Ordner_Ergaenzen(Vorlage.Pfad, Neuer.Pfad);
        EXPECT_EQ(Baum(Neuer.Pfad), Baum(Vorlage.Pfad)) << Als_Ordner;
        EXPECT_FALSE(fs::exists(Neuer.Pfad / Rest));
    }
}
TEST_F(Ergaenzen, the_copies_of_read_only_files_can_be_written)
{
    const fs::perms Nur_Lesen = fs::perms::owner_read | fs::perms::group_read;
    fs::permissions(Vorlage.Pfad / "samples/one.asm", Nur_Lesen);
    fs::permissions(Vorlage.Pfad / "samples", Nur_Lesen | fs::perms::owner_exec);
    Anwenden();
    fs::permissions(Vorlage.Pfad / "samples", fs::perms::owner_all);
    for (const char* Name : {"samples", "samples/one.asm"})
        EXPECT_NE(fs::status(Ordner.Pfad / Name).permissions() & fs::perms::owner_write,
                  fs::perms::none)
            << Name;
    EXPECT_EQ(Bytes_Von(Ordner.Pfad / "samples/one.asm"), "new samples/one.asm");
}
TEST_F(Ergaenzen, what_a_run_has_written_into_the_installed_folder_isnt_handed_on)
{
    const auto Soll = Baum(Vorlage.Pfad);
    for (const char* Name : {"Varnholt.ini",
                             "Varnholt.lock",
                             "startup",
                             "Autosave/autosave0.asm",
                             "Undo/Undo 0.rtf",
                             "Undo-2/Undo 0.rtf",
                             ".varnholt-1-0"})
        Vorlage.Anlegen(Name, "of another user");
    Anwenden();
    EXPECT_EQ(Baum(Ordner.Pfad), Soll);
}

// --- clearing away -------------------------------------------------------------------------------

// The number of a process that has just ended.
pid_t Tote_Nummer()
{
    const pid_t Kind = ::fork();
    if (Kind == 0)
        ::_exit(0);
    ::waitpid(Kind, nullptr, 0);
    return Kind;
}

class Reste : public ::testing::Test {
protected:
    std::string Name(const std::string& Nummer, const std::string& Versuch = "0") const
    {
        return ".varnholt-" + Nummer + "-" + Versuch;
    }
    bool Bleibt(const std::string& Datei) const
    {
        std::error_code Fehler;
        return fs::symlink_status(Ordner.Pfad / Datei, Fehler).type() != fs::file_type::not_found;
    }

    const std::string Tot = std::to_string(Tote_Nummer());
    Arbeitsordner     Ordner{};
};

TEST_F(Reste, files_of_ended_processes_go_from_the_folders_where_something_is_saved)
{
    for (const char* Wo : {"", "Autosave/", "samples/", "beispiele/", "include/", "mc/"})
        for (const char* Versuch : {"0", "7", "99"})
            Ordner.Anlegen(Wo + Name(Tot, Versuch), "half");
    Ordner.Anlegen("Varnholt.ini", "E");
    Ordner.Anlegen("samples/a.asm", "NOP");
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_EQ(
        Baum(Ordner.Pfad),
        (std::map<std::string, std::string>{{"Varnholt.ini", "E"}, {"samples/a.asm", "NOP"}}));
}
TEST_F(Reste, those_of_living_processes_stay)
{
    const std::string Eigener = std::to_string(::getpid());
    Ordner.Anlegen(Name(Eigener), "being written");
    Ordner.Anlegen(Name("1"), "of another user"); // the first process of the system always lives
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_TRUE(Bleibt(Name(Eigener)));
    EXPECT_TRUE(Bleibt(Name("1")));
}
TEST_F(Reste, other_names_stay)
{
    const std::vector<std::string> Namen = {Name(Tot, "100"),
                                            Name(Tot, "00"),
                                            Name(Tot, "-1"),
                                            Name(Tot, ""),
                                            Name(Tot, "0") + ".asm",
                                            Name(Tot, "0") + " ",
                                            Name("0" + Tot),
                                            Name("+" + Tot),
                                            Name("-" + Tot),
                                            Name("0"),
                                            Name("99999999999999999999"),
                                            Name(""),
                                            ".varnholt-" + Tot,
                                            ".varnholt--0",
                                            ".varnholt-",
                                            "x" + Name(Tot),
                                            ".Varnholt-" + Tot + "-0",
                                            "varnholt-" + Tot + "-0"};
    for (const std::string& n : Namen)
        Ordner.Anlegen(n, "of the user");
    Reste_Entfernen(Ordner.Pfad);
    for (const std::string& n : Namen)
        EXPECT_TRUE(Bleibt(n)) << n;
}
TEST_F(Reste, a_link_of_that_name_stays_and_what_it_leads_to)
{
    Ordner.Anlegen("user.asm", "NOP");
    fs::create_symlink(Ordner.Pfad / "user.asm", Ordner.Pfad / Name(Tot));
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_TRUE(Bleibt(Name(Tot)));
    EXPECT_EQ(Bytes_Von(Ordner.Pfad / "user.asm"), "NOP");
}
TEST_F(Reste, a_folder_behind_a_link_is_not_entered)
{
    const Arbeitsordner Anderswo;
    Anderswo.Anlegen(Name(Tot), "elsewhere");
    fs::create_symlink(Anderswo.Pfad, Ordner.Pfad / "samples");
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_EQ(Bytes_Von(Anderswo.Pfad / Name(Tot)), "elsewhere");
}
TEST_F(Reste, a_folder_that_was_being_filled_in_goes_and_nothing_behind_its_links)
{
    const Arbeitsordner Anderswo;
    Anderswo.Anlegen("a.asm", "NOP");
    Ordner.Anlegen(Name(Tot) + "/half.asm", "N");
    fs::create_symlink(Anderswo.Pfad, Ordner.Pfad / Name(Tot) / "link");
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_FALSE(Bleibt(Name(Tot)));
    EXPECT_EQ(Bytes_Von(Anderswo.Pfad / "a.asm"), "NOP");
}
TEST_F(Reste, deeper_folders_and_others_of_the_users_are_left_alone)
{
    Ordner.Anlegen("samples/deep/" + Name(Tot), "x");
    Ordner.Anlegen("mine/" + Name(Tot), "x");
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_TRUE(Bleibt("samples/deep/" + Name(Tot)));
    EXPECT_TRUE(Bleibt("mine/" + Name(Tot)));
}
TEST_F(Reste, a_killed_write_is_cleared_away_and_the_old_file_is_whole)
{
    const std::string Datei = Ordner.Anlegen("a.asm", "old");
    const pid_t       Kind  = ::fork();
    if (Kind == 0) { // as if killed between writing and renaming
        const fs::path Zwischen = Ordner.Pfad / Zwischen_Name(0);
        Ordner.Anlegen(Zwischen.filename().string(), "new");
        ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(Kind, nullptr, 0);
    ASSERT_EQ(Ordner.Inhalt().size(), 2u);
    Reste_Entfernen(Ordner.Pfad);
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"a.asm"});
    EXPECT_EQ(Bytes_Von(Datei), "old");
}
TEST_F(Reste, a_folder_that_is_not_there_is_no_harm)
{
    Reste_Entfernen(Ordner.Pfad / "none");
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad));
}

} // namespace
} // namespace varnholt::test
