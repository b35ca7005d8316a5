// EEPROM, flash and page routines and the erases: ranges and options, faults with their messages,
// progress, cancel, and what the dialog and the menu command do with them.
#include "core/commands.h"
#include "programmer/Brenn_Modell_Welt.h"
#include "programmer/Seiten_Schreiben.h"

#include <numeric>

namespace varnholt::test {
namespace {

// One device of each routine.
struct Familie_T {
    const char*  Name;
    std::int32_t Bytes;
    const char*  R;
    const char*  P;
    std::int32_t Seite;
};

constexpr Familie_T Familien[] = {
    {"28C256", 1024, "28C256", "28C256", 0},
    {"28F010", 1024, "28F010", "28F010", 0},
    {"29C256", 1024, "29C256", "29C256", 64},
    {"29C010", 1024, "29C040", "29C010", 64},
};

class Flash_Test : public Modell_Welt {
protected:
    void Familie(const Familie_T& f) { Einsetzen(f.Name, f.Bytes, f.R, f.P, f.Seite); }
    // An EEPROM of that many bytes that is known to be empty, and the image's first bytes.
    void EEPROM_Mit(std::int32_t Bytes, const std::vector<std::uint8_t>& Bild)
    {
        Einsetzen("28C256", Bytes, "28C256", "28C256");
        Bild_Fuellen(Bild);
    }
    void Flash_Mit(std::int32_t Bytes, const std::vector<std::uint8_t>& Bild)
    {
        Einsetzen("28F010", Bytes, "28F010", "28F010");
        Bild_Fuellen(Bild);
    }
    void Seiten_Mit(std::int32_t Bytes, std::int32_t Seite)
    {
        Einsetzen("29C256", Bytes, "29C256", "29C256", Seite);
        Bild_Zufaellig(Bytes, 7);
    }
    static void Leer() { Brennmenue.IC_LBA_D = "EMPTY"; }
    std::size_t Zeilen(const std::string& Spur_Text, const std::string& Zeile)
    {
        std::size_t n = 0;
        for (std::size_t p = 0; (p = Spur_Text.find(Zeile, p)) != std::string::npos; ++p)
            ++n;
        return n;
    }
};

class Familien_Test : public Flash_Test, public ::testing::WithParamInterface<Familie_T> {
protected:
    void SetUp() override { Familie(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Families, Familien_Test, ::testing::ValuesIn(Familien), [](const auto& i) {
    return std::string(i.param.Name);
});

// ---- from the image into the cells ----

TEST_P(Familien_Test, random_data_are_written_verified_and_compared)
{
    Bild_Zufaellig(GetParam().Bytes);
    C_IC_nach_B = true;
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_TRUE(CheckIC.Offen);
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Board().Buskonflikte(), 0);
}

TEST_P(Familien_Test, two_devices_with_a_split_share_the_image)
{
    for (const Splitting Wahl : {Splitting::Gerade, Splitting::Ungerade}) {
        Familie(GetParam());
        Bild_Zufaellig(2 * GetParam().Bytes);
        C_IC_nach_B = true;
        Brennen([&] { Splitting_Waehlen(Wahl); });
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
        for (std::size_t a = 0; a < Inhalt().size(); ++a)
            ASSERT_EQ(Inhalt()[a], Hex_Daten[2 * a + (Wahl == Splitting::Ungerade ? 1 : 0)]);
        EXPECT_TRUE(CheckIC.Gleich);
    }
}

TEST_P(Familien_Test, a_run_of_equal_bytes_is_written)
{
    std::fill_n(Hex_Daten.begin(), GetParam().Bytes, std::uint8_t{0});
    std::fill_n(Hex_Daten.begin() + 100, 300, std::uint8_t{0xFE});
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_P(Familien_Test, with_C_IC_nach_B_off_no_comparison_opens)
{
    Bild_Zufaellig(GetParam().Bytes);
    Brennen();
    EXPECT_FALSE(CheckIC.Offen);
    EXPECT_FALSE(CheckIC.Seiten_Bewiesen) << "a later comparison reads anew";
}

TEST_P(Familien_Test, nothing_in_the_image_changes)
{
    Bild_Zufaellig(GetParam().Bytes);
    const auto Vorher = Hex_Daten;
    Brennen();
    EXPECT_TRUE(Hex_Daten == Vorher);
}

TEST_P(Familien_Test, No_FF_has_its_value_again_behind_every_way_out)
{
    Bild_Zufaellig(GetParam().Bytes);
    for (const bool Wert : {false, true}) {
        No_FF = Wert;
        Brennen();
        EXPECT_EQ(No_FF, Wert);
        Ereignisse.Bei_Runde = [](int) { Abbruch = true; };
        Brennen();
        EXPECT_EQ(No_FF, Wert);
        Ereignisse.Bei_Runde          = {};
        Board().Fehler.Baustein_Stumm = true;
        Brennen();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
        EXPECT_EQ(No_FF, Wert);
        Board().Fehler.Baustein_Stumm = false;
    }
}

TEST_P(Familien_Test, a_wrap_of_the_clock_ends_a_wait_instead_of_hanging_it)
{
    Bild_Zufaellig(GetParam().Bytes);
    Board().Uhr_Stellen(0x7FFFFFFF - 5000);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << "the address is done again";
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_P(Familien_Test, records_with_odd_sizes_and_times_end_well)
{
    for (const std::int32_t Bytes : {1, 3, 65}) {
        Familie_T f = GetParam();
        f.Bytes     = Bytes;
        Familie(f);
        Bild_Zufaellig(2000);
        Brennen();
        // A device that is smaller than its page has no address lines for it.
        EXPECT_EQ(Brenn_Ergebnis, Bytes >= f.Seite ? Brenn_Ausgang::Fertig : Brenn_Ausgang::Fehler)
            << Bytes;
        EXPECT_EQ(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()), Bytes >= f.Seite)
            << Bytes;
    }
    for (const int Zeit : {0, -3, 2147483647}) {
        Familie(GetParam());
        Geraete_Tabelle[0].P_Timing = Zeit;
        Neu_Aufbauen();
        Hex_Daten[0] = 1;
        C_IC_bei_B   = false;
        Brennen([] { Leer(); });
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Zeit;
    }
}

// ---- progress and cancel ----

TEST_P(Familien_Test, progress_is_shown_at_each_percent_in_both_languages)
{
    Bild_Zufaellig(GetParam().Bytes);
    const bool        Seiten = GetParam().Seite > 0;
    const std::string Name   = GetParam().Name;
    Brennen();
    EXPECT_EQ(Status.Texte.front(), Name + " Programming ");
    EXPECT_EQ(Status.Texte[1], Name + (Seiten ? " Programming ... 6%" : " Programming ... 1%"));
    EXPECT_EQ(Status.Balken.front(), 1);
    EXPECT_EQ(Status.Balken.back(), 100);
    EXPECT_EQ(Status.Geoeffnet, 1);
    Sprache                       = "D";
    Geraete_Tabelle[0].Menue_Name = "Mein IC";
    Status.Texte.clear();
    Brennen();
    EXPECT_EQ(Status.Texte.front(), "Mein IC wird gebrannt...");
    EXPECT_EQ(Status.Texte[1],
              Seiten ? "Mein IC wird gebrannt... 6%" : "Mein IC wird gebrannt... 1%");
    EXPECT_EQ(Status.Texte.size() == 101u, !Seiten);
}

TEST_P(Familien_Test, a_cancel_at_any_step_ends_the_run_without_a_message)
{
    Bild_Zufaellig(GetParam().Bytes);
    Brennen();
    const int Schritte = Ereignisse.Runden;
    ASSERT_GT(Schritte, 100 / 8);
    for (int n = 1; n <= Schritte; n += Schritte > 200 ? 10 : 1) {
        Familie(GetParam());
        Bild_Zufaellig(GetParam().Bytes);
        C_IC_nach_B          = true;
        Ereignisse.Runden    = 0;
        Ereignisse.Bei_Runde = [n](int Runde) { Abbruch = Runde == n; };
        Brennen();
        ASSERT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen) << n;
        EXPECT_EQ(Antwort, Antwort_Abbrechen);
        EXPECT_FALSE(Abbruch);
        EXPECT_FALSE(Status.Offen);
        EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
        EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
        EXPECT_FALSE(Brennmenue.Offen);
        EXPECT_FALSE(CheckIC.Offen);
        EXPECT_FALSE(Pruef_Modus);
        EXPECT_TRUE(Box.Meldungen.empty());
        EXPECT_TRUE(Spur().ends_with(GetParam().Seite > 0 ? "W D 4A\n" : "W D 5A\n")) << n;
    }
}

TEST_P(Familien_Test, a_cancel_from_before_writes_nothing)
{
    Bild_Zufaellig(GetParam().Bytes);
    Brennen([] { Abbruch = true; });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_EQ(Inhalt(), std::vector<std::uint8_t>(Inhalt().size(), 0xFF));
}

TEST_P(Familien_Test, a_run_after_a_cancelled_one_completes_the_device)
{
    Bild_Zufaellig(GetParam().Bytes);
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 7; };
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    Ereignisse.Bei_Runde = {};
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_P(Familien_Test, the_dialogs_of_a_failed_run_close_and_nothing_is_compared)
{
    Bild_Zufaellig(GetParam().Bytes);
    C_IC_nach_B                   = true;
    Board().Fehler.Baustein_Stumm = true;
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Titel, "Warning");
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_FALSE(CheckIC.Offen);
}

// ---- byte by byte: the messages ----

class Byteweise_Test : public Familien_Test {};

INSTANTIATE_TEST_SUITE_P(Families,
                         Byteweise_Test,
                         ::testing::Values(Familien[0], Familien[1]),
                         [](const auto& i) { return std::string(i.param.Name); });

TEST_P(Byteweise_Test, a_dead_cell_is_reported_in_both_languages_after_ten_writes)
{
    Hex_Daten[300] = 0xA5;
    Board().Baustein()->Tote_Zelle(300, 0x0A);
    Brennen([] { Leer(); });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_EQ(Versuch, 11);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text, "Error while programming address 300(dec) / 12C(hex) !");
    EXPECT_EQ(Box.Meldungen[0].Titel, "Warning");
    EXPECT_EQ(Box.Meldungen[0].Bild, Symbol::Kritisch);
    EXPECT_TRUE(Spur().ends_with("W D 5B\n"));
    Sprache = "D";
    Brennen([] { Leer(); });
    EXPECT_EQ(Letzte_Meldung(),
              "Fehler beim Brennen der Adresse 300(dez) / 12C(hex) !\r\nDiese Adresse sollte auf "
              "'A5'(hex) gebrannt werden, sie bleibt aber auf 'AF'(hex)!");
    EXPECT_EQ(Box.Meldungen[1].Titel, "Warnung");
}

TEST_P(Byteweise_Test, a_failure_in_attempt_ten_is_no_error_yet)
{
    Hex_Daten[3] = 0x11;
    Board().Baustein()->Schwache_Zelle(3, 10);
    Brennen([] { Leer(); });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    Familie(GetParam());
    Hex_Daten[3] = 0x11;
    Board().Baustein()->Schwache_Zelle(3, 11);
    Brennen([] { Leer(); });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
}

TEST_P(Byteweise_Test, without_verification_a_dead_cell_is_found_by_the_comparison_only)
{
    Bild_Fuellen({1, 2, 3, 4});
    Board().Baustein()->Tote_Zelle(2, 0xFF);
    C_IC_bei_B  = false;
    C_IC_nach_B = true;
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_FALSE(CheckIC.Gleich);
    EXPECT_EQ(CheckIC.Erste_Abweichung, 2);
}

TEST_P(Byteweise_Test, each_stuck_line_is_found_whichever_way_it_sticks)
{
    for (int Bit = 0; Bit < 8; ++Bit) {
        const auto b = static_cast<std::uint8_t>(1 << Bit);
        for (const bool Hoch : {false, true}) {
            Familie(GetParam());
            Bild_Fuellen({static_cast<std::uint8_t>(Hoch ? 0x00 : 0xFE | b)});
            if (!Hoch && Bit == 0)
                Hex_Daten[0] = 1;
            (Hoch ? Board().Fehler.Klemmt_Auf_1 : Board().Fehler.Klemmt_Auf_0) = b;
            Brennen([] { Leer(); });
            EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler) << Bit << Hoch;
            EXPECT_NE(Letzte_Meldung().find("74HC595"), std::string::npos) << Bit << Hoch;
        }
    }
}

