// The preview of a programming run: what it counts, against what a run then does, and its words.
#include "programmer/Brennvorschau.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brennmenue.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

class Brennvorschau_Test : public Brenner_Welt {
protected:
    // The dialog for a device with these contents, read before.
    void Oeffnen(const Bytes_T& Baustein, const Bytes_T& Editor)
    {
        Geraet("28C64", static_cast<std::int32_t>(Baustein.size()));
        Geraete_Tabelle[0].E_Typ = "28C";
        Board_Anschliessen();
        Inhalt() = Baustein;
        Bild_Fuellen(Editor);
        Modus      = Modus_Hex;
        C_IC_vor_B = true;
        Brennmenue_Oeffnen();
        Brennmenue.Löschen = false;
    }
    static std::string Text() { return In_Sprache(Vorschau_Text()); }
};

TEST_F(Brennvorschau_Test, what_is_written_changes_and_rises_is_counted)
{
    const Bytes_T        Alt = {0x00, 0x0F, 0xFF, 0x55};
    const Bytes_T        Neu = {0x00, 0x1F, 0x7F, 0x54};
    const Brenn_Vorschau v   = Vorschau_Rechnen(Alt, Neu, {.IC_Letzte = 3}, true);
    EXPECT_EQ(v.Geschrieben, 4);
    EXPECT_EQ(v.Geaendert, 3);
    EXPECT_EQ(v.Ansteigend, 1);
    EXPECT_EQ(v.Ausserhalb, 0);
}

TEST_F(Brennvorschau_Test, an_FFh_is_passed_over_only_with_its_option)
{
    const Bytes_T Alt = {0x00, 0x00};
    const Bytes_T Neu = {0xFF, 0x01};
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, {.IC_Letzte = 1}, true).Geschrieben, 1);
    const Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, {.IC_Letzte = 1}, false);
    EXPECT_EQ(v.Geschrieben, 2);
    EXPECT_EQ(v.Ansteigend, 2);
}

TEST_F(Brennvorschau_Test, bytes_without_a_place_in_the_device_are_counted)
{
    const Bytes_T Neu = {1, 2, 3, 4, 0xFF, 6};
    EXPECT_EQ(Vorschau_Rechnen({}, Neu, {.IC_Letzte = 1}, true).Ausserhalb, 3);
    EXPECT_EQ(Vorschau_Rechnen({}, Neu, {.IC_Letzte = 5}, true).Ausserhalb, 0);
    EXPECT_EQ(Vorschau_Rechnen({}, Neu, {.IC_Letzte = 3, .Nullen_Bis = -2, .Editor_Erste = 2}, true)
                  .Ausserhalb,
              2)
        << "those ahead of the range";
}

TEST_F(Brennvorschau_Test, a_split_takes_every_second_byte)
{
    const Bytes_T Neu = {1, 0x81, 2, 0x82, 3, 0x83};
    const Bytes_T Alt = {1, 2, 3};
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, {.IC_Letzte = 2, .Schritt = 2}, true).Geaendert, 0);
    EXPECT_EQ(
        Vorschau_Rechnen(Alt, Neu, {.IC_Letzte = 2, .Schritt = 2, .Versatz = 1}, true).Geaendert,
        3);
}

TEST_F(Brennvorschau_Test, what_is_filled_with_00h_ahead_of_the_range_counts_too)
{
    const Bytes_T  Alt = {0xFF, 0, 0xFF, 0xFF};
    const Bytes_T  Neu = {7, 8};
    Brenn_Bereich  b{.IC_Erste = 2, .IC_Letzte = 3, .Anfang = 2, .Nullen_Bis = 2};
    Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, b, true);
    EXPECT_EQ(v.Geschrieben, 2);
    b.Anfang = 0;
    v        = Vorschau_Rechnen(Alt, Neu, b, true);
    EXPECT_EQ(v.Geschrieben, 4);
    EXPECT_EQ(v.Geaendert, 3);
}

TEST_F(Brennvorschau_Test, a_range_beyond_all_bounds_ends_at_once)
{
    const Bytes_T Neu(100, 1);
    for (const std::int32_t a : {-2147483647 - 1, -999999999, 2147483647}) {
        const Brenn_Vorschau v = Vorschau_Rechnen(
            {}, Neu, {.IC_Erste = a, .IC_Letzte = 50, .Anfang = a, .Nullen_Bis = a}, true);
        EXPECT_LE(v.Geschrieben, 51);
    }
}

RC_GTEST_FIXTURE_PROP(Brennvorschau_Test, it_counts_what_a_byte_by_byte_copy_does, (Bytes_T Alt))
{
    const auto   Neu    = *rc::gen::arbitrary<Bytes_T>();
    const bool   Ohne   = *rc::gen::arbitrary<bool>();
    const auto   Letzte = static_cast<std::int32_t>(Alt.size()) - 1;
    Bytes_T      Danach = Alt;
    std::int32_t Rest   = 0;
    for (std::size_t i = 0; i < std::max(Alt.size(), Neu.size()); ++i)
        if (i >= Alt.size())
            Rest += Neu[i] != 0xFF ? 1 : 0;
        else if (const std::uint8_t n = i < Neu.size() ? Neu[i] : std::uint8_t{0xFF};
                 !Ohne || n != 0xFF)
            Danach[i] = n;
    std::int32_t Anders = 0;
    for (std::size_t i = 0; i < Alt.size(); ++i)
        Anders += Alt[i] != Danach[i] ? 1 : 0;
    const Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, {.IC_Letzte = Letzte}, Ohne);
    RC_ASSERT(v.Geaendert == Anders);
    RC_ASSERT(v.Ausserhalb == Rest);
}

