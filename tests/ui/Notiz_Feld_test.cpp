// The notes as rich text in the window: look by keys and menu, loading, saving, the clipboard.
#include "core/menu.h"
#include "core/settings.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "files/Datei_Zustand.h"
#include "files/Dateikommandos.h"
#include "files/Rtf.h"
#include "ui/Haupt_Welt.h"
#include "ui/Notiz_Feld.h"
#include "ui/Reich_Qt.h"

#include <QClipboard>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QFontDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTextBlock>

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

Zeichen_Bild_T Fett()
{
    Zeichen_Bild_T b;
    b.Fett = true;
    return b;
}
Reich_Text_T Zeile(std::vector<Text_Stueck_T> Stuecke) { return {{{std::move(Stuecke), {}}}}; }

// --- the control by itself -----------------------------------------------------------------------

class Feld_Allein : public ::testing::Test {
protected:
    Feld_Allein()
    {
        Feld.resize(300, 200);
        Feld.show();
    }
    void Auswahl(std::int64_t Anfang, std::int64_t Laenge) { Feld.Auswaehlen(Anfang, Laenge); }
    void Taste(Qt::Key k) { QTest::keyClick(&Feld, k, Qt::ControlModifier); }
    const std::vector<Text_Stueck_T> Stuecke() const
    {
        return Feld.Reicher_Text().Absaetze.at(0).Stuecke;
    }
    Notiz_Feld Feld{};
};

TEST_F(Feld_Allein, takes_a_rich_text_and_gives_it_back)
{
    const Reich_Text_T Text{
        {{{{"a", {"Courier", 25, 0xDD1111, true, false, true}}, {"\xF0\x9F\x98\x80 b", {}}},
          {Bund::Mitte, 100, -50, 20, 30}},
         {},
         {{{"\tc", Fett()}}, {}}}};
    Feld.Reich_Setzen(Text);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
    EXPECT_EQ(Feld.Text(), "a?? b\r\n\r\n\tc");
    EXPECT_EQ(Feld.Text_UTF8(), "a\xF0\x9F\x98\x80 b\r\n\r\n\tc");
    EXPECT_EQ(Feld.Farbe_An(0), 0xDD1111);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{0, 0}));
}
TEST_F(Feld_Allein, an_empty_text_empties_it)
{
    Feld.Reich_Setzen(Zeile({{"a", Fett()}}));
    Feld.Reich_Setzen({});
    EXPECT_EQ(Feld.Laenge(), 0);
    EXPECT_EQ(Feld.Reicher_Text(), (Reich_Text_T{{Absatz_T{}}}));
}
TEST_F(Feld_Allein, loading_tells_nobody_of_a_change)
{
    QSignalSpy Geaendert(&Feld, &Text_Feld::Text_Geaendert);
    Feld.Reich_Setzen(Zeile({{"a", Fett()}}));
    EXPECT_EQ(Geaendert.size(), 0);
    QTest::keyClick(&Feld, Qt::Key_X);
    EXPECT_EQ(Geaendert.size(), 1);
}
TEST_F(Feld_Allein, a_file_reads_back_as_it_was_through_the_control)
{
    const std::string Datei =
        "{\\rtf1\\ansi{\\fonttbl{\\f0 A;}{\\f1 Arial;}}{\\colortbl;\\red255;}\\qc\\f1\\fs30 "
        "a{\\b b}{\\i\\cf1 c}\\par\\pard\\plain \\u9731?\\line d}";
    const Reich_Text_T Text = Rtf_Lesen(Datei).Text;
    Feld.Reich_Setzen(Text);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
    Feld.Reich_Setzen(Rtf_Lesen(Rtf_Schreiben(Feld.Reicher_Text())).Text);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
}
TEST_F(Feld_Allein, characters_that_Qt_takes_for_line_ends_become_harmless)
{
    Feld.Reich_Setzen(Zeile({{"a\xE2\x80\xA8"
                              "b\xE2\x80\xA9"
                              "c\xEF\xB7\x90"
                              "d\ne",
                              {}}}));
    EXPECT_EQ(Feld.Zeilen_Anzahl(), 1);
    EXPECT_EQ(Feld.Text(), "a?b?c?d?e");
}

struct Gestalt_Fall {
    Qt::Key Taste;
    bool Zeichen_Bild_T::*Eigenschaft;
};
class Gestalten : public Feld_Allein, public ::testing::WithParamInterface<Gestalt_Fall> {};

