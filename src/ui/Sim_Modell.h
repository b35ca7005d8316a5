// The grid of a memory view as an item model: reads what the logic says is shown, and tells its
// view exactly the cells that have become others.
#pragma once

#include <QAbstractTableModel>

#include <cstdint>
#include <span>
#include <vector>

namespace varnholt {

// What a cell shows of a byte: all of it in hexadecimal, or one bit.
struct Sim_Zelle_T {
    int          Index = -1;   // into the view's bytes; -1: the cell shows no byte
    std::uint8_t Maske = 0xFF; // FFh or one bit
};

class Sim_Modell : public QAbstractTableModel {
    Q_OBJECT

public:
    // bool: the cell differs from the last stop.
    static constexpr int Geaendert_Rolle = Qt::UserRole;

    // Werte and Zuvor: the bytes of the view in Sim_Ansichten, now and at the last stop.
    Sim_Modell(std::span<const std::uint8_t> Werte,
               std::span<const std::uint8_t> Zuvor,
               QObject*                      Eltern);

    QVariant      data(const QModelIndex& Ort, int Rolle) const override;
    QVariant      headerData(int Nummer, Qt::Orientation Richtung, int Rolle) const override;
    Qt::ItemFlags flags(const QModelIndex& Ort) const override;

    // The text of a cell; whether it differs from the last stop.
    QString Text(const QModelIndex& Ort) const;
    bool    Geaendert(const QModelIndex& Ort) const;
    bool    Beschriftet(const QModelIndex& Ort) const; // an address or a name, no byte

    // Tells the view what has changed since the last call.
    void Nachziehen();

    // For the strip: the byte that a cell (or its row) stands for, its address, its row's names.
    std::uint8_t    Byte_Von(const QModelIndex& Ort) const;
    virtual QString Adresse_Von(const QModelIndex& Ort) const = 0;
    virtual QString Name_Von(int Zeile) const;
    // The cell with the byte of an address; invalid when the view has none.
    virtual QModelIndex Ort_Von(int Adresse) const = 0;
    // Widest text of a column, and how much of the window's spare width it takes.
    virtual QString Breitester(int Spalte) const   = 0;
    virtual int     Anteil(int Spalte) const       = 0;
    virtual QString Ueberschrift(int Spalte) const = 0;

protected:
    virtual Sim_Zelle_T Zelle(int Zeile, int Spalte) const = 0;
    // The byte that a cell (or its row) stands for; -1: none.
    virtual int Byte_Index(const QModelIndex& Ort) const = 0;
    // Address or name: a cell that shows no byte.
    virtual QString Beschriftung(int Zeile, int Spalte) const = 0;
    // The hexadecimal cells of a byte; its bits stand right of them.
    virtual std::vector<QModelIndex> Orte_Von(int Index) const = 0;
    // Rows or names were built anew.
    virtual void Aufbau_Melden() = 0;

private:
    void Werte_Melden();
    void Byte_Melden(int Index);
    bool Anders(const Sim_Zelle_T& z) const;

    std::span<const std::uint8_t> Werte;
    std::span<const std::uint8_t> Zuvor;
    std::vector<std::uint8_t>     Gemeldet;       // the bytes as the view knows them
    std::vector<std::uint8_t>     Gemeldet_Zuvor; // and those of the last stop
    std::uint64_t                 Stand  = 0;
    std::uint64_t                 Aufbau = 0;
};

// The columns of RAM and SFR view: address, name, value, bits 7 to 0.
class Sim_Bit_Modell : public Sim_Modell {
    Q_OBJECT

public:
    enum Spalten { Adr, Name, Hex, Bit_7, Bit_0 = Bit_7 + 7, Spalten_Anzahl };

    using Sim_Modell::Sim_Modell;
    int     columnCount(const QModelIndex& Eltern) const override;
    QString Adresse_Von(const QModelIndex& Ort) const override;
    QString Breitester(int Spalte) const override;
    int     Anteil(int Spalte) const override;
    QString Ueberschrift(int Spalte) const override;

protected:
    virtual int Index_Von(int Zeile) const = 0; // -1: no such byte
    virtual int Adresse(int Zeile) const   = 0;
    Sim_Zelle_T Zelle(int Zeile, int Spalte) const override;
    int         Byte_Index(const QModelIndex& Ort) const override;
    QString     Beschriftung(int Zeile, int Spalte) const override;
};

// A number in upper case hexadecimal digits with leading zeros.
QString Hex_Ziffern(int Wert, int Stellen);

} // namespace varnholt
