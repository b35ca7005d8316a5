// The printouts of image and text, line by line.
#include "files/Drucken.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "support/scripted_platform.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace varnholt {
namespace {

constexpr int Kopf_Zeilen = 9;

class Drucken_Welt : public test::Welt {
protected:
    Drucken_Welt() { Bild_Loeschen(); }
    void In_Modus(int Neuer)
    {
        Modus                  = Neuer;
        Menue("MNU_Hex").Haken = Neuer == Modus_Hex;
        Menue("MNU_MC").Haken  = Neuer == Modus_MC;
    }
    void Bytes_Bis(std::int32_t Ende) { std::fill_n(Hex_Daten.begin(), Ende, std::uint8_t{0x41}); }
    void Zeilen_Setzen(int Anzahl)
    {
        std::string Text;
        for (int i = 1; i <= Anzahl; ++i)
            Text += "Zeile " + std::to_string(i) + "\r\n";
        Edit.Text_Setzen(Text);
    }
};

TEST_F(Drucken_Welt, HeaderOfAnImagePageIsThePrescribedFrame)
{
    In_Modus(Modus_Hex);
    Datei_Name = "/home/u/test.bin";
    Bytes_Bis(1);
    MNU_PrintDialog_Click();
    ASSERT_EQ(Druck.Seiten.size(), 1u);
    const auto&       z = Druck.Seiten[0];
    const std::string Rahmen =
        "          ----------------------------------------------------------------------";
    EXPECT_EQ(z[0], "");
    EXPECT_EQ(z[1], Rahmen);
    EXPECT_EQ(z[2],
              "          ---Datei: /home/u/test.bin--------------------------------------------");
    EXPECT_EQ(z[3],
              "          ---Datum 20.11.2026-------------Zeit 17:05:09-------------Seite:1-----");
    EXPECT_EQ(z[4], Rahmen);
    EXPECT_EQ(z[5] + z[6] + z[7], "");
    EXPECT_EQ(
        z[8],
        "       Dez.    Hex.    .0..1..2..3..4..5..6..7..8..9..A..B..C..D..E..F  ASCII           ");
    for (std::size_t i = 1; i < 5; ++i)
        EXPECT_EQ(z[i].size(), 80u);
}

TEST_F(Drucken_Welt, RowHasDecimalAndHexAddressBytesAndCharacters)
{
    for (int i = 0; i < 16; ++i)
        Hex_Daten[static_cast<std::size_t>(0x12340 + i)] = static_cast<std::uint8_t>(0x30 + i);
    EXPECT_EQ(Hex_Druckzeile(0x12340),
              "       074560  012340 30 31 32 33 34 35 36 37 38 39 3A 3B 3C 3D 3E 3F   "
              "0123456789:;<=>?");
}

TEST_F(Drucken_Welt, OnlyTheListedBytesPrintAsPoints)
{
    for (int b = 0; b < 256; ++b) {
        Hex_Daten[0]        = static_cast<std::uint8_t>(b);
        const std::string z = Hex_Druckzeile(0);
        const bool        Soll =
            b == 0 || b == 2 || b == 9 || b == 10 || b == 13 || b == 15 || b == 18 || b == 32;
        EXPECT_EQ(z[72] == '.', Soll || b == '.') << b;
    }
    Hex_Daten[0] = 11;
    EXPECT_EQ(Hex_Druckzeile(0)[72], 11);
}

TEST_F(Drucken_Welt, ErasedImagePrintsOnePageWithHeaderAndNoRows)
{
    In_Modus(Modus_Hex);
    MNU_PrintDialog_Click();
    ASSERT_EQ(Druck.Seiten.size(), 1u);
    const auto& z = Druck.Seiten[0];
    ASSERT_EQ(z.size(), Kopf_Zeilen + 51u + 3u);
    EXPECT_EQ(z[Kopf_Zeilen], "");
    EXPECT_EQ(z[Kopf_Zeilen + 51],
              "       ----------------------------------------------------------------------");
    EXPECT_EQ(z[Kopf_Zeilen + 52], "       ---Datei: " + std::string(60, '-'));
    EXPECT_EQ(z[Kopf_Zeilen + 53],
              "       ---Datum 20.11.2026-------------Zeit 17:05:09-------------Seite:1-----");
    EXPECT_EQ(Druck.Beendet, 1);
}

TEST_F(Drucken_Welt, FooterStandsAtTheSameHeightHoweverManyRowsThereAre)
{
    In_Modus(Modus_Hex);
    for (const int Zeilen : {0, 1, 49, 50, 51, 99, 100}) {
        Bild_Loeschen();
        Bytes_Bis(Zeilen * 16);
        MNU_PrintDialog_Click();
        const auto& z = Druck.Seiten.back();
        ASSERT_EQ(z.size(), Kopf_Zeilen + 51u + 3u) << Zeilen;
        EXPECT_TRUE(z[Kopf_Zeilen + 51].starts_with("       -----")) << Zeilen;
        EXPECT_EQ(z[Kopf_Zeilen + 50], "") << Zeilen;
    }
}

TEST_F(Drucken_Welt, ExtentEndsWithTheLastByteBelowFF)
{
    In_Modus(Modus_Hex);
    Hex_Daten[16] = 0xFE; // row 1, behind one that is all FFh
    MNU_PrintDialog_Click();
    EXPECT_TRUE(Druck.Seiten[0][Kopf_Zeilen].starts_with("       000000  000000 FF FF"));
    EXPECT_TRUE(Druck.Seiten[0][Kopf_Zeilen + 1].starts_with("       000016  000010 FE FF"));
    EXPECT_EQ(Druck.Seiten[0][Kopf_Zeilen + 2], "");
}

TEST_F(Drucken_Welt, TheWholeImagePrintsItsLastByte)
{
    In_Modus(Modus_Hex);
    Hex_Daten[static_cast<std::size_t>(Hex_Groesse - 1)] = 0x5A;
    MNU_PrintDialog_Click();
    EXPECT_EQ(std::ssize(Druck.Seiten), (Hex_Groesse / 16 + 49) / 50);
    const std::size_t Letzte = static_cast<std::size_t>((Hex_Groesse / 16 - 1) % 50);
    EXPECT_EQ(Druck.Seiten.back()[Kopf_Zeilen + Letzte].substr(0, 72),
              "       524272  07FFF0 FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF 5A   ");
}

TEST_F(Drucken_Welt, EightHundredRowsTakeSixteenPagesAndOneMoreASeventeenth)
{
    In_Modus(Modus_Hex);
    Bytes_Bis(800 * 16);
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Seiten.size(), 16u);
    EXPECT_EQ(Druck.Seiten[0].size(), Kopf_Zeilen + 50u);
    EXPECT_EQ(Druck.Seiten[15].size(), Kopf_Zeilen + 51u + 3u);
    EXPECT_NE(Druck.Seiten[15][3].find("Seite:16----"), std::string::npos);
    Bytes_Bis(800 * 16 + 1);
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Seiten.size(), 17u);
    EXPECT_TRUE(Druck.Seiten[16][Kopf_Zeilen].starts_with("       012800  003200 41 FF"));
}

