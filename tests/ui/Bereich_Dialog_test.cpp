// The dialogs of the area operations, with real keys and clicks.
#include "Such_Welt.h"
#include "editors/Bereiche.h"
#include "editors/Hexedit.h"

#include <QRadioButton>

namespace varnholt::test {
namespace {

class Bereich_Dialog_Test : public Suchform_Test {
protected:
    Bereich_Dialog_Test() { Starten("E", Modus_Hex); }

    // Opens a dialog by its menu entry; the user does that in it, and aborts.
    template <class F> void Im_Dialog(const char* Eintrag, F Tun)
    {
        Antworten.Naechstes([this, Tun](QWidget* w) {
            Dialog = w;
            QApplication::processEvents(); // it becomes the active window
            Tun();
            w->close();
            Dialog = nullptr;
        });
        Aktion(Eintrag)->trigger();
        Ruhe();
        EXPECT_TRUE(Antworten.Fertig());
    }
    template <class Art = QLineEdit> Art* Im(const char* Name) const
    {
        auto* t = Dialog->findChild<Art*>(QString::fromUtf8(Name));
        EXPECT_NE(t, nullptr) << Name;
        return t;
    }
    // Replaces what stands in a field.
    void Eingeben(const char* Name, const char* Text) const
    {
        QLineEdit* f = Im(Name);
        f->setFocus();
        f->selectAll();
        QTest::keyClicks(f, QString::fromUtf8(Text));
    }
    std::string Text(const char* Name) const { return Nach_Std(Im(Name)->text()); }
    void        OK() const { QTest::mouseClick(Im<QPushButton>("C_OK"), Qt::LeftButton); }

