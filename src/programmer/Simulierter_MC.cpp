// A flash microcontroller in the socket of a simulated board: its cells, its signature, its address
// counter, the writes that it times by itself, and its lock level.
#include "programmer/Simulierter_MC.h"

#include "programmer/Baustein.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr std::uint8_t  Leer       = 0xFF;
constexpr std::uint32_t Ausserhalb = 0xFFFFFFFFu; // the counter stands where no cell is
constexpr std::uint8_t  Kennung_5V = 0x05;

constexpr int Modus_Schreibschutz = 2;
constexpr int Modus_Leseschutz    = 3;

// Signatures from the data sheets (Atmel AT89C1051 to AT89S8252); the SST89F parts answer as the
// others with 1Eh, which this board's routines ask for, and with their own type byte. The counter
// of an 89C55WD stands one clock behind its address lines, and bit 14 of the counter is high where
// its memory begins; the 89F parts have 4 Kbyte at the upper end of their 64.
// clang-format off
constexpr MC_Art_T MC_Arten[] = {
    {.Name = "89C1051", .Kennung = {0x1E, 0x11, Leer}},
    {.Name = "89C2051", .Kennung = {0x1E, 0x21, Leer}},
    {.Name = "89C4051", .Kennung = {0x1E, 0x41, Leer}},
    {.Name = "89C51",   .Kennung = {0x1E, 0x51, Leer}},
    {.Name = "89C52",   .Kennung = {0x1E, 0x52, Leer}},
    {.Name = "89C55",   .Kennung = {0x1E, 0x55, Leer}},
    {.Name = "89C55WD", .Kennung = {0x1E, 0x55, 0x06}, .Kennung_Bei = {47, 303, 559},
     .Fenster = {{{16383, 0, 16384}, {49150, 16384, 16386}, {}}}},
    {.Name = "89S53",   .Kennung = {0x1E, 0x53, Leer}},
    {.Name = "89S8252", .Kennung = {0x1E, 0x72, Leer}},
    {.Name = "89F54",   .Kennung = {0x1E, 0xE4, Leer},
     .Fenster = {{{0, 0, 16384}, {61439, 16384, 4097}, {}}}, .Steuerung_Loeschen = 12},
    {.Name = "89F58",   .Kennung = {0x1E, 0xE2, Leer},
     .Fenster = {{{0, 0, 16384}, {32767, 16384, 16384}, {65534, 32768, 2}}},
     .Steuerung_Loeschen = 12},
};
constexpr MC_Art_T Unbekannte_Art{.Kennung = {0x1E, Leer, Leer}};
// clang-format on

// By the name; a further device of the table takes the signature of the one it is read as.
const MC_Art_T& Art_Von(const Geraet_T& Geraet)
{
    for (const std::string& Gesucht : {Geraet.Name, Geraet.R_Typ})
        for (const MC_Art_T& a : MC_Arten)
            if (a.Name == Gesucht)
                return a;
    return Unbekannte_Art;
}

Sperr_Art Sperre_Von(std::string_view L_Typ)
{
    if (L_Typ == "89SII")
        return Sperr_Art::SII;
    return L_Typ == "89CIIWD" ? Sperr_Art::CIIWD : Sperr_Art::CII;
}

} // namespace

Simulierter_MC::Simulierter_MC(const Geraet_T& Geraet, std::int64_t Schreibzeit)
    : Zellen(Nutzbare_Bytes(Geraet), Schreibzeit), Art(Art_Von(Geraet)),
      Sperre(Sperre_Von(Geraet.L_Typ)), Schreib_Dauer(std::max<std::int64_t>(Schreibzeit, 1))
{
}

std::uint32_t Simulierter_MC::Adresse() const
{
    for (const Zaehler_Fenster_T& f : Art.Fenster)
        if (Zaehler >= f.Zaehler && std::uint32_t{Zaehler} - f.Zaehler < f.Laenge)
            return std::uint32_t{f.Adresse} + Zaehler - f.Zaehler;
    return Ausserhalb;
}

void Simulierter_MC::Takt(std::int64_t Jetzt)
{
    Schreiben_Beenden(Jetzt);
    ++Zaehler;
}

void Simulierter_MC::Zaehler_Ruecksetzen(std::int64_t Jetzt)
{
    Schreiben_Beenden(Jetzt);
    Zaehler = 0;
}

std::uint8_t Simulierter_MC::Code() const
{
    const std::uint32_t a = Adresse();
    if (a == Ausserhalb || Zellen.Sperr_Stufe >= Modus_Leseschutz)
        return Leer;
    return Zellen.Lesen(a);
}

std::uint8_t Simulierter_MC::Kennung() const
{
    if (Spannung == 5 && Zaehler == Art.Kennung_Bei[2])
        return Kennung_5V;
    const auto* p = std::find(Art.Kennung_Bei.begin(), Art.Kennung_Bei.end(), Zaehler);
    return p == Art.Kennung_Bei.end()
               ? Leer
               : Art.Kennung[static_cast<std::size_t>(p - Art.Kennung_Bei.begin())];
}

// Bits 0 to 2, each 0 when its lock bit is programmed.
std::uint8_t Simulierter_MC::Sperrbits() const
{
    const int Bits = std::clamp(Zellen.Sperr_Stufe - 1, 0, 3);
    return static_cast<std::uint8_t>(0xFF & ~((1 << Bits) - 1));
}

void Simulierter_MC::Schreiben_Beginnen(std::uint8_t Wert, std::int64_t Jetzt)
{
    Schreiben_Beenden(Jetzt);
    const std::uint32_t a = Adresse();
    if (a == Ausserhalb || Zellen.Sperr_Stufe >= Modus_Schreibschutz)
        return;
    Schreibt       = true;
    Schreib_Beginn = Jetzt;
    Schreib_Stelle = a;
    Schreib_Wert   = Wert;
}

void Simulierter_MC::Schreiben_Beenden(std::int64_t Jetzt)
{
    if (!Schreibt)
        return;
    Schreibt = false;
    Zellen.Puls(Schreib_Stelle, Schreib_Wert, std::min(Jetzt - Schreib_Beginn, Schreib_Dauer));
}

bool Simulierter_MC::Bereit(std::int64_t Jetzt)
{
    if (Schreibt && Jetzt - Schreib_Beginn >= Schreib_Dauer)
        Schreiben_Beenden(Jetzt);
    return !Schreibt;
}

void Simulierter_MC::Loeschen(std::int64_t Dauer, std::int64_t Mindestens)
{
    if (static_cast<double>(Dauer) < static_cast<double>(Mindestens) * Zellen.Loesch_Faktor)
        return;
    Schreibt = false;
    Zellen.Loeschen();
    Zellen.Sperr_Stufe = 0;
}

void Simulierter_MC::Sperren(int Bit)
{
    Zellen.Sperr_Stufe = std::max(Zellen.Sperr_Stufe, Bit + 1);
}

} // namespace varnholt
