// The dialogs of the area operations: paired fields, and what they do to the image.
#include "editors/Bereiche.h"

#include "Hex_Welt.h"

#include <rapidcheck/gtest.h>

#include <type_traits>

namespace varnholt::test {
namespace {

using enum Adress_Paar;

class Bereiche_Test : public Hex_Welt {
protected:
    static void Laden(Bereich_Art Art) { Bereich::Form_Load(Art); }
    static void Adresse(Adress_Paar Welches, std::int64_t Wert)
    {
        Bereich::Dez_Change(Welches, std::to_string(Wert));
    }
    static void Bereich_Setzen(std::int64_t Start, std::int64_t Ende)
    {
        Adresse(Copy_Start, Start);
        Adresse(Copy_End, Ende);
    }
    static void Einfuegen(std::int64_t Start, std::int64_t Ende, std::int64_t Ziel)
    {
        Laden(Bereich_Art::Kopieren);
        Bereich_Setzen(Start, Ende);
        Adresse(Insert_Start, Ziel);
        Bereich::C_OK_Click();
    }
    static void
    Ueberschreiben(std::int64_t Start, std::int64_t Ende, std::int64_t Von, std::int64_t Bis)
    {
        Laden(Bereich_Art::Kopieren);
        Bereich::O_Kopie_Überschreiben_Click();
        Bereich_Setzen(Start, Ende);
        Adresse(Paste_Start, Von);
        Adresse(Paste_End, Bis);
        Bereich::C_OK_Click();
    }
    static void Entfernen(std::int64_t Start, std::int64_t Ende)
    {
        Laden(Bereich_Art::Entfernen);
        Bereich_Setzen(Start, Ende);
        Bereich::C_OK_Click();
    }
    static void Fuellen(std::int64_t Start, std::int64_t Ende, std::int64_t Wert)
    {
        Laden(Bereich_Art::Setzen);
        Bereich_Setzen(Start, Ende);
        Adresse(Insert_Start, Wert);
        Bereich::C_OK_Click();
    }
    // Every byte tells its address.
    static void Bild_Zaehlen()
    {
        for (std::size_t i = 0; i < Hex_Daten.size(); ++i)
            Hex_Daten[i] = static_cast<std::uint8_t>(i + (i >> 8) * 3 + (i >> 16) * 7);
    }
    static Paar_T Nach_Dez(Adress_Paar Welches, const char* Text)
    {
        Bereich::Dez_Change(Welches, Text);
        return Bereich::Paar(Welches);
    }
    static Paar_T Nach_Hex(Adress_Paar Welches, const char* Text)
    {
        Bereich::Hex_Change(Welches, Text);
        return Bereich::Paar(Welches);
    }
};

using Bild_Kopie = std::remove_reference_t<decltype(Hex_Daten)>;

// --- captions ---

TEST_F(Bereiche_Test, every_caption_stands_in_both_languages)
{
    struct Fall_T {
        Bereich_Art Art;
        const char *Name, *D, *E;
    };
    const std::vector<Fall_T> Soll = {
        {Bereich_Art::Kopieren, "Titel", "Bereich Kopieren", "Copy area"},
        {Bereich_Art::Kopieren,
         "Kopf",
         "Bereich Kopieren         Hex    Dez",
         "Copy area                 Hex    Dec"},
        {Bereich_Art::Kopieren,
         "Kopf_Einfügen",
         "Einfügen an             Hex    Dez",
         "Insert                  Hex    Dec"},
        {Bereich_Art::Kopieren,
         "Kopf_Überschreiben",
         "Überschreiben           Hex    Dez   ",
         "Replace                 Hex    Dec"},
        {Bereich_Art::Kopieren, "Adresse", "Adresse:", "Address:"},
        {Bereich_Art::Entfernen, "Titel", "Bereich Entfernen", "Remove area"},
        {Bereich_Art::Entfernen,
         "Kopf",
         "Bereich Entfernen         Hex    Dez",
         "Remove area               Hex    Dec"},
        {Bereich_Art::Setzen, "Titel", "Bereich Setzen", "Set area"},
        {Bereich_Art::Setzen,
         "Kopf",
         "Bereich Setzen            Hex    Dez",
         "Set area                  Hex    Dec"},
        {Bereich_Art::Setzen,
         "Kopf_Wert",
         "Wert                      Hex    Dez",
         "Value                     Hex    Dec"},
        {Bereich_Art::Setzen, "Wert", "Wert:", "Value:"},
        {Bereich_Art::Setzen, "Von", "Von Adresse:", "From address:"},
        {Bereich_Art::Entfernen, "Bis", "Bis Adresse:", "To address:"},
        {Bereich_Art::Kopieren, "C_OK", "OK", "OK"},
        {Bereich_Art::Kopieren, "C_Abort", "Abbrechen", "Abort"},
        {Bereich_Art::Kopieren, "no such control", "", ""},
    };
    for (const auto& [Art, Name, D, E] : Soll) {
        Laden(Art);
        Sprache = "D";
        EXPECT_EQ(Bereich::Text(Name), D);
        Sprache = "E";
        EXPECT_EQ(Bereich::Text(Name), E);
    }
}

// --- opening ---

TEST_F(Bereiche_Test, the_menu_opens_each_dialog)
{
    MNU_Ber_Kopieren_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Zeigen Bereich_Kopieren");
    EXPECT_EQ(Bereich_Form.Art, Bereich_Art::Kopieren);
    MNU_Ber_setzen_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Zeigen Bereich_setzen");
    EXPECT_EQ(Bereich_Form.Art, Bereich_Art::Setzen);
    MNU_Ber_entfernen_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Zeigen Bereich_entfernen");
    EXPECT_EQ(Bereich_Form.Art, Bereich_Art::Entfernen);
    EXPECT_TRUE(Datei_Geaendert); // as before any edit of the image
}
TEST_F(Bereiche_Test, on_refusal_no_dialog_opens)
{
    for (void (*const Befehl)() :
         {MNU_Ber_Kopieren_Click, MNU_Ber_setzen_Click, MNU_Ber_entfernen_Click}) {
        Aus_Quelltext();
        Box.Antworten = {Antwort_Nein};
        Befehl();
        EXPECT_TRUE(Fenster.Protokoll.empty());
        EXPECT_TRUE(Abbruch);
        EXPECT_FALSE(Datei_Geaendert);
        Box.Antworten = {Antwort_Ja};
        Befehl();
        EXPECT_EQ(Fenster.Protokoll.size(), 1u);
        Fenster.Protokoll.clear();
    }
    EXPECT_EQ(Box.Meldungen.size(), 6u);
}
TEST_F(Bereiche_Test, every_opening_begins_with_zeros)
{
    MNU_Ber_Kopieren_Click();
    Bereich_Setzen(5, 3);
    Bereich::O_Kopie_Überschreiben_Click();
    EXPECT_FALSE(Bereich_Form.C_OK_Aktiv);
    MNU_Ber_Kopieren_Click();
    for (const Adress_Paar p : {Copy_Start, Copy_End, Insert_Start, Paste_Start, Paste_End})
        EXPECT_EQ(Bereich::Paar(p), (Paar_T{"0", "0"}));
    EXPECT_TRUE(Bereich_Form.C_OK_Aktiv);
    EXPECT_FALSE(Bereich_Form.Überschreiben);
}
TEST_F(Bereiche_Test, abort_closes_the_dialog_and_leaves_the_image)
{
    MNU_Ber_setzen_Click();
    Adresse(Insert_Start, 1);
    Bereich::C_OK_Click();
    Bereich::C_Abort_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Entladen Bereich_setzen");
    EXPECT_EQ(Byte(0), 1);
    MNU_Ber_Kopieren_Click();
    Bereich::C_Abort_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Entladen Bereich_Kopieren");
    MNU_Ber_entfernen_Click();
    Bereich::C_Abort_Click();
    EXPECT_EQ(Fenster.Protokoll.back(), "Entladen Bereich_entfernen");
}

// --- paired fields ---

TEST_F(Bereiche_Test, a_decimal_field_is_rewritten_as_its_number_and_its_partner_follows)
{
    for (const Adress_Paar p : {Copy_Start, Copy_End, Insert_Start, Paste_Start, Paste_End}) {
        EXPECT_EQ(Nach_Dez(p, "255"), (Paar_T{"255", "FF"}));
        EXPECT_EQ(Nach_Dez(p, "007"), (Paar_T{"7", "7"}));
        EXPECT_EQ(Nach_Dez(p, "12ab"), (Paar_T{"12", "C"}));
        EXPECT_EQ(Nach_Dez(p, "524287"), (Paar_T{"524287", "7FFFF"}));
        EXPECT_EQ(Nach_Dez(p, "abc"), (Paar_T{"0", "0"}));
        EXPECT_EQ(Nach_Dez(p, ""), (Paar_T{"0", "0"}));
        EXPECT_EQ(Nach_Dez(p, "99999999999"), (Paar_T{"2147483647", "7FFFFFFF"}));
    }
}
TEST_F(Bereiche_Test, a_hexadecimal_field_stays_as_typed_and_its_partner_follows)
{
    for (const Adress_Paar p : {Copy_Start, Copy_End, Insert_Start, Paste_Start, Paste_End}) {
        EXPECT_EQ(Nach_Hex(p, "7FFFF"), (Paar_T{"524287", "7FFFF"}));
        EXPECT_EQ(Nach_Hex(p, "00ff"), (Paar_T{"255", "00ff"}));
        EXPECT_EQ(Nach_Hex(p, ""), (Paar_T{"0", ""}));
        EXPECT_EQ(Nach_Hex(p, "FFFFFFFF"), (Paar_T{"100000000", "FFFFFFFF"}));
    }
}
TEST_F(Bereiche_Test, a_wrong_hexadecimal_number_is_no_address_and_cant_be_confirmed)
{
    EXPECT_EQ(Nach_Hex(Copy_Start, "xyz"), (Paar_T{"-1", "xyz"}));
    EXPECT_FALSE(Bereich_Form.C_OK_Aktiv);
    EXPECT_EQ(Nach_Hex(Copy_Start, "0"), (Paar_T{"0", "0"}));
    EXPECT_TRUE(Bereich_Form.C_OK_Aktiv);
    EXPECT_EQ(Nach_Hex(Insert_Start, "1S"), (Paar_T{"-1", "1S"}));
    EXPECT_FALSE(Bereich_Form.C_OK_Aktiv);
    Bereich::O_Kopie_Überschreiben_Click(); // the field isn't used any more
    EXPECT_TRUE(Bereich_Form.C_OK_Aktiv);
    EXPECT_EQ(Nach_Dez(Paste_End, "-5"), (Paar_T{"-5", "FFFFFFFB"}));
    EXPECT_FALSE(Bereich_Form.C_OK_Aktiv);
    Bereich::O_Kopie_Einfügen_Click();
    EXPECT_FALSE(Bereich_Form.C_OK_Aktiv);
    Nach_Hex(Insert_Start, "1");
    EXPECT_TRUE(Bereich_Form.C_OK_Aktiv);
}
TEST_F(Bereiche_Test, start_above_end_disables_OK_at_once_in_either_field_of_a_pair)
{
    const auto Aktiv = [](const Paar_T&) { return Bereich_Form.C_OK_Aktiv; };
    EXPECT_FALSE(Aktiv(Nach_Dez(Copy_Start, "1")));
    EXPECT_TRUE(Aktiv(Nach_Dez(Copy_End, "1")));
    EXPECT_FALSE(Aktiv(Nach_Hex(Copy_Start, "2")));
    EXPECT_TRUE(Aktiv(Nach_Hex(Copy_End, "2")));
    EXPECT_FALSE(Aktiv(Nach_Hex(Copy_End, "1")));
    EXPECT_TRUE(Aktiv(Nach_Dez(Copy_End, "16")));
    EXPECT_TRUE(Aktiv(Nach_Hex(Copy_Start, "10")));
    EXPECT_FALSE(Aktiv(Nach_Hex(Copy_Start, "11")));
}
TEST_F(Bereiche_Test, the_target_may_end_before_it_starts)
{
    Bereich::O_Kopie_Überschreiben_Click();
    Adresse(Paste_Start, 5);
    EXPECT_TRUE(Bereich_Form.C_OK_Aktiv);
}
TEST_F(Bereiche_Test, a_disabled_OK_does_nothing)
{
    Laden(Bereich_Art::Setzen);
    Bereich_Setzen(3, 2);
    Bereich::C_OK_Click();
    EXPECT_EQ(Byte(2), 0xFF);
    EXPECT_EQ(Byte(3), 0xFF);
    EXPECT_EQ(Ereignisse.Runden, 1); // the page of the fixture
}
TEST_F(Bereiche_Test, hexadecimal_fields_take_digits_backspace_and_one_more)
{
    for (int Taste = 0; Taste < 256; ++Taste) {
        const std::string Erlaubt = "0123456789ABCDEFabcdefS\b";
        EXPECT_EQ(Bereich::Hex_KeyPress(Taste),
                  Taste != 0 && Erlaubt.find(static_cast<char>(Taste)) != std::string::npos)
            << Taste;
    }
}
TEST_F(Bereiche_Test, the_fill_value_is_drawn_into_a_byte)
{
    Laden(Bereich_Art::Setzen);
    EXPECT_EQ(Nach_Dez(Insert_Start, "256"), (Paar_T{"255", "FF"}));
    EXPECT_EQ(Nach_Dez(Insert_Start, "255"), (Paar_T{"255", "FF"}));
    EXPECT_EQ(Nach_Dez(Insert_Start, "-1"), (Paar_T{"0", "0"}));
    EXPECT_EQ(Nach_Hex(Insert_Start, "100"), (Paar_T{"255", "FF"}));
    EXPECT_EQ(Nach_Hex(Insert_Start, "fe"), (Paar_T{"254", "fe"}));
    EXPECT_EQ(Nach_Hex(Insert_Start, "S"), (Paar_T{"0", "0"}));
    EXPECT_TRUE(Bereich_Form.C_OK_Aktiv);
    EXPECT_EQ(Nach_Dez(Copy_End, "256"), (Paar_T{"256", "100"}));
}
TEST_F(Bereiche_Test, the_radio_pair_enables_its_fields)
{
    for (const bool Ueberschreiben_An : {true, false}) {
        if (Ueberschreiben_An)
            Bereich::O_Kopie_Überschreiben_Click();
        else
            Bereich::O_Kopie_Einfügen_Click();
        EXPECT_EQ(Bereich::Paar_Aktiv(Insert_Start), !Ueberschreiben_An);
        EXPECT_EQ(Bereich::Paar_Aktiv(Paste_Start), Ueberschreiben_An);
        EXPECT_EQ(Bereich::Paar_Aktiv(Paste_End), Ueberschreiben_An);
        EXPECT_TRUE(Bereich::Paar_Aktiv(Copy_Start));
        EXPECT_TRUE(Bereich::Paar_Aktiv(Copy_End));
    }
}

// --- copy ---

TEST_F(Bereiche_Test, a_range_of_one_address_is_one_byte)
{
    Byte(0x100) = 0x5A;
    Einfuegen(0x100, 0x100, 0);
    EXPECT_EQ(Bytes_Ab(0, 2), (std::vector<int>{0x5A, 0xFF}));
    EXPECT_EQ(Byte(0x101), 0x5A); // moved up by one
    EXPECT_EQ(Hex_Puffer.size(), 2u);
    EXPECT_EQ(Hex_Puffer[0], 0x5A);
}
TEST_F(Bereiche_Test, inserting_at_0_moves_the_whole_image_up_and_its_top_is_lost)
{
    Bild_Zaehlen();
    const Bild_Kopie Vorher = Hex_Daten;
    Einfuegen(0x200, 0x2FF, 0);
    EXPECT_TRUE(std::equal(Vorher.begin() + 0x200, Vorher.begin() + 0x300, Hex_Daten.begin()));
    EXPECT_TRUE(std::equal(Hex_Daten.begin() + 0x100, Hex_Daten.end(), Vorher.begin()));
}
TEST_F(Bereiche_Test, inserting_inside_the_source_takes_it_as_it_was)
{
    Bytes_Setzen(0, {1, 2, 3, 4, 5});
    Einfuegen(0, 3, 2);
    EXPECT_EQ(Bytes_Ab(0, 9), (std::vector<int>{1, 2, 1, 2, 3, 4, 3, 4, 5}));
}
TEST_F(Bereiche_Test, inserting_at_the_top_is_cut_at_the_end_of_the_image)
{
    Bytes_Setzen(0, {1, 2, 3, 4});
    Einfuegen(0, 3, Bild_Groesse - 2);
    EXPECT_EQ(Bytes_Ab(Bild_Groesse - 3, 4), (std::vector<int>{0xFF, 1, 2, 0xFF}));
    Bild_Loeschen();
    Byte(0) = 1;
    Einfuegen(0, 0, Bild_Groesse);
    EXPECT_EQ(Letztes_Byte(), 0);
    Einfuegen(0, 0, 2147483647);
    EXPECT_EQ(Letztes_Byte(), 0);
}
TEST_F(Bereiche_Test, a_range_that_goes_over_the_end_is_cut_there)
{
    Byte(Bild_Groesse - 1) = 7;
    Einfuegen(Bild_Groesse - 1, 2147483647, 0);
    EXPECT_EQ(Hex_Puffer.size(), 2u);
    EXPECT_EQ(Bytes_Ab(0, 2), (std::vector<int>{7, 0xFF}));
    EXPECT_EQ(Byte(Bild_Groesse), 7); // the element behind moves along
    Einfuegen(Bild_Groesse, 2147483647, 0);
    EXPECT_EQ(Hex_Puffer.size(), 1u);
    EXPECT_EQ(Bytes_Ab(0, 2), (std::vector<int>{7, 0xFF}));
}
TEST_F(Bereiche_Test, overwriting_stops_at_the_end_of_the_target)
{
    Bytes_Setzen(0, {1, 2, 3, 4});
    Ueberschreiben(0, 3, 0x10, 0x11);
    EXPECT_EQ(Bytes_Ab(0x10, 4), (std::vector<int>{1, 2, 0xFF, 0xFF}));
    EXPECT_EQ(Byte(0x20), 0xFF);
}
TEST_F(Bereiche_Test, overwriting_stops_with_the_source)
{
    Bytes_Setzen(0, {1, 2, 3, 4});
    Ueberschreiben(0, 1, 0x10, 0x1F);
    EXPECT_EQ(Bytes_Ab(0x10, 4), (std::vector<int>{1, 2, 0xFF, 0xFF}));
}
TEST_F(Bereiche_Test, overwriting_may_overlap_the_source)
{
    Bytes_Setzen(0, {1, 2, 3, 4, 5, 6});
    Ueberschreiben(0, 3, 1, 4);
    EXPECT_EQ(Bytes_Ab(0, 6), (std::vector<int>{1, 1, 2, 3, 4, 6}));
    Ueberschreiben(1, 4, 0, 3);
    EXPECT_EQ(Bytes_Ab(0, 6), (std::vector<int>{1, 2, 3, 4, 4, 6}));
}
TEST_F(Bereiche_Test, overwriting_is_cut_at_the_end_of_the_image)
{
    Bytes_Setzen(0, {1, 2, 3, 4});
    Ueberschreiben(0, 3, Bild_Groesse - 2, 2147483647);
    EXPECT_EQ(Bytes_Ab(Bild_Groesse - 2, 3), (std::vector<int>{1, 2, 0xFF}));
    Ueberschreiben(0, 3, 2147483647, 2147483647);
    EXPECT_EQ(Byte(Bild_Groesse), 0xFF);
}
TEST_F(Bereiche_Test, a_target_that_ends_before_it_starts_takes_nothing)
{
    Bytes_Setzen(0, {1, 2});
    const Bild_Kopie Vorher = Hex_Daten;
    Ueberschreiben(0, 1, 0x10, 0x0F);
    EXPECT_TRUE(Hex_Daten == Vorher);
}
TEST_F(Bereiche_Test, the_dialog_stays_for_the_next_copy)
{
    MNU_Ber_Kopieren_Click();
    Byte(0) = 1;
    Bereich::C_OK_Click();
    Bereich::C_OK_Click();
    EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{1, 1, 1, 0xFF}));
    EXPECT_TRUE(Fenster.Formular_Sichtbar(Formular::F_Bereich_Kopieren));
}

