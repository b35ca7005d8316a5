// The table of names: search, definition, and the check of a name against its instruction.
#include "language/Namen.h"

#include "core/codepage.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Befehle.h"

#include <utility>

namespace varnholt {
namespace {

constexpr std::int32_t Akku_Adresse = 224; // E0h

bool Ist_Ziffer(char c) { return c >= '0' && c <= '9'; }

void Verwendung_Merken(int Index, bool Mit_Bit)
{
    if (Name_Eins == -1) {
        Name_Eins = Index;
        Bit_Eins  = Mit_Bit || Bit_Eins;
    } else if (Name_Zwei == -1) {
        Name_Zwei = Index;
        Bit_Zwei  = Mit_Bit || Bit_Zwei;
    }
}

// Bit address of a byte's bit: 20h to 2Fh are the bit-addressable RAM, of all others the bits
// follow the byte's own address.
constexpr std::int32_t Bit_Adresse(std::int32_t Byte, int Bit)
{
    return (Byte >= 32 && Byte <= 47 ? (Byte - 32) * 8 : Byte) + Bit;
}

const Namen_Eintrag& Eintrag(int Index) { return Namen_Tabelle[static_cast<std::size_t>(Index)]; }

int Art_Einer_Gleichung()
{
    if (Name_Eins == -1)
        return Name_Einfach;
    return Bit_Eins ? Name_Bit : Eintrag(Name_Eins).Art;
}

void Eintragen(std::string_view Name, int Art, int Herkunft)
{
    Name_Anfuegen(
        {std::string(Name), Wert_Nr(1), {}, static_cast<int>(Name.size()), Art, Herkunft});
}

// `P` and one digit: the port gets a second name.
void Port_Eintragen(std::string_view Name)
{
    if (Name.size() == 2 && Name[0] == 'P' && Ist_Ziffer(Name[1]))
        Eintragen(std::string("PORT") + Name[1], Name_Byte, Herkunft_Haupttext);
}

// The definition whose keyword stands at Stelle (from 0), -1 for none; sets the port's second name
// wherever a DATA stands.
int Definition_An(std::string_view Form, std::size_t Stelle)
{
    const std::string_view Rest = Form.substr(Stelle);
    if (Rest == "BIT")
        return Name_Bit;
    if (Rest == "EQU")
        return Art_Einer_Gleichung();
    if (Rest.starts_with("DATA")) {
        Port_Eintragen(Form.substr(0, Stelle));
        if (Rest.size() == 4)
            return Name_Byte;
    }
    return -1;
}

void Meldung_Bit_Statt_Byte()
{
    const std::string Name = Nach_UTF8(Eintrag(Name_Eins != -1 ? Name_Eins : Name_Zwei).Name);
    Fehler("Dieser Befehl ist speziell zum Ansprechen von Bytes vorgesehen, die Bezeichnung " +
               Name + " ist aber als Bit definiert.",
           "This instruction will work with bytes, but the name " + Name + " is declared as bit.");
}

void Meldung_Byte_Statt_Bit()
{
    const bool        Erster = Name_Eins != -1 && Eintrag(Name_Eins).Art == Name_Byte;
    const std::string Name   = Nach_UTF8(Eintrag(Erster ? Name_Eins : Name_Zwei).Name);
    Fehler("Dieser Befehl ist speziell zum Ansprechen von Bits vorgesehen, die Bezeichnung " +
               Name + " ist aber als Byte definiert.",
           "This instruction will work with bits, but the name " + Name + " is declared as byte.");
}

void Verwendung_Pruefen(int Index, bool Mit_Bit, int Verboten)
{
    if (Index == -1 || (Mit_Bit ? Name_Bit : Eintrag(Index).Art) != Verboten)
        return;
    if (Verboten == Name_Bit)
        Meldung_Bit_Statt_Byte();
    if (Verboten == Name_Byte)
        Meldung_Byte_Statt_Bit();
}

} // namespace

int Namen_Index(std::string_view Name)
{
    const auto i = Namen.Erster.find(Name);
    return i == Namen.Erster.end() ? -1 : i->second;
}

void Name_Anfuegen(Namen_Eintrag Neuer)
{
    if (Namen_Anzahl() >= Namen_Hoechstens)
        Fehler("Es sind höchstens 5000 Namen möglich !", "No more than 5000 names are possible !");
    if (Neuer.Laenge > 0)
        Namen.Erster.try_emplace(Neuer.Name, Namen_Anzahl());
    Namen_Tabelle.push_back(std::move(Neuer));
}

std::int32_t Name_Suchen(std::string_view Zeile, std::size_t Anfang, int& Laenge)
{
    std::string_view Kandidat = Zeile.substr(Anfang, static_cast<std::size_t>(Laenge));
    int              Bit      = -1;
    if (Kandidat.size() > 1 && Kandidat[Kandidat.size() - 2] == '.' &&
        Ist_Ziffer(Kandidat.back())) {
        Bit = Kandidat.back() - '0';
        Kandidat.remove_suffix(2);
        Laenge -= 2;
    }
    std::int32_t Ergebnis = -1;
    if (const int Index = Namen_Index(Kandidat); Index != -1) {
        Ergebnis = Eintrag(Index).Wert;
        if (Bit >= 0) {
            Ergebnis = Bit_Adresse(Ergebnis, Bit);
            Laenge += 2;
        }
        Verwendung_Merken(Index, Bit >= 0);
    }
    if (Kandidat == "A" && Bit >= 0 && Bit <= 7) {
        Laenge += 2;
        (Name_Eins == -1 ? Bit_Eins : Bit_Zwei) = true;
        Ergebnis                                = Akku_Adresse + Bit;
    }
    return Ergebnis;
}

bool Name_Definieren()
{
    const std::string_view Form = Lauf.Zeile_Gross;
    for (std::size_t Stelle = 1; Stelle + 3 <= Form.size(); ++Stelle) {
        const int Art = Definition_An(Form, Stelle);
        if (Art != -1) {
            Eintragen(Form.substr(0, Stelle), Art, Diese_Zeile().Herkunft);
            return true;
        }
    }
    return false;
}

void Const_Eintragen()
{
    const std::string_view Text   = Diese_Zeile().Text;
    const std::size_t      Gleich = Text.find('=');
    if (Gleich == std::string::npos)
        return;
    const std::string Name(Gleich > 6 ? Text.substr(6, Gleich - 6) : std::string_view{});
    Name_Anfuegen(
        {Name, 0, std::string(Text.substr(Gleich + 1)), 0, Name_Einfach, Diese_Zeile().Herkunft});
}

void Namensart_Pruefen()
{
    const int Verboten = Befehl_Art(Byte_An(Adress_Zaehler));
    Verwendung_Pruefen(Name_Eins, Bit_Eins, Verboten);
    Verwendung_Pruefen(Name_Zwei, Bit_Zwei, Verboten);
}

void Namen_Leeren() { Namen = {}; }

} // namespace varnholt
