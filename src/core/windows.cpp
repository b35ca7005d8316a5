// The child windows: standard arrangement, applying and keeping the window table, side windows by
// their menu entries, and what each mode changes in menu and tool bar.
#include "core/windows.h"

#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/shared_state.h"
#include "core/views.h"
#include "editors/Nachschlagen.h"
#include "simulator/Sim_Ansichten.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace varnholt {
namespace {

constexpr int Hex_Anteil = 72; // per cent of the width that the main window of the mode takes
constexpr int MC_Anteil  = 65;

constexpr int Tafel_Hoehe   = 204; // of the control panel where the column is narrow
constexpr int Breite_Spalte = 660; // a side column where two views of the memory stand side by side

constexpr std::size_t Platz(int Nummer) { return static_cast<std::size_t>(Nummer); }

// The menu entry that toggles a window, by window number; 0 is unused.
// clang-format off
constexpr std::array<Menue_Name, Fenster_Anzahl + 1> Fenster_Eintraege{
    "MNU_Hex", "MNU_Hex", "MNU_MC", "MNU_Bef", "MNU_Basic", "MNU_Spr", "MNU_Not",
    "MNU_RAM", "MNU_SFR", "MNU_EXRAM", "MNU_CONTROL",
};
constexpr std::array<Menue_Name, 9> Nur_Im_Hex_Editor{
    "MNU_Ber_Kopieren", "MNU_Ber_setzen", "MNU_Ber_entfernen", "MNU_Adresse_direkt",
    "MNU_ErsteAdresse", "MNU_LetzteAdresse", "MNU_Importdata", "MNU_Leer79", "MNU_Leer81",
};
// clang-format on

Menue_Zustand_T& Fenster_Menue(int Nummer) { return Menue(Fenster_Eintraege[Platz(Nummer)]); }

constexpr bool Vom_Debugger(int Nummer) { return Nummer >= Fenster_RAM; }

constexpr bool Hauptfenster(int Nummer)
{
    return Nummer == Fenster_Hexedit || Nummer == Fenster_Edit;
}

std::int16_t& Wert_Jetzt(int Nummer, Feld f)
{
    return Fenster_Wert(Fenster_Spalte(Nummer, Modus), Nummer, f);
}

// --- arrangement ---

// A part of the side column, from Von to Bis of so many parts of its height.
constexpr Lage_T Teil(const Lage_T& Spalte, int Von, int Bis, int Teile)
{
    const int Oben  = Spalte.Hoehe * Von / Teile;
    const int Unten = Spalte.Hoehe * Bis / Teile;
    return {Spalte.Oben + Oben, Spalte.Links, Unten - Oben, Spalte.Breite};
}

constexpr Lage_T Viertel(const Lage_T& Spalte, int Von, int Bis)
{
    return Teil(Spalte, Von, Bis, 4);
}

std::int16_t In_16_Bit(int Wert)
{
    using Grenzen = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(Wert, Grenzen::min(), Grenzen::max()));
}

void Lage_In_Tabelle(int Spalte, int Nummer, const Lage_T& Lage)
{
    Fenster_Wert(Spalte, Nummer, Feld::Oben)   = In_16_Bit(Lage.Oben);
    Fenster_Wert(Spalte, Nummer, Feld::Links)  = In_16_Bit(Lage.Links);
    Fenster_Wert(Spalte, Nummer, Feld::Hoehe)  = In_16_Bit(Lage.Hoehe);
    Fenster_Wert(Spalte, Nummer, Feld::Breite) = In_16_Bit(Lage.Breite);
}

// The left or the right half of a place.
constexpr Lage_T Haelfte(const Lage_T& Ganzes, bool Rechts)
{
    const int Breite = Ganzes.Breite / 2;
    return {Ganzes.Oben,
            Ganzes.Links + (Rechts ? Breite : 0),
            Ganzes.Hoehe,
            Rechts ? Ganzes.Breite - Breite : Breite};
}

// Which windows the standard arrangement shows: the main window with the notes, and with the
// jumpmarks where there is a source text. Those of the debugger stay as they are; a session has all
// four of them before the first arrangement.
constexpr bool Grund_Sichtbar(int Nummer, int Modus_Der_Spalte, int Modus_Jetzt)
{
    if (Hauptfenster(Nummer))
        return Modus_Der_Spalte == Modus_Jetzt;
    return Nummer == Fenster_Notiz || (Nummer == Fenster_Spr && Modus_Der_Spalte == Modus_MC);
}

