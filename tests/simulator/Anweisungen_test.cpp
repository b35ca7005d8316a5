// The structured statements on the machine: assembled for the debugger and executed, each one does
// what it says, with values at their limits, and leaves alone what it has to leave alone.
#include "simulator/Sitzung_Welt.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <utility>

namespace varnholt::test {
namespace {

// What the statements work on: d stands at 30h, e at 31h, the bit is 20h.3.
struct Lage_T {
    int  A   = 0x5A;
    int  R   = 0x22; // register n
    int  n   = 0;
    int  d   = 0x33;
    int  e   = 0x44;
    bool Bit = false;
    bool C   = false;
};

// What follows from it: how often the two branches were taken.
struct Folge_T {
    int  Dann                             = 0;
    int  Sonst                            = 0;
    bool operator==(const Folge_T&) const = default;
};

// One comparison: A, Rn or 30h with #v, or with 30h (of 30h: 31h).
struct Vergleich_T {
    std::string Links{};
    std::string Relation{};
    bool        Konstante = false;

    std::string Kopf(int n, int v) const
    {
        const std::string L = Links == "Rn" ? "R" + std::to_string(n) : Links;
        const std::string R = Links == "30h" ? "31h" : "30h";
        return "IF " + L + Relation + (Konstante ? "#" + std::to_string(v) : R) + " THEN";
    }
    int& Linker(Lage_T& l) const { return Links == "A" ? l.A : Links == "30h" ? l.d : l.R; }
    int& Rechter(Lage_T& l) const { return Links == "30h" ? l.e : l.d; }
    bool Gilt(int x, int y) const
    {
        return Relation == "="    ? x == y
               : Relation == "<>" ? x != y
               : Relation == "<"  ? x < y
                                  : x > y;
    }
    // No value can fulfil it: the assembler says so.
    bool Unmoeglich(int v) const
    {
        return Konstante && ((Relation == ">" && v == 255) || (Relation == "<" && v == 0));
    }
};

std::vector<Vergleich_T> Alle_Vergleiche()
{
    std::vector<Vergleich_T> Alle;
    for (const char* Links : {"A", "Rn", "30h"})
        for (const char* Relation : {"=", "<>", "<", ">"})
            for (const bool Konstante : {true, false})
                Alle.push_back({Links, Relation, Konstante});
    return Alle;
}

// A shape of a statement, with what its branches leave.
struct Gestalt_T {
    std::string Vor{}, Nach{};
    Folge_T     Wahr{}, Falsch{};
};

const std::vector<Gestalt_T> Gestalten = {
    {"", "\nINC 70h\nEND IF", {1, 0}, {0, 0}},
    {"", "\nINC 70h\nELSE\nINC 71h\nEND IF", {1, 0}, {0, 1}},
    {"", "\nELSE\nINC 71h\nEND IF", {0, 0}, {0, 1}},
    {"", "\nEND IF", {0, 0}, {0, 0}},
    {"", " INC 70h", {1, 0}, {0, 0}},
    {"", " MOV 70h,#7", {7, 0}, {0, 0}},
    {"", " LCALL SUB\nLJMP ENDE\nSUB: INC 70h\nRET", {1, 0}, {0, 0}},
    {"", " LJMP L\nINC 71h\nL: INC 70h", {1, 0}, {1, 1}},
    {"MOV R1,#70h\n", " INC @R1", {1, 0}, {0, 0}},
};

constexpr int Grenzwerte[] = {0, 1, 2, 126, 127, 128, 129, 253, 254, 255};

class Anweisungen : public Sitzung_Welt {
protected:
    // Assembles for the debugger, behind the line with the processor.
    void Assembliere(const std::string& Zeilen)
    {
        Text.Text_Setzen(Mit_CRLF("INCLUDE 8051.mc\n" + Zeilen + "\nENDE: STOP\n"));
        ASSERT_TRUE(Daten_Vorbereiten()) << Zeilen;
        Stelle = Quell_Zeilen[Quell_Zeilen.size() - 2].Adresse;
    }

