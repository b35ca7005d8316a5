// What the two search forms have in common: they stay on top of the main window, Escape and the
// close box abort, F3 searches, and they follow the language.
#pragma once

#include "ui/Befehls_Weg.h"
#include "ui/Begleiter.h"

#include <QDialog>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class QLineEdit;
class QPushButton;

namespace varnholt {

class Such_Formular : public QDialog, public Begleiter {
    Q_OBJECT

public:
    // Eltern: the main window, above which the form stays.
    Such_Formular(const char* Name, Befehls_Weg Ausfuehren, QWidget* Eltern);
    void reject() override;
    void Nachziehen() override;

protected:
    bool event(QEvent* Ereignis) override;
    bool eventFilter(QObject* Feld, QEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void showEvent(QShowEvent* Ereignis) override;

    // Whether the document of the form is the one on the screen; else it goes away.
    virtual bool Passt() const = 0;
    // Caption of a control by its name, and the form's own.
    virtual std::string_view Text(std::string_view Name) const = 0;
    virtual void             Felder_Zeigen()                   = 0;
    virtual void             Suchen()                          = 0;
    virtual void             Enter_Gedrueckt()                 = 0; // in Suchbegriff
    virtual void             Abbrechen()                       = 0;

    // Runs an event of the model, and shows what it made of it.
    void                      Ausloesen(const std::function<void()>& Befehl);
    template <class Art> Art* Teil(const char* Name); // a new control of that name
    void                      Fokus_Zeigen(std::uint64_t Stand, QWidget& Ziel);

    QLineEdit*   Suchbegriff      = nullptr;
    QPushButton* Suchen_OK        = nullptr;
    QPushButton* Suchen_Abbrechen = nullptr;

private:
    void Beschriften();
    void An_Den_Rand();

    Befehls_Weg   Weg;
    std::string   Gezeigte_Sprache{};
    std::uint64_t Gezeigter_Fokus = 0;
    bool          Hat_Platz       = false; // was shown once, and stays where the user puts it
};

template <class Art> Art* Such_Formular::Teil(const char* Name)
{
    auto* Neues = new Art(this);
    Neues->setObjectName(QString::fromLatin1(Name));
    return Neues;
}

} // namespace varnholt
