// The machine a second time, as a model for comparison: every rule written out one after the other,
// slow, and sharing nothing with the program. Tests run both and compare.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace varnholt::test {

class Vergleichs_Maschine {
public:
    enum class Ende { Gelaufen, Stoppunkt, Unter_Null };

    std::array<int, 384>      RAM{}; // bytes; 128 to 255 are the special function registers
    std::vector<std::uint8_t> XRAM        = std::vector<std::uint8_t>(65536);
    const std::uint8_t*       Code        = nullptr; // 65538 bytes or more
    int                       PC          = 0;
    int                       Ungefaltet  = 0; // PC before the wrap of the last step
    std::uint32_t             Zyklen      = 0;
    int                       Prio        = -1;
    std::array<int, 6>        Pins        = {};   // P3.4, P3.5, P1.0, P1.1, P3.2, P3.3
    bool                      Ziel_Zuerst = true; // MOV direct,direct: O_MOV_ZQ

    // One instruction with everything that follows it; nothing at a stop point or below address 0.
    Ende Schritt()
    {
        if (PC < 0)
            return Ende::Unter_Null;
        Op = Code[PC];
        if (Op == 0xA5)
            return Ende::Stoppunkt;
        Zyklen += static_cast<std::uint32_t>(Takte(Op));
        Ausfuehren();
        Paritaet();
        Peripherie(Laenge(Op));
        Interrupts();
        Ungefaltet = PC;
        if (PC > 65535)
            PC = 0;
        return Ende::Gelaufen;
    }

    // Bytes and machine cycles of an opcode.
    static int Laenge(int Opcode) { return Tafel(Laengen, Opcode); }
    static int Takte(int Opcode) { return Tafel(Takte_Tafel, Opcode); }

    void Paritaet()
    {
        int Summe = 0;
        for (int b = 0; b < 8; ++b)
            Summe += Bit(ACC, b);
        Bit_Setzen(PSW, 0, Summe % 2);
    }

    void Peripherie(int n)
    {
        for (int i = 0; i < 2; ++i) {
            Anzahl = n;
            Zeitgeber_01(i);
        }
        Zeitgeber_2();
        Pins[0] = Bit(P3, 4);
        Pins[1] = Bit(P3, 5);
        Pins[2] = Bit(P1, 0);
        Pins[3] = Bit(P1, 1);
        if (Bit(IE, 7) == 1) {
            Leitung(0, 0, 1, 2, 4); // IE.0: IT0 = TCON.0, IE0 = TCON.1, P3.2
            Leitung(2, 2, 3, 3, 5); // IE.2: IT1 = TCON.2, IE1 = TCON.3, P3.3
        }
        Pins[4] = Bit(P3, 2);
        Pins[5] = Bit(P3, 3);
    }

    void Interrupts()
    {
        if (Bit(IE, 7) == 0)
            return;
        // request register and bit, bit of IE and IP, vector
        constexpr int Quellen[5][4] = {{TCON, 1, 0, 3},
                                       {TCON, 5, 1, 11},
                                       {TCON, 3, 2, 19},
                                       {TCON, 7, 3, 27},
                                       {T2CON, 7, 5, 43}};
        for (const auto& q : Quellen)
            if (Bit(q[0], q[1]) == 1 && Bit(IE, q[2]) == 1 && Bit(IP, q[2]) > Prio) {
                Prio = Bit(IP, q[2]);
                if (q[0] == TCON)
                    Bit_Setzen(TCON, q[1], 0);
                Zyklen += 3;
                Peripherie(3);
                Schieben(PC & 255);
                Schieben((PC >> 8) & 255);
                PC = q[3];
                return;
            }
    }

private:
    static constexpr int SP = 129, DPL = 130, DPH = 131, TCON = 136, TMOD = 137, TL0 = 138,
                         TL1 = 139, TH0 = 140, TH1 = 141, P1 = 144, IE = 168, P3 = 176, IP = 184,
                         T2CON = 200, RCAP2L = 202, RCAP2H = 203, TL2 = 204, TH2 = 205, PSW = 208,
                         ACC = 224, B = 240;

