// The wall: what the logic wants from the outside world, and nothing else. Three worlds stand
// behind it: the windows (ui/), the terminal (cli/) and the script of a test (tests/support).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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
    // Seconds since midnight, local time, with a fraction. (A port has a clock of its own.)
    virtual double Sekunden() = 0;
    // The short tone at the end of something long.
    virtual void Ton() {}
};

// A piece of a text: first character and number of characters.
struct Textstelle_T {
    std::int64_t Anfang                                = 0;
    std::int64_t Laenge                                = 0;
    bool         operator==(const Textstelle_T&) const = default;
};

// A piece of a text and its colour, 24 bits, blue byte first: 0xDD1111 is a blue.
struct Farbstelle_T {
    std::int64_t Anfang                                = 0;
    std::int64_t Laenge                                = 0;
    std::int32_t Farbe                                 = 0;
    bool         operator==(const Farbstelle_T&) const = default;
};

struct Reich_Text_T; // core/rich_text.h

// A text control (`Edit`, `Notiz`). The text is Windows-1252 with CR LF line ends; positions count
// characters from 0, a line end being two; lines count from 0. What lies outside the text is drawn
// in. Every character has a colour; typed and inserted ones take that of the character before them.
class Textfeld {
public:
    virtual ~Textfeld()              = default;
    virtual std::string Text() const = 0;
    // The text for reading only; Puffer holds it where the control has no such text of its own. The
    // view holds until the text changes.
    virtual std::string_view Text_Ansicht(std::string& Puffer) const
    {
        Puffer = Text();
        return Puffer;
    }
    virtual void Text_Setzen(std::string Neuer) = 0; // all of it in colour 0, caret at 0
    // The same in UTF-8, for a control that shows more characters than the logic knows.
    virtual std::string  Text_UTF8() const                                    = 0;
    virtual void         Text_Setzen_UTF8(std::string_view Neuer)             = 0;
    virtual std::int64_t Laenge() const                                       = 0;
    virtual void         Auswaehlen(std::int64_t Anfang, std::int64_t Laenge) = 0;
    virtual Textstelle_T Auswahl() const                                      = 0;
    virtual std::string  Auswahl_Text() const                                 = 0;
    virtual void         Auswahl_Ersetzen(std::string_view Neuer) = 0; // caret behind it
    // The same in UTF-8; by way of Windows-1252 where the control knows no more.
    // Puts Neuer in the place of a piece, in the colour of its first character. The selection,
    // which doesn't touch the piece, stays at its characters, and the view where it is.
    virtual void         Ersetzen(Textstelle_T Stueck, std::string_view Neuer) = 0;
    virtual std::string  Auswahl_Text_UTF8() const;
    virtual void         Auswahl_Ersetzen_UTF8(std::string_view Neuer);
    virtual void         Auswahl_Faerben(std::int32_t Farbe)            = 0;
    virtual void         Faerben(std::span<const Farbstelle_T> Stellen) = 0; // ascending
    virtual std::int32_t Farbe_An(std::int64_t Stelle) const            = 0;
    // The colours of a piece, without those of colour 0, ascending.
    virtual std::vector<Farbstelle_T> Farben(Textstelle_T Stueck) const    = 0;
    virtual std::int64_t              Zeile_Von(std::int64_t Stelle) const = 0;
    virtual Textstelle_T              Zeile(std::int64_t Nummer) const     = 0; // without its end
    virtual std::int64_t              Zeilen_Anzahl() const                = 0; // at least 1
    virtual std::int64_t              Erste_Zeile() const                  = 0; // first visible
    // Load and save of rich text; the same for the selection, caret behind it. A control of plain
    // text gives and takes the colours only.
    virtual Reich_Text_T Reicher_Text() const;
    virtual void         Reich_Setzen(const Reich_Text_T& Neuer); // caret at 0
    virtual Reich_Text_T Auswahl_Reich() const;
    virtual void         Auswahl_Ersetzen_Reich(const Reich_Text_T& Neuer);
    virtual void         Zeichnen_Anhalten(bool Angehalten) = 0; // freeze, thaw
    virtual void         Sperren(bool Gesperrt)             = 0; // read only
    virtual void         Fokus()                            = 0;
    // False: nobody ever looks at it, so that colours are not worth their time.
    virtual bool Wird_Gezeigt() const { return true; }
};

// Place and size of a window inside the main window, in the screen units of the platform.
struct Lage_T {
    int  Oben                            = 0;
    int  Links                           = 0;
    int  Hoehe                           = 0;
    int  Breite                          = 0;
    bool operator==(const Lage_T&) const = default;
};

// A font as the settings file keeps it.
struct Schrift_T {
    std::string Name{}; // empty: the window's default
    bool        Fett                               = false;
    bool        Kursiv                             = false;
    double      Groesse                            = 0; // points, 0: the window's default
    bool        operator==(const Schrift_T&) const = default;
};

// The forms that stand beside the child windows.
enum class Formular {
    Start,
    Erststart,
    Abfrage_Modus,
    Optionen,           // modal
    F_Suche,            // stays open beside the text
    F_HexSuche,         // stays open beside the image
    F_Bereich_Kopieren, // modal, as the next two
    F_Bereich_setzen,
    F_Bereich_entfernen,
    F_Hilfe,      // stays open
    F_Brennmenue, // modal
    F_CheckIC,
    F_Lockmenu,              // modal
    F_Jumper,                // stays open
    F_Wahl_Eprommer_Version, // modal, as the next one
    F_Wahl_Tessel2_Version,
    F_Board, // the simulated programmer board; stays open
};
inline constexpr std::size_t Formular_Anzahl = 17;

