// The source editor: keys, changes, and the handling of a finished line.
#include "editors/Quelltext.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Einfaerben.h"
#include "editors/Quelltext_Zeile.h"
#include "editors/Sprungmarken.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <rapidcheck/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>

namespace varnholt::test {
namespace {

constexpr const char* Zu_Kurz_D = "Sprungmarken müssen mindestens drei Zeichen haben!";
constexpr const char* Zu_Kurz_E = "Jumpmarks must be have at least three signs!";
constexpr const char* Doppelt_D = "Diese Bezeichnung haben Sie bereits für einen Sprunglabel "
                                  "genutzt. Bitte wählen Sie eine andere Bezeichnung!";
constexpr const char* Doppelt_E =
    "You have already use this name for a jumpmark. Please choose another name!";

Taste_T Code(int c) { return {c, false, false, false, 0}; }
Taste_T Buchstabe(char c)
{
    return {std::toupper(static_cast<unsigned char>(c)), false, false, false, c};
}
Taste_T Strg(int c) { return {c, false, true, false, 0}; }

// A user in front of the control. No snapshots, unless a test switches them on.
class Quelltext_Test : public Welt {
protected:
    Quelltext_Test()
    {
        Undo_Max       = -1;
        C_keine_TAB_SM = false;
        Undo_Zuruecksetzen();
        Text_Aktuell    = true;
        Aktives_Fenster = Fenster_Edit;
    }

