// The memory devices in the socket of a simulated board: what their cells hold, and what a
// programming pulse does to them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace varnholt {

// Cells of an EPROM. A bit only goes from 1 to 0, and only when the pulses that it got sum up to
// the threshold of its cell. A bit that the bus holds at 1 isn't touched. The other families are
// derived from it, each in its own file; what an EPROM doesn't do is empty here.
class Simulierter_Baustein {
public:
    // An erased device. Schwelle is the pulse time in microseconds that a sound cell needs, at
    // least 1.
    Simulierter_Baustein(std::int32_t Groesse, std::int64_t Schwelle);
    virtual ~Simulierter_Baustein()                              = default;
    Simulierter_Baustein(const Simulierter_Baustein&)            = default;
    Simulierter_Baustein(Simulierter_Baustein&&)                 = default;
    Simulierter_Baustein& operator=(const Simulierter_Baustein&) = default;
    Simulierter_Baustein& operator=(Simulierter_Baustein&&)      = default;

    // The byte at Adresse. The address lines beyond the device don't reach it, so that a smaller
    // device repeats itself; where its size is no power of two the gap reads FFh.
    std::uint8_t Lesen(std::uint32_t Adresse) const;
    // One pulse of Dauer microseconds with Bus on the data lines.
    void Puls(std::uint32_t Adresse, std::uint8_t Bus, std::int64_t Dauer);

    // ---- What the board does to the device; times in microseconds of its clock ----

    // Brings what the device does by itself up to Jetzt.
    virtual void Zeit(std::int64_t /*Jetzt*/) {}
    // What it puts on the bus while its outputs are on, as of the last Zeit.
    virtual std::uint8_t Ausgabe(std::uint32_t Adresse) const { return Lesen(Adresse); }
    // Its outputs go on.
    virtual void Ausgabe_Beginnen() {}
    // A strobe of its write line is over: it fell at Beginn, with Adresse, and rose now, with Bus.
    virtual void Schreiben(std::uint32_t /*Adresse*/,
                           std::uint8_t /*Bus*/,
                           std::int64_t /*Beginn*/,
                           std::int64_t /*Jetzt*/)
    {
    }
    // Its programming supply comes or goes.
    virtual void Versorgung(bool /*An*/, std::int64_t /*Jetzt*/) {}
    // A strobe with 12 V at its erase pin is over. False: the device knows no such erase.
    virtual bool Loeschpuls(std::int64_t /*Dauer*/) { return false; }
    // Ends what the device does by itself, as if it were left alone for a while.
    virtual void Fertigstellen() {}

    // All cells to FFh, as after an erase or under UV light.
    void Loeschen();
    // The cells were given other contents from outside: what pulses and erases have done so far no
    // longer counts. The faults stay.
    virtual void Vorleben_Vergessen();

    // Faults. An erase takes Loesch_Faktor times as long as that of a sound device. A weak cell
    // needs Faktor times the threshold in total, in at least Pulse pulses.
    void Schwache_Zelle(std::uint32_t Adresse, int Pulse, double Faktor = 1.0);
    // The bits of Maske stay 1 whatever happens.
    void   Tote_Zelle(std::uint32_t Adresse, std::uint8_t Maske);
    double Loesch_Faktor = 1.0;
    // How many cells, and pages, have such a fault.
    virtual std::size_t Gestoerte_Stellen() const;

    std::vector<std::uint8_t> Inhalt;          // by device address
    int                       Sperr_Stufe = 0; // lock level of a microcontroller, 0 open

protected:
    // A cell that is no sound one at rest: weak or dead, or on its way to 0.
    struct Zelle_T {
        int                         Pulse_Noetig = 1;
        double                      Faktor       = 1.0;
        std::uint8_t                Tot          = 0; // bits that can't be programmed
        std::array<std::int64_t, 8> Summe{};          // pulse time by bit
        std::array<int, 8>          Pulse{};          // pulses by bit
    };

    bool                                       Vorhanden(std::uint32_t& Adresse) const;
    std::unordered_map<std::uint32_t, Zelle_T> Besondere{};

private:
    std::uint8_t Bits_Nach_Puls(Zelle_T& Zelle, std::uint8_t Bits, std::int64_t Dauer) const;

    std::uint32_t Adress_Maske;
    std::int64_t  Schwelle;
};

} // namespace varnholt
