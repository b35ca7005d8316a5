// Macros, included files and the blocks of #IF DEBUGGING.
#include "language/Assembler_Hilfe.h"
#include "language/Meldungs_Texte.h"
#include "language/Praeprozessor.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

namespace varnholt::test {
namespace {

const Text_Paar Define_Ohne_Ende{"#define ohne #end def !", "#define without #end def !"};
const Text_Paar Eigener_Name{"Das Makro enthält seinen eigenen Namen !",
                             "The macro contains its own name !"};
const Text_Paar Zuviele_Includes{"Es sind höchstens 100 Include-Dateien möglich !",
                                 "No more than 100 include files are possible !"};
const Text_Paar Include_Fehlt{"Die einzubindene Datei konnte nicht gefunden werden!",
                              "Can't find the include file!"};
const Text_Paar Prozessorfile_Fehlt{
    "Das einzubindene Prozessorfile konnte nicht gefunden werden! Bitte wählen Sie einen der Typen "
    "aus dem nachfolgendem Dialog.",
    "Can't find the processorfile! Please use one of the following catalog."};

// --- #define -------------------------------------------------------------------------------------

class Makro_Welt : public Assembler_Welt {
protected:
    void Erwarte(std::string_view Text, const Text_Paar& Meldung)
    {
        Erwarte_Fehler(Text, Meldung.D, Meldung.E);
    }