// --- remove ---

TEST_F(Bereiche_Test, removing_closes_the_gap_and_FF_comes_in_at_the_top)
{
    Bild_Zaehlen();
    const Bild_Kopie Vorher = Hex_Daten;
    Entfernen(0x10, 0x1F);
    EXPECT_TRUE(std::equal(Vorher.begin(), Vorher.begin() + 0x10, Hex_Daten.begin()));
    EXPECT_TRUE(
        std::equal(Vorher.begin() + 0x20, Vorher.begin() + Bild_Groesse, Hex_Daten.begin() + 0x10));
    EXPECT_TRUE(std::all_of(Hex_Daten.begin() + Bild_Groesse - 0x10,
                            Hex_Daten.begin() + Bild_Groesse,
                            [](int b) { return b == 0xFF; }));
    EXPECT_EQ(Byte(Bild_Groesse), Vorher[Bild_Groesse]); // outside of the image
}
TEST_F(Bereiche_Test, removing_everything_leaves_nothing_but_FF)
{
    Bild_Zaehlen();
    Laden(Bereich_Art::Entfernen);
    Bereich::Hex_Change(Copy_End, "7FFFF");
    Bereich::C_OK_Click();
    EXPECT_EQ(Letztes_Byte(), -1);
}
TEST_F(Bereiche_Test, removing_over_the_end_takes_what_there_is)
{
    Bytes_Setzen(0x10, {1, 2, 3});
    Byte(Bild_Groesse) = 9;
    Entfernen(0x11, 2147483647);
    EXPECT_EQ(Letztes_Byte(), 0x10);
    EXPECT_EQ(Byte(Bild_Groesse), 9);
    Entfernen(Bild_Groesse, 2147483647);
    EXPECT_EQ(Letztes_Byte(), 0x10);
}

