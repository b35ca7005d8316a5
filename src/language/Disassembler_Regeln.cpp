// The disassembler's rules: three walks over the instructions and the joining of their lines.
#include "language/Disassembler_Regeln.h"

#include "core/shared_state.h"
#include "language/Befehle.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace varnholt {
namespace {

constexpr std::uint8_t Opcode_LJMP   = 0x02;
constexpr std::uint8_t Opcode_LCALL  = 0x12;
constexpr std::uint8_t Opcode_MOV_DD = 0x85; // MOV direct,direct

// What FFh disassembles to: the erased byte at the end of a full device is no instruction.
constexpr std::string_view Geloeschtes_Byte = Befehl_Text(0xFF);

constexpr std::size_t Adressraum = 65536; // what LJMP and LCALL reach

// One disassembly.
struct Zerlegung_T {
    std::span<std::uint8_t>   Speicher;
    std::int32_t              Ende;
    const Prozent_Melder&     Melder;
    std::vector<std::int32_t> Marken = std::vector<std::int32_t>(Adressraum); // number or 0
    std::vector<std::string>  Zeilen{};
    int                       Prozent = 1; // the last one told

    std::uint8_t Byte(std::int32_t Adresse) const
    {
        const auto i = static_cast<std::size_t>(Adresse);
        return i < Speicher.size() ? Speicher[i] : std::uint8_t{0xFF};
    }
    std::uint16_t Wort(std::int32_t Adresse) const
    {
        return static_cast<std::uint16_t>(256 * Byte(Adresse) + Byte(Adresse + 1));
    }
};

constexpr bool Hat_Sprungziel(std::uint8_t Opcode)
{
    return Opcode == Opcode_LJMP || Opcode == Opcode_LCALL;
}

bool Prozent_Melden(Zerlegung_T& z, int Prozent)
{
    if (Prozent <= z.Prozent)
        return true;
    z.Prozent = Prozent;
    return !z.Melder || z.Melder(Prozent);
}

// Visits the address of each instruction, telling Ab + Spanne * Adresse / Teiler per cent on the
// way. False when the work was ended.
template <class Besuch>
bool Befehle_Durchlaufen(
    Zerlegung_T& z, int Ab, int Spanne, std::int32_t Teiler, Besuch&& Je_Befehl)
{
    for (std::int32_t i = 0; i < z.Ende; i += Befehl_Laenge(z.Byte(i))) {
        if (!Prozent_Melden(z, Ab + Spanne * i / Teiler))
            return false;
        Je_Befehl(i);
    }
    return true;
}

// Every jump target gets a number, in the order of the jumps.
bool Ziele_Nummerieren(Zerlegung_T& z)
{
    std::int32_t Letzte = 0;
    return Befehle_Durchlaufen(z, 0, 10, z.Ende, [&](std::int32_t i) {
        if (!Hat_Sprungziel(z.Byte(i)))
            return;
        std::int32_t& Marke = z.Marken[z.Wort(i + 1)];
        if (Marke == 0)
            Marke = ++Letzte;
    });
}

// Targets where an instruction begins are numbered anew, in the order of their addresses. A target
// inside an instruction has no line for its label, and keeps the number that it has.
bool Marken_Ordnen(Zerlegung_T& z)
{
    std::int32_t Letzte = 0;
    return Befehle_Durchlaufen(z, 15, 20, z.Ende, [&](std::int32_t i) {
        const auto Stelle = static_cast<std::size_t>(i);
        if (Stelle < Adressraum && z.Marken[Stelle] != 0)
            z.Marken[Stelle] = ++Letzte;
    });
}

// A number of that many digits, and the h that marks it as hexadecimal.
void Hex_Anfuegen(std::string& Zeile, int Wert, int Stellen)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    for (int Schub = 4 * (Stellen - 1); Schub >= 0; Schub -= 4)
        Zeile += Ziffern[static_cast<std::size_t>((Wert >> Schub) & 15)];
    Zeile += 'h';
}

std::string Marke_Text(std::int32_t Nummer) { return "Label_" + std::to_string(Nummer); }

