// The rules of the image and of the document state, the recent files, messages and first values.
#include "core/commands.h"
#include "core/messages.h"
#include "core/reset.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Geraete.h"
#include "support/scripted_platform.h"

namespace varnholt {
namespace {

using test::Welt;

TEST_F(Welt, the_erased_image_is_ff_up_to_and_with_its_last_element)
{
    Hex_Daten.fill(0);
    Bild_Loeschen();
    for (const std::uint8_t b : Hex_Daten)
        ASSERT_EQ(b, 0xFF);
    EXPECT_EQ(Hex_Daten.size(), 524289u);
    EXPECT_EQ(Hex_Groesse, 524288);
}

TEST_F(Welt, the_first_byte_of_an_erased_image_is_0_and_the_last_is_none)
{
    EXPECT_EQ(Erstes_Byte(), 0);
    EXPECT_EQ(Letztes_Byte(), -1);
}

TEST_F(Welt, first_and_last_byte_are_found_at_both_ends)
{
    Hex_Daten[524287] = 0;
    EXPECT_EQ(Erstes_Byte(), 524287);
    EXPECT_EQ(Letztes_Byte(), 524287);
    Hex_Daten[0] = 1;
    EXPECT_EQ(Erstes_Byte(), 0);
}

TEST_F(Welt, the_element_behind_the_image_is_no_used_byte)
{
    Hex_Daten[524288] = 0;
    EXPECT_EQ(Erstes_Byte(), 0);
    EXPECT_EQ(Letztes_Byte(), -1);
}

TEST_F(Welt, without_a_device_the_size_is_the_whole_image)
{
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_EQ(IC_Groesse_Gewaehlt(), 524288);
}

TEST_F(Welt, a_new_file_pushes_the_recent_ones_down)
{
    for (const char* Name : {"a", "b", "c", "d"}) {
        Datei_Name = Name;
        Letzte_Dateien();
    }
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{"d", "c", "b"}));
}

TEST_F(Welt, the_newest_recent_file_stays_and_the_second_changes_places)
{
    Letzte_Datei = {"a", "b", "c"};
    Datei_Name   = "a";
    Letzte_Dateien();
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{"a", "b", "c"}));
    Datei_Name = "b";
    Letzte_Dateien();
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{"b", "a", "c"}));
}

TEST_F(Welt, an_empty_place_does_not_push_a_recent_file_out)
{
    Letzte_Datei = {"", "b", "c"};
    Datei_Name   = "n";
    Letzte_Dateien();
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{"n", "b", "b"}));
}

TEST_F(Welt, a_message_comes_in_the_language_of_the_interface)
{
    Sprache = "D";
    Melden({"eins", "one"}, {"T", "t"});
    Sprache = "E";
    Melden({"eins", "one"}, {"T", "t"});
    ASSERT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Box.Meldungen[0].Text, "eins");
    EXPECT_EQ(Box.Meldungen[0].Titel, "T");
    EXPECT_EQ(Box.Meldungen[1].Text, "one");
    EXPECT_EQ(Antwort, Antwort_Ok);
}

TEST_F(Welt, a_language_that_is_neither_shows_no_message)
{
    Sprache = "F";
    Antwort = 77;
    Melden({"eins", "one"});
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Antwort, 77);
}

TEST_F(Welt, the_options_have_the_values_of_a_first_start)
{
    EXPECT_TRUE(C_Brenner && C_IC && C_IC_vor_B && C_IC_nach_B && C_IC_bei_B && Lade_Letzte &&
                No_FF);
    EXPECT_TRUE(C_keine_TAB_SM && O_MOV_ZQ && Autosave_Zeitlich);
    EXPECT_FALSE(Zahlendeutung || C_Erstelle_Listfile || C_keine_US_SM || C_Auto_Binfile ||
                 C_Auto_Hexfile);
    EXPECT_FALSE(Autosave_Assemblieren);
    EXPECT_EQ(Port_Basis, 888);
    EXPECT_EQ(Undo_Max, 99);
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    EXPECT_EQ(O_Automatik_Bef + Eprommer_Version + Tessel2_Version + Autosave_Nummer, 0);
}

TEST_F(Welt, the_document_state_begins_as_told)
{
    EXPECT_TRUE(Datei_Name.empty());
    EXPECT_FALSE(Datei_Geaendert || Text_Aktuell || Text_Veraendert || Text_Sperre ||
                 Debugger_Aktiv);
    EXPECT_FALSE(Vergleich_Laeuft || Import_Laeuft || Init_Laeuft || Abbruch);
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Start_Verzeichnis, "Erststart");
    EXPECT_EQ(CRLF, "\r\n");
}

TEST_F(Welt, resetting_everything_forgets_what_was)
{
    Datei_Name   = "x";
    Hex_Daten[5] = 1;
    IC_Nummer    = 3;
    No_FF        = false;
    Plattform.Edit->Text_Setzen("text");
    Alles_Zuruecksetzen();
    EXPECT_TRUE(Datei_Name.empty());
    EXPECT_EQ(Hex_Daten[5], 0xFF);
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_TRUE(No_FF);
    EXPECT_TRUE(Plattform.Edit->Text().empty());
}

TEST_F(Welt, the_silent_world_answers_cancel_and_reads_floating_lines)
{
    Plattform_Zuruecksetzen();
    EXPECT_EQ(Plattform.Box->Zeigen({}), Antwort_Abbrechen);
    EXPECT_EQ(Plattform.Box->Eingeben(""), "");
    EXPECT_EQ(Plattform.Box->Bereich_Waehlen(""), 0);
    EXPECT_GT(Plattform.Port->KS_openDriver(), 0);
    EXPECT_EQ(Plattform.Port->KS_inpb(889), 0xFF);
}

} // namespace
} // namespace varnholt
