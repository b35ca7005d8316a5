// Numbers in the text fields of the dialogs.
#include "programmer/Feldwert.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace varnholt {
namespace {

// The text as the number parser wants it: no blanks, no plus sign in front, E for every exponent.
std::string Bereinigt(std::string_view Text)
{
    std::string Rein;
    for (const char c : Text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || (c == '+' && Rein.empty()))
            continue;
        Rein += c == 'D' || c == 'd' ? 'E' : c;
    }
    return Rein;
}

// The parser would also take words like "inf".
bool Beginnt_Mit_Zahl(std::string_view Text)
{
    if (!Text.empty() && Text.front() == '-')
        Text.remove_prefix(1);
    return !Text.empty() && ((Text.front() >= '0' && Text.front() <= '9') || Text.front() == '.');
}

} // namespace

std::int32_t Feld_Wert(std::string_view Text)
{
    constexpr double  Grenze = std::numeric_limits<std::int32_t>::max();
    const std::string Rein   = Bereinigt(Text);
    if (!Beginnt_Mit_Zahl(Rein))
        return 0;
    double     Wert = 0;
    const auto Ende = std::from_chars(Rein.data(), Rein.data() + Rein.size(), Wert);
    if (Ende.ec == std::errc::result_out_of_range)
        Wert = Rein.front() == '-' ? -Grenze : Grenze;
    return static_cast<std::int32_t>(std::nearbyint(std::clamp(Wert, -Grenze, Grenze)));
}

std::string Feld_Hex(std::int64_t Wert)
{
    return fmt::format("{:X}", static_cast<std::uint32_t>(Wert));
}

} // namespace varnholt
