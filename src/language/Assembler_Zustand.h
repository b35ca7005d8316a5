// All state of the assembler, grouped by how long it holds. Written by language/, read by anyone.
#pragma once

#include "core/messages.h"
#include "language/Namen.h"
#include "language/Quell_Stueck.h"
#include "language/Text_Ablage.h"

#include <array>
#include <cstdint>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varnholt {

inline constexpr int Werte_Hoechstens    = 500; // values on a line
inline constexpr int Tiefe_Hoechstens    = 100; // nesting of IF and of FOR
inline constexpr int Includes_Hoechstens = 100; // included files of a run
inline constexpr int Kein_Sprungoperand  = 1000;

// The two messages of a missing file, which are shown at the line as it stands. The first one makes
// the desktop program offer its list of processor files.
inline constexpr std::string_view Text_Prozessorfile_Fehlt =
    "Can't find the processorfile! Please use one of the following catalog.";
inline constexpr std::string_view Text_Include_Fehlt = "Can't find the include file!";

// Where a source row comes from.
inline constexpr std::int8_t Herkunft_Haupttext     = 0;
inline constexpr std::int8_t Herkunft_Prozessorfile = 1;
inline constexpr std::int8_t Herkunft_Include       = 2;

// One source row. There may be a million of them: kept small.
struct Quell_Zeile {
    Quell_Stueck
        Text{}; // the line in its normal form; labels and heads are cut away as it is worked on
    Quell_Stueck Marke{};     // label in upper case with its colon, empty without one
    std::int32_t Adresse = 0; // Adress_Zaehler when the row was reached
    std::int16_t Versatz =
        0; // from Adresse to the row's instruction (behind the head of a one-line IF)
    std::int8_t Herkunft = 0; // Herkunft_Haupttext, _Prozessorfile or _Include
};

// The unresolved target operand of a row.
struct Offenes_Ziel {
    Quell_Stueck Offen{};    // as text; emptied when it is put in place
    std::int32_t Zeile  = 0; // the row
    std::int32_t Zusatz = 0; // signed addend of MOV DPTR,#name+n
};

// An included file's rows, and where it was found.
struct Include_Eintrag {
    int         Erste_Zeile = 0;
    int         Zeilen      = 0;
    std::string Pfad{};
};

// One row of the list file.
struct Listen_Zeile {
    enum Art_T { Code = 0, Marke = 1, Daten = 2, Definition = 3 };
    std::int32_t Adresse = 0;
    std::string  Text{};
    Art_T        Art        = Code;
    bool         Ohne_Bytes = false; // a code row that emitted nothing: an ignored STOP
};

// Holds from one assembly to the end of its caller's use.
inline struct Assembler_T {
    std::vector<Quell_Zeile> Quell_Zeilen{};

    std::vector<Offenes_Ziel>    Offene_Ziele{}; // by row
    Text_Ablage                  Zeilen_Texte{}; // what rows and open targets point into
    std::vector<Include_Eintrag> Include_Liste{};
    std::int32_t                 Code_Ende         = 0; // one past the last address reached
    std::int32_t                 Befehl_Zaehler    = 0; // machine instructions emitted
    std::int32_t                 Letzte_Zeilenzahl = 0; // rows of the last complete run + 1
    int                          Fehler_Zeile      = 0; // editor line of the last error, from 0
    Text_Paar                    Fehlertext{};          // the pending message
    std::string                  Listen_Name{}; // path of the list file; empty: beside the source
} Assembler;

inline constinit auto& Quell_Zeilen      = Assembler.Quell_Zeilen;
inline constinit auto& Zeilen_Texte      = Assembler.Zeilen_Texte;
inline constinit auto& Include_Liste     = Assembler.Include_Liste;
inline constinit auto& Code_Ende         = Assembler.Code_Ende;
inline constinit auto& Befehl_Zaehler    = Assembler.Befehl_Zaehler;
inline constinit auto& Letzte_Zeilenzahl = Assembler.Letzte_Zeilenzahl;
inline constinit auto& Fehler_Zeile      = Assembler.Fehler_Zeile;
inline constinit auto& Fehlertext        = Assembler.Fehlertext;
inline constinit auto& Listen_Name       = Assembler.Listen_Name;

// Labels point into the rows' pieces.
using Marken_Verzeichnis = std::unordered_map<std::string_view, int>;

// Holds during one Assemblieren().
inline struct Lauf_T {
    int                       Zeilen_Index   = 0;     // row in work
    std::int32_t              Adress_Zaehler = 0;     // next code address
    int                       Befehls_Laenge = 0;     // bytes of the line's instruction, 0 to 3
    bool                      Ende_Erreicht  = false; // END stops the emitting sweep
    std::string               Zeile_Gross{};          // the row in upper case, its values cut out
    std::string               Zeile_Rein{};           // the same in its own case, during the scan
    Marken_Verzeichnis        Marken{};               // label without colon to its row
    std::vector<Listen_Zeile> Listen_Zeilen{};
    bool                      Ohne_Ende_IF = false; // no #END IF stands in the rows to come
} Lauf;

