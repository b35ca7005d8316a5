// The dialog `Optionen` with real clicks and keys on the scripted world.
#include "core/options.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "support/scripted_platform.h"
#include "ui/Optionen_Dialog.h"
#include "ui/Qt_Text.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace varnholt::test {
namespace {

class Optionen_Fenster : public Welt {
protected:
    Optionen_Fenster() { Port_Art = "sim"; }
    void Oeffnen()
    {
        Optionen_Laden();
        Dialog_Fenster = std::make_unique<Optionen_Dialog>();
        Dialog_Fenster->show();
    }
    template <class Art> Art* Teil(const char* Name) const
    {
        Art* t = Dialog_Fenster->findChild<Art*>(QString::fromUtf8(Name));
        EXPECT_NE(t, nullptr) << Name;
        return t;
    }
    // Brings the page of a control to the front, as a user does before the click.
    void Vorholen(const QWidget* Feld) const
    {
        auto* Reiter = Teil<QTabWidget>("SSTab");
        for (int i = 0; i < Reiter->count(); ++i)
            if (Reiter->widget(i)->isAncestorOf(Feld))
                Reiter->setCurrentIndex(i);
    }
    void Klicken(const char* Name) const
    {
        auto* Knopf = Teil<QAbstractButton>(Name);
        Vorholen(Knopf);
        ASSERT_TRUE(Knopf->isVisible()) << Name;
        const QPoint Ort(10, Knopf->height() / 2);
        QTest::mouseClick(Knopf, Qt::LeftButton, Qt::NoModifier, Ort);
    }
    QString Beschriftung(std::string_view Name) const { return Qt_Text(Optionen_Text(Name)); }

