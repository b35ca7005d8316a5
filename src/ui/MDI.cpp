// The main window: its parts, and how events reach the logic. The wall's side is in
// MDI_Fenster.cpp.
#include "ui/MDI.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Nachschlagen.h"
#include "editors/Notiz.h"
#include "editors/Quelltext.h"
#include "editors/Sprungmarken.h"
#include "files/Datei_Zustand.h"
#include "files/Dateikommandos.h"
#include "simulator/Sitzung.h"
#include "ui/Begleiter.h"
#include "ui/Bilder.h"
#include "ui/Dateiwaechter.h"
#include "ui/F_SIM_CONTROL.h"
#include "ui/F_SIM_EXRAM.h"
#include "ui/F_SIM_RAM.h"
#include "ui/F_SIM_SFR.h"
#include "ui/Feld_Ruecknahme.h"
#include "ui/Fremd_Hinweis.h"
#include "ui/Hexedit_Fenster.h"
#include "ui/Kindfenster.h"
#include "ui/Menueleiste.h"
#include "ui/Notiz_Feld.h"
#include "ui/Notiz_Menue.h"
#include "ui/Qt_Text.h"
#include "ui/Quelltext_Feld.h"
#include "ui/Spr_Fenster.h"
#include "ui/Statuszeile.h"
#include "ui/Tafel_Fenster.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace varnholt {

MDI::MDI()
{
    setObjectName(QStringLiteral("MDI"));
    setWindowIcon(Programm_Bild());
    setAcceptDrops(true);
    Kinder_Bauen();
    Leisten  = new Menueleiste(this, [this](const auto& Befehl, bool Im_Lauf) {
        Im_Lauf ? Eingreifen(Befehl) : Ausfuehren(Befehl);
    });
    Zeile    = new Statuszeile(this);
    Waechter = new Dateiwaechter(this);
    setStatusBar(Zeile);
    connect(Zeile, &Statuszeile::Board_Gewuenscht, this, [this] {
        Leisten->Eintrag("MNU_EEprommer")->trigger();
    });
    Welt_Einsetzen();
    Kinder_Verbinden();
    QCoreApplication::instance()->installEventFilter(new Feld_Ruecknahme(this));
    // Whatever an event has changed is shown before the program waits for the next one.
    connect(QAbstractEventDispatcher::instance(),
            &QAbstractEventDispatcher::aboutToBlock,
            this,
            &MDI::Nachziehen);
}

MDI::~MDI()
{
    disconnect(QAbstractEventDispatcher::instance(), nullptr, this, nullptr);
    Plattform_Zuruecksetzen();
    // The child windows tell of their end, and must find nobody who listens.
    Flaeche->disconnect(this);
    for (Kindfenster* k : Kinder)
        if (k != nullptr)
            k->disconnect(this);
    delete takeCentralWidget();
}

void MDI::Kinder_Bauen()
{
    auto* Mitte = new QWidget(this);
    auto* Reihe = new QVBoxLayout(Mitte);
    Reihe->setContentsMargins(0, 0, 0, 0);
    Reihe->setSpacing(0);
    Fremd   = new Fremd_Hinweis(Mitte);
    Flaeche = new QMdiArea(Mitte);
    Flaeche->setObjectName(QStringLiteral("Flaeche"));
    Flaeche->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    Flaeche->setBackground(palette().brush(QPalette::Dark));
    Reihe->addWidget(Fremd);
    Reihe->addWidget(Flaeche, 1);
    setCentralWidget(Mitte);

    Edit  = new Quelltext_Feld;
    Hex   = new Hexedit_Fenster;
    Spr   = new Spr_Fenster;
    Notiz = new Notiz_Feld;
    Edit->setObjectName(QStringLiteral("Text"));
    Notiz->setObjectName(QStringLiteral("Notiz_Text"));
    Notiz->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    Notiz->setFrameShape(QFrame::NoFrame);
    Edit->setFrameShape(QFrame::NoFrame);
    Edit->setAccessibleName(QStringLiteral("MC-Editor"));
    Einsetzen(Fenster_Hexedit, "Hexedit", Hex, true);
    Einsetzen(Fenster_Edit, "Edit", Edit, true);
    Einsetzen(Fenster_Spr, "Spr", Spr, false);
    Einsetzen(Fenster_Notiz, "Notiz", Notiz, false);

    Bef       = new Tafel_Fenster(Nachschlagen.Bef, Bef_Spalten, Bef_Erklaerung);
    Basic_Bef = new Tafel_Fenster(Nachschlagen.Basic_Bef, Basic_Bef_Spalten, Basic_Bef_Erklaerung);
    Einsetzen(Fenster_Bef, "Bef", Bef, false);
    Einsetzen(Fenster_Basic, "Basic_Bef", Basic_Bef, false);
    Sitzungs_Kinder_Bauen();
}

