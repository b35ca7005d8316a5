// What the entries of the menu and the buttons of the tool bar run.
#include "core/commands.h"
#include "core/menu.h"
#include "simulator/Sitzung.h"

namespace varnholt {
namespace {

using Befehl_T = void (*)();

struct Menue_Befehl_T {
    Menue_Name Name;
    Befehl_T   Befehl;
    bool       Im_Lauf = false; // may come while the debugger runs a program
};

// Belongs to a session, or leaves the text, the image and the mode alone.
constexpr bool Auch_Im_Lauf = true;

// clang-format off
constexpr Menue_Befehl_T Menue_Befehle[] = {
    {"MNU_Neu",                 MNU_Neu_Click},
    {"MNU_Load",                MNU_Load_Click},
    {"MNU_Load_Autosave",       MNU_Load_Autosave_Click},
    {"MNU_Importdata",          MNU_Importdata_Click},
    {"MNU_Save",                MNU_Save_Click, Auch_Im_Lauf},
    {"MNU_SaveAs",              MNU_SaveAs_Click, Auch_Im_Lauf},
    {"MNU_vergleiche_hexdaten", MNU_vergleiche_hexdaten_Click},
    {"MNU_PrinterConfig",       MNU_PrinterConfig_Click},
    {"MNU_PrintDialog",         MNU_PrintDialog_Click},
    {"MNU_Datei1",              MNU_Datei1_Click},
    {"MNU_Datei2",              MNU_Datei2_Click},
    {"MNU_Datei3",              MNU_Datei3_Click},
    {"MNU_Ende",                MNU_Ende_Click},
    {"MNU_Undo",                MNU_Undo_Click},
    {"MNU_Redo",                MNU_Redo_Click},
    {"MNU_Ausschneiden",        MNU_Ausschneiden_Click},
    {"MNU_Kopieren",            MNU_Kopieren_Click, Auch_Im_Lauf},
    {"MNU_Einfügen",            MNU_Einfügen_Click},
    {"MNU_Löschen",             MNU_Löschen_Click},
    {"MNU_Ber_Kopieren",        MNU_Ber_Kopieren_Click},
    {"MNU_Ber_setzen",          MNU_Ber_setzen_Click},
    {"MNU_Ber_entfernen",       MNU_Ber_entfernen_Click},
    {"MNU_Adresse_direkt",      MNU_Adresse_direkt_Click},
    {"MNU_ErsteAdresse",        MNU_ErsteAdresse_Click},
    {"MNU_LetzteAdresse",       MNU_LetzteAdresse_Click},
    {"MNU_Suche",               MNU_Suche_Click, Auch_Im_Lauf},
    {"MNU_Weitersuchen",        MNU_Weitersuchen_Click, Auch_Im_Lauf},
    {"MNU_IC_Lesen",            MNU_IC_Lesen_Click},
    {"MNU_IC_Brennen",          MNU_IC_Brennen_Click},
    {"MNU_IC_Prüfen",           MNU_IC_Prüfen_Click},
    {"MNU_Hardware_Version",    MNU_Hardware_Version_Click},
    {"MNU_Tessel2_Hardware_Version", MNU_Tessel2_Hardware_Version_Click},
    {"MNU_Eprommer_Test",       MNU_Eprommer_Test_Click},
    {"MNU_EEprommer",           MNU_EEprommer_Click},
    {"MNU_Tessel2_Test",        MNU_Tessel2_Test_Click},
    {"MNU_IC_Löschen",          MNU_IC_Löschen_Click},
    {"MNU_IC_LockBits",         MNU_IC_LockBits_Click},
    {"MNU_TimeKeeper_ReadTime", MNU_TimeKeeper_ReadTime_Click},
    {"MNU_TimeKeeper_WriteTime", MNU_TimeKeeper_WriteTime_Click},
    {"MNU_TimeKeeper_Start",    MNU_TimeKeeper_Start_Click},
    {"MNU_TimeKeeper_Stop",     MNU_TimeKeeper_Stop_Click},
    {"MNU_Optionen",            MNU_Optionen_Click},
    {"MNU_MC",                  MNU_MC_Click},
    {"MNU_Hex",                 MNU_Hex_Click},
    {"MNU_Bef",                 MNU_Bef_Click, Auch_Im_Lauf},
    {"MNU_Basic",               MNU_Basic_Click, Auch_Im_Lauf},
    {"MNU_Spr",                 MNU_Spr_Click, Auch_Im_Lauf},
    {"MNU_Not",                 MNU_Not_Click, Auch_Im_Lauf},
    {"MNU_CONTROL",             MNU_CONTROL_Click, Auch_Im_Lauf},
    {"MNU_RAM",                 MNU_RAM_Click, Auch_Im_Lauf},
    {"MNU_SFR",                 MNU_SFR_Click, Auch_Im_Lauf},
    {"MNU_EXRAM",               MNU_EXRAM_Click, Auch_Im_Lauf},
    {"MNU_G_Einstellung",       MNU_G_Einstellung_Click, Auch_Im_Lauf},
    {"MNU_deb_Vorbereitung",    Debug_Vorbereiten, Auch_Im_Lauf},
    {"MNU_deb_Starten",         Debug_Start_Stop, Auch_Im_Lauf},
    {"MNU_deb_up",              Debug_Hoch, Auch_Im_Lauf},
    {"MNU_deb_down",            Debug_Runter, Auch_Im_Lauf},
    {"MNU_deb_Einzelschritt",   Debug_Schritt, Auch_Im_Lauf},
    {"MNU_jump_cursor",         Debug_Cursor, Auch_Im_Lauf},
    {"MNU_deb_reset_adr",       Debug_Reset_PC, Auch_Im_Lauf},
    {"MNU_deb_reset",           Debug_Reset_Speicher, Auch_Im_Lauf},
    {"MNU_deb_beenden",         Debug_Beenden, Auch_Im_Lauf},
    {"MNU_Debugger_Stoppunkt",  Debug_Stoppunkt, Auch_Im_Lauf},
    {"MNU_S_Quelmark",          MNU_S_Quelmark_Click, Auch_Im_Lauf},
    {"MNU_S_Update",            MNU_S_Update_Click, Auch_Im_Lauf},
    {"MNU_S_Forum",             MNU_S_Forum_Click, Auch_Im_Lauf},
    {"MNU_S_Mail",              MNU_S_Mail_Click, Auch_Im_Lauf},
    {"MNU_S_Bücher",            MNU_S_Bücher_Click, Auch_Im_Lauf},
    {"MNU_Deutsch",             Sprache_Deutsch, Auch_Im_Lauf},
    {"MNU_Englisch",            Sprache_Englisch, Auch_Im_Lauf},
    {"MNU_Info",                MNU_Info_Click, Auch_Im_Lauf},
    {"MNU_Help",                MNU_Help_Click, Auch_Im_Lauf},
};
// clang-format on

// Keys of the tool bar that have a command and no button.
struct Ohne_Knopf_T {
    std::string_view Schluessel;
    Menue_Name       Name;
};
constexpr Ohne_Knopf_T Ohne_Knopf[] = {{"Reset", "MNU_deb_reset"}};

// The command of each entry by its place; null where there is none.
constexpr auto Befehle = [] {
    std::array<Befehl_T, Menue_Anzahl> Nach_Platz{};
    for (const Menue_Befehl_T& m : Menue_Befehle)
        Nach_Platz[m.Name.Platz] = m.Befehl;
    return Nach_Platz;
}();

// Whether it may come while the debugger runs a program, by its place.
constexpr auto Erlaubt_Im_Lauf = [] {
    std::array<bool, Menue_Anzahl> Nach_Platz{};
    for (const Menue_Befehl_T& m : Menue_Befehle)
        Nach_Platz[m.Name.Platz] = m.Im_Lauf;
    return Nach_Platz;
}();

// Whether an entry opens a menu. Asked for each entry whenever the windows follow the state.
constexpr auto Hat_Kinder = [] {
    std::array<bool, Menue_Anzahl> Nach_Platz{};
    for (const Menue_Eintrag_T& e : Menue_Tabelle)
        if (!e.Eltern.empty())
            Nach_Platz[Menue_Platz(e.Eltern)] = true;
    Nach_Platz[Menue_Platz("MNU_IC_Typ")] = true; // the devices of the table
    return Nach_Platz;
}();

// The command of each button by its position; null where there is a gap.
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

namespace {

const Werkzeug_Eintrag_T* Knopf_Von(std::string_view Schluessel)
{
    const auto* Knopf =
        std::find_if(Werkzeug_Tabelle.begin(),
                     Werkzeug_Tabelle.end(),
                     [&](const Werkzeug_Eintrag_T& w) { return w.Schluessel == Schluessel; });
    return Knopf == Werkzeug_Tabelle.end() ? nullptr : Knopf;
}

} // namespace

void Werkzeug_Ausfuehren(std::string_view Schluessel)
{
    const Werkzeug_Eintrag_T* Knopf = Knopf_Von(Schluessel);
    if (Knopf != nullptr && Werkzeug_Bereit(Knopf->Position))
        Knopf_Befehle[static_cast<std::size_t>(Knopf->Position)]();
    for (const Ohne_Knopf_T& k : Ohne_Knopf)
        if (k.Schluessel == Schluessel)
            Menue_Ausfuehren(k.Name.Platz);
}

bool Menue_Im_Lauf(std::size_t Platz) { return Platz < Menue_Anzahl && Erlaubt_Im_Lauf[Platz]; }

bool Werkzeug_Im_Lauf(std::string_view Schluessel)
{
    const Werkzeug_Eintrag_T* Knopf = Knopf_Von(Schluessel);
    return Knopf != nullptr && Menue_Im_Lauf(Menue_Platz(Knopf->Menue));
}

} // namespace varnholt
