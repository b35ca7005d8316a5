// Motorola S-records: 16- and 24-bit addresses are read, 24-bit ones written.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace varnholt {

// Stores the S1 and S2 records of a file, each moved up by Versatz; any other line is passed over,
// and the checksums are not looked at.
void Motorola_S_Lesen(std::string_view        Text,
                      std::int32_t            Versatz,
                      std::span<std::uint8_t> Speicher);

// The file for a whole image: the header record, and an S2 record for each block of 16 addresses
// that holds a byte other than FFh. The checksums are this program's own, see the source.
std::string Motorola_S_Schreiben(std::span<const std::uint8_t> Speicher);

} // namespace varnholt
