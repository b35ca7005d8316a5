// How the socket of the Eprommer is wired for a device, as its jumpers and the device's pins make
// it.
//
// The socket has 32 pins; a 28-pin device sits at its lower end, its pin 1 in socket pin 3.
//
//   signal                     socket pin   there it is
//   counter bits 0 to 13       12..4, 23, 25..28   A0 to A13
//   counter bit 14             29           A14, unless D3 is jumpered there
//   counter bit 15             3            A15; A14 of the devices that have their write line at
//                                           pin 29 (28C256, 28C010, 28C040): there a step from one
//                                           16 KB block to the next has to pass over counter bit 14
//   C3 inverted                2            A16
//   C0 inverted                30           A17 (supply of a 28-pin device)
//   C2                         31           A18 (27C040, 27C080, 28F040, 28F080), program or write
//                                           strobe (27C010, 27C020, 28F, 29C), A15 (28C010, 28C040)
//   D0                         1            A18 of 28C040 and 29C040
//   D1, D0                     1, 3 or 24   supply: 11 gives 0 V, 10 gives 5 V, 00 and 01 give 12.5
//   V D3                         29           strobe (27C64, 27C128, 28C, small 29C) D4 24 output
//   enable D3 and D4 by two diodes    22           chip enable of the EPROMs: low while either is
//   low, so
//                                           that reading selects the device and the strobe does,
//                                           but the loading of a byte doesn't. Other devices have
//                                           it at 0 V
//
// Devices with their output enable and their programming supply on one pin (27C512, 27C080,
// 27SF512) have pin 24 at the supply: 0 V reads, 12.5 V programs. The 87C257 has its address latch
// at the supply too (pin 3): 0 V holds the address, more lets it through. Devices with a 12 V clear
// have their output enable at D4 and, while the supply is on, at 12 V. A device of the type
// 28C64 is selected by a high level at its pin 26, where A13 of larger ones lies.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace varnholt {

struct Verdrahtung_T {
    enum class Versorgung_T { Keine, Eigener_Pin, Mit_Ausgabe };
    enum class Strobe_T { Auswahl, D3, C2 };
    enum class A18_T { Keine, C2, D0 };

    std::string_view Typ{};                            // begin of the type text that is wired so
    Versorgung_T     Versorgung = Versorgung_T::Keine; // where the programming supply goes
    Strobe_T         Strobe     = Strobe_T::Auswahl;   // what ends the pulse beside the chip enable
    A18_T            A18        = A18_T::Keine;
    bool Zaehler_14 = true; // counter bit 14 is an address line; else bit 15 takes its place
    bool A15_An_C2  = false;
    bool Latch      = false; // address latch at the supply
    bool A13_Waehlt = false; // counter bit 13 is a chip enable, active high
    bool Loesch_12V = false; // pin 24 gets 12 V from the supply too, for the clear of a 28C
};

// The wiring for a device with these type texts.
const Verdrahtung_T& Verdrahtung_Fuer(std::string_view R_Typ, std::string_view P_Typ);

// What one pair of data and control values means to the device.
struct Pegel_T {
    bool Puls : 1   = false; // supply on, selected, outputs off, strobe low: cells are programmed
    bool Treibt : 1 = false; // the device drives the data bus
    bool Durchlaessig : 1 = true;  // the address latch is open
    bool Strobe : 1       = false; // write line low; always false for the EPROMs
    bool Schreibt : 1     = false; // write line low while the outputs are off: a write cycle
    bool Loescht : 1      = false; // write line low with 12 V at pin 24: a 28C is cleared
    bool Versorgt : 1     = false; // programming supply at the pin of its own

    bool operator==(const Pegel_T&) const = default;
};
Pegel_T Pegel_Von(const Verdrahtung_T& Verdrahtung, std::uint8_t Daten, std::uint8_t Steuerung);

// The families whose cells the programming pulse of the EPROMs reaches; the others have a write
// line.
bool Hat_Eprom_Zellen(const Verdrahtung_T& Verdrahtung);

// Device address from the counters and the port lines.
std::uint32_t Adresse_Von(const Verdrahtung_T& Verdrahtung,
                          std::uint16_t        Zaehler,
                          std::uint8_t         Daten,
                          std::uint8_t         Steuerung);

} // namespace varnholt