// --- set ---

TEST_F(Bereiche_Test, set_fills_the_range_with_its_ends)
{
    Fuellen(0x10, 0x12, 0x5A);
    EXPECT_EQ(Bytes_Ab(0x0F, 5), (std::vector<int>{0xFF, 0x5A, 0x5A, 0x5A, 0xFF}));
}
TEST_F(Bereiche_Test, set_with_256_typed_uses_255)
{
    Bild_Zaehlen();
    Fuellen(1, 1, 256);
    EXPECT_EQ(Byte(1), 255);
    EXPECT_EQ(Bereich::Paar(Insert_Start), (Paar_T{"255", "FF"}));
}
TEST_F(Bereiche_Test, set_is_cut_at_the_end_of_the_image)
{
    Fuellen(Bild_Groesse - 1, 2147483647, 3);
    EXPECT_EQ(Bytes_Ab(Bild_Groesse - 2, 3), (std::vector<int>{0xFF, 3, 0xFF}));
    Fuellen(Bild_Groesse, Bild_Groesse, 4);
    EXPECT_EQ(Byte(Bild_Groesse), 0xFF);
}

// --- what the user sees ---

TEST_F(Bereiche_Test, every_operation_shows_the_page_and_gives_the_cursor_back)
{
    Byte(0) = 1;
    for (const auto& Tun : std::vector<void (*)()>{[] { Einfuegen(0, 0, 1); },
                                                   [] { Ueberschreiben(0, 0, 2, 2); },
                                                   [] { Fuellen(0, 1, 1); },
                                                   [] { Entfernen(5, 5); }}) {
        bool Gewartet        = false;
        Ereignisse.Bei_Runde = [&](int) { Gewartet = Ereignisse.Zeiger_Wartet; };
        const auto Stand     = Ansichten.Hex_Stand;
        Tun();
        EXPECT_GT(Ansichten.Hex_Stand, Stand);
        EXPECT_TRUE(Gewartet);
        EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    }
    EXPECT_EQ(Hex_Feld.substr(0, 9), "01 01 01 ");
}

