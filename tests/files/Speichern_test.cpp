// Saving as the user meets it: formats, refusals, notes, bookkeeping, and that nothing gets lost.
#include "files/Speichern.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/menu.h"
#include "core/views.h"
#include "files/Dateien_Welt.h"
#include "files/Laden.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Speichern_Welt : public Dateien_Welt {
protected:
    // Saves under a name that can't be written: its folder is missing.
    void Vergeblich_Speichern()
    {
        Datei_Name = Ordner.Name("gone/a.bin");
        Datei_Speichern();
    }
};

// --- formats -------------------------------------------------------------------------------------

TEST_F(Speichern_Welt, a_single_byte_makes_a_raw_file_of_256_bytes)
{
    Setzen(0, {0x12});
    const std::string Datei = Speichern("a.bin");
    EXPECT_EQ(Datei, "\x12" + std::string(255, '\xFF'));
}
TEST_F(Speichern_Welt, the_same_image_as_DAT_is_the_byte_and_a_run)
{
    Setzen(0, {0x12});
    EXPECT_EQ(Speichern("a.dat"), "18\r\n999\r\n255\r\n255\r\n");
}
TEST_F(Speichern_Welt, any_other_extension_gives_raw_bytes)
{
    Setzen(0, {0x12});
    for (const char* Name : {"a._51", "a.xyz", "a", "a.asm", "a.txt", "ahex"})
        EXPECT_EQ(Speichern(Name).size(), 256u) << Name;
}
TEST_F(Speichern_Welt, the_extension_is_taken_in_any_case)
{
    for (const char* Name : {"a.hex", "a.HEX", "a.Ihx"})
        EXPECT_EQ(Speichern(Name), ":00000001FF\r\n") << Name;
    for (const char* Name : {"a.mhx", "a.MHX"})
        EXPECT_EQ(Speichern(Name), "S01900004E414D45202020202020202020202020202020200101C3\r\n")
            << Name;
}
TEST_F(Speichern_Welt, an_erased_image_is_an_empty_file_in_raw_and_DAT_form)
{
    EXPECT_EQ(Speichern("a.bin"), "");
    EXPECT_EQ(Speichern("a.dat"), "");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Speichern_Welt, an_image_of_FF_only_as_Intel_HEX_is_the_end_line_alone)
{
    EXPECT_EQ(Speichern("a.hex"), ":00000001FF\r\n");
}
TEST_F(Speichern_Welt, an_image_up_to_7FFFh_saves_as_Intel_HEX)
{
    Setzen(0x7FFF, {0});
    EXPECT_EQ(Speichern("a.hex"), ":017FFF000081\r\n:00000001FF\r\n");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Speichern_Welt, an_image_that_reaches_8000h_is_refused_as_Intel_HEX)
{
    Setzen(0x8000, {0});
    Datei_Geaendert = true;
    Notiz.Inhalt    = "notes";
    for (const char* Name : {"a.hex", "a.ihx"}) {
        EXPECT_EQ(Speichern(Name), "<missing>");
        EXPECT_EQ(Letzte_Meldung(), "Intel-Hex Files can't be larger than 32768 Byte !");
        EXPECT_EQ(Datei_Fehler, Dateifehler::Abgelehnt);
    }
    EXPECT_TRUE(Ordner.Inhalt().empty());
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
    EXPECT_EQ(Letzte_Datei[0], "");
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Speichern_Welt, the_refusal_stands_in_German)
{
    Sprache = "D";
    Setzen(0x8000, {0});
    Speichern("a.hex");
    EXPECT_EQ(Letzte_Meldung(),
              "Intel Hex Dateien können maximal 32768 Byte aufnehmen, Ihre Datei kann "
              "daher nicht als Intel Hex Datei gesichert werden!");
}
TEST_F(Speichern_Welt, a_refusal_leaves_the_old_file)
{
    Ordner.Anlegen("a.hex", "old");
    Setzen(0x8000, {0});
    EXPECT_EQ(Speichern("a.hex"), "old");
}
TEST_F(Speichern_Welt, an_S_record_file_keeps_gaps_and_goes_up_to_the_end_of_the_image)
{
    Setzen(0x7FFFF, {0});
    const std::string Datei = Speichern("a.mhx");
    EXPECT_EQ(std::count(Datei.begin(), Datei.end(), '\n'), 2);
    EXPECT_NE(Datei.find("S21407FFF0"), std::string::npos);
}
TEST_F(Speichern_Welt, the_element_behind_the_image_is_never_saved)
{
    Hex_Daten.back() = 0;
    EXPECT_EQ(Speichern("a.bin"), "");
    EXPECT_EQ(Speichern("a.dat"), "");
    EXPECT_EQ(Speichern("a.hex"), ":00000001FF\r\n");
}
TEST_F(Speichern_Welt, a_full_image_is_saved_whole)
{
    Hex_Daten.fill(0);
    EXPECT_EQ(Speichern("a.bin").size(), 524288u);
    EXPECT_EQ(Speichern("a.dat"), "999\r\n524288\r\n0\r\n");
}
TEST_F(Speichern_Welt, a_save_leaves_the_image_as_it_is)
{
    Setzen(0x1234, {1, 2});
    for (const char* Name : {"a.bin", "a.dat", "a.hex", "a.mhx"})
        Speichern(Name);
    EXPECT_TRUE(Nur_Bytes(0x1234, {1, 2}));
}

