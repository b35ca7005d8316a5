// Flash memories that are erased as a whole: the 28F, which takes commands, and the 27SF, which is
// programmed as an EPROM.
#pragma once

#include "programmer/Simulierte_Bausteine.h"

#include <cstdint>

namespace varnholt {

// A 28F with 12 V programming. Without the supply it only reads. With it, write strobes go to its
// command register (Intel 28F010 data sheet): 40h and a byte programs, C0h shows the cell for the
// check, 20h twice erases, A0h shows a cell after an erase, FFh twice gives everything up. Program
// and erase go on until the next command, or until the supply goes.
class Simuliertes_28F : public Simulierter_Baustein {
public:
    using Simulierter_Baustein::Simulierter_Baustein;

    std::uint8_t Ausgabe(std::uint32_t Adresse) const override;
    void         Schreiben(std::uint32_t Adresse,
                           std::uint8_t  Bus,
                           std::int64_t  Beginn,
                           std::int64_t  Jetzt) override;
    void         Versorgung(bool An, std::int64_t Jetzt) override;
    void         Vorleben_Vergessen() override;

    // Microseconds of erasing that make a sound device blank; they sum up over several erases.
    static constexpr double Loeschzeit = 50000;

private:
    enum class Betrieb { Lesen, Vor_Programmieren, Programmieren, Vor_Loeschen, Loeschen };

    void Vorgang_Beenden(std::int64_t Jetzt);
    void Befehl(std::uint8_t Wert);

    bool          Versorgt     = false;
    Betrieb       Was          = Betrieb::Lesen;
    std::int64_t  Seit         = 0; // begin of the program or erase in progress
    std::uint32_t Stelle       = 0; // what is being programmed
    std::uint8_t  Wert_Dafuer  = 0xFF;
    double        Loesch_Summe = 0; // erase time since the last write or full erase
};

// A 27SF: an EPROM that a pulse with 12 V at address bit 9 erases.
class Simuliertes_27SF : public Simulierter_Baustein {
public:
    using Simulierter_Baustein::Simulierter_Baustein;

    // True for a pulse that is long enough to be an erase at all.
    bool Loeschpuls(std::int64_t Dauer) override;
};

} // namespace varnholt
