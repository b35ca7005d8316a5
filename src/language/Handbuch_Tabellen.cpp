// How the handbook shows instructions and statements.
#include "language/Handbuch_Tabellen.h"

#include "language/Basic_Formen.h"
#include "language/Befehls_Beschreibung.h"
#include "language/Nachschlage_Texte.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>
#include <vector>

namespace varnholt {
namespace {

// A text of the handbook; its pages are in one language each, whatever the interface speaks.
struct Wort_T {
    std::string_view D;
    std::string_view E;
};

std::string_view Wort(const Wort_T& w, bool Deutsch) { return Deutsch ? w.D : w.E; }

enum class Gruppe { Transport, Rechnen, Logik, Bits, Spruenge };

struct Gruppen_Zeile {
    Gruppe           Art;
    std::string_view Anker;
    Wort_T           Titel;
};
// clang-format off
constexpr auto Gruppen = std::to_array<Gruppen_Zeile>({
    {Gruppe::Transport, "mov",   {"Daten bewegen", "Moving data"}},
    {Gruppe::Rechnen,   "add",   {"Rechnen", "Arithmetic"}},
    {Gruppe::Logik,     "logic", {"Logik und Schieben", "Logic and rotating"}},
    {Gruppe::Bits,      "bits",  {"Einzelne Bits", "Single bits"}},
    {Gruppe::Spruenge,  "jumps", {"Sprünge und Unterprogramme", "Jumps and subroutines"}},
});
constexpr auto Befehls_Koepfe = std::to_array<Wort_T>({
    {"Befehl", "Instruction"}, {"Code", "Code"}, {"Bytes", "Bytes"}, {"Zyklen", "Cycles"},
    {"Flags", "Flags"}, {"Was er tut", "What it does"}, {"Beispiel", "Example"},
});
constexpr auto Anweisungs_Koepfe = std::to_array<Wort_T>({
    {"Anweisung", "Statement"}, {"Bytes", "Bytes"}, {"Länge", "Length"}, {"Zyklen", "Cycles"},
});
constexpr auto Zuweisungs_Koepfe = std::to_array<Wort_T>({
    {"Zuweisung", "Assignment"}, {"Befehl", "Instruction"}, {"Bytes", "Bytes"}, {"Zyklen", "Cycles"},
});
// clang-format on

// What stands in the code for an operand, in the order in which a form names them.
struct Operand_Zeile {
    std::string_view Name;
    std::string_view Bytes;
};
constexpr auto Operanden_Namen = std::to_array<Operand_Zeile>({{"data16", "hi lo"},
                                                               {"addr16", "hi lo"},
                                                               {"addr11", "lo"},
                                                               {"data", "data"},
                                                               {"direct", "direct"},
                                                               {"bit", "bit"},
                                                               {"rel", "rel"}});

bool Beginnt(std::string_view Text, std::initializer_list<std::string_view> Anfaenge)
{
    return std::any_of(
        Anfaenge.begin(), Anfaenge.end(), [&](auto a) { return Text.starts_with(a); });
}

Gruppe Gruppe_Von(const Befehls_Muster& m)
{
    const std::string_view t = m.Text;
    if (Beginnt(t, {"J", "AJMP", "LJMP", "SJMP", "ACALL", "LCALL", "RET", "CJNE", "DJNZ", "NOP"}))
        return Gruppe::Spruenge;
    if (m.Art == Art_Bit || t.ends_with(" C"))
        return Gruppe::Bits;
    if (Beginnt(t, {"MOV", "PUSH", "POP", "XCH"}))
        return Gruppe::Transport;
    if (Beginnt(t, {"ADD", "SUBB", "INC", "DEC", "MUL", "DIV", "DA "}))
        return Gruppe::Rechnen;
    return Gruppe::Logik;
}

constexpr bool Ist_Befehl(const Befehls_Muster& m) { return m.Text != "Nicht definiert"; }

std::string Hex_Paar(int Wert)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    return {Ziffern[static_cast<std::size_t>(Wert / 16)],
            Ziffern[static_cast<std::size_t>(Wert % 16)]};
}

// The first opcode of a row and what is added to it.
std::string Opcode_Schreibweise(const Befehls_Muster& m)
{
    int Opcode = 0;
    for (const char c : m.Muster)
        Opcode = 2 * Opcode + (c == '1' ? 1 : 0);
    std::string Text = Hex_Paar(Opcode);
    if (m.Muster.find('r') != std::string_view::npos)
        Text += "+n";
    if (m.Muster.find('i') != std::string_view::npos)
        Text += "+i";
    if (m.Muster.find('p') != std::string_view::npos)
        Text += "+20h*p";
    return Text;
}

std::string Operanden_Bytes(std::string_view Schreibweise)
{
    std::string Text;
    while (!Schreibweise.empty()) {
        const auto* o =
            std::find_if(Operanden_Namen.begin(), Operanden_Namen.end(), [&](const auto& n) {
                return Schreibweise.starts_with(n.Name);
            });
        if (o != Operanden_Namen.end())
            Text.append(" ").append(o->Bytes);
        Schreibweise.remove_prefix(o != Operanden_Namen.end() ? o->Name.size() : 1);
    }
    return Text;
}

int Laenge_Von(const Befehls_Muster& m)
{
    const auto Bytes = std::count(m.Text.begin(), m.Text.end(), '!');
    return 1 + static_cast<int>(Bytes);
}

const Befehls_Muster* Muster_Suchen(std::string_view Form)
{
    const auto* m = std::find_if(std::begin(Befehls_Muster_Tabelle),
                                 std::end(Befehls_Muster_Tabelle),
                                 [&](const Befehls_Muster& i) { return i.Text == Form; });
    return m == std::end(Befehls_Muster_Tabelle) ? nullptr : m;
}

// --- HTML ---

std::string Maskiert(std::string_view Text)
{
    std::string Ziel;
    for (const char c : Text)
        if (c == '<')
            Ziel += "&lt;";
        else if (c == '>')
            Ziel += "&gt;";
        else if (c == '&')
            Ziel += "&amp;";
        else
            Ziel += c;
    return Ziel;
}

std::string Code(std::string_view Text) { return "<code>" + Maskiert(Text) + "</code>"; }

std::string Zahl_Zelle(const std::string& Text) { return "<td class=\"zahl\">" + Text + "</td>"; }
std::string Zelle(const std::string& Text) { return "<td>" + Text + "</td>"; }

template <std::size_t N>
std::string Tabellen_Anfang(const std::array<Wort_T, N>& Koepfe, bool Deutsch)
{
    std::string Text = "<div class=\"breit\"><table>\n<thead><tr>";
    for (const Wort_T& k : Koepfe)
        Text.append("<th>").append(Wort(k, Deutsch)).append("</th>");
    return Text.append("</tr></thead>\n<tbody>\n");
}

constexpr std::string_view Tabellen_Ende = "</tbody></table></div>\n";

std::string Zeile(const std::string& Zellen) { return "<tr>" + Zellen + "</tr>\n"; }

std::string Zyklen_Text(const Zyklen_Spanne& z)
{
    const std::string Kurz = std::to_string(z.Kurz);
    return z.Kurz == z.Lang ? Kurz : Kurz + "-" + std::to_string(z.Lang);
}

std::string Befehls_Zeile(std::size_t i, bool Deutsch)
{
    const Befehls_Muster&         m = Befehls_Muster_Tabelle[i];
    const Befehls_Beschreibung_T& b = Befehls_Beschreibungen()[i];
    const std::string             Flaggen(b.Flaggen);
    return Zeile(Zelle(Code(Befehls_Schreibweise(m))) +
                 Zelle(Code(Code_Schreibweise(m.Text, Deutsch))) +
                 Zahl_Zelle(std::to_string(Laenge_Von(m))) + Zahl_Zelle(std::to_string(m.Zyklen)) +
                 Zelle(Flaggen.empty() ? "-" : Flaggen) + Zelle(Maskiert(Deutsch ? b.D : b.E)) +
                 Zelle(Code(b.Beispiel)));
}

std::string Gruppen_Text(const Gruppen_Zeile& g, bool Deutsch)
{
    std::string Text = "<h2 id=\"";
    Text.append(g.Anker).append("\">").append(Wort(g.Titel, Deutsch)).append("</h2>\n");
    Text += Tabellen_Anfang(Befehls_Koepfe, Deutsch);
    for (std::size_t i = 0; i < std::size(Befehls_Muster_Tabelle); ++i)
        if (Ist_Befehl(Befehls_Muster_Tabelle[i]) && Gruppe_Von(Befehls_Muster_Tabelle[i]) == g.Art)
            Text += Befehls_Zeile(i, Deutsch);
    return Text.append(Tabellen_Ende);
}

std::string Anweisungs_Zeile(const Anweisung_T& a, std::string_view Reihe)
{
    return Zeile(Zelle(Code(a.Schreibweise)) + Zelle(Code(Reihe)) +
                 Zahl_Zelle(std::to_string(a.Bytes)) + Zahl_Zelle(Zyklen_Text(a.Zyklen)));
}

// --- the places of a page ---

struct Abschnitt_T {
    std::string_view Name;
    std::string      Text;
};

std::vector<Abschnitt_T> Alle_Abschnitte(bool Deutsch)
{
    return {{"instructions", Befehls_Tabellen(Deutsch)},
            {"if", IF_Tabelle(Deutsch, false)},
            {"if-line", IF_Tabelle(Deutsch, true)},
            {"for", FOR_Tabelle(Deutsch)},
            {"assign", Zuweisungs_Tabelle(Deutsch)}};
}

void Abschnitt_Einsetzen(std::string& Seite, const Abschnitt_T& a)
{
    const std::string Anfang = "<!-- " + std::string(a.Name) + " -->\n";
    const std::string Ende   = "<!-- /" + std::string(a.Name) + " -->";
    const std::size_t Von    = Seite.find(Anfang);
    const std::size_t Bis    = Seite.find(Ende, Von == std::string::npos ? 0 : Von);
    if (Von == std::string::npos || Bis == std::string::npos)
        return;
    const std::size_t Inhalt = Von + Anfang.size();
    Seite.replace(Inhalt, Bis - Inhalt, a.Text);
}

} // namespace

