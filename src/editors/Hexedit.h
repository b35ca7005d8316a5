// The hex editor: a page of the code image as four texts beside each other, their markings, and
// what keys and mouse do to them. A window draws this state and forwards its events; the image
// itself is in core/shared_state.h. Owner: editors/Hex*.cpp; the windows only look, except for the
// markings while the mouse draws them.
#pragma once

#include "core/keys.h"
#include "editors/Hexseite.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace varnholt {

inline constexpr int Feld_Hex   = 1; // values of Hex_Aktives_Feld
inline constexpr int Feld_AscII = 2;

inline constexpr int R_Anfang             = 20;              // until a window has told its height
inline constexpr int Scroll_Max_Nach_Zug  = Bild_Zeilen - 8; // after a resize, whatever the height
inline constexpr int Zeilen_Hoehe_Ueblich = 16;              // pixels
// The bar's maximum at start and after a partial load.
constexpr int        Scroll_Max_Am_Anfang(int R) { return std::min(Bild_Zeilen - R, Bild_Zeilen); }
inline constexpr int Rad_Zeilen = 3; // rows that the wheel scrolls

// The page texts exist only between two redraws; what lasts is in the image.
inline struct Hexedit_T {
    std::string   Hex_Feld{};     // per row 48 characters, no line break
    std::string   AscII_Feld{};   // per row 16 characters (Windows-1252) and CR LF
    std::string   Adr_D{};        // per row six decimal digits and CR LF
    std::string   Adr_H{};        // per row six hexadecimal digits and CR LF
    int           Scroll     = 0; // row number of the page's first row, 0 to Scroll_Max
    int           Scroll_Max = Bild_Zeilen - R_Anfang;
    int           R          = R_Anfang;    // rows 0 to R fit; -1: none does
    Markierung_T  Hex_Auswahl{};            // the caret is the marking: a digit, a pair of digits
    Markierung_T  AscII_Auswahl{};          // a character; Laenge 0: nothing marked
    int           Hex_Aktives_Feld = 0;     // pane with the focus: Feld_Hex, Feld_AscII; 0 none yet
    bool          Anzeige_Laeuft   = false; // Hex_Anzeige gives the event loop its turn
    int           Bef_Zeile        = 0;     // row to select in `Bef`, 1 to 256; 0 none
    std::uint64_t Bef_Stand        = 0;     // grows with each such wish
    std::array<std::string, 4> Label{};     // captions of Label1 to Label4, empty at start
} Hexedit;

inline constinit auto& Hex_Feld         = Hexedit.Hex_Feld;
inline constinit auto& AscII_Feld       = Hexedit.AscII_Feld;
inline constinit auto& Adr_D            = Hexedit.Adr_D;
inline constinit auto& Adr_H            = Hexedit.Adr_H;
inline constinit auto& Hex_Aktives_Feld = Hexedit.Hex_Aktives_Feld;

// The state as at program start.
inline void Hexedit_Zuruecksetzen() { Hexedit = {}; }

// The page as the calculations of Hexseite.h want it.
inline Seite_T Hex_Seite() { return {Hexedit.Scroll, Hexedit.Scroll_Max, Hexedit.R}; }
// Address of a byte of the page.
inline std::int32_t Adresse_Von(int Byte) { return Hexedit.Scroll * Zeilen_Bytes + Byte; }

// Address of the byte at the caret, as the status line shows it; 0 on an empty page.
inline std::int32_t Hexedit_Adresse()
{
    const auto& [Mass, M] = Hex_Aktives_Feld == Feld_AscII
                                ? std::pair{AscII_Mass, Hexedit.AscII_Auswahl}
                                : std::pair{Hex_Mass, Hexedit.Hex_Auswahl};
    return Hex_Seite().Bytes() == 0 ? 0 : Adresse_Von(Bytes_Von(Mass, M, Hex_Seite()).Anfang);
}

// --- Hexanzeige.cpp ---  (Hex_Anzeige itself: core/commands.h)

// Builds the four texts and counts, without a turn of the event loop.
// reads: Hex_Daten, Scroll, R   sets: the page texts, Hex_Zeiger, Hex_Stand; draws markings in
void Hex_Seite_Bauen();
// Puts a byte's value into both texts; Zeichen is what the character pane shows for it.
void Hex_Zelle_Zeigen(int Byte, std::uint8_t Wert, char Zeichen);

// --- Hexfenster.cpp ---

// The bar's maximum as at start and after a partial load: 32768 - R.
// reads: R   sets: Scroll_Max, Scroll
void Scroll_Einrichten();
// The bar was moved, or a command scrolls: the value is drawn into 0 to Scroll_Max. A marking of
// several bytes doesn't go along, it shrinks to the caret.
void Scroll_Setzen(int Wert);
// The window opens with a field `Hex_Feld` of that many pixels, a row having that many.
// sets: R, Scroll_Max (32768 - R), Scroll, page
void Hexedit_Einrichten(int Pixel_Hoehe, int Zeilen_Hoehe = Zeilen_Hoehe_Ueblich);
// The field `Hex_Feld` has that many pixels, a row that many. During start-up the maximum is
// 32768 - R, after it 32760.   sets: R, Scroll_Max, Scroll, page
void Hexedit_Resize(int Pixel_Hoehe, int Zeilen_Hoehe = Zeilen_Hoehe_Ueblich);
// sets: Aktives_Fenster, tooltip of button 21, MNU_deb_Vorbereitung and button 23 (disabled)
void Hexedit_Activate();
// sets: Fenster_Tabelle
void Hexedit_Deactivate();

// --- Hexaenderung.cpp ---

// To be run before any edit. When the source text is the image's origin it asks first; Abbruch
// tells a refusal and otherwise stays as it is.
// reads: Text_Aktuell, Edit   sets: Abbruch, Antwort, Edit, Datei_Name, Text_Aktuell,
// Datei_Geaendert, caption
void Änderung();
// The same for callers that want to know: false when refused.   sets: Abbruch and as above
[[nodiscard]] bool Änderung_Erlaubt();

// --- Hexmaus.cpp ---

// Carries the marking of one pane over to the other.   reads: Hex_Auswahl   sets: AscII_Auswahl
void Markiere_ASCII();
// reads: AscII_Auswahl   sets: Hex_Auswahl
void Markiere_Hex();
// Marks in a pane, drawn into the page, at least the one character; then the other pane follows.
void Hex_Markieren(const Markierung_T& Neue);
void AscII_Markieren(const Markierung_T& Neue);
// Mouse button down, up, click, focus. The pane's own marking is set before up and click.
void Hex_Feld_MouseDown();
void AscII_Feld_MouseDown();
void Hex_Feld_MouseUp();
void AscII_Feld_MouseUp();
void Hex_Feld_Click();
void Hex_Feld_GotFocus();
void AscII_Feld_GotFocus();

// --- Hextasten.cpp ---

// True: the key is consumed. False from AscII_Feld: what it types goes to AscII_Feld_KeyPress.
bool Hex_Feld_KeyDown(const Taste_T& Taste);
bool AscII_Feld_KeyDown(const Taste_T& Taste);
// A character is typed over the byte at the caret.   sets: Hex_Daten, both texts and markings
void AscII_Feld_KeyPress(char Zeichen);

} // namespace varnholt
