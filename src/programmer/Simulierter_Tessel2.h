// The Tessel2 board as a port driver, with a 40-pin microcontroller in its socket.
//
// D4 = 1 puts the programming voltage on, D0 chooses it (0: 12 V, 1: 5 V); D3 clocks the address
// counter; D2 is the write strobe, active low. The control lines are the mode pins P2.6, P2.7,
// P3.6, P3.7, those at C0, C1 and C3 inverted: 7 reads, 5 writes, 4, 8 and 14 program the lock
// bits, 10 or 12 erases, 11 shows the signature and resets the counter. The lock state of an 89S
// part stands on the bus in the mode 8, that of an 89C55WD in the mode 12.
#pragma once

#include "programmer/Simuliertes_MC_Board.h"

#include <utility>

namespace varnholt {

class Simulierter_Tessel2 : public Simuliertes_MC_Board {
public:
    Simulierter_Tessel2() = default; // an empty socket
    explicit Simulierter_Tessel2(Simulierter_MC Eingesteckt) { Im_Sockel = std::move(Eingesteckt); }

protected:
    void         Daten_Folgen(std::uint8_t Vorher) override;
    void         Steuerung_Folgen(std::uint8_t Vorher) override;
    std::uint8_t Getrieben() const override;
    std::uint8_t Status_Von(unsigned Leitungen, bool Auswahl, bool Bereit) const override;

private:
    bool Spannung_Stimmt() const;
    bool Loesch_Pegel() const;
    bool Sperr_Pegel() const;
    int  Sperrbit() const;
    void Schreiben_Verfolgen(std::uint8_t Vorher);
    void Loeschen_Verfolgen();
    void Sperren_Verfolgen(bool Neue_Betriebsart);
    void Sperren_SII_Verfolgen(std::uint8_t Vorher);

    // The pulse that is on: since when, and whether it is one.
    struct Puls_T {
        bool         Laeuft = false;
        std::int64_t Beginn = 0; // simulated microseconds
    };
    std::int64_t Puls_Zu_Ende(Puls_T& Puls, bool Pegel) const;

    Puls_T Loesch_Puls{};
    Puls_T Sperr_Puls{};
    int    Sperr_Bit  = 0;     // the lock bit that the pulse is for
    bool   SII_Bereit = false; // the strobe of the 89SII lock routine was there
    int    SII_Bits   = 0;     // lock bits shifted since then
};

} // namespace varnholt
