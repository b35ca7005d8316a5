// The notes as rich text in the window: look by keys and menu, loading, saving, the clipboard.
#include "core/menu.h"
#include "core/settings.h"
#include "core/windows.h"
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
        else if (Zug == 6)
            Feld.Schlicht_Machen();
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
