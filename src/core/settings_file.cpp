// The settings file: one table of rows, from which reading and writing both come, and the files
// that start-up looks for.
#include "core/settings_file.h"

#include "core/messages.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "editors/Hilfe.h"
#include "files/Dateizugriff.h"
#include "programmer/Geraete.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <limits>
#include <optional>
#include <span>
#include <utility>
#include <variant>
#include <vector>

namespace varnholt {
namespace {

constexpr std::size_t Text_Hoechstens   = 4096; // bytes of a line that is taken
constexpr std::size_t Fremde_Hoechstens = 100;  // unknown settings that are kept
constexpr double      Grad_Hoechstens   = 200;  // font size, points
constexpr int         Tabellen_Zeilen   = 2 * Fenster_Anzahl * Felder_Gespeichert;

// --- values as text ---

std::string_view Ohne_Leerraum(std::string_view Text)
{
    const std::size_t a = Text.find_first_not_of(" \t");
    if (a == std::string_view::npos)
        return {};
    return Text.substr(a, Text.find_last_not_of(" \t") - a + 1);
}

// A text that fits into a line.
bool Zeilenfest(std::string_view Text)
{
    return Text.size() <= Text_Hoechstens && std::none_of(Text.begin(), Text.end(), [](char c) {
               return static_cast<std::uint8_t>(c) < 0x20;
           });
}

// A whole number with blanks around it, held within 64 bits; empty for anything else.
std::optional<std::int64_t> Zahl_Aus(std::string_view Text)
{
    Text                      = Ohne_Leerraum(Text);
    std::int64_t Wert         = 0;
    const auto [Ende, Fehler] = std::from_chars(Text.data(), Text.data() + Text.size(), Wert);
    if (Ende != Text.data() + Text.size() || Fehler == std::errc::invalid_argument)
        return std::nullopt;
    if (Fehler == std::errc::result_out_of_range)
        return Text.starts_with('-') ? std::numeric_limits<std::int64_t>::min()
                                     : std::numeric_limits<std::int64_t>::max();
    return Wert;
}

// As a text stream prints a number: a place for the sign, a blank behind.
std::string Zahl_Text(std::int64_t Wert)
{
    return (Wert < 0 ? "" : " ") + std::to_string(Wert) + " ";
}

// --- the kinds of values; Lesen is false when the line can't be used ---

struct Text_Wert {
    std::string* Ziel;
};
bool Lesen(const Text_Wert& w, std::string_view Zeile, int)
{
    if (!Zeilenfest(Zeile))
        return false;
    *w.Ziel = Zeile;
    return true;
}
std::string Schreiben(const Text_Wert& w, int) { return Zeilenfest(*w.Ziel) ? *w.Ziel : ""; }

// "0" is false, any other text true.
struct Flagge {
    bool* Ziel;
};
bool Lesen(const Flagge& w, std::string_view Zeile, int)
{
    *w.Ziel = Ohne_Leerraum(Zeile) != "0";
    return Zeilenfest(Zeile);
}
std::string Schreiben(const Flagge& w, int) { return *w.Ziel ? "-1" : "0"; }

// A number that is drawn into its range.
struct Ganzzahl {
    std::int32_t* Ziel;
    std::int32_t  Kleinste;
    std::int32_t  Groesste;
};
bool Lesen(const Ganzzahl& w, std::string_view Zeile, int)
{
    const auto z = Zahl_Aus(Zeile);
    if (!z)
        return false;
    *w.Ziel = static_cast<std::int32_t>(std::clamp<std::int64_t>(*z, w.Kleinste, w.Groesste));
    return true;
}
std::string Schreiben(const Ganzzahl& w, int) { return Zahl_Text(*w.Ziel); }

// A number of which only some values mean something; 0 does in any case.
struct Auswahl_Zahl {
    std::int32_t*               Ziel;
    std::array<std::int32_t, 3> Werte;
};
bool Lesen(const Auswahl_Zahl& w, std::string_view Zeile, int)
{
    const auto z       = Zahl_Aus(Zeile);
    const bool Bekannt = z && (*z == 0 || std::count(w.Werte.begin(), w.Werte.end(), *z) > 0);
    if (Bekannt)
        *w.Ziel = static_cast<std::int32_t>(*z);
    return Bekannt;
}
std::string Schreiben(const Auswahl_Zahl& w, int) { return Zahl_Text(*w.Ziel); }

// 24 bits.
struct Farbwert {
    std::int32_t* Ziel;
};
bool Lesen(const Farbwert& w, std::string_view Zeile, int)
{
    const auto z       = Zahl_Aus(Zeile);
    const bool Gueltig = z && *z >= 0 && *z <= 0xFFFFFF;
    if (Gueltig)
        *w.Ziel = static_cast<std::int32_t>(*z);
    return Gueltig;
}
std::string Schreiben(const Farbwert& w, int) { return Zahl_Text(*w.Ziel); }

// A truth value in words.
struct Wort {
    bool*            Ziel;
    std::string_view Ja;
    std::string_view Nein;
};
bool Lesen(const Wort& w, std::string_view Zeile, int)
{
    Zeile         = Ohne_Leerraum(Zeile);
    const bool Ja = Zeile == w.Ja;
    if (Ja || Zeile == w.Nein)
        *w.Ziel = Ja;
    // Without a font there is no style either: an empty line is as good as "no".
    return Ja || Zeile == w.Nein || Zeile.empty();
}
std::string Schreiben(const Wort& w, int) { return std::string(*w.Ziel ? w.Ja : w.Nein); }

// Font size in points, 0 for the default.
struct Grad {
    double* Ziel;
};
bool Lesen(const Grad& w, std::string_view Zeile, int)
{
    Zeile                     = Ohne_Leerraum(Zeile);
    double Wert               = 0;
    const auto [Ende, Fehler] = std::from_chars(Zeile.data(), Zeile.data() + Zeile.size(), Wert);
    if (Fehler != std::errc{} || Ende != Zeile.data() + Zeile.size())
        return Zeile.empty();
    const bool Gueltig = Wert >= 0 && Wert <= Grad_Hoechstens;
    if (Gueltig)
        *w.Ziel = std::fabs(Wert); // no minus zero
    return Gueltig;
}
std::string Schreiben(const Grad& w, int)
{
    std::array<char, 64> Puffer{};
    const auto Ende = std::to_chars(Puffer.data(), Puffer.data() + Puffer.size(), *w.Ziel).ptr;
    return " " + std::string(Puffer.data(), Ende) + " ";
}

// The window table, by place of the line: column, window, field, the last one running fastest.
struct Tabellen_Wert {};
std::int16_t& Tabellen_Ziel(int Platz)
{
    const int Fenster_Platz = Platz / Felder_Gespeichert;
    return Fenster_Wert(Fenster_Platz / Fenster_Anzahl,
                        Fenster_Platz % Fenster_Anzahl + 1,
                        static_cast<Feld>(Platz % Felder_Gespeichert));
}
bool Lesen(const Tabellen_Wert&, std::string_view Zeile, int Platz)
{
    using Grenzen = std::numeric_limits<std::int16_t>;
    const auto z  = Zahl_Aus(Zeile);
    if (!z || *z < Grenzen::min() || *z > Grenzen::max())
        return false;
    auto Wert = static_cast<std::int16_t>(*z);
    if (Platz % Felder_Gespeichert == 0 && Wert != -1)
        Wert = 0; // a truth value
    Tabellen_Ziel(Platz) = Wert;
    return true;
}
std::string Schreiben(const Tabellen_Wert&, int Platz) { return Zahl_Text(Tabellen_Ziel(Platz)); }

// Place of the form `Hilfe`: top, left, height and width with blanks between; empty: not yet known.
struct Hilfe_Platz {};
bool Lesen(const Hilfe_Platz&, std::string_view Zeile, int)
{
    std::array<int, 4> Zahlen{};
    for (int& Ziel : Zahlen) {
        Zeile = Ohne_Leerraum(Zeile);
        const auto [Ende, Fehler] =
            std::from_chars(Zeile.data(), Zeile.data() + Zeile.size(), Ziel);
        if (Fehler != std::errc{})
            return Zeile.empty() && &Ziel == Zahlen.data();
        Zeile.remove_prefix(static_cast<std::size_t>(Ende - Zeile.data()));
    }
    if (!Ohne_Leerraum(Zeile).empty())
        return false;
    Hilfe_Merken({Zahlen[0], Zahlen[1], Zahlen[2], Zahlen[3]});
    return true;
}
std::string Schreiben(const Hilfe_Platz&, int)
{
    const Lage_T      Lage = Hilfe_Lage();
    const std::string Leer = " ";
    return Lage.Hoehe <= 0 || Lage.Breite <= 0
               ? ""
               : std::to_string(Lage.Oben) + Leer + std::to_string(Lage.Links) + Leer +
                     std::to_string(Lage.Hoehe) + Leer + std::to_string(Lage.Breite);
}

struct Reserviert {};
bool        Lesen(const Reserviert&, std::string_view, int) { return true; }
std::string Schreiben(const Reserviert&, int) { return "0"; }

// --- the table of rows ---

using Wert_T = std::variant<Text_Wert,
                            Flagge,
                            Ganzzahl,
                            Auswahl_Zahl,
                            Farbwert,
                            Wort,
                            Grad,
                            Tabellen_Wert,
                            Hilfe_Platz,
                            Reserviert>;

struct Zeile_T {
    int    Nummer; // first line, from 1
    Wert_T Wert;
    int    Anzahl = 1; // lines
};

constexpr auto& o = Optionen_Werte;

// clang-format off
constexpr auto Zeilen = std::to_array<Zeile_T>({
    {1,   Text_Wert{&Dokument.Sprache}},
    {2,   Text_Wert{&Dokument.Start_Verzeichnis}},
    {3,   Text_Wert{&Dokument.Letzte_Datei[0]}},
    {4,   Text_Wert{&Dokument.Letzte_Datei[1]}},
    {5,   Text_Wert{&Dokument.Letzte_Datei[2]}},
    {6,   Tabellen_Wert{}, Tabellen_Zeilen},
    {106, Ganzzahl{&Geraete.IC_Nummer, -1, Geraete_Anzahl - 1}},
    {107, Flagge{&o.C_Brenner}},
    {108, Flagge{&o.C_IC}},
    {109, Flagge{&o.C_IC_vor_B}},
    {110, Flagge{&o.C_IC_nach_B}},
    {111, Flagge{&o.C_IC_bei_B}},
    {112, Ganzzahl{&o.Port_Basis, -1, 100000000}},
    {113, Text_Wert{&o.Schriften[Schrift_Edit].Name}},
    {114, Wort{&o.Schriften[Schrift_Edit].Fett, "BOLD", "NORMAL"}},
    {115, Wort{&o.Schriften[Schrift_Edit].Kursiv, "ITALIC", "NORMAL"}},
    {116, Grad{&o.Schriften[Schrift_Edit].Groesse}},
    {117, Text_Wert{&o.Schriften[Schrift_Spr].Name}},
    {118, Wort{&o.Schriften[Schrift_Spr].Fett, "True", "False"}},
    {119, Wort{&o.Schriften[Schrift_Spr].Kursiv, "True", "False"}},
    {120, Grad{&o.Schriften[Schrift_Spr].Groesse}},
    {121, Text_Wert{&o.Schriften[Schrift_Notiz].Name}},
    {122, Wort{&o.Schriften[Schrift_Notiz].Fett, "True", "False"}},
    {123, Wort{&o.Schriften[Schrift_Notiz].Kursiv, "True", "False"}},
    {124, Grad{&o.Schriften[Schrift_Notiz].Groesse}},
    {125, Flagge{&o.Lade_Letzte}},
    {126, Reserviert{}},
    {127, Flagge{&o.Zahlendeutung}},
    {128, Flagge{&o.No_FF}},
    {129, Flagge{&o.C_Erstelle_Listfile}},
    {130, Flagge{&o.C_keine_TAB_SM}},
    {131, Flagge{&o.C_keine_US_SM}},
    {132, Flagge{&o.O_MOV_ZQ}},
    {133, Flagge{&o.C_Auto_Binfile}},
    {134, Flagge{&o.C_Auto_Hexfile}},
    {135, Ganzzahl{&o.O_Automatik_Bef, 0, 2}},
    {136, Auswahl_Zahl{&o.Eprommer_Version, {30, 31, 32}}},
    {137, Ganzzahl{&o.Undo_Max, -1, 998}},
    {138, Farbwert{&o.Hintergrund_Farbe}},
    {139, Auswahl_Zahl{&o.Tessel2_Version, {10, 11, 12}}},
    {140, Ganzzahl{&o.Autosave_Nummer, 0, 19}},
    {141, Flagge{&o.Autosave_Zeitlich}},
    {142, Flagge{&o.Autosave_Assemblieren}},
});
// clang-format on

constexpr bool Lueckenlos()
{
    int Naechste = 1;
    for (const Zeile_T& z : Zeilen)
        if (std::exchange(Naechste, z.Nummer + z.Anzahl) != z.Nummer)
            return false;
    return Naechste == Einstellungs_Zeilen + 1;
}
static_assert(Lueckenlos());

// Settings of our own, as lines "Name=Wert" behind the others.
struct Eigene_T {
    std::string_view Name;
    Wert_T           Wert;
};
constexpr auto Eigene = std::to_array<Eigene_T>({
    {"Port_Art", Text_Wert{&o.Port_Art}},
    {"Zoom", Ganzzahl{&o.Zoom, Zoom_Mindestens, Zoom_Hoechstens}},
    {"Hauptfenster", Text_Wert{&o.Hauptfenster}},
    {"Hilfe", Hilfe_Platz{}},
});

bool Wert_Lesen(const Wert_T& w, std::string_view Zeile, int Platz)
{
    return std::visit([&](const auto& Art) { return Lesen(Art, Zeile, Platz); }, w);
}

std::string Wert_Schreiben(const Wert_T& w, int Platz)
{
    return std::visit([&](const auto& Art) { return Schreiben(Art, Platz); }, w);
}

// --- reading ---

// The lines of a text without their ends; what follows the last end is a line when it isn't empty.
std::vector<std::string_view> In_Zeilen(std::string_view Text)
{
    std::vector<std::string_view> Liste;
    while (!Text.empty()) {
        const std::size_t Ende = std::min(Text.find('\n'), Text.size());
        std::string_view  z    = Text.substr(0, Ende);
        if (z.ends_with('\r'))
            z.remove_suffix(1);
        Liste.push_back(z);
        Text.remove_prefix(std::min(Ende + 1, Text.size()));
    }
    return Liste;
}

// What every setting is before its line is read.
void Startwerte()
{
    Start_Verzeichnis.clear();
    Letzte_Datei   = {};
    Fensterlage    = {};
    IC_Nummer      = 0;
    Optionen_Werte = {};
    Port_Basis = Undo_Max = Hintergrund_Farbe = 0;
    for (const Zeile_T& z : Zeilen)
        if (const auto* f = std::get_if<Flagge>(&z.Wert))
            *f->Ziel = false;
}

// Number of lines that are missing or of no use.
int Feste_Zeilen_Lesen(std::span<const std::string_view> Text)
{
    int Schlechte = 0;
    for (const Zeile_T& z : Zeilen)
        for (int Platz = 0; Platz < z.Anzahl; ++Platz) {
            const auto i = static_cast<std::size_t>(z.Nummer + Platz - 1);
            if (i >= Text.size() || !Wert_Lesen(z.Wert, Text[i], Platz))
                ++Schlechte;
        }
    return Schlechte;
}

// One line "Name=Wert"; false when it is none.
bool Eigene_Zeile_Lesen(std::string_view Zeile)
{
    const std::size_t Gleich = Zeile.find('=');
    if (Gleich == 0 || Gleich == std::string_view::npos || !Zeilenfest(Zeile))
        return false;
    const std::string_view Name = Zeile.substr(0, Gleich);
    for (const Eigene_T& e : Eigene)
        if (e.Name == Name)
            return Wert_Lesen(e.Wert, Zeile.substr(Gleich + 1), 0);
    if (Fremde_Zeilen.size() < Fremde_Hoechstens)
        Fremde_Zeilen.emplace_back(Zeile);
    return true;
}

int Eigene_Zeilen_Lesen(std::span<const std::string_view> Text)
{
    int Schlechte = 0;
    for (std::size_t i = Einstellungs_Zeilen; i < Text.size(); ++i)
        if (!Ohne_Leerraum(Text[i]).empty() && !Eigene_Zeile_Lesen(Text[i]))
            ++Schlechte;
    return Schlechte;
}

// The background colour 0 stands only in files of a time when there were neither colour nor undo.
void Alte_Datei_Ergaenzen()
{
    if (Hintergrund_Farbe != 0)
        return;
    Undo_Max          = 100;
    Hintergrund_Farbe = 0xFFFFFF;
}

void Ein_Hauptfenster_Zeigen()
{
    const bool Hex = Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar) == -1;
    Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar) = Hex ? std::int16_t{0} : std::int16_t{-1};
}