    // One row for each high half of the opcode, a digit for each low half.
    // clang-format off
    static constexpr std::array<std::string_view, 16> Laengen = {
        "1231121111111111", "3231121111111111", "3211221111111111", "3211221111111111",
        "2223221111111111", "2223221111111111", "2223221111111111", "2221232222222222",
        "2221132222222222", "3221221111111111", "2221112222222222", "2221333333333333",
        "2221121111111111", "2221131122222222", "1211121111111111", "1211121111111111"};
    static constexpr std::array<std::string_view, 16> Takte_Tafel = {
        "1221111111111111", "2221111111111111", "2221111111111111", "2221111111111111",
        "2212111111111111", "2212111111111111", "2212111111111111", "2222121111111111",
        "2222422222222222", "2222111111111111", "1211402222222222", "1211222222222222",
        "2211111111111111", "2211121122222222", "2222111111111111", "2222111111111111"};
    // clang-format on
    static int Tafel(const std::array<std::string_view, 16>& t, int Opcode)
    {
        return t[static_cast<std::size_t>(Opcode / 16)][static_cast<std::size_t>(Opcode % 16)] -
               '0';
    }

    int Op     = 0;
    int Anzahl = 0; // ticks for the timer in hand

    // --- bytes and bits ---

    int& M(int Index) { return RAM[static_cast<std::size_t>(Index)]; }
    int  Operand(int Nummer) const { return Code[PC + Nummer]; }
    int  Bit(int Index, int Nummer) { return M(Index) / (1 << Nummer) % 2; }
    void Bit_Setzen(int Index, int Nummer, int Wert)
    {
        M(Index) += (Wert - Bit(Index, Nummer)) * (1 << Nummer);
    }
    static int Bit_Ort(int b) { return b < 128 ? 32 + b / 8 : 128 + 8 * ((b - 128) / 8); }
    int        Bit_An(int b) { return Bit(Bit_Ort(b), b % 8); }
    void       Bit_An_Setzen(int b, int Wert) { Bit_Setzen(Bit_Ort(b), b % 8, Wert); }
    int        CY() { return Bit(PSW, 7); }
    void       CY_Setzen(int Wert) { Bit_Setzen(PSW, 7, Wert); }
    int        Register(int n) { return n + 8 * Bit(PSW, 3) + 16 * Bit(PSW, 4); }
    int        Zeiger() { return M(Register(Op % 2)); } // the value of @R0 or @R1
    int        DPTR() { return M(DPH) * 256 + M(DPL); }

    // Index of the operand by the low half of the opcode: 5 direct, 6 and 7 @Ri, 8 to 15 Rn.
    int Ort()
    {
        const int Halb = Op % 16;
        if (Halb == 5)
            return Operand(1);
        if (Halb >= 8)
            return Register(Halb - 8);
        return Zeiger() <= 127 ? Zeiger() : Zeiger() + 128;
    }
    // The same for a value, where 4 is the byte behind the opcode.
    int Wert() { return Op % 16 == 4 ? Operand(1) : M(Ort()); }

    void Schieben(int Byte)
    {
        M(SP)    = M(SP) == 255 ? 0 : M(SP) + 1;
        M(M(SP)) = Byte;
    }
    int Holen()
    {
        const int Byte = M(M(SP));
        M(SP)          = M(SP) == 0 ? 255 : M(SP) - 1;
        return Byte;
    }

    // --- instructions ---

    void Ausfuehren()
    {
        const int Vorher = PC;
        Gesprungen       = false;
        if (Op % 16 == 1)
            Seitensprung();
        else if (Op % 16 < 4 || Op == 0x84 || Op == 0xA4)
            Linke_Spalten();
        else
            Rechte_Spalten();
        if (!Gesprungen)
            PC = Vorher + Laenge(Op);
    }

