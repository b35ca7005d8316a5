// The form `Suche`: search, replace, replace all, and the two commands of the menu.
#include "editors/Suche.h"

#include "Such_Welt.h"
#include "core/menu.h"
#include "editors/Einfaerben.h"
#include "editors/HexSuche.h"
#include "editors/Quelltext.h"
#include "editors/Sprungmarken.h"
#include "files/Dateizugriff.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

using Suche_Test = Such_Welt;

constexpr const char* Nicht_D = "Nicht gefunden!";
constexpr const char* Nicht_E = "Not found!";

// --- captions ---

TEST_F(Suche_Test, every_control_has_its_caption_in_both_languages)
{
    const std::vector<std::array<const char*, 3>> Soll = {
        {"Suche", "Suchen / Ersetzen", "Search / Replace"},
        {"Label1", "Suchen nach...", "Search for..."},
        {"Check1", "Nur ganzes Wort suchen", "Search for a whole word"},
        {"Check2", "Groß-/Kleinschreibung beachten", "Case sensitivity"},
        {"Check3", "Ersetzen durch", "Replace with"},
        {"Suchen_OK", "Suchen", "Search"},
        {"Suchen_Abbrechen", "Abbrechen", "Abort"},
        {"B_Ersetzen", "Ersetzen", "Replace"},
        {"B_AlleErsetzen", "Alle ersetzen", "Replace all"},
        {"no such control", "", ""},
    };
    for (const auto& [Name, D, E] : Soll) {
        Sprache = "D";
        EXPECT_EQ(Suche::Text(Name), D);
        Sprache = "E";
        EXPECT_EQ(Suche::Text(Name), E);
        Sprache = "X";
        EXPECT_EQ(Suche::Text(Name), E);
    }
}

// --- search ---

