// The disassembler's rules: image bytes into source text. Knows neither the shared state nor the
// windows; Hex_zu_Ass.cpp runs it for the editor.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace varnholt {

// One past the last byte other than FFh below Groesse (a device's size), and never Groesse itself:
// the byte at the very end of a full device is left to the instruction before it. Empty when every
// byte is FFh. What lies behind the span counts as FFh.
std::optional<std::int32_t> Belegtes_Ende(std::span<const std::uint8_t> Speicher,
                                          std::int32_t                  Groesse);

// Is told each whole per cent once, 2 to 99, ascending; false ends the work.
using Prozent_Melder = std::function<bool(int Prozent)>;

// The bytes from 0 up to Ende as one stream of instructions, a line each with CR LF. The targets of
// LJMP and LCALL become labels, `Label_1:` and so on in the order of their addresses; all other
// operands are raw numbers. Operands behind Ende are read as they stand, behind the span as FFh.
// With Ziel_Zuerst the operand bytes of MOV direct,direct (source, destination) are exchanged in
// Speicher itself, and stay so, since the text names the destination first.
// Empty when Melder ended the work.
std::optional<std::string> Bild_Zerlegen(std::span<std::uint8_t> Speicher,
                                         std::int32_t            Ende,
                                         bool                    Ziel_Zuerst,
                                         const Prozent_Melder&   Melder);

} // namespace varnholt
