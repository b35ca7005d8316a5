// The preview of a programming run.
#include "programmer/Brennvorschau.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Brennmenue.h"
#include "programmer/Loeschen.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

using Bytes_T = std::span<const std::uint8_t>;

bool Im_Bereich(const Brenn_Bereich& b, std::int64_t IC) { return IC >= b.Erste && IC <= b.Letzte; }

// What a device address gets when it is written.
std::uint8_t Neues_Byte(Bytes_T Editor, const Brenn_Bereich& b, std::int32_t IC)
{
    if (IC < b.Nullen_Bis)
        return 0;
    return Bild_Byte(Editor, Bild_Adresse(IC, b.Abstand, b.Ungerade, b.Gerade));
}

// ---- one device address ----

struct Adresse_T {
    std::uint8_t Neu         = 0;
    bool         Geschrieben = false;
    bool         Nachgesehen = false; // written, or passed over and checked
};

Adresse_T
Adresse_Ansehen(Bytes_T Editor, const Brenn_Bereich& b, const Brenn_Umstaende& u, std::int32_t IC)
{
    Adresse_T a;
    if (!Im_Bereich(b, IC))
        return a;
    a.Neu         = Neues_Byte(Editor, b, IC);
    a.Geschrieben = a.Neu != 0xFF || !b.Ohne_FF;
    a.Nachgesehen = a.Geschrieben || (u.Sieht_FF_Nach && IC >= b.Ab);
    return a;
}

// Jetzt: what the device holds.
void Byte_Vergleichen(Brenn_Vorschau&        v,
                      const Adresse_T&       a,
                      const Brenn_Umstaende& u,
                      std::uint8_t           Jetzt)
{
    const std::uint8_t Vorher = u.Loescht ? std::uint8_t{0xFF} : Jetzt;
    std::uint8_t       Danach = Vorher;
    if (a.Geschrieben)
        Danach = u.Hebt_Bits ? a.Neu : static_cast<std::uint8_t>(Vorher & a.Neu);
    v.Geaendert += Danach != Jetzt ? 1 : 0;
    v.Ansteigend += a.Nachgesehen && !u.Hebt_Bits && (a.Neu & ~Vorher & 0xFF) != 0 ? 1 : 0;
}

// ---- the image ----

// Bytes of the image, with a split of its half, that the range doesn't reach.
std::int32_t Uebrig_Zaehlen(Bytes_T Editor, const Brenn_Bereich& b)
{
    const std::int64_t Schritt = b.Ungerade || b.Gerade ? 2 : 1;
    const std::int64_t Groesse = static_cast<std::int64_t>(Editor.size());
    std::int32_t       n       = 0;
    for (std::int64_t e = b.Ungerade ? 1 : 0; e < Groesse; e += Schritt) {
        const std::int64_t IC = e / Schritt + b.Abstand;
        if (Editor[static_cast<std::size_t>(e)] != 0xFF &&
            (!Im_Bereich(b, IC) || IC < b.Nullen_Bis))
            ++n;
    }
    return n;
}

// ---- words ----

bool Wird_Gelesen() { return Brennmenue.IC_LBA_D == "gelesen" || Brennmenue.IC_LBA_D == "read..."; }

// The field holds an address or the word for an empty device, not a note on the read.
bool Wurde_Gelesen()
{
    const std::string& s = Brennmenue.IC_LBA_D;
    return s == "LEER" || s == "EMPTY" || (!s.empty() && s[0] >= '0' && s[0] <= '9');
}

void Anhaengen(Text_Paar& t, const std::string& D, const std::string& E)
{
    t.D += " " + D;
    t.E += " " + E;
}

void Loeschen_Sagen(Text_Paar& t, bool Loescht)
{
    if (Loescht)
        Anhaengen(t, "Vorher wird das ganze IC gelöscht.", "The whole IC is erased before.");
    else if (Brennmenue.Löschen)
        Anhaengen(t,
                  "Gelöscht wird nicht: für dieses IC gibt es hier kein Löschen.",
                  "Nothing is erased: there is no erase for this IC here.");
}

