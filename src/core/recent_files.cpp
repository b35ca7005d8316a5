// The three recent files: their order, their menu entries, and what is left of them at a start.
#include "core/commands.h"
#include "core/menu.h"
#include "core/shared_state.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace varnholt {
namespace {

constexpr std::array<Menue_Name, 3> Eintraege = {"MNU_Datei1", "MNU_Datei2", "MNU_Datei3"};

bool Vorhanden(const std::string& Name)
{
    std::error_code Fehler;
    return !Name.empty() && std::filesystem::exists(Name, Fehler);
}

void Neue_Datei_Voranstellen()
{
    if (!Letzte_Datei[1].empty())
        Letzte_Datei[2] = Letzte_Datei[1];
    if (!Letzte_Datei[0].empty())
        Letzte_Datei[1] = Letzte_Datei[0];
    Letzte_Datei[0] = Datei_Name;
}

} // namespace

void Letzte_Dateien()
{
    if (Datei_Name == Letzte_Datei[1])
        std::swap(Letzte_Datei[0], Letzte_Datei[1]);
    else if (Datei_Name != Letzte_Datei[0])
        Neue_Datei_Voranstellen();
    Letzte_Dateien_Zeigen();
}

void Letzte_Dateien_Zeigen()
{
    for (std::size_t i = 0; i < Eintraege.size(); ++i) {
        Menue(Eintraege[i]).Titel    = Letzte_Datei[i];
        Menue(Eintraege[i]).Sichtbar = !Letzte_Datei[i].empty();
    }
    Menue("MNU_Leer3").Sichtbar =
        std::any_of(Letzte_Datei.begin(), Letzte_Datei.end(), [](const std::string& Name) {
            return !Name.empty();
        });
}

// Only place 1 is looked at: each time it is missing the ones behind it move up, and the last place
// that is still filled is cleared.
void Letzte_Dateien_Bereinigen()
{
    for (std::size_t Belegt = Letzte_Datei.size(); Belegt > 0; --Belegt) {
        if (Vorhanden(Letzte_Datei[0]))
            return;
        std::move(Letzte_Datei.begin() + 1,
                  Letzte_Datei.begin() + static_cast<std::ptrdiff_t>(Belegt),
                  Letzte_Datei.begin());
        Letzte_Datei[Belegt - 1].clear();
    }
}

} // namespace varnholt
