// Fuzz target: the device database as the program meets it. Any bytes leave a sound table.
#include "core/shared_state.h"
#include "files/Textdatei.h"
#include "programmer/Specifications.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

using namespace varnholt;

constexpr std::size_t Text_Hoechstens = 3000; // bytes of a cut line as UTF-8

void Verlangen(bool Wahr)
{
    if (!Wahr)
        std::abort();
}

void Geraet_Pruefen(std::size_t i)
{
    const Geraet_T& g = Geraete_Tabelle[i];
    Verlangen(g.Bytes >= 0 && g.Bytes <= Bild_Groesse && IC_Groesse[i + 1] == g.Bytes);
    Verlangen(g.Name.size() <= Text_Hoechstens && g.R_Typ.size() <= Text_Hoechstens);
    Verlangen(g.Name.empty() || i < 600);
    IC_Waehlen(static_cast<int>(i));
    Verlangen(IC_Nummer == -1 || (IC_Nummer == static_cast<int>(i) && !MNU_IC_Titel().empty()));
}

void Tabelle_Pruefen()
{
    for (const int n : Geraete.Gruppen_Belegt)
        Verlangen(n >= 0 && n <= Gruppen_Plaetze);
    for (std::size_t i = 0; i < Geraete_Tabelle.size(); ++i)
        Geraet_Pruefen(i);
    Verlangen(Geraet_Suchen(Geraete_Tabelle[0].Name) <= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    std::string Bytes(Daten, Daten + Anzahl);
    Sprache = Bytes.ends_with('D') ? "D" : "E";
    Spec_Auswerten(Text_Entschluesseln(std::move(Bytes)).Text);
    Tabelle_Pruefen();
    return 0;
}
