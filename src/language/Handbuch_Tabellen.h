// The tables of the handbook that are made from the opcode table and the statement tables: the
// instruction reference, and the bytes of the structured statements. The pages keep a place for
// each of them; the tool dok_erzeugen puts them in.
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

// Code bytes of a form of the opcode table as a reference writes them: `28+n`, `24 data`,
// `02 hi lo`. Empty for a text that is no row of the table.
std::string Code_Schreibweise(std::string_view Form, bool Deutsch);

// All instructions in groups, a heading and a table each. UTF-8, lines ended by LF.
std::string Befehls_Tabellen(bool Deutsch);

// The statement tables. Einzeilig: the form with an instruction behind THEN.
std::string IF_Tabelle(bool Deutsch, bool Einzeilig);
std::string FOR_Tabelle(bool Deutsch);
std::string Zuweisungs_Tabelle(bool Deutsch);

// The page with every table in its place, between `<!-- name -->` and `<!-- /name -->`. What else
// stands on the page stays, to the byte.
std::string Tabellen_Einsetzen(std::string_view Seite, bool Deutsch);

} // namespace varnholt
