// The bar that tells that another program changed the document's file.
#include "ui/Fremd_Hinweis.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "ui/Qt_Text.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace varnholt {

Fremd_Hinweis::Fremd_Hinweis(QWidget* Eltern)
    : QFrame(Eltern), Text(new QLabel(this)), Laden(new QPushButton(this)),
      Behalten_Knopf(new QPushButton(this))
{
    setObjectName(QStringLiteral("Fremd_Hinweis"));
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    Text->setForegroundRole(QPalette::ToolTipText);
    Text->setTextFormat(Qt::PlainText);
    Laden->setObjectName(QStringLiteral("B_Neu_Laden"));
    Behalten_Knopf->setObjectName(QStringLiteral("B_Behalten"));
    auto* Reihe = new QHBoxLayout(this);
    Reihe->setContentsMargins(8, 4, 8, 4);
    Reihe->addWidget(Text, 1);
    Reihe->addWidget(Laden);
    Reihe->addWidget(Behalten_Knopf);
    connect(Laden, &QPushButton::clicked, this, &Fremd_Hinweis::Neu_Laden);
    connect(Behalten_Knopf, &QPushButton::clicked, this, &Fremd_Hinweis::Behalten);
    hide();
}

void Fremd_Hinweis::Zeigen(const QString& Datei)
{
    const QFileInfo   Lage(Datei);
    const std::string Name = Nach_Std(Lage.fileName());
    const bool        Da   = Lage.exists();
    Text->setText(Qt_Text(In_Sprache(
        Da ? Text_Paar{"Ein anderes Programm hat die Datei " + Name + " geändert.",
                       "Another program has changed the file " + Name + "."}
           : Text_Paar{"Die Datei " + Name + " ist nicht mehr da. Ihr Text ist noch hier.",
                       "The file " + Name + " is gone. Your text is still here."})));
    Text->setToolTip(Datei);
    Laden->setText(Qt_Text(In_Sprache({"Neu laden", "Load again"})));
    Laden->setVisible(Da);
    Behalten_Knopf->setText(Qt_Text(In_Sprache({"So lassen", "Keep mine"})));
    show();
}

} // namespace varnholt
