// The dialogs of the area operations.
#include "ui/Bereich_Dialog.h"

#include "core/codepage.h"
#include "core/messages.h"
#include "ui/Qt_Text.h"
#include "ui/Spalten_Kopf.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>

namespace varnholt {
namespace {

using enum Adress_Paar;

constexpr int Feld_Breite  = 110; // device-independent pixels
constexpr int Knopf_Breite = 110;
constexpr int Luft         = 10; // ahead of a heading
constexpr int Abstand_Kopf = 14; // from the first name of a heading to the column of the next

// Columns: radio button, name, and the two fields of a pair.
enum Spalte { Spalte_Wahl, Spalte_Name, Spalte_Hex, Spalte_Dez, Spalten };

// By Adress_Paar.
constexpr std::array<const char*, Adress_Paare> Feld_Namen = {
    "Copy_Start", "Copy_End", "Insert_Start", "Paste_Start", "Paste_End"};

constexpr std::array<const char*, 3> Form_Namen = { // by Bereich_Art
    "Bereich_Kopieren",
    "Bereich_Setzen",
    "Bereich_entfernen"};

QString Beschriftung(const char* Name) { return Qt_Text(Bereich::Text(Name)); }

// Puts a text into a field without an event; characters behind the caret stay behind it.
void Text_Setzen(QLineEdit& Feld, const std::string& Text)
{
    const QString Neu = Qt_Text(Text);
    if (Neu == Feld.text())
        return;
    const QSignalBlocker Still(&Feld);
    const auto           Dahinter = Feld.text().size() - Feld.cursorPosition();
    Feld.setText(Neu);
    Feld.setCursorPosition(static_cast<int>(std::max<qsizetype>(Neu.size() - Dahinter, 0)));
}

} // namespace

Bereich_Dialog::Bereich_Dialog(QWidget* Eltern) : QDialog(Eltern)
{
    setObjectName(QString::fromLatin1(Form_Namen[static_cast<std::size_t>(Bereich_Form.Art)]));
    setWindowTitle(Beschriftung("Titel"));
    setModal(true);
    auto* Liste = new QVBoxLayout(this);
    Liste->setContentsMargins(16, 14, 16, 14);
    Liste->setSpacing(16);
    Liste->setSizeConstraint(QLayout::SetFixedSize);
    Gitter = new QGridLayout;
    Gitter->setHorizontalSpacing(10);
    Gitter->setVerticalSpacing(4);
    Liste->addLayout(Gitter);
    Felder_Bauen();
    Knopf_Zeile();
    Erlaubtes_Zeigen();
    Felder(Copy_Start).Hex->setFocus();
    Felder(Copy_Start).Hex->selectAll();
}

// --- building ---

void Bereich_Dialog::Felder_Bauen()
{
    Paar_Zeile(Copy_Start, "Von");
    Paar_Zeile(Copy_End, "Bis");
    Kopf_Zeile("Kopf", Copy_Start);
    if (Bereich_Form.Art == Bereich_Art::Setzen) {
        Paar_Zeile(Insert_Start, "Wert");
        Kopf_Zeile("Kopf_Wert", Insert_Start);
    } else if (Bereich_Form.Art == Bereich_Art::Kopieren) {
        Paar_Zeile(Insert_Start, "Adresse");
        Kopf_Zeile("Kopf_Einfügen",
                   Insert_Start,
                   Wahl_Bauen("O_Kopie_Einfügen", "Kopf_Einfügen", !Bereich_Form.Überschreiben));
        Paar_Zeile(Paste_Start, "Von");
        Paar_Zeile(Paste_End, "Bis");
        Kopf_Zeile(
            "Kopf_Überschreiben",
            Paste_Start,
            Wahl_Bauen("O_Kopie_Überschreiben", "Kopf_Überschreiben", Bereich_Form.Überschreiben));
    }
}

// The row of a pair, below a row that is left for its heading.
void Bereich_Dialog::Paar_Zeile(Adress_Paar Welches, const char* Text)
{
    const int Zeile = 2 + 2 * static_cast<int>(Welches);
    Felder_T& f     = Felder(Welches);
    f.Name          = new QLabel(Beschriftung(Text), this);
    f.Hex           = Feld_Bauen(Welches, "_Hex");
    f.Dez           = Feld_Bauen(Welches, "_Dez");
    f.Hex->setAccessibleName(Beschriftung(Text) + QStringLiteral(" Hex"));
    f.Dez->setAccessibleName(Beschriftung(Text) + Qt_Text(In_Sprache({" Dez", " Dec"})));
    Gitter->addWidget(f.Name, Zeile, Spalte_Name);
    Gitter->addWidget(f.Hex, Zeile, Spalte_Hex);
    Gitter->addWidget(f.Dez, Zeile, Spalte_Dez);
    f.Hex->installEventFilter(this);
    connect(f.Hex, &QLineEdit::textChanged, this, [this, Welches] { Hex_Geaendert(Welches); });
    connect(f.Dez, &QLineEdit::textChanged, this, [this, Welches] { Dez_Geaendert(Welches); });
}

QLineEdit* Bereich_Dialog::Feld_Bauen(Adress_Paar Welches, const char* Endung)
{
    const Paar_T& p    = Bereich::Paar(Welches);
    auto*         Feld = new QLineEdit(Qt_Text(Endung[1] == 'H' ? p.Hex : p.Dez), this);
    Feld->setObjectName(QString::fromLatin1(Feld_Namen[static_cast<std::size_t>(Welches)]) +
                        QLatin1String(Endung));
    Feld->setFixedWidth(Feld_Breite);
    return Feld;
}

void Bereich_Dialog::Kopf_Zeile(const char* Text, Adress_Paar Darunter, QRadioButton* Wahl)
{
    const int       Zeile = 1 + 2 * static_cast<int>(Darunter);
    const Felder_T& f     = Felder(Darunter);
    auto*           Kopf  = new Spalten_Kopf(Beschriftung(Text), {f.Hex, f.Dez}, this);
    QFont           Fett  = Kopf->font();
    Fett.setBold(true);
    Kopf->setFont(Fett);
    Kopf->setObjectName(QString::fromUtf8(Text));
    const int Erste = Wahl != nullptr ? Spalte_Name : Spalte_Wahl;
    Gitter->addWidget(Kopf, Zeile, Erste, 1, Spalten - Erste, Qt::AlignBottom);
    Gitter->setColumnMinimumWidth(
        Spalte_Name,
        std::max(Gitter->columnMinimumWidth(Spalte_Name), Kopf->sizeHint().width() + Abstand_Kopf));
    if (Darunter != Copy_Start)
        Gitter->setRowMinimumHeight(Zeile, Kopf->sizeHint().height() + Luft);
    if (Wahl == nullptr)
        return;
    Gitter->addWidget(Wahl, Zeile, Spalte_Wahl, Qt::AlignBottom);
    connect(Kopf, &Spalten_Kopf::Geklickt, Wahl, [Wahl] { Wahl->setChecked(true); });
}

QRadioButton* Bereich_Dialog::Wahl_Bauen(const char* Name, const char* Text, bool Gesetzt)
{
    auto* Wahl = new QRadioButton(this);
    Wahl->setObjectName(QString::fromUtf8(Name));
    Wahl->setAccessibleName(Beschriftung(Text).section(QStringLiteral("  "), 0, 0));
    Wahl->setChecked(Gesetzt);
    const bool Einfuegen = Qt_Text(Name) == QStringLiteral("O_Kopie_Einfügen");
    connect(Wahl, &QRadioButton::toggled, this, [this, Einfuegen](bool An) {
        if (An)
            Einfuegen ? Bereich::O_Kopie_Einfügen_Click() : Bereich::O_Kopie_Überschreiben_Click();
        Erlaubtes_Zeigen();
    });
    return Wahl;
}

void Bereich_Dialog::Knopf_Zeile()
{
    auto* Zeile = new QHBoxLayout;
    Zeile->addStretch();
    C_OK          = Knopf_Bauen("C_OK");
    auto* C_Abort = Knopf_Bauen("C_Abort");
    Zeile->addWidget(C_OK);
    Zeile->addWidget(C_Abort);
    C_OK->setDefault(true);
    connect(C_OK, &QPushButton::clicked, this, [] { Bereich::C_OK_Click(); });
    connect(C_Abort, &QPushButton::clicked, this, &Bereich_Dialog::reject);
    static_cast<QVBoxLayout*>(layout())->addLayout(Zeile);
}

QPushButton* Bereich_Dialog::Knopf_Bauen(const char* Name)
{
    auto* Knopf = new QPushButton(Beschriftung(Name), this);
    Knopf->setObjectName(QString::fromLatin1(Name));
    Knopf->setMinimumWidth(Knopf_Breite);
    return Knopf;
}

// --- events ---

void Bereich_Dialog::reject()
{
    Bereich::C_Abort_Click();
    QDialog::reject();
}

// A character that is no digit never gets into a hexadecimal field by its key.
bool Bereich_Dialog::eventFilter(QObject* Feld, QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::KeyPress) {
        const QString Text = static_cast<QKeyEvent*>(Ereignis)->text();
        if (Text.size() == 1 && Text.front().isPrint() &&
            !Bereich::Hex_KeyPress(
                static_cast<unsigned char>(Zeichen_Nach_1252(Text.front().unicode()))))
            return true;
    }
    return QDialog::eventFilter(Feld, Ereignis);
}

