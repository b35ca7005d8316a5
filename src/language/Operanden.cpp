// The operand scan. One walk over the line: a delimiter opens a token, the next one closes it; a
// token that is worth something is cut out of the line, all else stays and is a name or a register.
#include "language/Operanden.h"

#include "core/settings.h"
#include "language/Assembler_Zustand.h"
#include "language/Luecken_Zeile.h"
#include "language/Zahlen.h"

#include <array>
#include <cmath>
#include <limits>

namespace varnholt {
namespace {

struct Sprung_Befehl {
    std::string_view Anfang;
    int              Sprungoperand; // value count at which the jump target stands
};

// clang-format off
constexpr Sprung_Befehl Sprung_Befehle[] = {
    {"DJNZ R", 0}, // ahead of DJNZ, which is its beginning
    {"JB ", 1},   {"JBC ", 1},  {"JNB ", 1},   {"CJNE ", 1},  {"DJNZ ", 1},
    {"JC ", 0},   {"JNC ", 0},  {"JNZ ", 0},   {"JZ ", 0},    {"JMP ", 0},   {"LJMP ", 0},
    {"LCALL ", 0}, {"AJMP ", 0}, {"ACALL ", 0}, {"CALL ", 0}, {"SJMP ", 0},
};
// clang-format on

int Sprungoperand_Finden(std::string_view Zeile)
{
    constexpr std::string_view Erste = "JCDLAS"; // what the table's entries begin with
    if (Zeile.empty() || Erste.find(Zeile.front()) == std::string_view::npos)
        return Kein_Sprungoperand;
    for (const Sprung_Befehl& b : Sprung_Befehle)
        if (Zeile.front() == b.Anfang.front() && Zeile.starts_with(b.Anfang))
            return b.Sprungoperand;
    return Kein_Sprungoperand;
}

// What a character does to the walk, as bits.
enum Zeichen_Art : std::uint8_t {
    Oeffnet   = 1,
    Schliesst = 2,
    Trennt    = 4,
    Rechnet   = 8,
    Zitiert   = 16
};

constexpr std::array<std::uint8_t, 256> Zeichen_Arten = [] {
    std::array<std::uint8_t, 256> t{};
    const auto                    Setzen = [&t](std::string_view Menge, std::uint8_t Art) {
        for (const char c : Menge) {
            std::uint8_t& Feld = t[static_cast<std::uint8_t>(c)];
            Feld               = static_cast<std::uint8_t>(Feld | Art);
        }
    };
    Setzen(", #+-*/^:(=<>", Oeffnet);
    Setzen(", #+-*/^)=<>", Schliesst);
    Setzen(",#:(", Trennt); // the next value stands for itself
    Setzen("+-*/^", Rechnet);
    Setzen("\"", Zitiert);
    return t;
}();

constexpr bool Ist_Gewoehnlich(char c) { return Zeichen_Arten[static_cast<std::uint8_t>(c)] == 0; }

constexpr bool Ist(char c, Zeichen_Art Art)
{
    return (Zeichen_Arten[static_cast<std::uint8_t>(c)] & Art) != 0;
}

std::int32_t In_Grenzen(double Wert)
{
    if (!(Wert >= std::numeric_limits<std::int32_t>::min() &&
          Wert <= std::numeric_limits<std::int32_t>::max()))
        Meldung_Zu_Hoch();
    return static_cast<std::int32_t>(Wert);
}

// Left to right, without precedence; quotient and power go to the nearest integer, halves to the
// even one. The sums and products of two 32-bit numbers are exact as far as they are in range.
std::int32_t Verknuepfen(char Operator, std::int32_t Links, std::int32_t Rechts)
{
    const double a = Links;
    const double b = Rechts;
    switch (Operator) {
    case '+':
        return In_Grenzen(a + b);
    case '-':
        return In_Grenzen(a - b);
    case '*':
        return In_Grenzen(a * b);
    case '/':
        return Rechts == 0 ? (Meldung_Zu_Hoch(), 0) : In_Grenzen(std::nearbyint(a / b));
    default:
        return In_Grenzen(std::nearbyint(std::pow(a, b)));
    }
}

// One walk. Positions count from 1; token start 0 means that no token is open.
class Abtastung {
public:
    Abtastung()
        : Ende(static_cast<int>(Lauf.Zeile_Gross.size()) + 2),
          Start(Lauf.Zeile_Gross.find('=') != std::string::npos ? 1 : 0),
          Sprungoperand(Sprungoperand_Finden(Lauf.Zeile_Gross)),
          Ist_IF(Lauf.Zeile_Gross.starts_with("IF ")),
          Hat_Text(Lauf.Zeile_Gross.find('"') != std::string::npos)
    {
    }