// The main window and its child windows, by window number (core/windows.h).
class Fensterwelt {
public:
    virtual ~Fensterwelt()                                      = default;
    virtual bool   Sichtbar(int Fenster) const                  = 0;
    virtual void   Sichtbar_Setzen(int Fenster, bool Sichtbar)  = 0;
    virtual Lage_T Lage(int Fenster) const                      = 0;
    virtual void   Lage_Setzen(int Fenster, const Lage_T& Neue) = 0;
    virtual void   Fokus(int Fenster)                           = 0;
    virtual Lage_T Innenmass() const    = 0; // what the child windows have, Oben and Links 0
    virtual void   Bildschirm_Fuellen() = 0; // the main window
    virtual void   Hauptfenster_Titel(std::string_view Text)             = 0;
    virtual void   Hintergrund(std::int32_t Farbe)                       = 0; // of the text windows
    virtual void   Schrift_Setzen(int Fenster, const Schrift_T& Schrift) = 0; // 2, 5 and 6 only
    virtual void   Formular_Zeigen(Formular Welches)                     = 0; // Optionen: modal
    virtual void   Formular_Entladen(Formular Welches)                   = 0;
    virtual bool   Formular_Sichtbar(Formular Welches) const             = 0;
    virtual void   Start_Text(std::string_view Text)                     = 0; // label `L_Init`
    virtual void   Programm_Beenden()                                    = 0; // no way back
};

// What a file dialog opens with, and comes back with.
struct Dateiwahl_T {
    std::string Filter{};          // pairs of text and patterns, all separated by |
    int         Filter_Nummer = 1; // of the pairs, from 1
    std::string Verzeichnis{};     // where it opens (UTF-8)
    std::string Name{};            // proposed; chosen; empty when cancelled (UTF-8)
    bool        Speichern = false; // a name to save under: may be new, isn't asked about again
};

// The dialogs of the platform.
class Dialoge {
public:
    virtual ~Dialoge()                                                           = default;
    virtual void                        Datei_Waehlen(Dateiwahl_T& Wahl)         = 0;
    virtual std::optional<Schrift_T>    Schrift_Waehlen(const Schrift_T& Bisher) = 0; // 6 to 22
    virtual std::optional<std::int32_t> Farbe_Waehlen(std::int32_t Bisher)       = 0;
};

// The clipboard; text in Windows-1252. Lines may end in LF where another program wrote it.
class Zwischenablage {
public:
    virtual ~Zwischenablage()                         = default;
    virtual std::string Text() const                  = 0;
    virtual void        Setzen(std::string_view Text) = 0;
    // The same in UTF-8; by way of Windows-1252 where the platform knows no more.
    virtual std::string Text_UTF8() const;
    virtual void        Setzen_UTF8(std::string_view Text);
};

// What the print dialog opens with, and comes back with.
struct Druckwahl_T {
    bool Markierung_Anbieten = false; // there is a selection that can be printed by itself
    bool Markierung          = false; // it was chosen
};

// The printer: lines of text in a font, page after page. A preview or a PDF file may stand behind
// it.
class Drucker {
public:
    virtual ~Drucker()                      = default;
    virtual void Einrichten()               = 0; // the setup dialog
    virtual bool Waehlen(Druckwahl_T& Wahl) = 0; // the print dialog; false: cancelled
    // Begins a document on its first page; false when there is nothing to print on, which is told.
    virtual bool Beginnen(std::string_view Titel)  = 0;
    virtual void Schrift(const Schrift_T& Schrift) = 0;
    virtual int  Zeilen_Je_Seite() const           = 0; // in that font, at least 1
    // Whether a line (UTF-8) is wholly on the sheet in that font.
    virtual bool Passt(std::string_view Text) const = 0;
    // A line (UTF-8, no line end); colours by characters from 0, black elsewhere. What is wider
    // than the page is clipped: false.
    virtual bool Zeile(std::string_view Text, std::span<const Farbstelle_T> Farben) = 0;
    // False when the printer fails; then the document is to be ended.
    virtual bool Neue_Seite() = 0;
    // Ends the document. One that isn't whole, since it was given up, keeps its pages on paper, but
    // becomes no file. False when nothing came of it: the printer has failed, which is told, or the
    // user closed the preview.
    virtual bool        Beenden(bool Ganz) = 0;
    virtual std::string Datum() const      = 0; // 10 characters: "20.11.2026"
    virtual std::string Uhrzeit() const    = 0; // 8 characters: "17:05:09"
};

// A shell file association.
struct Dateityp_T {
    std::string Beschreibung{};
    std::string Befehl{}; // without the argument
    std::string Klasse{};
    std::string Endung{}; // without the dot
};

// The desktop around the program.
class Schale {
public:
    virtual ~Schale()                          = default;
    virtual bool Oeffnen(std::string_view Ort) = 0; // URL or path; false: nobody took it
    virtual void Dateityp_Verknuepfen(const Dateityp_T& Typ) = 0;
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
    // A busy wait of Dauer microseconds that counts from the stamp Anfang, taken some time ago.
    virtual void Wartet_Seit(std::int64_t /*Anfang*/, std::int64_t Dauer) { Wartet(Dauer); }
    virtual void Sekunden_Wartet(double Sekunden) = 0;
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
    Fensterwelt*      Fenster;
    Dialoge*          Dialog;
    Zwischenablage*   Ablage;
    Schale*           Umgebung;
    Drucker*          Druck;
};

extern Plattform_T Plattform;

// Puts the silent world back and empties its two text controls.
void Plattform_Zuruecksetzen();

} // namespace varnholt
