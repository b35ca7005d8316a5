// A child window of the main window: hidden, never closed, and known by its number.
#pragma once

#include "core/platform.h"

#include <QMdiSubWindow>

namespace varnholt {

class Kindfenster : public QMdiSubWindow {
    Q_OBJECT

public:
    // Name is the window's name (`Edit`); a main window (Edit, Hexedit) has no close button.
    Kindfenster(int Fenster_Nummer, const QString& Name, QWidget* Inhalt, bool Hauptsache);

    int    Nummer() const { return Fenster_Nummer; }
    Lage_T Lage() const;
    // The part of the place that lies inside Flaeche, with a reachable title bar.
    void Lage_Setzen(const Lage_T& Neue, const QSize& Flaeche);

signals:
    void Geschlossen(int Nummer); // by the user

protected:
    void closeEvent(QCloseEvent* Ereignis) override;

private:
    int Fenster_Nummer;
};

} // namespace varnholt
