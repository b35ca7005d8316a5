// Runs varnholt-cli as a user does: as a process of its own, in a folder of its own.
#pragma once

#include "support/Arbeitsordner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace varnholt::test {

struct Lauf_Ergebnis {
    int         Status = -1; // exit status; 128 and above: ended by a signal
    std::string Aus{};       // standard output
    std::string Fehler{};    // standard error
};

class Cli : public ::testing::Test {
protected:
    // Runs `varnholt-cli --home DATA Argumente...` in the test's folder.
    Lauf_Ergebnis Laufen(const std::vector<std::string>& Argumente,
                         const std::string&              Eingabe = {});
    void          Schreiben(const std::string& Name, const std::string& Inhalt) const;
    std::string   Lesen(const std::string& Name) const;
    bool          Da(const std::string& Name) const;

    Arbeitsordner                Eigener{};
    const std::filesystem::path& Ordner = Eigener.Pfad;
    std::string                  Home   = VARNHOLT_DATA;
};

// Bytes 0 to n - 1 of a repeating pattern without FFh.
std::string Muster(std::size_t n);

} // namespace varnholt::test
