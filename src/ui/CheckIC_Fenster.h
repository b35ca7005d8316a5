// The form `CheckIC`: how a device relates to the image, and the table of differences.
#pragma once

#include "ui/Befehls_Weg.h"
#include "ui/Begleiter.h"

#include <QDialog>

class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace varnholt {

class CheckIC_Fenster : public QDialog, public Begleiter {
    Q_OBJECT

public:
    CheckIC_Fenster(Befehls_Weg Ausfuehren, QWidget* Eltern);
    void Nachziehen() override;

private:
    Befehls_Weg     Weg;
    QGroupBox*      Frame_IC   = nullptr;
    QLabel*         Label2     = nullptr;
    QLabel*         Zustand    = nullptr;
    QLabel*         Ergebnis   = nullptr;
    QPlainTextEdit* Tafel      = nullptr;
    QPushButton*    Button_Dat = nullptr;
    QPushButton*    Button_OK  = nullptr;
    QString         Gezeigt{}; // its size follows what is new, and is the user's else
};

} // namespace varnholt
