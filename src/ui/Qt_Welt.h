// The desktop behind the wall: boxes, event loop, dialogs, clipboard, shell.
#pragma once

#include "core/platform.h"

#include <QStringList>

#include <functional>

class QEventLoop;
class QWidget;

namespace varnholt {

class Qt_Box : public Meldungsbox {
public:
    int         Zeigen(const Meldung_T& Meldung) override;
    std::string Eingeben(std::string_view Text) override;
    void        Hinweisen(std::string_view Text) override;
    int         Bereich_Waehlen(std::string_view Text) override;

    std::function<void(std::string_view)> Bei_Hinweis{}; // the status line
};

class Qt_Ereignisse : public Ereignisschleife {
public:
    void   Eine_Runde() override;
    void   Mauszeiger_Warten(bool Warten) override;
    void   Fenster_Sperren(bool Gesperrt) override;
    void   Pause(double Sekunden) override;
    void   Titel(int Fenster, std::string_view Text) override;
    double Sekunden() override;
    void   Pause_Beenden(); // the one that is under way, if any
    void   Ton() override;

    std::function<double()>                    Uhr{};         // empty: the clock of the day
    std::function<void()>                      Nachziehen{};  // brings the windows to the state
    std::function<void(bool)>                  Bei_Sperren{}; // all windows disabled, enabled
    std::function<void(int, std::string_view)> Bei_Titel{};   // caption of a child window

private:
    bool        Zeiger_Wartet = false;
    QEventLoop* Pausierend    = nullptr; // null: no pause is under way
};

class Qt_Dialoge : public Dialoge {
public:
    void                        Datei_Waehlen(Dateiwahl_T& Wahl) override;
    std::optional<Schrift_T>    Schrift_Waehlen(const Schrift_T& Bisher) override;
    std::optional<std::int32_t> Farbe_Waehlen(std::int32_t Bisher) override;
};

class Qt_Ablage : public Zwischenablage {
public:
    std::string Text() const override;
    void        Setzen(std::string_view Text) override;
    std::string Text_UTF8() const override;
    void        Setzen_UTF8(std::string_view Text) override;
};

class Qt_Schale : public Schale {
public:
    bool Oeffnen(std::string_view Ort) override;
    void Dateityp_Verknuepfen(const Dateityp_T& Typ) override;
};

// Patterns of a filter as Qt writes them: "Name (*.asm *.ASM)". A pattern is taken in both cases.
QStringList Qt_Filter(std::string_view Filter);
// The extension of a filter's first pattern, without the dot; empty where it has none.
QString Filter_Endung(const QString& Filter);

} // namespace varnholt
