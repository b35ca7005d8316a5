// The window `F_SIM_SFR`: the special function registers of the chosen processor.
#pragma once

#include "ui/Sim_Gitter.h"

namespace varnholt {

// One row for each register that the processor file declares, in its order.
class SFR_Modell : public Sim_Bit_Modell {
    Q_OBJECT

public:
    explicit SFR_Modell(QObject* Eltern = nullptr);
    int         rowCount(const QModelIndex& Eltern) const override;
    QString     Name_Von(int Zeile) const override;
    QModelIndex Ort_Von(int Adresse) const override;

protected:
    int                      Index_Von(int Zeile) const override;
    int                      Adresse(int Zeile) const override;
    std::vector<QModelIndex> Orte_Von(int Index) const override;
    void                     Aufbau_Melden() override;

private:
    std::vector<SFR_Zeile> Zeilen{}; // as the view knows them
};

class F_SIM_SFR : public Sim_Gitter {
    Q_OBJECT

public:
    explicit F_SIM_SFR(Befehls_Weg Weg = {});
};

} // namespace varnholt
