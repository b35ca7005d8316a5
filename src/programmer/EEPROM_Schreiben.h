// Writing byte-wide EEPROMs and battery-backed RAMs: every device whose program type begins 28C.
#pragma once

namespace varnholt {

// Writes the device by the fields of the dialog and closes it; then, with C_IC_nach_B, compares. A
// device that isn't known to be erased gets its FFh bytes too, as does one whose name begins M28 or
// 48: for them No_FF is off as long as the run lasts.
// reads: Brennmenue, Hex_Daten, C_IC_bei_B, C_IC_nach_B, No_FF, the device's record, Abbruch
// sets: Brenn_Ergebnis, Antwort, Abbruch, the groups Signale, Durchlauf and Brennlauf, CheckIC
void EEPROM_Schreiben();

} // namespace varnholt
