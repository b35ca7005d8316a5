// The comparison of a device with the image (`CheckIC`): its analysis, its verdict and the table of
// differences.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace varnholt {

// The fields of the form, and what the programs ask of the outcome.
inline struct CheckIC_T {
    bool         Offen = false;
    std::string  Frame_IC{};   // the device's menu name
    std::string  Zustand_IC{}; // how far the device is written
    std::string  Ergebnis{};   // the verdict, empty for an erased device that differs
    std::string  Text{};       // the difference table
    bool         Text_Sichtbar    = false;
    bool         Button_Dat_Aktiv = false;
    bool         Ungerade         = false; // the split that the comparison follows
    bool         Gerade           = false;
    bool         Gleich           = false; // device and image agree
    bool         Leer             = false; // the device holds nothing but FFh
    std::int32_t Erste_Abweichung = 0;     // address that the comparison reached
    bool         Seiten_Bewiesen  = false; // Hex_Puffer is current and equal; set by the page write
    std::vector<std::uint8_t>
        Baustein{}; // what was read: the form stands while others use Hex_Puffer
} CheckIC;

// How far a comparison came.
struct Vergleich_T {
    std::int32_t Erreicht  = 0;     // address of the first difference, or behind the last one
    bool         Bild_Ende = false; // no difference up to the end of the image
};

// Editor index that belongs to device address a.
constexpr std::int64_t Editor_Index(std::int64_t a, bool Ungerade, bool Gerade)
{
    if (Ungerade)
        return 2 * a + 1;
    return Gerade ? 2 * a : a;
}

// Walks both arrays up to the first difference. With a split the walk ends at the image's end.
Vergleich_T Vergleichen(std::span<const std::uint8_t> Baustein,
                        std::span<const std::uint8_t> Editor,
                        bool                          Ungerade,
                        bool                          Gerade);

// The table of differences over Bytes device addresses; it stops after 1000 of them.
std::string Abweichungen_Tabelle(std::span<const std::uint8_t> Baustein,
                                 std::span<const std::uint8_t> Editor,
                                 std::int32_t                  Bytes,
                                 bool                          Ungerade,
                                 bool                          Gerade);

// Reads the device and shows how it relates to the image; a read that is given up closes the form.
// reads: Hex_Daten, the device's record   sets: CheckIC, Hex_Puffer, Antwort
void CheckIC_Start(bool Ungerade, bool Gerade);
// reads: Hex_Daten   sets: CheckIC
void Button_Dat_Click();
// sets: CheckIC, Hex_Puffer
void Button_OK_Click();

} // namespace varnholt
