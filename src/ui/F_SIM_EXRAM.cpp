// The window `F_SIM_EXRAM`.
#include "ui/F_SIM_EXRAM.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Bytes_Je_Zeile = 8;
constexpr int Adress_Stellen = 4;
constexpr int Adress_Spalte  = 0;

} // namespace

EXRAM_Modell::EXRAM_Modell(QObject* Eltern)
    : Sim_Modell(Sim_Ansichten.XRAM, Sim_Ansichten.XRAM_Zuvor, Eltern)
{
}

int EXRAM_Modell::rowCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : Sim_XRAM_Groesse / Bytes_Je_Zeile;
}

int EXRAM_Modell::columnCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : 1 + Bytes_Je_Zeile;
}

// The address column stands for the row's first byte.
int EXRAM_Modell::Byte_Index(const QModelIndex& Ort) const
{
    return Ort.row() * Bytes_Je_Zeile + std::max(Ort.column() - 1, 0);
}

QString EXRAM_Modell::Adresse_Von(const QModelIndex& Ort) const
{
    return Hex_Ziffern(Byte_Index(Ort), Adress_Stellen);
}

QModelIndex EXRAM_Modell::Ort_Von(int Adresse) const
{
    return Adresse >= 0 && Adresse < Sim_XRAM_Groesse
               ? index(Adresse / Bytes_Je_Zeile, 1 + Adresse % Bytes_Je_Zeile)
               : QModelIndex();
}

Sim_Zelle_T EXRAM_Modell::Zelle(int Zeile, int Spalte) const
{
    return Spalte == Adress_Spalte ? Sim_Zelle_T{}
                                   : Sim_Zelle_T{Zeile * Bytes_Je_Zeile + Spalte - 1, 0xFF};
}

QString EXRAM_Modell::Beschriftung(int Zeile, int) const
{
    return Hex_Ziffern(Zeile * Bytes_Je_Zeile, Adress_Stellen);
}

std::vector<QModelIndex> EXRAM_Modell::Orte_Von(int Index) const { return {Ort_Von(Index)}; }

QString EXRAM_Modell::Breitester(int Spalte) const
{
    return Spalte == Adress_Spalte ? QStringLiteral("0000") : QStringLiteral("00");
}

int EXRAM_Modell::Anteil(int Spalte) const { return Spalte == Adress_Spalte ? 0 : 1; }

QString EXRAM_Modell::Ueberschrift(int Spalte) const
{
    return Spalte == Adress_Spalte ? QStringLiteral("Adr") : QStringLiteral("+%1").arg(Spalte - 1);
}

F_SIM_EXRAM::F_SIM_EXRAM(Befehls_Weg Neuer_Weg)
    : Sim_Gitter(Sicht::EXRAM,
                 new EXRAM_Modell,
                 {Streifen::Adresse, Streifen::Hex, Streifen::Bits},
                 std::move(Neuer_Weg))
{
    setWindowTitle(QStringLiteral("RAM Register"));
}

} // namespace varnholt
