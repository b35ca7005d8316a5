// The bytes of the microcontroller routines: each sequence against a trace that was made from the
// protocol of the two boards.
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/MC_Welt.h"

#include <functional>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

const Bytes_T Vier{0x12, 0xFF, 0x00, 0xA5};
const Bytes_T Acht{1, 2, 3, 4, 5, 6, 7, 8};
const Bytes_T Leer(4, 0xFF);

class MC_Spur_Test : public MC_Welt {
protected:
    // What the part is set up with, then what is run, for each trace.
    struct Lauf_T {
        std::string           Name;
        Bytes_T               Inhalt{};
        Bytes_T               Bild{};
        std::function<void()> Aendern{}; // board, options; for a run also the dialog's fields
    };

    void Vorbereiten(const std::string& Name, const Bytes_T& Bytes)
    {
        Alles_Wie_Am_Anfang();
        Einsetzen(Name, Bytes);
        if (auto* t1 = dynamic_cast<Simulierter_Tessel1*>(&Board()))
            t1->Im_Sockel = Simulierter_MC(Geraete_Tabelle[0], 1); // ready at the first look
        Inhalt() = Bytes;
        Spur();
    }
    void Alles_Wie_Am_Anfang()
    {
        Brenner_Zuruecksetzen();
        C_Brenner = C_IC = C_IC_bei_B = No_FF = true;
        Abbruch                               = false;
        Ereignisse.Bei_Runde                  = {};
        Ereignisse.Runden                     = 0;
    }
    std::string Lese_Spur(const std::string& Name, const std::function<void()>& Aendern = {})
    {
        Vorbereiten(Name, Vier);
        if (Aendern)
            Aendern();
        Name.ends_with("051") ? Tessel1_Lesen() : Tessel2_Lesen();
        return Spur();
    }
    std::string Brenn_Spur(const std::string&           Name,
                           const Bytes_T&               Bild,
                           const std::function<void()>& Aendern = {})
    {
        Vorbereiten(Name, Leer);
        Bild_Fuellen(Bild);
        Brennen(Aendern);
        return Spur();
    }
    std::string Schritt_Spur(const std::string& Name, const std::function<void()>& Tun)
    {
        Vorbereiten(Name, Leer);
        Tun();
        return Spur();
    }
    // The user gives up when this address is about to be worked on.
    void Abbruch_Bei(std::int32_t Adresse)
    {
        Ereignisse.Bei_Runde = [Adresse](int) { Abbruch = Adresse_Zaehler == Adresse; };
    }
    void Keine_Kennung() { Board().Fehler.Falsche_Kennung = true; }
};

// ---- Tessel1 ----

TEST_F(MC_Spur_Test, reading_a_20_pin_part)
{
    EXPECT_EQ(Lese_Spur("89C2051"), Erwartete_Spur("t1_lesen"));
    EXPECT_EQ(Gelesen(4), Vier);
    EXPECT_EQ(Lese_Spur("89C1051"), Erwartete_Spur("t1_lesen"));
    EXPECT_EQ(Lese_Spur("89C4051"), Erwartete_Spur("t1_lesen"));
}

TEST_F(MC_Spur_Test, the_check_of_the_tessel1_stands_under_two_options)
{
    EXPECT_EQ(Lese_Spur("89C2051", [] { C_Brenner = false; }),
              Erwartete_Spur("t1_lesen_ohne_C_Brenner"));
    EXPECT_EQ(Lese_Spur("89C2051", [] { C_IC = false; }), Erwartete_Spur("t1_lesen_ohne_C_IC"));
}

TEST_F(MC_Spur_Test, a_missing_tessel1_board_is_asked_about_and_checked_again)
{
    const auto Stoeren = [&] { Board().Fehler.Klemmt_Auf_0 = 1; };
    EXPECT_EQ(Lese_Spur("89C2051", Stoeren), Erwartete_Spur("t1_kein_board"));
    Box.Antworten = {Antwort_Ok};
    EXPECT_EQ(Lese_Spur("89C2051", Stoeren), Erwartete_Spur("t1_kein_board_nochmal"));
}

TEST_F(MC_Spur_Test, a_missing_20_pin_part_is_asked_about_and_looked_for_again)
{
    EXPECT_EQ(Lese_Spur("89C2051", [&] { Keine_Kennung(); }), Erwartete_Spur("t1_kein_ic"));
    Box.Antworten = {Antwort_Ok};
    EXPECT_EQ(Lese_Spur("89C2051", [&] { Keine_Kennung(); }), Erwartete_Spur("t1_kein_ic_nochmal"));
}

