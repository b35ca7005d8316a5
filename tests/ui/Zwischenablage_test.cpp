// Cut, copy, paste and delete in every window, by key, menu and tool bar; and which keys the menu
// gets while a text has the focus.
#include "Haupt_Welt.h"

#include "core/menu.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Sprungmarken.h"
#include "ui/Hex_Gitter.h"

#include <QClipboard>
#include <QInputDialog>
#include <QListView>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>

namespace varnholt::test {
namespace {

constexpr std::int32_t Farbe_Marke_    = 0xDD1111;
constexpr std::int32_t Farbe_Kommentar = 0x119911;

class Zwischenablage_Test : public Haupt_Welt {
protected:
    void Neu(int In_Modus_ = Modus_MC)
    {
        Fenster.reset();
        Alles_Zuruecksetzen();
        Starten("E", In_Modus_);
        Aktion("MNU_Neu")->trigger();
        In_Ablage(QStringLiteral("nothing yet"));
    }
    static void    In_Ablage(const QString& Text) { QApplication::clipboard()->setText(Text); }
    static QString Ablage_Text() { return QApplication::clipboard()->text(); }

    // A command by its menu entry, as a click on it runs it.
    void Befehl(const char* Name)
    {
        Fenster->Nachziehen();
        ASSERT_TRUE(Aktion(Name)->isEnabled()) << Name;
        Aktion(Name)->trigger();
        QApplication::processEvents();
        Fenster->Nachziehen();
    }

    Text_Feld* Notiz() const { return dynamic_cast<Text_Feld*>(Suchen("Notiz_Text")); }
    void       In_Notiz()
    {
        Plattform.Fenster->Fokus(Fenster_Notiz);
        QApplication::processEvents();
        ASSERT_EQ(Aktives_Fenster, Fenster_Notiz);
        ASSERT_EQ(Fenster->focusWidget(), Notiz());
    }
    void In_Edit()
    {
        Plattform.Fenster->Fokus(Fenster_Edit);
        QApplication::processEvents();
        ASSERT_EQ(Aktives_Fenster, Fenster_Edit);
    }
    void In_Feld(const char* Name)
    {
        Plattform.Fenster->Fokus(Fenster_Hexedit);
        Suchen(Name)->setFocus();
        QApplication::processEvents();
        ASSERT_EQ(Aktives_Fenster, Fenster_Hexedit);
        ASSERT_EQ(Fenster->focusWidget(), Suchen(Name));
    }
    // The mouse drawn over bytes of a pane, counted on the page.
    void Ziehen(const char* Name, int Erstes, int Letztes)
    {
        auto*      Feld   = dynamic_cast<Hex_Gitter*>(Suchen(Name));
        const bool Hex    = std::string_view(Name) == "Hex_Feld";
        const auto Stelle = [&](int Byte) { return Hex ? 3 * Byte : 18 * (Byte / 16) + Byte % 16; };
        In_Feld(Name);
        const QPoint Von = Feld->Zelle(Stelle(Erstes)).center();
        const QPoint Bis = Feld->Zelle(Stelle(Letztes) + (Hex ? 1 : 0)).center();
        QTest::mousePress(Feld, Qt::LeftButton, {}, Von);
        if (Bis != Von && Erstes != Letztes) {
            QMouseEvent Zug(QEvent::MouseMove,
                            QPointF(Bis),
                            Feld->mapToGlobal(QPointF(Bis)),
                            Qt::NoButton,
                            Qt::LeftButton,
                            {});
            QApplication::sendEvent(Feld, &Zug);
        }
        QTest::mouseRelease(Feld, Qt::LeftButton, {}, Erstes == Letztes ? Von : Bis);
    }
    static std::vector<int> Bytes(std::size_t Von, std::size_t Anzahl)
    {
        return {Hex_Daten.begin() + static_cast<std::ptrdiff_t>(Von),
                Hex_Daten.begin() + static_cast<std::ptrdiff_t>(Von + Anzahl)};
    }
    static void Bytes_Setzen(const std::vector<int>& Werte)
    {
        for (std::size_t i = 0; i < Werte.size(); ++i)
            Hex_Daten[i] = static_cast<std::uint8_t>(Werte[i]);
        Hex_Anzeige();
    }