    bool Gesprungen = false;
    void Springen(int Ziel)
    {
        PC         = Ziel;
        Gesprungen = true;
    }
    void Relativ(bool Bedingung, int Basis, int Weite)
    {
        if (Bedingung)
            Springen(Basis + (Weite > 127 ? Weite - 256 : Weite));
    }

    void Aufrufen(int Rueckkehr, int Ziel)
    {
        Schieben(Rueckkehr % 256);
        Schieben(Rueckkehr / 256 % 256);
        Springen(Ziel);
    }

    void Zurueckkehren()
    {
        const int Hoch = Holen();
        Springen(Hoch * 256 + Holen());
    }

    void Seitensprung() // AJMP, ACALL
    {
        const int Danach = (PC + 2) % 65536;
        const int Ziel   = Danach / 2048 * 2048 + Op / 32 * 256 + Operand(1);
        if (Op % 32 == 0x11)
            Aufrufen(Danach, Ziel);
        else
            Springen(Ziel);
    }

    // Columns 0, 2 and 3 of the opcode table, with DIV and MUL.
    void Linke_Spalten()
    {
        // clang-format off
        switch (Op % 16) {
        case 0: Spalte_0(); break;
        case 2: Spalte_2(); break;
        case 3: Spalte_3(); break;
        default: Op == 0x84 ? Dividieren() : Malnehmen();
        }
        // clang-format on
    }

    void Spalte_0()
    {
        // clang-format off
        switch (Op) {
        case 0x10: Springen_Und_Loeschen(); break;
        case 0x20: Relativ(Bit_An(Operand(1)) == 1, PC + 3, Operand(2)); break;
        case 0x30: Relativ(Bit_An(Operand(1)) == 0, PC + 3, Operand(2)); break;
        case 0x40: Relativ(CY() == 1, PC + 2, Operand(1)); break;
        case 0x50: Relativ(CY() == 0, PC + 2, Operand(1)); break;
        case 0x60: Relativ(M(ACC) == 0, PC + 2, Operand(1)); break;
        case 0x70: Relativ(M(ACC) != 0, PC + 2, Operand(1)); break;
        case 0x80: Relativ(true, PC + 2, Operand(1)); break;
        case 0x90: M(DPH) = Operand(1), M(DPL) = Operand(2); break;
        case 0xA0: Carry_Wenn(Bit_An(Operand(1)) == 0, 1); break;
        case 0xB0: Carry_Wenn(Bit_An(Operand(1)) == 1, 0); break;
        case 0xC0: Stapeln(); break;
        case 0xD0: Abholen(); break;
        case 0xE0: M(ACC) = XRAM[static_cast<std::size_t>(DPTR())]; break;
        case 0xF0: XRAM[static_cast<std::size_t>(DPTR())] = static_cast<std::uint8_t>(M(ACC)); break;
        default: break; // NOP
        }
        // clang-format on
    }

    void Springen_Und_Loeschen() // JBC
    {
        const int Gesetzt = Bit_An(Operand(1));
        Bit_An_Setzen(Operand(1), 0);
        Relativ(Gesetzt == 1, PC + 3, Operand(2));
    }

    void Stapeln() // PUSH: the operand is read when SP has moved
    {
        M(SP)    = (M(SP) + 1) % 256;
        M(M(SP)) = M(Operand(1));
    }

    void Abholen() // POP: SP moves when the byte has been stored
    {
        M(Operand(1)) = M(M(SP));
        M(SP)         = (M(SP) + 255) % 256;
    }

    void Carry_Wenn(bool Bedingung, int Neu)
    {
        if (Bedingung)
            CY_Setzen(Neu);
    }

