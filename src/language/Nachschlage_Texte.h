// The texts of the two reference windows, made from the opcode table and the statement tables:
// the contents of befehle.dok and basic.dok. The tool dok_erzeugen writes them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// Machine cycles that a row of bytes takes, on its shortest and on its longest way.
struct Zyklen_Spanne {
    int Kurz = 0;
    int Lang = 0;
};

// One statement of the structured layer as the reference shows it.
struct Anweisung_T {
    std::string   Schreibweise{}; // `IF A=#v THEN`
    int           Bytes = 0;
    Zyklen_Spanne Zyklen{};
};

// A row as Basic_Formen.h writes it; its holes cost nothing and a jump out of it ends a way.
int           Reihe_Bytes(std::string_view Reihe);
Zyklen_Spanne Reihe_Zyklen(std::string_view Reihe);

// A form of Basic_Formen.h as it is written in a source text: `IFRn<>#THEN` gives `IF Rn<>#v THEN`.
// v, w are constants, d, e direct addresses, b is a bit, n a register number.
std::string IF_Schreibweise(std::string_view Form);

// An assignment is the instruction of that template, under another spelling.
struct Zuweisungs_Zeile {
    std::string_view Schreibweise; // `A=#v`
    std::string_view Befehl;       // `MOV A,#!`
};
std::span<const Zuweisungs_Zeile> Alle_Zuweisungen();

// All statements in the order of the tables.
std::vector<Anweisung_T> Alle_Anweisungen();

// The files, lines ended by CR LF: 256 groups of 4 lines (opcode, mnemonic, bytes, cycles), and one
// group of 3 lines (statement, bytes, cycles) for each statement.
std::string Befehle_Dok();
std::string Basic_Dok();

} // namespace varnholt