    // What each shortcut of the menu does while Ziel has the focus: true where its entry hears of
    // it. No command runs.
    std::vector<std::pair<std::string, bool>> Kuerzel_Proben(QWidget* Ziel)
    {
        std::vector<std::pair<std::string, bool>> Ergebnis;
        Fenster->Ausfuehren([&] { // while a command runs no other one does
            for (const Menue_Eintrag_T& e : Menue_Tabelle) {
                if (e.Kuerzel.empty())
                    continue;
                QAction* a = Aktion(std::string(e.Name).c_str());
                a->setEnabled(true);
                a->setVisible(true);
                bool       Gehoert = false;
                const auto Ohr = QObject::connect(a, &QAction::triggered, [&] { Gehoert = true; });
                Ziel->setFocus();
                const QKeyCombination k = a->shortcut()[0];
                QTest::keyClick(Ziel, k.key(), k.keyboardModifiers());
                QObject::disconnect(Ohr);
                Ergebnis.emplace_back(e.Kuerzel, Gehoert);
            }
        });
        return Ergebnis;
    }
};

// --- Edit ---

TEST_F(Zwischenablage_Test, the_editors_commands_work_by_menu_as_by_key)
{
    for (const bool Durch_Menue : {false, true}) {
        Neu();
        const auto Tun = [&](Qt::Key k, const char* Name) {
            if (Durch_Menue)
                Befehl(Name);
            else
                Taste(k, k == Qt::Key_Delete ? Qt::NoModifier : Qt::ControlModifier);
        };
        Tippen("one two\n");
        Edit()->Auswaehlen(0, 3);
        Tun(Qt::Key_C, "MNU_Kopieren");
        EXPECT_EQ(Ablage_Text(), QStringLiteral("one"));
        EXPECT_EQ(Edit()->Text(), "one two\r\n");
        Edit()->Auswaehlen(4, 3);
        Tun(Qt::Key_X, "MNU_Ausschneiden");
        EXPECT_EQ(Ablage_Text(), QStringLiteral("two"));
        EXPECT_EQ(Edit()->Text(), "one \r\n");
        Edit()->Auswaehlen(0, 0);
        Tun(Qt::Key_V, "MNU_Einfügen");
        EXPECT_EQ(Edit()->Text(), "twoone \r\n");
        EXPECT_EQ(Edit()->Auswahl().Anfang, 3);
        Edit()->Auswaehlen(0, 3);
        Datei_Geaendert = false;
        Tun(Qt::Key_Delete, "MNU_Löschen");
        EXPECT_EQ(Edit()->Text(), "one \r\n");
        EXPECT_EQ(Ablage_Text(), QStringLiteral("two"));
        EXPECT_TRUE(Datei_Geaendert);
        EXPECT_TRUE(Suchen("Edit")->windowTitle().startsWith(QStringLiteral("MC-Editor (*)")));
    }
}

TEST_F(Zwischenablage_Test, the_tool_bar_runs_the_same_commands)
{
    Neu();
    Tippen("one");
    Edit()->Auswaehlen(0, 3);
    Befehl("Toolbar_Kopieren");
    EXPECT_EQ(Ablage_Text(), QStringLiteral("one"));
    Befehl("Toolbar_Ausschneiden");
    EXPECT_EQ(Edit()->Text(), "");
    Befehl("Toolbar_Einfügen");
    Befehl("Toolbar_Einfügen");
    EXPECT_EQ(Edit()->Text(), "oneone");
}

TEST_F(Zwischenablage_Test, without_a_selection_nothing_is_copied_or_cut)
{
    Neu();
    Tippen("one");
    Edit()->Auswaehlen(1, 0);
    Taste(Qt::Key_C, Qt::ControlModifier);
    Taste(Qt::Key_X, Qt::ControlModifier);
    Befehl("MNU_Kopieren");
    Befehl("MNU_Ausschneiden");
    Befehl("MNU_Löschen");
    EXPECT_EQ(Ablage_Text(), QStringLiteral("nothing yet"));
    EXPECT_EQ(Edit()->Text(), "one");
}

TEST_F(Zwischenablage_Test, Del_without_a_selection_deletes_the_next_character)
{
    Neu();
    Tippen("abc\ndef");
    Edit()->Auswaehlen(1, 0);
    Taste(Qt::Key_Delete);
    EXPECT_EQ(Edit()->Text(), "ac\r\ndef");
    Edit()->Auswaehlen(2, 0);
    Taste(Qt::Key_Delete); // the line end
    EXPECT_EQ(Edit()->Text(), "acdef");
    Edit()->Auswaehlen(5, 0);
    Taste(Qt::Key_Delete); // nothing behind it
    EXPECT_EQ(Edit()->Text(), "acdef");
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Zwischenablage_Test, what_is_pasted_replaces_the_selection_and_can_be_undone)
{
    Neu();
    Tippen("one two");
    Edit()->Auswaehlen(0, 3);
    In_Ablage(QStringLiteral("three"));
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "three two");
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "one two");
    Edit()->Auswaehlen(0, 4);
    Taste(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "two");
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "one two");
}

