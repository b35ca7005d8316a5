// The note file beside a document: rich text, older files of plain text, and what is never lost.
#include "files/Notizen.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "files/Dateien_Welt.h"
#include "files/Dateizugriff.h"
#include "files/Rtf.h"

#include <filesystem>
#include <string>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// A control that knows every look, as that of the window does.
class Reiches_Feld : public Speicher_Text {
public:
    void Text_Setzen(std::string Neuer) override { Text_Setzen_UTF8(Nach_UTF8(Neuer)); }
    void Text_Setzen_UTF8(std::string_view Neuer) override { Reich_Setzen(Reich_Aus(Neuer, {})); }
    std::string  Text_UTF8() const override { return Reiner_Text(Ganz); }
    Reich_Text_T Reicher_Text() const override { return Ganz; }
    void         Reich_Setzen(const Reich_Text_T& Neuer) override
    {
        Ganz   = Neuer;
        Inhalt = Aus_UTF8(Reiner_Text(Neuer));
    }
    Reich_Text_T Ganz{{Absatz_T{}}};
};

class Notizen_Welt : public Dateien_Welt {
protected:
    Notizen_Welt() { Plattform.Notiz = &Feld; }

    std::string         Notizen_Bytes() const { return Bytes_Von(Ordner.Name("a.not")); }
    static Reich_Text_T Fetter_Text(const char* Text)
    {
        Zeichen_Bild_T Fett;
        Fett.Fett = true;
        return {{{{{Text, Fett}}, {}}}};
    }
    // Loads a document with notes of those bytes.
    void Mit_Notizen(const std::string& Bytes)
    {
        Ordner.Anlegen("a.not", Bytes);
        Laden("a.bin", "x");
    }

    Reiches_Feld Feld{};
};

// --- saving --------------------------------------------------------------------------------------

TEST_F(Notizen_Welt, are_saved_as_rich_text_beside_the_document)
{
    Feld.Reich_Setzen(Fetter_Text("solder"));
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), Rtf_Schreiben(Fetter_Text("solder")));
    EXPECT_EQ(Rtf_Lesen(Notizen_Bytes()).Text, Fetter_Text("solder"));
}
TEST_F(Notizen_Welt, are_saved_with_a_source_text_too)
{
    Modus = Modus_MC;
    Feld.Reich_Setzen(Fetter_Text("solder"));
    Speichern("a.asm");
    EXPECT_EQ(Rtf_Lesen(Notizen_Bytes()).Text, Fetter_Text("solder"));
}
TEST_F(Notizen_Welt, of_a_control_of_plain_text_are_rich_text_as_well)
{
    Plattform.Notiz = &Notiz;
    Notiz.Inhalt    = "L\xF6ten\r\nhere";
    Speichern("a.bin");
    EXPECT_EQ(Reiner_Text(Rtf_Lesen(Notizen_Bytes()).Text), "L\xC3\xB6ten\r\nhere");
}
TEST_F(Notizen_Welt, of_a_short_name_stay_in_its_folder)
{
    Feld.Text_Setzen("solder");
    Speichern("abc");
    EXPECT_EQ(Reiner_Text(Rtf_Lesen(Bytes_Von(Ordner.Name("abc.not"))).Text), "solder");
    EXPECT_FALSE(Datei_Geaendert);
}
TEST_F(Notizen_Welt, that_are_empty_leave_an_existing_file_alone)
{
    Ordner.Anlegen("a.not", "old");
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), "old");
}
TEST_F(Notizen_Welt, do_not_go_over_a_document_of_that_name)
{
    Setzen(0, {1});
    Feld.Text_Setzen("notes");
    EXPECT_EQ(Speichern("a.not").size(), 256u);
}
TEST_F(Notizen_Welt, that_can_not_be_written_leave_the_document_changed)
{
    Datei_Geaendert = true;
    Feld.Text_Setzen("notes");
    fs::create_directory(Ordner.Pfad / "a.not");
    Setzen(0, {1});
    EXPECT_EQ(Speichern("a.bin").size(), 256u);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
    EXPECT_EQ(Box.Hinweise.back(),
              "The file " + Ordner.Name("a.not") + " could not be written: it is a folder.");
    // With the folder out of the way the next save succeeds.
    fs::remove(Ordner.Pfad / "a.not");
    Speichern("a.bin");
    EXPECT_EQ(Reiner_Text(Rtf_Lesen(Notizen_Bytes()).Text), "notes");
}

// --- loading -------------------------------------------------------------------------------------

TEST_F(Notizen_Welt, are_loaded_with_their_look)
{
    Mit_Notizen("{\\rtf1\\ansi{\\fonttbl{\\f0 A;}{\\f1 Courier;}}{\\colortbl;\\red255;}"
                "\\f1\\fs24\\cf1\\b L\\'f6ten\\par\\plain here}");
    EXPECT_EQ(
        Feld.Ganz.Absaetze.at(0).Stuecke,
        (std::vector<Text_Stueck_T>{{"L\xC3\xB6ten", {"Courier", 24, 0xFF, true, false, false}}}));
    EXPECT_EQ(Feld.Text_UTF8(), "L\xC3\xB6ten\r\nhere");
    EXPECT_FALSE(Datei_Geaendert);
}
TEST_F(Notizen_Welt, of_plain_text_still_load)
{
    Mit_Notizen("L\xC3\xB6ten\nhere \xE4\xB8\xAD\n");
    EXPECT_EQ(Feld.Text_UTF8(), "L\xC3\xB6ten\r\nhere \xE4\xB8\xAD\r\n");
    Mit_Notizen("L\xF6ten\r\n");
    EXPECT_EQ(Feld.Text_UTF8(), "L\xC3\xB6ten\r\n");
}
TEST_F(Notizen_Welt, that_were_damaged_are_shown_as_far_as_they_go)
{
    Mit_Notizen("{\\rtf1 one{\\b two\\par thr");
    EXPECT_EQ(Feld.Text_UTF8(), "onetwo\r\nthr");
    EXPECT_TRUE(Box.Hinweise.empty());
}
TEST_F(Notizen_Welt, of_the_document_before_do_not_stay)
{
    Mit_Notizen(Rtf_Schreiben(Fetter_Text("old")));
    Laden("b.bin", "x");
    EXPECT_EQ(Feld.Text_UTF8(), "");
    Speichern("b.bin");
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "b.not"));
}

