// The columns of the hex editor, drawn cell by cell from the page texts of the logic: a plain one
// for the addresses, and the two panes that take keys and mouse.
#pragma once

#include "editors/Hexedit.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QWidget>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

inline constexpr int Spalten_Rand = 4; // pixels left and right of a column's text

// The colours of a pane, from the palette.
struct Hex_Farben_T {
    QColor Grund{}; // background
    QColor Text{};
    QColor Blass{}; // erased bytes and characters without a picture
    QColor Marke{}; // background of marked characters
    QColor Marke_Text{};
};
// Aktiv: the pane has the focus, a light yellow; on a dark palette a dark one.
Hex_Farben_T Hex_Farben(const QPalette& Palette, bool Aktiv);

// Rows of a page text. Every character has a cell of the same size in device-independent pixels,
// so that nothing is scaled on any screen.
class Hex_Spalte : public QWidget {
    Q_OBJECT

public:
    // Zeile: characters of a row in the text; Sichtbar: those of them that are shown.
    Hex_Spalte(const std::string& Text, int Zeile, int Sichtbar, QWidget* Eltern);

    int Zellen_Breite() const { return Breite; }
    int Zeilen_Hoehe() const { return Hoehe; }
    int Breite_Der_Spalte() const;
    // Place of a character of the text, from its offset.
    QRect Zelle(int Stelle) const;

protected:
    void paintEvent(QPaintEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;
    // Colours of a row's text; Stellen are offsets in the text.
    virtual Hex_Farben_T Farben() const;
    virtual void         Zeile_Zeichnen(QPainter& Maler, int Erste_Stelle, const Hex_Farben_T& f);
    // Puts characters on the page; all of one colour are drawn together when the page is complete.
    void Text_Zeichnen(QPainter& Maler, int Stelle, std::string_view Stueck, const QColor& Farbe);
    // A small frame, for a character without a picture.
    void Rahmen_Zeichnen(QPainter& Maler, int Stelle, const QColor& Farbe);
    int  Stelle_An(const QPoint& Ort) const; // offset of the cell there, drawn into the page
    int  Sichtbare_Zeichen() const { return Sichtbar; }
    const std::string& Seiten_Text() const { return *Text; }

private:
    void Laeufe_Zeichnen(QPainter& Maler);

    // Glyphs of one colour and their places.
    struct Lauf_T {
        QColor         Farbe{};
        QList<quint32> Glyphen{};
        QList<QPointF> Orte{};
    };
    void Masse_Nehmen();

    const std::string*       Text;
    int                      Zeile;
    int                      Sichtbar;
    int                      Breite = 1;
    int                      Hoehe  = 1;
    int                      Linie  = 0; // base line of the letters in their row
    QRawFont                 Roh{};      // the font as the glyphs' numbers mean it
    std::array<quint32, 256> Glyphen{};  // by character; 0: the font has none
    std::vector<Lauf_T>      Laeufe{};   // of the page that is being drawn
};

// What a pane hands its events to, and what it shows as marked.
struct Hex_Griffe_T {
    int           Feld; // Feld_Hex or Feld_AscII
    Feldmass_T    Mass;
    Markierung_T* Auswahl;
    bool (*KeyDown)(const Taste_T&);
    void (*KeyPress)(char); // nullptr: key-down has done it all
    void (*MouseDown)();
    void (*MouseUp)();
    void (*Click)(); // nullptr: none
    void (*GotFocus)();
};
extern const Hex_Griffe_T Hex_Feld_Griffe;
extern const Hex_Griffe_T AscII_Feld_Griffe;

class Hex_Gitter : public Hex_Spalte {
    Q_OBJECT

public:
    Hex_Gitter(const std::string& Text, const Hex_Griffe_T& Neue_Griffe, QWidget* Eltern);

signals:
    void Geaendert();                     // the logic has taken an event
    void Kontextmenue(const QPoint& Ort); // on the screen

protected:
    bool event(QEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void inputMethodEvent(QInputMethodEvent* Ereignis) override;
    void mousePressEvent(QMouseEvent* Ereignis) override;
    void mouseMoveEvent(QMouseEvent* Ereignis) override;
    void mouseReleaseEvent(QMouseEvent* Ereignis) override;
    void focusInEvent(QFocusEvent* Ereignis) override;
    void contextMenuEvent(QContextMenuEvent* Ereignis) override;

    Hex_Farben_T Farben() const override;
    void         Zeile_Zeichnen(QPainter& Maler, int Erste_Stelle, const Hex_Farben_T& f) override;

private:
    const QColor& Zeichen_Farbe(int Stelle, const Hex_Farben_T& f) const;
    bool          Taste_Weitergeben(const Taste_T& Taste);
    void          Marke_Zeichnen(QPainter& Maler, int Erste_Stelle, const QColor& Farbe);
    void          Zug_Markieren(int Bis);

    const Hex_Griffe_T& Griffe;
    int                 Zug_Anfang = -1; // offset where the mouse went down; -1: it is up
    bool                Gezogen    = false;
};

} // namespace varnholt
