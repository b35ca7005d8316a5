// What the three memory views show: rows and names, values, marks of change; and what an edit in
// them stores.
#include "simulator/Sim_Ansichten.h"

#include "simulator/Sitzung_Welt.h"

#include <rapidcheck/gtest.h>

#include <array>
#include <utility>

namespace varnholt::test {
namespace {

class Ansichten_Test : public Sitzung_Welt {
protected:
    static const std::string& Name(int Adresse)
    {
        return Sim_Ansichten.RAM_Namen.at(static_cast<std::size_t>(Adresse));
    }
    static int RAM(int Index) { return Sim_Ansichten.RAM.at(static_cast<std::size_t>(Index)); }
    static int SFR_Wert(int Index) { return Sim_Ansichten.SFR.at(static_cast<std::size_t>(Index)); }
    static int XRAM(int Index) { return Sim_Ansichten.XRAM.at(static_cast<std::size_t>(Index)); }
    // Whether the cell is marked as changed.
    static bool RAM_Markiert(int i)
    {
        return RAM(i) != Sim_Ansichten.RAM_Zuvor.at(static_cast<std::size_t>(i));
    }
    static bool SFR_Markiert(int i)
    {
        return SFR_Wert(i) != Sim_Ansichten.SFR_Zuvor.at(static_cast<std::size_t>(i));
    }
    static bool XRAM_Markiert(int i)
    {
        return XRAM(i) != Sim_Ansichten.XRAM_Zuvor.at(static_cast<std::size_t>(i));
    }
    static int Markierte()
    {
        int n = 0;
        for (int i = 0; i < Sim_RAM_Groesse; ++i)
            n += (i < 128 || i > 255) && RAM_Markiert(i) ? 1 : 0;
        for (const SFR_Zeile& z : Sim_Ansichten.SFR_Zeilen)
            n += SFR_Markiert(z.Adresse) ? 1 : 0;
        for (int i = 0; i < Sim_XRAM_Groesse; ++i)
            n += XRAM_Markiert(i) ? 1 : 0;
        return n;
    }
    static std::vector<std::string> SFR_Namen()
    {
        std::vector<std::string> Namen;
        for (const SFR_Zeile& z : Sim_Ansichten.SFR_Zeilen)
            Namen.push_back(z.Name);
        return Namen;
    }
    static std::string Bank_Namen(int Bank)
    {
        std::string Alle;
        for (int n = 0; n < 8; ++n)
            Alle += Name(8 * Bank + n) + " ";
        return Alle;
    }
    static constexpr const char* R0_R7 = "R0 R1 R2 R3 R4 R5 R6 R7 ";
    static constexpr const char* Leer  = "        ";
};

// --- names of the RAM view ---

TEST_F(Ansichten_Test, The_program_s_own_names_stand_at_their_addresses)
{
    ASSERT_TRUE(Programm("COUNT DATA 40h\n"
                         "LIMIT EQU 7Fh\n"
                         "HIGH DATA 80h\n"
                         "FLAG BIT 41h\n"
                         "LED EQU FLAG\n"
                         "COPY EQU COUNT\n"
                         "LAMP EQU COUNT.1\n"
                         "CONST TEXT=66\n"
                         "NOP\n"));
    EXPECT_EQ(Name(0x40), "COUNT, COPY");
    EXPECT_EQ(Name(0x7F), "LIMIT");
    EXPECT_EQ(Name(0), "R0") << "a CONST stands for no address";
    Sim_Ansichten.RAM_Namen[0x40] = Sim_Ansichten.RAM_Namen[0x7F] = "";
    for (int i = 32; i < 256; ++i)
        EXPECT_EQ(Name(i), "") << i << " bits, bytes from 128 on, names of the processor file";
}

TEST_F(Ansichten_Test, Names_stand_in_the_order_of_their_definition_joined_by_commas)
{
    ASSERT_TRUE(Programm("B1 DATA 50h\nA1 DATA 50h\nC1 EQU 50h\nNOP\n"));
    EXPECT_EQ(Name(0x50), "B1, A1, C1");
}

TEST_F(Ansichten_Test, Names_of_an_included_file_count_as_the_program_s_own)
{
    Include_Datei("defs.inc", "COUNT DATA 30h\n");
    Include_Datei("own.mc", "CHIP DATA 31h\n");
    ASSERT_TRUE(Programm("INCLUDE defs.inc\nINCLUDE own.mc\nNOP\n"));
    EXPECT_EQ(Name(0x30), "COUNT");
    EXPECT_EQ(Name(0x31), "");
}

TEST_F(Ansichten_Test, A_new_session_forgets_the_names_of_the_last_one)
{
    ASSERT_TRUE(Programm("COUNT DATA 40h\nLOW DATA 0\nNOP\n"));
    EXPECT_EQ(Name(0), "LOW, R0");
    const auto Aufbau = Sim_Ansichten.Aufbau;
    ASSERT_TRUE(Programm("NOP\n"));
    EXPECT_EQ(Name(0x40), "");
    EXPECT_EQ(Name(0), "R0");
    EXPECT_GT(Sim_Ansichten.Aufbau, Aufbau);
}

// --- the register bank ---

TEST_F(Ansichten_Test, R0_to_R7_stand_in_the_current_bank_behind_the_names_that_are_there)
{
    ASSERT_TRUE(Programm("INDEX DATA 0\n"
                         "LAST DATA 7\n"
                         "OTHER DATA 8\n"
                         "TOP EQU 1Fh\n"
                         "BELOW DATA 20h\n"
                         "NOP\n"));
    EXPECT_EQ(Bank_Namen(0), "INDEX, R0 R1 R2 R3 R4 R5 R6 LAST, R7 ");
    EXPECT_EQ(Name(8), "OTHER");
    Hex_Uebernehmen(Sicht::SFR, "D0", "08");
    EXPECT_EQ(Sim_Bank, 1);
    EXPECT_EQ(Bank_Namen(0), "INDEX       LAST ");
    EXPECT_EQ(Bank_Namen(1), "OTHER, R0 R1 R2 R3 R4 R5 R6 R7 ");
    Hex_Uebernehmen(Sicht::SFR, "D0", "18");
    EXPECT_EQ(Sim_Bank, 3);
    EXPECT_EQ(Bank_Namen(3), "R0 R1 R2 R3 R4 R5 R6 TOP, R7 ");
    EXPECT_EQ(Bank_Namen(1), "OTHER        ");
    EXPECT_EQ(Name(0x20), "BELOW");
}

TEST_F(Ansichten_Test, Every_value_of_PSW_puts_the_names_into_its_bank)
{
    ASSERT_TRUE(Programm("NOP\n"));
    for (int PSW = 0; PSW < 256; ++PSW) {
        Byte(SFR::PSW) = static_cast<std::uint8_t>(PSW);
        Sim_Zelle_Zeigen_SFR(SFR::PSW);
        for (int Bank = 0; Bank < 4; ++Bank)
            EXPECT_EQ(Bank_Namen(Bank), Bank == (PSW >> 3 & 3) ? R0_R7 : Leer) << PSW;
        EXPECT_EQ(Sim_Bank, PSW >> 3 & 3);
        EXPECT_EQ(SFR_Wert(SFR::PSW), PSW);
    }
}

TEST_F(Ansichten_Test, A_program_that_changes_RS0_moves_the_names)
{
    ASSERT_TRUE(Programm("SETB RS0\nCLR RS0\nSETB RS1\nSTOP\n"));
    const auto Vorher = Sim_Ansichten.Aufbau;
    for (const int Bank : {1, 0, 2}) {
        Debug_Schritt();
        EXPECT_EQ(SFR_Wert(SFR::PSW) >> 3 & 3, Bank);
        EXPECT_EQ(Bank_Namen(Bank), R0_R7);
        EXPECT_EQ(Sim_Bank, Bank);
    }
    EXPECT_EQ(Bank_Namen(0), Leer);
    EXPECT_EQ(Sim_Ansichten.Aufbau, Vorher + 3) << "built anew only when the bank changes";
}

TEST_F(Ansichten_Test, A_refresh_of_another_register_moves_no_names)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Byte(SFR::PSW) = 8;
    Sim_Zelle_Zeigen_SFR(SFR::ACC);
    Sim_Zelle_Zeigen_RAM(8);
    EXPECT_EQ(Bank_Namen(0), R0_R7);
    Sim_Zelle_Zeigen_SFR(SFR::PSW);
    EXPECT_EQ(Bank_Namen(1), R0_R7);
}

// --- rows of the SFR view ---

TEST_F(Ansichten_Test, The_registers_of_the_processor_file_stand_in_its_order)
{
    Include_Datei("own.mc",
                  "PSW DATA 0D0h\nACC DATA 0E0h\nMYBIT BIT 3\nNUMBER EQU 5\nP1 DATA 90h\n"
                  "COPY EQU ACC\nBYTE30 DATA 30h\nCONST NAME=text\n");
    ASSERT_TRUE(Beginne("INCLUDE own.mc\nMINE DATA 91h\nNOP\n"));
    EXPECT_EQ(SFR_Namen(), (std::vector<std::string>{"PSW", "ACC", "P1", "COPY", "BYTE30"}));
    EXPECT_EQ(Sim_Ansichten.SFR_Zeilen[0].Adresse, 208);
    EXPECT_EQ(Sim_Ansichten.SFR_Zeilen[4].Adresse, 0x30);
}

TEST_F(Ansichten_Test, Derivatives_have_the_registers_of_their_own_file)
{
    ASSERT_TRUE(Beginne("INCLUDE 8051.mc\nNOP\n"));
    const auto Klein = SFR_Namen();
    EXPECT_EQ(std::count(Klein.begin(), Klein.end(), "T2CON"), 0);
    EXPECT_EQ(std::count(Klein.begin(), Klein.end(), "ACC"), 1);
    EXPECT_EQ(std::count(Klein.begin(), Klein.end(), "PORT1"), 0) << "the second name of P1";
    ASSERT_TRUE(Beginne("INCLUDE 8052.mc\nNOP\n"));
    const auto Gross = SFR_Namen();
    EXPECT_EQ(std::count(Gross.begin(), Gross.end(), "T2CON"), 1);
    EXPECT_GT(Gross.size(), Klein.size());
}

// --- values ---

TEST_F(Ansichten_Test, Entering_a_session_shows_the_memory_as_reset)
{
    ASSERT_TRUE(Programm("NOP\n"));
    EXPECT_EQ(Sim_Ansichten.RAM, Sim_RAM);
    EXPECT_EQ(Sim_Ansichten.SFR, Sim_RAM);
    EXPECT_EQ(Sim_Ansichten.XRAM, Sim_XRAM);
    EXPECT_EQ(RAM(0), 255);
    EXPECT_EQ(SFR_Wert(SFR::SP), 7);
}

TEST_F(Ansichten_Test, A_cell_refresh_rewrites_its_one_row)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Sim_RAM.fill(1);
    Sim_XRAM.fill(2);
    Sim_Zelle_Zeigen_RAM(300); // address ACh
    for (int i = 0; i < Sim_RAM_Groesse; i += i == 127 ? 129 : 1)
        EXPECT_EQ(RAM(i), i == 300 ? 1 : 255) << i;
    Sim_Zelle_Zeigen_SFR(SFR::TMOD);
    EXPECT_EQ(SFR_Wert(SFR::TMOD), 1);
    EXPECT_EQ(SFR_Wert(SFR::TCON), 0);
    Sim_Zelle_Zeigen_EXRAM(65535);
    EXPECT_EQ(XRAM(65535), 2);
    EXPECT_EQ(XRAM(65534), 255);
    for (const int i : {0, 127, 256, 383}) {
        Sim_Zelle_Zeigen_RAM(i);
        EXPECT_EQ(RAM(i), 1) << i;
    }
}

