// The comparison of a device with the image.
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"

#include <rapidcheck/gtest.h>

#include <algorithm>

namespace varnholt::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

class CheckIC_Test : public Brenner_Welt {
protected:
    void SetUp() override { Einsetzen(64); }
    void Einsetzen(std::int32_t n, std::string_view Typ = "27C256")
    {
        Geraet(Typ, n);
        Board_Anschliessen();
        Modus = Modus_Hex;
    }
    // The image's first bytes go into the device by that split.
    void Bestuecken(bool Ungerade = false, bool Gerade = false)
    {
        for (std::size_t a = 0; a < Inhalt().size(); ++a) {
            const auto e = static_cast<std::size_t>(
                Editor_Index(static_cast<std::int64_t>(a), Ungerade, Gerade));
            Inhalt()[a] = e < Hex_Daten.size() ? Hex_Daten[e] : std::uint8_t{0xFF};
        }
    }
};

// ---- verdicts ----

TEST_F(CheckIC_Test, the_whole_device_agrees)
{
    Bild_Zufaellig(64);
    Bestuecken();
    MNU_IC_Prüfen_Click();
    EXPECT_TRUE(CheckIC.Offen);
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Frame_IC, "27C256");
    EXPECT_EQ(CheckIC.Ergebnis,
              "The IC data is equivalent to the editor data in the whole area of the ic.");
    Sprache = "D";
    MNU_IC_Prüfen_Click();
    EXPECT_EQ(CheckIC.Ergebnis,
              "Die Daten des IC entsprechen den Daten des Editors im gesamten Bereich des IC.");
}

TEST_F(CheckIC_Test, a_longer_editor_agrees_in_the_whole_area_of_the_device)
{
    Bild_Zufaellig(1000);
    Bestuecken();
    CheckIC_Start(false, false);
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Erste_Abweichung, 64);
}

TEST_F(CheckIC_Test, an_editor_shorter_than_the_device_with_FFh_above_it_agrees)
{
    Bild_Fuellen({1, 2, 3});
    Bestuecken();
    CheckIC_Start(false, false);
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_FALSE(CheckIC.Ergebnis.empty());
}

TEST_F(CheckIC_Test, an_image_of_zeros_behind_the_device_agrees_altogether)
{
    Hex_Daten.fill(0); // what the second image grows with
    Bestuecken();
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Ergebnis, "The IC data is equivalent to the editor data.");
    Sprache = "D";
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Ergebnis, "Die Daten des IC entsprechen den Daten des Editors.");
}

TEST_F(CheckIC_Test, a_split_device_agrees_with_its_half_of_the_image)
{
    for (const bool Ungerade : {false, true}) {
        Bild_Zufaellig(128);
        Bestuecken(Ungerade, !Ungerade);
        Sprache = "E";
        CheckIC_Start(Ungerade, !Ungerade);
        EXPECT_EQ(CheckIC.Ergebnis,
                  "The IC data is equivalent to the splittet editor data "
                  "(odd/even) in the whole area of the ic.");
        Sprache = "D";
        CheckIC_Start(Ungerade, !Ungerade);
        EXPECT_EQ(CheckIC.Ergebnis,
                  "Die Daten des IC entsprechen den gesplitteten Daten des "
                  "Editors (odd/even) im gesamten Bereich des IC.");
        CheckIC_Start(!Ungerade, Ungerade);
        EXPECT_FALSE(CheckIC.Gleich) << "the other half is another one";
    }
}

TEST_F(CheckIC_Test, with_a_split_the_comparison_ends_at_the_end_of_the_image)
{
    for (const bool Ungerade : {false, true})
        for (const std::int32_t n : {262144, 524288}) {
            Einsetzen(n, "27C040");
            Plattform.Port = &Board(); // without the record, which is long
            Bild_Zufaellig(524288);
            Bestuecken(Ungerade, !Ungerade);
            CheckIC_Start(Ungerade, !Ungerade);
            EXPECT_TRUE(CheckIC.Gleich) << n;
            EXPECT_EQ(CheckIC.Ergebnis.find("splittet") != std::string::npos, n == 262144);
        }
}

