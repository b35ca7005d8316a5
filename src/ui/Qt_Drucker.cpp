// Printing with Qt.
#include "ui/Qt_Drucker.h"

#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Dateizugriff.h"
#include "ui/Druck_Dialog.h"
#include "ui/Druck_Vorschau.h"
#include "ui/Qt_Text.h"

#include <QBuffer>
#include <QDate>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTime>

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

constexpr int Tabulator  = 8; // characters
constexpr int PDF_Filter = 1;
constexpr int Rundung    = 3; // device units by which the edges of two sheets may be off

// Control characters have no picture on paper.
bool Ist_Steuerzeichen(QChar c)
{
    return (c.unicode() < 0x20 && c != u'\t') || (c.unicode() >= 0x7F && c.unicode() < 0xA0);
}

QString Druckbar(QString Text)
{
    std::replace_if(Text.begin(), Text.end(), Ist_Steuerzeichen, QChar(u' '));
    return Text;
}

// The pieces of a text between its tabs, each with its place from x on; the place behind the last.
template <class Tun>
double Je_Stueck(const QString& Text, const QFontMetricsF& Mass, double x, Tun&& Nimm)
{
    const double      Stop  = Tabulator * Mass.horizontalAdvance(u' ');
    const QStringList Teile = Text.split(u'\t');
    for (qsizetype i = 0; i < Teile.size(); ++i) {
        if (i > 0)
            x = (std::floor(x / Stop) + 1) * Stop;
        Nimm(x, Teile[i]);
        x += Mass.horizontalAdvance(Teile[i]);
    }
    return x;
}

double Breite_Von(const QString& Text, const QFontMetricsF& Mass)
{
    return Je_Stueck(Text, Mass, 0, [](double, const QString&) {});
}

void Beginn_Fehler_Melden()
{
    Melden({"Der Druck konnte nicht begonnen werden.", "Printing could not be started."},
           {},
           Knoepfe::Ok,
           Symbol::Warnung);
}

void Druckfehler_Melden()
{
    Melden({"Der Drucker hat nicht alle Seiten angenommen. Der Ausdruck ist unvollständig.",
            "The printer didn't take all pages. The printout is incomplete."},
           {},
           Knoepfe::Ok,
           Symbol::Warnung);
}

bool Ersetzen_Erlaubt(const std::string& Name)
{
    if (!QFileInfo::exists(Qt_Text(Name)))
        return true;
    Antwort = Antwort_Ja;
    Melden({"Die Datei " + Name + " gibt es schon. Soll sie ersetzt werden?",
            "The file " + Name + " exists already. Replace it?"},
           {},
           Knoepfe::Ja_Nein,
           Symbol::Frage);
    return Antwort == Antwort_Ja;
}

// Proposed is the document's name.
Dateiwahl_T PDF_Wahl()
{
    Dateiwahl_T Wahl{.Filter = "PDF (*.pdf)|*.pdf", .Filter_Nummer = PDF_Filter, .Speichern = true};
    if (Datei_Name.empty())
        return Wahl;
    const QFileInfo Dokument(Qt_Text(Datei_Name));
    Wahl.Verzeichnis = Nach_Std(Dokument.path());
    Wahl.Name        = Nach_Std(Dokument.completeBaseName()) + ".pdf";
    return Wahl;
}

} // namespace

Qt_Drucker::Qt_Drucker(QWidget* Eltern) : Fenster(Eltern) {}
Qt_Drucker::Qt_Drucker(QWidget* Eltern, std::unique_ptr<QPrinter> Anderes_Geraet)
    : Fenster(Eltern), Druck_Geraet(std::move(Anderes_Geraet))
{
}
Qt_Drucker::~Qt_Drucker() = default;

// Built late: it asks the system for its printers, which takes its time.
QPrinter& Qt_Drucker::Geraet()
{
    if (!Druck_Geraet) {
        Druck_Geraet = std::make_unique<QPrinter>(QPrinter::HighResolution);
        Druck_Geraet->setPageSize(QPageSize(QPageSize::A4));
        Druck_Geraet->setPageMargins(QMarginsF(14, 12, 8, 12), QPageLayout::Millimeter);
    }
    return *Druck_Geraet;
}

QRectF Qt_Drucker::Druckbereich() const { return Druck_Geraet->pageRect(QPrinter::DevicePixel); }

// --- where it goes ---

void Qt_Drucker::Einrichten()
{
    QPageSetupDialog Dialog(&Geraet(), Fenster);
    Dialog.exec();
}

bool Qt_Drucker::PDF_Datei_Waehlen()
{
    Dateiwahl_T Wahl = PDF_Wahl();
    for (;;) {
        Plattform.Dialog->Datei_Waehlen(Wahl);
        if (Wahl.Name.empty())
            return false;
        PDF_Datei = Qt_Text(Wahl.Name);
        if (Ersetzen_Erlaubt(Wahl.Name))
            return true;
        const QFileInfo Abgelehnt(PDF_Datei); // from there on
        Wahl.Verzeichnis = Nach_Std(Abgelehnt.path());
        Wahl.Name        = Nach_Std(Abgelehnt.fileName());
    }
}

