// The machine's memory: bits of bytes, the current register bank, and the fills of a reset.
#include "simulator/Debug.h"

#include "language/Namen.h"
#include "simulator/Rechnen.h"
#include "simulator/Sim_Ansichten.h"

#include <algorithm>
#include <string_view>

namespace varnholt {
namespace {

std::uint8_t Byte_Zusammensetzen()
{
    unsigned Wert = 0;
    for (std::size_t i = 0; i < 8; ++i)
        Wert |= static_cast<unsigned>(Sim_Bits[i] & 1U) << i;
    return static_cast<std::uint8_t>(Wert);
}

} // namespace

void Maschine_Zuruecksetzen() { Maschine = {}; }

int Register_Adresse(int n)
{
    return n + 8 * Byte_Bit(RAM_An(SFR::PSW), 3) + 16 * Byte_Bit(RAM_An(SFR::PSW), 4);
}

void Byte_Zerlegen(std::uint8_t Wert)
{
    for (std::size_t i = 0; i < 8; ++i)
        Sim_Bits[i] = static_cast<std::uint8_t>((Wert >> i) & 1);
}

std::uint8_t Byte_Bit(const std::uint8_t& Byte, int Nummer)
{
    Byte_Zerlegen(Byte);
    return Sim_Bits[static_cast<std::size_t>(Nummer)];
}

void Byte_Bit_Setzen(int Index, int Nummer, int Wert)
{
    Byte_Zerlegen(RAM_An(Index));
    Sim_Bits[static_cast<std::size_t>(Nummer)] = Wert != 0 ? 1 : 0;
    RAM_An(Index)                              = Byte_Zusammensetzen();
    Sim_Zelle_Zeigen_RAM(Index);
    Sim_Zelle_Zeigen_SFR(Index);
}

std::uint8_t Bit_Lesen(int Adresse) { return Byte_Bit(RAM_An(Bit_Byte(Adresse)), Adresse & 7); }

void Bit_Setzen(int Adresse, int Wert) { Byte_Bit_Setzen(Bit_Byte(Adresse), Adresse & 7, Wert); }

void Reset_RAM()
{
    std::fill_n(Sim_RAM.begin(), 128, std::uint8_t{255});
    std::fill_n(Sim_RAM.begin() + 256, 128, std::uint8_t{255});
}

void Reset_XRAM() { Sim_XRAM.fill(255); }

// --- the registers ---

namespace {

struct Reset_Wert_T {
    std::string_view Name;
    std::uint8_t     Wert;
};

// Registers that a reset sets, wherever the processor file puts them. Some derivatives spell a few
// of them in their own way (80C552: S0CON, S0BUF, TM2IR).
// clang-format off
constexpr Reset_Wert_T Reset_Werte[] = {
    {"ACC",  0}, {"B",    0}, {"PSW",  0}, {"DPL",    0}, {"DPH",    0}, {"SP",     7},
    {"P0", 255}, {"P1", 255}, {"P2", 255}, {"P3",   255},
    {"IP",   0}, {"IE",   0}, {"TMOD", 0}, {"T2MOD",  0}, {"TCON",   0}, {"T2CON",  0},
    {"TM2IR", 0}, {"TH0", 0}, {"TL0",  0}, {"TH1",    0}, {"TL1",    0}, {"TH2",    0},
    {"TL2",  0}, {"RCAP2H", 0}, {"RCAP2L", 0},
    {"SCON", 0}, {"S0CON", 0}, {"SBUF", 0}, {"S0BUF", 0}, {"PCON",   0},
};
// clang-format on

} // namespace

void Reset_SFR()
{
    std::fill_n(Sim_RAM.begin() + 128, 128, std::uint8_t{255});
    for (const Namen_Eintrag& Name : Namen_Tabelle) {
        const auto* Treffer =
            std::find_if(std::begin(Reset_Werte),
                         std::end(Reset_Werte),
                         [&](const Reset_Wert_T& r) { return r.Name == Name.Name; });
        const bool Const = Name.Laenge == 0;
        if (Treffer != std::end(Reset_Werte) && !Const && Name.Wert >= 0 &&
            Name.Wert < Sim_RAM_Groesse)
            RAM_An(Name.Wert) = Treffer->Wert;
    }
}

} // namespace varnholt