TEST_F(Zwischenablage_Test, an_empty_clipboard_or_a_picture_leaves_the_selection)
{
    Neu();
    Tippen("one");
    Edit()->Auswaehlen(0, 3);
    QApplication::clipboard()->clear();
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "one");
    QImage Bild_(4, 4, QImage::Format_RGB32);
    Bild_.fill(Qt::red);
    QApplication::clipboard()->setImage(Bild_);
    Befehl("MNU_Einfügen");
    EXPECT_EQ(Edit()->Text(), "one");
}

TEST_F(Zwischenablage_Test, several_lines_pasted_have_their_colours_and_jumpmarks)
{
    for (const char* Zeilenende : {"\n", "\r\n", "\r"})
        for (const bool Umschalt_Einfg : {false, true}) {
            Neu();
            QString Text = QStringLiteral("mark:\tNOP ; one\n\tDB \";:\" ' two\nlast:\n");
            In_Ablage(Text.replace(u'\n', QLatin1String(Zeilenende)));
            if (Umschalt_Einfg)
                Taste(Qt::Key_Insert, Qt::ShiftModifier);
            else
                Taste(Qt::Key_V, Qt::ControlModifier);
            const std::string t = Edit()->Text();
            ASSERT_EQ(t, "mark:\tNOP ; one\r\n\tDB \";:\" ' two\r\nlast:\r\n");
            const auto Bei = [&](const char* Was) {
                return Edit()->Farbe_An(static_cast<std::int64_t>(t.find(Was)));
            };
            EXPECT_EQ(Bei("mark"), Farbe_Marke_);
            EXPECT_EQ(Bei("NOP"), 0);
            EXPECT_EQ(Bei("; one"), Farbe_Kommentar);
            EXPECT_EQ(Bei(";:\""), 0);
            EXPECT_EQ(Bei("' two"), Farbe_Kommentar);
            EXPECT_EQ(Bei("last"), Farbe_Marke_);
            EXPECT_TRUE(Datei_Geaendert);
            Edit()->Auswaehlen(0, 0);
            Taste(Qt::Key_Down);
            EXPECT_EQ(Sprungmarken.Liste, (std::vector<std::string>{"mark", "last"}))
                << Umschalt_Einfg;
        }
}

TEST_F(Zwischenablage_Test, characters_of_any_script_come_in_and_go_out_unharmed)
{
    Neu();
    const QString Text = QString::fromUtf8("; äöü€ αβγ Жук 中文 😀 é\n");
    In_Ablage(Text);
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->toPlainText(), Text);
    EXPECT_EQ(Edit()->Farbe_An(0), Farbe_Kommentar);
    Edit()->selectAll();
    In_Ablage(QString());
    Taste(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Ablage_Text().remove(u'\r'), Text);
    Befehl("MNU_Einfügen");
    Edit()->Auswaehlen(0, 0);
    Taste(Qt::Key_Down); // the line is handled
    EXPECT_EQ(Edit()->toPlainText(), Text);
    Datei_Name = Heim + "schriften.asm";
    Taste(Qt::Key_S, Qt::ControlModifier);
    std::string Bytes = Datei_Inhalt(Datei_Name);
    std::erase(Bytes, '\r');
    EXPECT_EQ(Bytes, Nach_Std(Text));
    Taste(Qt::Key_Z, Qt::ControlModifier);
    Taste(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Edit()->toPlainText(), Text);
}

