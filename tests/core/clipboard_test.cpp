// Cut, copy, paste and delete in the source text and the notes, and the way to the hex editor.
#include "core/clipboard.h"

#include "files/Textdatei.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Sprungmarken.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <algorithm>
#include <filesystem>
#include <stdlib.h>

namespace varnholt::test {
namespace {

constexpr std::int32_t Gruen = 0x119911;
constexpr std::int32_t Blau  = 0xDD1111;
constexpr std::int32_t Rot   = 0x0000FF;

// A clipboard and an editor that know every character.
class Reiche_Ablage : public Zwischenablage {
public:
    std::string Text() const override { return "?"; }
    void        Setzen(std::string_view) override {}
    std::string Text_UTF8() const override { return Inhalt; }
    void        Setzen_UTF8(std::string_view Text) override { Inhalt = Text; }
    std::string Inhalt{};
};
class Reiches_Feld : public Speicher_Text {
public:
    std::string Auswahl_Text_UTF8() const override { return "\xE4\xB8\xAD"; }
    void        Auswahl_Ersetzen_UTF8(std::string_view Neuer) override { Eingesetzt = Neuer; }
    std::string Eingesetzt{};
};

class Ablage_Welt : public Welt {
protected:
    Ablage_Welt()
    {
        std::filesystem::create_directory(Ordner.Pfad / "Undo");
        Programm_Pfad     = Ordner.Name("");
        Autosave_Zeitlich = false;
        Aktives_Fenster   = Fenster_Edit;
        Undo_Zuruecksetzen();
    }

    void Im_Editor(const std::string& Text, std::int64_t Anfang, std::int64_t Laenge)
    {
        Edit.Text_Setzen(Text);
        Edit.Auswaehlen(Anfang, Laenge);
    }
    void In_Den_Notizen(const std::string& Text, std::int64_t Anfang, std::int64_t Laenge)
    {
        Aktives_Fenster = Fenster_Notiz;
        Notiz.Text_Setzen(Text);
        Notiz.Auswaehlen(Anfang, Laenge);
    }
    // Nothing was changed and nothing was said.
    void Alles_Wie_Es_War() const
    {
        EXPECT_FALSE(Datei_Geaendert);
        EXPECT_FALSE(Text_Veraendert);
        EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
        EXPECT_EQ(Undo_Index, 0);
    }

