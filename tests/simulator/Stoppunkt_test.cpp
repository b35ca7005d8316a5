// The insertion of stop points, with and without a session; the undo buttons across one.
#include "editors/Quelltext.h"
#include "simulator/Sitzung_Welt.h"
#include "support/Tippen.h"

#include <rapidcheck/gtest.h>

#include <utility>

namespace varnholt::test {
namespace {

class Stoppunkt_Test : public Sitzung_Welt {
protected:
    Stoppunkt_Test()
    {
        Undo_Max = 5;
        Undo_Zuruecksetzen();
    }

    void        Tippen(const std::string& Neuer) { Tippen_In(Text, Neuer); }
    static void Verlassen() { Zeile_Verlassen(); }

    static std::array<bool, 4> Undo_Knoepfe()
    {
        return {Menue("MNU_Undo").Aktiv,
                Werkzeug(14).Aktiv,
                Menue("MNU_Redo").Aktiv,
                Werkzeug(15).Aktiv};
    }
    static constexpr std::array<bool, 4> Keiner{};
};

TEST_F(Stoppunkt_Test, The_word_gets_a_line_of_its_own_above_the_current_one)
{
    const std::string Vorher = "INC A\r\n\tDEC A ; x\r\nCPL A";
    for (std::int64_t i = 0; i <= static_cast<std::int64_t>(Vorher.size()); ++i) {
        Text.Text_Setzen(Vorher);
        const std::int64_t Nummer = Text.Zeile_Von(i);
        Text.Auswaehlen(i, 0);
        Debug_Stoppunkt();
        std::string Soll = Vorher;
        Soll.insert(Nummer == 0 ? 0 : Nummer == 1 ? 7 : 19, "STOP\r\n");
        EXPECT_EQ(Text.Inhalt, Soll) << i;
        EXPECT_EQ(Zeile(), Nummer + 1) << "the cursor stays in its line";
        EXPECT_EQ(Text.Auswahl().Laenge, 0);
    }
}

TEST_F(Stoppunkt_Test, A_selection_counts_by_its_start_and_is_kept)
{
    Text.Text_Setzen("INC A\r\nDEC A\r\nCPL A\r\n");
    Text.Auswaehlen(9, 10);
    Debug_Stoppunkt();
    EXPECT_EQ(Text.Inhalt, "INC A\r\nSTOP\r\nDEC A\r\nCPL A\r\n");
}

TEST_F(Stoppunkt_Test, In_an_empty_text_it_is_the_first_line)
{
    Debug_Stoppunkt();
    EXPECT_EQ(Text.Inhalt, "STOP\r\n");
}

TEST_F(Stoppunkt_Test, The_text_counts_as_changed)
{
    for (const bool Sitzung_An : {false, true}) {
        Datei_Name = "/x/prog.asm";
        ASSERT_TRUE(Programm("INC A\nSTOP\n"));
        if (!Sitzung_An)
            Debug_Beenden();
        Datei_Geaendert = false;
        Text_Aktuell    = true;
        Ereignisse.Titel_Texte.clear();
        Text.Ungesperrte = 0;
        Debug_Stoppunkt();
        EXPECT_TRUE(Datei_Geaendert);
        EXPECT_FALSE(Text_Aktuell) << "the image is that of the text before";
        EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"2:MC-Editor (*)/x/prog.asm"});
        EXPECT_EQ(Text.Ungesperrte, 0);
        EXPECT_FALSE(Text_Sperre);
        EXPECT_EQ(Text.Gesperrt, Sitzung_An);
        Debug_Beenden();
    }
}

TEST_F(Stoppunkt_Test, The_word_takes_no_colour_from_the_line_above)
{
    Text.Text_Setzen("; comment\r\nINC A\r\n");
    Zeilen_Einfaerben(0, 2);
    Cursor_In(1);
    Debug_Stoppunkt();
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(Text.Farbe_An(Text.Zeile(1).Anfang + i), 0);
    EXPECT_NE(Text.Farbe_An(0), 0);
}

TEST_F(Stoppunkt_Test, Above_an_include_line_that_line_keeps_its_file)
{
    Include_Datei("code.inc", "; two\nINC A\nRET\n");
    ASSERT_TRUE(Programm("DEC A\nINCLUDE code.inc\nSTOP\n"));
    for (int n = 2; n <= 4; ++n) {
        Cursor_In(n);
        Debug_Stoppunkt();
        const std::pair<int, int> Faelle[] = {{1, 0}, {n, 1}, {n + 1, 1}, {n + 2, 3}};
        for (const auto& [Nummer, Adresse] : Faelle) {
            Cursor_In(Nummer);
            Debug_Cursor();
            EXPECT_EQ(Sim_PC, Adresse) << n << Nummer;
        }
        EXPECT_EQ(Auswahl(), "STOP");
        EXPECT_EQ(Zeile(), n + 2);
    }
}

TEST_F(Stoppunkt_Test, It_takes_effect_with_the_next_preparation)
{
    ASSERT_TRUE(Programm("INC A\nDEC A\nSTOP\n"));
    Cursor_In(2);
    Debug_Stoppunkt();
    Debug_Start_Stop();
    EXPECT_EQ(Sim_PC, 2) << "the image is as it was";
    EXPECT_EQ(Zeile(), 4);
    Debug_Vorbereiten();
    Debug_Start_Stop();
    EXPECT_EQ(Sim_PC, 1);
    EXPECT_EQ(Auswahl(), "STOP");
    EXPECT_EQ(Zeile(), 2);
}

