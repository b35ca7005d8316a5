// The window `F_SIM_RAM`.
#include "ui/F_SIM_RAM.h"

#include "core/messages.h"
#include "ui/Qt_Text.h"

#include <QLabel>
#include <QVBoxLayout>

#include <fmt/format.h>

namespace varnholt {
namespace {

constexpr int Zeilen_RAM = 256;
constexpr int Bits_Ab    = 0x20; // bytes whose bits have addresses of their own
constexpr int Bits_Bis   = 0x2F;
constexpr int Oberes_Ab  = 0x80;
constexpr int Baenke_Bis = 0x1F;
constexpr int Rand       = 4; // pixels round the text

constexpr int Hoehe_Mit_Info = 200; // pixels

// What a place of the RAM is used for.
Text_Paar Bedeutung(int Adresse)
{
    if (Adresse <= Baenke_Bis)
        return {fmt::format("Bank {}, R{}", Adresse / 8, Adresse % 8),
                fmt::format("bank {}, R{}", Adresse / 8, Adresse % 8)};
    if (Adresse >= Bits_Ab && Adresse <= Bits_Bis) {
        const int Erstes = (Adresse - Bits_Ab) * 8;
        return {fmt::format("Bits {:02X}h bis {:02X}h", Erstes, Erstes + 7),
                fmt::format("bits {:02X}h to {:02X}h", Erstes, Erstes + 7)};
    }
    if (Adresse >= Oberes_Ab)
        return {"nur indirekt adressierbar", "indirect access only"};
    return {"direkt und indirekt adressierbar", "direct and indirect access"};
}

} // namespace

RAM_Modell::RAM_Modell(QObject* Eltern)
    : Sim_Bit_Modell(Sim_Ansichten.RAM, Sim_Ansichten.RAM_Zuvor, Eltern)
{
}

int RAM_Modell::rowCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : Zeilen_RAM;
}

int RAM_Modell::Index_Von(int Zeile) const { return Indirekt_Index(Zeile); }

QString RAM_Modell::Name_Von(int Zeile) const
{
    return Qt_Aus_1252(Sim_Ansichten.RAM_Namen[static_cast<std::size_t>(Zeile)]);
}

QModelIndex RAM_Modell::Ort_Von(int Adresse) const
{
    return Adresse >= 0 && Adresse < Zeilen_RAM ? index(Adresse, Hex) : QModelIndex();
}

std::vector<QModelIndex> RAM_Modell::Orte_Von(int Index) const
{
    if (Index >= Oberes_Ab && Index < Indirekt_Index(Oberes_Ab))
        return {}; // the registers stand in another window
    return {index(Index < Oberes_Ab ? Index : Index - Oberes_Ab, Hex)};
}

void RAM_Modell::Aufbau_Melden()
{
    for (int r = 0; r < Zeilen_RAM; ++r)
        emit dataChanged(index(r, Name), index(r, Name));
}

F_SIM_RAM::F_SIM_RAM(Befehls_Weg Neuer_Weg)
    : Sim_Gitter(Sicht::RAM,
                 new RAM_Modell,
                 {Streifen::Adresse, Streifen::Name, Streifen::Hex, Streifen::Bits},
                 std::move(Neuer_Weg)),
      InfoText(new QLabel(this))
{
    setWindowTitle(QStringLiteral("RAM Register"));
    InfoText->setObjectName(QStringLiteral("InfoText"));
    InfoText->setMargin(Rand);
    InfoText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Spalte()->addWidget(InfoText);
}

// In a low window the rows come first.
void F_SIM_RAM::resizeEvent(QResizeEvent* Ereignis)
{
    Sim_Gitter::resizeEvent(Ereignis);
    InfoText->setVisible(height() >= Hoehe_Mit_Info);
}

void F_SIM_RAM::Zeile_Gezeigt(const QModelIndex& Ort)
{
    if (!Ort.isValid())
        return InfoText->clear();
    const int         Wert           = Das_Modell()->Byte_Von(Ort);
    const int         Mit_Vorzeichen = Wert < 128 ? Wert : Wert - 256;
    const std::string Was            = In_Sprache(Bedeutung(Ort.row()));
    InfoText->setText(Qt_Text(
        fmt::format("{:02X}h = {}: {} ({}), {}", Ort.row(), Ort.row(), Wert, Mit_Vorzeichen, Was)));
}

} // namespace varnholt