TEST_F(CheckIC_Test, a_difference_is_told_in_both_languages)
{
    Bild_Zufaellig(64);
    Bestuecken();
    Inhalt()[40] ^= 1;
    CheckIC_Start(false, false);
    EXPECT_FALSE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Erste_Abweichung, 40);
    EXPECT_EQ(CheckIC.Ergebnis, "The IC data is NOT equivalent to the editor data.");
    EXPECT_TRUE(CheckIC.Button_Dat_Aktiv);
    Sprache = "D";
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Ergebnis, "Die Daten des IC entsprechen NICHT den Daten des Editors.");
}

TEST_F(CheckIC_Test, a_difference_at_the_first_and_at_the_last_address_is_found)
{
    for (const std::size_t a : {std::size_t{0}, std::size_t{63}}) {
        Bild_Zufaellig(64);
        Bestuecken();
        Inhalt()[a] ^= 0x80;
        CheckIC_Start(false, false);
        EXPECT_FALSE(CheckIC.Gleich);
        EXPECT_EQ(CheckIC.Erste_Abweichung, static_cast<std::int32_t>(a));
    }
}

TEST_F(CheckIC_Test, an_erased_device_that_differs_has_no_verdict_and_no_table)
{
    Bild_Fuellen({1, 2, 3});
    for (const auto& [Kuerzel, Wort] : {std::pair{"D", "Gelöscht"}, std::pair{"E", "Clear"}}) {
        Sprache = Kuerzel;
        CheckIC_Start(false, false);
        EXPECT_EQ(CheckIC.Zustand_IC, Wort);
        EXPECT_EQ(CheckIC.Ergebnis, "");
        EXPECT_FALSE(CheckIC.Button_Dat_Aktiv);
        EXPECT_FALSE(CheckIC.Gleich);
    }
}

TEST_F(CheckIC_Test, an_erased_device_and_an_empty_editor_agree)
{
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Zustand_IC, "Clear");
    EXPECT_TRUE(CheckIC.Gleich);
}

// ---- state of the device ----

TEST_F(CheckIC_Test, one_byte_at_address_0_is_told_as_0_in_both_number_forms)
{
    Inhalt()[0] = 0;
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Zustand_IC, "Programmed till 0(dec) / 0(hex)");
    Sprache = "D";
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Zustand_IC, "Beschrieben bis 0(dez) / 0(hex)");
}

TEST_F(CheckIC_Test, the_last_used_address_is_told)
{
    Inhalt()[63] = 0;
    CheckIC_Start(false, false);
    EXPECT_EQ(CheckIC.Zustand_IC, "Programmed till 63(dec) / 3F(hex)");
}

TEST_F(CheckIC_Test, while_it_reads_the_form_says_so)
{
    std::string Zustand;
    Ereignisse.Bei_Runde = [&](int) { Zustand = CheckIC.Zustand_IC; };
    CheckIC_Start(false, false);
    EXPECT_EQ(Zustand, "reading ....");
    Sprache = "D";
    CheckIC_Start(false, false);
    EXPECT_EQ(Zustand, "wird gelesen ....");
}

TEST_F(CheckIC_Test, a_cancel_during_the_read_closes_the_form_without_a_verdict)
{
    Bild_Fuellen({1});
    Ereignisse.Bei_Runde = [](int) { Abbruch = true; };
    CheckIC_Start(false, false);
    EXPECT_FALSE(CheckIC.Offen);
    EXPECT_EQ(CheckIC.Ergebnis, "");
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
}

TEST_F(CheckIC_Test, what_the_page_write_has_proved_is_not_read_again_once)
{
    CheckIC.Seiten_Bewiesen = true;
    Hex_Puffer.assign(Hex_Daten.size(), 0x00);
    Spur();
    CheckIC_Start(false, false);
    EXPECT_EQ(Spur(), "");
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Ergebnis, "The IC data is equivalent to the editor data.");
    CheckIC_Start(false, false);
    EXPECT_NE(Spur(), "");
}

