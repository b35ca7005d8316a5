// The text control of `Notiz`.
#include "ui/Notiz_Feld.h"

#include "ui/Qt_Text.h"
#include "ui/Reich_Qt.h"
#include "ui/Tasten.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace varnholt {
namespace {

// Copy, cut and paste, and Del where something is selected.
bool Menue_Taste(const QKeyEvent& Taste, bool Auswahl)
{
    for (const auto Art : {QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste})
        if (Taste.matches(Art))
            return true;
    return Auswahl && Taste.key() == Qt::Key_Delete && Taste.modifiers() == Qt::NoModifier;
}

// Ctrl and B, I or U: the menu has other things under the first two.
bool Schrift_Taste(const QKeyEvent& Taste)
{
    const int k = Taste.key();
    return Taste.modifiers() == Qt::ControlModifier &&
           (k == Qt::Key_B || k == Qt::Key_I || k == Qt::Key_U);
}

} // namespace

Notiz_Feld::Notiz_Feld(QWidget* Eltern) : Text_Feld(Eltern) { setUndoRedoEnabled(true); }

// --- rich text ---

Reich_Text_T Notiz_Feld::Reicher_Text() const
{
    return Reich_Aus_Qt(*document(), 0, document()->characterCount() - 1);
}

void Notiz_Feld::Reich_Setzen(const Reich_Text_T& Neuer)
{
    Text_Setzen({});
    const Ohne_Schritte        Neues_Blatt(*document());
    const QScopedValueRollback Ruhe(Still, true);
    QTextCursor                c(document());
    if (!Neuer.Absaetze.empty())
        c.setBlockFormat(Qt_Absatzformat(Neuer.Absaetze.front().Bild));
    Reich_Einfuegen(c, Neuer, Dunkel());
    moveCursor(QTextCursor::Start);
}

Reich_Text_T Notiz_Feld::Auswahl_Reich() const
{
    const QTextCursor c = textCursor();
    return Reich_Aus_Qt(*document(), c.selectionStart(), c.selectionEnd());
}

void Notiz_Feld::Auswahl_Ersetzen_Reich(const Reich_Text_T& Neuer)
{
    QTextCursor c = textCursor();
    Reich_Einfuegen(c, Neuer, Dunkel());
    setTextCursor(c);
}

// What is put in takes the look of the first character replaced, or of the one ahead of it.
QTextCharFormat Notiz_Feld::Format_Neben(Textstelle_T Stelle) const
{
    QTextCursor c = Stueck(Stelle.Anfang, 0);
    if (Stelle.Laenge > 0)
        c.movePosition(QTextCursor::NextCharacter);
    return c.charFormat();
}

void Notiz_Feld::Stueck_Faerben(QTextCursor& Zeiger, std::int32_t Farbe) const
{
    Zeiger.mergeCharFormat(Farb_Format(Farbe, Dunkel()));
}

// --- look by keys and commands ---

Zeichen_Bild_T Notiz_Feld::Bild_Jetzt() const { return Zeichen_Bild_Aus(currentCharFormat()); }

bool Notiz_Feld::Ueberall(bool Zeichen_Bild_T::*Eigenschaft) const
{
    if (!textCursor().hasSelection())
        return Bild_Jetzt().*Eigenschaft;
    const Reich_Text_T Auswahl_Hier = Auswahl_Reich();
    return std::all_of(
        Auswahl_Hier.Absaetze.begin(), Auswahl_Hier.Absaetze.end(), [&](const Absatz_T& a) {
            return std::all_of(a.Stuecke.begin(), a.Stuecke.end(), [&](const Text_Stueck_T& s) {
                return s.Bild.*Eigenschaft;
            });
        });
}

void Notiz_Feld::Gestalten(const QTextCharFormat& Dazu)
{
    if (isReadOnly())
        return;
    mergeCurrentCharFormat(Dazu);
    if (textCursor().hasSelection())
        emit Text_Geaendert();
}

