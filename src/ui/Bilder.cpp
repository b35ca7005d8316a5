// The icons of the program: SVG files in two colours, which give way to those of the palette.
#include "ui/Bilder.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <utility>

namespace varnholt {
namespace {

constexpr QByteArrayView Strich_Im_Bild = "#404040"; // the two colours that every icon is drawn in
constexpr QByteArrayView Akzent_Im_Bild = "#2a6fd6";

using Vorlagen_T = std::array<QByteArray, 4>; // SVG texts, one for each QIcon::Mode

// Draws whenever and as large as it is asked to, so that no scale of a screen blurs it.
class Bild_Zeichner final : public QIconEngine {
public:
    explicit Bild_Zeichner(Vorlagen_T Neue) : Vorlagen(std::move(Neue)) {}

    void paint(QPainter* Maler, const QRect& Flaeche, QIcon::Mode Art, QIcon::State) override
    {
        const int    Seite = std::min(Flaeche.width(), Flaeche.height());
        QRect        Quadrat(0, 0, Seite, Seite);
        QSvgRenderer Zeichner(Vorlagen[static_cast<std::size_t>(Art)]);
        Quadrat.moveCenter(Flaeche.center());
        Zeichner.render(Maler, Quadrat);
    }

    QPixmap pixmap(const QSize& Groesse, QIcon::Mode Art, QIcon::State Stand) override
    {
        QPixmap Ergebnis(Groesse);
        Ergebnis.fill(Qt::transparent);
        QPainter Maler(&Ergebnis);
        paint(&Maler, Ergebnis.rect(), Art, Stand);
        return Ergebnis;
    }

    QIconEngine* clone() const override { return new Bild_Zeichner(*this); }
    QString      key() const override { return QStringLiteral("varnholt"); }

private:
    Vorlagen_T Vorlagen;
};

QByteArray Vorlage_Lesen(const QString& Pfad)
{
    QFile Datei(Pfad);
    return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

QByteArray Gefaerbt(QByteArray Vorlage, const QColor& Strich, const QColor& Akzent)
{
    Vorlage.replace(Strich_Im_Bild, Strich.name().toLatin1());
    return Vorlage.replace(Akzent_Im_Bild, Akzent.name().toLatin1());
}

// The blue that stands out from the ground.
QColor Akzent(const QPalette& Palette)
{
    const bool Dunkel = Palette.color(QPalette::Active, QPalette::Window).lightness() < 128;
    return Dunkel ? QColor(0x6A, 0xA5, 0xFF) : QColor(0x2A, 0x6F, 0xD6);
}

// In the order of QIcon::Mode. A blue line would drown in the blue of a selection.
Vorlagen_T In_Farben(const QByteArray& Vorlage, const QPalette& Palette)
{
    const QColor Strich = Palette.color(QPalette::Active, QPalette::ButtonText);
    const QColor Grau   = Palette.color(QPalette::Disabled, QPalette::ButtonText);
    const QColor Wahl   = Palette.color(QPalette::Active, QPalette::HighlightedText);
    const auto   Normal = Gefaerbt(Vorlage, Strich, Akzent(Palette));
    return {Normal, Gefaerbt(Vorlage, Grau, Grau), Normal, Gefaerbt(Vorlage, Wahl, Wahl)};
}

} // namespace

QString Bild_Name(QStringView Name)
{
    QString Ergebnis = Name.toString().toLower();
    for (const auto& [Umlaut, Ersatz] :
         {std::pair{u'ä', u"ae"}, {u'ö', u"oe"}, {u'ü', u"ue"}, {u'ß', u"ss"}})
        Ergebnis.replace(Umlaut, QString::fromUtf16(Ersatz));
    return Ergebnis;
}

QIcon Symbol_Bild(QStringView Name, const QPalette& Palette)
{
    const QString Ort     = QStringLiteral(":/varnholt/icons/%1.svg").arg(Bild_Name(Name));
    const auto    Vorlage = Vorlage_Lesen(Ort);
    return Vorlage.isEmpty() ? QIcon() : QIcon(new Bild_Zeichner(In_Farben(Vorlage, Palette)));
}

QIcon Programm_Bild()
{
    const auto Vorlage = Vorlage_Lesen(QStringLiteral(":/varnholt/varnholt.svg"));
    return QIcon(new Bild_Zeichner({Vorlage, Vorlage, Vorlage, Vorlage}));
}

} // namespace varnholt
