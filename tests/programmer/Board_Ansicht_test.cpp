// Looking at the simulated board and handling it: what is told of the part, each fault, new parts,
// light, files.
#include "programmer/Board_Ansicht.h"

#include "core/checksum.h"
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Geraete.h"
#include "programmer/Lesen.h"
#include "programmer/MC_Zustand.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"
#include "support/scripted_platform.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Board_Ansicht_Test : public Welt {
protected:
    Board_Ansicht_Test() { fs::create_directories(Ordner); }
    ~Board_Ansicht_Test() override
    {
        fs::remove_all(Ordner);
        Plattform_Zuruecksetzen();
    }
    static void Eprommer() { Einsetzen("27C256", 1, "UV", 32768); }
    static void Tessel2() { Einsetzen("89C52", 3, "89CII", 8192); }
    // A device of the family with the times and the page of its data sheet.
    void Einsetzen(const char*  Typ,
                   int          Brett,
                   const char*  E_Typ,
                   std::int32_t Bytes,
                   std::int32_t P_Timing,
                   std::int32_t Seite = 0)
    {
        Einsetzen(Typ, Brett, E_Typ, Bytes);
        Geraete_Tabelle[0].R_Timing     = 3;
        Geraete_Tabelle[0].P_Timing     = P_Timing;
        Geraete_Tabelle[0].Seiten_Bytes = Seite;
        Board_Neuer_Baustein();
        Bild_Loeschen();
        std::fill_n(Hex_Daten.begin(), Bytes, std::uint8_t{0x3C});
        C_IC_vor_B = false;
        Modus      = Modus_Hex;
        Box.Meldungen.clear();
    }
    // Programs the whole image, without an erase before.
    static void Brennen()
    {
        MNU_IC_Brennen_Click();
        Brennmenue.Löschen = false;
        Brennen_Click();
    }
    static void Einsetzen(const char* Typ, int Brett, const char* E_Typ, std::int32_t Bytes)
    {
        Geraet_T& g  = Geraete_Tabelle[0];
        g            = {};
        g.Name       = Typ;
        g.R_Typ      = Typ;
        g.P_Typ      = Typ;
        g.E_Typ      = E_Typ;
        g.Programmer = Brett;
        g.Bytes      = Bytes;
        IC_Nummer    = 0;
        Port_Art     = Art_Simuliert;
        Port_Einrichten();
        Porttreiber_Laden();
    }
    static std::vector<std::uint8_t>& Inhalt()
    {
        return dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein()->Inhalt;
    }
    fs::path Ordner = fs::temp_directory_path() / ("varnholt-ba-" + std::to_string(getpid()));
};

TEST_F(Board_Ansicht_Test, without_a_simulated_port_there_is_nothing_to_see_and_to_do)
{
    EXPECT_FALSE(Board_Ansehen().Simuliert);
    Board_Neuer_Baustein();
    Board_UV_Loeschen();
    Board_Stoeren(Board_Stoerung::Kein_Strom, true);
    EXPECT_FALSE(Board_Gestoert(Board_Stoerung::Kein_Strom));
    EXPECT_FALSE(Board_Tote_Zelle(0));
    EXPECT_EQ(Board_Laden("x").E, "");
    EXPECT_EQ(Board_Sichern("x").E, "");
    EXPECT_FALSE(fs::exists("x"));
}

TEST_F(Board_Ansicht_Test, an_empty_part_is_told_in_both_languages)
{
    Eprommer();
    Board_Bild b = Board_Ansehen();
    EXPECT_TRUE(b.Simuliert);
    EXPECT_TRUE(b.Hat_Baustein);
    EXPECT_TRUE(b.UV_Loeschbar);
    EXPECT_FALSE(b.Ist_MC);
    EXPECT_EQ(b.Board, "Eprommer");
    EXPECT_EQ(b.Baustein, "27C256, 32768 bytes");
    EXPECT_EQ(b.Benutzt, "empty, all FFh");
    EXPECT_EQ(b.Bytes, "FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF");
    EXPECT_EQ(b.Lage, "");
    Sprache = "D";
    b       = Board_Ansehen();
    EXPECT_EQ(b.Baustein, "27C256, 32768 Bytes");
    EXPECT_EQ(b.Benutzt, "leer, alles FFh");
}

