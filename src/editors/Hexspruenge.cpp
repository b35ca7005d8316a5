// Jumps in the hex editor: to an address, to the first and to the last used byte.
#include "editors/Hexspruenge.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/platform.h"
#include "editors/Hexedit.h"
#include "language/HexDez.h"

#include <algorithm>

namespace varnholt {
namespace {

bool Ist_Ziffer(char c) { return c >= '0' && c <= '9'; }

} // namespace

std::int32_t Adresse_Aus_Eingabe(std::string_view Text)
{
    while (!Text.empty() && Text.front() == ' ')
        Text.remove_prefix(1);
    while (!Text.empty() && Text.back() == ' ')
        Text.remove_suffix(1);
    if (Text.empty())
        return -1;
    if (Text.back() == 'h' || Text.back() == 'H')
        return Hex_zu_Wert(Text);
    if (!std::all_of(Text.begin(), Text.end(), Ist_Ziffer))
        return -1;
    std::int64_t Wert = 0;
    for (const char c : Text)
        Wert = std::min<std::int64_t>(10 * Wert + (c - '0'), Hex_Obergrenze);
    return static_cast<std::int32_t>(Wert);
}

void MNU_Adresse_direkt_Click()
{
    const std::string Frage = In_Sprache(
        {"Bitte geben Sie die zu zeigende Adresse ein. Sie können die Adresse im Dezimalformat "
         "oder im Hexadezimalformat eingeben. Bitte kennzeichnen Sie eine Eingabe im "
         "Hexadezimalformat durch ein abschließendes 'h'.\r\n Beispiel 255 oder FFh",
         "Please enter the address you want to see. You can enter the address in decimal or in "
         "hexadecimal format. Please indicate hexadecimal address with the convertional trailing "
         "'h'.\r\n Examples 255 or FFh"});
    const std::string Text = Plattform.Box->Eingeben(Frage);
    if (Text.empty())
        return;
    const std::int32_t Adresse = Adresse_Aus_Eingabe(Text);
    if (Adresse < 0 || Adresse > Hex_Groesse)
        return Melden({"Ungültiger Wert", "Invalid value"});
    Scroll_Setzen(Adresse / Zeilen_Bytes);
}

void MNU_ErsteAdresse_Click() { Scroll_Setzen(Erstes_Byte() / Zeilen_Bytes); }

void MNU_LetzteAdresse_Click() { Scroll_Setzen(Letztes_Byte() / Zeilen_Bytes); }

} // namespace varnholt
