// The notes of a document: what follows from a change of their text.
#pragma once

namespace varnholt {

// The user changed the notes: the document has unsaved changes.
// reads: Datei_Name, Text_Sperre   sets: Datei_Geaendert, captions of both editors
void Notiz_Change();
// The window got, and lost, the focus.   sets: Aktives_Fenster; Fenster_Tabelle
void Notiz_Activate();
void Notiz_Deactivate();

} // namespace varnholt
