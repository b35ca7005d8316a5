// The programming dialog.
#include "ui/Brennmenue_Dialog.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "programmer/Brennmenue.h"
#include "programmer/Brennvorschau.h"
#include "ui/Qt_Text.h"
#include "ui/Spalten_Kopf.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace varnholt {
namespace {

constexpr int Feld_Breite = 96; // device-independent pixels

} // namespace

Brennmenue_Dialog::Brennmenue_Dialog(QWidget* Eltern) : QDialog(Eltern)
{
    setObjectName(QStringLiteral("Brennmenue"));
    setWindowTitle(Qt_In_Sprache({"Daten brennen", "Program data"}));
    auto* Alles = new QVBoxLayout(this);
    Alles->setSizeConstraint(QLayout::SetFixedSize); // grows and shrinks with its lower part
    Alles->addWidget(Kopf_Bauen());
    Alles->addWidget(Felder_Bauen());
    Loeschen = new QCheckBox(Qt_In_Sprache({"IC vorm programmieren löschen (Nur bei Flash/EEPROM).",
                                            "Erase IC before programming (Only Flash/EEPROM)."}));
    Loeschen->setObjectName(QStringLiteral("Löschen"));
    connect(Loeschen, &QCheckBox::toggled, this, [this](bool An) {
        Brennmenue.Löschen = An;
        Zeigen();
    });
    Alles->addWidget(Loeschen);
    Ueberbrennen = new QLabel;
    Ueberbrennen->setObjectName(QStringLiteral("Überbrennen"));
    Ueberbrennen->setWordWrap(true);
    Alles->addWidget(Ueberbrennen);
    Vorschau = new QLabel;
    Vorschau->setObjectName(QStringLiteral("Vorschau"));
    Vorschau->setWordWrap(true);
    Vorschau->setFrameShape(QFrame::StyledPanel);
    Vorschau->setMargin(6);
    Alles->addWidget(Vorschau);
    Unten = Unten_Bauen();
    Alles->addWidget(Unten);
    Alles->addWidget(Knoepfe_Bauen());
    Zeigen();
}

QWidget* Brennmenue_Dialog::Kopf_Bauen()
{
    Titel_IC = new QLabel;
    Titel_IC->setObjectName(QStringLiteral("Label_IC"));
    QFont Fett = Titel_IC->font();
    Fett.setBold(true);
    Titel_IC->setFont(Fett);
    return Titel_IC;
}

QLineEdit* Brennmenue_Dialog::Eingabe(const char*        Name,
                                      const std::string& Wert,
                                      void (*Geaendert)(std::string_view))
{
    auto* Feld = new QLineEdit;
    Feld->setObjectName(QLatin1String(Name));
    Feld->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Feld->setFixedWidth(Feld_Breite);
    Feld->setMaxLength(9);
    connect(Feld, &QLineEdit::textEdited, this, [this, Geaendert](const QString& Neu) {
        Geaendert(Nach_Std(Neu));
        Zeigen();
    });
    if (QLatin1String(Name).endsWith(QLatin1String("_H")))
        Feld->installEventFilter(this);
    Felder.push_back({Feld, &Wert});
    return Feld;
}

QLabel* Brennmenue_Dialog::Anzeige(const char* Name, const std::string& Wert)
{
    auto* Feld = new QLabel;
    Feld->setObjectName(QLatin1String(Name));
    Feld->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Feld->setFixedWidth(Feld_Breite);
    Feld->setFrameShape(QFrame::Panel);
    Feld->setFrameShadow(QFrame::Sunken);
    Felder.push_back({Feld, &Wert});
    return Feld;
}

