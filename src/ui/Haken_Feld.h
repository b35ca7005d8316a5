// A check box whose caption goes on in further lines where it is longer than the box is wide.
#pragma once

#include <QCheckBox>

namespace varnholt {

class Haken_Feld : public QCheckBox {
    Q_OBJECT

public:
    explicit Haken_Feld(const QString& Text, QWidget* Eltern = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool  hasHeightForWidth() const override { return true; }
    int   heightForWidth(int Breite) const override;

protected:
    void paintEvent(QPaintEvent* Ereignis) override;
    bool hitButton(const QPoint& Ort) const override { return rect().contains(Ort); }

private:
    int   Text_Links() const;             // where the caption begins
    QRect Text_Flaeche(int Breite) const; // of the caption, broken into lines
};

} // namespace varnholt
