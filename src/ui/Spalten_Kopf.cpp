// A heading of columns.
#include "ui/Spalten_Kopf.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace varnholt {

Spalten_Kopf::Spalten_Kopf(const QString& Text, QList<QWidget*> Neue_Spalten, QWidget* Eltern)
    : QLabel(Text, Eltern), Spalten(std::move(Neue_Spalten))
{
    setTextFormat(Qt::PlainText);
}

QStringList Spalten_Kopf::Teile() const
{
    return text().split(QRegularExpression(QStringLiteral("  +")), Qt::SkipEmptyParts);
}

// The columns have their own width; only the first name needs its place.
QSize Spalten_Kopf::sizeHint() const
{
    const QStringList Namen  = Teile();
    const int         Breite = Namen.isEmpty() ? 0 : fontMetrics().horizontalAdvance(Namen.front());
    return {Breite + 2, fontMetrics().height() + 4};
}

void Spalten_Kopf::paintEvent(QPaintEvent*)
{
    QPainter          Stift(this);
    const QStringList Namen = Teile();
    Stift.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    for (qsizetype i = 0; i < Namen.size() && i <= Spalten.size(); ++i) {
        const int Links =
            i == 0 ? 0 : mapFrom(window(), Spalten[i - 1]->mapTo(window(), QPoint())).x();
        Stift.drawText(
            QRect(Links, 0, width() - Links, height()), Qt::AlignLeft | Qt::AlignVCenter, Namen[i]);
    }
}

void Spalten_Kopf::mousePressEvent(QMouseEvent* Ereignis)
{
    QLabel::mousePressEvent(Ereignis);
    if (Ereignis->button() == Qt::LeftButton)
        emit Geklickt();
}

} // namespace varnholt
