// The mode dialog of a first start: a question and two large buttons. Closing it ends the program;
// the next start asks again.
#pragma once

#include "ui/Befehls_Weg.h"

#include <QDialog>

namespace varnholt {

class Abfrage_Modus_Dialog : public QDialog {
    Q_OBJECT

public:
    explicit Abfrage_Modus_Dialog(Befehls_Weg Ausfuehren = {});
    void reject() override;

private:
    void Gewaehlt(void (*Befehl)());

    Befehls_Weg Weg;
};

} // namespace varnholt
