// The port of a device command: a simulated board, the kernel's ppdev or the registers themselves,
// with a recorder in front when the operations are to be traced.
#pragma once

#include "core/platform.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace varnholt {

class Simuliertes_Board;
class Aufzeichnung;

class Port_Wahl {
public:
    Port_Wahl();
    ~Port_Wahl();
    Port_Wahl(const Port_Wahl&)            = delete;
    Port_Wahl& operator=(const Port_Wahl&) = delete;

    // Opens PORT for the selected device and starts the port driver. The result is a Status_T
    // value, the errors are printed.   reads: IC_Nummer   sets: Port_Basis, Porttreiber_OK
    int Oeffnen(const std::string& Port, const std::string& Spur_Datei);
    // Keeps the device of `sim:FILE` in its file and ends the trace. The result is Status, or
    // Status_Datei when one of them can't be written.
    int Schliessen(int Status);

private:
    int Art_Waehlen(const std::string& Port);
    int Simuliert(const std::string& Datei);
    int Direkt(const std::string& Adresse);

    std::unique_ptr<Simuliertes_Board> Board;
    std::unique_ptr<Porttreiber>       Echter;
    std::filesystem::path              Sockel_Datei{};
    std::ofstream                      Spur{};
    std::ostream*                      Strom = nullptr; // where the trace goes
    std::unique_ptr<Aufzeichnung>      Schreiber;
};

} // namespace varnholt
