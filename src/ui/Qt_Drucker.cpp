// Printing with Qt.
#include "ui/Qt_Drucker.h"

#include "core/messages.h"
#include "core/settings.h"
#include "ui/Qt_Text.h"

#include <QDate>
#include <QFontMetricsF>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTime>

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

constexpr int Tabulator  = 8; // characters
constexpr int PDF_Filter = 1;

// Control characters have no picture on paper.
QString Druckbar(QString Text)
{
    for (QChar& c : Text)
        if (c.unicode() < 32 && c != u'\t')
            c = u' ';
    return Text;
}

// The place behind a piece that begins at x; tabs go to the next stop.
double Stueck_Malen(QPainter& Pinsel, const QString& Text, double x, double y)
{
    const QFontMetricsF Mass(Pinsel.font(), Pinsel.device());
    const double        Stop  = Tabulator * Mass.horizontalAdvance(u' ');
    const QStringList   Teile = Text.split(u'\t');
    for (qsizetype i = 0; i < Teile.size(); ++i) {
        if (i > 0)
            x = (std::floor(x / Stop) + 1) * Stop;
        Pinsel.drawText(QPointF(x, y), Teile[i]);
        x += Mass.horizontalAdvance(Teile[i]);
    }
    return x;
}

} // namespace

Qt_Drucker::Qt_Drucker(QWidget* Eltern) : Fenster(Eltern) {}
Qt_Drucker::~Qt_Drucker() = default;

QPrinter& Qt_Drucker::Geraet()
{
    if (!Druck_Geraet) {
        Druck_Geraet = std::make_unique<QPrinter>(QPrinter::HighResolution);
        Druck_Geraet->setPageSize(QPageSize(QPageSize::A4));
        Druck_Geraet->setPageMargins(QMarginsF(14, 12, 8, 12), QPageLayout::Millimeter);
    }
    return *Druck_Geraet;
}

void Qt_Drucker::Einrichten()
{
    QPageSetupDialog Dialog(&Geraet(), Fenster);
    Dialog.exec();
}

bool Qt_Drucker::PDF_Datei_Waehlen()
{
    Dateiwahl_T Wahl{.Filter = "PDF (*.pdf)|*.pdf", .Filter_Nummer = PDF_Filter, .Speichern = true};
    Plattform.Dialog->Datei_Waehlen(Wahl);
    if (Wahl.Name.empty())
        return false;
    In_PDF(Qt_Text(Wahl.Name));
    return true;
}

void Qt_Drucker::In_PDF(const QString& Name)
{
    Wohin = Druck_Dialog::Ziel::PDF;
    Geraet().setOutputFormat(QPrinter::PdfFormat);
    Geraet().setOutputFileName(Name);
}

bool Qt_Drucker::Waehlen(Druckwahl_T& Wahl)
{
    Druck_Dialog Dialog(Wahl.Markierung_Anbieten, Fenster);
    if (Dialog.exec() != QDialog::Accepted)
        return false;
    Wahl.Markierung = Dialog.Nur_Markierung();
    Wohin           = Dialog.Wohin();
    Geraet().setCopyCount(Dialog.Kopien());
    if (Wohin == Druck_Dialog::Ziel::PDF)
        return PDF_Datei_Waehlen();
    if (!Dialog.Drucker_Name().isEmpty()) {
        Geraet().setOutputFileName(QString());
        Geraet().setOutputFormat(QPrinter::NativeFormat);
        Geraet().setPrinterName(Dialog.Drucker_Name());
    }
    return true;
}

bool Qt_Drucker::Beginnen(std::string_view Titel)
{
    Hoehe = 0;
    Geraet().setDocName(Qt_Text(Titel));
    Seiten.assign(1, {});
    if (Wohin == Druck_Dialog::Ziel::Vorschau)
        return true;
    Maler = std::make_unique<QPainter>();
    if (Maler->begin(&Geraet()))
        return true;
    Maler.reset();
    Melden({"Der Druck konnte nicht begonnen werden.", "Printing could not be started."},
           {},
           Knoepfe::Ok,
           Symbol::Warnung);
    return false;
}

void Qt_Drucker::Schrift(const Schrift_T& Neue)
{
    Jetzige_Schrift = Qt_Schrift(Neue, Schrift_Vorgabe(Schrift_Edit));
    Jetzige_Schrift.setStyleHint(QFont::Monospace);
}

