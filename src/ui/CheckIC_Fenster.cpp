// The form `CheckIC`.
#include "ui/CheckIC_Fenster.h"

#include "core/messages.h"
#include "programmer/CheckIC.h"
#include "ui/Qt_Text.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace varnholt {

CheckIC_Fenster::CheckIC_Fenster(Befehls_Weg Ausfuehren, QWidget* Eltern)
    : QDialog(Eltern), Weg(std::move(Ausfuehren))
{
    setObjectName(QStringLiteral("CheckIC"));
    Frame_IC = new QGroupBox;
    Label2   = new QLabel;
    Zustand  = new QLabel;
    Zustand->setObjectName(QStringLiteral("Zustand_IC"));
    Ergebnis = new QLabel;
    Ergebnis->setObjectName(QStringLiteral("Ergebnis"));
    Ergebnis->setWordWrap(true);
    Ergebnis->setAlignment(Qt::AlignTop);
    // Room for the longest verdict.
    Ergebnis->setMinimumSize(70 * fontMetrics().averageCharWidth(),
                             2 * fontMetrics().lineSpacing());
    auto* Reihe = new QHBoxLayout;
    Reihe->addWidget(Label2);
    Reihe->addWidget(Zustand, 1);
    auto* Innen = new QVBoxLayout(Frame_IC);
    Innen->addLayout(Reihe);
    Innen->addWidget(Ergebnis);
    Tafel = new QPlainTextEdit;
    Tafel->setObjectName(QStringLiteral("Text"));
    Tafel->setReadOnly(true);
    Tafel->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Tafel->setMinimumHeight(240);
    Button_Dat = new QPushButton;
    Button_Dat->setObjectName(QStringLiteral("Button_Dat"));
    Button_OK = new QPushButton;
    Button_OK->setObjectName(QStringLiteral("Button_OK"));
    Button_OK->setDefault(true);
    auto* Knoepfe = new QHBoxLayout;
    Knoepfe->addWidget(Button_Dat);
    Knoepfe->addStretch();
    Knoepfe->addWidget(Button_OK);
    auto* Alles = new QVBoxLayout(this);
    Alles->addWidget(Frame_IC);
    Alles->addWidget(Tafel, 1);
    Alles->addLayout(Knoepfe);
    connect(Button_Dat, &QPushButton::clicked, this, [this] {
        Befehl_Ausfuehren(Weg, Button_Dat_Click);
        Nachziehen();
    });
    const auto Zu = [this] { Befehl_Ausfuehren(Weg, Button_OK_Click); };
    connect(Button_OK, &QPushButton::clicked, this, Zu);
    connect(this, &QDialog::rejected, this, Zu);
    Nachziehen();
}

void CheckIC_Fenster::Nachziehen()
{
    setWindowTitle(Qt_Text(In_Sprache({"IC prüfen", "Check IC"})));
    Label2->setText(Qt_Text(In_Sprache({"Momentaner Zustand:", "IC condition:"})));
    Button_OK->setText(Qt_Text(In_Sprache({"OK / Schließen", "OK / Close"})));
    Button_Dat->setText(Qt_Text(In_Sprache({"Zeige Abweichungen", "Show differences"})));
    Frame_IC->setTitle(Qt_Text(CheckIC.Frame_IC));
    Zustand->setText(Qt_Text(CheckIC.Zustand_IC));
    Ergebnis->setText(Qt_Text(CheckIC.Ergebnis));
    Button_Dat->setEnabled(CheckIC.Button_Dat_Aktiv);
    Tafel->setVisible(CheckIC.Text_Sichtbar);
    const QString Neu = Meldungs_Text(CheckIC.Text);
    if (Tafel->toPlainText() != Neu)
        Tafel->setPlainText(Neu);
    const QString Stand = Label2->text() + Zustand->text() + Ergebnis->text() + Neu;
    if (std::exchange(Gezeigt, Stand) != Stand)
        adjustSize();
}

} // namespace varnholt