    void Gehen()
    {
        Alle_Stellen_Ansehen();
        Zeile.Schliessen();
        if (Hat_Text)
            Rein.Schliessen();
    }

private:
    void Alle_Stellen_Ansehen()
    {
        for (i = 1; i <= Ende; ++i) {
            const char c = Zeichen(i);
            if (Ist_Gewoehnlich(c) && i <= Laenge_Zeile())
                continue;
            if (c == '"')
                Zitat = !Zitat;
            if (Zitat)
                continue;
            if (Start == 0)
                Token_Oeffnen(c);
            else if (Ist(c, Schliesst) || i == Laenge_Zeile() + 1)
                if (!Token_Schliessen())
                    return;
        }
    }

    int              Laenge_Zeile() const { return static_cast<int>(Zeile.Laenge()); }
    char             Zeichen(int n) const { return Zeile.Zeichen(static_cast<std::size_t>(n - 1)); }
    std::string_view Token() const
    {
        return Zeile.Teil(static_cast<std::size_t>(Start - 1), static_cast<std::size_t>(Laenge));
    }

    void Ersetzen(int Stelle, int Anzahl, std::string_view Neu)
    {
        const auto Ab = static_cast<std::size_t>(Stelle - 1);
        const auto n  = static_cast<std::size_t>(Anzahl);
        Zeile.Ersetzen(Ab, n, Neu);
        if (Hat_Text)
            Rein.Ersetzen(Ab, n, Neu);
    }

    void Token_Oeffnen(char c)
    {
        if (!Ist(c, Oeffnet))
            return;
        Start = i + 1;
        if (Ist(c, Trennt))
            Verknuepft = false;
        if (Wert_Anzahl >= 1 && Ist(c, Rechnet)) {
            Operator = c;
            Zeile.Zeichen_Setzen(static_cast<std::size_t>(i - 1), ' ');
            if (Hat_Text)
                Rein.Zeichen_Setzen(static_cast<std::size_t>(i - 1), ' ');
            Verknuepft = true;
        }
    }

    // Ends the token before position i. False: the whole scan ends here.
    bool Token_Schliessen()
    {
        Laenge = i - Start;
        if (Laenge == 1 && (Zeichen(Start) == '!' || Zeichen(Start) == '%')) {
            Ersetzen(Start, 1, "");
            --i;
        } else if (Laenge > 0) {
            if (Behaelt_Rest())
                return false;
            if (Token_Lesen()) {
                i     = Start - 1; // goes on where the token stood
                Start = 0;
                return true;
            }
        }
        Start = 0;
        --i; // the delimiter is looked at again
        return true;
    }

    // The tail of a one-line IF, or a label in target position: the rest of the line stays.
    bool Behaelt_Rest()
    {
        if (Ist_IF && Hinter_Then())
            return true;
        return Wert_Anzahl == Sprungoperand && Lauf.Marken.contains(Token());
    }

    // Whether THEN stands ahead of the token. What lies ahead of a token is final, so that each
    // character is looked at once.
    bool Hinter_Then()
    {
        constexpr std::string_view Then = "THEN";
        for (; !Then_Gesehen && Then_Stelle + 4 < Start; ++Then_Stelle)
            Then_Gesehen = Zeichen(Then_Stelle) == Then[0] && Zeichen(Then_Stelle + 1) == Then[1] &&
                           Zeichen(Then_Stelle + 2) == Then[2] &&
                           Zeichen(Then_Stelle + 3) == Then[3];
        return Then_Gesehen;
    }

    // True when the token had a value and is cut from the line.
    bool Token_Lesen()
    {
        if (Laenge == 1 && (Zeichen(Start) == 'A' || Zeichen(Start) == 'C'))
            return false;
        if (Zeichen(Start) == '(') {
            ++Start;
            --Laenge;
        }
        const bool Low  = Klammer_Abnehmen("LOW(");
        const bool High = !Low && Klammer_Abnehmen("HIGH(");
        if (Laenge > 0 && Zeichen(Start) == '"') {
            Text_Nehmen();
            return true;
        }
        std::int32_t Wert = Wert_Lesen();
        if (Wert < 0)
            return false;
        if (Low)
            Wert = Wert % 256;
        if (High)
            Wert = Wert / 256;
        Wert_Ablegen(Wert);
        Ersetzen(Start, Laenge, "");
        return true;
    }

