// The selected device as its routines see it, and the guards in front of every device command.
#include "programmer/Baustein.h"

#include "core/messages.h"
#include "programmer/Brenner_Zustand.h"

namespace varnholt {
namespace {

const Geraet_T Kein_Geraet{};

} // namespace

const Geraet_T& Geraet_Mit_Nummer(int Nummer)
{
    if (Nummer < 0 || Nummer >= Geraete_Anzahl)
        return Kein_Geraet;
    return Geraete_Tabelle[static_cast<std::size_t>(Nummer)];
}

bool Porttreiber_Bereit()
{
    if (Porttreiber_OK)
        return true;
    Melden({"Porttreiber wurden nicht korrekt geladen. Parallelportzugriff nicht möglich.",
            "Portdriver has not been loaded sucessfully. Parallelport access not possible."});
    return false;
}

bool Baustein_Gewaehlt()
{
    if (IC_Nummer >= 0)
        return true;
    Melden({"Bitte wählen Sie zuerst ein IC im Menü 'Brenner' -> 'IC Wählen' aus.",
            "Please choose first a IC in the menu 'Programmer' -> 'Choose IC'."});
    return false;
}

} // namespace varnholt
