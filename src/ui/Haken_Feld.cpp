// A check box with a caption of several lines: the style draws the parts, the lines are ours.
#include "ui/Haken_Feld.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Text_Art        = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
constexpr int Breite_Wunsch   = 440; // pixels, above which a caption is broken
constexpr int Breite_Kleinste = 160;
constexpr int Luft            = 4; // around the caption

} // namespace

Haken_Feld::Haken_Feld(const QString& Text, QWidget* Eltern) : QCheckBox(Text, Eltern)
{
    QSizePolicy Art(QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::CheckBox);
    Art.setHeightForWidth(true);
    setSizePolicy(Art);
}

int Haken_Feld::Text_Links() const
{
    return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
           style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

QRect Haken_Feld::Text_Flaeche(int Breite) const
{
    const int Platz = std::max(Breite - Text_Links() - Luft, 1);
    return fontMetrics().boundingRect(QRect(0, 0, Platz, 10000), Text_Art, text());
}

QSize Haken_Feld::sizeHint() const
{
    const int Einzeilig = fontMetrics().horizontalAdvance(text()) + Text_Links() + 2 * Luft;
    const int Breite    = std::min(Einzeilig, Breite_Wunsch);
    return {Breite, heightForWidth(Breite)};
}

QSize Haken_Feld::minimumSizeHint() const
{
    const int Breite = std::min(sizeHint().width(), Breite_Kleinste);
    return {Breite, fontMetrics().height() + Luft};
}

int Haken_Feld::heightForWidth(int Breite) const
{
    const int Kasten = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    return std::max(Text_Flaeche(Breite).height(), Kasten) + Luft;
}

void Haken_Feld::paintEvent(QPaintEvent*)
{
    QStylePainter      Maler(this);
    QStyleOptionButton Teil;
    initStyleOption(&Teil);
    const int  Kasten = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    const int  Zeile  = std::max(fontMetrics().height(), Kasten);
    const auto Lage   = [&](const QRect& r) {
        return QStyle::visualRect(layoutDirection(), rect(), r);
    };
    const QRect Schrift_Platz = Lage(QRect(Text_Links(),
                                           Luft / 2 + (Zeile - fontMetrics().height()) / 2,
                                           width() - Text_Links() - Luft,
                                           height()));
    Teil.rect = Lage(QRect(0, Luft / 2 + (Zeile - Kasten) / 2, Text_Links(), Kasten));
    Teil.rect.setWidth(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this));
    Maler.drawPrimitive(QStyle::PE_IndicatorCheckBox, Teil);
    Maler.drawItemText(Schrift_Platz, Text_Art, palette(), isEnabled(), text(), foregroundRole());
    if (hasFocus() && Teil.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        QStyleOptionFocusRect Rahmen;
        Rahmen.initFrom(this);
        Rahmen.rect =
            Text_Flaeche(width()).translated(Schrift_Platz.topLeft()).adjusted(-2, 0, 2, 0);
        Maler.drawPrimitive(QStyle::PE_FrameFocusRect, Rahmen);
    }
}

} // namespace varnholt