void Grund_Anordnung_Eintragen(int Modus_Der_Spalte)
{
    const auto Lagen = Grund_Anordnung(Plattform.Fenster->Innenmass(), Modus_Der_Spalte);
    for (int n = 1; n <= Fenster_Anzahl; ++n) {
        const int Spalte = Modus_Der_Spalte - 1;
        if (Fenster_Spalte(n, Modus_Der_Spalte) != Spalte)
            continue; // the main window of the other mode
        const bool Erste = Fenster_Wert(Spalte, n, Feld::Hoehe) == 0;
        Lage_In_Tabelle(Spalte, n, Lagen[Platz(n)]);
        if (!Vom_Debugger(n))
            Fenster_Wert(Spalte, n, Feld::Sichtbar) =
                Grund_Sichtbar(n, Modus_Der_Spalte, Modus) ? std::int16_t{-1} : std::int16_t{0};
        else if (Erste && Modus_Der_Spalte == Modus_MC)
            Fenster_Wert(Spalte, n, Feld::Sichtbar) = -1;
    }
}

// The place that the table gives; that of the standard arrangement where it gives none.
Lage_T Lage_Aus_Tabelle(int Nummer)
{
    const Lage_T Lage{Wert_Jetzt(Nummer, Feld::Oben),
                      Wert_Jetzt(Nummer, Feld::Links),
                      Wert_Jetzt(Nummer, Feld::Hoehe),
                      Wert_Jetzt(Nummer, Feld::Breite)};
    if (Lage.Hoehe > 0 && Lage.Breite > 0)
        return Lage;
    const int Modus_Dazu = Fenster_Spalte(Nummer, Modus) + 1;
    return Grund_Anordnung(Plattform.Fenster->Innenmass(), Modus_Dazu)[Platz(Nummer)];
}

void Zeigen(int Nummer, bool Sichtbar)
{
    if (Sichtbar)
        Nachschlagen_Bereitstellen(Nummer);
    Plattform.Fenster->Sichtbar_Setzen(Nummer, Sichtbar);
}

void Ein_Fenster_Anordnen(int Nummer)
{
    const bool Sichtbar         = Wert_Jetzt(Nummer, Feld::Sichtbar) != 0;
    Fenster_Menue(Nummer).Haken = Sichtbar;
    if (!Init_Laeuft && (!Vom_Debugger(Nummer) || Debugger_Aktiv))
        Zeigen(Nummer, Sichtbar);
    Plattform.Fenster->Lage_Setzen(Nummer, Lage_Aus_Tabelle(Nummer));
}

void Sichtbarkeit_Setzen(int Nummer, bool Sichtbar)
{
    Wert_Jetzt(Nummer, Feld::Sichtbar) = Sichtbar ? std::int16_t{-1} : std::int16_t{0};
    Fenster_Menue(Nummer).Haken        = Sichtbar;
    Zeigen(Nummer, Sichtbar);
}

// --- mode table ---

void Nur_Hex_Zeigen(bool Hex)
{
    for (const Menue_Name m : Nur_Im_Hex_Editor)
        Menue(m).Sichtbar = Hex;
    Menue("MNU_Load_Autosave").Sichtbar = !Hex;
}

} // namespace

namespace {

// A session's windows have a quarter of the column each, the panel what it needs. In a wide column
// the views stand side by side.
void Sitzung_Anordnen(std::array<Lage_T, Fenster_Anzahl + 1>& Lagen, const Lage_T& Spalte)
{
    const bool Breit       = Spalte.Breite >= Breite_Spalte;
    const int  Oben        = std::max(Spalte.Hoehe / 4, std::min(Tafel_Hoehe, Spalte.Hoehe / 3));
    Lagen[Fenster_CONTROL] = {Spalte.Oben, Spalte.Links, Oben, Spalte.Breite};
    const Lage_T Rest{Spalte.Oben + Oben, Spalte.Links, Spalte.Hoehe - Oben, Spalte.Breite};
    if (Breit) {
        const Lage_T Rechts  = Haelfte(Rest, true);
        Lagen[Fenster_RAM]   = Haelfte(Rest, false);
        Lagen[Fenster_SFR]   = Teil(Rechts, 0, 2, 3);
        Lagen[Fenster_EXRAM] = Teil(Rechts, 2, 3, 3);
        return;
    }
    Lagen[Fenster_RAM]   = Teil(Rest, 0, 1, 3);
    Lagen[Fenster_SFR]   = Teil(Rest, 1, 2, 3);
    Lagen[Fenster_EXRAM] = Teil(Rest, 2, 3, 3);
}

} // namespace

// The side column stands right of the main window. Without the debugger its halves hold jumpmarks
// or the BASIC reference above, notes or the instruction reference below. The notes have the whole
// column beside the hex editor, where there are no jumpmarks.
std::array<Lage_T, Fenster_Anzahl + 1> Grund_Anordnung(const Lage_T& Flaeche, int Modus_Jetzt)
{
    const int    Anteil = Modus_Jetzt == Modus_Hex ? Hex_Anteil : MC_Anteil;
    const int    Breite = Flaeche.Breite * Anteil / 100;
    const Lage_T Haupt{Flaeche.Oben, Flaeche.Links, Flaeche.Hoehe, Breite};
    const Lage_T Spalte{
        Flaeche.Oben, Flaeche.Links + Breite, Flaeche.Hoehe, Flaeche.Breite - Breite};
    std::array<Lage_T, Fenster_Anzahl + 1> Lagen{};
    Lagen[Fenster_Hexedit] = Lagen[Fenster_Edit] = Haupt;
    Lagen[Fenster_Spr] = Lagen[Fenster_Basic] = Viertel(Spalte, 0, 2);
    Lagen[Fenster_Notiz] = Lagen[Fenster_Bef] = Viertel(Spalte, 2, 4);
    if (Modus_Jetzt == Modus_Hex)
        Lagen[Fenster_Notiz] = Spalte;
    Sitzung_Anordnen(Lagen, Spalte);
    return Lagen;
}

