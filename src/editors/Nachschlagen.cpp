// The reference windows `Bef` and `Basic_Bef`: loading, sorting, selecting.
#include "editors/Nachschlagen.h"

#include "core/codepage.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "files/Dateizugriff.h"
#include "files/Textdatei.h"
#include "language/HexDez.h"

#include <algorithm>
#include <optional>

namespace varnholt {
namespace {

// The lines of a file one after the other.
class Dok_Leser {
public:
    explicit Dok_Leser(std::string_view Name)
    {
        std::string Grund;
        const auto  Pfad   = Datei_Suchen(Programm_Pfad, Name);
        auto        Anfang = Pfad ? Datei_Anfang_Lesen(*Pfad, Dok_Hoechstens, Grund) : std::nullopt;
        Offen              = Anfang.has_value();
        if (Offen)
            Text = Text_Entschluesseln(std::move(Anfang->Bytes)).Text;
        Rest = Text;
    }
    Dok_Leser(const Dok_Leser&)            = delete;
    Dok_Leser& operator=(const Dok_Leser&) = delete;

    bool Da() const { return Offen; }
    bool Am_Ende() const { return Rest.empty(); }
    // The next line into a cell; false at the end of the file.
    bool Lesen(std::string& Zelle)
    {
        if (Rest.empty())
            return false;
        const std::size_t Ende = std::min(Rest.find(CRLF), Rest.size());
        Zelle                  = Rest.substr(0, std::min(Ende, Zelle_Hoechstens));
        Rest.remove_prefix(std::min(Ende + CRLF.size(), Rest.size()));
        return true;
    }

private:
    std::string      Text{};
    std::string_view Rest{};
    bool             Offen = false;
};

bool Zeile_Lesen(Dok_Leser& Datei, Tafel_Zeile_T& Zeile, int Spalten)
{
    for (int s = 0; s < Spalten; ++s)
        if (!Datei.Lesen(Zeile[static_cast<std::size_t>(s)]))
            return false;
    return true;
}

// Only the German interface tells it.
void Fehlerhaft_Melden(const char* Text)
{
    if (Sprache == "D")
        Melden({Text, ""}, {}, Knoepfe::Ok, Symbol::Warnung);
}

void Beginnen(Tafel_T& Tafel, std::size_t Zeilen)
{
    Tafel.Zeilen.assign(Zeilen, {});
    Tafel.Gewaehlt = -1;
    Tafel.Geladen  = true;
    ++Tafel.Stand;
}

bool Bef_Lesen()
{
    Dok_Leser Datei("befehle.dok");
    for (Tafel_Zeile_T& Zeile : Nachschlagen.Bef.Zeilen)
        if (!Zeile_Lesen(Datei, Zeile, Bef_Spalten_Anzahl))
            return false;
    return true;
}

bool Basic_Bef_Lesen()
{
    Dok_Leser Datei("basic.dok");
    while (!Datei.Am_Ende())
        if (!Zeile_Lesen(Datei, Nachschlagen.Basic_Bef.Zeilen.emplace_back(), Basic_Spalten_Anzahl))
            return false;
    return Datei.Da();
}

void Sortieren(Tafel_T& Tafel, std::size_t Spalte)
{
    const bool        Gewaehlt = Tafel.Gewaehlt >= 0;
    const std::string Wahl =
        Gewaehlt ? Tafel.Zeilen[static_cast<std::size_t>(Tafel.Gewaehlt)][0] : std::string{};
    std::stable_sort(Tafel.Zeilen.begin(),
                     Tafel.Zeilen.end(),
                     [&](const Tafel_Zeile_T& a, const Tafel_Zeile_T& b) {
                         return Gross(a[Spalte]) < Gross(b[Spalte]);
                     });
    ++Tafel.Stand;
    if (!Gewaehlt)
        return;
    const auto i   = std::find_if(Tafel.Zeilen.begin(),
                                Tafel.Zeilen.end(),
                                [&](const Tafel_Zeile_T& z) { return z[0] == Wahl; });
    Tafel.Gewaehlt = static_cast<int>(i - Tafel.Zeilen.begin());
    ++Tafel.Wahl_Stand;
}

void Waehlen(Tafel_T& Tafel, int Zeile)
{
    if (Zeile >= 1 && static_cast<std::size_t>(Zeile) <= Tafel.Zeilen.size())
        Tafel.Gewaehlt = Zeile - 1;
}

} // namespace

void Bef_Laden()
{
    Beginnen(Nachschlagen.Bef, Bef_Zeilen_Anzahl);
    if (!Bef_Lesen())
        Fehlerhaft_Melden("Die Datei Befehle.dok ist nicht vorhanden oder fehlerhaft !");
}

void Basic_Bef_Laden()
{
    Beginnen(Nachschlagen.Basic_Bef, 0);
    if (!Basic_Bef_Lesen())
        Fehlerhaft_Melden("Die Datei Basic.dok ist nicht vorhanden oder fehlerhaft !");
}

void Nachschlagen_Bereitstellen(int Fenster)
{
    if (Fenster == Fenster_Bef && !Nachschlagen.Bef.Geladen)
        Bef_Laden();
    if (Fenster == Fenster_Basic && !Nachschlagen.Basic_Bef.Geladen)
        Basic_Bef_Laden();
}

void Bef_Feld_Click(int Zeile, int Spalte)
{
    if (Zeile == 0 && Spalte >= 0 && Spalte < Bef_Spalten_Anzahl)
        Sortieren(Nachschlagen.Bef, static_cast<std::size_t>(Spalte));
    else
        Waehlen(Nachschlagen.Bef, Zeile);
}

void Basic_Bef_Feld_Click(int Zeile) { Waehlen(Nachschlagen.Basic_Bef, Zeile); }

// The row of the opcode, wherever sorting has brought it; in the order of the file, as the hex
// editor counts, where no row has it.
void Bef_Nachfuehren()
{
    if (Nachschlagen.Wunsch_Erfuellt == Hexedit.Bef_Stand || !Nachschlagen.Bef.Geladen)
        return;
    Nachschlagen.Wunsch_Erfuellt = Hexedit.Bef_Stand;
    Tafel_T&   Tafel             = Nachschlagen.Bef;
    const auto i =
        std::find_if(Tafel.Zeilen.begin(), Tafel.Zeilen.end(), [](const Tafel_Zeile_T& Zeile) {
            return Bef_Opcode(Zeile) == Hexedit.Bef_Zeile - 1;
        });
    Waehlen(Tafel,
            i != Tafel.Zeilen.end() ? static_cast<int>(i - Tafel.Zeilen.begin()) + 1
                                    : Hexedit.Bef_Zeile);
    ++Tafel.Wahl_Stand;
}

int Bef_Opcode(const Tafel_Zeile_T& Zeile)
{
    return Zeile[0].size() == 2 ? Hex_zu_Wert(Zeile[0]) : -1;
}

std::string_view Laengster_Text(const Tafel_T& Tafel, int Spalte)
{
    std::string_view Laengster;
    for (const Tafel_Zeile_T& Zeile : Tafel.Zeilen)
        if (const std::string& Text = Zeile[static_cast<std::size_t>(Spalte)];
            Text.size() > Laengster.size())
            Laengster = Text;
    return Laengster;
}

} // namespace varnholt