    // What the control does, and what it reports afterwards.
    void Einsetzen(const std::string& Text)
    {
        Edit.Auswahl_Ersetzen(Text);
        Text_Change();
        Text_SelChange();
    }
    void Tippen(const std::string& Text)
    {
        for (const char c : Text) {
            if (!Text_KeyDown(Buchstabe(c)))
                Einsetzen(std::string(1, c));
        }
    }
    void Enter()
    {
        if (!Text_KeyDown(Code(Taste_Enter)) && !Text_KeyPress_Enter())
            Einsetzen("\r\n");
        Text_SelChange();
    }
    void Gehen(std::int64_t Anfang, std::int64_t Laenge = 0)
    {
        Edit.Auswaehlen(Anfang, Laenge);
        Text_SelChange();
    }
    // Types a line of its own above the text "x" and leaves it; the line as it then stands.
    std::string Fertig(const std::string& Zeile)
    {
        Edit.Text_Setzen("\r\nx");
        Text_Veraendert = false;
        Tippen(Zeile);
        Gehen(Edit.Laenge());
        return Edit.Inhalt.substr(0, Edit.Inhalt.size() - 3);
    }
    std::string Farbbild() const
    {
        std::string Bild;
        for (std::int64_t i = 0; i < Edit.Laenge(); ++i) {
            const std::int32_t f = Edit.Farbe_An(i);
            Bild.push_back(f == 0 ? '.' : f == 0xDD1111 ? 'm' : f == 0x119911 ? 'k' : '?');
        }
        return Bild;
    }
};

// --- keywords ---

TEST_F(Quelltext_Test, A_line_in_lower_case_comes_out_in_upper_case)
{
    O_Automatik_Bef = 0;
    EXPECT_EQ(Fertig(" mov a,r0"), " MOV A,R0");
}

TEST_F(Quelltext_Test, A_line_in_lower_case_comes_out_with_first_capitals_but_registers_in_capitals)
{
    O_Automatik_Bef = 1;
    EXPECT_EQ(Fertig(" mov a,r0"), " Mov A,R0");
    EXPECT_EQ(Fertig(" MOV dptr,C"), " Mov Dptr,C");
}

TEST_F(Quelltext_Test, As_typed_changes_no_word_but_colours_and_blanks_still_come)
{
    O_Automatik_Bef = 2;
    EXPECT_EQ(Fertig("if a>5 then ;x"), "if a > 5 then ;x");
    EXPECT_EQ(Farbbild(), "..............kk...");
}

TEST_F(Quelltext_Test, Every_keyword_is_known_in_its_three_forms)
{
    const std::vector<std::string> Worte = {
        "ACALL", "ADD",   "ADDC", "AJMP", "ANL",  "CJNE", "CLR",  "CPL",     "DA",   "DEC",
        "DIV",   "DJNZ",  "INC",  "JB",   "JBC",  "JMP",  "JC",   "JNB",     "JNC",  "JNZ",
        "JZ",    "LCALL", "LJMP", "MOV",  "MOVC", "MOVX", "MUL",  "NOP",     "ORL",  "POP",
        "PUSH",  "RET",   "RETI", "RL",   "RLC",  "RR",   "RRC",  "SETB",    "SJMP", "SUBB",
        "SWAP",  "XCH",   "XCHD", "XRL",  "DPTR", "BIT",  "DATA", "EQU",     "DB",   "DW",
        "END",   "IF",    "THEN", "ELSE", "FOR",  "NEXT", "NOT",  "INCLUDE", "STOP"};
    ASSERT_EQ(Worte.size(), 59u);
    for (const std::string& Wort : Worte) {
        std::string Klein = Wort;
        std::transform(Klein.begin(), Klein.end(), Klein.begin(), [](char c) {
            return static_cast<char>(std::tolower(c));
        });
        EXPECT_EQ(Schluesselwort(Klein, 0), Wort);
        EXPECT_EQ(Schluesselwort(Wort, 1), Wort.substr(0, 1) + Klein.substr(1));
        EXPECT_EQ(Schluesselwort(Klein, 2), "");
        EXPECT_EQ(Schluesselwort(Wort + "Q", 0), "");
    }
}

TEST_F(Quelltext_Test, Registers_are_raised_under_both_settings)
{
    for (const char* Wort : {"A", "R0", "R1", "R2", "R3", "R4", "R5", "R6", "R7", "C"})
        for (const int Fall : {0, 1}) {
            std::string Klein = Wort;
            Klein[0]          = static_cast<char>(std::tolower(Klein[0]));
            EXPECT_EQ(Schluesselwort(Klein, Fall), Wort);
        }
    EXPECT_EQ(Schluesselwort("r8", 0), "");
    EXPECT_EQ(Schluesselwort("b", 0), "");
}

TEST_F(Quelltext_Test, A_word_ends_at_blank_tab_comma_and_equals_sign)
{
    EXPECT_EQ(Worte_Angleichen("mov a,c\tr1=a", 0), "MOV A,C\tR1=A");
}

TEST_F(Quelltext_Test, Behind_an_at_sign_a_new_word_begins)
{
    EXPECT_EQ(Worte_Angleichen("mov @r0,a", 0), "MOV @R0,A");
    EXPECT_EQ(Worte_Angleichen("mov@r0", 0), "mov@R0");
}

TEST_F(Quelltext_Test, A_word_only_matches_in_full)
{
    EXPECT_EQ(Worte_Angleichen("movy #a +a a+ (a) mov: a>5", 0), "movy #a +a a+ (a) mov: a>5");
}

TEST_F(Quelltext_Test, Words_in_strings_and_comments_stay)
{
    EXPECT_EQ(Worte_Angleichen("db \"mov a, mov \",a ;mov a", 0), "DB \"mov a, mov \",A ;mov a");
    EXPECT_EQ(Worte_Angleichen("nop;mov", 0), "NOP;mov");
    EXPECT_EQ(Worte_Angleichen("nop'mov", 0), "NOP'mov");
    EXPECT_EQ(Worte_Angleichen("db \"a", 0), "DB \"a");
}

TEST_F(Quelltext_Test, A_jumpmark_is_never_rewritten)
{
    O_Automatik_Bef = 0;
    EXPECT_EQ(Fertig("mov nop=5: mov a,5"), "mov nop=5: MOV A,5");
    EXPECT_EQ(Farbbild(), "mmmmmmmmmm...........");
}

// --- operators ---

TEST_F(Quelltext_Test, A_comparison_gets_its_blanks)
{
    EXPECT_EQ(Fertig("IF A>5 THEN"), "IF A > 5 THEN");
    EXPECT_EQ(Fertig("IF A><B"), "IF A <> B");
    EXPECT_EQ(Fertig("IF A<>B"), "IF A <> B");
    EXPECT_EQ(Fertig("IF A <B"), "IF A < B");
    EXPECT_EQ(Fertig("x= 5"), "x = 5");
}

TEST_F(Quelltext_Test, Operators_that_stand_apart_stay)
{
    for (const char* Zeile : {"x = 5", "x\t=\t5", "x <> 5", "x < 5", "x > 5", "= 5", "x ="})
        EXPECT_EQ(Operatoren_Absetzen(Zeile).Text, Zeile);
}

TEST_F(Quelltext_Test, Operators_in_a_row_are_set_apart_one_by_one)
{
    EXPECT_EQ(Operatoren_Absetzen("a==b").Text, "a = = b");
    EXPECT_EQ(Operatoren_Absetzen("a<=b").Text, "a < = b");
    EXPECT_EQ(Operatoren_Absetzen("a>=b").Text, "a > = b");
    EXPECT_EQ(Operatoren_Absetzen("a><>b").Text, "a <> > b");
    EXPECT_EQ(Operatoren_Absetzen("a<<>>b").Text, "a < <> > b");
}

TEST_F(Quelltext_Test, Operators_in_strings_stay_as_typed)
{
    EXPECT_EQ(Fertig("DB \"a=b><c\",5"), "DB \"a=b><c\",5");
    EXPECT_EQ(Fertig("x=\"=\""), "x = \"=\"");
}

TEST_F(Quelltext_Test, Operators_in_comments_stay_as_typed)
{
    EXPECT_EQ(Fertig("NOP ;a=b"), "NOP ;a=b");
    EXPECT_EQ(Fertig("NOP 'a=b"), "NOP 'a=b");
}

// The rules as a user would read them, character by character on the line itself.
std::string Wortgetreu(std::string z)
{
    const auto Blank = [](char c) { return c == ' ' || c == '\t'; };
    bool       Text  = false;
    for (std::size_t i = 0; i < z.size(); ++i) {
        const auto Zwei = [&](std::size_t Ort) { return z.substr(std::min(Ort, z.size()), 2); };
        const auto Vor  = [&] {
            if (i > 0 && !Blank(z[i - 1]))
                z.insert(i++, 1, ' ');
        };
        const auto Nach = [&](std::size_t Breite) {
            if (i + Breite < z.size() && !Blank(z[i + Breite])) {
                z.insert(i + Breite, 1, ' ');
                ++i;
            }
        };
        if (z[i] == '"')
            Text = !Text;
        if (Text)
            continue;
        if (z[i] == ';' || z[i] == '\'')
            break;
        if (Zwei(i) == "><")
            z.replace(i, 2, "<>");
        if (z[i] == '=') {
            Vor();
            Nach(1);
        }
        if (Zwei(i) == "<>") {
            Vor();
            Nach(2);
        }
        if (z[i] == '<' && Zwei(i) != "<>") {
            Vor();
            Nach(1);
        }
        if (z[i] == '>' && (i == 0 || Zwei(i - 1) != "<>")) {
            Vor();
            Nach(1);
        }
    }
    return z;
}

RC_GTEST_FIXTURE_PROP(Quelltext_Test, Setting_off_follows_the_rules_for_any_line, ())
{
    const std::string Zeile = *rc::gen::container<std::string>(
        rc::gen::element('=', '<', '>', 'a', ' ', '\t', '"', ';', '\''));
    const Abgesetzt_T Neu = Operatoren_Absetzen(Zeile);
    RC_ASSERT(Neu.Text == Wortgetreu(Zeile));
    RC_ASSERT(Neu.Text.size() == Zeile.size() + Neu.Leerzeichen_Vor.size());
    RC_ASSERT(Operatoren_Absetzen(Neu.Text).Text == Neu.Text); // once is enough
}

RC_GTEST_FIXTURE_PROP(
    Quelltext_Test,
    The_replacements_turn_the_old_line_into_the_new_one_and_write_no_question_mark,
    ())
{
    const std::string Alt = *rc::gen::container<std::string>(
        rc::gen::element('=', '<', '>', 'a', 'c', ' ', '"', '?', ','));
    const Abgesetzt_T Neu   = Operatoren_Absetzen(Worte_Angleichen(Alt, 0));
    std::string       Zeile = Alt;
    const auto        Liste = Ersetzungen_Bilden(Alt, Neu);
    for (auto e = Liste.rbegin(); e != Liste.rend(); ++e) {
        RC_ASSERT(e->Neu.find('?') == std::string::npos);
        Zeile.replace(e->Anfang, e->Laenge, e->Neu);
    }
    RC_ASSERT(Zeile == Neu.Text);
}

// --- which line, and when ---

TEST_F(Quelltext_Test, A_line_stays_as_typed_while_the_caret_is_in_it)
{
    Edit.Text_Setzen("\r\nx");
    Tippen("mov a=1");
    Gehen(3);
    EXPECT_EQ(Edit.Inhalt, "mov a=1\r\nx");
    EXPECT_TRUE(Text_Veraendert);
}

TEST_F(Quelltext_Test, Leaving_the_line_clears_the_mark_of_the_change)
{
    Fertig("mov a");
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_FALSE(Edit.Zeichnen_Steht);
}

TEST_F(Quelltext_Test, A_line_that_was_not_changed_is_left_alone)
{
    Edit.Text_Setzen("mov a=1\r\nmov a=2");
    Gehen(3);
    Gehen(12);
    EXPECT_EQ(Edit.Inhalt, "mov a=1\r\nmov a=2");
}

TEST_F(Quelltext_Test, Only_the_changed_line_is_handled)
{
    Edit.Text_Setzen("mov a=1\r\n\r\nmov a=2");
    Gehen(9);
    Tippen("mov c");
    Gehen(0);
    EXPECT_EQ(Edit.Inhalt, "mov a=1\r\nMOV C\r\nmov a=2");
}

TEST_F(Quelltext_Test, A_caret_below_the_line_moves_along_with_the_text)
{
    Edit.Text_Setzen("\r\nxyz");
    Tippen("a=1");
    Gehen(6, 2); // "yz"
    EXPECT_EQ(Edit.Inhalt, "A = 1\r\nxyz");
    EXPECT_EQ(Edit.Auswahl_Text(), "yz");
}

TEST_F(Quelltext_Test, A_caret_above_the_line_stays_where_it_is)
{
    Edit.Text_Setzen("xyz\r\n");
    Gehen(5);
    Tippen("a=1");
    Gehen(1, 1);
    EXPECT_EQ(Edit.Inhalt, "xyz\r\nA = 1");
    EXPECT_EQ(Edit.Auswahl_Text(), "y");
}

TEST_F(Quelltext_Test, A_selection_that_still_touches_the_line_keeps_it_waiting)
{
    Edit.Text_Setzen("xyz\r\n");
    Gehen(5);
    Tippen("a=1");
    Gehen(1, 6);
    EXPECT_EQ(Edit.Inhalt, "xyz\r\na=1");
    Gehen(1);
    EXPECT_EQ(Edit.Inhalt, "xyz\r\nA = 1");
}

TEST_F(Quelltext_Test, Enter_finishes_the_line_and_goes_to_a_new_one)
{
    Edit.Text_Setzen("");
    Tippen(" mov a=1");
    Enter();
    EXPECT_EQ(Edit.Inhalt, " MOV A = 1\r\n ");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{13, 0}));
}

