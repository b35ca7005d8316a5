// The notes of a document.
#include "editors/Notiz.h"

#include "core/platform.h"
#include "core/shared_state.h"
#include "core/windows.h"

namespace varnholt {

void Notiz_Change()
{
    if (Text_Sperre || Datei_Geaendert)
        return;
    Datei_Geaendert = true;
    Plattform.Ereignisse->Titel(Fenster_Edit, "MC-Editor (*)" + Datei_Name);
    Plattform.Ereignisse->Titel(Fenster_Hexedit, "Hex-Editor (*)" + Datei_Name);
}

void Notiz_Activate() { Aktives_Fenster = Fenster_Notiz; }
void Notiz_Deactivate() { Fenster_Merken(Fenster_Notiz); }

} // namespace varnholt