TEST_P(Byteweise_Test, a_dead_board_is_found_whatever_its_lines_read_as)
{
    for (const int s : {0x80, 0x7F, 0x00, 0xF0}) {
        Bild_Fuellen({0x12});
        Board().Fehler.Tot        = true;
        Board().Fehler.Tot_Status = static_cast<std::uint8_t>(s);
        Brennen([] { Leer(); });
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler) << s;
    }
}

TEST_P(Byteweise_Test, a_cancel_in_the_middle_of_retries_ends_the_run)
{
    Bild_Fuellen({0x12});
    Board().Baustein()->Tote_Zelle(0, 0xFF);
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 6; };
    Brennen([] { Leer(); });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_EQ(Versuch, 5);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Flash_Test, an_EEPROM_on_a_stuck_line_is_reported_in_both_languages_after_ten_loads)
{
    EEPROM_Mit(64, {});
    Hex_Daten[20]               = 0x0A;
    Board().Fehler.Klemmt_Auf_0 = 0x02;
    Brennen([] { Leer(); });
    EXPECT_EQ(Letzte_Meldung(),
              "Error while programming address 20(dec) / 14(hex) !\r\nCan't send data 'A'(hex) to "
              "the 74HC595 or can't read it back with 74HC157. Please check your hardware!");
    EXPECT_EQ(Zeilen(Spur(), "U 14\n"), 10u);
    Sprache = "D";
    Brennen([] { Leer(); });
    EXPECT_EQ(
        Letzte_Meldung(),
        "Fehler beim Brennen der Adresse 20(dez) / 14(hex) !\r\nDie Übermittlung der Daten "
        "'A'(hex) an den 74HC595 funktionierte nicht oder die Daten konnten nicht vom 74HC157 "
        "korrekt eingelesen werden! Bitte überprüfen Sie die Hardware!");
}

