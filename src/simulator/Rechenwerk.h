// The interpreter's heart: what each of the 256 opcodes does, written once. Two instantiations
// serve it: the exact one tells the views of each store; the thrifty one keeps ACC and PSW at hand
// and computes parity and timers only when something can see them. Private to Laufwerk.cpp.
#pragma once

#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Befehle.h"
#include "simulator/Debug.h"
#include "simulator/Konto.h"
#include "simulator/Peripherie.h"
#include "simulator/Rechnen.h"
#include "simulator/Ruhe.h"
#include "simulator/Sim_Ansichten.h"

#include <type_traits>

namespace varnholt {

// How far the timers lag behind in the thrifty kind: by Angesetzt - Konto.Takte() ticks.
struct Rueckstand_T {
    std::int32_t Angesetzt = 0; // ticks that were left when the timers were up to date
    std::int32_t Ruhe      = 0; // so many may pass before an exact pass; below 0: it is due
};

// What changes with every instruction.
struct Register_T {
    std::int64_t PC     = Sim_PC;
    Konto_T      Konto  = Konto_T(0);
    int          Akku   = Sim_RAM[SFR::ACC]; // of the thrifty kind, as Status
    int          Status = Sim_RAM[SFR::PSW]; // PSW
    std::int64_t Bank   = Status & PSW_RS;   // first register of the bank
};

template <int Opcode> using Nummer = std::integral_constant<int, Opcode>;

// In the thrifty kind between two instructions: ACC and PSW of Sim_RAM are stale, P of Status is
// stale too and stands for the parity of Akku, and the timers lag.
template <bool Sparsam> class Rechenwerk : public Register_T {
    using Byte = std::uint8_t;
#define INNEN [[gnu::always_inline]] inline

public:
    INNEN Rechenwerk(const Register_T& Stand, Rueckstand_T& Timer)
        : Register_T(Stand), Rueckstand(Timer)
    {
    }

private:
    Rueckstand_T& Rueckstand;
    std::int64_t  Ziel = 0; // where the instruction leads

    // --- memory as the addressing modes find it ---

    static Byte& RAM(std::int64_t Index) { return Sim_RAM[static_cast<std::size_t>(Index)]; }
    INNEN int Code(int Versatz) const { return Hex_Daten[static_cast<std::size_t>(PC + Versatz)]; }
    INNEN int Hier() const { return static_cast<int>(PC); }
    INNEN int A() const { return Sparsam ? Akku : RAM(SFR::ACC); }
    INNEN int PSW() const { return Sparsam ? Status : RAM(SFR::PSW); }
    INNEN int CY() const { return PSW() >> 7; }
    INNEN int DPTR() const { return RAM(SFR::DPH) * 256 + RAM(SFR::DPL); }
    INNEN int R(int n) const { return RAM(Bank + n); }
    INNEN int Ri(int i) const { return RAM(Indirekt_Index(R(i))); }
    // Direct, and what the stack reaches.
    INNEN int D(int d)
    {
        if constexpr (Sparsam)
            if ((Besonderheit[static_cast<std::size_t>(d)] & Beim_Lesen) != 0) [[unlikely]]
                return Besonderes_Lesen(d);
        return RAM(d);
    }

    INNEN void Fest(int Index, int Wert) // ACC, B, SP, DPTR, PSW by themselves
    {
        RAM(Index) = static_cast<Byte>(Wert);
        if constexpr (!Sparsam)
            Sim_Zelle_Zeigen_SFR(Index);
    }
    INNEN void A_Setzen(int Wert)
    {
        if constexpr (Sparsam)
            Akku = Wert & 255;
        else
            Fest(SFR::ACC, Wert);
    }
    INNEN void Flaggen(int Maske, int Wert)
    {
        const int Neu = (PSW() & ~Maske) | Wert;
        if constexpr (Sparsam)
            Status = Neu;
        else
            Fest(SFR::PSW, Neu);
    }
    INNEN void DPTR_Setzen(int Wert)
    {
        Fest(SFR::DPL, Wert & 255);
        Fest(SFR::DPH, Wert >> 8);
    }
    INNEN void In_RAM(std::int64_t Index, int Wert)
    {
        RAM(Index) = static_cast<Byte>(Wert);
        if constexpr (!Sparsam)
            Sim_Zelle_Zeigen_RAM(static_cast<int>(Index));
    }
    INNEN void R_Setzen(int n, int Wert) { In_RAM(Bank + n, Wert); }
    INNEN void Ri_Setzen(int i, int Wert) { In_RAM(Indirekt_Index(R(i)), Wert); }
    INNEN void D_Setzen(int d, int Wert)
    {
        if constexpr (Sparsam)
            if ((Besonderheit[static_cast<std::size_t>(d)] & Beim_Schreiben) != 0) [[unlikely]]
                return Besonderes_Schreiben(d, Wert);
        RAM(d) = static_cast<Byte>(Wert);
        if constexpr (!Sparsam) {
            if (d == SFR::PSW)
                Bank = Wert & PSW_RS;
            Sim_Zelle_Zeigen_RAM(d);
            Sim_Zelle_Zeigen_SFR(d);
        }
    }
    INNEN void XRAM_Setzen(int Adresse)
    {
        Sim_XRAM[static_cast<std::size_t>(Adresse)] = static_cast<Byte>(A());
        if constexpr (!Sparsam)
            Sim_Zelle_Zeigen_EXRAM(Adresse);
    }
    INNEN void XRAM_Holen(int Adresse) { A_Setzen(Sim_XRAM[static_cast<std::size_t>(Adresse)]); }

    INNEN int  Bit(int b) { return (D(Bit_Byte(b)) >> (b & 7)) & 1; }
    INNEN void Bit_Speichern(int b, int Wert)
    {
        const int Index  = Bit_Byte(b);
        const int Maske  = 1 << (b & 7);
        const int Vorher = D(Index);
        D_Setzen(Index, Wert != 0 ? Vorher | Maske : Vorher & ~Maske);
    }

    INNEN void CY_Setzen(int Wert) { Flaggen(PSW_CY, Wert << 7); }
    INNEN void Ergebnis(const Rechen_Ergebnis& e)
    {
        Flaggen(Rechen_Flaggen, e.Flaggen);
        A_Setzen(e.Wert);
    }

    // --- the stack: index SP as it stands, in the one array ---

    INNEN void Stapel_Hoch() { Fest(SFR::SP, RAM(SFR::SP) + 1); }
    INNEN void Stapel_Runter() { Fest(SFR::SP, RAM(SFR::SP) - 1); }
    INNEN void Stapel_Setzen(int Wert) { D_Setzen(RAM(SFR::SP), Wert); }
    INNEN int  Stapel() { return D(RAM(SFR::SP)); }
    INNEN void Adresse_Stapeln(int Adresse)
    {
        Stapel_Hoch();
        Stapel_Setzen(Adresse & 255);
        Stapel_Hoch();
        Stapel_Setzen((Adresse >> 8) & 255);
    }

    // --- instructions that are more than one store ---

    INNEN void Springen(int Basis, bool Wirklich)
    {
        if (Wirklich)
            Ziel = Relativ_Ziel(Hier() + Basis, static_cast<Byte>(Code(Basis - 1)));
    }
    INNEN int  Seite() const { return ((Hier() + 2) & 0xF800) | (Code(0) >> 5) * 256 | Code(1); }
    INNEN void CALL(int Adresse, int Laenge)
    {
        Ziel = Adresse; // the operands are read before the stack is written: it isn't code memory
        Adresse_Stapeln(Hier() + Laenge);
    }
    INNEN void RET()
    {
        const int Hoch = Stapel();
        Stapel_Runter();
        Ziel = Hoch * 256 + Stapel();
        Stapel_Runter();
    }
    INNEN void RETI()
    {
        RET();
        Sim_Prio = -1;
        if constexpr (Sparsam)
            Aufmerken();
    }
    INNEN void ADD(int b)
    {
        Ergebnis(Addieren(static_cast<unsigned>(A()), static_cast<unsigned>(b)));
    }
    INNEN void ADDC(int b) { ADD(b + CY()); }
    INNEN void SUBB(int b)
    {
        Ergebnis(Subtrahieren(static_cast<unsigned>(A()), static_cast<unsigned>(b + CY())));
    }
    INNEN void MUL()
    {
        const int Produkt = A() * RAM(SFR::B);
        A_Setzen(Produkt & 255);
        Fest(SFR::B, Produkt >> 8);
        Flaggen(PSW_CY | PSW_OV, Produkt > 255 ? PSW_OV : 0);
    }
    INNEN void DIV()
    {
        const int a = A();
        const int b = RAM(SFR::B);
        if (b != 0) {
            A_Setzen(a / b);
            Fest(SFR::B, a % b);
        }
        Flaggen(PSW_CY | PSW_OV, b == 0 ? PSW_OV : 0);
    }
    INNEN void DA()
    {
        const int  p = PSW();
        const auto e =
            Dezimal_Angleichen(static_cast<unsigned>(A()), (p & PSW_CY) != 0, (p & PSW_AC) != 0);
        Flaggen(0, e.Flaggen);
        A_Setzen(e.Wert);
    }
    INNEN void DJNZ(int d)
    {
        const int w = (D(d) - 1) & 255;
        D_Setzen(d, w);
        Springen(3, w != 0);
    }
    INNEN void CJNE(int x, int y)
    {
        if (x != y)
            CY_Setzen(x < y ? 1 : 0);
        Springen(3, x != y);
    }
    INNEN void RRC()
    {
        const int a = A();
        A_Setzen(a >> 1 | CY() << 7);
        CY_Setzen(a & 1);
    }
    INNEN void RLC()
    {
        const int a = A();
        A_Setzen((a << 1 & 255) | CY());
        CY_Setzen(a >> 7);
    }
    INNEN void JBC(int b)
    {
        const bool An = Bit(b) != 0;
        if (An)
            Bit_Speichern(b, 0);
        Springen(3, An);
    }
    INNEN void PUSH(int d)
    {
        Stapel_Hoch();
        Stapel_Setzen(D(d));
    }
    INNEN void POP(int d)
    {
        D_Setzen(d, Stapel());
        Stapel_Runter();
    }
    INNEN void XCHD(int i)
    {
        const int a = A();
        const int m = Ri(i);
        A_Setzen((a & 0xF0) | (m & 0x0F));
        Ri_Setzen(i, (m & 0xF0) | (a & 0x0F));
    }
    INNEN void MOV_Direkt_Direkt()
    {
        if (O_MOV_ZQ)
            D_Setzen(Code(2), D(Code(1)));
        else
            D_Setzen(Code(1), D(Code(2)));
    }
    INNEN void MOVC_PC()
    {
        const int Adresse = Hier() + 1 + A();
        A_Setzen(Hex_Daten[static_cast<std::size_t>(
            Adresse < Code_Groesse ? Adresse : Adresse - Code_Groesse)]);
    }

    // --- the hardware around it ---

    INNEN void Zeitgeber_Nachziehen()
    {
        const std::int32_t Takte = Rueckstand.Angesetzt - Konto.Takte();
        Zeitgeber_Vorstellen(Takte);
        Rueckstand.Ruhe -= Takte;
        Rueckstand.Angesetzt = Konto.Takte();
    }
    // Something that the peripherals see is about to change: this instruction gets an exact pass.
    INNEN void Aufmerken()
    {
        Zeitgeber_Nachziehen();
        Konto.Aufbrauchen();
        Rueckstand = {0, -1};
    }
    INNEN int Besonderes_Lesen(int d)
    {
        if (d == SFR::ACC)
            return Akku;
        if (d == SFR::PSW)
            return (Status & ~PSW_P) | Paritaet(static_cast<Byte>(Akku));
        Zeitgeber_Nachziehen();
        return RAM(d);
    }
    INNEN void Besonderes_Schreiben(int d, int Wert)
    {
        if (d == SFR::ACC)
            return A_Setzen(Wert);
        if (d == SFR::PSW) {
            Status = Wert & 255;
            Bank   = Wert & PSW_RS;
            return;
        }
        Aufmerken();
        RAM(d) = static_cast<Byte>(Wert);
    }

public:
    // --- the opcodes. Code(1) and Code(2) are the operand bytes. ---

    // clang-format off
// A row: one opcode; a pair for @R0 and @R1; eight for R0 to R7; the eight pages of a jump.
#define EINER(Opcode, ...)                                                                         \
    INNEN void Ausfuehren(Nummer<(Opcode)>)                                                        \
    {                                                                                              \
        Ziel = PC + Befehl_Laenge(Opcode);                                                         \
        __VA_ARGS__;                                                                               \
        PC = Ziel;                                                                                 \
        Konto.template Buchen<(Opcode)>();                                                         \
    }
#define MIT_NUMMER(Opcode, Name, Nummer, ...)                                                      \
    EINER((Opcode) + (Nummer), constexpr int Name = Nummer; __VA_ARGS__)
#define INDIREKT(Opcode, ...)                                                                      \
    MIT_NUMMER(Opcode, i, 0, __VA_ARGS__) MIT_NUMMER(Opcode, i, 1, __VA_ARGS__)
#define REGISTER(Opcode, ...)                                                                      \
    MIT_NUMMER(Opcode, r, 0, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 1, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 2, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 3, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 4, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 5, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 6, __VA_ARGS__)                                                          \
    MIT_NUMMER(Opcode, r, 7, __VA_ARGS__)
#define SEITEN(Opcode, ...)                                                                        \
    EINER((Opcode), __VA_ARGS__)                                                                   \
    EINER((Opcode) + 0x20, __VA_ARGS__)                                                            \
    EINER((Opcode) + 0x40, __VA_ARGS__)                                                            \
    EINER((Opcode) + 0x60, __VA_ARGS__)                                                            \
    EINER((Opcode) + 0x80, __VA_ARGS__)                                                            \
    EINER((Opcode) + 0xA0, __VA_ARGS__)                                                            \
    EINER((Opcode) + 0xC0, __VA_ARGS__)                                                            \
    EINER((Opcode) + 0xE0, __VA_ARGS__)

    EINER(0x00, (void)0)                                              // NOP
    SEITEN(0x01, Ziel = Seite())                                      // AJMP
    SEITEN(0x11, CALL(Seite(), 2))                                    // ACALL
    EINER(0x02, Ziel = Code(1) * 256 + Code(2))                       // LJMP
    EINER(0x12, CALL(Code(1) * 256 + Code(2), 3))                     // LCALL
    EINER(0x22, RET())
    EINER(0x32, RETI())
    EINER(0x73, Ziel = (A() + DPTR()) & 0xFFFF)                       // JMP @A+DPTR
    EINER(0x80, Springen(2, true))                                    // SJMP
    EINER(0x40, Springen(2, CY() != 0))                               // JC
    EINER(0x50, Springen(2, CY() == 0))                               // JNC
    EINER(0x60, Springen(2, A() == 0))                                // JZ
    EINER(0x70, Springen(2, A() != 0))                                // JNZ
    EINER(0x10, JBC(Code(1)))
    EINER(0x20, Springen(3, Bit(Code(1)) != 0))                       // JB
    EINER(0x30, Springen(3, Bit(Code(1)) == 0))                       // JNB

    EINER(0x03, A_Setzen(A() >> 1 | (A() & 1) << 7))                  // RR A
    EINER(0x13, RRC())
    EINER(0x23, A_Setzen((A() << 1 & 255) | A() >> 7))                // RL A
    EINER(0x33, RLC())
    EINER(0xC4, A_Setzen((A() << 4 & 255) | A() >> 4))                // SWAP A
    EINER(0xE4, A_Setzen(0))                                          // CLR A
    EINER(0xF4, A_Setzen(A() ^ 255))                                  // CPL A
    EINER(0xD4, DA())
    EINER(0x84, DIV())
    EINER(0xA4, MUL())

    EINER(0x04, A_Setzen(A() + 1))                                    // INC
    EINER(0x05, D_Setzen(Code(1), D(Code(1)) + 1))
    INDIREKT(0x06, Ri_Setzen(i, Ri(i) + 1))
    REGISTER(0x08, R_Setzen(r, R(r) + 1))
    EINER(0xA3, DPTR_Setzen((DPTR() + 1) & 0xFFFF))
    EINER(0x14, A_Setzen(A() - 1))                                    // DEC
    EINER(0x15, D_Setzen(Code(1), D(Code(1)) - 1))
    INDIREKT(0x16, Ri_Setzen(i, Ri(i) - 1))
    REGISTER(0x18, R_Setzen(r, R(r) - 1))

    EINER(0x24, ADD(Code(1)))
    EINER(0x25, ADD(D(Code(1))))
    INDIREKT(0x26, ADD(Ri(i)))
    REGISTER(0x28, ADD(R(r)))
    EINER(0x34, ADDC(Code(1)))
    EINER(0x35, ADDC(D(Code(1))))
    INDIREKT(0x36, ADDC(Ri(i)))
    REGISTER(0x38, ADDC(R(r)))
    EINER(0x94, SUBB(Code(1)))
    EINER(0x95, SUBB(D(Code(1))))
    INDIREKT(0x96, SUBB(Ri(i)))
    REGISTER(0x98, SUBB(R(r)))

    EINER(0x42, D_Setzen(Code(1), D(Code(1)) | A()))                  // ORL
    EINER(0x43, D_Setzen(Code(1), D(Code(1)) | Code(2)))
    EINER(0x44, A_Setzen(A() | Code(1)))
    EINER(0x45, A_Setzen(A() | D(Code(1))))
    INDIREKT(0x46, A_Setzen(A() | Ri(i)))
    REGISTER(0x48, A_Setzen(A() | R(r)))
    EINER(0x52, D_Setzen(Code(1), D(Code(1)) & A()))                  // ANL
    EINER(0x53, D_Setzen(Code(1), D(Code(1)) & Code(2)))
    EINER(0x54, A_Setzen(A() & Code(1)))
    EINER(0x55, A_Setzen(A() & D(Code(1))))
    INDIREKT(0x56, A_Setzen(A() & Ri(i)))
    REGISTER(0x58, A_Setzen(A() & R(r)))
    EINER(0x62, D_Setzen(Code(1), D(Code(1)) ^ A()))                  // XRL
    EINER(0x63, D_Setzen(Code(1), D(Code(1)) ^ Code(2)))
    EINER(0x64, A_Setzen(A() ^ Code(1)))
    EINER(0x65, A_Setzen(A() ^ D(Code(1))))
    INDIREKT(0x66, A_Setzen(A() ^ Ri(i)))
    REGISTER(0x68, A_Setzen(A() ^ R(r)))

    EINER(0x72, CY_Setzen(CY() | Bit(Code(1))))                       // ORL C,bit
    EINER(0xA0, CY_Setzen(CY() | (Bit(Code(1)) ^ 1)))                 // ORL C,/bit
    EINER(0x82, CY_Setzen(CY() & Bit(Code(1))))                       // ANL C,bit
    EINER(0xB0, CY_Setzen(CY() & (Bit(Code(1)) ^ 1)))                 // ANL C,/bit
    EINER(0x92, Bit_Speichern(Code(1), CY()))                         // MOV bit,C
    EINER(0xA2, CY_Setzen(Bit(Code(1))))                              // MOV C,bit
    EINER(0xB2, Bit_Speichern(Code(1), Bit(Code(1)) ^ 1))             // CPL
    EINER(0xB3, CY_Setzen(CY() ^ 1))
    EINER(0xC2, Bit_Speichern(Code(1), 0))                            // CLR
    EINER(0xC3, CY_Setzen(0))
    EINER(0xD2, Bit_Speichern(Code(1), 1))                            // SETB
    EINER(0xD3, CY_Setzen(1))

    EINER(0x74, A_Setzen(Code(1)))                                    // MOV
    EINER(0x75, D_Setzen(Code(1), Code(2)))
    INDIREKT(0x76, Ri_Setzen(i, Code(1)))
    REGISTER(0x78, R_Setzen(r, Code(1)))
    EINER(0x85, MOV_Direkt_Direkt())
    INDIREKT(0x86, D_Setzen(Code(1), Ri(i)))
    REGISTER(0x88, D_Setzen(Code(1), R(r)))
    EINER(0x90, DPTR_Setzen(Code(1) * 256 + Code(2)))
    INDIREKT(0xA6, Ri_Setzen(i, D(Code(1))))
    REGISTER(0xA8, R_Setzen(r, D(Code(1))))
    EINER(0xE5, A_Setzen(D(Code(1))))
    INDIREKT(0xE6, A_Setzen(Ri(i)))
    REGISTER(0xE8, A_Setzen(R(r)))
    EINER(0xF5, D_Setzen(Code(1), A()))
    INDIREKT(0xF6, Ri_Setzen(i, A()))
    REGISTER(0xF8, R_Setzen(r, A()))
    EINER(0x83, MOVC_PC())
    EINER(0x93, A_Setzen(Hex_Daten[static_cast<std::size_t>((A() + DPTR()) & 0xFFFF)]))
    EINER(0xE0, XRAM_Holen(DPTR()))                                   // MOVX: P2 takes no part
    INDIREKT(0xE2, XRAM_Holen(R(i)))
    EINER(0xF0, XRAM_Setzen(DPTR()))
    INDIREKT(0xF2, XRAM_Setzen(R(i)))

    EINER(0xB4, CJNE(A(), Code(1)))
    EINER(0xB5, CJNE(A(), D(Code(1))))
    INDIREKT(0xB6, CJNE(Ri(i), Code(1)))
    REGISTER(0xB8, CJNE(R(r), Code(1)))
    EINER(0xD5, DJNZ(Code(1)))
    REGISTER(0xD8, R_Setzen(r, R(r) - 1); Springen(2, R(r) != 0))

    EINER(0xC0, PUSH(Code(1)))
    EINER(0xD0, POP(Code(1)))
    EINER(0xC5, const int a = A(); A_Setzen(D(Code(1))); D_Setzen(Code(1), a))      // XCH
    INDIREKT(0xC6, const int a = A(); A_Setzen(Ri(i)); Ri_Setzen(i, a))
    REGISTER(0xC8, const int a = A(); A_Setzen(R(r)); R_Setzen(r, a))
    INDIREKT(0xD6, XCHD(i))
    INNEN void Ausfuehren(Nummer<Stoppunkt_Opcode>) {}
    // clang-format on

#undef EINER
#undef MIT_NUMMER
#undef INDIREKT
#undef REGISTER
#undef SEITEN
#undef INNEN
};

} // namespace varnholt
