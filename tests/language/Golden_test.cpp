// Cases in files, tests/golden/assembler: a dropped <name>.asm is a case. Its expectation stands
// beside it, as <name>.bin (the image up to the end of the code), <name>.l51 (the list file) or
// <name>.err (first line: number of the failing line from 1; the rest: the English text), or in the
// lines themselves: `; = 24 12` behind an instruction names the bytes from that line's address on.
#include "files/Textdatei.h"
#include "language/Assembler_Hilfe.h"
#include "language/Opcode_Tafel.h"
#include "support/Golden.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Faelle()
{
    return Golden_Faelle("assembler", [](std::string_view e) { return e == ".asm"; });
}

std::vector<std::string> Zeilen_Von(const std::string& Text)
{
    std::vector<std::string> Zeilen(1);
    for (const char c : Text)
        if (c == '\n')
            Zeilen.emplace_back();
        else if (c != '\r')
            Zeilen.back() += c;
    return Zeilen;
}

// The source row of an editor line: an included file stands in place of its line.
std::size_t Zeile_Zu_Index(int Zeile)
{
    for (const Include_Eintrag& e : Include_Liste)
        if (e.Erste_Zeile < Zeile)
            Zeile += e.Zeilen - 1;
    return static_cast<std::size_t>(Zeile);
}

class Golden_Assembler : public Assembler_Welt, public ::testing::WithParamInterface<fs::path> {
protected:
    Golden_Assembler() { Programm_Pfad = std::string(VARNHOLT_DATA) + "/"; }

    // The case's file of that extension, as its path.
    static fs::path Beiblatt(const char* Endung)
    {
        fs::path Pfad = GetParam();
        return Pfad.replace_extension(Endung);
    }
    static bool Hat(const char* Endung) { return fs::exists(Beiblatt(Endung)); }

    void Lauf_Beginnen()
    {
        Datei_Name  = GetParam().string();
        Quell_Text  = Text_Entschluesseln(Bytes_Von(GetParam())).Text;
        Edit.Inhalt = Quell_Text;
        Assemblieren();
    }

    void Fehler_Pruefen()
    {
        const auto  Zeilen = Zeilen_Von(Bytes_Von(Beiblatt(".err")));
        std::string Soll;
        for (std::size_t i = 1; i < Zeilen.size(); ++i)
            Soll += (i > 1 ? "\r\n" : "") + Zeilen[i];
        while (!Soll.empty() && (Soll.back() == '\n' || Soll.back() == '\r'))
            Soll.pop_back();
        std::string Ist = Letzte_Meldung();
        while (!Ist.empty() && (Ist.back() == '\n' || Ist.back() == '\r'))
            Ist.pop_back();
        EXPECT_EQ(Assembler_Fehler, 1);
        EXPECT_EQ(Ist, Soll);
        EXPECT_EQ(Fehler_Zeile + 1, std::stoi(Zeilen.at(0)));
    }

    void Bild_Pruefen()
    {
        const std::string Soll = Bytes_Von(Beiblatt(".bin"));
        ASSERT_EQ(Code_Ende, static_cast<std::int32_t>(Soll.size()));
        for (std::size_t i = 0; i < Soll.size(); ++i)
            ASSERT_EQ(Hex2(Hex_Daten.at(i)), Hex2(static_cast<unsigned char>(Soll[i])))
                << "at address " << i;
    }

    // Checks the expectations in the lines; how many there are.
    int Zeilen_Pruefen()
    {
        int  Anzahl = 0;
        auto Zeilen = Zeilen_Von(Quell_Text);
        for (std::size_t i = 0; i < Zeilen.size(); ++i) {
            const std::size_t p = Zeilen[i].find("; = ");
            if (p == std::string::npos)
                continue;
            const std::string Soll = Zeilen[i].substr(p + 4);
            const auto Adresse     = Quell_Zeilen.at(Zeile_Zu_Index(static_cast<int>(i))).Adresse;
            const auto Laenge      = static_cast<std::int32_t>((Soll.size() + 1) / 3);
            EXPECT_EQ(Hex_Text(Adresse, Adresse + Laenge), Soll)
                << "line " << i + 1 << ": " << Zeilen[i];
            ++Anzahl;
        }
        return Anzahl;
    }

    std::string Quell_Text{};
};

TEST_P(Golden_Assembler, gives_what_its_files_say)
{
    const Arbeitsordner Ordner;
    C_Erstelle_Listfile = Hat(".l51");
    Listen_Name         = (Ordner.Pfad / "list").string();
    Lauf_Beginnen();
    if (Hat(".err"))
        return Fehler_Pruefen();
    ASSERT_EQ(Assembler_Fehler, 0) << Letzte_Meldung() << " in line " << Fehler_Zeile + 1;
    const int In_Zeilen = Zeilen_Pruefen();
    EXPECT_TRUE(In_Zeilen > 0 || Hat(".bin") || Hat(".l51")) << "a case without an expectation";
    if (Hat(".bin"))
        Bild_Pruefen();
    if (Hat(".l51")) {
        EXPECT_EQ(Bytes_Von(Ordner.Pfad / "list"), Bytes_Von(Beiblatt(".l51")));
    }
}

INSTANTIATE_TEST_SUITE_P(Datei, Golden_Assembler, ::testing::ValuesIn(Faelle()), Fall_Name);

} // namespace
} // namespace varnholt::test
