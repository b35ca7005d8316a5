// The texts of the two reference windows, made from the tables.
#include "language/Nachschlage_Texte.h"

#include "language/Basic_Formen.h"
#include "language/Befehls_Beschreibung.h"
#include "language/HexDez.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace varnholt {
namespace {

constexpr std::string_view Zeilen_Schluss = "\r\n";
constexpr int              Offen          = -1; // a byte that points out of the row

// The bytes of a row; register forms with register 0, constants 0.
std::vector<int> Bytes_Der_Reihe(std::string_view Reihe)
{
    std::vector<int> Bytes;
    while (!Reihe.empty()) {
        const std::size_t      Ende   = std::min(Reihe.find(' '), Reihe.size());
        const std::string_view Stueck = Reihe.substr(0, Ende);
        const bool             Ziel   = Stueck == "r" || Stueck == "hi" || Stueck == "lo";
        const bool             Zahl   = Stueck.size() == 2 || Stueck.ends_with("+n");
        Bytes.push_back(Ziel ? Offen : Zahl ? Hex_zu_Wert(Stueck.substr(0, 2)) : 0);
        Reihe.remove_prefix(std::min(Ende + 1, Reihe.size()));
    }
    return Bytes;
}

// Whether a jump is taken always, never or as it comes.
enum class Sprung { Keiner, Immer, Bedingt };

Sprung Sprung_Von(std::string_view Schreibweise)
{
    if (Schreibweise.starts_with("LJMP") || Schreibweise.starts_with("SJMP"))
        return Sprung::Immer;
    return Schreibweise.ends_with("rel") ? Sprung::Bedingt : Sprung::Keiner;
}

// Ways through a row from one of its bytes on. All jumps within a row lead forward.
Zyklen_Spanne Wege_Ab(const std::vector<int>& Bytes, std::size_t Ort)
{
    if (Ort >= Bytes.size())
        return {};
    const auto        Opcode    = static_cast<std::uint8_t>(Bytes[Ort]);
    const int         Eigene    = Befehl_Zyklen(Opcode);
    const std::size_t Naechster = Ort + static_cast<std::size_t>(Befehl_Laenge(Opcode));
    const Sprung      Art       = Sprung_Von(Befehls_Schreibweise(Opcode));
    const int         Weite     = Naechster > Bytes.size() ? Offen : Bytes[Naechster - 1];
    const std::size_t Ziel =
        Weite == Offen ? Bytes.size() : Naechster + static_cast<std::size_t>(Weite);
    Zyklen_Spanne Rest = Wege_Ab(Bytes, Art == Sprung::Immer ? Ziel : Naechster);
    if (Art == Sprung::Bedingt) {
        const Zyklen_Spanne Andere = Wege_Ab(Bytes, Ziel);
        Rest = {std::min(Rest.Kurz, Andere.Kurz), std::max(Rest.Lang, Andere.Lang)};
    }
    return {Eigene + Rest.Kurz, Eigene + Rest.Lang};
}

Anweisung_T Anweisung(std::string Schreibweise, std::string_view Reihe)
{
    return {std::move(Schreibweise), Reihe_Bytes(Reihe), Reihe_Zyklen(Reihe)};
}

// clang-format off
constexpr auto Zuweisungs_Zeilen = std::to_array<Zuweisungs_Zeile>({
    {"A=#v",  "MOV A,#!"},
    {"A=d",   "MOV A,!"},
    {"d=A",   "MOV !,A"},
    {"d=e",   "MOV !,!"},
    {"Rn=#v", "MOV Rr,#!"},
    {"Rn=d",  "MOV Rr,!"},
    {"Rn=A",  "MOV Rr,A"},
    {"A=Rn",  "MOV A,Rr"},
});
constexpr auto FOR_Schreibweisen = std::to_array<std::string_view>({
    "FOR A=#v TO #w", "FOR Rn=#v TO #w", "FOR d=#v TO #w",
});
constexpr auto NEXT_Schreibweisen = std::to_array<std::string_view>({
    "NEXT (A)", "NEXT (Rn)", "NEXT (d)",
});
// clang-format on
static_assert(FOR_Schreibweisen.size() == FOR_Formen.size());
static_assert(NEXT_Schreibweisen.size() == NEXT_Formen.size());

Anweisung_T Als_Anweisung(const Zuweisungs_Zeile& z)
{
    const auto* m = std::find_if(std::begin(Befehls_Muster_Tabelle),
                                 std::end(Befehls_Muster_Tabelle),
                                 [&](const Befehls_Muster& i) { return i.Text == z.Befehl; });
    const auto  n = std::count(m->Text.begin(), m->Text.end(), '!');
    return {std::string(z.Schreibweise), 1 + static_cast<int>(n), {m->Zyklen, m->Zyklen}};
}

std::string Zyklen_Text(const Zyklen_Spanne& z)
{
    const std::string Kurz = std::to_string(z.Kurz);
    return z.Kurz == z.Lang ? Kurz : Kurz + "-" + std::to_string(z.Lang);
}

void Zeile_Anfuegen(std::string& Ziel, std::string_view Text)
{
    Ziel.append(Text).append(Zeilen_Schluss);
}

std::string Opcode_Text(int Opcode)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    return {Ziffern[static_cast<std::size_t>(Opcode / 16)],
            Ziffern[static_cast<std::size_t>(Opcode % 16)]};
}

} // namespace