// --- the file ---

std::filesystem::path Datei_Pfad() { return std::filesystem::path(Programm_Pfad) / "Varnholt.ini"; }

void Hinweisen(const Text_Paar& Text) { Plattform.Box->Hinweisen(In_Sprache(Text)); }

void Schaden_Melden(int Schlechte)
{
    if (Schlechte == 0)
        return;
    const std::string n = std::to_string(Schlechte);
    Hinweisen({"Varnholt.ini ist beschädigt: " + n + " Zeilen fehlen oder sind unbrauchbar.",
               "Varnholt.ini is damaged: " + n + " lines are missing or of no use."});
}

} // namespace

Einstellungs_Lage Einstellungen_Pruefen()
{
    std::error_code Fehler;
    if (!std::filesystem::exists(Datei_Pfad(), Fehler) && !Fehler)
        return Einstellungs_Lage::Fehlt;
    std::string Grund;
    const auto  Anfang = Datei_Anfang_Lesen(Datei_Pfad(), Einstellungen_Hoechstens, Grund);
    if (!Anfang)
        return Einstellungs_Lage::Vollstaendig;
    const auto Text = In_Zeilen(Anfang->Bytes);
    if (!Text.empty())
        Wert_Lesen(Zeilen[0].Wert, Text[0], 0);
    return Text.size() > 1 && Text[1] == Erststart_Marke ? Einstellungs_Lage::Erststart
                                                         : Einstellungs_Lage::Vollstaendig;
}