    // Runs up to the STOP at the end; counters at 70h and 71h begin at 0.
    void Laufe(const Lage_T& l = {})
    {
        Maschine_Bereitstellen();
        Byte(SFR::ACC)  = static_cast<std::uint8_t>(l.A);
        Byte(l.n)       = static_cast<std::uint8_t>(l.R);
        Byte(0x30)      = static_cast<std::uint8_t>(l.d);
        Byte(0x31)      = static_cast<std::uint8_t>(l.e);
        Byte(0x20)      = l.Bit ? 0x08 : 0xF7;
        Byte(SFR::PSW)  = l.C ? 0x80 : 0;
        Byte(0x70)      = 0;
        Byte(0x71)      = 0;
        const auto Lauf = Vollgas_Laufen(100000);
        EXPECT_EQ(Lauf.Grund, Lauf_Grund::Stoppunkt);
        EXPECT_EQ(Sim_PC, Stelle) << "the STOP at the end";
        EXPECT_EQ(Byte(SFR::SP), 7) << "the stack is as before";
    }
    // The same, and everything that was compared has to stay.
    void Laufe_Ohne_Spuren(const Lage_T& l)
    {
        Laufe(l);
        EXPECT_EQ(ACC(), l.A);
        EXPECT_EQ(Byte(l.n), l.R);
        EXPECT_EQ(Byte(0x30), l.d);
        EXPECT_EQ(Byte(0x31), l.e);
        EXPECT_EQ(Byte(0x20), l.Bit ? 0x08 : 0xF7);
    }
    Folge_T Folge() const { return {Byte(0x70), Byte(0x71)}; }

    // One head in every shape, on one state after the other.
    void Pruefen(const std::string& Kopf, const std::vector<std::pair<Lage_T, bool>>& Lagen)
    {
        for (const Gestalt_T& g : Gestalten) {
            if (!g.Vor.empty() && Kopf.find("R1") != std::string::npos)
                continue; // the shape needs the register for itself
            SCOPED_TRACE(Kopf + g.Nach);
            Assembliere(g.Vor + Kopf + g.Nach);
            for (const auto& [Lage, Gilt] : Lagen) {
                SCOPED_TRACE("A " + std::to_string(Lage.A) + " R " + std::to_string(Lage.R) +
                             " d " + std::to_string(Lage.d) + " e " + std::to_string(Lage.e));
                Laufe_Ohne_Spuren(Lage);
                EXPECT_EQ(Folge(), Gilt ? g.Wahr : g.Falsch);
            }
            if (HasFailure())
                return;
        }
    }

    void Vergleich_Pruefen(const Vergleich_T& f, int n, int v)
    {
        if (f.Unmoeglich(v))
            return;
        std::vector<std::pair<Lage_T, bool>> Lagen;
        const auto                           Dazu = [&](int x, int y) {
            Lage_T l;
            l.n          = f.Links == "Rn" ? n : 0;
            f.Linker(l)  = x;
            f.Rechter(l) = y;
            Lagen.emplace_back(l, f.Gilt(x, f.Konstante ? v : y));
        };
        for (const int x : Grenzwerte)
            for (const int y : Grenzwerte)
                if (!f.Konstante || y == 255)
                    Dazu(x, y);
        for (const int x : {v - 1, v, v + 1})
            if (x >= 0 && x <= 255)
                Dazu(x, x);
        Pruefen(f.Kopf(n, v), Lagen);
    }

