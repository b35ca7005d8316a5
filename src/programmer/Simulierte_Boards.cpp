// The simulated boards by device, and a socket whose device is kept in a file.
#include "programmer/Simulierte_Boards.h"

#include "files/Textdatei.h"
#include "programmer/Baustein.h"
#include "programmer/Geraete.h"

#include <algorithm>
#include <fmt/format.h>

#include <system_error>
#include <utility>

namespace varnholt {
namespace {

constexpr std::int64_t Zehntel = 9; // a sound cell needs nine tenths of its nominal pulse

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
    std::transform(Bytes.begin(),
                   Bytes.begin() + static_cast<std::ptrdiff_t>(n),
                   Baustein.Inhalt.begin(),
                   [](char c) { return static_cast<std::uint8_t>(c); });
    Baustein.Sperr_Stufe = Bytes.size() > n ? static_cast<std::uint8_t>(Bytes.back()) : 0;
}

} // namespace

std::unique_ptr<Simuliertes_Board> Simuliertes_Board_Fuer(int Nummer)
{
    if (Nummer == -1)
        return std::make_unique<Simulierter_Eprommer>();
    const Geraet_T& Geraet = Geraet_Mit_Nummer(Nummer);
    if (Geraet.Programmer != Board_Nr_Eprommer)
        return nullptr;
    return std::make_unique<Simulierter_Eprommer>(
        Verdrahtung_Fuer(Geraet.R_Typ, Geraet.P_Typ),
        Simulierter_Baustein(Nutzbare_Bytes(Geraet), std::int64_t{Geraet.P_Timing} * Zehntel / 10));
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
    if (Bytes->size() != n && Bytes->size() != n + 1)
        return Falsche_Groesse(Datei, n);
    Inhalt_Uebernehmen(*Baustein, *Bytes);
    return {};
}

Text_Paar Sockel_Speichern(Simuliertes_Board& Board, const std::filesystem::path& Datei)
{
    const Simulierter_Baustein* Baustein = Board.Baustein();
    if (Baustein == nullptr)
        return {};
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
