// A picture from the program's folder.
#include "ui/Bild_Feld.h"

#include "core/shared_state.h"
#include "ui/Qt_Text.h"

#include <QFile>
#include <QPainter>

namespace varnholt {

Bild_Feld::Bild_Feld(QSize Grundmass, QWidget* Eltern) : QWidget(Eltern), Mass(Grundmass)
{
    setMinimumSize(Grundmass);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void Bild_Feld::Laden(const QString& Name)
{
    const QString Stamm = Qt_Text(Programm_Pfad) + QStringLiteral("images/") + Name;
    Zeichner.load(Stamm + QStringLiteral(".svg"));
    Foto = Zeichner.isValid() ? QImage() : QImage(Stamm + QStringLiteral(".jpg"));
    update();
}

void Bild_Feld::paintEvent(QPaintEvent*)
{
    QPainter Pinsel(this);
    QSizeF   Groesse = Zeichner.isValid() ? QSizeF(Zeichner.defaultSize()) : QSizeF(Foto.size());
    if (Groesse.isEmpty()) {
        Pinsel.drawRect(rect().adjusted(0, 0, -1, -1));
        return;
    }
    Groesse.scale(size(), Qt::KeepAspectRatio);
    QRectF Ort(QPointF(), Groesse);
    Ort.moveCenter(QRectF(rect()).center());
    if (Zeichner.isValid())
        Zeichner.render(&Pinsel, Ort);
    else
        Pinsel.drawImage(Ort, Foto);
}

} // namespace varnholt