TEST_F(Flash_Test, a_flash_memory_on_a_stuck_line_fails_with_the_command_that_did_not_arrive)
{
    Flash_Mit(64, {0xFE});
    C_IC_bei_B                  = false;
    Board().Fehler.Klemmt_Auf_0 = 0x40;
    Brennen();
    EXPECT_EQ(Letzte_Meldung(),
              "Error while programming address 0(dec) / 0(hex) !\r\nCan't send data '40'(hex) to "
              "the 74HC595 or can't read it back with 74HC157. Please check your hardware!");
    EXPECT_EQ(Zeilen(Spur(), "U 14\n"), 10u);
    Sprache                     = "D";
    Board().Fehler.Klemmt_Auf_0 = 0x08;
    Brennen();
    EXPECT_EQ(
        Letzte_Meldung(),
        "Fehler beim Brennen der Adresse 0(dez) / 0(hex) !\r\nDie Übermittlung der Daten "
        "'FE'(hex) an den 74HC595 funktionierte nicht oder die Daten konnten nicht vom 74HC157 "
        "korrekt eingelesen werden! Bitte überprüfen Sie die Hardware!");
}

TEST_F(Flash_Test, a_flash_memory_without_its_verify_command_on_the_bus_fails_too)
{
    Flash_Mit(64, {0xFF, 0x21});
    No_FF                       = false;
    Board().Fehler.Klemmt_Auf_0 = 0x80; // 40h arrives, FFh doesn't
    Brennen();
    EXPECT_NE(Letzte_Meldung().find("'FF'"), std::string::npos);
    No_FF = true;
    Brennen();
    EXPECT_NE(Letzte_Meldung().find("'C0'"), std::string::npos);
}

// ---- EEPROM ----

TEST_F(Flash_Test, an_EEPROM_that_is_known_to_be_empty_keeps_its_FFh_unwritten)
{
    EEPROM_Mit(16, {1, 0xFF, 3});
    Brennen([] { Leer(); });
    EXPECT_EQ(Zeilen(Spur(), "W D 12\n"), 2u) << "two strobes";
    Brennen([] { Brennmenue.IC_LBA_D = "LEER"; });
    EXPECT_EQ(Zeilen(Spur(), "W D 12\n"), 2u);
    EXPECT_EQ(Bis_Adresse, 2);
}

