// The window `Hexedit`: two address columns, the digits, the characters and the scroll bar. It
// draws the state of editors/Hexedit.h and forwards its events there.
#pragma once

#include "ui/Hex_Gitter.h"

#include <QLabel>
#include <QScrollBar>

#include <cstdint>

namespace varnholt {

// Heading of a pane: the numbers 0 to F over their columns as long as the caption is empty.
class Hex_Kopf : public QLabel {
    Q_OBJECT

public:
    Hex_Kopf(const Hex_Gitter& Neues_Feld, const Feldmass_T& Neues_Mass, QWidget* Eltern);

protected:
    void paintEvent(QPaintEvent* Ereignis) override;

private:
    const Hex_Gitter& Feld;
    Feldmass_T        Mass;
};

class Hexedit_Fenster : public QWidget {
    Q_OBJECT

public:
    explicit Hexedit_Fenster(QWidget* Eltern = nullptr);

    // Repaints when the logic has counted a change of page, marking or active pane.
    void  Nachziehen();
    QSize sizeHint() const override;
    void  Fokus(); // to the pane that had it last

signals:
    void Kontextmenue(const QPoint& Ort); // on the screen

protected:
    void resizeEvent(QResizeEvent* Ereignis) override;
    void wheelEvent(QWheelEvent* Ereignis) override;

private:
    void Verbinden();
    void Anordnen();
    void Hoehe_Vormerken();
    void Hoehe_Melden();
    void Leiste_Angleichen();
    void Namen_Setzen();
    int  Alle_Breiten() const; // of columns and bar, with the gaps

    Hex_Spalte*   Spalte_D;
    Hex_Spalte*   Spalte_H;
    Hex_Gitter*   Feld_Ziffern;
    Hex_Gitter*   Feld_Zeichen;
    QLabel*       Label1;
    QLabel*       Label2;
    Hex_Kopf*     Label3;
    Hex_Kopf*     Label4;
    QScrollBar*   Leiste;
    std::uint64_t Gezeigt     = ~std::uint64_t{0}; // count that is drawn
    int           Hoehe_Zuvor = -1;                // pixels of the panes that the logic knows
    bool          Vorgemerkt  = false;
    bool          Angleichen  = false; // the bar follows the logic, not the user
    int           Rad_Rest    = 0;     // of a wheel turned less than a notch
};

} // namespace varnholt
