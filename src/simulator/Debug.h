// The simulated machine: an 8051 in a handful of arrays and numbers, how each addressing mode finds
// its byte, and the interpreter that works on them. Timers and interrupts stand in Peripherie, the
// session around it all in Sitzung.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace varnholt {

// Places in Sim_RAM that the simulator uses by number, whatever the processor file says.
namespace SFR {
inline constexpr int SP = 129, DPL = 130, DPH = 131, TCON = 136, TMOD = 137, TL0 = 138, TL1 = 139,
                     TH0 = 140, TH1 = 141, P1 = 144, IE = 168, P3 = 176, IP = 184, T2CON = 200,
                     RCAP2L = 202, RCAP2H = 203, TL2 = 204, TH2 = 205, PSW = 208, ACC = 224,
                     B = 240;
} // namespace SFR

inline constexpr int Sim_RAM_Groesse  = 384;
inline constexpr int Sim_XRAM_Groesse = 65536;
inline constexpr int Code_Groesse     = 65536; // the program counter wraps to 0 here

// The program counter behind an instruction: beyond the last address it begins anew.
constexpr std::int32_t Im_Code(std::int32_t PC) { return PC < Code_Groesse ? PC : 0; }
static_assert(Im_Code(Code_Groesse - 1) == Code_Groesse - 1 && Im_Code(Code_Groesse) == 0);

inline constexpr std::uint8_t Stoppunkt_Opcode = 0xA5; // what the word STOP becomes

// The machine. Written by the interpreter, the peripherals, the session and edits in the views;
// kept for the whole run of the program.
inline struct Maschine_T {
    // 0 to 127 lower internal RAM, 128 to 255 special function registers at their addresses, 256
    // to 383 upper internal RAM (address x at x + 128).
    std::array<std::uint8_t, Sim_RAM_Groesse>  Sim_RAM{};
    std::array<std::uint8_t, Sim_XRAM_Groesse> Sim_XRAM{};
    std::int32_t                               Sim_PC = 0; // 0 to 65535 after each step
    std::int32_t                 Sim_Zyklen           = 0; // machine cycles, wraps as 32 bits do
    std::array<std::uint8_t, 16> Sim_Bits{}; // scratch: one byte in bits, entry 0 = bit 0; 8 to 15
                                             // a second byte
    // Level seen at the end of the last peripheral pass: P3.4, P3.5, P1.0, P1.1, P3.2, P3.3. No
    // reset touches it.
    std::array<std::int16_t, 6> Sim_Pins{};
    std::int16_t                Sim_Prio  = -1; // priority of the interrupt in service, -1 none
    std::int16_t                Sim_Bank  = -1; // bank shown in the RAM view, -1 none yet
    std::int32_t                Sim_Zeile = 0;  // row of Quell_Zeilen at Sim_PC
} Maschine;

inline constinit auto& Sim_RAM    = Maschine.Sim_RAM;
inline constinit auto& Sim_XRAM   = Maschine.Sim_XRAM;
inline constinit auto& Sim_PC     = Maschine.Sim_PC;
inline constinit auto& Sim_Zyklen = Maschine.Sim_Zyklen;
inline constinit auto& Sim_Bits   = Maschine.Sim_Bits;
inline constinit auto& Sim_Pins   = Maschine.Sim_Pins;
inline constinit auto& Sim_Prio   = Maschine.Sim_Prio;
inline constinit auto& Sim_Bank   = Maschine.Sim_Bank;
inline constinit auto& Sim_Zeile  = Maschine.Sim_Zeile;

// The byte of Sim_RAM at an index of 0 to 383.
inline std::uint8_t& RAM_An(int Index) { return Sim_RAM[static_cast<std::size_t>(Index)]; }

// The machine as at program start.
void Maschine_Zuruecksetzen();

// --- addresses ---

// Index into Sim_RAM of the byte that holds a bit address (0 to 255).
constexpr int Bit_Byte(int Adresse) { return Adresse < 128 ? 32 + Adresse / 8 : Adresse & 0xF8; }
// Index of an indirect access with register value v (0 to 255). The stack doesn't go this way.
constexpr int Indirekt_Index(int v) { return v < 128 ? v : v + 128; }
static_assert(Bit_Byte(0) == 32 && Bit_Byte(127) == 47 && Bit_Byte(215) == SFR::PSW);
static_assert(Indirekt_Index(127) == 127 && Indirekt_Index(200) == 328);

// Index of Rn (0 to 7) in the bank that PSW selects now.
int Register_Adresse(int n);

// --- bytes and bits (Debug.cpp); all of them work by way of Sim_Bits ---

void         Byte_Zerlegen(std::uint8_t Wert);               // sets: Sim_Bits 0 to 7
std::uint8_t Byte_Bit(const std::uint8_t& Byte, int Nummer); // 0 or 1
// Changes one bit of Sim_RAM and refreshes that index in the RAM view and the SFR view.
void         Byte_Bit_Setzen(int Index, int Nummer, int Wert);
std::uint8_t Bit_Lesen(int Adresse); // 0 or 1
void         Bit_Setzen(int Adresse, int Wert);

// --- reset (Debug.cpp) ---

void Reset_RAM();  // FFh in lower and upper RAM
void Reset_SFR();  // FFh, then the reset values at the addresses that Namen_Tabelle gives
void Reset_XRAM(); // FFh

// --- one call of the interpreter (Simulieren.cpp) ---

// Runs until a line of the main source is reached; one instruction under Debug_Vollgas. A stop
// point is shown and left standing. reads: Hex_Daten, Quell_Zeilen, session flags   sets: the
// machine, Debug_Stop, views, panel
void Simulieren();

// --- running the machine (Laufwerk.cpp) ---

// Why a piece of a run ended.
enum class Lauf_Grund {
    Grenze,     // the number of instructions was reached
    Stoppunkt,  // Sim_PC stands on a stop point
    Unter_Null, // Sim_PC is below 0
};
struct Lauf_Ergebnis {
    std::int64_t Befehle = 0; // instructions executed
    Lauf_Grund   Grund   = Lauf_Grund::Grenze;
    std::int32_t PC      = 0; // behind the last instruction, before it wrapped at 65536
};

// At most that many instructions at full speed, the views left alone. The machine ends as after as
// many calls of Befehl_Ausfuehren. Doesn't look at Debugger_Aktiv.
Lauf_Ergebnis Vollgas_Laufen(std::int64_t Hoechstens);

// One instruction with its parity, peripheral pass and interrupt check, and the wrap of Sim_PC
// behind it; each store refreshes its cell in the views. Nothing at a stop point or below address
// 0.
Lauf_Ergebnis Befehl_Ausfuehren();

} // namespace varnholt
