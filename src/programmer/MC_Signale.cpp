// What the routines of both microcontroller boards share: the byte that an address is about, the
// walk of a read, the ready line, and the question about a missing part.
#include "programmer/MC_Signale.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/Lesen.h"
#include "programmer/Signale.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr double Bereit_Frist = 1.0;     // seconds
constexpr double Tages_Laenge = 86400.0; // where the seconds clock begins anew

double Sekunden_Seit(double Anfang)
{
    const double Jetzt = Plattform.Port->Sekunden_seit_Mitternacht();
    return Jetzt >= Anfang ? Jetzt - Anfang : Jetzt + Tages_Laenge - Anfang;
}

} // namespace

Zelle_T MC_Zelle_Bestimmen()
{
    Zelle_T z = Zelle_Bestimmen();
    if (Adresse_Zaehler < Ab_Adresse)
        z.Soll = 0;
    return z;
}

bool MC_Zu_Schreiben(const Zelle_T& Zelle)
{
    if (Adresse_Zaehler < Ab_Adresse)
        return Brennmenue.DAT00;
    return !No_FF || Zelle.Soll != 0xFF;
}

bool MC_Alle_Adressen_Lesen(std::uint8_t (*Byte_Lesen)())
{
    const auto Puffer = static_cast<std::int32_t>(Hex_Puffer.size());
    const auto Bytes  = std::min(Nutzbare_Bytes(Gewaehltes_Geraet()), Puffer);
    Prozent_Gezeigt   = 0;
    for (Adresse_Zaehler = 0; Adresse_Zaehler < Bytes; ++Adresse_Zaehler) {
        Lese_Fortschritt_Zeigen(Bytes);
        if (Abbruch)
            return false;
        Hex_Puffer[static_cast<std::size_t>(Adresse_Zaehler)] = Byte_Lesen();
    }
    return true;
}

Folge MC_Brennen_Beginnen()
{
    Brenn_Dialog_Oeffnen();
    Versuch_Statistik.fill(0);
    Prozent_Gezeigt = 0;
    Plattform.Status->ProgBar(1);
    Plattform.Ereignisse->Eine_Runde();
    return Abbruch ? Folge::Abgebrochen : Folge::Weiter;
}

Folge MC_Fortschritt()
{
    if (Brenn_Fortschritt_Zeigen(Bis_Adresse))
        Plattform.Ereignisse->Eine_Runde();
    return Abbruch ? Folge::Abgebrochen : Folge::Weiter;
}

bool Bereit_Geworden(std::uint8_t Leitung)
{
    const double Anfang = Plattform.Port->Sekunden_seit_Mitternacht();
    while ((Status_Lesen() & Leitung) == 0)
        if (Sekunden_Seit(Anfang) > Bereit_Frist)
            return false;
    return true;
}

Folge Nicht_Bereit_Melden()
{
    Melden({"Der MC reagiert nicht. Bitte überprüfen Sie den MC und das Gerät!",
            "The MC doesn´t response. Please check the MC und the device!"},
           {},
           Knoepfe::Ok,
           Symbol::Kritisch);
    return Folge::Fehler;
}

bool MC_Nochmal_Suchen()
{
    return Nochmal_Fragen({"Es ist kein AT89C... eingesetzt oder er ist defekt!",
                           "There is no AT89C... insert, or it is defect!"});
}

} // namespace varnholt
