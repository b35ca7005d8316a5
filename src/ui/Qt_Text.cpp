// Texts, colours and fonts at the border between the logic and Qt.
#include "ui/Qt_Text.h"

#include "core/settings.h"

#include <QApplication>
#include <QFontDatabase>

#include <algorithm>
#include <array>

namespace varnholt {
namespace {

// The characters of the bytes 80h to 9Fh; the five without one are the C1 controls.
constexpr std::array<char16_t, 32> Mittlere = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr std::uint8_t Mittlere_Ab = 0x80;
constexpr std::uint8_t Latin_1_Ab  = 0xA0; // from here on byte and character are one number again

char Nach_1252_Suchen(char16_t Zeichen)
{
    const auto* p = std::find(Mittlere.begin(), Mittlere.end(), Zeichen);
    return p == Mittlere.end() ? '?' : static_cast<char>(Mittlere_Ab + (p - Mittlere.begin()));
}

} // namespace

QString Meldungs_Text(std::string_view UTF8)
{
    return Qt_Text(UTF8).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

char16_t Zeichen_Aus_1252(char Zeichen)
{
    const auto Byte = static_cast<std::uint8_t>(Zeichen);
    return Byte >= Mittlere_Ab && Byte < Latin_1_Ab ? Mittlere[Byte - Mittlere_Ab] : Byte;
}

char Zeichen_Nach_1252(char16_t Zeichen)
{
    if (Zeichen < 0x80 || (Zeichen >= 0xA0 && Zeichen < 0x100))
        return static_cast<char>(Zeichen);
    return Nach_1252_Suchen(Zeichen);
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