TEST_F(Ansichten_Test, The_RAM_view_ignores_the_register_block)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Sim_RAM.fill(1);
    const auto Vorher = Sim_Ansichten.RAM;
    const auto Stand  = Sim_Ansichten.Stand;
    for (int i = 128; i < 256; ++i)
        Sim_Zelle_Zeigen_RAM(i);
    EXPECT_EQ(Sim_Ansichten.RAM, Vorher);
    EXPECT_EQ(Sim_Ansichten.Stand, Stand);
}

TEST_F(Ansichten_Test, Every_change_of_what_is_shown_counts)
{
    ASSERT_TRUE(Programm("NOP\n"));
    const std::function<void()> Befehle[] = {[] { Sim_Zelle_Zeigen_RAM(1); },
                                             [] { Sim_Zelle_Zeigen_SFR(SFR::ACC); },
                                             [] { Sim_Zelle_Zeigen_EXRAM(1); },
                                             Sim_Alles_Zeigen,
                                             Aenderungen_Vergessen,
                                             Sim_Aufbauen};
    for (const auto& Befehl : Befehle) {
        const std::uint64_t Vorher = Sim_Ansichten.Stand;
        Befehl();
        EXPECT_GT(Sim_Ansichten.Stand, Vorher);
    }
}

TEST_F(Ansichten_Test, At_full_speed_no_cell_is_refreshed_while_a_program_runs)
{
    ASSERT_TRUE(Programm("NOP\n"));
    for (const bool Vollgas : {false, true})
        for (const bool Laeuft : {false, true}) {
            Sim_RAM.fill(3);
            Sim_XRAM.fill(3);
            Sim_Alles_Zeigen();
            Debug_Vollgas = Vollgas;
            Debug_Laeuft  = Laeuft;
            Sim_RAM.fill(0x18 + 4);
            Sim_XRAM.fill(4);
            Sim_Zelle_Zeigen_RAM(1);
            Sim_Zelle_Zeigen_SFR(SFR::PSW);
            Sim_Zelle_Zeigen_EXRAM(1);
            const bool Ruht = Vollgas && Laeuft;
            EXPECT_EQ(RAM(1), Ruht ? 3 : 0x1C);
            EXPECT_EQ(SFR_Wert(SFR::PSW), Ruht ? 3 : 0x1C);
            EXPECT_EQ(XRAM(1), Ruht ? 3 : 4);
            EXPECT_EQ(Bank_Namen(Ruht ? 0 : 3), R0_R7);
            Debug_Vollgas = Debug_Laeuft = false;
        }
}

