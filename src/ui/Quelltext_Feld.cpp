// The text control of `Edit`.
#include "ui/Quelltext_Feld.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "editors/Quelltext.h"
#include "ui/Qt_Text.h"
#include "ui/Tasten.h"

#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>

namespace varnholt {
namespace {

class Nummern_Rand : public QWidget {
public:
    explicit Nummern_Rand(Quelltext_Feld* Besitzer) : QWidget(Besitzer), Feld(Besitzer)
    {
        setObjectName(QStringLiteral("Zeilennummern"));
    }
    QSize sizeHint() const override { return {Feld->Nummern_Breite(), 0}; }

protected:
    void paintEvent(QPaintEvent* Ereignis) override { Feld->Nummern_Zeichnen(Ereignis); }

private:
    Quelltext_Feld* Feld;
};

// Of the editing keys the control takes these; the others are shortcuts of the menu, which leads
// to the same routines.
bool Eigene_Taste(const QKeyEvent& Taste, bool Auswahl)
{
    const auto Dazu = Taste.modifiers() & ~Qt::KeypadModifier;
    const bool Strg = Dazu == Qt::ControlModifier;
    switch (Taste.key()) {
    case Qt::Key_V:
    case Qt::Key_X:
    case Qt::Key_Z:
    case Qt::Key_A:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return Strg;
    case Qt::Key_Insert:
        return true;
    case Qt::Key_Delete:
        return Strg || Auswahl || Dazu == Qt::NoModifier;
    default:
        return false;
    }
}

// The key, or the letter of the command that the desktop has put on it (Shift+Ins for Ctrl+V).
Taste_T Befehls_Taste(const QKeyEvent& Ereignis)
{
    Taste_T Taste = Taste_Aus(Ereignis);
    if (Ereignis.matches(QKeySequence::Paste))
        Taste = {'V', false, true};
    else if (Ereignis.matches(QKeySequence::Cut))
        Taste = {'X', false, true};
    return Taste;
}

QColor Gemischt(const QColor& a, const QColor& b, double Anteil_B)
{
    const double A = 1 - Anteil_B;
    return QColor::fromRgbF(static_cast<float>(A * a.redF() + Anteil_B * b.redF()),
                            static_cast<float>(A * a.greenF() + Anteil_B * b.greenF()),
                            static_cast<float>(A * a.blueF() + Anteil_B * b.blueF()));
}

} // namespace

Quelltext_Feld::Quelltext_Feld(QWidget* Eltern)
    : Text_Feld(Eltern), Nummern(new Nummern_Rand(this)), Grund(Schrift_Vorgabe(Schrift_Edit))
{
    setCursorWidth(2);
    Zoom_Setzen(100);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &Quelltext_Feld::Rand_Setzen);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& r, int dy) {
        if (dy != 0)
            Nummern->scroll(0, dy);
        else
            Nummern->update(0, r.y(), Nummern->width(), r.height());
    });
    connect(
        this, &QPlainTextEdit::cursorPositionChanged, this, &Quelltext_Feld::Aktuelle_Zeile_Zeigen);
    connect(
        this, &QPlainTextEdit::cursorPositionChanged, this, &Quelltext_Feld::Bewegung_Vormerken);
    connect(this, &QPlainTextEdit::selectionChanged, this, &Quelltext_Feld::Bewegung_Vormerken);
    connect(this, &Text_Feld::Text_Geaendert, this, [] { Text_Change(); });
    Aktuelle_Zeile_Zeigen();
}

// --- events to the logic ---

// The logic hears of a move when the event that made it is over: it may show a box or change the
// text, which must not happen in the middle of Qt's own handling. Of a move that the logic makes on
// its own account it doesn't hear.
void Quelltext_Feld::Bewegung_Vormerken()
{
    if (Text_Sperre)
        return;
    if (!Bewegt)
        QTimer::singleShot(0, this, &Quelltext_Feld::Bewegung_Melden);
    Bewegt = true;
}

