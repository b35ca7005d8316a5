// The form `Jumper`.
#include "ui/Jumper_Fenster.h"

#include "core/messages.h"
#include "programmer/Geraete.h"
#include "programmer/Geraetemenue.h"
#include "ui/Bild_Feld.h"
#include "ui/Qt_Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace varnholt {
namespace {

// The newest layout has a picture of its own for the parts that need its jumper 0.
QString Board_Bild()
{
    const bool    Mit_Null = Jumper.Version == 32 && !Jumper.Ohne_Null;
    const QString Name     = QStringLiteral("board_%1").arg(Jumper.Version);
    return Mit_Null ? Name + QStringLiteral("_jp0") : Name;
}

} // namespace

Jumper_Fenster::Jumper_Fenster(QWidget* Eltern) : QDialog(Eltern, Qt::Tool)
{
    setObjectName(QStringLiteral("Jumper"));
    Board = new Bild_Feld(QSize(392, 252));
    Board->setObjectName(QStringLiteral("Board"));
    auto* Reihe = new QHBoxLayout;
    Reihe->addStretch();
    for (std::size_t i = 0; i < Bilder.size(); ++i) {
        Spalten[i]   = new QWidget;
        auto* Spalte = new QVBoxLayout(Spalten[i]);
        auto* Name   = new QLabel(QStringLiteral("JP%1").arg(i));
        Name->setAlignment(Qt::AlignCenter);
        Bilder[i] = new Bild_Feld(QSize(48, 72));
        Bilder[i]->setObjectName(QStringLiteral("Jumper_%1").arg(i));
        Spalte->addWidget(Name);
        Spalte->addWidget(Bilder[i]);
        Reihe->addWidget(Spalten[i]);
    }
    Reihe->addStretch();
    Hinweis = new QLabel;
    Hinweis->setObjectName(QStringLiteral("Hinweis"));
    Hinweis->setWordWrap(true);
    auto* Zu = new QPushButton(QStringLiteral("OK"));
    Zu->setObjectName(QStringLiteral("OK"));
    connect(Zu, &QPushButton::clicked, this, &QWidget::hide);
    auto* Alles = new QVBoxLayout(this);
    Alles->addWidget(Board, 1);
    Alles->addLayout(Reihe);
    Alles->addWidget(Hinweis);
    Alles->addWidget(Zu, 0, Qt::AlignRight);
    // Beside the middle, where the boxes of a hardware test speak of the picture.
    if (Eltern != nullptr)
        move(Eltern->mapToGlobal(QPoint(0, 48)));
    Nachziehen();
}

void Jumper_Fenster::Nachziehen()
{
    if (Gezeigt == Jumper.Stand)
        return;
    Gezeigt = Jumper.Stand;
    // A box is put over the active window, and would hide the picture that it speaks of.
    setAttribute(Qt::WA_ShowWithoutActivating, IC_Nummer >= Erster_Test_Baustein);
    setWindowTitle(Qt_Text(Jumper.Titel));
    Board->Laden(Board_Bild());
    for (std::size_t i = 0; i < Bilder.size(); ++i) {
        const int  Stellung = Jumper.Stellung[i];
        const bool Sichtbar = Stellung >= 1 && Stellung <= 3 && !(i == 0 && Jumper.Ohne_Null);
        Spalten[i]->setVisible(Sichtbar);
        if (Sichtbar)
            Bilder[i]->Laden(QStringLiteral("j_%1").arg(Stellung));
    }
    Hinweis->setText(Qt_Text(Jumper.Hinweis));
    Hinweis->setVisible(!Jumper.Hinweis.empty());
}

} // namespace varnholt
