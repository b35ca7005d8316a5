// The windows `Bef` and `Basic_Bef`: a reference table of the logic as a grid that is only read.
#pragma once

#include "core/interface_texts.h"
#include "editors/Nachschlagen.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <cstdint>
#include <span>
#include <string>

namespace varnholt {

// The rows of a table under their headings. Nachziehen tells the view what has become another.
class Tafel_Modell : public QAbstractTableModel {
    Q_OBJECT

public:
    using Erklaerung_T = std::string (*)(const Tafel_Zeile_T&); // tool tip of a row, UTF-8

    Tafel_Modell(const Tafel_T&               Gezeigte,
                 std::span<const Festes_Paar> Ueberschriften,
                 Erklaerung_T                 Erklaerung,
                 QObject*                     Eltern = nullptr);
    int      rowCount(const QModelIndex& Eltern = {}) const override;
    int      columnCount(const QModelIndex& Eltern = {}) const override;
    QVariant data(const QModelIndex& Ort, int Rolle) const override;
    QVariant headerData(int Nummer, Qt::Orientation Richtung, int Rolle) const override;
    // True: the rows are others than before.
    bool Nachziehen();

private:
    const Tafel_T&               Tafel;
    std::span<const Festes_Paar> Spalten;
    Erklaerung_T                 Erklaeren;
    std::uint64_t                Gezeigter_Stand = 0;
    int                          Zeilen          = 0;
    std::string                  Gezeigte_Sprache{};
};

class Tafel_Fenster : public QTableView {
    Q_OBJECT

public:
    Tafel_Fenster(const Tafel_T&               Gezeigte,
                  std::span<const Festes_Paar> Ueberschriften,
                  Tafel_Modell::Erklaerung_T   Erklaerung,
                  QWidget*                     Eltern = nullptr);
    void Nachziehen();

signals:
    void Feld_Click(int Zeile, int Spalte); // row 0 is the header

protected:
    void resizeEvent(QResizeEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;

private:
    void Spalten_Anpassen();
    void Wahl_Zeigen(bool Hinrollen);

    const Tafel_T& Tafel;
    Tafel_Modell*  Modell;
    std::uint64_t  Gezeigte_Wahl = 0;
    int            Spalte        = 0;     // the current one
    bool           Angleichen    = false; // the selection follows the state
};

// What the rows of `Bef` and of `Basic_Bef` tell about themselves, in the interface language.
std::string Bef_Erklaerung(const Tafel_Zeile_T& Zeile);
std::string Basic_Bef_Erklaerung(const Tafel_Zeile_T& Zeile);

} // namespace varnholt