TEST_F(MC_Spur_Test, a_read_of_a_20_pin_part_that_is_given_up)
{
    EXPECT_EQ(Lese_Spur("89C2051", [&] { Abbruch_Bei(2); }), Erwartete_Spur("t1_lesen_abbruch"));
    EXPECT_EQ(Lese_Spur("89C2051", [] { Abbruch = true; }),
              Erwartete_Spur("t1_lesen_abbruch_vorher"));
}

TEST_F(MC_Spur_Test, programming_a_20_pin_part)
{
    EXPECT_EQ(Brenn_Spur("89C2051", Vier), Erwartete_Spur("t1_brennen"));
    EXPECT_EQ(Inhalt(), Vier);
    EXPECT_EQ(Brenn_Spur("89C2051", Vier, [] { No_FF = false; }),
              Erwartete_Spur("t1_brennen_mit_FF"));
    EXPECT_EQ(Brenn_Spur("89C2051", Vier, [] { C_IC_bei_B = false; }),
              Erwartete_Spur("t1_brennen_ohne_bereit"));
}

TEST_F(MC_Spur_Test, programming_a_20_pin_part_from_an_address_on)
{
    EXPECT_EQ(Brenn_Spur("89C2051", {1, 2}, [] { BR_EBA_D_Change("2"); }),
              Erwartete_Spur("t1_brennen_ab_2"));
    EXPECT_EQ(Inhalt(), (Bytes_T{0xFF, 0xFF, 1, 2}));
    EXPECT_EQ(Brenn_Spur("89C2051",
                         {1, 2},
                         [] {
                             BR_EBA_D_Change("2");
                             Brennmenue.DAT00 = true;
                         }),
              Erwartete_Spur("t1_brennen_DAT00"));
    EXPECT_EQ(Inhalt(), (Bytes_T{0, 0, 1, 2}));
}

// The first half of the image to the four bytes of the part, by that split.
void Gesplittet(Splitting Wahl)
{
    ED_LBA_D_Change("3");
    Splitting_Waehlen(Wahl);
}

TEST_F(MC_Spur_Test, programming_a_20_pin_part_with_a_split)
{
    EXPECT_EQ(Brenn_Spur("89C2051", Acht, [] { Gesplittet(Splitting::Gerade); }),
              Erwartete_Spur("t1_brennen_gerade"));
    EXPECT_EQ(Brenn_Spur("89C2051", Acht, [] { Gesplittet(Splitting::Ungerade); }),
              Erwartete_Spur("t1_brennen_ungerade"));
}

TEST_F(MC_Spur_Test, programming_of_a_20_pin_part_that_is_given_up)
{
    EXPECT_EQ(Brenn_Spur("89C2051", Vier, [&] { Abbruch_Bei(2); }),
              Erwartete_Spur("t1_brennen_abbruch"));
    EXPECT_EQ(Brenn_Spur("89C2051", Vier, [] { Abbruch = true; }),
              Erwartete_Spur("t1_brennen_abbruch_vorher"));
}

TEST_F(MC_Spur_Test, erasing_and_locking_a_20_pin_part)
{
    EXPECT_EQ(Schritt_Spur("89C2051", Tessel1_Löschen), Erwartete_Spur("t1_loeschen"));
    for (const int Stufe : {1, 2})
        EXPECT_EQ(Schritt_Spur("89C2051", [=] { Tessel1_Sperren(Stufe); }),
                  Erwartete_Spur("t1_sperren_" + std::to_string(Stufe)));
}

// ---- Tessel2 ----

class Tessel2_Teil_Test : public MC_Spur_Test, public ::testing::WithParamInterface<const char*> {};

TEST_P(Tessel2_Teil_Test, reading_programming_and_erasing_send_exactly_these_bytes)
{
    const std::string Name = GetParam();
    EXPECT_EQ(Lese_Spur(Name), Erwartete_Spur("t2_lesen_" + Name));
    EXPECT_EQ(Gelesen(4), Vier);
    EXPECT_EQ(Brenn_Spur(Name, Vier), Erwartete_Spur("t2_brennen_" + Name));
    EXPECT_EQ(Inhalt(), Vier);
    if (Name == "89C55WD")
        return;
    EXPECT_EQ(Schritt_Spur(Name, Tessel2_Löschen), Erwartete_Spur("t2_loeschen_" + Name));
}

INSTANTIATE_TEST_SUITE_P(
    Parts,
    Tessel2_Teil_Test,
    ::testing::Values("89C51", "89C52", "89C55", "89C55WD", "89S53", "89S8252", "89F54", "89F58"),
    [](const auto& i) { return std::string(i.param); });

struct Ganzes_Teil {
    const char*  Name;
    std::int32_t Bytes;
};

class Sprung_Test : public MC_Spur_Test, public ::testing::WithParamInterface<Ganzes_Teil> {};

