// The language dialog of a first start. Closing it ends the program.
#pragma once

#include "ui/Befehls_Weg.h"

#include <QDialog>

class QPushButton;
class QRadioButton;

namespace varnholt {

class Erststart_Dialog : public QDialog {
    Q_OBJECT

public:
    // The language of the desktop is preset.
    explicit Erststart_Dialog(Befehls_Weg Ausfuehren = {});
    void reject() override;

private:
    void Command1_Click();
    void Beschriften(); // Command1, in the language that is chosen

    Befehls_Weg   Weg;
    QRadioButton* Deutsch  = nullptr;
    QRadioButton* Englisch = nullptr;
    QPushButton*  Command1 = nullptr;
};

} // namespace varnholt
