// The form `HexSuche`, with real keys and clicks.
#include "Such_Welt.h"
#include "editors/HexSuche.h"
#include "editors/Hexedit.h"

#include <QRadioButton>

namespace varnholt::test {
namespace {

class HexSuche_Fenster_Test : public Suchform_Test {
protected:
    HexSuche_Fenster_Test() { Starten("E", Modus_Hex); }
    QLineEdit*  Begriff() const { return Teil<QLineEdit>("HexSuche", "Suchbegriff"); }
    std::string Gezeigt() const
    {
        const auto& m = Hexedit.Hex_Auswahl;
        return Hex_Feld.substr(static_cast<std::size_t>(m.Anfang),
                               static_cast<std::size_t>(m.Laenge));
    }
};

TEST_F(HexSuche_Fenster_Test, enter_and_F3_mark_one_hit_after_the_other)
{
    for (const int Adresse : {0x105, 0x109, 0x205})
        Hex_Daten[static_cast<std::size_t>(Adresse)] = 0x5A;
    QWidget* f = Oeffnen("HexSuche");
    EXPECT_TRUE(Begriff()->hasFocus());
    EXPECT_TRUE(Teil<QRadioButton>("HexSuche", "O_Hex")->isChecked());
    Text_An(Begriff(), "5A FF");
    Taste_An(Begriff(), Qt::Key_Return);
    EXPECT_EQ(Such_Start, 0x106);
    EXPECT_EQ(Hexedit.Scroll, 0x10);
    EXPECT_EQ(Gezeigt(), "5A FF");
    EXPECT_TRUE(Begriff()->hasFocus());
    Taste_An(Begriff(), Qt::Key_F3);
    EXPECT_EQ(Such_Start, 0x10A);
    Klick(Teil("HexSuche", "Suchen_OK"));
    EXPECT_EQ(Such_Start, 0x206);
    Antworten.Taste(QMessageBox::Ok);
    Taste(Qt::Key_F3); // in the main window
    EXPECT_EQ(Antworten.Texte, (std::vector<std::string>{"No others found !"}));
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(Such_Start, 0);
}
TEST_F(HexSuche_Fenster_Test, characters_are_searched_with_the_other_button)
{
    const std::string Text = "Z\xE4hler";
    std::copy(Text.begin(), Text.end(), Hex_Daten.begin() + 0x30);
    Oeffnen("HexSuche");
    Klick(Teil("HexSuche", "O_ASCII"));
    EXPECT_TRUE(HexSuche_Form.O_ASCII);
    Text_An(Begriff(), "Zähler");
    Taste_An(Begriff(), Qt::Key_Return);
    EXPECT_EQ(Such_Start, 0x31);
    EXPECT_EQ(Hexedit.AscII_Auswahl.Laenge, 6);
    Klick(Teil("HexSuche", "O_Hex"));
    EXPECT_FALSE(HexSuche_Form.O_ASCII);
}
TEST_F(HexSuche_Fenster_Test, a_wrong_character_is_told)
{
    Oeffnen("HexSuche");
    Antworten.Taste(QMessageBox::Ok);
    Text_An(Begriff(), "0G");
    Taste_An(Begriff(), Qt::Key_Return);
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_EQ(Antworten.Texte[0].substr(0, 12), "Invalid sign");
}
TEST_F(HexSuche_Fenster_Test, enter_without_a_term_and_escape_close_the_form)
{
    QWidget* f = Oeffnen("HexSuche");
    Taste_An(Begriff(), Qt::Key_Return);
    EXPECT_FALSE(f->isVisible());
    f = Oeffnen("HexSuche");
    Text_An(Begriff(), "FF");
    Taste_An(Begriff(), Qt::Key_Return);
    EXPECT_EQ(Such_Start, 1);
    Taste_An(Begriff(), Qt::Key_Escape);
    EXPECT_FALSE(f->isVisible());
    EXPECT_EQ(Such_Start, 0);
}
TEST_F(HexSuche_Fenster_Test, its_captions_follow_the_language)
{
    QWidget* f = Oeffnen("HexSuche");
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Hex-/ASCII-Editor Search"));
    Nichts_Abgeschnitten(*f);
    Aktion("MNU_Deutsch")->trigger();
    Ruhe();
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Hex-/ASCII-Editor Suche"));
    EXPECT_EQ(Teil<QLabel>("HexSuche", "InfoText")->text(),
              QStringLiteral("Bei Eingabe eines Suchstrings von mehreren Hex-Werten trennen Sie "
                             "diese bitte durch ein Freizeichen."));
    Nichts_Abgeschnitten(*f);
}
TEST_F(HexSuche_Fenster_Test, keys_that_edit_the_image_dont_reach_it_from_the_form)
{
    Oeffnen("HexSuche");
    Hex_Daten[5] = 1;
    Teil("HexSuche", "O_Hex")->setFocus();
    Taste_An(Teil("HexSuche", "O_Hex"), Qt::Key_Delete);
    EXPECT_EQ(Hex_Daten[5], 1);
}

} // namespace
} // namespace varnholt::test
