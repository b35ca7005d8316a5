// Whole processes of varnholt-cli against the public tools that do the same job, in one run, as
// ratios: assembling against as31, S-records against srec_cat; and the device commands' times.
#include "Programm.h"
#include "Prozess.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <random>

namespace varnholt::bench {
namespace {

namespace fs = std::filesystem;
using Befehl = std::vector<std::string>;

constexpr int Laeufe = 21;

struct Werkbank {
    fs::path    Ordner;
    std::string Cli;
    std::string Datei(const std::string& Name) const { return (Ordner / Name).string(); }
};

void Schreiben(const std::string& Name, const std::string& Inhalt)
{
    std::ofstream(Name, std::ios::binary) << Inhalt;
}

std::string Zufall(std::size_t Laenge)
{
    std::mt19937 Quelle(1);
    std::string  s(Laenge, '\0');
    for (char& c : s)
        c = static_cast<char>(Quelle() & 0xFE); // never FFh, so that every byte counts
    return s;
}

void Verhaeltnis(const std::string& Was, const Paar& p)
{
    fmt::print("{:<34} {:8.2f} ms {:8.2f} ms   ratio {:.3f} (CPU time {:.3f}){}\n",
               Was,
               1e3 * p.A.Sekunden,
               1e3 * p.B.Sekunden,
               p.A.Sekunden / p.B.Sekunden,
               p.A.Rechenzeit / p.B.Rechenzeit,
               p.A.Status != 0 || p.B.Status != 0
                   ? fmt::format("   STATUS {} {}", p.A.Status, p.B.Status)
                   : std::string{});
}

void Einzeln(const std::string& Was, const Messung& m)
{
    fmt::print("{:<34} {:8.2f} ms, peak {:.1f} MiB{}\n",
               Was,
               1e3 * m.Sekunden,
               m.Speicher_MB,
               m.Status != 0 ? fmt::format("   STATUS {}", m.Status) : std::string{});
}

void Assemblieren_Messen(const Werkbank& w)
{
    Schreiben(w.Datei("klein.asm"), Programm_Erzeugen(31500));
    Schreiben(w.Datei("gross.asm"), Programm_Erzeugen(315000));
    const Befehl Klein{w.Cli, "assemble", w.Datei("klein.asm"), "-o", w.Datei("klein.bin")};
    const Befehl Gross{w.Cli, "assemble", w.Datei("gross.asm"), "-o", w.Datei("gross.bin")};
    Verhaeltnis("assemble 31500 lines / as31",
                Paarweise(Klein,
                          {"as31", "-Fbin", "-O" + w.Datei("as31.bin"), w.Datei("klein.asm")},
                          Laeufe));
    const Paar Mal_Zehn = Paarweise(Gross, Klein, Laeufe);
    Verhaeltnis("assemble 315000 / 31500 lines", Mal_Zehn);
    Einzeln("assemble 31500 lines", Mal_Zehn.B);
}

void S_Records_Messen(const Werkbank& w)
{
    const std::string Bin = w.Datei("512k.bin");
    const std::string Mhx = w.Datei("512k.mhx");
    Schreiben(Bin, Zufall(524288));
    Verhaeltnis("512 KiB to S-records / srec_cat",
                Paarweise({w.Cli, "convert", Bin, "-o", Mhx},
                          {"srec_cat", Bin, "-binary", "-o", w.Datei("srec.mhx"), "-motorola"},
                          Laeufe));
    Verhaeltnis(
        "S-records to 512 KiB / srec_cat",
        Paarweise(
            {w.Cli, "convert", Mhx, "-o", w.Datei("zurueck.bin")},
            {"srec_cat", w.Datei("srec.mhx"), "-motorola", "-o", w.Datei("srec.bin"), "-binary"},
            Laeufe));
}

void Brennen_Messen(const Werkbank& w)
{
    Schreiben(w.Datei("64k.bin"), Zufall(65536));
    Einzeln(
        "program and verify a 27C512",
        Mehrfach({w.Cli, "program", w.Datei("64k.bin"), "--device", "27C512", "--port", "sim"}, 5));
    Einzeln("program and verify a 27C040",
            Mehrfach({w.Cli, "program", w.Datei("512k.bin"), "--device", "27C040", "--port", "sim"},
                     3));
}

} // namespace
} // namespace varnholt::bench

int main(int argc, char** argv)
{
    using namespace varnholt::bench;
    if (argc != 2) {
        fmt::print(stderr, "usage: bench_tools VARNHOLT-CLI\n");
        return 2;
    }
    // In memory where there is such a folder: the disk is not what is compared.
    const fs::path Unter =
        fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    Werkbank w{Unter / "varnholt-bench", argv[1]};
    fs::create_directories(w.Ordner);
    fmt::print("Medians of whole processes, run in turn.\n");
    Assemblieren_Messen(w);
    S_Records_Messen(w);
    Brennen_Messen(w);
    fs::remove_all(w.Ordner);
    return 0;
}
