// Reads RTF: marks to characters with their look. The words that count stand in Rtf_Woerter.h.
#include "core/codepage.h"
#include "files/Rtf.h"
#include "files/Rtf_Tafeln.h"
#include "files/Rtf_Woerter.h"
#include "files/Rtf_Zeichenfolge.h"
#include "files/Rtf_Zerleger.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace varnholt {
namespace {

constexpr std::size_t Tiefe_Hoechstens = 200; // groups that keep a state of their own

// Where the characters of a group go.
enum class Ziel { Text, Schriften, Farben, Nichts };

// Look of the characters as the file tells it, by numbers of its tables.
struct Roh_Bild_T {
    int  Schrift                             = -1; // -1: the window's own
    int  Halbpunkte                          = 0;
    int  Farbe                               = 0;
    bool Fett                                = false;
    bool Kursiv                              = false;
    bool Unterstrichen                       = false;
    bool operator==(const Roh_Bild_T&) const = default;
};

// What a group inherits and gives back at its end.
struct Zustand_T {
    Roh_Bild_T    Bild{};
    Absatz_Bild_T Absatz{};
    int           Ersatz_Laenge = 1; // characters that stand in for one \u
    Ziel          Wohin         = Ziel::Text;
    bool          Versteckt     = false;
};

struct Schrift_Eintrag_T {
    std::string Name{};
    int         Codeseite = 0; // 0: the text's
};

class Leser {
public:
    Leser(std::string_view Bytes, const Rtf_Grenzen_T& Alle) : Grenzen(Alle), Zerleger(Bytes) {}
    Rtf_Ergebnis_T Lesen();

private:
    void           Behandeln(Rtf_Marke_T Marke);
    bool           Ersatz_Uebergangen(Rtf_Marke_T& Marke);
    void           Gruppe_Auf();
    void           Gruppe_Zu();
    void           Wort(const Rtf_Marke_T& Marke);
    bool           Bild_Wort(const Rtf_Wort_T& w, const Rtf_Marke_T& Marke);
    bool           Absatz_Wort(const Rtf_Wort_T& w, int Zahl);
    void           Satz_Wort(const Rtf_Wort_T& w, int Zahl);
    void           Tafel_Wort(const Rtf_Wort_T& w, int Zahl);
    void           Symbol(char Zeichen);
    void           Text(std::string_view Roh);
    void           Byte(char Neues);
    void           Zeichen(char32_t Neues);
    void           Unicode(int Zahl);
    void           Schriften_Text(std::string_view Roh);
    void           Farben_Text(std::string_view Roh);
    bool           Zeigt() const { return Jetzt.Wohin == Ziel::Text && !Jetzt.Versteckt; }
    int            Codeseite_Jetzt() const;
    void           Bild_Bereit();
    void           Puffer_Leeren();
    void           Absatz_Ende();
    void           Schrift_Aufnehmen();
    void           Farbe_Aufnehmen();
    Zeichen_Bild_T Aufgeloest(const Roh_Bild_T& Roh) const;

    const Rtf_Grenzen_T&   Grenzen;
    Rtf_Zerleger           Zerleger;
    Zustand_T              Jetzt{};
    std::vector<Zustand_T> Stapel{};
    std::size_t            Uebertief   = 0;     // open groups beyond the stack
    int                    Ersatz_Rest = 0;     // characters still to be passed over behind a \u
    bool                   Stern       = false; // \* stood ahead
    bool                   Fertig      = false;

    std::unordered_map<int, Schrift_Eintrag_T> Schriften{};
    std::vector<std::int32_t>                  Farben{};
    int                                        Grund_Schrift  = 0;
    int                                        Codeseite      = Codeseite_1252;
    int                                        Schrift_Nummer = -1; // of the entry in work
    Schrift_Eintrag_T                          Schrift_Eintrag{};
    Rtf_Zeichenfolge                           Namens_Folge{Schrift_Eintrag.Name};
    std::int32_t                               Farbe_Wert = 0; // of the entry in work