TEST_F(Flash_Test, a_written_EEPROM_is_written_with_FFh_too_up_to_its_end)
{
    EEPROM_Mit(16, {1, 0xFF, 3});
    std::fill(Inhalt().begin(), Inhalt().end(), std::uint8_t{0});
    Brennen();
    EXPECT_EQ(Zeilen(Spur(), "W D 12\n"), 16u);
    EXPECT_EQ(Bis_Adresse, 15);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_F(Flash_Test, with_the_erase_ticked_No_FF_is_honoured)
{
    EEPROM_Mit(16, {1, 0xFF, 3});
    std::fill(Inhalt().begin(), Inhalt().end(), std::uint8_t{0});
    Brennen([] { Brennmenue.Löschen = true; });
    EXPECT_EQ(Zeilen(Spur(), "W D 12\n"), 2u);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_F(Flash_Test, an_M28_part_never_has_its_No_FF_honoured)
{
    Einsetzen("M28C256", 16, "28C256", "28C256");
    Bild_Fuellen({1, 0xFF, 3});
    Brennen([] { Leer(); });
    EXPECT_EQ(Zeilen(Spur(), "W D 12\n"), 16u);
    EXPECT_EQ(Bis_Adresse, 15);
}

TEST_F(Flash_Test,
       a_48_part_never_has_its_No_FF_honoured_and_its_lower_addresses_are_not_passed_over)
{
    Einsetzen("48Z08", 16, "28C64", "28C64");
    std::iota(Inhalt().begin(), Inhalt().end(), std::uint8_t{0x80});
    Hex_Daten[1] = 0x11;
    Brennen([] {
        Leer();
        ED_LBA_D_Change("2");
        BR_EBA_D_Change("5");
    });
    EXPECT_EQ(Bis_Adresse, 7) << "the field, not the device's end";
    const std::string s = Spur();
    EXPECT_EQ(Zeilen(s, "W D 12\n"), 8u) << "from address 0 on, FFh too";
    EXPECT_TRUE(s.starts_with("W D 5A\nW C 09\nM 1\nW C 0B\nM 1\nW D 4B\nW D 4F\n"));
    EXPECT_EQ(
        Inhalt(),
        (std::vector<std::uint8_t>{
            0, 0, 0, 0, 0, 0xFF, 0x11, 0xFF, 0x88, 0x89, 0x8A, 0x8B, 0x8C, 0x8D, 0x8E, 0x8F}));
}

TEST_F(Flash_Test, a_48_part_goes_to_its_field_with_No_FF_off_too)
{
    Einsetzen("48T08", 16, "28C64", "28C64");
    Bild_Fuellen({1, 2, 3});
    No_FF = false;
    Brennen([] { ED_LBA_D_Change("2"); });
    EXPECT_EQ(Bis_Adresse, 2);
    EXPECT_EQ(Inhalt()[3], 0xFF);
}

TEST_F(Flash_Test, the_dialog_leaves_the_clock_of_a_48T_alone)
{
    Einsetzen("48T08", 32, "28C64", "28C64");
    Bild_Zufaellig(32);
    Brennen();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().begin() + 24, Hex_Daten.begin()));
    EXPECT_EQ(Inhalt()[24], 0xFF);
    Einsetzen("48Z08", 32, "28C64", "28C64");
    Bild_Zufaellig(32);
    Brennen();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_F(Flash_Test, an_EEPROM_range_goes_to_its_place_and_nothing_below_it_is_touched)
{
    EEPROM_Mit(64, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    Inhalt()[3] = 0x77;
    Brennen([] {
        Leer();
        ED_EBA_D_Change("3");
        ED_LBA_D_Change("6");
        BR_EBA_D_Change("32");
    });
    std::vector<std::uint8_t> Erwartet(64, 0xFF);
    Erwartet[3] = 0x77;
    std::copy_n(Hex_Daten.begin() + 3, 4, Erwartet.begin() + 32);
    EXPECT_EQ(Inhalt(), Erwartet);
}

TEST_F(Flash_Test, with_DAT00_everything_below_an_EEPROM_range_becomes_00h_and_is_not_verified)
{
    EEPROM_Mit(64, {1, 2});
    Board().Baustein()->Tote_Zelle(3, 0xFF);
    Brennen([] {
        Leer();
        BR_EBA_D_Change("10");
        Brennmenue.DAT00 = true;
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    std::vector<std::uint8_t> Erwartet(64, 0xFF);
    std::fill_n(Erwartet.begin(), 10, std::uint8_t{0});
    Erwartet[3]  = 0xFF;
    Erwartet[10] = 1;
    Erwartet[11] = 2;
    EXPECT_EQ(Inhalt(), Erwartet);
}

TEST_F(Flash_Test, equal_neighbours_are_shifted_once)
{
    EEPROM_Mit(16, std::vector<std::uint8_t>(16, 0x55));
    Brennen([] { Leer(); });
    EXPECT_EQ(Zeilen(Spur(), "U 14\n"), 1u) << "one bus check";
    EXPECT_EQ(Alt_Byte, 0x55);
}

TEST_F(Flash_Test, the_write_time_counts_from_the_strobe)
{
    EEPROM_Mit(1, {0x12});
    const std::int64_t Vorher = Board().Vergangen();
    Brennen([] { Leer(); });
    const std::int64_t Dauer = Board().Vergangen() - Vorher;
    // 2 + 100 ms, a write time, and the settling times of load (7 + 14 + 7) and check (7 + 7)
    EXPECT_GE(Dauer, 102000 + 10000 + 42);
    EXPECT_LE(Dauer, 102000 + 10000 + 42 + 40);
}

TEST_F(Flash_Test, a_wait_since_a_stamp_is_noted_whole_and_takes_what_is_left_of_it)
{
    EEPROM_Mit(1, {});
    const std::int64_t Stempel = Board().Vergangen();
    Plattform.Port->Wartet(300);
    Plattform.Port->Wartet_Seit(Stempel, 1000);
    EXPECT_EQ(Board().Vergangen(), Stempel + 1000);
    Plattform.Port->Wartet_Seit(Stempel, 10);
    EXPECT_EQ(Board().Vergangen(), Stempel + 1000) << "it is over already";
    EXPECT_EQ(Spur(), "U 300\nU 1000\nU 10\n");
}

TEST_F(Flash_Test, a_28C040_of_exactly_40000h_bytes_never_switches_the_bank)
{
    Einsetzen("28C040", 0x40000, "28C040", "28C040");
    Hex_Daten[0x3FFFF] = 1;
    Brennen([] {
        Leer();
        ED_EBA_D_Change("262143");
        BR_EBA_D_Change("262143");
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Bank, 0);
    EXPECT_EQ(Adresse_Zaehler, 0x40000);
}

// ---- pages ----

TEST_F(Flash_Test, a_range_inside_a_page_writes_the_whole_page_from_the_editor)
{
    Seiten_Mit(256, 64);
    std::fill(Inhalt().begin(), Inhalt().end(), std::uint8_t{0x66});
    Brennen([] {
        ED_EBA_D_Change("70");
        ED_LBA_D_Change("90");
        BR_EBA_D_Change("100");
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    for (std::size_t a = 0; a < 256; ++a) // address 100 takes editor address 70
        EXPECT_EQ(Inhalt()[a], a < 64 || a >= 128 ? 0x66 : Hex_Daten[a - 30]) << a;
}

TEST_F(Flash_Test, a_last_address_in_a_partial_page_counts_the_page)
{
    Seiten_Mit(256, 64);
    Brennen([] { ED_LBA_D_Change("64"); });
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().begin() + 128, Hex_Daten.begin()));
    EXPECT_EQ(Inhalt()[128], 0xFF);
    Seiten_Mit(256, 64);
    Brennen([] { ED_LBA_D_Change("63"); });
    EXPECT_EQ(Inhalt()[64], 0xFF);
}

TEST_F(Flash_Test, with_No_FF_off_the_pages_go_to_the_end_of_the_device)
{
    Seiten_Mit(256, 64);
    No_FF = false;
    Brennen([] { ED_LBA_D_Change("3"); });
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_F(Flash_Test, below_the_editor_pages_hold_00h_and_behind_the_image_FFh)
{
    Seiten_Mit(64, 64);
    Brennen([] {
        BR_EBA_D_Change("10");
        ED_LBA_D_Change("20");
    });
    EXPECT_EQ(Inhalt()[9], 0);
    EXPECT_EQ(Inhalt()[10], Hex_Daten[0]);
    Seiten_Mit(64, 64);
    Brennen([] {
        ED_LBA_D_Change("524290");
        ED_EBA_D_Change("524285");
    });
    EXPECT_EQ(Inhalt()[0], Hex_Daten[524285]);
    EXPECT_EQ(Inhalt()[5], 0xFF);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
}

TEST_F(Flash_Test, a_range_that_ends_below_0_writes_no_page)
{
    Seiten_Mit(64, 64);
    Brennen([] {
        ED_LBA_D_Change("3");
        BR_EBA_D_Change("-10");
    });
    EXPECT_EQ(Inhalt()[0], 0xFF);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
}

TEST_F(Flash_Test, the_verification_does_not_depend_on_C_IC_bei_B)
{
    Seiten_Mit(256, 64);
    C_IC_bei_B = false;
    Brennen();
    EXPECT_EQ(Zeilen(Spur(), "R S "), 4u + 2 * 256) << "one poll a page, then every byte";
}

TEST_F(Flash_Test, a_page_that_was_good_in_a_pass_is_not_read_in_the_next)
{
    Seiten_Mit(256, 64);
    Hex_Daten[64 + 63] |= 0x80;
    EEPROM().Schlechte_Seite(1, 2);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Zeilen(Spur(), "R S "), 4u + 512 + 2 * (1 + 128));
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_F(Flash_Test, the_comparison_behind_a_page_run_does_not_read_again)
{
    Seiten_Mit(256, 64);
    C_IC_nach_B = true;
    Brennen();
    EXPECT_EQ(Zeilen(Spur(), "R S "), 4u + 512);
    EXPECT_EQ(CheckIC.Ergebnis, "The IC data is equivalent to the editor data.");
    EXPECT_EQ(CheckIC.Zustand_IC.rfind("Programmed till ", 0), 0u);
    EXPECT_FALSE(CheckIC.Seiten_Bewiesen);
    CheckIC_Start(false, false);
    EXPECT_EQ(Zeilen(Spur(), "R S "), 512u);
}

TEST_F(Flash_Test, a_device_without_a_good_page_is_reported_in_both_languages)
{
    Seiten_Mit(128, 64);
    Board().Fehler.Baustein_Stumm = true;
    Brennen();
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "29C256 can't be programmed successfully! Please check your hardware and the flash "
              "eprom!");
    EXPECT_EQ(Box.Meldungen[0].Titel, "Warning");
    Sprache                       = "D";
    Geraete_Tabelle[0].Menue_Name = "Mein Flash";
    Brennen();
    EXPECT_EQ(Letzte_Meldung(),
              "Mein Flash konnte nicht programmiert werden! Bitte überprüfen Sie die Hardware und "
              "das Flash Eprom!");
    EXPECT_EQ(Box.Meldungen[1].Titel, "Warnung");
}

TEST_F(Flash_Test, a_page_that_never_takes_is_reported_by_its_number_in_both_languages)
{
    for (const bool Deutsch : {false, true}) {
        Seiten_Mit(320, 64);
        Sprache = Deutsch ? "D" : "E";
        EEPROM().Schlechte_Seite(3, 100);
        EEPROM().Schlechte_Seite(4, 100);
        Box.Meldungen.clear();
        Brennen();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
        ASSERT_EQ(Box.Meldungen.size(), 1u);
        EXPECT_EQ(Letzte_Meldung(),
                  Deutsch ? "Der Sektor Nummer 3 lässt sich nicht fehlerfrei programmieren! Bitte "
                            "überprüfen Sie die Hardware und das Flash Eprom!"
                          : "Sector number 3 can't be programmed successfully! Please check your "
                            "hardware and the flash eprom!");
        EXPECT_EQ(Box.Meldungen[0].Titel, Deutsch ? "Warnung" : "Warning");
    }
}

TEST_F(Flash_Test, a_page_that_takes_in_pass_ten_is_not_proved_and_counts_as_bad)
{
    Seiten_Mit(128, 64);
    Hex_Daten[127] |= 0x80;
    EEPROM().Schlechte_Seite(1, 9); // the first write and eight rewrites: proved in pass ten
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    Seiten_Mit(128, 64);
    Hex_Daten[127] |= 0x80;
    EEPROM().Schlechte_Seite(1, 10);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
}

TEST_F(Flash_Test, a_dead_cell_is_found_by_the_verification)
{
    Seiten_Mit(128, 64);
    Hex_Daten[70] = 0;
    Board().Baustein()->Tote_Zelle(70, 0x10);
    Brennen();
    EXPECT_EQ(Letzte_Meldung(),
              "Sector number 1 can't be programmed successfully! Please check your hardware and "
              "the flash eprom!");
}

TEST_F(Flash_Test, rewriting_tells_how_many_sectors_in_both_languages)
{
    for (const bool Deutsch : {false, true}) {
        Seiten_Mit(640, 64);
        Sprache = Deutsch ? "D" : "E";
        EEPROM().Schlechte_Seite(3, 1);
        EEPROM().Schlechte_Seite(9, 1);
        Status.Texte.clear();
        Brennen();
        const auto Da = [&](const std::string& Text) {
            return std::count(Status.Texte.begin(), Status.Texte.end(), Text);
        };
        EXPECT_EQ(Da(Deutsch ? "29C256 2 Sektoren werden überarbeitet... 33%"
                             : "29C256 Reprogram 2 sectors... 33%"),
                  1);
        EXPECT_EQ(Da(Deutsch ? "29C256 2 Sektoren werden überarbeitet... 100%"
                             : "29C256 Reprogram 2 sectors... 100%"),
                  1);
        EXPECT_EQ(
            Da(Deutsch ? "29C256  - Daten werden überprüft... 50%" : "29C256 Verify data ... 50%"),
            1);
    }
}

TEST_F(Flash_Test, a_slow_page_is_polled_until_it_is_done)
{
    Seiten_Mit(128, 64);
    EEPROM().Traegheit = 2.0; // 18 ms, of which Sleep waits ten
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_GT(Zeilen(Spur(), "R S "), 2 * 5000u);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Flash_Test, a_poll_that_runs_out_of_time_is_no_error)
{
    Seiten_Mit(64, 64);
    Hex_Daten[63]                        = 0x12;
    Board().Fehler.Baustein_Stumm        = true; // bit 7 stays 1
    const std::int64_t Vorher            = Board().Vergangen();
    int                Meldungen_Im_Lauf = -1;
    Ereignisse.Bei_Runde                 = [&](int n) {
        if (n == 2) { // the page is behind us
            EXPECT_GE(Board().Vergangen() - Vorher, 2000 + 10000 + 20000);
            EXPECT_LE(Board().Vergangen() - Vorher, 2000 + 10000 + 20000 + 200);
            Meldungen_Im_Lauf = static_cast<int>(Box.Meldungen.size());
        }
    };
    Brennen();
    EXPECT_EQ(Meldungen_Im_Lauf, 0);
    EXPECT_EQ(Box.Meldungen.size(), 1u) << "the verification finds it";
}

TEST_F(Flash_Test, midnight_in_a_poll_ends_it)
{
    Seiten_Mit(64, 64);
    Hex_Daten[63] = 0x12;
    Skript_Port Port;
    Port.Status_Wert    = 0x7F; // bit 7 reads 1 for ever
    Port.Sekunden_Liste = {86399.999, 0.001};
    Plattform.Port      = &Port;
    Brennen();
    EXPECT_EQ(Port.Sekunden_Liste.size(), 0u);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
}

TEST_F(Flash_Test, the_sleep_of_a_page_rounds_its_milliseconds_halves_to_the_even_one)
{
    for (const auto& [Zeit, Pause] : {std::pair{0, 0},
                                      {499, 0},
                                      {500, 0},
                                      {501, 1},
                                      {1500, 2},
                                      {2500, 2},
                                      {2501, 3},
                                      {10000, 10}}) {
        EXPECT_EQ(Seiten_Pause(Zeit), Pause) << Zeit;
    }
}

TEST_F(Flash_Test, a_page_size_of_nothing_or_of_too_much_does_no_harm)
{
    for (const int Seite : {0, -1, 2147483647}) {
        Einsetzen("29C256", 8, "29C256", "29C256", Seite);
        Geraete_Tabelle[0].P_Timing = 100;
        Bild_Fuellen({1, 2, 3, 4, 5, 6, 7, 8});
        Brennen();
        // Less than one byte counts as one. Of a page beyond the device only its last bytes stay.
        EXPECT_EQ(Brenn_Ergebnis, Seite <= 0 ? Brenn_Ausgang::Fertig : Brenn_Ausgang::Fehler)
            << Seite;
        EXPECT_EQ(Inhalt()[0], Seite <= 0 ? 1 : 0xFF) << Seite;
    }
}

TEST_F(Flash_Test, a_run_without_a_page_proves_nothing_to_the_comparison_behind_it)
{
    for (const bool Gleich : {false, true}) {
        Seiten_Mit(256, 64);
        std::copy_n(Hex_Daten.begin(), 256, Inhalt().begin());
        Inhalt()[3] ^= Gleich ? 0 : 0x55;
        C_IC_nach_B = true;
        Brennen([] {
            BR_EBA_D_Change("-5");
            ED_LBA_D_Change("2"); // up to IC address -3
            EXPECT_EQ(Brennmenue.BR_LBA_D, "-3");
        });
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
        EXPECT_EQ(CheckIC.Ergebnis,
                  Gleich ? "The IC data is equivalent to the editor data in the whole area of the "
                           "ic."
                         : "The IC data is NOT equivalent to the editor data.");
        EXPECT_EQ(CheckIC.Gleich, Gleich);
        EXPECT_FALSE(CheckIC.Seiten_Bewiesen);
    }
}

// ---- the erases ----

struct Loesch_Fall {
    const char* Name;
    const char* R;
    const char* P;
    const char* E;
    int         Boxen; // that the erase shows
};

class Loeschen_Test : public Flash_Test, public ::testing::WithParamInterface<Loesch_Fall> {
protected:
    void SetUp() override
    {
        const Loesch_Fall& f = GetParam();
        Einsetzen(f.Name, 256, f.R, f.P, 64);
        Geraete_Tabelle[0].E_Typ = f.E;
        Neu_Aufbauen();
        std::iota(Inhalt().begin(), Inhalt().end(), std::uint8_t{0});
        Box.Antworten = {Antwort_Ok, Antwort_Ok};
    }
    bool Ist_Leer() { return Inhalt() == std::vector<std::uint8_t>(256, 0xFF); }
};

INSTANTIATE_TEST_SUITE_P(Types,
                         Loeschen_Test,
                         ::testing::Values(Loesch_Fall{"28C64", "28C64", "28C64", "28C", 0},
                                           Loesch_Fall{"28C256", "28C256", "28C256", "28C", 0},
                                           Loesch_Fall{"28F010", "28F010", "28F010", "28F", 0},
                                           Loesch_Fall{"27SF256", "27SF256", "27SF256", "27SF", 2},
                                           Loesch_Fall{"27SF512", "27C512", "27C512", "27SF", 2},
                                           Loesch_Fall{"27SF010", "27SF010", "27SF010", "27SF", 2},
                                           Loesch_Fall{"27SF020", "27SF020", "27SF020", "27SF", 2}),
                         [](const auto& i) { return std::string(i.param.Name); });

TEST_P(Loeschen_Test, the_command_erases_sounds_a_tone_and_shows_the_state)
{
    MNU_IC_Löschen_Click();
    EXPECT_TRUE(Ist_Leer());
    EXPECT_EQ(Ereignisse.Toene, 1);
    EXPECT_TRUE(CheckIC.Offen);
    EXPECT_TRUE(CheckIC.Leer);
    EXPECT_EQ(CheckIC.Zustand_IC, "Clear");
    EXPECT_EQ(Box.Meldungen.size(), static_cast<std::size_t>(GetParam().Boxen));
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
    EXPECT_EQ(Board().Buskonflikte(), 0);
}

TEST_P(Loeschen_Test, a_device_that_answers_nothing_keeps_its_contents)
{
    Board().Fehler.Baustein_Stumm = true;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Inhalt()[5], 5);
}

TEST_P(Loeschen_Test, a_device_that_takes_too_long_stays_written)
{
    Board().Baustein()->Loesch_Faktor = 100.0;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Inhalt()[5], 5);
}

TEST_P(Loeschen_Test, the_dialog_erases_first_and_programs_then)
{
    Bild_Zufaellig(256);
    C_IC_nach_B = true;
    Brennen([] { Brennmenue.Löschen = true; });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_TRUE(CheckIC.Gleich);
    EXPECT_EQ(Ereignisse.Toene, 0) << "the tone is the command's";
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

TEST_P(Loeschen_Test, an_erased_device_is_programmed_and_erased_again)
{
    for (std::uint32_t i = 0; i < 3; ++i) {
        Box.Antworten = {Antwort_Ok, Antwort_Ok};
        MNU_IC_Löschen_Click();
        ASSERT_TRUE(Ist_Leer()) << i;
        Bild_Zufaellig(256, i);
        Brennen();
        ASSERT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << i << Letzte_Meldung();
        ASSERT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin())) << i;
    }
}

TEST_F(Flash_Test, an_erase_without_a_board_is_given_up_by_the_connection_check)
{
    for (const char* Typ : {"28C256", "27SF256"}) {
        Einsetzen(Typ, 64, Typ, Typ);
        Geraete_Tabelle[0].E_Typ = Typ[1] == '8' ? "28C" : "27SF";
        Neu_Aufbauen();
        Board().Fehler.Tot = true;
        Box.Meldungen.clear();
        MNU_IC_Löschen_Click();
        EXPECT_EQ(Letzte_Meldung(),
                  "Please check the power supply and the connection to the programmer!");
        EXPECT_EQ(Antwort, Antwort_Abbrechen);
        EXPECT_FALSE(CheckIC.Offen);
        Board().Fehler = {};
        Spur();
        Board().Fehler.Tot = true;
        Bild_Fuellen({1});
        Brennen([] { Brennmenue.Löschen = true; });
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
        EXPECT_FALSE(Brennmenue.Offen);
        EXPECT_EQ(Zeilen(Spur(), "W C 09\n"), 0u) << "nothing was programmed";
    }
}

TEST_F(Flash_Test, OK_repeats_the_connection_check)
{
    EEPROM_Mit(64, {});
    Inhalt()[0]        = 0;
    Board().Fehler.Tot = true;
    Box.Antworten      = {Antwort_Ok, Antwort_Ok, Antwort_Abbrechen};
    Baustein_Löschen();
    EXPECT_EQ(Box.Meldungen.size(), 3u);
    EXPECT_EQ(Inhalt()[0], 0);
    Board().Fehler.Tot = false;
    Baustein_Löschen();
    EXPECT_EQ(Inhalt()[0], 0xFF);
}

class Draht_Test : public Flash_Test {
protected:
    void Teil(std::string_view Name)
    {
        Einsetzen(Name, 64, "27SF256", "27SF256");
        Geraete_Tabelle[0].E_Typ = "27SF";
        Neu_Aufbauen();
        Inhalt()[0] = 0;
        Box.Meldungen.clear();
        Box.Antworten = {Antwort_Ok, Antwort_Ok};
    }
};

TEST_F(Draht_Test, the_user_is_asked_to_move_the_wire_and_to_put_it_back_in_English)
{
    for (const auto& [Name, p] : {std::pair{"27SF256", "24"},
                                  {"27SF512", "24"},
                                  {"27SF010", "26"},
                                  {"27SF020", "26"},
                                  {"X", "26"}}) {
        Teil(Name);
        MNU_IC_Löschen_Click();
        ASSERT_EQ(Box.Meldungen.size(), 2u) << Name;
        const std::string P = p;
        EXPECT_EQ(
            Box.Meldungen[0].Text,
            "Please remove the connection between the 'IC2 74HC393 pin 4' and the eprom pin " + P +
                " (this is the tenth pin on the right side of the eprom, counted from below). "
                "After you have removed the connection, please connect the eprom pin " +
                P +
                " with pin 1 of the programmer socket (this is the 16. pin on the left side of "
                "the programmer socket, counted from below). Please click on ok when you have "
                "done it.");
        EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ok_Abbrechen);
        EXPECT_EQ(
            Box.Meldungen[1].Text,
            "Now remove the connection between pin " + P +
                " of the eprom to the pin 1 of the programmer socket and connect the pin " + P +
                " of the eprom with the 'IC2 74HC393 pin 4' again. Please click on ok when you "
                "have done it.");
        EXPECT_EQ(Box.Meldungen[1].Tasten, Knoepfe::Ok);
    }
}

TEST_F(Draht_Test, the_user_is_asked_to_move_the_wire_and_to_put_it_back_in_German)
{
    Sprache = "D";
    for (const auto& [Name, p] : {std::pair{"27SF512", "24"}, {"27SF010", "26"}}) {
        Teil(Name);
        MNU_IC_Löschen_Click();
        ASSERT_EQ(Box.Meldungen.size(), 2u) << Name;
        const std::string P = p;
        EXPECT_TRUE(Box.Meldungen[0].Text.starts_with(
            "Bitte trennen Sie jetzt die Verbindung zwischen dem 'IC2 74HC393 Pin 4' und dem Eprom "
            "Pin " +
            P +
            " (das ist der zehnte Pin von unten auf der rechten Seite des Eproms). Bitte "
            "verbinden Sie danach den Pin  " +
            P +
            " des Eproms mit dem Pin 1 der Brennfassung (das "
            "ist der 16.te Pin von unten auf der linken Seite der Brennfassung). Klicken Sie erst "
            "auf Ok wenn dies geschehen ist."))
            << Box.Meldungen[0].Text;
        EXPECT_EQ(Box.Meldungen[1].Text,
                  "Nun können Sie den Pin " + P +
                      " des Eproms wieder von den Pin 1 der Brennfassung trennen und auf den Pin 4 "
                      "des IC2 (74HC393) legen. Klicken Sie erst auf Ok wenn dies geschehen ist.");
    }
}

TEST_F(Draht_Test, a_cancelled_question_ends_the_whole_command)
{
    Teil("27SF256");
    Box.Antworten = {Antwort_Abbrechen};
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Inhalt()[0], 0);
    EXPECT_FALSE(CheckIC.Offen);
    Box.Antworten = {Antwort_Abbrechen};
    Bild_Fuellen({1});
    Brennen([] { Brennmenue.Löschen = true; });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_FALSE(Brennmenue.Offen);
    EXPECT_EQ(Inhalt()[0], 0);
}

