// Choosing and making the driver of the port.
#include "programmer/Port_Einrichtung.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Geraete.h"
#include "programmer/Port_direkt.h"
#include "programmer/Port_ppdev.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"

#include <fmt/format.h>

#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace varnholt {
namespace {

constexpr int Ports_Gesucht = 4; // /dev/parport0 to /dev/parport3

constexpr std::uint8_t Leitungen_In_Ruhe = 0x4A; // data register of an idle programmer

bool Ist_Ppdev(std::string_view Art) { return Art.starts_with(Art_Ppdev) && Art != Art_Ppdev; }

bool Bekannt(std::string_view Art)
{
    return Art == Art_Simuliert || Art == Art_Direkt || Ist_Ppdev(Art);
}

bool Laesst_Sich_Oeffnen(const std::string& Geraetedatei)
{
    const int Griff = ::open(Geraetedatei.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (Griff >= 0)
        ::close(Griff);
    return Griff >= 0;
}

std::vector<std::string> Parallelports()
{
    std::vector<std::string> Liste;
    for (int i = 0; i < Ports_Gesucht; ++i)
        Liste.push_back("/dev/parport" + std::to_string(i));
    return Liste;
}

// A number without a device leaves an Eprommer with an empty socket.
std::unique_ptr<Porttreiber> Simulierter_Treiber()
{
    if (auto Board = Simuliertes_Board_Fuer(IC_Nummer))
        return Board;
    return std::make_unique<Simulierter_Eprommer>();
}

std::unique_ptr<Porttreiber> Treiber_Fuer(std::string_view Art)
{
    if (Ist_Ppdev(Art))
        return std::make_unique<Port_ppdev>(std::string(Art.substr(Art_Ppdev.size())));
    if (Art == Art_Direkt)
        return std::make_unique<Port_direkt>();
    return Simulierter_Treiber();
}

} // namespace

std::string Port_Art_Suchen(std::span<const std::string> Geraetedateien)
{
    for (const std::string& Datei : Geraetedateien)
        if (Laesst_Sich_Oeffnen(Datei))
            return std::string(Art_Ppdev) + Datei;
    return std::string(Art_Simuliert);
}

void Port_Einrichten()
{
    if (!Bekannt(Port_Art))
        Port_Art = Port_Art_Suchen(Parallelports());
    // The old driver goes after the new one is in place: it may hold the port that others look at.
    const auto Bisher = std::exchange(Port_Einrichtung.Treiber, Treiber_Fuer(Port_Art));
    Plattform.Port    = Port_Einrichtung.Treiber.get();
}

void Port_Neu_Oeffnen()
{
    Port_Einrichten();
    Porttreiber_Laden();
    Leitungen_Ruhen();
}

void Leitungen_Ruhen()
{
    if (Porttreiber_OK)
        Plattform.Port->KS_outpb(Port_Basis, Leitungen_In_Ruhe);
}

std::string Port_Beschreibung()
{
    if (Ist_Ppdev(Port_Art))
        return Port_Art.substr(Art_Ppdev.size());
    if (Port_Art == Art_Direkt)
        return fmt::format("{:X}h", static_cast<std::uint32_t>(Port_Basis));
    return Sprache == "D" ? "Simuliert" : "Simulated";
}

} // namespace varnholt
