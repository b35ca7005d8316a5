// Keys as the logic sees them: the key codes of the field, and the keys held down with them.
#pragma once

namespace varnholt {

inline constexpr int Taste_Rueck     = 8;
inline constexpr int Taste_Tab       = 9;
inline constexpr int Taste_Enter     = 13;
inline constexpr int Taste_Umschalt  = 16;
inline constexpr int Taste_Strg      = 17;
inline constexpr int Taste_Alt       = 18;
inline constexpr int Taste_Escape    = 27;
inline constexpr int Taste_Bild_Auf  = 33;
inline constexpr int Taste_Bild_Ab   = 34;
inline constexpr int Taste_Ende      = 35;
inline constexpr int Taste_Pos1      = 36;
inline constexpr int Taste_Links     = 37;
inline constexpr int Taste_Auf       = 38;
inline constexpr int Taste_Rechts    = 39;
inline constexpr int Taste_Ab        = 40;
inline constexpr int Taste_Entfernen = 46;

// One key-down. Letters and digits have their upper-case code ('A' to 'Z', '0' to '9'); a key that
// the logic knows nothing of has the code 0.
struct Taste_T {
    int  Code     = 0;
    bool Umschalt = false;
    bool Strg     = false;
    bool Alt      = false;
    char Zeichen  = 0; // what it types, Windows-1252; 0: nothing
};

} // namespace varnholt
