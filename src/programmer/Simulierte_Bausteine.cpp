// The memory devices in the socket of a simulated board: what their cells hold, and what a
// programming pulse does to them.
#include "programmer/Simulierte_Bausteine.h"

#include <algorithm>
#include <bit>

namespace varnholt {
namespace {

std::uint32_t Maske_Fuer(std::int32_t Groesse)
{
    return std::bit_ceil(static_cast<std::uint32_t>(std::max(Groesse, 1))) - 1;
}

} // namespace

Simulierter_Baustein::Simulierter_Baustein(std::int32_t Groesse, std::int64_t Mindestdauer)
    : Inhalt(static_cast<std::size_t>(std::max(Groesse, 0)), 0xFF),
      Adress_Maske(Maske_Fuer(Groesse)), Schwelle(std::max<std::int64_t>(Mindestdauer, 1))
{
}

// Cuts the address to the lines of the device; false where it has no cell.
bool Simulierter_Baustein::Vorhanden(std::uint32_t& Adresse) const
{
    Adresse &= Adress_Maske;
    return Adresse < Inhalt.size();
}

std::uint8_t Simulierter_Baustein::Lesen(std::uint32_t Adresse) const
{
    return Vorhanden(Adresse) ? Inhalt[Adresse] : std::uint8_t{0xFF};
}

void Simulierter_Baustein::Puls(std::uint32_t Adresse, std::uint8_t Bus, std::int64_t Dauer)
{
    if (!Vorhanden(Adresse))
        return;
    const auto Bits = static_cast<std::uint8_t>(Inhalt[Adresse] & ~Bus);
    if (Bits == 0)
        return;
    if (Dauer >= Schwelle && (Besondere.empty() || !Besondere.contains(Adresse)))
        Inhalt[Adresse] &= Bus;
    else
        Inhalt[Adresse] &=
            static_cast<std::uint8_t>(~Bits_Nach_Puls(Besondere[Adresse], Bits, Dauer));
}

// Those of Bits that this pulse brings to 0.
std::uint8_t
Simulierter_Baustein::Bits_Nach_Puls(Zelle_T& Zelle, std::uint8_t Bits, std::int64_t Dauer) const
{
    std::uint8_t Fertig = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        const auto Bit = static_cast<std::uint8_t>(1u << i);
        if ((Bits & ~Zelle.Tot & Bit) == 0)
            continue;
        Zelle.Summe[i] += Dauer;
        ++Zelle.Pulse[i];
        if (Zelle.Pulse[i] >= Zelle.Pulse_Noetig &&
            static_cast<double>(Zelle.Summe[i]) >= static_cast<double>(Schwelle) * Zelle.Faktor)
            Fertig |= Bit;
    }
    return Fertig;
}

void Simulierter_Baustein::Loeschen()
{
    std::fill(Inhalt.begin(), Inhalt.end(), std::uint8_t{0xFF});
    Vorleben_Vergessen();
}

void Simulierter_Baustein::Vorleben_Vergessen()
{
    for (auto& [Adresse, Zelle] : Besondere) {
        Zelle.Summe = {};
        Zelle.Pulse = {};
    }
}

void Simulierter_Baustein::Schwache_Zelle(std::uint32_t Adresse, int Pulse, double Faktor)
{
    Zelle_T& Zelle     = Besondere[Adresse];
    Zelle.Pulse_Noetig = Pulse;
    Zelle.Faktor       = Faktor;
}

void Simulierter_Baustein::Tote_Zelle(std::uint32_t Adresse, std::uint8_t Maske)
{
    Besondere[Adresse].Tot = Maske;
}

// A sound cell is among the special ones too, while it is on its way to 0.
std::size_t Simulierter_Baustein::Gestoerte_Stellen() const
{
    const auto Gestoert = [](const auto& z) {
        return z.second.Tot != 0 || z.second.Pulse_Noetig > 1 || z.second.Faktor > 1;
    };
    return static_cast<std::size_t>(std::count_if(Besondere.begin(), Besondere.end(), Gestoert));
}

} // namespace varnholt
