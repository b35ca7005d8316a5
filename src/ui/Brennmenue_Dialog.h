// The programming dialog: shows the fields of the model and forwards every change to it.
#pragma once

#include <QDialog>

#include <string>
#include <string_view>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace varnholt {

class Brennmenue_Dialog : public QDialog {
    Q_OBJECT

public:
    explicit Brennmenue_Dialog(QWidget* Eltern);

protected:
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override; // keys of the hexadecimal boxes
    void showEvent(QShowEvent* Ereignis) override;

private:
    // A box or a label that shows one text of the model.
    struct Feld_T {
        QWidget*           Widget = nullptr;
        const std::string* Wert   = nullptr;
    };

    QWidget* Kopf_Bauen();
    QWidget* Felder_Bauen();
    QWidget* Unten_Bauen();
    QWidget* Knoepfe_Bauen();
    QLineEdit*
            Eingabe(const char* Name, const std::string& Wert, void (*Geaendert)(std::string_view));
    QLabel* Anzeige(const char* Name, const std::string& Wert);
    void    Aktivieren(); // sets the fields, and reads the device, once the dialog is to be seen
    void    Zeigen();
    void    Ausfuehren(void (*Befehl)());

    std::vector<Feld_T> Felder{};
    QLabel*             Titel_IC     = nullptr;
    QLabel*             Ueberbrennen = nullptr;
    QLabel*             Vorschau     = nullptr;
    QCheckBox*          DAT00        = nullptr;
    QCheckBox*          Loeschen     = nullptr;
    QRadioButton*       Teilung[3]   = {};
    QPushButton*        Brennen      = nullptr;
    QWidget*            Unten        = nullptr;
    bool                Aktiviert    = false;
    bool                Zeigt = false; // the model is being shown: changes are not the user's
};

} // namespace varnholt
