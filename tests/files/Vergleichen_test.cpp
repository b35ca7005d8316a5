// Comparing the image with a file: the verdict, and that everything is as before afterwards.
#include "files/Speichern.h"

#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/views.h"
#include "files/Dateien_Welt.h"
#include "programmer/Geraete.h"

namespace varnholt::test {
namespace {

const char* const Gleich   = "The data of the file is the same as the data of the editor !";
const char* const Ungleich = "The data of the file is NOT the same as the data of the editor !";

class Vergleichen_Welt : public Dateien_Welt {};

TEST_F(Vergleichen_Welt, equal_data_give_the_message_of_equality)
{
    Setzen(0, {1, 2});
    EXPECT_EQ(Vergleichen("a.bin", "\x01\x02"), std::nullopt);
    EXPECT_EQ(Letzte_Meldung(), Gleich);
    Sprache = "D";
    Vergleichen("a.bin", "\x01\x02");
    EXPECT_EQ(Letzte_Meldung(), "Die Daten der Datei entsprechen den Daten des Editors !");
}
TEST_F(Vergleichen_Welt, a_difference_gives_the_other_message_and_its_first_address)
{
    Setzen(0, {1, 2, 3});
    EXPECT_EQ(Vergleichen("a.bin", "\x01\x07\x08"), 1);
    EXPECT_EQ(Letzte_Meldung(), Ungleich);
    Sprache = "D";
    Vergleichen("a.bin", "\x01\x07\x08");
    EXPECT_EQ(Letzte_Meldung(), "Die Daten der Datei entsprechen NICHT den Daten des Editors !");
}
TEST_F(Vergleichen_Welt, every_format_is_compared)
{
    Setzen(0, {0x12, 0x34});
    for (const auto& [Name, Bytes] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a.dat", "18,52"}, {"a.hex", ":020000001234B8"}, {"a.mhx", "S10500001234B4"}})
        EXPECT_EQ(Vergleichen(Name, Bytes), std::nullopt) << Name;
}
TEST_F(Vergleichen_Welt, missing_bytes_compare_as_FF)
{
    Setzen(0, {1, 0xFF, 0xFF});
    EXPECT_EQ(Vergleichen("a.bin", "\x01"), std::nullopt);
    Setzen(2, {2});
    EXPECT_EQ(Vergleichen("a.bin", "\x01"), 2);
}
TEST_F(Vergleichen_Welt, the_last_address_counts_and_the_element_behind_it_does_not)
{
    Setzen(524287, {0});
    EXPECT_EQ(Vergleichen("a.bin", ""), 524287);
    Setzen(524287, {0xFF, 0});
    EXPECT_EQ(Vergleichen("a.bin", ""), std::nullopt);
    EXPECT_EQ(Letzte_Meldung(), Gleich);
}
TEST_F(Vergleichen_Welt, a_source_gives_its_message_and_then_the_message_of_equality)
{
    Setzen(0, {1});
    EXPECT_EQ(Vergleichen("a.asm", "NOP"), std::nullopt);
    ASSERT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Box.Meldungen[0].Text, "This format can't be compared to the hexdata!");
    EXPECT_EQ(Box.Meldungen[1].Text, Gleich);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Abgelehnt);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
    EXPECT_EQ(Edit.Inhalt, "");
    EXPECT_EQ(Modus, Modus_Hex);
}
TEST_F(Vergleichen_Welt, a_source_gives_its_message_in_German)
{
    Sprache = "D";
    Vergleichen("a.a51", "NOP");
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Dieses Dateiformat kann nicht mit den Hexdaten verglichen werden!");
}
TEST_F(Vergleichen_Welt, a_text_file_is_compared_as_raw_bytes)
{
    Setzen(0, {'N', 'O', 'P'});
    EXPECT_EQ(Vergleichen("a.txt", "NOP"), std::nullopt);
    EXPECT_EQ(Box.Meldungen.size(), 1u);
}
TEST_F(Vergleichen_Welt, everything_is_as_before_afterwards)
{
    Setzen(7, {1, 2, 3});
    Datei_Name      = "doc.bin";
    Datei_Geaendert = Text_Aktuell = true;
    Letzte_Datei                   = {"one", "two", "three"};
    Dialog_Verzeichnis             = "before";
    Notiz.Inhalt                   = "notes";
    IC_Nummer                      = 7;
    Ordner.Anlegen("a.not", "other notes");
    IC_Titel_Zeigen();
    const std::string IC_Titel = Menue("MNU_IC").Titel;
    Vergleichen("a.mhx", "S1040000AA51"); // this format clears the device selection
    EXPECT_EQ(Menue("MNU_IC").Titel, IC_Titel);
    EXPECT_TRUE(Nur_Bytes(7, {1, 2, 3}));
    EXPECT_EQ(Hex_Groesse, Bild_Groesse);
    EXPECT_EQ(Datei_Name, "doc.bin");
    EXPECT_TRUE(Datei_Geaendert && Text_Aktuell);
    EXPECT_EQ(Letzte_Datei[0], "one");
    EXPECT_EQ(Dialog_Verzeichnis, "before");
    EXPECT_EQ(Notiz.Inhalt, "notes");
    EXPECT_EQ(IC_Nummer, 7);
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
    EXPECT_FALSE(Vergleich_Laeuft);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_EQ(Ansichten.Hex_Stand, 1u);
}
TEST_F(Vergleichen_Welt, a_missing_file_gives_its_message_and_compares_the_image_with_itself)
{
    Setzen(0, {1});
    Dialog_Name = Ordner.Name("gone.bin");
    EXPECT_EQ(Hexdaten_Vergleichen(), std::nullopt);
    ASSERT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Box.Meldungen[1].Text, Gleich);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Nicht_Gefunden);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
}
TEST_F(Vergleichen_Welt, a_file_that_can_not_be_read_gets_no_verdict)
{
    Dialog_Name = "/dev/null";
    EXPECT_EQ(Hexdaten_Vergleichen(), std::nullopt);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Box.Hinweise.size(), 1u);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Lesefehler);
}
TEST_F(Vergleichen_Welt, one_half_of_a_long_file_is_compared)
{
    std::string Bytes(524290, '\xFF');
    Bytes[524289] = 5;
    Setzen(1, {5});
    IC_Nummer    = 7;
    Datei_Name   = "doc.bin";
    Box.Bereiche = {2};
    EXPECT_EQ(Vergleichen("a.bin", Bytes), std::nullopt);
    EXPECT_EQ(Datei_Name, "doc.bin");
    EXPECT_EQ(IC_Nummer, 7);
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
    Box.Bereiche = {1};
    EXPECT_EQ(Vergleichen("a.bin", Bytes), 1);
}
TEST_F(Vergleichen_Welt, a_long_file_whose_question_stays_open_compares_as_an_erased_image)
{
    Setzen(3, {1});
    EXPECT_EQ(Vergleichen("a.bin", std::string(524289, '\0')), 3);
    EXPECT_EQ(Datei_Fehler, Dateifehler::Teilladen_Offen);
    EXPECT_TRUE(Nur_Bytes(3, {1}));
}

} // namespace
} // namespace varnholt::test