std::string Code_Schreibweise(std::string_view Form, bool Deutsch)
{
    const Befehls_Muster* m = Muster_Suchen(Form);
    if (m == nullptr)
        return {};
    if (Form == "MOV !,!") // the one instruction whose code turns its operands round
        return Deutsch ? "85 Quelle Ziel" : "85 source destination";
    return Opcode_Schreibweise(*m) + Operanden_Bytes(Befehls_Schreibweise(*m));
}

std::string Befehls_Tabellen(bool Deutsch)
{
    std::string Text;
    for (const Gruppen_Zeile& g : Gruppen)
        Text += Gruppen_Text(g, Deutsch);
    return Text;
}

// Block and one-line form stand in turns in the list of all statements.
std::string IF_Tabelle(bool Deutsch, bool Einzeilig)
{
    const auto  Alle = Alle_Anweisungen();
    std::string Text = Tabellen_Anfang(Anweisungs_Koepfe, Deutsch);
    for (std::size_t i = 0; i < IF_Formen.size(); ++i)
        Text += Anweisungs_Zeile(Alle[2 * i + (Einzeilig ? 1 : 0)],
                                 Einzeilig ? IF_Formen[i].Einzeilig : IF_Formen[i].Block);
    return Text.append(Tabellen_Ende);
}

