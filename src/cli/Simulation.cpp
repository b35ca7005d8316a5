// A run of the simulated machine on the command line.
#include "cli/Simulation.h"

#include "core/messages.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "simulator/Debug.h"
#include "simulator/Sitzung.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>

namespace varnholt {
namespace {

constexpr std::int64_t Stueck            = 20'000'000; // instructions between two looks at progress
constexpr std::int64_t Aufrufe           = 1 << 18;    // the same, in calls of Simulieren
constexpr std::int64_t Je_Meldung        = 1 << 24;    // the same, within the calls
constexpr std::int64_t Zeile_Hoechstens  = 1'000'000'000; // instructions of one source line
constexpr std::int64_t Zeilen_Hoechstens = 1'000'000'000; // of all of them together
constexpr std::size_t  Puffer_Groesse    = 1U << 16;

// Finds out that a line never ends: the machine stands as it stood before, and nothing comes from
// outside that could change its way. What it is compared with moves on at powers of two, so a
// circle of any length is found within about twice that length.
class Kreis_Suche {
public:
    void Beginnen()
    {
        Befehle = 0;
        Marke   = Erste_Marke;
    }
    // Behind an instruction.
    bool Geschlossen()
    {
        if (Befehle >= Erste_Marke && Wie_Gemerkt())
            return true;
        if (++Befehle == Marke) {
            Merken();
            Marke *= 2;
        }
        return false;
    }

private:
    static constexpr std::int64_t Erste_Marke = 1 << 16; // shorter lines aren't worth a copy

    void Merken()
    {
        PC   = Sim_PC;
        Prio = Sim_Prio;
        Pins = Sim_Pins;
        RAM  = Sim_RAM;
        XRAM = Sim_XRAM;
    }
    bool Wie_Gemerkt() const
    {
        return Sim_PC == PC && Sim_Prio == Prio && Sim_RAM == RAM && Sim_Pins == Pins &&
               Sim_XRAM == XRAM;
    }

    std::int64_t                Befehle = 0;
    std::int64_t                Marke   = Erste_Marke;
    std::int32_t                PC      = 0;
    std::int16_t                Prio    = -1;
    decltype(Maschine.Sim_Pins) Pins{};
    decltype(Maschine.Sim_RAM)  RAM{};
    decltype(Maschine.Sim_XRAM) XRAM{};
};

std::int64_t Prozent(std::int64_t Fertig, std::int64_t Gesamt)
{
    return Fertig * 100 / std::max<std::int64_t>(Gesamt, 1);
}

void Fortschritt(std::int64_t Anteil)
{
    const std::string Text = std::to_string(Anteil) + "%";
    Plattform.Status->Text(
        In_Sprache({" Simulation läuft... " + Text, " Simulation is running... " + Text}));
}

// Counts the instructions of a run and writes them down.
class Zaehlwerk final : public Befehls_Zeuge {
public:
    // Hoechstens: calls of Simulieren.
    Zaehlwerk(std::ostream* Ziel, std::int64_t Hoechstens) : Strom(Ziel), Alle_Aufrufe(Hoechstens)
    {
        Sitzung.Zeuge = this;
    }
    ~Zaehlwerk() override
    {
        Sitzung.Zeuge = nullptr;
        Leeren();
    }
    Zaehlwerk(const Zaehlwerk&)            = delete;
    Zaehlwerk& operator=(const Zaehlwerk&) = delete;

    void Ausgefuehrt(std::int32_t Adresse) override
    {
        if (++Befehle % Je_Meldung == 0)
            Fortschritt_Zeigen();
        if (++In_Der_Zeile >= Zeile_Hoechstens || Kreis.Geschlossen())
            Debugger_Aktiv = false; // the call returns
        if (Strom != nullptr)
            Aufschreiben(Adresse);
    }
    void Zeile_Beginnen()
    {
        In_Der_Zeile = 0;
        Kreis.Beginnen();
        if (++Aufruf % Aufrufe == 0)
            Fortschritt_Zeigen();
    }
    bool Am_Ende() const { return Befehle >= Befehle_Hoechstens(); }

