// Benchmarks of the routines that run for each line, byte or edge.
#include "Programm.h"
#include "core/commands.h"
#include "core/reset.h"
#include "core/shared_state.h"
#include "core/text_memory.h"
#include "editors/HexSuche.h"
#include "files/Dat.h"
#include "files/Intel_Hex.h"
#include "files/Motorola_S.h"
#include "files/Textdatei.h"
#include "language/Assembler_Zustand.h"
#include "language/Befehle.h"
#include "language/Operanden.h"
#include "language/Zeile_Normieren.h"
#include "programmer/Brennmenue.h"
#include "programmer/Lesen.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"
#include "programmer/Specifications.h"

#include <benchmark/benchmark.h>

#include <span>
#include <vector>

namespace varnholt::bench {
namespace {

void Zufaelliges_Bild(std::size_t Laenge)
{
    Bild_Loeschen();
    std::uint32_t x = 1;
    for (std::size_t i = 0; i < Laenge; ++i) {
        x            = x * 1664525u + 1013904223u;
        Hex_Daten[i] = static_cast<std::uint8_t>((x >> 24) & 0xFE);
    }
}

// A line as typed into its normal form; counted in lines.
void BM_Zeile_Normieren(benchmark::State& s)
{
    const std::string Zeile = "\tmov\ta ,  #12h\t\t; load the accumulator";
    Text_Ablage       Ablage;
    for (auto _ : s) {
        Ablage.Leeren();
        benchmark::DoNotOptimize(Zeile_Normieren(Zeile, Ablage));
    }
    s.SetItemsProcessed(s.iterations());
}
BENCHMARK(BM_Zeile_Normieren);

// The operand scan of a line; counted in lines.
void BM_Operanden_Lesen(benchmark::State& s)
{
    Alles_Zuruecksetzen();
    Quell_Zeilen.resize(1);
    const std::string Zeile = "MOV 30H,#LOW(1234H)+5";
    for (auto _ : s) {
        Lauf.Zeile_Gross = Zeile;
        Operanden_Lesen();
        benchmark::DoNotOptimize(Wert_Liste);
    }
    s.SetItemsProcessed(s.iterations());
}
BENCHMARK(BM_Operanden_Lesen);

void BM_Fixe_Form_Suchen(benchmark::State& s)
{
    for (auto _ : s)
        benchmark::DoNotOptimize(Fixe_Form_Suchen("MOVC A,@A+DPTR"));
}
BENCHMARK(BM_Fixe_Form_Suchen);

// A whole assembly in memory; counted in lines.
void BM_Assemblieren(benchmark::State& s)
{
    Alles_Zuruecksetzen();
    Sprache      = "E";
    const auto n = static_cast<int>(s.range(0));
    Plattform.Edit->Text_Setzen(Text_Entschluesseln(Programm_Erzeugen(n)).Text);
    for (auto _ : s)
        Assemblieren();
    s.SetItemsProcessed(s.iterations() * n);
}
BENCHMARK(BM_Assemblieren)->Arg(31500)->Arg(315000)->Unit(benchmark::kMillisecond);

// Random bytes of that number, FFh among them, into source text; counted in bytes.
void BM_Disassemblieren(benchmark::State& s)
{
    Alles_Zuruecksetzen();
    Sprache         = "E";
    std::uint32_t x = 8051;
    for (std::int64_t i = 0; i < s.range(0); ++i) {
        x                                      = x * 1664525u + 1013904223u;
        Hex_Daten[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(x >> 24);
    }
    for (auto _ : s)
        benchmark::DoNotOptimize(Disassemblieren());
    s.SetBytesProcessed(s.iterations() * s.range(0));
}
BENCHMARK(BM_Disassemblieren)
    ->RangeMultiplier(2)
    ->Range(Bild_Groesse / 8, Bild_Groesse)
    ->Unit(benchmark::kMillisecond);

// Encoding and line ends of a source; counted in bytes.
void BM_Text_Entschluesseln(benchmark::State& s)
{
    const std::string Text = Programm_Erzeugen(31500);
    for (auto _ : s)
        benchmark::DoNotOptimize(Text_Entschluesseln(Text));
    s.SetBytesProcessed(s.iterations() * static_cast<std::int64_t>(Text.size()));
}
BENCHMARK(BM_Text_Entschluesseln);

std::span<std::uint8_t> Ganzes_Bild()
{
    return std::span(Hex_Daten).first(static_cast<std::size_t>(Bild_Groesse));
}

// 512 KiB of image to S-records and back; counted in image bytes.
void BM_Motorola_S(benchmark::State& s)
{
    Zufaelliges_Bild(Bild_Groesse);
    const bool        Schreiben = s.range(0) == 0;
    const std::string Text      = Motorola_S_Schreiben(Ganzes_Bild());
    for (auto _ : s) {
        if (Schreiben)
            benchmark::DoNotOptimize(Motorola_S_Schreiben(Ganzes_Bild()));
        else
            Motorola_S_Lesen(Text, 0, Ganzes_Bild());
    }
    s.SetBytesProcessed(s.iterations() * Bild_Groesse);
}
BENCHMARK(BM_Motorola_S)->ArgName("read")->Arg(0)->Arg(1);

// 32 KiB of image to Intel-HEX and back; counted in image bytes.
void BM_Intel_Hex(benchmark::State& s)
{
    Zufaelliges_Bild(32768);
    const bool        Schreiben = s.range(0) == 0;
    const auto        Teil      = std::span<const std::uint8_t>(Hex_Daten).first(32768);
    const std::string Text      = Intel_Hex_Schreiben(Teil);
    for (auto _ : s) {
        if (Schreiben)
            benchmark::DoNotOptimize(Intel_Hex_Schreiben(Teil));
        else
            Intel_Hex_Lesen(Text, 0, Ganzes_Bild());
    }
    s.SetBytesProcessed(s.iterations() * 32768);
}
BENCHMARK(BM_Intel_Hex)->ArgName("read")->Arg(0)->Arg(1);

void BM_Dat(benchmark::State& s)
{
    Zufaelliges_Bild(Bild_Groesse);
    const bool        Schreiben = s.range(0) == 0;
    const std::string Text      = Dat_Schreiben(Ganzes_Bild());
    for (auto _ : s) {
        if (Schreiben)
            benchmark::DoNotOptimize(Dat_Schreiben(Ganzes_Bild()));
        else
            Dat_Lesen(Text, 0, Ganzes_Bild());
    }
    s.SetBytesProcessed(s.iterations() * Bild_Groesse);
}
BENCHMARK(BM_Dat)->ArgName("read")->Arg(0)->Arg(1);

// A search in vain through the whole image: random bytes, erased ones, and those that begin the
// pattern again and again.
void BM_Hex_Suche(benchmark::State& s)
{
    Zufaelliges_Bild(Bild_Groesse);
    if (s.range(0) != 0)
        Hex_Daten.fill(static_cast<std::uint8_t>(s.range(0)));
    const std::vector<std::uint8_t> Muster{0x12, 0x12, 0x12, 0x55};
    for (auto _ : s)
        benchmark::DoNotOptimize(Hex_Treffer(Hex_Daten, Muster, 0));
    s.SetBytesProcessed(s.iterations() * Bild_Groesse);
}
BENCHMARK(BM_Hex_Suche)
    ->ArgName("fill")
    ->Arg(0)
    ->Arg(0xFF)
    ->Arg(0x12)
    ->Unit(benchmark::kMillisecond);

// Reading a simulated 27C512 edge by edge; counted in device bytes.
void BM_Baustein_Lesen(benchmark::State& s)
{
    Alles_Zuruecksetzen();
    Sprache       = "E";
    Programm_Pfad = VARNHOLT_DATA "/";
    Spec_Lesen();
    IC_Waehlen(Geraet_Suchen("27C512"));
    const auto Board = Simuliertes_Board_Fuer(Geraet_Suchen("27C512"));
    Plattform.Port   = Board.get();
    Porttreiber_Laden();
    Hex_Puffer.assign(65536, 0);
    for (auto _ : s)
        Speicher_Lesen();
    s.SetBytesProcessed(s.iterations() * 65536);
    Alles_Zuruecksetzen();
}
BENCHMARK(BM_Baustein_Lesen)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace varnholt::bench

BENCHMARK_MAIN();
