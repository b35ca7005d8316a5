// Looking for a term in a text, and putting another text in the places of its hits.
#include "editors/Textsuche.h"

#include "core/codepage.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace varnholt {
namespace {

// --- characters, as the mirror of the text has them, and as they really are ---

char Grossform(char z) { return Gross_Zeichen(z); }

char16_t Grossform(char16_t z)
{
    const char c = Zeichen_Nach_1252(z);
    return c == '?' ? z : Zeichen_Aus_1252(Gross_Zeichen(c));
}

// Letters, digits and "_": of 80h to BFh few are letters, from C0h on all but two.
constexpr std::array<bool, 256> Wort_Tabelle = [] {
    std::array<bool, 256> t{};
    for (std::size_t i = 0; i < 256; ++i)
        t[i] = (i >= '0' && i <= '9') || (i >= 'A' && i <= 'Z') || (i >= 'a' && i <= 'z') ||
               (i >= 0xC0 && i != 0xD7 && i != 0xF7);
    for (const std::size_t i :
         {0x5F, 0x83, 0x8A, 0x8C, 0x8E, 0x9A, 0x9C, 0x9E, 0x9F, 0xAA, 0xB5, 0xBA})
        t[i] = true;
    return t;
}();

bool Wortzeichen(char z) { return Wort_Tabelle[static_cast<std::uint8_t>(z)]; }
bool Wortzeichen(char16_t z) { return Wortzeichen(Zeichen_Nach_1252(z)); }

std::size_t Folge_Laenge(char Erstes)
{
    const auto b = static_cast<std::uint8_t>(Erstes);
    return b < 0xC0 ? 1 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : 4;
}

// A character of four bytes is two units of UTF-16, and counts as two.
std::int64_t Zaehlt(char Erstes) { return Folge_Laenge(Erstes) == 4 ? 2 : 1; }

std::u16string Nach_UTF16(std::string_view Text)
{
    std::u16string Ziel;
    Ziel.reserve(Text.size());
    for (std::size_t i = 0; i < Text.size();) {
        const std::size_t n = std::min(Folge_Laenge(Text[i]), Text.size() - i);
        char32_t z = static_cast<std::uint8_t>(Text[i]) & (n == 1 ? 0xFFu : 0xFFu >> (n + 1));
        for (std::size_t k = 1; k < n; ++k)
            z = (z << 6) | (static_cast<std::uint8_t>(Text[i + k]) & 0x3Fu);
        if (z > 0xFFFF) {
            Ziel += static_cast<char16_t>(0xD800 + ((z - 0x10000) >> 10));
            z = 0xDC00 + (z & 0x3FF);
        }
        Ziel += static_cast<char16_t>(z);
        i += n;
    }
    return Ziel;
}

// A term made ready to be looked for, character by character of the text and without ever going
// back in it: how much of the term still holds after a mismatch is known beforehand.
template <class Z> class Muster {
public:
    Muster(std::basic_string<Z> Neuer, const Such_Auftrag_T& Wie)
        : Begriff(std::move(Neuer)), Rest(Begriff.size()), Auftrag(Wie)
    {
        std::transform(
            Begriff.begin(), Begriff.end(), Begriff.begin(), [this](Z z) { return Gefaltet(z); });
        for (std::size_t i = 1, k = 0; i < Begriff.size(); ++i)
            Rest[i] = k = Danach(k, Begriff[i]);
    }

    // Calls Je_Treffer with the place of each hit from Von on, as long as it answers true.
    template <class Besuch>
    void Durchlaufen(std::basic_string_view<Z> Text, std::size_t Von, Besuch&& Je_Treffer) const
    {
        if (Begriff.empty())
            return;
        for (std::size_t i = Von, k = 0; i < Text.size(); ++i) {
            k = Danach(k, Gefaltet(Text[i]));
            if (k != Begriff.size() || !Grenzen_Passen(Text, i + 1 - k))
                continue;
            if (!Je_Treffer(static_cast<std::int64_t>(i + 1 - k)))
                return;
            k = 0;
        }
    }

private:
    Z Gefaltet(Z z) const { return Auftrag.Gross_Kleinschreibung ? z : Grossform(z); }

    // Characters of the term that stand at the end of what was read, z being the next one.
    std::size_t Danach(std::size_t k, Z z) const
    {
        while (k > 0 && (k == Begriff.size() || Begriff[k] != z))
            k = Rest[k - 1];
        return Begriff[k] == z ? k + 1 : k;
    }

    bool Grenzen_Passen(std::basic_string_view<Z> Text, std::size_t Anfang) const
    {
        const std::size_t Ende = Anfang + Begriff.size();
        const auto        Wort = [&](std::size_t i) { return Wortzeichen(Text[i]); };
        return !Auftrag.Ganzes_Wort || !((Anfang > 0 && Wort(Anfang) && Wort(Anfang - 1)) ||
                                         (Ende < Text.size() && Wort(Ende) && Wort(Ende - 1)));
    }

    std::basic_string<Z>     Begriff;
    std::vector<std::size_t> Rest;
    const Such_Auftrag_T&    Auftrag;
};

// The text as Windows-1252 shows it is there for nothing. Only a term with a "?" has to be looked
// for in the real one: the "?" may stand for a character that the code page lacks, in the term or
// in the text.
template <class Besuch>
void Treffer_Durchlaufen(const Textfeld&       Feld,
                         const Such_Auftrag_T& Auftrag,
                         std::int64_t          Von,
                         Besuch&&              Je_Treffer)
{
    std::string       Begriff = Aus_UTF8(Auftrag.Begriff);
    const std::size_t Anfang  = static_cast<std::size_t>(std::max<std::int64_t>(Von, 0));
    if (Begriff.find('?') == std::string::npos) {
        std::string Puffer;
        return Muster<char>(std::move(Begriff), Auftrag)
            .Durchlaufen(Feld.Text_Ansicht(Puffer), Anfang, Je_Treffer);
    }
    const std::u16string Text = Nach_UTF16(Feld.Text_UTF8());
    Muster<char16_t>(Nach_UTF16(Auftrag.Begriff), Auftrag).Durchlaufen(Text, Anfang, Je_Treffer);
}

} // namespace