TEST_F(Suche_Test, the_search_goes_on_behind_the_start_of_the_selection)
{
    Im_Editor("ab ab ab");
    EXPECT_EQ(Suchen("ab"), 3);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{3, 2}));
    EXPECT_EQ(Suchen("ab"), 6);
    EXPECT_EQ(Such_Pos, 6);
    EXPECT_EQ(Such_Letzte, 6);
}
TEST_F(Suche_Test, a_search_from_the_end_of_the_text_wraps_to_the_first_hit_without_a_message)
{
    Im_Editor("ab ab", 5);
    EXPECT_EQ(Suchen("ab"), 0);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{0, 2}));
    EXPECT_EQ(Such_Pos, 0);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Fenster.Protokoll.empty());
}
TEST_F(Suche_Test, the_only_hit_is_found_again_and_again_without_a_message)
{
    Im_Editor("x ab y");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Suchen("ab"), 2);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Suche_Test, a_hit_of_characters_outside_the_code_page_is_selected_in_full)
{
    Im_Editor("x ? → 😀");
    EXPECT_EQ(Suchen("→ 😀"), 4);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{4, 4}));
    EXPECT_EQ(Suchen("?"), 2);
}
TEST_F(Suche_Test, a_pasted_line_end_of_any_kind_is_found)
{
    Im_Editor("a\r\nb");
    Suchen("a\nb");
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{0, 4}));
}
TEST_F(Suche_Test, a_whole_word_doesnt_hit_within_longer_words)
{
    Im_Editor("Start2 xStart Start");
    Suche::Check1_Click(true);
    EXPECT_EQ(Suchen("start"), 14);
    EXPECT_EQ(Suchen("start"), 14);
    Suche::Check1_Click(false);
    EXPECT_EQ(Suchen("start"), 0);
}
TEST_F(Suche_Test, case_counts_with_its_tick_only)
{
    Im_Editor("mov MOV mov");
    Suche::Check2_Click(true);
    EXPECT_EQ(Suchen("mov"), 8);
    Suche::Check2_Click(false);
    EXPECT_EQ(Suchen("mov"), 0);
    EXPECT_EQ(Suchen("mov"), 4);
}
TEST_F(Suche_Test, both_ticks_hold_together)
{
    Im_Editor("ab aB abc Ab ab");
    Suche::Check1_Click(true);
    Suche::Check2_Click(true);
    EXPECT_EQ(Suchen("ab"), 13);
}
TEST_F(Suche_Test, an_empty_term_gets_the_focus_and_nothing_else_happens)
{
    Im_Editor("abc", 1, 1);
    const auto Vorher = Suche_Form.Fokus_Stand;
    Suche::Suchen_OK_Click();
    EXPECT_EQ(Suche_Form.Fokus_Stand, Vorher + 1);
    EXPECT_FALSE(Suche_Form.Fokus_Suchen_OK);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{1, 1}));
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Suche_Test, a_search_in_vain_is_told_in_both_languages_with_an_information_icon)
{
    Im_Editor("abc", 1);
    for (const auto& [Wahl, Text] : {std::pair{"D", Nicht_D}, std::pair{"E", Nicht_E}}) {
        Sprache = Wahl;
        Suchen("x");
        ASSERT_FALSE(Box.Meldungen.empty());
        EXPECT_EQ(Letzte_Meldung(), Text);
        EXPECT_EQ(Box.Meldungen.back().Bild, Symbol::Hinweis);
        EXPECT_EQ(Box.Meldungen.back().Tasten, Knoepfe::Ok);
    }
    EXPECT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Such_Pos, -1);
    EXPECT_EQ(Such_Letzte, 0);
    EXPECT_EQ(Feld.Auswahl().Anfang, 1);
}
TEST_F(Suche_Test, an_empty_text_is_searched_in_vain)
{
    Suchen("x");
    EXPECT_EQ(Letzte_Meldung(), Nicht_E);
}
TEST_F(Suche_Test, after_a_hit_at_the_start_only_a_search_in_vain_is_told_again)
{
    Im_Editor("ab");
    Suchen("ab");
    Feld.Text_Setzen_UTF8("xx");
    Suchen("ab");
    EXPECT_EQ(Box.Meldungen.size(), 1u); // the last hit was at 0
}
TEST_F(Suche_Test, when_there_has_been_a_hit_before_no_message_comes)
{
    Im_Editor("x ab");
    Suchen("ab");
    Feld.Text_Setzen_UTF8("xx");
    Suchen("ab");
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Such_Pos, -1);
    EXPECT_EQ(Such_Letzte, 2);
}
TEST_F(Suche_Test, form_and_panel_make_way_for_the_message_and_come_back)
{
    class Beobachter : public Skript_Box {
    public:
        explicit Beobachter(Skript_Fenster& f) : Welt_Fenster(f) {}
        int Zeigen(const Meldung_T& m) override
        {
            Form  = Welt_Fenster.Formular_Sichtbar(Formular::F_Suche);
            Panel = Welt_Fenster.Sichtbar(Fenster_CONTROL);
            return Skript_Box::Zeigen(m);
        }
        Skript_Fenster& Welt_Fenster;
        bool            Form  = true;
        bool            Panel = true;
    } Eigene(Fenster);
    Plattform.Box = &Eigene;
    for (const bool Sitzung_An : {true, false}) {
        Eigene.Form = Eigene.Panel = true;
        Debugger_Aktiv             = Sitzung_An;
        Fenster.Sichtbar_Setzen(Fenster_CONTROL, true);
        Fenster.Formular_Zeigen(Formular::F_Suche);
        Suchen("x");
        EXPECT_FALSE(Eigene.Form);
        EXPECT_FALSE(Eigene.Panel);
        EXPECT_TRUE(Fenster.Formular_Sichtbar(Formular::F_Suche));
        EXPECT_EQ(Fenster.Sichtbar(Fenster_CONTROL), Sitzung_An);
    }
    EXPECT_EQ(Eigene.Meldungen.size(), 2u);
}
TEST_F(Suche_Test, a_panel_that_wasnt_there_doesnt_come)
{
    Debugger_Aktiv = true;
    Suchen("x");
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_CONTROL));
    EXPECT_EQ(Fenster.Protokoll, (std::vector<std::string>{"Entladen Suche", "Zeigen Suche"}));
}
TEST_F(Suche_Test, a_search_handles_no_changed_line_and_leaves_the_editor_unlocked)
{
    Im_Editor("mov a,b\r\nab");
    Feld.Auswaehlen(3, 0);
    Text_Change();
    for (const char* Begriff : {"ab", "nothing"}) {
        Suchen(Begriff);
        EXPECT_FALSE(Text_Sperre);
        EXPECT_FALSE(Feld.Zeichnen_Steht);
    }
    EXPECT_TRUE(Text_Veraendert);
    EXPECT_EQ(Feld.Inhalt, "mov a,b\r\nab");
    EXPECT_EQ(Aufnahmen(), 0);
}
TEST_F(Suche_Test, enter_in_the_term_moves_the_focus_to_the_button_and_searches)
{
    Im_Editor("x ab");
    Suche::Suchbegriff_Change("ab");
    Suche::Suchbegriff_Enter();
    EXPECT_TRUE(Suche_Form.Fokus_Suchen_OK);
    EXPECT_EQ(Feld.Auswahl().Anfang, 2);
    Suche::Suchbegriff_Change("");
    Suche::Suchbegriff_Enter();
    EXPECT_FALSE(Suche_Form.Fokus_Suchen_OK);
}
TEST_F(Suche_Test, each_change_of_a_field_clears_the_last_hit)
{
    const auto Nach = [](const auto& Ereignis) {
        Such_Letzte = 7;
        Ereignis();
        return Such_Letzte;
    };
    EXPECT_EQ(Nach([] { Suche::Suchbegriff_Change("x"); }), 0);
    EXPECT_EQ(Nach([] { Suche::Ersetzen_durch_Change("x"); }), 0);
    EXPECT_EQ(Nach([] { Suche::Check1_Click(true); }), 0);
    EXPECT_EQ(Nach([] { Suche::Check2_Click(true); }), 0);
    EXPECT_EQ(Nach([] { Suche::Check3_Click(true); }), 0);
    EXPECT_EQ(Nach([] { Suche::Suchen_Abbrechen_Click(); }), 7);
}
TEST_F(Suche_Test, abort_hides_the_form_which_keeps_its_texts)
{
    MNU_Suche_Click();
    Suche::Suchbegriff_Change("ab");
    Suche::Ersetzen_durch_Change("cd");
    Suche::Check2_Click(true);
    Suche::Suchen_Abbrechen_Click();
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_Suche));
    MNU_Suche_Click();
    EXPECT_EQ(Suche_Form.Suchbegriff, "ab");
    EXPECT_EQ(Suche_Form.Ersetzen_durch, "cd");
    EXPECT_TRUE(Suche_Form.Check2);
}

