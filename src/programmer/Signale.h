// The signals of the Eprommer: the byte sequences that all of its device routines are made of.
#pragma once

#include "core/messages.h"
#include "programmer/Brenner_Zustand.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace varnholt {

// ---- Calculations ----

// The four even data bits (0, 2, 4, 6) in a status byte that was read with D7 = 0. S7 comes
// inverted.
constexpr int Gerade_Bits(std::uint8_t Status)
{
    return (Status & 128 ? 0 : 1) + (Status & 64 ? 4 : 0) + (Status & 32 ? 16 : 0) +
           (Status & 16 ? 64 : 0);
}
// The four odd data bits (1, 3, 5, 7) in a status byte that was read with D7 = 1.
constexpr int Ungerade_Bits(std::uint8_t Status) { return 2 * Gerade_Bits(Status); }
static_assert(Gerade_Bits(0x80) == 0 && Gerade_Bits(0x70) == 0x55 && Ungerade_Bits(0x70) == 0xAA);

// The bits of a byte as they go out on D7, each 0 or 128.
constexpr std::array<std::uint8_t, 8> Bits_Von(std::uint8_t Wert)
{
    std::array<std::uint8_t, 8> Bits{};
    for (std::size_t i = 0; i < Bits.size(); ++i)
        Bits[i] = static_cast<std::uint8_t>((Wert >> i & 1) * 128);
    return Bits;
}
static_assert(Bits_Von(0x81)[7] == 128 && Bits_Von(0x81)[0] == 128 && Bits_Von(0x81)[1] == 0);

// Control value of the address lines above bit 15, without C1. C3 and C0 are written inverted.
constexpr int Hoch_Bits_Von(std::int32_t Adresse, C2_Regel C2)
{
    const int h = Adresse / 65536;
    int       w = (h % 2 == 1 ? 0 : 8) + (h / 2 % 2 == 1 ? 0 : 1);
    if (C2 == C2_Regel::Eins || (C2 == C2_Regel::Adr_18 && h / 4 == 1) ||
        (C2 == C2_Regel::Adr_15 && Adresse / 32768 % 2 == 1))
        w += 4;
    return w;
}
static_assert(Hoch_Bits_Von(0, C2_Regel::Null) == 9 && Hoch_Bits_Von(0x30000, C2_Regel::Null) == 0);
static_assert(Hoch_Bits_Von(0x40000, C2_Regel::Adr_18) == 13);

inline constexpr std::int32_t Bank_Grenze   = 0x40000; // from here on address bit 18 is `Bank`
inline constexpr std::int32_t Versatz_28C64 = 8192;    // counter position of a 28C64's address 0
inline constexpr std::int32_t Block_Groesse = 16384;   // see Ohne_Zaehler_14

// Devices that see counter bit 15 where others have bit 14: behind each block they step over it.
constexpr bool Ohne_Zaehler_14(std::string_view Typ)
{
    return Typ == "28C010" || Typ == "28C256" || Typ == "28C040";
}

// What C2 carries for a device of these types; in a read also for the 29C040.
C2_Regel C2_Regel_Von(std::string_view R_Typ, std::string_view P_Typ, bool Beim_Lesen);

// Low bits of the connection check's bytes, by the supply that the device can stand.
constexpr int Pruef_Bits(std::string_view R_Typ, std::string_view P_Typ)
{
    if (R_Typ.starts_with("27C512") || P_Typ.starts_with("27SF"))
        return 2;
    return R_Typ.starts_with("28") ? 3 : 1;
}

// ---- Steps: one or a few writes each; a value beyond a byte is taken modulo 256 ----

void         Daten_Senden(int Wert);
void         Daten_Senden(std::initializer_list<int> Werte);
void         Steuerung_Senden(int Wert);
std::uint8_t Status_Lesen();

// The sum of the corrections on the bytes of the programming loop (Adj_512 - Adj_257).
inline int Brenn_Korrektur() { return Adj_512 - Adj_257; }
// The correction on the bytes of the read loop (Adj_257 + Bank), to be subtracted.
inline int Lese_Korrektur() { return Adj_257 + Bank; }

// Brings the counters of the board to 0 and leaves the data register at 90 or 74.
void Zaehler_Ruecksetzen_Brennen();
void Zaehler_Ruecksetzen_Lesen();
// One address further: the counter step of the programming loop.
void Zaehler_Schritt_Brennen();
// That many steps with 75 and 79, both less Korrektur, closed by a plain 75.
void Zaehler_Takten_Lesen(std::int32_t Schritte, int Korrektur);

// Settling time of the selected device, microseconds.
std::int64_t Lese_Zeit();

// Computes and sends the address bits above 15.   reads: Adresse_Zaehler, C2_Art   sets: Hoch_Bits
void Hoch_Bits_Setzen();
// Shifts Wert into the 74HC595 and puts it on the bus.   sets: Schiebe_Bits
void Byte_Laden(std::uint8_t Wert);
// The same for the EEPROM and flash routines: shifts with the byte Basis, and leaves Wert on the
// bus with the strobe that follows from it (90: 26, 90, 26).   sets: Schiebe_Bits
void Byte_Schieben(std::uint8_t Wert, int Basis);
// Reads the bus after a load: true when it carries Wert.
[[nodiscard]] bool Byte_Auf_Bus(std::uint8_t Wert);
// Two status reads, even bits then odd bits: waits Vor_Gerade, reads, sends Auswahl, waits
// Lese_Zeit, reads.
std::uint8_t Bus_Lesen(std::int64_t Vor_Gerade, int Auswahl);

// The questions of a check that failed: true when it is to be made again.   sets: Antwort
[[nodiscard]] bool Nochmal_Fragen(const Text_Paar& Text);
[[nodiscard]] bool Board_Nochmal_Pruefen();

// The connection check: proves that a board is there and has power. Asks until it is or the user
// gives up, which leaves Antwort at 2. Does nothing with the option C_Brenner off.
// reads: C_Brenner, the device's types   sets: Antwort
void Brenner_Pruefen();

} // namespace varnholt
