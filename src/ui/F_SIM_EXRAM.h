// The window `F_SIM_EXRAM`: the external RAM, eight bytes a row.
#pragma once

#include "ui/Sim_Gitter.h"

namespace varnholt {

class EXRAM_Modell : public Sim_Modell {
    Q_OBJECT

public:
    explicit EXRAM_Modell(QObject* Eltern = nullptr);
    int         rowCount(const QModelIndex& Eltern) const override;
    int         columnCount(const QModelIndex& Eltern) const override;
    QString     Adresse_Von(const QModelIndex& Ort) const override;
    QModelIndex Ort_Von(int Adresse) const override;
    QString     Breitester(int Spalte) const override;
    int         Anteil(int Spalte) const override;
    QString     Ueberschrift(int Spalte) const override;

protected:
    Sim_Zelle_T              Zelle(int Zeile, int Spalte) const override;
    int                      Byte_Index(const QModelIndex& Ort) const override;
    QString                  Beschriftung(int Zeile, int Spalte) const override;
    std::vector<QModelIndex> Orte_Von(int Index) const override;
    void                     Aufbau_Melden() override {} // nothing here has a name
};

class F_SIM_EXRAM : public Sim_Gitter {
    Q_OBJECT

public:
    explicit F_SIM_EXRAM(Befehls_Weg Weg = {});
};

} // namespace varnholt
