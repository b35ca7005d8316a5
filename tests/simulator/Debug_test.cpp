// State of the machine: where each addressing mode finds its byte, bits, and what each reset does.
#include "language/Namen.h"
#include "simulator/Maschinen_Welt.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"

#include <array>
#include <tuple>

namespace varnholt::test {
namespace {

class Debug : public Maschinen_Welt {
protected:
    static void Name(const std::string& Text, std::int32_t Wert, int Art = Name_Byte)
    {
        Namen_Eintrag Eintrag;
        Eintrag.Name   = Text;
        Eintrag.Wert   = Wert;
        Eintrag.Laenge = static_cast<int>(Text.size());
        Eintrag.Art    = Art;
        Name_Anfuegen(Eintrag);
    }
    // Every byte in lower and upper RAM is FFh.
    static bool RAM_Voll_FF()
    {
        for (int i = 0; i < Sim_RAM_Groesse; ++i)
            if ((i < 128 || i > 255) && R(i) != 0xFF)
                return false;
        return true;
    }
    // Registers that aren't FFh, as `81=07`, in order of address.
    static std::string Gesetzte()
    {
        std::string Text;
        for (int i = 128; i < 256; ++i)
            if (R(i) != 0xFF)
                Text += (Text.empty() ? "" : " ") + Hex_Zahl(i) + "=" + Hex_Zahl(R(i));
        return Text;
    }
};

// --- addresses ---

TEST_F(Debug, a_register_lies_in_the_bank_that_PSW_selects)
{
    for (int Bank = 0; Bank < 4; ++Bank)
        for (const int Andere : {0, 0xE7})
            for (int n = 0; n < 8; ++n) {
                R(SFR::PSW) = static_cast<std::uint8_t>(Andere | Bank << 3);
                EXPECT_EQ(Register_Adresse(n), Bank * 8 + n);
            }
}

TEST_F(Debug, a_change_of_the_bank_acts_on_the_next_access)
{
    R(0)  = 0x11;
    R(24) = 0x22;
    Mache("D2 D3");
    Mache("D2 D4");
    Mache("E8");
    EXPECT_EQ(R(SFR::ACC), 0x22);
    Mache("75 D0 00");
    Mache("E8");
    EXPECT_EQ(R(SFR::ACC), 0x11);
}

TEST_F(Debug, an_indirect_access_above_127_finds_the_upper_RAM)
{
    EXPECT_EQ(Indirekt_Index(0), 0);
    EXPECT_EQ(Indirekt_Index(127), 127);
    EXPECT_EQ(Indirekt_Index(128), 256);
    EXPECT_EQ(Indirekt_Index(255), 383);
}

TEST_F(Debug, after_reset_indirect_200_reads_upper_RAM_and_direct_200_the_register)
{
    Name("T2CON", 200);
    Reset_RAM();
    Reset_SFR();
    Mache("75 D0 00");
    Mache("78 C8");
    Mache("E6");
    EXPECT_EQ(R(SFR::ACC), 255);
    Mache("E5 C8");
    EXPECT_EQ(R(SFR::ACC), 0);
    R(328) = 0x5A;
    Mache("E6");
    EXPECT_EQ(R(SFR::ACC), 0x5A);
}

TEST_F(Debug, a_push_with_SP_127_writes_to_P0)
{
    R(SFR::SP)  = 127;
    R(SFR::ACC) = 0x5A;
    R(256)      = 0x11;
    Mache("C0 E0");
    EXPECT_EQ(R(128), 0x5A);
    EXPECT_EQ(R(256), 0x11);
    EXPECT_EQ(R(SFR::SP), 128);
}

TEST_F(Debug, every_bit_address_finds_its_byte)
{
    for (int b = 0; b < 256; ++b) {
        const int Byte = b < 128 ? 32 + b / 8 : 128 + 8 * ((b - 128) / 8);
        EXPECT_EQ(Bit_Byte(b), Byte);
        for (const int Wert : {1, 0}) {
            Sim_RAM.fill(Wert == 1 ? 0x00 : 0xFF);
            auto Soll = Sim_RAM;
            Soll[static_cast<std::size_t>(Byte)] =
                static_cast<std::uint8_t>(Wert == 1 ? 1 << b % 8 : 0xFF - (1 << b % 8));
            Bit_Setzen(b, Wert);
            EXPECT_EQ(Unterschied(Sim_RAM, Soll), "") << b;
            EXPECT_EQ(Bit_Lesen(b), Wert) << b;
            for (int Nachbar = Byte == 0 ? b : b - b % 8; Nachbar < b - b % 8 + 8; ++Nachbar)
                EXPECT_EQ(Bit_Lesen(Nachbar), Nachbar == b ? Wert : 1 - Wert);
        }
    }
}

TEST_F(Debug, a_byte_falls_into_bits_with_bit_0_first)
{
    for (int Wert = 0; Wert < 256; ++Wert) {
        Sim_Bits.fill(7);
        Byte_Zerlegen(static_cast<std::uint8_t>(Wert));
        int Summe = 0;
        for (int i = 7; i >= 0; --i)
            Summe = 2 * Summe + Sim_Bits.at(static_cast<std::size_t>(i));
        EXPECT_EQ(Summe, Wert);
        EXPECT_EQ(Sim_Bits[8], 7);
    }
}

TEST_F(Debug, one_bit_of_any_byte_can_be_read)
{
    const std::uint8_t Byte = 0xA6;
    std::string        Bits;
    for (int n = 7; n >= 0; --n)
        Bits += static_cast<char>('0' + Byte_Bit(Byte, n));
    EXPECT_EQ(Bits, "10100110");
}

TEST_F(Debug, one_bit_of_any_index_can_be_written)
{
    for (const int Index : {0, 127, 128, 224, 255, 256, 383})
        for (int n = 0; n < 8; ++n) {
            R(Index) = 0xA6;
            Byte_Bit_Setzen(Index, n, 1);
            EXPECT_EQ(R(Index), 0xA6 | 1 << n);
            Byte_Bit_Setzen(Index, n, 0);
            EXPECT_EQ(R(Index), 0xA6 & ~(1 << n));
        }
}

// --- reset ---

TEST_F(Debug, Reset_RAM_fills_lower_and_upper_RAM_with_FFh_and_no_register)
{
    Reset_RAM();
    EXPECT_TRUE(RAM_Voll_FF());
    for (int i = 128; i < 256; ++i)
        EXPECT_EQ(R(i), i == SFR::SP ? 7 : 0);
}

TEST_F(Debug, Reset_XRAM_fills_all_65536_bytes_with_FFh)
{
    Sim_XRAM.fill(0);
    Reset_XRAM();
    EXPECT_EQ(std::count(Sim_XRAM.begin(), Sim_XRAM.end(), 0xFF), 65536);
}

TEST_F(Debug, Reset_SFR_without_names_leaves_every_register_at_FFh_and_RAM_alone)
{
    Reset_SFR();
    EXPECT_EQ(Gesetzte(), "");
    EXPECT_EQ(R(0), 0);
    EXPECT_EQ(R(127), 0);
    EXPECT_EQ(R(256), 0);
    EXPECT_EQ(R(383), 0);
}

TEST_F(Debug, Reset_SFR_gives_each_known_name_its_value_at_the_address_of_the_name)
{
    const std::vector<std::pair<std::string, int>> Werte{
        {"ACC", 0},    {"B", 0},     {"PSW", 0},   {"DPL", 0},   {"DPH", 0},   {"SP", 7},
        {"P0", 255},   {"P1", 255},  {"P2", 255},  {"P3", 255},  {"IP", 0},    {"IE", 0},
        {"TMOD", 0},   {"T2MOD", 0}, {"TCON", 0},  {"T2CON", 0}, {"TM2IR", 0}, {"TH0", 0},
        {"TL0", 0},    {"TH1", 0},   {"TL1", 0},   {"TH2", 0},   {"TL2", 0},   {"RCAP2H", 0},
        {"RCAP2L", 0}, {"SCON", 0},  {"S0CON", 0}, {"SBUF", 0},  {"S0BUF", 0}, {"PCON", 0}};
    for (const auto& [Text, Wert] : Werte)
        for (const int Ort : {0x40, 0x93, 0xFF}) {
            Namen_Leeren();
            Name(Text, Ort);
            Sim_RAM.fill(0x55);
            Reset_SFR();
            EXPECT_EQ(R(Ort), Wert) << Text;
        }
}

TEST_F(Debug, Reset_SFR_passes_over_all_other_names)
{
    int Ort = 128;
    for (const auto* Text : {"P4",
                             "IEN0",
                             "T2",
                             "SPX",
                             "S",
                             "TCON2",
                             "AC",
                             "CY",
                             "PSW1",
                             "sp",
                             "Acc",
                             "TH3",
                             "SCON1",
                             "RCAP2",
                             "IPH",
                             "AUXR",
                             "WDT",
                             " SP",
                             "SP "})
        Name(Text, Ort++);
    Reset_SFR();
    EXPECT_EQ(Gesetzte(), "");
}

TEST_F(Debug, Reset_SFR_takes_names_of_any_kind)
{
    Name("ACC", 0xE0, Name_Einfach);
    Name("B", 0xF0, Name_Bit);
    Name("SP", 0x81, Name_Byte);
    Reset_SFR();
    EXPECT_EQ(Gesetzte(), "81=07 E0=00 F0=00");
}

TEST_F(Debug, Reset_SFR_follows_every_definition_in_order)
{
    Name("SP", 0x81);
    Name("SP", 0x91);
    Name("SP", 0xE0);
    Name("ACC", 0xE0);
    Name("ACC", 0x92);
    Name("SP", 0x92);
    Reset_SFR();
    EXPECT_EQ(Gesetzte(), "81=07 91=07 92=07 E0=00");
}

TEST_F(Debug, Reset_SFR_passes_over_addresses_beyond_the_memory)
{
    Sim_RAM.fill(0x55);
    for (const int Ort : {384, 385, 512 + 129, 65535, 65536 + 129, -1, INT32_MAX, INT32_MIN})
        Name("SP", Ort);
    Name("ACC", 383);
    Name("B", 0);
    Reset_SFR();
    EXPECT_EQ(Gesetzte(), "");
    EXPECT_EQ(R(383), 0);
    EXPECT_EQ(R(0), 0);
    EXPECT_EQ(R(382), 0x55);
    EXPECT_EQ(R(1), 0x55);
}

TEST_F(Debug, Reset_SFR_passes_over_constants)
{
    Namen_Eintrag Konstante;
    Konstante.Name       = "SP";
    Konstante.Const_Text = "129";
    Name_Anfuegen(Konstante);
    Sim_RAM.fill(0x55);
    Reset_SFR();
    EXPECT_EQ(Gesetzte(), "");
    EXPECT_EQ(R(0), 0x55);
}

TEST_F(Debug, without_T2CON_among_the_names_timer_2_runs_from_the_first_step)
{
    Name("IE", SFR::IE);
    Name("TL2", SFR::TL2);
    Name("TH2", SFR::TH2);
    Reset_SFR();
    EXPECT_EQ(R(SFR::T2CON), 255);
    EXPECT_EQ(R(SFR::T2CON) >> 2 & 1, 1);
    // FFh is also the counter of P1.0 with RCLK and TCLK: it stands until these are cleared.
    Mache("53 C8 CC");
    EXPECT_EQ(R(SFR::TL2), 3);
}

// --- which command resets what ---

class Debug_Reset : public Debug {
protected:
    Debug_Reset()
    {
        Name("SP", 0x81);
        Name("PSW", 0xD0);
        Name("IE", 0xA8);
        Sim_XRAM.fill(1);
        Sim_PC     = 0x1234;
        Sim_Zyklen = 77;
        Sim_Prio   = 1;
        Sim_Bank   = 2;
        Sim_Pins   = {1, 0, 1, 0, 1, 1};
    }
    ~Debug_Reset() override { Sitzung_Zuruecksetzen(); }

