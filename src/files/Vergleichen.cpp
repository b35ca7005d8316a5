// The reverse check of a save: the image against a file. Loads the file into the image, since only
// so every format compares by the rules of its loader, and puts the image back.
#include "files/Speichern.h"

#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "programmer/Geraete.h"

#include <algorithm>

namespace varnholt {
namespace {

// Keeps what a load for comparing must not change, and puts it back at its end.
class Dokument_Bewahren {
public:
    Dokument_Bewahren() { Hex_Puffer.assign(Hex_Daten.begin(), Hex_Daten.end()); }
    Dokument_Bewahren(const Dokument_Bewahren&)            = delete;
    Dokument_Bewahren& operator=(const Dokument_Bewahren&) = delete;
    ~Dokument_Bewahren()
    {
        Hex_Groesse     = Groesse;
        Datei_Geaendert = Geaendert;
        Text_Aktuell    = Aktuell;
        Datei_Name      = Name;
        IC_Nummer       = Baustein;
        IC_Titel_Zeigen();
    }
    static void Bild_Zurueck()
    {
        std::copy(Hex_Puffer.begin(), Hex_Puffer.end(), Hex_Daten.begin());
    }

private:
    std::int32_t Groesse   = Hex_Groesse;
    bool         Geaendert = Datei_Geaendert;
    bool         Aktuell   = Text_Aktuell;
    std::string  Name      = Datei_Name;
    int          Baustein  = IC_Nummer;
};

std::optional<std::int32_t> Erster_Unterschied()
{
    const auto p = std::mismatch(Hex_Daten.begin(), Hex_Daten.end(), Hex_Puffer.begin()).first;
    const auto a = static_cast<std::int32_t>(p - Hex_Daten.begin());
    return a < Hex_Groesse ? std::optional(a) : std::nullopt;
}

void Urteil_Melden(bool Gleich)
{
    if (Gleich)
        Melden({"Die Daten der Datei entsprechen den Daten des Editors !",
                "The data of the file is the same as the data of the editor !"});
    else
        Melden({"Die Daten der Datei entsprechen NICHT den Daten des Editors !",
                "The data of the file is NOT the same as the data of the editor !"});
}

} // namespace

std::optional<std::int32_t> Hexdaten_Vergleichen(void (*Laden)())
{
    std::optional<std::int32_t> Unterschied;
    {
        const Dokument_Bewahren Bewahrt;
        Plattform.Ereignisse->Mauszeiger_Warten(true);
        Datei_Fehler     = Dateifehler::Keiner;
        Vergleich_Laeuft = true;
        Laden();
        Vergleich_Laeuft = false;
        Unterschied      = Erster_Unterschied();
        Bewahrt.Bild_Zurueck();
        Plattform.Ereignisse->Mauszeiger_Warten(false);
        if (Datei_Fehler != Dateifehler::Lesefehler)
            Urteil_Melden(!Unterschied);
    }
    Hex_Anzeige();
    return Unterschied;
}

std::optional<std::int32_t> Hexdaten_Vergleichen() { return Hexdaten_Vergleichen(Datei_Laden); }

} // namespace varnholt
