// DAT files from anybody: read at any address; what was read is written and read back.
#include "files/Dat.h"

#include "Eingabe.h"

using namespace varnholt;
using namespace varnholt::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe             Ein(Daten, Anzahl);
    const std::uint16_t Adresse = Ein.Zahl();
    auto                Bytes   = Leeres_Bild();
    Dat_Lesen(Ein.Text(), Adresse, Bytes);

    auto Zurueck = Leeres_Bild();
    Dat_Lesen(Dat_Schreiben(Bytes), 0, Zurueck);
    Muss(Zurueck == Bytes);
    return 0;
}
