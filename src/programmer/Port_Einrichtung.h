// The port of the desktop program: which driver the settings choose, and its name for the status
// line. The start of the driver itself is Porttreiber_Laden.
#pragma once

#include "core/platform.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace varnholt {

// The values of Port_Art; behind Art_Ppdev follows the path of the device file.
inline constexpr std::string_view Art_Simuliert = "sim";
inline constexpr std::string_view Art_Direkt    = "io";
inline constexpr std::string_view Art_Ppdev     = "ppdev:";

// Highest base address of a port: eight registers must have room above it.
inline constexpr std::int32_t Port_Basis_Hoechste = 0xFFF8;

// What the program drives; holds for the whole run. Written by Port_Einrichten.
inline struct Port_Einrichtung_T {
    std::unique_ptr<Porttreiber> Treiber{}; // stands behind Plattform.Port once it was set up
} Port_Einrichtung;

// Gives Plattform.Port the driver that Port_Art names: "sim" a simulated board for the selected
// device, "ppdev:" and a path the kernel's port, "io" the registers at Port_Basis. An empty or
// unknown Port_Art is decided here and kept: the first parallel port that can be opened, else
// "sim". reads: Port_Art, IC_Nummer   sets: Port_Art, Plattform.Port
void Port_Einrichten();

// The driver that Port_Art and the device name, started, with its lines at rest.
void Port_Neu_Oeffnen();

// Brings the lines of the programmer to rest when the driver is open.   reads: Porttreiber_OK
void Leitungen_Ruhen();

// Port_Art for a first start: "ppdev:" and the first of these device files that can be opened for
// reading and writing, else "sim".
std::string Port_Art_Suchen(std::span<const std::string> Geraetedateien);

// The name of the port in the interface language: "Simuliert", "/dev/parport0", "378h".
// reads: Port_Art, Port_Basis, Sprache
std::string Port_Beschreibung();

// No driver of our own, as at program start. Plattform.Port must lead elsewhere.
inline void Port_Einrichtung_Zuruecksetzen() { Port_Einrichtung = {}; }

} // namespace varnholt
