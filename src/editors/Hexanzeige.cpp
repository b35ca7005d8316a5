// The hex page: four texts from the rows of the image that fit, and nothing else of it.
#include "core/commands.h"
#include "core/platform.h"
#include "core/views.h"
#include "editors/Hexedit.h"

#include <string_view>

namespace varnholt {
namespace {

constexpr std::string_view Ziffern = "0123456789ABCDEF";

// The value in that many digits of a base up to 16, with leading zeros.
void Zahl_Anfuegen(std::string& Text, std::int32_t Wert, int Stellen, int Basis)
{
    Text.append(static_cast<std::size_t>(Stellen), '0');
    for (auto p = Text.rbegin(); Wert > 0 && p != Text.rbegin() + Stellen; ++p, Wert /= Basis)
        *p = Ziffern[static_cast<std::size_t>(Wert % Basis)];
}

void Zeile_Anfuegen(std::int32_t Adresse)
{
    Zahl_Anfuegen(Adr_D, Adresse, 6, 10);
    Adr_D += CRLF;
    Zahl_Anfuegen(Adr_H, Adresse, 6, 16);
    Adr_H += CRLF;
    for (int c = 0; c < Zeilen_Bytes; ++c) {
        const std::uint8_t Wert = Hex_Daten[static_cast<std::size_t>(Adresse + c)];
        Zahl_Anfuegen(Hex_Feld, Wert, 2, 16);
        Hex_Feld += ' ';
        AscII_Feld += Zeichen_Von(Wert);
    }
    AscII_Feld += CRLF;
}

Markierung_T Eingezogen(const Feldmass_T& m, const Markierung_T& M)
{
    const int L = Hex_Seite().Laenge(m);
    if (L == 0)
        return {0, std::min(M.Laenge, 1)};
    if (M.Anfang < 0 || M.Anfang >= L)
        return {In_Zelle(m, M.Anfang, L), std::min(M.Laenge, 1)};
    return {M.Anfang, std::clamp(M.Laenge, 0, L - M.Anfang)};
}

} // namespace

void Hex_Seite_Bauen()
{
    const Seite_T Seite = Hex_Seite();
    Hex_Zeiger          = Seite.Scroll * Zeilen_Bytes;
    for (std::string* Text : {&Hex_Feld, &AscII_Feld, &Adr_D, &Adr_H})
        Text->clear();
    for (int r = 0; r < Seite.Zeilen(); ++r)
        Zeile_Anfuegen(Hex_Zeiger + r * Zeilen_Bytes);
    Hexedit.Hex_Auswahl   = Eingezogen(Hex_Mass, Hexedit.Hex_Auswahl);
    Hexedit.AscII_Auswahl = Eingezogen(AscII_Mass, Hexedit.AscII_Auswahl);
    ++Ansichten.Hex_Stand;
}

// The windows draw finished texts only, so the fields needn't be hidden meanwhile. An event of the
// turn may scroll and come here again: then the page is built anew, and the turn is left to the
// outer call.
void Hex_Anzeige()
{
    if (Init_Laeuft)
        return;
    Hex_Seite_Bauen();
    if (Hexedit.Anzeige_Laeuft)
        return;
    Hexedit.Anzeige_Laeuft = true;
    Plattform.Ereignisse->Eine_Runde();
    Hexedit.Anzeige_Laeuft = false;
}

void Hex_Zelle_Zeigen(int Byte, std::uint8_t Wert, char Zeichen)
{
    const auto h = static_cast<std::size_t>(Stelle_Von(Hex_Mass, Byte));
    const auto a = static_cast<std::size_t>(Stelle_Von(AscII_Mass, Byte));
    if (h + 1 >= Hex_Feld.size() || a >= AscII_Feld.size())
        return;
    Hex_Feld[h]     = Ziffern[Wert >> 4];
    Hex_Feld[h + 1] = Ziffern[Wert & 15];
    AscII_Feld[a]   = Zeichen;
    ++Ansichten.Hex_Stand;
}

} // namespace varnholt
