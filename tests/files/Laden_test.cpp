// Loading as the user meets it: types and modes, messages, partial load, notes, bookkeeping.
#include "files/Laden.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/undo.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Einfaerben.h"
#include "editors/Hexedit.h"
#include "editors/Sprungmarken.h"
#include "files/Dateien_Welt.h"
#include "files/Dateizugriff.h"
#include "programmer/Geraete.h"

#include <algorithm>
#include <array>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t Halb = 524288;

class Laden_Welt : public Dateien_Welt {
protected:
    // A file of raw bytes: 01h at the beginning, 02h at offset 524288, 03h at the end, 00h between.
    void Lange_Datei_Laden(std::size_t Groesse)
    {
        std::string Bytes(Groesse, '\0');
        Bytes.front() = 1;
        if (Groesse > Halb)
            Bytes[Halb] = 2;
        Bytes.back() = 3;
        Laden("long.bin", Bytes);
    }
    static bool Ist_Erased()
    {
        return std::all_of(Hex_Daten.begin(), Hex_Daten.end(), [](int b) { return b == 0xFF; });
    }
    // Everything that a load may change besides contents.
    void Zustand_Setzen()
    {
        Datei_Geaendert = Text_Aktuell = Text_Veraendert = true;
        Datei_Name                                       = "before.bin";
        Letzte_Datei                                     = {"one", "two", "three"};
        Notiz.Inhalt                                     = "old notes";
        IC_Nummer                                        = 7;
    }
};

// --- the file itself -----------------------------------------------------------------------------

TEST_F(Laden_Welt, a_missing_file_gives_the_message_in_English)
{
    Dialog_Name = Ordner.Name("gone.hex");
    Datei_Laden();
    EXPECT_EQ(Letzte_Meldung(), "Couldn´t find the file " + Dialog_Name + " !");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Nicht_Gefunden);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Laden_Welt, a_missing_file_gives_the_message_in_German)
{
    Sprache     = "D";
    Dialog_Name = Ordner.Name("gone.hex");
    Datei_Laden();
    EXPECT_EQ(Letzte_Meldung(), "Konnte die Datei " + Dialog_Name + " nicht finden !");
}
TEST_F(Laden_Welt, a_missing_file_changes_nothing_but_the_name)
{
    Setzen(0, {1});
    Zustand_Setzen();
    Dialog_Name = Ordner.Name("gone.asm");
    Datei_Laden();
    EXPECT_EQ(Datei_Name, Dialog_Name);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_TRUE(Datei_Geaendert && Text_Aktuell && Text_Veraendert);
    EXPECT_EQ(Letzte_Datei[0], "one");
    EXPECT_EQ(Notiz.Inhalt, "old notes");
}
TEST_F(Laden_Welt, a_folder_is_no_file)
{
    fs::create_directory(Ordner.Pfad / "d.bin");
    Dialog_Name = Ordner.Name("d.bin");
    Datei_Laden();
    EXPECT_EQ(Datei_Fehler, Dateifehler::Nicht_Gefunden);
}
TEST_F(Laden_Welt, a_file_that_can_not_be_read_is_named_with_the_reason_and_changes_nothing)
{
    Setzen(0, {1});
    Zustand_Setzen();
    for (const char* Name : {"/dev/null", "/dev/zero"}) {
        Dialog_Name = Name;
        Datei_Laden();
        EXPECT_EQ(Box.Hinweise.back(),
                  "The file " + Dialog_Name + " could not be read: it is no regular file.");
        EXPECT_EQ(Datei_Fehler, Dateifehler::Lesefehler);
    }
    EXPECT_EQ(Datei_Name, "before.bin");
    EXPECT_TRUE(Nur_Bytes(0, {1}));
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Laden_Welt, a_source_that_can_not_be_read_changes_nothing)
{
    Modus       = Modus_MC;
    Edit.Inhalt = "NOP\r\n";
    Sprache     = "D";
    Dialog_Name = "/dev/null";
    Datei_Laden();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
    EXPECT_EQ(Box.Hinweise.back(),
              "Die Datei /dev/null konnte nicht gelesen werden: das ist keine gewöhnliche Datei.");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Lesefehler);
}
TEST_F(Laden_Welt, a_text_format_beyond_the_limit_is_refused_with_the_reason)
{
    for (const char* Name : {"long.hex", "long.mhx", "long.dat"}) {
        Dialog_Name = Ordner.Anlegen(Name, "");
        fs::resize_file(Dialog_Name, Textdatei_Hoechstens + 1);
        Datei_Laden();
        EXPECT_EQ(Datei_Fehler, Dateifehler::Lesefehler) << Name;
        EXPECT_EQ(Box.Hinweise.back(),
                  "The file " + Dialog_Name +
                      " could not be read: it is longer than 67108864 bytes.");
    }
}
TEST_F(Laden_Welt, a_source_beyond_its_limit_is_refused_with_the_reason)
{
    Dialog_Name = Ordner.Anlegen("long.asm", "");
    fs::resize_file(Dialog_Name, Quelltext_Hoechstens + 1);
    Sprache = "D";
    Datei_Laden();
    EXPECT_EQ(Datei_Fehler, Dateifehler::Lesefehler);
    EXPECT_EQ(Box.Hinweise.back(),
              "Die Datei " + Dialog_Name +
                  " konnte nicht gelesen werden: sie ist länger als 16777216 Byte.");
}
TEST_F(Laden_Welt, a_load_that_succeeds_clears_the_failure_of_the_one_before)
{
    Datei_Fehler = Dateifehler::Schreibfehler;
    Laden("a.bin", "x");
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}

