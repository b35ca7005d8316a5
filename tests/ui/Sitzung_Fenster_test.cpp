// A debugger session in the main window: its windows, the control panel, keys and buttons, and a
// running program that stays at the user's command.
#include "Haupt_Welt.h"

#include "core/menu.h"
#include "core/settings.h"
#include "core/windows.h"
#include "simulator/Debug.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"
#include "ui/F_SIM_CONTROL.h"
#include "ui/F_SIM_RAM.h"
#include "ui/F_SIM_SFR.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QToolBar>
#include <QToolButton>

namespace varnholt::test {
namespace {

constexpr const char* Programm = "INCLUDE 8051.mc\n"
                                 "COUNT DATA 30h\n"
                                 "start:\tMOV COUNT,#5\n"
                                 "\tMOV R0,#7\n"
                                 "loop:\tINC COUNT\n"
                                 "\tSETB RS0\n"
                                 "\tCLR RS0\n"
                                 "\tSJMP loop\n";

// Goes round once for each start.
constexpr const char* Mit_Ende = "INCLUDE 8051.mc\n"
                                 "\tMOV 30h,#5\n"
                                 "loop:\tINC 30h\n"
                                 "\tSTOP\n"
                                 "\tSJMP loop\n";

class Sitzung_Test : public Haupt_Welt {
protected:
    // The main window with that program, its session on.
    void Vorbereiten(const char* Text = Programm, const std::string& In = "E")
    {
        Starten(In);
        Aktion("MNU_Neu")->trigger();
        Edit()->Text_Setzen(Mit_CRLF(Text));
        Fenster->resize(1280, 800);
        Aktion("MNU_deb_Vorbereitung")->trigger();
        Folgen();
        ASSERT_TRUE(Debugger_Aktiv);
        Fenster->activateWindow(); // shortcuts are the active window's
        QApplication::processEvents();
    }
    static std::string Mit_CRLF(std::string_view Text)
    {
        std::string Neu;
        for (const char c : Text)
            Neu += c == '\n' ? std::string("\r\n") : std::string(1, c);
        return Neu;
    }
    void Folgen()
    {
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    F_SIM_CONTROL*        Tafel() const { return Fenster->findChild<F_SIM_CONTROL*>(); }
    template <class T> T* Teil(const char* Name) const
    {
        return Tafel()->findChild<T*>(QString::fromLatin1(Name));
    }
    void Druecken(const char* Name)
    {
        QTest::mouseClick(Teil<QPushButton>(Name), Qt::LeftButton);
        Folgen();
    }
    std::string Schild(const char* Name) const { return Teil<QLabel>(Name)->text().toStdString(); }
    template <class T> Sim_Gitter* Gitter() const { return Fenster->findChild<T*>(); }
    std::string                    Knopf_Bild(const char* Name) const
    {
        const QImage Bild = Aktion(Name)->icon().pixmap(24, 24).toImage();
        QByteArray   Daten(reinterpret_cast<const char*>(Bild.constBits()), Bild.sizeInBytes());
        return Daten.toStdString();
    }
    // What the user does in the turns of a running program, one deed a turn; behind the last one
    // he stops it. A test that fails doesn't hang.
    void Laufen_Und(std::deque<std::function<void()>> Taten)
    {
        QTimer Hand;
        int    Runden = 0;
        QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
            if (!Debug_Laeuft)
                return;
            if (++Runden > 500 || Taten.empty()) {
                Debug_Stop = true;
                return;
            }
            const auto Tat = std::move(Taten.front());
            Taten.pop_front();
            Tat();
        });
        Hand.start(0);
        Aktion("MNU_deb_Starten")->trigger();
        Folgen();
        EXPECT_FALSE(Debug_Laeuft);
        EXPECT_TRUE(Taten.empty());
    }
};

// --- the windows ---

TEST_F(Sitzung_Test, the_four_windows_exist_hidden_until_a_session_begins)
{
    Starten();
    for (const char* Name : {"F_SIM_RAM", "F_SIM_SFR", "F_SIM_EXRAM", "F_SIM_CONTROL"}) {
        ASSERT_NE(Suchen(Name), nullptr) << Name;
        EXPECT_FALSE(Suchen(Name)->isVisible()) << Name;
    }
    for (const char* Name : {"MNU_RAM", "MNU_SFR", "MNU_EXRAM", "MNU_CONTROL"}) {
        const bool Haken = Aktion(Name)->isChecked();
        Aktion(Name)->trigger(); // nothing without a session
        Folgen();
        EXPECT_EQ(Aktion(Name)->isChecked(), Haken) << Name;
    }
    EXPECT_FALSE(Suchen("F_SIM_RAM")->isVisible());
}

TEST_F(Sitzung_Test, a_first_session_shows_all_four_and_its_end_hides_them)
{
    Vorbereiten();
    for (const char* Name : {"F_SIM_RAM", "F_SIM_SFR", "F_SIM_EXRAM", "F_SIM_CONTROL"})
        EXPECT_TRUE(Suchen(Name)->isVisible()) << Name;
    Aktion("MNU_deb_beenden")->trigger();
    Folgen();
    for (const char* Name : {"F_SIM_RAM", "F_SIM_SFR", "F_SIM_EXRAM", "F_SIM_CONTROL"})
        EXPECT_FALSE(Suchen(Name)->isVisible()) << Name;
    EXPECT_TRUE(Aktion("MNU_RAM")->isChecked());
    EXPECT_FALSE(Debugger_Aktiv);
    EXPECT_FALSE(Aktion("MNU_deb_Einzelschritt")->isEnabled());
}

TEST_F(Sitzung_Test, a_session_that_begins_anew_leaves_the_windows_where_the_user_has_put_them)
{
    Vorbereiten();
    auto*       Edit_Fenster = qobject_cast<QMdiSubWindow*>(Suchen("Edit"));
    auto*       RAM          = qobject_cast<QMdiSubWindow*>(Suchen("F_SIM_RAM"));
    const QRect Neu(30, 40, 500, 300);
    RAM->setGeometry(Neu);
    Edit_Fenster->showMaximized();
    QTest::keyClick(Edit(), Qt::Key_F4);
    Folgen();
    EXPECT_TRUE(Debugger_Aktiv);
    EXPECT_TRUE(Edit_Fenster->isMaximized());
    EXPECT_EQ(RAM->geometry(), Neu);
    EXPECT_EQ(Sim_PC, 0);
}

TEST_F(Sitzung_Test, a_maximised_editor_makes_room_when_a_session_opens_the_views)
{
    Vorbereiten();
    Aktion("MNU_deb_beenden")->trigger();
    Folgen();
    auto*       Edit_Fenster = qobject_cast<QMdiSubWindow*>(Suchen("Edit"));
    auto*       Notiz        = qobject_cast<QMdiSubWindow*>(Suchen("Notiz"));
    const QRect Platz        = Edit_Fenster->geometry();
    const QRect Neu(20, 30, 400, 250);
    Notiz->show();
    Notiz->setGeometry(Neu);
    Edit_Fenster->showMaximized();
    QTest::keyClick(Edit(), Qt::Key_F4);
    Folgen();
    EXPECT_FALSE(Edit_Fenster->isMaximized());
    EXPECT_EQ(Edit_Fenster->geometry(), Platz);
    EXPECT_EQ(Notiz->geometry(), Neu) << "what was moved stays there";
    EXPECT_TRUE(Suchen("F_SIM_RAM")->isVisible());
}

TEST_F(Sitzung_Test, a_view_comes_to_its_place_when_a_session_opens_it)
{
    Vorbereiten();
    auto*       RAM   = qobject_cast<QMdiSubWindow*>(Suchen("F_SIM_RAM"));
    const QRect Platz = RAM->geometry();
    Aktion("MNU_deb_beenden")->trigger();
    Folgen();
    RAM->setGeometry(1, 2, 300, 200); // nobody has put it there
    Aktion("MNU_deb_Vorbereitung")->trigger();
    Folgen();
    EXPECT_TRUE(RAM->isVisible());
    EXPECT_EQ(RAM->geometry(), Platz);
}

TEST_F(Sitzung_Test, the_titles_are_those_of_the_windows)
{
    for (const char* In : {"D", "E"}) {
        Vorbereiten(Programm, In);
        EXPECT_EQ(Suchen("F_SIM_RAM")->windowTitle(), QStringLiteral("RAM Register"));
        EXPECT_EQ(Suchen("F_SIM_SFR")->windowTitle(), QStringLiteral("SFR Register"));
        EXPECT_EQ(Suchen("F_SIM_EXRAM")->windowTitle(), QStringLiteral("RAM Register"));
        EXPECT_EQ(Suchen("F_SIM_CONTROL")->windowTitle(), QStringLiteral("CONTROL"));
        Datei_Geaendert = false;
    }
}

struct Fenster_Fall {
    const char* Eintrag;
    const char* Name;
    Qt::Key     Taste;
};
constexpr Fenster_Fall Fenster_Faelle[] = {{"MNU_CONTROL", "F_SIM_CONTROL", Qt::Key_F7},
                                           {"MNU_RAM", "F_SIM_RAM", Qt::Key_F8},
                                           {"MNU_SFR", "F_SIM_SFR", Qt::Key_F9},
                                           {"MNU_EXRAM", "F_SIM_EXRAM", Qt::Key_F11}};

TEST_F(Sitzung_Test, each_window_is_toggled_by_its_entry_and_its_key)
{
    Vorbereiten();
    for (const Fenster_Fall& f : Fenster_Faelle) {
        Aktion(f.Eintrag)->trigger();
        Folgen();
        EXPECT_FALSE(Suchen(f.Name)->isVisible()) << f.Name;
        EXPECT_FALSE(Aktion(f.Eintrag)->isChecked()) << f.Name;
        Taste(f.Taste, Qt::ShiftModifier);
        EXPECT_TRUE(Suchen(f.Name)->isVisible()) << f.Name;
        EXPECT_TRUE(Aktion(f.Eintrag)->isChecked()) << f.Name;
    }
}

TEST_F(Sitzung_Test, the_close_box_hides_a_window_and_unticks_its_entry)
{
    Vorbereiten();
    for (const Fenster_Fall& f : Fenster_Faelle) {
        Suchen(f.Name)->close();
        Folgen();
        EXPECT_FALSE(Suchen(f.Name)->isVisible()) << f.Name;
        EXPECT_FALSE(Aktion(f.Eintrag)->isChecked()) << f.Name;
    }
    EXPECT_TRUE(Debugger_Aktiv);
    Aktion("MNU_deb_Vorbereitung")->trigger(); // what was closed stays closed
    Folgen();
    EXPECT_FALSE(Suchen("F_SIM_SFR")->isVisible());
}

TEST_F(Sitzung_Test, an_opened_panel_shows_where_the_program_is)
{
    Vorbereiten();
    Suchen("F_SIM_CONTROL")->close();
    Taste(Qt::Key_F8);
    Taste(Qt::Key_F8);
    Aktion("MNU_CONTROL")->trigger();
    Folgen();
    EXPECT_EQ(Schild("L_Adr"), Zaehler_Text(Sim_PC));
    EXPECT_EQ(Schild("L_Zyklen"), "00003 / 00003h");
}

TEST_F(Sitzung_Test, the_focus_of_the_views_leaves_clipboard_and_search_where_they_were)
{
    Vorbereiten();
    auto*      Flaeche = Fenster->findChild<QMdiArea*>();
    const auto Aktiv   = [&](const char* Name) {
        Flaeche->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(Suchen(Name)));
        return Aktives_Fenster;
    };
    EXPECT_EQ(Aktiv("Notiz"), Fenster_Notiz);
    EXPECT_EQ(Aktiv("F_SIM_RAM"), Fenster_Notiz);
    EXPECT_EQ(Aktiv("F_SIM_SFR"), Fenster_Notiz);
    EXPECT_EQ(Aktiv("F_SIM_CONTROL"), Fenster_Notiz);
    EXPECT_EQ(Aktiv("F_SIM_EXRAM"), Fenster_EXRAM);
    EXPECT_EQ(Aktiv("Edit"), Fenster_Edit);
}

