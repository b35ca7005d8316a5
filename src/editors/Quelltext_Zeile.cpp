// Case of the keywords and blanks round the operators of one line.
#include "editors/Quelltext_Zeile.h"

#include "core/codepage.h"
#include "editors/Einfaerben.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varnholt {
namespace {

// clang-format off
constexpr auto Schluesselworte = std::to_array<std::string_view>({
    "ACALL", "ADD",  "ADDC", "AJMP", "ANL",  "CJNE", "CLR",  "CPL",  "DA",   "DEC",
    "DIV",   "DJNZ", "INC",  "JB",   "JBC",  "JMP",  "JC",   "JNB",  "JNC",  "JNZ",
    "JZ",    "LCALL","LJMP", "MOV",  "MOVC", "MOVX", "MUL",  "NOP",  "ORL",  "POP",
    "PUSH",  "RET",  "RETI", "RL",   "RLC",  "RR",   "RRC",  "SETB", "SJMP", "SUBB",
    "SWAP",  "XCH",  "XCHD", "XRL",  "DPTR", "BIT",  "DATA", "EQU",  "DB",   "DW",
    "END",   "IF",   "THEN", "ELSE", "FOR",  "NEXT", "NOT",  "INCLUDE", "STOP",
});
// Capitals under either setting.
constexpr auto Register = std::to_array<std::string_view>({
    "A", "R0", "R1", "R2", "R3", "R4", "R5", "R6", "R7", "C",
});
// clang-format on
static_assert(Schluesselworte.size() == 59 && Register.size() == 10);

constexpr std::size_t Wort_Hoechstens = std::string_view("INCLUDE").size();

template <class Tabelle> bool Steht_In(const Tabelle& Worte, std::string_view Gesucht)
{
    return std::find(Worte.begin(), Worte.end(), Gesucht) != Worte.end();
}

constexpr char Klein(char Grossbuchstabe) { return static_cast<char>(Grossbuchstabe | 0x20); }

bool Ist_Operator(char Zeichen) { return Zeichen == '=' || Zeichen == '<' || Zeichen == '>'; }

// Builds the line with blanks round its operators, from its first character to its last.
class Absetzer {
public:
    explicit Absetzer(std::string_view Zeile) : Alt(Zeile) {}

    Abgesetzt_T Absetzen()
    {
        const Zeilen_Teile_T Teile = Zeile_Teilen(Alt);
        Code_Durchlaufen(Alt, [&](std::size_t i) {
            if (i >= Teile.Marke && i >= Fertig && Ist_Operator(Alt[i]))
                Operator_Setzen(i);
        });
        Bis_Hier(Alt.size());
        return std::move(Neu);
    }

private:
    void Bis_Hier(std::size_t i)
    {
        Neu.Text.append(Alt.substr(Fertig, i - Fertig));
        Fertig = i;
    }

    void Leerzeichen(std::size_t Vor)
    {
        Neu.Text.push_back(' ');
        Neu.Leerzeichen_Vor.push_back(Vor);
    }

    void Operator_Setzen(std::size_t i)
    {
        Bis_Hier(i);
        if (!Neu.Text.empty() && !Ist_Leerraum(Neu.Text.back()))
            Leerzeichen(i);
        const std::string_view Zwei = Alt.substr(i, 2);
        const bool             Paar = Zwei == "<>" || Zwei == "><";
        Neu.Text.append(Paar ? std::string_view("<>") : Alt.substr(i, 1));
        Fertig = i + (Paar ? 2 : 1);
        if (Fertig < Alt.size() && !Ist_Leerraum(Alt[Fertig]))
            Leerzeichen(Fertig);
    }

    std::string_view Alt;
    Abgesetzt_T      Neu{};
    std::size_t      Fertig = 0; // characters of Alt that are in Neu
};

void Ersetzung_Anfuegen(std::string_view Alt, Ersetzung_T Neue, std::vector<Ersetzung_T>& Liste)
{
    if (!Liste.empty()) {
        Ersetzung_T&           Vorige = Liste.back();
        const std::size_t      Ab     = Vorige.Anfang + Vorige.Laenge;
        const std::string_view Luecke = Alt.substr(Ab, Neue.Anfang - Ab);
        if (Luecke.find('?') == std::string_view::npos) {
            Vorige.Laenge += Luecke.size() + Neue.Laenge;
            Vorige.Neu.append(Luecke).append(Neue.Neu);
            return;
        }
    }
    Liste.push_back(std::move(Neue));
}

} // namespace

std::string Schluesselwort(std::string_view Wort, int Fall)
{
    if (Wort.size() > Wort_Hoechstens || (Fall != Fall_Gross && Fall != Fall_Erster))
        return {};
    std::string Ersatz = Gross(Wort);
    if (Steht_In(Register, Ersatz))
        return Ersatz;
    if (!Steht_In(Schluesselworte, Ersatz))
        return {};
    if (Fall == Fall_Erster)
        std::transform(Ersatz.begin() + 1, Ersatz.end(), Ersatz.begin() + 1, Klein);
    return Ersatz;
}

// A word ends at a blank, a tab, "," or "=", at the comment or the line's end. Behind "@" a new one
// begins, and what stood before it is none.
std::string Worte_Angleichen(std::string_view Zeile, int Fall)
{
    std::string          Neu(Zeile);
    const Zeilen_Teile_T Teile    = Zeile_Teilen(Zeile);
    std::size_t          Anfang   = 0;
    const auto           Wort_Bis = [&](std::size_t Ende) {
        const std::string Ersatz = Schluesselwort(Zeile.substr(Anfang, Ende - Anfang), Fall);
        if (Anfang >= Teile.Marke)
            Neu.replace(Anfang, Ersatz.size(), Ersatz);
    };
    Code_Durchlaufen(Zeile, [&](std::size_t i) {
        const char Zeichen = Zeile[i];
        if (Ist_Leerraum(Zeichen) || Zeichen == ',' || Zeichen == '=')
            Wort_Bis(i);
        else if (Zeichen != '@')
            return;
        Anfang = i + 1;
    });
    Wort_Bis(Teile.Kommentar);
    return Neu;
}

Abgesetzt_T Operatoren_Absetzen(std::string_view Zeile) { return Absetzer(Zeile).Absetzen(); }

std::vector<Ersetzung_T> Ersetzungen_Bilden(std::string_view Alt, const Abgesetzt_T& Neu)
{
    std::vector<Ersetzung_T> Liste;
    auto                     Leer = Neu.Leerzeichen_Vor.begin();
    for (std::size_t i = 0, n = 0; i <= Alt.size(); ++i, ++n) {
        std::string Stueck;
        if (Leer != Neu.Leerzeichen_Vor.end() && *Leer == i) {
            Stueck = ' ';
            ++Leer;
            ++n;
        }
        const bool Anders = i < Alt.size() && Alt[i] != Neu.Text[n];
        if (Anders)
            Stueck.push_back(Neu.Text[n]);
        if (!Stueck.empty())
            Ersetzung_Anfuegen(Alt, {i, Anders ? 1u : 0u, std::move(Stueck)}, Liste);
    }
    return Liste;
}

} // namespace varnholt
