// The read routine of the Eprommer and the menu command over it.
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/views.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Lesen.h"
#include "support/Arbeitsordner.h"

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <random>

#include <unistd.h>

namespace varnholt::test {
namespace {

class Lesen_Test : public Brenner_Welt {
protected:
    // A device full of random bytes in the socket, the buffer sized for it.
    void Einsetzen(std::string_view Typ, std::int32_t Bytes, std::uint32_t Saat = 1)
    {
        Geraet(Typ, Bytes);
        Bestuecken(Saat);
    }
    void Bestuecken(std::uint32_t Saat = 1)
    {
        Board_Anschliessen();
        std::mt19937 Zufall(Saat);
        std::generate(
            Inhalt().begin(), Inhalt().end(), [&] { return static_cast<std::uint8_t>(Zufall()); });
        Hex_Puffer.assign(Hex_Daten.size(), 0);
        Spur();
    }
    std::vector<std::uint8_t> Gelesen()
    {
        return {Hex_Puffer.begin(), Hex_Puffer.begin() + Geraete_Tabelle[0].Bytes};
    }
    std::size_t Statuslesungen()
    {
        const std::string s = Spur();
        std::size_t       n = 0;
        for (std::size_t p = s.find("R S"); p != std::string::npos; p = s.find("R S", p + 1))
            ++n;
        return n;
    }
};

// ---- each type end to end ----

struct Typ_Fall {
    const char*  Name;
    std::int32_t Bytes;
    const char*  R;
    const char*  P;
};

class Lese_Typ_Test : public Lesen_Test, public ::testing::WithParamInterface<Typ_Fall> {};

TEST_P(Lese_Typ_Test, every_byte_of_the_device_is_read)
{
    const Typ_Fall& f = GetParam();
    Geraet(f.Name, f.Bytes, f.R, f.P);
    Bestuecken(7);
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_TRUE(Gelesen() == Inhalt());
    EXPECT_EQ(Board().Buskonflikte(), 0);
}

INSTANTIATE_TEST_SUITE_P(Devices,
                         Lese_Typ_Test,
                         ::testing::Values(Typ_Fall{"27C64", 8192, "27C64", "27C64"},
                                           Typ_Fall{"27C128", 16384, "27C128", "27C128"},
                                           Typ_Fall{"27C256", 32768, "27C256", "27C256"},
                                           Typ_Fall{"27C512", 65536, "27C512", "27C512"},
                                           Typ_Fall{"27C010", 131072, "27C010", "27C010"},
                                           Typ_Fall{"27C020", 262144, "27C020", "27C020"},
                                           Typ_Fall{"27C040", 524288, "27C040", "27C040"},
                                           Typ_Fall{"27C080", 524288, "27C080", "27C080"},
                                           Typ_Fall{"87C257", 32768, "87C257", "87C257"},
                                           Typ_Fall{"27SF256", 32768, "27C256", "27SF256"},
                                           Typ_Fall{"27SF512", 65536, "27C512", "27C512"},
                                           Typ_Fall{"27SF020", 262144, "27SF020", "27SF020"},
                                           Typ_Fall{"28C16", 2048, "28C64", "28C64"},
                                           Typ_Fall{"28C64", 8192, "28C64", "28C64"},
                                           Typ_Fall{"28C256", 32768, "28C256", "28C256"},
                                           Typ_Fall{"28C010", 131072, "28C010", "28C010"},
                                           Typ_Fall{"28C040", 524288, "28C040", "28C040"},
                                           Typ_Fall{"28F010", 131072, "28F010", "28F010"},
                                           Typ_Fall{"28F020", 262144, "28F020", "28F020"},
                                           Typ_Fall{"28F040", 524288, "27C040", "28F040"},
                                           Typ_Fall{"29C256", 32768, "29C256", "29C256"},
                                           Typ_Fall{"29C010", 131072, "29C040", "29C010"},
                                           Typ_Fall{"29C020", 262144, "29C020", "29C020"},
                                           Typ_Fall{"29C040", 524288, "29C040", "29C040"}),
                         [](const auto& i) { return std::string(i.param.Name); });

struct Spur_Fall {
    const char* Spur;
    const char* Typ;
};

class Lese_Spur_Test : public Lesen_Test, public ::testing::WithParamInterface<Spur_Fall> {};

TEST_P(Lese_Spur_Test, a_read_sends_exactly_these_bytes)
{
    Einsetzen(GetParam().Typ, 4);
    Inhalt() = {0x12, 0xFF, 0x00, 0xA5};
    Speicher_Lesen();
    EXPECT_EQ(Spur(), Erwartete_Spur(GetParam().Spur));
}

INSTANTIATE_TEST_SUITE_P(Types,
                         Lese_Spur_Test,
                         ::testing::Values(Spur_Fall{"lesen_27C64", "27C64"},
                                           Spur_Fall{"lesen_27C512", "27C512"},
                                           Spur_Fall{"lesen_87C257", "87C257"},
                                           Spur_Fall{"lesen_27C010", "27C010"},
                                           Spur_Fall{"lesen_29C040", "29C040"},
                                           Spur_Fall{"lesen_28C040", "28C040"},
                                           Spur_Fall{"lesen_28F010", "28F010"}),
                         [](const auto& i) { return std::string(i.param.Spur); });

// ---- counters and banks ----

TEST_F(Lesen_Test, address_0_of_a_28C64_lies_at_counter_value_2000h)
{
    Einsetzen("28C64", 1);
    Speicher_Lesen();
    const std::string s = Spur();
    EXPECT_EQ(std::count(s.begin(), s.end(), '\n'), 35 + 5 + 2 * 8192 + 1 + 9 + 2);
    EXPECT_EQ(Board().Zaehler_Stand(), 0x2001);
}

TEST_F(Lesen_Test, behind_each_16_kbyte_block_a_28C256_passes_over_counter_bit_14)
{
    Einsetzen("28C256", 32768);
    Speicher_Lesen();
    EXPECT_EQ(Board().Zaehler_Stand(), 0); // 4 times 4000h
    Einsetzen("27C256", 32768);
    Speicher_Lesen();
    EXPECT_EQ(Board().Zaehler_Stand(), 0x8000);
}

TEST_F(Lesen_Test, a_device_of_exactly_40000h_bytes_never_switches_the_bank)
{
    Einsetzen("28C040", 0x40000);
    Speicher_Lesen();
    EXPECT_EQ(Bank, 0);
    Einsetzen("29C040", 0x40000);
    Speicher_Lesen();
    EXPECT_EQ(Bank, 0);
}

TEST_F(Lesen_Test, a_device_of_80000h_bytes_switches_the_bank_at_the_half)
{
    Einsetzen("29C040", 0x80000);
    Speicher_Lesen();
    EXPECT_EQ(Bank, 1);
    EXPECT_TRUE(Gelesen() == Inhalt());
}

TEST_F(Lesen_Test, the_bank_follows_the_program_type_not_the_read_type)
{
    Geraet("27C040", 0x80000, "29C040", "27C040");
    Bestuecken();
    Speicher_Lesen();
    EXPECT_EQ(Bank, 0);
}

TEST_F(Lesen_Test, a_read_after_an_abandoned_one_starts_at_address_0_again)
{
    Einsetzen("27C256", 32768);
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 5; };
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_NE(Board().Zaehler_Stand(), 0);
    Ereignisse.Bei_Runde = {};
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_TRUE(Gelesen() == Inhalt());
}

// ---- Pruef_Modus ----

class Pruef_Modus_Test : public Lesen_Test {
protected:
    Pruef_Modus_Test()
    {
        Geraet("29C256", 256).Seiten_Bytes = 64;
        Bestuecken();
        Pruef_Modus = true;
    }
};

TEST_F(Pruef_Modus_Test, only_pages_with_the_flag_0_are_read)
{
    Seiten_Liste = {1, 0, 1, 0};
    Speicher_Lesen();
    for (int a = 0; a < 256; ++a)
        EXPECT_EQ(Hex_Puffer[static_cast<std::size_t>(a)],
                  a / 64 % 2 == 1 ? Inhalt()[static_cast<std::size_t>(a)] : 0)
            << a;
}

TEST_F(Pruef_Modus_Test, with_all_pages_proved_the_device_is_walked_without_a_read)
{
    Seiten_Liste = {1, 1, 1, 1};
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_EQ(Statuslesungen(), 0u);
    EXPECT_EQ(Board().Zaehler_Stand(), 256);
}

TEST_F(Pruef_Modus_Test, there_is_no_connection_check_and_the_dialog_stays_up)
{
    Status.Offen             = true;
    Geraete_Tabelle[0].R_Typ = "28C256";
    Seiten_Liste             = {1, 1, 1, 0};
    Speicher_Lesen();
    EXPECT_EQ(Statuslesungen(), 2u * 64);
    EXPECT_EQ(Status.Geoeffnet, 0);
    EXPECT_TRUE(Status.Offen);
}

TEST_F(Pruef_Modus_Test, its_texts_tell_of_the_verification)
{
    Seiten_Liste = {0, 0, 0, 0};
    Speicher_Lesen();
    EXPECT_EQ(Status.Texte.front(), "29C256 Verify data ");
    EXPECT_EQ(Status.Texte[1], "29C256 Verify data ... 1%");
    EXPECT_EQ(Status.Texte.back(),
              "29C256 Verify data ... 100%   More than one passes are "
              "neccessary. Please don't abort this.");
    Sprache = "D";
    Status.Texte.clear();
    Speicher_Lesen();
    EXPECT_EQ(Status.Texte.front(), "29C256 - Daten werden überprüft...");
    EXPECT_EQ(Status.Texte[1], "29C256  - Daten werden überprüft... 1%");
    EXPECT_EQ(Status.Texte.back(),
              "29C256  - Daten werden überprüft... 100%   Es sind mehrere "
              "Durchläufe erforderlich, bitte nicht abbrechen.");
}

TEST_F(Pruef_Modus_Test, a_list_that_is_too_short_reads_the_rest)
{
    Seiten_Liste = {1};
    Speicher_Lesen();
    EXPECT_EQ(Statuslesungen(), 2u * 192);
}

TEST_F(Pruef_Modus_Test, a_page_size_of_nothing_or_of_too_much_does_no_harm)
{
    for (const int Bytes : {0, -1, 2147483647}) {
        Geraete_Tabelle[0].Seiten_Bytes = Bytes;
        Seiten_Liste                    = {0};
        Speicher_Lesen();
        EXPECT_EQ(Antwort, Antwort_Ok);
    }
}

TEST_F(Pruef_Modus_Test, a_skipped_page_that_ends_at_the_half_switches_the_bank)
{
    Geraet("29C040", 0x80000).Seiten_Bytes = 0x40000;
    Bestuecken();
    Seiten_Liste = {1, 0};
    Speicher_Lesen();
    EXPECT_EQ(Bank, 1);
    EXPECT_TRUE(
        std::equal(Inhalt().begin() + 0x40000, Inhalt().end(), Hex_Puffer.begin() + 0x40000));
}

// ---- progress and cancel ----

TEST_F(Lesen_Test, progress_is_shown_at_each_percent_in_both_languages)
{
    Einsetzen("27C64", 1001);
    Speicher_Lesen();
    EXPECT_EQ(Status.Texte.front(), "27C64 Reading ");
    EXPECT_EQ(Status.Texte[1], "27C64 Reading ... 1%");
    EXPECT_EQ(Status.Texte.back(), "27C64 Reading ... 100%");
    EXPECT_EQ(Ereignisse.Runden, 100);
    std::vector<int> Balken(102);
    Balken[0] = 1; // set before the loop
    std::iota(Balken.begin() + 1, Balken.end(), 1);
    Balken.back() = 100; // set behind it
    EXPECT_EQ(Status.Balken, Balken);
    Sprache = "D";
    Status.Texte.clear();
    Geraete_Tabelle[0].Menue_Name = "Mein EPROM";
    Speicher_Lesen();
    EXPECT_EQ(Status.Texte.front(), "Mein EPROM wird gelesen...");
    EXPECT_EQ(Status.Texte[1], "Mein EPROM  wird gelesen... 1%");
    EXPECT_EQ(Status.Texte.back(), "Mein EPROM  wird gelesen... 100%");
}

TEST_F(Lesen_Test, the_dialog_opens_locks_the_windows_and_both_go_again)
{
    Einsetzen("27C64", 200);
    bool Offen           = false;
    bool Gesperrt        = false;
    Ereignisse.Bei_Runde = [&](int) {
        Offen    = Status.Offen;
        Gesperrt = Ereignisse.Fenster_Gesperrt;
    };
    Speicher_Lesen();
    EXPECT_TRUE(Offen);
    EXPECT_TRUE(Gesperrt);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
}

TEST_F(Lesen_Test, a_cancel_takes_effect_at_the_next_percent)
{
    Einsetzen("27C64", 1001);
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 3; };
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_FALSE(Abbruch);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
    EXPECT_EQ(Adresse_Zaehler, 30);
    EXPECT_TRUE(Spur().ends_with("W D 4A\n"));
    EXPECT_EQ(Hex_Puffer[29], Inhalt()[29]);
    EXPECT_EQ(Hex_Puffer[30], 0);
}

