// Rich text from anybody: what is read can be written, and reads back the same.
#include "files/Rtf.h"

#include "Eingabe.h"
#include "core/codepage.h"

using namespace varnholt;
using namespace varnholt::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Anzahl)
{
    Eingabe           Ein(Daten, Anzahl);
    const std::string Bytes = Ein.Text();

    const Reich_Text_T Text = Rtf_Lesen(Bytes).Text;
    Muss(!Text.Absaetze.empty());
    Muss(Ist_UTF8(Reiner_Text(Text)));
    Muss(Rtf_Normal(Text) == Text);

    const std::string Datei = Rtf_Schreiben(Text);
    Muss(Ist_Rtf(Datei));
    Muss(Rtf_Lesen(Datei).Text == Text);

    // Within small limits it ends early, and is still a text.
    const Rtf_Ergebnis_T Kurz = Rtf_Lesen(Bytes, {16, 3, 4});
    Muss(Reiner_Text(Kurz.Text).size() <= 16 + 2 * 3);
    Muss(Rtf_Normal(Kurz.Text) == Kurz.Text);
    return 0;
}
