// Values on the command line.
#include "cli/Argumente.h"

#include "cli/Konsole.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t Eingabe_Hoechstens = std::uintmax_t{64} << 20;

// Copies a stream into a file; the text tells what went wrong, and is empty when nothing did.
std::string Sammeln(const std::string& Quelle, const fs::path& Ziel)
{
    std::ifstream  Datei_Ein(Quelle == "-" ? "/dev/stdin" : Quelle, std::ios::binary);
    std::ofstream  Datei(Ziel, std::ios::binary);
    std::uintmax_t Gesamt = 0;
    char           Puffer[65536];
    while (Datei_Ein.read(Puffer, sizeof Puffer) || Datei_Ein.gcount() > 0) {
        Gesamt += static_cast<std::uintmax_t>(Datei_Ein.gcount());
        if (Gesamt > Eingabe_Hoechstens)
            return Quelle + ": more than 64 MiB";
        Datei.write(Puffer, Datei_Ein.gcount());
    }
    if (Datei_Ein.bad())
        return Quelle + ": can't be read";
    return Datei.flush() ? std::string{} : Quelle + ": there is no room for a copy";
}

fs::path Eigener_Ordner()
{
    std::error_code Fehler;
    std::string     Vorlage = (fs::temp_directory_path(Fehler) / "varnholt-XXXXXX").string();
    return mkdtemp(Vorlage.data()) != nullptr ? fs::path(Vorlage) : fs::path{};
}

bool Ist_Strom(const std::string& Name, Strom_Datei::Richtung Wohin)
{
    std::error_code Fehler;
    return Name == "-" || (Wohin == Strom_Datei::Richtung::Eingabe && fs::is_fifo(Name, Fehler));
}

} // namespace

std::optional<std::int64_t> Lange_Zahl_Von(std::string_view Text)
{
    int Basis = 10;
    if (Text.starts_with("0x") || Text.starts_with("0X")) {
        Basis = 16;
        Text.remove_prefix(2);
    } else if (Text.ends_with('h') || Text.ends_with('H')) {
        Basis = 16;
        Text.remove_suffix(1);
    }
    std::int64_t Wert      = 0;
    const char*  Schluss   = Text.data() + Text.size();
    const auto [Ende, Art] = std::from_chars(Text.data(), Schluss, Wert, Basis);
    if (Text.empty() || Art == std::errc::invalid_argument || Ende != Schluss ||
        Text.front() == '-')
        return std::nullopt;
    return Art == std::errc::result_out_of_range ? std::numeric_limits<std::int64_t>::max() : Wert;
}

std::optional<std::int32_t> Zahl_Von(std::string_view Text)
{
    constexpr std::int64_t Hoechste = std::numeric_limits<std::int32_t>::max();
    const auto             Wert     = Lange_Zahl_Von(Text);
    return Wert ? std::optional(static_cast<std::int32_t>(std::min(*Wert, Hoechste)))
                : std::nullopt;
}

Datei_Mit_Adresse Datei_Mit_Adresse_Von(const std::string& Text)
{
    const std::size_t Stelle = Text.rfind('@');
    if (Stelle == std::string::npos || Stelle == 0)
        return {Text, {}};
    const auto Adresse = Zahl_Von(std::string_view(Text).substr(Stelle + 1));
    if (!Adresse)
        return {Text, {}};
    return {Text.substr(0, Stelle), Adresse};
}

Strom_Datei::Strom_Datei(const std::string& Name, Richtung Wohin) : Pfad_(Name)
{
    if (!Ist_Strom(Name, Wohin))
        return;
    Ordner_ = Eigener_Ordner();
    Pfad_   = (Ordner_ / "stream").string();
    std::string Fehler;
    if (Ordner_.empty())
        Fehler = Name + ": there is no folder for temporary files";
    else if (Wohin == Richtung::Eingabe)
        Fehler = Sammeln(Name, Pfad_);
    Ist_Bereit = Fehler.empty();
    if (!Ist_Bereit)
        Auf_Fehlerausgabe(Fehler);
}

Strom_Datei::~Strom_Datei()
{
    std::error_code Fehler;
    if (!Ordner_.empty())
        fs::remove_all(Ordner_, Fehler);
}

bool Strom_Datei::Ausgeben() const
{
    if (Ordner_.empty())
        return true;
    std::ifstream Datei(Pfad_, std::ios::binary);
    if (Datei.peek() != std::ifstream::traits_type::eof())
        std::cout << Datei.rdbuf();
    return static_cast<bool>(std::cout.flush());
}

} // namespace varnholt
