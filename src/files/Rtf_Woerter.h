// The control words of RTF that the reader knows, as one table.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace varnholt {

// What a control word does; Wert of the table's row goes with it.
enum class Rtf_Wirkung {
    Nichts,
    Zeichen,    // stands for the character Wert
    Absatz,     // ends a line
    Uebergehen, // the group's contents aren't shown
    Schriften,  // the group is the font table
    Farben,     // the group is the colour table
    Fett,
    Kursiv,
    Unterstrichen, // Wert 0: off
    Versteckt,
    Schlicht, // look of the characters back to the window's own
    Schrift,
    Groesse,
    Farbe,
    Absatz_Schlicht, // look of the paragraph back to the beginning
    Ausrichtung,     // Wert as Bund has it
    Einzug,
    Erste_Zeile,
    Davor,
    Danach,
    Codeseite_Des_Textes, // the number behind the word
    Codeseite,            // Wert
    Grund_Schrift,
    Ersatz_Laenge, // \uc
    Unicode,       // \u
    Rot,
    Gruen,
    Blau,
    Schriftsatz,          // \fcharset
    Codeseite_Der_Schrift // \cpg
};

struct Rtf_Wort_T {
    std::string_view Name;
    Rtf_Wirkung      Wirkung;
    int              Wert = 0;
};

