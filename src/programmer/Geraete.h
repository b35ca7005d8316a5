// The device table, filled once from Spec.ini, and the selected device. Owner: programmer/; read by
// the assembler (size check), the loader and the saver.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace varnholt {

inline constexpr int Gruppen_Anzahl  = 20; // device groups 0 to 19
inline constexpr int Gruppen_Plaetze = 30; // device number = group * 30 + position
inline constexpr int Geraete_Anzahl  = 621;

// One device. Texts are in upper case; what a record doesn't set stays empty or 0.
struct Geraet_T {
    std::string        Name{}; // key of _EQUALS:, compared with literals; empty: no such device
    std::string        Menue_Name{};     // what menu and messages show; empty: the name
    std::int32_t       Bytes = 0;        // capacity
    std::string        R_Typ{};          // read protocol
    std::string        P_Typ{};          // programming routine
    std::string        E_Typ{};          // erase routine
    std::string        L_Typ{};          // lock-bit routine
    std::int32_t       R_Timing     = 0; // settling time before a status read, microseconds
    std::int32_t       P_Timing     = 0; // pulse or write time, microseconds
    std::int32_t       Seiten_Bytes = 0; // bytes in a page of a paged device
    std::array<int, 5> E_Jumper{};       // positions 1 to 3 of the five jumpers of the Eprommer
    int                M_Jumper1  = 0;   // 1: jumper J1 of the Tessel2 board is to be inserted
    int                Programmer = 0;   // board: 1 Eprommer, 3 Tessel2, any other Tessel1
};

inline struct Geraete_T {
    std::array<Geraet_T, Geraete_Anzahl>    Geraete_Tabelle{}; // by device number
    std::array<std::string, Gruppen_Anzahl> Gruppen_Namen{};   // captions of the device menus
    std::array<int, Gruppen_Anzahl>         Gruppen_Belegt{};  // devices of the group
    std::array<std::string, Geraete_Anzahl> Menue_Texte{};     // captions of the menu entries
    // Device sizes by device number + 1; element 0, no device, is the whole image.
    std::array<std::int32_t, Geraete_Anzahl + 1> IC_Groesse{524288};
    int                                          IC_Nummer = -1; // selected device, -1 none
} Geraete;

inline constinit auto& Geraete_Tabelle = Geraete.Geraete_Tabelle;
inline constinit auto& IC_Groesse      = Geraete.IC_Groesse;
inline constinit auto& IC_Nummer       = Geraete.IC_Nummer;

// Size of the selected device in bytes, or of the whole image without one.
inline std::int32_t IC_Groesse_Gewaehlt()
{
    const int Platz = IC_Nummer + 1;
    return IC_Groesse[static_cast<std::size_t>(Platz)];
}

// Menu name of the selected device, which is its name where it has no menu name; empty without one.
std::string IC_Menue_Name();

// An empty table and no selection.
void Geraete_Zuruecksetzen();

} // namespace varnholt
