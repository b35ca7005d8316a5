// The guided checks of a self-built programmer: one automatic test, then patterns on the port that
// the user measures in the socket. A sequence for each of the two boards, both of the same shape.
#pragma once

#include "core/interface_texts.h"
#include "core/messages.h"
#include "programmer/Hardware_Test1.h"
#include "programmer/Simulierter_Eprommer.h"

#include <memory>
#include <span>

namespace varnholt {

// A pattern on the port and the question about it.
struct Mess_Schritt {
    void (*Anlegen)();
    Festes_Paar Frage{};
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

// A simulated board of that kind with an empty socket, with the faults of the one that is there if
// that is of the same kind.
template <class Board_T>
std::unique_ptr<Simuliertes_Board> Leeres_Board(const Simuliertes_Board& Bisheriges)
{
    auto Board = std::make_unique<Board_T>();
    if (const auto* b = dynamic_cast<const Board_T*>(&Bisheriges))
        Board->Fehler = b->Fehler;
    return Board;
}

// What tells one board from the other where a fault is narrowed down to a chip. Bytes of the data
// register.
struct Diagnose_Brett {
    Festes_Paar Name{};       // as the advice calls it
    int         Oben     = 0; // the lines of the first question up
    int         Unten    = 0; // ... and down, which is also the rest of the strobe
    int         Schieben = 0; // a 0 at the 74HC595, ahead of its shift clock
};

// Everything that makes the sequence of one board.
struct Test_Folge {
    Festes_Paar Entnehmen{}; // part out of the socket
    Test1_Ergebnis (*Automatisch)();
    Diagnose_Brett             Brett{};
    std::span<const Mess_Test> Tests{};          // tests 2, 3 and 4
    bool                       Mit_Bild = false; // jumper sets 610 to 612 are shown
    int Ruhe_Byte = 0; // left on every way out from test 1 on; or Ohne_Ruhe_Byte
    std::unique_ptr<Simuliertes_Board> (*Leeres_Board)(const Simuliertes_Board& Bisheriges);
};

const Test_Folge& Eprommer_Folge();
const Test_Folge& Tessel2_Folge();

// Runs a sequence from its introduction to its end. IC_Nummer is the one from before on every way
// out. A simulated port is the board of the test meanwhile; the one from before comes back as it
// was.   sets: Antwort, IC_Nummer and Plattform.Port meanwhile
void Hardware_Test(const Test_Folge& Folge);

// ---- What the tests are made of ----

enum class Ausgang { Gut, Schlecht, Ende };

// A question with Yes, No and Cancel.   sets: Antwort
Ausgang Messung_Erfragen(const Festes_Paar& Frage, const Festes_Paar& Titel);
// The box with the outcome of a test.
void Ergebnis_Melden(const Festes_Paar& Titel, const Text_Paar& Text, Symbol Zeichen);
// A fixed text as one that can be put together.
Text_Paar Text_Von(const Festes_Paar& Text);

// Behind an automatic test that failed: narrows the fault down to a chip.   sets: Antwort
void Diagnose_Stellen(const Diagnose_Brett& Brett);

} // namespace varnholt
