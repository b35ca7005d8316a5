// DAT: the image as decimal numbers, runs of equal bytes as 999, count, value; in both directions.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace varnholt {

// Stores the numbers of a file from Adresse (0 or above) upward. Items end at commas and line ends;
// comments (beginning with '), words and empty items are dropped. A number that is no byte leaves
// its bytes as they are; what lies behind the image is passed over.
void Dat_Lesen(std::string_view Text, std::int32_t Adresse, std::span<std::uint8_t> Speicher);

// The file for the used part of an image.
std::string Dat_Schreiben(std::span<const std::uint8_t> Benutzt);

} // namespace varnholt
