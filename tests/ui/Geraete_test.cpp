// The windows of the device programmer: the device menu, the version questions, the jumpers, the
// programming dialog, the comparison, the locks and the simulated board. Offscreen, with real keys
// and clicks.
#include "Haupt_Welt.h"

#include "core/menu.h"
#include "core/settings.h"
#include "programmer/Board_Ansicht.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Geraete.h"
#include "programmer/Geraetemenue.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Specifications.h"

#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <set>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Geraete_Test : public Haupt_Welt {
protected:
    void Starten_Mit_Bildern(const std::string& In = "E")
    {
        fs::copy(fs::path(VARNHOLT_DATA) / "images",
                 fs::path(Heim) / "images",
                 fs::copy_options::recursive | fs::copy_options::skip_existing);
        Starten(In);
        Port_Art = "sim";
        Fenster->resize(1280, 800);
        Fenster->activateWindow();
        QApplication::processEvents();
    }

    // --- menus ---

    static void Klick(QMenu* Menue, QAction* a)
    {
        ASSERT_NE(Menue, nullptr);
        ASSERT_NE(a, nullptr);
        QTest::mouseClick(Menue, Qt::LeftButton, {}, Menue->actionGeometry(a).center());
    }
    QMenu* Menue_Von(const char* Name)
    {
        auto* m = Fenster->findChild<QMenu*>(QLatin1String(Name));
        EXPECT_NE(m, nullptr) << Name;
        EXPECT_TRUE(QTest::qWaitFor([m] { return m != nullptr && m->isVisible(); }, 3000)) << Name;
        return m;
    }
    // Opens the menu by mouse, down to the group.
    QMenu* Gruppe_Oeffnen(int Gruppe)
    {
        QMenuBar* Leiste = Fenster->menuBar();
        QTest::mouseClick(
            Leiste, Qt::LeftButton, {}, Leiste->actionGeometry(Aktion("MNU_IC")).center());
        Klick(Menue_Von("MNU_IC_Menue"), Aktion("MNU_IC_Typ"));
        QMenu*           Typen = Menue_Von("MNU_IC_Typ_Menue");
        const QByteArray Name  = "MNU_IC_Group_" + QByteArray::number(Gruppe);
        auto*            Ziel  = Fenster->findChild<QMenu*>(QLatin1String(Name));
        EXPECT_NE(Ziel, nullptr);
        if (Ziel != nullptr)
            Klick(Typen, Ziel->menuAction());
        return Menue_Von(Name.constData());
    }
    void Geraet_Waehlen(const char* Name)
    {
        const int n = Geraet_Suchen(Name);
        ASSERT_GE(n, 0) << Name;
        const int Gruppe = n / Gruppen_Plaetze;
        QMenu*    m      = Gruppe_Oeffnen(Gruppe);
        Klick(m, m->actions().value(n % Gruppen_Plaetze));
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    bool Angehakt(const char* Name)
    {
        Fenster->findChild<QMenu*>(QStringLiteral("MNU_IC_Typ_Menue"))
            ->popup(QPoint(0, 0)); // is built when it opens
        const int n = Geraet_Suchen(Name);
        auto*     a = Fenster->findChild<QAction*>(
            QStringLiteral("MNU_IC_Typ_%1_%2").arg(n / Gruppen_Plaetze).arg(n % Gruppen_Plaetze));
        const bool An = a != nullptr && a->isChecked();
        Fenster->findChild<QMenu*>(QStringLiteral("MNU_IC_Typ_Menue"))->close();
        return An;
    }

    // --- windows ---

    template <class T> T* Teil(const char* Name, QWidget* In = nullptr)
    {
        QWidget* Wo = In != nullptr ? In : Fenster.get();
        auto*    t  = Wo->findChild<T*>(QString::fromUtf8(Name));
        EXPECT_NE(t, nullptr) << Name;
        return t;
    }
    static void Druecken(QWidget* Form, const char* Name)
    {
        auto* k = Form->findChild<QAbstractButton*>(QString::fromUtf8(Name));
        ASSERT_NE(k, nullptr) << Name;
        ASSERT_TRUE(k->isEnabled() && k->isVisible()) << Name;
        QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(10, k->height() / 2));
    }
    // The next modal window is to be that form; it is handled when it is ready.
    void Form_Kommt(const char* Name, std::function<void(QWidget*)> Tun)
    {
        Antworten.Naechstes([Name, Tun = std::move(Tun)](QWidget* w) {
            EXPECT_EQ(w->objectName(), QString::fromUtf8(Name));
            auto* Blick = new QTimer(w); // the answerer itself must be free for what comes then
            QObject::connect(Blick, &QTimer::timeout, w, [w, Blick, Tun] {
                const std::string& s = Brennmenue.IC_LBA_D;
                if (QApplication::activeModalWidget() != w ||
                    (Brennmenue.Offen && C_IC_vor_B &&
                     (s == "-" || s == "read..." || s == "gelesen")))
                    return;
                Blick->stop();
                Nichts_Abgeschnitten(*w);
                Tun(w);
            });
            Blick->start(10);
        });
    }
    void Version_Kommt(const char* Form, const char* Knopf)
    {
        Form_Kommt(Form, [Knopf](QWidget* w) { Druecken(w, Knopf); });
    }
    static void Nichts_Abgeschnitten(const QWidget& Form)
    {
        for (const auto* b : Form.findChildren<QAbstractButton*>())
            if (b->isVisible()) {
                EXPECT_GE(b->width(), b->sizeHint().width()) << b->objectName().toStdString();
            }
        for (const auto* l : Form.findChildren<QLabel*>())
            if (l->isVisible()) {
                EXPECT_GE(l->height(), l->heightForWidth(l->width())) << l->text().toStdString();
                if (!l->wordWrap()) {
                    EXPECT_GE(l->width(), l->minimumSizeHint().width()) << l->text().toStdString();
                }
            }
    }
    static void Schreiben(QWidget* Form, const char* Name, const char* Text)
    {
        auto* f = Form->findChild<QLineEdit*>(QString::fromUtf8(Name));
        ASSERT_NE(f, nullptr) << Name;
        f->setFocus();
        f->selectAll();
        QTest::keyClick(f, Qt::Key_Backspace);
        QTest::keyClicks(f, QString::fromUtf8(Text));
    }
    static std::string Wert(QWidget* Form, const char* Name)
    {
        if (auto* f = Form->findChild<QLineEdit*>(QString::fromUtf8(Name)))
            return Nach_Std(f->text());
        auto* l = Form->findChild<QLabel*>(QString::fromUtf8(Name));
        return l != nullptr ? Nach_Std(l->text()) : "no such field";
    }
    QDialog* Offene(const char* Name)
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String(Name) && w->isVisible())
                return qobject_cast<QDialog*>(w);
        return nullptr;
    }
    QDialog* Board_Oeffnen()
    {
        Aktion("MNU_EEprommer")->trigger();
        QApplication::processEvents();
        return Offene("Board");
    }
    // A click on the port in the status line.
    QDialog* Port_Klicken(Qt::MouseButton Knopf = Qt::LeftButton)
    {
        QTest::mouseClick(Suchen("Status_Port"), Knopf);
        QApplication::processEvents();
        return Offene("Board");
    }
    void Datei_Kommt(const std::string& Name)
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
    // A microcontroller on the Tessel2 board, an EPROM on the Eprommer; versions known.
    void MC_Waehlen(const char* Name = "89C52")
    {
        Tessel2_Version = 12;
        Antworten.Taste(QMessageBox::Ok); // jumper J1
        Geraet_Waehlen(Name);
        ASSERT_GE(IC_Nummer, 0);
    }
    void Eprom_Waehlen(const char* Name = "27C64")
    {
        Eprommer_Version = 31;
        Geraet_Waehlen(Name);
        ASSERT_GE(IC_Nummer, 0);
        if (QDialog* Form = Offene("Jumper"))
            Form->hide();
    }
};

