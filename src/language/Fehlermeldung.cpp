// Showing an assembler error: which line of the editor it is, and the selection there.
#include "language/Fehlermeldung.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"

#include <algorithm>

namespace varnholt {
namespace {

// A double quote is looked for as this control character: the check is kept as users know it, so
// that a `;` in quotes ends the selection.
constexpr char Zitat_Zeichen = 0x1D;

bool Ist_Datei_Fehlt()
{
    return Fehlertext.E == Text_Prozessorfile_Fehlt || Fehlertext.E == Text_Include_Fehlt;
}

// An error inside an included file is shown at the line that includes it.
void Include_Zeile_Waehlen()
{
    for (const Include_Eintrag& e : Include_Liste) {
        if (Zeilen_Index < e.Erste_Zeile || Zeilen_Index >= e.Erste_Zeile + e.Zeilen)
            continue;
        if (!Ist_Datei_Fehlt()) {
            Zeilen_Index = e.Erste_Zeile;
            Fehlertext.D = "Fehler in der einzubindenden Datei: " + Fehlertext.D;
            Fehlertext.E = "Error in the include file!: " + Fehlertext.E;
        }
        return;
    }
}

// Row to editor line: an included file stands for one line of the text.
int Editor_Zeile()
{
    int Zeile = Zeilen_Index;
    for (const Include_Eintrag& e : Include_Liste) {
        if (e.Erste_Zeile >= Zeilen_Index)
            break;
        Zeile -= e.Zeilen - 1;
    }
    return std::max(Zeile, 0);
}

int Letzte_Zeile(std::string_view Text)
{
    return static_cast<int>(std::count(Text.begin(), Text.end(), '\r'));
}

std::size_t Zeilen_Anfang(std::string_view Text, int Zeile)
{
    std::size_t Anfang = 0;
    for (; Zeile > 0; --Zeile)
        Anfang = std::min(Text.find('\r', Anfang) + 2, Text.size());
    return Anfang;
}

} // namespace

Textstelle_T Code_Stelle(std::string_view Zeile)
{
    const std::size_t Anfang = std::min(Zeile.find_first_not_of(" \t\n"), Zeile.size());
    std::size_t       Ende   = Anfang;
    bool              Zitat  = false;
    for (std::size_t k = Anfang; k < Zeile.size(); ++k) {
        Zitat = Zitat != (Zeile[k] == Zitat_Zeichen);
        if (!Zitat && (Zeile[k] == '\'' || Zeile[k] == ';'))
            break;
        if (Zeile[k] != ' ' && Zeile[k] != '\t')
            Ende = k + 1;
    }
    return {static_cast<std::int64_t>(Anfang), static_cast<std::int64_t>(Ende - Anfang)};
}

Textstelle_T Fehler_Bereich(std::string_view Text, int Zeile)
{
    const std::size_t Anfang = Zeilen_Anfang(Text, std::min(Zeile, Letzte_Zeile(Text)));
    const std::size_t CR     = std::min(Text.find('\r', Anfang), Text.size());
    Textstelle_T      Stelle = Code_Stelle(Text.substr(Anfang, CR - Anfang));
    Stelle.Anfang += static_cast<std::int64_t>(Anfang);
    return Stelle;
}

void Fehlermeldung_Zeigen()
{
    const bool Gesperrt = Text_Sperre;
    Text_Sperre         = true;
    Include_Zeile_Waehlen();
    const std::string Text    = Plattform.Edit->Text();
    Fehler_Zeile              = std::min(Editor_Zeile(), Letzte_Zeile(Text));
    const Textstelle_T Stelle = Fehler_Bereich(Text, Fehler_Zeile);
    Plattform.Edit->Auswaehlen(static_cast<std::int64_t>(Text.size()), 0); // scrolls the view
    Plattform.Edit->Auswaehlen(Stelle.Anfang, Stelle.Laenge);
    Text_Sperre = Gesperrt;
    Plattform.Status->Schliessen();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    Melden(Fehlertext, {}, Knoepfe::Ok, Symbol::Kritisch);
    Plattform.Edit->Fokus();
    Assembler_Fehler = 1;
}

} // namespace varnholt