// --- types and modes -----------------------------------------------------------------------------

TEST_F(Laden_Welt, every_image_format_is_read_by_its_extension)
{
    for (const auto& [Name, Bytes] :
         std::initializer_list<std::pair<const char*, const char*>>{{"a.bin", "\x12\x34"},
                                                                    {"a._51", "\x12\x34"},
                                                                    {"a.dat", "18,52"},
                                                                    {"a.hex", ":020000001234B8"},
                                                                    {"a.IHX", ":020000001234B8"},
                                                                    {"a.mhx", "S10500001234B4"}}) {
        Setzen(0, {0, 0, 0, 0});
        Laden(Name, Bytes);
        EXPECT_TRUE(Nur_Bytes(0, {0x12, 0x34})) << Name;
    }
}
TEST_F(Laden_Welt, the_source_formats_go_to_the_editor)
{
    Modus = Modus_MC;
    for (const char* Name : {"a.asm", "a.TXT", "a.a51"}) {
        Laden(Name, std::string("; ") + Name + "\n");
        EXPECT_EQ(Edit.Inhalt, std::string("; ") + Name + "\r\n");
    }
}
TEST_F(Laden_Welt, a_TXT_file_is_raw_bytes_in_the_Hex_Editor_and_text_in_the_MC_Editor)
{
    Laden("ABC.TXT", "NOP");
    EXPECT_TRUE(Nur_Bytes(0, {'N', 'O', 'P'}));
    EXPECT_EQ(Edit.Inhalt, "");
    Modus = Modus_MC;
    Laden("ABC.TXT", "NOP");
    EXPECT_EQ(Edit.Inhalt, "NOP");
}
TEST_F(Laden_Welt, an_unknown_extension_follows_the_mode)
{
    Laden("ABC.XYZ", "NOP");
    EXPECT_TRUE(Nur_Bytes(0, {'N', 'O', 'P'}));
    Modus = Modus_MC;
    Laden("ABC.XYZ", "RET");
    EXPECT_EQ(Edit.Inhalt, "RET");
    EXPECT_EQ(Modus, Modus_MC);
}
TEST_F(Laden_Welt, a_HEX_file_switches_to_the_Hex_Editor)
{
    Modus = Modus_MC;
    Laden("a.hex", ":0100000001FE");
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Ansichten.Anordnung_Stand, 1u);
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
    EXPECT_TRUE(Menue("MNU_Hex").Haken && Menue("MNU_vergleiche_hexdaten").Aktiv);
}
TEST_F(Laden_Welt, a_source_switches_to_the_MC_Editor)
{
    Laden("a.asm", "NOP");
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Ansichten.Anordnung_Stand, 1u);
    EXPECT_GE(Ereignisse.Runden, 1);
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_Edit));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Hexedit));
    EXPECT_TRUE(Menue("MNU_MC").Haken && Menue("MNU_Debugger_Stoppunkt").Aktiv);
}
TEST_F(Laden_Welt, at_start_up_the_window_of_the_new_mode_is_not_shown_yet)
{
    Init_Laeuft = true;
    Laden("a.asm", "NOP");
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_Edit));
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), -1);
}
TEST_F(Laden_Welt, a_source_is_coloured_and_its_jumpmarks_are_listed)
{
    Laden("a.asm", "Mark: NOP ; note\n");
    EXPECT_EQ(Edit.Farbe_An(0), Farbe_Marke);
    EXPECT_EQ(Edit.Farbe_An(10), Farbe_Kommentar);
    EXPECT_EQ(Sprungmarken_Anzahl, 1);
    EXPECT_FALSE(Text_Sperre);
}
TEST_F(Laden_Welt, a_text_that_nobody_sees_is_not_coloured)
{
    class Ungesehen : public Speicher_Text {
        bool Wird_Gezeigt() const override { return false; }
    } Feld;
    Plattform.Edit = &Feld;
    Laden("a.asm", "Mark: NOP ; \xE4\xB8\xAD\n");
    EXPECT_EQ(Feld.Inhalt, "Mark: NOP ; ?\r\n");
    EXPECT_TRUE(Feld.Farben({0, 14}).empty());
}
TEST_F(Laden_Welt, a_file_of_the_mode_does_not_arrange_the_windows_anew)
{
    Laden("a.bin", "x");
    EXPECT_EQ(Ansichten.Anordnung_Stand, 0u);
}
TEST_F(Laden_Welt, a_source_leaves_the_image_alone)
{
    Setzen(5, {1});
    Laden("a.asm", "NOP");
    EXPECT_TRUE(Nur_Bytes(5, {1}));
}
TEST_F(Laden_Welt, an_image_file_erases_the_image_first)
{
    Hex_Daten.fill(0);
    Laden("a.dat", "");
    EXPECT_TRUE(Ist_Erased());
}

