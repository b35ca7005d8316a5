// The file commands: questions, dialogs, and what runs after them.
#include "files/Dateikommandos.h"

#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/undo.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Sprungmarken.h"
#include "files/Dateien_Welt.h"

#include <array>

namespace varnholt::test {
namespace {

class Kommando_Welt : public Dateien_Welt {
protected:
    Kommando_Welt() { Sprache_Englisch(); }

    // The user answers the next file dialogs with these names in the folder.
    void Waehlen(std::initializer_list<const char*> Dateien)
    {
        for (const char* Datei : Dateien)
            Dialog.Namen.push_back(Ordner.Name(Datei));
    }
    const Dateiwahl_T& Dialog_Offen() const { return Dialog.Gefragt.back(); }
};

constexpr const char* Frage_E = "Save changes first?";
constexpr const char* Frage_D = "Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?";

// --- the question --------------------------------------------------------------------------------

TEST_F(Kommando_Welt, the_question_has_three_buttons_and_stands_in_both_languages)
{
    Datei_Geaendert = true;
    Box.Antworten   = {Antwort_Nein, Antwort_Ja};
    EXPECT_EQ(Speichern_Erfragen(), Antwort_Nein);
    EXPECT_EQ(Letzte_Meldung(), Frage_E);
    EXPECT_EQ(Box.Meldungen.back().Tasten, Knoepfe::Ja_Nein_Abbrechen);
    Sprache = "D";
    EXPECT_EQ(Speichern_Erfragen(), Antwort_Ja);
    EXPECT_EQ(Letzte_Meldung(), Frage_D);
}
TEST_F(Kommando_Welt, a_saved_document_is_not_asked_about)
{
    EXPECT_EQ(Speichern_Erfragen(), Antwort_Nein);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Kommando_Welt, where_no_language_shows_the_question_nothing_is_given_up)
{
    Datei_Geaendert = true;
    Antwort         = Antwort_Nein;
    Sprache         = "?";
    EXPECT_EQ(Speichern_Erfragen(), Antwort_Abbrechen);
}

// Commands that give the document up, after "No".
TEST_F(Kommando_Welt, No_goes_on_without_saving)
{
    for (const auto& Befehl : {MNU_Load_Click, MNU_Load_Autosave_Click, MNU_Importdata_Click}) {
        Datei_Geaendert = true;
        Box.Antworten   = {Antwort_Nein};
        const auto n    = Dialog.Gefragt.size();
        Befehl();
        EXPECT_EQ(Dialog.Gefragt.size(), n + 1);
        EXPECT_FALSE(Dialog_Offen().Speichern);
        EXPECT_FALSE(Datei_Geaendert);
    }
}
TEST_F(Kommando_Welt, Yes_saves_and_stops)
{
    for (const auto& Befehl :
         {MNU_Neu_Click, MNU_Load_Click, MNU_Load_Autosave_Click, MNU_Importdata_Click}) {
        Datei_Geaendert = true;
        Datei_Name      = Ordner.Name("doc.bin");
        Setzen(0, {1});
        Box.Antworten = {Antwort_Ja};
        Befehl();
        EXPECT_FALSE(Datei_Geaendert);
        EXPECT_EQ(Datei_Name, Ordner.Name("doc.bin"));
        EXPECT_EQ(Bytes_Von(Datei_Name).size(), 256u);
    }
    EXPECT_TRUE(Dialog.Gefragt.empty());
}
TEST_F(Kommando_Welt, Cancel_stops)
{
    Letzte_Datei = {"/a/1.bin", "/a/2.bin", "/a/3.bin"};
    for (const auto& Befehl : {MNU_Neu_Click,
                               MNU_Load_Click,
                               MNU_Load_Autosave_Click,
                               MNU_Importdata_Click,
                               MNU_Datei1_Click,
                               MNU_Datei2_Click,
                               MNU_Datei3_Click}) {
        Datei_Geaendert = true;
        Datei_Name      = Ordner.Name("doc.bin");
        Box.Antworten   = {Antwort_Abbrechen};
        Befehl();
        EXPECT_TRUE(Datei_Geaendert);
        EXPECT_EQ(Datei_Name, Ordner.Name("doc.bin"));
    }
    EXPECT_TRUE(Dialog.Gefragt.empty());
    EXPECT_TRUE(Ordner.Inhalt().empty());
}
TEST_F(Kommando_Welt, every_command_that_gives_the_document_up_ends_a_session)
{
    Letzte_Datei = {"/a/1.bin", "", ""};
    for (const auto& Befehl : {MNU_Neu_Click,
                               MNU_Load_Click,
                               MNU_Load_Autosave_Click,
                               MNU_Importdata_Click,
                               MNU_Datei1_Click}) {
        Debugger_Aktiv = Edit.Gesperrt = true;
        Befehl();
        EXPECT_FALSE(Debugger_Aktiv || Edit.Gesperrt);
    }
}

// --- new -----------------------------------------------------------------------------------------

TEST_F(Kommando_Welt, New_empties_everything)
{
    Laden("a.asm", "Mark: NOP\n");
    Notiz.Inhalt = "notes";
    Setzen(5, {1});
    Datei_Geaendert = true;
    Box.Antworten   = {Antwort_Nein};
    MNU_Neu_Click();
    EXPECT_EQ(Edit.Inhalt + Notiz.Inhalt + Datei_Name, "");
    EXPECT_TRUE(Nur_Bytes(0, {}));
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_FALSE(Datei_Geaendert || Text_Sperre);
    EXPECT_EQ(Sprungmarken_Anzahl, 0);
    EXPECT_EQ(Quell_Datei.Original, "");
}
TEST_F(Kommando_Welt, New_sets_both_captions_and_draws_the_page)
{
    Ereignisse.Titel_Texte.clear();
    const auto Bisher = Ansichten.Hex_Stand;
    MNU_Neu_Click();
    EXPECT_EQ(Ereignisse.Titel_Texte, (std::vector<std::string>{"2:MC-Editor ", "1:Hex-Editor "}));
    EXPECT_GT(Ansichten.Hex_Stand, Bisher);
}
TEST_F(Kommando_Welt, New_starts_the_undo_ring_anew_and_keeps_mode_and_recent_files)
{
    Undo_Max      = 9;
    Undo_Index    = 4;
    Undo_Begonnen = true;
    Letzte_Datei  = {"one", "two", "three"};
    MNU_Neu_Click();
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_EQ(Undo_Ende, 9);
    EXPECT_FALSE(Undo_Begonnen || Menue("MNU_Undo").Aktiv || Werkzeug(14).Aktiv);
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Letzte_Datei[0], "one");
}
TEST_F(Kommando_Welt, what_is_typed_after_New_is_a_new_file)
{
    Laden("a.asm", "; \xE4\rNOP\r");
    MNU_Neu_Click();
    Edit.Inhalt = "NOP\r\nRET\r\n";
    EXPECT_EQ(Speichern("b.asm"), "NOP\r\nRET\r\n");
}

// --- load ----------------------------------------------------------------------------------------

TEST_F(Kommando_Welt, Load_opens_the_dialog_of_the_mode)
{
    Dialog_Verzeichnis = "/some/where";
    Dialog_Name        = "/some/where/old.bin";
    MNU_Load_Click();
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 2);
    EXPECT_EQ(Dialog_Offen().Filter, Datei_Filter);
    EXPECT_EQ(Dialog_Offen().Verzeichnis, "/some/where");
    EXPECT_EQ(Dialog_Offen().Name, "");
    EXPECT_FALSE(Dialog_Offen().Speichern);
    EXPECT_EQ(Dialog_Name, "");
    Modus = Modus_MC;
    MNU_Load_Click();
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 1);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Kommando_Welt, Load_gives_the_event_loop_a_turn_and_loads)
{
    Ordner.Anlegen("a.asm", "NOP\n");
    Modus = Modus_MC;
    Waehlen({"a.asm"});
    MNU_Load_Click();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n");
    EXPECT_EQ(Datei_Name, Ordner.Name("a.asm"));
    EXPECT_GE(Ereignisse.Runden, 1);
}
TEST_F(Kommando_Welt, a_cancelled_dialog_changes_nothing)
{
    Setzen(0, {1});
    Datei_Name = "doc.bin";
    MNU_Load_Click();
    EXPECT_EQ(Datei_Name, "doc.bin");
    EXPECT_TRUE(Nur_Bytes(0, {1}));
}
TEST_F(Kommando_Welt, Load_Autosave_proposes_the_newest_file_of_the_series)
{
    Programm_Pfad = Ordner.Pfad.string() + "/";
    std::filesystem::create_directory(Ordner.Pfad / "Autosave");
    MNU_Load_Autosave_Click();
    EXPECT_EQ(Dialog_Offen().Name, "");
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 6);
    for (const char* Name : {"Autosave/autosave0.asm", "Autosave/autosave1.asm"})
        Ordner.Anlegen(Name, "; kept\n");
    Ordner.Anlegen("Autosave/autosave3.asm", "; behind a gap\n");
    Modus = Modus_MC;
    Waehlen({"Autosave/autosave1.asm"});
    MNU_Load_Autosave_Click();
    EXPECT_EQ(Dialog_Offen().Name, Programm_Pfad + "Autosave/autosave1.asm");
    EXPECT_EQ(Edit.Inhalt, "; kept\r\n");
}
TEST_F(Kommando_Welt, Load_Autosave_proposes_the_last_of_a_full_series)
{
    Programm_Pfad = Ordner.Pfad.string() + "/";
    std::filesystem::create_directory(Ordner.Pfad / "Autosave");
    for (int i = 0; i <= 20; ++i)
        Ordner.Anlegen("Autosave/autosave" + std::to_string(i) + ".asm", "");
    MNU_Load_Autosave_Click();
    EXPECT_EQ(Dialog_Offen().Name, Programm_Pfad + "Autosave/autosave19.asm");
}

