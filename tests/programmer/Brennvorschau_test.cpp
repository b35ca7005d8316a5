// The preview of a programming run: what it counts, against what a run then does, and its words.
#include "programmer/Brennvorschau.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Loeschen.h"
#include "programmer/Special.h"
#include "programmer/Specifications.h"

#include <fmt/format.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <sstream>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

class Brennvorschau_Test : public Brenner_Welt {
protected:
    // The dialog for a device with these contents, read before.
    void Oeffnen(const Bytes_T& Baustein,
                 const Bytes_T& Editor,
                 const char*    Typ   = "27C64",
                 const char*    E_Typ = "UV")
    {
        Geraet(Typ, static_cast<std::int32_t>(Baustein.size())).E_Typ = E_Typ;
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

// EPROM cells: bits only fall.
constexpr Brenn_Umstaende Faellt{};
constexpr Brenn_Umstaende Mit_Loeschen{.Loescht = true};
constexpr Brenn_Umstaende Hebt{.Hebt_Bits = true};

TEST_F(Brennvorschau_Test, what_is_written_changes_and_rises_is_counted)
{
    const Bytes_T        Alt = {0x00, 0x0F, 0xFF, 0x55};
    const Bytes_T        Neu = {0x00, 0x1F, 0x7F, 0x54};
    const Brenn_Bereich  b{.Letzte = 3};
    const Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, b, Faellt);
    EXPECT_EQ(v.Geschrieben, 4);
    EXPECT_EQ(v.Geaendert, 2) << "the second one stays: its bit can't rise";
    EXPECT_EQ(v.Ansteigend, 1);
    EXPECT_EQ(v.Ausserhalb, 0);
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, b, Hebt).Geaendert, 3);
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, b, Hebt).Ansteigend, 0);
}

TEST_F(Brennvorschau_Test, an_erase_changes_the_bytes_outside_the_range_too)
{
    const Bytes_T        Alt = {0x00, 0x0F, 0xFF, 0x55};
    const Bytes_T        Neu = {0x00, 0x1F};
    const Brenn_Vorschau v   = Vorschau_Rechnen(Alt, Neu, {.Letzte = 1}, Mit_Loeschen);
    EXPECT_EQ(v.Geschrieben, 2);
    EXPECT_EQ(v.Geaendert, 2) << "the second by the run, the last by the erase";
    EXPECT_EQ(v.Ansteigend, 0);
}

TEST_F(Brennvorschau_Test, an_FFh_is_passed_over_only_with_its_option)
{
    const Bytes_T Alt = {0x00, 0x00};
    const Bytes_T Neu = {0xFF, 0x01};
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, {.Letzte = 1}, Faellt).Geschrieben, 1);
    const Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, {.Letzte = 1, .Ohne_FF = false}, Faellt);
    EXPECT_EQ(v.Geschrieben, 2);
    EXPECT_EQ(v.Ansteigend, 2);
}

TEST_F(Brennvorschau_Test, an_FFh_that_is_passed_over_and_checked_would_have_to_rise)
{
    const Bytes_T         Alt = {0x00, 0x00, 0xFF};
    const Bytes_T         Neu = {0xFF, 0xFF, 0xFF};
    const Brenn_Bereich   b{.Ab = 1, .Letzte = 2};
    const Brenn_Umstaende u{.Sieht_FF_Nach = true};
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, b, u).Geschrieben, 0);
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, b, u).Ansteigend, 1) << "nothing is checked below Ab";
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, b, Faellt).Ansteigend, 0);
}

