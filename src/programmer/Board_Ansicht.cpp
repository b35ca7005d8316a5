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
#include "programmer/Simuliertes_MC_Board.h"
#include "programmer/Special.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {
namespace {

constexpr int Gezeigte_Bytes = 16;

Simuliertes_Board* Das_Board()
{
    return dynamic_cast<Simuliertes_Board*>(Port_Einrichtung.Treiber.get());
}

Board_Fehler* Die_Fehler()
{
    if (auto* e = dynamic_cast<Simulierter_Eprommer*>(Das_Board()))
        return &e->Fehler;
    auto* m = dynamic_cast<Simuliertes_MC_Board*>(Das_Board());
    return m != nullptr ? &m->Fehler : nullptr;
}

MC_Fehler* Die_MC_Fehler()
{
    auto* m = dynamic_cast<Simuliertes_MC_Board*>(Das_Board());
    return m != nullptr ? &m->Fehler : nullptr;
}

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

std::string Board_Name()
{
    const int Board = IC_Nummer < 0
                          ? Board_Nr_Eprommer
                          : Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].Programmer;
    return Board == Board_Nr_Eprommer  ? "Eprommer"
           : Board == Board_Nr_Tessel2 ? "Tessel2"
                                       : "Tessel1";
}

std::string Lage_Text(const Simulierter_Baustein* Baustein)
{
    if (Board_Gestoert(Board_Stoerung::Kein_Strom))
        return In_Sprache({"Das Board hat keinen Strom.", "The board has no power."});
    if (Baustein == nullptr || Board_Gestoert(Board_Stoerung::Sockel_Leer))
        return In_Sprache({"Der Sockel ist leer.", "The socket is empty."});
    if (Baustein->Sperr_Stufe >= 3)
        return In_Sprache({"Die Sperrstufe verhindert das Lesen: das IC zeigt überall FFh.",
                           "The lock level prevents reading: the IC shows FFh everywhere."});
    if (Board_Gestoert(Board_Stoerung::D0_Auf_0) || Board_Gestoert(Board_Stoerung::D7_Auf_1))
        return In_Sprache({"Eine Datenleitung hängt fest.", "A data line is stuck."});
    if (Board_Gestoert(Board_Stoerung::Falsche_Kennung))
        return In_Sprache({"Das IC gibt eine falsche Signatur: es wird nicht erkannt.",
                           "The IC gives a wrong signature: it isn't recognised."});
    if (Board_Gestoert(Board_Stoerung::Nicht_Bereit))
        return In_Sprache({"Die Bereit-Leitung bleibt aus.", "The ready line never comes."});
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
    b.Ist_MC                             = Die_MC_Fehler() != nullptr;
    const Simulierter_Baustein* Baustein = Board->Baustein();
    b.Lage                               = Lage_Text(Baustein);
    b.Hat_Baustein = Baustein != nullptr && !Board_Gestoert(Board_Stoerung::Sockel_Leer);
    if (!b.Hat_Baustein)
        return b;
    b.Baustein = fmt::format(
        "{}, {} {}", IC_Menue_Name(), Baustein->Inhalt.size(), In_Sprache({"Bytes", "bytes"}));
    b.Bytes      = Bytes_Text(Baustein->Inhalt);
    b.Benutzt    = Benutzt_Text(Baustein->Inhalt);
    b.Pruefsumme = fmt::format("{:08X}", CRC_32(Baustein->Inhalt));
    b.UV_Loeschbar =
        IC_Nummer >= 0 && Geraete_Tabelle[static_cast<std::size_t>(IC_Nummer)].E_Typ == "UV";
    return b;
}

bool Board_Gestoert(Board_Stoerung Welche)
{
    const Board_Fehler* f = Die_Fehler();
    const MC_Fehler*    m = Die_MC_Fehler();
    switch (Welche) {
    case Board_Stoerung::Kein_Strom:
        return f != nullptr && f->Tot;
    case Board_Stoerung::Sockel_Leer:
        return f != nullptr && f->Baustein_Stumm;
    case Board_Stoerung::D0_Auf_0:
        return f != nullptr && (f->Klemmt_Auf_0 & 1) != 0;
    case Board_Stoerung::D7_Auf_1:
        return f != nullptr && (f->Klemmt_Auf_1 & 128) != 0;
    case Board_Stoerung::Nicht_Bereit:
        return m != nullptr && m->Bereit_Klemmt;
    case Board_Stoerung::Falsche_Kennung:
        return m != nullptr && m->Falsche_Kennung;
    }
    return false;
}

void Board_Stoeren(Board_Stoerung Welche, bool An)
{
    Board_Fehler* f = Die_Fehler();
    MC_Fehler*    m = Die_MC_Fehler();
    if (f == nullptr)
        return;
    switch (Welche) {
    case Board_Stoerung::Kein_Strom:
        f->Tot = An;
        return;
    case Board_Stoerung::Sockel_Leer:
        f->Baustein_Stumm = An;
        return;
    case Board_Stoerung::D0_Auf_0:
        f->Klemmt_Auf_0 = An ? 1 : 0;
        return;
    case Board_Stoerung::D7_Auf_1:
        f->Klemmt_Auf_1 = An ? 128 : 0;
        return;
    case Board_Stoerung::Nicht_Bereit:
        if (m != nullptr)
            m->Bereit_Klemmt = An;
        return;
    case Board_Stoerung::Falsche_Kennung:
        if (m != nullptr)
            m->Falsche_Kennung = An;
        return;
    }
}

void Board_Neuer_Baustein()
{
    if (Das_Board() == nullptr)
        return;
    Port_Neu_Oeffnen();
}

void Board_UV_Loeschen()
{
    if (Das_Board() != nullptr && Das_Board()->Baustein() != nullptr)
        Das_Board()->Baustein()->Loeschen();
}

bool Board_Tote_Zelle(std::int32_t Adresse)
{
    Simulierter_Baustein* b = Das_Board() != nullptr ? Das_Board()->Baustein() : nullptr;
    if (b == nullptr || Adresse < 0 || static_cast<std::size_t>(Adresse) >= b->Inhalt.size())
        return false;
    b->Tote_Zelle(static_cast<std::uint32_t>(Adresse), 0xFF);
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
