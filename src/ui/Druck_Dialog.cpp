// The print dialog.
#include "ui/Druck_Dialog.h"

#include "core/messages.h"
#include "ui/Qt_Text.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace varnholt {
namespace {

constexpr int Kopien_Hoechstens = 99;

} // namespace

Druck_Dialog::Druck_Dialog(bool Markierung_Anbieten, QWidget* Eltern) : QDialog(Eltern)
{
    setObjectName(QStringLiteral("Druck_Dialog"));
    setWindowTitle(Qt_In_Sprache({"Drucken", "Print"}));
    Geraete = new QComboBox;
    Geraete->setObjectName(QStringLiteral("Geraete"));
    for (const QString& Name : QPrinterInfo::availablePrinterNames())
        Geraete->addItem(Name, Name);
    Geraete->addItem(Qt_In_Sprache({"PDF-Datei", "PDF file"}), QString());
    Geraete->setCurrentIndex(std::max(0, Geraete->findData(QPrinterInfo::defaultPrinterName())));
    Anzahl = new QSpinBox;
    Anzahl->setObjectName(QStringLiteral("Kopien"));
    Anzahl->setRange(1, Kopien_Hoechstens);
    auto* Alles = new QRadioButton(Qt_In_Sprache({"&Alles", "&All"}));
    Alles->setChecked(true);
    Markierung = new QRadioButton(Qt_In_Sprache({"Nur die &Markierung", "&Selection only"}));
    Markierung->setObjectName(QStringLiteral("Markierung"));
    Markierung->setEnabled(Markierung_Anbieten);
    auto* Felder = new QFormLayout;
    Felder->addRow(Qt_In_Sprache({"&Drucker:", "&Printer:"}), Geraete);
    Felder->addRow(Qt_In_Sprache({"&Kopien:", "&Copies:"}), Anzahl);
    Felder->addRow(Qt_In_Sprache({"Umfang:", "Range:"}), Alles);
    Felder->addRow(QString(), Markierung);

    auto* Knoepfe = new QDialogButtonBox;
    auto* Drucken =
        Knoepfe->addButton(Qt_In_Sprache({"Drucken", "Print"}), QDialogButtonBox::AcceptRole);
    auto* Sehen =
        Knoepfe->addButton(Qt_In_Sprache({"&Vorschau", "Pre&view"}), QDialogButtonBox::ActionRole);
    Knoepfe->addButton(Qt_In_Sprache({"Abbrechen", "Cancel"}), QDialogButtonBox::RejectRole);
    Drucken->setObjectName(QStringLiteral("Drucken"));
    Sehen->setObjectName(QStringLiteral("Vorschau"));
    Drucken->setDefault(true);
    auto* Rahmen = new QVBoxLayout(this);
    Rahmen->addLayout(Felder);
    Rahmen->addWidget(Knoepfe);
    connect(Drucken, &QPushButton::clicked, this, [this] { Fertig(false); });
    connect(Sehen, &QPushButton::clicked, this, [this] { Fertig(true); });
    connect(Knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString Druck_Dialog::Drucker_Name() const { return Geraete->currentData().toString(); }
int     Druck_Dialog::Kopien() const { return Anzahl->value(); }
bool    Druck_Dialog::Nur_Markierung() const { return Markierung->isChecked(); }

void Druck_Dialog::Fertig(bool Vorschau)
{
    Gewaehlt = Vorschau ? Ziel::Vorschau : Drucker_Name().isEmpty() ? Ziel::PDF : Ziel::Drucker;
    accept();
}

} // namespace varnholt