TEST_F(Sitzung_Test, the_views_have_the_background_of_the_options)
{
    Vorbereiten();
    const auto Grund = [this] {
        return Gitter<F_SIM_RAM>()->Tafel()->palette().color(QPalette::Base);
    };
    const QColor Vorher = Grund();
    Plattform.Fenster->Hintergrund(0x00C0F0);
    EXPECT_EQ(Grund(), Edit()->palette().color(QPalette::Base));
    EXPECT_EQ(Gitter<F_SIM_SFR>()->Tafel()->palette().color(QPalette::Base), Grund());
    Plattform.Fenster->Hintergrund(0xFFFFFF);
    EXPECT_EQ(Grund(), Vorher);
}

// --- stepping ---

TEST_F(Sitzung_Test, a_step_shows_at_once_and_marks_what_it_changed)
{
    Vorbereiten();
    const QAbstractItemModel* RAM = Gitter<F_SIM_RAM>()->Tafel()->model();
    const auto                Hex = [&](int Zeile) {
        return RAM->index(Zeile, 2).data().toString().toStdString();
    };
    const auto Neu = [&](int Zeile) {
        return RAM->index(Zeile, 2).data(Sim_Modell::Geaendert_Rolle).toBool();
    };
    EXPECT_EQ(Edit()->Auswahl_Text(), "start:\tMOV COUNT,#5");
    EXPECT_EQ(RAM->index(0x30, 1).data().toString(), QStringLiteral("COUNT"));
    Taste(Qt::Key_F8);
    EXPECT_EQ(Edit()->Auswahl_Text(), "MOV R0,#7");
    EXPECT_EQ(Hex(0x30), "05");
    EXPECT_TRUE(Neu(0x30));
    Taste(Qt::Key_F8);
    EXPECT_EQ(Hex(0), "07");
    EXPECT_TRUE(Neu(0));
    EXPECT_FALSE(Neu(0x30));
    EXPECT_EQ(Schild("L_Adr"), "00005 / 00005h");
    EXPECT_EQ(Schild("L_Zyklen"), "00003 / 00003h");
}

