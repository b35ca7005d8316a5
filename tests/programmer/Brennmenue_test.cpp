// The programming dialog as a model.
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"

#include <algorithm>

namespace varnholt::test {
namespace {

class Brennmenue_Test : public Brenner_Welt {
protected:
    void SetUp() override { Einsetzen("27C256", 4096); }
    void Einsetzen(std::string_view Name, std::int32_t Bytes, std::string_view E_Typ = "UV")
    {
        Geraet(Name, Bytes, "27C256", "27C256").E_Typ = E_Typ;
        Board_Anschliessen();
        Modus = Modus_Hex;
    }
};

// ---- opening ----

TEST_F(Brennmenue_Test, the_used_part_of_the_editor_is_proposed_from_address_0)
{
    Hex_Daten[0x1FA] = 0;
    MNU_IC_Brennen_Click();
    EXPECT_TRUE(Brennmenue.Offen);
    EXPECT_EQ(Brennmenue.ED_EBA_D, "0");
    EXPECT_EQ(Brennmenue.ED_EBA_H, "0");
    EXPECT_EQ(Brennmenue.ED_LBA_D, "506");
    EXPECT_EQ(Brennmenue.ED_LBA_H, "1FA");
    EXPECT_EQ(Brennmenue.ED_IBA_D, "507");
    EXPECT_EQ(Brennmenue.ED_IBA_H, "1FB");
    EXPECT_EQ(Brennmenue.BR_EBA_D, "0");
    EXPECT_EQ(Brennmenue.BR_LBA_D, "506");
    EXPECT_EQ(Brennmenue.BR_LBA_H, "1FA");
    EXPECT_EQ(Brennmenue.IC_GS_D, "4095");
    EXPECT_EQ(Brennmenue.IC_GS_H, "FFF");
    EXPECT_TRUE(Brennmenue.Brennen_Aktiv);
    EXPECT_TRUE(Brennmenue.O_No_Splitting);
}

TEST_F(Brennmenue_Test, bytes_above_the_device_do_not_count)
{
    Hex_Daten[10]   = 0;
    Hex_Daten[4096] = 0;
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.ED_LBA_D, "10");
}

TEST_F(Brennmenue_Test, the_device_is_named_in_both_languages)
{
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.Label_IC, "27C256, memory area from 0 to:");
    Sprache                       = "D";
    Geraete_Tabelle[0].Menue_Name = "Mein EPROM";
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.Label_IC, "Mein EPROM, Speicherbereich von 0 bis:");
}

TEST_F(Brennmenue_Test, an_empty_editor_cannot_be_programmed)
{
    for (const auto& [Kuerzel, Wort] : {std::pair{"D", "LEER"}, std::pair{"E", "EMPTY"}}) {
        Sprache = Kuerzel;
        MNU_IC_Brennen_Click();
        EXPECT_EQ(Brennmenue.ED_EBA_D, Wort);
        EXPECT_EQ(Brennmenue.ED_EBA_H, Wort);
        EXPECT_EQ(Brennmenue.ED_LBA_D, Wort);
        EXPECT_EQ(Brennmenue.ED_LBA_H, Wort);
        EXPECT_EQ(Brennmenue.ED_IBA_D, "0");
        EXPECT_EQ(Brennmenue.ED_IBA_H, "0");
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv);
        EXPECT_FALSE(Brennmenue.BR_EBA_Aktiv);
        EXPECT_FALSE(Brennmenue.BR_LBA_Aktiv);
        BR_EBA_D_Change("0"); // a disabled box
        BR_EBA_H_Change("0");
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv);
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Keiner);
    }
}

TEST_F(Brennmenue_Test, devices_that_are_written_to_their_end_take_the_whole_range)
{
    for (const char* Name : {"48Z08", "M28C256", "AT28C256", "29C256"}) {
        Einsetzen(Name, 4096);
        MNU_IC_Brennen_Click();
        EXPECT_EQ(Brennmenue.ED_LBA_D, "4095") << Name;
    }
    Einsetzen("48T08", 4096);
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.ED_LBA_D, "4087");
}

TEST_F(Brennmenue_Test, the_device_is_read_when_the_option_says_so)
{
    Inhalt()[0x2A] = 1;
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.IC_LBA_D, "42");
    EXPECT_EQ(Brennmenue.IC_LBA_H, "2A");
    C_IC_vor_B = false;
    Spur();
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.IC_LBA_D, "-");
    EXPECT_EQ(Spur(), "");
}

