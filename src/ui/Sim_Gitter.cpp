// What the three memory views have in common.
#include "ui/Sim_Gitter.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "language/HexDez.h"
#include "ui/Qt_Text.h"

#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace varnholt {
namespace {

constexpr int Luft         = 4;  // pixels round the text of a cell
constexpr int Rand         = 2;  // round the strip
constexpr int Getippt_Lang = 64; // characters that a field takes

QFont Ziffern_Schrift() { return QFontDatabase::systemFont(QFontDatabase::FixedFont); }

QFont Fett(QFont Schrift)
{
    Schrift.setBold(true);
    return Schrift;
}

QString Bit_Text(std::uint8_t Wert)
{
    QString Text;
    for (int i = 7; i >= 0; --i) {
        Text += (Wert >> i & 1) != 0 ? u'1' : u'0';
        if (i > 0)
            Text += u' ';
    }
    return Text;
}

// The widest text of a field of the strip; empty: it takes the rest of the width.
QString Breitester(Sim_Gitter::Streifen Was)
{
    switch (Was) {
    case Sim_Gitter::Streifen::Adresse:
    case Sim_Gitter::Streifen::Hex:
        return QStringLiteral("0000h");
    case Sim_Gitter::Streifen::Bits:
        return Bit_Text(0) + QStringLiteral(" ");
    case Sim_Gitter::Streifen::Name:
        break;
    }
    return {};
}

Text_Paar Feld_Name(Sim_Gitter::Streifen Was)
{
    switch (Was) {
    case Sim_Gitter::Streifen::Adresse:
        return {"Adresse (hexadezimal)", "Address (hexadecimal)"};
    case Sim_Gitter::Streifen::Name:
        return {"Name", "Name"};
    case Sim_Gitter::Streifen::Hex:
        return {"Wert (hexadezimal), Enter übernimmt", "Value (hexadecimal), Enter takes it over"};
    case Sim_Gitter::Streifen::Bits:
        break;
    }
    return {"Bits 7 bis 0, Enter übernimmt", "Bits 7 to 0, Enter takes them over"};
}

Text_Paar Tafel_Name(Sicht Welche)
{
    switch (Welche) {
    case Sicht::RAM:
        return {"Internes RAM", "Internal RAM"};
    case Sicht::SFR:
        return {"Sonderfunktionsregister", "Special function registers"};
    case Sicht::EXRAM:
        break;
    }
    return {"Externes RAM", "External RAM"};
}

} // namespace

Sim_Farben_T Sim_Farben_Geaendert(const QPalette& Palette)
{
    return Palette.color(QPalette::Base).lightness() < 128
               ? Sim_Farben_T{QColor(0x55, 0x36, 0x12), QColor(0xFF, 0xD0, 0x90)}
               : Sim_Farben_T{QColor(0xFF, 0xE2, 0xB8), QColor(0x8A, 0x1C, 0x00)};
}

// --- drawing ---

