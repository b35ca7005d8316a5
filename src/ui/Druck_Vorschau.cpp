// The preview.
#include "ui/Druck_Vorschau.h"

#include "core/messages.h"
#include "ui/Qt_Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

namespace varnholt {
namespace {

constexpr int Zeichen_Breite = 44; // of a button with a sign in place of words, pixels

} // namespace

Druck_Vorschau::Druck_Vorschau(QPrinter&                      Blatt,
                               std::function<void(QPrinter&)> Malen,
                               QWidget*                       Eltern)
    : QDialog(Eltern), Papier(Blatt), Bild(new QPrintPreviewWidget(&Blatt))
{
    setObjectName(QStringLiteral("Druck_Vorschau"));
    setWindowTitle(Qt_In_Sprache({"Druckvorschau", "Print preview"}));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Bild->setObjectName(QStringLiteral("Bild"));
    connect(Bild, &QPrintPreviewWidget::paintRequested, this, [Malen = std::move(Malen)](auto* p) {
        Malen(*p);
    });
    connect(Bild, &QPrintPreviewWidget::previewChanged, this, &Druck_Vorschau::Nachziehen);
    auto* Leiste = new QHBoxLayout;
    Blaettern_Bauen(Leiste);
    Leiste->addStretch();
    Groesse_Bauen(Leiste);
    Leiste->addStretch();
    Ausgang_Bauen(Leiste);
    auto* Rahmen = new QVBoxLayout(this);
    Rahmen->addLayout(Leiste);
    Rahmen->addWidget(Bild, 1);
    Bild->fitInView();
    resize(900, 760);
}

QPushButton* Druck_Vorschau::Knopf_Bauen(QHBoxLayout* Leiste, const char* Name, const QString& Text)
{
    auto* Knopf = new QPushButton(Text);
    Knopf->setObjectName(QLatin1String(Name));
    Knopf->setAutoDefault(false);
    if (Text.size() == 1)
        Knopf->setFixedWidth(Zeichen_Breite);
    Leiste->addWidget(Knopf);
    return Knopf;
}

void Druck_Vorschau::Blaettern_Bauen(QHBoxLayout* Leiste)
{
    Zurueck = Knopf_Bauen(Leiste, "Zurueck", QStringLiteral("◀"));
    Seite   = new QLabel;
    Seite->setObjectName(QStringLiteral("Seite"));
    Leiste->addWidget(Seite);
    Vor = Knopf_Bauen(Leiste, "Vor", QStringLiteral("▶"));
    Zurueck->setToolTip(Qt_In_Sprache({"Vorige Seite", "Previous page"}));
    Vor->setToolTip(Qt_In_Sprache({"Nächste Seite", "Next page"}));
    connect(Zurueck, &QPushButton::clicked, this, [this] {
        Bild->setCurrentPage(Bild->currentPage() - 1);
        Nachziehen();
    });
    connect(Vor, &QPushButton::clicked, this, [this] {
        Bild->setCurrentPage(Bild->currentPage() + 1);
        Nachziehen();
    });
}

void Druck_Vorschau::Groesse_Bauen(QHBoxLayout* Leiste)
{
    const auto* Kleiner  = Knopf_Bauen(Leiste, "Kleiner", QStringLiteral("−"));
    const auto* Groesser = Knopf_Bauen(Leiste, "Groesser", QStringLiteral("+"));
    const auto* Ganze =
        Knopf_Bauen(Leiste, "Ganze_Seite", Qt_In_Sprache({"&Ganze Seite", "&Whole page"}));
    const auto* Breite =
        Knopf_Bauen(Leiste, "Breite", Qt_In_Sprache({"Seiten&breite", "Page &width"}));
    connect(Kleiner, &QPushButton::clicked, Bild, [this] { Bild->zoomOut(); });
    connect(Groesser, &QPushButton::clicked, Bild, [this] { Bild->zoomIn(); });
    connect(Ganze, &QPushButton::clicked, Bild, &QPrintPreviewWidget::fitInView);
    connect(Breite, &QPushButton::clicked, Bild, &QPrintPreviewWidget::fitToWidth);
}

void Druck_Vorschau::Ausgang_Bauen(QHBoxLayout* Leiste)
{
    const auto* Papier_Knopf =
        Knopf_Bauen(Leiste, "Papier", Qt_In_Sprache({"&Papier...", "&Paper..."}));
    auto*       Drucken = Knopf_Bauen(Leiste, "Drucken", Qt_In_Sprache({"&Drucken", "P&rint"}));
    const auto* Zu      = Knopf_Bauen(Leiste, "Schliessen", Qt_In_Sprache({"Schließen", "Close"}));
    Drucken->setDefault(true);
    connect(Papier_Knopf, &QPushButton::clicked, this, [this] {
        QPageSetupDialog Dialog(&Papier, this);
        if (Dialog.exec() == QDialog::Accepted)
            Bild->updatePreview();
    });
    connect(Drucken, &QPushButton::clicked, this, &QDialog::accept);
    connect(Zu, &QPushButton::clicked, this, &QDialog::reject);
}

void Druck_Vorschau::Nachziehen()
{
    const int n = Bild->currentPage();
    const int m = Bild->pageCount();
    Seite->setText(Qt_In_Sprache({"Seite " + std::to_string(n) + " von " + std::to_string(m),
                                  "Page " + std::to_string(n) + " of " + std::to_string(m)}));
    Zurueck->setEnabled(n > 1);
    Vor->setEnabled(n < m);
}

} // namespace varnholt
