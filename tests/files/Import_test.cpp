// The question for the address of an import.
#include "files/Laden.h"

#include "files/Dateien_Welt.h"

namespace varnholt::test {
namespace {

TEST(Import_Adresse, is_decimal_as_far_as_it_goes)
{
    EXPECT_EQ(Import_Adresse_Lesen("32768"), 32768);
    EXPECT_EQ(Import_Adresse_Lesen(" 12 34"), 1234);
    EXPECT_EQ(Import_Adresse_Lesen("12abc"), 12);
    EXPECT_EQ(Import_Adresse_Lesen("+7"), 7);
    EXPECT_EQ(Import_Adresse_Lesen("abc"), 0);
    EXPECT_EQ(Import_Adresse_Lesen("-5"), -5);
}
TEST(Import_Adresse, is_hexadecimal_with_a_trailing_h_of_any_case)
{
    EXPECT_EQ(Import_Adresse_Lesen("8000h"), 0x8000);
    EXPECT_EQ(Import_Adresse_Lesen("fFH"), 0xFF);
    EXPECT_EQ(Import_Adresse_Lesen("h"), 0);
    EXPECT_EQ(Import_Adresse_Lesen("xyzh"), -1);
}
TEST(Import_Adresse, that_is_huge_lies_outside_the_image)
{
    EXPECT_GT(Import_Adresse_Lesen("99999999999999999999"), Bild_Groesse);
    EXPECT_GT(Import_Adresse_Lesen("FFFFFFFFFFFFFFFFFFFFh"), Bild_Groesse);
    EXPECT_LT(Import_Adresse_Lesen("-99999999999999999999"), 0);
}

class Import_Frage : public Dateien_Welt {
protected:
    std::optional<std::int32_t> Erfragt(const std::string& Eingabe)
    {
        Box.Eingaben = {Eingabe};
        return Import_Adresse_Erfragen();
    }
};

TEST_F(Import_Frage, stands_in_English)
{
    Erfragt("");
    EXPECT_EQ(
        Box.Fragen.back(),
        "Please enter the first address, on which the file will be load. You can enter the address "
        "in decimal or in hexadecimal format. Please indicate hexadecimal address with the "
        "convertional trailing 'h'.\r\n Examples 255 or FFh");
}
TEST_F(Import_Frage, stands_in_German)
{
    Sprache = "D";
    Erfragt("");
    EXPECT_EQ(
        Box.Fragen.back(),
        "Bitte geben Sie die erste Adresse an, auf die die Datei geladen werden soll. Sie können "
        "die Adresse im Dezimalformat oder im Hexadezimalformat eingeben. Bitte kennzeichnen Sie "
        "eine Eingabe im Hexadezimalformat durch ein abschließendes 'h'.\r\n Beispiel 32768 oder "
        "8000h");
}
TEST_F(Import_Frage, without_an_answer_ends_without_a_message)
{
    EXPECT_EQ(Erfragt(""), std::nullopt);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Import_Frage, takes_addresses_from_0_to_the_limit_of_the_image)
{
    EXPECT_EQ(Erfragt("0"), 0);
    EXPECT_EQ(Erfragt("80000h"), Bild_Groesse);
    EXPECT_TRUE(Box.Meldungen.empty());
}
TEST_F(Import_Frage, refuses_addresses_outside_with_a_message)
{
    for (const char* Eingabe : {"-1", "524289", "80001h", "xh"}) {
        Box.Meldungen.clear();
        EXPECT_EQ(Erfragt(Eingabe), std::nullopt) << Eingabe;
        EXPECT_EQ(Letzte_Meldung(), "Invalid value") << Eingabe;
    }
    Sprache = "D";
    EXPECT_EQ(Erfragt("-1"), std::nullopt);
    EXPECT_EQ(Letzte_Meldung(), "Ungültiger Wert");
}

} // namespace
} // namespace varnholt::test