TEST_F(Brennvorschau_Test, bytes_without_a_place_in_the_device_are_counted)
{
    const Bytes_T Neu        = {1, 2, 3, 4, 0xFF, 6};
    const auto    Ausserhalb = [&](const Brenn_Bereich& b) {
        return Vorschau_Rechnen({}, Neu, b, Faellt).Ausserhalb;
    };
    EXPECT_EQ(Ausserhalb({.Letzte = 1}), 3);
    EXPECT_EQ(Ausserhalb({.Letzte = 5}), 0);
    EXPECT_EQ(Ausserhalb({.Abstand = -2, .Letzte = 3}), 2) << "those ahead of the range";
    EXPECT_EQ(Ausserhalb({.Abstand = 1, .Letzte = 6, .Nullen_Bis = 3}), 2)
        << "those in whose place 00h comes";
    EXPECT_EQ(Ausserhalb({.Letzte = 1, .Gerade = true}), 0) << "1 and 3 go in, FFh needn't";
    EXPECT_EQ(Ausserhalb({.Letzte = 1, .Ungerade = true}), 1) << "2 and 4 go in";
}

TEST_F(Brennvorschau_Test, a_split_takes_every_second_byte)
{
    const Bytes_T Neu = {1, 0x81, 2, 0x82, 3, 0x83};
    const Bytes_T Alt = {1, 2, 3};
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, {.Letzte = 2, .Gerade = true}, Hebt).Geaendert, 0);
    EXPECT_EQ(Vorschau_Rechnen(Alt, Neu, {.Letzte = 2, .Ungerade = true}, Hebt).Geaendert, 3);
}

TEST_F(Brennvorschau_Test, what_is_filled_with_00h_ahead_of_the_range_counts_too)
{
    const Bytes_T  Alt = {0xFF, 0, 0xFF, 0xFF};
    const Bytes_T  Neu = {7, 8};
    Brenn_Bereich  b{.Ab = 2, .Abstand = 2, .Erste = 2, .Letzte = 3};
    Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, b, Faellt);
    EXPECT_EQ(v.Geschrieben, 2);
    b.Erste = 0;
    v       = Vorschau_Rechnen(Alt, Neu, b, Faellt);
    EXPECT_EQ(v.Geschrieben, 4);
    EXPECT_EQ(v.Geaendert, 3);
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
    const Brenn_Vorschau v = Vorschau_Rechnen(Alt, Neu, {.Letzte = Letzte, .Ohne_FF = Ohne}, Hebt);
    RC_ASSERT(v.Geaendert == Anders);
    RC_ASSERT(v.Ausserhalb == Rest);
}

// --- the dialog ---

TEST_F(Brennvorschau_Test, the_words_come_in_both_languages)
{
    Oeffnen({0x00, 0x02, 0xFF, 0xFE}, {0x01, 0x02, 0x03}, "27C64", "UV");
    EXPECT_EQ(Text(),
              "3 bytes will be written. 1 of them change. In 1 bytes bits would have to go from 0 "
              "to 1: that takes an erase first.");
    Sprache = "D";
    EXPECT_EQ(Text(),
              "3 Bytes werden geschrieben. 1 davon ändern sich. In 1 Bytes müssten Bits von 0 auf "
              "1 gehen: das geht nur nach dem Löschen.");
}

TEST_F(Brennvorschau_Test, an_erase_is_told_in_both_languages)
{
    Oeffnen({0x00, 0x02, 0xFF, 0xFE}, {0x01, 0x02, 0x03}, "28C64", "28C");
    Brennmenue.Löschen = true;
    EXPECT_EQ(Text(),
              "3 bytes will be written. The whole IC is erased before. 3 bytes of the whole IC "
              "change.");
    Sprache = "D";
    EXPECT_EQ(Text(),
              "3 Bytes werden geschrieben. Vorher wird das ganze IC gelöscht. Im ganzen IC ändern "
              "sich 3 Bytes.");
}