// --- there and back ------------------------------------------------------------------------------

TEST_F(Notizen_Welt, that_nobody_changed_are_the_same_to_the_byte)
{
    // With things that the program doesn't show.
    const std::string Fremd = "{\\rtf1{\\*\\generator X;}{\\pict 0102}a\\foo b{\\footnote c}}\n\n";
    Mit_Notizen(Fremd);
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), Fremd);
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), Fremd);
}
TEST_F(Notizen_Welt, that_nobody_changed_go_along_under_another_name)
{
    const std::string Fremd = "{\\rtf1{\\pict 0102}a}";
    Mit_Notizen(Fremd);
    Speichern("b.bin");
    EXPECT_EQ(Bytes_Von(Ordner.Name("b.not")), Fremd);
}
TEST_F(Notizen_Welt, that_were_changed_are_written_anew)
{
    Mit_Notizen("{\\rtf1{\\pict 0102}{\\b a}}");
    Reich_Text_T Neu = Feld.Reicher_Text();
    Anfuegen(Neu.Absaetze[0], "b", {});
    Feld.Reich_Setzen(Neu);
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), Rtf_Schreiben(Neu));
}
TEST_F(Notizen_Welt, whose_look_alone_was_changed_are_written_anew)
{
    Mit_Notizen("{\\rtf1 a}");
    Feld.Reich_Setzen(Fetter_Text("a"));
    Speichern("a.bin");
    EXPECT_EQ(Rtf_Lesen(Notizen_Bytes()).Text, Fetter_Text("a"));
}
TEST_F(Notizen_Welt, of_plain_text_become_rich_text_with_the_next_save)
{
    Mit_Notizen("L\xC3\xB6ten \xE4\xB8\xAD\n");
    Speichern("a.bin");
    EXPECT_TRUE(Ist_Rtf(Notizen_Bytes()));
    EXPECT_EQ(Reiner_Text(Rtf_Lesen(Notizen_Bytes()).Text), "L\xC3\xB6ten \xE4\xB8\xAD\r\n");
}
TEST_F(Notizen_Welt, typed_after_New_have_nothing_of_the_old_file)
{
    Mit_Notizen("{\\rtf1{\\pict 0102}a}");
    MNU_Neu_Click();
    Feld.Text_Setzen("a");
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), Rtf_Schreiben(Reich_Aus("a", {})));
}

// --- files that are too long ---------------------------------------------------------------------

TEST_F(Notizen_Welt, that_are_too_long_stay_as_they_are_with_a_notice)
{
    std::string Lang = "{\\rtf1 ";
    for (std::size_t i = 0; i < Rtf_Grenzen_T{}.Absaetze; ++i)
        Lang += "\\par";
    Lang += " end}";
    Mit_Notizen(Lang);
    const std::string Name = Ordner.Name("a.not");
    EXPECT_EQ(Box.Hinweise.back(),
              "The notes " + Name + " are too long: only their beginning is shown.");
    Speichern("a.bin"); // unchanged: nothing to tell
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
    EXPECT_EQ(Box.Hinweise.size(), 1u);

    Feld.Text_Setzen("typed");
    Datei_Geaendert = true;
    Speichern("a.bin");
    EXPECT_EQ(Notizen_Bytes(), Lang);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Box.Hinweise.back(),
              "The notes were not saved: " + Name + " could not be read completely.");

    Speichern("b.bin"); // another file takes them
    EXPECT_EQ(Reiner_Text(Rtf_Lesen(Bytes_Von(Ordner.Name("b.not"))).Text), "typed");
}
TEST_F(Notizen_Welt, tell_of_too_long_files_in_German)
{
    Sprache          = "D";
    std::string Lang = "{\\rtf1 ";
    for (std::size_t i = 0; i < Rtf_Grenzen_T{}.Absaetze; ++i)
        Lang += "\\par";
    Mit_Notizen(Lang);
    const std::string Name = Ordner.Name("a.not");
    EXPECT_EQ(Box.Hinweise.back(),
              "Die Notizen " + Name + " sind zu lang: nur ihr Anfang wird gezeigt.");
    Feld.Text_Setzen("typed");
    Speichern("a.bin");
    EXPECT_EQ(Box.Hinweise.back(),
              "Die Notizen wurden nicht gespeichert: " + Name +
                  " konnte nicht ganz gelesen werden.");
}
TEST_F(Notizen_Welt, of_a_file_that_can_not_be_read_do_not_go_over_it)
{
    const std::string Name = Ordner.Anlegen("a.not", "");
    fs::resize_file(Name, Textdatei_Hoechstens + 1);
    Laden("a.bin", "\x01");
    EXPECT_EQ(Feld.Text_UTF8(), "");
    EXPECT_EQ(Box.Hinweise.size(), 1u);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
    Feld.Text_Setzen("typed");
    Speichern("a.bin");
    EXPECT_EQ(fs::file_size(Name), Textdatei_Hoechstens + 1);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
}

} // namespace
} // namespace varnholt::test