    Arbeitsordner Ordner{};
};

// --- copy ----------------------------------------------------------------------------------------

TEST_F(Ablage_Welt, copy_puts_the_selection_on_the_clipboard)
{
    Im_Editor("MOV A,B", 4, 3);
    MNU_Kopieren_Click();
    EXPECT_EQ(Ablage.Inhalt, "A,B");
    EXPECT_EQ(Edit.Inhalt, "MOV A,B");
    Alles_Wie_Es_War();
}
TEST_F(Ablage_Welt, copy_of_an_empty_selection_does_nothing)
{
    Ablage.Inhalt = "before";
    Im_Editor("MOV A,B", 4, 0);
    MNU_Kopieren_Click();
    EXPECT_EQ(Ablage.Inhalt, "before");
}
TEST_F(Ablage_Welt, copy_takes_the_notes_when_they_are_active)
{
    Im_Editor("MOV", 0, 3);
    In_Den_Notizen("solder", 0, 6);
    MNU_Kopieren_Click();
    EXPECT_EQ(Ablage.Inhalt, "solder");
}
TEST_F(Ablage_Welt, other_windows_have_nothing_to_copy_cut_paste_or_delete)
{
    Im_Editor("MOV", 0, 3);
    Ablage.Inhalt = "x";
    for (const int Nummer : {0, Fenster_Spr, Fenster_EXRAM}) {
        Aktives_Fenster = Nummer;
        MNU_Kopieren_Click();
        MNU_Ausschneiden_Click();
        MNU_Einfügen_Click();
        MNU_Löschen_Click();
    }
    EXPECT_EQ(Ablage.Inhalt, "x");
    EXPECT_EQ(Edit.Inhalt, "MOV");
    Alles_Wie_Es_War();
}
TEST_F(Ablage_Welt, copy_works_during_a_session)
{
    Debugger_Aktiv = true;
    Im_Editor("MOV", 0, 3);
    MNU_Kopieren_Click();
    EXPECT_EQ(Ablage.Inhalt, "MOV");
}

// --- cut and delete ------------------------------------------------------------------------------

TEST_F(Ablage_Welt, cut_copies_deletes_and_marks_the_document_changed)
{
    Datei_Name   = "/a/x.asm";
    Text_Aktuell = true;
    Im_Editor("MOV A,B", 3, 4);
    MNU_Ausschneiden_Click();
    EXPECT_EQ(Ablage.Inhalt, " A,B");
    EXPECT_EQ(Edit.Inhalt, "MOV");
    EXPECT_TRUE(Datei_Geaendert && Text_Veraendert);
    EXPECT_FALSE(Text_Aktuell || Text_Sperre);
    EXPECT_TRUE(Ereignisse.Titel_Texte.back().starts_with("2:MC-Editor (*)"));
}
TEST_F(Ablage_Welt, cut_takes_a_snapshot_of_the_text_before)
{
    Im_Editor("MOV A,B\r\nRET\r\n", 0, 3);
    MNU_Ausschneiden_Click();
    EXPECT_EQ(Undo_Index, 1);
    EXPECT_EQ(Undo_Oben, 1);
    EXPECT_TRUE(Menue("MNU_Undo").Aktiv);
    EXPECT_TRUE(std::filesystem::exists(Ordner.Pfad / "Undo/Undo 0.rtf"));
}
TEST_F(Ablage_Welt, cut_in_the_notes_takes_no_snapshot)
{
    In_Den_Notizen("solder here", 0, 7);
    MNU_Ausschneiden_Click();
    EXPECT_EQ(Ablage.Inhalt, "solder ");
    EXPECT_EQ(Notiz.Inhalt, "here");
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_EQ(Undo_Index, 0);
}
TEST_F(Ablage_Welt, delete_takes_the_selection_and_leaves_the_clipboard)
{
    Ablage.Inhalt = "before";
    Im_Editor("MOV A,B", 3, 4);
    MNU_Löschen_Click();
    EXPECT_EQ(Edit.Inhalt, "MOV");
    EXPECT_EQ(Ablage.Inhalt, "before");
    EXPECT_TRUE(Datei_Geaendert);
}
TEST_F(Ablage_Welt, commands_in_the_notes_mark_both_editors_in_each_mode)
{
    const std::vector<std::string> Beide = {"1:Hex-Editor (*)/a/x.bin", "2:MC-Editor (*)/a/x.bin"};
    Datei_Name                           = "/a/x.bin";
    Ablage.Inhalt                        = "y";
    for (const int m : {Modus_Hex, Modus_MC})
        for (const auto Befehl : {MNU_Löschen_Click, MNU_Einfügen_Click, MNU_Ausschneiden_Click}) {
            Modus = m;
            Ereignisse.Titel_Texte.clear();
            Datei_Geaendert = true; // marked before, in one of them perhaps
            In_Den_Notizen("abc", 1, 1);
            Befehl();
            EXPECT_TRUE(Datei_Geaendert);
            auto Titel = Ereignisse.Titel_Texte;
            std::sort(Titel.begin(), Titel.end());
            Titel.erase(std::unique(Titel.begin(), Titel.end()), Titel.end());
            EXPECT_EQ(Titel, Beide);
        }
}
TEST_F(Ablage_Welt, the_locked_text_of_a_session_is_not_changed)
{
    Debugger_Aktiv = true;
    Ablage.Inhalt  = "x";
    Im_Editor("MOV", 0, 3);
    MNU_Ausschneiden_Click();
    MNU_Löschen_Click();
    MNU_Einfügen_Click();
    EXPECT_EQ(Edit.Inhalt, "MOV");
    EXPECT_EQ(Ablage.Inhalt, "x");
    Alles_Wie_Es_War();
}
TEST_F(Ablage_Welt, the_notes_stay_open_during_a_session)
{
    Debugger_Aktiv = true;
    Ablage.Inhalt  = "x";
    In_Den_Notizen("", 0, 0);
    MNU_Einfügen_Click();
    EXPECT_EQ(Notiz.Inhalt, "x");
}

// --- paste ---------------------------------------------------------------------------------------

TEST_F(Ablage_Welt, paste_replaces_the_selection_and_marks_the_document_changed)
{
    Text_Aktuell  = true;
    Ablage.Inhalt = "R0";
    Im_Editor("MOV A,B", 6, 1);
    MNU_Einfügen_Click();
    EXPECT_EQ(Edit.Inhalt, "MOV A,R0");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{8, 0}));
    EXPECT_TRUE(Datei_Geaendert && Text_Veraendert);
    EXPECT_FALSE(Text_Aktuell || Text_Sperre);
    EXPECT_EQ(Ereignisse.Titel_Texte.back().substr(0, 15), "2:MC-Editor (*)");
}
TEST_F(Ablage_Welt, paste_takes_a_snapshot_first)
{
    Ablage.Inhalt = "R0";
    Im_Editor("MOV", 3, 0);
    MNU_Einfügen_Click();
    EXPECT_EQ(Undo_Index, 1);
    EXPECT_EQ(Undo_Oben, 1);
    MNU_Undo_Click();
    EXPECT_EQ(Edit.Inhalt, "MOV");
}
TEST_F(Ablage_Welt, paste_in_the_notes_takes_no_snapshot)
{
    Ablage.Inhalt = "x";
    In_Den_Notizen("ab", 1, 0);
    MNU_Einfügen_Click();
    EXPECT_EQ(Notiz.Inhalt, "axb");
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_TRUE(Datei_Geaendert);
}
TEST_F(Ablage_Welt, an_empty_clipboard_leaves_the_selection)
{
    Im_Editor("MOV", 0, 3);
    MNU_Einfügen_Click();
    EXPECT_EQ(Edit.Inhalt, "MOV");
    Alles_Wie_Es_War();
}
TEST_F(Ablage_Welt, line_ends_from_outside_become_CR_LF)
{
    Ablage.Inhalt = "a\nb\rc\r\nd";
    Im_Editor("", 0, 0);
    MNU_Einfügen_Click();
    EXPECT_EQ(Edit.Inhalt, "a\r\nb\r\nc\r\nd");
}
TEST(Mit_CR_LF, ends_every_line_alike)
{
    EXPECT_EQ(Mit_CR_LF("a\n\n\r\n\r\rb"), "a\r\n\r\n\r\n\r\n\r\nb");
    EXPECT_EQ(Mit_CR_LF("a\n"), "a\r\n");
    EXPECT_EQ(Mit_CR_LF(""), "");
}
TEST_F(Ablage_Welt, all_lines_that_were_put_in_are_coloured)
{
    Ablage.Inhalt = "; one\nMark: NOP\n; two";
    Im_Editor("NOP\r\n", 5, 0);
    MNU_Einfügen_Click();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n; one\r\nMark: NOP\r\n; two");
    EXPECT_EQ(Edit.Farben({0, Edit.Laenge()}),
              (std::vector<Farbstelle_T>{{5, 5, Gruen}, {12, 5, Blau}, {23, 5, Gruen}}));
}
TEST_F(Ablage_Welt, jumpmarks_that_come_and_go_are_listed)
{
    Im_Editor("Alpha: NOP\r\n", 12, 0);
    Ablage.Inhalt = "Beta: NOP\r\n";
    MNU_Einfügen_Click();
    EXPECT_EQ(Sprungmarken_Anzahl, 2);
    Edit.Auswaehlen(0, 12);
    MNU_Löschen_Click();
    EXPECT_EQ(Sprungmarken_Anzahl, 1);
}
TEST_F(Ablage_Welt, text_copied_here_comes_back_with_its_colours)
{
    In_Den_Notizen("red and black", 0, 7);
    const Farbstelle_T Stelle{0, 3, Rot};
    Notiz.Faerben({&Stelle, 1});
    MNU_Kopieren_Click();
    Notiz.Auswaehlen(13, 0);
    MNU_Einfügen_Click();
    EXPECT_EQ(Notiz.Inhalt, "red and blackred and");
    EXPECT_EQ(Notiz.Farben({0, Notiz.Laenge()}),
              (std::vector<Farbstelle_T>{{0, 3, Rot}, {13, 3, Rot}}));
}
TEST_F(Ablage_Welt, remembered_text_of_several_lines_is_recognised_by_whatever_ends_its_lines)
{
    In_Den_Notizen("a\r\nb", 0, 4);
    const Farbstelle_T Stelle{3, 1, Rot};
    Notiz.Faerben({&Stelle, 1});
    MNU_Kopieren_Click();
    Ablage.Inhalt = "a\nb"; // as another system keeps it
    Notiz.Text_Setzen({});
    MNU_Einfügen_Click();
    EXPECT_EQ(Notiz.Farben({0, 4}), (std::vector<Farbstelle_T>{{3, 1, Rot}}));
}
TEST_F(Ablage_Welt, other_text_comes_without_the_remembered_colours)
{
    In_Den_Notizen("red", 0, 3);
    const Farbstelle_T Stelle{0, 3, Rot};
    Notiz.Faerben({&Stelle, 1});
    MNU_Kopieren_Click();
    Ablage.Inhalt = "rad";
    Notiz.Text_Setzen({});
    MNU_Einfügen_Click();
    EXPECT_EQ(Notiz.Inhalt, "rad");
    EXPECT_TRUE(Notiz.Farben({0, 3}).empty());
}
TEST_F(Ablage_Welt, characters_outside_Windows_1252_pass)
{
    Reiche_Ablage Reich;
    Reiches_Feld  Feld;
    Plattform.Ablage = &Reich;
    Plattform.Notiz  = &Feld;
    Aktives_Fenster  = Fenster_Notiz;
    Feld.Text_Setzen("?");
    Feld.Auswaehlen(0, 1);
    MNU_Kopieren_Click();
    EXPECT_EQ(Reich.Inhalt, "\xE4\xB8\xAD");
    MNU_Einfügen_Click();
    EXPECT_EQ(Feld.Eingesetzt, "\xE4\xB8\xAD");
}

