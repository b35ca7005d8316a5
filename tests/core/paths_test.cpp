// Names that come out of texts, and the program folder.
#include "core/paths.h"
#include "support/Arbeitsordner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace varnholt {
namespace {

namespace fs = std::filesystem;

class Pfade : public ::testing::Test {
protected:
    Pfade()
    {
        Merken("VARNHOLT_HOME", Alt_Home);
        Merken("XDG_DATA_HOME", Alt_XDG);
    }
    ~Pfade() override
    {
        Zurueck("VARNHOLT_HOME", Alt_Home);
        Zurueck("XDG_DATA_HOME", Alt_XDG);
    }
    void Anlegen(const std::string& Name) const
    {
        fs::create_directories((Ordner / Name).parent_path());
        std::ofstream(Ordner / Name) << "x";
    }
    static void Merken(const char* Name, std::string& Wert)
    {
        Wert = std::getenv(Name) != nullptr ? std::getenv(Name) : "";
        unsetenv(Name);
    }
    static void Zurueck(const char* Name, const std::string& Wert)
    {
        if (Wert.empty())
            unsetenv(Name);
        else
            setenv(Name, Wert.c_str(), 1);
    }

    varnholt::test::Arbeitsordner Eigener{};
    const fs::path&               Ordner = Eigener.Pfad;
    std::string                   Alt_Home{}, Alt_XDG{};
};

TEST_F(Pfade, a_backslash_separates_folders)
{
    EXPECT_EQ(Pfad_Aus_Text("a\\b/c.inc"), fs::path("a/b/c.inc"));
}

TEST_F(Pfade, an_exact_name_wins_over_one_of_another_case)
{
    Anlegen("Chip.mc");
    Anlegen("chip.mc");
    EXPECT_EQ(Datei_Suchen(Ordner, "chip.mc"), Ordner / "chip.mc");
    EXPECT_EQ(Datei_Suchen(Ordner, "Chip.mc"), Ordner / "Chip.mc");
}

TEST_F(Pfade, without_an_exact_name_the_case_of_file_and_folders_is_ignored)
{
    Anlegen("Teile/Chip.MC");
    EXPECT_EQ(Datei_Suchen(Ordner, "TEILE\\chip.mc"), Ordner / "Teile/Chip.MC");
}

TEST_F(Pfade, folders_and_missing_names_are_no_files)
{
    Anlegen("a/b");
    EXPECT_FALSE(Datei_Suchen(Ordner, "a"));
    EXPECT_FALSE(Datei_Suchen(Ordner, "c"));
    EXPECT_FALSE(Datei_Suchen(Ordner / "nirgends", "c"));
    EXPECT_FALSE(Datei_Suchen(Ordner, ""));
}

TEST_F(Pfade, the_environment_variable_names_the_program_folder)
{
    setenv("VARNHOLT_HOME", Ordner.c_str(), 1);
    EXPECT_EQ(Programm_Pfad_Bestimmen(), Ordner.string() + "/");
}

TEST_F(Pfade, without_program_files_beside_the_executable_the_users_data_folder_is_made)
{
    setenv("XDG_DATA_HOME", Ordner.c_str(), 1);
    EXPECT_EQ(Programm_Pfad_Bestimmen(), (Ordner / "varnholt").string() + "/");
    EXPECT_TRUE(fs::is_directory(Ordner / "varnholt"));
}

} // namespace
} // namespace varnholt
