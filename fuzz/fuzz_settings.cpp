// Fuzz target: the settings file as start-up meets it. Any bytes leave values within their ranges,
// and what is written is read back as the same.
#include "Eingabe.h"

#include "core/settings.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "programmer/Geraete.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace varnholt;
using varnholt::fuzz::Muss;

void Werte_Pruefen()
{
    Muss(IC_Nummer >= -1 && IC_Nummer < Geraete_Anzahl);
    Muss(Undo_Max >= -1 && Undo_Max <= 998);
    Muss(Autosave_Nummer >= 0 && Autosave_Nummer <= 19);
    Muss(O_Automatik_Bef >= 0 && O_Automatik_Bef <= 2);
    Muss(Hintergrund_Farbe > 0 && Hintergrund_Farbe <= 0xFFFFFF);
    Muss(Zoom >= Zoom_Mindestens && Zoom <= Zoom_Hoechstens);
    for (const Schrift_T& s : Schriften)
        Muss(s.Groesse >= 0 && s.Groesse <= 200);
    Muss((Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar) == -1) !=
         (Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar) == -1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Sprache = "E";
    Einstellungen_Lesen(std::string(Daten, Daten + Anzahl));
    Werte_Pruefen();
    const std::string Eins = Einstellungen_Schreiben();
    Muss(Eins.size() < Einstellungen_Hoechstens);
    Muss(Einstellungen_Lesen(Eins) == 0);
    Muss(Einstellungen_Schreiben() == Eins);
    return 0;
}