double Qt_Drucker::Zeilenhoehe(const QFont& Welche) const
{
    return QFontMetricsF(Welche, Druck_Geraet.get()).lineSpacing();
}

int Qt_Drucker::Zeilen_Je_Seite() const
{
    const QRectF Blatt = Druck_Geraet->pageRect(QPrinter::DevicePixel);
    return std::max(1, static_cast<int>(Blatt.height() / Zeilenhoehe(Jetzige_Schrift)));
}

void Qt_Drucker::Zeile_Malen(QPainter& Pinsel, const Zeile_T& z, double y) const
{
    Pinsel.setFont(z.Schrift);
    const double Grundlinie = y + QFontMetricsF(z.Schrift, Pinsel.device()).ascent();
    double       x          = 0;
    qsizetype    Stelle     = 0;
    const auto   Bis        = [&](qsizetype Ende, const QColor& Farbe) {
        Ende = std::clamp(Ende, Stelle, z.Text.size());
        Pinsel.setPen(Farbe);
        x      = Stueck_Malen(Pinsel, z.Text.mid(Stelle, Ende - Stelle), x, Grundlinie);
        Stelle = Ende;
    };
    for (const Farbstelle_T& f : z.Farben) {
        Bis(static_cast<qsizetype>(f.Anfang), Qt::black);
        Bis(static_cast<qsizetype>(f.Anfang + f.Laenge), Qt_Farbe(f.Farbe));
    }
    Bis(z.Text.size(), Qt::black);
}

void Qt_Drucker::Zeile(std::string_view Text, std::span<const Farbstelle_T> Farben)
{
    Zeile_T z{Druckbar(Qt_Text(Text)), {Farben.begin(), Farben.end()}, Jetzige_Schrift};
    if (!Maler) {
        Seiten.back().push_back(std::move(z));
        return;
    }
    Zeile_Malen(*Maler, z, Hoehe);
    Hoehe += Zeilenhoehe(Jetzige_Schrift);
}

void Qt_Drucker::Neue_Seite()
{
    Hoehe = 0;
    if (Maler)
        Geraet().newPage();
    else
        Seiten.emplace_back();
}

void Qt_Drucker::Beenden()
{
    if (Maler) {
        Maler->end();
        Maler.reset();
    } else {
        Vorschau_Zeigen();
    }
    Seiten.clear();
}

void Qt_Drucker::Seiten_Malen(QPrinter& Blatt) const
{
    QPainter Pinsel(&Blatt);
    for (const Seite_T& s : Seiten) {
        if (&s != &Seiten.front())
            Blatt.newPage();
        Seite_Malen(Pinsel, Blatt, s);
    }
}

// The pages were cut for the sheet of the setup; on a shorter one, chosen in the preview, they
// shrink.
void Qt_Drucker::Seite_Malen(QPainter& Pinsel, QPrinter& Blatt, const Seite_T& s) const
{
    double Gebraucht = 0;
    for (const Zeile_T& z : s)
        Gebraucht += QFontMetricsF(z.Schrift, &Blatt).lineSpacing();
    const double Platz  = Blatt.pageRect(QPrinter::DevicePixel).height();
    const double Faktor = Gebraucht > Platz ? Platz / Gebraucht : 1;
    double       y      = 0;
    Pinsel.save();
    Pinsel.scale(Faktor, Faktor);
    for (const Zeile_T& z : s) {
        Zeile_Malen(Pinsel, z, y);
        y += QFontMetricsF(z.Schrift, &Blatt).lineSpacing();
    }
    Pinsel.restore();
}

void Qt_Drucker::Vorschau_Zeigen()
{
    QPrintPreviewDialog Dialog(&Geraet(), Fenster);
    Dialog.setObjectName(QStringLiteral("Druck_Vorschau"));
    Dialog.setWindowTitle(Qt_Text(In_Sprache({"Druckvorschau", "Print preview"})));
    QObject::connect(&Dialog,
                     &QPrintPreviewDialog::paintRequested,
                     &Dialog,
                     [this](QPrinter* Blatt) { Seiten_Malen(*Blatt); });
    Dialog.exec();
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