TEST_F(Draht_Test, where_no_box_can_appear_nothing_is_erased)
{
    Teil("27SF256");
    Sprache = "";
    Antwort = Antwort_Ok;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Inhalt()[0], 0);
}

TEST_F(Draht_Test, a_wire_that_was_forgotten_erases_nothing)
{
    Teil("27SF256");
    Board().Fehler.Draht_Vergessen = true;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Inhalt()[0], 0);
    EXPECT_EQ(CheckIC.Zustand_IC, "Programmed till 0(dec) / 0(hex)");
}

// ---- 28F: twenty rounds ----

TEST_F(Flash_Test, a_flash_memory_that_stays_written_is_reported_after_twenty_rounds)
{
    Flash_Mit(64, {});
    Inhalt()[9]           = 0;
    Flash().Loesch_Faktor = 8.1;
    Loeschen_28F();
    EXPECT_EQ(Zeilen(Spur(), "M 20\n"), 2u * Flash_Loesch_Versuche);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Letzte_Meldung(),
              "Can't erase 28F010! Please check the hardware and the flash eprom!");
    EXPECT_TRUE(Abbruch);
    Abbruch                       = false;
    Sprache                       = "D";
    Geraete_Tabelle[0].Menue_Name = "Mein Flash";
    Flash().Loesch_Faktor         = 1000;
    Loeschen_28F();
    EXPECT_EQ(Letzte_Meldung(),
              "Mein Flash konnte nicht gelöscht werden! Bitte überprüfen Sie die Hardware und das "
              "Flash Eprom");
    EXPECT_TRUE(Abbruch);
}