TEST_P(Gestalten, the_key_turns_the_look_of_the_selection_on_and_off)
{
    Feld.Reich_Setzen(Zeile({{"one two", {}}}));
    QSignalSpy Geaendert(&Feld, &Text_Feld::Text_Geaendert);
    Auswahl(4, 3);
    Taste(GetParam().Taste);
    ASSERT_EQ(Stuecke().size(), 2u);
    EXPECT_FALSE(Stuecke()[0].Bild.*GetParam().Eigenschaft);
    EXPECT_TRUE(Stuecke()[1].Bild.*GetParam().Eigenschaft);
    EXPECT_EQ(Stuecke()[1].Text, "two");
    EXPECT_EQ(Geaendert.size(), 1);
    EXPECT_EQ(Feld.Text(), "one two");
    Taste(GetParam().Taste);
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"one two", {}}}));
}
TEST_P(Gestalten, a_selection_of_both_kinds_gets_it_everywhere)
{
    Feld.Reich_Setzen(Zeile({{"one two", {}}}));
    Auswahl(4, 3);
    Taste(GetParam().Taste);
    Auswahl(2, 4);
    Taste(GetParam().Taste);
    ASSERT_EQ(Stuecke().size(), 2u);
    EXPECT_EQ(Stuecke()[1].Text, "e two");
}
TEST_P(Gestalten, without_a_selection_it_holds_for_what_is_typed_next)
{
    QSignalSpy Geaendert(&Feld, &Text_Feld::Text_Geaendert);
    Taste(GetParam().Taste);
    EXPECT_EQ(Geaendert.size(), 0);
    QTest::keyClicks(&Feld, QStringLiteral("ab"));
    Taste(GetParam().Taste);
    QTest::keyClicks(&Feld, QStringLiteral("cd"));
    ASSERT_EQ(Stuecke().size(), 2u);
    EXPECT_TRUE(Stuecke()[0].Bild.*GetParam().Eigenschaft);
    EXPECT_EQ(Stuecke()[0].Text, "ab");
    EXPECT_EQ(Stuecke()[1], (Text_Stueck_T{"cd", {}}));
}
TEST_P(Gestalten, a_locked_control_keeps_its_look)
{
    Feld.Reich_Setzen(Zeile({{"one", {}}}));
    Feld.Sperren(true);
    Auswahl(0, 3);
    Taste(GetParam().Taste);
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"one", {}}}));
}
INSTANTIATE_TEST_SUITE_P(Tasten,
                         Gestalten,
                         ::testing::Values(Gestalt_Fall{Qt::Key_B, &Zeichen_Bild_T::Fett},
                                           Gestalt_Fall{Qt::Key_I, &Zeichen_Bild_T::Kursiv},
                                           Gestalt_Fall{Qt::Key_U,
                                                        &Zeichen_Bild_T::Unterstrichen}));