TEST_F(Zwischenablage_Test, pasted_control_characters_end_no_line)
{
    Neu();
    In_Ablage(QString::fromUtf8("a\u2029b\u2028c\td\fe"));
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->blockCount(), 1);
    EXPECT_EQ(Edit()->Laenge(), 9);
}

TEST_F(Zwischenablage_Test, a_large_text_is_pasted_whole)
{
    Neu();
    QString Text;
    for (int i = 0; i < 5000; ++i)
        Text += QStringLiteral("m%1:\tNOP ; comment\n").arg(i);
    In_Ablage(Text);
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->blockCount(), 5001);
    EXPECT_EQ(Sprungmarken.Liste.size(), 5000u);
}

TEST_F(Zwischenablage_Test, a_locked_text_is_copied_and_not_changed)
{
    Neu();
    Tippen("one");
    Debugger_Aktiv = true;
    Plattform.Edit->Sperren(true);
    Edit()->Auswaehlen(0, 3);
    Befehl("MNU_Kopieren");
    EXPECT_EQ(Ablage_Text(), QStringLiteral("one"));
    for (const char* Name : {"MNU_Einfügen", "MNU_Ausschneiden", "MNU_Löschen"})
        Befehl(Name);
    Taste(Qt::Key_V, Qt::ControlModifier);
    Taste(Qt::Key_X, Qt::ControlModifier);
    Taste(Qt::Key_Delete);
    Taste(Qt::Key_Return);
    Tippen("x");
    EXPECT_EQ(Edit()->Text(), "one");
}

TEST_F(Zwischenablage_Test, the_right_button_opens_the_edit_menu)
{
    Neu();
    QContextMenuEvent Ereignis(
        QContextMenuEvent::Mouse, QPoint(20, 20), Edit()->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(Edit()->viewport(), &Ereignis);
    auto* Menue_ = Fenster->findChild<QMenu*>(QStringLiteral("MNU_Bearbeiten_Menue"));
    ASSERT_NE(Menue_, nullptr);
    EXPECT_TRUE(Menue_->isVisible());
    Menue_->close();
}

// --- Notiz ---

TEST_F(Zwischenablage_Test, the_notes_take_the_commands_by_key_and_by_menu)
{
    for (const bool Durch_Menue : {false, true}) {
        Neu();
        Tippen("source");
        In_Notiz();
        const auto Tun = [&](Qt::Key k, const char* Name) {
            if (Durch_Menue)
                Befehl(Name);
            else
                Taste(k, k == Qt::Key_Delete ? Qt::NoModifier : Qt::ControlModifier);
        };
        Notiz()->Text_Setzen("one two");
        Notiz()->Auswaehlen(0, 3);
        Tun(Qt::Key_C, "MNU_Kopieren");
        EXPECT_EQ(Ablage_Text(), QStringLiteral("one"));
        Datei_Geaendert = false;
        Tun(Qt::Key_X, "MNU_Ausschneiden");
        EXPECT_EQ(Notiz()->Text(), " two");
        EXPECT_TRUE(Datei_Geaendert);
        Datei_Geaendert = false;
        Notiz()->Auswaehlen(4, 0);
        Tun(Qt::Key_V, "MNU_Einfügen");
        EXPECT_EQ(Notiz()->Text(), " twoone");
        EXPECT_TRUE(Datei_Geaendert);
        Datei_Geaendert = false;
        Notiz()->Auswaehlen(0, 4);
        Tun(Qt::Key_Delete, "MNU_Löschen");
        EXPECT_EQ(Notiz()->Text(), "one");
        EXPECT_TRUE(Datei_Geaendert);
        EXPECT_EQ(Edit()->Text(), "source"); // the other window's
    }
}

TEST_F(Zwischenablage_Test, coloured_text_keeps_its_colours_in_the_notes)
{
    for (const bool Durch_Menue : {false, true}) {
        Neu();
        Tippen("mark:\tNOP ; n\n");
        Edit()->Auswaehlen(0, 13);
        Taste(Qt::Key_C, Qt::ControlModifier);
        In_Notiz();
        if (Durch_Menue)
            Befehl("MNU_Einfügen");
        else
            Taste(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Notiz()->Text(), "mark:\tNOP ; n");
        EXPECT_EQ(Notiz()->Farbe_An(0), Farbe_Marke_) << Durch_Menue;
        EXPECT_EQ(Notiz()->Farbe_An(7), 0);
        EXPECT_EQ(Notiz()->Farbe_An(11), Farbe_Kommentar) << Durch_Menue;
    }
}

TEST_F(Zwischenablage_Test, text_from_elsewhere_has_no_colours_in_the_notes)
{
    Neu();
    In_Notiz();
    In_Ablage(QString::fromUtf8("mark: ; 中文\nzwei"));
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Notiz()->toPlainText(), QString::fromUtf8("mark: ; 中文\nzwei"));
    EXPECT_EQ(Notiz()->Farbe_An(0), 0);
    EXPECT_EQ(Edit()->Text(), "");
}

