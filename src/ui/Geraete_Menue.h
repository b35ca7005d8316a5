// The menu MNU_IC_Typ: a submenu for each group that has a name or devices, an entry for each
// device, built from the device table when it opens.
#pragma once

#include <QMenu>

#include <functional>

namespace varnholt {

class Geraete_Menue : public QMenu {
    Q_OBJECT

public:
    using Ausfuehrer_T = std::function<void(const std::function<void()>&)>;
    Geraete_Menue(QWidget* Eltern, Ausfuehrer_T Weg);

    void Aufbauen();

private:
    void Gruppe_Bauen(int Gruppe);

    Ausfuehrer_T Ausfuehren;
};

} // namespace varnholt