// Every format gives back what it took; Intel-HEX up to its limit.
RC_GTEST_FIXTURE_PROP(Speichern_Welt, what_was_saved_loads_again, ())
{
    const auto Endung = *rc::gen::element<std::string>("bin", "_51", "dat", "hex", "ihx", "mhx");
    const bool Intel  = Endung == "hex" || Endung == "ihx";
    Bild_Loeschen();
    const int Stuecke = *rc::gen::inRange(0, 5);
    for (int i = 0; i < Stuecke; ++i) {
        const auto Bytes =
            *rc::gen::container<std::vector<std::uint8_t>>(rc::gen::arbitrary<std::uint8_t>());
        const auto Platz = (Intel ? 32768 : Bild_Groesse) - static_cast<int>(Bytes.size());
        std::copy(Bytes.begin(), Bytes.end(), Hex_Daten.begin() + *rc::gen::inRange(0, Platz));
    }
    const auto Soll = std::vector<std::uint8_t>(Hex_Daten.begin(), Hex_Daten.end());
    Speichern("a." + Endung);
    Hex_Daten.fill(0x55);
    Dialog_Name = Datei_Name;
    Datei_Laden();
    RC_ASSERT(std::equal(Soll.begin(), Soll.end(), Hex_Daten.begin()));
}

// --- source texts --------------------------------------------------------------------------------

class Quelle_Speichern_Welt : public Speichern_Welt {
protected:
    Quelle_Speichern_Welt() { Modus = Modus_MC; }

    // Loads a source, replaces Alt by Neu in the editor and saves under the same name.
    std::string Bearbeitet(const std::string& Bytes, const std::string& Alt, const std::string& Neu)
    {
        Laden("a.asm", Bytes);
        Edit.Inhalt.replace(Edit.Inhalt.find(Alt), Alt.size(), Neu);
        return Speichern("a.asm");
    }
};