inline constinit auto& Zeilen_Index   = Lauf.Zeilen_Index;
inline constinit auto& Adress_Zaehler = Lauf.Adress_Zaehler;
inline constinit auto& Befehls_Laenge = Lauf.Befehls_Laenge;
inline constinit auto& Zeile_Gross    = Lauf.Zeile_Gross;
inline constinit auto& Listen_Zeilen  = Lauf.Listen_Zeilen;

// The values of a line; a line without value sees those of the line before.
inline struct Operanden_T {
    std::array<std::int32_t, Werte_Hoechstens> Wert_Liste{}; // element 0 is the first value
    int                                        Wert_Anzahl = 0;
    int  Name_Eins = -1;    // index of the first name used on the line, -1 none
    int  Name_Zwei = -1;    // index of the second
    bool Bit_Eins  = false; // the first was used with a bit suffix
    bool Bit_Zwei  = false; // the second
} Operanden;

inline constinit auto& Wert_Liste  = Operanden.Wert_Liste;
inline constinit auto& Wert_Anzahl = Operanden.Wert_Anzahl;
inline constinit auto& Name_Eins   = Operanden.Name_Eins;
inline constinit auto& Name_Zwei   = Operanden.Name_Zwei;
inline constinit auto& Bit_Eins    = Operanden.Bit_Eins;
inline constinit auto& Bit_Zwei    = Operanden.Bit_Zwei;

// The structured statements that are open.
inline struct Struktur_T {
    struct Schleife_T {
        std::int32_t Adresse                      = 0; // of the loop's first instruction
        int          Ende                         = 0; // end value
        enum Art_T { Akku, Register, Direkt } Art = Akku;
        int Ziel                                  = 0; // register number or direct address
    };
    int IF_Tiefe  = 0; // may fall below 0: END IF without IF
    int FOR_Tiefe = 0; // likewise
    std::array<std::int32_t, Tiefe_Hoechstens + 1>
                                                 IF_Stapel{};  // addresses to patch, from element 1
    std::array<Schleife_T, Tiefe_Hoechstens + 1> FOR_Stapel{}; // from element 1
    bool Inline_IF     = false;                                // a one-line IF waits for its tail
    int  Inline_Zusatz = 0;                                    // bytes to skip beyond the tail
} Struktur;

inline constinit auto& IF_Tiefe      = Struktur.IF_Tiefe;
inline constinit auto& FOR_Tiefe     = Struktur.FOR_Tiefe;
inline constinit auto& IF_Stapel     = Struktur.IF_Stapel;
inline constinit auto& FOR_Stapel    = Struktur.FOR_Stapel;
inline constinit auto& Inline_IF     = Struktur.Inline_IF;
inline constinit auto& Inline_Zusatz = Struktur.Inline_Zusatz;

inline int          Zeilen_Anzahl() { return static_cast<int>(Quell_Zeilen.size()); }
inline Quell_Zeile& Diese_Zeile() { return Quell_Zeilen[static_cast<std::size_t>(Zeilen_Index)]; }

// The comparison form as it stands now. As a view, so that a comparison looks at the length first.
inline std::string_view Form_Jetzt() { return Lauf.Zeile_Gross; }
// The first character decides almost always whether it begins so.
inline bool Form_Beginnt(std::string_view Anfang)
{
    const std::string_view Form = Form_Jetzt();
    return Form.starts_with(Anfang.front()) && Form.starts_with(Anfang);
}

// Element n of Wert_Liste, counted from 1.
inline std::int32_t& Wert_Nr(int n) { return Wert_Liste[static_cast<std::size_t>(n - 1)]; }

// The pending error: ends the run. Private to the assembler, caught in Assemblieren.
struct Assembler_Ende {};
// The cancel button ends the run.
struct Assembler_Abbruch {};

// Sets the pending texts and ends the run at the row in work.
[[noreturn]] void Fehler(std::string D, std::string E);
[[noreturn]] void Meldung_Byte_Bereich();
[[noreturn]] void Meldung_Wort_Bereich();
[[noreturn]] void Meldung_Zu_Hoch();

// Stores one byte of the image; beyond its upper end it is lost, below address 0 it is an error.
void Byte_Setzen(std::int32_t Adresse, std::int32_t Wert);

// The byte of the image at that address; FFh outside it.
std::uint8_t Byte_An(std::int32_t Adresse);

// Frees the source rows; the caller of Assemblieren does so when it has no further use for them.
void Quellzeilen_Loeschen();

void Assembler_Zuruecksetzen();

} // namespace varnholt
