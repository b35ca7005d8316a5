// The notes of a document.
#include "editors/Notiz.h"

#include "core/captions.h"
#include "core/shared_state.h"
#include "core/windows.h"

namespace varnholt {

void Notiz_Change()
{
    if (Text_Sperre)
        return;
    Datei_Geaendert = true;
    Titel_Geaendert(); // the source may have marked its own editor before
}

void Notiz_Activate() { Aktives_Fenster = Fenster_Notiz; }
void Notiz_Deactivate() { Fenster_Merken(Fenster_Notiz); }

} // namespace varnholt
