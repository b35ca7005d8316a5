// One call of the interpreter as the debugger makes it: an instruction at full speed, else on to
// the next line of the main source, every change shown.
#include "language/Assembler_Zustand.h"
#include "language/Namen.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"
#include "simulator/Vergleich.h"
#include "simulator/Zufalls_Programm.h"

#include <memory>
#include <set>

namespace varnholt::test {
namespace {

using Ende = Vergleichs_Maschine::Ende;

class Simulieren_Test : public Maschinen_Welt {
protected:
    Simulieren_Test()
    {
        Debugger_Aktiv = true;
        Zeile_An(0);
    }
    ~Simulieren_Test() override { Sitzung_Zuruecksetzen(); }

    // A row of source text at that address.
    void Zeile_An(std::int32_t Adresse, int Herkunft = 0)
    {
        Quell_Zeile Zeile;
        Zeile.Adresse  = Adresse;
        Zeile.Herkunft = static_cast<std::int8_t>(Herkunft);
        Quell_Zeilen.push_back(Zeile);
        if (Herkunft == 0)
            Zeilen.insert(Adresse);
    }
    void Zufaellig(std::uint64_t Nummer, const Neigung_T& Neigung)
    {
        Zufalls_Programm Programm(Nummer, Neigung);
        Programm.Aufstellen();
        Modell_Stellen(*Modell);
    }
    void Erwarte_Modell(const std::string& Wobei)
    {
        const Maschine_T Ist = Maschine;
        Maschine_Stellen(*Modell);
        EXPECT_EQ(Unterschied(Ist, Maschine), "") << Wobei;
        Maschine = Ist;
    }
    // The model does what one call has to do; false when that takes too long or ends below 0.
    bool Modell_Bis_Zeile()
    {
        for (int i = 0; i < 2000; ++i) {
            if (Modell->Schritt() != Ende::Gelaufen)
                return Modell->PC >= 0;
            if (Zeilen.contains(Modell->Ungefaltet))
                return true;
        }
        return false;
    }

    // A call that doesn't end ends with the session, and fails its test.
    void Wache_Stellen()
    {
        const int Ab         = Ereignisse.Runden;
        Ereignisse.Bei_Runde = [Ab](int n) { Debugger_Aktiv = n < Ab + 100; };
    }
    // The SFR view has a row for every address.
    static void Alle_Register_Zeigen()
    {
        for (int Ort = 128; Ort < 256; ++Ort)
            Namen_Tabelle.push_back({"S" + std::to_string(Ort), Ort, "", 4, Name_Byte, 1});
        Sim_Aufbauen();
        Sim_Alles_Zeigen();
    }
    static void Erwarte_Gezeigt(const std::string& Wobei)
    {
        auto Gezeigt = Sim_Ansichten.RAM;
        std::copy_n(Sim_Ansichten.SFR.begin() + 128, 128, Gezeigt.begin() + 128);
        EXPECT_EQ(Unterschied(Gezeigt, Sim_RAM), "") << Wobei;
        EXPECT_TRUE(Sim_Ansichten.XRAM == Sim_XRAM) << Wobei;
    }

    std::set<std::int32_t>               Zeilen{}; // addresses of the main source
    std::unique_ptr<Vergleichs_Maschine> Modell = std::make_unique<Vergleichs_Maschine>();
};

TEST_F(Simulieren_Test, at_full_speed_a_call_is_one_instruction)
{
    Debug_Vollgas = true;
    for (std::uint64_t n = 0; n < 60 && !HasFailure(); ++n) {
        Zufaellig(n, n % 2 == 0 ? Wild : Lauernd);
        for (int i = 0; i < 40 && Modell->Schritt() == Ende::Gelaufen && !HasFailure(); ++i) {
            Simulieren();
            Erwarte_Modell("program " + std::to_string(n) + ", call " + std::to_string(i));
        }
    }
}

TEST_F(Simulieren_Test, a_call_runs_on_to_the_next_line_of_the_main_source)
{
    Zufall z(1);
    for (std::int32_t Adresse = 1; Adresse < 65536; Adresse += z.Von_Bis(0, 4))
        Zeile_An(Adresse, z.Unter(3));
    Zeile_An(65536);
    int Zeilen_Gelaufen = 0;
    for (std::uint64_t n = 0; n < 40 && !HasFailure(); ++n) {
        Zufaellig(n, n % 2 == 0 ? Wild : Ruhig);
        for (int i = 0; i < 15 && Modell_Bis_Zeile() && !HasFailure(); ++i, ++Zeilen_Gelaufen) {
            Wache_Stellen();
            Simulieren();
            Erwarte_Modell("program " + std::to_string(n) + ", call " + std::to_string(i));
        }
    }
    EXPECT_GT(Zeilen_Gelaufen, 200);
}

TEST_F(Simulieren_Test, the_end_of_the_code_counts_as_a_line_before_the_address_wraps)
{
    Zeile_An(0x2000);
    Zeile_An(65536);
    Sim_PC = 0xFFFE;
    Simulieren();
    EXPECT_EQ(Sim_PC, 0);
    EXPECT_EQ(Sim_Zyklen, 2);
}

TEST_F(Simulieren_Test, a_stop_point_asks_for_a_stop_and_executes_nothing)
{
    for (const bool Vollgas : {false, true}) {
        Debug_Stop              = false;
        Debug_Vollgas           = Vollgas;
        Sim_PC                  = 0x100;
        R(SFR::TCON)            = 0x10;
        Hex_Daten[0x100]        = 0xA5;
        const Maschine_T Vorher = Maschine;
        Simulieren();
        EXPECT_TRUE(Debug_Stop);
        EXPECT_EQ(Unterschied(Maschine, Vorher), "");
    }
}

TEST_F(Simulieren_Test, the_parity_that_a_write_to_PSW_set_is_shown_clear)
{
    Alle_Register_Zeigen();
    Mache("75 D0 FF");
    EXPECT_EQ(Sim_Ansichten.SFR[SFR::PSW], 0xFE);
}

TEST_F(Simulieren_Test, every_cell_that_an_instruction_changes_is_shown)
{
    Alle_Register_Zeigen();
    int Schritte_Gelaufen = 0;
    for (std::uint64_t n = 0; n < 150 && !HasFailure(); ++n) {
        Zufaellig(n, n % 2 == 0 ? Wild : Gestapelt);
        Sim_Alles_Zeigen();
        for (int i = 0; i < 40 && !HasFailure(); ++i, ++Schritte_Gelaufen) {
            if (Befehl_Ausfuehren().Befehle == 0)
                break;
            Erwarte_Gezeigt("program " + std::to_string(n) + ", step " + std::to_string(i));
        }
    }
    EXPECT_GT(Schritte_Gelaufen, 2000);
}

} // namespace
} // namespace varnholt::test
