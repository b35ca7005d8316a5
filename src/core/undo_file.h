// A snapshot as a file: a text in UTF-8 with the colours of its characters. The files never leave
// the program; they are checked when they are read, and needn't be written safely.
#pragma once

#include "core/platform.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

struct Momentaufnahme_T {
    std::string               Text{};   // UTF-8
    std::vector<Farbstelle_T> Farben{}; // ascending
    bool                      operator==(const Momentaufnahme_T&) const = default;
};

// The bytes of a snapshot: a head with the sizes and a check sum, the text, the colours.
std::string Aufnahme_Verpacken(const Momentaufnahme_T& Aufnahme);
// The snapshot of these bytes; empty when they are none or were damaged.
std::optional<Momentaufnahme_T> Aufnahme_Auspacken(std::string_view Bytes);

// Writes a snapshot; false when that fails, and then the file is damaged or old.
[[nodiscard]] bool Aufnahme_Schreiben(const std::filesystem::path& Datei,
                                      const Momentaufnahme_T&      Aufnahme);
// Reads a snapshot; empty when it is missing or damaged.
std::optional<Momentaufnahme_T> Aufnahme_Lesen(const std::filesystem::path& Datei);

} // namespace varnholt
