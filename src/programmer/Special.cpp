// Start of the port driver, and the timing primitives of the device routines.
#include "programmer/Special.h"

#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Zustand.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int              Register_Anzahl     = 3;   // data, status, control
constexpr std::size_t      Treibertext_Maximum = 255; // characters of the driver's text
constexpr std::string_view Treiber_Titel       = "Kithara port driver";

std::string Treibertext(int Code)
{
    const std::string Text =
        Plattform.Port->KS_getErrorStringEx(Code).substr(0, Treibertext_Maximum);
    return Text.substr(0, Text.find('\0'));
}

// Result of the first step of the start that failed, 0 when all of them worked.
int Treiber_Starten()
{
    Treiber_Ergebnis = Plattform.Port->KS_openDriver();
    if (Treiber_Ergebnis > 0)
        return Treiber_Ergebnis;
    const int Eichung = Treiber_Ergebnis = Plattform.Port->KS_calibrateMachineTime(Eichwert);
    Treiber_Ergebnis = Plattform.Port->KS_enableIoRange(Port_Basis, Register_Anzahl);
    if (Treiber_Ergebnis > 0)
        return Treiber_Ergebnis;
    return Eichung > 0 ? Eichung : 0;
}

} // namespace

void Porttreiber_Laden()
{
    const int Fehler = Treiber_Starten();
    if (Fehler == 0)
        Porttreiber_OK = true;
    else
        Porttreiber_Fehler(Fehler,
                           Treiber_Titel,
                           {"Die Porttreiber konnten nicht geladen werden!",
                            "Portdriver has not been loaded sucessfully."});
}

void Porttreiber_Fehler(int Code, std::string_view Titel, const Text_Paar& Text)
{
    const std::string Zusatz = fmt::format(
        "{}ERROR = &H{:X} ('{}')", CRLF, static_cast<std::uint32_t>(Code), Treibertext(Code));
    Melden({Text.D + Zusatz, Text.E + Zusatz},
           {std::string(Titel), std::string(Titel)},
           Knoepfe::Ok,
           Symbol::Warnung);
}

std::int64_t Maschinenzeit()
{
    std::int64_t Stempel = 0;
    Treiber_Ergebnis     = Plattform.Port->KS_getMachineTime(Stempel);
    return Stempel;
}

// The wait is announced behind the first stamp, so that a clock that jumps over it lets it end.
void Warte_Mikrosekunden(std::int64_t Dauer)
{
    Dauer          = std::min(Dauer, Wartezeit_Hoechstens);
    Stempel_Anfang = Maschinenzeit();
    Plattform.Port->Wartet(Dauer);
    do
        Stempel_Jetzt = Maschinenzeit();
    while (!Wartezeit_Um(Stempel_Anfang, Stempel_Jetzt, Dauer));
}

void Warte_Millisekunde() { Warte_Mikrosekunden(1000); }

void Warte_Sekunden(double Sekunden)
{
    const double Anfang = Plattform.Port->Sekunden_seit_Mitternacht();
    Plattform.Port->Sekunden_Wartet(Sekunden);
    while (Plattform.Port->Sekunden_seit_Mitternacht() < Anfang + Sekunden) {
    }
}

void Puls_Abwarten(std::int64_t Dauer)
{
    Dauer = std::min(Dauer, Wartezeit_Hoechstens);
    Plattform.Port->Wartet_Seit(Puls_Anfang, Dauer);
    do
        Puls_Jetzt = Maschinenzeit();
    while (!Wartezeit_Um(Puls_Anfang, Puls_Jetzt, Dauer));
}

} // namespace varnholt
