// The context menu of the notes: look of the characters, and the clipboard commands of the menu.
#pragma once

#include <QList>

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace varnholt {

class Notiz_Feld;

// Runs a command of the logic, or doesn't while another one runs.
using Notiz_Ausfuehrer_T = std::function<void(const std::function<void()>&)>;

// A menu in the interface language for the notes as they are; it goes when it is closed.
QMenu*
Notiz_Menue(Notiz_Feld* Feld, const QList<QAction*>& Bearbeiten, Notiz_Ausfuehrer_T Ausfuehren);

} // namespace varnholt
