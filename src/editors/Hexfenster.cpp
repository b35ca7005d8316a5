// The hex editor as a window: size, scroll bar, activation.
#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/windows.h"
#include "editors/Hexedit.h"

namespace varnholt {
namespace {

void Auf_Eine_Zelle(const Feldmass_T& m, Markierung_T& M)
{
    M.Laenge = std::min(M.Laenge, m.Breite);
}

} // namespace

void Scroll_Einrichten()
{
    Hexedit.Scroll_Max = Scroll_Max_Am_Anfang(Hexedit.R);
    Hexedit.Scroll     = std::min(Hexedit.Scroll, Hexedit.Scroll_Max);
}

void Scroll_Setzen(int Wert)
{
    const int Neuer = std::clamp(Wert, 0, Hexedit.Scroll_Max);
    if (Neuer == Hexedit.Scroll)
        return;
    Hexedit.Scroll = Neuer;
    Auf_Eine_Zelle(Hex_Mass, Hexedit.Hex_Auswahl);
    Auf_Eine_Zelle(AscII_Mass, Hexedit.AscII_Auswahl);
    Hex_Anzeige();
}

void Hexedit_Einrichten(int Pixel_Hoehe, int Zeilen_Hoehe)
{
    Hexedit.R = R_Aus_Hoehe(Pixel_Hoehe, Zeilen_Hoehe);
    Scroll_Einrichten();
    Hex_Anzeige();
}

void Hexedit_Resize(int Pixel_Hoehe, int Zeilen_Hoehe)
{
    Hexedit.R          = R_Aus_Hoehe(Pixel_Hoehe, Zeilen_Hoehe);
    Hexedit.Scroll_Max = Init_Laeuft ? Scroll_Max_Am_Anfang(Hexedit.R) : Scroll_Max_Nach_Zug;
    Hexedit.Scroll     = std::min(Hexedit.Scroll, Hexedit.Scroll_Max);
    Hex_Anzeige();
}

void Hexedit_Activate()
{
    Aktives_Fenster = Fenster_Hexedit;
    Umschalter_Beschriften(Modus_Hex);
    Menue("MNU_deb_Vorbereitung").Aktiv = false;
    Werkzeug(23).Aktiv                  = false;
}

void Hexedit_Deactivate() { Fenster_Merken(Fenster_Hexedit); }

} // namespace varnholt