TEST_F(Quelltext_Test, Enter_in_the_middle_of_a_line_handles_both_halves_in_their_turn)
{
    Edit.Text_Setzen("");
    Tippen("mov a,b;mov c");
    Gehen(8);
    Enter();
    EXPECT_EQ(Edit.Inhalt, "MOV A,b;\r\nmov c");
    Gehen(0);
    EXPECT_EQ(Edit.Inhalt, "MOV A,b;\r\nMOV C");
    EXPECT_EQ(Farbbild(), ".......k.......");
}

TEST_F(Quelltext_Test, Enter_at_the_start_of_a_changed_line_moves_it_down_and_it_is_handled_there)
{
    Edit.Text_Setzen("");
    Tippen("mov a");
    Gehen(0);
    Enter();
    EXPECT_EQ(Edit.Inhalt, "\r\nmov a");
    Gehen(0);
    EXPECT_EQ(Edit.Inhalt, "\r\nMOV A");
}

TEST_F(Quelltext_Test, A_line_joined_to_the_one_above_is_handled_as_part_of_it)
{
    Edit.Text_Setzen("mov \r\n\r\nx");
    Gehen(6);
    Tippen("a");
    Edit.Auswaehlen(4, 2); // Backspace at the start of the line
    Einsetzen("");
    EXPECT_EQ(Edit.Inhalt, "mov a\r\nx");
    Gehen(Edit.Laenge());
    EXPECT_EQ(Edit.Inhalt, "MOV A\r\nx");
}

