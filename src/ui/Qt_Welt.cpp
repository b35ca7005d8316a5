// The desktop behind the wall.
#include "ui/Qt_Welt.h"

#include "core/codepage.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "core/version.h"
#include "simulator/Sitzung.h"
#include "ui/Abfrage_Dialog.h"
#include "ui/Qt_Text.h"
#include "ui/Verknuepfung.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTime>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace varnholt {
namespace {

QMessageBox::Icon Symbol_Von(Symbol Bild)
{
    switch (Bild) {
    case Symbol::Hinweis:
        return QMessageBox::Information;
    case Symbol::Frage:
        return QMessageBox::Question;
    case Symbol::Warnung:
        return QMessageBox::Warning;
    case Symbol::Kritisch:
        return QMessageBox::Critical;
    case Symbol::Kein:
        break;
    }
    return QMessageBox::NoIcon;
}

struct Antwort_Knopf_T {
    int                         Antwort;
    Text_Paar                   Text;
    QMessageBox::StandardButton Taste;
};

std::vector<Antwort_Knopf_T> Knoepfe_Von(Knoepfe Tasten)
{
    const Antwort_Knopf_T Ja{Antwort_Ja, {"&Ja", "&Yes"}, QMessageBox::Yes};
    const Antwort_Knopf_T Nein{Antwort_Nein, {"&Nein", "&No"}, QMessageBox::No};
    const Antwort_Knopf_T Ok{Antwort_Ok, {"OK", "OK"}, QMessageBox::Ok};
    const Antwort_Knopf_T Weg{Antwort_Abbrechen, {"Abbrechen", "Cancel"}, QMessageBox::Cancel};
    switch (Tasten) {
    case Knoepfe::Ok:
        return {Ok};
    case Knoepfe::Ok_Abbrechen:
        return {Ok, Weg};
    case Knoepfe::Ja_Nein:
        return {Ja, Nein};
    case Knoepfe::Ja_Nein_Abbrechen:
        break;
    }
    return {Ja, Nein, Weg};
}

// Shows the ordinary pointer for as long as a dialog waits for its user.
class Ohne_Wartezeiger {
public:
    Ohne_Wartezeiger() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~Ohne_Wartezeiger() { QApplication::restoreOverrideCursor(); }
    Ohne_Wartezeiger(const Ohne_Wartezeiger&)            = delete;
    Ohne_Wartezeiger& operator=(const Ohne_Wartezeiger&) = delete;
};

// A modal window (the progress dialog) keeps the others out of reach by itself, and a program that
// the debugger runs is at the user's command; else keys and clicks wait until the running command
// is through.
QEventLoop::ProcessEventsFlag Art_Der_Runde()
{
    return QApplication::activeModalWidget() != nullptr || Programm_Laeuft()
               ? QEventLoop::AllEvents
               : QEventLoop::ExcludeUserInputEvents;
}

QWidget* Oberstes() { return QApplication::activeWindow(); }

} // namespace

// --- boxes ---

int Qt_Box::Zeigen(const Meldung_T& Meldung)
{
    const Ohne_Wartezeiger Zeiger;
    QMessageBox            Box(Oberstes());
    Box.setObjectName(QStringLiteral("Meldung"));
    Box.setWindowTitle(Meldung.Titel.empty() ? Qt_Text(Programm_Name)
                                             : Meldungs_Text(Meldung.Titel));
    Box.setTextFormat(Qt::PlainText);
    Box.setText(Meldungs_Text(Meldung.Text).trimmed());
    Box.setIcon(Symbol_Von(Meldung.Bild));
    const auto Tasten = Knoepfe_Von(Meldung.Tasten);
    for (const Antwort_Knopf_T& k : Tasten)
        Box.addButton(k.Taste)->setText(Qt_Text(In_Sprache(k.Text)));
    // The close box means the most careful answer that there is.
    Box.setEscapeButton(Tasten.back().Taste);
    const int Gedrueckt = Box.exec();
    for (const Antwort_Knopf_T& k : Tasten)
        if (k.Taste == Gedrueckt)
            return k.Antwort;
    return Tasten.back().Antwort;
}