void Einstellungen_Laden()
{
    std::string Grund;
    const auto  Anfang = Datei_Anfang_Lesen(Datei_Pfad(), Einstellungen_Hoechstens, Grund);
    if (Anfang) {
        Schaden_Melden(Einstellungen_Lesen(Anfang->Bytes));
        return;
    }
    Erststart_Werte();
    Ein_Hauptfenster_Zeigen();
    Hinweisen({"Varnholt.ini konnte nicht gelesen werden: " + Grund,
               "Varnholt.ini could not be read: " + Grund});
}

int Einstellungen_Lesen(std::string_view Text)
{
    const auto Alle = In_Zeilen(Text);
    Startwerte();
    const int Schlechte = Feste_Zeilen_Lesen(Alle) + Eigene_Zeilen_Lesen(Alle);
    Alte_Datei_Ergaenzen();
    Ein_Hauptfenster_Zeigen();
    return Schlechte;
}

std::string Einstellungen_Schreiben()
{
    std::string Text;
    for (const Zeile_T& z : Zeilen)
        for (int Platz = 0; Platz < z.Anzahl; ++Platz)
            Text.append(Wert_Schreiben(z.Wert, Platz)).append(CRLF);
    for (const Eigene_T& e : Eigene)
        Text.append(e.Name).append("=").append(Wert_Schreiben(e.Wert, 0)).append(CRLF);
    for (const std::string& f : Fremde_Zeilen)
        Text.append(f).append(CRLF);
    return Text;
}

bool Einstellungen_Sichern(std::string& Grund)
{
    return Datei_Schreiben(Datei_Pfad(), Einstellungen_Schreiben(), Grund);
}

bool Erststart_Datei_Schreiben()
{
    std::string Grund;
    std::string Text = Sprache;
    Text.append(CRLF).append(Erststart_Marke).append(CRLF);
    if (Datei_Schreiben(Datei_Pfad(), Text, Grund))
        return true;
    Hinweisen({"Varnholt.ini konnte nicht geschrieben werden: " + Grund,
               "Varnholt.ini could not be written: " + Grund});
    return false;
}

void Erststart_Werte()
{
    Start_Verzeichnis = Erststart_Marke;
    Letzte_Datei      = {};
    Fensterlage       = {};
    IC_Nummer         = -1;
    Optionen_Werte    = {};
}

} // namespace varnholt