// --- the jumpmarks have no clipboard ---

TEST_F(Zwischenablage_Test, with_the_jumpmarks_active_the_commands_do_nothing)
{
    Neu();
    Tippen("mark:\tNOP\n");
    Edit()->Auswaehlen(0, 4);
    Plattform.Fenster->Fokus(Fenster_Spr);
    QApplication::processEvents();
    ASSERT_EQ(Aktives_Fenster, Fenster_Spr);
    for (const char* Name : {"MNU_Kopieren", "MNU_Ausschneiden", "MNU_Einfügen", "MNU_Löschen"})
        Befehl(Name);
    for (const Qt::Key k : {Qt::Key_C, Qt::Key_X, Qt::Key_V})
        Taste(k, Qt::ControlModifier);
    Taste(Qt::Key_Delete);
    EXPECT_EQ(Ablage_Text(), QStringLiteral("nothing yet"));
    EXPECT_EQ(Edit()->Text(), "mark:\tNOP\r\n");
}

// --- Hexedit ---

TEST_F(Zwischenablage_Test, marked_bytes_are_copied_as_digits_or_characters)
{
    for (const bool Durch_Menue : {false, true}) {
        Neu(Modus_Hex);
        Bytes_Setzen({0x41, 0x42, 0x80, 0x00});
        const auto Kopieren = [&] {
            if (Durch_Menue)
                Befehl("MNU_Kopieren");
            else
                Taste(Qt::Key_C, Qt::ControlModifier);
        };
        Ziehen("Hex_Feld", 0, 2);
        Kopieren();
        EXPECT_EQ(Ablage_Text().trimmed(), QStringLiteral("41 42 80"));
        Ziehen("AscII_Feld", 0, 3);
        Kopieren();
        EXPECT_EQ(Ablage_Text(), QString::fromUtf8("AB€."));
        Ziehen("AscII_Feld", 14, 17); // over the end of a row: no line break goes along
        Kopieren();
        EXPECT_EQ(Ablage_Text(), QString::fromUtf8("ÿÿÿÿ"));
        EXPECT_FALSE(Datei_Geaendert);
    }
}

TEST_F(Zwischenablage_Test, cut_and_delete_shrink_the_image_from_both_panes)
{
    for (const char* Feld : {"Hex_Feld", "AscII_Feld"})
        for (const bool Durch_Menue : {false, true}) {
            Neu(Modus_Hex);
            Bytes_Setzen({0x41, 0x42, 0x43, 0x44, 0x45});
            Ziehen(Feld, 1, 2);
            if (Durch_Menue)
                Befehl("MNU_Ausschneiden");
            else
                Taste(Qt::Key_X, Qt::ControlModifier);
            EXPECT_EQ(Bytes(0, 4), (std::vector<int>{0x41, 0x44, 0x45, 0xFF})) << Feld;
            EXPECT_EQ(Ablage_Text().trimmed(),
                      Feld[0] == 'H' ? QStringLiteral("42 43") : QStringLiteral("BC"));
            Ziehen(Feld, 0, 0);
            if (Durch_Menue)
                Befehl("MNU_Löschen");
            else
                Taste(Qt::Key_Delete);
            EXPECT_EQ(Bytes(0, 3), (std::vector<int>{0x44, 0x45, 0xFF})) << Feld;
            EXPECT_TRUE(Datei_Geaendert);
            EXPECT_TRUE(
                Suchen("Hexedit")->windowTitle().startsWith(QStringLiteral("Hex-Editor (*)")));
        }
}

