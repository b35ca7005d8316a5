// The grid of a memory view as an item model.
#include "ui/Sim_Modell.h"

#include "core/messages.h"
#include "simulator/Sim_Ansichten.h"
#include "ui/Qt_Text.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace varnholt {
namespace {

constexpr std::size_t Einzeln_Hoechstens = 48; // changed bytes; more are told as one piece

} // namespace

QString Hex_Ziffern(int Wert, int Stellen)
{
    return QString::number(Wert, 16).toUpper().rightJustified(Stellen, u'0');
}

Sim_Modell::Sim_Modell(std::span<const std::uint8_t> Neue_Werte,
                       std::span<const std::uint8_t> Alte_Werte,
                       QObject*                      Eltern)
    : QAbstractTableModel(Eltern), Werte(Neue_Werte), Zuvor(Alte_Werte),
      Gemeldet(Werte.begin(), Werte.end()), Gemeldet_Zuvor(Zuvor.begin(), Zuvor.end())
{
}

// --- what a cell shows ---

QString Sim_Modell::Text(const QModelIndex& Ort) const
{
    const Sim_Zelle_T z = Zelle(Ort.row(), Ort.column());
    if (z.Index < 0)
        return Beschriftung(Ort.row(), Ort.column());
    const std::uint8_t Wert = Werte[static_cast<std::size_t>(z.Index)];
    if (z.Maske == 0xFF)
        return Hex_Ziffern(Wert, 2);
    return (Wert & z.Maske) != 0 ? QStringLiteral("1") : QStringLiteral("0");
}

bool Sim_Modell::Geaendert(const QModelIndex& Ort) const
{
    const Sim_Zelle_T z = Zelle(Ort.row(), Ort.column());
    const auto        i = static_cast<std::size_t>(std::max(z.Index, 0));
    return z.Index >= 0 && ((Werte[i] ^ Zuvor[i]) & z.Maske) != 0;
}

bool Sim_Modell::Beschriftet(const QModelIndex& Ort) const
{
    return Zelle(Ort.row(), Ort.column()).Index < 0;
}

std::uint8_t Sim_Modell::Byte_Von(const QModelIndex& Ort) const
{
    const int Index = Byte_Index(Ort);
    return Index < 0 ? std::uint8_t{0} : Werte[static_cast<std::size_t>(Index)];
}

QString Sim_Modell::Name_Von(int) const { return {}; }

QVariant Sim_Modell::data(const QModelIndex& Ort, int Rolle) const
{
    if (!checkIndex(Ort, CheckIndexOption::IndexIsValid))
        return {};
    switch (Rolle) {
    case Qt::DisplayRole:
        return Text(Ort);
    case Qt::ToolTipRole:
        return Name_Von(Ort.row());
    case Qt::TextAlignmentRole:
        return (Qt::AlignVCenter | (Beschriftet(Ort) ? Qt::AlignLeft : Qt::AlignHCenter)).toInt();
    case Qt::AccessibleDescriptionRole:
        return Geaendert(Ort) ? Qt_Text(In_Sprache({"geändert", "changed"})) : QString();
    case Geaendert_Rolle:
        return Geaendert(Ort);
    default:
        return {};
    }
}

QVariant Sim_Modell::headerData(int Nummer, Qt::Orientation Richtung, int Rolle) const
{
    const bool Kopf = Richtung == Qt::Horizontal && Nummer >= 0 && Nummer < columnCount({});
    return Kopf && Rolle == Qt::DisplayRole ? QVariant(Ueberschrift(Nummer)) : QVariant();
}

Qt::ItemFlags Sim_Modell::flags(const QModelIndex& Ort) const
{
    return Ort.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                         : Qt::NoItemFlags;
}

// --- changes ---

void Sim_Modell::Nachziehen()
{
    if (std::exchange(Aufbau, Sim_Ansichten.Aufbau) != Sim_Ansichten.Aufbau)
        Aufbau_Melden();
    if (std::exchange(Stand, Sim_Ansichten.Stand) != Sim_Ansichten.Stand)
        Werte_Melden();
}

