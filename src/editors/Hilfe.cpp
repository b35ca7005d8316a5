// The form `Hilfe`: where its text comes from.
#include "editors/Hilfe.h"

#include "core/paths.h"
#include "core/shared_state.h"
#include "files/Dateizugriff.h"
#include "files/Rtf.h"

namespace varnholt {

void Hilfe_Load(std::string_view Layout_Text)
{
    if (Sprache == "D" || Hilfe_Form.Titel.empty())
        Hilfe_Form = {"Hilfe", Rtf_Lesen(Layout_Text).Text};
    if (Sprache != "E")
        return;
    const auto Datei = Datei_Suchen(Programm_Pfad, "help.rtf");
    if (const auto Bytes = Datei ? Datei_Lesen(*Datei, Hilfe_Hoechstens) : std::nullopt)
        Hilfe_Form = {"Help", Rtf_Lesen(*Bytes).Text};
}

} // namespace varnholt