    void Spalte_2()
    {
        const int o = Operand(1);
        // clang-format off
        switch (Op) {
        case 0x02: Springen(o * 256 + Operand(2)); break;
        case 0x12: Aufrufen(PC + 3, o * 256 + Operand(2)); break;
        case 0x22: Zurueckkehren(); break;
        case 0x32: Zurueckkehren(), Prio = -1; break;
        case 0x42: M(o) |= M(ACC); break;
        case 0x52: M(o) &= M(ACC); break;
        case 0x62: M(o) ^= M(ACC); break;
        case 0x72: Carry_Wenn(Bit_An(o) == 1, 1); break;
        case 0x82: Carry_Wenn(Bit_An(o) == 0, 0); break;
        case 0x92: Bit_An_Setzen(o, CY()); break;
        case 0xA2: CY_Setzen(Bit_An(o)); break;
        case 0xB2: Bit_An_Setzen(o, 1 - Bit_An(o)); break;
        case 0xC2: Bit_An_Setzen(o, 0); break;
        case 0xD2: Bit_An_Setzen(o, 1); break;
        default: Externes_RAM();
        }
        // clang-format on
    }

    void Externes_RAM() // MOVX with @Ri: the address is the register alone
    {
        std::uint8_t& Zelle = XRAM[static_cast<std::size_t>(Zeiger())];
        if (Op / 16 == 0xE)
            M(ACC) = Zelle;
        else
            Zelle = static_cast<std::uint8_t>(M(ACC));
    }

    void Spalte_3()
    {
        const int a = M(ACC);
        // clang-format off
        switch (Op) {
        case 0x03: M(ACC) = a / 2 + a % 2 * 128; break;
        case 0x13: M(ACC) = a / 2 + CY() * 128, CY_Setzen(a % 2); break;
        case 0x23: M(ACC) = a * 2 % 256 + a / 128; break;
        case 0x33: M(ACC) = a * 2 % 256 + CY(), CY_Setzen(a / 128); break;
        case 0x43: M(Operand(1)) |= Operand(2); break;
        case 0x53: M(Operand(1)) &= Operand(2); break;
        case 0x63: M(Operand(1)) ^= Operand(2); break;
        case 0x73: Springen((a + DPTR()) % 65536); break;
        case 0x83: M(ACC) = Code[(PC + 1 + a) % 65536]; break;
        case 0x93: M(ACC) = Code[(a + DPTR()) % 65536]; break;
        case 0xA3: DPTR_Erhoehen(); break;
        case 0xB3: CY_Setzen(1 - CY()); break;
        case 0xC3: CY_Setzen(0); break;
        case 0xD3: CY_Setzen(1); break;
        default: Externes_RAM();
        }
        // clang-format on
    }

    void DPTR_Erhoehen()
    {
        const int Neu = (DPTR() + 1) % 65536;
        M(DPH)        = Neu / 256;
        M(DPL)        = Neu % 256;
    }

    void Dividieren()
    {
        const int a = M(ACC);
        const int b = M(B);
        if (b != 0) {
            M(ACC) = a / b;
            M(B)   = a % b;
        }
        CY_Setzen(0);
        Bit_Setzen(PSW, 2, b == 0 ? 1 : 0);
    }

    void Malnehmen()
    {
        const int Produkt = M(ACC) * M(B);
        M(ACC)            = Produkt % 256;
        M(B)              = Produkt / 256;
        CY_Setzen(0);
        Bit_Setzen(PSW, 2, M(B) != 0 ? 1 : 0);
    }

    // Columns 4 to 15: one instruction a row, but for a few in columns 4 to 7.
    void Rechte_Spalten()
    {
        // clang-format off
        switch (Op / 16) {
        case 0x0: Zaehlen(1); break;
        case 0x1: Zaehlen(255); break;
        case 0x2: Addieren(Wert()); break;
        case 0x3: Addieren(Wert() + CY()); break;
        case 0x4: M(ACC) |= Wert(); break;
        case 0x5: M(ACC) &= Wert(); break;
        case 0x6: M(ACC) ^= Wert(); break;
        case 0x7: M(Op == 0x74 ? ACC : Ort()) = Operand(Op == 0x75 ? 2 : 1); break;
        case 0x8: Zum_Byte(); break;
        case 0x9: Subtrahieren(Wert() + CY()); break;
        case 0xA: M(Ort()) = M(Operand(1)); break;
        case 0xB: Vergleichen(); break;
        case 0xC: Op == 0xC4 ? Halbe_Tauschen() : std::swap(M(ACC), M(Ort())); break;
        case 0xD: Reihe_D(); break;
        case 0xE: M(ACC) = Op == 0xE4 ? 0 : Wert(); break;
        default: Op == 0xF4 ? M(ACC) = 255 - M(ACC) : M(Ort()) = M(ACC);
        }
        // clang-format on
    }

