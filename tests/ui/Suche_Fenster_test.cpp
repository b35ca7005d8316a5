// The form `Suche`, with real keys and clicks.
#include "ui/Suche_Fenster.h"

#include "Such_Welt.h"
#include "editors/Suche.h"

#include <QCheckBox>

namespace varnholt::test {
namespace {

class Suche_Fenster_Test : public Suchform_Test {
protected:
    Suche_Fenster_Test()
    {
        Starten();
        Text_Laden("Mark: MOV A,B ; mov\r\n NOP\r\n MOV C,D\r\n");
    }
    QLineEdit* Feld(const char* Name) const { return Teil<QLineEdit>("Suche", Name); }
    QWidget*   Knopf(const char* Name) const { return Teil("Suche", Name); }
};

// --- keys ---

TEST_F(Suche_Fenster_Test, ctrl_F_opens_the_form_with_the_focus_in_the_term)
{
    QWidget* f = Oeffnen("Suche");
    EXPECT_TRUE(Feld("Suchbegriff")->hasFocus());
    EXPECT_EQ(f->windowType(), Qt::Tool); // stays above the main window
    EXPECT_EQ(f->parentWidget(), Fenster.get());
    EXPECT_FALSE(f->isModal());
}
TEST_F(Suche_Fenster_Test, enter_in_the_term_searches_and_goes_to_the_button_which_searches_on)
{
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "mov");
    Taste_An(Feld("Suchbegriff"), Qt::Key_Return);
    EXPECT_TRUE(Knopf("Suchen_OK")->hasFocus());
    EXPECT_EQ(Edit()->Auswahl(), (Textstelle_T{6, 3}));
    Taste_An(Knopf("Suchen_OK"), Qt::Key_Return);
    EXPECT_EQ(Edit()->Auswahl(), (Textstelle_T{16, 3}));
    Taste_An(Knopf("Suchen_OK"), Qt::Key_Space);
    EXPECT_EQ(Edit()->Auswahl(), (Textstelle_T{28, 3}));
    Klick(Knopf("Suchen_OK"));
    EXPECT_EQ(Edit()->Auswahl(), (Textstelle_T{6, 3}));
    EXPECT_TRUE(Form("Suche")->isVisible());
}
TEST_F(Suche_Fenster_Test, F3_searches_from_every_control_and_from_the_text)
{
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "mov");
    std::vector<std::int64_t> Orte;
    for (const char* Name :
         {"Suchbegriff", "Check1", "Check2", "Ersetzen_durch", "Suchen_OK", "Suchen_Abbrechen"}) {
        if (Name == std::string("Check1"))
            Knopf(Name)->setFocus();
        Taste_An(Knopf(Name), Qt::Key_F3);
        Orte.push_back(Edit()->Auswahl().Anfang);
    }
    EXPECT_EQ(Orte, (std::vector<std::int64_t>{6, 16, 28, 6, 16, 28}));
    Fenster->activateWindow();
    Edit()->setFocus();
    Taste(Qt::Key_F3);
    EXPECT_EQ(Edit()->Auswahl().Anfang, 6);
    Form("Suche")->hide();
    Taste(Qt::Key_F3);
    EXPECT_EQ(Edit()->Auswahl().Anfang, 6); // the form isn't there
}
TEST_F(Suche_Fenster_Test, enter_in_the_other_fields_searches_once)
{
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "mov");
    Knopf("Check1")->setFocus();
    Taste_An(Knopf("Check1"), Qt::Key_Return);
    EXPECT_EQ(Edit()->Auswahl().Anfang, 6);
    Feld("Ersetzen_durch")->setFocus();
    Taste_An(Feld("Ersetzen_durch"), Qt::Key_Return);
    EXPECT_EQ(Edit()->Auswahl().Anfang, 16);
    EXPECT_FALSE(Suche_Form.Check3); // no key that writes
}
TEST_F(Suche_Fenster_Test, escape_the_button_and_the_close_box_hide_the_form_which_keeps_its_texts)
{
    for (int Art = 0; Art < 3; ++Art) {
        QWidget* f = Oeffnen("Suche");
        Feld("Suchbegriff")->clear();
        Text_An(Feld("Suchbegriff"), "abc");
        if (Art == 0)
            Taste_An(Feld("Suchbegriff"), Qt::Key_Escape);
        else if (Art == 1)
            Klick(Knopf("Suchen_Abbrechen"));
        else
            f->close();
        EXPECT_FALSE(f->isVisible());
        EXPECT_EQ(Feld("Suchbegriff")->text(), QStringLiteral("abc"));
    }
    Oeffnen("Suche");
    EXPECT_EQ(Feld("Suchbegriff")->selectedText(), QStringLiteral("abc"));
}
TEST_F(Suche_Fenster_Test, the_form_stays_where_the_user_puts_it)
{
    QWidget* f = Oeffnen("Suche");
    f->move(123, 234);
    Taste_An(Feld("Suchbegriff"), Qt::Key_Escape);
    EXPECT_EQ(Oeffnen("Suche")->pos(), QPoint(123, 234));
}
TEST_F(Suche_Fenster_Test, an_empty_term_gets_the_focus)
{
    Oeffnen("Suche");
    Knopf("Suchen_OK")->setFocus();
    Taste_An(Knopf("Suchen_OK"), Qt::Key_Return);
    EXPECT_TRUE(Feld("Suchbegriff")->hasFocus());
}
TEST_F(Suche_Fenster_Test, keys_that_edit_the_text_dont_reach_it_from_the_form)
{
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "mov");
    Taste_An(Feld("Suchbegriff"), Qt::Key_Return);
    const std::string Vorher = Edit()->Text();
    ASSERT_EQ(Auswahl(), "MOV");
    Taste_An(Knopf("Suchen_OK"), Qt::Key_Delete);
    Taste_An(Knopf("Suchen_OK"), Qt::Key_X, Qt::ControlModifier);
    Taste_An(Knopf("Suchen_OK"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), Vorher);
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Suche_Fenster_Test, undo_and_redo_by_keys_are_the_fields_and_never_the_sources)
{
    Edit()->setFocus();
    Tippen("; one\n; two\n");
    Aktion("MNU_Undo")->trigger(); // there is something to be redone, too
    Fenster->Nachziehen();
    ASSERT_TRUE(Aktion("MNU_Undo")->isEnabled() && Aktion("MNU_Redo")->isEnabled());
    const std::string Vorher = Edit()->Text();
    Oeffnen("Suche");
    for (const char* Name : {"Suchbegriff", "Ersetzen_durch"}) {
        QLineEdit* f = Feld(Name);
        f->setFocus();
        f->clear();
        f->setModified(false);
        Text_An(f, "mov");
        Taste_An(f, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(f->text(), QString()) << Name;
        Taste_An(f, Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(f->text(), QStringLiteral("mov")) << Name;
        Taste_An(f, Qt::Key_Y, Qt::ControlModifier); // nothing is left
        for (int i = 0; i < 5; ++i)
            Taste_An(f, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Edit()->Text(), Vorher) << Name;
    }
    Taste_An(Knopf("Suchen_OK"), Qt::Key_Z, Qt::ControlModifier);
    Taste_An(Knopf("Suchen_OK"), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), Vorher);
}

// --- messages ---

TEST_F(Suche_Fenster_Test, the_form_makes_way_for_the_message_and_comes_back)
{
    QWidget* f        = Oeffnen("Suche");
    bool     Verdeckt = true;
    Antworten.Naechstes([&](QWidget* w) {
        Verdeckt = f->isVisible();
        QTest::keyClick(w, Qt::Key_Return);
    });
    Text_An(Feld("Suchbegriff"), "nothing");
    Taste_An(Feld("Suchbegriff"), Qt::Key_Return);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Antworten.Texte, (std::vector<std::string>{"Not found!"}));
    EXPECT_FALSE(Verdeckt);
    EXPECT_TRUE(f->isVisible());
    EXPECT_FALSE(Text_Sperre);
}
TEST_F(Suche_Fenster_Test, replace_all_tells_the_number)
{
    Oeffnen("Suche");
    Antworten.Taste(QMessageBox::Ok);
    Text_An(Feld("Suchbegriff"), "MOV");
    Text_An(Feld("Ersetzen_durch"), "ADD");
    Klick(Knopf("B_AlleErsetzen"));
    EXPECT_EQ(Antworten.Texte,
              (std::vector<std::string>{"The search string was found and replaced 3 times!"}));
    EXPECT_TRUE(Form("Suche")->isVisible());
}