TEST_F(Feld_Allein, looks_add_up_over_several_lines)
{
    Feld.Reich_Setzen({{{{{"one", {}}}, {}}, {{{"two", {}}}, {}}}});
    Auswahl(1, 6);
    Taste(Qt::Key_B);
    Taste(Qt::Key_I);
    const auto t = Feld.Reicher_Text();
    EXPECT_EQ(t.Absaetze[0].Stuecke.at(1).Bild, (Zeichen_Bild_T{"", 0, 0, true, true, false}));
    EXPECT_EQ(t.Absaetze[1].Stuecke.at(0).Text, "tw");
    EXPECT_EQ(t.Absaetze[1].Stuecke.at(0).Bild, (Zeichen_Bild_T{"", 0, 0, true, true, false}));
    Feld.Schlicht_Machen();
    EXPECT_EQ(Feld.Reicher_Text().Absaetze[0].Stuecke.size(), 1u);
}
TEST_F(Feld_Allein, a_colour_keeps_the_rest_of_the_look)
{
    Feld.Reich_Setzen(Zeile({{"one", {"Arial", 30, 0xFF, true, false, false}}}));
    Auswahl(0, 3);
    Feld.Auswahl_Faerben(0x00AA00);
    EXPECT_EQ(Stuecke().at(0).Bild, (Zeichen_Bild_T{"Arial", 30, 0x00AA00, true, false, false}));
    Feld.Auswahl_Faerben(0);
    EXPECT_EQ(Stuecke().at(0).Bild, (Zeichen_Bild_T{"Arial", 30, 0, true, false, false}));
    EXPECT_EQ(Feld.Farbe_An(0), 0);
}
TEST_F(Feld_Allein, what_a_command_puts_in_takes_the_look_of_its_place)
{
    Feld.Reich_Setzen(Zeile({{"one", Fett()}, {"two", {}}}));
    Feld.Ersetzen({0, 1}, "O");
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"One", Fett()}, {"two", {}}}));
    Auswahl(3, 0);
    Feld.Auswahl_Ersetzen("X");
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"OneX", Fett()}, {"two", {}}}));
    Feld.Ersetzen({4, 3}, "2");
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"OneX", Fett()}, {"2", {}}}));
}
TEST_F(Feld_Allein, a_dark_ground_makes_colours_light_and_keeps_what_they_are)
{
    const Reich_Text_T Text =
        Zeile({{"a", {"Arial", 30, 0x800000, true, true, true}}, {"b", Fett()}});
    Feld.Reich_Setzen(Text);
    Feld.Hintergrund_Setzen(0x202020);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
    QTextCursor c(Feld.document());
    c.movePosition(QTextCursor::NextCharacter);
    EXPECT_GT(c.charFormat().foreground().color().lightness(), 150);
    EXPECT_EQ(c.charFormat().fontPointSize(), 15);
    Feld.Hintergrund_Setzen(0xFFFFFF);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
}
TEST_F(Feld_Allein, large_notes_load_in_bounded_time)
{
    Reich_Text_T Text;
    for (int i = 0; i < 20'000; ++i)
        Text.Absaetze.push_back({{{"line", {}}, {"bold", Fett()}}, {}});
    Feld.Reich_Setzen(Text);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
    EXPECT_EQ(Feld.Zeilen_Anzahl(), 20'000);
}

// --- undo and redo by keys ---

TEST_F(Feld_Allein, Ctrl_Z_and_Ctrl_Y_take_typing_back_and_bring_it_again)
{
    QTest::keyClicks(&Feld, QStringLiteral("one"));
    QTest::keyClick(&Feld, Qt::Key_Return);
    QTest::keyClicks(&Feld, QStringLiteral("two"));
    for (int i = 0; i < 10 && Feld.Laenge() > 0; ++i)
        Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Text(), "");
    for (int i = 0; i < 10 && Feld.Laenge() < 8; ++i)
        Taste(Qt::Key_Y);
    EXPECT_EQ(Feld.Text(), "one\r\ntwo");
    Taste(Qt::Key_Z);
    ASSERT_NE(Feld.Text(), "one\r\ntwo");
    QTest::keyClick(&Feld, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Feld.Text(), "one\r\ntwo");
}
TEST_F(Feld_Allein, a_change_of_look_is_a_step_too_and_is_told)
{
    Feld.Reich_Setzen(Zeile({{"one", {}}}));
    Auswahl(0, 3);
    Taste(Qt::Key_B);
    QSignalSpy Geaendert(&Feld, &Text_Feld::Text_Geaendert);
    Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"one", {}}}));
    EXPECT_EQ(Geaendert.size(), 1);
    Taste(Qt::Key_Y);
    EXPECT_EQ(Feld.Reicher_Text(), Zeile({{"one", Fett()}}));
}
TEST_F(Feld_Allein, what_a_command_did_is_taken_back_with_its_looks_and_colours)
{
    const Reich_Text_T Text = Zeile({{"one", Fett()}, {"two", {"", 0, 0xFF, false, true, false}}});
    Feld.Reich_Setzen(Text);
    Auswahl(1, 4);
    Feld.Auswahl_Ersetzen_Reich(Zeile({{"XYZ", {"", 0, 0xFF00, false, false, true}}}));
    ASSERT_NE(Feld.Reicher_Text(), Text);
    Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Reicher_Text(), Text);
    EXPECT_EQ(Feld.Farbe_An(3), 0xFF);
}
TEST_F(Feld_Allein, a_text_that_was_loaded_has_nothing_ahead_of_it)
{
    QTest::keyClicks(&Feld, QStringLiteral("of another document"));
    Feld.Reich_Setzen(Zeile({{"bold", Fett()}}));
    QSignalSpy Geaendert(&Feld, &Text_Feld::Text_Geaendert);
    Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Text(), "bold");
    Feld.Text_Setzen("plain");
    Taste(Qt::Key_Z);
    Taste(Qt::Key_Y);
    EXPECT_EQ(Feld.Text(), "plain");
    EXPECT_EQ(Geaendert.size(), 0); // a key without a step changes nothing
    Feld.moveCursor(QTextCursor::End);
    QTest::keyClicks(&Feld, QStringLiteral("!"));
    Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Text(), "plain");
}
TEST_F(Feld_Allein, a_locked_control_takes_nothing_back)
{
    QTest::keyClicks(&Feld, QStringLiteral("one"));
    Feld.Sperren(true);
    Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Text(), "one");
}
TEST_F(Feld_Allein, colours_are_light_on_a_dark_ground_whatever_was_taken_back)
{
    Feld.Reich_Setzen(Zeile({{"a", {"", 0, 0x800000, false, false, false}}, {"b", {}}}));
    Auswahl(0, 1);
    Taste(Qt::Key_B);
    Feld.Hintergrund_Setzen(0x202020);
    for (int i = 0; i < 3; ++i)
        Taste(Qt::Key_Z);
    QTextCursor c(Feld.document());
    c.movePosition(QTextCursor::NextCharacter);
    EXPECT_GT(c.charFormat().foreground().color().lightness(), 150);
    QTest::keyClicks(&Feld, QStringLiteral("x"));
    Taste(Qt::Key_Z);
    EXPECT_EQ(Feld.Text(), "ab");
}

