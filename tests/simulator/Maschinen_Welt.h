// Common ground of the simulator's tests: a world with an idle machine, short names for its
// registers, and programs as text.
#pragma once

#include "core/settings.h"
#include "core/shared_state.h"
#include "simulator/Debug.h"
#include "simulator/Peripherie.h"
#include "support/scripted_platform.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt::test {

// A number in hexadecimal, at least so many digits.
inline std::string Hex_Zahl(std::int64_t Wert, int Stellen = 2)
{
    std::string Text;
    for (; Wert > 0 || Stellen > 0; Wert /= 16, --Stellen)
        Text.insert(Text.begin(), "0123456789ABCDEF"[Wert % 16]);
    return Text;
}

inline std::int32_t Hex_Wert(std::string_view Text)
{
    std::int32_t Wert = 0;
    for (const char c : Text)
        Wert = Wert * 16 + (c <= '9' ? c - '0' : c - 'A' + 10);
    return Wert;
}

// Bytes as pairs of upper-case digits to a place of the image; answers how many.
inline int Code(std::int32_t Adresse, std::string_view Bytes)
{
    int Anzahl = 0;
    for (std::size_t i = 0; i + 1 < Bytes.size(); i += 3)
        Hex_Daten.at(static_cast<std::size_t>(Adresse + Anzahl++)) =
            static_cast<std::uint8_t>(Hex_Wert(Bytes.substr(i, 2)));
    return Anzahl;
}

// What differs between two states of the on-chip memory, as `[1F] is 00, not 12`.
inline std::string Unterschied(const decltype(Maschine_T::Sim_RAM)& Ist,
                               const decltype(Maschine_T::Sim_RAM)& Soll)
{
    std::string Text;
    for (std::size_t i = 0; i < Ist.size(); ++i)
        if (Ist[i] != Soll[i])
            Text += "[" + Hex_Zahl(static_cast<int>(i)) + "] is " + Hex_Zahl(Ist[i]) + ", not " +
                    Hex_Zahl(Soll[i]) + "  ";
    return Text;
}

// The machine with all timers and interrupts off, SP at 7, memory 0, at address 0 of an image
// full of NOP.
class Maschinen_Welt : public Welt {
protected:
    Maschinen_Welt()
    {
        Maschine_Zuruecksetzen();
        Sim_RAM.fill(0);
        Hex_Daten.fill(0);
        R(SFR::SP) = 7;
    }
    ~Maschinen_Welt() override { Maschine_Zuruecksetzen(); }

    // A byte of Sim_RAM.
    static std::uint8_t& R(int Index) { return Sim_RAM.at(static_cast<std::size_t>(Index)); }
    static int           Bit(int Index, int Nummer) { return R(Index) >> Nummer & 1; }
    // A bit of Sim_RAM, without the program's own routines.
    static void Bit_Zu(int Index, int Nummer, bool Wert)
    {
        R(Index) = static_cast<std::uint8_t>((R(Index) & ~(1 << Nummer)) | int{Wert} << Nummer);
    }
    static int CY() { return Bit(SFR::PSW, 7); }
    static int AC() { return Bit(SFR::PSW, 6); }
    static int OV() { return Bit(SFR::PSW, 2); }

    // Steps over so many instructions; each must find one.
    static void Schritte(int Anzahl)
    {
        for (int i = 0; i < Anzahl; ++i)
            ASSERT_EQ(Befehl_Ausfuehren().Befehle, 1) << "at " << Hex_Zahl(Sim_PC, 4);
    }
    // Puts one instruction at Sim_PC and steps over it.
    static void Mache(std::string_view Bytes)
    {
        Code(Sim_PC, Bytes);
        Schritte(1);
    }
};

} // namespace varnholt::test
