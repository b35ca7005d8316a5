// The byte sequences of the EEPROM, flash and page routines and of the memory read as the protocol
// describes them, written down a second time and without the program's own routines: the
// expectation of the trace tests. The device behind it is a perfect one, but for the cells that are
// told to take late.
#pragma once

#include <cstdint>
#include <map>
#include <string>
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

    // Runs; each gives the trace. Status lines hold the upper four bits only: "R S 7".
    std::string EEPROM();
    std::string Flash();
    std::string Seiten();
    std::string Lesen();
    std::string Flash_Loeschen(int Runden); // the device is blank after that many rounds

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
    void      Befehl(int Wert, int H);
    void      Flash_Reset(int H);
    void      Seite_Schreiben(std::int64_t Nummer, std::int64_t& Stand, bool Zusatz);
    void      Lese_Lauf(const std::vector<bool>& Offen);
    bool      Nimmt(std::int64_t a);

    std::string Zeilen{};
    int         Alt  = 0xFFFF;
    int         Bank = 0;
};

// A recorded trace with the lower half of each status byte cut off.
std::string Ohne_Ruheleitungen(const std::string& Spur);

} // namespace varnholt::test
