// The question of a partial load, `Abfrage`: which half of a file that is longer than the image.
#pragma once

#include <QDialog>

#include <string_view>

class QRadioButton;

namespace varnholt {

class Abfrage_Dialog : public QDialog {
    Q_OBJECT

public:
    explicit Abfrage_Dialog(std::string_view Text, QWidget* Eltern = nullptr);

    // Shows the dialog and waits: 1 first half, 2 second half, 0 given up.
    int Waehlen();

private:
    QRadioButton* Bereich2 = nullptr;
};

} // namespace varnholt
