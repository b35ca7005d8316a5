// File names: the table of extensions and the rules over it.
#include "files/Dateinamen.h"

#include "core/codepage.h"
#include "core/shared_state.h"
#include "core/utf8.h"

#include <algorithm>
#include <iterator>

namespace varnholt {
namespace {

struct Endung_T {
    std::string_view Endung;
    Dateityp         Typ;
    int              Filter; // entry of the dialogs' filter
};

// clang-format off
constexpr Endung_T Endungen[] = {
    {".ASM", Dateityp::Quelltext,  1},
    {".TXT", Dateityp::Quelltext,  1},
    {".A51", Dateityp::Quelltext,  1},
    {".BIN", Dateityp::Rohdaten,   2},
    {"._51", Dateityp::Rohdaten,   2},
    {".HEX", Dateityp::Intel_Hex,  3},
    {".IHX", Dateityp::Intel_Hex,  3},
    {".MHX", Dateityp::Motorola_S, 4},
    {".DAT", Dateityp::Dat,        5},
};
// clang-format on

// The row of a name's end, null for an unknown one. Ohne counts the characters of the extension
// that needn't be there: a load doesn't ask for the point.
const Endung_T* Endung_Suchen(std::string_view Name, std::size_t Ohne)
{
    const std::string_view Ende = Letzte_Zeichen(Name, static_cast<int>(4 - Ohne));
    const auto p = std::find_if(std::begin(Endungen), std::end(Endungen), [&](const Endung_T& e) {
        return Gleich_Ohne_Fall(e.Endung.substr(Ohne), Ende);
    });
    return p == std::end(Endungen) ? nullptr : p;
}

std::size_t Bytes_Der_Letzten(std::string_view Name, int Anzahl)
{
    std::size_t i = Name.size();
    for (int n = 0; n < Anzahl && i > 0; ++n) {
        --i;
        while (i > 0 && Ist_Folgebyte(Name[i]))
            --i;
    }
    return Name.size() - i;
}

bool Gehoert_Zum_Modus(Dateityp Typ, int Modus_Jetzt)
{
    return (Typ == Dateityp::Quelltext) == (Modus_Jetzt == Modus_MC);
}

} // namespace

std::string_view Letzte_Zeichen(std::string_view Name, int Anzahl)
{
    return Name.substr(Name.size() - Bytes_Der_Letzten(Name, Anzahl));
}

std::string_view Ohne_Letzte_Zeichen(std::string_view Name, int Anzahl)
{
    return Name.substr(0, Name.size() - Bytes_Der_Letzten(Name, Anzahl));
}

Dateityp Typ_Beim_Laden(std::string_view Name, int Modus_Jetzt)
{
    const Endung_T* e   = Endung_Suchen(Name, 1);
    const bool      Hex = Modus_Jetzt == Modus_Hex;
    if (e == nullptr)
        return Hex ? Dateityp::Rohdaten : Dateityp::Quelltext;
    return Hex && e->Endung == ".TXT" ? Dateityp::Rohdaten : e->Typ;
}

Dateityp Typ_Beim_Speichern(std::string_view Name)
{
    const Endung_T* e = Endung_Suchen(Name, 0);
    return e == nullptr || e->Typ == Dateityp::Quelltext ? Dateityp::Rohdaten : e->Typ;
}

bool Name_Zu_Erfragen(std::string_view Name, int Modus_Jetzt)
{
    const Endung_T* e = Endung_Suchen(Name, 0);
    return Name.empty() || (e != nullptr && !Gehoert_Zum_Modus(e->Typ, Modus_Jetzt));
}

Speicher_Vorschlag Vorschlag_Fuer(std::string_view Name, int Modus_Jetzt)
{
    const bool      Hex = Modus_Jetzt == Modus_Hex;
    const Endung_T* e   = Endung_Suchen(Name, 0);
    if (e != nullptr && !Gehoert_Zum_Modus(e->Typ, Modus_Jetzt))
        return {std::string(Ohne_Letzte_Zeichen(Name, 3)) + (Hex ? "bin" : "asm"), Hex ? 2 : 1};
    if (e != nullptr)
        return {std::string(Name), e->Filter};
    const bool Kurz = Ohne_Letzte_Zeichen(Name, 3).empty();
    return {std::string(Name), Kurz ? (Hex ? 2 : 1) : 0};
}

std::string Name_Aus_Dialog(std::string_view Name)
{
    const bool Zweite_Endung = !Ohne_Letzte_Zeichen(Name, 8).empty() &&
                               Letzte_Zeichen(Name, 8).front() == '.' &&
                               Letzte_Zeichen(Name, 4).front() == '.';
    return std::string(Zweite_Endung ? Ohne_Letzte_Zeichen(Name, 4) : Name);
}

} // namespace varnholt
