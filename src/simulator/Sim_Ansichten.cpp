// What the three memory views show, row by row, and what an edit in them stores.
#include "simulator/Sim_Ansichten.h"

#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/HexDez.h"
#include "language/Namen.h"
#include "simulator/Sitzung.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Bank_Zeilen = 32; // rows of the four register banks

bool Anzeige_Ruht() { return Debug_Vollgas && Debug_Laeuft; }

std::string& RAM_Name(int Zeile)
{
    return Sim_Ansichten.RAM_Namen[static_cast<std::size_t>(Zeile)];
}

void Name_Anhaengen(int Zeile, std::string_view Name)
{
    std::string& Alle = RAM_Name(Zeile);
    if (!Alle.empty())
        Alle += ", ";
    Alle += Name;
}

// A name of the program's own that stands for a byte of the lower RAM.
bool Benennt_RAM(const Namen_Eintrag& n)
{
    return n.Art != Name_Bit && n.Herkunft != Herkunft_Prozessorfile && n.Laenge != 0 &&
           n.Wert >= 0 && n.Wert < 128;
}

void RAM_Namen_Setzen(int Bis_Zeile)
{
    for (int i = 0; i < Bis_Zeile; ++i)
        RAM_Name(i).clear();
    for (const Namen_Eintrag& n : Namen_Tabelle)
        if (Benennt_RAM(n) && n.Wert < Bis_Zeile)
            Name_Anhaengen(n.Wert, n.Name);
}

void SFR_Zeilen_Setzen()
{
    Sim_Ansichten.SFR_Zeilen.clear();
    for (const Namen_Eintrag& n : Namen_Tabelle)
        if (n.Art == Name_Byte && n.Herkunft == Herkunft_Prozessorfile)
            Sim_Ansichten.SFR_Zeilen.push_back({n.Wert, n.Name});
}

// The names R0 to R7 stand where the bank lies that PSW selects.
void Bank_Zeigen()
{
    const int Bank = 2 * Bit_Lesen(SFR::PSW + 4) + Bit_Lesen(SFR::PSW + 3);
    if (Bank == Sim_Bank)
        return;
    RAM_Namen_Setzen(Bank_Zeilen);
    for (int n = 0; n < 8; ++n)
        Name_Anhaengen(8 * Bank + n, "R" + std::to_string(n));
    Sim_Bank = static_cast<std::int16_t>(Bank);
    ++Sim_Ansichten.Aufbau;
}

std::uint8_t Als_Byte(std::int32_t Wert)
{
    return static_cast<std::uint8_t>(std::clamp(Wert, std::int32_t{0}, std::int32_t{255}));
}

// Hexadecimal digits of an address field; an empty or bad one is 0.
int Adresse_Lesen(Sicht Welche, std::string_view Text)
{
    const int Groesse = Welche == Sicht::EXRAM ? Sim_XRAM_Groesse
                        : Welche == Sicht::SFR ? Sim_RAM_Groesse
                                               : 256;
    const int Wert    = Text.empty() ? 0 : static_cast<int>(Hex_zu_Wert(Text));
    const int Adresse = Wert < 0 || Wert >= Groesse ? 0 : Wert;
    return Welche == Sicht::RAM ? Indirekt_Index(Adresse) : Adresse;
}

// An edit: acts from the next instruction on.
void Speichern(Sicht Welche, int Index, std::uint8_t Wert)
{
    const auto Platz = static_cast<std::size_t>(Index);
    if (Welche == Sicht::EXRAM) {
        Sim_XRAM[Platz] = Wert;
        return Sim_Zelle_Zeigen_EXRAM(Index);
    }
    Sim_RAM[Platz] = Wert;
    Welche == Sicht::RAM ? Sim_Zelle_Zeigen_RAM(Index) : Sim_Zelle_Zeigen_SFR(Index);
}

} // namespace

void Sim_Ansichten_Zuruecksetzen() { Sim_Ansichten = {}; }

void Sim_Aufbauen()
{
    RAM_Namen_Setzen(256);
    SFR_Zeilen_Setzen();
    Sim_Bank = -1;
    ++Sim_Ansichten.Aufbau;
    ++Sim_Ansichten.Stand;
    Sim_Alles_Zeigen();
}

void Sim_Alles_Zeigen()
{
    Sim_Ansichten.RAM  = Sim_RAM;
    Sim_Ansichten.SFR  = Sim_RAM;
    Sim_Ansichten.XRAM = Sim_XRAM;
    ++Sim_Ansichten.Stand;
    Bank_Zeigen();
}

void Aenderungen_Vergessen()
{
    Sim_Ansichten.RAM_Zuvor  = Sim_Ansichten.RAM;
    Sim_Ansichten.SFR_Zuvor  = Sim_Ansichten.SFR;
    Sim_Ansichten.XRAM_Zuvor = Sim_Ansichten.XRAM;
    ++Sim_Ansichten.Stand;
}

void Sim_Zelle_Zeigen_RAM(int Index)
{
    if (Anzeige_Ruht() || (Index >= 128 && Index < 256))
        return;
    Sim_Ansichten.RAM[static_cast<std::size_t>(Index)] = Sim_RAM[static_cast<std::size_t>(Index)];
    ++Sim_Ansichten.Stand;
}

void Sim_Zelle_Zeigen_SFR(int Index)
{
    if (Anzeige_Ruht())
        return;
    Sim_Ansichten.SFR[static_cast<std::size_t>(Index)] = Sim_RAM[static_cast<std::size_t>(Index)];
    ++Sim_Ansichten.Stand;
    if (Index == SFR::PSW)
        Bank_Zeigen();
}

void Sim_Zelle_Zeigen_EXRAM(int Index)
{
    if (Anzeige_Ruht())
        return;
    Sim_Ansichten.XRAM[static_cast<std::size_t>(Index)] = Sim_XRAM[static_cast<std::size_t>(Index)];
    ++Sim_Ansichten.Stand;
}

void Hex_Uebernehmen(Sicht Welche, std::string_view Adresse, std::string_view Hex)
{
    Speichern(Welche,
              Adresse_Lesen(Welche, Adresse),
              Als_Byte(Hex.empty() ? 0 : static_cast<std::int32_t>(Hex_zu_Wert(Hex))));
}

void Bits_Uebernehmen(Sicht Welche, std::string_view Adresse, std::string_view Bits)
{
    std::int32_t Wert = 0;
    for (const char c : Bits)
        if (c == '0' || c == '1')
            Wert = std::min(2 * Wert + (c - '0'), 256); // more would be 255 as well
    Speichern(Welche, Adresse_Lesen(Welche, Adresse), Als_Byte(Wert));
}

void Bit_Umschalten(Sicht Welche, std::string_view Adresse, int Spalte)
{
    if (Welche == Sicht::EXRAM || Spalte < 3 || Spalte > 10)
        return;
    const int          Index = Adresse_Lesen(Welche, Adresse);
    const auto         Platz = static_cast<std::size_t>(Index);
    const unsigned     Maske = 1U << (10 - Spalte);
    const std::uint8_t Gezeigt =
        Welche == Sicht::RAM ? Sim_Ansichten.RAM[Platz] : Sim_Ansichten.SFR[Platz];
    const unsigned Neu = (Gezeigt & Maske) != 0 ? Sim_RAM[Platz] & ~Maske : Sim_RAM[Platz] | Maske;
    Speichern(Welche, Index, static_cast<std::uint8_t>(Neu));
}

} // namespace varnholt
