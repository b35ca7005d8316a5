// The scripted world: records every call over the wall and answers from a list.
#pragma once

#include "core/platform.h"
#include "core/text_memory.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace varnholt::test {

class Skript_Box : public Meldungsbox {
public:
    int         Zeigen(const Meldung_T& Meldung) override;
    std::string Eingeben(std::string_view Text) override;
    void        Hinweisen(std::string_view Text) override;
    int         Bereich_Waehlen(std::string_view Text) override;

    std::vector<Meldung_T>   Meldungen{}; // every box shown, in order
    std::vector<std::string> Fragen{};    // texts of input boxes and of the partial-load question
    std::vector<std::string> Hinweise{};  // notices without a box
    std::deque<int>          Antworten{}; // answers to the next boxes; OK or Cancel when empty
    std::deque<std::string>  Eingaben{};  // answers to the next input boxes
    std::deque<int>          Bereiche{};  // answers to the next partial-load questions
};

class Skript_Status : public Statusdialog {
public:
    void Oeffnen() override
    {
        Offen = true;
        ++Geoeffnet;
    }
    void Text(std::string_view Neuer) override { Texte.emplace_back(Neuer); }
    void ProgBar(int Prozent) override { Balken.push_back(Prozent); }
    void Schliessen() override { Offen = false; }

    bool                     Offen     = false;
    int                      Geoeffnet = 0;
    std::vector<std::string> Texte{};
    std::vector<int>         Balken{};
};

class Skript_Ereignisse : public Ereignisschleife {
public:
    void Eine_Runde() override;
    void Mauszeiger_Warten(bool Warten) override { Zeiger_Wartet = Warten; }
    void Fenster_Sperren(bool Gesperrt) override { Fenster_Gesperrt = Gesperrt; }
    void Pause(double Sekunden) override { Gewartet += Sekunden; }
    void Titel(int Fenster, std::string_view Text) override;

    std::function<void(int)> Bei_Runde{}; // called at every turn with its number, from 1
    int                      Runden           = 0;
    bool                     Zeiger_Wartet    = false;
    bool                     Fenster_Gesperrt = false;
    double                   Gewartet         = 0;
    std::vector<std::string> Titel_Texte{};
};

// Base of the tests: every one starts from the reset state, in English, with the scripted world.
class Welt : public ::testing::Test {
protected:
    Welt();
    ~Welt() override;

    // Text of the last box, empty when none was shown.
    std::string Letzte_Meldung() const;

    Skript_Box        Box{};
    Skript_Status     Status{};
    Skript_Ereignisse Ereignisse{};
    Speicher_Text     Edit{};
    Speicher_Text     Notiz{};
};

} // namespace varnholt::test
