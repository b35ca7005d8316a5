// The world of the programmer's tests.
#include "programmer/Brenner_Welt.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brennmenue.h"
#include "programmer/Special.h"

#include <algorithm>
#include <fstream>
#include <random>

namespace varnholt::test {

int Skript_Port::KS_openDriver()
{
    Rufe.emplace_back("open");
    return Oeffnen_Ergebnis;
}

int Skript_Port::KS_calibrateMachineTime(std::uint32_t& Wert)
{
    Rufe.emplace_back("calibrate");
    Wert = 77;
    return Eich_Ergebnis;
}

int Skript_Port::KS_enableIoRange(std::int32_t Adresse, int Anzahl)
{
    Rufe.push_back("enable " + std::to_string(Adresse) + " " + std::to_string(Anzahl));
    return Bereich_Ergebnis;
}

void Skript_Port::KS_outpb(std::int32_t Adresse, std::uint8_t Wert)
{
    Rufe.push_back("out " + std::to_string(Adresse) + " " + std::to_string(Wert));
}

std::uint8_t Skript_Port::KS_inpb(std::int32_t Adresse)
{
    Rufe.push_back("in " + std::to_string(Adresse));
    return Status_Wert;
}

int Skript_Port::KS_getMachineTime(std::int64_t& Stempel)
{
    ++Blicke;
    ++Letzter_Stempel;
    if (!Stempel_Liste.empty()) {
        Letzter_Stempel = Stempel_Liste.front();
        Stempel_Liste.pop_front();
    }
    Stempel = Letzter_Stempel;
    return 0;
}

std::string Skript_Port::KS_getErrorStringEx(int) { return Fehlertext; }

void Skript_Port::Sleep(int Millisekunden)
{
    Rufe.push_back("sleep " + std::to_string(Millisekunden));
}

double Skript_Port::Sekunden_seit_Mitternacht()
{
    ++Blicke;
    Letzte_Sekunden += 100;
    if (!Sekunden_Liste.empty()) {
        Letzte_Sekunden = Sekunden_Liste.front();
        Sekunden_Liste.pop_front();
    }
    return Letzte_Sekunden;
}

void Skript_Port::Wartet(std::int64_t Mikrosekunden)
{
    Rufe.push_back("waits " + std::to_string(Mikrosekunden));
}

void Skript_Port::Sekunden_Wartet(double Sekunden)
{
    Rufe.push_back("waits s " + std::to_string(Sekunden));
}

Geraet_T& Brenner_Welt::Geraet(std::string_view Name,
                               std::int32_t     Bytes,
                               std::string_view R_Typ,
                               std::string_view P_Typ)
{
    Geraet_T& g   = Geraete_Tabelle[0];
    g             = {};
    g.Name        = Name;
    g.Bytes       = Bytes;
    g.R_Typ       = R_Typ;
    g.P_Typ       = P_Typ;
    g.E_Typ       = "UV";
    g.R_Timing    = 7;
    g.P_Timing    = 100;
    g.Programmer  = 1;
    IC_Groesse[1] = Bytes;
    IC_Nummer     = 0;
    return g;
}

Simulierter_Eprommer& Brenner_Welt::Board_Anschliessen()
{
    Das_Board      = Simuliertes_Board_Fuer(IC_Nummer);
    Recorder       = std::make_unique<Aufzeichnung>(*Das_Board, Strom);
    Plattform.Port = Recorder.get();
    Porttreiber_Laden();
    return Board();
}

Simulierter_Eprommer& Brenner_Welt::Board()
{
    return dynamic_cast<Simulierter_Eprommer&>(*Das_Board);
}

std::string Brenner_Welt::Spur()
{
    Recorder->Abschliessen();
    std::string Text = Strom.str();
    Strom.str({});
    return Text;
}

std::string Brenner_Welt::Erwartete_Spur(const std::string& Name)
{
    std::ifstream     Datei(VARNHOLT_TEST_DATA "/golden/programmer/" + Name + ".trace");
    std::stringstream Text;
    Text << Datei.rdbuf();
    return Text.str();
}

void Brenner_Welt::Bild_Fuellen(const std::vector<std::uint8_t>& Bytes)
{
    Bild_Loeschen();
    std::copy(Bytes.begin(), Bytes.end(), Hex_Daten.begin());
}

void Brenner_Welt::Bild_Zufaellig(std::int32_t Bytes, std::uint32_t Saat)
{
    Bild_Loeschen();
    std::mt19937 Zufall(Saat);
    std::generate_n(Hex_Daten.begin(), Bytes, [&] { return static_cast<std::uint8_t>(Zufall()); });
}

void Brenner_Welt::Brennen(const std::function<void()>& Aendern)
{
    Modus      = Modus_Hex;
    C_IC_vor_B = false;
    MNU_IC_Brennen_Click();
    Brennmenue.Löschen = false;
    if (Aendern)
        Aendern();
    Brennen_Click();
}

} // namespace varnholt::test
