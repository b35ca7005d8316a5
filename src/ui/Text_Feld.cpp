// The text control: positions, colours and the mirror of the text.
#include "ui/Text_Feld.h"

#include "core/codepage.h"
#include "ui/Qt_Text.h"
#include "ui/Reich_Qt.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace varnholt {
namespace {

// What a plain text control would take for the end of a line, or for a mark of its own.
bool Zeilen_Trenner(QChar c)
{
    const char16_t u = c.unicode();
    return u == 0x2029 || u == 0x2028 || u == 0xFDD0 || u == 0xFDD1;
}

QString Ohne_Fremde_Trenner(QString Text)
{
    std::replace_if(Text.begin(), Text.end(), Zeilen_Trenner, QChar(QChar::ReplacementCharacter));
    return Text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

std::int32_t Farbe_Von(const QTextCharFormat& Format)
{
    return Format.intProperty(Farb_Eigenschaft);
}

double Helligkeit(const QColor& c)
{
    return 0.299 * c.redF() + 0.587 * c.greenF() + 0.114 * c.blueF();
}

// Where a line begins, as the logic counts: each line end ahead of it is one more there.
std::int64_t Zeilen_Anfang(const QTextBlock& Zeile)
{
    return Zeile.position() + Zeile.blockNumber();
}

// The last line that begins at or ahead of Stelle.
QTextBlock Zeile_Bei(const QTextDocument& Text, std::int64_t Stelle)
{
    int Unten = 0;
    int Oben  = Text.blockCount() - 1;
    while (Unten < Oben) {
        const int Mitte = (Unten + Oben + 1) / 2;
        if (Zeilen_Anfang(Text.findBlockByNumber(Mitte)) <= Stelle)
            Unten = Mitte;
        else
            Oben = Mitte - 1;
    }
    return Text.findBlockByNumber(Unten);
}

int In_Zeile(const QTextBlock& Zeile, std::int64_t Stelle)
{
    const std::int64_t Spalte = Stelle - Zeilen_Anfang(Zeile);
    return Zeile.position() +
           static_cast<int>(std::clamp<std::int64_t>(Spalte, 0, Zeile.length() - 1));
}

// Positions that mostly ascend: the next line is looked for from the last one.
class Vorwaerts {
public:
    explicit Vorwaerts(const QTextDocument& Ganzer_Text) : Text(Ganzer_Text), Zeile(Text.begin()) {}
    int Nach_Qt(std::int64_t Stelle)
    {
        if (Stelle < Zeilen_Anfang(Zeile))
            Zeile = Zeile_Bei(Text, Stelle);
        for (int i = 0; i < Schritte; ++i) {
            const QTextBlock Naechste = Zeile.next();
            if (!Naechste.isValid() || Zeilen_Anfang(Naechste) > Stelle)
                return In_Zeile(Zeile, Stelle);
            Zeile = Naechste;
        }
        Zeile = Zeile_Bei(Text, Stelle);
        return In_Zeile(Zeile, Stelle);
    }

private:
    static constexpr int Schritte = 16; // beyond them a search is quicker
    const QTextDocument& Text;
    QTextBlock           Zeile;
};

} // namespace

Text_Feld::Text_Feld(QWidget* Eltern) : QPlainTextEdit(Eltern)
{
    setUndoRedoEnabled(false); // the ring of snapshots does it for the source
    setLineWrapMode(NoWrap);
    connect(document(), &QTextDocument::contentsChange, this, &Text_Feld::Spiegel_Nachfuehren);
    Palette_Setzen();
}

// --- positions ---

std::int64_t Text_Feld::Aus_Qt(int Stelle) const
{
    return Stelle + document()->findBlock(Stelle).blockNumber();
}

int Text_Feld::Nach_Qt(std::int64_t Stelle) const
{
    return In_Zeile(Zeile_Bei(*document(), Stelle), Stelle);
}

QTextCursor Text_Feld::Stueck(std::int64_t Anfang, std::int64_t Laenge) const
{
    QTextCursor c(document());
    c.setPosition(Nach_Qt(Anfang));
    if (Laenge > 0)
        c.setPosition(Nach_Qt(Anfang + Laenge), QTextCursor::KeepAnchor);
    return c;
}

// --- text ---

void Text_Feld::Inhalt_Einsetzen(const QString& Neuer)
{
    const QScopedValueRollback Ruhe(Still, true);
    Hat_Fremde = false;
    setCurrentCharFormat({});
    setPlainText(Ohne_Fremde_Trenner(Neuer));
}

void Text_Feld::Text_Setzen(std::string Neuer) { Inhalt_Einsetzen(Qt_Aus_1252(Neuer)); }

void Text_Feld::Text_Setzen_UTF8(std::string_view Neuer) { Inhalt_Einsetzen(Qt_Text(Neuer)); }

std::string Text_Feld::Text_UTF8() const
{
    if (!Hat_Fremde)
        return Nach_UTF8(Spiegel);
    std::string Ziel;
    Ziel.reserve(Spiegel.size() + Spiegel.size() / 16);
    for (QTextBlock b = document()->begin(); b.isValid(); b = b.next()) {
        const QByteArray Zeile = b.text().toUtf8();
        Ziel.append(Zeile.constData(), static_cast<std::size_t>(Zeile.size()));
        if (b.next().isValid())
            Ziel += "\r\n";
    }
    return Ziel;
}

// The piece of the document as the mirror has it, both positions of the document.
std::string Text_Feld::Spiegel_Stueck(int Anfang, int Ende)
{
    std::string Ziel;
    for (QTextBlock b = document()->findBlock(Anfang); b.isValid() && b.position() <= Ende;
         b            = b.next()) {
        const int         Von   = std::max(Anfang - b.position(), 0);
        const int         Bis   = std::min(Ende - b.position(), b.length() - 1);
        const QString     Zeile = b.text();
        const QStringView Teil  = QStringView(Zeile).sliced(Von, std::max(Bis - Von, 0));
        Ziel += Nach_1252(Teil);
        Hat_Fremde = Hat_Fremde || std::any_of(Teil.begin(), Teil.end(), [](QChar c) {
                         return c != u'?' && Zeichen_Nach_1252(c.unicode()) == '?';
                     });
        if (Ende >= b.position() + b.length())
            Ziel += "\r\n";
    }
    return Ziel;
}

void Text_Feld::Spiegel_Nachfuehren(int Stelle, int Entfernt, int Dazu)
{
    const int Letzte = document()->characterCount() - 1; // without the closing separator
    const int Bis    = std::min(Stelle + Dazu, Letzte);
    if (Nur_Farben)
        return Farben_Nachfuehren(Stelle, Bis, 0);
    const auto  Anfang = static_cast<std::size_t>(Aus_Qt(Stelle));
    std::size_t Ende   = Anfang;
    for (; Entfernt > 0 && Ende < Spiegel.size(); --Entfernt)
        Ende += Spiegel[Ende] == '\r' ? 2 : 1;
    const std::string Neu    = Spiegel_Stueck(Stelle, Bis);
    const bool        Anders = Spiegel.compare(Anfang, Ende - Anfang, Neu) != 0;
    const auto        Verschiebung =
        static_cast<std::int64_t>(Neu.size()) - static_cast<std::int64_t>(Ende - Anfang);
    Spiegel.replace(Anfang, Ende - Anfang, Neu);
    Farben_Nachfuehren(Stelle, Bis, Verschiebung);
    if (Anders && !Still)
        emit Text_Geaendert();
}

// The lines of the piece (positions of the document) have new colours; what stands behind them has
// moved.
void Text_Feld::Farben_Nachfuehren(int Anfang, int Ende, std::int64_t Verschiebung)
{
    const QTextBlock          Erste  = document()->findBlock(Anfang);
    const QTextBlock          Letzte = document()->findBlock(Ende);
    const std::int64_t        Von    = Zeilen_Anfang(Erste);
    const std::int64_t        Bis    = Zeilen_Anfang(Letzte) + Letzte.length(); // of the new text
    std::vector<Farbstelle_T> Neue;
    for (QTextBlock b = Erste; b.isValid() && b.blockNumber() <= Letzte.blockNumber(); b = b.next())
        for (auto i = b.begin(); !i.atEnd(); ++i)
            if (const std::int32_t Farbe = Farbe_Von(i.fragment().charFormat()); Farbe != 0)
                Neue.push_back({i.fragment().position() + std::int64_t{b.blockNumber()},
                                i.fragment().length(),
                                Farbe});
    const auto Vor = [](const Farbstelle_T& f, std::int64_t Stelle) { return f.Anfang < Stelle; };
    const auto Alt = std::lower_bound(Farb_Spiegel.begin(), Farb_Spiegel.end(), Von, Vor);
    auto       Weg = std::lower_bound(Alt, Farb_Spiegel.end(), Bis - Verschiebung, Vor);
    for (auto i = Weg; Verschiebung != 0 && i != Farb_Spiegel.end(); ++i)
        i->Anfang += Verschiebung;
    Farb_Spiegel.insert(Farb_Spiegel.erase(Alt, Weg), Neue.begin(), Neue.end());
}

// --- selection ---

void Text_Feld::Auswaehlen(std::int64_t Anfang, std::int64_t Laenge)
{
    setTextCursor(Stueck(Anfang, Laenge));
}

Textstelle_T Text_Feld::Auswahl() const
{
    const QTextCursor  c      = textCursor();
    const std::int64_t Anfang = Aus_Qt(c.selectionStart());
    return {Anfang, Aus_Qt(c.selectionEnd()) - Anfang};
}

std::string Text_Feld::Auswahl_Text() const
{
    const Textstelle_T a = Auswahl();
    return Spiegel.substr(static_cast<std::size_t>(a.Anfang), static_cast<std::size_t>(a.Laenge));
}

std::string Text_Feld::Auswahl_Text_UTF8() const
{
    QString Text = textCursor().selectedText();
    Text.replace(QChar(QChar::ParagraphSeparator), QLatin1String("\r\n"));
    return Nach_Std(Text);
}

// What is inserted takes the colour of the character ahead of it, or of the first one replaced.
void Text_Feld::Auswahl_Tauschen(const QString& Neuer)
{
    const QTextCharFormat Format = Format_Neben(Auswahl());
    QTextCursor           Zeiger = textCursor();
    Zeiger.insertText(Ohne_Fremde_Trenner(Neuer), Format);
    setTextCursor(Zeiger);
}

void Text_Feld::Auswahl_Ersetzen(std::string_view Neuer) { Auswahl_Tauschen(Qt_Aus_1252(Neuer)); }

void Text_Feld::Ersetzen(Textstelle_T Alt, std::string_view Neuer)
{
    const QTextCharFormat Format = Format_Neben(Alt);
    QTextCursor Zeiger = Stueck(Alt.Anfang, Alt.Laenge); // the control's own one is moved along
    Zeiger.insertText(Ohne_Fremde_Trenner(Qt_Aus_1252(Neuer)), Format);
}

void Text_Feld::Auswahl_Ersetzen_UTF8(std::string_view Neuer) { Auswahl_Tauschen(Qt_Text(Neuer)); }

// --- colours ---

QTextCharFormat Text_Feld::Format_Fuer(std::int32_t Farbe) const
{
    return Farbe == 0 ? QTextCharFormat{} : Farb_Format(Farbe, Dunkel());
}

QTextCharFormat Text_Feld::Format_Neben(Textstelle_T Alt) const
{
    return Format_Fuer(Farbe_An(Alt.Laenge > 0 ? Alt.Anfang : Alt.Anfang - 1));
}

void Text_Feld::Stueck_Faerben(QTextCursor& Zeiger, std::int32_t Farbe) const
{
    Zeiger.setCharFormat(Format_Fuer(Farbe));
}

void Text_Feld::Auswahl_Faerben(std::int32_t Farbe)
{
    const Textstelle_T a = Auswahl();
    if (a.Laenge == 0) {
        QTextCursor Zeiger = textCursor();
        Stueck_Faerben(Zeiger, Farbe);
        setCurrentCharFormat(Zeiger.charFormat());
        return;
    }
    const Farbstelle_T f{a.Anfang, a.Laenge, Farbe};
    Faerben({&f, 1});
}

void Text_Feld::Faerben(std::span<const Farbstelle_T> Stellen)
{
    const QScopedValueRollback Ruhe(Nur_Farben, true);
    QTextCursor                c(document());
    Vorwaerts                  Ort(*document());
    c.beginEditBlock();
    for (const Farbstelle_T& f : Stellen) {
        c.setPosition(Ort.Nach_Qt(f.Anfang));
        c.setPosition(Ort.Nach_Qt(f.Anfang + f.Laenge), QTextCursor::KeepAnchor);
        Stueck_Faerben(c, f.Farbe);
    }
    c.endEditBlock();
}

std::int32_t Text_Feld::Farbe_An(std::int64_t Stelle) const
{
    const auto Gefunden = Farben({Stelle, 1});
    return Gefunden.empty() ? 0 : Gefunden.front().Farbe;
}

std::vector<Farbstelle_T> Text_Feld::Farben(Textstelle_T Gesucht) const
{
    const std::int64_t        Schluss = Gesucht.Anfang + Gesucht.Laenge;
    std::vector<Farbstelle_T> Liste;
    auto                      f =
        std::partition_point(Farb_Spiegel.begin(), Farb_Spiegel.end(), [&](const Farbstelle_T& i) {
            return i.Anfang + i.Laenge <= Gesucht.Anfang;
        });
    for (; f != Farb_Spiegel.end() && f->Anfang < Schluss; ++f) {
        const std::int64_t Von = std::max(f->Anfang, Gesucht.Anfang);
        Liste.push_back({Von, std::min(f->Anfang + f->Laenge, Schluss) - Von, f->Farbe});
    }
    return Liste;
}

// A step of before would bring back looks for the other ground.
void Text_Feld::Farben_Neu_Zeigen()
{
    const Ohne_Schritte             Neues_Blatt(*document());
    const std::vector<Farbstelle_T> Alle = Farb_Spiegel;
    Faerben(Alle);
}

// --- lines and view ---

std::int64_t Text_Feld::Zeile_Von(std::int64_t Stelle) const
{
    return document()->findBlock(Nach_Qt(Stelle)).blockNumber();
}

Textstelle_T Text_Feld::Zeile(std::int64_t Nummer) const
{
    if (Nummer < 0 || Nummer >= blockCount())
        return {Laenge(), 0};
    const QTextBlock b = document()->findBlockByNumber(static_cast<int>(Nummer));
    return {b.position() + Nummer, b.length() - 1};
}

std::int64_t Text_Feld::Erste_Zeile() const { return firstVisibleBlock().blockNumber(); }

void Text_Feld::Zeichnen_Anhalten(bool Angehalten)
{
    Zeichnen_Gehalten = std::max(Zeichnen_Gehalten + (Angehalten ? 1 : -1), 0);
    setUpdatesEnabled(Zeichnen_Gehalten == 0);
}

void Text_Feld::Sperren(bool Gesperrt)
{
    setReadOnly(Gesperrt);
    if (Gesperrt)
        setTextInteractionFlags(textInteractionFlags() | Qt::TextSelectableByKeyboard);
}

// --- look ---

bool Text_Feld::Dunkel() const { return Helligkeit(palette().color(QPalette::Base)) < 0.5; }

void Text_Feld::Hintergrund_Setzen(std::int32_t Farbe)
{
    Hintergrund = Farbe;
    Palette_Setzen();
}

void Text_Feld::Palette_Setzen()
{
    const QScopedValueRollback Eigene(Palette_Wird_Gesetzt, true);
    const QPalette             Desktop    = QApplication::palette(this);
    QPalette                   p          = Desktop;
    const bool                 War_Dunkel = Dunkel();
    if (Hintergrund != 0xFFFFFF) {
        p.setColor(QPalette::Base, Qt_Farbe(Hintergrund));
        p.setColor(QPalette::Text, Helligkeit(Qt_Farbe(Hintergrund)) < 0.5 ? Qt::white : Qt::black);
    }
    // A selection made by a command is seen as well as one with the focus.
    for (const auto Rolle : {QPalette::Highlight, QPalette::HighlightedText})
        p.setColor(QPalette::Inactive, Rolle, Desktop.color(QPalette::Active, Rolle));
    setPalette(p);
    if (War_Dunkel != Dunkel())
        Farben_Neu_Zeigen();
}

void Text_Feld::changeEvent(QEvent* Ereignis)
{
    QPlainTextEdit::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::ApplicationPaletteChange && !Palette_Wird_Gesetzt)
        Palette_Setzen();
}