TEST_F(Brennvorschau_Test, an_erase_that_the_device_does_not_have_is_told_in_both_languages)
{
    Oeffnen({0x00, 0x02, 0xFF, 0xFE}, {0x01, 0x02, 0x03}, "27C64", "UV");
    Brennmenue.Löschen = true;
    EXPECT_EQ(Text(),
              "3 bytes will be written. Nothing is erased: there is no erase for this IC here. 1 "
              "of them change. In 1 bytes bits would have to go from 0 to 1: that takes an erase "
              "first.");
    Sprache = "D";
    EXPECT_TRUE(Text().starts_with("3 Bytes werden geschrieben. Gelöscht wird nicht: für dieses "
                                   "IC gibt es hier kein Löschen. 1 davon ändern sich. In 1 "));
}

TEST_F(Brennvorschau_Test, an_EEPROM_takes_its_bytes_over_old_ones_without_a_warning)
{
    Oeffnen({0x00, 0x02, 0x00, 0x00}, {0x01, 0x02, 0x03}, "28C64", "28C");
    EXPECT_EQ(Text(), "4 bytes will be written. 3 of them change.")
        << "it isn't erased: FFh is written up to its end";
}

TEST_F(Brennvorschau_Test, a_device_without_a_routine_is_told_in_both_languages)
{
    Oeffnen({0, 0}, {1, 2}, "28C64", "28C");
    Geraete_Tabelle[0].P_Typ = "48Z08";
    EXPECT_EQ(Text(), "28C64 can't be programmed: there is no programming routine for its type.");
    Sprache = "D";
    EXPECT_EQ(Text(),
              "28C64 kann nicht gebrannt werden: für seinen Typ gibt es keine Brennroutine.");
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
    for (const char* Unbekannt : {"?", "-", ""}) {
        Brennmenue.IC_LBA_D = Unbekannt;
        EXPECT_NE(Text().find("nicht bekannt"), std::string::npos) << Unbekannt;
    }
}