// Sorted by name.
// clang-format off
inline constexpr auto Rtf_Woerter = std::to_array<Rtf_Wort_T>({
    {"annotation", Rtf_Wirkung::Uebergehen},
    {"ansi", Rtf_Wirkung::Codeseite, 1252},
    {"ansicpg", Rtf_Wirkung::Codeseite_Des_Textes},
    {"author", Rtf_Wirkung::Uebergehen},
    {"b", Rtf_Wirkung::Fett},
    {"blue", Rtf_Wirkung::Blau},
    {"bullet", Rtf_Wirkung::Zeichen, 0x2022},
    {"cell", Rtf_Wirkung::Zeichen, '\t'},
    {"cf", Rtf_Wirkung::Farbe},
    {"colortbl", Rtf_Wirkung::Farben},
    {"column", Rtf_Wirkung::Absatz},
    {"cpg", Rtf_Wirkung::Codeseite_Der_Schrift},
    {"deff", Rtf_Wirkung::Grund_Schrift},
    {"do", Rtf_Wirkung::Uebergehen},
    {"emdash", Rtf_Wirkung::Zeichen, 0x2014},
    {"emspace", Rtf_Wirkung::Zeichen, 0x2003},
    {"endash", Rtf_Wirkung::Zeichen, 0x2013},
    {"enspace", Rtf_Wirkung::Zeichen, 0x2002},
    {"f", Rtf_Wirkung::Schrift},
    {"falt", Rtf_Wirkung::Uebergehen},
    {"fcharset", Rtf_Wirkung::Schriftsatz},
    {"fi", Rtf_Wirkung::Erste_Zeile},
    {"filetbl", Rtf_Wirkung::Uebergehen},
    {"fldinst", Rtf_Wirkung::Uebergehen},
    {"fonttbl", Rtf_Wirkung::Schriften},
    {"footer", Rtf_Wirkung::Uebergehen},
    {"footerf", Rtf_Wirkung::Uebergehen},
    {"footerl", Rtf_Wirkung::Uebergehen},
    {"footerr", Rtf_Wirkung::Uebergehen},
    {"footnote", Rtf_Wirkung::Uebergehen},
    {"fs", Rtf_Wirkung::Groesse},
    {"ftnsep", Rtf_Wirkung::Uebergehen},
    {"ftnsepc", Rtf_Wirkung::Uebergehen},
    {"generator", Rtf_Wirkung::Uebergehen},
    {"green", Rtf_Wirkung::Gruen},
    {"header", Rtf_Wirkung::Uebergehen},
    {"headerf", Rtf_Wirkung::Uebergehen},
    {"headerl", Rtf_Wirkung::Uebergehen},
    {"headerr", Rtf_Wirkung::Uebergehen},
    {"i", Rtf_Wirkung::Kursiv},
    {"info", Rtf_Wirkung::Uebergehen},
    {"ldblquote", Rtf_Wirkung::Zeichen, 0x201C},
    {"li", Rtf_Wirkung::Einzug},
    {"line", Rtf_Wirkung::Absatz},
    {"listoverridetable", Rtf_Wirkung::Uebergehen},
    {"listtable", Rtf_Wirkung::Uebergehen},
    {"lquote", Rtf_Wirkung::Zeichen, 0x2018},
    {"ltrmark", Rtf_Wirkung::Zeichen, 0x200E},
    {"mac", Rtf_Wirkung::Codeseite, 10000},
    {"nestcell", Rtf_Wirkung::Zeichen, '\t'},
    {"nestrow", Rtf_Wirkung::Absatz},
    {"nonesttables", Rtf_Wirkung::Uebergehen},
    {"nonshppict", Rtf_Wirkung::Uebergehen},
    {"objdata", Rtf_Wirkung::Uebergehen},
    {"operator", Rtf_Wirkung::Uebergehen},
    {"page", Rtf_Wirkung::Absatz},
    {"par", Rtf_Wirkung::Absatz},
    {"pard", Rtf_Wirkung::Absatz_Schlicht},
    {"pc", Rtf_Wirkung::Codeseite, 437},
    {"pca", Rtf_Wirkung::Codeseite, 850},
    {"pict", Rtf_Wirkung::Uebergehen},
    {"plain", Rtf_Wirkung::Schlicht},
    {"pntxta", Rtf_Wirkung::Uebergehen},
    {"pntxtb", Rtf_Wirkung::Uebergehen},
    {"private", Rtf_Wirkung::Uebergehen},
    {"qc", Rtf_Wirkung::Ausrichtung, 1},
    {"qj", Rtf_Wirkung::Ausrichtung, 3},
    {"ql", Rtf_Wirkung::Ausrichtung, 0},
    {"qmspace", Rtf_Wirkung::Zeichen, 0x2005},
    {"qr", Rtf_Wirkung::Ausrichtung, 2},
    {"rdblquote", Rtf_Wirkung::Zeichen, 0x201D},
    {"red", Rtf_Wirkung::Rot},
    {"revtbl", Rtf_Wirkung::Uebergehen},
    {"row", Rtf_Wirkung::Absatz},
    {"rquote", Rtf_Wirkung::Zeichen, 0x2019},
    {"rtlmark", Rtf_Wirkung::Zeichen, 0x200F},
    {"rxe", Rtf_Wirkung::Uebergehen},
    {"sa", Rtf_Wirkung::Danach},
    {"sb", Rtf_Wirkung::Davor},
    {"sect", Rtf_Wirkung::Absatz},
    {"sn", Rtf_Wirkung::Uebergehen},
    {"stylesheet", Rtf_Wirkung::Uebergehen},
    {"sv", Rtf_Wirkung::Uebergehen},
    {"tab", Rtf_Wirkung::Zeichen, '\t'},
    {"tc", Rtf_Wirkung::Uebergehen},
    {"title", Rtf_Wirkung::Uebergehen},
    {"u", Rtf_Wirkung::Unicode},
    {"uc", Rtf_Wirkung::Ersatz_Laenge},
    {"ul", Rtf_Wirkung::Unterstrichen, 1},
    {"uld", Rtf_Wirkung::Unterstrichen, 1},
    {"uldash", Rtf_Wirkung::Unterstrichen, 1},
    {"uldashd", Rtf_Wirkung::Unterstrichen, 1},
    {"uldashdd", Rtf_Wirkung::Unterstrichen, 1},
    {"uldb", Rtf_Wirkung::Unterstrichen, 1},
    {"ulnone", Rtf_Wirkung::Unterstrichen, 0},
    {"ulth", Rtf_Wirkung::Unterstrichen, 1},
    {"ulw", Rtf_Wirkung::Unterstrichen, 1},
    {"ulwave", Rtf_Wirkung::Unterstrichen, 1},
    {"v", Rtf_Wirkung::Versteckt},
    {"xe", Rtf_Wirkung::Uebergehen},
    {"zwj", Rtf_Wirkung::Zeichen, 0x200D},
    {"zwnj", Rtf_Wirkung::Zeichen, 0x200C},
});
// clang-format on

constexpr bool Rtf_Vor(const Rtf_Wort_T& a, const Rtf_Wort_T& b) { return a.Name < b.Name; }

static_assert(std::is_sorted(Rtf_Woerter.begin(), Rtf_Woerter.end(), Rtf_Vor));

// The row of a word; one without effect for an unknown word.
constexpr Rtf_Wort_T Rtf_Wort_Suchen(std::string_view Name)
{
    const auto* p = std::lower_bound(
        Rtf_Woerter.begin(), Rtf_Woerter.end(), Rtf_Wort_T{Name, Rtf_Wirkung::Nichts}, Rtf_Vor);
    return p != Rtf_Woerter.end() && p->Name == Name ? *p : Rtf_Wort_T{Name, Rtf_Wirkung::Nichts};
}

} // namespace varnholt