void Quelltext_Feld::Bewegung_Melden()
{
    if (!Bewegt || Maus_Unten)
        return;
    Bewegt = false;
    Text_SelChange();
}

bool Quelltext_Feld::event(QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::ShortcutOverride) {
        auto*      Taste = static_cast<QKeyEvent*>(Ereignis);
        const bool Zeichen =
            (Taste->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier &&
            (Taste->key() < Qt::Key_F1 || Taste->key() > Qt::Key_F35);
        Ereignis->setAccepted(Eigene_Taste(*Taste, textCursor().hasSelection()) ||
                              (Zeichen && Taste->key() != Qt::Key_Delete &&
                               Taste->key() != Qt::Key_Escape)); // it stops a running program
        return true;
    }
    return Text_Feld::event(Ereignis);
}

void Quelltext_Feld::keyPressEvent(QKeyEvent* Ereignis)
{
    if (Ereignis->modifiers() == Qt::AltModifier && !Ereignis->text().isEmpty())
        return Ereignis->ignore(); // the letter of a menu, not a character
    Maus_Unten          = false;   // a drag that ended elsewhere has swallowed the release
    const Taste_T Taste = Befehls_Taste(*Ereignis);
    const bool    Enter = Taste.Code == Taste_Enter && !Taste.Strg;
    if (Text_KeyDown(Taste) || (Enter && Text_KeyPress_Enter()))
        Ereignis->accept();
    else
        Text_Feld::keyPressEvent(Ereignis);
    Bewegung_Melden();
}

void Quelltext_Feld::inputMethodEvent(QInputMethodEvent* Ereignis)
{
    if (!Ereignis->commitString().isEmpty())
        Text_Ohne_Taste();
    Text_Feld::inputMethodEvent(Ereignis);
    Bewegung_Melden();
}

void Quelltext_Feld::mousePressEvent(QMouseEvent* Ereignis)
{
    Maus_Unten = true;
    Text_Feld::mousePressEvent(Ereignis);
}

void Quelltext_Feld::mouseReleaseEvent(QMouseEvent* Ereignis)
{
    Text_Feld::mouseReleaseEvent(Ereignis);
    Maus_Unten = false;
    Bewegung_Melden();
}

void Quelltext_Feld::contextMenuEvent(QContextMenuEvent* Ereignis)
{
    Maus_Unten = false;
    emit Kontextmenue(Ereignis->globalPos());
}

// Text that is dropped or comes by the middle button. Its lines get their colours when Qt is done
// with it, and the logic knows the new text.
void Quelltext_Feld::insertFromMimeData(const QMimeData* Daten)
{
    if (isReadOnly() || !Daten->hasText())
        return;
    Text_Ohne_Taste();
    QTextCursor Zeiger = textCursor();
    const int   Erste  = document()->findBlock(Zeiger.selectionStart()).blockNumber();
    Zeiger.insertText(Daten->text(), {});
    const int Letzte = Zeiger.blockNumber();
    QTimer::singleShot(0, this, [Erste, Letzte] { Zeilen_Einfaerben(Erste, Letzte); });
}

void Quelltext_Feld::dropEvent(QDropEvent* Ereignis)
{
    Text_Ohne_Taste(); // a move takes the text away before it puts it in
    Text_Feld::dropEvent(Ereignis);
    Maus_Unten = false; // the drag has swallowed the release
    Bewegung_Melden();
}

// --- zoom ---

void Quelltext_Feld::Grund_Schrift_Setzen(const QFont& Schrift)
{
    Grund = Schrift;
    Zoom_Setzen(Prozent_Jetzt);
}

