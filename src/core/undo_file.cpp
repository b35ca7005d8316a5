// Snapshots as files. Numbers are written in pieces of seven bits, the lowest first; a colour's
// place counts from the end of the one before, so that most colours take five bytes.
#include "core/undo_file.h"

#include "files/Dateizugriff.h"

#include <cstdint>
#include <fstream>
#include <limits>

namespace varnholt {
namespace {

constexpr std::string_view Kennung             = "Varnholt undo 1\n";
constexpr std::size_t      Pruefsumme_Bytes    = 8;
constexpr std::uintmax_t   Aufnahme_Hoechstens = std::uintmax_t{1} << 30; // bytes of a file

// FNV-1a, over pieces of eight bytes where there are eight.
std::uint64_t Pruefsumme(std::string_view Bytes)
{
    constexpr std::uint64_t Faktor = 0x100000001B3;
    std::uint64_t           Summe  = 0xCBF29CE484222325;
    while (!Bytes.empty()) {
        std::uint64_t     Stueck = 0;
        const std::size_t n      = Bytes.copy(reinterpret_cast<char*>(&Stueck), sizeof Stueck);
        Summe                    = (Summe ^ Stueck ^ (Summe >> 32)) * Faktor;
        Bytes.remove_prefix(n);
    }
    return Summe;
}

void Zahl_Anhaengen(std::string& Ziel, std::uint64_t Zahl)
{
    for (; Zahl > 0x7F; Zahl >>= 7)
        Ziel += static_cast<char>(0x80 | (Zahl & 0x7F));
    Ziel += static_cast<char>(Zahl);
}

// Takes a number off the front; empty when there is none below 2^63.
std::optional<std::int64_t> Zahl_Nehmen(std::string_view& Bytes)
{
    std::uint64_t Zahl = 0;
    for (int Bits = 0; Bits < 63 && !Bytes.empty(); Bits += 7) {
        const auto Byte = static_cast<std::uint8_t>(Bytes.front());
        Bytes.remove_prefix(1);
        Zahl |= std::uint64_t{Byte & 0x7FU} << Bits;
        if (Byte < 0x80)
            return static_cast<std::int64_t>(Zahl);
    }
    return std::nullopt;
}

void Farben_Anhaengen(std::string& Ziel, const std::vector<Farbstelle_T>& Farben)
{
    std::int64_t Ende = 0;
    for (const Farbstelle_T& f : Farben) {
        Zahl_Anhaengen(Ziel, static_cast<std::uint64_t>(f.Anfang - Ende));
        Zahl_Anhaengen(Ziel, static_cast<std::uint64_t>(f.Laenge));
        Zahl_Anhaengen(Ziel, static_cast<std::uint32_t>(f.Farbe));
        Ende = f.Anfang + f.Laenge;
    }
}

// Places are held below a bound: in UTF-8 a text has at least half as many bytes as the logic
// counts characters, also where a line end of one byte counts as two.
std::optional<std::vector<Farbstelle_T>> Farben_Nehmen(std::string_view Bytes, std::int64_t Grenze)
{
    std::vector<Farbstelle_T> Farben;
    std::int64_t              Ende = 0;
    while (!Bytes.empty()) {
        const auto Abstand = Zahl_Nehmen(Bytes);
        const auto Laenge  = Zahl_Nehmen(Bytes);
        const auto Farbe   = Zahl_Nehmen(Bytes);
        if (!Abstand || !Laenge || !Farbe || *Farbe > std::numeric_limits<std::uint32_t>::max() ||
            *Abstand > Grenze - Ende || *Laenge > Grenze - Ende - *Abstand)
            return std::nullopt;
        Farben.push_back({Ende + *Abstand,
                          *Laenge,
                          static_cast<std::int32_t>(static_cast<std::uint32_t>(*Farbe))});
        Ende += *Abstand + *Laenge;
    }
    return Farben;
}

std::string Summe_Als_Bytes(std::string_view Inhalt)
{
    const std::uint64_t Summe = Pruefsumme(Inhalt);
    return {reinterpret_cast<const char*>(&Summe), sizeof Summe};
}

} // namespace

std::string Aufnahme_Verpacken(const Momentaufnahme_T& Aufnahme)
{
    constexpr std::size_t Bytes_Je_Farbe = 6; // as most of them take
    std::string           Bytes(Kennung);
    Bytes.reserve(64 + Aufnahme.Text.size() + Aufnahme.Farben.size() * Bytes_Je_Farbe);
    Bytes.append(Pruefsumme_Bytes, '\0');
    Zahl_Anhaengen(Bytes, Aufnahme.Text.size());
    Bytes += Aufnahme.Text;
    Farben_Anhaengen(Bytes, Aufnahme.Farben);
    const std::size_t Kopf = Kennung.size() + Pruefsumme_Bytes;
    Bytes.replace(
        Kennung.size(), Pruefsumme_Bytes, Summe_Als_Bytes(std::string_view(Bytes).substr(Kopf)));
    return Bytes;
}

std::optional<Momentaufnahme_T> Aufnahme_Auspacken(std::string_view Bytes)
{
    if (!Bytes.starts_with(Kennung) || Bytes.size() < Kennung.size() + Pruefsumme_Bytes)
        return std::nullopt;
    Bytes.remove_prefix(Kennung.size());
    const std::string_view Summe = Bytes.substr(0, Pruefsumme_Bytes);
    Bytes.remove_prefix(Pruefsumme_Bytes);
    if (Summe != Summe_Als_Bytes(Bytes))
        return std::nullopt;
    const auto Laenge = Zahl_Nehmen(Bytes);
    if (!Laenge || static_cast<std::uint64_t>(*Laenge) > Bytes.size())
        return std::nullopt;
    const auto n      = static_cast<std::size_t>(*Laenge);
    auto       Farben = Farben_Nehmen(Bytes.substr(n), 2 * *Laenge);
    if (!Farben)
        return std::nullopt;
    return Momentaufnahme_T{std::string(Bytes.substr(0, n)), std::move(*Farben)};
}

bool Aufnahme_Schreiben(const std::filesystem::path& Datei, const Momentaufnahme_T& Aufnahme)
{
    const std::string Bytes = Aufnahme_Verpacken(Aufnahme);
    std::ofstream     Strom(Datei, std::ios::binary | std::ios::trunc);
    Strom.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    Strom.close();
    return !Strom.fail();
}

std::optional<Momentaufnahme_T> Aufnahme_Lesen(const std::filesystem::path& Datei)
{
    const auto Bytes = Datei_Lesen(Datei, Aufnahme_Hoechstens);
    return Bytes ? Aufnahme_Auspacken(*Bytes) : std::nullopt;
}

} // namespace varnholt
