// The lock bits on the Tessel2 board: one sequence for each lock type, and the read of their state.
#include "core/shared_state.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Signale.h"

#include <array>

namespace varnholt {
namespace {

constexpr std::array<int, 3> Steuerung_Der_Stufe{4, 8, 14};

// D0: 0 only for a part that is known to want 12 V.
int Spannungs_Bit() { return Kennung_Gelesen && Prog_Spannung == 12 ? 0 : 1; }

void Senden_Und_Warten(int Daten)
{
    Daten_Senden(Daten);
    Plattform.Port->Sleep(50);
}

void Stufe_Anwaehlen(int Stufe)
{
    Steuerung_Senden(Steuerung_Der_Stufe[static_cast<std::size_t>(Stufe - 1)]);
    Plattform.Port->Sleep(50);
}

void Sperren_CII(int Stufe)
{
    Stufe_Anwaehlen(Stufe);
    Senden_Und_Warten(Spannungs_Bit());
    Steuerung_Senden(14);
}

void Sperren_CIIWD(int Stufe)
{
    const int v = Spannungs_Bit();
    Stufe_Anwaehlen(Stufe);
    Daten_Senden(20 + v);
    Daten_Senden(v + 4);
    Plattform.Port->Sleep(250);
    Daten_Senden(21);
    Steuerung_Senden(14);
}

// The strobes come before the bits: this order is what the parts were made to work with.
void Sperren_SII(int Stufe)
{
    Steuerung_Senden(14);
    Schiebe_Bits = Bits_Von(Sperrbits_Fuer(Stufe));
    for (const int Daten : {4, 68, 4, 0})
        Senden_Und_Warten(Daten);
    for (std::size_t i = 8; i-- > 0;) {
        Daten_Senden(68 + Schiebe_Bits[i]);
        Daten_Senden(100 + Schiebe_Bits[i]);
    }
}

} // namespace

void Tessel2_Sperren(int Stufe)
{
    const std::string& Typ = Gewaehltes_Geraet().L_Typ;
    if (Typ == "89SII")
        Sperren_SII(Stufe);
    else if (Typ == "89CIIWD")
        Sperren_CIIWD(Stufe);
    else
        Sperren_CII(Stufe);
    Daten_Senden(Ruhe_Byte_II);
}

int Tessel2_Sperrstufe_Lesen()
{
    std::string Typ;
    MC2_Kennung_Lesen(Typ);
    if (Antwort == Antwort_Abbrechen)
        return 0;
    const bool WD    = Gewaehltes_Geraet().L_Typ == "89CIIWD";
    const int  Daten = WD ? 69 : 68;
    Steuerung_Senden(WD ? 12 : 8);
    Daten_Senden(Daten);
    const std::uint8_t Bits = Status_Byte_II(Daten + 128);
    Daten_Senden(Ruhe_Byte_II);
    return Stufe_In_Sperrbits(Bits);
}

} // namespace varnholt
