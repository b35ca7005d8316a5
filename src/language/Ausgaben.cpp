// What a complete assembly leaves behind beside the image.
#include "language/Ausgaben.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Listfile.h"
#include "programmer/Geraete.h"

#include <algorithm>
#include <string>

namespace varnholt {
namespace {

// Too long for the device: a warning; the device is dropped, and the run goes on.
void Groesse_Pruefen()
{
    if (Code_Ende <= IC_Groesse_Gewaehlt())
        return;
    Melden(
        {"Die Hex-Daten passen nicht in das von Ihnen gewählte IC " + IC_Menue_Name() +
             ". Daher müssen Sie sich ein anderes IC aus dem Menü 'IC' -> 'Typ wählen' aussuchen "
             "oder den Programmcode verkleinern.",
         "The hex-date doesn´t fit into the IC you have choosen. So you must choose another IC "
         "or try to minimize your programcode."});
    for (std::int32_t a = std::max(Code_Ende, 0); a <= Bild_Groesse; ++a)
        Hex_Daten[static_cast<std::size_t>(a)] = 0xFF;
    IC_Typ_Löschen();
    Hex_Groesse = Bild_Groesse;
}

void Automatisch_Speichern(const std::string& Stamm, bool Gewuenscht, const char* Endung)
{
    if (!Gewuenscht)
        return;
    Datei_Name = Stamm + Endung;
    Datei_Speichern();
}

// The image beside the source, as binary and as hex file. The recent files stay as they were, and
// the editor of the source is the mode afterwards.
void Automatische_Dateien()
{
    const std::size_t Punkt = Quell_Pfad.rfind('.');
    if (Quell_Pfad.empty() || Punkt == std::string::npos || Punkt == 0)
        return;
    const std::string Stamm  = Quell_Pfad.substr(0, Punkt);
    const auto        Letzte = Letzte_Datei;
    const bool        Offen  = Datei_Geaendert; // of the source, which isn't saved by this
    Modus                    = Modus_Hex;
    Automatisch_Speichern(Stamm, C_Auto_Binfile, ".bin");
    Automatisch_Speichern(Stamm, C_Auto_Hexfile, ".hex");
    Modus           = Modus_MC;
    Letzte_Datei    = Letzte;
    Datei_Geaendert = Offen;
    Letzte_Dateien_Zeigen();
}

} // namespace

void Ausgaben_Schreiben()
{
    Groesse_Pruefen();
    if (C_Erstelle_Listfile)
        Listfile_Schreiben();
    if (C_Auto_Binfile || C_Auto_Hexfile)
        Automatische_Dateien();
}

} // namespace varnholt
