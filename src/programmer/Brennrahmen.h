// The frame of a programming run, the same for all routines: the byte that an address is about, the
// progress dialog, the counted attempts, the error messages and the ways in which a run ends.
#pragma once

#include "core/messages.h"
#include "programmer/Brennbereich.h"

#include <cstdint>

namespace varnholt {

inline constexpr int Lade_Versuche = 10; // loads of a byte that never reaches the bus
inline constexpr int Puls_Versuche = 10; // attempts at a byte that never takes

// How a piece of a run ended. Fehler: its message was shown.
enum class Folge { Weiter, Abgebrochen, Fehler };

// The byte that the current address is about.
struct Zelle_T {
    std::int64_t Editor_Adresse = 0; // its index in the image, may lie outside
    std::uint8_t Soll           = 0; // what the device has to hold
};

// Below the editor's start 00h, behind the image FFh, which leaves a cell as it is.
// reads: Adresse_Zaehler, Versatz, Brennmenue, Hex_Daten
Zelle_T Zelle_Bestimmen();

// The range of the dialog; Bis_Adresse is never beyond the device.
// reads: Brennmenue, No_FF   sets: Ab_Adresse, Bis_Adresse, Versatz, Adresse_Zaehler, Versuch
void Brenn_Bereich_Setzen();

// The progress dialog of a run.
void Brenn_Dialog_Oeffnen();
void Brenn_Dialog_Schliessen();
// A percentage that grew is shown.   reads: Adresse_Zaehler   sets: Prozent_Jetzt, Prozent_Gezeigt
// Letzte: address that counts as 100 %. True when something was shown.
bool Brenn_Fortschritt_Zeigen(std::int32_t Letzte);

// Counts up to the first programmed address with the plain bytes 95 and 91, unless DAT00 is on:
// nothing below it is touched.   reads: Brennmenue, Ab_Adresse   sets: Adresse_Zaehler
void Adressen_Uebergehen();
// The last step before the first address; Abgebrochen when the user gave up already.
// sets: Versuch_Statistik, Puls_Breite, Prozent_Gezeigt
Folge Brennlauf_Beginnen();
// The progress up to Bis_Adresse and a turn of the event loop; Abgebrochen when the user gave up.
Folge Brenn_Runde();

// One pass over an address on the Eprommer: Schreiben puts the byte into the cell, Nachlesen proves
// it, and the step to the next address follows when it took. A byte of FFh is only looked at when
// No_FF says so.
// reads: No_FF, Hex_Daten   sets: Adresse_Zaehler, Hoch_Bits, Versuch, Versuch_Statistik
Folge Eprommer_Adresse_Bearbeiten(Folge (*Schreiben)(const Zelle_T& Zelle),
                                  Folge (*Nachlesen)(const Zelle_T& Zelle));
// One attempt more at this address.   sets: Versuch, Versuch_Statistik
void Naechster_Versuch();

// The error of a run on the Eprommer: the data register first goes to the rest byte of its loop.
Folge Eprommer_Fehler_Melden(const Text_Paar& Text);
// Shows the error with its title and a stop symbol; always Folge::Fehler.
Folge     Brenn_Fehler_Melden(const Text_Paar& Text);
Text_Paar Text_Bus_Fehler(const Zelle_T& Zelle);
Text_Paar Text_Zellen_Fehler(const Zelle_T& Zelle, std::uint8_t Gelesen);

// For a routine that has no byte of its own at its end.
inline constexpr int Ohne_Ruhe_Byte = -1;
// The end of a run: the data register comes to rest at Ruhe_Byte, the dialogs close, and a run that
// went through is compared if C_IC_nach_B says so. After an error the data register stays.
// sets: Brenn_Ergebnis, Antwort, Abbruch, Brennmenue, CheckIC
void Brennlauf_Beenden(Folge f, int Ruhe_Byte);

} // namespace varnholt
