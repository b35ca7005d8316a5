// The print dialog.
#include "ui/Druck_Dialog.h"

#include "core/messages.h"
#include "ui/Qt_Text.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace varnholt {
namespace {

constexpr int Kopien_Hoechstens = 99;

QPushButton* Knopf_Bauen(QDialogButtonBox*            Kasten,
                         const char*                  Name,
                         const Text_Paar&             Text,
                         QDialogButtonBox::ButtonRole Rolle)
{
    auto* Knopf = Kasten->addButton(Qt_In_Sprache(Text), Rolle);
    Knopf->setObjectName(QLatin1String(Name));
    return Knopf;
}

} // namespace

Druck_Dialog::Druck_Dialog(bool Markierung_Anbieten, QWidget* Eltern)
    : QDialog(Eltern), Rahmen(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("Druck_Dialog"));
    setWindowTitle(Qt_In_Sprache({"Drucken", "Print"}));
    Felder_Bauen(Markierung_Anbieten);
    Drucker_Auflisten();
    Knoepfe_Bauen();
    Rahmen->setSizeConstraint(QLayout::SetFixedSize);
}

void Druck_Dialog::Felder_Bauen(bool Markierung_Anbieten)
{
    Geraete = new QComboBox;
    Geraete->setObjectName(QStringLiteral("Geraete"));
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
    Rahmen->addLayout(Felder);
    connect(Geraete, &QComboBox::currentIndexChanged, this, [this] {
        Anzahl->setEnabled(!Drucker_Name().isEmpty());
    });
}

// The printers of the system, and behind them the PDF file, which is always there.
void Druck_Dialog::Drucker_Auflisten()
{
    const QStringList Drucker = QPrinterInfo::availablePrinterNames();
    for (const QString& Name : Drucker)
        Geraete->addItem(Name, Name);
    Geraete->addItem(Qt_In_Sprache({"PDF-Datei", "PDF file"}), QString());
    Geraete->setCurrentIndex(std::max(0, Geraete->findData(QPrinterInfo::defaultPrinterName())));
    Anzahl->setEnabled(!Drucker_Name().isEmpty());
    if (!Drucker.isEmpty())
        return;
    auto* Hinweis = new QLabel(Qt_In_Sprache({"Auf diesem Rechner ist kein Drucker eingerichtet.\n"
                                              "Gedruckt wird in eine PDF-Datei.",
                                              "No printer is set up on this computer.\n"
                                              "You can print into a PDF file."}));
    Hinweis->setObjectName(QStringLiteral("Kein_Drucker"));
    Rahmen->insertWidget(0, Hinweis);
}

void Druck_Dialog::Knoepfe_Bauen()
{
    auto* Kasten = new QDialogButtonBox;
    auto* Drucken =
        Knopf_Bauen(Kasten, "Drucken", {"Drucken", "Print"}, QDialogButtonBox::AcceptRole);
    auto* Sehen =
        Knopf_Bauen(Kasten, "Vorschau", {"&Vorschau", "Pre&view"}, QDialogButtonBox::ActionRole);
    Knopf_Bauen(Kasten, "Abbrechen", {"Abbrechen", "Cancel"}, QDialogButtonBox::RejectRole);
    Drucken->setDefault(true);
    Rahmen->addWidget(Kasten);
    connect(Kasten, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(Kasten, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(Sehen, &QPushButton::clicked, this, [this] {
        Vorschau = true;
        accept();
    });
}

QString Druck_Dialog::Drucker_Name() const { return Geraete->currentData().toString(); }
int     Druck_Dialog::Kopien() const { return Drucker_Name().isEmpty() ? 1 : Anzahl->value(); }
bool    Druck_Dialog::Nur_Markierung() const { return Markierung->isChecked(); }

} // namespace varnholt
