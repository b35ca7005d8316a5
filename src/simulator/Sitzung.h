// A debugger session: binds the machine to the source text. What the commands do, where the running
// line is, and how it is shown. Sim_Ansichten holds what the four windows show.
#pragma once

#include <bitset>
#include <cstdint>

namespace varnholt {

// Is told of each instruction that Simulieren executes, behind its peripheral and interrupt pass.
class Befehls_Zeuge {
public:
    virtual ~Befehls_Zeuge()                       = default;
    virtual void Ausgefuehrt(std::int32_t Adresse) = 0; // where the instruction stood
};

// Flags of a session. `Debugger_Aktiv` stands with the document (core/shared_state.h).
inline struct Sitzung_T {
    // A stop is asked for, or a stop point was reached. Ends the colouring of a text at its next
    // turn as well; anyone may set it.
    bool          Debug_Stop         = false;
    bool          Debug_Laeuft       = false; // the free run of Debug_Start_Stop is in progress
    bool          Debug_Verzoegerung = false; // `Check1` of the panel: wait 200 ms after each line
    bool          Debug_Vollgas  = false; // `Check2`: no line tracking, no display while running
    bool          Schritt_Laeuft = false; // a single step is under way
    bool          Aufsteigend    = false; // no ORG leads back: the rows' addresses ascend
    std::uint32_t Nummer         = 0;     // counts the sessions begun
    // By address 0 to 65536: no row of the main text begins there, a search would be in vain.
    std::bitset<65537> Kein_Anfang{};
    // The first line of the editor's view, and the last one, that were brought into sight with the
    // running line; -1: none.
    std::int64_t Oberste_Gezeigt  = -1;
    std::int64_t Unterste_Gezeigt = -1;
    bool         Enge_Sicht       = false; // the view has no room for lines round the running one
    // When a running program last let windows and events have their turn, or when it began;
    // seconds since midnight.
    double         Letzte_Runde = 0;
    Befehls_Zeuge* Zeuge        = nullptr; // null: nobody wants to know
} Sitzung;

inline constinit auto& Debug_Stop         = Sitzung.Debug_Stop;
inline constinit auto& Debug_Laeuft       = Sitzung.Debug_Laeuft;
inline constinit auto& Debug_Verzoegerung = Sitzung.Debug_Verzoegerung;
inline constinit auto& Debug_Vollgas      = Sitzung.Debug_Vollgas;

// A free run or a long single step is under way: it gives the windows their turn now and then, and
// ends where Debug_Stop is set.
inline bool Programm_Laeuft() { return Debug_Laeuft || Sitzung.Schritt_Laeuft; }

// The state as at program start.
void Sitzung_Zuruecksetzen();

// --- Sitzung.cpp: the commands. `Debug_Beenden` and `Sitzung_Beenden` stand in core. ---

void Debug_Vorbereiten(); // `Daten vorbereiten`
void Debug_Starten();     // enters debugger mode: windows, memory reset
void Debug_Start_Stop();  // `Starten`; while running it means stop
void Debug_Schritt();     // single step
void Debug_Hoch();        // one row up, nothing executed
void Debug_Runter();      // one instruction down, nothing executed
void Debug_Cursor();      // to the editor line of the cursor
void Debug_Reset_PC();
void Debug_Reset_Speicher();
void Debug_Stoppunkt(); // inserts STOP above the cursor's line
// Captions of the command that starts, and stops what runs.   reads: Debug_Laeuft, Schritt_Laeuft,
// Sprache   sets: menu, tool bar
void Start_Beschriften();

// The assembler's half of Debug_Vorbereiten: assembles in debugger mode, asks for the processor
// file and puts the end mark behind the rows. False when no session can start; messages are shown.
// sets: Hex_Daten, Quell_Zeilen, Namen_Tabelle
[[nodiscard]] bool Daten_Vorbereiten();
// Machine at its start: memories reset, Sim_PC, Sim_Zyklen, Sim_Prio, Sim_Bank.
void Maschine_Bereitstellen();
// Walks Sim_PC to the first row that has code, without executing; at most 65536 instructions.
void Zur_Ersten_Zeile();

// --- Simulieren.cpp ---

// A piece of a free run at full speed: as many calls of Simulieren as fit before the windows have
// their turn. Sets Debug_Stop at a stop point and below address 0.
void Vollgas_Stueck();

// --- Zeilensuche.cpp ---

// Looks through the rows once for all searches to come.   sets: Aufsteigend, Kein_Anfang
void Suche_Vorbereiten();
// Finds the row for Sim_PC; true when Sim_PC is the start of a line of the main source.
// sets: Sim_Zeile
bool Zeile_Suchen();
// Shows the row at Sim_PC as a selection in Edit.   sets: Sim_Zeile, the selection of Edit
void Zeile_Anzeigen();
// The same without showing it.   sets: Sim_Zeile
void Zeile_Der_Adresse();
// Moves Sim_PC forward to the next line of the main source.   sets: Sim_PC, Sim_Zeile
void Naechste_Zeile();
// Line of the editor (from 0) of a row of Quell_Zeilen, and the row of an editor line.
std::int32_t Editor_Zeile_Von(std::int32_t Zeile);
std::int32_t Zeile_Von_Editor(std::int32_t Editor);

} // namespace varnholt
