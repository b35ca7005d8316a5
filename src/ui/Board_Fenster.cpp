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

const std::array<Text_Paar, Board_Stoerungen> Haken_Texte = {
    {{"Kein Strom", "No power"},
     {"IC entnommen", "IC taken out"},
     {"Datenleitung D0 hängt auf 0", "Data line D0 stuck at 0"},
     {"Datenleitung D7 hängt auf 1", "Data line D7 stuck at 1"},
     {"Bereit-Leitung bleibt aus", "Ready line never comes"},
     {"Falsche Signatur", "Wrong signature"},
     {"IC lässt sich nicht löschen", "IC can't be erased"},
     {"Speichern dauert 20-mal so lang", "Storing takes 20 times as long"},
     {"Löschdraht (27SF) vergessen", "Erase wire (27SF) forgotten"},
     {"IC mit 5 V Brennspannung", "IC programmed with 5 V"}}};

constexpr int Haken_Je_Spalte = Board_Stoerungen / 2;

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
    Neuer       = Griff("Neuer", &Board_Fenster::Neuer_Gewaehlt);
    UV          = Griff("UV", &Board_Fenster::UV_Gewaehlt);
    Laden_Knopf = Griff("Laden", &Board_Fenster::Datei_Laden_Gewaehlt);
    Sichern     = Griff("Sichern", &Board_Fenster::Datei_Sichern_Gewaehlt);
    Gitter->addWidget(Neuer, 0, 0);
    Gitter->addWidget(UV, 0, 1);
    Gitter->addWidget(Laden_Knopf, 1, 0);
    Gitter->addWidget(Sichern, 1, 1);
    return Feld;
}

// Faults at one place of the part: its address, and what is to be wrong there.
QWidget* Board_Fenster::Zellen_Bauen()
{
    auto* Feld  = new QWidget;
    auto* Zeile = new QHBoxLayout(Feld);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Adress_Name = new QLabel;
    Adresse     = new QLineEdit;
    Adresse->setObjectName(QStringLiteral("Tote_Adresse"));
    Adresse->setMaxLength(6);
    Adresse->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
    Adress_Name->setBuddy(Adresse);
    Tote     = Griff("Tote_Zelle", &Board_Fenster::Tote_Zelle_Gewaehlt);
    Schwache = Griff("Schwache_Zelle", &Board_Fenster::Schwache_Zelle_Gewaehlt);
    Seite    = Griff("Schlechte_Seite", &Board_Fenster::Schlechte_Seite_Gewaehlt);
    for (QWidget* w : {static_cast<QWidget*>(Adress_Name), static_cast<QWidget*>(Adresse)})
        Zeile->addWidget(w);
    for (QPushButton* k : {Tote, Schwache, Seite})
        Zeile->addWidget(k, 1);
    return Feld;
}

QWidget* Board_Fenster::Stoerungen_Bauen()
{
    Stoerungen   = new QGroupBox;
    auto* Gitter = new QGridLayout(Stoerungen);
    for (std::size_t i = 0; i < Haken.size(); ++i) {
        Haken[i] = new QCheckBox;
        Haken[i]->setObjectName(QStringLiteral("Stoerung_%1").arg(i));
        connect(Haken[i], &QCheckBox::toggled, this, [this, i](bool An) {
            Tun([i, An] { Board_Stoeren(static_cast<Board_Stoerung>(i), An); });
        });
        const int Platz = static_cast<int>(i);
        Gitter->addWidget(Haken[i], Platz % Haken_Je_Spalte, Platz / Haken_Je_Spalte);
    }
    Gitter->addWidget(Zellen_Bauen(), Haken_Je_Spalte, 0, 1, 2);
    return Stoerungen;
}

void Board_Fenster::Tun(const std::function<void()>& Was)
{
    Befehl_Ausfuehren(Weg, Was);
    Nachziehen();
}

void Board_Fenster::Neuer_Gewaehlt() { Tun(Board_Neuer_Baustein); }
void Board_Fenster::UV_Gewaehlt() { Tun(Board_UV_Loeschen); }

