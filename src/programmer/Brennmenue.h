// The programming dialog `Brennmenue` as a model: its fields, what a change of one does to the
// others, and its buttons. Names: ED editor, BR programming, IC device; EBA first address, LBA last
// address, IBA number of bytes, GS size; _H hexadecimal, _D decimal.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

inline constexpr std::uint32_t Farbe_Warnung = 192;         // dark red
inline constexpr std::uint32_t Farbe_System  = 0x80000012u; // the system's colour of button texts
inline constexpr int           Hoehe_Klein   = 5400;        // twips: without the lower part
inline constexpr int           Hoehe_Gross   = 8040;        // with the split options and DAT00

// The fields. Written by the handlers below; a window shows them and forwards its events.
inline struct Brennmenue_T {
    bool        Offen = false;
    std::string ED_EBA_H{}, ED_EBA_D{};         // first editor address to program
    std::string ED_LBA_H{}, ED_LBA_D{};         // last editor address
    std::string ED_IBA_H{}, ED_IBA_D{};         // number of bytes, or the word for an error
    std::string BR_EBA_H = "0", BR_EBA_D = "0"; // first IC address
    std::string BR_LBA_H{}, BR_LBA_D{};         // last IC address that results, or "ZU  HOCH  "
    std::string IC_GS_H{}, IC_GS_D{};           // highest address of the device
    std::string IC_LBA_H = "-",
                IC_LBA_D = "-"; // last byte of the device that isn't FFh; "-" not yet known
    std::string   Label_IC{};
    std::string   DAT00_Text{};
    bool          DAT00            = false; // write the addresses below BR_EBA too
    bool          Löschen          = false; // erase before programming
    bool          O_No_Splitting   = true;  // one of the three is on
    bool          O_Even_Splitting = false;
    bool          O_Odd_Splitting  = false;
    std::string   Überbrennen{}; // whether overprogramming works
    std::uint32_t Überbrennen_Farbe = Farbe_System;
    bool          Brennen_Aktiv     = true; // the button `Brennen` can be pressed
    bool          BR_EBA_Aktiv      = true;
    bool          BR_LBA_Aktiv      = true;
    int           Hoehe             = Hoehe_Klein;
} Brennmenue;

// True for the keys that a hexadecimal box takes: digits, A to F in both cases, backspace, and 83.
constexpr bool Hex_Taste_Erlaubt(int Taste)
{
    return (Taste >= '0' && Taste <= '9') || (Taste >= 'a' && Taste <= 'f') ||
           (Taste >= 'A' && Taste <= 'F') || Taste == 8 || Taste == 83;
}

// Opens the dialog with all fields set anew, and reads the device when C_IC_vor_B says so.
// reads: Hex_Daten, the device's record, C_IC_vor_B   sets: Brennmenue, Hex_Puffer, Antwort
void Brennmenue_Oeffnen();
// The first activation of the form; nothing once IC_LBA_D shows something other than "-".
void Brennmenue_Activate();

// A changed text box: its partner follows, then the fields that depend on it.
// sets: Brennmenue
void ED_EBA_H_Change(std::string_view Text);
void ED_EBA_D_Change(std::string_view Text);
void ED_LBA_H_Change(std::string_view Text);
void ED_LBA_D_Change(std::string_view Text);
void BR_EBA_H_Change(std::string_view Text);
void BR_EBA_D_Change(std::string_view Text);

// The option buttons of the split; one of them goes on, the others off.
enum class Splitting { Kein, Gerade, Ungerade };
void Splitting_Waehlen(Splitting Wahl);

// True when the selected device's program type has a routine.
[[nodiscard]] bool Brennen_Bedient();
// What is said of one that has none.
[[nodiscard]] Text_Paar Kein_Brennen_Text();

// The buttons. Brennen does nothing while it is disabled, and tells of a device without a routine;
// else the routine closes the dialog.
// reads: Brennmenue, the device's types   sets: Brenn_Ergebnis, Brennmenue
void Brennen_Click();
void Abbrechen_Click();
void Weiteres_Click();

// The common beginning of the programming and comparing commands: driver, device, and an image in
// step with the source text. False when one is missing; a message told why.
// sets: Antwort, Hex_Daten, Text_Aktuell or Assembler_Fehler
[[nodiscard]] bool Programm_Bereit();

} // namespace varnholt
