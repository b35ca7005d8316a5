// The text control of `Notiz`: its editing keys are the menu's, so that they go the same way.
#pragma once

#include "ui/Text_Feld.h"

namespace varnholt {

class Notiz_Feld : public Text_Feld {
    Q_OBJECT

public:
    using Text_Feld::Text_Feld;

signals:
    void Kontextmenue(const QPoint& Ort);

protected:
    bool event(QEvent* Ereignis) override;
    void contextMenuEvent(QContextMenuEvent* Ereignis) override;
};

} // namespace varnholt
