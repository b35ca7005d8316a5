// The encoder. The order of the steps is what decides: many forms are the beginning of others, and
// the range checks of a group come before its forms.
#include "language/Kodierer.h"

#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Befehle.h"
#include "language/Operanden.h"

#include <algorithm>
#include <string>

namespace varnholt {
namespace {

constexpr std::int32_t Akku_Adresse = 0xE0;

void Byte_Pruefen(int Nr)
{
    if (Wert_Anzahl >= Nr && (Wert_Nr(Nr) < 0 || Wert_Nr(Nr) > 0xFF))
        Meldung_Byte_Bereich();
}

void Wort_Pruefen()
{
    if (Wert_Nr(1) < 0 || Wert_Nr(1) > 0xFFFF)
        Meldung_Wort_Bereich();
}

// The bytes of an instruction; a missing one stays open.
bool Setzen(int Opcode)
{
    Befehls_Laenge = 1;
    Byte_Setzen(Adress_Zaehler, Opcode);
    return true;
}

bool Setzen(int Opcode, std::int32_t Zweites)
{
    Setzen(Opcode);
    Byte_Setzen(Adress_Zaehler + 1, Zweites);
    Befehls_Laenge = 2;
    return true;
}

bool Setzen(int Opcode, std::int32_t Zweites, std::int32_t Drittes)
{
    Setzen(Opcode, Zweites);
    Byte_Setzen(Adress_Zaehler + 2, Drittes);
    Befehls_Laenge = 3;
    return true;
}

bool Wort_Setzen(int Opcode)
{
    Wort_Pruefen();
    return Setzen(Opcode, Wert_Nr(1) / 256, Wert_Nr(1) % 256);
}

// Opcode and open target: all of the form behind the first k characters. An empty one stays open.
bool Ziel_Setzen(int Opcode, std::size_t k, int Laenge, std::int32_t Zusatz = 0)
{
    Setzen(Opcode);
    if (const std::string_view Ziel = Form_Jetzt().substr(k); !Ziel.empty())
        Assembler.Offene_Ziele.push_back({Zeilen_Texte.Ablegen(Ziel), Zeilen_Index, Zusatz});
    Befehls_Laenge = Laenge;
    return true;
}

// An address in brackets or `$` as last operand, value Nr: becomes the offset from this
// instruction.
void Adresse_Zu_Weite(int Nr, int Laenge)
{
    std::string& Form = Lauf.Zeile_Gross;
    if (Wert_Anzahl < Nr || !Form.ends_with("()"))
        return;
    Wert_Nr(Nr) = Relativ_Berechnen(Adress_Zaehler, Wert_Nr(Nr), Laenge);
    Form.resize(Form.size() - 2);
}

bool Akku_Stapel()
{
    if (Wert_Anzahl != 0)
        return false;
    if (Form_Jetzt() == "PUSHA")
        return Setzen(0xC0, Akku_Adresse);
    return Form_Jetzt() == "POPA" && Setzen(0xD0, Akku_Adresse);
}

bool Sprung_Nach_Zahl()
{
    const std::string_view Form = Lauf.Zeile_Gross;
    if (Wert_Anzahl != 1)
        return false;
    if (Form == "JMP()" || Form == "LJMP()")
        return Wort_Setzen(0x02);
    return (Form == "CALL()" || Form == "LCALL()") && Wort_Setzen(0x12);
}

// CJNE, JB, JNB, JBC and DJNZ with both values.
bool Verzweigung_Mit_Zahl()
{
    if (Wert_Anzahl != 2)
        return false;
    Adresse_Zu_Weite(2, 3);
    const bool Ist_CJNE = Form_Beginnt("CJNE");
    const int  Opcode   = Ist_CJNE || Form_Beginnt("J") || Form_Beginnt("DJNZ,")
                              ? Vergleichs_Form_Suchen(Lauf.Zeile_Gross)
                              : -1;
    const bool Treffer  = Opcode >= 0 && Befehl_Laenge(static_cast<std::uint8_t>(Opcode)) == 3;
    if (Ist_CJNE || Treffer) {
        Byte_Pruefen(1);
        Byte_Pruefen(2);
    }
    return Treffer && Setzen(Opcode, Wert_Nr(1), Wert_Nr(2));
}

// MOV DPTR with a number, a label, or a label and an addend.
bool MOV_DPTR()
{
    constexpr std::string_view Anfang = "MOVDPTR,#";
    std::string&               Form   = Lauf.Zeile_Gross;
    if (!Form.starts_with(Anfang) || Wert_Anzahl > 1)
        return false;
    if (Wert_Anzahl == 0)
        return Ziel_Setzen(0x90, Anfang.size(), 3);
    if (Form_Jetzt() == "MOVDPTR,#()" || Form_Jetzt() == Anfang)
        return Wort_Setzen(0x90);
    const char Vorzeichen = Form.back();
    if (Vorzeichen != '+' && Vorzeichen != '-')
        return false;
    Form.pop_back();
    return Ziel_Setzen(0x90, Anfang.size(), 3, Vorzeichen == '+' ? Wert_Nr(1) : -Wert_Nr(1));
}

// Mnemonics of the two-byte forms; a group checks its first value before any form is compared.
enum class Gruppe { Keine, MOV, Rechnen, DJNZ_Register, XRL, Einzeln };

struct Gruppen_Anfang {
    std::string_view Anfang;
    Gruppe           Zu;
};

// clang-format off
constexpr Gruppen_Anfang Vor_Der_Weite[]  = {
    {"MOV", Gruppe::MOV}, {"ADD", Gruppe::Rechnen}, {"ORL", Gruppe::Rechnen}, {"ANL", Gruppe::Rechnen},
};
constexpr Gruppen_Anfang Nach_Der_Weite[] = {
    {"DJNZR", Gruppe::DJNZ_Register}, {"XRL", Gruppe::XRL},
};
constexpr std::string_view Einzelne_Formen[] = {
    "INC", "DEC", "CPL", "SETB", "CLR", "SUBBA,#", "SUBBA,", "XCHA,", "PUSH", "POP",
    "SJMP", "JZ", "JNZ", "JC", "JNC",
};
// clang-format on

// A two-byte form, its operand the first value; without a value on the line that of the line
// before.
bool Zwei_Byte_Form()
{
    const int Opcode = Vergleichs_Form_Suchen(Lauf.Zeile_Gross);
    if (Opcode < 0 || Befehl_Laenge(static_cast<std::uint8_t>(Opcode)) != 2)
        return false;
    Byte_Pruefen(1);
    return Setzen(Opcode, Wert_Nr(1));
}

template <std::size_t n> bool Zwei_Byte_Gruppe(const Gruppen_Anfang (&Gruppen)[n])
{
    for (const Gruppen_Anfang& g : Gruppen)
        if (Form_Beginnt(g.Anfang)) {
            Byte_Pruefen(1);
            return Zwei_Byte_Form();
        }
    return false;
}

bool Einzelne_Form()
{
    const auto Ende = std::end(Einzelne_Formen);
    return std::find(std::begin(Einzelne_Formen), Ende, Form_Jetzt()) != Ende && Zwei_Byte_Form();
}

// Page and low byte, as the disassembler writes them. AJMP takes every page above 7 as page 7.
bool Seiten_Sprung()
{
    const bool Ist_Aufruf = Form_Jetzt() == "ACALL,";
    if (Wert_Anzahl != 2 || (!Ist_Aufruf && Form_Jetzt() != "AJMP,"))
        return false;
    Byte_Pruefen(1);
    Byte_Pruefen(2);
    const int Seite = Wert_Nr(1);
    if (Ist_Aufruf && Seite > 7)
        return false;
    return Setzen((Ist_Aufruf ? 0x11 : 0x01) + 32 * std::min(Seite, 7), Wert_Nr(2));
}

struct Ziel_Form {
    std::string_view Anfang; // the target is the text behind it
    int              Opcode;
    int              Laenge;
};

// clang-format off
constexpr Ziel_Form Sprung_Formen[] = {
    {"SJMP", 0x80, 2}, {"AJMP", 0x01, 2}, {"ACALL", 0x11, 2}, {"JZ", 0x60, 2}, {"JNZ", 0x70, 2},
    {"JC", 0x40, 2},   {"JNC", 0x50, 2},
    {"DJNZR0,", 0xD8, 2}, {"DJNZR1,", 0xD9, 2}, {"DJNZR2,", 0xDA, 2}, {"DJNZR3,", 0xDB, 2},
    {"DJNZR4,", 0xDC, 2}, {"DJNZR5,", 0xDD, 2}, {"DJNZR6,", 0xDE, 2}, {"DJNZR7,", 0xDF, 2},
    {"LJMP", 0x02, 3}, {"JMP", 0x02, 3}, {"LCALL", 0x12, 3}, {"CALL", 0x12, 3},
};
constexpr Ziel_Form Vergleich_Sprung_Formen[] = {
    {"CJNEA,#,", 0xB4, 3},   {"CJNEA,,", 0xB5, 3},
    {"CJNE@R0,#,", 0xB6, 3}, {"CJNE@R1,#,", 0xB7, 3},
    {"CJNER0,#,", 0xB8, 3},  {"CJNER1,#,", 0xB9, 3}, {"CJNER2,#,", 0xBA, 3}, {"CJNER3,#,", 0xBB, 3},
    {"CJNER4,#,", 0xBC, 3},  {"CJNER5,#,", 0xBD, 3}, {"CJNER6,#,", 0xBE, 3}, {"CJNER7,#,", 0xBF, 3},
    {"JBC,", 0x10, 3},       {"JB,", 0x20, 3},       {"JNB,", 0x30, 3},      {"DJNZ,", 0xD5, 3},
};
// clang-format on

template <std::size_t n> const Ziel_Form* Ziel_Form_Suchen(const Ziel_Form (&Formen)[n])
{
    const auto f = std::find_if(std::begin(Formen), std::end(Formen), [](const Ziel_Form& z) {
        return Form_Beginnt(z.Anfang);
    });
    return f == std::end(Formen) ? nullptr : &*f;
}

bool Sprung_Nach_Marke()
{
    if (Wert_Anzahl != 0)
        return false;
    const Ziel_Form* f = Ziel_Form_Suchen(Sprung_Formen);
    return f != nullptr && Ziel_Setzen(f->Opcode, f->Anfang.size(), f->Laenge);
}

// A label as last operand, the first value before it.
bool Verzweigung_Nach_Marke()
{
    constexpr std::string_view Akku = "DJNZA,";
    if (Form_Beginnt("CJNE"))
        Byte_Pruefen(1);
    if (Form_Beginnt(Akku)) {
        Setzen(0xD5, Akku_Adresse);
        return Ziel_Setzen(0xD5, Akku.size(), 3);
    }
    const Ziel_Form* f = Ziel_Form_Suchen(Vergleich_Sprung_Formen);
    if (f == nullptr)
        return false;
    Byte_Pruefen(1);
    Setzen(f->Opcode, Wert_Nr(1));
    return Ziel_Setzen(f->Opcode, f->Anfang.size(), f->Laenge);
}

// ORL, ANL, XRL and MOV of a constant to a direct address, and MOV direct, direct.
bool Drei_Byte_Form()
{
    const std::string_view Form    = Lauf.Zeile_Gross;
    const bool             Ist_MOV = Form == "MOV,";
    if (Wert_Anzahl != 2 ||
        (!Ist_MOV && Form != "ORL,#" && Form != "ANL,#" && Form != "XRL,#" && Form != "MOV,#"))
        return false;
    Byte_Pruefen(1);
    Byte_Pruefen(2);
    if (Ist_MOV && O_MOV_ZQ) // the machine wants the source first
        return Setzen(0x85, Wert_Nr(2), Wert_Nr(1));
    return Setzen(Vergleichs_Form_Suchen(Form), Wert_Nr(1), Wert_Nr(2));
}

bool Einer_Der_Formen()
{
    if (Akku_Stapel() || Sprung_Nach_Zahl() || Verzweigung_Mit_Zahl() || MOV_DPTR() ||
        Zwei_Byte_Gruppe(Vor_Der_Weite))
        return true;
    Adresse_Zu_Weite(1, 2);
    return Zwei_Byte_Gruppe(Nach_Der_Weite) || Einzelne_Form() || Seiten_Sprung() ||
           Sprung_Nach_Marke() || Verzweigung_Nach_Marke() || Drei_Byte_Form();
}

struct Fehler_Marke {
    std::string_view Marke;
    const char*      D;
    const char*      E;
};

// clang-format off
constexpr Fehler_Marke Fehler_Marken[] = {
    {"ERR2", "ACALL Befehle müssen als Sprungziel einen Wert zwischen 00 und FF oder %00 und %255 haben !",
             "ACALL instructions must have a jumptarget between 00 and FF or %00 and %255 !"},
    {"ERR3", "AJMP Befehle müssen als Sprungziel einen Wert zwischen 00 und FF oder %00 und %255 haben !",
             "AJMP instructions must have a jumptarget between 00 and FF or %00 and %255 !"},
    {"ERR4", "END IF ohne IF...THEN !",
             "END IF without IF...THEN !"},
    {"ERR5", "Der Wert des Bytes kann nicht größer als 255 werden! Wählen Sie einen Wert zwischen 00 und FE oder %00 und %254.",
             "The value of a byte can't be higher than 255. Please choose a value between 00 and FE or between %00 and %254."},
    {"ERR6", "Der Wert des Bytes kann nicht kleiner als 0 werden! Wählen Sie einen Wert zwischen 01 und FF oder %01 und %255.",
             "The value of a byte can't be lower than 0. Please choose a value between 01 and FF or between %01 and %255."},
    {"ERR8", "Der erste Wert der For...To Anweisung muss kleiner als der zweite Wert sein.",
             "The first value of the For...To Instruction must be lower than the second value."},
    {"ERR9", "NEXT ohne FOR...TO !",
             "NEXT without FOR...TO !"},
    {"ERR10", "Bitte nutzen Sie bei der EQU Anweisung einen der folgenden Beispiel-Strukturen:\r\nNAME EQU FF oder NAME EQU PORT1",
              "Please use for the EQU instruction one of the following example structures:\r\nNAME EQU FF or NAME EQU PORT1"},
};
// clang-format on

// An included file is what its first row is: a file that begins with an INCLUDE is what that
// brought.
bool Hat_Prozessorfile()
{
    return std::any_of(Include_Liste.begin(), Include_Liste.end(), [](const Include_Eintrag& e) {
        return Quell_Zeilen[static_cast<std::size_t>(e.Erste_Zeile)].Herkunft ==
               Herkunft_Prozessorfile;
    });
}

} // namespace

bool Fixe_Form_Versuchen()
{
    const int Opcode = Fixe_Form_Suchen(Lauf.Zeile_Gross);
    return Opcode >= 0 && Setzen(Opcode);
}

bool Form_Versuchen()
{
    if (Einer_Der_Formen())
        return true;
    Befehls_Laenge = 0;
    return false;
}

void Unbekannte_Zeile_Melden()
{
    for (const Fehler_Marke& f : Fehler_Marken)
        if (Form_Jetzt() == f.Marke)
            Fehler(f.D, f.E);
    if (!Hat_Prozessorfile())
        Fehler("Bitte benutzen Sie im Programm die INCLUDE Anweisung, um den Prozessortyp "
               "festzulegen. Beispiel: Include 8051.mc",
               "Please use in the program the INCLUDE instruction to declare the processor. "
               "Example: Include 8051.mc");
    Fehler("Befehl nicht erkannt !\r\n\r\n", "Unknown instruction !\r\n\r\n");
}

} // namespace varnholt
