// The main window as a user works with it: start, typing, modes, clipboard, files, language, end.
#include "Haupt_Welt.h"

#include "core/menu.h"
#include "core/settings.h"
#include "core/windows.h"
#include "editors/Sprungmarken.h"
#include "files/Datei_Zustand.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QToolBar>

namespace varnholt::test {
namespace {

std::uint8_t Byte(std::size_t Adresse) { return Hex_Daten[Adresse]; }

void Datei_Nennen(Beantworter& Antworten, const std::string& Name)
{
    Antworten.Naechstes([Name](QWidget* w) {
        auto* Dialog = qobject_cast<QFileDialog*>(w);
        ASSERT_NE(Dialog, nullptr);
        auto* Feld = Dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(Feld, nullptr);
        Feld->setText(Qt_Text(Name));
        QTest::keyClick(Feld, Qt::Key_Return);
    });
}

TEST_F(Haupt_Welt, a_first_start_shows_the_example_in_the_language_chosen)
{
    Starten("D");
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_NE(Datei_Name.find("einführung-1.asm"), std::string::npos) << Datei_Name;
    EXPECT_GT(Edit()->Laenge(), 500);
    EXPECT_TRUE(Fenster->isVisible());
    EXPECT_TRUE(Suchen("Edit")->isVisible());
    EXPECT_FALSE(Suchen("Hexedit")->isVisible());
    EXPECT_EQ(Aktion("MNU_Datei")->text(), QStringLiteral("&Datei"));
}

TEST_F(Haupt_Welt, a_first_start_in_hex_mode_has_an_empty_image_and_no_name)
{
    Starten("E", Modus_Hex);
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Datei_Name, "");
    EXPECT_TRUE(Suchen("Hexedit")->isVisible());
    EXPECT_FALSE(Suchen("Edit")->isVisible());
    EXPECT_EQ(Letztes_Byte(), -1);
}

TEST_F(Haupt_Welt, every_entry_and_button_is_found_by_its_name)
{
    Starten();
    for (const Menue_Eintrag_T& e : Menue_Tabelle) {
        auto* a = Fenster->findChild<QAction*>(Qt_Text(e.Name));
        ASSERT_NE(a, nullptr) << e.Name;
        EXPECT_EQ(a->shortcut().toString(QKeySequence::PortableText).toStdString(), e.Kuerzel);
        if (!e.E.empty() && !e.Name.starts_with("MNU_IC")) {
            EXPECT_EQ(QString(a->text()).remove(u'&').toStdString(), e.E);
        }
    }
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle) {
        auto* a = Fenster->findChild<QAction*>(QStringLiteral("Toolbar_") + Qt_Text(w.Schluessel));
        ASSERT_NE(a, nullptr) << w.Schluessel;
        EXPECT_EQ(a->toolTip().toStdString(), w.E);
        EXPECT_FALSE(a->icon().isNull()) << w.Schluessel;
    }
}

TEST_F(Haupt_Welt, the_language_changes_at_run_time_and_back)
{
    Starten("E");
    Aktion("MNU_Deutsch")->trigger();
    EXPECT_EQ(Aktion("MNU_Load")->text(), QStringLiteral("Öffnen"));
    EXPECT_EQ(Aktion("Toolbar_Laden")->toolTip(), QStringLiteral("Datei Laden"));
    EXPECT_TRUE(Aktion("MNU_Deutsch")->isChecked());
    EXPECT_FALSE(Aktion("MNU_Englisch")->isChecked());
    EXPECT_EQ(Suchen("Spr")->windowTitle(), QStringLiteral("Sprungmarken"));
    Aktion("MNU_Englisch")->trigger();
    EXPECT_EQ(Aktion("MNU_Load")->text(), QStringLiteral("Open"));
    EXPECT_EQ(Suchen("Spr")->windowTitle(), QStringLiteral("Jumpmarks"));
}