void Bereich_Dialog::Dez_Geaendert(Adress_Paar Welches)
{
    Bereich::Dez_Change(Welches, Nach_Std(Felder(Welches).Dez->text()));
    Paar_Zeigen(Welches);
}

void Bereich_Dialog::Hex_Geaendert(Adress_Paar Welches)
{
    Bereich::Hex_Change(Welches, Nach_Std(Felder(Welches).Hex->text()));
    Paar_Zeigen(Welches);
}

void Bereich_Dialog::Paar_Zeigen(Adress_Paar Welches)
{
    Text_Setzen(*Felder(Welches).Dez, Bereich::Paar(Welches).Dez);
    Text_Setzen(*Felder(Welches).Hex, Bereich::Paar(Welches).Hex);
    Erlaubtes_Zeigen();
}

void Bereich_Dialog::Erlaubtes_Zeigen()
{
    if (C_OK != nullptr)
        C_OK->setEnabled(Bereich_Form.C_OK_Aktiv);
    if (Bereich_Form.Art != Bereich_Art::Kopieren)
        return;
    for (std::size_t i = 0; i < Adress_Paare; ++i)
        for (QWidget* w : {static_cast<QWidget*>(Paare[i].Name),
                           static_cast<QWidget*>(Paare[i].Hex),
                           static_cast<QWidget*>(Paare[i].Dez)})
            w->setEnabled(Bereich::Paar_Aktiv(static_cast<Adress_Paar>(i)));
}

} // namespace varnholt
