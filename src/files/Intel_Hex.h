// Intel-HEX: records of a 16-bit address and up to 255 bytes, in both directions. The reader takes
// every line for data and tests nothing; the writer holds images up to 32768 bytes.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace varnholt {

inline constexpr std::size_t Intel_Hex_Hoechstens =
    32768; // longest image that is written, in bytes

// Stores the records of a file, each moved up by Versatz. Lines are taken as they come: neither
// mark nor record type nor checksum are looked at; only the line ":00000001FF" ends the file.
void Intel_Hex_Lesen(std::string_view Text, std::int32_t Versatz, std::span<std::uint8_t> Speicher);

// The file for the used part of an image, of at most 32768 bytes: records of 16 from the first byte
// other than FFh on, without gaps, and the end record.
std::string Intel_Hex_Schreiben(std::span<const std::uint8_t> Benutzt);

} // namespace varnholt
