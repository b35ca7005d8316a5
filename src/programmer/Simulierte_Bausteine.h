// The memory devices in the socket of a simulated board: what their cells hold, and what a
// programming pulse does to them.
#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace varnholt {

// Cells of an EPROM or of a 27SF flash part. A bit only goes from 1 to 0, and only when the pulses
// that it got sum up to the threshold of its cell. A bit that the bus holds at 1 isn't touched.
class Simulierter_Baustein {
public:
    // An erased device. Schwelle is the pulse time in microseconds that a sound cell needs, at
    // least 1.
    Simulierter_Baustein(std::int32_t Groesse, std::int64_t Schwelle);

    // The byte at Adresse. The address lines beyond the device don't reach it, so that a smaller
    // device repeats itself; where its size is no power of two the gap reads FFh.
    std::uint8_t Lesen(std::uint32_t Adresse) const;
    // One pulse of Dauer microseconds with Bus on the data lines.
    void Puls(std::uint32_t Adresse, std::uint8_t Bus, std::int64_t Dauer);

    // Faults. A weak cell needs Faktor times the threshold in total, in at least Pulse pulses.
    void Schwache_Zelle(std::uint32_t Adresse, int Pulse, double Faktor = 1.0);
    // The bits of Maske stay 1 whatever happens.
    void Tote_Zelle(std::uint32_t Adresse, std::uint8_t Maske);

    std::vector<std::uint8_t> Inhalt;          // by device address
    int                       Sperr_Stufe = 0; // lock level of a microcontroller, 0 open

private:
    // A cell that is no sound one at rest: weak or dead, or on its way to 0.
    struct Zelle_T {
        int                         Pulse_Noetig = 1;
        double                      Faktor       = 1.0;
        std::uint8_t                Tot          = 0; // bits that can't be programmed
        std::array<std::int64_t, 8> Summe{};          // pulse time by bit
        std::array<int, 8>          Pulse{};          // pulses by bit
    };

    bool         Vorhanden(std::uint32_t& Adresse) const;
    std::uint8_t Bits_Nach_Puls(Zelle_T& Zelle, std::uint8_t Bits, std::int64_t Dauer) const;

    std::uint32_t                              Adress_Maske;
    std::int64_t                               Schwelle;
    std::unordered_map<std::uint32_t, Zelle_T> Besondere{};
};

} // namespace varnholt