TEST_F(Lesen_Test, a_cancel_from_before_ends_the_read_after_the_counter_reset)
{
    Einsetzen("27C64", 100);
    Abbruch   = true;
    C_Brenner = false;
    Speicher_Lesen();
    EXPECT_EQ(Spur(), "W D 4A\nW C 0D\nM 1\nW C 0F\nM 1\n");
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_FALSE(Abbruch);
    EXPECT_FALSE(Status.Offen);
}

TEST_F(Lesen_Test, a_failed_connection_check_ends_the_read_before_the_dialog)
{
    Einsetzen("27C64", 100);
    Board().Fehler.Tot = true;
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_EQ(Status.Geoeffnet, 0);
}

TEST_F(Lesen_Test, the_page_written_flash_is_read_without_a_connection_check)
{
    Einsetzen("29C256", 4);
    Board().Fehler.Tot = true;
    Speicher_Lesen();
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Antwort, Antwort_Ok);
}

TEST_F(Lesen_Test, a_dead_device_reads_as_the_open_bus_shows)
{
    Einsetzen("27C64", 100);
    Board().Fehler.Baustein_Stumm = true;
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_EQ(Gelesen(), std::vector<std::uint8_t>(100, 0xFF));
}

TEST_F(Lesen_Test, a_stuck_line_is_found_by_the_connection_check)
{
    Einsetzen("27C64", 4);
    for (int Bit = 0; Bit < 8; ++Bit) {
        const auto m   = static_cast<std::uint8_t>(1 << Bit);
        Board().Fehler = {};
        (0x55 & m ? Board().Fehler.Klemmt_Auf_0 : Board().Fehler.Klemmt_Auf_1) = m;
        Box.Meldungen.clear();
        Speicher_Lesen();
        EXPECT_EQ(Box.Meldungen.size(), 1u) << Bit;
        EXPECT_EQ(Antwort, Antwort_Abbrechen) << Bit;
    }
}