TEST_F(Quelltext_Test, A_control_that_reports_the_caret_before_the_change_gives_the_same)
{
    Edit.Text_Setzen("");
    for (const char c : std::string("mov a")) {
        Edit.Auswahl_Ersetzen(std::string(1, c));
        Text_SelChange();
        Text_Change();
    }
    Edit.Auswahl_Ersetzen("\r\n"); // an Enter that the control did on its own
    Text_SelChange();
    Text_Change();
    EXPECT_EQ(Edit.Inhalt, "MOV A\r\n");
    EXPECT_TRUE(Text_Veraendert); // the new line
}

TEST_F(Quelltext_Test, A_change_by_a_command_that_noted_no_line_counts_for_the_line_of_the_caret)
{
    Edit.Text_Setzen("mov a\r\nx");
    Text_Veraendert = true;
    Gehen(2);
    EXPECT_EQ(Edit.Inhalt, "mov a\r\nx");
    Gehen(7);
    EXPECT_EQ(Edit.Inhalt, "MOV A\r\nx");
}

TEST_F(Quelltext_Test, A_line_of_a_text_that_was_replaced_meanwhile_is_forgotten)
{
    Edit.Text_Setzen("\r\n\r\n");
    Gehen(4);
    Tippen("mov a");
    Edit.Text_Setzen("mov c\r\nmov c");
    Text_Veraendert = false; // as a load does
    Gehen(7);
    Gehen(0);
    EXPECT_EQ(Edit.Inhalt, "mov c\r\nmov c");
}

TEST_F(Quelltext_Test, While_the_lock_is_set_nothing_is_handled)
{
    Edit.Text_Setzen("\r\nx");
    Tippen("mov a");
    Text_Sperre = true;
    Gehen(7);
    EXPECT_EQ(Edit.Inhalt, "mov a\r\nx");
    Text_Sperre = false;
    Gehen(8);
    EXPECT_EQ(Edit.Inhalt, "MOV A\r\nx");
}

TEST_F(Quelltext_Test, During_a_debugger_session_the_text_is_not_rewritten)
{
    Edit.Text_Setzen("\r\nx");
    Tippen("mov a");
    Debugger_Aktiv = true;
    Gehen(7);
    EXPECT_EQ(Edit.Inhalt, "mov a\r\nx");
}

// --- colours of the line ---

TEST_F(Quelltext_Test, The_finished_line_has_its_colours_and_the_others_keep_theirs)
{
    Edit.Text_Setzen("\r\n;x");
    const Farbstelle_T Fremd{2, 2, 0x123456};
    Edit.Faerben({&Fremd, 1});
    Tippen("Loop: nop ;y");
    Gehen(Edit.Laenge());
    EXPECT_EQ(Farbbild(), "mmmmm.....kk..??");
}

