// Writes RTF, and brings a text into the form that a file can hold.
#include "core/codepage.h"
#include "core/utf8.h"
#include "files/Rtf.h"
#include "files/Rtf_Tafeln.h"
#include "files/Rtf_Zeichenfolge.h"

#include <algorithm>
#include <vector>

namespace varnholt {
namespace {

constexpr std::string_view Zeilen_Schluss = "\r\n";

// Goes along a text (UTF-8) character by character; a malformed byte gives FFFDh.
template <class Tun> void Je_Zeichen(std::string_view Text, Tun&& Nimm)
{
    for (std::size_t i = 0; i < Text.size();) {
        const auto        b = static_cast<unsigned char>(Text[i]);
        const std::size_t n = b < 0x80 ? 1 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : 4;
        if (b >= 0x80 && !Ist_UTF8(Text.substr(i, n))) {
            Nimm(Kein_Zeichen_Da);
            ++i;
            continue;
        }
        char32_t c = n == 1 ? b : b & (0xFFu >> (n + 1));
        for (std::size_t k = 1; k < n; ++k)
            c = c << 6 | (static_cast<unsigned char>(Text[i + k]) & 0x3Fu);
        Nimm(c);
        i += n;
    }
}

constexpr bool Faellt_Weg(char32_t c) { return c == 0x7F || (c < 0x20 && c != '\t'); }
constexpr bool Trennt(char32_t c)
{
    return c == 0x2028 || c == 0x2029 || c == 0xFDD0 || c == 0xFDD1;
}

void Wort(std::string& Ziel, std::string_view Name) { Ziel.append("\\").append(Name); }
void Wort(std::string& Ziel, std::string_view Name, int Zahl)
{
    Ziel.append("\\").append(Name).append(std::to_string(Zahl));
}

void Hex_Byte(std::string& Ziel, char Byte)
{
    constexpr std::string_view Ziffern = "0123456789abcdef";
    const auto                 b       = static_cast<unsigned char>(Byte);
    Ziel.append("\\'").append({Ziffern[b / 16u], Ziffern[b % 16u]});
}

// A unit of UTF-16, as a signed number, with a question mark for programs that don't know it.
void Unicode(std::string& Ziel, char32_t Einheit)
{
    Wort(Ziel, "u", static_cast<std::int16_t>(Einheit));
    Ziel += '?';
}

void Zeichen_Schreiben(std::string& Ziel, char32_t c)
{
    const char Byte = Zeichen_Nach_1252(c);
    if (c == '\t')
        Ziel += "\\tab ";
    else if (c == '\\' || c == '{' || c == '}')
        (Ziel += '\\') += static_cast<char>(c);
    else if (c < 0x80)
        Ziel += static_cast<char>(c);
    else if (Byte != '?')
        Hex_Byte(Ziel, Byte);
    else if (c < 0x10000)
        Unicode(Ziel, c);
    else {
        Unicode(Ziel, 0xD800 + ((c - 0x10000) >> 10));
        Unicode(Ziel, 0xDC00 + ((c - 0x10000) & 0x3FF));
    }
}

class Schreiber {
public:
    std::string Schreiben(const Reich_Text_T& Text)
    {
        for (std::size_t i = 0; i < Text.Absaetze.size(); ++i) {
            if (i > 0)
                Zeile_Schliessen();
            Absatz(Text.Absaetze[i], i == 0);
        }
        return Kopf() + Rumpf + "}" + std::string(Zeilen_Schluss);
    }

private:
    void Absatz(const Absatz_T& a, bool Erster)
    {
        if (Erster || a.Bild != Absatz_Bild)
            Absatz_Bild_Schreiben(a.Bild);
        for (const Text_Stueck_T& s : a.Stuecke) {
            if (s.Bild != Bild)
                Bild_Schreiben(s.Bild);
            Leer_Davor();
            Je_Zeichen(s.Text, [this](char32_t c) { Zeichen_Schreiben(Rumpf, c); });
        }
    }
    void Zeile_Schliessen()
    {
        Rumpf.append("\\par").append(Zeilen_Schluss);
        Wort_Offen = false; // the line end has closed the word
    }
    // A blank ends a word that characters follow.
    void Leer_Davor()
    {
        if (Wort_Offen)
            Rumpf += ' ';
        Wort_Offen = false;
    }
    void Absatz_Bild_Schreiben(const Absatz_Bild_T& b)
    {
        constexpr std::string_view Bund_Worte[] = {"ql", "qc", "qr", "qj"};
        Absatz_Bild                             = b;
        Wort(Rumpf, "pard");
        if (b.Ausrichtung != Bund::Links)
            Wort(Rumpf, Bund_Worte[static_cast<std::size_t>(b.Ausrichtung)]);
        for (const auto& [Name, Wert] : {std::pair{"li", b.Einzug},
                                         std::pair{"fi", b.Erste_Zeile},
                                         std::pair{"sb", b.Davor},
                                         std::pair{"sa", b.Danach}})
            if (Wert != 0)
                Wort(Rumpf, Name, Wert);
        Wort_Offen = true;
    }
    void Bild_Schreiben(const Zeichen_Bild_T& b)
    {
        Bild = b;
        Wort(Rumpf, "plain");
        if (!b.Schrift.empty())
            Wort(Rumpf, "f", Schriften.Nummer(b.Schrift));
        if (b.Halbpunkte != 0)
            Wort(Rumpf, "fs", b.Halbpunkte);
        if (b.Farbe != 0)
            Wort(Rumpf, "cf", Farben.Nummer(b.Farbe));
        for (const auto& [Name, An] :
             {std::pair{"b", b.Fett}, std::pair{"i", b.Kursiv}, std::pair{"ul", b.Unterstrichen}})
            if (An)
                Wort(Rumpf, Name);
        Wort_Offen = true;
    }
    std::string Kopf() const
    {
        std::string Ziel =
            "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}";
        std::vector<const std::string*> Namen(Schriften.Alle().size());
        for (const auto& [Name, Nummer] : Schriften.Alle())
            Namen[static_cast<std::size_t>(Nummer) - 1] = &Name;
        for (std::size_t i = 0; i < Namen.size(); ++i)
            Schrift_Schreiben(Ziel, static_cast<int>(i) + 1, *Namen[i]);
        Ziel.append("}").append(Zeilen_Schluss);
        Farben_Schreiben(Ziel);
        return Ziel;
    }
    static void Schrift_Schreiben(std::string& Ziel, int Nummer, std::string_view Name)
    {
        Wort(Ziel += '{', "f", Nummer);
        Ziel += "\\fnil\\fcharset0 ";
        Je_Zeichen(Name, [&](char32_t c) {
            if (c == ';')
                Hex_Byte(Ziel, ';');
            else
                Zeichen_Schreiben(Ziel, c);
        });
        Ziel += ";}";
    }
    void Farben_Schreiben(std::string& Ziel) const
    {
        if (Farben.Alle().empty())
            return;
        std::vector<std::int32_t> Werte(Farben.Alle().size());
        for (const auto& [Wert, Nummer] : Farben.Alle())
            Werte[static_cast<std::size_t>(Nummer) - 1] = Wert;
        Ziel += "{\\colortbl ;";
        for (const std::int32_t w : Werte) {
            Wort(Ziel, "red", w & 0xFF);
            Wort(Ziel, "green", (w >> 8) & 0xFF);
            Wort(Ziel, "blue", (w >> 16) & 0xFF);
            Ziel += ';';
        }
        Ziel.append("}").append(Zeilen_Schluss);
    }

