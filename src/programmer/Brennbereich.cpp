// The range of a programming run: which routine writes the selected device, from where to where,
// and what an address gets.
#include "programmer/Brennbereich.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Val.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Baustein.h"
#include "programmer/Brennmenue.h"

#include <algorithm>
#include <string_view>

namespace varnholt {
namespace {

struct Weg_T {
    std::string_view P_Typ; // how the program type begins
    Brenn_Weg        Weg;
};

constexpr Weg_T Wege[] = {
    {"87C", Brenn_Weg::Eprom},
    {"27C", Brenn_Weg::Eprom},
    {"27SF", Brenn_Weg::Eprom},
    {"28C", Brenn_Weg::EEPROM},
    {"28F", Brenn_Weg::Flash},
    {"29C", Brenn_Weg::Seiten},
};

// Battery-backed devices are written from their first byte on, FFh too, and end with the range: a
// clock stands behind it.
bool Ist_RAM(const Geraet_T& g, Brenn_Weg Weg)
{
    return Weg == Brenn_Weg::EEPROM && g.Name.starts_with("48");
}

// What isn't known to be erased has to be written with FFh as well.
bool FF_Zu_Schreiben(const Geraet_T& g)
{
    if (g.Name.starts_with("48") || g.Name.starts_with("M28"))
        return true;
    const bool Leer = Brennmenue.IC_LBA_D == "EMPTY" || Brennmenue.IC_LBA_D == "LEER";
    return !Brennmenue.Löschen && !Leer;
}

// A page is written as a whole.
void Auf_Seiten_Weiten(Brenn_Bereich& b, const Geraet_T& g)
{
    const std::int32_t Seite = std::clamp(g.Seiten_Bytes, 1, Bild_Groesse);
    b.Erste                  = std::max(b.Ab, 0) / Seite * Seite;
    b.Letzte = b.Bis < 0 ? -1 : std::min((b.Bis / Seite + 1) * Seite, Nutzbare_Bytes(g)) - 1;
}

// FFh is passed over, the bytes of a page excepted: those are loaded all.
bool FF_Uebergangen(const Geraet_T& g, Brenn_Weg Weg)
{
    if (Weg == Brenn_Weg::EEPROM && FF_Zu_Schreiben(g))
        return false;
    return No_FF && Weg != Brenn_Weg::Seiten;
}

// The run ends with the range of the dialog; else at the end of the device.
bool Endet_Mit_Dialog(const Geraet_T& g, const Brenn_Bereich& b)
{
    if (b.Weg == Brenn_Weg::Tessel1 || Ist_RAM(g, b.Weg))
        return true;
    return b.Weg == Brenn_Weg::Seiten ? No_FF : b.Ohne_FF;
}

// What of the loop's addresses is written.
void Grenzen_Setzen(Brenn_Bereich& b, const Geraet_T& g)
{
    b.Erste  = Brennmenue.DAT00 || Ist_RAM(g, b.Weg) ? 0 : std::max(b.Ab, 0);
    b.Letzte = b.Bis;
    if (b.Weg == Brenn_Weg::Tessel1 || b.Weg == Brenn_Weg::Tessel2)
        b.Nullen_Bis = b.Ab;
    if (b.Weg == Brenn_Weg::Seiten)
        Auf_Seiten_Weiten(b, g);
}

} // namespace

Brenn_Weg Brenn_Weg_Von(const Geraet_T& Geraet)
{
    for (const Weg_T& w : Wege)
        if (Geraet.P_Typ.starts_with(w.P_Typ))
            return w.Weg;
    if (Geraet.Programmer == Board_Nr_Tessel2)
        return Brenn_Weg::Tessel2;
    return Typ_Auf_Tessel1(Geraet.P_Typ) ? Brenn_Weg::Tessel1 : Brenn_Weg::Keiner;
}

Brenn_Bereich Bereich_Des_Dialogs()
{
    const Geraet_T&    g      = Gewaehltes_Geraet();
    const std::int32_t Letzte = Nutzbare_Bytes(g) - 1;
    Brenn_Bereich      b;
    b.Weg      = Brenn_Weg_Von(g);
    b.Ohne_FF  = FF_Uebergangen(g, b.Weg);
    b.Ungerade = Brennmenue.O_Odd_Splitting;
    b.Gerade   = Brennmenue.O_Even_Splitting;
    b.Ab       = Val(Brennmenue.BR_EBA_D);
    b.Abstand  = std::int64_t{b.Ab} - Val(Brennmenue.ED_EBA_D);
    b.Bis      = Endet_Mit_Dialog(g, b) ? std::min(Val(Brennmenue.BR_LBA_D), Letzte) : Letzte;
    Grenzen_Setzen(b, g);
    return b;
}

} // namespace varnholt
