// The hardware tests of the Eprommer: its patterns and their questions.
#include "programmer/Brennrahmen.h"
#include "programmer/Hardware_Tests.h"
#include "programmer/Signale.h"

namespace varnholt {
namespace {

void Zaehler_Hoch()
{
    constexpr int Schritte = 65535; // all 16 outputs of the counters are high behind them
    Test_Zaehler_Ruecksetzen();
    for (int i = 0; i < Schritte; ++i)
        Daten_Senden({90, 94, 90});
}

void Verbindungen_Hoch()
{
    Daten_Senden(91);
    Steuerung_Senden(6);
}

void Verbindungen_Null()
{
    Daten_Senden(67);
    Steuerung_Senden(11);
}

constexpr Mess_Schritt Spannungen[] = {
    {[] { Daten_Senden(91); },
     {"Bitte messen Sie die Spannung an den Pins 1, 3 und 24 der Brennfassung. Alle Spannungen "
      "sollten ca. 0 Volt betragen. Ist dieses der Fall?",
      "Please measure the voltage at the pins 1, 3 and 24 of the socket. Is the voltage at all of "
      "these pins about 0 volt?"}},
    {[] { Daten_Senden(90); },
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 1, 3 und 24 der Brennfassung. Alle "
      "Spannungen sollten nun zwischen 3-5 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 1, 3 and 24 of the socket. Is the voltage at "
      "all of these pins between 3 and 5 volt?"}},
    {[] { Daten_Senden(88); },
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 1, 3 und 24 der Brennfassung. Alle "
      "Spannungen sollten nun ca. 12,5 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 1, 3 and 24 of the socket. Is the voltage at "
      "all of these pins about 12.5 volt?"}},
};

constexpr Mess_Schritt Zaehler[] = {
    {Zaehler_Hoch,
     {"Bitte messen Sie die Spannung an den Pins 3 bis 12 und 25 bis 29 der Brennfassung. Alle "
      "Spannungen sollten ca. 5 Volt betragen. Ist dieses der Fall?",
      "Please measure the voltage at the pins 3 to 12 and 25 to 29 of the socket. Is the voltage "
      "at all of these pins about 5 volt?"}},
    {Test_Zaehler_Ruecksetzen,
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 3 bis 12 und 25 bis 29 der Brennfassung. "
      "Alle Spannungen sollten nun ca. 0 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 3 to 12 and 25 to 29 of the socket. Is the "
      "voltage at all of these pins about 0 volt?"}},
};

constexpr Mess_Schritt Verbindungen[] = {
    {Verbindungen_Hoch,
     {"Bitte messen Sie die Spannung an den Pins 2, 24, 29, 30 und 31 der Brennfassung. Alle "
      "Spannungen sollten zwischen 3-5 Volt betragen. Ist dieses der Fall?",
      "Please measure the voltage at the pins 2, 24, 29, 30 and 31 of the socket. Is the voltage "
      "at all of these pins between 3 and 5 volt?"}},
    {Verbindungen_Null,
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 2, 24, 29, 30 und 31 der Brennfassung. "
      "Alle Spannungen sollten nun 0 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 2, 24, 29, 30 and 31 of the socket. Is the "
      "voltage at all of these pins 0 volt?"}},
};

constexpr Mess_Test Tests[] = {
    {{"2. TEST", "TEST 2"},
     Spannungen,
     [] {
         Daten_Senden({90, 91});
     },
     {"TEST 2 OKAY!", "TEST 2 OKAY!"},
     {"Die Brennspannung wird korrekt eingestellt, somit arbeiten auch die Transistoren und "
      "Dioden der Spannungsumschaltung. Es folgt nun der Test der Adresszähler.",
      "The programming voltage is regulated correctly, so the transistors and diodes of the "
      "voltage switch work. The next test checks the address counters."},
     {"TEST 2 FAILED!", "TEST 2 FAILED!"},
     {"Die Brennspannung wird nicht korrekt eingestellt. Bitte überprüfen Sie den korrekten "
      "Einbau der Transitoren und Dioden, sowie die Werte der Widerstände (R1-R4 und R6). Messen "
      "Sie auch die Spannung des Netzteils.",
      "The programming voltage is NOT regulated correctly! Please check the transistors, diodes "
      "and the values of the resistors R1-R4 and R6. Measure the voltage of the power supply "
      "too."}},
    {{"3. TEST", "TEST 3"},
     Zaehler,
     nullptr,
     {},
     {},
     {"TEST 3 FAILED", "TEST 3 FAILED"},
     {"Beide oder einer der 74HC393 arbeiten nicht richtig. Bitte überprüfen Sie die Lötstellen "
      "und die Verbindungen der Zähler zur Brennfassung, und ob alle Jumper richtig stecken.",
      "One or both of the 74HC393 or one of it's connections seems to be defect. Please check the "
      "soldering, the connections from the counters to the socket, and the jumpers."}},
    {{"4. TEST", "TEST 4"},
     Verbindungen,
     nullptr,
     {"TEST 4 OKAY", "TEST 4 OKAY"},
     {"Der Testlauf wurde abgeschlossen und es konnten keine Fehler festgestellt werden. Der "
      "Eprommer ist bereit.",
      "The hardware test was successfully finished! There was no error found, the eprommer is "
      "ready."},
     {"TEST 4 FAILED", "TEST 4 FAILED"},
     {"Das Problem liegt also an den bzw. der Leitung, deren Spannung beim letzten Test nicht "
      "stimmte. Bitte verfolgen Sie diese von der Brennfassung über die Jumper bis zum "
      "Parallelport.",
      "Please check the connections of the pin, which voltage was wrong at the last test! Follow "
      "them from the socket to the jumpers and to the parallel port."}},
};

const Test_Folge Ganze_Folge{
    {"Bitte nehmen Sie UNBEDINGT ein ev. eingestecktes E(E)prom aus der Brennfassung, da es durch "
     "die Spannungen der folgenden Tests zerstört werden könnte! Verbinden Sie danach den "
     "Eprommer mit dem Parallelport und schalten Sie seine Spannungsversorgung ein. Sie benötigen "
     "ein Voltmeter.",
     "If you have inserted an e(e)prom, please take it out! The voltages of the following tests "
     "could destroy it. Then connect the eprommer to the parallel port and switch its power "
     "supply on. You need a voltmeter."},
    Eprommer_Test1,
    {{"Eprommer", "eprommer"}, 251, 27, 91},
    Tests,
    true,
    Ohne_Ruhe_Byte,
    Leeres_Board<Simulierter_Eprommer>};

} // namespace

const Test_Folge& Eprommer_Folge() { return Ganze_Folge; }

} // namespace varnholt
