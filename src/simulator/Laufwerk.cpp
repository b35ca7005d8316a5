// The two ways to run the machine: one instruction with everything that belongs to it, and many at
// full speed.
#include "simulator/Rechenwerk.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varnholt {
namespace {

int Opcode_An(std::int64_t PC) { return Hex_Daten[static_cast<std::size_t>(PC)]; }

// Whether PSW.0 is what the accumulator says. Not so behind an edit in the views, or when an
// interrupt pushed onto PSW or ACC: the next instruction sees it as it stands.
bool Paritaet_Stimmt() { return (Sim_RAM[SFR::PSW] & PSW_P) == Paritaet(Sim_RAM[SFR::ACC]); }

bool Liegt_Im_Code(std::int64_t PC) { return static_cast<std::uint64_t>(PC) < Code_Groesse; }

// --- one instruction ---

template <int Opcode> void Einzeln(Rechenwerk<false>& w) { w.Ausfuehren(Nummer<Opcode>{}); }

constexpr auto Einzelne = []<int... i>(std::integer_sequence<int, i...>)
{
    return std::array{&Einzeln<i>...};
}
(std::make_integer_sequence<int, 256>{});

// --- full speed ---

// A stretch of instructions. It ends at a stop point, when its ticks are used up, or when the
// address leaves the code memory.
struct Strecke_T {
    Register_T   Register{};
    int          Opcode = 0; // of the last instruction
    Rueckstand_T Rueckstand{};

