// The normal form of a source line. The steps that begin with the second character don't see a
// quote that is the first one.
#include "language/Zeile_Normieren.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace varnholt {
namespace {

constexpr std::array<bool, 256> Besonders = [] {
    std::array<bool, 256> t{};
    for (const char c : std::string_view("\"';\t"))
        t[static_cast<std::uint8_t>(c)] = true;
    return t;
}();

// First character from Ab on that the search for a comment has to look at.
std::size_t Naechstes_Besonderes(std::string_view Text, std::size_t Ab)
{
    while (Ab < Text.size() && !Besonders[static_cast<std::uint8_t>(Text[Ab])])
        ++Ab;
    return Ab;
}

// A comment begins at the first ; or ' outside quotes; tabs there are blanks.
void Kommentar_Abschneiden(Quell_Stueck& Text)
{
    bool Zitat = false;
    for (std::size_t i = Naechstes_Besonderes(Text, 0); i < Text.size();
         i             = Naechstes_Besonderes(Text, i + 1)) {
        if (Text[i] == '"') {
            Zitat = !Zitat;
        } else if (!Zitat && Text[i] == '\t') {
            Text[i] = ' ';
        } else if (!Zitat) {
            Text.Kuerzen_Auf(i);
            return;
        }
    }
}

void Rand_Abschneiden(Quell_Stueck& Text)
{
    std::size_t Ende = Text.size();
    while (Ende > 0 && Text[Ende - 1] == ' ')
        --Ende;
    Text.Kuerzen_Auf(Ende);
    std::size_t Anfang = 0;
    while (Anfang < Ende && Text[Anfang] == ' ')
        ++Anfang;
    Text.Vorn_Abnehmen(Anfang);
}

// Outside quotes one blank stays of a run of them, and none beside a comma; the line's first
// character is left alone.
void Leerzeichen_Wegnehmen(Quell_Stueck& Text)
{
    bool        Zitat = false;
    std::size_t Ziel  = 1;
    for (std::size_t i = 1; i < Text.size(); ++i) {
        const char c      = Text[i];
        const char Vorige = Text[Ziel - 1];
        if (c == '"')
            Zitat = !Zitat;
        if (!Zitat && c == ' ' && Ziel > 1 && (Vorige == ' ' || Vorige == ','))
            continue;
        if (!Zitat && c == ',' && Vorige == ' ')
            --Ziel;
        Text[Ziel++] = c;
    }
    Text.Kuerzen_Auf(Ziel);
}

// A blank with a blank or a comma beside it: only then there is something to take away.
bool Hat_Freie_Leerzeichen(std::string_view Text)
{
    for (std::size_t i = Text.find(' '); i != std::string::npos; i = Text.find(' ', i + 1))
        if ((i > 0 && Text[i - 1] == ',') ||
            (i + 1 < Text.size() && (Text[i + 1] == ' ' || Text[i + 1] == ',')))
            return true;
    return false;
}

} // namespace

void Zeile_Normieren(Quell_Stueck& Text)
{
    Kommentar_Abschneiden(Text);
    Rand_Abschneiden(Text);
    if (!Hat_Freie_Leerzeichen(Text))
        return;
    Leerzeichen_Wegnehmen(Text);
}

} // namespace varnholt
