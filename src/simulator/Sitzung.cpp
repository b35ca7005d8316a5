// The commands of a debugger session, and one call of the interpreter as they make it.
#include "simulator/Sitzung.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/session.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Quelltext.h"
#include "editors/Quelltext_Sperre.h"
#include "language/Assembler_Zustand.h"
#include "language/Befehle.h"
#include "simulator/Debug.h"
#include "simulator/Sim_Ansichten.h"

#include <algorithm>

namespace varnholt {
namespace {

// Rows behind END have no address of their own; the last row of all ends the table. Both get one
// above every address of a program, so that the search can rely on their order. A last line without
// an end of its own keeps its address: the mark stands behind it.
void Endmarken_Setzen()
{
    for (auto z = Quell_Zeilen.rbegin();
         Code_Ende != 0 && z != Quell_Zeilen.rend() - 1 && z->Adresse == 0;
         ++z)
        z->Adresse = Code_Groesse;
    if (!Quell_Zeilen.back().Text.empty() && Quell_Zeilen.back().Herkunft == Herkunft_Haupttext)
        Quell_Zeilen.emplace_back();
    Quell_Zeilen.back().Adresse = Code_Groesse;
    Suche_Vorbereiten();
}

bool Hat_Prozessorfile()
{
    return std::any_of(Include_Liste.begin(), Include_Liste.end(), [](const Include_Eintrag& e) {
        const auto Zeile = static_cast<std::size_t>(e.Erste_Zeile);
        return Zeile < Quell_Zeilen.size() &&
               Quell_Zeilen[Zeile].Herkunft == Herkunft_Prozessorfile;
    });
}

bool Am_Stoppunkt() { return Byte_An(Sim_PC) == Stoppunkt_Opcode; }

int Laenge_Am_PC() { return Befehl_Laenge(Byte_An(Sim_PC)); }

void Stelle_Zeigen()
{
    Zeile_Anzeigen();
    Zyklen_Anzeigen();
}

// Behind the last address the program begins anew, as it does when it runs there.
void PC_Setzen(std::int32_t Adresse)
{
    Sim_PC = Im_Code(std::max(Adresse, std::int32_t{0}));
    Zeile_Anzeigen();
}

void Reset_Alles()
{
    Reset_RAM();
    Reset_SFR();
    Reset_XRAM();
    Sim_Prio = -1;
}

// A command of the user begins: what changes from here on is marked in the views.
void Befehl_Beginnen()
{
    if (!Debug_Laeuft)
        Aenderungen_Vergessen();
}

// One call of the interpreter; as long as it lasts, Debug_Start_Stop ends it. The windows have
// their turn when it takes long, not because the last turn was long ago.
void Zeile_Simulieren()
{
    Sitzung.Letzte_Runde   = Plattform.Ereignisse->Sekunden();
    Sitzung.Schritt_Laeuft = true;
    Simulieren();
    Sitzung.Schritt_Laeuft = false;
    Debug_Stop             = false;
    Start_Beschriften();
}

} // namespace

void Sitzung_Zuruecksetzen() { Sitzung = {}; }

void Start_Beschriften()
{
    const std::string Text         = In_Sprache(Programm_Laeuft() ? Text_Paar{"Stoppen", "Stop"}
                                                          : Text_Paar{"Starten", "Start"});
    Menue("MNU_deb_Starten").Titel = Text;
    Werkzeug(24).Hinweis           = Text;
}

// --- the way into a session ---

namespace {

// The text and its view may be others than those of the session before.
void Sicht_Vergessen()
{
    Sitzung.Oberste_Gezeigt  = -1;
    Sitzung.Unterste_Gezeigt = -1;
    Sitzung.Enge_Sicht       = false;
}

} // namespace

bool Daten_Vorbereiten()
{
    Debugger_Aktiv = true;
    Assemblieren();
    Debugger_Aktiv = false;
    if (Assembler_Fehler != 0 || Quell_Zeilen.empty()) {
        Assembler_Fehler = 0;
        return false;
    }
    if (!Hat_Prozessorfile()) {
        Melden({"Bitte benutzen Sie im Programm die INCLUDE Anweisung, um den Prozessortyp "
                "festzulegen. Beispiel: Include 8051.mc",
                "Please use in the program the INCLUDE instruction to declare the processor. "
                "Example: Include 8051.mc"});
        return false;
    }
    Endmarken_Setzen();
    return true;
}

void Maschine_Bereitstellen()
{
    Sim_Zeile = 0;
    Sim_PC    = 0;
    Reset_Alles();
    Sim_Zyklen = 0;
    Sim_Bank   = -1;
}

void Zur_Ersten_Zeile()
{
    Zeile_Anzeigen();
    for (int i = 0; i < Code_Groesse && !Quell_Zeilen.empty() &&
                    Quell_Zeilen[static_cast<std::size_t>(Sim_Zeile)].Text.empty();
         ++i) {
        Sim_PC = Im_Code(Sim_PC + Laenge_Am_PC());
        Zeile_Der_Adresse();
    }
    Zeile_Anzeigen();
}

void Debug_Starten()
{
    Sitzung_Schalten(true);
    Undo_Knoepfe_Sperren();
    Maschine_Bereitstellen();
    Debugger_Aktiv = true;
    Plattform.Edit->Sperren(true);
    ++Sitzung.Nummer;
    Sicht_Vergessen();
    Sim_Aufbauen();
    Aenderungen_Vergessen();
    Sitzungsfenster_Zeigen();
}

// A session that can't begin anew ends with all that belongs to it.
void Debug_Vorbereiten()
{
    const bool War_Aktiv = Debugger_Aktiv;
    Debug_Stop           = Programm_Laeuft(); // what runs ends
    if (!Daten_Vorbereiten()) {
        Debugger_Aktiv = War_Aktiv;
        Debug_Beenden();
        return;
    }
    Debug_Starten();
    Zur_Ersten_Zeile();
    ++Sim_Ansichten.Erste_Zelle;
    Zyklen_Anzeigen();
}

// --- running ---

namespace {

// Leaves the stop point at the program address.
void Stoppunkt_Verlassen() { Sim_PC = Im_Code(Sim_PC + 1); }

// One line more, which shows where the program stands; a line without an end heeds the stop that
// was asked for.
void Lauf_Beschliessen()
{
    if (Sim_PC >= 0)
        Zeile_Simulieren();
    else
        Stelle_Zeigen();
}

} // namespace

void Debug_Start_Stop()
{
    if (Debug_Laeuft || Sitzung.Schritt_Laeuft) {
        Debug_Stop = true;
        return;
    }
    const std::uint32_t Nummer = Sitzung.Nummer;
    Befehl_Beginnen();
    Debug_Laeuft = true;
    Debug_Stop   = false;
    Start_Beschriften();
    if (!Menue("MNU_CONTROL").Haken)
        MNU_CONTROL_Click();
    if (Am_Stoppunkt())
        Stoppunkt_Verlassen();
    while (Debugger_Aktiv && !Debug_Stop)
        Debug_Vollgas && !Debug_Verzoegerung ? Vollgas_Stueck() : Simulieren();
    Debug_Laeuft = false;
    Start_Beschriften();
    Sim_Alles_Zeigen();
    if (Nummer == Sitzung.Nummer) // else another session began, and stands at its first line
        Lauf_Beschliessen();
    Debug_Stop = false;
}

void Debug_Schritt()
{
    if (Debug_Laeuft || Sitzung.Schritt_Laeuft)
        return;
    Befehl_Beginnen();
    if (Am_Stoppunkt()) {
        Stoppunkt_Verlassen();
        Zeile_Anzeigen();
    } else {
        Zeile_Simulieren();
    }
    Debug_Stop = false;
}

// --- moves without execution ---

void Debug_Hoch()
{
    if (Sim_PC < 1 || Quell_Zeilen.empty())
        return;
    const auto Zeile = std::find_if(Quell_Zeilen.begin(),
                                    Quell_Zeilen.end(),
                                    [](const Quell_Zeile& z) { return z.Adresse >= Sim_PC; });
    PC_Setzen(Zeile == Quell_Zeilen.begin() ? Zeile->Adresse : (Zeile - 1)->Adresse);
    Zyklen_Anzeigen();
}

void Debug_Runter()
{
    Sim_PC += Laenge_Am_PC();
    Naechste_Zeile();
    if (Sim_PC >= Code_Groesse) { // the end mark counts as a line
        Sim_PC = 0;
        Naechste_Zeile();
    }
    Stelle_Zeigen();
}

void Debug_Cursor()
{
    if (Quell_Zeilen.empty())
        return;
    const Textfeld& Edit  = *Plattform.Edit;
    const auto      Zeile = static_cast<std::int32_t>(Edit.Zeile_Von(Edit.Auswahl().Anfang));
    PC_Setzen(Quell_Zeilen[static_cast<std::size_t>(Zeile_Von_Editor(Zeile))].Adresse);
    Zyklen_Anzeigen();
}

// --- resets ---

void Debug_Reset_PC()
{
    Sim_PC = 0;
    Stelle_Zeigen();
}

void Debug_Reset_Speicher()
{
    Befehl_Beginnen();
    Reset_Alles();
    Sim_Alles_Zeigen();
}

// --- stop points ---

namespace {

// The table keeps pace with the text: the new line has no code until the next assembly.
void Zeile_Einschieben(std::int64_t Editor)
{
    if (Quell_Zeilen.empty())
        return;
    const std::int32_t Zeile = Zeile_Von_Editor(static_cast<std::int32_t>(Editor));
    const auto         Platz = Quell_Zeilen.begin() + Zeile;
    Quell_Zeilen.insert(Platz, Quell_Zeile{.Adresse = Platz->Adresse});
    for (Include_Eintrag& e : Include_Liste)
        if (e.Erste_Zeile >= Zeile)
            ++e.Erste_Zeile;
    Suche_Vorbereiten();
}

} // namespace

void Debug_Stoppunkt()
{
    Textfeld&          Edit  = *Plattform.Edit;
    const std::int64_t Zeile = Edit.Zeile_Von(Edit.Auswahl().Anfang);
    Undo_Schritt_speichern();
    Undo_Oben  = Undo_Index;
    Undo_Taste = true; // as a key does: Undo keeps the text with the stop point
    {
        const Edit_Ruhe Ruhe;
        Edit.Auswaehlen(Edit.Zeile(Zeile).Anfang, 0);
        Edit.Auswahl_Ersetzen("STOP\r\n");
        Zeilen_Einfaerben(Zeile, Zeile);
    }
    if (Debugger_Aktiv)
        Zeile_Einschieben(Zeile);
    Text_Change();
}

} // namespace varnholt
