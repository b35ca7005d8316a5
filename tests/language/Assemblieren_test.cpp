// The run of the assembler: its stages, progress, yields and cancel, the line that an error is
// shown at, the normal form of lines, and what a run leaves behind.
#include "language/Assembler_Hilfe.h"
#include "language/Meldungs_Texte.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

const Text_Paar IF_Offen{"If ... Then ohne End IF !", "If ... Then without End If!"};
const Text_Paar FOR_Offen{"For ohne Next !", "For without Next !"};

class Assemblieren_Welt : public Assembler_Welt {
protected:
    void Erwarte(std::string_view Text, const Text_Paar& Meldung)
    {
        Erwarte_Fehler(Text, Meldung.D, Meldung.E);
    }

    // The text ends in error, shown at this line, with this selection.
    void Erwarte_Stelle(std::string_view Text, int Zeile, const std::string& Gewaehlt)
    {
        Laufen(Text);
        EXPECT_EQ(Assembler_Fehler, 1) << Kurz(Text);
        EXPECT_EQ(Fehler_Zeile, Zeile) << Kurz(Text);
        EXPECT_EQ(Auswahl(), Gewaehlt) << Kurz(Text);
    }

    // Asks for the end of the run at that turn of the event loop, and assembles.
    void Abbrechen_Bei(int Runde, std::string_view Text)
    {
        Ereignisse.Runden    = 0;
        Ereignisse.Bei_Runde = [Runde](int Nummer) {
            if (Nummer == Runde)
                Abbruch = true;
        };
        Status.Texte.clear();
        Laufen(Text);
    }

    bool Bild_Ist_Leer() const
    {
        return std::all_of(Hex_Daten.begin(), Hex_Daten.end(), [](auto b) { return b == 0xFF; });
    }

    // The text of the status dialog at each turn of the event loop.
    std::vector<std::string> Texte_Der_Runden(std::string_view Text)
    {
        std::vector<std::string> Gesehen;
        Ereignisse.Bei_Runde = [&](int) {
            Gesehen.push_back(Status.Texte.empty() ? "" : Status.Texte.back());
        };
        Laufen(Text);
        Ereignisse.Bei_Runde = {};
        return Gesehen;
    }
};

std::string Zeilen(int Anzahl, std::string_view Zeile)
{
    std::string Text;
    for (int i = 0; i < Anzahl; ++i)
        Text.append(Zeile).append("\n");
    return Text;
}

// --- stages --------------------------------------------------------------------------------------

TEST_F(Assemblieren_Welt, shows_its_progress_in_English)
{
    Laufen("NOP\nNOP\nNOP");
    const std::vector<std::string> Soll{" Assembling data...",
                                        " Assembling data...  2%",
                                        " Assembling data...  6%",
                                        " Assembling data...  10%",
                                        " Assembling data...  12%",
                                        " Assembling data...  13%",
                                        " Assembling data...  14%"};
    ASSERT_GE(Status.Texte.size(), Soll.size());
    EXPECT_TRUE(std::equal(Soll.begin(), Soll.end(), Status.Texte.begin()))
        << ::testing::PrintToString(Status.Texte);
}

TEST_F(Assemblieren_Welt, shows_its_progress_in_German)
{
    Sprache = "D";
    Laufen("NOP\nNOP\nNOP");
    const std::vector<std::string> Soll{" Assemblierung läuft...",
                                        " Assemblierung läuft...  2%",
                                        " Assemblierung läuft...  6%",
                                        " Assemblierung läuft...  10%",
                                        " Assemblierung läuft...  12%",
                                        " Assemblierung läuft...  13%",
                                        " Assemblierung läuft...  14%"};
    ASSERT_GE(Status.Texte.size(), Soll.size());
    EXPECT_TRUE(std::equal(Soll.begin(), Soll.end(), Status.Texte.begin()))
        << ::testing::PrintToString(Status.Texte);
}

TEST_F(Assemblieren_Welt, moves_the_bar_by_2_6_10_and_then_from_12_on)
{
    Laufen("NOP\nNOP\nNOP");
    EXPECT_EQ(Status.Balken, (std::vector<int>{2, 6, 10, 12, 13, 14, 100}));
}