// --- import --------------------------------------------------------------------------------------

TEST_F(Kommando_Welt, Import_asks_for_file_and_address)
{
    Ordner.Anlegen("a.bin", "\x01\x02");
    Setzen(0, {9});
    Waehlen({"a.bin"});
    Box.Eingaben = {"1"};
    MNU_Importdata_Click();
    EXPECT_TRUE(Nur_Bytes(0, {9, 1, 2}));
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 2);
    EXPECT_EQ(Datei_Name, Ordner.Name("a.bin"));
    EXPECT_FALSE(Import_Laeuft);
}
TEST_F(Kommando_Welt, Import_without_a_file_asks_for_no_address)
{
    MNU_Importdata_Click();
    EXPECT_TRUE(Box.Fragen.empty());
}
TEST_F(Kommando_Welt, Import_without_or_with_a_bad_address_loads_nothing)
{
    Ordner.Anlegen("a.bin", "\x01");
    for (const char* Eingabe : {"", "524289", "-1"}) {
        Waehlen({"a.bin"});
        Box.Eingaben = {Eingabe};
        MNU_Importdata_Click();
        EXPECT_TRUE(Nur_Bytes(0, {}));
        EXPECT_EQ(Datei_Name, "");
    }
    EXPECT_EQ(Letzte_Meldung(), "Invalid value");
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}

