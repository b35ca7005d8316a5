// A heading of columns: its text names them in one line, the names separated by two blanks or more,
// and each of them is drawn above its column.
#pragma once

#include <QLabel>
#include <QList>

namespace varnholt {

class Spalten_Kopf : public QLabel {
    Q_OBJECT

public:
    // Neue_Spalten: what stands below the second name, the third, and so on.
    Spalten_Kopf(const QString& Text, QList<QWidget*> Neue_Spalten, QWidget* Eltern = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void Geklickt();

protected:
    void paintEvent(QPaintEvent* Ereignis) override;
    void mousePressEvent(QMouseEvent* Ereignis) override;

private:
    QStringList     Teile() const;
    QList<QWidget*> Spalten;
};

} // namespace varnholt