TEST_F(Brennmenue_Test, an_empty_device_is_told_in_both_languages_and_needs_no_note)
{
    Einsetzen("27SF256", 4096, "27SF");
    Hex_Daten[0] = 1;
    for (const auto& [Kuerzel, Wort] : {std::pair{"D", "LEER"}, std::pair{"E", "EMPTY"}}) {
        Sprache = Kuerzel;
        MNU_IC_Brennen_Click();
        EXPECT_EQ(Brennmenue.IC_LBA_D, Wort);
        EXPECT_EQ(Brennmenue.IC_LBA_H, Wort);
        EXPECT_EQ(Brennmenue.Überbrennen, "");
        EXPECT_FALSE(Brennmenue.Löschen);
    }
}

TEST_F(Brennmenue_Test, while_the_device_is_read_the_fields_say_so)
{
    std::string D;
    std::string H;
    Ereignisse.Bei_Runde = [&](int) {
        D = Brennmenue.IC_LBA_D;
        H = Brennmenue.IC_LBA_H;
    };
    MNU_IC_Brennen_Click();
    EXPECT_EQ(D, "read...");
    EXPECT_EQ(H, "read...");
    Sprache = "D";
    MNU_IC_Brennen_Click();
    EXPECT_EQ(D, "gelesen");
    EXPECT_EQ(H, "wird");
}

TEST_F(Brennmenue_Test, a_read_that_is_given_up_shows_question_marks)
{
    Ereignisse.Bei_Runde = [](int) { Abbruch = true; };
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.IC_LBA_D, "?");
    EXPECT_EQ(Brennmenue.IC_LBA_H, "?");
    EXPECT_TRUE(Brennmenue.Offen);
}

TEST_F(Brennmenue_Test, only_the_first_activation_sets_the_fields)
{
    Hex_Daten[5] = 0;
    MNU_IC_Brennen_Click();
    ED_LBA_D_Change("3");
    Spur();
    Brennmenue_Activate();
    EXPECT_EQ(Brennmenue.ED_LBA_D, "3");
    EXPECT_EQ(Spur(), "");
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.ED_LBA_D, "5") << "a new opening sets them anew";
}

TEST_F(Brennmenue_Test, erasing_is_ticked_for_erasable_devices_that_hold_something)
{
    for (const char* E : {"89CII", "28C", "28F", "27SF", "29C", "UV", ""}) {
        Einsetzen("X", 64, E);
        Inhalt()[0] = 1;
        MNU_IC_Brennen_Click();
        const std::string_view e(E);
        EXPECT_EQ(Brennmenue.Löschen,
                  e.starts_with("89") || e.starts_with("28") || e.starts_with("27SF"))
            << E;
    }
}

TEST_F(Brennmenue_Test, without_the_read_the_editor_decides_on_erasing)
{
    Einsetzen("27SF256", 64, "27SF");
    C_IC_vor_B = false;
    MNU_IC_Brennen_Click();
    EXPECT_FALSE(Brennmenue.Löschen);
    Hex_Daten[0] = 0;
    MNU_IC_Brennen_Click();
    EXPECT_TRUE(Brennmenue.Löschen);
}

TEST_F(Brennmenue_Test, the_note_tells_whether_overprogramming_works)
{
    const std::string Geht_D  = "Bestehende Daten können bei diesem Bauteil ohne vorhergehendes "
                                "Löschen übergebrannt werden.";
    const std::string Nicht_D = "Bestehende Daten können bei diesem Bauteil NICHT ohne "
                                "vorhergehendes Löschen übergebrannt werden.";
    const std::string Geht_E  = "Already programmed addresses CAN be programmed without preceding "
                                "erasing of this ic.";
    const std::string Nicht_E =
        "Already programmed addresses CAN'T be programmed without preceding "
        "erasing of this ic.";
    C_IC_vor_B = false;
    for (const auto& [P, Geht] : {std::pair{"89C51", false},
                                  std::pair{"27C256", false},
                                  std::pair{"28F010", false},
                                  std::pair{"28C256", true},
                                  std::pair{"29C256", true},
                                  std::pair{"87C257", true}}) {
        Geraete_Tabelle[0].P_Typ = P;
        Sprache                  = "D";
        MNU_IC_Brennen_Click();
        EXPECT_EQ(Brennmenue.Überbrennen, Geht ? Geht_D : Nicht_D) << P;
        Sprache = "E";
        MNU_IC_Brennen_Click();
        EXPECT_EQ(Brennmenue.Überbrennen, Geht ? Geht_E : Nicht_E) << P;
    }
}