// Shift+Enter would put in a line separator, which ends no line of a source.
void Text_Feld::keyPressEvent(QKeyEvent* Ereignis)
{
    const bool Enter = Ereignis->key() == Qt::Key_Return || Ereignis->key() == Qt::Key_Enter;
    if (!Enter || !(Ereignis->modifiers() & Qt::ShiftModifier))
        return QPlainTextEdit::keyPressEvent(Ereignis);
    QKeyEvent Schlicht(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QPlainTextEdit::keyPressEvent(&Schlicht);
}

// --- files dropped on it belong to the main window ---

bool Text_Feld::canInsertFromMimeData(const QMimeData* Daten) const
{
    return !Daten->hasUrls() && QPlainTextEdit::canInsertFromMimeData(Daten);
}

void Text_Feld::dragEnterEvent(QDragEnterEvent* Ereignis)
{
    if (Ereignis->mimeData()->hasUrls())
        Ereignis->ignore();
    else
        QPlainTextEdit::dragEnterEvent(Ereignis);
}

void Text_Feld::dragMoveEvent(QDragMoveEvent* Ereignis)
{
    if (Ereignis->mimeData()->hasUrls())
        Ereignis->ignore();
    else
        QPlainTextEdit::dragMoveEvent(Ereignis);
}

} // namespace varnholt