TEST_F(Zwischenablage_Test, five_bytes_deleted_at_0_bring_the_byte_at_10_to_5)
{
    Neu(Modus_Hex);
    Hex_Daten[10] = 0x77;
    Hex_Anzeige();
    Ziehen("AscII_Feld", 0, 4);
    Taste(Qt::Key_Delete);
    EXPECT_EQ(Hex_Daten[5], 0x77);
    EXPECT_EQ(Letztes_Byte(), 5);
}

TEST_F(Zwischenablage_Test, a_paste_of_3_over_5_shortens_by_2_and_over_a_caret_lengthens_by_3)
{
    for (const char* Feld : {"Hex_Feld", "AscII_Feld"})
        for (const bool Durch_Menue : {false, true}) {
            Neu(Modus_Hex);
            const auto Einfuegen = [&] {
                In_Ablage(Feld[0] == 'H' ? QStringLiteral("78 79\r\n7A") : QStringLiteral("xyz"));
                if (Durch_Menue)
                    Befehl("MNU_Einfügen");
                else
                    Taste(Qt::Key_V, Qt::ControlModifier);
            };
            Bytes_Setzen({1, 2, 3, 4, 5, 6, 7});
            Ziehen(Feld, 0, 4);
            Einfuegen();
            EXPECT_EQ(Bytes(0, 6), (std::vector<int>{0x78, 0x79, 0x7A, 6, 7, 0xFF})) << Feld;
            Ziehen(Feld, 1, 1);
            Einfuegen();
            EXPECT_EQ(Bytes(0, 9),
                      (std::vector<int>{0x78, 0x78, 0x79, 0x7A, 0x79, 0x7A, 6, 7, 0xFF}))
                << Feld;
            EXPECT_EQ(Fenster->focusWidget(), Suchen(Feld));
        }
}

TEST_F(Zwischenablage_Test, what_is_no_byte_is_dropped_or_leaves_the_byte)
{
    Neu(Modus_Hex);
    Bytes_Setzen({1, 2, 3});
    Ziehen("Hex_Feld", 0, 2);
    In_Ablage(QStringLiteral("AA bb 5"));
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Bytes(0, 3), (std::vector<int>{0xAA, 2, 0xFF}));
    Ziehen("AscII_Feld", 0, 1);
    In_Ablage(QString::fromUtf8("€中"));
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Bytes(0, 3), (std::vector<int>{0x80, '?', 0xFF}));
}

TEST_F(Zwischenablage_Test, more_than_the_image_holds_is_cut_off_at_its_end)
{
    Neu(Modus_Hex);
    In_Feld("AscII_Feld");
    Ziehen("AscII_Feld", 0, 0);
    In_Ablage(QString(600000, u'A'));
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Hex_Daten[0], 'A');
    EXPECT_EQ(Hex_Daten[Bild_Groesse - 1], 'A');
    QApplication::clipboard()->clear();
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Hex_Daten[0], 'A');
}

TEST_F(Zwischenablage_Test, the_first_change_of_an_image_with_a_source_asks_once)
{
    for (const char* Feld : {"Hex_Feld", "AscII_Feld"})
        for (const char* Name : {"MNU_Ausschneiden", "MNU_Einfügen", "MNU_Löschen"})
            for (const bool Durch_Menue : {false, true}) {
                Neu();
                Tippen("INCLUDE 8051.mc\nNOP\n");
                Taste(Qt::Key_F2, Qt::ShiftModifier);
                ASSERT_EQ(Modus, Modus_Hex);
                Ziehen(Feld, 0, 0);
                In_Ablage(QStringLiteral("77"));
                const auto Tun = [&] {
                    if (Durch_Menue)
                        return Befehl(Name);
                    const std::string_view n = Name;
                    if (n == "MNU_Löschen")
                        return Taste(Qt::Key_Delete);
                    Taste(n == "MNU_Einfügen" ? Qt::Key_V : Qt::Key_X, Qt::ControlModifier);
                };
                Antworten.Taste(QMessageBox::No);
                Tun();
                EXPECT_EQ(Hex_Daten[0], 0x00) << Feld << Name;
                EXPECT_GT(Edit()->Laenge(), 0);
                Antworten.Taste(QMessageBox::Yes);
                const std::size_t Bisher = Antworten.Texte.size();
                Tun();
                EXPECT_NE(Hex_Daten[0], 0x00) << Feld << Name;
                EXPECT_EQ(Edit()->Laenge(), 0);
                EXPECT_EQ(Antworten.Texte.size(), Bisher + 1);
                EXPECT_TRUE(Antworten.Fertig());
            }
}