TEST_F(Ansichten_Test, A_full_rewrite_shows_everything_also_at_full_speed)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Debug_Vollgas = Debug_Laeuft = true;
    Sim_RAM.fill(0x10);
    Sim_XRAM.fill(5);
    Sim_Alles_Zeigen();
    EXPECT_EQ(RAM(383), 0x10);
    EXPECT_EQ(SFR_Wert(SFR::IE), 0x10);
    EXPECT_EQ(XRAM(65535), 5);
    EXPECT_EQ(Bank_Namen(2), R0_R7);
}

TEST_F(Ansichten_Test, While_stepping_every_store_shows_at_once)
{
    ASSERT_TRUE(Programm("MOV 30h,#1\n"
                         "MOV R0,#200\n"
                         "MOV @R0,#2\n"
                         "MOV P1,#3\n"
                         "MOV DPTR,#1234h\n"
                         "MOV A,#4\n"
                         "MOVX @DPTR,A\n"
                         "PUSH ACC\n"
                         "LCALL SUB1\n"
                         "STOP\n"
                         "SUB1: SETB 0\n"
                         "RET\n"));
    const auto Erwarte_Gleich = [] {
        EXPECT_TRUE(std::equal(Sim_RAM.begin(), Sim_RAM.begin() + 128, Sim_Ansichten.RAM.begin()));
        EXPECT_TRUE(
            std::equal(Sim_RAM.begin() + 256, Sim_RAM.end(), Sim_Ansichten.RAM.begin() + 256));
        for (const SFR_Zeile& z : Sim_Ansichten.SFR_Zeilen)
            EXPECT_EQ(SFR_Wert(z.Adresse), Byte(z.Adresse)) << z.Name;
        EXPECT_EQ(Sim_Ansichten.XRAM, Sim_XRAM);
    };
    for (int i = 0; i < 12; ++i) {
        Debug_Schritt();
        Erwarte_Gleich();
    }
    EXPECT_EQ(Auswahl(), "SUB1: SETB 0") << "past the stop and on";
    EXPECT_EQ(RAM(0x30), 1);
    EXPECT_EQ(RAM(328), 2);
    EXPECT_EQ(SFR_Wert(SFR::P1), 3);
    EXPECT_EQ(XRAM(0x1234), 4);
}

