// The data import: a file laid over the image at an address.
#include "files/Laden.h"

#include "core/messages.h"
#include "core/shared_state.h"
#include "language/HexDez.h"
#include "language/Val.h"

namespace varnholt {
std::int32_t Import_Adresse_Lesen(std::string_view Eingabe)
{
    const bool Hexadezimal = Eingabe.ends_with('h') || Eingabe.ends_with('H');
    return Hexadezimal ? Hex_zu_Wert(Eingabe.substr(0, Eingabe.size() - 1)) : Val(Eingabe);
}

std::optional<std::int32_t> Import_Adresse_Erfragen()
{
    const std::string Eingabe = Plattform.Box->Eingeben(In_Sprache(
        {"Bitte geben Sie die erste Adresse an, auf die die Datei geladen werden soll. Sie können "
         "die "
         "Adresse im Dezimalformat oder im Hexadezimalformat eingeben. Bitte kennzeichnen Sie eine "
         "Eingabe im Hexadezimalformat durch ein abschließendes 'h'.\r\n Beispiel 32768 oder 8000h",
         "Please enter the first address, on which the file will be load. You can enter the "
         "address in "
         "decimal or in hexadecimal format. Please indicate hexadecimal address with the "
         "convertional "
         "trailing 'h'.\r\n Examples 255 or FFh"}));
    if (Eingabe.empty())
        return std::nullopt;
    const std::int32_t Adresse = Import_Adresse_Lesen(Eingabe);
    if (Adresse >= 0 && Adresse <= Hex_Groesse)
        return Adresse;
    Melden({"Ungültiger Wert", "Invalid value"});
    return std::nullopt;
}

void Datei_Importieren(std::int32_t Adresse)
{
    Import_Laeuft  = true;
    Import_Adresse = Adresse;
    Datei_Laden();
    Import_Laeuft = false;
}

} // namespace varnholt