TEST_F(Brennvorschau_Test, while_the_device_is_read_nothing_else_is_told)
{
    Oeffnen({0, 0}, {1, 2});
    std::string Dabei;
    Ereignisse.Bei_Runde = [&](int) { Dabei = Text(); };
    Brennmenue_Oeffnen();
    EXPECT_EQ(Dabei, "The IC is being read...");
    Sprache = "D";
    Brennmenue_Oeffnen();
    EXPECT_EQ(Dabei, "Das IC wird gerade gelesen...");
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
    EXPECT_EQ(Bereich_Des_Dialogs().Letzte, 1);
    No_FF = false;
    EXPECT_EQ(Bereich_Des_Dialogs().Letzte, 15);
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

TEST_F(Brennvorschau_Test, fields_beyond_all_bounds_end_well)
{
    Oeffnen(Bytes_T(16, 0xFF), {1, 2});
    for (const char* P : {"27C64", "28C64", "28F010", "29C256"})
        for (const char* a : {"-2147483648", "-999999999", "2147483647", "99999999999", "x", ""})
            for (const bool Ohne : {true, false}) {
                Geraete_Tabelle[0].P_Typ = P;
                No_FF                    = Ohne;
                Brennmenue.BR_EBA_D      = a;
                Brennmenue.BR_LBA_D      = a;
                Brennmenue.ED_EBA_D      = a;
                Brennmenue.DAT00         = !Brennmenue.DAT00;
                const Brenn_Bereich b    = Bereich_Des_Dialogs();
                EXPECT_GE(b.Erste, 0);
                EXPECT_LE(b.Letzte, 15);
                EXPECT_FALSE(Text().empty());
            }
}

// --- against the simulated boards ---

// One device of the shipped list, cut down to a few bytes.
class Lauf_Test : public Welt {
protected:
    Lauf_Test()
    {
        Programm_Pfad = VARNHOLT_DATA "/";
        Spec_Lesen();
        Modus       = Modus_Hex;
        C_IC_nach_B = false;
        C_IC = C_Brenner = true;
    }
    static std::int32_t Klein(const Geraet_T& g)
    {
        return std::min(g.Bytes, std::max(128, 3 * g.Seiten_Bytes));
    }
    // One device for each way that a run can go. On a 28F040 and a 28F080 the strobe is the highest
    // address line: the board can't program them.
    static std::vector<int> Nummern()
    {
        std::set<std::string> Gesehen;
        std::vector<int>      Liste;
        for (int i = 0; i < Geraete_Anzahl; ++i) {
            const Geraet_T& g = Geraet_Mit_Nummer(i);
            if (g.Name.empty() || g.P_Typ == "28F040" || g.P_Typ == "28F080")
                continue;
            if (Gesehen.insert(g.P_Typ + g.E_Typ + g.R_Typ + g.Name.substr(0, 3)).second)
                Liste.push_back(i);
        }
        return Liste;
    }
    void Einsetzen(int Nummer)
    {
        IC_Nummer = Nummer;
        auto& g   = Geraete_Tabelle[static_cast<std::size_t>(Nummer)];
        g.Bytes   = Klein(g);
        IC_Groesse[static_cast<std::size_t>(Nummer) + 1] = g.Bytes;
        Board                                            = Simuliertes_Board_Fuer(Nummer);
        Strom.str({});
        Recorder       = std::make_unique<Aufzeichnung>(*Board, Strom);
        Plattform.Port = Recorder.get();
        Porttreiber_Laden();
        Box.Antworten = {Antwort_Ok, Antwort_Ok};
        Box.Meldungen.clear();
    }
    std::vector<std::string> Spur()
    {
        Recorder->Abschliessen();
        std::vector<std::string> Zeilen;
        std::istringstream       Text(Strom.str());
        for (std::string z; std::getline(Text, z);)
            Zeilen.push_back(z);
        Strom.str({});
        return Zeilen;
    }
    Bytes_T& Inhalt() const { return Board->Baustein()->Inhalt; }
    int      Zufall(int Unter) { return static_cast<int>(Quelle() % static_cast<unsigned>(Unter)); }
    bool     Ja() { return Zufall(2) == 1; }
    // Every fourth byte is FFh, or the next ones are.
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Zufall(4) == 0 ? 255 : Zufall(256)); }

    void Bild_Wuerfeln()
    {
        Bild_Loeschen();
        std::generate_n(Hex_Daten.begin(), 20 + Zufall(2000), [&] { return Byte(); });
    }
    // A device that is blank, holds anything, or nothing that stands in the way.
    void Inhalt_Wuerfeln()
    {
        const int Art = Zufall(3);
        for (std::size_t i = 0; i < Inhalt().size(); ++i)
            Inhalt()[i] = Art == 0 ? std::uint8_t{255} : Byte();
        Passend = Art == 2;
    }
    void Felder_Wuerfeln()
    {
        const std::int32_t n = Klein(Gewaehltes_Geraet());
        do {
            const int Von = Zufall(4) == 0 ? Zufall(64) : 0;
            ED_EBA_D_Change(std::to_string(Von));
            ED_LBA_D_Change(std::to_string(Von + Zufall(n)));
            BR_EBA_D_Change(std::to_string(Ja() ? 0 : Zufall(n)));
        } while (!Brennmenue.Brennen_Aktiv);
        Brennmenue.DAT00   = Zufall(4) == 0;
        Brennmenue.Löschen = Ja();
        Splitting_Waehlen(
            std::array{Splitting::Kein,
                       Splitting::Gerade,
                       Splitting::Ungerade}[static_cast<std::size_t>(Ja() ? 0 : Zufall(3))]);
        if (Passend && !Brennmenue.Löschen)
            Passend_Machen();
    }
    // The range's cells hold all the bits that they are to hold.
    void Passend_Machen()
    {
        const Brenn_Bereich b = Bereich_Des_Dialogs();
        for (std::int32_t a = 0; a < static_cast<std::int32_t>(Inhalt().size()); ++a) {
            const auto e = Bild_Adresse(a, b.Abstand, b.Ungerade, b.Gerade);
            Inhalt()[static_cast<std::size_t>(a)] |= Bild_Byte(Hex_Daten, e);
        }
    }
    std::string Lage() const
    {
        const auto& b = Brennmenue;
        return fmt::format("{} {} ED {}-{} BR {} DAT00 {} erase {} split {}{} No_FF {} before {} "
                           "during {}",
                           Gewaehltes_Geraet().Name,
                           Gewaehltes_Geraet().P_Typ,
                           b.ED_EBA_D,
                           b.ED_LBA_D,
                           b.BR_EBA_D,
                           b.DAT00,
                           b.Löschen,
                           b.O_Even_Splitting,
                           b.O_Odd_Splitting,
                           No_FF,
                           C_IC_vor_B,
                           C_IC_bei_B);
    }
    void Vorbereiten(int Nummer)
    {
        Einsetzen(Nummer);
        Bild_Wuerfeln();
        Hex_Daten[0] = 1; // never empty
        Inhalt_Wuerfeln();
        No_FF      = Ja();
        C_IC_vor_B = Ja();
        Brennmenue_Oeffnen();
        Felder_Wuerfeln();
        Spur();
    }

    std::unique_ptr<Simuliertes_Board> Board{};
    std::ostringstream                 Strom{};
    std::unique_ptr<Aufzeichnung>      Recorder{};
    std::mt19937                       Quelle{1};
    bool                               Passend = false;
};

