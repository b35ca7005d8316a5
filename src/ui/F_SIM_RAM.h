// The window `F_SIM_RAM`: the internal RAM of the simulated machine.
#pragma once

#include "ui/Sim_Gitter.h"

class QLabel;

namespace varnholt {

// Row r shows address r: 0 to 127 lower, 128 to 255 upper RAM.
class RAM_Modell : public Sim_Bit_Modell {
    Q_OBJECT

public:
    explicit RAM_Modell(QObject* Eltern = nullptr);
    int         rowCount(const QModelIndex& Eltern) const override;
    QString     Name_Von(int Zeile) const override;
    QModelIndex Ort_Von(int Adresse) const override;

protected:
    int                      Index_Von(int Zeile) const override;
    int                      Adresse(int Zeile) const override { return Zeile; }
    std::vector<QModelIndex> Orte_Von(int Index) const override;
    void                     Aufbau_Melden() override;
};

class F_SIM_RAM : public Sim_Gitter {
    Q_OBJECT

public:
    explicit F_SIM_RAM(Befehls_Weg Weg = {});

protected:
    void Zeile_Gezeigt(const QModelIndex& Ort) override;
    void resizeEvent(QResizeEvent* Ereignis) override;

private:
    QLabel* InfoText; // what the current row is
};

} // namespace varnholt
