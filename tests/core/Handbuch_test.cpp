// The handbook that is installed with the program: both languages have the same chapters, every
// page can be reached, and every link and picture leads somewhere.
#include "core/codepage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <ostream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace varnholt {
namespace {

namespace fs = std::filesystem;

struct Ausgabe_T {
    const char* Ordner;
    const char* Verzeichnis; // first page, which F1 opens
    const char* Sprache;     // of the attribute lang
    const char* Bilder;
};
void PrintTo(const Ausgabe_T& a, std::ostream* Strom) { *Strom << a.Ordner; }

constexpr Ausgabe_T Englisch{"Help", "Help-Index.htm", "en", "images"};
constexpr Ausgabe_T Deutsch{"Hilfe", "Hilfe-Index.htm", "de", "bilder"};

// The chapters, in the order of reading.
constexpr std::pair<const char*, const char*> Kapitel[] = {{"first-steps", "erste-schritte"},
                                                           {"editor", "editor"},
                                                           {"assembler", "assembler"},
                                                           {"statements", "anweisungen"},
                                                           {"instructions", "befehle"},
                                                           {"simulator", "simulator"},
                                                           {"hex-editor", "hex-editor"},
                                                           {"devices", "geraete"},
                                                           {"file-formats", "dateiformate"},
                                                           {"options", "optionen"},
                                                           {"command-line", "kommandozeile"},
                                                           {"messages", "meldungen"}};

fs::path Ordner_Von(const Ausgabe_T& a) { return fs::path(VARNHOLT_DATA) / a.Ordner; }

std::string Inhalt(const fs::path& Datei)
{
    std::ostringstream Text;
    Text << std::ifstream(Datei, std::ios::binary).rdbuf();
    return Text.str();
}

std::vector<std::string> Treffer(const std::string& Text, const std::string& Muster)
{
    const std::regex         Regel(Muster, std::regex::icase);
    std::vector<std::string> Liste;
    for (std::sregex_iterator i(Text.begin(), Text.end(), Regel), Ende; i != Ende; ++i)
        Liste.push_back((*i)[1].str());
    return Liste;
}

std::vector<std::string> Verweise(const std::string& Text)
{
    return Treffer(Text, "<a\\s[^>]*href=\"([^\"]*)\"");
}

std::vector<std::string> Anker(const std::string& Text)
{
    return Treffer(Text, "\\sid=\"([^\"]*)\"");
}

bool Enthaelt(const std::vector<std::string>& Liste, const std::string& Was)
{
    return std::find(Liste.begin(), Liste.end(), Was) != Liste.end();
}

std::map<std::string, std::string> Seiten(const Ausgabe_T& a)
{
    std::map<std::string, std::string> Alle;
    for (const auto& Eintrag : fs::directory_iterator(Ordner_Von(a)))
        if (Eintrag.path().extension() == ".htm")
            Alle[Eintrag.path().filename().string()] = Inhalt(Eintrag.path());
    return Alle;
}

std::set<std::string> Erwartete_Seiten(const Ausgabe_T& a)
{
    const bool            Fremd = std::string(a.Sprache) == "en";
    std::set<std::string> Namen{a.Verzeichnis};
    for (const auto& [E, D] : Kapitel)
        Namen.insert(std::string(Fremd ? E : D) + ".htm");
    return Namen;
}

class Handbuch : public ::testing::TestWithParam<Ausgabe_T> {
protected:
    void SetUp() override
    {
        Alle = Seiten(GetParam());
        ASSERT_TRUE(Alle.contains(GetParam().Verzeichnis));
    }
    std::map<std::string, std::string> Alle{}; // contents by name
};

INSTANTIATE_TEST_SUITE_P(Sprachen,
                         Handbuch,
                         ::testing::Values(Englisch, Deutsch),
                         [](const auto& i) { return std::string(i.param.Ordner); });

TEST_P(Handbuch, has_the_chapters_of_the_other_language_and_no_others)
{
    std::set<std::string> Namen;
    for (const auto& [Name, Text] : Alle)
        Namen.insert(Name);
    EXPECT_EQ(Namen, Erwartete_Seiten(GetParam()));
}

TEST_P(Handbuch, every_link_leads_to_a_page_and_to_a_place_on_it)
{
    for (const auto& [Name, Text] : Alle)
        for (const std::string& Verweis : Verweise(Text)) {
            const std::size_t Raute = Verweis.find('#');
            const std::string Datei = Raute == 0 ? Name : Verweis.substr(0, Raute);
            const fs::path    Ziel  = Ordner_Von(GetParam()) / Datei;
            EXPECT_TRUE(fs::is_regular_file(Ziel)) << Name << " leads to " << Verweis;
            EXPECT_TRUE(Raute == std::string::npos ||
                        Inhalt(Ziel).find(" id=\"" + Verweis.substr(Raute + 1) + "\"") !=
                            std::string::npos)
                << Name << " leads to " << Verweis;
        }
}

TEST_P(Handbuch, every_page_is_reached_from_the_first_one)
{
    const std::vector<std::string> Erste = Verweise(Alle[GetParam().Verzeichnis]);
    for (const auto& [Name, Text] : Alle)
        if (Name != GetParam().Verzeichnis) {
            EXPECT_TRUE(Enthaelt(Erste, Name)) << Name;
            EXPECT_TRUE(Enthaelt(Verweise(Text), GetParam().Verzeichnis)) << Name;
        }
}

TEST_P(Handbuch, previous_and_next_walk_through_all_chapters)
{
    const std::string Vor  = "<a\\shref=\"([^\"]*)\" rel=\"prev\"";
    const std::string Nach = "<a\\shref=\"([^\"]*)\" rel=\"next\"";
    std::string       Name = GetParam().Verzeichnis;
    std::size_t       Zahl = 0;
    for (auto Weiter = Treffer(Alle[Name], Nach); !Weiter.empty() && Zahl <= std::size(Kapitel);
         Weiter      = Treffer(Alle[Name], Nach), ++Zahl) {
        ASSERT_TRUE(Alle.contains(Weiter[0])) << Weiter[0];
        const auto Zurueck = Treffer(Alle[Weiter[0]], Vor);
        if (Zahl > 0) {
            EXPECT_TRUE(!Zurueck.empty() && Zurueck[0] == Name) << Weiter[0];
        }
        Name = Weiter[0];
    }
    EXPECT_EQ(Zahl, std::size(Kapitel));
}

TEST_P(Handbuch, every_picture_is_there_and_says_in_words_what_it_shows)
{
    std::set<std::string> Gezeigt;
    for (const auto& [Name, Text] : Alle)
        for (const std::string& Bild : Treffer(Text, "(<img\\s[^>]*>)")) {
            const auto Quelle = Treffer(Bild, "src=\"([^\"]*)\"");
            ASSERT_EQ(Quelle.size(), 1U) << Bild;
            EXPECT_TRUE(fs::is_regular_file(Ordner_Von(GetParam()) / Quelle[0])) << Quelle[0];
            EXPECT_EQ(Treffer(Bild, "alt=\"([^\"]+)\"").size(), 1U) << Name << ": " << Bild;
            Gezeigt.insert(fs::path(Quelle[0]).filename().string());
        }
    for (const auto& e : fs::directory_iterator(Ordner_Von(GetParam()) / GetParam().Bilder)) {
        EXPECT_TRUE(Gezeigt.contains(e.path().filename().string())) << e.path();
        EXPECT_LT(fs::file_size(e.path()), 60U * 1024U) << e.path();
    }
}

TEST_P(Handbuch, every_page_names_its_language_its_title_and_the_style_sheet)
{
    for (const auto& [Name, Text] : Alle) {
        EXPECT_TRUE(Text.starts_with("<!DOCTYPE html>\n")) << Name;
        EXPECT_EQ(Treffer(Text, "<html lang=\"([^\"]*)\">"),
                  std::vector<std::string>{GetParam().Sprache})
            << Name;
        EXPECT_EQ(Treffer(Text, "<meta charset=\"([^\"]*)\">"), std::vector<std::string>{"utf-8"})
            << Name;
        EXPECT_EQ(Treffer(Text, "<title>([^<]*Varnholt[^<]*)</title>").size(), 1U) << Name;
        EXPECT_EQ(Treffer(Text, "<(h1)>").size(), 1U) << Name;
        EXPECT_EQ(Treffer(Text, "<link rel=\"stylesheet\" href=\"(stil\\.css)\">").size(), 1U)
            << Name;
        EXPECT_TRUE(Ist_UTF8(Text)) << Name;
    }
}

TEST_P(Handbuch, titles_differ_from_page_to_page)
{
    std::set<std::string> Titel;
    for (const auto& [Name, Text] : Alle)
        for (const std::string& t : Treffer(Text, "<title>([^<]*)</title>"))
            Titel.insert(t);
    EXPECT_EQ(Titel.size(), Alle.size());
}

TEST_P(Handbuch, no_page_runs_a_script_or_fetches_anything_from_elsewhere)
{
    for (const auto& [Name, Text] : Alle) {
        EXPECT_TRUE(Treffer(Text, "<(script|iframe|object|embed|form)\\b").empty()) << Name;
        EXPECT_TRUE(Treffer(Text, "<[^>]*\\s(on[a-z]+)=").empty()) << Name;
        EXPECT_TRUE(Treffer(Text, "(?:src|href)=\"([a-z]+:[^\"]*)\"").empty()) << Name;
    }
}

// Elements that are opened, in their order, are closed the other way round.
TEST_P(Handbuch, elements_are_closed_as_they_were_opened)
{
    const std::set<std::string> Leere{"meta", "link", "img", "br", "hr", "col"};
    for (const auto& [Name, Text] : Alle) {
        std::vector<std::string> Offene;
        for (const std::string& Element : Treffer(Text, "<(/?[a-z][a-z0-9]*)[^>]*>")) {
            if (Element[0] != '/') {
                if (!Leere.contains(Element))
                    Offene.push_back(Element);
                continue;
            }
            ASSERT_FALSE(Offene.empty()) << Name << ": " << Element;
            ASSERT_EQ("/" + Offene.back(), Element) << Name << ", depth " << Offene.size();
            Offene.pop_back();
        }
        EXPECT_TRUE(Offene.empty()) << Name;
    }
}

TEST_P(Handbuch, every_place_on_a_page_has_a_name_of_its_own)
{
    for (const auto& [Name, Text] : Alle) {
        const auto Alle_Anker = Anker(Text);
        EXPECT_EQ(std::set<std::string>(Alle_Anker.begin(), Alle_Anker.end()).size(),
                  Alle_Anker.size())
            << Name;
    }
}

TEST(Handbuecher, both_languages_look_the_same)
{
    const std::string Stil = Inhalt(Ordner_Von(Englisch) / "stil.css");
    EXPECT_FALSE(Stil.empty());
    EXPECT_EQ(Stil, Inhalt(Ordner_Von(Deutsch) / "stil.css"));
    EXPECT_NE(Stil.find("prefers-color-scheme: dark"), std::string::npos);
    EXPECT_NE(Stil.find("@media print"), std::string::npos);
}

// A chapter that grew in one language only has more in it than the other. Some messages exist in
// German only: their chapter has the same sections, but not as many entries.
TEST(Handbuecher, a_chapter_has_as_many_sections_entries_and_rows_in_both_languages)
{
    for (const auto& [E, D] : Kapitel) {
        const std::string Hier      = Inhalt(Ordner_Von(Englisch) / (std::string(E) + ".htm"));
        const std::string Dort      = Inhalt(Ordner_Von(Deutsch) / (std::string(D) + ".htm"));
        const bool        Meldungen = std::string(E) == "messages";
        for (const char* Was : {"h2", "h3", "tr", "li", "img", "dt"}) {
            const std::string Muster = std::string("<(") + Was + ")\\b";
            const bool        Frei   = Meldungen && std::string(Was) == "dt";
            EXPECT_TRUE(Frei || Treffer(Hier, Muster).size() == Treffer(Dort, Muster).size())
                << E << " " << Was;
        }
    }
}

} // namespace
} // namespace varnholt