void Sim_Zeichner::paint(QPainter*                   Maler,
                         const QStyleOptionViewItem& Wie,
                         const QModelIndex&          Ort) const
{
    const bool Neu      = Modell->Geaendert(Ort);
    const bool Gewaehlt = Wie.state.testFlag(QStyle::State_Selected);
    const auto Gruppe =
        Wie.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    QColor Text = Wie.palette.color(Gruppe, QPalette::Text);
    if (Gewaehlt) {
        Maler->fillRect(Wie.rect, Wie.palette.color(Gruppe, QPalette::Highlight));
        Text = Wie.palette.color(Gruppe, QPalette::HighlightedText);
    } else if (Neu) {
        const Sim_Farben_T f = Sim_Farben_Geaendert(Wie.palette);
        Maler->fillRect(Wie.rect, f.Grund);
        Text = f.Text;
    }
    const bool Links  = Modell->Beschriftet(Ort);
    const auto Platz  = Wie.rect.adjusted(Links ? Luft : 0, 0, Links ? -Luft : 0, 0);
    QString    Inhalt = Modell->Text(Ort);
    if (Links)
        Inhalt = Wie.fontMetrics.elidedText(Inhalt, Qt::ElideRight, Platz.width());
    Maler->setFont(Neu ? Fett(Wie.font) : Wie.font);
    Maler->setPen(Text);
    Maler->drawText(Platz, (Links ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter, Inhalt);
}

QSize Sim_Zeichner::sizeHint(const QStyleOptionViewItem& Wie, const QModelIndex& Ort) const
{
    const QFontMetrics Mass(Fett(Wie.font));
    return {Mass.horizontalAdvance(Modell->Breitester(Ort.column())) + 2 * Luft,
            Mass.height() + Luft / 2};
}

// --- grid ---

Sim_Tafel::Sim_Tafel(Sim_Modell* Neues, QWidget* Eltern) : QTableView(Eltern), Modell(Neues)
{
    setObjectName(QStringLiteral("Feld"));
    setFont(Ziffern_Schrift());
    setItemDelegate(new Sim_Zeichner(Modell, this));
    setModel(Modell);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setFrameShape(NoFrame);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    Masse_Nehmen();
}

void Sim_Tafel::Masse_Nehmen()
{
    const int Zeile = QFontMetrics(Fett(font())).height() + Luft / 2;
    verticalHeader()->setMinimumSectionSize(Zeile);
    verticalHeader()->setDefaultSectionSize(Zeile);
    horizontalHeader()->setMinimumSectionSize(Luft);
    Spalten_Verteilen();
}

// Each column as wide as its widest text; what is left goes to the columns that take a share.
void Sim_Tafel::Spalten_Verteilen()
{
    const QFontMetrics Mass(Fett(font()));
    const int          Anzahl = Modell->columnCount({});
    std::vector<int>   Breiten;
    int                Rest  = viewport()->width();
    int                Teile = 0;
    for (int c = 0; c < Anzahl; ++c) {
        const QString Text  = Modell->Breitester(c);
        const QString Kopf  = Modell->Ueberschrift(c);
        const int     Weite = std::max(Mass.horizontalAdvance(Text), Mass.horizontalAdvance(Kopf));
        Breiten.push_back(Weite + 2 * Luft + 1);
        Rest -= Breiten.back();
        Teile += Modell->Anteil(c);
    }
    for (int c = 0; c < Anzahl; ++c)
        horizontalHeader()->resizeSection(
            c,
            Breiten[static_cast<std::size_t>(c)] +
                (Rest > 0 ? Rest * Modell->Anteil(c) / std::max(Teile, 1) : 0));
}

void Sim_Tafel::currentChanged(const QModelIndex& Neue, const QModelIndex& Alte)
{
    QTableView::currentChanged(Neue, Alte);
    emit Zelle_Gewechselt(Neue);
}

// Only the left button has a second click; with the others it is one more press.
void Sim_Tafel::mouseDoubleClickEvent(QMouseEvent* Ereignis)
{
    if (Ereignis->button() == Qt::LeftButton)
        QTableView::mouseDoubleClickEvent(Ereignis);
    else
        mousePressEvent(Ereignis);
}

void Sim_Tafel::resizeEvent(QResizeEvent* Ereignis)
{
    QTableView::resizeEvent(Ereignis);
    Spalten_Verteilen();
}

void Sim_Tafel::changeEvent(QEvent* Ereignis)
{
    QTableView::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::FontChange && model() != nullptr)
        Masse_Nehmen();
}

// --- window ---

Sim_Gitter::Sim_Gitter(Sicht                 Neue_Sicht,
                       Sim_Modell*           Neues,
                       std::vector<Streifen> Felder,
                       Befehls_Weg           Neuer_Weg)
    : Welche(Neue_Sicht), Modell(Neues), Arten(std::move(Felder)), Weg(std::move(Neuer_Weg)),
      Feld(new Sim_Tafel(Modell, this)), Anordnung(new QVBoxLayout(this))
{
    Modell->setParent(this);
    Anordnung->setContentsMargins(0, 0, 0, 0);
    Anordnung->setSpacing(0);
    auto* Reihe = new QHBoxLayout;
    Reihe->setContentsMargins(Rand, Rand, Rand, Rand);
    Reihe->setSpacing(Rand);
    Streifen_Bauen(Reihe);
    Anordnung->addLayout(Reihe);
    Anordnung->addWidget(Feld, 1);
    setFocusProxy(Feld);
    Beschriften();
    connect(Feld, &Sim_Tafel::Zelle_Gewechselt, this, [this] { Streifen_Fuellen(true); });
    connect(Feld, &QTableView::clicked, this, &Sim_Gitter::Zelle_Geklickt);
    connect(Feld, &QTableView::doubleClicked, this, &Sim_Gitter::Zelle_Geklickt); // the second one
}

void Sim_Gitter::Streifen_Bauen(QHBoxLayout* Reihe)
{
    for (std::size_t i = 0; i < Arten.size(); ++i) {
        const Streifen Was  = Arten[i];
        auto*          Neue = new QLineEdit(this);
        Neue->setObjectName(QStringLiteral("T_Edit_%1").arg(i));
        Neue->setFont(Ziffern_Schrift());
        Neue->setMaxLength(Getippt_Lang);
        Neue->setReadOnly(Was == Streifen::Name);
        const QString Muster = Breitester(Was);
        if (!Muster.isEmpty())
            Neue->setFixedWidth(Neue->fontMetrics().horizontalAdvance(Muster) + 4 * Luft);
        connect(Neue, &QLineEdit::returnPressed, this, [this, Was] { Enter(Was); });
        Reihe->addWidget(Neue);
        T_Edit.push_back(Neue);
    }
    if (std::find(Arten.begin(), Arten.end(), Streifen::Name) == Arten.end())
        Reihe->addStretch(1);
}