TEST_F(Lesen_Test, devices_of_one_byte_of_none_and_of_too_many_end_well)
{
    for (const std::int32_t Bytes : {1, 0, -7}) {
        Einsetzen("27C64", Bytes);
        Speicher_Lesen();
        EXPECT_EQ(Antwort, Antwort_Ok) << Bytes;
    }
    Einsetzen("27C64", 2147483647);
    Hex_Puffer.assign(10, 0); // what the caller gave is all that there is
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
}

TEST_F(Lesen_Test, a_settling_time_below_0_does_no_harm)
{
    Einsetzen("27C64", 4);
    Geraete_Tabelle[0].R_Timing = -5;
    Speicher_Lesen();
    EXPECT_TRUE(Gelesen() == Inhalt());
}

TEST_F(Lesen_Test, a_wrap_of_the_clock_in_a_read_does_not_stop_it)
{
    Einsetzen("27C64", 100);
    Board().Uhr_Stellen(0x7FFFFFFF - 500);
    Speicher_Lesen();
    EXPECT_EQ(Antwort, Antwort_Ok);
    EXPECT_TRUE(Gelesen() == Inhalt());
}

// ---- the choice of the routine ----

TEST_F(Lesen_Test, the_read_type_and_then_the_board_choose_the_routine)
{
    for (const char* Typ : {"27C64", "87C257", "28C64", "29C040", "27", "28F010"}) {
        EXPECT_EQ(Lese_Weg_Von(Typ, 1), Lese_Weg::Eprommer);
        EXPECT_EQ(Lese_Weg_Von(Typ, 3), Lese_Weg::Eprommer);
    }
    EXPECT_EQ(Lese_Weg_Von("89C51", 3), Lese_Weg::Tessel2);
    EXPECT_EQ(Lese_Weg_Von("89C2051", 3), Lese_Weg::Tessel2);
    for (const char* Typ : {"89C1051", "89C2051", "89C4051"})
        EXPECT_EQ(Lese_Weg_Von(Typ, 2), Lese_Weg::Tessel1);
    EXPECT_EQ(Lese_Weg_Von("89C51", 2), Lese_Weg::Keiner);
    EXPECT_EQ(Lese_Weg_Von("", 0), Lese_Weg::Keiner);
}

