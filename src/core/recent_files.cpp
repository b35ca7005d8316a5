// The three recent files.
#include "core/commands.h"
#include "core/shared_state.h"

#include <utility>

namespace varnholt {

void Letzte_Dateien()
{
    if (Datei_Name == Letzte_Datei[0])
        return;
    if (Datei_Name == Letzte_Datei[1]) {
        std::swap(Letzte_Datei[0], Letzte_Datei[1]);
        return;
    }
    if (!Letzte_Datei[1].empty())
        Letzte_Datei[2] = Letzte_Datei[1];
    if (!Letzte_Datei[0].empty())
        Letzte_Datei[1] = Letzte_Datei[0];
    Letzte_Datei[0] = Datei_Name;
}

} // namespace varnholt