// --- device menu ---

TEST_F(Geraete_Test, the_menu_has_a_submenu_for_each_group_and_an_entry_for_each_device)
{
    Starten_Mit_Bildern();
    QMenu* m = Gruppe_Oeffnen(0);
    EXPECT_EQ(m->title(), QStringLiteral("EPROM 27C, 87C"));
    EXPECT_EQ(m->actions().size(), Geraete.Gruppen_Belegt[0]);
    EXPECT_EQ(m->actions().value(0)->text(), QStringLiteral("27C64"));
    int Gruppen = 0;
    for (const int n : Geraete.Gruppen_Belegt)
        Gruppen += n > 0 ? 1 : 0;
    EXPECT_EQ(Menue_Von("MNU_IC_Typ_Menue")->actions().size(), Gruppen);
    while (QWidget* p = QApplication::activePopupWidget())
        p->close();
}

TEST_F(Geraete_Test, all_named_groups_are_shown_with_devices_or_without)
{
    Starten_Mit_Bildern();
    std::string Text;
    for (int g = 0; g < Gruppen_Anzahl; ++g)
        Text += "GROUP_NAME#" + std::to_string(g) + " Group " + std::to_string(g) + "\r\n";
    Spec_Auswerten(Text + "NAME:A\r\n_GROUP:7\r\nEND\r\n");
    auto* Typen = Fenster->findChild<QMenu*>(QStringLiteral("MNU_IC_Typ_Menue"));
    ASSERT_NE(Typen, nullptr);
    Typen->popup(QPoint(0, 0));
    ASSERT_EQ(Typen->actions().size(), Gruppen_Anzahl);
    for (int g = 0; g < Gruppen_Anzahl; ++g) {
        QAction* a = Typen->actions().at(g);
        EXPECT_EQ(a->text(), QStringLiteral("GROUP %1").arg(g));
        EXPECT_TRUE(a->isVisible());
        EXPECT_EQ(a->menu()->actions().size(), g == 7 ? 1 : 0);
    }
    Typen->close();
}

TEST_F(Geraete_Test, a_group_with_neither_name_nor_devices_is_not_shown)
{
    Starten_Mit_Bildern();
    Spec_Auswerten("GROUP_NAME#3 X\r\n");
    auto* Typen = Fenster->findChild<QMenu*>(QStringLiteral("MNU_IC_Typ_Menue"));
    Typen->popup(QPoint(0, 0));
    EXPECT_EQ(Typen->actions().size(), 1);
    Typen->close();
}

TEST_F(Geraete_Test, a_device_of_the_eprommer_asks_for_the_version_and_shows_its_jumpers)
{
    Starten_Mit_Bildern();
    Version_Kommt("Wahl_Eprommer_Version", "Version_31");
    Geraet_Waehlen("27C64");
    EXPECT_EQ(Eprommer_Version, 31);
    EXPECT_EQ(IC_Nummer, Geraet_Suchen("27C64"));
    EXPECT_EQ(Aktion("MNU_IC")->text().remove(QLatin1Char('&')),
              QStringLiteral("Programmer (27C64)"));
    EXPECT_TRUE(Angehakt("27C64"));
    QDialog* Form = Offene("Jumper");
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Form->windowTitle(), QStringLiteral("Jumper settings 27C64"));
    EXPECT_FALSE(Form->testAttribute(Qt::WA_ShowWithoutActivating)) << "Enter closes it";
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(Form->findChild<QWidget*>(QStringLiteral("Jumper_%1").arg(i))->isVisible());
    Nichts_Abgeschnitten(*Form);
    Druecken(Form, "OK");
    EXPECT_FALSE(Form->isVisible());
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Geraete_Test, the_jumpers_are_drawn_and_follow_the_version)
{
    Starten_Mit_Bildern("D");
    Eprommer_Version = 30;
    Geraet_Waehlen("27C080");
    QDialog* Form = Offene("Jumper");
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Form->windowTitle(), QStringLiteral("Jumper Einstellungen 27C080"));
    EXPECT_TRUE(Wert(Form, "Hinweis").starts_with("ACHTUNG: Zugriff auf 8MBit Eprom's"));
    Nichts_Abgeschnitten(*Form);
    const QImage Alt = Form->grab().toImage();
    Form->hide();
    Eprommer_Version = 32;
    Geraet_Waehlen("27C080");
    EXPECT_TRUE(Wert(Form, "Hinweis").starts_with("ACHTUNG: Für den Zugriff auf den unteren 4MB"));
    EXPECT_TRUE(Teil<QWidget>("Jumper_0", Form)->isVisible()) << "the note speaks of it";
    Nichts_Abgeschnitten(*Form);
    const QImage Mit_Null = Teil<QWidget>("Board", Form)->grab().toImage();
    Form->hide();
    Geraet_Waehlen("27C040");
    EXPECT_FALSE(Teil<QWidget>("Jumper_0", Form)->isVisible());
    EXPECT_TRUE(Teil<QWidget>("Jumper_1", Form)->isVisible());
    EXPECT_NE(Teil<QWidget>("Board", Form)->grab().toImage(), Mit_Null);
    EXPECT_NE(Form->grab().toImage(), Alt);
    // A jumper's picture is more than an empty frame.
    const QImage   Bild = Teil<QWidget>("Jumper_1", Form)->grab().toImage();
    std::set<QRgb> Farben;
    for (int y = 0; y < Bild.height(); ++y)
        for (int x = 0; x < Bild.width(); ++x)
            Farben.insert(Bild.pixel(x, y));
    EXPECT_GT(Farben.size(), 4u);
    Form->hide();
}

