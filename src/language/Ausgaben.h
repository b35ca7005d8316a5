// What a complete assembly leaves behind beside the image.
#pragma once

namespace varnholt {

// The check against the selected device, the list file, the automatic binary and hex files.
// reads: Code_Ende, IC_Nummer, options   sets: IC_Nummer, Hex_Daten (a program that doesn't fit),
// Quell_Pfad (left at the last automatic file)
void Ausgaben_Schreiben();

} // namespace varnholt