TEST_F(Quelltext_Test, A_comment_sign_in_double_quotes_is_none_and_in_single_quotes_is_one)
{
    Fertig("DB \";\",1");
    EXPECT_EQ(Farbbild(), "...........");
    Fertig("DB ';',1");
    EXPECT_EQ(Farbbild(), "...kkkkk...");
}

TEST_F(Quelltext_Test, A_line_that_is_no_comment_any_more_turns_black)
{
    Edit.Text_Setzen(";nop\r\nx");
    Edit_Einfaerben();
    Edit.Auswaehlen(0, 1);
    Einsetzen("");
    Gehen(Edit.Laenge());
    EXPECT_EQ(Edit.Inhalt, "NOP\r\nx");
    EXPECT_EQ(Farbbild(), "......");
}

TEST_F(Quelltext_Test, A_line_of_a_megabyte_is_handled_in_one_go)
{
    std::string Lang;
    for (int i = 0; i < 1 << 18; ++i)
        Lang += "a=b,";
    Edit.Text_Setzen("\r\nx");
    Einsetzen(Lang);
    Gehen(Edit.Laenge());
    EXPECT_EQ(Edit.Inhalt.substr(0, 14), "A = b,A = b,A ");
    EXPECT_EQ(Edit.Inhalt.size(), (std::size_t{6} << 18) + 3);
}

TEST_F(Quelltext_Test, A_line_of_too_many_unknown_characters_stays_as_typed)
{
    std::string Lang;
    for (int i = 0; i < 200; ++i)
        Lang += "?=";
    EXPECT_EQ(Fertig(Lang), Lang);
    EXPECT_EQ(Fertig("?=?"), "? = ?");
}

// --- jumpmarks ---

TEST_F(Quelltext_Test, A_jumpmark_of_two_characters_gets_the_message_with_the_stop_icon)
{
    Fertig("ab: nop");
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text, Zu_Kurz_E);
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Kritisch);
    EXPECT_EQ(Edit.Inhalt, "ab: NOP\r\nx");
}

TEST_F(Quelltext_Test, The_message_of_a_short_jumpmark_in_German)
{
    Sprache = "D";
    Fertig("\tab:");
    EXPECT_EQ(Letzte_Meldung(), Zu_Kurz_D);
}

TEST_F(Quelltext_Test, A_jumpmark_of_three_characters_gets_no_message)
{
    Fertig("\tabc: nop");
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Quelltext_Test, A_data_word_with_a_colon_gets_no_message)
{
    for (const char* Zeile : {"DB: 1", " dw: 1", "HEX: 1", "DEZ: 1", "asc: 1"})
        Fertig(Zeile);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Quelltext_Test, A_doubled_jumpmark_gets_the_message_and_the_text_stands)
{
    Edit.Text_Setzen("Loop: NOP\r\n\r\nx");
    Gehen(11);
    Tippen("\tlOOp: nop");
    Gehen(0);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text, Doppelt_E);
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Hinweis);
    EXPECT_EQ(Edit.Inhalt, "Loop: NOP\r\n\tlOOp: NOP\r\nx");
}

TEST_F(Quelltext_Test, The_message_of_a_doubled_jumpmark_in_German)
{
    Sprache = "D";
    Edit.Text_Setzen("Loop: NOP\r\n\r\nx");
    Gehen(11);
    Tippen("Loop:");
    Gehen(0);
    EXPECT_EQ(Letzte_Meldung(), Doppelt_D);
}

TEST_F(Quelltext_Test, A_jumpmark_that_stands_once_gets_no_message)
{
    Edit.Text_Setzen("Loop: NOP\r\n\r\nx");
    Gehen(11);
    Tippen("Loop2: nop");
    Gehen(0);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Quelltext_Test, A_mark_hidden_by_its_underscore_counts_as_taken)
{
    C_keine_US_SM = true;
    Edit.Text_Setzen("_Loop: NOP\r\n\r\nx");
    Gehen(12);
    Tippen("_loop:");
    Gehen(0);
    EXPECT_EQ(Letzte_Meldung(), Doppelt_E);
}

TEST_F(Quelltext_Test, A_line_tells_each_fault_once_and_both_when_there_are_both)
{
    Edit.Text_Setzen("a: b:\r\n\r\nx");
    Gehen(7);
    Tippen("a: b:");
    Gehen(0);
    ASSERT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Box.Meldungen[0].Text, Zu_Kurz_E);
    EXPECT_EQ(Box.Meldungen[1].Text, Doppelt_E);
}