TEST_F(Lesen_Test, a_type_without_a_routine_leaves_the_image_alone)
{
    Geraet("48X", 4096).Programmer = 2;
    EXPECT_FALSE(Lesen_Bedient());
    Porttreiber_OK = true;
    Hex_Daten[0]   = 0x42;
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_EQ(Hex_Daten[0], 0x42);
    Baustein_Lesen();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
}

// ---- menu command ----

TEST_F(Lesen_Test, the_command_ends_a_debugger_session_first)
{
    Debugger_Aktiv = true;
    Porttreiber_OK = false;
    MNU_IC_Lesen_Click();
    EXPECT_FALSE(Debugger_Aktiv);
    EXPECT_EQ(Box.Meldungen.size(), 1u) << "then the port is asked for";
}

TEST_F(Lesen_Test, the_command_replaces_the_image_by_the_device)
{
    Einsetzen("27C64", 64);
    Bild_Zufaellig(1000, 5);
    Modus = Modus_Hex;
    Edit.Text_Setzen("old");
    Datei_Name           = "/tmp/x.bin";
    Text_Aktuell         = true;
    const auto Vor_Lesen = Ansichten.Hex_Stand;
    MNU_IC_Lesen_Click();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_TRUE(
        std::all_of(Hex_Daten.begin() + 64, Hex_Daten.end(), [](int b) { return b == 0xFF; }));
    EXPECT_TRUE(Hex_Puffer.empty());
    EXPECT_EQ(Datei_Name, "");
    EXPECT_EQ(Ereignisse.Titel_Texte,
              (std::vector<std::string>{"2:MC-Editor (*)", "1:Hex-Editor (*)"}));
    EXPECT_EQ(Edit.Text(), "");
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_GT(Ansichten.Hex_Stand, Vor_Lesen);
}

