// A folder for one test, and the bytes of files.
#include "support/Arbeitsordner.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
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
    fs::create_directories((Pfad / Datei).parent_path());
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

std::string Bytes_Von(const fs::path& Name)
{
    std::ifstream Datei(Name, std::ios::binary);
    if (!Datei)
        return "<missing>";
    return {std::istreambuf_iterator<char>(Datei), {}};
}

std::vector<std::uint8_t> Als_Bytes(std::string_view Text) { return {Text.begin(), Text.end()}; }

} // namespace varnholt::test
