// What the three memory views have in common: the grid `Feld`, and above it the strip `T_Edit` that
// shows the current row and takes edits.
#pragma once

#include "simulator/Sim_Ansichten.h"
#include "ui/Befehls_Weg.h"
#include "ui/Sim_Modell.h"

#include <QAbstractItemDelegate>
#include <QTableView>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QHBoxLayout;
class QLineEdit;
class QVBoxLayout;

namespace varnholt {

// The colours of a cell that differs from the last stop.
struct Sim_Farben_T {
    QColor Grund{};
    QColor Text{};
};
Sim_Farben_T Sim_Farben_Geaendert(const QPalette& Palette);

// Draws a cell; much faster than the style does, since whole grids change while a program runs.
class Sim_Zeichner : public QAbstractItemDelegate {
    Q_OBJECT

public:
    explicit Sim_Zeichner(const Sim_Modell* Neues, QObject* Eltern)
        : QAbstractItemDelegate(Eltern), Modell(Neues)
    {
    }
    void
    paint(QPainter* Maler, const QStyleOptionViewItem& Wie, const QModelIndex& Ort) const override;
    QSize sizeHint(const QStyleOptionViewItem& Wie, const QModelIndex& Ort) const override;

private:
    const Sim_Modell* Modell;
};

// The grid. It takes no typed input.
class Sim_Tafel : public QTableView {
    Q_OBJECT

public:
    Sim_Tafel(Sim_Modell* Neues, QWidget* Eltern);
    void keyboardSearch(const QString&) override {}

signals:
    void Zelle_Gewechselt(const QModelIndex& Ort);

protected:
    void currentChanged(const QModelIndex& Neue, const QModelIndex& Alte) override;
    void mouseDoubleClickEvent(QMouseEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;

private:
    void Masse_Nehmen();
    void Spalten_Verteilen();

    Sim_Modell* Modell;
};

class Sim_Gitter : public QWidget {
    Q_OBJECT

public:
    enum class Streifen { Adresse, Name, Hex, Bits }; // a field of the strip

    // Brings grid and strip to the state; a hidden window waits until it is shown.
    void       Nachziehen();
    Sim_Tafel* Tafel() const { return Feld; }

protected:
    // Felder: what the fields of the strip are, by index. Neues becomes a child of the window.
    Sim_Gitter(Sicht                 Neue_Sicht,
               Sim_Modell*           Neues,
               std::vector<Streifen> Felder,
               Befehls_Weg           Neuer_Weg);

    void showEvent(QShowEvent* Ereignis) override;
    // The current row, what it shows, or the language has become another one.
    virtual void Zeile_Gezeigt(const QModelIndex&) {}
    QVBoxLayout* Spalte() const { return Anordnung; }
    Sim_Modell*  Das_Modell() const { return Modell; }

private:
    void        Streifen_Bauen(QHBoxLayout* Reihe);
    void        Beschriften();
    void        Erste_Zelle_Waehlen();
    void        Streifen_Fuellen(bool Auch_Getipptes);
    QString     Streifen_Text(Streifen Was, const QModelIndex& Ort) const;
    QLineEdit*  Feld_Von(Streifen Was) const;
    std::string Getippt(Streifen Was) const; // Windows-1252
    void        Zelle_Geklickt(const QModelIndex& Ort);
    void        Enter(Streifen Was);
    void        Zur_Adresse(int Adresse); // its cell becomes the current one
    void        Ausfuehren(const std::function<void()>& Befehl);

    Sicht                   Welche;
    Sim_Modell*             Modell;
    std::vector<Streifen>   Arten;
    Befehls_Weg             Weg;
    Sim_Tafel*              Feld;
    std::vector<QLineEdit*> T_Edit{}; // by index
    QVBoxLayout*            Anordnung;
    std::string             Gezeigte_Sprache{};
    std::uint64_t           Gezeigter_Stand = 0;
    std::uint64_t           Erste_Zelle     = 0;
};

} // namespace varnholt