TEST_F(CheckIC_Test, ok_closes_the_form_and_frees_the_buffer)
{
    CheckIC_Start(false, false);
    EXPECT_EQ(Hex_Puffer.size(), Hex_Daten.size());
    Button_OK_Click();
    EXPECT_FALSE(CheckIC.Offen);
    EXPECT_TRUE(Hex_Puffer.empty());
}

// ---- table ----

TEST_F(CheckIC_Test, the_table_has_a_line_for_each_difference)
{
    Bild_Fuellen({0x01, 0x02, 0x03});
    Bestuecken();
    Inhalt()[1]    = 0xAB;
    Inhalt()[0x3F] = 0x00;
    CheckIC_Start(false, false);
    Button_Dat_Click();
    EXPECT_TRUE(CheckIC.Text_Sichtbar);
    EXPECT_EQ(CheckIC.Text,
              "Hex.Adr.|Editor|  IC  \r\n"
              "--------+------+------\r\n"
              "000001 |  02  |  AB\r\n"
              "00003F |  FF  |  00\r\n");
}

TEST_F(CheckIC_Test, the_table_tells_what_was_read_whatever_uses_the_buffer_afterwards)
{
    Bild_Fuellen({0x01, 0x02, 0x03});
    Bestuecken();
    Inhalt()[1] = 0xAB;
    CheckIC_Start(false, false);
    const std::string Soll = "Hex.Adr.|Editor|  IC  \r\n--------+------+------\r\n"
                             "000001 |  02  |  AB\r\n";
    C_IC_vor_B             = true;
    Inhalt()[1]            = 0xCD;
    MNU_IC_Brennen_Click(); // reads into the same buffer
    Button_Dat_Click();
    EXPECT_EQ(CheckIC.Text, Soll);
    Hex_Puffer.clear();
    Button_Dat_Click();
    EXPECT_EQ(CheckIC.Text, Soll);
    Einsetzen(128); // a larger device is chosen
    Button_Dat_Click();
    EXPECT_EQ(CheckIC.Text, Soll);
    Button_OK_Click();
    EXPECT_TRUE(CheckIC.Baustein.empty());
}

TEST_F(CheckIC_Test, the_table_ends_after_1000_differences)
{
    const Bytes Bild_Bytes(2000, 0x00);
    for (const std::size_t n : {std::size_t{999}, std::size_t{1000}, std::size_t{1001}}) {
        const Bytes       Baustein(n, 0x11);
        const std::string t = Abweichungen_Tabelle(Baustein, Bild_Bytes, 2000, false, false);
        EXPECT_EQ(std::count(t.begin(), t.end(), '\n'), n < 1000 ? 2 + 999 : 2 + 1000 + 2) << n;
        EXPECT_EQ(t.ends_with("0003E7 |  00  |  11\r\n [....] | [..] | [..] \r\n"
                              "--------+------+------\r\n"),
                  n >= 1000);
    }
}

TEST_F(CheckIC_Test, the_table_follows_the_split_and_ends_with_the_image)
{
    const Bytes Baustein{1, 2, 3, 4};
    const Bytes Editor{9, 1, 9, 7, 9};
    EXPECT_EQ(Abweichungen_Tabelle(Baustein, Editor, 4, true, false),
              "Hex.Adr.|Editor|  IC  \r\n--------+------+------\r\n000001 |  07  |  02\r\n");
    EXPECT_EQ(Abweichungen_Tabelle(Baustein, Editor, 4, false, true),
              "Hex.Adr.|Editor|  IC  \r\n--------+------+------\r\n000000 |  09  |  01\r\n"
              "000001 |  09  |  02\r\n000002 |  09  |  03\r\n");
}

RC_GTEST_FIXTURE_PROP(CheckIC_Test, the_walk_ends_at_the_first_difference, (Bytes a, Bytes b))
{
    const Vergleich_T v      = Vergleichen(a, b, false, false);
    const auto        Paar   = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const auto        Stelle = Paar.first - a.begin();
    RC_ASSERT(v.Erreicht == static_cast<std::int32_t>(Stelle));
    RC_ASSERT(v.Bild_Ende == (Paar.first == a.end() || Paar.second == b.end()));
}

} // namespace
} // namespace varnholt::test
