// The jumpmark list: the jumpmarks as they stand in the source text, before any assembly.
// Sprungmarken_Fuellen (core/commands.h) rebuilds it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varnholt {

// Longest name that is listed, and most names: any real program has far shorter and far fewer ones,
// and a file of nothing but colons must not fill the memory.
inline constexpr std::size_t Marke_Hoechstens  = 255;
inline constexpr std::size_t Marken_Hoechstens = 100000;

// Holds until the text changes. Owner: Sprungmarken.cpp. The names are document text
// (Windows-1252).
inline struct Sprungmarken_T {
    std::vector<std::string> Sprungmarken_Liste{};    // every mark, in the order of the text
    int                      Sprungmarken_Anzahl = 0; // their number
    // What the window shows: the marks that the options let through, or the one entry that there
    // are none.
    std::vector<std::string> Liste{};
    std::uint64_t            Liste_Stand = 0; // grows when Liste changed
} Sprungmarken;

inline constinit auto& Sprungmarken_Liste  = Sprungmarken.Sprungmarken_Liste;
inline constinit auto& Sprungmarken_Anzahl = Sprungmarken.Sprungmarken_Anzahl;

// The state as at program start.
inline void Sprungmarken_Zuruecksetzen() { Sprungmarken = {}; }

// A click on that entry of Liste (from 0): selects the mark in the editor. The entry that there are
// none does nothing, and so does a number outside the list.
// reads: Liste   sets: selection and focus of Edit
void Spr_Liste_Click(int Eintrag);

} // namespace varnholt