bool Qt_Drucker::Ziel_Bestimmen() { return !Drucker_Name.isEmpty() || PDF_Datei_Waehlen(); }

void Qt_Drucker::In_PDF(const QString& Name)
{
    Drucker_Name.clear();
    PDF_Datei = Name;
    Vorschau  = false;
}

bool Qt_Drucker::Waehlen(Druckwahl_T& Wahl)
{
    Druck_Dialog Dialog(Wahl.Markierung_Anbieten, Fenster);
    if (Dialog.exec() != QDialog::Accepted)
        return false;
    Wahl.Markierung = Dialog.Nur_Markierung();
    Drucker_Name    = Dialog.Drucker_Name();
    Vorschau        = Dialog.Vorschau_Gewaehlt();
    Geraet().setCopyCount(Dialog.Kopien());
    return Vorschau || Ziel_Bestimmen();
}

bool Qt_Drucker::Drucker_Einstellen(const QString& Name)
{
    if (QPrinterInfo::printerInfo(Name).isNull())
        return false;
    Geraet().setOutputFormat(QPrinter::NativeFormat);
    Geraet().setPrinterName(Name);
    return Geraet().isValid();
}

// --- a document ---

bool Qt_Drucker::Beginnen(std::string_view Name)
{
    Hoehe = 0;
    Titel = QFileInfo(Qt_Text(Name)).fileName();
    Seiten.assign(1, {});
    if (!Drucker_Name.isEmpty() && !Drucker_Einstellen(Drucker_Name)) {
        Beginn_Fehler_Melden();
        return false;
    }
    Blatt_Groesse = Geraet().pageLayout().paintRect(QPageLayout::Point).size();
    return Vorschau || Blatt_Oeffnen();
}

bool Qt_Drucker::Blatt_Oeffnen()
{
    Gescheitert = false;
    Geraet().setDocName(Titel);
    Blatt = &Geraet();
    PDF_Blatt.reset();
    if (Drucker_Name.isEmpty())
        PDF_Blatt_Bauen();
    Maler = std::make_unique<QPainter>();
    if (Maler->begin(Blatt))
        return true;
    Maler.reset();
    Beginn_Fehler_Melden();
    return false;
}

void Qt_Drucker::PDF_Blatt_Bauen()
{
    PDF_Puffer = std::make_unique<QBuffer>();
    PDF_Puffer->open(QIODevice::WriteOnly);
    PDF_Blatt = std::make_unique<QPdfWriter>(PDF_Puffer.get());
    PDF_Blatt->setTitle(Titel);
    PDF_Blatt->setResolution(Geraet().resolution());
    PDF_Blatt->setPageLayout(Geraet().pageLayout());
    Blatt = PDF_Blatt.get();
}

void Qt_Drucker::Schrift(const Schrift_T& Neue)
{
    Jetzige_Schrift = Qt_Schrift(Neue, Schrift_Vorgabe(Schrift_Edit));
    Jetzige_Schrift.setStyleHint(QFont::Monospace);
}

int Qt_Drucker::Zeilen_Je_Seite() const
{
    const QFontMetricsF Mass(Jetzige_Schrift, Druck_Geraet.get());
    return std::max(1, static_cast<int>(Druckbereich().height() / Mass.lineSpacing()));
}

bool Qt_Drucker::Passt(std::string_view Text) const
{
    const QFontMetricsF Mass(Jetzige_Schrift, Druck_Geraet.get());
    return Breite_Von(Druckbar(Qt_Text(Text)), Mass) <= Druckbereich().width();
}

// The place behind the line.
double Qt_Drucker::Zeile_Malen(QPainter& Pinsel, const Zeile_T& z, double y)
{
    Pinsel.setFont(z.Schrift);
    const QFontMetricsF Mass(z.Schrift, Pinsel.device());
    const double        Grundlinie = y + Mass.ascent();
    double              x          = 0;
    qsizetype           Stelle     = 0;
    const auto          Bis        = [&](qsizetype Ende, const QColor& Farbe) {
        Ende = std::clamp(Ende, Stelle, z.Text.size());
        Pinsel.setPen(Farbe);
        x = Je_Stueck(
            z.Text.mid(Stelle, Ende - Stelle), Mass, x, [&](double Von, const QString& t) {
                Pinsel.drawText(QPointF(Von, Grundlinie), t);
            });
        Stelle = Ende;
    };
    for (const Farbstelle_T& f : z.Farben) {
        Bis(static_cast<qsizetype>(f.Anfang), Qt::black);
        Bis(static_cast<qsizetype>(f.Anfang + f.Laenge), Qt_Farbe(f.Farbe));
    }
    Bis(z.Text.size(), Qt::black);
    return x;
}

