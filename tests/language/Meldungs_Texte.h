// The messages of the assembler that several tests expect, in both languages.
#pragma once

#include "core/messages.h"

#include <string>

namespace varnholt::test {

inline const Text_Paar Ohne_Prozessor{
    "Bitte benutzen Sie im Programm die INCLUDE Anweisung, um den Prozessortyp festzulegen. "
    "Beispiel: Include 8051.mc",
    "Please use in the program the INCLUDE instruction to declare the processor. Example: Include "
    "8051.mc"};
inline const Text_Paar Unbekannter_Befehl{"Befehl nicht erkannt !\r\n\r\n",
                                          "Unknown instruction !\r\n\r\n"};
inline const Text_Paar Marke_Fehlt{"Sprungadresse nicht gefunden !", "Jumpmark not found !"};
inline const Text_Paar Klammer_Falsch{"Fehlerhafte Sprungadresse !", "Error in Jumpmark !"};
inline const Text_Paar Ziel_Ungueltig{"Ungültige Sprungzieladresse !",
                                      "Invalid jumpmark address !"};
inline const Text_Paar Zu_Weit{"Sprungziel liegt außerhalb des -128/+127 Byte Rahmen!",
                               "Jump-target is out of -128/+127 Byte frame!"};
inline const Text_Paar Seite_Verlassen{
    "AJMP/ACALL Anweisungen können nur innerhalb eines 2k Blocks springen! Bitte benutzen Sie bei "
    "Sprüngen darüber hinaus die LJMP/LCALL Anweisungen.",
    "AJMP/ACALL instruction can only be used within a 2k block! Please use the LJMP/LCALL "
    "instructions for larger jumps."};
inline const Text_Paar Marken_Zeichen{
    "Bitte verwenden Sie innerhalb von Sprunglabeln keines der folgenden Zeichen: ' \\/;<>='",
    "Please use within jumplabel none of the following signs: ' \\/;<>'"};
inline const Text_Paar Marke_Doppelt{
    "Sie haben den gleichen Namen für zwei verschiedene Sprungmarke verwendet! Bitte geben Sie "
    "jeder Sprungmarke einen eigenen Namen, damit keine Verwechslungen auftreten können!",
    "You have used the same name for two or more different jump marks! Please give every jump mark "
    "a different name to prevent confusion!"};

// The two range messages; the reading of numbers without a mark is named in them.
inline Text_Paar Byte_Bereich(bool Hexadezimal = false)
{
    const std::string D = Hexadezimal ? "Hexadezimalzahlen" : "Dezimalzahlen";
    const std::string E = Hexadezimal ? "hexadecimal" : "decimal";
    return {"In diesem Befehl sind nur Zahlenangaben von\r\n"
            "00h bis FFh (hexadezimal) oder\r\n"
            "0 bis 255 (dezimal) oder\r\n"
            "0b bis 11111111b (binär) zulässig !\r\n"
            "\r\n"
            "Zahlen ohne Kennzeichnung wurden als " +
                D +
                " gedeutet.\r\n"
                "Falls nötig, können Sie dies unter 'Bearbeiten' -> 'Optionen' ändern.\r\n",
            "In this instruction numbers are only allowed between \r\n"
            "00h till FFh (hexadecimal) or\r\n"
            "0 till 255 (decimal) or\r\n"
            "0b till 11111111b (binary) !\r\n"
            "\r\n"
            "Values without a additional sign were interpreted as " +
                E +
                " values.\r\n"
                "If necessary, you can change this under 'Edit' -> 'Options'.\r\n"};
}

inline Text_Paar Wort_Bereich(bool Hexadezimal = false)
{
    const std::string D = Hexadezimal ? "Hexadezimalzahlen" : "Dezimalzahlen";
    const std::string E = Hexadezimal ? "hexadecimal" : "decimal";
    return {"In diesem Befehl sind nur Zahlenangaben von\r\n"
            "0000 bis FFFF (hexadezimal) oder\r\n"
            "%0 bis %65535 (dezimal) oder\r\n"
            "!0 - !1111111111111111 (binär) zulässig !\r\n"
            "\r\n"
            "Zahlen ohne Kennzeichnung wurden als " +
                D +
                " gedeutet.\r\n"
                "Falls nötig, können Sie dies unter 'Bearbeiten' -> 'Optionen' ändern.\r\n",
            "In this instruction numbers are only allowed between \r\n"
            "0000 till FFFF (hexadecimal) or\r\n"
            "%0 till %65535 (decimal) or\r\n"
            "!0 - !1111111111111111 (binary) !\r\n"
            "\r\n"
            "Values without a additional sign were interpreted as " +
                E +
                " values.\r\n"
                "If necessary, you can change this under 'Edit' -> 'Options'.\r\n"};
}

} // namespace varnholt::test