void MDI::Einsetzen(int Nummer, const char* Name, QWidget* Inhalt, bool Hauptsache)
{
    auto* Neues = new Kindfenster(Nummer, QString::fromLatin1(Name), Inhalt, Hauptsache);
    Flaeche->addSubWindow(Neues, Neues->windowFlags());
    Neues->hide();
    Kinder[static_cast<std::size_t>(Nummer)] = Neues;
}

void MDI::Sitzungs_Kinder_Bauen()
{
    const auto Weg      = [this](const std::function<void()>& Befehl) { Eingreifen(Befehl); };
    Sim_RAM_Fenster     = new F_SIM_RAM(Weg);
    Sim_SFR_Fenster     = new F_SIM_SFR(Weg);
    Sim_EXRAM_Fenster   = new F_SIM_EXRAM(Weg);
    Sim_CONTROL_Fenster = new F_SIM_CONTROL(Weg);
    Einsetzen(Fenster_RAM, "F_SIM_RAM", Sim_RAM_Fenster, false);
    Einsetzen(Fenster_SFR, "F_SIM_SFR", Sim_SFR_Fenster, false);
    Einsetzen(Fenster_EXRAM, "F_SIM_EXRAM", Sim_EXRAM_Fenster, false);
    Einsetzen(Fenster_CONTROL, "F_SIM_CONTROL", Sim_CONTROL_Fenster, false);
}

void MDI::Welt_Einsetzen()
{
    Box.Bei_Hinweis        = [this](std::string_view Text) { Zeile->Hinweisen(Text); };
    Ereignisse.Nachziehen  = [this] { Nachziehen(); };
    Ereignisse.Bei_Sperren = [this](bool Gesperrt) {
        if (Gesperrt && focusWidget() != nullptr)
            Fokus_Vorher = focusWidget();
        menuBar()->setEnabled(!Gesperrt);
        for (QToolBar* Leiste : findChildren<QToolBar*>())
            Leiste->setEnabled(!Gesperrt);
        centralWidget()->setEnabled(!Gesperrt);
        if (!Gesperrt)
            Fokus_Zurueck();
    };
    Ereignisse.Bei_Titel = [this](int Nummer, std::string_view Text) {
        if (Kindfenster* k = Kind(Nummer))
            k->setWindowTitle(Qt_Text(Text));
    };
    Plattform.Box        = &Box;
    Plattform.Status     = &Status;
    Plattform.Ereignisse = &Ereignisse;
    Plattform.Edit       = Edit;
    Plattform.Notiz      = Notiz;
    Plattform.Fenster    = this;
    Plattform.Dialog     = &Dialoge_Qt;
    Plattform.Ablage     = &Ablage;
    Plattform.Umgebung   = &Schale_Qt;
    Plattform.Druck      = &Druck;
}

