// The form `Jumper`: a picture of the board and one of each of its five jumpers.
#pragma once

#include <QDialog>

class QLabel;

namespace varnholt {

class Bild_Feld;

class Jumper_Fenster : public QDialog {
    Q_OBJECT

public:
    explicit Jumper_Fenster(QWidget* Eltern);
    void Nachziehen(); // shows the model when it has changed

private:
    Bild_Feld*                Board = nullptr;
    std::array<Bild_Feld*, 5> Bilder{};
    std::array<QWidget*, 5>   Spalten{};
    QLabel*                   Hinweis = nullptr;
    int                       Gezeigt = -1;
};

} // namespace varnholt
