// Devices with a write line that store by themselves: EEPROMs, battery-backed RAMs, and flash
// memories that are written by pages.
#pragma once

#include "programmer/Simulierte_Bausteine.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace varnholt {

// What tells them apart.
struct Speicher_Art_T {
    std::int32_t Seite       = 1; // bytes that are loaded together, 1 for a device without pages
    std::int64_t Ladefenster = 0; // microseconds in which a further byte of the page may come
    std::int64_t Schreibzeit = 0; // microseconds that it takes to store; 0 for a RAM
    bool         Ganze_Seite = false; // bytes of the page that weren't loaded become FFh
};

// A write strobe loads one byte. A device with pages waits for further ones until its load window
// is over, then it stores the page by itself; the address of the last byte tells which page. While
// it is busy it answers a read with its status: bit 7 is the inverse of the last byte's, bit 6
// changes at each read; and it takes no byte. Stored bits go both ways, 0 and 1.
class Simuliertes_EEPROM : public Simulierter_Baustein {
public:
    Simuliertes_EEPROM(std::int32_t Groesse, const Speicher_Art_T& Wie);

    void         Zeit(std::int64_t Jetzt) override;
    std::uint8_t Ausgabe(std::uint32_t Adresse) const override;
    void         Ausgabe_Beginnen() override { Wechsel_Bit ^= 0x40; }
    void         Schreiben(std::uint32_t Adresse,
                           std::uint8_t  Bus,
                           std::int64_t  Beginn,
                           std::int64_t  Jetzt) override;
    bool         Loeschpuls(std::int64_t Dauer) override;
    void         Fertigstellen() override;

    std::int32_t Seiten_Bytes() const { return Art.Seite; } // 1 for a device without pages
    bool         Braucht_Zeit() const { return Art.Schreibzeit > 0; }

    // Faults beside those of the cells (a weak one takes at its n-th write, a dead bit stays as it
    // is): the next Male writes of a page are lost; storing takes Traegheit times as long.
    void        Schlechte_Seite(std::uint32_t Nummer, int Male);
    std::size_t Gestoerte_Stellen() const override;
    double      Traegheit = 1.0;

private:
    bool         Beschaeftigt() const { return Laedt || Uhr < Fertig; }
    std::int64_t Dauer() const;
    void         Laden(std::uint32_t Adresse, std::uint8_t Bus, std::int64_t Jetzt);
    void         Seite_Speichern();
    void         Zelle_Speichern(std::uint32_t Adresse, std::uint8_t Wert);

    Speicher_Art_T                         Art;
    std::vector<int>                       Puffer{}; // by place in the page; -1: not loaded
    std::unordered_map<std::uint32_t, int> Schlechte{};
    bool                                   Laedt         = false;
    std::uint32_t                          Puffer_Seite  = 0;
    std::uint8_t                           Letztes_Byte  = 0xFF;
    std::int64_t                           Letzte_Ladung = 0;
    std::int64_t                           Fertig        = 0; // end of the write in progress
    std::int64_t                           Uhr           = 0; // time of the last look at the device
    std::uint8_t                           Wechsel_Bit   = 0;
};

} // namespace varnholt
