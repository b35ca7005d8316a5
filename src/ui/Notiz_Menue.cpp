// The context menu of the notes.
#include "ui/Notiz_Menue.h"

#include "core/messages.h"
#include "ui/Notiz_Feld.h"
#include "ui/Qt_Text.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include <array>
#include <utility>

namespace varnholt {
namespace {

// An entry that changes the look; one with a property shows it by a tick.
struct Eintrag_T {
    const char* Name;
    const char* D;
    const char* E;
    int         Taste; // with Ctrl; 0 none
    void (Notiz_Feld::*Befehl)();
    bool Zeichen_Bild_T::*Haken;
};

// clang-format off
constexpr auto Eintraege = std::to_array<Eintrag_T>({
    {"Notiz_Fett",          "Fett",            "Bold",       Qt::Key_B, &Notiz_Feld::Fett_Umschalten,          &Zeichen_Bild_T::Fett},
    {"Notiz_Kursiv",        "Kursiv",          "Italic",     Qt::Key_I, &Notiz_Feld::Kursiv_Umschalten,        &Zeichen_Bild_T::Kursiv},
    {"Notiz_Unterstrichen", "Unterstrichen",   "Underlined", Qt::Key_U, &Notiz_Feld::Unterstrichen_Umschalten, &Zeichen_Bild_T::Unterstrichen},
    {"Notiz_Schrift",       "Schrift ...",     "Font ...",   0,         &Notiz_Feld::Schrift_Waehlen,          nullptr},
    {"Notiz_Farbe",         "Farbe ...",       "Colour ...", 0,         &Notiz_Feld::Farbe_Waehlen,            nullptr},
    {"Notiz_Schlicht",      "Schlichter Text", "Plain text", 0,         &Notiz_Feld::Schlicht_Machen,          nullptr},
});
// clang-format on

// The caption; the key stands behind a tab, since it is the control's and not the entry's.
QString Titel(const Eintrag_T& e)
{
    const QString Text = Qt_Text(In_Sprache({e.D, e.E}));
    if (e.Taste == 0)
        return Text;
    const QKeySequence Taste(static_cast<int>(Qt::CTRL) | e.Taste);
    return Text + u'\t' + Taste.toString(QKeySequence::NativeText);
}

} // namespace

QMenu*
Notiz_Menue(Notiz_Feld* Feld, const QList<QAction*>& Bearbeiten, Notiz_Ausfuehrer_T Ausfuehren)
{
    auto* Menue = new QMenu(Feld);
    Menue->setObjectName(QStringLiteral("Notiz_Menue"));
    Menue->setAttribute(Qt::WA_DeleteOnClose);
    for (const Eintrag_T& e : Eintraege) {
        QAction* Aktion = Menue->addAction(Titel(e));
        Aktion->setObjectName(QString::fromLatin1(e.Name));
        Aktion->setEnabled(!Feld->isReadOnly());
        Aktion->setCheckable(e.Haken != nullptr);
        Aktion->setChecked(e.Haken != nullptr && Feld->Ueberall(e.Haken));
        QObject::connect(Aktion, &QAction::triggered, Feld, [Feld, Ausfuehren, Befehl = e.Befehl] {
            Ausfuehren([Feld, Befehl] { (Feld->*Befehl)(); });
        });
    }
    Menue->addSeparator();
    Menue->addActions(Bearbeiten);
    return Menue;
}

} // namespace varnholt
