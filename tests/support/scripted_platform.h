// The scripted world: records every call over the wall and answers from a list.
#pragma once

#include "core/platform.h"
#include "core/text_memory.h"
#include "core/utf8.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <functional>
#include <optional>
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
    void   Eine_Runde() override;
    void   Mauszeiger_Warten(bool Warten) override { Zeiger_Wartet = Warten; }
    void   Fenster_Sperren(bool Gesperrt) override { Fenster_Gesperrt = Gesperrt; }
    void   Pause(double Sekunden) override { Gewartet += Sekunden; }
    void   Titel(int Fenster, std::string_view Text) override;
    double Sekunden() override { return Uhrzeit += Je_Blick; }
    void   Ton() override { ++Toene; }

    std::function<void(int)> Bei_Runde{}; // called at every turn with its number, from 1
    int                      Runden           = 0;
    int                      Toene            = 0; // tones heard
    bool                     Zeiger_Wartet    = false;
    bool                     Fenster_Gesperrt = false;
    double                   Gewartet         = 0;
    std::vector<std::string> Titel_Texte{};
    double                   Uhrzeit  = 36000; // seconds since midnight
    double                   Je_Blick = 0.125; // what passes between two looks at the clock
};

// Windows that only remember; every call that changes something is noted as a line of Protokoll,
// such as "Sichtbar 2 1", "Lage 5 0 100 200 300", "Fokus 2", "Zeigen Optionen", "Entladen Start".
class Skript_Fenster : public Fensterwelt {
public:
    bool   Sichtbar(int Fenster) const override { return Zu(Fenster).Sichtbar; }
    void   Sichtbar_Setzen(int Fenster, bool Sichtbar) override;
    Lage_T Lage(int Fenster) const override { return Zu(Fenster).Lage; }
    void   Lage_Setzen(int Fenster, const Lage_T& Neue) override;
    void   Fokus(int Fenster) override;
    Lage_T Innenmass() const override { return Innen; }
    void   Bildschirm_Fuellen() override;
    void   Hauptfenster_Titel(std::string_view Text) override { Titel = Text; }
    void   Hintergrund(std::int32_t Farbe) override;
    void   Schrift_Setzen(int Fenster, const Schrift_T& Schrift) override
    {
        Zu(Fenster).Schrift = Schrift;
    }
    void Formular_Zeigen(Formular Welches) override;
    void Formular_Entladen(Formular Welches) override;
    bool Formular_Sichtbar(Formular Welches) const override
    {
        return Formulare[static_cast<std::size_t>(Welches)];
    }
    void Start_Text(std::string_view Text) override { Start_Texte.emplace_back(Text); }
    void Programm_Beenden() override;

    struct Eines_T {
        bool      Sichtbar = false;
        Lage_T    Lage{};
        Schrift_T Schrift{};
    };
    Eines_T&       Zu(int Fenster) { return Alle.at(static_cast<std::size_t>(Fenster)); }
    const Eines_T& Zu(int Fenster) const { return Alle.at(static_cast<std::size_t>(Fenster)); }

    std::array<Eines_T, 13>           Alle{};
    std::array<bool, Formular_Anzahl> Formulare{}; // which forms are open
    Lage_T                            Innen{0, 0, 800, 1280};
    std::string                       Titel{};
    std::vector<std::int32_t>         Hintergruende{};
    std::vector<std::string>          Start_Texte{};
    std::vector<std::string>          Protokoll{};
    std::function<void(Formular)>     Bei_Formular{}; // the user in front of a form that is shown
    bool                              Beendet = false;
};

class Skript_Dialoge : public Dialoge {
public:
    void                        Datei_Waehlen(Dateiwahl_T& Wahl) override;
    std::optional<Schrift_T>    Schrift_Waehlen(const Schrift_T& Bisher) override;
    std::optional<std::int32_t> Farbe_Waehlen(std::int32_t Bisher) override;

    std::vector<Dateiwahl_T>                Gefragt{}; // as each file dialog was opened
    std::deque<std::string>                 Namen{};   // names chosen; cancelled when empty
    std::deque<int>                         Filter{};  // filters chosen; unchanged when empty
    std::vector<Schrift_T>                  Schrift_Gefragt{};
    std::deque<std::optional<Schrift_T>>    Schriften{};
    std::vector<std::int32_t>               Farbe_Gefragt{};
    std::deque<std::optional<std::int32_t>> Farben{};
};

class Skript_Ablage : public Zwischenablage {
public:
    std::string Text() const override { return Inhalt; }
    void        Setzen(std::string_view Text) override { Inhalt = Text; }
    std::string Inhalt{};
};

class Skript_Umgebung : public Schale {
public:
    bool Oeffnen(std::string_view Ort) override
    {
        Orte.emplace_back(Ort);
        return Nimmt_An;
    }
    void Dateityp_Verknuepfen(const Dateityp_T& Typ) override { Typen.push_back(Typ); }

    std::vector<std::string> Orte{};
    std::vector<Dateityp_T>  Typen{};
    bool                     Nimmt_An = true;
};

// A printer that keeps its pages as lines; "Schrift" notes each font that was set.
class Skript_Drucker : public Drucker {
public:
    void Einrichten() override { ++Eingerichtet; }
    bool Waehlen(Druckwahl_T& Wahl) override
    {
        Gefragt.push_back(Wahl);
        Wahl.Markierung = Nur_Markierung;
        return Nimmt_An;
    }
    bool Beginnen(std::string_view Text) override
    {
        Titel = Text;
        Seiten.assign(1, {});
        return Hat_Papier;
    }
    void Schrift(const Schrift_T& Neue) override { Schriften_Gesetzt.push_back(Neue); }
    int  Zeilen_Je_Seite() const override { return Je_Seite; }
    bool Passt(std::string_view Text) const override { return Zeichen_Im(Text) <= Je_Zeile; }
    bool Zeile(std::string_view Text, std::span<const Farbstelle_T> Farben) override
    {
        Seiten.back().emplace_back(Text);
        Alle_Farben.emplace_back(Farben.begin(), Farben.end());
        return std::ssize(Text) <= Je_Zeile;
    }
    bool Neue_Seite() override
    {
        if (std::ssize(Seiten) == Haelt_Bis)
            return false;
        Seiten.emplace_back();
        return true;
    }
    bool Beenden(bool War_Ganz) override
    {
        ++Beendet;
        Ganz = War_Ganz;
        return std::ssize(Seiten) != Haelt_Bis;
    }
    std::string Datum() const override { return "20.11.2026"; }
    std::string Uhrzeit() const override { return "17:05:09"; }

    std::vector<std::vector<std::string>>  Seiten{};
    std::vector<std::vector<Farbstelle_T>> Alle_Farben{}; // by line
    std::vector<Schrift_T>                 Schriften_Gesetzt{};
    std::vector<Druckwahl_T>               Gefragt{};
    std::string                            Titel{};
    int                                    Je_Seite       = 66;
    int                                    Je_Zeile       = 100;
    int                                    Haelt_Bis      = -1;    // the page behind which it fails
    bool                                   Ganz           = false; // the last document
    int                                    Eingerichtet   = 0;
    int                                    Beendet        = 0;
    bool                                   Nimmt_An       = true;
    bool                                   Hat_Papier     = true;
    bool                                   Nur_Markierung = false;
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
    Skript_Fenster    Fenster{};
    Skript_Dialoge    Dialog{};
    Skript_Ablage     Ablage{};
    Skript_Umgebung   Umgebung{};
    Skript_Drucker    Druck{};
};

} // namespace varnholt::test