TEST_F(Stoppunkt_Test, It_can_come_while_a_program_runs)
{
    ASSERT_TRUE(Programm("LOOP: INC A\nSJMP LOOP\n"));
    In_Runde(2, [this] {
        Cursor_In(1);
        Debug_Stoppunkt();
    });
    const int Ab         = Ereignisse.Runden;
    auto      Bisher     = Ereignisse.Bei_Runde;
    Ereignisse.Bei_Runde = [&, Bisher](int n) {
        Bisher(n);
        if (n == Ab + 3)
            Debug_Start_Stop();
    };
    Debug_Start_Stop();
    EXPECT_TRUE(Debugger_Aktiv);
    EXPECT_FALSE(Debug_Laeuft);
    EXPECT_EQ(Zeile(), Sim_PC == 0 ? 2 : 3);
    EXPECT_EQ(Undo_Knoepfe(), Keiner);
}

TEST_F(Stoppunkt_Test, Undo_takes_it_back_and_redo_brings_it_again)
{
    const std::string Ohne = "INC A\r\nDEC A\r\n";
    const std::string Mit  = "INC A\r\nSTOP\r\nDEC A\r\n";
    Text.Text_Setzen(Ohne);
    Cursor_In(1);
    Debug_Stoppunkt();
    EXPECT_TRUE(Menue("MNU_Undo").Aktiv);
    MNU_Undo_Click();
    EXPECT_EQ(Text.Inhalt, Ohne);
    EXPECT_TRUE(Menue("MNU_Redo").Aktiv);
    MNU_Redo_Click();
    EXPECT_EQ(Text.Inhalt, Mit);
    MNU_Undo_Click();
    EXPECT_EQ(Text.Inhalt, Ohne);
}

TEST_F(Stoppunkt_Test, In_a_session_undo_waits_for_its_end)
{
    ASSERT_TRUE(Programm("INC A\nSTOP\n"));
    const std::string Ohne = Text.Inhalt;
    Cursor_In(1);
    Debug_Stoppunkt();
    const std::string Mit = Text.Inhalt;
    EXPECT_EQ(Undo_Knoepfe(), Keiner) << "the text is locked";
    Debug_Beenden();
    EXPECT_TRUE(Menue("MNU_Undo").Aktiv);
    EXPECT_TRUE(Werkzeug(14).Aktiv);
    EXPECT_FALSE(Menue("MNU_Redo").Aktiv);
    MNU_Undo_Click();
    EXPECT_EQ(Text.Inhalt, Ohne);
    MNU_Redo_Click();
    EXPECT_EQ(Text.Inhalt, Mit);
}

TEST_F(Stoppunkt_Test, A_key_in_a_session_leaves_undo_switched_off)
{
    ASSERT_TRUE(Programm("INC A\nSTOP\n"));
    EXPECT_EQ(Undo_Knoepfe(), Keiner);
    Taste_T Taste; // the first one of this text: it takes a snapshot
    Taste.Zeichen = 'x';
    Text_KeyDown(Taste);
    EXPECT_TRUE(Undo_Begonnen);
    EXPECT_EQ(Undo_Knoepfe(), Keiner);
    Debug_Beenden();
    EXPECT_TRUE(Undo_Knoepfe()[0]);
}

TEST_F(Stoppunkt_Test, With_undo_switched_off_the_buttons_stay_off)
{
    Undo_Max = -1;
    Undo_Zuruecksetzen();
    ASSERT_TRUE(Programm("INC A\nSTOP\n"));
    Debug_Stoppunkt();
    Debug_Beenden();
    EXPECT_EQ(Undo_Knoepfe(), Keiner);
}

TEST_F(Stoppunkt_Test, A_session_that_can_not_begin_anew_gives_the_buttons_back)
{
    const std::string Gut = Mit_CRLF("INCLUDE 8051.mc\nINC A\nSTOP\n");
    for (const std::string Schlecht : {"INCLUDE 8051.mc\r\nNONSENSE\r\n", "NOP\r\n"}) {
        Undo_Zuruecksetzen();
        Tippen(Gut);
        Verlassen();
        const auto Vorher = Undo_Knoepfe();
        EXPECT_TRUE(Vorher[0]);
        Debug_Vorbereiten();
        EXPECT_TRUE(Debugger_Aktiv);
        EXPECT_EQ(Undo_Knoepfe(), Keiner);
        Text.Inhalt = Schlecht;
        Debug_Vorbereiten();
        EXPECT_FALSE(Debugger_Aktiv);
        EXPECT_EQ(Undo_Knoepfe(), Vorher);
    }
}

RC_GTEST_FIXTURE_PROP(Stoppunkt_Test, A_session_leaves_undo_and_redo_as_they_were, ())
{
    Undo_Max = 99;
    Undo_Zuruecksetzen();
    Text.Text_Setzen(Mit_CRLF("INCLUDE 8051.mc\nINC A\nSTOP\n"));
    const auto Wege = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 5));
    int        n    = 0;
    for (const int Weg : Wege) {
        if (Weg == 0)
            Tippen(Text.Inhalt + "; " + std::to_string(++n) + "\r\n");
        else if (Weg == 1)
            Verlassen();
        else if (Weg == 2 && Menue("MNU_Undo").Aktiv)
            MNU_Undo_Click();
        else if (Weg == 3 && Menue("MNU_Redo").Aktiv)
            MNU_Redo_Click();
        else if (Weg == 4)
            Debug_Stoppunkt();
    }
    const auto Vorher = Undo_Knoepfe();
    Debug_Vorbereiten();
    RC_ASSERT(Debugger_Aktiv);
    RC_ASSERT(Undo_Knoepfe() == Keiner);
    Debug_Schritt();
    RC_ASSERT(Undo_Knoepfe() == Keiner);
    Debug_Beenden();
    RC_ASSERT(Undo_Knoepfe() == Vorher);
}

} // namespace
} // namespace varnholt::test
