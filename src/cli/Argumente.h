// Values on the command line: numbers, addresses behind file names, and standard streams as files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// Decimal, 0x1F or 1Fh (any case), not negative; what is beyond 2^31 - 1 counts as that. Empty for
// anything else.
std::optional<std::int32_t> Zahl_Von(std::string_view Text);
// The same up to 2^63 - 1.
std::optional<std::int64_t> Lange_Zahl_Von(std::string_view Text);

// IN[@ADDRESS]. The address counts when what stands behind the last @ is a number.
struct Datei_Mit_Adresse {
    std::string                 Datei{};
    std::optional<std::int32_t> Adresse{};
};
Datei_Mit_Adresse Datei_Mit_Adresse_Von(const std::string& Text);

// A file that stands for standard input or output while a command runs: a temporary one, whose name
// has no extension. Standard input is `-`, and a pipe is read the same way. Any other name stands
// for itself.
class Strom_Datei {
public:
    enum class Richtung { Eingabe, Ausgabe };
    Strom_Datei(const std::string& Name, Richtung Wohin);
    ~Strom_Datei();
    Strom_Datei(const Strom_Datei&)            = delete;
    Strom_Datei& operator=(const Strom_Datei&) = delete;

    // False when the stream can't be read, is too long or has no room; the error was printed.
    [[nodiscard]] bool Bereit() const { return Ist_Bereit; }
    const std::string& Pfad() const { return Pfad_; }
    // Copies what a command wrote to standard output. False when that can't be written.
    [[nodiscard]] bool Ausgeben() const;

private:
    std::string           Pfad_;
    std::filesystem::path Ordner_{}; // to be removed; empty when the name stands for itself
    bool                  Ist_Bereit = true;
};

} // namespace varnholt
