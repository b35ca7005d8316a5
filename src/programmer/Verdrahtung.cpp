// How the socket of the Eprommer is wired for a device, as its jumpers and the device's pins make
// it.
#include "programmer/Verdrahtung.h"

namespace varnholt {
namespace {

using V = Verdrahtung_T::Versorgung_T;
using S = Verdrahtung_T::Strobe_T;
using A = Verdrahtung_T::A18_T;

// Pin functions by the data sheets of the families; the first row whose type begins the text holds.
// clang-format off
constexpr Verdrahtung_T Verdrahtungen[] = {
    // type      supply          strobe      A18        bit 14  A15=C2  latch   A13 selects
    {"27C64",    V::Eigener_Pin, S::D3,      A::Keine,  true,   false,  false,  false},
    {"27C128",   V::Eigener_Pin, S::D3,      A::Keine,  true,   false,  false,  false},
    {"27C256",   V::Eigener_Pin, S::Auswahl, A::Keine,  true,   false,  false,  false},
    {"27C512",   V::Mit_Ausgabe, S::Auswahl, A::Keine,  true,   false,  false,  false},
    {"27C010",   V::Eigener_Pin, S::C2,      A::Keine,  true,   false,  false,  false},
    {"27C020",   V::Eigener_Pin, S::C2,      A::Keine,  true,   false,  false,  false},
    {"27C040",   V::Eigener_Pin, S::Auswahl, A::C2,     true,   false,  false,  false},
    {"27C080",   V::Mit_Ausgabe, S::Auswahl, A::C2,     true,   false,  false,  false},
    {"27SF512",  V::Mit_Ausgabe, S::Auswahl, A::Keine,  true,   false,  false,  false},
    {"27SF010",  V::Eigener_Pin, S::C2,      A::Keine,  true,   false,  false,  false},
    {"27SF020",  V::Eigener_Pin, S::C2,      A::Keine,  true,   false,  false,  false},
    {"27",       V::Eigener_Pin, S::Auswahl, A::Keine,  true,   false,  false,  false},
    {"87C",      V::Eigener_Pin, S::Auswahl, A::Keine,  true,   false,  true,   false},
    {"28C64",    V::Keine,       S::D3,      A::Keine,  true,   false,  false,  true },
    {"28C256",   V::Keine,       S::D3,      A::Keine,  false,  false,  false,  false},
    {"28C010",   V::Keine,       S::D3,      A::Keine,  false,  true,   false,  false},
    {"28C040",   V::Keine,       S::D3,      A::D0,     false,  true,   false,  false},
    {"28F040",   V::Eigener_Pin, S::C2,      A::C2,     true,   false,  false,  false},
    {"28F080",   V::Eigener_Pin, S::C2,      A::C2,     true,   false,  false,  false},
    {"28F",      V::Eigener_Pin, S::C2,      A::Keine,  true,   false,  false,  false},
    {"29C040",   V::Keine,       S::C2,      A::D0,     true,   false,  false,  false},
    {"29C0",     V::Keine,       S::C2,      A::Keine,  true,   false,  false,  false},
    {"29C",      V::Keine,       S::D3,      A::Keine,  true,   false,  false,  false},
    {"",         V::Keine,       S::Auswahl, A::Keine,  true,   false,  false,  false},
};
// clang-format on

const Verdrahtung_T& Zeile_Fuer(std::string_view Typ)
{
    for (const Verdrahtung_T& Zeile : Verdrahtungen)
        if (Typ.starts_with(Zeile.Typ))
            return Zeile;
    return Verdrahtungen[0];
}

enum Spannung_T { Null_Volt, Fuenf_Volt, Brennspannung };

constexpr Spannung_T Spannung_Von(std::uint8_t Daten)
{
    if ((Daten & 2) == 0)
        return Brennspannung;
    return (Daten & 1) == 0 ? Fuenf_Volt : Null_Volt;
}

bool Ausgabe_Frei(const Verdrahtung_T& v, std::uint8_t Daten)
{
    if (v.Versorgung == V::Mit_Ausgabe)
        return Spannung_Von(Daten) == Null_Volt;
    return (Daten & 16) == 0;
}

bool Gewaehlt(const Verdrahtung_T& v, std::uint8_t Daten)
{
    return !Hat_Eprom_Zellen(v) || (Daten & (8 | 16)) != (8 | 16);
}

bool Strobe_Tief(const Verdrahtung_T& v, std::uint8_t Daten, std::uint8_t Steuerung)
{
    if (v.Strobe == S::C2)
        return (Steuerung & 4) == 0;
    return v.Strobe == S::Auswahl || (Daten & 8) == 0;
}

bool Schreib_Leitung_Tief(const Verdrahtung_T& v, std::uint8_t Daten, std::uint8_t Steuerung)
{
    return !Hat_Eprom_Zellen(v) && v.Strobe != S::Auswahl && Strobe_Tief(v, Daten, Steuerung);
}

// 12 V at the output enable. Where D0 is an address line, that line alone doesn't bring them.
bool Loesch_Spannung(const Verdrahtung_T& v, std::uint8_t Daten)
{
    return v.Loesch_12V && (Daten & (v.A18 == A::D0 ? 3 : 2)) == 0;
}

} // namespace

bool Hat_Eprom_Zellen(const Verdrahtung_T& v)
{
    return v.Typ.starts_with("27") || v.Typ.starts_with("87");
}

// The 27, 87, 28F and larger 29C parts are told apart by their programming, the others by how they
// are read.
const Verdrahtung_T& Verdrahtung_Fuer(std::string_view R_Typ, std::string_view P_Typ)
{
    const bool Nach_P = P_Typ.starts_with("27") || P_Typ.starts_with("87") ||
                        P_Typ.starts_with("28F") || P_Typ.starts_with("29C0");
    return Zeile_Fuer(Nach_P ? P_Typ : R_Typ);
}

Pegel_T Pegel_Von(const Verdrahtung_T& v, std::uint8_t Daten, std::uint8_t Steuerung)
{
    const bool Hoch  = Loesch_Spannung(v, Daten);
    const bool Frei  = Ausgabe_Frei(v, Daten) && !Hoch;
    const bool Aktiv = Gewaehlt(v, Daten);
    Pegel_T    Pegel;
    Pegel.Puls = Hat_Eprom_Zellen(v) && Aktiv && !Frei && Spannung_Von(Daten) == Brennspannung &&
                 Strobe_Tief(v, Daten, Steuerung);
    Pegel.Treibt       = Aktiv && Frei;
    Pegel.Durchlaessig = !v.Latch || Spannung_Von(Daten) != Null_Volt;
    Pegel.Strobe       = Schreib_Leitung_Tief(v, Daten, Steuerung);
    Pegel.Schreibt     = Pegel.Strobe && !Frei && !Hoch;
    Pegel.Loescht      = Pegel.Strobe && Hoch;
    Pegel.Versorgt     = v.Versorgung == V::Eigener_Pin && Spannung_Von(Daten) == Brennspannung;
    return Pegel;
}

std::uint32_t Adresse_Von(const Verdrahtung_T& v,
                          std::uint16_t        Zaehler,
                          std::uint8_t         Daten,
                          std::uint8_t         Steuerung)
{
    std::uint32_t a = Zaehler;
    if (!v.Zaehler_14)
        a = (Zaehler & 0x3FFFu) | (Zaehler & 0x8000u) >> 1;
    if (v.A15_An_C2)
        a |= (Steuerung & 4u) << 13;
    if (v.A13_Waehlt)
        a &= 0x1FFFu;
    a |= (~Steuerung & 8u) << 13 | (~Steuerung & 1u) << 17;
    if (v.A18 == A::C2)
        a |= (Steuerung & 4u) << 16;
    if (v.A18 == A::D0)
        a |= (Daten & 1u) << 18;
    return a;
}

} // namespace varnholt