// Neighbours of one colour, which may differ in the rest of their look, as one.
std::vector<Farbstelle_T> Verbunden(const std::vector<Farbstelle_T>& Farben)
{
    std::vector<Farbstelle_T> Liste;
    for (const Farbstelle_T& f : Farben)
        if (!Liste.empty() && Liste.back().Farbe == f.Farbe &&
            Liste.back().Anfang + Liste.back().Laenge == f.Anfang)
            Liste.back().Laenge += f.Laenge;
        else
            Liste.push_back(f);
    return Liste;
}

RC_GTEST_PROP(Notiz_Feld_Zufall,
              text_look_and_mirror_stay_in_step,
              (const std::vector<std::uint8_t>& Zuege))
{
    Notiz_Feld Feld;
    for (std::size_t i = 0; i + 1 < Zuege.size(); i += 2) {
        const int Zug = Zuege[i] % 8;
        Feld.Auswaehlen(Zuege[i + 1] % (Feld.Laenge() + 1), Zuege[i] / 8 % 5);
        if (Zug < 3)
            Feld.Auswahl_Ersetzen_UTF8(Zug == 0 ? "\r\n" : Zug == 1 ? "x\xC3\xA4" : "");
        else if (Zug == 3)
            Feld.Fett_Umschalten();
        else if (Zug == 4)
            Feld.Auswahl_Faerben(0xFF);
        else if (Zug == 5)
            Feld.Auswahl_Ersetzen_Reich(Feld.Auswahl_Reich());
        else if (Zug == 6 && Zuege[i] % 3 == 0)
            Feld.Schlicht_Machen();
        else if (Zug == 6)
            QTest::keyClick(&Feld, Zuege[i] % 3 == 1 ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
        else
            Feld.Kursiv_Umschalten();
        const Reich_Text_T t = Feld.Reicher_Text();
        RC_ASSERT(Reiner_Text(t) == Feld.Text_UTF8());
        RC_ASSERT(Verbunden(Farben_Von(t)) == Verbunden(Feld.Farben({0, Feld.Laenge()})));
        RC_ASSERT(Rtf_Lesen(Rtf_Schreiben(t)).Text == t);
    }
}

// --- in the program ------------------------------------------------------------------------------

class Notiz_Fenster : public Haupt_Welt {
protected:
    Notiz_Feld* Feld() const { return dynamic_cast<Notiz_Feld*>(Suchen("Notiz_Text")); }
    void        Beginnen(const char* In = "E")
    {
        Starten(In);
        Plattform.Fenster->Fokus(Fenster_Notiz);
        QApplication::processEvents();
        Datei_Geaendert = false;
    }
    std::unique_ptr<QMenu, void (*)(QMenu*)> Kontextmenue()
    {
        QContextMenuEvent e(QContextMenuEvent::Keyboard, {5, 5}, Feld()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(Feld(), &e);
        auto* m = Feld()->findChild<QMenu*>(QStringLiteral("Notiz_Menue"));
        EXPECT_NE(m, nullptr);
        return {m, [](QMenu* w) {
                    if (w != nullptr)
                        w->close();
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                }};
    }
    void Waehlen(const char* Eintrag)
    {
        const auto m = Kontextmenue();
        m->findChild<QAction*>(QString::fromLatin1(Eintrag))->trigger();
    }
};

TEST_F(Notiz_Fenster, keys_of_the_look_go_to_the_notes_and_not_to_the_programmer)
{
    Beginnen();
    Menue("MNU_IC_Brennen").Aktiv = Menue("MNU_IC_Prüfen").Aktiv = true;
    Fenster->Nachziehen();
    Feld()->Text_Setzen("abc");
    Feld()->Auswaehlen(0, 3);
    for (const Qt::Key k : {Qt::Key_B, Qt::Key_I, Qt::Key_U})
        Taste(k, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Reicher_Text(),
              (Reich_Text_T{{{{{"abc", {"", 0, 0, true, true, true}}}, {}}}}));
}
TEST_F(Notiz_Fenster, typing_and_a_change_of_look_mark_the_document_as_changed)
{
    Beginnen();
    QTest::keyClicks(Feld(), QStringLiteral("hello"));
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Suchen("Edit")->windowTitle().startsWith(QStringLiteral("MC-Editor (*)")));
    EXPECT_TRUE(Suchen("Hexedit")->windowTitle().startsWith(QStringLiteral("Hex-Editor (*)")));
    Datei_Geaendert = false;
    Feld()->selectAll();
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Datei_Geaendert);
}
// --- the star in both captions ---