TEST_F(Board_Ansicht_Test, contents_are_told_by_first_bytes_used_range_and_checksum)
{
    Eprommer();
    Inhalt()[2]      = 0x0A;
    Inhalt()[0x7FFF] = 0;
    Board_Bild b     = Board_Ansehen();
    EXPECT_EQ(b.Bytes, "FF FF 0A FF FF FF FF FF FF FF FF FF FF FF FF FF");
    EXPECT_EQ(b.Benutzt, "2h - 7FFFh");
    EXPECT_EQ(b.Pruefsumme, fmt::format("{:08X}", CRC_32(Inhalt())));
    Inhalt()[0x7FFF] = 0xFF;
    EXPECT_EQ(Board_Ansehen().Benutzt, "2h - 2h");
    Inhalt() = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
    b        = Board_Ansehen();
    EXPECT_EQ(b.Pruefsumme, "CBF43926") << "the check value of this checksum";
    EXPECT_EQ(b.Bytes, "31 32 33 34 35 36 37 38 39");
}

TEST_F(Board_Ansicht_Test, without_a_device_the_socket_is_empty)
{
    IC_Nummer = -1;
    Port_Art  = Art_Simuliert;
    Port_Einrichten();
    const Board_Bild b = Board_Ansehen();
    EXPECT_TRUE(b.Simuliert);
    EXPECT_FALSE(b.Hat_Baustein);
    EXPECT_EQ(b.Lage, "The socket is empty.");
    EXPECT_FALSE(Board_Tote_Zelle(0));
    Board_UV_Loeschen();
}

TEST_F(Board_Ansicht_Test, a_microcontroller_board_is_named_and_not_erased_by_light)
{
    Tessel2();
    EXPECT_EQ(Board_Ansehen().Board, "Tessel2");
    EXPECT_TRUE(Board_Ansehen().Ist_MC);
    EXPECT_FALSE(Board_Ansehen().UV_Loeschbar);
    Einsetzen("89C2051", 2, "89CI", 2048);
    EXPECT_EQ(Board_Ansehen().Board, "Tessel1");
}

TEST_F(Board_Ansicht_Test, each_fault_goes_on_and_off_alone_and_says_why)
{
    struct Zeile_T {
        Board_Stoerung Welche;
        const char *   D, *E;
    };
    const Zeile_T Zeilen[] = {
        {Board_Stoerung::Kein_Strom, "Das Board hat keinen Strom.", "The board has no power."},
        {Board_Stoerung::Sockel_Leer, "Der Sockel ist leer.", "The socket is empty."},
        {Board_Stoerung::D0_Auf_0, "Eine Datenleitung hängt fest.", "A data line is stuck."},
        {Board_Stoerung::D7_Auf_1, "Eine Datenleitung hängt fest.", "A data line is stuck."},
        {Board_Stoerung::Nicht_Bereit,
         "Die Bereit-Leitung bleibt aus.",
         "The ready line never comes."},
        {Board_Stoerung::Falsche_Kennung,
         "Das IC gibt eine falsche Signatur: es wird nicht erkannt.",
         "The IC gives a wrong signature: it isn't recognised."},
        {Board_Stoerung::Nicht_Loeschbar,
         "Das IC lässt sich nicht löschen.",
         "The IC can't be erased."},
        {Board_Stoerung::Fuenf_Volt, "", ""}};
    Tessel2();
    for (const Zeile_T& z : Zeilen) {
        Board_Stoeren(z.Welche, true);
        for (int i = 0; i < Board_Stoerungen; ++i)
            EXPECT_EQ(Board_Gestoert(static_cast<Board_Stoerung>(i)),
                      static_cast<Board_Stoerung>(i) == z.Welche);
        Sprache = "E";
        EXPECT_EQ(Board_Ansehen().Lage, z.E);
        Sprache = "D";
        EXPECT_EQ(Board_Ansehen().Lage, z.D);
        Board_Stoeren(z.Welche, false);
        EXPECT_FALSE(Board_Gestoert(z.Welche));
        EXPECT_EQ(Board_Ansehen().Lage, "");
    }
}