TEST_F(Quelle_Speichern_Welt, a_source_loaded_and_saved_is_the_same_to_the_byte)
{
    for (const std::string& Bytes : {std::string("NOP\nRET\r\nEND"),
                                     std::string("\xEF\xBB\xBF; \xC3\xA4\n"),
                                     std::string("; \xE4\r"),
                                     std::string("; \xE4\xB8\xAD\n"),
                                     std::string("a\0b\n", 4),
                                     std::string()}) {
        Laden("a.asm", Bytes);
        EXPECT_EQ(Speichern("a.asm"), Bytes);
    }
}
TEST_F(Quelle_Speichern_Welt, an_edited_source_keeps_encoding_line_ends_and_outside_characters)
{
    EXPECT_EQ(Bearbeitet("; \xE4\xB8\xAD\nNOP\n", "NOP", "; \xE4"), "; \xE4\xB8\xAD\n; \xC3\xA4\n");
    EXPECT_EQ(Bearbeitet("; \xE4\rNOP\r", "NOP", "RET"), "; \xE4\rRET\r");
}
TEST_F(Quelle_Speichern_Welt, a_second_save_keeps_what_the_first_one_kept)
{
    Bearbeitet("; \xE4\xB8\xAD\nNOP\n", "NOP", "RET");
    Edit.Inhalt += "END\r\n";
    EXPECT_EQ(Speichern("a.asm"), "; \xE4\xB8\xAD\nRET\nEND\n");
}
TEST_F(Quelle_Speichern_Welt, the_format_is_text_whatever_the_extension)
{
    Edit.Inhalt = "NOP\r\n";
    EXPECT_EQ(Speichern("a.hex"), "NOP\r\n");
}
TEST_F(Quelle_Speichern_Welt, the_caption_and_the_focus_go_to_the_editor)
{
    Speichern("a.asm");
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "2:MC-Editor " + Datei_Name);
    EXPECT_TRUE(Edit.Hat_Fokus);
}
TEST_F(Quelle_Speichern_Welt, a_failed_write_keeps_what_is_known_of_the_loaded_file)
{
    Laden("a.asm", "; \xE4\xB8\xAD\n");
    Vergeblich_Speichern();
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
    EXPECT_EQ(Speichern("a.asm"), "; \xE4\xB8\xAD\n");
}

// An editor that knows every character.
class Reiches_Feld : public Speicher_Text {
public:
    void Text_Setzen(std::string Neuer) override { Text_Setzen_UTF8(Nach_UTF8(Neuer)); }
    void Text_Setzen_UTF8(std::string_view Neuer) override
    {
        Ganz   = Neuer;
        Inhalt = Aus_UTF8(Neuer);
    }
    std::string Text_UTF8() const override { return Ganz; }
    std::string Ganz{};
};

class Reiche_Quelle_Welt : public Quelle_Speichern_Welt {
protected:
    Reiche_Quelle_Welt() { Plattform.Edit = &Feld; }
    std::string Bearbeitet(const std::string& Bytes, const std::string& Alt, const std::string& Neu)
    {
        Laden("a.asm", Bytes);
        Ersetzen(Alt, Neu);
        return Speichern("a.asm");
    }
    void Ersetzen(const std::string& Alt, const std::string& Neu)
    {
        std::string Text = Feld.Ganz;
        Feld.Text_Setzen_UTF8(Text.replace(Text.find(Alt), Alt.size(), Neu));
    }
    Reiches_Feld Feld{};
};

TEST_F(Reiche_Quelle_Welt, the_editor_gets_every_character_of_a_file)
{
    Laden("a.asm", "; \xE4\xB8\xAD\n");
    EXPECT_EQ(Feld.Ganz, "; \xE4\xB8\xAD\r\n");
    Laden("a.asm", "; \xE4\n");
    EXPECT_EQ(Feld.Ganz, "; \xC3\xA4\r\n");
}
TEST_F(Reiche_Quelle_Welt, unchanged_it_is_the_same_to_the_byte)
{
    for (const std::string& Bytes : {std::string("; \xE4\xB8\xAD\r\nNOP\n\rRET"),
                                     std::string("\xEF\xBB\xBF; \xE4\xB8\xAD\n"),
                                     std::string("; \xE4\r")}) {
        Laden("a.asm", Bytes);
        EXPECT_EQ(Speichern("a.asm"), Bytes);
        EXPECT_EQ(Speichern("a.asm"), Bytes);
    }
}
TEST_F(Reiche_Quelle_Welt, an_edited_line_keeps_its_outside_characters)
{
    EXPECT_EQ(Bearbeitet("; \xE4\xB8\xAD\nNOP\n", ";", "RET ;"), "RET ; \xE4\xB8\xAD\nNOP\n");
}
TEST_F(Reiche_Quelle_Welt, a_question_mark_typed_over_an_outside_character_is_saved)
{
    EXPECT_EQ(Bearbeitet("; \xE4\xB8\xAD\n", "\xE4\xB8\xAD", "?"), "; ?\n");
}
TEST_F(Reiche_Quelle_Welt, a_typed_outside_character_makes_a_Windows_1252_file_UTF8_for_good)
{
    EXPECT_EQ(Bearbeitet("; \xE4\nNOP\n", "NOP", "; \xE4\xB8\xAD"), "; \xC3\xA4\n; \xE4\xB8\xAD\n");
    Ersetzen("\xE4\xB8\xAD", "x");
    EXPECT_EQ(Speichern("a.asm"), "; \xC3\xA4\n; x\n");
}
TEST_F(Reiche_Quelle_Welt, a_new_text_with_an_outside_character_is_UTF8)
{
    Feld.Text_Setzen_UTF8("; \xC3\xA4\xE4\xB8\xAD\r\n");
    EXPECT_EQ(Speichern("new.asm"), "; \xC3\xA4\xE4\xB8\xAD\r\n");
}
// --- bookkeeping and failures --------------------------------------------------------------------