TEST_F(Ansichten_Test, A_run_at_full_speed_leaves_the_views_alone_until_its_end)
{
    ASSERT_TRUE(Programm("MOV 30h,#1\nMOV PSW,#8\nMOV DPTR,#5\nMOV A,#7\nMOVX @DPTR,A\n"
                         "LOOP: SJMP LOOP\n"));
    Check2_Click(true);
    In_Runde(1, [] {
        EXPECT_EQ(Byte(0x30), 1);
        EXPECT_EQ(RAM(0x30), 255);
        EXPECT_EQ(XRAM(5), 255);
        EXPECT_EQ(Bank_Namen(0), R0_R7);
        Debug_Start_Stop();
    });
    Debug_Start_Stop();
    EXPECT_EQ(RAM(0x30), 1);
    EXPECT_EQ(SFR_Wert(SFR::ACC), 7);
    EXPECT_EQ(XRAM(5), 7);
    EXPECT_EQ(Bank_Namen(1), R0_R7);
}

// --- marks of change ---

TEST_F(Ansichten_Test, A_step_marks_what_it_changed_and_nothing_else)
{
    ASSERT_TRUE(Programm("MOV 30h,#1\nMOV 31h,#0FFh\nMOV B,#9\nSTOP\n"));
    EXPECT_EQ(Markierte(), 0) << "a session begins without marks";
    Debug_Schritt();
    EXPECT_TRUE(RAM_Markiert(0x30));
    EXPECT_EQ(Markierte(), 1);
    Debug_Schritt();
    EXPECT_FALSE(RAM_Markiert(0x30)) << "changed before the last stop";
    EXPECT_EQ(Markierte(), 0) << "the value was the same";
    Debug_Schritt();
    EXPECT_TRUE(SFR_Markiert(SFR::B));
    EXPECT_EQ(Markierte(), 1);
    Debug_Schritt(); // leaves the stop point
    EXPECT_EQ(Markierte(), 0);
}