    std::int32_t Stelle = 0; // of the STOP at the end
};

// --- IF ---

TEST_F(Anweisungen, each_comparison_with_a_constant_takes_the_right_branch)
{
    for (const Vergleich_T& f : Alle_Vergleiche())
        for (const int v : {0, 1, 127, 128, 254, 255})
            if (f.Konstante && !HasFailure())
                Vergleich_Pruefen(f, v % 8, v);
}

TEST_F(Anweisungen, each_comparison_with_a_byte_takes_the_right_branch)
{
    for (const Vergleich_T& f : Alle_Vergleiche())
        if (!f.Konstante && !HasFailure())
            Vergleich_Pruefen(f, 0, 0);
}

TEST_F(Anweisungen, each_register_can_be_compared)
{
    for (const Vergleich_T& f : Alle_Vergleiche())
        for (int n = 0; n < 8; ++n)
            if (f.Links == "Rn" && !HasFailure())
                Vergleich_Pruefen(f, n, 100);
}

TEST_F(Anweisungen, each_test_of_a_bit_takes_the_right_branch)
{
    Lage_T An, C_An;
    An.Bit = C_An.C = true;
    Pruefen("IF BIT 3 THEN", {{Lage_T{}, false}, {An, true}});
    Pruefen("IF NOT BIT 3 THEN", {{Lage_T{}, true}, {An, false}});
    Pruefen("IF BIT C THEN", {{Lage_T{}, false}, {C_An, true}});
    Pruefen("IF NOT BIT C THEN", {{Lage_T{}, true}, {C_An, false}});
}

RC_GTEST_FIXTURE_PROP(Anweisungen, any_comparison_of_any_values_takes_the_right_branch, ())
{
    const auto Alle = Alle_Vergleiche();
    const auto f    = *rc::gen::elementOf(Alle);
    const int  v    = *rc::gen::inRange(1, 255);
    Lage_T     l;
    l.n         = *rc::gen::inRange(0, 8);
    f.Linker(l) = *rc::gen::weightedOneOf<int>(
        {{2, rc::gen::inRange(0, 256)}, {1, rc::gen::inRange(v - 1, v + 2)}});
    f.Rechter(l)     = *rc::gen::inRange(0, 256);
    const bool Gilt  = f.Gilt(f.Linker(l), f.Konstante ? v : f.Rechter(l));
    const bool Zeile = *rc::gen::arbitrary<bool>();
    Assembliere(f.Kopf(l.n, v) + (Zeile ? " INC 70h" : "\nINC 70h\nELSE\nINC 71h\nEND IF"));
    Laufe_Ohne_Spuren(l);
    RC_ASSERT(Byte(0x70) == (Gilt ? 1 : 0));
    RC_ASSERT(Byte(0x71) == (Gilt || Zeile ? 0 : 1));
    RC_ASSERT(!HasFailure());
}

TEST_F(Anweisungen, a_comparison_uses_the_register_of_the_bank_in_use)
{
    Assembliere("SETB RS0\nIF R2=#9 THEN INC 70h");
    Laufe();
    EXPECT_EQ(Byte(0x70), 0);
    Assembliere("SETB RS0\nMOV 0Ah,#9\nIF R2=#9 THEN INC 70h");
    Laufe();
    EXPECT_EQ(Byte(0x70), 1);
}

TEST_F(Anweisungen, an_IF_tests_a_port_and_a_bit_of_one)
{
    Assembliere("IF P1=#0FFh THEN INC 70h\nCLR P1.3\nIF P1=#0F7h THEN INC 70h\n"
                "IF NOT BIT P1.3 THEN INC 70h\nIF BIT P1.2 THEN INC 70h");
    Laufe();
    EXPECT_EQ(Byte(0x70), 4);
}

TEST_F(Anweisungen, blocks_in_blocks_choose_one_of_many)
{
    Assembliere("IF A<#10 THEN\nMOV 70h,#1\nELSE\nIF A<#20 THEN\nMOV 70h,#2\nELSE\n"
                "IF A=#20 THEN MOV 70h,#3\nIF A>#20 THEN MOV 70h,#4\nEND IF\nEND IF");
    for (const auto& [A, Soll] :
         {std::pair{0, 1}, {9, 1}, {10, 2}, {19, 2}, {20, 3}, {21, 4}, {255, 4}}) {
        Lage_T l;
        l.A = A;
        Laufe_Ohne_Spuren(l);
        EXPECT_EQ(Byte(0x70), Soll) << A;
    }
}

TEST_F(Anweisungen, a_hundred_blocks_in_each_other_work)
{
    std::string Programm, Enden;
    for (int i = 0; i < 100; ++i) {
        Programm += "IF A>#" + std::to_string(i) + " THEN\nINC 70h\n";
        Enden += "END IF\n";
    }
    Assembliere(Programm + Enden);
    for (const int A : {0, 1, 50, 99, 100, 255}) {
        Lage_T l;
        l.A = A;
        Laufe_Ohne_Spuren(l);
        EXPECT_EQ(Byte(0x70), std::min(A, 100));
    }
}

TEST_F(Anweisungen, a_block_may_be_larger_than_any_short_jump)
{
    std::string Rumpf;
    for (int i = 0; i < 300; ++i)
        Rumpf += "INC 70h\nDEC 70h\n";
    Assembliere("IF A=#5 THEN\n" + Rumpf + "INC 70h\nELSE\n" + Rumpf + "INC 71h\nEND IF");
    Lage_T l;
    l.A = 5;
    Laufe_Ohne_Spuren(l);
    EXPECT_EQ(Folge(), (Folge_T{1, 0}));
    l.A = 6;
    Laufe_Ohne_Spuren(l);
    EXPECT_EQ(Folge(), (Folge_T{0, 1}));
}

TEST_F(Anweisungen, blocks_and_loops_work_in_the_upper_half_of_the_code_memory)
{
    Assembliere("LJMP OBEN\nORG 0F000h\nOBEN: FOR R3=#1 TO #5\nIF R3>#3 THEN\nINC 70h\nELSE\n"
                "INC 71h\nEND IF\nNEXT\nIF R3=#6 THEN INC 70h");
    Laufe();
    EXPECT_EQ(Folge(), (Folge_T{3, 3}));
    EXPECT_GT(Sim_PC, 0xF000);
}

TEST_F(Anweisungen, a_data_line_behind_THEN_is_skipped_by_nothing)
{
    // The byte is an INC A in either case.
    Assembliere("IF A=#5 THEN DB 4\nMOV 70h,A");
    for (const int A : {5, 6}) {
        Lage_T l;
        l.A = A;
        Laufe(l);
        EXPECT_EQ(Byte(0x70), A + 1);
    }
}

TEST_F(Anweisungen, a_stop_point_behind_THEN_stops_only_when_the_IF_holds)
{
    Assembliere("IF A=#5 THEN STOP\nINC 70h");
    Lage_T l;
    l.A = 6;
    Laufe(l);
    EXPECT_EQ(Byte(0x70), 1);
    Stelle = 3;
    l.A    = 5;
    Laufe(l);
    EXPECT_EQ(Byte(0x70), 0);
}

// --- FOR and NEXT ---

struct FOR_Fall {
    std::string Zaehler{};
    std::string Merken{}; // puts the counter to 72h
    int         Ort = 0;  // where it stands
};

std::vector<FOR_Fall> Alle_Schleifen()
{
    std::vector<FOR_Fall> Alle = {{"A", "MOV 72h,A", SFR::ACC},
                                  {"30h", "MOV 72h,30h", 0x30},
                                  {"7Fh", "MOV 72h,7Fh", 0x7F},
                                  {"B", "MOV 72h,B", SFR::B}};
    for (int n = 0; n < 8; ++n)
        Alle.push_back({"R" + std::to_string(n), "MOV 72h,R" + std::to_string(n), n});
    return Alle;
}

TEST_F(Anweisungen, a_loop_runs_from_its_first_to_its_last_value)
{
    constexpr std::pair<int, int> Spannen[] = {
        {0, 0}, {0, 1}, {0, 255}, {1, 255}, {3, 3}, {127, 128}, {254, 255}, {255, 255}, {0, 254}};
    for (const FOR_Fall& f : Alle_Schleifen())
        for (const auto& [Von, Bis] : Spannen) {
            SCOPED_TRACE(f.Zaehler + " " + std::to_string(Von) + " " + std::to_string(Bis));
            Assembliere("FOR " + f.Zaehler + "=#" + std::to_string(Von) + " TO #" +
                        std::to_string(Bis) + "\nINC 70h\n" + f.Merken +
                        "\nIF 70h=#1 THEN MOV 71h,72h\nNEXT");
            Laufe();
            EXPECT_EQ(Byte(0x70), (Bis - Von + 1) & 255) << "rounds";
            EXPECT_EQ(Byte(0x72), Bis) << "the last value";
            EXPECT_EQ(Byte(f.Ort), (Bis + 1) & 255) << "one beyond";
            if (Bis - Von < 255) {
                EXPECT_EQ(Byte(0x71), Von) << "the first value";
            }
        }
}

TEST_F(Anweisungen, a_loop_over_a_byte_keeps_the_accumulator)
{
    Assembliere("FOR 30h=#1 TO #9\nINC 70h\nNEXT");
    Laufe();
    EXPECT_EQ(ACC(), 0x5A);
    EXPECT_EQ(Byte(0x70), 9);
}

TEST_F(Anweisungen, loops_of_each_kind_run_in_each_other)
{
    Assembliere("FOR 30h=#1 TO #3\nFOR R2=#5 TO #8\nFOR A=#0 TO #4\nINC 70h\nNEXT\nNEXT\n"
                "INC 71h\nNEXT");
    Laufe();
    EXPECT_EQ(Folge(), (Folge_T{60, 3}));
}

TEST_F(Anweisungen, the_counter_may_be_changed_in_the_body)
{
    Assembliere("FOR R2=#0 TO #21\nINC 70h\nINC R2\nNEXT");
    Laufe();
    EXPECT_EQ(Byte(0x70), 11); // NEXT sees 1, 3, ... 21
}

TEST_F(Anweisungen, a_loop_is_one_step_of_the_debugger_at_FOR_and_at_NEXT)
{
    ASSERT_TRUE(Programm("FOR 30h=#1 TO #2\nINC 70h\nNEXT\nSTOP\n"));
    const char* Zeilen[] = {"FOR 30h=#1 TO #2", "INC 70h", "NEXT", "INC 70h", "NEXT", "STOP"};
    for (const char* Zeile : Zeilen) {
        EXPECT_EQ(Auswahl(), Zeile);
        Debug_Schritt();
    }
}

// --- assignments ---

TEST_F(Anweisungen, an_assignment_moves_the_right_side_to_the_left_one)
{
    struct Fall {
        const char* Zeile;
        int         Ort;
        int         Soll;
    };
    const Fall Faelle[] = {
        {"30h=A", 0x30, 0x5A},
        {"A=30h", SFR::ACC, 0x33},
        {"A=#0", SFR::ACC, 0},
        {"A=#255", SFR::ACC, 255},
        {"40h=31h", 0x40, 0x44},
        {"P1=A", SFR::P1, 0x5A},
        {"A=P1", SFR::ACC, 0xFF},
        {"30h=31h", 0x30, 0x44},
        {"B=A", SFR::B, 0x5A},
    };
    for (const Fall& f : Faelle) {
        Assembliere(f.Zeile);
        Laufe();
        EXPECT_EQ(Byte(f.Ort), f.Soll) << f.Zeile;
    }
}

TEST_F(Anweisungen, an_assignment_knows_every_register)
{
    for (int n = 0; n < 8; ++n) {
        const std::string R = "R" + std::to_string(n);
        Lage_T            l;
        l.n = n;
        Assembliere(R + "=#200");
        Laufe(l);
        EXPECT_EQ(Byte(n), 200);
        Assembliere(R + "=31h");
        Laufe(l);
        EXPECT_EQ(Byte(n), 0x44);
        Assembliere(R + "=A");
        Laufe(l);
        EXPECT_EQ(Byte(n), 0x5A);
        Assembliere("A=" + R);
        Laufe(l);
        EXPECT_EQ(ACC(), 0x22);
    }
}

TEST_F(Anweisungen, with_source_first_a_byte_to_byte_assignment_moves_the_other_way)
{
    // The assembler emits the source byte first under either setting; the machine follows the
    // setting.
    O_MOV_ZQ = false;
    Assembliere("40h=31h");
    Laufe();
    EXPECT_EQ(Byte(0x40), 0xFF);
    EXPECT_EQ(Byte(0x31), 0xFF);
}

} // namespace
} // namespace varnholt::test
