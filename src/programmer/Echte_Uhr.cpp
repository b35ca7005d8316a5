// The real clock and real sleep, shared by the ports that lead to hardware.
#include "programmer/Echte_Uhr.h"

#include <chrono>
#include <ctime>
#include <system_error>
#include <thread>

namespace varnholt {

namespace chrono = std::chrono;

int Echte_Uhr::KS_calibrateMachineTime(std::uint32_t& Wert)
{
    Wert = 1; // microseconds already
    return 0;
}

int Echte_Uhr::KS_getMachineTime(std::int64_t& Stempel)
{
    const auto Seit = chrono::steady_clock::now().time_since_epoch();
    Stempel         = chrono::duration_cast<chrono::microseconds>(Seit).count();
    return 0;
}

std::string Echte_Uhr::KS_getErrorStringEx(int Code)
{
    return std::generic_category().message(Code);
}

void Echte_Uhr::Sleep(int Millisekunden)
{
    std::this_thread::sleep_for(chrono::milliseconds(Millisekunden));
}

double Echte_Uhr::Sekunden_seit_Mitternacht()
{
    const auto        Jetzt = chrono::system_clock::now();
    const std::time_t Zeit  = chrono::system_clock::to_time_t(Jetzt);
    std::tm           Teile{};
    localtime_r(&Zeit, &Teile);
    const auto Bruch = Jetzt - chrono::system_clock::from_time_t(Zeit);
    return Teile.tm_hour * 3600.0 + Teile.tm_min * 60.0 + Teile.tm_sec +
           chrono::duration<double>(Bruch).count();
}

} // namespace varnholt