TEST_F(Ansichten_Test, A_run_marks_what_changed_since_its_start)
{
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm("MOV 30h,#1\nMOV R0,#31h\nMOV @R0,#2\nMOV 31h,#0FFh\n"
                             "MOV DPTR,#8\nMOVX @DPTR,A\nSTOP\n"));
        Check2_Click(Vollgas);
        Debug_Schritt();
        Debug_Start_Stop();
        EXPECT_FALSE(RAM_Markiert(0x30)) << "before the start";
        EXPECT_FALSE(RAM_Markiert(0x31)) << "as it was";
        EXPECT_TRUE(RAM_Markiert(0));
        EXPECT_TRUE(SFR_Markiert(SFR::DPL));
        EXPECT_TRUE(XRAM_Markiert(8));
        EXPECT_EQ(Markierte(), 3) << Vollgas;
    }
}

TEST_F(Ansichten_Test, Moves_keep_the_marks)
{
    ASSERT_TRUE(Programm("MOV 30h,#1\nNOP\nSTOP\n"));
    Debug_Schritt();
    for (const auto& Befehl : {Debug_Hoch, Debug_Runter, Debug_Cursor, Debug_Reset_PC}) {
        Befehl();
        EXPECT_TRUE(RAM_Markiert(0x30));
        EXPECT_EQ(Markierte(), 1);
    }
}