// --- replace ---

TEST_F(Suche_Test, replace_changes_the_hit_and_finds_the_next)
{
    Im_Editor("x ab y ab z");
    Ersetzen_Eingeben("ab", "c");
    Suche::Suchen_OK_Click();
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x c y ab z");
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{6, 2}));
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x c y c z");
    EXPECT_EQ(Such_Pos, -1);
    EXPECT_TRUE(Box.Meldungen.empty()); // there had been hits
}
TEST_F(Suche_Test, replace_marks_the_document_and_the_line_as_changed)
{
    Im_Editor("x\r\nab\r\nab");
    Datei_Name = "/tmp/a.asm";
    Ersetzen_Eingeben("ab", "c");
    Suche::Suchen_OK_Click();
    EXPECT_FALSE(Datei_Geaendert);
    Suche::B_Ersetzen_Click();
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Text_Veraendert);
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_EQ(Zeilen_In_Arbeit.Geaenderte_Zeilen, (std::vector<std::int64_t>{1}));
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "2:MC-Editor (*)/tmp/a.asm");
}
TEST_F(Suche_Test, the_replaced_line_is_handled_when_the_user_leaves_it)
{
    Im_Editor("x\r\n mov a,b\r\n mov c,b");
    Ersetzen_Eingeben("mov", "add");
    Suche::Suchen_OK_Click();
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x\r\n add a,b\r\n mov c,b");
    Text_SelChange(); // as a move of the user's does, the caret being in the next line
    EXPECT_EQ(Feld.Inhalt, "x\r\n ADD A,b\r\n mov c,b");
}
TEST_F(Suche_Test, replace_takes_a_snapshot_before_it_changes_the_text)
{
    Im_Editor("x ab y ab");
    Ersetzen_Eingeben("ab", "c");
    Suche::Suchen_OK_Click();
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Aufnahmen(), 1);
    EXPECT_TRUE(Menue("MNU_Undo").Aktiv);
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "x ab y ab");
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{2, 2}));
    MNU_Redo_Click();
    EXPECT_EQ(Feld.Inhalt, "x c y ab");
}
TEST_F(Suche_Test, a_first_replace_searches_first)
{
    Im_Editor("x ab y ab");
    Ersetzen_Eingeben("ab", "c");
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x c y ab");
    EXPECT_EQ(Feld.Auswahl().Anfang, 6);
}
TEST_F(Suche_Test, a_hit_at_the_very_start_counts_as_no_search_yet)
{
    Im_Editor("ab ab ab", 8);
    Ersetzen_Eingeben("ab", "c");
    Suche::Suchen_OK_Click();
    ASSERT_EQ(Such_Pos, 0);
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "ab c ab");
}
TEST_F(Suche_Test, after_a_search_in_vain_nothing_is_replaced)
{
    Im_Editor("x ab");
    Ersetzen_Eingeben("zz", "c");
    Suche::Suchen_OK_Click();
    ASSERT_EQ(Such_Pos, -1);
    Suche::Suchbegriff_Change("ab");
    Feld.Auswaehlen(2, 2);
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x ab");
    EXPECT_EQ(Box.Meldungen.size(), 1u);
}
TEST_F(Suche_Test, a_first_replace_in_vain_tells_it_once)
{
    Im_Editor("x ab");
    Ersetzen_Eingeben("zz", "c");
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Feld.Inhalt, "x ab");
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_EQ(Aufnahmen(), 0);
}
TEST_F(Suche_Test, a_selection_differing_only_in_case_is_replaced_even_when_case_counts)
{
    Im_Editor("x MOV y mov");
    Ersetzen_Eingeben("mov", "add");
    Suche::Suchen_OK_Click();
    ASSERT_EQ(Feld.Auswahl_Text(), "MOV");
    Suche::Check2_Click(true);
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x add y mov");
    EXPECT_EQ(Feld.Auswahl().Anfang, 8);
}
TEST_F(Suche_Test, another_selection_is_left_alone_and_the_search_goes_on)
{
    Im_Editor("x ab y ab");
    Ersetzen_Eingeben("ab", "c");
    Suche::Suchen_OK_Click();
    Feld.Auswaehlen(2, 3);
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x ab y ab");
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{7, 2}));
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_EQ(Aufnahmen(), 0);
}
TEST_F(Suche_Test, replace_by_nothing_takes_the_hit_out)
{
    Im_Editor("x ab y");
    Ersetzen_Eingeben("ab ", "");
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x y");
}
TEST_F(Suche_Test, an_empty_term_replaces_nothing)
{
    Im_Editor("x ab", 1);
    Ersetzen_Eingeben("", "c");
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x ab");
    EXPECT_FALSE(Datei_Geaendert);
}
TEST_F(Suche_Test, a_character_outside_the_code_page_can_be_put_in_and_replaced)
{
    Im_Editor("a -> b");
    Ersetzen_Eingeben("->", "→");
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Text_UTF8(), "a → b");
    Ersetzen_Eingeben("→", "=");
    Such_Pos = 0;
    Suche::B_Ersetzen_Click();
    EXPECT_EQ(Feld.Text_UTF8(), "a = b");
}

