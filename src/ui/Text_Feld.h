// A text control of the wall on QPlainTextEdit. Beside Qt's document it keeps the text as the logic
// sees it (Windows-1252, CR LF), brought up to date with every change, so that reading it costs
// nothing. Colours are a property of the characters; how a colour looks follows the background.
#pragma once

#include "core/platform.h"

#include <QPlainTextEdit>

#include <string>
#include <vector>

namespace varnholt {

class Text_Feld : public QPlainTextEdit, public Textfeld {
    Q_OBJECT

public:
    explicit Text_Feld(QWidget* Eltern = nullptr);

    std::string      Text() const override { return Spiegel; }
    std::string_view Text_Ansicht(std::string&) const override { return Spiegel; }
    void             Text_Setzen(std::string Neuer) override;
    std::string      Text_UTF8() const override;
    std::string      Auswahl_Text_UTF8() const override;
    void             Auswahl_Ersetzen_UTF8(std::string_view Neuer) override;
    void             Text_Setzen_UTF8(std::string_view Neuer) override;
    std::int64_t     Laenge() const override { return static_cast<std::int64_t>(Spiegel.size()); }
    void             Auswaehlen(std::int64_t Anfang, std::int64_t Laenge) override;
    Textstelle_T     Auswahl() const override;
    std::string      Auswahl_Text() const override;
    void             Auswahl_Ersetzen(std::string_view Neuer) override;
    void             Ersetzen(Textstelle_T Alt, std::string_view Neuer) override;
    void             Auswahl_Faerben(std::int32_t Farbe) override;
    void             Faerben(std::span<const Farbstelle_T> Stellen) override;
    std::int32_t     Farbe_An(std::int64_t Stelle) const override;
    std::vector<Farbstelle_T> Farben(Textstelle_T Stueck) const override;
    std::int64_t              Zeile_Von(std::int64_t Stelle) const override;
    Textstelle_T              Zeile(std::int64_t Nummer) const override;
    std::int64_t              Zeilen_Anzahl() const override { return blockCount(); }
    std::int64_t              Erste_Zeile() const override;
    void                      Zeichnen_Anhalten(bool Angehalten) override;
    void                      Sperren(bool Gesperrt) override;
    void                      Fokus() override { setFocus(Qt::OtherFocusReason); }

    // Background colour as the option has it; white means the desktop's own.
    void Hintergrund_Setzen(std::int32_t Farbe);

signals:
    void Text_Geaendert(); // the characters changed, by the user or by a command

protected:
    // While it lives the document keeps no steps for undo, and those that it had are gone.
    class Ohne_Schritte {
    public:
        explicit Ohne_Schritte(QTextDocument& Ganzer_Text)
            : Text(Ganzer_Text), Vorher(Ganzer_Text.isUndoRedoEnabled())
        {
            Text.setUndoRedoEnabled(false);
        }
        ~Ohne_Schritte() { Text.setUndoRedoEnabled(Vorher); }
        Ohne_Schritte(const Ohne_Schritte&)            = delete;
        Ohne_Schritte& operator=(const Ohne_Schritte&) = delete;

    private:
        QTextDocument& Text;
        bool           Vorher;
    };

    void changeEvent(QEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void dragEnterEvent(QDragEnterEvent* Ereignis) override;
    void dragMoveEvent(QDragMoveEvent* Ereignis) override;
    bool canInsertFromMimeData(const QMimeData* Daten) const override;

    // Position of the logic to position of the document, and back.
    int          Nach_Qt(std::int64_t Stelle) const;
    std::int64_t Aus_Qt(int Stelle) const;
    bool         Dunkel() const; // the background is dark
    QTextCursor  Stueck(std::int64_t Anfang, std::int64_t Laenge) const;
    // Look of what is put in place of a piece: the colour of its first character, or of the one
    // ahead of an empty one.
    virtual QTextCharFormat Format_Neben(Textstelle_T Alt) const;
    // Colours the cursor's selection; a control of plain text has no other look to keep.
    virtual void Stueck_Faerben(QTextCursor& Zeiger, std::int32_t Farbe) const;

    bool Still = false; // a change that nobody is to be told of

private:
    void            Inhalt_Einsetzen(const QString& Neuer);
    void            Spiegel_Nachfuehren(int Stelle, int Entfernt, int Dazu);
    std::string     Spiegel_Stueck(int Anfang, int Ende);
    void            Farben_Nachfuehren(int Anfang, int Ende, std::int64_t Verschiebung);
    void            Auswahl_Tauschen(const QString& Neuer);
    QTextCharFormat Format_Fuer(std::int32_t Farbe) const;
    void            Farben_Neu_Zeigen();
    void            Palette_Setzen();

    std::string               Spiegel{};      // the text, Windows-1252 with CR LF
    std::vector<Farbstelle_T> Farb_Spiegel{}; // all colours, ascending, as Farben tells them
    bool         Hat_Fremde  = false; // a character was in the text that the code page doesn't know
    std::int32_t Hintergrund = 0xFFFFFF;
    int          Zeichnen_Gehalten    = 0;     // depth of Zeichnen_Anhalten
    bool         Nur_Farben           = false; // a change that leaves the characters
    bool         Palette_Wird_Gesetzt = false;
};

} // namespace varnholt