    void Zaehlen(int Um)
    {
        int& Zelle = M(Op % 16 == 4 ? ACC : Ort());
        Zelle      = (Zelle + Um) % 256;
    }

    void Zum_Byte() // MOV direct,direct, MOV direct,@Ri, MOV direct,Rn
    {
        if (Op != 0x85)
            M(Operand(1)) = M(Ort());
        else if (Ziel_Zuerst)
            M(Operand(2)) = M(Operand(1));
        else
            M(Operand(1)) = M(Operand(2));
    }

    void Halbe_Tauschen() { M(ACC) = M(ACC) % 16 * 16 + M(ACC) / 16; }

    void Addieren(int b)
    {
        const int Alt_3 = Bit(ACC, 3);
        const int Alt_6 = Bit(ACC, 6);
        int       s     = M(ACC) + b;
        const int C     = s > 255 ? 1 : 0;
        s -= 256 * C;
        M(ACC)        = s;
        const int s_6 = Bit(ACC, 6);
        int       AC  = Alt_3;
        if (Bit(ACC, 3) == 1)
            AC = 0;
        int OV = 0;
        if (Alt_6 == 1 && s_6 == 0 && C == 0)
            OV = 1;
        if (Alt_6 == 0 && s_6 == 0 && C == 1)
            OV = 1;
        Flaggen(C, AC, OV);
    }

    void Subtrahieren(int b)
    {
        int       X3 = Bit(ACC, 3) == 0 ? 1 : 0;
        int       X6 = Bit(ACC, 6) == 0 ? 1 : 0;
        int       d  = M(ACC) - b;
        const int C  = d < 0 ? 1 : 0;
        d += 256 * C;
        M(ACC) = d;
        if (Bit(ACC, 3) == 0)
            X3 = 0;
        if (C == 1 && (X6 == 0 || Bit(ACC, 6) == 0))
            X6 = 1;
        Flaggen(C, X3, X6);
    }

    void Flaggen(int C, int AC, int OV)
    {
        Bit_Setzen(PSW, 7, C);
        Bit_Setzen(PSW, 6, AC);
        Bit_Setzen(PSW, 2, OV);
    }

    void Vergleichen() // CJNE
    {
        const int x = Op <= 0xB5 ? M(ACC) : M(Ort());
        const int y = Op == 0xB5 ? M(Operand(1)) : Operand(1);
        if (x == y)
            return;
        CY_Setzen(x < y ? 1 : 0);
        Relativ(true, PC + 3, Operand(2));
    }

    void Reihe_D()
    {
        if (Op == 0xD4)
            Dezimal_Angleichen();
        else if (Op == 0xD6 || Op == 0xD7)
            Untere_Halbe_Tauschen();
        else
            Herunterzaehlen();
    }

    void Untere_Halbe_Tauschen() // XCHD
    {
        int&      Zelle = M(Ort());
        const int Halb  = Zelle % 16;
        Zelle           = Zelle / 16 * 16 + M(ACC) % 16;
        M(ACC)          = M(ACC) / 16 * 16 + Halb;
    }

    void Herunterzaehlen() // DJNZ
    {
        int& Zelle = M(Ort());
        Zelle      = Zelle == 0 ? 255 : Zelle - 1;
        Relativ(Zelle != 0, PC + Laenge(Op), Operand(Op == 0xD5 ? 2 : 1));
    }

