// The main window: menus, tool bar, status line and the child windows. It is what the logic sees as
// the windows behind the wall.
#pragma once

#include "core/platform.h"
#include "ui/Qt_Drucker.h"
#include "ui/Qt_Welt.h"
#include "ui/Status_Dialog.h"

#include <QMainWindow>
#include <QPointer>
#include <QTranslator>

#include <array>
#include <functional>
#include <memory>

class QMdiArea;
class QMdiSubWindow;

namespace varnholt {

class Dateiwaechter;
class F_SIM_CONTROL;
class F_SIM_EXRAM;
class F_SIM_RAM;
class F_SIM_SFR;
class Fremd_Hinweis;
class Hexedit_Fenster;
class Kindfenster;
class Menueleiste;
class Notiz_Feld;
class Quelltext_Feld;
class Spr_Fenster;
class Statuszeile;
class Tafel_Fenster;

class MDI : public QMainWindow, public Fensterwelt {
    Q_OBJECT

public:
    MDI(); // puts itself and the desktop behind the wall
    ~MDI() override;

    // --- the wall ---
    bool   Sichtbar(int Fenster) const override;
    void   Sichtbar_Setzen(int Fenster, bool Sichtbar) override;
    Lage_T Lage(int Fenster) const override;
    void   Lage_Setzen(int Fenster, const Lage_T& Neue) override;
    void   Fokus(int Fenster) override;
    Lage_T Innenmass() const override;
    void   Bildschirm_Fuellen() override;
    void   Hauptfenster_Titel(std::string_view Text) override;
    void   Hintergrund(std::int32_t Farbe) override;
    void   Schrift_Setzen(int Fenster, const Schrift_T& Schrift) override;
    void   Formular_Zeigen(Formular Welches) override;
    void   Formular_Entladen(Formular Welches) override;
    bool   Formular_Sichtbar(Formular Welches) const override;
    void   Start_Text(std::string_view Text) override;
    void   Programm_Beenden() override;

    // Runs a command of the logic; nothing while another one runs. Brings the windows to the state
    // behind it. A program that the debugger runs is stopped first, and the command follows.
    void Ausfuehren(const std::function<void()>& Befehl);
    // The same for a command that may come in the middle of such a run.
    void Eingreifen(const std::function<void()>& Befehl);
    void Nachziehen();

    Quelltext_Feld*  Edit_Feld() const { return Edit; }
    Hexedit_Fenster* Hexedit() const { return Hex; }
    Kindfenster*     Kind(int Nummer) const;

    // Whose seconds the logic sees; a test brings a clock of its own.
    void Uhr_Stellen(std::function<double()> Uhr) { Ereignisse.Uhr = std::move(Uhr); }

    // How the program ends; a test goes on behind it.
    void Ende_Setzen(std::function<void()> Neues) { Ende = std::move(Neues); }

signals:
    void Start_Gezeigt(); // the splash stands on the screen

protected:
    void closeEvent(QCloseEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;
    void moveEvent(QMoveEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;
    void dragEnterEvent(QDragEnterEvent* Ereignis) override;
    void dropEvent(QDropEvent* Ereignis) override;

private:
    void        Welt_Einsetzen();
    void        Kinder_Bauen();
    void        Sitzungs_Kinder_Bauen();
    void        Einsetzen(int Nummer, const char* Name, QWidget* Inhalt, bool Hauptsache);
    void        Kinder_Verbinden();
    void        Kind_Aktiviert(QMdiSubWindow* Neues);
    void        Datei_Oeffnen(const QString& Name);
    void        Fremde_Aenderung(const QString& Name);
    void        Zeigen_Falls_Noetig();
    static void Hilfe_Zeigen(std::unique_ptr<QWidget>& Form);
    void        Auf_Den_Schirm();
    void        Platz_Merken();
    void        Auf_Groesse_Warten();
    void        Fokus_Zurueck();
    void        Qt_Texte_Waehlen();
    void        Ansichten_Nachziehen();
    bool        Kann_Eingreifen() const;
    void        Bearbeiten_Menue(const QPoint& Ort);
    void        Notiz_Menue_Zeigen(const QPoint& Ort);

    Qt_Box        Box{};
    Qt_Ereignisse Ereignisse{};
    Qt_Dialoge    Dialoge_Qt{};
    Qt_Ablage     Ablage{};
    Qt_Schale     Schale_Qt{};
    Qt_Drucker    Druck{this};
    Status_Dialog Status;

    QMdiArea*        Flaeche = nullptr;
    QTranslator      Qt_Deutsch{}; // Qt's own dialogs; in use while the language is German
    std::string      Qt_Sprache        = "E";
    Menueleiste*     Leisten           = nullptr;
    Statuszeile*     Zeile             = nullptr;
    Dateiwaechter*   Waechter          = nullptr;
    Fremd_Hinweis*   Fremd             = nullptr; // the bar that tells of another program's change
    Quelltext_Feld*  Edit              = nullptr;
    Hexedit_Fenster* Hex               = nullptr;
    Spr_Fenster*     Spr               = nullptr;
    Notiz_Feld*      Notiz             = nullptr;
    Tafel_Fenster*   Bef               = nullptr;
    Tafel_Fenster*   Basic_Bef         = nullptr;
    F_SIM_RAM*       Sim_RAM_Fenster   = nullptr;
    F_SIM_SFR*       Sim_SFR_Fenster   = nullptr;
    F_SIM_EXRAM*     Sim_EXRAM_Fenster = nullptr;
    F_SIM_CONTROL*   Sim_CONTROL_Fenster = nullptr;

    std::array<Kindfenster*, 11>                          Kinder{}; // by window number; 0 is unused
    std::array<std::unique_ptr<QWidget>, Formular_Anzahl> Formulare{}; // those that stay open
    std::function<void()>                                 Ende{}; // empty: the event loop is left
    QPointer<QWidget>     Fokus_Vorher{}; // who had the focus when the windows were disabled
    int                   Aktives_Kind    = 0;
    bool                  Befehl_Laeuft   = false;
    bool                  Eingriff_Laeuft = false; // a command within the free run
    std::function<void()> Danach{};                // waits for the end of the run
    bool                  Beendet = false;
};

} // namespace varnholt
