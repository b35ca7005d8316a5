// The dialog `Optionen`, built from the tables of core/options.h.
#include "ui/Optionen_Dialog.h"

#include "core/options.h"
#include "ui/Haken_Feld.h"
#include "ui/Qt_Text.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>
#include <initializer_list>
#include <vector>

namespace varnholt {
namespace {

constexpr int Probe_Hoehe     = 34; // pixels; the largest size that the font dialog offers fits
constexpr int Zahl_Breite     = 90;
constexpr int Breite_Zeichen  = 160; // of the dialog, in average characters
constexpr int Knopf_Breite    = 110;
constexpr int Gruppen_Abstand = 12;

QString Beschriftung(std::string_view Name) { return Qt_Text(Optionen_Text(Name)); }

QString Feld_Name(std::string_view Name, int Nummer)
{
    return Qt_Text(Name) + QLatin1Char('_') + QString::number(Nummer);
}

// A widget of that name; screen readers get the caption.
template <class Art> Art* Benannt(Art* Teil, std::string_view Name)
{
    Teil->setObjectName(Qt_Text(Name));
    Teil->setAccessibleName(Beschriftung(Name));
    return Teil;
}

struct Gruppe_T {
    QGroupBox*   Rahmen;
    QVBoxLayout* Liste;
};

Gruppe_T Gruppe(std::string_view Name)
{
    auto* Rahmen = Benannt(new QGroupBox(Beschriftung(Name)), Name);
    auto* Liste  = new QVBoxLayout(Rahmen);
    Liste->setSpacing(4);
    return {Rahmen, Liste};
}

QLabel* Text_Feld_Davor(std::string_view Name)
{
    auto* Text = new QLabel(Beschriftung(Name));
    Text->setWordWrap(true);
    return Text;
}

// A button that opens a dialog; Enter elsewhere means OK.
QPushButton* Knopf_Aendern(std::string_view Name)
{
    auto* Knopf = Benannt(new QPushButton(Beschriftung("Farbe")), Name);
    Knopf->setAutoDefault(false);
    return Knopf;
}

// A check box that shows and edits its place in the form.
QWidget* Haken(std::string_view Name)
{
    auto*      Feld  = Benannt(new Haken_Feld(Beschriftung(Name)), Name);
    const auto Platz = Haken_Platz(Name);
    Feld->setChecked(Optionen_Form.Haken.at(Platz));
    QObject::connect(Feld, &QCheckBox::toggled, [Platz](bool Gesetzt) {
        Optionen_Form.Haken.at(Platz) = Gesetzt;
    });
    return Feld;
}

QWidget* Haken_Gruppe(std::string_view Name, std::initializer_list<std::string_view> Felder)
{
    const Gruppe_T g = Gruppe(Name);
    for (const std::string_view f : Felder)
        g.Liste->addWidget(Haken(f));
    return g.Rahmen;
}

// Option buttons with the numbers 0 ...; Wahl is told what is chosen.
std::vector<QRadioButton*> Knoepfe_Bauen(
    QWidget* Eltern, std::string_view Name, int Anzahl, int Gewaehlt, std::function<void(int)> Wahl)
{
    auto*                      Bund = new QButtonGroup(Eltern);
    std::vector<QRadioButton*> Liste;
    for (int i = 0; i < Anzahl; ++i) {
        const std::string Einzeln = Nach_Std(Feld_Name(Name, i + 1));
        auto*             Knopf   = Benannt(new QRadioButton(Beschriftung(Einzeln)), Einzeln);
        Knopf->setChecked(i == Gewaehlt);
        Bund->addButton(Knopf, i);
        Liste.push_back(Knopf);
    }
    QObject::connect(Bund, &QButtonGroup::idToggled, [Wahl](int Nummer, bool Gesetzt) {
        if (Gesetzt)
            Wahl(Nummer);
    });
    return Liste;
}

QWidget* Auswahl_Gruppe(std::string_view Name, int Anzahl, int& Ziel)
{
    const Gruppe_T g = Gruppe(Name);
    for (QRadioButton* k :
         Knoepfe_Bauen(g.Rahmen, Name, Anzahl, Ziel, [&Ziel](int Nummer) { Ziel = Nummer; }))
        g.Liste->addWidget(k);
    return g.Rahmen;
}

QLineEdit* Eingabe(std::string_view Name, std::string& Ziel)
{
    auto* Feld = Benannt(new QLineEdit(Qt_Text(Ziel)), Name);
    QObject::connect(
        Feld, &QLineEdit::textChanged, [&Ziel](const QString& Text) { Ziel = Nach_Std(Text); });
    return Feld;
}

// The default font of a window whose font isn't chosen.

QFont Probe_Schrift(int Ziel)
{
    return Qt_Schrift(Optionen_Form.Probe.at(static_cast<std::size_t>(Ziel)),
                      Schrift_Vorgabe(Ziel));
}

} // namespace

Optionen_Dialog::Optionen_Dialog(QWidget* Eltern) : QDialog(Eltern)
{
    setObjectName(QStringLiteral("Optionen"));
    setWindowTitle(Beschriftung("Optionen"));
    setModal(true);
    auto* Reiter = new QTabWidget;
    Reiter->setObjectName(QStringLiteral("SSTab"));
    Seiten = {Oberflaeche_Bauen(), Programmiergeraet_Bauen()};
    Seite_Anhaengen(*Reiter, Seiten[0], "SSTab_1");
    Seite_Anhaengen(*Reiter, Seiten[1], "SSTab_2");
    auto* Liste = new QVBoxLayout(this);
    Liste->addWidget(Reiter);
    Liste->addWidget(Knopf_Leiste());
    findChild<QPushButton*>(QStringLiteral("B_OK"))->setDefault(true); // now that it has its dialog
    Proben_Zeigen();
    Farbe_Zeigen();
    Groesse_Waehlen();
}

// --- pages ---

// A page scrolls only where the screen is too small for it.
void Optionen_Dialog::Seite_Anhaengen(QTabWidget& Reiter, QWidget* Seite, const char* Name)
{
    auto* Rolle = new QScrollArea;
    Rolle->setFrameShape(QFrame::NoFrame);
    Rolle->setWidgetResizable(true);
    Rolle->setWidget(Seite);
    Rolle->viewport()->setAutoFillBackground(false);
    Seite->setAutoFillBackground(false);
    Reiter.addTab(Rolle, Beschriftung(Name));
}

QWidget* Optionen_Dialog::Oberflaeche_Bauen()
{
    auto* Links = new QVBoxLayout;
    Links->setSpacing(Gruppen_Abstand);
    Links->addWidget(Schrift_Gruppe());
    Links->addWidget(Arbeit_Gruppe());
    Links->addWidget(Haken_Gruppe("Gruppe_Marken", {"C_keine_TAB_SM", "C_keine_US_SM"}));
    Links->addStretch();
    auto* Rechts = new QVBoxLayout;
    Rechts->setSpacing(Gruppen_Abstand);
    Rechts->addWidget(Auswahl_Gruppe("O_Automatik_Bef", 3, Optionen_Form.O_Automatik_Bef));
    Rechts->addWidget(Auswahl_Gruppe("Zahlendeutung", 2, Optionen_Form.Zahlendeutung));
    Rechts->addWidget(Auswahl_Gruppe("O_MOV_ZQ", 2, Optionen_Form.O_MOV_ZQ));
    Rechts->addWidget(Haken_Gruppe("Gruppe_Ausgaben",
                                   {"C_Erstelle_Listfile", "C_Auto_Binfile", "C_Auto_Hexfile"}));
    Rechts->addStretch();
    auto* Seite   = new QWidget;
    auto* Spalten = new QHBoxLayout(Seite);
    Spalten->setSpacing(Gruppen_Abstand);
    Spalten->addLayout(Links, 1);
    Spalten->addLayout(Rechts, 1);
    return Seite;
}

QWidget* Optionen_Dialog::Programmiergeraet_Bauen()
{
    auto* Seite = new QWidget;
    auto* Liste = new QVBoxLayout(Seite);
    Liste->setSpacing(Gruppen_Abstand);
    Liste->addWidget(Port_Gruppe());
    Liste->addWidget(
        Haken_Gruppe("Gruppe_Zugriff",
                     {"C_Brenner", "C_IC", "C_IC_vor_B", "C_IC_bei_B", "C_IC_nach_B", "No_FF"}));
    Liste->addStretch();
    return Seite;
}

// --- groups of several kinds of controls ---

QWidget* Optionen_Dialog::Schrift_Gruppe()
{
    const Gruppe_T g = Gruppe("Gruppe_Schrift");
    for (int Ziel = 0; Ziel < Schrift_Anzahl; ++Ziel)
        Schrift_Zeile(*g.Liste, Ziel);
    Farb_Zeile(*g.Liste);
    return g.Rahmen;
}

void Optionen_Dialog::Schrift_Zeile(QBoxLayout& Liste, int Ziel)
{
    const std::string Name  = Nach_Std(Feld_Name("Schrift", Ziel + 1));
    auto*             Probe = new QLabel;
    Probe->setObjectName(Feld_Name("Probe", Ziel + 1));
    Probe->setFrameShape(QFrame::StyledPanel);
    Probe->setFixedHeight(Probe_Hoehe);
    Probe->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* Knopf = Knopf_Aendern(Name);
    connect(Knopf, &QPushButton::clicked, this, [this, Ziel] { Schrift_Gewaehlt(Ziel); });
    auto* Zeile = new QHBoxLayout;
    Zeile->addWidget(Probe, 1);
    Zeile->addWidget(Knopf);
    Liste.addWidget(Text_Feld_Davor(Name));
    Liste.addLayout(Zeile);
    Proben.at(static_cast<std::size_t>(Ziel)) = Probe;
}

void Optionen_Dialog::Farb_Zeile(QBoxLayout& Liste)
{
    Farb_Probe = new QFrame;
    Farb_Probe->setObjectName(QStringLiteral("Farb_Probe"));
    Farb_Probe->setFrameShape(QFrame::StyledPanel);
    Farb_Probe->setAutoFillBackground(true);
    Farb_Probe->setFixedSize(Probe_Hoehe * 2, Probe_Hoehe - 8);
    auto* Knopf = Knopf_Aendern("Farbe");
    Knopf->setAccessibleName(Beschriftung("Farbe_Text"));
    connect(Knopf, &QPushButton::clicked, this, [this] {
        Farbe_Click();
        Farbe_Zeigen();
    });
    auto* Zeile = new QHBoxLayout;
    Zeile->addWidget(Text_Feld_Davor("Farbe_Text"), 1);
    Zeile->addWidget(Farb_Probe);
    Zeile->addWidget(Knopf);
    Liste.addLayout(Zeile);
}

QWidget* Optionen_Dialog::Arbeit_Gruppe()
{
    const Gruppe_T g = Gruppe("Gruppe_Arbeit");
    g.Liste->addWidget(Haken("Lade_Letzte"));
    Undo_Zeile(*g.Liste);
    g.Liste->addWidget(Haken("C_Autosave_Ass"));
    g.Liste->addWidget(Haken("C_Autosave_timed"));
    return g.Rahmen;
}

void Optionen_Dialog::Undo_Zeile(QBoxLayout& Liste)
{
    T_Undo_Max = Benannt(new QLineEdit(Qt_Text(Optionen_Form.T_Undo_Max)), "T_Undo_Max");
    T_Undo_Max->setFixedWidth(Zahl_Breite);
    connect(T_Undo_Max, &QLineEdit::textChanged, this, &Optionen_Dialog::Undo_Getippt);
    auto* Zeile = new QHBoxLayout;
    Zeile->addWidget(T_Undo_Max);
    Zeile->addWidget(Text_Feld_Davor("T_Undo_Max"), 1);
    Liste.addLayout(Zeile);
}

QWidget* Optionen_Dialog::Port_Gruppe()
{
    const Gruppe_T g      = Gruppe("Gruppe_Port");
    auto*          Geraet = Eingabe("T_Geraet", Optionen_Form.T_Geraet);
    const auto     Arten  = Knoepfe_Bauen(
        g.Rahmen, "Port_Art", 3, static_cast<int>(Optionen_Form.Port_Art), [](int Nummer) {
            Optionen_Form.Port_Art = static_cast<Port_Wahl_T>(Nummer);
        });
    Geraet->setEnabled(Arten[1]->isChecked());
    connect(Arten[1], &QRadioButton::toggled, Geraet, &QWidget::setEnabled);
    auto* Zeile = new QHBoxLayout;
    Zeile->addWidget(Arten[1]);
    Zeile->addWidget(Geraet, 1);
    g.Liste->addWidget(Arten[0]);
    g.Liste->addLayout(Zeile);
    g.Liste->addWidget(Arten[2]);
    auto* Adresse = Eingabe("T_Portadr", Optionen_Form.T_Portadr);
    Adresse->setFixedWidth(Zahl_Breite);
    auto* Unten = new QHBoxLayout;
    Unten->addWidget(Adresse);
    Unten->addWidget(Text_Feld_Davor("T_Portadr"), 1);
    g.Liste->addSpacing(6);
    g.Liste->addLayout(Unten);
    return g.Rahmen;
}

QWidget* Optionen_Dialog::Knopf_Leiste()
{
    auto* Leiste = new QWidget;
    auto* Zeile  = new QHBoxLayout(Leiste);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->addStretch();
    const auto Knopf = [&](std::string_view Name, const auto& Bei_Klick) {
        auto* k = Benannt(new QPushButton(Beschriftung(Name)), Name);
        k->setMinimumWidth(Knopf_Breite);
        connect(k, &QPushButton::clicked, this, Bei_Klick);
        Zeile->addWidget(k);
    };
    Knopf("B_OK", [this] {
        B_OK_Click();
        accept();
    });
    Knopf("B_Üb", [] { B_Üb_Click(); });
    Knopf("B_Ab", [this] { reject(); });
    return Leiste;
}

// As wide as is comfortable, and as high as the longer page wants, but within the screen.
void Optionen_Dialog::Groesse_Waehlen()
{
    const QSize Platz  = screen()->availableGeometry().size() - QSize(40, 60);
    const int   Breite = std::min(Breite_Zeichen * fontMetrics().averageCharWidth(), Platz.width());
    int         Hoehe  = 0;
    for (const QWidget* s : Seiten)
        Hoehe = std::max(Hoehe, s->layout()->totalHeightForWidth(Breite - 50));
    const int Rest =
        sizeHint().height() - Seiten[0]->parentWidget()->parentWidget()->sizeHint().height();
    resize(Breite, std::min(Hoehe + Rest, Platz.height()));
}

// --- events ---

void Optionen_Dialog::reject()
{
    B_Ab_Click();
    QDialog::reject();
}

// The font dialog opens with what the sample shows, the window's default included.
void Optionen_Dialog::Schrift_Gewaehlt(int Ziel)
{
    Schrift_T&      Probe    = Optionen_Form.Probe.at(static_cast<std::size_t>(Ziel));
    const Schrift_T Bisher   = Probe;
    const Schrift_T Gezeigte = Schrift_Aus(Probe_Schrift(Ziel));
    Probe                    = Gezeigte;
    Schrift_Click(Ziel);
    if (Probe == Gezeigte)
        Probe = Bisher; // cancelled: a default stays one
    Proben_Zeigen();
}

void Optionen_Dialog::Undo_Getippt(const QString& Text)
{
    Optionen_Form.T_Undo_Max = Nach_Std(Text);
    T_Undo_Max_Change();
    const QSignalBlocker Still(T_Undo_Max);
    if (const QString Neu = Qt_Text(Optionen_Form.T_Undo_Max); Neu != Text)
        T_Undo_Max->setText(Neu);
}

void Optionen_Dialog::Proben_Zeigen()
{
    for (int Ziel = 0; Ziel < Schrift_Anzahl; ++Ziel) {
        const QFont Schrift = Probe_Schrift(Ziel);
        QLabel&     Probe   = *Proben.at(static_cast<std::size_t>(Ziel));
        Probe.setFont(Schrift);
        Probe.setText(QStringLiteral(" %1, %2 pt").arg(Schrift.family()).arg(Schrift.pointSizeF()));
    }
}

void Optionen_Dialog::Farbe_Zeigen()
{
    QPalette Farben = Farb_Probe->palette();
    Farben.setColor(QPalette::Window, Qt_Farbe(Optionen_Form.Farbe));
    Farb_Probe->setPalette(Farben);
}

} // namespace varnholt