// --- replace all ---

TEST_F(Suche_Test, replace_all_tells_the_number_in_both_languages)
{
    Im_Editor("x ab AB ab");
    Sprache = "D";
    EXPECT_EQ(Alle_Ersetzen("ab", "c"), "x c c c");
    EXPECT_EQ(Letzte_Meldung(), "Der Suchbegriff wurde 3 mal gefunden und ersetzt!");
    Sprache = "E";
    EXPECT_EQ(Alle_Ersetzen("c", "ab"), "x ab ab ab");
    EXPECT_EQ(Letzte_Meldung(), "The search string was found and replaced 3 times!");
    EXPECT_EQ(Box.Meldungen.back().Bild, Symbol::Hinweis);
    EXPECT_EQ(Box.Meldungen.size(), 2u);
}
TEST_F(Suche_Test, replace_all_without_a_hit_is_told_in_both_languages_and_changes_nothing)
{
    Im_Editor("abc", 2);
    for (const auto& [Wahl, Text] : {std::pair{"D", Nicht_D}, std::pair{"E", Nicht_E}}) {
        Sprache = Wahl;
        EXPECT_EQ(Alle_Ersetzen("zz", "c"), "abc");
        EXPECT_EQ(Letzte_Meldung(), Text);
    }
    EXPECT_EQ(Feld.Gesetzt, 0);
    EXPECT_EQ(Feld.Auswahl().Anfang, 2);
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_EQ(Aufnahmen(), 0);
    EXPECT_EQ(Such_Pos, -1);
}
TEST_F(Suche_Test, a_single_replacement_at_the_start_is_told_as_none)
{
    Im_Editor("ab x");
    EXPECT_EQ(Alle_Ersetzen("ab", "c"), "c x");
    EXPECT_EQ(Letzte_Meldung(), Nicht_E);
    EXPECT_TRUE(Datei_Geaendert);
}
TEST_F(Suche_Test, the_place_of_the_last_replacement_decides_as_the_text_then_stands)
{
    Im_Editor("abab");
    EXPECT_EQ(Alle_Ersetzen("ab", ""), "");
    EXPECT_EQ(Such_Letzte, 0);
    EXPECT_EQ(Letzte_Meldung(), Nicht_E);
    Im_Editor("abab");
    EXPECT_EQ(Alle_Ersetzen("ab", "xyz"), "xyzxyz");
    EXPECT_EQ(Such_Letzte, 3);
    EXPECT_EQ(Letzte_Meldung(), "The search string was found and replaced 2 times!");
}
TEST_F(Suche_Test, a_replacement_that_contains_the_term_terminates_with_one_for_each_hit)
{
    Im_Editor("x a a a");
    EXPECT_EQ(Alle_Ersetzen("a", "aaa"), "x aaa aaa aaa");
    EXPECT_EQ(Letzte_Meldung(), "The search string was found and replaced 3 times!");
}
TEST_F(Suche_Test, what_a_replacement_makes_with_its_neighbours_is_no_hit)
{
    Im_Editor("x aab");
    EXPECT_EQ(Alle_Ersetzen("ab", ""), "x a");
    Im_Editor("x aabb");
    EXPECT_EQ(Alle_Ersetzen("ab", ""), "x ab");
}
TEST_F(Suche_Test, replace_all_obeys_the_ticks)
{
    Suche::Check1_Click(true);
    Suche::Check2_Click(true);
    Im_Editor("ab abc Ab ab");
    EXPECT_EQ(Alle_Ersetzen("ab", "X"), "X abc Ab X");
}
TEST_F(Suche_Test, replace_all_looks_from_the_start_wherever_the_caret_is)
{
    Im_Editor("ab ab", 4, 1);
    EXPECT_EQ(Alle_Ersetzen("ab", "c"), "c c");
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{3, 0})); // behind the last replacement
}
TEST_F(Suche_Test, replace_all_sets_the_text_once_and_marks_it_as_changed)
{
    Im_Editor("x\r\nab\r\nab\r\ny");
    Datei_Name = "/tmp/a.asm";
    Alle_Ersetzen("ab", "cde");
    EXPECT_EQ(Feld.Gesetzt, 1);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Text_Veraendert);
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_EQ(Zeilen_In_Arbeit.Geaenderte_Zeilen, (std::vector<std::int64_t>{2}));
    EXPECT_EQ(Ereignisse.Titel_Texte.back(), "2:MC-Editor (*)/tmp/a.asm");
    EXPECT_FALSE(Text_Sperre);
    EXPECT_FALSE(Feld.Zeichnen_Steht);
}
TEST_F(Suche_Test, replace_all_is_one_step_of_the_undo_ring)
{
    Im_Editor("x ab\r\nab ; ab\r\nab", 1, 2);
    Zeilen_Einfaerben(0, 2);
    const std::string Farben = Farbbild();
    Alle_Ersetzen("ab", "cde");
    EXPECT_EQ(Aufnahmen(), 1);
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "x ab\r\nab ; ab\r\nab");
    EXPECT_EQ(Farbbild(), Farben);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{1, 2}));
    MNU_Redo_Click();
    EXPECT_EQ(Feld.Inhalt, "x cde\r\ncde ; cde\r\ncde");
}
TEST_F(Suche_Test, lines_with_hits_get_their_colours_and_the_others_keep_theirs)
{
    Im_Editor("Mark: NOP ; a\r\n NOP ; plain\r\nMark2: NOP\r\nend ; x");
    Zeilen_Einfaerben(0, 3);
    const Farbstelle_T Schwarz{20, 7, 0}; // "; plain" as typed and not yet left
    Feld.Faerben({&Schwarz, 1});
    Alle_Ersetzen("Mark", "Label_");
    EXPECT_EQ(Feld.Inhalt, "Label_: NOP ; a\r\n NOP ; plain\r\nLabel_2: NOP\r\nend ; x");
    EXPECT_EQ(Farbbild(),
              "mmmmmmm.....kkk.."
              ".............."
              "mmmmmmmm......"
              "....kkk");
}
TEST_F(Suche_Test, a_replacement_can_make_comments_and_end_them)
{
    Im_Editor("a ; b\r\nc # d");
    Zeilen_Einfaerben(0, 1);
    Alle_Ersetzen(";", ",");
    EXPECT_EQ(Farbbild(), "............");
    Alle_Ersetzen("#", ";");
    EXPECT_EQ(Farbbild(), ".........kkk");
}
TEST_F(Suche_Test, the_jumpmark_list_follows_a_replace_all)
{
    Im_Editor("One: NOP\r\nTwo: NOP");
    Sprungmarken_Fuellen();
    Alle_Ersetzen("Two", "Three");
    EXPECT_EQ(Sprungmarken_Liste, (std::vector<std::string>{"One", "Three"}));
}
TEST_F(Suche_Test, line_ends_can_be_replaced_and_put_in)
{
    Im_Editor("x a,b,c");
    EXPECT_EQ(Alle_Ersetzen(",", "\n"), "x a\r\nb\r\nc");
    EXPECT_EQ(Alle_Ersetzen("\r\n", " ; "), "x a ; b ; c");
    EXPECT_EQ(Farbbild(), "....kkkkkkk");
}
TEST_F(Suche_Test, characters_outside_the_code_page_live_through_a_replace_all)
{
    Im_Editor("x ? → a ?\r\n😀 a ? → a");
    EXPECT_EQ(Alle_Ersetzen("?", "!"), "x ! → a !\r\n😀 a ! → a");
    EXPECT_EQ(Alle_Ersetzen("a", "ä→"), "x ! → ä→ !\r\n😀 ä→ ! → ä→");
    EXPECT_EQ(Alle_Ersetzen("→", "a"), "x ! a äa !\r\n😀 äa ! a äa");
    EXPECT_EQ(Alle_Ersetzen("😀", "b"), "x ! a äa !\r\nb äa ! a äa");
    EXPECT_EQ(Box.Meldungen.size(), 4u);
}
TEST_F(Suche_Test, form_and_panel_make_way_for_the_outcome)
{
    Im_Editor("x ab");
    Debugger_Aktiv = false;
    Fenster.Formular_Zeigen(Formular::F_Suche);
    Fenster.Sichtbar_Setzen(Fenster_CONTROL, true);
    Fenster.Protokoll.clear();
    Alle_Ersetzen("ab", "c");
    EXPECT_EQ(Fenster.Protokoll,
              (std::vector<std::string>{"Entladen Suche", "Sichtbar 10 0", "Zeigen Suche"}));
}
TEST_F(Suche_Test, replace_all_clears_the_last_search)
{
    Im_Editor("x ab");
    Suchen("ab");
    Alle_Ersetzen("zz", "c");
    EXPECT_EQ(Such_Letzte, 0);
    EXPECT_EQ(Such_Pos, -1);
}
TEST_F(Suche_Test, replace_all_of_nothing_finds_nothing)
{
    Im_Editor("abc");
    EXPECT_EQ(Alle_Ersetzen("", "x"), "abc");
    EXPECT_EQ(Letzte_Meldung(), Nicht_E);
}
TEST_F(Suche_Test, a_text_that_would_be_too_long_is_not_made)
{
    const std::string Lang(32767, 'x');
    Feld.Bunt = false;
    Im_Editor(std::string(Quelltext_Hoechstens / 32766 + 1, 'a'));
    Ersetzen_Eingeben("a", Lang);
    for (const auto& [Wahl, Text] :
         {std::pair{"D", "Der Text würde zu lang. Es wurde nichts ersetzt."},
          std::pair{"E", "The text would be too long. Nothing was replaced."}}) {
        Sprache = Wahl;
        Suche::B_AlleErsetzen_Click();
        ASSERT_FALSE(Box.Hinweise.empty());
        EXPECT_EQ(Box.Hinweise.back(), Text);
    }
    EXPECT_EQ(Feld.Gesetzt, 0);
    EXPECT_TRUE(Box.Meldungen.empty());
    Suche::Ersetzen_durch_Change(Lang.substr(0, 32000));
    Suche::B_AlleErsetzen_Click();
    EXPECT_EQ(Feld.Gesetzt, 1);
}
TEST_F(Suche_Test, a_text_that_grows_over_its_limit_otherwise_can_still_be_shortened)
{
    Feld.Bunt = false;
    Im_Editor(std::string(Quelltext_Hoechstens, 'a') + " bb");
    Ersetzen_Eingeben("bb", "bbb");
    Suche::B_AlleErsetzen_Click();
    EXPECT_EQ(Box.Hinweise.size(), 1u);
    Suche::Ersetzen_durch_Change("b");
    Suche::B_AlleErsetzen_Click();
    EXPECT_EQ(Feld.Laenge(), static_cast<std::int64_t>(Quelltext_Hoechstens + 2));
}

