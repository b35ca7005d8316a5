// Any text through the assembler. An INCLUDE finds the files of an empty program folder only. A
// small first byte chooses the options, so that both readings of numbers and the debugger's are
// tried.
#include "core/commands.h"
#include "core/platform.h"
#include "core/reset.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Textdatei.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace varnholt {

static void Einmal(std::string Text)
{
    const std::uint8_t Wahl = Text.empty() ? 0 : static_cast<std::uint8_t>(Text.front());
    Alles_Zuruecksetzen();
    Sprache             = "E";
    Programm_Pfad       = "./";
    Zahlendeutung       = Wahl < 16 && (Wahl & 1) != 0;
    O_MOV_ZQ            = !(Wahl < 16 && (Wahl & 2) != 0);
    Debugger_Aktiv      = Wahl < 16 && (Wahl & 4) != 0;
    C_Erstelle_Listfile = false;
    Plattform.Edit->Text_Setzen(Text_Entschluesseln(std::move(Text)).Text);
    Assemblieren();
}

} // namespace varnholt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge)
{
    varnholt::Einmal(std::string(reinterpret_cast<const char*>(Daten), Laenge));
    return 0;
}
