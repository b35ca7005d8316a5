// The byte sequences of the EEPROM, flash and page routines and of the memory read, written down a
// second time.
#include "programmer/Brenn_Modell.h"

#include <cmath>

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

void Brenn_Modell::Beginnen()
{
    Zeilen.clear();
    Ladungen = 0;
    Runden   = 0;
    Versuch  = 1;
}

void Brenn_Modell::Schieben(int Wert, int Basis)
{
    ++Ladungen;
    for (int i = 7; i >= 0; --i) {
        const int b = (Wert >> i & 1) != 0 ? 128 : 0;
        D(Basis + b);
        D(Basis + 32 + b);
    }
    D(Basis - 64);
    D(Basis);
    D(Basis - 64);
}

// One load and the look at the bus; a load that fails shows a wrong bit 0.
bool Brenn_Modell::Geladen(int Wert, int Basis, int Auswahl, int Vorlauf)
{
    Schieben(Wert, Basis);
    if (Vorlauf > 0)
        U(Vorlauf);
    const int Da = Schlechte_Ladungen.contains(Ladungen) ? Wert ^ 1 : Wert;
    U(2 * R_Zeit);
    Gerade(Da);
    D(Auswahl);
    U(R_Zeit);
    Ungerade(Da);
    return Da == Wert;
}

// Ten failed loads are the end of the run.
bool Brenn_Modell::Angekommen(int Wert, int Basis, int Auswahl, int Vorlauf)
{
    for (int Fehlschlaege = 0; Fehlschlaege < 10; ++Fehlschlaege)
        if (Geladen(Wert, Basis, Auswahl, Vorlauf))
            return true;
    return false;
}

// A 28C256 has counter bit 15 at its address bit 14, and doesn't see counter bit 14.
std::size_t Brenn_Modell::Ort(std::int64_t a, std::int64_t Stand) const
{
    if (R == "28C256")
        a = Stand % 16384 + Stand / 32768 % 2 * 16384;
    return static_cast<std::size_t>(a);
}

// One write of this address: false while the cell doesn't take.
bool Brenn_Modell::Nimmt(std::int64_t a)
{
    ++Programmiert[a];
    const auto p = Spaet.find(a);
    return p == Spaet.end() || p->second-- <= 0;
}

// ---- what several routines share ----

void Brenn_Modell::Zaehler_Loeschen(bool Zum_Lesen)
{
    D(Zum_Lesen ? 74 : 90);
    C(Zum_Lesen ? 13 : 9);
    M(1);
    C(Zum_Lesen ? 15 : 11);
    M(1);
}

// That many steps of the read bytes less Weniger.
void Brenn_Modell::Takten(int Anzahl, int Weniger)
{
    for (int i = 0; i < Anzahl; ++i) {
        D(75 - Weniger);
        D(79 - Weniger);
    }
    D(75);
}

// A turn of the event loop at which the run ends with that byte, if the user gives up.
bool Brenn_Modell::Gibt_Auf(int Letztes_Byte)
{
    if (++Runden != Abbruch_Runde)
        return false;
    D(Letztes_Byte);
    return true;
}

// ---- read ----

namespace {

int Lese_C2(const std::string& R, const std::string& P)
{
    if (R == "27C040" || R == "27C080")
        return 18;
    if (R == "29C040" || P == "29C040" || R == "27C010" || R == "27C020")
        return 1;
    return R == "28C010" || R == "28C040" || P == "28C010" || P == "28C040" ? 15 : 0;
}

} // namespace

// The steps over the pages that are good, from address a on.
void Brenn_Modell::Gute_Uebergehen(const std::vector<bool>& Offen,
                                   std::int64_t&            a,
                                   std::int64_t&            Stand)
{
    const bool Mit_Bank = P == "28C040" || P == "29C040";
    const int  Adj      = R == "87C257" || Mit_Bank ? 1 : 0;
    while (!Offen.empty() && a < Bytes && !Offen[static_cast<std::size_t>(a / Seite)]) {
        Takten(Seite, Adj + Bank);
        Stand += Seite;
        a += Seite;
        if (a == 0x40000 && Mit_Bank)
            Bank = 1;
    }
}