TEST_F(Sitzung_Test, the_running_line_has_lines_above_and_below_it_in_sight)
{
    std::string Lang = "INCLUDE 8051.mc\nstart:\n";
    for (int i = 0; i < 120; ++i)
        Lang += "\tINC A\n";
    Vorbereiten((Lang + "\tLJMP start\n; one\n; two\n; three\n; four\n").c_str());
    const int Hoehe = Edit()->viewport()->height() / Edit()->fontMetrics().lineSpacing();
    ASSERT_GT(Hoehe, 12);
    for (int i = 0; i < 125; ++i) { // to the end, and back to the start
        QTest::keyClick(Edit(), Qt::Key_F8);
        const int Hier  = Edit()->textCursor().blockNumber();
        const int Erste = static_cast<int>(Edit()->Erste_Zeile());
        EXPECT_LE(Erste, std::max(Hier - 2, 0)) << i;
        EXPECT_GE(Erste + Hoehe, Hier + 4) << i;
        EXPECT_EQ(Edit()->Auswahl_Text(), Sim_PC == 120 ? "LJMP start" : "INC A");
    }
}

TEST_F(Sitzung_Test, a_program_that_changes_RS0_moves_the_names)
{
    Vorbereiten();
    const QAbstractItemModel* RAM       = Gitter<F_SIM_RAM>()->Tafel()->model();
    const QAbstractItemModel* SFR       = Gitter<F_SIM_SFR>()->Tafel()->model();
    const auto                Zeile_PSW = [&] {
        for (int r = 0; r < SFR->rowCount(); ++r)
            if (SFR->index(r, 1).data().toString() == QStringLiteral("PSW"))
                return r;
        return -1;
    };
    EXPECT_EQ(RAM->index(0, 1).data().toString(), QStringLiteral("R0"));
    for (int i = 0; i < 4; ++i)
        Taste(Qt::Key_F8);
    EXPECT_EQ(RAM->index(0, 1).data().toString(), QString());
    EXPECT_EQ(RAM->index(8, 1).data().toString(), QStringLiteral("R0"));
    EXPECT_EQ(SFR->index(Zeile_PSW(), 2).data().toString().right(1), QStringLiteral("8"));
}

TEST_F(Sitzung_Test, an_edit_in_the_strip_is_what_the_program_sees_next)
{
    Vorbereiten();
    Taste(Qt::Key_F8);
    Taste(Qt::Key_F8);
    auto* Feld = Gitter<F_SIM_RAM>()->findChild<QLineEdit*>(QStringLiteral("T_Edit_2"));
    Gitter<F_SIM_RAM>()->Tafel()->setCurrentIndex(
        Gitter<F_SIM_RAM>()->Tafel()->model()->index(0x30, 2));
    Feld->selectAll();
    QTest::keyClicks(Feld, QStringLiteral("7F"));
    QTest::keyClick(Feld, Qt::Key_Return);
    QTest::keyClick(Feld, Qt::Key_F8); // the menu's keys work from here, too
    Folgen();
    EXPECT_EQ(Sim_RAM[0x30], 0x80);
    EXPECT_EQ(Feld->text(), QStringLiteral("80"));
}

TEST_F(Sitzung_Test, a_session_begins_with_each_view_at_its_first_cell)
{
    Vorbereiten();
    auto* RAM = Gitter<F_SIM_RAM>()->Tafel();
    EXPECT_EQ(RAM->currentIndex(), RAM->model()->index(0, 0));
    RAM->setCurrentIndex(RAM->model()->index(100, 4));
    Taste(Qt::Key_F4);
    EXPECT_EQ(RAM->currentIndex(), RAM->model()->index(0, 0));
}

// --- the panel ---

struct Beschriftung_T {
    const char* Name;
    const char* D;
    const char* E;
};
constexpr Beschriftung_T Tafel_Texte[] = {
    {"L_Adr_Text", "Aktuelle Programmadresse:", "Actual program address:"},
    {"L_MT", "Maschinenzyklen Zähler:", "Machine cycle Counter:"},
    {"Check1", "Zusätzliche Ablaufverzögerung", "Additionally deceleration"},
    {"Check2",
     "Volle Geschwindigkeit (Ohne Aktualisierung der Anzeigen)",
     "Full speed (Without updating display)"},
    {"B_Start", "Starten", "Start"},
    {"B_Einzelschritt", "Einzelschritt", "Single step"},
    {"B_Up", "Schritt nach oben", "Step upwards"},
    {"B_Down", "Schritt nach unten", "Step downwards"},
    {"B_Cursor", "Zum Cursor", "To cursor"},
    {"B_Reset_PC", "Reset Adresse", "Reset address"},
    {"B_RESET_RAM", "RESET Speicher", "RESET Memory"},
    {"B_Reset_Zyklen", "Reset Zyklen", "Reset cycles"},
};

