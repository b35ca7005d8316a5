// The structured layer. Every statement is a row of bytes; the sizes matter, since the jumps over a
// body are patched when its end is reached.
#include "language/Basic_zu_Hex.h"

#include "core/codepage.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Basic_Formen.h"
#include "language/Befehle.h"
#include "language/HexDez.h"
#include "language/Marken.h"

#include <string>
#include <string_view>
#include <utility>

namespace varnholt {
namespace {

// What the holes of a byte row stand for.
struct Luecken {
    std::int32_t v = 0, d = 0, e = 0, b = 0, w = 0;
    int          n    = 0;
    std::int32_t Ziel = -1; // of hi lo; -1: they stay open
};

// One byte of a row; -1: stays open.
std::int32_t Byte_Des_Stuecks(std::string_view Stueck, const Luecken& l)
{
    if (Stueck == "v+1")
        return l.v + 1;
    if (Stueck.ends_with("+n"))
        return Hex_zu_Wert(Stueck.substr(0, 2)) + l.n;
    if (Stueck == "hi")
        return l.Ziel < 0 ? -1 : l.Ziel / 256;
    if (Stueck == "lo")
        return l.Ziel < 0 ? -1 : l.Ziel % 256;
    switch (Stueck.size() == 1 ? Stueck.front() : ' ') {
    case 'v':
        return l.v;
    case 'd':
        return l.d;
    case 'e':
        return l.e;
    case 'b':
        return l.b;
    case 'w':
        return l.w;
    case 'r':
        return -1;
    default:
        return Hex_zu_Wert(Stueck);
    }
}

// Places a row and moves the address; the result is the offset of its hole hi or r, -1 without one.
int Reihe_Setzen(std::string_view Reihe, const Luecken& l)
{
    int Offene = -1;
    int k      = 0;
    for (; !Reihe.empty(); ++k) {
        const std::size_t      Ende   = std::min(Reihe.find(' '), Reihe.size());
        const std::string_view Stueck = Reihe.substr(0, Ende);
        if (Stueck == "hi" || Stueck == "r")
            Offene = k;
        if (const std::int32_t Wert = Byte_Des_Stuecks(Stueck, l); Wert >= 0)
            Byte_Setzen(Adress_Zaehler + k, Wert);
        Reihe.remove_prefix(std::min(Ende + 1, Reihe.size()));
    }
    Adress_Zaehler += k;
    return Offene;
}

// Machine instructions between two addresses, by the lengths of the bytes that stand there.
int Befehle_Zaehlen(std::int32_t Von, std::int32_t Bis)
{
    int n = 0;
    for (std::int32_t a = Von; a < Bis && a <= Bild_Groesse; ++n)
        a += Befehl_Laenge(Hex_Daten[static_cast<std::size_t>(a)]);
    return n;
}

// Register number of a form whose n stands at the same place; -1 when the form isn't the beginning.
int Form_Passt(std::string_view Form)
{
    if (Lauf.Zeile_Gross.size() < Form.size())
        return -1;
    int n = 0;
    for (std::size_t i = 0; i < Form.size(); ++i) {
        const char c = Lauf.Zeile_Gross[i];
        if (Form[i] == 'n' && c >= '0' && c <= '7')
            n = c - '0';
        else if (c != Form[i])
            return -1;
    }
    return n;
}

Basic_Ergebnis Fehler_Marke(std::string_view Marke)
{
    Lauf.Zeile_Gross = Marke;
    return Basic_Ergebnis::Fehler;
}

void Bytes_Pruefen(int Anzahl)
{
    for (int n = 1; n <= Anzahl; ++n)
        if (Wert_Nr(n) < 0 || Wert_Nr(n) > 0xFF)
            Meldung_Byte_Bereich();
}

void Tiefe_Pruefen(int Tiefe)
{
    if (Tiefe >= Tiefe_Hoechstens)
        Fehler("Zu viele verschachtelte IF oder FOR Anweisungen !",
               "Too many nested IF or FOR instructions !");
}

// What is jumped over has to end within the code memory.
void Wort_Pruefen(std::int32_t Adresse)
{
    if (Adresse > 0xFFFF)
        Meldung_Wort_Bereich();
}

void IF_Oeffnen(std::int32_t Offene_Adresse)
{
    Tiefe_Pruefen(IF_Tiefe);
    Wort_Pruefen(Offene_Adresse);
    IF_Stapel[static_cast<std::size_t>(++IF_Tiefe)] = Offene_Adresse;
}

// The tail statement stays in the row, which runs again with it alone.
void Rest_Wiederholen(std::int32_t Kopf_Bytes)
{
    Quell_Zeile& Zeile = Diese_Zeile();
    Gross_Am_Ort(Zeile.Text);
    Zeile.Text.Vorn_Abnehmen(Zeile.Text.Ansicht().find("THEN") + 4);
    if (Zeile.Text.Ansicht().starts_with(' '))
        Zeile.Text.Vorn_Abnehmen(1);
    Zeile.Versatz = static_cast<std::int16_t>(Kopf_Bytes);
    --Zeilen_Index;
}

Basic_Ergebnis IF_Setzen(const IF_Form& f, int n)
{
    const bool         Zwei = f.Werte == 2;
    const std::int32_t v    = Zwei ? Wert_Nr(2) : Wert_Nr(1);
    if (f.Form.find(">#") != std::string_view::npos &&
        f.Form.find("<>") == std::string_view::npos && v == 255)
        return Fehler_Marke("ERR5");
    if (f.Form.find("<#") != std::string_view::npos && v == 0)
        return Fehler_Marke("ERR6");
    if (Inline_IF)
        Fehler("IF kann nicht hinter THEN stehen !", "IF can't stand behind THEN !");
    const bool         Block  = Lauf.Zeile_Gross.size() == f.Form.size();
    const std::int32_t Anfang = Adress_Zaehler;
    const int          Offene =
        Reihe_Setzen(Block ? f.Block : f.Einzeilig, {v, Wert_Nr(1), v, Wert_Nr(1), 0, n, -1});
    Befehl_Zaehler += Befehle_Zaehlen(Anfang, Adress_Zaehler);
    IF_Oeffnen(Anfang + Offene);
    if (!Block) {
        Inline_IF     = true;
        Inline_Zusatz = f.Zusatz;
        Rest_Wiederholen(Adress_Zaehler - Anfang);
    }
    return Basic_Ergebnis::Fertig;
}

Basic_Ergebnis IF_Uebersetzen()
{
    if (Wert_Anzahl == 1 || Wert_Anzahl == 2)
        Bytes_Pruefen(Wert_Anzahl);
    for (const IF_Form& f : IF_Formen)
        if (f.Werte == -1 || f.Werte == Wert_Anzahl)
            if (const int n = Form_Passt(f.Form); n >= 0)
                return IF_Setzen(f, n);
    return Basic_Ergebnis::Keines;
}

Basic_Ergebnis ELSE_Uebersetzen()
{
    Reihe_Setzen(ELSE_Reihe, {});
    std::int32_t& Oben = IF_Stapel[static_cast<std::size_t>(IF_Tiefe)];
    Wort_Pruefen(Adress_Zaehler);
    Sprungziel_Setzen(Oben, Adress_Zaehler);
    Oben = Adress_Zaehler - 2;
    return Basic_Ergebnis::Fertig;
}

Basic_Ergebnis END_IF_Uebersetzen()
{
    Wort_Pruefen(Adress_Zaehler);
    Sprungziel_Setzen(IF_Stapel[static_cast<std::size_t>(IF_Tiefe)], Adress_Zaehler);
    return --IF_Tiefe < 0 ? Fehler_Marke("ERR4") : Basic_Ergebnis::Fertig;
}

Basic_Ergebnis FOR_Oeffnen(std::string_view Reihe, Struktur_T::Schleife_T::Art_T Art, int Ziel)
{
    const std::int32_t Von = Wert_Nr(Wert_Anzahl - 1);
    const std::int32_t Bis = Wert_Nr(Wert_Anzahl);
    Tiefe_Pruefen(FOR_Tiefe);
    Reihe_Setzen(Reihe, {Von, Ziel, 0, 0, 0, Ziel, -1});
    FOR_Stapel[static_cast<std::size_t>(++FOR_Tiefe)] = {Adress_Zaehler, Bis, Art, Ziel};
    ++Befehl_Zaehler;
    return Basic_Ergebnis::Fertig;
}

Basic_Ergebnis FOR_Uebersetzen()
{
    using Schleife = Struktur_T::Schleife_T;
    if (Wert_Anzahl != 2 && Wert_Anzahl != 3)
        return Basic_Ergebnis::Keines;
    Bytes_Pruefen(Wert_Anzahl); // the values are checked before the form is known
    if (Wert_Nr(Wert_Anzahl - 1) > Wert_Nr(Wert_Anzahl))
        return Fehler_Marke("ERR8");
    const std::string_view Form          = Lauf.Zeile_Gross;
    const auto& [Akku, Register, Direkt] = FOR_Formen;
    if (Wert_Anzahl == 2 && Form == Akku.Form)
        return FOR_Oeffnen(Akku.Reihe, Schleife::Akku, 0);
    if (Wert_Anzahl == 2 && Form.size() == Register.Form.size())
        if (const int n = Form_Passt(Register.Form); n >= 0)
            return FOR_Oeffnen(Register.Reihe, Schleife::Register, n);
    if (Wert_Anzahl == 3 && Form == Direkt.Form)
        return FOR_Oeffnen(Direkt.Reihe, Schleife::Direkt, Wert_Nr(1));
    return Basic_Ergebnis::Keines;
}

Basic_Ergebnis NEXT_Uebersetzen()
{
    const auto& s = FOR_Stapel[static_cast<std::size_t>(FOR_Tiefe)];
    Reihe_Setzen(NEXT_Formen[s.Art], {0, s.Ziel, 0, 0, s.Ende, s.Ziel, s.Adresse});
    return --FOR_Tiefe < 0 ? Fehler_Marke("ERR9") : Basic_Ergebnis::Fertig;
}

// Rn=A and A=Rn.
Basic_Ergebnis Register_Zuweisung()
{
    int n      = Lauf.Zeile_Gross.size() == 4 ? Form_Passt("Rn=A") : -1;
    int Opcode = 0xF8;
    if (n < 0) {
        n      = Lauf.Zeile_Gross.size() == 4 ? Form_Passt("A=Rn") : -1;
        Opcode = 0xE8;
    }
    if (n < 0)
        return Basic_Ergebnis::Keines;
    Byte_Setzen(Adress_Zaehler, Opcode + n);
    Befehls_Laenge = 1;
    return Basic_Ergebnis::Byte;
}

// `Rn=#v` and `Rn=d`.
void Register_Form_Umschreiben()
{
    std::string& Form          = Lauf.Zeile_Gross;
    const bool   Mit_Konstante = Form.size() == 4 && Form.back() == '#';
    if ((Mit_Konstante || Form.size() == 3) && Form_Passt("Rn=") >= 0)
        Form = "MOV" + Form.substr(0, 2) + (Mit_Konstante ? ",#" : ",");
}

// An assignment becomes the form of its MOV.
Basic_Ergebnis Zuweisung_Uebersetzen()
{
    std::string& Form = Lauf.Zeile_Gross;
    if (Form_Jetzt() == "=" && Wert_Anzahl == 2) {
        if (!O_MOV_ZQ)
            std::swap(Wert_Nr(1), Wert_Nr(2));
        Form = "MOV,";
    } else if (Wert_Anzahl == 1) {
        for (const Zuweisung& z : Zuweisungen)
            if (Form_Jetzt() == z.Form) {
                Form = z.Wird;
                return Basic_Ergebnis::Keines;
            }
        Register_Form_Umschreiben();
    } else if (Wert_Anzahl == 0) {
        return Register_Zuweisung();
    }
    return Basic_Ergebnis::Keines;
}

} // namespace

Basic_Ergebnis Basic_Uebersetzen()
{
    Basic_Ergebnis Ergebnis = Basic_Ergebnis::Keines;
    if (Form_Beginnt("IF"))
        Ergebnis = IF_Uebersetzen();
    else if (Form_Jetzt() == "ELSE")
        Ergebnis = ELSE_Uebersetzen();
    else if (Form_Jetzt() == "ENDIF")
        Ergebnis = END_IF_Uebersetzen();
    else if (Form_Beginnt("FOR"))
        Ergebnis = FOR_Uebersetzen();
    else if (Form_Beginnt("NEXT"))
        Ergebnis = NEXT_Uebersetzen();
    return Ergebnis == Basic_Ergebnis::Keines ? Zuweisung_Uebersetzen() : Ergebnis;
}

void Inline_IF_Schliessen(int Laenge)
{
    Byte_Setzen(IF_Stapel[static_cast<std::size_t>(IF_Tiefe)], Laenge + Inline_Zusatz);
    Inline_IF = false;
    --IF_Tiefe;
}

} // namespace varnholt
