// The layouts of both printouts, and the commands that send them to the printer.
#include "files/Drucken.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/menu.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/utf8.h"
#include "editors/Quelltext_Sperre.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>

namespace varnholt {
namespace {

constexpr std::size_t Rahmen_Breite = 70; // characters
constexpr std::size_t Pfad_Breite   = 53; // of them for the path
constexpr std::size_t Seiten_Breite = 6;
constexpr int         Kopf_Einzug   = 10;
constexpr int         Fuss_Einzug   = 7;
constexpr int         Pfad_Einzug   = 12; // in the footer of a page of text

// The widest line of a page: blanks, both addresses, 16 bytes, 16 characters.
constexpr std::size_t Hex_Zeichen_Je_Zeile = 7 + 6 + 2 + 6 + 1 + 16 * 3 + 2 + 16;

constexpr std::string_view Spalten_Kopf =
    "Dez.    Hex.    .0..1..2..3..4..5..6..7..8..9..A..B..C..D..E..F  ASCII           ";

// Bytes that print as a point: a printer would take them for a command, or show nothing.
constexpr std::uint8_t Als_Punkt[] = {0, 2, 9, 10, 13, 15, 18, 32};

// At most that many characters from the end, where a path says most.
std::string_view Ende_Von(std::string_view Text, std::int64_t Hoechstens)
{
    for (std::int64_t n = Zeichen_Im(Text); n > Hoechstens; --n) {
        Text.remove_prefix(1);
        while (!Text.empty() && Ist_Folgebyte(Text.front()))
            Text.remove_prefix(1);
    }
    return Text;
}

std::string Mit_Strichen(std::string Text, std::size_t Breite)
{
    const auto n = static_cast<std::size_t>(Zeichen_Im(Text));
    return n < Breite ? Text.append(Breite - n, '-') : Text;
}

std::string Leer(int Anzahl) { return std::string(static_cast<std::size_t>(Anzahl), ' '); }

char Druck_Zeichen(std::uint8_t Byte)
{
    const bool Punkt =
        std::find(std::begin(Als_Punkt), std::end(Als_Punkt), Byte) != std::end(Als_Punkt);
    return Punkt ? '.' : static_cast<char>(Byte);
}

} // namespace

std::vector<std::string> Hex_Rahmen(const Druck_Kopf& Kopf, int Seite, int Einzug)
{
    const std::string Nummer = std::to_string(Seite);
    const std::string Seiten =
        std::string(Seiten_Breite - std::min(Seiten_Breite, Nummer.size()), '-');
    return {Leer(Einzug) + std::string(Rahmen_Breite, '-'),
            Leer(Einzug) +
                Mit_Strichen("---Datei: " + std::string(Ende_Von(Kopf.Pfad, Pfad_Breite)),
                             Rahmen_Breite),
            Leer(Einzug) + "---Datum " + Kopf.Datum + "-------------Zeit " + Kopf.Uhrzeit +
                "-------------Seite:" + Nummer + Seiten};
}

std::string Hex_Druckzeile(std::int32_t Adresse)
{
    std::string Zeile = fmt::format("       {:06}  {:06X} ", Adresse, Adresse);
    std::string Zeichen;
    for (int i = 0; i < 16; ++i) {
        const std::uint8_t Byte = Hex_Daten[static_cast<std::size_t>(Adresse + i)];
        Zeile += fmt::format("{:02X} ", Byte);
        Zeichen += Druck_Zeichen(Byte);
    }
    return Zeile + "  " + Nach_UTF8(Zeichen);
}

std::vector<std::string> Text_Fuss(const Druck_Kopf& Kopf, int Seite)
{
    const std::string Nummer = std::to_string(Seite);
    return {Leer(Pfad_Einzug) + Kopf.Pfad,
            In_Sprache(
                {"Datum: " + Kopf.Datum + "     Seite: " + Nummer + "     Zeit: " + Kopf.Uhrzeit,
                 "Date: " + Kopf.Datum + "     Page: " + Nummer + "     Time: " + Kopf.Uhrzeit})};
}

// --- progress ---

Druckfortgang::Druckfortgang()
{
    Abbruch = false;
    Plattform.Status->Oeffnen();
    Plattform.Status->Text(In_Sprache(
        Menue("MNU_Hex").Haken ? Text_Paar{" Hexdaten werden gedruckt...", " Printing hex data..."}
                               : Text_Paar{" Text wird gedruckt...", " Printing text..."}));
}

Druckfortgang::~Druckfortgang() { Plattform.Status->Schliessen(); }

bool Druckfortgang::Weiter(std::size_t Teil, std::size_t Ganzes)
{
    const int Neu = static_cast<int>(Teil * 100 / std::max<std::size_t>(Ganzes, 1));
    if (Neu > Prozent) {
        Prozent = Neu;
        Plattform.Status->ProgBar(Prozent);
    }
    Plattform.Ereignisse->Eine_Runde();
    return !Abbruch;
}

// --- the image ---

namespace {

Druck_Kopf Kopf_Jetzt()
{
    return {Datei_Name, Plattform.Druck->Datum(), Plattform.Druck->Uhrzeit()};
}

void Drucken(std::string_view Zeile, std::span<const Farbstelle_T> Farben = {})
{
    if (!Plattform.Druck->Zeile(Zeile, Farben))
        ++Druckauftrag.Zu_Breit;
}
void Drucken(const std::vector<std::string>& Zeilen)
{
    for (const std::string& z : Zeilen)
        Drucken(z);
}
void Leerzeilen_Drucken(int Anzahl)
{
    for (; Anzahl > 0; --Anzahl)
        Drucken("");
}

void Hex_Kopf_Drucken(const Druck_Kopf& Kopf, int Seite)
{
    const std::vector<std::string> Rahmen = Hex_Rahmen(Kopf, Seite, Kopf_Einzug);
    Drucken("");
    Drucken(Rahmen);
    Drucken(Rahmen.front());
    Leerzeilen_Drucken(3);
    Drucken(Leer(Fuss_Einzug) + std::string(Spalten_Kopf));
}

constexpr int Hex_Seite_Zeilen = 9 + Hex_Fuss_Zeile + 3; // header, rows, footer

bool Hex_Seite_Passt()
{
    return Plattform.Druck->Zeilen_Je_Seite() >= Hex_Seite_Zeilen &&
           Plattform.Druck->Passt(std::string(Hex_Zeichen_Je_Zeile, 'W'));
}

// Courier New 10; smaller where the sheet doesn't hold the page otherwise.
void Hex_Schrift_Setzen()
{
    constexpr double Kleinste = 3;
    constexpr double Schritt  = 0.5;
    Schrift_T        s;
    s.Name = "Courier New";
    for (s.Groesse = 10; s.Groesse >= Kleinste; s.Groesse -= Schritt) {
        Plattform.Druck->Schrift(s);
        if (Hex_Seite_Passt())
            return;
    }
}

void Hex_Zeilen_Drucken(int Von, int Bis)
{
    for (int i = Von; i < Bis; ++i)
        Drucken(Hex_Druckzeile(i * 16));
}

} // namespace

void Hex_Drucken()
{
    const int        Zeilen = (Letztes_Byte() + 16) / 16;
    const int        Seiten = std::max(1, (Zeilen + Hex_Zeilen_Je_Seite - 1) / Hex_Zeilen_Je_Seite);
    const Druck_Kopf Kopf   = Kopf_Jetzt();
    Druckfortgang    Lauf;
    Druckauftrag.Ganz = false;
    for (int Seite = 1; Seite <= Seiten; ++Seite) {
        const int Von = (Seite - 1) * Hex_Zeilen_Je_Seite;
        if (!Lauf.Weiter(static_cast<std::size_t>(Von), static_cast<std::size_t>(Zeilen)) ||
            (Seite > 1 && !Plattform.Druck->Neue_Seite()))
            return;
        Hex_Kopf_Drucken(Kopf, Seite);
        Hex_Zeilen_Drucken(Von, std::min(Zeilen, Von + Hex_Zeilen_Je_Seite));
    }
    Leerzeilen_Drucken(Hex_Fuss_Zeile - (Zeilen - (Seiten - 1) * Hex_Zeilen_Je_Seite));
    Drucken(Hex_Rahmen(Kopf, Seiten, Fuss_Einzug));
    Druckauftrag.Ganz = true;
}

// --- the source text ---

namespace {

// The longest end that fits the sheet in its place of the footer, at least one character.
std::string Pfad_Fuer_Blatt(const std::string& Pfad)
{
    std::int64_t Kurz = 1;
    std::int64_t Lang = Zeichen_Im(Pfad) + 1; // too long
    while (Lang > Kurz + 1) {
        const std::int64_t n = (Kurz + Lang) / 2;
        const bool         Passt =
            Plattform.Druck->Passt(Leer(Pfad_Einzug) + std::string(Ende_Von(Pfad, n)));
        (Passt ? Kurz : Lang) = n;
    }
    return std::string(Ende_Von(Pfad, Kurz));
}

// What stands on the pages.
Druck_Kopf Textkopf_Jetzt()
{
    Druck_Kopf Kopf = Kopf_Jetzt();
    Kopf.Pfad       = Pfad_Fuer_Blatt(Kopf.Pfad);
    return Kopf;
}

// Lines, their colours, and where the page stands.
class Textdruck {
public:
    Textdruck(std::string Text_UTF8, std::vector<Farbstelle_T> Alle_Farben)
        : Text(std::move(Text_UTF8)), Farben(std::move(Alle_Farben))
    {
    }
    bool Laufen(Druckfortgang& Lauf); // false: given up, or the printer has failed

private:
    bool Platz_Schaffen();
    void Zeile_Drucken(std::string_view Inhalt);
    void Seite_Schliessen();

