// Mouse and focus in the hex editor, and the two panes' markings as images of each other.
#include "core/platform.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Hexedit.h"

namespace varnholt {
namespace {

// Where a marking drawn with the mouse begins: never on a line break; in the digits on the first
// of a pair, a blank counting to the byte behind it.
int Anfang_Ordnen(const Feldmass_T& m, int Stelle, int Text_Laenge)
{
    const bool Blank = m == Hex_Mass && Stelle % 3 == 2 && Stelle + 1 < Text_Laenge;
    const int  s     = In_Zelle(m, Blank ? Stelle + 1 : Stelle, Text_Laenge);
    return Stelle_Von(m, Byte_An(m, s));
}

// The marking on whole bytes, at least one; Ende is kept where the first character moved.
Markierung_T Ordnen(const Feldmass_T& m, const Markierung_T& M)
{
    const Seite_T Seite  = Hex_Seite();
    const int     Anfang = Anfang_Ordnen(m, M.Anfang, Seite.Laenge(m));
    return Markierung_Von(m, Bytes_Von(m, {Anfang, M.Ende() - Anfang}, Seite));
}

Markierung_T Uebertragen(const Feldmass_T& Von, const Feldmass_T& Nach, const Markierung_T& M)
{
    return Markierung_Von(Nach, Bytes_Von(Von, M, Hex_Seite()));
}

Markierung_T In_Seite(const Feldmass_T& m, const Markierung_T& M)
{
    const int L = Hex_Seite().Laenge(m);
    if (L == 0)
        return {0, 0};
    const int Anfang = In_Zelle(m, M.Anfang, L);
    return {Anfang, std::clamp(M.Ende() - Anfang, 1, L - Anfang)};
}

// The instruction window follows to the opcode of the byte.
void Befehl_Zeigen(std::uint8_t Wert)
{
    Hexedit.Bef_Zeile = Wert + 1;
    ++Hexedit.Bef_Stand;
}

} // namespace

void Markiere_ASCII()
{
    Hexedit.AscII_Auswahl = Uebertragen(Hex_Mass, AscII_Mass, Hexedit.Hex_Auswahl);
    ++Ansichten.Hex_Stand;
}

void Markiere_Hex()
{
    Hexedit.Hex_Auswahl = Uebertragen(AscII_Mass, Hex_Mass, Hexedit.AscII_Auswahl);
    ++Ansichten.Hex_Stand;
}

void Hex_Markieren(const Markierung_T& Neue)
{
    Hexedit.Hex_Auswahl = In_Seite(Hex_Mass, Neue);
    Markiere_ASCII();
}

void AscII_Markieren(const Markierung_T& Neue)
{
    Hexedit.AscII_Auswahl = In_Seite(AscII_Mass, Neue);
    Markiere_Hex();
}

void Hex_Feld_MouseDown()
{
    Hexedit.AscII_Auswahl.Laenge = 0;
    ++Ansichten.Hex_Stand;
}

void AscII_Feld_MouseDown()
{
    Hexedit.Hex_Auswahl.Laenge = 0;
    ++Ansichten.Hex_Stand;
}

void Hex_Feld_MouseUp()
{
    Hexedit.Hex_Auswahl = Ordnen(Hex_Mass, Hexedit.Hex_Auswahl);
    Markiere_ASCII();
}

void AscII_Feld_MouseUp()
{
    Hexedit.AscII_Auswahl = Ordnen(AscII_Mass, Hexedit.AscII_Auswahl);
    Markiere_Hex();
}

void Hex_Feld_Click()
{
    const Seite_T Seite = Hex_Seite();
    if (Seite.Bytes() == 0)
        return;
    const int Byte = Bytes_Von(Hex_Mass, Hexedit.Hex_Auswahl, Seite).Anfang;
    Hex_Markieren(Markierung_Von(Hex_Mass, {Byte, Byte + 1}));
    if (Plattform.Fenster->Sichtbar(Fenster_Bef))
        Befehl_Zeigen(Hex_Daten[static_cast<std::size_t>(Adresse_Von(Byte))]);
}

void Hex_Feld_GotFocus()
{
    Hex_Aktives_Feld = Feld_Hex;
    ++Ansichten.Hex_Stand;
}

void AscII_Feld_GotFocus()
{
    Hex_Aktives_Feld = Feld_AscII;
    ++Ansichten.Hex_Stand;
}

} // namespace varnholt
