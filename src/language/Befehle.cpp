// Look-up of the two kinds of instruction text, in hash tables made from the opcode table.
#include "language/Befehle.h"

namespace varnholt {
namespace {

struct Form_T {
    Kurz_Text    Text{};
    std::uint8_t Opcode = 0;
};

constexpr Kurz_Text Als_Text(std::string_view t)
{
    Kurz_Text k;
    for (const char c : t)
        k.Anhaengen(c);
    return k;
}

constexpr bool Ist_Fest(int Opcode)
{
    return Befehle[static_cast<std::size_t>(Opcode)].Laenge == 1 && Opcode != 0xA5;
}

constexpr bool Hat_Vergleichsform(int Opcode)
{
    return Befehle[static_cast<std::size_t>(Opcode)].Laenge > 1 && (Opcode & 0x0F) != 0x01;
}

constexpr Kurz_Text Vergleichsform(std::string_view Vorlage)
{
    Kurz_Text k;
    for (const char c : Vorlage)
        if (c != '!' && c != ' ')
            k.Anhaengen(c);
    return k;
}

// Open addressing: a text's place is its hash or the next free one behind it.
constexpr std::size_t Plaetze = 512;

constexpr std::size_t Platz_Von(std::string_view t)
{
    std::uint32_t h = 2166136261u; // FNV-1a
    for (const char c : t)
        h = (h ^ static_cast<std::uint8_t>(c)) * 16777619u;
    return (h ^ (h >> 15)) % Plaetze;
}

using Formen_Tabelle = std::array<Form_T, Plaetze>;

constexpr void Eintragen(Formen_Tabelle& t, const Kurz_Text& Text, int Opcode)
{
    std::size_t p = Platz_Von(Text.Text());
    while (t[p].Text.Laenge != 0)
        p = (p + 1) % Plaetze;
    t[p] = {Text, static_cast<std::uint8_t>(Opcode)};
}

constexpr Formen_Tabelle Feste_Formen = [] {
    Formen_Tabelle t{};
    for (int i = 0; i < 256; ++i)
        if (Ist_Fest(i))
            Eintragen(t, Befehle[static_cast<std::size_t>(i)].Text, i);
    Eintragen(t, Als_Text("JMP @A,DPTR"), 0x73); // an old spelling that programs still use
    return t;
}();

constexpr Formen_Tabelle Vergleichs_Formen = [] {
    Formen_Tabelle t{};
    for (int i = 0; i < 256; ++i)
        if (Hat_Vergleichsform(i))
            Eintragen(t, Vergleichsform(Befehl_Text(static_cast<std::uint8_t>(i))), i);
    return t;
}();

constexpr int Suchen(const Formen_Tabelle& Formen, std::string_view Text)
{
    if (Text.empty() || Text.size() > Formen[0].Text.Zeichen.size())
        return -1;
    for (std::size_t p = Platz_Von(Text); Formen[p].Text.Laenge != 0; p = (p + 1) % Plaetze)
        if (Formen[p].Text.Text() == Text)
            return Formen[p].Opcode;
    return -1;
}

// Every text leads to its own opcode, so no two are the same.
constexpr bool Eindeutig(const Formen_Tabelle& Formen)
{
    for (const Form_T& f : Formen)
        if (f.Text.Laenge != 0 && Suchen(Formen, f.Text.Text()) != f.Opcode)
            return false;
    return true;
}
static_assert(Eindeutig(Feste_Formen) && Eindeutig(Vergleichs_Formen));

} // namespace

int Fixe_Form_Suchen(std::string_view Zeile_Gross) { return Suchen(Feste_Formen, Zeile_Gross); }

int Vergleichs_Form_Suchen(std::string_view Form) { return Suchen(Vergleichs_Formen, Form); }

} // namespace varnholt
