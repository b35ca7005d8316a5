// The simulated boards by device, and a socket whose device is kept in a file.
#include "programmer/Simulierte_Boards.h"

#include "files/Textdatei.h"
#include "programmer/Baustein.h"
#include "programmer/Geraete.h"
#include "programmer/Simulierte_48T.h"
#include "programmer/Simulierte_EEPROMs.h"
#include "programmer/Simulierter_Tessel1.h"
#include "programmer/Simulierter_Tessel2.h"
#include "programmer/Simuliertes_Flash.h"

#include <algorithm>
#include <fmt/format.h>

#include <system_error>
#include <utility>

namespace varnholt {
namespace {

constexpr int Sperr_Stufe_Hoechste = 4;

constexpr std::int64_t Zehntel = 9; // a sound cell needs nine tenths of its nominal pulse

constexpr std::int64_t Ladefenster = 150; // microseconds, the same in all data sheets of page parts
// Microseconds that a 20-pin part takes for a byte: a quick one, the data sheets allow up to 2 ms.
constexpr std::int64_t Schreibzeit_Tessel1 = 200;

Text_Paar Falsche_Groesse(const std::filesystem::path& Datei, std::size_t Groesse)
{
    return {fmt::format("{}: Die Datei hat nicht die Größe des Bausteins ({} Bytes).",
                        Datei.string(),
                        Groesse),
            fmt::format("{}: The file doesn't have the size of the device ({} bytes).",
                        Datei.string(),
                        Groesse)};
}

Text_Paar Nicht_Lesbar(const std::filesystem::path& Datei)
{
    return {Datei.string() + ": Die Datei kann nicht gelesen werden.",
            Datei.string() + ": The file can't be read."};
}

bool Zu_Gross(const std::filesystem::path& Datei, std::uintmax_t Hoechstens)
{
    std::error_code Fehler;
    const auto      Groesse = std::filesystem::file_size(Datei, Fehler);
    return !Fehler && Groesse > Hoechstens;
}

void Inhalt_Uebernehmen(Simulierter_Baustein& Baustein, const std::string& Bytes)
{
    const std::size_t n = Baustein.Inhalt.size();
    Baustein.Fertigstellen(); // a page that is still on its way would go over the new contents
    Baustein.Vorleben_Vergessen();
    std::transform(Bytes.begin(),
                   Bytes.begin() + static_cast<std::ptrdiff_t>(n),
                   Baustein.Inhalt.begin(),
                   [](char c) { return static_cast<std::uint8_t>(c); });
    Baustein.Sperr_Stufe = Bytes.size() > n ? static_cast<std::uint8_t>(Bytes.back()) : 0;
}

// A part on the Tessel2 takes nine tenths of the time that the routine gives it: the program timing
// and, for the parts without a ready line, the millisecond behind it.
std::int64_t Schreibzeit_Tessel2(const Geraet_T& Geraet)
{
    const bool Meldet_Bereit =
        Geraet.Name == "89C55WD" || Geraet.Name == "89F54" || Geraet.Name == "89F58";
    return (std::int64_t{Geraet.P_Timing} + (Meldet_Bereit ? 0 : 1000)) * Zehntel / 10;
}

// The microcontrollers: board 3 is the Tessel2, any other the Tessel1.
std::unique_ptr<Simuliertes_Board> MC_Board_Fuer(const Geraet_T& Geraet)
{
    if (Geraet.Programmer == Board_Nr_Tessel2)
        return std::make_unique<Simulierter_Tessel2>(
            Simulierter_MC(Geraet, Schreibzeit_Tessel2(Geraet)));
    return std::make_unique<Simulierter_Tessel1>(Simulierter_MC(Geraet, Schreibzeit_Tessel1));
}

// Parts with pages. A flash part erases the whole page first, an EEPROM each byte that is loaded.
Speicher_Art_T Seiten_Art(const Geraet_T& g, std::int64_t Schreibzeit)
{
    const bool EEPROM = g.Name.find("28") != std::string::npos;
    return {std::clamp(g.Seiten_Bytes, 1, Bild_Groesse), Ladefenster, Schreibzeit, !EEPROM};
}

// An erased device of the record's family.
std::unique_ptr<Simulierter_Baustein> Baustein_Fuer(const Geraet_T& g)
{
    const std::int32_t Bytes = Nutzbare_Bytes(g);
    const std::int64_t Zeit  = std::int64_t{g.P_Timing} * Zehntel / 10;
    if (g.P_Typ.starts_with("29C"))
        return std::make_unique<Simuliertes_EEPROM>(Bytes, Seiten_Art(g, Zeit));
    if (g.Name.starts_with("48T"))
        return std::make_unique<Simulierte_48T>(Bytes);
    if (g.P_Typ.starts_with("28C"))
        return std::make_unique<Simuliertes_EEPROM>(
            Bytes, Speicher_Art_T{1, 0, g.Name.starts_with("48") ? 0 : Zeit, false});
    if (g.P_Typ.starts_with("28F"))
        return std::make_unique<Simuliertes_28F>(Bytes, Zeit);
    if (g.E_Typ == "27SF")
        return std::make_unique<Simuliertes_27SF>(Bytes, Zeit);
    return std::make_unique<Simulierter_Baustein>(Bytes, Zeit);
}

Verdrahtung_T Sockel_Fuer(const Geraet_T& g)
{
    Verdrahtung_T v = Verdrahtung_Fuer(g.R_Typ, g.P_Typ);
    v.Loesch_12V    = g.E_Typ == "28C";
    return v;
}

} // namespace

std::unique_ptr<Simuliertes_Board> Simuliertes_Board_Fuer(int Nummer)
{
    if (Nummer == -1)
        return std::make_unique<Simulierter_Eprommer>();
    const Geraet_T& Geraet = Geraet_Mit_Nummer(Nummer);
    if (Geraet.Programmer != Board_Nr_Eprommer)
        return Geraet.Name.empty() ? nullptr : MC_Board_Fuer(Geraet);
    return std::make_unique<Simulierter_Eprommer>(Sockel_Fuer(Geraet), Baustein_Fuer(Geraet));
}

Text_Paar Sockel_Laden(Simuliertes_Board& Board, const std::filesystem::path& Datei)
{
    std::error_code       Fehler;
    Simulierter_Baustein* Baustein = Board.Baustein();
    if (Baustein == nullptr || !std::filesystem::exists(Datei, Fehler))
        return {};
    const std::size_t n     = Baustein->Inhalt.size();
    const auto        Bytes = Datei_Lesen(Datei, n + 1);
    if (!Bytes)
        return Zu_Gross(Datei, n + 1) ? Falsche_Groesse(Datei, n) : Nicht_Lesbar(Datei);
    const bool Mit_Stufe =
        Bytes->size() == n + 1 && static_cast<std::uint8_t>(Bytes->back()) <= Sperr_Stufe_Hoechste;
    if (Bytes->size() != n && !Mit_Stufe)
        return Falsche_Groesse(Datei, n);
    Inhalt_Uebernehmen(*Baustein, *Bytes);
    return {};
}

Text_Paar Sockel_Speichern(Simuliertes_Board& Board, const std::filesystem::path& Datei)
{
    Simulierter_Baustein* Baustein = Board.Baustein();
    if (Baustein == nullptr)
        return {};
    Baustein->Fertigstellen();
    std::string Bytes(Baustein->Inhalt.begin(), Baustein->Inhalt.end());
    if (Baustein->Sperr_Stufe > 0)
        Bytes += static_cast<char>(static_cast<std::uint8_t>(Baustein->Sperr_Stufe));
    std::string Grund;
    if (Datei_Schreiben(Datei, Bytes, Grund))
        return {};
    return {Datei.string() + ": Die Datei kann nicht geschrieben werden: " + Grund,
            Datei.string() + ": The file can't be written: " + Grund};
}

} // namespace varnholt