TEST_F(Board_Ansicht_Test, the_faults_of_the_memories_say_why_too)
{
    struct Zeile_T {
        const char *   Typ, *E_Typ;
        Board_Stoerung Welche;
        const char *   D, *E;
    };
    const Zeile_T Zeilen[] = {{"29C256",
                               "29C",
                               Board_Stoerung::Langsam,
                               "Das IC speichert zu langsam.",
                               "The IC takes too long to store."},
                              {"27SF256",
                               "27SF",
                               Board_Stoerung::Draht_Vergessen,
                               "Der Draht zum Löschen wird nicht umgesteckt.",
                               "The wire for the erase isn't moved."}};
    for (const Zeile_T& z : Zeilen) {
        Einsetzen(z.Typ, 1, z.E_Typ, 1024, 10000, 64);
        Board_Stoeren(z.Welche, true);
        EXPECT_TRUE(Board_Gestoert(z.Welche));
        Sprache = "E";
        EXPECT_EQ(Board_Ansehen().Lage, z.E);
        Sprache = "D";
        EXPECT_EQ(Board_Ansehen().Lage, z.D);
        Board_Stoeren(z.Welche, false);
        EXPECT_EQ(Board_Ansehen().Lage, "");
    }
}

TEST_F(Board_Ansicht_Test, each_family_knows_its_faults_and_no_others)
{
    using enum Board_Stoerung;
    struct Zeile_T {
        const char*              Typ;
        int                      Brett;
        const char*              E_Typ;
        std::set<Board_Stoerung> Eigene; // beside those of the board
        bool                     Seiten;
    };
    const Zeile_T Zeilen[] = {
        {"27C256", 1, "UV", {}, false},
        {"28C256", 1, "28C", {Nicht_Loeschbar, Langsam}, false},
        {"28C010", 1, "29C", {Langsam}, false},
        {"28F010", 1, "28F", {Nicht_Loeschbar}, false},
        {"29C256", 1, "29C", {Langsam}, true},
        {"27SF256", 1, "27SF", {Nicht_Loeschbar, Draht_Vergessen}, false},
        {"89C2051", 2, "89CI", {Nicht_Loeschbar, Nicht_Bereit, Falsche_Kennung}, false},
        {"89C52", 3, "89CII", {Nicht_Loeschbar, Nicht_Bereit, Falsche_Kennung, Fuenf_Volt}, false},
        {"89C55WD",
         3,
         "89CIIWD",
         {Nicht_Loeschbar, Nicht_Bereit, Falsche_Kennung, Fuenf_Volt},
         false},
        {"89S53", 3, "89SII", {Nicht_Loeschbar, Nicht_Bereit, Falsche_Kennung}, false}};
    for (const Zeile_T& z : Zeilen) {
        Einsetzen(z.Typ, z.Brett, z.E_Typ, 2048, 1000, 64);
        Geraete_Tabelle[0].L_Typ = z.E_Typ;
        Board_Neuer_Baustein();
        EXPECT_EQ(Board_Ansehen().Hat_Seiten, z.Seiten) << z.Typ;
        EXPECT_EQ(Board_Schlechte_Seite(0), z.Seiten) << z.Typ;
        for (int i = 0; i < Board_Stoerungen; ++i) {
            const auto s  = static_cast<Board_Stoerung>(i);
            const bool Da = s < Nicht_Bereit || z.Eigene.contains(s);
            EXPECT_EQ(Board_Stoerung_Moeglich(s), Da) << z.Typ << " " << i;
            Board_Stoeren(s, true);
            EXPECT_EQ(Board_Gestoert(s), Da) << z.Typ << " " << i;
        }
    }
}

TEST_F(Board_Ansicht_Test, a_battery_backed_RAM_is_neither_slow_nor_erased)
{
    Einsetzen("48T08", 1, "29C", 8192, 1);
    Geraete_Tabelle[0].R_Typ = Geraete_Tabelle[0].P_Typ = "28C64";
    Board_Neuer_Baustein();
    EXPECT_FALSE(Board_Stoerung_Moeglich(Board_Stoerung::Langsam));
    EXPECT_FALSE(Board_Stoerung_Moeglich(Board_Stoerung::Nicht_Loeschbar));
}

