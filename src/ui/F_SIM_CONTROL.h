// The window `F_SIM_CONTROL`: counters, switches and commands of a debugger session.
#pragma once

#include "ui/Befehls_Weg.h"

#include <QScrollArea>

#include <cstdint>
#include <string>
#include <vector>

class QGridLayout;
class QKeyEvent;
class QLabel;
class QPushButton;

namespace varnholt {

class Haken_Feld;

class F_SIM_CONTROL : public QScrollArea {
    Q_OBJECT

public:
    explicit F_SIM_CONTROL(Befehls_Weg Neuer_Weg = {});

    // Brings counters, switches and captions to the state.
    void Nachziehen();

protected:
    bool event(QEvent* Ereignis) override;
    bool eventFilter(QObject* Wer, QEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;

private:
    QWidget* Blatt_Bauen();
    void     Zeile_Bauen(QGridLayout* Gitter, int Zeile, QLabel* Text, QLabel* Wert);
    void     Knoepfe_Bauen(QWidget* Blatt);
    void     Knoepfe_Verteilen();
    void     Beschriften();
    void     Start_Beschriften();
    bool     Eigene_Taste(QEvent* Ereignis);
    void     Ausfuehren(const std::function<void()>& Befehl);

    Befehls_Weg               Weg;
    QLabel*                   L_Adr_Text;
    QLabel*                   L_Adr;
    QLabel*                   L_MT;
    QLabel*                   L_Zyklen;
    Haken_Feld*               Check1;
    Haken_Feld*               Check2;
    QGridLayout*              Knopf_Gitter;
    std::vector<QPushButton*> Knoepfe{};
    int                       Knopf_Spalten = 0;
    std::string               Gezeigte_Sprache{};
};

} // namespace varnholt