TEST_F(Haupt_Welt, a_typed_program_is_normalised_coloured_and_assembled)
{
    Starten();
    Aktion("MNU_Neu")->trigger();
    Tippen("start:\tmov a,#12h ; one\n");
    EXPECT_EQ(Edit()->Text(), "start:\tMOV A,#12h ; one\r\n");
    EXPECT_EQ(Edit()->Farbe_An(0), 0xDD1111);
    EXPECT_EQ(Edit()->Farbe_An(8), 0);
    EXPECT_EQ(Edit()->Farbe_An(20), 0x119911);
    Tippen("include 8051.mc\n");
    EXPECT_EQ(Sprungmarken.Liste, (std::vector<std::string>{"start"}));
    Tippen("sjmp start");
    Taste(Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Byte(0), 0x74);
    EXPECT_EQ(Byte(1), 0x12);
    EXPECT_EQ(Byte(2), 0x80);
    EXPECT_EQ(Byte(3), 0xFC);
    EXPECT_TRUE(Suchen("Hexedit")->isVisible());
    Taste(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_NE(Edit()->Text().find("; one"), std::string::npos);
}

TEST_F(Haupt_Welt, an_error_keeps_the_mode_and_selects_the_line)
{
    Starten();
    Aktion("MNU_Neu")->trigger();
    Tippen("INCLUDE 8051.mc\nNOP\nMOV Q,#1\n");
    Antworten.Taste(QMessageBox::Ok);
    Taste(Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Edit()->Auswahl_Text(), "MOV Q,#1");
}

TEST_F(Haupt_Welt, cut_copy_and_paste_go_by_their_shortcuts_and_keep_the_colours)
{
    Starten();
    Aktion("MNU_Neu")->trigger();
    Tippen("mark:\tNOP ; n\n");
    Edit()->Auswaehlen(0, 5);
    Taste(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("mark:"));
    Taste(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "\tNOP ; n\r\n");
    Edit()->Auswaehlen(Edit()->Laenge(), 0);
    Taste(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "\tNOP ; n\r\nmark:");
    EXPECT_EQ(Edit()->Farbe_An(10), 0xDD1111);
}

TEST_F(Haupt_Welt, undo_and_redo_go_by_their_shortcuts)
{
    Starten();
    Aktion("MNU_Neu")->trigger();
    Tippen("NOP\n");
    ASSERT_TRUE(Aktion("MNU_Undo")->isEnabled());
    Taste(Qt::Key_Z, Qt::ControlModifier);
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "");
    ASSERT_TRUE(Aktion("MNU_Redo")->isEnabled());
    Taste(Qt::Key_Y, Qt::ControlModifier);
    Taste(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "NOP\r\n");
}