TEST_F(Assemblieren_Welt, the_bar_reaches_99_with_88_rows)
{
    Laufen(Zeilen(87, "NOP") + "NOP");
    std::vector<int> Soll{2, 6, 10};
    for (int i = 12; i <= 99; ++i)
        Soll.push_back(i);
    Soll.push_back(100);
    EXPECT_EQ(Status.Balken, Soll);
}

TEST_F(Assemblieren_Welt, the_bar_stays_below_100_until_the_end_when_the_steps_are_small)
{
    Laufen(Zeilen(174, "NOP") + "NOP"); // 175 / 88 is 1: a step a row
    ASSERT_EQ(Status.Balken.size(), 3U + 88 + 1);
    EXPECT_EQ(Status.Balken[Status.Balken.size() - 2], 99);
    EXPECT_EQ(Status.Balken.back(), 100);
}

TEST_F(Assemblieren_Welt, the_bar_moves_every_other_row_with_176_rows)
{
    Laufen(Zeilen(175, "NOP") + "NOP");
    ASSERT_EQ(Status.Balken.size(), 3U + 88 + 1);
    EXPECT_EQ(Status.Balken[3], 12);
    EXPECT_EQ(Status.Balken[Status.Balken.size() - 2], 99);
}

TEST_F(Assemblieren_Welt, rows_without_text_do_not_move_the_bar)
{
    Laufen("NOP\n\n; note\nNOP");
    EXPECT_EQ(Status.Balken, (std::vector<int>{2, 6, 10, 12, 15, 100}));
}

TEST_F(Assemblieren_Welt, yields_at_each_stage_after_its_text_was_set)
{
    const std::vector<std::string> Gesehen = Texte_Der_Runden("NOP\nNOP");
    ASSERT_EQ(Gesehen.size(), 8U) << ::testing::PrintToString(Gesehen);
    EXPECT_EQ(Gesehen[0], " Assembling data...");
    EXPECT_EQ(Gesehen[1], " Assembling data...  2%");
    EXPECT_EQ(Gesehen[2], " Assembling data...  6%");
    EXPECT_EQ(Gesehen[3], " Assembling data...  10%");
    EXPECT_EQ(Gesehen[4], " Assembling data...  12%");
    EXPECT_EQ(Gesehen[5], " Assembling data...  13%");
    EXPECT_EQ(Gesehen[6], " Assembling data...  13%"); // ahead of the second patching sweep
}

TEST_F(Assemblieren_Welt, opens_the_status_dialog_once_and_closes_it_and_frees_the_pointer)
{
    bool Wartet          = false;
    bool Offen           = true;
    Ereignisse.Bei_Runde = [&](int Nummer) {
        Wartet = Wartet || Ereignisse.Zeiger_Wartet;
        Offen  = Offen && (Status.Offen || Nummer == Ereignisse.Runden);
    };
    Laufen("NOP");
    EXPECT_EQ(Status.Geoeffnet, 1);
    EXPECT_TRUE(Wartet);
    EXPECT_TRUE(Offen);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_DOUBLE_EQ(Ereignisse.Gewartet, 0.1);
}

TEST_F(Assemblieren_Welt, a_complete_run_leaves_its_counts)
{
    Laufen("NOP\nDB 1,2\nMOV A,#5\nLOOP: SJMP LOOP\n\n; note");
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 7);
    EXPECT_EQ(Befehl_Zaehler, 3);
    EXPECT_EQ(Zeilen_Anzahl(), 6);
    EXPECT_EQ(Letzte_Zeilenzahl, 7);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Assemblieren_Welt, instructions_are_counted_and_data_and_definitions_are_not)
{
    Laufen(
        "X EQU 5\nHEX: 1\nDEZ: 1\nASC: a\nDW 1\nORG 20h\n(30h): NOP\nPUSHA\nSTOP\nMOV A,#X\nEND");
    EXPECT_EQ(Befehl_Zaehler, 3);
    Laufen("IF A=#5 THEN\nNOP\nEND IF\nFOR A=#1 TO #5\nNOP\nNEXT");
    EXPECT_EQ(Befehl_Zaehler, 3 + 1 + 1 + 1);
    Laufen("NOP");
    EXPECT_EQ(Befehl_Zaehler, 1);
}

TEST_F(Assemblieren_Welt, a_run_that_fails_keeps_the_row_count_of_the_last_complete_one)
{
    Laufen("NOP\nNOP");
    EXPECT_EQ(Letzte_Zeilenzahl, 3);
    Laufen("FOO\nNOP\nNOP\nNOP");
    EXPECT_EQ(Letzte_Zeilenzahl, 3);
}

