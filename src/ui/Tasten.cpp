// Keys from Qt to the logic.
#include "ui/Tasten.h"

#include "ui/Qt_Text.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace varnholt {
namespace {

struct Tasten_Paar {
    int Qt_Taste;
    int Code;
};

// clang-format off
constexpr std::array Tasten_Tabelle{
    Tasten_Paar{Qt::Key_Backspace, Taste_Rueck},
    Tasten_Paar{Qt::Key_Tab,       Taste_Tab},
    Tasten_Paar{Qt::Key_Backtab,   Taste_Tab},
    Tasten_Paar{Qt::Key_Return,    Taste_Enter},
    Tasten_Paar{Qt::Key_Enter,     Taste_Enter},
    Tasten_Paar{Qt::Key_Shift,     Taste_Umschalt},
    Tasten_Paar{Qt::Key_Control,   Taste_Strg},
    Tasten_Paar{Qt::Key_Alt,       Taste_Alt},
    Tasten_Paar{Qt::Key_AltGr,     Taste_Alt},
    Tasten_Paar{Qt::Key_Escape,    Taste_Escape},
    Tasten_Paar{Qt::Key_PageUp,    Taste_Bild_Auf},
    Tasten_Paar{Qt::Key_PageDown,  Taste_Bild_Ab},
    Tasten_Paar{Qt::Key_End,       Taste_Ende},
    Tasten_Paar{Qt::Key_Home,      Taste_Pos1},
    Tasten_Paar{Qt::Key_Left,      Taste_Links},
    Tasten_Paar{Qt::Key_Up,        Taste_Auf},
    Tasten_Paar{Qt::Key_Right,     Taste_Rechts},
    Tasten_Paar{Qt::Key_Down,      Taste_Ab},
    Tasten_Paar{Qt::Key_Delete,    Taste_Entfernen},
};
// clang-format on

int Code_Aus(int Qt_Taste)
{
    if ((Qt_Taste >= Qt::Key_A && Qt_Taste <= Qt::Key_Z) ||
        (Qt_Taste >= Qt::Key_0 && Qt_Taste <= Qt::Key_9))
        return Qt_Taste; // Qt's values of these are the codes
    const auto* p = std::find_if(Tasten_Tabelle.begin(),
                                 Tasten_Tabelle.end(),
                                 [&](const Tasten_Paar& t) { return t.Qt_Taste == Qt_Taste; });
    return p == Tasten_Tabelle.end() ? 0 : p->Code;
}

char Zeichen_Aus(const QKeyEvent& Ereignis)
{
    const QString Text = Ereignis.text();
    if (Text.size() != 1 || !Text.front().isPrint())
        return 0;
    const char Zeichen = Zeichen_Nach_1252(Text.front().unicode());
    return Zeichen == '?' && Text.front() != u'?' ? '\0' : Zeichen;
}

} // namespace

Taste_T Taste_Aus(const QKeyEvent& Ereignis)
{
    Taste_T t;
    t.Code     = Code_Aus(Ereignis.key());
    t.Umschalt = Ereignis.modifiers().testFlag(Qt::ShiftModifier);
    t.Strg     = Ereignis.modifiers().testFlag(Qt::ControlModifier);
    t.Alt      = Ereignis.modifiers().testFlag(Qt::AltModifier);
    if (t.Strg == t.Alt) // both together are AltGr on some desktops
        t.Zeichen = Zeichen_Aus(Ereignis);
    return t;
}

Ruecknahme Ruecknahme_Aus(const QKeyEvent& Ereignis)
{
    const bool Strg = Ereignis.modifiers() == Qt::ControlModifier;
    if ((Strg && Ereignis.key() == Qt::Key_Z) || Ereignis.matches(QKeySequence::Undo))
        return Ruecknahme::Zurueck;
    if ((Strg && Ereignis.key() == Qt::Key_Y) || Ereignis.matches(QKeySequence::Redo))
        return Ruecknahme::Vor;
    return Ruecknahme::Keine;
}

} // namespace varnholt