TEST_F(Haupt_Welt, saving_asks_for_a_name_once_and_loading_brings_the_same_back)
{
    Starten();
    Aktion("MNU_Neu")->trigger();
    Tippen("NOP\n");
    const std::string Name = Heim + "eins.asm";
    Datei_Nennen(Antworten, Name);
    Taste(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Datei_Name, Name);
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_EQ(Suchen("Edit")->windowTitle(), Qt_Text("MC-Editor " + Name));
    Tippen("RET\n");
    EXPECT_EQ(Suchen("Edit")->windowTitle(), Qt_Text("MC-Editor (*)" + Name));
    Taste(Qt::Key_S, Qt::ControlModifier);
    Aktion("MNU_Neu")->trigger();
    Datei_Nennen(Antworten, Name);
    Taste(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\n");
    EXPECT_EQ(Aktion("MNU_Datei1")->text(), Qt_Text(Name));
    EXPECT_TRUE(Aktion("MNU_Datei1")->isVisible());
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Haupt_Welt, the_unsaved_question_comes_in_both_languages)
{
    for (const std::string s : {"D", "E"}) {
        Starten(s);
        Tippen("x");
        Antworten.Taste(QMessageBox::Cancel);
        Taste(Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(Antworten.Texte.back(),
                  s == "D" ? "Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?"
                           : "Save changes first?");
        EXPECT_TRUE(Datei_Geaendert);
    }
}

TEST_F(Haupt_Welt, a_click_on_a_jumpmark_selects_it_in_the_editor)
{
    Starten();
    Aktion("MNU_Neu")->trigger();
    Tippen("one1:\tNOP\ntwo2:\tNOP\n");
    auto* Liste = qobject_cast<QListView*>(Suchen("Liste"));
    ASSERT_EQ(Liste->model()->rowCount(), 2);
    const QRect Ort = Liste->visualRect(Liste->model()->index(1, 0));
    QTest::mouseClick(Liste->viewport(), Qt::LeftButton, {}, Ort.center());
    EXPECT_EQ(Edit()->Auswahl_Text(), "two2");
}

TEST_F(Haupt_Welt, closing_a_side_window_hides_it_and_unticks_its_entry)
{
    Starten();
    ASSERT_TRUE(Suchen("Spr")->isVisible());
    ASSERT_TRUE(Aktion("MNU_Spr")->isChecked());
    Suchen("Spr")->close();
    Fenster->Nachziehen();
    EXPECT_FALSE(Suchen("Spr")->isVisible());
    EXPECT_FALSE(Aktion("MNU_Spr")->isChecked());
    Taste(Qt::Key_F5, Qt::ShiftModifier);
    EXPECT_TRUE(Suchen("Spr")->isVisible());
    EXPECT_TRUE(Aktion("MNU_Spr")->isChecked());
}

TEST_F(Haupt_Welt, the_main_child_windows_cannot_be_closed)
{
    Starten();
    Suchen("Edit")->close();
    EXPECT_TRUE(Suchen("Edit")->isVisible());
}

TEST_F(Haupt_Welt, the_end_writes_the_settings_and_the_next_start_finds_the_windows)
{
    Starten();
    auto* Spr = qobject_cast<QMdiSubWindow*>(Suchen("Spr"));
    Spr->setGeometry(33, 44, 222, 333);
    Aktion("MNU_Deutsch")->trigger();
    Fenster->close();
    const std::string Text = Datei_Inhalt(Heim + "Varnholt.ini");
    EXPECT_EQ(Text[0], 'D');
    EXPECT_GE(std::count(Text.begin(), Text.end(), '\n'), 142);
    Fenster.reset();
    Alles_Zuruecksetzen();
    Bauen();
    Fenster->Ausfuehren([] { Init(); });
    Fenster->Nachziehen();
    EXPECT_EQ(Sprache, "D");
    EXPECT_EQ(Suchen("Spr")->geometry(), QRect(33, 44, 222, 333));
    EXPECT_EQ(Aktion("MNU_Datei")->text(), QStringLiteral("&Datei"));
}

TEST_F(Haupt_Welt, cancel_at_the_end_keeps_the_program_running)
{
    Starten();
    Tippen("x");
    Antworten.Taste(QMessageBox::Cancel);
    Fenster->close();
    EXPECT_TRUE(Fenster->isVisible());
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Haupt_Welt, a_file_dropped_on_the_window_is_opened)
{
    Starten();
    const std::string Name = Heim + "drop.asm";
    Datei_Anlegen(Name, "RETI\n");
    QMimeData Daten;
    Daten.setUrls({QUrl::fromLocalFile(Qt_Text(Name))});
    QDragEnterEvent Hinein(QPoint(10, 10), Qt::CopyAction, &Daten, Qt::LeftButton, {});
    QApplication::sendEvent(Fenster.get(), &Hinein);
    EXPECT_TRUE(Hinein.isAccepted());
    QDropEvent Fallen(QPointF(10, 10), Qt::CopyAction, &Daten, Qt::LeftButton, {});
    QApplication::sendEvent(Fenster.get(), &Fallen);
    QApplication::processEvents();
    EXPECT_EQ(Datei_Name, Name);
    EXPECT_EQ(Edit()->Text(), "RETI\r\n");
}

TEST_F(Haupt_Welt, a_change_by_another_program_is_told_and_can_be_loaded)
{
    Starten();
    const std::string Name = Heim + "fremd.asm";
    Datei_Anlegen(Name, "NOP\n");
    Dialog_Name = Name;
    Datei_Laden();
    Fenster->Nachziehen();
    EXPECT_FALSE(Suchen("Fremd_Hinweis")->isVisible());
    Datei_Anlegen(Name, "RET ; by somebody else\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return Suchen("Fremd_Hinweis")->isVisible(); }, 10000));
    QTest::mouseClick(Suchen("B_Neu_Laden"), Qt::LeftButton);
    EXPECT_EQ(Edit()->Text(), "RET ; by somebody else\r\n");
    EXPECT_FALSE(Suchen("Fremd_Hinweis")->isVisible());
}

TEST_F(Haupt_Welt, the_status_line_tells_mode_cursor_device_port_and_encoding)
{
    Starten("D");
    Aktion("MNU_Neu")->trigger();
    Tippen("NOP\nab");
    const auto Text = [&](const char* Name) {
        return Nach_Std(qobject_cast<QLabel*>(Suchen(Name))->text());
    };
    EXPECT_EQ(Text("Status_Modus"), "MC-Editor");
    EXPECT_EQ(Text("Status_Stelle"), "Zeile 2, Spalte 3");
    EXPECT_EQ(Text("Status_Baustein"), "Kein IC");
    EXPECT_NE(Text("Status_Port").find("Simul"), std::string::npos) << Text("Status_Port");
    Aktion("MNU_Englisch")->trigger();
    EXPECT_EQ(Text("Status_Stelle"), "Line 2, column 3");
    EXPECT_EQ(Text("Status_Baustein"), "No IC");
}

TEST_F(Haupt_Welt, the_wheel_with_control_zooms_within_limits)
{
    Starten();
    const double Vorher = Edit()->font().pointSizeF();
    const auto   Drehen = [&](int Wert) {
        QWheelEvent e(QPointF(50, 50),
                      Edit()->mapToGlobal(QPointF(50, 50)),
                      {},
                      QPoint(0, Wert),
                      {},
                      Qt::ControlModifier,
                      Qt::NoScrollPhase,
                      false);
        QApplication::sendEvent(Edit()->viewport(), &e);
    };
    Drehen(120);
    EXPECT_GT(Edit()->font().pointSizeF(), Vorher);
    EXPECT_EQ(Zoom, 110);
    for (int i = 0; i < 100; ++i)
        Drehen(-120);
    EXPECT_EQ(Edit()->Zoom(), Zoom_Kleinster);
}

TEST_F(Haupt_Welt, notes_mark_the_document_as_changed)
{
    Starten();
    auto* Notiz = qobject_cast<QPlainTextEdit*>(Suchen("Notiz_Text"));
    Notiz->setFocus();
    QTest::keyClicks(Notiz, QStringLiteral("hello"));
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Suchen("Edit")->windowTitle().startsWith(QStringLiteral("MC-Editor (*)")));
}

} // namespace
} // namespace varnholt::test