// --- random ranges, step by step as they are told ---

RC_GTEST_FIXTURE_PROP(Bereiche_Test, copy_does_what_its_steps_say, ())
{
    const auto Ort = [] {
        return *rc::gen::element<std::int32_t>(
            0, 1, 5, 200, Bild_Groesse - 300, Bild_Groesse - 2, Bild_Groesse - 1);
    };
    Bild_Zaehlen();
    const std::int32_t Start = Ort();
    const std::int32_t Ende =
        std::min(Start + *rc::gen::inRange<std::int32_t>(0, 500), Bild_Groesse - 1);
    const std::int32_t Ziel   = Ort();
    const std::int32_t Bis    = Ziel + *rc::gen::inRange<std::int32_t>(-3, 600);
    const bool         Ueber  = *rc::gen::arbitrary<bool>();
    const std::int32_t N      = Ende - Start + 1;
    Bild_Kopie         Soll   = Hex_Daten;
    const Bytefolge_T  Quelle = {Start, Ende + 1};
    const auto         Puffer =
        std::vector<std::uint8_t>(Soll.begin() + Quelle.Anfang, Soll.begin() + Quelle.Ende);
    const auto Element = [&Soll](std::int32_t A) -> std::uint8_t& {
        return Soll.at(static_cast<std::size_t>(A));
    };
    std::size_t i = 0;
    if (Ueber) {
        for (std::int32_t A = Ziel; A <= Bis && A < Bild_Groesse && i < Puffer.size(); ++A)
            Element(A) = Puffer[i++];
    } else {
        for (std::int32_t A = Bild_Groesse; A >= Ziel + N; --A)
            Element(A) = Element(A - N);
        for (std::int32_t A = Ziel; A <= Ziel + N - 1 && A < Bild_Groesse; ++A)
            Element(A) = Puffer[i++];
    }
    if (Ueber)
        Ueberschreiben(Start, Ende, Ziel, std::max(Bis, 0));
    else
        Einfuegen(Start, Ende, Ziel);
    RC_ASSERT(Bis < 0 || Hex_Daten == Soll);
}

RC_GTEST_FIXTURE_PROP(Bereiche_Test, any_fields_end_in_a_clear_result, ())
{
    const auto Texte = rc::gen::element<std::string>("",
                                                     "0",
                                                     "-1",
                                                     "7FFFF",
                                                     "80000",
                                                     "524288",
                                                     "2147483647",
                                                     "S",
                                                     "1e9",
                                                     "&HFF",
                                                     "xx",
                                                     "FFFFFFFF");
    Laden(*rc::gen::element(Bereich_Art::Kopieren, Bereich_Art::Setzen, Bereich_Art::Entfernen));
    if (*rc::gen::arbitrary<bool>())
        Bereich::O_Kopie_Überschreiben_Click();
    for (const Adress_Paar p : {Copy_Start, Copy_End, Insert_Start, Paste_Start, Paste_End})
        if (*rc::gen::arbitrary<bool>())
            Bereich::Dez_Change(p, *Texte);
        else
            Bereich::Hex_Change(p, *Texte);
    Bereich::C_OK_Click();
    RC_ASSERT(Hex_Puffer.size() <= static_cast<std::size_t>(Bild_Groesse) + 1);
}

} // namespace
} // namespace varnholt::test
