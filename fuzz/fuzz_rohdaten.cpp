// Raw bytes at any address, also beyond the image; the used part is written and read back.
#include "files/Rohdaten.h"

#include "Eingabe.h"

using namespace varnholt;
using namespace varnholt::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe            Ein(Daten, Anzahl);
    const std::int32_t Adresse = 2 * Ein.Zahl();
    auto               Bytes   = Leeres_Bild();
    Rohdaten_Lesen(Ein.Text(), Adresse, Bytes);

    const auto Benutzt = Benutzter_Teil(Bytes);
    Muss(Benutzt.size() % 256 == 0);
    auto Zurueck = Leeres_Bild();
    Rohdaten_Lesen(Rohdaten_Schreiben(Benutzt), 0, Zurueck);
    Muss(Zurueck == Bytes);
    return 0;
}
