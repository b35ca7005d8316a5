// The menus and the tool bar of the main window.
#include "ui/Menueleiste.h"

#include "simulator/Sitzung.h"
#include "ui/Bilder.h"
#include "ui/Geraete_Menue.h"
#include "ui/Qt_Text.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include <algorithm>
#include <iterator>

namespace varnholt {
namespace {

constexpr std::array Bild_Namen = {
    std::pair{"MNU_MC", "mc-editor"},
    std::pair{"MNU_Hex", "hex-editor"},
    std::pair{"MNU_Spr", "sprungmarken"},
    std::pair{"MNU_Not", "notizen"},
    std::pair{"MNU_Optionen", "optionen"},
    std::pair{"MNU_IC_Typ", "chip"},
};

// Commands that a held key goes on with; all others answer to the first stroke only: a run that it
// started would be stopped by the second.
bool Wiederholt_Sich(std::string_view Name)
{
    constexpr std::string_view Namen[] = {"MNU_deb_up",
                                          "MNU_deb_down",
                                          "MNU_deb_Einzelschritt",
                                          "MNU_Weitersuchen",
                                          "MNU_Undo",
                                          "MNU_Redo",
                                          "MNU_Einfügen",
                                          "MNU_Löschen"};
    return std::find(std::begin(Namen), std::end(Namen), Name) != std::end(Namen);
}

// A caption as a menu shows it: an ampersand would underline the letter behind it.
QString Menue_Text(const std::string& Titel)
{
    return Qt_Text(Titel).replace(QLatin1Char('&'), QLatin1String("&&"));
}

// A caption of the menu bar with an underlined letter that no caption ahead of it has.
QString Mit_Buchstabe(const std::string& Titel, QString& Vergeben)
{
    QString Text = Menue_Text(Titel);
    for (qsizetype i = 0; i < Text.size(); ++i)
        if (Text[i].isLetter() && !Vergeben.contains(Text[i], Qt::CaseInsensitive)) {
            Vergeben += Text[i];
            return Text.insert(i, u'&');
        }
    return Text;
}

} // namespace

Menueleiste::Menueleiste(QMainWindow* Fenster, Ausfuehrer_T Ausfuehrer)
    : QObject(Fenster), Besitzer(Fenster), Ausfuehren(std::move(Ausfuehrer))
{
    Menues_Bauen();
    Geraete_Bauen();
    Leiste_Bauen();
    Esc_Bauen();
    Bilder_Laden();
    for (std::size_t i = 0; i < Menue_Anzahl; ++i)
        Eintrag_Zeigen(i);
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle)
        Knopf_Zeigen(w.Position);
}

void Menueleiste::Menues_Bauen()
{
    for (std::size_t i = 0; i < Menue_Anzahl; ++i) {
        const Menue_Eintrag_T& e          = Menue_Tabelle[i];
        const bool             Hat_Kinder = std::any_of(Menue_Tabelle.begin(),
                                            Menue_Tabelle.end(),
                                            [&](const auto& k) { return k.Eltern == e.Name; });
        auto*                  Aktion     = new QAction(Besitzer);
        Aktion->setObjectName(Qt_Text(e.Name));
        Aktion->setSeparator(e.Trennlinie());
        Aktion->setMenuRole(QAction::NoRole);
        if (Hat_Kinder) {
            Untermenues[i] = new QMenu(Besitzer);
            Untermenues[i]->setObjectName(Qt_Text(e.Name) + QStringLiteral("_Menue"));
            Aktion->setMenu(Untermenues[i]);
        } else if (!e.Trennlinie()) {
            Aktion->setShortcut(
                QKeySequence::fromString(Qt_Text(e.Kuerzel), QKeySequence::PortableText));
            Aktion->setAutoRepeat(Wiederholt_Sich(e.Name));
            connect(Aktion, &QAction::triggered, this, [this, i] {
                Ausfuehren([i] { Menue_Ausfuehren(i); }, Menue_Im_Lauf(i));
                Eintrag_Zeigen(i); // Qt has toggled the tick by itself
            });
        }
        Eintraege[i] = Aktion;
        if (e.Eltern.empty())
            Besitzer->menuBar()->addAction(Aktion);
        else
            Untermenues[Menue_Platz(e.Eltern)]->addAction(Aktion);
    }
}

// The devices hang below their entry; a choice waits for the end of a running program.
void Menueleiste::Geraete_Bauen()
{
    const std::size_t Platz = Menue_Platz("MNU_IC_Typ");
    Untermenues[Platz]      = new Geraete_Menue(
        Besitzer, [this](const std::function<void()>& Befehl) { Ausfuehren(Befehl, false); });
    Eintraege[Platz]->setMenu(Untermenues[Platz]);
}

