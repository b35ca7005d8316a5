// Cases in files, tests/golden/files: a dropped file is a case. <name>.image lists the bytes of an
// image (address: bytes, hexadecimal, the rest is FFh). In load/ every other file must load as the
// image of its name says; in save/ the image must save as the file beside it, to the byte.
#include "files/Dateien_Welt.h"
#include "support/Golden.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// Every file of a folder but the images.
std::vector<fs::path> Faelle(const char* Ordner)
{
    return Golden_Faelle(Ordner, [](std::string_view e) { return e != ".image"; });
}

std::vector<std::uint8_t> Bild_Lesen(fs::path Datei)
{
    std::ifstream             Liste(Datei.replace_extension(".image"));
    std::vector<std::uint8_t> Bytes(Hex_Daten.size(), 0xFF);
    if (!Liste)
        throw std::runtime_error("missing " + Datei.string());
    for (std::string Zeile; std::getline(Liste, Zeile);) {
        std::istringstream Teile(Zeile.substr(0, Zeile.find(';')));
        std::size_t        Adresse = 0;
        char               Punkte  = 0;
        if (!(Teile >> std::hex >> Adresse >> Punkte))
            continue;
        for (int b = 0; Teile >> b;)
            Bytes.at(Adresse++) = static_cast<std::uint8_t>(b);
    }
    return Bytes;
}

class Golden_Laden : public Dateien_Welt, public ::testing::WithParamInterface<fs::path> {};
class Golden_Speichern : public Dateien_Welt, public ::testing::WithParamInterface<fs::path> {};

TEST_P(Golden_Laden, gives_the_image)
{
    Hex_Daten.fill(0x55);
    Laden(GetParam().filename().string(), Bytes_Von(GetParam().string()));
    const std::vector<std::uint8_t> Soll = Bild_Lesen(GetParam());
    const auto                      p = std::mismatch(Soll.begin(), Soll.end(), Hex_Daten.begin());
    EXPECT_EQ(p.first, Soll.end()) << "differs at " << std::hex << p.first - Soll.begin() << "h";
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_P(Golden_Speichern, gives_the_file)
{
    const std::vector<std::uint8_t> Bytes = Bild_Lesen(GetParam());
    std::copy(Bytes.begin(), Bytes.end(), Hex_Daten.begin());
    EXPECT_EQ(Speichern(GetParam().filename().string()), Bytes_Von(GetParam().string()));
}

INSTANTIATE_TEST_SUITE_P(Datei, Golden_Laden, ::testing::ValuesIn(Faelle("files/load")), Fall_Name);
INSTANTIATE_TEST_SUITE_P(Datei,
                         Golden_Speichern,
                         ::testing::ValuesIn(Faelle("files/save")),
                         Fall_Name);

} // namespace
} // namespace varnholt::test