TEST_F(Ansichten_Test, A_reset_while_a_program_runs_keeps_the_start_as_the_base_of_the_marks)
{
    ASSERT_TRUE(Programm("MOV 30h,#1\nLOOP: SJMP LOOP\n"));
    Byte(0x31) = 1;
    Sim_Zelle_Zeigen_RAM(0x31);
    In_Runde(2, [] {
        Debug_Reset_Speicher();
        Debug_Start_Stop();
    });
    Debug_Start_Stop();
    EXPECT_FALSE(RAM_Markiert(0x30)) << "as at the start";
    EXPECT_TRUE(RAM_Markiert(0x31));
    EXPECT_EQ(Markierte(), 1);
}

TEST_F(Ansichten_Test, The_reset_of_the_memories_marks_what_it_changed)
{
    ASSERT_TRUE(Programm("MOV 30h,#1\nMOV 31h,#1\nSTOP\n"));
    Schritte(2);
    Debug_Reset_Speicher();
    EXPECT_TRUE(RAM_Markiert(0x30));
    EXPECT_TRUE(RAM_Markiert(0x31));
    EXPECT_EQ(Markierte(), 2);
}

// --- edits ---

TEST_F(Ansichten_Test, Three_digits_with_blanks_between_them_are_5)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Bits_Uebernehmen(Sicht::RAM, "30", "1 0 1");
    EXPECT_EQ(Byte(0x30), 5);
    EXPECT_EQ(RAM(0x30), 5);
}

TEST_F(Ansichten_Test, The_bit_field_takes_ones_and_zeros_and_skips_the_rest)
{
    ASSERT_TRUE(Programm("NOP\n"));
    const std::pair<const char*, int> Faelle[] = {{"", 0},
                                                  {"0 0 0 0 0 0 0 0", 0},
                                                  {"1 1 1 1 1 1 1 1", 255},
                                                  {"11111111", 255},
                                                  {"1 0 0 0 0 0 0 0 0", 255},
                                                  {"0 0 1 1 1 1 1 1 1 1", 255},
                                                  {"2 1 x-0,1", 5},
                                                  {"abc", 0},
                                                  {"1\xFC"
                                                   "1",
                                                   3}};
    for (const auto& [Bits, Wert] : Faelle)
        for (const Sicht s : {Sicht::RAM, Sicht::SFR, Sicht::EXRAM}) {
            Bits_Uebernehmen(s, "20", Bits);
            const int Ist = s == Sicht::EXRAM ? Sim_XRAM[0x20] : Byte(0x20);
            EXPECT_EQ(Ist, Wert) << Bits;
        }
    Bits_Uebernehmen(Sicht::RAM, "21", std::string(100000, '1'));
    EXPECT_EQ(Byte(0x21), 255);
}

TEST_F(Ansichten_Test, The_hex_field_takes_two_digits_and_holds_at_255)
{
    ASSERT_TRUE(Programm("NOP\n"));
    const std::pair<const char*, int> Faelle[] = {{"0", 0},
                                                  {"00", 0},
                                                  {"7f", 0x7F},
                                                  {"FF", 255},
                                                  {"ff", 255},
                                                  {"100", 255},
                                                  {"1FF", 255},
                                                  {"FFFFFFFFFFFF", 255},
                                                  {"1Ah", 0x1A},
                                                  {"", 0},
                                                  {"G", 0},
                                                  {"-1", 0},
                                                  {"1 2", 0}};
    for (const auto& [Hex, Wert] : Faelle)
        for (const Sicht s : {Sicht::RAM, Sicht::SFR, Sicht::EXRAM}) {
            Byte(0x20)     = 0x55;
            Sim_XRAM[0x20] = 0x55;
            Hex_Uebernehmen(s, "20", Hex);
            const int Ist     = s == Sicht::EXRAM ? Sim_XRAM[0x20] : Byte(0x20);
            const int Gezeigt = s == Sicht::EXRAM ? XRAM(0x20)
                                : s == Sicht::RAM ? RAM(0x20)
                                                  : SFR_Wert(0x20);
            EXPECT_EQ(Ist, Wert) << Hex;
            EXPECT_EQ(Gezeigt, Wert) << Hex;
        }
}

