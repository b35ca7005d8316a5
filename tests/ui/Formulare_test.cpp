// The forms beside the main window: splash, language and mode dialog, partial load, progress. With
// real keys and clicks; the logic behind them sees the scripted world.
#include "core/commands.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "support/scripted_platform.h"
#include "ui/Abfrage_Dialog.h"
#include "ui/Abfrage_Modus_Dialog.h"
#include "ui/Erststart_Dialog.h"
#include "ui/Qt_Text.h"
#include "ui/Start_Bild.h"
#include "ui/Status_Dialog.h"

#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <string>

namespace varnholt::test {
namespace {

class Formulare_Test : public Welt {
protected:
    Formulare_Test()
    {
        qputenv("VARNHOLT_HOME", Ordner.path().toLocal8Bit());
        Ereignisse.Je_Blick = 4; // the splash needn't be waited for
    }
    ~Formulare_Test() override { qunsetenv("VARNHOLT_HOME"); }

    template <class T> static T* Teil(const QWidget& Form, const char* Name)
    {
        auto* t = Form.findChild<T*>(QString::fromLatin1(Name));
        EXPECT_NE(t, nullptr) << Name;
        return t;
    }
    // On its left end: a radio button is no wider than its text.
    static void Klicken(const QWidget& Form, const char* Name)
    {
        auto* Knopf = Teil<QAbstractButton>(Form, Name);
        QTest::mouseClick(Knopf, Qt::LeftButton, {}, QPoint(10, Knopf->height() / 2));
    }
    static void Zeigen(QWidget& Form)
    {
        Form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&Form));
        Form.activateWindow();
        QApplication::processEvents();
    }
    bool Gezeigt(const std::string& Zeile) const
    {
        return std::count(Fenster.Protokoll.begin(), Fenster.Protokoll.end(), Zeile) > 0;
    }
    // Every text of the window can be read in full.
    static void Nichts_Abgeschnitten(const QWidget& Form)
    {
        for (const auto* b : Form.findChildren<QAbstractButton*>())
            EXPECT_GE(b->width(), b->sizeHint().width()) << b->objectName().toStdString();
        for (const auto* l : Form.findChildren<QLabel*>())
            EXPECT_GE(l->height(), l->heightForWidth(l->width())) << l->text().toStdString();
    }

    QTemporaryDir Ordner{};
};

// --- the splash ---

TEST_F(Formulare_Test, the_splash_has_its_size_and_its_label_20_pixels_above_the_edge)
{
    Start_Bild Bild;
    EXPECT_EQ(Bild.objectName(), QStringLiteral("Start"));
    EXPECT_EQ(Bild.size(), QSize(520, 345));
    EXPECT_EQ(Teil<QLabel>(Bild, "L_Init")->geometry().bottom() + 1, 345 - 20);
}

TEST_F(Formulare_Test, the_splash_shows_the_text_of_the_start)
{
    Start_Bild Bild;
    Zeigen(Bild);
    Bild.Text_Setzen("Version 1.2.3  Initialisierung.");
    const auto* L_Init = Teil<QLabel>(Bild, "L_Init");
    EXPECT_EQ(L_Init->text(), QStringLiteral("Version 1.2.3  Initialisierung."));
    EXPECT_GE(L_Init->width(), L_Init->sizeHint().width());
}

TEST_F(Formulare_Test, the_splash_is_drawn_all_over_on_any_scale)
{
    Start_Bild Bild;
    QImage     Doppelt(1040, 690, QImage::Format_ARGB32);
    Doppelt.setDevicePixelRatio(2);
    Doppelt.fill(Qt::transparent);
    Bild.render(&Doppelt);
    for (const QPoint p : {QPoint(3, 3), QPoint(1036, 686), QPoint(520, 200), QPoint(3, 686)})
        EXPECT_EQ(Doppelt.pixelColor(p).alpha(), 255);
    EXPECT_NE(Doppelt.pixelColor(520, 130), Doppelt.pixelColor(10, 20)); // the chip
}

// --- the language dialog ---

TEST_F(Formulare_Test, the_language_of_the_desktop_is_preset)
{
    const Erststart_Dialog Form;
    const bool             Deutsch = QLocale::system().language() == QLocale::German;
    EXPECT_EQ(Teil<QRadioButton>(Form, "Deutsch")->isChecked(), Deutsch);
    EXPECT_EQ(Teil<QRadioButton>(Form, "Englisch")->isChecked(), !Deutsch);
}

