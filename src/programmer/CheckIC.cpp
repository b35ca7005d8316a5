// The comparison of a device with the image (`CheckIC`): its analysis, its verdict and the table of
// differences.
#include "programmer/CheckIC.h"

#include "core/messages.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Feldwert.h"
#include "programmer/Lesen.h"

#include <fmt/format.h>

#include <iterator>

namespace varnholt {
namespace {

constexpr int              Tabelle_Maximum = 1000; // lines of differences
constexpr std::string_view Tabelle_Linie   = "--------+------+------\r\n";

std::int32_t Letzte_Beschriebene()
{
    auto u = static_cast<std::int32_t>(CheckIC.Baustein.size()) - 1;
    while (u >= 0 && CheckIC.Baustein[static_cast<std::size_t>(u)] == 0xFF)
        --u;
    return u;
}

Text_Paar Zustand_Text(std::int32_t u)
{
    if (u < 0)
        return {"Gelöscht", "Clear"};
    return {fmt::format("Beschrieben bis {}(dez) / {}(hex)", u, Feld_Hex(u)),
            fmt::format("Programmed till {}(dec) / {}(hex)", u, Feld_Hex(u))};
}

Text_Paar Urteil_Gleich(bool Ganzer_Baustein)
{
    if (!Ganzer_Baustein)
        return {"Die Daten des IC entsprechen den Daten des Editors.",
                "The IC data is equivalent to the editor data."};
    if (!CheckIC.Ungerade && !CheckIC.Gerade)
        return {"Die Daten des IC entsprechen den Daten des Editors im gesamten Bereich des IC.",
                "The IC data is equivalent to the editor data in the whole area of the ic."};
    return {"Die Daten des IC entsprechen den gesplitteten Daten des Editors (odd/even) im "
            "gesamten Bereich des IC.",
            "The IC data is equivalent to the splittet editor data (odd/even) in the whole area of "
            "the ic."};
}

Text_Paar Urteil_Verschieden()
{
    return {"Die Daten des IC entsprechen NICHT den Daten des Editors.",
            "The IC data is NOT equivalent to the editor data."};
}

Vergleich_T Mit_Bild_Vergleichen()
{
    const auto Laenge = static_cast<std::int32_t>(Hex_Daten.size());
    if (CheckIC.Seiten_Bewiesen)
        return {Laenge, true};
    return Vergleichen(Hex_Puffer, Hex_Daten, CheckIC.Ungerade, CheckIC.Gerade);
}

// The first row that holds: the whole image, the whole device, up to the image's end by a split.
void Urteilen(const Vergleich_T& v, bool Gelöscht)
{
    const bool Ganzes_Bild     = v.Erreicht >= static_cast<std::int32_t>(Hex_Daten.size());
    const bool Ganzer_Baustein = v.Erreicht >= Nutzbare_Bytes(Gewaehltes_Geraet());
    CheckIC.Erste_Abweichung   = v.Erreicht;
    CheckIC.Gleich             = Ganzes_Bild || Ganzer_Baustein || v.Bild_Ende;
    CheckIC.Button_Dat_Aktiv   = !CheckIC.Gleich && !Gelöscht;
    if (CheckIC.Gleich)
        CheckIC.Ergebnis = In_Sprache(Urteil_Gleich(!Ganzes_Bild && Ganzer_Baustein));
    else if (!Gelöscht)
        CheckIC.Ergebnis = In_Sprache(Urteil_Verschieden());
}

void Form_Zeigen(bool Ungerade, bool Gerade)
{
    CheckIC = {.Offen           = true,
               .Frame_IC        = IC_Menue_Name(),
               .Zustand_IC      = In_Sprache({"wird gelesen ....", "reading ...."}),
               .Ungerade        = Ungerade,
               .Gerade          = Gerade,
               .Seiten_Bewiesen = CheckIC.Seiten_Bewiesen};
    Plattform.Fenster->Formular_Zeigen(Formular::F_CheckIC);
}

void Form_Schliessen()
{
    CheckIC.Offen    = false;
    CheckIC.Baustein = {};
    Plattform.Fenster->Formular_Entladen(Formular::F_CheckIC);
}

bool Baustein_Einlesen()
{
    Antwort = Antwort_Ok;
    if (CheckIC.Seiten_Bewiesen)
        return true;
    Hex_Puffer.assign(Hex_Daten.size(), 0);
    Baustein_Lesen();
    return Antwort != Antwort_Abbrechen;
}

} // namespace

Vergleich_T Vergleichen(std::span<const std::uint8_t> Baustein,
                        std::span<const std::uint8_t> Editor,
                        bool                          Ungerade,
                        bool                          Gerade)
{
    for (std::size_t a = 0; a < Baustein.size(); ++a) {
        const auto e =
            static_cast<std::size_t>(Editor_Index(static_cast<std::int64_t>(a), Ungerade, Gerade));
        if (e >= Editor.size())
            return {static_cast<std::int32_t>(a), true};
        if (Baustein[a] != Editor[e])
            return {static_cast<std::int32_t>(a), false};
    }
    return {static_cast<std::int32_t>(Baustein.size()), true};
}

std::string Abweichungen_Tabelle(std::span<const std::uint8_t> Baustein,
                                 std::span<const std::uint8_t> Editor,
                                 std::int32_t                  Bytes,
                                 bool                          Ungerade,
                                 bool                          Gerade)
{
    std::string Tabelle = fmt::format("Hex.Adr.|Editor|  IC  \r\n{}", Tabelle_Linie);
    int         Zeilen  = 0;
    for (std::int32_t a = 0; a < Bytes && static_cast<std::size_t>(a) < Baustein.size(); ++a) {
        const auto         e  = static_cast<std::size_t>(Editor_Index(a, Ungerade, Gerade));
        const std::uint8_t ic = Baustein[static_cast<std::size_t>(a)];
        if (e >= Editor.size())
            break;
        if (Editor[e] == ic)
            continue;
        fmt::format_to(
            std::back_inserter(Tabelle), "{:06X} |  {:02X}  |  {:02X}\r\n", a, Editor[e], ic);
        if (++Zeilen == Tabelle_Maximum)
            return Tabelle + " [....] | [..] | [..] \r\n" + std::string(Tabelle_Linie);
    }
    return Tabelle;
}

void CheckIC_Start(bool Ungerade, bool Gerade)
{
    Form_Zeigen(Ungerade, Gerade);
    if (!Baustein_Einlesen())
        return Form_Schliessen();
    Hex_Puffer.resize(Hex_Daten.size(), 0);
    const auto Bytes = Hex_Puffer.begin() + Nutzbare_Bytes(Gewaehltes_Geraet());
    CheckIC.Baustein.assign(Hex_Puffer.begin(), Bytes);
    const std::int32_t u = Letzte_Beschriebene();
    CheckIC.Zustand_IC   = In_Sprache(Zustand_Text(u));
    CheckIC.Leer         = u < 0;
    Urteilen(Mit_Bild_Vergleichen(), u < 0);
    CheckIC.Seiten_Bewiesen = false;
}

void Button_Dat_Click()
{
    CheckIC.Text          = Abweichungen_Tabelle(CheckIC.Baustein,
                                        Hex_Daten,
                                        static_cast<std::int32_t>(CheckIC.Baustein.size()),
                                        CheckIC.Ungerade,
                                        CheckIC.Gerade);
    CheckIC.Text_Sichtbar = true;
}

void Button_OK_Click()
{
    Form_Schliessen();
    Hex_Puffer = {};
}

} // namespace varnholt