QWidget* Brennmenue_Dialog::Felder_Bauen()
{
    auto&      b      = Brennmenue;
    auto*      Tafel  = new QWidget;
    auto*      Gitter = new QGridLayout(Tafel);
    const auto Reihe  = [&](int Zeile, const Text_Paar& Name, QWidget* Hex, QWidget* Dez) {
        Gitter->addWidget(new QLabel(Qt_In_Sprache(Name)), Zeile, 0);
        Gitter->addWidget(Hex, Zeile, 1);
        Gitter->addWidget(Dez, Zeile, 2);
        return QList<QWidget*>{Hex, Dez};
    };
    const auto Kopf = [&](int Zeile, const Text_Paar& Titel, const QList<QWidget*>& Spalten) {
        auto* k    = new Spalten_Kopf(Qt_In_Sprache(Titel), Spalten);
        QFont Fett = k->font();
        Fett.setBold(true);
        k->setFont(Fett);
        Gitter->addWidget(k, Zeile, 0, 1, 3);
    };
    Kopf(0,
         {"IC                        Hex    Dez   ", "IC                        Hex    Dec   "},
         Reihe(1,
               {"Letzte Adresse:", "Last address:"},
               Anzeige("IC_GS_H", b.IC_GS_H),
               Anzeige("IC_GS_D", b.IC_GS_D)));
    Reihe(2,
          {"Momentan beschrieben bis:", "Already programmed to:"},
          Anzeige("IC_LBA_H", b.IC_LBA_H),
          Anzeige("IC_LBA_D", b.IC_LBA_D));
    Kopf(3,
         {"Editor                    Hex    Dez   ", "Edit                      Hex    Dec   "},
         Reihe(4,
               {"Erste zu brennende Adresse:", "First programmable address:"},
               Eingabe("ED_EBA_H", b.ED_EBA_H, ED_EBA_H_Change),
               Eingabe("ED_EBA_D", b.ED_EBA_D, ED_EBA_D_Change)));
    Reihe(5,
          {"Letzte zu brennende Adresse:", "Last programmable address:"},
          Eingabe("ED_LBA_H", b.ED_LBA_H, ED_LBA_H_Change),
          Eingabe("ED_LBA_D", b.ED_LBA_D, ED_LBA_D_Change));
    Reihe(6,
          {"Insgesamt zu brennende Adressen:", "Total programmable addresses:"},
          Anzeige("ED_IBA_H", b.ED_IBA_H),
          Anzeige("ED_IBA_D", b.ED_IBA_D));
    Kopf(7,
         {"Brennen                   Hex    Dez   ", "Program                   Hex    Dec   "},
         Reihe(8,
               {"Brennen ab der IC-Adresse:", "Begin programming at IC address:"},
               Eingabe("BR_EBA_H", b.BR_EBA_H, BR_EBA_H_Change),
               Eingabe("BR_EBA_D", b.BR_EBA_D, BR_EBA_D_Change)));
    Reihe(9,
          {"Bis zur IC-Adresse:", "Up to IC address:"},
          Anzeige("BR_LBA_H", b.BR_LBA_H),
          Anzeige("BR_LBA_D", b.BR_LBA_D));
    return Tafel;
}

QWidget* Brennmenue_Dialog::Unten_Bauen()
{
    auto*           Teil     = new QWidget;
    auto*           Spalte   = new QVBoxLayout(Teil);
    const Text_Paar Texte[3] = {
        {"Kein Splitting", "No splitting"},
        {"Nur gerade Adressen brennen (even 0,2,4,...)", "Program even addresses only (0,2,4,...)"},
        {"Nur ungerade Adressen brennen (odd 1,3,5,...)",
         "Program odd addresses only (1,3,5,...)"}};
    constexpr const char* Namen[3] = {"O_No_Splitting", "O_Even_Splitting", "O_Odd_Splitting"};
    constexpr Splitting   Wahl[3]  = {Splitting::Kein, Splitting::Gerade, Splitting::Ungerade};
    Spalte->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < 3; ++i) {
        Teilung[i] = new QRadioButton(Qt_In_Sprache(Texte[i]));
        Teilung[i]->setObjectName(QLatin1String(Namen[i]));
        connect(Teilung[i], &QRadioButton::clicked, this, [this, w = Wahl[i]] {
            Splitting_Waehlen(w);
            Zeigen();
        });
        Spalte->addWidget(Teilung[i]);
    }
    DAT00 = new QCheckBox;
    DAT00->setObjectName(QStringLiteral("DAT00"));
    connect(DAT00, &QCheckBox::toggled, this, [this](bool An) {
        Brennmenue.DAT00 = An;
        Zeigen();
    });
    Spalte->addWidget(DAT00);
    return Teil;
}

