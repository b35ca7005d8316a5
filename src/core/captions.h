// The captions of the two editors: name, a star for unsaved changes, and the file. One document
// stands behind both, also where only one of them is on display.
#pragma once

namespace varnholt {

inline struct Editor_Titel_T {
    bool Quelle_Offen = false; // the source was changed by itself, not only its notes, since a save
} Editor_Titel_Stand;

// The caption of one of them, by window number.   reads: Datei_Name   sets: caption, Quelle_Offen
void Editor_Titel(int Nummer, bool Geaendert);
// What came from the other editor and has no file yet.   sets: caption
void Editor_Titel_Ohne_Namen(int Nummer);
// Those of both, the one of the current mode last.
// reads: Datei_Name, Modus   sets: captions, Quelle_Offen
void Titel_Geaendert(); // by the notes
void Titel_Gespeichert();
// The user has saved what is on display. A source that only the saved image was made of keeps its
// star.   reads: Datei_Name, Modus, Quelle_Offen   sets: captions
void Titel_Nach_Speichern();

} // namespace varnholt
