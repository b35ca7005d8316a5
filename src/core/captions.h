// The captions of the two editors: name, a star for unsaved changes, and the file. One document
// stands behind both, also where only one of them is on display.
#pragma once

namespace varnholt {

// The caption of one of them, by window number.   reads: Datei_Name   sets: caption
void Editor_Titel(int Nummer, bool Geaendert);
// Those of both, the one of the current mode last.   reads: Datei_Name, Modus   sets: captions
void Titel_Geaendert();
void Titel_Gespeichert();

} // namespace varnholt
