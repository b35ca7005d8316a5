// Undo and redo by keys in the fields of one line.
#include "ui/Feld_Ruecknahme.h"

#include "ui/Tasten.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace varnholt {
namespace {

void Ausfuehren(QLineEdit& Feld, Ruecknahme Was)
{
    if (Feld.isReadOnly())
        return;
    if (Was == Ruecknahme::Zurueck)
        Feld.undo();
    else
        Feld.redo();
}

} // namespace

bool Feld_Ruecknahme::eventFilter(QObject* Ziel, QEvent* Ereignis)
{
    const bool Taste = Ereignis->type() == QEvent::KeyPress;
    if (!Taste && Ereignis->type() != QEvent::ShortcutOverride)
        return false;
    auto*            Feld = qobject_cast<QLineEdit*>(Ziel);
    const Ruecknahme Was  = Ruecknahme_Aus(*static_cast<QKeyEvent*>(Ereignis));
    if (Feld == nullptr || Was == Ruecknahme::Keine)
        return false;
    if (Taste)
        Ausfuehren(*Feld, Was);
    Ereignis->accept();
    return true;
}

} // namespace varnholt
