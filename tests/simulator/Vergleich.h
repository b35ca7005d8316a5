// The machine and the model side by side: from one to the other, and what differs.
#pragma once

#include "simulator/Maschinen_Welt.h"
#include "simulator/Vergleichs_Maschine.h"

#include <cstring>

namespace varnholt::test {

// The model in the state of the machine, on the image as it is.
inline void Modell_Stellen(Vergleichs_Maschine& Modell)
{
    std::copy(Sim_RAM.begin(), Sim_RAM.end(), Modell.RAM.begin());
    std::memcpy(Modell.XRAM.data(), Sim_XRAM.data(), Sim_XRAM.size());
    std::copy(Sim_Pins.begin(), Sim_Pins.end(), Modell.Pins.begin());
    Modell.Code        = Hex_Daten.data();
    Modell.PC          = Sim_PC;
    Modell.Zyklen      = static_cast<std::uint32_t>(Sim_Zyklen);
    Modell.Prio        = Sim_Prio;
    Modell.Ziel_Zuerst = O_MOV_ZQ;
}

// The machine in the state of the model.
inline void Maschine_Stellen(const Vergleichs_Maschine& Modell)
{
    for (std::size_t i = 0; i < Sim_RAM.size(); ++i)
        Sim_RAM[i] = static_cast<std::uint8_t>(Modell.RAM[i]);
    std::memcpy(Sim_XRAM.data(), Modell.XRAM.data(), Sim_XRAM.size());
    for (std::size_t i = 0; i < Sim_Pins.size(); ++i)
        Sim_Pins[i] = static_cast<std::int16_t>(Modell.Pins[i]);
    Sim_PC     = Modell.PC;
    Sim_Zyklen = static_cast<std::int32_t>(Modell.Zyklen);
    Sim_Prio   = static_cast<std::int16_t>(Modell.Prio);
}

// What follows every instruction, without the memories.
inline bool Gleich_Im_Kern(const Vergleichs_Maschine& Modell)
{
    return Sim_PC == Modell.PC && Sim_Zyklen == static_cast<std::int32_t>(Modell.Zyklen) &&
           Sim_Prio == Modell.Prio && Sim_RAM[SFR::ACC] == Modell.RAM[SFR::ACC] &&
           Sim_RAM[SFR::PSW] == Modell.RAM[SFR::PSW] && Sim_RAM[SFR::SP] == Modell.RAM[SFR::SP] &&
           Sim_RAM[SFR::TCON] == Modell.RAM[SFR::TCON];
}

inline bool Gleich(const Maschine_T& a, const Maschine_T& b)
{
    return a.Sim_PC == b.Sim_PC && a.Sim_Zyklen == b.Sim_Zyklen && a.Sim_Prio == b.Sim_Prio &&
           a.Sim_Pins == b.Sim_Pins &&
           std::memcmp(a.Sim_RAM.data(), b.Sim_RAM.data(), a.Sim_RAM.size()) == 0 &&
           std::memcmp(a.Sim_XRAM.data(), b.Sim_XRAM.data(), a.Sim_XRAM.size()) == 0;
}

// What the machine (is) has other than it should have (not); empty when nothing.
inline std::string Unterschied(const Maschine_T& Ist, const Maschine_T& Soll)
{
    if (Gleich(Ist, Soll))
        return {};
    std::string Text = Unterschied(Ist.Sim_RAM, Soll.Sim_RAM);
    const auto  Zahl = [&Text](const std::string& Name, int a, int b) {
        if (a != b)
            Text += Name + " is " + std::to_string(a) + ", not " + std::to_string(b) + "  ";
    };
    Zahl("Sim_PC", Ist.Sim_PC, Soll.Sim_PC);
    Zahl("Sim_Zyklen", Ist.Sim_Zyklen, Soll.Sim_Zyklen);
    Zahl("Sim_Prio", Ist.Sim_Prio, Soll.Sim_Prio);
    for (std::size_t i = 0; i < Ist.Sim_Pins.size(); ++i)
        Zahl("Sim_Pins " + std::to_string(i), Ist.Sim_Pins[i], Soll.Sim_Pins[i]);
    for (std::size_t i = 0; i < Ist.Sim_XRAM.size(); ++i)
        Zahl("X[" + Hex_Zahl(static_cast<int>(i), 4) + "]", Ist.Sim_XRAM[i], Soll.Sim_XRAM[i]);
    return Text;
}

} // namespace varnholt::test
