// The captions of the two editors.
#include "core/captions.h"

#include "core/platform.h"
#include "core/shared_state.h"
#include "core/windows.h"

#include <string>

namespace varnholt {
namespace {

void Titel_Setzen(int Nummer, bool Geaendert, const std::string& Datei)
{
    const std::string Name = Nummer == Fenster_Edit ? "MC-Editor " : "Hex-Editor ";
    Plattform.Ereignisse->Titel(Nummer, Name + (Geaendert ? "(*)" : "") + Datei);
}

void Beide_Titel(bool Geaendert)
{
    const bool Hex = Modus == Modus_Hex;
    Titel_Setzen(Hex ? Fenster_Edit : Fenster_Hexedit, Geaendert, Datei_Name);
    Titel_Setzen(Hex ? Fenster_Hexedit : Fenster_Edit, Geaendert, Datei_Name);
}

} // namespace

void Editor_Titel(int Nummer, bool Geaendert)
{
    if (Nummer == Fenster_Edit)
        Editor_Titel_Stand.Quelle_Offen = Geaendert;
    Titel_Setzen(Nummer, Geaendert, Datei_Name);
}

void Editor_Titel_Ohne_Namen(int Nummer) { Titel_Setzen(Nummer, true, {}); }

void Titel_Geaendert() { Beide_Titel(true); }

void Titel_Gespeichert()
{
    Editor_Titel_Stand.Quelle_Offen = false;
    Beide_Titel(false);
}

void Titel_Nach_Speichern()
{
    if (Modus == Modus_Hex && Editor_Titel_Stand.Quelle_Offen)
        return Editor_Titel(Fenster_Hexedit, false);
    Titel_Gespeichert();
}

} // namespace varnholt
