// What the two simulated microcontroller boards share: the port registers, the 74HC595 and 74HC157,
// the data bus and the faults. A board adds what its other lines do to the target.
#pragma once

#include "programmer/Simulierter_Eprommer.h"
#include "programmer/Simulierter_MC.h"

#include <cstdint>
#include <optional>
#include <string>

namespace varnholt {

// Faults of a board and of the part in it, all of them off.
struct MC_Fehler : Board_Fehler {
    bool Bereit_Klemmt   = false; // the ready line never comes
    bool Falsche_Kennung = false; // every signature byte reads 00h
};

class Simuliertes_MC_Board : public Simuliertes_Board {
public:
    Simulierter_Baustein* Baustein() override { return Im_Sockel ? &Im_Sockel->Zellen : nullptr; }

    int          KS_openDriver() override { return 0; }
    int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) override;
    void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert) override;
    std::uint8_t KS_inpb(std::int32_t Adresse) override;
    std::string  KS_getErrorStringEx(int Code) override;

    std::optional<Simulierter_MC> Im_Sockel{}; // the part; may be taken out and put in at any time
    MC_Fehler                     Fehler{};

    // What a probe on the chips shows.
    std::uint8_t Speicher_595() const { return Speicher; }       // storage register of the 74HC595
    std::uint8_t Bus() const;                                    // data bus
    std::int64_t Schreibzugriffe() const { return Geschrieben; } // writes to data and control

protected:
    // The register has changed from Vorher to what it is now.
    virtual void Daten_Folgen(std::uint8_t Vorher)     = 0;
    virtual void Steuerung_Folgen(std::uint8_t Vorher) = 0;
    // What the part drives onto the bus; FFh when it doesn't.
    virtual std::uint8_t Getrieben() const = 0;
    // The status register for these bus lines and the ready line; Auswahl: select of the 74HC157.
    virtual std::uint8_t Status_Von(unsigned Leitungen, bool Auswahl, bool Bereit) const = 0;

    bool Baustein_Aktiv() const { return Im_Sockel && !Fehler.Tot && !Fehler.Baustein_Stumm; }
    bool Ausgaenge_595() const { return (Daten & 64u) == 0; } // they drive the bus
    bool Daten_Bit(unsigned Maske) const { return (Daten & Maske) != 0; }
    std::uint8_t Kennung() const { return Fehler.Falsche_Kennung ? 0 : Im_Sockel->Kennung(); }

    std::uint8_t Daten     = 0; // last value of the data register
    std::uint8_t Steuerung = 0; // last value of the control register, its four lines
    std::uint8_t Schiebe   = 0; // shift register of the 74HC595

private:
    void Daten_Schreiben(std::uint8_t Wert);
    void Steuerung_Schreiben(std::uint8_t Wert);
    bool Bereit();

    std::int32_t Basis       = 0; // address of the data register
    std::uint8_t Speicher    = 0; // storage register of the 74HC595
    std::int64_t Geschrieben = 0;
};

} // namespace varnholt
