// Intel-HEX from anybody: read at any offset; what was read is written and read back.
#include "files/Intel_Hex.h"

#include "Eingabe.h"
#include "files/Rohdaten.h"

using namespace varnholt;
using namespace varnholt::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe             Ein(Daten, Anzahl);
    const std::uint16_t Versatz = Ein.Zahl();
    auto                Bytes   = Leeres_Bild();
    Intel_Hex_Lesen(Ein.Text(), Versatz, Bytes);

    Bytes.resize(Intel_Hex_Hoechstens);
    std::vector<std::uint8_t> Zurueck(Bytes.size(), 0xFF);
    Intel_Hex_Lesen(Intel_Hex_Schreiben(Benutzter_Teil(Bytes)), 0, Zurueck);
    Muss(Zurueck == Bytes);
    return 0;
}