std::string Qt_Box::Eingeben(std::string_view Text)
{
    const Ohne_Wartezeiger Zeiger;
    QInputDialog           Dialog(Oberstes());
    Dialog.setObjectName(QStringLiteral("Eingabe"));
    Dialog.setWindowTitle(Qt_Text(Programm_Name));
    Dialog.setLabelText(Meldungs_Text(Text));
    Dialog.setOkButtonText(QStringLiteral("OK"));
    Dialog.setCancelButtonText(Qt_Text(In_Sprache({"Abbrechen", "Cancel"})));
    for (auto* Schild : Dialog.findChildren<QLabel*>())
        Schild->setWordWrap(true);
    Dialog.setMinimumWidth(420);
    return Dialog.exec() == QDialog::Accepted ? Nach_Std(Dialog.textValue().trimmed())
                                              : std::string{};
}

void Qt_Box::Hinweisen(std::string_view Text)
{
    if (Bei_Hinweis)
        Bei_Hinweis(Text);
}

int Qt_Box::Bereich_Waehlen(std::string_view Text)
{
    const Ohne_Wartezeiger Zeiger;
    Abfrage_Dialog         Dialog(Text, Oberstes());
    return Dialog.Waehlen();
}

// --- event loop ---

void Qt_Ereignisse::Eine_Runde()
{
    if (Nachziehen)
        Nachziehen();
    QApplication::processEvents(Art_Der_Runde());
}

