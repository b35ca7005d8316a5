// A battery-backed RAM with a clock: its last eight bytes are the clock's registers, which go on by
// the time of the simulated board.
#pragma once

#include "programmer/Simulierte_EEPROMs.h"

#include <cstdint>

namespace varnholt {

// The registers from the end: year, month, day, weekday, hour, minute, second, control; all but the
// last are binary-coded decimal. Bit 7 of the second stops the oscillator. While bit 7 or 6 of the
// control byte is 1 the registers stand still: after bit 6 they catch up, after bit 7 they go on
// from what was written (ST M48T08 data sheet).
class Simulierte_48T : public Simuliertes_EEPROM {
public:
    explicit Simulierte_48T(std::int32_t Groesse);

    void Zeit(std::int64_t Jetzt) override;

private:
    enum Register_T : std::uint8_t {
        Jahr = 1,
        Monat,
        Tag,
        Wochentag,
        Stunde,
        Minute,
        Sekunde,
        Kontrolle
    };

    std::uint8_t& Register(Register_T Welches);
    bool          Weiterzaehlen(Register_T Welches, int Erster, int Letzter);
    int           Monats_Laenge();
    void          Eine_Sekunde();
    void          Aufholen();

    std::int64_t Voll       = 0; // time of the last whole second, microseconds
    std::int64_t Rueckstand = 0; // seconds that the registers are behind
};

} // namespace varnholt
