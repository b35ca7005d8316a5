// The dialog `Optionen` as a model: what its controls show, what they do, and how they are labelled
// in both languages. The window shows the fields and forwards the events.
#pragma once

#include "core/messages.h"
#include "core/platform.h"
#include "core/settings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

// A check box and the flag that it edits, in the order in which they are applied.
struct Haken_Eintrag_T {
    std::string_view Name{};
    bool*            Wert = nullptr;
};

// clang-format off
inline constexpr auto Haken_Tabelle = std::to_array<Haken_Eintrag_T>({
    {"C_Brenner",           &Optionen_Werte.C_Brenner},
    {"C_IC",                &Optionen_Werte.C_IC},
    {"C_IC_vor_B",          &Optionen_Werte.C_IC_vor_B},
    {"C_IC_bei_B",          &Optionen_Werte.C_IC_bei_B},
    {"C_IC_nach_B",         &Optionen_Werte.C_IC_nach_B},
    {"No_FF",               &Optionen_Werte.No_FF},
    {"Lade_Letzte",         &Optionen_Werte.Lade_Letzte},
    {"C_keine_TAB_SM",      &Optionen_Werte.C_keine_TAB_SM},
    {"C_keine_US_SM",       &Optionen_Werte.C_keine_US_SM},
    {"C_Erstelle_Listfile", &Optionen_Werte.C_Erstelle_Listfile},
    {"C_Auto_Binfile",      &Optionen_Werte.C_Auto_Binfile},
    {"C_Auto_Hexfile",      &Optionen_Werte.C_Auto_Hexfile},
    {"C_Autosave_Ass",      &Optionen_Werte.Autosave_Assemblieren},
    {"C_Autosave_timed",    &Optionen_Werte.Autosave_Zeitlich},
});
// clang-format on

// Place of a check box in the table; the table's size when there is none of that name.
constexpr std::size_t Haken_Platz(std::string_view Name)
{
    const auto* p = std::find_if(Haken_Tabelle.begin(),
                                 Haken_Tabelle.end(),
                                 [&](const Haken_Eintrag_T& e) { return e.Name == Name; });
    return static_cast<std::size_t>(p - Haken_Tabelle.begin());
}

// Kinds of port, in the order of the choice `Port_Art`.
enum class Port_Wahl_T { Simuliert, Ppdev, Direkt };

inline constexpr std::string_view Ppdev_Vorgabe = "/dev/parport0";

// What the controls show. Holds while the dialog is open.
inline struct Optionen_Form_T {
    std::string                            T_Portadr{};        // hexadecimal with a trailing h
    std::string                            T_Undo_Max{};       // steps, 0 to 999: Undo_Max + 1
    std::array<bool, Haken_Tabelle.size()> Haken{};            // by place in Haken_Tabelle
    int                                   O_Automatik_Bef = 0; // items of the option groups, from 0
    int                                   Zahlendeutung   = 0; // 0 decimal, 1 hexadecimal
    int                                   O_MOV_ZQ = 0; // 0 destination first, 1 source first
    std::int32_t                          Farbe    = 0; // of the colour dialog
    std::array<Schrift_T, Schrift_Anzahl> Probe{};      // samples
    Port_Wahl_T                           Port_Art = Port_Wahl_T::Simuliert;
    std::string                           T_Geraet{}; // device path of the kernel's port (UTF-8)
} Optionen_Form;

// The captions of the controls by name, UTF-8; both texts are empty for a name without one. The
// items of an option group have the group's name and "_1", "_2" ...; the boxes around the controls
// have names that begin with "Gruppe_".
struct Beschriftung_T {
    std::string_view Name{};
    std::string_view D{};
    std::string_view E{};
};
const Beschriftung_T& Optionen_Beschriftung(std::string_view Name);
// The same in the interface language; English while that is none of the two.
std::string Optionen_Text(std::string_view Name);

// The form's load handler: every control shows its setting.   sets: Optionen_Form
void Optionen_Laden();
// Rewrites the text as its number's value, held within 0 to 999.   sets: Optionen_Form.T_Undo_Max
void T_Undo_Max_Change();
// Font dialog of a target (Schrift_Edit ...); a choice shows on its sample only.
// sets: Optionen_Form.Probe
void Schrift_Click(int Ziel);
// Colour dialog; a choice shows on the text windows at once.   sets: Optionen_Form.Farbe
void Farbe_Click();
// Applies the form. Another kind of port starts its driver, with the message of a failed start.
// reads: Optionen_Form   sets: settings.h, Treiber_Ergebnis, Porttreiber_OK, the undo ring when its
// size changes, Sprungmarken
void B_Üb_Click();
void B_OK_Click(); // applies and closes
void B_Ab_Click(); // closes; the colour goes back, no setting changes

// Gives the three windows their fonts.   reads: Schriften
void Schriften_Anwenden();

} // namespace varnholt
