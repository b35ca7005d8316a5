// Whole files in and out: bounded reading, and writing that keeps the old file until the new one is
// complete. Knows nothing of formats.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// Longest text file (notes, text formats of the image) that is loaded, in bytes.
inline constexpr std::uintmax_t Textdatei_Hoechstens = 64ull << 20;

// Longest source text, in bytes: each of its lines costs a row of the assembler.
inline constexpr std::uintmax_t Quelltext_Hoechstens = 16ull << 20;

// The first bytes of a file, and how long it is.
struct Datei_Anfang_T {
    std::string    Bytes{};
    std::uintmax_t Groesse = 0; // of the whole file
};

// Reads a regular file of at most Hoechstens bytes; empty when it isn't there, can't be read, is no
// regular file or is larger.
std::optional<std::string> Datei_Lesen(const std::filesystem::path& Pfad,
                                       std::uintmax_t               Hoechstens);
// Reads at most the first Hoechstens bytes of a regular file of any size; empty when it isn't
// there, can't be read or is no regular file. Grund, in the interface language, then tells why.
std::optional<Datei_Anfang_T> Datei_Anfang_Lesen(const std::filesystem::path& Pfad,
                                                 std::uintmax_t               Hoechstens,
                                                 std::string&                 Grund);
// Writes a whole file under a temporary name in the same folder, flushes it and renames it over the
// old one, whose permissions it takes; a symbolic link stays and its target is written. A device or
// a pipe is written directly. False, with the old file untouched, when any step fails; Grund, in
// the interface language, then tells why.
[[nodiscard]] bool
Datei_Schreiben(const std::filesystem::path& Pfad, std::string_view Bytes, std::string& Grund);

} // namespace varnholt