    // The text after expansion, with LF line ends.
    static std::string Eingesetzt(std::string_view Text)
    {
        std::string Ergebnis = Mit_CRLF(Text) + std::string{CRLF};
        Makros_Einsetzen(Ergebnis);
        Ergebnis.erase(std::remove(Ergebnis.begin(), Ergebnis.end(), '\r'), Ergebnis.end());
        return Ergebnis;
    }
};

TEST_F(Makro_Welt, a_macro_stands_for_its_body)
{
    const std::string Text = "#define Doppelt\nCLR A\nNOP\n#end def \nDoppelt\nSETB C\nDoppelt";
    EXPECT_EQ(Eingesetzt(Text), "\n\n\n\nCLR A\nNOP\nSETB C\nCLR A\nNOP\n");
    EXPECT_EQ(Assembliere(Text), "E4 00 D3 E4 00");
}

TEST_F(Makro_Welt, case_does_not_matter)
{
    EXPECT_EQ(Assembliere("#DEFINE Makro\nCLR A\n#End DEF \nMAKRO\nmakro"), "E4 E4");
}

TEST_F(Makro_Welt, a_text_without_macro_stays)
{
    EXPECT_EQ(Eingesetzt("NOP\n#defin M\n"), "NOP\n#defin M\n\n");
    EXPECT_TRUE(Hat_Makros("NOP\r\n#DeFine"));
    EXPECT_FALSE(Hat_Makros("NOP\r\n#defin"));
}

TEST_F(Makro_Welt, the_lines_of_the_block_stay_as_empty_lines)
{
    EXPECT_EQ(Eingesetzt("NOP\n#define M\nCLR A\nSETB C\n#end def \nNOP"), "NOP\n\n\n\n\nNOP\n");
    EXPECT_EQ(Eingesetzt("NOP\n#define M\nCLR A\n#end def ; the end\nNOP"), "NOP\n\n\n\nNOP\n");
}

TEST_F(Makro_Welt, without_a_blank_behind_end_def_the_next_line_falls_away)
{
    EXPECT_EQ(Eingesetzt("#define M\nCLR A\n#end def\nSETB C\nM"), "\n\n\nCLR A\n");
    EXPECT_EQ(Assembliere("#define M\nCLR A\n#end def\nSETB C\nM"), "E4");
    EXPECT_EQ(Assembliere("#define M\nCLR A\n#end def\n\nSETB C\nM"), "D3 E4");
}

TEST_F(Makro_Welt, a_block_may_be_the_last_thing_of_the_text)
{
    EXPECT_EQ(Assembliere("NOP\n#define M\nCLR A\n#end def"), "00");
    EXPECT_EQ(Assembliere("NOP\n#define M\nCLR A\n#end def "), "00");
}

TEST_F(Makro_Welt, blanks_and_tabs_around_the_name_are_skipped_and_those_inside_belong_to_it)
{
    EXPECT_EQ(Assembliere("#define \t  Mach was \t \nCLR A\n#end def \nmach WAS\nNOP"), "E4 00");
    EXPECT_EQ(Assembliere("#defineM1\nCLR A\n#end def \nM1"), "E4");
}

TEST_F(Makro_Welt, text_ahead_of_define_stays_and_its_place_does_not_matter)
{
    EXPECT_EQ(Assembliere("NOP ;#define M\nCLR A\n#end def \nM"), "00 E4");
    EXPECT_EQ(Assembliere("DB \"#define M\nCLR A\n#end def \nNOP"), "00");
}

TEST_F(Makro_Welt, the_name_is_found_inside_words_comments_and_strings)
{
    EXPECT_EQ(Eingesetzt("#define MAC\nCLR A\n#end def \nabMACcd\nNOP"), "\n\n\n\nCLR A\n\nNOP\n");
    EXPECT_EQ(Assembliere("#define MAC\nCLR A\n#end def \nNOP ; MAC ;\nNOP"), "00 E4 00");
    EXPECT_EQ(Eingesetzt("#define MAC\nCLR A\n#end def \nDB \"xMACx\"\n"),
              "\n\n\nDB \nCLR A\n\n\n");
}

TEST_F(Makro_Welt, two_characters_on_each_side_of_the_name_fall_away)
{
    EXPECT_EQ(Eingesetzt("#define M1\nCLR A\n#end def \n   M1\nNOP"), "\n\n\n \nCLR A\nNOP\n");
    EXPECT_EQ(Eingesetzt("#define M1\nCLR A\n#end def \nM1 ;c\nNOP"), "\n\n\nCLR A\nc\nNOP\n");
    EXPECT_EQ(Assembliere("#define M1\nCLR A\n#end def \nM1  NOP"), "E4 00");
    Erwarte("#define M1\nCLR A\n#end def \nM1 ;c\nNOP", Ohne_Prozessor);
}

TEST_F(Makro_Welt, a_name_above_its_definition_is_none)
{
    Erwarte("M1\n#define M1\nCLR A\n#end def \nNOP", Ohne_Prozessor);
}

TEST_F(Makro_Welt, an_empty_body_leaves_two_line_ends)
{
    EXPECT_EQ(Eingesetzt("#define M1\n#end def \nM1\nNOP"), "\n\n\nNOP\n");
    EXPECT_EQ(Assembliere("#define M1\n#end def \nM1\nNOP"), "00");
}

TEST_F(Makro_Welt, the_body_keeps_its_blanks_and_empty_lines)
{
    EXPECT_EQ(Eingesetzt("#define M1\n\n  CLR A ; x\n\n#end def \nM1"),
              "\n\n\n\n\n\n  CLR A ; x\n\n");
}

TEST_F(Makro_Welt, macros_may_use_each_other_in_either_order)
{
    EXPECT_EQ(
        Assembliere("#define Eins\nCLR A\n#end def \n#define Zwei\nEins\nNOP\n#end def \nZwei"),
        "E4 00");
    EXPECT_EQ(
        Assembliere("#define Zwei\nEins\nNOP\n#end def \n#define Eins\nCLR A\n#end def \nZwei"),
        "E4 00");
}

TEST_F(Makro_Welt, a_body_may_hold_labels_and_a_second_use_doubles_them)
{
    EXPECT_EQ(Assembliere("#define M1\nL: SJMP L\n#end def \nM1"), "80 FE");
    Erwarte("#define M1\nL: SJMP L\n#end def \nM1\nM1", Marke_Doppelt);
}

TEST_F(Makro_Welt, a_block_without_end_is_told)
{
    Erwarte("#define M1\nCLR A\nM1", Define_Ohne_Ende);
    Erwarte("NOP\n#define", Define_Ohne_Ende);
    Erwarte("#end def \n#define M1\nCLR A", Define_Ohne_Ende);
    Erwarte("#define M1\nCLR A\n#end def \n#define M2\nNOP\n", Define_Ohne_Ende);
}

TEST_F(Makro_Welt, a_block_on_one_line_is_told)
{
    Erwarte("#define M1 #end def \nNOP", Define_Ohne_Ende);
    Erwarte("#define M1 CLR A #end def \nNOP\n#end def \n", Define_Ohne_Ende);
}

TEST_F(Makro_Welt, a_block_without_name_is_told)
{
    Erwarte("#define\nCLR A\n#end def \nNOP", Define_Ohne_Ende);
    Erwarte("#define \t \nCLR A\n#end def \nNOP", Define_Ohne_Ende);
}

TEST_F(Makro_Welt, a_macro_that_holds_its_own_name_is_told)
{
    Erwarte("#define M1\nCLR A\nm1\n#end def \nM1", Eigener_Name);
    Erwarte("#define A\nCLR A\n#end def \nNOP\nA", Eigener_Name);
    Erwarte("#define M1\nNOP\nM2\n#end def \n#define M2\nM1\n#end def \nM2", Eigener_Name);
}

TEST_F(Makro_Welt, the_name_at_the_very_start_of_the_body_is_not_searched_again)
{
    EXPECT_EQ(Assembliere("#define Nop\nNOP\nCLR A\n#end def \nNop\nSETB C"), "00 E4 D3");
    Erwarte("#define Nop\n NOP\nCLR A\n#end def \nNop", Eigener_Name);
}

TEST_F(Makro_Welt, a_macro_that_holds_its_own_name_but_is_never_used_does_no_harm)
{
    EXPECT_EQ(Assembliere("#define M1\nM1\n#end def \nNOP"), "00");
}

TEST_F(Makro_Welt, macros_that_double_each_other_end_in_a_message)
{
    std::string Text;
    for (int i = 0; i < 40; ++i) {
        const std::string Name = "Q" + std::string(1, static_cast<char>('A' + i / 26)) +
                                 std::string(1, static_cast<char>('A' + i % 26)) + "Q";
        const std::string Vorher = i == 0 ? "NOP" : Text.substr(Text.rfind("#define ") + 8, 4);
        Text += "#define " + Name + "\n" + Vorher + "\n" + Vorher + "\n#end def \n";
    }
    Laufen(Text + Text.substr(Text.rfind("#define ") + 8, 4));
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_EQ(Box.Meldungen.size(), 1U);
}

TEST_F(Makro_Welt, many_macros_and_many_uses_are_no_trouble)
{
    std::string Text = "#define Mach\nNOP\n#end def \n";
    for (int i = 0; i < 50000; ++i)
        Text += "Mach\n";
    Laufen(Text);
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 50000);
}

// --- INCLUDE -------------------------------------------------------------------------------------

class Include_Welt : public Assembler_Welt {
protected:
    Include_Welt()
    {
        Datei_Name    = (Ordner.Pfad / "quelle" / "haupt.asm").string();
        Programm_Pfad = (Ordner.Pfad / "programm" / "").string();
        for (const char* Name : {"quelle", "programm/include", "programm/mc"})
            std::filesystem::create_directories(Ordner.Pfad / Name);
    }

