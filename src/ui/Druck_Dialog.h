// The print dialog: which printer, PDF file or preview, how many copies, all or the selection.
#pragma once

#include <QDialog>

class QComboBox;
class QRadioButton;
class QSpinBox;

namespace varnholt {

class Druck_Dialog : public QDialog {
    Q_OBJECT

public:
    enum class Ziel { Drucker, PDF, Vorschau };

    Druck_Dialog(bool Markierung_Anbieten, QWidget* Eltern);

    Ziel    Wohin() const { return Gewaehlt; }
    QString Drucker_Name() const; // empty: PDF
    int     Kopien() const;
    bool    Nur_Markierung() const;

private:
    void Fertig(bool Vorschau);

    QComboBox*    Geraete    = nullptr;
    QSpinBox*     Anzahl     = nullptr;
    QRadioButton* Markierung = nullptr;
    Ziel          Gewaehlt   = Ziel::Drucker;
};

} // namespace varnholt
