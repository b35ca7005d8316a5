// The window `Hexedit`.
#include "ui/Hexedit_Fenster.h"

#include "core/messages.h"
#include "core/views.h"
#include "ui/Qt_Text.h"

#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Luecke          = 6; // pixels between two columns
constexpr int Kopf_Zuschlag   = 6; // the heading is that much higher than a row
constexpr int Adress_Zeile    = 8; // six digits and the line break
constexpr int Adress_Ziffern  = 6;
constexpr int Uebliche_Zeilen = 24;
constexpr int Rad_Raste       = 120; // angle of a notch, in eighths of a degree

} // namespace

// --- heading ---

Hex_Kopf::Hex_Kopf(const Hex_Gitter& Neues_Feld, const Feldmass_T& Neues_Mass, QWidget* Eltern)
    : QLabel(Eltern), Feld(Neues_Feld), Mass(Neues_Mass)
{
}

void Hex_Kopf::paintEvent(QPaintEvent* Ereignis)
{
    QLabel::paintEvent(Ereignis);
    if (!text().isEmpty())
        return;
    QPainter Maler(this);
    QFont    Schrift = Feld.font();
    Schrift.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    Maler.setFont(Schrift);
    Maler.setPen(palette().color(QPalette::WindowText));
    for (int c = 0; c < Zeilen_Bytes; ++c) {
        QRect Ort = Feld.Zelle(c * Mass.Zelle);
        Ort.setWidth(Mass.Breite * Feld.Zellen_Breite());
        Ort.moveTop(0);
        Ort.setHeight(height());
        Maler.drawText(Ort, Qt::AlignCenter, QString::number(c, 16).toUpper());
    }
}

// --- window ---

Hexedit_Fenster::Hexedit_Fenster(QWidget* Eltern)
    : QWidget(Eltern), Spalte_D(new Hex_Spalte(Adr_D, Adress_Zeile, Adress_Ziffern, this)),
      Spalte_H(new Hex_Spalte(Adr_H, Adress_Zeile, Adress_Ziffern, this)),
      Feld_Ziffern(new Hex_Gitter(Hex_Feld, Hex_Feld_Griffe, this)),
      Feld_Zeichen(new Hex_Gitter(AscII_Feld, AscII_Feld_Griffe, this)), Label1(new QLabel(this)),
      Label2(new QLabel(this)), Label3(new Hex_Kopf(*Feld_Ziffern, Hex_Mass, this)),
      Label4(new Hex_Kopf(*Feld_Zeichen, AscII_Mass, this)),
      Leiste(new QScrollBar(Qt::Vertical, this))
{
    Spalte_D->setObjectName(QStringLiteral("Adr_D"));
    Spalte_H->setObjectName(QStringLiteral("Adr_H"));
    Feld_Ziffern->setObjectName(QStringLiteral("Hex_Feld"));
    Feld_Zeichen->setObjectName(QStringLiteral("AscII_Feld"));
    Label1->setObjectName(QStringLiteral("Label1"));
    Label2->setObjectName(QStringLiteral("Label2"));
    Label3->setObjectName(QStringLiteral("Label3"));
    Label4->setObjectName(QStringLiteral("Label4"));
    Leiste->setObjectName(QStringLiteral("Scroll"));
    setFocusProxy(Feld_Ziffern);
    setTabOrder(Feld_Ziffern, Feld_Zeichen);
    Verbinden();
    Nachziehen();
}

void Hexedit_Fenster::Verbinden()
{
    for (Hex_Gitter* Feld : {Feld_Ziffern, Feld_Zeichen}) {
        connect(Feld, &Hex_Gitter::Geaendert, this, &Hexedit_Fenster::Nachziehen);
        connect(Feld, &Hex_Gitter::Kontextmenue, this, &Hexedit_Fenster::Kontextmenue);
    }
    connect(Leiste, &QScrollBar::valueChanged, this, [this](int Wert) {
        if (Angleichen)
            return;
        Scroll_Setzen(Wert);
        Nachziehen();
    });
}

void Hexedit_Fenster::Fokus()
{
    Hex_Gitter* Feld = Hex_Aktives_Feld == Feld_AscII ? Feld_Zeichen : Feld_Ziffern;
    Feld->setFocus(Qt::OtherFocusReason);
}

QSize Hexedit_Fenster::sizeHint() const
{
    const int Zeile = Feld_Ziffern->Zeilen_Hoehe();
    return {Alle_Breiten(), (Uebliche_Zeilen + 2) * Zeile + Kopf_Zuschlag};
}