    void Erwarte(std::string_view Text, const Text_Paar& Meldung)
    {
        Erwarte_Fehler(Text, Meldung.D, Meldung.E);
    }

    void Neben_Quelle(const std::string& Name, std::string_view Bytes) const
    {
        Ordner.Anlegen("quelle/" + Name, Bytes);
    }

    static int Herkunft(std::size_t Zeile) { return Quell_Zeilen.at(Zeile).Herkunft; }

    Arbeitsordner Ordner{};
};

TEST_F(Include_Welt, a_file_is_searched_beside_the_source_then_in_include_then_in_mc)
{
    Ordner.Anlegen("programm/mc/x.inc", "DB 3");
    EXPECT_EQ(Assembliere("INCLUDE x.inc"), "03");
    EXPECT_EQ(Herkunft(0), Herkunft_Prozessorfile);
    Ordner.Anlegen("programm/include/x.inc", "DB 2");
    EXPECT_EQ(Assembliere("INCLUDE x.inc"), "02");
    EXPECT_EQ(Herkunft(0), Herkunft_Include);
    Neben_Quelle("x.inc", "DB 1");
    EXPECT_EQ(Assembliere("INCLUDE x.inc"), "01");
    EXPECT_EQ(Herkunft(0), Herkunft_Include);
}

TEST_F(Include_Welt, a_source_without_path_has_no_files_beside_it)
{
    Neben_Quelle("x.inc", "DB 1");
    Datei_Name.clear();
    Erwarte("INCLUDE x.inc", Include_Fehlt);
    Ordner.Anlegen("programm/include/x.inc", "DB 2");
    EXPECT_EQ(Assembliere("INCLUDE x.inc"), "02");
}

TEST_F(Include_Welt, a_processor_file_is_found_in_mc)
{
    Ordner.Anlegen("programm/mc/8051.mc", "P1 DATA 90h\n");
    EXPECT_EQ(Assembliere("Include 8051.mc\nMOV A,P1"), "E5 90");
    EXPECT_EQ(Herkunft(0), Herkunft_Prozessorfile);
    EXPECT_EQ(Herkunft(1), Herkunft_Haupttext);
}

TEST_F(Include_Welt, the_extension_makes_a_processor_file_wherever_it_is_found)
{
    Neben_Quelle("chip.Mc", "NOP");
    EXPECT_EQ(Assembliere("INCLUDE chip.Mc"), "00");
    EXPECT_EQ(Herkunft(0), Herkunft_Prozessorfile);
    Ordner.Anlegen("programm/include/ohnepunktmc", "NOP");
    EXPECT_EQ(Assembliere("INCLUDE ohnepunktmc"), "00");
    EXPECT_EQ(Herkunft(0), Herkunft_Prozessorfile);
}

TEST_F(Include_Welt, only_a_processor_file_changes_the_message_of_an_unknown_line)
{
    Neben_Quelle("x.inc", "NOP");
    Neben_Quelle("x.mc", "NOP");
    Erwarte("INCLUDE x.inc\nFOO", Ohne_Prozessor);
    Erwarte("INCLUDE x.mc\nFOO", Unbekannter_Befehl);
    Erwarte("INCLUDE x.inc\nINCLUDE x.mc\nFOO", Unbekannter_Befehl);
}

TEST_F(Include_Welt, a_missing_file_is_told_by_its_kind_and_its_line_is_selected)
{
    Erwarte("NOP\n INCLUDE fehlt.inc ;x\nNOP", Include_Fehlt);
    EXPECT_EQ(Fehler_Zeile, 1);
    EXPECT_EQ(Auswahl(), "INCLUDE fehlt.inc");
    Erwarte("NOP\nINCLUDE fehlt.mc", Prozessorfile_Fehlt);
    EXPECT_EQ(Auswahl(), "INCLUDE fehlt.mc");
    Erwarte("INCLUDE FEHLT.MC", Prozessorfile_Fehlt);
    Erwarte("INCLUDE fehltmc", Prozessorfile_Fehlt);
    Erwarte("INCLUDE \"fehlt.mc\"", Prozessorfile_Fehlt);
    Erwarte("INCLUDE fehlt.mcx", Include_Fehlt);
}

TEST_F(Include_Welt, a_missing_file_behind_other_files_is_selected_in_the_editor)
{
    Neben_Quelle("drei.inc", "NOP\nNOP\nNOP");
    Laufen("INCLUDE drei.inc\nNOP\nINCLUDE fehlt.inc\nNOP");
    EXPECT_EQ(Fehler_Zeile, 2);
    EXPECT_EQ(Auswahl(), "INCLUDE fehlt.inc");
}

TEST_F(Include_Welt, a_folder_is_no_file)
{
    std::filesystem::create_directories(Ordner.Pfad / "quelle" / "ordner.inc");
    Erwarte("INCLUDE ordner.inc", Include_Fehlt);
    Ordner.Anlegen("programm/include/ordner.inc", "NOP");
    EXPECT_EQ(Assembliere("INCLUDE ordner.inc"), "00");
}

TEST_F(Include_Welt, a_file_that_cannot_be_read_was_not_found)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser reads every file";
    const auto Pfad = Ordner.Anlegen("quelle/zu.inc", "NOP");
    std::filesystem::permissions(Pfad, std::filesystem::perms::none);
    Erwarte("INCLUDE zu.inc", Include_Fehlt);
}

