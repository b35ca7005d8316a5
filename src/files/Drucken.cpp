// The layouts of both printouts, and the commands that send them to the printer.
#include "files/Drucken.h"

#include "core/codepage.h"
#include "core/commands.h"
#include "core/menu.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
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

constexpr std::string_view Spalten_Kopf =
    "Dez.    Hex.    .0..1..2..3..4..5..6..7..8..9..A..B..C..D..E..F  ASCII           ";

// Bytes that print as a point: a printer would take them for a command, or show nothing.
constexpr std::uint8_t Als_Punkt[] = {0, 2, 9, 10, 13, 15, 18, 32};

bool Setzt_Zeichen_Fort(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::size_t Zeichen_Anzahl(std::string_view Text)
{
    return static_cast<std::size_t>(
        std::count_if(Text.begin(), Text.end(), [](char c) { return !Setzt_Zeichen_Fort(c); }));
}

// At most that many characters from the end, where a path says most.
std::string_view Ende_Von(std::string_view Text, std::size_t Hoechstens)
{
    for (std::size_t n = Zeichen_Anzahl(Text); n > Hoechstens; --n) {
        Text.remove_prefix(1);
        while (!Text.empty() && Setzt_Zeichen_Fort(Text.front()))
            Text.remove_prefix(1);
    }
    return Text;
}

std::string Mit_Strichen(std::string Text, std::size_t Breite)
{
    const std::size_t n = Zeichen_Anzahl(Text);
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
    return {Leer(12) + Kopf.Pfad,
            In_Sprache(
                {"Datum: " + Kopf.Datum + "     Seite: " + Nummer + "     Zeit: " + Kopf.Uhrzeit,
                 "Date: " + Kopf.Datum + "     Page: " + Nummer + "     Time: " + Kopf.Uhrzeit})};
}

namespace {

Druck_Kopf Kopf_Jetzt()
{
    return {Datei_Name, Plattform.Druck->Datum(), Plattform.Druck->Uhrzeit()};
}

void Drucken(std::string_view Zeile) { Plattform.Druck->Zeile(Zeile, {}); }
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
    if (Seite > 1)
        Plattform.Druck->Neue_Seite();
    const std::vector<std::string> Rahmen = Hex_Rahmen(Kopf, Seite, Kopf_Einzug);
    Drucken("");
    Drucken(Rahmen);
    Drucken(Rahmen.front());
    Leerzeilen_Drucken(3);
    Drucken(Leer(Fuss_Einzug) + std::string(Spalten_Kopf));
}

constexpr int Hex_Seite_Zeilen = 9 + Hex_Fuss_Zeile + 3; // header, rows, footer

// Courier New 10; smaller where the sheet doesn't hold the page otherwise.
void Hex_Schrift_Setzen()
{
    constexpr int Kleinste = 5;
    for (int Groesse = 10; Groesse >= Kleinste; --Groesse) {
        Schrift_T s;
        s.Name    = "Courier New";
        s.Groesse = Groesse;
        Plattform.Druck->Schrift(s);
        if (Plattform.Druck->Zeilen_Je_Seite() >= Hex_Seite_Zeilen)
            return;
    }
}

} // namespace

void Hex_Drucken()
{
    const int        Zeilen = (Letztes_Byte() + 16) / 16;
    const Druck_Kopf Kopf   = Kopf_Jetzt();
    int              Seite  = 0;
    for (int i = 0; i < std::max(Zeilen, 1); ++i) {
        if (i % Hex_Zeilen_Je_Seite == 0)
            Hex_Kopf_Drucken(Kopf, ++Seite);
        if (i < Zeilen)
            Drucken(Hex_Druckzeile(i * 16));
    }
    Leerzeilen_Drucken(Hex_Fuss_Zeile - (Zeilen - (Seite - 1) * Hex_Zeilen_Je_Seite));
    Drucken(Hex_Rahmen(Kopf, Seite, Fuss_Einzug));
}

// --- the source text ---

namespace {

// Lines, their colours, and where the page stands.
class Textdruck {
public:
    Textdruck(std::string Text_UTF8, std::vector<Farbstelle_T> Alle_Farben)
        : Text(std::move(Text_UTF8)), Farben(std::move(Alle_Farben))
    {
    }
    void Laufen();

private:
    bool Zeile_Drucken(std::string_view Zeile);
    void Seite_Schliessen();
    void Fortschritt(std::size_t Stelle);

    std::vector<Farbstelle_T> Farben_Der_Zeile(std::int64_t Anfang, std::int64_t Laenge);

    std::string               Text;
    std::vector<Farbstelle_T> Farben;
    Druck_Kopf                Kopf        = Kopf_Jetzt();
    int                       Auf_Seite   = std::max(Plattform.Druck->Zeilen_Je_Seite() - 2, 1);
    int                       Seite       = 1;
    int                       Zeile       = 0; // on the page
    int                       Prozent     = 0;
    std::int64_t              Zeichen     = 0; // of the text, in front of the line
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

void Textdruck::Fortschritt(std::size_t Stelle)
{
    const int Neu = static_cast<int>(Stelle * 100 / std::max<std::size_t>(Text.size(), 1));
    if (Neu > Prozent) {
        Prozent = Neu;
        Plattform.Status->ProgBar(Prozent);
    }
    Plattform.Ereignisse->Eine_Runde();
}

void Textdruck::Laufen()
{
    std::size_t Anfang = 0;
    while (Anfang <= Text.size()) {
        const std::size_t Ende = std::min(Text.find("\r\n", Anfang), Text.size());
        if (Ende == Text.size() && Ende == Anfang && Anfang > 0)
            break; // a line end closes the last line, no empty one follows
        Fortschritt(Anfang);
        if (Abbruch)
            return;
        if (Zeile == Auf_Seite) {
            Seite_Schliessen();
            Plattform.Druck->Neue_Seite();
            ++Seite;
            Zeile = 0;
        }
        const std::string_view Diese  = std::string_view(Text).substr(Anfang, Ende - Anfang);
        const auto             Laenge = static_cast<std::int64_t>(Zeichen_Anzahl(Diese));
        Plattform.Druck->Zeile(Diese, Farben_Der_Zeile(Zeichen, Laenge));
        ++Zeile;
        Zeichen += Laenge + 2;
        Anfang = Ende + 2;
    }
    Seite_Schliessen();
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
    Abbruch = false;
    Plattform.Status->Oeffnen();
    Plattform.Status->Text(In_Sprache({" Text wird gedruckt...", " Printing text..."}));
    Plattform.Druck->Schrift(Schrift_Des_Textes());
    Textdruck_Vorbereiten().Laufen();
    Plattform.Status->Schliessen();
}

void MNU_PrinterConfig_Click() { Plattform.Druck->Einrichten(); }

void MNU_PrintDialog_Click()
{
    const bool  Text = Menue("MNU_MC").Haken;
    Druckwahl_T Wahl;
    Wahl.Markierung_Anbieten = Text && Plattform.Edit->Auswahl().Laenge > 0;
    if (!Plattform.Druck->Waehlen(Wahl))
        return;
    Druckauftrag.Markierung = Wahl.Markierung && Wahl.Markierung_Anbieten;
    if (!Plattform.Druck->Beginnen(Datei_Name))
        return;
    Hex_Schrift_Setzen();
    if (Menue("MNU_Hex").Haken)
        Hex_Drucken();
    else if (Text)
        Text_Drucken();
    Plattform.Druck->Beenden();
}

} // namespace varnholt