TEST_F(Formulare_Test, the_chosen_language_starts_the_program)
{
    for (const char* Wahl : {"Deutsch", "Englisch"}) {
        Startlauf = {};
        Erststart_Dialog Form;
        Zeigen(Form);
        Klicken(Form, Wahl);
        Klicken(Form, "Command1");
        EXPECT_EQ(Sprache, Wahl[0] == 'D' ? "D" : "E");
        EXPECT_TRUE(Gezeigt("Zeigen Abfrage_Modus"));
        EXPECT_TRUE(Gezeigt("Entladen Erststart"));
    }
}

TEST_F(Formulare_Test, the_language_can_be_chosen_by_keys)
{
    Erststart_Dialog Form;
    Zeigen(Form);
    Klicken(Form, "Deutsch");
    auto* Deutsch = Teil<QRadioButton>(Form, "Deutsch");
    Deutsch->setFocus();
    QTest::keyClick(Deutsch, Qt::Key_Down);
    EXPECT_TRUE(Teil<QRadioButton>(Form, "Englisch")->isChecked());
    QTest::keyClick(&Form, Qt::Key_Return);
    EXPECT_EQ(Sprache, "E");
    EXPECT_TRUE(Startlauf.Sprache_Gewaehlt);
}

TEST_F(Formulare_Test, the_button_speaks_the_chosen_language)
{
    Erststart_Dialog Form;
    Zeigen(Form);
    Klicken(Form, "Deutsch");
    EXPECT_EQ(Teil<QPushButton>(Form, "Command1")->text(), QStringLiteral("&Weiter"));
    Klicken(Form, "Englisch");
    EXPECT_EQ(Teil<QPushButton>(Form, "Command1")->text(), QStringLiteral("&Continue"));
    Nichts_Abgeschnitten(Form);
}

TEST_F(Formulare_Test, a_double_click_starts_the_program_once)
{
    int              Male = 0;
    Erststart_Dialog Form([&](const std::function<void()>&) { ++Male; });
    Zeigen(Form);
    Klicken(Form, "Command1");
    Klicken(Form, "Command1");
    EXPECT_EQ(Male, 1);
    Abfrage_Modus_Dialog Modus_Dialog([&](const std::function<void()>&) { ++Male; });
    Zeigen(Modus_Dialog);
    Klicken(Modus_Dialog, "Button_Mode_1");
    Klicken(Modus_Dialog, "Button_Mode_2");
    EXPECT_EQ(Male, 2);
}

TEST_F(Formulare_Test, closing_a_dialog_of_the_first_start_ends_the_program)
{
    Erststart_Dialog Form;
    Zeigen(Form);
    QTest::keyClick(&Form, Qt::Key_Escape);
    EXPECT_TRUE(Fenster.Beendet);
    Fenster.Beendet = false;
    Abfrage_Modus_Dialog Modus_Dialog;
    Zeigen(Modus_Dialog);
    Modus_Dialog.close();
    EXPECT_TRUE(Fenster.Beendet);
    EXPECT_FALSE(QFile::exists(Ordner.filePath(QStringLiteral("Varnholt.ini"))));
}

// --- the mode dialog ---

TEST_F(Formulare_Test, the_mode_dialog_stands_in_both_languages)
{
    for (const bool Deutsch : {true, false}) {
        Sprache = Deutsch ? "D" : "E";
        Abfrage_Modus_Dialog Form;
        Zeigen(Form);
        const auto& t    = Abfrage_Modus_Texte;
        const auto  Text = [&](const Festes_Paar& p) { return Meldungs_Text(Deutsch ? p.D : p.E); };
        EXPECT_EQ(Form.windowTitle(), Text(t.Titel));
        EXPECT_EQ(Teil<QLabel>(Form, "Frage")->text(), Text(t.Frage));
        EXPECT_EQ(Teil<QPushButton>(Form, "Button_Mode_1")->text(), Text(t.Button_Mode_1));
        EXPECT_EQ(Teil<QPushButton>(Form, "Button_Mode_2")->text(), Text(t.Button_Mode_2));
        Nichts_Abgeschnitten(Form);
    }
}

