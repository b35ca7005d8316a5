// The splash. Its drawing is made of vectors, so that it is sharp on every screen; its colours are
// its own, the same on a light and on a dark desktop.
#include "ui/Start_Bild.h"

#include "core/shared_state.h"
#include "ui/Qt_Text.h"

#include <QApplication>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace varnholt {
namespace {

constexpr int Breite     = 520; // device-independent pixels
constexpr int Hoehe      = 345;
constexpr int Rand_Unten = 20; // below the label
constexpr int Rand_Links = 28;
constexpr int Text_Hoehe = 18;
constexpr int Beinchen   = 20; // of each side of the chip

const QRectF Gehaeuse(110, 56, 300, 84);

const QColor Nacht(0x0E, 0x1F, 0x33);
const QColor Blau(0x1B, 0x4A, 0x6B);
const QColor Kupfer(0xE0, 0x9A, 0x4B);
const QColor Zinn(0xC3, 0xCC, 0xD4);
const QColor Gruen(0x2E, 0x6F, 0x7E);

double Bein_Mitte(int Nummer)
{
    return Gehaeuse.left() + Gehaeuse.width() * (Nummer + 0.5) / Beinchen;
}

void Grund_Malen(QPainter& p)
{
    QLinearGradient Verlauf(0, 0, 0, Hoehe);
    Verlauf.setColorAt(0, Nacht);
    Verlauf.setColorAt(1, Blau);
    p.fillRect(0, 0, Breite, Hoehe, Verlauf);
    p.setPen(QPen(QColor(0xFF, 0xFF, 0xFF, 60), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(0.5, 0.5, Breite - 1, Hoehe - 1));
}

// One trace of the board from a leg to the edge, with a bend and a pad where it ends inside.
void Leiterbahn_Malen(QPainter& p, int Nummer, bool Oben)
{
    const double x       = Bein_Mitte(Nummer);
    const double y       = Oben ? Gehaeuse.top() - 12 : Gehaeuse.bottom() + 12;
    const double Seite   = Nummer < Beinchen / 2 ? -1 : 1;
    const int    Abstand = Nummer < Beinchen / 2 ? Nummer : Beinchen - 1 - Nummer;
    const double Hub     = (Oben ? -1 : 1) * (8 + 3.4 * Abstand);
    QPainterPath Weg(QPointF(x, y));
    Weg.lineTo(x, y + Hub / 2);
    Weg.lineTo(x + Seite * qAbs(Hub) / 2, y + Hub);
    Weg.lineTo(Seite < 0 ? 0 : Breite, y + Hub);
    p.drawPath(Weg);
}

void Leiterbahnen_Malen(QPainter& p)
{
    p.setPen(QPen(Gruen, 1.4));
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < Beinchen; i += 2)
        for (const bool Oben : {true, false})
            Leiterbahn_Malen(p, i, Oben);
}

void Beine_Malen(QPainter& p)
{
    p.setPen(Qt::NoPen);
    p.setBrush(Zinn);
    for (int i = 0; i < Beinchen; ++i) {
        p.drawRect(QRectF(Bein_Mitte(i) - 3, Gehaeuse.top() - 12, 6, 13));
        p.drawRect(QRectF(Bein_Mitte(i) - 3, Gehaeuse.bottom() - 1, 6, 13));
    }
}

void Chip_Malen(QPainter& p)
{
    Beine_Malen(p);
    QPainterPath Koerper;
    Koerper.addRoundedRect(Gehaeuse, 5, 5);
    QPainterPath Kerbe;
    Kerbe.addEllipse(QPointF(Gehaeuse.left(), Gehaeuse.center().y()), 10, 10);
    p.setPen(QPen(QColor(0x55, 0x5F, 0x6A), 1.2));
    p.setBrush(QColor(0x1B, 0x20, 0x27));
    p.drawPath(Koerper.subtracted(Kerbe));
    p.setPen(Qt::NoPen);
    p.setBrush(Kupfer);
    p.drawEllipse(QPointF(Gehaeuse.left() + 20, Gehaeuse.bottom() - 16), 4, 4); // pin 1
}

void Zeile_Malen(QPainter& p, const QRectF& Ort, const QString& Text, int Pixel, bool Fett)
{
    QFont Schrift = QApplication::font();
    Schrift.setPixelSize(Pixel);
    Schrift.setBold(Fett);
    p.setFont(Schrift);
    p.drawText(Ort, Qt::AlignCenter, Text);
}

void Schriften_Malen(QPainter& p)
{
    p.setPen(QColor(0xE8, 0xEE, 0xF4));
    Zeile_Malen(p, Gehaeuse, QStringLiteral("MCS-51"), 30, true);
    Zeile_Malen(p, QRectF(0, 196, Breite, 54), QStringLiteral("Varnholt"), 46, true);
    p.setPen(Kupfer.lighter(120));
    Zeile_Malen(p,
                QRectF(0, 250, Breite, 24),
                Sprache == "D" ? QStringLiteral("Werkbank für MCS-51 und Speicher-ICs")
                               : QStringLiteral("MCS-51 & memory IC workbench"),
                16,
                false);
}

} // namespace

Start_Bild::Start_Bild() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("Start"));
    setWindowTitle(QStringLiteral("Varnholt"));
    setFixedSize(Breite, Hoehe);
    L_Init = new QLabel(this);
    L_Init->setObjectName(QStringLiteral("L_Init"));
    L_Init->setTextFormat(Qt::PlainText);
    QPalette Farben = L_Init->palette();
    Farben.setColor(QPalette::WindowText, QColor(0xE8, 0xEE, 0xF4));
    L_Init->setPalette(Farben);
    QFont Schrift = font();
    Schrift.setPixelSize(13);
    L_Init->setFont(Schrift);
    L_Init->setGeometry(
        Rand_Links, Hoehe - Rand_Unten - Text_Hoehe, Breite - 2 * Rand_Links, Text_Hoehe);
    if (const QScreen* Schirm = QApplication::primaryScreen())
        move(Schirm->availableGeometry().center() - rect().center());
}

void Start_Bild::Text_Setzen(std::string_view Text)
{
    L_Init->setText(Qt_Text(Text));
    if (isVisible())
        L_Init->repaint();
}

void Start_Bild::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    Grund_Malen(p);
    Leiterbahnen_Malen(p);
    Chip_Malen(p);
    Schriften_Malen(p);
}

} // namespace varnholt
