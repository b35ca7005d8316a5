// The window `Spr`: the list of jumpmarks.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include <cstdint>

namespace varnholt {

// The rows of Sprungmarken.Liste. Nachziehen tells the view when the list has become another one.
class Sprungmarken_Modell : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;
    int      rowCount(const QModelIndex& Eltern) const override;
    QVariant data(const QModelIndex& Ort, int Rolle) const override;
    void     Nachziehen();

private:
    std::uint64_t Gezeigter_Stand = 0;
    int           Zeilen          = 0;
};

class Spr_Fenster : public QListView {
    Q_OBJECT

public:
    explicit Spr_Fenster(QWidget* Eltern = nullptr);
    void Nachziehen() { Modell->Nachziehen(); }

signals:
    void Eintrag_Gewaehlt(int Nummer); // clicked, or Enter on it

protected:
    void keyPressEvent(QKeyEvent* Ereignis) override;

private:
    Sprungmarken_Modell* Modell;
};

} // namespace varnholt