TEST_F(Quelltext_Test, Without_a_language_no_message_appears)
{
    Sprache = "X";
    Fertig("ab:");
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Quelltext_Test, The_box_appears_with_the_drawing_thawed)
{
    struct Blick : Skript_Box {
        const Speicher_Text* Feld  = nullptr;
        bool                 Ruhig = true;
        int                  Zeigen(const Meldung_T& m) override
        {
            Ruhig = Ruhig && !Feld->Zeichnen_Steht && !Text_Sperre;
            return Skript_Box::Zeigen(m);
        }
    } Neue;
    Neue.Feld     = &Edit;
    Plattform.Box = &Neue;
    Fertig("ab:");
    EXPECT_EQ(Neue.Meldungen.size(), 1u);
    EXPECT_TRUE(Neue.Ruhig);
}

TEST_F(Quelltext_Test, The_jumpmark_list_follows_a_mark_that_comes_and_goes)
{
    Fenster.Zu(Fenster_Spr).Sichtbar = true;
    Fertig("Loop: nop");
    EXPECT_EQ(Sprungmarken.Liste, std::vector<std::string>{"Loop"});
    Edit.Auswaehlen(0, 5);
    Einsetzen("");
    Gehen(Edit.Laenge());
    EXPECT_EQ(Sprungmarken.Liste, std::vector<std::string>{"No jumpmarks"});
}

TEST_F(Quelltext_Test, A_line_without_a_colon_doesnt_change_what_the_jumpmark_window_shows)
{
    Fenster.Zu(Fenster_Spr).Sichtbar = true;
    Fertig("Loop: nop");
    const auto Stand = Sprungmarken.Liste_Stand;
    Gehen(9);
    Tippen(" ");
    Gehen(Edit.Laenge());
    EXPECT_EQ(Sprungmarken.Liste_Stand, Stand);
}

// --- change ---

TEST_F(Quelltext_Test, A_change_marks_the_document_and_sets_the_caption_once)
{
    Datei_Name = "/tmp/x.asm";
    Tippen("ab");
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Text_Veraendert);
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"2:MC-Editor (*)/tmp/x.asm"});
}

TEST_F(Quelltext_Test, A_change_under_the_lock_is_none_of_the_users)
{
    Text_Sperre = true;
    Text_Change();
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
}

TEST_F(Quelltext_Test, A_change_of_a_changed_document_still_parts_text_and_image)
{
    Datei_Geaendert = true;
    Text_Change();
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
}

// --- Enter ---

TEST_F(Quelltext_Test, Enter_on_an_indented_line_starts_the_new_line_with_the_same_indent)
{
    Edit.Text_Setzen("NOP\r\n \t NOP");
    Gehen(11);
    Enter();
    EXPECT_EQ(Edit.Inhalt, "NOP\r\n \t NOP\r\n \t ");
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{16, 0}));
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"2:MC-Editor (*)"});
}

TEST_F(Quelltext_Test, Enter_in_the_indent_takes_the_whole_of_it)
{
    Edit.Text_Setzen("    NOP");
    Gehen(2);
    Enter();
    EXPECT_EQ(Edit.Inhalt, "  \r\n      NOP");
}

TEST_F(Quelltext_Test, Enter_takes_the_place_of_a_selection)
{
    Edit.Text_Setzen("\tabc\r\ndef");
    Edit.Auswaehlen(2, 5);
    Enter();
    EXPECT_EQ(Edit.Inhalt, "\tA\r\n\tef");
}

TEST_F(Quelltext_Test, What_Enter_inserts_is_black_behind_a_comment)
{
    Edit.Text_Setzen(" ;a");
    Edit_Einfaerben();
    Gehen(3);
    Enter();
    EXPECT_EQ(Farbbild(), ".kk...");
}

TEST_F(Quelltext_Test, Enter_in_debugger_mode_is_swallowed)
{
    Debugger_Aktiv = true;
    Edit.Text_Setzen("NOP");
    EXPECT_TRUE(Text_KeyDown(Code(Taste_Enter)));
    EXPECT_TRUE(Text_KeyPress_Enter());
    EXPECT_EQ(Edit.Inhalt, "NOP");
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Quelltext_Test, Enter_outside_debugger_mode_is_left_to_the_key_press)
{
    EXPECT_FALSE(Text_KeyDown(Code(Taste_Enter)));
    EXPECT_TRUE(Text_KeyPress_Enter());
    EXPECT_EQ(Edit.Inhalt, "\r\n");
}

// --- other keys ---

TEST_F(Quelltext_Test, Del_with_a_selection_clears_it)
{
    Edit.Text_Setzen("abcdef");
    Edit.Auswaehlen(1, 3);
    EXPECT_TRUE(Text_KeyDown(Code(Taste_Entfernen)));
    EXPECT_EQ(Edit.Inhalt, "aef");
    EXPECT_TRUE(Text_Veraendert);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"2:MC-Editor (*)"});
}

TEST_F(Quelltext_Test, Del_without_a_selection_or_with_another_key_is_left_to_the_control)
{
    Edit.Text_Setzen("abcdef");
    EXPECT_FALSE(Text_KeyDown(Code(Taste_Entfernen)));
    Edit.Auswaehlen(1, 3);
    EXPECT_FALSE(Text_KeyDown({Taste_Entfernen, true, false, false, 0}));
    EXPECT_FALSE(Text_KeyDown({Taste_Entfernen, false, true, false, 0}));
    EXPECT_EQ(Edit.Inhalt, "abcdef");
}

