// The world of the microcontroller tests: a part on a simulated Tessel1 or Tessel2 board behind a
// recorder.
#pragma once

#include "programmer/Brenner_Welt.h"
#include "programmer/Simulierter_Tessel1.h"
#include "programmer/Simulierter_Tessel2.h"

#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

// A trace with its repetitions written once: "16383 x W D 4D, W D 45".
std::string Gefaltet(const std::string& Spur);

class MC_Welt : public Brenner_Welt {
protected:
    // The part becomes device 0, is selected and put into its board. Types and lock type as in the
    // shipped database; settling time 7, write time 100 microseconds.
    Geraet_T& Einsetzen(std::string_view Name, std::int32_t Bytes);
    // The same with contents; the image is left.
    void Einsetzen(std::string_view Name, const std::vector<std::uint8_t>& Bytes);
    // A fresh board for the record as it is now.
    void Anschliessen();
    // Goes on without the recorder: a record of a whole part is too long.
    void Ohne_Aufzeichnung() { Plattform.Port = &Board(); }

    Simuliertes_MC_Board&      Board() { return *Das_Brett; }
    Simulierter_MC&            Baustein() { return *Das_Brett->Im_Sockel; }
    std::vector<std::uint8_t>& Inhalt() { return Baustein().Zellen.Inhalt; }
    int                        Stufe() { return Baustein().Zellen.Sperr_Stufe; }
    std::vector<std::uint8_t>  Gelesen(std::size_t Bytes);

    // The record so far, folded; from then on it begins anew.
    std::string Spur();
    // Bytes written to the data register so far, in order; the record begins anew.
    std::vector<int> Datenbytes();

private:
    std::unique_ptr<Simuliertes_MC_Board> Das_Brett{};
    std::ostringstream                    Strom{};
    std::unique_ptr<Aufzeichnung>         Recorder{};
};

} // namespace varnholt::test