void Quelltext_Feld::Zoom_Setzen(int Prozent)
{
    const int  Neu    = std::clamp(Prozent, Zoom_Kleinster, Zoom_Groesster);
    const bool Anders = Neu != Prozent_Jetzt;
    Prozent_Jetzt     = Neu;
    QFont Schrift     = Grund;
    Schrift.setPointSizeF(std::max(Grund.pointSizeF(), 1.0) * Neu / 100.0);
    setFont(Schrift);
    setTabStopDistance(8 * QFontMetricsF(Schrift).horizontalAdvance(u' '));
    Rand_Setzen();
    if (Anders)
        emit Zoom_Geaendert(Neu);
}

void Quelltext_Feld::wheelEvent(QWheelEvent* Ereignis)
{
    if (Ereignis->modifiers() != Qt::ControlModifier)
        return Text_Feld::wheelEvent(Ereignis);
    constexpr int Raste = 120; // eighths of a degree
    Rad_Rest += Ereignis->angleDelta().y();
    Zoom_Setzen(Prozent_Jetzt + Rad_Rest / Raste * 10);
    Rad_Rest %= Raste;
    Ereignis->accept();
}

// --- look ---

void Quelltext_Feld::changeEvent(QEvent* Ereignis)
{
    Text_Feld::changeEvent(Ereignis);
    if (Ereignis->type() != QEvent::PaletteChange)
        return;
    Aktuelle_Zeile_Zeigen();
    if (Nummern != nullptr)
        Nummern->update();
}

void Quelltext_Feld::Aktuelle_Zeile_Zeigen()
{
    QTextEdit::ExtraSelection Zeile;
    const QPalette            p = palette();
    Zeile.format.setBackground(
        Gemischt(p.color(QPalette::Base), p.color(QPalette::Highlight), 0.10));
    Zeile.format.setProperty(QTextFormat::FullWidthSelection, true);
    Zeile.cursor = textCursor();
    Zeile.cursor.clearSelection();
    setExtraSelections({Zeile}); // draws the two lines, and their numbers with them
}

int Quelltext_Feld::Nummern_Breite() const
{
    const int Stellen = std::max<int>(3, static_cast<int>(QString::number(blockCount()).size()));
    const QFontMetrics Mass(font());
    return Mass.horizontalAdvance(u'9') * (Stellen + 1) + Mass.horizontalAdvance(u' ');
}

void Quelltext_Feld::Rand_Setzen()
{
    setViewportMargins(Nummern_Breite(), 0, 0, 0);
    const QRect r = contentsRect();
    Nummern->setGeometry(r.left(), r.top(), Nummern_Breite(), r.height());
}

void Quelltext_Feld::resizeEvent(QResizeEvent* Ereignis)
{
    Text_Feld::resizeEvent(Ereignis);
    Rand_Setzen();
}

void Quelltext_Feld::Nummern_Zeichnen(QPaintEvent* Ereignis)
{
    const QPalette p = palette();
    QPainter       Stift(Nummern);
    Stift.fillRect(Ereignis->rect(),
                   Gemischt(p.color(QPalette::Base), p.color(QPalette::Text), 0.05));
    const QColor Matt   = Gemischt(p.color(QPalette::Base), p.color(QPalette::Text), 0.5);
    const int    Rechts = Nummern->width() - fontMetrics().horizontalAdvance(u'9');
    Stift.setFont(font());
    QTextBlock Zeile = firstVisibleBlock();
    double     Oben  = blockBoundingGeometry(Zeile).translated(contentOffset()).top();
    while (Zeile.isValid() && Oben <= Ereignis->rect().bottom()) {
        const double Hoehe = blockBoundingRect(Zeile).height();
        Stift.setPen(Zeile == textCursor().block() ? p.color(QPalette::Text) : Matt);
        Stift.drawText(QRectF(0, Oben, Rechts, Hoehe),
                       Qt::AlignRight | Qt::AlignVCenter,
                       QString::number(Zeile.blockNumber() + 1));
        Oben += Hoehe;
        Zeile = Zeile.next();
    }
}

} // namespace varnholt