TEST_F(Geraete_Test, another_device_takes_the_tick_over)
{
    Starten_Mit_Bildern("D");
    Eprom_Waehlen("27C64");
    Eprom_Waehlen("28C256");
    EXPECT_TRUE(Angehakt("28C256"));
    EXPECT_FALSE(Angehakt("27C64"));
    EXPECT_EQ(Aktion("MNU_IC")->text().remove(QLatin1Char('&')),
              QStringLiteral("Brenner (28C256)"));
    EXPECT_TRUE(Aktion("MNU_IC_Löschen")->isEnabled());
    Eprom_Waehlen("27C64");
    EXPECT_FALSE(Aktion("MNU_IC_Löschen")->isEnabled());
    EXPECT_FALSE(Aktion("MNU_IC_LockBits")->isEnabled());
}

TEST_F(Geraete_Test, the_version_of_the_tessel2_board_decides_on_a_device)
{
    Starten_Mit_Bildern("D");
    Version_Kommt("Wahl_Tessel2_Version", "Version_11");
    Antworten.Taste(QMessageBox::Ok);
    Geraet_Waehlen("89F54");
    EXPECT_EQ(Tessel2_Version, 11);
    EXPECT_EQ(IC_Nummer, -1);
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_TRUE(Antworten.Texte[0].starts_with("Um diesen speziellen Flash MC zu programmieren"));
    EXPECT_FALSE(Angehakt("89F54"));
    EXPECT_EQ(Aktion("MNU_IC")->text().remove(QLatin1Char('&')), QStringLiteral("Brenner"));
    Form_Kommt("Wahl_Tessel2_Version", [](QWidget* w) {
        EXPECT_TRUE(w->findChild<QPushButton*>(QStringLiteral("Version_11"))->isDefault());
        Druecken(w, "Version_12");
    });
    Aktion("MNU_Tessel2_Hardware_Version")->trigger();
    Antworten.Taste(QMessageBox::Ok);
    Geraet_Waehlen("89F54");
    EXPECT_EQ(IC_Nummer, Geraet_Suchen("89F54"));
}

TEST_F(Geraete_Test, a_version_question_that_is_closed_leaves_the_device_from_before)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen("28C256");
    Form_Kommt("Wahl_Tessel2_Version", [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    Geraet_Waehlen("89C52");
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(IC_Nummer, Geraet_Suchen("28C256"));
    EXPECT_TRUE(Angehakt("28C256"));
    EXPECT_FALSE(Angehakt("89C52"));
    EXPECT_EQ(Aktion("MNU_IC")->text().remove(QLatin1Char('&')),
              QStringLiteral("Programmer (28C256)"));
}

TEST_F(Geraete_Test, an_older_version_takes_the_device_away_that_it_cannot_serve)
{
    Starten_Mit_Bildern("D");
    MC_Waehlen("89F54");
    Version_Kommt("Wahl_Tessel2_Version", "Version_11");
    Antworten.Taste(QMessageBox::Ok);
    Antworten.Texte.clear();
    Aktion("MNU_Tessel2_Hardware_Version")->trigger();
    EXPECT_TRUE(Antworten.Fertig());
    ASSERT_FALSE(Antworten.Texte.empty());
    EXPECT_TRUE(Antworten.Texte.back().starts_with("Um diesen speziellen Flash MC"));
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_FALSE(Angehakt("89F54"));
}

TEST_F(Geraete_Test, a_test_of_the_other_board_passes_and_leaves_the_part)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    Tessel2_Version = 12;
    EXPECT_EQ(Board_Ansehen().Board, "Eprommer");
    dynamic_cast<Simuliertes_Board&>(*Plattform.Port).Baustein()->Inhalt[0] = 0x12;
    for (int i = 0; i < 3; ++i)
        Antworten.Taste(QMessageBox::Ok);
    Antworten.Taste(QMessageBox::Cancel); // behind test 1
    Antworten.Texte.clear();
    Aktion("MNU_Tessel2_Test")->trigger();
    ASSERT_EQ(Antworten.Texte.size(), 4u);
    EXPECT_TRUE(Antworten.Texte.back().starts_with("Just in this moment, a automatic test was "
                                                   "finished sucessfully."));
    EXPECT_EQ(Board_Ansehen().Board, "Eprommer");
    EXPECT_EQ(Board_Ansehen().Bytes.substr(0, 5), "12 FF");
}

class Geraete_Sprachen : public Geraete_Test, public ::testing::WithParamInterface<const char*> {
protected:
    static bool Deutsch() { return GetParam()[0] == 'D'; }
};

TEST_P(Geraete_Sprachen, the_version_question_is_readable)
{
    Starten_Mit_Bildern(GetParam());
    Form_Kommt("Wahl_Eprommer_Version", [](QWidget* w) {
        EXPECT_EQ(w->findChild<QPushButton*>(QStringLiteral("Version_30"))->text(),
                  Deutsch() ? QStringLiteral("Version 3.0 oder älter")
                            : QStringLiteral("Version 3.0 or older"));
        QTest::keyClick(w, Qt::Key_Escape);
    });
    Aktion("MNU_Hardware_Version")->trigger();
    EXPECT_EQ(Eprommer_Version, 0);
}

INSTANTIATE_TEST_SUITE_P(Beide, Geraete_Sprachen, ::testing::Values("D", "E"));

TEST_F(Geraete_Test, the_stored_device_has_its_tick_and_caption_at_the_next_start)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen("28C256");
    Datei_Geaendert = false;
    Aktion("MNU_Ende")->trigger();
    ASSERT_TRUE(Beendet);
    Alles_Zuruecksetzen();
    Beendet = false;
    Bauen();
    Fenster->Ausfuehren([] { Init(); });
    QApplication::processEvents();
    Fenster->Nachziehen();
    EXPECT_EQ(IC_Nummer, Geraet_Suchen("28C256"));
    EXPECT_EQ(Eprommer_Version, 31);
    EXPECT_TRUE(Angehakt("28C256"));
    EXPECT_EQ(Aktion("MNU_IC")->text().remove(QLatin1Char('&')),
              QStringLiteral("Programmer (28C256)"));
    EXPECT_TRUE(Aktion("MNU_IC_Löschen")->isEnabled());
}

