// A text with the look of its characters, and what a control of plain text makes of it.
#include "core/rich_text.h"

#include "core/utf8.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr std::int64_t Zeilen_Ende_Laenge = 2; // CR LF

// Goes along a text and its colours, both from the beginning on.
class Farb_Lauf {
public:
    explicit Farb_Lauf(std::span<const Farbstelle_T> Alle) : Farben(Alle) {}

    // Puts a line into a paragraph, in pieces of one colour.
    void Zeile(Absatz_T& Absatz, std::string_view Text)
    {
        std::size_t Von = 0;
        for (std::size_t i = 0; i <= Text.size(); ++i) {
            const bool Ende = i == Text.size();
            if (!Ende && Stellen_Von(Text[i]) == 0)
                continue;
            const std::int32_t Neue = Ende ? 0 : Farbe_Jetzt();
            if (Ende || Neue != Farbe) {
                Anfuegen(Absatz, Text.substr(Von, i - Von), Bild_Von(Farbe));
                Von   = i;
                Farbe = Neue;
            }
            Stelle += Ende ? Zeilen_Ende_Laenge : Stellen_Von(Text[i]);
        }
    }

private:
    static Zeichen_Bild_T Bild_Von(std::int32_t Farbe)
    {
        Zeichen_Bild_T Bild;
        Bild.Farbe = Farbe;
        return Bild;
    }
    std::int32_t Farbe_Jetzt()
    {
        while (!Farben.empty() && Farben.front().Anfang + Farben.front().Laenge <= Stelle)
            Farben = Farben.subspan(1);
        return !Farben.empty() && Farben.front().Anfang <= Stelle ? Farben.front().Farbe : 0;
    }

    std::span<const Farbstelle_T> Farben;
    std::int64_t                  Stelle = 0;
    std::int32_t                  Farbe  = 0;
};

} // namespace

void Anfuegen(Absatz_T& Absatz, std::string_view Text, const Zeichen_Bild_T& Bild)
{
    if (Text.empty())
        return;
    if (Absatz.Stuecke.empty() || Absatz.Stuecke.back().Bild != Bild)
        Absatz.Stuecke.push_back({{}, Bild});
    Absatz.Stuecke.back().Text += Text;
}

std::string Reiner_Text(const Reich_Text_T& Text)
{
    std::string Ziel;
    for (std::size_t i = 0; i < Text.Absaetze.size(); ++i) {
        if (i > 0)
            Ziel += "\r\n";
        for (const Text_Stueck_T& s : Text.Absaetze[i].Stuecke)
            Ziel += s.Text;
    }
    return Ziel;
}

std::vector<Farbstelle_T> Farben_Von(const Reich_Text_T& Text)
{
    std::vector<Farbstelle_T> Liste;
    std::int64_t              Stelle = 0;
    for (const Absatz_T& a : Text.Absaetze) {
        for (const Text_Stueck_T& s : a.Stuecke) {
            const std::int64_t Laenge = Stellen_Im(s.Text);
            if (s.Bild.Farbe != 0)
                Liste.push_back({Stelle, Laenge, s.Bild.Farbe});
            Stelle += Laenge;
        }
        Stelle += Zeilen_Ende_Laenge;
    }
    return Liste;
}

Reich_Text_T Reich_Aus(std::string_view UTF8, std::span<const Farbstelle_T> Farben)
{
    Reich_Text_T Text;
    Farb_Lauf    Lauf_Der_Farben(Farben);
    for (bool Weiter = true; Weiter;) {
        const std::size_t Ende = UTF8.find("\r\n");
        Weiter                 = Ende != std::string_view::npos;
        Lauf_Der_Farben.Zeile(Text.Absaetze.emplace_back(), UTF8.substr(0, Ende));
        UTF8.remove_prefix(Weiter ? Ende + Zeilen_Ende_Laenge : UTF8.size());
    }
    return Text;
}

// --- a control of plain text ---

namespace {

std::vector<Farbstelle_T> Verschoben(std::vector<Farbstelle_T> Farben, std::int64_t Um)
{
    for (Farbstelle_T& f : Farben)
        f.Anfang += Um;
    return Farben;
}

} // namespace

Reich_Text_T Textfeld::Reicher_Text() const
{
    return Reich_Aus(Text_UTF8(), Farben({0, Laenge()}));
}

void Textfeld::Reich_Setzen(const Reich_Text_T& Neuer)
{
    Text_Setzen_UTF8(Reiner_Text(Neuer));
    Faerben(Farben_Von(Neuer));
}

Reich_Text_T Textfeld::Auswahl_Reich() const
{
    const Textstelle_T Stelle = Auswahl();
    return Reich_Aus(Auswahl_Text_UTF8(), Verschoben(Farben(Stelle), -Stelle.Anfang));
}

void Textfeld::Auswahl_Ersetzen_Reich(const Reich_Text_T& Neuer)
{
    const std::int64_t Anfang = Auswahl().Anfang;
    Auswahl_Ersetzen_UTF8(Reiner_Text(Neuer));
    const Farbstelle_T Ganz{Anfang, Auswahl().Anfang - Anfang, 0};
    Faerben({&Ganz, 1});
    Faerben(Verschoben(Farben_Von(Neuer), Anfang));
}

} // namespace varnholt
