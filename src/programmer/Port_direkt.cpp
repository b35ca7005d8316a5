// A parallel port by direct access to its registers (x86 and Linux only, with the right to do so).
#include "programmer/Port_direkt.h"

#include <cerrno>

#if defined(__linux__) && (defined(__x86_64__) || defined(__i386__))
#include <sys/io.h>
#define VARNHOLT_PORT_DIREKT 1
#else
#define VARNHOLT_PORT_DIREKT 0
#endif

namespace varnholt {
namespace {

constexpr std::int32_t Hoechste_Adresse = 0xFFFF;

#if VARNHOLT_PORT_DIREKT
int Freischalten(std::int32_t Adresse, int Anzahl)
{
    const auto Erste = static_cast<unsigned long>(Adresse);
    const auto Zahl  = static_cast<unsigned long>(Anzahl);
    return ioperm(Erste, Zahl, 1) == 0 ? 0 : errno;
}
void Schreiben(std::int32_t Adresse, std::uint8_t Wert)
{
    outb(Wert, static_cast<std::uint16_t>(Adresse));
}
std::uint8_t Lesen(std::int32_t Adresse) { return inb(static_cast<std::uint16_t>(Adresse)); }
#else
int          Freischalten(std::int32_t, int) { return ENOSYS; }
void         Schreiben(std::int32_t, std::uint8_t) {}
std::uint8_t Lesen(std::int32_t) { return 0xFF; }
#endif

} // namespace

int Port_direkt::KS_openDriver() { return VARNHOLT_PORT_DIREKT ? 0 : ENOSYS; }

int Port_direkt::KS_enableIoRange(std::int32_t Adresse, int Anzahl)
{
    if (Adresse < 0 || Anzahl < 1 || Anzahl > 8 || Adresse > Hoechste_Adresse - Anzahl + 1)
        return EINVAL;
    const int Fehler = Freischalten(Adresse, Anzahl);
    Erste            = Adresse;
    Zahl             = Fehler == 0 ? Anzahl : 0;
    return Fehler;
}

bool Port_direkt::Erreichbar(std::int32_t Adresse) const
{
    return Adresse >= Erste && Adresse - Erste < Zahl;
}

void Port_direkt::KS_outpb(std::int32_t Adresse, std::uint8_t Wert)
{
    if (Erreichbar(Adresse))
        Schreiben(Adresse, Wert);
}

std::uint8_t Port_direkt::KS_inpb(std::int32_t Adresse)
{
    return Erreichbar(Adresse) ? Lesen(Adresse) : std::uint8_t{0xFF};
}

std::string Port_direkt::KS_getErrorStringEx(int Code)
{
    if (Code == ENOSYS)
        return "direct port access is not possible on this machine";
    if (Code == EPERM)
        return "direct port access needs the rights of root (CAP_SYS_RAWIO)";
    return Echte_Uhr::KS_getErrorStringEx(Code);
}

} // namespace varnholt
