// The normal form of a source line, in one walk. Comment and tabs go by the quotes of the whole
// line; blanks beside each other and beside commas by those from the second character on, so that a
// quote that is the first character is not seen by them.
#include "language/Zeile_Normieren.h"

#include <array>
#include <cstdint>

namespace varnholt {
namespace {

constexpr std::array<bool, 256> Besonders = [] {
    std::array<bool, 256> t{};
    for (const char c : std::string_view("\"';\t ,"))
        t[static_cast<std::uint8_t>(c)] = true;
    return t;
}();

bool Ist_Besonders(char c) { return Besonders[static_cast<std::uint8_t>(c)]; }

// The walk: writes the characters that stay.
class Normierung {
public:
    explicit Normierung(char* Ziel) : Anfang(Ziel), Ende(Ziel) {}

    // False at the first character of a comment.
    bool Nehmen(char c)
    {
        if (c == '"')
            Zitat_Nehmen();
        else if (!Zitat && (c == ';' || c == '\''))
            return false;
        else if (!Zitat && c == '\t')
            c = ' ';
        if (c == ' ' && !Innen && Fuellt_Nur())
            return true;
        if (c == ',' && !Innen && Ende > Anfang && Ende[-1] == ' ')
            --Ende;
        *Ende++ = c;
        return true;
    }
    void Uebernehmen(char c) { *Ende++ = c; }

    std::size_t Laenge()
    {
        while (Ende > Anfang && Ende[-1] == ' ')
            --Ende;
        return static_cast<std::size_t>(Ende - Anfang);
    }

private:
    void Zitat_Nehmen()
    {
        Zitat = !Zitat;
        if (Ende > Anfang)
            Innen = !Innen;
    }
    // A blank at the beginning, behind another one or behind a comma that isn't the first
    // character.
    bool Fuellt_Nur() const
    {
        return Ende == Anfang || Ende[-1] == ' ' || (Ende[-1] == ',' && Ende - Anfang > 1);
    }

    char* Anfang;
    char* Ende;
    bool  Zitat = false; // inside quotes of the whole line
    bool  Innen = false; // inside quotes that begin with the second character or later
};

} // namespace

Quell_Stueck Zeile_Normieren(std::string_view Zeile, Text_Ablage& Ablage)
{
    Normierung n(Ablage.Platz_Fuer(Zeile.size()));
    for (const char c : Zeile) {
        if (!Ist_Besonders(c))
            n.Uebernehmen(c);
        else if (!n.Nehmen(c))
            break;
    }
    return Ablage.Behalten(n.Laenge());
}

} // namespace varnholt
