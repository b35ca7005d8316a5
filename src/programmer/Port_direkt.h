// A parallel port by direct access to its registers (x86 and Linux only, with the right to do so).
#pragma once

#include "programmer/Echte_Uhr.h"

namespace varnholt {

// Registers can be reached after KS_enableIoRange only; before it, and outside the range, writes go
// nowhere and reads give FFh.
class Port_direkt : public Echte_Uhr {
public:
    int          KS_openDriver() override;
    int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) override;
    void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert) override;
    std::uint8_t KS_inpb(std::int32_t Adresse) override;
    std::string  KS_getErrorStringEx(int Code) override;

private:
    bool Erreichbar(std::int32_t Adresse) const;

    std::int32_t Erste = 0; // first unlocked address
    int          Zahl  = 0; // unlocked addresses
};

} // namespace varnholt