TEST_F(Flash_Test, a_run_behind_a_failed_erase_ends_at_its_first_look)
{
    Flash_Mit(64, {1});
    Inhalt()[9]           = 0;
    Flash().Loesch_Faktor = 1000;
    Brennen([] { Brennmenue.Löschen = true; });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Abgebrochen);
    EXPECT_FALSE(Abbruch);
    EXPECT_EQ(Inhalt()[0], 0xFF) << "nothing was programmed";
    EXPECT_FALSE(Brennmenue.Offen);
}

TEST_F(Flash_Test, the_command_behind_a_failed_erase_leaves_no_cancel_standing)
{
    Flash_Mit(64, {});
    Inhalt()[9]           = 0;
    Flash().Loesch_Faktor = 1000;
    MNU_IC_Löschen_Click();
    EXPECT_FALSE(Abbruch);
    EXPECT_FALSE(CheckIC.Offen);
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

TEST_F(Flash_Test, the_cursor_is_an_hourglass_while_a_flash_memory_is_erased)
{
    Flash_Mit(64, {});
    Loeschen_28F();
    EXPECT_TRUE(Ereignisse.Zeiger_Wartet);
    MNU_IC_Löschen_Click();
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

TEST_F(Flash_Test, the_blank_scan_leaves_what_it_read_in_the_buffer)
{
    Flash_Mit(64, {});
    Inhalt()[0]           = 0x12;
    Flash().Loesch_Faktor = 1000;
    Loeschen_28F();
    EXPECT_EQ(Hex_Puffer[0], 0x12);
    EXPECT_GE(Hex_Puffer.size(), 64u);
}

// ---- what needs no erase, or has none ----

TEST_F(Flash_Test, a_29C_device_needs_no_erase_and_says_so_in_both_languages)
{
    Seiten_Mit(64, 64);
    Inhalt()[0] = 0;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "The erasing of this memory ic is not necessary because it can be over programmed "
              "without erasing them before.");
    Sprache = "D";
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Das Löschen dieser Bausteine ist nicht erforderlich, da auch beschriebene Bausteine "
              "einfach übergebrannt werden können.");
    EXPECT_EQ(Spur(), "");
    EXPECT_EQ(Ereignisse.Toene, 0);
    EXPECT_FALSE(CheckIC.Offen);
}

