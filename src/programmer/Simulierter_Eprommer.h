// The Eprommer as a port driver: its 74HC595, 74HC157 and 74HC393 chips, its supply selection and
// the device in its socket, moved by every edge that a routine writes.
#pragma once

#include "programmer/Simulierte_Bausteine.h"
#include "programmer/Simulierte_Uhr.h"
#include "programmer/Verdrahtung.h"

#include <array>
#include <cstdint>
#include <memory>

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
    bool Draht_Vergessen = false; // the wire of a 27SF erase was not moved when the program asked
};

class Simulierter_Eprommer : public Simuliertes_Board {
public:
    // An empty socket, or one wired for the device in it.
    Simulierter_Eprommer() = default;
    Simulierter_Eprommer(const Verdrahtung_T&                  Sockel,
                         std::unique_ptr<Simulierter_Baustein> Eingesteckt);

    Simulierter_Baustein* Baustein() override { return Im_Sockel.get(); }

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
    void         Daten_Schreiben(std::uint8_t Wert);
    void         Steuerung_Schreiben(std::uint8_t Wert);
    void         Pegel_Folgen(const Pegel_T& Vorher);
    void         Puls_Beenden();
    void         Schreib_Flanken(const Pegel_T& Vorher);
    void         Versorgung_Folgen();
    void         Schreib_Strobe_Folgen(const Pegel_T& Vorher);
    void         Loeschpuls_Folgen(const Pegel_T& Vorher);
    void         Ladung_Merken(const Pegel_T& Danach, std::uint8_t Daten_Danach);
    std::uint8_t Bus_Beim_Schreiben() const;
    std::uint8_t Mit_Fehlern(unsigned Wert) const
    {
        return static_cast<std::uint8_t>((Wert & ~unsigned{Fehler.Klemmt_Auf_0}) |
                                         Fehler.Klemmt_Auf_1);
    }
    std::uint32_t Adresse_Jetzt() const
    {
        return Adresse_Von(Verdrahtung, Zaehler, Daten, Steuerung);
    }
    bool Baustein_Aktiv() const { return Im_Sockel && !Fehler.Baustein_Stumm; }
    bool Angewaehlt() const { return !Verdrahtung.A13_Waehlt || (Zaehler & 0x2000u) != 0; }
    const Pegel_T& Pegel() const { return Pegel_Tabelle[Steuerung & 15u][Daten]; }

    Verdrahtung_T                            Verdrahtung{};
    std::unique_ptr<Simulierter_Baustein>    Im_Sockel{};
    bool                                     Mit_Schreibleitung = false; // the device has one
    std::array<std::array<Pegel_T, 256>, 16> Pegel_Tabelle{};            // by control and data
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
    std::uint8_t                             Ladung       = 0; // what the bus lines were left at
    std::int64_t                             Ladung_Zeit  = 0; // when they were left alone
    bool          Versorgt        = false; // what the device knows of its programming supply
    bool          Schreib_Gilt    = false; // a write cycle runs, and the device is selected
    std::uint32_t Schreib_Adresse = 0;     // as it was when the write line fell
    std::int64_t  Schreib_Beginn  = 0;
    std::int64_t  Loesch_Beginn   = 0;
    std::int64_t  Geschrieben     = 0;
    std::int64_t  Konflikte       = 0;
};

} // namespace varnholt
