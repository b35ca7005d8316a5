// The form `HexSuche`.
#include "ui/HexSuche_Fenster.h"

#include "core/keys.h"
#include "core/shared_state.h"
#include "editors/HexSuche.h"
#include "ui/Qt_Text.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <utility>

namespace varnholt {
namespace {

constexpr int Feld_Breite  = 300; // device-independent pixels
constexpr int Knopf_Breite = 120;

} // namespace

HexSuche_Fenster::HexSuche_Fenster(Befehls_Weg Ausfuehren, QWidget* Eltern)
    : Such_Formular("HexSuche", std::move(Ausfuehren), Eltern)
{
    O_Hex    = Teil<QRadioButton>("O_Hex");
    O_ASCII  = Teil<QRadioButton>("O_ASCII");
    InfoText = Teil<QLabel>("InfoText");
    InfoText->setWordWrap(true);
    Anordnen();
    connect(Suchbegriff, &QLineEdit::textChanged, this, [](const QString& Neuer) {
        HexSuche::Suchbegriff_Change(Nach_Std(Neuer));
    });
    connect(O_ASCII, &QRadioButton::toggled, this, [](bool Gesetzt) {
        Gesetzt ? HexSuche::O_ASCII_Click() : HexSuche::O_Hex_Click();
    });
}

void HexSuche_Fenster::Anordnen()
{
    auto* Gitter = new QGridLayout(this);
    Gitter->setContentsMargins(14, 14, 14, 14);
    Gitter->setHorizontalSpacing(14);
    Gitter->addWidget(Suchbegriff, 0, 0);
    Gitter->addWidget(O_Hex, 1, 0);
    Gitter->addWidget(O_ASCII, 2, 0);
    Gitter->addWidget(InfoText, 3, 0, 1, 2);
    Gitter->addWidget(Suchen_OK, 0, 1);
    Gitter->addWidget(Suchen_Abbrechen, 1, 1);
    Gitter->setSizeConstraint(QLayout::SetFixedSize);
    for (auto* b : {Suchen_OK, Suchen_Abbrechen})
        b->setMinimumWidth(Knopf_Breite);
    Suchbegriff->setMinimumWidth(Feld_Breite);
    QWidget* Vorher = Suchbegriff;
    for (QWidget* w : QList<QWidget*>{O_Hex, O_ASCII, Suchen_OK, Suchen_Abbrechen})
        setTabOrder(std::exchange(Vorher, w), w);
}

bool             HexSuche_Fenster::Passt() const { return Modus == Modus_Hex; }
std::string_view HexSuche_Fenster::Text(std::string_view Name) const
{
    return HexSuche::Text(Name);
}
void HexSuche_Fenster::Suchen() { HexSuche::Suchen_OK_Click(); }
void HexSuche_Fenster::Enter_Gedrueckt() { HexSuche::Suchbegriff_KeyPress(Taste_Enter); }
void HexSuche_Fenster::Abbrechen() { HexSuche::Suchen_Abbrechen_Click(); }

void HexSuche_Fenster::Felder_Zeigen()
{
    {
        const QSignalBlocker Still(Suchbegriff);
        if (const QString Neu = Qt_Text(HexSuche_Form.Suchbegriff); Neu != Suchbegriff->text())
            Suchbegriff->setText(Neu);
    }
    Suchbegriff->setAccessibleName(windowTitle());
    (HexSuche_Form.O_ASCII ? O_ASCII : O_Hex)->setChecked(true);
    Fokus_Zeigen(HexSuche_Form.Fokus_Stand, *Suchbegriff);
}

} // namespace varnholt