// --- programming ---

TEST_F(Geraete_Test, the_sample_is_programmed_and_agrees_with_the_editor)
{
    Starten_Mit_Bildern();
    MC_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) {
        EXPECT_EQ(Wert(w, "Label_IC"), "89C52, memory area from 0 to:");
        EXPECT_EQ(Wert(w, "IC_GS_D"), "8191");
        EXPECT_EQ(Wert(w, "IC_GS_H"), "1FFF");
        EXPECT_EQ(Wert(w, "IC_LBA_D"), "EMPTY");
        EXPECT_EQ(Wert(w, "ED_EBA_D"), "0");
        EXPECT_NE(Wert(w, "Vorschau").find("bytes will be written"), std::string::npos);
        Druecken(w, "Brennen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
    QDialog* Form = Offene("CheckIC");
    ASSERT_NE(Form, nullptr);
    EXPECT_TRUE(Wert(Form, "Ergebnis").starts_with("The IC data is equivalent to the editor data"))
        << Wert(Form, "Ergebnis");
    EXPECT_TRUE(Wert(Form, "Zustand_IC").starts_with("Programmed till "));
    EXPECT_FALSE(Teil<QPushButton>("Button_Dat", Form)->isEnabled());
    Nichts_Abgeschnitten(*Form);
    Druecken(Form, "Button_OK");
    EXPECT_EQ(Offene("CheckIC"), nullptr);
    EXPECT_NE(Board_Ansehen().Bytes.substr(0, 5), "FF FF");
}

TEST_F(Geraete_Test, the_fields_of_the_programming_dialog_go_by_keys)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) {
        Schreiben(w, "ED_LBA_H", "1gf-x"); // no hexadecimal digits: g, -, x
        EXPECT_EQ(Wert(w, "ED_LBA_H"), "1F");
        EXPECT_EQ(Wert(w, "ED_LBA_D"), "31");
        EXPECT_EQ(Wert(w, "ED_IBA_D"), "32");
        EXPECT_EQ(Wert(w, "ED_IBA_H"), "20");
        auto* f = w->findChild<QLineEdit*>(QStringLiteral("ED_LBA_H"));
        f->setCursorPosition(1);
        QTest::keyClick(f, 'a');
        EXPECT_EQ(f->text(), QStringLiteral("1AF"));
        EXPECT_EQ(f->cursorPosition(), 2);
        Schreiben(w, "ED_LBA_H", "");
        EXPECT_EQ(Wert(w, "ED_LBA_D"), "0");
        Schreiben(w, "ED_LBA_D", "31");
        Schreiben(w, "ED_EBA_D", "32");
        EXPECT_EQ(Wert(w, "ED_IBA_D"), "ERROR");
        EXPECT_FALSE(w->findChild<QPushButton*>(QStringLiteral("Brennen"))->isEnabled());
        EXPECT_EQ(Wert(w, "Vorschau"), "With these values nothing can be programmed.");
        Schreiben(w, "ED_EBA_D", "0");
        Schreiben(w, "BR_EBA_D", "8160"); // ends at the last address
        EXPECT_EQ(Wert(w, "BR_LBA_D"), "8191");
        EXPECT_TRUE(w->findChild<QPushButton*>(QStringLiteral("Brennen"))->isEnabled());
        Schreiben(w, "BR_EBA_H", "1FE1"); // one further
        EXPECT_EQ(Wert(w, "BR_LBA_H"), "ZU");
        EXPECT_EQ(Wert(w, "BR_LBA_D"), "HOCH");
        EXPECT_FALSE(w->findChild<QPushButton*>(QStringLiteral("Brennen"))->isEnabled());
        EXPECT_TRUE(Brennmenue.Offen);
        QTest::keyClick(w, Qt::Key_Escape);
        EXPECT_FALSE(Brennmenue.Offen);
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Board_Ansehen().Benutzt, "empty, all FFh");
}

TEST_F(Geraete_Test, more_shows_the_lower_part_and_hides_it_again)
{
    Starten_Mit_Bildern("D");
    Eprom_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) {
        const int Klein = w->height();
        auto*     Kein  = w->findChild<QRadioButton*>(QStringLiteral("O_No_Splitting"));
        EXPECT_FALSE(Kein->isVisible());
        Druecken(w, "Weiteres");
        EXPECT_TRUE(QTest::qWaitFor([&] { return w->height() > Klein; }, 1000));
        EXPECT_TRUE(Kein->isVisible() && Kein->isChecked());
        const int Gross = w->height();
        Nichts_Abgeschnitten(*w);
        Druecken(w, "O_Odd_Splitting");
        EXPECT_TRUE(Brennmenue.O_Odd_Splitting);
        EXPECT_FALSE(Kein->isChecked());
        Schreiben(w, "BR_EBA_D", "16");
        auto* Null = w->findChild<QCheckBox*>(QStringLiteral("DAT00"));
        EXPECT_EQ(Null->text(), QStringLiteral("Brenne alles vor der IC Adresse 16/10 auf 00."));
        Druecken(w, "DAT00");
        EXPECT_TRUE(Brennmenue.DAT00);
        Druecken(w, "Weiteres");
        EXPECT_FALSE(Kein->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return w->height() < Gross; }, 1000));
        Druecken(w, "Abbrechen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_FALSE(Brennmenue.Offen);
}

