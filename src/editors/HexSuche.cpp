// Search for a sequence of bytes in the image.
#include "editors/HexSuche.h"

#include "core/codepage.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "editors/Form_Texte.h"
#include "editors/Hexedit.h"
#include "language/HexDez.h"

#include <algorithm>
#include <utility>

namespace varnholt {

std::optional<std::vector<std::uint8_t>> Hex_Muster(std::string_view Text)
{
    constexpr std::size_t Abstand = 3; // characters from one pair to the next
    const std::size_t     N       = std::max<std::size_t>((Text.size() + 1) / Abstand, 1);

    std::vector<std::uint8_t> Muster;
    for (std::size_t i = 0; i < N; ++i) {
        const std::int32_t Wert =
            Hexpaar_zu_Wert(Text.substr(std::min(i * Abstand, Text.size()), 2));
        if (Wert < 0 || Wert > 0xFF)
            return std::nullopt;
        Muster.push_back(static_cast<std::uint8_t>(Wert));
    }
    return Muster;
}

std::int32_t Hex_Treffer(std::span<const std::uint8_t> Daten,
                         std::span<const std::uint8_t> Muster,
                         std::int32_t                  Von)
{
    auto a = Daten.begin() + std::clamp<std::ptrdiff_t>(Von, 0, std::ssize(Daten));
    while (!Muster.empty() && (a = std::find(a, Daten.end(), Muster.front())) != Daten.end()) {
        const auto [Ort, m] = std::mismatch(a, Daten.end(), Muster.begin(), Muster.end());
        if (m == Muster.end())
            return static_cast<std::int32_t>(a - Daten.begin());
        if (Ort == Daten.end())
            break;
        a = Ort + 1; // the byte that doesn't match isn't tried as a first one
    }
    return -1;
}

namespace HexSuche {
namespace {

constexpr int Taste_Enter_Code = 13;
constexpr int Taste_F3_Code    = 114;

// clang-format off
constexpr Form_Text_T Texte[] = {
    {"HexSuche",        "Hex-/ASCII-Editor Suche",  "Hex-/ASCII-Editor Search"},
    {"Suchen_OK",       "Suchen",                   "Search"},
    {"Suchen_Abbrechen", "Abbrechen",               "Abort"},
    {"O_Hex",           "Suche im Hex-Editor",      "Search within hex-editor"},
    {"O_ASCII",         "Suche im ASCII-Editor ",   "Search within ascii-editor"},
    {"InfoText",
     "Bei Eingabe eines Suchstrings von mehreren Hex-Werten trennen Sie diese bitte durch ein Freizeichen.",
     "Seperate multiple hex values with any sign (Example: 0A FF 55 30)."},
};
// clang-format on

// The bytes that are looked for; none, with a message, when the text isn't readable as such.
std::optional<std::vector<std::uint8_t>> Muster_Bilden()
{
    const std::string Begriff = Aus_UTF8(HexSuche_Form.Suchbegriff);
    if (HexSuche_Form.O_ASCII)
        return std::vector<std::uint8_t>(Begriff.begin(), Begriff.end());
    auto Muster = Hex_Muster(Begriff);
    if (!Muster)
        Melden({"Ungültiges Zeichen im Hex-Suchtext! Dieser kann nur die Werte 00-FF annehmen.",
                "Invalid sign in the hex search text detected! The hex search text can only "
                "contain values between 00 and FF."});
    return Muster;
}

// The shared second image holds the pattern from element 1 on.
void Muster_Ablegen(std::span<const std::uint8_t> Muster)
{
    Hex_Puffer.assign(Muster.size() + 1, 0);
    std::copy(Muster.begin(), Muster.end(), Hex_Puffer.begin() + 1);
}

void Kein_Treffer()
{
    if (Such_Start == 0)
        return Melden({"Nicht gefunden!", "Not found!"});
    Melden({"Keine weiteren gefunden !", "No others found !"});
    Such_Start = 0;
}

// Scrolls by the byte ahead of the hit: its row becomes the page's first one where the bar goes
// that far.
void Treffer_Zeigen(std::int32_t Adresse, int Anzahl)
{
    const int Zeile = std::max(Adresse - 1, 0) / Zeilen_Bytes;
    Scroll_Setzen(Zeile);
    const int Byte = Adresse - Hexedit.Scroll * Zeilen_Bytes;
    Hex_Markieren(Markierung_Von(Hex_Mass, {Byte, Byte + Anzahl}));
}

void Formular_Schliessen()
{
    Such_Start = 0;
    Plattform.Fenster->Formular_Entladen(Formular::F_HexSuche);
}

} // namespace

std::string_view Text(std::string_view Name) { return Form_Text(Texte, Name); }

void Zeigen()
{
    if (!Plattform.Fenster->Formular_Sichtbar(Formular::F_HexSuche))
        Such_Start = 0;
    ++HexSuche_Form.Fokus_Stand;
    Plattform.Fenster->Formular_Zeigen(Formular::F_HexSuche);
}

void Suchbegriff_Change(std::string Neuer)
{
    HexSuche_Form.Suchbegriff = std::move(Neuer);
    Such_Start                = 0;
}

void Suchbegriff_KeyPress(int Taste)
{
    if (Taste == Taste_Enter_Code || Taste == Taste_F3_Code)
        Suchen_OK_Click();
}

void O_Hex_Click() { HexSuche_Form.O_ASCII = false; }
void O_ASCII_Click() { HexSuche_Form.O_ASCII = true; }

void Suchen_OK_Click()
{
    if (HexSuche_Form.Suchbegriff.empty()) {
        Formular_Schliessen();
        return Plattform.Fenster->Fokus(Fenster_Hexedit);
    }
    const auto Muster = Muster_Bilden();
    if (!Muster)
        return;
    Muster_Ablegen(*Muster);
    const std::int32_t Adresse = Hex_Treffer(Hex_Daten, *Muster, Such_Start);
    if (Adresse < 0)
        return Kein_Treffer();
    Such_Start = Adresse + 1;
    Treffer_Zeigen(Adresse, static_cast<int>(Muster->size()));
}

void Suchen_Abbrechen_Click() { Formular_Schliessen(); }

} // namespace HexSuche
} // namespace varnholt
