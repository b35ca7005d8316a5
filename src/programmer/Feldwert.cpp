// Numbers in the text fields of the dialogs.
#include "programmer/Feldwert.h"

#include <fmt/format.h>

namespace varnholt {
std::string Feld_Hex(std::int64_t Wert)
{
    return fmt::format("{:X}", static_cast<std::uint32_t>(Wert));
}

} // namespace varnholt