TEST_F(Include_Welt, INCLUDE_without_a_name_is_an_unknown_line)
{
    Erwarte("INCLUDE", Ohne_Prozessor);
    Erwarte("include   ; x", Ohne_Prozessor);
}

TEST_F(Include_Welt, an_empty_name_is_a_missing_file)
{
    Erwarte("INCLUDE \"\"", Include_Fehlt);
    Erwarte("INCLUDE \"", Include_Fehlt);
    Erwarte("INCLUDES", Include_Fehlt);
    Erwarte("INCLUDE .", Include_Fehlt);
    Erwarte("INCLUDE ..", Include_Fehlt);
    Erwarte("INCLUDE \\", Include_Fehlt);
}

TEST_F(Include_Welt, the_name_begins_at_the_ninth_character_whatever_the_eighth_is)
{
    Neben_Quelle("fs.inc", "DB 7");
    EXPECT_EQ(Assembliere("INCLUDEDfs.inc"), "07");
}

TEST_F(Include_Welt, quotes_around_the_name_are_cut)
{
    Neben_Quelle("x.inc", "DB 1");
    Neben_Quelle("mit  zwei ; und 'mehr.inc", "DB 2");
    EXPECT_EQ(Assembliere("INCLUDE \"x.inc\""), "01");
    EXPECT_EQ(Assembliere("INCLUDE \"x.inc"), "01");
    EXPECT_EQ(Assembliere("INCLUDE x.inc\""), "01");
    EXPECT_EQ(Assembliere("INCLUDE \"mit  zwei ; und 'mehr.inc\""), "02");
}

TEST_F(Include_Welt, a_name_without_quotes_may_hold_blanks)
{
    Neben_Quelle("ein name.inc", "DB 1");
    EXPECT_EQ(Assembliere("INCLUDE   ein   name.inc  ; x"), "01");
}

TEST_F(Include_Welt, case_of_a_name_is_ignored_when_there_is_no_exact_match)
{
    Neben_Quelle("Defs.INC", "DB 1");
    EXPECT_EQ(Assembliere("INCLUDE dEFS.inc"), "01");
    Neben_Quelle("defs.inc", "DB 2");
    EXPECT_EQ(Assembliere("INCLUDE defs.inc"), "02");
    EXPECT_EQ(Assembliere("INCLUDE Defs.INC"), "01");
}

TEST_F(Include_Welt, an_inexact_match_beside_the_source_comes_before_an_exact_one_in_include)
{
    Ordner.Anlegen("programm/include/defs.inc", "DB 2");
    Neben_Quelle("DEFS.INC", "DB 1");
    EXPECT_EQ(Assembliere("INCLUDE defs.inc"), "01");
}