TEST_F(Brennmenue_Test, the_note_is_dark_red_for_devices_that_need_ultraviolet_light)
{
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.Überbrennen_Farbe, 192u);
    Geraete_Tabelle[0].E_Typ = "27SF";
    MNU_IC_Brennen_Click();
    EXPECT_EQ(Brennmenue.Überbrennen_Farbe, 0x80000012u);
}

// ---- pairs and recalculation ----

class Felder_Test : public Brennmenue_Test {
protected:
    void SetUp() override
    {
        Brennmenue_Test::SetUp();
        Hex_Daten[9] = 0;
        C_IC_vor_B   = false;
        MNU_IC_Brennen_Click();
    }
};

TEST_F(Felder_Test, a_hexadecimal_box_is_written_in_upper_case_and_sets_its_twin)
{
    ED_LBA_H_Change("1fa");
    EXPECT_EQ(Brennmenue.ED_LBA_H, "1FA");
    EXPECT_EQ(Brennmenue.ED_LBA_D, "506");
    ED_EBA_H_Change("0f");
    EXPECT_EQ(Brennmenue.ED_EBA_H, "0F");
    EXPECT_EQ(Brennmenue.ED_EBA_D, "15");
    BR_EBA_H_Change("a");
    EXPECT_EQ(Brennmenue.BR_EBA_H, "A");
    EXPECT_EQ(Brennmenue.BR_EBA_D, "10");
}

TEST_F(Felder_Test, a_decimal_box_sets_its_twin_by_what_it_begins_with)
{
    ED_LBA_D_Change("506xyz");
    EXPECT_EQ(Brennmenue.ED_LBA_D, "506xyz");
    EXPECT_EQ(Brennmenue.ED_LBA_H, "1FA");
    ED_EBA_D_Change(" 1 5");
    EXPECT_EQ(Brennmenue.ED_EBA_H, "F");
    BR_EBA_D_Change("");
    EXPECT_EQ(Brennmenue.BR_EBA_H, "0");
}

TEST_F(Felder_Test, a_hexadecimal_box_that_is_emptied_gives_0_in_its_twin)
{
    ED_LBA_H_Change("");
    EXPECT_EQ(Brennmenue.ED_LBA_D, "0");
    BR_EBA_H_Change("");
    EXPECT_EQ(Brennmenue.BR_EBA_D, "0");
}

TEST_F(Felder_Test, the_key_filter_takes_hexadecimal_digits_backspace_and_83)
{
    const std::string Erlaubt = "0123456789abcdefABCDEFS\b";
    for (int k = -1; k < 300; ++k)
        EXPECT_EQ(Hex_Taste_Erlaubt(k),
                  k > 0 && k < 128 && Erlaubt.find(static_cast<char>(k)) != std::string::npos)
            << k;
}

TEST_F(Felder_Test, the_number_of_bytes_follows_the_range)
{
    ED_EBA_D_Change("4");
    EXPECT_EQ(Brennmenue.ED_IBA_D, "6");
    EXPECT_EQ(Brennmenue.BR_LBA_D, "5");
    ED_LBA_D_Change("19");
    EXPECT_EQ(Brennmenue.ED_IBA_D, "16");
    EXPECT_EQ(Brennmenue.ED_IBA_H, "10");
    EXPECT_EQ(Brennmenue.BR_LBA_H, "F");
}

TEST_F(Felder_Test, a_range_that_ends_before_it_begins_is_an_error_in_both_languages)
{
    for (const auto& [Kuerzel, Wort] : {std::pair{"D", "FEHLER"}, std::pair{"E", "ERROR"}}) {
        Sprache = Kuerzel;
        ED_EBA_D_Change("9");
        EXPECT_EQ(Brennmenue.ED_IBA_D, "1") << "one byte is a range";
        EXPECT_TRUE(Brennmenue.Brennen_Aktiv);
        const std::string Vorher = Brennmenue.BR_LBA_D;
        ED_EBA_D_Change("10");
        EXPECT_EQ(Brennmenue.ED_IBA_D, Wort);
        EXPECT_EQ(Brennmenue.ED_IBA_H, Wort);
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv);
        EXPECT_EQ(Brennmenue.BR_LBA_D, Vorher) << "nothing else happens";
    }
}

TEST_F(Felder_Test, an_error_in_the_editor_fields_keeps_the_button_off_whatever_the_ic_address_is)
{
    for (const char* Kuerzel : {"D", "E"}) {
        Sprache = Kuerzel;
        ED_EBA_D_Change("10");
        BR_EBA_D_Change("3");
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv) << Kuerzel;
        BR_EBA_H_Change("0");
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv) << Kuerzel;
        BR_EBA_D_Change("5000");
        EXPECT_EQ(Brennmenue.BR_LBA_D, "HOCH  ");
        BR_EBA_D_Change("0");
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Keiner);
        ED_EBA_D_Change("9");
        EXPECT_TRUE(Brennmenue.Brennen_Aktiv) << "a range again";
    }
}