TEST_F(Board_Ansicht_Test, a_part_that_cannot_be_erased_stays_written_in_each_family)
{
    struct Zeile_T {
        const char*  Typ;
        int          Brett;
        const char*  E_Typ;
        std::int32_t P_Timing;
        const char*  Meldung; // of the erase itself
    };
    const Zeile_T Zeilen[] = {
        {"28C256", 1, "28C", 10000, ""},
        {"28F010",
         1,
         "28F",
         10,
         "Can't erase 28F010! Please check the hardware and the flash eprom!"},
        {"27SF256", 1, "27SF", 20, ""},
        {"89C2051", 2, "89CI", 10, ""},
        {"89C52", 3, "89CII", 50, ""}};
    for (const Zeile_T& z : Zeilen) {
        Einsetzen(z.Typ, z.Brett, z.E_Typ, 512, z.P_Timing);
        for (const bool An : {true, false}) {
            Inhalt()[7] = 0x12;
            Board_Stoeren(Board_Stoerung::Nicht_Loeschbar, An);
            Box.Meldungen.clear();
            Box.Antworten = {Antwort_Ok, Antwort_Ok};
            MNU_IC_Löschen_Click();
            EXPECT_EQ(Inhalt()[7], An ? 0x12 : 0xFF) << z.Typ;
            if (An && *z.Meldung != '\0') {
                ASSERT_EQ(Box.Meldungen.size(), 1u) << z.Typ;
                EXPECT_EQ(Box.Meldungen[0].Text, z.Meldung);
            }
            Box.Antworten.clear();
            Abbruch = false;
        }
    }
}

TEST_F(Board_Ansicht_Test, a_forgotten_wire_leaves_a_27SF_written)
{
    for (const bool Vergessen : {true, false}) {
        Einsetzen("27SF256", 1, "27SF", 512, 20);
        Inhalt()[7] = 0x12;
        Board_Stoeren(Board_Stoerung::Draht_Vergessen, Vergessen);
        Box.Antworten = {Antwort_Ok, Antwort_Ok};
        MNU_IC_Löschen_Click();
        EXPECT_EQ(Inhalt()[7], Vergessen ? 0x12 : 0xFF);
    }
}

TEST_F(Board_Ansicht_Test, a_slow_part_fails_byte_by_byte_and_by_pages)
{
    Einsetzen("28C256", 1, "28C", 512, 10000);
    Board_Stoeren(Board_Stoerung::Langsam, true);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text, "Error while programming address 0(dec) / 0(hex) !");
    Einsetzen("29C256", 1, "29C", 8192, 10000, 64);
    Board_Stoeren(Board_Stoerung::Langsam, true);
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "29C256 can't be programmed successfully! Please check your hardware and the flash "
              "eprom!")
        << "busy with its last page while all are read";
}

TEST_F(Board_Ansicht_Test, a_bad_page_is_named_by_the_message)
{
    Einsetzen("29C256", 1, "29C", 1024, 10000, 64);
    EXPECT_FALSE(Board_Schlechte_Seite(1024));
    EXPECT_FALSE(Board_Schlechte_Seite(-1));
    EXPECT_TRUE(Board_Schlechte_Seite(3 * 64 + 63));
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fehler);
    ASSERT_EQ(Box.Meldungen.size(), 1u);
    EXPECT_EQ(Box.Meldungen[0].Text,
              "Sector number 3 can't be programmed successfully! Please check your hardware and "
              "the flash eprom!");
    Board_Neuer_Baustein();
    Box.Meldungen.clear();
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << "a new part is in order";
}

TEST_F(Board_Ansicht_Test, the_faulty_cells_and_pages_are_counted_once_each)
{
    Einsetzen("29C256", 1, "29C", 1024, 10000, 64);
    EXPECT_EQ(Board_Ansehen().Stellen, "none");
    Board_Tote_Zelle(5);
    Board_Schwache_Zelle(5);
    EXPECT_EQ(Board_Ansehen().Stellen, "1");
    Board_Schwache_Zelle(6);
    Board_Schlechte_Seite(6);
    Board_Schlechte_Seite(7);
    EXPECT_EQ(Board_Ansehen().Stellen, "3");
    Board_Neuer_Baustein();
    Sprache = "D";
    EXPECT_EQ(Board_Ansehen().Stellen, "keine");
    Einsetzen("27C256", 1, "UV", 1024, 100);
    dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein()->Puls(3, 0, 10);
    EXPECT_EQ(Board_Ansehen().Stellen, "keine") << "a pulse that was too short is no fault";
}

