// The whole program as at its start. A new state group gets its line here.
#include "core/reset.h"

#include "core/captions.h"
#include "core/clipboard.h"
#include "core/instance.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/options.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "core/undo.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Bereiche.h"
#include "editors/Einfaerben.h"
#include "editors/HexSuche.h"
#include "editors/Hexedit.h"
#include "editors/Hilfe.h"
#include "editors/Nachschlagen.h"
#include "editors/Quelltext.h"
#include "editors/Sprungmarken.h"
#include "editors/Suche.h"
#include "files/Datei_Zustand.h"
#include "files/Drucken.h"
#include "language/Assembler_Zustand.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Geraete.h"
#include "programmer/Geraetemenue.h"
#include "programmer/Port_Einrichtung.h"
#include "simulator/Debug.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"

namespace varnholt {

void Alles_Zuruecksetzen()
{
    Gemeinsames_Zuruecksetzen();
    Optionen_Zuruecksetzen();
    Optionen_Form      = {};
    Fensterlage        = {};
    Menues             = {};
    Oberflaeche        = {};
    Ablage             = {};
    Ansichten          = {};
    Editor_Titel_Stand = {};
    Assembler_Zuruecksetzen();
    Quelltext_Zuruecksetzen();
    Einfaerben_Zuruecksetzen();
    Sprungmarken_Zuruecksetzen();
    Hexedit_Zuruecksetzen();
    Hilfe_Zuruecksetzen();
    Nachschlagen_Zuruecksetzen();
    Suche_Zuruecksetzen();
    HexSuche_Zuruecksetzen();
    Bereich_Zuruecksetzen();
    Dateien_Zuruecksetzen();
    Druckauftrag = {};
    Maschine_Zuruecksetzen();
    Sitzung_Zuruecksetzen();
    Sim_Ansichten_Zuruecksetzen();
    Geraete_Zuruecksetzen();
    Geraetemenue_Zuruecksetzen();
    Brenner_Zuruecksetzen();
    Startlauf = {};
    Undo      = {};
    Instanz_Zuruecksetzen();
    Plattform_Zuruecksetzen();
    Port_Einrichtung_Zuruecksetzen();
}

} // namespace varnholt
