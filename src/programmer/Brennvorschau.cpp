// The preview of a programming run.
#include "programmer/Brennvorschau.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Val.h"
#include "programmer/Baustein.h"
#include "programmer/Brennmenue.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

std::int64_t Bild_Adresse(const Brenn_Bereich& b, std::int64_t IC)
{
    return (std::int64_t{b.Editor_Erste} + IC - b.IC_Erste) * b.Schritt + b.Versatz;
}

// Bytes of the image behind the last one that goes into the device, or ahead of the first.
std::int32_t Uebrig_Zaehlen(std::span<const std::uint8_t> Editor, const Brenn_Bereich& b)
{
    const auto Groesse = static_cast<std::int64_t>(Editor.size());
    const auto Erste   = std::max<std::int64_t>(b.Anfang, b.Nullen_Bis);
    const auto Von     = std::clamp<std::int64_t>(Bild_Adresse(b, Erste), 0, Groesse);
    const auto Bis     = std::clamp<std::int64_t>(Bild_Adresse(b, b.IC_Letzte) + 1, Von, Groesse);
    const auto Zaehlen = [&](std::int64_t a, std::int64_t e) {
        const auto Stueck =
            Editor.subspan(static_cast<std::size_t>(a), static_cast<std::size_t>(e - a));
        return std::count_if(Stueck.begin(), Stueck.end(), [](auto x) { return x != 0xFF; });
    };
    return static_cast<std::int32_t>(Zaehlen(0, Von) + Zaehlen(Bis, Groesse));
}

// The field holds an address or the word for an empty device, not a note on the read.
bool Wurde_Gelesen()
{
    const std::string& s = Brennmenue.IC_LBA_D;
    return s == "LEER" || s == "EMPTY" || (!s.empty() && s[0] >= '0' && s[0] <= '9');
}

// What a device address gets.
std::uint8_t
Neues_Byte(std::span<const std::uint8_t> Editor, const Brenn_Bereich& b, std::int32_t IC)
{
    if (IC < b.Nullen_Bis)
        return 0;
    const std::int64_t e = Bild_Adresse(b, IC);
    if (e < 0)
        return 0;
    return e < static_cast<std::int64_t>(Editor.size()) ? Editor[static_cast<std::size_t>(e)]
                                                        : 0xFF;
}

// The clock and battery devices are written from their first byte on, FFh too.
bool Ganz_Geschrieben() { return Gewaehltes_Geraet().Name.starts_with("48"); }
bool Ohne_FF() { return No_FF && !Ganz_Geschrieben(); }

} // namespace

Brenn_Vorschau Vorschau_Rechnen(std::span<const std::uint8_t> Baustein,
                                std::span<const std::uint8_t> Editor,
                                const Brenn_Bereich&          Bereich,
                                bool                          No_FF_Dabei)
{
    Brenn_Vorschau v;
    for (std::int32_t a = std::max(Bereich.Anfang, 0); a <= Bereich.IC_Letzte; ++a) {
        const std::uint8_t Neu = Neues_Byte(Editor, Bereich, a);
        if (Neu == 0xFF && No_FF_Dabei)
            continue;
        ++v.Geschrieben;
        if (static_cast<std::size_t>(a) >= Baustein.size())
            continue;
        const std::uint8_t Alt = Baustein[static_cast<std::size_t>(a)];
        v.Geaendert += Alt != Neu ? 1 : 0;
        v.Ansteigend += (Neu & ~Alt & 0xFF) != 0 ? 1 : 0;
    }
    v.Ausserhalb = Uebrig_Zaehlen(Editor, Bereich);
    return v;
}

Brenn_Bereich Bereich_Des_Dialogs()
{
    const auto&        b      = Brennmenue;
    const std::int32_t Letzte = Nutzbare_Bytes(Gewaehltes_Geraet()) - 1;
    const bool         Am_MC  = Gewaehltes_Geraet().Programmer != Board_Nr_Eprommer;
    Brenn_Bereich      r;
    r.IC_Erste     = Val(b.BR_EBA_D);
    r.IC_Letzte    = Ohne_FF() ? std::min(Val(b.BR_LBA_D), Letzte) : Letzte;
    r.Editor_Erste = Val(b.ED_EBA_D);
    r.Anfang       = b.DAT00 || Ganz_Geschrieben() ? 0 : r.IC_Erste;
    r.Nullen_Bis   = Am_MC ? r.IC_Erste : std::int64_t{r.IC_Erste} - r.Editor_Erste;
    r.Schritt      = b.O_No_Splitting ? 1 : 2;
    r.Versatz      = b.O_Odd_Splitting ? 1 : 0;
    return r;
}

Text_Paar Vorschau_Text()
{
    if (!Brennmenue.Brennen_Aktiv)
        return {"Mit diesen Angaben kann nicht gebrannt werden.",
                "With these values nothing can be programmed."};
    const bool Gelesen = Wurde_Gelesen();
    const auto Alt =
        Gelesen ? std::span<const std::uint8_t>(Hex_Puffer) : std::span<const std::uint8_t>{};
    const Brenn_Vorschau v = Vorschau_Rechnen(Alt, Hex_Daten, Bereich_Des_Dialogs(), Ohne_FF());
    Text_Paar            t{fmt::format("{} Bytes werden geschrieben.", v.Geschrieben),
                fmt::format("{} bytes will be written.", v.Geschrieben)};
    const auto           Anhaengen = [&t](const std::string& D, const std::string& E) {
        t.D += " " + D;
        t.E += " " + E;
    };
    if (Gelesen)
        Anhaengen(fmt::format("{} davon ändern sich.", v.Geaendert),
                  fmt::format("{} of them change.", v.Geaendert));
    else
        Anhaengen("Was das IC jetzt enthält, ist nicht bekannt.",
                  "What the IC holds now isn't known.");
    if (v.Ansteigend > 0 && !Brennmenue.Löschen)
        Anhaengen(
            fmt::format(
                "In {} Bytes müssten Bits von 0 auf 1 gehen: das geht nur nach dem Löschen.",
                v.Ansteigend),
            fmt::format("In {} bytes bits would have to go from 0 to 1: that takes an erase first.",
                        v.Ansteigend));
    if (Brennmenue.Löschen)
        Anhaengen("Vorher wird das ganze IC gelöscht.", "The whole IC is erased before.");
    if (v.Ausserhalb > 0)
        Anhaengen(fmt::format("{} Bytes des Editors bleiben außerhalb des ICs.", v.Ausserhalb),
                  fmt::format("{} bytes of the editor stay outside the IC.", v.Ausserhalb));
    return t;
}

} // namespace varnholt