// --- while the text is locked ---

TEST_F(Suche_Test, in_a_debugger_session_replace_is_not_offered_and_search_works)
{
    Im_Editor("x ab ab");
    Ersetzen_Eingeben("ab", "c");
    EXPECT_TRUE(Suche::Ersetzen_Angeboten());
    EXPECT_TRUE(Suche::Ersetzen_Aktiv());
    Debugger_Aktiv = true;
    EXPECT_FALSE(Suche::Ersetzen_Angeboten());
    EXPECT_FALSE(Suche::Ersetzen_Aktiv());
    Suche::Suchen_OK_Click();
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{2, 2}));
    Suche::B_Ersetzen_Click();
    Suche::B_AlleErsetzen_Click();
    EXPECT_EQ(Feld.Inhalt, "x ab ab");
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{2, 2}));
    EXPECT_TRUE(Box.Meldungen.empty());
    Debugger_Aktiv = false;
    EXPECT_TRUE(Suche::Ersetzen_Aktiv());
}
TEST_F(Suche_Test, beside_the_image_replace_is_not_offered)
{
    Ersetzen_Eingeben("ab", "c");
    Modus = Modus_Hex;
    EXPECT_FALSE(Suche::Ersetzen_Angeboten());
}
TEST_F(Suche_Test, the_replace_buttons_need_their_tick_and_a_key_in_the_replacement_sets_it)
{
    EXPECT_TRUE(Suche::Ersetzen_Angeboten());
    EXPECT_FALSE(Suche::Ersetzen_Aktiv());
    Such_Letzte = 5;
    Suche::Ersetzen_durch_KeyPress();
    EXPECT_TRUE(Suche_Form.Check3);
    EXPECT_TRUE(Suche::Ersetzen_Aktiv());
    EXPECT_EQ(Such_Letzte, 0);
    Such_Letzte = 5;
    Suche::Ersetzen_durch_KeyPress(); // ticked already
    EXPECT_EQ(Such_Letzte, 5);
    Suche::Check3_Click(false);
    EXPECT_FALSE(Suche::Ersetzen_Aktiv());
}

