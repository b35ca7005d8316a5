// Copy, cut, delete and paste in the hex editor. core/clipboard.cpp calls them when `Hexedit` is
// the active window. Inserting and deleting move the whole image above the marking.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace varnholt {

// Takes N bytes out at A in [Von, Bis): what lies above comes down, FFh in at the top.
void Bytes_Herunter(std::span<std::uint8_t> Daten,
                    std::int64_t            Von,
                    std::int64_t            Bis,
                    std::int64_t            N);
// Makes room: the bytes from Von on go up by N; what falls off the top is lost.
void Bytes_Hinauf(std::span<std::uint8_t> Daten, std::int64_t Von, std::int64_t N);

// What a paste writes: a value for each place, none for a place that keeps its byte. The number of
// places is what the image grows by, and may be greater than the number of values.
struct Einfuegung_T {
    std::vector<std::optional<std::uint8_t>> Werte{};
    std::int64_t                             Plaetze = 0;
};
// Text as characters: line breaks take a place but aren't written.
Einfuegung_T Aus_Zeichen(std::string_view Text);
// Text as pairs of digits; blanks and line breaks are passed over, so is a single last digit. A
// pair that is no number leaves the byte of its place as it is.
Einfuegung_T Aus_Hexpaaren(std::string_view Text);

// reads: Hex_Aktives_Feld, its text and marking   sets: clipboard
void Hexedit_Kopieren();
// sets: Abbruch and as Änderung, clipboard, Hex_Daten
void Hexedit_Ausschneiden();
// reads: AscII_Auswahl   sets: Abbruch and as Änderung, Hex_Daten, page
void Hexedit_Loeschen();
// reads: clipboard, Hex_Aktives_Feld, its marking   sets: Abbruch and as Änderung, Hex_Daten, page
void Hexedit_Einfuegen();

} // namespace varnholt
