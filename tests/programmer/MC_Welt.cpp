// The world of the microcontroller tests.
#include "programmer/MC_Welt.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Special.h"

#include <algorithm>
#include <span>

namespace varnholt::test {
namespace {

constexpr std::size_t Laengster_Block = 12; // lines
constexpr std::size_t Mindestens      = 4;  // repetitions

std::vector<std::string> Zeilen_Von(const std::string& Text)
{
    std::vector<std::string> Zeilen;
    std::istringstream       Strom(Text);
    for (std::string z; std::getline(Strom, z);)
        Zeilen.push_back(z);
    return Zeilen;
}

// How often the block of Laenge lines that z begins with stands there in a row.
std::size_t Wiederholungen(std::span<const std::string> z, std::size_t Laenge)
{
    std::size_t n = 1;
    while ((n + 1) * Laenge <= z.size() &&
           std::equal(z.begin(),
                      z.begin() + static_cast<std::ptrdiff_t>(Laenge),
                      z.begin() + static_cast<std::ptrdiff_t>(n * Laenge)))
        ++n;
    return n;
}

struct Block_T {
    std::size_t Laenge = 1, Anzahl = 1;
};

// The block that covers most lines, the shortest of several; a single line where none repeats.
Block_T Groesster_Block(std::span<const std::string> z)
{
    Block_T Bester;
    for (std::size_t l = 1; l <= std::min(Laengster_Block, z.size()); ++l)
        if (const std::size_t n = Wiederholungen(z, l);
            n >= Mindestens && n * l > Bester.Laenge * Bester.Anzahl)
            Bester = {l, n};
    return Bester;
}

std::string Typ_Fuer_Loeschen(std::string_view Name)
{
    if (Name.ends_with("051"))
        return "89CI";
    if (Name == "89C55WD")
        return "89CIIWD";
    return Name == "89S53" || Name == "89S8252" ? "89SII" : "89CII";
}

} // namespace

std::string Gefaltet(const std::string& Spur)
{
    const std::vector<std::string> Alle = Zeilen_Von(Spur);
    std::span<const std::string>   z    = Alle;
    std::string                    Text;
    while (!z.empty()) {
        const Block_T b = Groesster_Block(z);
        if (b.Anzahl > 1)
            Text += std::to_string(b.Anzahl) + " x ";
        for (std::size_t i = 0; i < b.Laenge; ++i)
            Text += (i > 0 ? ", " : "") + z[i];
        Text += '\n';
        z = z.subspan(b.Laenge * b.Anzahl);
    }
    return Text;
}

Geraet_T& MC_Welt::Einsetzen(std::string_view Name, std::int32_t Bytes)
{
    Geraet_T& g  = Geraet(Name, Bytes);
    g.E_Typ      = Typ_Fuer_Loeschen(Name);
    g.L_Typ      = g.E_Typ;
    g.Programmer = Name.ends_with("051") ? 2 : 3;
    C_IC_nach_B  = false;
    Anschliessen();
    return g;
}

void MC_Welt::Einsetzen(std::string_view Name, const std::vector<std::uint8_t>& Bytes)
{
    Einsetzen(Name, static_cast<std::int32_t>(Bytes.size()));
    Inhalt() = Bytes;
    Hex_Puffer.assign(Hex_Daten.size(), 0);
}

void MC_Welt::Anschliessen()
{
    auto  Brett    = Simuliertes_Board_Fuer(IC_Nummer);
    auto* MC_Brett = dynamic_cast<Simuliertes_MC_Board*>(Brett.release());
    Das_Brett.reset(MC_Brett);
    Recorder       = std::make_unique<Aufzeichnung>(*Das_Brett, Strom);
    Plattform.Port = Recorder.get();
    Porttreiber_Laden();
    Strom.str({});
}

std::vector<std::uint8_t> MC_Welt::Gelesen(std::size_t Bytes)
{
    return {Hex_Puffer.begin(), Hex_Puffer.begin() + static_cast<std::ptrdiff_t>(Bytes)};
}

std::string MC_Welt::Spur()
{
    Recorder->Abschliessen();
    const std::string Text = Gefaltet(Strom.str());
    Strom.str({});
    return Text;
}

std::vector<int> MC_Welt::Datenbytes()
{
    Recorder->Abschliessen();
    std::vector<int> Bytes;
    for (const std::string& z : Zeilen_Von(Strom.str()))
        if (z.starts_with("W D "))
            Bytes.push_back(std::stoi(z.substr(4), nullptr, 16));
    Strom.str({});
    return Bytes;
}

} // namespace varnholt::test
