// The text control of `Notiz`.
#include "ui/Notiz_Feld.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace varnholt {
namespace {

// Copy, cut, paste, undo and redo, and Del where something is selected.
bool Menue_Taste(const QKeyEvent& Taste, bool Auswahl)
{
    for (const auto Art : {QKeySequence::Copy,
                           QKeySequence::Cut,
                           QKeySequence::Paste,
                           QKeySequence::Undo,
                           QKeySequence::Redo})
        if (Taste.matches(Art))
            return true;
    return Auswahl && Taste.key() == Qt::Key_Delete && Taste.modifiers() == Qt::NoModifier;
}

} // namespace

bool Notiz_Feld::event(QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::ShortcutOverride &&
        Menue_Taste(*static_cast<QKeyEvent*>(Ereignis), textCursor().hasSelection())) {
        Ereignis->ignore();
        return true;
    }
    return Text_Feld::event(Ereignis);
}

void Notiz_Feld::contextMenuEvent(QContextMenuEvent* Ereignis)
{
    emit Kontextmenue(Ereignis->globalPos());
}

} // namespace varnholt
