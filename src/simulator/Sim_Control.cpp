// The control panel: both counters and the switches of a run.
#include "core/menu.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"

#include <fmt/format.h>

namespace varnholt {
namespace {

// A negative number keeps its digits; the place of the sign isn't shown.
std::string Ohne_Vorzeichen(std::int32_t Wert)
{
    const std::int64_t w = Wert;
    return fmt::format("{:05}", w < 0 ? -w : w);
}

} // namespace

std::string Zaehler_Text(std::int32_t Wert)
{
    return Ohne_Vorzeichen(Wert) + fmt::format(" / {:05X}h", static_cast<std::uint32_t>(Wert));
}

void Zyklen_Anzeigen()
{
    if (!Menue("MNU_CONTROL").Haken)
        return;
    Sim_Ansichten.L_Adr    = Zaehler_Text(Sim_PC);
    Sim_Ansichten.L_Zyklen = Zaehler_Text(Sim_Zyklen);
    ++Sim_Ansichten.Stand;
}

void Check1_Click(bool An) { Debug_Verzoegerung = An; }

void Check2_Click(bool An)
{
    Debug_Vollgas = An;
    if (!An)
        Sim_Alles_Zeigen();
}

void B_Reset_Zyklen_Click()
{
    Sim_Zyklen = 0;
    Zyklen_Anzeigen();
}

} // namespace varnholt