TEST_F(Sitzung_Test, the_panel_speaks_both_languages_and_follows_a_change)
{
    Vorbereiten();
    const auto Text = [this](const char* Name) {
        return Teil<QWidget>(Name)->property("text").toString().toStdString();
    };
    for (const bool Deutsch : {false, true, false}) {
        Aktion(Deutsch ? "MNU_Deutsch" : "MNU_Englisch")->trigger();
        Folgen();
        for (const Beschriftung_T& b : Tafel_Texte)
            EXPECT_EQ(Text(b.Name), Deutsch ? b.D : b.E);
    }
    EXPECT_EQ(Teil<QWidget>("B_Einzelschritt")->toolTip(), QStringLiteral("Single step (F8)"));
    EXPECT_EQ(Teil<QWidget>("B_Reset_Zyklen")->toolTip(), QStringLiteral("Reset cycles"));
}

TEST_F(Sitzung_Test, nothing_of_the_panel_is_cut_off_at_any_usual_size)
{
    Vorbereiten();
    auto* Rahmen = qobject_cast<QMdiSubWindow*>(Suchen("F_SIM_CONTROL"));
    for (const char* Sprache_Hier : {"MNU_Deutsch", "MNU_Englisch"}) {
        Aktion(Sprache_Hier)->trigger();
        for (const QSize Groesse : {QSize(700, 200), QSize(446, 240), QSize(330, 320)}) {
            Rahmen->resize(Groesse);
            Folgen();
            for (const Beschriftung_T& b : Tafel_Texte) {
                const auto*  w    = Teil<QWidget>(b.Name);
                const QPoint Ecke = w->mapTo(Tafel()->viewport(), w->rect().bottomRight());
                EXPECT_TRUE(Tafel()->viewport()->rect().contains(Ecke))
                    << b.Name << " " << Groesse.width() << " " << Sprache_Hier;
                if (const auto* k = qobject_cast<const QPushButton*>(w)) {
                    EXPECT_GE(k->width(), k->sizeHint().width()) << b.Name;
                }
            }
        }
    }
}

TEST_F(Sitzung_Test, the_counters_stand_beside_their_captions)
{
    Vorbereiten();
    Taste(Qt::Key_F8);
    for (const auto& [Text, Wert] : {std::pair{"L_Adr_Text", "L_Adr"}, {"L_MT", "L_Zyklen"}}) {
        const int Luecke =
            Teil<QLabel>(Wert)->geometry().left() - Teil<QLabel>(Text)->geometry().right();
        EXPECT_GT(Luecke, 0) << Wert;
        EXPECT_LT(Luecke, 20) << Wert;
        EXPECT_GE(Teil<QLabel>(Wert)->width(), Teil<QLabel>(Wert)->sizeHint().width());
    }
}

TEST_F(Sitzung_Test, each_button_does_what_it_says)
{
    Vorbereiten();
    Druecken("B_Einzelschritt");
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(Sim_Zyklen, 2);
    Druecken("B_Down");
    EXPECT_EQ(Sim_PC, 5);
    EXPECT_EQ(Sim_Zyklen, 2);
    Druecken("B_Up");
    EXPECT_EQ(Sim_PC, 3);
    Druecken("B_Reset_Zyklen");
    EXPECT_EQ(Sim_Zyklen, 0);
    EXPECT_EQ(Schild("L_Zyklen"), "00000 / 00000h");
    EXPECT_EQ(Schild("L_Adr"), "00003 / 00003h");
    Edit()->Auswaehlen(Edit()->Zeile(7).Anfang, 0);
    Druecken("B_Cursor");
    EXPECT_EQ(Edit()->Auswahl_Text(), "SJMP loop");
    Druecken("B_Reset_PC");
    EXPECT_EQ(Sim_PC, 0);
    EXPECT_EQ(Sim_RAM[0x30], 5);
    Druecken("B_RESET_RAM");
    EXPECT_EQ(Sim_RAM[0x30], 255);
}

TEST_F(Sitzung_Test, the_counters_widen_beyond_five_digits)
{
    Vorbereiten();
    Sim_Zyklen = 70000;
    Druecken("B_Reset_PC");
    EXPECT_EQ(Schild("L_Zyklen"), "70000 / 11170h");
    Sim_Zyklen = 1234567;
    Druecken("B_Reset_PC");
    EXPECT_EQ(Schild("L_Zyklen"), "1234567 / 12D687h");
    EXPECT_EQ(Schild("L_Adr"), "00000 / 00000h");
}

TEST_F(Sitzung_Test, the_switches_start_unchecked_and_set_their_flags)
{
    Vorbereiten();
    EXPECT_FALSE(Teil<QCheckBox>("Check1")->isChecked());
    EXPECT_FALSE(Teil<QCheckBox>("Check2")->isChecked());
    const auto Klick = [this](const char* Name) {
        QTest::mouseClick(Teil<QCheckBox>(Name), Qt::LeftButton, {}, QPoint(8, 8));
    };
    Klick("Check1");
    EXPECT_TRUE(Debug_Verzoegerung);
    EXPECT_FALSE(Debug_Vollgas);
    Klick("Check2");
    EXPECT_TRUE(Debug_Vollgas);
    Aktion("MNU_deb_Vorbereitung")->trigger(); // a session keeps them
    Folgen();
    EXPECT_TRUE(Teil<QCheckBox>("Check1")->isChecked());
    Klick("Check1");
    Klick("Check2");
    EXPECT_FALSE(Debug_Verzoegerung);
    EXPECT_FALSE(Debug_Vollgas);
}

TEST_F(Sitzung_Test, the_keys_of_the_panel_work_whichever_control_has_the_focus)
{
    for (const char* Wer : {"B_Start", "Check2", "B_Reset_Zyklen"}) {
        Vorbereiten();
        const auto Dort = [&](Qt::Key k) {
            Teil<QWidget>(Wer)->setFocus();
            QTest::keyClick(Teil<QWidget>(Wer), k);
            Folgen();
        };
        Dort(Qt::Key_F8);
        EXPECT_EQ(Sim_PC, 3) << Wer;
        Dort(Qt::Key_F7);
        EXPECT_EQ(Sim_PC, 5) << Wer;
        Dort(Qt::Key_F6);
        EXPECT_EQ(Sim_PC, 3) << Wer;
        Dort(Qt::Key_F11);
        EXPECT_EQ(Sim_PC, 0) << Wer;
        Edit()->Auswaehlen(Edit()->Zeile(4).Anfang, 0);
        Dort(Qt::Key_F9);
        EXPECT_EQ(Sim_PC, 5) << Wer;
        EXPECT_EQ(Sim_RAM[0x30], 5);
        Dort(Qt::Key_F12);
        EXPECT_EQ(Sim_RAM[0x30], 255) << Wer;
        EXPECT_EQ(Sim_PC, 5);
        Dort(Qt::Key_F4);
        EXPECT_EQ(Sim_PC, 0) << Wer;
        EXPECT_EQ(Sim_Zyklen, 0) << Wer;
        Dort(Qt::Key_F10);
        EXPECT_FALSE(Debugger_Aktiv) << Wer;
        EXPECT_FALSE(Suchen("F_SIM_CONTROL")->isVisible());
        Datei_Geaendert = false;
    }
}

