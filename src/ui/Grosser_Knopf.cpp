// A large button with picture, heading and explanation.
#include "ui/Grosser_Knopf.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Rand        = 16; // device-independent pixels
constexpr int Abstand     = 4;  // between heading and explanation
constexpr int Text_Breite = 470;

} // namespace

Grosser_Knopf::Grosser_Knopf(const QString& Text, QWidget* Eltern) : QPushButton(Text, Eltern)
{
    setIconSize(QSize(48, 48));
    setAutoDefault(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QFont Grosser_Knopf::Kopf_Schrift() const
{
    QFont Schrift = font();
    Schrift.setBold(true);
    Schrift.setPointSizeF(Schrift.pointSizeF() * 1.2);
    return Schrift;
}

QString Grosser_Knopf::Kopf() const { return text().section(u'\n', 0, 0); }
QString Grosser_Knopf::Rest() const { return text().section(u'\n', 1); }

QSize Grosser_Knopf::sizeHint() const
{
    const QRect Viel(0, 0, Text_Breite, 1000);
    const QRect Oben  = QFontMetrics(Kopf_Schrift()).boundingRect(Viel, Qt::TextWordWrap, Kopf());
    const QRect Unten = fontMetrics().boundingRect(Viel, Qt::TextWordWrap, Rest());
    const int   Text_Hoehe = Oben.height() + Abstand + Unten.height();
    return {3 * Rand + iconSize().width() + Text_Breite,
            2 * Rand + std::max(iconSize().height(), Text_Hoehe)};
}

void Grosser_Knopf::paintEvent(QPaintEvent*)
{
    QPainter           p(this);
    QStyleOptionButton Stil;
    initStyleOption(&Stil);
    Stil.text.clear();
    Stil.icon = QIcon();
    style()->drawControl(QStyle::CE_PushButton, &Stil, &p, this);

    const QSize Bild = iconSize();
    icon().paint(&p, QRect(QPoint(Rand, (height() - Bild.height()) / 2), Bild));
    const int   Links = 2 * Rand + Bild.width();
    const QRect Platz(Links, Rand, width() - Links - Rand, height() - 2 * Rand);
    const int   Kopf_Hoehe = QFontMetrics(Kopf_Schrift()).height();
    const int   Rest_Hoehe = fontMetrics().boundingRect(Platz, Qt::TextWordWrap, Rest()).height();
    const int   Oben       = (height() - Kopf_Hoehe - Abstand - Rest_Hoehe) / 2;
    p.setPen(
        palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::ButtonText));
    p.setFont(Kopf_Schrift());
    p.drawText(QRect(Links, Oben, Platz.width(), Kopf_Hoehe), Qt::AlignLeft, Kopf());
    p.setFont(font());
    p.drawText(QRect(Links, Oben + Kopf_Hoehe + Abstand, Platz.width(), Rest_Hoehe),
               Qt::AlignLeft | Qt::TextWordWrap,
               Rest());
}

} // namespace varnholt