TEST_F(Flash_Test, the_erase_of_a_PT28C020_is_not_possible_from_the_command)
{
    Einsetzen("PT28C020", 128, "29C040", "29C020", 64);
    Geraete_Tabelle[0].E_Typ = "28C";
    Neu_Aufbauen();
    Inhalt()[0] = 0;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Letzte_Meldung(), "The erasing of this memory ic is not possible at the moment.");
    Sprache = "D";
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Letzte_Meldung(), "Das Löschen dieser Bausteine ist derzeit noch nicht möglich.");
    EXPECT_EQ(Spur(), "");
    EXPECT_EQ(Inhalt()[0], 0);
}

TEST_F(Flash_Test, the_erase_of_a_PT28C020_runs_from_the_dialog)
{
    Einsetzen("PT28C020", 128, "29C040", "29C020", 64);
    Geraete_Tabelle[0].E_Typ = "28C";
    Neu_Aufbauen();
    std::fill(Inhalt().begin(), Inhalt().end(), std::uint8_t{0});
    Bild_Fuellen({1, 2, 3});
    Brennen([] {
        ED_LBA_D_Change("2");
        Brennmenue.Löschen = true;
    });
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << Letzte_Meldung();
    EXPECT_EQ(Inhalt()[127], 0xFF) << "the second page wasn't programmed, but erased";
    EXPECT_EQ(Inhalt()[1], 2);
}

