// Writes what is made from the tables of the assembler, so that it can't drift away from them:
// the files of the two reference windows, befehle.dok and basic.dok, into the folder named (the
// build runs this), and with --handbook the tables on the pages of the handbook, in the data
// folder.
#include "files/Dateizugriff.h"
#include "language/Handbuch_Tabellen.h"
#include "language/Nachschlage_Texte.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

using namespace varnholt;

struct Seite_T {
    const char* Name;
    bool        Deutsch;
};
// The pages that have tables.
constexpr auto Seiten = std::to_array<Seite_T>({{"Help/instructions.htm", false},
                                                {"Help/statements.htm", false},
                                                {"Hilfe/befehle.htm", true},
                                                {"Hilfe/anweisungen.htm", true}});

constexpr std::uintmax_t Seite_Hoechstens = std::uintmax_t{1} << 20;

bool Dokumente_Schreiben(const std::filesystem::path& Ordner, std::string& Grund)
{
    return Datei_Schreiben(Ordner / "befehle.dok", Befehle_Dok(), Grund) &&
           Datei_Schreiben(Ordner / "basic.dok", Basic_Dok(), Grund);
}

bool Handbuch_Schreiben(const std::filesystem::path& Ordner, std::string& Grund)
{
    for (const Seite_T& s : Seiten) {
        const auto Seite = Datei_Lesen(Ordner / s.Name, Seite_Hoechstens);
        Grund            = s.Name;
        if (!Seite ||
            !Datei_Schreiben(Ordner / s.Name, Tabellen_Einsetzen(*Seite, s.Deutsch), Grund))
            return false;
    }
    return true;
}

} // namespace

int main(int Anzahl, char** Worte)
{
    const bool Handbuch = Anzahl == 3 && std::string_view(Worte[1]) == "--handbook";
    if (Anzahl != 2 && !Handbuch) {
        std::fputs("usage: dok_erzeugen [--handbook] FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path Ordner = Worte[Anzahl - 1];
    std::string                 Grund;
    if (Handbuch ? Handbuch_Schreiben(Ordner, Grund) : Dokumente_Schreiben(Ordner, Grund))
        return 0;
    std::fprintf(stderr, "dok_erzeugen: %s: %s\n", Ordner.c_str(), Grund.c_str());
    return 1;
}
