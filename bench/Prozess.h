// Runs programs as whole processes and tells how long they took and how much memory they had.
#pragma once

#include <string>
#include <vector>

namespace varnholt::bench {

// One run, or the medians of several.
struct Messung {
    double Sekunden    = 0; // wall clock, from start to end of the process
    double Rechenzeit  = 0; // user and system time
    double Speicher_MB = 0; // peak resident memory, MiB
    int    Status      = 0; // exit status; 127 when the program can't be started
};

// One run, its input read from a file, its output written to one.
Messung Laufen(const std::vector<std::string>& Befehl,
               const std::string&              Eingabe = "/dev/null",
               const std::string&              Ausgabe = "/dev/null");

// Medians of A and B, run in turn after one run of each that doesn't count.
struct Paar {
    Messung A{}, B{};
};
Paar    Paarweise(const std::vector<std::string>& A, const std::vector<std::string>& B, int Laeufe);
Messung Mehrfach(const std::vector<std::string>& Befehl,
                 int                             Laeufe,
                 const std::string&              Eingabe = "/dev/null",
                 const std::string&              Ausgabe = "/dev/null");

} // namespace varnholt::bench