// --- replace ---

TEST_F(Suche_Fenster_Test, a_key_in_the_replacement_ticks_its_box_and_enables_the_buttons)
{
    Oeffnen("Suche");
    auto* Haken = Teil<QCheckBox>("Suche", "Check3");
    EXPECT_FALSE(Haken->isChecked());
    EXPECT_FALSE(Knopf("B_Ersetzen")->isEnabled());
    EXPECT_FALSE(Knopf("B_AlleErsetzen")->isEnabled());
    const QColor Matt = Feld("Ersetzen_durch")->palette().color(QPalette::Text);
    Text_An(Feld("Ersetzen_durch"), "x");
    EXPECT_TRUE(Haken->isChecked());
    EXPECT_TRUE(Knopf("B_Ersetzen")->isEnabled());
    EXPECT_TRUE(Knopf("B_AlleErsetzen")->isEnabled());
    EXPECT_NE(Feld("Ersetzen_durch")->palette().color(QPalette::Text), Matt);
    Klick(Haken);
    EXPECT_FALSE(Knopf("B_Ersetzen")->isEnabled());
    EXPECT_FALSE(Knopf("B_AlleErsetzen")->isEnabled());
    Taste_An(Feld("Ersetzen_durch"), Qt::Key_Backspace);
    EXPECT_TRUE(Haken->isChecked());
    Klick(Haken);
    Feld("Ersetzen_durch")->setText(QStringLiteral("pasted"));
    EXPECT_TRUE(Haken->isChecked());
}
TEST_F(Suche_Fenster_Test, replace_goes_from_hit_to_hit_and_undo_brings_the_text_back)
{
    const std::string Vorher = Edit()->Text();
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "MOV");
    Text_An(Feld("Ersetzen_durch"), "ADD");
    Klick(Teil("Suche", "Check2"));
    Klick(Knopf("B_Ersetzen"));
    EXPECT_EQ(Edit()->Text(), "Mark: ADD A,B ; mov\r\n NOP\r\n MOV C,D\r\n");
    EXPECT_EQ(Edit()->Auswahl(), (Textstelle_T{28, 3}));
    EXPECT_TRUE(Datei_Geaendert);
    Klick(Knopf("B_Ersetzen"));
    EXPECT_EQ(Edit()->Text(), "Mark: ADD A,B ; mov\r\n NOP\r\n ADD C,D\r\n");
    Aktion("MNU_Undo")->trigger();
    Aktion("MNU_Undo")->trigger();
    EXPECT_EQ(Edit()->Text(), Vorher);
}
TEST_F(Suche_Fenster_Test, replace_all_keeps_colours_and_undo_brings_text_and_colours_back)
{
    const std::string Vorher = Edit()->Text();
    const auto        Farben = Edit()->Farben({0, Edit()->Laenge()});
    ASSERT_EQ(Farben.size(), 2u); // a jumpmark and a comment
    Oeffnen("Suche");
    Antworten.Taste(QMessageBox::Ok);
    Text_An(Feld("Suchbegriff"), "a");
    Text_An(Feld("Ersetzen_durch"), "zz");
    Klick(Knopf("B_AlleErsetzen"));
    EXPECT_EQ(Edit()->Text(), "Mzzrk: MOV zz,B ; mov\r\n NOP\r\n MOV C,D\r\n");
    EXPECT_EQ(Edit()->Farben({0, Edit()->Laenge()}),
              (std::vector<Farbstelle_T>{{0, 6, 0xDD1111}, {16, 5, 0x119911}}));
    EXPECT_EQ(Edit()->textCursor().position(), 13);
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_TRUE(Text_Veraendert);
    Aktion("MNU_Undo")->trigger();
    EXPECT_EQ(Edit()->Text(), Vorher);
    EXPECT_EQ(Edit()->Farben({0, Edit()->Laenge()}), Farben);
    Aktion("MNU_Redo")->trigger();
    EXPECT_EQ(Edit()->Text(), "Mzzrk: MOV zz,B ; mov\r\n NOP\r\n MOV C,D\r\n");
}
TEST_F(Suche_Fenster_Test, characters_outside_the_code_page_live_through_a_replace_all)
{
    Text_Laden("; a → ? 😀 a\r\n");
    Oeffnen("Suche");
    Antworten.Taste(QMessageBox::Ok);
    Text_An(Feld("Suchbegriff"), "?");
    Text_An(Feld("Ersetzen_durch"), "→!");
    Klick(Knopf("B_AlleErsetzen"));
    EXPECT_EQ(Edit()->Text_UTF8(), "; a → →! 😀 a\r\n");
    EXPECT_EQ(Edit()->Farben({0, Edit()->Laenge()}),
              (std::vector<Farbstelle_T>{{0, Edit()->Laenge() - 2, 0x119911}}));
}
TEST_F(Suche_Fenster_Test, a_search_handles_no_changed_line_but_the_next_move_of_the_user_does)
{
    Text_Laden("\r\nxy\r\n xy");
    Edit()->setFocus();
    Tippen(" mov a,b");
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "xy");
    Taste_An(Feld("Suchbegriff"), Qt::Key_Return);
    EXPECT_EQ(Auswahl(), "xy");
    EXPECT_EQ(Edit()->Text(), " mov a,b\r\nxy\r\n xy");
    Fenster->activateWindow();
    Edit()->setFocus();
    Taste(Qt::Key_Down);
    EXPECT_EQ(Edit()->Text(), " MOV A,b\r\nxy\r\n xy");
}
TEST_F(Suche_Fenster_Test, in_a_debugger_session_the_replace_controls_are_off_and_come_back)
{
    Oeffnen("Suche");
    Text_An(Feld("Suchbegriff"), "mov");
    Text_An(Feld("Ersetzen_durch"), "x");
    Debugger_Aktiv = true;
    Ruhe();
    for (const char* Name : {"Check3", "Ersetzen_durch", "B_Ersetzen", "B_AlleErsetzen"})
        EXPECT_FALSE(Knopf(Name)->isEnabled()) << Name;
    Klick(Knopf("Suchen_OK"));
    EXPECT_EQ(Auswahl(), "MOV");
    Debugger_Aktiv = false;
    Ruhe();
    for (const char* Name : {"Check3", "Ersetzen_durch", "B_Ersetzen", "B_AlleErsetzen"})
        EXPECT_TRUE(Knopf(Name)->isEnabled()) << Name;
}

