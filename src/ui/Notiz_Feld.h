// The text control of `Notiz`: rich text. The keys of the clipboard are the menu's, so that they go
// the same way; Ctrl+B, Ctrl+I and Ctrl+U are its own, and so are undo and redo: those of the menu
// are the source's.
#pragma once

#include "core/rich_text.h"
#include "ui/Text_Feld.h"

namespace varnholt {

class Notiz_Feld : public Text_Feld {
    Q_OBJECT

public:
    explicit Notiz_Feld(QWidget* Eltern = nullptr);

    Reich_Text_T Reicher_Text() const override;
    void         Reich_Setzen(const Reich_Text_T& Neuer) override;
    Reich_Text_T Auswahl_Reich() const override;
    void         Auswahl_Ersetzen_Reich(const Reich_Text_T& Neuer) override;

    // Changes the look of the selection, or of what is typed next. Bold, italic and underline go
    // off where all of the selection has them, else on.
    void Fett_Umschalten();
    void Kursiv_Umschalten();
    void Unterstrichen_Umschalten();
    void Schrift_Waehlen(); // by the dialogs of the platform
    void Farbe_Waehlen();
    void Schlicht_Machen(); // back to the window's own look

    // The look at the cursor: of the selection's last character, or of what is typed next.
    Zeichen_Bild_T Bild_Jetzt() const;
    // Whether all of the selection, or what is typed next, has it.
    bool Ueberall(bool Zeichen_Bild_T::*Eigenschaft) const;

signals:
    void Kontextmenue(const QPoint& Ort);

protected:
    bool            event(QEvent* Ereignis) override;
    void            keyPressEvent(QKeyEvent* Ereignis) override;
    void            contextMenuEvent(QContextMenuEvent* Ereignis) override;
    QTextCharFormat Format_Neben(Textstelle_T Stueck) const override;
    void            Stueck_Faerben(QTextCursor& Stueck, std::int32_t Farbe) const override;

private:
    void Gestalten(const QTextCharFormat& Dazu);
    bool Gestaltungs_Taste(const QKeyEvent& Taste);
    bool Ruecknahme_Taste(const QKeyEvent& Taste);
};

} // namespace varnholt
