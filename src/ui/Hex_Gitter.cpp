// The columns of the hex editor, drawn cell by cell.
#include "ui/Hex_Gitter.h"

#include "core/views.h"
#include "ui/Qt_Text.h"
#include "ui/Tasten.h"

#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

constexpr int Kleinste_Zeile = 16; // pixels

constexpr QColor Gelb_Hell(0xFF, 0xFF, 0xC0);
constexpr QColor Gelb_Dunkel(0x3A, 0x38, 0x1C);

QColor Gemischt(const QColor& a, const QColor& b, int Prozent_B)
{
    const auto m = [&](int x, int y) { return (x * (100 - Prozent_B) + y * Prozent_B) / 100; };
    return {m(a.red(), b.red()), m(a.green(), b.green()), m(a.blue(), b.blue())};
}

// Control characters and the holes of the code page have no picture.
bool Ohne_Bild(char Zeichen)
{
    const char16_t z = Zeichen_Aus_1252(Zeichen);
    return z < 0x20 || (z >= 0x7F && z < 0xA0);
}

} // namespace

Hex_Farben_T Hex_Farben(const QPalette& Palette, bool Aktiv)
{
    const QColor Basis  = Palette.color(QPalette::Base);
    const bool   Dunkel = Basis.lightness() < 128;
    Hex_Farben_T f;
    f.Grund      = !Aktiv ? Basis : Dunkel ? Gelb_Dunkel : Gelb_Hell;
    f.Text       = Palette.color(QPalette::Text);
    f.Blass      = Gemischt(f.Text, f.Grund, Dunkel ? 52 : 48);
    f.Marke      = Palette.color(QPalette::Highlight);
    f.Marke_Text = Palette.color(QPalette::HighlightedText);
    if (!Aktiv) {
        f.Marke      = Gemischt(f.Grund, f.Marke, 35);
        f.Marke_Text = f.Text;
    }
    return f;
}

// --- a column ---

Hex_Spalte::Hex_Spalte(const std::string& Quelle,
                       int                Zeilen_Zeichen,
                       int                Sichtbare,
                       QWidget*           Eltern)
    : QWidget(Eltern), Text(&Quelle), Zeile(Zeilen_Zeichen), Sichtbar(Sichtbare)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    Masse_Nehmen();
}

// A cell is the font's advance rounded up to whole pixels, and the font is spaced to it.
void Hex_Spalte::Masse_Nehmen()
{
    QFont Schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    Schrift.setPointSizeF(std::max(Schrift.pointSizeF(), 10.0));
    Schrift.setKerning(false);
    const QFontMetricsF Mass(Schrift);
    const double        Vorschub = Mass.horizontalAdvance(QLatin1Char('0'));
    Breite                       = std::max(1, static_cast<int>(std::ceil(Vorschub - 0.01)));
    Hoehe = std::max(Kleinste_Zeile, static_cast<int>(std::ceil(Mass.height() - 0.01)));
    Linie = static_cast<int>(std::lround((Hoehe - Mass.height()) / 2 + Mass.ascent()));
    Schrift.setLetterSpacing(QFont::AbsoluteSpacing, Breite - Vorschub);
    setFont(Schrift);
    Roh = QRawFont::fromFont(Schrift);
    for (std::size_t i = 0; i < Glyphen.size(); ++i) {
        const auto Nummern =
            Roh.glyphIndexesForString(QChar(Zeichen_Aus_1252(static_cast<char>(i))));
        Glyphen[i] = Nummern.isEmpty() ? 0 : Nummern.constFirst();
    }
}

int Hex_Spalte::Breite_Der_Spalte() const { return Sichtbar * Breite + 2 * Spalten_Rand; }

QRect Hex_Spalte::Zelle(int Stelle) const
{
    return {Spalten_Rand + Stelle % Zeile * Breite, Stelle / Zeile * Hoehe, Breite, Hoehe};
}

int Hex_Spalte::Stelle_An(const QPoint& Ort) const
{
    const int Zeilen = static_cast<int>(Text->size()) / Zeile;
    if (Zeilen == 0)
        return 0;
    const int r = std::clamp(Ort.y() / Hoehe, 0, Zeilen - 1);
    const int c = std::clamp((Ort.x() - Spalten_Rand) / Breite, 0, Sichtbar - 1);
    return r * Zeile + c;
}

Hex_Farben_T Hex_Spalte::Farben() const
{
    Hex_Farben_T f = Hex_Farben(palette(), false);
    f.Grund        = palette().color(QPalette::Window);
    f.Text         = palette().color(QPalette::WindowText);
    return f;
}

