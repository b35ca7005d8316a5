// The world of the programmer's tests: a device of the test's own, a simulated board with it, and a
// record of everything that goes over the port.
#pragma once

#include "programmer/Aufzeichnung.h"
#include "programmer/Geraete.h"
#include "programmer/Simulierte_Boards.h"
#include "support/scripted_platform.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

// A driver that answers from lists and notes its calls.
class Skript_Port : public Porttreiber {
public:
    int          KS_openDriver() override;
    int          KS_calibrateMachineTime(std::uint32_t& Wert) override;
    int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) override;
    void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert) override;
    std::uint8_t KS_inpb(std::int32_t Adresse) override;
    int          KS_getMachineTime(std::int64_t& Stempel) override;
    std::string  KS_getErrorStringEx(int Code) override;
    void         Sleep(int Millisekunden) override;
    double       Sekunden_seit_Mitternacht() override;
    void         Wartet(std::int64_t Mikrosekunden) override;
    void         Sekunden_Wartet(double Sekunden) override;

    int                      Oeffnen_Ergebnis = 0;
    int                      Eich_Ergebnis    = 0;
    int                      Bereich_Ergebnis = 0;
    std::string              Fehlertext       = "no driver";
    std::deque<std::int64_t> Stempel_Liste{};  // next stamps; then each one microsecond later
    std::deque<double>       Sekunden_Liste{}; // next seconds; then each a hundred seconds later
    std::uint8_t             Status_Wert = 0;
    int                      Blicke      = 0; // looks at a clock
    std::vector<std::string> Rufe{};

private:
    std::int64_t Letzter_Stempel = 0;
    double       Letzte_Sekunden = 0;
};

class Brenner_Welt : public Welt {
protected:
    // Device number 0 becomes this one, and is selected. Settling time 7, pulse 100 microseconds.
    static Geraet_T& Geraet(std::string_view Name,
                            std::int32_t     Bytes,
                            std::string_view R_Typ,
                            std::string_view P_Typ);
    // The same name for all three.
    static Geraet_T& Geraet(std::string_view Typ, std::int32_t Bytes)
    {
        return Geraet(Typ, Bytes, Typ, Typ);
    }
    // A board for the selected device behind a recorder, with the driver loaded.
    Simulierter_Eprommer& Board_Anschliessen();
    // The board that Board_Anschliessen made.
    Simulierter_Eprommer& Board();
    // Contents of the device in the socket.
    std::vector<std::uint8_t>& Inhalt() { return Board().Baustein()->Inhalt; }

    // The record so far, a line an operation; from then on it begins anew.
    std::string Spur();
    // The expected trace of that name.
    static std::string Erwartete_Spur(const std::string& Name);

    // The image begins with these bytes.
    static void Bild_Fuellen(const std::vector<std::uint8_t>& Bytes);
    // The image's first bytes become a fixed random sequence.
    static void Bild_Zufaellig(std::int32_t Bytes, std::uint32_t Saat = 1);

    // Opens the dialog, without the read before, and presses `Brennen` after Aendern. Hex-Editor
    // mode.
    static void Brennen(const std::function<void()>& Aendern = {});

private:
    std::unique_ptr<Simuliertes_Board> Das_Board{};
    std::ostringstream                 Strom{};
    std::unique_ptr<Aufzeichnung>      Recorder{};
};

} // namespace varnholt::test
