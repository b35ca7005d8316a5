// A guard for routines that move the selection of the source editor, or change its text, on their
// own account.
#pragma once

#include "core/platform.h"
#include "core/shared_state.h"

namespace varnholt {

// While it lives the editor takes no change for one of the user's, and doesn't draw. What was
// before comes back with its end.
class Edit_Ruhe {
public:
    Edit_Ruhe()
    {
        Text_Sperre = true;
        Plattform.Edit->Zeichnen_Anhalten(true);
    }
    ~Edit_Ruhe()
    {
        Plattform.Edit->Zeichnen_Anhalten(false);
        Text_Sperre = Vorher;
    }
    Edit_Ruhe(const Edit_Ruhe&)            = delete;
    Edit_Ruhe& operator=(const Edit_Ruhe&) = delete;

private:
    bool Vorher = Text_Sperre;
};

} // namespace varnholt
