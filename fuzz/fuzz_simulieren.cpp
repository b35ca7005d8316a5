// Programs and start states from anybody: the full-speed path against the exact one, in pieces.
#include "core/settings.h"
#include "core/shared_state.h"
#include "simulator/Debug.h"

#include "Eingabe.h"

#include <memory>

using namespace varnholt;
using namespace varnholt::fuzz;

namespace {

constexpr std::int64_t Laenge = 400; // instructions of a run

std::uint8_t& Zelle(int Index) { return Sim_RAM[static_cast<std::size_t>(Index)]; }

// The rest of the input again and again, so that every jump finds code.
void Bild_Fuellen(const std::string& Programm)
{
    constexpr std::size_t Ende = Code_Groesse + 2;
    std::fill_n(Hex_Daten.begin(), Ende, std::uint8_t{0});
    for (std::size_t i = 0; i < Ende && !Programm.empty(); i += Programm.size())
        std::copy_n(Programm.data(), std::min(Programm.size(), Ende - i), Hex_Daten.data() + i);
}

void Aufstellen(Eingabe& Ein)
{
    Maschine_Zuruecksetzen();
    const unsigned Schalter = Ein.Zahl();
    O_MOV_ZQ                = (Schalter & 1) != 0;
    Sim_Prio = static_cast<std::int16_t>(static_cast<int>(Schalter >> 1 & 3) % 3 - 1);
    for (std::size_t i = 0; i < Sim_Pins.size(); ++i)
        Sim_Pins[i] = static_cast<std::int16_t>(Schalter >> (3 + i) & 1);
    Sim_PC = Ein.Zahl();
    for (const int Index : {SFR::SP,
                            SFR::PSW,
                            SFR::TCON,
                            SFR::TMOD,
                            SFR::TL0,
                            SFR::TL1,
                            SFR::TH0,
                            SFR::TH1,
                            SFR::IE,
                            SFR::IP,
                            SFR::T2CON,
                            SFR::TL2,
                            SFR::TH2,
                            SFR::P1,
                            SFR::P3,
                            SFR::ACC}) {
        const std::string Byte = Ein.Text(1);
        Zelle(Index)           = Byte.empty() ? 0 : static_cast<std::uint8_t>(Byte[0]);
    }
    Bild_Fuellen(Ein.Text());
}

bool Gleich(const Maschine_T& a, const Maschine_T& b)
{
    return a.Sim_RAM == b.Sim_RAM && a.Sim_XRAM == b.Sim_XRAM && a.Sim_PC == b.Sim_PC &&
           a.Sim_Zyklen == b.Sim_Zyklen && a.Sim_Pins == b.Sim_Pins && a.Sim_Prio == b.Sim_Prio;
}

std::int64_t Genau(std::int64_t Hoechstens)
{
    std::int64_t n = 0;
    while (n < Hoechstens && Befehl_Ausfuehren().Befehle == 1)
        ++n;
    return n;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe            Ein(Daten, Anzahl);
    const std::int64_t Stueck = Ein.Zahl() % Laenge + 1;
    Aufstellen(Ein);
    const auto Anfang = std::make_unique<Maschine_T>(Maschine);

    const std::int64_t Genau_Gelaufen = Genau(Laenge);
    const auto         Genaue         = std::make_unique<Maschine_T>(Maschine);

    Maschine                = *Anfang;
    const std::int64_t Erst = Vollgas_Laufen(Stueck).Befehle;
    const std::int64_t Dann = Vollgas_Laufen(Laenge - Stueck).Befehle;
    Muss(Erst + Dann == Genau_Gelaufen);
    Muss(Gleich(Maschine, *Genaue));
    return 0;
}
