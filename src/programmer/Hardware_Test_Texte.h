// Questions and advice that the hardware tests of both boards share. Private to them.
#pragma once

#include "core/interface_texts.h"

namespace varnholt {

inline constexpr Festes_Paar Frage_595_Hoch{
    "Bitte messen Sie die Spannung an den Pins 11, 12, 13 und 14 des 74HC595 und zudem die "
    "Spannung "
    "am Pin 1 des 74HC157. Alle Spannungen sollten zwischen 3-5 Volt betragen. Ist dieses der "
    "Fall?",
    "Please measure the voltage at the pins 11, 12, 13 and 14 of the ic 74HC595 and additionally "
    "the "
    "voltage at the pin 1 of the ic 74HC157. Is the voltage at all of these pins between 3 and 5 "
    "volt?"};

inline constexpr Festes_Paar Frage_595_Null{
    "Bitte messen Sie ERNEUT die Spannung an den Pins 11, 12, 13 und 14 des 74HC595 und zudem die "
    "Spannung am Pin 1 des 74HC157. Alle Spannungen sollten nun ca. 0 Volt betragen. Ist dieses "
    "der "
    "Fall?",
    "Please measure AGAIN the voltage at the pins 11, 12, 13 and 14 of the ic 74HC595 and "
    "additionally "
    "the voltage at the pin 1 of the ic 74HC157. Is the voltage at all of these pins about 0 "
    "volt?"};

inline constexpr Festes_Paar Frage_Muster{
    "Soeben wurden Daten in den 74HC595 geschoben. Bitte messen Sie die Ausgangspins des "
    "74HC595. Pin "
    "1, 3, 5 und 7 sollten auf ca. 5 Volt liegen, Pin 2, 4, 6 und 15 sollten auf 0 Volt liegen. "
    "Ist "
    "dieses der Fall?",
    "There were just pushed some bits into the 74HC595. Please measure its output pins. Pin 1, "
    "3, 5 "
    "and 7 should have about 5 volt, pin 2, 4, 6 and 15 should have 0 volt. Is this correct?"};

inline constexpr Festes_Paar Rat_595{
    "Der 74HC595 oder eine der Verbindungen scheint defekt zu sein. Bitte überprüfen Sie die "
    "Lötstellen und tauschen Sie den Baustein notfalls aus.",
    "The 74HC595 or one of it's connections seems to be defect. Please check the soldering and "
    "replace the ic if necessary."};

inline constexpr Festes_Paar Frage_Gegenmuster{
    "Gerade wurden ERNEUT Daten in den 74HC595 geschoben. Bitte messen Sie die Ausgangspins des "
    "74HC595. Pin 2, 4, 6 und 15 sollten auf ca. 5 Volt liegen, Pin 1, 3, 5 und 7 sollten auf 0 "
    "Volt "
    "liegen. Ist dieses der Fall?",
    "There were just pushed AGAIN some bits into the 74HC595. Please measure its output pins. "
    "Pin 2, "
    "4, 6 and 15 should have about 5 volt, pin 1, 3, 5 and 7 should have 0 volt. Is this "
    "correct?"};

inline constexpr Festes_Paar Schluss_157{
    "Der 74HC595 scheint korrekt zu arbeiten. Da die Daten nicht korrekt eingelesen wurden, "
    "scheint der "
    "74HC157 oder eine der Verbindungen defekt zu sein. Die Datei AutoTest_failed.txt im "
    "Programmverzeichnis nennt die Bits, die betroffen sind.",
    "The 74HC595 seems to work correct. Because of the bits were read not correctly, the 74HC595 "
    "or one "
    "of it's connections seems to be defect. The file AutoTest_failed.txt in the folder of the "
    "program "
    "names the bits."};

} // namespace varnholt
