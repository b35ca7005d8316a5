// Line matching: common beginning and end, then the lines that occur once in both texts as anchors,
// their neighbourhoods, and at last whatever is left over by text alone. Time grows as n log n.
#include "files/Zeilenabgleich.h"

#include <algorithm>
#include <unordered_map>

namespace varnholt {
namespace {

struct Paar_T {
    std::size_t Alt, Neu;
};

// Half-open ranges of both texts.
struct Bereich_T {
    std::size_t Alt_Anfang, Alt_Ende, Neu_Anfang, Neu_Ende;
};

struct Vorkommen_T {
    std::size_t Alt_Zahl = 0, Neu_Zahl = 0, Alt = 0, Neu = 0;
};

class Abgleich {
public:
    Abgleich(const std::vector<std::string_view>& Alter, const std::vector<std::string_view>& Neuer)
        : Alt(Alter), Neu(Neuer), Ergebnis(Neuer.size(), Keine_Zeile), Vergeben(Alter.size(), false)
    {
    }

    std::vector<std::size_t> Ausfuehren()
    {
        const Bereich_T Mitte = Raender_Zuordnen({0, Alt.size(), 0, Neu.size()});
        Luecken_Zuordnen(Mitte, Laengste_Kette(Anker(Mitte)));
        Rest_Zuordnen(Mitte);
        return std::move(Ergebnis);
    }

private:
    void Zuordnen(std::size_t a, std::size_t n)
    {
        Ergebnis[n] = a;
        Vergeben[a] = true;
    }

    // Pairs equal lines from both ends of the range inward; the result is what is left between
    // them.
    Bereich_T Raender_Zuordnen(Bereich_T b)
    {
        const auto Offen = [&b] { return b.Alt_Anfang < b.Alt_Ende && b.Neu_Anfang < b.Neu_Ende; };
        while (Offen() && Alt[b.Alt_Anfang] == Neu[b.Neu_Anfang])
            Zuordnen(b.Alt_Anfang++, b.Neu_Anfang++);
        while (Offen() && Alt[b.Alt_Ende - 1] == Neu[b.Neu_Ende - 1])
            Zuordnen(--b.Alt_Ende, --b.Neu_Ende);
        return b;
    }

    // The lines that stand exactly once in either range, in the order of the new text.
    std::vector<Paar_T> Anker(const Bereich_T& b) const
    {
        std::unordered_map<std::string_view, Vorkommen_T> Zahl;
        for (std::size_t a = b.Alt_Anfang; a < b.Alt_Ende; ++a) {
            Vorkommen_T& v = Zahl[Alt[a]];
            ++v.Alt_Zahl;
            v.Alt = a;
        }
        for (std::size_t n = b.Neu_Anfang; n < b.Neu_Ende; ++n)
            if (const auto p = Zahl.find(Neu[n]); p != Zahl.end()) {
                ++p->second.Neu_Zahl;
                p->second.Neu = n;
            }
        std::vector<Paar_T> Paare;
        for (const auto& [Text, v] : Zahl)
            if (v.Alt_Zahl == 1 && v.Neu_Zahl == 1)
                Paare.push_back({v.Alt, v.Neu});
        std::sort(Paare.begin(), Paare.end(), [](Paar_T x, Paar_T y) { return x.Neu < y.Neu; });
        return Paare;
    }

    // The longest selection of the pairs that rises in both texts: lines that were not moved.
    static std::vector<Paar_T> Laengste_Kette(const std::vector<Paar_T>& Paare)
    {
        std::vector<std::size_t> Enden; // by length - 1: index of the last pair
        std::vector<std::size_t> Vorgaenger(Paare.size(), Keine_Zeile);
        for (std::size_t i = 0; i < Paare.size(); ++i) {
            const auto p = std::lower_bound(
                Enden.begin(), Enden.end(), Paare[i].Alt, [&](std::size_t e, std::size_t Wert) {
                    return Paare[e].Alt < Wert;
                });
            if (p != Enden.begin())
                Vorgaenger[i] = *(p - 1);
            if (p == Enden.end())
                Enden.push_back(i);
            else
                *p = i;
        }
        std::vector<Paar_T> Kette;
        for (std::size_t i = Enden.empty() ? Keine_Zeile : Enden.back(); i != Keine_Zeile;
             i             = Vorgaenger[i])
            Kette.push_back(Paare[i]);
        std::reverse(Kette.begin(), Kette.end());
        return Kette;
    }

    void Luecken_Zuordnen(const Bereich_T& b, const std::vector<Paar_T>& Kette)
    {
        std::size_t a = b.Alt_Anfang;
        std::size_t n = b.Neu_Anfang;
        for (const Paar_T& k : Kette) {
            Raender_Zuordnen({a, k.Alt, n, k.Neu});
            Zuordnen(k.Alt, k.Neu);
            a = k.Alt + 1;
            n = k.Neu + 1;
        }
        Raender_Zuordnen({a, b.Alt_Ende, n, b.Neu_Ende});
    }

    // Moved lines: any old line of the same text that nobody took, the first one first.
    void Rest_Zuordnen(const Bereich_T& b)
    {
        std::unordered_map<std::string_view, std::vector<std::size_t>> Frei;
        for (std::size_t a = b.Alt_Ende; a-- > b.Alt_Anfang;)
            if (!Vergeben[a])
                Frei[Alt[a]].push_back(a);
        for (std::size_t n = b.Neu_Anfang; n < b.Neu_Ende; ++n) {
            if (Ergebnis[n] != Keine_Zeile)
                continue;
            const auto p = Frei.find(Neu[n]);
            if (p == Frei.end() || p->second.empty())
                continue;
            Zuordnen(p->second.back(), n);
            p->second.pop_back();
        }
    }

    const std::vector<std::string_view>& Alt;
    const std::vector<std::string_view>& Neu;
    std::vector<std::size_t>             Ergebnis;
    std::vector<bool>                    Vergeben;
};

} // namespace

std::vector<std::size_t> Zeilen_Zuordnen(const std::vector<std::string_view>& Alt,
                                         const std::vector<std::string_view>& Neu)
{
    return Abgleich(Alt, Neu).Ausfuehren();
}

} // namespace varnholt