TEST_F(Ansichten_Test, The_address_leads_to_its_byte)
{
    ASSERT_TRUE(Programm("NOP\n"));
    const std::pair<const char*, int> Im_RAM[]   = {{"00", 0},
                                                    {"7F", 127},
                                                    {"80", 256},
                                                    {"AC", 300},
                                                    {"FF", 383},
                                                    {"ff", 383},
                                                    {"", 0},
                                                    {"x", 0}};
    const std::pair<const char*, int> Im_SFR[]   = {{"80", 128},
                                                    {"E0", 224},
                                                    {"FF", 255},
                                                    {"100", 256},
                                                    {"17F", 383},
                                                    {"17f", 383},
                                                    {"30", 48},
                                                    {"", 0},
                                                    {"x", 0}};
    const std::pair<const char*, int> Im_EXRAM[] = {
        {"0000", 0}, {"1234", 0x1234}, {"FFFF", 65535}, {"", 0}, {"x", 0}};
    for (const auto& [Adresse, Index] : Im_RAM) {
        Sim_RAM.fill(0);
        Hex_Uebernehmen(Sicht::RAM, Adresse, "12");
        EXPECT_EQ(Byte(Index), 0x12) << Adresse;
        EXPECT_EQ(RAM(Index), 0x12) << Adresse;
        EXPECT_EQ(std::count(Sim_RAM.begin(), Sim_RAM.end(), 0x12), 1);
    }
    for (const auto& [Adresse, Index] : Im_SFR) {
        Sim_RAM.fill(0);
        Hex_Uebernehmen(Sicht::SFR, Adresse, "12");
        EXPECT_EQ(Byte(Index), 0x12) << Adresse;
        EXPECT_EQ(SFR_Wert(Index), 0x12) << Adresse;
        EXPECT_EQ(std::count(Sim_RAM.begin(), Sim_RAM.end(), 0x12), 1);
    }
    for (const auto& [Adresse, Index] : Im_EXRAM) {
        Sim_XRAM.fill(0);
        Hex_Uebernehmen(Sicht::EXRAM, Adresse, "12");
        EXPECT_EQ(Sim_XRAM.at(static_cast<std::size_t>(Index)), 0x12) << Adresse;
        EXPECT_EQ(XRAM(Index), 0x12) << Adresse;
        EXPECT_EQ(std::count(Sim_XRAM.begin(), Sim_XRAM.end(), 0x12), 1);
    }
}

TEST_F(Ansichten_Test, No_address_text_leaves_the_memory)
{
    ASSERT_TRUE(Programm("NOP\n"));
    for (const char* Adresse :
         {"100", "180", "FFFF", "10000", "FFFFFFFFFFFFFFFFFFFF", "-1", "\xFF"})
        for (const Sicht s : {Sicht::RAM, Sicht::SFR, Sicht::EXRAM}) {
            Hex_Uebernehmen(s, Adresse, "12");
            Bits_Uebernehmen(s, Adresse, "1");
            for (int Spalte = -2; Spalte < 14; ++Spalte)
                Bit_Umschalten(s, Adresse, Spalte);
        }
}

TEST_F(Ansichten_Test, A_click_on_a_bit_toggles_it)
{
    ASSERT_TRUE(Programm("NOP\n"));
    const std::pair<const char*, int> Im_RAM[] = {{"00", 0}, {"7F", 127}, {"80", 256}, {"FF", 383}};
    for (int Spalte = 3; Spalte <= 10; ++Spalte) {
        const int Maske = 1 << (10 - Spalte);
        for (const auto& [Adresse, Index] : Im_RAM) {
            EXPECT_EQ(Byte(Index), 255);
            Bit_Umschalten(Sicht::RAM, Adresse, Spalte);
            EXPECT_EQ(Byte(Index), 255 - Maske) << Adresse << Spalte;
            EXPECT_EQ(RAM(Index), 255 - Maske);
            Bit_Umschalten(Sicht::RAM, Adresse, Spalte);
            EXPECT_EQ(Byte(Index), 255);
            EXPECT_EQ(RAM(Index), 255);
        }
        Bit_Umschalten(Sicht::SFR, "F0", Spalte);
        EXPECT_EQ(Byte(SFR::B), Maske);
        EXPECT_EQ(SFR_Wert(SFR::B), Maske);
        Bit_Umschalten(Sicht::SFR, "F0", Spalte);
        EXPECT_EQ(Byte(SFR::B), 0);
    }
}