    std::int64_t Befehle = 0;

private:
    std::int64_t Befehle_Hoechstens() const { return std::max(Alle_Aufrufe, Zeilen_Hoechstens); }
    // Calls or instructions, whichever come to their limit first.
    void Fortschritt_Zeigen() const
    {
        Fortschritt(
            std::max(Prozent(Aufruf, Alle_Aufrufe), Prozent(Befehle, Befehle_Hoechstens())));
    }
    void Aufschreiben(std::int32_t Adresse)
    {
        fmt::format_to(std::back_inserter(Puffer),
                       "{:04X} {:02X} A={:02X} PSW={:02X} SP={:02X} DPTR={:02X}{:02X} CYC={}\n",
                       Adresse,
                       Byte_An(Adresse),
                       Sim_RAM[SFR::ACC],
                       Sim_RAM[SFR::PSW],
                       Sim_RAM[SFR::SP],
                       Sim_RAM[SFR::DPH],
                       Sim_RAM[SFR::DPL],
                       Sim_Zyklen);
        if (Puffer.size() >= Puffer_Groesse)
            Leeren();
    }
    void Leeren()
    {
        if (Strom != nullptr)
            Strom->write(Puffer.data(), static_cast<std::streamsize>(Puffer.size()));
        Puffer.clear();
    }

    std::ostream*      Strom;
    std::int64_t       Alle_Aufrufe;
    std::int64_t       Aufruf = 0;
    fmt::memory_buffer Puffer{};
    std::int64_t       In_Der_Zeile = 0;
    Kreis_Suche        Kreis{};
};

// Instruction by instruction or line by line, each seen by the witness.
std::int64_t Aufrufen(std::int64_t Hoechstens, std::ostream* Spur)
{
    Zaehlwerk Zaehler(Spur, Hoechstens);
    for (std::int64_t i = 0; i < Hoechstens && !Zaehler.Am_Ende() && Debugger_Aktiv && !Debug_Stop;
         ++i) {
        Zaehler.Zeile_Beginnen();
        Simulieren();
    }
    return Zaehler.Befehle;
}

// At full speed, with nobody looking on.
std::int64_t Durchlaufen(std::int64_t Hoechstens)
{
    Lauf_Ergebnis Gesamt;
    while (Gesamt.Befehle < Hoechstens && Gesamt.Grund == Lauf_Grund::Grenze) {
        const auto e = Vollgas_Laufen(std::min(Stueck, Hoechstens - Gesamt.Befehle));
        Gesamt.Befehle += e.Befehle;
        Gesamt.Grund = e.Grund;
        if (Gesamt.Befehle < Hoechstens)
            Fortschritt(Prozent(Gesamt.Befehle, Hoechstens));
    }
    if (Gesamt.Grund != Lauf_Grund::Grenze)
        Simulieren(); // tells why it doesn't go on
    return Gesamt.Befehle;
}

Lauf_Ende Ende_Feststellen()
{
    if (!Debugger_Aktiv)
        return Lauf_Ende::Endlose_Zeile;
    if (!Debug_Stop)
        return Lauf_Ende::Grenze;
    return Sim_PC < 0 ? Lauf_Ende::Unter_Null : Lauf_Ende::Stoppunkt;
}

} // namespace

Simulation_Ergebnis Simulation_Laufen(std::int64_t Hoechstens, bool Zeilenweise, std::ostream* Spur)
{
    Debugger_Aktiv = true;
    Debug_Laeuft   = true;
    Debug_Vollgas  = !Zeilenweise;
    Debug_Stop     = false;
    if (Byte_An(Sim_PC) == Stoppunkt_Opcode)
        Sim_PC = Im_Code(Sim_PC + 1);
    Simulation_Ergebnis e;
    e.Befehle =
        Zeilenweise || Spur != nullptr ? Aufrufen(Hoechstens, Spur) : Durchlaufen(Hoechstens);
    e.Ende = Ende_Feststellen();
    Plattform.Status->Schliessen();
    Debugger_Aktiv = false;
    Debug_Laeuft   = false;
    return e;
}

} // namespace varnholt