    std::vector<Farbstelle_T> Farben_Der_Zeile(std::int64_t Anfang, std::int64_t Laenge);

    std::string               Text;
    std::vector<Farbstelle_T> Farben;
    Druck_Kopf                Kopf        = Textkopf_Jetzt();
    int                       Auf_Seite   = std::max(Plattform.Druck->Zeilen_Je_Seite() - 2, 1);
    int                       Seite       = 1;
    int                       Zeile       = 0; // on the page
    std::int64_t              Stelle      = 0; // in the text control, in front of the line
    std::size_t               Farbe_Jetzt = 0;
};

// The colours ascend, and so do the lines.
std::vector<Farbstelle_T> Textdruck::Farben_Der_Zeile(std::int64_t Anfang, std::int64_t Laenge)
{
    std::vector<Farbstelle_T> Stellen;
    while (Farbe_Jetzt < Farben.size() &&
           Farben[Farbe_Jetzt].Anfang + Farben[Farbe_Jetzt].Laenge <= Anfang)
        ++Farbe_Jetzt;
    for (std::size_t i = Farbe_Jetzt; i < Farben.size() && Farben[i].Anfang < Anfang + Laenge;
         ++i) {
        Farbstelle_T       s    = Farben[i];
        const std::int64_t Ende = std::min(s.Anfang + s.Laenge, Anfang + Laenge);
        s.Anfang                = std::max(s.Anfang, Anfang);
        s.Laenge                = Ende - s.Anfang;
        s.Anfang -= Anfang;
        Stellen.push_back(s);
    }
    return Stellen;
}

void Textdruck::Seite_Schliessen()
{
    Leerzeilen_Drucken(Auf_Seite - Zeile);
    Drucken(Text_Fuss(Kopf, Seite));
}

// A full page makes room for the next line.
bool Textdruck::Platz_Schaffen()
{
    if (Zeile < Auf_Seite)
        return true;
    Seite_Schliessen();
    ++Seite;
    Zeile = 0;
    return Plattform.Druck->Neue_Seite();
}

void Textdruck::Zeile_Drucken(std::string_view Inhalt)
{
    const std::int64_t Laenge = Stellen_Im(Inhalt);
    Drucken(Inhalt, Farben_Der_Zeile(Stelle, Laenge));
    ++Zeile;
    Stelle += Laenge + 2;
}

bool Textdruck::Laufen(Druckfortgang& Lauf)
{
    std::size_t Anfang = 0;
    while (Anfang <= Text.size()) {
        const std::size_t Ende = std::min(Text.find("\r\n", Anfang), Text.size());
        if (Ende == Text.size() && Ende == Anfang && Anfang > 0)
            break; // a line end closes the last line, no empty one follows
        if (!Lauf.Weiter(Anfang, Text.size()) || !Platz_Schaffen())
            return false;
        Zeile_Drucken(std::string_view(Text).substr(Anfang, Ende - Anfang));
        Anfang = Ende + 2;
    }
    Seite_Schliessen();
    return true;
}

Textdruck Textdruck_Vorbereiten()
{
    const Textfeld&    Edit = *Plattform.Edit;
    const Textstelle_T Auswahl =
        Druckauftrag.Markierung ? Edit.Auswahl() : Textstelle_T{0, Edit.Laenge()};
    std::vector<Farbstelle_T> Farben = Edit.Farben(Auswahl);
    for (Farbstelle_T& f : Farben)
        f.Anfang -= Auswahl.Anfang;
    return {Druckauftrag.Markierung ? Edit.Auswahl_Text_UTF8() : Edit.Text_UTF8(),
            std::move(Farben)};
}

Schrift_T Schrift_Des_Textes()
{
    const auto Platz = static_cast<std::size_t>(Schrift_Edit);
    return Schriften[Platz];
}

} // namespace

void Text_Drucken()
{
    const Edit_Ruhe Ruhe;
    Druckfortgang   Lauf;
    Plattform.Druck->Schrift(Schrift_Des_Textes());
    Druckauftrag.Ganz = Textdruck_Vorbereiten().Laufen(Lauf);
}

// --- the commands ---

namespace {

// What a printout that didn't fail lacks.
void Mangel_Hinweisen()
{
    const std::string n = std::to_string(Druckauftrag.Zu_Breit);
    if (!Druckauftrag.Ganz)
        Plattform.Box->Hinweisen(
            In_Sprache({"Das Drucken wurde abgebrochen.", "Printing was cancelled."}));
    else if (Druckauftrag.Zu_Breit > 0)
        Plattform.Box->Hinweisen(In_Sprache(
            {"Gedruckt. Für das Papier zu breite Zeilen, deren Ende fehlen kann: " + n + ".",
             "Printed. Lines too wide for the paper, whose ends may be missing: " + n + "."}));
}

void Dokument_Drucken()
{
    Druckauftrag.Ganz     = false;
    Druckauftrag.Zu_Breit = 0;
    Hex_Schrift_Setzen();
    if (Menue("MNU_Hex").Haken)
        Hex_Drucken();
    else if (Menue("MNU_MC").Haken)
        Text_Drucken();
}

} // namespace

void MNU_PrinterConfig_Click() { Plattform.Druck->Einrichten(); }

void MNU_PrintDialog_Click()
{
    Druckwahl_T Wahl;
    Wahl.Markierung_Anbieten = Menue("MNU_MC").Haken && Plattform.Edit->Auswahl().Laenge > 0;
    if (!Plattform.Druck->Waehlen(Wahl))
        return;
    Druckauftrag.Markierung = Wahl.Markierung && Wahl.Markierung_Anbieten;
    if (!Plattform.Druck->Beginnen(Datei_Name))
        return;
    Dokument_Drucken();
    if (Plattform.Druck->Beenden(Druckauftrag.Ganz))
        Mangel_Hinweisen();
}

} // namespace varnholt
