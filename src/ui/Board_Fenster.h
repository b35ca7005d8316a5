// The window on the simulated board: what sits in its socket and holds, and what can be done to it.
#pragma once

#include "programmer/Board_Ansicht.h"
#include "ui/Befehls_Weg.h"
#include "ui/Begleiter.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace varnholt {

class Board_Fenster : public QDialog, public Begleiter {
    Q_OBJECT

public:
    Board_Fenster(Befehls_Weg Ausfuehren, QWidget* Eltern);
    void Nachziehen() override; // nothing while it is hidden: the checksum takes its time

protected:
    void showEvent(QShowEvent* Ereignis) override;

private:
    void         Zeigen();
    void         Beschriften();
    void         Werte_Zeigen(const Board_Bild& b);
    QWidget*     Anzeige_Bauen();
    QWidget*     Griffe_Bauen();
    QWidget*     Stoerungen_Bauen();
    QWidget*     Zellen_Bauen();
    QPushButton* Griff(const char* Name, void (Board_Fenster::*Was)());
    void         Tun(const std::function<void()>& Was);
    void         Datei_Laden_Gewaehlt();
    void         Datei_Sichern_Gewaehlt();
    void         Neuer_Gewaehlt();
    void         UV_Gewaehlt();
    void         Stelle_Stoeren(bool (*Stoeren)(std::int32_t Adresse));
    void         Tote_Zelle_Gewaehlt();
    void         Schwache_Zelle_Gewaehlt();
    void         Schlechte_Seite_Gewaehlt();

    Befehls_Weg                              Weg;
    QGroupBox*                               Sockel = nullptr;
    std::array<QLabel*, 6>                   Namen{};
    std::array<QLabel*, 6>                   Werte{};
    QLabel*                                  Lage        = nullptr;
    QPushButton*                             Neuer       = nullptr;
    QPushButton*                             UV          = nullptr;
    QPushButton*                             Laden_Knopf = nullptr;
    QPushButton*                             Sichern     = nullptr;
    QPushButton*                             Tote        = nullptr;
    QPushButton*                             Schwache    = nullptr;
    QPushButton*                             Seite       = nullptr;
    QPushButton*                             Zu          = nullptr;
    QLabel*                                  Adress_Name = nullptr;
    QLineEdit*                               Adresse     = nullptr;
    QGroupBox*                               Stoerungen  = nullptr;
    std::array<QCheckBox*, Board_Stoerungen> Haken{};
};

} // namespace varnholt
