// What the entries of the menu and the buttons of the tool bar run.
#include "core/commands.h"
#include "core/menu.h"

namespace varnholt {
namespace {

using Befehl_T = void (*)();

struct Menue_Befehl_T {
    Menue_Name Name;
    Befehl_T   Befehl;
};

// clang-format off
constexpr Menue_Befehl_T Menue_Befehle[] = {
    {"MNU_Neu",                 MNU_Neu_Click},
    {"MNU_Load",                MNU_Load_Click},
    {"MNU_Load_Autosave",       MNU_Load_Autosave_Click},
    {"MNU_Importdata",          MNU_Importdata_Click},
    {"MNU_Save",                MNU_Save_Click},
    {"MNU_SaveAs",              MNU_SaveAs_Click},
    {"MNU_vergleiche_hexdaten", MNU_vergleiche_hexdaten_Click},
    {"MNU_Datei1",              MNU_Datei1_Click},
    {"MNU_Datei2",              MNU_Datei2_Click},
    {"MNU_Datei3",              MNU_Datei3_Click},
    {"MNU_Ende",                MNU_Ende_Click},
    {"MNU_Undo",                MNU_Undo_Click},
    {"MNU_Redo",                MNU_Redo_Click},
    {"MNU_Ausschneiden",        MNU_Ausschneiden_Click},
    {"MNU_Kopieren",            MNU_Kopieren_Click},
    {"MNU_Einfügen",            MNU_Einfügen_Click},
    {"MNU_Löschen",             MNU_Löschen_Click},
    {"MNU_Adresse_direkt",      MNU_Adresse_direkt_Click},
    {"MNU_ErsteAdresse",        MNU_ErsteAdresse_Click},
    {"MNU_LetzteAdresse",       MNU_LetzteAdresse_Click},
    {"MNU_Optionen",            MNU_Optionen_Click},
    {"MNU_MC",                  MNU_MC_Click},
    {"MNU_Hex",                 MNU_Hex_Click},
    {"MNU_Spr",                 MNU_Spr_Click},
    {"MNU_Not",                 MNU_Not_Click},
    {"MNU_G_Einstellung",       MNU_G_Einstellung_Click},
    {"MNU_S_Quelmark",          MNU_S_Quelmark_Click},
    {"MNU_S_Update",            MNU_S_Update_Click},
    {"MNU_S_Forum",             MNU_S_Forum_Click},
    {"MNU_S_Mail",              MNU_S_Mail_Click},
    {"MNU_S_Bücher",            MNU_S_Bücher_Click},
    {"MNU_Deutsch",             Sprache_Deutsch},
    {"MNU_Englisch",            Sprache_Englisch},
    {"MNU_Info",                MNU_Info_Click},
    {"MNU_Help",                MNU_Help_Click},
};
// clang-format on

// The command of each entry by its place; null where there is none.
constexpr auto Befehle = [] {
    std::array<Befehl_T, Menue_Anzahl> Nach_Platz{};
    for (const Menue_Befehl_T& m : Menue_Befehle)
        Nach_Platz[m.Name.Platz] = m.Befehl;
    return Nach_Platz;
}();

// Whether an entry opens a menu. Asked for each entry whenever the windows follow the state.
constexpr auto Hat_Kinder = [] {
    std::array<bool, Menue_Anzahl> Nach_Platz{};
    for (const Menue_Eintrag_T& e : Menue_Tabelle)
        if (!e.Eltern.empty())
            Nach_Platz[Menue_Platz(e.Eltern)] = true;
    return Nach_Platz;
}();

// The command of each button by its position; null when it is still to come.
constexpr auto Knopf_Befehle = [] {
    std::array<Befehl_T, Werkzeug_Plaetze + 1> Nach_Position{};
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle)
        Nach_Position[static_cast<std::size_t>(w.Position)] =
            w.Menue.empty() ? Ansicht_umschalten : Befehle[Menue_Platz(w.Menue)];
    return Nach_Position;
}();

static_assert(std::all_of(Werkzeug_Tabelle.begin(),
                          Werkzeug_Tabelle.end(),
                          [](const Werkzeug_Eintrag_T& w) {
                              return w.Menue.empty() || Menue_Platz(w.Menue) < Menue_Anzahl;
                          }));

} // namespace

bool Menue_Hat_Befehl(std::size_t Platz)
{
    return Platz < Menue_Anzahl && (Befehle[Platz] != nullptr || Hat_Kinder[Platz]);
}

bool Menue_Bereit(std::size_t Platz)
{
    return Menue_Hat_Befehl(Platz) && Menues.Eintraege[Platz].Aktiv;
}

bool Werkzeug_Bereit(int Position)
{
    return Position >= 0 && Position <= Werkzeug_Plaetze &&
           Knopf_Befehle[static_cast<std::size_t>(Position)] != nullptr && Werkzeug(Position).Aktiv;
}

void Menue_Ausfuehren(std::size_t Platz)
{
    if (Menue_Bereit(Platz) && Menues.Eintraege[Platz].Sichtbar && Befehle[Platz] != nullptr)
        Befehle[Platz]();
}

void Werkzeug_Ausfuehren(std::string_view Schluessel)
{
    const auto* Knopf =
        std::find_if(Werkzeug_Tabelle.begin(),
                     Werkzeug_Tabelle.end(),
                     [&](const Werkzeug_Eintrag_T& w) { return w.Schluessel == Schluessel; });
    if (Knopf != Werkzeug_Tabelle.end() && Werkzeug_Bereit(Knopf->Position))
        Knopf_Befehle[static_cast<std::size_t>(Knopf->Position)]();
}

} // namespace varnholt