void Brenn_Modell::Zelle_Lesen(int Zelle, int Weniger)
{
    D(75 - Weniger);
    U(R_Zeit);
    Gerade(Zelle);
    D(203 - Weniger);
    U(R_Zeit);
    Ungerade(Zelle);
    D(75 - Weniger);
    D(79 - Weniger);
}

// False when the user gave up.
bool Brenn_Modell::Lese_Lauf(const std::vector<bool>& Offen)
{
    const bool Mit_Bank = P == "28C040" || P == "29C040";
    const int  Adj      = R == "87C257" || Mit_Bank ? 1 : 0;
    const bool Bloecke  = R == "28C010" || R == "28C256" || R == "28C040";
    Gelesen.resize(static_cast<std::size_t>(Bytes));
    Zaehler_Loeschen(true);
    Bank                 = 0;
    std::int64_t Stand   = 0;
    std::int64_t Gezeigt = 0;
    if (R == "28C64")
        Takten(8192, 0);
    for (std::int64_t a = 0; a < Bytes; ++a) {
        Gute_Uebergehen(Offen, a, Stand);
        if (a >= Bytes)
            break;
        if (a == 0x40000 && Mit_Bank)
            Bank = 1;
        C(Hoch(a, Lese_C2(R, P)) + 2);
        const std::int64_t Prozent = Bytes > 1 ? 100 * a / (Bytes - 1) : 0;
        if (Prozent > Gezeigt && Gibt_Auf(74))
            return false;
        Gezeigt                              = Prozent;
        const int Zelle                      = Zellen[Ort(a, Stand)];
        Gelesen[static_cast<std::size_t>(a)] = static_cast<std::uint8_t>(Zelle);
        Zelle_Lesen(Zelle, Adj + Bank);
        ++Stand;
        if ((a + 1) % 16384 == 0 && Bloecke) {
            Takten(16384, 0);
            Stand += 16384;
        }
    }
    D(74);
    return true;
}

std::string Brenn_Modell::Lesen()
{
    Beginnen();
    Lese_Lauf({});
    M(75);
    return Zeilen;
}

// ---- EEPROM ----

// The way to the first address.
std::int64_t Brenn_Modell::EEPROM_Anfang()
{
    const bool RAM = Beginnt(Name, "48");
    Alt            = 0xFFFF;
    Bank           = 0;
    Zaehler_Loeschen(false);
    std::int64_t a = 0;
    while (!DAT00 && !RAM && a != IC_Von) {
        D(94);
        ++a;
        D(90);
        if (P == "28C040" && a == 0x40000)
            Bank = 1;
    }
    if (P == "28C64")
        Takten(8192, 0);
    return a;
}

// One attempt at a byte.
Brenn_Modell::Folge_T Brenn_Modell::EEPROM_Byte(std::int64_t a, int b)
{
    const int Adj = P == "28C040" ? 1 : 0;
    if (b != Alt && !Angekommen(b, 90 + Bank, 155 - Adj, R_Zeit)) {
        D(91 - Adj);
        return Folge_T::Ende;
    }
    Alt = b;
    D(27 - Adj + Bank);
    D(18 + Bank);
    if (Gibt_Auf(90))
        return Folge_T::Ende;
    U(R_Zeit);
    D(27 - Adj + Bank);
    U(P_Zeit);
    auto& Zelle = Zellen[static_cast<std::size_t>(a)];
    if (Nimmt(a))
        Zelle = static_cast<std::uint8_t>(b);
    if (Adj == 0)
        D(75);
    D(75 - Adj - Bank);
    if (!Bei_B || a < IC_Von)
        return Folge_T::Weiter;
    U(R_Zeit);
    Gerade(Zelle);
    D(203 - Adj - Bank);
    U(R_Zeit);
    Ungerade(Zelle);
    if (Zelle == b)
        return Folge_T::Weiter;
    Alt = 0xFFFF;
    if (++Versuch <= 10)
        return Folge_T::Nochmal;
    D(91 - Adj);
    return Folge_T::Ende;
}

