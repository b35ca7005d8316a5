// Looking at the simulated board, and handling it.
#include "programmer/Board_Ansicht.h"
#include "programmer/Baustein.h"

#include "core/checksum.h"
#include "core/commands.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Geraete.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Simulierte_EEPROMs.h"
#include "programmer/Simulierter_Tessel2.h"
#include "programmer/Simuliertes_Flash.h"
#include "programmer/Special.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>

namespace varnholt {
namespace {

constexpr int Gezeigte_Bytes = 16;

Simuliertes_Board* Das_Board()
{
    return dynamic_cast<Simuliertes_Board*>(Port_Einrichtung.Treiber.get());
}

Simulierter_Baustein* Der_Baustein()
{
    return Das_Board() != nullptr ? Das_Board()->Baustein() : nullptr;
}

Simuliertes_MC_Board* Das_MC_Board() { return dynamic_cast<Simuliertes_MC_Board*>(Das_Board()); }

// Null for a device of another kind.
Simuliertes_EEPROM* Das_EEPROM() { return dynamic_cast<Simuliertes_EEPROM*>(Der_Baustein()); }

Board_Fehler* Die_Fehler()
{
    if (auto* e = dynamic_cast<Simulierter_Eprommer*>(Das_Board()))
        return &e->Fehler;
    return Das_MC_Board() != nullptr ? &Das_MC_Board()->Fehler : nullptr;
}

std::string Loesch_Typ()
{
    return IC_Nummer >= 0 ? Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].E_Typ
                          : std::string{};
}

// ---- the faults ----

constexpr double Nie = 1e9; // times as long as a sound device: no erase lasts that

bool Hat_Board() { return Die_Fehler() != nullptr; }
bool Hat_MC() { return Das_MC_Board() != nullptr; }

bool Elektrisch_Loeschbar()
{
    const std::string Typ = Loesch_Typ();
    return Der_Baustein() != nullptr && (Typ == "28C" || Typ == "28F" || Typ == "27SF" || Hat_MC());
}

bool Speichert_Selbst() { return Das_EEPROM() != nullptr && Das_EEPROM()->Braucht_Zeit(); }
bool Hat_Seiten() { return Das_EEPROM() != nullptr && Das_EEPROM()->Seiten_Bytes() > 1; }
bool Ist_27SF() { return dynamic_cast<Simuliertes_27SF*>(Der_Baustein()) != nullptr; }

// An 89S part doesn't tell its voltage, and there is no such one.
bool Kann_5V()
{
    auto* t = dynamic_cast<Simulierter_Tessel2*>(Das_Board());
    return t != nullptr && t->Im_Sockel && t->Im_Sockel->Sperre != Sperr_Art::SII;
}

bool Hat_Adresse(std::int32_t Adresse)
{
    const Simulierter_Baustein* b = Der_Baustein();
    return b != nullptr && Adresse >= 0 && static_cast<std::size_t>(Adresse) < b->Inhalt.size();
}

struct Stoerung_T {
    bool (*Moeglich)();
    bool (*Ist)(); // these two only when it is possible
    void (*Setzen)(bool An);
};

// clang-format off
constexpr std::array<Stoerung_T, Board_Stoerungen> Stoerungen = {{
    {Hat_Board, [] { return Die_Fehler()->Tot; },
                [](bool An) { Die_Fehler()->Tot = An; }},
    {Hat_Board, [] { return Die_Fehler()->Baustein_Stumm; },
                [](bool An) { Die_Fehler()->Baustein_Stumm = An; }},
    {Hat_Board, [] { return (Die_Fehler()->Klemmt_Auf_0 & 1) != 0; },
                [](bool An) { Die_Fehler()->Klemmt_Auf_0 = An ? 1 : 0; }},
    {Hat_Board, [] { return (Die_Fehler()->Klemmt_Auf_1 & 128) != 0; },
                [](bool An) { Die_Fehler()->Klemmt_Auf_1 = An ? 128 : 0; }},
    {Hat_MC,    [] { return Das_MC_Board()->Fehler.Bereit_Klemmt; },
                [](bool An) { Das_MC_Board()->Fehler.Bereit_Klemmt = An; }},
    {Hat_MC,    [] { return Das_MC_Board()->Fehler.Falsche_Kennung; },
                [](bool An) { Das_MC_Board()->Fehler.Falsche_Kennung = An; }},
    {Elektrisch_Loeschbar,
                [] { return Der_Baustein()->Loesch_Faktor > 1; },
                [](bool An) { Der_Baustein()->Loesch_Faktor = An ? Nie : 1; }},
    {Speichert_Selbst,
                [] { return Das_EEPROM()->Traegheit > 1; },
                [](bool An) { Das_EEPROM()->Traegheit = An ? Langsam_Faktor : 1; }},
    {Ist_27SF,  [] { return Die_Fehler()->Draht_Vergessen; },
                [](bool An) { Die_Fehler()->Draht_Vergessen = An; }},
    {Kann_5V,   [] { return Das_MC_Board()->Im_Sockel->Spannung == 5; },
                [](bool An) { Das_MC_Board()->Im_Sockel->Spannung = An ? 5 : 12; }},
}};
// clang-format on

const Stoerung_T& Zeile(Board_Stoerung Welche)
{
    return Stoerungen[static_cast<std::size_t>(Welche)];
}

// What the window says of one that is on, the most serious first.
struct Stoerung_Text_T {
    Board_Stoerung Welche;
    Text_Paar      Text;
};

const std::array<Stoerung_Text_T, 7> Stoerung_Texte = {{
    {Board_Stoerung::D0_Auf_0, {"Eine Datenleitung hängt fest.", "A data line is stuck."}},
    {Board_Stoerung::D7_Auf_1, {"Eine Datenleitung hängt fest.", "A data line is stuck."}},
    {Board_Stoerung::Falsche_Kennung,
     {"Das IC gibt eine falsche Signatur: es wird nicht erkannt.",
      "The IC gives a wrong signature: it isn't recognised."}},
    {Board_Stoerung::Nicht_Bereit,
     {"Die Bereit-Leitung bleibt aus.", "The ready line never comes."}},
    {Board_Stoerung::Langsam, {"Das IC speichert zu langsam.", "The IC takes too long to store."}},
    {Board_Stoerung::Nicht_Loeschbar,
     {"Das IC lässt sich nicht löschen.", "The IC can't be erased."}},
    {Board_Stoerung::Draht_Vergessen,
     {"Der Draht zum Löschen wird nicht umgesteckt.", "The wire for the erase isn't moved."}},
}};

// ---- what is told ----

std::string Benutzt_Text(const std::vector<std::uint8_t>& Inhalt)
{
    const auto Belegt = [](std::uint8_t b) { return b != 0xFF; };
    const auto Erste  = std::find_if(Inhalt.begin(), Inhalt.end(), Belegt);
    if (Erste == Inhalt.end())
        return In_Sprache({"leer, alles FFh", "empty, all FFh"});
    const auto Letzte = std::find_if(Inhalt.rbegin(), Inhalt.rend(), Belegt);
    return fmt::format("{:X}h - {:X}h",
                       Erste - Inhalt.begin(),
                       Inhalt.size() - 1 - static_cast<std::size_t>(Letzte - Inhalt.rbegin()));
}

std::string Bytes_Text(const std::vector<std::uint8_t>& Inhalt)
{
    std::string Text;
    for (std::size_t i = 0; i < std::min<std::size_t>(Inhalt.size(), Gezeigte_Bytes); ++i)
        Text += fmt::format("{}{:02X}", i == 0 ? "" : " ", Inhalt[i]);
    return Text;
}

std::string Stellen_Text(const Simulierter_Baustein& Baustein)
{
    const std::size_t n = Baustein.Gestoerte_Stellen();
    return n == 0 ? In_Sprache({"keine", "none"}) : std::to_string(n);
}

std::string Board_Name()
{
    if (dynamic_cast<Simulierter_Eprommer*>(Das_Board()) != nullptr)
        return "Eprommer";
    return dynamic_cast<Simulierter_Tessel2*>(Das_Board()) != nullptr ? "Tessel2" : "Tessel1";
}

std::string Lage_Text(const Simulierter_Baustein* Baustein)
{
    if (Board_Gestoert(Board_Stoerung::Kein_Strom))
        return In_Sprache({"Das Board hat keinen Strom.", "The board has no power."});
    if (Baustein == nullptr || Board_Gestoert(Board_Stoerung::Sockel_Leer))
        return In_Sprache({"Der Sockel ist leer.", "The socket is empty."});
    if (Hat_MC() && Baustein->Sperr_Stufe >= 3)
        return In_Sprache({"Die Sperrstufe verhindert das Lesen: das IC zeigt überall FFh.",
                           "The lock level prevents reading: the IC shows FFh everywhere."});
    for (const Stoerung_Text_T& t : Stoerung_Texte)
        if (Board_Gestoert(t.Welche))
            return In_Sprache(t.Text);
    return {};
}

} // namespace

