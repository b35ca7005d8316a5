// Undo and redo by keys in the fields of one line: they belong to the field that has the focus, and
// never to the source behind it.
#pragma once

#include <QObject>

namespace varnholt {

// A filter for the events of the whole application. Qt leaves Ctrl+Y to the menu on most desktops,
// also in the forms that stay open beside the main window.
class Feld_Ruecknahme : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override;
};

} // namespace varnholt