TEST_P(Geraete_Sprachen, the_programming_dialog_has_its_texts)
{
    const bool D = Deutsch();
    Starten_Mit_Bildern(GetParam());
    Eprom_Waehlen();
    Form_Kommt("Brennmenue", [D](QWidget* w) {
        std::set<std::string> Texte;
        for (const auto* l : w->findChildren<QLabel*>())
            Texte.insert(Nach_Std(l->text()));
        for (const auto* k : w->findChildren<QAbstractButton*>())
            Texte.insert(Nach_Std(k->text()));
        const std::vector<const char*> Deutsch = {
            "IC                        Hex    Dez   ",
            "Editor                    Hex    Dez   ",
            "Brennen                   Hex    Dez   ",
            "Momentan beschrieben bis:",
            "Brennen ab der IC-Adresse:",
            "IC vorm programmieren löschen (Nur bei Flash/EEPROM).",
            "Kein Splitting",
            "Nur gerade Adressen brennen (even 0,2,4,...)",
            "Nur ungerade Adressen brennen (odd 1,3,5,...)",
            "Brennen",
            "Abbrechen",
            "Weiteres..."};
        const std::vector<const char*> Englisch = {
            "IC                        Hex    Dec   ",
            "Edit                      Hex    Dec   ",
            "Program                   Hex    Dec   ",
            "First programmable address:",
            "Last programmable address:",
            "Total programmable addresses:",
            "Begin programming at IC address:",
            "Already programmed to:",
            "Erase IC before programming (Only Flash/EEPROM)."};
        for (const char* t : D ? Deutsch : Englisch)
            EXPECT_EQ(Texte.count(t), 1u) << t;
        if (!D) {
            EXPECT_EQ(w->windowTitle(), QStringLiteral("Program data"));
        }
        QTest::keyClick(w, Qt::Key_Escape);
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Geraete_Test, the_window_is_there_before_the_device_is_read)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    bool   Dialog_Zuerst = false;
    QTimer Blick;
    QObject::connect(&Blick, &QTimer::timeout, Fenster.get(), [&] {
        const QWidget* Modal = QApplication::activeModalWidget();
        if (Modal != nullptr && Modal->objectName() == QStringLiteral("status"))
            Dialog_Zuerst = Dialog_Zuerst || Offene("Brennmenue") != nullptr;
    });
    Blick.start(0);
    Form_Kommt("Brennmenue", [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Dialog_Zuerst);
}

TEST_F(Geraete_Test, a_part_of_the_image_gives_differences_in_a_table)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) {
        Schreiben(w, "ED_LBA_D", "15");
        Druecken(w, "Brennen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    QDialog* Form = Offene("CheckIC");
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Wert(Form, "Ergebnis"), "The IC data is NOT equivalent to the editor data.");
    auto* Tafel = Teil<QPlainTextEdit>("Text", Form);
    EXPECT_FALSE(Tafel->isVisible());
    const int Klein = Form->height();
    Druecken(Form, "Button_Dat");
    QApplication::processEvents();
    EXPECT_TRUE(Tafel->isVisible());
    EXPECT_GT(Form->height(), Klein);
    EXPECT_TRUE(Tafel->toPlainText().startsWith(
        QStringLiteral("Hex.Adr.|Editor|  IC  \n--------+------+------\n0000")))
        << Tafel->toPlainText().left(80).toStdString();
    // The size is the user's from then on.
    Form->resize(Form->width() + 50, Form->height() + 50);
    const QSize Groesse = Form->size();
    Fenster->Nachziehen();
    EXPECT_EQ(Form->size(), Groesse);
    QTest::keyClick(Form, Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_FALSE(CheckIC.Offen);
}

TEST_F(Geraete_Test, the_table_of_differences_is_of_what_was_read_for_it)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) {
        Schreiben(w, "ED_LBA_D", "15");
        Druecken(w, "Brennen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    QDialog* Form = Offene("CheckIC");
    ASSERT_NE(Form, nullptr);
    Board_UV_Loeschen(); // and another read, into the buffer that both share
    Form_Kommt("Brennmenue", [](QWidget* w) {
        EXPECT_EQ(Wert(w, "IC_LBA_D"), "EMPTY");
        QTest::keyClick(w, Qt::Key_Escape);
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    ASSERT_EQ(Offene("CheckIC"), Form);
    Druecken(Form, "Button_Dat");
    const QString Text = Teil<QPlainTextEdit>("Text", Form)->toPlainText();
    EXPECT_GT(Text.count(QLatin1Char('\n')), 3);
    EXPECT_FALSE(Text.contains(QStringLiteral("\n000000 |"))) << Text.left(200).toStdString();
    Druecken(Form, "Button_OK");
}

TEST_P(Geraete_Sprachen, a_device_without_a_programming_routine_is_told)
{
    Starten_Mit_Bildern(GetParam());
    Eprom_Waehlen();
    Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].P_Typ = "XYZ";
    const std::string Text =
        Deutsch() ? "27C64 kann nicht gebrannt werden: für seinen Typ gibt es keine Brennroutine."
                  : "27C64 can't be programmed: there is no programming routine for its type.";
    Form_Kommt("Brennmenue", [this, Text](QWidget* w) {
        EXPECT_EQ(Wert(w, "Vorschau"), Text);
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Brennen");
        EXPECT_TRUE(w->isVisible());
        Druecken(w, "Abbrechen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_EQ(Antworten.Texte[0], Text);
}

// --- the way of a new user ---

class Gang_Test : public Geraete_Test {
protected:
    static constexpr std::size_t Bytes = 8192; // of an 89C52

    // Presses the button in the programming dialog after Ansehen, and closes the comparison; its
    // verdict.
    std::string Brennen(std::function<void(QWidget*)> Ansehen)
    {
        Form_Kommt("Brennmenue", [Ansehen = std::move(Ansehen)](QWidget* w) {
            Ansehen(w);
            Druecken(w, "Brennen");
        });
        Taste(Qt::Key_B, Qt::ControlModifier);
        return Vergleich_Schliessen();
    }
    std::string Pruefen()
    {
        Taste(Qt::Key_I, Qt::ControlModifier);
        return Vergleich_Schliessen();
    }
    std::string Vergleich_Schliessen()
    {
        QDialog* Form = Offene("CheckIC");
        if (Form == nullptr)
            return "no comparison";
        const std::string Urteil = Wert(Form, "Ergebnis");
        Druecken(Form, "Button_OK");
        return Urteil;
    }
    void Lesen()
    {
        Datei_Geaendert = false;
        Aktion("MNU_IC_Lesen")->trigger();
        QApplication::processEvents();
    }
    void Sockel(const char* Haken)
    {
        QDialog* Form = Board_Oeffnen();
        ASSERT_NE(Form, nullptr);
        Druecken(Form, Haken);
        Druecken(Form, "Zu");
    }
    static std::vector<std::uint8_t> Anfang_Des_Bilds()
    {
        return {Hex_Daten.begin(), Hex_Daten.begin() + Bytes};
    }
};

TEST_F(Gang_Test, choose_program_erase_verify_take_out_read_lock_and_read)
{
    const std::string Gleich =
        "The IC data is equivalent to the editor data in the whole area of the ic.";
    const std::vector<std::uint8_t> Leer(Bytes, 0xFF);
    Starten_Mit_Bildern();
    MC_Waehlen();
    EXPECT_EQ(Brennen([](QWidget* w) {
                  EXPECT_FALSE(w->findChild<QCheckBox*>(QStringLiteral("Löschen"))->isChecked());
              }),
              Gleich);
    const std::vector<std::uint8_t> Programm = Anfang_Des_Bilds();
    EXPECT_NE(Programm, Leer);

    // Once more, now over the old contents.
    EXPECT_EQ(Brennen([](QWidget* w) {
                  EXPECT_TRUE(w->findChild<QCheckBox*>(QStringLiteral("Löschen"))->isChecked());
                  EXPECT_NE(Wert(w, "Vorschau")
                                .find("The whole IC is erased before. 0 bytes of "
                                      "the whole IC change."),
                            std::string::npos)
                      << Wert(w, "Vorschau");
              }),
              Gleich);
    EXPECT_EQ(Pruefen(), Gleich);

    // Out of the socket, and in again.
    Sockel("Stoerung_1");
    Antworten.Texte.clear();
    Antworten.Taste(QMessageBox::Cancel);
    Lesen();
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_NE(Antworten.Texte[0].find("There is no AT89C"), std::string::npos);
    EXPECT_NE(Anfang_Des_Bilds(), Programm);
    Sockel("Stoerung_1");
    Lesen();
    EXPECT_EQ(Anfang_Des_Bilds(), Programm);

    // Locked, it shows nothing.
    Form_Kommt("Lockmenu", [this](QWidget* w) {
        Druecken(w, "Option4");
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Command1");
    });
    Taste(Qt::Key_G, Qt::ControlModifier);
    Lesen();
    EXPECT_EQ(Anfang_Des_Bilds(), Leer);

    // An erase opens it.
    Aktion("MNU_IC_Löschen")->trigger();
    QApplication::processEvents();
    QDialog* Form = Offene("CheckIC");
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Wert(Form, "Zustand_IC"), "Clear");
    Druecken(Form, "Button_OK");
    EXPECT_EQ(Brennen([](QWidget*) {}), Gleich);
    Lesen();
    EXPECT_EQ(Anfang_Des_Bilds(), Programm);
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Gang_Test, a_locked_part_takes_nothing_until_it_is_erased)
{
    Starten_Mit_Bildern("D");
    MC_Waehlen();
    Form_Kommt("Lockmenu", [this](QWidget* w) {
        Druecken(w, "Option3");
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Command1");
    });
    Taste(Qt::Key_G, Qt::ControlModifier);
    Antworten.Texte.clear();
    Form_Kommt("Brennmenue", [this](QWidget* w) {
        EXPECT_EQ(Wert(w, "IC_LBA_D"), "LEER");
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Brennen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_TRUE(Antworten.Texte[0].starts_with("Fehler beim Brennen der Adresse 0(dez)"));
    EXPECT_EQ(Offene("CheckIC"), nullptr);
    EXPECT_EQ(Brennen([](QWidget* w) {
                  Druecken(w, "Löschen");
                  EXPECT_NE(Wert(w, "Vorschau").find("Vorher wird das ganze IC gelöscht."),
                            std::string::npos);
              }),
              "Die Daten des IC entsprechen den Daten des Editors im gesamten Bereich des IC.");
}

TEST_F(Geraete_Test, the_comparison_speaks_german)
{
    Starten_Mit_Bildern("D");
    Eprom_Waehlen();
    Taste(Qt::Key_I, Qt::ControlModifier);
    QDialog* Form = Offene("CheckIC");
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Wert(Form, "Zustand_IC"), "Gelöscht");
    EXPECT_EQ(Wert(Form, "Ergebnis"), "");
    EXPECT_EQ(Teil<QPushButton>("Button_OK", Form)->text(), QStringLiteral("OK / Schließen"));
    EXPECT_EQ(Teil<QPushButton>("Button_Dat", Form)->text(), QStringLiteral("Zeige Abweichungen"));
    Nichts_Abgeschnitten(*Form);
    Druecken(Form, "Button_OK");
}

// --- locks ---

TEST_F(Geraete_Test, a_microcontroller_is_locked_and_then_reads_as_locked)
{
    Starten_Mit_Bildern();
    MC_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) { Druecken(w, "Brennen"); });
    Taste(Qt::Key_B, Qt::ControlModifier);
    if (QDialog* Form = Offene("CheckIC"))
        Druecken(Form, "Button_OK");
    Form_Kommt("Lockmenu", [this](QWidget* w) {
        EXPECT_TRUE(w->findChild<QRadioButton*>(QStringLiteral("Option1"))->isChecked());
        EXPECT_TRUE(w->findChild<QRadioButton*>(QStringLiteral("Option4"))->isEnabled());
        EXPECT_TRUE(Wert(w, "Label1").starts_with("Please note: After setting"));
        Druecken(w, "Option4");
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Command1");
    });
    Taste(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Antworten.Texte.back(), "Protection mode bit(s) programmed!");
    QDialog* Board = Board_Oeffnen();
    ASSERT_NE(Board, nullptr);
    EXPECT_EQ(Wert(Board, "Lage"), "The lock level prevents reading: the IC shows FFh everywhere.");
    Board->hide();
    Taste(Qt::Key_I, Qt::ControlModifier);
    QDialog* Form = Offene("CheckIC");
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Wert(Form, "Zustand_IC"), "Clear");
    Druecken(Form, "Button_OK");
}

TEST_F(Geraete_Test, a_click_on_the_simulated_port_in_the_status_line_opens_its_window)
{
    Starten_Mit_Bildern("D");
    EXPECT_EQ(Suchen("Status_Port")->toolTip(),
              QStringLiteral("Klick: das Fenster des simulierten Boards"));
    EXPECT_EQ(Port_Klicken(Qt::RightButton), nullptr);
    QDialog* Board = Port_Klicken();
    ASSERT_NE(Board, nullptr);
    Druecken(Board, "Zu");
    Aktion("MNU_Englisch")->trigger();
    EXPECT_EQ(Suchen("Status_Port")->toolTip(),
              QStringLiteral("Click: the window of the simulated board"));
    Port_Art = "ppdev";
    Fenster->Nachziehen();
    EXPECT_EQ(Port_Klicken(), nullptr);
    EXPECT_EQ(Suchen("Status_Port")->toolTip(), QString());
}

TEST_F(Geraete_Test, the_small_parts_have_no_mode_4_and_cancel_writes_nothing)
{
    Starten_Mit_Bildern("D");
    Geraet_Waehlen("89C2051");
    Form_Kommt("Lockmenu", [](QWidget* w) {
        EXPECT_FALSE(w->findChild<QRadioButton*>(QStringLiteral("Option4"))->isEnabled());
        EXPECT_EQ(w->findChild<QRadioButton*>(QStringLiteral("Option1"))->text(),
                  QStringLiteral("Modus 1: Keine Protections Bits gesetzt."));
        Druecken(w, "Option3");
        EXPECT_EQ(w->findChild<QPushButton*>(QStringLiteral("Command2"))->text(),
                  QStringLiteral("Abbrechen"));
        Druecken(w, "Command2");
    });
    Taste(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Board_Ansehen().Lage, "");
}

// --- the simulated board ---

TEST_F(Geraete_Test, the_board_window_shows_the_part_and_a_new_one_goes_in)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Wert(Form, "Wert_0"), "Eprommer");
    EXPECT_EQ(Wert(Form, "Wert_1"), "27C64, 8192 bytes");
    EXPECT_EQ(Wert(Form, "Wert_3"), "empty, all FFh");
    Nichts_Abgeschnitten(*Form);
    Board_Stoeren(Board_Stoerung::D0_Auf_0, true);
    Fenster->Nachziehen();
    EXPECT_EQ(Wert(Form, "Lage"), "A data line is stuck.");
    Druecken(Form, "Neuer");
    EXPECT_FALSE(Teil<QLabel>("Lage", Form)->isVisible());
    EXPECT_FALSE(Teil<QCheckBox>("Stoerung_2", Form)->isChecked());
    Druecken(Form, "Zu");
    EXPECT_FALSE(Form->isVisible());
}

TEST_F(Geraete_Test, the_board_window_speaks_both_languages_at_once)
{
    Starten_Mit_Bildern("D");
    Eprom_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    EXPECT_EQ(Form->windowTitle(), QStringLiteral("Simuliertes Board"));
    EXPECT_EQ(Teil<QPushButton>("UV", Form)->text(), QStringLiteral("Mit UV-Licht löschen"));
    Nichts_Abgeschnitten(*Form);
    Aktion("MNU_Englisch")->trigger();
    EXPECT_EQ(Form->windowTitle(), QStringLiteral("Simulated board"));
    EXPECT_EQ(Teil<QPushButton>("UV", Form)->text(), QStringLiteral("Erase with UV light"));
    Nichts_Abgeschnitten(*Form);
    Form->hide();
}

TEST_F(Geraete_Test, a_microcontroller_taken_out_is_missed_by_the_read)
{
    Starten_Mit_Bildern();
    MC_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    Druecken(Form, "Stoerung_1");
    EXPECT_EQ(Wert(Form, "Lage"), "The socket is empty.");
    EXPECT_FALSE(Teil<QPushButton>("Sichern", Form)->isEnabled());
    Form->hide();
    Antworten.Texte.clear();
    Antworten.Taste(QMessageBox::Cancel);
    Taste(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_EQ(Offene("CheckIC"), nullptr) << "given up without a verdict";
    Form->show();
    Druecken(Form, "Stoerung_1");
    Form->hide();
    Taste(Qt::Key_I, Qt::ControlModifier);
    EXPECT_NE(Offene("CheckIC"), nullptr);
}

TEST_F(Geraete_Test, each_fault_of_the_board_is_met_by_the_commands)
{
    Starten_Mit_Bildern();
    MC_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    for (const char* Haken : {"Stoerung_0", "Stoerung_3", "Stoerung_5"}) {
        Form->show();
        Druecken(Form, Haken);
        EXPECT_TRUE(Teil<QLabel>("Lage", Form)->isVisible());
        Form->hide();
        Antworten.Texte.clear();
        Antworten.Taste(QMessageBox::Cancel);
        Taste(Qt::Key_I, Qt::ControlModifier);
        EXPECT_EQ(Antworten.Texte.size(), 1u) << Haken;
        EXPECT_EQ(Offene("CheckIC"), nullptr) << Haken;
        Form->show();
        Druecken(Form, Haken);
    }
    Form->hide();
}

TEST_F(Geraete_Test, a_stuck_line_shows_in_the_comparison)
{
    Starten_Mit_Bildern();
    MC_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    Druecken(Form, "Stoerung_2"); // the signature 1Eh doesn't tell of it
    Form->hide();
    Taste(Qt::Key_I, Qt::ControlModifier);
    QDialog* Check = Offene("CheckIC");
    ASSERT_NE(Check, nullptr);
    EXPECT_EQ(Wert(Check, "Zustand_IC"), "Programmed till 8191(dec) / 1FFF(hex)");
    Druecken(Check, "Button_OK");
}

TEST_F(Geraete_Test, an_eprom_has_no_faults_of_a_microcontroller_and_is_erased_by_light)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    Form_Kommt("Brennmenue", [](QWidget* w) { Druecken(w, "Brennen"); });
    Taste(Qt::Key_B, Qt::ControlModifier);
    if (QDialog* Check = Offene("CheckIC"))
        Druecken(Check, "Button_OK");
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    EXPECT_FALSE(Teil<QCheckBox>("Stoerung_4", Form)->isEnabled());
    EXPECT_FALSE(Teil<QCheckBox>("Stoerung_5", Form)->isEnabled());
    EXPECT_TRUE(Wert(Form, "Wert_3").starts_with("0h - ")) << Wert(Form, "Wert_3");
    Druecken(Form, "UV");
    EXPECT_EQ(Wert(Form, "Wert_3"), "empty, all FFh");
    Form->hide();
}

TEST_F(Geraete_Test, the_board_window_offers_the_faults_of_the_family_in_the_socket)
{
    struct Zeile_T {
        const char*   Name;
        std::set<int> Aktiv; // of the faults behind those that each board knows
        bool          Seiten;
    };
    const Zeile_T Zeilen[] = {{"27C256", {}, false},
                              {"28F010", {6}, false},
                              {"29C040", {7}, true},
                              {"27SF512", {6, 8}, false},
                              {"28C64", {6, 7}, false},
                              {"48T08", {}, false},
                              {"89C2051", {4, 5, 6}, false},
                              {"89C52", {4, 5, 6, 9}, false},
                              {"89S53", {4, 5, 6}, false}};
    Starten_Mit_Bildern("D");
    Eprommer_Version = 32;
    Tessel2_Version  = 10; // has no jumper to be reminded of
    for (const Zeile_T& z : Zeilen) {
        Geraet_Waehlen(z.Name);
        QDialog* Form = Board_Oeffnen();
        ASSERT_NE(Form, nullptr);
        for (int i = 0; i < Board_Stoerungen; ++i) {
            auto* Haken = Teil<QCheckBox>(("Stoerung_" + std::to_string(i)).c_str(), Form);
            EXPECT_EQ(Haken->isEnabled(), i < 4 || z.Aktiv.contains(i)) << z.Name << " " << i;
        }
        EXPECT_TRUE(Teil<QPushButton>("Schwache_Zelle", Form)->isEnabled());
        EXPECT_EQ(Teil<QPushButton>("Schlechte_Seite", Form)->isEnabled(), z.Seiten) << z.Name;
        Nichts_Abgeschnitten(*Form);
        Form->hide();
    }
}

TEST_F(Geraete_Test, a_dead_page_fails_the_programming_and_a_new_part_takes_it)
{
    Starten_Mit_Bildern();
    Eprommer_Version = 32;
    Geraet_Waehlen("29C040");
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    Antworten.Texte.clear();
    Antworten.Taste(QMessageBox::Ok);
    Schreiben(Form, "Tote_Adresse", "80000"); // the first one beyond the part
    Druecken(Form, "Schlechte_Seite");
    EXPECT_EQ(Antworten.Texte.back(), "The IC doesn't have that address.");
    Schreiben(Form, "Tote_Adresse", "0");
    Druecken(Form, "Schlechte_Seite");
    EXPECT_EQ(Wert(Form, "Wert_5"), "1");
    Form->hide();
    Antworten.Texte.clear();
    Form_Kommt("Brennmenue", [this](QWidget* w) {
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Brennen");
    });
    Taste(Qt::Key_B, Qt::ControlModifier);
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_NE(Antworten.Texte[0].find("can't be programmed successfully"), std::string::npos);
    Form->show();
    Druecken(Form, "Neuer");
    Form->hide();
    Form_Kommt("Brennmenue", [](QWidget* w) { Druecken(w, "Brennen"); });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(Antworten.Texte.size(), 1u);
    QDialog* Check = Offene("CheckIC");
    ASSERT_NE(Check, nullptr);
    Druecken(Check, "Button_OK");
}

TEST_F(Geraete_Test, a_weak_cell_is_asked_for_in_the_board_window)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    Schreiben(Form, "Tote_Adresse", "0");
    Druecken(Form, "Schwache_Zelle");
    Form->hide();
    Form_Kommt("Brennmenue", [](QWidget* w) { Druecken(w, "Brennen"); });
    Taste(Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(Versuch_Statistik[Schwache_Pulse], 1);
    QDialog* Check = Offene("CheckIC");
    ASSERT_NE(Check, nullptr);
    Druecken(Check, "Button_OK");
}

TEST_F(Geraete_Test, a_dead_cell_stops_the_programming)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    Antworten.Taste(QMessageBox::Ok);
    Schreiben(Form, "Tote_Adresse", "2000"); // the first one beyond the part
    Druecken(Form, "Tote_Zelle");
    EXPECT_EQ(Antworten.Texte.back(), "The IC doesn't have that address.");
    Schreiben(Form, "Tote_Adresse", "0");
    Druecken(Form, "Tote_Zelle");
    Form->hide();
    Form_Kommt("Brennmenue", [this](QWidget* w) {
        Antworten.Taste(QMessageBox::Ok);
        Druecken(w, "Brennen");
    });
    Antworten.Texte.clear();
    Taste(Qt::Key_B, Qt::ControlModifier);
    ASSERT_FALSE(Antworten.Texte.empty());
    EXPECT_NE(Antworten.Texte.back().find("0(dec)"), std::string::npos) << Antworten.Texte.back();
}

