// How a window runs a command of the logic: through the main window, which brings itself to the new
// state behind it, or straight where there is none.
#pragma once

#include <functional>

namespace varnholt {

using Befehls_Weg = std::function<void(const std::function<void()>&)>;

inline void Befehl_Ausfuehren(const Befehls_Weg& Weg, const std::function<void()>& Befehl)
{
    if (Weg)
        Weg(Befehl);
    else
        Befehl();
}

} // namespace varnholt
