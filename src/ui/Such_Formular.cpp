// What the two search forms have in common.
#include "ui/Such_Formular.h"

#include "core/shared_state.h"
#include "ui/Qt_Text.h"
#include "ui/Tasten.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace varnholt {
namespace {

bool Ist_F3(const QKeyEvent& Taste)
{
    return Taste.key() == Qt::Key_F3 && Taste.modifiers() == Qt::NoModifier;
}

bool Ist_Enter(const QKeyEvent& Taste)
{
    return Taste.key() == Qt::Key_Return || Taste.key() == Qt::Key_Enter;
}

// Shortcuts of the main window hold here, too; but what edits the document isn't meant for it.
bool Gilt_Hier(const QKeyEvent& Taste)
{
    return Ist_F3(Taste) || Taste.key() == Qt::Key_Delete || Taste.matches(QKeySequence::Cut) ||
           Taste.matches(QKeySequence::Paste) || Ruecknahme_Aus(Taste) != Ruecknahme::Keine;
}

} // namespace

Such_Formular::Such_Formular(const char* Name, Befehls_Weg Ausfuehren, QWidget* Eltern)
    : QDialog(Eltern, Qt::Tool), Weg(std::move(Ausfuehren))
{
    setObjectName(QString::fromLatin1(Name));
    Suchbegriff      = Teil<QLineEdit>("Suchbegriff");
    Suchen_OK        = Teil<QPushButton>("Suchen_OK");
    Suchen_Abbrechen = Teil<QPushButton>("Suchen_Abbrechen");
    Suchen_OK->setDefault(true);
    Suchbegriff->installEventFilter(this);
    connect(Suchen_OK, &QPushButton::clicked, this, [this] { Ausloesen([this] { Suchen(); }); });
    connect(Suchen_Abbrechen, &QPushButton::clicked, this, &Such_Formular::reject);
}

void Such_Formular::Ausloesen(const std::function<void()>& Befehl)
{
    Befehl_Ausfuehren(Weg, Befehl);
    Nachziehen();
}

void Such_Formular::reject()
{
    Ausloesen([this] { Abbrechen(); });
    hide();
}

// --- the state of the logic ---

void Such_Formular::Nachziehen()
{
    if (!isVisible())
        return;
    if (!Passt())
        return hide();
    Beschriften();
    Felder_Zeigen();
}

void Such_Formular::Beschriften()
{
    if (Gezeigte_Sprache == Sprache)
        return;
    Gezeigte_Sprache     = Sprache;
    const auto In_Worten = [this](const QObject* w) {
        return Qt_Text(Text(Nach_Std(w->objectName())));
    };
    setWindowTitle(In_Worten(this));
    for (auto* b : findChildren<QAbstractButton*>())
        b->setText(In_Worten(b));
    for (auto* l : findChildren<QLabel*>())
        l->setText(In_Worten(l));
}

// Each wish is followed once: the user may go elsewhere afterwards.
void Such_Formular::Fokus_Zeigen(std::uint64_t Stand, QWidget& Ziel)
{
    if (std::exchange(Gezeigter_Fokus, Stand) == Stand)
        return;
    Ziel.setFocus(Qt::OtherFocusReason);
    if (&Ziel == Suchbegriff)
        Suchbegriff->selectAll();
}

// --- keys ---

bool Such_Formular::event(QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::ShortcutOverride &&
        Gilt_Hier(*static_cast<QKeyEvent*>(Ereignis))) {
        Ereignis->accept();
        return true;
    }
    return QDialog::event(Ereignis);
}

bool Such_Formular::eventFilter(QObject* Feld, QEvent* Ereignis)
{
    if (Feld != Suchbegriff || Ereignis->type() != QEvent::KeyPress ||
        !Ist_Enter(*static_cast<QKeyEvent*>(Ereignis)))
        return QDialog::eventFilter(Feld, Ereignis);
    Ausloesen([this] { Enter_Gedrueckt(); });
    return true;
}

void Such_Formular::keyPressEvent(QKeyEvent* Ereignis)
{
    if (!Ist_F3(*Ereignis))
        return QDialog::keyPressEvent(Ereignis);
    Ausloesen([this] { Suchen(); });
}

// --- place ---

void Such_Formular::showEvent(QShowEvent* Ereignis)
{
    QDialog::showEvent(Ereignis);
    if (!std::exchange(Hat_Platz, true))
        An_Den_Rand();
    Nachziehen();
}

// At first near the upper right corner of the main window, where it hides little of the text.
void Such_Formular::An_Den_Rand()
{
    constexpr int Abstand_Rechts = 40; // device-independent pixels
    constexpr int Abstand_Oben   = 110;
    if (parentWidget() == nullptr)
        return;
    const QWidget* Haupt  = parentWidget()->window();
    const QRect    Schirm = Haupt->screen()->availableGeometry();
    const QPoint   Ort =
        Haupt->mapToGlobal(QPoint(Haupt->width() - width() - Abstand_Rechts, Abstand_Oben));
    move(std::clamp(Ort.x(), Schirm.left(), std::max(Schirm.right() - width(), Schirm.left())),
         std::clamp(Ort.y(), Schirm.top(), std::max(Schirm.bottom() - height(), Schirm.top())));
}

} // namespace varnholt