TEST_F(Drucken_Welt, LongPathKeepsItsEndAndTheFrameItsWidth)
{
    const std::string Lang(60, 'x');
    const auto        z = Hex_Rahmen({Lang + "/datei-ä.bin", "20.11.2026", "17:05:09"}, 123456, 7);
    EXPECT_TRUE(z[1].ends_with("/datei-ä.bin-------"));
    EXPECT_EQ(z[1].size(), 7u + 70u + 1u); // the umlaut has two bytes
    EXPECT_TRUE(z[2].ends_with("Seite:123456"));
}

TEST_F(Drucken_Welt, ImageIsPrintedInCourierNewTen)
{
    In_Modus(Modus_Hex);
    MNU_PrintDialog_Click();
    ASSERT_EQ(Druck.Schriften_Gesetzt.size(), 1u);
    EXPECT_EQ(Druck.Schriften_Gesetzt[0].Name, "Courier New");
    EXPECT_EQ(Druck.Schriften_Gesetzt[0].Groesse, 10);
}

TEST_F(Drucken_Welt, SheetThatIsTooShortGetsASmallerFont)
{
    In_Modus(Modus_Hex);
    Druck.Je_Seite = 62; // one line less than a page has
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Schriften_Gesetzt.back().Groesse, 3);
    Druck.Je_Seite = 63;
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Schriften_Gesetzt.back().Groesse, 10);
}

