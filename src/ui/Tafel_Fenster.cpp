// The windows `Bef` and `Basic_Bef`.
#include "ui/Tafel_Fenster.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "language/Befehls_Beschreibung.h"
#include "ui/Qt_Text.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Zell_Rand   = 8; // pixels left and right of a text
constexpr int Zeilen_Rand = 4; // above and below it, together

} // namespace

// --- model ---

Tafel_Modell::Tafel_Modell(const Tafel_T&               Gezeigte,
                           std::span<const Festes_Paar> Ueberschriften,
                           Erklaerung_T                 Erklaerung,
                           QObject*                     Eltern)
    : QAbstractTableModel(Eltern), Tafel(Gezeigte), Spalten(Ueberschriften), Erklaeren(Erklaerung)
{
}

int Tafel_Modell::rowCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : Zeilen;
}

int Tafel_Modell::columnCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : static_cast<int>(Spalten.size());
}

QVariant Tafel_Modell::data(const QModelIndex& Ort, int Rolle) const
{
    const auto Zeile = static_cast<std::size_t>(Ort.row());
    if (!Ort.isValid() || Zeile >= Tafel.Zeilen.size())
        return {};
    if (Rolle == Qt::DisplayRole)
        return Qt_Aus_1252(Tafel.Zeilen[Zeile][static_cast<std::size_t>(Ort.column())]);
    if (Rolle == Qt::ToolTipRole)
        return Qt_Text(Erklaeren(Tafel.Zeilen[Zeile]));
    return {};
}

QVariant Tafel_Modell::headerData(int Nummer, Qt::Orientation Richtung, int Rolle) const
{
    const bool Da = Nummer >= 0 && Nummer < columnCount();
    if (Richtung != Qt::Horizontal || !Da)
        return {};
    if (Rolle == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    if (Rolle != Qt::DisplayRole)
        return {};
    return Qt_Text(Fester_Text(Spalten[static_cast<std::size_t>(Nummer)]));
}

bool Tafel_Modell::Nachziehen()
{
    if (Gezeigte_Sprache != Sprache) {
        Gezeigte_Sprache = Sprache;
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    if (Gezeigter_Stand == Tafel.Stand && Zeilen == static_cast<int>(Tafel.Zeilen.size()))
        return false;
    beginResetModel();
    Gezeigter_Stand = Tafel.Stand;
    Zeilen          = static_cast<int>(Tafel.Zeilen.size());
    endResetModel();
    return true;
}

// --- window ---

Tafel_Fenster::Tafel_Fenster(const Tafel_T&               Gezeigte,
                             std::span<const Festes_Paar> Ueberschriften,
                             Tafel_Modell::Erklaerung_T   Erklaerung,
                             QWidget*                     Eltern)
    : QTableView(Eltern), Tafel(Gezeigte),
      Modell(new Tafel_Modell(Gezeigte, Ueberschriften, Erklaerung, this))
{
    setObjectName(QStringLiteral("Feld"));
    setModel(Modell);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setFrameShape(NoFrame);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int Welche) {
        Spalte = Welche;
        emit Feld_Click(0, Welche);
    });
    connect(selectionModel(),
            &QItemSelectionModel::currentChanged,
            this,
            [this](const QModelIndex& Neuer) {
                if (!Angleichen && Neuer.isValid())
                    emit Feld_Click(Neuer.row() + 1, Spalte = Neuer.column());
            });
    Spalten_Anpassen();
}

void Tafel_Fenster::Nachziehen()
{
    const QScopedValueRollback Ruhe(Angleichen, true);
    const bool                 Neu = Modell->Nachziehen();
    if (Neu)
        Spalten_Anpassen();
    if (Neu || Gezeigte_Wahl != Tafel.Wahl_Stand)
        Wahl_Zeigen(Gezeigte_Wahl != Tafel.Wahl_Stand);
    Gezeigte_Wahl = Tafel.Wahl_Stand;
}

void Tafel_Fenster::Wahl_Zeigen(bool Hinrollen)
{
    if (Tafel.Gewaehlt < 0)
        return;
    const QModelIndex Ort = Modell->index(Tafel.Gewaehlt, Spalte);
    selectionModel()->setCurrentIndex(
        Ort, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (Hinrollen && !viewport()->rect().contains(visualRect(Ort)))
        scrollTo(Ort, PositionAtCenter);
}

// Each column is as wide as its longest text.
void Tafel_Fenster::Spalten_Anpassen()
{
    const QFontMetrics Mass(font());
    const QFontMetrics Kopf_Mass(horizontalHeader()->font());
    verticalHeader()->setDefaultSectionSize(Mass.height() + Zeilen_Rand);
    for (int s = 0; s < Modell->columnCount(); ++s) {
        const QString Kopf = Modell->headerData(s, Qt::Horizontal, Qt::DisplayRole).toString();
        const int     Text = Mass.horizontalAdvance(Qt_Aus_1252(Laengster_Text(Tafel, s)));
        setColumnWidth(s, std::max(Text, Kopf_Mass.horizontalAdvance(Kopf)) + 2 * Zell_Rand);
    }
}

void Tafel_Fenster::resizeEvent(QResizeEvent* Ereignis)
{
    QTableView::resizeEvent(Ereignis);
    Spalten_Anpassen();
}

void Tafel_Fenster::changeEvent(QEvent* Ereignis)
{
    QTableView::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::FontChange && Modell != nullptr)
        Spalten_Anpassen();
}

// --- tool tips ---

std::string Bef_Erklaerung(const Tafel_Zeile_T& Zeile)
{
    const int Opcode = Bef_Opcode(Zeile);
    if (Opcode < 0)
        return {};
    const Befehls_Beschreibung_T& b = Beschreibung_Von(static_cast<std::uint8_t>(Opcode));
    const std::string             Text{Sprache == "D" ? b.D : b.E};
    return b.Flaggen.empty()
               ? Text
               : Text + "\n" + In_Sprache({"Flags: ", "Flags: "}) + std::string(b.Flaggen);
}

std::string Basic_Bef_Erklaerung(const Tafel_Zeile_T&)
{
    return In_Sprache({"v, w: Konstante (0 bis 255)\nd, e: Adresse eines Bytes\nb: Adresse eines "
                       "Bits\nRn: Register R0 bis R7\nx: Befehl auf derselben Zeile",
                       "v, w: constant (0 to 255)\nd, e: address of a byte\nb: address of a "
                       "bit\nRn: register R0 to R7\nx: instruction on the same line"});
}

} // namespace varnholt