// The mnemonic and its target; a target behind the code stands as a number in brackets.
std::string Sprung_Zeile(const Zerlegung_T& z, std::int32_t i)
{
    const std::uint16_t Ziel  = z.Wort(i + 1);
    std::string         Zeile = z.Byte(i) == Opcode_LJMP ? "LJMP " : "LCALL ";
    if (Ziel <= z.Ende)
        return Zeile + Marke_Text(z.Marken[Ziel]);
    Zeile += '(';
    Hex_Anfuegen(Zeile, Ziel, 4);
    return Zeile + ')';
}

// The template with its operand bytes put in.
std::string Befehl_Zeile(const Zerlegung_T& z, std::int32_t i)
{
    const std::string_view Vorlage = Befehl_Text(z.Byte(i));
    std::string            Zeile;
    if (Vorlage.ends_with("!!")) {
        Zeile = Vorlage.substr(0, Vorlage.size() - 2);
        Hex_Anfuegen(Zeile, z.Wort(i + 1), 4);
        return Zeile;
    }
    for (const char c : Vorlage) {
        if (c == '!')
            Hex_Anfuegen(Zeile, z.Byte(++i), 2);
        else
            Zeile += c;
    }
    return Zeile;
}

void Operanden_Tauschen(Zerlegung_T& z, std::int32_t i)
{
    const auto Stelle = static_cast<std::size_t>(i);
    if (Stelle + 2 < z.Speicher.size())
        std::swap(z.Speicher[Stelle + 1], z.Speicher[Stelle + 2]);
}

void Marke_Setzen(Zerlegung_T& z, std::int32_t i)
{
    const auto Stelle = static_cast<std::size_t>(i);
    if (Stelle < Adressraum && z.Marken[Stelle] != 0)
        z.Zeilen.push_back(Marke_Text(z.Marken[Stelle]) + ":");
}

bool Zeilen_Schreiben(Zerlegung_T& z, bool Ziel_Zuerst)
{
    const bool Ganz = Befehle_Durchlaufen(z, 35, 25, z.Ende + 1, [&](std::int32_t i) {
        Marke_Setzen(z, i);
        if (z.Byte(i) == Opcode_MOV_DD && Ziel_Zuerst)
            Operanden_Tauschen(z, i);
        z.Zeilen.push_back(Hat_Sprungziel(z.Byte(i)) ? Sprung_Zeile(z, i) : Befehl_Zeile(z, i));
    });
    if (Ganz && !z.Zeilen.empty() && z.Zeilen.back() == Geloeschtes_Byte)
        z.Zeilen.pop_back();
    return Ganz;
}

std::optional<std::string> Zeilen_Verbinden(Zerlegung_T& z)
{
    const auto  Anzahl = static_cast<std::int32_t>(z.Zeilen.size());
    std::string Text;
    for (std::int32_t i = 0; i < Anzahl; ++i) {
        if (!Prozent_Melden(z, 60 + 40 * i / (Anzahl + 1)))
            return std::nullopt;
        Text.append(z.Zeilen[static_cast<std::size_t>(i)]).append(CRLF);
    }
    return Text;
}

} // namespace

std::optional<std::int32_t> Belegtes_Ende(std::span<const std::uint8_t> Speicher,
                                          std::int32_t                  Groesse)
{
    auto i = std::min(static_cast<std::int64_t>(Speicher.size()), std::int64_t{Groesse});
    while (i > 0 && Speicher[static_cast<std::size_t>(i - 1)] == 0xFF)
        --i;
    if (i <= 0)
        return std::nullopt;
    return static_cast<std::int32_t>(i == Groesse ? i - 1 : i);
}

std::optional<std::string> Bild_Zerlegen(std::span<std::uint8_t> Speicher,
                                         std::int32_t            Ende,
                                         bool                    Ziel_Zuerst,
                                         const Prozent_Melder&   Melder)
{
    Zerlegung_T z{.Speicher = Speicher, .Ende = Ende, .Melder = Melder};
    if (!Ziele_Nummerieren(z) || !Marken_Ordnen(z) || !Zeilen_Schreiben(z, Ziel_Zuerst))
        return std::nullopt;
    return Zeilen_Verbinden(z);
}

} // namespace varnholt