class Sterne : public Notiz_Fenster {
protected:
    std::string Titel(const char* Name) const { return Nach_Std(Suchen(Name)->windowTitle()); }
    void        Beide_Mit_Stern(const std::string& Name) const
    {
        EXPECT_EQ(Titel("Edit"), "MC-Editor (*)" + Name);
        EXPECT_EQ(Titel("Hexedit"), "Hex-Editor (*)" + Name);
        EXPECT_TRUE(Datei_Geaendert);
    }
    void Beide_Ohne(const std::string& Name) const
    {
        EXPECT_EQ(Titel("Edit"), "MC-Editor " + Name);
        EXPECT_EQ(Titel("Hexedit"), "Hex-Editor " + Name);
        EXPECT_FALSE(Datei_Geaendert);
    }
    std::string Laden(const char* Name, const std::string& Inhalt)
    {
        const std::string Pfad = Heim + Name;
        Datei_Anlegen(Pfad, Inhalt);
        Datei_Vorgegeben_Laden(Pfad);
        Fenster->Nachziehen();
        return Pfad;
    }
    void In(int Nummer)
    {
        Plattform.Fenster->Fokus(Nummer);
        QApplication::processEvents();
    }
    void In_Die_Notizen(const char* Text)
    {
        In(Fenster_Notiz);
        QTest::keyClicks(Feld(), QString::fromLatin1(Text));
    }
};

TEST_F(Sterne, notes_mark_both_editors_also_when_the_source_is_marked_already)
{
    Beginnen();
    const std::string Pfad = Laden("a.asm", "NOP\n");
    Beide_Ohne(Pfad);
    In(Fenster_Edit);
    Tippen("x");
    EXPECT_EQ(Titel("Edit"), "MC-Editor (*)" + Pfad);
    EXPECT_EQ(Titel("Hexedit"), "Hex-Editor " + Pfad);
    In_Die_Notizen("hello");
    Beide_Mit_Stern(Pfad);
}
TEST_F(Sterne, notes_mark_both_editors_beside_the_hex_editor_too)
{
    Beginnen();
    const std::string Pfad = Laden("a.bin", "\x01\x02");
    Beide_Ohne(Pfad);
    Hex_Daten[0] = 3;
    Änderung();
    EXPECT_EQ(Titel("Hexedit"), "Hex-Editor (*)" + Pfad);
    In_Die_Notizen("x");
    Beide_Mit_Stern(Pfad);
    Fenster->Ausfuehren(MNU_Save_Click);
    Beide_Ohne(Pfad);
}
TEST_F(Sterne, clipboard_commands_and_a_change_of_look_in_the_notes_mark_both)
{
    Beginnen();
    const std::string Pfad = Laden("a.asm", "NOP\n");
    for (const Qt::Key k : {Qt::Key_V, Qt::Key_X, Qt::Key_B, Qt::Key_Z}) {
        QApplication::clipboard()->setText(QStringLiteral("pasted"));
        Feld()->Text_Setzen("some notes");
        In(Fenster_Notiz);
        Feld()->selectAll();
        if (k == Qt::Key_Z) {
            QTest::keyClicks(Feld(), QStringLiteral("y"));
            Fenster->Ausfuehren(MNU_Save_Click);
            In(Fenster_Notiz);
        }
        Beide_Ohne(Pfad);
        Taste(k, Qt::ControlModifier);
        Beide_Mit_Stern(Pfad);
        Fenster->Ausfuehren(MNU_Save_Click);
        Beide_Ohne(Pfad);
    }
}
TEST_F(Sterne, the_star_outlives_a_change_of_mode_and_goes_with_a_save)
{
    Beginnen();
    const std::string Pfad = Laden("a.asm", "\tNOP\n");
    In_Die_Notizen("hello");
    Beide_Mit_Stern(Pfad);
    Taste(Qt::Key_F2, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_Hex);
    EXPECT_TRUE(Titel("Hexedit").starts_with("Hex-Editor (*)"));
    EXPECT_TRUE(Datei_Geaendert);
    Taste(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Titel("Edit"), "MC-Editor (*)" + Pfad);
    In_Die_Notizen(" again");
    Beide_Mit_Stern(Pfad);
    Fenster->Ausfuehren(MNU_Save_Click);
    Beide_Ohne(Pfad);
    Taste(Qt::Key_F2, Qt::ShiftModifier); // in step: nothing is assembled
    Beide_Ohne(Pfad);
}
TEST_F(Sterne, a_save_whose_notes_could_not_be_written_keeps_the_star)
{
    Beginnen();
    const std::string Pfad = Laden("a.asm", "NOP\n");
    In_Die_Notizen("hello");
    std::filesystem::create_directory(Heim + "a.not"); // in the way
    Fenster->Ausfuehren(MNU_Save_Click);
    Beide_Mit_Stern(Pfad);
    std::filesystem::remove(Heim + "a.not");
    Fenster->Ausfuehren(MNU_Save_Click);
    Beide_Ohne(Pfad);
}
TEST_F(Sterne, a_saved_image_leaves_the_star_of_the_source_that_it_was_made_of)
{
    Beginnen();
    const std::string Pfad = Laden("a.asm", "\tNOP\n");
    In(Fenster_Edit);
    Tippen("; more\n");
    Taste(Qt::Key_F2, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_Hex);
    Datei_Name = Heim + "a.bin";
    Fenster->Ausfuehren(MNU_Save_Click);
    EXPECT_EQ(Titel("Hexedit"), "Hex-Editor " + Heim + "a.bin");
    EXPECT_EQ(Titel("Edit"), "MC-Editor (*)" + Pfad);
    Taste(Qt::Key_F1, Qt::ShiftModifier);
    Datei_Name = Pfad;
    Fenster->Ausfuehren(MNU_Save_Click);
    Beide_Ohne(Pfad);
}
TEST_F(Sterne, an_image_written_by_an_assembly_leaves_the_star_of_the_source)
{
    Beginnen();
    C_Auto_Binfile = true;
    Laden("a.asm", "\tNOP\n");
    In(Fenster_Edit);
    Tippen(";");
    Fenster->Ausfuehren(Assemblieren);
    EXPECT_TRUE(std::filesystem::exists(Heim + "a.bin"));
    EXPECT_TRUE(Titel("Edit").starts_with("MC-Editor (*)"));
    EXPECT_TRUE(Datei_Geaendert);
}
TEST_F(Sterne, the_document_holds_together_through_modes_saves_and_undo)
{
    Beginnen();
    const std::string Pfad = Laden("a.asm", "; mine\n\tNOP\n");
    In(Fenster_Notiz);
    Taste(Qt::Key_B, Qt::ControlModifier);
    QTest::keyClicks(Feld(), QStringLiteral("bold"));
    In(Fenster_Edit);
    Edit()->moveCursor(QTextCursor::End);
    Tippen("\tret\n");
    Beide_Mit_Stern(Pfad);
    const std::string Quelle = Edit()->Text();

    Taste(Qt::Key_F2, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Hex_Daten[1], 0x22);
    EXPECT_FALSE(Aktion("MNU_Undo")->isEnabled());
    Taste(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Edit()->Text(), Quelle); // with its comment
    EXPECT_FALSE(Aktion("MNU_Undo")->isEnabled());
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"bold", Fett()}}));

    Fenster->Ausfuehren(MNU_Save_Click);
    Beide_Ohne(Pfad);
    In(Fenster_Edit);
    Tippen("; more\n");
    EXPECT_EQ(Titel("Edit"), "MC-Editor (*)" + Pfad);
    Taste(Qt::Key_Z, Qt::ControlModifier);
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), Quelle);
    EXPECT_EQ(Titel("Edit"), "MC-Editor (*)" + Pfad);
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"bold", Fett()}}));

    Datei_Geaendert = false;
    Datei_Vorgegeben_Laden(Pfad);
    Beide_Ohne(Pfad);
    EXPECT_EQ(Edit()->Text(), Quelle);
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"bold", Fett()}}));
    Fenster->Nachziehen();
    EXPECT_FALSE(Aktion("MNU_Undo")->isEnabled());
}
TEST_F(Sterne, the_hex_editor_has_its_caption_behind_the_preparation_of_a_session)
{
    for (const bool Gleich_Geladen : {true, false}) {
        Beginnen(); // the sample is the first document of a start
        if (!Gleich_Geladen)
            Laden("a.asm", "INCLUDE 8051.mc\n\tNOP\n");
        const std::string Pfad = Datei_Name;
        In(Fenster_Edit);
        Taste(Qt::Key_F4);
        ASSERT_TRUE(Debugger_Aktiv);
        Taste(Qt::Key_F2, Qt::ShiftModifier);
        ASSERT_EQ(Modus, Modus_Hex);
        EXPECT_NE(Pfad, "");
        EXPECT_EQ(Titel("Hexedit"), "Hex-Editor " + Pfad);
    }
}