TEST_F(Drucken_Welt, SheetThatIsTooNarrowGetsASmallerFont)
{
    In_Modus(Modus_Hex);
    Bytes_Bis(16);
    const std::size_t Zeichen = Hex_Druckzeile(0).size();
    EXPECT_EQ(Zeichen, 88u);
    Druck.Je_Zeile = 87;
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Schriften_Gesetzt.back().Groesse, 3);
    Druck.Je_Zeile = 88;
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Schriften_Gesetzt.back().Groesse, 10);
}

TEST_F(Drucken_Welt, NoLineOfAnImagePageIsWiderThanItsRows)
{
    In_Modus(Modus_Hex);
    Datei_Name = std::string(200, 'x');
    Bytes_Bis(1000 * 16);
    MNU_PrintDialog_Click();
    for (const auto& Seite : Druck.Seiten)
        for (const std::string& Zeile : Seite)
            EXPECT_LE(Zeile.size(), 88u) << Zeile;
}

TEST_F(Drucken_Welt, TextIsPrintedInTheFontOfTheEditor)
{
    In_Modus(Modus_MC);
    Schriften[Schrift_Edit] = {"Hack", true, false, 12};
    Zeilen_Setzen(1);
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Schriften_Gesetzt.back(), (Schrift_T{"Hack", true, false, 12}));
}

TEST_F(Drucken_Welt, EveryPageOfTextEndsWithPathAndFooterInTheLanguage)
{
    In_Modus(Modus_MC);
    Datei_Name     = "/home/u/test.asm";
    Druck.Je_Seite = 12;
    Zeilen_Setzen(25);
    for (const bool Deutsch : {true, false}) {
        Sprache = Deutsch ? "D" : "E";
        MNU_PrintDialog_Click();
        ASSERT_EQ(Druck.Seiten.size(), 3u);
        for (std::size_t i = 0; i < 3; ++i) {
            ASSERT_EQ(Druck.Seiten[i].size(), 12u);
            EXPECT_EQ(Druck.Seiten[i][10], "            /home/u/test.asm");
            EXPECT_EQ(Druck.Seiten[i][11],
                      fmt::format(fmt::runtime(
                                      Deutsch ? "Datum: 20.11.2026     Seite: {}     Zeit: 17:05:09"
                                              : "Date: 20.11.2026     Page: {}     Time: 17:05:09"),
                                  i + 1));
        }
        EXPECT_EQ(Druck.Seiten[0][0], "Zeile 1");
        EXPECT_EQ(Druck.Seiten[1][0], "Zeile 11");
        EXPECT_EQ(Druck.Seiten[2][4], "Zeile 25");
        EXPECT_EQ(Druck.Seiten[2][5], "");
    }
}

TEST_F(Drucken_Welt, FullPageIsNotFollowedByAnEmptyOne)
{
    In_Modus(Modus_MC);
    Druck.Je_Seite = 12;
    Zeilen_Setzen(10);
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Seiten.size(), 1u);
}

TEST_F(Drucken_Welt, EmptyTextPrintsOnePageWithItsFooter)
{
    In_Modus(Modus_MC);
    MNU_PrintDialog_Click();
    ASSERT_EQ(Druck.Seiten.size(), 1u);
    EXPECT_TRUE(Druck.Seiten[0].back().starts_with("Date: "));
}

TEST_F(Drucken_Welt, SelectionOfThreeLinesPrintsTheseWithTheFooter)
{
    In_Modus(Modus_MC);
    Zeilen_Setzen(9);
    Edit.Auswaehlen(9, 27); // lines 2 to 4
    Druck.Nur_Markierung = true;
    MNU_PrintDialog_Click();
    EXPECT_TRUE(Druck.Gefragt.back().Markierung_Anbieten);
    ASSERT_EQ(Druck.Seiten.size(), 1u);
    EXPECT_EQ(Druck.Seiten[0][0], "Zeile 2");
    EXPECT_EQ(Druck.Seiten[0][2], "Zeile 4");
    EXPECT_EQ(Druck.Seiten[0][3], "");
    EXPECT_EQ(Druck.Seiten[0].size(), 66u);
    EXPECT_EQ(Edit.Auswahl(), (Textstelle_T{9, 27}));
}

TEST_F(Drucken_Welt, SelectionIsOfferedOnlyWhereThereIsOneInTheText)
{
    Zeilen_Setzen(3);
    Edit.Auswaehlen(0, 5);
    In_Modus(Modus_Hex);
    MNU_PrintDialog_Click();
    EXPECT_FALSE(Druck.Gefragt.back().Markierung_Anbieten);
    In_Modus(Modus_MC);
    Edit.Auswaehlen(3, 0);
    MNU_PrintDialog_Click();
    EXPECT_FALSE(Druck.Gefragt.back().Markierung_Anbieten);
}