TEST_F(Include_Welt, backslashes_and_slashes_separate_folders)
{
    Neben_Quelle("teile/mehr/x.inc", "DB 1");
    EXPECT_EQ(Assembliere("INCLUDE teile\\mehr\\x.inc"), "01");
    EXPECT_EQ(Assembliere("INCLUDE teile/mehr/x.inc"), "01");
    EXPECT_EQ(Assembliere("INCLUDE TEILE\\mehr\\X.INC"), "01");
    Ordner.Anlegen("oben.inc", "DB 2");
    EXPECT_EQ(Assembliere("INCLUDE ..\\oben.inc"), "02");
}

TEST_F(Include_Welt, a_name_with_a_drive_is_absolute_and_is_not_searched)
{
    Neben_Quelle("C:/chips/x.inc", "DB 1");
    Ordner.Anlegen("programm/include/C:/chips/x.inc", "DB 2");
    Erwarte("INCLUDE \"C:\\chips\\x.inc\"", Include_Fehlt);
    Erwarte("INCLUDE \"C:\\chips\\my.mc\"", Prozessorfile_Fehlt);
}

TEST_F(Include_Welt, an_absolute_file_has_its_kind_from_the_extension)
{
    Ordner.Anlegen("C:/chips/x.inc", "DB 1");
    Ordner.Anlegen("C:/chips/my.mc", "DB 2");
    const auto Vorher = std::filesystem::current_path();
    std::filesystem::current_path(Ordner.Pfad);
    EXPECT_EQ(Assembliere("INCLUDE \"C:\\chips\\x.inc\""), "01");
    EXPECT_EQ(Herkunft(0), Herkunft_Include);
    EXPECT_EQ(Assembliere("Include \"C:\\chips\\my.mc\""), "02");
    EXPECT_EQ(Herkunft(0), Herkunft_Prozessorfile);
    std::filesystem::current_path(Vorher);
}

TEST_F(Include_Welt, without_quotes_the_colon_of_a_drive_is_taken_for_that_of_a_label)
{
    Erwarte("INCLUDE C:\\chips\\x.inc", Marken_Zeichen);
}

TEST_F(Include_Welt, the_rows_of_the_file_take_the_place_of_the_INCLUDE_row)
{
    Neben_Quelle("drei.inc", "DB 1\nDB 2\nDB 3\n");
    EXPECT_EQ(Assembliere("NOP\nINCLUDE drei.inc\nCLR A"), "00 01 02 03 E4");
    ASSERT_EQ(Zeilen_Anzahl(), 5);
    EXPECT_EQ(Zeilen_Text(1), "DB 1");
    EXPECT_EQ(Herkunft(0), Herkunft_Haupttext);
    EXPECT_EQ(Herkunft(1), Herkunft_Include);
    EXPECT_EQ(Herkunft(3), Herkunft_Include);
    EXPECT_EQ(Herkunft(4), Herkunft_Haupttext);
    ASSERT_EQ(Include_Liste.size(), 1U);
    EXPECT_EQ(Include_Liste[0].Erste_Zeile, 1);
    EXPECT_EQ(Include_Liste[0].Zeilen, 3);
    EXPECT_EQ(Letzte_Zeilenzahl, 6);
}

TEST_F(Include_Welt, the_file_passes_the_preparing_sweep)
{
    Neben_Quelle("x.inc", "  Marke:  mov   a , r0 ; note\nX EQU 5 'note\n");
    EXPECT_EQ(Assembliere("INCLUDE x.inc\nMOV A,#X\nLJMP marke"), "E8 74 05 02 00 00");
}

TEST_F(Include_Welt, a_label_ahead_of_INCLUDE_belongs_to_the_first_row_of_the_file)
{
    Neben_Quelle("x.inc", "NOP\nNOP");
    EXPECT_EQ(Assembliere("CLR A\nL: INCLUDE x.inc\nLJMP L"), "E4 00 00 02 00 01");
}

TEST_F(Include_Welt, a_file_included_twice_stands_twice)
{
    Neben_Quelle("x.inc", "DB 1");
    Neben_Quelle("marke.inc", "L: NOP");
    EXPECT_EQ(Assembliere("INCLUDE x.inc\nINCLUDE x.inc"), "01 01");
    Erwarte_Fehler("INCLUDE marke.inc\nINCLUDE marke.inc",
                   "Fehler in der einzubindenden Datei: " + Marke_Doppelt.D,
                   "Error in the include file!: " + Marke_Doppelt.E);
}

TEST_F(Include_Welt, END_in_a_file_ends_the_whole_program)
{
    Neben_Quelle("x.inc", "DB 1\nEND\n");
    EXPECT_EQ(Assembliere("INCLUDE x.inc\nFOO"), "01");
}

