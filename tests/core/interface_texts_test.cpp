// The captions of both languages, and what a change of language leaves alone.
#include "core/interface_texts.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/shared_state.h"
#include "core/version.h"
#include "programmer/Geraete.h"
#include "support/Beschriftungen.h"
#include "support/scripted_platform.h"

namespace varnholt::test {
namespace {

class Texte_Welt : public Welt {
protected:
    static const Menue_Zustand_T& Eintrag(const std::string& Name)
    {
        return Menues.Eintraege.at(Menue_Platz(Name));
    }
    static void Geraet_Waehlen()
    {
        Geraete_Tabelle[0].Name = "AT89C51";
        IC_Nummer               = 0;
    }
};

TEST_F(Texte_Welt, every_caption_in_German)
{
    Sprache_Deutsch();
    for (const Beschriftung& b : Menue_Texte)
        EXPECT_EQ(Eintrag(b.Name).Titel, b.D) << b.Name;
}
TEST_F(Texte_Welt, every_caption_in_English)
{
    Sprache_Englisch();
    for (const Beschriftung& b : Menue_Texte)
        EXPECT_EQ(Eintrag(b.Name).Titel, b.E) << b.Name;
}
TEST_F(Texte_Welt, every_entry_but_separators_and_recent_files_has_a_caption_in_both)
{
    for (const auto& Sprache_Waehlen : {Sprache_Deutsch, Sprache_Englisch}) {
        Sprache_Waehlen();
        for (std::size_t i = 0; i < Menue_Anzahl; ++i) {
            const Menue_Eintrag_T& e    = Menue_Tabelle[i];
            const bool             Leer = e.Trennlinie() || e.Name.starts_with("MNU_Datei1") ||
                              e.Name == "MNU_Datei2" || e.Name == "MNU_Datei3";
            EXPECT_EQ(Menues.Eintraege[i].Titel.empty(), Leer) << e.Name;
        }
    }
}
TEST_F(Texte_Welt, the_language_is_kept_and_ticked)
{
    Sprache_Deutsch();
    EXPECT_EQ(Sprache, "D");
    EXPECT_TRUE(Menue("MNU_Deutsch").Haken);
    EXPECT_FALSE(Menue("MNU_Englisch").Haken);
    Sprache_Englisch();
    EXPECT_EQ(Sprache, "E");
    EXPECT_FALSE(Menue("MNU_Deutsch").Haken);
    EXPECT_TRUE(Menue("MNU_Englisch").Haken);
}
TEST_F(Texte_Welt, the_language_menu_mends_a_damaged_language)
{
    Sprache = "?";
    Sprache_Deutsch();
    EXPECT_EQ(Menue("MNU_Datei").Titel, "Datei");
}
TEST_F(Texte_Welt, the_device_stays_in_the_caption_of_the_programmer_menu)
{
    Geraet_Waehlen();
    Sprache_Deutsch();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Brenner (AT89C51)");
    Sprache_Englisch();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer (AT89C51)");
}
TEST_F(Texte_Welt, dropping_the_device_drops_it_from_the_caption)
{
    Geraet_Waehlen();
    IC_Titel_Zeigen();
    IC_Typ_Löschen();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer");
    Sprache = "D";
    IC_Typ_Löschen();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Brenner");
}
TEST_F(Texte_Welt, a_damaged_language_leaves_the_caption_of_the_programmer_menu)
{
    Sprache_Deutsch();
    Sprache = "?";
    IC_Titel_Zeigen();
    EXPECT_EQ(Menue("MNU_IC").Titel, "Brenner");
}
TEST_F(Texte_Welt, the_recent_files_are_not_touched)
{
    Letzte_Datei = {"/a/one.asm", "", ""};
    Letzte_Dateien_Zeigen();
    for (const auto& Sprache_Waehlen : {Sprache_Deutsch, Sprache_Englisch}) {
        Sprache_Waehlen();
        EXPECT_EQ(Menue("MNU_Datei1").Titel, "/a/one.asm");
        EXPECT_EQ(Menue("MNU_Datei2").Titel, "");
        EXPECT_TRUE(Menue("MNU_Datei1").Sichtbar);
        EXPECT_FALSE(Menue("MNU_Datei2").Sichtbar);
    }
}
TEST_F(Texte_Welt, the_title_is_product_version_and_year)
{
    Sprache_Deutsch();
    EXPECT_EQ(Fenster.Titel, "Varnholt " + std::string(Programm_Version) + " (2026)");
    Fenster.Titel.clear();
    Sprache_Englisch();
    EXPECT_EQ(Fenster.Titel, "Varnholt " + std::string(Programm_Version) + " (2026)");
}
TEST_F(Texte_Welt, the_version_is_three_numbers)
{
    EXPECT_EQ(std::count(Programm_Version.begin(), Programm_Version.end(), '.'), 2);
    EXPECT_EQ(Programm_Version.find_first_not_of("0123456789."), std::string_view::npos);
}
TEST_F(Texte_Welt, every_tool_tip_in_both_languages)
{
    Sprache_Deutsch();
    for (const Werkzeug_Beschriftung& h : Werkzeug_Texte)
        EXPECT_EQ(Werkzeug(h.Nummer).Hinweis, h.D) << h.Nummer;
    Sprache_Englisch();
    for (const Werkzeug_Beschriftung& h : Werkzeug_Texte)
        EXPECT_EQ(Werkzeug(h.Nummer).Hinweis, h.E) << h.Nummer;
}
TEST_F(Texte_Welt, the_tool_tip_of_the_mode_button_follows_the_mode)
{
    Modus = Modus_Hex;
    Sprache_Deutsch();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemblieren");
    Sprache_Englisch();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemble");
}
TEST_F(Texte_Welt, the_filter_of_the_file_dialog_has_six_entries)
{
    Sprache_Deutsch();
    EXPECT_EQ(Datei_Filter,
              "Assembler (*.asm; *.txt; *.a51)|*.asm; *.txt; *.a51|Binär (*.bin; *._51)|*.bin; "
              "*._51|Intel-Hex (*.hex; *.ihx)|*.hex; *.ihx|Motorola-S-Record (*.mhx)|*.mhx|Dat-Hex "
              "(*.dat)|*.dat|Alle Dateien (*.*)|*.*");
    Sprache_Englisch();
    EXPECT_EQ(Datei_Filter,
              "Assembler (*.asm; *.txt; *.a51)|*.asm; *.txt; *.a51|Binary (*.bin; *._51)|*.bin; "
              "*._51|Intel-hex (*.hex; *.ihx)|*.hex; *.ihx|Motorola-S-Record (*.mhx)|*.mhx|Dat-Hex "
              "(*.dat)|*.dat|All files (*.*)|*.*");
}
TEST_F(Texte_Welt, the_windows_that_stay_open_get_their_captions)
{
    Sprache_Deutsch();
    EXPECT_EQ(Ereignisse.Titel_Texte,
              (std::vector<std::string>{
                  "6:Notizen", "5:Sprungmarken", "4:Basic Befehle", "3:MCS-51 Befehle"}));
    Ereignisse.Titel_Texte.clear();
    Sprache_Englisch();
    EXPECT_EQ(Ereignisse.Titel_Texte,
              (std::vector<std::string>{
                  "6:Notes", "5:Jumpmarks", "4:Basic Instructions", "3:MCS-51 instructions"}));
}
TEST_F(Texte_Welt, the_headings_of_the_reference_windows)
{
    EXPECT_EQ(Fester_Text(Bef_Spalten[1]), "Mnemonic");
    EXPECT_EQ(Fester_Text(Basic_Bef_Spalten[2]), "Cycles");
    Sprache = "D";
    EXPECT_EQ(Fester_Text(Bef_Spalten[0]), "Hex");
    EXPECT_EQ(Fester_Text(Bef_Spalten[1]), "Mnemonik");
    EXPECT_EQ(Fester_Text(Bef_Spalten[2]), "Bytes");
    EXPECT_EQ(Fester_Text(Bef_Spalten[3]), "Zyklen");
    EXPECT_EQ(Fester_Text(Basic_Bef_Spalten[0]), "Typ");
    EXPECT_EQ(Fester_Text(Basic_Bef_Spalten[1]), "Bytes");
    EXPECT_EQ(Fester_Text(Basic_Bef_Spalten[2]), "Zyklen");
    Sprache = "?";
    EXPECT_EQ(Fester_Text(Bef_Spalten[0]), "");
}

} // namespace
} // namespace varnholt::test
