// The form `HexSuche` as a model: looks for a sequence of bytes in the image and marks it in the
// hex editor. It stays open beside the image; MNU_Suche opens it in Hex-Editor mode.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// What the form's controls show.
inline struct HexSuche_Form_T {
    std::string   Suchbegriff{};       // UTF-8
    bool          O_ASCII     = false; // the radio pair: characters, else hexadecimal values
    std::int32_t  Such_Start  = 0;     // address at which the next search begins
    std::uint64_t Fokus_Stand = 0;     // grows with each wish that Suchbegriff has the focus
} HexSuche_Form;

inline constinit auto& Such_Start = HexSuche_Form.Such_Start;

// The state as at program start.
inline void HexSuche_Zuruecksetzen() { HexSuche_Form = {}; }

// The bytes that a text of hexadecimal values stands for, of three characters each: a pair of
// digits, and one that is skipped whatever it is. What is over at the end doesn't count. None when
// a pair is no value.
std::optional<std::vector<std::uint8_t>> Hex_Muster(std::string_view Text);

// Address of the first byte of a hit in Daten from Von on; -1 for none. A partial match that fails
// hides a hit that begins inside it, or at the byte that ended it: "AAB" isn't found in "AAAB".
std::int32_t Hex_Treffer(std::span<const std::uint8_t> Daten,
                         std::span<const std::uint8_t> Muster,
                         std::int32_t                  Von);

namespace HexSuche {

// Caption of a control, and of the form ("HexSuche"), in the interface language; UTF-8.
std::string_view Text(std::string_view Name);

// Opens the form, or brings it to the front; the focus goes to Suchbegriff. Opened anew, the next
// search begins at 0.
void Zeigen();
void Suchbegriff_Change(std::string Neuer); // the next search begins at 0
void Suchbegriff_KeyPress(int Taste);       // Enter (13) and F3 (114) search
void O_Hex_Click();
void O_ASCII_Click();
// Marks the next hit, on a page that begins with the row of the byte ahead of it, as far as the bar
// goes; a message when there is none.
// reads: Hex_Daten   sets: Such_Start, Hex_Puffer (the pattern, from 1 on), page and markings
void Suchen_OK_Click();
void Suchen_Abbrechen_Click();

} // namespace HexSuche
} // namespace varnholt
