// Choosing a device: the selection, the check against the version of the board, and what follows
// from the selection for the menu.
#include "core/codepage.h"
#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Specifications.h"

#include <algorithm>
#include <array>
#include <string>

namespace varnholt {
namespace {

// Erase types, by their beginning, that the erase command serves; 29C gets its notice there.
constexpr std::array<std::string_view, 5> Loeschbare_Typen = {"89", "28F", "29C", "28C", "27SF"};

bool Geraet_Vorhanden(int Nummer)
{
    return Nummer >= 0 && Nummer < Geraete_Anzahl &&
           !Geraete_Tabelle[static_cast<std::size_t>(Nummer)].Name.empty();
}

// The older layouts lack what these devices need: 89F parts a voltage, the others the jumper J1.
bool Version_Genuegt(const Geraet_T& Geraet, int Version)
{
    if (Geraet.P_Typ.starts_with("89F") && Version < 12) {
        Melden({"Um diesen speziellen Flash MC zu programmieren ist die Layout Version 1.2 (oder "
                "höher) des Tessel2 programmer notwendig!",
                "The Tessel2 programmer layout version 1.2 (or higher) is necessary to program "
                "these special flash mc!"});
        return false;
    }
    if (Geraet.M_Jumper1 > 0 && Version == 10) {
        Melden({"Um diesen speziellen Flash MC zu programmieren ist die Layout Version 1.1 (oder "
                "höher) des Tessel2 programmer notwendig!",
                "The Tessel2 programmer layout version 1.1 (or higher) is necessary to program "
                "these special flash mc!"});
        return false;
    }
    return true;
}

void An_J1_Erinnern(const Geraet_T& Geraet)
{
    if (Geraet.M_Jumper1 == 1)
        Melden({"Bitte setzen Sie den Jumper J1 ein, falls dieser noch nicht eingesetzt sein "
                "sollte!",
                "Please insert jumper J1 if it's not already inserted."});
    else
        Melden({"Bitte entnehmen Sie den Jumper J1, falls dieser noch stecken sollte",
                "Please take jumper J1 out if it's inserted."});
}

// False, with its message, when the Tessel2 board is too old for the device.
bool Tessel2_Geeignet(const Geraet_T& Geraet)
{
    const int Version = Tessel2_Version_Gueltig();
    if (!Version_Genuegt(Geraet, Version))
        return false;
    if (Version > 10)
        An_J1_Erinnern(Geraet);
    return true;
}

} // namespace

int Eprommer_Version_Gueltig() { return Eprommer_Version == 0 ? 32 : Eprommer_Version; }

int Tessel2_Version_Gueltig() { return Tessel2_Version == 0 ? 12 : Tessel2_Version; }

int Geraet_Suchen(std::string_view Name)
{
    const std::string Gesucht = Aus_UTF8(Name);
    const auto*       p =
        std::find_if(Geraete_Tabelle.begin(), Geraete_Tabelle.end(), [&](const Geraet_T& g) {
            return Gleich_Ohne_Fall(Aus_UTF8(g.Name), Gesucht);
        });
    if (Gesucht.empty() || p == Geraete_Tabelle.end())
        return -1;
    return static_cast<int>(p - Geraete_Tabelle.begin());
}

void IC_Waehlen(int Nummer)
{
    Abbruch = !Geraet_Vorhanden(Nummer);
    if (!Abbruch) {
        IC_Nummer              = Nummer;
        const Geraet_T& Geraet = Geraete_Tabelle[static_cast<std::size_t>(Nummer)];
        Abbruch                = Geraet.Programmer == Board_Nr_Tessel2 && !Tessel2_Geeignet(Geraet);
    }
    if (Abbruch)
        IC_Typ_Löschen();
}

void IC_Typ_Löschen()
{
    IC_Nummer = -1;
    IC_Titel_Zeigen();
}

bool Loeschen_Moeglich(const Geraet_T& Geraet)
{
    return std::any_of(Loeschbare_Typen.begin(), Loeschbare_Typen.end(), [&](std::string_view Typ) {
        return Geraet.E_Typ.starts_with(Typ);
    });
}

bool Sperren_Moeglich(const Geraet_T& Geraet)
{
    return !Geraet.L_Typ.empty() && Geraet.P_Typ.starts_with("89");
}

std::string MNU_IC_Titel()
{
    const std::string Menue = In_Sprache({"Brenner", "Programmer"});
    return IC_Nummer < 0 ? Menue : Menue + " (" + IC_Menue_Name() + ")";
}

} // namespace varnholt
