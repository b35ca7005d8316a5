// The status line of the main window: mode, cursor, device, port, encoding; and notices.
#pragma once

#include <QStatusBar>

#include <string_view>

class QLabel;

namespace varnholt {

class Statuszeile : public QStatusBar {
    Q_OBJECT

public:
    explicit Statuszeile(QWidget* Eltern = nullptr);

    // Zeile and Spalte of the source editor, from 1.
    void Nachziehen(int Zeile, int Spalte);
    void Hinweisen(std::string_view Text);

signals:
    void Board_Gewuenscht(); // a click on the port, where that is the simulated one

protected:
    bool eventFilter(QObject* Feld, QEvent* Ereignis) override;

private:
    void Port_Zeigen();

    QLabel* Hinweis    = nullptr;
    QLabel* Modus_Feld = nullptr;
    QLabel* Stelle     = nullptr;
    QLabel* Baustein   = nullptr;
    QLabel* Port       = nullptr;
    QLabel* Zeichen    = nullptr;
};

} // namespace varnholt
