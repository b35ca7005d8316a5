// Erasing a device: which routine its erase type asks for, and the erases of the devices of the
// Eprommer.
#pragma once

namespace varnholt {

inline constexpr int Flash_Loesch_Versuche = 20; // rounds of a 28F erase

// Erases the selected device by the routine of its erase type; nothing for a type without one.
// reads: the device's record   sets: Antwort (2: given up), Abbruch (a 28F that stays written)
void Baustein_Löschen();
// The erase of the programming dialog: the same, but on the Tessel2 board any type is erased.
void Vor_Brennen_Löschen();
// True when that erases the selected device at all.
[[nodiscard]] bool Vor_Brennen_Loeschbar();

// The routines by erase type. The 27SF erase is guided by hand: the user moves a wire.
// sets: Antwort
void Loeschen_27SF();
void Loeschen_28C();
// Erases and scans until the device is blank.   sets: Hex_Puffer, Abbruch, Antwort
void Loeschen_28F();

} // namespace varnholt