TEST_F(Assemblieren_Welt, an_empty_text_is_one_empty_row)
{
    EXPECT_EQ(Assembliere(""), "");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Zeilen_Anzahl(), 1);
    EXPECT_EQ(Zeilen_Text(0), "");
    EXPECT_EQ(Code_Ende, 0);
    EXPECT_EQ(Befehl_Zaehler, 0);
    EXPECT_EQ(Letzte_Zeilenzahl, 2);
    EXPECT_TRUE(Bild_Ist_Leer());
}

TEST_F(Assemblieren_Welt, a_last_line_without_line_end_is_taken)
{
    EXPECT_EQ(Assembliere("NOP\nCLR A"), "00 E4");
    EXPECT_EQ(Zeilen_Anzahl(), 2);
    EXPECT_EQ(Assembliere("NOP\nCLR A\n"), "00 E4");
    EXPECT_EQ(Zeilen_Anzahl(), 3);
}

TEST_F(Assemblieren_Welt, the_editor_keeps_its_text)
{
    Laufen("NOP\nMOV A,#5 ; note");
    EXPECT_EQ(Edit.Inhalt, "NOP\r\nMOV A,#5 ; note");
}

TEST_F(Assemblieren_Welt, the_image_is_erased_ahead_of_a_run)
{
    Hex_Daten.fill(0);
    Hex_Groesse = 1000;
    Laufen("NOP");
    EXPECT_EQ(Hex_Groesse, 524288);
    EXPECT_EQ(Hex_Daten[0], 0);
    Hex_Daten[0] = 0xFF;
    EXPECT_TRUE(Bild_Ist_Leer());
}

TEST_F(Assemblieren_Welt, a_run_leaves_nothing_to_the_next_one)
{
    EXPECT_EQ(Assembliere("X EQU 5\nL: IF A=#5 THEN\nFOR A=#1 TO #5\nNOP"), IF_Offen.E);
    EXPECT_EQ(Assembliere("NOP"), "00");
    EXPECT_EQ(Assembliere("L: MOV A,#X"), Ohne_Prozessor.E);
    EXPECT_EQ(Assembliere("X EQU 5\nL: MOV A,#X"), "74 05");
}

TEST_F(Assemblieren_Welt, with_any_other_language_no_box_appears_but_the_run_fails)
{
    Sprache = "F";
    Laufen("FOO");
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_TRUE(Box.Meldungen.empty());
}

// --- cancel --------------------------------------------------------------------------------------

TEST_F(Assemblieren_Welt, a_cancel_at_the_start_or_at_2_percent_ends_the_run_there)
{
    for (const int Runde : {1, 2}) {
        Hex_Daten.fill(0);
        Abbrechen_Bei(Runde, "NOP\nFOO");
        EXPECT_EQ(Status.Texte.back(), " Assembling data...  2%");
        EXPECT_EQ(Assembler_Fehler, 1);
        EXPECT_TRUE(Bild_Ist_Leer());
    }
}

TEST_F(Assemblieren_Welt, a_cancel_at_6_percent_ends_the_run_there)
{
    Abbrechen_Bei(3, "NOP\nFOO");
    EXPECT_EQ(Status.Texte.back(), " Assembling data...  6%");
    EXPECT_EQ(Assembler_Fehler, 1);
}

TEST_F(Assemblieren_Welt, a_cancel_at_10_percent_leaves_the_image_erased)
{
    Hex_Daten.fill(0);
    Abbrechen_Bei(4, "NOP\nFOO");
    EXPECT_EQ(Status.Texte.back(), " Assembling data...  10%");
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_TRUE(Bild_Ist_Leer());
}

TEST_F(Assemblieren_Welt, a_cancel_in_the_emitting_sweep_keeps_the_bytes_of_the_rows_before)
{
    Ereignisse.Bei_Runde = [this](int) {
        if (Status.Texte.back().find(" 13%") != std::string::npos)
            Abbruch = true;
    };
    Laufen("MOV A,#5\nNOP\nFOO");
    EXPECT_EQ(Status.Texte.back(), " Assembling data...  13%");
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_EQ(Hex_Text(0, 4), "74 05 FF FF");
}