// --- raw bytes, partial load ---------------------------------------------------------------------

TEST_F(Laden_Welt, an_empty_file_is_an_erased_image)
{
    Setzen(0, {1});
    Laden("a.bin", "");
    EXPECT_TRUE(Ist_Erased());
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Laden_Welt, exactly_524288_bytes_load_whole_without_a_question)
{
    Lange_Datei_Laden(Halb);
    EXPECT_TRUE(Box.Fragen.empty());
    EXPECT_EQ(Byte(0), 1);
    EXPECT_EQ(Byte(524287), 3);
    EXPECT_EQ(Byte(524288), 0xFF);
}
TEST_F(Laden_Welt, one_byte_more_brings_up_the_question_in_English)
{
    Lange_Datei_Laden(Halb + 1);
    ASSERT_EQ(Box.Fragen.size(), 1u);
    EXPECT_EQ(Box.Fragen[0],
              "Couldn't load the file " + Dialog_Name +
                  " completely at once. The filesize is over 524288 byte. Please choose an area to "
                  "load:");
}
TEST_F(Laden_Welt, one_byte_more_brings_up_the_question_in_German)
{
    Sprache = "D";
    Lange_Datei_Laden(Halb + 1);
    ASSERT_EQ(Box.Fragen.size(), 1u);
    EXPECT_EQ(Box.Fragen[0],
              "Die Datei " + Dialog_Name +
                  " ist größer als 524288 Byte und kann daher nur teilweise geladen "
                  "werden! Bitte wählen Sie den zu ladenen Bereich:");
}
TEST_F(Laden_Welt, the_first_half_is_taken_from_the_beginning)
{
    Box.Bereiche = {1};
    Lange_Datei_Laden(2 * Halb);
    EXPECT_EQ(Byte(0), 1);
    EXPECT_EQ(Byte(524287), 0);
    EXPECT_EQ(Byte(524288), 0xFF);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Laden_Welt, the_second_half_is_taken_from_offset_524288)
{
    Box.Bereiche = {2};
    Lange_Datei_Laden(2 * Halb);
    EXPECT_EQ(Byte(0), 2);
    EXPECT_EQ(Byte(524287), 3);
}
TEST_F(Laden_Welt, behind_a_short_second_half_the_image_is_erased)
{
    Hex_Daten.fill(0);
    Box.Bereiche = {2};
    Lange_Datei_Laden(Halb + 2);
    EXPECT_TRUE(Nur_Bytes(0, {2, 3}));
}
TEST_F(Laden_Welt, a_partial_load_ends_with_the_usual_bookkeeping)
{
    Zustand_Setzen();
    Box.Bereiche = {1};
    Lange_Datei_Laden(Halb + 1);
    EXPECT_EQ(Datei_Name, Dialog_Name);
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "1:Hex-Editor " + Dialog_Name);
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_EQ(Menue("MNU_IC").Titel, "Programmer");
    EXPECT_EQ(Letzte_Datei[0], Dialog_Name);
    EXPECT_EQ(Dialog_Verzeichnis, Ordner.Pfad.string());
    EXPECT_FALSE(Datei_Geaendert || Text_Aktuell || Text_Veraendert);
    EXPECT_EQ(Notiz.Inhalt, "");
}
TEST_F(Laden_Welt, a_partial_load_sets_the_scroll_bar_as_at_start)
{
    Hexedit_Resize(20 * Zeilen_Hoehe_Ueblich);
    ASSERT_EQ(Hexedit.Scroll_Max, Scroll_Max_Nach_Zug);
    Box.Bereiche = {1};
    Lange_Datei_Laden(Halb + 1);
    EXPECT_EQ(Hexedit.Scroll_Max, Scroll_Max_Am_Anfang(Hexedit.R));
}
TEST_F(Laden_Welt, a_partial_load_takes_notes_from_an_RTF_file_where_there_is_no_note_file)
{
    Ordner.Anlegen("long.rtf", "rich");
    Box.Bereiche = {1, 1};
    Lange_Datei_Laden(Halb + 1);
    EXPECT_EQ(Notiz.Inhalt, "rich");
    Ordner.Anlegen("long.not", "plain");
    Lange_Datei_Laden(Halb + 1);
    EXPECT_EQ(Notiz.Inhalt, "plain");
}
TEST_F(Laden_Welt, a_partial_load_given_up_leaves_the_image_erased_and_without_a_name)
{
    Hex_Daten.fill(0);
    Zustand_Setzen();
    Box.Bereiche = {0};
    Lange_Datei_Laden(Halb + 1);
    EXPECT_TRUE(Ist_Erased());
    EXPECT_EQ(Datei_Fehler, Dateifehler::Teilladen_Offen);
    EXPECT_EQ(Letzte_Datei[0], "one");
    EXPECT_EQ(IC_Nummer, 7);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Datei_Name, ""); // a save must not go over the file that wasn't loaded
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "1:Hex-Editor ");
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Laden_Welt, the_question_is_put_without_the_busy_cursor_over_a_fresh_hex_page)
{
    Lange_Datei_Laden(Halb + 1);
    EXPECT_GE(Ansichten.Hex_Stand, 1u);
}
TEST_F(Laden_Welt, at_start_up_a_long_file_is_neither_asked_about_nor_loaded)
{
    Init_Laeuft = true;
    Lange_Datei_Laden(Halb + 1);
    EXPECT_TRUE(Box.Fragen.empty());
    EXPECT_TRUE(Ist_Erased());
    EXPECT_EQ(Datei_Fehler, Dateifehler::Teilladen_Offen);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}
