// Generated source texts that this assembler and a public one read alike.
#include "Programm.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace varnholt::bench {
namespace {

constexpr int Teil      = 31500; // lines whose code fits into 64 KiB
constexpr int Abschnitt = 9;     // lines from label to label

void Zeile_Anfuegen(std::string& Text, int Zeile, int Marken)
{
    const int Marke = Zeile / Abschnitt; // the last label
    auto      Ziel  = std::back_inserter(Text);
    switch (Zeile % Abschnitt) {
    case 0:
        fmt::format_to(Ziel, "L{}:\n", Marke);
        break;
    case 1:
        fmt::format_to(Ziel, "\tmov\ta, #{}\t\t; load the accumulator with a value\n", Zeile % 256);
        break;
    case 2:
        fmt::format_to(Ziel, "\tadd\ta, r{}\n", Zeile % 8);
        break;
    case 3:
        Text += "\t; a comment line that tells something about the loop\n";
        break;
    case 4:
        fmt::format_to(Ziel, "\tdjnz\tr{}, L{}\t\t; count down\n", Zeile % 8, Marke);
        break;
    case 5:
        fmt::format_to(Ziel, "\tljmp\tL{}\n", Marke * 7 % Marken);
        break;
    case 6:
        fmt::format_to(Ziel, "\tmov\tr{}, a\t\t; keep it for later use in the loop\n", Zeile % 8);
        break;
    case 7:
        fmt::format_to(Ziel, "\tlcall\tL{}\t\t; call the routine\n", Marke * 13 % Marken);
        break;
    default:
        Text += "\tinc\tdptr\t\t; next cell of the table\n";
        break;
    }
}

} // namespace

std::string Programm_Erzeugen(int Zeilen)
{
    std::string Text;
    Text.reserve(static_cast<std::size_t>(Zeilen) * 33);
    const int Marken = (Zeilen - 1) / Abschnitt + 1;
    for (int z = 0; z < Zeilen; ++z) {
        if (z % Teil == 0 && z > 0)
            Text += "\torg\t0\n";
        Zeile_Anfuegen(Text, z, Marken);
    }
    return Text;
}

} // namespace varnholt::bench