// --- the commands of the menu ---

TEST_F(Suche_Test, the_menu_opens_the_form_of_the_mode)
{
    MNU_Suche_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Zeigen Suche");
    Modus = Modus_Hex;
    MNU_Suche_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Zeigen HexSuche");
}
TEST_F(Suche_Test, opening_the_form_gives_the_term_the_focus)
{
    Suche_Form.Fokus_Suchen_OK = true;
    const auto Vorher          = Suche_Form.Fokus_Stand;
    MNU_Suche_Click();
    EXPECT_FALSE(Suche_Form.Fokus_Suchen_OK);
    EXPECT_GT(Suche_Form.Fokus_Stand, Vorher);
}
TEST_F(Suche_Test, find_next_runs_the_search_of_the_form_that_is_seen)
{
    Im_Editor("x ab ab");
    Suche::Suchbegriff_Change("ab");
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Feld.Auswahl().Anfang, 0); // the form isn't open
    MNU_Suche_Click();
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Feld.Auswahl().Anfang, 2);
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Feld.Auswahl().Anfang, 5);
    Modus = Modus_Hex; // the form of the image isn't open
    MNU_Weitersuchen_Click();
    EXPECT_EQ(Feld.Auswahl().Anfang, 5);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Suche_Test, both_commands_stand_in_the_menu_with_their_button)
{
    EXPECT_TRUE(Menue_Hat_Befehl(Menue_Platz("MNU_Suche")));
    EXPECT_TRUE(Menue_Hat_Befehl(Menue_Platz("MNU_Weitersuchen")));
    Werkzeug_Ausfuehren("Suchen");
    EXPECT_TRUE(Fenster.Formular_Sichtbar(Formular::F_Suche));
}

