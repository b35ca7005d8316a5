// Test 1 of both boards, the automatic one: all 256 bytes through the 74HC595 and back through the
// 74HC157.
#pragma once

#include "core/messages.h"

#include <array>
#include <cstdint>
#include <string>

namespace varnholt {

inline constexpr int Test_Baustein = 610; // device number whose jumpers the test shows

// What the run found.
struct Test1_Ergebnis {
    int                Fehler = 0;   // values that came back wrong in both tries
    std::array<int, 8> Bit_Fehler{}; // wrong values by data bit
    std::string        Werte{};      // a line "SOLL:" wanted " IST: " read for each wrong value
};

// The reset of the address counters by itself, as the tests want it: no data byte goes out.
void Test_Zaehler_Ruecksetzen();

// Runs the 256 values through a board, whose way of shifting is given; shows nothing.
// reads: the device's settling time   sets: Adj_512, Adj_257
Test1_Ergebnis Test1_Durchfuehren_Mit(std::uint8_t (*Durchschieben)(std::uint8_t));
// The box with the outcome and, after errors, its file.   sets: Antwort
const Test1_Ergebnis& Test1_Melden(const Test1_Ergebnis& Ergebnis);
// The same with the bytes of the Eprommer.
// reads: the device's settling time   sets: Adj_512, Adj_257, Schiebe_Bits
Test1_Ergebnis Test1_Durchfuehren();

// Title and text of the box that tells the outcome.
Text_Paar Test1_Titel(const Test1_Ergebnis& Ergebnis);
Text_Paar Test1_Text(const Test1_Ergebnis& Ergebnis);

// Writes AutoTest_failed.txt into the program's folder, as a new file. False, with a notice, when
// it can't be written.   reads: Programm_Pfad
bool Test1_Datei_Schreiben(const Test1_Ergebnis& Ergebnis);

// The test with its box and, after errors, its file. IC_Nummer is that of the test meanwhile.
// reads: IC_Nummer, Programm_Pfad   sets: Antwort (Cancel ends the sequence of tests)
Test1_Ergebnis Eprommer_Test1();

} // namespace varnholt
