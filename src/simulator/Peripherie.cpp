// Timers, external lines and interrupts, one pass after each instruction.
#include "simulator/Peripherie.h"

#include "simulator/Debug.h"
#include "simulator/Rechnen.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Zeitgeber.h"

#include <algorithm>
#include <iterator>

namespace varnholt {
namespace {

bool RAM_Bit(int Index, int Nummer) { return Bit_Von(RAM_An(Index), Nummer) != 0; }
void RAM_Speichern(int Index, int Wert) { RAM_An(Index) = static_cast<std::uint8_t>(Wert); }

void RAM_Bit_Setzen(int Index, int Nummer)
{
    RAM_An(Index) = static_cast<std::uint8_t>(RAM_An(Index) | 1U << Nummer);
}

// Level of a pin now and at the end of the last pass.
struct Stift_T {
    int Index; // port
    int Nummer;
    int Platz; // in Sim_Pins
};
constexpr Stift_T T0{SFR::P3, 4, 0}, T1{SFR::P3, 5, 1}, T2{SFR::P1, 0, 2}, T2EX{SFR::P1, 1, 3},
    INT0{SFR::P3, 2, 4}, INT1{SFR::P3, 3, 5};

constexpr Stift_T Alle_Stifte[] = {T0, T1, T2, T2EX, INT0, INT1};

bool          Hoch(const Stift_T& s) { return RAM_Bit(s.Index, s.Nummer); }
std::int16_t& Zuvor(const Stift_T& s) { return Sim_Pins[static_cast<std::size_t>(s.Platz)]; }
bool          Faellt(const Stift_T& s) { return Zuvor(s) == 1 && !Hoch(s); }
void          Merken(const Stift_T& s) { Zuvor(s) = Hoch(s) ? 1 : 0; }

// --- timers 0 and 1 ---

// What the pass works on. Counters may stand above 255 for a moment.
struct Zeitgeber_T {
    int  TL[2];
    int  TH[2];
    int  TMOD;
    int  Modus(int i) const { return (TMOD >> (4 * i)) & 3; }
    bool CT(int i) const { return ((TMOD >> (4 * i + 2)) & 1) != 0; }
    bool Gate(int i) const { return ((TMOD >> (4 * i + 3)) & 1) != 0; }
};

void Ueberlauf(int i) { RAM_Bit_Setzen(SFR::TCON, Ueberlaufbit[i]); }

// 13 or 16 bits, by what TL holds before it carries.
void Zaehlen(Zeitgeber_T& z, int i, int Anzahl, int TL_Umfang)
{
    z.TL[i] += Anzahl;
    if (z.TL[i] < TL_Umfang)
        return;
    z.TL[i] -= TL_Umfang;
    if (++z.TH[i] > 255) {
        z.TH[i] = 0;
        Ueberlauf(i);
    }
}

void Nachladen(Zeitgeber_T& z, int i, int Anzahl)
{
    z.TL[i] += Anzahl;
    if (z.TL[i] > 255) { // what went beyond is dropped
        z.TL[i] = z.TH[i];
        Ueberlauf(i);
    }
}

void Vorruecken(Zeitgeber_T& z, int i, int Anzahl)
{
    switch (z.Modus(i)) {
    case 0:
        return Zaehlen(z, i, Anzahl, 32);
    case 1:
        return Zaehlen(z, i, Anzahl, 256);
    case 2:
        return Nachladen(z, i, Anzahl);
    default: // mode 3: timer 1 stands still, timer 0 is two counters
        return;
    }
}

// Mode 3 of timer 0: TL0 and TH0 are counters of their own, TH0 runs and tells by timer 1's bits.
void Geteilt_Zaehlen(Zeitgeber_T& z, int i, int Anzahl)
{
    int& Zaehler = i == 0 ? z.TL[0] : z.TH[0];
    Zaehler += Anzahl;
    if (Zaehler > 255) {
        Zaehler -= 256;
        Ueberlauf(i);
    }
}

// One of the two timers; the result is the number of ticks that it was given.
int Zeitgeber_Takten(Zeitgeber_T& z, int i, int n)
{
    const bool Geteilt = z.Modus(0) == 3;
    const bool Laeuft  = RAM_Bit(SFR::TCON, Laufbit[i]);
    int        Anzahl  = n;
    if (!Laeuft && !(i == 1 && Geteilt))
        return Anzahl;
    if (z.CT(i)) {
        if (!Faellt(i == 0 ? T0 : T1))
            return Anzahl;
        Anzahl = 1;
    }
    if (!z.Gate(i) || (i == 1 && Geteilt))
        Vorruecken(z, i, Anzahl);
    if (Geteilt && Laeuft && (!z.Gate(i) || Hoch(i == 0 ? INT0 : INT1)))
        Geteilt_Zaehlen(z, i, Anzahl);
    return Anzahl;
}

// The result is what timer 1 left as the number of ticks: timer 2 counts by it.
int Zeitgeber_01_Takten(int n)
{
    Zeitgeber_T z{{RAM_An(SFR::TL0), RAM_An(SFR::TL1)},
                  {RAM_An(SFR::TH0), RAM_An(SFR::TH1)},
                  RAM_An(SFR::TMOD)};
    Zeitgeber_Takten(z, 0, n);
    const int Anzahl = Zeitgeber_Takten(z, 1, n);
    RAM_Speichern(SFR::TL0, z.TL[0]);
    RAM_Speichern(SFR::TH0, z.TH[0]);
    RAM_Speichern(SFR::TL1, z.TL[1]);
    RAM_Speichern(SFR::TH1, z.TH[1]);
    return Anzahl;
}

// --- timer 2 ---

bool T2_Bit(int Nummer) { return RAM_Bit(SFR::T2CON, Nummer); }

// TL2 and TH2 as they count on, TH2 above 255 when they overflowed.
void T2_Zaehlen(int& TL2, int& TH2, int Anzahl)
{
    TL2 += Anzahl;
    if (TL2 > 255) {
        TL2 -= 256;
        ++TH2;
    }
}

void T2_Laden(int& TL2, int& TH2)
{
    TL2 = RAM_An(SFR::RCAP2L);
    TH2 = RAM_An(SFR::RCAP2H);
}

void T2_Nachladen(int& TL2, int& TH2, int Anzahl)
{
    T2_Zaehlen(TL2, TH2, Anzahl);
    if (TH2 > 255) {
        T2_Laden(TL2, TH2);
        RAM_Bit_Setzen(SFR::T2CON, T2_TF);
    }
    if (Faellt(T2EX) && T2_Bit(T2_EXEN)) {
        T2_Laden(TL2, TH2);
        RAM_Bit_Setzen(SFR::T2CON, T2_EXF);
    }
}

void T2_Fangen(int& TL2, int& TH2, int Anzahl)
{
    T2_Zaehlen(TL2, TH2, Anzahl);
    if (TH2 > 255) {
        TH2 = 0;
        RAM_Bit_Setzen(SFR::T2CON, T2_TF);
    }
    if (Faellt(T2EX) && T2_Bit(T2_EXEN)) {
        RAM_Speichern(SFR::RCAP2L, TL2);
        RAM_Speichern(SFR::RCAP2H, TH2);
        RAM_Bit_Setzen(SFR::T2CON, T2_EXF);
    }
}

void Zeitgeber_2_Takten(int Anzahl)
{
    if (!T2_Bit(T2_TR) || T2_Bit(T2_RCLK) || T2_Bit(T2_TCLK) || (T2_Bit(T2_CT) && !Faellt(T2)))
        return;
    if (T2_Bit(T2_CT))
        Anzahl = 1;
    int TL2 = RAM_An(SFR::TL2);
    int TH2 = RAM_An(SFR::TH2);
    if (T2_Bit(T2_CP_RL))
        T2_Fangen(TL2, TH2, Anzahl);
    else
        T2_Nachladen(TL2, TH2, Anzahl);
    RAM_Speichern(SFR::TL2, TL2);
    RAM_Speichern(SFR::TH2, TH2);
}

// --- external lines ---

struct Leitung_T {
    Stift_T Stift;
    int     Freigabe; // bit of IE
    int     Flanke;   // bit of TCON: edge instead of level
    int     Anfrage;  // bit of TCON
};
constexpr Leitung_T Leitungen[] = {{INT0, 0, 0, 1}, {INT1, 2, 2, 3}};

void Leitungen_Abtasten()
{
    for (const Leitung_T& l : Leitungen)
        if (RAM_Bit(SFR::IE, l.Freigabe) &&
            (RAM_Bit(SFR::TCON, l.Flanke) ? Faellt(l.Stift) : !Hoch(l.Stift)))
            RAM_Bit_Setzen(SFR::TCON, l.Anfrage);
}

// --- interrupts ---

struct Quelle_T {
    int Index; // of the request
    int Bit;
    int Stelle;   // in IE and IP
    int Loeschen; // bit of TCON that the entry clears, -1 none
    int Vektor;
};
// clang-format off
constexpr Quelle_T Quellen[] = {
    {SFR::TCON,  1, 0,  1,  3}, // external 0
    {SFR::TCON,  5, 1,  5, 11}, // timer 0
    {SFR::TCON,  3, 2,  3, 19}, // external 1
    {SFR::TCON,  7, 3,  7, 27}, // timer 1
    {SFR::T2CON, 7, 5, -1, 43}, // timer 2: the program clears TF2
};
// clang-format on

int Vorrang(const Quelle_T& q) { return RAM_Bit(SFR::IP, q.Stelle) ? 1 : 0; }

bool Darf_Eintreten(const Quelle_T& q)
{
    return RAM_Bit(q.Index, q.Bit) && RAM_Bit(SFR::IE, q.Stelle) && Vorrang(q) > Sim_Prio;
}

// A byte onto the stack, which doesn't go to the upper RAM.
template <bool Mit_Anzeige> void Stapeln(int Wert)
{
    const int SP = (RAM_An(SFR::SP) + 1) & 255;
    RAM_Speichern(SFR::SP, SP);
    if constexpr (Mit_Anzeige)
        Sim_Zelle_Zeigen_SFR(SFR::SP);
    RAM_Speichern(SP, Wert & 255);
    if constexpr (Mit_Anzeige) {
        Sim_Zelle_Zeigen_RAM(SP);
        Sim_Zelle_Zeigen_SFR(SP); // the stack may lie among the registers
    }
}

} // namespace

bool Anfrage_Qualifiziert()
{
    return std::any_of(std::begin(Quellen), std::end(Quellen), Darf_Eintreten);
}

bool Pegel_Setzt_Anfrage()
{
    return std::any_of(std::begin(Leitungen), std::end(Leitungen), [](const Leitung_T& l) {
        return RAM_Bit(SFR::IE, l.Freigabe) && !RAM_Bit(SFR::TCON, l.Flanke) && !Hoch(l.Stift) &&
               !RAM_Bit(SFR::TCON, l.Anfrage);
    });
}

bool Stifte_Ruhig()
{
    return std::all_of(std::begin(Alle_Stifte), std::end(Alle_Stifte), [](const Stift_T& s) {
        return Zuvor(s) == (Hoch(s) ? 1 : 0);
    });
}

void Paritaet_Setzen()
{
    RAM_An(SFR::PSW) =
        static_cast<std::uint8_t>((RAM_An(SFR::PSW) & ~PSW_P) | Paritaet(RAM_An(SFR::ACC)));
}

template <bool Mit_Anzeige> void Peripherie_Takt_T(int n)
{
    const int Anzahl = Zeitgeber_01_Takten(n);
    Zeitgeber_2_Takten(Anzahl);
    for (const Stift_T& s : {T0, T1, T2, T2EX})
        Merken(s);
    if (RAM_Bit(SFR::IE, IE_EA))
        Leitungen_Abtasten();
    Merken(INT0);
    Merken(INT1);
    if constexpr (Mit_Anzeige)
        for (const int Index : {SFR::TL0,
                                SFR::TH0,
                                SFR::TL1,
                                SFR::TH1,
                                SFR::TL2,
                                SFR::TH2,
                                SFR::TCON,
                                SFR::T2CON,
                                SFR::RCAP2L,
                                SFR::RCAP2H})
            Sim_Zelle_Zeigen_SFR(Index);
}

template <bool Mit_Anzeige> void Interrupt_Eintritt_T()
{
    Sim_Zyklen = static_cast<std::int32_t>(static_cast<std::uint32_t>(Sim_Zyklen) + 3U);
    Peripherie_Takt_T<Mit_Anzeige>(3);
    Stapeln<Mit_Anzeige>(Sim_PC);
    Stapeln<Mit_Anzeige>(Sim_PC >> 8);
    if constexpr (Mit_Anzeige) {
        Sim_Zelle_Zeigen_SFR(SFR::TCON);
        Sim_Zelle_Zeigen_SFR(SFR::T2CON);
    }
}

template <bool Mit_Anzeige> void Interrupts_Pruefen_T()
{
    if (!RAM_Bit(SFR::IE, IE_EA))
        return;
    for (const Quelle_T& q : Quellen) {
        if (!Darf_Eintreten(q))
            continue;
        Sim_Prio = static_cast<std::int16_t>(Vorrang(q));
        if (q.Loeschen >= 0)
            RAM_An(SFR::TCON) = static_cast<std::uint8_t>(RAM_An(SFR::TCON) & ~(1U << q.Loeschen));
        Interrupt_Eintritt_T<Mit_Anzeige>();
        Sim_PC = q.Vektor;
        return;
    }
}

template void Peripherie_Takt_T<true>(int);
template void Peripherie_Takt_T<false>(int);
template void Interrupt_Eintritt_T<true>();
template void Interrupt_Eintritt_T<false>();
template void Interrupts_Pruefen_T<true>();
template void Interrupts_Pruefen_T<false>();

} // namespace varnholt
