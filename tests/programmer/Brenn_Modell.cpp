// The byte sequences of the EEPROM, flash and page routines and of the memory read, written down a
// second time.
#include "programmer/Brenn_Modell.h"

namespace varnholt::test {
namespace {

constexpr char Hex[] = "0123456789ABCDEF";

bool Beginnt(const std::string& Text, const char* Anfang) { return Text.rfind(Anfang, 0) == 0; }

} // namespace

std::string Ohne_Ruheleitungen(const std::string& Spur)
{
    std::string Kurz;
    Kurz.reserve(Spur.size());
    for (std::size_t i = 0; i < Spur.size();) {
        const std::size_t n = Spur.find('\n', i);
        Kurz.append(Spur, i, Spur[i] == 'R' ? 5 : n - i);
        Kurz += '\n';
        i = n + 1;
    }
    return Kurz;
}

void Brenn_Modell::D(int Wert)
{
    Zeilen += "W D ";
    Zeilen += Hex[Wert >> 4 & 15];
    Zeilen += Hex[Wert & 15];
    Zeilen += '\n';
}

void Brenn_Modell::C(int Wert)
{
    Zeilen += "W C ";
    Zeilen += Hex[Wert >> 4 & 15];
    Zeilen += Hex[Wert & 15];
    Zeilen += '\n';
}

void Brenn_Modell::U(int Wert) { Zeilen += "U " + std::to_string(Wert) + "\n"; }
void Brenn_Modell::M(int Wert) { Zeilen += "M " + std::to_string(Wert) + "\n"; }

void Brenn_Modell::Gerade(int Wert)
{
    int s = (Wert & 1) != 0 ? 0 : 8; // S7 is inverted
    s += (Wert & 4) != 0 ? 4 : 0;
    s += (Wert & 16) != 0 ? 2 : 0;
    s += (Wert & 64) != 0 ? 1 : 0;
    Zeilen += std::string("R S ") + Hex[s] + "\n";
}

void Brenn_Modell::Ungerade(int Wert) { Gerade(Wert >> 1); }

Brenn_Modell::Adresse_T Brenn_Modell::Editor(std::int64_t a) const
{
    std::int64_t e = a - (IC_Von - Editor_Von);
    if (Split == 1)
        e = 2 * e;
    if (Split == 2)
        e = 2 * e + 1;
    if (e < 0)
        return {e, 0};
    if (e >= static_cast<std::int64_t>(Bild.size()))
        return {e, 255};
    return {e, Bild[static_cast<std::size_t>(e)]};
}

// C2: 0 never, 1 always, 15 and 18 the address bits.
int Brenn_Modell::Hoch(std::int64_t a, int C2) const
{
    const std::int64_t h  = a / 65536;
    const std::int64_t h2 = h / 2;
    int                w  = 0;
    if (!(h == 1 || h == 3 || h == 5 || h == 7))
        w += 8;
    if (!(h2 == 1 || h2 == 3))
        w += 1;
    if (C2 == 1 || (C2 == 18 && h2 / 2 == 1) || (C2 == 15 && a / 32768 % 2 == 1))
        w += 4;
    return w;
}

void Brenn_Modell::Schieben(int Wert, int Basis)
{
    for (int i = 7; i >= 0; --i) {
        const int b = (Wert >> i & 1) != 0 ? 128 : 0;
        D(Basis + b);
        D(Basis + 32 + b);
    }
    D(Basis - 64);
    D(Basis);
    D(Basis - 64);
}

// One write of this address: false while the cell doesn't take.
bool Brenn_Modell::Nimmt(std::int64_t a)
{
    ++Programmiert[a];
    const auto p = Spaet.find(a);
    return p == Spaet.end() || p->second-- <= 0;
}

// ---- read ----

void Brenn_Modell::Lese_Lauf(const std::vector<bool>& Offen)
{
    const bool Mit_Bank = P == "28C040" || P == "29C040";
    const int  Adj      = R == "87C257" || Mit_Bank ? 1 : 0;
    int        C2       = 0;
    if (R == "28C010" || R == "28C040" || P == "28C010" || P == "28C040")
        C2 = 15;
    if (R == "29C040" || P == "29C040" || R == "27C010" || R == "27C020")
        C2 = 1;
    if (R == "27C040" || R == "27C080")
        C2 = 18;
    const bool Bloecke = R == "28C010" || R == "28C256" || R == "28C040";
    D(74);
    C(13);
    M(1);
    C(15);
    M(1);
    Bank = 0;
    if (R == "28C64") {
        for (int i = 0; i < 8192; ++i) {
            D(75);
            D(79);
        }
        D(75);
    }
    for (std::int64_t a = 0; a < Bytes; ++a) {
        while (!Offen.empty() && a < Bytes && !Offen[static_cast<std::size_t>(a / Seite)]) {
            for (int i = 0; i < Seite; ++i) {
                D(75 - Adj - Bank);
                D(79 - Adj - Bank);
            }
            D(75);
            a += Seite;
            if (a == 0x40000 && Mit_Bank)
                Bank = 1;
        }
        if (a >= Bytes)
            break;
        if (a == 0x40000 && Mit_Bank)
            Bank = 1;
        C(Hoch(a, C2) + 2);
        D(75 - Adj - Bank);
        U(R_Zeit);
        Gerade(Zellen[static_cast<std::size_t>(a)]);
        D(203 - Adj - Bank);
        U(R_Zeit);
        Ungerade(Zellen[static_cast<std::size_t>(a)]);
        D(75 - Adj - Bank);
        D(79 - Adj - Bank);
        if ((a + 1) % 16384 == 0 && Bloecke) {
            for (int i = 0; i < 16384; ++i) {
                D(75);
                D(79);
            }
            D(75);
        }
    }
    D(74);
}

std::string Brenn_Modell::Lesen()
{
    Zeilen.clear();
    Lese_Lauf({});
    M(75);
    return Zeilen;
}

// ---- EEPROM ----

std::string Brenn_Modell::EEPROM()
{
    Zeilen.clear();
    const bool RAM  = Beginnt(Name, "48");
    bool       noff = No_FF;
    if (RAM || Beginnt(Name, "M28") || (!Loeschen && !Bekannt))
        noff = false;
    const std::int64_t Bis = RAM || noff ? IC_Bis : Bytes - 1;
    const int          Adj = P == "28C040" ? 1 : 0;
    const int          F   = 0 - Adj;
    const int          C2  = P == "28C010" || P == "28C040" ? 15 : 0;
    Alt                    = 0xFFFF;
    Bank                   = 0;
    D(90);
    C(9);
    M(1);
    C(11);
    M(1);
    std::int64_t a = 0;
    if (!DAT00 && !RAM)
        while (a != IC_Von) {
            D(94);
            ++a;
            D(90);
            if (Adj == 1 && a == 0x40000)
                Bank = 1;
        }
    if (P == "28C64") {
        for (int i = 0; i < 8192; ++i) {
            D(75);
            D(79);
        }
        D(75);
    }
    int Versuch = 1;
    while (a <= Bis) {
        C(Hoch(a, C2) + 2);
        if (a == 0x40000 && Adj == 1)
            Bank = 1;
        const int b = Editor(a).Byte;
        if (!(noff && b == 255)) {
            if (b != Alt) {
                Schieben(b, 90 + Bank);
                U(R_Zeit);
                U(2 * R_Zeit);
                Gerade(b);
                D(155 - Adj);
                U(R_Zeit);
                Ungerade(b);
                Alt = b;
            }
            D(27 + F + Bank);
            D(18 + Bank);
            U(R_Zeit);
            D(27 + F + Bank);
            U(P_Zeit);
            auto& Zelle = Zellen[static_cast<std::size_t>(a)];
            if (Nimmt(a))
                Zelle = static_cast<std::uint8_t>(b);
            if (Adj == 0)
                D(75);
            D(75 - Adj - Bank);
            if (Bei_B && a >= IC_Von) {
                U(R_Zeit);
                Gerade(Zelle);
                D(203 - Adj - Bank);
                U(R_Zeit);
                Ungerade(Zelle);
                if (Zelle != b) {
                    Alt = 0xFFFF;
                    if (++Versuch > 10) {
                        D(91 + F);
                        return Zeilen;
                    }
                    continue;
                }
            }
        }
        Versuch = 1;
        D(94);
        D(90);
        ++a;
        if (a % 16384 == 0 && (P == "28C256" || P == "28C010" || P == "28C040")) {
            for (int i = 0; i < 16384; ++i) {
                D(75);
                D(79);
            }
            D(75);
        }
    }
    D(90);
    M(100);
    return Zeilen;
}

// ---- flash ----

void Brenn_Modell::Befehl(int Wert, int H)
{
    Schieben(Wert, 89);
    U(2 * R_Zeit);
    Gerade(Wert);
    D(153);
    U(R_Zeit);
    Ungerade(Wert);
    D(25);
    U(R_Zeit);
    C((H + 2) % 4 + ((H + 2) & 8));
    U(R_Zeit);
    C(H + 2);
}

void Brenn_Modell::Flash_Reset(int H)
{
    Schieben(255, 89);
    C(2);
    C(H + 2);
    C(2);
    C(H + 2);
}

namespace {

int Flash_C2(const std::string& P)
{
    if (P == "28F010" || P == "28F020")
        return 1;
    return P == "28F040" || P == "28F080" ? 18 : 0;
}

} // namespace

std::string Brenn_Modell::Flash()
{
    Zeilen.clear();
    const std::int64_t Bis = No_FF ? IC_Bis : Bytes - 1;
    D(90);
    C(9);
    M(1);
    C(11);
    M(1);
    D(91);
    std::int64_t a = 0;
    if (!DAT00)
        for (; a != IC_Von; ++a) {
            D(95);
            D(91);
        }
    int Versuch = 1;
    while (a <= Bis) {
        const int b = Editor(a).Byte;
        const int H = Hoch(a, Flash_C2(P));
        C(H + 2);
        auto& Zelle = Zellen[static_cast<std::size_t>(a)];
        if (No_FF && b == 255) {
            D(75);
        } else {
            Befehl(0x40, H);
            Befehl(b, H);
            U(P_Zeit);
            if (Nimmt(a))
                Zelle = static_cast<std::uint8_t>(Zelle & b);
        }
        if (Bei_B && a >= IC_Von) {
            Befehl(0xC0, H);
            D(89);
            D(73);
            U(2 * R_Zeit);
            Gerade(Zelle);
            D(201);
            U(R_Zeit);
            Ungerade(Zelle);
            if (Zelle != b) {
                ++Versuch;
                Flash_Reset(H);
                if (Versuch > 10) {
                    D(91);
                    return Zeilen;
                }
                continue;
            }
        }
        Versuch = 1;
        D(91);
        D(95);
        D(91);
        ++a;
    }
    D(90);
    M(100);
    return Zeilen;
}

std::string Brenn_Modell::Flash_Loeschen(int Runden)
{
    Zeilen.clear();
    for (int i = 1; i <= Runden; ++i) {
        Flash_Reset(Hoch(0, Flash_C2(P)));
        C(15);
        Schieben(0x20, 89);
        C(2);
        C(6);
        M(20);
        C(2);
        C(6);
        M(20);
        C(15);
        D(74);
        if (i == Runden)
            Zellen.assign(Zellen.size(), 255);
        D(90);
        D(74);
        C(13);
        M(1);
        C(15);
        M(1);
        for (std::int64_t a = 0; a < Bytes; ++a) {
            const int z = Zellen[static_cast<std::size_t>(a)];
            C(Hoch(a, Flash_C2(P)) + 2);
            D(75);
            U(R_Zeit);
            Gerade(z);
            D(203);
            U(R_Zeit);
            Ungerade(z);
            if (z != 255)
                break;
            D(75);
            D(79);
        }
    }
    return Zeilen;
}

// ---- pages ----

void Brenn_Modell::Seite_Schreiben(std::int64_t Nummer, std::int64_t& Stand, bool Zusatz)
{
    const bool         Puls = P == "29C010" || P == "29C020" || P == "29C040";
    const std::int64_t a    = Nummer * Seite;
    Bank                    = P == "29C040" && a >= 0x40000 ? 1 : 0;
    D(90 + Bank);
    if (Stand > a) {
        C(9);
        M(1);
        C(11);
        M(1);
        Stand = 0;
    }
    while (Stand < a) {
        D(90 + Bank);
        D(94 + Bank);
        ++Stand;
    }
    D(90 + Bank);
    if (Zusatz && (Name == "M28C256" || Name == "AT28C256")) {
        D(90);
        for (int i = 0; i < 16383; ++i) {
            D(94);
            ++Stand;
            D(90);
        }
    }
    const auto Spaete = Spaete_Seiten.find(Nummer);
    const bool Taugt  = Spaete == Spaete_Seiten.end() || Spaete->second-- <= 0;
    for (std::int64_t i = a; i < a + Seite; ++i) {
        const int b = Editor(i).Byte;
        const int H = Hoch(i, Puls ? 1 : 0);
        C(H + 2);
        if (b != Alt)
            Schieben(b, 90 + Bank);
        Alt = b;
        if (Puls) {
            C(H + 2 - 4);
            C(H + 2);
        } else {
            D(19);
            D(26);
        }
        if (Taugt && i < Bytes)
            Zellen[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(b);
        if (i + 1 < a + Seite) {
            D(90 + Bank);
            D(94 + Bank);
            D(90 + Bank);
            ++Stand;
        }
    }
    M((P_Zeit + 500) / 1000);
    D(90 + Bank);
    D(202 + Bank);
    Ungerade(Taugt ? Alt : Zellen[static_cast<std::size_t>(a + Seite - 1)]);
    D(90 + Bank);
    D(94 + Bank);
    D(90 + Bank);
    ++Stand;
}

std::string Brenn_Modell::Seiten()
{
    Zeilen.clear();
    Alt                       = 0xFFFF;
    const std::int64_t Erste  = IC_Von / Seite;
    const std::int64_t Letzte = (No_FF ? IC_Bis : Bytes - 1) / Seite;
    std::int64_t       Stand  = 0;
    D(90);
    D(90);
    C(9);
    M(1);
    C(11);
    M(1);
    for (std::int64_t p = Erste; p <= Letzte; ++p)
        Seite_Schreiben(p, Stand, p == 256);
    std::vector<bool> Offen(static_cast<std::size_t>((Bytes + Seite - 1) / Seite), true);
    for (int Durchgang = 0; Durchgang < 10; ++Durchgang) {
        Lese_Lauf(Offen);
        std::int64_t Schlechte = 0;
        for (std::size_t p = 0; p < Offen.size(); ++p) {
            const auto Nummer   = static_cast<std::int64_t>(p);
            bool       Schlecht = false;
            if (Offen[p] && Nummer >= Erste && Nummer <= Letzte)
                for (std::int64_t i = Nummer * Seite; i < (Nummer + 1) * Seite && i < Bytes; ++i)
                    Schlecht |= Zellen[static_cast<std::size_t>(i)] != Editor(i).Byte;
            Offen[p] = Schlecht;
            Schlechte += Schlecht ? 1 : 0;
        }
        if (Schlechte == 0) {
            M(100);
            return Zeilen;
        }
        if (Schlechte == Letzte - Erste + 1)
            return Zeilen;
        for (std::int64_t p = Erste; p <= Letzte; ++p)
            if (Offen[static_cast<std::size_t>(p)])
                Seite_Schreiben(p, Stand, false);
    }
    return Zeilen;
}

} // namespace varnholt::test
