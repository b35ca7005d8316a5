// The note file beside a document: <name>.not, the rich text of `Notiz`. A plain text is read too.
#pragma once

namespace varnholt {

// Loads the notes of the document into `Notiz`; without a file they are emptied. Mit_RTF: a file
// <name>.rtf stands in for a missing note file.
// reads: Datei_Name   sets: Notiz, Notiz_Datei
void Notiz_Laden(bool Mit_RTF);

// Saves the notes of the document as rich text; empty ones leave an existing file alone, and so do
// those whose file couldn't be read to its end (with a notice when they were changed).
// reads: Datei_Name, Notiz   sets: Notiz_Datei, Datei_Fehler
void Notiz_Speichern();

} // namespace varnholt