TEST_F(Formulare_Test, the_mode_dialog_stays_readable_without_a_language)
{
    Sprache = "X";
    const Abfrage_Modus_Dialog Form;
    EXPECT_EQ(Form.windowTitle(), QStringLiteral("First start"));
}

TEST_F(Formulare_Test, its_buttons_start_the_program_in_their_mode)
{
    for (const int Wahl : {Modus_Hex, Modus_MC}) {
        Programm_Pfad = Nach_Std(Ordner.path()) + "/";
        Startlauf     = {};
        Abfrage_Modus_Dialog Form;
        Zeigen(Form);
        Klicken(Form, Wahl == Modus_Hex ? "Button_Mode_1" : "Button_Mode_2");
        EXPECT_EQ(Modus, Wahl);
        EXPECT_FALSE(Init_Laeuft);
        EXPECT_TRUE(Gezeigt("Entladen Abfrage_Modus"));
    }
}

TEST_F(Formulare_Test, the_mode_can_be_chosen_by_keys)
{
    void (*Gewaehlt)() = nullptr;
    Programm_Pfad      = Nach_Std(Ordner.path()) + "/";
    Abfrage_Modus_Dialog Form(
        [&](const std::function<void()>& f) { Gewaehlt = *f.target<void (*)()>(); });
    Zeigen(Form);
    auto* Erster = Teil<QPushButton>(Form, "Button_Mode_1");
    Erster->setFocus();
    QTest::keyClick(Erster, Qt::Key_Tab);
    EXPECT_TRUE(Teil<QPushButton>(Form, "Button_Mode_2")->hasFocus());
    QTest::keyClick(Teil<QPushButton>(Form, "Button_Mode_2"), Qt::Key_Return);
    EXPECT_EQ(Gewaehlt, &Abfrage_Modus_Button_Mode_2_Click);
}

// --- the partial load ---

class Abfrage_Test : public Formulare_Test {
protected:
    // Shows the dialog and lets the user act on it.
    template <class F> static int Waehlen(Abfrage_Dialog& Form, F Benutzer)
    {
        QTimer::singleShot(0, &Form, Benutzer);
        return Form.Waehlen();
    }
};

TEST_F(Abfrage_Test, the_first_half_is_preset)
{
    Abfrage_Dialog Form("text");
    EXPECT_EQ(Waehlen(Form, [&] { Klicken(Form, "OK"); }), 1);
}

TEST_F(Abfrage_Test, the_second_half_can_be_chosen)
{
    Abfrage_Dialog Form("text");
    const int      Antwort_Des_Dialogs = Waehlen(Form, [&] {
        Klicken(Form, "Bereich2");
        QTest::keyClick(&Form, Qt::Key_Return);
    });
    EXPECT_EQ(Antwort_Des_Dialogs, 2);
}

TEST_F(Abfrage_Test, going_back_to_the_first_half_counts)
{
    Abfrage_Dialog Form("text");
    const int      Antwort_Des_Dialogs = Waehlen(Form, [&] {
        Klicken(Form, "Bereich2");
        Klicken(Form, "Bereich1");
        Klicken(Form, "OK");
    });
    EXPECT_EQ(Antwort_Des_Dialogs, 1);
}

TEST_F(Abfrage_Test, cancel_and_escape_give_up_whatever_is_chosen)
{
    Abfrage_Dialog Form("text");
    EXPECT_EQ(Waehlen(Form,
                      [&] {
                          Klicken(Form, "Bereich2");
                          Klicken(Form, "Abbrechen");
                      }),
              0);
    EXPECT_EQ(Waehlen(Form, [&] { QTest::keyClick(&Form, Qt::Key_Escape); }), 0);
}

TEST_F(Abfrage_Test, the_question_is_shown_in_lines_and_a_long_path_doesnt_widen_it)
{
    Abfrage_Dialog Form("first\r\nsecond " + std::string(500, 'x') + "/" + std::string(500, 'y'));
    Zeigen(Form);
    QString Text = Teil<QLabel>(Form, "Label")->text();
    Text.remove(QChar(0x200B));
    EXPECT_EQ(Text,
              QStringLiteral("first\nsecond ") + QString(500, u'x') + u'/' + QString(500, u'y'));
    EXPECT_LT(Form.width(), 700);
    Nichts_Abgeschnitten(Form);
}