TEST_F(Laden_Welt, at_start_up_any_other_file_is_loaded)
{
    Init_Laeuft = true;
    Laden("a.bin", "\x01");
    EXPECT_TRUE(Nur_Bytes(0, {1}));
}
TEST_F(Laden_Welt, exactly_1048576_bytes_still_bring_up_the_question)
{
    Lange_Datei_Laden(2 * Halb);
    EXPECT_EQ(Box.Fragen.size(), 1u);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Laden_Welt, one_byte_more_than_1048576_gives_the_message_and_the_first_bytes)
{
    Lange_Datei_Laden(2 * Halb + 1);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "Filesize over 1048576 Byte");
    EXPECT_EQ(Box.Meldungen[0].Text, "Couldn´t load the file " + Dialog_Name + " complete!");
    EXPECT_TRUE(Box.Fragen.empty());
    EXPECT_EQ(Byte(0), 1);
    EXPECT_EQ(Byte(524287), 0);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
    EXPECT_EQ(Letzte_Datei[0], Dialog_Name);
}
TEST_F(Laden_Welt, the_message_of_the_longest_files_in_German)
{
    Sprache = "D";
    Lange_Datei_Laden(2 * Halb + 1);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "Dateigröße über 1048576 Byte");
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Die Datei " + Dialog_Name + " kann nicht komplett geladen werden!");
}
TEST_F(Laden_Welt, a_file_of_a_terabyte_is_loaded_as_quickly_as_any)
{
    Dialog_Name = Ordner.Anlegen("huge.bin", "\x01");
    fs::resize_file(Dialog_Name, std::uintmax_t{1} << 40);
    Datei_Laden();
    EXPECT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Byte(0), 1);
}

