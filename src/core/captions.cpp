// The captions of the two editors.
#include "core/captions.h"

#include "core/platform.h"
#include "core/shared_state.h"
#include "core/windows.h"

#include <string>

namespace varnholt {
namespace {

void Beide_Titel(bool Geaendert)
{
    const bool Hex = Modus == Modus_Hex;
    Editor_Titel(Hex ? Fenster_Edit : Fenster_Hexedit, Geaendert);
    Editor_Titel(Hex ? Fenster_Hexedit : Fenster_Edit, Geaendert);
}

} // namespace

void Editor_Titel(int Nummer, bool Geaendert)
{
    const std::string Name = Nummer == Fenster_Edit ? "MC-Editor " : "Hex-Editor ";
    Plattform.Ereignisse->Titel(Nummer, Name + (Geaendert ? "(*)" : "") + Datei_Name);
}

void Titel_Geaendert() { Beide_Titel(true); }
void Titel_Gespeichert() { Beide_Titel(false); }

} // namespace varnholt