TEST_F(Include_Welt, nested_files_have_entries_of_their_own)
{
    Neben_Quelle("innen.mc", "DB 2\nDB 3");
    Neben_Quelle("aussen.inc", "DB 1\nINCLUDE innen.mc\nDB 4");
    EXPECT_EQ(Assembliere("INCLUDE aussen.inc\nDB 5"), "01 02 03 04 05");
    ASSERT_EQ(Include_Liste.size(), 2U);
    EXPECT_EQ(Include_Liste[0].Erste_Zeile, 0);
    EXPECT_EQ(Include_Liste[0].Zeilen, 3);
    EXPECT_EQ(Include_Liste[1].Erste_Zeile, 1);
    EXPECT_EQ(Include_Liste[1].Zeilen, 2);
    EXPECT_EQ(Herkunft(0), Herkunft_Include);
    EXPECT_EQ(Herkunft(1), Herkunft_Prozessorfile);
    EXPECT_EQ(Herkunft(3), Herkunft_Include);
}

TEST_F(Include_Welt, an_entry_is_of_the_kind_that_its_first_row_has_in_the_end)
{
    Neben_Quelle("innen.inc", "NOP");
    Neben_Quelle("aussen.mc", "INCLUDE innen.inc\nNOP");
    Erwarte("INCLUDE aussen.mc\nFOO", Ohne_Prozessor); // both entries begin at a row of innen.inc
}

TEST_F(Include_Welt, a_nested_file_is_searched_beside_the_source_and_not_beside_the_file)
{
    Neben_Quelle("teile/aussen.inc", "INCLUDE innen.inc");
    Neben_Quelle("teile/innen.inc", "DB 1");
    Erwarte("INCLUDE teile\\aussen.inc", Include_Fehlt);
    Neben_Quelle("innen.inc", "DB 2");
    EXPECT_EQ(Assembliere("INCLUDE teile\\aussen.inc"), "02");
}

TEST_F(Include_Welt, a_hundred_files_are_the_most)
{
    Neben_Quelle("x.inc", "DB 1");
    std::string Text;
    for (int i = 0; i < 100; ++i)
        Text += "INCLUDE x.inc\n";
    Laufen(Text);
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 100);
    Text += "INCLUDE x.inc\n";
    Laufen(Text);
    EXPECT_EQ(Letzte_Meldung(), Zuviele_Includes.E);
    EXPECT_EQ(Fehler_Zeile, 100);
    EXPECT_EQ(Auswahl(), "INCLUDE x.inc");
    Sprache = "D";
    Laufen(Text);
    EXPECT_EQ(Letzte_Meldung(), Zuviele_Includes.D);
}

TEST_F(Include_Welt, files_that_include_themselves_or_each_other_end_in_that_message)
{
    Neben_Quelle("selbst.inc", "NOP\nINCLUDE selbst.inc\nNOP");
    Neben_Quelle("a.inc", "INCLUDE b.inc");
    Neben_Quelle("b.inc", "INCLUDE a.inc");
    for (const char* Text : {"INCLUDE selbst.inc", "NOP\nINCLUDE a.inc"}) {
        Laufen(Text);
        EXPECT_EQ(Assembler_Fehler, 1);
        EXPECT_NE(Letzte_Meldung().find(Zuviele_Includes.E), std::string::npos) << Letzte_Meldung();
    }
}

TEST_F(Include_Welt, an_empty_file_counts_as_one_empty_line)
{
    Neben_Quelle("leer.inc", "");
    EXPECT_EQ(Assembliere("NOP\nINCLUDE leer.inc\nCLR A"), "00 E4");
    EXPECT_EQ(Zeilen_Anzahl(), 3);
    ASSERT_EQ(Include_Liste.size(), 1U);
    EXPECT_EQ(Include_Liste[0].Erste_Zeile, 1);
    EXPECT_EQ(Include_Liste[0].Zeilen, 1);
    EXPECT_EQ(Zeilen_Text(1), "");
}

TEST_F(Include_Welt, a_file_may_end_its_lines_in_any_way)
{
    Neben_Quelle("crlf.inc", "DB 1\r\nDB 2\r\n");
    Neben_Quelle("lf.inc", "DB 1\nDB 2\n");
    Neben_Quelle("cr.inc", "DB 1\rDB 2\r");
    Neben_Quelle("ohne.inc", "DB 1\nDB 2");
    for (const char* Name : {"crlf.inc", "lf.inc", "cr.inc", "ohne.inc"}) {
        EXPECT_EQ(Assembliere("INCLUDE " + std::string{Name} + "\nNOP"), "01 02 00") << Name;
        EXPECT_EQ(Zeilen_Anzahl(), 3) << Name;
        EXPECT_EQ(Include_Liste.at(0).Zeilen, 2) << Name;
    }
}

TEST_F(Include_Welt, a_file_may_be_UTF8_or_Windows_1252)
{
    Neben_Quelle("utf8.inc", "ASC: \xC3\xA4\xE2\x82\xAC");
    Neben_Quelle("bom.inc",
                 "\xEF\xBB\xBF"
                 "ASC: \xC3\xA4\xE2\x82\xAC");
    Neben_Quelle("1252.inc", "ASC: \xE4\x80");
    Neben_Quelle("fremd.inc", "ASC: \xCE\xA9");
    for (const char* Name : {"utf8.inc", "bom.inc", "1252.inc"})
        EXPECT_EQ(Assembliere("INCLUDE " + std::string{Name}), "E4 80") << Name;
    EXPECT_EQ(Assembliere("INCLUDE fremd.inc"), "3F");
}