TEST_F(Board_Ansicht_Test, a_weak_cell_takes_at_the_fifth_attempt_in_each_family)
{
    struct Zeile_T {
        const char*  Typ;
        int          Brett;
        const char*  E_Typ;
        std::int32_t P_Timing;
    };
    const Zeile_T Zeilen[] = {{"27C256", 1, "UV", 100},
                              {"28C256", 1, "28C", 10000},
                              {"28F010", 1, "28F", 10},
                              {"27SF256", 1, "27SF", 20},
                              {"89C52", 3, "89CII", 50}};
    for (const Zeile_T& z : Zeilen) {
        Einsetzen(z.Typ, z.Brett, z.E_Typ, 512, z.P_Timing);
        EXPECT_FALSE(Board_Schwache_Zelle(512));
        EXPECT_FALSE(Board_Schwache_Zelle(-1));
        EXPECT_TRUE(Board_Schwache_Zelle(200));
        Brennen();
        EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << z.Typ;
        EXPECT_EQ(Versuch_Statistik[Schwache_Pulse], 1) << z.Typ;
        EXPECT_EQ(Versuch_Statistik[1], 511) << z.Typ;
        EXPECT_EQ(Inhalt()[200], 0x3C) << z.Typ;
    }
}

TEST_F(Board_Ansicht_Test, a_weak_cell_of_a_page_is_rewritten_until_it_takes)
{
    Einsetzen("29C256", 1, "29C", 1024, 10000, 64);
    EXPECT_TRUE(Board_Schwache_Zelle(200));
    Brennen();
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    const auto n =
        std::count(Status.Texte.begin(), Status.Texte.end(), "29C256 Reprogram 1 sectors... 20%");
    EXPECT_EQ(n, 4) << "four passes behind the first one";
}

TEST_F(Board_Ansicht_Test, a_part_for_5_volts_is_recognised_programmed_and_erased)
{
    Einsetzen("89C52", 3, "89CII", 512, 50);
    Board_Stoeren(Board_Stoerung::Fuenf_Volt, true);
    Brennen();
    EXPECT_EQ(Prog_Spannung, 5);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
    EXPECT_EQ(Inhalt(), std::vector<std::uint8_t>(512, 0x3C));
    MNU_IC_Löschen_Click();
    EXPECT_EQ(Inhalt(), std::vector<std::uint8_t>(512, 0xFF));
    Board_Stoeren(Board_Stoerung::Fuenf_Volt, false);
    EXPECT_FALSE(Board_Gestoert(Board_Stoerung::Fuenf_Volt));
    Brennen();
    EXPECT_EQ(Prog_Spannung, 12);
    EXPECT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig);
}

TEST_F(Board_Ansicht_Test, the_eprommer_has_no_faults_of_a_microcontroller)
{
    Eprommer();
    for (const auto s : {Board_Stoerung::Nicht_Bereit, Board_Stoerung::Falsche_Kennung}) {
        Board_Stoeren(s, true);
        EXPECT_FALSE(Board_Gestoert(s));
    }
    EXPECT_EQ(Board_Ansehen().Lage, "");
}

TEST_F(Board_Ansicht_Test, a_locked_part_tells_why_it_cannot_be_read)
{
    Tessel2();
    auto* Baustein        = dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein();
    Baustein->Sperr_Stufe = 2;
    EXPECT_EQ(Board_Ansehen().Lage, "");
    Baustein->Sperr_Stufe = 3;
    EXPECT_EQ(Board_Ansehen().Lage,
              "The lock level prevents reading: the IC shows FFh everywhere.");
    Sprache = "D";
    EXPECT_EQ(Board_Ansehen().Lage,
              "Die Sperrstufe verhindert das Lesen: das IC zeigt überall FFh.");
}

