// The form `Hilfe`.
#include "ui/Hilfe_Fenster.h"

#include "editors/Hilfe.h"
#include "ui/Bilder.h"
#include "ui/Qt_Text.h"
#include "ui/Reich_Qt.h"

#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>

namespace varnholt {
namespace {

constexpr int Breite = 660; // of the form at its first showing, pixels
constexpr int Hoehe  = 620;
constexpr int Rand   = 18; // around the text

constexpr int Kleinste = 120; // width and height of what must be on the screen of an old place

// The German text belongs to the layout of the form.
QByteArray Layout_Text()
{
    QFile Datei(QStringLiteral(":/varnholt/hilfe.rtf"));
    return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

} // namespace

Hilfe_Fenster::Hilfe_Fenster(QWidget* Eltern) : QWidget(Eltern), Text(new QTextEdit(this))
{
    setObjectName(QStringLiteral("Hilfe"));
    setWindowIcon(Programm_Bild());
    Text->setObjectName(QStringLiteral("Text"));
    Text->setReadOnly(true);
    Text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Text->setCursorWidth(0);
    Text->setFrameShape(QFrame::NoFrame);
    Text->document()->setDocumentMargin(Rand);
    auto* Ganzes = new QVBoxLayout(this);
    Ganzes->setContentsMargins(0, 0, 0, 0);
    Ganzes->addWidget(Text);
    resize(Breite, Hoehe);
    Platz_Nehmen();
}

// Where it stood the last time, as far as that is on a screen.
void Hilfe_Fenster::Platz_Nehmen()
{
    const Lage_T   Lage   = Hilfe_Lage();
    const QRect    Alt    = QRect(Lage.Links, Lage.Oben, Lage.Breite, Lage.Hoehe);
    const QScreen* Schirm = QGuiApplication::screenAt(Alt.center());
    if (Schirm == nullptr)
        return;
    const int   Kopf     = style()->pixelMetric(QStyle::PM_TitleBarHeight); // stays in reach
    const QRect Sichtbar = Alt & Schirm->availableGeometry().adjusted(0, Kopf, 0, 0);
    if (Sichtbar.width() >= Kleinste && Sichtbar.height() >= Kleinste)
        setGeometry(Sichtbar);
}

void Hilfe_Fenster::Platz_Merken() const
{
    const QRect r = geometry();
    if (isVisible() && !isMinimized() && !isMaximized() && !isFullScreen())
        Hilfe_Merken({r.top(), r.left(), r.height(), r.width()});
}

void Hilfe_Fenster::moveEvent(QMoveEvent* Ereignis)
{
    QWidget::moveEvent(Ereignis);
    Platz_Merken();
}

void Hilfe_Fenster::resizeEvent(QResizeEvent* Ereignis)
{
    QWidget::resizeEvent(Ereignis);
    Platz_Merken();
}

void Hilfe_Fenster::Laden()
{
    const QByteArray Bytes = Layout_Text();
    Hilfe_Load({Bytes.constData(), static_cast<std::size_t>(Bytes.size())});
    setWindowTitle(Qt_Text(Hilfe_Form.Titel));
    Text->setAccessibleName(windowTitle());
    Text_Zeigen();
}

void Hilfe_Fenster::Text_Zeigen()
{
    const bool Dunkel = Text->palette().color(QPalette::Base).lightness() < 128;
    Text->clear();
    QTextCursor c(Text->document());
    if (!Hilfe_Form.Text.Absaetze.empty())
        c.setBlockFormat(Qt_Absatzformat(Hilfe_Form.Text.Absaetze.front().Bild));
    Reich_Einfuegen(c, Hilfe_Form.Text, Dunkel);
    Text->moveCursor(QTextCursor::Start);
}

void Hilfe_Fenster::changeEvent(QEvent* Ereignis)
{
    QWidget::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::ApplicationPaletteChange)
        Text_Zeigen();
}

void Hilfe_Fenster::keyPressEvent(QKeyEvent* Ereignis)
{
    if (Ereignis->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(Ereignis);
}

} // namespace varnholt