void Aenderung_Sagen(Text_Paar& t, const Brenn_Vorschau& v, bool Loescht)
{
    if (!Wurde_Gelesen())
        Anhaengen(t,
                  "Was das IC jetzt enthält, ist nicht bekannt.",
                  "What the IC holds now isn't known.");
    else if (Loescht)
        Anhaengen(t,
                  fmt::format("Im ganzen IC ändern sich {} Bytes.", v.Geaendert),
                  fmt::format("{} bytes of the whole IC change.", v.Geaendert));
    else
        Anhaengen(t,
                  fmt::format("{} davon ändern sich.", v.Geaendert),
                  fmt::format("{} of them change.", v.Geaendert));
}

void Mangel_Sagen(Text_Paar& t, const Brenn_Vorschau& v)
{
    if (v.Ansteigend > 0)
        Anhaengen(
            t,
            fmt::format(
                "In {} Bytes müssten Bits von 0 auf 1 gehen: das geht nur nach dem Löschen.",
                v.Ansteigend),
            fmt::format("In {} bytes bits would have to go from 0 to 1: that takes an erase first.",
                        v.Ansteigend));
    if (v.Ausserhalb > 0)
        Anhaengen(t,
                  fmt::format("{} Bytes des Editors bleiben außerhalb des ICs.", v.Ausserhalb),
                  fmt::format("{} bytes of the editor stay outside the IC.", v.Ausserhalb));
}

} // namespace

Brenn_Vorschau Vorschau_Rechnen(Bytes_T                Baustein,
                                Bytes_T                Editor,
                                const Brenn_Bereich&   Bereich,
                                const Brenn_Umstaende& Umstaende)
{
    Brenn_Vorschau v;
    const auto     Gelesen = static_cast<std::int32_t>(Baustein.size());
    for (std::int32_t i = 0; i < std::max(Bereich.Letzte + 1, Gelesen); ++i) {
        const Adresse_T a = Adresse_Ansehen(Editor, Bereich, Umstaende, i);
        v.Geschrieben += a.Geschrieben ? 1 : 0;
        if (i < Gelesen)
            Byte_Vergleichen(v, a, Umstaende, Baustein[static_cast<std::size_t>(i)]);
    }
    v.Ausserhalb = Uebrig_Zaehlen(Editor, Bereich);
    return v;
}

Brenn_Umstaende Umstaende_Des_Dialogs()
{
    const Brenn_Weg Weg = Brenn_Weg_Von(Gewaehltes_Geraet());
    return {Brennmenue.Löschen && Vor_Brennen_Loeschbar(),
            Weg == Brenn_Weg::EEPROM || Weg == Brenn_Weg::Seiten,
            C_IC_bei_B &&
                (Weg == Brenn_Weg::Eprom || Weg == Brenn_Weg::Flash || Weg == Brenn_Weg::Tessel2)};
}

Text_Paar Vorschau_Text()
{
    if (!Brennen_Bedient())
        return Kein_Brennen_Text();
    if (!Brennmenue.Brennen_Aktiv)
        return {"Mit diesen Angaben kann nicht gebrannt werden.",
                "With these values nothing can be programmed."};
    if (Wird_Gelesen())
        return {"Das IC wird gerade gelesen...", "The IC is being read..."};
    const Brenn_Umstaende u   = Umstaende_Des_Dialogs();
    const auto            Alt = Wurde_Gelesen() ? Bytes_T(Hex_Puffer) : Bytes_T{};
    const Brenn_Vorschau  v   = Vorschau_Rechnen(Alt, Hex_Daten, Bereich_Des_Dialogs(), u);
    Text_Paar             t{fmt::format("{} Bytes werden geschrieben.", v.Geschrieben),
                fmt::format("{} bytes will be written.", v.Geschrieben)};
    Loeschen_Sagen(t, u.Loescht);
    Aenderung_Sagen(t, v, u.Loescht);
    Mangel_Sagen(t, v);
    return t;
}

} // namespace varnholt
