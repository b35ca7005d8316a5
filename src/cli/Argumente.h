// Values on the command line: numbers, addresses behind file names, and standard streams as files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// Decimal, 0x1F or 1Fh (any case) from 0 up to 2^31 - 1; empty for anything else.
std::optional<std::int32_t> Zahl_Von(std::string_view Text);

// IN[@ADDRESS]. The address counts when what stands behind the last @ is a number.
struct Datei_Mit_Adresse {
    std::string                 Datei{};
    std::optional<std::int32_t> Adresse{};
};
Datei_Mit_Adresse Datei_Mit_Adresse_Von(const std::string& Text);

// A file that stands for standard input or output while a command runs: a temporary one, whose
// name has no extension. The name itself when it isn't `-`.
class Strom_Datei {
public:
    enum class Richtung { Eingabe, Ausgabe };
    Strom_Datei(const std::string& Name, Richtung Wohin);
    ~Strom_Datei();
    Strom_Datei(const Strom_Datei&)            = delete;
    Strom_Datei& operator=(const Strom_Datei&) = delete;

    const std::string& Pfad() const { return Pfad_; }
    // Copies what a command wrote to standard output. False when that can't be written.
    [[nodiscard]] bool Ausgeben() const;

private:
    std::string           Pfad_;
    std::filesystem::path Ordner_{}; // to be removed; empty when the name was no `-`
};

} // namespace varnholt
