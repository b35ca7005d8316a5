// Where the automatic test of a board failed: patterns on the 74HC595 that the user measures, until
// the fault lies at the cable or at a chip.
#include "programmer/Hardware_Tests.h"
#include "programmer/Signale.h"

#include <fmt/format.h>

namespace varnholt {
namespace {

constexpr Festes_Paar Titel{"DIAGNOSE", "DIAGNOSIS"};

// A pattern, the question about it, and what to look at after a No.
struct Diagnose_Schritt {
    void (*Anlegen)(const Diagnose_Brett& Brett);
    Festes_Paar Frage{};
    Text_Paar (*Rat)(const Diagnose_Brett& Brett);
};

// Eight alternating bits into the 74HC595, Erstes being the one that goes in first, each with the
// strobe that puts what is in it on the outputs.
void Muster_Schieben(const Diagnose_Brett& Brett, int Erstes)
{
    constexpr int Takt = 32; // the shift clock
    int           b    = Erstes;
    for (int i = 0; i < 8; ++i) {
        const int Bit = Brett.Schieben + b;
        Daten_Senden({Bit, Bit + Takt, Brett.Unten, Brett.Schieben, Brett.Unten});
        b ^= 128;
    }
}

// ---- Advice ----

Text_Paar Rat_Kabel(const Diagnose_Brett& Brett)
{
    return {
        fmt::format("Bitte überprüfen Sie die Verbindung des Parallelportkabels.\r\nBitte "
                    "überprüfen Sie auch, ob in den Optionen die richtige Portadresse eingestellt "
                    "ist und ob der {} mit Spannung versorgt wird.",
                    Brett.Name.D),
        fmt::format("Please check the parallel port cable.\r\nPlease check too, if the port "
                    "address in the options is correct and if the {} has power.",
                    Brett.Name.E)};
}

Text_Paar Rat_Kabel_Und_Verbindungen(const Diagnose_Brett& Brett)
{
    const Text_Paar Kabel = Rat_Kabel(Brett);
    return {Kabel.D + "\r\nBitte überprüfen Sie zudem die Verbindungen zwischen den beiden "
                      "Bausteinen.",
            Kabel.E + "\r\nPlease check the connections between the two ics too."};
}

Text_Paar Rat_595(const Diagnose_Brett&)
{
    return {"Der 74HC595 oder eine der Verbindungen scheint defekt zu sein. Bitte überprüfen Sie "
            "die Lötstellen und tauschen Sie den Baustein notfalls aus.",
            "The 74HC595 or one of it's connections seems to be defect. Please check the soldering "
            "and replace the ic if necessary."};
}

// ---- The steps ----

constexpr Diagnose_Schritt Schritte[] = {
    {[](const Diagnose_Brett& b) { Daten_Senden(b.Oben); },
     {"Bitte messen Sie die Spannung an den Pins 11, 12, 13 und 14 des 74HC595 und zudem die "
      "Spannung am Pin 1 des 74HC157. Alle Spannungen sollten zwischen 3-5 Volt betragen. Ist "
      "dieses der Fall?",
      "Please measure the voltage at the pins 11, 12, 13 and 14 of the ic 74HC595 and additionally "
      "the voltage at the pin 1 of the ic 74HC157. Is the voltage at all of these pins between 3 "
      "and 5 volt?"},
     Rat_Kabel},
    {[](const Diagnose_Brett& b) { Daten_Senden(b.Unten); },
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 11, 12, 13 und 14 des 74HC595 und zudem "
      "die Spannung am Pin 1 des 74HC157. Alle Spannungen sollten nun ca. 0 Volt betragen. Ist "
      "dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 11, 12, 13 and 14 of the ic 74HC595 and "
      "additionally the voltage at the pin 1 of the ic 74HC157. Is the voltage at all of these "
      "pins about 0 volt?"},
     Rat_Kabel_Und_Verbindungen},
    {[](const Diagnose_Brett& b) { Muster_Schieben(b, 128); },
     {"Soeben wurden Daten in den 74HC595 geschoben. Bitte messen Sie die Ausgangspins des "
      "74HC595. Pin 1, 3, 5 und 7 sollten auf ca. 5 Volt liegen, Pin 2, 4, 6 und 15 sollten auf 0 "
      "Volt liegen. Ist dieses der Fall?",
      "There were just pushed some bits into the 74HC595. Please measure its output pins. Pin 1, "
      "3, 5 and 7 should have about 5 volt, pin 2, 4, 6 and 15 should have 0 volt. Is this "
      "correct?"},
     Rat_595},
    {[](const Diagnose_Brett& b) { Muster_Schieben(b, 0); },
     {"Gerade wurden ERNEUT Daten in den 74HC595 geschoben. Bitte messen Sie die Ausgangspins des "
      "74HC595. Pin 2, 4, 6 und 15 sollten auf ca. 5 Volt liegen, Pin 1, 3, 5 und 7 sollten auf 0 "
      "Volt liegen. Ist dieses der Fall?",
      "There were just pushed AGAIN some bits into the 74HC595. Please measure its output pins. "
      "Pin 2, 4, 6 and 15 should have about 5 volt, pin 1, 3, 5 and 7 should have 0 volt. Is this "
      "correct?"},
     Rat_595},
};

Text_Paar Schluss()
{
    return {"Der 74HC595 scheint korrekt zu arbeiten. Da die Daten nicht korrekt eingelesen "
            "wurden, scheint der 74HC157 oder eine der Verbindungen defekt zu sein. Die Datei "
            "AutoTest_failed.txt im Programmverzeichnis nennt die Bits, die betroffen sind.",
            "The 74HC595 seems to work correct. Because of the bits were read not correctly, the "
            "74HC595 or one of it's connections seems to be defect. The file AutoTest_failed.txt "
            "in the folder of the program names the bits."};
}

} // namespace

void Diagnose_Stellen(const Diagnose_Brett& Brett)
{
    for (const Diagnose_Schritt& s : Schritte) {
        s.Anlegen(Brett);
        const Ausgang a = Messung_Erfragen(s.Frage, Titel);
        if (a == Ausgang::Schlecht)
            Ergebnis_Melden(Titel, s.Rat(Brett), Symbol::Warnung);
        if (a != Ausgang::Gut)
            return;
    }
    Ergebnis_Melden(Titel, Schluss(), Symbol::Warnung);
}

} // namespace varnholt
