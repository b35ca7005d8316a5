// Which line of an edited text is which line of the text before: by that, unchanged lines can keep
// what the edited form of the text doesn't show.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace varnholt {

inline constexpr std::size_t Keine_Zeile = static_cast<std::size_t>(-1);

// For each line of Neu the index of the line of Alt that it is, or Keine_Zeile; no line of Alt is
// given twice. Lines are the same when their texts are; among equal ones the neighbours decide.
std::vector<std::size_t> Zeilen_Zuordnen(const std::vector<std::string_view>& Alt,
                                         const std::vector<std::string_view>& Neu);

} // namespace varnholt
