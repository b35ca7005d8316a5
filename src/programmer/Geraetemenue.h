// Choosing a device in the menu of the window: the check against the board, the questions for
// hardware versions, the reminder of the jumpers. Geraetewahl holds the rules, Specifications the
// menu's texts.
#pragma once

#include "core/interface_texts.h"

#include <array>
#include <string>

namespace varnholt {

inline constexpr int Jumper_Anzahl = 5;
// Device numbers of the hardware tests: no rows of the table, only sets of jumpers.
inline constexpr int Erster_Test_Baustein  = 610;
inline constexpr int Letzter_Test_Baustein = 612;

inline struct Geraetemenue_T {
    int Haken = -1; // device number of the ticked entry, -1 none
} Geraetemenue;

// What the form `Jumper` shows.
inline struct Jumper_T {
    std::string                    Titel{};          // UTF-8
    std::array<int, Jumper_Anzahl> Stellung{};       // 1 to 3; 0: nothing to set
    int                            Version   = 32;   // of the board's picture: 30, 31, 32
    bool                           Ohne_Null = true; // version 32 needs jumper 0 for a 27C080 only
    std::string                    Hinweis{};        // empty: none
    int                            Stand = 0;        // counts changes
} Jumper;

void Geraetemenue_Zuruecksetzen();

// An entry of the menu MNU_IC_Typ: group 0 to 19 and position in it. The choice from before stays
// where the version of the board is asked for and not told.
// reads: Geraete_Tabelle, hardware versions   sets: IC_Nummer, Abbruch, menu, Jumper
void MNU_IC_Typ_Click(int Gruppe, int Platz);

// The entries of the menu that the type of the selected device enables.   sets: menu
void IC_Befehle_Schalten();

// Fills the form for the selected device, or for a set of the hardware tests, and shows it.
// reads: IC_Nummer, Eprommer_Version   sets: Jumper
void Jumper_Anzeige();

// The forms of the hardware versions.
struct Versions_Wahl {
    Festes_Paar                Frage{};
    std::array<Festes_Paar, 3> Texte{};
    std::array<int, 3>         Werte{};
};
const Versions_Wahl& Wahl_Eprommer_Version();
const Versions_Wahl& Wahl_Tessel2_Version();
// A button of the form: 0 to 2.   sets: Eprommer_Version or Tessel2_Version
void Wahl_Eprommer_Version_Click(int Knopf);
void Wahl_Tessel2_Version_Click(int Knopf);

// Asks for the version where it isn't known yet; false when it still isn't.
[[nodiscard]] bool Eprommer_Version_Erfragen();
[[nodiscard]] bool Tessel2_Version_Erfragen();

} // namespace varnholt