bool Gleicher_Text(std::string_view a, std::string_view b)
{
    const std::u16string x = Nach_UTF16(a);
    const std::u16string y = Nach_UTF16(b);
    return std::equal(x.begin(), x.end(), y.begin(), y.end(), [](char16_t p, char16_t q) {
        return Grossform(p) == Grossform(q);
    });
}

std::int64_t Zeichen_Anzahl(std::string_view Text_UTF8)
{
    std::int64_t n = 0;
    for (std::size_t i = 0; i < Text_UTF8.size(); i += Folge_Laenge(Text_UTF8[i]))
        n += Zaehlt(Text_UTF8[i]);
    return n;
}

std::int64_t Erster_Treffer(const Textfeld& Feld, const Such_Auftrag_T& Auftrag, std::int64_t Von)
{
    std::int64_t Erster = -1;
    Treffer_Durchlaufen(Feld, Auftrag, Von, [&](std::int64_t Stelle) {
        Erster = Stelle;
        return false;
    });
    return Erster;
}

std::vector<std::int64_t> Alle_Treffer(const Textfeld& Feld, const Such_Auftrag_T& Auftrag)
{
    std::vector<std::int64_t> Alle;
    Treffer_Durchlaufen(Feld, Auftrag, 0, [&](std::int64_t Stelle) {
        Alle.push_back(Stelle);
        return true;
    });
    return Alle;
}

std::string Mit_Ersetzungen(std::string_view              Text,
                            std::span<const std::int64_t> Treffer,
                            std::int64_t                  Laenge,
                            std::string_view              Neu)
{
    std::string  Ziel;
    std::size_t  i      = 0; // in bytes
    std::int64_t Stelle = 0; // the same in characters
    const auto   Weiter = [&](std::int64_t Bis) {
        const std::size_t Von = i;
        for (; i < Text.size() && Stelle < Bis; i += Folge_Laenge(Text[i]))
            Stelle += Zaehlt(Text[i]);
        return Text.substr(Von, i - Von);
    };
    Ziel.reserve(Text.size() + Treffer.size() * Neu.size());
    for (const std::int64_t t : Treffer) {
        Ziel += Weiter(t);
        Ziel += Neu;
        Weiter(t + Laenge);
    }
    return Ziel += Text.substr(std::min(i, Text.size()));
}

std::vector<Treffer_Zeilen_T> Treffer_Zeilen(std::string_view              Alter_Text,
                                             std::span<const std::int64_t> Treffer,
                                             std::int64_t                  Laenge,
                                             std::int64_t                  Laenge_Neu)
{
    std::vector<Treffer_Zeilen_T> Alle;
    std::int64_t                  Verschiebung = 0;
    const auto                    Ende = [&](std::int64_t Von) { // of the line that holds Von
        const std::size_t CR = Alter_Text.find("\r\n", static_cast<std::size_t>(Von));
        return static_cast<std::int64_t>(std::min(CR, Alter_Text.size()));
    };
    for (const std::int64_t t : Treffer) {
        if (Alle.empty() || t > Alle.back().Alt.Anfang + Alle.back().Alt.Laenge) {
            const std::size_t  LF = t == 0 ? std::string_view::npos
                                           : Alter_Text.rfind('\n', static_cast<std::size_t>(t - 1));
            const std::int64_t Anfang =
                LF == std::string_view::npos ? 0 : static_cast<std::int64_t>(LF + 1);
            Alle.push_back({{Anfang, 0}, {Anfang + Verschiebung, 0}});
        }
        Verschiebung += Laenge_Neu - Laenge;
        auto& [Alt, Neu] = Alle.back();
        if (t + Laenge > Alt.Anfang + Alt.Laenge)
            Alt.Laenge = Ende(t + Laenge) - Alt.Anfang;
        Neu.Laenge = Alt.Anfang + Alt.Laenge + Verschiebung - Neu.Anfang;
    }
    return Alle;
}

} // namespace varnholt
