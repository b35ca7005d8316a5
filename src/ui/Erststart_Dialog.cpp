// The language dialog. It speaks both languages, since none has been chosen yet.
#include "ui/Erststart_Dialog.h"

#include "core/commands.h"
#include "core/startup.h"
#include "ui/Bilder.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <utility>

namespace varnholt {
namespace {

constexpr int Bild_Groesse_Pixel = 64;

QWidget* Bild_Schild()
{
    auto* Schild = new QLabel;
    Schild->setPixmap(Programm_Bild().pixmap(Bild_Groesse_Pixel));
    Schild->setAlignment(Qt::AlignTop);
    return Schild;
}

} // namespace

Erststart_Dialog::Erststart_Dialog(Befehls_Weg Ausfuehren)
    : Weg(std::move(Ausfuehren)), Deutsch(new QRadioButton(QStringLiteral("&Deutsch"))),
      Englisch(new QRadioButton(QStringLiteral("&English"))), Command1(new QPushButton)
{
    setObjectName(QStringLiteral("Erststart"));
    setWindowTitle(QStringLiteral("Varnholt"));
    Deutsch->setObjectName(QStringLiteral("Deutsch"));
    Englisch->setObjectName(QStringLiteral("Englisch"));
    Command1->setObjectName(QStringLiteral("Command1"));
    auto* Rahmen = new QGroupBox(QStringLiteral("Sprache / Language"));
    auto* Wahl   = new QVBoxLayout(Rahmen);
    Wahl->addWidget(Deutsch);
    Wahl->addWidget(Englisch);
    auto* Oben = new QHBoxLayout;
    Oben->setSpacing(18);
    Oben->addWidget(Bild_Schild());
    Oben->addWidget(Rahmen, 1);
    auto* Alles = new QVBoxLayout(this);
    Alles->setContentsMargins(18, 18, 18, 14);
    Alles->setSpacing(14);
    Alles->addLayout(Oben);
    Alles->addWidget(Command1, 0, Qt::AlignRight);
    setMinimumWidth(380);

    const bool Deutsches_System = QLocale::system().language() == QLocale::German;
    (Deutsches_System ? Deutsch : Englisch)->setChecked(true);
    Command1->setDefault(true);
    Beschriften();
    connect(Deutsch, &QRadioButton::toggled, this, &Erststart_Dialog::Beschriften);
    connect(Command1, &QPushButton::clicked, this, &Erststart_Dialog::Command1_Click);
}

void Erststart_Dialog::Beschriften()
{
    Command1->setText(Deutsch->isChecked() ? QStringLiteral("&Weiter")
                                           : QStringLiteral("&Continue"));
}

// A second click must not start the program twice.
void Erststart_Dialog::Command1_Click()
{
    setEnabled(false);
    Erststart_Englisch = Englisch->isChecked();
    Befehl_Ausfuehren(Weg, [] { Erststart_Command1_Click(); });
}

void Erststart_Dialog::reject()
{
    if (isEnabled())
        Befehl_Ausfuehren(Weg, [] { MNU_Ende_Click(); });
}

} // namespace varnholt