void Notiz_Feld::Fett_Umschalten()
{
    QTextCharFormat f;
    f.setFontWeight(Ueberall(&Zeichen_Bild_T::Fett) ? QFont::Normal : QFont::Bold);
    Gestalten(f);
}

void Notiz_Feld::Kursiv_Umschalten()
{
    QTextCharFormat f;
    f.setFontItalic(!Ueberall(&Zeichen_Bild_T::Kursiv));
    Gestalten(f);
}

void Notiz_Feld::Unterstrichen_Umschalten()
{
    QTextCharFormat f;
    f.setFontUnderline(!Ueberall(&Zeichen_Bild_T::Unterstrichen));
    Gestalten(f);
}

void Notiz_Feld::Schrift_Waehlen()
{
    QFont Jetzt     = currentCharFormat().font();
    Jetzt           = Jetzt.resolve(font());
    const auto Wahl = Plattform.Dialog->Schrift_Waehlen(Schrift_Aus(Jetzt));
    if (!Wahl)
        return;
    QTextCharFormat f;
    f.setFontFamilies({Qt_Text(Wahl->Name)});
    f.setFontPointSize(Wahl->Groesse);
    f.setFontWeight(Wahl->Fett ? QFont::Bold : QFont::Normal);
    f.setFontItalic(Wahl->Kursiv);
    Gestalten(f);
}

void Notiz_Feld::Farbe_Waehlen()
{
    if (const auto Wahl = Plattform.Dialog->Farbe_Waehlen(Bild_Jetzt().Farbe))
        Gestalten(Farb_Format(*Wahl, Dunkel()));
}

void Notiz_Feld::Schlicht_Machen()
{
    if (isReadOnly())
        return;
    setCurrentCharFormat({});
    if (textCursor().hasSelection())
        emit Text_Geaendert();
}

bool Notiz_Feld::Gestaltungs_Taste(const QKeyEvent& Taste)
{
    if (!Schrift_Taste(Taste))
        return false;
    if (Taste.key() == Qt::Key_B)
        Fett_Umschalten();
    else if (Taste.key() == Qt::Key_I)
        Kursiv_Umschalten();
    else
        Unterstrichen_Umschalten();
    return true;
}

// --- undo and redo ---

// The document keeps the steps, with their looks; where there is none the key does nothing.
bool Notiz_Feld::Ruecknahme_Taste(const QKeyEvent& Taste)
{
    const Ruecknahme Was = Ruecknahme_Aus(Taste);
    if (Was == Ruecknahme::Keine)
        return false;
    const bool Zurueck  = Was == Ruecknahme::Zurueck;
    const bool Moeglich = Zurueck ? document()->isUndoAvailable() : document()->isRedoAvailable();
    if (!Moeglich || isReadOnly())
        return true;
    Zurueck ? undo() : redo();
    emit Text_Geaendert(); // also where it was the look alone
    return true;
}

// --- events ---

bool Notiz_Feld::event(QEvent* Ereignis)
{
    if (Ereignis->type() == QEvent::ShortcutOverride) {
        const auto& Taste = *static_cast<QKeyEvent*>(Ereignis);
        if (Schrift_Taste(Taste) || Ruecknahme_Aus(Taste) != Ruecknahme::Keine) {
            Ereignis->accept();
            return true;
        }
        if (Menue_Taste(Taste, textCursor().hasSelection())) {
            Ereignis->ignore();
            return true;
        }
    }
    return Text_Feld::event(Ereignis);
}

void Notiz_Feld::keyPressEvent(QKeyEvent* Ereignis)
{
    if (!Gestaltungs_Taste(*Ereignis) && !Ruecknahme_Taste(*Ereignis))
        Text_Feld::keyPressEvent(Ereignis);
}

void Notiz_Feld::contextMenuEvent(QContextMenuEvent* Ereignis)
{
    emit Kontextmenue(Ereignis->globalPos());
}

} // namespace varnholt
