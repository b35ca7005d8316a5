// The lasting settings, with their values at a first start. The settings file reads and writes them
// (settings_file), the dialog `Optionen` edits them (options).
#pragma once

#include "core/platform.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace varnholt {

// Windows whose font can be chosen; index of Schriften.
inline constexpr int Schrift_Edit   = 0;
inline constexpr int Schrift_Spr    = 1;
inline constexpr int Schrift_Notiz  = 2;
inline constexpr int Schrift_Anzahl = 3;

inline constexpr int Zoom_Mindestens = 25; // per cent
inline constexpr int Zoom_Hoechstens = 400;

inline struct Optionen_T {
    bool         C_Brenner           = true;  // check programmer before access
    bool         C_IC                = true;  // check microcontroller before access
    bool         C_IC_vor_B          = true;  // read IC before the programming dialog
    bool         C_IC_nach_B         = true;  // verify after programming
    bool         C_IC_bei_B          = true;  // verify during programming
    std::int32_t Port_Basis          = 888;   // base address of the parallel port (378h)
    bool         Lade_Letzte         = true;  // load last file at start
    bool         Zahlendeutung       = false; // numbers without a mark are hexadecimal
    bool         No_FF               = true;  // don't program FFh bytes
    bool         C_Erstelle_Listfile = false; // write a list file on assembly
    bool         C_keine_TAB_SM      = true;  // hide jumpmarks behind a tab
    bool         C_keine_US_SM       = false; // hide jumpmarks behind "_"
    bool         O_MOV_ZQ            = true;  // MOV direct, direct: destination first
    bool         C_Auto_Binfile      = false; // write a binary file on assembly
    bool         C_Auto_Hexfile      = false; // write a hex file on assembly
    int O_Automatik_Bef  = 0;  // case of recognised instructions: 0 upper, 1 first, 2 as typed
    int Eprommer_Version = 0;  // 30, 31 or 32; 0 not yet chosen
    int Undo_Max         = 99; // highest undo slot, -1 none
    std::int32_t Hintergrund_Farbe     = 0xFFFFFF;
    int          Tessel2_Version       = 0;     // 10, 11 or 12; 0 not yet chosen
    int          Autosave_Nummer       = 0;     // next autosave number
    bool         Autosave_Zeitlich     = true;  // autosave timed
    bool         Autosave_Assemblieren = false; // autosave before assembly
    // By Schrift_Edit ...; an empty name and the size 0 stand for the window's default.
    std::array<Schrift_T, Schrift_Anzahl> Schriften{};
    // Which port the program drives: "sim" a simulated board, "ppdev:" and a device path, "io" the
    // registers at Port_Basis; empty: not yet chosen.
    std::string Port_Art{};
    int         Zoom = 100; // of the source editor, per cent
    // Place of the main window: "left top width height", or "max"; empty: not yet known.
    std::string Hauptfenster{};
    // Further lines "Name=Wert" of the settings file that this version doesn't know; they are
    // written again.
    std::vector<std::string> Fremde_Zeilen{};
} Optionen_Werte;

inline constinit auto& C_Brenner             = Optionen_Werte.C_Brenner;
inline constinit auto& C_IC                  = Optionen_Werte.C_IC;
inline constinit auto& C_IC_vor_B            = Optionen_Werte.C_IC_vor_B;
inline constinit auto& C_IC_nach_B           = Optionen_Werte.C_IC_nach_B;
inline constinit auto& C_IC_bei_B            = Optionen_Werte.C_IC_bei_B;
inline constinit auto& Port_Basis            = Optionen_Werte.Port_Basis;
inline constinit auto& Lade_Letzte           = Optionen_Werte.Lade_Letzte;
inline constinit auto& Zahlendeutung         = Optionen_Werte.Zahlendeutung;
inline constinit auto& No_FF                 = Optionen_Werte.No_FF;
inline constinit auto& C_Erstelle_Listfile   = Optionen_Werte.C_Erstelle_Listfile;
inline constinit auto& C_keine_TAB_SM        = Optionen_Werte.C_keine_TAB_SM;
inline constinit auto& C_keine_US_SM         = Optionen_Werte.C_keine_US_SM;
inline constinit auto& O_MOV_ZQ              = Optionen_Werte.O_MOV_ZQ;
inline constinit auto& C_Auto_Binfile        = Optionen_Werte.C_Auto_Binfile;
inline constinit auto& C_Auto_Hexfile        = Optionen_Werte.C_Auto_Hexfile;
inline constinit auto& O_Automatik_Bef       = Optionen_Werte.O_Automatik_Bef;
inline constinit auto& Eprommer_Version      = Optionen_Werte.Eprommer_Version;
inline constinit auto& Undo_Max              = Optionen_Werte.Undo_Max;
inline constinit auto& Hintergrund_Farbe     = Optionen_Werte.Hintergrund_Farbe;
inline constinit auto& Tessel2_Version       = Optionen_Werte.Tessel2_Version;
inline constinit auto& Autosave_Nummer       = Optionen_Werte.Autosave_Nummer;
inline constinit auto& Autosave_Zeitlich     = Optionen_Werte.Autosave_Zeitlich;
inline constinit auto& Autosave_Assemblieren = Optionen_Werte.Autosave_Assemblieren;
inline constinit auto& Schriften             = Optionen_Werte.Schriften;
inline constinit auto& Port_Art              = Optionen_Werte.Port_Art;
inline constinit auto& Zoom                  = Optionen_Werte.Zoom;
inline constinit auto& Hauptfenster          = Optionen_Werte.Hauptfenster;
inline constinit auto& Fremde_Zeilen         = Optionen_Werte.Fremde_Zeilen;

// Every option at its value of a first start.
inline void Optionen_Zuruecksetzen() { Optionen_Werte = {}; }

} // namespace varnholt