TEST_F(Flash_Test, a_type_without_an_electrical_erase_is_left_alone)
{
    Geraet("27C256", 64, "27C256", "27C256");
    Neu_Aufbauen();
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Spur(), "");
    EXPECT_EQ(Ereignisse.Toene, 0);
    EXPECT_FALSE(CheckIC.Offen);
    Baustein_Löschen();
    EXPECT_EQ(Spur(), "");
}

TEST_F(Flash_Test, the_command_needs_the_driver_and_then_a_device)
{
    Flash_Mit(64, {});
    Porttreiber_OK = false;
    IC_Nummer      = -1;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Portdriver has not been loaded sucessfully. Parallelport access not possible.");
    Porttreiber_OK = true;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Letzte_Meldung(),
              "Please choose first a IC in the menu 'Programmer' -> 'Choose IC'.");
    EXPECT_EQ(Spur(), "");
}

TEST_F(Flash_Test, the_command_ends_a_debugger_session_first)
{
    Flash_Mit(64, {});
    Debugger_Aktiv = true;
    MNU_IC_Löschen_Click();
    EXPECT_FALSE(Debugger_Aktiv);
}

// ---- a sequence that the board can't carry out ----

TEST_F(Flash_Test, a_28F040_can_be_read_and_erased_but_not_programmed)
{
    Einsetzen("28F040", 64, "27C040", "28F040");
    Bild_Fuellen({0x12});
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    EXPECT_EQ(Letzte_Meldung(), "Error while programming address 0(dec) / 0(hex) !");
    Inhalt()[3] = 0x42;
    CheckIC_Start(false, false);
    EXPECT_EQ(Hex_Puffer[3], 0x42);
    Abbruch = false;
    MNU_IC_Löschen_Click();
    EXPECT_EQ(CheckIC.Zustand_IC, "Clear");
}

} // namespace
} // namespace varnholt::test
