// A parallel port through the kernel's ppdev interface (/dev/parport0).
#pragma once

#include "programmer/Echte_Uhr.h"

#include <string>

namespace varnholt {

// The three calls into the kernel, replaceable in a test. Results as those of the system: below 0
// is a failure, whose number stands in errno.
struct Ppdev_Griffe {
    int (*Oeffnen)(const char* Pfad)                               = nullptr;
    int (*Befehl)(int Griff, unsigned long Nummer, void* Argument) = nullptr;
    int (*Schliessen)(int Griff)                                   = nullptr;

    static Ppdev_Griffe System();
};

// The kernel hands the three register bytes through as they are, inversions of the connector
// included, which is what the device routines write and read. The port is claimed by KS_openDriver
// and released by the destructor, with its last data byte standing.
class Port_ppdev : public Echte_Uhr {
public:
    explicit Port_ppdev(std::string Geraetedatei, Ppdev_Griffe Kern = Ppdev_Griffe::System());
    ~Port_ppdev() override;
    Port_ppdev(const Port_ppdev&)            = delete;
    Port_ppdev& operator=(const Port_ppdev&) = delete;

    int          KS_openDriver() override;
    int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) override;
    void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert) override;
    std::uint8_t KS_inpb(std::int32_t Adresse) override;
    std::string  KS_getErrorStringEx(int Code) override;

private:
    int  Beanspruchen();
    void Freigeben();

    std::string  Pfad;
    Ppdev_Griffe Griffe;
    int          Griff = -1; // file descriptor, -1 while closed
    std::int32_t Basis = 0;  // address of the data register, as KS_enableIoRange was told
};

} // namespace varnholt
