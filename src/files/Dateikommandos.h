// The question before a document with unsaved changes is given up. The file commands themselves
// are in core/commands.h.
#pragma once

#include <string>

namespace varnholt {

// Asks whether to save. Antwort_Ja, Antwort_Nein or Antwort_Abbrechen; Antwort_Nein without a
// question when there is nothing to save.   reads: Datei_Geaendert   sets: Antwort when asked
int Speichern_Erfragen();

// Opens a file whose path is given (a recent file, a file dropped on the window), after the
// question.   sets: as Datei_Laden
void Datei_Vorgegeben_Laden(const std::string& Pfad);

} // namespace varnholt