// --- which window is meant ---

TEST_F(Zwischenablage_Test, the_commands_follow_the_active_window)
{
    Neu();
    Tippen("source");
    Notiz()->Text_Setzen("note");
    Edit()->Auswaehlen(0, 6);
    Notiz()->Auswaehlen(0, 4);
    In_Notiz();
    Befehl("MNU_Kopieren");
    EXPECT_EQ(Ablage_Text(), QStringLiteral("note"));
    In_Edit();
    Befehl("MNU_Kopieren");
    EXPECT_EQ(Ablage_Text(), QStringLiteral("source"));
    Befehl("MNU_Löschen");
    EXPECT_EQ(Edit()->Text(), "");
    EXPECT_EQ(Notiz()->Text(), "note");
    In_Notiz();
    Befehl("MNU_Einfügen");
    EXPECT_EQ(Notiz()->Text(), "source");
    EXPECT_EQ(Edit()->Text(), "");
}

// --- keys of the menu ---

TEST_F(Zwischenablage_Test, every_shortcut_reaches_the_menu_from_the_editor_and_types_nothing)
{
    Neu();
    Tippen("one");
    Edit()->Auswaehlen(0, 0);
    In_Ablage(QString());
    for (const auto& [Kuerzel, Gehoert] : Kuerzel_Proben(Edit())) {
        const bool Selbst = Kuerzel == "Ctrl+Z" || Kuerzel == "Ctrl+X" || Kuerzel == "Ctrl+V" ||
                            Kuerzel == "Del"; // the control leads to the same routines
        EXPECT_EQ(Gehoert, !Selbst) << Kuerzel;
    }
    EXPECT_LE(Edit()->Laenge(), 3);
}

TEST_F(Zwischenablage_Test, every_shortcut_reaches_the_menu_from_the_hex_panes)
{
    for (const char* Feld : {"Hex_Feld", "AscII_Feld"}) {
        Neu(Modus_Hex);
        In_Feld(Feld);
        for (const auto& [Kuerzel, Gehoert] : Kuerzel_Proben(Suchen(Feld))) {
            const bool Selbst = Kuerzel == "Ctrl+C" || Kuerzel == "Ctrl+X" || Kuerzel == "Ctrl+V" ||
                                Kuerzel == "Del";
            EXPECT_EQ(Gehoert, !Selbst) << Kuerzel << " in " << Feld;
        }
    }
}

TEST_F(Zwischenablage_Test,
       every_shortcut_but_those_of_clipboard_look_and_undo_reaches_the_menu_from_the_notes)
{
    Neu();
    In_Notiz();
    Notiz()->Text_Setzen("one");
    for (const auto& [Kuerzel, Gehoert] : Kuerzel_Proben(Notiz())) {
        const bool Selbst =
            Kuerzel == "Ctrl+C" || Kuerzel == "Ctrl+X" || Kuerzel == "Ctrl+V" || Kuerzel == "Del";
        const bool Eigene = Kuerzel == "Ctrl+B" || Kuerzel == "Ctrl+I" || // bold and italic
                            Kuerzel == "Ctrl+Z" || Kuerzel == "Ctrl+Y";
        EXPECT_TRUE(Selbst || Gehoert != Eigene) << Kuerzel;
    }
}

TEST_F(Zwischenablage_Test,
       Ctrl_D_asks_for_an_address_in_the_hex_editor_and_does_nothing_in_the_source)
{
    Neu();
    Tippen("one");
    Taste(Qt::Key_D, Qt::ControlModifier);
    Taste(Qt::Key_F3);
    EXPECT_EQ(Edit()->Text(), "one");
    Neu(Modus_Hex);
    In_Feld("Hex_Feld");
    Antworten.Naechstes([](QWidget* w) {
        auto* Eingabe = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(Eingabe, nullptr);
        Eingabe->setTextValue(QStringLiteral("1000h"));
        Eingabe->accept();
    });
    Taste(Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Hexedit.Scroll, 0x100);
    EXPECT_EQ(Letztes_Byte(), -1);
}

} // namespace
} // namespace varnholt::test