QWidget* Brennmenue_Dialog::Knoepfe_Bauen()
{
    auto*      Leiste = new QWidget;
    auto*      Reihe  = new QHBoxLayout(Leiste);
    const auto Knopf  = [&](const char* Name, const Text_Paar& Beschriftung, void (*Befehl)()) {
        auto* k = new QPushButton(Qt_In_Sprache(Beschriftung));
        k->setObjectName(QLatin1String(Name));
        k->setAutoDefault(false);
        connect(k, &QPushButton::clicked, this, [this, Befehl] { Ausfuehren(Befehl); });
        return k;
    };
    Reihe->setContentsMargins(0, 0, 0, 0);
    Brennen = Knopf("Brennen", {"Brennen", "Program"}, Brennen_Click);
    Brennen->setDefault(true);
    Reihe->addWidget(Knopf("Weiteres", {"Weiteres...", "More..."}, Weiteres_Click));
    Reihe->addStretch();
    Reihe->addWidget(Brennen);
    Reihe->addWidget(Knopf("Abbrechen", {"Abbrechen", "Cancel"}, Abbrechen_Click));
    connect(this, &QDialog::rejected, this, [] { Abbrechen_Click(); });
    return Leiste;
}

// A button; the routine behind it closes the model when the dialog is to go.
void Brennmenue_Dialog::Ausfuehren(void (*Befehl)())
{
    Befehl();
    if (Brennmenue.Offen)
        Zeigen();
    else
        accept();
}

bool Brennmenue_Dialog::eventFilter(QObject* Ziel, QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::KeyPress) {
        const QString Zeichen = static_cast<QKeyEvent*>(Ereignis)->text();
        if (Zeichen.size() == 1 && Zeichen[0].unicode() >= 32 && Zeichen[0].unicode() != 127 &&
            !Hex_Taste_Erlaubt(Zeichen[0].unicode()))
            return true;
    }
    return QDialog::eventFilter(Ziel, Ereignis);
}

void Brennmenue_Dialog::showEvent(QShowEvent* Ereignis)
{
    QDialog::showEvent(Ereignis);
    if (!std::exchange(Aktiviert, true))
        QTimer::singleShot(0, this, &Brennmenue_Dialog::Aktivieren);
}

void Brennmenue_Dialog::Aktivieren()
{
    constexpr int Blick = 50; // milliseconds: the fields tell that the device is being read
    QTimer        Anzeigen;
    connect(&Anzeigen, &QTimer::timeout, this, &Brennmenue_Dialog::Zeigen);
    Anzeigen.start(Blick);
    Brennmenue_Activate();
    Zeigen();
}

void Brennmenue_Dialog::Zeigen()
{
    if (Zeigt)
        return;
    const QScopedValueRollback Sperre(Zeigt, true);
    const auto&                b = Brennmenue;
    for (const Feld_T& f : Felder) {
        const QString Wert = Qt_Text(*f.Wert).trimmed();
        if (auto* Zeile = qobject_cast<QLineEdit*>(f.Widget)) {
            const int Stelle = Zeile->cursorPosition();
            if (Zeile->text() != Wert)
                Zeile->setText(Wert);
            Zeile->setCursorPosition(Stelle);
        } else {
            static_cast<QLabel*>(f.Widget)->setText(Wert);
        }
    }
    for (const char* Name : {"BR_EBA_H", "BR_EBA_D"})
        findChild<QLineEdit*>(QLatin1String(Name))->setEnabled(b.BR_EBA_Aktiv);
    Titel_IC->setText(Qt_Text(b.Label_IC));
    Ueberbrennen->setText(Qt_Text(b.Überbrennen));
    QPalette p = palette();
    if (b.Überbrennen_Farbe == Farbe_Warnung)
        p.setColor(QPalette::WindowText,
                   p.color(QPalette::Window).lightness() < 128
                       ? QColor(255, 120, 120)
                       : Qt_Farbe(static_cast<std::int32_t>(Farbe_Warnung)));
    Ueberbrennen->setPalette(p);
    Loeschen->setChecked(b.Löschen);
    DAT00->setText(Qt_Text(b.DAT00_Text));
    DAT00->setChecked(b.DAT00);
    Teilung[0]->setChecked(b.O_No_Splitting);
    Teilung[1]->setChecked(b.O_Even_Splitting);
    Teilung[2]->setChecked(b.O_Odd_Splitting);
    Brennen->setEnabled(b.Brennen_Aktiv);
    Unten->setVisible(b.Hoehe == Hoehe_Gross);
    Vorschau->setText(Qt_In_Sprache(Vorschau_Text()));
}

} // namespace varnholt