void Menueleiste::Leiste_Bauen()
{
    Leiste = Besitzer->addToolBar(QStringLiteral("Toolbar"));
    Leiste->setObjectName(QStringLiteral("Toolbar"));
    Leiste->setMovable(false);
    Leiste->setContextMenuPolicy(Qt::PreventContextMenu);
    Leiste->setToolButtonStyle(Qt::ToolButtonIconOnly);
    int Vorige = 1;
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle) {
        if (w.Position > Vorige + 1)
            Leiste->addSeparator();
        Vorige       = w.Position;
        auto* Aktion = new QAction(Besitzer);
        Aktion->setObjectName(QStringLiteral("Toolbar_") + Qt_Text(w.Schluessel));
        connect(Aktion, &QAction::triggered, this, [this, s = w.Schluessel] {
            Ausfuehren([s] { Werkzeug_Ausfuehren(s); }, Werkzeug_Im_Lauf(s));
        });
        Leiste->addAction(Aktion);
        Knoepfe[static_cast<std::size_t>(w.Position)] = Aktion;
    }
}

// Stops what runs, wherever the focus is. The main window has it: it is in sight whatever becomes
// of the panel, and Qt serves no key of a widget that isn't.
void Menueleiste::Esc_Bauen()
{
    Esc = new QShortcut(Qt::Key_Escape, Besitzer, nullptr, nullptr, Qt::ApplicationShortcut);
    Esc->setEnabled(false);
    const auto Halten = [] {
        if (Programm_Laeuft())
            Debug_Start_Stop();
    };
    connect(Esc, &QShortcut::activated, this, [this, Halten] { Ausfuehren(Halten, true); });
}

void Menueleiste::Bilder_Laden()
{
    const QPalette p = Besitzer->palette();
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle) {
        const QIcon Symbol = Symbol_Bild(Qt_Text(w.Schluessel), p);
        Knoepfe[static_cast<std::size_t>(w.Position)]->setIcon(Symbol);
        if (!w.Menue.empty())
            Eintrag(w.Menue)->setIcon(Symbol);
    }
    for (const auto& [Name, Datei] : Bild_Namen)
        Eintrag(Name)->setIcon(Symbol_Bild(QString::fromLatin1(Datei), p));
    Start_Bild_Zeigen();
}

// The button that starts a program stops it while it runs, and looks so.
void Menueleiste::Start_Bild_Zeigen()
{
    Laeuft_Gezeigt     = Programm_Laeuft();
    const QIcon Symbol = Symbol_Bild(Laeuft_Gezeigt ? u"Stoppen" : u"Starten", Besitzer->palette());
    Knoepfe[Werkzeug_Starten]->setIcon(Symbol);
    Eintrag("MNU_deb_Starten")->setIcon(Symbol);
}

void Menueleiste::Eintrag_Zeigen(std::size_t Platz)
{
    const Menue_Zustand_T& z  = Menues.Eintraege[Platz];
    QAction*               a  = Eintraege[Platz];
    Gezeigte_Eintraege[Platz] = {z, Menue_Bereit(Platz)};
    if (Menue_Tabelle[Platz].Eltern.empty())
        Menueleiste_Beschriften();
    else if (!a->isSeparator())
        a->setText(Menue_Text(z.Titel));
    a->setVisible(z.Sichtbar);
    a->setEnabled(Menue_Bereit(Platz) || a->isSeparator());
    a->setCheckable(z.Haken);
    a->setChecked(z.Haken);
}

void Menueleiste::Menueleiste_Beschriften()
{
    QString Vergeben;
    for (std::size_t i = 0; i < Menue_Anzahl; ++i)
        if (Menue_Tabelle[i].Eltern.empty() && Eintraege[i] != nullptr)
            Eintraege[i]->setText(Mit_Buchstabe(Menues.Eintraege[i].Titel, Vergeben));
}

void Menueleiste::Knopf_Zeigen(int Position)
{
    const Werkzeug_Zustand_T Soll{Werkzeug(Position).Hinweis, Werkzeug_Bereit(Position)};
    QAction*                 a = Knoepfe[static_cast<std::size_t>(Position)];
    Gezeigte_Knoepfe[static_cast<std::size_t>(Position)] = Soll;
    a->setText(Menue_Text(Soll.Hinweis));
    a->setToolTip(Qt_Text(Soll.Hinweis));
    a->setEnabled(Soll.Aktiv);
}

void Menueleiste::Nachziehen()
{
    for (std::size_t i = 0; i < Menue_Anzahl; ++i)
        if (Gezeigte_Eintraege[i] != Gezeigt_T{Menues.Eintraege[i], Menue_Bereit(i)})
            Eintrag_Zeigen(i);
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle) {
        const Werkzeug_Zustand_T Soll{Werkzeug(w.Position).Hinweis, Werkzeug_Bereit(w.Position)};
        if (Gezeigte_Knoepfe[static_cast<std::size_t>(w.Position)] != Soll)
            Knopf_Zeigen(w.Position);
    }
    if (Laeuft_Gezeigt != Programm_Laeuft())
        Start_Bild_Zeigen();
    Esc->setEnabled(Programm_Laeuft());
}

QMenu* Menueleiste::Menue_Von(std::string_view Name) const
{
    const std::size_t Platz = Menue_Platz(Name);
    return Platz < Menue_Anzahl ? Untermenues[Platz] : nullptr;
}

QAction* Menueleiste::Eintrag(std::string_view Name) const
{
    const std::size_t Platz = Menue_Platz(Name);
    return Platz < Menue_Anzahl ? Eintraege[Platz] : nullptr;
}

} // namespace varnholt