    void Dezimal_Angleichen()
    {
        int x = M(ACC);
        if (x % 16 > 9 || Bit(PSW, 6) == 1)
            x += 6;
        if (x > 255) {
            x -= 256;
            CY_Setzen(1);
        }
        if (x / 16 > 9 || CY() == 1)
            x += 96;
        if (x > 255) {
            x -= 256;
            CY_Setzen(1);
        }
        M(ACC) = x;
    }

    // --- peripherals ---

    int Modus(int i) { return 2 * Bit(TMOD, 1 + 4 * i) + Bit(TMOD, 4 * i); }

    void Zeitgeber_01(int i)
    {
        const bool Geteilt = Modus(0) == 3;
        const bool TR      = Bit(TCON, 4 + 2 * i) == 1;
        const bool Gate    = Bit(TMOD, 3 + 4 * i) == 1;
        if (!TR && !(i == 1 && Geteilt))
            return;
        if (Bit(TMOD, 2 + 4 * i) == 1) {
            const bool Flanke = Pins[static_cast<std::size_t>(i)] == 1 && Bit(P3, 4 + i) == 0;
            if (!Flanke)
                return;
            Anzahl = 1;
        }
        if (!Gate || (i == 1 && Geteilt))
            Weiterzaehlen(i);
        if (Geteilt && TR && (!Gate || Bit(P3, 2 + i) == 1)) {
            int& Zaehler = M(i == 0 ? TL0 : TH0);
            Zaehler += Anzahl;
            if (Zaehler > 255) {
                Zaehler -= 256;
                Bit_Setzen(TCON, 5 + 2 * i, 1);
            }
        }
    }

    void Weiterzaehlen(int i)
    {
        int& TL = M(i == 0 ? TL0 : TL1);
        int& TH = M(i == 0 ? TH0 : TH1);
        if (Modus(i) == 3)
            return;
        TL += Anzahl;
        if (Modus(i) == 2) {
            if (TL > 255) {
                TL = TH;
                Bit_Setzen(TCON, 5 + 2 * i, 1);
            }
            return;
        }
        const int Umfang = Modus(i) == 0 ? 32 : 256;
        if (TL > Umfang - 1) {
            TL -= Umfang;
            TH += 1;
        }
        if (TH > 255) {
            TH = 0;
            Bit_Setzen(TCON, 5 + 2 * i, 1);
        }
    }

    void Zeitgeber_2()
    {
        if (Bit(T2CON, 2) == 0) // TR2
            return;
        if (Bit(T2CON, 1) == 1) { // C/T2
            if (!(Pins[2] == 1 && Bit(P1, 0) == 0))
                return;
            Anzahl = 1;
        }
        if (Bit(T2CON, 5) == 1 || Bit(T2CON, 4) == 1) // RCLK, TCLK
            return;
        const bool Fangen = Bit(T2CON, 0) == 1; // CP/RL2
        M(TL2) += Anzahl;
        if (M(TL2) > 255) {
            M(TL2) -= 256;
            M(TH2) += 1;
        }
        if (M(TH2) > 255) {
            M(TH2) = 0;
            if (!Fangen)
                Nachladen();
            Bit_Setzen(T2CON, 7, 1);
        }
        if (Pins[3] == 1 && Bit(P1, 1) == 0 && Bit(T2CON, 3) == 1) { // EXEN2
            if (Fangen) {
                M(RCAP2L) = M(TL2);
                M(RCAP2H) = M(TH2);
            } else
                Nachladen();
            Bit_Setzen(T2CON, 6, 1);
        }
    }

    void Nachladen()
    {
        M(TL2) = M(RCAP2L);
        M(TH2) = M(RCAP2H);
    }

    void Leitung(int Freigabe, int Art, int Anforderung, int Port_Bit, int Pin)
    {
        if (Bit(IE, Freigabe) == 0 || Bit(P3, Port_Bit) == 1)
            return;
        if (Bit(TCON, Art) == 0 || Pins[static_cast<std::size_t>(Pin)] == 1)
            Bit_Setzen(TCON, Anforderung, 1);
    }
};

} // namespace varnholt::test
