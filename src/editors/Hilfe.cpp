// The form `Hilfe`: where its text comes from, and where it stands.
#include "editors/Hilfe.h"

#include "core/paths.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "files/Dateizugriff.h"
#include "files/Rtf.h"

#include <algorithm>
#include <limits>

namespace varnholt {
namespace {

std::int16_t& Platz(Feld Welches) { return Fenster_Wert(0, Fenster_Hilfe, Welches); }

std::int16_t In_16_Bit(int Wert)
{
    using Grenzen = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(Wert, Grenzen::min(), Grenzen::max()));
}

} // namespace

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

Lage_T Hilfe_Lage()
{
    return {Platz(Feld::Oben), Platz(Feld::Links), Platz(Feld::Hoehe), Platz(Feld::Breite)};
}

void Hilfe_Merken(const Lage_T& Neue)
{
    Platz(Feld::Oben)   = In_16_Bit(Neue.Oben);
    Platz(Feld::Links)  = In_16_Bit(Neue.Links);
    Platz(Feld::Hoehe)  = In_16_Bit(Neue.Hoehe);
    Platz(Feld::Breite) = In_16_Bit(Neue.Breite);
}

} // namespace varnholt