TEST_F(Assemblieren_Welt, a_cancel_shows_no_box_and_clears_up)
{
    for (const int Runde : {2, 3, 4, 5}) {
        Abbrechen_Bei(Runde, "NOP\nNOP");
        EXPECT_EQ(Assembler_Fehler, 1) << Runde;
        EXPECT_FALSE(Abbruch) << Runde;
        EXPECT_FALSE(Text_Aktuell) << Runde;
        EXPECT_FALSE(Status.Offen) << Runde;
        EXPECT_FALSE(Ereignisse.Zeiger_Wartet) << Runde;
        EXPECT_TRUE(Box.Meldungen.empty()) << Runde;
    }
}

TEST_F(Assemblieren_Welt, a_cancel_behind_the_emitting_sweep_comes_too_late)
{
    Abbrechen_Bei(6, "NOP");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_TRUE(Text_Aktuell);
}

TEST_F(Assemblieren_Welt, an_error_of_the_preparing_sweep_comes_before_the_cancel_at_10_percent)
{
    Abbrechen_Bei(4, "X: NOP\nX: NOP");
    EXPECT_EQ(Letzte_Meldung(), Marke_Doppelt.E);
    EXPECT_EQ(Status.Texte.back(), " Assembling data...  6%");
}

// --- lines ---------------------------------------------------------------------------------------

TEST_F(Assemblieren_Welt, a_line_feed_alone_ends_no_line_and_a_return_takes_the_next_character)
{
    Edit.Inhalt = "NOP\nNOP";
    Assemblieren();
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_EQ(Zeilen_Anzahl(), 1);
    Assembler_Fehler = 0;
    Edit.Inhalt      = "NOP\rxCLR A\rxNOP";
    Assemblieren();
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Hex_Text(0, Code_Ende), "00 E4 00");
}

TEST_F(Assemblieren_Welt, case_blanks_and_tabs_do_not_matter)
{
    EXPECT_EQ(Assembliere("  mov   a , r0  "), "E8");
    EXPECT_EQ(Assembliere("\tMoV\tA\t,\tR0\t"), "E8");
    EXPECT_EQ(Assembliere("MOV A  ,  R0"), "E8");
    EXPECT_EQ(Assembliere("mov a,#5\nMOV 30H , #0FH"), "74 05 75 30 0F");
}

TEST_F(Assemblieren_Welt, a_comment_begins_at_a_semicolon_or_an_apostrophe_outside_quotes)
{
    EXPECT_EQ(Assembliere("NOP ; FOO\nNOP' FOO\n;FOO\n  'FOO\nNOP;"), "00 00 00");
    EXPECT_EQ(Assembliere("DB \"a;b'c\" ; FOO"), "61 3B 62 27 63");
    EXPECT_EQ(Assembliere("DB 1 'A'"), "01");
    EXPECT_EQ(Assembliere("DB 1,'\"',2"), "01");
}

TEST_F(Assemblieren_Welt, an_unbalanced_quote_switches_the_comment_search_off)
{
    Laufen("DB 1,\"a ; b");
    EXPECT_EQ(Zeilen_Text(0), "DB 1,\"a ; b");
}

struct Form_Fall {
    const char* Zeile;
    const char* Normal;
};

void PrintTo(const Form_Fall& Fall, std::ostream* Aus) { *Aus << Fall.Zeile; }

class Normalform : public Assemblieren_Welt, public ::testing::WithParamInterface<Form_Fall> {};

TEST_P(Normalform, is_what_the_row_holds)
{
    Laufen(GetParam().Zeile);
    EXPECT_EQ(Zeilen_Text(0), GetParam().Normal);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Zeilen, Normalform, ::testing::Values(
    Form_Fall{"  mov   a , r0  ; x",    "mov a,r0"},
    Form_Fall{"a\t\tb",                 "a b"},
    Form_Fall{"A , B",                  "A,B"},
    Form_Fall{"A ,B, C",                "A,B,C"},
    Form_Fall{"A , , B",                "A,,B"},
    Form_Fall{"a \"b  c\"  d",          "a \"b  c\" d"},
    Form_Fall{"a \"b , c\" , d",        "a \"b , c\",d"},
    Form_Fall{"a \"b\tc\"\td",          "a \"b\tc\" d"},
    Form_Fall{"\"b  c\"  ,  d",         "\"b c\"  ,  d"},
    Form_Fall{"a \"b  c  ,  d",         "a \"b  c  ,  d"},
    Form_Fall{"LOOP:  mov   a,r0",      "mov a,r0"},
    Form_Fall{"   ",                    ""},
    Form_Fall{"\t;x",                   ""}));
