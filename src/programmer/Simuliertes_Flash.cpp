// Flash memories that are erased as a whole: the 28F, which takes commands, and the 27SF, which is
// programmed as an EPROM.
#include "programmer/Simuliertes_Flash.h"

namespace varnholt {
namespace {

constexpr std::int64_t Loesch_27SF = 90000; // microseconds; the data sheet asks for 100 ms

} // namespace

// While it programs or erases nothing valid comes out.
std::uint8_t Simuliertes_28F::Ausgabe(std::uint32_t Adresse) const
{
    return Was == Betrieb::Programmieren || Was == Betrieb::Loeschen ? std::uint8_t{0xFF}
                                                                     : Lesen(Adresse);
}

void Simuliertes_28F::Schreiben(std::uint32_t Adresse,
                                std::uint8_t  Bus,
                                std::int64_t,
                                std::int64_t Jetzt)
{
    if (!Versorgt)
        return;
    Vorgang_Beenden(Jetzt);
    Seit = Jetzt;
    if (Was == Betrieb::Vor_Programmieren) {
        Was         = Betrieb::Programmieren;
        Stelle      = Adresse;
        Wert_Dafuer = Bus;
    } else if (Was == Betrieb::Vor_Loeschen) {
        Was = Bus == 0x20 ? Betrieb::Loeschen : Betrieb::Lesen;
    } else {
        Befehl(Bus);
    }
}

void Simuliertes_28F::Befehl(std::uint8_t Wert)
{
    if (Wert == 0x40)
        Was = Betrieb::Vor_Programmieren;
    else if (Wert == 0x20)
        Was = Betrieb::Vor_Loeschen;
    else
        Was = Betrieb::Lesen; // C0h, A0h, FFh, 00h and what it doesn't know
}

void Simuliertes_28F::Versorgung(bool An, std::int64_t Jetzt)
{
    Vorgang_Beenden(Jetzt);
    Versorgt = An;
    Was      = Betrieb::Lesen;
}

void Simuliertes_28F::Vorleben_Vergessen()
{
    Simulierter_Baustein::Vorleben_Vergessen();
    Loesch_Summe = 0;
}

void Simuliertes_28F::Vorgang_Beenden(std::int64_t Jetzt)
{
    const std::int64_t Dauer = Jetzt - Seit;
    if (Was == Betrieb::Programmieren) {
        Puls(Stelle, Wert_Dafuer, Dauer);
        Loesch_Summe = 0;
    } else if (Was == Betrieb::Loeschen) {
        Loesch_Summe += static_cast<double>(Dauer);
        if (Loesch_Summe >= Loeschzeit * Loesch_Faktor)
            Simulierter_Baustein::Loeschen();
    } else {
        return;
    }
    Was = Betrieb::Lesen;
}

bool Simuliertes_27SF::Loeschpuls(std::int64_t Dauer)
{
    if (Dauer < Loesch_27SF)
        return false;
    if (static_cast<double>(Dauer) >= static_cast<double>(Loesch_27SF) * Loesch_Faktor)
        Loeschen();
    return true;
}

} // namespace varnholt
