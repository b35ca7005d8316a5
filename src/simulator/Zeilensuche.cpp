// Where the program stands in the source text: the row of an address, the editor line of a row, and
// the selection that shows it.
#include "core/platform.h"
#include "editors/Quelltext_Sperre.h"
#include "language/Assembler_Zustand.h"
#include "language/Befehle.h"
#include "language/Fehlermeldung.h"
#include "simulator/Debug.h"
#include "simulator/Sitzung.h"

#include <algorithm>
#include <string>

namespace varnholt {
namespace {

constexpr std::int64_t Umgebung = 4; // lines

std::int32_t Adresse_Von(std::int32_t Zeile)
{
    return Quell_Zeilen[static_cast<std::size_t>(Zeile)].Adresse;
}

bool Ist_Haupttext(std::int32_t Zeile)
{
    return Quell_Zeilen[static_cast<std::size_t>(Zeile)].Herkunft == Herkunft_Haupttext;
}

// A row near Sim_PC, by halving the steps. The table must have rows.
std::int32_t Halbieren()
{
    const std::int32_t Letzte  = Zeilen_Anzahl() - 1;
    std::int32_t       Zeile   = Zeilen_Anzahl() / 2;
    std::int32_t       Schritt = Zeile / 2;
    do {
        Zeile += Adresse_Von(Zeile) > Sim_PC ? -Schritt : Schritt;
        Zeile = std::clamp(Zeile, std::int32_t{0}, Letzte);
        Schritt /= 2;
    } while (Schritt > 0);
    return Zeile;
}

// The last of the rows that share the address: the code line, behind the comments above it.
std::int32_t Laufende_Zeile()
{
    std::int32_t Zeile = Halbieren();
    while (Zeile + 1 < Zeilen_Anzahl() && Adresse_Von(Zeile) <= Sim_PC)
        ++Zeile;
    while (Zeile > 0 && Adresse_Von(Zeile) > Sim_PC)
        --Zeile;
    return Zeile;
}

bool Suche_Vergebens()
{
    return Sim_PC >= 0 && Sim_PC <= Code_Groesse &&
           Sitzung.Kein_Anfang[static_cast<std::size_t>(Sim_PC)];
}

// First row from there on whose address is reached.
bool Vorwaerts_Suchen(std::int32_t Zeile)
{
    for (Sim_Zeile = Zeile; Sim_Zeile < Zeilen_Anzahl(); ++Sim_Zeile)
        if (Adresse_Von(Sim_Zeile) == Sim_PC && Ist_Haupttext(Sim_Zeile))
            return true;
        else if (Sitzung.Aufsteigend && Adresse_Von(Sim_Zeile) > Sim_PC)
            break;
    return false;
}

// Brings some lines above and below into sight, so that the running one isn't at the edge: the
// control scrolls to what is selected. What was brought into sight isn't selected again as long as
// the text hasn't been scrolled, and nothing is where there is no room for it.
void Umgebung_Zeigen(std::int64_t Zeile)
{
    if (Sitzung.Enge_Sicht)
        return;
    Textfeld&          Edit  = *Plattform.Edit;
    const std::int64_t Oben  = std::max(Zeile - Umgebung, std::int64_t{0});
    const std::int64_t Unten = std::min(Zeile + Umgebung, Edit.Zeilen_Anzahl() - 1);
    if (Edit.Erste_Zeile() == Sitzung.Oberste_Gezeigt && Oben >= Sitzung.Oberste_Gezeigt &&
        Unten <= Sitzung.Unterste_Gezeigt)
        return;
    Edit.Auswaehlen(Edit.Zeile(Unten).Anfang, 0);
    Edit.Auswaehlen(Edit.Zeile(Oben).Anfang, 0);
    Sitzung.Oberste_Gezeigt  = Edit.Erste_Zeile();
    Sitzung.Unterste_Gezeigt = Unten;
}

// The running line was selected. Where that alone scrolls the text the view has less than five
// lines; it has them again, as behind a change of its size, when the line stands that far down.
void Sicht_Beurteilen(std::int64_t Zeile)
{
    const std::int64_t Erste = Plattform.Edit->Erste_Zeile();
    Sitzung.Enge_Sicht =
        Sitzung.Enge_Sicht ? Zeile - Erste < Umgebung : Erste != Sitzung.Oberste_Gezeigt;
}

void Auswaehlen(std::int32_t Editor)
{
    Textfeld&           Edit = *Plattform.Edit;
    const Ereignis_Ruhe Ruhe;
    const std::int64_t  Nummer =
        std::clamp(std::int64_t{Editor}, std::int64_t{0}, Edit.Zeilen_Anzahl() - 1);
    const Textstelle_T Zeile = Edit.Zeile(Nummer);
    Umgebung_Zeigen(Nummer);
    std::string            Puffer;
    const std::string_view Text = Edit.Text_Ansicht(Puffer);
    const Textstelle_T     Code = Code_Stelle(Text.substr(static_cast<std::size_t>(Zeile.Anfang),
                                                      static_cast<std::size_t>(Zeile.Laenge)));
    Edit.Auswaehlen(Zeile.Anfang + Code.Anfang, Code.Laenge);
    Sicht_Beurteilen(Nummer);
}

} // namespace

void Suche_Vorbereiten()
{
    Sitzung.Aufsteigend = std::is_sorted(
        Quell_Zeilen.begin(), Quell_Zeilen.end(), [](const Quell_Zeile& a, const Quell_Zeile& b) {
            return a.Adresse < b.Adresse;
        });
    Sitzung.Kein_Anfang.set();
    for (const Quell_Zeile& z : Quell_Zeilen)
        if (z.Herkunft == Herkunft_Haupttext && z.Adresse >= 0 && z.Adresse <= Code_Groesse)
            Sitzung.Kein_Anfang.reset(static_cast<std::size_t>(z.Adresse));
}

bool Zeile_Suchen()
{
    if (Quell_Zeilen.empty() || Suche_Vergebens())
        return false;
    std::int32_t Zeile = Halbieren();
    while (Zeile > 0 && Adresse_Von(Zeile) >= Sim_PC)
        --Zeile;
    return Vorwaerts_Suchen(Zeile);
}

void Zeile_Der_Adresse()
{
    if (!Quell_Zeilen.empty())
        Sim_Zeile = Laufende_Zeile();
}

void Zeile_Anzeigen()
{
    if (Quell_Zeilen.empty())
        return;
    Zeile_Der_Adresse();
    Auswaehlen(Editor_Zeile_Von(Sim_Zeile));
}

// Bounded: a text without a line that the addresses meet ends after two rounds.
void Naechste_Zeile()
{
    for (int i = 0; i < 2 * Code_Groesse && !Zeile_Suchen(); ++i)
        Sim_PC = Im_Code(Sim_PC + Befehl_Laenge(Byte_An(Sim_PC)));
}

std::int32_t Editor_Zeile_Von(std::int32_t Zeile)
{
    std::int32_t Fremde = 0;
    for (std::int32_t i = 0; i <= Zeile && i < Zeilen_Anzahl(); ++i)
        Fremde += Ist_Haupttext(i) ? 0 : 1;
    for (const Include_Eintrag& e : Include_Liste)
        Fremde -= e.Erste_Zeile < Zeile ? 1 : 0;
    return Zeile - Fremde;
}

std::int32_t Zeile_Von_Editor(std::int32_t Editor)
{
    std::int32_t Zeile = Editor;
    for (const Include_Eintrag& e : Include_Liste)
        if (e.Erste_Zeile < Zeile)
            Zeile += e.Zeilen - 1;
    return std::clamp(Zeile, std::int32_t{0}, std::max(Zeilen_Anzahl() - 1, 0));
}

} // namespace varnholt
