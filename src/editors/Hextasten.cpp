// The keys of the two panes: movement, typing over, and the clipboard keys.
#include "core/codepage.h"
#include "core/commands.h"
#include "editors/Hexablage.h"
#include "editors/Hexedit.h"
#include "language/HexDez.h"

#include <string>
#include <string_view>
#include <utility>

namespace varnholt {
namespace {

// The caret of a pane: one character at that place of that page, the other pane follows. All of it
// stands before the redraw, whose turn of the event loop may bring the next key.
void Setzen(const Feldmass_T& m, const Ort_T& Ort)
{
    const bool Blaettern = Ort.Scroll != Hexedit.Scroll;
    Hexedit.Scroll       = std::clamp(Ort.Scroll, 0, Hexedit.Scroll_Max);
    const int Stelle     = In_Zelle(m, Ort.Stelle, Hex_Seite().Laenge(m));
    if (m == Hex_Mass)
        Hex_Markieren({Stelle, 1});
    else
        AscII_Markieren({Stelle, 1});
    if (Blaettern)
        Hex_Anzeige();
}

void Bewegen(const Feldmass_T& m, const Markierung_T& M, int Code)
{
    const Seite_T Seite = Hex_Seite();
    if (Seite.Bytes() > 0)
        Setzen(m, Bewegung(m, Seite, In_Zelle(m, M.Anfang, Seite.Laenge(m)), Code));
}

// A key that is only held down with others.
bool Nur_Umschalter(const Taste_T& t)
{
    return t.Code == Taste_Umschalt || t.Code == Taste_Strg || t.Code == Taste_Alt;
}

bool Strg_Mit(const Taste_T& t, char Buchstabe) { return t.Strg && !t.Alt && t.Code == Buchstabe; }

// Delete, Ctrl+C, Ctrl+V, Ctrl+X: the same in both panes. True: it was one of them.
bool Ablage_Taste(const Taste_T& t)
{
    if (Strg_Mit(t, 'C')) {
        Hexedit_Kopieren();
    } else if (Strg_Mit(t, 'X')) {
        Hexedit_Ausschneiden();
    } else if (Strg_Mit(t, 'V')) {
        if (Änderung_Erlaubt())
            Hexedit_Einfuegen();
    } else if (t.Code == Taste_Entfernen && !t.Umschalt) {
        if (Änderung_Erlaubt())
            Hexedit_Loeschen();
    } else {
        return false;
    }
    return true;
}

// True when any other key may go on; a refusal has no after-effect.
bool Tippen_Erlaubt()
{
    const bool Erlaubt = Änderung_Erlaubt();
    Abbruch            = false;
    return Erlaubt;
}

// The caret behind a typed byte. At the end of the page the next row comes in and the caret stays
// in the last one; where there is none it stays on the byte, Zurueck characters before the end.
Ort_T Nach_Dem_Tippen(const Feldmass_T& m, const Seite_T& s, int Naechste, int Zurueck)
{
    const int L = s.Laenge(m);
    if (Naechste < L)
        return {s.Scroll, Naechste};
    const bool Bild_Ende = s.Scroll + s.Zeilen() >= Bild_Zeilen;
    if (s.Scroll < s.Max && !Bild_Ende)
        return {s.Scroll + 1, L - m.Zeile};
    return {s.Scroll, L - Zurueck};
}

std::uint8_t& Bild_Byte(int Byte) { return Hex_Daten[static_cast<std::size_t>(Adresse_Von(Byte))]; }

// Types one digit over the one at the caret.
void Ziffer_Tippen(int Stelle, char Ziffer)
{
    const Seite_T Seite = Hex_Seite();
    const int     Byte  = Byte_An(Hex_Mass, Stelle);
    std::string   Paar  = Hex_Feld.substr(static_cast<std::size_t>(Stelle_Von(Hex_Mass, Byte)), 2);
    Paar[Stelle % 3 == 0 ? 0 : 1] = Ziffer;
    const auto Wert               = static_cast<std::uint8_t>(Hexpaar_zu_Wert(Paar));
    Bild_Byte(Byte)               = Wert;
    Hex_Zelle_Zeigen(Byte, Wert, Zeichen_Von(Wert));
    Setzen(Hex_Mass, Nach_Dem_Tippen(Hex_Mass, Seite, Naechste_Ziffer(Stelle), 2));
}

void Hex_Tippen(char Zeichen)
{
    const int L = static_cast<int>(Hex_Feld.size());
    if (L == 0)
        return;
    const int  Start  = Hexedit.Hex_Auswahl.Anfang;
    const bool Blank  = Start % 3 == 2 && Start + 1 < L;
    const int  Stelle = In_Zelle(Hex_Mass, Blank ? Start + 1 : Start, L);
    const char Ziffer = Gross_Zeichen(Zeichen);
    if (Hexpaar_zu_Wert(std::string_view(&Ziffer, 1)) < 0)
        Hex_Markieren({Stelle, 1});
    else
        Ziffer_Tippen(Stelle, Ziffer);
}

} // namespace

bool Hex_Feld_KeyDown(const Taste_T& Taste)
{
    if (Nur_Umschalter(Taste))
        return false;
    if (Ist_Bewegung(Taste.Code))
        Bewegen(Hex_Mass, Hexedit.Hex_Auswahl, Taste.Code);
    else if (!Ablage_Taste(Taste) && Tippen_Erlaubt())
        Hex_Tippen(Taste.Zeichen);
    return true;
}

bool AscII_Feld_KeyDown(const Taste_T& Taste)
{
    if (Nur_Umschalter(Taste))
        return false;
    if (Ist_Bewegung(Taste.Code)) {
        Bewegen(AscII_Mass, Hexedit.AscII_Auswahl, Taste.Code);
        return true;
    }
    if (Taste.Code == Taste_Enter || Taste.Code == Taste_Rueck || Taste.Code == Taste_Escape)
        return true;
    return Ablage_Taste(Taste) || !Tippen_Erlaubt();
}

void AscII_Feld_KeyPress(char Zeichen)
{
    if (Hexedit.AscII_Auswahl.Laenge > 1) {
        Hexedit_Loeschen();
        if (std::exchange(Abbruch, false))
            return;
    }
    const Seite_T Seite = Hex_Seite();
    if (Seite.Bytes() == 0)
        return;
    const int  Byte = Bytes_Von(AscII_Mass, Hexedit.AscII_Auswahl, Seite).Anfang;
    const auto Wert = static_cast<std::uint8_t>(Zeichen);
    Bild_Byte(Byte) = Wert;
    Hex_Zelle_Zeigen(Byte, Wert, Zeichen);
    const int Naechste = Stelle_Von(AscII_Mass, Byte + 1);
    Setzen(AscII_Mass, Nach_Dem_Tippen(AscII_Mass, Seite, Naechste, Letzte_Zelle));
}

} // namespace varnholt