TEST_F(Sitzung_Test, the_end_of_a_session_gives_the_keyboard_back_to_the_editor)
{
    for (int i = 0; i < 2; ++i) {
        Vorbereiten();
        QWidget* Wer = i == 0 ? Teil<QWidget>("B_Start") : Gitter<F_SIM_RAM>()->Tafel();
        Wer->setFocus();
        EXPECT_TRUE(Wer->hasFocus());
        i == 0 ? QTest::keyClick(Wer, Qt::Key_F10) : Aktion("MNU_deb_beenden")->trigger();
        Folgen();
        EXPECT_FALSE(Debugger_Aktiv);
        EXPECT_TRUE(Edit()->hasFocus()) << i;
        Datei_Geaendert = false;
    }
}

TEST_F(Sitzung_Test, F10_works_on_the_panel_alone)
{
    Vorbereiten();
    Edit()->setFocus();
    QTest::keyClick(Edit(), Qt::Key_F10);
    QTest::keyClick(Gitter<F_SIM_RAM>()->Tafel(), Qt::Key_F10);
    Folgen();
    EXPECT_TRUE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, with_another_modifier_a_key_of_the_panel_is_the_menus)
{
    Vorbereiten();
    Teil<QWidget>("B_Start")->setFocus();
    QTest::keyClick(Teil<QWidget>("B_Start"), Qt::Key_F8, Qt::ShiftModifier);
    Folgen();
    EXPECT_EQ(Sim_PC, 0);
    EXPECT_FALSE(Suchen("F_SIM_RAM")->isVisible());
}

TEST_F(Sitzung_Test, a_held_key_steps_on_but_does_not_start_and_stop)
{
    Vorbereiten();
    const auto Gehalten = [this](int k) {
        QKeyEvent Ereignis(QEvent::KeyPress, k, {}, {}, true);
        QApplication::sendEvent(Teil<QWidget>("B_Start"), &Ereignis);
    };
    Gehalten(Qt::Key_F8);
    EXPECT_EQ(Sim_PC, 3);
    Gehalten(Qt::Key_F5);
    Gehalten(Qt::Key_F10);
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_TRUE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, F5_held_down_in_the_editor_starts_one_run)
{
    Vorbereiten(Mit_Ende);
    const auto F5 = [this](bool Wiederholt) {
        QTest::simulateEvent(Edit(), true, Qt::Key_F5, {}, QString(), Wiederholt);
        Folgen();
    };
    Edit()->setFocus();
    F5(false);
    EXPECT_EQ(Sim_RAM[0x30], 6);
    for (int i = 0; i < 5; ++i)
        F5(true);
    EXPECT_EQ(Sim_RAM[0x30], 6) << "still the one of the first stroke";
    QTest::simulateEvent(Edit(), false, Qt::Key_F5, {}, QString(), false);
    F5(false);
    EXPECT_EQ(Sim_RAM[0x30], 7);
}

TEST_F(Sitzung_Test, a_key_held_down_does_not_stop_the_run_that_it_started)
{
    Vorbereiten();
    Edit()->setFocus();
    int    Wiederholungen = 0;
    QTimer Hand;
    QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
        if (!Debug_Laeuft)
            return;
        if (Wiederholungen == 10) {
            Debug_Stop = true;
            return;
        }
        QTest::simulateEvent(Edit(), true, Qt::Key_F5, {}, QString(), true);
        ++Wiederholungen;
        EXPECT_FALSE(Debug_Stop) << Wiederholungen;
    });
    Hand.start(0);
    QTest::keyClick(Edit(), Qt::Key_F5);
    EXPECT_EQ(Wiederholungen, 10);
    EXPECT_FALSE(Debug_Laeuft);
}

// --- a running program ---

TEST_F(Sitzung_Test, a_run_is_stopped_by_the_button_that_started_it)
{
    Vorbereiten();
    const std::string Ruhe = Knopf_Bild("Toolbar_Starten");
    Laufen_Und({[&] {
                    EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Stop"));
                    EXPECT_EQ(Aktion("Toolbar_Starten")->toolTip(), QStringLiteral("Stop"));
                    EXPECT_EQ(Aktion("MNU_deb_Starten")->text(), QStringLiteral("Stop"));
                    EXPECT_NE(Knopf_Bild("Toolbar_Starten"), Ruhe);
                },
                [&] { QTest::mouseClick(Teil<QPushButton>("B_Start"), Qt::LeftButton); }});
    EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Start"));
    EXPECT_EQ(Aktion("Toolbar_Starten")->toolTip(), QStringLiteral("Start"));
    EXPECT_EQ(Knopf_Bild("Toolbar_Starten"), Ruhe);
    EXPECT_TRUE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, each_way_to_start_is_a_way_to_stop)
{
    Vorbereiten();
    auto*                       Leiste = qobject_cast<QToolBar*>(Suchen("Toolbar"));
    auto*                       Knopf  = Leiste->widgetForAction(Aktion("Toolbar_Starten"));
    const std::function<void()> Wege[] = {
        [&] { QTest::mouseClick(Knopf, Qt::LeftButton); },
        [&] { QTest::keyClick(Teil<QWidget>("Check1"), Qt::Key_F5); },
        [&] { QTest::keyClick(Edit(), Qt::Key_F5); },
        [&] { QTest::mouseClick(Teil<QPushButton>("B_Start"), Qt::LeftButton); },
        [&] { QTest::keyClick(Teil<QWidget>("B_Start"), Qt::Key_Space); },
        [&] { Aktion("MNU_deb_Starten")->trigger(); }};
    for (const auto& Anfang : Wege)
        for (const auto& Halt : Wege) {
            int    Gelaufen = 0;
            QTimer Hand;
            QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
                if (!Debug_Laeuft)
                    return;
                if (++Gelaufen == 3)
                    Halt();
                if (Gelaufen > 100)
                    Debug_Stop = true;
            });
            Hand.start(0);
            Anfang();
            Folgen();
            EXPECT_FALSE(Debug_Laeuft);
            EXPECT_GE(Gelaufen, 3);
            EXPECT_LT(Gelaufen, 20);
        }
}

