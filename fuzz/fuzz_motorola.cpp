// S-records from anybody: read at any offset; what was read is written and read back.
#include "files/Motorola_S.h"

#include "Eingabe.h"

using namespace varnholt;
using namespace varnholt::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe             Ein(Daten, Anzahl);
    const std::uint16_t Versatz = Ein.Zahl();
    auto                Bytes   = Leeres_Bild();
    Motorola_S_Lesen(Ein.Text(), Versatz, Bytes);

    auto Zurueck = Leeres_Bild();
    Motorola_S_Lesen(Motorola_S_Schreiben(Bytes), 0, Zurueck);
    Muss(Zurueck == Bytes);
    return 0;
}