    std::int32_t Verstrichen() const { return Rueckstand.Angesetzt - Register.Konto.Takte(); }
};

// clang-format off
#define REIHE(Je, h)                                                                               \
    Je(0x##h##0) Je(0x##h##1) Je(0x##h##2) Je(0x##h##3) Je(0x##h##4) Je(0x##h##5) Je(0x##h##6)     \
    Je(0x##h##7) Je(0x##h##8) Je(0x##h##9) Je(0x##h##A) Je(0x##h##B) Je(0x##h##C) Je(0x##h##D)     \
    Je(0x##h##E) Je(0x##h##F)
#define ALLE_OPCODES(Je)                                                                           \
    REIHE(Je, 0) REIHE(Je, 1) REIHE(Je, 2) REIHE(Je, 3) REIHE(Je, 4) REIHE(Je, 5) REIHE(Je, 6)     \
    REIHE(Je, 7) REIHE(Je, 8) REIHE(Je, 9) REIHE(Je, A) REIHE(Je, B) REIHE(Je, C) REIHE(Je, D)     \
    REIHE(Je, E) REIHE(Je, F)
#define ADRESSE(n) &&Opcode_##n,
#define BEFEHL(n)                                                                                  \
    Opcode_##n:                                                                                    \
        w.Ausfuehren(Nummer<n>{});                                                                 \
        if ((n) == Stoppunkt_Opcode || w.Konto.Verbraucht() || !Liegt_Im_Code(w.PC)) [[unlikely]]  \
            goto Ende;                                                                             \
        Opcode = Opcode_An(w.PC);                                                                  \
        goto* Ziele[Opcode];

// Each instruction jumps to the next one by itself, so that the processor learns which one follows
// which: half as fast again as a loop around a switch. That takes labels as values, which gcc and
// clang have. The registers are a local object, which the compiler can take apart.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
// NOLINTNEXTLINE(readability-function-*): it expands a table
[[gnu::noinline]] void Durchlaufen(Strecke_T& s)
{
    static const void* const Ziele[] = {ALLE_OPCODES(ADRESSE)}; // a table, no state
    Rechenwerk<true>         w(s.Register, s.Rueckstand);
    int                      Opcode = Opcode_An(w.PC);
    goto* Ziele[Opcode];
    ALLE_OPCODES(BEFEHL)
Ende:
    s.Register = w;
    s.Opcode   = Opcode;
}
#pragma GCC diagnostic pop
// clang-format on

#undef REIHE
#undef ALLE_OPCODES
#undef ADRESSE
#undef BEFEHL

// Many instructions at full speed; between them the machine isn't up to date.
class Vollgas_T {
public:
    Lauf_Ergebnis Laufen(std::int64_t Hoechstens);

private:
    void Strecke_Laufen();
    void Genauer_Durchgang(int Laenge);
    void Ablegen() const;
    void Abschliessen();

    Strecke_T     s{};
    std::uint32_t Zyklen = static_cast<std::uint32_t>(Sim_Zyklen);
    std::int64_t  Noch   = 0;     // instructions still allowed
    bool          Fest_P = false; // PSW.0 is as an interrupt's push left it
};

// Up to the next exact pass at most.
void Vollgas_T::Strecke_Laufen()
{
    Register_T&        r     = s.Register;
    const std::int32_t Vorab = s.Verstrichen();
    const std::int64_t Takte =
        std::min<std::int64_t>({s.Rueckstand.Ruhe - Vorab, Noch - 1, Konto_T::Takte_Hoechstens});
    r.Konto                = Konto_T(static_cast<std::int32_t>(Takte));
    s.Rueckstand.Angesetzt = Vorab + r.Konto.Takte();
    Durchlaufen(s);
    Noch -= r.Konto.Befehle();
    Zyklen += static_cast<std::uint32_t>(r.Konto.Zyklen());
}

// ACC and PSW to where the machine keeps them.
void Vollgas_T::Ablegen() const
{
    Sim_RAM[SFR::ACC] = static_cast<std::uint8_t>(s.Register.Akku);
    Sim_RAM[SFR::PSW] = static_cast<std::uint8_t>(s.Register.Status);
}

// Parity, the pass over the peripherals and the interrupt check behind an instruction of that
// length. A push of the entry may land on ACC or PSW.
void Vollgas_T::Genauer_Durchgang(int Laenge)
{
    Zeitgeber_Vorstellen(s.Verstrichen() - Laenge);
    Ablegen();
    const auto e = Durchgang<false>(Laenge, static_cast<std::int32_t>(s.Register.PC), Zyklen);
    Zyklen       = e.Zyklen;
    Fest_P       = e.Fest_P;
    s.Register   = {.PC = e.PC};
    s.Rueckstand = {0, Ruhe_Takte()};
}

// Brings the machine up to date.
void Vollgas_T::Abschliessen()
{
    Zeitgeber_Vorstellen(s.Verstrichen());
    Ablegen();
    if (!Fest_P)
        Paritaet_Setzen();
    Sim_PC     = static_cast<std::int32_t>(s.Register.PC);
    Sim_Zyklen = static_cast<std::int32_t>(Zyklen);
}

Lauf_Ergebnis Vollgas_T::Laufen(std::int64_t Hoechstens)
{
    Lauf_Ergebnis e;
    Noch         = Hoechstens;
    s.Rueckstand = {0, Ruhe_Takte()};
    while (Noch > 0 && !Fest_P && e.Grund == Lauf_Grund::Grenze) {
        if (s.Register.PC < 0) {
            e.Grund = Lauf_Grund::Unter_Null;
            break;
        }
        Strecke_Laufen();
        if (s.Opcode == Stoppunkt_Opcode)
            e.Grund = Lauf_Grund::Stoppunkt;
        else if (s.Verstrichen() > s.Rueckstand.Ruhe)
            Genauer_Durchgang(Befehl_Laenge(static_cast<std::uint8_t>(s.Opcode)));
        if (s.Register.PC >= Code_Groesse)
            s.Register.PC = 0;
    }
    e.Befehle = Hoechstens - Noch;
    Abschliessen();
    return e;
}

} // namespace

Lauf_Ergebnis Befehl_Ausfuehren()
{
    if (Sim_PC < 0)
        return {0, Lauf_Grund::Unter_Null, Sim_PC};
    const int Opcode = Opcode_An(Sim_PC);
    if (Opcode == Stoppunkt_Opcode)
        return {0, Lauf_Grund::Stoppunkt, Sim_PC};
    Rueckstand_T      Keiner;
    Rechenwerk<false> w({}, Keiner);
    Einzelne[static_cast<std::size_t>(Opcode)](w);
    const auto e = Durchgang<true>(Befehl_Laenge(static_cast<std::uint8_t>(Opcode)),
                                   static_cast<std::int32_t>(w.PC),
                                   static_cast<std::uint32_t>(Sim_Zyklen) +
                                       static_cast<std::uint32_t>(w.Konto.Zyklen()));
    Sim_PC       = Im_Code(e.PC);
    Sim_Zyklen   = static_cast<std::int32_t>(e.Zyklen);
    return {1, Lauf_Grund::Grenze, e.PC};
}

Lauf_Ergebnis Vollgas_Laufen(std::int64_t Hoechstens)
{
    Lauf_Ergebnis Gesamt{0, Lauf_Grund::Grenze, Sim_PC};
    while (Gesamt.Befehle < Hoechstens && Gesamt.Grund == Lauf_Grund::Grenze) {
        const Lauf_Ergebnis e = Paritaet_Stimmt() ? Vollgas_T{}.Laufen(Hoechstens - Gesamt.Befehle)
                                                  : Befehl_Ausfuehren();
        Gesamt                = {Gesamt.Befehle + e.Befehle, e.Grund, Sim_PC};
    }
    return Gesamt;
}

} // namespace varnholt
