// The question for the hardware version of a board: `Wahl_Eprommer_Version`,
// `Wahl_Tessel2_Version`.
#pragma once

#include "programmer/Geraetemenue.h"

#include <QDialog>

namespace varnholt {

class Versions_Dialog : public QDialog {
    Q_OBJECT

public:
    // Klick gets the number of the button, 0 to 2; Bisher is the version that is chosen now.
    Versions_Dialog(const char*          Name,
                    const Versions_Wahl& Wahl,
                    int                  Bisher,
                    void (*Klick)(int),
                    QWidget* Eltern);
};

} // namespace varnholt