// --- save ----------------------------------------------------------------------------------------

TEST_F(Kommando_Welt, Save_writes_a_document_of_the_mode_at_once)
{
    Datei_Name = Ordner.Name("a.hex");
    MNU_Save_Click();
    EXPECT_EQ(Bytes_Von(Datei_Name), ":00000001FF\r\n");
    EXPECT_TRUE(Dialog.Gefragt.empty());
}
TEST_F(Kommando_Welt, Save_without_a_name_asks_for_one)
{
    Waehlen({"a.bin"});
    MNU_Save_Click();
    EXPECT_TRUE(Dialog_Offen().Speichern);
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 2);
    EXPECT_EQ(Datei_Name, Ordner.Name("a.bin"));
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"a.bin"});
}
TEST_F(Kommando_Welt, Save_never_writes_over_a_name_of_the_other_modes_kind)
{
    for (const auto& [Neuer_Modus, Name] :
         std::initializer_list<std::pair<int, const char*>>{{Modus_Hex, "x.ASM"},
                                                            {Modus_Hex, "x.txt"},
                                                            {Modus_Hex, "x.a51"},
                                                            {Modus_MC, "x.bin"},
                                                            {Modus_MC, "x._51"},
                                                            {Modus_MC, "x.DAT"},
                                                            {Modus_MC, "x.hex"},
                                                            {Modus_MC, "x.ihx"},
                                                            {Modus_MC, "x.mhx"}}) {
        Modus        = Neuer_Modus;
        Datei_Name   = Ordner.Name(Name);
        const auto n = Dialog.Gefragt.size();
        MNU_Save_Click();
        ASSERT_EQ(Dialog.Gefragt.size(), n + 1) << Name;
        EXPECT_EQ(Dialog_Offen().Name, Ordner.Name(Modus == Modus_Hex ? "x.bin" : "x.asm"));
        EXPECT_EQ(Dialog_Offen().Filter_Nummer, Modus == Modus_Hex ? 2 : 1);
    }
    EXPECT_TRUE(Ordner.Inhalt().empty());
}
TEST_F(Kommando_Welt, a_HEX_name_stays_Intel_HEX_and_becomes_ASM_in_the_MC_Editor)
{
    Waehlen({"X.HEX"});
    MNU_SaveAs_Click();
    Setzen(0, {0x12});
    MNU_Save_Click();
    EXPECT_EQ(Bytes_Von(Ordner.Name("X.HEX")).front(), ':');
    Modus = Modus_MC;
    MNU_Save_Click();
    EXPECT_EQ(Dialog_Offen().Name, Ordner.Name("X.asm"));
}
TEST_F(Kommando_Welt, SaveAs_opens_with_the_name_and_the_filter_of_its_format)
{
    for (const auto& [Name, Filter] : std::initializer_list<std::pair<const char*, int>>{
             {"a.bin", 2}, {"a._51", 2}, {"a.hex", 3}, {"a.IHX", 3}, {"a.mhx", 4}, {"a.dat", 5}}) {
        Datei_Name = Ordner.Name(Name);
        MNU_SaveAs_Click();
        EXPECT_EQ(Dialog_Offen().Filter_Nummer, Filter) << Name;
        EXPECT_EQ(Dialog_Offen().Name, Ordner.Name(Name));
        EXPECT_EQ(Dialog_Offen().Filter, Datei_Filter);
    }
}
TEST_F(Kommando_Welt, an_unknown_extension_keeps_the_filter_of_the_dialog_before)
{
    Datei_Name    = Ordner.Name("a.xyz");
    Dialog.Filter = {4};
    MNU_SaveAs_Click();
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 1);
    MNU_SaveAs_Click();
    EXPECT_EQ(Dialog_Offen().Filter_Nummer, 4);
}
TEST_F(Kommando_Welt, SaveAs_that_is_cancelled_writes_nothing)
{
    Datei_Geaendert = true;
    Datei_Name      = Ordner.Name("a.bin");
    MNU_SaveAs_Click();
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Dialog_Name, "");
    EXPECT_TRUE(Ordner.Inhalt().empty());
}
TEST_F(Kommando_Welt, a_second_extension_that_the_dialog_added_is_dropped)
{
    Waehlen({"a.hex.bin"});
    MNU_SaveAs_Click();
    EXPECT_EQ(Datei_Name, Ordner.Name("a.hex"));
    EXPECT_EQ(Bytes_Von(Datei_Name), ":00000001FF\r\n");
}
TEST_F(Kommando_Welt, a_name_of_the_other_modes_kind_is_asked_for_again)
{
    Waehlen({"a.asm", "b.bin"});
    MNU_SaveAs_Click();
    EXPECT_EQ(Dialog.Gefragt.size(), 2u);
    EXPECT_EQ(Dialog_Offen().Name, Ordner.Name("a.bin"));
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"b.bin"});
}
TEST_F(Kommando_Welt, the_dialog_is_not_asked_about_an_existing_file)
{
    Ordner.Anlegen("a.bin", "old");
    Waehlen({"a.bin"});
    MNU_SaveAs_Click();
    EXPECT_EQ(Bytes_Von(Ordner.Name("a.bin")), "");
    EXPECT_TRUE(Box.Meldungen.empty());
}