// --- undo beside the source's ---

class Ruecknahme_Test : public Notiz_Fenster {
protected:
    void Schritte_Machen()
    {
        Starten();
        Aktion("MNU_Neu")->trigger();
        Tippen("NOP\nRET\n");
        ASSERT_TRUE(Aktion("MNU_Undo")->isEnabled());
        Plattform.Fenster->Fokus(Fenster_Notiz);
        QApplication::processEvents();
        ASSERT_EQ(Fenster->focusWidget(), Feld());
    }
};

TEST_F(Ruecknahme_Test, keys_in_the_notes_take_back_what_was_typed_there_and_never_the_source)
{
    Schritte_Machen();
    const std::string Quelle = Edit()->Text();
    QTest::keyClicks(Feld(), QStringLiteral("hello"));
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Text(), "");
    for (int i = 0; i < 3; ++i) // nothing is left to be taken back
        Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), Quelle);
    Taste(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Text(), "hello");
    EXPECT_EQ(Edit()->Text(), Quelle);
}
TEST_F(Ruecknahme_Test, redo_in_the_notes_never_brings_the_source_forward)
{
    Schritte_Machen();
    for (int i = 0; i < 2; ++i) {
        Aktion("MNU_Undo")->trigger();
        Fenster->Nachziehen();
    }
    ASSERT_TRUE(Aktion("MNU_Redo")->isEnabled());
    const std::string Quelle = Edit()->Text();
    Plattform.Fenster->Fokus(Fenster_Notiz);
    QApplication::processEvents();
    Taste(Qt::Key_Y, Qt::ControlModifier);
    Taste(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Edit()->Text(), Quelle);
    Aktion("MNU_Redo")->trigger(); // by the menu it is the source's wherever the focus is
    EXPECT_NE(Edit()->Text(), Quelle);
    EXPECT_EQ(Feld()->Text(), "");
}
TEST_F(Ruecknahme_Test, the_steps_of_the_notes_outlive_a_save_and_a_change_of_mode)
{
    Schritte_Machen();
    Datei_Name = Heim + "a.asm";
    QTest::keyClicks(Feld(), QStringLiteral("hello"));
    Fenster->Ausfuehren(MNU_Save_Click);
    Taste(Qt::Key_F2, Qt::ShiftModifier);
    Taste(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_MC);
    Plattform.Fenster->Fokus(Fenster_Notiz);
    QApplication::processEvents();
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Text(), "");
    EXPECT_TRUE(Datei_Geaendert);
}
TEST_F(Ruecknahme_Test, a_paste_into_the_notes_is_taken_back)
{
    Schritte_Machen();
    QApplication::clipboard()->setText(QStringLiteral("from elsewhere"));
    Taste(Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(Feld()->Text(), "from elsewhere");
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Text(), "");
}
TEST_F(Ruecknahme_Test, another_document_has_notes_without_steps)
{
    Schritte_Machen();
    QTest::keyClicks(Feld(), QStringLiteral("hello"));
    Datei_Geaendert = false;
    Datei_Anlegen(Heim + "b.asm", "NOP\n");
    Datei_Vorgegeben_Laden(Heim + "b.asm");
    Plattform.Fenster->Fokus(Fenster_Notiz);
    QApplication::processEvents();
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Text(), "");
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_EQ(Edit()->Text(), "NOP\r\n");
}