TEST_F(Drucken_Welt, ColoursGoWithTheirLines)
{
    In_Modus(Modus_MC);
    Edit.Text_Setzen("Ab: NOP ;x\r\nRET ;yz\r\n");
    Edit.Faerben(std::vector<Farbstelle_T>{{0, 3, 0xDD1111}, {8, 2, 0x119911}, {16, 3, 0x119911}});
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Alle_Farben[0],
              (std::vector<Farbstelle_T>{{0, 3, 0xDD1111}, {8, 2, 0x119911}}));
    EXPECT_EQ(Druck.Alle_Farben[1], (std::vector<Farbstelle_T>{{4, 3, 0x119911}}));
}

TEST_F(Drucken_Welt, CancelledDialogPrintsNothing)
{
    In_Modus(Modus_MC);
    Druck.Nimmt_An = false;
    MNU_PrintDialog_Click();
    EXPECT_TRUE(Druck.Seiten.empty());
    EXPECT_EQ(Druck.Beendet, 0);
}

TEST_F(Drucken_Welt, PrinterThatCantBeginPrintsNothing)
{
    In_Modus(Modus_MC);
    Druck.Hat_Papier = false;
    MNU_PrintDialog_Click();
    EXPECT_TRUE(Druck.Seiten.front().empty());
    EXPECT_EQ(Druck.Beendet, 0);
}

TEST_F(Drucken_Welt, AbbrechenEndsThePrintingAtTheNextLine)
{
    In_Modus(Modus_MC);
    Zeilen_Setzen(50);
    Ereignisse.Bei_Runde = [&](int) { Abbruch = Druck.Seiten[0].size() == 7; };
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Seiten[0].size(), 7u);
    EXPECT_EQ(Druck.Beendet, 1);
    EXPECT_FALSE(Druck.Ganz);
    EXPECT_FALSE(Text_Sperre);
}

TEST_F(Drucken_Welt, AbbrechenEndsThePrintingOfAnImageAtTheNextPage)
{
    In_Modus(Modus_Hex);
    Bytes_Bis(400 * 16);
    Ereignisse.Bei_Runde = [&](int) { Abbruch = Druck.Seiten.size() == 3; };
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Seiten.size(), 3u);
    EXPECT_EQ(Druck.Seiten[2].size(), Kopf_Zeilen + 50u); // whole
    EXPECT_EQ(Druck.Beendet, 1);
    EXPECT_FALSE(Druck.Ganz);
}

TEST_F(Drucken_Welt, ACancelIsToldInBothLanguages)
{
    In_Modus(Modus_MC);
    Zeilen_Setzen(50);
    Ereignisse.Bei_Runde = [&](int) { Abbruch = true; };
    MNU_PrintDialog_Click();
    EXPECT_EQ(Box.Hinweise.back(), "Printing was cancelled.");
    Sprache = "D";
    MNU_PrintDialog_Click();
    EXPECT_EQ(Box.Hinweise.back(), "Das Drucken wurde abgebrochen.");
}

TEST_F(Drucken_Welt, ACancelBeforeDoesntEndTheNextPrintout)
{
    Bytes_Bis(400 * 16);
    Zeilen_Setzen(100);
    for (const int m : {Modus_Hex, Modus_MC}) {
        In_Modus(m);
        Abbruch = true;
        MNU_PrintDialog_Click();
        EXPECT_TRUE(Druck.Ganz) << m;
    }
    EXPECT_TRUE(Box.Hinweise.empty());
}

TEST_F(Drucken_Welt, PrinterThatFailsEndsThePrintingAtThatPage)
{
    Bytes_Bis(400 * 16);
    Zeilen_Setzen(400);
    Druck.Haelt_Bis = 2;
    for (const int m : {Modus_Hex, Modus_MC}) {
        In_Modus(m);
        Druck.Beendet = 0;
        MNU_PrintDialog_Click();
        EXPECT_EQ(Druck.Seiten.size(), 2u) << m;
        EXPECT_EQ(Druck.Beendet, 1) << m;
        EXPECT_FALSE(Druck.Ganz) << m;
    }
    EXPECT_EQ(Druck.Seiten[1].size(), 66u); // nothing on top of the full page
    EXPECT_TRUE(Box.Hinweise.empty());      // the printer has told
}