std::string Brenn_Modell::EEPROM()
{
    Beginnen();
    const bool         RAM  = Beginnt(Name, "48");
    const bool         Noff = No_FF && !RAM && !Beginnt(Name, "M28") && (Loeschen || Bekannt);
    const std::int64_t Bis  = RAM || Noff ? IC_Bis : Bytes - 1;
    const int          C2   = P == "28C010" || P == "28C040" ? 15 : 0;
    std::int64_t       a    = EEPROM_Anfang();
    if (Gibt_Auf(90))
        return Zeilen;
    while (a <= Bis) {
        C(Hoch(a, C2) + 2);
        if (a == 0x40000 && P == "28C040")
            Bank = 1;
        const int     b = Editor(a).Byte;
        const Folge_T f = Noff && b == 255 ? Folge_T::Weiter : EEPROM_Byte(a, b);
        if (f == Folge_T::Ende)
            return Zeilen;
        if (f == Folge_T::Nochmal)
            continue;
        Versuch = 1;
        D(94);
        D(90);
        ++a;
        if (a % 16384 == 0 && (P == "28C256" || P == "28C010" || P == "28C040"))
            Takten(16384, 0);
    }
    D(90);
    M(100);
    return Zeilen;
}

// ---- flash ----

// False when the byte never got to the bus.
bool Brenn_Modell::Befehl(int Wert, int H)
{
    if (!Angekommen(Wert, 89, 153, 0)) {
        D(91);
        return false;
    }
    D(25);
    U(R_Zeit);
    C((H + 2) % 4 + ((H + 2) & 8));
    U(R_Zeit);
    C(H + 2);
    return true;
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

Brenn_Modell::Folge_T Brenn_Modell::Flash_Pruefen(std::int64_t a, int b, int H)
{
    const int Zelle = Zellen[static_cast<std::size_t>(a)];
    if (!Befehl(0xC0, H))
        return Folge_T::Ende;
    D(89);
    D(73);
    U(2 * R_Zeit);
    Gerade(Zelle);
    D(201);
    U(R_Zeit);
    Ungerade(Zelle);
    if (Zelle == b)
        return Folge_T::Weiter;
    Flash_Reset(H);
    if (++Versuch <= 10)
        return Folge_T::Nochmal;
    D(91);
    return Folge_T::Ende;
}

// One attempt at a byte.
Brenn_Modell::Folge_T Brenn_Modell::Flash_Byte(std::int64_t a, int b)
{
    const int H = Hoch(a, Flash_C2(P));
    C(H + 2);
    if (No_FF && b == 255) {
        D(75);
    } else {
        if (!Befehl(0x40, H) || !Befehl(b, H) || Gibt_Auf(90))
            return Folge_T::Ende;
        U(P_Zeit);
        auto& Zelle = Zellen[static_cast<std::size_t>(a)];
        if (Nimmt(a))
            Zelle = static_cast<std::uint8_t>(Zelle & b);
    }
    return Bei_B && a >= IC_Von ? Flash_Pruefen(a, b, H) : Folge_T::Weiter;
}

std::string Brenn_Modell::Flash()
{
    Beginnen();
    const std::int64_t Bis = No_FF ? IC_Bis : Bytes - 1;
    std::int64_t       a   = 0;
    Zaehler_Loeschen(false);
    D(91);
    for (; !DAT00 && a != IC_Von; ++a) {
        D(95);
        D(91);
    }
    if (Gibt_Auf(90))
        return Zeilen;
    while (a <= Bis) {
        const Folge_T f = Flash_Byte(a, Editor(a).Byte);
        if (f == Folge_T::Ende)
            return Zeilen;
        if (f == Folge_T::Nochmal)
            continue;
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

std::string Brenn_Modell::Flash_Loeschen(int Anzahl)
{
    Beginnen();
    for (int i = 1; i <= Anzahl; ++i) {
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
        if (i == Anzahl)
            Zellen.assign(Zellen.size(), 255);
        D(90);
        Zaehler_Loeschen(true);
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

// The address of the last byte tells the page, that of each byte its place in it.
void Brenn_Modell::Seite_Speichern(const std::vector<std::pair<std::size_t, int>>& Bytes_Der_Seite)
{
    const auto        n      = static_cast<std::size_t>(Seite);
    const std::size_t Anfang = Bytes_Der_Seite.back().first / n * n;
    for (const auto& [Wo, Byte] : Bytes_Der_Seite)
        if (Anfang + Wo % n < Zellen.size())
            Zellen[Anfang + Wo % n] = static_cast<std::uint8_t>(Byte);
}

// The counters to address a, and the steps of two names behind it.
void Brenn_Modell::Seite_Anfahren(std::int64_t a, std::int64_t& Stand, bool Zusatz)
{
    Bank = P == "29C040" && a >= 0x40000 ? 1 : 0;
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
    if (!Zusatz || (Name != "M28C256" && Name != "AT28C256"))
        return;
    D(90);
    for (int i = 0; i < 16383; ++i) {
        D(94);
        ++Stand;
        D(90);
    }
}

// One byte into the page buffer.
void Brenn_Modell::Seite_Byte(std::int64_t i)
{
    const bool Puls = P == "29C010" || P == "29C020" || P == "29C040";
    const int  b    = Editor(i).Byte;
    const int  H    = Hoch(i, Puls ? 1 : 0);
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
}

void Brenn_Modell::Seite_Schreiben(std::int64_t Nummer, std::int64_t& Stand, bool Zusatz)
{
    const std::int64_t a = Nummer * Seite;
    Seite_Anfahren(a, Stand, Zusatz);
    const auto Spaete = Spaete_Seiten.find(Nummer);
    const bool Taugt  = Spaete == Spaete_Seiten.end() || Spaete->second-- <= 0;
    std::vector<std::pair<std::size_t, int>> Bytes_Der_Seite;
    for (std::int64_t i = a; i < a + Seite; ++i) {
        Seite_Byte(i);
        Bytes_Der_Seite.emplace_back(Ort(i, Stand), Alt);
        if (i + 1 < a + Seite)
            Seite_Schritt(Stand);
    }
    if (Taugt)
        Seite_Speichern(Bytes_Der_Seite);
    M(static_cast<int>(std::nearbyint(P_Zeit / 1000.0))); // halves to the even one
    D(90 + Bank);
    D(202 + Bank);
    Ungerade(Taugt ? Alt : Zellen[Bytes_Der_Seite.back().first]);
    Seite_Schritt(Stand);
}

void Brenn_Modell::Seite_Schritt(std::int64_t& Stand)
{
    D(90 + Bank);
    D(94 + Bank);
    D(90 + Bank);
    ++Stand;
}

// Marks in Offen the pages of those that the last read found bad; how many.
std::int64_t Brenn_Modell::Schlechte_Finden(std::vector<bool>& Offen,
                                            std::int64_t       Erste,
                                            std::int64_t       Letzte) const
{
    std::int64_t Schlechte = 0;
    for (std::size_t p = 0; p < Offen.size(); ++p) {
        const auto Nummer   = static_cast<std::int64_t>(p);
        bool       Schlecht = false;
        if (Offen[p] && Nummer >= Erste && Nummer <= Letzte)
            for (std::int64_t i = Nummer * Seite; i < (Nummer + 1) * Seite && i < Bytes; ++i)
                Schlecht |= Gelesen[static_cast<std::size_t>(i)] != Editor(i).Byte;
        Offen[p] = Schlecht;
        Schlechte += Schlecht ? 1 : 0;
    }
    return Schlechte;
}

std::string Brenn_Modell::Seiten()
{
    Beginnen();
    Alt                       = 0xFFFF;
    const std::int64_t Erste  = IC_Von / Seite;
    const std::int64_t Letzte = (No_FF ? IC_Bis : Bytes - 1) / Seite;
    std::int64_t       Stand  = 0;
    D(90);
    Zaehler_Loeschen(false);
    if (Gibt_Auf(74))
        return Zeilen;
    for (std::int64_t p = Erste; p <= Letzte; ++p) {
        Seite_Schreiben(p, Stand, p == 256);
        if (Gibt_Auf(74))
            return Zeilen;
    }
    std::vector<bool> Offen(static_cast<std::size_t>((Bytes + Seite - 1) / Seite), true);
    for (int Durchgang = 0; Durchgang < 10; ++Durchgang) {
        if (!Lese_Lauf(Offen)) {
            D(74);
            return Zeilen;
        }
        const std::int64_t Schlechte = Schlechte_Finden(Offen, Erste, Letzte);
        if (Schlechte == 0)
            M(100);
        if (Schlechte == 0 || Schlechte == Letzte - Erste + 1)
            return Zeilen;
        for (std::int64_t p = Erste; p <= Letzte; ++p) {
            if (!Offen[static_cast<std::size_t>(p)])
                continue;
            Seite_Schreiben(p, Stand, false);
            if (Gibt_Auf(74))
                return Zeilen;
        }
    }
    return Zeilen;
}

} // namespace varnholt::test
