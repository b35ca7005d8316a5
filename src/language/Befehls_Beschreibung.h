// What the instructions do, in both languages: flags, a short text and an example for each row of
// the opcode table. The reference window shows it, the instruction reference of the help is made
// from it.
#pragma once

#include "language/Befehle.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace varnholt {

// A row of the opcode table, described.
struct Befehls_Beschreibung_T {
    std::string_view Form;    // template of the row: `ADD A,#!`
    std::string_view Flaggen; // flags that it sets, of CY AC OV P, by blanks; P follows A
    std::string_view D;       // what it does, UTF-8
    std::string_view E;
    std::string_view Beispiel; // a line of source text; LOOP is a label
};

// All rows, in the order of Befehls_Muster_Tabelle.
std::span<const Befehls_Beschreibung_T> Befehls_Beschreibungen();

// The description of an opcode's row.
const Befehls_Beschreibung_T& Beschreibung_Von(std::uint8_t Opcode);

// An instruction as a reference writes it, its operand bytes named: `ADD A,#data`, `JB bit,rel`.
// Pattern letters stay: `ADD A,Rr` gives `ADD A,Rn` where they are not replaced before.
std::string Befehls_Schreibweise(const Befehls_Muster& Zeile);
// The same for one opcode: `ADD A,R3`; the pages of AJMP and ACALL as the addresses that they
// reach, `AJMP addr11 (3xxh)`. The opcode that is no instruction is `STOP`.
std::string Befehls_Schreibweise(std::uint8_t Opcode);

} // namespace varnholt
