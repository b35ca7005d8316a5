// Rich text between the logic and Qt's documents.
#include "ui/Reich_Qt.h"

#include "ui/Qt_Text.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <cmath>

namespace varnholt {
namespace {

// Qt keeps lengths as pixels of the screen: what a file says stays beside them.
constexpr int Absatz_Eigenschaft = QTextFormat::UserProperty + 10;

constexpr std::array Ausrichtungen{
    Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};

double In_Pixeln(int Twips) { return Twips * 96.0 / 1440.0; }

// Characters that end a line of Qt's, or are marks of its own.
QString Ohne_Marken(std::string_view UTF8)
{
    QString Text = Qt_Text(UTF8);
    std::replace_if(
        Text.begin(),
        Text.end(),
        [](QChar c) {
            const char16_t u = c.unicode();
            return u == '\n' || u == '\r' || u == 0x2028 || u == 0x2029 || u == 0xFDD0 ||
                   u == 0xFDD1;
        },
        QChar(QChar::ReplacementCharacter));
    return Text;
}

void Absatz_Lesen(Absatz_T& Absatz, const QTextBlock& Zeile, int Von, int Bis)
{
    for (auto i = Zeile.begin(); !i.atEnd(); ++i) {
        const QTextFragment f      = i.fragment();
        const int           Anfang = std::max(f.position(), Von);
        const int           Ende   = std::min(f.position() + f.length(), Bis);
        if (Anfang < Ende)
            Anfuegen(Absatz,
                     Nach_Std(f.text().mid(Anfang - f.position(), Ende - Anfang)),
                     Zeichen_Bild_Aus(f.charFormat()));
    }
}

} // namespace

QColor Lesbare_Farbe(std::int32_t Farbe, bool Dunkel)
{
    const QColor Gewuenscht = Qt_Farbe(Farbe);
    if (!Dunkel)
        return Gewuenscht;
    float h = 0, s = 0, l = 0;
    Gewuenscht.getHslF(&h, &s, &l);
    return QColor::fromHslF(h < 0 ? 0 : h, s * 0.75F, std::max(l, 0.70F));
}

QTextCharFormat Farb_Format(std::int32_t Farbe, bool Dunkel)
{
    QTextCharFormat Format;
    Format.setProperty(Farb_Eigenschaft, Farbe);
    Format.setForeground(Farbe == 0 ? QBrush(Qt::NoBrush) : QBrush(Lesbare_Farbe(Farbe, Dunkel)));
    return Format;
}

QTextCharFormat Qt_Zeichenformat(const Zeichen_Bild_T& Bild, bool Dunkel)
{
    QTextCharFormat Format;
    if (Bild.Farbe != 0)
        Format = Farb_Format(Bild.Farbe, Dunkel);
    if (!Bild.Schrift.empty())
        Format.setFontFamilies({Qt_Text(Bild.Schrift)});
    if (Bild.Halbpunkte > 0)
        Format.setFontPointSize(Bild.Halbpunkte / 2.0);
    if (Bild.Fett)
        Format.setFontWeight(QFont::Bold);
    if (Bild.Kursiv)
        Format.setFontItalic(true);
    if (Bild.Unterstrichen)
        Format.setFontUnderline(true);
    return Format;
}

Zeichen_Bild_T Zeichen_Bild_Aus(const QTextCharFormat& Format)
{
    Zeichen_Bild_T Bild;
    Bild.Schrift       = Nach_Std(Format.fontFamilies().toStringList().value(0));
    Bild.Halbpunkte    = static_cast<int>(std::lround(2 * Format.fontPointSize()));
    Bild.Farbe         = Format.intProperty(Farb_Eigenschaft);
    Bild.Fett          = Format.fontWeight() > QFont::Medium;
    Bild.Kursiv        = Format.fontItalic();
    Bild.Unterstrichen = Format.fontUnderline();
    return Bild;
}

QTextBlockFormat Qt_Absatzformat(const Absatz_Bild_T& Bild)
{
    QTextBlockFormat Format;
    if (Bild == Absatz_Bild_T{})
        return Format;
    const auto Bund_Zahl = static_cast<std::size_t>(Bild.Ausrichtung);
    int        Nummer    = Absatz_Eigenschaft;
    for (const int Wert :
         {static_cast<int>(Bund_Zahl), Bild.Einzug, Bild.Erste_Zeile, Bild.Davor, Bild.Danach})
        Format.setProperty(Nummer++, Wert);
    Format.setAlignment(Ausrichtungen[Bund_Zahl]);
    Format.setLeftMargin(In_Pixeln(Bild.Einzug));
    Format.setTextIndent(In_Pixeln(Bild.Erste_Zeile));
    Format.setTopMargin(In_Pixeln(Bild.Davor));
    Format.setBottomMargin(In_Pixeln(Bild.Danach));
    return Format;
}

Absatz_Bild_T Absatz_Bild_Aus(const QTextBlockFormat& Format)
{
    const auto Wert = [&](int Nummer) { return Format.intProperty(Absatz_Eigenschaft + Nummer); };
    return {static_cast<Bund>(Wert(0)), Wert(1), Wert(2), Wert(3), Wert(4)};
}

void Reich_Einfuegen(QTextCursor& Zeiger, const Reich_Text_T& Text, bool Dunkel)
{
    Zeiger.beginEditBlock();
    Zeiger.removeSelectedText();
    for (std::size_t i = 0; i < Text.Absaetze.size(); ++i) {
        const Absatz_T& a = Text.Absaetze[i];
        if (i > 0)
            Zeiger.insertBlock(Qt_Absatzformat(a.Bild), {});
        for (const Text_Stueck_T& s : a.Stuecke)
            Zeiger.insertText(Ohne_Marken(s.Text), Qt_Zeichenformat(s.Bild, Dunkel));
    }
    Zeiger.endEditBlock();
}

Reich_Text_T Reich_Aus_Qt(const QTextDocument& Dokument, int Von, int Bis)
{
    Reich_Text_T Text;
    for (QTextBlock b = Dokument.findBlock(Von); b.isValid() && b.position() <= Bis; b = b.next()) {
        Absatz_T& Absatz = Text.Absaetze.emplace_back();
        Absatz.Bild      = Absatz_Bild_Aus(b.blockFormat());
        Absatz_Lesen(Absatz, b, Von, Bis);
    }
    return Text;
}

} // namespace varnholt