void Sim_Gitter::Beschriften()
{
    if (std::exchange(Gezeigte_Sprache, Sprache) == Sprache)
        return;
    Feld->setAccessibleName(Qt_Text(In_Sprache(Tafel_Name(Welche))));
    for (std::size_t i = 0; i < T_Edit.size(); ++i) {
        const QString Text = Qt_Text(In_Sprache(Feld_Name(Arten[i])));
        T_Edit[i]->setToolTip(Text);
        T_Edit[i]->setAccessibleName(Text);
    }
    Zeile_Gezeigt(Feld->currentIndex());
}

// --- following the state ---

void Sim_Gitter::Nachziehen()
{
    if (!isVisible())
        return;
    Beschriften();
    Modell->Nachziehen();
    if (std::exchange(Erste_Zelle, Sim_Ansichten.Erste_Zelle) != Sim_Ansichten.Erste_Zelle)
        Erste_Zelle_Waehlen();
    if (std::exchange(Gezeigter_Stand, Sim_Ansichten.Stand) != Sim_Ansichten.Stand)
        Streifen_Fuellen(false);
}

void Sim_Gitter::showEvent(QShowEvent* Ereignis)
{
    QWidget::showEvent(Ereignis);
    Nachziehen();
}

void Sim_Gitter::Erste_Zelle_Waehlen()
{
    Feld->setCurrentIndex(Modell->index(0, 0));
    Feld->scrollToTop();
    Streifen_Fuellen(true);
}

// What the user is typing stays until he is done with it, or goes to another cell.
void Sim_Gitter::Streifen_Fuellen(bool Auch_Getipptes)
{
    const QModelIndex Ort = Feld->currentIndex();
    for (std::size_t i = 0; i < T_Edit.size(); ++i) {
        const QString Text = Streifen_Text(Arten[i], Ort);
        if ((Auch_Getipptes || !T_Edit[i]->isModified()) && T_Edit[i]->text() != Text)
            T_Edit[i]->setText(Text);
        if (Auch_Getipptes)
            T_Edit[i]->setModified(false);
    }
    Zeile_Gezeigt(Ort);
}

QString Sim_Gitter::Streifen_Text(Streifen Was, const QModelIndex& Ort) const
{
    if (!Ort.isValid())
        return {};
    switch (Was) {
    case Streifen::Adresse:
        return Modell->Adresse_Von(Ort);
    case Streifen::Name:
        return Modell->Name_Von(Ort.row());
    case Streifen::Hex:
        return Hex_Ziffern(Modell->Byte_Von(Ort), 2);
    case Streifen::Bits:
        break;
    }
    return Bit_Text(Modell->Byte_Von(Ort));
}

// --- edits ---

QLineEdit* Sim_Gitter::Feld_Von(Streifen Was) const
{
    const auto Platz = std::find(Arten.begin(), Arten.end(), Was) - Arten.begin();
    return T_Edit[static_cast<std::size_t>(Platz)];
}

std::string Sim_Gitter::Getippt(Streifen Was) const { return Nach_1252(Feld_Von(Was)->text()); }

void Sim_Gitter::Ausfuehren(const std::function<void()>& Befehl)
{
    Befehl_Ausfuehren(Weg, Befehl);
    Nachziehen();
}

void Sim_Gitter::Zelle_Geklickt(const QModelIndex& Ort)
{
    Ausfuehren(
        [this, Ort] { Bit_Umschalten(Welche, Nach_1252(Modell->Adresse_Von(Ort)), Ort.column()); });
}

// What was typed is done with: from here on the strip follows the cell again. At full speed the
// cell is older than what was typed, which therefore stays.
void Sim_Gitter::Enter(Streifen Was)
{
    const std::string Adresse = Getippt(Streifen::Adresse);
    const std::string Wert    = Getippt(Was);
    for (QLineEdit* t : T_Edit)
        t->setModified(false);
    if (Was == Streifen::Hex)
        Ausfuehren([&] { Hex_Uebernehmen(Welche, Adresse, Wert); });
    else if (Was == Streifen::Bits)
        Ausfuehren([&] { Bits_Uebernehmen(Welche, Adresse, Wert); });
    Zur_Adresse(static_cast<int>(Hex_zu_Wert(Adresse)));
    Feld_Von(Was)->selectAll(); // the next value takes its place
}

void Sim_Gitter::Zur_Adresse(int Adresse)
{
    const QModelIndex Ort  = Modell->Ort_Von(Adresse);
    const QModelIndex Hier = Feld->currentIndex();
    if (!Ort.isValid() || (Hier.isValid() && Modell->Adresse_Von(Ort) == Modell->Adresse_Von(Hier)))
        return;
    const bool Zu_Sehen = Feld->viewport()->rect().contains(Feld->visualRect(Ort));
    Feld->setCurrentIndex(Ort);
    if (!Zu_Sehen) // with its neighbours
        Feld->scrollTo(Ort, QAbstractItemView::PositionAtCenter);
}

} // namespace varnholt
