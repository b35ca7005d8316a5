// Texts, colours and fonts at the border between the logic and Qt.
#include "ui/Qt_Text.h"

#include "core/settings.h"
#include "core/shared_state.h"

#include <QApplication>
#include <QFontDatabase>

#include <algorithm>

namespace varnholt {

QString Meldungs_Text(std::string_view UTF8)
{
    return Qt_Text(UTF8).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString Lesbarer_Text(const Festes_Paar& Paar)
{
    return Meldungs_Text(Sprache == "D" ? Paar.D : Paar.E);
}

QString Qt_Aus_1252(std::string_view Text)
{
    QString Ergebnis(static_cast<qsizetype>(Text.size()), Qt::Uninitialized);
    auto    Ziel = Ergebnis.begin();
    for (const char c : Text)
        *Ziel++ = QChar(Zeichen_Aus_1252(c));
    return Ergebnis;
}

std::string Nach_1252(QStringView Text)
{
    std::string Ergebnis(static_cast<std::size_t>(Text.size()), '\0');
    auto        Ziel = Ergebnis.begin();
    for (const QChar c : Text)
        *Ziel++ = Zeichen_Nach_1252(c.unicode());
    return Ergebnis;
}

QColor Qt_Farbe(std::int32_t Farbe)
{
    return QColor(Farbe & 0xFF, (Farbe >> 8) & 0xFF, (Farbe >> 16) & 0xFF);
}

std::int32_t Farbe_Aus(const QColor& Farbe)
{
    return Farbe.red() | (Farbe.green() << 8) | (Farbe.blue() << 16);
}

QFont Qt_Schrift(const Schrift_T& Schrift, const QFont& Grund)
{
    QFont Ergebnis = Grund;
    if (Schrift.Name.empty())
        return Ergebnis;
    Ergebnis.setFamilies({Qt_Text(Schrift.Name)});
    Ergebnis.setBold(Schrift.Fett);
    Ergebnis.setItalic(Schrift.Kursiv);
    if (Schrift.Groesse > 0)
        Ergebnis.setPointSizeF(Schrift.Groesse);
    return Ergebnis;
}

Schrift_T Schrift_Aus(const QFont& Schrift)
{
    const double Punkte = Schrift.pointSizeF();
    return {Nach_Std(Schrift.family()), Schrift.bold(), Schrift.italic(), Punkte > 0 ? Punkte : 0};
}

QFont Schrift_Vorgabe(int Ziel)
{
    if (Ziel != Schrift_Edit)
        return QApplication::font();
    constexpr double Lesbar  = 11; // points; a desktop's fixed font is often smaller
    QFont            Schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    Schrift.setPointSizeF(std::max(Schrift.pointSizeF(), Lesbar));
    return Schrift;
}

} // namespace varnholt