// --- random texts ---

RC_GTEST_FIXTURE_PROP(Suche_Test, replace_all_does_what_single_replacements_do, ())
{
    Box.Meldungen.clear();
    const auto Aus = [](const char* Zeichen, int Laenge) {
        return *rc::gen::resize(
            Laenge, rc::gen::container<std::string>(rc::gen::elementOf(std::string(Zeichen))));
    };
    const std::string Begriff = Aus("aA;:", 3);
    const std::string Neu     = Aus("aB;:", 4);
    std::string       Text;
    for (const char c : Aus("aAb;: \n", 40))
        Text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    Im_Editor(Text);
    Zeilen_Einfaerben(0, 1000);
    Alle_Ersetzen(Begriff, Neu);
    const std::string Auf_Einmal = Feld.Inhalt;
    const std::string Farben     = Farbbild();

    Speicher_Text Einzeln; // find from 0, select, replace, find behind the replacement
    Einzeln.Text_Setzen(Text);
    std::size_t Von = 0;
    for (std::size_t i; !Begriff.empty() &&
                        (i = Gross(Einzeln.Inhalt).find(Gross(Begriff), Von)) != std::string::npos;
         Von = i + Neu.size()) {
        Einzeln.Auswaehlen(static_cast<std::int64_t>(i), static_cast<std::int64_t>(Begriff.size()));
        Einzeln.Auswahl_Ersetzen(Neu);
    }
    RC_ASSERT(Auf_Einmal == Einzeln.Inhalt);
    RC_ASSERT(Box.Meldungen.size() == 1u);
    Zeilen_Einfaerben(0, 1000);
    RC_ASSERT(Farbbild() == Farben);
}

} // namespace
} // namespace varnholt::test
