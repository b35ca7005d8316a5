// The texts of the interface that stand in no table of their own: filter of the file dialogs, tool
// tip of the mode button, captions and headings of the windows that stay open.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace varnholt {

// Set by a change of language; read by whoever opens a file dialog.
inline struct Oberflaeche_T {
    std::string Datei_Filter{}; // pairs of text and patterns, all separated by |
} Oberflaeche;

inline constinit auto& Datei_Filter = Oberflaeche.Datei_Filter;

// A text in both languages that is known when the program is compiled, UTF-8.
struct Festes_Paar {
    std::string_view D{};
    std::string_view E{};
};

// Column headings of the reference windows.
inline constexpr std::array<Festes_Paar, 4> Bef_Spalten = {
    {{"Hex", "Hex"}, {"Mnemonik", "Mnemonic"}, {"Bytes", "Bytes"}, {"Zyklen", "Cycles"}}};
inline constexpr std::array<Festes_Paar, 3> Basic_Bef_Spalten = {
    {{"Typ", "Typ"}, {"Bytes", "Bytes"}, {"Zyklen", "Cycles"}}};

// The text of the interface language; empty when `Sprache` is neither "D" nor "E".
std::string_view Fester_Text(const Festes_Paar& Text);

// Tool tip of the mode button: what it does next in that mode.
std::string_view Umschalten_Hinweis(int Modus_Jetzt);
// Puts it on the button; with a language that is none the last caption stays.   sets: tool bar
void Umschalter_Beschriften(int Modus_Jetzt);

// Caption of the programmer menu, with the chosen device.   reads: Sprache, IC_Nummer   sets: menu
void IC_Titel_Zeigen();

} // namespace varnholt
