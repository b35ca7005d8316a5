// The arithmetic of a hex page: where a byte stands in the two texts, how a marking of one text
// looks in the other, and where each movement key leads. Pure calculations, no state.
#pragma once

#include "core/keys.h"
#include "core/shared_state.h"

#include <algorithm>
#include <cstdint>

namespace varnholt {

inline constexpr int Zeilen_Bytes = 16;                          // bytes in a row
inline constexpr int Bild_Zeilen  = Bild_Groesse / Zeilen_Bytes; // 32768, the limit of the bar
inline constexpr int R_Hoechstens = 4095; // rows beyond any screen; bounds the size of the texts

// The layout of a pane's text, in characters.
struct Feldmass_T {
    int  Zeile;  // a row: 48 for digits and blanks, 18 for 16 characters and the line break
    int  Zelle;  // a byte: two digits and a blank, or one character
    int  Breite; // what of the cell is marked: the digits without the blank, or the character
    bool operator==(const Feldmass_T&) const = default;
};
inline constexpr Feldmass_T Hex_Mass{48, 3, 2};
inline constexpr Feldmass_T AscII_Mass{18, 1, 1};
// The last byte of a page begins that many characters before the end of the text, in both panes.
inline constexpr int Letzte_Zelle = 3;

// What a text field marks: offset of the first character and number of characters.
struct Markierung_T {
    int            Anfang = 0;
    int            Laenge = 1;
    constexpr int  Ende() const { return Anfang + Laenge; }
    constexpr bool operator==(const Markierung_T&) const = default;
};

// Consecutive bytes of the page, counted from 0; Ende is the one behind the last.
struct Bytefolge_T {
    int            Anfang                               = 0;
    int            Ende                                 = 0;
    constexpr bool operator==(const Bytefolge_T&) const = default;
};

// A page: row number in its first row (value of the bar), the bar's maximum, and R. Rows 0 to R
// are shown as far as the image goes; R below 0 shows none.
struct Seite_T {
    int           Scroll = 0;
    int           Max    = 0;
    int           R      = 0;
    constexpr int Zeilen() const { return std::max(0, std::min(R + 1, Bild_Zeilen - Scroll)); }
    constexpr int Bytes() const { return Zeilen() * Zeilen_Bytes; }
    constexpr int Laenge(const Feldmass_T& m) const { return Zeilen() * m.Zeile; }
};

// Where the caret goes: value of the bar and offset on that page.
struct Ort_T {
    int            Scroll                         = 0;
    int            Stelle                         = 0;
    constexpr bool operator==(const Ort_T&) const = default;
};

// Rows that a field of that height shows: R. Fractions are cut; R_Hoechstens at most.
constexpr int R_Aus_Hoehe(int Hoehe, int Zeilen_Hoehe)
{
    const int z = std::clamp(Zeilen_Hoehe, 1, 1 << 20);
    return std::min((2 * std::clamp(Hoehe, 0, 1 << 20) - 3 * z) / (2 * z), R_Hoechstens);
}
static_assert(R_Aus_Hoehe(400, 16) == 23 && R_Aus_Hoehe(392, 16) == 23);
static_assert(R_Aus_Hoehe(391, 16) == 22 && R_Aus_Hoehe(0, 16) == -1 && R_Aus_Hoehe(10, 16) == 0);

// --- bytes and offsets ---

// Byte at an offset; a line break counts to the byte before it, a blank too.
constexpr int Byte_An(const Feldmass_T& m, int Stelle)
{
    return Stelle / m.Zeile * Zeilen_Bytes + std::min(Stelle % m.Zeile / m.Zelle, Zeilen_Bytes - 1);
}

// Offset at which a byte begins.
constexpr int Stelle_Von(const Feldmass_T& m, int Byte)
{
    return Byte / Zeilen_Bytes * m.Zeile + Byte % Zeilen_Bytes * m.Zelle;
}
static_assert(Stelle_Von(Hex_Mass, 17) == 51 && Stelle_Von(AscII_Mass, 17) == 19);
static_assert(Byte_An(Hex_Mass, 53) == 17 && Byte_An(AscII_Mass, 17) == 15);

// The offset drawn into the text, and onto the character or digit before it when it stands on a
// line break or a blank. 0 on an empty page.
constexpr int In_Zelle(const Feldmass_T& m, int Stelle, int Text_Laenge)
{
    if (Text_Laenge <= 0)
        return 0;
    const int s    = Stelle >= Text_Laenge ? Text_Laenge - Letzte_Zelle : std::max(0, Stelle);
    const int Byte = Byte_An(m, s);
    return std::min(s, Stelle_Von(m, Byte) + m.Breite - 1);
}
static_assert(In_Zelle(AscII_Mass, 17, 36) == 15 && In_Zelle(AscII_Mass, 36, 36) == 33);
static_assert(In_Zelle(Hex_Mass, 2, 48) == 1 && In_Zelle(Hex_Mass, 99, 48) == 45);

// The bytes that a marking touches, at least one. Nothing on an empty page.
constexpr Bytefolge_T Bytes_Von(const Feldmass_T& m, const Markierung_T& M, const Seite_T& s)
{
    const int L = s.Laenge(m);
    if (L == 0)
        return {};
    const int Erstes  = In_Zelle(m, M.Anfang, L);
    const int Letztes = std::max(Erstes, std::min(M.Ende(), L) - 1);
    return {Byte_An(m, Erstes), Byte_An(m, Letztes) + 1};
}

// How bytes are marked: from the first one's first character to the last one's last.
constexpr Markierung_T Markierung_Von(const Feldmass_T& m, const Bytefolge_T& b)
{
    if (b.Ende <= b.Anfang)
        return {0, 0};
    const int Anfang = Stelle_Von(m, b.Anfang);
    return {Anfang, Stelle_Von(m, b.Ende - 1) + m.Breite - Anfang};
}
static_assert(Markierung_Von(Hex_Mass, {15, 17}) == Markierung_T{45, 5});
static_assert(Markierung_Von(AscII_Mass, {15, 17}) == Markierung_T{15, 4});

// --- movement ---

// Offset of the next and of the previous digit; blanks are stepped over.
constexpr int Naechste_Ziffer(int Stelle)
{
    return Stelle + (Stelle % 3 == 0 ? 1 : 3 - Stelle % 3);
}
constexpr int Vorige_Ziffer(int Stelle) { return Stelle - (Stelle % 3 == 0 ? 2 : 1); }
static_assert(Naechste_Ziffer(0) == 1 && Naechste_Ziffer(1) == 3 && Naechste_Ziffer(46) == 48);
static_assert(Vorige_Ziffer(48) == 46 && Vorige_Ziffer(46) == 45);

// Page Up goes 16 rows and Page Down 18: one row of two pages is seen twice, or two are skipped,
// as the hands of the users expect it.
inline constexpr int Bild_Auf_Zeilen = 16;
inline constexpr int Bild_Ab_Zeilen  = 18;

constexpr Ort_T Bild_Auf(const Feldmass_T& m, const Seite_T& s, int Stelle)
{
    if (s.Scroll > Bild_Auf_Zeilen)
        return {s.Scroll - Bild_Auf_Zeilen, Stelle};
    return {0, Stelle % m.Zeile};
}

constexpr Ort_T Bild_Ab(const Feldmass_T& m, const Seite_T& s, int Stelle)
{
    if (s.Scroll < s.Max - Bild_Ab_Zeilen)
        return {s.Scroll + Bild_Ab_Zeilen, Stelle};
    return {s.Max, Stelle % m.Zeile + (s.Zeilen() - 1) * m.Zeile};
}

constexpr Ort_T Auf(const Feldmass_T& m, const Seite_T& s, int Stelle)
{
    if (s.Scroll > 0 && Stelle < Zeilen_Bytes * m.Zelle)
        return {s.Scroll - 1, Stelle};
    return {s.Scroll, Stelle >= m.Zeile ? Stelle - m.Zeile : Stelle};
}

constexpr Ort_T Ab(const Feldmass_T& m, const Seite_T& s, int Stelle)
{
    const bool Letzte_Zeile = Stelle + m.Zeile >= s.Laenge(m);
    if (!Letzte_Zeile)
        return {s.Scroll, Stelle + m.Zeile};
    if (s.Scroll >= s.Max)
        return {s.Scroll, Stelle};
    const Seite_T Neue{s.Scroll + 1, s.Max, s.R};
    return {Neue.Scroll, Stelle < Neue.Laenge(m) ? Stelle : Stelle - m.Zeile};
}

constexpr int Nach_Links(const Feldmass_T& m, int Stelle)
{
    if (Stelle == 0)
        return 0;
    if (m == Hex_Mass)
        return Vorige_Ziffer(Stelle);
    return Stelle % m.Zeile == 0 ? Stelle - 3 : Stelle - 1; // 3: line break and last column
}

constexpr int Nach_Rechts(const Feldmass_T& m, int Stelle, int Text_Laenge)
{
    if (m == Hex_Mass)
        return Naechste_Ziffer(Stelle) < Text_Laenge ? Naechste_Ziffer(Stelle) : Stelle;
    if (Stelle + Letzte_Zelle >= Text_Laenge)
        return Stelle;
    return Stelle % m.Zeile == Zeilen_Bytes - 1 ? Stelle + 3 : Stelle + 1;
}

constexpr bool Ist_Bewegung(int Code) { return Code >= Taste_Bild_Auf && Code <= Taste_Ab; }

// Where one of the eight movement keys leads from an offset inside the page. The offset may lie
// behind the new page's text; see In_Zelle.
constexpr Ort_T Bewegung(const Feldmass_T& m, const Seite_T& s, int Stelle, int Code)
{
    switch (Code) {
    case Taste_Bild_Auf:
        return Bild_Auf(m, s, Stelle);
    case Taste_Bild_Ab:
        return Bild_Ab(m, s, Stelle);
    case Taste_Pos1:
        return {s.Scroll, Stelle - Stelle % m.Zeile};
    case Taste_Ende:
        return {s.Scroll, Stelle - Stelle % m.Zeile + (Zeilen_Bytes - 1) * m.Zelle};
    case Taste_Links:
        return {s.Scroll, Nach_Links(m, Stelle)};
    case Taste_Rechts:
        return {s.Scroll, Nach_Rechts(m, Stelle, s.Laenge(m))};
    case Taste_Auf:
        return Auf(m, s, Stelle);
    case Taste_Ab:
        return Ab(m, s, Stelle);
    default:
        return {s.Scroll, Stelle};
    }
}

// --- characters ---

// The character that stands for a byte; eight values that would upset the text show as a point.
constexpr char Zeichen_Von(std::uint8_t Wert)
{
    for (const int Verdeckt : {0, 2, 9, 10, 11, 12, 13, 18, 32})
        if (Wert == Verdeckt)
            return '.';
    return static_cast<char>(Wert);
}
static_assert(Zeichen_Von(18) == '.' && Zeichen_Von(32) == '.' && Zeichen_Von(1) == '\1');

} // namespace varnholt