    QWidget* Dialog = nullptr;
};

TEST_F(Bereich_Dialog_Test, fields_of_a_pair_follow_each_other_as_they_are_typed)
{
    Im_Dialog("MNU_Ber_Kopieren", [this] {
        EXPECT_EQ(Dialog->objectName(), QStringLiteral("Bereich_Kopieren"));
        EXPECT_TRUE(Im("Copy_Start_Hex")->hasFocus());
        Eingeben("Copy_End_Hex", "1fF");
        EXPECT_EQ(Text("Copy_End_Hex"), "1fF");
        EXPECT_EQ(Text("Copy_End_Dez"), "511");
        Eingeben("Copy_Start_Dez", "256");
        EXPECT_EQ(Text("Copy_Start_Dez"), "256");
        EXPECT_EQ(Text("Copy_Start_Hex"), "100");
        Eingeben("Insert_Start_Dez", "abc");
        EXPECT_EQ(Text("Insert_Start_Dez"), "0");
    });
}
TEST_F(Bereich_Dialog_Test, typing_1G_into_a_hexadecimal_field_keeps_1)
{
    Im_Dialog("MNU_Ber_entfernen", [this] {
        Eingeben("Copy_End_Hex", "1G");
        EXPECT_EQ(Text("Copy_End_Hex"), "1");
        EXPECT_EQ(Text("Copy_End_Dez"), "1");
        Eingeben("Copy_End_Hex", "aFxyz -.9");
        EXPECT_EQ(Text("Copy_End_Hex"), "aF9");
        QTest::keyClick(Im("Copy_End_Hex"), Qt::Key_Backspace);
        EXPECT_EQ(Text("Copy_End_Hex"), "aF");
        EXPECT_EQ(Text("Copy_End_Dez"), "175");
    });
}
TEST_F(Bereich_Dialog_Test, the_caret_stays_where_it_was)
{
    Im_Dialog("MNU_Ber_entfernen", [this] {
        Eingeben("Copy_End_Hex", "1234");
        Im("Copy_End_Hex")->setCursorPosition(1);
        QTest::keyClicks(Im("Copy_End_Hex"), QStringLiteral("f"));
        EXPECT_EQ(Text("Copy_End_Hex"), "1f234");
        EXPECT_EQ(Im("Copy_End_Hex")->cursorPosition(), 2);
        Eingeben("Copy_End_Dez", "1234");
        Im("Copy_End_Dez")->setCursorPosition(2);
        QTest::keyClicks(Im("Copy_End_Dez"), QStringLiteral("9"));
        EXPECT_EQ(Text("Copy_End_Dez"), "12934");
        EXPECT_EQ(Im("Copy_End_Dez")->cursorPosition(), 3);
    });
}
TEST_F(Bereich_Dialog_Test, a_decimal_field_that_is_emptied_can_be_typed_into_again)
{
    Im_Dialog("MNU_Ber_entfernen", [this] {
        Eingeben("Copy_End_Dez", "7");
        QTest::keyClick(Im("Copy_End_Dez"), Qt::Key_Backspace);
        EXPECT_EQ(Text("Copy_End_Dez"), "0");
        QTest::keyClicks(Im("Copy_End_Dez"), QStringLiteral("12"));
        EXPECT_EQ(Text("Copy_End_Dez"), "12");
    });
}
TEST_F(Bereich_Dialog_Test, OK_is_disabled_while_the_start_is_above_the_end)
{
    Im_Dialog("MNU_Ber_setzen", [this] {
        EXPECT_TRUE(Im<QPushButton>("C_OK")->isEnabled());
        Eingeben("Copy_Start_Hex", "2");
        EXPECT_FALSE(Im<QPushButton>("C_OK")->isEnabled());
        OK();
        Eingeben("Copy_End_Dez", "2");
        EXPECT_TRUE(Im<QPushButton>("C_OK")->isEnabled());
    });
    EXPECT_EQ(Letztes_Byte(), -1);
}
TEST_F(Bereich_Dialog_Test, set_with_256_typed_shows_255_and_fills_with_it)
{
    Hex_Daten[1] = 0;
    Im_Dialog("MNU_Ber_setzen", [this] {
        EXPECT_EQ(Dialog->objectName(), QStringLiteral("Bereich_Setzen"));
        Eingeben("Copy_End_Dez", "3");
        Eingeben("Insert_Start_Dez", "256");
        EXPECT_EQ(Text("Insert_Start_Dez"), "255");
        EXPECT_EQ(Text("Insert_Start_Hex"), "FF");
        OK();
        EXPECT_EQ(Hex_Daten[1], 0xFF);
        Eingeben("Insert_Start_Hex", "5A");
        QTest::keyClick(Im("Insert_Start_Hex"), Qt::Key_Return);
        EXPECT_EQ(Hex_Daten[3], 0x5A);
        EXPECT_TRUE(Dialog->isVisible());
    });
    EXPECT_EQ(Hex_Feld.substr(0, 15), "5A 5A 5A 5A FF ");
    EXPECT_FALSE(Fenster->Formular_Sichtbar(Formular::F_Bereich_setzen));
}
TEST_F(Bereich_Dialog_Test, the_radio_buttons_and_their_headings_choose_between_the_targets)
{
    Im_Dialog("MNU_Ber_Kopieren", [this] {
        const auto Pruefen = [&](bool Ueber) {
            EXPECT_EQ(Im("Insert_Start_Hex")->isEnabled(), !Ueber);
            EXPECT_EQ(Im("Insert_Start_Dez")->isEnabled(), !Ueber);
            for (const char* Name :
                 {"Paste_Start_Hex", "Paste_Start_Dez", "Paste_End_Hex", "Paste_End_Dez"})
                EXPECT_EQ(Im(Name)->isEnabled(), Ueber) << Name;
        };
        Pruefen(false);
        QTest::mouseClick(Im<QRadioButton>("O_Kopie_Überschreiben"), Qt::LeftButton);
        Pruefen(true);
        QTest::mouseClick(Im<QLabel>("Kopf_Einfügen"), Qt::LeftButton);
        Pruefen(false);
        EXPECT_TRUE(Im<QRadioButton>("O_Kopie_Einfügen")->isChecked());
        Im<QRadioButton>("O_Kopie_Einfügen")->setFocus();
        QTest::keyClick(Im<QRadioButton>("O_Kopie_Einfügen"), Qt::Key_Down);
        Pruefen(true);
    });
}
TEST_F(Bereich_Dialog_Test, a_copy_overwrites_and_inserts)
{
    Hex_Daten[0x100] = 0x5A;
    Im_Dialog("MNU_Ber_Kopieren", [this] {
        Eingeben("Copy_Start_Hex", "100");
        Eingeben("Copy_End_Hex", "100");
        OK(); // inserts at 0
        EXPECT_EQ(Hex_Daten[0], 0x5A);
        EXPECT_EQ(Hex_Daten[0x101], 0x5A);
        QTest::mouseClick(Im<QRadioButton>("O_Kopie_Überschreiben"), Qt::LeftButton);
        Eingeben("Copy_Start_Dez", "0");
        Eingeben("Paste_Start_Hex", "10");
        Eingeben("Paste_End_Hex", "1F");
        OK();
        EXPECT_EQ(Hex_Daten[0x10], 0x5A);
        EXPECT_EQ(Hex_Daten[0x11], 0xFF);
        QTest::mouseClick(Im<QPushButton>("C_Abort"), Qt::LeftButton);
        EXPECT_FALSE(Dialog->isVisible());
    });
}
TEST_F(Bereich_Dialog_Test, remove_takes_the_range_out)
{
    Hex_Daten[0x20] = 0x5A;
    Im_Dialog("MNU_Ber_entfernen", [this] {
        EXPECT_EQ(Dialog->objectName(), QStringLiteral("Bereich_entfernen"));
        Eingeben("Copy_End_Hex", "1F");
        OK();
    });
    EXPECT_EQ(Hex_Daten[0], 0x5A);
    EXPECT_TRUE(Datei_Geaendert);
}
TEST_F(Bereich_Dialog_Test, on_refusal_no_dialog_opens)
{
    Edit()->Text_Setzen("NOP\r\n");
    Text_Aktuell = true;
    Antworten.Taste(QMessageBox::No);
    Aktion("MNU_Ber_setzen")->trigger();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Antworten.Texte.size(), 1u);
}
TEST_F(Bereich_Dialog_Test, the_dialogs_stand_in_both_languages_and_nothing_is_cut_off)
{
    for (const bool Deutsch : {true, false}) {
        Sprache = Deutsch ? "D" : "E";
        for (const char* Eintrag : {"MNU_Ber_Kopieren", "MNU_Ber_setzen", "MNU_Ber_entfernen"})
            Im_Dialog(Eintrag, [this, Deutsch] {
                EXPECT_EQ(Nach_Std(Dialog->windowTitle()), Bereich::Text("Titel"));
                EXPECT_EQ(Nach_Std(Im<QLabel>("Kopf")->text()), Bereich::Text("Kopf"));
                EXPECT_EQ(Im<QPushButton>("C_Abort")->text(),
                          Deutsch ? QStringLiteral("Abbrechen") : QStringLiteral("Abort"));
                Nichts_Abgeschnitten(*Dialog);
                for (const char* Name :
                     {"Kopf", "Kopf_Einfügen", "Kopf_Überschreiben", "Kopf_Wert"})
                    if (const auto* Kopf = Dialog->findChild<QLabel*>(QString::fromUtf8(Name))) {
                        const QString Erster = Kopf->text().section(QStringLiteral("  "), 0, 0);
                        EXPECT_LT(Kopf->x() + Kopf->fontMetrics().horizontalAdvance(Erster) + 4,
                                  Im("Copy_Start_Hex")->x())
                            << Name;
                    }
            });
    }
}

} // namespace
} // namespace varnholt::test