Board_Bild Board_Ansehen()
{
    Board_Bild         b;
    Simuliertes_Board* Board = Das_Board();
    b.Simuliert              = Board != nullptr;
    if (!b.Simuliert)
        return b;
    b.Board                              = Board_Name();
    b.Ist_MC                             = Hat_MC();
    const Simulierter_Baustein* Baustein = Board->Baustein();
    b.Lage                               = Lage_Text(Baustein);
    b.Hat_Baustein = Baustein != nullptr && !Board_Gestoert(Board_Stoerung::Sockel_Leer);
    if (!b.Hat_Baustein)
        return b;
    b.Baustein = fmt::format(
        "{}, {} {}", IC_Menue_Name(), Baustein->Inhalt.size(), In_Sprache({"Bytes", "bytes"}));
    b.Bytes        = Bytes_Text(Baustein->Inhalt);
    b.Benutzt      = Benutzt_Text(Baustein->Inhalt);
    b.Pruefsumme   = fmt::format("{:08X}", CRC_32(Baustein->Inhalt));
    b.Stellen      = Stellen_Text(*Baustein);
    b.UV_Loeschbar = Loesch_Typ() == "UV";
    b.Hat_Seiten   = Hat_Seiten();
    return b;
}

bool Board_Stoerung_Moeglich(Board_Stoerung Welche) { return Zeile(Welche).Moeglich(); }