void MDI::Kinder_Verbinden()
{
    for (Kindfenster* k : Kinder)
        if (k != nullptr)
            connect(k, &Kindfenster::Geschlossen, this, [](int Nummer) {
                Fenster_Geschlossen(Nummer);
            });
    connect(Flaeche, &QMdiArea::subWindowActivated, this, &MDI::Kind_Aktiviert);
    connect(Edit, &Quelltext_Feld::Kontextmenue, this, &MDI::Bearbeiten_Menue);
    connect(
        Edit, &Quelltext_Feld::Zoom_Geaendert, this, [](int Prozent) { varnholt::Zoom = Prozent; });
    connect(Notiz, &Notiz_Feld::Kontextmenue, this, &MDI::Notiz_Menue_Zeigen);
    connect(Bef, &Tafel_Fenster::Feld_Click, this, [this](int Zeile_Nr, int Spalte) {
        Eingreifen([Zeile_Nr, Spalte] { Bef_Feld_Click(Zeile_Nr, Spalte); });
    });
    connect(Basic_Bef, &Tafel_Fenster::Feld_Click, this, [this](int Zeile_Nr) {
        Eingreifen([Zeile_Nr] { Basic_Bef_Feld_Click(Zeile_Nr); });
    });
    connect(Hex, &Hexedit_Fenster::Kontextmenue, this, &MDI::Bearbeiten_Menue);
    connect(Spr, &Spr_Fenster::Eintrag_Gewaehlt, this, [this](int Nummer) {
        Eingreifen([Nummer] { Spr_Liste_Click(Nummer); });
    });
    connect(Notiz, &Text_Feld::Text_Geaendert, this, [] { Notiz_Change(); });
    connect(Waechter, &Dateiwaechter::Datei_Fremd_Geaendert, this, &MDI::Fremde_Aenderung);
    connect(Fremd, &Fremd_Hinweis::Behalten, this, [this] {
        Waechter->Abgetan();
        Fremd->hide();
    });
    connect(Fremd, &Fremd_Hinweis::Neu_Laden, this, [this] {
        Fremd->hide();
        Ausfuehren([] { Datei_Vorgegeben_Laden(std::string(Datei_Name)); });
    });
    connect(Waechter, &Dateiwaechter::Andere_Datei, Fremd, &QWidget::hide);
}

// --- commands and state ---

void MDI::Ausfuehren(const std::function<void()>& Befehl)
{
    if (Beendet)
        return;
    if (Befehl_Laeuft) {
        if (Kann_Eingreifen()) {
            Danach = Befehl;
            Eingreifen(Debug_Start_Stop);
        }
        return;
    }
    {
        const QScopedValueRollback Laeuft(Befehl_Laeuft, true);
        Befehl();
    }
    Nachziehen();
    if (Danach)
        Ausfuehren(std::exchange(Danach, {}));
}

// A command of the debugger lets events through while it runs a program; nothing may come in the
// middle of those commands that come then.
bool MDI::Kann_Eingreifen() const
{
    return Befehl_Laeuft && !Eingriff_Laeuft && Programm_Laeuft() && !Beendet;
}

void MDI::Eingreifen(const std::function<void()>& Befehl)
{
    if (!Befehl_Laeuft)
        return Ausfuehren(Befehl);
    if (!Kann_Eingreifen())
        return;
    {
        const QScopedValueRollback Laeuft(Eingriff_Laeuft, true);
        Befehl();
    }
    if (Debug_Stop || !Debugger_Aktiv)
        Ereignisse.Pause_Beenden();
    Nachziehen();
}

void MDI::Nachziehen()
{
    if (Beendet)
        return;
    Qt_Texte_Waehlen();
    Leisten->Nachziehen();
    Hex->Nachziehen();
    Spr->Nachziehen();
    Bef_Nachfuehren();
    Bef->Nachziehen();
    Basic_Bef->Nachziehen();
    Ansichten_Nachziehen();
    for (const auto& Form : Formulare)
        if (auto* Offenes = dynamic_cast<Begleiter*>(Form.get()))
            Offenes->Nachziehen();
    const QTextCursor c = Edit->textCursor();
    Zeile->Nachziehen(c.blockNumber() + 1, c.positionInBlock() + 1);
    Waechter->Nachziehen();
}

void MDI::Ansichten_Nachziehen()
{
    Sim_RAM_Fenster->Nachziehen();
    Sim_SFR_Fenster->Nachziehen();
    Sim_EXRAM_Fenster->Nachziehen();
    Sim_CONTROL_Fenster->Nachziehen();
}

// The font and the colour dialog are Qt's: they follow the language where Qt's translations are
// installed, and stay English where they are not.
void MDI::Qt_Texte_Waehlen()
{
    if (Qt_Sprache == Sprache)
        return;
    Qt_Sprache = Sprache;
    QCoreApplication::removeTranslator(&Qt_Deutsch);
    if (Sprache == "D" && (!Qt_Deutsch.isEmpty() ||
                           Qt_Deutsch.load(QStringLiteral("qtbase_de"),
                                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))))
        QCoreApplication::installTranslator(&Qt_Deutsch);
}

