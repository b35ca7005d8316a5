// The end of a debugger session: what belongs to one is disabled and hidden, the text is free
// again.
#include "core/session.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "language/Assembler_Zustand.h"

namespace varnholt {
namespace {

constexpr Menue_Name Sitzungs_Eintraege[] = {"MNU_deb_Starten",
                                             "MNU_deb_up",
                                             "MNU_deb_down",
                                             "MNU_deb_Einzelschritt",
                                             "MNU_jump_cursor",
                                             "MNU_deb_reset_adr",
                                             "MNU_deb_reset",
                                             "MNU_deb_beenden"};

constexpr int Erster_Sitzungsknopf  = 24;
constexpr int Letzter_Sitzungsknopf = 28;

} // namespace

void Sitzung_Schalten(bool Aktiv)
{
    for (const Menue_Name Name : Sitzungs_Eintraege)
        Menue(Name).Aktiv = Aktiv;
    for (int i = Erster_Sitzungsknopf; i <= Letzter_Sitzungsknopf; ++i)
        Werkzeug(i).Aktiv = Aktiv;
}

void Debug_Beenden()
{
    if (Debugger_Aktiv) {
        Undo_Knoepfe_Stellen();
        Quellzeilen_Loeschen();
    }
    Debugger_Aktiv = false;
    Plattform.Edit->Sperren(false);
    Sitzung_Schalten(false);
    for (int i = Fenster_RAM; i <= Fenster_CONTROL; ++i)
        Plattform.Fenster->Sichtbar_Setzen(i, false);
}

void Sitzung_Beenden()
{
    if (Debugger_Aktiv)
        Debug_Beenden();
}

} // namespace varnholt