TEST_F(Sitzung_Test, Esc_stops_a_run_wherever_the_focus_is)
{
    Vorbereiten();
    for (QWidget* Wer : {static_cast<QWidget*>(Edit()),
                         Teil<QWidget>("B_Start"),
                         static_cast<QWidget*>(Gitter<F_SIM_RAM>()->Tafel())}) {
        Wer->setFocus();
        QTest::keyClick(Wer, Qt::Key_Escape); // nothing runs
        EXPECT_TRUE(Debugger_Aktiv);
        EXPECT_FALSE(Debug_Laeuft);
        int    Gelaufen = 0;
        QTimer Hand;
        QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
            if (Debug_Laeuft && ++Gelaufen == 3)
                QTest::keyClick(Wer, Qt::Key_Escape);
            if (Gelaufen > 100)
                Debug_Stop = true;
        });
        Hand.start(0);
        Aktion("MNU_deb_Starten")->trigger();
        EXPECT_FALSE(Debug_Laeuft);
        EXPECT_GE(Gelaufen, 3);
        EXPECT_LT(Gelaufen, 20);
    }
}

TEST_F(Sitzung_Test, a_step_into_an_endless_included_routine_is_stopped_like_a_run)
{
    std::filesystem::create_directory(Heim + "include");
    Datei_Anlegen(Heim + "include/sub.inc", "SUB1: INC R0\r\n SJMP SUB1\r\n");
    Vorbereiten("INCLUDE 8051.mc\n LCALL SUB1\n NOP\n INCLUDE sub.inc\n");
    const std::string           Ruhe   = Knopf_Bild("Toolbar_Starten");
    const std::function<void()> Wege[] = {
        [&] { QTest::mouseClick(Teil<QPushButton>("B_Start"), Qt::LeftButton); },
        [&] { QTest::keyClick(Edit(), Qt::Key_F5); },
        [&] { QTest::keyClick(Teil<QWidget>("B_Start"), Qt::Key_F5); },
        [&] { QTest::keyClick(Edit(), Qt::Key_Escape); },
        [&] { Aktion("Toolbar_Starten")->trigger(); }};
    for (const auto& Halt : Wege)
        for (const bool Lauf : {false, true}) {
            int    Runden = 0;
            QTimer Hand;
            QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
                if (!Programm_Laeuft() || ++Runden < 3)
                    return;
                if (Runden > 100)
                    Debug_Stop = true;
                if (Runden > 3)
                    return;
                EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Stop"));
                EXPECT_EQ(Aktion("MNU_deb_Starten")->text(), QStringLiteral("Stop"));
                EXPECT_EQ(Aktion("Toolbar_Starten")->toolTip(), QStringLiteral("Stop"));
                EXPECT_NE(Knopf_Bild("Toolbar_Starten"), Ruhe);
                Halt();
            });
            Hand.start(0);
            Aktion(Lauf ? "MNU_deb_Starten" : "MNU_deb_Einzelschritt")->trigger();
            Hand.stop();
            EXPECT_FALSE(Programm_Laeuft());
            EXPECT_TRUE(Debugger_Aktiv);
            EXPECT_GE(Runden, 3);
            EXPECT_LT(Runden, 100);
            EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Start"));
            EXPECT_EQ(Aktion("MNU_deb_Starten")->text(), QStringLiteral("Start"));
            EXPECT_EQ(Knopf_Bild("Toolbar_Starten"), Ruhe);
        }
}

TEST_F(Sitzung_Test, Esc_stops_what_runs_also_while_the_panel_is_out_of_sight)
{
    std::filesystem::create_directory(Heim + "include");
    Datei_Anlegen(Heim + "include/sub.inc", "SUB1: INC R0\r\n SJMP SUB1\r\n");
    Vorbereiten("INCLUDE 8051.mc\n LCALL SUB1\n NOP\n INCLUDE sub.inc\n");
    auto* Rahmen = qobject_cast<QMdiSubWindow*>(Suchen("F_SIM_CONTROL"));
    ASSERT_NE(Rahmen, nullptr);
    const std::function<void()> Wege[] = {[&] { Rahmen->showMinimized(); },
                                          [&] { Rahmen->close(); }};
    for (const auto& Weg : Wege)
        for (const bool Lauf : {false, true}) {
            int    Runden = 0;
            QTimer Hand;
            QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
                if (!Programm_Laeuft() || ++Runden < 3)
                    return;
                if (Runden > 100)
                    Debug_Stop = true;
                if (Runden > 3)
                    return;
                Weg(); // a run shows the panel when it starts
                EXPECT_FALSE(Tafel()->isVisible());
                QTest::keyClick(Edit(), Qt::Key_Escape);
            });
            Hand.start(0);
            Aktion(Lauf ? "MNU_deb_Starten" : "MNU_deb_Einzelschritt")->trigger();
            Hand.stop();
            EXPECT_FALSE(Programm_Laeuft());
            EXPECT_TRUE(Debugger_Aktiv);
            EXPECT_GE(Runden, 3);
            EXPECT_LT(Runden, 100);
        }
    QTest::keyClick(Edit(), Qt::Key_Escape); // nothing runs
    EXPECT_FALSE(Programm_Laeuft());
}

TEST_F(Sitzung_Test, the_captions_of_a_run_follow_a_change_of_the_language)
{
    Vorbereiten();
    Laufen_Und({[&] { Aktion("MNU_Deutsch")->trigger(); },
                [&] {
                    EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Stoppen"));
                    EXPECT_EQ(Aktion("Toolbar_Starten")->toolTip(), QStringLiteral("Stoppen"));
                    EXPECT_EQ(Aktion("MNU_Load")->text(), QStringLiteral("Öffnen"));
                }});
    EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Starten"));
    EXPECT_EQ(Aktion("Toolbar_Starten")->toolTip(), QStringLiteral("Starten"));
}

TEST_F(Sitzung_Test, a_run_shows_the_panel)
{
    Vorbereiten();
    Suchen("F_SIM_CONTROL")->close();
    Laufen_Und({[&] {
        EXPECT_TRUE(Suchen("F_SIM_CONTROL")->isVisible());
        EXPECT_TRUE(Aktion("MNU_CONTROL")->isChecked());
    }});
}