TEST_F(Include_Welt, an_umlaut_in_the_name_is_that_of_the_file)
{
    Neben_Quelle("gr\xC3\xB6\xC3\x9F"
                 "e.inc",
                 "DB 1");
    EXPECT_EQ(Assembliere("INCLUDE gr\xF6\xDF"
                          "e.inc"),
              "01");
}

TEST_F(Include_Welt, bytes_of_every_value_in_a_file_end_in_a_clear_result)
{
    std::string Alle;
    for (int i = 0; i < 256; ++i)
        Alle += static_cast<char>(i);
    Neben_Quelle("alle.inc", Alle + Alle);
    Laufen("INCLUDE alle.inc");
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_EQ(Box.Meldungen.size(), 1U);
}

TEST_F(Include_Welt, a_define_in_a_file_is_never_seen)
{
    Neben_Quelle("makro.inc", "#define M1\nCLR A\n#end def \n");
    Erwarte_Fehler("INCLUDE makro.inc\nM1",
                   "Fehler in der einzubindenden Datei: " + Ohne_Prozessor.D,
                   "Error in the include file!: " + Ohne_Prozessor.E);
}

TEST_F(Include_Welt, a_macro_may_hold_an_INCLUDE)
{
    Neben_Quelle("x.inc", "DB 1");
    EXPECT_EQ(Assembliere("#define Hole\nINCLUDE x.inc\n#end def \nHole\nHole"), "01 01");
}

TEST_F(Include_Welt, a_long_name_is_a_missing_file)
{
    Erwarte("INCLUDE " + std::string(100000, 'x'), Include_Fehlt);
    Erwarte("INCLUDE " + std::string(10000, '\\') + "mc", Prozessorfile_Fehlt);
    Erwarte(std::string{"INCLUDE x\0y.inc", 15}, Include_Fehlt);
}

TEST_F(Include_Welt, a_file_of_many_lines_is_no_trouble)
{
    std::string Bytes;
    for (int i = 0; i < 100000; ++i)
        Bytes += "NOP\n";
    Neben_Quelle("viel.inc", Bytes);
    Laufen("INCLUDE viel.inc\nINCLUDE viel.inc\nNOP");
    EXPECT_EQ(Code_Ende, 200001);
    EXPECT_EQ(Include_Liste.at(1).Erste_Zeile, 100000);
}

// --- #IF DEBUGGING -------------------------------------------------------------------------------

class Bedingung_Welt : public Assembler_Welt {
protected:
    std::string Mit_Debugger(std::string_view Text)
    {
        Debugger_Aktiv             = true;
        const std::string Ergebnis = Assembliere(Text);
        Debugger_Aktiv             = false;
        return Ergebnis;
    }
};

TEST_F(Bedingung_Welt, a_block_is_assembled_only_when_its_condition_holds)
{
    const std::string Ja   = "DB 1\n#IF DEBUGGING\nDB 2\nDB 3\n#END IF\nDB 4";
    const std::string Nein = "DB 1\n#IF NOT DEBUGGING\nDB 2\nDB 3\n#END IF\nDB 4";
    EXPECT_EQ(Mit_Debugger(Ja), "01 02 03 04");
    EXPECT_EQ(Assembliere(Ja), "01 04");
    EXPECT_EQ(Mit_Debugger(Nein), "01 04");
    EXPECT_EQ(Assembliere(Nein), "01 02 03 04");
}

TEST_F(Bedingung_Welt, case_blanks_and_comments_do_not_matter)
{
    EXPECT_EQ(Assembliere(" #if   debugging ; x\nDB 2\n  #End  If 'x\nDB 4"), "04");
    EXPECT_EQ(Assembliere("#If Not Debugging\nDB 2\n#end if\nDB 4"), "02 04");
}

TEST_F(Bedingung_Welt, a_further_word_makes_the_line_unknown)
{
    Erwarte_Fehler("#IF DEBUGGING X\nNOP\n#END IF", Ohne_Prozessor.D, Ohne_Prozessor.E);
    Erwarte_Fehler("#IF NOTDEBUGGING\nNOP\n#END IF", Ohne_Prozessor.D, Ohne_Prozessor.E);
    Erwarte_Fehler("#IF\nNOP\n#END IF", Ohne_Prozessor.D, Ohne_Prozessor.E);
}

TEST_F(Bedingung_Welt, END_IF_with_a_further_word_ends_no_block)
{
    EXPECT_EQ(Assembliere("DB 1\n#IF DEBUGGING\nDB 2\n#END IF X\nDB 3"), "01");
}

