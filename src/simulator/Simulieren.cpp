// One call of the interpreter as the commands of a session make it.
#include "simulator/Debug.h"

#include "core/messages.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"

#include <cmath>
#include <utility>

namespace varnholt {

namespace {

constexpr double Runde_Abstand = 0.02; // seconds between two turns of windows and events
constexpr double Verzoegerung  = 0.2;  // seconds, of Debug_Verzoegerung
// Instructions of a long step between two looks at the clock.
constexpr unsigned     Runde_Pruefen   = 256;
constexpr std::int64_t Vollgas_Befehle = 400000; // a piece: one to five milliseconds

bool Runde_Faellig()
{
    const double Jetzt = Plattform.Ereignisse->Sekunden();
    if (std::abs(Jetzt - Sitzung.Letzte_Runde) < Runde_Abstand)
        return false; // the clock begins anew at midnight
    Sitzung.Letzte_Runde = Jetzt;
    return true;
}

void Unter_Null_Melden()
{
    Debug_Stop = true;
    Melden({"Die Programmadresse liegt unter 0 !", "The program address is below 0 !"});
}

// What a run that can't go on leaves; true when it could.
bool Lauf_Ging(Lauf_Grund Grund)
{
    switch (Grund) {
    case Lauf_Grund::Unter_Null:
        Unter_Null_Melden();
        return false;
    case Lauf_Grund::Stoppunkt:
        Debug_Stop = true;
        Zyklen_Anzeigen();
        Zeile_Anzeigen();
        return false;
    case Lauf_Grund::Grenze:
        break;
    }
    return true;
}

// The row search works on the address as the instruction left it.
bool Zeilenanfang_Erreicht(std::int32_t PC)
{
    const std::int32_t Jetzt = std::exchange(Sim_PC, PC);
    const bool         Ja    = Zeile_Suchen();
    Sim_PC                   = Jetzt;
    return Ja;
}

Lauf_Ergebnis Befehl_Bezeugen()
{
    const std::int32_t  Adresse = Sim_PC;
    const Lauf_Ergebnis e       = Befehl_Ausfuehren();
    if (Sitzung.Zeuge != nullptr && e.Befehle > 0)
        Sitzung.Zeuge->Ausgefuehrt(Adresse);
    return e;
}

// Executes until a line of the main source begins. A line that takes long lets the windows have
// their turn, and ends when a stop is asked for there.
void Zeile_Ausfuehren()
{
    for (unsigned i = 1; Debugger_Aktiv; ++i) {
        const Lauf_Ergebnis e = Befehl_Bezeugen();
        if (!Lauf_Ging(e.Grund) || Debug_Vollgas || Zeilenanfang_Erreicht(e.PC))
            return;
        if (i % Runde_Pruefen != 0 || !Runde_Faellig())
            continue;
        Zyklen_Anzeigen();
        Start_Beschriften(); // a step that takes long can be stopped like a run
        Plattform.Ereignisse->Eine_Runde();
        if (Debug_Stop)
            return;
    }
}

} // namespace

void Simulieren()
{
    if (!Debugger_Aktiv)
        return;
    Zeile_Ausfuehren();
    const bool Zeigen = !Debug_Laeuft || Debug_Verzoegerung || Runde_Faellig();
    if (Zeigen && !(Debug_Vollgas && Debug_Laeuft)) {
        Zyklen_Anzeigen();
        Zeile_Anzeigen();
    }
    if (Debug_Verzoegerung && Debug_Laeuft)
        Plattform.Ereignisse->Pause(Verzoegerung);
    else if (Zeigen && Debug_Laeuft)
        Plattform.Ereignisse->Eine_Runde();
}

void Vollgas_Stueck()
{
    do {
        if (!Lauf_Ging(Vollgas_Laufen(Vollgas_Befehle).Grund))
            return;
    } while (!Runde_Faellig());
    Plattform.Ereignisse->Eine_Runde();
}

} // namespace varnholt