TEST_F(Drucken_Welt, LinesThatArePrintedWholeNeedNoWord)
{
    In_Modus(Modus_MC);
    Edit.Text_Setzen(std::string(100, 'x') + "\r\n");
    MNU_PrintDialog_Click();
    EXPECT_TRUE(Druck.Ganz);
    EXPECT_TRUE(Box.Hinweise.empty());
}

TEST_F(Drucken_Welt, LinesThatAreTooWideAreCountedInBothLanguages)
{
    In_Modus(Modus_MC);
    Edit.Text_Setzen(std::string(101, 'x') + "\r\nNOP\r\n" + std::string(200, 'y') + "\r\n");
    MNU_PrintDialog_Click();
    EXPECT_EQ(Druck.Seiten[0][0].size(), 101u); // neither wrapped nor shortened
    EXPECT_EQ(Druck.Seiten[0][1], "NOP");
    EXPECT_EQ(Box.Hinweise.back(),
              "Printed. Lines too wide for the paper, whose ends may be missing: 2.");
    Sprache = "D";
    MNU_PrintDialog_Click();
    EXPECT_EQ(Box.Hinweise.back(),
              "Gedruckt. Für das Papier zu breite Zeilen, deren Ende fehlen kann: 2.");
}

TEST_F(Drucken_Welt, PathThatIsTooLongForTheSheetKeepsItsEnd)
{
    In_Modus(Modus_MC);
    Datei_Name     = std::string(60, 'x') + "/über.asm";
    Druck.Je_Zeile = 60;
    Zeilen_Setzen(1);
    MNU_PrintDialog_Click();
    const std::string Zeile = Druck.Seiten[0][64];
    EXPECT_EQ(Zeile.substr(0, 13), "            x");
    EXPECT_TRUE(Zeile.ends_with("x/über.asm"));
    EXPECT_EQ(Zeile.size(), 60u + 1u); // the umlaut has two bytes
}

// Its i are narrow, its W wide.
class Messender_Drucker : public test::Skript_Drucker {
public:
    bool Passt(std::string_view Text) const override
    {
        return std::ssize(Text) + 4 * std::count(Text.begin(), Text.end(), 'W') <= Je_Zeile;
    }
};

TEST_F(Drucken_Welt, PathIsMeasuredWhereThePrinterCan)
{
    Messender_Drucker Messer;
    Plattform.Druck = &Messer;
    In_Modus(Modus_MC);
    Zeilen_Setzen(1);
    Messer.Je_Zeile = 60;
    for (const auto& [Ganz, Gedruckt] : {std::pair{std::string(48, 'i'), std::string(48, 'i')},
                                         {std::string(49, 'i'), std::string(48, 'i')},
                                         {std::string(9, 'W'), std::string(9, 'W')},
                                         {std::string(10, 'W'), std::string(9, 'W')},
                                         {std::string(400, 'W') + "/i", "WWWWWWWWW/i"},
                                         {"", ""}}) {
        Datei_Name = Ganz;
        MNU_PrintDialog_Click();
        EXPECT_EQ(Messer.Seiten[0][64], std::string(12, ' ') + Gedruckt);
    }
    Messer.Je_Zeile = 1; // not even the indent fits
    Datei_Name      = "ab";
    MNU_PrintDialog_Click();
    EXPECT_EQ(Messer.Seiten[0][64], std::string(12, ' ') + "b");
    Plattform.Druck = &Druck;
}

TEST_F(Drucken_Welt, ProgressIsShownInTheLanguage)
{
    In_Modus(Modus_MC);
    Zeilen_Setzen(50);
    MNU_PrintDialog_Click();
    EXPECT_EQ(Status.Texte.back(), " Printing text...");
    Sprache = "D";
    MNU_PrintDialog_Click();
    EXPECT_EQ(Status.Texte.back(), " Text wird gedruckt...");
    In_Modus(Modus_Hex);
    MNU_PrintDialog_Click();
    EXPECT_EQ(Status.Texte.back(), " Hexdaten werden gedruckt...");
    Sprache = "E";
    MNU_PrintDialog_Click();
    EXPECT_EQ(Status.Texte.back(), " Printing hex data...");
}

TEST_F(Drucken_Welt, SetupOpensThePrintersDialog)
{
    MNU_PrinterConfig_Click();
    EXPECT_EQ(Druck.Eingerichtet, 1);
}

} // namespace
} // namespace varnholt
