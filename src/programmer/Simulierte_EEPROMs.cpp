// Devices with a write line that store by themselves: EEPROMs, battery-backed RAMs, and flash
// memories that are written by pages.
#include "programmer/Simulierte_EEPROMs.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr double       Clear_Zeit         = 9000; // microseconds of 12 V that clear a sound 28C
constexpr double       Traegheit_Hoechste = 1e6;
constexpr std::int64_t Dauer_Hoechste     = std::int64_t{1} << 40; // microseconds, twelve days

} // namespace

Simuliertes_EEPROM::Simuliertes_EEPROM(std::int32_t Groesse, const Speicher_Art_T& Wie)
    : Simulierter_Baustein(Groesse, 1), Art(Wie),
      Puffer(static_cast<std::size_t>(std::max(Wie.Seite, 1)), -1)
{
}

std::int64_t Simuliertes_EEPROM::Dauer() const
{
    const double d =
        static_cast<double>(Art.Schreibzeit) * std::clamp(Traegheit, 0.0, Traegheit_Hoechste);
    return std::min(static_cast<std::int64_t>(d), Dauer_Hoechste);
}

// The load window closes by itself.
void Simuliertes_EEPROM::Zeit(std::int64_t Jetzt)
{
    Uhr = Jetzt;
    if (Laedt && Jetzt > Letzte_Ladung + Art.Ladefenster)
        Seite_Speichern();
}

std::uint8_t Simuliertes_EEPROM::Ausgabe(std::uint32_t Adresse) const
{
    if (!Beschaeftigt())
        return Lesen(Adresse);
    return static_cast<std::uint8_t>((~Letztes_Byte & 0x80) | Wechsel_Bit | (Letztes_Byte & 0x3F));
}

void Simuliertes_EEPROM::Schreiben(std::uint32_t Adresse,
                                   std::uint8_t  Bus,
                                   std::int64_t  Beginn,
                                   std::int64_t  Jetzt)
{
    Zeit(Jetzt);
    if (Jetzt < Fertig || !Vorhanden(Adresse))
        return;
    Letztes_Byte = Bus;
    if (Puffer.size() > 1) {
        Laden(Adresse, Bus, Jetzt);
        return;
    }
    Zelle_Speichern(Adresse, Bus);
    Fertig = Beginn + Dauer();
}

void Simuliertes_EEPROM::Laden(std::uint32_t Adresse, std::uint8_t Bus, std::int64_t Jetzt)
{
    Laedt                           = true;
    Letzte_Ladung                   = Jetzt;
    Puffer_Seite                    = static_cast<std::uint32_t>(Adresse / Puffer.size());
    Puffer[Adresse % Puffer.size()] = Bus;
}

void Simuliertes_EEPROM::Seite_Speichern()
{
    const auto n      = static_cast<std::uint32_t>(Puffer.size());
    const auto Fehler = Schlechte.find(Puffer_Seite);
    const bool Nimmt  = Fehler == Schlechte.end() || Fehler->second-- <= 0;
    for (std::uint32_t i = 0; i < n; ++i)
        if (Nimmt && (Puffer[i] >= 0 || Art.Ganze_Seite))
            Zelle_Speichern(Puffer_Seite * n + i,
                            static_cast<std::uint8_t>(Puffer[i] >= 0 ? Puffer[i] : 0xFF));
    std::fill(Puffer.begin(), Puffer.end(), -1);
    Laedt  = false;
    Fertig = Letzte_Ladung + Art.Ladefenster + Dauer();
}

void Simuliertes_EEPROM::Zelle_Speichern(std::uint32_t Adresse, std::uint8_t Wert)
{
    if (Adresse >= Inhalt.size())
        return;
    const auto Besonders = Besondere.find(Adresse);
    if (Besonders == Besondere.end()) {
        Inhalt[Adresse] = Wert;
        return;
    }
    Zelle_T& Zelle = Besonders->second;
    if (++Zelle.Pulse[0] < Zelle.Pulse_Noetig)
        return;
    Inhalt[Adresse] =
        static_cast<std::uint8_t>((Inhalt[Adresse] & Zelle.Tot) | (Wert & ~unsigned{Zelle.Tot}));
}

bool Simuliertes_EEPROM::Loeschpuls(std::int64_t Zeit_Mit_12V)
{
    if (static_cast<double>(Zeit_Mit_12V) >= Clear_Zeit * Loesch_Faktor)
        Loeschen();
    return true;
}

void Simuliertes_EEPROM::Fertigstellen()
{
    if (Laedt)
        Seite_Speichern();
    Fertig = Uhr;
}

void Simuliertes_EEPROM::Schlechte_Seite(std::uint32_t Nummer, int Male)
{
    Schlechte[Nummer] = Male;
}

std::size_t Simuliertes_EEPROM::Gestoerte_Stellen() const
{
    const auto Noch = [](const auto& Seite) { return Seite.second > 0; };
    return Simulierter_Baustein::Gestoerte_Stellen() +
           static_cast<std::size_t>(std::count_if(Schlechte.begin(), Schlechte.end(), Noch));
}

} // namespace varnholt
