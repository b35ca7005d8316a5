// Test 1 of both boards, the automatic one: all 256 bytes through the 74HC595 and back through the
// 74HC157.
#include "programmer/Hardware_Test1.h"

#include "core/paths.h"
#include "core/shared_state.h"
#include "files/Textdatei.h"
#include "programmer/Geraete.h"
#include "programmer/Signale.h"

#include <fmt/format.h>

#include <iterator>

namespace varnholt {
namespace {

constexpr int Versuche = 2;

// The device selection of the test for the life of this object.
class Geraet_Wahrung {
public:
    Geraet_Wahrung() : Vorher(IC_Nummer) { IC_Nummer = Test_Baustein; }
    ~Geraet_Wahrung() { IC_Nummer = Vorher; }
    Geraet_Wahrung(const Geraet_Wahrung&)            = delete;
    Geraet_Wahrung& operator=(const Geraet_Wahrung&) = delete;

private:
    int Vorher;
};

std::uint8_t Byte_Durchschieben(std::uint8_t Wert)
{
    Byte_Laden(Wert);
    return Bus_Lesen(2 * Lese_Zeit(), 155);
}

void Fehler_Zaehlen(Test1_Ergebnis& e, std::uint8_t Soll, std::uint8_t Ist)
{
    ++e.Fehler;
    for (std::size_t i = 0; i < e.Bit_Fehler.size(); ++i)
        e.Bit_Fehler[i] += (Soll ^ Ist) >> i & 1;
    fmt::format_to(std::back_inserter(e.Werte), "SOLL:{} IST: {}{}", Soll, Ist, CRLF);
}

void Wert_Pruefen(Test1_Ergebnis& e, std::uint8_t Soll, std::uint8_t (*Durchschieben)(std::uint8_t))
{
    std::uint8_t Ist = 0;
    for (int i = 0; i < Versuche; ++i) {
        Ist = Durchschieben(Soll);
        if (Ist == Soll)
            return;
    }
    Fehler_Zaehlen(e, Soll, Ist);
}

std::string Datei_Text(const Test1_Ergebnis& e)
{
    std::string Text = e.Werte;
    for (std::size_t i = 0; i < e.Bit_Fehler.size(); ++i)
        fmt::format_to(std::back_inserter(Text),
                       "Anzahl der Bitfehler in Bit {}: {}{}",
                       i,
                       e.Bit_Fehler[i],
                       CRLF);
    return Text;
}

} // namespace

void Test_Zaehler_Ruecksetzen()
{
    Steuerung_Senden(9);
    Plattform.Port->Sleep(1);
    Steuerung_Senden(11);
    Plattform.Port->Sleep(1);
}

Test1_Ergebnis Test1_Durchfuehren_Mit(std::uint8_t (*Durchschieben)(std::uint8_t))
{
    Test1_Ergebnis Ergebnis;
    Test_Zaehler_Ruecksetzen();
    Adj_512 = Adj_257 = 0;
    for (int Wert = 0; Wert < 256; ++Wert)
        Wert_Pruefen(Ergebnis, static_cast<std::uint8_t>(Wert), Durchschieben);
    return Ergebnis;
}

Test1_Ergebnis Test1_Durchfuehren() { return Test1_Durchfuehren_Mit(Byte_Durchschieben); }

Text_Paar Test1_Titel(const Test1_Ergebnis& Ergebnis)
{
    if (Ergebnis.Fehler == 0)
        return {"TEST 1 OKAY!", "TEST 1 OKAY!"};
    return {"TEST 1 FAILED!", "TEST 1 Failed!"};
}

Text_Paar Test1_Text(const Test1_Ergebnis& Ergebnis)
{
    if (Ergebnis.Fehler == 0)
        return {"Soeben wurde ein automatischer Testlauf durchgeführt, bei dem 256 Bytes durch den "
                "74HC595 und den 74HC157 geschoben und wieder eingelesen wurden. Alle Daten wurden "
                "wieder richtig eingelesen, somit arbeiten diese beiden Bausteine und ihre "
                "Verbindungen zum Parallelport korrekt.",
                "Just in this moment, a automatic test was finished sucessfully. 256 bytes were "
                "pushed through the 74HC595 and read back with the 74HC157, and all of them came "
                "back correctly. These two ics and their connections to the parallel port work."};
    return {"Soeben wurde ein automatischer Testlauf durchgeführt, bei dem 256 Bytes durch den "
            "74HC595 und den 74HC157 geschoben und wieder eingelesen wurden. Die Daten konnten "
            "nicht korrekt eingelesen werden, es werden nun weitere Tests gemacht um das Problem "
            "einzukreisen.",
            "Just in this moment, a automatic test has failed! 256 bytes were pushed through the "
            "74HC595 and read back with the 74HC157, but not all of them came back correctly. Some "
            "more tests follow to find the reason of the problem."};
}

bool Test1_Datei_Schreiben(const Test1_Ergebnis& Ergebnis)
{
    const auto  Datei = std::filesystem::path(Programm_Pfad) / "AutoTest_failed.txt";
    std::string Grund;
    if (Datei_Schreiben(Datei, Datei_Text(Ergebnis), Grund))
        return true;
    Plattform.Box->Hinweisen(
        In_Sprache({Datei.string() + ": Die Datei kann nicht geschrieben werden: " + Grund,
                    Datei.string() + ": The file can't be written: " + Grund}));
    return false;
}

const Test1_Ergebnis& Test1_Melden(const Test1_Ergebnis& Ergebnis)
{
    Antwort = Antwort_Abbrechen;
    Melden(Test1_Text(Ergebnis),
           Test1_Titel(Ergebnis),
           Knoepfe::Ok_Abbrechen,
           Ergebnis.Fehler == 0 ? Symbol::Hinweis : Symbol::Warnung);
    if (Ergebnis.Fehler > 0)
        Test1_Datei_Schreiben(Ergebnis);
    return Ergebnis;
}

Test1_Ergebnis Eprommer_Test1()
{
    const Geraet_Wahrung Wahrung;
    return Test1_Melden(Test1_Durchfuehren());
}

} // namespace varnholt