    std::string             Rumpf{};
    Zeichen_Bild_T          Bild{};
    Absatz_Bild_T           Absatz_Bild{};
    Rtf_Tafel<std::string>  Schriften{};
    Rtf_Tafel<std::int32_t> Farben{};
    bool                    Wort_Offen = false;
};

// Brings looks into what a file can hold, in the order in which they come.
class Normaler {
public:
    Zeichen_Bild_T Bild(const Zeichen_Bild_T& Alt)
    {
        Zeichen_Bild_T b = Alt;
        b.Schrift        = Rtf_Schriftname(Alt.Schrift);
        if (!b.Schrift.empty() && Schriften.Nummer(b.Schrift) == 0)
            b.Schrift.clear();
        b.Farbe &= 0xFFFFFF;
        if (b.Farbe != 0 && Farben.Nummer(b.Farbe) == 0)
            b.Farbe = 0;
        b.Halbpunkte = Rtf_Halbpunkte(Alt.Halbpunkte);
        return b;
    }

private:
    Rtf_Tafel<std::string>  Schriften{};
    Rtf_Tafel<std::int32_t> Farben{};
};

Absatz_Bild_T Absatz_Bild_Normal(const Absatz_Bild_T& b)
{
    return {b.Ausrichtung,
            Rtf_Twips(b.Einzug),
            Rtf_Twips(b.Erste_Zeile),
            Rtf_Twips(b.Davor),
            Rtf_Twips(b.Danach)};
}

} // namespace

std::string UTF8_Anfang(std::string_view Text, std::size_t Hoechstens)
{
    std::size_t n = std::min(Text.size(), Hoechstens);
    while (n > 0 && n < Text.size() && Ist_Folgebyte(Text[n]))
        --n;
    return std::string(Text.substr(0, n));
}

std::string Rtf_Zeichen_Normal(std::string_view Text)
{
    std::string Ziel;
    Ziel.reserve(Text.size());
    Je_Zeichen(Text, [&](char32_t c) {
        if (!Faellt_Weg(c))
            UTF8_Anfuegen(Ziel, Trennt(c) ? Kein_Zeichen_Da : c);
    });
    return Ziel;
}

std::string Rtf_Schriftname(std::string_view Name)
{
    std::string Ziel = UTF8_Anfang(Rtf_Zeichen_Normal(Name), Rtf_Name_Hoechstens);
    std::replace(Ziel.begin(), Ziel.end(), '\t', ' ');
    Ziel.erase(0, std::min(Ziel.find_first_not_of(' '), Ziel.size()));
    Ziel.erase(Ziel.find_last_not_of(' ') + 1);
    return Ziel;
}

Reich_Text_T Rtf_Normal(const Reich_Text_T& Text)
{
    Reich_Text_T Ziel;
    Normaler     Looks;
    for (const Absatz_T& a : Text.Absaetze) {
        Absatz_T& Neuer = Ziel.Absaetze.emplace_back();
        Neuer.Bild      = Absatz_Bild_Normal(a.Bild);
        for (const Text_Stueck_T& s : a.Stuecke)
            if (const std::string Zeichen = Rtf_Zeichen_Normal(s.Text); !Zeichen.empty())
                Anfuegen(Neuer, Zeichen, Looks.Bild(s.Bild));
    }
    if (Ziel.Absaetze.empty())
        Ziel.Absaetze.emplace_back();
    return Ziel;
}

std::string Rtf_Schreiben(const Reich_Text_T& Text)
{
    return Schreiber().Schreiben(Rtf_Normal(Text));
}

} // namespace varnholt
