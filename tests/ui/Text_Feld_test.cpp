// The text control: its mirror of the text, positions, colours and lines, against the control that
// only remembers.
#include "core/text_memory.h"
#include "ui/Text_Feld.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>
#include <random>

namespace varnholt {
namespace {

// What the document holds, taken from it line by line.
std::string Frisch(const Text_Feld& Feld)
{
    std::string Text = Feld.toPlainText().toLatin1().toStdString();
    for (std::size_t i = 0; (i = Text.find('\n', i)) != std::string::npos; i += 2)
        Text.replace(i, 1, "\r\n");
    return Text;
}

TEST(Text_Feld, the_text_has_cr_lf_however_it_comes)
{
    Text_Feld Feld;
    Feld.Text_Setzen("a\r\nb\nc\rd");
    EXPECT_EQ(Feld.Text(), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(Feld.Zeilen_Anzahl(), 4);
    Feld.Text_Setzen("");
    EXPECT_EQ(Feld.Text(), "");
    EXPECT_EQ(Feld.Zeilen_Anzahl(), 1);
}

TEST(Text_Feld,
     characters_outside_the_code_page_stay_in_the_text_and_are_question_marks_to_the_logic)
{
    Text_Feld Feld;
    Feld.Text_Setzen_UTF8("; 5 € → 6\r\nNOP");
    EXPECT_EQ(Feld.Text(), "; 5 \x80 ? 6\r\nNOP");
    EXPECT_EQ(Feld.Text_UTF8(), "; 5 € → 6\r\nNOP");
}

TEST(Text_Feld, foreign_line_separators_end_no_line)
{
    Text_Feld Feld;
    Feld.Text_Setzen_UTF8("a\xE2\x80\xA8"
                          "b\xE2\x80\xA9"
                          "c\r\nd");
    EXPECT_EQ(Feld.Text(), "a?b?c\r\nd");
}

TEST(Text_Feld, a_hard_blank_stays_one)
{
    Text_Feld Feld;
    Feld.Text_Setzen("a\xA0"
                     "b");
    EXPECT_EQ(Feld.Text(),
              "a\xA0"
              "b");
    EXPECT_EQ(Feld.Text_UTF8(),
              "a\xC2\xA0"
              "b");
}

TEST(Text_Feld, positions_count_a_line_end_as_two)
{
    Text_Feld Feld;
    Feld.Text_Setzen("ab\r\n\r\ncd");
    EXPECT_EQ(Feld.Zeile(0), (Textstelle_T{0, 2}));
    EXPECT_EQ(Feld.Zeile(1), (Textstelle_T{4, 0}));
    EXPECT_EQ(Feld.Zeile(2), (Textstelle_T{6, 2}));
    EXPECT_EQ(Feld.Zeile_Von(3), 0); // between CR and LF
    EXPECT_EQ(Feld.Zeile_Von(4), 1);
    EXPECT_EQ(Feld.Zeile_Von(99), 2);
    Feld.Auswaehlen(1, 6);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{1, 6}));
    EXPECT_EQ(Feld.Auswahl_Text(), "b\r\n\r\nc");
}

TEST(Text_Feld, what_lies_outside_is_drawn_in)
{
    Text_Feld Feld;
    Feld.Text_Setzen("abc");
    Feld.Auswaehlen(-5, 100);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{0, 3}));
    Feld.Auswaehlen(50, 1);
    EXPECT_EQ(Feld.Auswahl(), (Textstelle_T{3, 0}));
    EXPECT_EQ(Feld.Zeile(7), (Textstelle_T{3, 0}));
    EXPECT_EQ(Feld.Farbe_An(-1), 0);
    EXPECT_EQ(Feld.Farbe_An(3), 0);
}

TEST(Text_Feld, typing_keeps_the_mirror)
{
    Text_Feld Feld;
    Feld.Text_Setzen("one\r\ntwo");
    Feld.Auswaehlen(3, 0);
    QTest::keyClicks(&Feld, QStringLiteral("!"));
    QTest::sendKeyEvent(QTest::Click, &Feld, Qt::Key_Adiaeresis, QStringLiteral("\u00e4"), {});
    QTest::keyClick(&Feld, Qt::Key_Return);
    QTest::keyClick(&Feld, Qt::Key_X);
    QTest::keyClick(&Feld, Qt::Key_Delete);
    QTest::keyClick(&Feld, Qt::Key_Backspace);
    EXPECT_EQ(Feld.Text(), "one!\xE4\r\ntwo");
    EXPECT_EQ(Feld.Text(), Frisch(Feld));
}