TEST_F(Sitzung_Test, edits_during_a_run_act_from_the_next_instruction_on)
{
    Vorbereiten();
    auto*      RAM  = Gitter<F_SIM_RAM>();
    auto*      Feld = RAM->findChild<QLineEdit*>(QStringLiteral("T_Edit_2"));
    const auto Wert = [&](int Zeile) {
        return RAM->Tafel()->model()->index(Zeile, 2).data().toString().toStdString();
    };
    Laufen_Und({[&] {
                    RAM->Tafel()->setCurrentIndex(RAM->Tafel()->model()->index(0x50, 2));
                    Feld->selectAll();
                    QTest::keyClicks(Feld, QStringLiteral("5"));
                },
                [&] {
                    EXPECT_EQ(Feld->text(), QStringLiteral("5")); // typed on, whatever happens
                    QTest::keyClicks(Feld, QStringLiteral("A"));
                    QTest::keyClick(Feld, Qt::Key_Return);
                    EXPECT_EQ(Sim_RAM[0x50], 0x5A);
                    EXPECT_EQ(Wert(0x50), "5A");
                },
                [&] {
                    RAM->Tafel()->scrollTo(RAM->Tafel()->model()->index(0x51, 3));
                    const QModelIndex Bit = RAM->Tafel()->model()->index(0x51, 10);
                    QTest::mouseClick(RAM->Tafel()->viewport(),
                                      Qt::LeftButton,
                                      {},
                                      RAM->Tafel()->visualRect(Bit).center());
                    EXPECT_EQ(Sim_RAM[0x51], 0xFE);
                    EXPECT_EQ(Wert(0x51), "FE");
                }});
    EXPECT_EQ(Wert(0x50), "5A");
}

TEST_F(Sitzung_Test, every_command_of_the_session_works_during_a_run)
{
    Vorbereiten();
    Laufen_Und(
        {[&] {
             Sim_RAM[0x60] = 0;
             Druecken("B_RESET_RAM");
             EXPECT_EQ(Sim_RAM[0x60], 255);
         },
         [&] {
             Sim_RAM[0x60] = 0;
             Aktion("MNU_deb_reset")->trigger();
             EXPECT_EQ(Sim_RAM[0x60], 255);
         },
         [&] {
             Aktion("MNU_deb_reset_adr")->trigger();
             EXPECT_EQ(Sim_PC, 0);
         },
         [&] {
             Druecken("B_Reset_Zyklen");
             EXPECT_LE(Sim_Zyklen, 2);
         },
         [&] {
             const std::int32_t Vorher = Sim_Zyklen;
             Aktion("MNU_deb_Einzelschritt")->trigger(); // not within a run
             EXPECT_EQ(Sim_Zyklen, Vorher);
         },
         [&] {
             Sim_PC = 5;
             Aktion("MNU_deb_up")->trigger();
             EXPECT_EQ(Sim_PC, 3);
             Aktion("MNU_deb_down")->trigger();
             EXPECT_EQ(Sim_PC, 5);
         },
         [&] { QTest::mouseClick(Teil<QWidget>("Check1"), Qt::LeftButton, {}, QPoint(8, 8)); },
         [&] {
             EXPECT_TRUE(Debug_Verzoegerung);
             QTest::mouseClick(Teil<QWidget>("Check1"), Qt::LeftButton, {}, QPoint(8, 8));
             EXPECT_FALSE(Debug_Verzoegerung);
         },
         [&] {
             Aktion("MNU_EXRAM")->trigger();
             EXPECT_FALSE(Suchen("F_SIM_EXRAM")->isVisible());
             Suchen("F_SIM_SFR")->close();
             EXPECT_FALSE(Suchen("F_SIM_SFR")->isVisible());
         }});
    EXPECT_TRUE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, the_end_of_the_session_ends_the_run)
{
    Vorbereiten();
    Laufen_Und({[&] { QTest::keyClick(Teil<QWidget>("B_Start"), Qt::Key_F10); }});
    EXPECT_FALSE(Debugger_Aktiv);
    EXPECT_FALSE(Suchen("F_SIM_RAM")->isVisible());
    EXPECT_FALSE(Edit()->isReadOnly());
    Taste(Qt::Key_F4);
    EXPECT_TRUE(Debugger_Aktiv);
    Aktion("Toolbar_Beenden")->trigger();
    EXPECT_FALSE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, Check2_hides_the_changes_and_its_end_shows_them_at_once)
{
    Vorbereiten();
    const QAbstractItemModel* RAM = Gitter<F_SIM_RAM>()->Tafel()->model();
    const auto Hex   = [&] { return RAM->index(0x30, 2).data().toString().toInt(nullptr, 16); };
    const auto Klick = [this] {
        QTest::mouseClick(Teil<QWidget>("Check2"), Qt::LeftButton, {}, QPoint(8, 8));
    };
    int Vorher = 0;
    Laufen_Und({Klick,
                [&] { Vorher = Hex(); },
                [&] { EXPECT_EQ(Hex(), Vorher); },
                [&] {
                    Sim_RAM[0x31] = 0x12;
                    Klick();
                    EXPECT_EQ(Hex(), Sim_RAM[0x30]);
                    EXPECT_EQ(RAM->index(0x31, 2).data().toString(), QStringLiteral("12"));
                }});
    Klick();
    Laufen_Und({[] {}});
    EXPECT_EQ(Hex(), Sim_RAM[0x30]);
    EXPECT_EQ(Schild("L_Zyklen"), Zaehler_Text(Sim_Zyklen));
}

TEST_F(Sitzung_Test, after_a_run_the_marks_tell_what_it_changed)
{
    Vorbereiten();
    const QAbstractItemModel* RAM = Gitter<F_SIM_RAM>()->Tafel()->model();
    Taste(Qt::Key_F8);
    Taste(Qt::Key_F8);
    Sim_RAM[0x30] = 0x00;
    Sim_Alles_Zeigen();
    Laufen_Und({[] {}, [] {}});
    EXPECT_EQ(RAM->index(0x30, 2).data(Sim_Modell::Geaendert_Rolle).toBool(), Sim_RAM[0x30] != 0);
    EXPECT_FALSE(RAM->index(0, 2).data(Sim_Modell::Geaendert_Rolle).toBool());
}

// --- other commands during a run ---