void MNU_G_Einstellung_Click()
{
    Grund_Anordnung_Eintragen(Modus_Hex);
    Grund_Anordnung_Eintragen(Modus_MC);
    Fenster_Anordnen();
}

void Fenster_Anordnen()
{
    ++Ansichten.Anordnung_Stand;
    if (!Init_Laeuft)
        Fenster_Sperren();
    for (int n = 1; n <= Fenster_Anzahl; ++n)
        Ein_Fenster_Anordnen(n);
    if (!Init_Laeuft)
        Fenster_Freigeben();
}

void Sitzungsfenster_Zeigen()
{
    bool Neue = false;
    for (int n = Fenster_RAM; n <= Fenster_CONTROL; ++n) {
        const bool Zeigt       = Wert_Jetzt(n, Feld::Sichtbar) != 0;
        Fenster_Menue(n).Haken = Zeigt;
        Neue                   = Neue || (Zeigt && !Plattform.Fenster->Sichtbar(n));
    }
    if (!Neue)
        return;
    for (int n = 1; n <= Fenster_Anzahl; ++n)
        if (Plattform.Fenster->Sichtbar(n))
            Fenster_Merken(n); // nothing goes back that the user has moved
    Fenster_Anordnen();
}

void Fenster_Sperren() { Plattform.Ereignisse->Fenster_Sperren(true); }
void Fenster_Freigeben() { Plattform.Ereignisse->Fenster_Sperren(false); }

void Fenster_Merken(int Nummer)
{
    const Lage_T Lage = Plattform.Fenster->Lage(Nummer);
    // A window that never had a place has no size either.
    if (!Init_Laeuft && Lage.Hoehe > 0 && Lage.Breite > 0)
        Lage_In_Tabelle(Fenster_Spalte(Nummer, Modus), Nummer, Lage);
}

void Alle_Fenster_Merken()
{
    for (const int n : {Fenster_Hexedit,
                        Fenster_Edit,
                        Fenster_Spr,
                        Fenster_Bef,
                        Fenster_Basic,
                        Fenster_Notiz,
                        Fenster_RAM,
                        Fenster_SFR,
                        Fenster_EXRAM,
                        Fenster_CONTROL})
        Fenster_Merken(n);
}

void Fenster_Geschlossen(int Nummer)
{
    if (Hauptfenster(Nummer))
        return; // they go with their mode
    Fenster_Merken(Nummer);
    Sichtbarkeit_Setzen(Nummer, false);
}

void Fenster_Umschalten(int Nummer)
{
    if (Hauptfenster(Nummer) || (Vom_Debugger(Nummer) && !Debugger_Aktiv))
        return;
    Sichtbarkeit_Setzen(Nummer, Wert_Jetzt(Nummer, Feld::Sichtbar) == 0);
}

void MNU_Bef_Click() { Fenster_Umschalten(Fenster_Bef); }
void MNU_Basic_Click() { Fenster_Umschalten(Fenster_Basic); }
void MNU_Spr_Click() { Fenster_Umschalten(Fenster_Spr); }
void MNU_Not_Click() { Fenster_Umschalten(Fenster_Notiz); }
void MNU_RAM_Click() { Fenster_Umschalten(Fenster_RAM); }
void MNU_SFR_Click() { Fenster_Umschalten(Fenster_SFR); }
void MNU_EXRAM_Click() { Fenster_Umschalten(Fenster_EXRAM); }

void MNU_CONTROL_Click()
{
    Fenster_Umschalten(Fenster_CONTROL);
    Zyklen_Anzeigen(); // the counters went on while nobody looked
}

void Modus_Tabelle_Anwenden()
{
    const bool Hex                         = Modus == Modus_Hex;
    Menue("MNU_Hex").Haken                 = Hex;
    Menue("MNU_MC").Haken                  = !Hex;
    Menue("MNU_vergleiche_hexdaten").Aktiv = Hex;
    Menue("MNU_Debugger_Stoppunkt").Aktiv  = !Hex;
    Nur_Hex_Zeigen(Hex);
    Umschalter_Beschriften(Modus);
    if (Hex) // the editor enables them when it gets the focus
        Menue("MNU_deb_Vorbereitung").Aktiv = Werkzeug(23).Aktiv = false;
}

} // namespace varnholt