TEST_F(Quelltext_Test, Del_in_debugger_mode_clears_nothing)
{
    Debugger_Aktiv = true;
    Edit.Text_Setzen("abcdef");
    Edit.Auswaehlen(1, 3);
    EXPECT_FALSE(Text_KeyDown(Code(Taste_Entfernen)));
    EXPECT_EQ(Edit.Inhalt, "abcdef");
}

TEST_F(Quelltext_Test, Del_over_several_lines_keeps_the_joined_line_for_handling)
{
    Edit.Text_Setzen("mov a\r\nOne: nop\r\n,c\r\nx");
    Sprungmarken_Fuellen();
    Edit.Auswaehlen(5, 12);
    Text_KeyDown(Code(Taste_Entfernen));
    EXPECT_EQ(Sprungmarken_Anzahl, 0);
    Gehen(Edit.Laenge());
    EXPECT_EQ(Edit.Inhalt, "MOV A,C\r\nx");
}

TEST_F(Quelltext_Test, Ctrl_V_pastes_the_clipboard)
{
    Ablage.Inhalt = "neu";
    EXPECT_TRUE(Text_KeyDown(Strg('V')));
    EXPECT_EQ(Edit.Inhalt, "neu");
}

TEST_F(Quelltext_Test, Ctrl_X_cuts_the_selection)
{
    Edit.Text_Setzen("abc");
    Edit.Auswaehlen(0, 2);
    EXPECT_TRUE(Text_KeyDown(Strg('X')));
    EXPECT_EQ(Edit.Inhalt, "c");
    EXPECT_EQ(Ablage.Inhalt, "ab");
}

TEST_F(Quelltext_Test, In_debugger_mode_the_commands_of_the_keys_are_off)
{
    Debugger_Aktiv = true;
    Ablage.Inhalt  = "neu";
    Edit.Text_Setzen("abc");
    Edit.Auswaehlen(0, 2);
    for (const int c : {'V', 'X', 'Z'})
        EXPECT_FALSE(Text_KeyDown(Strg(c)));
    EXPECT_EQ(Edit.Inhalt, "abc");
    EXPECT_EQ(Ablage.Inhalt, "neu");
}

TEST_F(Quelltext_Test, The_same_letters_with_AltGr_or_without_Ctrl_are_typed)
{
    Ablage.Inhalt = "neu";
    EXPECT_FALSE(Text_KeyDown({'V', false, true, true, 0}));
    EXPECT_FALSE(Text_KeyDown(Buchstabe('v')));
    EXPECT_EQ(Edit.Inhalt, "");
}

// --- snapshots ---

class Schritte_Test : public Quelltext_Test {
protected:
    Schritte_Test()
    {
        std::filesystem::create_directories(Ordner / "Undo");
        Programm_Pfad     = (Ordner / "").string();
        Autosave_Zeitlich = false;
        Undo_Max          = 99;
        Undo_Zuruecksetzen();
    }

    Arbeitsordner                Eigener{};
    const std::filesystem::path& Ordner = Eigener.Pfad;
};

TEST_F(Schritte_Test, The_first_key_of_a_document_takes_a_snapshot)
{
    EXPECT_FALSE(Text_KeyDown(Code(Taste_Links)));
    EXPECT_TRUE(Undo_Taste);
    EXPECT_TRUE(Undo_Begonnen);
    EXPECT_EQ(Undo_Index, 1);
    EXPECT_EQ(Undo_Oben, 1);
    EXPECT_EQ(Undo_Ende, 99);
}

TEST_F(Schritte_Test, The_next_keys_take_none)
{
    Tippen("abc");
    EXPECT_EQ(Undo_Index, 1);
    EXPECT_TRUE(Menue("MNU_Undo").Aktiv);
}

TEST_F(Schritte_Test, A_first_key_after_other_snapshots_cuts_what_could_be_redone)
{
    Undo_Index = 5;
    Undo_Oben  = 9;
    Tippen("a");
    EXPECT_EQ(Undo_Index, 6);
    EXPECT_EQ(Undo_Oben, 6);
}

TEST_F(Schritte_Test, Leaving_a_changed_line_takes_one_snapshot)
{
    Edit.Text_Setzen("\r\nx");
    Tippen("abc");
    Gehen(6);
    EXPECT_EQ(Undo_Index, 2);
    EXPECT_EQ(Undo_Oben, 2);
    Gehen(0);
    EXPECT_EQ(Undo_Index, 2);
}

TEST_F(Schritte_Test, The_snapshot_holds_the_line_as_typed)
{
    Edit.Text_Setzen("\r\nx");
    Tippen("mov a");
    Gehen(Edit.Laenge());
    ASSERT_EQ(Edit.Inhalt, "MOV A\r\nx");
    Undo_Taste = false;
    MNU_Undo_Click();
    EXPECT_EQ(Edit.Inhalt, "mov a\r\nx");
}