bool Board_Gestoert(Board_Stoerung Welche)
{
    return Board_Stoerung_Moeglich(Welche) && Zeile(Welche).Ist();
}

void Board_Stoeren(Board_Stoerung Welche, bool An)
{
    if (Board_Stoerung_Moeglich(Welche))
        Zeile(Welche).Setzen(An);
}

void Board_Neuer_Baustein()
{
    if (Das_Board() == nullptr)
        return;
    Port_Neu_Oeffnen();
}

void Board_UV_Loeschen()
{
    if (Der_Baustein() != nullptr)
        Der_Baustein()->Loeschen();
}

bool Board_Tote_Zelle(std::int32_t Adresse)
{
    if (!Hat_Adresse(Adresse))
        return false;
    Der_Baustein()->Tote_Zelle(static_cast<std::uint32_t>(Adresse), 0xFF);
    return true;
}

bool Board_Schwache_Zelle(std::int32_t Adresse)
{
    if (!Hat_Adresse(Adresse))
        return false;
    Der_Baustein()->Schwache_Zelle(static_cast<std::uint32_t>(Adresse), Schwache_Pulse);
    return true;
}

bool Board_Schlechte_Seite(std::int32_t Adresse)
{
    if (!Hat_Adresse(Adresse) || !Hat_Seiten())
        return false;
    Das_EEPROM()->Schlechte_Seite(
        static_cast<std::uint32_t>(Adresse / Das_EEPROM()->Seiten_Bytes()),
        std::numeric_limits<int>::max());
    return true;
}

Text_Paar Board_Laden(const std::string& Datei)
{
    return Das_Board() == nullptr ? Text_Paar{} : Sockel_Laden(*Das_Board(), Pfad_Aus_Text(Datei));
}

Text_Paar Board_Sichern(const std::string& Datei)
{
    return Das_Board() == nullptr ? Text_Paar{}
                                  : Sockel_Speichern(*Das_Board(), Pfad_Aus_Text(Datei));
}

void MNU_EEprommer_Click() { Plattform.Fenster->Formular_Zeigen(Formular::F_Board); }

} // namespace varnholt
