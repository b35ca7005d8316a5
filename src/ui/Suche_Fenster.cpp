// The form `Suche`.
#include "ui/Suche_Fenster.h"

#include "core/shared_state.h"
#include "editors/Suche.h"
#include "ui/Qt_Text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

namespace varnholt {
namespace {

constexpr int Feld_Breite  = 280; // device-independent pixels
constexpr int Knopf_Breite = 120;

// A key that changes a field, and not one that leads out of it.
bool Schreibt(const QKeyEvent& Taste)
{
    return Taste.key() == Qt::Key_Backspace || Taste.key() == Qt::Key_Delete ||
           (!Taste.text().isEmpty() && Taste.text().front().isPrint());
}

void Setzen(QCheckBox& Feld, bool Gesetzt)
{
    const QSignalBlocker Still(&Feld);
    Feld.setChecked(Gesetzt);
}

void Setzen(QLineEdit& Feld, const std::string& Text)
{
    const QSignalBlocker Still(&Feld);
    if (const QString Neu = Qt_Text(Text); Neu != Feld.text())
        Feld.setText(Neu);
}

} // namespace

Suche_Fenster::Suche_Fenster(Befehls_Weg Ausfuehren, QWidget* Eltern)
    : Such_Formular("Suche", std::move(Ausfuehren), Eltern)
{
    Check1         = Teil<QCheckBox>("Check1");
    Check2         = Teil<QCheckBox>("Check2");
    Check3         = Teil<QCheckBox>("Check3");
    Ersetzen_durch = Teil<QLineEdit>("Ersetzen_durch");
    B_Ersetzen     = Teil<QPushButton>("B_Ersetzen");
    B_AlleErsetzen = Teil<QPushButton>("B_AlleErsetzen");
    Anordnen();
    Verbinden();
}

void Suche_Fenster::Anordnen()
{
    auto* Gitter = new QGridLayout(this);
    Gitter->setContentsMargins(14, 12, 14, 14);
    Gitter->setHorizontalSpacing(14);
    Gitter->setSizeConstraint(QLayout::SetFixedSize);
    const QList<QWidget*> Links{
        Teil<QLabel>("Label1"), Suchbegriff, Check1, Check2, Check3, Ersetzen_durch};
    for (int i = 0; i < Links.size(); ++i)
        Gitter->addWidget(Links[i], i, 0);
    Gitter->addWidget(Suchen_OK, 1, 1);
    Gitter->addWidget(Suchen_Abbrechen, 2, 1);
    Gitter->addWidget(B_Ersetzen, 4, 1);
    Gitter->addWidget(B_AlleErsetzen, 5, 1);
    for (auto* b : {Suchen_OK, Suchen_Abbrechen, B_Ersetzen, B_AlleErsetzen})
        b->setMinimumWidth(Knopf_Breite);
    Suchbegriff->setMinimumWidth(Feld_Breite);
    QWidget* Vorher = Suchbegriff;
    for (QWidget* w : QList<QWidget*>{Check1,
                                      Check2,
                                      Check3,
                                      Ersetzen_durch,
                                      Suchen_OK,
                                      B_Ersetzen,
                                      B_AlleErsetzen,
                                      Suchen_Abbrechen})
        setTabOrder(std::exchange(Vorher, w), w);
}

void Suche_Fenster::Verbinden()
{
    connect(Suchbegriff, &QLineEdit::textChanged, this, [](const QString& Neuer) {
        Suche::Suchbegriff_Change(Nach_Std(Neuer));
    });
    connect(Ersetzen_durch, &QLineEdit::textChanged, this, [this](const QString& Neuer) {
        Suche::Ersetzen_durch_KeyPress(); // pasted or dropped text counts as a key
        Suche::Ersetzen_durch_Change(Nach_Std(Neuer));
        Nachziehen();
    });
    Ersetzen_durch->installEventFilter(this);
    connect(Check1, &QCheckBox::toggled, this, &Suche::Check1_Click);
    connect(Check2, &QCheckBox::toggled, this, &Suche::Check2_Click);
    connect(Check3, &QCheckBox::toggled, this, [this](bool Gesetzt) {
        Suche::Check3_Click(Gesetzt);
        Nachziehen();
    });
    connect(
        B_Ersetzen, &QPushButton::clicked, this, [this] { Ausloesen(&Suche::B_Ersetzen_Click); });
    connect(B_AlleErsetzen, &QPushButton::clicked, this, [this] {
        Ausloesen(&Suche::B_AlleErsetzen_Click);
    });
}

bool Suche_Fenster::eventFilter(QObject* Feld, QEvent* Ereignis)
{
    if (Feld == Ersetzen_durch && Ereignis->type() == QEvent::KeyPress &&
        Schreibt(*static_cast<QKeyEvent*>(Ereignis))) {
        Suche::Ersetzen_durch_KeyPress();
        Nachziehen();
    }
    return Such_Formular::eventFilter(Feld, Ereignis);
}

bool             Suche_Fenster::Passt() const { return Modus == Modus_MC; }
std::string_view Suche_Fenster::Text(std::string_view Name) const { return Suche::Text(Name); }
void             Suche_Fenster::Suchen() { Suche::Suchen_OK_Click(); }
void             Suche_Fenster::Enter_Gedrueckt() { Suche::Suchbegriff_Enter(); }
void             Suche_Fenster::Abbrechen() { Suche::Suchen_Abbrechen_Click(); }

void Suche_Fenster::Felder_Zeigen()
{
    Setzen(*Suchbegriff, Suche_Form.Suchbegriff);
    Setzen(*Ersetzen_durch, Suche_Form.Ersetzen_durch);
    Setzen(*Check1, Suche_Form.Check1);
    Setzen(*Check2, Suche_Form.Check2);
    Setzen(*Check3, Suche_Form.Check3);
    Suchbegriff->setAccessibleName(Qt_Text(Text("Label1")));
    Ersetzen_durch->setAccessibleName(Qt_Text(Text("Check3")));
    Ersetzen_Zeigen();
    QWidget* Ziel = Suchbegriff;
    if (Suche_Form.Fokus_Suchen_OK)
        Ziel = Suchen_OK;
    Fokus_Zeigen(Suche_Form.Fokus_Stand, *Ziel);
}

// The field looks disabled without its tick, but takes the key that sets it.
void Suche_Fenster::Ersetzen_Zeigen()
{
    Check3->setEnabled(Suche::Ersetzen_Angeboten());
    Ersetzen_durch->setEnabled(Suche::Ersetzen_Angeboten());
    B_Ersetzen->setEnabled(Suche::Ersetzen_Aktiv());
    B_AlleErsetzen->setEnabled(Suche::Ersetzen_Aktiv());
    QPalette Farben = palette();
    if (!Suche::Ersetzen_Aktiv())
        for (const auto Rolle : {QPalette::Base, QPalette::Text})
            Farben.setColor(Rolle, Farben.color(QPalette::Disabled, Rolle));
    if (Ersetzen_durch->palette() != Farben)
        Ersetzen_durch->setPalette(Farben);
}

} // namespace varnholt
