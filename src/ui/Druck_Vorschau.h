// The preview of a printout: its pages on the screen, another sheet, and the way to the printer.
#pragma once

#include <QDialog>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QPushButton;

namespace varnholt {

class Druck_Vorschau : public QDialog {
    Q_OBJECT

public:
    // Malen paints all pages on the sheet that it is given.
    Druck_Vorschau(QPrinter& Blatt, std::function<void(QPrinter&)> Malen, QWidget* Eltern);

private:
    QPushButton* Knopf_Bauen(QHBoxLayout* Leiste, const char* Name, const QString& Text);
    void         Blaettern_Bauen(QHBoxLayout* Leiste);
    void         Groesse_Bauen(QHBoxLayout* Leiste);
    void         Ausgang_Bauen(QHBoxLayout* Leiste);
    void         Nachziehen();

    QPrinter&            Papier;
    QPrintPreviewWidget* Bild    = nullptr;
    QLabel*              Seite   = nullptr;
    QPushButton*         Zurueck = nullptr;
    QPushButton*         Vor     = nullptr;
};

} // namespace varnholt
