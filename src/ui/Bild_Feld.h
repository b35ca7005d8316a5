// A picture from a file of the program's folder, drawn anew at every size.
#pragma once

#include <QImage>
#include <QSvgRenderer>
#include <QWidget>

namespace varnholt {

class Bild_Feld : public QWidget {
    Q_OBJECT

public:
    explicit Bild_Feld(QSize Grundmass, QWidget* Eltern = nullptr);
    // Name without extension under the folder images: the .svg, else the .jpg, else an empty frame.
    void  Laden(const QString& Name);
    QSize sizeHint() const override { return Mass; }

protected:
    void paintEvent(QPaintEvent* Ereignis) override;

private:
    QSize        Mass;
    QSvgRenderer Zeichner{};
    QImage       Foto{};
};

} // namespace varnholt