TEST_P(Sprung_Test, the_counter_is_swept_where_it_is_longer_than_the_memory)
{
    const std::string Name = GetParam().Name;
    Einsetzen(Name, Bytes_T(static_cast<std::size_t>(GetParam().Bytes), 0xFF));
    Spur();
    Tessel2_Lesen();
    EXPECT_EQ(Spur(), Erwartete_Spur("t2_lesen_ganz_" + Name));
    Bild_Fuellen({0});
    Brennen([] {
        ED_LBA_D_Change(std::to_string(Geraete_Tabelle[0].Bytes - 1));
        Hex_Daten[0] = 0xFF;
    });
    EXPECT_EQ(Spur(), Erwartete_Spur("t2_brennen_ganz_" + Name));
}

INSTANTIATE_TEST_SUITE_P(Parts,
                         Sprung_Test,
                         ::testing::Values(Ganzes_Teil{"89C55WD", 20480},
                                           Ganzes_Teil{"89F54", 16384},
                                           Ganzes_Teil{"89F58", 32768}),
                         [](const auto& i) { return std::string(i.param.Name); });

TEST_F(MC_Spur_Test, a_5_V_part_is_read_programmed_and_erased_with_its_bytes)
{
    const auto Mit_5V = [&] { Baustein().Spannung = 5; };
    EXPECT_EQ(Lese_Spur("89C51", Mit_5V), Erwartete_Spur("t2_lesen_5V"));
    EXPECT_EQ(Brenn_Spur("89C51", Vier, Mit_5V), Erwartete_Spur("t2_brennen_5V"));
    EXPECT_EQ(Inhalt(), Vier);
    EXPECT_EQ(Schritt_Spur("89C51",
                           [&] {
                               Mit_5V();
                               Tessel2_Löschen();
                           }),
              Erwartete_Spur("t2_loeschen_5V"));
}

TEST_F(MC_Spur_Test, a_read_of_a_40_pin_part_that_is_given_up)
{
    EXPECT_EQ(Lese_Spur("89C51", [&] { Abbruch_Bei(2); }), Erwartete_Spur("t2_lesen_abbruch"));
    EXPECT_EQ(Lese_Spur("89C51", [] { Abbruch = true; }),
              Erwartete_Spur("t2_lesen_abbruch_vorher"));
}

TEST_F(MC_Spur_Test, a_missing_40_pin_part_is_asked_about_and_looked_for_again)
{
    const auto Stoeren = [&] { Keine_Kennung(); };
    EXPECT_EQ(Lese_Spur("89C51", Stoeren), Erwartete_Spur("t2_kein_ic"));
    EXPECT_EQ(Lese_Spur("89S53", Stoeren), Erwartete_Spur("t2_kein_ic_89S53"));
    for (const std::string Name : {"89C51", "89C55WD"}) {
        Box.Antworten = {Antwort_Ok};
        EXPECT_EQ(
            Lese_Spur(Name, Stoeren),
            Erwartete_Spur(Name == "89C51" ? "t2_kein_ic_nochmal" : "t2_kein_ic_89C55WD_nochmal"));
    }
    EXPECT_EQ(Brenn_Spur("89C51", Vier, Stoeren), Erwartete_Spur("t2_brennen_kein_ic"));
    EXPECT_EQ(Schritt_Spur("89C51",
                           [&] {
                               Stoeren();
                               Tessel2_Löschen();
                           }),
              Erwartete_Spur("t2_loeschen_kein_ic"));
}

TEST_F(MC_Spur_Test, without_C_IC_a_wrong_signature_is_no_matter)
{
    EXPECT_EQ(Lese_Spur("89C51",
                        [&] {
                            Keine_Kennung();
                            C_IC = false;
                        }),
              Erwartete_Spur("t2_kein_ic_ohne_C_IC"));
    EXPECT_EQ(Gelesen(4), Vier);
}

struct Brenn_Fall {
    const char* Spur;
    const char* Name;
    Bytes_T     Bild;
    void (*Aendern)(Simuliertes_MC_Board& Board, Skript_Ereignisse& Ereignisse);
};

class Tessel2_Brenn_Test : public MC_Spur_Test, public ::testing::WithParamInterface<Brenn_Fall> {};

TEST_P(Tessel2_Brenn_Test, a_run_sends_exactly_these_bytes)
{
    const Brenn_Fall& f = GetParam();
    EXPECT_EQ(Brenn_Spur(f.Name, f.Bild, [&] { f.Aendern(Board(), Ereignisse); }),
              Erwartete_Spur(std::string("t2_brennen_") + f.Spur));
}