    Rtf_Ergebnis_T   Ergebnis{{{Absatz_T{}}}};
    std::string      Puffer{}; // characters of one look that aren't in the text yet
    Roh_Bild_T       Puffer_Bild{};
    Rtf_Zeichenfolge Folge{Puffer};
    std::size_t      Laenge  = 0; // of the text, bytes
    std::size_t      Stuecke = 0;
};

// --- the way through the file ---

Rtf_Ergebnis_T Leser::Lesen()
{
    while (!Fertig && !Ergebnis.Zu_Lang) {
        const Rtf_Marke_T Marke = Zerleger.Naechste();
        if (Marke.Art == Rtf_Marke_T::Ende)
            break;
        Behandeln(Marke);
    }
    Puffer_Leeren();
    Ergebnis.Text.Absaetze.back().Bild = Jetzt.Absatz;
    return std::move(Ergebnis);
}

void Leser::Behandeln(Rtf_Marke_T Marke)
{
    if (Marke.Art == Rtf_Marke_T::Gruppe_Auf)
        return Gruppe_Auf();
    if (Marke.Art == Rtf_Marke_T::Gruppe_Zu)
        return Gruppe_Zu();
    if (Ersatz_Uebergangen(Marke))
        return;
    if (Marke.Art == Rtf_Marke_T::Wort)
        Wort(Marke);
    else if (Marke.Art == Rtf_Marke_T::Symbol)
        return Symbol(Marke.Zeichen);
    else if (Marke.Art == Rtf_Marke_T::Byte)
        Byte(Marke.Zeichen);
    else
        Text(Marke.Inhalt);
    Stern = false;
}

// The characters behind a \u that stand in for it are passed over; of a text the rest stays.
bool Leser::Ersatz_Uebergangen(Rtf_Marke_T& Marke)
{
    if (Ersatz_Rest == 0)
        return false;
    if (Marke.Art != Rtf_Marke_T::Text) {
        --Ersatz_Rest;
        return true;
    }
    const std::size_t n = std::min(static_cast<std::size_t>(Ersatz_Rest), Marke.Inhalt.size());
    Ersatz_Rest -= static_cast<int>(n);
    Marke.Inhalt.remove_prefix(n);
    return Marke.Inhalt.empty();
}

void Leser::Gruppe_Auf()
{
    Ersatz_Rest = 0;
    Stern       = false;
    if (Stapel.size() < Tiefe_Hoechstens)
        Stapel.push_back(Jetzt);
    else
        ++Uebertief;
}

void Leser::Gruppe_Zu()
{
    Ersatz_Rest = 0;
    Stern       = false;
    if (Jetzt.Wohin == Ziel::Schriften)
        Schrift_Aufnehmen();
    if (Uebertief > 0) {
        --Uebertief;
        return;
    }
    Fertig = Stapel.size() <= 1;
    if (Fertig)
        return; // the last paragraph has the look of this group
    Jetzt = Stapel.back();
    Stapel.pop_back();
}

// --- words ---

void Leser::Wort(const Rtf_Marke_T& Marke)
{
    const Rtf_Wort_T w    = Rtf_Wort_Suchen(Marke.Inhalt);
    const bool       Eine = w.Wirkung == Rtf_Wirkung::Schriften || w.Wirkung == Rtf_Wirkung::Farben;
    if (Jetzt.Wohin == Ziel::Nichts)
        return;
    if (w.Wirkung == Rtf_Wirkung::Uebergehen || (Stern && !Eine)) {
        Jetzt.Wohin = Ziel::Nichts;
        return;
    }
    if (Eine) {
        Jetzt.Wohin = w.Wirkung == Rtf_Wirkung::Schriften ? Ziel::Schriften : Ziel::Farben;
        return;
    }
    if (Jetzt.Wohin != Ziel::Text)
        return Tafel_Wort(w, Marke.Zahl);
    if (!Bild_Wort(w, Marke) && !Absatz_Wort(w, Marke.Zahl))
        Satz_Wort(w, Marke.Zahl);
}

// Look of the characters.
bool Leser::Bild_Wort(const Rtf_Wort_T& w, const Rtf_Marke_T& Marke)
{
    const bool An = !Marke.Mit_Zahl || Marke.Zahl != 0;
    switch (w.Wirkung) {
    case Rtf_Wirkung::Fett:
        Jetzt.Bild.Fett = An;
        return true;
    case Rtf_Wirkung::Kursiv:
        Jetzt.Bild.Kursiv = An;
        return true;
    case Rtf_Wirkung::Unterstrichen:
        Jetzt.Bild.Unterstrichen = An && w.Wert != 0;
        return true;
    case Rtf_Wirkung::Versteckt:
        Jetzt.Versteckt = An;
        return true;
    case Rtf_Wirkung::Schrift:
        Jetzt.Bild.Schrift = Marke.Zahl;
        return true;
    case Rtf_Wirkung::Groesse:
        Jetzt.Bild.Halbpunkte = Rtf_Halbpunkte(Marke.Zahl);
        return true;
    case Rtf_Wirkung::Farbe:
        Jetzt.Bild.Farbe = Marke.Zahl;
        return true;
    case Rtf_Wirkung::Schlicht:
        Jetzt.Bild      = {};
        Jetzt.Versteckt = false;
        return true;
    default:
        return false;
    }
}

// Paragraphs.
bool Leser::Absatz_Wort(const Rtf_Wort_T& w, int Zahl)
{
    const int Twips = Rtf_Twips(Zahl);
    switch (w.Wirkung) {
    case Rtf_Wirkung::Absatz:
        Absatz_Ende();
        return true;
    case Rtf_Wirkung::Absatz_Schlicht:
        Jetzt.Absatz = {};
        return true;
    case Rtf_Wirkung::Ausrichtung:
        Jetzt.Absatz.Ausrichtung = static_cast<Bund>(w.Wert);
        return true;
    case Rtf_Wirkung::Einzug:
        Jetzt.Absatz.Einzug = Twips;
        return true;
    case Rtf_Wirkung::Erste_Zeile:
        Jetzt.Absatz.Erste_Zeile = Twips;
        return true;
    case Rtf_Wirkung::Davor:
        Jetzt.Absatz.Davor = Twips;
        return true;
    case Rtf_Wirkung::Danach:
        Jetzt.Absatz.Danach = Twips;
        return true;
    default:
        return false;
    }
}

// Characters, and what they are written in.
void Leser::Satz_Wort(const Rtf_Wort_T& w, int Zahl)
{
    constexpr int Ersatz_Hoechstens = 16;
    switch (w.Wirkung) {
    case Rtf_Wirkung::Zeichen:
        Zeichen(static_cast<char32_t>(w.Wert));
        return;
    case Rtf_Wirkung::Unicode:
        Unicode(Zahl);
        return;
    case Rtf_Wirkung::Ersatz_Laenge:
        Jetzt.Ersatz_Laenge = std::clamp(Zahl, 0, Ersatz_Hoechstens);
        return;
    case Rtf_Wirkung::Codeseite:
        Codeseite = w.Wert;
        return;
    case Rtf_Wirkung::Codeseite_Des_Textes:
        Codeseite = Zahl > 0 ? Zahl : Codeseite_1252;
        return;
    case Rtf_Wirkung::Grund_Schrift:
        Grund_Schrift = Zahl;
        return;
    default:
        return;
    }
}

// Words of the font and the colour table.
void Leser::Tafel_Wort(const Rtf_Wort_T& w, int Zahl)
{
    const auto Anteil = [&](int Schieben) {
        Farbe_Wert &= ~(0xFF << Schieben);
        Farbe_Wert |= std::clamp(Zahl, 0, 0xFF) << Schieben;
    };
    switch (w.Wirkung) {
    case Rtf_Wirkung::Schrift:
        Schrift_Aufnehmen();
        Schrift_Nummer = Zahl;
        return;
    case Rtf_Wirkung::Schriftsatz:
        Schrift_Eintrag.Codeseite = Codeseite_Des_Schriftsatzes(Zahl, 0);
        return;
    case Rtf_Wirkung::Codeseite_Der_Schrift:
        Schrift_Eintrag.Codeseite = std::max(Zahl, 0);
        return;
    case Rtf_Wirkung::Unicode:
        Unicode(Zahl);
        return;
    case Rtf_Wirkung::Rot:
        return Anteil(0);
    case Rtf_Wirkung::Gruen:
        return Anteil(8);
    case Rtf_Wirkung::Blau:
        return Anteil(16);
    default:
        return;
    }
}

void Leser::Symbol(char Neues)
{
    const bool Sternchen = Neues == '*';
    switch (Neues) {
    case '\\':
    case '{':
    case '}':
        Text({&Neues, 1});
        break;
    case '\t':
        Zeichen('\t');
        break;
    case '\r':
    case '\n':
        if (Jetzt.Wohin == Ziel::Text)
            Absatz_Ende();
        break;
    case '~':
        Zeichen(0xA0);
        break;
    case '-':
        Zeichen(0xAD);
        break;
    case '_':
        Zeichen(0x2011);
        break;
    default:
        break;
    }
    Stern = Sternchen;
}

// --- characters ---

void Leser::Text(std::string_view Roh)
{
    if (Jetzt.Wohin == Ziel::Schriften)
        return Schriften_Text(Roh);
    if (Jetzt.Wohin == Ziel::Farben)
        return Farben_Text(Roh);
    if (!Zeigt())
        return;
    Bild_Bereit();
    const int Seite = Codeseite_Jetzt();
    for (const char c : Roh)
        Folge.Byte(Seite, c);
    if (Laenge + Puffer.size() > Grenzen.Zeichen)
        Puffer_Leeren();
}

void Leser::Byte(char Neues)
{
    if (Jetzt.Wohin == Ziel::Schriften)
        return Namens_Folge.Byte(
            Schrift_Eintrag.Codeseite != 0 ? Schrift_Eintrag.Codeseite : Codeseite_1252, Neues);
    if (Jetzt.Wohin == Ziel::Text)
        Text({&Neues, 1});
}

void Leser::Zeichen(char32_t Neues)
{
    if (!Zeigt())
        return;
    Bild_Bereit();
    Folge.Einheit(Neues);
}

// \u: a unit of UTF-16 as a signed number of 16 bits, or, from some programs, a whole character.
void Leser::Unicode(int Zahl)
{
    constexpr char32_t Zeilen_Trenner = 0x2028;
    constexpr char32_t Absatz_Trenner = 0x2029;
    const auto         Einheit_Davon  = static_cast<char32_t>(Zahl < 0 ? Zahl & 0xFFFF : Zahl);
    Ersatz_Rest                       = Jetzt.Ersatz_Laenge;
    if (Jetzt.Wohin == Ziel::Schriften)
        Namens_Folge.Einheit(Einheit_Davon);
    else if (Einheit_Davon == Zeilen_Trenner || Einheit_Davon == Absatz_Trenner)
        Absatz_Ende();
    else
        Zeichen(Einheit_Davon);
}

int Leser::Codeseite_Jetzt() const
{
    const auto f = Schriften.find(Jetzt.Bild.Schrift < 0 ? Grund_Schrift : Jetzt.Bild.Schrift);
    return f != Schriften.end() && f->second.Codeseite != 0 ? f->second.Codeseite : Codeseite;
}

void Leser::Bild_Bereit()
{
    if (Jetzt.Bild == Puffer_Bild)
        return;
    Puffer_Leeren();
    Puffer_Bild = Jetzt.Bild;
}

void Leser::Puffer_Leeren()
{
    Folge.Schliessen();
    std::string Sauber = Rtf_Zeichen_Normal(Puffer);
    Puffer.clear();
    if (Sauber.empty())
        return;
    if (Laenge + Sauber.size() > Grenzen.Zeichen) {
        Sauber           = UTF8_Anfang(Sauber, Grenzen.Zeichen - Laenge);
        Ergebnis.Zu_Lang = true;
    }
    Absatz_T&         Dieser = Ergebnis.Text.Absaetze.back();
    const std::size_t Vorher = Dieser.Stuecke.size();
    Anfuegen(Dieser, Sauber, Aufgeloest(Puffer_Bild));
    Laenge += Sauber.size();
    Stuecke += Dieser.Stuecke.size() - Vorher;
    Ergebnis.Zu_Lang = Ergebnis.Zu_Lang || Stuecke > Grenzen.Stuecke;
}

void Leser::Absatz_Ende()
{
    if (!Zeigt())
        return;
    Puffer_Leeren();
    if (Ergebnis.Text.Absaetze.size() >= Grenzen.Absaetze)
        Ergebnis.Zu_Lang = true;
    if (Ergebnis.Zu_Lang)
        return;
    Ergebnis.Text.Absaetze.back().Bild = Jetzt.Absatz;
    Ergebnis.Text.Absaetze.emplace_back();
}

// --- tables ---

// Names end in a semicolon; one written as \'3b belongs to the name.
void Leser::Schriften_Text(std::string_view Roh)
{
    for (const char c : Roh)
        if (c == ';')
            Schrift_Aufnehmen();
        else
            Namens_Folge.Byte(Codeseite_1252, c);
}

void Leser::Schrift_Aufnehmen()
{
    Namens_Folge.Schliessen();
    Schrift_Eintrag.Name = Rtf_Schriftname(Schrift_Eintrag.Name);
    if (Schrift_Nummer >= 0 && Schriften.size() <= Rtf_Tafel_Hoechstens)
        Schriften.try_emplace(Schrift_Nummer, std::move(Schrift_Eintrag));
    Schrift_Eintrag = {};
    Schrift_Nummer  = -1;
}

void Leser::Farben_Text(std::string_view Roh)
{
    for (const char c : Roh)
        if (c == ';')
            Farbe_Aufnehmen();
}

void Leser::Farbe_Aufnehmen()
{
    if (Farben.size() <= Rtf_Tafel_Hoechstens)
        Farben.push_back(Farbe_Wert);
    Farbe_Wert = 0;
}

Zeichen_Bild_T Leser::Aufgeloest(const Roh_Bild_T& Roh) const
{
    Zeichen_Bild_T Bild;
    const auto     f = Schriften.find(Roh.Schrift);
    if (f != Schriften.end())
        Bild.Schrift = f->second.Name;
    if (Roh.Farbe >= 0 && static_cast<std::size_t>(Roh.Farbe) < Farben.size())
        Bild.Farbe = Farben[static_cast<std::size_t>(Roh.Farbe)];
    Bild.Halbpunkte    = Roh.Halbpunkte;
    Bild.Fett          = Roh.Fett;
    Bild.Kursiv        = Roh.Kursiv;
    Bild.Unterstrichen = Roh.Unterstrichen;
    return Bild;
}

} // namespace

bool Ist_Rtf(std::string_view Bytes)
{
    if (Bytes.starts_with("\xEF\xBB\xBF"))
        Bytes.remove_prefix(3);
    Bytes.remove_prefix(std::min(Bytes.find_first_not_of(" \t\r\n"), Bytes.size()));
    return Bytes.starts_with("{\\rtf");
}

Rtf_Ergebnis_T Rtf_Lesen(std::string_view Bytes, const Rtf_Grenzen_T& Grenzen)
{
    return Leser(Bytes, Grenzen).Lesen();
}

} // namespace varnholt
