// The window on the simulated board.
#include "ui/Board_Fenster.h"

#include "language/HexDez.h"
#include "ui/Qt_Text.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

namespace varnholt {
namespace {

const std::array<Text_Paar, Board_Stoerungen> Stoerung_Texte = {
    {{"Kein Strom", "No power"},
     {"IC entnommen", "IC taken out"},
     {"Datenleitung D0 hängt auf 0", "Data line D0 stuck at 0"},
     {"Datenleitung D7 hängt auf 1", "Data line D7 stuck at 1"},
     {"Bereit-Leitung bleibt aus", "Ready line never comes"},
     {"Falsche Signatur", "Wrong signature"}}};

constexpr int Erste_MC_Stoerung = 4; // these two need a microcontroller

std::string Datei_Fragen(bool Schreiben)
{
    Dateiwahl_T Wahl{.Filter = In_Sprache({"Inhalt eines ICs (*.bin)|*.bin|Alle Dateien (*.*)|*.*",
                                           "Contents of an IC (*.bin)|*.bin|All files (*.*)|*.*"}),
                     .Speichern = Schreiben};
    Plattform.Dialog->Datei_Waehlen(Wahl);
    return Wahl.Name;
}

void Ergebnis_Melden(const Text_Paar& Was)
{
    if (!Was.E.empty())
        Melden(Was, {}, Knoepfe::Ok, Symbol::Warnung);
}

} // namespace

Board_Fenster::Board_Fenster(Befehls_Weg Ausfuehren, QWidget* Eltern)
    : QDialog(Eltern, Qt::Tool), Weg(std::move(Ausfuehren))
{
    setObjectName(QStringLiteral("Board"));
    auto* Alles = new QVBoxLayout(this);
    Alles->addWidget(Anzeige_Bauen());
    Alles->addWidget(Griffe_Bauen());
    Alles->addWidget(Stoerungen_Bauen());
    Zu = new QPushButton;
    Zu->setObjectName(QStringLiteral("Zu"));
    connect(Zu, &QPushButton::clicked, this, &QWidget::hide);
    Alles->addWidget(Zu, 0, Qt::AlignRight);
    Zeigen();
}

QWidget* Board_Fenster::Anzeige_Bauen()
{
    Sockel     = new QGroupBox;
    auto* Form = new QFormLayout(Sockel);
    for (std::size_t i = 0; i < Werte.size(); ++i) {
        Namen[i] = new QLabel;
        Werte[i] = new QLabel;
        Werte[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        Werte[i]->setObjectName(QStringLiteral("Wert_%1").arg(i));
        Form->addRow(Namen[i], Werte[i]);
    }
    Werte[2]->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Lage = new QLabel;
    Lage->setObjectName(QStringLiteral("Lage"));
    Lage->setWordWrap(true);
    QFont Fett = Lage->font();
    Fett.setBold(true);
    Lage->setFont(Fett);
    Form->addRow(Lage);
    return Sockel;
}

QPushButton* Board_Fenster::Griff(const char* Name, void (Board_Fenster::*Was)())
{
    auto* k = new QPushButton;
    k->setObjectName(QLatin1String(Name));
    k->setAutoDefault(false);
    connect(k, &QPushButton::clicked, this, Was);
    return k;
}

QWidget* Board_Fenster::Griffe_Bauen()
{
    auto* Feld   = new QWidget;
    auto* Gitter = new QGridLayout(Feld);
    Gitter->setContentsMargins(0, 0, 0, 0);
    Neuer        = Griff("Neuer", &Board_Fenster::Neuer_Gewaehlt);
    UV           = Griff("UV", &Board_Fenster::UV_Gewaehlt);
    Laden_Knopf  = Griff("Laden", &Board_Fenster::Datei_Laden_Gewaehlt);
    Sichern      = Griff("Sichern", &Board_Fenster::Datei_Sichern_Gewaehlt);
    Tote         = Griff("Tote_Zelle", &Board_Fenster::Tote_Zelle_Gewaehlt);
    Tote_Adresse = new QLineEdit;
    Tote_Adresse->setObjectName(QStringLiteral("Tote_Adresse"));
    Tote_Adresse->setMaxLength(6);
    Gitter->addWidget(Neuer, 0, 0);
    Gitter->addWidget(UV, 0, 1);
    Gitter->addWidget(Laden_Knopf, 1, 0);
    Gitter->addWidget(Sichern, 1, 1);
    Gitter->addWidget(Tote_Adresse, 2, 0);
    Gitter->addWidget(Tote, 2, 1);
    return Feld;
}

QWidget* Board_Fenster::Stoerungen_Bauen()
{
    Stoerungen   = new QGroupBox;
    auto* Spalte = new QVBoxLayout(Stoerungen);
    for (std::size_t i = 0; i < Haken.size(); ++i) {
        Haken[i] = new QCheckBox;
        Haken[i]->setObjectName(QStringLiteral("Stoerung_%1").arg(i));
        connect(Haken[i], &QCheckBox::toggled, this, [this, i](bool An) {
            Tun([i, An] { Board_Stoeren(static_cast<Board_Stoerung>(i), An); });
        });
        Spalte->addWidget(Haken[i]);
    }
    return Stoerungen;
}

void Board_Fenster::Tun(const std::function<void()>& Was)
{
    Befehl_Ausfuehren(Weg, Was);
    Nachziehen();
}

void Board_Fenster::Neuer_Gewaehlt() { Tun(Board_Neuer_Baustein); }
void Board_Fenster::UV_Gewaehlt() { Tun(Board_UV_Loeschen); }

void Board_Fenster::Tote_Zelle_Gewaehlt()
{
    Tun([this] {
        const std::string Adresse = Nach_Std(Tote_Adresse->text());
        if (Adresse.empty() || !Board_Tote_Zelle(Hex_zu_Wert(Adresse)))
            Ergebnis_Melden(
                {"Diese Adresse hat das IC nicht.", "The IC doesn't have that address."});
    });
}

void Board_Fenster::Datei_Laden_Gewaehlt()
{
    Tun([] {
        const std::string Name = Datei_Fragen(false);
        if (!Name.empty())
            Ergebnis_Melden(Board_Laden(Name));
    });
}

void Board_Fenster::Datei_Sichern_Gewaehlt()
{
    Tun([] {
        const std::string Name = Datei_Fragen(true);
        if (!Name.empty())
            Ergebnis_Melden(Board_Sichern(Name));
    });
}

void Board_Fenster::Nachziehen()
{
    if (isVisible())
        Zeigen();
}

void Board_Fenster::showEvent(QShowEvent* Ereignis)
{
    QDialog::showEvent(Ereignis);
    Zeigen();
}

void Board_Fenster::Zeigen()
{
    const Board_Bild b = Board_Ansehen();
    setWindowTitle(Qt_In_Sprache({"Simuliertes Board", "Simulated board"}));
    Sockel->setTitle(Qt_In_Sprache({"Im Sockel", "In the socket"}));
    const std::array<Text_Paar, 5>   Titel  = {{{"Board:", "Board:"},
                                                {"IC:", "IC:"},
                                                {"Erste Bytes:", "First bytes:"},
                                                {"Benutzt:", "Used:"},
                                                {"Prüfsumme (CRC-32):", "Checksum (CRC-32):"}}};
    const std::array<std::string, 5> Inhalt = {
        b.Board, b.Baustein, b.Bytes, b.Benutzt, b.Pruefsumme};
    for (std::size_t i = 0; i < Werte.size(); ++i) {
        Namen[i]->setText(Qt_In_Sprache(Titel[i]));
        Werte[i]->setText(Inhalt[i].empty() ? QStringLiteral("-") : Qt_Text(Inhalt[i]));
    }
    Lage->setText(
        b.Simuliert
            ? Qt_Text(b.Lage)
            : Qt_In_Sprache({"Der eingestellte Port ist nicht der simulierte (siehe Optionen).",
                             "The port in use isn't the simulated one (see the options)."}));
    Lage->setVisible(!Lage->text().isEmpty());
    Neuer->setText(Qt_In_Sprache({"Neues IC einsetzen", "Put a new IC in"}));
    UV->setText(Qt_In_Sprache({"Mit UV-Licht löschen", "Erase with UV light"}));
    Laden_Knopf->setText(Qt_In_Sprache({"Inhalt laden...", "Load contents..."}));
    Sichern->setText(Qt_In_Sprache({"Inhalt sichern...", "Save contents..."}));
    Tote->setText(Qt_In_Sprache({"Zelle (hex) defekt machen", "Make that cell (hex) fail"}));
    Tote_Adresse->setPlaceholderText(Qt_In_Sprache({"Adresse", "Address"}));
    Stoerungen->setTitle(Qt_In_Sprache({"Störungen", "Faults"}));
    Zu->setText(Qt_In_Sprache({"Schließen", "Close"}));
    Neuer->setEnabled(b.Simuliert);
    UV->setEnabled(b.Hat_Baustein && b.UV_Loeschbar);
    for (QPushButton* k : {Laden_Knopf, Sichern, Tote})
        k->setEnabled(b.Hat_Baustein);
    for (std::size_t i = 0; i < Haken.size(); ++i) {
        const QSignalBlocker Still(Haken[i]);
        Haken[i]->setText(Qt_In_Sprache(Stoerung_Texte[i]));
        Haken[i]->setChecked(Board_Gestoert(static_cast<Board_Stoerung>(i)));
        Haken[i]->setEnabled(b.Simuliert && (b.Ist_MC || i < Erste_MC_Stoerung));
    }
}

} // namespace varnholt