TEST_F(Geraete_Test, the_contents_go_into_a_file_and_back)
{
    Starten_Mit_Bildern();
    Eprom_Waehlen();
    std::string Bytes(8192, '\xFF');
    Bytes.replace(0, 3, "abc");
    Datei_Anlegen(Heim + "chip.bin", Bytes);
    QDialog* Form = Board_Oeffnen();
    ASSERT_NE(Form, nullptr);
    Datei_Kommt(Heim + "chip.bin");
    Druecken(Form, "Laden");
    EXPECT_TRUE(Wert(Form, "Wert_2").starts_with("61 62 63 FF"));
    EXPECT_EQ(Wert(Form, "Wert_3"), "0h - 2h");
    Datei_Kommt(Heim + "copy.bin");
    Druecken(Form, "Sichern");
    EXPECT_EQ(Datei_Inhalt(Heim + "copy.bin"), Bytes);
    Datei_Anlegen(Heim + "bad.bin", "short");
    Datei_Kommt(Heim + "bad.bin");
    Antworten.Taste(QMessageBox::Ok);
    Druecken(Form, "Laden");
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_FALSE(Antworten.Texte.empty());
    EXPECT_EQ(Wert(Form, "Wert_3"), "0h - 2h");
    Form->hide();
}

// --- hardware tests ---

TEST_F(Geraete_Test, the_hardware_test_shows_its_jumpers_and_can_be_given_up)
{
    Starten_Mit_Bildern();
    Version_Kommt("Wahl_Eprommer_Version", "Version_31");
    Antworten.Taste(QMessageBox::Ok);
    Antworten.Taste(QMessageBox::Ok);
    Antworten.Naechstes([this](QWidget* w) {
        QDialog* Form = Offene("Jumper");
        EXPECT_NE(Form, nullptr);
        if (Form != nullptr) {
            EXPECT_EQ(Form->windowTitle(), QStringLiteral("Jumper settings "));
            EXPECT_FALSE(Form->isActiveWindow()) << "the box would be put over the picture";
            EXPECT_TRUE(Form->testAttribute(Qt::WA_ShowWithoutActivating));
        }
        EXPECT_EQ(IC_Nummer, 610);
        auto* Box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(Box, nullptr);
        QTest::mouseClick(static_cast<QWidget*>(Box->button(QMessageBox::Cancel)), Qt::LeftButton);
    });
    Aktion("MNU_Eprommer_Test")->trigger();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(IC_Nummer, -1);
    EXPECT_EQ(Offene("Jumper"), nullptr);
}

} // namespace
} // namespace varnholt::test
