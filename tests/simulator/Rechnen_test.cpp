// Arithmetic over all inputs: operand, accumulator and flags as constants of a little program,
// which runs step by step, at full speed and on the model.
#include "simulator/Rechnen.h"
#include "simulator/Vergleich.h"

namespace varnholt::test {
namespace {

class Rechnen : public Maschinen_Welt {
protected:
    // MOV PSW,#psw  MOV A,#a  MOV place,#b  and the instruction; the machine behind it.
    void Probe(int a, int b, int psw)
    {
        const auto Byte = [](int Wert) { return static_cast<std::uint8_t>(Wert); };
        Hex_Daten[2]    = Byte(psw);
        Hex_Daten[4]    = Byte(a);
        Hex_Daten[7]    = Byte(b);
        Modell.PC = Sim_PC = 0;
        for (int i = 0; i < 4; ++i) {
            Modell.Schritt();
            Befehl_Ausfuehren();
        }
        Vergleichen("step by step", a, b, psw);
        Sim_PC     = 0;
        Sim_Zyklen = Zuvor;
        Vollgas_Laufen(4);
        Vergleichen("at full speed", a, b, psw);
        Zuvor = Sim_Zyklen;
    }
    void Vergleichen(const char* Wie, int a, int b, int psw)
    {
        if (!Gleich_Im_Kern(Modell) || R(SFR::B) != Modell.RAM[SFR::B] ||
            R(0x30) != Modell.RAM[0x30]) {
            ADD_FAILURE() << Wie << ": A=" << Hex_Zahl(a) << " operand=" << Hex_Zahl(b)
                          << " PSW=" << Hex_Zahl(psw) << " give A=" << Hex_Zahl(R(SFR::ACC))
                          << " PSW=" << Hex_Zahl(R(SFR::PSW))
                          << ", not A=" << Hex_Zahl(Modell.RAM[SFR::ACC])
                          << " PSW=" << Hex_Zahl(Modell.RAM[SFR::PSW]);
        }
    }
    // Every accumulator with every operand, which lies at Ort, and these values of PSW.
    void Alle(std::string_view Ort, std::string_view Befehl, const std::vector<int>& PSW)
    {
        Code(0, "75 D0 00 74 00 75 " + std::string(Ort) + " 00 " + std::string(Befehl));
        Modell_Stellen(Modell);
        for (const int psw : PSW)
            for (int a = 0; a < 256 && !HasFailure(); ++a)
                for (int b = 0; b < 256 && !HasFailure(); ++b)
                    Probe(a, b, psw);
    }

    Vergleichs_Maschine Modell{};
    std::int32_t        Zuvor = 0;
};

TEST_F(Rechnen, ADD_over_all_inputs) { Alle("30", "25 30", {0x00, 0xC4}); }
TEST_F(Rechnen, ADDC_over_all_inputs) { Alle("30", "35 30", {0x00, 0x80}); }
TEST_F(Rechnen, SUBB_over_all_inputs) { Alle("30", "95 30", {0x00, 0x80}); }
TEST_F(Rechnen, MUL_over_all_inputs) { Alle("F0", "A4", {0xC4}); }
TEST_F(Rechnen, DIV_over_all_inputs) { Alle("F0", "84", {0xC0}); }
TEST_F(Rechnen, CJNE_over_all_inputs) { Alle("30", "B5 30 10", {0x00, 0xC4}); }

TEST_F(Rechnen, DA_over_all_inputs)
{
    Code(0, "75 D0 00 74 00 75 30 00 D4");
    Modell_Stellen(Modell);
    for (int a = 0; a < 256; ++a)
        for (const int psw : {0x00, 0x40, 0x80, 0xC0, 0x04, 0xFF})
            Probe(a, 0, psw);
}

TEST_F(Rechnen, an_addition_judges_AC_and_OV_from_the_accumulator_alone)
{
    EXPECT_EQ(Addieren(0x01, 0x0F).Flaggen, 0);
    EXPECT_EQ(Addieren(0x0F, 0x01).Flaggen, PSW_AC);
    EXPECT_EQ(Addieren(0x01, 0x7F).Flaggen, 0);
    EXPECT_EQ(Addieren(0x7F, 0x01).Flaggen, PSW_AC | PSW_OV);
}

TEST_F(Rechnen, ADDC_of_FFh_with_carry_adds_256)
{
    for (int a = 0; a < 256; ++a) {
        R(SFR::ACC) = static_cast<std::uint8_t>(a);
        R(SFR::PSW) = 0x80;
        Mache("34 FF");
        EXPECT_EQ(R(SFR::ACC), a);
        EXPECT_EQ(CY(), 1);
    }
}

TEST_F(Rechnen, SUBB_of_0_from_5_overflows)
{
    R(SFR::ACC) = 5;
    Mache("94 00");
    EXPECT_EQ(R(SFR::ACC), 5);
    EXPECT_EQ(OV(), 1);
    EXPECT_EQ(CY(), 0);
}

TEST_F(Rechnen, CJNE_of_equals_leaves_the_carry_set)
{
    R(SFR::ACC) = 5;
    R(SFR::PSW) = 0x80;
    Mache("B4 05 10");
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(CY(), 1);
}

TEST_F(Rechnen, division_by_0_sets_OV_and_leaves_the_operands)
{
    R(SFR::ACC) = 0x5A;
    R(SFR::PSW) = 0x80;
    Mache("84");
    EXPECT_EQ(R(SFR::ACC), 0x5A);
    EXPECT_EQ(R(SFR::B), 0);
    EXPECT_EQ(OV(), 1);
    EXPECT_EQ(CY(), 0);
}

TEST_F(Rechnen, arithmetic_leaves_the_other_bits_of_PSW_alone)
{
    for (const auto* Befehl : {"24 11", "34 11", "94 11", "84", "A4", "D4", "B4 05 10"})
        for (const int Andere : {0x00, 0x22, 0x3A, 0x18}) {
            R(SFR::PSW) = static_cast<std::uint8_t>(Andere);
            R(SFR::ACC) = 0x77;
            R(SFR::B)   = 0x33;
            Mache(Befehl);
            EXPECT_EQ(R(SFR::PSW) & 0x3A, Andere) << Befehl;
        }
}

TEST_F(Rechnen, the_logic_operations_are_those_of_each_bit)
{
    for (unsigned a = 0; a < 256; ++a)
        for (unsigned b = 0; b < 256; ++b)
            for (int n = 0; n < 8; ++n) {
                const unsigned x = a >> n & 1, y = b >> n & 1;
                ASSERT_EQ(Logik_UND(a, b) >> n & 1U, x * y);
                ASSERT_EQ(Logik_ODER(a, b) >> n & 1U, x + y - x * y);
                ASSERT_EQ(Logik_XOR(a, b) >> n & 1U, x == y ? 0U : 1U);
            }
}

TEST_F(Rechnen, a_relative_target_counts_operands_above_127_backwards_and_does_not_wrap)
{
    EXPECT_EQ(Relativ_Ziel(0x100, 0), 0x100);
    EXPECT_EQ(Relativ_Ziel(0x100, 127), 0x17F);
    EXPECT_EQ(Relativ_Ziel(0x100, 128), 0x80);
    EXPECT_EQ(Relativ_Ziel(0x100, 255), 0xFF);
    EXPECT_EQ(Relativ_Ziel(0xFFFF, 127), 0x1007E);
    EXPECT_EQ(Relativ_Ziel(2, 128), -126);
}

} // namespace
} // namespace varnholt::test
