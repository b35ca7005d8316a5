// State of the device programmer: port, signal bytes, read run and EPROM run, grouped by how long
// they hold. The dialogs keep their fields in Brennmenue.h and CheckIC.h.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace varnholt {

// The port. Holds for the whole run; written by Special.cpp only.
inline struct Port_T {
    bool          Porttreiber_OK = false; // driver open and port range enabled; never back to false
    std::uint32_t Eichwert       = 0;     // calibration of the driver's clock, kept unused
    int           Treiber_Ergebnis = 0;   // last result of the driver; above 0 an error code
    std::int64_t  Stempel_Anfang   = 0;   // begin of the current busy wait, microseconds
    std::int64_t  Stempel_Jetzt    = 0;   // its last look at the clock
    std::int64_t  Puls_Anfang      = 0;   // begin of the current programming pulse
    std::int64_t  Puls_Jetzt       = 0;   // its last look at the clock
} Port_Zustand;

inline constinit auto& Porttreiber_OK   = Port_Zustand.Porttreiber_OK;
inline constinit auto& Eichwert         = Port_Zustand.Eichwert;
inline constinit auto& Treiber_Ergebnis = Port_Zustand.Treiber_Ergebnis;
inline constinit auto& Stempel_Anfang   = Port_Zustand.Stempel_Anfang;
inline constinit auto& Stempel_Jetzt    = Port_Zustand.Stempel_Jetzt;
inline constinit auto& Puls_Anfang      = Port_Zustand.Puls_Anfang;
inline constinit auto& Puls_Jetzt       = Port_Zustand.Puls_Jetzt;

// What the pin C2 (socket pin 31) carries while a device is addressed.
enum class C2_Regel {
    Null,   // always 0
    Eins,   // always 1: programming strobe or write line at rest
    Adr_18, // address bit 18
    Adr_15  // address bit 15, which then doesn't come from the counters
};

// Corrections of the Eprommer's bytes. Set at the start of each device routine.
inline struct Signale_T {
    int      Adj_512   = 0; // -1 for 27C512: its programming bytes have D0 cleared
    int      Adj_257   = 0; // 1 for 87C257 (its latch stays open), in a read also 28C040, 29C040
    int      Bank      = 0; // address bit 18 of 28C040 and 29C040, 0 or 1
    int      Hoch_Bits = 0; // control value of the address bits above 15, without C1
    C2_Regel C2_Art    = C2_Regel::Null; // the rule of C2 for the device in work
    std::array<std::uint8_t, 8>
        Schiebe_Bits{}; // bits of one byte, each 0 or 128; element 7 is bit 7
} Signale;

inline constinit auto& Adj_512      = Signale.Adj_512;
inline constinit auto& Adj_257      = Signale.Adj_257;
inline constinit auto& Bank         = Signale.Bank;
inline constinit auto& Hoch_Bits    = Signale.Hoch_Bits;
inline constinit auto& C2_Art       = Signale.C2_Art;
inline constinit auto& Schiebe_Bits = Signale.Schiebe_Bits;

// One walk over the device's addresses. Written by the device routines; the page list belongs to
// the page write, which sets Pruef_Modus for its verification.
inline struct Durchlauf_T {
    std::int32_t Adresse_Zaehler = 0;     // device address at which the counters of the board stand
    bool         Pruef_Modus     = false; // read only the pages that aren't proved yet
    std::vector<char> Seiten_Liste{};     // by page: 0 still to be read, else proved
    int               Prozent_Jetzt   = 0; // progress now ...
    int               Prozent_Gezeigt = 0; // ... and as last shown
} Durchlauf;

inline constinit auto& Adresse_Zaehler = Durchlauf.Adresse_Zaehler;
inline constinit auto& Pruef_Modus     = Durchlauf.Pruef_Modus;
inline constinit auto& Seiten_Liste    = Durchlauf.Seiten_Liste;
inline constinit auto& Prozent_Jetzt   = Durchlauf.Prozent_Jetzt;
inline constinit auto& Prozent_Gezeigt = Durchlauf.Prozent_Gezeigt;

// How a programming run ended; for callers that must tell success from failure.
enum class Brenn_Ausgang { Keiner, Fertig, Abgebrochen, Fehler, Nicht_Verfuegbar };

// One programming run. Written by the programming routine; the outcome stays until the next run.
inline struct Brennlauf_T {
    std::int64_t                 Versatz     = 0;     // IC address minus editor address
    std::int32_t                 Ab_Adresse  = 0;     // first IC address that is really written
    std::int32_t                 Bis_Adresse = 0;     // last IC address
    std::int64_t                 Puls_Breite = 0;     // pulse in microseconds, grows on failure
    int                          Versuch     = 1;     // attempt for this address, 1 to 11
    bool                         Puls_an_C2  = false; // the pulse goes out on C2 too
    std::array<std::int32_t, 20> Versuch_Statistik{}; // addresses by the attempts that they took
    int                          Alt_Byte = 0xFFFF;   // byte in the 74HC595, FFFFh when unknown
    std::int32_t  Seiten_Groesse = 1; // bytes of a page, of a device that is written by pages
    Brenn_Ausgang Brenn_Ergebnis = Brenn_Ausgang::Keiner;
} Brennlauf;

inline constinit auto& Versatz           = Brennlauf.Versatz;
inline constinit auto& Ab_Adresse        = Brennlauf.Ab_Adresse;
inline constinit auto& Bis_Adresse       = Brennlauf.Bis_Adresse;
inline constinit auto& Puls_Breite       = Brennlauf.Puls_Breite;
inline constinit auto& Versuch           = Brennlauf.Versuch;
inline constinit auto& Puls_an_C2        = Brennlauf.Puls_an_C2;
inline constinit auto& Versuch_Statistik = Brennlauf.Versuch_Statistik;
inline constinit auto& Alt_Byte          = Brennlauf.Alt_Byte;
inline constinit auto& Seiten_Groesse    = Brennlauf.Seiten_Groesse;
inline constinit auto& Brenn_Ergebnis    = Brennlauf.Brenn_Ergebnis;

// Every group above and the fields of the dialogs as at program start; the device table stays.
void Brenner_Zuruecksetzen();

} // namespace varnholt
