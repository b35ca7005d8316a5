// The wall: what the logic wants from the outside world, and nothing else. Three worlds stand
// behind it: the windows (ui/), the terminal (cli/) and the script of a test (tests/support).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

enum class Knoepfe { Ok, Ok_Abbrechen, Ja_Nein, Ja_Nein_Abbrechen };
enum class Symbol { Kein, Hinweis, Frage, Warnung, Kritisch };

// Results of a message box, as they land in `Antwort`.
inline constexpr int Antwort_Ok        = 1;
inline constexpr int Antwort_Abbrechen = 2;
inline constexpr int Antwort_Ja        = 6;
inline constexpr int Antwort_Nein      = 7;

// One message box. Texts are UTF-8; lines are separated by CR LF.
struct Meldung_T {
    std::string Titel{};
    std::string Text{};
    Knoepfe     Tasten = Knoepfe::Ok;
    Symbol      Bild   = Symbol::Kein;
};

// Message and input boxes.
class Meldungsbox {
public:
    virtual ~Meldungsbox() = default;
    // Shows the box and waits; the result is one of the Antwort_ values.
    virtual int Zeigen(const Meldung_T& Meldung) = 0;
    // One line from the user, empty when the box was cancelled.
    virtual std::string Eingeben(std::string_view Text) = 0;
    // A notice without a box: the status line of the main window, standard error of the terminal.
    virtual void Hinweisen(std::string_view Text) = 0;
    // The question of a partial load: 1 first half, 2 second half, 0 given up.
    virtual int Bereich_Waehlen(std::string_view Text) = 0;
};

// The `status` dialog: a text, a bar from 0 to 100 and the button `Abbrechen`, which sets
// `Abbruch`.
class Statusdialog {
public:
    virtual ~Statusdialog()                   = default;
    virtual void Oeffnen()                    = 0;
    virtual void Text(std::string_view Neuer) = 0;
    virtual void ProgBar(int Prozent)         = 0;
    virtual void Schliessen()                 = 0;
};

// The event loop and what hangs on the windows as a whole.
class Ereignisschleife {
public:
    virtual ~Ereignisschleife()                 = default;
    virtual void Eine_Runde()                   = 0; // lets the user interface breathe once
    virtual void Mauszeiger_Warten(bool Warten) = 0;
    virtual void Fenster_Sperren(bool Gesperrt) = 0;
    // Lets the user see a finished dialog for that long, the event loop running meanwhile.
    virtual void Pause(double Sekunden)                    = 0;
    virtual void Titel(int Fenster, std::string_view Text) = 0; // window number of Fenster_Tabelle
};

// A text control (`Edit`, `Notiz`). The text is Windows-1252 with CR LF line ends; positions count
// characters from 0, lines from 0.
class Textfeld {
public:
    virtual ~Textfeld()              = default;
    virtual std::string Text() const = 0;
    // The text for reading only; Puffer holds it where the control has no such text of its own.
    virtual std::string_view Text_Ansicht(std::string& Puffer) const
    {
        Puffer = Text();
        return Puffer;
    }
    virtual void Text_Setzen(std::string Neuer)                       = 0;
    virtual void Auswaehlen(std::int64_t Anfang, std::int64_t Laenge) = 0;
    virtual void Fokus()                                              = 0;
};

// The port driver under the names of the field. A code above 0 is an error of the driver.
class Porttreiber {
public:
    virtual ~Porttreiber()                                                  = default;
    virtual int          KS_openDriver()                                    = 0;
    virtual int          KS_calibrateMachineTime(std::uint32_t& Eichwert)   = 0;
    virtual int          KS_enableIoRange(std::int32_t Adresse, int Anzahl) = 0;
    virtual void         KS_outpb(std::int32_t Adresse, std::uint8_t Wert)  = 0;
    virtual std::uint8_t KS_inpb(std::int32_t Adresse)                      = 0;
    virtual int          KS_getMachineTime(std::int64_t& Stempel)           = 0; // microseconds
    virtual std::string  KS_getErrorStringEx(int Code)                      = 0;
    // Waiting, as far as a port takes part in it. Sleep and the seconds clock stand here because a
    // simulated board has a clock of its own. Wartet announces a busy wait of that many
    // microseconds (SekundenWartet: seconds) before it begins: a simulated clock jumps over it, a
    // recorder notes it.
    virtual void   Sleep(int Millisekunden)           = 0;
    virtual double Sekunden_seit_Mitternacht()        = 0;
    virtual void   Wartet(std::int64_t Mikrosekunden) = 0;
    virtual void   Sekunden_Wartet(double Sekunden)   = 0;
};

// Everything behind the wall, one pointer each, never null: until a program puts its own world in
// place, each pointer leads to a silent one that shows nothing and answers Cancel.
struct Plattform_T {
    Meldungsbox*      Box;
    Statusdialog*     Status;
    Ereignisschleife* Ereignisse;
    Textfeld*         Edit;
    Textfeld*         Notiz;
    Porttreiber*      Port;
};

extern Plattform_T Plattform;

// Puts the silent world back and empties its two text controls.
void Plattform_Zuruecksetzen();

} // namespace varnholt
