// The Tessel1 board as a port driver, with a 20-pin microcontroller in its socket.
//
// D3 = 1 has the part's RST pin at 5 V, 0 at 12 V; D2 pulls it to 0 V, which resets the address
// counter. D1 is its clock, D0 the programming pulse (active low). The control lines are the mode
// pins P3.3, P3.4, P3.5, P3.7, those at C0, C1 and C3 inverted: 7 reads, 5 writes, 4 and 8 program
// the lock bits, 10 erases. In the mode 5 with D3 = 1 the part shows its signature.
#pragma once

#include "programmer/Simuliertes_MC_Board.h"

#include <utility>

namespace varnholt {

class Simulierter_Tessel1 : public Simuliertes_MC_Board {
public:
    explicit Simulierter_Tessel1(Simulierter_MC Eingesteckt) { Im_Sockel = std::move(Eingesteckt); }

protected:
    void         Daten_Folgen(std::uint8_t Vorher) override;
    void         Steuerung_Folgen(std::uint8_t Vorher) override;
    std::uint8_t Getrieben() const override;
    std::uint8_t Status_Von(unsigned Leitungen, bool Auswahl, bool Bereit) const override;

private:
    bool Mit_12V() const;
    void Puls_Beginnen();
    void Puls_Beenden();

    bool         Puls_Laeuft = false;
    std::int64_t Puls_Beginn = 0; // simulated microseconds
};

} // namespace varnholt