void Board_Fenster::Stelle_Stoeren(bool (*Stoeren)(std::int32_t))
{
    Tun([this, Stoeren] {
        const std::string Stelle = Nach_Std(Adresse->text());
        if (Stelle.empty() || !Stoeren(Hex_zu_Wert(Stelle)))
            Ergebnis_Melden(
                {"Diese Adresse hat das IC nicht.", "The IC doesn't have that address."});
    });
}

void Board_Fenster::Tote_Zelle_Gewaehlt() { Stelle_Stoeren(Board_Tote_Zelle); }
void Board_Fenster::Schwache_Zelle_Gewaehlt() { Stelle_Stoeren(Board_Schwache_Zelle); }
void Board_Fenster::Schlechte_Seite_Gewaehlt() { Stelle_Stoeren(Board_Schlechte_Seite); }

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
    Beschriften();
    Werte_Zeigen(b);
    Neuer->setEnabled(b.Simuliert);
    UV->setEnabled(b.Hat_Baustein && b.UV_Loeschbar);
    for (QPushButton* k : {Laden_Knopf, Sichern, Tote, Schwache})
        k->setEnabled(b.Hat_Baustein);
    Seite->setEnabled(b.Hat_Baustein && b.Hat_Seiten);
    for (std::size_t i = 0; i < Haken.size(); ++i) {
        const QSignalBlocker Still(Haken[i]);
        const auto           Welche = static_cast<Board_Stoerung>(i);
        Haken[i]->setChecked(Board_Gestoert(Welche));
        Haken[i]->setEnabled(Board_Stoerung_Moeglich(Welche));
    }
}

void Board_Fenster::Beschriften()
{
    setWindowTitle(Qt_In_Sprache({"Simuliertes Board", "Simulated board"}));
    Sockel->setTitle(Qt_In_Sprache({"Im Sockel", "In the socket"}));
    Neuer->setText(Qt_In_Sprache({"Neues IC einsetzen", "Put a new IC in"}));
    UV->setText(Qt_In_Sprache({"Mit UV-Licht löschen", "Erase with UV light"}));
    Laden_Knopf->setText(Qt_In_Sprache({"Inhalt laden...", "Load contents..."}));
    Sichern->setText(Qt_In_Sprache({"Inhalt sichern...", "Save contents..."}));
    Adress_Name->setText(Qt_In_Sprache({"Adresse (hex):", "Address (hex):"}));
    Tote->setText(Qt_In_Sprache({"Zelle defekt", "Dead cell"}));
    Schwache->setText(Qt_In_Sprache({"Zelle schwach", "Weak cell"}));
    Seite->setText(Qt_In_Sprache({"Seite defekt", "Dead page"}));
    Tote->setToolTip(
        Qt_In_Sprache({"Diese Zelle lässt sich nicht brennen.", "This cell can't be programmed."}));
    Schwache->setToolTip(Qt_In_Sprache({"Diese Zelle nimmt erst beim fünften Versuch an.",
                                        "This cell takes at the fifth attempt."}));
    Seite->setToolTip(Qt_In_Sprache({"Die Seite mit dieser Adresse wird nie gespeichert.",
                                     "The page of that address is never stored."}));
    Stoerungen->setTitle(Qt_In_Sprache({"Störungen", "Faults"}));
    for (std::size_t i = 0; i < Haken.size(); ++i)
        Haken[i]->setText(Qt_In_Sprache(Haken_Texte[i]));
    Zu->setText(Qt_In_Sprache({"Schließen", "Close"}));
}

void Board_Fenster::Werte_Zeigen(const Board_Bild& b)
{
    const std::array<Text_Paar, 6>   Titel  = {{{"Board:", "Board:"},
                                                {"IC:", "IC:"},
                                                {"Erste Bytes:", "First bytes:"},
                                                {"Benutzt:", "Used:"},
                                                {"Prüfsumme (CRC-32):", "Checksum (CRC-32):"},
                                                {"Gestörte Stellen:", "Faulty places:"}}};
    const std::array<std::string, 6> Inhalt = {
        b.Board, b.Baustein, b.Bytes, b.Benutzt, b.Pruefsumme, b.Stellen};
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
}

} // namespace varnholt
