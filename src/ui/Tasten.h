// Keys from Qt to the logic.
#pragma once

#include "core/keys.h"

class QKeyEvent;

namespace varnholt {

// The key with the codes of core/keys.h. Zeichen is set only when it types one character of the
// code page: not with Ctrl or Alt (AltGr types), and not for Enter, Backspace, Delete and the like.
Taste_T Taste_Aus(const QKeyEvent& Ereignis);

// Undo and redo, as a field of text takes them.
enum class Ruecknahme { Keine, Zurueck, Vor };
// Ctrl+Z and Ctrl+Y as in the menu, and what else the desktop has for the two.
Ruecknahme Ruecknahme_Aus(const QKeyEvent& Ereignis);

} // namespace varnholt