// --- the text formats in place -------------------------------------------------------------------

TEST_F(Laden_Welt, an_Intel_HEX_file_with_a_wrong_checksum_loads_without_any_message)
{
    Laden("a.hex", ":01000000AA00\r\n:00000001FF\r\n");
    EXPECT_TRUE(Nur_Bytes(0, {0xAA}));
    EXPECT_TRUE(Box.Meldungen.empty() && Box.Hinweise.empty());
}
TEST_F(Laden_Welt, an_Intel_HEX_record_at_65520_with_32_bytes_runs_on_past_10000h)
{
    std::string Satz = ":20FFF000";
    for (int i = 0; i < 32; ++i)
        Satz += "77";
    Laden("a.hex", Satz);
    EXPECT_EQ(Byte(65519), 0xFF);
    EXPECT_EQ(Byte(65520), 0x77);
    EXPECT_EQ(Byte(65551), 0x77);
    EXPECT_EQ(Byte(65552), 0xFF);
}
TEST_F(Laden_Welt, a_motorola_file_clears_the_device_selection)
{
    IC_Nummer = 7;
    Laden("a.mhx", "");
    EXPECT_EQ(IC_Nummer, -1);
}
TEST_F(Laden_Welt, the_other_formats_keep_the_device_selection)
{
    IC_Nummer = 7;
    for (const char* Name : {"a.bin", "a.hex", "a.dat"})
        Laden(Name, "");
    EXPECT_EQ(IC_Nummer, 7);
}
TEST_F(Laden_Welt, no_text_format_reaches_the_element_behind_the_image)
{
    Laden("a.mhx", "S206080000000000");
    Laden("a.dat", "999,524289,0");
    EXPECT_EQ(Byte(524287), 0);
    EXPECT_EQ(Byte(524288), 0xFF);
}

// --- import --------------------------------------------------------------------------------------

TEST_F(Laden_Welt, an_import_lays_the_file_over_the_image)
{
    Setzen(0, {1, 2, 3, 4});
    for (const auto& [Name, Bytes] :
         std::initializer_list<std::pair<const char*, const char*>>{{"a.bin", "\x77\x88"},
                                                                    {"a.dat", "119,136"},
                                                                    {"a.hex", ":020000007788FF"},
                                                                    {"a.mhx", "S105000077880"}}) {
        Setzen(1, {2, 3});
        Importieren(Name, Bytes, 1);
        EXPECT_TRUE(Nur_Bytes(0, {1, 0x77, 0x88, 4})) << Name;
    }
}
TEST_F(Laden_Welt, an_import_ends_as_any_load)
{
    Zustand_Setzen();
    Importieren("a.bin", "x", 0x100);
    EXPECT_EQ(Datei_Name, Dialog_Name);
    EXPECT_EQ(Letzte_Datei[0], Dialog_Name);
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_FALSE(Import_Laeuft);
}
TEST_F(Laden_Welt, an_import_is_cut_at_the_end_of_the_image)
{
    Importieren("a.bin", "\x01\x02\x03", 524287);
    EXPECT_EQ(Byte(524287), 1);
    Importieren("b.bin", "\x01", 524288);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Keiner);
}
TEST_F(Laden_Welt, an_import_of_a_source_switches_the_mode_and_replaces_the_text)
{
    Edit.Inhalt = "OLD";
    Importieren("a.asm", "NOP", 0x100);
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Edit.Inhalt, "NOP");
}
TEST_F(Laden_Welt, an_import_by_halves_replaces_the_image)
{
    Hex_Daten.fill(0x55);
    Box.Bereiche = {2};
    std::string Bytes(Halb + 1, '\0');
    Bytes.back() = 9;
    Importieren("a.bin", Bytes, 0x100);
    EXPECT_TRUE(Nur_Bytes(0, {9}));
}
TEST_F(Laden_Welt, an_import_by_halves_given_up_keeps_the_image)
{
    Setzen(0, {1});
    Importieren("a.bin", std::string(Halb + 1, '\0'), 0x100);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
}
TEST_F(Laden_Welt, after_an_import_the_address_has_no_effect)
{
    Importieren("a.bin", "\x01", 0x100);
    Laden("b.bin", "\x02");
    EXPECT_TRUE(Nur_Bytes(0, {2}));
}

// --- captions, notes, bookkeeping ----------------------------------------------------------------

