// The Eprommer as a port driver: its 74HC595, 74HC157 and 74HC393 chips, its supply selection and
// the device in its socket, moved by every edge that a routine writes.
#pragma once

#include "programmer/Simulierte_Bausteine.h"
#include "programmer/Simulierte_Uhr.h"
#include "programmer/Verdrahtung.h"

#include <array>
#include <cstdint>
#include <optional>

namespace varnholt {

// What every simulated board has beside its port.
class Simuliertes_Board : public Simulierte_Uhr {
public:
    // The device in the socket; null for an empty one.
    virtual Simulierter_Baustein* Baustein() = 0;
};

// Faults of the board, all of them off.
struct Board_Fehler {
    std::uint8_t Klemmt_Auf_0   = 0;     // data lines that are stuck low
    std::uint8_t Klemmt_Auf_1   = 0;     // data lines that are stuck high
    bool         Tot            = false; // no supply: nothing answers, the status lines float
    std::uint8_t Tot_Status     = 0x7F;  // what floating status lines read as
    bool         Baustein_Stumm = false; // the device neither answers nor takes a pulse
};

class Simulierter_Eprommer : public Simuliertes_Board {
public:
    // An empty socket, or one wired for the device in it.
    Simulierter_Eprommer() = default;
    Simulierter_Eprommer(const Verdrahtung_T& Sockel, Simulierter_Baustein Eingesteckt);

    Simulierter_Baustein* Baustein() override { return Im_Sockel ? &*Im_Sockel : nullptr; }

    int          KS_openDriver() override { return 0; }
    int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) override;
    void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert) override;
    std::uint8_t KS_inpb(std::int32_t Adresse) override;
    std::string  KS_getErrorStringEx(int Code) override;

    Board_Fehler Fehler{};

    // What a probe on the chips shows.
    std::uint16_t Zaehler_Stand() const { return Zaehler; }       // outputs of the 74HC393
    std::uint8_t  Speicher_595() const { return Speicher; }       // storage register of the 74HC595
    std::uint8_t  Bus() const;                                    // data bus
    std::uint32_t Baustein_Adresse() const;                       // address at the device
    std::int64_t  Schreibzugriffe() const { return Geschrieben; } // writes to data and control
    std::int64_t  Buskonflikte() const { return Konflikte; } // writes with two drivers on the bus

private:
    void          Daten_Schreiben(std::uint8_t Wert);
    void          Steuerung_Schreiben(std::uint8_t Wert);
    void          Pegel_Folgen();
    void          Puls_Beenden();
    std::uint32_t Adresse_Jetzt() const
    {
        return Adresse_Von(Verdrahtung, Zaehler, Daten, Steuerung);
    }
    bool           Baustein_Aktiv() const { return Im_Sockel && !Fehler.Baustein_Stumm; }
    const Pegel_T& Pegel() const { return Pegel_Tabelle[Steuerung & 15u][Daten]; }

    Verdrahtung_T                            Verdrahtung{};
    std::optional<Simulierter_Baustein>      Im_Sockel{};
    std::array<std::array<Pegel_T, 256>, 16> Pegel_Tabelle{};  // by control and data
    std::int32_t                             Basis        = 0; // address of the data register
    std::uint8_t                             Daten        = 0; // last value of the data register
    std::uint8_t                             Steuerung    = 0; // last value of the control register
    std::uint8_t                             Schiebe      = 0; // shift register of the 74HC595
    std::uint8_t                             Speicher     = 0; // its storage register
    std::uint16_t                            Zaehler      = 0; // the 74HC393 counters
    std::uint32_t                            Gehalten     = 0; // address in the latch of the device
    bool                                     Puls_Laeuft  = false;
    std::int64_t                             Puls_Beginn  = 0; // simulated microseconds
    std::uint32_t                            Puls_Adresse = 0;
    std::uint8_t                             Puls_Bus     = 0;
    std::int64_t                             Geschrieben  = 0;
    std::int64_t                             Konflikte    = 0;
};

} // namespace varnholt