    static bool Speicher_Zurueckgesetzt()
    {
        return RAM_Voll_FF() && Gesetzte() == "81=07 A8=00 D0=00" && Sim_XRAM[0] == 0xFF &&
               Sim_XRAM[65535] == 0xFF;
    }
    static bool Speicher_Unberuehrt() { return R(0) == 0 && R(128) == 0 && Sim_XRAM[0] == 1; }
    static auto Zahlen() { return std::array{Sim_PC, Sim_Zyklen, +Sim_Prio, +Sim_Bank}; }
    static bool Pins_Unberuehrt()
    {
        return Sim_Pins == std::array<std::int16_t, 6>{1, 0, 1, 0, 1, 1};
    }
};

TEST_F(Debug_Reset, entering_debugger_mode_resets_all_but_the_pins)
{
    Maschine_Bereitstellen();
    EXPECT_TRUE(Speicher_Zurueckgesetzt());
    EXPECT_EQ(Zahlen(), (std::array{0, 0, -1, -1}));
    EXPECT_TRUE(Pins_Unberuehrt());
}

TEST_F(Debug_Reset, resetting_the_memories_keeps_address_cycles_and_the_bank_shown)
{
    Sim_Bank = 0; // that of PSW after the reset: its names stay where they are
    Debug_Reset_Speicher();
    EXPECT_TRUE(Speicher_Zurueckgesetzt());
    EXPECT_EQ(Zahlen(), (std::array{0x1234, 77, -1, 0}));
    EXPECT_TRUE(Pins_Unberuehrt());
}

TEST_F(Debug_Reset, the_step_after_a_reset_of_the_memories_runs_at_the_old_address_with_SP_7)
{
    Debug_Reset_Speicher();
    Code(0x1234, "C0 81");
    Befehl_Ausfuehren();
    EXPECT_EQ(Sim_PC, 0x1236);
    EXPECT_EQ(R(8), 8);
}

TEST_F(Debug_Reset, resetting_the_program_address_keeps_everything_else)
{
    Debug_Reset_PC();
    EXPECT_TRUE(Speicher_Unberuehrt());
    EXPECT_EQ(Zahlen(), (std::array{0, 77, 1, 2}));
    EXPECT_TRUE(Pins_Unberuehrt());
}

TEST_F(Debug_Reset, resetting_the_cycles_keeps_everything_else)
{
    B_Reset_Zyklen_Click();
    EXPECT_TRUE(Speicher_Unberuehrt());
    EXPECT_EQ(Zahlen(), (std::array{0x1234, 0, 1, 2}));
    EXPECT_TRUE(Pins_Unberuehrt());
}

TEST_F(Debug_Reset, at_program_start_pins_are_0_and_nothing_is_in_service)
{
    Maschine_Zuruecksetzen();
    EXPECT_EQ(Sim_Pins, (std::array<std::int16_t, 6>{}));
    EXPECT_EQ(Zahlen(), (std::array{0, 0, -1, -1}));
}

} // namespace
} // namespace varnholt::test
