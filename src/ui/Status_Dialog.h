// The progress dialog `status`: driven by the routine that runs, which looks at `Abbruch` now and
// then. It keeps the user away from the other windows, without a loop of its own.
#pragma once

#include "core/platform.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace varnholt {

class Status_Dialog : public QDialog, public Statusdialog {
    Q_OBJECT

public:
    Status_Dialog();

    void Oeffnen() override;
    void Text(std::string_view Neuer) override;
    void ProgBar(int Prozent) override;
    void Schliessen() override;

    void reject() override; // Escape and the close box are the button Abbrechen

private:
    void Mittig_Stellen();

    QLabel*       Zeile     = nullptr;
    QProgressBar* Balken    = nullptr;
    QPushButton*  Abbrechen = nullptr;
};

} // namespace varnholt
