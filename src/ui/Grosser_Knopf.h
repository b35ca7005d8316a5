// A large button with a picture at its left, the first line of its text as a heading and the rest
// below it, broken into lines where it is too long.
#pragma once

#include <QPushButton>

namespace varnholt {

class Grosser_Knopf : public QPushButton {
    Q_OBJECT

public:
    explicit Grosser_Knopf(const QString& Text, QWidget* Eltern = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* Ereignis) override;

private:
    QFont   Kopf_Schrift() const;
    QString Kopf() const;
    QString Rest() const;
};

} // namespace varnholt
