// A port that hands every operation on to another one and writes it down, a line each.
#pragma once

#include "core/platform.h"

#include <iosfwd>
#include <string>

namespace varnholt {

// Lines: `W D hh` and `W C hh` write data and control, `R S hh` read status, `U n` busy wait of n
// microseconds, `M n` Sleep of n milliseconds, `S n` wait of n seconds. The clock isn't recorded.
class Aufzeichnung : public Porttreiber {
public:
    // Both must live longer than the recorder. What is written lies in a buffer until Abschliessen.
    Aufzeichnung(Porttreiber& Dahinter, std::ostream& Ziel);
    ~Aufzeichnung() override;
    Aufzeichnung(const Aufzeichnung&)            = delete;
    Aufzeichnung& operator=(const Aufzeichnung&) = delete;

    // Writes the buffer out; false when the stream failed now or before.
    bool Abschliessen();

    int          KS_openDriver() override;
    int          KS_calibrateMachineTime(std::uint32_t& Wert) override;
    int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) override;
    void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert) override;
    std::uint8_t KS_inpb(std::int32_t Adresse) override;
    int          KS_getMachineTime(std::int64_t& Stempel) override;
    std::string  KS_getErrorStringEx(int Code) override;
    void         Sleep(int Millisekunden) override;
    double       Sekunden_seit_Mitternacht() override;
    void         Wartet(std::int64_t Mikrosekunden) override;
    void         Wartet_Seit(std::int64_t Anfang, std::int64_t Dauer) override;
    void         Sekunden_Wartet(double Sekunden) override;

private:
    void Register_Zeile(char Richtung, std::int32_t Adresse, std::uint8_t Wert);
    void Zeile_Beenden();

    Porttreiber&  Port;
    std::ostream& Strom;
    std::string   Puffer{};
};

} // namespace varnholt
