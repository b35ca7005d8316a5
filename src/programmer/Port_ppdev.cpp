// A parallel port through the kernel's ppdev interface (/dev/parport0).
#include "programmer/Port_ppdev.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <linux/ppdev.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace varnholt {
namespace {

constexpr std::uint8_t Schwebend = 0xFF; // what a register that can't be read gives

int Fehlernummer() { return errno > 0 ? errno : EIO; }

} // namespace

Ppdev_Griffe Ppdev_Griffe::System()
{
    return {[](const char* Pfad) { return ::open(Pfad, O_RDWR | O_CLOEXEC); },
            [](int Griff, unsigned long Nummer, void* Argument) {
                return ::ioctl(Griff, Nummer, Argument);
            },
            [](int Griff) { return ::close(Griff); }};
}

Port_ppdev::Port_ppdev(std::string Geraetedatei, Ppdev_Griffe Kern)
    : Pfad(std::move(Geraetedatei)), Griffe(Kern)
{
}

Port_ppdev::~Port_ppdev() { Freigeben(); }

void Port_ppdev::Freigeben()
{
    if (Griff < 0)
        return;
    Griffe.Befehl(Griff, PPRELEASE, nullptr);
    Griffe.Schliessen(Griff);
    Griff = -1;
}

// Claims the port and sets its data lines to output; 0 or an errno value.
int Port_ppdev::Beanspruchen()
{
    if (Griffe.Befehl(Griff, PPCLAIM, nullptr) < 0)
        return Fehlernummer();
    int Eingabe = 0;
    return Griffe.Befehl(Griff, PPDATADIR, &Eingabe) < 0 ? Fehlernummer() : 0;
}

int Port_ppdev::KS_openDriver()
{
    Freigeben();
    Griff = Griffe.Oeffnen(Pfad.c_str());
    if (Griff < 0)
        return Fehlernummer();
    const int Fehler = Beanspruchen();
    if (Fehler > 0) {
        Griffe.Schliessen(Griff);
        Griff = -1;
    }
    return Fehler;
}

int Port_ppdev::KS_enableIoRange(std::int32_t Adresse, int)
{
    Basis = Adresse;
    return Griff < 0 ? ENODEV : 0;
}

void Port_ppdev::KS_outpb(std::int32_t Adresse, std::uint8_t Wert)
{
    const std::int64_t Abstand = std::int64_t{Adresse} - Basis;
    if (Griff >= 0 && (Abstand == 0 || Abstand == 2))
        Griffe.Befehl(Griff, Abstand == 0 ? PPWDATA : PPWCONTROL, &Wert);
}

std::uint8_t Port_ppdev::KS_inpb(std::int32_t Adresse)
{
    std::uint8_t Wert = Schwebend;
    if (Griff >= 0 && std::int64_t{Adresse} - Basis == 1 &&
        Griffe.Befehl(Griff, PPRSTATUS, &Wert) < 0)
        return Schwebend;
    return Wert;
}

std::string Port_ppdev::KS_getErrorStringEx(int Code)
{
    return Pfad + ": " + Echte_Uhr::KS_getErrorStringEx(Code);
}

} // namespace varnholt
