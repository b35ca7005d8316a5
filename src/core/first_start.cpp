// The two dialogs of a first start: language and mode.
#include "core/commands.h"
#include "core/platform.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/startup.h"

namespace varnholt {
namespace {

void Modus_Waehlen(int Neuer)
{
    Modus          = Neuer;
    Modus_Gewaehlt = true;
    Init();
    Plattform.Fenster->Formular_Entladen(Formular::Abfrage_Modus);
}

} // namespace

void Erststart_Command1_Click()
{
    Sprache                    = Erststart_Englisch ? "E" : "D";
    Startlauf.Sprache_Gewaehlt = true;
    Erststart_Datei_Schreiben(); // without it the next start asks again; this one goes on
    Plattform.Ereignisse->Eine_Runde();
    Init();
    Plattform.Ereignisse->Eine_Runde();
    Plattform.Fenster->Formular_Entladen(Formular::Erststart);
}

void Abfrage_Modus_Button_Mode_1_Click()
{
    Letzte_Datei[0].clear(); // the example belongs to the other mode
    Modus_Waehlen(Modus_Hex);
}

void Abfrage_Modus_Button_Mode_2_Click() { Modus_Waehlen(Modus_MC); }

} // namespace varnholt