// clang-format on

TEST_F(Assemblieren_Welt, a_label_is_kept_in_upper_case_with_its_colon_and_cut_from_the_text)
{
    Laufen("Loop: nop\nNOP");
    EXPECT_EQ(Quell_Zeilen.at(0).Marke.Ansicht(), "LOOP:");
    EXPECT_EQ(Zeilen_Text(0), "nop");
    EXPECT_EQ(Quell_Zeilen.at(0).Herkunft, Herkunft_Haupttext);
    EXPECT_EQ(Quell_Zeilen.at(1).Marke.Ansicht(), "");
    EXPECT_EQ(Quell_Zeilen.at(1).Adresse, 1);
}

TEST_F(Assemblieren_Welt, huge_lines_and_many_rows_are_no_trouble)
{
    const std::string Million(1000000, 'x');
    EXPECT_EQ(Assembliere("NOP ;" + Million), "00");
    EXPECT_EQ(Assembliere(Million), Ohne_Prozessor.E);
    EXPECT_EQ(Assembliere("NOP" + std::string(1000000, ' ')), "00");
    EXPECT_EQ(Assembliere("DB 1" + std::string(1000000, ',') + "2"), "01 02");
    EXPECT_EQ(Assembliere("DB " + std::string(1000000, '"')), "");
    EXPECT_EQ(Assembliere(Million + ": NOP"), "00");
    Laufen(Zeilen(300000, "NOP"));
    EXPECT_EQ(Code_Ende, 300000);
    EXPECT_EQ(Letzte_Zeilenzahl, 300002);
    Laufen(Zeilen(1000000, ""));
    EXPECT_EQ(Letzte_Zeilenzahl, 1000002);
}

TEST_F(Assemblieren_Welt, bytes_of_every_value_end_in_a_clear_result)
{
    std::string Alle;
    for (int i = 0; i < 256; ++i)
        Alle += static_cast<char>(i);
    for (const std::string& Text : {Alle, "DB \"" + Alle + "\"", "ASC: " + Alle, Alle + ":"}) {
        Edit.Inhalt      = Text;
        Assembler_Fehler = 0;
        Text_Aktuell     = false;
        Assemblieren();
        EXPECT_EQ(Text_Aktuell, Assembler_Fehler == 0);
    }
}

// --- END, open structures, addresses -------------------------------------------------------------

TEST_F(Assemblieren_Welt, text_behind_END_is_not_looked_at)
{
    for (const char* Ende : {"END", "ENDE", "end", "END 5", "ENDE ; x"})
        EXPECT_EQ(Assembliere("NOP\n" + std::string{Ende} + "\nFOO  BAR\nCLR A"), "00") << Ende;
    EXPECT_EQ(Zeilen_Text(1), "");
    EXPECT_EQ(Zeilen_Text(2), "FOO BAR");
    EXPECT_EQ(Quell_Zeilen.at(3).Adresse, 0);
    EXPECT_EQ(Letzte_Zeilenzahl, 5);
}

TEST_F(Assemblieren_Welt, ENDX_is_no_END) { Erwarte("ENDX", Ohne_Prozessor); }

TEST_F(Assemblieren_Welt, rows_behind_END_still_pass_the_preparing_sweep)
{
    Erwarte("X: NOP\nEND\nX: NOP", Marke_Doppelt);
    Erwarte_Fehler("NOP\nEND\nINCLUDE fehlt.inc",
                   "Die einzubindene Datei konnte nicht gefunden werden!",
                   "Can't find the include file!");
}

TEST_F(Assemblieren_Welt, a_label_behind_END_is_found_at_address_0)
{
    EXPECT_EQ(Assembliere("NOP\nLJMP X\nEND\nNOP\nX: NOP"), "00 02 00 00");
}

TEST_F(Assemblieren_Welt, END_in_an_open_structure_is_no_error)
{
    EXPECT_EQ(Assembliere("IF A=#5 THEN\nNOP\nEND"), "B4 05 02 80 03 02 FF FF 00");
    EXPECT_EQ(Assembliere("FOR A=#1 TO #5\nNOP\nEND"), "74 01 00");
}

