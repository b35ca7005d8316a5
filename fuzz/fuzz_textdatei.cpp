// Source files from anybody: unchanged they come back to the byte, edited they read back as edited.
#include "files/Textdatei.h"

#include "Eingabe.h"

using namespace varnholt;
using namespace varnholt::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe           Ein(Daten, Anzahl);
    const std::size_t Stelle = Ein.Zahl();
    const std::size_t Weg    = Ein.Zahl();
    const std::string Neu    = Ein.Text(Ein.Zahl() % 64);
    const std::string Bytes  = Ein.Text();

    const Textdatei_T Datei = Text_Entschluesseln(Bytes);
    std::string       Text  = Ganzer_Text(Datei);
    Muss(Text_Verschluesseln(Text, Datei) == Bytes);

    Text.replace(Stelle % (Text.size() + 1), Weg % 64, Neu);
    Text = Ganzer_Text(Text_Entschluesseln(Text)); // whole characters and line ends only
    std::string Geaendert = Text_Verschluesseln(Text, Datei);
    Muss(Ganzer_Text(Text_Entschluesseln(Geaendert)) == Text);

    const Textdatei_T Gespeichert = Gespeicherte_Textdatei(std::move(Geaendert), Datei);
    Muss(Ganzer_Text(Gespeichert) == Text);
    Muss(Text_Verschluesseln(Text, Gespeichert) == Gespeichert.Original);
    return 0;
}