TEST_F(Lesen_Test, the_source_text_stays_when_the_hex_editor_is_not_shown)
{
    Einsetzen("27C64", 64);
    Modus = Modus_MC;
    Edit.Text_Setzen("NOP");
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Edit.Text(), "NOP");
}

TEST_F(Lesen_Test, what_was_given_up_before_does_not_end_the_read)
{
    Einsetzen("27C64", 64);
    Abbruch = true; // a refused change or a cancelled print leaves it so
    MNU_IC_Lesen_Click();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_NE(Antwort, Antwort_Abbrechen);
}

TEST_F(Lesen_Test, after_a_cancel_the_image_holds_FFh_and_what_was_read)
{
    Einsetzen("27C64", 1001);
    Bild_Zufaellig(5000, 5);
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n == 3; };
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Antwort, Antwort_Abbrechen);
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().begin() + 30, Hex_Daten.begin()));
    EXPECT_TRUE(
        std::all_of(Hex_Daten.begin() + 30, Hex_Daten.end(), [](int b) { return b == 0xFF; }));
}

TEST_F(Lesen_Test, unsaved_work_is_asked_for_in_both_languages)
{
    Einsetzen("27C64", 4);
    Datei_Geaendert = true;
    MNU_IC_Lesen_Click();
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Letzte_Meldung(), "Save changes first?");
    EXPECT_EQ(Box.Meldungen[0].Tasten, Knoepfe::Ja_Nein_Abbrechen);
    Sprache = "D";
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Letzte_Meldung(), "Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?");
    EXPECT_TRUE(Datei_Geaendert) << "Cancel leaves everything";
    EXPECT_EQ(Spur(), "");
}

TEST_F(Lesen_Test, no_goes_on_without_saving)
{
    Einsetzen("27C64", 4);
    Datei_Geaendert = true;
    Box.Antworten   = {Antwort_Nein};
    MNU_IC_Lesen_Click();
    EXPECT_TRUE(std::equal(Inhalt().begin(), Inhalt().end(), Hex_Daten.begin()));
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Lesen_Test, yes_saves_and_reads_nothing)
{
    Einsetzen("27C64", 4);
    const auto Datei = std::filesystem::temp_directory_path() /
                       ("varnholt-lesen-" + std::to_string(getpid()) + ".bin");
    std::filesystem::remove(Datei);
    Bild_Fuellen({1, 2, 3});
    Modus           = Modus_Hex;
    Datei_Name      = Datei.string();
    Datei_Geaendert = true;
    Box.Antworten   = {Antwort_Ja};
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Spur(), "");
    EXPECT_TRUE(std::filesystem::exists(Datei));
    EXPECT_EQ(Hex_Daten[0], 1);
    std::filesystem::remove(Datei);
}

TEST_F(Lesen_Test, yes_never_writes_the_image_over_the_source)
{
    Einsetzen("27C64", 4);
    const Arbeitsordner Ordner;
    Datei_Name      = Ordner.Anlegen("a.asm", "\tNOP\n");
    Modus           = Modus_Hex;
    Datei_Geaendert = true;
    Box.Antworten   = {Antwort_Ja};
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Bytes_Von(Ordner.Pfad / "a.asm"), "\tNOP\n");
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"a.asm"}) << "the dialog was cancelled";
    EXPECT_TRUE(Datei_Geaendert);
    EXPECT_EQ(Spur(), "");
}

TEST_F(Lesen_Test, where_no_box_can_appear_unsaved_work_is_kept)
{
    Einsetzen("27C64", 4);
    Sprache         = "";
    Antwort         = Antwort_Nein;
    Datei_Geaendert = true;
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Spur(), "");
}

} // namespace
} // namespace varnholt::test