TEST_F(Assemblieren_Welt, an_open_IF_is_shown_at_its_line)
{
    Erwarte("IF A=#5 THEN\nNOP", IF_Offen);
    Erwarte_Stelle("NOP\n if a=#5 then ; x\nNOP\nNOP", 1, "if a=#5 then");
    Erwarte_Stelle("IF A=#1 THEN\nNOP\nIF A=#2 THEN\nNOP\nNOP\nEND IF\nNOP", 0, "IF A=#1 THEN");
    Erwarte_Stelle("IF A=#1 THEN\nIF A=#2 THEN\nNOP\nEND IF\nNOP", 1, "IF A=#2 THEN");
    Erwarte_Stelle("IF A=#1 THEN\nNOP\nIF A=#2 THEN\nNOP\nNOP", 2, "IF A=#2 THEN");
    Erwarte_Stelle("IF A=#1 THEN", 0, "IF A=#1 THEN");
}

TEST_F(Assemblieren_Welt, an_open_FOR_is_shown_at_its_line)
{
    Erwarte("FOR A=#1 TO #5\nNOP", FOR_Offen);
    Erwarte_Stelle("NOP\nFor A=#1 TO #5\nNOP\nNOP", 1, "For A=#1 TO #5");
}

TEST_F(Assemblieren_Welt, an_open_IF_comes_before_an_open_FOR)
{
    Erwarte("FOR A=#1 TO #5\nIF A=#5 THEN\nNOP", IF_Offen);
    Erwarte("IF A=#5 THEN\nFOR A=#1 TO #5\nNOP", IF_Offen);
    Erwarte("FOR A=#1 TO #5\nIF A=#5 THEN\nNOP\nEND IF", FOR_Offen);
}

TEST_F(Assemblieren_Welt, an_ORG_far_above_the_code_is_the_end_of_the_code)
{
    Laufen("NOP\nORG 1000h");
    EXPECT_EQ(Code_Ende, 0x1000);
    EXPECT_EQ(Hex_Daten[1], 0xFF);
    Laufen("ORG 1000h\nNOP\nORG 10h");
    EXPECT_EQ(Code_Ende, 0x10);
    EXPECT_EQ(Hex_Daten[0x1000], 0);
}

TEST_F(Assemblieren_Welt, above_address_524288_the_text_ends)
{
    Laufen("ORG 524288\nFOO");
    EXPECT_EQ(Letzte_Meldung(), Ohne_Prozessor.E);
    Laufen("ORG 524289\nFOO");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 524289);
    Laufen("ORG 99999999\nFOO");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 99999999);
}

TEST_F(Assemblieren_Welt, the_last_byte_of_the_image_is_that_at_524288)
{
    Laufen("ORG 524288\nNOP\nFOO");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 524289);
    EXPECT_EQ(Hex_Daten[524288], 0);
    Laufen("ORG 524287\nLJMP (1234h)\nFOO");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 524290);
    EXPECT_EQ(Hex_Text(524286, 524289), "FF 02 12");
    Laufen("ORG 524288\nDB 1,2,3\nASC: abc\nFOO");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Hex_Daten[524288], 1);
}

TEST_F(Assemblieren_Welt, data_across_the_upper_end_are_lost_there)
{
    Laufen("ORG 524280\nASC: " + std::string(100000, 'x') + "\nFOO");
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Code_Ende, 624280);
    EXPECT_EQ(Hex_Daten[524288], 'x');
}

TEST_F(Assemblieren_Welt, the_address_limit_does_not_hide_an_open_IF)
{
    Erwarte("IF A=#5 THEN\nORG 524289\nFOO", IF_Offen);
}

TEST_F(Assemblieren_Welt, negative_addresses_do_no_harm)
{
    for (const char* Text : {"ORG 0-1\nNOP", "ORG 0-5\nDB 1,2", "ORG 0-99999999\nLJMP X\nX: NOP"}) {
        Laufen(Text);
        EXPECT_EQ(Text_Aktuell, Assembler_Fehler == 0) << Text;
        EXPECT_EQ(Assembler_Fehler == 1, !Box.Meldungen.empty()) << Text;
    }
}

// --- errors --------------------------------------------------------------------------------------

TEST_F(Assemblieren_Welt, an_error_leaves_what_was_emitted_with_its_placeholders)
{
    Laufen("MOV A,#5\nLJMP X\nSJMP X\nFOO\nX: NOP");
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_EQ(Hex_Text(0, 9), "74 05 02 FF FF 80 FF FF FF");
}