void MDI::Kind_Aktiviert(QMdiSubWindow* Neues)
{
    const auto* k = dynamic_cast<Kindfenster*>(Neues);
    if (k == nullptr && Aktives_Kind != 0) // the focus went to a dialog or another program
        return Fenster_Merken(Aktives_Kind);
    if (k == nullptr || k->Nummer() == Aktives_Kind)
        return;
    switch (Aktives_Kind) {
    case Fenster_Hexedit:
        Hexedit_Deactivate();
        break;
    case Fenster_Edit:
        Edit_Deactivate();
        break;
    case 0:
        break;
    default:
        Fenster_Merken(Aktives_Kind);
    }
    Aktives_Kind = k->Nummer();
    switch (Aktives_Kind) {
    case Fenster_Hexedit:
        return Hexedit_Activate();
    case Fenster_Edit:
        return Edit_Activate();
    case Fenster_Spr:
    case Fenster_Notiz:
    case Fenster_EXRAM:
        Aktives_Fenster = Aktives_Kind;
        break;
    default: // clipboard and search stay with the window before
        break;
    }
}

// Disabling takes the focus away for good: afterwards it goes back, or to the window of the mode.
void MDI::Fokus_Zurueck()
{
    if (Fokus_Vorher != nullptr && Fokus_Vorher->isVisible())
        Fokus_Vorher->setFocus(Qt::OtherFocusReason);
    else
        Fokus(Modus == Modus_Hex ? Fenster_Hexedit : Fenster_Edit);
    Fokus_Vorher = nullptr;
}

void MDI::Bearbeiten_Menue(const QPoint& Ort)
{
    Nachziehen();
    Leisten->Menue_Von("MNU_Bearbeiten")->popup(Ort);
}

// The clipboard commands stand below those of the look.
void MDI::Notiz_Menue_Zeigen(const QPoint& Ort)
{
    Nachziehen();
    QList<QAction*> Bearbeiten;
    for (const char* Name : {"MNU_Ausschneiden", "MNU_Kopieren", "MNU_Einfügen", "MNU_Löschen"})
        Bearbeiten << findChild<QAction*>(QString::fromUtf8(Name), Qt::FindDirectChildrenOnly);
    Notiz_Menue(Notiz, Bearbeiten, [this](const auto& Befehl) { Ausfuehren(Befehl); })->popup(Ort);
}

// --- files that come from outside ---

// A file dropped on the window is opened as a recent one is: with the question, and without a
// dialog.
void MDI::Datei_Oeffnen(const QString& Name)
{
    Ausfuehren([Pfad = Nach_Std(Name)] { Datei_Vorgegeben_Laden(Pfad); });
}

void MDI::Fremde_Aenderung(const QString& Name) { Fremd->Zeigen(Name); }

void MDI::dragEnterEvent(QDragEnterEvent* Ereignis)
{
    const QList<QUrl> Orte = Ereignis->mimeData()->urls();
    if ((!Befehl_Laeuft || Kann_Eingreifen()) && Orte.size() == 1 && Orte.first().isLocalFile())
        Ereignis->acceptProposedAction();
}

void MDI::dropEvent(QDropEvent* Ereignis)
{
    Ereignis->acceptProposedAction();
    // Later: a question must not keep the program waiting that the file comes from.
    const QString Name = Ereignis->mimeData()->urls().constFirst().toLocalFile();
    QTimer::singleShot(0, this, [this, Name] { Datei_Oeffnen(Name); });
}

// --- the end ---

void MDI::closeEvent(QCloseEvent* Ereignis)
{
    Ereignis->ignore(); // the end is the logic's: it leaves through Programm_Beenden
    Ausfuehren([] { MNU_Ende_Click(); });
}

void MDI::changeEvent(QEvent* Ereignis)
{
    QMainWindow::changeEvent(Ereignis);
    if (Ereignis->type() != QEvent::PaletteChange || Leisten == nullptr)
        return;
    Flaeche->setBackground(palette().brush(QPalette::Dark));
    Leisten->Bilder_Laden();
}

} // namespace varnholt
