// The byte sequences of the EEPROM, flash and page routines and of the memory read as the protocol
// describes them, written down a second time and without the program's own routines: the
// expectation of the trace tests. The device behind it is a perfect one, but for the cells that are
// told to take late; a load may be told to fail, and the user to give up.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {

struct Brenn_Modell {
    // The record.
    std::string  Name{}, R{}, P{};
    std::int32_t Bytes  = 0;
    int          R_Zeit = 7;
    int          P_Zeit = 100;
    int          Seite  = 0;
    // The dialog and the options.
    std::int64_t Editor_Von = 0, IC_Von = 0, IC_Bis = 0;
    bool         DAT00 = false, Loeschen = false, No_FF = true, Bei_B = true;
    int          Split   = 0;     // 0 none, 1 even, 2 odd
    bool         Bekannt = false; // the dialog knows the device as empty
    // The image and the device.
    std::vector<std::uint8_t>   Bild{};
    std::vector<std::uint8_t>   Zellen{};
    std::map<std::int64_t, int> Spaet{};         // by address: writes that have no effect
    std::map<std::int64_t, int> Spaete_Seiten{}; // by page
    std::map<std::int64_t, int> Programmiert{};  // writes by address, for the statistic
    // Loads of the 74HC595 that don't get to the bus, by their number in the run, from 1.
    std::set<int> Schlechte_Ladungen{};
    // The turn of the event loop, from 1, at which the user gives up; 0: never.
    int Abbruch_Runde = 0;

    // Runs; each gives the trace. Status lines hold the upper four bits only: "R S 7".
    std::string EEPROM();
    std::string Flash();
    std::string Seiten();
    std::string Lesen();
    int         Runden_Gemacht() const { return Runden; } // turns of the last run
    std::string Flash_Loeschen(int Anzahl); // the device is blank after that many rounds

private:
    struct Adresse_T {
        std::int64_t e    = 0;
        std::uint8_t Byte = 0;
    };
    Adresse_T Editor(std::int64_t a) const;
    int       Hoch(std::int64_t a, int C2) const;
    void      D(int Wert);
    void      C(int Wert);
    void      U(int Wert);
    void      M(int Wert);
    void      Gerade(int Wert);   // a status read with D7 = 0
    void      Ungerade(int Wert); // with D7 = 1
    void      Schieben(int Wert, int Basis);
    void      Beginnen();
    bool      Geladen(int Wert, int Basis, int Auswahl, int Vorlauf);
    bool      Angekommen(int Wert, int Basis, int Auswahl, int Vorlauf);
    bool      Befehl(int Wert, int H);
    void      Flash_Reset(int H);
    bool      Nimmt(std::int64_t a);

    void Zaehler_Loeschen(bool Zum_Lesen);
    void Takten(int Anzahl, int Weniger);
    bool Gibt_Auf(int Letztes_Byte);

    bool Lese_Lauf(const std::vector<bool>& Offen);
    void Gute_Uebergehen(const std::vector<bool>& Offen, std::int64_t& a, std::int64_t& Stand);
    void Zelle_Lesen(int Zelle, int Weniger);

    enum class Folge_T { Weiter, Nochmal, Ende };
    std::int64_t EEPROM_Anfang();
    Folge_T      EEPROM_Byte(std::int64_t a, int b);
    Folge_T      Flash_Byte(std::int64_t a, int b);
    Folge_T      Flash_Pruefen(std::int64_t a, int b, int H);

    void Seite_Anfahren(std::int64_t a, std::int64_t& Stand, bool Zusatz);
    void Seite_Byte(std::int64_t i);
    void Seite_Schritt(std::int64_t& Stand);
    void Seite_Schreiben(std::int64_t Nummer, std::int64_t& Stand, bool Zusatz);
    void Seite_Speichern(const std::vector<std::pair<std::size_t, int>>& Bytes_Der_Seite);
    std::int64_t
    Schlechte_Finden(std::vector<bool>& Offen, std::int64_t Erste, std::int64_t Letzte) const;
    // The cell that the device shows or takes for address a while the counters stand at Stand.
    std::size_t Ort(std::int64_t a, std::int64_t Stand) const;

    std::string               Zeilen{};
    std::vector<std::uint8_t> Gelesen{}; // what the last read found, by address
    int                       Alt      = 0xFFFF;
    int                       Bank     = 0;
    int                       Ladungen = 0; // of this run
    int                       Runden   = 0;
    int                       Versuch  = 1; // at the present address
};

// A recorded trace with the lower half of each status byte cut off.
std::string Ohne_Ruheleitungen(const std::string& Spur);

} // namespace varnholt::test
