// varnholt-cli simulate: what it runs, how far, what it tells of the machine, and its exit
// statuses.
#include "cli/Cli_Hilfe.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <utility>

namespace varnholt::test {
namespace {

using Json = nlohmann::json;
using std::string_literals::operator""s;

using Zeile_T = std::vector<std::string>;

constexpr const char* Kopf = "INCLUDE 8051.mc\n";
// CRC-32 of 65536 bytes FFh.
constexpr const char* CRC_Leer = "DEAB7E4E";

bool Enthaelt(const std::string& Text, const std::string& Teil)
{
    return Text.find(Teil) != std::string::npos;
}

class Simulate : public Cli {
protected:
    // Runs a source behind the line that names the processor.
    Lauf_Ergebnis Quelle(const std::string& Zeilen, const Zeile_T& Optionen = {})
    {
        Schreiben("a.asm", Kopf + Zeilen);
        return Laufe("a.asm", Optionen);
    }
    Lauf_Ergebnis Laufe(const std::string& Eingabe, const Zeile_T& Optionen = {})
    {
        Zeile_T z{"simulate", Eingabe};
        z.insert(z.end(), Optionen.begin(), Optionen.end());
        return Laufen(z);
    }
    // The same with --json; the run must succeed.
    Json Quelle_Json(const std::string& Zeilen, Zeile_T Optionen = {})
    {
        Optionen.push_back("--json");
        return Als_Json(Quelle(Zeilen, Optionen));
    }
    Json Bild_Json(const std::string& Bytes, Zeile_T Optionen = {})
    {
        Schreiben("a.bin", Bytes);
        Optionen.push_back("--json");
        return Als_Json(Laufe("a.bin", Optionen));
    }
    static Json Als_Json(const Lauf_Ergebnis& r)
    {
        EXPECT_EQ(r.Status, 0);
        EXPECT_EQ(r.Fehler, "");
        return Json::parse(r.Aus, nullptr, false);
    }
    // A byte of Sim_RAM out of the digits.
    static int RAM(const Json& j, int Index)
    {
        return std::stoi(j["ram"].get<std::string>().substr(2 * static_cast<std::size_t>(Index), 2),
                         nullptr,
                         16);
    }
    Lauf_Ergebnis Deutsch(Zeile_T z)
    {
        z.insert(z.begin(), {"--language", "D"});
        return Laufen(z);
    }
};

// --- what it tells ---

TEST_F(Simulate, json_tells_the_machine_at_a_stop_point)
{
    const auto r = Quelle(" MOV A,#5\n MOV R0,#30h\n MOV @R0,A\n STOP\n", {"--json"});
    const Json j = Als_Json(r);
    EXPECT_TRUE(r.Aus.starts_with("{\"pc\":5,\"cycles\":3,\"instructions\":3,"
                                  "\"stopped\":\"stop point\",\"prio\":-1,\"pins\":["))
        << r.Aus;
    EXPECT_TRUE(r.Aus.ends_with("}\n"));
    EXPECT_EQ(j.size(), 8u);
    EXPECT_EQ(j["pins"].size(), 6u);
    const std::string Ziffern = j["ram"];
    EXPECT_EQ(Ziffern.size(), 768u);
    EXPECT_TRUE(std::all_of(
        Ziffern.begin(), Ziffern.end(), [](unsigned char c) { return std::isxdigit(c) != 0; }));
    EXPECT_EQ(RAM(j, 0), 0x30);
    EXPECT_EQ(RAM(j, 0x30), 5);
    EXPECT_EQ(RAM(j, 0x31), 0xFF);
    EXPECT_EQ(RAM(j, 383), 0xFF);
    EXPECT_EQ(RAM(j, 0xE0), 5);
    EXPECT_EQ(RAM(j, 0xD0), 0);
    EXPECT_EQ(RAM(j, 0x81), 7);
    EXPECT_EQ(j["xram_crc32"], CRC_Leer);
}

TEST_F(Simulate, a_summary_tells_the_same_in_short_in_both_languages)
{
    const std::string Programm =
        " MOV B,#9\n MOV DPTR,#1234h\n MOV R7,#3\n MOV A,#1\n STOP\n SJMP $\n";
    const std::string Register = "A=01 B=09 PSW=01 SP=07 DPTR=1234 R0=FF R1=FF R2=FF R3=FF R4=FF "
                                 "R5=FF R6=FF R7=03\n";
    EXPECT_EQ(Quelle(Programm).Aus,
              "Stopped: stop point, program address 000Ah\nInstructions 4, cycles 6\n" + Register);
    EXPECT_EQ(Deutsch({"simulate", "a.asm"}).Aus,
              "Ende: Stoppunkt, Programmadresse 000Ah\nBefehle 4, Zyklen 6\n" + Register);
    EXPECT_EQ(Laufe("a.asm", {"--instructions", "2"}).Aus.substr(0, 45),
              "Stopped: limit, program address 0006h\nInstruc");
    EXPECT_EQ(Deutsch({"simulate", "a.asm", "--instructions", "2"}).Aus.substr(0, 45),
              "Ende: Grenze, Programmadresse 0006h\nBefehle 2");
}

TEST_F(Simulate, the_summary_shows_the_registers_of_the_bank_in_use)
{
    EXPECT_TRUE(Enthaelt(Quelle(" MOV 1Fh,#12h\n SETB RS0\n SETB RS1\n STOP\n").Aus, "R7=12"));
}

TEST_F(Simulate, prio_and_pins_follow_the_program)
{
    const Json Ruhe = Quelle_Json(" CLR P3.4\n CLR P1.1\n CLR P3.3\n STOP\n");
    EXPECT_EQ(Ruhe["pins"], (Json{0, 1, 1, 0, 1, 0}));
    EXPECT_EQ(Ruhe["prio"], -1);
    const std::string Mit_Interrupt = " SJMP START\nORG 0Bh\n STOP\nSTART: MOV IE,#82h\n"
                                      " SETB TF0\n NOP\n";
    EXPECT_EQ(Quelle_Json(Mit_Interrupt)["prio"], 0);
    EXPECT_EQ(Quelle_Json(Mit_Interrupt)["pc"], 0x0B);
}

TEST_F(Simulate, the_external_memory_is_told_by_its_checksum_and_written_on_request)
{
    const Json        j     = Quelle_Json(" MOV DPTR,#0FFFEh\n MOV A,#12h\n MOVX @DPTR,A\n STOP\n",
                               {"--xram-out", "x.bin"});
    const std::string Bytes = Lesen("x.bin");
    EXPECT_EQ(Bytes, std::string(65534, '\xFF') + "\x12\xFF");
    EXPECT_EQ(j["xram_crc32"], "357BF3EF");
    EXPECT_EQ(Quelle(" STOP\n", {"--xram-out", "-", "--json"}).Aus.size(),
              Quelle(" STOP\n", {"--json"}).Aus.size() + 65536);
}

// --- how far it runs ---

TEST_F(Simulate, without_a_stop_point_ten_million_instructions_are_executed)
{
    const Json j = Quelle_Json(" SJMP $\n");
    EXPECT_EQ(j["stopped"], "limit");
    EXPECT_EQ(j["instructions"], 10000000);
    EXPECT_EQ(j["cycles"], 20000000);
    EXPECT_EQ(j["pc"], 0);
}

TEST_F(Simulate, the_limit_is_a_number_in_any_notation)
{
    for (const char* Zahl : {"16", "0x10", "10h", "10H", "0X10"}) {
        const Json j = Quelle_Json("L: INC A\n SJMP L\n", {"--instructions", Zahl});
        EXPECT_EQ(j["instructions"], 16) << Zahl;
        EXPECT_EQ(RAM(j, 0xE0), 8) << Zahl;
    }
    EXPECT_EQ(Quelle_Json(" STOP\n", {"--instructions", "9223372036854775807"})["stopped"],
              "stop point");
    EXPECT_EQ(Quelle_Json(" STOP\n", {"--instructions", "99999999999999999999"})["stopped"],
              "stop point");
}

TEST_F(Simulate, more_instructions_than_a_piece_of_a_run_are_counted_on)
{
    const Json j = Quelle_Json(" SJMP $\n", {"--instructions", "20000003"});
    EXPECT_EQ(j["instructions"], 20000003);
    EXPECT_EQ(j["cycles"], 40000006);
}

TEST_F(Simulate, a_limit_that_is_no_number_is_refused_in_both_languages)
{
    Schreiben("a.asm", Kopf);
    for (const char* Zahl : {"x", "", "1.5", "10q", "-1"}) {
        const std::string Option = std::string("--instructions=") + Zahl;
        EXPECT_EQ(Laufe("a.asm", {Option}).Status, 2) << Zahl;
    }
    EXPECT_EQ(Laufe("a.asm", {"--instructions", "x"}).Fehler, "varnholt-cli: x is no number\n");
    EXPECT_EQ(Deutsch({"simulate", "a.asm", "--instructions", "x"}).Fehler,
              "varnholt-cli: x ist keine Anzahl\n");
}

TEST_F(Simulate, a_limit_reached_on_a_stop_point_is_the_limit)
{
    const std::string Programm = " INC A\n INC A\n STOP\n";
    for (const Zeile_T& Art : {Zeile_T{}, Zeile_T{"--line-mode"}, Zeile_T{"--trace", "t"}}) {
        Zeile_T Zwei = Art, Drei = Art;
        Zwei.insert(Zwei.end(), {"--instructions", "2"});
        Drei.insert(Drei.end(), {"--instructions", "3"});
        EXPECT_EQ(Quelle_Json(Programm, Zwei)["stopped"], "limit");
        EXPECT_EQ(Quelle_Json(Programm, Zwei)["pc"], 2);
        EXPECT_EQ(Quelle_Json(Programm, Drei)["stopped"], "stop point");
        EXPECT_EQ(Quelle_Json(Programm, Drei)["instructions"], 2);
    }
}

TEST_F(Simulate, a_start_on_a_stop_point_leaves_it_first)
{
    for (const Zeile_T& Art : {Zeile_T{}, Zeile_T{"--line-mode"}, Zeile_T{"--trace", "t"}}) {
        const Json j = Quelle_Json(" STOP\n INC A\n STOP\n", Art);
        EXPECT_EQ(j["instructions"], 1);
        EXPECT_EQ(j["pc"], 2);
        const Json Zwei = Quelle_Json(" STOP\n STOP\n INC A\n", Art);
        EXPECT_EQ(Zwei["instructions"], 0);
        EXPECT_EQ(Zwei["pc"], 1);
        EXPECT_EQ(Zwei["stopped"], "stop point");
    }
    const Json Nichts = Quelle_Json(" STOP\n INC A\n", {"--instructions", "0"});
    EXPECT_EQ(Nichts["pc"], 1);
    EXPECT_EQ(Nichts["stopped"], "limit");
    EXPECT_EQ(Nichts["instructions"], 0);
}

// --- sources ---

TEST_F(Simulate, a_source_is_assembled_as_the_debugger_does)
{
    EXPECT_EQ(Quelle_Json("#IF NOT DEBUGGING\n INC A\n#END IF\n#IF DEBUGGING\n DEC A\n#END IF\n"
                          " STOP\n")["ram"]
                  .get<std::string>()
                  .substr(0xE0 * 2, 2),
              "FF");
}

TEST_F(Simulate, it_starts_at_address_0_and_runs_through_what_an_ORG_left_out)
{
    const Json j = Quelle_Json("; nothing\n\nORG 10h\n INC A\n STOP\n");
    EXPECT_EQ(j["pc"], 0x11);
    EXPECT_EQ(j["instructions"], 17); // the erased bytes are MOV R7,A
}

TEST_F(Simulate, a_source_without_code_comes_to_an_end_too)
{
    const Json j = Quelle_Json("; nothing\n\n", {"--instructions", "100000"});
    EXPECT_EQ(j["stopped"], "limit");
    EXPECT_EQ(j["instructions"], 100000);
}

TEST_F(Simulate, every_source_extension_is_a_source)
{
    for (const char* Name : {"a.asm", "a.A51", "a.txt"}) {
        Schreiben(Name, std::string(Kopf) + " INC A\n STOP\n");
        EXPECT_EQ(Als_Json(Laufe(Name, {"--json"}))["pc"], 1) << Name;
    }
}

TEST_F(Simulate, a_program_without_a_processor_file_gets_the_message)
{
    Schreiben("a.asm", " NOP\n STOP\n");
    const auto E = Laufe("a.asm", {"--json", "--trace", "t", "--xram-out", "x.bin"});
    EXPECT_EQ(E.Status, 1);
    EXPECT_EQ(E.Aus, "");
    EXPECT_EQ(E.Fehler,
              "Please use in the program the INCLUDE instruction to declare the processor. "
              "Example: Include 8051.mc\n");
    EXPECT_FALSE(Da("t"));
    EXPECT_FALSE(Da("x.bin"));
    EXPECT_EQ(Deutsch({"simulate", "a.asm"}).Fehler,
              "Bitte benutzen Sie im Programm die INCLUDE Anweisung, um den Prozessortyp "
              "festzulegen. Beispiel: Include 8051.mc\n");
}

TEST_F(Simulate, an_assembler_error_names_file_and_line)
{
    const auto r = Quelle(" FOO\n", {"--json"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Aus, "");
    EXPECT_EQ(r.Fehler, "a.asm:2: error: Unknown instruction !\n");
    EXPECT_EQ(Deutsch({"simulate", "a.asm"}).Fehler, "a.asm:2: error: Befehl nicht erkannt !\n");
}

TEST_F(Simulate, an_input_that_is_not_there_is_status_3)
{
    EXPECT_EQ(Laufe("none.asm").Status, 3);
    EXPECT_EQ(Laufe("none.bin").Status, 3);
    EXPECT_EQ(Laufen({"simulate"}).Status, 2);
}

// --- images ---

TEST_F(Simulate, an_image_starts_at_address_0_with_the_registers_of_the_8052)
{
    const Json j = Bild_Json("\x04\x08\xA5");
    EXPECT_EQ(j["pc"], 2);
    EXPECT_EQ(RAM(j, 0xE0), 1);
    EXPECT_EQ(RAM(j, 0), 0);    // FFh and 1
    EXPECT_EQ(RAM(j, 0xC8), 0); // T2CON is a register of the 8052
    EXPECT_EQ(RAM(j, 0x81), 7);
}

TEST_F(Simulate, an_image_may_be_of_any_format_or_come_from_standard_input)
{
    Schreiben("a.bin", "\x04\xA5");
    for (const char* Name : {"a._51", "a.hex", "a.ihx", "a.mhx", "a.dat"}) {
        ASSERT_EQ(Laufen({"convert", "a.bin", "-o", Name}).Status, 0);
        EXPECT_EQ(Als_Json(Laufe(Name, {"--json"}))["pc"], 1) << Name;
    }
    EXPECT_EQ(Json::parse(Laufen({"simulate", "-", "--json"}, "\x04\x04\xA5").Aus)["pc"], 2);
}

TEST_F(Simulate, an_image_that_begins_with_a_stop_point_runs_on_behind_it)
{
    EXPECT_EQ(Bild_Json("\xA5\x04\xA5")["pc"], 2);
}

TEST_F(Simulate, the_processor_file_decides_what_a_reset_sets)
{
    const Json j = Bild_Json("\xA5\xA5", {"--processor", "8051.mc"});
    EXPECT_EQ(RAM(j, 0xC8), 0xFF);
    EXPECT_EQ(RAM(j, 0x81), 7);
    Schreiben("my.mc", "; only these\nSP DATA 90h\nACC DATA 0E0h\n");
    const Json Eigenes = Bild_Json("\xA5\xA5", {"--processor", "my.mc"});
    EXPECT_EQ(RAM(Eigenes, 0x81), 0xFF);
    EXPECT_EQ(RAM(Eigenes, 0x90), 7);
    EXPECT_EQ(RAM(Eigenes, 0xE0), 0);
    EXPECT_EQ(RAM(Eigenes, 0xD0), 0xFF); // nothing ran: parity stays as well
}

TEST_F(Simulate, a_processor_file_that_is_bad_or_missing_is_told)
{
    Schreiben("a.bin", "\xA5\xA5");
    Schreiben("my.mc", "SP DATA 81h\nFOO\n");
    const auto Falsch = Laufe("a.bin", {"--processor", "my.mc"});
    EXPECT_EQ(Falsch.Status, 1);
    EXPECT_EQ(Falsch.Fehler.substr(0, 15), "my.mc:2: error:");
    const auto Fehlt = Laufe("a.bin", {"--processor", "none.mc"});
    EXPECT_EQ(Fehlt.Status, 3);
    EXPECT_TRUE(Enthaelt(Fehlt.Fehler, "none.mc"));
    EXPECT_EQ(Laufe("a.bin", {"--processor", "a.bin"}).Status, 2);
}

TEST_F(Simulate, a_source_keeps_its_own_processor_file)
{
    EXPECT_EQ(RAM(Quelle_Json(" STOP\n", {"--processor", "8052.mc"}), 0xC8), 0xFF);
}

TEST_F(Simulate, mov_order_turns_the_direction_of_a_direct_mov)
{
    // MOV 10h,#11h; then 85 10 20
    const std::string Bild = "\x75\x10\x11\x85\x10\x20\xA5";
    EXPECT_EQ(RAM(Bild_Json(Bild), 0x20), 0x11);
    EXPECT_EQ(RAM(Bild_Json(Bild, {"--mov-order", "destination"}), 0x20), 0x11);
    const Json Quelle_Zuerst = Bild_Json(Bild, {"--mov-order", "source"});
    EXPECT_EQ(RAM(Quelle_Zuerst, 0x20), 0xFF);
    EXPECT_EQ(RAM(Quelle_Zuerst, 0x10), 0xFF);
    EXPECT_EQ(Laufe("a.bin", {"--mov-order", "both"}).Status, 2);
}

TEST_F(Simulate, mov_order_reaches_the_assembler_too)
{
    const std::string Programm = " MOV 10h,#11h\n MOV 10h,20h\n STOP\n";
    EXPECT_EQ(RAM(Quelle_Json(Programm), 0x10), 0xFF);
    // source first: assembled as 85 10 20, and moved from the second to the first all the same
    const Json j = Quelle_Json(Programm, {"--mov-order", "source"});
    EXPECT_EQ(RAM(j, 0x10), 0xFF);
    EXPECT_EQ(RAM(j, 0x20), 0xFF);
}

// --- below address 0 ---

TEST_F(Simulate, below_address_0_the_run_ends_with_a_message_and_status_1)
{
    for (const Zeile_T& Art : {Zeile_T{}, Zeile_T{"--line-mode"}, Zeile_T{"--trace", "t"}}) {
        Zeile_T Optionen = Art;
        Optionen.push_back("--json");
        const auto r = Quelle(" DB 80h,80h\n", Optionen);
        EXPECT_EQ(r.Status, 1);
        EXPECT_EQ(r.Fehler, "The program address is below 0 !\n");
        const Json j = Json::parse(r.Aus);
        EXPECT_EQ(j["pc"], -126);
        EXPECT_EQ(j["instructions"], 1);
        EXPECT_EQ(j["stopped"], "address below 0");
        EXPECT_EQ(Deutsch({"simulate", "a.asm"}).Fehler, "Die Programmadresse liegt unter 0 !\n");
    }
    EXPECT_EQ(Laufe("a.asm").Aus.substr(0, 49),
              "Stopped: address below 0, program address -126\nIn");
    EXPECT_EQ(Deutsch({"simulate", "a.asm"}).Aus.substr(0, 45),
              "Ende: Adresse unter 0, Programmadresse -126\nB");
}

// --- line mode ---

TEST_F(Simulate, line_mode_counts_source_lines)
{
    Schreiben("sub.inc", "SUB: INC R0\n INC R0\n RET\n");
    const std::string Programm = " LCALL SUB\n FOR R1=#1 TO #3\n INC A\n NEXT\n SJMP $\n"
                                 "INCLUDE sub.inc\n";
    const auto        Nach     = [&](const char* Zeilen) {
        return Quelle_Json(Programm, {"--line-mode", "--instructions", Zeilen});
    };
    const Json Eine = Nach("1"); // the call, and all of what is included
    EXPECT_EQ(Eine["pc"], 3);
    EXPECT_EQ(Eine["instructions"], 4);
    EXPECT_EQ(Eine["cycles"], 6);
    EXPECT_EQ(Eine["stopped"], "limit");
    EXPECT_EQ(RAM(Eine, 0), 1);
    EXPECT_EQ(Nach("2")["instructions"], 5);
    EXPECT_EQ(Nach("3")["instructions"], 6);
    const Json Runde = Nach("4"); // NEXT leads back to the body
    EXPECT_EQ(Runde["pc"], 5);
    EXPECT_EQ(RAM(Runde, 1), 2);
    EXPECT_EQ(RAM(Nach("8"), 1), 4); // behind the loop
    EXPECT_EQ(RAM(Nach("8"), 0xE0), 3);
    EXPECT_EQ(Nach("0")["pc"], 0);
}

TEST_F(Simulate, line_mode_ends_at_a_stop_point)
{
    const Json j = Quelle_Json(" INC A\n INC A\n STOP\n INC A\n", {"--line-mode"});
    EXPECT_EQ(j["stopped"], "stop point");
    EXPECT_EQ(j["pc"], 2);
    EXPECT_EQ(j["instructions"], 2);
}

TEST_F(Simulate, line_mode_needs_a_source)
{
    Schreiben("a.bin", "\x04");
    const auto r = Laufe("a.bin", {"--line-mode"});
    EXPECT_EQ(r.Status, 2);
    EXPECT_EQ(
        r.Fehler,
        "varnholt-cli: a.bin is an image; --line-mode counts source lines and needs a source\n");
    EXPECT_EQ(Deutsch({"simulate", "a.bin", "--line-mode"}).Fehler,
              "varnholt-cli: a.bin ist ein Abbild; --line-mode zählt Quellzeilen und braucht einen "
              "Quelltext\n");
}

TEST_F(Simulate, a_line_without_an_end_is_given_up_with_a_message)
{
    Schreiben("loop.inc", "LOOP: SJMP LOOP\n");
    const auto r = Quelle(" LJMP LOOP\nINCLUDE loop.inc\n", {"--line-mode", "--json"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Fehler, "The line doesn't come to an end !\n");
    EXPECT_EQ(Json::parse(r.Aus)["stopped"], "endless line");
    EXPECT_EQ(Json::parse(r.Aus)["pc"], 3);
    const auto D = Deutsch({"simulate", "a.asm", "--line-mode"});
    EXPECT_EQ(D.Fehler, "Die Zeile kommt nicht zum Ende !\n");
    EXPECT_EQ(D.Aus.substr(0, 20), "Ende: endlose Zeile,");
}

TEST_F(Simulate, a_line_that_goes_round_through_many_states_is_given_up_as_well)
{
    Schreiben("loop.inc", "LOOP: INC A\n MOVX @DPTR,A\n DJNZ R0,LOOP\n SJMP LOOP\n");
    const auto r = Quelle(" SETB TR0\n MOV TMOD,#2\n LJMP LOOP\nINCLUDE loop.inc\n",
                          {"--line-mode", "--json"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(Json::parse(r.Aus)["stopped"], "endless line");
}

TEST_F(Simulate, a_long_line_comes_to_its_end)
{
    Schreiben("wait.inc",
              "WAIT: MOV R7,#160\nW1: MOV R6,#0\nW2: MOV R5,#0\nW3: DJNZ R5,W3\n"
              " DJNZ R6,W2\n DJNZ R7,W1\n RET\n");
    const Json j = Quelle_Json(" LCALL WAIT\n STOP\nINCLUDE wait.inc\n", {"--line-mode"});
    EXPECT_EQ(j["stopped"], "stop point");
    EXPECT_EQ(j["instructions"], 160 * (256 * (256 + 2) + 2) + 3);
    EXPECT_GT(j["instructions"], 10'000'000);
}

// --- the trace ---

TEST_F(Simulate, the_trace_has_a_line_for_each_executed_instruction)
{
    const Json j = Quelle_Json(" MOV A,#0FEh\n INC A\n INC A\n MOV DPTR,#0ABCDh\n PUSH ACC\n"
                               " SETB C\n STOP\n",
                               {"--trace", "t"});
    EXPECT_EQ(Lesen("t"),
              "0000 74 A=FE PSW=01 SP=07 DPTR=0000 CYC=1\n"
              "0002 04 A=FF PSW=00 SP=07 DPTR=0000 CYC=2\n"
              "0003 04 A=00 PSW=00 SP=07 DPTR=0000 CYC=3\n"
              "0004 90 A=00 PSW=00 SP=07 DPTR=ABCD CYC=5\n"
              "0007 C0 A=00 PSW=00 SP=08 DPTR=ABCD CYC=7\n"
              "0009 D3 A=00 PSW=80 SP=08 DPTR=ABCD CYC=8\n");
    EXPECT_EQ(j["instructions"], 6);
}

TEST_F(Simulate, a_trace_line_stands_behind_the_interrupt_that_the_instruction_let_in)
{
    Quelle(" SJMP START\nORG 0Bh\n RETI\nSTART: MOV IE,#82h\n SETB TF0\n STOP\n", {"--trace", "t"});
    EXPECT_EQ(Lesen("t"),
              "0000 80 A=00 PSW=00 SP=07 DPTR=0000 CYC=2\n"
              "000C 75 A=00 PSW=00 SP=07 DPTR=0000 CYC=4\n"
              "000F D2 A=00 PSW=00 SP=09 DPTR=0000 CYC=8\n"
              "000B 32 A=00 PSW=00 SP=07 DPTR=0000 CYC=10\n");
}

TEST_F(Simulate, a_traced_run_and_one_by_lines_end_as_one_at_full_speed)
{
    const std::string Programm =
        " LJMP START\nORG 0Bh\n INC R5\n RETI\n"
        "START: MOV TMOD,#22h\n MOV TH0,#0E0h\n SETB TR0\n SETB TR1\n"
        " MOV IE,#82h\n MOV R6,#9\nL: ADD A,R7\n INC R7\n PUSH PSW\n MOV B,#7\n"
        " MUL AB\n POP PSW\n MOVX @R1,A\n DJNZ 30h,L\n DJNZ R6,L\n"
        " STOP\n";
    const Json Voll = Quelle_Json(Programm);
    EXPECT_EQ(Voll["stopped"], "stop point");
    EXPECT_EQ(Voll, Quelle_Json(Programm, {"--trace", "t"}));
    EXPECT_EQ(Voll, Quelle_Json(Programm, {"--line-mode"}));
    const std::string Spur = Lesen("t");
    EXPECT_EQ(std::count(Spur.begin(), Spur.end(), '\n'), Voll["instructions"].get<int>());
}

TEST_F(Simulate, the_trace_may_go_to_standard_output)
{
    const auto r = Quelle(" INC A\n STOP\n", {"--trace", "-", "--json"});
    EXPECT_TRUE(r.Aus.starts_with("0000 04 A=01 PSW=01 SP=07 DPTR=0000 CYC=1\n{\"pc\":1,"));
}

TEST_F(Simulate, line_mode_traces_every_instruction_of_a_line)
{
    Quelle(" IF A=#0 THEN\n INC R0\n END IF\n STOP\n", {"--line-mode", "--trace", "t"});
    const std::string Spur = Lesen("t");
    EXPECT_EQ(std::count(Spur.begin(), Spur.end(), '\n'), 3); // CJNE, SJMP, INC
}

// --- files that can't be written ---

TEST_F(Simulate, an_output_that_cant_be_written_is_status_3)
{
    const auto Spur = Quelle(" INC A\n STOP\n", {"--trace", "no/such/folder"});
    EXPECT_EQ(Spur.Status, 3);
    EXPECT_EQ(Spur.Fehler, "The trace can't be written.\n");
    EXPECT_EQ(Deutsch({"simulate", "a.asm", "--trace", "no/such/folder"}).Fehler,
              "Die Aufzeichnung kann nicht geschrieben werden.\n");
    EXPECT_EQ(Laufe("a.asm", {"--trace", "/dev/full"}).Status, 3);
    const auto Speicher = Laufe("a.asm", {"--xram-out", "no/such/folder"});
    EXPECT_EQ(Speicher.Status, 3);
    EXPECT_TRUE(Enthaelt(Speicher.Fehler, "no/such/folder"));
    EXPECT_EQ(Laufe("a.asm", {"--xram-out", "/dev/full"}).Status, 3);
}

TEST_F(Simulate, the_external_memory_is_not_written_over_a_source)
{
    const auto r = Quelle(" STOP\n", {"--xram-out", "a.asm"});
    EXPECT_EQ(r.Status, 2);
    EXPECT_EQ(Lesen("a.asm"), std::string(Kopf) + " STOP\n");
}

TEST_F(Simulate, no_output_is_written_over_the_input)
{
    const std::string Text = std::string(Kopf) + " STOP\n";
    Schreiben("a.asm", Text);
    Schreiben("a.bin", "\x04\xA5");
    std::filesystem::create_directory(Ordner / "sub");
    for (const std::string Eingabe : {"a.asm", "a.bin"}) {
        const std::string Vorher = Lesen(Eingabe);
        const auto        Pfad   = Ordner / Eingabe;
        std::filesystem::create_symlink(Pfad, Ordner / ("soft_" + Eingabe));
        std::filesystem::create_hard_link(Pfad, Ordner / ("hard_" + Eingabe));
        for (const std::string& Name : {Eingabe,
                                        "./" + Eingabe,
                                        "sub/../" + Eingabe,
                                        Pfad.string(),
                                        "soft_" + Eingabe,
                                        "hard_" + Eingabe})
            for (const char* Option : {"--trace", "--xram-out"}) {
                const auto r = Laufe(Eingabe, {Option, Name});
                EXPECT_EQ(r.Status, 2) << Option << Name;
                EXPECT_TRUE(Enthaelt(r.Fehler, Name)) << r.Fehler;
                EXPECT_EQ(r.Aus, "");
                EXPECT_EQ(Lesen(Eingabe), Vorher) << Option << Name;
            }
        EXPECT_EQ(Laufe("soft_" + Eingabe, {"--trace", Eingabe}).Status, 2);
    }
    EXPECT_EQ(Laufe("a.asm", {"--trace", "./a.asm"}).Fehler,
              "varnholt-cli: --trace ./a.asm: that is the input\n");
    EXPECT_EQ(Deutsch({"simulate", "a.bin", "--xram-out", "a.bin"}).Fehler,
              "varnholt-cli: --xram-out a.bin: das ist die Eingabe\n");
}

TEST_F(Simulate, no_output_is_written_over_the_processor_file_or_another_output)
{
    Schreiben("a.bin", "\x04\xA5");
    Schreiben("own.mc", "DATA P0=80h\n");
    EXPECT_EQ(Laufe("a.bin", {"--processor", "own.mc", "--trace", "./own.mc"}).Status, 2);
    EXPECT_EQ(Lesen("own.mc"), "DATA P0=80h\n");
    const auto Beide = Laufe("a.bin", {"--trace", "t", "--xram-out", "./t"});
    EXPECT_EQ(Beide.Status, 2);
    EXPECT_EQ(Beide.Fehler, "varnholt-cli: --trace and --xram-out write to the same file\n");
    EXPECT_FALSE(std::filesystem::exists(Ordner / "t"));
    EXPECT_EQ(Deutsch({"simulate", "a.bin", "--trace", "t", "--xram-out", "t"}).Fehler,
              "varnholt-cli: --trace und --xram-out schreiben in dieselbe Datei\n");
    EXPECT_EQ(Laufe("a.bin", {"--trace", "t", "--xram-out", "x"}).Status, 0);
    EXPECT_EQ(Laufe("a.bin", {"--trace", "t", "--xram-out", "x"}).Status, 0) << "once more";
    EXPECT_EQ(Laufe("a.bin", {"--trace", "/dev/null", "--xram-out", "/dev/null"}).Status, 0);
}

TEST_F(Simulate, no_output_is_written_over_an_included_file)
{
    const std::string Include = "SUB1: INC A\n RET\n";
    std::filesystem::create_directory(Ordner / "sub");
    Schreiben("sub/b.inc", Include);
    Schreiben("own.mc", "P0 DATA 80h\n");
    Schreiben("a.asm", "INCLUDE own.mc\n LCALL SUB1\n STOP\nINCLUDE sub/b.inc\n");
    std::filesystem::create_symlink(Ordner / "sub/b.inc", Ordner / "soft.inc");
    ASSERT_EQ(Laufe("a.asm").Status, 0);
    for (const char* Option : {"--trace", "--xram-out"})
        for (const std::string Name : {"sub/b.inc", "./sub/../sub/b.inc", "soft.inc", "own.mc"}) {
            const auto r = Laufe("a.asm", {Option, Name});
            EXPECT_EQ(r.Status, 2) << Option << Name;
            EXPECT_EQ(r.Fehler,
                      "varnholt-cli: "s + Option + " " + Name + ": that is an included file\n");
            EXPECT_EQ(r.Aus, "");
            EXPECT_EQ(Lesen("sub/b.inc"), Include);
            EXPECT_EQ(Lesen("own.mc"), "P0 DATA 80h\n");
        }
    EXPECT_EQ(Deutsch({"simulate", "a.asm", "--trace", "own.mc"}).Fehler,
              "varnholt-cli: --trace own.mc: das ist eine Include-Datei\n");
    EXPECT_EQ(Laufe("a.asm", {"--trace", "sub/c.inc"}).Status, 0);
}

// --- help ---

TEST_F(Simulate, help_and_man_page_tell_its_options)
{
    for (const Zeile_T& z : {Zeile_T{"simulate", "--help"}}) {
        const auto r = Laufen(z);
        EXPECT_EQ(r.Status, 0);
        for (const char* Teil : {"INPUT",
                                 "--instructions N",
                                 "--line-mode",
                                 "--mov-order",
                                 "--processor FILE.mc",
                                 "--json",
                                 "--trace FILE",
                                 "--xram-out FILE"})
            EXPECT_TRUE(Enthaelt(r.Aus, Teil)) << Teil;
    }
}

} // namespace
} // namespace varnholt::test