TEST(Text_Feld, colours_are_told_from_changes_of_the_text)
{
    Text_Feld Feld;
    int       Geaendert = 0;
    QObject::connect(&Feld, &Text_Feld::Text_Geaendert, [&] { ++Geaendert; });
    Feld.Text_Setzen("NOP ; x");
    Feld.Auswaehlen(4, 3);
    Feld.Auswahl_Faerben(0x119911);
    EXPECT_EQ(Geaendert, 0);
    Feld.Auswaehlen(0, 0);
    Feld.Auswahl_Ersetzen("A");
    EXPECT_EQ(Geaendert, 1);
}

TEST(Text_Feld, typed_characters_take_the_colour_of_the_one_before_them)
{
    Text_Feld Feld;
    Feld.Text_Setzen("ab");
    Feld.Auswaehlen(0, 1);
    Feld.Auswahl_Faerben(0xDD1111);
    Feld.Auswaehlen(1, 0);
    QTest::keyClicks(&Feld, QStringLiteral("x"));
    EXPECT_EQ(Feld.Farben({0, 3}), (std::vector<Farbstelle_T>{{0, 2, 0xDD1111}}));
}

TEST(Text_Feld, a_colour_without_a_selection_holds_for_what_is_typed_next)
{
    Text_Feld Feld;
    Feld.Text_Setzen("ab");
    Feld.Auswaehlen(0, 2);
    Feld.Auswahl_Faerben(0x119911);
    Feld.Auswaehlen(2, 0);
    Feld.Auswahl_Ersetzen("\r\n");
    Feld.Auswahl_Faerben(0);
    QTest::keyClicks(&Feld, QStringLiteral("N"));
    EXPECT_EQ(Feld.Farbe_An(4), 0);
}

TEST(Text_Feld, dark_and_light_backgrounds_keep_the_colours_of_the_logic)
{
    Text_Feld Feld;
    Feld.Text_Setzen("L1: NOP");
    const Farbstelle_T f{0, 3, 0xDD1111};
    Feld.Faerben({&f, 1});
    Feld.Hintergrund_Setzen(0x101010);
    EXPECT_EQ(Feld.palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(Feld.Farben({0, 7}), (std::vector<Farbstelle_T>{f}));
    Feld.Hintergrund_Setzen(0xF0F0F0);
    EXPECT_EQ(Feld.palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(Feld.Farben({0, 7}), (std::vector<Farbstelle_T>{f}));
}

// Random edits on both controls give the same text, selection, lines and colours.
TEST(Text_Feld, random_edits_agree_with_the_control_that_only_remembers)
{
    std::mt19937 Zufall(1);
    const auto   Bis = [&](std::int64_t n) {
        return std::uniform_int_distribution<std::int64_t>(0, n)(Zufall);
    };
    const std::vector<std::string> Stuecke{
        "x", "\r\n", "MOV A,#1\r\n", "; \xE4\r\n\r\n", "", "ab: c"};
    const std::vector<std::int32_t> Toene{0, 0xDD1111, 0x119911};
    Text_Feld                       a;
    Speicher_Text                   b;
    for (int i = 0; i < 1500; ++i) {
        const std::int64_t z      = Bis(b.Zeilen_Anzahl() - 1);
        const Textstelle_T Zeile  = b.Zeile(z);
        const std::int64_t Anfang = Zeile.Anfang + Bis(Zeile.Laenge);
        const Textstelle_T Ende   = b.Zeile(std::min(z + Bis(2), b.Zeilen_Anzahl() - 1));
        const std::int64_t Laenge =
            std::max<std::int64_t>(Ende.Anfang + Bis(Ende.Laenge) - Anfang, 0);
        const auto& Neu   = Stuecke[static_cast<std::size_t>(Bis(5))];
        const auto  Ton   = Toene[static_cast<std::size_t>(Bis(2))];
        const bool  Farbe = Bis(2) == 0;
        for (Textfeld* t : {static_cast<Textfeld*>(&a), static_cast<Textfeld*>(&b)}) {
            t->Auswaehlen(Anfang, Laenge);
            if (!Farbe)
                t->Auswahl_Ersetzen(b.Laenge() > 3000 ? "" : Neu);
            else if (Laenge > 0)
                t->Auswahl_Faerben(Ton);
        }
        ASSERT_EQ(a.Text(), b.Text()) << i;
        ASSERT_EQ(a.Text(), Frisch(a)) << i;
        ASSERT_EQ(a.Auswahl(), b.Auswahl()) << i;
        ASSERT_EQ(a.Zeilen_Anzahl(), b.Zeilen_Anzahl()) << i;
        ASSERT_EQ(a.Zeile(z), b.Zeile(z)) << i;
    }
    // Colours of line ends aren't kept apart by the document: only those of characters are
    // compared.
    for (std::int64_t i = 0; i < b.Laenge(); ++i) {
        const char c = b.Inhalt[static_cast<std::size_t>(i)];
        if (c != '\r' && c != '\n') {
            EXPECT_EQ(a.Farbe_An(i), b.Farbe_An(i)) << i;
        }
    }
}

} // namespace
} // namespace varnholt