// The loops follow the tests, ELSE and END IF there.
std::string FOR_Tabelle(bool Deutsch)
{
    const auto  Alle   = Alle_Anweisungen();
    std::size_t Stelle = 2 * IF_Formen.size() + 2;
    std::string Text   = Tabellen_Anfang(Anweisungs_Koepfe, Deutsch);
    for (const FOR_Form& f : FOR_Formen)
        Text += Anweisungs_Zeile(Alle[Stelle++], f.Reihe);
    for (const std::string_view Reihe : NEXT_Formen)
        Text += Anweisungs_Zeile(Alle[Stelle++], Reihe);
    return Text.append(Tabellen_Ende);
}

std::string Zuweisungs_Tabelle(bool Deutsch)
{
    std::string Text = Tabellen_Anfang(Zuweisungs_Koepfe, Deutsch);
    for (const Zuweisungs_Zeile& z : Alle_Zuweisungen()) {
        const Befehls_Muster& m = *Muster_Suchen(z.Befehl);
        Text += Zeile(Zelle(Code(z.Schreibweise)) + Zelle(Code(Befehls_Schreibweise(m))) +
                      Zelle(Code(Code_Schreibweise(m.Text, Deutsch))) +
                      Zahl_Zelle(std::to_string(m.Zyklen)));
    }
    return Text.append(Tabellen_Ende);
}

std::string Tabellen_Einsetzen(std::string_view Seite, bool Deutsch)
{
    std::string Neu(Seite);
    for (const Abschnitt_T& a : Alle_Abschnitte(Deutsch))
        Abschnitt_Einsetzen(Neu, a);
    return Neu;
}

} // namespace varnholt
