// Values on the command line.
#include "cli/Argumente.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t Eingabe_Hoechstens = std::uintmax_t{64} << 20;

void Eingabe_Sammeln(const fs::path& Ziel)
{
    std::ofstream  Datei(Ziel, std::ios::binary);
    char           Puffer[65536];
    std::uintmax_t Gesamt = 0;
    while (Gesamt <= Eingabe_Hoechstens) {
        const std::size_t n = std::fread(Puffer, 1, sizeof Puffer, stdin);
        if (n == 0)
            return;
        Datei.write(Puffer, static_cast<std::streamsize>(n));
        Gesamt += n;
    }
}

fs::path Eigener_Ordner()
{
    std::string Vorlage = (fs::temp_directory_path() / "varnholt-XXXXXX").string();
    return mkdtemp(Vorlage.data()) != nullptr ? fs::path(Vorlage) : fs::path{};
}

} // namespace

std::optional<std::int32_t> Zahl_Von(std::string_view Text)
{
    int Basis = 10;
    if (Text.starts_with("0x") || Text.starts_with("0X")) {
        Basis = 16;
        Text.remove_prefix(2);
    } else if (Text.ends_with('h') || Text.ends_with('H')) {
        Basis = 16;
        Text.remove_suffix(1);
    }
    std::int32_t Wert      = 0;
    const auto [Ende, Art] = std::from_chars(Text.data(), Text.data() + Text.size(), Wert, Basis);
    if (Text.empty() || Art != std::errc{} || Ende != Text.data() + Text.size() || Wert < 0)
        return std::nullopt;
    return Wert;
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
    if (Name != "-")
        return;
    Ordner_ = Eigener_Ordner();
    Pfad_   = (Ordner_ / (Wohin == Richtung::Eingabe ? "stdin" : "stdout")).string();
    if (Wohin == Richtung::Eingabe)
        Eingabe_Sammeln(Pfad_);
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
