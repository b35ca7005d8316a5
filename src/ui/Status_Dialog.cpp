// The progress dialog.
#include "ui/Status_Dialog.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "ui/Qt_Text.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace varnholt {

Status_Dialog::Status_Dialog()
    : Zeile(new QLabel), Balken(new QProgressBar), Abbrechen(new QPushButton)
{
    setObjectName(QStringLiteral("status"));
    setWindowModality(Qt::ApplicationModal);
    Zeile->setObjectName(QStringLiteral("Text"));
    Zeile->setTextFormat(Qt::PlainText);
    Zeile->setWordWrap(true);
    Zeile->setMinimumHeight(2 * Zeile->fontMetrics().lineSpacing());
    Balken->setObjectName(QStringLiteral("ProgBar"));
    Balken->setRange(0, 100);
    Abbrechen->setObjectName(QStringLiteral("Abbrechen"));
    Abbrechen->setAutoDefault(false); // an Enter meant for the editor must not cancel
    auto* Alles = new QVBoxLayout(this);
    Alles->setContentsMargins(16, 14, 16, 14);
    Alles->setSpacing(10);
    Alles->addWidget(Zeile);
    Alles->addWidget(Balken);
    Alles->addWidget(Abbrechen, 0, Qt::AlignRight);
    setMinimumWidth(420);
    connect(Abbrechen, &QPushButton::clicked, this, &Status_Dialog::reject);
}

void Status_Dialog::Mittig_Stellen()
{
    adjustSize();
    if (const QWidget* Unten = QApplication::activeWindow(); Unten != nullptr && Unten != this)
        move(Unten->frameGeometry().center() - rect().center());
}

void Status_Dialog::Oeffnen()
{
    setWindowTitle(QApplication::applicationDisplayName());
    Abbrechen->setText(Sprache == "D" ? QStringLiteral("Abbrechen") : QStringLiteral("Cancel"));
    Abbrechen->setEnabled(true);
    if (isVisible())
        return;
    Zeile->clear();
    Balken->setValue(0);
    Mittig_Stellen();
    show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // it is drawn before the work
}

void Status_Dialog::Text(std::string_view Neuer) { Zeile->setText(Meldungs_Text(Neuer)); }

void Status_Dialog::ProgBar(int Prozent) { Balken->setValue(std::clamp(Prozent, 0, 100)); }

void Status_Dialog::Schliessen() { hide(); }

void Status_Dialog::reject()
{
    Abbruch = true;
    Abbrechen->setEnabled(false); // the routine closes the dialog when it has noticed
}

} // namespace varnholt
