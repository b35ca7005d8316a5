// Raw bytes: the file is the image. Files longer than the image are loaded by halves or cut.
#pragma once

#include "core/shared_state.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace varnholt {

inline constexpr std::uintmax_t Rohdaten_Hoechstens =
    2 * std::uintmax_t{Bild_Groesse}; // two halves

// How a file of raw bytes is loaded.
enum class Rohdaten_Umfang {
    Ganz,    // up to 524288 bytes
    Haelfte, // up to 1048576 bytes: the user chooses one of two halves
    Anfang,  // longer: the first bytes, with a message
};

// The loading class by the smallest power of two that isn't below the size.
constexpr Rohdaten_Umfang Umfang_Der_Datei(std::uintmax_t Groesse)
{
    if (Groesse <= Bild_Groesse)
        return Rohdaten_Umfang::Ganz;
    return Groesse <= Rohdaten_Hoechstens ? Rohdaten_Umfang::Haelfte : Rohdaten_Umfang::Anfang;
}
static_assert(Umfang_Der_Datei(524288) == Rohdaten_Umfang::Ganz);
static_assert(Umfang_Der_Datei(524289) == Rohdaten_Umfang::Haelfte);
static_assert(Umfang_Der_Datei(1048576) == Rohdaten_Umfang::Haelfte);
static_assert(Umfang_Der_Datei(1048577) == Rohdaten_Umfang::Anfang);

// Stores the bytes from Adresse (0 or above) upward as far as the image goes; what lies behind them
// stays as it was.
void Rohdaten_Lesen(std::string_view Bytes, std::int32_t Adresse, std::span<std::uint8_t> Speicher);

// The used part of an image: from 0 to the last byte other than FFh, rounded up to a multiple of
// 256; empty when the whole image is FFh.
std::span<const std::uint8_t> Benutzter_Teil(std::span<const std::uint8_t> Speicher);

// The bytes of a part of the image as a file's contents.
inline std::string_view Rohdaten_Schreiben(std::span<const std::uint8_t> Benutzt)
{
    return {reinterpret_cast<const char*>(Benutzt.data()), Benutzt.size()};
}

} // namespace varnholt