void Hex_Spalte::Text_Zeichnen(QPainter&        Maler,
                               int              Stelle,
                               std::string_view Stueck,
                               const QColor&    Farbe)
{
    auto l = std::find_if(
        Laeufe.begin(), Laeufe.end(), [&](const Lauf_T& i) { return i.Farbe == Farbe; });
    if (l == Laeufe.end())
        l = Laeufe.insert(l, Lauf_T{Farbe});
    for (const char Zeichen : Stueck) {
        const QRect   z     = Zelle(Stelle++);
        const quint32 Glyph = Glyphen[static_cast<std::uint8_t>(Zeichen)];
        if (Glyph != 0) {
            l->Glyphen.append(Glyph);
            l->Orte.append(QPointF(z.left(), z.top() + Linie));
        } else { // another font helps out
            Maler.setPen(Farbe);
            Maler.drawText(QPoint(z.left(), z.top() + Linie), QChar(Zeichen_Aus_1252(Zeichen)));
        }
    }
}

void Hex_Spalte::Laeufe_Zeichnen(QPainter& Maler)
{
    for (Lauf_T& l : Laeufe) {
        QGlyphRun Lauf;
        Lauf.setRawFont(Roh);
        Lauf.setGlyphIndexes(l.Glyphen);
        Lauf.setPositions(l.Orte);
        Maler.setPen(l.Farbe);
        Maler.drawGlyphRun(QPointF(), Lauf);
    }
    Laeufe.clear();
}

void Hex_Spalte::Zeile_Zeichnen(QPainter& Maler, int Erste_Stelle, const Hex_Farben_T& f)
{
    const auto Stueck = std::string_view(*Text).substr(static_cast<std::size_t>(Erste_Stelle),
                                                       static_cast<std::size_t>(Sichtbar));
    Text_Zeichnen(Maler, Erste_Stelle, Stueck, f.Text);
}

void Hex_Spalte::Rahmen_Zeichnen(QPainter& Maler, int Stelle, const QColor& Farbe)
{
    Maler.setPen(Farbe);
    Maler.drawRect(Zelle(Stelle).adjusted(1, 4, -3, -5));
}

void Hex_Spalte::paintEvent(QPaintEvent* Ereignis)
{
    QPainter           Maler(this);
    const Hex_Farben_T f = Farben();
    Maler.fillRect(Ereignis->rect(), f.Grund);
    const int Zeilen = static_cast<int>(Text->size()) / Zeile;
    const int Erste  = std::max(0, Ereignis->rect().top() / Hoehe);
    const int Letzte = std::min(Zeilen - 1, Ereignis->rect().bottom() / Hoehe);
    for (int r = Erste; r <= Letzte; ++r)
        Zeile_Zeichnen(Maler, r * Zeile, f);
    Laeufe_Zeichnen(Maler);
}

void Hex_Spalte::changeEvent(QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::PaletteChange)
        update();
    QWidget::changeEvent(Ereignis);
}

// --- a pane ---

// clang-format off
const Hex_Griffe_T Hex_Feld_Griffe{
    Feld_Hex, Hex_Mass, &Hexedit.Hex_Auswahl, Hex_Feld_KeyDown, nullptr,
    Hex_Feld_MouseDown, Hex_Feld_MouseUp, Hex_Feld_Click, Hex_Feld_GotFocus};
const Hex_Griffe_T AscII_Feld_Griffe{
    Feld_AscII, AscII_Mass, &Hexedit.AscII_Auswahl, AscII_Feld_KeyDown, AscII_Feld_KeyPress,
    AscII_Feld_MouseDown, AscII_Feld_MouseUp, nullptr, AscII_Feld_GotFocus};
// clang-format on

Hex_Gitter::Hex_Gitter(const std::string& Quelle, const Hex_Griffe_T& Neue_Griffe, QWidget* Eltern)
    : Hex_Spalte(Quelle,
                 Neue_Griffe.Mass.Zeile,
                 Zeilen_Bytes * Neue_Griffe.Mass.Zelle - (Neue_Griffe.Feld == Feld_Hex ? 1 : 0),
                 Eltern),
      Griffe(Neue_Griffe)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setCursor(Qt::IBeamCursor);
}

Hex_Farben_T Hex_Gitter::Farben() const
{
    return Hex_Farben(palette(), Hex_Aktives_Feld == Griffe.Feld);
}

// What of the marking lies in the row; blanks between marked bytes belong to it.
void Hex_Gitter::Marke_Zeichnen(QPainter& Maler, int Erste_Stelle, const QColor& Farbe)
{
    const int Anfang = std::max(Griffe.Auswahl->Anfang, Erste_Stelle);
    const int Ende   = std::min(Griffe.Auswahl->Ende(), Erste_Stelle + Sichtbare_Zeichen());
    if (Anfang < Ende)
        Maler.fillRect(Zelle(Anfang) | Zelle(Ende - 1), Farbe);
}

// Colour of a character: marked, of an erased byte, or any other. The blank between two bytes goes
// with the byte before it.
const QColor& Hex_Gitter::Zeichen_Farbe(int Stelle, const Hex_Farben_T& f) const
{
    if (Stelle >= Griffe.Auswahl->Anfang && Stelle < Griffe.Auswahl->Ende())
        return f.Marke_Text;
    const auto Paar = static_cast<std::size_t>(Byte_An(Griffe.Mass, Stelle) * Hex_Mass.Zelle);
    return Hex_Feld.compare(Paar, 2, "FF") == 0 ? f.Blass : f.Text;
}