// --- language and mode ---

TEST_F(Suche_Fenster_Test, the_captions_follow_a_change_of_language_while_the_form_is_open)
{
    QWidget* f = Oeffnen("Suche");
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Search / Replace"));
    Nichts_Abgeschnitten(*f);
    Aktion("MNU_Deutsch")->trigger();
    Ruhe();
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Suchen / Ersetzen"));
    EXPECT_EQ(Teil<QLabel>("Suche", "Label1")->text(), QStringLiteral("Suchen nach..."));
    EXPECT_EQ(Teil<QAbstractButton>("Suche", "B_AlleErsetzen")->text(),
              QStringLiteral("Alle ersetzen"));
    Nichts_Abgeschnitten(*f);
    Aktion("MNU_Englisch")->trigger();
    Ruhe();
    EXPECT_EQ(Teil<QAbstractButton>("Suche", "Check1")->text(),
              QStringLiteral("Search for a whole word"));
}
TEST_F(Suche_Fenster_Test, the_form_goes_away_with_its_mode)
{
    QWidget* f = Oeffnen("Suche");
    Fenster->Ausfuehren([] { In_Modus_Wechseln(Modus_Hex); });
    Ruhe();
    EXPECT_FALSE(f->isVisible());
    QWidget* h = Oeffnen("HexSuche");
    EXPECT_FALSE(f->isVisible());
    Fenster->Ausfuehren([] { In_Modus_Wechseln(Modus_MC); });
    Ruhe();
    EXPECT_FALSE(h->isVisible());
}
TEST_F(Suche_Fenster_Test, the_end_of_the_program_takes_the_form_along)
{
    QWidget* f = Oeffnen("Suche");
    Fenster->Ausfuehren([] { MNU_Ende_Click(); });
    EXPECT_TRUE(Beendet);
    EXPECT_FALSE(f->isVisible());
}
TEST_F(Suche_Fenster_Test, the_form_works_by_itself_too)
{
    Suche_Fenster f;
    f.show();
    QTest::keyClicks(f.findChild<QLineEdit*>(QStringLiteral("Suchbegriff")), QStringLiteral("nop"));
    QTest::keyClick(&f, Qt::Key_F3);
    EXPECT_EQ(Auswahl(), "NOP");
    QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_FALSE(f.isVisible());
}

} // namespace
} // namespace varnholt::test