// The write strobes of a run, by what the routine's own sequence has once for each byte.
std::int32_t Schreibvorgaenge(const std::vector<std::string>& Spur, Brenn_Weg Weg)
{
    const auto Anzahl = [&](std::initializer_list<const char*> Zeilen) {
        return static_cast<std::int32_t>(std::count_if(Spur.begin(), Spur.end(), [&](auto& z) {
            return std::find(Zeilen.begin(), Zeilen.end(), z) != Zeilen.end();
        }));
    };
    std::int32_t An_C2 = 0; // C2 goes to 0 and back
    for (std::size_t i = 1; i < Spur.size(); ++i)
        if (Spur[i].starts_with("W C") && Spur[i - 1].starts_with("W C")) {
            const int Vorher = std::stoi(Spur[i - 1].substr(4), nullptr, 16);
            An_C2 += std::stoi(Spur[i].substr(4), nullptr, 16) == Vorher + 4 && (Vorher & 4) == 0
                         ? 1
                         : 0;
        }
    switch (Weg) {
    case Brenn_Weg::Eprom:
    case Brenn_Weg::Tessel2:
        return Anzahl({"W D 10", "W D 11"});
    case Brenn_Weg::EEPROM:
        return Anzahl({"W D 12", "W D 13"});
    case Brenn_Weg::Flash: // the set-up command and the byte, each with its check on the bus
        return Anzahl({"W D 99"}) / 2;
    case Brenn_Weg::Seiten:
        return Anzahl({"W D 13"}) + An_C2;
    case Brenn_Weg::Tessel1:
        return Anzahl({"W D 00"});
    case Brenn_Weg::Keiner:
        break;
    }
    return -1;
}

// The last eight bytes of a 48T are a clock, which goes on.
std::int32_t Vergleichbare(const Geraet_T& g)
{
    return g.Bytes - (g.Name.starts_with("48T") ? 8 : 0);
}

constexpr int Runden = 6;

