// Area operations: copy, fill and remove a range of the image.
#include "editors/Bereiche.h"

#include "core/commands.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "editors/Form_Texte.h"
#include "editors/Hexablage.h"
#include "editors/Hexedit.h"
#include "language/HexDez.h"
#include "language/Val.h"
#include "programmer/Brennmenue.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <span>

namespace varnholt {
namespace Bereich {
namespace {

constexpr std::int64_t Fuellwert_Hoechster = 255;

// clang-format off
constexpr Form_Text_T Texte[] = {
    {"Von",                 "Von Adresse:",                          "From address:"},
    {"Bis",                 "Bis Adresse:",                          "To address:"},
    {"Kopf_Einfügen",       "Einfügen an             Hex    Dez",    "Insert                  Hex    Dec"},
    {"Adresse",             "Adresse:",                              "Address:"},
    {"Kopf_Überschreiben",  "Überschreiben           Hex    Dez   ", "Replace                 Hex    Dec"},
    {"Kopf_Wert",           "Wert                      Hex    Dez",  "Value                     Hex    Dec"},
    {"Wert",                "Wert:",                                 "Value:"},
    {"C_OK",                "OK",                                    "OK"},
    {"C_Abort",             "Abbrechen",                             "Abort"},
};
constexpr Form_Text_T Kopieren_Texte[] = {
    {"Titel", "Bereich Kopieren",                      "Copy area"},
    {"Kopf",  "Bereich Kopieren         Hex    Dez",   "Copy area                 Hex    Dec"},
};
constexpr Form_Text_T Setzen_Texte[] = {
    {"Titel", "Bereich Setzen",                        "Set area"},
    {"Kopf",  "Bereich Setzen            Hex    Dez",  "Set area                  Hex    Dec"},
};
constexpr Form_Text_T Entfernen_Texte[] = {
    {"Titel", "Bereich Entfernen",                     "Remove area"},
    {"Kopf",  "Bereich Entfernen         Hex    Dez",  "Remove area               Hex    Dec"},
};
// clang-format on

std::span<const Form_Text_T> Eigene_Texte()
{
    switch (Bereich_Form.Art) {
    case Bereich_Art::Setzen:
        return Setzen_Texte;
    case Bereich_Art::Entfernen:
        return Entfernen_Texte;
    case Bereich_Art::Kopieren:
        break;
    }
    return Kopieren_Texte;
}

Formular Eigenes_Formular()
{
    switch (Bereich_Form.Art) {
    case Bereich_Art::Setzen:
        return Formular::F_Bereich_setzen;
    case Bereich_Art::Entfernen:
        return Formular::F_Bereich_entfernen;
    case Bereich_Art::Kopieren:
        break;
    }
    return Formular::F_Bereich_Kopieren;
}

// --- fields ---

Paar_T& Feld_Paar(Adress_Paar Welches)
{
    return Bereich_Form.Paare[static_cast<std::size_t>(Welches)];
}

// Upper case, no leading zeros; a negative value as its 32 bits.
std::string Hex_Text(std::int64_t Zahl)
{
    return fmt::format("{:X}", static_cast<std::uint32_t>(Zahl));
}

std::int64_t Wert(Adress_Paar Welches) { return Val(Paar(Welches).Dez); }

// Whether the open dialog has the pair, and for its work.
bool Gebraucht(Adress_Paar Welches)
{
    if (Welches == Adress_Paar::Copy_Start || Welches == Adress_Paar::Copy_End)
        return true;
    if (Bereich_Form.Art == Bereich_Art::Kopieren)
        return Paar_Aktiv(Welches);
    return Bereich_Form.Art == Bereich_Art::Setzen && Welches == Adress_Paar::Insert_Start;
}

// A wrong character in a hexadecimal field makes its value -1.
void Bereich_Pruefen()
{
    bool Erlaubt = Wert(Adress_Paar::Copy_Start) <= Wert(Adress_Paar::Copy_End);
    for (std::size_t i = 0; i < Adress_Paare; ++i) {
        const auto p = static_cast<Adress_Paar>(i);
        Erlaubt      = Erlaubt && (!Gebraucht(p) || Wert(p) >= 0);
    }
    Bereich_Form.C_OK_Aktiv = Erlaubt;
}

std::int64_t Zulaessig(Adress_Paar Welches, std::int64_t Neuer)
{
    const bool Fuellwert =
        Bereich_Form.Art == Bereich_Art::Setzen && Welches == Adress_Paar::Insert_Start;
    return Fuellwert ? std::clamp<std::int64_t>(Neuer, 0, Fuellwert_Hoechster) : Neuer;
}

// --- operations ---

struct Warten {
    Warten() { Plattform.Ereignisse->Mauszeiger_Warten(true); }
    ~Warten() { Plattform.Ereignisse->Mauszeiger_Warten(false); }
    Warten(const Warten&)            = delete;
    Warten& operator=(const Warten&) = delete;
};

// Number of bytes from Erste to Letzte that lie inside the image.
std::int64_t Bytes_Im_Bild(std::int64_t Erste, std::int64_t Letzte)
{
    const std::int64_t Groesse = Hex_Groesse;
    return std::max<std::int64_t>(0, std::min(Letzte, Groesse - 1) - Erste + 1);
}

// Writes the copied range from Ziel on, at most Hoechstens bytes.
void Puffer_Schreiben(std::int64_t Ziel, std::int64_t Hoechstens)
{
    const std::int64_t N = std::min<std::int64_t>(std::ssize(Hex_Puffer) - 1, Hoechstens);
    if (N > 0)
        std::copy_n(Hex_Puffer.begin(), N, Hex_Daten.begin() + Ziel);
}

void Einfuegen()
{
    const std::int64_t Ziel = Wert(Adress_Paar::Insert_Start);
    const auto Ganzes_Bild  = std::span(Hex_Daten).first(static_cast<std::size_t>(Hex_Groesse) + 1);
    Bytes_Hinauf(Ganzes_Bild, Ziel, std::ssize(Hex_Puffer) - 1);
    Puffer_Schreiben(Ziel, Bytes_Im_Bild(Ziel, Hex_Groesse));
}

void Ueberschreiben()
{
    const std::int64_t Ziel = Wert(Adress_Paar::Paste_Start);
    Puffer_Schreiben(Ziel, Bytes_Im_Bild(Ziel, Wert(Adress_Paar::Paste_End)));
}

// The source goes through the second image, so that it may overlap the target.
void Kopieren(std::int64_t Start, std::int64_t Ende)
{
    const std::int64_t N = Bytes_Im_Bild(Start, Ende);
    Hex_Puffer.assign(static_cast<std::size_t>(N) + 1, 0);
    if (N > 0)
        std::copy_n(Hex_Daten.begin() + Start, N, Hex_Puffer.begin());
    if (Bereich_Form.Überschreiben)
        Ueberschreiben();
    else
        Einfuegen();
}

void Setzen(std::int64_t Start, std::int64_t Ende)
{
    const std::int64_t N = Bytes_Im_Bild(Start, Ende);
    if (N > 0)
        std::fill_n(Hex_Daten.begin() + Start,
                    N,
                    static_cast<std::uint8_t>(Wert(Adress_Paar::Insert_Start)));
}

void Entfernen(std::int64_t Start, std::int64_t Ende)
{
    const auto Bild_Daten = std::span(Hex_Daten).first(static_cast<std::size_t>(Hex_Groesse));
    Bytes_Herunter(Bild_Daten, Start, Hex_Groesse, Ende - Start + 1);
}

// The dialog opens unless the user refuses to give up the source text.
void Oeffnen(Bereich_Art Art)
{
    if (!Änderung_Erlaubt())
        return;
    Form_Load(Art);
    Plattform.Fenster->Formular_Zeigen(Eigenes_Formular());
}

} // namespace

std::string_view Text(std::string_view Name)
{
    const std::string_view Eigener = Form_Text(Eigene_Texte(), Name);
    return Eigener.empty() ? Form_Text(Texte, Name) : Eigener;
}

const Paar_T& Paar(Adress_Paar Welches) { return Feld_Paar(Welches); }

bool Paar_Aktiv(Adress_Paar Welches)
{
    switch (Welches) {
    case Adress_Paar::Insert_Start:
        return !Bereich_Form.Überschreiben;
    case Adress_Paar::Paste_Start:
    case Adress_Paar::Paste_End:
        return Bereich_Form.Überschreiben;
    default:
        return true;
    }
}

void Form_Load(Bereich_Art Art)
{
    Bereich_Form     = {};
    Bereich_Form.Art = Art;
}

void Dez_Change(Adress_Paar Welches, std::string_view Neuer)
{
    const std::int64_t w = Zulaessig(Welches, Val(Neuer));
    Feld_Paar(Welches)   = {std::to_string(w), Hex_Text(w)};
    Bereich_Pruefen();
}

void Hex_Change(Adress_Paar Welches, std::string_view Neuer)
{
    const std::int64_t Getippt = Hex_zu_Wert(Neuer);
    const std::int64_t w       = Zulaessig(Welches, Getippt);
    Feld_Paar(Welches) = {std::to_string(w), w == Getippt ? std::string(Neuer) : Hex_Text(w)};
    Bereich_Pruefen();
}

bool Hex_KeyPress(int Taste) { return Hex_Taste_Erlaubt(Taste); }

void O_Kopie_Einfügen_Click()
{
    Bereich_Form.Überschreiben = false;
    Bereich_Pruefen();
}

void O_Kopie_Überschreiben_Click()
{
    Bereich_Form.Überschreiben = true;
    Bereich_Pruefen();
}

void C_OK_Click()
{
    if (!Bereich_Form.C_OK_Aktiv)
        return;
    const Warten       Zeiger;
    const std::int64_t Start = Wert(Adress_Paar::Copy_Start);
    const std::int64_t Ende  = Wert(Adress_Paar::Copy_End);
    switch (Bereich_Form.Art) {
    case Bereich_Art::Kopieren:
        Kopieren(Start, Ende);
        break;
    case Bereich_Art::Setzen:
        Setzen(Start, Ende);
        break;
    case Bereich_Art::Entfernen:
        Entfernen(Start, Ende);
        break;
    }
    Hex_Anzeige();
}

void C_Abort_Click() { Plattform.Fenster->Formular_Entladen(Eigenes_Formular()); }

} // namespace Bereich

void MNU_Ber_Kopieren_Click() { Bereich::Oeffnen(Bereich_Art::Kopieren); }
void MNU_Ber_setzen_Click() { Bereich::Oeffnen(Bereich_Art::Setzen); }
void MNU_Ber_entfernen_Click() { Bereich::Oeffnen(Bereich_Art::Entfernen); }

} // namespace varnholt