TEST_F(Assemblieren_Welt, the_first_error_is_the_only_one)
{
    Laufen("FOO\nMOV A,#256\nLJMP X");
    EXPECT_EQ(Box.Meldungen.size(), 1U);
    EXPECT_EQ(Fehler_Zeile, 0);
}

TEST_F(Assemblieren_Welt, an_error_is_shown_in_a_critical_box_and_gives_the_editor_the_focus)
{
    Laufen("FOO");
    ASSERT_EQ(Box.Meldungen.size(), 1U);
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Kritisch);
    EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ok);
    EXPECT_TRUE(Edit.Hat_Fokus);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_EQ(Assembler_Fehler, 1);
}

TEST_F(Assemblieren_Welt, the_failing_line_is_selected_without_margins_and_comment)
{
    Erwarte_Stelle("FOO", 0, "FOO");
    Erwarte_Stelle("NOP\n \t FOO  BAR \t ; note", 1, "FOO  BAR");
    Erwarte_Stelle("NOP\nFOO'note\nNOP", 1, "FOO");
    Erwarte_Stelle("NOP\n\nX: FOO ;\nNOP", 2, "X: FOO");
    Erwarte_Stelle("NOP\nNOP\nFOO\n", 2, "FOO");
}

TEST_F(Assemblieren_Welt,
       quotes_do_not_hold_a_comment_off_the_selection_but_the_control_character_1D_does)
{
    Erwarte_Stelle("FOO \"a;b\"", 0, "FOO \"a");
    Erwarte_Stelle("FOO \"a'b\"", 0, "FOO \"a");
    Erwarte_Stelle("FOO \x1D"
                   "a;b\x1D ; note",
                   0,
                   "FOO \x1D"
                   "a;b\x1D");
}

TEST_F(Assemblieren_Welt, errors_of_every_sweep_are_shown_at_their_line)
{
    Erwarte_Stelle("X: NOP\nNOP\nX: CLR A", 2, "X: CLR A");  // preparing
    Erwarte_Stelle("NOP\nLJMP X\nNOP", 1, "LJMP X");         // first patching sweep
    Erwarte_Stelle("NOP\nNOP\nSJMP X\nNOP", 2, "SJMP X");    // second patching sweep
    Erwarte_Stelle("NOP\nMOV A,#256\nNOP", 1, "MOV A,#256"); // emitting
    Erwarte_Stelle("NOP\nEND IF\nNOP", 1, "END IF");
}

TEST_F(Assemblieren_Welt, an_error_in_a_one_line_IF_is_shown_at_its_line)
{
    Erwarte_Stelle("NOP\nIF A=#5 THEN FOO\nNOP", 1, "IF A=#5 THEN FOO");
    Erwarte_Stelle("NOP\n(10h): FOO\nNOP", 1, "(10h): FOO");
}

TEST_F(Assemblieren_Welt, a_macro_moves_the_error_line_by_the_lines_that_it_added)
{
    const std::string Macro = "#define M\nNOP\nFOO\n#end def \n";
    Erwarte_Stelle(Macro + "M\nCLR A\nSETB C", 5, "CLR A");
    Erwarte_Stelle("#define M\nFOO\n#end def \nNOP\nM\nNOP", 4, "M");
    Erwarte_Stelle("#define M\nNOP\nNOP\n#end def \nM\nM\nFOO\nCLR A\nSETB C", 8, "SETB C");
}

TEST_F(Assemblieren_Welt, a_row_behind_the_last_line_of_the_editor_shows_at_the_last_line)
{
    Erwarte_Stelle("#define M\nNOP\nFOO\n#end def \nM", 4, "M");
    Erwarte_Stelle("#define M\nNOP\nNOP\nNOP\n#end def \nM\nM\nFOO", 7, "FOO");
}

class Include_Fehler_Welt : public Assemblieren_Welt {
protected:
    Include_Fehler_Welt()
    {
        Datei_Name = (Ordner.Pfad / "haupt.asm").string();
        Ordner.Anlegen("drei.inc", "NOP\nNOP\nNOP\n");
        Ordner.Anlegen("falsch.inc", "NOP\nFOO\nNOP\n");
        Ordner.Anlegen("leer.inc", "");
    }

    Arbeitsordner Ordner{};
};