TEST_F(Ansichten_Test, A_click_on_another_cell_changes_nothing)
{
    ASSERT_TRUE(Programm("NOP\n"));
    const auto RAM_Vorher  = Sim_RAM;
    const auto XRAM_Vorher = Sim_XRAM;
    for (const int Spalte : {-1, 0, 1, 2, 11, 100})
        for (const Sicht s : {Sicht::RAM, Sicht::SFR, Sicht::EXRAM})
            Bit_Umschalten(s, "30", Spalte);
    Bit_Umschalten(Sicht::EXRAM, "30", 5);
    EXPECT_EQ(Sim_RAM, RAM_Vorher);
    EXPECT_EQ(Sim_XRAM, XRAM_Vorher);
}

TEST_F(Ansichten_Test, A_click_goes_by_what_the_cell_shows)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Byte(0x30) = 0; // the cell still shows 1
    Bit_Umschalten(Sicht::RAM, "30", 10);
    EXPECT_EQ(Byte(0x30), 0);
    Bit_Umschalten(Sicht::RAM, "30", 10);
    EXPECT_EQ(Byte(0x30), 1);
}

TEST_F(Ansichten_Test, An_edit_of_PSW_switches_the_bank_at_once)
{
    ASSERT_TRUE(Programm("MOV R0,#5\nSTOP\n"));
    Bit_Umschalten(Sicht::SFR, "D0", 6); // RS1
    EXPECT_EQ(Bank_Namen(2), R0_R7);
    Debug_Schritt();
    EXPECT_EQ(Byte(16), 5);
    EXPECT_EQ(Byte(0), 255);
}

TEST_F(Ansichten_Test, An_edit_counts_from_the_next_instruction_on)
{
    ASSERT_TRUE(Programm("MOV A,30h\nMOV DPTR,#7\nMOVX A,@DPTR\nSTOP\n"));
    Hex_Uebernehmen(Sicht::RAM, "30", "21");
    Hex_Uebernehmen(Sicht::EXRAM, "0007", "43");
    Debug_Schritt();
    EXPECT_EQ(ACC(), 0x21);
    Schritte(2);
    EXPECT_EQ(ACC(), 0x43);
}

RC_GTEST_FIXTURE_PROP(Ansichten_Test, Any_edit_stores_one_byte_and_shows_it, ())
{
    RC_ASSERT(Programm("NOP\n"));
    const auto Art         = *rc::gen::element(Sicht::RAM, Sicht::SFR, Sicht::EXRAM);
    const auto Adresse     = *rc::gen::string<std::string>();
    const auto Eingabe     = *rc::gen::string<std::string>();
    const auto RAM_Vorher  = Sim_RAM;
    const auto XRAM_Vorher = Sim_XRAM;
    if (*rc::gen::arbitrary<bool>())
        Hex_Uebernehmen(Art, Adresse, Eingabe);
    else
        Bits_Uebernehmen(Art, Adresse, Eingabe);
    int Andere = 0;
    for (std::size_t i = 0; i < Sim_RAM.size(); ++i)
        if (Sim_RAM[i] != RAM_Vorher[i]) {
            ++Andere;
            RC_ASSERT(Sim_RAM[i] ==
                      (Art == Sicht::RAM ? Sim_Ansichten.RAM[i] : Sim_Ansichten.SFR[i]));
        }
    for (std::size_t i = 0; i < Sim_XRAM.size(); ++i)
        Andere += Sim_XRAM[i] != XRAM_Vorher[i] ? 1 : 0;
    RC_ASSERT(Andere <= 1);
    RC_ASSERT(Sim_Ansichten.XRAM == Sim_XRAM);
}

} // namespace
} // namespace varnholt::test
