// The splash `Start`: an own drawing with the name of the program, and the label `L_Init` that
// tells how far the start is.
#pragma once

#include <QWidget>

#include <string_view>

class QLabel;

namespace varnholt {

class Start_Bild : public QWidget {
    Q_OBJECT

public:
    Start_Bild();

    // Text of the label (UTF-8), shown at once.
    void Text_Setzen(std::string_view Text);

protected:
    void paintEvent(QPaintEvent* Ereignis) override;

private:
    QLabel* L_Init = nullptr;
};

} // namespace varnholt
