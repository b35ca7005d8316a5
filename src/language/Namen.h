// The names of EQU, BIT, DATA and CONST, and the labels' index.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varnholt {

inline constexpr int Namen_Hoechstens = 5000;

// Kind of a name.
inline constexpr int Name_Einfach = 0; // plain number
inline constexpr int Name_Bit     = 1; // bit address
inline constexpr int Name_Byte    = 8; // byte address

struct Namen_Eintrag {
    std::string  Name{};       // upper case without blanks; for CONST as typed
    std::int32_t Wert = 0;     // value; unused for CONST
    std::string  Const_Text{}; // the unconverted value of a CONST
    int          Laenge   = 0; // length of Name; 0 for CONST, which the search never finds
    int          Art      = 0; // Name_Einfach, Name_Bit or Name_Byte
    int          Herkunft = 0; // of the defining row; 0 for the PORTn entries
};

// Hash with look-up by view.
struct Text_Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view t) const { return std::hash<std::string_view>{}(t); }
};
using Text_Verzeichnis = std::unordered_map<std::string, int, Text_Hash, std::equal_to<>>;

// Owner: the assembler. Outlives the run: the simulator's register views read it.
inline struct Namen_T {
    std::vector<Namen_Eintrag> Namen_Tabelle{}; // in order of definition; entry i is number i + 1
    Text_Verzeichnis           Erster{};        // name to the index of its first entry
} Namen;

inline constinit auto& Namen_Tabelle = Namen.Namen_Tabelle;

inline int Namen_Anzahl() { return static_cast<int>(Namen_Tabelle.size()); }

// Index of the first entry of that name, -1 without one. CONST entries are never found.
int Namen_Index(std::string_view Name);
// Appends an entry; an error ends the run beyond 5000 names.
void Name_Anfuegen(Namen_Eintrag Eintrag);

// Value of a name with an optional suffix `.n` (a bit of it); -1 when there is none. Laenge loses 2
// for a suffix that was cut, and gets them back on a hit. Sets Name_Eins, Name_Zwei, Bit_Eins,
// Bit_Zwei.
std::int32_t Name_Suchen(std::string_view Zeile, std::size_t Anfang, int& Laenge);

// A definition line (`NAMEEQU`, `NAMEBIT`, `NAMEDATA`): enters it and answers true.
// reads: Zeile_Gross, Wert_Liste, Name_Eins, Bit_Eins   sets: Namen_Tabelle
bool Name_Definieren();
// A line that begins with CONST.   reads: Quell_Zeilen   sets: Namen_Tabelle
void Const_Eintragen();

// The check in the tail of an emitted instruction: a bit name in a byte instruction, a byte name in
// a bit instruction.
void Namensart_Pruefen();

void Namen_Leeren();

} // namespace varnholt
