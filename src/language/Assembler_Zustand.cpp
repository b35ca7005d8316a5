// The assembler's state at program start, its pending error, and its way into the image.
#include "language/Assembler_Zustand.h"

#include "core/settings.h"
#include "core/shared_state.h"

#include <utility>

namespace varnholt {

void Fehler(std::string D, std::string E)
{
    Fehlertext = {std::move(D), std::move(E)};
    throw Assembler_Ende{};
}

void Meldung_Zu_Hoch() { Fehler("Wert ist zu hoch !", "Value is to high !"); }

namespace {

// The last lines of both range messages: how unmarked numbers were read.
[[noreturn]] void Bereich_Fehler(std::string D, std::string E)
{
    const std::string Art_D = Zahlendeutung ? "Hexadezimalzahlen" : "Dezimalzahlen";
    const std::string Art_E = Zahlendeutung ? "hexadecimal" : "decimal";
    Fehler(std::move(D) + "\r\nZahlen ohne Kennzeichnung wurden als " + Art_D +
               " gedeutet.\r\n"
               "Falls nötig, können Sie dies unter 'Bearbeiten' -> 'Optionen' ändern.\r\n",
           std::move(E) + "\r\nValues without a additional sign were interpreted as " + Art_E +
               " values.\r\n"
               "If necessary, you can change this under 'Edit' -> 'Options'.\r\n");
}

} // namespace

void Meldung_Byte_Bereich()
{
    Bereich_Fehler("In diesem Befehl sind nur Zahlenangaben von\r\n"
                   "00h bis FFh (hexadezimal) oder\r\n"
                   "0 bis 255 (dezimal) oder\r\n"
                   "0b bis 11111111b (binär) zulässig !\r\n",
                   "In this instruction numbers are only allowed between \r\n"
                   "00h till FFh (hexadecimal) or\r\n"
                   "0 till 255 (decimal) or\r\n"
                   "0b till 11111111b (binary) !\r\n");
}

void Meldung_Wort_Bereich()
{
    Bereich_Fehler("In diesem Befehl sind nur Zahlenangaben von\r\n"
                   "0000 bis FFFF (hexadezimal) oder\r\n"
                   "%0 bis %65535 (dezimal) oder\r\n"
                   "!0 - !1111111111111111 (binär) zulässig !\r\n",
                   "In this instruction numbers are only allowed between \r\n"
                   "0000 till FFFF (hexadecimal) or\r\n"
                   "%0 till %65535 (decimal) or\r\n"
                   "!0 - !1111111111111111 (binary) !\r\n");
}

void Byte_Setzen(std::int32_t Adresse, std::int32_t Wert)
{
    if (Adresse < 0)
        Fehler("Ungültige Sprungzieladresse !", "Invalid jumpmark address !");
    if (Adresse <= Bild_Groesse)
        Hex_Daten[static_cast<std::size_t>(Adresse)] = static_cast<std::uint8_t>(Wert & 0xFF);
}

std::uint8_t Byte_An(std::int32_t Adresse)
{
    return Adresse >= 0 && Adresse <= Bild_Groesse ? Hex_Daten[static_cast<std::size_t>(Adresse)]
                                                   : 0xFF;
}

void Quellzeilen_Loeschen()
{
    Quell_Zeilen.clear();

    Assembler.Offene_Ziele.clear();
    Zeilen_Texte.Leeren();
}

void Assembler_Zuruecksetzen()
{
    Assembler = {};
    Lauf      = {};
    Operanden = {};
    Struktur  = {};
    Namen_Leeren();
}

} // namespace varnholt
