// What leaves the program: locations, the mail, the help, and the notice when nobody takes them.
#include "core/web.h"

#include "core/commands.h"
#include "core/shared_state.h"
#include "core/version.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Web_Welt : public Welt {
protected:
    Web_Welt() { Programm_Pfad = Eigener.Name(""); }

    std::string Ort() const { return Umgebung.Orte.empty() ? "" : Umgebung.Orte.back(); }
    std::string Anlegen(const std::string& Unterordner, const std::string& Name) const
    {
        fs::create_directories(Ordner + Unterordner);
        std::ofstream(Ordner + Unterordner + "/" + Name) << "help";
        return Ordner + Unterordner + "/" + Name;
    }
    std::string Geoeffnet(void (*Befehl)(), const char* In) const
    {
        Sprache = In;
        Befehl();
        return Ort();
    }

private:
    Arbeitsordner      Eigener{};
    const std::string& Ordner = Programm_Pfad;
};

TEST(Prozent_Kodiert, keeps_letters_digits_and_four_signs)
{
    EXPECT_EQ(Prozent_Kodiert("Az09-._~"), "Az09-._~");
}
TEST(Prozent_Kodiert, writes_every_other_byte_as_two_digits)
{
    EXPECT_EQ(Prozent_Kodiert("a b&c?\r\n"), "a%20b%26c%3F%0D%0A");
    EXPECT_EQ(Prozent_Kodiert("\xC3\xA4%"), "%C3%A4%25");
}
TEST(Mail_Ort, holds_address_subject_and_body)
{
    EXPECT_EQ(Mail_Ort("a@b.example", "x y", "p&q"), "mailto:a@b.example?Subject=x%20y&Body=p%26q");
}

TEST_F(Web_Welt, a_location_goes_to_the_shell)
{
    CallWebSite("https://www.quelmark.example/x");
    EXPECT_EQ(Ort(), "https://www.quelmark.example/x");
    EXPECT_TRUE(Box.Hinweise.empty());
}
TEST_F(Web_Welt, a_location_that_nobody_takes_is_told)
{
    Umgebung.Nimmt_An = false;
    CallWebSite("https://x.example/");
    EXPECT_EQ(Box.Hinweise.back(), "https://x.example/ could not be opened.");
    Sprache = "D";
    CallWebSite("https://x.example/");
    EXPECT_EQ(Box.Hinweise.back(), "https://x.example/ konnte nicht geöffnet werden.");
}
TEST_F(Web_Welt, each_page_has_a_version_in_both_languages)
{
    for (const auto& Befehl :
         {MNU_S_Quelmark_Click, MNU_S_Update_Click, MNU_S_Forum_Click, MNU_S_Bücher_Click}) {
        EXPECT_TRUE(Geoeffnet(Befehl, "D").starts_with("https://www.quelmark.example/de/"));
        EXPECT_TRUE(Geoeffnet(Befehl, "E").starts_with("https://www.quelmark.example/en/"));
    }
}
TEST_F(Web_Welt, the_mail_has_subject_and_greeting_ready)
{
    const std::string Betreff = "?Subject=Varnholt%20" + std::string(Programm_Version);
    EXPECT_EQ(Geoeffnet(MNU_S_Mail_Click, "D"),
              "mailto:service@quelmark.example" + Betreff +
                  "&Body=Sehr%20geehrte%20Damen%20und%20Herren%2C%0D%0A%0D%0A");
    EXPECT_EQ(Geoeffnet(MNU_S_Mail_Click, "E"),
              "mailto:service@quelmark.example" + Betreff +
                  "&Body=Dear%20Sir%20or%20Madam%2C%0D%0A%0D%0A");
}
TEST_F(Web_Welt, the_help_opens_in_the_language_of_the_interface)
{
    const std::string Deutsch  = Anlegen("Hilfe", "Hilfe-Index.htm");
    const std::string Englisch = Anlegen("Help", "Help-Index.htm");
    EXPECT_EQ(Geoeffnet(MNU_Help_Click, "D"), Deutsch);
    EXPECT_EQ(Geoeffnet(MNU_Help_Click, "E"), Englisch);
}
TEST_F(Web_Welt, the_help_is_found_whatever_the_case_of_its_name)
{
    const std::string Datei = Anlegen("Help", "help-index.HTM");
    EXPECT_EQ(Geoeffnet(MNU_Help_Click, "E"), Datei);
}
TEST_F(Web_Welt, a_help_that_is_not_installed_is_told)
{
    MNU_Help_Click();
    EXPECT_EQ(Box.Hinweise.back(),
              "The help is not installed: " + Programm_Pfad + "Help/Help-Index.htm is missing.");
    Sprache = "D";
    MNU_Help_Click();
    EXPECT_EQ(Box.Hinweise.back(),
              "Die Hilfe ist nicht installiert: " + Programm_Pfad + "Hilfe/Hilfe-Index.htm fehlt.");
    EXPECT_TRUE(Umgebung.Orte.empty());
}
TEST_F(Web_Welt, the_short_help_stands_in_for_a_handbook_that_can_not_be_shown)
{
    const auto Offen = [this] { return Fenster.Formular_Sichtbar(Formular::F_Hilfe); };
    for (const char* s : {"D", "E"}) {
        Sprache = s;
        Fenster.Formular_Entladen(Formular::F_Hilfe);
        MNU_Help_Click();
        EXPECT_TRUE(Offen()) << s;
    }
    Fenster.Formular_Entladen(Formular::F_Hilfe);
    Anlegen("Help", "Help-Index.htm");
    MNU_Help_Click();
    EXPECT_FALSE(Offen());
    Umgebung.Nimmt_An = false;
    MNU_Help_Click();
    EXPECT_TRUE(Offen());
    EXPECT_TRUE(Box.Hinweise.back().ends_with("Help-Index.htm could not be opened."));
}
TEST_F(Web_Welt, the_information_is_name_and_version)
{
    MNU_Info_Click();
    EXPECT_EQ(Letzte_Meldung(), "Varnholt " + std::string(Programm_Version));
    Sprache = "D";
    MNU_Info_Click();
    EXPECT_EQ(Letzte_Meldung(), "Varnholt " + std::string(Programm_Version));
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}

} // namespace
} // namespace varnholt::test
