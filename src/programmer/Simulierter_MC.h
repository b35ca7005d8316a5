// A flash microcontroller in the socket of a simulated board: its cells, its signature, its address
// counter, the writes that it times by itself, and its lock level.
#pragma once

#include "programmer/Geraete.h"
#include "programmer/Simulierte_Bausteine.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace varnholt {

// A run of addresses that the target sees at consecutive values of its counter.
struct Zaehler_Fenster_T {
    std::uint16_t Zaehler = 0; // counter value of its first address
    std::uint16_t Adresse = 0;
    std::uint32_t Laenge  = 0;
};

// What tells the parts apart: the signature, where it is read, and how counter and memory meet.
struct MC_Art_T {
    std::string_view                 Name{};
    std::array<std::uint8_t, 3>      Kennung{};            // maker, type, 5 for a 5 V part
    std::array<std::uint16_t, 3>     Kennung_Bei{0, 1, 2}; // counter values of its bytes
    std::array<Zaehler_Fenster_T, 3> Fenster{{{0, 0, 65536}, {}, {}}};
    int                              Steuerung_Loeschen = 10; // control value of the erase mode
};

// How lock bits are programmed and read.
enum class Sperr_Art { CII, SII, CIIWD };

class Simulierter_MC {
public:
    // An erased part of the device's kind with 12 V programming. Schreibzeit: microseconds that a
    // sound cell takes for a byte.
    Simulierter_MC(const Geraet_T& Geraet, std::int64_t Schreibzeit);

    // The address counter, 16 bits; it runs over.
    void          Takt(std::int64_t Jetzt);
    void          Zaehler_Ruecksetzen(std::int64_t Jetzt);
    std::uint16_t Zaehler_Stand() const { return Zaehler; }

    // What the part puts on its data pins in a mode.
    std::uint8_t Code() const;    // FFh everywhere from protection mode 3 on
    std::uint8_t Kennung() const; // FFh beside the signature bytes
    std::uint8_t Sperrbits() const;

    // The part takes the byte and writes it; a locked one ignores that. A clock or another mode
    // before the write is over breaks it off.
    void Schreiben_Beginnen(std::uint8_t Wert, std::int64_t Jetzt);
    void Schreiben_Beenden(std::int64_t Jetzt);
    bool Bereit(std::int64_t Jetzt);

    // The whole part to FFh and unlocked, by an erase pulse of Dauer that needs Mindestens,
    // microseconds.
    void Loeschen(std::int64_t Dauer, std::int64_t Mindestens);
    // Lock bit 1 to 3: from then on the part is in protection mode 2 to 4 at least.
    void Sperren(int Bit);

    Simulierter_Baustein
              Zellen; // contents and lock level, which is the protection mode, 0 for open
    MC_Art_T  Art;
    Sperr_Art Sperre   = Sperr_Art::CII;
    int       Spannung = 12; // programming voltage, 5 or 12; the third signature byte

private:
    std::uint32_t Adresse() const;

    std::int64_t  Schreib_Dauer;
    std::uint16_t Zaehler        = 0;
    bool          Schreibt       = false;
    std::int64_t  Schreib_Beginn = 0;
    std::uint32_t Schreib_Stelle = 0;
    std::uint8_t  Schreib_Wert   = 0;
};

} // namespace varnholt
