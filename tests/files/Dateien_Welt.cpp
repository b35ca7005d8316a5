// Base of the file tests: folder, loading, saving and comparing with few words.
#include "files/Dateien_Welt.h"

#include "core/commands.h"
#include "files/Laden.h"
#include "files/Speichern.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdlib.h>

namespace varnholt::test {

namespace fs = std::filesystem;

Arbeitsordner::Arbeitsordner()
{
    std::string Vorlage = (fs::temp_directory_path() / "varnholt-test-XXXXXX").string();
    if (mkdtemp(Vorlage.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    Pfad = Vorlage;
    fs::permissions(Pfad, fs::perms(0755));
}

Arbeitsordner::~Arbeitsordner()
{
    std::error_code Fehler;
    fs::permissions(Pfad, fs::perms(0755), Fehler);
    fs::remove_all(Pfad, Fehler);
}

std::string Arbeitsordner::Anlegen(std::string_view Datei, std::string_view Bytes) const
{
    std::ofstream(Pfad / Datei, std::ios::binary) << Bytes;
    return Name(Datei);
}

std::vector<std::string> Arbeitsordner::Inhalt() const
{
    std::vector<std::string> Namen;
    for (const auto& Eintrag : fs::directory_iterator(Pfad))
        Namen.push_back(Eintrag.path().filename().string());
    std::sort(Namen.begin(), Namen.end());
    return Namen;
}

std::string Bytes_Von(const std::string& Name)
{
    std::ifstream Datei(Name, std::ios::binary);
    if (!Datei)
        return "<missing>";
    return {std::istreambuf_iterator<char>(Datei), {}};
}

std::vector<std::uint8_t> Als_Bytes(std::string_view Text) { return {Text.begin(), Text.end()}; }

void Dateien_Welt::Laden(std::string_view Datei, std::string_view Bytes)
{
    Dialog_Name = Ordner.Anlegen(Datei, Bytes);
    Datei_Laden();
}

void Dateien_Welt::Importieren(std::string_view Datei, std::string_view Bytes, std::int32_t Adresse)
{
    Dialog_Name = Ordner.Anlegen(Datei, Bytes);
    Datei_Importieren(Adresse);
}

std::string Dateien_Welt::Speichern(std::string_view Datei)
{
    Datei_Name = Ordner.Name(Datei);
    Datei_Speichern();
    return Bytes_Von(Datei_Name);
}

std::optional<std::int32_t> Dateien_Welt::Vergleichen(std::string_view Datei,
                                                      std::string_view Bytes)
{
    Dialog_Name = Ordner.Anlegen(Datei, Bytes);
    return Hexdaten_Vergleichen();
}

void Dateien_Welt::Setzen(std::int32_t Adresse, std::initializer_list<int> Bytes)
{
    for (const int b : Bytes)
        Hex_Daten.at(static_cast<std::size_t>(Adresse++)) = static_cast<std::uint8_t>(b);
}

bool Dateien_Welt::Nur_Bytes(std::int32_t Adresse, std::initializer_list<int> Bytes)
{
    std::vector<std::uint8_t> Soll(Hex_Daten.size(), 0xFF);
    for (const int b : Bytes)
        Soll.at(static_cast<std::size_t>(Adresse++)) = static_cast<std::uint8_t>(b);
    return std::equal(Soll.begin(), Soll.end(), Hex_Daten.begin());
}

} // namespace varnholt::test