TEST_F(Felder_Test, an_empty_editor_is_not_programmed_while_one_end_of_its_range_says_so)
{
    for (const char* Kuerzel : {"D", "E"}) {
        Bild_Loeschen();
        Sprache = Kuerzel;
        MNU_IC_Brennen_Click();
        ED_EBA_D_Change("0");
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv) << Kuerzel;
        MNU_IC_Brennen_Click();
        ED_LBA_H_Change("1F");
        EXPECT_FALSE(Brennmenue.Brennen_Aktiv) << Kuerzel;
        ED_EBA_H_Change("0"); // both are the user's own now
        EXPECT_TRUE(Brennmenue.Brennen_Aktiv) << Kuerzel;
    }
}

TEST_F(Felder_Test, a_range_may_end_exactly_at_the_last_address_and_not_one_byte_later)
{
    BR_EBA_D_Change("4086"); // ten bytes to 4095
    EXPECT_EQ(Brennmenue.BR_LBA_D, "4095");
    EXPECT_TRUE(Brennmenue.Brennen_Aktiv);
    BR_EBA_D_Change("4087");
    EXPECT_EQ(Brennmenue.BR_LBA_H, "ZU  ");
    EXPECT_EQ(Brennmenue.BR_LBA_D, "HOCH  ");
    EXPECT_FALSE(Brennmenue.Brennen_Aktiv);
    Brennen_Click();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Keiner);
    ED_LBA_D_Change("8");
    EXPECT_EQ(Brennmenue.BR_LBA_D, "4095");
    EXPECT_TRUE(Brennmenue.Brennen_Aktiv);
}

TEST_F(Felder_Test, the_text_of_DAT00_follows_the_first_ic_address_in_german_only)
{
    EXPECT_EQ(Brennmenue.DAT00_Text, "Brenne alles vor der IC Adresse 0/0 auf 00.");
    BR_EBA_D_Change("255");
    EXPECT_EQ(Brennmenue.DAT00_Text, "Brenne alles vor der IC Adresse 255/FF auf 00.");
}

TEST_F(Felder_Test, numbers_beyond_all_bounds_end_well)
{
    ED_EBA_D_Change("-99999999999");
    ED_LBA_D_Change("99999999999");
    BR_EBA_D_Change("99999999999");
    EXPECT_FALSE(Brennmenue.Brennen_Aktiv);
    BR_EBA_H_Change(std::string(1000, 'F'));
    EXPECT_FALSE(Brennmenue.Brennen_Aktiv);
}

TEST_F(Felder_Test, one_of_the_three_splits_is_on)
{
    Splitting_Waehlen(Splitting::Gerade);
    EXPECT_FALSE(Brennmenue.O_No_Splitting);
    EXPECT_TRUE(Brennmenue.O_Even_Splitting);
    EXPECT_FALSE(Brennmenue.O_Odd_Splitting);
    Splitting_Waehlen(Splitting::Ungerade);
    EXPECT_FALSE(Brennmenue.O_Even_Splitting);
    EXPECT_TRUE(Brennmenue.O_Odd_Splitting);
    Splitting_Waehlen(Splitting::Kein);
    EXPECT_TRUE(Brennmenue.O_No_Splitting);
    EXPECT_FALSE(Brennmenue.O_Odd_Splitting);
}

// ---- buttons ----

TEST_F(Felder_Test, cancel_closes_the_dialog_and_sets_nothing)
{
    Antwort = 77;
    Spur();
    Abbrechen_Click();
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_EQ(Antwort, 77);
    EXPECT_EQ(Spur(), "");
}

TEST_F(Felder_Test, more_grows_the_form_to_8040_twips_and_back)
{
    const int Vorher = Brennmenue.Hoehe;
    Weiteres_Click();
    EXPECT_EQ(Brennmenue.Hoehe, 8040);
    Weiteres_Click();
    EXPECT_EQ(Brennmenue.Hoehe, Vorher);
}

TEST_F(Felder_Test, the_program_type_chooses_the_routine)
{
    for (const char* P : {"27C256",
                          "87C257",
                          "27SF256",
                          "28C256",
                          "28F010",
                          "29C256",
                          "89C1051",
                          "89C2051",
                          "89C4051"}) {
        Geraete_Tabelle[0].P_Typ = P;
        EXPECT_TRUE(Brennen_Bedient()) << P;
    }
    Spur();
    for (const char* P : {"89C51", "48Z08", ""}) {
        Geraete_Tabelle[0].P_Typ = P;
        EXPECT_FALSE(Brennen_Bedient()) << P;
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Nicht_Verfuegbar) << P;
    }
    EXPECT_EQ(Spur(), "");
}