TEST_F(Board_Ansicht_Test, a_part_taken_out_reads_as_nothing_and_comes_back_as_it_was)
{
    Eprommer();
    Inhalt()[0] = 0x12;
    Board_Stoeren(Board_Stoerung::Sockel_Leer, true);
    EXPECT_FALSE(Board_Ansehen().Hat_Baustein);
    EXPECT_EQ(Board_Ansehen().Bytes, "");
    Hex_Puffer.assign(32768, 0);
    Antwort = Antwort_Ok;
    Baustein_Lesen();
    EXPECT_EQ(Hex_Puffer[0], 0xFF);
    Board_Stoeren(Board_Stoerung::Sockel_Leer, false);
    Antwort = Antwort_Ok;
    Baustein_Lesen();
    EXPECT_EQ(Hex_Puffer[0], 0x12);
}

TEST_F(Board_Ansicht_Test, a_new_part_is_erased_and_takes_all_faults_with_it)
{
    Tessel2();
    Inhalt()[0] = 0;
    for (int i = 0; i < Board_Stoerungen; ++i)
        Board_Stoeren(static_cast<Board_Stoerung>(i), true);
    Board_Neuer_Baustein();
    for (int i = 0; i < Board_Stoerungen; ++i)
        EXPECT_FALSE(Board_Gestoert(static_cast<Board_Stoerung>(i)));
    EXPECT_EQ(Board_Ansehen().Benutzt, "empty, all FFh");
    EXPECT_TRUE(Porttreiber_OK);
}

TEST_F(Board_Ansicht_Test, light_erases_every_byte)
{
    Eprommer();
    Inhalt().assign(32768, 0);
    Board_UV_Loeschen();
    EXPECT_EQ(Board_Ansehen().Benutzt, "empty, all FFh");
}

TEST_F(Board_Ansicht_Test, a_dead_cell_has_to_lie_in_the_part)
{
    Eprommer();
    EXPECT_TRUE(Board_Tote_Zelle(0));
    EXPECT_TRUE(Board_Tote_Zelle(32767));
    EXPECT_FALSE(Board_Tote_Zelle(32768));
    EXPECT_FALSE(Board_Tote_Zelle(-1));
    auto* b = dynamic_cast<Simuliertes_Board&>(*Port_Einrichtung.Treiber).Baustein();
    b->Puls(0, 0, 1000000);
    b->Puls(1, 0, 1000000);
    EXPECT_EQ(Inhalt()[0], 0xFF);
    EXPECT_EQ(Inhalt()[1], 0);
}

TEST_F(Board_Ansicht_Test, contents_go_into_a_file_and_come_back)
{
    Eprommer();
    for (std::size_t i = 0; i < Inhalt().size(); ++i)
        Inhalt()[i] = static_cast<std::uint8_t>(i * 7 >> 3);
    const auto        Vorher = Inhalt();
    const std::string Datei  = (Ordner / "chip.bin").string();
    EXPECT_EQ(Board_Sichern(Datei).E, "");
    EXPECT_EQ(fs::file_size(Datei), 32768u);
    Board_Neuer_Baustein();
    EXPECT_NE(Inhalt(), Vorher);
    EXPECT_EQ(Board_Laden(Datei).E, "");
    EXPECT_EQ(Inhalt(), Vorher);
}

TEST_F(Board_Ansicht_Test, a_file_that_does_not_fit_is_told_and_leaves_the_part)
{
    Eprommer();
    Inhalt()[0] = 0x34;
    for (const std::size_t n : {std::size_t{0}, std::size_t{100}, std::size_t{32770}}) {
        std::ofstream(Ordner / "bad.bin", std::ios::binary) << std::string(n, 'x');
        const Text_Paar t = Board_Laden((Ordner / "bad.bin").string());
        EXPECT_FALSE(t.E.empty()) << n;
        EXPECT_FALSE(t.D.empty()) << n;
        EXPECT_EQ(Inhalt()[0], 0x34);
    }
    EXPECT_FALSE(Board_Laden(Ordner.string()).E.empty()) << "a folder";
    EXPECT_FALSE(Board_Sichern((Ordner / "gone" / "x.bin").string()).E.empty());
}

TEST_F(Board_Ansicht_Test, the_command_opens_the_window)
{
    MNU_EEprommer_Click();
    EXPECT_EQ(Fenster.Protokoll, (std::vector<std::string>{"Zeigen Board"}));
}

} // namespace
} // namespace varnholt::test