// --- compare -------------------------------------------------------------------------------------

TEST_F(Kommando_Welt, Compare_asks_for_a_file_and_not_about_changes)
{
    Ordner.Anlegen("a.bin", "\x01");
    Setzen(0, {1});
    Datei_Geaendert = true;
    Waehlen({"a.bin"});
    MNU_vergleiche_hexdaten_Click();
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Letzte_Meldung(), "The data of the file is the same as the data of the editor !");
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_FALSE(Vergleich_Laeuft || Ereignisse.Zeiger_Wartet);
    EXPECT_TRUE(Nur_Bytes(0, {1}));
}
TEST_F(Kommando_Welt, Compare_tells_a_difference)
{
    Ordner.Anlegen("a.bin", "\x02");
    Setzen(0, {1});
    Waehlen({"a.bin"});
    MNU_vergleiche_hexdaten_Click();
    EXPECT_EQ(Letzte_Meldung(), "The data of the file is NOT the same as the data of the editor !");
}
TEST_F(Kommando_Welt, Compare_with_a_cancelled_dialog_compares_the_image_with_itself)
{
    Setzen(0, {1});
    Datei_Fehler = Dateifehler::Lesefehler; // of the load before
    MNU_vergleiche_hexdaten_Click();
    EXPECT_EQ(Letzte_Meldung(), "The data of the file is the same as the data of the editor !");
}

// --- recent files --------------------------------------------------------------------------------