TEST_F(Felder_Test, a_device_without_a_routine_is_told_in_both_languages_and_nothing_is_erased)
{
    Geraete_Tabelle[0].P_Typ      = "XYZ";
    Geraete_Tabelle[0].E_Typ      = "28C";
    Geraete_Tabelle[0].Menue_Name = "Mein IC";
    Brennmenue.Löschen            = true;
    Spur();
    Brennen_Click();
    Sprache = "D";
    Brennen_Click();
    ASSERT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Mein IC can't be programmed: there is no programming routine for its type.");
    EXPECT_EQ(Box.Meldungen[1].Text,
              "Mein IC kann nicht gebrannt werden: für seinen Typ gibt es keine Brennroutine.");
    EXPECT_TRUE(Brennmenue.Offen);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_EQ(Spur(), "");
}

TEST_F(Felder_Test, on_the_tessel2_board_any_other_type_is_a_microcontroller)
{
    Geraete_Tabelle[0].Programmer = 3;
    for (const char* P : {"89C51", "89F54", ""}) {
        Geraete_Tabelle[0].P_Typ = P;
        EXPECT_TRUE(Brennen_Bedient()) << P;
    }
}

TEST_F(Felder_Test, an_erase_type_without_a_routine_is_passed_over)
{
    Brennmenue.Löschen = true;
    for (const char* E : {"UV", "29C", ""}) {
        Geraete_Tabelle[0].E_Typ = E;
        Brennen_Click();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << E;
        Brennmenue.Offen = true;
    }
}

TEST_F(Felder_Test, programming_shows_an_hourglass_and_closes_the_dialog)
{
    bool Wartet          = false;
    Ereignisse.Bei_Runde = [&](int) { Wartet = Ereignisse.Zeiger_Wartet; };
    Brennen_Click();
    EXPECT_TRUE(Wartet);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_FALSE(Brennmenue.Offen);
}

// ---- menu commands and a stale source ----

TEST_F(Brennmenue_Test, a_stale_source_is_assembled_first)
{
    Modus = Modus_MC;
    Edit.Text_Setzen("MOV A,#5\r\nRET\r\n");
    MNU_IC_Brennen_Click();
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_EQ(Brennmenue.ED_LBA_D, "2");
    EXPECT_EQ(Hex_Daten[0], 0x74);
    Brennmenue.Offen = false;
    Edit.Text_Setzen("MOV A,#5\r\nRET\r\n");
    Text_Aktuell = false;
    MNU_IC_Prüfen_Click();
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_TRUE(CheckIC.Offen);
}

TEST_F(Brennmenue_Test, a_source_with_an_error_opens_nothing)
{
    Modus = Modus_MC;
    Edit.Text_Setzen("XYZZY\r\n");
    MNU_IC_Brennen_Click();
    MNU_IC_Prüfen_Click();
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_FALSE(CheckIC.Offen);
    EXPECT_NE(Assembler_Fehler, 0);
}

TEST_F(Brennmenue_Test, a_source_in_step_is_not_assembled_again)
{
    Modus = Modus_MC;
    Edit.Text_Setzen("XYZZY\r\n");
    Text_Aktuell = true;
    MNU_IC_Brennen_Click();
    EXPECT_TRUE(Brennmenue.Offen);
}

TEST_F(Brennmenue_Test, in_the_hex_editor_mode_the_image_is_taken_as_it_is)
{
    Edit.Text_Setzen("XYZZY\r\n");
    MNU_IC_Brennen_Click();
    EXPECT_TRUE(Brennmenue.Offen);
}

TEST_F(Brennmenue_Test, a_reset_empties_every_field)
{
    Hex_Daten[5] = 0;
    MNU_IC_Brennen_Click();
    Adj_257     = 1;
    Pruef_Modus = true;
    Versuch     = 9;
    Brenner_Zuruecksetzen();
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_EQ(Brennmenue.IC_LBA_D, "-");
    EXPECT_EQ(Brennmenue.ED_LBA_D, "");
    EXPECT_FALSE(Porttreiber_OK);
    EXPECT_EQ(Adj_257, 0);
    EXPECT_FALSE(Pruef_Modus);
    EXPECT_EQ(Versuch, 1);
    EXPECT_EQ(IC_Nummer, 0) << "the device table is no business of this reset";
}

} // namespace
} // namespace varnholt::test
