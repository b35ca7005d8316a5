// The print dialog: which printer or a PDF file, how many copies, all or the selection; and whether
// a preview comes first.
#pragma once

#include <QDialog>

class QComboBox;
class QRadioButton;
class QSpinBox;
class QVBoxLayout;

namespace varnholt {

class Druck_Dialog : public QDialog {
    Q_OBJECT

public:
    Druck_Dialog(bool Markierung_Anbieten, QWidget* Eltern);

    bool    Vorschau_Gewaehlt() const { return Vorschau; }
    QString Drucker_Name() const; // empty: PDF
    int     Kopien() const;       // a PDF file has one
    bool    Nur_Markierung() const;

private:
    void Felder_Bauen(bool Markierung_Anbieten);
    void Drucker_Auflisten();
    void Knoepfe_Bauen();

    QVBoxLayout*  Rahmen     = nullptr;
    QComboBox*    Geraete    = nullptr;
    QSpinBox*     Anzahl     = nullptr;
    QRadioButton* Markierung = nullptr;
    bool          Vorschau   = false;
};

} // namespace varnholt
