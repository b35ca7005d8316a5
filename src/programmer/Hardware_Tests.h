// The guided checks of a self-built programmer: one automatic test, then patterns on the port that
// the user measures in the socket. A sequence for each of the two boards, both of the same shape.
#pragma once

#include "core/interface_texts.h"
#include "programmer/Hardware_Test1.h"

#include <span>

namespace varnholt {

// A pattern on the port and the question about it.
struct Mess_Schritt {
    void (*Anlegen)();
    Festes_Paar Frage{};
    Festes_Paar Rat{}; // what to look at after a No; empty: that of the whole test
};

// A test by measuring: every question has to be answered with Yes.
struct Mess_Test {
    Festes_Paar                   Titel{};
    std::span<const Mess_Schritt> Schritte{};
    void (*Danach)() = nullptr; // patterns behind the last answer
    Festes_Paar Gut_Titel{};    // box of a success; empty: none
    Festes_Paar Gut{};
    Festes_Paar Schlecht_Titel{};
    Festes_Paar Schlecht{};
};

// Everything that makes the sequence of one board.
struct Test_Folge {
    Festes_Paar Entnehmen{}; // part out of the socket
    Test1_Ergebnis (*Automatisch)();
    std::span<const Mess_Schritt> Diagnose{};
    Festes_Paar                   Diagnose_Schluss{}; // all answers were Yes
    std::span<const Mess_Test>    Tests{};            // tests 2, 3 and 4
    bool                          Mit_Bild = false;   // jumper sets 610 to 612 are shown
};

const Test_Folge& Eprommer_Folge();
const Test_Folge& Tessel2_Folge();

// Runs a sequence from its introduction to its end. IC_Nummer is the one from before on every way
// out.   sets: Antwort, IC_Nummer meanwhile
void Hardware_Test(const Test_Folge& Folge);

} // namespace varnholt
