// Runs a fuzz target on kept inputs, for compilers without libFuzzer: every file of the folders
// named.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl);

int main(int Anzahl, char** Ordner)
{
    int Eingaben = 0;
    for (int i = 1; i < Anzahl; ++i)
        for (const auto& Eintrag : std::filesystem::directory_iterator(Ordner[i])) {
            std::ifstream     Datei(Eintrag.path(), std::ios::binary);
            const std::string Bytes{std::istreambuf_iterator<char>(Datei), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Bytes.data()),
                                   Bytes.size());
            ++Eingaben;
        }
    std::printf("%d inputs\n", Eingaben);
    return Eingaben > 0 ? 0 : 1;
}