TEST_F(Include_Fehler_Welt, an_error_in_an_included_file_is_shown_at_the_INCLUDE_line)
{
    Erwarte_Fehler("NOP\nINCLUDE falsch.inc\nNOP",
                   "Fehler in der einzubindenden Datei: " + Ohne_Prozessor.D,
                   "Error in the include file!: " + Ohne_Prozessor.E);
    Erwarte_Stelle("NOP\n INCLUDE falsch.inc ; x\nNOP", 1, "INCLUDE falsch.inc");
    Erwarte_Stelle("INCLUDE drei.inc\nNOP\nINCLUDE falsch.inc\nNOP", 2, "INCLUDE falsch.inc");
}

TEST_F(Include_Fehler_Welt, an_error_behind_included_files_is_shown_at_its_line)
{
    Erwarte_Stelle("INCLUDE drei.inc\nFOO", 1, "FOO");
    Erwarte_Stelle("INCLUDE drei.inc\nNOP\nINCLUDE drei.inc\nNOP\nFOO ; x\nNOP", 4, "FOO");
    Erwarte_Stelle("INCLUDE leer.inc\nNOP\nINCLUDE leer.inc\nFOO\nNOP", 3, "FOO");
    EXPECT_EQ(Letzte_Meldung(), Ohne_Prozessor.E);
}

TEST_F(Include_Fehler_Welt, an_error_before_an_included_file_is_shown_at_its_line)
{
    Erwarte_Stelle("NOP\nFOO\nINCLUDE drei.inc", 1, "FOO");
}

TEST_F(Include_Fehler_Welt, an_error_behind_nested_files_is_shown_at_its_line)
{
    Ordner.Anlegen("aussen.inc", "NOP\nINCLUDE drei.inc\nNOP\n");
    Erwarte_Stelle("NOP\nINCLUDE aussen.inc\nNOP\nFOO", 3, "FOO");
}

TEST_F(Include_Fehler_Welt, an_error_in_a_nested_file_is_shown_at_the_outer_INCLUDE_line)
{
    Ordner.Anlegen("aussen.inc", "INCLUDE falsch.inc\nNOP\n");
    Erwarte_Stelle("NOP\nINCLUDE aussen.inc\nNOP", 1, "INCLUDE aussen.inc");
    EXPECT_EQ(Letzte_Meldung(), "Error in the include file!: " + Ohne_Prozessor.E);
}

TEST_F(Include_Fehler_Welt, rows_that_a_nested_file_pushed_out_of_the_outer_range_have_no_prefix)
{
    Ordner.Anlegen("aussen.inc",
                   "NOP\nINCLUDE drei.inc\nFOO\n"); // FOO stands in row 4, the range ends at 2
    Erwarte_Stelle("INCLUDE aussen.inc\nNOP\nNOP", 0, "INCLUDE aussen.inc");
    EXPECT_EQ(Letzte_Meldung(), Ohne_Prozessor.E);
}

TEST_F(Include_Fehler_Welt, a_line_before_the_first_one_is_the_first_one)
{
    Ordner.Anlegen("vier.inc", "NOP\nNOP\nNOP\nFOO\n");
    Ordner.Anlegen("aussen.inc",
                   "NOP\nINCLUDE vier.inc\nNOP\n"); // row 4 is in the inner range alone
    Erwarte_Stelle("INCLUDE aussen.inc\nNOP", 0, "INCLUDE aussen.inc");
    EXPECT_EQ(Letzte_Meldung(), "Error in the include file!: " + Ohne_Prozessor.E);
}

TEST_F(Include_Fehler_Welt, a_missing_file_inside_a_file_is_told_without_prefix)
{
    Ordner.Anlegen("aussen.inc", "NOP\nINCLUDE fehlt.inc\n");
    Erwarte_Fehler("NOP\nINCLUDE aussen.inc\nNOP",
                   "Die einzubindene Datei konnte nicht gefunden werden!",
                   "Can't find the include file!");
    Erwarte_Stelle("NOP\nINCLUDE aussen.inc\nNOP", 1, "INCLUDE aussen.inc");
    Ordner.Anlegen("aussen.inc", "INCLUDE fehlt.mc\n");
    Laufen("NOP\nINCLUDE aussen.inc\nNOP");
    EXPECT_EQ(Letzte_Meldung(),
              "Can't find the processorfile! Please use one of the following catalog.");
}

} // namespace
} // namespace varnholt::test
