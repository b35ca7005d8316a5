// The dialog `Optionen`: shows Optionen_Form and forwards the events of its controls. Modal; Escape
// and the close box are its Cancel button.
#pragma once

#include <QDialog>

#include <array>

class QBoxLayout;
class QFrame;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace varnholt {

class Optionen_Dialog : public QDialog {
    Q_OBJECT

public:
    // The form must be loaded (Optionen_Laden).
    explicit Optionen_Dialog(QWidget* Eltern = nullptr);
    void reject() override;

private:
    QWidget* Oberflaeche_Bauen();
    QWidget* Programmiergeraet_Bauen();
    QWidget* Schrift_Gruppe();
    QWidget* Arbeit_Gruppe();
    QWidget* Port_Gruppe();
    void     Seite_Anhaengen(QTabWidget& Reiter, QWidget* Seite, const char* Name);
    void     Schrift_Zeile(QBoxLayout& Liste, int Ziel);
    void     Farb_Zeile(QBoxLayout& Liste);
    void     Undo_Zeile(QBoxLayout& Liste);
    QWidget* Knopf_Leiste();
    void     Groesse_Waehlen();

    void Schrift_Gewaehlt(int Ziel);
    void Undo_Getippt(const QString& Text);
    void Proben_Zeigen();
    void Farbe_Zeigen();

    std::array<QLabel*, 3>  Proben{};
    QFrame*                 Farb_Probe = nullptr;
    QLineEdit*              T_Undo_Max = nullptr;
    std::array<QWidget*, 2> Seiten{};
};

} // namespace varnholt