TEST_F(Notiz_Fenster, a_later_save_writes_the_notes_too_and_a_load_brings_them_back)
{
    Beginnen();
    Datei_Anlegen(Heim + "a.asm", "NOP\n");
    Datei_Vorgegeben_Laden(Heim + "a.asm");
    Taste(Qt::Key_B, Qt::ControlModifier);
    QTest::keyClicks(Feld(), QStringLiteral("bold"));
    EXPECT_TRUE(Datei_Geaendert);
    MNU_Save_Click();
    EXPECT_FALSE(Datei_Geaendert);
    const std::string Datei = Datei_Inhalt(Heim + "a.not");
    EXPECT_EQ(Rtf_Lesen(Datei).Text, Zeile({{"bold", Fett()}}));

    Datei_Anlegen(Heim + "b.asm", "NOP\n");
    Datei_Vorgegeben_Laden(Heim + "b.asm");
    EXPECT_EQ(Feld()->Laenge(), 0);
    Datei_Vorgegeben_Laden(Heim + "a.asm");
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"bold", Fett()}}));
    EXPECT_FALSE(Datei_Geaendert);
    MNU_Save_Click();
    EXPECT_EQ(Datei_Inhalt(Heim + "a.not"), Datei);
}
TEST_F(Notiz_Fenster, what_is_typed_into_emptied_notes_is_plain_again)
{
    Beginnen();
    Feld()->Reich_Setzen(Zeile({{"bold", Fett()}}));
    MNU_Neu_Click();
    QTest::keyClicks(Feld(), QStringLiteral("x"));
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"x", {}}}));
}
TEST_F(Notiz_Fenster, copied_text_keeps_its_look_within_the_notes)
{
    Beginnen();
    Feld()->Reich_Setzen({{{{{"one", Fett()}, {"two", {}}}, {}}, {{{"3", Fett()}}, {}}}});
    Feld()->Auswaehlen(1, 8);
    Taste(Qt::Key_C, Qt::ControlModifier);
    Feld()->Auswaehlen(9, 0);
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Reicher_Text(),
              (Reich_Text_T{{{{{"one", Fett()}, {"two", {}}}, {}},
                             {{{"3ne", Fett()}, {"two", {}}}, {}},
                             {{{"3", Fett()}}, {}}}}));
    // From elsewhere the same characters have the look of their place.
    QApplication::clipboard()->setText(QStringLiteral("xyz"));
    Feld()->Auswaehlen(3, 0);
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Feld()->Reicher_Text().Absaetze[0].Stuecke.at(0), (Text_Stueck_T{"onexyz", Fett()}));
}
TEST_F(Notiz_Fenster, the_source_takes_no_look_but_colours_from_the_notes)
{
    Beginnen();
    Feld()->Reich_Setzen(Zeile({{"nop", {"Arial", 40, 0, true, true, true}}}));
    Feld()->selectAll();
    Taste(Qt::Key_C, Qt::ControlModifier);
    MNU_Neu_Click();
    Plattform.Fenster->Fokus(Fenster_Edit);
    QApplication::processEvents();
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text().substr(0, 3), "nop");
    QTextCursor c(Edit()->document());
    c.movePosition(QTextCursor::NextCharacter);
    EXPECT_EQ(Zeichen_Bild_Aus(c.charFormat()), Zeichen_Bild_T{});
}

