// The signals of the Eprommer: the byte sequences that all of its device routines are made of.
#include "programmer/Signale.h"

#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Special.h"

#include <algorithm>
#include <initializer_list>

namespace varnholt {
namespace {

constexpr std::uint8_t Pruef_Muster = 0x55;

bool Eine_Von(std::string_view a, std::string_view b, std::initializer_list<std::string_view> Typen)
{
    return std::any_of(
        Typen.begin(), Typen.end(), [&](std::string_view t) { return a == t || b == t; });
}

void Ruecksetz_Puls(int Daten, int Reset)
{
    Daten_Senden(Daten);
    Steuerung_Senden(Reset);
    Plattform.Port->Sleep(1);
    Steuerung_Senden(Reset + 2);
    Plattform.Port->Sleep(1);
}

void Muster_Laden(int v)
{
    Daten_Senden(24 + v);
    Steuerung_Senden(11);
    for (int i = 0; i < 8; ++i) {
        const int b = i % 2 == 1 ? 128 : 0;
        Daten_Senden(24 + v + b);
        Daten_Senden(56 + v + b);
        Daten_Senden(24 + v + b);
    }
    Daten_Senden(88 + v);
    Daten_Senden(24 + v);
    Daten_Senden(24 + v);
}

bool Verbindung_Da()
{
    const Geraet_T& Geraet = Gewaehltes_Geraet();
    const int       v      = Pruef_Bits(Geraet.R_Typ, Geraet.P_Typ);
    Muster_Laden(v);
    const std::uint8_t Gelesen = Bus_Lesen(Lese_Zeit(), 152 + v);
    Daten_Senden(74);
    return Gelesen == Pruef_Muster;
}

} // namespace

C2_Regel C2_Regel_Von(std::string_view R_Typ, std::string_view P_Typ, bool Beim_Lesen)
{
    if (Eine_Von(R_Typ, P_Typ, {"27C040", "27C080"}))
        return C2_Regel::Adr_18;
    if (Eine_Von(R_Typ, P_Typ, {"27C010", "27C020"}))
        return C2_Regel::Eins;
    if (Beim_Lesen && Eine_Von(R_Typ, P_Typ, {"29C040"}))
        return C2_Regel::Eins;
    return Eine_Von(R_Typ, P_Typ, {"28C010", "28C040"}) ? C2_Regel::Adr_15 : C2_Regel::Null;
}

void Daten_Senden(int Wert)
{
    Plattform.Port->KS_outpb(Port_Basis, static_cast<std::uint8_t>(Wert));
}

void Daten_Senden(std::initializer_list<int> Werte)
{
    for (const int w : Werte)
        Daten_Senden(w);
}

void Steuerung_Senden(int Wert)
{
    Plattform.Port->KS_outpb(Port_Basis + 2, static_cast<std::uint8_t>(Wert));
}

std::uint8_t Status_Lesen() { return Plattform.Port->KS_inpb(Port_Basis + 1); }

void Zaehler_Ruecksetzen_Brennen() { Ruecksetz_Puls(90, 9); }
void Zaehler_Ruecksetzen_Lesen() { Ruecksetz_Puls(74, 13); }

void Zaehler_Schritt_Brennen()
{
    const int F = Brenn_Korrektur();
    Daten_Senden(91 + F);
    Daten_Senden(95 + F);
    Daten_Senden(91 + F);
}

void Zaehler_Takten_Lesen(std::int32_t Schritte, int Korrektur)
{
    for (std::int32_t i = 0; i < Schritte; ++i) {
        Daten_Senden(75 - Korrektur);
        Daten_Senden(79 - Korrektur);
    }
    Daten_Senden(75);
}

std::int64_t Lese_Zeit() { return Gewaehltes_Geraet().R_Timing; }

void Hoch_Bits_Setzen()
{
    Hoch_Bits = Hoch_Bits_Von(Adresse_Zaehler, C2_Art);
    Steuerung_Senden(Hoch_Bits + 2);
}

void Byte_Laden(std::uint8_t Wert)
{
    const int F  = Brenn_Korrektur();
    Schiebe_Bits = Bits_Von(Wert);
    for (std::size_t i = 8; i-- > 0;) {
        Daten_Senden(91 + F + Schiebe_Bits[i]);
        Daten_Senden(123 + F + Schiebe_Bits[i]);
    }
    Daten_Senden(27 + F);
    Daten_Senden(91 + F);
    Daten_Senden(27 + F);
    Daten_Senden(27 - Adj_257);
}

void Byte_Schieben(std::uint8_t Wert, int Basis)
{
    Schiebe_Bits = Bits_Von(Wert);
    for (std::size_t i = 8; i-- > 0;) {
        Daten_Senden(Basis + Schiebe_Bits[i]);
        Daten_Senden(Basis + 32 + Schiebe_Bits[i]);
    }
    Daten_Senden(Basis - 64);
    Daten_Senden(Basis);
    Daten_Senden(Basis - 64);
}

bool Byte_Auf_Bus(std::uint8_t Wert) { return Bus_Lesen(2 * Lese_Zeit(), 155 - Adj_257) == Wert; }

std::uint8_t Bus_Lesen(std::int64_t Vor_Gerade, int Auswahl)
{
    Warte_Mikrosekunden(Vor_Gerade);
    const int Gerade = Gerade_Bits(Status_Lesen());
    Daten_Senden(Auswahl);
    Warte_Mikrosekunden(Lese_Zeit());
    return static_cast<std::uint8_t>(Gerade + Ungerade_Bits(Status_Lesen()));
}

// Cancel is the answer where no box can appear, so that a check can't go on for ever.
bool Nochmal_Fragen(const Text_Paar& Text)
{
    Antwort = Antwort_Abbrechen;
    Melden(Text, {"Achtung !", "Attention !"}, Knoepfe::Ok_Abbrechen, Symbol::Frage);
    return Antwort != Antwort_Abbrechen;
}

bool Board_Nochmal_Pruefen()
{
    return Nochmal_Fragen(
        {"Bitte überprüfen Sie ob der Brenner richtig angeschlossen und eingeschaltet ist !",
         "Please check the power supply and the connection to the programmer!"});
}

void Brenner_Pruefen()
{
    if (!C_Brenner)
        return;
    while (!Verbindung_Da() && Board_Nochmal_Pruefen()) {
    }
}

} // namespace varnholt