// --- the hex editor ------------------------------------------------------------------------------

TEST_F(Ablage_Welt, in_the_hex_editor_delete_takes_bytes_out_of_the_image)
{
    Aktives_Fenster = Fenster_Hexedit;
    Modus           = Modus_Hex;
    Bild_Loeschen();
    Hex_Daten[10] = 0x42;
    Hex_Anzeige();
    Hexedit.AscII_Auswahl = {0, 5};
    MNU_Löschen_Click();
    EXPECT_EQ(Hex_Daten[5], 0x42);
    EXPECT_EQ(Hex_Daten[10], 0xFF);
}
TEST_F(Ablage_Welt, in_the_hex_editor_copy_cut_and_paste_use_its_panes)
{
    Aktives_Fenster = Fenster_Hexedit;
    Modus           = Modus_Hex;
    Bild_Loeschen();
    std::copy_n("ABCDEFGH", 8, Hex_Daten.begin());
    Hex_Anzeige();
    Hex_Aktives_Feld      = Feld_AscII;
    Hexedit.AscII_Auswahl = {0, 3};
    MNU_Kopieren_Click();
    EXPECT_EQ(Ablage.Inhalt, "ABC");
    Hexedit.AscII_Auswahl = {3, 5};
    MNU_Einfügen_Click(); // three bytes over five
    EXPECT_EQ(std::string(Hex_Daten.begin(), Hex_Daten.begin() + 7), "ABCABC\xFF");
    Hexedit.AscII_Auswahl = {0, 3};
    MNU_Ausschneiden_Click();
    EXPECT_EQ(std::string(Hex_Daten.begin(), Hex_Daten.begin() + 4), "ABC\xFF");
    EXPECT_EQ(Ablage.Inhalt, "ABC");
}

} // namespace
} // namespace varnholt::test
