// The dialogs `Bereich_Kopieren`, `Bereich_entfernen` and `Bereich_Setzen`: show Bereich_Form and
// forward the events of its controls. Modal; Escape and the close box are C_Abort.
#pragma once

#include "editors/Bereiche.h"

#include <QDialog>

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace varnholt {

class Bereich_Dialog : public QDialog {
    Q_OBJECT

public:
    // The form must be loaded (Bereich::Form_Load).
    explicit Bereich_Dialog(QWidget* Eltern = nullptr);
    void reject() override;

protected:
    bool eventFilter(QObject* Feld, QEvent* Ereignis) override;

private:
    struct Felder_T {
        QLabel*    Name = nullptr;
        QLineEdit* Hex  = nullptr;
        QLineEdit* Dez  = nullptr;
    };

    void          Felder_Bauen();
    void          Kopf_Zeile(const char* Text, Adress_Paar Darunter, QRadioButton* Wahl = nullptr);
    void          Paar_Zeile(Adress_Paar Welches, const char* Text);
    QLineEdit*    Feld_Bauen(Adress_Paar Welches, const char* Endung);
    QRadioButton* Wahl_Bauen(const char* Name, const char* Text, bool Gesetzt);
    void          Knopf_Zeile();
    QPushButton*  Knopf_Bauen(const char* Name);
    Felder_T&     Felder(Adress_Paar Welches) { return Paare[static_cast<std::size_t>(Welches)]; }

    void Dez_Geaendert(Adress_Paar Welches);
    void Hex_Geaendert(Adress_Paar Welches);
    void Paar_Zeigen(Adress_Paar Welches);
    void Erlaubtes_Zeigen();

    QGridLayout*                       Gitter = nullptr;
    std::array<Felder_T, Adress_Paare> Paare{};
    QPushButton*                       C_OK = nullptr;
};

} // namespace varnholt
