// The form `Lockmenu`: which protection mode a microcontroller gets.
#pragma once

#include <QDialog>

namespace varnholt {

class Lock_Dialog : public QDialog {
    Q_OBJECT

public:
    explicit Lock_Dialog(QWidget* Eltern);
};

} // namespace varnholt
