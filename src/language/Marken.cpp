// Labels: found in the preparing sweep, put in place by the two patching sweeps.
#include "language/Marken.h"

#include "core/codepage.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Befehle.h"
#include "language/HexDez.h"

#include <string>
#include <string_view>

namespace varnholt {
namespace {

constexpr std::string_view Daten_Koepfe[] = {"ASC:", "HEX:", "DEZ:", "DB:", "DW:"};

bool Ist_Datenzeile(std::string_view Text)
{
    if (Text.size() < 3 || (Text[2] != ':' && Text.substr(0, 4).back() != ':'))
        return false;
    for (const std::string_view Kopf : Daten_Koepfe)
        if (Beginnt_Ohne_Fall(Text, Kopf))
            return true;
    return false;
}

// Position of the colon that ends the label, npos without one.
std::size_t Doppelpunkt_Suchen(std::string_view Text)
{
    if (Text.find(':') == std::string_view::npos || Ist_Datenzeile(Text))
        return std::string_view::npos;
    bool        Zitat = false;
    std::size_t Rein  = 0; // up to here no forbidden character stands
    for (std::size_t i = 1; i < Text.size(); ++i) {
        if (Text[i] == '"')
            Zitat = !Zitat;
        if (Text[i] != ':' || Zitat)
            continue;
        const std::string_view Neues = Text.substr(Rein, i - Rein);
        Rein                         = i;
        if (Neues.find_first_of(" \\/;<>=") != std::string_view::npos)
            Fehler("Bitte verwenden Sie innerhalb von Sprunglabeln keines der folgenden Zeichen: "
                   "' \\/;<>='",
                   "Please use within jumplabel none of the following signs: ' \\/;<>'");
        if (Text.front() != '(') // else a fixed address
            return i;
    }
    return std::string_view::npos;
}

std::string_view Ohne_Doppelpunkt(std::string_view Marke)
{
    return Marke.substr(0, Marke.size() - 1);
}

// An included file may bring a label for a row that had one: the earlier one is gone.
void Alte_Marke_Vergessen(std::string_view Marke)
{
    if (Marke.empty())
        return;
    const auto i = Lauf.Marken.find(Ohne_Doppelpunkt(Marke));
    if (i != Lauf.Marken.end() && i->second == Zeilen_Index)
        Lauf.Marken.erase(i);
}

void Marke_Eintragen(Quell_Stueck Marke)
{
    Quell_Zeile& Zeile = Diese_Zeile();
    Alte_Marke_Vergessen(Zeile.Marke);
    Gross_Am_Ort(Marke);
    Zeile.Marke = Marke;
    if (!Lauf.Marken.try_emplace(Ohne_Doppelpunkt(Marke), Zeilen_Index).second)
        Fehler("Sie haben den gleichen Namen für zwei verschiedene Sprungmarke verwendet! Bitte "
               "geben Sie jeder Sprungmarke einen eigenen Namen, damit keine Verwechslungen "
               "auftreten können!",
               "You have used the same name for two or more different jump marks! Please give "
               "every jump mark a different name to prevent confusion!");
}

[[noreturn]] void Ziel_Fehlt() { Fehler("Sprungadresse nicht gefunden !", "Jumpmark not found !"); }

// Address of the row that carries the label, with or without its colon.
std::int32_t Marken_Adresse(std::string_view Ziel)
{
    auto i = Lauf.Marken.end();
    if (Ziel.ends_with(':'))
        i = Lauf.Marken.find(Ziel.substr(0, Ziel.size() - 1));
    else
        i = Lauf.Marken.find(Ziel);
    if (i == Lauf.Marken.end())
        Ziel_Fehlt();
    return Quell_Zeilen[static_cast<std::size_t>(i->second)].Adresse;
}

// The value in brackets that the operand scan could not read, always hexadecimal.
std::int32_t Klammer_Adresse(std::string_view Ziel)
{
    const std::int32_t Wert = Ziel.size() < 2 ? -1 : Hex_zu_Wert(Ziel.substr(1, Ziel.size() - 2));
    if (Wert < 0)
        Fehler("Fehlerhafte Sprungadresse !", "Error in Jumpmark !");
    return Wert;
}

void Wort_Einsetzen(std::int32_t Hier, const Offenes_Ziel& z)
{
    const std::string_view Ziel = z.Offen;
    Sprungziel_Setzen(
        Hier + 1, Ziel.starts_with('(') ? Klammer_Adresse(Ziel) : Marken_Adresse(Ziel) + z.Zusatz);
}

void Seite_Einsetzen(std::int32_t Hier, const Offenes_Ziel& z)
{
    std::int32_t t = Marken_Adresse(z.Offen);
    std::int32_t n = Hier + 2; // the page is that of the next instruction
    for (std::int32_t Potenz = 1 << 15; Potenz >= 1 << 11; Potenz >>= 1)
        if (t >= Potenz) {
            t -= Potenz;
            n -= Potenz;
        }
    if (n < 0 || n >= 1 << 11 || t >= 1 << 11)
        Fehler("AJMP/ACALL Anweisungen können nur innerhalb eines 2k Blocks springen! Bitte "
               "benutzen Sie bei Sprüngen darüber hinaus die LJMP/LCALL Anweisungen.",
               "AJMP/ACALL instruction can only be used within a 2k block! Please use the "
               "LJMP/LCALL instructions for larger jumps.");
    Byte_Setzen(Hier, Byte_An(Hier) + (t / 256) * 32);
    Byte_Setzen(Hier + 1, t % 256);
}

// A 16-bit or page target at address Hier; a relative one stays open.
void Langes_Ziel(std::int32_t Hier, Offenes_Ziel& z)
{
    const std::uint8_t Opcode = Byte_An(Hier);
    if (Opcode == 0x02 || Opcode == 0x12 || Opcode == 0x90)
        Wort_Einsetzen(Hier, z);
    else if (Opcode == 0x01 || Opcode == 0x11)
        Seite_Einsetzen(Hier, z);
    else
        return;
    z.Offen.Leeren();
}

// Length of the branch by the row's mnemonic, 0 for none that branches.
int Sprung_Laenge(std::string_view Text, std::uint8_t Opcode)
{
    struct Mnemonik {
        std::string_view Anfang;
        int              Laenge;
    };
    constexpr Mnemonik Mnemonike[] = {{"CJNE", 3},
                                      {"SJMP", 2},
                                      {"JZ", 2},
                                      {"JNZ", 2},
                                      {"JC", 2},
                                      {"JNC", 2},
                                      {"JB ", 3},
                                      {"JNB ", 3},
                                      {"JBC ", 3}};
    if (Beginnt_Ohne_Fall(Text, "DJNZ"))
        return Opcode == 0xD5 ? 3 : 2;
    for (const Mnemonik& m : Mnemonike)
        if (Beginnt_Ohne_Fall(Text, m.Anfang))
            return m.Laenge;
    return 0;
}

void Kurzes_Ziel(std::int32_t Hier, Offenes_Ziel& z)
{
    std::string_view Ziel = z.Offen;
    if (Ziel.starts_with(' '))
        Ziel.remove_prefix(1);
    const std::int32_t d = Marken_Adresse(Ziel) - Hier;
    if (d > 129 || d < -126)
        Fehler("Sprungziel liegt außerhalb des -128/+127 Byte Rahmen!",
               "Jump-target is out of -128/+127 Byte frame!");
    const int Laenge = Sprung_Laenge(Diese_Zeile().Text, Byte_An(Hier));
    if (Laenge > 0)
        Byte_Setzen(Hier + Laenge - 1, d - Laenge);
}

// Runs Arbeit over every open target, the row's Adresse raised to its instruction meanwhile: a
// one-line IF with a label of its own is a target at its instruction then.
void Offene_Ziele(void (*Arbeit)(std::int32_t, Offenes_Ziel&))
{
    for (Offenes_Ziel& z : Assembler.Offene_Ziele) {
        if (z.Offen.empty())
            continue;
        Zeilen_Index       = z.Zeile;
        Quell_Zeile& Zeile = Diese_Zeile();
        Zeile.Adresse += Zeile.Versatz;
        Arbeit(Zeile.Adresse, z);
        Zeile.Adresse -= Zeile.Versatz;
    }
}

} // namespace

void Marke_Abtrennen()
{
    Quell_Stueck      Text   = Diese_Zeile().Text;
    const std::size_t Stelle = Doppelpunkt_Suchen(Text);
    if (Stelle == std::string::npos)
        return;
    Marke_Eintragen(Text.Vorderes(Stelle + 1));
    Text.Vorn_Abnehmen(Stelle + 1);
    if (Text.Ansicht().starts_with(' '))
        Text.Vorn_Abnehmen(1);
    Diese_Zeile().Text = Text;
}

void Sprungziel_Setzen(std::int32_t Adresse, std::int32_t Ziel)
{
    if (Ziel < 0 || Ziel > 0xFFFF)
        Fehler("Ungültige Sprungzieladresse !", "Invalid jumpmark address !");
    Byte_Setzen(Adresse, Ziel / 256);
    Byte_Setzen(Adresse + 1, Ziel % 256);
}

void Lange_Ziele_Einsetzen() { Offene_Ziele(Langes_Ziel); }

void Kurze_Ziele_Einsetzen() { Offene_Ziele(Kurzes_Ziel); }

} // namespace varnholt