TEST_F(Schritte_Test, Ctrl_Z_undoes_and_swallows_the_key)
{
    Edit.Text_Setzen("x");
    Tippen("abc");
    EXPECT_TRUE(Text_KeyDown(Strg('Z')));
    EXPECT_EQ(Edit.Inhalt, "x");
}

TEST_F(Schritte_Test, Keys_that_only_move_or_command_leave_the_steps_to_redo_alone)
{
    Edit.Text_Setzen("x");
    Tippen("abc");
    Text_KeyDown(Strg('Z'));
    ASSERT_TRUE(Menue("MNU_Redo").Aktiv);
    Text_KeyDown(Code(0)); // Ctrl alone
    Text_KeyDown(Code(Taste_Links));
    Text_KeyDown(Strg('Y'));
    EXPECT_FALSE(Undo_Taste);
    MNU_Redo_Click();
    EXPECT_EQ(Edit.Inhalt, "abcx");
}

TEST_F(Schritte_Test, Keys_in_the_locked_text_of_a_session_leave_the_steps_to_redo_alone)
{
    const auto Sitzung_Mit_Tasten = [] {
        Debugger_Aktiv = true;
        Undo_Knoepfe_Sperren();
        for (const Taste_T& Taste : {Buchstabe('a'), Code(Taste_Enter), Code(Taste_Links), Code(0)})
            Text_KeyDown(Taste);
        Text_Ohne_Taste(); // as an input method does
        Debugger_Aktiv = false;
        Undo_Knoepfe_Stellen();
    };
    Edit.Text_Setzen("\r\nx");
    Tippen("abc");
    Gehen(Edit.Laenge());
    Text_KeyDown(Strg('Z'));
    Text_KeyDown(Strg('Z'));
    ASSERT_EQ(Edit.Inhalt, "\r\nx");
    ASSERT_TRUE(Menue("MNU_Redo").Aktiv);
    Sitzung_Mit_Tasten();
    EXPECT_FALSE(Undo_Taste);
    ASSERT_TRUE(Menue("MNU_Redo").Aktiv);
    MNU_Redo_Click();
    EXPECT_EQ(Edit.Inhalt, "abc\r\nx");
    MNU_Undo_Click();
    Sitzung_Mit_Tasten();
    EXPECT_TRUE(Menue("MNU_Redo").Aktiv) << "behind a redo the next key counts as the first one";
    MNU_Redo_Click();
    EXPECT_EQ(Edit.Inhalt, "abc\r\nx");
}

TEST_F(Schritte_Test, Each_key_that_types_counts_also_after_an_undo)
{
    for (const Taste_T& Taste : {Buchstabe('a'),
                                 Code(Taste_Rueck),
                                 Code(Taste_Tab),
                                 Code(Taste_Enter),
                                 Code(Taste_Entfernen),
                                 Taste_T{'Q', false, true, true, '@'}}) {
        Menue("MNU_Redo").Aktiv = true;
        Undo_Taste              = false;
        Text_KeyDown(Taste);
        EXPECT_TRUE(Undo_Taste) << Taste.Code;
    }
}

// --- activation, places ---

TEST_F(Quelltext_Test, Activation_makes_the_editor_the_active_window_and_readies_the_debugger)
{
    Aktives_Fenster                     = Fenster_Hexedit;
    Menue("MNU_deb_Vorbereitung").Aktiv = false;
    Werkzeug(23).Aktiv                  = false;
    Edit_Activate();
    EXPECT_EQ(Aktives_Fenster, Fenster_Edit);
    EXPECT_TRUE(Menue("MNU_deb_Vorbereitung").Aktiv);
    EXPECT_TRUE(Werkzeug(23).Aktiv);
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemble");
    Sprache = "D";
    Edit_Activate();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemblieren");
    Sprache = "X"; // from a damaged settings file
    Edit_Activate();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemblieren");
}

TEST_F(Quelltext_Test, Deactivation_keeps_the_place_of_the_window)
{
    Fenster.Zu(Fenster_Edit).Lage = {10, 20, 300, 400};
    Edit_Deactivate();
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Oben), 10);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Breite), 400);
}

RC_GTEST_FIXTURE_PROP(Quelltext_Test, The_first_position_of_each_line_is_found, ())
{
    std::string Text;
    for (const int n : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 5)))
        Text += std::string(static_cast<std::size_t>(n), 'x') + "\r\n";
    Edit.Text_Setzen(Text);
    for (std::int64_t z = 0; z < Edit.Zeilen_Anzahl(); ++z)
        RC_ASSERT(Zeile_von_Position(z) == Edit.Zeile(z).Anfang);
    RC_ASSERT(Zeile_von_Position(Edit.Zeilen_Anzahl()) == Edit.Laenge());
    RC_ASSERT(Zeile_von_Position(-1) == 0);
}

} // namespace
} // namespace varnholt::test
