// Jumps in the hex editor: to an address, to the first and to the last used byte.
#include "Hex_Welt.h"

#include "editors/Hexspruenge.h"

namespace varnholt::test {
namespace {

class Hexspruenge : public Hex_Welt {
protected:
    void Springen(const std::string& Text)
    {
        Box.Eingaben = {Text};
        MNU_Adresse_direkt_Click();
    }
};

TEST_F(Hexspruenge, the_input_box_asks_in_both_languages)
{
    Sprache = "D";
    MNU_Adresse_direkt_Click();
    EXPECT_EQ(Box.Fragen.back(),
              "Bitte geben Sie die zu zeigende Adresse ein. Sie können die Adresse im "
              "Dezimalformat oder im Hexadezimalformat eingeben. Bitte kennzeichnen Sie eine "
              "Eingabe im Hexadezimalformat durch ein abschließendes 'h'.\r\n Beispiel 255 oder "
              "FFh");
    Sprache = "E";
    MNU_Adresse_direkt_Click();
    EXPECT_EQ(Box.Fragen.back(),
              "Please enter the address you want to see. You can enter the address in decimal or "
              "in hexadecimal format. Please indicate hexadecimal address with the convertional "
              "trailing 'h'.\r\n Examples 255 or FFh");
    Sprache = "X"; // from a damaged settings file
    MNU_Adresse_direkt_Click();
    EXPECT_EQ(Box.Fragen.back(), Box.Fragen[1]);
}

TEST_F(Hexspruenge, an_empty_input_does_nothing)
{
    Seite(7, 9);
    Springen("");
    EXPECT_EQ(Hexedit.Scroll, 7);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Hexspruenge, decimal_and_hexadecimal_addresses_bring_their_row_to_the_top)
{
    const std::vector<std::pair<std::string, int>> Faelle{
        {"255", 15}, {"FFh", 15}, {"ffH", 15}, {"1000", 62}, {"1000h", 256}, {"0", 0}, {" 32 ", 2}};
    for (const auto& [Text, Zeile] : Faelle) {
        Springen(Text);
        EXPECT_EQ(Hexedit.Scroll, Zeile) << Text;
        EXPECT_EQ(Adr_D.substr(0, 6), std::to_string(1000000 + 16 * Zeile).substr(1));
    }
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Hexspruenge, an_address_behind_the_last_page_shows_the_last_page)
{
    for (const char* Text : {"524288", "80000h", "7FFFFh", "524159"}) {
        Scroll_Setzen(0);
        Springen(Text);
        EXPECT_EQ(Hexedit.Scroll, std::string(Text) == "524159" ? 32759 : 32760) << Text;
    }
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Hexspruenge, what_is_no_address_of_the_image_is_an_invalid_value_in_both_languages)
{
    Seite(7, 9);
    for (const auto& [s, Meldung] :
         {std::pair{"D", "Ungültiger Wert"}, std::pair{"E", "Invalid value"}})
        for (const char* Text : {"524289",
                                 "80001h",
                                 "-1",
                                 "99999999999999999999",
                                 "FFFFFFFFFFFFFFFFFFFFh",
                                 "FF",
                                 "1G0h",
                                 "12x",
                                 " "}) {
            Sprache = s;
            Box.Meldungen.clear();
            Springen(Text);
            EXPECT_EQ(Letzte_Meldung(), Meldung) << Text;
            EXPECT_EQ(Hexedit.Scroll, 7);
        }
}

TEST_F(Hexspruenge, the_first_used_byte_is_found_upward_from_0)
{
    Byte(0x1234) = 0;
    Byte(0x4321) = 0;
    Seite(3000, 9);
    MNU_ErsteAdresse_Click();
    EXPECT_EQ(Hexedit.Scroll, 0x123);
}

TEST_F(Hexspruenge, the_last_used_byte_is_found_downward_from_the_end)
{
    Byte(0x1234) = 0;
    Byte(0x4321) = 0xFE;
    MNU_LetzteAdresse_Click();
    EXPECT_EQ(Hexedit.Scroll, 0x432);
}

TEST_F(Hexspruenge, a_last_byte_in_the_last_row_is_limited_to_the_maximum)
{
    Byte(0x7FFFF) = 0;
    MNU_LetzteAdresse_Click();
    EXPECT_EQ(Hexedit.Scroll, 32760);
    MNU_ErsteAdresse_Click();
    EXPECT_EQ(Hexedit.Scroll, 32760);
}

TEST_F(Hexspruenge, in_an_erased_image_both_go_to_row_0)
{
    Byte(0x80000) = 0; // the element behind the image doesn't count
    Seite(3000, 9);
    MNU_ErsteAdresse_Click();
    EXPECT_EQ(Hexedit.Scroll, 0);
    Seite(3000, 9);
    MNU_LetzteAdresse_Click();
    EXPECT_EQ(Hexedit.Scroll, 0);
}

} // namespace
} // namespace varnholt::test