TEST_F(Laden_Welt, the_caption_of_the_window_shows_the_name)
{
    Laden("a.bin", "x");
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "1:Hex-Editor " + Dialog_Name);
    Laden("a.asm", "x");
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "2:MC-Editor " + Dialog_Name);
}
TEST_F(Laden_Welt, both_editors_show_the_document_that_stands_behind_them)
{
    const auto Zuletzt = [this](char Nummer) {
        std::string Titel;
        for (const std::string& t : Ereignisse.Titel_Texte)
            if (t.front() == Nummer)
                Titel = t;
        return Titel;
    };
    for (const char* Name : {"a.asm", "b.bin", "c.asm", "d.hex"}) {
        Laden(Name, "x");
        EXPECT_EQ(Zuletzt('1'), "1:Hex-Editor " + Dialog_Name);
        EXPECT_EQ(Zuletzt('2'), "2:MC-Editor " + Dialog_Name);
    }
}
TEST_F(Laden_Welt, the_hex_page_is_drawn_anew)
{
    Laden("a.bin", "x");
    EXPECT_EQ(Ansichten.Hex_Stand, 1u);
}
TEST_F(Laden_Welt, the_notes_beside_the_file_are_loaded)
{
    Ordner.Anlegen("a.not", "L\xC3\xB6ten\n");
    Laden("a.bin", "x");
    EXPECT_EQ(Notiz.Inhalt, "L\xF6ten\r\n");
}
TEST_F(Laden_Welt, without_a_note_file_the_notes_are_emptied)
{
    Notiz.Inhalt = "old";
    Ordner.Anlegen("a.rtf", "only a partial load looks here");
    Laden("a.asm", "x");
    EXPECT_EQ(Notiz.Inhalt, "");
}
TEST_F(Laden_Welt, a_document_is_not_its_own_note_file)
{
    Laden("a.not", "x");
    EXPECT_EQ(Notiz.Inhalt, "");
}
TEST_F(Laden_Welt, notes_that_can_not_be_read_are_empty_with_a_notice)
{
    const std::string Name = Ordner.Anlegen("a.not", "");
    fs::resize_file(Name, Textdatei_Hoechstens + 1);
    Laden("a.bin", "\x01");
    EXPECT_EQ(Notiz.Inhalt, "");
    EXPECT_EQ(Box.Hinweise.size(), 1u);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
}
TEST_F(Laden_Welt, the_base_of_a_name_is_counted_in_characters)
{
    Ordner.Anlegen("x.not", "notes");
    Laden("x.\xC3\xA4\xC3\xB6\xC3\xBC", "x"); // the extension is three characters and six bytes
    EXPECT_EQ(Notiz.Inhalt, "notes");
}
TEST_F(Laden_Welt, folder_recent_files_and_flags_follow_the_load)
{
    Zustand_Setzen();
    Laden("a.asm", "x");
    EXPECT_EQ(Dialog_Verzeichnis, Ordner.Pfad.string());
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{Dialog_Name, "one", "two"}));
    EXPECT_FALSE(Datei_Geaendert || Text_Aktuell || Text_Veraendert);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_EQ(IC_Nummer, 7);
}
TEST_F(Laden_Welt, the_recent_files_are_shown)
{
    Letzte_Datei = {"one", "", ""};
    Laden("a.asm", "x");
    EXPECT_EQ(Menue("MNU_Datei1").Titel, Dialog_Name);
    EXPECT_EQ(Menue("MNU_Datei2").Titel, "one");
    EXPECT_TRUE(Menue("MNU_Datei2").Sichtbar && Menue("MNU_Leer3").Sichtbar);
    EXPECT_FALSE(Menue("MNU_Datei3").Sichtbar);
}
TEST_F(Laden_Welt, a_load_starts_the_undo_ring_anew)
{
    Undo_Max      = 9;
    Undo_Index    = 4;
    Undo_Begonnen = true;
    Laden("a.asm", "x");
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_EQ(Undo_Ende, 9);
    EXPECT_EQ(Undo_Oben, 1);
    EXPECT_FALSE(Undo_Begonnen || Menue("MNU_Undo").Aktiv || Werkzeug(15).Aktiv);
}
TEST_F(Laden_Welt, a_load_that_fails_keeps_the_undo_ring)
{
    Undo_Index  = 4;
    Dialog_Name = "/dev/null";
    Datei_Laden();
    EXPECT_EQ(Undo_Index, 4);
}

} // namespace
} // namespace varnholt::test
