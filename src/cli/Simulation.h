// A run of the simulated machine on the command line: how far it goes, what it counts, its trace.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace varnholt {

// What ended a run.
enum class Lauf_Ende {
    Stoppunkt,
    Grenze,        // the number of instructions, or of source lines, was reached
    Unter_Null,    // the program address is below 0
    Endlose_Zeile, // a source line, or what it called, doesn't come to an end
};

struct Simulation_Ergebnis {
    std::int64_t Befehle = 0; // instructions executed
    Lauf_Ende    Ende    = Lauf_Ende::Grenze;
};

// Runs the machine as it stands, at full speed or source line by source line; Hoechstens counts
// instructions or lines. A start on a stop point leaves it first. Each instruction gets a line in
// Spur unless that is null. An address below 0 is told on standard error.
// sets: the machine, flags of the session
Simulation_Ergebnis
Simulation_Laufen(std::int64_t Hoechstens, bool Zeilenweise, std::ostream* Spur);

} // namespace varnholt
