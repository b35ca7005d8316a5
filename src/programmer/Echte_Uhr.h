// The real clock and real sleep, shared by the ports that lead to hardware.
#pragma once

#include "core/platform.h"

namespace varnholt {

// Everything of a port driver that isn't the port. Announced waits are no business of real time.
class Echte_Uhr : public Porttreiber {
public:
    int         KS_calibrateMachineTime(std::uint32_t& Wert) override;
    int         KS_getMachineTime(std::int64_t& Stempel) override;
    std::string KS_getErrorStringEx(int Code) override; // Code is an errno value
    void        Sleep(int Millisekunden) override;
    double      Sekunden_seit_Mitternacht() override;
    void        Wartet(std::int64_t) override {}
    void        Sekunden_Wartet(double) override {}
};

} // namespace varnholt