void Hex_Gitter::Zeile_Zeichnen(QPainter& Maler, int Erste_Stelle, const Hex_Farben_T& f)
{
    Marke_Zeichnen(Maler, Erste_Stelle, f.Marke);
    const int Bis = Erste_Stelle + Sichtbare_Zeichen();
    for (int s = Erste_Stelle; s < Bis; ++s) {
        const auto Zeichen = std::string_view(Seiten_Text()).substr(static_cast<std::size_t>(s), 1);
        const QColor& Farbe = Zeichen_Farbe(s, f);
        if (Ohne_Bild(Zeichen.front()))
            Rahmen_Zeichnen(Maler, s, Farbe == f.Text ? f.Blass : Farbe);
        else
            Text_Zeichnen(Maler, s, Zeichen, Farbe);
    }
}

// --- keys ---

namespace {

// The keys that the panes take before any shortcut of the menu. The clipboard's are the same there,
// and must not be done twice.
bool Eigene_Taste(const Taste_T& t)
{
    if (t.Strg && !t.Alt && (t.Code == 'C' || t.Code == 'V' || t.Code == 'X'))
        return true;
    if (t.Code == Taste_Enter || t.Code == Taste_Rueck || t.Code == Taste_Escape)
        return true;
    return t.Zeichen != 0 || (!t.Alt && (Ist_Bewegung(t.Code) || t.Code == Taste_Entfernen));
}

} // namespace

bool Hex_Gitter::Taste_Weitergeben(const Taste_T& Taste)
{
    if (!Eigene_Taste(Taste))
        return false;
    if (!Griffe.KeyDown(Taste) && Taste.Zeichen != 0 && Griffe.KeyPress != nullptr)
        Griffe.KeyPress(Taste.Zeichen);
    emit Geaendert();
    return true;
}

bool Hex_Gitter::event(QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::ShortcutOverride &&
        Eigene_Taste(Taste_Aus(*static_cast<QKeyEvent*>(Ereignis)))) {
        Ereignis->accept();
        return true;
    }
    return Hex_Spalte::event(Ereignis);
}

void Hex_Gitter::keyPressEvent(QKeyEvent* Ereignis)
{
    if (!Taste_Weitergeben(Taste_Aus(*Ereignis)))
        Hex_Spalte::keyPressEvent(Ereignis);
}

// What is composed of several keys arrives here.
void Hex_Gitter::inputMethodEvent(QInputMethodEvent* Ereignis)
{
    for (const QChar c : Ereignis->commitString()) {
        Taste_T t;
        t.Zeichen = Zeichen_Nach_1252(c.unicode());
        if (c.isPrint() && (t.Zeichen != '?' || c == u'?'))
            Taste_Weitergeben(t);
    }
    Ereignis->accept();
}

// --- mouse and focus ---

void Hex_Gitter::mousePressEvent(QMouseEvent* Ereignis)
{
    if (Ereignis->button() != Qt::LeftButton)
        return;
    Zug_Anfang = Stelle_An(Ereignis->position().toPoint());
    Gezogen    = false;
    Griffe.MouseDown();
    Zug_Markieren(Zug_Anfang);
}

void Hex_Gitter::mouseMoveEvent(QMouseEvent* Ereignis)
{
    const int Stelle = Stelle_An(Ereignis->position().toPoint());
    if (Zug_Anfang < 0 || (!Gezogen && Stelle == Zug_Anfang))
        return;
    Gezogen = true;
    Zug_Markieren(Stelle);
}

void Hex_Gitter::mouseReleaseEvent(QMouseEvent* Ereignis)
{
    if (Ereignis->button() != Qt::LeftButton || Zug_Anfang < 0)
        return;
    Zug_Anfang = -1;
    Griffe.MouseUp();
    if (!Gezogen && Griffe.Click != nullptr)
        Griffe.Click();
    emit Geaendert();
}

void Hex_Gitter::Zug_Markieren(int Bis)
{
    const int Anfang = std::min(Zug_Anfang, Bis);
    *Griffe.Auswahl  = {Anfang, std::max(Zug_Anfang, Bis) + 1 - Anfang};
    ++Ansichten.Hex_Stand;
    emit Geaendert();
}

void Hex_Gitter::focusInEvent(QFocusEvent* Ereignis)
{
    Griffe.GotFocus();
    emit Geaendert();
    Hex_Spalte::focusInEvent(Ereignis);
}

void Hex_Gitter::contextMenuEvent(QContextMenuEvent* Ereignis)
{
    emit Kontextmenue(Ereignis->globalPos());
    Ereignis->accept();
}

} // namespace varnholt