TEST_F(Lauf_Test, the_preview_is_what_the_run_does)
{
    std::set<Brenn_Weg> Wege;
    for (const int Nummer : Nummern())
        for (int i = 0; i < Runden; ++i) {
            Vorbereiten(Nummer);
            const Geraet_T& g            = Gewaehltes_Geraet();
            C_IC_bei_B                   = false; // so that what doesn't take ends no run
            const Bytes_T        Vorher  = Inhalt();
            const auto           Bereich = Bereich_Des_Dialogs();
            const Brenn_Vorschau v =
                Vorschau_Rechnen(Vorher, Hex_Daten, Bereich, Umstaende_Des_Dialogs());
            const std::string l = Lage();
            Wege.insert(Bereich.Weg);
            Brennen_Click();
            ASSERT_EQ(Brenn_Ergebnis, Brenn_Ausgang::Fertig) << l;
            Board->Baustein()->Fertigstellen();
            std::int32_t       Anders = 0;
            const std::int32_t Ende   = Vergleichbare(g);
            for (std::size_t a = 0; a < static_cast<std::size_t>(Ende); ++a)
                Anders += Vorher[a] != Inhalt()[a] ? 1 : 0;
            if (Bereich.Letzte < Ende) {
                EXPECT_EQ(v.Geaendert, Anders) << l;
            }
            EXPECT_EQ(v.Geschrieben, Schreibvorgaenge(Spur(), Bereich.Weg)) << l;
        }
    EXPECT_EQ(Wege.size(), 6u) << "each family";
}

// A routine that reads back ends at the first byte that doesn't take.
TEST_F(Lauf_Test, a_byte_whose_bits_would_have_to_rise_stops_a_run_that_reads_back)
{
    std::set<bool> Beides;
    for (const int Nummer : Nummern())
        for (int i = 0; i < Runden; ++i) {
            Vorbereiten(Nummer);
            const auto Weg = Bereich_Des_Dialogs().Weg;
            if (Weg == Brenn_Weg::Tessel1)
                continue;
            Brennmenue.DAT00       = false; // what lies below the range isn't read back
            C_IC_bei_B             = true;
            const Brenn_Vorschau v = Vorschau_Rechnen(
                Inhalt(), Hex_Daten, Bereich_Des_Dialogs(), Umstaende_Des_Dialogs());
            const std::string l = Lage();
            Brennen_Click();
            EXPECT_EQ(Brenn_Ergebnis,
                      v.Ansteigend > 0 ? Brenn_Ausgang::Fehler : Brenn_Ausgang::Fertig)
                << l;
            Beides.insert(v.Ansteigend > 0);
        }
    EXPECT_EQ(Beides.size(), 2u);
}

TEST_F(Lauf_Test, the_erase_is_told_where_there_is_one)
{
    const auto Loescht = [&](const char* Name) {
        Einsetzen(Geraet_Suchen(Name));
        Brennmenue_Oeffnen();
        Brennmenue.Löschen = true;
        std::fill(Inhalt().begin(), Inhalt().end(), std::uint8_t{0});
        const bool Gesagt = Umstaende_Des_Dialogs().Loescht;
        Vor_Brennen_Löschen();
        Board->Baustein()->Fertigstellen();
        EXPECT_EQ(Inhalt(), Bytes_T(Inhalt().size(), Gesagt ? 0xFF : 0x00)) << Name;
        return Gesagt;
    };
    for (const char* Name :
         {"28C64", "PT28C020", "28F010", "27SF256", "89C2051", "89C52", "89S53", "89C55WD"})
        EXPECT_TRUE(Loescht(Name)) << Name;
    for (const char* Name : {"27C64", "87C257", "29C256", "AT28C010", "HN58C256", "48Z08"})
        EXPECT_FALSE(Loescht(Name)) << Name;
}

TEST_F(Lauf_Test, only_the_Tessel2_erases_its_types_in_the_dialog)
{
    Einsetzen(Geraet_Suchen("89C2051"));
    for (const char* E : {"89CII", "89SII", "89CIIWD", "89X", ""}) {
        Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].E_Typ = E;
        EXPECT_FALSE(Vor_Brennen_Loeschbar()) << E;
        Spur();
        Vor_Brennen_Löschen();
        EXPECT_TRUE(Spur().empty()) << E;
    }
    Einsetzen(Geraet_Suchen("89C52"));
    for (const char* E : {"89CII", "89CIIWD", "28C", ""}) {
        Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].E_Typ = E;
        EXPECT_TRUE(Vor_Brennen_Loeschbar()) << E;
    }
}

} // namespace
} // namespace varnholt::test