int Reihe_Bytes(std::string_view Reihe) { return static_cast<int>(Bytes_Der_Reihe(Reihe).size()); }

Zyklen_Spanne Reihe_Zyklen(std::string_view Reihe) { return Wege_Ab(Bytes_Der_Reihe(Reihe), 0); }

std::string IF_Schreibweise(std::string_view Form)
{
    const bool Nicht = Form.starts_with("IFNOT");
    Form.remove_prefix(Nicht ? 5 : 2);
    Form.remove_suffix(std::string_view("THEN").size());
    if (Form.starts_with("BIT"))
        return std::string(Nicht ? "IF NOT BIT " : "IF BIT ") + (Form == "BITC" ? "C" : "b") +
               " THEN";
    const std::size_t      Von    = Form.find_first_of("<=>");
    const std::size_t      Bis    = Form.find_last_of("<=>") + 1;
    const std::string_view Links  = Form.substr(0, Von);
    const std::string_view Rechts = Form.substr(Bis);
    const std::string_view Rechte = Rechts == "#" ? "#v" : Links.empty() ? "e" : "d";
    return std::string("IF ")
        .append(Links.empty() ? "d" : Links)
        .append(Form.substr(Von, Bis - Von))
        .append(Rechte)
        .append(" THEN");
}

std::span<const Zuweisungs_Zeile> Alle_Zuweisungen() { return Zuweisungs_Zeilen; }

std::vector<Anweisung_T> Alle_Anweisungen()
{
    std::vector<Anweisung_T> Liste;
    for (const IF_Form& f : IF_Formen) {
        const std::string Text = IF_Schreibweise(f.Form);
        Liste.push_back(Anweisung(Text, f.Block));
        Liste.push_back(Anweisung(Text + " x", f.Einzeilig));
    }
    Liste.push_back(Anweisung("ELSE", ELSE_Reihe));
    Liste.push_back(Anweisung("END IF", {}));
    for (std::size_t i = 0; i < FOR_Formen.size(); ++i)
        Liste.push_back(Anweisung(std::string(FOR_Schreibweisen[i]), FOR_Formen[i].Reihe));
    for (std::size_t i = 0; i < NEXT_Formen.size(); ++i)
        Liste.push_back(Anweisung(std::string(NEXT_Schreibweisen[i]), NEXT_Formen[i]));
    for (const Zuweisungs_Zeile& z : Zuweisungs_Zeilen)
        Liste.push_back(Als_Anweisung(z));
    return Liste;
}

std::string Befehle_Dok()
{
    std::string Text;
    for (int i = 0; i < 256; ++i) {
        const auto Opcode = static_cast<std::uint8_t>(i);
        Zeile_Anfuegen(Text, Opcode_Text(i));
        Zeile_Anfuegen(Text, Befehls_Schreibweise(Opcode));
        Zeile_Anfuegen(Text, std::to_string(Befehl_Laenge(Opcode)));
        Zeile_Anfuegen(Text, std::to_string(Befehl_Zyklen(Opcode)));
    }
    return Text;
}

std::string Basic_Dok()
{
    std::string Text;
    for (const Anweisung_T& a : Alle_Anweisungen()) {
        Zeile_Anfuegen(Text, a.Schreibweise);
        Zeile_Anfuegen(Text, std::to_string(a.Bytes));
        Zeile_Anfuegen(Text, Zyklen_Text(a.Zyklen));
    }
    return Text;
}

} // namespace varnholt
