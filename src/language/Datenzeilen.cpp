// Data lines and directives. They move Adress_Zaehler themselves and leave Befehls_Laenge at 0, so
// that the tail of the sweep neither adds nor counts them.
#include "language/Datenzeilen.h"

#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/HexDez.h"
#include "language/Listfile.h"
#include "language/Zahlen.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace varnholt {
namespace {

constexpr std::size_t Kopf_Laenge = 4; // HEX:, DEZ:, ASC:

[[noreturn]] void Feld_Fehler(std::string_view Feld_D,
                              std::string_view Feld_E,
                              std::string_view Bereich_D,
                              std::string_view Bereich_E)
{
    Fehler("Bitte verwenden Sie bei " + std::string(Feld_D) + " nur die Werte " +
               std::string(Bereich_D) + " und trennen Sie diese durch ein Komma oder Leerzeichen !",
           "Please use within " + std::string(Feld_E) + " only the values " +
               std::string(Bereich_E) + " and seperate them with a comma or a spacesign!");
}

[[noreturn]] void Hex_Fehler()
{
    Feld_Fehler("Hex-Datenfelder", "hex fields", "00 bis FF", "00 till FF");
}
[[noreturn]] void Dez_Fehler()
{
    Feld_Fehler("Dez-Datenfelder", "dez fields", "0 bis 255", "0 till 255");
}
[[noreturn]] void DB_Fehler()
{
    Feld_Fehler("DB-Datenfeldern", "db data fields", "0 bis 255", "0 till 255");
}
[[noreturn]] void DW_Fehler()
{
    Feld_Fehler("DW-Datenfeldern", "dw data fields", "0 bis 65535", "0 till 65535");
}

void Byte_Ablegen(std::int32_t Wert)
{
    Byte_Setzen(Adress_Zaehler, Wert);
    ++Adress_Zaehler;
}

// What stands behind the head and one blank.
std::string_view Hinter_Kopf(std::string_view Zeile)
{
    Zeile.remove_prefix(Kopf_Laenge);
    if (Zeile.starts_with(' '))
        Zeile.remove_prefix(1);
    return Zeile;
}

void Werte_Ablegen(std::string_view Rest,
                   std::int32_t (*Lesen)(std::string_view),
                   void (*Melden_Fehler)())
{
    while (!Rest.empty()) {
        const std::size_t  Laenge = std::min(Rest.find_first_of(", "), Rest.size());
        const std::int32_t Wert   = Lesen(Rest.substr(0, Laenge));
        if (Wert < 0 || Wert > 0xFF)
            Melden_Fehler();
        Byte_Ablegen(Wert);
        Rest.remove_prefix(std::min(Rest.find_first_not_of(", ", Laenge), Rest.size()));
    }
}

void Zeichen_Ablegen(std::string_view Text)
{
    for (const char c : Text)
        Byte_Ablegen(static_cast<std::uint8_t>(c));
}

bool DB_Ablegen()
{
    for (int n = 1; n <= Wert_Anzahl; ++n) {
        if (Wert_Nr(n) < 0 || Wert_Nr(n) > 0xFF)
            DB_Fehler();
        Byte_Ablegen(Wert_Nr(n));
    }
    Listen_Art_Setzen(Listen_Zeile::Daten);
    return true;
}

// Two bytes a value, the high one first.
bool DW_Ablegen()
{
    for (int n = 1; n <= Wert_Anzahl; ++n) {
        if (Wert_Nr(n) < 0 || Wert_Nr(n) > 0xFFFF)
            DW_Fehler();
        Byte_Ablegen(Wert_Nr(n) / 256);
        Byte_Ablegen(Wert_Nr(n) % 256);
    }
    Listen_Art_Setzen(Listen_Zeile::Daten);
    return true;
}

// `(value):` moves the address; the row runs again with the rest of the line.
bool Feste_Adresse()
{
    if (Wert_Nr(1) < 0 || Wert_Nr(1) > 0xFFFF)
        Fehler("Bitte verwenden Sie innerhalb von festen Sprunglabeln nur Werte von 0 bis 65535 !",
               "Please use within fixed jumplabel only values between 0 and 65535 !");
    Quell_Zeile&      Zeile       = Diese_Zeile();
    const std::size_t Doppelpunkt = std::min(Zeile.Text.Ansicht().find(':'), Zeile.Text.size() - 1);
    Adress_Zaehler                = Wert_Nr(1);
    Zeile.Adresse                 = Adress_Zaehler;
    Listen_Adresse_Fest(std::string(Zeile.Text.Ansicht().substr(0, Doppelpunkt + 1)));
    Zeile.Text.Vorn_Abnehmen(Doppelpunkt + 1);
    if (Zeile.Text.Ansicht().starts_with(' '))
        Zeile.Text.Vorn_Abnehmen(1);
    --Zeilen_Index;
    return true;
}

bool Stop()
{
    if (Debugger_Aktiv) {
        Byte_Setzen(Adress_Zaehler, 0xA5);
        Befehls_Laenge = 1;
        return true;
    }
    Diese_Zeile().Text.Leeren();
    Listen_Ohne_Bytes();
    return true;
}

bool Org()
{
    Adress_Zaehler = Wert_Nr(1);
    return true;
}

bool Ende()
{
    Diese_Zeile().Text.Leeren();
    Lauf.Ende_Erreicht = true;
    return true;
}

bool Definition()
{
    if (!Name_Definieren())
        return false;
    Listen_Art_Setzen(Listen_Zeile::Definition);
    return true;
}

} // namespace

std::int32_t Dez_Wert(std::string_view Text)
{
    // Only the characters of a number reach strtod, so that it knows no words and no hexadecimal.
    std::string Zahl(
        Text.substr(0, std::min(Text.find_first_not_of("+-0123456789.Ee"), Text.size())));
    const double Wert = std::strtod(Zahl.c_str(), nullptr);
    if (Wert >= Zahl_Obergrenze)
        return Zahl_Obergrenze;
    return static_cast<std::int32_t>(std::nearbyint(std::max(Wert, -1.0 * Zahl_Obergrenze)));
}

bool Datenzeile_Versuchen()
{
    const bool Hex = Form_Beginnt("HEX:");
    const bool Dez = Form_Beginnt("DEZ:");
    if (Hex || Dez)
        Werte_Ablegen(Hinter_Kopf(Lauf.Zeile_Gross),
                      Hex ? Hex_zu_Wert : Dez_Wert,
                      Hex ? Hex_Fehler : Dez_Fehler);
    else if (Form_Beginnt("ASC:"))
        Zeichen_Ablegen(Hinter_Kopf(Diese_Zeile().Text));
    else if (Form_Beginnt("CONST"))
        Const_Eintragen();
    else
        return false;
    Listen_Art_Setzen(Form_Beginnt("CONST") ? Listen_Zeile::Definition : Listen_Zeile::Daten);
    Befehls_Laenge = 0;
    return true;
}

bool Anweisung_Versuchen()
{
    const std::string_view Form = Lauf.Zeile_Gross;
    Befehls_Laenge              = 0;
    if (Form.starts_with("DB"))
        return DB_Ablegen();
    if (Form.starts_with("DW"))
        return DW_Ablegen();
    if (Form.starts_with("():"))
        return Feste_Adresse();
    if (Definition())
        return true;
    if (Form == "STOP")
        return Stop();
    if (Form == "ORG")
        return Org();
    return (Form == "END" || Form == "ENDE") && Ende();
}

} // namespace varnholt
