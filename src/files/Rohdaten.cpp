// Raw bytes, in both directions, and the extent of the image that all savers share.
#include "files/Rohdaten.h"

#include <algorithm>

namespace varnholt {

void Rohdaten_Lesen(std::string_view Bytes, std::int32_t Adresse, std::span<std::uint8_t> Speicher)
{
    const auto Ab = static_cast<std::size_t>(Adresse);
    if (Ab < Speicher.size())
        std::copy_n(Bytes.begin(),
                    std::min(Bytes.size(), Speicher.size() - Ab),
                    Speicher.begin() + Adresse);
}

std::span<const std::uint8_t> Benutzter_Teil(std::span<const std::uint8_t> Speicher)
{
    const auto Letztes =
        std::find_if(Speicher.rbegin(), Speicher.rend(), [](std::uint8_t b) { return b != 0xFF; });
    const auto Anzahl = static_cast<std::size_t>(Speicher.rend() - Letztes);
    return Speicher.first(std::min((Anzahl + 255) / 256 * 256, Speicher.size()));
}

} // namespace varnholt