// --- the dialog ---

TEST_F(Brennvorschau_Test, the_words_come_in_both_languages)
{
    Oeffnen({0x00, 0x02, 0xFF, 0xFF}, {0x01, 0x02, 0x03});
    EXPECT_EQ(Text(),
              "3 bytes will be written. 2 of them change. In 1 bytes bits would have to go from 0 "
              "to 1: that takes an erase first.");
    Sprache = "D";
    EXPECT_EQ(Text(),
              "3 Bytes werden geschrieben. 2 davon ändern sich. In 1 Bytes müssten Bits von 0 auf "
              "1 gehen: das geht nur nach dem Löschen.");
    Brennmenue.Löschen = true;
    EXPECT_EQ(
        Text(),
        "3 Bytes werden geschrieben. 2 davon ändern sich. Vorher wird das ganze IC gelöscht.");
    Sprache = "E";
    EXPECT_EQ(Text(), "3 bytes will be written. 2 of them change. The whole IC is erased before.");
}

TEST_F(Brennvorschau_Test, an_image_larger_than_the_device_is_told_in_both_languages)
{
    Oeffnen({0xFF, 0xFF}, {1, 2, 3, 4, 5});
    EXPECT_TRUE(Text().ends_with(" 3 bytes of the editor stay outside the IC.")) << Text();
    Sprache = "D";
    EXPECT_TRUE(Text().ends_with(" 3 Bytes des Editors bleiben außerhalb des ICs.")) << Text();
}

TEST_F(Brennvorschau_Test, a_device_that_was_not_read_is_told_as_unknown)
{
    Oeffnen({0, 0}, {1, 2});
    C_IC_vor_B = false;
    Brennmenue_Oeffnen();
    Brennmenue.Löschen = false;
    EXPECT_EQ(Text(), "2 bytes will be written. What the IC holds now isn't known.");
    Sprache = "D";
    EXPECT_EQ(Text(), "2 Bytes werden geschrieben. Was das IC jetzt enthält, ist nicht bekannt.");
    for (const char* Unbekannt : {"?", "-", "", "gelesen", "read..."}) {
        Brennmenue.IC_LBA_D = Unbekannt;
        EXPECT_NE(Text().find("nicht bekannt"), std::string::npos) << Unbekannt;
    }
}

TEST_F(Brennvorschau_Test, values_that_cannot_be_programmed_are_told_in_both_languages)
{
    Oeffnen({0xFF, 0xFF}, {1, 2});
    BR_EBA_D_Change("1");
    ASSERT_FALSE(Brennmenue.Brennen_Aktiv);
    EXPECT_EQ(Text(), "With these values nothing can be programmed.");
    Sprache = "D";
    EXPECT_EQ(Text(), "Mit diesen Angaben kann nicht gebrannt werden.");
}

TEST_F(Brennvorschau_Test, without_the_option_for_FFh_the_run_goes_to_the_end_of_the_device)
{
    Oeffnen(Bytes_T(16, 0xFF), {1, 2});
    EXPECT_EQ(Bereich_Des_Dialogs().IC_Letzte, 1);
    No_FF = false;
    EXPECT_EQ(Bereich_Des_Dialogs().IC_Letzte, 15);
    EXPECT_TRUE(Text().starts_with("16 bytes will be written. 2 of them change.")) << Text();
}

TEST_F(Brennvorschau_Test, the_fill_with_00h_belongs_to_the_preview)
{
    Oeffnen(Bytes_T(16, 0xFF), {1, 2});
    BR_EBA_D_Change("4");
    EXPECT_TRUE(Text().starts_with("2 bytes will be written.")) << Text();
    Brennmenue.DAT00 = true;
    EXPECT_TRUE(Text().starts_with("6 bytes will be written. 6 of them change.")) << Text();
}

TEST_F(Brennvorschau_Test, the_preview_is_what_the_run_does)
{
    for (const bool Ohne : {true, false})
        for (const bool Vorne : {true, false})
            for (const Splitting s : {Splitting::Kein, Splitting::Gerade, Splitting::Ungerade}) {
                Geraet("27C64", 64);
                Board_Anschliessen();
                Bild_Zufaellig(100);
                Hex_Daten[21] = 0xFF;
                Modus         = Modus_Hex;
                C_IC_vor_B    = true;
                C_IC_nach_B   = false;
                No_FF         = Ohne;
                Brennmenue_Oeffnen();
                ED_EBA_D_Change("2");
                ED_LBA_D_Change("30");
                BR_EBA_D_Change("7");
                Brennmenue.DAT00 = Vorne;
                Splitting_Waehlen(s);
                const Brenn_Vorschau v =
                    Vorschau_Rechnen(Inhalt(), Hex_Daten, Bereich_Des_Dialogs(), Ohne);
                const Bytes_T Vorher = Inhalt();
                Brennen_Click();
                std::int32_t Anders = 0;
                for (std::size_t i = 0; i < Vorher.size(); ++i)
                    Anders += Vorher[i] != Inhalt()[i] ? 1 : 0;
                EXPECT_EQ(v.Geaendert, Anders) << Ohne << Vorne << static_cast<int>(s);
                EXPECT_GT(Anders, 0);
            }
}

} // namespace
} // namespace varnholt::test