    // LOW( and HIGH( go when the bracket closes right behind the token.
    bool Klammer_Abnehmen(std::string_view Wort)
    {
        if (!Token().starts_with(Wort) || Zeichen(Start + Laenge) != ')')
            return false;
        Ersetzen(Start + Laenge, 1, "");
        Ersetzen(Start, static_cast<int>(Wort.size()), "");
        Laenge -= static_cast<int>(Wort.size());
        return true;
    }

    // Each character of a quoted text is one value, in the case in which it was typed.
    void Text_Nehmen()
    {
        int Schluss = Start + 1;
        for (; Zeichen(Schluss) != '"'; ++Schluss) {
            if (Wert_Anzahl >= Werte_Hoechstens)
                Fehler("Zuviele ASCII-Zeichen in einer Zeile !",
                       "Too much ASCII-signs in one line !");
            const char c           = Rein.Zeichen(static_cast<std::size_t>(Schluss - 1));
            Wert_Nr(++Wert_Anzahl) = static_cast<std::uint8_t>(c);
        }
        Ersetzen(Start, Schluss - Start + 1, "");
    }

    // A name's or a number's value, -1 without one. Leaves in Laenge what is to be cut.
    std::int32_t Wert_Lesen()
    {
        if (const std::int32_t Wert = Name_Suchen(Token(), 0, Laenge); Wert != -1)
            return Wert;
        if (Token() == "$") {
            Ersetzen(Start, 1, "()");
            Laenge = 0;
            return Adress_Zaehler;
        }
        const Zahl_Ergebnis Zahl = Zahl_Lesen(Token(), Zahlendeutung);
        if (Zahl.Art == Zahl_Ergebnis::Zu_Hoch)
            Meldung_Zu_Hoch();
        if (Zahl.Art == Zahl_Ergebnis::Binaer_Falsch)
            Fehler("Binäre Zahlen dürfen nur Nullen und Einsen enthalten!",
                   "Binary numbers must consist only of 0 and 1!");
        return Zahl.Wert;
    }

    // A value that joins the last one counts as one of its own for a moment.
    void Wert_Ablegen(std::int32_t Wert)
    {
        if (Wert_Anzahl >= Werte_Hoechstens)
            Fehler("Zuviele Zahlenangaben in einer Zeile !", "Too much values in one line !");
        if (Verknuepft)
            Wert_Nr(Wert_Anzahl) = Verknuepfen(Operator, Wert_Nr(Wert_Anzahl), Wert);
        else
            Wert_Nr(++Wert_Anzahl) = Wert;
    }

    Luecken_Zeile Zeile{Lauf.Zeile_Gross};
    Luecken_Zeile Rein{Lauf.Zeile_Rein};

    int  i = 1;
    int  Ende;
    int  Start;
    int  Laenge = 0;
    int  Sprungoperand;
    bool Ist_IF;
    bool Hat_Text;
    int  Then_Stelle  = 1;
    bool Then_Gesehen = false;
    bool Zitat        = false;
    bool Verknuepft   = false; // the next value joins the last one by Operator
    char Operator     = '+';
};

} // namespace

void Operanden_Lesen()
{
    Wert_Anzahl = 0;
    Name_Eins = Name_Zwei = -1;
    Bit_Eins = Bit_Zwei = false;
    if (Lauf.Zeile_Gross.find('"') != std::string::npos)
        Lauf.Zeile_Rein = Diese_Zeile().Text.Ansicht();
    Abtastung().Gehen();
    std::erase(Lauf.Zeile_Gross, ' ');
    Befehls_Laenge = 2;
}

std::int32_t Relativ_Berechnen(std::int32_t Adresse, std::int32_t Ziel, int Laenge)
{
    const auto Weite = Relativ_Wert(Adresse, Ziel, Laenge);
    if (!Weite)
        Fehler("Sprungziel liegt außerhalb des -128/+127 Byte Rahmen!",
               "Jump-target is out of -128/+127 Byte frame!");
    return *Weite;
}

} // namespace varnholt
