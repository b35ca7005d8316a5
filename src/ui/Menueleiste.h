// The menus and the tool bar of the main window, built from their tables; they follow the state.
#pragma once

#include "core/menu.h"

#include <QObject>

#include <array>
#include <functional>

class QAction;
class QMainWindow;
class QMenu;
class QShortcut;
class QToolBar;

namespace varnholt {

class Menueleiste : public QObject {
    Q_OBJECT

public:
    // Ausfuehrer runs a command of the logic (and nothing while another one runs). Im_Lauf: it may
    // come while the debugger runs a program.
    using Ausfuehrer_T = std::function<void(const std::function<void()>&, bool Im_Lauf)>;
    Menueleiste(QMainWindow* Fenster, Ausfuehrer_T Ausfuehrer);

    // Brings captions, ticks, visible and enabled entries to the state.
    void Nachziehen();
    // The menu of that name, to be opened anywhere; null when the entry has none.
    QMenu*   Menue_Von(std::string_view Name) const;
    QAction* Eintrag(std::string_view Name) const;
    void     Bilder_Laden(); // the icons in the colours of the palette

private:
    void Menues_Bauen();
    void Geraete_Bauen();
    void Leiste_Bauen();
    void Esc_Bauen();
    void Eintrag_Zeigen(std::size_t Platz);
    void Menueleiste_Beschriften();
    void Knopf_Zeigen(int Position);
    void Start_Bild_Zeigen();

    struct Gezeigt_T {
        Menue_Zustand_T Zustand{};
        bool            Bereit                             = false;
        bool            operator==(const Gezeigt_T&) const = default;
    };

    QMainWindow*                                         Besitzer;
    Ausfuehrer_T                                         Ausfuehren;
    QToolBar*                                            Leiste = nullptr;
    QShortcut*                                           Esc    = nullptr; // alive during a run
    std::array<QAction*, Menue_Anzahl>                   Eintraege{};
    std::array<QMenu*, Menue_Anzahl>                     Untermenues{};
    std::array<QAction*, Werkzeug_Plaetze + 1>           Knoepfe{};
    std::array<Gezeigt_T, Menue_Anzahl>                  Gezeigte_Eintraege{};
    std::array<Werkzeug_Zustand_T, Werkzeug_Plaetze + 1> Gezeigte_Knoepfe{};
    bool                                                 Laeuft_Gezeigt = false;
};

} // namespace varnholt
