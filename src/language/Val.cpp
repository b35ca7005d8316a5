// The run-time's number reader.
#include "language/Val.h"

#include "core/codepage.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace varnholt {
namespace {

using Grenzen = std::numeric_limits<std::int32_t>;

// The text as the number parser wants it: upper case, no blanks, no plus sign in front, E for every
// exponent.
std::string Bereinigt(std::string_view Text)
{
    std::string Rein;
    for (const char c : Text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || (c == '+' && Rein.empty()))
            continue;
        const char g = Gross_Zeichen(c);
        Rein += g == 'D' && !Rein.starts_with('&') ? 'E' : g;
    }
    return Rein;
}

// The parser would also take words like "inf".
bool Beginnt_Mit_Zahl(std::string_view Text)
{
    if (Text.starts_with('-'))
        Text.remove_prefix(1);
    return !Text.empty() && ((Text.front() >= '0' && Text.front() <= '9') || Text.front() == '.');
}

std::int32_t Zur_Basis(std::string_view Ziffern, int Basis)
{
    std::int32_t Wert = 0;
    const auto Ende = std::from_chars(Ziffern.data(), Ziffern.data() + Ziffern.size(), Wert, Basis);
    return Ende.ec == std::errc::result_out_of_range ? Grenzen::max() : std::max(Wert, 0);
}

} // namespace

std::int32_t Val(std::string_view Text)
{
    const std::string      Rein = Bereinigt(Text);
    const std::string_view t    = Rein;
    if (t.starts_with("&H"))
        return Zur_Basis(t.substr(2), 16);
    if (t.starts_with("&O"))
        return Zur_Basis(t.substr(2), 8);
    if (!Beginnt_Mit_Zahl(t))
        return 0;
    double     Wert = 0;
    const auto Ende = std::from_chars(t.data(), t.data() + t.size(), Wert);
    if (Ende.ec == std::errc::result_out_of_range)
        Wert = t.starts_with('-') ? Grenzen::min() : Grenzen::max();
    return static_cast<std::int32_t>(
        std::nearbyint(std::clamp<double>(Wert, Grenzen::min(), Grenzen::max())));
}

} // namespace varnholt
