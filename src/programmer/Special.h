// Start of the port driver, and the timing primitives of the device routines.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <string_view>

namespace varnholt {

// True when a wait of Dauer microseconds that began at Anfang is over at Jetzt. Only the low 32
// bits of the stamps count, as signed numbers; when they wrap, the wait ends early instead of
// hanging.
constexpr bool Wartezeit_Um(std::int64_t Anfang, std::int64_t Jetzt, std::int64_t Dauer)
{
    const auto a = static_cast<std::int32_t>(static_cast<std::uint32_t>(Anfang));
    const auto j = static_cast<std::int32_t>(static_cast<std::uint32_t>(Jetzt));
    return a > j || std::int64_t{j} - a > Dauer;
}
static_assert(!Wartezeit_Um(5, 5, 0) && Wartezeit_Um(5, 6, 0));
static_assert(!Wartezeit_Um(0, 10, 10) && Wartezeit_Um(0, 11, 10));
static_assert(Wartezeit_Um(0x7FFFFFFF, 0x80000000, 1000000));

// Longest wait, microseconds (18 minutes): the stamps' low halves can tell no longer one apart.
inline constexpr std::int64_t Wartezeit_Hoechstens = 1 << 30;

// Opens the driver and unlocks the three port registers; a failure is shown and leaves the program
// without a port.
// reads: Port_Basis   sets: Porttreiber_OK, Eichwert, Treiber_Ergebnis, Antwort
void Porttreiber_Laden();
// Shows an error of the driver: Text, its code and the driver's own words.   sets: Antwort
void Porttreiber_Fehler(int Code, std::string_view Titel, const Text_Paar& Text);

// The driver's clock, microseconds.   sets: Treiber_Ergebnis
std::int64_t Maschinenzeit();
// Busy waits: at least Dauer microseconds, a millisecond, and Sekunden by the seconds clock. The
// last one doesn't know midnight: across it the clock must come round again.
// sets: Stempel_Anfang, Stempel_Jetzt
void Warte_Mikrosekunden(std::int64_t Dauer);
void Warte_Millisekunde();
void Warte_Sekunden(double Sekunden);
// Busy wait until more than Dauer microseconds have passed since Puls_Anfang.   sets: Puls_Jetzt
void Puls_Abwarten(std::int64_t Dauer);

} // namespace varnholt
