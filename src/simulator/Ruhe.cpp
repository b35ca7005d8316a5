// The lazy half of the peripherals.
#include "simulator/Ruhe.h"

#include "simulator/Debug.h"
#include "simulator/Peripherie.h"
#include "simulator/Rechnen.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Zeitgeber.h"

#include <algorithm>

namespace varnholt {

constexpr std::array<std::uint8_t, 256> Besonderheit = [] {
    std::array<std::uint8_t, 256> t{};
    t[SFR::ACC] = t[SFR::PSW] = Beim_Lesen | Beim_Schreiben;
    for (const int i : {SFR::TL0, SFR::TH0, SFR::TL1, SFR::TH1, SFR::TL2, SFR::TH2})
        t[static_cast<std::size_t>(i)] = Beim_Lesen | Beim_Schreiben;
    for (const int i : {SFR::TCON,
                        SFR::TMOD,
                        SFR::P1,
                        SFR::P3,
                        SFR::IE,
                        SFR::IP,
                        SFR::T2CON,
                        SFR::RCAP2L,
                        SFR::RCAP2H})
        t[static_cast<std::size_t>(i)] = Beim_Schreiben;
    return t;
}();

namespace {

constexpr std::int32_t Lange = 1 << 30;

// Whether timer 0 or 1 counts instruction bytes now.
bool Zaehlt_Bytes(int i)
{
    const int Nibble = RAM_An(SFR::TMOD) >> (4 * i) & 15;
    return (RAM_An(SFR::TCON) >> Laufbit[i] & 1) != 0 && (Nibble & (TMOD_Gate | TMOD_CT)) == 0 &&
           (Nibble & 3) != 3;
}

bool T2_Zaehlt_Bytes()
{
    constexpr int Andere = 1 << T2_RCLK | 1 << T2_TCLK | 1 << T2_CT;
    return (RAM_An(SFR::T2CON) & (Andere | 1 << T2_TR)) == 1 << T2_TR;
}

struct Paar_T {
    int TL;
    int TH;
};
constexpr Paar_T Zaehler[] = {{SFR::TL0, SFR::TH0}, {SFR::TL1, SFR::TH1}, {SFR::TL2, SFR::TH2}};

int Sechzehn(const Paar_T& p) { return RAM_An(p.TH) * 256 + RAM_An(p.TL); }

// Ticks up to the overflow of timer 0 or 1; at most 0 when mode 0 holds a TL beyond its 5 bits.
std::int32_t Bis_Ueberlauf(int i)
{
    const Paar_T& p = Zaehler[i];
    switch (RAM_An(SFR::TMOD) >> (4 * i) & 3) {
    case 0:
        return RAM_An(p.TL) > 31 ? 0 : 8192 - (RAM_An(p.TH) * 32 + RAM_An(p.TL));
    case 1:
        return 65536 - Sechzehn(p);
    default:
        return 256 - RAM_An(p.TL);
    }
}

void Vorstellen(int i, std::int32_t Takte)
{
    const Paar_T& p     = Zaehler[i];
    const int     Modus = RAM_An(SFR::TMOD) >> (4 * i) & 3;
    std::uint8_t& TL    = Sim_RAM[static_cast<std::size_t>(p.TL)];
    std::uint8_t& TH    = Sim_RAM[static_cast<std::size_t>(p.TH)];
    if (Modus == 2) {
        TL = static_cast<std::uint8_t>(TL + Takte);
        return;
    }
    const int Umfang = Modus == 0 ? 32 : 256;
    const int Stand  = TH * Umfang + TL + Takte;
    TL               = static_cast<std::uint8_t>(Stand % Umfang);
    TH               = static_cast<std::uint8_t>(Stand / Umfang);
}

bool Interrupt_Moeglich()
{
    return (RAM_An(SFR::IE) & 1 << IE_EA) != 0 && (Anfrage_Qualifiziert() || Pegel_Setzt_Anfrage());
}

} // namespace

std::int32_t Ruhe_Takte()
{
    if (!Stifte_Ruhig() || Interrupt_Moeglich() || (RAM_An(SFR::TMOD) & 3) == 3)
        return 0;
    std::int32_t Takte = Lange;
    for (int i = 0; i < 2; ++i)
        if (Zaehlt_Bytes(i))
            Takte = std::min(Takte, Bis_Ueberlauf(i) - 1);
    if (T2_Zaehlt_Bytes())
        Takte = std::min(Takte, 65536 - Sechzehn(Zaehler[2]) - 1);
    return std::max(Takte, 0);
}

void Zeitgeber_Vorstellen(std::int32_t Takte)
{
    if (Takte == 0)
        return;
    for (int i = 0; i < 2; ++i)
        if (Zaehlt_Bytes(i))
            Vorstellen(i, Takte);
    if (T2_Zaehlt_Bytes()) {
        const int Stand   = Sechzehn(Zaehler[2]) + Takte;
        Sim_RAM[SFR::TL2] = static_cast<std::uint8_t>(Stand);
        Sim_RAM[SFR::TH2] = static_cast<std::uint8_t>(Stand >> 8);
    }
}

template <bool Mit_Anzeige>
Durchgang_Ergebnis Durchgang(int Laenge, std::int32_t PC, std::uint32_t Zyklen)
{
    Sim_PC     = PC;
    Sim_Zyklen = static_cast<std::int32_t>(Zyklen);
    Paritaet_Setzen();
    if constexpr (Mit_Anzeige)
        Sim_Zelle_Zeigen_SFR(SFR::PSW);
    Peripherie_Takt_T<Mit_Anzeige>(Laenge);
    const std::uint8_t PSW = Sim_RAM[SFR::PSW];
    const std::uint8_t ACC = Sim_RAM[SFR::ACC];
    Interrupts_Pruefen_T<Mit_Anzeige>();
    return {Sim_PC,
            static_cast<std::uint32_t>(Sim_Zyklen),
            PSW != Sim_RAM[SFR::PSW] || ACC != Sim_RAM[SFR::ACC]};
}

template Durchgang_Ergebnis Durchgang<true>(int, std::int32_t, std::uint32_t);
template Durchgang_Ergebnis Durchgang<false>(int, std::int32_t, std::uint32_t);

} // namespace varnholt
