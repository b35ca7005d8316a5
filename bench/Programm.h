// Generated source texts that this assembler and a public one read alike.
#pragma once

#include <string>

namespace varnholt::bench {

// A program of Zeilen lines: a label each ninth line, jumps, calls and comments; about 31 bytes a
// line. Each 31500 lines the address starts again at 0, so that the code fits however long the text
// is.
std::string Programm_Erzeugen(int Zeilen);

} // namespace varnholt::bench
