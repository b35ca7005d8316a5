// Copy, cut, delete and paste in the hex editor.
#include "editors/Hexablage.h"

#include "core/commands.h"
#include "core/platform.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "language/HexDez.h"

#include <algorithm>
#include <string>

namespace varnholt {
namespace {

constexpr std::int64_t Erster_Zug = 800; // bytes that are seen to move at once

bool Ist_Zeilenende(char c) { return c == '\r' || c == '\n'; }

std::string Ohne(std::string_view Text, std::string_view Zeichen)
{
    std::string Rest;
    std::copy_if(Text.begin(), Text.end(), std::back_inserter(Rest), [&](char c) {
        return Zeichen.find(c) == std::string_view::npos;
    });
    return Rest;
}

std::string Markierter_Text(const std::string& Text, const Markierung_T& M)
{
    const auto Anfang = static_cast<std::size_t>(std::max(0, M.Anfang));
    if (M.Laenge <= 0 || Anfang >= Text.size())
        return {};
    return Ohne(std::string_view(Text).substr(Anfang, static_cast<std::size_t>(M.Laenge)), CRLF);
}

// The image with the element behind it, which moves along.
std::span<std::uint8_t> Ganzes_Bild()
{
    return std::span(Hex_Daten).first(static_cast<std::size_t>(Hex_Groesse) + 1);
}

// Makes exactly so many places at S where Markiert bytes are marked.
void Platz_Schaffen(std::int64_t S, std::int64_t Markiert, std::int64_t Plaetze)
{
    if (Markiert < Plaetze)
        Bytes_Hinauf(Ganzes_Bild(), S + Markiert, Plaetze - Markiert);
    else
        Bytes_Herunter(Ganzes_Bild(), S + Plaetze, Hex_Groesse + 1, Markiert - Plaetze);
}

void Werte_Schreiben(std::int64_t S, const Einfuegung_T& Neues)
{
    const std::int64_t Platz = std::max<std::int64_t>(0, Hex_Groesse - S);
    for (std::size_t i = 0; i < Neues.Werte.size() && static_cast<std::int64_t>(i) < Platz; ++i)
        if (Neues.Werte[i])
            Hex_Daten[static_cast<std::size_t>(S) + i] = *Neues.Werte[i];
}

} // namespace

void Bytes_Herunter(std::span<std::uint8_t> Daten,
                    std::int64_t            Von,
                    std::int64_t            Bis,
                    std::int64_t            N)
{
    const auto         Groesse = static_cast<std::int64_t>(Daten.size());
    const std::int64_t Ende    = std::min(Bis, Groesse);
    if (N <= 0 || Von >= Ende)
        return;
    const std::int64_t Kopiert = std::max<std::int64_t>(0, std::min(Ende + N, Groesse) - Von - N);
    if (Kopiert > 0)
        std::copy_n(Daten.begin() + Von + N, Kopiert, Daten.begin() + Von);
    std::fill(Daten.begin() + Von + Kopiert, Daten.begin() + Ende, std::uint8_t{0xFF});
}

void Bytes_Hinauf(std::span<std::uint8_t> Daten, std::int64_t Von, std::int64_t N)
{
    const auto Groesse = static_cast<std::int64_t>(Daten.size());
    if (N > 0 && Von + N < Groesse)
        std::copy_backward(Daten.begin() + Von, Daten.end() - N, Daten.end());
}

Einfuegung_T Aus_Zeichen(std::string_view Text)
{
    Einfuegung_T Neues{{}, static_cast<std::int64_t>(Text.size())};
    for (const char c : Text)
        if (!Ist_Zeilenende(c))
            Neues.Werte.emplace_back(static_cast<std::uint8_t>(c));
    return Neues;
}

Einfuegung_T Aus_Hexpaaren(std::string_view Text)
{
    const std::string Ziffern = Ohne(Text, " \r\n");
    Einfuegung_T      Neues{};
    for (std::size_t i = 0; i + 2 <= Ziffern.size(); i += 2) {
        const auto Wert = Hexpaar_zu_Wert(std::string_view(Ziffern).substr(i, 2));
        Neues.Werte.push_back(Wert < 0 ? std::optional<std::uint8_t>{}
                                       : static_cast<std::uint8_t>(Wert));
    }
    Neues.Plaetze = static_cast<std::int64_t>(Neues.Werte.size());
    return Neues;
}

void Hexedit_Kopieren()
{
    const std::string Text = Hex_Aktives_Feld == Feld_Hex
                                 ? Markierter_Text(Hex_Feld, Hexedit.Hex_Auswahl)
                                 : Markierter_Text(AscII_Feld, Hexedit.AscII_Auswahl);
    if (!Text.empty())
        Plattform.Ablage->Setzen(Text);
}

void Hexedit_Ausschneiden()
{
    if (!Änderung_Erlaubt())
        return;
    Hexedit_Kopieren();
    Hexedit_Loeschen();
}

// Only the page is built after the first 800 bytes: an event of the user must not meet an image
// that is half moved.
void Hexedit_Loeschen()
{
    if (!Änderung_Erlaubt())
        return;
    const Bytefolge_T b = Bytes_Von(AscII_Mass, Hexedit.AscII_Auswahl, Hex_Seite());
    if (b.Ende <= b.Anfang)
        return;
    const std::int64_t S = Adresse_Von(b.Anfang);
    const std::int64_t N = b.Ende - b.Anfang;
    AscII_Markieren(Markierung_Von(AscII_Mass, {b.Anfang, b.Anfang + 1}));
    if (Hex_Groesse - S + 1 > Erster_Zug) {
        Bytes_Herunter(Ganzes_Bild(), S, S + Erster_Zug, N);
        Hex_Seite_Bauen();
        Bytes_Herunter(Ganzes_Bild(), S + Erster_Zug, Hex_Groesse + 1, N);
    } else {
        Bytes_Herunter(Ganzes_Bild(), S, Hex_Groesse + 1, N);
    }
    Hex_Anzeige();
}

void Hexedit_Einfuegen()
{
    const std::string Text = Plattform.Ablage->Text();
    if (Text.empty() || !Änderung_Erlaubt()) // a picture, say: nothing is to go for it
        return;
    const bool          Hex = Hex_Aktives_Feld == Feld_Hex;
    const Feldmass_T&   m   = Hex ? Hex_Mass : AscII_Mass;
    const Markierung_T& M   = Hex ? Hexedit.Hex_Auswahl : Hexedit.AscII_Auswahl;
    const Bytefolge_T   b   = Bytes_Von(m, M, Hex_Seite());
    if (b.Ende <= b.Anfang)
        return;
    const Einfuegung_T Neues    = Hex ? Aus_Hexpaaren(Text) : Aus_Zeichen(Text);
    const std::int64_t S        = Adresse_Von(b.Anfang);
    const std::int64_t Markiert = b.Ende - b.Anfang > 1 ? b.Ende - b.Anfang : 0;
    Platz_Schaffen(S, Markiert, Neues.Plaetze);
    Werte_Schreiben(S, Neues);
    if (Hex)
        Hex_Markieren({M.Anfang, 1});
    else
        AscII_Markieren({M.Anfang, 1});
    Hex_Anzeige();
    Plattform.Fenster->Fokus(Fenster_Hexedit);
}

} // namespace varnholt
