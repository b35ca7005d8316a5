// A port that hands every operation on to another one and writes it down, a line each.
#include "programmer/Aufzeichnung.h"

#include "core/settings.h"

#include <fmt/format.h>

#include <iterator>
#include <ostream>
#include <string_view>

namespace varnholt {
namespace {

constexpr std::size_t      Puffer_Groesse = 1u << 16;
constexpr std::string_view Hex_Ziffern    = "0123456789ABCDEF";
constexpr std::string_view Register_Namen = "DSC"; // by distance from Port_Basis

char Register_Name(std::int32_t Adresse)
{
    const std::int64_t Abstand = std::int64_t{Adresse} - Port_Basis;
    return Abstand >= 0 && Abstand < 3 ? Register_Namen[static_cast<std::size_t>(Abstand)] : '?';
}

// Seconds with a point, as short as they can be told apart.
std::string Sekunden_Text(double Sekunden)
{
    const std::string Text = fmt::format("{}", Sekunden);
    return Text.find_first_of(".en") == std::string::npos ? Text + ".0" : Text;
}

} // namespace

Aufzeichnung::Aufzeichnung(Porttreiber& Dahinter, std::ostream& Ziel) : Port(Dahinter), Strom(Ziel)
{
    Puffer.reserve(Puffer_Groesse + 64);
}

Aufzeichnung::~Aufzeichnung() { Abschliessen(); }

bool Aufzeichnung::Abschliessen()
{
    Strom.write(Puffer.data(), static_cast<std::streamsize>(Puffer.size()));
    Strom.flush();
    Puffer.clear();
    return Strom.good();
}

void Aufzeichnung::Zeile_Beenden()
{
    Puffer += '\n';
    if (Puffer.size() < Puffer_Groesse)
        return;
    Strom.write(Puffer.data(), static_cast<std::streamsize>(Puffer.size()));
    Puffer.clear();
}

void Aufzeichnung::Register_Zeile(char Richtung, std::int32_t Adresse, std::uint8_t Wert)
{
    const char Zeile[] = {
        Richtung, ' ', Register_Name(Adresse), ' ', Hex_Ziffern[Wert >> 4], Hex_Ziffern[Wert & 15]};
    Puffer.append(Zeile, sizeof Zeile);
    Zeile_Beenden();
}

int Aufzeichnung::KS_openDriver() { return Port.KS_openDriver(); }

int Aufzeichnung::KS_calibrateMachineTime(std::uint32_t& Wert)
{
    return Port.KS_calibrateMachineTime(Wert);
}

int Aufzeichnung::KS_enableIoRange(std::int32_t Adresse, int Anzahl)
{
    return Port.KS_enableIoRange(Adresse, Anzahl);
}

void Aufzeichnung::KS_outpb(std::int32_t Adresse, std::uint8_t Wert)
{
    Register_Zeile('W', Adresse, Wert);
    Port.KS_outpb(Adresse, Wert);
}

std::uint8_t Aufzeichnung::KS_inpb(std::int32_t Adresse)
{
    const std::uint8_t Wert = Port.KS_inpb(Adresse);
    Register_Zeile('R', Adresse, Wert);
    return Wert;
}

int Aufzeichnung::KS_getMachineTime(std::int64_t& Stempel)
{
    return Port.KS_getMachineTime(Stempel);
}

std::string Aufzeichnung::KS_getErrorStringEx(int Code) { return Port.KS_getErrorStringEx(Code); }

void Aufzeichnung::Sleep(int Millisekunden)
{
    fmt::format_to(std::back_inserter(Puffer), "M {}", Millisekunden);
    Zeile_Beenden();
    Port.Sleep(Millisekunden);
}

double Aufzeichnung::Sekunden_seit_Mitternacht() { return Port.Sekunden_seit_Mitternacht(); }

void Aufzeichnung::Wartet(std::int64_t Mikrosekunden)
{
    fmt::format_to(std::back_inserter(Puffer), "U {}", Mikrosekunden);
    Zeile_Beenden();
    Port.Wartet(Mikrosekunden);
}

// The whole length, whatever of it had passed already.
void Aufzeichnung::Wartet_Seit(std::int64_t Anfang, std::int64_t Dauer)
{
    fmt::format_to(std::back_inserter(Puffer), "U {}", Dauer);
    Zeile_Beenden();
    Port.Wartet_Seit(Anfang, Dauer);
}

void Aufzeichnung::Sekunden_Wartet(double Sekunden)
{
    Puffer += "S " + Sekunden_Text(Sekunden);
    Zeile_Beenden();
    Port.Sekunden_Wartet(Sekunden);
}

} // namespace varnholt
