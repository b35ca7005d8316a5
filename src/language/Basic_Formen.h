// The statements of the structured layer as tables: the form of the line and the bytes that it
// becomes. The translator places them; the statement reference is made from them.
#pragma once

#include <array>
#include <string_view>

namespace varnholt {

// Bytes as text, with holes: v constant, d and e direct addresses, b bit address, +n the register
// number added, hi lo the target of the jump over the block, r the skip over the tail.
struct IF_Form {
    std::string_view Form;  // n stands for a register number 0 to 7
    int              Werte; // values on the line; -1 any number
    std::string_view Block;
    std::string_view Einzeilig;
    int              Zusatz; // bytes that the skip passes beyond the tail
};

// clang-format off
inline constexpr auto IF_Formen = std::to_array<IF_Form>({
    {"IFA=#THEN",   1, "B4 v 02 80 03 02 hi lo",                    "B4 v r", 0},
    {"IFA<>#THEN",  1, "B4 v 03 02 hi lo",                          "B4 v 02 80 r", 0},
    {"IFA>#THEN",   1, "C0 E0 C3 94 v+1 D0 E0 50 03 02 hi lo",      "C0 E0 C3 94 v+1 D0 E0 40 r", 0},
    {"IFA<#THEN",   1, "C0 E0 C3 94 v D0 E0 40 03 02 hi lo",        "C0 E0 C3 94 v D0 E0 50 r", 0},
    {"IFA=THEN",    1, "B5 d 02 80 03 02 hi lo",                    "B5 d r", 0},
    {"IFA<>THEN",   1, "B5 d 03 02 hi lo",                          "B5 d 02 80 r", 0},
    {"IFA<THEN",    1, "C0 E0 C3 95 d D0 E0 40 03 02 hi lo",        "C0 E0 C3 95 d D0 E0 50 r", 0},
    {"IFA>THEN",    1, "C0 E0 D3 95 d D0 E0 50 03 02 hi lo",        "C0 E0 D3 95 d D0 E0 40 r", 0},
    {"IFRn=#THEN",  1, "B8+n v 02 80 03 02 hi lo",                  "B8+n v r", 0},
    {"IFRn<>#THEN", 1, "B8+n v 03 02 hi lo",                        "B8+n v 02 80 r", 0},
    {"IFRn<#THEN",  1, "C0 E0 C3 E8+n 94 v D0 E0 40 03 02 hi lo",   "C0 E0 C3 E8+n 94 v D0 E0 50 r", 0},
    {"IFRn>#THEN",  1, "C0 E0 C3 E8+n 94 v+1 D0 E0 50 03 02 hi lo", "C0 E0 C3 E8+n 94 v+1 D0 E0 40 r", 0},
    {"IFRn=THEN",   1, "C0 E0 E8+n B5 d 04 D0 E0 80 05 D0 E0 02 hi lo", "C0 E0 E8+n B5 d 04 D0 E0 80 04 D0 E0 80 r", 0},
    {"IFRn<>THEN",  1, "C0 E0 E8+n B5 d 05 D0 E0 02 hi lo D0 E0",   "C0 E0 E8+n B5 d 04 D0 E0 80 r D0 E0", 2},
    {"IFRn>THEN",   1, "C0 E0 E8+n D3 95 d D0 E0 50 03 02 hi lo",   "C0 E0 E8+n D3 95 d D0 E0 40 r", 0},
    {"IFRn<THEN",   1, "C0 E0 E8+n C3 95 d D0 E0 40 03 02 hi lo",   "C0 E0 E8+n C3 95 d D0 E0 50 r", 0},
    {"IF=#THEN",    2, "C0 E0 E5 d B4 v 04 D0 E0 80 05 D0 E0 02 hi lo", "C0 E0 E5 d B4 v 04 D0 E0 80 04 D0 E0 80 r", 0},
    {"IF<>#THEN",   2, "C0 E0 E5 d B4 v 05 D0 E0 02 hi lo D0 E0",   "C0 E0 E5 d B4 v 04 D0 E0 80 r D0 E0", 2},
    {"IF<#THEN",    2, "C0 E0 E5 d C3 94 v D0 E0 40 03 02 hi lo",   "C0 E0 E5 d C3 94 v D0 E0 50 r", 0},
    {"IF>#THEN",    2, "C0 E0 E5 d C3 94 v+1 D0 E0 50 03 02 hi lo", "C0 E0 E5 d C3 94 v+1 D0 E0 40 r", 0},
    {"IF=THEN",     2, "C0 E0 E5 d B5 e 04 D0 E0 80 05 D0 E0 02 hi lo", "C0 E0 E5 d B5 e 04 D0 E0 80 04 D0 E0 80 r", 0},
    {"IF<>THEN",    2, "C0 E0 E5 d B5 e 05 D0 E0 02 hi lo D0 E0",   "C0 E0 E5 d B5 e 04 D0 E0 80 r D0 E0", 2},
    {"IF<THEN",     2, "C0 E0 E5 d C3 95 e D0 E0 40 03 02 hi lo",   "C0 E0 E5 d C3 95 e D0 E0 50 r", 0},
    {"IF>THEN",     2, "C0 E0 E5 d D3 95 e D0 E0 50 03 02 hi lo",   "C0 E0 E5 d D3 95 e D0 E0 40 r", 0},
    {"IFBITTHEN",     -1, "30 b 02 80 03 02 hi lo",                 "30 b r", 0},
    {"IFNOTBITTHEN",  -1, "20 b 02 80 03 02 hi lo",                 "20 b r", 0},
    {"IFBITCTHEN",    -1, "50 02 80 03 02 hi lo",                   "50 r", 0},
    {"IFNOTBITCTHEN", -1, "40 02 80 03 02 hi lo",                   "40 r", 0},
});

// The jump of ELSE over the other branch.
inline constexpr std::string_view ELSE_Reihe = "02 hi lo";

// Head of a loop: v start value, d direct address of the counter.
struct FOR_Form {
    std::string_view Form;
    std::string_view Reihe;
};
inline constexpr auto FOR_Formen = std::to_array<FOR_Form>({ // accumulator, register, direct address
    {"FORA=#TO#",  "74 v"},
    {"FORRn=#TO#", "78+n v"},
    {"FOR=#TO#",   "75 d v"},
});

// End of a loop: w end value, d direct address of the counter, hi lo the loop's first instruction.
inline constexpr auto NEXT_Formen = std::to_array<std::string_view>({
    "B4 w 03 04 80 04 04 02 hi lo",                                             // accumulator
    "B8+n w 03 08+n 80 04 08+n 02 hi lo",                                       // register
    "C0 E0 E5 d B4 w 06 D0 E0 05 d 80 07 D0 E0 05 d 02 hi lo",                  // direct address
});

// Assignments of one value, and the instruction form that they become.
struct Zuweisung {
    std::string_view Form;
    std::string_view Wird;
};
inline constexpr auto Zuweisungen = std::to_array<Zuweisung>({
    {"=#", "MOV,#"}, {"=A", "MOV,A"}, {"A=", "MOVA,"}, {"A=#", "MOVA,#"},
});
// clang-format on

} // namespace varnholt
