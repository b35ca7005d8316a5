// Guards for routines that move the selection of the source editor, or change its text, on their
// own account.
#pragma once

#include "core/platform.h"
#include "core/shared_state.h"

namespace varnholt {

// While it lives the editor takes no change for one of the user's. What was before comes back with
// its end. For a single change: the control draws no more than that.
class Ereignis_Ruhe {
public:
    Ereignis_Ruhe() { Text_Sperre = true; }
    ~Ereignis_Ruhe() { Text_Sperre = Vorher; }
    Ereignis_Ruhe(const Ereignis_Ruhe&)            = delete;
    Ereignis_Ruhe& operator=(const Ereignis_Ruhe&) = delete;

private:
    bool Vorher = Text_Sperre;
};

// The same, and the editor doesn't draw meanwhile. For changes in a row: at the end all is drawn.
class Edit_Ruhe {
public:
    Edit_Ruhe() { Plattform.Edit->Zeichnen_Anhalten(true); }
    ~Edit_Ruhe() { Plattform.Edit->Zeichnen_Anhalten(false); }
    Edit_Ruhe(const Edit_Ruhe&)            = delete;
    Edit_Ruhe& operator=(const Edit_Ruhe&) = delete;

private:
    Ereignis_Ruhe Ereignisse{};
};

} // namespace varnholt