    std::unique_ptr<Optionen_Dialog> Dialog_Fenster{};
};

TEST_F(Optionen_Fenster, every_check_box_shows_and_stores_its_flag)
{
    for (const Haken_Eintrag_T& e : Haken_Tabelle)
        for (const bool Vorher : {false, true}) {
            *e.Wert = Vorher;
            Oeffnen();
            const std::string Name(e.Name);
            EXPECT_EQ(Teil<QCheckBox>(Name.c_str())->isChecked(), Vorher) << Name;
            Klicken(Name.c_str());
            EXPECT_EQ(*e.Wert, Vorher) << Name << " before OK";
            Klicken("B_OK");
            EXPECT_EQ(*e.Wert, !Vorher) << Name;
            EXPECT_FALSE(Dialog_Fenster->isVisible());
        }
}

TEST_F(Optionen_Fenster, the_option_groups_show_and_store_their_items)
{
    O_Automatik_Bef = 1;
    Zahlendeutung   = true;
    O_MOV_ZQ        = false;
    Oeffnen();
    EXPECT_TRUE(Teil<QRadioButton>("O_Automatik_Bef_2")->isChecked());
    EXPECT_TRUE(Teil<QRadioButton>("Zahlendeutung_2")->isChecked());
    EXPECT_TRUE(Teil<QRadioButton>("O_MOV_ZQ_2")->isChecked());
    Klicken("O_Automatik_Bef_3");
    Klicken("Zahlendeutung_1");
    Klicken("O_MOV_ZQ_1");
    Klicken("B_OK");
    EXPECT_EQ(O_Automatik_Bef, 2);
    EXPECT_FALSE(Zahlendeutung);
    EXPECT_TRUE(O_MOV_ZQ);
    Oeffnen();
    Klicken("O_Automatik_Bef_1");
    Klicken("B_OK");
    EXPECT_EQ(O_Automatik_Bef, 0);
}

TEST_F(Optionen_Fenster, the_undo_steps_are_held_within_0_and_999_while_typing)
{
    Oeffnen();
    auto* Feld = Teil<QLineEdit>("T_Undo_Max");
    EXPECT_EQ(Feld->text(), QStringLiteral("100"));
    Feld->selectAll();
    QTest::keyClicks(Feld, QStringLiteral("99"));
    EXPECT_EQ(Feld->text(), QStringLiteral("99"));
    QTest::keyClicks(Feld, QStringLiteral("99"));
    EXPECT_EQ(Feld->text(), QStringLiteral("999"));
    Feld->selectAll();
    QTest::keyClick(Feld, Qt::Key_Delete);
    EXPECT_EQ(Feld->text(), QStringLiteral("0"));
    QTest::keyClicks(Feld, QStringLiteral("7x"));
    EXPECT_EQ(Feld->text(), QStringLiteral("7"));
    Feld->selectAll();
    QTest::keyClicks(Feld, QStringLiteral("-5"));
    EXPECT_EQ(Feld->text(), QStringLiteral("5"));
    Klicken("B_OK");
    EXPECT_EQ(Undo_Max, 4);
}

TEST_F(Optionen_Fenster, the_port_address_is_typed_in_hexadecimal)
{
    Oeffnen();
    auto* Feld = Teil<QLineEdit>("T_Portadr");
    Vorholen(Feld);
    EXPECT_EQ(Feld->text(), QStringLiteral("378h"));
    Feld->selectAll();
    QTest::keyClicks(Feld, QStringLiteral("278h"));
    EXPECT_EQ(Port_Basis, 0x378);
    Klicken("B_Üb");
    EXPECT_EQ(Port_Basis, 0x278);
    EXPECT_TRUE(Dialog_Fenster->isVisible());
}

TEST_F(Optionen_Fenster, the_kind_of_port_is_chosen_and_its_device_is_typed)
{
    Port_Art = "ppdev:/dev/parport1";
    Oeffnen();
    auto* Feld = Teil<QLineEdit>("T_Geraet");
    EXPECT_TRUE(Teil<QRadioButton>("Port_Art_2")->isChecked());
    EXPECT_EQ(Feld->text(), QStringLiteral("/dev/parport1"));
    EXPECT_TRUE(Feld->isEnabled());
    Klicken("Port_Art_1");
    EXPECT_FALSE(Feld->isEnabled());
    Klicken("B_OK");
    EXPECT_EQ(Port_Art, "sim");
}

TEST_F(Optionen_Fenster, a_chosen_font_shows_on_its_sample_and_is_applied_by_Accept)
{
    Oeffnen();
    Dialog.Schriften = {Schrift_T{"Monospace", true, false, 15}};
    Klicken("Schrift_2");
    auto* Probe = Teil<QLabel>("Probe_2");
    EXPECT_EQ(Probe->font().pointSizeF(), 15);
    EXPECT_TRUE(Probe->font().bold());
    EXPECT_TRUE(Probe->text().contains(QStringLiteral("15")));
    EXPECT_NE(Teil<QLabel>("Probe_1")->font().pointSizeF(), 15);
    EXPECT_EQ(Schriften[Schrift_Spr], Schrift_T{});
    Klicken("B_Üb");
    EXPECT_EQ(Schriften[Schrift_Spr], (Schrift_T{"Monospace", true, false, 15}));
    EXPECT_EQ(Fenster.Zu(Fenster_Spr).Schrift.Groesse, 15);
}

TEST_F(Optionen_Fenster, a_cancelled_font_dialog_was_preset_and_leaves_the_default)
{
    Oeffnen();
    Klicken("Schrift_1");
    ASSERT_EQ(Dialog.Schrift_Gefragt.size(), 1u);
    EXPECT_FALSE(Dialog.Schrift_Gefragt[0].Name.empty());
    EXPECT_GT(Dialog.Schrift_Gefragt[0].Groesse, 0);
    Klicken("B_OK");
    EXPECT_EQ(Schriften[Schrift_Edit], Schrift_T{});
}

TEST_F(Optionen_Fenster, a_colour_shows_at_once_and_Cancel_puts_the_old_one_back)
{
    Oeffnen();
    Dialog.Farben = {0x332211};
    Klicken("Farbe");
    EXPECT_EQ(Fenster.Hintergruende, std::vector<std::int32_t>{0x332211});
    EXPECT_EQ(Teil<QFrame>("Farb_Probe")->palette().color(QPalette::Window),
              QColor(0x11, 0x22, 0x33));
    Klicken("B_Ab");
    EXPECT_EQ(Fenster.Hintergruende.back(), 0xFFFFFF);
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    EXPECT_FALSE(Dialog_Fenster->isVisible());
}

TEST_F(Optionen_Fenster, Cancel_Escape_and_the_close_box_change_nothing)
{
    for (int Weg = 0; Weg < 3; ++Weg) {
        Oeffnen();
        for (const Haken_Eintrag_T& e : Haken_Tabelle)
            Klicken(std::string(e.Name).c_str());
        Klicken("Zahlendeutung_2");
        Teil<QLineEdit>("T_Undo_Max")->setText(QStringLiteral("5"));
        const Optionen_T Vorher = Optionen_Werte;
        if (Weg == 0)
            Klicken("B_Ab");
        else if (Weg == 1)
            QTest::keyClick(Dialog_Fenster.get(), Qt::Key_Escape);
        else
            Dialog_Fenster->close();
        EXPECT_FALSE(Dialog_Fenster->isVisible());
        EXPECT_EQ(Undo_Max, 99);
        EXPECT_EQ(Zahlendeutung, Vorher.Zahlendeutung);
        EXPECT_TRUE(C_Brenner && Lade_Letzte && !C_keine_US_SM);
        EXPECT_EQ(Fenster.Hintergruende.size(), static_cast<std::size_t>(Weg + 1));
    }
}

TEST_F(Optionen_Fenster, Enter_is_OK)
{
    Oeffnen();
    auto* Feld = Teil<QLineEdit>("T_Undo_Max");
    Feld->setFocus();
    Feld->selectAll();
    QTest::keyClicks(Feld, QStringLiteral("12"));
    QTest::keyClick(Feld, Qt::Key_Return);
    EXPECT_FALSE(Dialog_Fenster->isVisible());
    EXPECT_EQ(Undo_Max, 11);
}

TEST_F(Optionen_Fenster, a_check_box_is_ticked_by_a_click_on_its_last_line_and_by_the_blank_key)
{
    Oeffnen();
    auto* Feld = Teil<QCheckBox>("C_keine_US_SM");
    QTest::mouseClick(Feld, Qt::LeftButton, Qt::NoModifier, QPoint(60, Feld->height() - 4));
    EXPECT_TRUE(Feld->isChecked());
    Feld->setFocus();
    QTest::keyClick(Feld, Qt::Key_Space);
    EXPECT_FALSE(Feld->isChecked());
}

TEST_F(Optionen_Fenster, the_captions_are_those_of_the_language)
{
    for (const char* s : {"D", "E"}) {
        Sprache = s;
        Oeffnen();
        EXPECT_EQ(Dialog_Fenster->windowTitle(), Beschriftung("Optionen"));
        auto* Reiter = Teil<QTabWidget>("SSTab");
        ASSERT_EQ(Reiter->count(), 2);
        EXPECT_EQ(Reiter->tabText(0), Beschriftung("SSTab_1"));
        EXPECT_EQ(Reiter->tabText(1), Beschriftung("SSTab_2"));
        for (const Haken_Eintrag_T& e : Haken_Tabelle)
            EXPECT_EQ(Teil<QCheckBox>(std::string(e.Name).c_str())->text(), Beschriftung(e.Name));
        for (const char* Name : {"B_OK",
                                 "B_Üb",
                                 "B_Ab",
                                 "Farbe",
                                 "O_Automatik_Bef_1",
                                 "Zahlendeutung_2",
                                 "O_MOV_ZQ_1",
                                 "Port_Art_3"})
            EXPECT_EQ(Teil<QAbstractButton>(Name)->text(), Beschriftung(Name));
        for (const char* Name : {"O_Automatik_Bef", "Zahlendeutung", "O_MOV_ZQ"})
            EXPECT_EQ(Teil<QGroupBox>(Name)->title(), Beschriftung(Name));
        for (const char* Name : {"T_Portadr", "T_Undo_Max", "Schrift_1", "Schrift_2", "Schrift_3"})
            EXPECT_EQ(Teil<QWidget>(Name)->accessibleName(), Beschriftung(Name));
    }
}

TEST_F(Optionen_Fenster, nothing_is_cut_off_in_both_languages)
{
    for (const char* s : {"D", "E"}) {
        Sprache = s;
        Oeffnen();
        auto* Reiter = Teil<QTabWidget>("SSTab");
        for (int i = 0; i < Reiter->count(); ++i) {
            Reiter->setCurrentIndex(i);
            QTest::qWait(1);
            for (const QWidget* w : Reiter->widget(i)->findChildren<QWidget*>()) {
                if (!w->isVisible() || w->parentWidget()->inherits("QScrollBar"))
                    continue;
                if (w->sizePolicy().hasHeightForWidth()) {
                    EXPECT_GE(w->height(), w->heightForWidth(w->width()))
                        << s << " " << Nach_Std(w->objectName());
                } else if (w->inherits("QRadioButton")) {
                    EXPECT_GE(w->width(), w->sizeHint().width()) << Nach_Std(w->objectName());
                }
            }
        }
        EXPECT_LE(Dialog_Fenster->width(), 1240);
        EXPECT_LE(Dialog_Fenster->height(), 740);
    }
}

} // namespace
} // namespace varnholt::test