TEST_F(Speichern_Welt, caption_recent_files_and_flags_follow_the_save)
{
    Datei_Geaendert          = true;
    Letzte_Datei             = {"one", "two", "three"};
    Status.Offen             = true;
    Ereignisse.Zeiger_Wartet = true;
    Speichern("a.bin");
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "1:Hex-Editor " + Datei_Name);
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{Datei_Name, "one", "two"}));
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_FALSE(Edit.Hat_Fokus);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Speichern_Welt, the_focus_goes_to_the_hex_editor_where_it_is_visible)
{
    Speichern("a.bin"); // an assembly saves its image behind the source
    EXPECT_TRUE(Fenster.Protokoll.empty());
    Fenster.Zu(1).Sichtbar = true;
    Speichern("a.bin");
    EXPECT_EQ(Fenster.Protokoll, std::vector<std::string>{"Fokus 1"});
}
TEST_F(Speichern_Welt, the_recent_files_are_shown)
{
    Speichern("a.bin");
    EXPECT_EQ(Menue("MNU_Datei1").Titel, Datei_Name);
    EXPECT_TRUE(Menue("MNU_Datei1").Sichtbar && Menue("MNU_Leer3").Sichtbar);
}
TEST_F(Speichern_Welt, while_a_comparison_runs_the_caption_stays)
{
    Vergleich_Laeuft = true;
    Speichern("a.bin");
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
}
TEST_F(Speichern_Welt, the_folder_of_the_dialog_follows_the_dialogs_name)
{
    Dialog_Verzeichnis = "before";
    Speichern("a.bin");
    EXPECT_EQ(Dialog_Verzeichnis, "before");
    Dialog_Name = "/some/where/x.bin";
    Speichern("a.bin");
    EXPECT_EQ(Dialog_Verzeichnis, "/some/where");
}
TEST_F(Speichern_Welt, a_failed_write_is_told_with_its_reason)
{
    Vergeblich_Speichern();
    EXPECT_EQ(Box.Hinweise.back(),
              "The file " + Datei_Name + " could not be written: the folder does not exist.");
    Sprache = "D";
    Vergeblich_Speichern();
    EXPECT_EQ(Box.Hinweise.back(),
              "Die Datei " + Datei_Name +
                  " konnte nicht geschrieben werden: der Ordner ist nicht vorhanden.");
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Speichern_Welt, a_failed_write_changes_nothing)
{
    Datei_Geaendert = true;
    Letzte_Datei    = {"one", "two", "three"};
    Notiz.Inhalt    = "notes";
    Setzen(0, {1});
    Vergeblich_Speichern();
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Letzte_Datei[0], "one");
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
    EXPECT_TRUE(Nur_Bytes(0, {1}));
    EXPECT_TRUE(Ordner.Inhalt().empty());
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Speichern_Welt, every_format_tells_a_failed_write)
{
    for (const char* Name : {"gone/a.bin", "gone/a.dat", "gone/a.hex", "gone/a.mhx"}) {
        Speichern(Name);
        EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler) << Name;
    }
    Modus = Modus_MC;
    Speichern("gone/a.asm");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
}
TEST_F(Speichern_Welt, a_save_that_succeeds_clears_the_failure_of_the_one_before)
{
    Vergeblich_Speichern();
    Speichern("a.bin");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Speichern_Welt, without_a_name_nothing_is_written)
{
    Datei_Name.clear();
    Datei_Speichern();
    EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
}

} // namespace
} // namespace varnholt::test
