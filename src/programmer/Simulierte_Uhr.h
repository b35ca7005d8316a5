// The clock of the simulated boards: no wait takes real time, and every duration is counted.
#pragma once

#include "core/platform.h"

namespace varnholt {

// Each look at the clock takes a microsecond; Sleep and announced waits move it by their length.
class Simulierte_Uhr : public Porttreiber {
public:
    int KS_calibrateMachineTime(std::uint32_t& Wert) override
    {
        Wert = 1;
        return 0;
    }
    int KS_getMachineTime(std::int64_t& Stempel) override
    {
        Stempel = ++Mikrosekunden;
        return 0;
    }
    void   Sleep(int Millisekunden) override { Vorstellen(std::int64_t{Millisekunden} * 1000); }
    double Sekunden_seit_Mitternacht() override
    {
        return static_cast<double>(++Mikrosekunden) / 1e6;
    }
    void Wartet(std::int64_t Dauer) override { Vorstellen(Dauer); }
    void Wartet_Seit(std::int64_t Anfang, std::int64_t Dauer) override
    {
        Vorstellen(Dauer - (Mikrosekunden - Anfang));
    }
    // One microsecond more than asked, so that the rounding of the sum can't keep the wait going.
    void Sekunden_Wartet(double Sekunden) override
    {
        Vorstellen(static_cast<std::int64_t>(Sekunden * 1e6) + 1);
    }

    // Simulated microseconds since the board was built.
    std::int64_t Vergangen() const { return Mikrosekunden; }
    // Sets the clock, to bring its low word near the wrap.
    void Uhr_Stellen(std::int64_t Stand) { Mikrosekunden = Stand; }

private:
    void Vorstellen(std::int64_t Dauer) { Mikrosekunden += Dauer > 0 ? Dauer : 0; }

    std::int64_t Mikrosekunden = 0;
};

} // namespace varnholt