TEST_F(Bedingung_Welt, a_false_block_is_not_looked_at)
{
    EXPECT_EQ(Assembliere("#IF DEBUGGING\nFOO\nMOV A,#256\nIF A=#5 THEN\nEND\n#END IF\nDB 4"),
              "04");
    EXPECT_EQ(Mit_Debugger("#IF DEBUGGING\nFOO\n#END IF\nDB 4"), Ohne_Prozessor.E);
}

TEST_F(Bedingung_Welt, the_rows_of_a_false_block_are_emptied_and_have_its_address)
{
    Laufen("DB 1,2,3\n#IF DEBUGGING\nFOO\n#END IF\nNOP");
    for (const std::size_t Zeile : {1U, 2U, 3U}) {
        EXPECT_EQ(Zeilen_Text(Zeile), "");
        EXPECT_EQ(Quell_Zeilen.at(Zeile).Adresse, 3);
    }
    EXPECT_EQ(Zeilen_Text(4), "NOP");
}

TEST_F(Bedingung_Welt, a_label_in_a_false_block_has_the_address_of_its_end)
{
    EXPECT_EQ(Assembliere("NOP\n#IF DEBUGGING\nDB 1\nX: DB 2\n#END IF\nLJMP X"), "00 02 00 01");
}

TEST_F(Bedingung_Welt, labels_and_files_in_a_false_block_are_still_prepared)
{
    Erwarte_Fehler("X: NOP\n#IF DEBUGGING\nX: NOP\n#END IF", Marke_Doppelt.D, Marke_Doppelt.E);
    Erwarte_Fehler("#IF DEBUGGING\nINCLUDE fehlt.inc\n#END IF", Include_Fehlt.D, Include_Fehlt.E);
}

TEST_F(Bedingung_Welt, a_name_defined_in_a_false_block_is_not_defined)
{
    EXPECT_EQ(
        Assembliere("#IF DEBUGGING\nX EQU 1\n#END IF\n#IF NOT DEBUGGING\nX EQU 2\n#END IF\nDB X"),
        "02");
    EXPECT_EQ(
        Mit_Debugger("#IF DEBUGGING\nX EQU 1\n#END IF\n#IF NOT DEBUGGING\nX EQU 2\n#END IF\nDB X"),
        "01");
}

TEST_F(Bedingung_Welt, a_false_block_without_end_reaches_to_the_end_of_the_text)
{
    EXPECT_EQ(Assembliere("DB 1\n#IF DEBUGGING\nDB 2\nFOO\nDB 3"), "01");
    EXPECT_EQ(Zeilen_Text(4), "");
    EXPECT_EQ(Assembler_Fehler, 0);
}

TEST_F(Bedingung_Welt, a_true_block_without_end_is_nothing)
{
    EXPECT_EQ(Mit_Debugger("DB 1\n#IF DEBUGGING\nDB 2\nDB 3"), "01 02 03");
}

TEST_F(Bedingung_Welt, END_IF_without_a_block_is_unknown)
{
    Erwarte_Fehler("NOP\n#END IF", Ohne_Prozessor.D, Ohne_Prozessor.E);
}

TEST_F(Bedingung_Welt, a_block_inside_a_block_ends_at_the_first_end)
{
    const std::string Text =
        "#IF DEBUGGING\nDB 1\n#IF DEBUGGING\nDB 2\n#END IF\nDB 3\n#END IF\nDB 4";
    EXPECT_EQ(Assembliere(Text), Ohne_Prozessor.E);
    EXPECT_EQ(Fehler_Zeile, 6);
    EXPECT_EQ(Hex_Text(0, 2), "03 FF");
}

TEST_F(Bedingung_Welt, inside_a_true_block_the_first_end_is_taken_by_the_outer_one)
{
    // The outer block empties the first end; the inner false one then goes on to the second.
    EXPECT_EQ(
        Mit_Debugger("#IF DEBUGGING\nDB 1\n#IF NOT DEBUGGING\nDB 2\n#END IF\nDB 3\n#END IF\nDB 4"),
        "01 04");
    // Both true: the inner one empties the second end too, so that none is left over.
    EXPECT_EQ(
        Mit_Debugger("#IF DEBUGGING\nDB 1\n#IF DEBUGGING\nDB 2\n#END IF\nDB 3\n#END IF\nDB 4"),
        "01 02 03 04");
}

TEST_F(Bedingung_Welt, two_blocks_in_a_row_work)
{
    EXPECT_EQ(Assembliere("#IF DEBUGGING\nDB 1\n#END IF\n#IF NOT DEBUGGING\nDB 2\n#END IF\nDB 3"),
              "02 03");
}

TEST_F(Bedingung_Welt, many_open_blocks_are_no_trouble)
{
    std::string Text;
    for (int i = 0; i < 100000; ++i)
        Text += "#IF NOT DEBUGGING\n";
    EXPECT_EQ(Assembliere(Text + "NOP"), "00");
    EXPECT_EQ(Mit_Debugger(Text + "NOP"), "");
}

} // namespace
} // namespace varnholt::test
