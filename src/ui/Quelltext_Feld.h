// The text control of `Edit`: hands keys, changes and caret moves to the source editor's logic, and
// shows line numbers, the current line and a zoom.
#pragma once

#include "ui/Text_Feld.h"

namespace varnholt {

inline constexpr int Zoom_Kleinster = 40; // per cent of the font's size
inline constexpr int Zoom_Groesster = 400;

class Quelltext_Feld : public Text_Feld {
    Q_OBJECT

public:
    explicit Quelltext_Feld(QWidget* Eltern = nullptr);

    void  Grund_Schrift_Setzen(const QFont& Schrift); // the font at 100 %
    QFont Grund_Schrift() const { return Grund; }
    void  Zoom_Setzen(int Prozent);
    int   Zoom() const { return Prozent_Jetzt; }

    int  Nummern_Breite() const;
    void Nummern_Zeichnen(QPaintEvent* Ereignis);

signals:
    void Kontextmenue(const QPoint& Ort);
    void Zoom_Geaendert(int Prozent);

protected:
    bool event(QEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void mousePressEvent(QMouseEvent* Ereignis) override;
    void mouseReleaseEvent(QMouseEvent* Ereignis) override;
    void inputMethodEvent(QInputMethodEvent* Ereignis) override;
    void contextMenuEvent(QContextMenuEvent* Ereignis) override;
    void wheelEvent(QWheelEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;
    void insertFromMimeData(const QMimeData* Daten) override;
    void dropEvent(QDropEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;

private:
    void Bewegung_Melden();
    void Bewegung_Vormerken();
    void Aktuelle_Zeile_Zeigen();
    void Rand_Setzen();

    QWidget* Nummern = nullptr; // the margin with the line numbers
    QFont    Grund{};
    int      Prozent_Jetzt = 100;
    bool     Bewegt        = false; // the selection changed, and the logic doesn't know it yet
    int      Rad_Rest      = 0;     // of a wheel turned less than a notch
    bool     Maus_Unten    = false; // a message must not come between press and release
};

} // namespace varnholt
