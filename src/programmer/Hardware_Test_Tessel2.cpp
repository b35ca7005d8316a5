// The hardware tests of the Tessel2 board: its patterns and their questions.
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"
#include "programmer/Hardware_Tests.h"
#include "programmer/MC_Signale.h"
#include "programmer/Signale.h"
#include "programmer/Simulierter_Tessel2.h"
#include "programmer/Special.h"

namespace varnholt {
namespace {

// The standing bytes of the chosen part: two of them want a 0 on D0.
int Ruhe_Wert()
{
    const std::string& Name = Gewaehltes_Geraet().Name;
    return Name == "89S53" || Name == "89S8252" ? -1 : 0;
}

// The byte through the 74HC595 and back through the 74HC157.
std::uint8_t Byte_Durchschieben(std::uint8_t Wert)
{
    const int  s    = Ruhe_Wert();
    const auto Bits = Bits_Von(Wert);
    for (std::size_t i = Bits.size(); i-- > 0;)
        Daten_Senden({85 + s + Bits[i], 117 + s + Bits[i]});
    Daten_Senden({21, 85, 21});
    Warte_Mikrosekunden(2 * Lese_Zeit());
    const int Gerade = Tessel2_Gerade_Bits(Status_Lesen());
    Daten_Senden(128 + 21);
    Warte_Mikrosekunden(Lese_Zeit());
    return static_cast<std::uint8_t>(Gerade + Tessel2_Ungerade_Bits(Status_Lesen()));
}

Test1_Ergebnis Automatisch() { return Test1_Melden(Test1_Durchfuehren_Mit(Byte_Durchschieben)); }

// The counter of a microcontroller stands for the address lines here: a reset, then clocks.
void Takte_Vorbereiten()
{
    Daten_Senden(67);
    Plattform.Port->Sleep(1);
    Daten_Senden(65);
    Plattform.Port->Sleep(1);
    Daten_Senden({73, 65});
}

void Ausgaenge_Hoch()
{
    constexpr int Takte = 65535; // all 16 outputs are high behind them
    Takte_Vorbereiten();
    for (int i = 0; i < Takte; ++i)
        Daten_Senden({67, 65});
}

constexpr Mess_Schritt Spannungen[] = {
    {[] { Daten_Senden(4); },
     {"Bitte messen Sie die Spannung am Pin 31 der Brennfassung. Die Spannung sollte ca. 5 Volt "
      "betragen. Ist dieses der Fall?",
      "Please measure the voltage at the pin 31 of the socket. Is the voltage about 5 volt?"}},
    {[] { Daten_Senden(64); },
     {"Bitte messen Sie ERNEUT die Spannung am Pin 31 der Brennfassung. Die Spannung sollte nun "
      "ca. 12 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pin 31 of the socket. Is the voltage about 12 "
      "volt?"}},
};

constexpr Mess_Schritt Zaehler[] = {
    {Ausgaenge_Hoch,
     {"Bitte messen Sie die Spannung an den Pins 1 bis 8, 10 und 21 bis 26 der Brennfassung. Alle "
      "Spannungen sollten ca. 5 Volt betragen. Ist dieses der Fall?",
      "Please measure the voltage at the pins 1 to 8, 10 and 21 to 26 of the socket. Is the "
      "voltage at all of these pins about 5 volt?"}},
    {Takte_Vorbereiten,
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 1 bis 8, 10 und 21 bis 26 der "
      "Brennfassung. Alle Spannungen sollten nun ca. 0 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 1 to 8, 10 and 21 to 26 of the socket. Is the "
      "voltage at all of these pins about 0 volt?"}},
};

constexpr Mess_Schritt Verbindungen[] = {
    {[] {
         Daten_Senden(4);
         Steuerung_Senden(6);
     },
     {"Bitte messen Sie die Spannung an den Pins 16, 17, 27, 28 und 30 der Brennfassung. Alle "
      "Spannungen sollten zwischen 3-5 Volt betragen. Ist dieses der Fall?",
      "Please measure the voltage at the pins 16, 17, 27, 28 and 30 of the socket. Is the voltage "
      "at all of these pins between 3 and 5 volt?"}},
    {[] {
         Daten_Senden(64);
         Steuerung_Senden(11);
     },
     {"Bitte messen Sie ERNEUT die Spannung an den Pins 16, 17, 27, 28 und 30 der Brennfassung. "
      "Alle Spannungen sollten nun 0 Volt betragen. Ist dieses der Fall?",
      "Please measure AGAIN the voltage at the pins 16, 17, 27, 28 and 30 of the socket. Is the "
      "voltage at all of these pins 0 volt?"}},
};

constexpr Mess_Test Tests[] = {
    {{"2. TEST", "TEST 2"},
     Spannungen,
     [] { Daten_Senden(Ruhe_Byte_II); }, // the 12 V go from the socket, however the test ended
     {"TEST 2 OKAY!", "TEST 2 OKAY!"},
     {"Die Brennspannung wird korrekt eingestellt, somit arbeiten auch die Transistoren der "
      "Spannungsumschaltung. Es folgt nun der Test der Adressleitungen.",
      "The programming voltage is regulated correctly, so the transistors of the voltage switch "
      "work. The next test checks the address lines."},
     {"TEST 2 FAILED!", "TEST 2 FAILED!"},
     {"Die Brennspannung wird nicht korrekt eingestellt. Bitte überprüfen Sie den korrekten "
      "Einbau der Transitoren und Dioden, sowie die Werte der Widerstände (R9-R11). Messen Sie "
      "auch die Spannung des Netzteils.",
      "The programming voltage is NOT regulated correctly! Please check the transistors, diodes "
      "and the values of the resistors R9-R11. Measure the voltage of the power supply too."}},
    {{"3. TEST", "TEST 3"},
     Zaehler,
     nullptr,
     {},
     {},
     {"TEST 3 FAILED", "TEST 3 FAILED"},
     {"Beide oder einer der 74HC393 arbeiten nicht richtig. Bitte überprüfen Sie die Lötstellen "
      "und die Verbindungen der Zähler zur Brennfassung.",
      "One or both of the 74HC393 or one of it's connections seems to be defect. Please check the "
      "soldering and the connections from the counters to the socket."}},
    {{"4. TEST", "TEST 4"},
     Verbindungen,
     [] { Daten_Senden(Ruhe_Byte_II); },
     {"TEST 4 OKAY", "TEST 4 OKAY"},
     {"Der Testlauf wurde abgeschlossen und es konnten keine Fehler festgestellt werden. Der "
      "Brenner ist bereit.",
      "The hardware test was successfully finished! There was no error found, the programmer is "
      "ready."},
     {"TEST 4 FAILED", "TEST 4 FAILED"},
     {"Das Problem liegt also an den bzw. der Leitung, deren Spannung beim letzten Test nicht "
      "stimmte. Bitte verfolgen Sie diese von der Brennfassung bis zum Parallelport.",
      "Please check the connections of the pin, which voltage was wrong at the last test! Follow "
      "them from the socket to the parallel port."}},
};

const Test_Folge Ganze_Folge{
    {"Bitte nehmen Sie UNBEDINGT einen ev. eingesteckten Mikrocontroller aus der Brennfassung, da "
     "er durch die Spannungen der folgenden Tests zerstört werden könnte! Verbinden Sie danach "
     "den Brenner mit dem Parallelport und schalten Sie seine Spannungsversorgung ein. Sie "
     "benötigen ein Voltmeter.",
     "If you have inserted a microcontroller, please take it out! The voltages of the following "
     "tests could destroy it. Then connect the programmer to the parallel port and switch its "
     "power supply on. You need a voltmeter."},
    Automatisch,
    {{"Brenner", "programmer"}, 128 + 85, 21, 85},
    Tests,
    false,
    Ruhe_Byte_II,
    Leeres_Board<Simulierter_Tessel2>};

} // namespace

const Test_Folge& Tessel2_Folge() { return Ganze_Folge; }

} // namespace varnholt