bool Qt_Drucker::Zeile(std::string_view Text, std::span<const Farbstelle_T> Farben)
{
    const QFontMetricsF Mass(Jetzige_Schrift, Druck_Geraet.get());
    Zeile_T             z{Druckbar(Qt_Text(Text)), {Farben.begin(), Farben.end()}, Jetzige_Schrift};
    double              Breite = 0;
    if (Maler) {
        Breite = Zeile_Malen(*Maler, z, Hoehe);
        Hoehe += Mass.lineSpacing();
    } else {
        Breite = Breite_Von(z.Text, Mass);
        Seiten.back().push_back(std::move(z));
    }
    return Breite <= Druckbereich().width();
}

bool Qt_Drucker::Neue_Seite()
{
    Hoehe = 0;
    if (!Maler) {
        Seiten.emplace_back();
        return true;
    }
    Gescheitert = !Blatt->newPage();
    return !Gescheitert;
}

bool Qt_Drucker::Beenden(bool Ganz)
{
    const bool Gut = Maler ? Blatt_Schliessen(Ganz)
                           : !Ganz || (Vorschau_Zeigen() && Ziel_Bestimmen() && Blatt_Oeffnen() &&
                                       Seiten_Drucken());
    Seiten.clear();
    return Gut;
}

// A file is written only when the document is whole.
bool Qt_Drucker::Blatt_Schliessen(bool Ganz)
{
    const bool Gut = Maler->end() && !Gescheitert;
    const bool PDF = PDF_Blatt != nullptr;
    Maler.reset();
    PDF_Blatt.reset();
    Blatt = nullptr;
    if (!Gut)
        Druckfehler_Melden();
    const bool Geschrieben = !Gut || !PDF || !Ganz || PDF_Schreiben();
    PDF_Puffer.reset();
    return Gut && Geschrieben;
}

bool Qt_Drucker::PDF_Schreiben()
{
    const QByteArray& Bytes = PDF_Puffer->data();
    const std::string Name  = Nach_Std(PDF_Datei);
    std::string       Grund;
    if (Datei_Schreiben(Name, {Bytes.constData(), static_cast<std::size_t>(Bytes.size())}, Grund))
        return true;
    Melden({"Die Datei " + Name + " konnte nicht geschrieben werden: " + Grund + ".",
            "The file " + Name + " could not be written: " + Grund + "."},
           {},
           Knoepfe::Ok,
           Symbol::Warnung);
    return false;
}

// --- the preview ---

// False: closed without printing.
bool Qt_Drucker::Vorschau_Zeigen()
{
    Druck_Vorschau Dialog(
        Geraet(), [this](QPrinter& Papier) { Vorschau_Malen(Papier); }, Fenster);
    return Dialog.exec() == QDialog::Accepted;
}

void Qt_Drucker::Vorschau_Malen(QPrinter& Papier)
{
    QPainter Pinsel(&Papier);
    Seiten_Malen(Pinsel, Papier, [](std::size_t) { return true; });
}

// From the preview to the sheet that is open.
bool Qt_Drucker::Seiten_Drucken()
{
    {
        Druckfortgang Lauf;
        Druckauftrag.Ganz = Seiten_Malen(
            *Maler, *Blatt, [&](std::size_t i) { return Lauf.Weiter(i, Seiten.size()); });
    }
    Druckauftrag.Zu_Breit = Zu_Breit;
    return Blatt_Schliessen(Druckauftrag.Ganz);
}

// The pages were cut for the sheet of the setup; on a smaller one, chosen in the preview, they
// shrink. False when the printer fails or the user has given up.
bool Qt_Drucker::Seiten_Malen(QPainter& Pinsel, QPagedPaintDevice& Papier, const Weiter_T& Weiter)
{
    const QPageLayout Blattlage = Papier.pageLayout();
    const QSizeF      Platz     = Blattlage.paintRect(QPageLayout::Point).size();
    const double      Faktor    = std::min(
        {1.0, Platz.width() / Blatt_Groesse.width(), Platz.height() / Blatt_Groesse.height()});
    const int Breite = Blattlage.paintRectPixels(Pinsel.device()->logicalDpiX()).width();
    Pinsel.scale(Faktor, Faktor);
    Zu_Breit = 0;
    for (std::size_t i = 0; i < Seiten.size(); ++i) {
        if (!Weiter(i))
            return false;
        Gescheitert = i > 0 && !Papier.newPage();
        if (Gescheitert)
            return false;
        Zu_Breit += Seite_Malen(Pinsel, Seiten[i], Breite / Faktor + Rundung);
    }
    return true;
}

// The number of lines that ran over the right margin.
int Qt_Drucker::Seite_Malen(QPainter& Pinsel, const Seite_T& s, double Rand)
{
    int    Ueber = 0;
    double y     = 0;
    for (const Zeile_T& z : s) {
        Ueber += Zeile_Malen(Pinsel, z, y) > Rand ? 1 : 0;
        y += QFontMetricsF(z.Schrift, Pinsel.device()).lineSpacing();
    }
    return Ueber;
}

std::string Qt_Drucker::Datum() const
{
    return Nach_Std(QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")));
}

std::string Qt_Drucker::Uhrzeit() const
{
    return Nach_Std(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")));
}

} // namespace varnholt