TEST_F(Notiz_Fenster, the_context_menu_stands_in_both_languages)
{
    for (const char* s : {"D", "E"}) {
        Beginnen(s);
        const auto  m = Kontextmenue();
        QStringList Texte;
        for (const QAction* a : m->actions())
            Texte << a->text().section(u'\t', 0, 0);
        const bool D = std::string(s) == "D";
        EXPECT_EQ(Texte.mid(0, 7),
                  D ? QStringList({QStringLiteral("Fett"),
                                   QStringLiteral("Kursiv"),
                                   QStringLiteral("Unterstrichen"),
                                   QStringLiteral("Schrift ..."),
                                   QStringLiteral("Farbe ..."),
                                   QStringLiteral("Schlichter Text"),
                                   QString()})
                    : QStringList({QStringLiteral("Bold"),
                                   QStringLiteral("Italic"),
                                   QStringLiteral("Underlined"),
                                   QStringLiteral("Font ..."),
                                   QStringLiteral("Colour ..."),
                                   QStringLiteral("Plain text"),
                                   QString()}));
        EXPECT_EQ(Texte.size(), 11);
        EXPECT_EQ(Texte.at(8),
                  D ? QStringLiteral("Markiertes Kopieren") : QStringLiteral("Copy marked"));
    }
}
TEST_F(Notiz_Fenster, its_entries_are_ticked_by_the_selection)
{
    Beginnen();
    Feld()->Reich_Setzen(Zeile({{"one", Fett()}, {"two", {}}}));
    const auto Haken = [&](std::int64_t Anfang, std::int64_t Laenge) {
        Feld()->Auswaehlen(Anfang, Laenge);
        const auto m = Kontextmenue();
        return m->findChild<QAction*>(QStringLiteral("Notiz_Fett"))->isChecked();
    };
    EXPECT_TRUE(Haken(0, 3));
    EXPECT_FALSE(Haken(0, 4));
    EXPECT_FALSE(Haken(3, 3));
    EXPECT_TRUE(Haken(2, 0));
}
TEST_F(Notiz_Fenster, its_commands_change_the_selection)
{
    Beginnen();
    Feld()->Text_Setzen("abc");
    Feld()->selectAll();
    Waehlen("Notiz_Fett");
    Waehlen("Notiz_Unterstrichen");
    EXPECT_EQ(Feld()->Bild_Jetzt(), (Zeichen_Bild_T{"", 0, 0, true, false, true}));
    EXPECT_TRUE(Datei_Geaendert);
    Waehlen("Notiz_Schlicht");
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"abc", {}}}));
}
TEST_F(Notiz_Fenster, font_and_colour_come_from_the_dialogs)
{
    Beginnen();
    Feld()->Text_Setzen("abc");
    Feld()->Auswaehlen(0, 2);
    Antworten.Naechstes([](QWidget* w) {
        auto* Dialog = qobject_cast<QFontDialog*>(w);
        ASSERT_NE(Dialog, nullptr);
        QFont f(QStringLiteral("DejaVu Sans Mono"), 14);
        f.setBold(true);
        Dialog->setCurrentFont(f);
        Dialog->accept();
    });
    Waehlen("Notiz_Schrift");
    Antworten.Naechstes([](QWidget* w) {
        auto* Dialog = qobject_cast<QColorDialog*>(w);
        ASSERT_NE(Dialog, nullptr);
        Dialog->setCurrentColor(QColor(0x11, 0x22, 0xDD));
        Dialog->accept();
    });
    Waehlen("Notiz_Farbe");
    EXPECT_TRUE(Antworten.Fertig());
    const auto Stuecke = Feld()->Reicher_Text().Absaetze.at(0).Stuecke;
    ASSERT_EQ(Stuecke.size(), 2u);
    EXPECT_EQ(Stuecke[0].Bild,
              (Zeichen_Bild_T{"DejaVu Sans Mono", 28, 0xDD2211, true, false, false}));
    EXPECT_EQ(Stuecke[1].Bild, Zeichen_Bild_T{});
}
TEST_F(Notiz_Fenster, a_cancelled_dialog_changes_nothing)
{
    Beginnen();
    Feld()->Text_Setzen("abc");
    Feld()->selectAll();
    for (const char* Eintrag : {"Notiz_Schrift", "Notiz_Farbe"}) {
        Antworten.Naechstes([](QWidget* w) { qobject_cast<QDialog*>(w)->reject(); });
        Waehlen(Eintrag);
    }
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Feld()->Reicher_Text(), Zeile({{"abc", {}}}));
    EXPECT_FALSE(Datei_Geaendert);
}

} // namespace
} // namespace varnholt::test
