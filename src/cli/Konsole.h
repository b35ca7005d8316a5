// The terminal behind the wall: messages on standard error, questions answered by Cancel, progress
// on one line when standard error is a terminal.
#pragma once

#include "core/platform.h"
#include "core/text_memory.h"

#include <string>

namespace varnholt {

class Konsolen_Box : public Meldungsbox {
public:
    int         Zeigen(const Meldung_T& Meldung) override;
    std::string Eingeben(std::string_view Text) override;
    void        Hinweisen(std::string_view Text) override;
    int         Bereich_Waehlen(std::string_view Text) override;

    int Gewaehlte_Haelfte = 0; // answer to the partial-load question, 0 none
};

class Konsolen_Status : public Statusdialog {
public:
    Konsolen_Status();
    void Oeffnen() override {}
    void Text(std::string_view Neuer) override;
    void ProgBar(int) override {}
    void Schliessen() override;

private:
    bool Ist_Terminal;
    bool Zeile_Steht = false;
};

class Konsolen_Ereignisse : public Ereignisschleife {
public:
    void   Eine_Runde() override;
    void   Mauszeiger_Warten(bool) override {}
    void   Fenster_Sperren(bool) override {}
    void   Pause(double) override {} // there is no dialog to be seen
    void   Titel(int, std::string_view) override {}
    double Sekunden() override { return 0; } // nothing here waits by it
};

// A text that nobody sees.
class Konsolen_Text : public Speicher_Text {
public:
    bool Wird_Gezeigt() const override { return false; }
};

// From now on an interrupt (Ctrl C) is the cancel button, so that a device is left in an orderly
// state; a second one ends the program.
void Unterbrechung_Annehmen();
bool Unterbrochen_Worden();

// The terminal's world; puts itself behind the wall.
struct Konsole_T {
    Konsole_T();
    Konsolen_Box        Box{};
    Konsolen_Status     Status{};
    Konsolen_Ereignisse Ereignisse{};
    Konsolen_Text       Edit{};
    Konsolen_Text       Notiz{};
};

// Text with CR LF ends, as lines on standard error; blank lines at its end are dropped.
void Auf_Fehlerausgabe(std::string_view Text);

} // namespace varnholt
