// What a fuzz target takes from its input, and how it reports a broken promise.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace varnholt::fuzz {

// Length of the images of the targets: beyond 16 bits of address, short enough for many runs a
// second.
inline constexpr std::size_t Bild_Laenge = 0x10200;

// Numbers from the beginning of the input, the rest as text; zeros once it is used up.
class Eingabe {
public:
    Eingabe(const std::uint8_t* Daten, std::size_t Anzahl) : Bytes(Daten, Daten + Anzahl) {}

    std::uint16_t Zahl()
    {
        const std::size_t n = std::min<std::size_t>(2, Bytes.size() - Stelle);
        std::uint16_t     z = 0;
        for (std::size_t i = 0; i < n; ++i)
            z = static_cast<std::uint16_t>(z << 8 | static_cast<std::uint8_t>(Bytes[Stelle + i]));
        Stelle += n;
        return z;
    }
    std::string Text(std::size_t Hoechstens = std::string::npos)
    {
        std::string Teil = Bytes.substr(Stelle, Hoechstens);
        Stelle += Teil.size();
        return Teil;
    }

private:
    std::string Bytes;
    std::size_t Stelle = 0;
};

inline std::vector<std::uint8_t> Leeres_Bild()
{
    return std::vector<std::uint8_t>(Bild_Laenge, 0xFF);
}

// Ends the run when something that has to hold does not.
inline void Muss(bool Haelt)
{
    if (!Haelt)
        std::abort();
}

} // namespace varnholt::fuzz