void Qt_Ereignisse::Mauszeiger_Warten(bool Warten)
{
    if (Warten == Zeiger_Wartet)
        return;
    Zeiger_Wartet = Warten;
    if (Warten)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void Qt_Ereignisse::Fenster_Sperren(bool Gesperrt)
{
    if (Bei_Sperren)
        Bei_Sperren(Gesperrt);
}

void Qt_Ereignisse::Pause(double Sekunden)
{
    if (Uhr)
        return Eine_Runde();
    QEventLoop                 Schleife;
    const QScopedValueRollback Diese(Pausierend, &Schleife);
    QTimer::singleShot(static_cast<int>(Sekunden * 1000), &Schleife, &QEventLoop::quit);
    Schleife.exec(Art_Der_Runde());
}

void Qt_Ereignisse::Pause_Beenden()
{
    if (Pausierend != nullptr)
        Pausierend->quit();
}

void Qt_Ereignisse::Titel(int Fenster, std::string_view Text)
{
    if (Bei_Titel)
        Bei_Titel(Fenster, Text);
}

double Qt_Ereignisse::Sekunden()
{
    return Uhr ? Uhr() : QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void Qt_Ereignisse::Ton() { QApplication::beep(); }

// --- dialogs ---

QStringList Qt_Filter(std::string_view Filter)
{
    const QStringList Teile = Qt_Text(Filter).split(QLatin1Char('|'));
    QStringList       Liste;
    for (qsizetype i = 0; i + 1 < Teile.size(); i += 2) {
        QStringList Muster;
        for (const QString& m : Teile[i + 1].split(QLatin1Char(';')))
            if (m.trimmed() == QLatin1String("*.*"))
                Muster << QStringLiteral("*");
            else
                Muster << m.trimmed() << m.trimmed().toUpper();
        Muster.removeDuplicates();
        // The text in brackets is shown anyway; Qt takes the patterns from there.
        const QString Name = Teile[i].left(Teile[i].lastIndexOf(QLatin1Char('('))).trimmed();
        Liste << Name + QStringLiteral(" (") + Muster.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return Liste;
}

QString Filter_Endung(const QString& Filter)
{
    const qsizetype Stern = Filter.indexOf(QLatin1String("(*."));
    if (Stern < 0)
        return {};
    const qsizetype Anfang = Stern + 3;
    const qsizetype Ende   = Filter.indexOf(QRegularExpression(QStringLiteral("[ )]")), Anfang);
    return Filter.mid(Anfang, Ende - Anfang);
}

namespace {

// Qt's own texts of the dialog, in the interface language and not in the desktop's.
void Beschriften(QFileDialog& Dialog, bool Speichern)
{
    const auto Setzen = [&Dialog](QFileDialog::DialogLabel Feld, const Text_Paar& Text) {
        Dialog.setLabelText(Feld, Qt_Text(In_Sprache(Text)));
    };
    Setzen(QFileDialog::LookIn, {"Suchen in:", "Look in:"});
    Setzen(QFileDialog::FileName, {"Datei&name:", "File &name:"});
    Setzen(QFileDialog::FileType, {"Dateityp:", "Files of type:"});
    Setzen(QFileDialog::Accept,
           Speichern ? Text_Paar{"&Speichern", "&Save"} : Text_Paar{"Ö&ffnen", "&Open"});
    Setzen(QFileDialog::Reject, {"Abbrechen", "Cancel"});
}

} // namespace

void Qt_Dialoge::Datei_Waehlen(Dateiwahl_T& Wahl)
{
    const Ohne_Wartezeiger Zeiger;
    const QStringList      Filter = Qt_Filter(Wahl.Filter);
    QFileDialog            Dialog(Oberstes());
    Dialog.setObjectName(QStringLiteral("CommonDialog"));
    Dialog.setWindowTitle(Qt_Text(In_Sprache(
        Wahl.Speichern ? Text_Paar{"Speichern unter", "Save As"} : Text_Paar{"Öffnen", "Open"})));
    Beschriften(Dialog, Wahl.Speichern);
    Dialog.setAcceptMode(Wahl.Speichern ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    Dialog.setFileMode(Wahl.Speichern ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    Dialog.setOption(QFileDialog::DontConfirmOverwrite, Wahl.Speichern);
    Dialog.setNameFilters(Filter);
    if (Wahl.Filter_Nummer >= 1 && Wahl.Filter_Nummer <= Filter.size())
        Dialog.selectNameFilter(Filter[Wahl.Filter_Nummer - 1]);
    if (!Wahl.Verzeichnis.empty())
        Dialog.setDirectory(Qt_Text(Wahl.Verzeichnis));
    if (!Wahl.Name.empty())
        Dialog.selectFile(Qt_Text(Wahl.Name));
    // A name without an extension gets that of the filter; the filter "all files" has none.
    const auto Endung_Setzen = [&Dialog](const QString& Gewaehlt) {
        Dialog.setDefaultSuffix(Filter_Endung(Gewaehlt));
    };
    Endung_Setzen(Dialog.selectedNameFilter());
    QObject::connect(&Dialog, &QFileDialog::filterSelected, &Dialog, Endung_Setzen);
    Wahl.Name.clear();
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty())
        return;
    Wahl.Name          = Nach_Std(Dialog.selectedFiles().constFirst());
    Wahl.Filter_Nummer = static_cast<int>(Filter.indexOf(Dialog.selectedNameFilter())) + 1;
}

std::optional<Schrift_T> Qt_Dialoge::Schrift_Waehlen(const Schrift_T& Bisher)
{
    constexpr double Kleinste = 6;
    constexpr double Groesste = 22;
    bool             Ok       = false;
    const QFont      Neu =
        QFontDialog::getFont(&Ok, Qt_Schrift(Bisher, QApplication::font()), Oberstes());
    if (!Ok)
        return std::nullopt;
    Schrift_T Schrift = Schrift_Aus(Neu);
    Schrift.Groesse   = std::clamp(Schrift.Groesse, Kleinste, Groesste);
    return Schrift;
}

std::optional<std::int32_t> Qt_Dialoge::Farbe_Waehlen(std::int32_t Bisher)
{
    const QColor Neu = QColorDialog::getColor(Qt_Farbe(Bisher), Oberstes());
    return Neu.isValid() ? std::optional(Farbe_Aus(Neu)) : std::nullopt;
}

// --- clipboard and shell ---

namespace {

// The clipboard's text with CR LF, from whatever program it comes.
QString Ablage_Text()
{
    QString Text = QApplication::clipboard()->text();
    Text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    return Text.replace(QLatin1String("\n"), QLatin1String("\r\n"));
}

} // namespace

std::string Qt_Ablage::Text() const { return Nach_1252(Ablage_Text()); }

std::string Qt_Ablage::Text_UTF8() const { return Nach_Std(Ablage_Text()); }

void Qt_Ablage::Setzen(std::string_view Text) { Setzen_UTF8(Nach_UTF8(Text)); }

void Qt_Ablage::Setzen_UTF8(std::string_view Text)
{
    QApplication::clipboard()->setText(Meldungs_Text(Text));
}

bool Qt_Schale::Oeffnen(std::string_view Ort)
{
    const QString Text = Qt_Text(Ort);
    return QDesktopServices::openUrl(Text.startsWith(QLatin1Char('/')) ? QUrl::fromLocalFile(Text)
                                                                       : QUrl(Text));
}

void Qt_Schale::Dateityp_Verknuepfen(const Dateityp_T& Typ)
{
    Dateityp_Fuer_Benutzer_Verknuepfen(Typ);
}

} // namespace varnholt
