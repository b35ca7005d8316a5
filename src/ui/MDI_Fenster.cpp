// The main window as the logic sees it behind the wall: child windows by number, forms, look.
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "ui/Abfrage_Modus_Dialog.h"
#include "ui/Bereich_Dialog.h"
#include "ui/Erststart_Dialog.h"
#include "ui/F_SIM_EXRAM.h"
#include "ui/F_SIM_RAM.h"
#include "ui/F_SIM_SFR.h"
#include "ui/Geraete_Formulare.h"
#include "ui/HexSuche_Fenster.h"
#include "ui/Hexedit_Fenster.h"
#include "ui/Hilfe_Fenster.h"
#include "ui/Kindfenster.h"
#include "ui/MDI.h"
#include "ui/Notiz_Feld.h"
#include "ui/Optionen_Dialog.h"
#include "ui/Qt_Text.h"
#include "ui/Quelltext_Feld.h"
#include "ui/Spr_Fenster.h"
#include "ui/Start_Bild.h"
#include "ui/Suche_Fenster.h"
#include "ui/Tafel_Fenster.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QScreen>
#include <QStringList>
#include <QTimer>

namespace varnholt {

namespace {

bool Ist_Suchform(Formular Welches)
{
    return Welches == Formular::F_Suche || Welches == Formular::F_HexSuche;
}

bool Ist_Bereichsform(Formular Welches)
{
    return Welches == Formular::F_Bereich_Kopieren || Welches == Formular::F_Bereich_setzen ||
           Welches == Formular::F_Bereich_entfernen;
}

// A search form is built once, and keeps its place from one showing to the next.
void Suchform_Zeigen(MDI& Haupt, Formular Welches, std::unique_ptr<QWidget>& Form)
{
    const auto Weg = [&Haupt](const std::function<void()>& Befehl) { Haupt.Eingreifen(Befehl); };
    if (!Form && Welches == Formular::F_Suche)
        Form = std::make_unique<Suche_Fenster>(Weg, &Haupt);
    else if (!Form)
        Form = std::make_unique<HexSuche_Fenster>(Weg, &Haupt);
    Form->show();
    Form->raise();
    Form->activateWindow();
}

} // namespace

Kindfenster* MDI::Kind(int Nummer) const
{
    const auto Platz = static_cast<std::size_t>(Nummer);
    return Nummer >= 1 && Platz < Kinder.size() ? Kinder[Platz] : nullptr;
}

bool MDI::Sichtbar(int Nummer) const
{
    const Kindfenster* k = Kind(Nummer);
    return k != nullptr && !k->isHidden();
}

void MDI::Sichtbar_Setzen(int Nummer, bool Zu_Sehen)
{
    Kindfenster* k = Kind(Nummer);
    if (k == nullptr || k->isHidden() != Zu_Sehen)
        return;
    Zeigen_Falls_Noetig();
    const bool Mit_Fokus = !Zu_Sehen && k->isAncestorOf(QApplication::focusWidget());
    if (Zu_Sehen)
        k->widget()->show();
    k->setVisible(Zu_Sehen);
    const int Haupt = Modus == Modus_Hex ? Fenster_Hexedit : Fenster_Edit;
    if (Mit_Fokus && Sichtbar(Haupt))
        Fokus(Haupt); // the keyboard mustn't be lost with the window
}

Lage_T MDI::Lage(int Nummer) const
{
    const Kindfenster* k = Kind(Nummer);
    return k != nullptr ? k->Lage() : Lage_T{};
}

void MDI::Lage_Setzen(int Nummer, const Lage_T& Neue)
{
    Zeigen_Falls_Noetig();
    if (Kindfenster* k = Kind(Nummer))
        k->Lage_Setzen(Neue, Flaeche->viewport()->size());
}

void MDI::Fokus(int Nummer)
{
    Kindfenster* k = Kind(Nummer);
    if (k == nullptr)
        return;
    Flaeche->setActiveSubWindow(k);
    if (Nummer == Fenster_Hexedit)
        Hex->Fokus();
    else
        k->widget()->setFocus(Qt::OtherFocusReason);
}

// The main window comes up, behind the splash, when something is to be put into it.
void MDI::Zeigen_Falls_Noetig()
{
    if (isVisible())
        return;
    Auf_Den_Schirm();
    Auf_Groesse_Warten();
    if (Formulare[0])
        Formulare[0]->raise();
}

// Where it stood at the end of the last run, as far as that is on the screen; else all of it.
void MDI::Auf_Den_Schirm()
{
    constexpr int Kleinste = 320; // device-independent pixels
    constexpr int Rand     = 40;
    const QRect   Schirm   = screen()->availableGeometry();
    const auto    Zahlen   = Qt_Text(Hauptfenster).split(u' ');
    const QRect   Alt =
        Zahlen.size() == 4
              ? QRect(Zahlen[0].toInt(), Zahlen[1].toInt(), Zahlen[2].toInt(), Zahlen[3].toInt())
              : QRect();
    const QRect Sichtbar_Davon = Alt & Schirm;
    if (Sichtbar_Davon.width() >= Kleinste && Sichtbar_Davon.height() >= Kleinste) {
        setGeometry(Sichtbar_Davon);
        return show();
    }
    setGeometry(Schirm.adjusted(Rand, Rand, -Rand, -Rand));
    showMaximized();
}

void MDI::Platz_Merken()
{
    if (!isVisible() || isMinimized() || Init_Laeuft)
        return;
    const QRect r = geometry();
    Hauptfenster  = isMaximized() ? "max"
                                  : Nach_Std(QStringLiteral("%1 %2 %3 %4")
                                                .arg(r.x())
                                                .arg(r.y())
                                                .arg(r.width())
                                                .arg(r.height()));
}

void MDI::moveEvent(QMoveEvent* Ereignis)
{
    QMainWindow::moveEvent(Ereignis);
    Platz_Merken();
}

void MDI::resizeEvent(QResizeEvent* Ereignis)
{
    QMainWindow::resizeEvent(Ereignis);
    Platz_Merken();
}

// The window manager answers in its own time: until the window has the size that it will keep, the
// child windows have no places.
void MDI::Auf_Groesse_Warten()
{
    constexpr int Hoechstens = 600; // milliseconds; there may be no window manager
    constexpr int Ruhe       = 80;  // without a change of size
    constexpr int Schritt    = 10;
    QElapsedTimer Gesamt;
    QElapsedTimer Seit_Aenderung;
    QSize         Zuletzt = size();
    Gesamt.start();
    Seit_Aenderung.start();
    while (Gesamt.elapsed() < Hoechstens && Seit_Aenderung.elapsed() < Ruhe) {
        QEventLoop Schleife;
        QTimer::singleShot(Schritt, &Schleife, &QEventLoop::quit);
        Schleife.exec(QEventLoop::ExcludeUserInputEvents);
        if (size() != Zuletzt) {
            Zuletzt = size();
            Seit_Aenderung.restart();
        }
    }
}

Lage_T MDI::Innenmass() const
{
    const_cast<MDI*>(this)->Zeigen_Falls_Noetig();
    const QSize s = Flaeche->viewport()->size();
    return {0, 0, s.height(), s.width()};
}

void MDI::Bildschirm_Fuellen()
{
    Zeigen_Falls_Noetig();
    showMaximized();
}

void MDI::Hauptfenster_Titel(std::string_view Text) { setWindowTitle(Qt_Text(Text)); }

void MDI::Hintergrund(std::int32_t Farbe)
{
    Edit->Hintergrund_Setzen(Farbe);
    Notiz->Hintergrund_Setzen(Farbe);
    QPalette p = QApplication::palette(Spr);
    if (Farbe != 0xFFFFFF) {
        p.setColor(QPalette::Base, Edit->palette().color(QPalette::Base));
        p.setColor(QPalette::Text, Edit->palette().color(QPalette::Text));
    }
    for (QWidget* Feld : {static_cast<QWidget*>(Spr),
                          static_cast<QWidget*>(Bef),
                          static_cast<QWidget*>(Basic_Bef),
                          static_cast<QWidget*>(Sim_RAM_Fenster->Tafel()),
                          static_cast<QWidget*>(Sim_SFR_Fenster->Tafel()),
                          static_cast<QWidget*>(Sim_EXRAM_Fenster->Tafel())})
        Feld->setPalette(p);
}

void MDI::Schrift_Setzen(int Nummer, const Schrift_T& Schrift)
{
    switch (Nummer) {
    case Fenster_Edit:
        Edit->Grund_Schrift_Setzen(Qt_Schrift(Schrift, Schrift_Vorgabe(Schrift_Edit)));
        return Edit->Zoom_Setzen(varnholt::Zoom);
    case Fenster_Spr:
        return Spr->setFont(Qt_Schrift(Schrift, Schrift_Vorgabe(Schrift_Spr)));
    case Fenster_Notiz:
        return Notiz->setFont(Qt_Schrift(Schrift, Schrift_Vorgabe(Schrift_Notiz)));
    default:
        return;
    }
}

// --- forms ---

// It is hidden, not closed, and loads its text at each showing.
void MDI::Hilfe_Zeigen(std::unique_ptr<QWidget>& Form)
{
    if (!Form)
        Form = std::make_unique<Hilfe_Fenster>();
    static_cast<Hilfe_Fenster*>(Form.get())->Laden();
    Form->show();
    Form->raise();
    Form->activateWindow();
}

void MDI::Formular_Zeigen(Formular Welches)
{
    if (Welches == Formular::Optionen) {
        Optionen_Dialog Dialog(this);
        Dialog.exec();
        return;
    }
    if (Ist_Bereichsform(Welches)) {
        Bereich_Dialog Dialog(this);
        Dialog.exec();
        return;
    }
    auto& Form = Formulare[static_cast<std::size_t>(Welches)];
    if (Geraete_Formular_Zeigen(*this, Welches, Form))
        return;
    if (Welches == Formular::F_Hilfe)
        return Hilfe_Zeigen(Form);
    if (Ist_Suchform(Welches))
        return Suchform_Zeigen(*this, Welches, Form);
    const auto Weg = [this](const std::function<void()>& Befehl) { Ausfuehren(Befehl); };
    switch (Welches) {
    case Formular::Start:
        Form = std::make_unique<Start_Bild>();
        break;
    case Formular::Erststart:
        Form = std::make_unique<Erststart_Dialog>(Weg);
        break;
    default:
        Form = std::make_unique<Abfrage_Modus_Dialog>(Weg);
    }
    Form->show();
    Form->raise();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (Welches == Formular::Start)
        emit Start_Gezeigt();
}

void MDI::Formular_Entladen(Formular Welches)
{
    if (Welches == Formular::Optionen)
        return;
    auto& Form = Formulare[static_cast<std::size_t>(Welches)];
    if (Form && Ist_Suchform(Welches)) {
        const bool Vorn = Form->isActiveWindow();
        Form->hide();
        if (Vorn)
            activateWindow();
    } else if (Form) {
        Form->hide();
        Form.release()->deleteLater(); // it may be one of its own handlers that asks for this
    }
}

bool MDI::Formular_Sichtbar(Formular Welches) const
{
    const auto& Form = Formulare[static_cast<std::size_t>(Welches)];
    return Form && Form->isVisible();
}

void MDI::Start_Text(std::string_view Text)
{
    if (auto* Bild_Fenster = dynamic_cast<Start_Bild*>(Formulare[0].get()))
        Bild_Fenster->Text_Setzen(Text);
}

void MDI::Programm_Beenden()
{
    Beendet = true;
    hide();
    if (Ende)
        Ende();
    else
        QApplication::exit(0);
}

} // namespace varnholt