TEST_F(Abfrage_Test, its_buttons_stand_in_both_languages)
{
    for (const bool Deutsch : {true, false}) {
        Sprache = Deutsch ? "D" : "E";
        Abfrage_Dialog Form("text");
        Zeigen(Form);
        EXPECT_EQ(Teil<QPushButton>(Form, "OK")->text(), QStringLiteral("OK"));
        EXPECT_EQ(Teil<QPushButton>(Form, "Abbrechen")->text(),
                  Deutsch ? QStringLiteral("Abbrechen") : QStringLiteral("Abort"));
        EXPECT_TRUE(Teil<QRadioButton>(Form, "Bereich1")
                        ->text()
                        .contains(Deutsch ? QStringLiteral("Hälfte") : QStringLiteral("half")));
        Nichts_Abgeschnitten(Form);
    }
}

// --- the progress ---

TEST_F(Formulare_Test, the_progress_shows_text_and_bar_until_it_is_closed)
{
    Status_Dialog Form;
    Form.Oeffnen();
    EXPECT_TRUE(Form.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), &Form); // the other windows are out of reach
    Form.Text(" Reading...");
    Form.ProgBar(37);
    EXPECT_EQ(Teil<QLabel>(Form, "Text")->text(), QStringLiteral(" Reading..."));
    EXPECT_EQ(Teil<QProgressBar>(Form, "ProgBar")->value(), 37);
    Form.Schliessen();
    EXPECT_FALSE(Form.isVisible());
}

TEST_F(Formulare_Test, the_bar_stays_between_0_and_100)
{
    Status_Dialog Form;
    Form.Oeffnen();
    auto* Balken = Teil<QProgressBar>(Form, "ProgBar");
    Form.ProgBar(150);
    EXPECT_EQ(Balken->value(), 100);
    Form.ProgBar(-3);
    EXPECT_EQ(Balken->value(), 0);
}

TEST_F(Formulare_Test, its_button_escape_and_close_box_cancel_and_leave_it_open)
{
    for (int Weg = 0; Weg < 3; ++Weg) {
        Abbruch = false;
        Status_Dialog Form;
        Form.Oeffnen();
        if (Weg == 0)
            Klicken(Form, "Abbrechen");
        else if (Weg == 1)
            QTest::keyClick(&Form, Qt::Key_Escape);
        else
            Form.close();
        EXPECT_TRUE(Abbruch) << Weg;
        EXPECT_TRUE(Form.isVisible()) << Weg; // the routine closes it
    }
}

TEST_F(Formulare_Test, an_enter_meant_for_the_editor_doesnt_cancel)
{
    Status_Dialog Form;
    Form.Oeffnen();
    QTest::keyClick(&Form, Qt::Key_Return);
    EXPECT_FALSE(Abbruch);
}

TEST_F(Formulare_Test, a_new_progress_begins_at_nothing_in_the_language_of_the_moment)
{
    Status_Dialog Form;
    Sprache = "D";
    Form.Oeffnen();
    EXPECT_EQ(Teil<QPushButton>(Form, "Abbrechen")->text(), QStringLiteral("Abbrechen"));
    Form.Text("old");
    Form.ProgBar(90);
    Klicken(Form, "Abbrechen");
    Form.Schliessen();
    Sprache = "E";
    Form.Oeffnen();
    EXPECT_EQ(Teil<QPushButton>(Form, "Abbrechen")->text(), QStringLiteral("Cancel"));
    EXPECT_TRUE(Teil<QPushButton>(Form, "Abbrechen")->isEnabled());
    EXPECT_EQ(Teil<QLabel>(Form, "Text")->text(), QString());
    EXPECT_EQ(Teil<QProgressBar>(Form, "ProgBar")->value(), 0);
}

TEST_F(Formulare_Test, opening_an_open_progress_keeps_what_it_shows)
{
    Status_Dialog Form;
    Form.Oeffnen();
    Form.Text("text");
    Form.Oeffnen();
    EXPECT_EQ(Teil<QLabel>(Form, "Text")->text(), QStringLiteral("text"));
}

} // namespace
} // namespace varnholt::test