void Sim_Modell::Werte_Melden()
{
    if (std::memcmp(Werte.data(), Gemeldet.data(), Werte.size()) == 0 &&
        std::memcmp(Zuvor.data(), Gemeldet_Zuvor.data(), Zuvor.size()) == 0)
        return;
    std::vector<int> Andere;
    for (std::size_t i = 0; i < Werte.size(); ++i)
        if (Werte[i] != Gemeldet[i] || Zuvor[i] != Gemeldet_Zuvor[i])
            Andere.push_back(static_cast<int>(i));
    if (Andere.size() <= Einzeln_Hoechstens)
        for (const int i : Andere)
            Byte_Melden(i);
    std::ranges::copy(Werte, Gemeldet.begin());
    std::ranges::copy(Zuvor, Gemeldet_Zuvor.begin());
    if (Andere.size() > Einzeln_Hoechstens && rowCount({}) > 0)
        emit dataChanged(index(0, 0), index(rowCount({}) - 1, columnCount({}) - 1));
}

// Whether the view still shows another digit, or another mark.
bool Sim_Modell::Anders(const Sim_Zelle_T& z) const
{
    const auto i      = static_cast<std::size_t>(z.Index);
    const int  Wert   = Werte[i] ^ Gemeldet[i];
    const bool Jetzt  = ((Werte[i] ^ Zuvor[i]) & z.Maske) != 0;
    const bool Vorher = ((Gemeldet[i] ^ Gemeldet_Zuvor[i]) & z.Maske) != 0;
    return (Wert & z.Maske) != 0 || Jetzt != Vorher;
}

void Sim_Modell::Byte_Melden(int Index)
{
    for (const QModelIndex& Ort : Orte_Von(Index))
        for (int c = Ort.column(); c < columnCount({}); ++c) {
            const Sim_Zelle_T z = Zelle(Ort.row(), c);
            if (z.Index != Index)
                break;
            if (Anders(z)) {
                const QModelIndex Eine = index(Ort.row(), c);
                emit              dataChanged(Eine, Eine);
            }
        }
}

// --- address, name, value and bits ---

int Sim_Bit_Modell::columnCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : Spalten_Anzahl;
}

QString Sim_Bit_Modell::Adresse_Von(const QModelIndex& Ort) const
{
    return Hex_Ziffern(Adresse(Ort.row()), 2);
}

int Sim_Bit_Modell::Byte_Index(const QModelIndex& Ort) const { return Index_Von(Ort.row()); }

Sim_Zelle_T Sim_Bit_Modell::Zelle(int Zeile, int Spalte) const
{
    if (Spalte < Hex)
        return {};
    const auto Maske = Spalte == Hex ? 0xFFU : 1U << (Bit_0 - Spalte);
    return {Index_Von(Zeile), static_cast<std::uint8_t>(Maske)};
}

QString Sim_Bit_Modell::Beschriftung(int Zeile, int Spalte) const
{
    if (Spalte > Name)
        return {}; // a register outside the memory
    return Spalte == Adr ? Hex_Ziffern(Adresse(Zeile), 2) : Name_Von(Zeile);
}

QString Sim_Bit_Modell::Breitester(int Spalte) const
{
    switch (Spalte) {
    case Adr:
    case Hex:
        return QStringLiteral("Adr");
    case Name:
        return QStringLiteral("RCAP2H");
    default:
        return QStringLiteral("0");
    }
}

int Sim_Bit_Modell::Anteil(int Spalte) const { return Spalte == Name ? 1 : 0; }

QString Sim_Bit_Modell::Ueberschrift(int Spalte) const
{
    switch (Spalte) {
    case Adr:
        return QStringLiteral("Adr");
    case Name:
        return QStringLiteral("Name");
    case Hex:
        return QStringLiteral("Hex");
    default:
        return QString::number(Bit_0 - Spalte);
    }
}

} // namespace varnholt