int Hexedit_Fenster::Alle_Breiten() const
{
    int Summe = Luecke + Leiste->sizeHint().width();
    for (const Hex_Spalte* s : {Spalte_D,
                                Spalte_H,
                                static_cast<Hex_Spalte*>(Feld_Ziffern),
                                static_cast<Hex_Spalte*>(Feld_Zeichen)})
        Summe += s->Breite_Der_Spalte() + Luecke;
    return Summe;
}

// --- size ---

// The columns stand side by side under their headings, down to the lower edge; the bar keeps to the
// right edge, over a column that a narrow window cuts off.
void Hexedit_Fenster::Anordnen()
{
    const int  Oben   = Feld_Ziffern->Zeilen_Hoehe() + Kopf_Zuschlag;
    const int  Hoch   = std::max(0, height() - Oben);
    int        x      = Luecke;
    const auto Setzen = [&](Hex_Spalte* Spalte, QLabel* Kopf) {
        const int Breite = Spalte->Breite_Der_Spalte();
        Kopf->setGeometry(x, 0, Breite, Oben);
        Spalte->setGeometry(x, Oben, Breite, Hoch);
        x += Breite + Luecke;
    };
    Setzen(Spalte_D, Label1);
    Setzen(Spalte_H, Label2);
    Setzen(Feld_Ziffern, Label3);
    Setzen(Feld_Zeichen, Label4);
    const int Breite = Leiste->sizeHint().width();
    Leiste->setGeometry(width() - Breite, 0, Breite, height());
    Leiste->raise();
}

void Hexedit_Fenster::resizeEvent(QResizeEvent* Ereignis)
{
    QWidget::resizeEvent(Ereignis);
    Anordnen();
    Hoehe_Vormerken();
}

// The logic redraws the page and gives the event loop a turn, which must not happen inside a
// resize; several resizes in a row, as when the window opens, count as one.
void Hexedit_Fenster::Hoehe_Vormerken()
{
    if (!Vorgemerkt)
        QTimer::singleShot(0, this, &Hexedit_Fenster::Hoehe_Melden);
    Vorgemerkt = true;
}

void Hexedit_Fenster::Hoehe_Melden()
{
    Vorgemerkt      = false;
    const int Hoch  = Feld_Ziffern->height();
    const int Zeile = Feld_Ziffern->Zeilen_Hoehe();
    if (std::exchange(Hoehe_Zuvor, Hoch) < 0)
        Hexedit_Einrichten(Hoch, Zeile);
    else
        Hexedit_Resize(Hoch, Zeile);
    Nachziehen();
}

// --- drawing and scrolling ---

void Hexedit_Fenster::Leiste_Angleichen()
{
    Angleichen = true;
    Leiste->setRange(0, Hexedit.Scroll_Max);
    Leiste->setPageStep(std::max(1, Hexedit.R + 1));
    Leiste->setValue(Hexedit.Scroll);
    Angleichen = false;
}

void Hexedit_Fenster::Namen_Setzen()
{
    const auto Name = [](const char* D, const char* E) { return Qt_Text(In_Sprache({D, E})); };
    Spalte_D->setAccessibleName(Name("Adressen dezimal", "Decimal addresses"));
    Spalte_H->setAccessibleName(Name("Adressen hexadezimal", "Hexadecimal addresses"));
    Feld_Ziffern->setAccessibleName(Name("Bytes hexadezimal", "Bytes in hexadecimal"));
    Feld_Zeichen->setAccessibleName(Name("Bytes als Zeichen", "Bytes as characters"));
    Leiste->setAccessibleName(Name("Zeilen des Hex-Editors", "Rows of the hex editor"));
}

void Hexedit_Fenster::Nachziehen()
{
    if (Gezeigt == Ansichten.Hex_Stand)
        return;
    Gezeigt = Ansichten.Hex_Stand;
    Leiste_Angleichen();
    Namen_Setzen();
    std::size_t i = 0;
    for (QLabel* Label :
         {Label1, Label2, static_cast<QLabel*>(Label3), static_cast<QLabel*>(Label4)})
        Label->setText(Qt_Text(Hexedit.Label[i++]));
    for (QWidget* Spalte : {static_cast<QWidget*>(Spalte_D),
                            static_cast<QWidget*>(Spalte_H),
                            static_cast<QWidget*>(Feld_Ziffern),
                            static_cast<QWidget*>(Feld_Zeichen)})
        Spalte->update();
}

void Hexedit_Fenster::wheelEvent(QWheelEvent* Ereignis)
{
    Rad_Rest -= Ereignis->angleDelta().y();
    const int Rasten = Rad_Rest / Rad_Raste;
    Rad_Rest -= Rasten * Rad_Raste;
    Scroll_Setzen(Hexedit.Scroll + Rasten * Rad_Zeilen);
    Nachziehen();
    Ereignis->accept();
}

} // namespace varnholt
