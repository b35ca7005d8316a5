// The simulator at full speed against a public one on the same program, in one run: instructions
// per second of whole processes, and their ratio; with timers off, and with two timers and an
// interrupt.
#include "Prozess.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace varnholt::bench {
namespace {

namespace fs = std::filesystem;

constexpr int Laeufe        = 3;
constexpr int Laeufe_Eigene = 5; // for each of the others, which take a hundred times as long

struct Werkbank {
    fs::path    Ordner;
    std::string Cli;
    std::string Datei(const std::string& Name) const { return (Ordner / Name).string(); }
};

std::string Lesen(const std::string& Name)
{
    std::ifstream Datei(Name, std::ios::binary);
    return {std::istreambuf_iterator<char>(Datei), {}};
}

void Schreiben(const std::string& Name, const std::string& Inhalt)
{
    std::ofstream(Name, std::ios::binary) << Inhalt;
}

// The number behind the first place of a word; 0 without one.
double Zahl_Hinter(const std::string& Text, const std::string& Wort)
{
    const std::size_t Stelle = Text.find(Wort);
    return Stelle == std::string::npos ? 0 : std::atof(Text.c_str() + Stelle + Wort.size());
}

// What a simulator did on the program, and how long it took.
struct Lauf {
    double  Befehle = 0;
    Messung Zeit{};
    double  Je_Sekunde() const { return Zeit.Rechenzeit > 0 ? Befehle / Zeit.Rechenzeit : 0; }
};

std::string Mit_Zeile(std::string Text, const std::string& Alt, const std::string& Neu)
{
    const std::size_t Stelle = Text.find(Alt);
    return Stelle == std::string::npos ? Text : Text.replace(Stelle, Alt.size(), Neu);
}

// Source, Intel-HEX for the other simulator, and the address where the program ends.
std::string Programm_Vorbereiten(const Werkbank& w, const std::string& Quelle, bool Mit_Timern)
{
    const std::string Asm = w.Datei("simulator.asm");
    Schreiben(Asm, Mit_Timern ? Mit_Zeile(Quelle, "TIMERS  EQU 0", "TIMERS  EQU 1") : Quelle);
    const Messung m =
        Laufen({w.Cli, "assemble", Asm, "--debug", "--json", "-o", w.Datei("simulator.ihx")},
               "/dev/null",
               w.Datei("json"));
    if (m.Status != 0)
        fmt::print("STATUS {} of the assembly\n", m.Status);
    const auto Adresse = static_cast<int>(Zahl_Hinter(Lesen(w.Datei("json")), "\"FINISH\":"));
    return fmt::format("0x{:x}", Adresse);
}

Lauf Eigener_Lauf(const Werkbank& w)
{
    Lauf l;
    l.Zeit = Mehrfach(
        {w.Cli, "simulate", w.Datei("simulator.asm"), "--json", "--instructions", "1000000000"},
        Laeufe_Eigene,
        "/dev/null",
        w.Datei("json"));
    l.Befehle = Zahl_Hinter(Lesen(w.Datei("json")), "\"instructions\":");
    return l;
}

Lauf Fremder_Lauf(const Werkbank& w, const std::string& Ende)
{
    Schreiben(w.Datei("fragen"), "state\nquit\n");
    Lauf l;
    l.Zeit = Laufen(
        {"s51", "-b", "-t", "51", "-e", "break " + Ende, "-e", "run", w.Datei("simulator.ihx")},
        w.Datei("fragen"),
        w.Datei("antwort"));
    l.Befehle = Zahl_Hinter(Lesen(w.Datei("antwort")), "Inst= ");
    return l;
}

Lauf Mittlerer(std::vector<Lauf> Alle)
{
    std::sort(Alle.begin(), Alle.end(), [](const Lauf& a, const Lauf& b) {
        return a.Zeit.Rechenzeit < b.Zeit.Rechenzeit;
    });
    return Alle[Alle.size() / 2];
}

void Vergleichen(const Werkbank& w, const std::string& Was, const std::string& Ende)
{
    std::vector<Lauf> Eigene, Fremde;
    for (int i = 0; i < Laeufe; ++i) {
        Eigene.push_back(Eigener_Lauf(w));
        Fremde.push_back(Fremder_Lauf(w, Ende));
    }
    const Lauf e = Mittlerer(Eigene);
    const Lauf f = Mittlerer(Fremde);
    fmt::print("{:<32} {:7.1f} M/s, s51 {:5.2f} M/s   ratio {:.1f} ({:.0f} and {:.0f} instructions"
               "){}\n",
               Was,
               e.Je_Sekunde() / 1e6,
               f.Je_Sekunde() / 1e6,
               f.Je_Sekunde() > 0 ? e.Je_Sekunde() / f.Je_Sekunde() : 0,
               e.Befehle,
               f.Befehle,
               e.Zeit.Status != 0 || f.Zeit.Status != 0
                   ? fmt::format("   STATUS {} {}", e.Zeit.Status, f.Zeit.Status)
                   : std::string{});
}

} // namespace
} // namespace varnholt::bench

int main(int argc, char** argv)
{
    using namespace varnholt::bench;
    if (argc != 3) {
        fmt::print(stderr, "usage: bench_simulator VARNHOLT-CLI SIMULATOR.ASM\n");
        return 2;
    }
    const fs::path Unter =
        fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    const Werkbank w{Unter / "varnholt-bench-simulator", argv[1]};
    fs::create_directories(w.Ordner);
    fmt::print("Instructions per second of whole processes, by processor time, run in turn.\n");
    const std::string Quelle = Lesen(argv[2]);
    Vergleichen(w, "simulate, timers off / s51", Programm_Vorbereiten(w, Quelle, false));
    Vergleichen(w, "simulate, 2 timers, interrupt", Programm_Vorbereiten(w, Quelle, true));
    fs::remove_all(w.Ordner);
    return 0;
}
