// Random programs on the three machines: instruction by instruction, at full speed in pieces of any
// length, and on the model. They must agree in everything.
#include "simulator/Vergleich.h"
#include "simulator/Zufalls_Programm.h"

#include <memory>

namespace varnholt::test {
namespace {

using Ende = Vergleichs_Maschine::Ende;

// A piece of a run and the state behind it.
struct Stueck_T {
    int           Hoechstens = 0;
    Lauf_Ergebnis Lauf{};
    Maschine_T    Danach{};
};

class Zufallslauf : public Maschinen_Welt {
protected:
    static constexpr int Stuecke = 8;

    Zufallslauf() { Verlauf.reserve(Stuecke); }

    // At a stop point a run goes on behind it, as a session does.
    static void Stoppunkt_Verlassen()
    {
        if (Sim_PC >= 0 && Hex_Daten[static_cast<std::size_t>(Sim_PC)] == Stoppunkt_Opcode)
            Sim_PC = (Sim_PC + 1) % 65536;
    }

    // One instruction on the machine and on the model.
    bool Gemeinsamer_Schritt()
    {
        const std::int32_t Ort = Sim_PC;
        const bool         Ja  = Befehl_Ausfuehren().Befehle == 1;
        EXPECT_EQ(Ja, Modell.Schritt() == Ende::Gelaufen) << Wo(Ort);
        EXPECT_TRUE(Gleich_Im_Kern(Modell)) << Wo(Ort);
        return Ja && !HasFailure();
    }
    static std::string Wo(std::int32_t Ort)
    {
        std::string Text = "at " + Hex_Zahl(Ort, 4) + ":";
        for (int i = 0; i < 3; ++i)
            Text += " " + Hex_Zahl(Hex_Daten[static_cast<std::size_t>(std::max(Ort, 0) + i)]);
        return Text;
    }

    void Schrittweise(Zufalls_Programm& Programm)
    {
        Verlauf.clear();
        Modell_Stellen(Modell);
        for (int i = 0; i < Stuecke && !HasFailure(); ++i) {
            Stueck_T& s  = Verlauf.emplace_back();
            s.Hoechstens = Programm.Stueck();
            while (s.Lauf.Befehle < s.Hoechstens && Gemeinsamer_Schritt())
                ++s.Lauf.Befehle;
            if (s.Lauf.Befehle < s.Hoechstens)
                s.Lauf.Grund = Sim_PC < 0 ? Lauf_Grund::Unter_Null : Lauf_Grund::Stoppunkt;
            s.Danach = Maschine;
            Maschine_Stellen(Modell);
            EXPECT_EQ(Unterschied(s.Danach, Maschine), "") << "step by step, piece " << i;
            Stoppunkt_Verlassen();
            Modell.PC = Sim_PC;
            Befehle += s.Lauf.Befehle;
        }
    }

    void Am_Stueck(const Maschine_T& Von)
    {
        Maschine = Von;
        for (std::size_t i = 0; i < Verlauf.size() && !HasFailure(); ++i) {
            const Stueck_T&     s    = Verlauf[i];
            const Lauf_Ergebnis Lauf = Vollgas_Laufen(s.Hoechstens);
            EXPECT_EQ(Unterschied(Maschine, s.Danach), "")
                << "full speed, piece " << i << " of " << s.Lauf.Befehle << " instructions";
            EXPECT_EQ(Lauf.Befehle, s.Lauf.Befehle);
            // Below 0 with the last instruction allowed: either reason will do.
            if (Sim_PC >= 0 || s.Lauf.Befehle < s.Hoechstens) {
                EXPECT_EQ(Lauf.Grund, s.Lauf.Grund);
            }
            Stoppunkt_Verlassen();
        }
    }

    void Programme(int Anzahl, const Neigung_T& Neigung)
    {
        for (int i = 0; i < Anzahl && !HasFailure(); ++i) {
            SCOPED_TRACE("program " + std::to_string(i));
            Zufalls_Programm Programm(static_cast<std::uint64_t>(i), Neigung);
            Programm.Aufstellen();
            *Anfang = Maschine;
            Schrittweise(Programm);
            Am_Stueck(*Anfang);
        }
    }

    Vergleichs_Maschine         Modell{};
    std::unique_ptr<Maschine_T> Anfang = std::make_unique<Maschine_T>();
    std::vector<Stueck_T>       Verlauf{};
    std::int64_t                Befehle = 0; // executed in all, on each machine
};

TEST_F(Zufallslauf, programs_that_touch_registers_in_every_way_end_alike)
{
    Programme(4000, Wild);
    EXPECT_GT(Befehle, 50000);
}

TEST_F(Zufallslauf, programs_that_calculate_while_timers_run_end_alike)
{
    Programme(250, Ruhig);
    EXPECT_GT(Befehle, 100000);
}

TEST_F(Zufallslauf, long_pieces_end_alike)
{
    Neigung_T Lang = Ruhig;
    Lang.Schritte  = 60000;
    Programme(4, Lang);
    EXPECT_GT(Befehle, 100000);
}

TEST_F(Zufallslauf, programs_that_poll_flags_and_counters_end_alike)
{
    Programme(1200, Lauernd);
    EXPECT_GT(Befehle, 100000);
}

TEST_F(Zufallslauf, programs_with_the_stack_among_the_registers_end_alike)
{
    Programme(3000, Gestapelt);
    EXPECT_GT(Befehle, 50000);
}

} // namespace
} // namespace varnholt::test