TEST_F(Sitzung_Test, a_command_that_changes_the_document_waits_for_the_end_of_the_run)
{
    Vorbereiten();
    Datei_Geaendert = false;
    Laufen_Und({[&] {
        Aktion("MNU_Neu")->trigger();
        EXPECT_GT(Edit()->Laenge(), 0); // not in the middle of the run
        EXPECT_TRUE(Debug_Stop);
    }});
    EXPECT_EQ(Edit()->Laenge(), 0);
    EXPECT_FALSE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, closing_the_program_during_a_run_ends_both)
{
    Vorbereiten();
    Datei_Geaendert = false;
    Laufen_Und({[&] { Fenster->close(); }});
    EXPECT_TRUE(Beendet);
}

TEST_F(Sitzung_Test, the_other_mode_waits_for_the_end_of_the_run)
{
    Vorbereiten();
    Laufen_Und({[&] {
        Taste(Qt::Key_F2, Qt::ShiftModifier);
        EXPECT_EQ(Modus, Modus_MC);
    }});
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_FALSE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, saving_and_looking_around_leave_the_run_alone)
{
    Vorbereiten();
    Datei_Name = Heim + "lauf.asm";
    Laufen_Und({[&] {
                    Aktion("MNU_Save")->trigger();
                    EXPECT_TRUE(std::filesystem::exists(Heim + "lauf.asm"));
                    EXPECT_FALSE(Debug_Stop);
                },
                [&] {
                    Aktion("MNU_Spr")->trigger();
                    EXPECT_FALSE(Debug_Stop);
                },
                [&] {
                    Aktion("MNU_G_Einstellung")->trigger();
                    EXPECT_FALSE(Debug_Stop);
                    EXPECT_TRUE(Suchen("F_SIM_RAM")->isEnabled());
                }});
}

TEST_F(Sitzung_Test, nothing_comes_in_the_middle_of_a_question_during_a_run)
{
    Vorbereiten();
    Antworten.Naechstes([&](QWidget* w) {
        EXPECT_FALSE(Debug_Stop);
        Aktion("MNU_deb_Starten")->trigger();
        EXPECT_FALSE(Debug_Stop);
        Aktion("MNU_Neu")->trigger();
        EXPECT_FALSE(Debug_Stop);
        w->close();
    });
    Laufen_Und({[&] { Aktion("MNU_Info")->trigger(); }});
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_GT(Edit()->Laenge(), 0);
}

TEST_F(Sitzung_Test, a_dropped_file_waits_for_the_end_of_the_run)
{
    Vorbereiten();
    Datei_Geaendert        = false;
    const std::string Name = Heim + "drop.asm";
    Datei_Anlegen(Name, "RETI\n");
    QMimeData Daten;
    Daten.setUrls({QUrl::fromLocalFile(Qt_Text(Name))});
    Laufen_Und({[&] {
        QDragEnterEvent Hinein(QPoint(10, 10), Qt::CopyAction, &Daten, Qt::LeftButton, {});
        QApplication::sendEvent(Fenster.get(), &Hinein);
        EXPECT_TRUE(Hinein.isAccepted());
        QDropEvent Fallen(QPointF(10, 10), Qt::CopyAction, &Daten, Qt::LeftButton, {});
        QApplication::sendEvent(Fenster.get(), &Fallen);
    }});
    EXPECT_EQ(Edit()->Text(), "RETI\r\n");
    EXPECT_FALSE(Debugger_Aktiv);
}

TEST_F(Sitzung_Test, the_text_cannot_be_changed_during_a_session)
{
    Vorbereiten();
    const std::string Vorher = Edit()->Text();
    Tippen("xyz");
    EXPECT_EQ(Edit()->Text(), Vorher);
    Laufen_Und({[&] { QTest::keyClicks(Edit(), QStringLiteral("abc")); }});
    EXPECT_EQ(Edit()->Text(), Vorher);
}

TEST_F(Sitzung_Test, a_slowed_run_is_stopped_in_the_middle_of_its_pause)
{
    Vorbereiten();
    Fenster->Uhr_Stellen({}); // the pause is a real one
    Debug_Verzoegerung = true;
    QElapsedTimer Seit_Halt;
    QTimer        Hand;
    QObject::connect(&Hand, &QTimer::timeout, &Hand, [&] {
        if (Debug_Laeuft && !Seit_Halt.isValid()) {
            Seit_Halt.start();
            QTest::mouseClick(Teil<QPushButton>("B_Start"), Qt::LeftButton);
        }
    });
    Hand.start(20);
    Aktion("MNU_deb_Starten")->trigger();
    ASSERT_TRUE(Seit_Halt.isValid());
    EXPECT_FALSE(Debug_Laeuft);
    EXPECT_EQ(Teil<QPushButton>("B_Start")->text(), QStringLiteral("Start"));
}

TEST_F(Sitzung_Test, STOP_is_inserted_above_the_line_and_ends_the_next_run)
{
    Vorbereiten();
    Aktion("MNU_deb_beenden")->trigger();
    Edit()->Auswaehlen(Edit()->Zeile(5).Anfang + 2, 0);
    Aktion("MNU_Debugger_Stoppunkt")->trigger();
    Aktion("MNU_deb_Vorbereitung")->trigger();
    Folgen();
    Aktion("MNU_deb_Starten")->trigger();
    Folgen();
    EXPECT_EQ(Edit()->Auswahl_Text(), "STOP");
    EXPECT_EQ(Sim_Zyklen, 4);
    EXPECT_EQ(Schild("L_Zyklen"), "00004 / 00004h");
}

TEST_F(Sitzung_Test, an_error_in_the_program_starts_no_session)
{
    Starten("D");
    Aktion("MNU_Neu")->trigger();
    Edit()->Text_Setzen("INCLUDE 8051.mc\r\nMOV Q,#1\r\n");
    Antworten.Taste(QMessageBox::Ok);
    Aktion("MNU_deb_Vorbereitung")->trigger();
    EXPECT_FALSE(Debugger_Aktiv);
    EXPECT_FALSE(Suchen("F_SIM_RAM")->isVisible());
    EXPECT_FALSE(Edit()->isReadOnly());
    Edit()->Text_Setzen("NOP\r\n");
    Antworten.Taste(QMessageBox::Ok);
    Aktion("MNU_deb_Vorbereitung")->trigger();
    EXPECT_EQ(Antworten.Texte.back(),
              "Bitte benutzen Sie im Programm die INCLUDE Anweisung, um den Prozessortyp "
              "festzulegen. Beispiel: Include 8051.mc");
    EXPECT_FALSE(Debugger_Aktiv);
}

} // namespace
} // namespace varnholt::test