const Brenn_Fall Brenn_Faelle[] = {
    {"mit_FF", "89C51", Vier, [](auto&, auto&) { No_FF = false; }},
    {"ohne_nachlesen", "89C51", Vier, [](auto&, auto&) { C_IC_bei_B = false; }},
    {"ohne_bereit", "89F58", Vier, [](auto&, auto&) { C_IC_bei_B = false; }},
    {"ab_2", "89C51", {1, 2}, [](auto&, auto&) { BR_EBA_D_Change("2"); }},
    {"DAT00",
     "89C51",
     {1, 2},
     [](auto&, auto&) {
         BR_EBA_D_Change("2");
         Brennmenue.DAT00 = true;
     }},
    {"gerade", "89C51", Acht, [](auto&, auto&) { Gesplittet(Splitting::Gerade); }},
    {"ungerade", "89C51", Acht, [](auto&, auto&) { Gesplittet(Splitting::Ungerade); }},
    {"schwache_zelle_3", "89C51", Vier, [](auto& b, auto&) { b.Baustein()->Schwache_Zelle(2, 3); }},
    {"schwache_zelle_10",
     "89C51",
     Vier,
     [](auto& b, auto&) { b.Baustein()->Schwache_Zelle(2, 10); }},
    {"tote_zelle", "89C51", Vier, [](auto& b, auto&) { b.Baustein()->Tote_Zelle(2, 0xFF); }},
    {"tote_zelle_89S53", "89S53", Vier, [](auto& b, auto&) { b.Baustein()->Tote_Zelle(2, 0xFF); }},
    {"klemmendes_bit",
     "89C51",
     Vier,
     [](auto& b, auto&) {
         b.Fehler.Klemmt_Auf_1 = 0x20;
         C_IC                  = false;
     }},
    {"abbruch",
     "89C51",
     Vier,
     [](auto&, auto& e) { e.Bei_Runde = [](int) { Abbruch = Adresse_Zaehler == 2; }; }},
    {"abbruch_vorher", "89C51", Vier, [](auto&, auto&) { Abbruch = true; }},
};

INSTANTIATE_TEST_SUITE_P(Runs,
                         Tessel2_Brenn_Test,
                         ::testing::ValuesIn(Brenn_Faelle),
                         [](const auto& i) { return std::string(i.param.Spur); });

TEST_F(MC_Spur_Test, the_erase_of_an_89C55WD)
{
    EXPECT_EQ(Schritt_Spur("89C55WD", Tessel2_Löschen_WD), Erwartete_Spur("t2_loeschen_wd"));
    EXPECT_EQ(Schritt_Spur("89C55WD",
                           [&] {
                               Baustein().Spannung = 5;
                               Tessel2_Löschen_WD();
                           }),
              Erwartete_Spur("t2_loeschen_wd_5V"));
}

class Sperr_Spur_Test : public MC_Spur_Test, public ::testing::WithParamInterface<int> {
protected:
    // The lock sequence, before a signature was read and after that of a 12 V part.
    std::string Sperr_Spur(const std::string& Name, bool Mit_Kennung)
    {
        return Schritt_Spur(Name, [=] {
            Kennung_Gelesen = Mit_Kennung;
            Tessel2_Sperren(GetParam());
        });
    }
};

TEST_P(Sperr_Spur_Test, each_level_has_its_sequence_by_the_lock_type)
{
    const std::string n = std::to_string(GetParam());
    EXPECT_EQ(Sperr_Spur("89C51", false), Erwartete_Spur("t2_sperren_CII_" + n));
    EXPECT_EQ(Sperr_Spur("89C51", true), Erwartete_Spur("t2_sperren_CII_" + n + "_12V"));
    EXPECT_EQ(Sperr_Spur("89C55WD", false), Erwartete_Spur("t2_sperren_WD_" + n));
    EXPECT_EQ(Sperr_Spur("89C55WD", true), Erwartete_Spur("t2_sperren_WD_" + n + "_12V"));
    EXPECT_EQ(Sperr_Spur("89S53", false), Erwartete_Spur("t2_sperren_SII_" + n));
    EXPECT_EQ(Sperr_Spur("89S8252", true), Erwartete_Spur("t2_sperren_SII_" + n));
}

INSTANTIATE_TEST_SUITE_P(Levels, Sperr_Spur_Test, ::testing::Range(1, 4));

TEST_F(MC_Spur_Test, the_lock_state_is_read_as_three_bits)
{
    for (const std::string Name : {"89S53", "89C55WD"})
        for (int Stufe = 0; Stufe <= 3; ++Stufe) {
            Vorbereiten(Name, Leer);
            if (Stufe > 0)
                Baustein().Sperren(Stufe);
            EXPECT_EQ(Tessel2_Sperrstufe_Lesen(), Stufe);
            EXPECT_EQ(Spur(), Erwartete_Spur("t2_stufe_" + Name + "_" + std::to_string(Stufe)));
        }
}

} // namespace
} // namespace varnholt::test