TEST_F(Kommando_Welt, a_recent_file_is_loaded_and_comes_to_the_front)
{
    Letzte_Datei = {
        Ordner.Anlegen("1.bin", "1"), Ordner.Anlegen("2.bin", "2"), Ordner.Anlegen("3.bin", "3")};
    const auto Alle = Letzte_Datei;
    MNU_Datei3_Click();
    EXPECT_TRUE(Nur_Bytes(0, {'3'}));
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{Alle[2], Alle[0], Alle[1]}));
    MNU_Datei2_Click();
    EXPECT_TRUE(Nur_Bytes(0, {'1'}));
    EXPECT_EQ(Letzte_Datei, (std::array<std::string, 3>{Alle[0], Alle[2], Alle[1]}));
    MNU_Datei1_Click();
    EXPECT_EQ(Letzte_Datei[0], Alle[0]);
    EXPECT_EQ(Menue("MNU_Datei1").Titel, Alle[0]);
}
TEST_F(Kommando_Welt, before_a_recent_file_Yes_asks_for_a_name)
{
    Letzte_Datei    = {Ordner.Anlegen("1.bin", "1"), "", ""};
    Datei_Geaendert = true;
    Datei_Name      = Ordner.Name("doc.bin");
    Box.Antworten   = {Antwort_Ja};
    Waehlen({"other.bin"});
    MNU_Datei1_Click();
    EXPECT_EQ(Dialog.Gefragt.size(), 1u);
    EXPECT_EQ(Datei_Name, Ordner.Name("other.bin"));
    EXPECT_TRUE(Nur_Bytes(0, {}));
}
TEST_F(Kommando_Welt, before_a_recent_file_No_gives_the_changes_up)
{
    Letzte_Datei    = {Ordner.Anlegen("1.bin", "1"), "", ""};
    Datei_Geaendert = true;
    Box.Antworten   = {Antwort_Nein};
    MNU_Datei1_Click();
    EXPECT_TRUE(Nur_Bytes(0, {'1'}));
    EXPECT_FALSE(Datei_Geaendert);
}
TEST_F(Kommando_Welt, a_place_without_a_recent_file_does_nothing)
{
    Datei_Geaendert = true;
    MNU_Datei2_Click();
    EXPECT_TRUE(Box.Meldungen.empty());
}

// --- the list of the recent files ----------------------------------------------------------------

TEST_F(Kommando_Welt, the_order_of_the_recent_files)
{
    using Liste = std::array<std::string, 3>;
    for (const auto& [Vorher, Name, Nachher] :
         std::initializer_list<std::tuple<Liste, std::string, Liste>>{
             {{"a", "b", "c"}, "a", {"a", "b", "c"}},
             {{"a", "b", "c"}, "b", {"b", "a", "c"}},
             {{"a", "b", "c"}, "c", {"c", "a", "b"}},
             {{"a", "b", "c"}, "d", {"d", "a", "b"}},
             {{"", "", ""}, "d", {"d", "", ""}},
             {{"a", "", ""}, "d", {"d", "a", ""}},
             {{"a", "", "c"}, "d", {"d", "a", "c"}},
             {{"", "b", "c"}, "d", {"d", "b", "b"}}}) {
        Letzte_Datei = Vorher;
        Datei_Name   = Name;
        Letzte_Dateien();
        EXPECT_EQ(Letzte_Datei, Nachher) << Name;
        EXPECT_EQ(Menue("MNU_Datei1").Titel, Nachher[0]);
    }
}
TEST_F(Kommando_Welt, the_separator_comes_with_the_first_recent_file)
{
    Letzte_Dateien_Zeigen();
    EXPECT_FALSE(Menue("MNU_Leer3").Sichtbar || Menue("MNU_Datei1").Sichtbar);
    EXPECT_TRUE(Menue("MNU_Leer5").Sichtbar);
    Letzte_Datei[0] = "a";
    Letzte_Dateien_Zeigen();
    EXPECT_TRUE(Menue("MNU_Leer3").Sichtbar && Menue("MNU_Datei1").Sichtbar);
    EXPECT_FALSE(Menue("MNU_Datei2").Sichtbar);
}
TEST_F(Kommando_Welt, files_that_are_gone_are_dropped_from_the_front)
{
    using Liste          = std::array<std::string, 3>;
    const std::string Da = Ordner.Anlegen("here.bin", "");
    for (const auto& [Vorher, Nachher] : std::initializer_list<std::pair<Liste, Liste>>{
             {{Da, "gone", "gone"}, {Da, "gone", "gone"}},
             {{"gone", Da, "gone"}, {Da, "gone", ""}},
             {{"gone", "gone", Da}, {Da, "", ""}},
             {{"gone", "gone", "gone"}, {"", "", ""}},
             {{"", "", ""}, {"", "", ""}}}) {
        Letzte_Datei = Vorher;
        Letzte_Dateien_Bereinigen();
        EXPECT_EQ(Letzte_Datei, Nachher);
    }
}

} // namespace
} // namespace varnholt::test
