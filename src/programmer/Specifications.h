// The device database: reading Spec.ini into the device table, finding a device in it and choosing
// one. What the devices do is left to the routines that their type texts name.
#pragma once

#include "programmer/Geraete.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

// --- Specifications.cpp ---

// Reads Programm_Pfad + "Spec.ini"; false when it isn't there, can't be read or is too large: that
// gives a message, in German only, and leaves the table empty; the program goes on.
// reads: Programm_Pfad, Sprache   sets: Geraete_Tabelle, Gruppen_Namen, Menue_Texte, IC_Groesse
bool Spec_Lesen();

// Fills the table from the text of a device database (Windows-1252; CR LF, LF or CR end a line). It
// takes what it understands: unknown lines don't matter. A record that has no place in the table
// is left out, and a size that the image can't hold is bounded, each with a notice.
// reads: Sprache   sets: Geraete_Tabelle, Gruppen_Namen, Gruppen_Belegt, Menue_Texte, IC_Groesse
void Spec_Auswerten(std::string_view Text);

// --- Geraetewahl.cpp (with IC_Typ_Löschen of core/commands.h) ---

// Number of the device with that name (UTF-8) in any case; -1 when there is none.
int Geraet_Suchen(std::string_view Name);

// Selects a device and checks that the board can serve it. A device that it can't serve gives a
// message, sets Abbruch and leaves nothing selected; so does, silently, a number without a device.
// reads: Geraete_Tabelle, Tessel2_Version   sets: IC_Nummer, Abbruch, Antwort
void IC_Waehlen(int Nummer);

// The erase command serves the device (by its erase type).
bool Loeschen_Moeglich(const Geraet_T& Geraet);
// The lock command serves the device (by its lock and program type).
bool Sperren_Moeglich(const Geraet_T& Geraet);

// Caption of the menu MNU_IC: the menu's name with the selected device.
std::string MNU_IC_Titel();

// Hardware versions of the boards, the newest where none has been chosen: 30, 31, 32 and 10,
// 11, 12.
int Eprommer_Version_Gueltig();
int Tessel2_Version_Gueltig();

} // namespace varnholt
