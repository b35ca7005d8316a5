// The window `F_SIM_SFR`.
#include "ui/F_SIM_SFR.h"

#include "ui/Qt_Text.h"

#include <algorithm>

namespace varnholt {

SFR_Modell::SFR_Modell(QObject* Eltern)
    : Sim_Bit_Modell(Sim_Ansichten.SFR, Sim_Ansichten.SFR_Zuvor, Eltern)
{
}

int SFR_Modell::rowCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : static_cast<int>(Zeilen.size());
}

int SFR_Modell::Adresse(int Zeile) const { return Zeilen[static_cast<std::size_t>(Zeile)].Adresse; }

// A processor file may name what lies outside the memory.
int SFR_Modell::Index_Von(int Zeile) const
{
    const int a = Adresse(Zeile);
    return a >= 0 && a < Sim_RAM_Groesse ? a : -1;
}

QString SFR_Modell::Name_Von(int Zeile) const
{
    return Qt_Aus_1252(Zeilen[static_cast<std::size_t>(Zeile)].Name);
}

QModelIndex SFR_Modell::Ort_Von(int Gesucht) const
{
    const auto z = std::find_if(Zeilen.begin(), Zeilen.end(), [Gesucht](const SFR_Zeile& i) {
        return i.Adresse == Gesucht;
    });
    return z == Zeilen.end() ? QModelIndex() : index(static_cast<int>(z - Zeilen.begin()), Hex);
}

std::vector<QModelIndex> SFR_Modell::Orte_Von(int Index) const
{
    std::vector<QModelIndex> Orte;
    for (int r = 0; r < rowCount({}); ++r)
        if (Adresse(r) == Index)
            Orte.push_back(index(r, Hex));
    return Orte;
}

void SFR_Modell::Aufbau_Melden()
{
    const std::vector<SFR_Zeile>& Neue = Sim_Ansichten.SFR_Zeilen;
    if (std::equal(Zeilen.begin(),
                   Zeilen.end(),
                   Neue.begin(),
                   Neue.end(),
                   [](const SFR_Zeile& a, const SFR_Zeile& b) {
                       return a.Adresse == b.Adresse && a.Name == b.Name;
                   }))
        return; // a change of the register bank
    beginResetModel();
    Zeilen = Neue;
    endResetModel();
}

F_SIM_SFR::F_SIM_SFR(Befehls_Weg Neuer_Weg)
    : Sim_Gitter(Sicht::SFR,
                 new SFR_Modell,
                 {Streifen::Adresse, Streifen::Name, Streifen::Hex, Streifen::Bits},
                 std::move(Neuer_Weg))
{
    setWindowTitle(QStringLiteral("SFR Register"));
}

} // namespace varnholt
